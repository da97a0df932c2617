#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Compiles the flat functions for 32-bit Windows and compares their decorated names, in which the compiler counts the
# bytes of the arguments, with the list. Skipped where there's no cross compiler.
#
#   check_windows.sh SOURCE_FOLDER

set -euo pipefail
cd "$1"
compiler=i686-w64-mingw32-g++-posix
command -v "$compiler" > /dev/null || { echo "check_windows.sh: skipped, there is no $compiler"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

printf '%s\0' flat/*.cpp flat/generated/*.cpp | xargs -0 -P "$(nproc)" -I {} sh -c \
    '"$1" -std=c++20 -DVYR_BUILDING -DVYR_VERSION=\"0\" -Wall -Wextra -Wno-attributes -I . -c "$2" -o "$3/$(echo "$2" | tr / _).o"' \
    - "$compiler" {} "$work"
i686-w64-mingw32-nm --defined-only --format=posix "$work"/*.o | cut -d ' ' -f 1 |
    grep -E '^_(CSharp|SWIGRegister|VyrModule)_?' | sort > "$work/names"
sed 's/^\(.*\) \(.*\)$/_\1@\2/' flat/generated/exports.txt | sort | diff - "$work/names"
echo "$(wc -l < "$work/names") decorated names"
