#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Tests the C# assembly of a build, the C library checking what is freed. Skipped where there's no compiler or runtime
# for C#.
#
#   check_assembly.sh PART BUILD_FOLDER SOURCE_FOLDER PYTHON
#
# PART: functions (every flat function), model (every member of every class), behaviour, collector (it runs all the
# time), loads (ten thousand), walk (its time beside that of a load), library (how it is found), examples.

set -euo pipefail
part=$1
build=$2
source=$3
python=$4

for tool in mcs mono; do
    command -v "$tool" > /dev/null || { echo "check_assembly.sh: skipped, there is no $tool"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
cp "$build/csharp/Vyr.dll" .
palette=$source/examples/css-colors.vyr
export LC_ALL=C.UTF-8

fail() { echo "check_assembly.sh: $*"; exit 1; }
compile() {
    local name=$1
    shift
    mcs -debug -warn:4 -warnaserror -r:Vyr.dll -out:"$name.exe" "$@"
}
run() { LD_LIBRARY_PATH=$build mono --debug "$@"; }
# Freed memory holds other bytes at once, and each block is checked when it is freed.
checked() { LD_PRELOAD=libc_malloc_debug.so.0 MALLOC_CHECK_=3 MALLOC_PERTURB_=165 LD_LIBRARY_PATH=$build mono --debug "$@"; }
tested() { compile "$1" "$source/tests/csharp/$1.cs" "$source/tests/csharp/Check.cs"; }

case $part in
    functions)
        "$python" "$source/tests/flat/every_function.py" > Every.cs
        compile Every -nowarn:219,649 Every.cs
        checked Every.exe
        ;;
    model)
        tested ModelTest
        "$python" "$source/tests/csharp/model_values.py" > values
        checked ModelTest.exe values
        ;;
    behaviour)
        tested BehaviourTest
        checked BehaviourTest.exe "$palette" "$source/tests/documents/valid"
        ;;
    collector)
        tested StressTest
        checked StressTest.exe collect 50 "$palette"
        MONO_GC_DEBUG=collect-before-allocs checked StressTest.exe collect 1 "$palette"
        ;;
    loads)
        tested StressTest
        run StressTest.exe loads "$palette"
        ;;
    walk)
        tested WalkTest
        run WalkTest.exe "$palette"
        ;;
    library)
        cat > Found.cs << 'PROGRAM'
static class Found
{
    static void Main()
    {
        try { System.Console.WriteLine(new Vyr.Document().IsComplete); }
        catch (System.DllNotFoundException failure) { System.Console.WriteLine(failure.Message); }
    }
}
PROGRAM
        compile Found Found.cs
        said=$(LD_LIBRARY_PATH=/none mono Found.exe)
        [[ $said == *"beside the assembly, in $work"*"LD_LIBRARY_PATH (/none)"* ]] || fail "without the library it says: $said"
        cp "$build/libvyr.so" libVyrModule.so
        [[ $(mono Found.exe) == True ]] || fail "it isn't found beside the assembly"
        # Beside the assembly, not the program, and before another one that the loader would find.
        mkdir assembly program other
        mv Vyr.dll libVyrModule.so assembly
        mv Found.exe program
        echo 'const char* VyrModule_Version(void) { return "0.0.9"; }' > other.c
        cc -shared -fPIC other.c -o other/libVyrModule.so
        [[ $(cd other && LD_LIBRARY_PATH=. MONO_PATH=../assembly mono ../program/Found.exe) == True ]] ||
            fail "another one than that beside the assembly is found"
        mv assembly/Vyr.dll program/Found.exe .
        cp other/libVyrModule.so .
        said=$(mono Found.exe)
        [[ $said =~ "has the version 0.0.9, and this assembly needs "[0-9]+\.[0-9]+\. ]] || fail "with another version it says: $said"
        echo 'int nothing;' > other.c
        cc -shared -fPIC other.c -o libVyrModule.so
        said=$(mono Found.exe)
        [[ $said == *"is too old"* ]] || fail "with an old library it says: $said"
        ;;
    examples)
        for name in Palette Spectra Quality; do compile "$name" "$source/examples/csharp/$name.cs"; done
        run Palette.exe "$palette" changed.vyrz > said
        run Palette.exe changed.vyrz again.vyr >> said
        run Spectra.exe spectra.vyr >> said
        run Quality.exe quality.vyr >> said
        # Two wrong values: both are reported, and the program ends with 1.
        sed '0,/Red>[0-9.]*/s//Red>1.5/; 0,/Green>[0-9.]*/s//Green>none/' "$palette" > bad.vyr
        if run Palette.exe bad.vyr never.vyr >> said; then fail "a bad document is taken"; fi
        diff said - << 'SAID'
CSS, Named: 148 colours
aliceblue: red 0.9412
antiquewhite: red 0.9804
aqua: red 0
CSS, Named: 148 colours
bleu pâle 🎨: red 0.25
antiquewhite: red 0.9804
aqua: red 0
nm;Warm red;Green
400;0.05;0.07
500;0.06;0.42
600;0.55;0.11
700;0.81;0.2
Sheet 1: 0.8367 passes
Sheet 2: 1.6432 warns
Sheet 3: 4.0669 fails
line 39: Palette "CSS" / ColorSet "Named" / Color "aliceblue" / ColorSpaceSRGB / Red
    Value greater than specified maximum: it must be at most 1
line 40: Palette "CSS" / ColorSet "Named" / Color "aliceblue" / ColorSpaceSRGB / Green
    Invalid value format for this type: a number is expected
SAID
        [[ $(head -c 2 changed.vyrz) == PK && ! -e never.vyr ]]

        compile guides "$source/docs/samples/guides.cs"
        diff <(run guides.exe "$palette") - << 'SAID'
aliceblue 0.94117647058824
antiquewhite 0.98039215686275
ColorDepth_16
ColorSpaceHSV, True
7, 2016-12-31T23:59:60Z
36, ColorSpaceSRGBType.Red: Value greater than specified maximum (36), still 0.9
29: Palette "Inks" / ColorSet "All" / Color "Warm red" / ColorSpaceSRGB / Green: Invalid value format for this type a number is expected
1
444
SAID
        ;;
esac
