// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// The facets of the simple types.

#include "schema/generated/tables.h"

namespace com_vyrgraph_v2 {

namespace {
const lmx::c_pattern& DateTimeZone_pattern() { static const lmx::c_pattern pattern(".+T.+(Z|[+\\-].+)"); return pattern; }
constexpr std::string_view k_ColorDepthKind_texts[] = {
    "ColorDepth_Infinite",
    "ColorDepth_8",
    "ColorDepth_16",
    "ColorDepth_32",
};
constinit const lmx::c_enumeration k_ColorDepthKind_enumeration(k_ColorDepthKind_texts);
constexpr std::string_view k_GamutKind_texts[] = {
    "Gamut_AdobeRGB",
    "Gamut_sRGB",
    "Gamut_CMYK",
    "Gamut_Octavantic",
};
constinit const lmx::c_enumeration k_GamutKind_enumeration(k_GamutKind_texts);
constexpr std::string_view k_FinishKind_texts[] = {
    "Finish_Coated",
    "Finish_Uncoated",
    "Finish_Matte",
};
constinit const lmx::c_enumeration k_FinishKind_enumeration(k_FinishKind_texts);
constexpr std::string_view k_AxisScaleKind_texts[] = {
    "Scale_Linear",
    "Scale_Log",
    "Scale_Other",
};
constinit const lmx::c_enumeration k_AxisScaleKind_enumeration(k_AxisScaleKind_texts);
constexpr std::string_view k_DensityStatusKind_texts[] = {
    "Status_A",
    "Status_E",
    "Status_T",
    "Status_I",
    "Status_SpectralX",
    "Status_Spectral",
    "Status_HiFi",
    "Status_Oct",
    "Status_Txp",
    "Status_Ex",
    "Status_DIN",
    "Status_DIN-NB",
};
constinit const lmx::c_enumeration k_DensityStatusKind_enumeration(k_DensityStatusKind_texts);
constexpr std::string_view k_DensityFilterKind_texts[] = {
    "Filter_Visual",
    "Filter_Cyan",
    "Filter_Magenta",
    "Filter_Yellow",
    "Filter_Black",
    "Filter_Red",
    "Filter_Green",
    "Filter_Blue",
    "Filter_A",
    "Filter_B",
};
constinit const lmx::c_enumeration k_DensityFilterKind_enumeration(k_DensityFilterKind_texts);
constexpr std::string_view k_EmissiveKind_texts[] = {
    "Emissive_Spot",
    "Emissive_SpotAmbient",
    "Emissive_ScanningFlash",
};
constinit const lmx::c_enumeration k_EmissiveKind_enumeration(k_EmissiveKind_texts);
constexpr std::string_view k_EmissiveModeKind_texts[] = {
    "EmissiveMode_Diffuser",
    "EmissiveMode_NA",
};
constinit const lmx::c_enumeration k_EmissiveModeKind_enumeration(k_EmissiveModeKind_texts);
constexpr std::string_view k_ObserverKind_texts[] = {
    "FieldOfView_2_Degree",
    "FieldOfView_10_Degree",
};
constinit const lmx::c_enumeration k_ObserverKind_enumeration(k_ObserverKind_texts);
constexpr std::string_view k_AstmTableKind_texts[] = {
    "E308_Table5",
    "E308_Table6",
};
constinit const lmx::c_enumeration k_AstmTableKind_enumeration(k_AstmTableKind_texts);
constexpr std::string_view k_SpectrumKind_texts[] = {
    "Spectrum_Reflectance",
    "Spectrum_Transmittance",
    "Spectrum_TotalTransmittance",
    "Spectrum_Custom",
};
constinit const lmx::c_enumeration k_SpectrumKind_enumeration(k_SpectrumKind_texts);
constexpr std::string_view k_IlluminantKind_texts[] = {
    "Illuminant_A",
    "Illuminant_B",
    "Illuminant_C",
    "Illuminant_D50",
    "Illuminant_D55",
    "Illuminant_D65",
    "Illuminant_D75",
    "Illuminant_E",
    "Illuminant_F2",
    "Illuminant_F3",
    "Illuminant_F7",
    "Illuminant_F11",
    "Illuminant_F12",
    "Illuminant_9300",
    "Illuminant_Custom",
};
constinit const lmx::c_enumeration k_IlluminantKind_enumeration(k_IlluminantKind_texts);
constexpr std::string_view k_SphereGeometryKind_texts[] = {
    "Sphere_Included",
    "Sphere_Excluded",
};
constinit const lmx::c_enumeration k_SphereGeometryKind_enumeration(k_SphereGeometryKind_texts);
constexpr std::string_view k_DeviceFilterKind_texts[] = {
    "Filter_None",
    "Filter_UVExcluded",
    "Filter_UVD65",
    "Filter_Partial",
    "Filter_Custom",
};
constinit const lmx::c_enumeration k_DeviceFilterKind_enumeration(k_DeviceFilterKind_texts);
constexpr std::string_view k_BackingKind_texts[] = {
    "Backing_Black",
    "Backing_White",
    "Backing_Self",
    "Backing_NA",
};
constinit const lmx::c_enumeration k_BackingKind_enumeration(k_BackingKind_texts);
constexpr std::string_view k_TargetKind_texts[] = {
    "Target_IT8.7/1",
    "Target_IT8.7/2",
    "Target_IT8.7/3",
    "Target_IT8.7/4",
    "Target_ECI2002",
    "Target_Custom",
};
constinit const lmx::c_enumeration k_TargetKind_enumeration(k_TargetKind_texts);
constexpr std::string_view k_ToleranceFormulaKind_texts[] = {
    "Brightness",
    "DE*",
    "DE00",
    "DE94",
    "DE99",
    "DEcmc",
    "Defmc2",
    "DIN6172",
    "HunterDE",
    "HunterLab",
    "HunterLabPlusMinus",
    "L*C*H*",
    "L*a*b*",
    "L*a*b*PlusMinus",
    "MetamerismIndex",
    "StatusDensity",
    "Strength",
    "Whiteness",
    "Yellowness",
    "ddna",
    "df",
    "DEDIN6175",
};
constinit const lmx::c_enumeration k_ToleranceFormulaKind_enumeration(k_ToleranceFormulaKind_texts);
constexpr std::string_view k_ToleranceParameterKind_texts[] = {
    "Param_L",
    "Param_a",
    "Param_b",
    "Param_C",
    "Param_H",
    "Param_KL",
    "Param_KC",
    "Param_KH",
    "Param_delta",
    "Param_kCH",
    "Param_kE",
    "Param_CF",
    "Param_WaveLength",
    "Param_Q",
    "Param_P",
    "Param_Whiteness",
};
constinit const lmx::c_enumeration k_ToleranceParameterKind_enumeration(k_ToleranceParameterKind_texts);
constexpr std::string_view k_DeviceClassKind_texts[] = {
    "DeviceClass_Spot",
    "DeviceClass_Scanning",
    "DeviceClass_Other",
};
constinit const lmx::c_enumeration k_DeviceClassKind_enumeration(k_DeviceClassKind_texts);
constexpr std::string_view k_CalibrationKind_texts[] = {
    "CalibrationState_NotCalibrated",
    "CalibrationState_Calibrated",
    "CalibrationState_NA",
};
constinit const lmx::c_enumeration k_CalibrationKind_enumeration(k_CalibrationKind_texts);
constexpr std::string_view k_ProfileDirectionKind_texts[] = {
    "Profile_Input",
    "Profile_Output",
    "Profile_Both",
};
constinit const lmx::c_enumeration k_ProfileDirectionKind_enumeration(k_ProfileDirectionKind_texts);
}  // namespace

namespace facets {
/// A date and time that names its time zone.
constinit const lmx::s_facets DateTimeZone = {
    .pattern_takes_zoned = true,
    .pattern = DateTimeZone_pattern,
};
/// A text of at least one character.
constinit const lmx::s_facets NonEmptyString = {
    .minimum_length = 1,
};
/// An integer of 32 bits.
constinit const lmx::s_facets Int32 = {
    .minimum = -2147483648,
    .maximum = 2147483647,
    .minimum_integer = "-2147483648",
    .maximum_integer = "2147483647",
};
/// Lightness of CIE L*a*b*, with room above the perfect diffuser.
constinit const lmx::s_facets LabLightness = {
    .minimum = 0,
    .maximum = 150,
};
/// An opponent coordinate of CIE L*a*b*.
constinit const lmx::s_facets LabOpponent = {
    .minimum = -150,
    .maximum = 150,
};
/// Lightness of CIE L*C*h and CIE L*u*v*.
constinit const lmx::s_facets Lightness = {
    .minimum = 0,
    .maximum = 100,
};
/// Chroma of CIE L*C*h.
constinit const lmx::s_facets Chroma = {
    .minimum = 0,
    .maximum = 150,
};
/// An angle in degrees from 0 to below 360.
constinit const lmx::s_facets HueAngle = {
    .minimum = 0,
    .maximum = 360,
    .maximum_exclusive = true,
};
/// u* of CIE L*u*v*.
constinit const lmx::s_facets LuvU = {
    .minimum = -134,
    .maximum = 220,
};
/// v* of CIE L*u*v*.
constinit const lmx::s_facets LuvV = {
    .minimum = -140,
    .maximum = 122,
};
/// A number from 0 to 1.
constinit const lmx::s_facets Fraction = {
    .minimum = 0,
    .maximum = 1,
};
/// A number that is not below 0.
constinit const lmx::s_facets NonNegative = {
    .minimum = 0,
};
/// Bits per channel of a device colour.
constinit const lmx::s_facets ColorDepthKind = {
    .enumeration = &k_ColorDepthKind_enumeration,
};
/// A number from 0 to 100, in percent.
constinit const lmx::s_facets Percentage = {
    .minimum = 0,
    .maximum = 100,
};
/// Blue difference of YUV.
constinit const lmx::s_facets YUVChromaU = {
    .minimum = -0.436,
    .maximum = 0.436,
};
/// Red difference of YUV.
constinit const lmx::s_facets YUVChromaV = {
    .minimum = -0.615,
    .maximum = 0.615,
};
/// In-phase signal of YIQ.
constinit const lmx::s_facets YIQInPhase = {
    .minimum = -0.5957,
    .maximum = 0.5957,
};
/// Quadrature signal of YIQ.
constinit const lmx::s_facets YIQQuadrature = {
    .minimum = -0.5226,
    .maximum = 0.5226,
};
/// Gamut in which a colour can be shown.
constinit const lmx::s_facets GamutKind = {
    .enumeration = &k_GamutKind_enumeration,
};
/// A number above 0.
constinit const lmx::s_facets Positive = {
    .minimum = 0,
    .minimum_exclusive = true,
};
/// Finish of a paper.
constinit const lmx::s_facets FinishKind = {
    .enumeration = &k_FinishKind_enumeration,
};
/// A reflectance factor between -1 and 10, ends excluded.
constinit const lmx::s_facets Reflectance = {
    .minimum = -1,
    .maximum = 10,
    .minimum_exclusive = true,
    .maximum_exclusive = true,
};
/// A wavelength in nanometres, above 0.
constinit const lmx::s_facets Wavelength = {
    .minimum = 0,
    .minimum_exclusive = true,
};
/// Scale of an axis.
constinit const lmx::s_facets AxisScaleKind = {
    .enumeration = &k_AxisScaleKind_enumeration,
};
/// Density status: the set of spectral responses of a densitometer.
constinit const lmx::s_facets DensityStatusKind = {
    .enumeration = &k_DensityStatusKind_enumeration,
};
/// Filter through which an optical density is measured.
constinit const lmx::s_facets DensityFilterKind = {
    .enumeration = &k_DensityFilterKind_enumeration,
};
/// How a light source is measured.
constinit const lmx::s_facets EmissiveKind = {
    .enumeration = &k_EmissiveKind_enumeration,
};
/// Whether a diffuser is in place when a light source is measured.
constinit const lmx::s_facets EmissiveModeKind = {
    .enumeration = &k_EmissiveModeKind_enumeration,
};
/// CIE standard observer, by its field of view.
constinit const lmx::s_facets ObserverKind = {
    .enumeration = &k_ObserverKind_enumeration,
};
/// Weighting tables of ASTM E308 for the integration of tristimulus values.
constinit const lmx::s_facets AstmTableKind = {
    .enumeration = &k_AstmTableKind_enumeration,
};
/// Spectral quantity.
constinit const lmx::s_facets SpectrumKind = {
    .enumeration = &k_SpectrumKind_enumeration,
};
/// CIE standard illuminants, the 9300 K white of displays, and custom ones.
constinit const lmx::s_facets IlluminantKind = {
    .enumeration = &k_IlluminantKind_enumeration,
};
/// An integer from 1 to 2147483647.
constinit const lmx::s_facets PositiveInt32 = {
    .minimum = 0,
    .maximum = 2147483647,
    .minimum_exclusive = true,
    .setter_skips_minimum = true,
    .minimum_integer = "0",
    .maximum_integer = "2147483647",
};
/// Whether an integrating sphere includes the specular component.
constinit const lmx::s_facets SphereGeometryKind = {
    .enumeration = &k_SphereGeometryKind_enumeration,
};
/// Filter in the light path of an instrument.
constinit const lmx::s_facets DeviceFilterKind = {
    .enumeration = &k_DeviceFilterKind_enumeration,
};
/// What lies behind a sample while it is measured.
constinit const lmx::s_facets BackingKind = {
    .enumeration = &k_BackingKind_enumeration,
};
/// Test charts.
constinit const lmx::s_facets TargetKind = {
    .enumeration = &k_TargetKind_enumeration,
};
/// A text of at least one character, surrounding and repeated blanks removed.
constinit const lmx::s_facets NonEmptyToken = {
    .minimum_length = 1,
};
/// Tolerance formulas.
constinit const lmx::s_facets ToleranceFormulaKind = {
    .enumeration = &k_ToleranceFormulaKind_enumeration,
};
/// Parameter of a tolerance formula.
constinit const lmx::s_facets ToleranceParameterKind = {
    .enumeration = &k_ToleranceParameterKind_enumeration,
};
/// Kind of instrument.
constinit const lmx::s_facets DeviceClassKind = {
    .enumeration = &k_DeviceClassKind_enumeration,
};
/// Number of readings that are averaged.
constinit const lmx::s_facets AveragingCount = {
    .minimum = 2,
    .maximum = 99,
    .minimum_integer = "2",
    .maximum_integer = "99",
};
/// State of a calibration.
constinit const lmx::s_facets CalibrationKind = {
    .enumeration = &k_CalibrationKind_enumeration,
};
/// A text of exactly one character.
constinit const lmx::s_facets SingleCharacter = {
    .minimum_length = 1,
    .maximum_length = 1,
};
/// Which way a profile converts.
constinit const lmx::s_facets ProfileDirectionKind = {
    .enumeration = &k_ProfileDirectionKind_enumeration,
};
}  // namespace facets

}  // namespace com_vyrgraph_v2
