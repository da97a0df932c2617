# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic substrates."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._documents import ElementFile
from .._objects import List, Object
from .._vyr import Property
from .header import CustomAttributeType
from .palettes import ColorType

__all__ = (
    "SubstrateType",
    "Substrate",
    "SubstratePaperType",
    "SubstrateGenericType",
    "SubstrateMetalType",
    "SubstratePlasticType",
    "SubstrateWoodType",
    "SubstrateVinylType",
    "SubstrateTileType",
    "SubstrateFilmType",
    "SubstrateTextileType",
    "SubstratePaper",
    "SubstrateGeneric",
    "SubstrateMetal",
    "SubstratePlastic",
    "SubstrateWood",
    "SubstrateVinyl",
    "SubstrateTile",
    "SubstrateFilm",
    "SubstrateTextile",
)


class SubstrateType(Object):
    """What a colour is printed on, coated onto or measured on."""
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    part_number: Property[str | None, str | None]
    """The maker's number for the material."""
    color: Property[ColorType | None, ColorType | None]
    """Colour of the bare substrate."""
    def create_color(self, **values: Any) -> ColorType:
        """Gives `color`, which it makes if it isn't there, and sets properties of it."""

class Substrate(SubstrateType):
    """Head of the substrates: any of them can stand in its place."""

class SubstratePaperType(SubstrateType):
    """Paper or board."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        part_number: str | None = ...,
        color: ColorType | None = ...,
        paper_thickness: float | None = ...,
        paper_type: str | None = ...,
    ) -> None: ...
    paper_thickness: Property[float | None, float | None]
    """Thickness of the paper; no unit is stated."""
    paper_type: Property[str | None, str | None]
    """Kind of paper in words."""

class SubstrateGenericType(SubstrateType):
    """A material that has no type of its own."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        part_number: str | None = ...,
        color: ColorType | None = ...,
        type: str = ...,
    ) -> None: ...
    type: Property[str, str]
    """Kind of material in words; not empty."""

class SubstrateMetalType(SubstrateType):
    """Metal."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        part_number: str | None = ...,
        color: ColorType | None = ...,
        metal_weight: float | None = ...,
        metal_type: str | None = ...,
    ) -> None: ...
    metal_weight: Property[float | None, float | None]
    """Weight of the metal; no unit is stated."""
    metal_type: Property[str | None, str | None]
    """Kind of metal in words."""

class SubstratePlasticType(SubstrateType):
    """Plastic."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        part_number: str | None = ...,
        color: ColorType | None = ...,
        plastic_weight: float | None = ...,
        plastic_type: str | None = ...,
    ) -> None: ...
    plastic_weight: Property[float | None, float | None]
    """Weight of the plastic; no unit is stated."""
    plastic_type: Property[str | None, str | None]
    """Kind of plastic in words."""

class SubstrateWoodType(SubstrateType):
    """Wood."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        part_number: str | None = ...,
        color: ColorType | None = ...,
        wood_weight: float | None = ...,
        wood_type: str | None = ...,
    ) -> None: ...
    wood_weight: Property[float | None, float | None]
    """Weight of the wood; no unit is stated."""
    wood_type: Property[str | None, str | None]
    """Kind of wood in words."""

class SubstrateVinylType(SubstrateType):
    """Vinyl."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        part_number: str | None = ...,
        color: ColorType | None = ...,
        vinyl_weight: float | None = ...,
        vinyl_type: str | None = ...,
    ) -> None: ...
    vinyl_weight: Property[float | None, float | None]
    """Weight of the vinyl; no unit is stated."""
    vinyl_type: Property[str | None, str | None]
    """Kind of vinyl in words."""

class SubstrateTileType(SubstrateType):
    """Ceramic or other tile."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        part_number: str | None = ...,
        color: ColorType | None = ...,
        tile_weight: float | None = ...,
        tile_type: str | None = ...,
    ) -> None: ...
    tile_weight: Property[float | None, float | None]
    """Weight of the tile; no unit is stated."""
    tile_type: Property[str | None, str | None]
    """Kind of tile in words."""

class SubstrateFilmType(SubstrateType):
    """Film or foil."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        part_number: str | None = ...,
        color: ColorType | None = ...,
        film_weight: float | None = ...,
        film_type: str | None = ...,
    ) -> None: ...
    film_weight: Property[float | None, float | None]
    """Weight of the film; no unit is stated."""
    film_type: Property[str | None, str | None]
    """Kind of film in words."""

class SubstrateTextileType(SubstrateType):
    """Textile."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        part_number: str | None = ...,
        color: ColorType | None = ...,
        textile_weight: float | None = ...,
        textile_type: str | None = ...,
    ) -> None: ...
    textile_weight: Property[float | None, float | None]
    """Weight of the textile; no unit is stated."""
    textile_type: Property[str | None, str | None]
    """Kind of textile in words."""

class SubstratePaper(ElementFile, SubstratePaperType):
    """Paper or board."""

class SubstrateGeneric(ElementFile, SubstrateGenericType):
    """A material that has no type of its own."""

class SubstrateMetal(ElementFile, SubstrateMetalType):
    """Metal."""

class SubstratePlastic(ElementFile, SubstratePlasticType):
    """Plastic."""

class SubstrateWood(ElementFile, SubstrateWoodType):
    """Wood."""

class SubstrateVinyl(ElementFile, SubstrateVinylType):
    """Vinyl."""

class SubstrateTile(ElementFile, SubstrateTileType):
    """Ceramic or other tile."""

class SubstrateFilm(ElementFile, SubstrateFilmType):
    """Film or foil."""

class SubstrateTextile(ElementFile, SubstrateTextileType):
    """Textile."""
