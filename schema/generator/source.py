# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Source files of the generator with their line numbers: XML as a plain tree, and where a TOML key stands."""

import re
import tomllib
import xml.parsers.expat
from dataclasses import dataclass, field
from pathlib import Path

SCHEMA_NAMESPACE = "http://www.w3.org/2001/XMLSchema"


class SchemaError(Exception):
    """A construct that the generator doesn't know, or a line that can't be right."""

    def __init__(self, file, line, text):
        super().__init__(f"{file}:{line}: {text}")


@dataclass
class Node:
    """An element of the schema: `tag` without its prefix, attributes as written."""

    file: str
    line: int
    tag: str
    attributes: dict
    children: list = field(default_factory=list)
    text: str = ""

    def error(self, text):
        return SchemaError(self.file, self.line, text)

    def get(self, name, default=None):
        return self.attributes.get(name, default)

    def check(self, attributes, children):
        """Refuses attributes and children outside the two lists, each a text of names."""
        for name in self.attributes:
            if name not in attributes.split():
                raise self.error(f"attribute '{name}' of xs:{self.tag} is not supported here")
        for child in self.children:
            if child.tag not in children.split():
                raise child.error(f"xs:{child.tag} is not supported in xs:{self.tag}")

    def all(self, *tags):
        return [child for child in self.children if child.tag in tags]

    def only(self, *tags):
        """The single child with one of the tags, or None."""
        found = self.all(*tags)
        if len(found) > 1:
            raise found[1].error(f"a second xs:{found[1].tag} is not supported in xs:{self.tag}")
        return found[0] if found else None


def read_xml(path):
    """The root node of a schema file; elements of other namespaces are refused."""
    parser = xml.parsers.expat.ParserCreate(namespace_separator=" ")
    root = Node(path.name, 0, "", {})
    stack = [root]

    def start(name, attributes):
        namespace, _, tag = name.rpartition(" ")
        node = Node(path.name, parser.CurrentLineNumber, tag, attributes)
        if namespace != SCHEMA_NAMESPACE:
            raise node.error(f"element {name} is not of XML Schema")
        stack[-1].children.append(node)
        stack.append(node)

    def text(data):
        stack[-1].text += data

    parser.StartElementHandler = start
    parser.EndElementHandler = lambda name: stack.pop()
    parser.CharacterDataHandler = text
    try:
        parser.Parse(path.read_bytes(), True)
    except xml.parsers.expat.ExpatError as error:
        raise SchemaError(path.name, error.lineno, xml.parsers.expat.errors.messages[error.code]) from error
    return root.children[0]


class Overlay:
    """The binding overlay: a TOML file of which every line must be used."""

    def __init__(self, path: Path):
        self.file = path.name
        text = path.read_text(encoding="utf-8")
        self.tables = tomllib.loads(text)
        self.lines = {}
        table = ""
        for number, line in enumerate(text.splitlines(), 1):
            if match := re.match(r"\[(.+)\]\s*$", line):
                table = match[1].replace('"', "")
                self.lines[table] = number
            elif match := re.match(r'("[^"]+"|[\w-]+)\s*=', line):
                self.lines[f"{table}.{match[1].strip(chr(34))}"] = number
        self.unused = {(table, key) for table, keys in self.tables.items() for key in keys}

    def take(self, table, key, default=None):
        """The value of a key, which counts as used from then on."""
        self.unused.discard((table, key))
        return self.tables.get(table, {}).get(key, default)

    def table(self, name):
        return self.tables.get(name, {})

    def error(self, table, key, text):
        return SchemaError(self.file, self.lines.get(f"{table}.{key}", 0), text)

    def check_all_used(self):
        for table, key in sorted(self.unused, key=lambda unused: self.lines.get(".".join(unused), 0)):
            raise self.error(table, key, f"[{table}] {key} matches nothing in the schema")
