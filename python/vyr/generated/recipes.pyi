# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic recipes."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._documents import ElementFile
from .._objects import List, Object
from .._vyr import Property
from .enumerations import FinishKind, GamutKind
from .header import CustomAttributeType
from .color_values import ColorSpaceType, ParentColorSpace
from .sampled_color_values import ColorSpaceSpectralType
from .conditions import ColorSpaceSpecificationSpectrumGeneric

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
    def __init__(self, *, prefix_name: str = ..., base_name: str = ..., suffix_name: str = ...) -> None: ...
    prefix_name: Property[str, str]
    """What stands ahead of the name proper."""
    base_name: Property[str, str]
    """The name proper."""
    suffix_name: Property[str, str]
    """What follows the name proper, such as the finish."""

class Recipe(Object):
    """A mixture of colorants."""
    def __init__(self, *, colorant_elements: Iterable[ColorantElement] = ...) -> None: ...
    colorant_elements: Property[List[ColorantElement], Iterable[ColorantElement]]
    """One colorant with its share."""

class ColorSpaceTINTORAType(ColorSpaceType):
    """A colour of the TINTORA collection, by family, name and page."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        parent_color_space: ParentColorSpace | None = ...,
        change_history: Iterable[datetime | str] = ...,
        name: str | None = ...,
        family_name: str = ...,
        color_name: ColorName = ...,
        page: str = ...,
        gamut: GamutKind | int | str = ...,
        recipe: Recipe | None = ...,
        color_and_finishes: Iterable[ColorAndFinish] = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    family_name: Property[str, str]
    """Colour family."""
    color_name: Property[ColorName | None, ColorName]
    """Name of the colour in its three parts."""
    def create_color_name(self, **values: Any) -> ColorName:
        """Gives `color_name`, which it makes if it isn't there, and sets properties of it."""
    page: Property[str, str]
    """Page of the guide that shows the colour."""
    gamut: Property[GamutKind | None, GamutKind | int | str]
    """Smallest gamut in which the colour can be shown."""
    recipe: Property[Recipe | None, Recipe | None]
    """How the colour is mixed."""
    def create_recipe(self, **values: Any) -> Recipe:
        """Gives `recipe`, which it makes if it isn't there, and sets properties of it."""
    color_and_finishes: Property[List[ColorAndFinish], Iterable[ColorAndFinish]]
    """Spectrum of the colour in one finish."""

class Colorant(Object):
    """A dye, pigment or base ink of a recipe, known by its name."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributes] = ...,
        name: str = ...,
        manufacturer: str | None = ...,
        part_number: str | None = ...,
        density: float | None = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributes], Iterable[CustomAttributes]]
    """A named value of the user's own."""
    name: Property[str, str]
    """Name of the colorant; not empty."""
    manufacturer: Property[str | None, str | None]
    """Who makes the colorant; not empty."""
    part_number: Property[str | None, str | None]
    """The maker's number for it; not empty."""
    density: Property[float | None, float | None]
    """Density of the colorant, above 0; no unit is stated."""

class ColorantElement(Object):
    """A colorant and its share in a mixture."""
    def __init__(self, *, colorant: Colorant = ..., contribution: float = ...) -> None: ...
    colorant: Property[Colorant | None, Colorant]
    """The colorant."""
    def create_colorant(self, **values: Any) -> Colorant:
        """Gives `colorant`, which it makes if it isn't there, and sets properties of it."""
    contribution: Property[float, float]
    """Share of the colorant, 0 or more, in the unit of the recipe."""

class CustomAttributes(Object):
    """An envelope around one named value of the user's own."""
    def __init__(self, *, custom_attribute: CustomAttributeType = ...) -> None: ...
    custom_attribute: Property[CustomAttributeType | None, CustomAttributeType]
    """The named value."""
    def create_custom_attribute(self, **values: Any) -> CustomAttributeType:
        """Gives `custom_attribute`, which it makes if it isn't there, and sets properties of it."""

class ColorAndFinish(Object):
    """How a colour looks in one finish of the paper."""
    def __init__(self, *, finish: FinishKind | int | str = ..., color_space_spectral: ColorSpaceSpectralType = ...) -> None: ...
    finish: Property[FinishKind | None, FinishKind | int | str]
    """The finish."""
    color_space_spectral: Property[ColorSpaceSpectralType | None, ColorSpaceSpectralType]
    """Reflectance spectrum in that finish."""
    def create_color_space_spectral(self, **values: Any) -> ColorSpaceSpectralType:
        """Gives `color_space_spectral`, which it makes if it isn't there, and sets properties of it."""

class ColorSpaceNCSType(ColorSpaceType):
    """A colour by its notation in the Natural Colour System."""
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
        color_name: str = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    color_name: Property[str, str]
    """The notation."""

class ColorSpaceMunsellType(ColorSpaceType):
    """A colour by its notation in a Munsell collection."""
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
        collection_name: str = ...,
        color_name: str = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    collection_name: Property[str, str]
    """Which Munsell collection; not empty."""
    color_name: Property[str, str]
    """The notation by hue, value and chroma; not empty."""

class Base(Object):
    """The carrier that colorants are mixed into."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        name: str = ...,
        manufacturer: str = ...,
        part_number: str = ...,
        density: float | None = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    name: Property[str, str]
    """Name of the base; not empty."""
    manufacturer: Property[str, str]
    """Who makes the base; not empty."""
    part_number: Property[str, str]
    """The maker's number for it; not empty."""
    density: Property[float | None, float | None]
    """Density of the base, above 0; no unit is stated."""

class BaseElementType(Object):
    """The base of a mixture and its share."""
    def __init__(self, *, base: Base = ..., contribution: float = ...) -> None: ...
    base: Property[Base | None, Base]
    """The base."""
    def create_base(self, **values: Any) -> Base:
        """Gives `base`, which it makes if it isn't there, and sets properties of it."""
    contribution: Property[float, float]
    """Share of the base, 0 or more, in the unit of the recipe."""

class ColorSpaceRecipeType(ColorSpaceType):
    """A colour by the colorants that give it."""
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
        colorant_elements: Iterable[ColorantElementType] = ...,
        base_element: BaseElementType | None = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the value."""
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric]
    """Conditions under which the value holds."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    colorant_elements: Property[List[ColorantElementType], Iterable[ColorantElementType]]
    """One colorant with its share."""
    base_element: Property[BaseElementType | None, BaseElementType | None]
    """The base that the colorants are mixed into."""
    def create_base_element(self, **values: Any) -> BaseElementType:
        """Gives `base_element`, which it makes if it isn't there, and sets properties of it."""

class ColorSpaceRecipe(ElementFile, ColorSpaceRecipeType):
    """A colour by the colorants that give it."""

class ColorSpaceTINTORA(ElementFile, ColorSpaceTINTORAType):
    """A colour of the TINTORA collection, by family, name and page."""

class ColorSpaceNCS(ElementFile, ColorSpaceNCSType):
    """A colour by its notation in the Natural Colour System."""

class ColorSpaceMunsell(ElementFile, ColorSpaceMunsellType):
    """A colour by its notation in a Munsell collection."""

class Density(Object):
    """Density of the colorant, above 0 and without a stated unit, or nil where it is unknown."""
    def __init__(self, *, value: float = ...) -> None: ...
    value: Property[float, float]
    """Density of the colorant, above 0 and without a stated unit, or nil where it is unknown."""

class ColorantElementType_Colorant(Object):
    """A dye, pigment or base ink, known by name, maker and part number."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        name: str = ...,
        manufacturer: str = ...,
        part_number: str = ...,
        density: Density = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    name: Property[str, str]
    """Name of the colorant; not empty."""
    manufacturer: Property[str, str]
    """Who makes the colorant; not empty."""
    part_number: Property[str, str]
    """The maker's number for it; not empty."""
    density: Property[Density | None, Density]
    """Density of the colorant, above 0 and without a stated unit, or nil where it is unknown."""
    def create_density(self, **values: Any) -> Density:
        """Gives `density`, which it makes if it isn't there, and sets properties of it."""

class ColorantElementType(Object):
    """A colorant and its fraction of a mixture."""
    def __init__(self, *, colorant: ColorantElementType_Colorant = ..., contribution: float = ...) -> None: ...
    colorant: Property[ColorantElementType_Colorant | None, ColorantElementType_Colorant]
    """The colorant."""
    def create_colorant(self, **values: Any) -> ColorantElementType_Colorant:
        """Gives `colorant`, which it makes if it isn't there, and sets properties of it."""
    contribution: Property[float, float]
    """Share of the colorant in the mixture, 0 to 1."""
