# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic functions."""

from .._documents import ElementFile
from .._objects import Choice, Object, _creator
from .._vyr import Property
from .enumerations import ToleranceFormulaKind, ToleranceParameterKind

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

    __slots__ = ()
    schema_name = "FunctionType"
    abstract = True
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    result = Property("Result", "Value of the function, in the unit of its formula.")


class Function(ElementFile, FunctionType):
    """Any function, told by xsi:type; head of the functions, any of which can stand in its place."""

    __slots__ = ()
    schema_name = "Function"


class FunctionGenericType(FunctionType):
    """A function that the format doesn't know, by name and parameters."""

    __slots__ = ()
    schema_name = "FunctionGenericType"
    name = Property("Name", "Name of the function; not empty.")
    parameters = Property("Parameters", "A parameter of the function.")


class ValueChoice(Choice):
    """A number or a text."""

    __slots__ = ()
    schema_name = "ValueChoice"
    double = Property("Double", "The value as a number.")
    string = Property("String", "The value as a text.")
    alternatives = ("double", "string")


class Parameters(Object):
    """A parameter of a function, by name and value."""

    __slots__ = ()
    schema_name = "Parameters"
    name = Property("Name", "Name of the parameter.")
    value_choice = Property("ValueChoice", "Value of the parameter.")
    create_value_choice = _creator(value_choice)


class FunctionDEType(FunctionType):
    """CIE 1976 colour difference, the distance in L*a*b*."""

    __slots__ = ()
    schema_name = "FunctionDEType"


class FunctionMeanDEType(FunctionType):
    """Mean of CIE 1976 colour differences."""

    __slots__ = ()
    schema_name = "FunctionMeanDEType"


class FunctionDE94Type(FunctionType):
    """CIE 1994 colour difference."""

    __slots__ = ()
    schema_name = "FunctionDE94Type"
    param_l = Property(
        "Param_l",
        "Weight of the lightness difference, 0 or more; a new object holds 2, without counting as set.",
    )
    param_c = Property(
        "Param_c",
        "Weight of the chroma difference, 0 or more; a new object holds 1, without counting as set.",
    )
    param_h = Property(
        "Param_h",
        "Weight of the hue difference, 0 or more; a new object holds 1, without counting as set.",
    )


class FunctionDE2000Type(FunctionType):
    """CIEDE2000 colour difference."""

    __slots__ = ()
    schema_name = "FunctionDE2000Type"
    param_l = Property(
        "Param_l",
        "Weight of the lightness difference, 0 or more; a new object holds 2, without counting as set.",
    )
    param_c = Property(
        "Param_c",
        "Weight of the chroma difference, 0 or more; a new object holds 1, without counting as set.",
    )
    param_h = Property(
        "Param_h",
        "Weight of the hue difference, 0 or more; a new object holds 1, without counting as set.",
    )


class FunctionDEcmcType(FunctionType):
    """CMC l:c colour difference."""

    __slots__ = ()
    schema_name = "FunctionDEcmcType"
    param_l = Property(
        "Param_l",
        "Weight l of the lightness difference, 0 or more; a new object holds 2, without counting as set.",
    )
    param_c = Property(
        "Param_c",
        "Weight c of the chroma difference, 0 or more; a new object holds 1, without counting as set.",
    )


class FunctionGeneric(ElementFile, FunctionGenericType):
    """A function that the format doesn't know, by name and parameters."""

    __slots__ = ()
    schema_name = "FunctionGeneric"


class FunctionDE(ElementFile, FunctionDEType):
    """CIE 1976 colour difference, the distance in L*a*b*."""

    __slots__ = ()
    schema_name = "FunctionDE"


class FunctionMeanDE(ElementFile, FunctionMeanDEType):
    """Mean of CIE 1976 colour differences."""

    __slots__ = ()
    schema_name = "FunctionMeanDE"


class FunctionDE94(ElementFile, FunctionDE94Type):
    """CIE 1994 colour difference."""

    __slots__ = ()
    schema_name = "FunctionDE94"


class FunctionDE2000(ElementFile, FunctionDE2000Type):
    """CIEDE2000 colour difference."""

    __slots__ = ()
    schema_name = "FunctionDE2000"


class FunctionDECMC(ElementFile, FunctionDEcmcType):
    """CMC l:c colour difference."""

    __slots__ = ()
    schema_name = "FunctionDECMC"


class FunctionTolerance(FunctionType):
    """A tolerance formula with limits for its parameters; reached through Function with xsi:type."""

    __slots__ = ()
    schema_name = "FunctionTolerance"
    tolerance_type = Property("ToleranceType", "The formula.", ToleranceFormulaKind)
    parameters = Property("Parameters", "Limits of one parameter.")


class ToleranceParameterType(Object):
    """Limits of one parameter of a tolerance formula."""

    __slots__ = ()
    schema_name = "ToleranceParameterType"
    high_value = Property("HighValue", "Upper limit, in the unit of the parameter.")
    tolerance_parameter = Property("ToleranceParameter", "Which parameter is limited.", ToleranceParameterKind)
    low_value = Property("LowValue", "Lower limit, in the unit of the parameter.")
