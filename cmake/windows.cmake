# Toolchain: builds for Windows with Debian's mingw compilers, on what scripts/windows.sh has laid below build/windows.
# VYR_WINDOWS_BITS, 32 or 64, comes from the preset.

set(CMAKE_SYSTEM_NAME Windows)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VYR_WINDOWS_BITS)
if(VYR_WINDOWS_BITS EQUAL 32)
  set(CMAKE_SYSTEM_PROCESSOR i686)
elseif(VYR_WINDOWS_BITS EQUAL 64)
  set(CMAKE_SYSTEM_PROCESSOR x86_64)
else()
  message(FATAL_ERROR "VYR_WINDOWS_BITS is '${VYR_WINDOWS_BITS}'; it must be 32 or 64")
endif()
set(triple ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
# The compilers with POSIX threads: those of the other kind lack std::thread.
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH project)
set(CMAKE_FIND_ROOT_PATH ${project}/build/windows/${VYR_WINDOWS_BITS} /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
# The libraries there are static ones, of which one wants to be told.
set(CMAKE_C_FLAGS_INIT -DLIBXML_STATIC)
set(CMAKE_CXX_FLAGS_INIT -DLIBXML_STATIC)

set(CMAKE_CROSSCOMPILING_EMULATOR ${project}/scripts/wine.sh ${VYR_WINDOWS_BITS})
