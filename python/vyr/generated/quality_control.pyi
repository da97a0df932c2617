# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic quality_control."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._documents import ElementFile
from .._objects import List, Object, TimeList
from .._vyr import Property
from .enumerations import IlluminantKind, ObserverKind
from .header import CustomAttributeType
from .groups import FunctionChoice, FunctionChoiceList, SampleChoice
from .palettes import ColorType
from .conditions import GeometryChoiceType
from .devices import DeviceType

__all__ = (
    "LimitsType",
    "ToleranceType",
    "Process",
    "PhysicalSampleType",
    "ColorQualityControlType",
    "Measurement",
    "Standard",
    "StandardAndMeasurementType",
)


class LimitsType(Object):
    """Limits of a function's result."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        high_tolerance: float = ...,
        low_tolerance: float | None = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    high_tolerance: Property[float, float]
    """Upper limit, in the unit of the result."""
    low_tolerance: Property[float | None, float | None]
    """Lower limit, in the unit of the result."""

class ToleranceType(Object):
    """A function, the limits for its result, and the viewing conditions that it is evaluated for."""
    def __init__(
        self,
        *,
        name: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        function: FunctionChoice = ...,
        limits: LimitsType | None = ...,
        primary_illuminant: IlluminantKind | int | str | None = ...,
        secondary_illuminant: IlluminantKind | int | str | None = ...,
        tertiary_illuminant: IlluminantKind | int | str | None = ...,
        field_of_view: ObserverKind | int | str | None = ...,
        warning_level: float | None = ...,
        unique_id: str | None = ...,
        global_: bool | None = ...,
        geometry: GeometryChoiceType | None = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the tolerance."""
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    function: Property[FunctionChoice | None, FunctionChoice]
    """The function whose result is limited."""
    def create_function(self, **values: Any) -> FunctionChoice:
        """Gives `function`, which it makes if it isn't there, and sets properties of it."""
    limits: Property[LimitsType | None, LimitsType | None]
    """Limits of the result."""
    def create_limits(self, **values: Any) -> LimitsType:
        """Gives `limits`, which it makes if it isn't there, and sets properties of it."""
    primary_illuminant: Property[IlluminantKind | None, IlluminantKind | int | str | None]
    """First illuminant of the evaluation."""
    secondary_illuminant: Property[IlluminantKind | None, IlluminantKind | int | str | None]
    """Second illuminant, for metamerism."""
    tertiary_illuminant: Property[IlluminantKind | None, IlluminantKind | int | str | None]
    """Third illuminant, for metamerism."""
    field_of_view: Property[ObserverKind | None, ObserverKind | int | str | None]
    """Standard observer of the evaluation."""
    warning_level: Property[float | None, float | None]
    """Level from which a result calls for attention though it still passes."""
    unique_id: Property[str | None, str | None]
    """Identifier of the tolerance."""
    global_: Property[bool | None, bool | None]
    """Whether the tolerance holds for all measurements."""
    geometry: Property[GeometryChoiceType | None, GeometryChoiceType | None]
    """Measuring geometry that the tolerance holds for."""
    def create_geometry(self, **values: Any) -> GeometryChoiceType:
        """Gives `geometry`, which it makes if it isn't there, and sets properties of it."""

class Process(Object):
    """A production process."""
    def __init__(self, *, name: str = ..., thickness: float | None = ...) -> None: ...
    name: Property[str, str]
    """Name of the process; not empty."""
    thickness: Property[float | None, float | None]
    """Thickness that the process leaves, 0 or more; no unit is stated."""

class PhysicalSampleType(Object):
    """A physical sample and how it was made."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        coating: str | None = ...,
        process: Process | None = ...,
        sample: SampleChoice = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    coating: Property[str | None, str | None]
    """Coating of the sample in words."""
    process: Property[Process | None, Process | None]
    """How the sample was made."""
    def create_process(self, **values: Any) -> Process:
        """Gives `process`, which it makes if it isn't there, and sets properties of it."""
    sample: Property[SampleChoice | None, SampleChoice]
    """The sample: a spot or a target."""
    def create_sample(self, **values: Any) -> SampleChoice:
        """Gives `sample`, which it makes if it isn't there, and sets properties of it."""

class ColorQualityControlType(Object):
    """A comparison of measurements with their standards under given tolerances."""
    def __init__(
        self,
        *,
        name: str | None = ...,
        description: str | None = ...,
        unique_id: str | None = ...,
        comments: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        change_history: Iterable[datetime | str] = ...,
        standard_and_measurements: Iterable[StandardAndMeasurementType] = ...,
        physical_sample: PhysicalSampleType | None = ...,
        tolerances: Iterable[ToleranceType] = ...,
    ) -> None: ...
    name: Property[str | None, str | None]
    """Name of the record."""
    description: Property[str | None, str | None]
    """Description of the record."""
    unique_id: Property[str | None, str | None]
    """Identifier of the record."""
    comments: Property[str | None, str | None]
    """Free remarks on the record."""
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    change_history: Property[TimeList, Iterable[datetime | str]]
    """Time of one change, with time zone."""
    standard_and_measurements: Property[List[StandardAndMeasurementType], Iterable[StandardAndMeasurementType]]
    """A standard with what was measured against it."""
    physical_sample: Property[PhysicalSampleType | None, PhysicalSampleType | None]
    """The physical sample that was measured."""
    def create_physical_sample(self, **values: Any) -> PhysicalSampleType:
        """Gives `physical_sample`, which it makes if it isn't there, and sets properties of it."""
    tolerances: Property[List[ToleranceType], Iterable[ToleranceType]]
    """A tolerance for all comparisons of the record."""

class Measurement(ElementFile, Object):
    """A measured colour, the device that measured it, and what was computed from it."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        device: DeviceType = ...,
        color: ColorType = ...,
        functions: Iterable[FunctionChoice | Object] = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    device: Property[DeviceType | None, DeviceType]
    """Instrument of the measurement."""
    def create_device(self, **values: Any) -> DeviceType:
        """Gives `device`, which it makes if it isn't there, and sets properties of it."""
    color: Property[ColorType | None, ColorType]
    """The colour measured."""
    def create_color(self, **values: Any) -> ColorType:
        """Gives `color`, which it makes if it isn't there, and sets properties of it."""
    functions: Property[FunctionChoiceList, Iterable[FunctionChoice | Object]]
    """A function of this measurement and its standard."""

class Standard(ElementFile, Object):
    """A target colour, the device that measured it, and the tolerances around it."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        device: DeviceType = ...,
        color: ColorType = ...,
        tolerances: Iterable[ToleranceType] = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    device: Property[DeviceType | None, DeviceType]
    """Instrument that measured the standard."""
    def create_device(self, **values: Any) -> DeviceType:
        """Gives `device`, which it makes if it isn't there, and sets properties of it."""
    color: Property[ColorType | None, ColorType]
    """The target colour."""
    def create_color(self, **values: Any) -> ColorType:
        """Gives `color`, which it makes if it isn't there, and sets properties of it."""
    tolerances: Property[List[ToleranceType], Iterable[ToleranceType]]
    """A tolerance around the target."""

class StandardAndMeasurementType(Object):
    """A standard and the measurements that are compared with it."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        measurements: Iterable[Measurement] = ...,
        standard: Standard = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    measurements: Property[List[Measurement], Iterable[Measurement]]
    """A measurement."""
    standard: Property[Standard | None, Standard]
    """The standard."""
    def create_standard(self, **values: Any) -> Standard:
        """Gives `standard`, which it makes if it isn't there, and sets properties of it."""
