# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic statistics."""

from .._documents import ElementFile
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

    __slots__ = ()
    schema_name = "FunctionStdDevXType"


class FunctionStdDevYType(FunctionType):
    """Standard deviation of the tristimulus value Y."""

    __slots__ = ()
    schema_name = "FunctionStdDevYType"


class FunctionStdDevZType(FunctionType):
    """Standard deviation of the tristimulus value Z."""

    __slots__ = ()
    schema_name = "FunctionStdDevZType"


class FunctionStdDevLType(FunctionType):
    """Standard deviation of the lightness L*."""

    __slots__ = ()
    schema_name = "FunctionStdDevLType"


class FunctionStdDevAType(FunctionType):
    """Standard deviation of a*."""

    __slots__ = ()
    schema_name = "FunctionStdDevAType"


class FunctionStdDevBType(FunctionType):
    """Standard deviation of b*."""

    __slots__ = ()
    schema_name = "FunctionStdDevBType"


class FunctionStdDevCType(FunctionType):
    """Standard deviation of the chroma C*."""

    __slots__ = ()
    schema_name = "FunctionStdDevCType"


class FunctionStdDevHType(FunctionType):
    """Standard deviation of the hue."""

    __slots__ = ()
    schema_name = "FunctionStdDevHType"


class FunctionAverageStdDevLType(FunctionType):
    """Average standard deviation of the lightness L*."""

    __slots__ = ()
    schema_name = "FunctionAverageStdDevLType"


class FunctionAverageStdDevAType(FunctionType):
    """Average standard deviation of a*."""

    __slots__ = ()
    schema_name = "FunctionAverageStdDevAType"


class FunctionAverageStdDevBType(FunctionType):
    """Average standard deviation of b*."""

    __slots__ = ()
    schema_name = "FunctionAverageStdDevBType"


class FunctionStdDevX(ElementFile, FunctionStdDevXType):
    """Standard deviation of the tristimulus value X."""

    __slots__ = ()
    schema_name = "FunctionStdDevX"


class FunctionStdDevY(ElementFile, FunctionStdDevYType):
    """Standard deviation of the tristimulus value Y."""

    __slots__ = ()
    schema_name = "FunctionStdDevY"


class FunctionStdDevZ(ElementFile, FunctionStdDevZType):
    """Standard deviation of the tristimulus value Z."""

    __slots__ = ()
    schema_name = "FunctionStdDevZ"


class FunctionStdDevL(ElementFile, FunctionStdDevLType):
    """Standard deviation of the lightness L*."""

    __slots__ = ()
    schema_name = "FunctionStdDevL"


class FunctionStdDevA(ElementFile, FunctionStdDevAType):
    """Standard deviation of a*."""

    __slots__ = ()
    schema_name = "FunctionStdDevA"


class FunctionStdDevB(ElementFile, FunctionStdDevBType):
    """Standard deviation of b*."""

    __slots__ = ()
    schema_name = "FunctionStdDevB"


class FunctionStdDevC(ElementFile, FunctionStdDevCType):
    """Standard deviation of the chroma C*."""

    __slots__ = ()
    schema_name = "FunctionStdDevC"


class FunctionStdDevH(ElementFile, FunctionStdDevHType):
    """Standard deviation of the hue."""

    __slots__ = ()
    schema_name = "FunctionStdDevH"


class FunctionAverageStdDevL(ElementFile, FunctionAverageStdDevLType):
    """Average standard deviation of the lightness L*."""

    __slots__ = ()
    schema_name = "FunctionAverageStdDevL"


class FunctionAverageStdDevA(ElementFile, FunctionAverageStdDevAType):
    """Average standard deviation of a*."""

    __slots__ = ()
    schema_name = "FunctionAverageStdDevA"


class FunctionAverageStdDevB(ElementFile, FunctionAverageStdDevBType):
    """Average standard deviation of b*."""

    __slots__ = ()
    schema_name = "FunctionAverageStdDevB"
