#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Makes the Debian packages of a build, looks at what each asks for and holds, and runs the command and Python's module,
# where the build has it, from their files; lintian has nothing against them, where it is installed. What builds and
# editors leave in the sources is in none. Skipped where the tools of Debian's packages are missing.
#
#   check_packages.sh CPACK BUILD_FOLDER SOURCE_FOLDER PYTHON

set -euo pipefail
for tool in dpkg-deb dpkg-shlibdeps file; do
    command -v "$tool" > /dev/null || { echo "check_packages.sh: skipped, there is no $tool"; exit 77; }
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

fail() { echo "check_packages.sh: $*"; exit 1; }

components=$(sed -n 's/^set(CPACK_COMPONENTS_ALL "\(.*\)")$/\1/p' "$2/CPackConfig.cmake")
python=
if [[ -f $2/python/vyr/_vyr.abi3.so ]]; then
    python="python3-vyr LIBRARY,python3,libc6,libstdc++6 lib/python3/dist-packages/vyr/_vyr.abi3.so"
    [[ $components == *python_module* ]] || components+=";python;python_module;python_papers"
fi
"$1" -G DEB --config "$2/CPackConfig.cmake" -B "$work" -D CPACK_PACKAGING_INSTALL_PREFIX=/usr \
    -D CPACK_COMPONENTS_ALL="$components" > log 2>&1 || { cat log; fail "cpack fails"; }
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
    # The loader's cache is the trigger's business.
    ! dpkg-deb --ctrl-tarfile "$deb" | tar --extract --to-stdout --wildcards './p*' 2> /dev/null | grep -E '^[^#]*ldconfig' ||
        fail "a script of $package calls ldconfig"
done << TABLE
$library libc6,libstdc++6,libxml2,zlib1g,libbz2 lib*/libVyrModule.so
libvyr-dev $library,libxml2-dev,zlib1g-dev,libbz2-dev,liblzma-dev share/vyr/vyr.xsd
vyr-tools $library,libc6,libstdc++6 share/man/man1/vyr.1.gz
${assembly/LIBRARY/$library}
${python/LIBRARY/$library}
TABLE
# No file is in two packages.
[[ $(find root -type f | wc -l) == $(find root_* -type f | wc -l) ]] || fail "two packages hold the same file"
root/usr/bin/vyr check "$3/examples/css-colors.vyr" || fail "the packaged command does not run"
if [[ -n $python ]]; then
    said=$(PYTHONDONTWRITEBYTECODE=1 PYTHONPATH=root/usr/lib/python3/dist-packages \
        LD_LIBRARY_PATH=$(dirname "$(find root -name 'libvyr.so.*' -print -quit)") "$4" -c "import vyr, importlib.metadata
print(importlib.metadata.version('vyr'), vyr.__file__, len(list(vyr.colors(vyr.load('$3/examples/css-colors.vyr')))))")
    [[ $said == "$version "*/root/usr/*" 148" ]] || fail "the packaged module of Python does not run: $said"
fi
gzip --decompress --stdout root/usr/share/man/man1/vyr.1.gz | cmp - "$3/tools/vyr.1" || fail "the manual page is another one"
if command -v lintian > /dev/null; then
    # The folders of this build need not be the system's.
    lintian --fail-on error,warning --suppress-tags pkg-config-unavailable-for-cross-compilation --no-cfg ./*.deb \
        > lintian.log 2>&1 || { cat lintian.log; fail "lintian finds faults"; }
fi

# Guides and examples as they are known to git, but for what makes the site and the samples.
if [[ -e $3/.git ]]; then
    guides=$(dirname "$(find root -path '*/docs/format.md')")
    diff <(cd "$guides/.." && find docs examples -type f | sort) \
        <(git -C "$3" ls-files docs examples | grep -vE '^docs/(samples/CMakeLists.txt|[^/]*[.](in|py|cmake))$' | sort) ||
        fail "< is in no commit, > is missing in cmake/install.cmake"
fi
mkdir copy
tar --directory "$3" --exclude=./build --exclude=./.git --create . | tar --extract --directory copy
for left in examples/Left.exe examples/build/left.cpp examples/csharp/Left.exe docs/left.md docs/samples/left.vyr \
    csharp/left.dll csharp/obj/Left.cs; do
    mkdir -p "copy/${left%/*}"
    touch "copy/$left"
done
cmake=$(dirname "$1")/cmake
"$cmake" -G Ninja -S copy -B copy_build -DCMAKE_BUILD_TYPE=Release -DVYR_BUILD_TESTS=OFF -DVYR_BUILD_TOOLS=OFF -DVYR_MCS=OFF > log
for component in documentation csharp; do
    "$cmake" --install copy_build --prefix installed --component "$component" > log
done
[[ -f installed/share/vyr/csharp/generated/Palettes.cs ]] || fail "the sources for C# are missing"
! find installed -iname '*left*' | grep . || fail "leftovers are installed"
