# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic palettes."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._documents import ElementFile
from .._objects import List, Object, TimeList
from .._vyr import Property
from .header import CustomAttributeType, OwnerType, TagValue
from .groups import ColorSpaceChoice, ColorSpaceChoiceList, SubstrateChoice
from .conditions import (
    ColorSpaceSpecificationEmissiveGeneric,
    ColorSpaceSpecificationEmissiveSpectral,
    ColorSpaceSpecificationEmissiveTristimulus,
    ColorSpaceSpecificationSpectrumGeneric,
    ColorSpaceSpecificationSpectrumSpectral,
    ColorSpaceSpecificationSpectrumTristimulus,
)

__all__ = (
    "CollectionColorSpaceSpecificationType",
    "PaletteType",
    "ColorSetType",
    "ColorType",
    "CollectionColorSpaceSpecification",
)


class CollectionColorSpaceSpecificationType(Object):
    """Default measuring conditions of a collection, at most one for each kind of colour value."""
    def __init__(
        self,
        *,
        color_space_specification_spectrum_generic: ColorSpaceSpecificationSpectrumGeneric | None = ...,
        color_space_specification_spectrum_spectral: ColorSpaceSpecificationSpectrumSpectral | None = ...,
        color_space_specification_spectrum_tristimulus: ColorSpaceSpecificationSpectrumTristimulus | None = ...,
        color_space_specification_emissive_generic: ColorSpaceSpecificationEmissiveGeneric | None = ...,
        color_space_specification_emissive_spectral: ColorSpaceSpecificationEmissiveSpectral | None = ...,
        color_space_specification_emissive_tristimulus: ColorSpaceSpecificationEmissiveTristimulus | None = ...,
    ) -> None: ...
    color_space_specification_spectrum_generic: Property[ColorSpaceSpecificationSpectrumGeneric | None, ColorSpaceSpecificationSpectrumGeneric | None]
    """Default for reflective values without fixed conditions."""
    def create_color_space_specification_spectrum_generic(self, **values: Any) -> ColorSpaceSpecificationSpectrumGeneric:
        """Gives `color_space_specification_spectrum_generic`, which it makes if it isn't there, and sets properties
        of it."""
    color_space_specification_spectrum_spectral: Property[ColorSpaceSpecificationSpectrumSpectral | None, ColorSpaceSpecificationSpectrumSpectral | None]
    """Default for reflectance spectra."""
    def create_color_space_specification_spectrum_spectral(self, **values: Any) -> ColorSpaceSpecificationSpectrumSpectral:
        """Gives `color_space_specification_spectrum_spectral`, which it makes if it isn't there, and sets properties
        of it."""
    color_space_specification_spectrum_tristimulus: Property[ColorSpaceSpecificationSpectrumTristimulus | None, ColorSpaceSpecificationSpectrumTristimulus | None]
    """Default for reflective tristimulus values."""
    def create_color_space_specification_spectrum_tristimulus(self, **values: Any) -> ColorSpaceSpecificationSpectrumTristimulus:
        """Gives `color_space_specification_spectrum_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""
    color_space_specification_emissive_generic: Property[ColorSpaceSpecificationEmissiveGeneric | None, ColorSpaceSpecificationEmissiveGeneric | None]
    """Default for emissive values without fixed conditions."""
    def create_color_space_specification_emissive_generic(self, **values: Any) -> ColorSpaceSpecificationEmissiveGeneric:
        """Gives `color_space_specification_emissive_generic`, which it makes if it isn't there, and sets properties
        of it."""
    color_space_specification_emissive_spectral: Property[ColorSpaceSpecificationEmissiveSpectral | None, ColorSpaceSpecificationEmissiveSpectral | None]
    """Default for emission spectra."""
    def create_color_space_specification_emissive_spectral(self, **values: Any) -> ColorSpaceSpecificationEmissiveSpectral:
        """Gives `color_space_specification_emissive_spectral`, which it makes if it isn't there, and sets properties
        of it."""
    color_space_specification_emissive_tristimulus: Property[ColorSpaceSpecificationEmissiveTristimulus | None, ColorSpaceSpecificationEmissiveTristimulus | None]
    """Default for emissive tristimulus values."""
    def create_color_space_specification_emissive_tristimulus(self, **values: Any) -> ColorSpaceSpecificationEmissiveTristimulus:
        """Gives `color_space_specification_emissive_tristimulus`, which it makes if it isn't there, and sets
        properties of it."""

class PaletteType(Object):
    """A palette: a named, versioned collection of colour sets."""
    def __init__(
        self,
        *,
        palette_name: str = ...,
        palette_part_number: str | None = ...,
        palette_version: str | None = ...,
        unique_id: str | None = ...,
        comments: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        change_history: Iterable[datetime | str] = ...,
        owner: OwnerType | None = ...,
        semantic_associations: Iterable[str] = ...,
        collection_color_space_specification: CollectionColorSpaceSpecificationType | None = ...,
        color_sets: Iterable[ColorSetType] = ...,
    ) -> None: ...
    palette_name: Property[str, str]
    """Name of the palette."""
    palette_part_number: Property[str | None, str | None]
    """Part number under which the palette is sold or filed."""
    palette_version: Property[str | None, str | None]
    """Version of the palette."""
    unique_id: Property[str | None, str | None]
    """Identifier of the palette."""
    comments: Property[str | None, str | None]
    """Free remarks on the palette."""
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    change_history: Property[TimeList, Iterable[datetime | str]]
    """Time of one change, with time zone."""
    owner: Property[OwnerType | None, OwnerType | None]
    """Who owns the palette."""
    def create_owner(self, **values: Any) -> OwnerType:
        """Gives `owner`, which it makes if it isn't there, and sets properties of it."""
    semantic_associations: Property[List[str], Iterable[str]]
    """A word or notion that the palette stands for."""
    collection_color_space_specification: Property[CollectionColorSpaceSpecificationType | None, CollectionColorSpaceSpecificationType | None]
    """Default measuring conditions for the colours below."""
    def create_collection_color_space_specification(self, **values: Any) -> CollectionColorSpaceSpecificationType:
        """Gives `collection_color_space_specification`, which it makes if it isn't there, and sets properties of
        it."""
    color_sets: Property[List[ColorSetType], Iterable[ColorSetType]]
    """A colour set of the palette."""

class ColorSetType(Object):
    """A named group of colours, such as a page of a fan deck or one material's range."""
    def __init__(
        self,
        *,
        color_set_name: str = ...,
        unique_id: str | None = ...,
        part_number: str | None = ...,
        comments: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        change_history: Iterable[datetime | str] = ...,
        owner: OwnerType | None = ...,
        semantic_associations: Iterable[str] = ...,
        collection_color_space_specification: CollectionColorSpaceSpecificationType | None = ...,
        colors: Iterable[ColorType] = ...,
        substrate: SubstrateChoice | None = ...,
    ) -> None: ...
    color_set_name: Property[str, str]
    """Name of the colour set."""
    unique_id: Property[str | None, str | None]
    """Identifier of the colour set."""
    part_number: Property[str | None, str | None]
    """Part number under which the colour set is sold or filed."""
    comments: Property[str | None, str | None]
    """Free remarks on the colour set."""
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    change_history: Property[TimeList, Iterable[datetime | str]]
    """Time of one change, with time zone."""
    owner: Property[OwnerType | None, OwnerType | None]
    """Who owns the colour set."""
    def create_owner(self, **values: Any) -> OwnerType:
        """Gives `owner`, which it makes if it isn't there, and sets properties of it."""
    semantic_associations: Property[List[str], Iterable[str]]
    """A word or notion that the colour set stands for."""
    collection_color_space_specification: Property[CollectionColorSpaceSpecificationType | None, CollectionColorSpaceSpecificationType | None]
    """Default measuring conditions for the colours below."""
    def create_collection_color_space_specification(self, **values: Any) -> CollectionColorSpaceSpecificationType:
        """Gives `collection_color_space_specification`, which it makes if it isn't there, and sets properties of
        it."""
    colors: Property[List[ColorType], Iterable[ColorType]]
    """A colour of the set."""
    substrate: Property[SubstrateChoice | None, SubstrateChoice | None]
    """What the colours of the set are printed on or coated onto."""
    def create_substrate(self, **values: Any) -> SubstrateChoice:
        """Gives `substrate`, which it makes if it isn't there, and sets properties of it."""

class ColorType(Object):
    """A colour: its name and its values in one or more colour spaces."""
    def __init__(
        self,
        *,
        color_name: str = ...,
        unique_id: str | None = ...,
        color_number: str | None = ...,
        comments: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        change_history: Iterable[datetime | str] = ...,
        owner: OwnerType | None = ...,
        semantic_associations: Iterable[str] = ...,
        color_spaces: Iterable[ColorSpaceChoice | Object] = ...,
        substrate: SubstrateChoice | None = ...,
        tag_values: Iterable[TagValue] = ...,
    ) -> None: ...
    color_name: Property[str, str]
    """Name of the colour."""
    unique_id: Property[str | None, str | None]
    """Identifier of the colour."""
    color_number: Property[str | None, str | None]
    """Number of the colour in its collection."""
    comments: Property[str | None, str | None]
    """Free remarks on the colour."""
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    change_history: Property[TimeList, Iterable[datetime | str]]
    """Time of one change, with time zone."""
    owner: Property[OwnerType | None, OwnerType | None]
    """Who owns the colour."""
    def create_owner(self, **values: Any) -> OwnerType:
        """Gives `owner`, which it makes if it isn't there, and sets properties of it."""
    semantic_associations: Property[List[str], Iterable[str]]
    """A word or notion that the colour stands for."""
    color_spaces: Property[ColorSpaceChoiceList, Iterable[ColorSpaceChoice | Object]]
    """The colour's value in one colour space; the element's name says which."""
    substrate: Property[SubstrateChoice | None, SubstrateChoice | None]
    """What the colour is printed on, coated onto or measured on."""
    def create_substrate(self, **values: Any) -> SubstrateChoice:
        """Gives `substrate`, which it makes if it isn't there, and sets properties of it."""
    tag_values: Property[List[TagValue], Iterable[TagValue]]
    """Value of the colour under one tag."""

class CollectionColorSpaceSpecification(ElementFile, CollectionColorSpaceSpecificationType):
    """Default measuring conditions of a collection, standing alone."""
