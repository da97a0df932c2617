# What `cmake --install` puts where, and how other projects find it: find_package(vyr) and vyr.pc.

include(CMakePackageConfigHelpers)

set(vyr_include_dir ${CMAKE_INSTALL_INCLUDEDIR}/vyr)
set(vyr_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vyr)

# Headers, the schema and what finds the library are for building programs; the rest is for running them.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)
install(TARGETS vyr EXPORT vyr-targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
                                               NAMELINK_COMPONENT development)
if(VYR_BUILD_TOOLS)
  install(TARGETS vyr_tool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
  install(FILES ${PROJECT_SOURCE_DIR}/tools/vyr.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT runtime)
  set(completion ${PROJECT_SOURCE_DIR}/tools/completion)
  install(FILES ${completion}/vyr.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME vyr
          COMPONENT runtime)
  install(FILES ${completion}/_vyr DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions COMPONENT runtime)
  install(FILES ${completion}/vyr.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT runtime)
endif()

# The runtime and the classes are public but for a few headers of the library's own sources; of the other folders it
# is the other way round.
foreach(folder lmx schema)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/${folder} DESTINATION ${vyr_include_dir} FILES_MATCHING PATTERN "*.h"
          PATTERN "generator" EXCLUDE PATTERN "storage.h" EXCLUDE PATTERN "file_name.h" EXCLUDE
          PATTERN "seconds.h" EXCLUDE PATTERN "failure*.h" EXCLUDE PATTERN "open_element.h" EXCLUDE
          PATTERN "shown_text.h" EXCLUDE)
endforeach()
foreach(header document/report.h document/result.h zip/add_request.h zip/container.h zip/entry_header.h zip/exception.h)
  cmake_path(GET header PARENT_PATH folder)
  install(FILES ${PROJECT_SOURCE_DIR}/${header} DESTINATION ${vyr_include_dir}/${folder})
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/schema/vyr.xsd DESTINATION ${CMAKE_INSTALL_DATADIR}/vyr)

install(EXPORT vyr-targets NAMESPACE vyr:: DESTINATION ${vyr_package_dir})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/vyr-config.cmake.in vyr-config.cmake
                              INSTALL_DESTINATION ${vyr_package_dir})
# Until 1.0 a minor version may change the interface.
write_basic_package_version_file(vyr-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vyr-config.cmake ${CMAKE_CURRENT_BINARY_DIR}/vyr-config-version.cmake
        DESTINATION ${vyr_package_dir})

# Paths are written against the .pc file's own place, so that an installed tree can be moved.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE vyr_libdir)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig
           OUTPUT_VARIABLE vyr_prefix)
configure_file(${CMAKE_CURRENT_LIST_DIR}/vyr.pc.in vyr.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vyr.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
