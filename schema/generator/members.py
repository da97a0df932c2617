# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The members of a class, each once: its signature, its body and whether the flat interface has it. Headers, sources
and flat functions are printed from this list.

A line of the tables below says when there is a member, by words that must all hold, and shows it as a class would have
it. One that the flat interface has begins with `plain`, or with `guarded` if it may allocate; what needs a complete
type, or would make the header heavy, is not `inline`. A comment belongs to the member of the next line, and begins a
group if it is `//!`. A line that is indented further goes on.
"""

import re
from dataclasses import dataclass, replace
from string import Template

from cpp import LISTS, SLOT_FIELDS, parameter_type

MEMBER = re.compile(r"(?P<flat>plain|guarded|) ?(?P<inline>inline |)(?P<before>virtual |static |)"
                    r"(?P<signature>[^(;{]+?(\([^)]*\)( const)?)?)(?P<after> override|)(?P<initial> : .+?|)"
                    r"(?P<body>;| = default;| \{.*\})")
SIGNATURE = re.compile(r"(?P<result>.* )?(?P<name>~?\w+|operator=)\((?P<parameters>.*)\)(?P<const> const)?")


@dataclass(frozen=True)
class Member:
    flat: str  # "plain", "guarded", or nothing
    inline: str  # if it isn't empty
    before: str  # "virtual ", "static "
    signature: str
    after: str  # " override"
    initial: str  # of a constructor
    body: str  # with its braces, " = default;", or ";" for what is declared only
    doc: str
    begins: bool  # a group, with a blank line ahead

    @property
    def parts(self):
        return SIGNATURE.fullmatch(self.signature)

    def declaration(self):
        """As it stands in the class."""
        return f"{self.before}{self.signature}{self.after}{self.body if self.inline else ';'}"

    def definition(self, owner):
        """As it stands in a source; nothing for what needs none."""
        if self.inline or self.body == ";":
            return None
        found = self.parts
        return (f"{found['result'] or ''}{owner}::{found['name']}({found['parameters']}){found['const'] or ''}"
                f"{self.initial}{self.body}")


def members(table, words, **names):
    """The members of a table whose words hold, with the names in place of `$name`."""
    names |= {"code": "lmx::elmx_error", "reader": "lmx::c_xml_reader& reader", "writer": "lmx::c_xml_writer& writer"}
    comment = ""
    for line in filter(None, re.sub(r"\n {8,}", " ", table).split("\n")):
        when, _, text = line.partition("|")
        if not when.strip().startswith("//"):
            if words.issuperset(when.split()):
                parts = MEMBER.fullmatch(Template(text.strip()).substitute(names)).groupdict()
                yield Member(**parts, doc=Template(comment[4:]).substitute(names), begins=comment.startswith("//!"))
            comment = ""
        else:
            comment = line.strip()


def words_of(**words):
    return {word for word, holds in words.items() if holds}


def own_choice(made):
    return made.content in ("choice", "group") and not made.derives_from_group


def flag_member(made, item):
    """The present flag; of a class that is a holder itself, its choice's, which inherited accessors raise too."""
    return "m_choice.is_touched" if made.derives_from_group else f"m_isset_{item.accessor}"


# An alternative that is assigned is copied first: choosing frees the former one, which the value may be a part of.
ITEM = """
    value | plain inline $value get_$x() const { return $held; }
    chosen_text | plain $value get_$x() const { return lmx::chosen_text(k_class, $row, this); }
    simple | plain $code set_$x($value value) { return lmx::set_item(k_class, $row, this, value); }
    number | plain inline Eenum_$x getenum_$x() const { return static_cast<Eenum_$x>(m_$x.number()); }
    chosen_number | plain Eenum_$x getenum_$x() const
        { return static_cast<Eenum_$x>(lmx::chosen_number(k_class, $row, this)); }
    enumerated | guarded bool setenum_$x(std::int32_t number)
        { return lmx::set_enumerated(k_class, $row, this, number); }

    child | plain inline $type& get_$x() { $flag = true; return $held; }
    child | inline const $type& get_$x() const { return $held; }
    optional_child | guarded $type& get_$x() { $type& child = m_$x.touch(); $flag = true; return child; }
    optional_child | const $type& get_$x() const { return m_$x.get(); }
    object | guarded $type& assign_$x(const $type& value) { return get_$x()$assigned; }

    alternative | guarded $type& get_$x() { return *static_cast<$type*>(lmx::choose(k_class, $row, this)); }
    alternative | inline const $type& get_$x() const { return *static_cast<const $type*>(m_choice.object); }
    alternative | guarded $type& assign_$x(const $type& value)
        { $type copy(value); $type& target = get_$x(); target.swap(copy); return target; }
    /// Takes an object, which may be of a derived class. Null leaves the member without one, which can't be written;
        the reference is then to an object of the calling thread that belongs to nothing.
    adopted | $type& assign_$x($type* value)
        { lmx::adopt(k_class, $row, this, value); if (value != nullptr) return *value;
        $type& nothing = lmx::thread_object<$type>(); nothing.reset(); return nothing; }

    list | plain inline std::size_t size_$x() const { return m_$x.size(); }
    values | plain inline $value get_$x(std::size_t index) const { return m_$x[index]; }
    values | plain $code set_$x(std::size_t index, $value value) { return lmx::set_entry($row, this, index, value); }
    values | plain $code append_$x($value value) { return lmx::insert_entry($row, this, size_$x(), value); }
    values | plain $code insert_$x(std::size_t index, $value value)
        { return lmx::insert_entry($row, this, index, value); }
    markup | void get_any(std::size_t index, std::string* ns, std::string* name, std::string* value) const
        { if (ns != nullptr) *ns = m_any[index].get_namespace(); if (name != nullptr) *name = m_any[index].get_name();
        *value = m_any[index].get_value(); }
    markup | guarded $code append_any(const std::string& value) { return insert_any(size_any(), value); }
    markup | guarded $code insert_any(std::size_t index, const std::string& value)
        { m_any.insert(index).set_value(value); return lmx::ELMX_OK; }
    objects | guarded $type& get_$x(std::size_t index) { return m_$x.grow_to(index); }
    objects | inline const $type& get_$x(std::size_t index) const { return m_$x[index]; }
    objects | guarded $type& assign_$x(std::size_t index, const $type& value) { return get_$x(index) = value; }
    objects | guarded $code append_$x() { m_$x.append(); return lmx::ELMX_OK; }
    objects | guarded $code insert_$x(std::size_t index) { m_$x.insert(index); return lmx::ELMX_OK; }
    objects | plain inline $type& back_$x() { return m_$x.back(); }
    list | plain void delete_$x(std::size_t index) { m_$x.erase(index); }
    list | plain void clear_$x() { m_$x.clear(); }

    presence | plain inline bool isset_$x() const { return $flag; }
    presence | plain inline void unset_$x() { $flag = false; }
"""


def item_members(plan, made, item):
    """The first one bears the item's documentation."""
    x, kind = item.accessor, item.value and item.value.value
    is_list, is_chosen = item.kind in (*LISTS, "any"), item.kind == "alternative"
    is_simple = not item.type and not is_list
    held, assigned = f"m_{x}{'.get()' if item.enumerated else ''}", " = value"
    if is_chosen:
        held = f"m_choice.chosen == e_{x} ? m_choice.{SLOT_FIELDS.get(kind)} : 0"
    elif made.derives_from_group:
        held, assigned = "*this", f".{item.type}::operator=(value)"
    words = words_of(
        simple=is_simple, value=is_simple and not (is_chosen and kind == "text"),
        chosen_text=is_simple and is_chosen and kind == "text",
        enumerated=is_simple and item.enumerated, number=is_simple and item.enumerated and not is_chosen,
        chosen_number=is_chosen and item.enumerated, list=is_list, values=item.kind == "element_list",
        markup=item.kind == "any", objects=is_list and item.type, alternative=is_chosen and item.type,
        adopted=is_chosen and item.type and plan.factory(plan.by_name[item.type]),
        child=item.kind in ("child", "group"), optional_child=item.kind == "optional_child",
        object=item.kind in ("child", "group", "optional_child"), presence=item.presence)
    found = [*members(ITEM, words, x=x, row=f"k_items[item_{x}]", type=item.type, held=held, assigned=assigned,
                      flag=flag_member(made, item), value=kind and parameter_type(kind))]
    return [replace(found[0], doc=item.doc, begins=True), *found[1:]]


CLASS = """
    own | $name()$initial
    own | $name(const $name& other)$delegated { lmx::copy(k_class, this, &other);$init }
    wrapper document | inline $name() = default;
    /// Reads a document with this element as its root; failures are the reader's codes.
    document | $name(const char* file_name, $code* error) : $name() { $preset*error = unmarshal(file_name);$init }
    document | $name(const char* data, std::size_t size, $code* error) : $name()
        { $preset*error = unmarshal(data, size);$init }
    document | $name(const std::string& text, $code* error) : $name()
        { $preset*error = unmarshal(text.data(), text.size());$init }
    named | guarded $virtual$name* clone() const$override { return new $name(*this); }
    own first | virtual ~$name()$end
    own derived | ~$name() override$end
    own | $name& operator=(const $name& other) { $name copy(other); swap(copy); return *this; }
    named | plain ${virtual}const char* getid() const$override { return id; }
    /// True for the identity of this class and of those that it derives from, as pointers.
    named | plain ${virtual}bool has_id(const char* identity) const$override { return identity == id$or_base; }
    outer | static const lmx::s_ns_map* ns_map() { return k_ns_map; }
    document | guarded $code unmarshal(const char* file_name)
        { return lmx::unmarshal_document(k_document, this, file_name); }
    document | guarded $code unmarshal(const char* data, std::size_t size)
        { return lmx::unmarshal_document(k_document, this, data, size); }
    document | $code unmarshal(const std::string& text)
        { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
    outer | $code unmarshal($reader) { return lmx::unmarshal_document(k_document, this, reader); }
    document | guarded $code marshal(const char* file_name) const
        { return lmx::marshal_document(k_document, this, file_name); }
    document | $code marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
    document | $code marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
    /// True if the current element is one of the alternatives.
    part | static bool is_member($reader, const std::string&) { return lmx::is_group_member(k_class, reader); }
    part | $code marshal($writer, const char*) const { return lmx::$marshal_part(k_class, this, writer); }
    part | bool unmarshal($reader, std::string* name, $code* error)
        { return lmx::$unmarshal_part(k_class, this, reader, name, error); }
    element | $virtual$code marshal($writer, const char* name) const$override
        { return lmx::marshal_element(k_class, this, writer, name); }
    element | $virtual$code unmarshal($reader, const std::string& name)$override
        { return lmx::unmarshal_element(k_class, this, reader, name); }
    wrapper | $code marshal($writer, const char* name) const$override
        { writer.conditionally_select_ns_map(k_ns_map); return $base::marshal(writer, name); }
    wrapper | $code unmarshal($reader, const std::string& name)$override { return $base::unmarshal(reader, name); }
    outer | static const lmx::s_document k_document;
    own | guarded void swap($name& other) { lmx::swap(k_class, this, &other); }
    own | guarded void reset() { $name fresh; lmx::exchange(k_class, this, &fresh); }
    own | plain bool is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
    choice | plain inline elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }
    own | static const lmx::s_class k_class;
"""
# The setters of a nillable class whose content lies in its base: they also end the nil state.
INHERITED_CONTENT = """
    //! Sets the content, which then isn't nil.
    | plain $code set_$x($value value)
        { const $code error = $base::set_$x(value); if (error == lmx::ELMX_OK) m_isnil = false; return error; }
    enumerated | guarded bool setenum_$x(std::int32_t number)
        { const bool is_set = $base::setenum_$x(number); if (is_set) m_isnil = false; return is_set; }
"""
NIL = """
    //! The `xsi:nil` state: an element without a value.
    | plain inline bool isnil_$name() const { return m_isnil; }
    | plain inline void setnil_$name() { m_isnil = true; }
"""
END = """
    //! The class's identity; `getid` and `has_id` work on its address.
    named | static const char* id;
    //! A new object of the type with that local name in namespace 1000, or null; the caller owns it.
    factory | static $name* factory(int ns_id, const std::string& name)
        { return static_cast<$name*>(lmx::create_by_name(k_factory, ns_id, name)); }
    factory | static const lmx::s_factory_row k_factory[$known];
"""
PROTECTED = """
    | inline void marshal_attributes($writer) const { lmx::marshal_attributes(k_class, this, writer); }
    | inline $code marshal_child_elements($writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
    element | inline bool unmarshal_attributes($reader, const std::string& name, $code* error)
        { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
    element | inline $code unmarshal_attributes_check($reader)
        { return lmx::check_required_attributes(k_class, this, reader); }
    simple | inline bool unmarshal_body($reader, std::string* name, $code* error, bool has_body)
        { return lmx::unmarshal_content(k_class, this, reader, name, error, has_body); }
    body | inline bool unmarshal_body($reader, std::string* name, $code* error)
        { return lmx::unmarshal_body(k_class, this, reader, name, error); }
"""


def class_names(plan, made):
    """The names in the tables of a class's members."""
    init = " init();" if made.init else ""
    body = f" {{{init} }}" if init else ""
    # The texts of enumerations are not known in the header.
    initial = ", ".join(f"m_{item.accessor}(facets::{item.value.name}.enumeration->find("
                        f"{item.value.enumeration.index(item.initial) + 1}))"
                        for item in made.items if item.enumerated and item.initial is not None)
    # To the class itself for the initial values, and so that a copy that can't be finished is ended like others.
    delegate = made.name if own_choice(made) or initial else made.base
    is_group = made.content == "group"
    return {
        "name": made.name, "base": made.base, "init": init,
        "preset": "" if made.wrapper else "*error = lmx::ELMX_UNDEFINED_ERROR; ",
        "initial": f" : {initial}{body or ' {}'}" if initial else body or " = default;",
        "delegated": f" : {delegate}()" if delegate else "",
        "virtual": "virtual " if made.named and not made.base else "",
        "override": " override" if plan.identity(made) and (made.base or not made.named) else "",
        "end": " { lmx::release_choice(k_class, this); }" if own_choice(made) else " = default;",
        "or_base": f" || {made.base}::has_id(identity)" if made.base else "",
        "marshal_part": "marshal_group" if is_group else "marshal_child_elements",
        "unmarshal_part": "unmarshal_group" if is_group else "unmarshal_body",
        "known": len(plan.factory(made)),
    }


def members_of(plan, made):
    """All that a class shows, in the order of its declaration."""
    names = class_names(plan, made)
    words = words_of(
        own=not made.wrapper, wrapper=made.wrapper, document=made.is_document, outer=made.wrapper or made.is_document,
        named=made.named, first=not made.base, derived=made.base, choice=own_choice(made), part=made.inline,
        element=not made.wrapper and not made.inline, factory=plan.factory(made))
    found = [*members(CLASS, words, **names)]
    if made.wrapper:
        return found
    for item in made.items:
        if item.accessor:
            found += item_members(plan, made, item)
    if inherited := plan.content_item(made):
        base, item = inherited
        found += members(INHERITED_CONTENT, words_of(enumerated=item.enumerated), base=base.name, x=item.accessor,
                         value=parameter_type(item.value.value))
    if made.nillable:
        found += members(NIL, words, **names)
    found += members("".join(f"//! {doc}\n| {text}\n" for text, doc in made.declarations), words)
    return [*found, *members(END, words, **names)]


def protected_members(made):
    words = words_of(element=not made.inline, simple=not made.inline and made.content == "simple",
                     body=not made.inline and made.content != "simple")
    return members(PROTECTED, words)
