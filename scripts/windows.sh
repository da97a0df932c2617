#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Builds for Windows on a Debian 12 machine, warnings as errors, in build/windows32 or build/windows64, and compares the
# names that the DLL exports; with `test` runs all tests under wine and counts them, with `package` makes a ZIP to
# publish; with `quick` builds the DLLs, the hosts in C and the command only, without optimisation, and compares the
# names. Of the two .ci/run takes one, which VYR_CI_WINDOWS says where it is set: `test` or `quick`. What that takes and
# no package brings is made once, below build/windows: static libraries, and for running programs of 32 bits a small
# Debian with wine.
#
#   scripts/windows.sh 32|64 [test|package|quick]

set -euo pipefail
cd "$(dirname "$0")/.."

bits=${1:-}
job=${2:-build}
if [[ ! $bits =~ ^(32|64)$ || ! $job =~ ^(build|test|package|quick)$ || $# -gt 2 ]]; then
    echo "windows.sh: say which width: windows.sh 32|64 [test|package|quick]" >&2
    exit 2
fi
[[ $bits == 32 ]] && triple=i686-w64-mingw32 || triple=x86_64-w64-mingw32
home=$PWD/build/windows
libraries=$home/$bits
preset=windows$bits
build=build/$preset
[[ $job != quick ]] || build+=-quick
as_root=()
[[ $(id -u) -eq 0 ]] || as_root=(sudo)

scripts/setup.sh build tool test windows
[[ $job != test ]] || scripts/setup.sh wine
mkdir -p "$home"

# What a step prints stays in its log, and is shown if that step ends the script.
log=
trap 'code=$?; [[ $code -eq 0 || -z $log ]] || tail -n 30 "$log" >&2' EXIT

# Whoever builds anew after a change of what is made below names it anew.
made() { [[ -e $1/.made-$2 ]]; }
finish() { touch "$1/.made-$2"; }

fetch_sources() {
    local folder=$home/sources
    made "$folder" 1 && return
    rm -rf "$folder"
    mkdir -p "$folder/apt/lists/partial"
    # The system's own sources of packages, asked for sources and not for programs.
    mkdir "$folder/apt/parts"
    { cat /etc/apt/sources.list /etc/apt/sources.list.d/*.list 2> /dev/null || true; } |
        sed -n 's/^deb /deb-src /p' > "$folder/apt/parts/all.list"
    { cat /etc/apt/sources.list.d/*.sources 2> /dev/null || true; } |
        sed 's/^Types:.*/Types: deb-src/' > "$folder/apt/parts/all.sources"
    local options=(-qq -o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$folder/apt/parts"
        -o "Dir::State::Lists=$folder/apt/lists" -o APT::Sandbox::User=)
    log=$home/sources.log
    if ! (cd "$folder" && apt-get "${options[@]}" update &&
        apt-get "${options[@]}" --download-only source libxml2 bzip2) > "$log" 2>&1; then
        echo "windows.sh: skipped, the sources of libxml2 and bzip2 can't be had here"
        exit 77
    fi
    (
        cd "$folder"
        dpkg-source --extract libxml2_*.dsc libxml2
        dpkg-source --extract bzip2_*.dsc bzip2
    ) >> "$log" 2>&1
    log=
    finish "$folder" 1
}

# cross_build SOURCE_FOLDER OPTION...: a CMake project, installed among the libraries.
cross_build() {
    local source=$1 build=$libraries/build
    shift
    rm -rf "$build"
    cmake -S "$source" -B "$build" -G Ninja --toolchain "$PWD/cmake/windows.cmake" -DVYR_WINDOWS_BITS="$bits" \
        -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DCMAKE_INSTALL_PREFIX="$libraries" "$@"
    cmake --build "$build" --target install
    rm -rf "$build"
}

build_libraries() {
    made "$libraries" 3 && return
    fetch_sources
    rm -rf "$libraries"
    mkdir -p "$libraries/include" "$libraries/lib" "$libraries/bin" "$libraries/share/cmake" "$libraries/licenses"
    log=$home/libraries$bits.log
    {
        # Of libxml2 the library uses regular expressions, and the command schemas.
        local off=() part
        for part in C14N CATALOG DEBUG DOCB FTP HTML HTTP ICONV ICU ISO8859X LEGACY LZMA MODULES OUTPUT PROGRAMS PYTHON \
            READER SAX1 SCHEMATRON TESTS VALID WRITER XINCLUDE XPATH XPTR ZLIB; do
            off+=("-DLIBXML2_WITH_$part=OFF")
        done
        cross_build "$home/sources/libxml2" "${off[@]}" -DLIBXML2_WITH_PATTERN=ON -DLIBXML2_WITH_PUSH=ON \
            -DLIBXML2_WITH_REGEXPS=ON -DLIBXML2_WITH_SCHEMAS=ON -DLIBXML2_WITH_THREADS=ON
        cross_build /usr/src/googletest -DBUILD_GMOCK=OFF -DINSTALL_GTEST=ON
        (
            cd "$home/sources/bzip2"
            for part in blocksort huffman crctable randtable compress decompress bzlib; do
                "$triple-gcc-posix" -O2 -c "$part.c" -o "$libraries/$part.o"
            done
            "$triple-ar" rcs "$libraries/lib/libbz2.a" "$libraries"/*.o
            rm "$libraries"/*.o
            cp bzlib.h "$libraries/include"
        )
        # The static zlib, so that nobody finds the DLL's first.
        cp "/usr/$triple/lib/libz.a" "$libraries/lib"
        cp "/usr/$triple/include"/{zlib,zconf}.h "$libraries/include"
        # Headers alone, which lie among this system's other ones.
        cp -r /usr/include/CLI /usr/include/nlohmann "$libraries/include"
        mkdir "$libraries/include/fuzzer"
        cp /usr/lib/llvm-14/lib/clang/*/include/fuzzer/FuzzedDataProvider.h "$libraries/include/fuzzer"
        cp -r /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$libraries/share/cmake"
        # What programs built here need beside them.
        cp "/usr/lib/gcc/$triple/12-posix"/lib{stdc++-6,gcc_s_*-1}.dll "/usr/$triple/lib/libwinpthread-1.dll" \
            "$libraries/bin"
        # And the terms under which all this may be passed on.
        for part in libxml2 bzip2; do cp "$home/sources/$part/debian/copyright" "$libraries/licenses/$part.txt"; done
        cp /usr/share/doc/libz-mingw-w64-dev/copyright "$libraries/licenses/zlib.txt"
        cp /usr/share/doc/gcc-mingw-w64-base/copyright "$libraries/licenses/gcc.txt"
        cp "/usr/share/doc/mingw-w64-${triple/_/-}-dev/copyright" "$libraries/licenses/mingw-w64.txt" 2> /dev/null ||
            cp /usr/share/doc/mingw-w64-common/copyright "$libraries/licenses/mingw-w64.txt"
    } > "$log" 2>&1
    log=
    finish "$libraries" 3
}

# wine of 32 bits is no package of a system of 64, so it gets a system of its own.
build_guest() {
    local guest=$home/debian-i386 mirror
    made "$guest" 1 && return
    echo "windows.sh: making a Debian of 32 bits with wine in it; this takes minutes and 1.3 GB"
    # shellcheck disable=SC2016  # apt's own names
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Codename: bookworm' | head -n 1)
    log=$home/guest.log
    "${as_root[@]}" rm -rf "$guest"
    if ! "${as_root[@]}" debootstrap --arch=i386 --variant=minbase --include=wine,wine32 bookworm "$guest" "$mirror" \
        > "$log" 2>&1; then
        echo "windows.sh: skipped, a Debian of 32 bits can't be had here"
        exit 77
    fi
    log=
    "${as_root[@]}" chroot "$guest" apt-get clean
    # Where this folder is seen in there, by whoever runs programs.
    "${as_root[@]}" mkdir -p "$guest$PWD"
    "${as_root[@]}" touch "$guest/.made-1"
}

set_up_wine() {
    [[ $bits == 64 ]] || build_guest
    mkdir -p "$home/wine$bits"
    # A wine that lacks a width does nothing and says success, so a program must be heard once.
    printf '#include <cstdio>\nint main() { std::printf("%%u bits\\n", unsigned(8 * sizeof(void*))); }\n' > "$home/probe.cpp"
    "$triple-g++-posix" -static "$home/probe.cpp" -o "$home/probe$bits.exe"
    [[ $(scripts/wine.sh "$bits" "$home/probe$bits.exe" | tr -d '\r') == "$bits bits" ]] ||
        { echo "windows.sh: wine runs no programs of $bits bits here" >&2; return 1; }
}

# What CTest says, with the cases of each GoogleTest program in place of the program.
count_results() {
    python3 - "$PWD/$build" << 'EOF'
import pathlib, sys
import xml.etree.ElementTree as xml
build = pathlib.Path(sys.argv[1])
passed = failed = skipped = 0
for test in xml.parse(build / "results.xml").getroot().iter("testcase"):
    scratch = build / "tests" / (test.get("name") + ".scratch")
    cases = scratch / "results.xml"
    if cases.exists():
        bad_before = failed
        for case in xml.parse(cases).getroot().iter("testcase"):
            is_bad = case.find("failure") is not None
            is_skipped = case.find("skipped") is not None or case.get("status") == "notrun"
            failed += is_bad
            skipped += is_skipped and not is_bad
            passed += not is_bad and not is_skipped
        failed += test.get("status") == "fail" and failed == bad_before
    elif scratch.exists():
        print(f"{test.get('name')}: it came to no results")
        failed += 1
    else:
        failed += test.get("status") == "fail"
        skipped += test.get("status") in ("notrun", "disabled")
        passed += test.get("status") == "run"
        if test.get("status") == "notrun":
            print(f"{test.get('name')}: {test.findtext('system-out', '').strip()}")
print(f"{skipped} skipped")
print(f"{passed} passed, {failed} failed")
sys.exit(failed > 0)
EOF
}

# run_tests COMMAND...: a command that ends in ctest with its options.
run_tests() {
    rm -f "$build"/results.xml "$build"/tests/*.scratch/results.xml
    local code=0 start=$SECONDS
    "$@" --test-dir "$build" --output-on-failure --no-tests=error --output-junit "$PWD/$build/results.xml" || code=$?
    (cd "$build" && stat --printf '%n: %s bytes\n' bin/VyrModule.dll self-contained/VyrModule.dll)
    echo "built in $start seconds, tested in $((SECONDS - start)) seconds"
    count_results || code=1
    return "$code"
}

make_package() {
    local version stage component part
    version=$(sed -n 's/^project(vyr VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
    stage=$home/package$bits/vyr-$version-windows$bits
    rm -rf "$home/package$bits"
    for component in runtime development tool documentation; do
        cmake --install "$build" --prefix "$stage" --component "$component" --strip > /dev/null
    done
    # The compiler's DLLs come with all that a debugger could want.
    "$triple-strip" --strip-unneeded "$stage"/bin/lib*.dll
    mkdir -p "$stage/licenses"
    cp LICENSE "$stage/licenses/vyr.txt"
    cp "$libraries"/licenses/*.txt "$stage/licenses"
    for part in libcli11-dev nlohmann-json3-dev; do
        cp "/usr/share/doc/$part/copyright" "$stage/licenses/${part%-dev}.txt"
    done
    cat > "$stage/README.md" << EOF
# Vyr $version for Windows, $bits bits

[What lies where, and how it is used](share/doc/vyr/docs/windows.md) from C++, C and C#;
[the command](share/doc/vyr/docs/command.md), \`bin/vyr.exe\`; [all guides](share/doc/vyr/docs/README.md).
EOF
    rm -f "$build"/*.zip
    local target=$PWD/$build/vyr-$version-windows$bits.zip
    (cd "$home/package$bits" && cmake -E tar cf "$target" --format=zip -- *)
    ls -l "$target" "$stage/bin" "$stage/bin/self-contained"
}

build_libraries
options=(-DVYR_BUILD_TESTS=ON -DVYR_WARNINGS_AS_ERRORS=ON)
targets=(all)
if [[ $job == quick ]]; then
    options+=(-DCMAKE_CXX_FLAGS_RELEASE=-O0)
    targets=(vyr vyr_self_contained vyr_tool tests_flat windows_host)
fi
cmake --preset "$preset" -B "$build" "${options[@]}"
cmake --build "$build" --target "${targets[@]}"
case $job in
    # Without wine: what can be told by looking at the files.
    build | quick) run_tests ctest --label-regex once ;;
    package) make_package ;;
    test)
        set_up_wine
        run_tests scripts/wine.sh "$bits" --session ctest --parallel "$(nproc)"
        ;;
esac
