#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Measures load and save, beside a bare DOM parser on the same bytes. Arguments go to the program, such as
# --colors=1000 or --benchmark_repetitions=5.

set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh build bench
# A folder of its own, so that the benchmark is measured with the options of a release and nothing else.
cmake --preset release -B build/bench -DVYR_BUILD_BENCH=ON -DVYR_BUILD_TESTS=OFF -DVYR_BUILD_TOOLS=OFF > /dev/null
cmake --build build/bench --target vyr_bench
exec build/bench/bin/vyr_bench "$@"
