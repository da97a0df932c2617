#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Prints the table that calls.cpp walks: the flat functions of every class, and what each is called with.

    make_calls.py > calls_table.inc
"""

import re
import sys
from pathlib import Path

sys.dont_write_bytecode = True
ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "schema" / "generator"))

from model import read_model  # noqa: E402
from plan import Plan  # noqa: E402
from print_flat import functions_of  # noqa: E402

SHORT = {"void*": "o", "const char16_t*": "t", "const char*": "n", "std::int32_t": "i", "std::uint32_t": "u", "double": "d",
         "char16_t*": "t", "char*": "n", "void": "v"}
# Member, types of arguments behind the object, type of the result -> the way that it is called.
# Not called: what works on files, and what changes the identity of a whole class.
WAYS = [(re.compile(pattern), way) for pattern, way in (
    (r"get_\w+__SWIG_0:>o", "part"), (r"Upcast:>o", "part"),
    (r"get_\w+__SWIG_0:u>o", "part_at"), (r"back_\w+:>o", "back"),
    (r"assign_\w+:o>o", "assign"), (r"assign_\w+:uo>o", "assign_at"),
    (r"append_\w+:>i", "append"), (r"insert_\w+:u>i", "insert"),
    (r"append_\w+:t>i", "append_text"), (r"insert_\w+:ut>i", "insert_text"), (r"set_\w+:ut>i", "set_text_at"),
    (r"append_any:n>i", "append_any"), (r"insert_any:un>i", "insert_any"),
    (r"append_\w+:o>i", "append_value"), (r"insert_\w+:uo>i", "insert_value"), (r"set_\w+:uo>i", "set_value_at"),
    (r"delete_\w+:u>v", "remove"),
    (r"set_\w+:t>i", "set_text"), (r"set_\w+:d>i", "set_number"), (r"set_\w+:i>i", "set_int"), (r"set_\w+:u>i", "set_uint"),
    (r"set_\w+:o>i", "set_value"), (r"setenum_\w+:i>i", "set_enumerated"),
    (r"(isset|isnil|getenum)_\w+:>i|is_occurs_ok:>i|getchosen:>i", "look"),
    (r"get_\w+:>i", "look"), (r"get_\w+:>u", "look_uint"), (r"get_\w+:>d", "look_number"),
    (r"get_\w+:>t", "look_text"), (r"getid:>n", "look_narrow"),
    (r"get_\w+:u>t", "look_text_at"),
    (r"(unset|setnil|clear)_\w+:>v|reset:>v", "act"), (r"swap:o>v", "swap"), (r"clone:>o", "clone"),
    (r"unmarshal__SWIG_1:nu>i", "unmarshal"),
)]
# A way -> the member that it needs beside itself.
PARTNERS = {"part_at": "size", "back": "size", "assign_at": "size", "remove": "size", "look_text_at": "size",
            "set_text_at": "size", "set_value_at": "size", "append": "size", "insert": "size", "append_text": "size",
            "insert_text": "size", "append_value": "size", "insert_value": "size", "append_any": "size", "insert_any": "size",
            "set_text": "get", "set_number": "get", "set_int": "get", "set_uint": "get"}


def way_of(member, function):
    arguments = "".join(SHORT[kind] for kind, name in function.parameters if name != "self")
    found = [way for pattern, way in WAYS if pattern.fullmatch(f"{member}:{arguments}>{SHORT[function.result]}")]
    return found[0] if found else None


def class_in(body):
    """The class of an argument, as the report on a null names it."""
    match = re.search(r'"\w+::(\w+) ', body)
    return match and match[1].replace("tc_", "c_")


def rows(made, functions, numbers):
    members = {f.stem.removeprefix(f"CSharp_{made.name}").lstrip("_"): f for f in functions}
    for member, function in members.items():
        way = way_of(member, function)
        if way is None:
            continue
        accessor = re.sub(r"^[a-z]+_|__SWIG_\d", "", member)
        other = class_in(function.body)
        if way in ("part", "part_at", "back"):
            assign = members.get(f"assign_{accessor}") or members.get(f"assign_{accessor}__SWIG_0")
            other = made.base if member == "Upcast" else assign and class_in(assign.body)
        if way in ("part", "part_at", "back", "assign", "assign_at", "swap") and other not in numbers:
            raise SystemExit(f"make_calls.py: {function.stem} is of no class")
        partner = members.get(f"{PARTNERS[way]}_{accessor}") if way in PARTNERS else None
        if PARTNERS.get(way) == "size" and partner is None:
            raise SystemExit(f"make_calls.py: {function.stem} has no size")
        yield (f'    {{e_way::{way}, address({function.stem}), {address(partner)}, {numbers.get(other, -1)}, '
               f'"{function.stem}"}},')


def address(function):
    return f"address({function.stem})" if function else "nullptr"


def main():
    plan = Plan(read_model(ROOT / "schema" / "vyr.xsd", ROOT / "schema" / "binding.toml"))
    classes = [made for made in plan.model.classes if not made.wrapper or made.is_document]
    numbers = {made.name: number for number, made in enumerate(classes)}
    tables, records = [], []
    for made in classes:
        functions = functions_of(plan, made)
        by_stem = {f.stem: f for f in functions}
        table = list(rows(made, functions, numbers))
        # A tuple of the class: its name, how it is made, copied and deleted, its calls.
        tables += [f"const s_call k_calls_of_{made.name}[] = {{", *table, "};"]
        made_by = [address(by_stem.get(f"CSharp_{stem}")) for stem in
                   (f"new_{made.name}__SWIG_0", f"new_{made.name}__SWIG_1", f"delete_{made.name}")]
        records.append(f'    {{"{made.name}", {", ".join(made_by)}, k_calls_of_{made.name}}},')
    texts = sorted({text for kind in plan.model.simple_types for text in kind.enumeration})
    print("\n".join([
        *tables, "", "const s_class k_classes[] = {", *records, "};", "",
        f'constexpr int k_document = {numbers["Vyr"]};', "",
        "const char16_t* const k_texts[] = {", *(f'    u"{text}",' for text in texts), "};"]))


if __name__ == "__main__":
    main()
