# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""What goes wrong, as exceptions and as reports."""

from __future__ import annotations

import os
from dataclasses import dataclass, field
from typing import Any

from . import _vyr


class FormatError(ValueError):
    """A value that the format refuses; nothing was changed. `code` is the library's, and `text` the words for it."""

    def __init__(self, code: int, message: str) -> None:
        super().__init__(code, message)
        self.code = code
        self.text = _vyr.describe(code)

    def __str__(self) -> str:
        return str(self.args[1])


class RemovedError(ReferenceError):
    """An object that was removed from its document, replaced by another, or unset."""


@dataclass(frozen=True)
class Fault:
    """One thing that is wrong with a document."""

    code: int  #: of the library
    line: int  #: from 1; 0 if there is no place in a text
    column: int  #: from 1, in characters; 0 if there is none
    text: str  #: the code in words
    detail: str  #: what would be right, or what is missing; may be empty
    file: str  #: as it was named; empty for texts and bytes
    item: str  #: the element, attribute or class
    path: str  #: the open elements, with their names: `Palette "Inks" / ColorSet "All" / Color "Ink 17"`
    value: str  #: the value as read, shortened


@dataclass(frozen=True)
class Report:
    """What a load or a save has to say: nothing, if all went well. It is true if so."""

    code: int  #: 0, or the code of the first fault
    faults: list[Fault] = field(default_factory=list)  #: in the order of the document, as many as were asked for
    total: int = 0  #: how many there were
    is_read_to_end: bool = True  #: false if a fault ended the load or the save
    system_error: int = 0  #: with which the system refused the file
    text: str = ""  #: a line for each fault

    @classmethod
    def of(cls, told: tuple[Any, ...]) -> Report:
        code, faults, total, is_read_to_end, system_error, text = told
        found = [Fault(*fault) for fault in faults]
        return cls(code, found, total, bool(is_read_to_end), system_error, text.rstrip("\n"))

    def __bool__(self) -> bool:
        return self.code == 0

    def __str__(self) -> str:
        return self.text

    def demand_file(self, path: str | None) -> None:
        """Raises an OSError where the system refused the file."""
        if self.system_error:
            raise OSError(self.system_error, os.strerror(self.system_error), path)

    def demand(self, path: str | None) -> None:
        """The same, and raises a DocumentError for any other failure."""
        self.demand_file(path)
        if not self:
            raise DocumentError(self)


class DocumentError(ValueError):
    """A document with faults: `faults` has them with their places, `report` all that there is to say."""

    def __init__(self, report: Report) -> None:
        super().__init__(report)
        self.report = report

    @property
    def faults(self) -> list[Fault]:
        return self.report.faults

    @property
    def code(self) -> int:
        return self.report.code

    def __str__(self) -> str:
        return self.report.text
