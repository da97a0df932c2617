# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The headers of the topics: classes with typed members and one-line accessors."""

from cpp import ENUMERATED_TYPE, FOLDER, LISTS, MEMBER_TYPES, comment, frame, initial_value
from members import members_of, own_choice, protected_members

CHOICE = "lmx::s_choice m_choice{e_none};"


def class_title(made):
    base = f" : public {made.base}" if made.base else ""
    return f"class VYR_EXPORT {made.name}{base} {{"


def storage(item):
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


def own_class(plan, made):
    """All that a class declares, by sections."""
    yield from (*comment(made.doc), class_title(made), "public:")
    if own_choice(made):
        names = ", ".join(f"e_{item.accessor}" for item in made.elements)
        none = f"e_none = e_{made.elements[-1].accessor} + {2 if made.content == 'group' else 1}"
        yield "    /// Which alternative is held."
        yield f"    enum elmx_chosen : std::int32_t {{ {names}, {none} }};"
        yield ""
    for member in members_of(plan, made):
        if member.begins:
            yield ""
        yield from (f"    {line}" for line in (*comment(member.doc), member.declaration()))
    if not made.wrapper:
        yield from ("", "protected:", *(f"    {member.declaration()}" for member in protected_members(made)))
        if made.content == "group" and not made.derives_from_group:
            yield f"    {CHOICE}"
        if lines := private_lines(plan, made):
            yield from ("", "private:", *(f"    {line}" for line in lines))
    yield "};"


def private_lines(plan, made):
    lines = []
    if made.init:
        lines += [*comment(made.init), "void init();"]
    if any("item_" in member.body for member in members_of(plan, made)):
        rows = (f"    item_{item.accessor or item.name}," for item in made.items)
        lines += ["enum item : std::size_t {", *rows, "};"]
    if made.items:
        lines.append("static const lmx::s_item k_items[];")
    if made.nillable:
        lines.append("bool m_isnil = false;")
    if made.content == "choice":
        lines.append(CHOICE)
    if not made.derives_from_group:
        lines += filter(None, map(storage, made.items))
        # Flags lie together at the end, where they take a byte each.
        lines += [f"bool m_isset_{item.accessor} = false;" for item in made.items if has_flag(item)]
    return lines


def print_header(plan, topic):
    body = [line for made in topic.classes for line in (*own_class(plan, made), "")]
    includes = ["<cstddef>", "<cstdint>", "<iosfwd>", "<string>", "lmx/binding/class_parts.h", "lmx/binding/table.h",
                "lmx/export.h", *(f"{FOLDER}/{name}.h" for name in ("enumerations", "forward", *topic.header_needs))]
    names = ", ".join(made.name for made in topic.classes if not made.wrapper and not made.local)
    return frame(f"Classes of the topic {topic.name.replace('_', ' ')}: {names}.", sorted(includes), body[:-1],
                 is_header=True)


def print_forward(plan):
    names = sorted(made.name for made in plan.model.classes)
    return frame("The names of all classes of the format.", [],
                 [*(f"class {name};" for name in names), "class XMLDocumentResult;"], is_header=True)


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
    return frame("Numbers of the enumerated texts, from 1; 0 stands for any other text.", ["<cstdint>"], body[:-1],
                 is_header=True)


def print_all(plan):
    return frame("All classes of the format.", sorted(f"{FOLDER}/{topic.name}.h" for topic in plan.topics), [],
                 is_header=True)
