#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The manual page, the completions and the list of codes name what the command has, and nothing else.

Usage: check_papers.py VYR ROOT
"""

import pathlib
import re
import subprocess
import sys

vyr, root = sys.argv[1], pathlib.Path(sys.argv[2])
OPTION = r"(?<![\w-])--?[a-z]+"
TWICE = {"-j", "--jobs", "-q", "--quiet", "-o", "--output"}
failures = []


def output(*arguments):
    return subprocess.run([vyr, *arguments], capture_output=True, text=True, check=True).stdout


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
    case = re.sub(r"\$(\w+)", lambda found: zsh_variables.get(found.group(1), ""), between(zsh, rf"^ +{command}\)$", ";;"))
    compare(f"_vyr, {command}", re.findall(OPTION + r"(?=[\[=+,}])", case), options[command])
    lines = re.findall(rf"'__fish_seen_subcommand_from {command}' (.*)", fish)
    compare(f"vyr.fish, {command}", [dash + name for dash, kind in (("-", "s"), ("--", "l"))
                                     for name in re.findall(rf"-{kind} (\S+)", "\n".join(lines))], own[command])
    if "Examples:\n  vyr " not in helps[command]:
        failures.append(f"{command} --help shows no example")

script = f"source {root}/tools/completion/vyr.bash; COMP_WORDS=(vyr list --color = a); COMP_CWORD=4; _vyr; echo ${{COMPREPLY[@]}}"
compare("vyr.bash at work", subprocess.check_output(["bash", "-c", script], text=True).split(), ["auto", "always"])

listed = [line.split()[1] for line in output("codes").splitlines()]
header = between((root / "lmx/error.h").read_text(), r"^enum elmx_error ", r"^\};")
compare("codes", listed, re.findall(r"ELMX_\w+", header))

print("\n".join(failures) or f"{len(commands)} commands agree with their papers")
sys.exit(bool(failures))
