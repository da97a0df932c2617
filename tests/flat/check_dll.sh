#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Compares what a DLL's own table says that it exports with the list of flat functions, decorated where pointers have 32
# bits, and looks at the DLLs that it needs itself: those of the system, and for C++ hosts the compiler's as well.
#
#   check_dll.sh OBJDUMP 32|64 LIST self-contained|shared DLL

set -euo pipefail
objdump=$1 bits=$2 list=$3 kind=$4 dll=$5
table=$("$objdump" -p "$dll")

# Lines such as "[   0] +base[   1]  0000 name", and "[   0] name" by older versions.
names=$(sed -n '/\[Ordinal\/Name Pointer\] Table/,/^$/s/^[[:space:]]*\[ *[0-9]*\].*[[:space:]]\([^[:space:]]*\)$/\1/p' <<< "$table")
[[ $bits == 32 ]] && form='s/^\(.*\) \(.*\)$/_\1@\2/' || form='s/ .*$//'
flat=$(grep -v '^_Z' <<< "$names" | LC_ALL=C sort)
diff <(sed "$form" "$list" | LC_ALL=C sort) <(echo "$flat") ||
    { echo "check_dll.sh: < is missing from $dll, > is not listed"; exit 1; }
classes=$(grep -c '^_Z' <<< "$names")
[[ $classes -gt 5000 ]] || { echo "check_dll.sh: only $classes names of classes"; exit 1; }

needed=$(sed -n 's/^[[:space:]]*DLL Name: //p' <<< "$table" | LC_ALL=C sort -f)
shared='^$'
if [[ $kind == shared ]]; then
    # The C libraries are inside either way.
    shared='^libstdc++-6.dll$\|^libgcc_s_.*\.dll$\|^libwinpthread-1.dll$'
    grep -q '^libstdc++-6.dll$' <<< "$needed" || { echo "check_dll.sh: the C++ runtime is inside $dll"; exit 1; }
fi
unwanted=$(grep -i '^lib\|^zlib' <<< "$needed" | grep -v "$shared" || true)
[[ -z $unwanted ]] || { echo "check_dll.sh: $dll needs $unwanted"; exit 1; }
echo "$(wc -l <<< "$flat") flat functions, $classes names of classes; needs ${needed//$'\n'/ }"
