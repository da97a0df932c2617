# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic color_values."""

from .._documents import ElementFile
from .._objects import Object, _creator
from .._vyr import Property

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

    __slots__ = ()
    schema_name = "ParentColorSpace"
    color_space = Property("ColorSpace", "The parent's value; the element's name says in which colour space.")
    create_color_space = _creator(color_space)


class ColorSpaceType(Object):
    """A colour value in some colour space."""

    __slots__ = ()
    schema_name = "ColorSpaceType"
    abstract = True
    comments = Property("Comments", "Free remarks on the value.")
    unique_id = Property("UniqueID", "Identifier of the value.")
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    parent_color_space = Property("ParentColorSpace", "The value that this one was computed from.")
    create_parent_color_space = _creator(parent_color_space)
    change_history = Property("ChangeHistory", "Time of one change, with time zone.")


class ColorSpace(ColorSpaceType):
    """Head of the colour values: any of them can stand in its place."""

    __slots__ = ()
    schema_name = "ColorSpace"
    abstract = True


class ColorSpaceCIELabType(ColorSpaceType):
    """A reflective colour in CIE 1976 L*a*b*."""

    __slots__ = ()
    schema_name = "ColorSpaceCIELabType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_tristimulus = Property(
        "ColorSpaceSpecificationSpectrumTristimulus",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_tristimulus = _creator(color_space_specification_spectrum_tristimulus)
    l = Property("L", "Lightness L*, 0 (black) to 150; 100 is the perfect diffuser.")
    a = Property("A", "a*, from green (negative) to red, -150 to 150.")
    b = Property("B", "b*, from blue (negative) to yellow, -150 to 150.")


class ColorSpaceCIELChType(ColorSpaceType):
    """A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*."""

    __slots__ = ()
    schema_name = "ColorSpaceCIELChType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_tristimulus = Property(
        "ColorSpaceSpecificationSpectrumTristimulus",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_tristimulus = _creator(color_space_specification_spectrum_tristimulus)
    l = Property("L", "Lightness L*, 0 to 100.")
    c = Property("C", "Chroma C*, 0 (neutral) to 150.")
    h = Property("H", "Hue angle h in degrees, from 0 to below 360.")


class ColorSpaceCIELuvType(ColorSpaceType):
    """A reflective colour in CIE 1976 L*u*v*."""

    __slots__ = ()
    schema_name = "ColorSpaceCIELuvType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_tristimulus = Property(
        "ColorSpaceSpecificationSpectrumTristimulus",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_tristimulus = _creator(color_space_specification_spectrum_tristimulus)
    l = Property("L", "Lightness L*, 0 to 100.")
    u = Property("U", "u*, from green (negative) to red, -134 to 220.")
    v = Property("V", "v*, from blue (negative) to yellow, -140 to 122.")


class ColorSpaceCIEXYZType(ColorSpaceType):
    """A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1."""

    __slots__ = ()
    schema_name = "ColorSpaceCIEXYZType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_tristimulus = Property(
        "ColorSpaceSpecificationSpectrumTristimulus",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_tristimulus = _creator(color_space_specification_spectrum_tristimulus)
    x = Property("X", "Tristimulus value X, 0 to 1.")
    y = Property("Y", "Tristimulus value Y, the luminance factor, 0 to 1.")
    z = Property("Z", "Tristimulus value Z, 0 to 1.")


class ColorSpaceCIExyYType(ColorSpaceType):
    """A reflective colour by its CIE chromaticity and luminance factor."""

    __slots__ = ()
    schema_name = "ColorSpaceCIExyYType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_tristimulus = Property(
        "ColorSpaceSpecificationSpectrumTristimulus",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_tristimulus = _creator(color_space_specification_spectrum_tristimulus)
    x = Property("X", "Chromaticity coordinate x, 0 to 1.")
    y = Property("Y", "Chromaticity coordinate y, 0 to 1.")
    cap_y = Property("CapY", "Luminance factor Y, 0 to 1.")


class ColorSpaceEmissiveCIEXYZType(ColorSpaceType):
    """An emissive colour in CIE XYZ; absolute, hence without an upper bound."""

    __slots__ = ()
    schema_name = "ColorSpaceEmissiveCIEXYZType"
    name = Property("Name", "Name of the value.")
    color_space_specification_emissive_tristimulus = Property(
        "ColorSpaceSpecificationEmissiveTristimulus",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_emissive_tristimulus = _creator(color_space_specification_emissive_tristimulus)
    x = Property("X", "Tristimulus value X, 0 or more.")
    y = Property("Y", "Tristimulus value Y, 0 or more.")
    z = Property("Z", "Tristimulus value Z, 0 or more.")


class ColorSpaceEmissiveCIExyYType(ColorSpaceType):
    """An emissive colour by its CIE chromaticity and luminance."""

    __slots__ = ()
    schema_name = "ColorSpaceEmissiveCIExyYType"
    name = Property("Name", "Name of the value.")
    color_space_specification_emissive_tristimulus = Property(
        "ColorSpaceSpecificationEmissiveTristimulus",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_emissive_tristimulus = _creator(color_space_specification_emissive_tristimulus)
    x = Property("X", "Chromaticity coordinate x, 0 to 1.")
    y = Property("Y", "Chromaticity coordinate y, 0 to 1.")
    cap_y = Property("CapY", "Luminance Y, 0 or more.")


class ColorSpaceCIELab(ElementFile, ColorSpaceCIELabType):
    """A reflective colour in CIE 1976 L*a*b*."""

    __slots__ = ()
    schema_name = "ColorSpaceCIELab"


class ColorSpaceCIELCh(ElementFile, ColorSpaceCIELChType):
    """A reflective colour in CIE L*C*h, the polar form of CIE 1976 L*a*b*."""

    __slots__ = ()
    schema_name = "ColorSpaceCIELCh"


class ColorSpaceCIEXYZ(ElementFile, ColorSpaceCIEXYZType):
    """A reflective colour in CIE XYZ, scaled so that Y of the perfect diffuser is 1."""

    __slots__ = ()
    schema_name = "ColorSpaceCIEXYZ"


class ColorSpaceEmissiveCIEXYZ(ElementFile, ColorSpaceEmissiveCIEXYZType):
    """An emissive colour in CIE XYZ; absolute, hence without an upper bound."""

    __slots__ = ()
    schema_name = "ColorSpaceEmissiveCIEXYZ"


class ColorSpaceCIExyY(ElementFile, ColorSpaceCIExyYType):
    """A reflective colour by its CIE chromaticity and luminance factor."""

    __slots__ = ()
    schema_name = "ColorSpaceCIExyY"


class ColorSpaceEmissiveCIExyY(ElementFile, ColorSpaceEmissiveCIExyYType):
    """An emissive colour by its CIE chromaticity and luminance."""

    __slots__ = ()
    schema_name = "ColorSpaceEmissiveCIExyY"


class ColorSpaceCIELuv(ElementFile, ColorSpaceCIELuvType):
    """A reflective colour in CIE 1976 L*u*v*."""

    __slots__ = ()
    schema_name = "ColorSpaceCIELuv"
