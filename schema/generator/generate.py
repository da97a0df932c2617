#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Makes schema/generated/, flat/generated/, csharp/generated/ and python/vyr/generated/ from schema/vyr.xsd,
schema/binding.toml and flat/members.toml.

    python3 schema/generator/generate.py            writes what has changed
    python3 schema/generator/generate.py --check    only compares; fails on a difference
"""

import sys
from pathlib import Path

from model import read_model
from plan import Plan
from print_csharp import print_csharp_files
from print_flat import print_c_header, print_exports, print_flat_source
from print_headers import print_all, print_enumerations, print_forward, print_header
from print_json_schema import print_json_schema
from print_members import Members
from print_model import print_model
from print_python import print_python_files
from print_sources import (print_class_list_header, print_class_list_source, print_source, print_tables_header,
                           print_tables_source)
from source import SchemaError

ROOT = Path(__file__).resolve().parent.parent.parent
COMMAND = "python3 schema/generator/generate.py"


def print_class_files(plan):
    files = {
        "model.txt": print_model(plan),
        "vyr.schema.json": print_json_schema(plan),
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
    return files


def print_flat_files(plan, members):
    files = {f"{topic.name}.cpp": print_flat_source(plan, topic) for topic in plan.topics}
    files["members.cpp"] = members.print_source()
    files["exports.txt"] = print_exports(plan, members)
    files["vyr_flat.h"] = print_c_header(plan, members)
    return files


def print_files(plan, members):
    """All files by their path in the repository."""
    result = {}
    for folder, files in (("schema", print_class_files(plan)), ("flat", print_flat_files(plan, members))):
        sources = sorted(name for name in files if name.endswith(".cpp"))
        files["sources.cmake"] = "\n".join([f"# Made by {COMMAND}.", "set(generated_sources",
                                            *(f"    generated/{name}" for name in sources), ")", ""])
        result |= {f"{folder}/generated/{name}": text for name, text in files.items()}
    for folder, files in (("csharp", print_csharp_files(plan)), ("python/vyr", print_python_files(plan))):
        result |= {f"{folder}/generated/{name}": text for name, text in files.items()}
    return result


def main(arguments):
    if arguments not in ([], ["--check"]):
        print(__doc__, file=sys.stderr)
        return 2
    try:
        plan = Plan(read_model(ROOT / "schema" / "vyr.xsd", ROOT / "schema" / "binding.toml"))
        files = print_files(plan, Members(ROOT / "flat" / "members.toml"))
    except SchemaError as error:
        print(error, file=sys.stderr)
        return 1
    there = {path.relative_to(ROOT).as_posix(): path.read_text(encoding="utf-8")
             for folder in ("schema", "flat", "csharp", "python/vyr")
             for path in (ROOT / folder / "generated").glob("*") if path.is_file()}
    different = sorted(name for name in there.keys() | files.keys() if there.get(name) != files.get(name))
    for name in different:
        if arguments:
            print(f"{name} differs from the schema; run: {COMMAND}", file=sys.stderr)
        elif name in files:
            (ROOT / name).parent.mkdir(parents=True, exist_ok=True)
            (ROOT / name).write_text(files[name], encoding="utf-8")
        else:
            (ROOT / name).unlink()
    return 1 if arguments and different else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
