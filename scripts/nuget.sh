#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Makes the NuGet package Vyr.<version>.nupkg of a build that has Vyr.dll: the assembly with its documentation, the
# native library of this system, and those of this version's packages for Windows (scripts/windows.sh), with their
# licences, if they were made of these sources. NuGet itself isn't needed.
#
#   scripts/nuget.sh [BUILD_FOLDER [TARGET_FOLDER]]      (without arguments: build/release, and into that)

set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${1:-$root/build/release}" && pwd)
target=$(cd "${2:-$build}" && pwd)

[[ -f $build/csharp/Vyr.dll ]] || { echo "nuget.sh: there is no $build/csharp/Vyr.dll; see scripts/setup.sh csharp" >&2; exit 1; }
version=$(sed -n 's/^ *<version>\(.*\)<\/version>$/\1/p' "$root/csharp/Vyr.nuspec")
windows=$root/build/windows
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

mkdir -p lib/netstandard2.0 licenses _rels
cp "$build/csharp/Vyr.dll" "$build/csharp/Vyr.xml" lib/netstandard2.0/
cp "$root/csharp/Vyr.nuspec" "$root/csharp/README.md" .

is_current() {
    [[ -e $1 ]] || return 1
    [[ -z $(find "$root"/{lmx,schema,zip,document,flat} -name '*.[ch]*' -newer "$1" -print -quit) ]] && return
    echo "nuget.sh: $1 is older than the sources, and left out" >&2
    return 1
}

# system of NuGet, the name by which the assembly asks, file of the build
while read -r system name file; do
    folder=runtimes/$system/native
    mkdir -p "$folder"
    # The library itself, under that name: packages hold no links.
    if [[ $system == linux-* ]]; then
        cp --dereference "$file" "$folder/$name"
    elif is_current "$file"; then
        cp "$file" "$folder"
        # Other libraries are inside this one. Not beside it: what lies there goes into each program's folder.
        cp -r "${file%/bin/*}/licenses" "licenses/$system"
    else
        touch "$folder/_._"
    fi
done << TABLE
linux-x64 libVyrModule.so $build/libvyr.so
win-x64 VyrModule.dll $windows/package64/vyr-$version-windows64/bin/self-contained/VyrModule.dll
win-x86 VyrModule.dll $windows/package32/vyr-$version-windows32/bin/self-contained/VyrModule.dll
TABLE

cat > '[Content_Types].xml' << 'XML'
<?xml version="1.0" encoding="utf-8"?>
<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">
  <Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml" />
  <Default Extension="nuspec" ContentType="application/octet" />
  <Default Extension="dll" ContentType="application/octet" />
  <Default Extension="so" ContentType="application/octet" />
  <Default Extension="xml" ContentType="application/octet" />
  <Default Extension="md" ContentType="application/octet" />
  <Default Extension="txt" ContentType="application/octet" />
  <Default Extension="_" ContentType="application/octet" />
</Types>
XML
cat > _rels/.rels << 'XML'
<?xml version="1.0" encoding="utf-8"?>
<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">
  <Relationship Type="http://schemas.microsoft.com/packaging/2010/07/manifest" Target="/Vyr.nuspec" Id="manifest" />
</Relationships>
XML

package=$target/Vyr.$version.nupkg
rm -f "$package"
cmake -E tar cf "$package" --format=zip -- '[Content_Types].xml' _rels Vyr.nuspec README.md lib licenses runtimes
echo "$package"
