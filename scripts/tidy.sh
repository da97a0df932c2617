#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Runs .clang-tidy over the hand-written sources but the tests, which hold little besides a framework's macros, or over
# those named. A finding fails. Ends with the count of files without one and with one.
#
#   scripts/tidy.sh [file...]

set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh build tool test clang tidy
# The preset says how each file is compiled; of what a build makes, nothing is needed here.
cmake --preset clang -DVYR_BUILD_TESTS=ON > /dev/null

files=("$@")
if [[ ${#files[@]} -eq 0 ]]; then
    mapfile -t files < <(python3 -c '
import json, os
for entry in json.load(open("build/clang/compile_commands.json")):
    path = os.path.relpath(entry["file"])
    if path.endswith(".cpp") and "generated/" not in path and not path.startswith(("build/", "tests/")):
        print(path)' | sort -u)
fi
[[ ${#files[@]} -gt 0 ]] || { echo "tidy.sh: there is no file to look at" >&2; exit 1; }

export logs=build/clang/tidy
rm -rf "$logs"
mkdir -p "$logs"
# The analyzer follows a function's paths until its budget is used up; with a tenth of its own it is four times as fast.
export budget="--extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang --extra-arg=max-nodes=20000"
check() {
    local log=$logs/${1//\//_}
    # shellcheck disable=SC2086  # several words
    clang-tidy-14 -p build/clang --quiet $budget --warnings-as-errors='*' "$1" > "$log" 2>&1 || echo "$1"
}
export -f check
mapfile -t bad < <(printf '%s\0' "${files[@]}" | xargs -0 -n 1 -P "$(nproc)" bash -c 'check "$1"' check)

for file in "${bad[@]}"; do
    printf '\n== %s\n' "$file"
    grep -v 'warnings generated\|Suppressed\|Use -header-filter' "$logs/${file//\//_}" || true
done
echo "$((${#files[@]} - ${#bad[@]})) passed, ${#bad[@]} failed"
[[ ${#bad[@]} -eq 0 ]]
