#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The manual page, the completions and the list of codes name what the command has, and nothing else; the page names
whatever is printed as JSON.

Usage: check_papers.py VYR ROOT
"""

import json
import re
import subprocess
import sys

from command import arguments, failures, output, run

root = arguments[1]
OPTION = r"(?<![\w-])--?[a-z]+"
TWICE = {"-j", "--jobs", "-q", "--quiet", "-o", "--output"}


def between(text, begin, end):
    found = re.search(f"{begin}(.*?)(?:{end}|\\Z)", text, re.DOTALL | re.MULTILINE)
    return found.group(1) if found else ""


def compare(where, shown, expected):
    if set(shown) != set(expected):
        failures.append(f"{where}: missing {set(expected) - set(shown)}, needless {set(shown) - set(expected)}")


commands = re.findall(r"^  ([a-z]+) ", between(output("--help"), "Subcommands:\n", r"^$"), re.MULTILINE)
helps = {command: output(command, "--help") for command in commands}
options = {command: {option for line in between(text, "Options:\n", r"^$").splitlines()
                     for option in re.findall(OPTION, line[:28])} for command, text in helps.items()}
# Without the two that stand in a place of their own.
own = {command: found - {"-h", "--help"} for command, found in options.items()}

page = (root / "tools/vyr.1").read_text().replace("\\-", "-")
bash = (root / "tools/completion/vyr.bash").read_text()
zsh = (root / "tools/completion/_vyr").read_text()
fish = (root / "tools/completion/vyr.fish").read_text()
zsh_variables = dict(re.findall(r"^local (\w+)='(.*)'$", zsh, re.MULTILINE))

compare("vyr.1, commands", re.findall(r"^\.SS (\w+)", page, re.MULTILINE), commands)
compare("vyr.bash, commands", between(bash, 'commands="', '"').split(), commands)
compare("_vyr, commands", re.findall(r"^ {12}'(\w+):", zsh, re.MULTILINE), commands)
compare("vyr.fish, commands", re.findall(r" -a (\w+) -d", fish), commands)
for command in commands:
    section = between(page, rf"^\.SS {command}$", r"^\.S[SH] ")
    headings = re.findall(r"^\.TP\n(.*)", section, re.MULTILINE)
    compare(f"vyr.1, {command}", re.findall(OPTION, "\n".join(headings)), own[command])
    synopsis = between(between(page, r"^\.SH SYNOPSIS", r"^\.SH "), rf"^\.B vyr {command}$", r"^\.br")
    # One form of each is enough there.
    compare(f"vyr.1, synopsis of {command}", [*re.findall(OPTION, synopsis), *TWICE], own[command] | TWICE)
    compare(f"vyr.bash, {command}", between(bash, rf'\[{command}\]="', '"').split(), options[command])
    case = re.sub(r"\$(\w+)", lambda found: zsh_variables.get(found.group(1), ""),
                  between(zsh, rf"^ +{command}\)$", ";;"))
    compare(f"_vyr, {command}", re.findall(OPTION + r"(?=[\[=+,}])", case), options[command])
    lines = re.findall(rf"'__fish_seen_subcommand_from {command}' (.*)", fish)
    compare(f"vyr.fish, {command}", [dash + name for dash, kind in (("-", "s"), ("--", "l"))
                                     for name in re.findall(rf"-{kind} (\S+)", "\n".join(lines))], own[command])
    if "Examples:\n  vyr " not in helps[command]:
        failures.append(f"{command} --help shows no example")


def own_names(value, inside=""):
    """The members of what was printed, without those that have the names of the format: these start with a capital."""
    if isinstance(value, list):
        return set().union(*(own_names(entry, inside) for entry in value))
    if not isinstance(value, dict):
        return set()
    # Conditions are the command's own throughout.
    found = {name for name in value if inside == "conditions" or not name[0].isupper()}
    return found.union(*(own_names(inner, name) for name, inner in value.items()))


def printed(*words, stdin=b""):
    text = run(*words, stdin=stdin)[1]
    decoder, at, names = json.JSONDecoder(), 0, set()
    while at < len(text.rstrip()):
        value, at = decoder.raw_decode(text, at)
        at += 1
        names |= own_names(value)
    return names


# What is foreign to the format has names that no page can know.
documents = [file for file in sorted((root / "tests/documents/valid").glob("*.vyr"))
             if not re.search("<(?![/?!]|Vyr:)", file.read_text())]
documents.append(root / "tests/tools/values.vyr")
impossible = (root / "tests/tools/values.vyr").read_bytes().replace(b"2026-05", b"2026-13", 1)
answers = {
    "check": printed("check", "--json", root / "docs/samples/broken.vyr", "absent", "-", stdin=impossible),
    "info": printed("info", "--json", *documents),
    "list": printed("list", "--json", *documents),
    "json": printed("json", *documents),
    "diff": printed("diff", "--json", *documents[:2]),
    "codes": printed("codes", "--json"),
}
compare("commands that print JSON", answers, {command for command in commands if "--json" in own[command]} | {"json"})


def named(command):
    section = between(page, rf"^\.SS {command}$", r"^\.S[SH] ")
    words = set(re.findall(r"[\w:]+", " ".join(re.findall(r"^\.(?:I|IR|RI) .*", section, re.MULTILINE))))
    return words | named("json") if command != "json" and "vyr json" in section else words


for command, names in answers.items():
    if not names or names - named(command):
        failures.append(f"vyr.1, {command}: nothing is said of {names - named(command) or 'JSON'}")

script = (f"source {root}/tools/completion/vyr.bash; COMP_WORDS=(vyr list --color = a); COMP_CWORD=4; _vyr; "
          "echo ${COMPREPLY[@]}")
compare("vyr.bash at work", subprocess.check_output(["bash", "-c", script], text=True).split(), ["auto", "always"])

listed = [line.split()[1] for line in output("codes").splitlines()]
header = between((root / "lmx/error.h").read_text(), r"^enum elmx_error ", r"^\};")
compare("codes", listed, re.findall(r"ELMX_\w+", header))

print("\n".join(failures) or f"{len(commands)} commands agree with their papers")
sys.exit(bool(failures))
