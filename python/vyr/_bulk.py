# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The numbers of many colours at once, as arrays of numpy and as frames of pandas."""

from __future__ import annotations

from collections.abc import Iterable, Iterator
from importlib import import_module
from typing import TYPE_CHECKING, Any, NamedTuple, Union

from . import _vyr
from ._objects import Choice, Object, need_numpy, to_doubles
from .generated import ColorSetType, ColorSpaceChoice, ColorType, Document, PaletteType

if TYPE_CHECKING:
    from ._objects import Array, Numbers

Colors = Union[Document, PaletteType, ColorSetType, Iterable[ColorType]]

# The spectra that there are: the list of points and the columns of an entry.
POINTS = {
    "spectral": ("reflectance_points", ("Wavelength", "ReflectancePointType")),
    "emissive_spectral": ("emissive_spectral_points", ("Wavelength", "EmissiveSpectralPointType")),
}


class Spectra(NamedTuple):
    """Spectra with the same wavelengths."""

    names: list[str]  #: of the colours, a row each
    wavelengths: Array  #: in nanometres, m of them
    values: Array  #: n rows of m


class Values(NamedTuple):
    """Values of one kind."""

    names: list[str]  #: of the colours, a row each
    columns: tuple[str, ...]  #: the properties, such as ("l", "a", "b")
    values: Array  #: n rows


def places(where: Colors) -> Iterator[tuple[ColorType, ColorSetType | None, PaletteType | None]]:
    """Each colour with its colour set and palette, as far as they are known."""
    if isinstance(where, Document):
        yield from ((color, None, None) for color in where.colors)
        for palette in where.palettes:
            yield from places(palette)
    elif isinstance(where, PaletteType):
        for color_set in where.color_sets:
            yield from ((color, color_set, where) for color in color_set.colors)
    elif isinstance(where, ColorSetType):
        yield from ((color, where, None) for color in where.colors)
    else:
        yield from ((color, None, None) for color in where)


def colors(where: Colors) -> Iterator[ColorType]:
    """The colours of a document, a palette or a colour set, in their order. Those of records of quality control are not
    among them."""
    return (color for color, _, _ in places(where))


def all_colors(where: Colors) -> list[ColorType]:
    """The same as a list, made at once."""
    if isinstance(where, Document):
        return where.colors[:] + [color for palette in where.palettes for color in all_colors(palette)]
    if isinstance(where, PaletteType):
        return [color for color_set in where.color_sets for color in color_set.colors[:]]
    return where.colors[:] if isinstance(where, ColorSetType) else list(where)


def held(where: Colors, kind: str) -> tuple[list[str], list[Any]]:
    """All values of a kind with the names of their colours."""
    if kind not in ColorSpaceChoice.alternatives:
        raise ValueError(f"there is no kind {kind!r} of colour value; there are {', '.join(ColorSpaceChoice.alternatives)}")
    owners = all_colors(where)
    numbers, found = _vyr.held(owners, ColorType.color_spaces, getattr(ColorSpaceChoice, kind))
    return [owners[number].color_name for number in numbers], found


def spectra_groups(where: Colors, kind: str = "spectral") -> list[Spectra]:
    """The spectra of all colours in groups of the same wavelengths, in the order in which those first come."""
    numpy = need_numpy()
    if kind not in POINTS:
        raise ValueError(f"there is no kind {kind!r} of spectrum; there are {', '.join(POINTS)}")
    names, found = held(where, kind)
    if not found:
        return []
    name, columns = POINTS[kind]
    counts, *rows = _vyr.gather_points(found, getattr(type(found[0]), name), columns)
    wavelengths, values = (numpy.frombuffer(row) for row in rows)
    width = counts[0]
    if width and counts.count(width) == len(counts):
        grid = wavelengths.reshape(-1, width)
        if (grid == grid[0]).all():
            return [Spectra(names, grid[0].copy(), values.reshape(-1, width).copy())]
    groups: dict[bytes, list[int]] = {}
    starts = numpy.concatenate(([0], numpy.cumsum(counts)))
    for i in range(len(found)):
        groups.setdefault(wavelengths[starts[i] : starts[i + 1]].tobytes(), []).append(i)
    return [Spectra([names[i] for i in group], numpy.frombuffer(key).copy(),
                    numpy.stack([values[starts[i] : starts[i + 1]] for i in group])) for key, group in groups.items()]


def spectra(where: Colors, kind: str = "spectral") -> Spectra:
    """The spectra of all colours as one matrix. If they have not all the same wavelengths, raises a ValueError:
    `spectra_groups` has them then."""
    groups = spectra_groups(where, kind)
    if len(groups) > 1:
        raise ValueError(f"the spectra have {len(groups)} different sets of wavelengths; see spectra_groups")
    numpy = need_numpy()
    return groups[0] if groups else Spectra([], numpy.empty(0), numpy.empty((0, 0)))


def number_columns(kind: str) -> dict[str, _vyr.Property[Any, Any]]:
    """The numbers that every value of a kind has."""
    space = ColorSpaceChoice().__getattribute__(f"choose_{kind}")() if kind in ColorSpaceChoice.alternatives else None
    found = {name: item for name, item in (type(space).properties() if space is not None else {}).items()
             if item.shape == "value" and not item.is_optional and isinstance(getattr(space, name), float)}
    if not found:
        raise ValueError(f"there is no kind {kind!r} of colour value that is a row of numbers")
    return found


def values(where: Colors, kind: str) -> Values:
    """All values of a kind, "lab", "xyz", "srgb", "cmyk" and so on, as one matrix."""
    numpy = need_numpy()
    items = number_columns(kind)
    names, found = held(where, kind)
    data = numpy.frombuffer(_vyr.gather(found, tuple(items.values())))
    return Values(names, tuple(items), data.reshape(-1, len(items)).copy())


def set_values(where: Colors, kind: str, rows: Any) -> None:
    """Sets the numbers of a kind of all colours, a row each: of the first value of that kind, which a colour gets if it
    has none. If a number is refused, nothing changes."""
    items = number_columns(kind)
    targets = all_colors(where)
    if len(rows) != len(targets):
        raise ValueError(f"{len(rows)} rows are not one for each of {len(targets)} colours")
    given = [to_doubles(row) for row in rows]
    scratch = ColorSpaceChoice().__getattribute__(f"choose_{kind}")()
    for target in (False, True):
        for color, row in zip(targets, given):
            if len(row) != len(items):
                raise ValueError(f"a row has the numbers {', '.join(items)}")
            space = first_or_new(color, kind) if target else scratch
            for name, number in zip(items, row):
                setattr(space, name, float(number))


def set_spectra(where: Colors, wavelengths: Numbers, rows: Any, kind: str = "spectral") -> None:
    """Sets the spectra of all colours, a row each, in the same way."""
    targets = all_colors(where)
    if len(rows) != len(targets):
        raise ValueError(f"{len(rows)} rows are not one for each of {len(targets)} colours")
    scratch = ColorSpaceChoice().__getattribute__(f"choose_{kind}")()
    for target in (False, True):
        for color, row in zip(targets, rows):
            (first_or_new(color, kind) if target else scratch).set_arrays(wavelengths, row)


def first_or_new(color: ColorType, kind: str) -> Any:
    found = getattr(color.color_spaces, kind)
    return found if found is not None else getattr(color.color_spaces.add(), f"choose_{kind}")()


def specification(value: Object, color_set: ColorSetType | None, palette: PaletteType | None) -> Object | None:
    """The conditions of a value: its own, or those of the same kind that its colour set or its palette has."""
    name = next((name for name in value.properties() if name.startswith("color_space_specification_")), None)
    if name is None:
        return None
    own = getattr(value, name)
    if own is not None and not own.is_nil:
        return own  # type: ignore[no-any-return]
    for collection in (color_set, palette):
        defaults = collection.collection_color_space_specification if collection is not None else None
        found = getattr(defaults, name, None)
        if found is not None and not found.is_nil:
            return found  # type: ignore[no-any-return]
    return None


# Left out of the conditions: what tells of the specification itself.
NO_CONDITIONS = ("comments", "unique_id", "change_history", "custom_name", "custom_type_name")


def flat(conditions: Object, prefix: str = "") -> Iterator[tuple[str, Any]]:
    """The simple values of conditions, a name each."""
    for name, item in conditions.properties().items():
        value = getattr(conditions, name) if item.shape != "list" and item.kind is not str else None
        if value is None or name in NO_CONDITIONS:
            continue
        if isinstance(value, Choice):
            if isinstance(value.held, Object):
                yield from flat(value.held, f"{value.chosen}.")
            elif value.chosen is not None:
                yield value.chosen, value.held
        elif isinstance(value, Object):
            if not value.is_nil:
                yield from flat(value, f"{name}.")
        else:
            yield prefix.rstrip(".") if name == "value" and prefix else prefix + name, getattr(value, "text", value)


def conditions(value: Object, color_set: ColorSetType | None = None, palette: PaletteType | None = None) -> dict[str, Any]:
    """The conditions that a colour value holds under, such as {"illuminant": "Illuminant_D50", ...}: its own, or those
    that its colour set or palette states for all. Empty if nobody knows."""
    found = specification(value, color_set, palette)
    return dict(flat(found)) if found is not None else {}


def frame(where: Colors, kind: str) -> Any:
    """A DataFrame of pandas with a row for each value of a kind: the name of its colour as the index, its numbers, of a
    spectrum one for each wavelength, and its conditions."""
    try:
        pandas = import_module("pandas")
    except ImportError as error:
        raise ImportError("frames need pandas: install python3-pandas, or `pip install pandas`") from error
    items = () if kind in POINTS else tuple(number_columns(kind))
    names, rows = [], []
    for color, color_set, palette in places(where):
        for space in color.color_spaces:
            value = getattr(space, kind)
            if value is None:
                continue
            names.append(color.color_name)
            numbers = zip(*(row.tolist() for row in value.arrays())) if kind in POINTS else ((n, getattr(value, n)) for n in items)
            rows.append(dict(numbers) | conditions(value, color_set, palette))
    made = pandas.DataFrame(rows, index=pandas.Index(names, name="color_name"))
    return made if len(made.columns) else made.reindex(columns=list(items))
