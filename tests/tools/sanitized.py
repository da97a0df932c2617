# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Whether a program was built to watch its own memory: such a one takes far more than it needs, and can't be
bounded."""

import pathlib


def is_sanitized(program):
    return b"__asan_init" in pathlib.Path(program).read_bytes()
