# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic devices."""

from .._objects import Choice, Object, _creator
from .._vyr import Property
from .enumerations import CalibrationKind, DeviceClassKind, ProfileDirectionKind

__all__ = (
    "CalibrationStateType",
    "GlossCompensation",
    "Averaging",
    "DeviceSettings",
    "DeviceType",
    "ProfileChoice",
    "ProfileType",
    "ProfileFile",
    "ProfileType_Parameters_ValueChoice",
    "ProfileType_Parameters",
)


class CalibrationStateType(Object):
    """Whether a device was calibrated, and when."""

    __slots__ = ()
    schema_name = "CalibrationStateType"
    calibration_date_time = Property("CalibrationDateTime", "Time of the last calibration, with time zone.")
    calibration_date_time_text = Property("CalibrationDateTime", "Time of the last calibration, with time zone.", str)
    value = Property("CalibrationStateType", "State of the calibration.", CalibrationKind)


class GlossCompensation(Object):
    """Switch and amount of a correction for gloss."""

    __slots__ = ()
    schema_name = "GlossCompensation"
    compensation_value = Property("CompensationValue", "Amount of the correction.")
    value = Property("GlossCompensation", "Whether the correction is on.")


class Averaging(Object):
    """Switch and number of an averaging of readings."""

    __slots__ = ()
    schema_name = "Averaging"
    averaging_value = Property("AveragingValue", "Number of readings, 2 to 99.")
    value = Property("Averaging", "Whether averaging is on.")


class DeviceSettings(Object):
    """Settings of an instrument during a measurement."""

    __slots__ = ()
    schema_name = "DeviceSettings"
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    aperture = Property("Aperture", "Aperture in the instrument's own unit, above 0.")
    lens_position = Property("LensPosition", "Position of the lens in the instrument's own unit.")
    glass_compensation = Property("GlassCompensation", "Whether the reading is corrected for glass above the sample.")
    gloss_compensation = Property("GlossCompensation", "Whether the reading is corrected for gloss, and by how much.")
    create_gloss_compensation = _creator(gloss_compensation)
    averaging = Property("Averaging", "Whether readings are averaged, and how many.")
    create_averaging = _creator(averaging)
    link_trimmer = Property("LinkTrimmer", "Whether the instrument's link trimmer is on.")


class DeviceType(Object):
    """A measuring instrument or an output device."""

    __slots__ = ()
    schema_name = "DeviceType"
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    manufacturer = Property("Manufacturer", "Who makes the device.")
    model = Property("Model", "Model name.")
    serial_number = Property("SerialNumber", "Serial number; may be empty.")
    device_class = Property("DeviceClass", "Kind of instrument.", DeviceClassKind)
    firmware_version = Property("FirmwareVersion", "Version of the firmware.")
    boot_firmware_version = Property("BootFirmwareVersion", "Version of the boot firmware.")
    calibration_state = Property("CalibrationState", "Whether and when the device was calibrated.")
    create_calibration_state = _creator(calibration_state)
    device_settings = Property("DeviceSettings", "How the device was set.")
    create_device_settings = _creator(device_settings)


class ProfileChoice(Choice):
    """A profile inline or by reference."""

    __slots__ = ()
    schema_name = "ProfileChoice"
    profile_file = Property("ProfileFile", "The profile inline.")
    choose_profile_file = _creator(profile_file)
    profile_uri = Property("ProfileURI", "Where the profile can be found.")
    alternatives = ("profile_file", "profile_uri")


class ProfileType(Object):
    """Colour profile of a device, by reference or inline."""

    __slots__ = ()
    schema_name = "ProfileType"
    direction = Property("Direction", "Which way the profile converts.", ProfileDirectionKind)
    profile_choice = Property("ProfileChoice", "The profile's data, or where to find it.")
    create_profile_choice = _creator(profile_choice)
    parameters = Property("Parameters", "A parameter of the profile.")
    created = Property("Created", "When the profile was made, with time zone.")
    created_text = Property("Created", "When the profile was made, with time zone.", str)


class ProfileFile(Object):
    """The bytes of a profile's file."""

    __slots__ = ()
    schema_name = "ProfileFile"
    profile_name = Property("ProfileName", "Name of the file or of the profile.")
    value = Property("ProfileFile", "The file's bytes, as base64.")


class ProfileType_Parameters_ValueChoice(Choice):
    """A floating-point number, an integer or a text."""

    __slots__ = ()
    schema_name = "ProfileType_Parameters_ValueChoice"
    double_value = Property("DoubleValue", "The value as a floating-point number.")
    integer_value = Property("IntegerValue", "The value as an integer.")
    string_value = Property("StringValue", "The value as a text.")
    alternatives = ("double_value", "integer_value", "string_value")


class ProfileType_Parameters(Object):
    """A parameter of a profile, by a name of one letter and a value."""

    __slots__ = ()
    schema_name = "ProfileType_Parameters"
    name = Property("Name", "Name of the parameter, exactly one character.")
    value_choice = Property("ValueChoice", "Value of the parameter.")
    create_value_choice = _creator(value_choice)
