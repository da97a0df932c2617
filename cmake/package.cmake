# The Debian packages that cpack makes: libvyr<major>.<minor>, libvyr-dev, vyr-tools and, where there is what they need,
# libvyr-cil for C# and python3-vyr, each of one group of the components that cmake/install.cmake fills.
# scripts/package.sh builds them.

set(library_package libvyr${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(same_version "${library_package} (= ${PROJECT_VERSION})")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vyr)
set(CPACK_PACKAGE_CONTACT "The Vyr Authors <authors@vyr.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# What the library and the command need of the system, by dpkg-shlibdeps, which finds the library where it was built.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)

set(about "Vyr reads documents of measured and specified colours, palettes, recipes and
quality-control records, checks every value against the format's schema, holds
a document as a tree of plain classes, and writes it back.
.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA triggers postinst postrm)
list(TRANSFORM CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA PREPEND ${PROJECT_SOURCE_DIR}/cmake/debian/)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "reads, checks and writes colour-data documents
${about}
This package holds the shared library, for programs in C++, C# and Python.")
if(VYR_BUILD_FLAT)
  # libVyrModule.so has the same name in every version.
  foreach(relation PROVIDES CONFLICTS REPLACES)
    set(CPACK_DEBIAN_LIBRARY_PACKAGE_${relation} libvyr-module)
  endforeach()
endif()

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvyr-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
# vyr.pc names the others' .pc files, and a static link needs the libraries, one of them for libxml2.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${same_version}, libxml2-dev, zlib1g-dev, libbz2-dev, liblzma-dev")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "reads, checks and writes colour-data documents - development files
${about}
This package holds the headers, the format's schema, what CMake and pkg-config
need to find the library, guides and examples.")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME vyr-tools)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS ${same_version})
set(CPACK_DEBIAN_TOOL_DESCRIPTION "checks and converts colour-data documents
${about}
This package holds the command vyr.")

set(CPACK_DEBIAN_CSHARP_PACKAGE_NAME libvyr-cil)
set(CPACK_DEBIAN_CSHARP_PACKAGE_SECTION cli-mono)
set(CPACK_DEBIAN_CSHARP_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_CSHARP_PACKAGE_DEPENDS ${same_version})
set(CPACK_DEBIAN_CSHARP_PACKAGE_RECOMMENDS mono-runtime)
set(CPACK_DEBIAN_CSHARP_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_CSHARP_DESCRIPTION "reads, checks and writes colour-data documents - C# assembly
${about}
This package holds the assembly Vyr.dll for C# programs, its documentation and
its sources.")

set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-vyr)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS "${same_version}, python3 (>= 3.11)")
set(CPACK_DEBIAN_PYTHON_PACKAGE_RECOMMENDS python3-numpy)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS "python3-pandas, libvyr-dev")
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/debian/python/postinst
                                              ${PROJECT_SOURCE_DIR}/cmake/debian/python/prerm)
set(CPACK_DEBIAN_PYTHON_DESCRIPTION "reads, checks and writes colour-data documents - Python package
${about}
This package holds the package vyr for Python, with its types for checkers. The
guide to it, python.md, and its examples are part of libvyr-dev.")

# What the system asks of every package; other installations need no such file.
string(TIMESTAMP build_time "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(cmake/debian/changelog.in changelog @ONLY)
file(ARCHIVE_CREATE OUTPUT ${PROJECT_BINARY_DIR}/changelog.gz PATHS ${PROJECT_BINARY_DIR}/changelog FORMAT raw
     COMPRESSION GZip COMPRESSION_LEVEL 9)
set(CPACK_COMPONENTS_ALL runtime development documentation)
set(groups library development)
if(VYR_BUILD_TOOLS)
  list(APPEND CPACK_COMPONENTS_ALL tool)
  list(APPEND groups tool)
endif()
if(VYR_BUILD_FLAT AND VYR_MCS)
  list(APPEND CPACK_COMPONENTS_ALL csharp)
  list(APPEND groups csharp)
endif()
if(TARGET vyr_python)
  list(APPEND CPACK_COMPONENTS_ALL python python_module)
  list(APPEND groups python)
endif()
foreach(group ${groups})
  string(TOUPPER ${group} variables)
  set(folder ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${variables}_PACKAGE_NAME})
  install(FILES cmake/debian/copyright ${PROJECT_BINARY_DIR}/changelog.gz DESTINATION ${folder}
          COMPONENT ${group}_papers EXCLUDE_FROM_ALL)
  list(APPEND CPACK_COMPONENTS_ALL ${group}_papers)
endforeach()
install(FILES cmake/debian/lintian DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME ${library_package}
        COMPONENT library_papers EXCLUDE_FROM_ALL)
if(NOT VYR_BUILD_PYTHON)  # a test adds them, where it made the module
  list(REMOVE_ITEM CPACK_COMPONENTS_ALL python python_module python_papers)
endif()

include(CPack)
cpack_add_component(runtime GROUP library)
cpack_add_component(development GROUP development)
cpack_add_component(documentation GROUP development)
cpack_add_component(tool GROUP tool)
cpack_add_component(csharp GROUP csharp)
cpack_add_component(python GROUP python)
cpack_add_component(python_module GROUP python)
foreach(group ${groups})
  cpack_add_component(${group}_papers GROUP ${group})
endforeach()
