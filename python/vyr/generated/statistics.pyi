# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic statistics."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._documents import ElementFile
from .header import CustomAttributeType
from .functions import FunctionType

__all__ = (
    "FunctionStdDevXType",
    "FunctionStdDevYType",
    "FunctionStdDevZType",
    "FunctionStdDevLType",
    "FunctionStdDevAType",
    "FunctionStdDevBType",
    "FunctionStdDevCType",
    "FunctionStdDevHType",
    "FunctionAverageStdDevLType",
    "FunctionAverageStdDevAType",
    "FunctionAverageStdDevBType",
    "FunctionStdDevX",
    "FunctionStdDevY",
    "FunctionStdDevZ",
    "FunctionStdDevL",
    "FunctionStdDevA",
    "FunctionStdDevB",
    "FunctionStdDevC",
    "FunctionStdDevH",
    "FunctionAverageStdDevL",
    "FunctionAverageStdDevA",
    "FunctionAverageStdDevB",
)


class FunctionStdDevXType(FunctionType):
    """Standard deviation of the tristimulus value X."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionStdDevYType(FunctionType):
    """Standard deviation of the tristimulus value Y."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionStdDevZType(FunctionType):
    """Standard deviation of the tristimulus value Z."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionStdDevLType(FunctionType):
    """Standard deviation of the lightness L*."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionStdDevAType(FunctionType):
    """Standard deviation of a*."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionStdDevBType(FunctionType):
    """Standard deviation of b*."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionStdDevCType(FunctionType):
    """Standard deviation of the chroma C*."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionStdDevHType(FunctionType):
    """Standard deviation of the hue."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionAverageStdDevLType(FunctionType):
    """Average standard deviation of the lightness L*."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionAverageStdDevAType(FunctionType):
    """Average standard deviation of a*."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionAverageStdDevBType(FunctionType):
    """Average standard deviation of b*."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionStdDevX(ElementFile, FunctionStdDevXType):
    """Standard deviation of the tristimulus value X."""

class FunctionStdDevY(ElementFile, FunctionStdDevYType):
    """Standard deviation of the tristimulus value Y."""

class FunctionStdDevZ(ElementFile, FunctionStdDevZType):
    """Standard deviation of the tristimulus value Z."""

class FunctionStdDevL(ElementFile, FunctionStdDevLType):
    """Standard deviation of the lightness L*."""

class FunctionStdDevA(ElementFile, FunctionStdDevAType):
    """Standard deviation of a*."""

class FunctionStdDevB(ElementFile, FunctionStdDevBType):
    """Standard deviation of b*."""

class FunctionStdDevC(ElementFile, FunctionStdDevCType):
    """Standard deviation of the chroma C*."""

class FunctionStdDevH(ElementFile, FunctionStdDevHType):
    """Standard deviation of the hue."""

class FunctionAverageStdDevL(ElementFile, FunctionAverageStdDevLType):
    """Average standard deviation of the lightness L*."""

class FunctionAverageStdDevA(ElementFile, FunctionAverageStdDevAType):
    """Average standard deviation of a*."""

class FunctionAverageStdDevB(ElementFile, FunctionAverageStdDevBType):
    """Average standard deviation of b*."""
