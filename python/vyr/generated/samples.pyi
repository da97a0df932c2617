# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic samples."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._documents import ElementFile
from .._objects import List, Object
from .._vyr import Property
from .enumerations import BackingKind, TargetKind
from .header import CustomAttributeType
from .groups import SubstrateChoice

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
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    substrate: Property[SubstrateChoice | None, SubstrateChoice]
    """Material of the sample."""
    def create_substrate(self, **values: Any) -> SubstrateChoice:
        """Gives `substrate`, which it makes if it isn't there, and sets properties of it."""
    backing: Property[BackingKind | None, BackingKind | int | str | None]
    """What lay behind the sample while it was measured."""
    manufacturer: Property[str | None, str | None]
    """Who made the sample."""
    production_date: Property[datetime | None, datetime | str | None]
    """When the sample was made, with time zone."""
    production_date_text: Property[str | None, str | None]
    """When the sample was made, with time zone."""
    serial_number: Property[str | None, str | None]
    """Serial number of the sample."""
    comment: Property[str | None, str | None]
    """Free remarks on the sample."""

class Sample(SampleType):
    """Head of the samples: any of them can stand in its place."""

class Specification(Object):
    """Width and height of a patch."""
    def __init__(self, *, sample_width: float = ..., sample_height: float = ...) -> None: ...
    sample_width: Property[float, float]
    """Width; no unit is stated."""
    sample_height: Property[float, float]
    """Height; no unit is stated."""

class SampleSpotType(SampleType):
    """A single patch of one colour."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        substrate: SubstrateChoice = ...,
        backing: BackingKind | int | str | None = ...,
        manufacturer: str | None = ...,
        production_date: datetime | str | None = ...,
        production_date_text: str | None = ...,
        serial_number: str | None = ...,
        comment: str | None = ...,
        specification: Specification = ...,
    ) -> None: ...
    specification: Property[Specification | None, Specification]
    """Size of the patch."""
    def create_specification(self, **values: Any) -> Specification:
        """Gives `specification`, which it makes if it isn't there, and sets properties of it."""

class SampleTargetType(SampleType):
    """A test chart of many patches."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        substrate: SubstrateChoice = ...,
        backing: BackingKind | int | str | None = ...,
        manufacturer: str | None = ...,
        production_date: datetime | str | None = ...,
        production_date_text: str | None = ...,
        serial_number: str | None = ...,
        comment: str | None = ...,
        custom_target: str | None = ...,
        target: TargetKind | int | str = ...,
    ) -> None: ...
    custom_target: Property[str | None, str | None]
    """Name of the chart where Target is Target_Custom."""
    target: Property[TargetKind | None, TargetKind | int | str]
    """The chart."""

class SampleSpot(ElementFile, SampleSpotType):
    """A single patch of one colour."""

class SampleTarget(ElementFile, SampleTargetType):
    """A test chart of many patches."""
