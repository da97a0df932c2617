#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Writes lmx/values/generated/char_class_functions.{h,cpp} by asking libxml2 2.9.

Usage: make_char_classes.py INCLUDE_FOLDER [LIBRARY]

The folder is the one that holds libxml/xmlunicode.h. Later versions know other characters, or export no classes.
"""

import ctypes
import pathlib
import re
import sys

OUTPUT = pathlib.Path(__file__).resolve().parent.parent / "lmx/values/generated"
END = 0x110000
GROUPS = ("BaseChar", "Char", "Combining", "Digit", "Extender", "Ideographic")

HEAD = """\
// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by scripts/make_char_classes.py. Change that instead.
// clang-format off

"""


class Group(ctypes.Structure):
    _fields_ = [("short_count", ctypes.c_int), ("long_count", ctypes.c_int),
                ("shorts", ctypes.POINTER(ctypes.c_ushort)), ("longs", ctypes.POINTER(ctypes.c_uint))]


def rows(items, indent="    ", width=118):
    """Comma-separated items on as few lines as fit."""
    lines, line = [], indent
    for item in items:
        if len(line) + len(item) + 1 > width:
            lines.append(line.rstrip())
            line = indent
        line += item + ", "
    return "\n".join([*lines, line.rstrip()]) + "\n"


def runs_of(values):
    """(first code, value) of each run of equal values."""
    found = []
    for code, value in enumerate(values):
        if not found or found[-1][1] != value:
            found.append((code, value))
    return found


def block_ranges(function):
    """The ranges of a block, which begin and end with a column of sixteen."""
    runs = runs_of(function(code) for code in range(0, END, 16))
    ends = [first for first, _ in runs[1:]] + [END // 16]
    return [(first * 16, end * 16 - 1) for (first, inside), end in zip(runs, ends) if inside]


def block_name(library, function):
    """The name for look-ups, which keeps a hyphen that the function's name can't have."""
    for name in [function] + [f"{function[:at]}-{function[at:]}" for at in range(1, len(function))]:
        if library.xmlUCSIsBlock(0, name.encode()) >= 0:
            return name
    raise SystemExit(f"no name finds {function}")


def print_categories(library, names):
    singles = [name for name in names if len(name) == 2]
    owner = [0] * END
    for index, name in enumerate(singles, start=1):
        function = getattr(library, f"xmlUCSIsCat{name}")
        for code in range(END):
            if function(code):
                assert owner[code] == 0, f"{code:#x} is in {name} and {singles[owner[code] - 1]}"
                owner[code] = index
    labels = ["no", *singles]
    # Codes behind the last run belong to none.
    runs = [*runs_of(owner), (END, 0)]
    yield "// \"no\" is no category: bit 0 is in no set.\n"
    yield "enum category : std::uint8_t {\n" + rows(labels) + "};\n\n"
    yield "constexpr s_category_run k_runs[] = {\n" + rows(f"{{{first:#x}, {labels[value]}}}" for first, value in runs)
    yield "};\n\n"


def category_sets(names):
    for name in names:
        members = [single for single in names if len(single) == 2 and single.startswith(name)]
        yield name, " | ".join(f"1U << {single}" for single in members)


def print_groups(library):
    for name in GROUPS:
        group = Group.in_dll(library, f"xmlIs{name}Group")
        counts, pointers = [group.short_count, group.long_count], []
        for kind, count, values in (("SRange", counts[0], group.shorts), ("LRange", counts[1], group.longs)):
            if count == 0:
                pointers.append("nullptr")
                continue
            pointers.append(f"k_{name}_{kind}")
            yield f"constexpr xmlCh{kind} {pointers[-1]}[] = {{\n"
            yield rows(f"{{{values[2 * i]:#x}, {values[2 * i + 1]:#x}}}" for i in range(count)) + "};\n"
        yield f"const xmlChRangeGroup xmlIs{name}Group = {{{counts[0]}, {counts[1]}, {pointers[0]}, {pointers[1]}}};\n\n"


def print_named(name, classes):
    yield f"constexpr s_named_class {name}[] = {{\n"
    yield "".join(f'    {{"{key}", {function}}},\n' for key, function in sorted(classes)) + "};\n"


def print_source(library, blocks, categories):
    yield HEAD + "/// The tables of the character classes and the functions that look into them.\n\n"
    yield '#include "lmx/values/char_classes.h"\n\nnamespace lmx {\n\nusing namespace detail;\n\nnamespace {\n\n'
    yield from print_categories(library, categories)
    yield "bool is_between(int code, int first, int last) { return code >= first && code <= last; }\n\n}  // namespace\n\n"
    yield from print_groups(library)
    for block in blocks:
        test = " || ".join(f"is_between(code, {first:#x}, {last:#x})"
                           for first, last in block_ranges(getattr(library, f"xmlUCSIs{block}")))
        yield f"int xmlUCSIs{block}(int code) {{ return {test}; }}\n"
    yield "\n"
    for name, members in category_sets(categories):
        yield f"int xmlUCSIsCat{name}(int code) {{ return is_in_category(k_runs, code, {members}); }}\n"
    yield "\nnamespace {\n\n"
    yield from print_named("k_blocks", [(block_name(library, name), f"xmlUCSIs{name}") for name in blocks])
    yield from print_named("k_categories", [(name, f"xmlUCSIsCat{name}") for name in categories])
    yield "\n}  // namespace\n\n"
    yield "int xmlUCSIsBlock(int code, const char* block) { return ask_by_name(k_blocks, code, block); }\n"
    yield "int xmlUCSIsCat(int code, const char* category) { return ask_by_name(k_categories, code, category); }\n"
    yield "\n}  // namespace lmx\n"


def print_header(blocks, categories):
    yield HEAD + "/// One function for each Unicode block and each general category: 1 if the character is in it, else 0.\n\n"
    yield '#pragma once\n\n#include "lmx/export.h"\n\nnamespace lmx {\n\n'
    for name in [*blocks, *(f"Cat{category}" for category in categories)]:
        yield f"VYR_EXPORT int xmlUCSIs{name}(int code);\n"
    yield "\n}  // namespace lmx\n"


def main():
    header = pathlib.Path(sys.argv[1], "libxml/xmlunicode.h").read_text(encoding="utf-8")
    library = ctypes.CDLL(sys.argv[2] if len(sys.argv) > 2 else "libxml2.so.2")
    names = set(re.findall(r"\bxmlUCSIs(\w+)", header)) - {"Block", "Cat"}
    categories = sorted(name[3:] for name in names if re.fullmatch(r"Cat[A-Z][a-z]?", name))
    blocks = sorted(name for name in names if name[3:] not in categories or not name.startswith("Cat"))
    if not blocks:
        raise SystemExit("this libxml2 declares no classes")
    for suffix, pieces in (("h", print_header(blocks, categories)), ("cpp", print_source(library, blocks, categories))):
        (OUTPUT / f"char_class_functions.{suffix}").write_text("".join(pieces), encoding="utf-8")


if __name__ == "__main__":
    main()
