#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Counts the colours and the mean lightness of many documents with dask: many.py FOLDER

The same function serves any engine that maps a function over names of files.
"""

import sys
from pathlib import Path

import vyr


def measure(path):
    """Of one document: its colours, and the sum and number of their values of L."""
    document = vyr.load(path)
    lightness = [color.color_spaces.lab.l for color in vyr.colors(document) if color.color_spaces.lab is not None]
    return sum(1 for _ in vyr.colors(document)), sum(lightness), len(lightness)


def main(folder):
    from dask import bag

    files = sorted(str(path) for path in Path(folder).glob("*.vyr"))
    measured = bag.from_sequence(files, npartitions=8).map(measure).compute(scheduler="threads")
    colors, total, count = (sum(column) for column in zip(*measured))
    print(f"{len(files)} documents, {colors} colours, mean L {total / count:.2f}" if count else f"{colors} colours")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(*sys.argv[1:])
