# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic color_values."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._documents import ElementFile
from .._objects import List, Object, TimeList
from .._vyr import Property
from .header import CustomAttributeType
from .groups import ColorSpaceChoice
from .conditions import ColorSpaceSpecificationEmissiveTristimulus, ColorSpaceSpecificationSpectrumTristimulus

__all__ = (
    "ParentColorSpace",
    "ColorSpaceType",
    "ColorSpace",
    "ColorSpaceCIELabType",
    "ColorSpaceCIELChType",
    "ColorSpaceCIELuvType",
    "ColorSpaceCIEXYZType",
    "ColorSpaceCIExyYType",
    "ColorSpaceEmissiveCIEXYZType",
    "ColorSpaceEmissiveCIExyYType",
    "ColorSpaceCIELab",
    "ColorSpaceCIELCh",
    "ColorSpaceCIEXYZ",
    "ColorSpaceEmissiveCIEXYZ",
    "ColorSpaceCIExyY",
    "ColorSpaceEmissiveCIExyY",
    "ColorSpaceCIELuv",
)


class ParentColorSpace(Object):
    """The value from which another one was derived, or nil where there is none to tell."""
    def __init__(self, *, color_space: ColorSpaceChoice | None = ...) -> None: ...
    color_space: Property[ColorSpaceChoice | None, ColorSpaceChoice | None]
    """The parent's value; the element's name says in which colour space."""
    def create_color_space(self, **values: Any) -> ColorSpaceChoice:
        """Gives `color_space`, which it makes if it isn't there, and sets properties of it."""

class ColorSpaceType(Object):
    """A colour value in some colour space."""
    comments: Property[str | None, str | None]
    """Free remarks on the value."""
    unique_id: Property[str | None, str | None]
    """Identifier of the value."""
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    parent_color_space: Property[ParentColorSpace | None, ParentColorSpace | None]
    """The value that this one was computed from."""
    def create_parent_color_space(self, **values: Any) -> ParentColorSpace:
        """Gives `parent_color_space`, which it makes if it isn't there, and sets properties of it."""
    change_history: Property[TimeList, Iterable[datetime | str]]
    """Time of one change, with time zone."""

class ColorSpace(ColorSpaceType):
    """Head of the colour values: any of them can stand in its place."""

class ColorSpaceCIELabType(ColorSpaceType):
    """A reflective colour in CIE 1976 L*a*b*."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str | None = ...,
        color_space_specification_spectrum_tristimulus: ColorSpaceSpecificationSpectrumTristimulus = ...,
        l: float = ...,
        a: float = ...,
        b: float = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_tristimulus: Property[ColorSpaceSpecificationSpectrumTristimulus | None, ColorSpaceSpecificationSpectrumTristimulus]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_tristimulus(self, **values: Any) -> ColorSpaceSpecificationSpectrumTristimulus:
        """Gives `color_space_specification_spectrum_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""
    l: Property[float, float]
    """Lightness L*, 0 (black) to 150; 100 is the perfect diffuser."""
    a: Property[float, float]
    """a*, from green (negative) to red, -150 to 150."""
    b: Property[float, float]
    """b*, from blue (negative) to yellow, -150 to 150."""

class ColorSpaceCIELChType(ColorSpaceType):
    """A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str | None = ...,
        color_space_specification_spectrum_tristimulus: ColorSpaceSpecificationSpectrumTristimulus = ...,
        l: float = ...,
        c: float = ...,
        h: float = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_tristimulus: Property[ColorSpaceSpecificationSpectrumTristimulus | None, ColorSpaceSpecificationSpectrumTristimulus]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_tristimulus(self, **values: Any) -> ColorSpaceSpecificationSpectrumTristimulus:
        """Gives `color_space_specification_spectrum_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""
    l: Property[float, float]
    """Lightness L*, 0 to 100."""
    c: Property[float, float]
    """Chroma C*, 0 (neutral) to 150."""
    h: Property[float, float]
    """Hue angle h in degrees, from 0 to below 360."""

class ColorSpaceCIELuvType(ColorSpaceType):
    """A reflective colour in CIE 1976 L*u*v*."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str | None = ...,
        color_space_specification_spectrum_tristimulus: ColorSpaceSpecificationSpectrumTristimulus = ...,
        l: float = ...,
        u: float = ...,
        v: float = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_tristimulus: Property[ColorSpaceSpecificationSpectrumTristimulus | None, ColorSpaceSpecificationSpectrumTristimulus]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_tristimulus(self, **values: Any) -> ColorSpaceSpecificationSpectrumTristimulus:
        """Gives `color_space_specification_spectrum_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""
    l: Property[float, float]
    """Lightness L*, 0 to 100."""
    u: Property[float, float]
    """u*, from green (negative) to red, -134 to 220."""
    v: Property[float, float]
    """v*, from blue (negative) to yellow, -140 to 122."""

class ColorSpaceCIEXYZType(ColorSpaceType):
    """A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str | None = ...,
        color_space_specification_spectrum_tristimulus: ColorSpaceSpecificationSpectrumTristimulus = ...,
        x: float = ...,
        y: float = ...,
        z: float = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_tristimulus: Property[ColorSpaceSpecificationSpectrumTristimulus | None, ColorSpaceSpecificationSpectrumTristimulus]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_tristimulus(self, **values: Any) -> ColorSpaceSpecificationSpectrumTristimulus:
        """Gives `color_space_specification_spectrum_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""
    x: Property[float, float]
    """Tristimulus value X, 0 to 1."""
    y: Property[float, float]
    """Tristimulus value Y, the luminance factor, 0 to 1."""
    z: Property[float, float]
    """Tristimulus value Z, 0 to 1."""

class ColorSpaceCIExyYType(ColorSpaceType):
    """A reflective colour by its CIE chromaticity and luminance factor."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str | None = ...,
        color_space_specification_spectrum_tristimulus: ColorSpaceSpecificationSpectrumTristimulus = ...,
        x: float = ...,
        y: float = ...,
        cap_y: float = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_tristimulus: Property[ColorSpaceSpecificationSpectrumTristimulus | None, ColorSpaceSpecificationSpectrumTristimulus]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_tristimulus(self, **values: Any) -> ColorSpaceSpecificationSpectrumTristimulus:
        """Gives `color_space_specification_spectrum_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""
    x: Property[float, float]
    """Chromaticity coordinate x, 0 to 1."""
    y: Property[float, float]
    """Chromaticity coordinate y, 0 to 1."""
    cap_y: Property[float, float]
    """Luminance factor Y, 0 to 1."""

class ColorSpaceEmissiveCIEXYZType(ColorSpaceType):
    """An emissive colour in CIE XYZ; absolute, hence without an upper bound."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str | None = ...,
        color_space_specification_emissive_tristimulus: ColorSpaceSpecificationEmissiveTristimulus = ...,
        x: float = ...,
        y: float = ...,
        z: float = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_emissive_tristimulus: Property[ColorSpaceSpecificationEmissiveTristimulus | None, ColorSpaceSpecificationEmissiveTristimulus]
    """Conditions under which the value holds."""
    def create_color_space_specification_emissive_tristimulus(self, **values: Any) -> ColorSpaceSpecificationEmissiveTristimulus:
        """Gives `color_space_specification_emissive_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""
    x: Property[float, float]
    """Tristimulus value X, 0 or more."""
    y: Property[float, float]
    """Tristimulus value Y, 0 or more."""
    z: Property[float, float]
    """Tristimulus value Z, 0 or more."""

class ColorSpaceEmissiveCIExyYType(ColorSpaceType):
    """An emissive colour by its CIE chromaticity and luminance."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str | None = ...,
        color_space_specification_emissive_tristimulus: ColorSpaceSpecificationEmissiveTristimulus = ...,
        x: float = ...,
        y: float = ...,
        cap_y: float = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_emissive_tristimulus: Property[ColorSpaceSpecificationEmissiveTristimulus | None, ColorSpaceSpecificationEmissiveTristimulus]
    """Conditions under which the value holds."""
    def create_color_space_specification_emissive_tristimulus(self, **values: Any) -> ColorSpaceSpecificationEmissiveTristimulus:
        """Gives `color_space_specification_emissive_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""
    x: Property[float, float]
    """Chromaticity coordinate x, 0 to 1."""
    y: Property[float, float]
    """Chromaticity coordinate y, 0 to 1."""
    cap_y: Property[float, float]
    """Luminance Y, 0 or more."""

class ColorSpaceCIELab(ElementFile, ColorSpaceCIELabType):
    """A reflective colour in CIE 1976 L*a*b*."""

class ColorSpaceCIELCh(ElementFile, ColorSpaceCIELChType):
    """A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*."""

class ColorSpaceCIEXYZ(ElementFile, ColorSpaceCIEXYZType):
    """A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1."""

class ColorSpaceEmissiveCIEXYZ(ElementFile, ColorSpaceEmissiveCIEXYZType):
    """An emissive colour in CIE XYZ; absolute, hence without an upper bound."""

class ColorSpaceCIExyY(ElementFile, ColorSpaceCIExyYType):
    """A reflective colour by its CIE chromaticity and luminance factor."""

class ColorSpaceEmissiveCIExyY(ElementFile, ColorSpaceEmissiveCIExyYType):
    """An emissive colour by its CIE chromaticity and luminance."""

class ColorSpaceCIELuv(ElementFile, ColorSpaceCIELuvType):
    """A reflective colour in CIE 1976 L*u*v*."""
