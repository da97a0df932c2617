# Runs Doxygen over the sources; the target `docs` calls this.
#
#     cmake -DPROJECT_...=... [-DVYR_SITE_EXTRA=<lines for the Doxyfile>] -P make_site.cmake

cmake_minimum_required(VERSION 3.25)
find_package(Python3 3.11 QUIET COMPONENTS Interpreter)
find_program(VYR_DOXYGEN doxygen)
foreach(tool VYR_DOXYGEN Python3_EXECUTABLE)
  if(NOT ${tool})
    message(FATAL_ERROR "The site is made by Doxygen and Python 3.11 or later, and they aren't both here. On Debian "
                        "`scripts/setup.sh docs` installs them; then build the target docs again.")
  endif()
endforeach()
configure_file(${CMAKE_CURRENT_LIST_DIR}/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
execute_process(COMMAND ${VYR_DOXYGEN} ${PROJECT_BINARY_DIR}/Doxyfile WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
                COMMAND_ERROR_IS_FATAL ANY)
