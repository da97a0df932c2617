# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""Classes of the topic conditions."""

from .._documents import ElementFile
from .._objects import Choice, Object, _creator
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

    __slots__ = ()
    schema_name = "DeviceFilterType"
    custom_or_partial = Property(
        "CustomOrPartial",
        "Description of the filter where the content is Filter_Custom or Filter_Partial.",
    )
    value = Property("DeviceFilterType", "The filter.", DeviceFilterKind)


class DeviceFilter(DeviceFilterType):
    """Filter in the light path of the instrument, or nil. Readers may meet none; a writer needs the filter or nil."""

    __slots__ = ()
    schema_name = "DeviceFilter"


class DevicePolarization(Object):
    """Whether polarising filters were used, or nil where it is unknown."""

    __slots__ = ()
    schema_name = "DevicePolarization"
    value = Property("DevicePolarization", "Whether polarising filters were used, or nil where it is unknown.")


class ColorSpaceSpecificationType(Object):
    """Conditions under which a colour value holds: device, filter, polarisation and profile."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationType"
    abstract = True
    comments = Property("Comments", "Free remarks on the conditions.")
    unique_id = Property("UniqueID", "Identifier of the specification.")
    custom_attributes = Property("CustomAttribute", "A named value of the user's own.")
    profile = Property("Profile", "Profile of the device.")
    create_profile = _creator(profile)
    device = Property("Device", "Instrument that measured, or device that shows the colour.")
    create_device = _creator(device)
    device_filter = Property(
        "DeviceFilter",
        "Filter in the light path of the instrument, or nil. Readers may meet none; a writer needs the filter or "
        "nil.",
    )
    create_device_filter = _creator(device_filter)
    device_polarization = Property(
        "DevicePolarization",
        "Whether polarising filters were used, or nil where it is unknown.",
    )
    create_device_polarization = _creator(device_polarization)
    change_history = Property("ChangeHistory", "Time of one change, with time zone.")


class SpectrumType(Object):
    """Which spectral quantity was measured."""

    __slots__ = ()
    schema_name = "SpectrumType"
    custom_type_name = Property("CustomTypeName", "Name of the quantity where the content is Spectrum_Custom.")
    value = Property("SpectrumType", "The quantity.", SpectrumKind)


class ColorSpaceSpecificationSpectrumType(ColorSpaceSpecificationType):
    """Conditions of a reflective or transmissive value."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationSpectrumType"
    spectrum = Property("Spectrum", "Which spectral quantity was measured.")
    create_spectrum = _creator(spectrum)


class ColorSpaceSpecificationEmissiveType(ColorSpaceSpecificationType):
    """Conditions of an emissive value."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationEmissiveType"
    emissive_type = Property("EmissiveType", "How the light source was measured.", EmissiveKind)
    emissive_mode = Property("EmissiveMode", "Whether a diffuser was in place.", EmissiveModeKind)


class GeometryChoiceType(Choice):
    """Measuring geometry of an instrument: sphere, single angle, multi-angle or other."""

    __slots__ = ()
    schema_name = "GeometryChoiceType"
    sphere_geometry = Property(
        "SphereGeometry",
        "Integrating sphere, with the specular component included or excluded.",
        SphereGeometryKind,
    )
    angle = Property("Angle", "Measuring angle in degrees.")
    unknown_geometry = Property("UnknownGeometry", "Another geometry in words; not empty.")
    bsdf_angle = Property("BSDFAngle", "Angles of a multi-angle measurement.")
    choose_bsdf_angle = _creator(bsdf_angle)
    alternatives = ("sphere_geometry", "angle", "unknown_geometry", "bsdf_angle")


class IlluminationOptionsType(Choice):
    """Illumination by standard illuminant, chromaticity or colour temperature."""

    __slots__ = ()
    schema_name = "IlluminationOptionsType"
    description = Property("Description", "Free description of the illumination.")
    illuminant = Property("Illuminant", "The illumination as a standard illuminant.")
    choose_illuminant = _creator(illuminant)
    white_point_chromaticity = Property(
        "WhitePointChromaticity",
        "The illumination by the chromaticity of its white.",
    )
    choose_white_point_chromaticity = _creator(white_point_chromaticity)
    color_temperature = Property(
        "ColorTemperature",
        "The illumination by correlated colour temperature in kelvins, above 0.",
    )
    alternatives = ("illuminant", "white_point_chromaticity", "color_temperature")


class ColorSpaceSpecificationSpectrumGenericType(ColorSpaceSpecificationSpectrumType):
    """Conditions of a reflective value in any colour space."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationSpectrumGenericType"
    geometry_choice = Property("GeometryChoice", "Measuring geometry.")
    create_geometry_choice = _creator(geometry_choice)
    illumination_options = Property("IlluminationOptions", "Illumination that the value holds for.")
    create_illumination_options = _creator(illumination_options)
    field_of_view = Property("FieldOfView", "Standard observer that the value holds for.", ObserverKind)
    astm_table = Property("ASTM_Table", "Weighting tables used for the tristimulus integration.", AstmTableKind)
    gamma = Property("Gamma", "Gamma of the device, the exponent of its tone curve.")
    density_status = Property("DensityStatus", "Density status that the value was computed with.", DensityStatusKind)


class ColorSpaceSpecificationSpectrumTristimulusType(ColorSpaceSpecificationSpectrumType):
    """Conditions of a reflective tristimulus value: illumination and observer are told."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationSpectrumTristimulusType"
    illumination_options = Property("IlluminationOptions", "Illumination that the value holds for.")
    create_illumination_options = _creator(illumination_options)
    field_of_view = Property("FieldOfView", "Standard observer that the value holds for.", ObserverKind)
    geometry_choice = Property("GeometryChoice", "Measuring geometry.")
    create_geometry_choice = _creator(geometry_choice)
    astm_table = Property("ASTM_Table", "Weighting tables used for the tristimulus integration.", AstmTableKind)
    gamma = Property("Gamma", "Gamma of the device, the exponent of its tone curve.")


class ColorSpaceSpecificationSpectrumSpectralType(ColorSpaceSpecificationSpectrumType):
    """Conditions of a reflectance spectrum: the geometry is told."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationSpectrumSpectralType"
    geometry_choice = Property("GeometryChoice", "Measuring geometry.")
    create_geometry_choice = _creator(geometry_choice)
    astm_table = Property("ASTM_Table", "Weighting tables for a later tristimulus integration.", AstmTableKind)


class ColorSpaceSpecificationEmissiveGenericType(ColorSpaceSpecificationEmissiveType):
    """Conditions of an emissive value in any colour space."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationEmissiveGenericType"
    geometry_choice = Property("GeometryChoice", "Measuring geometry.")
    create_geometry_choice = _creator(geometry_choice)
    illumination_options = Property("IlluminationOptions", "Illumination that the value holds for.")
    create_illumination_options = _creator(illumination_options)
    field_of_view = Property("FieldOfView", "Standard observer that the value holds for.", ObserverKind)
    astm_table = Property("ASTM_Table", "Weighting tables used for the tristimulus integration.", AstmTableKind)
    gamma = Property("Gamma", "Gamma of the device, the exponent of its tone curve.")
    density_status = Property("DensityStatus", "Density status that the value was computed with.", DensityStatusKind)


class ColorSpaceSpecificationEmissiveTristimulusType(ColorSpaceSpecificationEmissiveType):
    """Conditions of an emissive tristimulus value: illumination and observer are told."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationEmissiveTristimulusType"
    illumination_options = Property("IlluminationOptions", "Illumination that the value holds for.")
    create_illumination_options = _creator(illumination_options)
    field_of_view = Property("FieldOfView", "Standard observer that the value holds for.", ObserverKind)
    geometry_choice = Property("GeometryChoice", "Measuring geometry.")
    create_geometry_choice = _creator(geometry_choice)
    astm_table = Property("ASTM_Table", "Weighting tables used for the tristimulus integration.", AstmTableKind)
    gamma = Property("Gamma", "Gamma of the device, the exponent of its tone curve.")


class ColorSpaceSpecificationEmissiveSpectralType(ColorSpaceSpecificationEmissiveType):
    """Conditions of an emission spectrum: the geometry is told."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationEmissiveSpectralType"
    geometry_choice = Property("GeometryChoice", "Measuring geometry.")
    create_geometry_choice = _creator(geometry_choice)
    astm_table = Property("ASTM_Table", "Weighting tables for a later tristimulus integration.", AstmTableKind)


class ColorSpaceSpecification(ColorSpaceSpecificationType):
    """Head of the specifications."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecification"
    abstract = True


class ColorSpaceSpecificationSpectrum(ElementFile, ColorSpaceSpecificationSpectrumType):
    """Conditions of a reflective value that has no kind of its own."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationSpectrum"


class ColorSpaceSpecificationSpectrumGeneric(ElementFile, ColorSpaceSpecificationSpectrumGenericType):
    """Conditions of a reflective value in any colour space, or nil."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationSpectrumGeneric"


class ColorSpaceSpecificationSpectrumTristimulus(ElementFile, ColorSpaceSpecificationSpectrumTristimulusType):
    """Conditions of a reflective tristimulus value, or nil."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationSpectrumTristimulus"


class ColorSpaceSpecificationSpectrumSpectral(ElementFile, ColorSpaceSpecificationSpectrumSpectralType):
    """Conditions of a reflectance spectrum, or nil."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationSpectrumSpectral"


class ColorSpaceSpecificationEmissive(ElementFile, ColorSpaceSpecificationEmissiveType):
    """Conditions of an emissive value that has no kind of its own."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationEmissive"


class ColorSpaceSpecificationEmissiveGeneric(ElementFile, ColorSpaceSpecificationEmissiveGenericType):
    """Conditions of an emissive value in any colour space, or nil."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationEmissiveGeneric"


class ColorSpaceSpecificationEmissiveTristimulus(ElementFile, ColorSpaceSpecificationEmissiveTristimulusType):
    """Conditions of an emissive tristimulus value, or nil."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationEmissiveTristimulus"


class ColorSpaceSpecificationEmissiveSpectral(ElementFile, ColorSpaceSpecificationEmissiveSpectralType):
    """Conditions of an emission spectrum, or nil."""

    __slots__ = ()
    schema_name = "ColorSpaceSpecificationEmissiveSpectral"


class Illuminant(Object):
    """A standard illuminant, or a custom one by name."""

    __slots__ = ()
    schema_name = "Illuminant"
    custom_name = Property("CustomName", "Name of the illuminant where the content is Illuminant_Custom.")
    value = Property("Illuminant", "The illuminant.", IlluminantKind)


class WhitePointChromaticity(Object):
    """CIE 1931 chromaticity of a white point."""

    __slots__ = ()
    schema_name = "WhitePointChromaticity"
    coordinate_x = Property("CoordinateX", "Chromaticity coordinate x, 0 to 1.")
    coordinate_y = Property("CoordinateY", "Chromaticity coordinate y, 0 to 1.")


class BSDFAngle(Object):
    """Angles of a measurement with a multi-angle instrument."""

    __slots__ = ()
    schema_name = "BSDFAngle"
    illuminant_angle = Property("IlluminantAngle", "Angle of the illumination from the surface normal, in degrees.")
    aspecular = Property("Aspecular", "Angle of the detector from the specular direction, in degrees.")


class Azimuth(Object):
    """An empty mark."""

    __slots__ = ()
    schema_name = "Azimuth"
