#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Another validator's word: xmllint accepts the schema file, and against it every document that the library writes.
#
#   check_written.sh VYR SCHEMA FOLDER...      (each document in the folders that the command reads is written anew)

set -euo pipefail
vyr=$1
schema=$2
shift 2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

written=0
while IFS= read -r -d '' document; do
    "$vyr" check "$document" > "$work/report" 2>&1 || continue
    written=$((written + 1))
    "$vyr" convert "$document" "$work/$written.vyr" || { echo "$document: read but not written"; exit 1; }
done < <(find "$@" -name '*.vyr' -print0)
if [[ $written -eq 0 ]]; then
    echo "no document was read"
    exit 1
fi
# xmllint compiles the schema first, and fails if it is none.
xmllint --noout --schema "$schema" "$work"/*.vyr 2> "$work/report" || { grep -v ' validates$' "$work/report"; exit 1; }
echo "$written documents are valid"
