# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""model.txt: the whole format, one line per field, so that a change of the schema can be reviewed as a diff."""

import re


def class_line(plan, made):
    words = ["class", made.name]
    if made.base:
        words += [":", made.base]
    words.append(made.content)
    for word in ("abstract", "nillable", "local", "inline", "wrapper", "may_be_empty"):
        if getattr(made, word):
            words.append(word)
    words.append(f"reported as '{made.qualified_name}'")
    if made.element:
        words.append(f"{'document' if made.is_document else 'head'} {made.element}")
    if identity := plan.identity(made):
        words.append(f"id {identity.name}")
    return " ".join(words)


def item_line(made, item):
    occurs = "one of" if item.kind == "alternative" else f"{item.minimum}..{'n' if item.repeats else '1'}"
    words = [f"{made.name}.{item.name or item.accessor}", item.kind,
             item.type or (item.value.name if item.value else "markup"), occurs, "+".join(item.use) or "-"]
    if item.value:
        words.append(item.value.value)
    if item.presence:
        words.append("presence")
    if item is made.name_item:
        words.append("names")
    if item.initial is not None:
        words.append(f"initially {item.initial}")
    return "    " + "  ".join(words)


def print_model(plan):
    lines = ["# The document format, one line per class, field and simple type. Made by schema/generator/generate.py.",
             f"namespace {plan.model.namespace}", ""]
    for simple in sorted(plan.facets, key=lambda s: s.name):
        lines.append(f"type {simple.name} {simple.value}{' collapsed' if simple.collapse else ''}: {simple.facets()}")
    for topic in plan.topics:
        lines += ["", f"topic {topic.name}"]
        for made in topic.classes:
            lines.append(class_line(plan, made))
            lines += [item_line(made, item) for item in made.items]
            if known := plan.factory(made):
                lines.append("    makes " + " ".join(other.name for other in known))
    return re.sub(r" +$", "", "\n".join(lines), flags=re.M) + "\n"
