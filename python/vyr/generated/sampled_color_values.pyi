# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic sampled_color_values."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._documents import ElementFile
from .._objects import Array, Choice, List, Numbers, Object
from .._vyr import Property
from .enumerations import AxisScaleKind, DensityFilterKind, DensityStatusKind
from .header import CustomAttributeType
from .color_values import ColorSpaceType, ParentColorSpace
from .conditions import (
    ColorSpaceSpecificationEmissiveGeneric,
    ColorSpaceSpecificationEmissiveSpectral,
    ColorSpaceSpecificationSpectrumGeneric,
    ColorSpaceSpecificationSpectrumSpectral,
)

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
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str | None = ...,
        color_space_specification_spectrum_generic: ColorSpaceSpecificationSpectrumGeneric = ...,
        densities: Iterable[DensityType] = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    densities: Property[List[DensityType], Iterable[DensityType]]
    """Density through one filter."""

class ColorSpaceSpectralType(ColorSpaceType):
    """A reflective or transmissive colour as a sampled spectrum."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str | None = ...,
        color_space_specification_spectrum_spectral: ColorSpaceSpecificationSpectrumSpectral = ...,
        reflectance_points: Iterable[ReflectancePointType] = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_spectral: Property[ColorSpaceSpecificationSpectrumSpectral | None, ColorSpaceSpecificationSpectrumSpectral]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_spectral(self, **values: Any) -> ColorSpaceSpecificationSpectrumSpectral:
        """Gives `color_space_specification_spectrum_spectral`, which it makes if it isn't there, and sets properties
        of it."""
    reflectance_points: Property[List[ReflectancePointType], Iterable[ReflectancePointType]]
    """One sample, in document order."""
    def arrays(self) -> tuple[Array, Array]:
        """The wavelengths and values of all reflectance_points as arrays of numpy."""
    def set_arrays(self, wavelengths: Numbers, values: Numbers) -> None:
        """Sets wavelengths and values and makes reflectance_points as many; nothing changes if one is refused."""

class ColorSpaceEmissiveSpectralType(ColorSpaceType):
    """An emissive colour as a sampled spectrum."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str | None = ...,
        color_space_specification_emissive_spectral: ColorSpaceSpecificationEmissiveSpectral = ...,
        emissive_spectral_points: Iterable[EmissiveSpectralPointType] = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_emissive_spectral: Property[ColorSpaceSpecificationEmissiveSpectral | None, ColorSpaceSpecificationEmissiveSpectral]
    """Conditions under which the value holds."""
    def create_color_space_specification_emissive_spectral(self, **values: Any) -> ColorSpaceSpecificationEmissiveSpectral:
        """Gives `color_space_specification_emissive_spectral`, which it makes if it isn't there, and sets properties
        of it."""
    emissive_spectral_points: Property[List[EmissiveSpectralPointType], Iterable[EmissiveSpectralPointType]]
    """One sample, in document order."""
    def arrays(self) -> tuple[Array, Array]:
        """The wavelengths and values of all emissive_spectral_points as arrays of numpy."""
    def set_arrays(self, wavelengths: Numbers, values: Numbers) -> None:
        """Sets wavelengths and values and makes emissive_spectral_points as many; nothing changes if one is
        refused."""

class ColorSpaceGenericType(ColorSpaceType):
    """A reflective colour in a space that the format doesn't know, axis by axis."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str = ...,
        color_space_specification_spectrum_generic: ColorSpaceSpecificationSpectrumGeneric = ...,
        axes: Iterable[AxisType] = ...,
    ) -> None: ...
    name: Property[str, str]
    """Name of the colour space."""
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    axes: Property[List[AxisType], Iterable[AxisType]]
    """Value on one axis."""

class ColorSpaceEmissiveGenericType(ColorSpaceType):
    """An emissive colour in a space that the format doesn't know, axis by axis."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str = ...,
        color_space_specification_emissive_generic: ColorSpaceSpecificationEmissiveGeneric = ...,
        axes: Iterable[AxisType] = ...,
    ) -> None: ...
    name: Property[str, str]
    """Name of the colour space."""
    color_space_specification_emissive_generic: Property[ColorSpaceSpecificationEmissiveGeneric | None, ColorSpaceSpecificationEmissiveGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_emissive_generic(self, **values: Any) -> ColorSpaceSpecificationEmissiveGeneric:
        """Gives `color_space_specification_emissive_generic`, which it makes if it isn't there, and sets properties
        of it."""
    axes: Property[List[AxisType], Iterable[AxisType]]
    """Value on one axis."""

class ColorSpaceGeneric(ElementFile, ColorSpaceGenericType):
    """A reflective colour in a space that the format doesn't know, axis by axis."""

class ColorSpaceEmissiveGeneric(ElementFile, ColorSpaceEmissiveGenericType):
    """An emissive colour in a space that the format doesn't know, axis by axis."""

class ColorSpaceDensity(ElementFile, ColorSpaceDensityType):
    """A colour by its optical densities through one or more filters."""

class ColorSpaceSpectral(ElementFile, ColorSpaceSpectralType):
    """A reflective or transmissive colour as a sampled spectrum."""

class ColorSpaceEmissiveSpectral(ElementFile, ColorSpaceEmissiveSpectralType):
    """An emissive colour as a sampled spectrum."""

class ReflectancePointType(Object):
    """Reflectance factor at one wavelength."""
    def __init__(self, *, wavelength: float = ..., value: float = ...) -> None: ...
    wavelength: Property[float, float]
    """Wavelength in nanometres, above 0."""
    value: Property[float, float]
    """Reflectance factor as a fraction, between -1 and 10 without the ends: noise can push it below 0, fluorescence
    above 1."""

class EmissiveSpectralPointType(Object):
    """Spectral power at one wavelength."""
    def __init__(self, *, wavelength: float = ..., value: float = ...) -> None: ...
    wavelength: Property[float, float]
    """Wavelength in nanometres, above 0."""
    value: Property[float, float]
    """Spectral power, in the unit of the measurement."""

class AxisValueChoice(Choice):
    """A coordinate: a number with its nominal range, or a text."""
    def __init__(self, *, axis_floating_point_value: FloatingPointValueType = ..., axis_string_value: str = ...) -> None: ...
    axis_floating_point_value: Property[FloatingPointValueType | None, FloatingPointValueType]
    """The coordinate as a number."""
    def choose_axis_floating_point_value(self, **values: Any) -> FloatingPointValueType:
        """Gives `axis_floating_point_value`, which it makes if it isn't chosen, and sets properties of it."""
    axis_string_value: Property[str | None, str]
    """The coordinate as a text."""
    @property
    def chosen(self) -> Literal["axis_floating_point_value", "axis_string_value"] | None:
        """The name of the alternative that is held; None if none was chosen."""

class AxisType(Object):
    """Value on one axis of a colour space that the format doesn't know."""
    def __init__(self, *, axis_name: str = ..., axis_value_choice: AxisValueChoice = ...) -> None: ...
    axis_name: Property[str, str]
    """Name of the axis."""
    axis_value_choice: Property[AxisValueChoice | None, AxisValueChoice]
    """Value on the axis."""
    def create_axis_value_choice(self, **values: Any) -> AxisValueChoice:
        """Gives `axis_value_choice`, which it makes if it isn't there, and sets properties of it."""

class FloatingPointValueType(Object):
    """A number on an axis, with the nominal range and the scale of the axis."""
    def __init__(
        self,
        *,
        axis_nominal_max: float = ...,
        axis_nominal_min: float = ...,
        axis_nominal_scale: AxisScaleKind | int | str | None = ...,
        value: float = ...,
    ) -> None: ...
    axis_nominal_max: Property[float, float]
    """Upper end of the axis's nominal range."""
    axis_nominal_min: Property[float, float]
    """Lower end of the axis's nominal range."""
    axis_nominal_scale: Property[AxisScaleKind | None, AxisScaleKind | int | str | None]
    """Scale of the axis; a new object holds Scale_Linear, without counting as set."""
    value: Property[float, float]
    """The coordinate."""

class DensityType(Object):
    """Optical density through one filter of a status."""
    def __init__(
        self,
        *,
        density_status: DensityStatusKind | int | str = ...,
        density_filter: DensityFilterKind | int | str = ...,
        value: float = ...,
    ) -> None: ...
    density_status: Property[DensityStatusKind | None, DensityStatusKind | int | str]
    """Density status, the set of filter responses."""
    density_filter: Property[DensityFilterKind | None, DensityFilterKind | int | str]
    """Filter of the status."""
    value: Property[float, float]
    """The density, a common logarithm."""
