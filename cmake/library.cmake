# The one library, shared or static: its name, version, include root and the libraries it stands on.

include(GNUInstallDirs)
find_package(LibXml2 REQUIRED)
find_package(ZLIB REQUIRED)
find_package(BZip2 REQUIRED)

# Until 1.0 a minor version may change the interface, so programs ask for the very one that they were built with.
# Objects are the same for both kinds of library: a static one may become part of another's shared library.
set_target_properties(vyr PROPERTIES VERSION ${PROJECT_VERSION} EXPORT_NAME vyr POSITION_INDEPENDENT_CODE ON
                                     SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
target_include_directories(vyr PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
                                      $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/vyr>)
target_compile_features(vyr PUBLIC cxx_std_20)
target_compile_definitions(vyr PRIVATE VYR_BUILDING)
set(vyr_libraries LibXml2::LibXml2 ZLIB::ZLIB BZip2::BZip2)
target_link_libraries(vyr PRIVATE ${vyr_libraries} $<BUILD_INTERFACE:vyr_warnings>)

if(WIN32 AND VYR_IS_X86_32)
  # The usual time_t there ends in 2038. Its headers name none, and programs keep the one that the compiler's thread
  # library knows: with the wider one, waits with a time limit would not wait.
  target_compile_definitions(vyr PRIVATE __MINGW_USE_VC2005_COMPAT)
endif()
if(WIN32 AND NOT BUILD_SHARED_LIBS)
  target_compile_definitions(vyr PUBLIC VYR_STATIC)
endif()

# Calls inside the library are to its own functions: none goes through the loader's table, and all may be inlined.
target_compile_options(vyr PRIVATE $<$<CXX_COMPILER_ID:GNU,Clang>:-fno-semantic-interposition>)
target_link_options(vyr PRIVATE $<$<PLATFORM_ID:Linux>:LINKER:-Bsymbolic-functions>)

set(exports_map ${CMAKE_CURRENT_LIST_DIR}/exports.map)
target_link_options(vyr PRIVATE $<$<PLATFORM_ID:Linux>:LINKER:--version-script=${exports_map}>)
set_target_properties(vyr PROPERTIES LINK_DEPENDS ${exports_map})
