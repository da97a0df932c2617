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


def expect(text, expected, *options, code=0, encoding="utf-8"):
    """`expected`: the name of each warning with the text that begins where it is, or None where no line is known."""
    data = text if isinstance(text, bytes) else text.encode(encoding)
    got, out, err = run("check", "--json", *options, "-", stdin=data)
    found = [(w["name"], w.get("line"), w.get("column")) for w in json.loads(out)["files"][0].get("warnings", [])]
    wanted = []
    for name, place in expected:
        if place is None:
            wanted.append((name, None, None))
            continue
        ahead = text[: text.index(place)]
        wanted.append((name, ahead.count("\n") + 1, len(ahead) - ahead.rfind("\n")))
    if got != code or sorted(found, key=str) != sorted(wanted, key=str):
        failures.append(f"{expected} {options}: {got}, {found} instead of {wanted}\n{out}{err}")


def check_names():
    expect(DOCUMENT, [])
    for path in sorted(documents.glob("*.vyr")):
        # They are made by chance, which knows nothing of limits and wavelengths.
        same(path.name, run("check", "--strict", "--ignore", "limits", "--ignore", "wavelengths", path), (0, "", ""))
    twice = changed('UniqueID="b"', 'UniqueID="a"')
    expect(twice, [("duplicate-id", '<Vyr:Color ColorName="Ink 2"')])
    expect(twice, [("duplicate-id", '<Vyr:Color ColorName="Ink 2"')], "--strict", code=1)
    expect(twice, [], "--strict", "--ignore", "duplicate-id")
    expect(twice, [], "--strict", "--ignore", "all")
    # In an element of its own each stands once.
    expect(changed('UniqueID="b">', 'UniqueID="b"><!-- \u00fc -->'), [])
    expect(changed('Wavelength="410"', 'Wavelength="420"'),
           [("wavelengths", '<Vyr:ReflectancePoint Wavelength="420">0.3')])
    expect(changed('Wavelength="420"', 'Wavelength="4.0e2"'),
           [("wavelengths", '<Vyr:ReflectancePoint Wavelength="4.0e2"')])
    expect(changed("<Vyr:B>2</Vyr:B>", "<!-- \u00fc --><Vyr:B>NaN</Vyr:B>"), [("schema", "<Vyr:B>NaN")])
    month = changed("2024-05-01T09:30:00Z", "2024-13-01T09:30:00Z")
    expect(month, [("date", "<Vyr:ChangeHistory>2024-13"), ("schema", "<Vyr:ChangeHistory>2024-13")])
    expect(changed("2024-05-01T09:30:00Z", "2023-02-29T09:30:00Z"), [("date", "<Vyr:ChangeHistory>2023")], "--ignore",
           "schema")
    expect(changed("2024-05-01T09:30:00Z", "2024-02-29T24:00:00Z"), [], "--ignore", "schema")
    attribute = changed('ColorName="Ink 2"', 'ColorName="< Ink 2"')
    got = run("check", "-", stdin=attribute.encode())
    if got[0] != 0 or "[not-well-formed]" not in got[1] or ":8:" not in got[1]:
        failures.append(f"< in an attribute: {got}")
    last = DOCUMENT.count("\n") + 1
    for tail in ("<a/>", "text", DOCUMENT[39:]):
        got = run("check", "--strict", "-", stdin=(DOCUMENT + tail).encode())
        if got[0] != 1 or "[not-well-formed]" not in got[1] or f":{last}:" not in got[1]:
            failures.append(f"behind the end: {tail[:9]}: {got}")
    got = run("check", "-", stdin=DOCUMENT.encode().replace(b"Ink 2", b"Ink \xc3\xfe2"))
    if "[not-well-formed]" not in got[1] and got[0] == 0:
        failures.append(f"no UTF-8: {got}")
    # A carriage return in a text doesn't survive a save.
    expect(changed("<Vyr:Creator>me", "<Vyr:Creator>m&#13;e"), [("unsavable", None)])
    same("a warning that there isn't", run("check", "--ignore", "nothing", "-")[0], 2)
    # Limits are looked at in faulty documents too.
    expect(changed("<Vyr:ColorSpaceCIELab>", """<Vyr:ColorSpaceGeneric><Vyr:Axis><Vyr:AxisValueChoice>
<Vyr:AxisFloatingPointValue AxisNominalMax="1" AxisNominalMin="1.5">2</Vyr:AxisFloatingPointValue>
</Vyr:AxisValueChoice></Vyr:Axis></Vyr:ColorSpaceGeneric><Vyr:ColorSpaceCIELab>"""),
           [("limits", "<Vyr:AxisFloating")], code=1)
    # A fault speaks for itself.
    expect(changed("<Vyr:L>50", "<Vyr:L>500"), [], code=1)


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
