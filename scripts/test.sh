#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Builds and tests everything, warnings as errors: optimised, with every check of the sources and of the installed
# tree, and again under the address and undefined-behaviour sanitizers. Ends with the count of both.
#
#   scripts/test.sh [preset...]      (without arguments: release asan)

set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh build tool test
scripts/setup.sh csharp || echo "test.sh: there is no C# to be had; the tests that need it are skipped"
scripts/setup.sh python || echo "test.sh: there is no Python to be had; the tests that need it are skipped"

presets=("$@")
[[ ${#presets[@]} -gt 0 ]] || presets=(release asan)

passed=0
failed=0
summary=()
for preset in "${presets[@]}"; do
    printf '\n== %s: configuring and building\n' "$preset"
    cmake --preset "$preset" -DVYR_BUILD_TESTS=ON -DVYR_WARNINGS_AS_ERRORS=ON
    cmake --build --preset "$preset"

    printf '\n== %s: testing\n' "$preset"
    results=$PWD/build/$preset/results.xml
    rm -f "$results"
    code=0
    ctest --preset "$preset" --parallel "$(nproc)" --progress --output-junit "$results" || code=$?
    # <testsuite ... tests="N" failures="N" ...>
    count() { sed -n "s/^.*\\b$1=\"\\([0-9]*\\)\".*\$/\\1/p" "$results" | head -n 1; }
    tests=$(count tests)
    bad=$(count failures)
    skipped=$(count skipped)
    if [[ -z $tests || $tests -eq 0 || ($code -ne 0 && $bad -eq 0) ]]; then
        echo "test.sh: ctest did not come to an end under $preset (exit code $code)" >&2
        exit 1
    fi
    passed=$((passed + tests - bad - skipped))
    failed=$((failed + bad))
    summary+=("$preset: $((tests - bad - skipped)) passed, $bad failed, $skipped skipped")
done

printf '\n== summary\n'
printf '%s\n' "${summary[@]}"
echo "$passed passed, $failed failed"
[[ $failed -eq 0 ]]
