# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic devices."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._objects import Choice, List, Object
from .._vyr import Property
from .enumerations import CalibrationKind, DeviceClassKind, ProfileDirectionKind
from .header import CustomAttributeType

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
    def __init__(
        self,
        *,
        calibration_date_time: datetime | str | None = ...,
        calibration_date_time_text: str | None = ...,
        value: CalibrationKind | int | str = ...,
    ) -> None: ...
    calibration_date_time: Property[datetime | None, datetime | str | None]
    """Time of the last calibration, with time zone."""
    calibration_date_time_text: Property[str | None, str | None]
    """Time of the last calibration, with time zone."""
    value: Property[CalibrationKind | None, CalibrationKind | int | str]
    """State of the calibration."""

class GlossCompensation(Object):
    """Switch and amount of a correction for gloss."""
    def __init__(self, *, compensation_value: float = ..., value: bool | None = ...) -> None: ...
    compensation_value: Property[float, float]
    """Amount of the correction."""
    value: Property[bool | None, bool | None]
    """Whether the correction is on."""

class Averaging(Object):
    """Switch and number of an averaging of readings."""
    def __init__(self, *, averaging_value: int = ..., value: bool | None = ...) -> None: ...
    averaging_value: Property[int, int]
    """Number of readings, 2 to 99."""
    value: Property[bool | None, bool | None]
    """Whether averaging is on."""

class DeviceSettings(Object):
    """Settings of an instrument during a measurement."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        aperture: int | None = ...,
        lens_position: int | None = ...,
        glass_compensation: bool | None = ...,
        gloss_compensation: GlossCompensation | None = ...,
        averaging: Averaging | None = ...,
        link_trimmer: bool | None = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    aperture: Property[int | None, int | None]
    """Aperture in the instrument's own unit, above 0."""
    lens_position: Property[int | None, int | None]
    """Position of the lens in the instrument's own unit."""
    glass_compensation: Property[bool | None, bool | None]
    """Whether the reading is corrected for glass above the sample."""
    gloss_compensation: Property[GlossCompensation | None, GlossCompensation | None]
    """Whether the reading is corrected for gloss, and by how much."""
    def create_gloss_compensation(self, **values: Any) -> GlossCompensation:
        """Gives `gloss_compensation`, which it makes if it isn't there, and sets properties of it."""
    averaging: Property[Averaging | None, Averaging | None]
    """Whether readings are averaged, and how many."""
    def create_averaging(self, **values: Any) -> Averaging:
        """Gives `averaging`, which it makes if it isn't there, and sets properties of it."""
    link_trimmer: Property[bool | None, bool | None]
    """Whether the instrument's link trimmer is on."""

class DeviceType(Object):
    """A measuring instrument or an output device."""
    def __init__(
        self,
        *,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        manufacturer: str = ...,
        model: str = ...,
        serial_number: str = ...,
        device_class: DeviceClassKind | int | str | None = ...,
        firmware_version: str | None = ...,
        boot_firmware_version: str | None = ...,
        calibration_state: CalibrationStateType | None = ...,
        device_settings: DeviceSettings | None = ...,
    ) -> None: ...
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    manufacturer: Property[str, str]
    """Who makes the device."""
    model: Property[str, str]
    """Model name."""
    serial_number: Property[str, str]
    """Serial number; may be empty."""
    device_class: Property[DeviceClassKind | None, DeviceClassKind | int | str | None]
    """Kind of instrument."""
    firmware_version: Property[str | None, str | None]
    """Version of the firmware."""
    boot_firmware_version: Property[str | None, str | None]
    """Version of the boot firmware."""
    calibration_state: Property[CalibrationStateType | None, CalibrationStateType | None]
    """Whether and when the device was calibrated."""
    def create_calibration_state(self, **values: Any) -> CalibrationStateType:
        """Gives `calibration_state`, which it makes if it isn't there, and sets properties of it."""
    device_settings: Property[DeviceSettings | None, DeviceSettings | None]
    """How the device was set."""
    def create_device_settings(self, **values: Any) -> DeviceSettings:
        """Gives `device_settings`, which it makes if it isn't there, and sets properties of it."""

class ProfileChoice(Choice):
    """A profile inline or by reference."""
    def __init__(self, *, profile_file: ProfileFile = ..., profile_uri: str = ...) -> None: ...
    profile_file: Property[ProfileFile | None, ProfileFile]
    """The profile inline."""
    def choose_profile_file(self, **values: Any) -> ProfileFile:
        """Gives `profile_file`, which it makes if it isn't chosen, and sets properties of it."""
    profile_uri: Property[str | None, str]
    """Where the profile can be found."""
    @property
    def chosen(self) -> Literal["profile_file", "profile_uri"] | None:
        """The name of the alternative that is held; None if none was chosen."""

class ProfileType(Object):
    """Colour profile of a device, by reference or inline."""
    def __init__(
        self,
        *,
        direction: ProfileDirectionKind | int | str = ...,
        profile_choice: ProfileChoice = ...,
        parameters: Iterable[ProfileType_Parameters] = ...,
        created: datetime | str | None = ...,
        created_text: str | None = ...,
    ) -> None: ...
    direction: Property[ProfileDirectionKind | None, ProfileDirectionKind | int | str]
    """Which way the profile converts."""
    profile_choice: Property[ProfileChoice | None, ProfileChoice]
    """The profile's data, or where to find it."""
    def create_profile_choice(self, **values: Any) -> ProfileChoice:
        """Gives `profile_choice`, which it makes if it isn't there, and sets properties of it."""
    parameters: Property[List[ProfileType_Parameters], Iterable[ProfileType_Parameters]]
    """A parameter of the profile."""
    created: Property[datetime | None, datetime | str | None]
    """When the profile was made, with time zone."""
    created_text: Property[str | None, str | None]
    """When the profile was made, with time zone."""

class ProfileFile(Object):
    """The bytes of a profile's file."""
    def __init__(self, *, profile_name: str | None = ..., value: bytes = ...) -> None: ...
    profile_name: Property[str | None, str | None]
    """Name of the file or of the profile."""
    value: Property[bytes, bytes]
    """The file's bytes, as base64."""

class ProfileType_Parameters_ValueChoice(Choice):
    """A floating-point number, an integer or a text."""
    def __init__(self, *, double_value: float = ..., integer_value: int = ..., string_value: str = ...) -> None: ...
    double_value: Property[float | None, float]
    """The value as a floating-point number."""
    integer_value: Property[int | None, int]
    """The value as an integer."""
    string_value: Property[str | None, str]
    """The value as a text."""
    @property
    def chosen(self) -> Literal["double_value", "integer_value", "string_value"] | None:
        """The name of the alternative that is held; None if none was chosen."""

class ProfileType_Parameters(Object):
    """A parameter of a profile, by a name of one letter and a value."""
    def __init__(self, *, name: str = ..., value_choice: ProfileType_Parameters_ValueChoice = ...) -> None: ...
    name: Property[str, str]
    """Name of the parameter, exactly one character."""
    value_choice: Property[ProfileType_Parameters_ValueChoice | None, ProfileType_Parameters_ValueChoice]
    """Value of the parameter."""
    def create_value_choice(self, **values: Any) -> ProfileType_Parameters_ValueChoice:
        """Gives `value_choice`, which it makes if it isn't there, and sets properties of it."""
