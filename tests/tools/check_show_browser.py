#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Pages of `vyr show` in headless Chromium; skips without one.

Usage: check_show_browser.py VYR
"""

import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import zlib

import show_document

vyr = pathlib.Path(sys.argv[1]).resolve()
chromium = shutil.which("chromium") or shutil.which("chromium-browser")
if chromium is None:
    print("skipped: no chromium")
    sys.exit(77)
failures = []
folder = pathlib.Path(tempfile.mkdtemp())


def browse(page, *options):
    done = subprocess.run([chromium, "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                           "--enable-logging=stderr", f"--user-data-dir={folder}/profile", *options, page.as_uri()],
                          capture_output=True, timeout=240)
    said = [line for line in done.stderr.decode(errors="replace").splitlines() if "CONSOLE" in line]
    if said or done.returncode != 0:
        failures.append(f"{page.name} {options}: {done.returncode}, {said}")
    return done.stdout.decode()


def pixels(path):
    """Width, and the rows as bytes of 3 or 4 a pixel."""
    data = path.read_bytes()
    width, height, _, kind = struct.unpack(">IIBB", data[16:26])
    size, at, packed = {2: 3, 6: 4}[kind], 8, b""
    while at < len(data):
        length, name = struct.unpack(">I4s", data[at:at + 8])
        packed += data[at + 8:at + 8 + length] if name == b"IDAT" else b""
        at += length + 12
    raw, rows, last = zlib.decompress(packed), [], bytearray(width * size)
    for y in range(height):
        start = y * (width * size + 1)
        how, row = raw[start], bytearray(raw[start + 1:start + 1 + width * size])
        for x in range(len(row)):
            left, up, corner = (row[x - size] if x >= size else 0), last[x], (last[x - size] if x >= size else 0)
            guess = left + up - corner
            nearest = min((left, up, corner), key=lambda value: abs(guess - value))
            row[x] = (row[x] + (0, left, up, (left + up) // 2, nearest)[how]) & 255
        rows.append(bytes(row))
        last = row
    return size, rows


def has_color(picture, color):
    size, rows = picture
    wanted = bytes(color) + (b"\xff" if size == 4 else b"")
    return any(wanted * 40 in row for row in rows)


def make(name, text):
    document = folder / f"{name}.vyr"
    document.write_text(text)
    page = folder / f"{name}.html"
    subprocess.run([vyr, "show", document, "-o", page], check=True)
    return page


try:
    full = make("full", show_document.full())
    light, dark = folder / "light.png", folder / "dark.png"
    dark_scheme = "--blink-settings=preferredColorScheme=0"
    one = make("one", show_document.document(show_document.color("Red", show_document.srgb("0.8392", "0.2196", "0.2"))))
    browse(one, "--window-size=500,700", f"--screenshot={light}")
    browse(one, "--window-size=500,700", f"--screenshot={dark}", dark_scheme)
    # The swatch is the colour of the document, whatever the scheme; the ground is not.
    grounds = []
    for picture in (light, dark):
        shown = pixels(picture)
        grounds.append(shown[1][-1][:3])
        if not has_color(shown, (214, 56, 51)):
            failures.append(f"{picture.name}: the swatch is missing")
    if sum(grounds[0]) < 3 * 200 or sum(grounds[1]) > 3 * 60:
        failures.append(f"grounds of light and dark: {grounds}")
    printed = folder / "full.pdf"
    browse(full, f"--print-to-pdf={printed}", "--no-pdf-header-footer")
    if not printed.read_bytes().startswith(b"%PDF"):
        failures.append("no print")
    # What a browser makes of hostile text is still text.
    tree = browse(make("hostile", show_document.hostile()), "--dump-dom")
    tags = [re.sub(r'"[^"]*"', "", tag) for tag in re.findall(r'<[a-zA-Z](?:[^<>"]|"[^"]*")*>', tree)]
    if any(re.match("<script|<.* on", tag) for tag in tags) or "&lt;script&gt;" not in tree:
        failures.append("hostile text became markup")
    tree = browse(make("large", show_document.large(8000)), "--dump-dom")
    if tree.count("<article ") != 8000 or tree.count("</svg>") != 8000 or not tree.rstrip().endswith("</html>"):
        failures.append(f"of 8000 colours {tree.count('<article ')} came out")
finally:
    shutil.rmtree(folder)
print("\n".join(failures) or "pages are shown")
sys.exit(bool(failures))
