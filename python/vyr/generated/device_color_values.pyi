# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic device_color_values."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._documents import ElementFile
from .._objects import List, Object
from .._vyr import Property
from .enumerations import ColorDepthKind
from .header import CustomAttributeType
from .color_values import ColorSpaceType, ParentColorSpace
from .conditions import ColorSpaceSpecificationSpectrumGeneric, ColorSpaceSpecificationSpectrumTristimulus

__all__ = (
    "ColorSpaceRGBType",
    "ColorSpaceSRGBType",
    "ColorSpaceAdobeRGBType",
    "ColorSpaceAdobeWideGamutRGBType",
    "ColorSpaceCMYKType",
    "ColorSpaceCMYKPlusNType",
    "Color",
    "ColorSpaceTINTORAOctavanticType",
    "ColorSpaceHSLType",
    "ColorSpaceHSVType",
    "ColorSpaceYUVType",
    "ColorSpaceYIQType",
    "ColorSpaceYBRType",
    "ColorSpaceRGB",
    "ColorSpaceSRGB",
    "ColorSpaceAdobeRGB",
    "ColorSpaceCMYKPlusN",
    "ColorSpaceAdobeWideGamutRGB",
    "ColorSpaceHSL",
    "ColorSpaceHSV",
    "ColorSpaceCMYK",
    "ColorSpaceTINTORAOctavantic",
    "ColorSpaceYUV",
    "ColorSpaceYIQ",
    "ColorSpaceYBR",
    "SpotColorType",
)


class ColorSpaceRGBType(ColorSpaceType):
    """A colour in a device's own RGB, as fractions of full drive."""
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
        red: float = ...,
        green: float = ...,
        blue: float = ...,
        alpha: float | None = ...,
        color_depth: ColorDepthKind | int | str = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_tristimulus: Property[ColorSpaceSpecificationSpectrumTristimulus | None, ColorSpaceSpecificationSpectrumTristimulus]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_tristimulus(self, **values: Any) -> ColorSpaceSpecificationSpectrumTristimulus:
        """Gives `color_space_specification_spectrum_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""
    red: Property[float, float]
    """Red channel, 0 to 1."""
    green: Property[float, float]
    """Green channel, 0 to 1."""
    blue: Property[float, float]
    """Blue channel, 0 to 1."""
    alpha: Property[float | None, float | None]
    """Opacity, 0 (transparent) to 1 (opaque)."""
    color_depth: Property[ColorDepthKind | None, ColorDepthKind | int | str]
    """Bits per channel that the value was quantised to."""

class ColorSpaceSRGBType(ColorSpaceType):
    """A colour in sRGB (IEC 61966-2-1), as fractions of full drive."""
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
        red: float = ...,
        green: float = ...,
        blue: float = ...,
        alpha: float | None = ...,
        color_depth: ColorDepthKind | int | str = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_tristimulus: Property[ColorSpaceSpecificationSpectrumTristimulus | None, ColorSpaceSpecificationSpectrumTristimulus]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_tristimulus(self, **values: Any) -> ColorSpaceSpecificationSpectrumTristimulus:
        """Gives `color_space_specification_spectrum_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""
    red: Property[float, float]
    """Red channel, 0 to 1."""
    green: Property[float, float]
    """Green channel, 0 to 1."""
    blue: Property[float, float]
    """Blue channel, 0 to 1."""
    alpha: Property[float | None, float | None]
    """Opacity, 0 (transparent) to 1 (opaque)."""
    color_depth: Property[ColorDepthKind | None, ColorDepthKind | int | str]
    """Bits per channel that the value was quantised to."""

class ColorSpaceAdobeRGBType(ColorSpaceType):
    """A colour in Adobe RGB (1998), as fractions of full drive."""
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
        red: float = ...,
        green: float = ...,
        blue: float = ...,
        alpha: float | None = ...,
        color_depth: ColorDepthKind | int | str = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_tristimulus: Property[ColorSpaceSpecificationSpectrumTristimulus | None, ColorSpaceSpecificationSpectrumTristimulus]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_tristimulus(self, **values: Any) -> ColorSpaceSpecificationSpectrumTristimulus:
        """Gives `color_space_specification_spectrum_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""
    red: Property[float, float]
    """Red channel, 0 to 1."""
    green: Property[float, float]
    """Green channel, 0 to 1."""
    blue: Property[float, float]
    """Blue channel, 0 to 1."""
    alpha: Property[float | None, float | None]
    """Opacity, 0 (transparent) to 1 (opaque)."""
    color_depth: Property[ColorDepthKind | None, ColorDepthKind | int | str]
    """Bits per channel that the value was quantised to."""

class ColorSpaceAdobeWideGamutRGBType(ColorSpaceType):
    """A colour in Adobe Wide Gamut RGB, as fractions of full drive."""
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
        red: float = ...,
        green: float = ...,
        blue: float = ...,
        alpha: float | None = ...,
        color_depth: ColorDepthKind | int | str = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_tristimulus: Property[ColorSpaceSpecificationSpectrumTristimulus | None, ColorSpaceSpecificationSpectrumTristimulus]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_tristimulus(self, **values: Any) -> ColorSpaceSpecificationSpectrumTristimulus:
        """Gives `color_space_specification_spectrum_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""
    red: Property[float, float]
    """Red channel, 0 to 1."""
    green: Property[float, float]
    """Green channel, 0 to 1."""
    blue: Property[float, float]
    """Blue channel, 0 to 1."""
    alpha: Property[float | None, float | None]
    """Opacity, 0 (transparent) to 1 (opaque)."""
    color_depth: Property[ColorDepthKind | None, ColorDepthKind | int | str]
    """Bits per channel that the value was quantised to."""

class ColorSpaceCMYKType(ColorSpaceType):
    """A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need be."""
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
        cyan: float = ...,
        magenta: float = ...,
        yellow: float = ...,
        black: float = ...,
        spot_colors: Iterable[SpotColorType] = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    cyan: Property[float, float]
    """Cyan in percent, 0 to 100."""
    magenta: Property[float, float]
    """Magenta in percent, 0 to 100."""
    yellow: Property[float, float]
    """Yellow in percent, 0 to 100."""
    black: Property[float, float]
    """Black in percent, 0 to 100."""
    spot_colors: Property[List[SpotColorType], Iterable[SpotColorType]]
    """A spot ink printed besides the process inks."""

class ColorSpaceCMYKPlusNType(ColorSpaceCMYKType):
    """A process colour with further named ink channels."""
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
        cyan: float = ...,
        magenta: float = ...,
        yellow: float = ...,
        black: float = ...,
        spot_colors: Iterable[SpotColorType] = ...,
        color_space_name: str | None = ...,
        colors: Iterable[Color] = ...,
    ) -> None: ...
    color_space_name: Property[str | None, str | None]
    """Name of the ink set."""
    colors: Property[List[Color], Iterable[Color]]
    """One further channel."""

class Color(Object):
    """One ink channel besides the process inks, by name and amount."""
    def __init__(self, *, name: str = ..., value: float = ...) -> None: ...
    name: Property[str, str]
    """Name of the channel."""
    value: Property[float, float]
    """Amount of the ink; no unit is stated."""

class ColorSpaceTINTORAOctavanticType(ColorSpaceType):
    """A process colour of six inks: cyan, magenta, yellow, black, orange and green."""
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
        cyan: float = ...,
        magenta: float = ...,
        yellow: float = ...,
        black: float = ...,
        orange: float = ...,
        green: float = ...,
        spot_colors: Iterable[SpotColorType] = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    cyan: Property[float, float]
    """Cyan in percent, 0 to 100."""
    magenta: Property[float, float]
    """Magenta in percent, 0 to 100."""
    yellow: Property[float, float]
    """Yellow in percent, 0 to 100."""
    black: Property[float, float]
    """Black in percent, 0 to 100."""
    orange: Property[float, float]
    """Orange in percent, 0 to 100."""
    green: Property[float, float]
    """Green in percent, 0 to 100."""
    spot_colors: Property[List[SpotColorType], Iterable[SpotColorType]]
    """A spot ink printed besides the process inks."""

class ColorSpaceHSLType(ColorSpaceType):
    """A colour by hue, saturation and lightness."""
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
        hue: float = ...,
        saturation: float = ...,
        lightness: float = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    hue: Property[float, float]
    """Hue angle in degrees, from 0 to below 360."""
    saturation: Property[float, float]
    """Saturation, 0 to 1."""
    lightness: Property[float, float]
    """Lightness, 0 to 1."""

class ColorSpaceHSVType(ColorSpaceType):
    """A colour by hue, saturation and value."""
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
        hue: float = ...,
        saturation: float = ...,
        value: float = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    hue: Property[float, float]
    """Hue angle in degrees, from 0 to below 360."""
    saturation: Property[float, float]
    """Saturation, 0 to 1."""
    value: Property[float, float]
    """Value, the largest of the channels, 0 to 1."""

class ColorSpaceYUVType(ColorSpaceType):
    """A video colour by luma and the two colour differences of PAL."""
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
        y: float = ...,
        u: float = ...,
        v: float = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    y: Property[float, float]
    """Luma, 0 to 1."""
    u: Property[float, float]
    """Blue difference, -0.436 to 0.436."""
    v: Property[float, float]
    """Red difference, -0.615 to 0.615."""

class ColorSpaceYIQType(ColorSpaceType):
    """A video colour by luma, in-phase and quadrature signal, as in NTSC."""
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
        y: float = ...,
        i: float = ...,
        q: float = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    y: Property[float, float]
    """Luma, 0 to 1."""
    i: Property[float, float]
    """In-phase signal, orange to blue, -0.5957 to 0.5957."""
    q: Property[float, float]
    """Quadrature signal, purple to green, -0.5226 to 0.5226."""

class ColorSpaceYBRType(ColorSpaceType):
    """A video colour by luma and the blue and red differences, all scaled to 0 to 1."""
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
        y: float = ...,
        b: float = ...,
        r: float = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    y: Property[float, float]
    """Luma, 0 to 1."""
    b: Property[float, float]
    """Blue difference, 0 to 1."""
    r: Property[float, float]
    """Red difference, 0 to 1."""

class ColorSpaceRGB(ElementFile, ColorSpaceRGBType):
    """A colour in a device's own RGB, as fractions of full drive."""

class ColorSpaceSRGB(ElementFile, ColorSpaceSRGBType):
    """A colour in sRGB (IEC 61966-2-1), as fractions of full drive."""

class ColorSpaceAdobeRGB(ElementFile, ColorSpaceAdobeRGBType):
    """A colour in Adobe RGB (1998), as fractions of full drive."""

class ColorSpaceCMYKPlusN(ElementFile, ColorSpaceCMYKPlusNType):
    """A process colour with further named ink channels."""

class ColorSpaceAdobeWideGamutRGB(ElementFile, ColorSpaceAdobeWideGamutRGBType):
    """A colour in Adobe Wide Gamut RGB, as fractions of full drive."""

class ColorSpaceHSL(ElementFile, ColorSpaceHSLType):
    """A colour by hue, saturation and lightness."""

class ColorSpaceHSV(ElementFile, ColorSpaceHSVType):
    """A colour by hue, saturation and value."""

class ColorSpaceCMYK(ElementFile, ColorSpaceCMYKType):
    """A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need be."""

class ColorSpaceTINTORAOctavantic(ElementFile, ColorSpaceTINTORAOctavanticType):
    """A process colour of six inks: cyan, magenta, yellow, black, orange and green."""

class ColorSpaceYUV(ElementFile, ColorSpaceYUVType):
    """A video colour by luma and the two colour differences of PAL."""

class ColorSpaceYIQ(ElementFile, ColorSpaceYIQType):
    """A video colour by luma, in-phase and quadrature signal, as in NTSC."""

class ColorSpaceYBR(ElementFile, ColorSpaceYBRType):
    """A video colour by luma and the blue and red differences, all scaled to 0 to 1."""

class SpotColorType(Object):
    """A spot ink and how much of it is printed."""
    def __init__(self, *, name: str = ..., percentage: float = ...) -> None: ...
    name: Property[str, str]
    """Name of the ink; not empty."""
    percentage: Property[float, float]
    """Tone value in percent, 0 to 100."""
