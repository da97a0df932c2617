# One call per test folder: an executable on vyr::vyr and GoogleTest, its cases known to CTest one by one.

find_package(GTest REQUIRED)
include(GoogleTest)

# Number texts must not depend on the machine's locale. A bare machine has none with a decimal comma, so one is made
# from the system's sources; without those the tests say that they skip it.
find_program(VYR_LOCALEDEF localedef)
set(vyr_locales ${PROJECT_BINARY_DIR}/locales)
if(VYR_LOCALEDEF AND EXISTS /usr/share/i18n/locales/de_DE AND NOT EXISTS ${vyr_locales}/de_DE.UTF-8)
  file(MAKE_DIRECTORY ${vyr_locales})
  execute_process(COMMAND ${VYR_LOCALEDEF} -i de_DE -f UTF-8 ${vyr_locales}/de_DE.UTF-8 OUTPUT_QUIET)
endif()

# A test that can't be on this system, so that its results say why.
function(vyr_skip_test name reason)
  add_test(NAME ${name} COMMAND ${CMAKE_COMMAND} -E echo "skipped: ${reason}")
  set_tests_properties(${name} PROPERTIES SKIP_REGULAR_EXPRESSION "skipped: ")
endfunction()

# vyr_add_test(NAME <executable> SOURCES <file>... [LIBRARIES <target>...])
#
# Documents that a test reads lie in tests/documents/; the test finds them through VYR_TEST_DOCUMENTS, an absolute path
# without a closing slash. Scratch files belong into the working directory, which is the test's own build folder.
function(vyr_add_test)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME" "SOURCES;LIBRARIES")
  if(NOT arg_NAME OR NOT arg_SOURCES OR arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "vyr_add_test needs NAME and SOURCES and takes nothing else but LIBRARIES: ${ARGN}")
  endif()
  add_executable(${arg_NAME} ${arg_SOURCES})
  target_link_libraries(${arg_NAME} PRIVATE vyr::vyr vyr_warnings GTest::gtest_main ${arg_LIBRARIES})
  target_compile_definitions(${arg_NAME} PRIVATE "VYR_TEST_DOCUMENTS=\"${PROJECT_SOURCE_DIR}/tests/documents\"")
  vyr_allow_concatenation(${arg_NAME})
  set(scratch ${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}.scratch)
  file(MAKE_DIRECTORY ${scratch})
  if(CMAKE_CROSSCOMPILING)
    # An emulator takes its time to start, so a program runs all its cases in one go. Its own build is kept short; the
    # library is built as it is used.
    target_compile_options(${arg_NAME} PRIVATE -O0)
    add_test(NAME ${arg_NAME} COMMAND ${arg_NAME} --gtest_brief=1 --gtest_output=xml:results.xml
             WORKING_DIRECTORY ${scratch})
    set_tests_properties(${arg_NAME} PROPERTIES TIMEOUT 1500)
    return()
  endif()
  # The cases are listed when ctest starts, so that a build does not run what it has just built.
  gtest_discover_tests(${arg_NAME} WORKING_DIRECTORY ${scratch} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
                                   PROPERTIES TIMEOUT 300 ENVIRONMENT "LOCPATH=${vyr_locales}")
endfunction()
