# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The sources of the topics: the table of every class, and members that forward to the functions walking it."""

from cpp import FOLDER, LISTS, comment, frame, own_source, parameter_type
from model import PREFIX, REQUIRED
from print_headers import flag_member, has_flag

VERSION = 3  # of the runtime's tables, lmx::k_binding_version


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
        "base": f"&{base}::k_class" if base else "nullptr",
        "content": f"content_kind::{made.content}",
        "may_be_empty": str(made.may_be_empty).lower(),
        "ns_map": "nullptr" if made.local or made.inline else "k_ns_map",
        "nil_flag": f"LMX_FLAG({name}, m_isnil)" if made.nillable else "k_no_flag",
        "choice": f"LMX_CHOICE({name}, m_choice)" if own_choice(made) else "k_no_flag",
        "id": f"&{identity.name}::id" if identity else "nullptr",
        "xsi_type": f'"{PREFIX}{identity.name}"' if identity else "nullptr",
        "attributes": f"std::span(k_items).first({count})" if made.items else "{}",
        "elements": f"std::span(k_items).subspan({count})" if made.items else "{}",
        "attribute_map": attributes,
        "element_map": children,
        "operations": f"&k_operations<{name}>",
    }
    yield f"constinit const s_class {name}::k_class = {{"
    yield from (f"    .{field} = {value}," for field, value in fields.items())
    yield "};"


def own_choice(made):
    return made.content in ("choice", "group") and not made.derives_from_group


# Members


def document_part(made):
    name = made.name
    preset = "" if made.wrapper else "*error = lmx::ELMX_UNDEFINED_ERROR; "
    ending = " init();" if made.init else ""
    forms = {"const char* file_name": "file_name", "const char* data, std::size_t size": "data, size",
             "const std::string& text": "text.data(), text.size()"}
    yield f'constinit const lmx::s_document {name}::k_document = {{"{PREFIX}{made.element}", "{made.element}", k_ns_map, ' \
          f"&lmx::k_operations<{name}>}};"
    yield f"const lmx::s_ns_map* {name}::ns_map() {{ return k_ns_map; }}"
    yield f"lmx::elmx_error {name}::unmarshal(lmx::c_xml_reader& reader) " \
          "{ return lmx::unmarshal_document(k_document, this, reader); }"
    if not made.is_document:
        return
    for parameters, arguments in forms.items():
        yield f"{name}::{name}({parameters}, lmx::elmx_error* error) : {name}() " \
              f"{{ {preset}*error = unmarshal({arguments});{ending} }}"
        yield f"lmx::elmx_error {name}::unmarshal({parameters}) " \
              f"{{ return lmx::unmarshal_document(k_document, this, {arguments}); }}"
    for parameter in ("const char* file_name", "std::string* text", "std::ostream& stream"):
        yield f"lmx::elmx_error {name}::marshal({parameter}) const " \
              f"{{ return lmx::marshal_document(k_document, this, {parameter.split()[-1]}); }}"


def wrapper_members(made):
    name, base = made.name, made.base
    yield f"lmx::elmx_error {name}::marshal(lmx::c_xml_writer& writer, const char* name) const {{"
    yield "    writer.conditionally_select_ns_map(k_ns_map);"
    yield f"    return {base}::marshal(writer, name);"
    yield "}"
    yield f"lmx::elmx_error {name}::unmarshal(lmx::c_xml_reader& reader, const std::string& name) " \
          f"{{ return {base}::unmarshal(reader, name); }}"
    yield from document_part(made)


def life_cycle(made):
    name = made.name
    init = " init();" if made.init else ""
    base = f" : {made.base}()" if made.base else ""
    # The texts of enumerations are not known in the header.
    initial = ", ".join(f"m_{item.accessor}(facets::{item.value.name}.enumerated->find("
                        f"{item.value.enumeration.index(item.initial) + 1}))"
                        for item in made.items if item.enumerated and item.initial is not None)
    if own_choice(made) or initial:
        base = f" : {name}()"  # for the initial values, and so that a copy that can't be finished is ended like others
    if initial:
        yield f"{name}::{name}() : {initial} {{{init} }}"
    else:
        yield f"{name}::{name}() {{{init} }}" if init else f"{name}::{name}() = default;"
    yield f"{name}::{name}(const {name}& other){base} {{ lmx::copy(k_class, this, &other);{init} }}"
    yield f"{name}::~{name}() {{ lmx::release_choice(k_class, this); }}" if own_choice(made) \
        else f"{name}::~{name}() = default;"
    yield f"{name}& {name}::operator=(const {name}& other) {{ {name} copy(other); swap(copy); return *this; }}"
    yield f"void {name}::swap({name}& other) {{ lmx::swap(k_class, this, &other); }}"
    yield f"void {name}::reset() {{ {name} fresh; lmx::exchange(k_class, this, &fresh); }}"
    yield f"bool {name}::is_occurs_ok() const {{ return lmx::is_occurs_ok(k_class, this); }}"


def reading_and_writing(made):
    name = made.name
    error = "lmx::elmx_error"
    if made.inline:
        writer = "marshal_group" if made.content == "group" else "marshal_child_elements"
        reader = "unmarshal_group" if made.content == "group" else "unmarshal_body"
        yield f"bool {name}::is_member(lmx::c_xml_reader& reader, const std::string&) " \
              "{ return lmx::is_group_member(k_class, reader); }"
        yield f"{error} {name}::marshal(lmx::c_xml_writer& writer, const char*) const " \
              f"{{ return lmx::{writer}(k_class, this, writer); }}"
        yield f"bool {name}::unmarshal(lmx::c_xml_reader& reader, std::string* name, {error}* error) " \
              f"{{ return lmx::{reader}(k_class, this, reader, name, error); }}"
    else:
        yield f"{error} {name}::marshal(lmx::c_xml_writer& writer, const char* name) const " \
              "{ return lmx::marshal_element(k_class, this, writer, name); }"
        yield f"{error} {name}::unmarshal(lmx::c_xml_reader& reader, const std::string& name) " \
              "{ return lmx::unmarshal_element(k_class, this, reader, name); }"
    yield f"void {name}::marshal_attributes(lmx::c_xml_writer& writer) const " \
          "{ lmx::marshal_attributes(k_class, this, writer); }"
    yield f"{error} {name}::marshal_child_elements(lmx::c_xml_writer& writer) const " \
          "{ return lmx::marshal_child_elements(k_class, this, writer); }"
    if made.inline:
        return
    yield f"bool {name}::unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, {error}* error) " \
          "{ return lmx::unmarshal_attribute(k_class, this, reader, name, error); }"
    yield f"{error} {name}::unmarshal_attributes_check(lmx::c_xml_reader& reader) " \
          "{ return lmx::check_required_attributes(k_class, this, reader); }"
    function, flag, argument = ("unmarshal_content", ", bool has_body", ", has_body") if made.content == "simple" \
        else ("unmarshal_body", "", "")
    yield f"bool {name}::unmarshal_body(lmx::c_xml_reader& reader, std::string* name, {error}* error{flag}) " \
          f"{{ return lmx::{function}(k_class, this, reader, name, error{argument}); }}"


def family_members(plan, made):
    name = made.name
    if made.named:
        base = f" || {made.base}::has_id(identity)" if made.base else ""
        yield f'namespace {{ const char k_{name}_id[] = "{name}"; }}'
        yield f"const char* {name}::id = k_{name}_id;"
        yield f"{name}* {name}::clone() const {{ return new {name}(*this); }}"
        yield f"const char* {name}::getid() const {{ return id; }}"
        yield f"bool {name}::has_id(const char* identity) const {{ return identity == id{base}; }}"
    if plan.factory(made):
        yield f"{name}* {name}::factory(int ns_id, const std::string& name) " \
              f"{{ return static_cast<{name}*>(lmx::create_by_name(k_factory, ns_id, name)); }}"


def simple_setters(owner, item):
    x, value = item.accessor, parameter_type(item.value.value)
    row_name = f"k_items[item_{x}]"
    yield f"lmx::elmx_error {owner}::set_{x}({value} value) {{ return lmx::set_item(k_class, {row_name}, this, value); }}"
    if item.enumerated:
        if item.kind == "alternative":
            yield f"Eenum_{x} {owner}::getenum_{x}() const " \
                  f"{{ return static_cast<Eenum_{x}>(lmx::chosen_number(k_class, {row_name}, this)); }}"
        yield f"bool {owner}::setenum_{x}(std::int32_t number) " \
              f"{{ return lmx::set_enumerated(k_class, {row_name}, this, number); }}"


def list_members(owner, item):
    x = item.accessor
    start = f"lmx::elmx_error {owner}::"
    if item.kind == "element_list":
        value, row_name = parameter_type(item.value.value), f"k_items[item_{x}]"
        yield f"{start}set_{x}(std::size_t index, {value} value) " \
              f"{{ return lmx::set_entry({row_name}, this, index, value); }}"
        yield f"{start}append_{x}({value} value) " \
              f"{{ return lmx::insert_entry({row_name}, this, size_{x}(), value); }}"
        yield f"{start}insert_{x}(std::size_t index, {value} value) " \
              f"{{ return lmx::insert_entry({row_name}, this, index, value); }}"
    elif item.kind == "any":
        yield f"void {owner}::get_any(std::size_t index, std::string* ns, std::string* name, std::string* value) const {{"
        yield "    if (ns != nullptr) *ns = m_any[index].get_namespace();"
        yield "    if (name != nullptr) *name = m_any[index].get_name();"
        yield "    *value = m_any[index].get_value();"
        yield "}"
        yield f"{start}append_any(const std::string& value) {{ return insert_any(size_any(), value); }}"
        yield f"{start}insert_any(std::size_t index, const std::string& value) " \
              "{ m_any.insert(index).set_value(value); return lmx::ELMX_OK; }"
    else:
        kind = item.type
        yield f"{kind}& {owner}::get_{x}(std::size_t index) {{ return m_{x}.grow_to(index); }}"
        yield f"{kind}& {owner}::assign_{x}(std::size_t index, const {kind}& value) " \
              f"{{ return get_{x}(index) = value; }}"
        yield f"{start}append_{x}() {{ m_{x}.append(); return lmx::ELMX_OK; }}"
        yield f"{start}insert_{x}(std::size_t index) {{ m_{x}.insert(index); return lmx::ELMX_OK; }}"
    yield f"void {owner}::delete_{x}(std::size_t index) {{ m_{x}.erase(index); }}"
    yield f"void {owner}::clear_{x}() {{ m_{x}.clear(); }}"


def item_members(plan, made, item):
    owner, x, kind = made.name, item.accessor, item.type
    if item.kind in (*LISTS, "any"):
        yield from list_members(owner, item)
    elif item.kind == "alternative" and kind:
        row_name = f"k_items[item_{x}]"
        yield f"{kind}& {owner}::get_{x}() " \
              f"{{ return *static_cast<{kind}*>(lmx::choose(k_class, {row_name}, this)); }}"
        # The copy comes first: choosing frees the former alternative, which the value may be a part of.
        yield f"{kind}& {owner}::assign_{x}(const {kind}& value) " \
              f"{{ {kind} copy(value); {kind}& target = get_{x}(); target.swap(copy); return target; }}"
        if plan.factory(plan.by_name[kind]):
            # Null chooses the member without a value, which no reference can stand for.
            yield f"{kind}& {owner}::assign_{x}({kind}* value) " \
                  f"{{ lmx::adopt(k_class, {row_name}, this, value); if (value != nullptr) return *value; " \
                  f"thread_local {kind} nothing; nothing.reset(); return nothing; }}"
    elif made.derives_from_group:
        yield f"{kind}& {owner}::assign_{x}(const {kind}& value) {{ return get_{x}().{kind}::operator=(value); }}"
    elif kind:
        if item.kind == "optional_child":
            yield f"{kind}& {owner}::get_{x}() " \
                  f"{{ {kind}& child = m_{x}.touch(); m_isset_{x} = true; return child; }}"
            yield f"const {kind}& {owner}::get_{x}() const {{ return m_{x}.get(); }}"
        yield f"{kind}& {owner}::assign_{x}(const {kind}& value) {{ return get_{x}() = value; }}"
    else:
        if item.kind == "alternative" and item.value.value == "text":
            yield f"const std::u16string& {owner}::get_{x}() const " \
                  f"{{ return lmx::chosen_text(k_class, k_items[item_{x}], this); }}"
        yield from simple_setters(owner, item)


def inherited_content(plan, made):
    """The setters of a nillable class whose content lies in its base: they also end the nil state."""
    if found := plan.content_item(made):
        base, item = found
        x = item.accessor
        yield f"lmx::elmx_error {made.name}::set_{x}({parameter_type(item.value.value)} value) {{"
        yield f"    const lmx::elmx_error error = {base.name}::set_{x}(value);"
        yield "    if (error == lmx::ELMX_OK) m_isnil = false;"
        yield "    return error;"
        yield "}"
        if item.enumerated:
            yield f"bool {made.name}::setenum_{x}(std::int32_t number) {{"
            yield f"    const bool is_set = {base.name}::setenum_{x}(number);"
            yield "    if (is_set) m_isnil = false;"
            yield "    return is_set;"
            yield "}"


def print_source(plan, topic):
    body = ["using namespace lmx;  // for the tables' sake", "",
            f'static_assert(k_binding_version == {VERSION}, "run schema/generator/generate.py");', ""]
    for made in topic.classes:
        body.append(f"// {made.name}")
        body.append("")
        if made.wrapper:
            body += [*wrapper_members(made), ""]
            continue
        body += [*class_table(plan, made), "", *life_cycle(made), *reading_and_writing(made),
                 *family_members(plan, made)]
        if made.is_document:
            body += document_part(made)
        for item in made.items:
            if item.accessor:
                body += item_members(plan, made, item)
        body += [*inherited_content(plan, made), ""]
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
                hidden.append(f'const lmx::c_big_int k_{name}_{end}("{getattr(simple, end)}");')
                fields[f"{end}_integer"] = f"&k_{name}_{end}"
        if simple.pattern is not None:
            literal = simple.pattern.replace("\\", "\\\\").replace('"', '\\"')
            hidden.append(f'const lmx::c_pattern k_{name}_pattern("{literal}");')
            fields["pattern"] = f"&k_{name}_pattern"
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
