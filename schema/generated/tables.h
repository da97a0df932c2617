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

/// The names of items. Each has a number, which is its event; below lie the reader's own.
inline constexpr std::string_view k_attribute_names[] = {
    "AveragingValue",
    "AxisNominalMax",
    "AxisNominalMin",
    "AxisNominalScale",
    "CalibrationDateTime",
    "ColorName",
    "ColorNumber",
    "ColorSetName",
    "Comments",
    "CompensationValue",
    "CustomName",
    "CustomOrPartial",
    "CustomTarget",
    "CustomTypeName",
    "DensityFilter",
    "DensityStatus",
    "Description",
    "Direction",
    "Name",
    "PaletteName",
    "PalettePartNumber",
    "PaletteVersion",
    "PartNumber",
    "ProfileName",
    "UniqueID",
    "Wavelength",
};
inline constexpr std::string_view k_element_names[] = {
    "A",
    "ASTM_Table",
    "Alpha",
    "Angle",
    "Aperture",
    "Aspecular",
    "Averaging",
    "Axis",
    "AxisFloatingPointValue",
    "AxisName",
    "AxisStringValue",
    "AxisValueChoice",
    "Azimuth",
    "B",
    "BSDFAngle",
    "Backing",
    "Base",
    "BaseElement",
    "BaseName",
    "Black",
    "Blue",
    "BootFirmwareVersion",
    "C",
    "CalibrationState",
    "CapY",
    "Category",
    "ChangeHistory",
    "Coating",
    "CollectionColorSpaceSpecification",
    "CollectionName",
    "Color",
    "ColorAndFinish",
    "ColorDepth",
    "ColorName",
    "ColorQualityControl",
    "ColorSet",
    "ColorSpaceAdobeRGB",
    "ColorSpaceAdobeWideGamutRGB",
    "ColorSpaceCIELCh",
    "ColorSpaceCIELab",
    "ColorSpaceCIELuv",
    "ColorSpaceCIEXYZ",
    "ColorSpaceCIExyY",
    "ColorSpaceCMYK",
    "ColorSpaceCMYKPlusN",
    "ColorSpaceDensity",
    "ColorSpaceEmissiveCIEXYZ",
    "ColorSpaceEmissiveCIExyY",
    "ColorSpaceEmissiveGeneric",
    "ColorSpaceEmissiveSpectral",
    "ColorSpaceGeneric",
    "ColorSpaceHSL",
    "ColorSpaceHSV",
    "ColorSpaceMunsell",
    "ColorSpaceNCS",
    "ColorSpaceName",
    "ColorSpaceRGB",
    "ColorSpaceRecipe",
    "ColorSpaceSRGB",
    "ColorSpaceSpecificationEmissiveGeneric",
    "ColorSpaceSpecificationEmissiveSpectral",
    "ColorSpaceSpecificationEmissiveTristimulus",
    "ColorSpaceSpecificationSpectrumGeneric",
    "ColorSpaceSpecificationSpectrumSpectral",
    "ColorSpaceSpecificationSpectrumTristimulus",
    "ColorSpaceSpectral",
    "ColorSpaceTINTORA",
    "ColorSpaceTINTORAOctavantic",
    "ColorSpaceYBR",
    "ColorSpaceYIQ",
    "ColorSpaceYUV",
    "ColorTemperature",
    "Colorant",
    "ColorantElement",
    "Comment",
    "Comments",
    "Company",
    "ContactInfo",
    "Contribution",
    "CoordinateX",
    "CoordinateY",
    "Copyright",
    "Created",
    "Creator",
    "CreatorVersion",
    "CustomAttribute",
    "CustomAttributes",
    "Cyan",
    "Density",
    "DensityStatus",
    "Device",
    "DeviceClass",
    "DeviceFilter",
    "DevicePolarization",
    "DeviceSettings",
    "Double",
    "DoubleValue",
    "EmissiveMode",
    "EmissiveSpectralPoint",
    "EmissiveType",
    "FamilyName",
    "FieldOfView",
    "FilmType",
    "FilmWeight",
    "Finish",
    "FirmwareVersion",
    "Function",
    "FunctionAverageStdDevA",
    "FunctionAverageStdDevB",
    "FunctionAverageStdDevL",
    "FunctionDE",
    "FunctionDE2000",
    "FunctionDE94",
    "FunctionDECMC",
    "FunctionGeneric",
    "FunctionMeanDE",
    "FunctionStdDevA",
    "FunctionStdDevB",
    "FunctionStdDevC",
    "FunctionStdDevH",
    "FunctionStdDevL",
    "FunctionStdDevX",
    "FunctionStdDevY",
    "FunctionStdDevZ",
    "Gamma",
    "Gamut",
    "Geometry",
    "GeometryChoice",
    "GlassCompensation",
    "Global",
    "GlossCompensation",
    "Green",
    "H",
    "Header",
    "HighTolerance",
    "HighValue",
    "Hue",
    "I",
    "Illuminant",
    "IlluminantAngle",
    "IlluminationOptions",
    "IntegerValue",
    "L",
    "LensPosition",
    "Lightness",
    "Limits",
    "LinkTrimmer",
    "LowTolerance",
    "LowValue",
    "Magenta",
    "Manufacturer",
    "Measurement",
    "MetalType",
    "MetalWeight",
    "Model",
    "Name",
    "NumberValue",
    "OperatingSystem",
    "OperatingSystemVersion",
    "Orange",
    "Owner",
    "Page",
    "Palette",
    "PaperThickness",
    "PaperType",
    "Param_c",
    "Param_h",
    "Param_l",
    "Parameters",
    "ParentColorSpace",
    "PartNumber",
    "Percentage",
    "Person",
    "PhysicalSample",
    "PlasticType",
    "PlasticWeight",
    "Preamble",
    "Predecessor",
    "PrefixName",
    "PrimaryIlluminant",
    "Process",
    "ProductionDate",
    "Profile",
    "ProfileChoice",
    "ProfileFile",
    "ProfileURI",
    "Purpose",
    "Q",
    "R",
    "ReadPlatformInformation",
    "ReadSDKInformation",
    "Recipe",
    "Red",
    "ReflectancePoint",
    "Result",
    "Revision",
    "SDKName",
    "SDKVersion",
    "SampleHeight",
    "SampleSpot",
    "SampleTarget",
    "SampleWidth",
    "Saturation",
    "SecondaryIlluminant",
    "SemanticAssociation",
    "SerialNumber",
    "Specification",
    "Spectrum",
    "SphereGeometry",
    "SpotColor",
    "Standard",
    "StandardAndMeasurement",
    "String",
    "StringValue",
    "SubstrateFilm",
    "SubstrateGeneric",
    "SubstrateMetal",
    "SubstratePaper",
    "SubstratePlastic",
    "SubstrateTextile",
    "SubstrateTile",
    "SubstrateVinyl",
    "SubstrateWood",
    "SuffixName",
    "Tag",
    "TagValues",
    "Target",
    "TertiaryIlluminant",
    "TextValue",
    "TextileType",
    "TextileWeight",
    "Thickness",
    "TileType",
    "TileWeight",
    "Tolerance",
    "ToleranceParameter",
    "ToleranceType",
    "Type",
    "U",
    "UniqueID",
    "UnknownGeometry",
    "V",
    "Value",
    "ValueChoice",
    "Version",
    "VinylType",
    "VinylWeight",
    "WarningLevel",
    "WhitePointChromaticity",
    "WoodType",
    "WoodWeight",
    "WritePlatformInformation",
    "WriteSDKInformation",
    "X",
    "Y",
    "Yellow",
    "Z",
};
inline constexpr lmx::s_name_lists k_names = {{1, 14, k_attribute_names}, {1000, 14 + std::size(k_attribute_names), k_element_names}};
consteval int attribute(std::string_view name) { return k_names.attributes.find(name); }
consteval int element(std::string_view name) { return k_names.elements.find(name); }

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
