#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Compares the C++ names that the shared library exports with cmake/exported_names.txt, so that a change of the
# interface shows in a review. With --write the list is made anew. (The flat functions have a list of their own.)
#
#   scripts/exported_names.sh LIBRARY [--write]      LIBRARY is that of a release by g++

set -euo pipefail
cd "$(dirname "$0")/.."

list=cmake/exported_names.txt

# The types' own names for what they are made of; of a class with virtual functions its table stands for all the
# compiler adds to it.
names() {
    nm --dynamic --defined-only --format=posix "$1" | cut -d ' ' -f 1 | grep '^_Z' | c++filt |
        sed -e 's/std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >/std::string/g' \
            -e 's/std::__cxx11::basic_string<char16_t, std::char_traits<char16_t>, std::allocator<char16_t> >/std::u16string/g' \
            -e 's/std::basic_string_view<char, std::char_traits<char> >/std::string_view/g' \
            -e 's/std::basic_string_view<char16_t, std::char_traits<char16_t> >/std::u16string_view/g' \
            -e 's/std::basic_ostream<char, std::char_traits<char> >/std::ostream/g' \
            -e 's/std::span<\(.*\), 18446744073709551615ul>/std::span<\1>/g' |
        grep -v '^typeinfo \|^VTT ' | LC_ALL=C sort --unique
}

found=$(names "$1")
if [[ ${2:-} == --write ]]; then
    echo "$found" > "$list"
elif ! diff "$list" <(echo "$found"); then
    echo "exported_names.sh: < is no longer exported, > is not listed; if that is meant, mend with:" >&2
    echo "    scripts/exported_names.sh build/release/libvyr.so --write" >&2
    exit 1
fi
echo "$(wc -l <<< "$found") names"
