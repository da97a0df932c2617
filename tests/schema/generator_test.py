#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The generator refuses what it can't mean, with file and line, and an added field changes nothing else."""

import difflib
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "schema" / "generator"))

from generate import print_files  # noqa: E402
from model import read_model  # noqa: E402
from plan import Plan  # noqa: E402
from print_members import Members  # noqa: E402
from source import SchemaError  # noqa: E402

SOURCES = {name: (ROOT / "schema" / name).read_text(encoding="utf-8") for name in ("vyr.xsd", "binding.toml")}


def changed(file, old, new):
    """The two sources with the first `old` of one of them replaced, and the line where it stands."""
    before, found, after = SOURCES[file].partition(old)
    assert found, old
    return {**SOURCES, file: before + new + after}, before.count("\n") + 1


def plan_of(sources):
    with tempfile.TemporaryDirectory() as folder:
        for name, text in sources.items():
            Path(folder, name).write_text(text, encoding="utf-8")
        return Plan(read_model(Path(folder, "vyr.xsd"), Path(folder, "binding.toml")))


class Refusals(unittest.TestCase):
    def refused(self, file, old, new, message):
        sources, line = changed(file, old, new)
        with self.subTest(old), self.assertRaises(SchemaError) as failure:
            plan_of(sources)
        self.assertEqual(str(failure.exception), f"{file}:{line}: {message}")

    def test_of_the_schema(self):
        element = '<xs:element name="PaperType" type="xs:string" minOccurs="0">'
        self.refused("vyr.xsd", element, element.replace(" min", ' default="x" min'),
                     "attribute 'default' of xs:element is not supported here")
        self.refused("vyr.xsd", element, element.replace('minOccurs="0"', 'maxOccurs="3"'),
                     "minOccurs 1 with maxOccurs 3 is not supported")
        self.refused("vyr.xsd", element, element.replace("xs:string", "xs:duration"),
                     "the built-in type xs:duration is not supported")
        self.refused("vyr.xsd", element, element.replace("xs:string", "Bogus"), "there is no type Bogus")
        self.refused("vyr.xsd", element, element.replace(' type="xs:string"', ""),
                     "xs:element PaperType needs a named type")
        self.refused("vyr.xsd", '<xs:maxInclusive value="99"/>', '<xs:maxInclusive value="1e2"/>',
                     "'1e2' is no plain decimal number")
        self.refused("vyr.xsd", '<xs:simpleType name="Percentage">', '<xs:simpleType name="Fraction">',
                     "a global xs:simpleType needs a name of its own")

    def test_of_the_overlay(self):
        self.refused("binding.toml", '"Tag.Category"', '"Tag.Kategory"', "[items] Tag.Kategory matches nothing in the schema")
        self.refused("binding.toml", "PositiveInt32 =", "PositiveInt =", "[facets] PositiveInt matches nothing in the schema")
        self.refused("binding.toml", "samples = [", 'samples = ["Bogus", ',
                     "Bogus is no named type and no global element")
        self.refused("binding.toml", "Recipe = { may_be_empty", "Recipe = { may_be_full",
                     "the option 'may_be_full' is not known in [classes]")
        self.refused("binding.toml", 'Values = "" }', 'Values = "Name" }', "'Name' is no number of its entries")
        self.refused("binding.toml", '"BSDFAngle.Azimuth" = { marker', '"BSDFAngle.Aspecular" = { marker',
                     "only a single child can be a marker")

    def test_of_defaults(self):
        scale = 'type="AxisScaleKind" default="Scale_Linear"'
        self.refused("vyr.xsd", scale, scale.replace("Linear", "Bogus"),
                     "a default must be one of the texts of an enumeration")

    def test_of_clashing_class_names(self):
        sources, _ = changed("binding.toml", '"ProfileType/Parameters" = "ProfileType_Parameters"', "")
        with self.assertRaisesRegex(SchemaError, r"^vyr.xsd:\d+: a second class Parameters"):
            plan_of(sources)


class AddedField(unittest.TestCase):
    def test_only_adds_lines(self):
        old = '<xs:element name="PaperType" type="xs:string" minOccurs="0">'
        new = ('<xs:element name="PaperGrain" type="Fraction" minOccurs="0"><xs:annotation><xs:documentation>Grain.'
               "</xs:documentation></xs:annotation></xs:element>" + old)
        members = Members(ROOT / "flat" / "members.toml")
        before = print_files(plan_of(SOURCES), members)
        after = print_files(plan_of(changed("vyr.xsd", old, new)[0]), members)
        self.assertEqual(before.keys(), after.keys())
        counts = {}
        for name in before:
            lines = [line for line in difflib.ndiff(before[name].splitlines(), after[name].splitlines())
                     if line[0] in "+-"]
            self.assertFalse([line for line in lines if line[0] == "-"], name)
            if lines:
                counts[name] = len(lines)
        schema, flat = "schema/generated", "flat/generated"
        self.assertEqual(counts.keys(), {
            f"{schema}/model.txt", f"{schema}/substrates.h", f"{schema}/substrates.cpp", f"{schema}/tables.h",
            f"{schema}/vyr.schema.json", f"{flat}/substrates.cpp", f"{flat}/exports.txt", f"{flat}/vyr_flat.h", "csharp/generated/Substrates.cs",
            "csharp/generated/Substrates.Native.cs", "python/vyr/generated/substrates.py",
            "python/vyr/generated/substrates.pyi"})
        self.assertEqual((counts[f"{schema}/model.txt"], counts[f"{schema}/tables.h"]), (1, 1))
        self.assertEqual((counts[f"{flat}/substrates.cpp"], counts[f"{flat}/exports.txt"]), (4, 4))
        # A property with its comment and a blank line; four functions and what unsets.
        self.assertEqual((counts["csharp/generated/Substrates.cs"], counts["csharp/generated/Substrates.Native.cs"]), (3, 5))
        # A property; in the stub with its comment, and a parameter.
        self.assertEqual((counts["python/vyr/generated/substrates.py"], counts["python/vyr/generated/substrates.pyi"]), (1, 3))


if __name__ == "__main__":
    unittest.main()
