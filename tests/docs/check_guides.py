#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The README and the guides say what is so: every block of code is an excerpt of a file that is compiled, generated
or read, every console block prints what it shows, and links lead somewhere.

    check_guides.py SOURCE_FOLDER EXAMPLES_FOLDER COMMAND

A block is compared without its indentation; a line "..." stands for any lines left out. A console block is run by a
shell in a scratch folder with the examples and the schema, a line "$ " at a time; "..." stands for any output there. A
change ("diff") is made to that folder. Blocks of shell commands without output ("sh") are not run, but the files that
they name must be there.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import textwrap
from pathlib import Path

source, examples, command = (Path(argument).resolve() for argument in sys.argv[1:])
problems = []

# Where an excerpt of a language may come from.
ORIGINS = {
    "cpp": ["examples/*.cpp", "examples/*.h", "docs/samples/*.cpp", "schema/generated/*", "flat/generated/*.cpp"],
    "csharp": ["examples/csharp/*.cs", "docs/samples/*.cs", "csharp/generated/*.cs"],
    "python": ["examples/python/*.py", "docs/samples/*.py"],
    "c": ["docs/samples/*.c"],
    "xml": ["examples/*.vyr", "docs/samples/*.vyr", "schema/vyr.xsd"],
    "toml": ["schema/binding.toml"],
    "csv": ["examples/*.csv"],
    "text": ["schema/generated/model.txt", "flat/generated/exports.txt"],
}

def normal(text):
    return textwrap.dedent(text.expandtabs(4)).strip("\n").splitlines()


def pieces(lines):
    """The parts between lines "...", each without its own indentation."""
    parts = [[]]
    for line in lines:
        if line.strip() in ("...", "// ..."):
            parts.append([])
        else:
            parts[-1].append(line)
    return [normal("\n".join(part)) for part in parts if part]


def holds(text, part, start):
    """The end of the first place at or after `start` where the lines stand, whatever their common indentation."""
    for i in range(start, len(text) - len(part) + 1):
        if text[i].lstrip() == part[0].lstrip() and normal("\n".join(text[i:i + len(part)])) == part:
            return i + len(part)
    return None


def is_excerpt(lines, text):
    position = 0
    for part in pieces(lines):
        position = holds(text, part, position)
        if position is None:
            return False
    return True


def run_console(lines, folder, where):
    steps = []
    for line in lines:
        if line.startswith("$ "):
            steps.append((line[2:], []))
        else:
            steps[-1][1].append(line)
    environment = {**os.environ, "PATH": f"{command.parent}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8"}
    for step, expected in steps:
        done = subprocess.run(["bash", "-c", step], cwd=folder, env=environment, text=True, capture_output=True,
                              timeout=120, check=False)
        said = (done.stdout + done.stderr).rstrip("\n")
        pattern = re.escape("\n".join(expected)).replace(re.escape("..."), "(?s:.*)")
        if expected and not re.fullmatch(pattern, said):
            problems.append(f"{where}: `{step}` says\n{textwrap.indent(said, '    ')}")
        if not expected and done.returncode != 0:
            problems.append(f"{where}: `{step}` fails with {done.returncode}\n{textwrap.indent(said, '    ')}")


def check_block(language, lines, folder, where):
    if language == "console":
        run_console(lines, folder, where)
    elif language == "diff":
        change = "\n".join(lines) + "\n"
        if subprocess.run(["git", "apply"], cwd=folder, input=change, text=True, check=False).returncode != 0:
            problems.append(f"{where}: the change doesn't apply")
    elif language in ("sh", "cmake"):
        for name in re.findall(r"(?<![\w/])(?:scripts|examples|schema)/[\w./-]+\w", "\n".join(lines)):
            if not name.endswith(".exe") and not (source / name).exists():
                problems.append(f"{where}: there is no {name}")
    elif language not in ORIGINS:
        problems.append(f"{where}: a block has to say what it is, not {language!r}")
    else:
        files = [file for pattern in ORIGINS[language] for file in sorted(source.glob(pattern)) if file.is_file()]
        if not any(is_excerpt(lines, file.read_text().expandtabs(4).splitlines()) for file in files):
            problems.append(f"{where}: no file has this {language} block")


def anchors(page):
    heads = re.findall(r"^#+ (.*)$", page.read_text(), re.MULTILINE)
    return {re.sub(r"[^\w -]", "", head.lower()).replace(" ", "-") for head in heads}


def check_links(page, text):
    for target in re.findall(r"\]\(([^)\s]+)\)", text):
        if re.match(r"[a-z]+:", target):
            continue
        path, _, anchor = target.partition("#")
        other = (page.parent / path).resolve() if path else page
        if not other.exists():
            problems.append(f"{page.relative_to(source)}: {target} leads nowhere")
        elif anchor and anchor not in anchors(other):
            problems.append(f"{page.relative_to(source)}: {target} has no such heading")


def check_codes():
    """The table of codes has each code of the header with its number, in order; "Never" is said of those that nothing
    in the library mentions, and of no other."""
    codes, number = [], 0
    body = re.search(r"enum elmx_error : .*?\{(.*?)\};", (source / "lmx/error.h").read_text(), re.DOTALL)[1]
    for name, value in re.findall(r"^ *(ELMX_\w+)(?: = (\d+))?", body, re.MULTILINE):
        number = int(value) if value else number + bool(codes)
        codes.append((number, name))
    rows = re.findall(r"^\| (\d+) \| `(\w+)` \| (.*?) \|", (source / "docs/codes.md").read_text(), re.MULTILINE)
    told = [(int(number), name) for number, name, _ in rows]
    problems.extend(f"docs/codes.md: {number} {name} is missing, wrong or out of place"
                    for number, name in sorted(set(codes) ^ set(told)) or [row for row in codes if codes != told])
    used = "".join(file.read_text() for folder in ("lmx", "schema", "document", "zip", "flat")
                   for file in (source / folder).rglob("*.[ch]*") if file.stem != "error" and file.suffix in (".cpp", ".h"))
    for _, name, when in rows:
        if when.startswith("Never") == bool(re.search(rf"\b{name}\b", used)):
            problems.append(f"docs/codes.md: {name} comes otherwise than it says")


check_codes()
blocks = 0
pages = [*sorted(source.glob("*.md")), *sorted((source / "docs").glob("*.md"))]
for page in pages:
    text = page.read_text()
    with tempfile.TemporaryDirectory() as scratch:
        for name in ("examples", "docs/samples", "schema", "flat", "csharp"):
            shutil.copytree(source / name, Path(scratch, name), ignore=shutil.ignore_patterns("__pycache__"))
        Path(scratch, "build").mkdir()
        Path(scratch, "build", "examples").symlink_to(examples)
        for block in re.finditer(r"^```(\w*)\n(.*?)^```$", text, re.MULTILINE | re.DOTALL):
            blocks += 1
            where = f"{page.relative_to(source)}:{text.count(chr(10), 0, block.start()) + 1}"
            check_block(block[1], block[2].splitlines(), scratch, where)
    prose = re.sub(r"^```.*?^```$", "", text, flags=re.MULTILINE | re.DOTALL)
    check_links(page, prose)
    if re.search(r"^    ", prose, re.MULTILINE):
        problems.append(f"{page.relative_to(source)}: a block that is indented, not fenced, is checked by nobody")
for page in source.glob("*/**/README.md"):
    if "build" not in page.relative_to(source).parts:
        check_links(page, page.read_text())

print(*problems, f"{len(pages)} pages, {blocks} blocks, {len(problems)} problems", sep="\n")
sys.exit(bool(problems) or blocks < 30)
