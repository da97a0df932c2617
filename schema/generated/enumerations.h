// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Numbers of the enumerated texts, from 1; 0 stands for any other text.

#pragma once

#include <cstdint>


namespace com_vyrgraph_v2 {

/// Weighting tables of ASTM E308 for the integration of tristimulus values.
enum Eenum_ASTM_Table : std::int32_t {
    e_ASTM_Table_E308_Table5 = 1,
    e_ASTM_Table_E308_Table6,
};

/// Scale of an axis.
enum Eenum_AxisNominalScale : std::int32_t {
    e_AxisNominalScale_Scale_Linear = 1,
    e_AxisNominalScale_Scale_Log,
    e_AxisNominalScale_Scale_Other,
};

/// What lies behind a sample while it is measured.
enum Eenum_Backing : std::int32_t {
    e_Backing_Backing_Black = 1,
    e_Backing_Backing_White,
    e_Backing_Backing_Self,
    e_Backing_Backing_NA,
};

/// State of a calibration.
enum Eenum_CalibrationStateType : std::int32_t {
    e_CalibrationStateType_CalibrationState_NotCalibrated = 1,
    e_CalibrationStateType_CalibrationState_Calibrated,
    e_CalibrationStateType_CalibrationState_NA,
};

/// Bits per channel of a device colour.
enum Eenum_ColorDepth : std::int32_t {
    e_ColorDepth_ColorDepth_Infinite = 1,
    e_ColorDepth_ColorDepth_8,
    e_ColorDepth_ColorDepth_16,
    e_ColorDepth_ColorDepth_32,
};

/// Filter through which an optical density is measured.
enum Eenum_DensityFilter : std::int32_t {
    e_DensityFilter_Filter_Visual = 1,
    e_DensityFilter_Filter_Cyan,
    e_DensityFilter_Filter_Magenta,
    e_DensityFilter_Filter_Yellow,
    e_DensityFilter_Filter_Black,
    e_DensityFilter_Filter_Red,
    e_DensityFilter_Filter_Green,
    e_DensityFilter_Filter_Blue,
    e_DensityFilter_Filter_A,
    e_DensityFilter_Filter_B,
};

/// Density status: the set of spectral responses of a densitometer.
enum Eenum_DensityStatus : std::int32_t {
    e_DensityStatus_Status_A = 1,
    e_DensityStatus_Status_E,
    e_DensityStatus_Status_T,
    e_DensityStatus_Status_I,
    e_DensityStatus_Status_SpectralX,
    e_DensityStatus_Status_Spectral,
    e_DensityStatus_Status_HiFi,
    e_DensityStatus_Status_Oct,
    e_DensityStatus_Status_Txp,
    e_DensityStatus_Status_Ex,
    e_DensityStatus_Status_DIN,
    e_DensityStatus_Status_DIN_NB,
};

/// Kind of instrument.
enum Eenum_DeviceClass : std::int32_t {
    e_DeviceClass_DeviceClass_Spot = 1,
    e_DeviceClass_DeviceClass_Scanning,
    e_DeviceClass_DeviceClass_Other,
};

/// Filter in the light path of an instrument.
enum Eenum_DeviceFilterType : std::int32_t {
    e_DeviceFilterType_Filter_None = 1,
    e_DeviceFilterType_Filter_UVExcluded,
    e_DeviceFilterType_Filter_UVD65,
    e_DeviceFilterType_Filter_Partial,
    e_DeviceFilterType_Filter_Custom,
};

/// Which way a profile converts.
enum Eenum_Direction : std::int32_t {
    e_Direction_Profile_Input = 1,
    e_Direction_Profile_Output,
    e_Direction_Profile_Both,
};

/// Whether a diffuser is in place when a light source is measured.
enum Eenum_EmissiveMode : std::int32_t {
    e_EmissiveMode_EmissiveMode_Diffuser = 1,
    e_EmissiveMode_EmissiveMode_NA,
};

/// How a light source is measured.
enum Eenum_EmissiveType : std::int32_t {
    e_EmissiveType_Emissive_Spot = 1,
    e_EmissiveType_Emissive_SpotAmbient,
    e_EmissiveType_Emissive_ScanningFlash,
};

/// CIE standard observer, by its field of view.
enum Eenum_FieldOfView : std::int32_t {
    e_FieldOfView_FieldOfView_2_Degree = 1,
    e_FieldOfView_FieldOfView_10_Degree,
};

/// Finish of a paper.
enum Eenum_Finish : std::int32_t {
    e_Finish_Finish_Coated = 1,
    e_Finish_Finish_Uncoated,
    e_Finish_Finish_Matte,
};

/// Gamut in which a colour can be shown.
enum Eenum_Gamut : std::int32_t {
    e_Gamut_Gamut_AdobeRGB = 1,
    e_Gamut_Gamut_sRGB,
    e_Gamut_Gamut_CMYK,
    e_Gamut_Gamut_Octavantic,
};

/// CIE standard illuminants, the 9300 K white of displays, and custom ones.
enum Eenum_Illuminant : std::int32_t {
    e_Illuminant_Illuminant_A = 1,
    e_Illuminant_Illuminant_B,
    e_Illuminant_Illuminant_C,
    e_Illuminant_Illuminant_D50,
    e_Illuminant_Illuminant_D55,
    e_Illuminant_Illuminant_D65,
    e_Illuminant_Illuminant_D75,
    e_Illuminant_Illuminant_E,
    e_Illuminant_Illuminant_F2,
    e_Illuminant_Illuminant_F3,
    e_Illuminant_Illuminant_F7,
    e_Illuminant_Illuminant_F11,
    e_Illuminant_Illuminant_F12,
    e_Illuminant_Illuminant_9300,
    e_Illuminant_Illuminant_Custom,
};

/// CIE standard illuminants, the 9300 K white of displays, and custom ones.
enum Eenum_PrimaryIlluminant : std::int32_t {
    e_PrimaryIlluminant_Illuminant_A = 1,
    e_PrimaryIlluminant_Illuminant_B,
    e_PrimaryIlluminant_Illuminant_C,
    e_PrimaryIlluminant_Illuminant_D50,
    e_PrimaryIlluminant_Illuminant_D55,
    e_PrimaryIlluminant_Illuminant_D65,
    e_PrimaryIlluminant_Illuminant_D75,
    e_PrimaryIlluminant_Illuminant_E,
    e_PrimaryIlluminant_Illuminant_F2,
    e_PrimaryIlluminant_Illuminant_F3,
    e_PrimaryIlluminant_Illuminant_F7,
    e_PrimaryIlluminant_Illuminant_F11,
    e_PrimaryIlluminant_Illuminant_F12,
    e_PrimaryIlluminant_Illuminant_9300,
    e_PrimaryIlluminant_Illuminant_Custom,
};

/// CIE standard illuminants, the 9300 K white of displays, and custom ones.
enum Eenum_SecondaryIlluminant : std::int32_t {
    e_SecondaryIlluminant_Illuminant_A = 1,
    e_SecondaryIlluminant_Illuminant_B,
    e_SecondaryIlluminant_Illuminant_C,
    e_SecondaryIlluminant_Illuminant_D50,
    e_SecondaryIlluminant_Illuminant_D55,
    e_SecondaryIlluminant_Illuminant_D65,
    e_SecondaryIlluminant_Illuminant_D75,
    e_SecondaryIlluminant_Illuminant_E,
    e_SecondaryIlluminant_Illuminant_F2,
    e_SecondaryIlluminant_Illuminant_F3,
    e_SecondaryIlluminant_Illuminant_F7,
    e_SecondaryIlluminant_Illuminant_F11,
    e_SecondaryIlluminant_Illuminant_F12,
    e_SecondaryIlluminant_Illuminant_9300,
    e_SecondaryIlluminant_Illuminant_Custom,
};

/// Spectral quantity.
enum Eenum_SpectrumType : std::int32_t {
    e_SpectrumType_Spectrum_Reflectance = 1,
    e_SpectrumType_Spectrum_Transmittance,
    e_SpectrumType_Spectrum_TotalTransmittance,
    e_SpectrumType_Spectrum_Custom,
};

/// Whether an integrating sphere includes the specular component.
enum Eenum_SphereGeometry : std::int32_t {
    e_SphereGeometry_Sphere_Included = 1,
    e_SphereGeometry_Sphere_Excluded,
};

/// Test charts.
enum Eenum_Target : std::int32_t {
    e_Target_Target_IT8_7_1 = 1,
    e_Target_Target_IT8_7_2,
    e_Target_Target_IT8_7_3,
    e_Target_Target_IT8_7_4,
    e_Target_Target_ECI2002,
    e_Target_Target_Custom,
};

/// CIE standard illuminants, the 9300 K white of displays, and custom ones.
enum Eenum_TertiaryIlluminant : std::int32_t {
    e_TertiaryIlluminant_Illuminant_A = 1,
    e_TertiaryIlluminant_Illuminant_B,
    e_TertiaryIlluminant_Illuminant_C,
    e_TertiaryIlluminant_Illuminant_D50,
    e_TertiaryIlluminant_Illuminant_D55,
    e_TertiaryIlluminant_Illuminant_D65,
    e_TertiaryIlluminant_Illuminant_D75,
    e_TertiaryIlluminant_Illuminant_E,
    e_TertiaryIlluminant_Illuminant_F2,
    e_TertiaryIlluminant_Illuminant_F3,
    e_TertiaryIlluminant_Illuminant_F7,
    e_TertiaryIlluminant_Illuminant_F11,
    e_TertiaryIlluminant_Illuminant_F12,
    e_TertiaryIlluminant_Illuminant_9300,
    e_TertiaryIlluminant_Illuminant_Custom,
};

/// Parameter of a tolerance formula.
enum Eenum_ToleranceParameter : std::int32_t {
    e_ToleranceParameter_Param_L = 1,
    e_ToleranceParameter_Param_a,
    e_ToleranceParameter_Param_b,
    e_ToleranceParameter_Param_C,
    e_ToleranceParameter_Param_H,
    e_ToleranceParameter_Param_KL,
    e_ToleranceParameter_Param_KC,
    e_ToleranceParameter_Param_KH,
    e_ToleranceParameter_Param_delta,
    e_ToleranceParameter_Param_kCH,
    e_ToleranceParameter_Param_kE,
    e_ToleranceParameter_Param_CF,
    e_ToleranceParameter_Param_WaveLength,
    e_ToleranceParameter_Param_Q,
    e_ToleranceParameter_Param_P,
    e_ToleranceParameter_Param_Whiteness,
};

/// Tolerance formulas.
enum Eenum_ToleranceType : std::int32_t {
    e_ToleranceType_Brightness = 1,
    e_ToleranceType_DE_,
    e_ToleranceType_DE00,
    e_ToleranceType_DE94,
    e_ToleranceType_DE99,
    e_ToleranceType_DEcmc,
    e_ToleranceType_Defmc2,
    e_ToleranceType_DIN6172,
    e_ToleranceType_HunterDE,
    e_ToleranceType_HunterLab,
    e_ToleranceType_HunterLabPlusMinus,
    e_ToleranceType_L_C_H_,
    e_ToleranceType_L_a_b_,
    e_ToleranceType_L_a_b_PlusMinus,
    e_ToleranceType_MetamerismIndex,
    e_ToleranceType_StatusDensity,
    e_ToleranceType_Strength,
    e_ToleranceType_Whiteness,
    e_ToleranceType_Yellowness,
    e_ToleranceType_ddna,
    e_ToleranceType_df,
    e_ToleranceType_DEDIN6175,
};

}  // namespace com_vyrgraph_v2
