# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""The enumerations of the format."""

from .._enumeration import Enumeration

__all__ = (
    "AstmTableKind",
    "AxisScaleKind",
    "BackingKind",
    "CalibrationKind",
    "ColorDepthKind",
    "DensityFilterKind",
    "DensityStatusKind",
    "DeviceClassKind",
    "DeviceFilterKind",
    "EmissiveKind",
    "EmissiveModeKind",
    "FinishKind",
    "GamutKind",
    "IlluminantKind",
    "ObserverKind",
    "ProfileDirectionKind",
    "SpectrumKind",
    "SphereGeometryKind",
    "TargetKind",
    "ToleranceFormulaKind",
    "ToleranceParameterKind",
)


class AstmTableKind(Enumeration):
    """Weighting tables of ASTM E308 for the integration of tristimulus values."""

    E308_Table5 = (1, "E308_Table5", "For spectra that are corrected for the bandpass of the instrument.")
    E308_Table6 = (2, "E308_Table6", "For spectra that are not: the weights correct it.")


class AxisScaleKind(Enumeration):
    """Scale of an axis."""

    Scale_Linear = (1, "Scale_Linear", "Equal steps are equal differences.")
    Scale_Log = (2, "Scale_Log", "Equal steps are equal ratios.")
    Scale_Other = (3, "Scale_Other", "Neither; told elsewhere.")


class BackingKind(Enumeration):
    """What lies behind a sample while it is measured."""

    Backing_Black = (1, "Backing_Black", "Black backing.")
    Backing_White = (2, "Backing_White", "White backing.")
    Backing_Self = (3, "Backing_Self", "Further sheets of the sample itself.")
    Backing_NA = (4, "Backing_NA", "None, or not known.")


class CalibrationKind(Enumeration):
    """State of a calibration."""

    CalibrationState_NotCalibrated = (1, "CalibrationState_NotCalibrated", "Not calibrated.")
    CalibrationState_Calibrated = (2, "CalibrationState_Calibrated", "Calibrated.")
    CalibrationState_NA = (3, "CalibrationState_NA", "Not known, or nothing to calibrate.")


class ColorDepthKind(Enumeration):
    """Bits per channel of a device colour."""

    ColorDepth_Infinite = (1, "ColorDepth_Infinite", "Not rounded.")
    ColorDepth_8 = (2, "ColorDepth_8", "8 bits a channel.")
    ColorDepth_16 = (3, "ColorDepth_16", "16 bits a channel.")
    ColorDepth_32 = (4, "ColorDepth_32", "32 bits a channel.")


class DensityFilterKind(Enumeration):
    """Filter through which an optical density is measured."""

    Filter_Visual = (1, "Filter_Visual", "Visual density, weighted like luminance.")
    Filter_Cyan = (2, "Filter_Cyan", "Cyan ink, seen through red.")
    Filter_Magenta = (3, "Filter_Magenta", "Magenta ink, seen through green.")
    Filter_Yellow = (4, "Filter_Yellow", "Yellow ink, seen through blue.")
    Filter_Black = (5, "Filter_Black", "Black ink.")
    Filter_Red = (6, "Filter_Red", "Red light.")
    Filter_Green = (7, "Filter_Green", "Green light.")
    Filter_Blue = (8, "Filter_Blue", "Blue light.")
    Filter_A = (9, "Filter_A", "First filter of the instrument's own.")
    Filter_B = (10, "Filter_B", "Second filter of the instrument's own.")


class DensityStatusKind(Enumeration):
    """Density status: the set of spectral responses of a densitometer."""

    Status_A = (1, "Status_A", "Status A (ISO 5-3): photographic prints and transparencies.")
    Status_E = (2, "Status_E", "Status E (ISO 5-3): graphic arts, wide band, with a narrower blue than T.")
    Status_T = (3, "Status_T", "Status T (ISO 5-3): graphic arts, wide band.")
    Status_I = (4, "Status_I", "Status I (ISO 5-3): narrow band.")
    Status_SpectralX = (5, "Status_SpectralX", "Spectral, extended; the instrument's maker defines it.")
    Status_Spectral = (6, "Status_Spectral", "Spectral; the instrument's maker defines it.")
    Status_HiFi = (7, "Status_HiFi", "Inks beyond the process colours; the instrument's maker defines it.")
    Status_Oct = (8, "Status_Oct", "Octavantic inks; the instrument's maker defines it.")
    Status_Txp = (9, "Status_Txp", "A variant of Status T; the instrument's maker defines it.")
    Status_Ex = (10, "Status_Ex", "A variant of Status E; the instrument's maker defines it.")
    Status_DIN = (11, "Status_DIN", "DIN 16536, wide band.")
    Status_DIN_NB = (12, "Status_DIN-NB", "DIN 16536, narrow band.")


class DeviceClassKind(Enumeration):
    """Kind of instrument."""

    DeviceClass_Spot = (1, "DeviceClass_Spot", "Measures one patch at a time.")
    DeviceClass_Scanning = (2, "DeviceClass_Scanning", "Scans strips or charts.")
    DeviceClass_Other = (3, "DeviceClass_Other", "Any other.")


class DeviceFilterKind(Enumeration):
    """Filter in the light path of an instrument."""

    Filter_None = (1, "Filter_None", "No filter.")
    Filter_UVExcluded = (2, "Filter_UVExcluded", "Ultraviolet is cut off.")
    Filter_UVD65 = (3, "Filter_UVD65", "Ultraviolet is adjusted to that of D65.")
    Filter_Partial = (4, "Filter_Partial", "Ultraviolet is partly cut off; described beside it.")
    Filter_Custom = (5, "Filter_Custom", "A filter of one's own; described beside it.")


class EmissiveKind(Enumeration):
    """How a light source is measured."""

    Emissive_Spot = (1, "Emissive_Spot", "A spot of a display or a lamp.")
    Emissive_SpotAmbient = (2, "Emissive_SpotAmbient", "A spot with the ambient light.")
    Emissive_ScanningFlash = (3, "Emissive_ScanningFlash", "A scan of flashes.")


class EmissiveModeKind(Enumeration):
    """Whether a diffuser is in place when a light source is measured."""

    EmissiveMode_Diffuser = (1, "EmissiveMode_Diffuser", "Through a diffuser.")
    EmissiveMode_NA = (2, "EmissiveMode_NA", "Without one, or not known.")


class FinishKind(Enumeration):
    """Finish of a paper."""

    Finish_Coated = (1, "Finish_Coated", "Coated paper.")
    Finish_Uncoated = (2, "Finish_Uncoated", "Uncoated paper.")
    Finish_Matte = (3, "Finish_Matte", "Matte paper.")


class GamutKind(Enumeration):
    """Gamut in which a colour can be shown."""

    Gamut_AdobeRGB = (1, "Gamut_AdobeRGB", "Adobe RGB (1998).")
    Gamut_sRGB = (2, "Gamut_sRGB", "sRGB.")
    Gamut_CMYK = (3, "Gamut_CMYK", "Process inks: cyan, magenta, yellow and black.")
    Gamut_Octavantic = (4, "Gamut_Octavantic", "Octavantic inks: the process inks with orange and green.")


class IlluminantKind(Enumeration):
    """CIE standard illuminants, the 9300 K white of displays, and custom ones."""

    Illuminant_A = (1, "Illuminant_A", "CIE A: incandescent light, 2856 K.")
    Illuminant_B = (2, "Illuminant_B", "CIE B: direct sunlight, 4874 K; out of use.")
    Illuminant_C = (3, "Illuminant_C", "CIE C: average daylight, 6774 K; out of use.")
    Illuminant_D50 = (4, "Illuminant_D50", "CIE D50: horizon daylight, 5003 K; graphic arts.")
    Illuminant_D55 = (5, "Illuminant_D55", "CIE D55: mid-morning daylight, 5503 K.")
    Illuminant_D65 = (6, "Illuminant_D65", "CIE D65: noon daylight, 6504 K; sRGB.")
    Illuminant_D75 = (7, "Illuminant_D75", "CIE D75: north sky daylight, 7504 K.")
    Illuminant_E = (8, "Illuminant_E", "CIE E: equal energy at all wavelengths.")
    Illuminant_F2 = (9, "Illuminant_F2", "CIE F2: cool white fluorescent, 4230 K.")
    Illuminant_F3 = (10, "Illuminant_F3", "CIE F3: white fluorescent, 3450 K.")
    Illuminant_F7 = (11, "Illuminant_F7", "CIE F7: broadband daylight fluorescent, 6500 K.")
    Illuminant_F11 = (12, "Illuminant_F11", "CIE F11: narrow-band fluorescent, 4000 K.")
    Illuminant_F12 = (13, "Illuminant_F12", "CIE F12: narrow-band fluorescent, 3000 K.")
    Illuminant_9300 = (14, "Illuminant_9300", "The white of displays at 9300 K.")
    Illuminant_Custom = (15, "Illuminant_Custom", "Another; named beside it.")


class ObserverKind(Enumeration):
    """CIE standard observer, by its field of view."""

    FieldOfView_2_Degree = (1, "FieldOfView_2_Degree", "CIE 1931 standard observer, 2 degrees.")
    FieldOfView_10_Degree = (2, "FieldOfView_10_Degree", "CIE 1964 standard observer, 10 degrees.")


class ProfileDirectionKind(Enumeration):
    """Which way a profile converts."""

    Profile_Input = (1, "Profile_Input", "From the device to the connection space.")
    Profile_Output = (2, "Profile_Output", "From the connection space to the device.")
    Profile_Both = (3, "Profile_Both", "Both ways.")


class SpectrumKind(Enumeration):
    """Spectral quantity."""

    Spectrum_Reflectance = (1, "Spectrum_Reflectance", "Reflectance factor.")
    Spectrum_Transmittance = (2, "Spectrum_Transmittance", "Regular transmittance.")
    Spectrum_TotalTransmittance = (3, "Spectrum_TotalTransmittance", "Total transmittance: regular and diffuse.")
    Spectrum_Custom = (4, "Spectrum_Custom", "Another; named beside it.")


class SphereGeometryKind(Enumeration):
    """Whether an integrating sphere includes the specular component."""

    Sphere_Included = (1, "Sphere_Included", "Specular component included.")
    Sphere_Excluded = (2, "Sphere_Excluded", "Specular component excluded.")


class TargetKind(Enumeration):
    """Test charts."""

    Target_IT8_7_1 = (1, "Target_IT8.7/1", "IT8.7/1: transparencies, for scanners.")
    Target_IT8_7_2 = (2, "Target_IT8.7/2", "IT8.7/2: prints, for scanners.")
    Target_IT8_7_3 = (3, "Target_IT8.7/3", "IT8.7/3: process print, 928 patches.")
    Target_IT8_7_4 = (4, "Target_IT8.7/4", "IT8.7/4: process print, 1617 patches.")
    Target_ECI2002 = (5, "Target_ECI2002", "ECI 2002: process print, 1485 patches.")
    Target_Custom = (6, "Target_Custom", "Another; named beside it.")


class ToleranceFormulaKind(Enumeration):
    """Tolerance formulas."""

    Brightness = (1, "Brightness", "Difference of brightness.")
    DE_ = (2, "DE*", "CIE 1976 colour difference in L*a*b*.")
    DE00 = (3, "DE00", "CIEDE2000 colour difference.")
    DE94 = (4, "DE94", "CIE 1994 colour difference.")
    DE99 = (5, "DE99", "DIN99 colour difference.")
    DEcmc = (6, "DEcmc", "CMC l:c colour difference.")
    Defmc2 = (7, "Defmc2", "FMC-2 colour difference.")
    DIN6172 = (8, "DIN6172", "Index of metamerism of DIN 6172.")
    HunterDE = (9, "HunterDE", "Colour difference in Hunter Lab.")
    HunterLab = (10, "HunterLab", "Limits around each coordinate of Hunter Lab.")
    HunterLabPlusMinus = (11, "HunterLabPlusMinus", "The same with limits of their own above and below.")
    L_C_H_ = (12, "L*C*H*", "Limits around lightness, chroma and hue.")
    L_a_b_ = (13, "L*a*b*", "Limits around each coordinate of L*a*b*.")
    L_a_b_PlusMinus = (14, "L*a*b*PlusMinus", "The same with limits of their own above and below.")
    MetamerismIndex = (15, "MetamerismIndex", "Index of metamerism: the difference under a second illuminant.")
    StatusDensity = (16, "StatusDensity", "Difference of optical density.")
    Strength = (17, "Strength", "Colour strength.")
    Whiteness = (18, "Whiteness", "Index of whiteness.")
    Yellowness = (19, "Yellowness", "Index of yellowness.")
    ddna = (20, "ddna", "A formula of that name, which the format defines no further.")
    df = (21, "df", "A formula of that name, which the format defines no further.")
    DEDIN6175 = (22, "DEDIN6175", "Tolerances of DIN 6175, for vehicle paints.")


class ToleranceParameterKind(Enumeration):
    """Parameter of a tolerance formula."""

    Param_L = (1, "Param_L", "Lightness L*.")
    Param_a = (2, "Param_a", "Coordinate a*.")
    Param_b = (3, "Param_b", "Coordinate b*.")
    Param_C = (4, "Param_C", "Chroma C*.")
    Param_H = (5, "Param_H", "Hue H*.")
    Param_KL = (6, "Param_KL", "Weight of the lightness difference.")
    Param_KC = (7, "Param_KC", "Weight of the chroma difference.")
    Param_KH = (8, "Param_KH", "Weight of the hue difference.")
    Param_delta = (9, "Param_delta", "The difference as a whole.")
    Param_kCH = (10, "Param_kCH", "Common weight of chroma and hue.")
    Param_kE = (11, "Param_kE", "Weight of the difference as a whole.")
    Param_CF = (12, "Param_CF", "Commercial factor.")
    Param_WaveLength = (13, "Param_WaveLength", "Wavelength in nanometres.")
    Param_Q = (14, "Param_Q", "Parameter Q of the formula.")
    Param_P = (15, "Param_P", "Parameter P of the formula.")
    Param_Whiteness = (16, "Param_Whiteness", "Whiteness.")
