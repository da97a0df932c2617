# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic quality_control."""

from .._documents import ElementFile
from .._objects import Object, _creator
from .._vyr import Property
from .enumerations import IlluminantKind, ObserverKind
from .groups import FunctionChoiceList

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

    __slots__ = ()
    schema_name = "LimitsType"
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    high_tolerance = Property("HighTolerance", "Upper limit, in the unit of the result.")
    low_tolerance = Property("LowTolerance", "Lower limit, in the unit of the result.")


class ToleranceType(Object):
    """A function, the limits for its result, and the viewing conditions that it is evaluated for."""

    __slots__ = ()
    schema_name = "ToleranceType"
    name = Property("Name", "Name of the tolerance.")
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    function = Property("Function", "The function whose result is limited.")
    create_function = _creator(function)
    limits = Property("Limits", "Limits of the result.")
    create_limits = _creator(limits)
    primary_illuminant = Property("PrimaryIlluminant", "First illuminant of the evaluation.", IlluminantKind)
    secondary_illuminant = Property("SecondaryIlluminant", "Second illuminant, for metamerism.", IlluminantKind)
    tertiary_illuminant = Property("TertiaryIlluminant", "Third illuminant, for metamerism.", IlluminantKind)
    field_of_view = Property("FieldOfView", "Standard observer of the evaluation.", ObserverKind)
    warning_level = Property("WarningLevel", "Level from which a result calls for attention though it still passes.")
    unique_id = Property("UniqueID", "Identifier of the tolerance.")
    global_ = Property("Global", "Whether the tolerance holds for all measurements.")
    geometry = Property("Geometry", "Measuring geometry that the tolerance holds for.")
    create_geometry = _creator(geometry)


class Process(Object):
    """A production process."""

    __slots__ = ()
    schema_name = "Process"
    name = Property("Name", "Name of the process; not empty.")
    thickness = Property("Thickness", "Thickness that the process leaves, 0 or more; no unit is stated.")


class PhysicalSampleType(Object):
    """A physical sample and how it was made."""

    __slots__ = ()
    schema_name = "PhysicalSampleType"
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    coating = Property("Coating", "Coating of the sample in words.")
    process = Property("Process", "How the sample was made.")
    create_process = _creator(process)
    sample = Property("Sample", "The sample: a spot or a target.")
    create_sample = _creator(sample)


class ColorQualityControlType(Object):
    """A comparison of measurements with their standards under given tolerances."""

    __slots__ = ()
    schema_name = "ColorQualityControlType"
    name = Property("Name", "Name of the record.")
    description = Property("Description", "Description of the record.")
    unique_id = Property("UniqueID", "Identifier of the record.")
    comments = Property("Comments", "Free remarks on the record.")
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    change_history = Property("ChangeHistory", "Time of one change, with time zone.")
    standard_and_measurements = Property("StandardAndMeasurement", "A standard with what was measured against it.")
    physical_sample = Property("PhysicalSample", "The physical sample that was measured.")
    create_physical_sample = _creator(physical_sample)
    tolerances = Property("Tolerance", "A tolerance for all comparisons of the record.")


class Measurement(ElementFile, Object):
    """A measured colour, the device that measured it, and what was computed from it."""

    __slots__ = ()
    schema_name = "Measurement"
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    device = Property("Device", "Instrument of the measurement.")
    create_device = _creator(device)
    color = Property("Color", "The colour measured.")
    create_color = _creator(color)
    functions = Property("Function", "A function of this measurement and its standard.", FunctionChoiceList)


class Standard(ElementFile, Object):
    """A target colour, the device that measured it, and the tolerances around it."""

    __slots__ = ()
    schema_name = "Standard"
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    device = Property("Device", "Instrument that measured the standard.")
    create_device = _creator(device)
    color = Property("Color", "The target colour.")
    create_color = _creator(color)
    tolerances = Property("Tolerance", "A tolerance around the target.")


class StandardAndMeasurementType(Object):
    """A standard and the measurements that are compared with it."""

    __slots__ = ()
    schema_name = "StandardAndMeasurementType"
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    measurements = Property("Measurement", "A measurement.")
    standard = Property("Standard", "The standard.")
    create_standard = _creator(standard)
