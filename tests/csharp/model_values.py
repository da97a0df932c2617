#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Prints what the schema says of every member of the C# classes, for ModelTest.cs: a line each, with tabs between.

    class    name, base, "new" if programs can make one, "nil" if it can be without a value
    value    class, member, kind, "null" if optional, values that it takes, values that it refuses with their codes
    child    class, member, class of the child, "null" if optional
    list     class, member, class of the entries or kind of the values
    choice   class, alternative, its class or kind, "abstract" if it is that, values that it takes
    column   class, member, its list
    enum     enumeration, member, number, text
"""

import re
import sys
from pathlib import Path

sys.dont_write_bytecode = True
ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "schema" / "generator"))

from model import read_model  # noqa: E402
from plan import Plan  # noqa: E402
from print_csharp import derives  # noqa: E402

BELOW, ABOVE, SHORT, LONG, PATTERN, FORMAT = 37, 36, 20, 19, 22, 35


def numbers(simple):
    low = None if simple.minimum is None else float(simple.minimum)
    high = None if simple.maximum is None else float(simple.maximum)
    is_whole = simple.value != "number"
    step = 1 if is_whole else 2**-10
    good = [(low if low is not None else -1e6) + (step if simple.minimum_exclusive else 0),
            (high if high is not None else 1e6) - (step if simple.maximum_exclusive else 0)]
    bad = []
    # What the C# type can't hold needs no check.
    fits = {"number": lambda n: True, "uint8": lambda n: 0 <= n < 2**8, "uint32": lambda n: 0 <= n < 2**32,
            "int32": lambda n: -2**31 <= n < 2**31}[simple.value]
    if low is not None and not simple.setter_skips_minimum:
        bad.append((low - (0 if simple.minimum_exclusive else step), BELOW))
    if high is not None:
        bad.append((high + (0 if simple.maximum_exclusive else step), ABOVE))
    text = (lambda n: str(int(n))) if is_whole else repr
    return [text(n) for n in good], [f"{text(n)}={code}" for n, code in bad if fits(n)]


def values_of(simple):
    """Values that a simple type takes, and values that it refuses."""
    if simple.enumeration:
        return [str(i) for i in range(1, len(simple.enumeration) + 1)], ["0=38", f"{len(simple.enumeration) + 1}=38"]
    if simple.value == "text":
        bad = [f"={SHORT}"] * bool(simple.minimum_length) + [f"ab={LONG}"] * (simple.maximum_length == 1)
        return ["ü" if simple.maximum_length == 1 else "Grün 🎨 <&>"], bad
    if simple.value == "datetime":
        return ["2024-05-01T09:30:00Z", "1999-12-31T23:59:59.5-11:30"], [f"soon={FORMAT}", f"2024-05-01T09:30:00={PATTERN}"]
    return {"boolean": (["True", "False"], []), "binary": (["", "AP+A"], [])}.get(simple.value) or numbers(simple)


def kind_of(simple):
    return f"enum {simple.name}" if simple.enumeration else simple.value


def lines_of(plan, made):
    name = made.package_name
    yield ("class", name, plan.by_name[made.base].package_name if derives(made) else "VyrObject",
           "new" if not made.abstract and not (made.wrapper and not made.is_document) else "",
           "nil" if made.nillable else "")
    if made.wrapper:
        return
    for item in made.items:
        if not item.accessor:
            continue
        entry = plan.by_name[item.type].package_name if item.type else None
        optional = "null" if item.presence else ""
        if item.kind == "alternative":
            good = values_of(item.value)[0] if item.value else []
            yield ("choice", name, item.accessor, entry or kind_of(item.value),
                   "abstract" if item.type and plan.by_name[item.type].abstract else "", "|".join(good))
        elif item.repeats:
            yield ("list", name, item.package_name, entry or (item.value.value if item.value else "markup"))
            yield from (("column", name, column, item.package_name) for column, _ in item.columns)
        elif item.type:
            yield "child", name, item.package_name, entry, optional
        else:
            good, bad = values_of(item.value)
            yield "value", name, item.package_name, kind_of(item.value), optional, "|".join(good), "|".join(bad)


def main():
    plan = Plan(read_model(ROOT / "schema" / "vyr.xsd", ROOT / "schema" / "binding.toml"))
    for made in plan.model.classes:
        for line in lines_of(plan, made):
            print(*line, sep="\t")
    for simple in {value.name: value for value in plan.enumerations.values()}.values():
        for number, text in enumerate(simple.enumeration, 1):
            print("enum", simple.name, re.sub(r"\W", "_", text), number, text, sep="\t")


if __name__ == "__main__":
    main()
