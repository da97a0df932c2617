#!/usr/bin/env bash
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Containers between this library and others: ours are read by the archivers that are installed, theirs by ours.
#
#   check_archives.sh VYR PALETTE      (the command, and a valid document in the library's own layout)

set -euo pipefail
vyr=$1
palette=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
cp "$palette" a.vyr

failures=0
fail() { echo "check_archives.sh: $*"; failures=$((failures + 1)); }

"$vyr" convert a.vyr ours.vyrz
readers=0
read_ours() { # NAME COMMAND...: the command prints the only entry
    command -v "$2" > /dev/null || { echo "$1 is not installed: skipped"; return 0; }
    "${@:2}" > read.vyr && cmp read.vyr a.vyr || fail "$1 reads something else"
    readers=$((readers + 1))
}
read_ours Python python3 -c '
import sys, zipfile
archive = zipfile.ZipFile("ours.vyrz")
assert archive.testzip() is None and archive.namelist() == ["ours.vyr"]
sys.stdout.buffer.write(archive.read("ours.vyr"))'
read_ours unzip unzip -p ours.vyrz
read_ours bsdtar bsdtar -xOf ours.vyrz
read_ours 7z 7z x -so ours.vyrz
[[ $readers -gt 0 ]] || fail "nobody read our container"

python3 - << 'PYTHON'
import io, zipfile

document = open("a.vyr", "rb").read()

class Pipe(io.RawIOBase):
    """A target that can't seek, so that sums follow the data."""
    def __init__(self, file): self.file = file
    def writable(self): return True
    def write(self, data): return self.file.write(data)

def make(name, method=zipfile.ZIP_DEFLATED, level=None, pipe=False, comment=b"", prefix=b"", more=0, entry="b.vyr"):
    with open(name + ".vyrz", "wb") as file:
        file.write(prefix)
        with zipfile.ZipFile(Pipe(file) if pipe else file, "w", method, compresslevel=level) as archive:
            archive.writestr(entry, document)
            for i in range(more):
                archive.writestr(f"more/{i}.txt", "no document")
            archive.comment = comment

for label, method in (("stored", zipfile.ZIP_STORED), ("deflated", zipfile.ZIP_DEFLATED), ("bzip2", zipfile.ZIP_BZIP2)):
    make(label, method)
    make(label + "-piped", method, pipe=True)
    make(label + "-prefix", method, prefix=b"MZ" + bytes(70000))
    make(label + "-many", method, more=300, pipe=True, comment=b"c" * 65535)
for level in range(1, 10):
    make(f"level-{level}", level=level)
make("utf8-name", entry="ümlaut/文.vyr")
PYTHON
if command -v zip > /dev/null; then zip -q zip.vyrz a.vyr; zip -q - a.vyr > zip-piped.vyrz; fi
if command -v bsdtar > /dev/null; then bsdtar --format zip -cf bsdtar.vyrz a.vyr; fi
if command -v 7z > /dev/null; then 7z a -tzip 7z.zip a.vyr > 7z.log && mv 7z.zip 7z.vyrz; fi

count=0
for archive in *.vyrz; do
    "$vyr" convert "$archive" back.vyr && cmp back.vyr a.vyr || fail "$archive is not read"
    count=$((count + 1))
done
echo "$readers readers, $count containers"
[[ $failures -eq 0 && $count -gt 20 ]]
