# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""What the enumerations of the format share."""

from __future__ import annotations

from enum import IntEnum
from typing import TypeVar

E = TypeVar("E", bound="Enumeration")


class Enumeration(IntEnum):
    """A number from 1, a name that Python can have, and the very text of the format."""

    text: str

    def __new__(cls: type[E], number: int, text: str, doc: str) -> E:
        member = int.__new__(cls, number)
        member._value_ = number
        member.text = text
        member.__doc__ = doc
        return member

    @classmethod
    def of(cls: type[E], text: str) -> E:
        """The member of a text of the format."""
        for member in cls:
            if member.text == text:
                return member
        raise ValueError(f"{cls.__name__} has no text {text!r}")

    def __str__(self) -> str:
        return self.text
