# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic substrates."""

from .._documents import ElementFile
from .._objects import Object, _creator
from .._vyr import Property

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

    __slots__ = ()
    schema_name = "SubstrateType"
    abstract = True
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    part_number = Property("PartNumber", "The maker's number for the material.")
    color = Property("Color", "Colour of the bare substrate.")
    create_color = _creator(color)


class Substrate(SubstrateType):
    """Head of the substrates: any of them can stand in its place."""

    __slots__ = ()
    schema_name = "Substrate"
    abstract = True


class SubstratePaperType(SubstrateType):
    """Paper or board."""

    __slots__ = ()
    schema_name = "SubstratePaperType"
    paper_thickness = Property("PaperThickness", "Thickness of the paper; no unit is stated.")
    paper_type = Property("PaperType", "Kind of paper in words.")


class SubstrateGenericType(SubstrateType):
    """A material that has no type of its own."""

    __slots__ = ()
    schema_name = "SubstrateGenericType"
    type = Property("Type", "Kind of material in words; not empty.")


class SubstrateMetalType(SubstrateType):
    """Metal."""

    __slots__ = ()
    schema_name = "SubstrateMetalType"
    metal_weight = Property("MetalWeight", "Weight of the metal; no unit is stated.")
    metal_type = Property("MetalType", "Kind of metal in words.")


class SubstratePlasticType(SubstrateType):
    """Plastic."""

    __slots__ = ()
    schema_name = "SubstratePlasticType"
    plastic_weight = Property("PlasticWeight", "Weight of the plastic; no unit is stated.")
    plastic_type = Property("PlasticType", "Kind of plastic in words.")


class SubstrateWoodType(SubstrateType):
    """Wood."""

    __slots__ = ()
    schema_name = "SubstrateWoodType"
    wood_weight = Property("WoodWeight", "Weight of the wood; no unit is stated.")
    wood_type = Property("WoodType", "Kind of wood in words.")


class SubstrateVinylType(SubstrateType):
    """Vinyl."""

    __slots__ = ()
    schema_name = "SubstrateVinylType"
    vinyl_weight = Property("VinylWeight", "Weight of the vinyl; no unit is stated.")
    vinyl_type = Property("VinylType", "Kind of vinyl in words.")


class SubstrateTileType(SubstrateType):
    """Ceramic or other tile."""

    __slots__ = ()
    schema_name = "SubstrateTileType"
    tile_weight = Property("TileWeight", "Weight of the tile; no unit is stated.")
    tile_type = Property("TileType", "Kind of tile in words.")


class SubstrateFilmType(SubstrateType):
    """Film or foil."""

    __slots__ = ()
    schema_name = "SubstrateFilmType"
    film_weight = Property("FilmWeight", "Weight of the film; no unit is stated.")
    film_type = Property("FilmType", "Kind of film in words.")


class SubstrateTextileType(SubstrateType):
    """Textile."""

    __slots__ = ()
    schema_name = "SubstrateTextileType"
    textile_weight = Property("TextileWeight", "Weight of the textile; no unit is stated.")
    textile_type = Property("TextileType", "Kind of textile in words.")


class SubstratePaper(ElementFile, SubstratePaperType):
    """Paper or board."""

    __slots__ = ()
    schema_name = "SubstratePaper"


class SubstrateGeneric(ElementFile, SubstrateGenericType):
    """A material that has no type of its own."""

    __slots__ = ()
    schema_name = "SubstrateGeneric"


class SubstrateMetal(ElementFile, SubstrateMetalType):
    """Metal."""

    __slots__ = ()
    schema_name = "SubstrateMetal"


class SubstratePlastic(ElementFile, SubstratePlasticType):
    """Plastic."""

    __slots__ = ()
    schema_name = "SubstratePlastic"


class SubstrateWood(ElementFile, SubstrateWoodType):
    """Wood."""

    __slots__ = ()
    schema_name = "SubstrateWood"


class SubstrateVinyl(ElementFile, SubstrateVinylType):
    """Vinyl."""

    __slots__ = ()
    schema_name = "SubstrateVinyl"


class SubstrateTile(ElementFile, SubstrateTileType):
    """Ceramic or other tile."""

    __slots__ = ()
    schema_name = "SubstrateTile"


class SubstrateFilm(ElementFile, SubstrateFilmType):
    """Film or foil."""

    __slots__ = ()
    schema_name = "SubstrateFilm"


class SubstrateTextile(ElementFile, SubstrateTextileType):
    """Textile."""

    __slots__ = ()
    schema_name = "SubstrateTextile"
