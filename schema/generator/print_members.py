# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The flat functions of flat/members.toml, which says what its words mean."""

import re
import tomllib

from cpp import frame
from print_flat import NARROW, NARROW_RESULT, OBJECT, SELF, WIDE, WIDE_RESULT, Function, null_text
from source import SchemaError

# Kind of parameter -> type of the argument, and its form for the member.
PARAMETERS = {
    "int32": ("std::int32_t", "{0}"),
    "uint32": ("std::uint32_t", "{0}"),
    "byte": ("std::uint32_t", "static_cast<std::uint8_t>({0})"),
    "float": ("float", "{0}"),
    "double": ("double", "{0}"),
    "bool": ("std::uint32_t", "to_bool({0})"),
    "code": ("std::int32_t", "static_cast<lmx::elmx_error>({0})"),
    "narrow": (NARROW, "{0}"),
    "wide": (WIDE, "wide({0})"),
    "chars": (NARROW, "{0}"),
    "source": (OBJECT, "as<{1}>({0})"),
    "other": (OBJECT, "as<{1}>({0})"),
    "bytes": (OBJECT, "static_cast<unsigned char*>({0})"),
    "flag": (OBJECT, "static_cast<bool*>({0})"),
    "report": (OBJECT, "static_cast<lmx::elmx_error*>({0})"),
}
# Kind of result -> type, and its form from the member's.
RESULTS = {
    "": ("void", "{}"),
    "int32": ("std::int32_t", "{}"),
    "uint32": ("std::uint32_t", "static_cast<std::uint32_t>({})"),
    "float": ("float", "{}"),
    "double": ("double", "{}"),
    "bool": ("std::int32_t", "{}"),
    "code": ("std::int32_t", "{}"),
    "narrow": (NARROW_RESULT, "new_string({})"),
    "wide": (WIDE_RESULT, "new_string({})"),
    "chars": (NARROW, "{}"),
    "bytes": (OBJECT, "{}"),
    "place": (OBJECT, "&{}"),
}
MEMBER = re.compile(r"(static )?(\w+)(#\d)?\(([\w, ]*)\) ?(\w*)")


def function(file, owner, line):
    """The function of one line; `owner` is a class, or a namespace for free functions."""
    match = MEMBER.fullmatch(line)
    if not match:
        raise SchemaError(file, 0, f"'{line}' is no member")
    is_static, name, number, kinds, result = match.groups(default="")
    is_free = owner == "lmx"
    kinds = kinds.split(", ") if kinds else []
    for kind, known in (*((kind, PARAMETERS) for kind in kinds), (result, RESULTS)):
        if kind not in known:
            raise SchemaError(file, 0, f"'{kind}' in '{line}' is no kind of value")
    outer, inner = "abcdef", "uvwxyz"  # names of the parameters, and inside the action
    values = ", ".join(PARAMETERS[kind][1].format(letter, owner) for kind, letter in zip(kinds, inner))
    parameters = [(PARAMETERS[kind][0], letter) for kind, letter in zip(kinds, outer)]
    signature = [f"{PARAMETERS[kind][0]} {letter}" for kind, letter in zip(kinds, inner)]
    checks = {"narrow": "k_null_string", "source": null_text(owner), "other": null_text(owner, "&")}
    checks = tuple((letter, checks[kind]) for kind, letter in zip(kinds, outer) if kind in checks)
    result_type, form = RESULTS[result]
    class_name = "" if is_free else owner.rpartition("::")[2]
    stem = f"{class_name}_{name}" if class_name else name
    if name == "delete":
        return Function(f"CSharp_delete_{class_name}", "void", (SELF,), f"destroy<{owner}>(self)")
    if name == "new":
        result_type, call, stem = OBJECT, f"new {owner}({values})", f"new_{class_name}"
    elif is_static or is_free:
        call = form.format(f"{owner}::{name}({values})")
    else:
        call = form.format(f"as<{owner}>(s).{name}({values})")
        parameters, signature = [SELF, *parameters], ["void* s", *signature]
    names = "".join(f", {name}" for _, name in parameters)
    address = f" -> {result_type}" if result_type == OBJECT else ""
    statement = "" if result_type == "void" else "return "
    return Function(f"CSharp_{stem}{number.replace('#', '__SWIG_')}", result_type, tuple(parameters),
                    f"guarded(+[]({', '.join(signature)}){address} {{ {statement}{call}; }}{names})", checks)


BY_HAND = re.compile(r"(.+) \((.*)\)")


def by_hand(file, stem, signature):
    """A function that is written by hand, of which the header needs the signature."""
    match = BY_HAND.fullmatch(signature)
    if not match:
        raise SchemaError(file, 0, f"'{signature}' of {stem} is no signature")
    parameters = (text.rpartition(" ") for text in match[2].split(", ") if text)
    return Function(stem, match[1], tuple((kind, name) for kind, _, name in parameters), "")


class Members:
    """What flat/members.toml says."""

    def __init__(self, path):
        self.file = path.name
        table = tomllib.loads(path.read_text(encoding="utf-8"))
        self.includes, self.sets = table["includes"], table["sets"]
        self.by_hand = [by_hand(self.file, stem, signature) for stem, (signature, _) in table["by_hand"].items()]
        self.docs = {stem: doc for stem, (_, doc) in table["by_hand"].items()}
        self.groups = {owner: [function(self.file, owner, line) for line in self.flatten(lines)]
                       for owner, lines in (table["classes"] | table["functions"]).items()}
        self.groups["constants"] = [Function(f"CSharp_{name}_get", "std::int32_t", (), f"{owner}::{name}")
                                    for owner, names in table["constants"].items() for name in names]
        self.functions = [made for group in self.groups.values() for made in group] + self.by_hand

    def flatten(self, lines):
        for line in lines:
            if not line.startswith("@"):
                yield line
            elif line[1:] in self.sets:
                yield from self.flatten(self.sets[line[1:]])
            else:
                raise SchemaError(self.file, 0, f"there is no set '{line}'")

    def print_source(self):
        body = ["using namespace flat;", "", 'extern "C" {']
        for owner, functions in self.groups.items():
            body += ["", f"// {owner}", *(made.line() for made in functions)]
        return frame("Flat functions that don't follow from the schema.", ["flat/call.h", *self.includes],
                     [*body, "", '}  // extern "C"'])
