#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Compiles and runs a C# program that calls every flat function, the C library checking what is freed. Skipped where
# there's no compiler or runtime for C#.
#
#   check_csharp.sh LIBRARY_FOLDER SOURCE_FOLDER PYTHON

set -euo pipefail
library=$1
source=$2
python=$3

for tool in mcs mono; do
    command -v "$tool" > /dev/null || { echo "check_csharp.sh: skipped, there is no $tool"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

run() { LC_ALL=C.UTF-8 LD_LIBRARY_PATH=$library LD_PRELOAD=libc_malloc_debug.so.0 MALLOC_CHECK_=3 mono "$@"; }

"$python" "$source/tests/flat/every_function.py" > Every.cs
mcs -nowarn:219,649 -out:Every.exe Every.cs
run Every.exe
