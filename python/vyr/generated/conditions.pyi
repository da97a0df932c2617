# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic conditions."""

import builtins
from collections.abc import Iterable
from datetime import datetime
from typing import Any, Literal

from .._documents import ElementFile
from .._objects import Choice, List, Object, TimeList
from .._vyr import Property
from .enumerations import (
    AstmTableKind,
    DensityStatusKind,
    DeviceFilterKind,
    EmissiveKind,
    EmissiveModeKind,
    IlluminantKind,
    ObserverKind,
    SpectrumKind,
    SphereGeometryKind,
)
from .header import CustomAttributeType
from .devices import DeviceType, ProfileType

__all__ = (
    "DeviceFilterType",
    "DeviceFilter",
    "DevicePolarization",
    "ColorSpaceSpecificationType",
    "SpectrumType",
    "ColorSpaceSpecificationSpectrumType",
    "ColorSpaceSpecificationEmissiveType",
    "GeometryChoiceType",
    "IlluminationOptionsType",
    "ColorSpaceSpecificationSpectrumGenericType",
    "ColorSpaceSpecificationSpectrumTristimulusType",
    "ColorSpaceSpecificationSpectrumSpectralType",
    "ColorSpaceSpecificationEmissiveGenericType",
    "ColorSpaceSpecificationEmissiveTristimulusType",
    "ColorSpaceSpecificationEmissiveSpectralType",
    "ColorSpaceSpecification",
    "ColorSpaceSpecificationSpectrum",
    "ColorSpaceSpecificationSpectrumGeneric",
    "ColorSpaceSpecificationSpectrumTristimulus",
    "ColorSpaceSpecificationSpectrumSpectral",
    "ColorSpaceSpecificationEmissive",
    "ColorSpaceSpecificationEmissiveGeneric",
    "ColorSpaceSpecificationEmissiveTristimulus",
    "ColorSpaceSpecificationEmissiveSpectral",
    "Illuminant",
    "WhitePointChromaticity",
    "BSDFAngle",
    "Azimuth",
)


class DeviceFilterType(Object):
    """Filter in the light path of an instrument."""
    def __init__(self, *, custom_or_partial: str | None = ..., value: DeviceFilterKind | int | str = ...) -> None: ...
    custom_or_partial: Property[str | None, str | None]
    """Description of the filter where the content is Filter_Custom or Filter_Partial."""
    value: Property[DeviceFilterKind | None, DeviceFilterKind | int | str]
    """The filter."""

class DeviceFilter(DeviceFilterType):
    """Filter in the light path of the instrument, or nil. Readers may meet none; a writer needs the filter or nil."""
    def __init__(self, *, custom_or_partial: str | None = ..., value: DeviceFilterKind | int | str = ...) -> None: ...

class DevicePolarization(Object):
    """Whether polarising filters were used, or nil where it is unknown."""
    def __init__(self, *, value: bool = ...) -> None: ...
    value: Property[bool, bool]
    """Whether polarising filters were used, or nil where it is unknown."""

class ColorSpaceSpecificationType(Object):
    """Conditions under which a colour value holds: device, filter, polarisation and profile."""
    comments: Property[str | None, str | None]
    """Free remarks on the conditions."""
    unique_id: Property[str | None, str | None]
    """Identifier of the specification."""
    custom_attributes: Property[List[CustomAttributeType], Iterable[CustomAttributeType]]
    """A named value of the user's own."""
    profile: Property[ProfileType | None, ProfileType | None]
    """Profile of the device."""
    def create_profile(self, **values: Any) -> ProfileType:
        """Gives `profile`, which it makes if it isn't there, and sets properties of it."""
    device: Property[DeviceType | None, DeviceType | None]
    """Instrument that measured, or device that shows the colour."""
    def create_device(self, **values: Any) -> DeviceType:
        """Gives `device`, which it makes if it isn't there, and sets properties of it."""
    device_filter: Property[DeviceFilter | None, DeviceFilter | None]
    """Filter in the light path of the instrument, or nil. Readers may meet none; a writer needs the filter or nil."""
    def create_device_filter(self, **values: Any) -> DeviceFilter:
        """Gives `device_filter`, which it makes if it isn't there, and sets properties of it."""
    device_polarization: Property[DevicePolarization | None, DevicePolarization]
    """Whether polarising filters were used, or nil where it is unknown."""
    def create_device_polarization(self, **values: Any) -> DevicePolarization:
        """Gives `device_polarization`, which it makes if it isn't there, and sets properties of it."""
    change_history: Property[TimeList, Iterable[datetime | str]]
    """Time of one change, with time zone."""

class SpectrumType(Object):
    """Which spectral quantity was measured."""
    def __init__(self, *, custom_type_name: str | None = ..., value: SpectrumKind | int | str = ...) -> None: ...
    custom_type_name: Property[str | None, str | None]
    """Name of the quantity where the content is Spectrum_Custom."""
    value: Property[SpectrumKind | None, SpectrumKind | int | str]
    """The quantity."""

class ColorSpaceSpecificationSpectrumType(ColorSpaceSpecificationType):
    """Conditions of a reflective or transmissive value."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        spectrum: SpectrumType = ...,
    ) -> None: ...
    spectrum: Property[SpectrumType | None, SpectrumType]
    """Which spectral quantity was measured."""
    def create_spectrum(self, **values: Any) -> SpectrumType:
        """Gives `spectrum`, which it makes if it isn't there, and sets properties of it."""

class ColorSpaceSpecificationEmissiveType(ColorSpaceSpecificationType):
    """Conditions of an emissive value."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        emissive_type: EmissiveKind | int | str = ...,
        emissive_mode: EmissiveModeKind | int | str = ...,
    ) -> None: ...
    emissive_type: Property[EmissiveKind | None, EmissiveKind | int | str]
    """How the light source was measured."""
    emissive_mode: Property[EmissiveModeKind | None, EmissiveModeKind | int | str]
    """Whether a diffuser was in place."""

class GeometryChoiceType(Choice):
    """Measuring geometry of an instrument: sphere, single angle, multi-angle or other."""
    def __init__(
        self,
        *,
        sphere_geometry: SphereGeometryKind | int | str = ...,
        angle: float = ...,
        unknown_geometry: str = ...,
        bsdf_angle: BSDFAngle = ...,
    ) -> None: ...
    sphere_geometry: Property[SphereGeometryKind | None, SphereGeometryKind | int | str]
    """Integrating sphere, with the specular component included or excluded."""
    angle: Property[float | None, float]
    """Measuring angle in degrees."""
    unknown_geometry: Property[str | None, str]
    """Another geometry in words; not empty."""
    bsdf_angle: Property[BSDFAngle | None, BSDFAngle]
    """Angles of a multi-angle measurement."""
    def choose_bsdf_angle(self, **values: Any) -> BSDFAngle:
        """Gives `bsdf_angle`, which it makes if it isn't chosen, and sets properties of it."""
    @property
    def chosen(self) -> Literal["sphere_geometry", "angle", "unknown_geometry", "bsdf_angle"] | None:
        """The name of the alternative that is held; None if none was chosen."""

class IlluminationOptionsType(Choice):
    """Illumination by standard illuminant, chromaticity or colour temperature."""
    def __init__(
        self,
        *,
        description: str | None = ...,
        illuminant: Illuminant = ...,
        white_point_chromaticity: WhitePointChromaticity = ...,
        color_temperature: int = ...,
    ) -> None: ...
    description: Property[str | None, str | None]
    """Free description of the illumination."""
    illuminant: Property[Illuminant | None, Illuminant]
    """The illumination as a standard illuminant."""
    def choose_illuminant(self, **values: Any) -> Illuminant:
        """Gives `illuminant`, which it makes if it isn't chosen, and sets properties of it."""
    white_point_chromaticity: Property[WhitePointChromaticity | None, WhitePointChromaticity]
    """The illumination by the chromaticity of its white."""
    def choose_white_point_chromaticity(self, **values: Any) -> WhitePointChromaticity:
        """Gives `white_point_chromaticity`, which it makes if it isn't chosen, and sets properties of it."""
    color_temperature: Property[int | None, int]
    """The illumination by correlated colour temperature in kelvins, above 0."""
    @property
    def chosen(self) -> Literal["illuminant", "white_point_chromaticity", "color_temperature"] | None:
        """The name of the alternative that is held; None if none was chosen."""

class ColorSpaceSpecificationSpectrumGenericType(ColorSpaceSpecificationSpectrumType):
    """Conditions of a reflective value in any colour space."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        spectrum: SpectrumType = ...,
        geometry_choice: GeometryChoiceType | None = ...,
        illumination_options: IlluminationOptionsType | None = ...,
        field_of_view: ObserverKind | int | str | None = ...,
        astm_table: AstmTableKind | int | str | None = ...,
        gamma: float | None = ...,
        density_status: DensityStatusKind | int | str | None = ...,
    ) -> None: ...
    geometry_choice: Property[GeometryChoiceType | None, GeometryChoiceType | None]
    """Measuring geometry."""
    def create_geometry_choice(self, **values: Any) -> GeometryChoiceType:
        """Gives `geometry_choice`, which it makes if it isn't there, and sets properties of it."""
    illumination_options: Property[IlluminationOptionsType | None, IlluminationOptionsType | None]
    """Illumination that the value holds for."""
    def create_illumination_options(self, **values: Any) -> IlluminationOptionsType:
        """Gives `illumination_options`, which it makes if it isn't there, and sets properties of it."""
    field_of_view: Property[ObserverKind | None, ObserverKind | int | str | None]
    """Standard observer that the value holds for."""
    astm_table: Property[AstmTableKind | None, AstmTableKind | int | str | None]
    """Weighting tables used for the tristimulus integration."""
    gamma: Property[float | None, float | None]
    """Gamma of the device, the exponent of its tone curve."""
    density_status: Property[DensityStatusKind | None, DensityStatusKind | int | str | None]
    """Density status that the value was computed with."""

class ColorSpaceSpecificationSpectrumTristimulusType(ColorSpaceSpecificationSpectrumType):
    """Conditions of a reflective tristimulus value: illumination and observer are told."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        spectrum: SpectrumType = ...,
        illumination_options: IlluminationOptionsType = ...,
        field_of_view: ObserverKind | int | str = ...,
        geometry_choice: GeometryChoiceType | None = ...,
        astm_table: AstmTableKind | int | str | None = ...,
        gamma: float | None = ...,
    ) -> None: ...
    illumination_options: Property[IlluminationOptionsType | None, IlluminationOptionsType]
    """Illumination that the value holds for."""
    def create_illumination_options(self, **values: Any) -> IlluminationOptionsType:
        """Gives `illumination_options`, which it makes if it isn't there, and sets properties of it."""
    field_of_view: Property[ObserverKind | None, ObserverKind | int | str]
    """Standard observer that the value holds for."""
    geometry_choice: Property[GeometryChoiceType | None, GeometryChoiceType | None]
    """Measuring geometry."""
    def create_geometry_choice(self, **values: Any) -> GeometryChoiceType:
        """Gives `geometry_choice`, which it makes if it isn't there, and sets properties of it."""
    astm_table: Property[AstmTableKind | None, AstmTableKind | int | str | None]
    """Weighting tables used for the tristimulus integration."""
    gamma: Property[float | None, float | None]
    """Gamma of the device, the exponent of its tone curve."""

class ColorSpaceSpecificationSpectrumSpectralType(ColorSpaceSpecificationSpectrumType):
    """Conditions of a reflectance spectrum: the geometry is told."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        spectrum: SpectrumType = ...,
        geometry_choice: GeometryChoiceType = ...,
        astm_table: AstmTableKind | int | str | None = ...,
    ) -> None: ...
    geometry_choice: Property[GeometryChoiceType | None, GeometryChoiceType]
    """Measuring geometry."""
    def create_geometry_choice(self, **values: Any) -> GeometryChoiceType:
        """Gives `geometry_choice`, which it makes if it isn't there, and sets properties of it."""
    astm_table: Property[AstmTableKind | None, AstmTableKind | int | str | None]
    """Weighting tables for a later tristimulus integration."""

class ColorSpaceSpecificationEmissiveGenericType(ColorSpaceSpecificationEmissiveType):
    """Conditions of an emissive value in any colour space."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        emissive_type: EmissiveKind | int | str = ...,
        emissive_mode: EmissiveModeKind | int | str = ...,
        geometry_choice: GeometryChoiceType | None = ...,
        illumination_options: IlluminationOptionsType | None = ...,
        field_of_view: ObserverKind | int | str | None = ...,
        astm_table: AstmTableKind | int | str | None = ...,
        gamma: float | None = ...,
        density_status: DensityStatusKind | int | str | None = ...,
    ) -> None: ...
    geometry_choice: Property[GeometryChoiceType | None, GeometryChoiceType | None]
    """Measuring geometry."""
    def create_geometry_choice(self, **values: Any) -> GeometryChoiceType:
        """Gives `geometry_choice`, which it makes if it isn't there, and sets properties of it."""
    illumination_options: Property[IlluminationOptionsType | None, IlluminationOptionsType | None]
    """Illumination that the value holds for."""
    def create_illumination_options(self, **values: Any) -> IlluminationOptionsType:
        """Gives `illumination_options`, which it makes if it isn't there, and sets properties of it."""
    field_of_view: Property[ObserverKind | None, ObserverKind | int | str | None]
    """Standard observer that the value holds for."""
    astm_table: Property[AstmTableKind | None, AstmTableKind | int | str | None]
    """Weighting tables used for the tristimulus integration."""
    gamma: Property[float | None, float | None]
    """Gamma of the device, the exponent of its tone curve."""
    density_status: Property[DensityStatusKind | None, DensityStatusKind | int | str | None]
    """Density status that the value was computed with."""

class ColorSpaceSpecificationEmissiveTristimulusType(ColorSpaceSpecificationEmissiveType):
    """Conditions of an emissive tristimulus value: illumination and observer are told."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        emissive_type: EmissiveKind | int | str = ...,
        emissive_mode: EmissiveModeKind | int | str = ...,
        illumination_options: IlluminationOptionsType = ...,
        field_of_view: ObserverKind | int | str = ...,
        geometry_choice: GeometryChoiceType | None = ...,
        astm_table: AstmTableKind | int | str | None = ...,
        gamma: float | None = ...,
    ) -> None: ...
    illumination_options: Property[IlluminationOptionsType | None, IlluminationOptionsType]
    """Illumination that the value holds for."""
    def create_illumination_options(self, **values: Any) -> IlluminationOptionsType:
        """Gives `illumination_options`, which it makes if it isn't there, and sets properties of it."""
    field_of_view: Property[ObserverKind | None, ObserverKind | int | str]
    """Standard observer that the value holds for."""
    geometry_choice: Property[GeometryChoiceType | None, GeometryChoiceType | None]
    """Measuring geometry."""
    def create_geometry_choice(self, **values: Any) -> GeometryChoiceType:
        """Gives `geometry_choice`, which it makes if it isn't there, and sets properties of it."""
    astm_table: Property[AstmTableKind | None, AstmTableKind | int | str | None]
    """Weighting tables used for the tristimulus integration."""
    gamma: Property[float | None, float | None]
    """Gamma of the device, the exponent of its tone curve."""

class ColorSpaceSpecificationEmissiveSpectralType(ColorSpaceSpecificationEmissiveType):
    """Conditions of an emission spectrum: the geometry is told."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        emissive_type: EmissiveKind | int | str = ...,
        emissive_mode: EmissiveModeKind | int | str = ...,
        geometry_choice: GeometryChoiceType = ...,
        astm_table: AstmTableKind | int | str | None = ...,
    ) -> None: ...
    geometry_choice: Property[GeometryChoiceType | None, GeometryChoiceType]
    """Measuring geometry."""
    def create_geometry_choice(self, **values: Any) -> GeometryChoiceType:
        """Gives `geometry_choice`, which it makes if it isn't there, and sets properties of it."""
    astm_table: Property[AstmTableKind | None, AstmTableKind | int | str | None]
    """Weighting tables for a later tristimulus integration."""

class ColorSpaceSpecification(ColorSpaceSpecificationType):
    """Head of the specifications."""

class ColorSpaceSpecificationSpectrum(ElementFile, ColorSpaceSpecificationSpectrumType):
    """Conditions of a reflective value that has no kind of its own."""

class ColorSpaceSpecificationSpectrumGeneric(ElementFile, ColorSpaceSpecificationSpectrumGenericType):
    """Conditions of a reflective value in any colour space, or nil."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        spectrum: SpectrumType = ...,
        geometry_choice: GeometryChoiceType | None = ...,
        illumination_options: IlluminationOptionsType | None = ...,
        field_of_view: ObserverKind | int | str | None = ...,
        astm_table: AstmTableKind | int | str | None = ...,
        gamma: float | None = ...,
        density_status: DensityStatusKind | int | str | None = ...,
    ) -> None: ...

class ColorSpaceSpecificationSpectrumTristimulus(ElementFile, ColorSpaceSpecificationSpectrumTristimulusType):
    """Conditions of a reflective tristimulus value, or nil."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        spectrum: SpectrumType = ...,
        illumination_options: IlluminationOptionsType = ...,
        field_of_view: ObserverKind | int | str = ...,
        geometry_choice: GeometryChoiceType | None = ...,
        astm_table: AstmTableKind | int | str | None = ...,
        gamma: float | None = ...,
    ) -> None: ...

class ColorSpaceSpecificationSpectrumSpectral(ElementFile, ColorSpaceSpecificationSpectrumSpectralType):
    """Conditions of a reflectance spectrum, or nil."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        spectrum: SpectrumType = ...,
        geometry_choice: GeometryChoiceType = ...,
        astm_table: AstmTableKind | int | str | None = ...,
    ) -> None: ...

class ColorSpaceSpecificationEmissive(ElementFile, ColorSpaceSpecificationEmissiveType):
    """Conditions of an emissive value that has no kind of its own."""

class ColorSpaceSpecificationEmissiveGeneric(ElementFile, ColorSpaceSpecificationEmissiveGenericType):
    """Conditions of an emissive value in any colour space, or nil."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        emissive_type: EmissiveKind | int | str = ...,
        emissive_mode: EmissiveModeKind | int | str = ...,
        geometry_choice: GeometryChoiceType | None = ...,
        illumination_options: IlluminationOptionsType | None = ...,
        field_of_view: ObserverKind | int | str | None = ...,
        astm_table: AstmTableKind | int | str | None = ...,
        gamma: float | None = ...,
        density_status: DensityStatusKind | int | str | None = ...,
    ) -> None: ...

class ColorSpaceSpecificationEmissiveTristimulus(ElementFile, ColorSpaceSpecificationEmissiveTristimulusType):
    """Conditions of an emissive tristimulus value, or nil."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        emissive_type: EmissiveKind | int | str = ...,
        emissive_mode: EmissiveModeKind | int | str = ...,
        illumination_options: IlluminationOptionsType = ...,
        field_of_view: ObserverKind | int | str = ...,
        geometry_choice: GeometryChoiceType | None = ...,
        astm_table: AstmTableKind | int | str | None = ...,
        gamma: float | None = ...,
    ) -> None: ...

class ColorSpaceSpecificationEmissiveSpectral(ElementFile, ColorSpaceSpecificationEmissiveSpectralType):
    """Conditions of an emission spectrum, or nil."""
    def __init__(
        self,
        *,
        comments: str | None = ...,
        unique_id: str | None = ...,
        custom_attributes: Iterable[CustomAttributeType] = ...,
        profile: ProfileType | None = ...,
        device: DeviceType | None = ...,
        device_filter: DeviceFilter | None = ...,
        device_polarization: DevicePolarization = ...,
        change_history: Iterable[datetime | str] = ...,
        emissive_type: EmissiveKind | int | str = ...,
        emissive_mode: EmissiveModeKind | int | str = ...,
        geometry_choice: GeometryChoiceType = ...,
        astm_table: AstmTableKind | int | str | None = ...,
    ) -> None: ...

class Illuminant(Object):
    """A standard illuminant, or a custom one by name."""
    def __init__(self, *, custom_name: str | None = ..., value: IlluminantKind | int | str = ...) -> None: ...
    custom_name: Property[str | None, str | None]
    """Name of the illuminant where the content is Illuminant_Custom."""
    value: Property[IlluminantKind | None, IlluminantKind | int | str]
    """The illuminant."""

class WhitePointChromaticity(Object):
    """CIE 1931 chromaticity of a white point."""
    def __init__(self, *, coordinate_x: float = ..., coordinate_y: float = ...) -> None: ...
    coordinate_x: Property[float, float]
    """Chromaticity coordinate x, 0 to 1."""
    coordinate_y: Property[float, float]
    """Chromaticity coordinate y, 0 to 1."""

class BSDFAngle(Object):
    """Angles of a measurement with a multi-angle instrument."""
    def __init__(self, *, illuminant_angle: float = ..., aspecular: float = ...) -> None: ...
    illuminant_angle: Property[float, float]
    """Angle of the illumination from the surface normal, in degrees."""
    aspecular: Property[float, float]
    """Angle of the detector from the specular direction, in degrees."""

class Azimuth(Object):
    """An empty mark."""
    def __init__(self) -> None: ...
