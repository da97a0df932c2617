#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""What the command makes of a document's values: in lists, in tables and in JSON nothing is lost, guessed or cut.

Usage: check_values.py VYR SAMPLE DOCUMENTS SCHEMA      (values.vyr, a folder of valid documents, vyr.schema.json)
"""

import csv
import io
import json
import os
import pathlib
import re
import xml.etree.ElementTree as tree

from command import arguments, failures, output, run, same, test

try:
    import jsonschema
except ImportError:
    print("python3-jsonschema is not here: documents are not held against vyr.schema.json")
    jsonschema = None

sample, documents, schema = arguments[1:]
validator = jsonschema and jsonschema.Draft202012Validator(json.loads(schema.read_text()))
V = "{http://vyrgraph.com/v2}"


def has(text, *lines):
    for line in lines:
        if not re.search(line, text, re.MULTILINE):
            failures.append(f"no line {line!r} in:\n{text}")


def table(*arguments):
    return list(csv.DictReader(io.StringIO(output("list", "--csv", *arguments), newline="")))


def check_list():
    text = output("list", sample)
    # The schema's type decides, never the look of a text.
    has(text, r"^  10E2 .* 64\.2 70\.25 60\.5 ", r" 0042 +1\.50$")
    # A recipe in full, of a spectrum the outline with a sign that it is one.
    for i in range(1, 6):
        has(text, rf"^      Recipe\[5\]: .*Name Base {i}, Manufacturer Acme, PartNumber 00{i}, Density unknown\), "
                  rf"Contribution 0\.{i}$")
    has(text, r"Spectral\[3\]: 36 points, 380 to 730 nm, 0\.05 to 0\.8499$", "^Of spectra the outline is shown; ")
    # Each value's conditions: its own, those of its colour set, those of its palette, none.
    has(text, r"\[1\] D50, 2 degrees, .*not polarized$", r"\[2\] A, 10 degrees, ",
        r"\[3\] .*45 degrees.*\(default of the colour set\)$",
        r"\[4\] conditions unknown$", r"\[5\] D65, .*\(default of the palette\)$", r"CIELab\[1\] L .*CIELab\[2\] L ")
    has(text, '^Quality control "Run 7"$', "^  FunctionDE2000: Result 3.41, ",
        "^  Tolerance: .*HighTolerance 2, LowTolerance 0",
        "^  Device: Manufacturer Acme, Model Spectro 2, SerialNumber 0017$", "backing Black$")
    both = output("list", "--name", "Aim", sample, sample)
    same("two files", both.count(":\nQuality control"), 2)


def check_list_json():
    colors = json.loads(output("list", "--json", sample))
    first, mix = colors[:2]
    same("conditions", first["values"][1]["conditions"],
         {"source": "value", "Illuminant": "A", "Observer": "10", "Spectrum": "Reflectance", "Filter": "None",
          "Polarization": False})
    same("a point", first["values"][2]["ReflectancePoint"][-1], {"Wavelength": 730, "value": 0.8499})
    same("a part number", mix["values"][0]["ColorantElement"][3]["Colorant"],
         {"Name": "Base 4", "Manufacturer": "Acme", "PartNumber": "004", "Density": None})
    same("a measurement", colors[3]["record"]["Function"][0]["FunctionDE2000"]["Result"], 3.41)


def check_info():
    has(output("info", sample), " elements, 5 colours$", r"^  Owner: Person \(Name A. Printer\), Company Inks & Sons$",
        r"^  Version: Version 2\.10$", '^  Measurement "Sheet 2"$',
        "^        3  Manufacturer Acme, Model Spectro 2, SerialNumber 0017$")
    answer = json.loads(output("info", "--json", "--depth=1", sample))
    same("owner and version", (answer["owner"]["Company"], answer["version"]["Version"]), (["Inks & Sons"], "2.10"))
    same("colours", (answer["colors"], answer["palettes"], answer["spaces"]),
         (5, [{"name": "Inks", "sets": [{"name": "Spot", "colors": 2}]}],
          {"CIELab": 5, "Spectral": 1, "SRGB": 1, "Recipe": 1, "Munsell": 1}))
    same("elements", answer["tree"]["parts"],
         [{"name": name, "count": 1} for name in ("Preamble", "Palette", "ColorQualityControl")])
    record = answer["quality_control"][0]
    same("a record", (record["Name"], record["pairs"][0]["standard"]["color"], len(record["pairs"][0]["measurements"])),
         ("Run 7", "Aim", 2))
    same("devices", [(row["count"], row["device"]["SerialNumber"]) for row in answer["devices"]], [(3, "0017")])


def check_table():
    rows = table(sample)
    text = output("list", "--csv", sample)
    same("line ends", (text.count("\r\n"), text.count("\n")), (len(rows) + 1, len(rows) + 1))
    same("conditions", [(row["Space"], row["Illuminant"], row["ConditionsFrom"]) for row in rows[:6]],
         [("CIELab", "D50", "value"), ("CIELab", "A", "value"), ("Spectral", "", "ColorSet"), ("SRGB", "", "unknown"),
          ("Recipe", "D65", "Palette"), ("Munsell", "D65", "Palette")])
    same("texts", (rows[4]["Color"], rows[4]["ColorantElement[5].Colorant.PartNumber"], rows[5]["ColorName"]),
         ('Mix, "deep"', "005", "1.50"))
    waves = {name: cell for name, cell in rows[2].items() if name.endswith(" nm")}
    same("wavelengths", list(waves), [f"{wave} nm" for wave in range(380, 740, 10)])
    same("a spectrum", (waves["380 nm"], waves["730 nm"], rows[0]["380 nm"]), ("0.05", "0.8499", ""))
    same("backing", rows[6]["Backing"], "Black")


def check_all_documents():
    """Counted independently: each value of each colour is in all three lists, each point in the table."""
    for file in sorted(documents.glob("*.vyr")):
        root = tree.parse(file).getroot()
        colors = [color for color in root.iter(V + "Color") if "ColorName" in color.attrib]
        values = [child for color in colors for child in color if child.tag.startswith(V + "ColorSpace")]
        points = sum(len(value.findall(V + "ReflectancePoint") + value.findall(V + "EmissiveSpectralPoint"))
                     for value in values)
        rows = table(file)
        listed = json.loads(output("list", "--json", file))
        output("list", file)
        cells = sum(1 for row in rows for name, cell in row.items() if cell and re.search(r" nm(\[\d+\])?$", name))
        same(f"values of {file.name}", (len(rows), sum(len(color["values"]) for color in listed), len(listed), cells),
             (len(values), len(values), len(colors), points))


def check_json():
    """Every document as JSON and back is the same document, byte for byte as the library writes it."""
    for file in [*sorted(documents.glob("*.vyr")), sample]:
        output("convert", file, "a.json")
        output("convert", "a.json", "b.vyr")
        output("convert", file, "c.vyr")
        same(f"{file.name} through JSON", pathlib.Path("b.vyr").read_bytes() == pathlib.Path("c.vyr").read_bytes(),
             True)
        same(f"{file.name} by vyr json", output("json", file), pathlib.Path("a.json").read_text())
        if validator:
            made = json.loads(pathlib.Path("a.json").read_text())
            same(f"{file.name} by the JSON Schema", [error.message[:200] for error in validator.iter_errors(made)], [])


def check_json_order():
    """Members may stand in any order, and a pipe holds either form."""
    text = output("json", sample)
    turned = json.dumps(json.loads(text, object_pairs_hook=lambda pairs: dict(reversed(pairs))))
    code, out, err = run("convert", "-", "-", stdin=turned.encode())
    same("members in another order", (code, err, out), (0, "", output("convert", sample, "-")))


def check_json_faults():
    text = output("json", sample)
    place = r'x\.json: Palette "Inks" / ColorSet "Spot" / Color "10E2" / ColorSpace'
    for before, after, place_and_text in (
        ('"Red": 0.9', '"Red": 1.9', place + "SRGB / Red: Value greater than specified maximum .*"),
        ('"Red": 0.9', '"Red": "0.9"', place + r"SRGB\[4\] / Red: a number is expected, not a text"),
        ('"Red": 0.9', '"Rot": 0.9', place + r'SRGB\[4\]: there is no "Rot" here; it may be .* Red, .*'),
        ('Polarization": false', 'Polarization": 0', ".* / DevicePolarization: true or false is expected"),
        ('"ColorNumber": "008"', '"ColorNumber": 8', r'.* / Color "10E2".* / ColorNumber: a text is expected'),
        ('"Creator": "By hand",', "", "x.json: Preamble / Header: .*"),
        ('"2026-05-01T12:00:00Z"', '"2026-05-01"', r".* / ChangeHistory(\[1\])?: .*"),
        ('"Creator": "By hand",', '"Creator": "", "Creator": "",',
         'x.json: the member "Creator" is given twice in an object'),
        ('"Preamble": {', '"Preamble": [', "x.json: parse error at line .*"),
    ):
        pathlib.Path("x.json").write_text(text.replace(before, after, 1))
        code, out, err = run("convert", "x.json", "never.vyr")
        has(err, f"^{place_and_text}$")
        same(f"{before} -> {after}", (code, out, os.path.exists("never.vyr")), (1, "", False))
        # Dates and what is no JSON are no business of a JSON Schema.
        is_of_schema = before not in ('"2026-05-01T12:00:00Z"', '"Preamble": {') and "twice" not in place_and_text
        if validator and is_of_schema and validator.is_valid(json.loads(text.replace(before, after, 1))):
            failures.append(f"{before} -> {after}: the JSON Schema finds nothing")


WIDE = "\ufeffColor,L,A,B,Cyan,Magenta,Yellow,Black,Red,Green,Blue,400 nm,410\r\n"


def check_import():
    """A table goes into a document and comes back."""
    pathlib.Path("a.csv").write_bytes(output("list", "--csv", sample).encode())
    output("import", "a.csv", "-o", "a.vyr")
    output("check", "a.vyr")
    lost = {"In", "ConditionsFrom", "Backing"}
    before, after = (sorted(({name: cell for name, cell in row.items() if cell and name not in lost}
                             for row in table(file)),
                            key=lambda row: (row["Color"], row["Space"], row.get("Illuminant", "")))
                     for file in (sample, "a.vyr"))
    same("a table through a document", after, before)
    same("colours", output("info", "a.vyr").count(" in ColorSet"), 1)

    pathlib.Path("b.csv").write_text(WIDE + '"Red, ""warm""",50,60,40,0,90,80,0,1,0.5,0,0.1,0.2\n'
                                            'Blue,10,-1e1,2,,,,,,,,,\n')
    output("import", "--palette", "Mine", "b.csv", "-o", "b.vyr")
    rows = table("b.vyr")
    same("values by header", [(row["Palette"], row["Color"], row["Space"]) for row in rows],
         [("Mine", 'Red, "warm"', space) for space in ("CIELab", "CMYK", "SRGB", "Spectral")]
         + [("Mine", "Blue", "CIELab")])
    same("a number", (rows[4]["A"], rows[3]["410 nm"]), ("-10", "0.2"))
    # What a table leaves open is nil, a line end in a cell is one in the document.
    pathlib.Path("c.csv").write_bytes(b'Color,L,A,B,Illuminant,Observer\n"two\r\nlines",1,2,3,D50,2\n')
    output("import", "c.csv", "-o", "c.vyr")
    same("conditions of a table", [(row["Color"], row["Illuminant"], row.get("Filter", "")) for row in table("c.vyr")],
         [("two\nlines", "D50", "")])


def check_import_faults():
    """What can't go into a document is named by row and column, and nothing is written."""
    for text, *faults in (
        (WIDE + "Red,50,60,40,0,90,187,0,,,,,\nBlue,x,1,2,,,,,,,,,\n",
         '2: column "Yellow": Value greater than specified maximum .*', '3: column "L": Invalid value format .*'),
        (WIDE + ",1,2,3,,,,,,,,,\n\nNone,,,,,,,,,,,,\nx,1,2,3,,,,,,,,,,9\n",
         '2: column "Color": the colour has no name', '4: column "Color": the colour has no value',
         "5: column 14: it has no header"),
        ("Color,Shade,nan,inf nm,Space,L,Cyan,Gamma\nx,,,,Lab,2,,\ny,,,,CIELab,3,1,\nz,,,,Recipe,,,x\n",
         *(f'1: column "{name}": no such column is known' for name in ("Shade", "nan", "inf nm")),
         '2: column "Space": "Lab" is no kind of value', '3: column "Cyan": CIELab has no such part'),
        ("Color,Space,L,A,B,Illuminant,Observer\nx,CIELab,1,2,3,D99,2\n", '2: column "Illuminant": .*'),
        ("Name,L\nx,1\n", '1: column "Color": there is no such column'),
        ('Color,L\n"x,1\n', "2: column 1: the quotation mark that begins the cell has no end"),
        ("", "1: column 1: a row of headers is expected"),
        # What is not whole: a value, its conditions, a value that is asked for.
        ('Color,L,A,B\n"a\nb\rc",1,2,3\nx,1,2,\n',
         r'2: column "Color": there is a character .*: "a\\u\{A\}b\\u\{D\}c"', '4: column "B": CIELab needs it'),
        ("Color,Space,L,A,B,400 nm,Filter\nx,CIELab,1,2,3,,None\ny,Spectral,,,,.1,None\nz,CIELab,,2,3,,\n",
         '2: column "Illuminant": the conditions of CIELab need it',
         '3: column "Sphere": the conditions of Spectral need it', '4: column "L": CIELab needs it'),
    ):
        pathlib.Path("x.csv").write_text(text)
        code, out, err = run("import", "x.csv", "-o", "never.vyr")
        has(err, *(rf"^x\.csv:{fault}$" for fault in faults))
        nowhere = [line for line in err.splitlines()
                   if not re.match(r'x\.csv(:\d+: column ("[^"]*"|\d+): .|: \d+ faults?, nothing)', line)]
        same("a table with faults", (code, out, os.path.exists("never.vyr"), nowhere), (1, "", False, []))


test("all values are told as they are", check_list, check_list_json, check_info, check_table, check_all_documents,
     check_json, check_json_order, check_json_faults, check_import, check_import_faults)
