#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The guides as pages of the site: Doxygen finds nothing to warn of, each page has the title of its guide and no
markup left over, and links lead somewhere. Of the headers only those that the guides name are read, which is quicker.
Without Doxygen, the target has to say what is missing.

    check_site.py CMAKE SOURCE_FOLDER SCRATCH_FOLDER
"""

import os
import re
import shutil
import subprocess
import sys
from html import unescape
from pathlib import Path

cmake, source, scratch = sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3])
problems = []


def make(**environment):
    extra = "INPUT = README.md docs CONTRIBUTING.md SECURITY.md CHANGELOG.md lmx/error.h document/report.h"
    return subprocess.run([cmake, "-DPROJECT_VERSION=0", "-DPROJECT_DESCRIPTION=x", f"-DPROJECT_SOURCE_DIR={source}",
                           f"-DPROJECT_BINARY_DIR={scratch}", f"-DVYR_SITE_EXTRA={extra}",
                           "-P", source / "docs/make_site.cmake"], env={**os.environ, **environment},
                          capture_output=True, text=True, check=False)


shutil.rmtree(scratch, ignore_errors=True)
scratch.mkdir(parents=True)
bare = make(PATH=str(scratch))
if bare.returncode == 0 or "scripts/setup.sh docs" not in bare.stderr:
    problems.append(f"without Doxygen the target says\n{bare.stderr}")
if not problems and not shutil.which("doxygen"):
    print("there is no Doxygen")
    sys.exit(77)
done = make()
if done.returncode != 0 or done.stderr.strip():
    problems.append(f"Doxygen ends with {done.returncode} and says\n{done.stderr}")

site = scratch / "site"
pages = {page.name: page.read_text(encoding="utf-8") for page in site.glob("*.html")}
names = {name: set(re.findall(r'\b(?:id|name)="([^"]+)"', text)) for name, text in pages.items()}


def page_of(guide):
    """What Doxygen calls a guide's page."""
    if guide == source / "README.md":
        return "index.html"
    return "md_" + str(guide.relative_to(source).with_suffix("")).replace("/", "_") + ".html"


guides = [*sorted(source.glob("*.md")), *(page for page in sorted(source.glob("docs/*.md")) if page.name != "README.md")]
links = 0
for guide in guides:
    name = page_of(guide)
    if name not in pages:
        problems.append(f"{guide.name} has no page {name}")
        continue
    text = pages[name]
    title = unescape(re.search(r"<title>(.*?)</title>", text)[1]).removeprefix("Vyr: ")
    if title != guide.read_text(encoding="utf-8").splitlines()[0].removeprefix("# "):
        problems.append(f"{name} is titled {title!r}")
    prose = re.sub(r'<div class="fragment">.*?</div><!-- fragment -->', "", text, flags=re.DOTALL)
    for left in re.findall(r"&lt;/?(?:tt|code|em)&gt;|```|@(?:ref|section|code)\b|\{#[\w-]+\}", prose):
        problems.append(f"{name}: markup is left over: {left}")
    for target in re.findall(r'<a [^>]*href="([^"]*)"', text):
        if re.match(r"[a-z]+:", target):
            continue
        links += 1
        file, _, anchor = unescape(target).partition("#")
        if not (site / (file or name)).exists() or (anchor and anchor not in names.get(file or name, ())):
            problems.append(f"{name}: {target} leads nowhere")

print(*problems, f"{len(guides)} pages, {links} links, {len(problems)} problems", sep="\n")
sys.exit(bool(problems) or links < 50)
