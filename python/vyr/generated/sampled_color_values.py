# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic sampled_color_values."""

from .._documents import ElementFile
from .._objects import Choice, Object, _columns, _creator
from .._vyr import Property
from .enumerations import AxisScaleKind, DensityFilterKind, DensityStatusKind
from .color_values import ColorSpaceType

__all__ = (
    "ColorSpaceDensityType",
    "ColorSpaceSpectralType",
    "ColorSpaceEmissiveSpectralType",
    "ColorSpaceGenericType",
    "ColorSpaceEmissiveGenericType",
    "ColorSpaceGeneric",
    "ColorSpaceEmissiveGeneric",
    "ColorSpaceDensity",
    "ColorSpaceSpectral",
    "ColorSpaceEmissiveSpectral",
    "ReflectancePointType",
    "EmissiveSpectralPointType",
    "AxisValueChoice",
    "AxisType",
    "FloatingPointValueType",
    "DensityType",
)


class ColorSpaceDensityType(ColorSpaceType):
    """A colour by its optical densities through one or more filters."""

    __slots__ = ()
    schema_name = "ColorSpaceDensityType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    densities = Property("Density", "Density through one filter.")


class ColorSpaceSpectralType(ColorSpaceType):
    """A reflective or transmissive colour as a sampled spectrum."""

    __slots__ = ()
    schema_name = "ColorSpaceSpectralType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_spectral = Property(
        "ColorSpaceSpecificationSpectrumSpectral",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_spectral = _creator(color_space_specification_spectrum_spectral)
    reflectance_points = Property("ReflectancePoint", "One sample, in document order.")
    _gather, arrays, set_arrays = _columns(
        reflectance_points,
        wavelengths="Wavelength",
        values="ReflectancePointType",
    )


class ColorSpaceEmissiveSpectralType(ColorSpaceType):
    """An emissive colour as a sampled spectrum."""

    __slots__ = ()
    schema_name = "ColorSpaceEmissiveSpectralType"
    name = Property("Name", "Name of the value.")
    color_space_specification_emissive_spectral = Property(
        "ColorSpaceSpecificationEmissiveSpectral",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_emissive_spectral = _creator(color_space_specification_emissive_spectral)
    emissive_spectral_points = Property("EmissiveSpectralPoint", "One sample, in document order.")
    _gather, arrays, set_arrays = _columns(
        emissive_spectral_points,
        wavelengths="Wavelength",
        values="EmissiveSpectralPointType",
    )


class ColorSpaceGenericType(ColorSpaceType):
    """A reflective colour in a space that the format doesn't know, axis by axis."""

    __slots__ = ()
    schema_name = "ColorSpaceGenericType"
    name = Property("Name", "Name of the colour space.")
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    axes = Property("Axis", "Value on one axis.")


class ColorSpaceEmissiveGenericType(ColorSpaceType):
    """An emissive colour in a space that the format doesn't know, axis by axis."""

    __slots__ = ()
    schema_name = "ColorSpaceEmissiveGenericType"
    name = Property("Name", "Name of the colour space.")
    color_space_specification_emissive_generic = Property(
        "ColorSpaceSpecificationEmissiveGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_emissive_generic = _creator(color_space_specification_emissive_generic)
    axes = Property("Axis", "Value on one axis.")


class ColorSpaceGeneric(ElementFile, ColorSpaceGenericType):
    """A reflective colour in a space that the format doesn't know, axis by axis."""

    __slots__ = ()
    schema_name = "ColorSpaceGeneric"


class ColorSpaceEmissiveGeneric(ElementFile, ColorSpaceEmissiveGenericType):
    """An emissive colour in a space that the format doesn't know, axis by axis."""

    __slots__ = ()
    schema_name = "ColorSpaceEmissiveGeneric"


class ColorSpaceDensity(ElementFile, ColorSpaceDensityType):
    """A colour by its optical densities through one or more filters."""

    __slots__ = ()
    schema_name = "ColorSpaceDensity"


class ColorSpaceSpectral(ElementFile, ColorSpaceSpectralType):
    """A reflective or transmissive colour as a sampled spectrum."""

    __slots__ = ()
    schema_name = "ColorSpaceSpectral"


class ColorSpaceEmissiveSpectral(ElementFile, ColorSpaceEmissiveSpectralType):
    """An emissive colour as a sampled spectrum."""

    __slots__ = ()
    schema_name = "ColorSpaceEmissiveSpectral"


class ReflectancePointType(Object):
    """Reflectance factor at one wavelength."""

    __slots__ = ()
    schema_name = "ReflectancePointType"
    wavelength = Property("Wavelength", "Wavelength in nanometres, above 0.")
    value = Property(
        "ReflectancePointType",
        "Reflectance factor as a fraction, between -1 and 10 without the ends: noise can push it below 0, "
        "fluorescence above 1.",
    )


class EmissiveSpectralPointType(Object):
    """Spectral power at one wavelength."""

    __slots__ = ()
    schema_name = "EmissiveSpectralPointType"
    wavelength = Property("Wavelength", "Wavelength in nanometres, above 0.")
    value = Property("EmissiveSpectralPointType", "Spectral power, in the unit of the measurement.")


class AxisValueChoice(Choice):
    """A coordinate: a number with its nominal range, or a text."""

    __slots__ = ()
    schema_name = "AxisValueChoice"
    axis_floating_point_value = Property("AxisFloatingPointValue", "The coordinate as a number.")
    choose_axis_floating_point_value = _creator(axis_floating_point_value)
    axis_string_value = Property("AxisStringValue", "The coordinate as a text.")
    alternatives = ("axis_floating_point_value", "axis_string_value")


class AxisType(Object):
    """Value on one axis of a colour space that the format doesn't know."""

    __slots__ = ()
    schema_name = "AxisType"
    axis_name = Property("AxisName", "Name of the axis.")
    axis_value_choice = Property("AxisValueChoice", "Value on the axis.")
    create_axis_value_choice = _creator(axis_value_choice)


class FloatingPointValueType(Object):
    """A number on an axis, with the nominal range and the scale of the axis."""

    __slots__ = ()
    schema_name = "FloatingPointValueType"
    axis_nominal_max = Property("AxisNominalMax", "Upper end of the axis's nominal range.")
    axis_nominal_min = Property("AxisNominalMin", "Lower end of the axis's nominal range.")
    axis_nominal_scale = Property(
        "AxisNominalScale",
        "Scale of the axis; a new object holds Scale_Linear, without counting as set.",
        AxisScaleKind,
    )
    value = Property("FloatingPointValueType", "The coordinate.")


class DensityType(Object):
    """Optical density through one filter of a status."""

    __slots__ = ()
    schema_name = "DensityType"
    density_status = Property("DensityStatus", "Density status, the set of filter responses.", DensityStatusKind)
    density_filter = Property("DensityFilter", "Filter of the status.", DensityFilterKind)
    value = Property("DensityType", "The density, a common logarithm.")
