# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The numbers of many colours at once, as arrays of numpy and as frames of pandas."""

from __future__ import annotations

from collections.abc import Callable, Iterable, Iterator
from typing import TYPE_CHECKING, Any, NamedTuple, Union

from . import _vyr
from ._objects import Choice, Object, need, need_numpy, per_class, to_doubles
from .generated import ColorSetType, ColorSpaceChoice, ColorType, Document, PaletteType

if TYPE_CHECKING:
    from ._objects import Array, Numbers

Colors = Union[Document, PaletteType, ColorSetType, Iterable[ColorType]]

SPECTRA = ("spectral", "emissive_spectral")


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


def rows_of(where: Colors) -> Iterator[tuple[Iterable[ColorType], ColorSetType | None, PaletteType | None]]:
    """Each row of colours with its colour set and palette, as far as they are known."""
    if isinstance(where, Document):
        yield where.colors, None, None
        for palette in where.palettes:
            yield from rows_of(palette)
    elif isinstance(where, PaletteType):
        yield from ((color_set.colors, color_set, where) for color_set in where.color_sets)
    elif isinstance(where, ColorSetType):
        yield where.colors, where, None
    else:
        yield where, None, None


def colors(where: Colors) -> Iterator[ColorType]:
    """The colours of a document, a palette or a colour set, in their order. Those of records of quality control are not
    among them."""
    return (color for row, _, _ in rows_of(where) for color in row)


def check_kind(kind: str, known: Iterable[str], what: str) -> None:
    if kind not in known:
        raise ValueError(f"there is no kind {kind!r} of {what}; there are {', '.join(known)}")


def choose(space: ColorSpaceChoice, kind: str) -> Any:
    """A new value of a kind."""
    check_kind(kind, ColorSpaceChoice.alternatives, "colour value")
    return getattr(space, f"choose_{kind}")()


def held(where: Colors, kind: str) -> tuple[list[str], list[Any]]:
    """All values of a kind with the names of their colours."""
    check_kind(kind, ColorSpaceChoice.alternatives, "colour value")
    owners = list(colors(where))
    numbers, found = _vyr.held(owners, ColorType.color_spaces, getattr(ColorSpaceChoice, kind))
    return [owners[number].color_name for number in numbers], found


def points(found: list[Any], kind: str) -> Any:
    """Of spectra: how many points each has, and the wavelengths and the values of all."""
    return type(choose(ColorSpaceChoice(), kind))._gather(found)


def spectra_groups(where: Colors, kind: str = "spectral") -> list[Spectra]:
    """The spectra of all colours in groups of the same wavelengths, in the order in which those first come."""
    check_kind(kind, SPECTRA, "spectrum")
    numpy = need_numpy()
    names, found = held(where, kind)
    if not found:
        return []
    counts, wavelengths, values = points(found, kind)
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
    space = choose(ColorSpaceChoice(), kind)
    found = {name: item for name, item in space.properties().items()
             if item.shape == "value" and not item.is_optional and isinstance(getattr(space, name), float)}
    if not found:
        raise ValueError(f"there is no kind {kind!r} of colour value that is a row of numbers")
    return found


def numbers(found: list[Any], kind: str) -> tuple[tuple[str, ...], Any]:
    """The names of the numbers of a kind, and a row of them for each value."""
    items = number_columns(kind)
    data = need_numpy().frombuffer(_vyr.gather(found, tuple(items.values())))
    return tuple(items), data.reshape(-1, len(items)).copy()


def values(where: Colors, kind: str) -> Values:
    """All values of a kind, "lab", "xyz", "srgb", "cmyk" and so on, as one matrix."""
    names, found = held(where, kind)
    return Values(names, *numbers(found, kind))


def first_or_new(color: ColorType, kind: str) -> Any:
    found = getattr(color.color_spaces, kind)
    return found if found is not None else choose(color.color_spaces.add(), kind)


def set_rows(where: Colors, kind: str, rows: Any, store: Callable[[Any, Any], Any]) -> None:
    """Stores a row for each colour, once all rows were stored elsewhere without one being refused."""
    targets = list(colors(where))
    if len(rows) != len(targets):
        raise ValueError(f"{len(rows)} rows are not one for each of {len(targets)} colours")
    scratch = choose(ColorSpaceChoice(), kind)
    for row in rows:
        store(scratch, row)
    for color, row in zip(targets, rows):
        store(first_or_new(color, kind), row)


def set_values(where: Colors, kind: str, rows: Any) -> None:
    """Sets the numbers of a kind of all colours, a row each: of the first value of that kind, which a colour gets if it
    has none. If a number is refused, nothing changes."""
    items = number_columns(kind)

    def store(space: Any, row: Any) -> None:
        if len(row) != len(items):
            raise ValueError(f"a row has the numbers {', '.join(items)}")
        for name, number in zip(items, row):
            setattr(space, name, number)

    set_rows(where, kind, [to_doubles(row) for row in rows], store)


def set_spectra(where: Colors, wavelengths: Numbers, rows: Any, kind: str = "spectral") -> None:
    """Sets the spectra of all colours, a row each, in the same way."""
    check_kind(kind, SPECTRA, "spectrum")
    set_rows(where, kind, rows, lambda space, row: space.set_arrays(wavelengths, row))


@per_class
def name_of_specification(kind: type[Object]) -> str | None:
    """The property of a class of values that has its conditions."""
    return next((name for name in kind.properties() if name.startswith("color_space_specification_")), None)


def specification(value: Object, color_set: ColorSetType | None, palette: PaletteType | None) -> Object | None:
    """The conditions of a value: its own, or those of the same kind that its colour set or its palette has."""
    name = name_of_specification(type(value))
    if name is None:
        return None
    collections = (each.collection_color_space_specification for each in (color_set, palette) if each is not None)
    for holder in (value, *collections):
        found = getattr(holder, name, None)
        if found is not None and not found.is_nil:
            return found  # type: ignore[no-any-return]
    return None


# Left out of the conditions: what tells of the specification itself.
NO_CONDITIONS = ("comments", "unique_id", "change_history", "custom_name", "custom_type_name")


@per_class
def names_of_conditions(kind: type[Object]) -> tuple[str, ...]:
    return tuple(name for name, item in kind.properties().items()
                 if item.shape != "list" and item.kind is not str and name not in NO_CONDITIONS)


def flat(conditions: Object, prefix: str = "") -> Iterator[tuple[str, Any]]:
    """The simple values of conditions, a name each."""
    for name in names_of_conditions(type(conditions)):
        value = getattr(conditions, name)
        if value is None:
            continue
        if isinstance(value, Choice):
            chosen, held = value.chosen, value.held
            if isinstance(held, Object):
                yield from flat(held, f"{chosen}.")
            elif chosen is not None:
                yield chosen, held
        elif isinstance(value, Object):
            if not value.is_nil:
                yield from flat(value, f"{name}.")
        else:
            yield prefix.rstrip(".") if name == "value" and prefix else prefix + name, getattr(value, "text", value)


def conditions(
    value: Object, color_set: ColorSetType | None = None, palette: PaletteType | None = None
) -> dict[str, Any]:
    """The conditions that a colour value holds under, such as {"illuminant": "Illuminant_D50", ...}: its own, or those
    that its colour set or palette states for all. Empty if nobody knows."""
    found = specification(value, color_set, palette)
    return dict(flat(found)) if found is not None else {}


def points_by_wavelength(found: list[Any], kind: str) -> tuple[list[float], Any]:
    """The wavelengths that any of the spectra has, from the shortest on, and a row for each spectrum: NaN where it has
    none."""
    numpy = need_numpy()
    counts, wavelengths, values = points(found, kind)
    columns, places = numpy.unique(wavelengths, return_inverse=True)
    matrix = numpy.full((len(found), len(columns)), numpy.nan)
    matrix[numpy.repeat(numpy.arange(len(found)), counts), places] = values
    return columns.tolist(), matrix


def frame(where: Colors, kind: str) -> Any:
    """A DataFrame of pandas with a row for each value of a kind: the name of its colour as the index, its numbers, of a
    spectrum one for each wavelength, and its conditions."""
    pandas = need("pandas", "frames")
    names: list[str] = []
    found: list[Any] = []
    stated: list[dict[str, Any]] = []
    for row, color_set, palette in rows_of(where):
        row_names, row_found = held(row, kind)
        names += row_names
        found += row_found
        stated += [conditions(value, color_set, palette) for value in row_found]
    columns, matrix = points_by_wavelength(found, kind) if kind in SPECTRA else numbers(found, kind)
    index = pandas.Index(names, name="color_name")
    parts = [pandas.DataFrame(matrix, index, columns)]
    if any(stated):
        parts.append(pandas.DataFrame(stated, index))
    return pandas.concat(parts, axis=1)
