# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""What follows from the model for the C++ side: order of definitions, includes, names, identities."""

from dataclasses import dataclass
from graphlib import CycleError, TopologicalSorter

from model import Class, Item, Model
from source import SchemaError

# Kinds of item whose object the class makes and ends itself: its type must be complete there.
BY_VALUE = ("child", "optional_child", "group")
WITHOUT_NAME = ("content", "group", "group_list", "any")


@dataclass(frozen=True)
class Topic:
    """One header and one source."""

    name: str
    classes: tuple  # each after those it needs complete
    header_needs: tuple  # topics whose headers the header includes
    source_needs: tuple  # topics whose headers the source includes besides its own


class Plan:
    def __init__(self, model: Model):
        self.model = model
        self.by_name = {made.name: made for made in model.classes}
        items = [item for made in model.classes for item in made.items]
        self.names = {kind: sorted({item.name for item in items if self.name_kind(item) == kind})
                      for kind in ("attribute", "element")}
        self.facets = [simple for simple in model.simple_types if simple.facets()]
        self.enumerations = {item.accessor: item.value for item in items if item.enumerated}
        self.enumeration_types = sorted(set(self.enumerations.values()), key=lambda simple: simple.name)
        self.topics = [self.topic(name) for name in model.topics]
        self.check_cycles()

    @staticmethod
    def name_kind(item: Item):
        """Whose name an item has in documents; None if it has none of its own."""
        return None if item.kind in WITHOUT_NAME else "attribute" if item.kind == "attribute" else "element"

    def base(self, made: Class):
        return self.by_name[made.base] if made.base else None

    def identity(self, made: Class):
        """The class whose identity text a class answers with, or None outside the type families."""
        while made is not None and not made.named:
            made = self.base(made)
        return made

    def table(self, made: Class):
        """The class whose table a class uses: wrappers add nothing to their type."""
        return self.base(made) if made.wrapper else made

    def table_base(self, made: Class):
        return None if made.derives_from_group else made.base

    def derived(self, made: Class):
        """The family members below a class, depth first in schema order."""
        found = []
        for other in self.model.classes:
            if other.named and other.base == made.name:
                found += [other, *self.derived(other)]
        return found

    def factory(self, made: Class):
        """What the factory of a class knows; empty where there's none."""
        below = self.derived(made) if made.named else []
        return below if not below or made.abstract else [made, *below]

    def content_item(self, made: Class):
        """The row of simple content that a class inherits, if it has none of its own."""
        base = self.base(made)
        while base is not None and not made.elements:
            if base.content == "simple" and base.elements:
                return base, base.elements[0]
            base = self.base(base)
        return None

    # Order

    def complete_types(self, made: Class):
        return [made.base] * bool(made.base) + [item.type for item in made.items if item.kind in BY_VALUE]

    def mentioned_types(self, made: Class):
        """All classes that the source of a class works with."""
        return self.complete_types(made) + [item.type for item in made.items if item.type] + \
            [known.name for known in self.factory(made)]

    def topic(self, name):
        members = [made for made in self.model.classes if made.topic == name]
        ordered = []

        def place(made, path):
            if made in ordered:
                return
            if made in path:
                raise SchemaError("vyr.xsd", 0, f"class {made.name} would contain itself")
            for needed in map(self.by_name.get, self.complete_types(made)):
                if needed.topic == name:
                    place(needed, [*path, made])
            ordered.append(made)

        for made in members:
            place(made, [])

        def topics_of(types):
            found = {self.by_name[t].topic for made in members for t in types(made)} - {name}
            return tuple(sorted(found))

        return Topic(name, tuple(ordered), topics_of(self.complete_types), topics_of(self.mentioned_types))

    def check_cycles(self):
        """Headers include each other as far as members by value ask for it; that must not go round."""
        try:
            TopologicalSorter({topic.name: topic.header_needs for topic in self.topics}).prepare()
        except CycleError as error:
            names = ", ".join(error.args[1])
            raise SchemaError("binding.toml", 0, f"topics {names} need each other's headers") from error
