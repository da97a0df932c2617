#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Tests the Python package of a build. Skipped where a part of what it needs isn't there.
#
#   check_package.sh PART BUILD_FOLDER SOURCE_FOLDER PYTHON
#
# PART: module (builds it), tests (with the C library checking what is freed), types (mypy), wheel (installed and used).

set -euo pipefail
part=$1
build=$2
source=$3
python=$4
export PYTHONDONTWRITEBYTECODE=1 PYTHONPATH=$build/python LC_ALL=C.UTF-8

skip() { echo "check_package.sh: skipped, $*"; exit 77; }

# The first Python that has a module: the one that was found may not be the one that the system's packages are for.
python_with() {
    local candidate
    for candidate in "$python" /usr/bin/python3; do
        "$candidate" -c "import sys, $1; assert sys.version_info >= (3, 11)" 2> /dev/null && { echo "$candidate"; return; }
    done
    return 1
}

if [[ $part == module ]]; then
    grep -q '^vyr_python:' <(cmake --build "$build" --target help) || skip "there are no headers of Python 3.11"
    cmake --build "$build" --target vyr_python
    exit
fi
[[ -f $build/python/vyr/_vyr.abi3.so ]] || skip "the module was not built"
case $part in
    tests)
        runner=$(python_with pytest) || skip "there is no pytest"
        # Freed memory holds other bytes at once, and each block is checked when it is freed.
        LD_PRELOAD=libc_malloc_debug.so.0 MALLOC_CHECK_=3 MALLOC_PERTURB_=165 PYTHONMALLOC=malloc \
            "$runner" -m pytest -q -p no:cacheprovider "$source/tests/python"
        ;;
    types)
        runner=$(python_with mypy) || skip "there is no mypy"
        work=$(mktemp -d)
        trap 'rm -rf "$work"' EXIT
        cd "$work"
        MYPYPATH=$build/python "$runner" -m mypy --strict --cache-dir "$work/cache" "$build/python/vyr" \
            "$source/tests/python/use_of_types.py"
        ;;
    wheel)
        runner=$(python_with "setuptools, wheel, pip, venv") || skip "there is no setuptools, wheel or pip"
        work=$(mktemp -d)
        trap 'rm -rf "$work"' EXIT
        cp -r "$source/pyproject.toml" "$source/setup.py" "$source/python" "$work"
        mkdir "$work/docs" && cp "$source/docs/python.md" "$work/docs"
        cd "$work"
        unset PYTHONPATH
        VYR_BUILD=$build "$runner" -m pip wheel -q --no-build-isolation --no-deps --no-index -w wheels .
        "$runner" -m pip install -q --no-deps --no-index --target installed wheels/vyr-*-cp311-abi3-linux_*.whl
        cd installed
        [[ -n $(find vyr -name 'libvyr.so.*') && -f vyr/py.typed && -f vyr/generated/header.pyi ]] || { ls vyr; exit 1; }
        # The library of the wheel is taken, not that of the build.
        said=$(PYTHONPATH=$work/installed "$runner" -c "import vyr; print(len(list(vyr.colors(vyr.load('$source/examples/css-colors.vyr')))))
print({line.split()[-1] for line in open('/proc/self/maps') if 'libvyr.so' in line})")
        [[ $said == 148$'\n'"{'$work/installed/vyr/"* ]] || { echo "$said"; exit 1; }
        ;;
    *)
        echo "check_package.sh: there is no part $part" >&2
        exit 2
        ;;
esac
