#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Runs .clang-tidy over the hand-written sources but the tests, which hold little besides a framework's macros, or over
# those named. A finding fails. Sources of one folder are looked at together: most of the time goes into the headers that
# they share. Ends with the count of what had no finding and of what had.
#
#   scripts/tidy.sh [file...]

set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh build tool test clang tidy
# The preset says how each file is compiled; of what a build makes, nothing is needed here.
cmake --preset clang -DVYR_BUILD_TESTS=ON > /dev/null

export logs=build/clang/tidy
rm -rf "$logs"
mkdir -p "$logs"
# What is looked at, a name a line; how each is compiled goes into a list among the logs.
mapfile -t looks < <(python3 - "$logs" "$@" << 'EOF'
import json, os, sys
logs, *named = sys.argv[1:]
at_once = 8
commands = {os.path.relpath(entry["file"]): entry for entry in json.load(open("build/clang/compile_commands.json"))}
sources = sorted(path for path in commands if path.endswith(".cpp") and "generated/" not in path
                 and not path.startswith(("build/", "tests/")))
groups = {}
for path in named or sources:
    entry, folder = commands[path], os.path.dirname(path)
    flags = [word for word in entry["command"].split() if not word.endswith((".o", ".cpp"))]
    # In these folders each file is a program, or has the names that another one has.
    is_alone = named or folder.startswith(("bench", "docs", "examples", "fuzz", "python"))
    groups.setdefault(path if is_alone else (folder, *flags), []).append(path)
looks = []
for group in groups.values():
    for some in (group[first:first + at_once] for first in range(0, len(group), at_once)):
        look, entry = os.path.abspath(some[0]), commands[some[0]]
        if len(some) > 1:
            look = os.path.abspath(f"{logs}/{some[0].replace('/', '_')}")
            with open(look, "w") as joined:
                joined.writelines(f'#include "{os.path.abspath(path)}"  // NOLINT\n' for path in some)
        looks.append({**entry, "file": look, "command": entry["command"].replace(entry["file"], look)})
        print(os.path.relpath(look))
json.dump(looks, open(f"{logs}/compile_commands.json", "w"))
EOF
)
[[ ${#looks[@]} -gt 0 ]] || { echo "tidy.sh: there is no file to look at" >&2; exit 1; }

# The analyzer follows a function's paths until its budget is used up; with a tenth of its own it is four times as fast.
export budget="--extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang --extra-arg=max-nodes=20000"
check() {
    local log=$logs/${1//\//_}.log
    # shellcheck disable=SC2086  # several words
    clang-tidy-14 -p "$logs" --quiet $budget --warnings-as-errors='*' "$1" > "$log" 2>&1 || echo "$1"
}
export -f check
mapfile -t bad < <(printf '%s\0' "${looks[@]}" | xargs -0 -n 1 -P "$(nproc)" bash -c 'check "$1"' check)

for look in "${bad[@]}"; do
    printf '\n== %s\n' "$look"
    grep -v 'warnings generated\|Suppressed\|Use -header-filter' "$logs/${look//\//_}.log" || true
done
echo "$((${#looks[@]} - ${#bad[@]})) passed, ${#bad[@]} failed"
[[ ${#bad[@]} -eq 0 ]]
