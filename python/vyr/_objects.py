# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""What the classes of the format share: objects, choices and lists."""

from __future__ import annotations

from array import array
from collections.abc import Callable, Iterable, Iterator, Mapping, MutableSequence, Sequence
from functools import cache
from importlib import import_module
from inspect import Parameter, Signature
from types import MappingProxyType
from typing import TYPE_CHECKING, Any, TypeVar, Union, overload

from . import _vyr
from ._errors import FormatError, RemovedError
from ._times import read_time, write_time

if TYPE_CHECKING:
    from datetime import datetime

    import numpy as np
    import numpy.typing as npt

    Array = npt.NDArray[np.float64]
    Numbers = Union[npt.NDArray[Any], Sequence[float]]

T = TypeVar("T")
O = TypeVar("O", bound="Object")


class Object(_vyr.Object):
    """An object of a document, or one that stands on its own.

    The same part is always the same object. A part that was removed raises a RemovedError when it is used. An object
    and its parts belong to one thread at a time, for reading too.
    """

    __slots__ = ()
    schema_name: str

    def __init__(self, **values: Any) -> None:
        if "abstract" in vars(type(self)):
            raise TypeError(f"{type(self).__name__} has no objects of its own")
        set_all(self, values)

    def __copy__(self: O) -> O:
        return self.copy()

    def __deepcopy__(self: O, memory: object) -> O:
        return self.copy()

    @classmethod
    def properties(cls) -> Mapping[str, _vyr.Property[Any, Any]]:
        """The properties of the class by name, those of its bases first."""
        return _properties(cls)

    def __repr__(self) -> str:
        if not self.is_alive:
            return f"<{type(self).__name__}, removed>"
        parts = ["nil"] if self.is_nil else []
        for name, item in self.properties().items():
            if item.shape == "object" or item.kind is str:
                continue
            if item.shape == "list":
                size = len(getattr(self, name))
                parts += [f"{name}=[{size}]"] if size else []
                continue
            value = read(self, name)
            parts += [f"{name}={value!r}"] if value not in (None, "") else []
        return f"{type(self).__name__}({', '.join(parts)})"

    def _repr_html_(self) -> str:
        from ._html import to_html

        return to_html(self)


def per_class(function: Callable[[type[Object]], T]) -> Callable[[type[Object]], T]:
    """Remembers what a function says of a class. Checkers take classes for what can't be hashed, and so refuse `cache`."""
    remembering: Callable[..., T] = cache(function)
    return remembering


@per_class
def _properties(kind: type[Object]) -> Mapping[str, _vyr.Property[Any, Any]]:
    found: dict[str, _vyr.Property[Any, Any]] = {}
    for base in reversed(kind.__mro__):
        found |= {name: value for name, value in vars(base).items() if isinstance(value, _vyr.Property)}
    return MappingProxyType(found)


def set_all(instance: object, values: dict[str, Any]) -> None:
    for name, value in values.items():
        if not isinstance(getattr(type(instance), name, None), _vyr.Property):
            raise TypeError(f"{type(instance).__name__} has no property {name}")
        setattr(instance, name, value)


def read(instance: Object, name: str) -> Any:
    """A value; the text of a time that Python can't hold."""
    try:
        return getattr(instance, name)
    except ValueError:
        return getattr(instance, f"{name}_text")


class Choice(Object):
    """One of several alternatives: the property of each is None unless it is held, and setting one chooses it."""

    __slots__ = ()
    alternatives: tuple[str, ...] = ()

    @property
    def chosen(self) -> Any:
        """The name of the alternative that is held; None if none was chosen."""
        number = _vyr.chosen(self)
        return self.alternatives[number] if number >= 0 else None

    @property
    def held(self) -> Any:
        """What is held; None if nothing was chosen."""
        chosen = self.chosen
        return None if chosen is None else getattr(self, chosen)

    def __repr__(self) -> str:
        return f"{type(self).__name__}({self.chosen}={self.held!r})" if self.is_alive else super().__repr__()


def _creator(item: _vyr.Property[Any, Any]) -> Callable[..., Any]:
    """The method that makes an object of its owner."""

    def create(self: Object, /, **values: Any) -> Any:
        made = item.create(self)
        set_all(made, values)
        return made

    return create


class List(_vyr.List, MutableSequence[T]):
    """The entries of an element that repeats. What is put into it is copied; what is removed is gone."""

    __slots__ = ()

    if TYPE_CHECKING:

        @overload
        def __getitem__(self, index: int) -> T: ...
        @overload
        def __getitem__(self, index: slice) -> list[T]: ...
        def __getitem__(self, index: Any) -> Any: ...
        def __setitem__(self, index: Any, value: Any) -> None: ...
        def __delitem__(self, index: Any) -> None: ...
        def __iter__(self) -> Iterator[T]: ...
        def insert(self, index: int, value: Any) -> None: ...

    def add(self, **values: Any) -> T:
        """A new entry at the end, with properties of it."""
        made: Any = self._add()
        try:
            set_all(made, values)
        except BaseException:
            if made.is_alive:
                self.remove(made)
            raise
        return made  # type: ignore[no-any-return]

    def clear(self) -> None:
        del self[:]

    def extend(self, values: Iterable[Any]) -> None:
        """Appends copies of values: of all, or, if one is refused, of none."""
        self[len(self) :] = values

    def reverse(self) -> None:
        self[:] = [entry.copy() if isinstance(entry, _vyr.Object) else entry for entry in self[::-1]]

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, (List, list, tuple)):
            return NotImplemented
        return len(self) == len(other) and all(mine == its for mine, its in zip(self, other))

    __hash__ = None  # type: ignore[assignment]

    def __repr__(self) -> str:
        shown = [repr(entry) for entry in self[:3]]
        more = [f"... ({len(self)} entries)"] if len(self) > len(shown) else []
        return f"[{', '.join(shown + more)}]"


class ChoiceList(List[T]):
    """A list of choices, which takes objects of the alternatives as well: `color.color_spaces.append(lab)`."""

    __slots__ = ()

    if TYPE_CHECKING:

        def append(self, value: T | Object) -> None: ...


class TimeList(List["datetime"]):
    """A list of times, which takes texts too."""

    __slots__ = ()

    @property
    def texts(self) -> list[str]:
        """The times as the document writes them: some can't be held by a datetime."""
        return self._texts

    if TYPE_CHECKING:

        def append(self, value: datetime | str) -> None: ...

    def __repr__(self) -> str:
        return f"[{', '.join(self.texts)}]"


def _first(alternative: _vyr.Property[Any, Any]) -> Any:
    """The property of a list of choices that gives the first alternative of a kind."""
    return property(lambda self: _vyr.first_chosen(self, alternative), None, None, alternative.__doc__)


def to_doubles(values: Any) -> Any:
    """What the module takes for a row of numbers."""
    if hasattr(values, "__array__"):
        import numpy

        return numpy.ascontiguousarray(values, dtype=numpy.float64)
    return array("d", values)


def need(module: str, what: str) -> Any:
    """A module that the package can do without."""
    try:
        return import_module(module)
    except ImportError as error:
        raise ImportError(f"{what} need {module}: install python3-{module}, or `pip install {module}`") from error


def need_numpy() -> Any:
    return need("numpy", "arrays")


def _columns(points: _vyr.Property[Any, Any], **columns: str) -> tuple[Any, Any, Any]:
    """What moves numbers of all points at once: of many objects, and the methods `arrays` and `set_arrays` of one. The
    columns are named as the arguments are, each with the item of a point."""
    names = tuple(columns.values())
    signature = Signature([Parameter(name, Parameter.POSITIONAL_OR_KEYWORD) for name in ("self", *columns)])

    def gather(objects: list[Any]) -> Any:
        """How many points each object has, and an array of all numbers for each column."""
        numpy = need_numpy()
        counts, *rows = _vyr.gather_points(objects, points, names)
        return counts, *(numpy.frombuffer(row) for row in rows)

    def arrays(self: Object) -> Any:
        _, *rows = gather([self])
        return tuple(row.copy() for row in rows)

    def set_arrays(self: Object, *values: Any, **named: Any) -> None:
        rows = signature.bind(self, *values, **named).args[1:] if named else values
        _vyr.set_points(self, points, names, tuple(to_doubles(row) for row in rows))

    set_arrays.__signature__ = signature  # type: ignore[attr-defined]
    return staticmethod(gather), arrays, set_arrays


_vyr.set_up(FormatError, RemovedError, List, TimeList, read_time, write_time)
