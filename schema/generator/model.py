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

    def facets(self):
        """The facets as a text, empty without any."""
        parts = []
        if self.minimum is not None:
            parts.append(f"{'>' if self.minimum_exclusive else '>='} {self.minimum}")
        if self.maximum is not None:
            parts.append(f"{'<' if self.maximum_exclusive else '<='} {self.maximum}")
        if self.setter_skips_minimum:
            parts.append("setter skips minimum")
        if self.minimum_length:
            parts.append(f"length >= {self.minimum_length}")
        if self.maximum_length is not None:
            parts.append(f"length <= {self.maximum_length}")
        if self.pattern is not None:
            parts.append(f"pattern {self.pattern}")
        if self.enumeration:
            parts.append("one of " + "|".join(self.enumeration))
        return ", ".join(parts)


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

    def __getitem__(self, name):
        return next(c for c in self.classes if c.name == name)


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
REQUIRED = ("demanded", "asked", "written", "copied")


class Builder:
    """Reads the schema into classes. Order is the schema's: an outer class stands ahead of its nested ones."""

    def __init__(self, root: Node, overlay: Overlay):
        self.root = root
        self.overlay = overlay
        self.classes = {}
        root.check("targetNamespace elementFormDefault attributeFormDefault version", "element complexType simpleType")
        self.types = self.index("complexType")
        self.simple_nodes = self.index("simpleType")
        self.elements = self.index("element")
        self.simple_types = {}
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

    # Simple types

    def doc(self, node):
        annotation = node.only("annotation")
        text = "" if annotation is None else " ".join("".join(d.text for d in annotation.children).split())
        if not text:
            raise node.error(f"xs:{node.tag} {node.get('name', node.get('ref', ''))} has no documentation")
        return text

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
        restriction.check("base", "enumeration pattern minInclusive minExclusive maxInclusive maxExclusive "
                          "minLength maxLength")
        base = self.simple_type(restriction, restriction.get("base"))
        if base is None or not base.name.startswith("xs:"):
            raise restriction.error("only built-in types can be restricted")
        texts = restriction.all("enumeration")
        facets = {"enumeration": tuple(f.get("value") for f in texts),
                  "enumeration_docs": tuple(self.doc(f) for f in texts)}
        for facet in restriction.children:
            facet.check("value", "annotation" if facet.tag == "enumeration" else "")
            tag, value = facet.tag, facet.get("value", "")
            if tag not in ("enumeration", "pattern") and not re.fullmatch(r"-?\d+(\.\d+)?", value):
                raise facet.error(f"'{value}' is no plain decimal number")
            if tag in ("minInclusive", "minExclusive"):
                facets |= {"minimum": value, "minimum_exclusive": tag == "minExclusive"}
            elif tag in ("maxInclusive", "maxExclusive"):
                facets |= {"maximum": value, "maximum_exclusive": tag == "maxExclusive"}
            elif tag in ("minLength", "maxLength"):
                facets[tag.replace("Length", "imum_length")] = int(value)
            elif tag == "pattern":
                facets["pattern"] = value
        keys = self.options("facets", node.get("name"), ("setter_skips_minimum", "pattern_takes_zoned"))
        made = replace(base, name=node.get("name"), doc=self.doc(node), **facets, **keys)
        return replace(made, value=self.integer_kind(node, made)) if base.value == "integer" else made

    def integer_kind(self, node, made):
        """The narrowest member that holds every value within the bounds."""
        if made.minimum is not None and made.maximum is not None:
            for kind, least, most in INTEGER_RANGES:
                if least <= int(made.minimum) and int(made.maximum) <= most:
                    return kind
        raise node.error("an integer type needs bounds within 32 bits")

    def options(self, table, key, allowed):
        """The overlay's options for a class or item, all of them known."""
        found = self.overlay.take(table, key, {})
        for option in found:
            if option not in allowed:
                raise self.overlay.error(table, key, f"the option '{option}' is not known in [{table}]")
        return found

    # Classes

    def build(self):
        for node in self.root.children:
            name = node.get("name")
            if node.tag == "complexType":
                node.check("name abstract", "annotation sequence choice attribute complexContent simpleContent")
                self.add_class(name, node, node, named=True, abstract=node.get("abstract") == "true",
                               qualified_name=PREFIX + name)
            elif node.tag == "element":
                self.global_element(node)
            elif name not in self.simple_types:
                self.simple_type(node, name)

    def global_element(self, node):
        node.check("name type abstract nillable substitutionGroup", "annotation complexType")
        name = node.get("name")
        options = {"element": name, "is_document": node.get("abstract") != "true", "qualified_name": PREFIX + name}
        if node.get("type") is None:
            self.element_class(name, node, **options)
        elif node.get("type") not in self.types:
            raise node.error("a global element must have a complex type")
        elif self.is_nillable(node):
            self.element_class(name, node, **options)
        else:
            self.add(Class(name, self.doc(node), "", base=node.get("type"), wrapper=True, **options), node)
        if name in self.members or name in (n.get("substitutionGroup") for n in self.elements.values()):
            self.add_holder(node)

    def add_holder(self, head):
        """The class that holds one member of a substitution group; the head itself is one unless abstract."""
        name = head.get("name")
        elements = ([] if head.get("abstract") == "true" else [head]) + self.members[name]
        items = []
        for node in elements:
            demanded = self.types[node.get("type")].get("abstract") == "true"
            items.append(Item("alternative", node.get("name"), node.get("name"), self.doc(node), type=node.get("type"),
                              minimum=0, use=("demanded",) if demanded else ()))
        self.add(Class("sg_" + name, f"One element of the group {name}: which, and its value.", "group", "sg_" + name,
                       elements=tuple(items), inline=True, topic=self.topics.get(name, "")), head)

    def add(self, made, node):
        if made.name in self.classes:
            raise node.error(f"a second class {made.name}: name one of them in the overlay")
        self.classes[made.name] = made

    def element_class(self, name, node, **options):
        """The class of an element whose type is nested in it, or whose nil state makes it more than its type."""
        nested = node.only("complexType")
        nillable = self.is_nillable(node)
        if nested is not None:
            nested.check("", "annotation sequence choice attribute simpleContent")
            self.add_class(name, nested, nested, nillable=nillable, **options)
            return
        simple = self.simple_type(node, node.get("type"))
        made = Class(name, self.doc(node), "simple", nillable=nillable, **options)
        if simple is None:
            made = replace(made, content="", base=node.get("type"))
        else:
            made = replace(made, elements=(self.finish(name, Item("content", "", name, made.doc, simple)),))
        self.add(made, node)

    def is_nillable(self, node):
        return node.get("nillable") == "true"

    def add_class(self, name, node, documented, **options):
        options = {**options, **self.options("classes", name, (
            "may_be_empty", "derives_from_group", "init", "declarations"))}
        options["declarations"] = tuple((d["text"], d["doc"]) for d in options.get("declarations", ()))
        self.add(Class(name, self.doc(documented), "empty", **options), node)
        attributes = node
        if content := node.only("simpleContent", "complexContent"):
            content.check("", "extension")
            extension = content.only("extension")
            extension.check("base", "annotation attribute sequence")
            attributes = extension
            if content.tag == "simpleContent":
                simple = self.simple_type(extension, extension.get("base"))
                if simple is None:
                    raise extension.error("simple content must extend a simple type")
                item = Item("content", "", name, self.doc(extension), simple)
                self.update(name, content="simple", elements=(self.finish(name, item),))
            elif extension.get("base") not in self.types:
                raise extension.error("complex content must extend a named complex type")
            else:
                self.update(name, base=extension.get("base"))
        if sequence := attributes.only("sequence"):
            self.update(name, content="children", elements=tuple(self.sequence(name, sequence)))
        elif choice := attributes.only("choice"):
            self.update(name, content="choice", elements=tuple(self.choice(name, choice)))
        self.update(name, attributes=tuple(self.attribute(name, a) for a in attributes.all("attribute")))
        made = self.classes[name]
        if made.derives_from_group:
            if len(made.elements) != 1 or made.elements[0].kind != "group":
                raise node.error(f"class {name} has other items than one group")
            self.update(name, base=made.elements[0].type)

    def update(self, name, **changes):
        self.classes[name] = replace(self.classes[name], **changes)

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
        for child in node.children:
            if child.tag == "element":
                yield self.element(owner, child)
            elif child.tag == "any":
                child.check("namespace processContents minOccurs maxOccurs", "annotation")
                if child.get("namespace") != "##any" or child.get("processContents") != "skip":
                    raise child.error("a wildcard must take any element and skip its content")
                item = Item("any", "", "any", self.doc(child), **self.occurrence(child))
                if not item.repeats or len(node.children) > 1:
                    raise child.error("a wildcard must be repeating and all of the content")
                yield self.finish(owner, item)
            else:
                yield self.inline_choice(owner, child)

    def inline_choice(self, owner, node):
        """Alternatives among other items make a class without an element, named after the first of them."""
        node.check("", "annotation element")
        name = "anon_" + node.all("element")[0].get("name", "")
        self.add(Class(name, self.doc(node), "choice", "", inline=True, local=True), node)
        self.update(name, elements=tuple(self.choice(name, node)))
        return self.finish(owner, Item("group", "", name, self.doc(node), type=name))

    def choice(self, owner, node):
        node.check("", "annotation element")
        for child in node.all("element"):
            item = self.element(owner, child)
            if item.kind not in ("element", "child") or item.minimum != 1:
                raise child.error("an alternative must be one plain element")
            yield replace(item, kind="alternative", minimum=0, use=())

    def element(self, owner, node):
        if node.get("ref") is not None:
            node.check("ref minOccurs maxOccurs", "annotation")
            return self.reference(owner, node)
        node.check("name type nillable minOccurs maxOccurs", "annotation complexType")
        name = node.get("name")
        item = Item("element", name, name, self.doc(node), **self.occurrence(node))
        if node.get("type") is None or self.is_nillable(node):
            type_name = self.overlay.take("class_names", f"{owner}/{name}", name)
            self.element_class(type_name, node, local=True, qualified_name=PREFIX + name)
            return self.finish(owner, replace(item, type=type_name))
        simple = self.simple_type(node, node.get("type"))
        return self.finish(owner, replace(item, value=simple, type=None if simple else node.get("type")))

    def reference(self, owner, node):
        name = node.get("ref")
        if name not in self.elements:
            raise node.error(f"there is no global element {name}")
        item = Item("element", name, name, self.doc(node), **self.occurrence(node))
        target = self.elements[name]
        if name in self.members:
            return self.finish(owner, replace(item, kind="group", type="sg_" + name))
        plain = target.get("type") is not None and not self.is_nillable(target)
        return self.finish(owner, replace(item, type=target.get("type") if plain else name))

    def finish(self, owner, item):
        """Settles an item's kind and use, and applies what the overlay says of it."""
        name = f"{owner}.{item.name}"
        options = self.options("items", name, ("use", "presence", "marker", "initial", "mutable"))
        kind = item.kind
        if kind == "element" and item.type is not None:
            kind = "child"
        if item.repeats and kind != "any":
            kind += "_list"
        use, presence = (), False
        if item.repeats:
            use = ("demanded", "asked") if item.minimum else ()
        elif item.minimum:
            use = REQUIRED
        else:
            presence = True
        if options.get("marker"):
            if kind != "child" or item.repeats:
                raise self.overlay.error("items", name, "only a single child can be a marker")
            item, kind, presence = replace(item, accessor=""), "marker", False
        for word in options.get("use", ()):
            if word not in (*REQUIRED, "lax"):
                raise self.overlay.error("items", name, f"'{word}' is no use of an item")
        if options.get("initial") is not None and item.value is None:
            raise self.overlay.error("items", name, "only a simple item can have an initial value")
        use = options.get("use", use)
        if kind == "child" and not use:
            kind = "optional_child"
        return replace(item, kind=kind, use=tuple(use),
                       presence=options.get("presence", presence), initial=options.get("initial", item.initial),
                       mutable=options.get("mutable", False))

    # What follows from the whole

    def model(self):
        self.build()
        self.name_for_packages()
        self.overlay.check_all_used()
        for made in list(self.classes.values()):
            content = made
            while not content.content or (content.content == "empty" and content.base):
                content = self.classes[content.base]
            self.update(made.name, content=content.content,
                        may_be_empty=made.may_be_empty or self.can_be_empty(self.classes[made.name]))
        self.keep_families()
        self.set_topics()
        self.check_enumerations()
        return Model(self.root.get("targetNamespace"), tuple(self.classes.values()),
                     tuple(self.simple_types.values()), tuple(self.overlay.table("topics")))

    def can_be_empty(self, made):
        """True for a sequence, with those of the bases, in which nothing is mandatory."""
        items, step = [], made
        while step is not None and not made.derives_from_group:
            if step.content not in ("children", "", "empty"):
                return False
            items += step.elements
            step = self.classes[step.base] if step.base else None
        return bool(items) and all(item.minimum == 0 for item in items) and made.content != "group"

    def keep_families(self):
        """`named` stays with the types that derive from another named type or are derived from."""
        bases = {c.base for c in self.classes.values() if c.named and c.base}
        for made in list(self.classes.values()):
            self.update(made.name, named=made.named and (made.base is not None or made.name in bases))

    def set_topics(self):
        owner = {item.type: made.name for made in self.classes.values() for item in made.items
                 if self.classes.get(item.type) and (self.classes[item.type].local or item.kind == "marker")}
        for made in list(self.classes.values()):
            name = made.name
            while name is not None and not made.topic:
                step = self.classes[name]
                topic = step.topic or (None if step.local else self.topics.get(name))
                if topic and not (step is made and step.wrapper):
                    self.update(made.name, topic=topic)
                    break
                name = owner.get(name) if step.local else step.base
            if not self.classes[made.name].topic:
                raise SchemaError(self.overlay.file, self.overlay.lines.get("topics", 0),
                                  f"class {made.name} has no topic")

    def name_for_packages(self):
        """The names that typed packages give to classes and items, by rule or by the overlay."""
        for made in self.classes.values():
            prefix, _, rest = made.name.partition("_")
            name = f"{rest}Choice" if prefix in ("sg", "anon") else made.name
            parts = {part: tuple(self.name_item(made, item) for item in getattr(made, part))
                     for part in ("attributes", "elements")}
            self.update(made.name, package_name=self.overlay.take("package_classes", made.name, name), **parts)

    def name_item(self, made, item):
        key = f"{made.name}.{item.accessor}"
        name = "Value" if item.accessor == made.name else item.accessor
        if item.repeats:
            name = self.overlay.take("package_plurals", item.accessor, plural(name))
        columns = []
        for column, number in self.overlay.take("package_columns", key, {}).items():
            found = next((i for i in self.classes[item.type].items if number in (i.accessor, i.name)), None) \
                if item.kind == "child_list" else None
            if found is None or found.kind == "alternative" or found.value is None or found.value.value != "number":
                raise self.overlay.error("package_columns", key, f"'{number}' is no number of its entries")
            columns.append((column, found.accessor))
        return replace(item, package_name=self.overlay.take("package_items", key, name), columns=tuple(columns))

    def check_enumerations(self):
        seen = {}
        for made in self.classes.values():
            for item in made.items:
                if item.enumerated and seen.setdefault(item.accessor, item.value.enumeration) != item.value.enumeration:
                    raise SchemaError(self.root.file, self.root.line,
                                      f"items {item.accessor} of one name have different enumerations")


def read_model(schema, overlay):
    return Builder(read_xml(schema), Overlay(overlay)).model()
