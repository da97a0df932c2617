#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Installs what is missing to work on Vyr on a Debian 12 machine; does nothing, quickly, when nothing is missing. Without
# a group: build.
#
#   scripts/setup.sh [build] [tool] [test] [csharp] [python] [science] [windows] [wine] [bench] [docs] [clang] [tidy]
#                    [package] [lint]

set -euo pipefail

declare -A packages=(
    [build]="g++ cmake ninja-build pkg-config libxml2-dev zlib1g-dev libbz2-dev liblzma-dev"
    [test]="git libgtest-dev unzip libarchive-tools libxml2-utils python3 clang-format-14 locales dpkg-dev file
        python3-jsonschema"
    [tool]="libcli11-dev nlohmann-json3-dev"
    [csharp]="mono-mcs mono-runtime"
    [python]="python3-dev python3-numpy python3-pytest python3-pip python3-venv python3-setuptools python3-wheel mypy"
    [science]="python3-pandas python3-matplotlib python3-dask"
    [windows]="g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix libz-mingw-w64-dev dpkg-dev googletest
        libclang-rt-14-dev"
    [wine]="debootstrap wine wine64"
    [package]="dpkg-dev file"
    [bench]="libbenchmark-dev libpugixml-dev"
    [docs]="doxygen python3"
    [clang]="clang-14 clang libclang-rt-14-dev"
    [tidy]="clang-tidy-14"
    [lint]="lintian"
)

wanted=${packages[build]}
for group in "$@"; do
    if [[ -z ${packages[$group]:-} ]]; then
        echo "setup.sh: unknown group '$group'; there are: ${!packages[*]}" >&2
        exit 2
    fi
    wanted+=" ${packages[$group]}"
done

if ! command -v dpkg-query apt-get > /dev/null; then
    echo "setup.sh: this is no Debian system; install by its own means what these packages hold: $wanted" >&2
    exit 1
fi

missing=()
for package in $wanted; do
    # A package may be known and yet not installed, so its state counts, not dpkg-query's exit code.
    state=$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2> /dev/null || true)
    [[ $state == installed* ]] || missing+=("$package")
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

as_root=()
if [[ $(id -u) -ne 0 ]]; then
    if ! command -v sudo > /dev/null; then
        echo "setup.sh: neither root nor sudo; ask for these packages: ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
echo "setup.sh: installing ${missing[*]}"
# Each apt-get is given the variable itself, since sudo drops the caller's environment.
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq update
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq install --yes --no-install-recommends \
    -o Dpkg::Use-Pty=0 "${missing[@]}"
