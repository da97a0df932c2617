# The target `docs`: a site of the guides and the reference, in the folder site/ of the build. What it needs is looked
# for when it is built, so that it can be installed after the rest was configured.

add_custom_target(docs COMMAND ${CMAKE_COMMAND} "-DPROJECT_VERSION=${PROJECT_VERSION}"
                               "-DPROJECT_DESCRIPTION=${PROJECT_DESCRIPTION}"
                               "-DPROJECT_SOURCE_DIR=${PROJECT_SOURCE_DIR}" "-DPROJECT_BINARY_DIR=${PROJECT_BINARY_DIR}"
                               -P ${CMAKE_CURRENT_LIST_DIR}/make_site.cmake
                       COMMENT "Making ${PROJECT_BINARY_DIR}/site/index.html" VERBATIM USES_TERMINAL)
