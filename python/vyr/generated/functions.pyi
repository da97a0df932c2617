# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic functions."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._documents import ElementFile
from .._objects import Choice, List, Object
from .._vyr import Property
from .enumerations import ToleranceFormulaKind, ToleranceParameterKind
from .header import CustomAttributeType

__all__ = (
    "FunctionType",
    "Function",
    "FunctionGenericType",
    "ValueChoice",
    "Parameters",
    "FunctionDEType",
    "FunctionMeanDEType",
    "FunctionDE94Type",
    "FunctionDE2000Type",
    "FunctionDEcmcType",
    "FunctionGeneric",
    "FunctionDE",
    "FunctionMeanDE",
    "FunctionDE94",
    "FunctionDE2000",
    "FunctionDECMC",
    "FunctionTolerance",
    "ToleranceParameterType",
)


class FunctionType(Object):
    """A function of colours, such as a colour difference, with its result once it has been evaluated."""
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    result: Property[float | None, float | None]
    """Value of the function, in the unit of its formula."""

class Function(ElementFile, FunctionType):
    """Any function, told by xsi:type; head of the functions, any of which can stand in its place."""

class FunctionGenericType(FunctionType):
    """A function that the format doesn't know, by name and parameters."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        result: float | None = ...,
        name: str = ...,
        parameters: Iterable[Parameters] = ...,
    ) -> None: ...
    name: Property[str, str]
    """Name of the function; not empty."""
    parameters: Property[List[Parameters], Iterable[Parameters]]
    """A parameter of the function."""

class ValueChoice(Choice):
    """A number or a text."""
    def __init__(self, *, double: float = ..., string: str = ...) -> None: ...
    double: Property[float | None, float]
    """The value as a number."""
    string: Property[str | None, str]
    """The value as a text."""
    @property
    def chosen(self) -> Literal["double", "string"] | None:
        """The name of the alternative that is held; None if none was chosen."""

class Parameters(Object):
    """A parameter of a function, by name and value."""
    def __init__(self, *, name: str = ..., value_choice: ValueChoice = ...) -> None: ...
    name: Property[str, str]
    """Name of the parameter."""
    value_choice: Property[ValueChoice | None, ValueChoice]
    """Value of the parameter."""
    def create_value_choice(self, **values: Any) -> ValueChoice:
        """Gives `value_choice`, which it makes if it isn't there, and sets properties of it."""

class FunctionDEType(FunctionType):
    """CIE 1976 colour difference, the distance in L*a*b*."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionMeanDEType(FunctionType):
    """Mean of CIE 1976 colour differences."""
    def __init__(self, *, custom_attributes: Iterable[CustomAttributeType] = ..., result: float | None = ...) -> None: ...

class FunctionDE94Type(FunctionType):
    """CIE 1994 colour difference."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        result: float | None = ...,
        param_l: float = ...,
        param_c: float = ...,
        param_h: float = ...,
    ) -> None: ...
    param_l: Property[float, float]
    """Weight of the lightness difference, 0 or more; a new object holds 2, without counting as set."""
    param_c: Property[float, float]
    """Weight of the chroma difference, 0 or more; a new object holds 1, without counting as set."""
    param_h: Property[float, float]
    """Weight of the hue difference, 0 or more; a new object holds 1, without counting as set."""

class FunctionDE2000Type(FunctionType):
    """CIEDE2000 colour difference."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        result: float | None = ...,
        param_l: float = ...,
        param_c: float = ...,
        param_h: float = ...,
    ) -> None: ...
    param_l: Property[float, float]
    """Weight of the lightness difference, 0 or more; a new object holds 2, without counting as set."""
    param_c: Property[float, float]
    """Weight of the chroma difference, 0 or more; a new object holds 1, without counting as set."""
    param_h: Property[float, float]
    """Weight of the hue difference, 0 or more; a new object holds 1, without counting as set."""

class FunctionDEcmcType(FunctionType):
    """CMC l:c colour difference."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        result: float | None = ...,
        param_l: float = ...,
        param_c: float = ...,
    ) -> None: ...
    param_l: Property[float, float]
    """Weight l of the lightness difference, 0 or more; a new object holds 2, without counting as set."""
    param_c: Property[float, float]
    """Weight c of the chroma difference, 0 or more; a new object holds 1, without counting as set."""

class FunctionGeneric(ElementFile, FunctionGenericType):
    """A function that the format doesn't know, by name and parameters."""

class FunctionDE(ElementFile, FunctionDEType):
    """CIE 1976 colour difference, the distance in L*a*b*."""

class FunctionMeanDE(ElementFile, FunctionMeanDEType):
    """Mean of CIE 1976 colour differences."""

class FunctionDE94(ElementFile, FunctionDE94Type):
    """CIE 1994 colour difference."""

class FunctionDE2000(ElementFile, FunctionDE2000Type):
    """CIEDE2000 colour difference."""

class FunctionDECMC(ElementFile, FunctionDEcmcType):
    """CMC l:c colour difference."""

class FunctionTolerance(FunctionType):
    """A tolerance formula with limits for its parameters; reached through Function with xsi:type."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        result: float | None = ...,
        tolerance_type: ToleranceFormulaKind | int | str = ...,
        parameters: Iterable[ToleranceParameterType] = ...,
    ) -> None: ...
    tolerance_type: Property[ToleranceFormulaKind | None, ToleranceFormulaKind | int | str]
    """The formula."""
    parameters: Property[List[ToleranceParameterType], Iterable[ToleranceParameterType]]
    """Limits of one parameter."""

class ToleranceParameterType(Object):
    """Limits of one parameter of a tolerance formula."""
    def __init__(
        self,
        *,
        high_value: float | None = ...,
        tolerance_parameter: ToleranceParameterKind | int | str | None = ...,
        low_value: float = ...,
    ) -> None: ...
    high_value: Property[float | None, float | None]
    """Upper limit, in the unit of the parameter."""
    tolerance_parameter: Property[ToleranceParameterKind | None, ToleranceParameterKind | int | str | None]
    """Which parameter is limited."""
    low_value: Property[float, float]
    """Lower limit, in the unit of the parameter."""
