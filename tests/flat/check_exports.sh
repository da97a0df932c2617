#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# The library exports its public classes and the listed flat functions, and nothing else.
#
#   check_exports.sh LIBRARY LIST

set -euo pipefail
names=$(nm --dynamic --defined-only --format=posix "$1" | cut -d ' ' -f 1)

# Functions, data and tables of the public namespaces, and the container's classes.
of_classes='^_Z(T[VIS]|GV|Z|N|K)*(3lmx|15com_vyrgraph_v2|[0-9]+CZip)'
flat=$(grep -vE "$of_classes" <<< "$names" | sort)
diff <(cut -d ' ' -f 1 "$2" | sort) <(echo "$flat") ||
    { echo "check_exports.sh: < is missing from the library, > is not listed"; exit 1; }
echo "$(wc -l <<< "$flat") flat functions, $(grep -cE "$of_classes" <<< "$names") names of public classes"
