# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""python/vyr/generated/: the classes of the format as a Python program has them, and their types for checkers.

A class is a list of its properties; what one does follows from the row that the library has of the item, and lies in
python/module/. The stub beside each module says the types.
"""

import keyword
import re

from cpp import LISTS, WIDTH, wrap
from members import own_choice
from source import SchemaError

# Kind of value -> what a property gives, and what it takes.
VALUES = {
    "number": ("float", "float"),
    "int32": ("int", "int"),
    "uint32": ("int", "int"),
    "uint8": ("int", "int"),
    "boolean": ("bool", "bool"),
    "text": ("str", "str"),
    "binary": ("bytes", "bytes"),
    "datetime": ("datetime", "datetime | str"),
}
# What all objects, and those of choices and points, have besides.
TAKEN = {"copy", "reset", "set_nil", "is_complete", "is_alive", "is_nil", "properties", "schema_name", "abstract",
         "alternatives", "chosen", "held", "arrays", "set_arrays", "load", "save", "to_bytes"}
START = ["# Copyright 2026 The Vyr Authors", "# SPDX-License-Identifier: Apache-2.0", "#",
         "# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead."]


def snake(name):
    """ReadSDKInformation -> read_sdk_information"""
    made = re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])", "_", name).lower()
    return made + "_" if keyword.iskeyword(made) else made


def property_name(made, item):
    group = made.name.removeprefix("sg_") if item.kind == "alternative" else ""
    return item.python_name or snake(item.package_name.removeprefix(group) or item.package_name)


def is_optional(item):
    return not {"demanded", "copied"} & set(item.use)


def can_be_none(item):
    """Whether reading can give None: for what a document needs, too, until it is set, and in an element that is nil."""
    if item.kind == "alternative" or item.presence:
        return True
    # A child that hand-written members change is there from the start.
    return not item.mutable if item.type else bool(item.enumerated) and item.initial is None


def docstring(text, indent):
    made = wrap(f'"""{text}"""'.replace("\\", "\\\\"), WIDTH - indent)
    return [" " * indent + line for line in made]


def literal(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def call(start, arguments, indent):
    """A call, with an argument a line if it is too long for one; a long text is broken at its spaces."""
    line = f"{' ' * indent}{start}({', '.join(arguments)})"
    if len(line) <= WIDTH:
        return [line]
    pieces = []
    for argument in arguments:
        lines = wrap(argument, WIDTH - indent - 8)
        lines = [f"{text} \"" if text != lines[-1] else text for text in lines]
        pieces += [f"{' ' * (indent + 4)}{'' if text == lines[0] else chr(34)}{text}{',' if text == lines[-1] else ''}"
                   for text in lines]
    return [f"{' ' * indent}{start}(", *pieces, f"{' ' * indent})"]


class ClassPrinter:
    """One class: `lines` of the module, `stubs` of the stub, and the names of other classes in either."""

    def __init__(self, plan, made):
        self.plan, self.made = plan, made
        self.lines, self.stubs, self.names = [], [], set()
        self.parameters = {}  # of __init__: name -> type

    def class_name(self, name):
        return self.plan.by_name[name].package_name

    def add(self, item, name, get, take, *arguments):
        if name in self.names or name in TAKEN:
            raise SchemaError("binding.toml", 0, f"{self.made.name} has two members {name} in Python: name one of them "
                              "in [python_names]")
        self.names.add(name)
        self.lines += call(f"{name} = Property", [literal(item.accessor), literal(item.doc), *arguments], 4)
        self.stubs += [f"    {name}: Property[{get}, {take}]", *docstring(item.doc, 4)]
        self.parameters[name] = take

    def maybe(self, item, name, get, take, *arguments):
        """A single value or object, which may be None."""
        self.add(item, name, get + " | None" * can_be_none(item), take + " | None" * item.presence, *arguments)

    def method(self, name, body, result, doc):
        self.names.add(name)
        self.lines.append(f"    {name} = {body}")
        self.stubs += [f"    def {name}(self, **values: Any) -> {result}:", *docstring(doc, 8)]

    def simple(self, item, name):
        enumeration = item.value.name if item.enumerated else None
        get, take = (enumeration, f"{enumeration} | int | str") if enumeration else VALUES[item.value.value]
        self.maybe(item, name, get, take, *([enumeration] if enumeration else []))
        if item.value.value == "datetime":
            self.maybe(item, f"{name}_text", "str", "str", "str")

    def repeating(self, item, name):
        if item.kind == "any":
            self.add(item, name, "List[str]", "Iterable[str]")
        elif item.kind == "element_list":
            if item.enumerated or item.value.value not in ("text", "datetime"):
                raise SchemaError("vyr.xsd", 0, f"a list of {item.value.name}, as {item.accessor}, has no form in "
                                  "Python yet")
            kind = "List[str]" if item.value.value == "text" else "TimeList"
            self.add(item, name, kind, f"Iterable[{VALUES[item.value.value][1]}]")
        else:
            entry = self.class_name(item.type)
            if own_choice(self.plan.by_name[item.type]):
                self.add(item, name, f"{entry}List", f"Iterable[{entry} | Object]", f"{entry}List")
            else:
                self.add(item, name, f"List[{entry}]", f"Iterable[{entry}]")
        if item.columns:
            columns = [f"{snake(column)}={literal(accessor)}" for column, accessor in item.columns]
            self.lines += call("_gather, arrays, set_arrays = _columns", [name, *columns], 4)
            parameters = ", ".join(f"{snake(column)}: Numbers" for column, _ in item.columns)
            tuples = ", ".join(["Array"] * len(item.columns))
            words = " and ".join(snake(column) for column, _ in item.columns)
            self.stubs += [f"    def arrays(self) -> tuple[{tuples}]:",
                           *docstring(f"The {words} of all {name} as arrays of numpy.", 8),
                           f"    def set_arrays(self, {parameters}) -> None:",
                           *docstring(f"Sets {words} and makes {name} as many; nothing changes if one is refused.",
                                      8)]

    def object(self, item, name):
        kind = self.class_name(item.type)
        self.maybe(item, name, kind, kind)
        if item.kind == "alternative" and self.plan.by_name[item.type].abstract:
            return
        verb, ending = ("choose", "chosen") if item.kind == "alternative" else ("create", "there")
        self.method(f"{verb}_{name}", f"_creator({name})", kind,
                    f"Gives `{name}`, which it makes if it isn't {ending}, and sets properties of it.")

    def members(self):
        if self.made.wrapper:
            return
        for item in self.made.items:
            if not item.accessor:
                continue
            name = property_name(self.made, item)
            if item.kind != "alternative" and not item.repeats and is_optional(item) != item.presence:
                raise SchemaError("binding.toml", 0, f"{self.made.name}.{item.accessor} has no form in Python yet")
            if item.kind in (*LISTS, "any"):
                self.repeating(item, name)
            elif item.type:
                self.object(item, name)
            else:
                self.simple(item, name)
        if own_choice(self.made) and not self.made.base:
            names = [literal(property_name(self.made, item)) for item in self.made.elements]
            self.lines += call("alternatives = ", names, 4)
            self.stubs += ["    @property", f"    def chosen(self) -> Literal[{', '.join(names)}] | None:",
                           *docstring("The name of the alternative that is held; None if none was chosen.", 8)]

    def bases(self):
        if self.made.is_document:
            yield "Whole" if not self.made.wrapper and self.made.element == "Vyr" else "ElementFile"
        if self.made.base and not self.made.derives_from_group:
            yield self.class_name(self.made.base)
        elif own_choice(self.made):
            yield "Choice"
        else:
            yield "Object"

    def inherited(self, printers):
        """The parameters of the bases, and its own."""
        base = printers.get(self.made.base) if not self.made.derives_from_group else None
        return (base.inherited(printers) if base else {}) | self.parameters

    def print_module(self):
        head = [f"class {self.made.package_name}({', '.join(self.bases())}):", *docstring(self.made.doc, 4), "",
                "    __slots__ = ()", f"    schema_name = {literal(self.made.name)}"]
        if self.made.abstract or (self.made.wrapper and not self.made.is_document):
            head.append("    abstract = True")
        return [*head, *self.lines, "", ""]

    def print_list(self):
        """The list of a choice, which knows the alternatives of its first entries."""
        name = self.made.package_name
        rows = [row for row in self.made.elements if row.type]
        names = [property_name(self.made, item) for item in rows]
        doc = f"A list of {name}, which gives the first alternative of each kind."
        module = [f"class {name}List(ChoiceList[{name}]):", *docstring(doc, 4), "", "    __slots__ = ()",
                  *(f"    {alternative} = _first({name}.{alternative})" for alternative in names), "", ""]
        stub = [f"class {name}List(ChoiceList[{name}]):", *docstring(doc, 4)]
        for alternative, item in zip(names, rows):
            stub += ["    @property", f"    def {alternative}(self) -> {self.class_name(item.type)} | None:",
                     *docstring(item.doc, 8)]
        return module, [*stub, ""]

    def print_stub(self, printers):
        parameters = [f"{name}: {kind} = ..." for name, kind in self.inherited(printers).items()]
        signature = call("def __init__", ["self", *(["*"] if parameters else []), *parameters], 4)
        signature[-1] += " -> None: ..."
        own = [] if self.made.abstract or self.made.wrapper else signature
        head = f"class {self.made.package_name}({', '.join(self.bases())}):"
        return [head, *docstring(self.made.doc, 4), *own, *self.stubs, ""]


OBJECTS = ["Choice", "ChoiceList", "List", "Object", "TimeList", "_columns", "_creator", "_first"]


def import_line(module, names):
    line = f"from {module} import {', '.join(names)}"
    return [line] if len(line) <= WIDTH else call(f"from {module} import ", names, 0)


def uses(body, names):
    words = set(re.findall(r"\w+", re.sub(r'"[^"]*"', "", "\n".join(body))))
    return [name for name in sorted(names) if name in words]


def imports(plan, topic, body, enumerations, is_stub):
    """Modules need what they stand on; stubs whatever they mention."""
    own = {made.package_name for made in topic.classes} | {f"{made.package_name}List" for made in topic.classes}
    if is_stub:
        yield from ["import builtins", "from collections.abc import Iterable", "from datetime import datetime",
                    "from typing import Any, Literal", ""]
    if used := uses(body, ["ElementFile", "Whole"]):
        yield f"from .._documents import {', '.join(used)}"
    if used := uses(body, OBJECTS + ["Array", "Numbers"] * is_stub):
        yield f"from .._objects import {', '.join(used)}"
    if used := uses(body, ["Property"]):
        yield "from .._vyr import Property"
    if used := uses(body, enumerations):
        yield from import_line(".enumerations", used)
    for other in plan.topics:
        known = {made.package_name for made in other.classes}
        known |= {f"{made.package_name}List" for made in other.classes}
        if other is not topic and (used := uses(body, known - own)):
            yield from import_line(f".{other.name}", used)


def frame(purpose, head, body):
    return "\n".join([*START, *docstring(purpose, 0), "", *head, "", "", *body]).rstrip() + "\n"


def print_enumerations(plan):
    body = []
    for simple in plan.enumeration_types:
        body += [f"class {simple.name}(Enumeration):", *docstring(simple.doc, 4), ""]
        for number, name, text, doc in simple.enumerators():
            body += call(f"{name} = ", [str(number), literal(text), literal(doc)], 4)
        body += ["", ""]
    names = [literal(simple.name) for simple in plan.enumeration_types]
    head = ["from .._enumeration import Enumeration", "", *call("__all__ = ", names, 0)]
    return frame("The enumerations of the format.", head, body)


def print_python_files(plan):
    printers = {made.name: ClassPrinter(plan, made) for topic in plan.topics for made in topic.classes}
    for printer in printers.values():
        printer.members()
    enumerations = [simple.name for simple in plan.enumeration_types]
    lists = {item.type for made in plan.model.classes for item in made.items
             if item.kind in ("child_list", "group_list")}
    files = {"enumerations.py": print_enumerations(plan)}
    for topic in plan.topics:
        module, stub, names = [], [], []
        for made in topic.classes:
            printer = printers[made.name]
            module += printer.print_module()
            stub += printer.print_stub(printers)
            names.append(made.package_name)
            if own_choice(made) and made.name in lists:
                for part, lines in zip((module, stub), printer.print_list()):
                    part += lines
                names.append(f"{made.package_name}List")
        purpose = f"Classes of the topic {topic.name}."
        exported = call("__all__ = ", [literal(name) for name in names], 0)
        for ending, body in ((".py", module), (".pyi", stub)):
            head = [*imports(plan, topic, body, enumerations, ending == ".pyi"), "", *exported]
            files[topic.name + ending] = frame(purpose, head, body)
    modules = ["enumerations", *(topic.name for topic in plan.topics)]
    files["__init__.py"] = frame("The classes of the format, as the schema has them.",
                                 [f"from .{name} import *" for name in modules], [])
    return files
