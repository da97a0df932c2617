#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Doxygen reads each file through this: it says in Doxygen's words what the headers say by their layout.

A header's purpose is the file's description. In the classes made from the schema, the accessors of an item stand together
under the item's comment, what is protected is no part of the reference, and each topic is a group.
"""

import re
import sys
from pathlib import Path

path = Path(sys.argv[1])
text = path.read_text(encoding="utf-8")
generated = path.parent.name == "generated" and path.parent.parent.name == "schema"


def group_accessors(match):
    lines = match[0].rstrip("\n").split("\n")
    names = re.findall(r"\b(?:get|size|isnil)_(\w+)\(", match[0])
    if not names:
        return match[0]
    return "\n".join([f"    /// @name {names[0]}", *lines[:lines_of_comment(lines)], "    /// @{",
                      *lines[lines_of_comment(lines):], "    /// @}", ""])


def lines_of_comment(lines):
    return next(i for i, line in enumerate(lines) if not line.startswith("    ///"))


def heading_name(page, heading):
    return f"{Path(page).stem}-{re.sub(r'[^a-z0-9_ -]', '', heading.lower()).replace(' ', '-')}"


def guide(text):
    """Headings get names that links can use, a closing "#" is kept, which Doxygen takes for decoration, and a link whose
    text is broken over two lines, which would spoil the rest of the page, is joined. What is no page of the site is
    named and not linked."""
    parts = re.split(r"(^```.*?^```$)", text, flags=re.MULTILINE | re.DOTALL)  # Blocks of code stay as they are.
    for i in range(0, len(parts), 2):
        prose = re.sub(r"\[([^\]]+)\]\((?:LICENSE|examples/README\.md)\)", r"\1", parts[i])
        prose = re.sub(r"\]\(([^)#:\s]*)#([^)\s]+)\)", lambda m: f"](#{heading_name(m[1] or path, m[2])})", prose)
        prose = re.sub(r"^(##+ )(.*)$", lambda m: f"{m[1]}{m[2]} {{#{heading_name(path, m[2])}}}", prose, flags=re.MULTILINE)
        prose = re.sub(r"(\[[^\]\n]*)\n *([^\]\n]*\]\()", r"\1 \2", prose)
        parts[i] = re.sub(r"^# (.*#)$", r"\1\n===", prose, flags=re.MULTILINE)
    return "".join(parts)


if path.suffix == ".md":
    text = guide(text)
if path.suffix == ".h":
    text = re.sub(r"\n\n///", "\n/// @file\n///", text, count=1)
if generated and "\n/// Classes of the topic" in text:
    topic = path.stem
    text = re.sub(r"(?:^    ///.*\n)+(?:^    [^/\n].*\n)+", group_accessors, text, flags=re.MULTILINE)
    text = re.sub(r"^protected:\n(.*?)^};", r"/// @cond\nprotected:\n\1/// @endcond\n};", text,
                  flags=re.MULTILINE | re.DOTALL)
    title = topic.replace("_", " ").capitalize()
    text = re.sub(r"^(namespace com_vyrgraph_v2 \{)$", rf"\1\n/** @addtogroup {topic} {title}\n@{{ */", text,
                  flags=re.MULTILINE)
    text = re.sub(r"^(\}  // namespace com_vyrgraph_v2)$", r"/** @} */\n\1", text, flags=re.MULTILINE)
sys.stdout.write(text)
