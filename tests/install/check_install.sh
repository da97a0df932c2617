#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Installs into a scratch prefix, moves it, and builds and runs the README's first program against it: once through
# find_package, once through pkg-config. Every installed header is compiled as well.
#
#   check_install.sh CMAKE BUILD_FOLDER SOURCE_FOLDER COMPILER

set -euo pipefail
cmake=$1
build=$2
source=$3
compiler=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

# An installed tree has to work wherever it is put.
"$cmake" --install "$build" --prefix "$work/first" > install.log
mv first prefix
prefix=$work/prefix
libdir=$(dirname "$(find "$prefix" -name libvyr.so)")
palette=$source/examples/css-colors.vyr
expected='CSS: 1 colour set(s)'

fail() { echo "check_install.sh: $*"; exit 1; }

[[ -f $prefix/share/vyr/vyr.xsd ]] || fail "the schema file is missing"
"$prefix/bin/vyr" check "$palette" || fail "the installed command does not run"
"$cmake" --install "$build" --prefix "$work/runtime" --component runtime >> install.log
[[ -f $work/runtime/${libdir#"$prefix/"}/libVyrModule.so ]] || fail "C# programs do not find the library at run time"
! find "$prefix" -name '*.py' | grep . || fail "the generator was installed"

mkdir consumer
cat > consumer/CMakeLists.txt <<'CMAKE'
cmake_minimum_required(VERSION 3.25)
project(consumer LANGUAGES CXX)
find_package(vyr 0.1 REQUIRED)
add_executable(first first.cpp)
target_link_libraries(first PRIVATE vyr::vyr)
CMAKE
cp "$source/examples/first.cpp" consumer/
"$cmake" -G Ninja -S consumer -B by_package -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$compiler" > package.log
"$cmake" --build by_package >> package.log || { cat package.log; fail "does not build with find_package"; }
[[ $(by_package/first "$palette") == "$expected" ]] || fail "the program built with find_package answers otherwise"

export PKG_CONFIG_PATH=$libdir/pkgconfig
# shellcheck disable=SC2046  # the flags are words
"$compiler" -std=c++20 consumer/first.cpp $(pkg-config --cflags --libs vyr) -o by_pkgconfig
[[ $(LD_LIBRARY_PATH=$libdir ./by_pkgconfig "$palette") == "$expected" ]] ||
    fail "the program built with pkg-config answers otherwise"

# Each header stands on its own and needs nothing that is not installed.
(cd "$prefix/include/vyr" && find . -name '*.h') |
    xargs -P "$(nproc)" -I {} "$compiler" -std=c++20 -fsyntax-only -Wall -Wextra -Werror -I "$prefix/include/vyr" \
        -include {} -x c++ /dev/null || fail "a header does not compile on its own"

# The README shows this very program.
awk '/^```cpp$/ {inside = 1; next} /^```$/ {inside = 0} inside' "$source/README.md" > shown.cpp
sed '1,/^$/d' "$source/examples/first.cpp" | diff shown.cpp - || fail "README.md shows another program"
