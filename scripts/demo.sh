#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# From a fresh clone to the main job done: builds the library and its tool, reads a palette of 148 colours, checks it,
# prints what is in it, writes it back byte for byte, and shows how a broken copy is reported.

set -euo pipefail
cd "$(dirname "$0")/.."

step() { printf '\n== %s\n' "$*"; }

step "Setting up and building"
scripts/setup.sh build tool
cmake --preset release -DVYR_BUILD_TESTS=OFF > /dev/null
cmake --build --preset release --target vyr_tool

vyr=build/release/bin/vyr
palette=examples/css-colors.vyr
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

step "vyr check $palette"
"$vyr" check "$palette"
echo "valid"

step "vyr info $palette"
"$vyr" info "$palette"

step "vyr list --name '*blue' $palette"
"$vyr" list --name '*blue' "$palette"

step "vyr convert $palette css-colors.vyr"
"$vyr" convert "$palette" "$work/css-colors.vyr"
cmp "$palette" "$work/css-colors.vyr"
echo "the same $(wc -c < "$palette") bytes"

step "vyr check broken.vyr: the first red channel is 1.5, and channels end at 1"
sed '0,/<Vyr:Red>[^<]*</s//<Vyr:Red>1.5</' "$palette" > "$work/broken.vyr"
code=0
(cd "$work" && "$OLDPWD/$vyr" check broken.vyr) || code=$?
if [[ $code -ne 1 ]]; then
    echo "demo.sh: the broken copy should have given exit code 1, not $code" >&2
    exit 1
fi
echo "exit code 1"
