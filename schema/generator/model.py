# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The neutral model of the format: what `vyr.xsd` and `binding.toml` say, as frozen dataclasses.

Printers read nothing but this model and the plan made from it. Every construct of the schema that isn't known
here is refused, with file and line; nothing here knows a particular type.
"""

import re
from dataclasses import dataclass, replace

from source import Node, Overlay, SchemaError, read_xml

PREFIX = "Vyr:"


@dataclass(frozen=True)
class SimpleType:
    """A simple type with its facets; bounds are the decimals of the schema."""

    name: str
    value: str  # the runtime's kind of value: text, boolean, number, int32, uint32, uint8, datetime, binary
    collapse: bool
    doc: str = ""
    enumeration: tuple = ()
    enumeration_docs: tuple = ()
    minimum: str | None = None
    maximum: str | None = None
    minimum_exclusive: bool = False
    maximum_exclusive: bool = False
    setter_skips_minimum: bool = False
    pattern_takes_zoned: bool = False
    minimum_length: int = 0
    maximum_length: int | None = None
    pattern: str | None = None

    def enumerators(self):
        """Number, name in other languages, text and documentation of each text of an enumeration."""
        for number, (text, doc) in enumerate(zip(self.enumeration, self.enumeration_docs), 1):
            yield number, re.sub(r"[^A-Za-z0-9]", "_", text), text, doc

    def facets(self):
        """The facets as a text, empty without any."""
        parts = {
            f"{'>' if self.minimum_exclusive else '>='} {self.minimum}": self.minimum is not None,
            f"{'<' if self.maximum_exclusive else '<='} {self.maximum}": self.maximum is not None,
            "setter skips minimum": self.setter_skips_minimum,
            f"length >= {self.minimum_length}": self.minimum_length,
            f"length <= {self.maximum_length}": self.maximum_length is not None,
            f"pattern {self.pattern}": self.pattern is not None,
            "one of " + "|".join(self.enumeration): self.enumeration,
        }
        return ", ".join(text for text, is_there in parts.items() if is_there)


@dataclass(frozen=True)
class Item:
    """One attribute, child, content or alternative of a class."""

    kind: str  # a name of the runtime's item_kind
    name: str  # as in documents; empty for content, inline choices and open content
    accessor: str  # the X of get_X; empty without accessors
    doc: str
    value: SimpleType | None = None
    type: str | None = None  # the class, where there's one
    minimum: int = 1
    repeats: bool = False
    use: tuple = ()
    presence: bool = False
    initial: str | None = None
    mutable: bool = False
    package_name: str = ""  # in the typed packages
    python_name: str = ""  # in Python, where the rule gives a bad one
    columns: tuple = ()  # of a list: names in the typed packages, each with the accessor of an entry's number

    @property
    def enumerated(self):
        return self.value is not None and bool(self.value.enumeration)


@dataclass(frozen=True)
class Class:
    """One C++ class."""

    name: str
    doc: str
    content: str  # a name of the runtime's content_kind, with the bases' content
    qualified_name: str  # as reports name it
    base: str | None = None
    attributes: tuple = ()
    elements: tuple = ()
    local: bool = False  # declares no namespace when it's written
    inline: bool = False  # has no element of its own
    nillable: bool = False
    may_be_empty: bool = False
    abstract: bool = False
    named: bool = False  # a named type among others that derive from each other: it has an identity
    wrapper: bool = False  # a global element's class that adds nothing to its type
    element: str | None = None  # the global element
    is_document: bool = False  # the element can be a whole document
    derives_from_group: bool = False
    init: str | None = None
    declarations: tuple = ()
    topic: str = ""
    package_name: str = ""  # in the typed packages

    @property
    def items(self):
        return self.attributes + self.elements

    @property
    def name_item(self):
        """The item whose text names an object in reports: "Name", or of PaletteType "PaletteName"."""
        names = ("Name", self.name.removesuffix("Type") + "Name")
        found = (item for item in self.items if item.kind in ("attribute", "element") and item.name in names)
        return next((item for item in found if item.value.value == "text"), None)


@dataclass(frozen=True)
class Model:
    namespace: str
    classes: tuple  # in schema order
    simple_types: tuple
    topics: tuple


def plural(name):
    """The English plural of a name; what is one already stays."""
    if name.endswith("s"):
        return name
    if name.endswith("y") and name[-2] not in "aeiou":
        return name[:-1] + "ies"
    return name + ("es" if name.endswith(("x", "ch", "sh")) else "s")


BUILT_IN = {
    "string": SimpleType("xs:string", "text", False),
    "token": SimpleType("xs:token", "text", True),
    "double": SimpleType("xs:double", "number", True),
    "boolean": SimpleType("xs:boolean", "boolean", True),
    "dateTime": SimpleType("xs:dateTime", "datetime", True),
    "base64Binary": SimpleType("xs:base64Binary", "binary", True),
    # Without bounds there's no member that holds it: only its restrictions can be used.
    "integer": SimpleType("xs:integer", "integer", True),
}
INTEGER_RANGES = (("uint8", 0, 2**8 - 1), ("uint32", 0, 2**32 - 1), ("int32", -(2**31), 2**31 - 1))
# Facet of the schema -> what it sets.
FACETS = {
    "minInclusive": lambda value: {"minimum": value},
    "minExclusive": lambda value: {"minimum": value, "minimum_exclusive": True},
    "maxInclusive": lambda value: {"maximum": value},
    "maxExclusive": lambda value: {"maximum": value, "maximum_exclusive": True},
    "minLength": lambda value: {"minimum_length": int(value)},
    "maxLength": lambda value: {"maximum_length": int(value)},
    "pattern": lambda value: {"pattern": value},
}
REQUIRED = ("demanded", "asked", "written", "copied")


def has_own_class(element):
    """True for an element whose type is nested in it, or whose nil state makes it more than its type."""
    return element.get("type") is None or element.get("nillable") == "true"


class Builder:
    """Reads the schema into classes. Order is the schema's: an outer class stands ahead of its nested ones."""

    def __init__(self, root: Node, overlay: Overlay):
        self.root, self.overlay = root, overlay
        root.check("targetNamespace elementFormDefault attributeFormDefault version", "element complexType simpleType")
        self.types = self.index("complexType")
        self.simple_nodes = self.index("simpleType")
        self.elements = self.index("element")
        self.classes, self.simple_types = {}, {}
        self.members = {}  # head of a substitution group -> its members
        for node in self.elements.values():
            if head := node.get("substitutionGroup"):
                if head not in self.elements:
                    raise node.error(f"there is no global element {head}")
                self.members.setdefault(head, []).append(node)
        self.topics = {}
        for topic in overlay.table("topics"):
            for name in overlay.take("topics", topic):
                if name not in self.types and name not in self.elements:
                    raise overlay.error("topics", topic, f"{name} is no named type and no global element")
                self.topics[name] = topic

    def index(self, tag):
        found = {}
        for node in self.root.all(tag):
            name = node.get("name")
            if name is None or name in found:
                raise node.error(f"a global xs:{tag} needs a name of its own")
            found[name] = node
        return found

    def doc(self, node):
        annotation = node.only("annotation")
        text = "" if annotation is None else " ".join("".join(d.text for d in annotation.children).split())
        if not text:
            raise node.error(f"xs:{node.tag} {node.get('name', node.get('ref', ''))} has no documentation")
        return text

    def options(self, table, key, *allowed):
        """The overlay's options for a class or item, all of them known."""
        found = self.overlay.take(table, key, {})
        for option in found:
            if option not in allowed:
                raise self.overlay.error(table, key, f"the option '{option}' is not known in [{table}]")
        return found

    # Simple types

    def simple_type(self, node, name):
        """The simple type of a name as written in the schema, or None if that's a complex type."""
        if name is None:
            raise node.error(f"xs:{node.tag} {node.get('name', '')} needs a named type")
        if name.startswith("xs:"):
            if name[3:] not in BUILT_IN:
                raise node.error(f"the built-in type {name} is not supported")
            return BUILT_IN[name[3:]]
        if name in self.types:
            return None
        if name not in self.simple_nodes:
            raise node.error(f"there is no type {name}")
        if name not in self.simple_types:
            self.simple_types[name] = self.read_simple_type(self.simple_nodes[name])
        return self.simple_types[name]

    def read_simple_type(self, node):
        node.check("name", "annotation restriction")
        restriction = node.only("restriction")
        if restriction is None:
            raise node.error("a simple type must be a restriction")
        restriction.check("base", "enumeration " + " ".join(FACETS))
        base = self.simple_type(restriction, restriction.get("base"))
        if base is None or not base.name.startswith("xs:"):
            raise restriction.error("only built-in types can be restricted")
        texts = restriction.all("enumeration")
        facets = {"enumeration": tuple(text.get("value") for text in texts),
                  "enumeration_docs": tuple(self.doc(text) for text in texts)}
        for facet in restriction.children:
            facet.check("value", "annotation" if facet.tag == "enumeration" else "")
            value = facet.get("value", "")
            if facet.tag not in ("enumeration", "pattern") and not re.fullmatch(r"-?\d+(\.\d+)?", value):
                raise facet.error(f"'{value}' is no plain decimal number")
            if facet.tag in FACETS:
                facets |= FACETS[facet.tag](value)
        facets |= self.options("facets", node.get("name"), "setter_skips_minimum", "pattern_takes_zoned")
        made = replace(base, name=node.get("name"), doc=self.doc(node), **facets)
        return replace(made, value=self.integer_kind(node, made)) if base.value == "integer" else made

    def integer_kind(self, node, made):
        """The narrowest member that holds every value within the bounds."""
        if made.minimum is not None and made.maximum is not None:
            for kind, least, most in INTEGER_RANGES:
                if least <= int(made.minimum) and int(made.maximum) <= most:
                    return kind
        raise node.error("an integer type needs bounds within 32 bits")

    # Classes

    def build(self):
        for node in self.root.children:
            name = node.get("name")
            if node.tag == "complexType":
                node.check("name abstract", "annotation sequence choice attribute complexContent simpleContent")
                self.complex_class(name, node, self.doc(node), named=True, abstract=node.get("abstract") == "true",
                                   qualified_name=PREFIX + name)
            elif node.tag == "element":
                self.global_element(node)
            else:
                self.simple_type(node, name)

    def add(self, node, name, *fields, **options):
        """A class; one that is known by its place only, without fields, gets them later."""
        if fields and self.classes.get(name) is None:
            self.classes[name] = Class(name, *fields, **options)
        elif name not in self.classes:
            self.classes[name] = None
        else:
            raise node.error(f"a second class {name}: name one of them in the overlay")

    def global_element(self, node):
        node.check("name type abstract nillable substitutionGroup", "annotation complexType")
        name = node.get("name")
        if node.get("type") is not None and node.get("type") not in self.types:
            raise node.error("a global element must have a complex type")
        self.element_class(name, node, wrapper=not has_own_class(node), element=name,
                           is_document=node.get("abstract") != "true")
        if name in self.members:
            self.holder(node)

    def holder(self, head):
        """The class that holds one member of a substitution group; the head itself is one unless abstract."""
        items = []
        for node in [head] * (head.get("abstract") != "true") + self.members[head.get("name")]:
            name, type_name = node.get("name"), node.get("type")
            use = ("demanded",) if self.types[type_name].get("abstract") == "true" else ()
            items.append(Item("alternative", name, name, self.doc(node), type=type_name, minimum=0, use=use))
        name = head.get("name")
        self.add(head, "sg_" + name, f"One element of the group {name}: which, and its value.", "group", "sg_" + name,
                 elements=tuple(items), inline=True, topic=self.topics.get(name, ""))

    def element_class(self, name, node, **options):
        options |= {"nillable": node.get("nillable") == "true", "qualified_name": PREFIX + node.get("name")}
        if nested := node.only("complexType"):
            nested.check("", "annotation sequence choice attribute simpleContent")
            self.complex_class(name, nested, self.doc(nested), **options)
        elif simple := self.simple_type(node, node.get("type")):
            content = self.finish(name, Item("content", "", name, self.doc(node), simple))
            self.add(node, name, content.doc, "simple", elements=(content,), **options)
        else:
            self.add(node, name, self.doc(node), "", base=node.get("type"), **options)

    def complex_class(self, name, node, doc, **options):
        """The class of a complex type, which stands ahead of those nested in it."""
        options |= self.options("classes", name, "may_be_empty", "derives_from_group", "init", "declarations")
        options["declarations"] = tuple((d["text"], d["doc"]) for d in options.get("declarations", ()))
        self.add(node, name)
        base, content, elements, body = None, "empty", (), node
        if extended := node.only("simpleContent", "complexContent"):
            extended.check("", "extension")
            body = extended.only("extension")
            body.check("base", "annotation attribute sequence")
            base = body.get("base")
            if extended.tag == "complexContent":
                if base not in self.types:
                    raise body.error("complex content must extend a named complex type")
            elif simple := self.simple_type(body, base):
                base, content = None, "simple"
                elements = (self.finish(name, Item("content", "", name, self.doc(body), simple)),)
            else:
                raise body.error("simple content must extend a simple type")
        if sequence := body.only("sequence"):
            content, elements = "children", self.sequence(name, sequence)
        elif choice := body.only("choice"):
            content, elements = "choice", self.choice(name, choice)
        attributes = tuple(self.attribute(name, attribute) for attribute in body.all("attribute"))
        if options.get("derives_from_group"):
            if [item.kind for item in elements] != ["group"]:
                raise node.error(f"class {name} has other items than one group")
            base = elements[0].type
        self.add(node, name, doc, content, base=base, attributes=attributes, elements=tuple(elements), **options)

    # Items

    def attribute(self, owner, node):
        node.check("name type use default", "annotation")
        simple = self.simple_type(node, node.get("type"))
        if simple is None:
            raise node.error("an attribute must have a simple type")
        initial = node.get("default")
        if initial is not None and initial not in simple.enumeration:
            raise node.error("a default must be one of the texts of an enumeration")
        minimum = 1 if node.get("use") == "required" else 0
        return self.finish(owner, Item("attribute", node.get("name"), node.get("name"), self.doc(node), simple,
                                       minimum=minimum, initial=initial))

    def occurrence(self, node):
        least, most = node.get("minOccurs", "1"), node.get("maxOccurs", "1")
        if least not in ("0", "1") or most not in ("1", "unbounded"):
            raise node.error(f"minOccurs {least} with maxOccurs {most} is not supported")
        return {"minimum": int(least), "repeats": most == "unbounded"}

    def sequence(self, owner, node):
        node.check("", "element any choice")
        make = {"element": self.element, "any": self.open_content, "choice": self.inline_choice}
        items = [self.finish(owner, make[child.tag](owner, child)) for child in node.children]
        for child, item in zip(node.children, items):
            if item.kind == "any" and (not item.repeats or len(items) > 1):
                raise child.error("a wildcard must be repeating and all of the content")
        return items

    def open_content(self, owner, node):
        node.check("namespace processContents minOccurs maxOccurs", "annotation")
        if node.get("namespace") != "##any" or node.get("processContents") != "skip":
            raise node.error("a wildcard must take any element and skip its content")
        return Item("any", "", "any", self.doc(node), **self.occurrence(node))

    def inline_choice(self, owner, node):
        """Alternatives among other items make a class without an element, named after the first of them."""
        node.check("", "annotation element")
        name = "anon_" + node.all("element")[0].get("name", "")
        self.add(node, name)
        elements = tuple(self.choice(name, node))
        self.add(node, name, self.doc(node), "choice", "", elements=elements, inline=True, local=True)
        return Item("group", "", name, self.doc(node), type=name)

    def choice(self, owner, node):
        node.check("", "annotation element")
        for child in node.all("element"):
            item = self.finish(owner, self.element(owner, child))
            if item.kind not in ("element", "child") or item.minimum != 1:
                raise child.error("an alternative must be one plain element")
            yield replace(item, kind="alternative", minimum=0, use=())

    def element(self, owner, node):
        if node.get("ref") is not None:
            node.check("ref minOccurs maxOccurs", "annotation")
            return self.reference(node)
        node.check("name type nillable minOccurs maxOccurs", "annotation complexType")
        name = node.get("name")
        item = Item("element", name, name, self.doc(node), **self.occurrence(node))
        if has_own_class(node):
            type_name = self.overlay.take("class_names", f"{owner}/{name}", name)
            self.element_class(type_name, node, local=True)
            return replace(item, type=type_name)
        simple = self.simple_type(node, node.get("type"))
        return replace(item, value=simple, type=None if simple else node.get("type"))

    def reference(self, node):
        name = node.get("ref")
        if name not in self.elements:
            raise node.error(f"there is no global element {name}")
        item = Item("element", name, name, self.doc(node), **self.occurrence(node))
        if name in self.members:
            return replace(item, kind="group", type="sg_" + name)
        target = self.elements[name]
        return replace(item, type=name if has_own_class(target) else target.get("type"))

    def finish(self, owner, item):
        """Settles an item's kind and use, and applies what the overlay says of it."""
        name = f"{owner}.{item.name}"
        options = self.options("items", name, "use", "presence", "marker", "initial", "mutable")
        kind = "child" if item.kind == "element" and item.type is not None else item.kind
        if options.get("marker") and (kind != "child" or item.repeats):
            raise self.overlay.error("items", name, "only a single child can be a marker")
        for word in options.get("use", ()):
            if word not in (*REQUIRED, "lax"):
                raise self.overlay.error("items", name, f"'{word}' is no use of an item")
        if options.get("initial") is not None and item.value is None:
            raise self.overlay.error("items", name, "only a simple item can have an initial value")
        use = () if not item.minimum else ("demanded", "asked") if item.repeats else REQUIRED
        settled = {"use": use, "presence": not item.repeats and not item.minimum, "initial": item.initial, **options}
        if settled.pop("marker", False):
            kind, settled["presence"], item = "marker", False, replace(item, accessor="")
        elif item.repeats and kind != "any":
            kind += "_list"
        elif kind == "child" and not settled["use"]:
            kind = "optional_child"
        return replace(item, kind=kind, **settled | {"use": tuple(settled["use"])})

    # What follows from the whole

    def model(self):
        self.build()
        self.owners = {item.type: made for made in self.classes.values() for item in made.items}
        self.families = {made.base for made in self.classes.values() if made.named}
        classes = tuple(self.complete(made) for made in self.classes.values())
        self.overlay.check_all_used()
        self.check_enumerations(classes)
        return Model(self.root.get("targetNamespace"), classes, tuple(self.simple_types.values()),
                     tuple(self.overlay.table("topics")))

    def complete(self, made):
        """A class with what the others decide, and with the names that typed packages give to it and its items."""
        content, topic = made, self.topic(made)
        while not content.content or (content.content == "empty" and content.base):
            content = self.classes[content.base]
        if not topic:
            raise SchemaError(self.overlay.file, self.overlay.lines.get("topics", 0), f"class {made.name} has no topic")
        prefix, _, rest = made.name.partition("_")
        name = f"{rest}Choice" if prefix in ("sg", "anon") else made.name
        return replace(
            made, content=content.content, topic=topic, may_be_empty=made.may_be_empty or self.can_be_empty(made),
            # Only types that derive from another or are derived from have an identity.
            named=made.named and (made.base is not None or made.name in self.families),
            attributes=tuple(self.name_item(made, item) for item in made.attributes),
            elements=tuple(self.name_item(made, item) for item in made.elements),
            package_name=self.overlay.take("package_classes", made.name, name))

    def can_be_empty(self, made):
        """True for a sequence, with those of the bases, in which nothing is mandatory."""
        items, step = [], made
        while step is not None:
            if step.content not in ("children", "", "empty") or step.derives_from_group:
                return False
            items += step.elements
            step = self.classes.get(step.base)
        return bool(items) and all(item.minimum == 0 for item in items)

    def topic(self, made):
        """Of a named type or a group by the overlay; others lie with their owner or with what they derive from."""
        found = made.topic or not (made.local or made.wrapper) and self.topics.get(made.name)
        above = self.owners.get(made.name) if made.local else self.classes.get(made.base)
        return found or above and self.topic(above)

    def name_item(self, made, item):
        key = f"{made.name}.{item.accessor}"
        name = "Value" if item.accessor == made.name else item.accessor
        if item.repeats:
            name = self.overlay.take("package_plurals", item.accessor, plural(name))
        columns = []
        for column, number in self.overlay.take("package_columns", key, {}).items():
            entries = self.classes[item.type].items if item.kind == "child_list" else ()
            found = next((entry for entry in entries if number in (entry.accessor, entry.name)), None)
            if found is None or found.kind == "alternative" or found.value is None or found.value.value != "number":
                raise self.overlay.error("package_columns", key, f"'{number}' is no number of its entries")
            columns.append((column, found.accessor))
        return replace(item, package_name=self.overlay.take("package_items", key, name), columns=tuple(columns),
                       python_name=self.overlay.take("python_names", item.accessor, ""))

    def check_enumerations(self, classes):
        seen = {}
        for item in (item for made in classes for item in made.items if item.enumerated):
            if seen.setdefault(item.accessor, item.value.enumeration) != item.value.enumeration:
                raise SchemaError(self.root.file, self.root.line,
                                  f"items {item.accessor} of one name have different enumerations")


def read_model(schema, overlay):
    return Builder(read_xml(schema), Overlay(overlay)).model()
