#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Checks all documents below a folder, several at a time: folder.py FOLDER [WORKERS]

Documents are independent, and the interpreter's lock is released while one loads, so that threads do. Prints each fault
with its place, and ends with the count; the exit code is 1 if there are faults.
"""

import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import vyr


def check(path):
    """The faults of a document and the number of its colours."""
    try:
        document, report = vyr.load_partly(path)
    except OSError as error:
        return [f"{path}: {error.strerror}"], 0
    return str(report).splitlines(), sum(1 for _ in vyr.colors(document))


def main(folder, workers="4"):
    files = sorted(path for path in Path(folder).rglob("*") if path.suffix in (".vyr", ".vyrz"))
    bad = colors = 0
    with ThreadPoolExecutor(int(workers)) as pool:
        for faults, count in pool.map(check, files):
            bad += bool(faults)
            colors += count
            for fault in faults:
                print(fault)
    print(f"{len(files)} documents, {bad} with faults, {colors} colours")
    return 1 if bad else 0


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
