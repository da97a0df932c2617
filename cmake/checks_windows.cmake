# The checks of a build for Windows: what those of the sources say, the build for this system says.

if(VYR_BUILD_FLAT AND BUILD_SHARED_LIBS)
  vyr_add_check(dll_shared ${checks}/flat/check_dll.sh ${CMAKE_OBJDUMP} ${VYR_WINDOWS_BITS}
                ${PROJECT_SOURCE_DIR}/flat/generated/exports.txt shared $<TARGET_FILE:vyr>)
  vyr_add_check(dll_self_contained ${checks}/flat/check_dll.sh ${CMAKE_OBJDUMP} ${VYR_WINDOWS_BITS}
                ${PROJECT_SOURCE_DIR}/flat/generated/exports.txt self-contained $<TARGET_FILE:vyr_self_contained>)
endif()
add_test(NAME guides_samples COMMAND doc_guides ${PROJECT_SOURCE_DIR}/examples/css-colors.vyr
         WORKING_DIRECTORY ${PROJECT_BINARY_DIR}/docs/samples)
