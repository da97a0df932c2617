# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The members of a class, each once: its signature, its body and whether the flat interface has it. Headers, sources
and flat functions are printed from this list."""

import re
from dataclasses import dataclass, replace

from cpp import LISTS, SLOT_FIELDS, parameter_type

SIGNATURE = re.compile(r"(?P<result>.* )?(?P<name>~?\w+|operator=)\((?P<parameters>.*)\)(?P<const> const)?")
CODE = "lmx::elmx_error"
READER, WRITER = "lmx::c_xml_reader& reader", "lmx::c_xml_writer& writer"


@dataclass(frozen=True)
class Member:
    signature: str
    body: str = ""  # without one it is declared only
    flat: str = ""  # "plain", "guarded" if it may allocate, or nothing if the flat interface leaves it out
    inline: bool = False
    before: str = ""  # "virtual ", "static "
    after: str = ""  # " override"
    initial: str = ""  # of a constructor
    doc: str = ""
    begins: bool = False  # a group, with a blank line ahead

    @property
    def parts(self):
        return SIGNATURE.fullmatch(self.signature)

    def block(self, body):
        return f" {body};" if body.startswith("=") else f" {{ {body} }}" if body else " {}"

    def declaration(self):
        """As it stands in the class."""
        return f"{self.before}{self.signature}{self.after}{self.block(self.body) if self.inline else ';'}"

    def definition(self, owner):
        """As it stands in a source; nothing for what needs none."""
        if self.inline or not (self.body or self.initial):
            return None
        found = self.parts
        return (f"{found['result'] or ''}{owner}::{found['name']}({found['parameters']}){found['const'] or ''}"
                f"{self.initial}{self.block(self.body)}")


def inline(signature, body, flat="", **options):
    return Member(signature, body, flat, inline=True, **options)


def own_choice(made):
    return made.content in ("choice", "group") and not made.derives_from_group


def flag_member(made, item):
    """The present flag; of a class that is a holder itself, its choice's, which inherited accessors raise too."""
    return "m_choice.is_touched" if made.derives_from_group else f"m_isset_{item.accessor}"


# Items. What needs a complete type, or would make the header heavy, is not inline.


def value_setter(x, kind):
    return Member(f"{CODE} set_{x}({kind} value)", f"return lmx::set_item(k_class, k_items[item_{x}], this, value);", "plain")


def number_members(item):
    """Of an enumerated item, besides its text."""
    x = item.accessor
    if item.enumerated:
        if item.kind == "alternative":
            yield Member(f"Eenum_{x} getenum_{x}() const",
                         f"return static_cast<Eenum_{x}>(lmx::chosen_number(k_class, k_items[item_{x}], this));", "plain")
        else:
            yield inline(f"Eenum_{x} getenum_{x}() const", f"return static_cast<Eenum_{x}>(m_{x}.number());", "plain")
        yield Member(f"bool setenum_{x}(std::int32_t number)",
                     f"return lmx::set_enumerated(k_class, k_items[item_{x}], this, number);", "guarded")


def simple_members(item):
    x, kind = item.accessor, parameter_type(item.value.value)
    if item.kind != "alternative":
        yield inline(f"{kind} get_{x}() const", f"return m_{x}{'.get()' if item.enumerated else ''};", "plain")
    elif item.value.value == "text":
        yield Member(f"{kind} get_{x}() const", f"return lmx::chosen_text(k_class, k_items[item_{x}], this);", "plain")
    else:
        slot = f"m_choice.{SLOT_FIELDS[item.value.value]}"
        yield inline(f"{kind} get_{x}() const", f"return m_choice.chosen == e_{x} ? {slot} : 0;", "plain")
    yield value_setter(x, kind)
    yield from number_members(item)


def object_members(made, item):
    x, kind = item.accessor, item.type
    if item.kind == "optional_child":
        yield Member(f"{kind}& get_{x}()",
                     f"{kind}& child = m_{x}.touch(); m_isset_{x} = true; return child;", "guarded")
        yield Member(f"const {kind}& get_{x}() const", f"return m_{x}.get();")
    else:
        place = "*this" if made.derives_from_group else f"m_{x}"
        yield inline(f"{kind}& get_{x}()", f"{flag_member(made, item)} = true; return {place};", "plain")
        yield inline(f"const {kind}& get_{x}() const", f"return {place};")
    assigned = f".{kind}::operator=(value)" if made.derives_from_group else " = value"
    yield Member(f"{kind}& assign_{x}(const {kind}& value)", f"return get_{x}(){assigned};", "guarded")


def alternative_members(plan, item):
    x, kind, row = item.accessor, item.type, f"k_items[item_{item.accessor}]"
    yield Member(f"{kind}& get_{x}()", f"return *static_cast<{kind}*>(lmx::choose(k_class, {row}, this));", "guarded")
    yield inline(f"const {kind}& get_{x}() const", f"return *static_cast<const {kind}*>(m_choice.object);")
    # The copy comes first: choosing frees the former alternative, which the value may be a part of.
    yield Member(f"{kind}& assign_{x}(const {kind}& value)",
                 f"{kind} copy(value); {kind}& target = get_{x}(); target.swap(copy); return target;", "guarded")
    if plan.factory(plan.by_name[kind]):
        # Null chooses the member without a value, which no reference can stand for.
        yield Member(f"{kind}& assign_{x}({kind}* value)",
                     f"lmx::adopt(k_class, {row}, this, value); if (value != nullptr) return *value; "
                     f"thread_local {kind} nothing; nothing.reset(); return nothing;",
                     doc="Takes an object, which may be of a derived class. Null leaves the member without one, which "
                         "can't be written; the reference is then to an object of the calling thread that belongs to "
                         "nothing.")


def list_members(item):
    x, kind, at = item.accessor, item.type, "std::size_t index"
    yield inline(f"std::size_t size_{x}() const", f"return m_{x}.size();", "plain")
    if item.kind == "element_list":
        value, row = parameter_type(item.value.value), f"k_items[item_{x}]"
        yield inline(f"{value} get_{x}({at}) const", f"return m_{x}[index];", "plain")
        yield Member(f"{CODE} set_{x}({at}, {value} value)", f"return lmx::set_entry({row}, this, index, value);", "plain")
        yield Member(f"{CODE} append_{x}({value} value)",
                     f"return lmx::insert_entry({row}, this, size_{x}(), value);", "plain")
        yield Member(f"{CODE} insert_{x}({at}, {value} value)",
                     f"return lmx::insert_entry({row}, this, index, value);", "plain")
    elif item.kind == "any":
        yield Member(f"void get_any({at}, std::string* ns, std::string* name, std::string* value) const",
                     "if (ns != nullptr) *ns = m_any[index].get_namespace(); "
                     "if (name != nullptr) *name = m_any[index].get_name(); *value = m_any[index].get_value();")
        yield Member(f"{CODE} append_any(const std::string& value)", "return insert_any(size_any(), value);", "guarded")
        yield Member(f"{CODE} insert_any({at}, const std::string& value)",
                     "m_any.insert(index).set_value(value); return lmx::ELMX_OK;", "guarded")
    else:
        yield Member(f"{kind}& get_{x}({at})", f"return m_{x}.grow_to(index);", "guarded")
        yield inline(f"const {kind}& get_{x}({at}) const", f"return m_{x}[index];")
        yield Member(f"{kind}& assign_{x}({at}, const {kind}& value)", f"return get_{x}(index) = value;", "guarded")
        yield Member(f"{CODE} append_{x}()", f"m_{x}.append(); return lmx::ELMX_OK;", "guarded")
        yield Member(f"{CODE} insert_{x}({at})", f"m_{x}.insert(index); return lmx::ELMX_OK;", "guarded")
        yield inline(f"{kind}& back_{x}()", f"return m_{x}.back();", "plain")
    yield Member(f"void delete_{x}({at})", f"m_{x}.erase(index);", "plain")
    yield Member(f"void clear_{x}()", f"m_{x}.clear();", "plain")


def item_members(plan, made, item):
    """The first one bears the item's documentation."""
    if item.kind in (*LISTS, "any"):
        found = [*list_members(item)]
    elif not item.type:
        found = [*simple_members(item)]
    elif item.kind == "alternative":
        found = [*alternative_members(plan, item)]
    else:
        found = [*object_members(made, item)]
    if item.presence:
        flag = flag_member(made, item)
        found += [inline(f"bool isset_{item.accessor}() const", f"return {flag};", "plain"),
                  inline(f"void unset_{item.accessor}()", f"{flag} = false;", "plain")]
    return [replace(found[0], doc=item.doc, begins=True), *found[1:]]


def inherited_content(plan, made):
    """The setters of a nillable class whose content lies in its base: they also end the nil state."""
    if found := plan.content_item(made):
        base, item = found[0].name, found[1]
        x = item.accessor
        yield Member(f"{CODE} set_{x}({parameter_type(item.value.value)} value)",
                     f"const {CODE} error = {base}::set_{x}(value); if (error == lmx::ELMX_OK) m_isnil = false; return error;",
                     "plain", doc="Sets the content, which then isn't nil.", begins=True)
        if item.enumerated:
            yield Member(f"bool setenum_{x}(std::int32_t number)",
                         f"const bool is_set = {base}::setenum_{x}(number); if (is_set) m_isnil = false; return is_set;",
                         "guarded")


# Documents

SOURCES = {"const char* file_name": "file_name", "const char* data, std::size_t size": "data, size",
           "const std::string& text": "text.data(), text.size()"}
TARGETS = ("const char* file_name", "std::string* text", "std::ostream& stream")


def document_constructors(made):
    preset = "" if made.wrapper else "*error = lmx::ELMX_UNDEFINED_ERROR; "
    ending = " init();" if made.init else ""
    doc = "Reads a document with this element as its root; failures are the reader's codes."
    for parameters, arguments in SOURCES.items():
        yield Member(f"{made.name}({parameters}, {CODE}* error)", f"{preset}*error = unmarshal({arguments});{ending}",
                     initial=f" : {made.name}()", doc=doc)
        doc = ""


def document_members(made):
    yield Member("const lmx::s_ns_map* ns_map()", "return k_ns_map;", before="static ")
    if made.is_document:
        for parameters, arguments in SOURCES.items():
            yield Member(f"{CODE} unmarshal({parameters})", f"return lmx::unmarshal_document(k_document, this, {arguments});",
                         "" if "string" in parameters else "guarded")
    yield Member(f"{CODE} unmarshal({READER})", "return lmx::unmarshal_document(k_document, this, reader);")
    if made.is_document:
        for parameter in TARGETS:
            yield Member(f"{CODE} marshal({parameter}) const",
                         f"return lmx::marshal_document(k_document, this, {parameter.split()[-1]});",
                         "guarded" if "char" in parameter else "")


DOCUMENT_TABLE = Member("const lmx::s_document k_document", before="static ")


def wrapper_members(plan, made):
    """Of a global element's class that adds nothing to its type."""
    override = " override" if plan.identity(made) else ""
    if made.is_document:
        yield inline(f"{made.name}()", "= default")
        yield from document_constructors(made)
    yield from document_members(made)
    yield Member(f"{CODE} marshal({WRITER}, const char* name) const",
                 f"writer.conditionally_select_ns_map(k_ns_map); return {made.base}::marshal(writer, name);", after=override)
    yield Member(f"{CODE} unmarshal({READER}, const std::string& name)",
                 f"return {made.base}::unmarshal(reader, name);", after=override)
    yield DOCUMENT_TABLE


# Classes


def constructors(made):
    name, init = made.name, " init();" if made.init else ""
    base = f" : {made.base}()" if made.base else ""
    # The texts of enumerations are not known in the header.
    initial = ", ".join(f"m_{item.accessor}(facets::{item.value.name}.enumerated->find("
                        f"{item.value.enumeration.index(item.initial) + 1}))"
                        for item in made.items if item.enumerated and item.initial is not None)
    if own_choice(made) or initial:
        base = f" : {name}()"  # for the initial values, and so that a copy that can't be finished is ended like others
    yield Member(f"{name}()", init.strip() or ("" if initial else "= default"), initial=initial and f" : {initial}")
    yield Member(f"{name}(const {name}& other)", f"lmx::copy(k_class, this, &other);{init}", initial=base)


def reading_and_writing(made, virtual, override):
    if made.inline:
        writer, reader = ("marshal_group", "unmarshal_group") if made.content == "group" else \
            ("marshal_child_elements", "unmarshal_body")
        yield Member(f"bool is_member({READER}, const std::string&)", "return lmx::is_group_member(k_class, reader);",
                     before="static ", doc="True if the current element is one of the alternatives.")
        yield Member(f"{CODE} marshal({WRITER}, const char*) const", f"return lmx::{writer}(k_class, this, writer);")
        yield Member(f"bool unmarshal({READER}, std::string* name, {CODE}* error)",
                     f"return lmx::{reader}(k_class, this, reader, name, error);")
    else:
        yield Member(f"{CODE} marshal({WRITER}, const char* name) const",
                     "return lmx::marshal_element(k_class, this, writer, name);", before=virtual, after=override)
        yield Member(f"{CODE} unmarshal({READER}, const std::string& name)",
                     "return lmx::unmarshal_element(k_class, this, reader, name);", before=virtual, after=override)


def public_members(plan, made):
    """All that a class shows, in the order of its declaration."""
    name = made.name
    virtual, override = "", " override" if plan.identity(made) and (made.base or not made.named) else ""
    if made.named and not made.base:
        virtual = "virtual "
    family = {"before": virtual, "after": override}
    yield from constructors(made)
    if made.is_document:
        yield from document_constructors(made)
    if made.named:
        yield Member(f"{name}* clone() const", f"return new {name}(*this);", "guarded", **family)
    yield Member(f"~{name}()", "lmx::release_choice(k_class, this);" if own_choice(made) else "= default",
                 before="" if made.base else "virtual ", after=" override" if made.base else "")
    yield Member(f"{name}& operator=(const {name}& other)", f"{name} copy(other); swap(copy); return *this;")
    if made.named:
        base = f" || {made.base}::has_id(identity)" if made.base else ""
        yield Member("const char* getid() const", "return id;", "plain", **family)
        yield Member("bool has_id(const char* identity) const", f"return identity == id{base};", "plain", **family,
                     doc="True for the identity of this class and of those that it derives from, as pointers.")
    if made.is_document:
        yield from document_members(made)
    yield from reading_and_writing(made, virtual, override)
    if made.is_document:
        yield DOCUMENT_TABLE
    yield Member(f"void swap({name}& other)", "lmx::swap(k_class, this, &other);", "guarded")
    yield Member("void reset()", f"{name} fresh; lmx::exchange(k_class, this, &fresh);", "guarded")
    yield Member("bool is_occurs_ok() const", "return lmx::is_occurs_ok(k_class, this);", "plain")
    if own_choice(made):
        yield inline("elmx_chosen getchosen() const", "return static_cast<elmx_chosen>(m_choice.chosen);", "plain")
    for item in made.items:
        if item.accessor:
            yield from item_members(plan, made, item)
    yield from inherited_content(plan, made)
    if made.nillable:
        yield inline(f"bool isnil_{name}() const", "return m_isnil;", "plain", begins=True,
                     doc="The `xsi:nil` state: an element without a value.")
        yield inline(f"void setnil_{name}()", "m_isnil = true;", "plain")
    for text, doc in made.declarations:
        yield Member(text.removesuffix(";"), doc=doc, begins=True)
    if made.named:
        yield Member("const char* id", before="static ", begins=True,
                     doc="The class's identity; `getid` and `has_id` work on its address.")
    if known := plan.factory(made):
        yield Member(f"{name}* factory(int ns_id, const std::string& name)",
                     f"return static_cast<{name}*>(lmx::create_by_name(k_factory, ns_id, name));",
                     before="static ", begins=True,
                     doc="A new object of the type with that local name in namespace 1000, or null; the caller owns it.")
        yield Member(f"const lmx::s_factory_row k_factory[{len(known)}]", before="static ")
    yield Member("const lmx::s_class k_class", before="static ", begins=True)


def protected_members(made):
    yield inline(f"void marshal_attributes({WRITER}) const", "lmx::marshal_attributes(k_class, this, writer);")
    yield inline(f"{CODE} marshal_child_elements({WRITER}) const",
                 "return lmx::marshal_child_elements(k_class, this, writer);")
    if made.inline:
        return
    yield inline(f"bool unmarshal_attributes({READER}, const std::string& name, {CODE}* error)",
                 "return lmx::unmarshal_attribute(k_class, this, reader, name, error);")
    yield inline(f"{CODE} unmarshal_attributes_check({READER})",
                 "return lmx::check_required_attributes(k_class, this, reader);")
    function, flag, argument = ("unmarshal_content", ", bool has_body", ", has_body") if made.content == "simple" \
        else ("unmarshal_body", "", "")
    yield inline(f"bool unmarshal_body({READER}, std::string* name, {CODE}* error{flag})",
                 f"return lmx::{function}(k_class, this, reader, name, error{argument});")


def members_of(plan, made):
    return [*(wrapper_members if made.wrapper else public_members)(plan, made)]
