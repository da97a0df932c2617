#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Pages of `vyr show`: well-formed, without foreign markup, and with what their documents hold, no more and no less.

Usage: check_show.py VYR DOCUMENTS PALETTE      (the command, a folder of valid documents, one with sRGB values)
"""

import html.parser
import os
import pathlib
import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

import show_document
from command import arguments, failures, is_sanitized, output, run, same, test, vyr

documents, palette = arguments[1:]
V = "{http://vyrgraph.com/v2}"
VOID = {"meta", "br", "rect", "path", "circle"}
TAGS = set("""html head meta title style body a header h1 h2 h3 h4 h5 h6 p nav ul li span div main section article svg
rect path circle g text dl dt dd details summary table caption thead tbody tr th td bdi i code""".split())
ATTRIBUTES = set("""lang charset name content http-equiv class id href role aria-label aria-labelledby tabindex width
height fill viewbox d x y r cx cy text-anchor scope""".split())


class Page(html.parser.HTMLParser):
    """Elements with their texts; complains of what is unbalanced or foreign."""

    def __init__(self, name, text):
        super().__init__(convert_charrefs=True)
        self.name, self.open, self.elements, self.ids, self.links = name, [], [], [], []
        self.feed(text)
        self.close()
        same(f"{name}: open at the end", [entry["tag"] for entry in self.open], [])
        same(f"{name}: repeated ids", len(self.ids), len(set(self.ids)))
        same(f"{name}: links to nowhere", {link for link in self.links if link[:1] != "#"
                                             or link[1:] not in self.ids}, set())
        levels = [int(entry["tag"][1]) for entry in self.elements if re.fullmatch("h[1-6]", entry["tag"])]
        same(f"{name}: headings left out", [b for a, b in zip(levels, levels[1:]) if b > a + 1], [])

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag not in TAGS or not set(attributes) <= ATTRIBUTES:
            failures.append(f"{self.name}: foreign markup: {tag} {attributes}")
        entry = {"tag": tag, "class": attributes.get("class", ""), "text": "", "attributes": attributes,
                 "inside": [outer["class"] for outer in self.open]}
        self.elements.append(entry)
        self.ids += [attributes["id"]] if "id" in attributes else []
        self.links += [attributes["href"]] if "href" in attributes else []
        if tag not in VOID:
            self.open.append(entry)

    def handle_endtag(self, tag):
        if tag in VOID:
            return
        if not self.open or self.open.pop()["tag"] != tag:
            failures.append(f"{self.name}: </{tag}> ends nothing")

    def handle_data(self, data):
        for entry in self.open:
            entry["text"] += data

    def texts(self, class_name):
        return [entry["text"].strip() for entry in self.elements if class_name == entry["class"]]

    def labels(self, class_name):
        return [entry["attributes"].get("aria-label", "") for entry in self.elements if entry["class"] == class_name]


def show(path):
    return Page(pathlib.Path(path).name, output("show", path))


def is_number(element):
    return element.text.strip() not in ("NaN", "INF", "-INF") and "N" not in element.get("Wavelength")


def check_counts(path):
    """The document by another parser against the page."""
    root = ElementTree.parse(path).getroot()
    page = show(path)
    colors = [color for color in root.iter(V + "Color") if "ColorName" in color.attrib]

    def swatch(value):
        shares = (float(value.find(V + channel).text) for channel in ("Red", "Green", "Blue"))
        return "sRGB " + ",".join(str(int(share * 255 + 0.5)) for share in shares)

    values = [[swatch(value) for value in color.findall(V + "ColorSpaceSRGB")[:1]] for color in colors]
    same(f"{path.name}: swatches", sorted(page.labels("swatch")), sorted(sum(values, [])))
    same(f"{path.name}: places without swatch", len(page.texts("swatch none")), values.count([]))
    same(f"{path.name}: colours", len(page.texts("color")), len(colors))
    spectra = [value for value in root.iter()
               if any(is_number(point) for kind in ("ReflectancePoint", "EmissiveSpectralPoint")
                                                     for point in value.findall(V + kind))]
    same(f"{path.name}: curves", len(page.labels("curve")), len(spectra))
    points = sum(len(list(root.iter(V + kind))) for kind in ("ReflectancePoint", "EmissiveSpectralPoint"))
    rows = sum(entry["tag"] == "tr" and "points" in entry["inside"] for entry in page.elements)
    same(f"{path.name}: points", rows - len(page.texts("points")), points)
    return page


def check_full():
    pathlib.Path("full.vyr").write_text(show_document.full())
    page = check_counts(pathlib.Path("full.vyr"))
    same("verdicts", [entry["text"] for entry in page.elements if entry["class"].startswith("verdict")],
           ["\u2713 within the limits", "\u2713 within the limits", "no limit stated",
            "! within the limits, at the warning level", "no limit stated", "\u2717 above the limit by 0.25",
            "no limit stated", "\u2717 below the limit by 0.5"])
    same("limits", page.texts("limit"), ["0 to 3", "-1 to 1", "-0.5 to 0.75", "at most 2"])
    text = re.sub(r"\s+", " ", page.elements[0]["text"])
    parts = ["D65, 10 degrees, Reflectance, filter None, not polarized (default of the palette)", "conditions unknown",
             "D50, 2 degrees, Reflectance, filter None, not polarized, measured with Optics, S-45, number 0815",
             "Reflectance, angle 45 degrees, filter None, not polarized, measured", "backing White", "house light",
             "under the lamp", "Profile name Press 7", "Direction Profile Output", "3 bytes",
             "Kind Substrate paper, Paper thickness 0.12", "Rubine", "Inks & Co", "0042", "0.42", "unknown",
             "Palette Inks", "first line second line", "Made from:", "Wavelength (nm)",
             "Reflectance factor (fraction)", "Spectral power (unit of the measurement)"]
    same("parts that are missing", [part for part in parts if part not in text], [])
    lamp = next(entry for entry in page.elements if "Lamp" in entry["attributes"].get("aria-label", ""))
    same("lamp", lamp["attributes"]["aria-label"], "Spectrum of Lamp: 4 points, 400 to 700 nm, -0.25 to 40")
    # From left to right, the lowest value lowest, whatever the order in the document.
    line = next(entry for entry in page.elements if entry["class"] == "line")["attributes"]["d"]
    places = [tuple(map(float, place.split())) for place in re.findall(r"[\d.]+ [\d.]+", line)]
    same("order of points", places, sorted(places))
    same("highest and lowest", (min(places, key=lambda p: p[1]), max(places, key=lambda p: p[1])),
           (places[2], places[0]))


def check_hostile():
    path = pathlib.Path("hostile.vyr")
    path.write_text(show_document.hostile())
    page = show(path)  # foreign markup and foreign attributes are found by the parser
    text = page.elements[0]["text"]
    same("hostile: title", [e["text"] for e in page.elements if e["tag"] == "title"], [path.name])
    same("hostile: the name as text",
           "</title></style><script>alert(1)</script>\" onload=\"alert(1)' x='&lt;" in text, True)
    same("hostile: hidden characters", [c for c in ("\u202e", "\u009b") if c in text], [])
    same("hostile: by number", "\\u{202E}" in text, True)
    numbers = (("380", "1e308"), ("390", "-1e308"), ("400", "INF"), ("410", "NaN"), ("420", "1e-320"))
    pathlib.Path("numbers.vyr").write_text(show_document.document("".join(
        show_document.color("c", show_document.emission(*points)) for points in (numbers, (("1e300", "NaN"),)))))
    curves = [entry for entry in check_counts(pathlib.Path("numbers.vyr")).elements if "curve" in entry["inside"]]
    places = " ".join(str(entry["attributes"].get(key, "")) for entry in curves for key in ("d", "x", "y"))
    same("coordinates", re.findall(r"nan|inf|e\+|\d{5}", places), [])


def check_files():
    """What may be a document is no place for a page; what fails leaves none."""
    shutil.copy(palette, "a.vyr")
    os.symlink("a.vyr", "link.html")
    pathlib.Path("broken.vyr").write_text("<a/>")
    before = pathlib.Path("a.vyr").read_bytes()
    for words, code, said in (
        (("a.vyr", "-o", "a.vyr"), 2, "no place for a page"),
        (("a.vyr", "-o", "b.vyrz"), 2, "no place for a page"),
        (("a.vyr", "-o", "link.html"), 2, "no place for a page"),
        (("a.vyr", "-o", "none/a.html"), 2, "No such file"),
        (("a.vyr", "-o", "/dev/full"), 2, "No space left"),
        (("broken.vyr", "-o", "c.html"), 1, "broken.vyr:1:"),
        (("a.vyr", "--output=a.html"), 0, ""),
    ):
        got, out, err = run("show", *words)
        same(f"show {words}", (got, out, said in err), (code, "", True))
    same("standard input", run("show", "-", stdin=before)[:2],
         (0, pathlib.Path("a.html").read_text().replace("a.vyr", "standard input")))
    same("the document", pathlib.Path("a.vyr").read_bytes(), before)
    same("what no page was for", [name for name in ("b.vyrz", "c.html") if os.path.exists(name)], [])


def peak(*arguments):
    """Of memory, in kB."""
    report = subprocess.run([sys.executable, "-c", "import os, subprocess, sys; subprocess.run(sys.argv[1:], stdout="
                             "subprocess.DEVNULL, check=True); import resource; "
                             "print(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss)", vyr, *arguments],
                            capture_output=True, check=True, text=True)
    return int(report.stdout)


def check_large():
    pathlib.Path("large.vyr").write_text(show_document.large(4000))
    page, info = peak("show", "large.vyr"), peak("info", "large.vyr")
    if page > 1.1 * info + 2048 and not is_sanitized():
        failures.append(f"a large page takes {page} kB, where reading takes {info} kB")


def check_documents():
    for document in [*sorted(documents.iterdir()), palette]:
        check_counts(document)


test("pages show what documents hold", check_full, check_hostile, check_documents, check_files, check_large)
