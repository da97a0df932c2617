# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""vyr.schema.json: the format as the JSON that the command prints and reads, as a JSON Schema."""

import json

from source import SchemaError

OWN_KEYS = ("value", "any", "xsi:type", "xsi:nil")
INTEGERS = ("int32", "uint32", "uint8")


def bounds(simple):
    found = {}
    for limit, name, exclusive in ((simple.minimum, "minimum", simple.minimum_exclusive),
                                   (simple.maximum, "maximum", simple.maximum_exclusive)):
        if limit is not None:
            number = float(limit)
            key = f"exclusive{name.capitalize()}" if exclusive else name
            found[key] = int(number) if number.is_integer() else number
    return found


def simple_schema(simple):
    if simple.value == "boolean":
        return {"type": "boolean"}
    if simple.value in INTEGERS:
        return {"type": "integer"} | bounds(simple)
    if simple.value == "number":
        odd = ["NaN"] + ["INF"] * (simple.maximum is None) + ["-INF"] * (simple.minimum is None)
        return {"anyOf": [{"type": "number"} | bounds(simple), {"enum": odd}]}
    if simple.enumeration:
        return {"enum": list(simple.enumeration)}
    schema = {"type": "string"}
    if simple.value == "binary":
        schema["contentEncoding"] = "base64"
    if simple.minimum_length:
        schema["minLength"] = simple.minimum_length
    if simple.maximum_length is not None:
        schema["maxLength"] = simple.maximum_length
    if simple.pattern is not None:
        schema["pattern"] = f"^({simple.pattern})$"
    return schema


class Printer:
    def __init__(self, plan):
        self.plan = plan

    def items(self, made):
        """Attributes first, the base's before the class's own; so are elements."""
        line = [made]
        while base := self.plan.table_base(line[0]):
            line.insert(0, self.plan.by_name[base])
        return [item for one in line for item in one.attributes] + [item for one in line for item in one.elements]

    def value(self, item):
        """One value of an item."""
        if item.kind == "marker":
            return {"const": True}
        if item.kind == "any":
            return {"type": "string"}
        if item.kind == "group_list":
            members = self.plan.by_name[item.type].elements
            return {"type": "object", "properties": {member.name: self.value(member) for member in members},
                    "additionalProperties": False, "minProperties": 1, "maxProperties": 1}
        if item.type is None:
            return simple_schema(item.value)
        made = self.plan.table(self.plan.by_name[item.type])
        kinds = [made.name, *(other.name for other in self.plan.factory(made) if other.name != made.name)]
        references = [{"$ref": f"#/$defs/{name}"} for name in kinds]
        return references[0] if len(references) == 1 else {"anyOf": references}

    def members(self, made):
        """Key -> schema, and what must be there: alternatives of keys."""
        properties, required = {}, []
        for item in self.items(made):
            is_demanded = "demanded" in item.use or item.kind == "group" and item.minimum > 0 and "asked" in item.use
            # The members of a group stand in its place.
            places = self.plan.by_name[item.type].elements if item.kind == "group" else [item]
            keys = [{"content": "value", "any": "any"}.get(place.kind, place.name) for place in places]
            for key, place in zip(keys, places):
                if key in properties or key in OWN_KEYS and key not in ("value", "any"):
                    raise SchemaError("vyr.xsd", 0, f"{made.name} would have two members {key} in JSON")
                schema = self.value(place)
                if place.repeats:
                    schema = {"type": "array", "items": schema} | ({"minItems": 1} if is_demanded else {})
                properties[key] = schema | ({"description": place.doc} if place.doc else {})
            if is_demanded and item.kind != "alternative":
                required.append(keys)
        return properties, required

    def definition(self, made):
        items = self.items(made)
        if [item.kind for item in items] == ["content"]:
            schema = simple_schema(items[0].value)
            return {"anyOf": [schema, {"type": "null"}]} if made.nillable else schema
        properties, required = self.members(made)
        alone = sorted(keys[0] for keys in required if len(keys) == 1)
        schema = {"type": "object", "properties": properties, "additionalProperties": False}
        if self.plan.identity(made):
            properties["xsi:type"] = {"type": "string"}
        if alone:
            schema["required"] = alone
        choices = [keys for keys in required if len(keys) > 1]
        if made.content == "choice":
            choices.append([item.name for item in items if item.kind == "alternative"])
        if choices:
            schema["allOf"] = [{"oneOf": [{"required": [key]} for key in keys]} for keys in choices]
        if made.nillable:
            nil = {item.name: properties[item.name] for item in items if item.kind == "attribute"}
            empty = {"type": "object", "properties": nil | {"xsi:nil": {"const": True}, "xsi:type": {"type": "string"}},
                     "required": ["xsi:nil"], "additionalProperties": False}
            schema = {"anyOf": [{"type": "null"}, empty, schema]}
        return schema


def print_json_schema(plan):
    printer = Printer(plan)
    root = next(made for made in plan.model.classes if made.is_document and made.name == made.element == "Vyr")
    wanted, definitions = [root.name], {}
    while wanted:
        made = plan.by_name[wanted.pop()]
        if made.name in definitions:
            continue
        definitions[made.name] = {"description": made.doc} | printer.definition(made)
        text = json.dumps(definitions[made.name])
        wanted += [part.split('"')[0] for part in text.split("#/$defs/")[1:]]
    schema = {
        "$schema": "https://json-schema.org/draft/2020-12/schema",
        "$id": f"{plan.model.namespace}/vyr.schema.json",
        "$comment": "Made by schema/generator/generate.py from schema/vyr.xsd. Change that instead.",
        "title": "A colour-data document as JSON",
        "$ref": f"#/$defs/{root.name}",
        "$defs": {name: definitions[name] for name in sorted(definitions)},
    }
    return json.dumps(schema, indent=1, ensure_ascii=False) + "\n"
