#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Makes the Debian packages libvyr*, libvyr-dev, vyr-tools and, where there is what they need, libvyr-cil and python3-vyr
# in build/package.

set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh build tool package
scripts/setup.sh csharp || echo "package.sh: there is no C# to be had; libvyr-cil is left out"
scripts/setup.sh python || echo "package.sh: there are no headers of Python to be had; python3-vyr is left out"
cmake --preset package > /dev/null
cmake --build --preset package
rm -f build/package/*.deb
cpack --preset package
ls -l build/package/*.deb
