#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The command on Windows: what that system does in its own way. The rest is tested where the tests of the command run.

Usage: check_windows.py PALETTE COMMAND...      (a valid document in the library's own layout, and what runs vyr.exe)
"""

import io
import os
import pathlib
import re
import stat
import subprocess
import sys
import tempfile
import zipfile

palette = pathlib.Path(sys.argv[1]).read_bytes()
command = sys.argv[2:]
failures = []
name = "Grün 日本 🎨"


def run(*arguments, stdin=b""):
    done = subprocess.run([*command, *arguments], input=stdin, capture_output=True, timeout=300)
    return done.returncode, done.stdout, done.stderr.decode()


def expect(code, out, err, *arguments, **more):
    """`out` is all of standard output, or a condition; `err` a pattern for all of the other stream."""
    got = run(*arguments, **more)
    is_out = out(got[1]) if callable(out) else got[1] == out
    if got[0] != code or not is_out or not re.fullmatch(err, got[2], re.S):
        failures.append(f"vyr {arguments}: expected {code}, {out!r}, {err!r}, got {got[0]}, {got[1][:300]!r}, {got[2]!r}")


def expect_that(holds, what):
    if not holds:
        failures.append(what)


def holds_palette(archive, entry):
    with zipfile.ZipFile(archive) as opened:
        first, = opened.infolist()
        # Archives don't say that their names are UTF-8.
        encoding = "utf-8" if first.flag_bits & 0x800 else "cp437"
        return first.filename.encode(encoding) == entry.encode() and opened.read(first) == palette


# Below the test's own folder, which the program sees under the same path.
with tempfile.TemporaryDirectory(dir=".") as folder:
    os.chdir(folder)
    pathlib.Path(f"{name}.vyr").write_bytes(palette)
    expect(0, lambda text: re.fullmatch(rb"vyr [0-9.]+\r?\n", text), "", "--version")
    expect(2, b"", "vyr: there is no command \"Grün\".*", "Grün")

    # Names of any text, as given and as written; bytes without a carriage return.
    expect(0, b"", "", "check", f"{name}.vyr")
    expect(0, b"", "", "convert", f"{name}.vyr", f"{name}.vyrz")
    expect_that(holds_palette(f"{name}.vyrz", f"{name}.vyr"), "the archive holds something else")
    expect(0, palette, "", "convert", f"{name}.vyrz", "-")
    expect(0, b"", "", "convert", f"{name}.vyr", f"{name}.json")
    expect(0, palette, "", "convert", f"{name}.json", "-")
    expect(0, lambda text: f"<title>{name}.vyr".encode() in text, "", "show", f"{name}.vyr")

    # Patterns of names are those of other systems' shells.
    for pattern, count in ("navy", 1), ("[l-n]a?y", 1), ("[!a-m]avy", 1), ("*a*v*y", 1), ("\\navy", 1), ("nav", 0), \
            ("[]n]a[v-]y*", 1), ("[navy", 0), ("nav[!y]", 0), ("[[:upper:][:lower:]]avy", 1), ("[![:alpha:]]avy", 0):
        expect(0, lambda text: text.count(b'"name"') == count, "(vyr: [^\n]*no such colour\n)?", "list", "--json", "--name",
               pattern, f"{name}.vyr")

    # Standard streams hand on every byte, also those that end a text there.
    archive = pathlib.Path(f"{name}.vyrz").read_bytes()
    expect(0, palette, "", "convert", "-", "-", stdin=archive)
    expect(0, lambda text: holds_palette(io.BytesIO(text), "document.vyr"), "", "convert", "--to", "vyrz", "-", "-",
           stdin=palette)

    # A finished file takes the place of another, unless that is protected; nothing else stays.
    target = pathlib.Path("target.vyr")
    target.write_bytes(b"before")
    expect(0, b"", "", "convert", f"{name}.vyr", str(target))
    expect_that(target.read_bytes() == palette, "an existing file wasn't replaced")
    target.write_bytes(b"before")
    target.chmod(stat.S_IRUSR)
    expect(2, b"", "vyr: target.vyr: Permission denied\n", "convert", f"{name}.vyr", str(target))
    target.chmod(stat.S_IRUSR | stat.S_IWUSR)
    expect_that(target.read_bytes() == b"before", "a protected file was changed")
    expect(2, b"", "vyr: none.vyr: No such file or directory\n", "check", "none.vyr")

    # Folders, and patterns, which the shells there hand on.
    os.mkdir("Ordner ü")
    pathlib.Path("Ordner ü", f"{name}.vyr").write_bytes(palette.replace(b"<Vyr:Red>", b"<Vyr:Red>x", 1))
    expect(2, b"", "vyr: Ordner ü: is a directory\n", "info", "Ordner ü")
    lines = rf"Ordner ü[\\/]{name}\.vyr:[0-9]+:[^\n]*Red[^\n]*\n"
    expect(1, lambda text: re.fullmatch(lines, text.decode()), "", "check", "Ordner ü")
    target.unlink()
    expect(0, lambda text: len(re.findall(b'"status": *"valid"', text)) == 2, "", "check", "--json", "G?*.vyrz", f"{name}.vyr")
    expect_that(sorted(os.listdir()) == sorted([f"{name}.json", f"{name}.vyr", f"{name}.vyrz", "Ordner ü"]),
                f"there remains {os.listdir()}")
    os.chdir("..")

print("\n".join(failures))
sys.exit(bool(failures))
