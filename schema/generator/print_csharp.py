# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""csharp/generated/: the classes of the format as a C# program has them, and the native functions that they call.

A member is a line over the functions of csharp/VyrObject.cs, where presence, parts, lists and failures are seen to.
Which native functions a class declares follows from the lines that call them.
"""

import re
from xml.sax.saxutils import escape

from cpp import LISTS, WIDTH, wrap
from members import own_choice
from print_flat import functions_of
from source import SchemaError

# Kind of value -> its type, the value from `get_X`, and a code from `set_X` for the value `{v}`.
VALUES = {
    "number": ("double", "Kept(Native.get_{x}(Pointer))", "Native.set_{x}(Pointer, {v})"),
    "int32": ("int", "Kept(Native.get_{x}(Pointer))", "Native.set_{x}(Pointer, {v})"),
    "uint32": ("uint", "Kept(Native.get_{x}(Pointer))", "Native.set_{x}(Pointer, {v})"),
    "uint8": ("byte", "(byte)Kept(Native.get_{x}(Pointer))", "Native.set_{x}(Pointer, {v})"),
    "boolean": ("bool", "Is(Native.get_{x}(Pointer))", "Native.set_{x}(Pointer, {v} ? 1u : 0u)"),
    "text": ("string", "Kept(Native.get_{x}(Pointer))", "Native.set_{x}(Pointer, Library.Whole({v}))"),
    "binary": ("byte[]", "Kept(Binary.Read(Native.get_{x}(Pointer)))",
               "Binary.Give({v}, data => Native.set_{x}(Pointer, data))"),
    "datetime": ("DateTimeOffset", "DateTimeText.Parse({text})",
                 "DateTimeText.Give(DateTimeText.Format({v}), {pattern}, time => Native.set_{x}(Pointer, time))"),
    "datetime text": ("string", "Kept(DateTimeText.Read(Native.get_{x}(Pointer)))",
                      "DateTimeText.Give({v}, {pattern}, time => Native.set_{x}(Pointer, time))"),
    "enumerated": ("{kind}", "({kind})Kept(Native.getenum_{x}(Pointer))",
                   "Listed(Native.setenum_{x}(Pointer, (int){v}))"),
}
REFERENCES = ("string", "byte[]")
# Type of a flat function's argument or result -> type in C#.
ARGUMENTS = {"void*": "IntPtr", "const char16_t*": "[MarshalAs(UnmanagedType.LPWStr)] string", "const char*": "byte[]",
             "std::int32_t": "int", "std::uint32_t": "uint", "double": "double"}
RESULTS = {"void": "void", "void*": "IntPtr", "const char*": "IntPtr", "char*": "IntPtr", "std::int32_t": "int",
           "std::uint32_t": "uint", "double": "double", "char16_t*": "string"}
PARTS = ("child", "optional_child", "group", *LISTS, "any")


def summary(text, indent):
    return [f"/// {line}" for line in wrap(f"<summary>{escape(text)}</summary>", WIDTH - indent)]


def literal(text):
    return "null" if text is None else '@"' + text.replace('"', '""') + '"'


class Value:
    """What the lines of a simple item are made of."""

    def __init__(self, item, kind=None):
        kind = kind or ("enumerated" if item.enumerated else item.value.value)
        names = {"x": item.accessor, "kind": item.value.name, "pattern": literal(item.value.pattern), "v": "{v}",
                 "text": VALUES["datetime text"][1].format(x=item.accessor)}
        self.type, self.get, self.code = (form.format(**names) for form in VALUES[kind])
        self.is_reference = self.type in REFERENCES
        self.nullable = self.type if self.is_reference else self.type + "?"
        self.null = "null" if self.is_reference else f"default({self.nullable})"

    def set(self, value):
        return self.code.format(v=value)

    def maybe(self, condition):
        return f"{condition} ? {self.get} : {self.null}"


class Printer:
    """The members of one class: `lines` for its users; of what those call, functions in `native` and rows in `tables`.

    A row is made at its first use: only once there is an object, and so the library, and without those of all the
    members that nobody asks for, which the runtime would have to compile.
    """

    def __init__(self, plan, made):
        self.plan, self.made = plan, made
        self.lines, self.native, self.tables, self.names, self.used = [], {}, [], set(), []
        self.parts = first_part(plan, made)

    def class_name(self, name):
        return self.plan.by_name[name].package_name

    def part_calls(self, item, assign):
        """The row with the functions of a single child or an alternative."""
        x, kind = item.accessor, self.class_name(item.type)
        is_child = item.kind != "alternative"
        # An alternative can be of a derived class; what lies in its owner can't.
        known = not is_child and self.plan.factory(self.plan.by_name[item.type])
        fields = [f"Make = h => {f'{kind}.Of(h)' if known else f'new {kind}(h)'}", f"Get = Native.get_{x}",
                  f"Assign = {assign}"]
        if is_child:
            fields.insert(0, f"Item = {self.item(x)}")
        if item.presence:
            fields.append(f"Unset = Native.unset_{x}")
        return self.table("PartCalls", x, fields)

    def helper(self, name, line, *used):
        """A function beside the native ones, and those that it calls."""
        self.native.setdefault(name, []).append(f"internal static {line}")
        self.used += used

    def table(self, kind, name, fields):
        self.lazy(kind, name, "null", f"new {kind} {{ {', '.join(fields)} }}")
        return f"Parts.{name}"

    def lazy(self, kind, name, unmade, value):
        """What is made when it is first asked for; if two threads do, either one's is as good."""
        lines = [f"static {kind} made{name};",
                 f"internal static {kind} {name} => made{name} != {unmade} ? made{name} : made{name} = {value};"]
        if lines[0] not in self.tables:
            self.tables += lines

    def add(self, doc, declaration, body):
        if self.lines:
            self.lines.append("")
        self.lines += [*(summary(doc, 12) if doc else ["/// <inheritdoc/>"]), f"{declaration} {body}"]
        # A method may have several forms; everything else has its name alone.
        name = declaration.split("(")[0].rpartition(" ")[2]
        if name in self.names and not declaration.endswith(")"):
            raise SchemaError("binding.toml", 0, f"{self.made.name} has two members {name} in typed packages: name one in "
                              "[package_items]")
        self.names.add(name)

    def property(self, doc, kind, name, get, code, modifier=""):
        self.add(doc, f"public {modifier}{kind} {name}", f"{{ get => {get}; set => {code}; }}")

    def part_number(self):
        self.parts += 1
        return self.parts - 1

    def item(self, name, owner=None, row=None):
        """What the functions that work by item take."""
        row = row or f"{name}Item"
        self.lazy("IntPtr", row, "IntPtr.Zero", f'Library.Item("{(owner or self.made).name}", "{name}")')
        return row


def first_part(plan, made):
    """Parts are numbered from those of the base on."""
    base = plan.base(made)
    if base is None or made.derives_from_group:
        return 0
    own = sum(item.kind in PARTS for item in base.items) + (base.content in ("choice", "group") and not base.base)
    return first_part(plan, base) + own


def life_cycle(printer, plan, made):
    name, lines = made.package_name, printer.lines
    if made.wrapper and not made.is_document:
        lines.append(f"internal {name}(Handle handle) : base(handle) {{ }}")
        return
    if not made.abstract:
        printer.add("A new object that stands on its own, with nothing set.", f"public {name}()",
                    ": this(Native.Make()) { }")
        printer.helper("Make", "Handle Make() => Handle.New(() => New(), p => Delete(p));", "New", "Delete")
    lines += [*[""] * bool(lines), f"internal {name}(Handle handle) : base(handle) {{ }}"]
    printer.helper("Make", "Handle Make(IntPtr source) => Handle.New(() => Copy(source), p => Delete(p));", "Copy", "Delete")
    printer.add(None, f"public new {name} Clone()", f"=> ({name})Copy();")
    lines.append(f"internal override VyrObject Copy() => Copied(new {name}(Native.Make(Pointer)));")
    if made.wrapper:
        return
    printer.lazy("ClassCalls", "Class", "null", "new ClassCalls { IsComplete = Native.is_occurs_ok, Reset = Native.reset }")
    lines.append("internal override ClassCalls Class => Parts.Class;")
    if made.nillable:
        printer.add("True for an element that says that it has no value.", "public bool IsNil",
                    f"=> Is(Native.isnil_{made.name}(Pointer));")
        has_value = plan.content_item(made) or any(item.kind == "content" for item in made.items)
        ends = ", and so does setting `Value`" if has_value else "; what it holds until then isn't saved"
        printer.add(f"Makes it an element that says that it has no value. `Reset` takes that back{ends}.",
                    "public void SetNil()",
                    f"{{ Native.setnil_{made.name}(Pointer); Keep(); }}")


def is_element(made):
    """Whether an object can be a file of its own, by the same means as others; the document has its own."""
    return made.is_document and not made.declarations


def document_part(printer, made):
    name = made.package_name
    if not is_element(made):
        return
    printer.add(f"Loads a file that has the element {made.element} as its root.", f"public static {name} Load(string path)",
                f"{{ TryLoad(path, out {name} loaded).DemandLoaded(path); return loaded; }}")
    printer.add("The same without throwing for what is wrong with the file; null then, unless the options ask for what was "
                "read.", f"public static LoadReport TryLoad(string path, out {name} loaded, LoadOptions options = null)",
                f"=> Load(new {name}(), path, options, out loaded);")


def family(printer, plan, made):
    """What finds the class of an object where one of a derived class can stand."""
    known = plan.factory(made)
    if not any(item.kind == "alternative" and item.type == made.name for other in plan.model.classes for item in other.items):
        known = ()
    if not known:
        return
    printer.helper("Identity", "string Identity(IntPtr self) => Library.TakeNarrow(getid(self));", "getid")
    rows = [f'            case "{other.name}": return new {other.package_name}(handle);' for other in known
            if other is not made]
    printer.lines += ["", f"internal static {made.package_name} Of(Handle handle)", "{",
                      "    switch (Native.Identity(handle.Pointer))", "    {", *(row[4:] for row in rows),
                      f"        default: return new {made.package_name}(handle);", "    }", "}"]


def simple_item(printer, item, modifier=""):
    x, name = item.accessor, item.package_name
    forms = [(Value(item), name, item.doc)]
    if item.value.value == "datetime":
        forms.append((Value(item, "datetime text"), f"{name}Text",
                      f"The same as a document writes it: {name} throws what a DateTimeOffset can't hold."))
    for value, member, doc in forms:
        if not item.presence:
            printer.property(doc, value.type, member, value.get, f"Demand({value.set('value')})", modifier)
            continue
        given = value.set("value" if value.is_reference else "value.Value")
        printer.property(f"{doc} Null if not set.", value.nullable, member, value.maybe(f"Is(Native.isset_{x}(Pointer))"),
                         f"Demand(value == null ? Native.Unset{x}(Pointer) : {given})", modifier)
    if item.presence:
        printer.helper(f"Unset{x}", f"int Unset{x}(IntPtr self) {{ unset_{x}(self); return 0; }}", f"unset_{x}")


def object_item(printer, item):
    x, name, kind, number = item.accessor, item.package_name, printer.class_name(item.type), printer.part_number()
    calls = printer.part_calls(item, f"Native.assign_{x}")
    printer.property(f"{item.doc} Null until set; assigning copies.", kind, name, f"({kind})Child({number}, {calls})",
                     f"AssignChild({number}, {calls}, value)")
    printer.add(f"Gives {name}, which it makes if it isn't there.", f"public {kind} Create{name}()",
                f"=> ({kind})CreateChild({number}, {calls});")


def list_item(printer, item):
    x, name, number = item.accessor, item.package_name, printer.part_number()
    calls = f"Parts.{x}"
    parts = {"Size": "size", "Get": "get", "Set": "set", "Assign": "assign", "Append": "append", "Insert": "insert",
             "Delete": "delete", "Clear": "clear"}
    if item.kind == "any":
        kind, calls_type, uses = "MarkupList", "MarkupListCalls", ("Size", "Append", "Insert", "Delete", "Clear")
        body = f"ListOfMarkup({number}, {calls})"
    elif item.kind == "element_list":
        uses = ("Size", "Get", "Set", "Insert", "Delete", "Clear")
        if item.enumerated or item.value.value not in ("text", "datetime"):
            raise SchemaError("vyr.xsd", 0, f"a list of {item.value.name}, as {item.accessor}, has no form in C# yet")
        is_text = item.value.value == "text"
        kind = "TextList" if is_text else "DateTimeList"
        calls_type = f"ValueListCalls<{'string' if is_text else 'IntPtr'}>"
        body = f"ListOfTexts({number}, {calls})" if is_text else f"ListOfTimes({number}, {calls}, {literal(item.value.pattern)})"
    else:
        entry = printer.class_name(item.type)
        kind, calls_type = f"ObjectList<{entry}>", f"ObjectListCalls<{entry}>"
        uses = ("Size", "Get", "Assign", "Append", "Insert", "Delete", "Clear")
        body = f'({kind})(Part({number}) ?? Remember({number}, new {kind}(this, "{name}", {calls})))'
    fields = [f"{use} = Native.{parts[use]}_{x}" for use in uses]
    if item.kind == "any":
        fields.insert(0, f"Item = {printer.item(x)}")
    elif item.type:
        fields.insert(0, f"Make = h => new {printer.class_name(item.type)}(h)")
    printer.table(calls_type, x, fields)
    printer.add(item.doc, f"public {kind} {name}", f"=> {body};")
    for column, number_item in item.columns:
        owner = printer.plan.by_name[item.type]
        row = printer.item(number_item, owner, f"{x}{number_item}Item")
        printer.property(f"{column} of all {name}, in one call. Setting them makes {name} as many.", "double[]", column,
                         f"Column(Parts.{printer.item(x)}, Parts.{row})",
                         f"SetColumn({name}, Parts.{printer.item(x)}, Parts.{row}, value)")


def alternatives(printer, plan, made):
    number = printer.part_number()
    rows = [f"    {item.accessor} = {i}," for i, item in enumerate(made.elements)]
    none = len(made.elements) + (1 if made.content == "group" else 0)
    printer.lines += ["", *summary("Which alternative an object holds.", 12), "public enum Alternative", "{",
                      *(line for item, row in zip(made.elements, rows)
                        for line in (*("    " + text for text in summary(item.doc, 16)), row)),
                      "    " + summary("Nothing was chosen yet.", 16)[0], f"    None = {none},", "}"]
    printer.add("Which alternative is held.", "public Alternative Chosen", "=> (Alternative)Kept(Native.getchosen(Pointer));")
    for item in made.elements:
        x, chosen = item.accessor, f"Chosen == Alternative.{item.accessor}"
        doc = f"{item.doc} Null if another is chosen."
        if not item.type:
            value = Value(item)
            printer.add(doc, f"public {value.nullable} As{x}", f"=> {value.maybe(chosen)};")
            printer.add(f"Chooses {x} in place of what was chosen.", f"public void Choose{x}({value.type} value)",
                        f"=> Choose({number}, {value.set('value')});")
            continue
        kind, assign = printer.class_name(item.type), f"Native.assign_{x}"
        if plan.factory(plan.by_name[item.type]):
            assign = f"(p, v) => Library.VyrModule_AssignAlternative(p, {printer.item(x)}, v)"
        calls = printer.part_calls(item, assign)
        printer.add(doc, f"public {kind} As{x}", f"=> {chosen} ? ({kind})Held({number}, {calls}) : null;")
        if not plan.by_name[item.type].abstract:
            printer.add(f"Gives {x}, which it makes in place of another one if it isn't chosen.", f"public {kind} Choose{x}()",
                        f"=> As{x} ?? ({kind})Choose({number}, {calls});")
        printer.add(f"Chooses {x} with a copy of a value.", f"public {kind} Choose{x}({kind} value)",
                    f"=> ({kind})Choose({number}, {calls}, value);")


def members(printer, plan, made):
    life_cycle(printer, plan, made)
    document_part(printer, made)
    if made.wrapper:
        return
    is_inherited = any(found and found[0] is made for found in map(plan.content_item, plan.model.classes))
    for item in made.items:
        if item.kind == "alternative" or not item.accessor:
            continue
        if item.kind in (*LISTS, "any"):
            list_item(printer, item)
        elif item.type:
            object_item(printer, item)
        else:
            simple_item(printer, item, "virtual " if is_inherited and item.kind == "content" else "")
    if own_choice(made) and not made.base:
        alternatives(printer, plan, made)
    if found := plan.content_item(made):
        value = Value(found[1])
        printer.add(f"{found[1].doc} Setting it ends the state of no value.",
                    f"public override {value.type} {found[1].package_name}", f"{{ get => base.{found[1].package_name}; set => Demand({value.set('value')}); }}")
    family(printer, plan, made)


def native_lines(printer, plan, made):
    """The functions that the lines of a class name, and those that stand on them."""
    stems = {function.stem: function for function in functions_of(plan, made)}
    found = {}
    used = [*re.findall(r"Native\.(\w+)", "\n".join(printer.lines + printer.tables)), *printer.used]
    special = {"New": f"CSharp_new_{made.name}__SWIG_0", "Copy": f"CSharp_new_{made.name}__SWIG_1",
               "Delete": f"CSharp_delete_{made.name}"}
    for name in dict.fromkeys(used):
        if name in printer.native:
            continue
        stem = special.get(name, f"CSharp_{made.name}_{name}")
        function = stems.get(stem) or stems.get(f"{stem}__SWIG_0")
        if function is None:
            raise SchemaError("vyr.xsd", 0, f"there is no flat function {stem}, which C# needs")
        found[name] = function
    for name, function in found.items():
        parameters = ", ".join(f"{ARGUMENTS[kind]} {parameter}" for kind, parameter in function.parameters)
        marshal = "[return: MarshalAs(UnmanagedType.BStr)] " if function.result == "char16_t*" else ""
        yield (f'[DllImport(Library.Name, EntryPoint = "{function.stem}")] {marshal}internal static extern '
               f"{RESULTS[function.result]} {name}({parameters});")
    yield from (line for lines in printer.native.values() for line in lines)


START = [
    "// Copyright 2026 The Vyr Authors",
    "// SPDX-License-Identifier: Apache-2.0",
    "//",
    "// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.",
    "",
]


def frame(usings, body):
    return "\n".join([*START, *(f"using {name};" for name in usings), "", "namespace Vyr", "{",
                      *(f"    {line}".rstrip() for line in body), "}", ""])


def title(plan, made, is_native):
    base = "" if is_native else f" : {plan.by_name[made.base].package_name if derives(made) else 'VyrObject'}"
    if not is_native and is_element(made):
        base += ", IElement"
    kind = "abstract partial" if made.wrapper and not made.is_document else "partial"
    return f"public {kind} class {made.package_name}{base}"


def derives(made):
    return made.base and not made.derives_from_group


def print_topic(plan, topic):
    """The classes of a topic for their users, and their native functions."""
    body, native = [], []
    for made in topic.classes:
        printer = Printer(plan, made)
        members(printer, plan, made)
        body += [*summary(made.doc, 8), title(plan, made, False), "{", *(f"    {line}" for line in printer.lines), "}", ""]
        parts = {"Native": list(native_lines(printer, plan, made)), "Parts": printer.tables}
        inner = [line for name, lines in parts.items() if lines
                 for line in ("", f"static class {name}", "{", *(f"    {line}" for line in lines), "}")]
        if inner:
            native += [title(plan, made, True), "{", *(f"    {line}" for line in inner[1:]), "}", ""]
    return frame(["System"], body[:-1]), frame(["System", "System.Runtime.InteropServices"], native[:-1])


def print_enumerations(plan):
    body = []
    for simple in plan.enumeration_types:
        body += [*summary(simple.doc, 8), f"public enum {simple.name}", "{",
                 "    " + summary("No text was set, or one that is none of these.", 12)[0], "    None = 0,"]
        for number, name, text, doc in simple.enumerators():
            body += [*("    " + line for line in summary(doc, 12)), f'    [Text("{text}")] {name} = {number},']
        body += ["}", ""]
    return frame(["System"], body[:-1])


def file_name(topic):
    return "".join(part.capitalize() for part in topic.name.split("_"))


def print_csharp_files(plan):
    files = {"Enumerations.cs": print_enumerations(plan)}
    for topic in plan.topics:
        files[f"{file_name(topic)}.cs"], files[f"{file_name(topic)}.Native.cs"] = print_topic(plan, topic)
    return files
