#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Installs into a scratch prefix, moves it, looks at what is there, and builds and runs the README's first program
# against it by the README's own words: through find_package and through pkg-config, with the shared library and with
# the static one. Every installed header is compiled as well.
#
#   check_install.sh CMAKE BUILD_FOLDER SOURCE_FOLDER COMPILER LIBDIR SONAME

set -euo pipefail
cmake=$1
build=$2
source=$3
compiler=$4
libdir=$5
soname=$6
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
palette=$source/examples/css-colors.vyr
# Objects of this build may need what it links them with.
CXXFLAGS=$(sed -n 's/^CMAKE_CXX_FLAGS:.*=//p' "$build/CMakeCache.txt")
export CXXFLAGS

fail() { echo "check_install.sh: $*"; exit 1; }

# What each component holds, but for headers and guides. An installed tree has to work wherever it is put.
library=$libdir/$soname
version=$("$build/bin/vyr" --version | grep -o '[0-9.]*$')
grep -q "\"version-semver\": \"$version\"" "$source/vcpkg.json" || fail "vcpkg.json gives another version"
for component in runtime tool development documentation csharp; do
    "$cmake" --install "$build" --prefix "$work/$component" --component "$component" > install.log
done
listed() { (cd "$1" && find . -type f -o -type l) | cut -c 3- | grep -vE '^include/|^share/doc/' | sort; }
# The assembly with its documentation where it can be compiled, and always its sources.
mapfile -t managed < <(cd "$source/csharp" && find . -name '*.cs' | cut -c 3-)
[[ ! -f $build/csharp/Vyr.dll ]] || managed+=(Vyr.dll Vyr.xml)
diff <(listed csharp) <(printf 'share/vyr/csharp/%s\n' "${managed[@]}" README.md Vyr.csproj | sort) ||
    fail "> is missing, < is not in the list"
config=$(sed -n 's/^CMAKE_BUILD_TYPE:.*=//p' "$build/CMakeCache.txt")
diff <(listed runtime; listed tool; listed development) - << LIST || fail "> is missing, < is not in the list"
$libdir/libVyrModule.so
$library
$libdir/libvyr.so.$version
bin/vyr
share/bash-completion/completions/vyr
share/fish/vendor_completions.d/vyr.fish
share/man/man1/vyr.1.gz
share/zsh/site-functions/_vyr
$libdir/cmake/vyr/vyr-config-version.cmake
$libdir/cmake/vyr/vyr-config.cmake
$libdir/cmake/vyr/vyr-targets-${config,,}.cmake
$libdir/cmake/vyr/vyr-targets.cmake
$libdir/libvyr.so
$libdir/pkgconfig/vyr.pc
share/vyr/catalog.xml
share/vyr/exports.txt
share/vyr/vyr.schema.json
share/vyr/vyr.xsd
LIST
[[ -f documentation/share/doc/vyr/docs/format.md ]] || fail "the guides are missing"
"$cmake" --install "$build" --prefix "$work/first" > install.log
mv first shared
[[ $(find shared -type f | wc -l) == $(find runtime tool development documentation csharp -type f | wc -l) ]] ||
    fail "a file belongs to no component"
# Validators find the schema by the namespace alone; one that doesn't look into it would let the last one pass.
valid() { XML_CATALOG_FILES=shared/share/vyr/catalog.xml xmllint --nonet --noout --schema http://vyrgraph.com/v2 "$1" 2> log; }
valid "$palette" || { cat log; fail "the catalog does not lead to the schema"; }
! valid "$source/docs/samples/broken.vyr" && grep --quiet "'Shade' is not allowed" log || fail "the schema refuses nothing"
"shared/bin/vyr" check "$palette" || fail "the installed command does not run"

# The header for C is C, and links with nothing but the library.
printf '#include <vyr_flat.h>\nint main(void) { return VyrModule_FindItem("Tag", "Name") == 0 || VyrModule_Version()[0] != *"%s"; }\n' "$version" > flat.c
cc -std=c11 -Wall -Wextra -Wpedantic -Werror -I shared/include/vyr flat.c -o flat "shared/$libdir/libvyr.so" &&
    LD_LIBRARY_PATH=shared/$libdir ./flat || fail "vyr_flat.h is no good from C"

# What C# asks for is found by the system's loader, which keeps the names that stand inside, and finds the library.
ldconfig=$(PATH=$PATH:/usr/sbin:/sbin command -v ldconfig || true)
if [[ -n $ldconfig ]]; then
    echo "$work/shared/$libdir" > loader.conf
    "$ldconfig" -X -f loader.conf -C loader.cache
    "$ldconfig" -p -C loader.cache | grep 'libVyrModule.so .* => ' > /dev/null || fail "libVyrModule.so is not in the loader's cache"
fi
env -u LD_LIBRARY_PATH ldd "shared/$libdir/libVyrModule.so" | grep "$soname => .*/shared/" > /dev/null || fail "libVyrModule.so has no library"

# The library asks for what it is made from and no more.
needed() { objdump -p "$1" | awk '$1 == "NEEDED" {print $2}' | sort | paste -s -d ' '; }
[[ $(objdump -p "shared/$library" | awk '$1 == "SONAME" {print $2}') == "$soname" ]] || fail "it is not called $soname"
for name in $(needed "shared/$library"); do
    [[ $name =~ ^(lib(bz2|c|gcc_s|m|stdc\+\+|xml2|z)|ld-linux[-a-z0-9_]*)\.so ]] || fail "the library needs $name"
done
! ldd "shared/$library" "shared/bin/vyr" | grep 'not found' || fail "a library is missing"

# Each header stands on its own and needs nothing that is not installed, and what is exported stands in one of them.
(cd shared/include/vyr && find . -name '*.h') |
    xargs -P "$(nproc)" -I {} "$compiler" -std=c++20 -fsyntax-only -Wall -Wextra -Werror -I shared/include/vyr \
        -include {} -x c++ /dev/null || fail "a header does not compile on its own"
nm --dynamic --defined-only --demangle "shared/$library" | grep -oE '(lmx|com_vyrgraph_v2)::[A-Za-z_0-9]+|\bCZip\w+' |
    sed 's/.*:://' | sort -u > exported
grep -rhoE '\w+' shared/include/vyr | sort -u | comm -23 exported - > unknown
[[ -s exported && ! -s unknown ]] || fail "exported, but in no public header: $(paste -s -d ' ' unknown)"

# The README shows the program of the examples, and how it is built.
shown() { awk -v "start=^\`\`\`$1\$" '$0 ~ start {inside = 1; next} /^```$/ {inside = 0} inside' "$source/README.md"; }
sed '1,/^$/d' "$source/examples/first.cpp" | diff <(shown cpp) - || fail "README.md shows another program"
mkdir consumer
cp "$source/examples/first.cpp" consumer/
shown cmake > consumer/CMakeLists.txt

consume() {
    local kind=$1
    local expected='CSS: 1 colour set(s)'
    shift
    "$cmake" -G Ninja -S consumer -B "by_package_$kind" -DCMAKE_PREFIX_PATH="$work/$kind" \
        -DCMAKE_CXX_COMPILER="$compiler" > log && "$cmake" --build "by_package_$kind" >> log ||
        { cat log; fail "does not build with find_package, $kind"; }
    [[ $("by_package_$kind/first" "$palette") == "$expected" ]] || fail "built with find_package, $kind, it says otherwise"

    export PKG_CONFIG_PATH=$work/$kind/$libdir/pkgconfig
    # shellcheck disable=SC2046,SC2086  # the flags are words
    "$compiler" $CXXFLAGS -std=c++20 consumer/first.cpp $(pkg-config "$@" --cflags --libs vyr) -o "by_pkgconfig_$kind"
    [[ $(LD_LIBRARY_PATH=$work/$kind/$libdir "./by_pkgconfig_$kind" "$palette") == "$expected" ]] ||
        fail "built with pkg-config, $kind, it says otherwise"
}
consume shared
needed by_package_shared/first | grep "$soname" > /dev/null || fail "the program does not ask for $soname"

# The static library would be made of the same objects: they are taken from this build, not compiled again.
"$cmake" -G Ninja -S "$source" -B static_build -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_BUILD_TYPE=Release \
    -DBUILD_SHARED_LIBS=OFF -DVYR_BUILD_TESTS=OFF -DVYR_BUILD_TOOLS=OFF -DVYR_BUILD_FLAT=OFF > log
(cd "$build" && ninja -t inputs libvyr.so | grep '^CMakeFiles/vyr\.dir/.*\.o$' |
    xargs ar -qc "$work/static_build/libvyr.a")
"$cmake" --install static_build --prefix "$work/static" > install.log
! find static -name '*.so*' | grep . || fail "a static installation holds a shared library"
consume static --static
! needed by_package_static/first | grep libvyr || fail "the program with the static library asks for the shared one"
