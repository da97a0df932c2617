#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Pages of `vyr show` in headless Chromium; skips without one.

Usage: check_show_browser.py VYR
"""

import pathlib
import re
import shutil
import subprocess
import sys

import show_document
from command import failures, output, same, test

chromium = shutil.which("chromium") or shutil.which("chromium-browser")
if chromium is None:
    print("skipped: no chromium")
    sys.exit(77)

# Puts into the page how the browser lays it out. A page's own policy forbids scripts, so the copy has none.
PROBE = """<pre id="probe"></pre><script>
const ground = getComputedStyle(document.body).backgroundColor;
const swatch = document.querySelector(".swatch rect");
const size = swatch.getBoundingClientRect();
const is_large = size.width * size.height > 800;
document.getElementById("probe").textContent = ground + getComputedStyle(swatch).fill + is_large;
</script></body>"""


def browse(page, *options):
    folder = pathlib.Path.cwd()
    done = subprocess.run([chromium, "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                           "--enable-logging=stderr", f"--user-data-dir={folder}/profile", *options,
                           (folder / page).as_uri()], capture_output=True, timeout=240)
    said = [line for line in done.stderr.decode(errors="replace").splitlines() if "CONSOLE" in line]
    same(f"{page} {options}", (done.returncode, said), (0, []))
    return done.stdout.decode()


def make(name, text):
    pathlib.Path(f"{name}.vyr").write_text(text)
    output("show", f"{name}.vyr", "-o", f"{name}.html")
    return f"{name}.html"


def check_looks():
    """The swatch is the colour of the document, whatever the scheme; the ground is not."""
    red = show_document.color("Red", show_document.srgb("0.8392", "0.2196", "0.2"))
    page = pathlib.Path(make("red", show_document.document(red)))
    page.write_text(re.sub('<meta http-equiv="Content-Security-Policy"[^>]*>', "", page.read_text(), count=1)
                    .replace("</body>", PROBE))
    grounds = []
    for scheme in ("1", "0"):
        tree = browse(page, "--dump-dom", f"--blink-settings=preferredColorScheme={scheme}")
        ground, swatch = re.search(r'id="probe">rgb\((.*?)\)(.*?)<', tree).groups()
        same(f"swatch under scheme {scheme}", swatch, "rgb(214, 56, 51)true")
        grounds.append([int(channel) for channel in ground.split(",")])
    if min(grounds[0]) < 200 or max(grounds[1]) > 60:
        failures.append(f"grounds of light and dark: {grounds}")


def check_print():
    browse(make("full", show_document.full()), "--print-to-pdf=full.pdf", "--no-pdf-header-footer")
    same("print", pathlib.Path("full.pdf").read_bytes()[:4], b"%PDF")


def check_texts():
    """What a browser makes of hostile text is still text, and of a long page nothing is left out."""
    tree = browse(make("hostile", show_document.hostile()), "--dump-dom")
    tags = [re.sub(r'"[^"]*"', "", tag) for tag in re.findall(r'<[a-zA-Z](?:[^<>"]|"[^"]*")*>', tree)]
    same("markup of hostile text", [tag for tag in tags if re.match("<script|<.* on", tag)], [])
    same("hostile text", "&lt;script&gt;" in tree, True)
    tree = browse(make("large", show_document.large(8000)), "--dump-dom")
    same("8000 colours", (tree.count("<article "), tree.count("</svg>"), tree.rstrip()[-7:]), (8000, 8000, "</html>"))


test("pages are shown", check_looks, check_print, check_texts)
