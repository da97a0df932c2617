// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>Weighting tables of ASTM E308 for the integration of tristimulus values.</summary>
    public enum AstmTableKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>For spectra that are corrected for the bandpass of the instrument.</summary>
        [Text("E308_Table5")] E308_Table5 = 1,
        /// <summary>For spectra that are not: the weights correct it.</summary>
        [Text("E308_Table6")] E308_Table6 = 2,
    }

    /// <summary>Scale of an axis.</summary>
    public enum AxisScaleKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Equal steps are equal differences.</summary>
        [Text("Scale_Linear")] Scale_Linear = 1,
        /// <summary>Equal steps are equal ratios.</summary>
        [Text("Scale_Log")] Scale_Log = 2,
        /// <summary>Neither; told elsewhere.</summary>
        [Text("Scale_Other")] Scale_Other = 3,
    }

    /// <summary>What lies behind a sample while it is measured.</summary>
    public enum BackingKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Black backing.</summary>
        [Text("Backing_Black")] Backing_Black = 1,
        /// <summary>White backing.</summary>
        [Text("Backing_White")] Backing_White = 2,
        /// <summary>Further sheets of the sample itself.</summary>
        [Text("Backing_Self")] Backing_Self = 3,
        /// <summary>None, or not known.</summary>
        [Text("Backing_NA")] Backing_NA = 4,
    }

    /// <summary>State of a calibration.</summary>
    public enum CalibrationKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Not calibrated.</summary>
        [Text("CalibrationState_NotCalibrated")] CalibrationState_NotCalibrated = 1,
        /// <summary>Calibrated.</summary>
        [Text("CalibrationState_Calibrated")] CalibrationState_Calibrated = 2,
        /// <summary>Not known, or nothing to calibrate.</summary>
        [Text("CalibrationState_NA")] CalibrationState_NA = 3,
    }

    /// <summary>Bits per channel of a device colour.</summary>
    public enum ColorDepthKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Not rounded.</summary>
        [Text("ColorDepth_Infinite")] ColorDepth_Infinite = 1,
        /// <summary>8 bits a channel.</summary>
        [Text("ColorDepth_8")] ColorDepth_8 = 2,
        /// <summary>16 bits a channel.</summary>
        [Text("ColorDepth_16")] ColorDepth_16 = 3,
        /// <summary>32 bits a channel.</summary>
        [Text("ColorDepth_32")] ColorDepth_32 = 4,
    }

    /// <summary>Filter through which an optical density is measured.</summary>
    public enum DensityFilterKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Visual density, weighted like luminance.</summary>
        [Text("Filter_Visual")] Filter_Visual = 1,
        /// <summary>Cyan ink, seen through red.</summary>
        [Text("Filter_Cyan")] Filter_Cyan = 2,
        /// <summary>Magenta ink, seen through green.</summary>
        [Text("Filter_Magenta")] Filter_Magenta = 3,
        /// <summary>Yellow ink, seen through blue.</summary>
        [Text("Filter_Yellow")] Filter_Yellow = 4,
        /// <summary>Black ink.</summary>
        [Text("Filter_Black")] Filter_Black = 5,
        /// <summary>Red light.</summary>
        [Text("Filter_Red")] Filter_Red = 6,
        /// <summary>Green light.</summary>
        [Text("Filter_Green")] Filter_Green = 7,
        /// <summary>Blue light.</summary>
        [Text("Filter_Blue")] Filter_Blue = 8,
        /// <summary>First filter of the instrument's own.</summary>
        [Text("Filter_A")] Filter_A = 9,
        /// <summary>Second filter of the instrument's own.</summary>
        [Text("Filter_B")] Filter_B = 10,
    }

    /// <summary>Density status: the set of spectral responses of a densitometer.</summary>
    public enum DensityStatusKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Status A (ISO 5-3): photographic prints and transparencies.</summary>
        [Text("Status_A")] Status_A = 1,
        /// <summary>Status E (ISO 5-3): graphic arts, wide band, with a narrower blue than T.</summary>
        [Text("Status_E")] Status_E = 2,
        /// <summary>Status T (ISO 5-3): graphic arts, wide band.</summary>
        [Text("Status_T")] Status_T = 3,
        /// <summary>Status I (ISO 5-3): narrow band.</summary>
        [Text("Status_I")] Status_I = 4,
        /// <summary>Spectral, extended; the instrument's maker defines it.</summary>
        [Text("Status_SpectralX")] Status_SpectralX = 5,
        /// <summary>Spectral; the instrument's maker defines it.</summary>
        [Text("Status_Spectral")] Status_Spectral = 6,
        /// <summary>Inks beyond the process colours; the instrument's maker defines it.</summary>
        [Text("Status_HiFi")] Status_HiFi = 7,
        /// <summary>Octavantic inks; the instrument's maker defines it.</summary>
        [Text("Status_Oct")] Status_Oct = 8,
        /// <summary>A variant of Status T; the instrument's maker defines it.</summary>
        [Text("Status_Txp")] Status_Txp = 9,
        /// <summary>A variant of Status E; the instrument's maker defines it.</summary>
        [Text("Status_Ex")] Status_Ex = 10,
        /// <summary>DIN 16536, wide band.</summary>
        [Text("Status_DIN")] Status_DIN = 11,
        /// <summary>DIN 16536, narrow band.</summary>
        [Text("Status_DIN-NB")] Status_DIN_NB = 12,
    }

    /// <summary>Kind of instrument.</summary>
    public enum DeviceClassKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Measures one patch at a time.</summary>
        [Text("DeviceClass_Spot")] DeviceClass_Spot = 1,
        /// <summary>Scans strips or charts.</summary>
        [Text("DeviceClass_Scanning")] DeviceClass_Scanning = 2,
        /// <summary>Any other.</summary>
        [Text("DeviceClass_Other")] DeviceClass_Other = 3,
    }

    /// <summary>Filter in the light path of an instrument.</summary>
    public enum DeviceFilterKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>No filter.</summary>
        [Text("Filter_None")] Filter_None = 1,
        /// <summary>Ultraviolet is cut off.</summary>
        [Text("Filter_UVExcluded")] Filter_UVExcluded = 2,
        /// <summary>Ultraviolet is adjusted to that of D65.</summary>
        [Text("Filter_UVD65")] Filter_UVD65 = 3,
        /// <summary>Ultraviolet is partly cut off; described beside it.</summary>
        [Text("Filter_Partial")] Filter_Partial = 4,
        /// <summary>A filter of one's own; described beside it.</summary>
        [Text("Filter_Custom")] Filter_Custom = 5,
    }

    /// <summary>How a light source is measured.</summary>
    public enum EmissiveKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>A spot of a display or a lamp.</summary>
        [Text("Emissive_Spot")] Emissive_Spot = 1,
        /// <summary>A spot with the ambient light.</summary>
        [Text("Emissive_SpotAmbient")] Emissive_SpotAmbient = 2,
        /// <summary>A scan of flashes.</summary>
        [Text("Emissive_ScanningFlash")] Emissive_ScanningFlash = 3,
    }

    /// <summary>Whether a diffuser is in place when a light source is measured.</summary>
    public enum EmissiveModeKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Through a diffuser.</summary>
        [Text("EmissiveMode_Diffuser")] EmissiveMode_Diffuser = 1,
        /// <summary>Without one, or not known.</summary>
        [Text("EmissiveMode_NA")] EmissiveMode_NA = 2,
    }

    /// <summary>Finish of a paper.</summary>
    public enum FinishKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Coated paper.</summary>
        [Text("Finish_Coated")] Finish_Coated = 1,
        /// <summary>Uncoated paper.</summary>
        [Text("Finish_Uncoated")] Finish_Uncoated = 2,
        /// <summary>Matte paper.</summary>
        [Text("Finish_Matte")] Finish_Matte = 3,
    }

    /// <summary>Gamut in which a colour can be shown.</summary>
    public enum GamutKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Adobe RGB (1998).</summary>
        [Text("Gamut_AdobeRGB")] Gamut_AdobeRGB = 1,
        /// <summary>sRGB.</summary>
        [Text("Gamut_sRGB")] Gamut_sRGB = 2,
        /// <summary>Process inks: cyan, magenta, yellow and black.</summary>
        [Text("Gamut_CMYK")] Gamut_CMYK = 3,
        /// <summary>Octavantic inks: the process inks with orange and green.</summary>
        [Text("Gamut_Octavantic")] Gamut_Octavantic = 4,
    }

    /// <summary>CIE standard illuminants, the 9300 K white of displays, and custom ones.</summary>
    public enum IlluminantKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>CIE A: incandescent light, 2856 K.</summary>
        [Text("Illuminant_A")] Illuminant_A = 1,
        /// <summary>CIE B: direct sunlight, 4874 K; out of use.</summary>
        [Text("Illuminant_B")] Illuminant_B = 2,
        /// <summary>CIE C: average daylight, 6774 K; out of use.</summary>
        [Text("Illuminant_C")] Illuminant_C = 3,
        /// <summary>CIE D50: horizon daylight, 5003 K; graphic arts.</summary>
        [Text("Illuminant_D50")] Illuminant_D50 = 4,
        /// <summary>CIE D55: mid-morning daylight, 5503 K.</summary>
        [Text("Illuminant_D55")] Illuminant_D55 = 5,
        /// <summary>CIE D65: noon daylight, 6504 K; sRGB.</summary>
        [Text("Illuminant_D65")] Illuminant_D65 = 6,
        /// <summary>CIE D75: north sky daylight, 7504 K.</summary>
        [Text("Illuminant_D75")] Illuminant_D75 = 7,
        /// <summary>CIE E: equal energy at all wavelengths.</summary>
        [Text("Illuminant_E")] Illuminant_E = 8,
        /// <summary>CIE F2: cool white fluorescent, 4230 K.</summary>
        [Text("Illuminant_F2")] Illuminant_F2 = 9,
        /// <summary>CIE F3: white fluorescent, 3450 K.</summary>
        [Text("Illuminant_F3")] Illuminant_F3 = 10,
        /// <summary>CIE F7: broadband daylight fluorescent, 6500 K.</summary>
        [Text("Illuminant_F7")] Illuminant_F7 = 11,
        /// <summary>CIE F11: narrow-band fluorescent, 4000 K.</summary>
        [Text("Illuminant_F11")] Illuminant_F11 = 12,
        /// <summary>CIE F12: narrow-band fluorescent, 3000 K.</summary>
        [Text("Illuminant_F12")] Illuminant_F12 = 13,
        /// <summary>The white of displays at 9300 K.</summary>
        [Text("Illuminant_9300")] Illuminant_9300 = 14,
        /// <summary>Another; named beside it.</summary>
        [Text("Illuminant_Custom")] Illuminant_Custom = 15,
    }

    /// <summary>CIE standard observer, by its field of view.</summary>
    public enum ObserverKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>CIE 1931 standard observer, 2 degrees.</summary>
        [Text("FieldOfView_2_Degree")] FieldOfView_2_Degree = 1,
        /// <summary>CIE 1964 standard observer, 10 degrees.</summary>
        [Text("FieldOfView_10_Degree")] FieldOfView_10_Degree = 2,
    }

    /// <summary>Which way a profile converts.</summary>
    public enum ProfileDirectionKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>From the device to the connection space.</summary>
        [Text("Profile_Input")] Profile_Input = 1,
        /// <summary>From the connection space to the device.</summary>
        [Text("Profile_Output")] Profile_Output = 2,
        /// <summary>Both ways.</summary>
        [Text("Profile_Both")] Profile_Both = 3,
    }

    /// <summary>Spectral quantity.</summary>
    public enum SpectrumKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Reflectance factor.</summary>
        [Text("Spectrum_Reflectance")] Spectrum_Reflectance = 1,
        /// <summary>Regular transmittance.</summary>
        [Text("Spectrum_Transmittance")] Spectrum_Transmittance = 2,
        /// <summary>Total transmittance: regular and diffuse.</summary>
        [Text("Spectrum_TotalTransmittance")] Spectrum_TotalTransmittance = 3,
        /// <summary>Another; named beside it.</summary>
        [Text("Spectrum_Custom")] Spectrum_Custom = 4,
    }

    /// <summary>Whether an integrating sphere includes the specular component.</summary>
    public enum SphereGeometryKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Specular component included.</summary>
        [Text("Sphere_Included")] Sphere_Included = 1,
        /// <summary>Specular component excluded.</summary>
        [Text("Sphere_Excluded")] Sphere_Excluded = 2,
    }

    /// <summary>Test charts.</summary>
    public enum TargetKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>IT8.7/1: transparencies, for scanners.</summary>
        [Text("Target_IT8.7/1")] Target_IT8_7_1 = 1,
        /// <summary>IT8.7/2: prints, for scanners.</summary>
        [Text("Target_IT8.7/2")] Target_IT8_7_2 = 2,
        /// <summary>IT8.7/3: process print, 928 patches.</summary>
        [Text("Target_IT8.7/3")] Target_IT8_7_3 = 3,
        /// <summary>IT8.7/4: process print, 1617 patches.</summary>
        [Text("Target_IT8.7/4")] Target_IT8_7_4 = 4,
        /// <summary>ECI 2002: process print, 1485 patches.</summary>
        [Text("Target_ECI2002")] Target_ECI2002 = 5,
        /// <summary>Another; named beside it.</summary>
        [Text("Target_Custom")] Target_Custom = 6,
    }

    /// <summary>Tolerance formulas.</summary>
    public enum ToleranceFormulaKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Difference of brightness.</summary>
        [Text("Brightness")] Brightness = 1,
        /// <summary>CIE 1976 colour difference in L*a*b*.</summary>
        [Text("DE*")] DE_ = 2,
        /// <summary>CIEDE2000 colour difference.</summary>
        [Text("DE00")] DE00 = 3,
        /// <summary>CIE 1994 colour difference.</summary>
        [Text("DE94")] DE94 = 4,
        /// <summary>DIN99 colour difference.</summary>
        [Text("DE99")] DE99 = 5,
        /// <summary>CMC l:c colour difference.</summary>
        [Text("DEcmc")] DEcmc = 6,
        /// <summary>FMC-2 colour difference.</summary>
        [Text("Defmc2")] Defmc2 = 7,
        /// <summary>Index of metamerism of DIN 6172.</summary>
        [Text("DIN6172")] DIN6172 = 8,
        /// <summary>Colour difference in Hunter Lab.</summary>
        [Text("HunterDE")] HunterDE = 9,
        /// <summary>Limits around each coordinate of Hunter Lab.</summary>
        [Text("HunterLab")] HunterLab = 10,
        /// <summary>The same with limits of their own above and below.</summary>
        [Text("HunterLabPlusMinus")] HunterLabPlusMinus = 11,
        /// <summary>Limits around lightness, chroma and hue.</summary>
        [Text("L*C*H*")] L_C_H_ = 12,
        /// <summary>Limits around each coordinate of L*a*b*.</summary>
        [Text("L*a*b*")] L_a_b_ = 13,
        /// <summary>The same with limits of their own above and below.</summary>
        [Text("L*a*b*PlusMinus")] L_a_b_PlusMinus = 14,
        /// <summary>Index of metamerism: the difference under a second illuminant.</summary>
        [Text("MetamerismIndex")] MetamerismIndex = 15,
        /// <summary>Difference of optical density.</summary>
        [Text("StatusDensity")] StatusDensity = 16,
        /// <summary>Colour strength.</summary>
        [Text("Strength")] Strength = 17,
        /// <summary>Index of whiteness.</summary>
        [Text("Whiteness")] Whiteness = 18,
        /// <summary>Index of yellowness.</summary>
        [Text("Yellowness")] Yellowness = 19,
        /// <summary>A formula of that name, which the format defines no further.</summary>
        [Text("ddna")] ddna = 20,
        /// <summary>A formula of that name, which the format defines no further.</summary>
        [Text("df")] df = 21,
        /// <summary>Tolerances of DIN 6175, for vehicle paints.</summary>
        [Text("DEDIN6175")] DEDIN6175 = 22,
    }

    /// <summary>Parameter of a tolerance formula.</summary>
    public enum ToleranceParameterKind
    {
        /// <summary>No text was set, or one that is none of these.</summary>
        None = 0,
        /// <summary>Lightness L*.</summary>
        [Text("Param_L")] Param_L = 1,
        /// <summary>Coordinate a*.</summary>
        [Text("Param_a")] Param_a = 2,
        /// <summary>Coordinate b*.</summary>
        [Text("Param_b")] Param_b = 3,
        /// <summary>Chroma C*.</summary>
        [Text("Param_C")] Param_C = 4,
        /// <summary>Hue H*.</summary>
        [Text("Param_H")] Param_H = 5,
        /// <summary>Weight of the lightness difference.</summary>
        [Text("Param_KL")] Param_KL = 6,
        /// <summary>Weight of the chroma difference.</summary>
        [Text("Param_KC")] Param_KC = 7,
        /// <summary>Weight of the hue difference.</summary>
        [Text("Param_KH")] Param_KH = 8,
        /// <summary>The difference as a whole.</summary>
        [Text("Param_delta")] Param_delta = 9,
        /// <summary>Common weight of chroma and hue.</summary>
        [Text("Param_kCH")] Param_kCH = 10,
        /// <summary>Weight of the difference as a whole.</summary>
        [Text("Param_kE")] Param_kE = 11,
        /// <summary>Commercial factor.</summary>
        [Text("Param_CF")] Param_CF = 12,
        /// <summary>Wavelength in nanometres.</summary>
        [Text("Param_WaveLength")] Param_WaveLength = 13,
        /// <summary>Parameter Q of the formula.</summary>
        [Text("Param_Q")] Param_Q = 14,
        /// <summary>Parameter P of the formula.</summary>
        [Text("Param_P")] Param_P = 15,
        /// <summary>Whiteness.</summary>
        [Text("Param_Whiteness")] Param_Whiteness = 16,
    }
}
