# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic palettes."""

from .._documents import ElementFile
from .._objects import Object, _creator
from .._vyr import Property
from .groups import ColorSpaceChoiceList

__all__ = (
    "CollectionColorSpaceSpecificationType",
    "PaletteType",
    "ColorSetType",
    "ColorType",
    "CollectionColorSpaceSpecification",
)


class CollectionColorSpaceSpecificationType(Object):
    """Default measuring conditions of a collection, at most one for each kind of colour value."""

    __slots__ = ()
    schema_name = "CollectionColorSpaceSpecificationType"
    color_space_specification_spectrum_generic = Property(
        "ColorSpaceSpecificationSpectrumGeneric",
        "Default for reflective values without fixed conditions.",
    )
    create_color_space_specification_spectrum_generic = _creator(color_space_specification_spectrum_generic)
    color_space_specification_spectrum_spectral = Property(
        "ColorSpaceSpecificationSpectrumSpectral",
        "Default for reflectance spectra.",
    )
    create_color_space_specification_spectrum_spectral = _creator(color_space_specification_spectrum_spectral)
    color_space_specification_spectrum_tristimulus = Property(
        "ColorSpaceSpecificationSpectrumTristimulus",
        "Default for reflective tristimulus values.",
    )
    create_color_space_specification_spectrum_tristimulus = _creator(color_space_specification_spectrum_tristimulus)
    color_space_specification_emissive_generic = Property(
        "ColorSpaceSpecificationEmissiveGeneric",
        "Default for emissive values without fixed conditions.",
    )
    create_color_space_specification_emissive_generic = _creator(color_space_specification_emissive_generic)
    color_space_specification_emissive_spectral = Property(
        "ColorSpaceSpecificationEmissiveSpectral",
        "Default for emission spectra.",
    )
    create_color_space_specification_emissive_spectral = _creator(color_space_specification_emissive_spectral)
    color_space_specification_emissive_tristimulus = Property(
        "ColorSpaceSpecificationEmissiveTristimulus",
        "Default for emissive tristimulus values.",
    )
    create_color_space_specification_emissive_tristimulus = _creator(color_space_specification_emissive_tristimulus)


class PaletteType(Object):
    """A palette: a named, versioned collection of colour sets."""

    __slots__ = ()
    schema_name = "PaletteType"
    palette_name = Property("PaletteName", "Name of the palette.")
    palette_part_number = Property("PalettePartNumber", "Part number under which the palette is sold or filed.")
    palette_version = Property("PaletteVersion", "Version of the palette.")
    unique_id = Property("UniqueID", "Identifier of the palette.")
    comments = Property("Comments", "Free remarks on the palette.")
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    change_history = Property("ChangeHistory", "Time of one change, with time zone.")
    owner = Property("Owner", "Who owns the palette.")
    create_owner = _creator(owner)
    semantic_associations = Property("SemanticAssociation", "A word or notion that the palette stands for.")
    collection_color_space_specification = Property(
        "CollectionColorSpaceSpecification",
        "Default measuring conditions for the colours below.",
    )
    create_collection_color_space_specification = _creator(collection_color_space_specification)
    color_sets = Property("ColorSet", "A colour set of the palette.")


class ColorSetType(Object):
    """A named group of colours, such as a page of a fan deck or one material's range."""

    __slots__ = ()
    schema_name = "ColorSetType"
    color_set_name = Property("ColorSetName", "Name of the colour set.")
    unique_id = Property("UniqueID", "Identifier of the colour set.")
    part_number = Property("PartNumber", "Part number under which the colour set is sold or filed.")
    comments = Property("Comments", "Free remarks on the colour set.")
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    change_history = Property("ChangeHistory", "Time of one change, with time zone.")
    owner = Property("Owner", "Who owns the colour set.")
    create_owner = _creator(owner)
    semantic_associations = Property("SemanticAssociation", "A word or notion that the colour set stands for.")
    collection_color_space_specification = Property(
        "CollectionColorSpaceSpecification",
        "Default measuring conditions for the colours below.",
    )
    create_collection_color_space_specification = _creator(collection_color_space_specification)
    colors = Property("Color", "A colour of the set.")
    substrate = Property("Substrate", "What the colours of the set are printed on or coated onto.")
    create_substrate = _creator(substrate)


class ColorType(Object):
    """A colour: its name and its values in one or more colour spaces."""

    __slots__ = ()
    schema_name = "ColorType"
    color_name = Property("ColorName", "Name of the colour.")
    unique_id = Property("UniqueID", "Identifier of the colour.")
    color_number = Property("ColorNumber", "Number of the colour in its collection.")
    comments = Property("Comments", "Free remarks on the colour.")
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    change_history = Property("ChangeHistory", "Time of one change, with time zone.")
    owner = Property("Owner", "Who owns the colour.")
    create_owner = _creator(owner)
    semantic_associations = Property("SemanticAssociation", "A word or notion that the colour stands for.")
    color_spaces = Property(
        "ColorSpace",
        "The colour's value in one colour space; the element's name says which.",
        ColorSpaceChoiceList,
    )
    substrate = Property("Substrate", "What the colour is printed on, coated onto or measured on.")
    create_substrate = _creator(substrate)
    tag_values = Property("TagValues", "Value of the colour under one tag.")


class CollectionColorSpaceSpecification(ElementFile, CollectionColorSpaceSpecificationType):
    """Default measuring conditions of a collection, standing alone."""

    __slots__ = ()
    schema_name = "CollectionColorSpaceSpecification"
