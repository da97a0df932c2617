# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""flat/generated/: one plain function per member of a class, the list of their names, and a header for C.

A function is a line that names a member; conversion, null checks and exceptions lie in flat/call.h. The overload
number of a member is its place among the members of its name in the class's declaration; members that the flat
interface leaves out keep theirs.
"""

import textwrap
from dataclasses import dataclass

from cpp import FOLDER, LISTS, NAMESPACE, WIDTH, frame
from source import SchemaError

WIDE, NARROW, OBJECT, INDEX = "const char16_t*", "const char*", "void*", "std::uint32_t"
WIDE_RESULT, NARROW_RESULT = "char16_t*", "char*"  # new strings, which the host owns
CODE, FLAG = "std::int32_t", "std::int32_t"
SELF = (OBJECT, "self")

# Kind of value -> type of a plain argument and its form for the member.
PLAIN = {
    "number": ("double", "value"),
    "boolean": ("std::uint32_t", "to_bool(value)"),
    "int32": ("std::int32_t", "value"),
    "uint32": ("std::uint32_t", "value"),
    "uint8": ("std::uint32_t", "static_cast<std::uint8_t>(value)"),
}
# Kind of value held as an object -> its class in null reports.
REPORTED = {"datetime": "lmx::tc_datetime", "binary": "lmx::tc_binary"}


@dataclass(frozen=True)
class Function:
    stem: str
    result: str
    parameters: tuple
    body: str
    checks: tuple = ()  # arguments that mustn't be null, each with its report

    @property
    def size(self):
        """Bytes of the arguments where pointers have 32 bits."""
        return sum(8 if kind == "double" else 4 for kind, _ in self.parameters)

    def line(self):
        parameters = ", ".join(f"{kind} {name}" for kind, name in self.parameters)
        nothing, verb = ("return", "") if self.result == "void" else ("return {}", "return ")
        checks = "".join(f"if (is_null({name}, {text})) {nothing}; " for name, text in self.checks)
        return f"VYR_FLAT({self.result}) {self.stem}({parameters}) {{ {checks}{verb}{self.body}; }}"


def null_text(kind, reference="const &"):
    return f'"{kind} {reference} type is null"'


class Printer:
    """Collects the functions of one class; `name` parts are joined by underscores."""

    def __init__(self, owner):
        self.owner = owner
        self.self = f"as<{owner}>(s)"
        self.functions = []

    def add(self, member, result, parameters, body, stem=None):
        self.functions.append(Function(f"CSharp_{stem or f'{self.owner}_{member}'}", result, tuple(parameters), body))

    def plain(self, member, result, call, *parameters, convert="{}"):
        """Forwards to a member that neither allocates nor needs a check."""
        self.add(member, result, (SELF, *parameters), convert.format(f"as<{self.owner}>(self).{call}"))

    def guarded(self, member, result, call, *parameters, check=None):
        """Forwards to a member that may allocate; `check` is the report on a null last argument."""
        # What is checked goes first.
        order = [*parameters[-1:], SELF, *parameters[:-1]] if check else [SELF, *parameters]
        arguments = ", ".join(f"{kind} {name[0]}" for kind, name in order)
        address = " -> void*" if result == OBJECT else ""
        action = f"+[]({arguments}){address} {{ return {call}; }}"
        start = f"checked({check}, " if check else "guarded("
        self.add(member, result, (SELF, *parameters), f"{start}{action}, {', '.join(name for _, name in order)})")


def life_cycle(printer, made):
    owner = made.name
    if not (made.wrapper and not made.is_document):
        printer.add("", OBJECT, (), f"make<{owner}>()", f"new_{owner}__SWIG_0")
        printer.add("", OBJECT, ((OBJECT, "source"),),
                    f"checked({null_text(f'{NAMESPACE}::{owner}')}, &copy<{owner}>, source)", f"new_{owner}__SWIG_1")
    printer.add("", "void", (SELF,), f"destroy<{owner}>(self)", f"delete_{owner}")
    if made.base:
        printer.add("", OBJECT, (SELF,), f"upcast<{owner}, {made.base}>(self)", f"{owner}Upcast")


def document_part(printer, made):
    call = printer.self
    path, data, size = (NARROW, "path"), (NARROW, "data"), (INDEX, "size")
    printer.guarded("unmarshal__SWIG_0", CODE, f"{call}.unmarshal(p)", path)
    printer.add("unmarshal__SWIG_1", CODE, (SELF, data, size),
                f"guarded(+[](void* s, const char* d, std::uint32_t n) {{ return {call}.unmarshal(d, n); }}, "
                "self, data, size)")
    printer.guarded("marshal__SWIG_0", CODE, f"{call}.marshal(p)", path)
    printer.add("ns_map", OBJECT, (), f"reference(*{made.name}::ns_map())")


def contract(printer, made):
    owner = made.name
    printer.guarded("swap", "void", f"{printer.self}.swap(as<{owner}>(o))", (OBJECT, "other"),
                    check=null_text(f"{NAMESPACE}::{owner}", "&"))
    printer.guarded("reset", "void", f"{printer.self}.reset()")
    printer.plain("is_occurs_ok", FLAG, "is_occurs_ok()")
    if made.content in ("choice", "group") and not made.derives_from_group:
        printer.plain("getchosen", CODE, "getchosen()")
    if made.nillable:
        printer.plain(f"isnil_{owner}", FLAG, f"isnil_{owner}()")
        printer.plain(f"setnil_{owner}", "void", f"setnil_{owner}()")


def family(printer, plan, made):
    if made.named:
        printer.guarded("clone", OBJECT, f"{printer.self}.clone()")
        printer.plain("getid", NARROW_RESULT, "getid()", convert="new_string({})")
        printer.plain("has_id", FLAG, "has_id(identity)", (NARROW, "identity"))
        printer.add("id_get", NARROW, (), f"{made.name}::id")
        printer.add("id_set", "void", ((NARROW, "identity"),), f"set_identity(&{made.name}::id, identity)")
    if plan.factory(made):
        printer.add("factory", OBJECT, ((CODE, "ns_id"), (NARROW, "name")),
                    f'checked(k_null_string, +[](const char* n, std::int32_t i) -> void* {{ '
                    f"return {made.name}::factory(i, n); }}, name, ns_id)")


def simple_set(printer, member, value, *index):
    """A setter, or a function that takes an index and a value."""
    call = f"{printer.self}.{member}({'i, ' if index else ''}"
    names = "index, " if index else ""
    if value.value == "text":
        arguments = "void* s, std::size_t i, wide_text v" if index else "void* s, wide_text v"
        printer.add(member, CODE, (SELF, *index, (WIDE, "value")),
                    f"with_text(self, {names}value, []({arguments}) {{ return {call}v); }})")
    elif value.value in REPORTED:
        kind = f"lmx::c_{value.value}"
        printer.guarded(member, CODE, f"{call}as<{kind}>(v))", *index, (OBJECT, "value"),
                        check=null_text(REPORTED[value.value]))
    else:
        kind, form = PLAIN[value.value]
        printer.plain(member, CODE, f"{member}({form})", (kind, "value"))


def simple_get(printer, member, value, *index):
    call = f"{member}({'index' if index else ''})"
    if value.value == "text":
        printer.plain(member, WIDE_RESULT, call, *index, convert="new_string({})")
    elif value.value in REPORTED:
        printer.plain(member, OBJECT, call, *index, convert="reference({})")
    else:
        printer.plain(member, PLAIN[value.value][0], call)


def list_part(printer, item):
    x, index = item.accessor, (INDEX, "index")
    printer.plain(f"size_{x}", INDEX, f"size_{x}()", convert="static_cast<std::uint32_t>({})")
    if item.kind == "element_list":
        simple_get(printer, f"get_{x}", item.value, index)
        simple_set(printer, f"set_{x}", item.value, index)
        simple_set(printer, f"append_{x}", item.value)
        simple_set(printer, f"insert_{x}", item.value, index)
    elif item.kind == "any":
        value = (NARROW, "value")
        printer.guarded("append_any", CODE, f"{printer.self}.append_any(v)", value, check="k_null_string")
        printer.guarded("insert_any", CODE, f"{printer.self}.insert_any(i, v)", index, value, check="k_null_string")
    else:
        printer.guarded(f"get_{x}__SWIG_0", OBJECT, f"&{printer.self}.get_{x}(i)", index)
        printer.guarded(f"assign_{x}", OBJECT, f"&{printer.self}.assign_{x}(i, as<{item.type}>(v))", index,
                        (OBJECT, "value"), check=null_text(f"{NAMESPACE}::{item.type}"))
        printer.guarded(f"append_{x}", CODE, f"{printer.self}.append_{x}()")
        printer.guarded(f"insert_{x}", CODE, f"{printer.self}.insert_{x}(i)", index)
        printer.plain(f"back_{x}", OBJECT, f"back_{x}()", convert="&{}")
    printer.plain(f"delete_{x}", "void", f"delete_{x}(index)", index)
    printer.plain(f"clear_{x}", "void", f"clear_{x}()")


def object_part(printer, plan, item):
    x = item.accessor
    if item.kind in ("alternative", "optional_child"):
        printer.guarded(f"get_{x}__SWIG_0", OBJECT, f"&{printer.self}.get_{x}()")
    else:
        printer.plain(f"get_{x}__SWIG_0", OBJECT, f"get_{x}()", convert="&{}")
    # An alternative with derived types has a second form, which takes an object over.
    overloaded = item.kind == "alternative" and plan.factory(plan.by_name[item.type])
    printer.guarded(f"assign_{x}{'__SWIG_0' if overloaded else ''}", OBJECT,
                    f"&{printer.self}.assign_{x}(as<{item.type}>(v))", (OBJECT, "value"),
                    check=null_text(f"{NAMESPACE}::{item.type}"))


def enumeration_part(printer, item, inherited=False):
    x = item.accessor
    if item.enumerated:
        if not inherited:
            printer.plain(f"getenum_{x}", CODE, f"getenum_{x}()")
        printer.guarded(f"setenum_{x}", FLAG, f"{printer.self}.setenum_{x}(n)", (CODE, "number"))


def functions_of(plan, made):
    printer = Printer(made.name)
    life_cycle(printer, made)
    if made.is_document:
        document_part(printer, made)
    if made.wrapper:
        return printer.functions
    contract(printer, made)
    family(printer, plan, made)
    for item in made.items:
        x = item.accessor
        if not x:
            continue
        if item.kind in (*LISTS, "any"):
            list_part(printer, item)
        elif item.type:
            object_part(printer, plan, item)
        else:
            simple_get(printer, f"get_{x}", item.value)
            simple_set(printer, f"set_{x}", item.value)
            enumeration_part(printer, item)
        if item.presence:
            printer.plain(f"isset_{x}", FLAG, f"isset_{x}()")
            printer.plain(f"unset_{x}", "void", f"unset_{x}()")
    if found := plan.content_item(made):
        simple_set(printer, f"set_{found[1].accessor}", found[1].value)
        enumeration_part(printer, found[1], inherited=True)
    return printer.functions


def print_flat_source(plan, topic):
    body = ["using namespace flat;", "", 'extern "C" {']
    for made in topic.classes:
        body += ["", f"// {made.name}", *(function.line() for function in functions_of(plan, made))]
    includes = ["flat/call.h", *(f"{FOLDER}/{name}.h" for name in sorted({topic.name, *topic.source_needs}))]
    return frame(f"Flat functions of the classes in {topic.name}.h.", [], includes, [*body, "", '}  // extern "C"'])


def print_exports(plan, members):
    """The names of all functions with the bytes of their arguments."""
    made = [f for topic in plan.topics for c in topic.classes for f in functions_of(plan, c)] + members.functions
    sizes = {f.stem: f.size for f in made}
    if len(sizes) < len(made):
        raise SchemaError(members.file, 0, "a name stands for two functions")
    return "".join(f"{stem} {size}\n" for stem, size in sorted(sizes.items()))


HEADER_START = """/* Copyright 2026 The Vyr Authors
 * SPDX-License-Identifier: Apache-2.0
 *
 * Made by schema/generator/generate.py from schema/vyr.xsd, schema/binding.toml and flat/members.toml.
 * clang-format off
 *
 * All flat functions, for C and for whoever binds another language. Objects are pointers without a type. Texts of
 * char16_t are UTF-16, texts of char are UTF-8; both end with a zero. A new text is freed by VyrModule_FreeString. What
 * new_, clone, factory and writeString give is deleted by the caller, with the delete_ of its class; all other objects
 * are parts of the one that they were asked from. A result called an error code is 0 for success.
 */

#ifndef VYR_FLAT_H
#define VYR_FLAT_H

#include <stdint.h>
#ifndef __cplusplus
#include <uchar.h>
#endif

#ifndef VYR_FLAT_CALL
#if defined(_WIN32)
#define VYR_FLAT_CALL __stdcall
#else
#define VYR_FLAT_CALL
#endif
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef void(VYR_FLAT_CALL* vyr_exception_callback)(const char* text);
typedef void(VYR_FLAT_CALL* vyr_argument_callback)(const char* text, const char* parameter);
typedef char*(VYR_FLAT_CALL* vyr_string_callback)(const char* text);
"""
HEADER_END = """
#ifdef __cplusplus
}
#endif

#endif
"""


def c_type(kind):
    return f"vyr_{kind}" if kind.endswith("_callback") else kind.replace("std::", "")


def c_declaration(function):
    parameters = ", ".join(f"{c_type(kind)} {name}" for kind, name in function.parameters) or "void"
    return f"{c_type(function.result)} VYR_FLAT_CALL {function.stem}({parameters});"


def print_c_header(plan, members):
    """All functions with their types, as C declares them."""
    lines = [HEADER_START]
    for function in members.by_hand:
        text = textwrap.wrap(members.docs[function.stem], WIDTH - 6, break_long_words=False, break_on_hyphens=False)
        lines += ["/* " + "\n * ".join(text) + " */", c_declaration(function)]
    for owner, functions in members.groups.items():
        lines += ["", f"/* {owner} */", *map(c_declaration, functions)]
    for topic in plan.topics:
        for made in topic.classes:
            lines += ["", f"/* {made.name} */", *map(c_declaration, functions_of(plan, made))]
    return "\n".join([*lines, HEADER_END])
