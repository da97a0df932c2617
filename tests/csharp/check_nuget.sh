#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Makes the NuGet package of a build, looks into it as the archive that it is, and runs a program from its files alone.
# Skipped where there's no compiler or runtime for C#.
#
#   check_nuget.sh BUILD_FOLDER SOURCE_FOLDER

set -euo pipefail
build=$1
source=$2
for tool in mcs mono unzip xmllint; do
    command -v "$tool" > /dev/null || { echo "check_nuget.sh: skipped, there is no $tool"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

fail() { echo "check_nuget.sh: $*"; exit 1; }

version=$("$build/bin/vyr" --version | grep -o '[0-9.]*$')
package=$("$source/scripts/nuget.sh" "$build" "$work")
[[ $package == "$work/Vyr.$version.nupkg" ]] || fail "the package is called $package"
unzip -qt "$package" || fail "it is no sound archive"
unzip -q "$package" -d package
# Of Windows it has what was made for it before, and then the licences of what is inside.
for width in x64 x86; do
    there=package/runtimes/win-$width/native
    licenses=package/licenses/win-$width
    [[ -e $there/_._ || (-e $there/VyrModule.dll && -s $licenses/libxml2.txt && -s $licenses/gcc.txt) ]] ||
        fail "the library for win-$width is there without what it needs"
done
diff <(cd package && find . -type f ! -path './runtimes/win-*' ! -path './licenses/*' | LC_ALL=C sort) - << LIST || fail "> is missing, < is not in the list"
./README.md
./Vyr.nuspec
./[Content_Types].xml
./_rels/.rels
./lib/netstandard2.0/Vyr.dll
./lib/netstandard2.0/Vyr.xml
./runtimes/linux-x64/native/libVyrModule.so
LIST
xmllint --noout package/Vyr.nuspec 'package/[Content_Types].xml' package/_rels/.rels package/lib/netstandard2.0/Vyr.xml
# Each kind of file has a type, and all that is said of the version is one word.
for file in $(cd package && find . -type f ! -name '*Types*'); do
    grep -q "Extension=\"${file##*.}\"" 'package/[Content_Types].xml' || fail "$file has no content type"
done
grep -q "<version>$version</version>" package/Vyr.nuspec || fail "the package has another version"
grep -q "<Version>$version</Version>" "$source/csharp/Vyr.csproj" || fail "Vyr.csproj has another version"
grep -q "AssemblyVersion(\"$version.0\")" "$source/csharp/AssemblyInfo.cs" || fail "AssemblyInfo.cs has another version"

mkdir program
cp package/lib/netstandard2.0/Vyr.dll package/runtimes/linux-x64/native/* program/
mcs -r:program/Vyr.dll -out:program/Palette.exe "$source/examples/csharp/Palette.cs"
[[ $(mono program/Palette.exe "$source/examples/css-colors.vyr" new.vyr | head -n 1) == "CSS, Named: 148 colours" ]] ||
    fail "the program does not run"
