#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Builds the fuzzers with clang, warnings as errors, and runs each for so many seconds from the corpus that the tests'
# documents make, and from what earlier runs found. Ends with the count of fuzzers that found nothing and of the others.
#
#   scripts/fuzz.sh [seconds] [fuzzer...]      (without arguments: 60 seconds, all of them; 0: the corpus only)

set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-60}
if [[ ! $seconds =~ ^(0|[1-9][0-9]*)$ ]]; then
    echo "fuzz.sh: '$seconds' is no number of seconds" >&2
    exit 2
fi
fuzzers=("${@:2}")
[[ ${#fuzzers[@]} -gt 0 ]] || fuzzers=(archive calls document dtd events values)

scripts/setup.sh build test clang
cmake --preset fuzz -DVYR_WARNINGS_AS_ERRORS=ON > /dev/null
cmake --build --preset fuzz
build=$PWD/build/fuzz
python3 fuzz/make_corpus.py "$build/corpus"

export ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1 UBSAN_OPTIONS=print_stacktrace=1
# Without time, each input of the corpus is run once and nothing is tried beyond it.
limit=(-max_total_time="$seconds")
[[ $seconds -gt 0 ]] || limit=(-runs=0)
passed=0
failed=0
summary=()
for fuzzer in "${fuzzers[@]}"; do
    printf '\n== fuzz_%s: %s seconds\n' "$fuzzer" "$seconds"
    found=$build/found/$fuzzer # what a run adds to the corpus, and the input that ends one
    mkdir -p "$found" "$build/run"
    code=0
    # A finding must not take the summary with it. No input of a corpus takes a tenth of the time or memory allowed.
    (cd "$build/run" && "$build/bin/fuzz_$fuzzer" -timeout=20 -rss_limit_mb=2048 \
        "${limit[@]}" -print_final_stats=1 -artifact_prefix="$found-" "$found" "$build/corpus/$fuzzer") \
        > "$found.log" 2>&1 || code=$?
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$found.log")
    edges=$(sed -n 's/^.* cov: \([0-9]*\) .*$/\1/p' "$found.log" | tail -n 1)
    # A fuzzer that ran nothing has shown nothing.
    if [[ $code -eq 0 && ${runs:-0} -gt 0 ]]; then
        passed=$((passed + 1))
        summary+=("fuzz_$fuzzer: $runs runs, $edges edges")
    else
        failed=$((failed + 1))
        tail -n 60 "$found.log"
        summary+=("fuzz_$fuzzer: failed (exit code $code), ${runs:-0} runs; the whole of it is in ${found#"$PWD"/}.log")
    fi
done

printf '\n== summary\n'
printf '%s\n' "${summary[@]}"
echo "$passed passed, $failed failed"
[[ $failed -eq 0 ]]
