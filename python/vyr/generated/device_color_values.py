# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic device_color_values."""

from .._documents import ElementFile
from .._objects import Object, _creator
from .._vyr import Property
from .enumerations import ColorDepthKind
from .color_values import ColorSpaceType

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

    __slots__ = ()
    schema_name = "ColorSpaceRGBType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_tristimulus = Property(
        "ColorSpaceSpecificationSpectrumTristimulus",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_tristimulus = _creator(color_space_specification_spectrum_tristimulus)
    red = Property("Red", "Red channel, 0 to 1.")
    green = Property("Green", "Green channel, 0 to 1.")
    blue = Property("Blue", "Blue channel, 0 to 1.")
    alpha = Property("Alpha", "Opacity, 0 (transparent) to 1 (opaque).")
    color_depth = Property("ColorDepth", "Bits per channel that the value was quantised to.", ColorDepthKind)


class ColorSpaceSRGBType(ColorSpaceType):
    """A colour in sRGB (IEC 61966-2-1), as fractions of full drive."""

    __slots__ = ()
    schema_name = "ColorSpaceSRGBType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_tristimulus = Property(
        "ColorSpaceSpecificationSpectrumTristimulus",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_tristimulus = _creator(color_space_specification_spectrum_tristimulus)
    red = Property("Red", "Red channel, 0 to 1.")
    green = Property("Green", "Green channel, 0 to 1.")
    blue = Property("Blue", "Blue channel, 0 to 1.")
    alpha = Property("Alpha", "Opacity, 0 (transparent) to 1 (opaque).")
    color_depth = Property("ColorDepth", "Bits per channel that the value was quantised to.", ColorDepthKind)


class ColorSpaceAdobeRGBType(ColorSpaceType):
    """A colour in Adobe RGB (1998), as fractions of full drive."""

    __slots__ = ()
    schema_name = "ColorSpaceAdobeRGBType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_tristimulus = Property(
        "ColorSpaceSpecificationSpectrumTristimulus",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_tristimulus = _creator(color_space_specification_spectrum_tristimulus)
    red = Property("Red", "Red channel, 0 to 1.")
    green = Property("Green", "Green channel, 0 to 1.")
    blue = Property("Blue", "Blue channel, 0 to 1.")
    alpha = Property("Alpha", "Opacity, 0 (transparent) to 1 (opaque).")
    color_depth = Property("ColorDepth", "Bits per channel that the value was quantised to.", ColorDepthKind)


class ColorSpaceAdobeWideGamutRGBType(ColorSpaceType):
    """A colour in Adobe Wide Gamut RGB, as fractions of full drive."""

    __slots__ = ()
    schema_name = "ColorSpaceAdobeWideGamutRGBType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_tristimulus = Property(
        "ColorSpaceSpecificationSpectrumTristimulus",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_tristimulus = _creator(color_space_specification_spectrum_tristimulus)
    red = Property("Red", "Red channel, 0 to 1.")
    green = Property("Green", "Green channel, 0 to 1.")
    blue = Property("Blue", "Blue channel, 0 to 1.")
    alpha = Property("Alpha", "Opacity, 0 (transparent) to 1 (opaque).")
    color_depth = Property("ColorDepth", "Bits per channel that the value was quantised to.", ColorDepthKind)


class ColorSpaceCMYKType(ColorSpaceType):
    """A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need be."""

    __slots__ = ()
    schema_name = "ColorSpaceCMYKType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    cyan = Property("Cyan", "Cyan in percent, 0 to 100.")
    magenta = Property("Magenta", "Magenta in percent, 0 to 100.")
    yellow = Property("Yellow", "Yellow in percent, 0 to 100.")
    black = Property("Black", "Black in percent, 0 to 100.")
    spot_colors = Property("SpotColor", "A spot ink printed besides the process inks.")


class ColorSpaceCMYKPlusNType(ColorSpaceCMYKType):
    """A process colour with further named ink channels."""

    __slots__ = ()
    schema_name = "ColorSpaceCMYKPlusNType"
    color_space_name = Property("ColorSpaceName", "Name of the ink set.")
    colors = Property("Color", "One further channel.")


class Color(Object):
    """One ink channel besides the process inks, by name and amount."""

    __slots__ = ()
    schema_name = "Color"
    name = Property("Name", "Name of the channel.")
    value = Property("Value", "Amount of the ink; no unit is stated.")


class ColorSpaceTINTORAOctavanticType(ColorSpaceType):
    """A process colour of six inks: cyan, magenta, yellow, black, orange and green."""

    __slots__ = ()
    schema_name = "ColorSpaceTINTORAOctavanticType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    cyan = Property("Cyan", "Cyan in percent, 0 to 100.")
    magenta = Property("Magenta", "Magenta in percent, 0 to 100.")
    yellow = Property("Yellow", "Yellow in percent, 0 to 100.")
    black = Property("Black", "Black in percent, 0 to 100.")
    orange = Property("Orange", "Orange in percent, 0 to 100.")
    green = Property("Green", "Green in percent, 0 to 100.")
    spot_colors = Property("SpotColor", "A spot ink printed besides the process inks.")


class ColorSpaceHSLType(ColorSpaceType):
    """A colour by hue, saturation and lightness."""

    __slots__ = ()
    schema_name = "ColorSpaceHSLType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    hue = Property("Hue", "Hue angle in degrees, from 0 to below 360.")
    saturation = Property("Saturation", "Saturation, 0 to 1.")
    lightness = Property("Lightness", "Lightness, 0 to 1.")


class ColorSpaceHSVType(ColorSpaceType):
    """A colour by hue, saturation and value."""

    __slots__ = ()
    schema_name = "ColorSpaceHSVType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    hue = Property("Hue", "Hue angle in degrees, from 0 to below 360.")
    saturation = Property("Saturation", "Saturation, 0 to 1.")
    value = Property("Value", "Value, the largest of the channels, 0 to 1.")


class ColorSpaceYUVType(ColorSpaceType):
    """A video colour by luma and the two colour differences of PAL."""

    __slots__ = ()
    schema_name = "ColorSpaceYUVType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    y = Property("Y", "Luma, 0 to 1.")
    u = Property("U", "Blue difference, -0.436 to 0.436.")
    v = Property("V", "Red difference, -0.615 to 0.615.")


class ColorSpaceYIQType(ColorSpaceType):
    """A video colour by luma, in-phase and quadrature signal, as in NTSC."""

    __slots__ = ()
    schema_name = "ColorSpaceYIQType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    y = Property("Y", "Luma, 0 to 1.")
    i = Property("I", "In-phase signal, orange to blue, -0.5957 to 0.5957.")
    q = Property("Q", "Quadrature signal, purple to green, -0.5226 to 0.5226.")


class ColorSpaceYBRType(ColorSpaceType):
    """A video colour by luma and the blue and red differences, all scaled to 0 to 1."""

    __slots__ = ()
    schema_name = "ColorSpaceYBRType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    y = Property("Y", "Luma, 0 to 1.")
    b = Property("B", "Blue difference, 0 to 1.")
    r = Property("R", "Red difference, 0 to 1.")


class ColorSpaceRGB(ElementFile, ColorSpaceRGBType):
    """A colour in a device's own RGB, as fractions of full drive."""

    __slots__ = ()
    schema_name = "ColorSpaceRGB"


class ColorSpaceSRGB(ElementFile, ColorSpaceSRGBType):
    """A colour in sRGB (IEC 61966-2-1), as fractions of full drive."""

    __slots__ = ()
    schema_name = "ColorSpaceSRGB"


class ColorSpaceAdobeRGB(ElementFile, ColorSpaceAdobeRGBType):
    """A colour in Adobe RGB (1998), as fractions of full drive."""

    __slots__ = ()
    schema_name = "ColorSpaceAdobeRGB"


class ColorSpaceCMYKPlusN(ElementFile, ColorSpaceCMYKPlusNType):
    """A process colour with further named ink channels."""

    __slots__ = ()
    schema_name = "ColorSpaceCMYKPlusN"


class ColorSpaceAdobeWideGamutRGB(ElementFile, ColorSpaceAdobeWideGamutRGBType):
    """A colour in Adobe Wide Gamut RGB, as fractions of full drive."""

    __slots__ = ()
    schema_name = "ColorSpaceAdobeWideGamutRGB"


class ColorSpaceHSL(ElementFile, ColorSpaceHSLType):
    """A colour by hue, saturation and lightness."""

    __slots__ = ()
    schema_name = "ColorSpaceHSL"


class ColorSpaceHSV(ElementFile, ColorSpaceHSVType):
    """A colour by hue, saturation and value."""

    __slots__ = ()
    schema_name = "ColorSpaceHSV"


class ColorSpaceCMYK(ElementFile, ColorSpaceCMYKType):
    """A process colour as percentages of cyan, magenta, yellow and black, with spot inks if need be."""

    __slots__ = ()
    schema_name = "ColorSpaceCMYK"


class ColorSpaceTINTORAOctavantic(ElementFile, ColorSpaceTINTORAOctavanticType):
    """A process colour of six inks: cyan, magenta, yellow, black, orange and green."""

    __slots__ = ()
    schema_name = "ColorSpaceTINTORAOctavantic"


class ColorSpaceYUV(ElementFile, ColorSpaceYUVType):
    """A video colour by luma and the two colour differences of PAL."""

    __slots__ = ()
    schema_name = "ColorSpaceYUV"


class ColorSpaceYIQ(ElementFile, ColorSpaceYIQType):
    """A video colour by luma, in-phase and quadrature signal, as in NTSC."""

    __slots__ = ()
    schema_name = "ColorSpaceYIQ"


class ColorSpaceYBR(ElementFile, ColorSpaceYBRType):
    """A video colour by luma and the blue and red differences, all scaled to 0 to 1."""

    __slots__ = ()
    schema_name = "ColorSpaceYBR"


class SpotColorType(Object):
    """A spot ink and how much of it is printed."""

    __slots__ = ()
    schema_name = "SpotColorType"
    name = Property("Name", "Name of the ink; not empty.")
    percentage = Property("Percentage", "Tone value in percent, 0 to 100.")
