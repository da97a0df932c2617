#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Makes what each fuzzer starts from, out of the documents of the tests and the examples.

    make_corpus.py FOLDER       one folder in it for each fuzzer
"""

import io
import random
import re
import sys
import zipfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
LARGEST = 25000  # fuzzers learn more of many small inputs than of one large one
DOCUMENTS = [path for pattern in ("tests/documents/*/*.vyr", "examples/*.vyr", "docs/samples/*.vyr")
             for path in sorted(ROOT.glob(pattern)) if path.stat().st_size <= LARGEST]
VALUES = re.compile(rb">([^<>\n]+)</|\"([^\"\n]+)\"")


def archives(text, number):
    """The same document as one entry or one of three, by each method."""
    method = (zipfile.ZIP_STORED, zipfile.ZIP_DEFLATED, zipfile.ZIP_BZIP2)[number % 3]
    target = io.BytesIO()
    with zipfile.ZipFile(target, "w", method) as archive:
        for entry in range(1 if number % 2 else 3):
            info = zipfile.ZipInfo(f"{'ä' if number % 4 == 3 else 'a'}{entry}.vyr", (2026, 1, 1, 0, 0, 0))
            info.compress_type = method
            info.comment = b"comment" * (number % 5 == 4)
            archive.writestr(info, text)
    yield target.getvalue()
    if number % 8 == 0:
        # A stream can't be sought in: sizes then stand behind the data.
        class Stream(io.RawIOBase):
            def __init__(self):
                self.written = b""

            def writable(self):
                return True

            def write(self, data):
                self.written += bytes(data)
                return len(data)
        stream = Stream()
        with zipfile.ZipFile(stream, "w", method) as archive:
            archive.writestr(zipfile.ZipInfo("a.vyr", (2026, 1, 1, 0, 0, 0)), text)
        yield stream.written


def values_of(text):
    return [one or other for one, other in VALUES.findall(text)]


def inputs(text, number):
    """(fuzzer, input) for one document. Behind the text come bytes that decide what is done with it."""
    decide = random.Random(number)
    yield "document", text
    yield from (("archive", archive) for archive in archives(text, number))
    yield "events", text + decide.randbytes(18)
    yield "dtd", b" ".join(values_of(text))[:1000] + decide.randbytes(400)
    # A backslash ends a text that bytes of decisions follow.
    escaped = text.replace(b"\\", b"\\\\")
    yield "calls", escaped + b"\\ " + decide.randbytes(600)


def main():
    target = Path(sys.argv[1])
    made = {}
    for number, path in enumerate(DOCUMENTS):
        for fuzzer, text in inputs(path.read_bytes(), number):
            made.setdefault(fuzzer, []).append(text)
    values = sorted({value for path in DOCUMENTS for value in values_of(path.read_bytes())})
    for number, value in enumerate(values):
        # The other text that it is compared with, its end, and a scale and the bits of a number.
        other = values[(number * 7) % len(values)].replace(b"\\", b"\\\\")
        made.setdefault("values", []).append(other + b"\\ " + value + random.Random(number).randbytes(9))
    for fuzzer, texts in made.items():
        folder = target / fuzzer
        folder.mkdir(parents=True, exist_ok=True)
        for number, text in enumerate(texts):
            (folder / f"{number:04}").write_bytes(text)
    print(", ".join(f"{fuzzer}: {len(texts)}" for fuzzer, texts in sorted(made.items())))


if __name__ == "__main__":
    main()
