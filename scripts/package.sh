#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Makes the Debian packages libvyr*, libvyr-dev and vyr-tools in build/package.

set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh build tool package
cmake --preset package > /dev/null
cmake --build --preset package
rm -f build/package/*.deb
cpack --preset package
ls -l build/package/*.deb
