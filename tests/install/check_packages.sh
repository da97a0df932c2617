#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Makes the Debian packages of a build, looks at what each asks for and holds, and runs the command from their files.
# Skipped where the tools of Debian's packages are missing.
#
#   check_packages.sh CPACK BUILD_FOLDER SOURCE_FOLDER

set -euo pipefail
for tool in dpkg-deb dpkg-shlibdeps file; do
    command -v "$tool" > /dev/null || { echo "check_packages.sh: skipped, there is no $tool"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

fail() { echo "check_packages.sh: $*"; exit 1; }

"$1" -G DEB --config "$2/CPackConfig.cmake" -B "$work" -D CPACK_PACKAGING_INSTALL_PREFIX=/usr > log 2>&1 ||
    { cat log; fail "cpack fails"; }
assembly=
[[ ! -f $2/csharp/Vyr.dll ]] || assembly="libvyr-cil LIBRARY share/vyr/csharp/Vyr.dll"
version=$("$2/bin/vyr" --version | grep -o '[0-9.]*$')
library=libvyr${version%.*}
# package, what it needs, a file of it
while read -r package needs file; do
    [[ -n $package ]] || continue
    deb=$(find . -maxdepth 1 -name "${package}_${version}_*.deb")
    [[ -n $deb ]] || fail "there is no $package"
    depends=$(dpkg-deb -f "$deb" Depends)
    for need in ${needs//,/ }; do
        [[ ", $depends" == *", $need"* ]] || fail "$package does not ask for $need: $depends"
    done
    dpkg-deb -x "$deb" "root_$package"
    for path in "$file" "share/doc/$package/"{copyright,changelog.gz}; do
        compgen -G "root_$package/usr/$path" > /dev/null || fail "$package lacks $path"
    done
    cp -a "root_$package/." root
done << TABLE
$library libc6,libstdc++6,libxml2,zlib1g,libbz2 lib*/libVyrModule.so
libvyr-dev $library,libxml2-dev,zlib1g-dev,libbz2-dev,liblzma-dev share/vyr/vyr.xsd
vyr-tools $library,libc6,libstdc++6 bin/vyr
${assembly/LIBRARY/$library}
TABLE
# No file is in two packages.
[[ $(find root -type f | wc -l) == $(find root_* -type f | wc -l) ]] || fail "two packages hold the same file"
root/usr/bin/vyr check "$3/examples/css-colors.vyr" || fail "the packaged command does not run"
