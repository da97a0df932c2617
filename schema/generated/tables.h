// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// What the tables of all classes share: the namespace map, tokens and facets.

#pragma once

#include "lmx/binding/table.h"

namespace com_vyrgraph_v2 {

inline constexpr lmx::s_ns_map k_ns_map[] = {{1000, "Vyr", "http://vyrgraph.com/v2"}, {0, nullptr, nullptr}};

/// One per name and kind; below lie the reader's own events.
enum token : int {
    attribute_AveragingValue = 14,
    attribute_AxisNominalMax,
    attribute_AxisNominalMin,
    attribute_AxisNominalScale,
    attribute_CalibrationDateTime,
    attribute_ColorName,
    attribute_ColorNumber,
    attribute_ColorSetName,
    attribute_Comments,
    attribute_CompensationValue,
    attribute_CustomName,
    attribute_CustomOrPartial,
    attribute_CustomTarget,
    attribute_CustomTypeName,
    attribute_DensityFilter,
    attribute_DensityStatus,
    attribute_Description,
    attribute_Direction,
    attribute_Name,
    attribute_PaletteName,
    attribute_PalettePartNumber,
    attribute_PaletteVersion,
    attribute_PartNumber,
    attribute_ProfileName,
    attribute_UniqueID,
    attribute_Wavelength,
    element_A,
    element_ASTM_Table,
    element_Alpha,
    element_Angle,
    element_Aperture,
    element_Aspecular,
    element_Averaging,
    element_Axis,
    element_AxisFloatingPointValue,
    element_AxisName,
    element_AxisStringValue,
    element_AxisValueChoice,
    element_Azimuth,
    element_B,
    element_BSDFAngle,
    element_Backing,
    element_Base,
    element_BaseElement,
    element_BaseName,
    element_Black,
    element_Blue,
    element_BootFirmwareVersion,
    element_C,
    element_CalibrationState,
    element_CapY,
    element_Category,
    element_ChangeHistory,
    element_Coating,
    element_CollectionColorSpaceSpecification,
    element_CollectionName,
    element_Color,
    element_ColorAndFinish,
    element_ColorDepth,
    element_ColorName,
    element_ColorQualityControl,
    element_ColorSet,
    element_ColorSpaceAdobeRGB,
    element_ColorSpaceAdobeWideGamutRGB,
    element_ColorSpaceCIELCh,
    element_ColorSpaceCIELab,
    element_ColorSpaceCIELuv,
    element_ColorSpaceCIEXYZ,
    element_ColorSpaceCIExyY,
    element_ColorSpaceCMYK,
    element_ColorSpaceCMYKPlusN,
    element_ColorSpaceDensity,
    element_ColorSpaceEmissiveCIEXYZ,
    element_ColorSpaceEmissiveCIExyY,
    element_ColorSpaceEmissiveGeneric,
    element_ColorSpaceEmissiveSpectral,
    element_ColorSpaceGeneric,
    element_ColorSpaceHSL,
    element_ColorSpaceHSV,
    element_ColorSpaceMunsell,
    element_ColorSpaceNCS,
    element_ColorSpaceName,
    element_ColorSpaceRGB,
    element_ColorSpaceRecipe,
    element_ColorSpaceSRGB,
    element_ColorSpaceSpecificationEmissiveGeneric,
    element_ColorSpaceSpecificationEmissiveSpectral,
    element_ColorSpaceSpecificationEmissiveTristimulus,
    element_ColorSpaceSpecificationSpectrumGeneric,
    element_ColorSpaceSpecificationSpectrumSpectral,
    element_ColorSpaceSpecificationSpectrumTristimulus,
    element_ColorSpaceSpectral,
    element_ColorSpaceTINTORA,
    element_ColorSpaceTINTORAOctavantic,
    element_ColorSpaceYBR,
    element_ColorSpaceYIQ,
    element_ColorSpaceYUV,
    element_ColorTemperature,
    element_Colorant,
    element_ColorantElement,
    element_Comment,
    element_Comments,
    element_Company,
    element_ContactInfo,
    element_Contribution,
    element_CoordinateX,
    element_CoordinateY,
    element_Copyright,
    element_Created,
    element_Creator,
    element_CreatorVersion,
    element_CustomAttribute,
    element_CustomAttributes,
    element_Cyan,
    element_Density,
    element_DensityStatus,
    element_Device,
    element_DeviceClass,
    element_DeviceFilter,
    element_DevicePolarization,
    element_DeviceSettings,
    element_Double,
    element_DoubleValue,
    element_EmissiveMode,
    element_EmissiveSpectralPoint,
    element_EmissiveType,
    element_FamilyName,
    element_FieldOfView,
    element_FilmType,
    element_FilmWeight,
    element_Finish,
    element_FirmwareVersion,
    element_Function,
    element_FunctionAverageStdDevA,
    element_FunctionAverageStdDevB,
    element_FunctionAverageStdDevL,
    element_FunctionDE,
    element_FunctionDE2000,
    element_FunctionDE94,
    element_FunctionDECMC,
    element_FunctionGeneric,
    element_FunctionMeanDE,
    element_FunctionStdDevA,
    element_FunctionStdDevB,
    element_FunctionStdDevC,
    element_FunctionStdDevH,
    element_FunctionStdDevL,
    element_FunctionStdDevX,
    element_FunctionStdDevY,
    element_FunctionStdDevZ,
    element_Gamma,
    element_Gamut,
    element_Geometry,
    element_GeometryChoice,
    element_GlassCompensation,
    element_Global,
    element_GlossCompensation,
    element_Green,
    element_H,
    element_Header,
    element_HighTolerance,
    element_HighValue,
    element_Hue,
    element_I,
    element_Illuminant,
    element_IlluminantAngle,
    element_IlluminationOptions,
    element_IntegerValue,
    element_L,
    element_LensPosition,
    element_Lightness,
    element_Limits,
    element_LinkTrimmer,
    element_LowTolerance,
    element_LowValue,
    element_Magenta,
    element_Manufacturer,
    element_Measurement,
    element_MetalType,
    element_MetalWeight,
    element_Model,
    element_Name,
    element_NumberValue,
    element_OperatingSystem,
    element_OperatingSystemVersion,
    element_Orange,
    element_Owner,
    element_Page,
    element_Palette,
    element_PaperThickness,
    element_PaperType,
    element_Param_c,
    element_Param_h,
    element_Param_l,
    element_Parameters,
    element_ParentColorSpace,
    element_PartNumber,
    element_Percentage,
    element_Person,
    element_PhysicalSample,
    element_PlasticType,
    element_PlasticWeight,
    element_Preamble,
    element_Predecessor,
    element_PrefixName,
    element_PrimaryIlluminant,
    element_Process,
    element_ProductionDate,
    element_Profile,
    element_ProfileChoice,
    element_ProfileFile,
    element_ProfileURI,
    element_Purpose,
    element_Q,
    element_R,
    element_ReadPlatformInformation,
    element_ReadSDKInformation,
    element_Recipe,
    element_Red,
    element_ReflectancePoint,
    element_Result,
    element_Revision,
    element_SDKName,
    element_SDKVersion,
    element_SampleHeight,
    element_SampleSpot,
    element_SampleTarget,
    element_SampleWidth,
    element_Saturation,
    element_SecondaryIlluminant,
    element_SemanticAssociation,
    element_SerialNumber,
    element_Specification,
    element_Spectrum,
    element_SphereGeometry,
    element_SpotColor,
    element_Standard,
    element_StandardAndMeasurement,
    element_String,
    element_StringValue,
    element_SubstrateFilm,
    element_SubstrateGeneric,
    element_SubstrateMetal,
    element_SubstratePaper,
    element_SubstratePlastic,
    element_SubstrateTextile,
    element_SubstrateTile,
    element_SubstrateVinyl,
    element_SubstrateWood,
    element_SuffixName,
    element_Tag,
    element_TagValues,
    element_Target,
    element_TertiaryIlluminant,
    element_TextValue,
    element_TextileType,
    element_TextileWeight,
    element_Thickness,
    element_TileType,
    element_TileWeight,
    element_Tolerance,
    element_ToleranceParameter,
    element_ToleranceType,
    element_Type,
    element_U,
    element_UniqueID,
    element_UnknownGeometry,
    element_V,
    element_Value,
    element_ValueChoice,
    element_Version,
    element_VinylType,
    element_VinylWeight,
    element_WarningLevel,
    element_WhitePointChromaticity,
    element_WoodType,
    element_WoodWeight,
    element_WritePlatformInformation,
    element_WriteSDKInformation,
    element_X,
    element_Y,
    element_Yellow,
    element_Z,
};

/// What values must meet, by the simple types of the schema.
namespace facets {
extern const lmx::s_facets DateTimeZone;
extern const lmx::s_facets NonEmptyString;
extern const lmx::s_facets Int32;
extern const lmx::s_facets LabLightness;
extern const lmx::s_facets LabOpponent;
extern const lmx::s_facets Lightness;
extern const lmx::s_facets Chroma;
extern const lmx::s_facets HueAngle;
extern const lmx::s_facets LuvU;
extern const lmx::s_facets LuvV;
extern const lmx::s_facets Fraction;
extern const lmx::s_facets NonNegative;
extern const lmx::s_facets ColorDepthKind;
extern const lmx::s_facets Percentage;
extern const lmx::s_facets YUVChromaU;
extern const lmx::s_facets YUVChromaV;
extern const lmx::s_facets YIQInPhase;
extern const lmx::s_facets YIQQuadrature;
extern const lmx::s_facets GamutKind;
extern const lmx::s_facets Positive;
extern const lmx::s_facets FinishKind;
extern const lmx::s_facets Reflectance;
extern const lmx::s_facets Wavelength;
extern const lmx::s_facets AxisScaleKind;
extern const lmx::s_facets DensityStatusKind;
extern const lmx::s_facets DensityFilterKind;
extern const lmx::s_facets EmissiveKind;
extern const lmx::s_facets EmissiveModeKind;
extern const lmx::s_facets ObserverKind;
extern const lmx::s_facets AstmTableKind;
extern const lmx::s_facets SpectrumKind;
extern const lmx::s_facets IlluminantKind;
extern const lmx::s_facets PositiveInt32;
extern const lmx::s_facets SphereGeometryKind;
extern const lmx::s_facets DeviceFilterKind;
extern const lmx::s_facets BackingKind;
extern const lmx::s_facets TargetKind;
extern const lmx::s_facets NonEmptyToken;
extern const lmx::s_facets ToleranceFormulaKind;
extern const lmx::s_facets ToleranceParameterKind;
extern const lmx::s_facets DeviceClassKind;
extern const lmx::s_facets AveragingCount;
extern const lmx::s_facets CalibrationKind;
extern const lmx::s_facets SingleCharacter;
extern const lmx::s_facets ProfileDirectionKind;
}  // namespace facets

}  // namespace com_vyrgraph_v2
