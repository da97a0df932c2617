#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""What the command warns of, and where; and that a stranger's document makes it neither read elsewhere nor linger.

Usage: check_warnings.py VYR DOCUMENTS      (the command, and a folder of valid documents)
"""

import http.server
import json
import pathlib
import resource
import threading
import time

from command import arguments, failures, is_sanitized, run, same, test

documents = arguments[1]

TIME = "<Vyr:ChangeHistory>2024-05-01T09:30:00Z</Vyr:ChangeHistory>"
CONDITIONS = '<Vyr:ColorSpaceSpecificationSpectrumTristimulus xsi:nil="true"/>'
DOCUMENT = f"""<?xml version="1.0" encoding="UTF-8"?>
<Vyr:Vyr xmlns:Vyr="http://vyrgraph.com/v2" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">
 <Vyr:Preamble><Vyr:Header><Vyr:Creator>me</Vyr:Creator><Vyr:CreatorVersion>1</Vyr:CreatorVersion>
  {TIME}<Vyr:Purpose>test</Vyr:Purpose></Vyr:Header></Vyr:Preamble>
 <Vyr:Color ColorName="Ink 1" UniqueID="a">{TIME}
  <Vyr:ColorSpaceCIELab>{TIME}{CONDITIONS}<Vyr:L>50</Vyr:L><Vyr:A>1</Vyr:A><Vyr:B>2</Vyr:B></Vyr:ColorSpaceCIELab>
 </Vyr:Color>
 <Vyr:Color ColorName="Ink 2" UniqueID="b">{TIME}
  <Vyr:ColorSpaceSpectral>{TIME}<Vyr:ColorSpaceSpecificationSpectrumSpectral xsi:nil="true"/>
   <Vyr:ReflectancePoint Wavelength="400">0.1</Vyr:ReflectancePoint>
   <Vyr:ReflectancePoint Wavelength="410">0.2</Vyr:ReflectancePoint>
   <Vyr:ReflectancePoint Wavelength="420">0.3</Vyr:ReflectancePoint></Vyr:ColorSpaceSpectral>
 </Vyr:Color>
</Vyr:Vyr>
"""


def changed(old, new):
    if old not in DOCUMENT:
        raise ValueError(old)
    return DOCUMENT.replace(old, new, 1)


def expect(text, expected, *options, code=0):
    """`expected`: the name of each warning with the text that begins where it is, or None where no line is known."""
    got, out, err = run("check", "--json", *options, "-", stdin=text.encode())
    found = {(w["name"], w.get("line"), w.get("column")) for w in json.loads(out)["files"][0].get("warnings", [])}
    wanted = set()
    for name, place in expected.items():
        ahead = text[: text.index(place)] if place else None
        wanted.add((name, ahead and ahead.count("\n") + 1, ahead and len(ahead) - ahead.rfind("\n")))
    same(f"{expected} {options} {err}", (got, found), (code, wanted))


def check_names():
    for path in sorted(documents.glob("*.vyr")):
        # They are made by chance, which knows nothing of limits and wavelengths.
        same(path.name, run("check", "--strict", "--ignore", "limits", "--ignore", "wavelengths", path), (0, "", ""))
    twice, ink = changed('UniqueID="b"', 'UniqueID="a"'), '<Vyr:Color ColorName="Ink 2"'
    for options, code, expected in (([], 0, {"duplicate-id": ink}), (["--strict"], 1, {"duplicate-id": ink}),
                                    (["--strict", "--ignore", "duplicate-id"], 0, {}),
                                    (["--strict", "--ignore", "all"], 0, {})):
        expect(twice, expected, *options, code=code)
    time, axis = "2024-05-01T09:30:00Z", """<Vyr:ColorSpaceGeneric><Vyr:Axis><Vyr:AxisValueChoice>
<Vyr:AxisFloatingPointValue AxisNominalMax="1" AxisNominalMin="1.5">2</Vyr:AxisFloatingPointValue>
</Vyr:AxisValueChoice></Vyr:Axis></Vyr:ColorSpaceGeneric>"""
    for old, new, expected, *code in (
        ('UniqueID="b">', 'UniqueID="b"><!-- \u00fc -->', {}),
        ('Wavelength="410"', 'Wavelength="420"', {"wavelengths": '<Vyr:ReflectancePoint Wavelength="420">0.3'}),
        ('Wavelength="420"', 'Wavelength="4.0e2"', {"wavelengths": '<Vyr:ReflectancePoint Wavelength="4.0e2"'}),
        ("<Vyr:B>2</Vyr:B>", "<!-- \u00fc --><Vyr:B>NaN</Vyr:B>", {"schema": "<Vyr:B>NaN"}),
        (time, "2024-13-01T09:30:00Z", {"date": "<Vyr:ChangeHistory>2024-13", "schema": "<Vyr:ChangeHistory>2024-13"}),
        # A carriage return in a text doesn't survive a save.
        ("<Vyr:Creator>me", "<Vyr:Creator>m&#13;e", {"unsavable": None}),
        # Limits are looked at in faulty documents too; a fault speaks for itself.
        ("<Vyr:ColorSpaceCIELab>", axis + "<Vyr:ColorSpaceCIELab>", {"limits": "<Vyr:AxisFloating"}, 1),
        ("<Vyr:L>50", "<Vyr:L>500", {}, 1),
    ):
        expect(changed(old, new), expected, code=sum(code))
    expect(changed(time, "2023-02-29T09:30:00Z"), {"date": "<Vyr:ChangeHistory>2023"}, "--ignore", "schema")
    expect(changed(time, "2024-02-29T24:00:00Z"), {}, "--ignore", "schema")
    expect(changed(time, "2024-02-29T24:00:01Z"), {"date": "<Vyr:ChangeHistory>2024-02-29"}, "--ignore", "schema")
    same("a warning that there isn't", run("check", "--ignore", "nothing", "-")[0], 2)
    last = DOCUMENT.count("\n") + 1
    for text, line in ((changed('ColorName="Ink 2"', 'ColorName="< Ink 2"'), 8),
                       *((DOCUMENT + tail, last) for tail in ("<a/>", "text", DOCUMENT[39:]))):
        code, out, _ = run("check", "--strict", "-", stdin=text.encode())
        same(f"not well-formed, line {line}", (code, "[not-well-formed]" in out, f":{line}:" in out), (1, True, True))


def check_conversion():
    kept = """<!DOCTYPE Vyr [<!ENTITY me "me">]><!-- first --><?go on?>
"""
    text = DOCUMENT.replace("?>\n", "?>\n" + kept, 1).replace("<Vyr:Creator>me", "<Vyr:Creator>&me;")
    text = text.replace("XMLSchema-instance\"",
                        "XMLSchema-instance\" xsi:schemaLocation=\"http://vyrgraph.com/v2 v.xsd\"")
    text = text.replace("<Vyr:L>50", "<Vyr:L>50.1234567890123456")
    text = text.replace("<Vyr:Purpose>test", "<Vyr:Purpose>0.1234567890123456789")
    code, _, err = run("convert", "-", "-", stdin=text.encode())
    names = [line[line.rindex("[") + 1:-1] for line in err.splitlines()]
    same("convert", (code, names), (0, ["doctype", "comments", "instructions", "hints", "digits"]))
    same("convert --ignore all", run("convert", "--ignore", "all", "-", "-", stdin=text.encode())[2], "")


def bound_memory():
    resource.setrlimit(resource.RLIMIT_DATA, (1 << 30, 1 << 30))


def check_strangers():
    """Whatever a document asks for, nothing is read elsewhere, and neither time nor memory runs away."""
    asked = []

    class Server(http.server.BaseHTTPRequestHandler):
        def do_GET(self):
            asked.append(self.path)
            self.send_error(404)

    server = http.server.HTTPServer(("127.0.0.1", 0), Server)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    url = f"http://127.0.0.1:{server.server_port}"
    secret = pathlib.Path("secret.txt").resolve()
    secret.write_text("very secret")
    bomb = "".join(f'<!ENTITY e{i} "{f"&e{i - 1};" * 20}">' for i in range(1, 12))
    declarations = {
        "external entity": f'<!DOCTYPE Vyr [<!ENTITY x SYSTEM "{secret.as_uri()}">]>',
        "external subset": f'<!DOCTYPE Vyr SYSTEM "{url}/a.dtd" []>',
        "parameter entity": f'<!DOCTYPE Vyr [<!ENTITY % p SYSTEM "{url}/b.dtd"> %p;]>',
        "bomb": f'<!DOCTYPE Vyr [<!ENTITY e0 "lol">{bomb}<!ENTITY x "&e11;">]>',
    }
    cases = {name: DOCUMENT.replace("?>\n", "?>\n" + text, 1).replace("<Vyr:Creator>me", "<Vyr:Creator>&x;")
             for name, text in declarations.items()}
    cases["schema hint"] = changed('XMLSchema-instance"',
                                   f'XMLSchema-instance" xsi:schemaLocation="http://vyrgraph.com/v2 {url}/c.xsd"')
    cases["depth"] = DOCUMENT + "<a>" * 200000
    cases["attributes"] = changed("<Vyr:Color ", "<Vyr:Color " + " ".join(f'a{i}="&lt;"' for i in range(50000)) + " ")
    cases["faults"] = changed("<Vyr:B>2</Vyr:B>", "<Vyr:B>2</Vyr:B>" + "<Vyr:Q>x</Vyr:Q>" * 100000)
    cases["references"] = changed("<Vyr:Creator>me", "<Vyr:Creator>" + "&nothing;" * 200000)
    for name, text in cases.items():
        begin = time.monotonic()
        code, out, err = run("check", "-", stdin=text.encode(), preexec_fn=None if is_sanitized() else bound_memory)
        took = time.monotonic() - begin
        if code not in (0, 1) or took > 30 or "very secret" in out or len(out) > 1 << 20:
            failures.append(f"{name}: {code} in {took:.1f} s: {out[:300]} {err[:300]}")
    server.shutdown()
    same("what the network was asked for", asked, [])


test("all warnings stand where they belong", check_names, check_conversion, check_strangers)
