#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Makes schema/generated/ from schema/vyr.xsd and schema/binding.toml.

    python3 schema/generator/generate.py            writes what has changed
    python3 schema/generator/generate.py --check    only compares; fails on a difference
"""

import sys
from pathlib import Path

from model import read_model
from plan import Plan
from print_headers import print_all, print_enumerations, print_forward, print_header
from print_model import print_model
from print_sources import (print_class_list_header, print_class_list_source, print_source, print_tables_header,
                           print_tables_source)
from source import SchemaError

SCHEMA = Path(__file__).resolve().parent.parent
COMMAND = "python3 schema/generator/generate.py"


def print_files(plan):
    files = {
        "model.txt": print_model(plan),
        "forward.h": print_forward(plan),
        "enumerations.h": print_enumerations(plan),
        "classes.h": print_all(plan),
        "tables.h": print_tables_header(plan),
        "tables.cpp": print_tables_source(plan),
        "class_list.h": print_class_list_header(plan),
        "class_list.cpp": print_class_list_source(plan),
    }
    for topic in plan.topics:
        files[f"{topic.name}.h"] = print_header(plan, topic)
        files[f"{topic.name}.cpp"] = print_source(plan, topic)
    sources = sorted(name for name in files if name.endswith(".cpp"))
    files["sources.cmake"] = "\n".join([f"# Made by {COMMAND}.", "set(generated_sources",
                                        *(f"    generated/{name}" for name in sources), ")", ""])
    return files


def main(arguments):
    if arguments not in ([], ["--check"]):
        print(__doc__, file=sys.stderr)
        return 2
    try:
        files = print_files(Plan(read_model(SCHEMA / "vyr.xsd", SCHEMA / "binding.toml")))
    except SchemaError as error:
        print(error, file=sys.stderr)
        return 1
    folder = SCHEMA / "generated"
    folder.mkdir(exist_ok=True)
    there = {path.name: path.read_text(encoding="utf-8") for path in folder.iterdir()}
    different = sorted(name for name in there.keys() | files.keys() if there.get(name) != files.get(name))
    for name in different:
        if arguments:
            print(f"schema/generated/{name} differs from the schema; run: {COMMAND}", file=sys.stderr)
        elif name in files:
            (folder / name).write_text(files[name], encoding="utf-8")
        else:
            (folder / name).unlink()
    return 1 if arguments and different else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
