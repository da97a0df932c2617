# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Documents as files, bytes and texts."""

from __future__ import annotations

import os
import tempfile
from pathlib import Path
from typing import IO, TYPE_CHECKING, Any, TypeVar, Union

from . import _vyr
from ._errors import Report
from ._objects import Object

if TYPE_CHECKING:
    from .generated.header import Document

PathLike = Union[str, "os.PathLike[str]"]
F = TypeVar("F", bound="ElementFile")
LIMIT = 100


def whole_name(path: PathLike) -> bytes:
    name = os.fsencode(path)
    if b"\0" in name:
        raise ValueError("the name of a file holds no null character")
    return name


class ElementFile(Object):
    """An element that can be the root of a plain file of its own."""

    __slots__ = ()

    @classmethod
    def load(cls: type[F], path: PathLike) -> F:
        """Loads a file with this element as its root; raises a DocumentError for one with faults."""
        made, told = _vyr.load_file(cls, whole_name(path), True, LIMIT)
        Report.of(told).demand(os.fspath(path))
        return made

    def save(self, path: PathLike) -> None:
        """Saves a file with this element as its root."""
        Report.of(_vyr.save_file(self, whole_name(path))).demand(os.fspath(path))


class Whole(ElementFile):
    """A whole document: what a file holds."""

    __slots__ = ()

    def save(self, path: PathLike) -> None:
        """Writes a plain document if the name ends in ".vyr", a container if it ends in ".vyrz".

        Like all ways of writing it notes in the header which software wrote. A DocumentError says what the document
        lacks, or that a value could not be read back as it is; in the latter case the file was written all the same
        (`report.is_read_to_end`).
        """
        name = os.fspath(path)
        beside = Path(name[:-1]) if name.endswith(".vyrz") else None
        if beside is None or not beside.exists():
            super().save(path)
            return
        # A container is made by way of a plain document of the same name beside it, which must not be lost.
        with tempfile.TemporaryDirectory(prefix=".saving", dir=beside.parent) as folder:
            made = Path(folder) / Path(name).name
            report = Report.of(_vyr.save_file(self, whole_name(made)))
            if made.exists():
                os.replace(made, name)
            report.demand(name)

    def to_bytes(self) -> bytes:
        """A plain document in UTF-8."""
        data, told = _vyr.save_text(self)
        Report.of(told).demand(None)
        return data

    def __reduce__(self) -> Any:
        return loads, (self.to_bytes(),)


def name_of(source: PathLike | IO[Any]) -> str | None:
    """The name of a file that was given by it; None for an open one."""
    return os.fspath(source) if isinstance(source, (str, os.PathLike)) else None


def _load(source: Any, limit: int) -> tuple[Document, Report]:
    from .generated.header import Document

    if name_of(source) is not None:
        made, told = _vyr.load_file(Document, whole_name(source), True, limit)
    else:
        data = source.read()
        name = source.name if isinstance(getattr(source, "name", None), str) else ""
        made, told = _vyr.load_memory(Document, data, name, True, limit)
    return made, Report.of(told)


def load(source: PathLike | IO[Any], *, limit: int = LIMIT) -> Document:
    """Loads a document from a file: a plain one, or a container if its name ends in ".vyrz". Takes an open file too,
    which holds a plain document.

    Raises an OSError for a file that can't be read, and a DocumentError with up to `limit` faults for one that is
    wrong.
    """
    made, report = _load(source, limit)
    report.demand(name_of(source))
    return made


def loads(text: str | bytes) -> Document:
    """Loads a plain document from its text, or from its bytes in any encoding that a file may have."""
    from .generated.header import Document

    data: str | bytes = text if isinstance(text, str) else bytes(memoryview(text))
    made, told = _vyr.load_memory(Document, data, "", True, LIMIT)
    Report.of(told).demand(None)
    return made


def load_partly(source: PathLike | IO[Any], *, limit: int = LIMIT) -> tuple[Document, Report]:
    """The same as `load` for documents with faults: what could be read of it, and the report. A file that can't be read
    still raises an OSError."""
    made, report = _load(source, limit)
    report.demand_file(name_of(source))
    return made, report


def check(source: PathLike | IO[Any], *, limit: int = LIMIT) -> Report:
    """What is wrong with a document, without raising for it."""
    return _load(source, limit)[1]
