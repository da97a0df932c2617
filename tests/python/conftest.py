# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""What the tests of the Python package share: where documents lie, and what the schema says."""

import sys
from pathlib import Path

import pytest

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path[:0] = [str(ROOT / "schema" / "generator"), str(ROOT / "tests" / "csharp")]


@pytest.fixture
def documents():
    return ROOT / "tests" / "documents"


@pytest.fixture
def palette():
    return ROOT / "examples" / "css-colors.vyr"


@pytest.fixture
def inks():
    return ROOT / "docs" / "samples" / "inks.vyr"
