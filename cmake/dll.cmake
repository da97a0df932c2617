# The library on Windows is VyrModule.dll, under which name C# asks for it. What comes beside it:
#
# - libvyr.dll.a, for programs in C++; libVyrModule.dll.a, for programs in C, which know the flat functions as their
#   compiler decorates them: where that is an underscore and the bytes of the arguments, the DLL exports both as part
#   of the name, and the linker would want one more underscore;
# - the compiler's own DLLs, which a C++ host shares with the library, so that an exception passes from one to the
#   other;
# - self-contained/VyrModule.dll, the same with those inside, for hosts of the flat functions.

set_target_properties(vyr PROPERTIES OUTPUT_NAME VyrModule PREFIX "" ARCHIVE_OUTPUT_NAME vyr)
set(flat_imports ${PROJECT_BINARY_DIR}/libVyrModule.dll.a)
set(dll_def ${PROJECT_BINARY_DIR}/VyrModule.def)
set(imports_def ${PROJECT_BINARY_DIR}/imports.def)

# Lines of "name bytes": each is exported as its decorated name, and imported under it.
file(STRINGS ${PROJECT_SOURCE_DIR}/flat/generated/exports.txt exports)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/flat/generated/exports.txt)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  list(TRANSFORM exports REPLACE "^(.+) (.+)$" "\"\\1@\\2\" == \"_\\1@\\2\"" OUTPUT_VARIABLE imports)
  list(TRANSFORM exports REPLACE "^(.+) (.+)$" "\"_\\1@\\2\" = \"\\1@\\2\"")
else()
  list(TRANSFORM exports REPLACE " .+$" "")
  set(imports ${exports})
endif()
list(JOIN exports "\n" exports)
list(JOIN imports "\n" imports)
file(GENERATE OUTPUT ${dll_def} CONTENT "EXPORTS\n${exports}\n")
file(GENERATE OUTPUT ${imports_def} CONTENT "LIBRARY VyrModule.dll\nEXPORTS\n${imports}\n")
target_sources(vyr PRIVATE ${dll_def})

add_custom_command(OUTPUT ${flat_imports} VERBATIM DEPENDS ${imports_def}
                   COMMAND ${CMAKE_DLLTOOL} --input-def ${imports_def} --output-lib ${flat_imports})
add_custom_target(vyr_flat_imports ALL DEPENDS ${flat_imports})
# What programs in C link with. On disk it is the DLL beside them that they run with.
add_library(vyr_flat INTERFACE)
add_dependencies(vyr_flat vyr_flat_imports vyr)
target_link_libraries(vyr_flat INTERFACE ${flat_imports})
target_include_directories(vyr_flat INTERFACE ${PROJECT_SOURCE_DIR})

add_library(vyr_self_contained SHARED $<TARGET_OBJECTS:vyr> ${dll_def})
set_target_properties(vyr_self_contained PROPERTIES OUTPUT_NAME VyrModule PREFIX "" LINKER_LANGUAGE CXX
                      RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/self-contained
                      ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/self-contained)
target_link_libraries(vyr_self_contained PRIVATE ${vyr_libraries} -static)

set(compiler_dlls)
foreach(name libstdc++-6 libgcc_s_dw2-1 libgcc_s_seh-1 libgcc_s_sjlj-1 libwinpthread-1)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}.dll OUTPUT_VARIABLE file
                  OUTPUT_STRIP_TRAILING_WHITESPACE)
  # The compiler answers with the bare name if it has no such file.
  if(IS_ABSOLUTE "${file}")
    list(APPEND compiler_dlls ${file})
  endif()
endforeach()
file(COPY ${compiler_dlls} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})

install(FILES ${compiler_dlls} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
install(TARGETS vyr_self_contained RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}/self-contained COMPONENT runtime
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT unused EXCLUDE_FROM_ALL)
install(FILES ${flat_imports} DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
