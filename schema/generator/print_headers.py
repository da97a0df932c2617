# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The headers of the topics: classes with typed members and one-line accessors."""

from cpp import ENUMERATED_TYPE, FOLDER, LISTS, MEMBER_TYPES, SLOT_FIELDS, comment, frame, initial_value, parameter_type


CHOICE = "lmx::s_choice m_choice{e_none, false, {}};"


def class_title(made):
    base = f" : public {made.base}" if made.base else ""
    return f"class VYR_EXPORT {made.name}{base} {{"


# Accessors: each function returns lines without indentation; definitions that need a complete type, or would make
# the header heavy, are left to the source. The order of overloads gives them their numbers in the flat interface.


def simple_accessors(item):
    kind, x = item.value.value, item.accessor
    yield f"{parameter_type(kind)} get_{x}() const {{ return m_{x}{'.get()' if item.enumerated else ''}; }}"
    yield f"lmx::elmx_error set_{x}({parameter_type(kind)} value);"
    yield from enumeration_accessors(item, f" {{ return static_cast<Eenum_{x}>(m_{x}.number()); }}")


def enumeration_accessors(item, body=";"):
    if item.enumerated:
        yield f"Eenum_{item.accessor} getenum_{item.accessor}() const{body}"
        yield f"bool setenum_{item.accessor}(std::int32_t number);"


def object_accessors(item):
    x, kind = item.accessor, item.type
    is_optional = item.kind == "optional_child"
    yield f"{kind}& get_{x}()" + (";" if is_optional else f" {{ m_isset_{x} = true; return m_{x}; }}")
    yield f"const {kind}& get_{x}() const" + (";" if is_optional else f" {{ return m_{x}; }}")
    yield f"{kind}& assign_{x}(const {kind}& value);"


def flag_member(made, item):
    """The present flag; of a class that is a holder itself, its choice's, which inherited accessors raise too."""
    return "m_choice.is_touched" if made.derives_from_group else f"m_isset_{item.accessor}"


def presence_accessors(made, item):
    if item.presence:
        flag = flag_member(made, item)
        yield f"bool isset_{item.accessor}() const {{ return {flag}; }}"
        yield f"void unset_{item.accessor}() {{ {flag} = false; }}"


def list_accessors(item):
    x = item.accessor
    yield f"std::size_t size_{x}() const {{ return m_{x}.size(); }}"
    if item.kind == "element_list":
        value = parameter_type(item.value.value)
        yield f"{value} get_{x}(std::size_t index) const {{ return m_{x}[index]; }}"
        yield f"lmx::elmx_error set_{x}(std::size_t index, {value} value);"
        yield f"lmx::elmx_error append_{x}({value} value);"
        yield f"lmx::elmx_error insert_{x}(std::size_t index, {value} value);"
    else:
        yield f"{item.type}& get_{x}(std::size_t index);"
        yield f"const {item.type}& get_{x}(std::size_t index) const {{ return m_{x}[index]; }}"
        yield f"{item.type}& assign_{x}(std::size_t index, const {item.type}& value);"
        yield f"lmx::elmx_error append_{x}();"
        yield f"lmx::elmx_error insert_{x}(std::size_t index);"
        yield f"{item.type}& back_{x}() {{ return m_{x}.back(); }}"
    yield f"void delete_{x}(std::size_t index);"
    yield f"void clear_{x}();"


def any_accessors(_):
    yield "std::size_t size_any() const { return m_any.size(); }"
    yield "void get_any(std::size_t index, std::string* ns, std::string* name, std::string* value) const;"
    yield "lmx::elmx_error append_any(const std::string& value);"
    yield "lmx::elmx_error insert_any(std::size_t index, const std::string& value);"
    yield "void delete_any(std::size_t index);"
    yield "void clear_any();"


def alternative_accessors(item):
    x = item.accessor
    if item.type is not None:
        yield f"{item.type}& get_{x}();"
        yield f"const {item.type}& get_{x}() const {{ return *static_cast<const {item.type}*>(m_choice.object); }}"
        yield f"{item.type}& assign_{x}(const {item.type}& value);"
        return
    kind = item.value.value
    if kind == "text":
        yield f"const std::u16string& get_{x}() const;"
    else:
        slot = f"m_choice.{SLOT_FIELDS[kind]}"
        yield f"{parameter_type(kind)} get_{x}() const {{ return m_choice.chosen == e_{x} ? {slot} : 0; }}"
    yield f"lmx::elmx_error set_{x}({parameter_type(kind)} value);"
    yield from enumeration_accessors(item)


def base_group_accessors(made, item):
    """Of a class that is a holder itself."""
    x, kind = item.accessor, item.type
    yield f"{kind}& get_{x}() {{ {flag_member(made, item)} = true; return *this; }}"
    yield f"const {kind}& get_{x}() const {{ return *this; }}"
    yield f"{kind}& assign_{x}(const {kind}& value);"


def accessors(made, item):
    if item.kind == "alternative":
        return alternative_accessors(item)
    if item.kind == "any":
        return any_accessors(item)
    if item.kind in LISTS:
        return list_accessors(item)
    if made.derives_from_group:
        return base_group_accessors(made, item)
    return object_accessors(item) if item.type else simple_accessors(item)


# Members


def member(item):
    """The storage of an item, without its flag; None for what lies elsewhere."""
    if item.kind in ("alternative", "marker"):
        return None
    if item.kind == "any":
        return "lmx::c_list<lmx::c_any_info> m_any;"
    type_name = ENUMERATED_TYPE if item.enumerated else item.type or MEMBER_TYPES[item.value.value]
    if item.kind in LISTS:
        return f"lmx::c_list<{type_name}> m_{item.accessor};"
    if item.kind == "optional_child":
        return f"lmx::c_optional_child<{type_name}> m_{item.accessor};"
    prefix = "mutable " if item.mutable else ""
    return f"{prefix}{type_name} m_{item.accessor}{'' if item.type else initial_value(item)};"


def has_flag(item):
    return item.kind not in (*LISTS, "any", "alternative", "marker")


def document_members(made):
    name = made.name
    return [
        "/// Reads a document with this element as its root; failures are the reader's codes.",
        f"{name}(const char* file_name, lmx::elmx_error* error);",
        f"{name}(const char* data, std::size_t size, lmx::elmx_error* error);",
        f"{name}(const std::string& text, lmx::elmx_error* error);",
    ], [
        "static const lmx::s_ns_map* ns_map();",
        "lmx::elmx_error unmarshal(const char* file_name);",
        "lmx::elmx_error unmarshal(const char* data, std::size_t size);",
        "lmx::elmx_error unmarshal(const std::string& text);",
        "lmx::elmx_error unmarshal(lmx::c_xml_reader& reader);",
        "lmx::elmx_error marshal(const char* file_name) const;",
        "lmx::elmx_error marshal(std::string* text) const;",
        "lmx::elmx_error marshal(std::ostream& stream) const;",
        "static const lmx::s_document k_document;",
    ]


def wrapper_class(plan, made):
    override = " override" if plan.identity(made) else ""
    constructors, documents = document_members(made)
    if not made.is_document:
        constructors, documents = [], [documents[0], documents[4], documents[-1]]
    yield from comment(made.doc)
    yield class_title(made)
    yield "public:"
    body = [f"{made.name}() = default;" if constructors else None, *constructors, *documents[:-1],
            f"lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const{override};",
            f"lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name){override};", documents[-1]]
    yield from (f"    {line}" for line in body if line)
    yield "};"


def own_class(plan, made):
    """All that a class declares, by sections."""
    name = made.name
    virtual, override = "", ""
    if made.named:
        virtual, override = ("", " override") if made.base else ("virtual ", "")
    elif plan.identity(made):
        override = " override"
    public = [f"{name}();", f"{name}(const {name}& other);"]
    constructors, documents = document_members(made) if made.is_document else ([], [])
    public += constructors
    if made.named:
        public.append(f"{virtual}{name}* clone() const{override};")
    public += [f"~{name}() override;" if made.base else f"virtual ~{name}();",
               f"{name}& operator=(const {name}& other);"]
    if made.named:
        public += [f"{virtual}const char* getid() const{override};",
                   "/// True for the identity of this class and of those that it derives from, as pointers.",
                   f"{virtual}bool has_id(const char* identity) const{override};"]
    public += documents[:-1]
    marshal = "lmx::elmx_error marshal(lmx::c_xml_writer& writer, const char* name) const"
    if made.inline:
        public += [
            "/// True if the current element is one of the alternatives.",
            "static bool is_member(lmx::c_xml_reader& reader, const std::string& name);",
            f"{marshal};",
            "bool unmarshal(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error);",
        ]
    else:
        public += [f"{virtual}{marshal}{override};",
                   f"{virtual}lmx::elmx_error unmarshal(lmx::c_xml_reader& reader, const std::string& name){override};"]
    public += documents[-1:]
    public += [f"void swap({name}& other);", "void reset();", "bool is_occurs_ok() const;"]
    if made.content in ("choice", "group") and not made.derives_from_group:
        names = ", ".join(f"e_{item.accessor}" for item in made.elements)
        none = f"e_none = e_{made.elements[-1].accessor} + {2 if made.content == 'group' else 1}"
        public[:0] = ["/// Which alternative is held.", f"enum elmx_chosen : std::int32_t {{ {names}, {none} }};", ""]
        public.append("elmx_chosen getchosen() const { return static_cast<elmx_chosen>(m_choice.chosen); }")
    for item in made.items:
        if item.accessor:
            public += ["", *comment(item.doc), *accessors(made, item), *presence_accessors(made, item)]
            if item.kind == "alternative" and item.type and plan.factory(plan.by_name[item.type]):
                public += [*comment("Takes an object, which may be of a derived class. Null leaves the member without "
                                    "one, which can't be written; the reference is then to an object of the calling "
                                    "thread that belongs to nothing."),
                           f"{item.type}& assign_{item.accessor}({item.type}* value);"]
    if inherited := plan.content_item(made):
        item = inherited[1]
        public += ["", *comment("Sets the content, which then isn't nil."),
                   f"lmx::elmx_error set_{item.accessor}({parameter_type(item.value.value)} value);"]
        public += [line for line in enumeration_accessors(item) if line.startswith("bool")]
    if made.nillable:
        public += ["", "/// The `xsi:nil` state: an element without a value.",
                   f"bool isnil_{name}() const {{ return m_isnil; }}", f"void setnil_{name}() {{ m_isnil = true; }}"]
    public += [line for text, doc in made.declarations for line in ("", *comment(doc), text)]
    if made.named:
        public += ["", "/// The class's identity; `getid` and `has_id` work on its address.", "static const char* id;"]
    if known := plan.factory(made):
        public += ["", "/// A new object of the type with that local name in namespace 1000, or null; the caller owns it.",
                   f"static {name}* factory(int ns_id, const std::string& name);",
                   f"static const lmx::s_factory_row k_factory[{len(known)}];"]
    public += ["", "static const lmx::s_class k_class;"]
    yield from comment(made.doc)
    yield class_title(made)
    yield "public:"
    yield from (f"    {line}".rstrip() for line in public)
    yield ""
    yield "protected:"
    body_flag = ", bool has_body" if made.content == "simple" else ""
    yield "    void marshal_attributes(lmx::c_xml_writer& writer) const;"
    yield "    lmx::elmx_error marshal_child_elements(lmx::c_xml_writer& writer) const;"
    if not made.inline:
        yield ("    bool unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, "
               "lmx::elmx_error* error);")
        yield "    lmx::elmx_error unmarshal_attributes_check(lmx::c_xml_reader& reader);"
        yield (f"    bool unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error"
               f"{body_flag});")
    if made.content == "group" and not made.derives_from_group:
        yield f"    {CHOICE}"
    yield from private_part(made)
    yield "};"


def private_part(made):
    lines = []
    if made.init:
        lines += [*comment(made.init), "void init();"]
    if made.items:
        lines.append("enum item : std::size_t {")
        lines += [f"    item_{item.accessor or item.name}," for item in made.items]
        lines += ["};", "static const lmx::s_item k_items[];"]
    if made.nillable:
        lines.append("bool m_isnil = false;")
    if made.content == "choice":
        lines.append(CHOICE)
    if not made.derives_from_group:
        lines += [member(item) for item in made.items if member(item)]
        # Flags lie together at the end, where they take a byte each.
        lines += [f"bool m_isset_{item.accessor} = false;" for item in made.items if has_flag(item)]
    if lines:
        yield ""
        yield "private:"
        yield from (f"    {line}" for line in lines)


def print_header(plan, topic):
    body = []
    for made in topic.classes:
        body += [*(wrapper_class if made.wrapper else own_class)(plan, made), ""]
    includes = ["<cstddef>", "<cstdint>", "<iosfwd>", "<string>", "lmx/binding/table.h", "lmx/export.h",
                f"{FOLDER}/enumerations.h", f"{FOLDER}/forward.h",
                *(f"{FOLDER}/{name}.h" for name in topic.header_needs)]
    names = ", ".join(made.name for made in topic.classes if not made.wrapper and not made.local)
    return frame(f"Classes of the topic {topic.name.replace('_', ' ')}: {names}.", ["#pragma once", ""],
                 sorted(includes), body[:-1])


def print_forward(plan):
    names = sorted(made.name for made in plan.model.classes)
    return frame("The names of all classes of the format.", ["#pragma once"], [],
                 [*(f"class {name};" for name in names), "class XMLDocumentResult;"])


def enumerator(name, text):
    return f"e_{name}_" + "".join(c if c.isascii() and c.isalnum() else "_" for c in text)


def print_enumerations(plan):
    body = []
    for name, simple in sorted(plan.enumerations.items()):
        body += [*comment(simple.doc), f"enum Eenum_{name} : std::int32_t {{"]
        start = " = 1"
        for text, doc in zip(simple.enumeration, simple.enumeration_docs):
            body += [f"    {enumerator(name, text)}{start},  ///< {doc}"]
            start = ""
        body += ["};", ""]
    return frame("Numbers of the enumerated texts, from 1; 0 stands for any other text.", ["#pragma once", ""],
                 ["<cstdint>"], body[:-1])


def print_all(plan):
    return frame("All classes of the format.", ["#pragma once", ""],
                 sorted(f"{FOLDER}/{topic.name}.h" for topic in plan.topics), [])
