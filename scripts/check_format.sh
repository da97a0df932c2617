#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Compares the hand-written C++ with .clang-format; generated files are their printer's business.
# The tool's version is fixed because each version formats a little differently.

set -euo pipefail
cd "$(dirname "$0")/.."

mapfile -d '' files < <(find lmx schema zip document flat tools tests bench fuzz examples docs -name generated -prune -o \
    \( -name '*.h' -o -name '*.cpp' -o -name '*.c' \) -print0)
if [[ ${#files[@]} -eq 0 ]]; then
    echo "check_format.sh: found no file" >&2
    exit 1
fi
if ! clang-format-14 --dry-run --Werror --style=file "${files[@]}"; then
    echo "mend with: clang-format-14 -i <file>" >&2
    exit 1
fi
echo "${#files[@]} files are formatted"
