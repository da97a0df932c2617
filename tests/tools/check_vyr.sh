#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# The command line as a user meets it: output, exit code, and what stands in files afterwards.
#
#   check_vyr.sh VYR PALETTE      (the command, and a valid document in the library's own layout)

set -euo pipefail
vyr=$1
palette=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
cp "$palette" good.vyr
sed '0,/<Vyr:Red>[^<]*</s//<Vyr:Red>1.5</' good.vyr > broken.vyr
line=$(grep -n '<Vyr:Red>1.5<' broken.vyr | cut -d: -f1)

failures=0
# expect CODE OUTPUT ARGUMENT...: runs the command; OUTPUT is a pattern for all that it prints, on both streams.
expect() {
    local code=0 output
    output=$("$vyr" "${@:3}" 2>&1) || code=$?
    # shellcheck disable=SC2053  # the right side is a pattern
    if [[ $code -ne $1 || $output != $2 ]]; then
        printf 'vyr %s\n  expected %s: %s\n  got %s: %s\n' "${*:3}" "$1" "$2" "$code" "$output"
        failures=$((failures + 1))
    fi
}

expect 0 '' check good.vyr
expect 1 "broken.vyr:$line: Vyr:Red: Value greater than specified maximum" check broken.vyr
expect 1 "broken.vyr:$line: *" check good.vyr broken.vyr good.vyr
expect 2 '*broken.vyr:*absent.vyr: Unable to open file*' check broken.vyr absent.vyr
expect 2 '*.: is a directory' check .

expect 0 '' convert good.vyr copy.vyr
cmp good.vyr copy.vyr || failures=$((failures + 1))
expect 1 'broken.vyr:*' convert broken.vyr never.vyr
expect 2 '*Unable to open file' convert good.vyr no/such/folder.vyr
expect 2 '*ends in .vyr or .vyrz' convert good.vyr never.xml
[[ ! -e never.vyr && ! -e never.xml && -z $(find . -name '.vyr-*') ]] || { echo 'a failed conversion left a file'; failures=$((failures + 1)); }

expect 0 '' convert good.vyr good.vyrz
expect 0 '' check good.vyrz
expect 0 '' convert good.vyrz copy.vyr
cmp good.vyr copy.vyr || { echo 'a container changed the document, or its plain neighbour'; failures=$((failures + 1)); }
head -c 2000 good.vyrz > cut.vyrz
python3 -c 'import sys; b = bytearray(open(sys.argv[1], "rb").read()); b[14] ^= 1; open(sys.argv[2], "wb").write(b)' \
    good.vyrz lying.vyrz
expect 1 'lying.vyrz: the container is damaged' check lying.vyrz
expect 1 'cut.vyrz: not a ZIP archive' check cut.vyrz
expect 2 'vyr: absent.vyrz: Unable to open file' check absent.vyrz
expect 2 '*Unable to open file' convert good.vyr no/such/folder.vyrz

expect 0 '*1  palettes*148  colours in sets*148  values in sRGB*
    aliceblue * sRGB 0.941176 0.972549 1
*yellowgreen *' info good.vyr
expect 1 'broken.vyr:*' info broken.vyr

expect 0 'usage:*check*convert*info*' --help
expect 0 'vyr [0-9]*.[0-9]*.[0-9]*' --version
expect 2 'usage:*' ''
expect 2 'usage:*' check
expect 2 'usage:*' convert one two three
expect 2 "*unknown command 'delete'*" delete good.vyr

[[ $failures -eq 0 ]]
