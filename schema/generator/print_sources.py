# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The sources of the topics: the table of every class, and members that forward to the functions walking it."""

from cpp import FOLDER, comment, frame, own_source
from members import flag_member, members_of, own_choice
from model import PREFIX, REQUIRED
from print_headers import has_flag

VERSION = 4  # of the runtime's tables, lmx::k_binding_version


# Tables


def event_rows(kind, items):
    return [f'    {kind}_event("{item.name}", {kind}_{item.name}),' for item in items]


def event_map(made, part, rows):
    """A map and its name; classes without rows share the empty one."""
    if not rows:
        return [], "k_no_events"
    name = f"k_{made.name}_{part}"
    return [f"constexpr s_event_map {name}[] = {{", *rows, "    k_end_of_map,", "};"], name


def use_mask(made, item):
    uses = ("required",) if item.use == REQUIRED else item.use
    if item is made.name_item:
        uses += ("name",)
    return " | ".join(f"use_{use}" for use in uses) or "use_optional"


def facets_of(item):
    return f"&facets::{item.value.name}" if item.value and item.value.facets() else "nullptr"


def row(plan, made, item, map_name):
    value = item.value.value if item.value and item.kind != "marker" else "none"
    if item.enumerated:
        value = "enumerated"
    stored_type = f"&{item.type}::k_class" if item.type and item.kind != "marker" else "nullptr"
    mode = "ELMX_WS_COLLAPSE" if item.value and item.value.collapse else "ELMX_WS_PRESERVE"
    name = {"attribute": item.name, "content": "", "group": "", "group_list": ""}.get(item.kind, PREFIX + item.name)
    if item.kind in ("group", "group_list") and item.name:
        name = PREFIX + item.name
    elements = plan.map_items(item)
    token = plan.token(item) if item.kind == "attribute" or (elements and elements[0] is item) else "0"
    position = "0, 0"
    if elements and item.kind != "attribute":
        first = plan.token(elements[0])
        position = ", ".join(f"position_of({map_name}, {first}{width})" for width in ("", f", {len(elements)}"))
    offset, flag = "0", "k_no_flag"
    if has_flag(item):
        flag = f"LMX_FLAG({made.name}, {flag_member(made, item)})"
    if item.kind not in ("alternative", "marker") and not made.derives_from_group:
        offset = f"LMX_OFFSET({made.name}, m_{item.accessor}, {item.kind}, {value})"
    factory = "{}"
    if item.kind == "alternative" and item.type and plan.factory(plan.by_name[item.type]):
        factory = f"{item.type}::k_factory"
    return (f'    {{item_kind::{item.kind}, value_kind::{value}, {use_mask(made, item)}, {mode}, "{name}", {token},\n'
            f"     {offset}, {flag}, {position}, {stored_type}, {facets_of(item)}, {factory}}},")


def class_table(plan, made):
    name = made.name
    attribute_map, attributes = event_map(made, "attributes", event_rows("attribute", made.attributes))
    elements = [element for item in made.elements for element in plan.map_items(item)]
    element_map, children = event_map(made, "elements", event_rows("element", elements))
    maps = attribute_map + element_map
    if maps:
        yield from ("namespace {", *maps, "}  // namespace", "")
    if made.items:
        yield f"constinit const s_item {name}::k_items[] = {{"
        yield from (row(plan, made, item, children) for item in made.items)
        yield "};"
    if known := plan.factory(made):
        yield f"constinit const s_factory_row {name}::k_factory[] = {{"
        yield from (f'    {{"{other.name}", &{other.name}::k_class}},' for other in known)
        yield "};"
    base, identity = plan.table_base(made), plan.identity(made)
    count = f"std::size({attributes}) - 1"
    fields = {
        "name": f'"{name}"',
        "qualified_name": f'"{made.qualified_name}"',
        "base": base and f"&{base}::k_class",
        "content": f"content_kind::{made.content}",
        "may_be_empty": made.may_be_empty and "true",
        "ns_map": not (made.local or made.inline) and "k_ns_map",
        "nil_flag": made.nillable and f"LMX_FLAG({name}, m_isnil)",
        "choice": own_choice(made) and f"LMX_CHOICE({name}, m_choice)",
        "id": identity and f"&{identity.name}::id",
        "xsi_type": identity and f'"{PREFIX}{identity.name}"',
        "attributes": made.attributes and f"std::span(k_items).first({count})",
        "elements": made.elements and f"std::span(k_items).subspan({count})",
        "attribute_map": attributes,
        "element_map": children,
        "operations": f"&k_operations<{name}>",
    }
    yield f"constinit const s_class {name}::k_class = {{"
    yield from (f"    .{field} = {value}," for field, value in fields.items() if value)
    yield "};"


def statics(plan, made):
    """What a class has one of, besides its table."""
    name = made.name
    if made.named and not made.wrapper:
        yield f'namespace {{ const char k_{name}_id[] = "{name}"; }}'
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
    pragmas = [
        "// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.",
        "#pragma GCC diagnostic ignored \"-Winvalid-offsetof\"",
        "",
    ]
    includes = own_source(topic.name, [
        "lmx/binding/binding.h", "lmx/binding/rows.h", f"{FOLDER}/tables.h",
        *(f"{FOLDER}/{name}.h" for name in topic.source_needs)])
    text = frame(f"Tables and members of the classes in {topic.name}.h.", [], includes, body[:-1])
    start, end = text.split("\nnamespace com_vyrgraph_v2 {", 1)
    return start + "\n" + "\n".join(pragmas) + "\nnamespace com_vyrgraph_v2 {" + end


# What the sources share


def print_tables_header(plan):
    body = [f'inline constexpr lmx::s_ns_map k_ns_map[] = {{{{1000, "{PREFIX[:-1]}", "{plan.model.namespace}"}}, '
            "{0, nullptr, nullptr}};", "",
            "/// One per name and kind; below lie the reader's own events.", "enum token : int {"]
    body += [f"    {name}{' = 14' if name == plan.tokens[0] else ''}," for name in plan.tokens]
    body += ["};", "", "/// What values must meet, by the simple types of the schema.", "namespace facets {"]
    body += [f"extern const lmx::s_facets {simple.name};" for simple in plan.facets]
    body += ["}  // namespace facets"]
    return frame("What the tables of all classes share: the namespace map, tokens and facets.", ["#pragma once", ""],
                 ["lmx/binding/table.h"], body)


def print_tables_source(plan):
    hidden, shown = [], []
    for simple in plan.facets:
        name = simple.name
        fields = {}
        if simple.enumeration:
            hidden += [f"constexpr std::string_view k_{name}_texts[] = {{",
                       *(f'    "{text}",' for text in simple.enumeration), "};"]
            hidden.append(f"constinit const lmx::c_enumeration k_{name}_enumeration(k_{name}_texts);")
            fields["enumeration"] = f"k_{name}_texts"
            fields["enumerated"] = f"&k_{name}_enumeration"
        for end in ("minimum", "maximum"):
            if getattr(simple, end) is not None:
                fields[end] = getattr(simple, end)
        for flag in ("minimum_exclusive", "maximum_exclusive", "setter_skips_minimum", "pattern_takes_zoned"):
            if getattr(simple, flag):
                fields[flag] = "true"
        if simple.minimum_length:
            fields["minimum_length"] = simple.minimum_length
        if simple.maximum_length is not None:
            fields["maximum_length"] = simple.maximum_length
        if "int" in simple.value:
            for end in ("minimum", "maximum"):
                fields[f"{end}_integer"] = f'"{getattr(simple, end)}"'
        if simple.pattern is not None:
            literal = simple.pattern.replace("\\", "\\\\").replace('"', '\\"')
            hidden.append(f'const lmx::c_pattern& {name}_pattern() '
                          f'{{ static const lmx::c_pattern pattern("{literal}"); return pattern; }}')
            fields["pattern"] = f"{name}_pattern"
        shown += [*comment(simple.doc), f"constinit const lmx::s_facets {name} = {{",
                  *(f"    .{field} = {value}," for field, value in fields.items()), "};"]
    body = ["namespace {", *hidden, "}  // namespace", "", "namespace facets {", *shown, "}  // namespace facets"]
    return frame("The facets of the simple types.", [], own_source("tables", []), body)


def print_class_list_header(plan):
    return frame("All classes by name, for tools and tests that walk them.", ["#pragma once", ""],
                 ["<span>", "lmx/binding/document.h", "lmx/export.h"],
                 [f"/// The {len(plan.model.classes)} classes of the format, in schema order.",
                  "VYR_EXPORT std::span<const lmx::s_named_class> all_classes();"])


def print_class_list_source(plan):
    body = ["std::span<const lmx::s_named_class> all_classes() {",
            "    static constexpr lmx::s_named_class k_classes[] = {"]
    for made in plan.model.classes:
        document = f"&{made.name}::k_document" if made.is_document else "nullptr"
        body.append(f'        {{"{made.name}", &{plan.table(made).name}::k_class, &lmx::k_operations<{made.name}>, '
                    f"{document}}},")
    body += ["    };", "    return k_classes;", "}"]
    return frame("The list of all classes.", [], own_source("class_list", [f"{FOLDER}/classes.h"]), body)
