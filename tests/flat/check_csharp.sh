#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Compiles and runs two C# programs against the library, the C library checking what is freed: the example, and one that
# calls every function. Skipped where there's no compiler or runtime for C#.
#
#   check_csharp.sh LIBRARY_FOLDER SOURCE_FOLDER PYTHON

set -euo pipefail
library=$1
source=$2
python=$3

for tool in mcs mono; do
    command -v "$tool" > /dev/null || { echo "check_csharp.sh: skipped, there is no $tool"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

run() { LC_ALL=C.UTF-8 LD_LIBRARY_PATH=$library LD_PRELOAD=libc_malloc_debug.so.0 MALLOC_CHECK_=3 mono "$@"; }

mcs -out:Palette.exe "$source/examples/csharp/Palette.cs"
run Palette.exe "$source/examples/css-colors.vyr" changed.vyrz > said
diff said - << 'SAID'
CSS, Named: 148 colours
first: aliceblue, red 0.9412
red of 1.5: code 36
copy of null: com_vyrgraph_v2::Vyr const & type is null
as text: <?xml
CSS, Named: 148 colours
first: bleu pâle 🎨, red 0.25
SAID
[[ $(head -c 2 changed.vyrz) == PK ]]

# Two wrong values: both are reported, and the program ends with 1.
sed '0,/Red>[0-9.]*/s//Red>1.5/; 0,/Green>[0-9.]*/s//Green>none/' "$source/examples/css-colors.vyr" > bad.vyr
if run Palette.exe bad.vyr never.vyrz > said; then exit 1; fi
diff said - << 'SAID'
line 39: Palette "CSS" / ColorSet "Named" / Color "aliceblue" / ColorSpaceSRGB / Red
    Value greater than specified maximum: it must be at most 1
line 40: Palette "CSS" / ColorSet "Named" / Color "aliceblue" / ColorSpaceSRGB / Green
    Invalid value format for this type: a number is expected
2 fault(s) in all
SAID

"$python" "$source/tests/flat/every_function.py" > Every.cs
mcs -nowarn:219,649 -out:Every.exe Every.cs
run Every.exe
