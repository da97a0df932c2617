# What a builder may choose, and what every target gets.

if(PROJECT_IS_TOP_LEVEL)
  option(BUILD_SHARED_LIBS "Build the shared library, not the static one" ON)
endif()
option(VYR_BUILD_FLAT "Build the flat functions for C# hosts into the library" ON)
option(VYR_BUILD_TOOLS "Build the vyr command" ON)
option(VYR_BUILD_TESTS "Build the tests" ${PROJECT_IS_TOP_LEVEL})
option(VYR_BUILD_EXAMPLES "Build the examples; with the tests they are built anyway" OFF)
option(VYR_BUILD_PYTHON "Build, install and package the Python package with all else" OFF)
set(VYR_PYTHON_DIR lib/python3/dist-packages CACHE STRING "Folder of Python packages, below the prefix")
option(VYR_BUILD_BENCH "Build the benchmarks" OFF)
option(VYR_BUILD_FUZZ "Build the fuzzers; needs clang" OFF)
option(VYR_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# On 32-bit x86 numbers are computed as on every other machine, not in the wide registers of its first float unit,
# from which they come back rounded twice.
include(CheckCXXSourceCompiles)
check_cxx_source_compiles("#if !defined(__i386__)\n#error\n#endif\nint main() {}" VYR_IS_X86_32)
if(VYR_IS_X86_32)
  add_compile_options(-msse2 -mfpmath=sse)
  if(WIN32)
    # Callers there keep the stack at four bytes only.
    add_compile_options(-mstackrealign)
  endif()
endif()

# Repeated builds are much faster through ccache; a machine without it builds all the same.
if(PROJECT_IS_TOP_LEVEL AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  find_program(VYR_CCACHE ccache)
  if(VYR_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${VYR_CCACHE})
  endif()
endif()

add_library(vyr_warnings INTERFACE)
if(MSVC)
  # The generated sources speak to GCC and clang; without the last two, texts would be read in the machine's code page.
  target_compile_options(vyr_warnings INTERFACE /W3 /wd4068 $<$<BOOL:${VYR_WARNINGS_AS_ERRORS}>:/WX> /utf-8 /EHsc)
else()
  # In a file of many files a local name may be another file's; the files by themselves are asked by presets that
  # compile them so.
  target_compile_options(vyr_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor
                                                $<$<NOT:$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>:-Wshadow>
                                                $<$<BOOL:${VYR_WARNINGS_AS_ERRORS}>:-Werror>)
endif()

# g++ 12 takes `"text" + std::string` for an overlapping copy (gcc bug 105651); for targets that are full of that.
function(vyr_allow_concatenation target)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
endfunction()
