# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The sources of the topics: the table of every class, and members that forward to the functions walking it."""

from cpp import FOLDER, comment, frame, own_source
from members import flag_member, members_of, own_choice
from model import PREFIX, REQUIRED
from print_headers import has_flag

VERSION = 7  # of the runtime's tables, lmx::k_binding_version
NOTES = (
    "// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.",
    '#pragma GCC diagnostic ignored "-Winvalid-offsetof"',
    "",
)


def record(name, fields):
    """A constant of which the fields with a value are written."""
    yield f"constinit const {name} = {{"
    yield from (f"    .{field} = {value}," for field, value in fields.items() if value)
    yield "};"


def use_mask(made, item):
    uses = ("required",) if item.use == REQUIRED else item.use
    if item is made.name_item:
        uses += ("name",)
    return " | ".join(f"use_{use}" for use in uses) or "use_optional"


def facets_of(item):
    return f"&facets::{item.value.name}" if item.value and item.value.facets() else "nullptr"


def row(plan, made, item):
    value = item.value.value if item.value and item.kind != "marker" else "none"
    if item.enumerated:
        value = "enumerated"
    mode = "ELMX_WS_COLLAPSE" if item.value and item.value.collapse else "ELMX_WS_PRESERVE"
    # What has no name of its own is printed under those of its parts; open content brings names along.
    name = item.name if item.kind == "attribute" or not (item.name or item.kind == "any") else PREFIX + item.name
    offset, flag, factory = "0", "k_no_flag", "{}"
    token = f'{plan.name_kind(item)}("{item.name}")' if plan.name_kind(item) else "0"
    if has_flag(item):
        flag = f"LMX_FLAG({made.name}, {flag_member(made, item)})"
    if item.kind not in ("alternative", "marker") and not made.derives_from_group:
        offset = f"LMX_OFFSET({made.name}, m_{item.accessor}, {item.kind}, {value})"
    if item.kind == "alternative" and item.type and plan.factory(plan.by_name[item.type]):
        factory = f"{item.type}::k_factory"
    type_table = f"&{item.type}::k_class" if item.type and item.kind != "marker" else "nullptr"
    fields = [f"item_kind::{item.kind}", f"value_kind::{value}", use_mask(made, item), mode, f'"{name}"', token,
              offset, flag, type_table, facets_of(item), factory]
    while fields[-1] in ("0", "nullptr", "{}"):
        fields.pop()
    return f"    {{{', '.join(fields)}}},"


def class_table(plan, made):
    name = made.name
    if made.items:
        yield f"constexpr s_item {name}::k_items[] = {{"
        yield from (row(plan, made, item) for item in made.items)
        yield "};"
    if known := plan.factory(made):
        yield f"constinit const s_factory_row {name}::k_factory[] = {{"
        yield from (f'    {{"{other.name}", &{other.name}::k_class}},' for other in known)
        yield "};"
    base, identity = plan.table_base(made), plan.identity(made)
    own_attributes, own_elements = made.attributes and "k_items", made.elements and "k_items"
    if own_attributes and own_elements:
        own_attributes, own_elements = (f"std::span(k_items).{part}(attribute_count(k_items))"
                                        for part in ("first", "subspan"))
    fields = {
        "name": f'"{name}"',
        "qualified_name": f'"{made.qualified_name}"',
        "base": base and f"&{base}::k_class",
        "content": f"content_kind::{made.content}",
        "may_be_empty": made.may_be_empty and "true",
        "names": "&k_names",
        "ns_map": not (made.local or made.inline) and "k_ns_map",
        "nil_flag": made.nillable and f"LMX_FLAG({name}, m_isnil)",
        "choice": own_choice(made) and f"LMX_CHOICE({name}, m_choice)",
        "id": identity and f"&{identity.name}::id",
        "attributes": own_attributes,
        "elements": own_elements,
        "operations": f"&k_operations<{name}>",
    }
    yield from record(f"s_class {name}::k_class", fields)


def statics(plan, made):
    """What a class has one of, besides its table."""
    name = made.name
    if made.named and not made.wrapper:
        yield f'const char k_{name}_id[] = "{name}";'
        yield f"const char* {name}::id = k_{name}_id;"
    if made.wrapper or made.is_document:
        yield f'constinit const lmx::s_document {name}::k_document = {{"{PREFIX}{made.element}", "{made.element}", ' \
              f"k_ns_map, &lmx::k_operations<{name}>}};"


def print_source(plan, topic):
    body = ["using namespace lmx;  // for the tables' sake", "",
            f'static_assert(k_binding_version == {VERSION}, "run schema/generator/generate.py");', ""]
    for made in topic.classes:
        definitions = [member.definition(made.name) for member in members_of(plan, made)]
        table = [] if made.wrapper else [*class_table(plan, made), ""]
        body += [f"// {made.name}", "", *table, *statics(plan, made), *filter(None, definitions), ""]
    adopts = any("lmx::thread_object<" in line for line in body)
    includes = own_source(topic.name, [
        "lmx/binding/binding.h", *["lmx/binding/thread_object.h"] * adopts, f"{FOLDER}/tables.h",
        *(f"{FOLDER}/{name}.h" for name in topic.source_needs)])
    return frame(f"Tables and members of the classes in {topic.name}.h.", includes, body[:-1], notes=NOTES)


# What the sources share


def print_tables_header(plan):
    body = [f'inline constexpr lmx::s_ns_map k_ns_map[] = {{{{1000, "{PREFIX[:-1]}", "{plan.model.namespace}"}}, '
            "{0, nullptr, nullptr}};", "",
            "/// The names of items. Each has a number, which is its event; below lie the reader's own."]
    lists, first_token = [], "14"
    for (kind, names), ns_id in zip(plan.names.items(), (1, 1000)):
        body += [f"inline constexpr std::string_view k_{kind}_names[] = {{", *(f'    "{name}",' for name in names), "};"]
        lists.append(f"{{{ns_id}, {first_token}, k_{kind}_names}}")
        first_token += f" + std::size(k_{kind}_names)"
    body += [f"inline constexpr lmx::s_name_lists k_names = {{{', '.join(lists)}}};",
             *(f"consteval int {kind}(std::string_view name) {{ return k_names.{kind}s.find(name); }}"
               for kind in plan.names), "",
             "/// What values must meet, by the simple types of the schema.", "namespace facets {"]
    body += [f"extern const lmx::s_facets {simple.name};" for simple in plan.facets]
    body += ["}  // namespace facets"]
    return frame("What the tables of all classes share: the namespace map, tokens and facets.", ["lmx/binding/table.h"],
                 body, is_header=True)


def facet_parts(simple):
    """What stands beside the facets of a type, and their fields."""
    name, parts, pattern = simple.name, [], simple.pattern
    if simple.enumeration:
        rows = (f'    "{text}",' for text in simple.enumeration)
        parts += [f"constexpr std::string_view k_{name}_texts[] = {{", *rows, "};",
                  f"constinit const lmx::c_enumeration k_{name}_enumeration(k_{name}_texts);"]
    if pattern:
        literal = pattern.replace("\\", "\\\\").replace('"', '\\"')
        parts.append(f"const lmx::c_pattern& {name}_pattern() "
                     f'{{ static const lmx::c_pattern pattern("{literal}"); return pattern; }}')
    return parts, {
        "enumeration": simple.enumeration and f"&k_{name}_enumeration",
        "minimum": simple.minimum,
        "maximum": simple.maximum,
        **{flag: getattr(simple, flag) and "true"
           for flag in ("minimum_exclusive", "maximum_exclusive", "setter_skips_minimum", "pattern_takes_zoned")},
        "minimum_length": simple.minimum_length,
        "maximum_length": simple.maximum_length,
        **{f"{end}_integer": f'"{getattr(simple, end)}"' for end in ("minimum", "maximum") if "int" in simple.value},
        "pattern": pattern and f"{name}_pattern",
    }


def print_tables_source(plan):
    hidden, shown = [], []
    for simple in plan.facets:
        parts, fields = facet_parts(simple)
        hidden += parts
        shown += [*comment(simple.doc), *record(f"lmx::s_facets {simple.name}", fields)]
    body = ["namespace {", *hidden, "}  // namespace", "", "namespace facets {", *shown, "}  // namespace facets"]
    return frame("The facets of the simple types.", own_source("tables", []), body)


def print_class_list_header(plan):
    return frame("All classes by name, for tools and tests that walk them.",
                 ["<span>", "lmx/binding/document.h", "lmx/export.h"],
                 [f"/// The {len(plan.model.classes)} classes of the format, in schema order.",
                  "VYR_EXPORT std::span<const lmx::s_named_class> all_classes();"], is_header=True)


def print_class_list_source(plan):
    body = ["std::span<const lmx::s_named_class> all_classes() {",
            "    static constexpr lmx::s_named_class k_classes[] = {"]
    for made in plan.model.classes:
        document = f"&{made.name}::k_document" if made.is_document else "nullptr"
        body.append(f'        {{"{made.name}", &{plan.table(made).name}::k_class, &lmx::k_operations<{made.name}>, '
                    f"{document}}},")
    body += ["    };", "    return k_classes;", "}"]
    return frame("The list of all classes.", own_source("class_list", [f"{FOLDER}/classes.h"]), body)
