# The target `docs`: a site of the guides and the reference, in the folder site/ of the build. Where Doxygen isn't
# installed there is no such target.

find_package(Doxygen QUIET)
find_package(Python3 3.11 QUIET COMPONENTS Interpreter)
if(DOXYGEN_FOUND AND Python3_FOUND)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
  add_custom_target(docs COMMAND ${DOXYGEN_EXECUTABLE} ${PROJECT_BINARY_DIR}/Doxyfile
                         WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} VERBATIM)
endif()
