#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Fails on an include that runs up: a folder may include itself and what lies below it.

Usage: check_layering.py ROOT
"""

import pathlib
import re
import sys

# Each layer with the layers it may include. The longest prefix of a path decides which layer a file lies in.
BELOW = {
    "lmx/error.h": {"lmx/export.h"},
    "lmx/error.cpp": {"lmx/error.h", "lmx/export.h", "lmx/reader"},  # positions of reports come from the open input
    "lmx/export.h": set(),
    "lmx/file_name.h": set(),
    "lmx/file_name.cpp": {"lmx/file_name.h", "lmx/values"},
    "lmx/large_memory.h": set(),
    "lmx/large_memory.cpp": {"lmx/large_memory.h"},
    "lmx/ns_map.h": set(),
    "lmx/fault_notes.h": set(),
    "lmx/values": {"lmx/error.h", "lmx/export.h"},
    "lmx/reader": {"lmx/values", "lmx/file_name.h", "lmx/error.h", "lmx/export.h", "lmx/ns_map.h",
                   "lmx/fault_notes.h"},
    "lmx/writer": {"lmx/values", "lmx/error.h", "lmx/export.h", "lmx/large_memory.h", "lmx/ns_map.h",
                   "lmx/fault_notes.h"},
    "lmx/binding": {"lmx/reader", "lmx/writer", "lmx/values", "lmx/file_name.h", "lmx/error.h", "lmx/export.h",
                    "lmx/ns_map.h", "lmx/fault_notes.h"},
    "lmx/lmx.h": {"lmx"},
    "schema": {"lmx"},
    # The container knows nothing of XML: of the runtime it takes text and names.
    "zip": {"lmx/values/unicode.h", "lmx/file_name.h", "lmx/export.h"},
    "document": {"schema", "zip", "lmx"},
    "flat": {"document", "schema", "lmx"},
    "python": {"flat/generated/vyr_flat.h", "document", "schema", "lmx"},
    # The chief header is the host's one include, so it alone names the document calls as well.
    "schema/Vyr.h": {"schema", "document", "zip/exception.h", "lmx"},
}
# These stand outside and may include everything public; the library's folders may not include them.
OUTSIDE = {"tools", "tests", "bench", "examples", "fuzz"}
# Headers for hosts, which would pull the whole library into one of its own files. The document calls implement what
# the chief header declares.
UMBRELLAS = {"lmx/lmx.h", "schema/Vyr.h"}
MAY_NAME_UMBRELLAS = UMBRELLAS | {"document/vyr.cpp"}

INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)


def layer_of(path):
    fits = [layer for layer in BELOW if path == layer or path.startswith(layer + "/")]
    return max(fits, key=len, default=None)


def is_allowed(layer, target):
    if layer_of(target) == layer:
        return True
    return any(target == below or target.startswith(below + "/") for below in BELOW[layer])


def check_file(root, path):
    layer = layer_of(path)
    if layer is None:
        return [f"{path}: lies in no known layer"]
    faults = []
    for target in INCLUDE.findall((root / path).read_text(encoding="utf-8")):
        if not (root / target).is_file():
            faults.append(f'{path}: "{target}" is not a path from the repository root')
        elif target.split("/")[0] in OUTSIDE or not is_allowed(layer, target):
            faults.append(f'{path}: {layer} may not include "{target}"')
        elif target in UMBRELLAS and path not in MAY_NAME_UMBRELLAS:
            faults.append(f'{path}: includes the umbrella "{target}"')
    return faults


def main():
    root = pathlib.Path(sys.argv[1])
    files = sorted(
        file.relative_to(root).as_posix()
        for folder in ("lmx", "schema", "zip", "document", "flat", "python")
        for pattern in ("*.h", "*.cpp")
        for file in (root / folder).rglob(pattern)
    )
    faults = [fault for path in files for fault in check_file(root, path)]
    print("\n".join(faults) if faults else f"{len(files)} files include downwards only")
    return 1 if faults or not files else 0


if __name__ == "__main__":
    sys.exit(main())
