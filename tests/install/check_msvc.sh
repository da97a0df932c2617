#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Lets clang read the public headers as for MSVC's layout and rules of export, in both widths, with the macros of
# <windows.h> that stand in the way of the standard library. The standard library is mingw's, since there is no other
# here. Skipped where there is no clang or no mingw.
#
#   check_msvc.sh SOURCE_FOLDER

set -euo pipefail
cd "$1"
library=/usr/lib/gcc/x86_64-w64-mingw32/12-posix/include/c++
command -v clang++-14 > /dev/null && [[ -d $library ]] ||
    { echo "check_msvc.sh: skipped, there is no clang++-14 or no mingw"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cat > "$work/all.cpp" << 'EOF'
// What the standard headers themselves would make of the macros doesn't matter.
#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <cmath>
#include <compare>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <limits>
#include <locale>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <sstream>
#include <string>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>
#define max(a, b) (((a) > (b)) ? (a) : (b))
#define min(a, b) (((a) < (b)) ? (a) : (b))

#include "schema/Vyr.h"
//
#include "document/report.h"
#include "flat/generated/vyr_flat.h"
#include "lmx/lmx.h"
#include "zip/container.h"

static_assert(sizeof(std::wstring::value_type) == sizeof(std::u16string::value_type));
std::u16string there_and_back(const std::wstring& text) { return lmx::from_wstring(lmx::to_wstring(lmx::from_wstring(text))); }
#if defined(BROKEN)
// An export makes all members, and this can't be copied.
class VYR_EXPORT c_broken {
    std::vector<std::unique_ptr<int>> m_owned;
};
#endif
EOF

# compile TARGET OPTION...: mingw's headers take clang for GCC and the runtime for the newer one.
compile() {
    clang++-14 --target="$1" "${@:2}" -std=gnu++20 -fsyntax-only -Wall -Wextra -Werror -Wno-unknown-attributes \
        -fgnuc-version=4.2.1 -fno-ms-compatibility -D__MINGW32__ -D_UCRT -D_ALLOCA_S_MARKER_SIZE=8 -nostdinc++ \
        -isystem "$library" -isystem "$library/x86_64-w64-mingw32" -isystem /usr/share/mingw-w64/include -I . "$work/all.cpp"
}

for target in x86_64-pc-windows-msvc i686-pc-windows-msvc; do
    compile "$target"                 # as a host
    compile "$target" -DVYR_BUILDING  # as the library
done
if compile x86_64-pc-windows-msvc -DVYR_BUILDING -DBROKEN 2> /dev/null; then
    echo "check_msvc.sh: a class that can't be exported was not noticed" >&2
    exit 1
fi
