# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic samples."""

from .._documents import ElementFile
from .._objects import Object, _creator
from .._vyr import Property
from .enumerations import BackingKind, TargetKind

__all__ = (
    "SampleType",
    "Sample",
    "Specification",
    "SampleSpotType",
    "SampleTargetType",
    "SampleSpot",
    "SampleTarget",
)


class SampleType(Object):
    """The physical thing that carried a measurement."""

    __slots__ = ()
    schema_name = "SampleType"
    abstract = True
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    substrate = Property("Substrate", "Material of the sample.")
    create_substrate = _creator(substrate)
    backing = Property("Backing", "What lay behind the sample while it was measured.", BackingKind)
    manufacturer = Property("Manufacturer", "Who made the sample.")
    production_date = Property("ProductionDate", "When the sample was made, with time zone.")
    production_date_text = Property("ProductionDate", "When the sample was made, with time zone.", str)
    serial_number = Property("SerialNumber", "Serial number of the sample.")
    comment = Property("Comment", "Free remarks on the sample.")


class Sample(SampleType):
    """Head of the samples: any of them can stand in its place."""

    __slots__ = ()
    schema_name = "Sample"
    abstract = True


class Specification(Object):
    """Width and height of a patch."""

    __slots__ = ()
    schema_name = "Specification"
    sample_width = Property("SampleWidth", "Width; no unit is stated.")
    sample_height = Property("SampleHeight", "Height; no unit is stated.")


class SampleSpotType(SampleType):
    """A single patch of one colour."""

    __slots__ = ()
    schema_name = "SampleSpotType"
    specification = Property("Specification", "Size of the patch.")
    create_specification = _creator(specification)


class SampleTargetType(SampleType):
    """A test chart of many patches."""

    __slots__ = ()
    schema_name = "SampleTargetType"
    custom_target = Property("CustomTarget", "Name of the chart where Target is Target_Custom.")
    target = Property("Target", "The chart.", TargetKind)


class SampleSpot(ElementFile, SampleSpotType):
    """A single patch of one colour."""

    __slots__ = ()
    schema_name = "SampleSpot"


class SampleTarget(ElementFile, SampleTargetType):
    """A test chart of many patches."""

    __slots__ = ()
    schema_name = "SampleTarget"
