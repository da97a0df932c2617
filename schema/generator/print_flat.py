# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""flat/generated/: one plain function per member of a class, the list of their names, and a header for C.

A function is a line that names a member; conversion, null checks and exceptions lie in flat/call.h. The overload
number of a member is its place among the members of its name in the class's declaration; members that the flat
interface leaves out keep theirs.
"""

from dataclasses import dataclass

from cpp import FOLDER, NAMESPACE, WIDTH, frame, wrap
from members import members_of
from source import SchemaError

WIDE, NARROW, OBJECT, INDEX = "const char16_t*", "const char*", "void*", "std::uint32_t"
WIDE_RESULT, NARROW_RESULT = "char16_t*", "char*"  # new strings, which the host owns
CODE, FLAG = "std::int32_t", "std::int32_t"
SELF = (OBJECT, "self")

# C++ type of a parameter -> type of the argument, and its form for the member.
PARAMETERS = {
    "bool": ("std::uint32_t", "to_bool({})"),
    "std::uint8_t": ("std::uint32_t", "static_cast<std::uint8_t>({})"),
    "std::size_t": (INDEX, "{}"),
    "const std::string&": (NARROW, "{}"),
    "const std::u16string&": (WIDE, "{}"),
}
# C++ type of a result -> type, and its form from the member's.
RESULTS = {
    "bool": (FLAG, "{}"),
    "elmx_chosen": (CODE, "{}"),
    "lmx::elmx_error": (CODE, "{}"),
    "std::uint8_t": ("std::uint32_t", "{}"),
    "std::size_t": (INDEX, "static_cast<std::uint32_t>({})"),
    "const char*": (NARROW_RESULT, "new_string({})"),
    "const std::u16string&": (WIDE_RESULT, "new_string({})"),
    "const lmx::c_datetime&": (OBJECT, "reference({})"),
    "const lmx::c_binary&": (OBJECT, "reference({})"),
}


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


def parameter(text):
    """Type, name, form for the member and the report on null of one C++ parameter."""
    kind, _, name = text.replace("file_name", "path").rpartition(" ")
    if kind in PARAMETERS:
        return PARAMETERS[kind][0], name, PARAMETERS[kind][1], "k_null_string" if "string&" in kind else None
    if not kind.endswith("&"):
        return kind, name, "{}", None
    bare = kind.removeprefix("const ")[:-1]
    shown = bare.replace("lmx::c_", "lmx::tc_") if "::" in bare else f"{NAMESPACE}::{bare}"
    return OBJECT, name, f"as<{bare}>({{}})", null_text(shown, "const &" if kind.startswith("const ") else "&")


def result_of(kind, name):
    if kind.startswith("Eenum_"):
        return CODE, "{}"
    if kind == "bool" and name.startswith("get_"):
        return "std::uint32_t", "{}"
    if kind in RESULTS:
        return RESULTS[kind]
    return (OBJECT, "&{}") if kind.endswith("&") else (OBJECT, "{}") if kind.endswith("*") else (kind, "{}")


def letter(text):
    """A parameter's name inside an action, where "s" is the object."""
    return "n" if text == "size" else text[0]


def function_of(owner, member, number):
    """The function of a member; `number` tells overloads apart."""
    found = member.parts
    name, stem = found["name"], f"CSharp_{owner}_{found['name']}{number}"
    parameters = [parameter(text) for text in found["parameters"].split(", ") if text]
    result, form = result_of(found["result"].strip(), name)
    own = [SELF, *((kind, text) for kind, text, _, _ in parameters)]
    check = parameters[-1][3] if parameters else None

    def call(self, value):
        return f"as<{owner}>({self}).{name}({', '.join(form.format(value(text)) for _, text, form, _ in parameters)})"

    if own[-1][0] == WIDE:
        inner = "".join(f", std::size_t {letter(text)}" for _, text in own[1:-1])
        body = f"with_text({', '.join(text for _, text in own)}, [](void* s{inner}, wide_text v) " \
               f"{{ return {call('s', letter)}; }})"
    elif check or member.flat == "guarded":
        order = [own[-1], *own[:-1]] if check else own  # what is checked goes first
        inner, given = ", ".join(f"{kind} {letter(text)}" for kind, text in order), ", ".join(text for _, text in order)
        address, action = (" -> void*", form.format(call("s", letter))) if result == OBJECT else ("", call("s", letter))
        verb = f"checked({check}, " if check else "guarded("
        body = f"{verb}+[]({inner}){address} {{ return {action}; }}, {given})"
    else:
        body = form.format(call("self", str))
    return Function(stem, result, tuple(own), body)


def made_by_class(plan, made):
    """What isn't called on an object, or not as it stands in the class."""
    name, is_named, source = made.name, made.named and not made.wrapper, ((OBJECT, "source"),)
    is_made, has_factory = not made.wrapper or made.is_document, plan.factory(made) and not made.wrapper
    rows = (
        (is_made, f"new_{name}__SWIG_0", OBJECT, (), f"make<{name}>()"),
        (is_made, f"new_{name}__SWIG_1", OBJECT, source,
         f"checked({null_text(f'{NAMESPACE}::{name}')}, &copy<{name}>, source)"),
        (True, f"delete_{name}", "void", (SELF,), f"destroy<{name}>(self)"),
        (made.base, f"{name}Upcast", OBJECT, (SELF,), f"upcast<{name}, {made.base}>(self)"),
        (made.is_document, f"{name}_ns_map", OBJECT, (), f"reference(*{name}::ns_map())"),
        (is_named, f"{name}_id_get", NARROW, (), f"{name}::id"),
        (is_named, f"{name}_id_set", "void", ((NARROW, "identity"),), f"set_identity(&{name}::id, identity)"),
        (has_factory, f"{name}_factory", OBJECT, ((CODE, "ns_id"), (NARROW, "name")),
         f"checked(k_null_string, +[](const char* n, std::int32_t i) -> void* {{ return {name}::factory(i, n); }}, "
         "name, ns_id)"),
    )
    return [Function(f"CSharp_{stem}", *rest) for is_there, stem, *rest in rows if is_there]


def functions_of(plan, made):
    functions, members = made_by_class(plan, made), members_of(plan, made)
    names = [member.parts and member.parts["name"] for member in members]
    for place, member in enumerate(members):
        if member.flat:
            number = f"__SWIG_{names[:place].count(names[place])}" if names.count(names[place]) > 1 else ""
            functions.append(function_of(made.name, member, number))
    return functions


def print_flat_source(plan, topic):
    body = ["using namespace flat;", "", 'extern "C" {']
    for made in topic.classes:
        body += ["", f"// {made.name}", *(function.line() for function in functions_of(plan, made))]
    includes = ["flat/call.h", *(f"{FOLDER}/{name}.h" for name in sorted({topic.name, *topic.source_needs}))]
    return frame(f"Flat functions of the classes in {topic.name}.h.", includes, [*body, "", '}  // extern "C"'])


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
        text = wrap(members.docs[function.stem], WIDTH - 6)
        lines += ["/* " + "\n * ".join(text) + " */", c_declaration(function)]
    for owner, functions in members.groups.items():
        lines += ["", f"/* {owner} */", *map(c_declaration, functions)]
    for topic in plan.topics:
        for made in topic.classes:
            lines += ["", f"/* {made.name} */", *map(c_declaration, functions_of(plan, made))]
    return "\n".join([*lines, HEADER_END])
