# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Every property of every class against the schema: what it gives, takes and refuses."""

import ast
import base64
import datetime
import inspect
from collections.abc import MutableSequence
from pathlib import Path

import pytest
from conftest import ROOT
from model import read_model
from model_values import values_of
from plan import Plan
from print_python import is_optional, property_name

import vyr
import vyr.generated

PLAN = Plan(read_model(ROOT / "schema" / "vyr.xsd", ROOT / "schema" / "binding.toml"))
CLASSES = [made for made in PLAN.model.classes if not made.wrapper]
ITEMS = [(made, item) for made in CLASSES for item in made.items if item.accessor]


def python_class(made):
    return getattr(vyr, made.package_name)


def owner_of(made):
    """An object of a class; of an abstract one, one of a class derived from it."""
    return python_class(PLAN.derived(made)[0] if made.abstract else made)()


def titled(pairs):
    return [pytest.param(*pair, id=f"{pair[0].name}.{pair[1].accessor}") for pair in pairs]


def to_python(item, text):
    """A value of the schema's table as the package takes and gives it."""
    kind = "enumerated" if item.enumerated else item.value.value
    if kind == "enumerated":
        members = list(getattr(vyr, item.value.name))
        return members[int(text) - 1] if 0 < int(text) <= len(members) else int(text)
    if kind == "datetime":
        try:
            return datetime.datetime.fromisoformat(text)
        except ValueError:
            return text
    return {"boolean": lambda: text == "True", "binary": lambda: base64.b64decode(text), "text": lambda: text,
            "number": lambda: float(text)}.get(kind, lambda: int(text))()


def good_and_bad(item):
    good, bad = values_of(item.value)
    pairs = [entry.rpartition("=")[::2] for entry in bad]
    return [to_python(item, text) for text in good], [(to_python(item, text), int(code)) for text, code in pairs]


def test_all_classes_and_enumerations_are_there():
    for made in PLAN.model.classes:
        kind = python_class(made)
        assert vyr.schema_name(kind) == made.name and kind.__doc__.split() == made.doc.split()
        base = PLAN.by_name[made.base].package_name if made.base and not made.derives_from_group else None
        assert base is None or issubclass(kind, getattr(vyr, base))
        if made.abstract or (made.wrapper and not made.is_document):
            with pytest.raises(TypeError):
                kind()
        else:
            assert type(kind().copy()) is kind
    for simple in PLAN.enumerations.values():
        members = list(getattr(vyr, simple.name))
        assert [member.text for member in members] == list(simple.enumeration)
        assert [int(member) for member in members] == list(range(1, len(members) + 1))


@pytest.mark.parametrize("made, item", titled([(c, i) for c, i in ITEMS if i.value and not i.repeats]))
def test_value(made, item):
    owner, name = owner_of(made), property_name(made, item)
    described = getattr(python_class(made), name)
    assert vyr.schema_name(described) == item.accessor and described.__doc__ == item.doc
    is_missing = item.presence or item.kind == "alternative" or item.enumerated and item.initial is None
    before = getattr(owner, name)
    assert (before is None) if is_missing else (before is not None)
    good, bad = good_and_bad(item)
    for value in good:
        setattr(owner, name, value)
        got = getattr(owner, name)
        assert got == value and type(got) is type(value)
        assert getattr(owner.copy(), name) == value
        for refused, code in bad:
            with pytest.raises(vyr.FormatError) as caught:
                setattr(owner, name, refused)
            assert caught.value.code == code and getattr(owner, name) == value
        with pytest.raises(TypeError):
            setattr(owner, name, [value])
        assert getattr(owner, name) == value
    if item.enumerated:
        setattr(owner, name, good[-1].text)
        assert getattr(owner, name) is good[-1]
        other = vyr.ObserverKind if item.value.name != "ObserverKind" else vyr.BackingKind
        with pytest.raises(TypeError):
            setattr(owner, name, list(other)[0])
    if item.kind == "alternative":
        assert owner.chosen == name and owner.held == getattr(owner, name)
    elif is_optional(item):
        setattr(owner, name, None)
        assert getattr(owner, name) is None
    else:
        with pytest.raises(TypeError):
            setattr(owner, name, None)


@pytest.mark.parametrize("made, item", titled([(c, i) for c, i in ITEMS if i.type and not i.repeats]))
def test_object(made, item):
    owner, name, kind = owner_of(made), property_name(made, item), PLAN.by_name[item.type]
    if getattr(owner, name) is not None:  # some are there from the start
        owner.reset()
    before = getattr(owner, name)
    verb = "choose" if item.kind == "alternative" else "create"
    if kind.abstract:
        given = python_class(PLAN.derived(kind)[0])()
        setattr(owner, name, given)
        assert type(getattr(owner, name)) is type(given)
    else:
        child = getattr(owner, f"{verb}_{name}")()
        assert type(child) is python_class(kind) and getattr(owner, name) is child
        assert before is None or before is child
        setattr(owner, name, python_class(kind)())
        assert not child.is_alive and getattr(owner, name) is not child
        with pytest.raises(vyr.RemovedError):
            child.is_complete
    # The class of a known alternative of a derived class comes back.
    for derived in PLAN.factory(kind) if item.kind == "alternative" else ():
        if not derived.abstract:
            setattr(owner, name, python_class(derived)())
            assert type(getattr(owner, name)) is python_class(derived)
            assert type(getattr(owner.copy(), name)) is python_class(derived)
    held = getattr(owner, name)
    with pytest.raises(TypeError):
        setattr(owner, name, vyr.Person() if item.type != "Person" else vyr.Tag())
    assert held.is_alive
    if item.presence:
        setattr(owner, name, None)
        assert getattr(owner, name) is None and not held.is_alive


@pytest.mark.parametrize("made, item", titled([(c, i) for c, i in ITEMS if i.repeats]))
def test_list(made, item):
    owner, name = owner_of(made), property_name(made, item)
    entries = getattr(owner, name)
    assert isinstance(entries, MutableSequence) and len(entries) == 0 and not list(entries)
    if item.type:
        kind = python_class(PLAN.by_name[item.type])
        first = entries.add()
        assert type(first) is kind and entries[0] is first and entries[-1] is first
        entries.append(kind())
        entries.insert(0, kind())
        assert [entry.is_alive for entry in entries] == [True] * 3 and entries[1] is first
        del entries[0]
        assert entries[0] is first and len(entries) == 2
        entries[0] = kind()
        assert not first.is_alive and len(entries) == 2
        with pytest.raises(TypeError):
            entries.append(1)
        setattr(owner, name, [kind() for _ in range(5)])
    else:
        values = [f"<a>{i}</a>" for i in range(5)] if item.kind == "any" else good_and_bad(item)[0] * 3
        setattr(owner, name, values)
        assert entries == values and entries != values[:-1] and entries != [*values, values[0]]
        entries[1:3] = values[:1]
        assert entries == [values[0], values[0], *values[3:]]
        with pytest.raises(TypeError):
            entries.extend([values[0], 1])
        assert len(entries) == len(values) - 1
        entries.reverse()
        assert entries == [values[0], values[0], *values[3:]][::-1]
    assert len(getattr(owner.copy(), name)) == len(entries)
    last = entries[-1]
    entries.clear()
    assert len(entries) == 0
    assert not item.type or not last.is_alive
    with pytest.raises(IndexError):
        entries[0]


@pytest.mark.parametrize("made", [c for c in CLASSES if c.nillable], ids=lambda c: c.name)
def test_nil(made):
    owner = python_class(made)()
    assert not owner.is_nil
    owner.set_nil()
    assert owner.is_nil and owner.copy().is_nil
    found = PLAN.content_item(made)
    content = found[1] if found else next((i for i in made.items if i.kind == "content"), None)
    if content:
        owner.value = good_and_bad(content)[0][0]
        assert not owner.is_nil
        owner.set_nil()
    owner.reset()
    assert not owner.is_nil


def test_columns():
    assert [made.name for made in CLASSES if any(item.columns for item in made.items)]
    for made, item in ITEMS:
        if not item.columns:
            continue
        owner = python_class(made)()
        owner.set_arrays([400.0, 410.0], [0.25, 0.5])
        points = getattr(owner, property_name(made, item))
        assert [(p.wavelength, p.value) for p in points] == [(400.0, 0.25), (410.0, 0.5)]
        with pytest.raises(vyr.FormatError):
            owner.set_arrays([400.0, -1.0], [0.25, 0.5])
        with pytest.raises(ValueError):
            owner.set_arrays([400.0], [0.25, 0.5])
        owner.set_arrays(values=[0.25, 0.75], wavelengths=[400.0, 410.0])
        for wrong in ({"values": [0.5]}, {"wavelengths": [400.0], "numbers": [0.5]}):
            with pytest.raises(TypeError):
                owner.set_arrays(**wrong)
        with pytest.raises(TypeError):
            owner.set_arrays([400.0])
        assert points[1].value == 0.75 and len(points) == 2 and points[0].value == 0.25


def test_stubs_say_what_is_there():
    """Each class has what its stub declares and nothing besides, and what the stub says can be None is so."""
    folder = Path(inspect.getfile(vyr)).parent / "generated"
    stubs = {}
    for topic in PLAN.topics:
        tree = ast.parse((folder / f"{topic.name}.pyi").read_text(encoding="utf-8"))
        stubs |= {node.name: node for node in tree.body if isinstance(node, ast.ClassDef)}
    for made in PLAN.model.classes:
        stub = stubs[made.package_name].body
        # Property[what reading gives, what setting takes]
        types = {node.target.id: [ast.unparse(kind) for kind in node.annotation.slice.elts]
                 for node in stub if isinstance(node, ast.AnnAssign)}
        methods = {node.name for node in stub if isinstance(node, ast.FunctionDef)} - {"__init__", "chosen"}
        own = {name for name in vars(python_class(made)) if not name.startswith("_")}
        assert own - {"schema_name", "abstract", "alternatives"} == methods | set(types)
        for name, (get, take) in types.items():
            described = getattr(python_class(made), name)
            assert get.endswith(" | None") == (getattr(owner_of(made), name) is None), f"{made.name}.{name}"
            assert take.endswith(" | None") == described.is_optional, f"{made.name}.{name}"
