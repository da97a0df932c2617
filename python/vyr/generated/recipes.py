# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic recipes."""

from .._documents import ElementFile
from .._objects import Object, _creator
from .._vyr import Property
from .enumerations import FinishKind, GamutKind
from .color_values import ColorSpaceType

__all__ = (
    "ColorName",
    "Recipe",
    "ColorSpaceTINTORAType",
    "Colorant",
    "ColorantElement",
    "CustomAttributes",
    "ColorAndFinish",
    "ColorSpaceNCSType",
    "ColorSpaceMunsellType",
    "Base",
    "BaseElementType",
    "ColorSpaceRecipeType",
    "ColorSpaceRecipe",
    "ColorSpaceTINTORA",
    "ColorSpaceNCS",
    "ColorSpaceMunsell",
    "Density",
    "ColorantElementType_Colorant",
    "ColorantElementType",
)


class ColorName(Object):
    """A colour's name in the three parts by which a collection orders it."""

    __slots__ = ()
    schema_name = "ColorName"
    prefix_name = Property("PrefixName", "What stands ahead of the name proper.")
    base_name = Property("BaseName", "The name proper.")
    suffix_name = Property("SuffixName", "What follows the name proper, such as the finish.")


class Recipe(Object):
    """A mixture of colorants."""

    __slots__ = ()
    schema_name = "Recipe"
    colorant_elements = Property("ColorantElement", "One colorant with its share.")


class ColorSpaceTINTORAType(ColorSpaceType):
    """A colour of the TINTORA collection, by family, name and page."""

    __slots__ = ()
    schema_name = "ColorSpaceTINTORAType"
    name = Property("Name", "Name of the value.")
    family_name = Property("FamilyName", "Colour family.")
    color_name = Property("ColorName", "Name of the colour in its three parts.")
    create_color_name = _creator(color_name)
    page = Property("Page", "Page of the guide that shows the colour.")
    gamut = Property("Gamut", "Smallest gamut in which the colour can be shown.", GamutKind)
    recipe = Property("Recipe", "How the colour is mixed.")
    create_recipe = _creator(recipe)
    color_and_finishes = Property("ColorAndFinish", "Spectrum of the colour in one finish.")


class Colorant(Object):
    """A dye, pigment or base ink of a recipe, known by its name."""

    __slots__ = ()
    schema_name = "Colorant"
    custom_attributes = Property("CustomAttributes", "A named value of the user's own.")
    name = Property("Name", "Name of the colorant; not empty.")
    manufacturer = Property("Manufacturer", "Who makes the colorant; not empty.")
    part_number = Property("PartNumber", "The maker's number for it; not empty.")
    density = Property("Density", "Density of the colorant, above 0; no unit is stated.")


class ColorantElement(Object):
    """A colorant and its share in a mixture."""

    __slots__ = ()
    schema_name = "ColorantElement"
    colorant = Property("Colorant", "The colorant.")
    create_colorant = _creator(colorant)
    contribution = Property("Contribution", "Share of the colorant, 0 or more, in the unit of the recipe.")


class CustomAttributes(Object):
    """An envelope around one named value of the user's own."""

    __slots__ = ()
    schema_name = "CustomAttributes"
    custom_attribute = Property("CustomAttribute", "The named value.")
    create_custom_attribute = _creator(custom_attribute)


class ColorAndFinish(Object):
    """How a colour looks in one finish of the paper."""

    __slots__ = ()
    schema_name = "ColorAndFinish"
    finish = Property("Finish", "The finish.", FinishKind)
    color_space_spectral = Property("ColorSpaceSpectral", "Reflectance spectrum in that finish.")
    create_color_space_spectral = _creator(color_space_spectral)


class ColorSpaceNCSType(ColorSpaceType):
    """A colour by its notation in the Natural Colour System."""

    __slots__ = ()
    schema_name = "ColorSpaceNCSType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    color_name = Property("ColorName", "The notation.")


class ColorSpaceMunsellType(ColorSpaceType):
    """A colour by its notation in a Munsell collection."""

    __slots__ = ()
    schema_name = "ColorSpaceMunsellType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    collection_name = Property("CollectionName", "Which Munsell collection; not empty.")
    color_name = Property("ColorName", "The notation by hue, value and chroma; not empty.")


class Base(Object):
    """The carrier that colorants are mixed into."""

    __slots__ = ()
    schema_name = "Base"
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    name = Property("Name", "Name of the base; not empty.")
    manufacturer = Property("Manufacturer", "Who makes the base; not empty.")
    part_number = Property("PartNumber", "The maker's number for it; not empty.")
    density = Property("Density", "Density of the base, above 0; no unit is stated.")


class BaseElementType(Object):
    """The base of a mixture and its share."""

    __slots__ = ()
    schema_name = "BaseElementType"
    base = Property("Base", "The base.")
    create_base = _creator(base)
    contribution = Property("Contribution", "Share of the base, 0 or more, in the unit of the recipe.")


class ColorSpaceRecipeType(ColorSpaceType):
    """A colour by the colorants that give it."""

    __slots__ = ()
    schema_name = "ColorSpaceRecipeType"
    name = Property("Name", "Name of the value.")
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Conditions under which the value holds.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    colorant_elements = Property("ColorantElement", "One colorant with its share.")
    base_element = Property("BaseElement", "The base that the colorants are mixed into.")
    create_base_element = _creator(base_element)


class ColorSpaceRecipe(ElementFile, ColorSpaceRecipeType):
    """A colour by the colorants that give it."""

    __slots__ = ()
    schema_name = "ColorSpaceRecipe"


class ColorSpaceTINTORA(ElementFile, ColorSpaceTINTORAType):
    """A colour of the TINTORA collection, by family, name and page."""

    __slots__ = ()
    schema_name = "ColorSpaceTINTORA"


class ColorSpaceNCS(ElementFile, ColorSpaceNCSType):
    """A colour by its notation in the Natural Colour System."""

    __slots__ = ()
    schema_name = "ColorSpaceNCS"


class ColorSpaceMunsell(ElementFile, ColorSpaceMunsellType):
    """A colour by its notation in a Munsell collection."""

    __slots__ = ()
    schema_name = "ColorSpaceMunsell"


class Density(Object):
    """Density of the colorant, above 0 and without a stated unit, or nil where it is unknown."""

    __slots__ = ()
    schema_name = "Density"
    value = Property(
        "Density",
        "Density of the colorant, above 0 and without a stated unit, or nil where it is unknown.",
    )


class ColorantElementType_Colorant(Object):
    """A dye, pigment or base ink, known by name, maker and part number."""

    __slots__ = ()
    schema_name = "ColorantElementType_Colorant"
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    name = Property("Name", "Name of the colorant; not empty.")
    manufacturer = Property("Manufacturer", "Who makes the colorant; not empty.")
    part_number = Property("PartNumber", "The maker's number for it; not empty.")
    density = Property(
        "Density",
        "Density of the colorant, above 0 and without a stated unit, or nil where it is unknown.",
    )
    create_density = _creator(density)


class ColorantElementType(Object):
    """A colorant and its fraction of a mixture."""

    __slots__ = ()
    schema_name = "ColorantElementType"
    colorant = Property("Colorant", "The colorant.")
    create_colorant = _creator(colorant)
    contribution = Property("Contribution", "Share of the colorant in the mixture, 0 to 1.")
