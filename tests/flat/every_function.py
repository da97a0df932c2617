#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Prints a C# program that calls each flat function of each class, and every checked one with null too.

    every_function.py > Every.cs

A code must be one, what makes an object must make it, and a null must be reported in its words.
"""

import re
import sys
from pathlib import Path

sys.dont_write_bytecode = True
ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "schema" / "generator"))

from model import read_model  # noqa: E402
from plan import Plan  # noqa: E402
from print_flat import functions_of  # noqa: E402
from print_members import Members  # noqa: E402

# C type -> type of an argument or a result, and what is passed.
ARGUMENTS = {
    "void*": ("IntPtr", "Scratch"),
    "const char16_t*": ("[MarshalAs(UnmanagedType.LPWStr)] string", '"1"'),
    "const char*": ("[MarshalAs(UnmanagedType.LPUTF8Str)] string", '"1"'),
    "std::int32_t": ("int", "1"),
    "std::uint32_t": ("uint", "1"),
    "double": ("double", "1"),
    "float": ("float", "1"),
}
RESULTS = {"void": "void", "void*": "IntPtr", "const char*": "IntPtr", "char*": "IntPtr",
           "char16_t*": "[return: MarshalAs(UnmanagedType.BStr)] string", "std::int32_t": "int", "std::uint32_t": "uint",
           "double": "double", "float": "float"}
# A list is filled first and emptied last; identities change after they were compared.
ORDER = ("append_", "insert_", "assign_", "set", "", "unset_", "delete_", "clear_", "swap", "marshal", "reset", "id_set")
BOOLEAN = re.compile(r"_(is|isset|isnil|has|is_valid|setenum|equal|xis)(_|[a-z]*$)")

FRAME = """using System;
using System.Runtime.InteropServices;

static class Every
{
    delegate void Report(IntPtr text, IntPtr parameter);
    static string reported;
    static readonly Report OnNull = (text, parameter) => reported = Marshal.PtrToStringAnsi(text) + (parameter == IntPtr.Zero ? "" : "?");
    static readonly IntPtr Scratch = Marshal.AllocHGlobal(256);
    static void Check(bool holds, string what)
    {
        if (holds && reported == null) return;
        Console.WriteLine("failed: " + what + (reported == null ? "" : ", reported: " + reported));
        Environment.Exit(1);
    }
    static void CheckReport(bool zero, string text, string what)
    {
        string found = reported;
        reported = null;
        Check(zero && found == text, what + " with null, reported: " + found);
    }
    static bool Code(int code) { return code >= 0 && (code <= 46 || code == 1000); }
    [DllImport("VyrModule")] static extern void SWIGRegisterExceptionArgumentCallbacks_VyrModule(Report a, Report b, Report c);
    [DllImport("VyrModule")] static extern void VyrModule_FreeString(IntPtr text);
%s
    static void Main()
    {
        SWIGRegisterExceptionArgumentCallbacks_VyrModule(null, OnNull, null);
%s
        Console.WriteLine("%d functions called");
    }
}"""


def kind_of(text):
    """The class that the report on a null speaks of, as its functions name it."""
    match = re.match(r'"(?:\w+)::(\w+) ', text)
    return match and match[1].replace("tc_", "c_")


def checks_of(made):
    """The arguments that mustn't be null, each with its report."""
    if match := re.match(r'checked\((k_null_string|"[^"]*")', made.body):
        return {made.parameters[-1][1]: match[1]}
    return dict(made.checks)


def declaration(made):
    attribute, _, result = RESULTS[made.result].rpartition("] ")
    arguments = ", ".join(f"{ARGUMENTS[kind][0]} {name}" for kind, name in made.parameters)
    return f'    {attribute}{"]" if attribute else ""}[DllImport("VyrModule")] static extern {result} {made.stem}({arguments});'


class Calls:
    def __init__(self, groups):
        self.groups = groups
        self.constructors = {}
        for owner, functions in groups.items():
            made = [f for f in functions if re.match(rf"CSharp_new_{owner}(__SWIG_0)?$", f.stem)]
            self.constructors[owner] = made and f"{made[0].stem}({self.plain(made[0])})"

    @staticmethod
    def plain(made):
        return ", ".join(ARGUMENTS[kind][1] for kind, _ in made.parameters)

    def call(self, owner, made):
        """The statements that call a function, once with arguments and once with each checked one null."""
        checks, arguments, after = checks_of(made), {}, []
        for kind, name in made.parameters:
            arguments[name] = "self" if name == "self" else "0" if name == "index" else ARGUMENTS[kind][1]
            if name in checks and (other := kind_of(checks[name])):
                arguments[name] = "o" + name
                yield f"IntPtr o{name} = {self.constructors[other]};"
                after.append(f"CSharp_delete_{other}(o{name});")
        text = f"{made.stem}({', '.join(arguments.values())})"
        what = f'"{made.stem}"'
        if made.result == "void":
            yield f"{text}; Check(true, {what});"
        elif made.result == "void*":
            may_be_null = re.search(r"_factory$|_at__", made.stem)
            yield f"{{ IntPtr r = {text}; Check({'true' if may_be_null else 'r != IntPtr.Zero'}, {what});"
            yield f"  CSharp_delete_{owner}(r); }}" if re.match("CSharp_new_", made.stem) or made.stem.endswith("_clone") else "}"
        elif made.result == "char*":
            yield f"{{ IntPtr r = {text}; Check(r != IntPtr.Zero, {what}); VyrModule_FreeString(r); }}"
        elif BOOLEAN.search(made.stem):
            yield f"{{ int r = {text}; Check(r == 0 || r == 1, {what}); }}"
        elif re.match(r"CSharp_\w+_(set|append|insert|marshal|unmarshal)_", made.stem):
            yield f"Check(Code({text}), {what});"
        else:
            yield f"Check({text}.ToString() != null, {what});"
        for name, report in checks.items():
            null = {**arguments, name: "IntPtr.Zero" if dict(map(reversed, made.parameters))[name] == "void*" else "null"}
            text = f"{made.stem}({', '.join(null.values())})"
            zero = {"void": None, "void*": "IntPtr.Zero", "char*": "IntPtr.Zero", "char16_t*": "null"}.get(made.result, "0")
            report = '"null string"' if report == "k_null_string" else report
            yield f"{text}; CheckReport(true, {report}, {what});" if zero is None else \
                f"CheckReport({text} == {zero}, {report}, {what});"
        yield from after

    def of_class(self, owner):
        def place(made):
            member = made.stem.removeprefix(f"CSharp_{owner}_")
            return next(i for i, start in enumerate(ORDER) if start and member.startswith(start)) \
                if any(start and member.startswith(start) for start in ORDER) else ORDER.index("")
        functions = sorted(self.groups[owner], key=place)
        deletes = [f for f in functions if f.stem == f"CSharp_delete_{owner}"]
        constructor = self.constructors[owner]
        yield f"IntPtr self = {constructor or 'Scratch'};"
        for made in functions:
            if made not in deletes:
                yield "{"
                yield from (f"    {line}" for line in self.call(owner, made))
                yield "}"
        for made in deletes:
            yield f"{made.stem}(IntPtr.Zero);"
            if constructor:
                yield f"{made.stem}(self);"


def main():
    plan = Plan(read_model(ROOT / "schema" / "vyr.xsd", ROOT / "schema" / "binding.toml"))
    groups = {made.name: functions_of(plan, made) for made in plan.model.classes}
    for owner, functions in Members(ROOT / "flat" / "members.toml").groups.items():
        groups.setdefault(owner.rpartition("::")[2], []).extend(functions)
    calls = Calls(groups)
    methods, starts, count = [], [], 0
    for owner, functions in groups.items():
        count += len(functions)
        methods += [declaration(made) for made in functions]
        methods += [f"    static void T_{owner}()", "    {", *(f"        {line}" for line in calls.of_class(owner)), "    }"]
        starts.append(f"        T_{owner}();")
    print(FRAME % ("\n".join(methods), "\n".join(starts), count))


if __name__ == "__main__":
    main()
