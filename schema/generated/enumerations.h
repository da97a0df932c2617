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
    e_ASTM_Table_E308_Table5 = 1,  ///< For spectra that are corrected for the bandpass of the instrument.
    e_ASTM_Table_E308_Table6,  ///< For spectra that are not: the weights correct it.
};

/// Scale of an axis.
enum Eenum_AxisNominalScale : std::int32_t {
    e_AxisNominalScale_Scale_Linear = 1,  ///< Equal steps are equal differences.
    e_AxisNominalScale_Scale_Log,  ///< Equal steps are equal ratios.
    e_AxisNominalScale_Scale_Other,  ///< Neither; told elsewhere.
};

/// What lies behind a sample while it is measured.
enum Eenum_Backing : std::int32_t {
    e_Backing_Backing_Black = 1,  ///< Black backing.
    e_Backing_Backing_White,  ///< White backing.
    e_Backing_Backing_Self,  ///< Further sheets of the sample itself.
    e_Backing_Backing_NA,  ///< None, or not known.
};

/// State of a calibration.
enum Eenum_CalibrationStateType : std::int32_t {
    e_CalibrationStateType_CalibrationState_NotCalibrated = 1,  ///< Not calibrated.
    e_CalibrationStateType_CalibrationState_Calibrated,  ///< Calibrated.
    e_CalibrationStateType_CalibrationState_NA,  ///< Not known, or nothing to calibrate.
};

/// Bits per channel of a device colour.
enum Eenum_ColorDepth : std::int32_t {
    e_ColorDepth_ColorDepth_Infinite = 1,  ///< Not rounded.
    e_ColorDepth_ColorDepth_8,  ///< 8 bits a channel.
    e_ColorDepth_ColorDepth_16,  ///< 16 bits a channel.
    e_ColorDepth_ColorDepth_32,  ///< 32 bits a channel.
};

/// Filter through which an optical density is measured.
enum Eenum_DensityFilter : std::int32_t {
    e_DensityFilter_Filter_Visual = 1,  ///< Visual density, weighted like luminance.
    e_DensityFilter_Filter_Cyan,  ///< Cyan ink, seen through red.
    e_DensityFilter_Filter_Magenta,  ///< Magenta ink, seen through green.
    e_DensityFilter_Filter_Yellow,  ///< Yellow ink, seen through blue.
    e_DensityFilter_Filter_Black,  ///< Black ink.
    e_DensityFilter_Filter_Red,  ///< Red light.
    e_DensityFilter_Filter_Green,  ///< Green light.
    e_DensityFilter_Filter_Blue,  ///< Blue light.
    e_DensityFilter_Filter_A,  ///< First filter of the instrument's own.
    e_DensityFilter_Filter_B,  ///< Second filter of the instrument's own.
};

/// Density status: the set of spectral responses of a densitometer.
enum Eenum_DensityStatus : std::int32_t {
    e_DensityStatus_Status_A = 1,  ///< Status A (ISO 5-3): photographic prints and transparencies.
    e_DensityStatus_Status_E,  ///< Status E (ISO 5-3): graphic arts, wide band, with a narrower blue than T.
    e_DensityStatus_Status_T,  ///< Status T (ISO 5-3): graphic arts, wide band.
    e_DensityStatus_Status_I,  ///< Status I (ISO 5-3): narrow band.
    e_DensityStatus_Status_SpectralX,  ///< Spectral, extended; the instrument's maker defines it.
    e_DensityStatus_Status_Spectral,  ///< Spectral; the instrument's maker defines it.
    e_DensityStatus_Status_HiFi,  ///< Inks beyond the process colours; the instrument's maker defines it.
    e_DensityStatus_Status_Oct,  ///< Octavantic inks; the instrument's maker defines it.
    e_DensityStatus_Status_Txp,  ///< A variant of Status T; the instrument's maker defines it.
    e_DensityStatus_Status_Ex,  ///< A variant of Status E; the instrument's maker defines it.
    e_DensityStatus_Status_DIN,  ///< DIN 16536, wide band.
    e_DensityStatus_Status_DIN_NB,  ///< DIN 16536, narrow band.
};

/// Kind of instrument.
enum Eenum_DeviceClass : std::int32_t {
    e_DeviceClass_DeviceClass_Spot = 1,  ///< Measures one patch at a time.
    e_DeviceClass_DeviceClass_Scanning,  ///< Scans strips or charts.
    e_DeviceClass_DeviceClass_Other,  ///< Any other.
};

/// Filter in the light path of an instrument.
enum Eenum_DeviceFilterType : std::int32_t {
    e_DeviceFilterType_Filter_None = 1,  ///< No filter.
    e_DeviceFilterType_Filter_UVExcluded,  ///< Ultraviolet is cut off.
    e_DeviceFilterType_Filter_UVD65,  ///< Ultraviolet is adjusted to that of D65.
    e_DeviceFilterType_Filter_Partial,  ///< Ultraviolet is partly cut off; described beside it.
    e_DeviceFilterType_Filter_Custom,  ///< A filter of one's own; described beside it.
};

/// Which way a profile converts.
enum Eenum_Direction : std::int32_t {
    e_Direction_Profile_Input = 1,  ///< From the device to the connection space.
    e_Direction_Profile_Output,  ///< From the connection space to the device.
    e_Direction_Profile_Both,  ///< Both ways.
};

/// Whether a diffuser is in place when a light source is measured.
enum Eenum_EmissiveMode : std::int32_t {
    e_EmissiveMode_EmissiveMode_Diffuser = 1,  ///< Through a diffuser.
    e_EmissiveMode_EmissiveMode_NA,  ///< Without one, or not known.
};

/// How a light source is measured.
enum Eenum_EmissiveType : std::int32_t {
    e_EmissiveType_Emissive_Spot = 1,  ///< A spot of a display or a lamp.
    e_EmissiveType_Emissive_SpotAmbient,  ///< A spot with the ambient light.
    e_EmissiveType_Emissive_ScanningFlash,  ///< A scan of flashes.
};

/// CIE standard observer, by its field of view.
enum Eenum_FieldOfView : std::int32_t {
    e_FieldOfView_FieldOfView_2_Degree = 1,  ///< CIE 1931 standard observer, 2 degrees.
    e_FieldOfView_FieldOfView_10_Degree,  ///< CIE 1964 standard observer, 10 degrees.
};

/// Finish of a paper.
enum Eenum_Finish : std::int32_t {
    e_Finish_Finish_Coated = 1,  ///< Coated paper.
    e_Finish_Finish_Uncoated,  ///< Uncoated paper.
    e_Finish_Finish_Matte,  ///< Matte paper.
};

/// Gamut in which a colour can be shown.
enum Eenum_Gamut : std::int32_t {
    e_Gamut_Gamut_AdobeRGB = 1,  ///< Adobe RGB (1998).
    e_Gamut_Gamut_sRGB,  ///< sRGB.
    e_Gamut_Gamut_CMYK,  ///< Process inks: cyan, magenta, yellow and black.
    e_Gamut_Gamut_Octavantic,  ///< Octavantic inks: the process inks with orange and green.
};

/// CIE standard illuminants, the 9300 K white of displays, and custom ones.
enum Eenum_Illuminant : std::int32_t {
    e_Illuminant_Illuminant_A = 1,  ///< CIE A: incandescent light, 2856 K.
    e_Illuminant_Illuminant_B,  ///< CIE B: direct sunlight, 4874 K; out of use.
    e_Illuminant_Illuminant_C,  ///< CIE C: average daylight, 6774 K; out of use.
    e_Illuminant_Illuminant_D50,  ///< CIE D50: horizon daylight, 5003 K; graphic arts.
    e_Illuminant_Illuminant_D55,  ///< CIE D55: mid-morning daylight, 5503 K.
    e_Illuminant_Illuminant_D65,  ///< CIE D65: noon daylight, 6504 K; sRGB.
    e_Illuminant_Illuminant_D75,  ///< CIE D75: north sky daylight, 7504 K.
    e_Illuminant_Illuminant_E,  ///< CIE E: equal energy at all wavelengths.
    e_Illuminant_Illuminant_F2,  ///< CIE F2: cool white fluorescent, 4230 K.
    e_Illuminant_Illuminant_F3,  ///< CIE F3: white fluorescent, 3450 K.
    e_Illuminant_Illuminant_F7,  ///< CIE F7: broadband daylight fluorescent, 6500 K.
    e_Illuminant_Illuminant_F11,  ///< CIE F11: narrow-band fluorescent, 4000 K.
    e_Illuminant_Illuminant_F12,  ///< CIE F12: narrow-band fluorescent, 3000 K.
    e_Illuminant_Illuminant_9300,  ///< The white of displays at 9300 K.
    e_Illuminant_Illuminant_Custom,  ///< Another; named beside it.
};

/// CIE standard illuminants, the 9300 K white of displays, and custom ones.
enum Eenum_PrimaryIlluminant : std::int32_t {
    e_PrimaryIlluminant_Illuminant_A = 1,  ///< CIE A: incandescent light, 2856 K.
    e_PrimaryIlluminant_Illuminant_B,  ///< CIE B: direct sunlight, 4874 K; out of use.
    e_PrimaryIlluminant_Illuminant_C,  ///< CIE C: average daylight, 6774 K; out of use.
    e_PrimaryIlluminant_Illuminant_D50,  ///< CIE D50: horizon daylight, 5003 K; graphic arts.
    e_PrimaryIlluminant_Illuminant_D55,  ///< CIE D55: mid-morning daylight, 5503 K.
    e_PrimaryIlluminant_Illuminant_D65,  ///< CIE D65: noon daylight, 6504 K; sRGB.
    e_PrimaryIlluminant_Illuminant_D75,  ///< CIE D75: north sky daylight, 7504 K.
    e_PrimaryIlluminant_Illuminant_E,  ///< CIE E: equal energy at all wavelengths.
    e_PrimaryIlluminant_Illuminant_F2,  ///< CIE F2: cool white fluorescent, 4230 K.
    e_PrimaryIlluminant_Illuminant_F3,  ///< CIE F3: white fluorescent, 3450 K.
    e_PrimaryIlluminant_Illuminant_F7,  ///< CIE F7: broadband daylight fluorescent, 6500 K.
    e_PrimaryIlluminant_Illuminant_F11,  ///< CIE F11: narrow-band fluorescent, 4000 K.
    e_PrimaryIlluminant_Illuminant_F12,  ///< CIE F12: narrow-band fluorescent, 3000 K.
    e_PrimaryIlluminant_Illuminant_9300,  ///< The white of displays at 9300 K.
    e_PrimaryIlluminant_Illuminant_Custom,  ///< Another; named beside it.
};

/// CIE standard illuminants, the 9300 K white of displays, and custom ones.
enum Eenum_SecondaryIlluminant : std::int32_t {
    e_SecondaryIlluminant_Illuminant_A = 1,  ///< CIE A: incandescent light, 2856 K.
    e_SecondaryIlluminant_Illuminant_B,  ///< CIE B: direct sunlight, 4874 K; out of use.
    e_SecondaryIlluminant_Illuminant_C,  ///< CIE C: average daylight, 6774 K; out of use.
    e_SecondaryIlluminant_Illuminant_D50,  ///< CIE D50: horizon daylight, 5003 K; graphic arts.
    e_SecondaryIlluminant_Illuminant_D55,  ///< CIE D55: mid-morning daylight, 5503 K.
    e_SecondaryIlluminant_Illuminant_D65,  ///< CIE D65: noon daylight, 6504 K; sRGB.
    e_SecondaryIlluminant_Illuminant_D75,  ///< CIE D75: north sky daylight, 7504 K.
    e_SecondaryIlluminant_Illuminant_E,  ///< CIE E: equal energy at all wavelengths.
    e_SecondaryIlluminant_Illuminant_F2,  ///< CIE F2: cool white fluorescent, 4230 K.
    e_SecondaryIlluminant_Illuminant_F3,  ///< CIE F3: white fluorescent, 3450 K.
    e_SecondaryIlluminant_Illuminant_F7,  ///< CIE F7: broadband daylight fluorescent, 6500 K.
    e_SecondaryIlluminant_Illuminant_F11,  ///< CIE F11: narrow-band fluorescent, 4000 K.
    e_SecondaryIlluminant_Illuminant_F12,  ///< CIE F12: narrow-band fluorescent, 3000 K.
    e_SecondaryIlluminant_Illuminant_9300,  ///< The white of displays at 9300 K.
    e_SecondaryIlluminant_Illuminant_Custom,  ///< Another; named beside it.
};

/// Spectral quantity.
enum Eenum_SpectrumType : std::int32_t {
    e_SpectrumType_Spectrum_Reflectance = 1,  ///< Reflectance factor.
    e_SpectrumType_Spectrum_Transmittance,  ///< Regular transmittance.
    e_SpectrumType_Spectrum_TotalTransmittance,  ///< Total transmittance: regular and diffuse.
    e_SpectrumType_Spectrum_Custom,  ///< Another; named beside it.
};

/// Whether an integrating sphere includes the specular component.
enum Eenum_SphereGeometry : std::int32_t {
    e_SphereGeometry_Sphere_Included = 1,  ///< Specular component included.
    e_SphereGeometry_Sphere_Excluded,  ///< Specular component excluded.
};

/// Test charts.
enum Eenum_Target : std::int32_t {
    e_Target_Target_IT8_7_1 = 1,  ///< IT8.7/1: transparencies, for scanners.
    e_Target_Target_IT8_7_2,  ///< IT8.7/2: prints, for scanners.
    e_Target_Target_IT8_7_3,  ///< IT8.7/3: process print, 928 patches.
    e_Target_Target_IT8_7_4,  ///< IT8.7/4: process print, 1617 patches.
    e_Target_Target_ECI2002,  ///< ECI 2002: process print, 1485 patches.
    e_Target_Target_Custom,  ///< Another; named beside it.
};

/// CIE standard illuminants, the 9300 K white of displays, and custom ones.
enum Eenum_TertiaryIlluminant : std::int32_t {
    e_TertiaryIlluminant_Illuminant_A = 1,  ///< CIE A: incandescent light, 2856 K.
    e_TertiaryIlluminant_Illuminant_B,  ///< CIE B: direct sunlight, 4874 K; out of use.
    e_TertiaryIlluminant_Illuminant_C,  ///< CIE C: average daylight, 6774 K; out of use.
    e_TertiaryIlluminant_Illuminant_D50,  ///< CIE D50: horizon daylight, 5003 K; graphic arts.
    e_TertiaryIlluminant_Illuminant_D55,  ///< CIE D55: mid-morning daylight, 5503 K.
    e_TertiaryIlluminant_Illuminant_D65,  ///< CIE D65: noon daylight, 6504 K; sRGB.
    e_TertiaryIlluminant_Illuminant_D75,  ///< CIE D75: north sky daylight, 7504 K.
    e_TertiaryIlluminant_Illuminant_E,  ///< CIE E: equal energy at all wavelengths.
    e_TertiaryIlluminant_Illuminant_F2,  ///< CIE F2: cool white fluorescent, 4230 K.
    e_TertiaryIlluminant_Illuminant_F3,  ///< CIE F3: white fluorescent, 3450 K.
    e_TertiaryIlluminant_Illuminant_F7,  ///< CIE F7: broadband daylight fluorescent, 6500 K.
    e_TertiaryIlluminant_Illuminant_F11,  ///< CIE F11: narrow-band fluorescent, 4000 K.
    e_TertiaryIlluminant_Illuminant_F12,  ///< CIE F12: narrow-band fluorescent, 3000 K.
    e_TertiaryIlluminant_Illuminant_9300,  ///< The white of displays at 9300 K.
    e_TertiaryIlluminant_Illuminant_Custom,  ///< Another; named beside it.
};

/// Parameter of a tolerance formula.
enum Eenum_ToleranceParameter : std::int32_t {
    e_ToleranceParameter_Param_L = 1,  ///< Lightness L*.
    e_ToleranceParameter_Param_a,  ///< Coordinate a*.
    e_ToleranceParameter_Param_b,  ///< Coordinate b*.
    e_ToleranceParameter_Param_C,  ///< Chroma C*.
    e_ToleranceParameter_Param_H,  ///< Hue H*.
    e_ToleranceParameter_Param_KL,  ///< Weight of the lightness difference.
    e_ToleranceParameter_Param_KC,  ///< Weight of the chroma difference.
    e_ToleranceParameter_Param_KH,  ///< Weight of the hue difference.
    e_ToleranceParameter_Param_delta,  ///< The difference as a whole.
    e_ToleranceParameter_Param_kCH,  ///< Common weight of chroma and hue.
    e_ToleranceParameter_Param_kE,  ///< Weight of the difference as a whole.
    e_ToleranceParameter_Param_CF,  ///< Commercial factor.
    e_ToleranceParameter_Param_WaveLength,  ///< Wavelength in nanometres.
    e_ToleranceParameter_Param_Q,  ///< Parameter Q of the formula.
    e_ToleranceParameter_Param_P,  ///< Parameter P of the formula.
    e_ToleranceParameter_Param_Whiteness,  ///< Whiteness.
};

/// Tolerance formulas.
enum Eenum_ToleranceType : std::int32_t {
    e_ToleranceType_Brightness = 1,  ///< Difference of brightness.
    e_ToleranceType_DE_,  ///< CIE 1976 colour difference in L*a*b*.
    e_ToleranceType_DE00,  ///< CIEDE2000 colour difference.
    e_ToleranceType_DE94,  ///< CIE 1994 colour difference.
    e_ToleranceType_DE99,  ///< DIN99 colour difference.
    e_ToleranceType_DEcmc,  ///< CMC l:c colour difference.
    e_ToleranceType_Defmc2,  ///< FMC-2 colour difference.
    e_ToleranceType_DIN6172,  ///< Index of metamerism of DIN 6172.
    e_ToleranceType_HunterDE,  ///< Colour difference in Hunter Lab.
    e_ToleranceType_HunterLab,  ///< Limits around each coordinate of Hunter Lab.
    e_ToleranceType_HunterLabPlusMinus,  ///< The same with limits of their own above and below.
    e_ToleranceType_L_C_H_,  ///< Limits around lightness, chroma and hue.
    e_ToleranceType_L_a_b_,  ///< Limits around each coordinate of L*a*b*.
    e_ToleranceType_L_a_b_PlusMinus,  ///< The same with limits of their own above and below.
    e_ToleranceType_MetamerismIndex,  ///< Index of metamerism: the difference under a second illuminant.
    e_ToleranceType_StatusDensity,  ///< Difference of optical density.
    e_ToleranceType_Strength,  ///< Colour strength.
    e_ToleranceType_Whiteness,  ///< Index of whiteness.
    e_ToleranceType_Yellowness,  ///< Index of yellowness.
    e_ToleranceType_ddna,  ///< A formula of that name, which the format defines no further.
    e_ToleranceType_df,  ///< A formula of that name, which the format defines no further.
    e_ToleranceType_DEDIN6175,  ///< Tolerances of DIN 6175, for vehicle paints.
};

}  // namespace com_vyrgraph_v2
