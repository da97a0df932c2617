# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""What the printers share: how text is wrapped; and those of C++: the frame of a file, comments, and the C++ side of
simple types."""

import textwrap

WIDTH = 118
NAMESPACE = "com_vyrgraph_v2"
FOLDER = "schema/generated"
LISTS = ("element_list", "child_list", "group_list")

# Kind of value -> type of the member and of a parameter.
MEMBER_TYPES = {
    "text": "std::u16string",
    "boolean": "bool",
    "number": "double",
    "int32": "std::int32_t",
    "uint32": "std::uint32_t",
    "uint8": "std::uint8_t",
    "datetime": "lmx::c_datetime",
    "binary": "lmx::c_binary",
}
ENUMERATED_TYPE = "lmx::c_enumerated"
# Kinds of value that an alternative keeps in the slot of its choice -> the slot's field.
SLOT_FIELDS = {"number": "number", "int32": "int32", "uint32": "uint32"}


def parameter_type(value):
    member = MEMBER_TYPES[value]
    return f"const {member}&" if value in ("text", "datetime", "binary") else member


def initial_value(item):
    if item.initial is not None and not item.enumerated:
        return f' = u"{item.initial}"' if item.value.value == "text" else f" = {item.initial}"
    if item.value.value == "boolean":
        return " = false"
    return "" if parameter_type(item.value.value).startswith("const") else " = 0"


def wrap(text, width):
    """Lines that are broken at blanks only."""
    return textwrap.wrap(text, width, break_long_words=False, break_on_hyphens=False)


def comment(text):
    return [f"/// {line}" for line in wrap(text, WIDTH - 4)]


def frame(purpose, includes, body, is_header=False, notes=()):
    """A whole file. Standard headers among the includes are those in angle brackets."""
    standard = sorted(name for name in includes if name.startswith("<"))
    lines = [
        "// Copyright 2026 The Vyr Authors",
        "// SPDX-License-Identifier: Apache-2.0",
        "//",
        "// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.",
        "// clang-format off",
        "",
        *comment(purpose),
        "",
    ]
    if is_header:
        lines += ["#pragma once", *[""] * bool(includes)]
    if standard:
        lines += [*(f"#include {name}" for name in standard), ""]
    lines += [*(f'#include "{name}"' for name in includes if name not in standard), "", *notes]
    return "\n".join([*lines, f"namespace {NAMESPACE} {{", "", *body, "", f"}}  // namespace {NAMESPACE}", ""])


def own_source(name, includes):
    """The includes of a source: its own header first, the others in order."""
    own = f"{FOLDER}/{name}.h"
    return [own, *sorted(set(includes) - {own})]
