# Tests that look at the sources, the installed tree and the command instead of linking the library. They say the
# same in every build, so presets that repeat the tests with other flags leave out the label "once".

# Scripts need this system, so the builds for another leave out all but those of their own.

function(vyr_add_check name)
  add_test(NAME ${name} COMMAND ${ARGN} WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
  set_tests_properties(${name} PROPERTIES LABELS once TIMEOUT 600)
endfunction()

find_package(Python3 3.11 REQUIRED COMPONENTS Interpreter)
set(checks ${PROJECT_SOURCE_DIR}/tests)
if(CMAKE_CROSSCOMPILING)
  include(${CMAKE_CURRENT_LIST_DIR}/checks_windows.cmake)
  return()
endif()

vyr_add_check(format ${PROJECT_SOURCE_DIR}/scripts/check_format.sh)
vyr_add_check(layering ${Python3_EXECUTABLE} ${checks}/layering/check_layering.py ${PROJECT_SOURCE_DIR})
vyr_add_check(generated_files ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/schema/generator/generate.py --check)
vyr_add_check(generator ${Python3_EXECUTABLE} ${checks}/schema/generator_test.py)
vyr_add_check(release ${checks}/scripts/check_release.sh ${PROJECT_SOURCE_DIR})
vyr_add_check(headers_msvc ${checks}/install/check_msvc.sh ${PROJECT_SOURCE_DIR})
set_tests_properties(release headers_msvc PROPERTIES SKIP_RETURN_CODE 77)
vyr_add_check(site ${Python3_EXECUTABLE} ${checks}/docs/check_site.py ${CMAKE_COMMAND} ${PROJECT_SOURCE_DIR}
              ${PROJECT_BINARY_DIR}/site_test)
set_tests_properties(site PROPERTIES SKIP_RETURN_CODE 77)
# Another compiler, and a build for debugging or measuring, exports other instances of the same names.
if(BUILD_SHARED_LIBS AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_BUILD_TYPE STREQUAL "Release")
  vyr_add_check(exported_names ${PROJECT_SOURCE_DIR}/scripts/exported_names.sh $<TARGET_FILE:vyr>)
endif()
if(VYR_BUILD_TOOLS)
  set(palette ${PROJECT_SOURCE_DIR}/examples/css-colors.vyr)
  add_test(NAME tools_vyr COMMAND ${Python3_EXECUTABLE} ${checks}/tools/check_vyr.py $<TARGET_FILE:vyr_tool> ${palette})
  add_test(NAME tools_values COMMAND ${Python3_EXECUTABLE} ${checks}/tools/check_values.py $<TARGET_FILE:vyr_tool>
                                     ${checks}/tools/values.vyr ${checks}/documents/valid
                                     ${PROJECT_SOURCE_DIR}/schema/generated/vyr.schema.json)
  add_test(NAME tools_show COMMAND ${Python3_EXECUTABLE} ${checks}/tools/check_show.py $<TARGET_FILE:vyr_tool>
                                   ${checks}/documents/valid ${PROJECT_SOURCE_DIR}/examples/css-colors.vyr)
  add_test(NAME tools_show_browser COMMAND ${Python3_EXECUTABLE} ${checks}/tools/check_show_browser.py
                                           $<TARGET_FILE:vyr_tool>)
  set_tests_properties(tools_show_browser PROPERTIES SKIP_RETURN_CODE 77)
  add_test(NAME tools_warnings COMMAND ${Python3_EXECUTABLE} ${checks}/tools/check_warnings.py
                                       $<TARGET_FILE:vyr_tool> ${checks}/documents/valid)
  vyr_add_check(tools_papers ${Python3_EXECUTABLE} ${checks}/tools/check_papers.py $<TARGET_FILE:vyr_tool>
                ${PROJECT_SOURCE_DIR})
  vyr_add_check(foreign_archives ${checks}/zip/check_archives.sh $<TARGET_FILE:vyr_tool> ${palette})
  vyr_add_check(written_documents ${checks}/written/check_written.sh $<TARGET_FILE:vyr_tool>
                ${PROJECT_SOURCE_DIR}/schema/vyr.xsd ${PROJECT_SOURCE_DIR}/examples ${checks}/documents)
endif()
if(VYR_BUILD_TOOLS AND VYR_BUILD_FLAT AND BUILD_SHARED_LIBS)
  vyr_add_check(installed_tree ${checks}/install/check_install.sh ${CMAKE_COMMAND} ${PROJECT_BINARY_DIR}
                ${PROJECT_SOURCE_DIR} ${CMAKE_CXX_COMPILER} ${CMAKE_INSTALL_LIBDIR} $<TARGET_SONAME_FILE_NAME:vyr>)
  vyr_add_check(debian_packages ${checks}/install/check_packages.sh ${CMAKE_CPACK_COMMAND} ${PROJECT_BINARY_DIR}
                ${PROJECT_SOURCE_DIR} ${Python3_EXECUTABLE})
  set_tests_properties(debian_packages PROPERTIES FIXTURES_REQUIRED python SKIP_RETURN_CODE 77)
endif()
if(VYR_BUILD_TOOLS)
  # Under every preset: the programs that the guides run are checked as they run.
  add_test(NAME guides_blocks COMMAND ${Python3_EXECUTABLE} ${checks}/docs/check_guides.py ${PROJECT_SOURCE_DIR}
                                      ${PROJECT_BINARY_DIR}/examples $<TARGET_FILE:vyr_tool>)
  add_test(NAME guides_samples COMMAND doc_guides ${PROJECT_SOURCE_DIR}/examples/css-colors.vyr
           WORKING_DIRECTORY ${PROJECT_BINARY_DIR}/docs/samples)
endif()
if(VYR_BUILD_FLAT AND BUILD_SHARED_LIBS)
  set(flat_list ${PROJECT_SOURCE_DIR}/flat/generated/exports.txt)
  vyr_add_check(flat_exports ${checks}/flat/check_exports.sh $<TARGET_FILE:vyr> ${flat_list})
  foreach(part functions model behaviour collector loads walk library examples)
    vyr_add_check(csharp_${part} ${checks}/csharp/check_assembly.sh ${part} $<TARGET_FILE_DIR:vyr> ${PROJECT_SOURCE_DIR}
                  ${Python3_EXECUTABLE})
    set_tests_properties(csharp_${part} PROPERTIES SKIP_RETURN_CODE 77)
  endforeach()
  if(VYR_BUILD_TOOLS)
    vyr_add_check(csharp_nuget ${checks}/csharp/check_nuget.sh ${PROJECT_BINARY_DIR} ${PROJECT_SOURCE_DIR})
    set_tests_properties(csharp_nuget PROPERTIES SKIP_RETURN_CODE 77)
  endif()
  # The extension module is no part of the build: the first of these makes it.
  vyr_add_check(python_module ${checks}/python/check_package.sh module ${PROJECT_BINARY_DIR} ${PROJECT_SOURCE_DIR}
                ${Python3_EXECUTABLE})
  foreach(part tests types wheel)
    vyr_add_check(python_${part} ${checks}/python/check_package.sh ${part} ${PROJECT_BINARY_DIR} ${PROJECT_SOURCE_DIR}
                  ${Python3_EXECUTABLE})
    set_tests_properties(python_${part} PROPERTIES FIXTURES_REQUIRED python SKIP_RETURN_CODE 77)
  endforeach()
  set_tests_properties(python_module PROPERTIES FIXTURES_SETUP python SKIP_RETURN_CODE 77)
endif()
