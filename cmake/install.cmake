# What `cmake --install` puts where, and how other projects find it: find_package(vyr) and vyr.pc. Each line names its
# component: `runtime` is for running programs, `development` for building them, `tool` is the command, `documentation`
# the guides, `csharp` (in csharp/) the assembly, `python` and `python_module` (in python/) the package. A new file is
# added to the list of its folder.

include(CMakePackageConfigHelpers)

set(vyr_include_dir ${CMAKE_INSTALL_INCLUDEDIR}/vyr)
set(vyr_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vyr)

install(TARGETS vyr EXPORT vyr-targets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
if(VYR_BUILD_TOOLS)
  install(TARGETS vyr_tool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
endif()
# For the shells and the manual of other systems than Windows.
if(VYR_BUILD_TOOLS AND NOT WIN32)
  # Copied, so that a change of the page is seen and it is compressed anew.
  configure_file(tools/vyr.1 vyr.1 COPYONLY)
  file(ARCHIVE_CREATE OUTPUT ${PROJECT_BINARY_DIR}/vyr.1.gz PATHS ${PROJECT_BINARY_DIR}/vyr.1 FORMAT raw
       COMPRESSION GZip COMPRESSION_LEVEL 9)
  install(FILES ${PROJECT_BINARY_DIR}/vyr.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
  set(completion ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  install(FILES tools/completion/vyr.bash DESTINATION ${completion} RENAME vyr COMPONENT tool)
  install(FILES tools/completion/_vyr DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions COMPONENT tool)
  install(FILES tools/completion/vyr.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT tool)
endif()

# The runtime and the classes are public but for a few headers of the library's own sources; of the other folders it
# is the other way round.
foreach(folder lmx schema)
  install(DIRECTORY ${folder} DESTINATION ${vyr_include_dir} COMPONENT development FILES_MATCHING PATTERN "*.h"
          PATTERN "generator" EXCLUDE PATTERN "storage.h" EXCLUDE PATTERN "file_name.h" EXCLUDE
          PATTERN "numbers.h" EXCLUDE PATTERN "failure*.h" EXCLUDE PATTERN "open_element.h" EXCLUDE
          PATTERN "shown_text.h" EXCLUDE PATTERN "source_place.h" EXCLUDE PATTERN "hidden.h" EXCLUDE
          PATTERN "utf8.h" EXCLUDE PATTERN "place.h" EXCLUDE PATTERN "plain_value.h" EXCLUDE
          PATTERN "plain_way.h" EXCLUDE PATTERN "recovery.h" EXCLUDE PATTERN "thread_object.h" EXCLUDE)
endforeach()
foreach(header document/report.h document/result.h zip/add_request.h zip/container.h zip/entry_header.h zip/exception.h)
  cmake_path(GET header PARENT_PATH folder)
  install(FILES ${header} DESTINATION ${vyr_include_dir}/${folder} COMPONENT development)
endforeach()
install(FILES schema/vyr.xsd schema/catalog.xml schema/generated/vyr.schema.json
        DESTINATION ${CMAKE_INSTALL_DATADIR}/vyr COMPONENT development)
if(VYR_BUILD_FLAT)
  install(FILES flat/generated/vyr_flat.h DESTINATION ${vyr_include_dir} COMPONENT development)
  install(FILES flat/generated/exports.txt DESTINATION ${CMAKE_INSTALL_DATADIR}/vyr COMPONENT development)
endif()

# As the guides lie in the sources, so that their links hold; by name, since people build in these folders.
foreach(file README.md CONTRIBUTING.md SECURITY.md CHANGELOG.md LICENSE
        docs/README.md docs/building.md docs/codes.md docs/command.md docs/container.md docs/csharp.md docs/errors.md
        docs/flat.md docs/format.md docs/generator.md docs/limits.md docs/performance.md docs/python.md docs/reports.md
        docs/schema.md docs/threads.md docs/values.md docs/warnings.md docs/windows.md
        docs/samples/broken.vyr docs/samples/flat.c docs/samples/guides.cpp docs/samples/guides.cs docs/samples/guides.py
        docs/samples/inks.vyr
        examples/CMakeLists.txt examples/README.md examples/css-colors.vyr examples/first.cpp examples/inks.csv
        examples/palette.cpp examples/print.cpp examples/quality.cpp examples/spectra.cpp examples/spectra.csv
        examples/support.h examples/validate.cpp
        examples/csharp/Palette.cs examples/csharp/Quality.cs examples/csharp/Spectra.cs
        examples/python/folder.py examples/python/many.py examples/python/palette.py examples/python/spectra.py)
  cmake_path(GET file PARENT_PATH folder)
  install(FILES ${file} DESTINATION ${CMAKE_INSTALL_DOCDIR}/${folder} COMPONENT documentation)
endforeach()

install(EXPORT vyr-targets NAMESPACE vyr:: DESTINATION ${vyr_package_dir} COMPONENT development)
configure_package_config_file(cmake/vyr-config.cmake.in vyr-config.cmake INSTALL_DESTINATION ${vyr_package_dir})
# Until 1.0 a minor version may change the interface.
write_basic_package_version_file(vyr-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vyr-config.cmake ${CMAKE_CURRENT_BINARY_DIR}/vyr-config-version.cmake
        DESTINATION ${vyr_package_dir} COMPONENT development)

# Paths are written against the .pc file's own place, so that an installed tree can be moved.
set(vyr_prefix ${CMAKE_INSTALL_PREFIX})
cmake_path(RELATIVE_PATH vyr_prefix BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
set(vyr_libdir ${CMAKE_INSTALL_FULL_LIBDIR})
cmake_path(RELATIVE_PATH vyr_libdir BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX})
set(vyr_includedir ${CMAKE_INSTALL_FULL_INCLUDEDIR}/vyr)
cmake_path(RELATIVE_PATH vyr_includedir BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX})
# bzip2 has no .pc file of its own everywhere.
list(TRANSFORM CMAKE_DL_LIBS PREPEND -l OUTPUT_VARIABLE vyr_private_libs)
list(JOIN vyr_private_libs " " vyr_private_libs)
string(PREPEND vyr_private_libs "-lbz2 ")
configure_file(cmake/vyr.pc.in vyr.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vyr.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
