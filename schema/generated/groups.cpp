// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in groups.h.

#include "schema/generated/groups.h"
#include "lmx/binding/binding.h"
#include "lmx/binding/thread_object.h"
#include "schema/generated/color_values.h"
#include "schema/generated/device_color_values.h"
#include "schema/generated/functions.h"
#include "schema/generated/recipes.h"
#include "schema/generated/sampled_color_values.h"
#include "schema/generated/samples.h"
#include "schema/generated/statistics.h"
#include "schema/generated/substrates.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// sg_ColorSpace

constexpr s_item sg_ColorSpace::k_items[] = {
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceRecipe", element("ColorSpaceRecipe"), 0, k_no_flag, &ColorSpaceRecipeType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceTINTORA", element("ColorSpaceTINTORA"), 0, k_no_flag, &ColorSpaceTINTORAType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceGeneric", element("ColorSpaceGeneric"), 0, k_no_flag, &ColorSpaceGenericType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceEmissiveGeneric", element("ColorSpaceEmissiveGeneric"), 0, k_no_flag, &ColorSpaceEmissiveGenericType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceDensity", element("ColorSpaceDensity"), 0, k_no_flag, &ColorSpaceDensityType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceRGB", element("ColorSpaceRGB"), 0, k_no_flag, &ColorSpaceRGBType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSRGB", element("ColorSpaceSRGB"), 0, k_no_flag, &ColorSpaceSRGBType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceAdobeRGB", element("ColorSpaceAdobeRGB"), 0, k_no_flag, &ColorSpaceAdobeRGBType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceCMYKPlusN", element("ColorSpaceCMYKPlusN"), 0, k_no_flag, &ColorSpaceCMYKPlusNType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceAdobeWideGamutRGB", element("ColorSpaceAdobeWideGamutRGB"), 0, k_no_flag, &ColorSpaceAdobeWideGamutRGBType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpectral", element("ColorSpaceSpectral"), 0, k_no_flag, &ColorSpaceSpectralType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceEmissiveSpectral", element("ColorSpaceEmissiveSpectral"), 0, k_no_flag, &ColorSpaceEmissiveSpectralType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceCIELab", element("ColorSpaceCIELab"), 0, k_no_flag, &ColorSpaceCIELabType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceCIELCh", element("ColorSpaceCIELCh"), 0, k_no_flag, &ColorSpaceCIELChType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceCIEXYZ", element("ColorSpaceCIEXYZ"), 0, k_no_flag, &ColorSpaceCIEXYZType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceEmissiveCIEXYZ", element("ColorSpaceEmissiveCIEXYZ"), 0, k_no_flag, &ColorSpaceEmissiveCIEXYZType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceCIExyY", element("ColorSpaceCIExyY"), 0, k_no_flag, &ColorSpaceCIExyYType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceEmissiveCIExyY", element("ColorSpaceEmissiveCIExyY"), 0, k_no_flag, &ColorSpaceEmissiveCIExyYType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceCIELuv", element("ColorSpaceCIELuv"), 0, k_no_flag, &ColorSpaceCIELuvType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceHSL", element("ColorSpaceHSL"), 0, k_no_flag, &ColorSpaceHSLType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceHSV", element("ColorSpaceHSV"), 0, k_no_flag, &ColorSpaceHSVType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceCMYK", element("ColorSpaceCMYK"), 0, k_no_flag, &ColorSpaceCMYKType::k_class, nullptr, ColorSpaceCMYKType::k_factory},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceTINTORAOctavantic", element("ColorSpaceTINTORAOctavantic"), 0, k_no_flag, &ColorSpaceTINTORAOctavanticType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceYUV", element("ColorSpaceYUV"), 0, k_no_flag, &ColorSpaceYUVType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceYIQ", element("ColorSpaceYIQ"), 0, k_no_flag, &ColorSpaceYIQType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceYBR", element("ColorSpaceYBR"), 0, k_no_flag, &ColorSpaceYBRType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceNCS", element("ColorSpaceNCS"), 0, k_no_flag, &ColorSpaceNCSType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceMunsell", element("ColorSpaceMunsell"), 0, k_no_flag, &ColorSpaceMunsellType::k_class},
};
constinit const s_class sg_ColorSpace::k_class = {
    .name = "sg_ColorSpace",
    .qualified_name = "sg_ColorSpace",
    .content = content_kind::group,
    .names = &k_names,
    .choice = LMX_CHOICE(sg_ColorSpace, m_choice),
    .elements = k_items,
    .operations = &k_operations<sg_ColorSpace>,
};

sg_ColorSpace::sg_ColorSpace() = default;
sg_ColorSpace::sg_ColorSpace(const sg_ColorSpace& other) : sg_ColorSpace() { lmx::copy(k_class, this, &other); }
sg_ColorSpace::~sg_ColorSpace() { lmx::release_choice(k_class, this); }
sg_ColorSpace& sg_ColorSpace::operator=(const sg_ColorSpace& other) { sg_ColorSpace copy(other); swap(copy); return *this; }
bool sg_ColorSpace::is_member(lmx::c_xml_reader& reader, const std::string&) { return lmx::is_group_member(k_class, reader); }
lmx::elmx_error sg_ColorSpace::marshal(lmx::c_xml_writer& writer, const char*) const { return lmx::marshal_group(k_class, this, writer); }
bool sg_ColorSpace::unmarshal(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_group(k_class, this, reader, name, error); }
void sg_ColorSpace::swap(sg_ColorSpace& other) { lmx::swap(k_class, this, &other); }
void sg_ColorSpace::reset() { sg_ColorSpace fresh; lmx::exchange(k_class, this, &fresh); }
bool sg_ColorSpace::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
ColorSpaceRecipeType& sg_ColorSpace::get_ColorSpaceRecipe() { return *static_cast<ColorSpaceRecipeType*>(lmx::choose(k_class, k_items[item_ColorSpaceRecipe], this)); }
ColorSpaceRecipeType& sg_ColorSpace::assign_ColorSpaceRecipe(const ColorSpaceRecipeType& value) { ColorSpaceRecipeType copy(value); ColorSpaceRecipeType& target = get_ColorSpaceRecipe(); target.swap(copy); return target; }
ColorSpaceTINTORAType& sg_ColorSpace::get_ColorSpaceTINTORA() { return *static_cast<ColorSpaceTINTORAType*>(lmx::choose(k_class, k_items[item_ColorSpaceTINTORA], this)); }
ColorSpaceTINTORAType& sg_ColorSpace::assign_ColorSpaceTINTORA(const ColorSpaceTINTORAType& value) { ColorSpaceTINTORAType copy(value); ColorSpaceTINTORAType& target = get_ColorSpaceTINTORA(); target.swap(copy); return target; }
ColorSpaceGenericType& sg_ColorSpace::get_ColorSpaceGeneric() { return *static_cast<ColorSpaceGenericType*>(lmx::choose(k_class, k_items[item_ColorSpaceGeneric], this)); }
ColorSpaceGenericType& sg_ColorSpace::assign_ColorSpaceGeneric(const ColorSpaceGenericType& value) { ColorSpaceGenericType copy(value); ColorSpaceGenericType& target = get_ColorSpaceGeneric(); target.swap(copy); return target; }
ColorSpaceEmissiveGenericType& sg_ColorSpace::get_ColorSpaceEmissiveGeneric() { return *static_cast<ColorSpaceEmissiveGenericType*>(lmx::choose(k_class, k_items[item_ColorSpaceEmissiveGeneric], this)); }
ColorSpaceEmissiveGenericType& sg_ColorSpace::assign_ColorSpaceEmissiveGeneric(const ColorSpaceEmissiveGenericType& value) { ColorSpaceEmissiveGenericType copy(value); ColorSpaceEmissiveGenericType& target = get_ColorSpaceEmissiveGeneric(); target.swap(copy); return target; }
ColorSpaceDensityType& sg_ColorSpace::get_ColorSpaceDensity() { return *static_cast<ColorSpaceDensityType*>(lmx::choose(k_class, k_items[item_ColorSpaceDensity], this)); }
ColorSpaceDensityType& sg_ColorSpace::assign_ColorSpaceDensity(const ColorSpaceDensityType& value) { ColorSpaceDensityType copy(value); ColorSpaceDensityType& target = get_ColorSpaceDensity(); target.swap(copy); return target; }
ColorSpaceRGBType& sg_ColorSpace::get_ColorSpaceRGB() { return *static_cast<ColorSpaceRGBType*>(lmx::choose(k_class, k_items[item_ColorSpaceRGB], this)); }
ColorSpaceRGBType& sg_ColorSpace::assign_ColorSpaceRGB(const ColorSpaceRGBType& value) { ColorSpaceRGBType copy(value); ColorSpaceRGBType& target = get_ColorSpaceRGB(); target.swap(copy); return target; }
ColorSpaceSRGBType& sg_ColorSpace::get_ColorSpaceSRGB() { return *static_cast<ColorSpaceSRGBType*>(lmx::choose(k_class, k_items[item_ColorSpaceSRGB], this)); }
ColorSpaceSRGBType& sg_ColorSpace::assign_ColorSpaceSRGB(const ColorSpaceSRGBType& value) { ColorSpaceSRGBType copy(value); ColorSpaceSRGBType& target = get_ColorSpaceSRGB(); target.swap(copy); return target; }
ColorSpaceAdobeRGBType& sg_ColorSpace::get_ColorSpaceAdobeRGB() { return *static_cast<ColorSpaceAdobeRGBType*>(lmx::choose(k_class, k_items[item_ColorSpaceAdobeRGB], this)); }
ColorSpaceAdobeRGBType& sg_ColorSpace::assign_ColorSpaceAdobeRGB(const ColorSpaceAdobeRGBType& value) { ColorSpaceAdobeRGBType copy(value); ColorSpaceAdobeRGBType& target = get_ColorSpaceAdobeRGB(); target.swap(copy); return target; }
ColorSpaceCMYKPlusNType& sg_ColorSpace::get_ColorSpaceCMYKPlusN() { return *static_cast<ColorSpaceCMYKPlusNType*>(lmx::choose(k_class, k_items[item_ColorSpaceCMYKPlusN], this)); }
ColorSpaceCMYKPlusNType& sg_ColorSpace::assign_ColorSpaceCMYKPlusN(const ColorSpaceCMYKPlusNType& value) { ColorSpaceCMYKPlusNType copy(value); ColorSpaceCMYKPlusNType& target = get_ColorSpaceCMYKPlusN(); target.swap(copy); return target; }
ColorSpaceAdobeWideGamutRGBType& sg_ColorSpace::get_ColorSpaceAdobeWideGamutRGB() { return *static_cast<ColorSpaceAdobeWideGamutRGBType*>(lmx::choose(k_class, k_items[item_ColorSpaceAdobeWideGamutRGB], this)); }
ColorSpaceAdobeWideGamutRGBType& sg_ColorSpace::assign_ColorSpaceAdobeWideGamutRGB(const ColorSpaceAdobeWideGamutRGBType& value) { ColorSpaceAdobeWideGamutRGBType copy(value); ColorSpaceAdobeWideGamutRGBType& target = get_ColorSpaceAdobeWideGamutRGB(); target.swap(copy); return target; }
ColorSpaceSpectralType& sg_ColorSpace::get_ColorSpaceSpectral() { return *static_cast<ColorSpaceSpectralType*>(lmx::choose(k_class, k_items[item_ColorSpaceSpectral], this)); }
ColorSpaceSpectralType& sg_ColorSpace::assign_ColorSpaceSpectral(const ColorSpaceSpectralType& value) { ColorSpaceSpectralType copy(value); ColorSpaceSpectralType& target = get_ColorSpaceSpectral(); target.swap(copy); return target; }
ColorSpaceEmissiveSpectralType& sg_ColorSpace::get_ColorSpaceEmissiveSpectral() { return *static_cast<ColorSpaceEmissiveSpectralType*>(lmx::choose(k_class, k_items[item_ColorSpaceEmissiveSpectral], this)); }
ColorSpaceEmissiveSpectralType& sg_ColorSpace::assign_ColorSpaceEmissiveSpectral(const ColorSpaceEmissiveSpectralType& value) { ColorSpaceEmissiveSpectralType copy(value); ColorSpaceEmissiveSpectralType& target = get_ColorSpaceEmissiveSpectral(); target.swap(copy); return target; }
ColorSpaceCIELabType& sg_ColorSpace::get_ColorSpaceCIELab() { return *static_cast<ColorSpaceCIELabType*>(lmx::choose(k_class, k_items[item_ColorSpaceCIELab], this)); }
ColorSpaceCIELabType& sg_ColorSpace::assign_ColorSpaceCIELab(const ColorSpaceCIELabType& value) { ColorSpaceCIELabType copy(value); ColorSpaceCIELabType& target = get_ColorSpaceCIELab(); target.swap(copy); return target; }
ColorSpaceCIELChType& sg_ColorSpace::get_ColorSpaceCIELCh() { return *static_cast<ColorSpaceCIELChType*>(lmx::choose(k_class, k_items[item_ColorSpaceCIELCh], this)); }
ColorSpaceCIELChType& sg_ColorSpace::assign_ColorSpaceCIELCh(const ColorSpaceCIELChType& value) { ColorSpaceCIELChType copy(value); ColorSpaceCIELChType& target = get_ColorSpaceCIELCh(); target.swap(copy); return target; }
ColorSpaceCIEXYZType& sg_ColorSpace::get_ColorSpaceCIEXYZ() { return *static_cast<ColorSpaceCIEXYZType*>(lmx::choose(k_class, k_items[item_ColorSpaceCIEXYZ], this)); }
ColorSpaceCIEXYZType& sg_ColorSpace::assign_ColorSpaceCIEXYZ(const ColorSpaceCIEXYZType& value) { ColorSpaceCIEXYZType copy(value); ColorSpaceCIEXYZType& target = get_ColorSpaceCIEXYZ(); target.swap(copy); return target; }
ColorSpaceEmissiveCIEXYZType& sg_ColorSpace::get_ColorSpaceEmissiveCIEXYZ() { return *static_cast<ColorSpaceEmissiveCIEXYZType*>(lmx::choose(k_class, k_items[item_ColorSpaceEmissiveCIEXYZ], this)); }
ColorSpaceEmissiveCIEXYZType& sg_ColorSpace::assign_ColorSpaceEmissiveCIEXYZ(const ColorSpaceEmissiveCIEXYZType& value) { ColorSpaceEmissiveCIEXYZType copy(value); ColorSpaceEmissiveCIEXYZType& target = get_ColorSpaceEmissiveCIEXYZ(); target.swap(copy); return target; }
ColorSpaceCIExyYType& sg_ColorSpace::get_ColorSpaceCIExyY() { return *static_cast<ColorSpaceCIExyYType*>(lmx::choose(k_class, k_items[item_ColorSpaceCIExyY], this)); }
ColorSpaceCIExyYType& sg_ColorSpace::assign_ColorSpaceCIExyY(const ColorSpaceCIExyYType& value) { ColorSpaceCIExyYType copy(value); ColorSpaceCIExyYType& target = get_ColorSpaceCIExyY(); target.swap(copy); return target; }
ColorSpaceEmissiveCIExyYType& sg_ColorSpace::get_ColorSpaceEmissiveCIExyY() { return *static_cast<ColorSpaceEmissiveCIExyYType*>(lmx::choose(k_class, k_items[item_ColorSpaceEmissiveCIExyY], this)); }
ColorSpaceEmissiveCIExyYType& sg_ColorSpace::assign_ColorSpaceEmissiveCIExyY(const ColorSpaceEmissiveCIExyYType& value) { ColorSpaceEmissiveCIExyYType copy(value); ColorSpaceEmissiveCIExyYType& target = get_ColorSpaceEmissiveCIExyY(); target.swap(copy); return target; }
ColorSpaceCIELuvType& sg_ColorSpace::get_ColorSpaceCIELuv() { return *static_cast<ColorSpaceCIELuvType*>(lmx::choose(k_class, k_items[item_ColorSpaceCIELuv], this)); }
ColorSpaceCIELuvType& sg_ColorSpace::assign_ColorSpaceCIELuv(const ColorSpaceCIELuvType& value) { ColorSpaceCIELuvType copy(value); ColorSpaceCIELuvType& target = get_ColorSpaceCIELuv(); target.swap(copy); return target; }
ColorSpaceHSLType& sg_ColorSpace::get_ColorSpaceHSL() { return *static_cast<ColorSpaceHSLType*>(lmx::choose(k_class, k_items[item_ColorSpaceHSL], this)); }
ColorSpaceHSLType& sg_ColorSpace::assign_ColorSpaceHSL(const ColorSpaceHSLType& value) { ColorSpaceHSLType copy(value); ColorSpaceHSLType& target = get_ColorSpaceHSL(); target.swap(copy); return target; }
ColorSpaceHSVType& sg_ColorSpace::get_ColorSpaceHSV() { return *static_cast<ColorSpaceHSVType*>(lmx::choose(k_class, k_items[item_ColorSpaceHSV], this)); }
ColorSpaceHSVType& sg_ColorSpace::assign_ColorSpaceHSV(const ColorSpaceHSVType& value) { ColorSpaceHSVType copy(value); ColorSpaceHSVType& target = get_ColorSpaceHSV(); target.swap(copy); return target; }
ColorSpaceCMYKType& sg_ColorSpace::get_ColorSpaceCMYK() { return *static_cast<ColorSpaceCMYKType*>(lmx::choose(k_class, k_items[item_ColorSpaceCMYK], this)); }
ColorSpaceCMYKType& sg_ColorSpace::assign_ColorSpaceCMYK(const ColorSpaceCMYKType& value) { ColorSpaceCMYKType copy(value); ColorSpaceCMYKType& target = get_ColorSpaceCMYK(); target.swap(copy); return target; }
ColorSpaceCMYKType& sg_ColorSpace::assign_ColorSpaceCMYK(ColorSpaceCMYKType* value) { lmx::adopt(k_class, k_items[item_ColorSpaceCMYK], this, value); if (value != nullptr) return *value; ColorSpaceCMYKType& nothing = lmx::thread_object<ColorSpaceCMYKType>(); nothing.reset(); return nothing; }
ColorSpaceTINTORAOctavanticType& sg_ColorSpace::get_ColorSpaceTINTORAOctavantic() { return *static_cast<ColorSpaceTINTORAOctavanticType*>(lmx::choose(k_class, k_items[item_ColorSpaceTINTORAOctavantic], this)); }
ColorSpaceTINTORAOctavanticType& sg_ColorSpace::assign_ColorSpaceTINTORAOctavantic(const ColorSpaceTINTORAOctavanticType& value) { ColorSpaceTINTORAOctavanticType copy(value); ColorSpaceTINTORAOctavanticType& target = get_ColorSpaceTINTORAOctavantic(); target.swap(copy); return target; }
ColorSpaceYUVType& sg_ColorSpace::get_ColorSpaceYUV() { return *static_cast<ColorSpaceYUVType*>(lmx::choose(k_class, k_items[item_ColorSpaceYUV], this)); }
ColorSpaceYUVType& sg_ColorSpace::assign_ColorSpaceYUV(const ColorSpaceYUVType& value) { ColorSpaceYUVType copy(value); ColorSpaceYUVType& target = get_ColorSpaceYUV(); target.swap(copy); return target; }
ColorSpaceYIQType& sg_ColorSpace::get_ColorSpaceYIQ() { return *static_cast<ColorSpaceYIQType*>(lmx::choose(k_class, k_items[item_ColorSpaceYIQ], this)); }
ColorSpaceYIQType& sg_ColorSpace::assign_ColorSpaceYIQ(const ColorSpaceYIQType& value) { ColorSpaceYIQType copy(value); ColorSpaceYIQType& target = get_ColorSpaceYIQ(); target.swap(copy); return target; }
ColorSpaceYBRType& sg_ColorSpace::get_ColorSpaceYBR() { return *static_cast<ColorSpaceYBRType*>(lmx::choose(k_class, k_items[item_ColorSpaceYBR], this)); }
ColorSpaceYBRType& sg_ColorSpace::assign_ColorSpaceYBR(const ColorSpaceYBRType& value) { ColorSpaceYBRType copy(value); ColorSpaceYBRType& target = get_ColorSpaceYBR(); target.swap(copy); return target; }
ColorSpaceNCSType& sg_ColorSpace::get_ColorSpaceNCS() { return *static_cast<ColorSpaceNCSType*>(lmx::choose(k_class, k_items[item_ColorSpaceNCS], this)); }
ColorSpaceNCSType& sg_ColorSpace::assign_ColorSpaceNCS(const ColorSpaceNCSType& value) { ColorSpaceNCSType copy(value); ColorSpaceNCSType& target = get_ColorSpaceNCS(); target.swap(copy); return target; }
ColorSpaceMunsellType& sg_ColorSpace::get_ColorSpaceMunsell() { return *static_cast<ColorSpaceMunsellType*>(lmx::choose(k_class, k_items[item_ColorSpaceMunsell], this)); }
ColorSpaceMunsellType& sg_ColorSpace::assign_ColorSpaceMunsell(const ColorSpaceMunsellType& value) { ColorSpaceMunsellType copy(value); ColorSpaceMunsellType& target = get_ColorSpaceMunsell(); target.swap(copy); return target; }

// sg_Substrate

constexpr s_item sg_Substrate::k_items[] = {
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SubstratePaper", element("SubstratePaper"), 0, k_no_flag, &SubstratePaperType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SubstrateGeneric", element("SubstrateGeneric"), 0, k_no_flag, &SubstrateGenericType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SubstrateMetal", element("SubstrateMetal"), 0, k_no_flag, &SubstrateMetalType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SubstratePlastic", element("SubstratePlastic"), 0, k_no_flag, &SubstratePlasticType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SubstrateWood", element("SubstrateWood"), 0, k_no_flag, &SubstrateWoodType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SubstrateVinyl", element("SubstrateVinyl"), 0, k_no_flag, &SubstrateVinylType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SubstrateTile", element("SubstrateTile"), 0, k_no_flag, &SubstrateTileType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SubstrateFilm", element("SubstrateFilm"), 0, k_no_flag, &SubstrateFilmType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SubstrateTextile", element("SubstrateTextile"), 0, k_no_flag, &SubstrateTextileType::k_class},
};
constinit const s_class sg_Substrate::k_class = {
    .name = "sg_Substrate",
    .qualified_name = "sg_Substrate",
    .content = content_kind::group,
    .names = &k_names,
    .choice = LMX_CHOICE(sg_Substrate, m_choice),
    .elements = k_items,
    .operations = &k_operations<sg_Substrate>,
};

sg_Substrate::sg_Substrate() = default;
sg_Substrate::sg_Substrate(const sg_Substrate& other) : sg_Substrate() { lmx::copy(k_class, this, &other); }
sg_Substrate::~sg_Substrate() { lmx::release_choice(k_class, this); }
sg_Substrate& sg_Substrate::operator=(const sg_Substrate& other) { sg_Substrate copy(other); swap(copy); return *this; }
bool sg_Substrate::is_member(lmx::c_xml_reader& reader, const std::string&) { return lmx::is_group_member(k_class, reader); }
lmx::elmx_error sg_Substrate::marshal(lmx::c_xml_writer& writer, const char*) const { return lmx::marshal_group(k_class, this, writer); }
bool sg_Substrate::unmarshal(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_group(k_class, this, reader, name, error); }
void sg_Substrate::swap(sg_Substrate& other) { lmx::swap(k_class, this, &other); }
void sg_Substrate::reset() { sg_Substrate fresh; lmx::exchange(k_class, this, &fresh); }
bool sg_Substrate::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
SubstratePaperType& sg_Substrate::get_SubstratePaper() { return *static_cast<SubstratePaperType*>(lmx::choose(k_class, k_items[item_SubstratePaper], this)); }
SubstratePaperType& sg_Substrate::assign_SubstratePaper(const SubstratePaperType& value) { SubstratePaperType copy(value); SubstratePaperType& target = get_SubstratePaper(); target.swap(copy); return target; }
SubstrateGenericType& sg_Substrate::get_SubstrateGeneric() { return *static_cast<SubstrateGenericType*>(lmx::choose(k_class, k_items[item_SubstrateGeneric], this)); }
SubstrateGenericType& sg_Substrate::assign_SubstrateGeneric(const SubstrateGenericType& value) { SubstrateGenericType copy(value); SubstrateGenericType& target = get_SubstrateGeneric(); target.swap(copy); return target; }
SubstrateMetalType& sg_Substrate::get_SubstrateMetal() { return *static_cast<SubstrateMetalType*>(lmx::choose(k_class, k_items[item_SubstrateMetal], this)); }
SubstrateMetalType& sg_Substrate::assign_SubstrateMetal(const SubstrateMetalType& value) { SubstrateMetalType copy(value); SubstrateMetalType& target = get_SubstrateMetal(); target.swap(copy); return target; }
SubstratePlasticType& sg_Substrate::get_SubstratePlastic() { return *static_cast<SubstratePlasticType*>(lmx::choose(k_class, k_items[item_SubstratePlastic], this)); }
SubstratePlasticType& sg_Substrate::assign_SubstratePlastic(const SubstratePlasticType& value) { SubstratePlasticType copy(value); SubstratePlasticType& target = get_SubstratePlastic(); target.swap(copy); return target; }
SubstrateWoodType& sg_Substrate::get_SubstrateWood() { return *static_cast<SubstrateWoodType*>(lmx::choose(k_class, k_items[item_SubstrateWood], this)); }
SubstrateWoodType& sg_Substrate::assign_SubstrateWood(const SubstrateWoodType& value) { SubstrateWoodType copy(value); SubstrateWoodType& target = get_SubstrateWood(); target.swap(copy); return target; }
SubstrateVinylType& sg_Substrate::get_SubstrateVinyl() { return *static_cast<SubstrateVinylType*>(lmx::choose(k_class, k_items[item_SubstrateVinyl], this)); }
SubstrateVinylType& sg_Substrate::assign_SubstrateVinyl(const SubstrateVinylType& value) { SubstrateVinylType copy(value); SubstrateVinylType& target = get_SubstrateVinyl(); target.swap(copy); return target; }
SubstrateTileType& sg_Substrate::get_SubstrateTile() { return *static_cast<SubstrateTileType*>(lmx::choose(k_class, k_items[item_SubstrateTile], this)); }
SubstrateTileType& sg_Substrate::assign_SubstrateTile(const SubstrateTileType& value) { SubstrateTileType copy(value); SubstrateTileType& target = get_SubstrateTile(); target.swap(copy); return target; }
SubstrateFilmType& sg_Substrate::get_SubstrateFilm() { return *static_cast<SubstrateFilmType*>(lmx::choose(k_class, k_items[item_SubstrateFilm], this)); }
SubstrateFilmType& sg_Substrate::assign_SubstrateFilm(const SubstrateFilmType& value) { SubstrateFilmType copy(value); SubstrateFilmType& target = get_SubstrateFilm(); target.swap(copy); return target; }
SubstrateTextileType& sg_Substrate::get_SubstrateTextile() { return *static_cast<SubstrateTextileType*>(lmx::choose(k_class, k_items[item_SubstrateTextile], this)); }
SubstrateTextileType& sg_Substrate::assign_SubstrateTextile(const SubstrateTextileType& value) { SubstrateTextileType copy(value); SubstrateTextileType& target = get_SubstrateTextile(); target.swap(copy); return target; }

// sg_Sample

constexpr s_item sg_Sample::k_items[] = {
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SampleSpot", element("SampleSpot"), 0, k_no_flag, &SampleSpotType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SampleTarget", element("SampleTarget"), 0, k_no_flag, &SampleTargetType::k_class},
};
constinit const s_class sg_Sample::k_class = {
    .name = "sg_Sample",
    .qualified_name = "sg_Sample",
    .content = content_kind::group,
    .names = &k_names,
    .choice = LMX_CHOICE(sg_Sample, m_choice),
    .elements = k_items,
    .operations = &k_operations<sg_Sample>,
};

sg_Sample::sg_Sample() = default;
sg_Sample::sg_Sample(const sg_Sample& other) : sg_Sample() { lmx::copy(k_class, this, &other); }
sg_Sample::~sg_Sample() { lmx::release_choice(k_class, this); }
sg_Sample& sg_Sample::operator=(const sg_Sample& other) { sg_Sample copy(other); swap(copy); return *this; }
bool sg_Sample::is_member(lmx::c_xml_reader& reader, const std::string&) { return lmx::is_group_member(k_class, reader); }
lmx::elmx_error sg_Sample::marshal(lmx::c_xml_writer& writer, const char*) const { return lmx::marshal_group(k_class, this, writer); }
bool sg_Sample::unmarshal(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_group(k_class, this, reader, name, error); }
void sg_Sample::swap(sg_Sample& other) { lmx::swap(k_class, this, &other); }
void sg_Sample::reset() { sg_Sample fresh; lmx::exchange(k_class, this, &fresh); }
bool sg_Sample::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
SampleSpotType& sg_Sample::get_SampleSpot() { return *static_cast<SampleSpotType*>(lmx::choose(k_class, k_items[item_SampleSpot], this)); }
SampleSpotType& sg_Sample::assign_SampleSpot(const SampleSpotType& value) { SampleSpotType copy(value); SampleSpotType& target = get_SampleSpot(); target.swap(copy); return target; }
SampleTargetType& sg_Sample::get_SampleTarget() { return *static_cast<SampleTargetType*>(lmx::choose(k_class, k_items[item_SampleTarget], this)); }
SampleTargetType& sg_Sample::assign_SampleTarget(const SampleTargetType& value) { SampleTargetType copy(value); SampleTargetType& target = get_SampleTarget(); target.swap(copy); return target; }

// sg_Function

constexpr s_item sg_Function::k_items[] = {
    {item_kind::alternative, value_kind::none, use_demanded, ELMX_WS_PRESERVE, "Vyr:Function", element("Function"), 0, k_no_flag, &FunctionType::k_class, nullptr, FunctionType::k_factory},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionGeneric", element("FunctionGeneric"), 0, k_no_flag, &FunctionGenericType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionDE", element("FunctionDE"), 0, k_no_flag, &FunctionDEType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionMeanDE", element("FunctionMeanDE"), 0, k_no_flag, &FunctionMeanDEType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionDE94", element("FunctionDE94"), 0, k_no_flag, &FunctionDE94Type::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionDE2000", element("FunctionDE2000"), 0, k_no_flag, &FunctionDE2000Type::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionDECMC", element("FunctionDECMC"), 0, k_no_flag, &FunctionDEcmcType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionStdDevX", element("FunctionStdDevX"), 0, k_no_flag, &FunctionStdDevXType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionStdDevY", element("FunctionStdDevY"), 0, k_no_flag, &FunctionStdDevYType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionStdDevZ", element("FunctionStdDevZ"), 0, k_no_flag, &FunctionStdDevZType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionStdDevL", element("FunctionStdDevL"), 0, k_no_flag, &FunctionStdDevLType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionStdDevA", element("FunctionStdDevA"), 0, k_no_flag, &FunctionStdDevAType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionStdDevB", element("FunctionStdDevB"), 0, k_no_flag, &FunctionStdDevBType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionStdDevC", element("FunctionStdDevC"), 0, k_no_flag, &FunctionStdDevCType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionStdDevH", element("FunctionStdDevH"), 0, k_no_flag, &FunctionStdDevHType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionAverageStdDevL", element("FunctionAverageStdDevL"), 0, k_no_flag, &FunctionAverageStdDevLType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionAverageStdDevA", element("FunctionAverageStdDevA"), 0, k_no_flag, &FunctionAverageStdDevAType::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:FunctionAverageStdDevB", element("FunctionAverageStdDevB"), 0, k_no_flag, &FunctionAverageStdDevBType::k_class},
};
constinit const s_class sg_Function::k_class = {
    .name = "sg_Function",
    .qualified_name = "sg_Function",
    .content = content_kind::group,
    .names = &k_names,
    .choice = LMX_CHOICE(sg_Function, m_choice),
    .elements = k_items,
    .operations = &k_operations<sg_Function>,
};

sg_Function::sg_Function() = default;
sg_Function::sg_Function(const sg_Function& other) : sg_Function() { lmx::copy(k_class, this, &other); }
sg_Function::~sg_Function() { lmx::release_choice(k_class, this); }
sg_Function& sg_Function::operator=(const sg_Function& other) { sg_Function copy(other); swap(copy); return *this; }
bool sg_Function::is_member(lmx::c_xml_reader& reader, const std::string&) { return lmx::is_group_member(k_class, reader); }
lmx::elmx_error sg_Function::marshal(lmx::c_xml_writer& writer, const char*) const { return lmx::marshal_group(k_class, this, writer); }
bool sg_Function::unmarshal(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_group(k_class, this, reader, name, error); }
void sg_Function::swap(sg_Function& other) { lmx::swap(k_class, this, &other); }
void sg_Function::reset() { sg_Function fresh; lmx::exchange(k_class, this, &fresh); }
bool sg_Function::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
FunctionType& sg_Function::get_Function() { return *static_cast<FunctionType*>(lmx::choose(k_class, k_items[item_Function], this)); }
FunctionType& sg_Function::assign_Function(const FunctionType& value) { FunctionType copy(value); FunctionType& target = get_Function(); target.swap(copy); return target; }
FunctionType& sg_Function::assign_Function(FunctionType* value) { lmx::adopt(k_class, k_items[item_Function], this, value); if (value != nullptr) return *value; FunctionType& nothing = lmx::thread_object<FunctionType>(); nothing.reset(); return nothing; }
FunctionGenericType& sg_Function::get_FunctionGeneric() { return *static_cast<FunctionGenericType*>(lmx::choose(k_class, k_items[item_FunctionGeneric], this)); }
FunctionGenericType& sg_Function::assign_FunctionGeneric(const FunctionGenericType& value) { FunctionGenericType copy(value); FunctionGenericType& target = get_FunctionGeneric(); target.swap(copy); return target; }
FunctionDEType& sg_Function::get_FunctionDE() { return *static_cast<FunctionDEType*>(lmx::choose(k_class, k_items[item_FunctionDE], this)); }
FunctionDEType& sg_Function::assign_FunctionDE(const FunctionDEType& value) { FunctionDEType copy(value); FunctionDEType& target = get_FunctionDE(); target.swap(copy); return target; }
FunctionMeanDEType& sg_Function::get_FunctionMeanDE() { return *static_cast<FunctionMeanDEType*>(lmx::choose(k_class, k_items[item_FunctionMeanDE], this)); }
FunctionMeanDEType& sg_Function::assign_FunctionMeanDE(const FunctionMeanDEType& value) { FunctionMeanDEType copy(value); FunctionMeanDEType& target = get_FunctionMeanDE(); target.swap(copy); return target; }
FunctionDE94Type& sg_Function::get_FunctionDE94() { return *static_cast<FunctionDE94Type*>(lmx::choose(k_class, k_items[item_FunctionDE94], this)); }
FunctionDE94Type& sg_Function::assign_FunctionDE94(const FunctionDE94Type& value) { FunctionDE94Type copy(value); FunctionDE94Type& target = get_FunctionDE94(); target.swap(copy); return target; }
FunctionDE2000Type& sg_Function::get_FunctionDE2000() { return *static_cast<FunctionDE2000Type*>(lmx::choose(k_class, k_items[item_FunctionDE2000], this)); }
FunctionDE2000Type& sg_Function::assign_FunctionDE2000(const FunctionDE2000Type& value) { FunctionDE2000Type copy(value); FunctionDE2000Type& target = get_FunctionDE2000(); target.swap(copy); return target; }
FunctionDEcmcType& sg_Function::get_FunctionDECMC() { return *static_cast<FunctionDEcmcType*>(lmx::choose(k_class, k_items[item_FunctionDECMC], this)); }
FunctionDEcmcType& sg_Function::assign_FunctionDECMC(const FunctionDEcmcType& value) { FunctionDEcmcType copy(value); FunctionDEcmcType& target = get_FunctionDECMC(); target.swap(copy); return target; }
FunctionStdDevXType& sg_Function::get_FunctionStdDevX() { return *static_cast<FunctionStdDevXType*>(lmx::choose(k_class, k_items[item_FunctionStdDevX], this)); }
FunctionStdDevXType& sg_Function::assign_FunctionStdDevX(const FunctionStdDevXType& value) { FunctionStdDevXType copy(value); FunctionStdDevXType& target = get_FunctionStdDevX(); target.swap(copy); return target; }
FunctionStdDevYType& sg_Function::get_FunctionStdDevY() { return *static_cast<FunctionStdDevYType*>(lmx::choose(k_class, k_items[item_FunctionStdDevY], this)); }
FunctionStdDevYType& sg_Function::assign_FunctionStdDevY(const FunctionStdDevYType& value) { FunctionStdDevYType copy(value); FunctionStdDevYType& target = get_FunctionStdDevY(); target.swap(copy); return target; }
FunctionStdDevZType& sg_Function::get_FunctionStdDevZ() { return *static_cast<FunctionStdDevZType*>(lmx::choose(k_class, k_items[item_FunctionStdDevZ], this)); }
FunctionStdDevZType& sg_Function::assign_FunctionStdDevZ(const FunctionStdDevZType& value) { FunctionStdDevZType copy(value); FunctionStdDevZType& target = get_FunctionStdDevZ(); target.swap(copy); return target; }
FunctionStdDevLType& sg_Function::get_FunctionStdDevL() { return *static_cast<FunctionStdDevLType*>(lmx::choose(k_class, k_items[item_FunctionStdDevL], this)); }
FunctionStdDevLType& sg_Function::assign_FunctionStdDevL(const FunctionStdDevLType& value) { FunctionStdDevLType copy(value); FunctionStdDevLType& target = get_FunctionStdDevL(); target.swap(copy); return target; }
FunctionStdDevAType& sg_Function::get_FunctionStdDevA() { return *static_cast<FunctionStdDevAType*>(lmx::choose(k_class, k_items[item_FunctionStdDevA], this)); }
FunctionStdDevAType& sg_Function::assign_FunctionStdDevA(const FunctionStdDevAType& value) { FunctionStdDevAType copy(value); FunctionStdDevAType& target = get_FunctionStdDevA(); target.swap(copy); return target; }
FunctionStdDevBType& sg_Function::get_FunctionStdDevB() { return *static_cast<FunctionStdDevBType*>(lmx::choose(k_class, k_items[item_FunctionStdDevB], this)); }
FunctionStdDevBType& sg_Function::assign_FunctionStdDevB(const FunctionStdDevBType& value) { FunctionStdDevBType copy(value); FunctionStdDevBType& target = get_FunctionStdDevB(); target.swap(copy); return target; }
FunctionStdDevCType& sg_Function::get_FunctionStdDevC() { return *static_cast<FunctionStdDevCType*>(lmx::choose(k_class, k_items[item_FunctionStdDevC], this)); }
FunctionStdDevCType& sg_Function::assign_FunctionStdDevC(const FunctionStdDevCType& value) { FunctionStdDevCType copy(value); FunctionStdDevCType& target = get_FunctionStdDevC(); target.swap(copy); return target; }
FunctionStdDevHType& sg_Function::get_FunctionStdDevH() { return *static_cast<FunctionStdDevHType*>(lmx::choose(k_class, k_items[item_FunctionStdDevH], this)); }
FunctionStdDevHType& sg_Function::assign_FunctionStdDevH(const FunctionStdDevHType& value) { FunctionStdDevHType copy(value); FunctionStdDevHType& target = get_FunctionStdDevH(); target.swap(copy); return target; }
FunctionAverageStdDevLType& sg_Function::get_FunctionAverageStdDevL() { return *static_cast<FunctionAverageStdDevLType*>(lmx::choose(k_class, k_items[item_FunctionAverageStdDevL], this)); }
FunctionAverageStdDevLType& sg_Function::assign_FunctionAverageStdDevL(const FunctionAverageStdDevLType& value) { FunctionAverageStdDevLType copy(value); FunctionAverageStdDevLType& target = get_FunctionAverageStdDevL(); target.swap(copy); return target; }
FunctionAverageStdDevAType& sg_Function::get_FunctionAverageStdDevA() { return *static_cast<FunctionAverageStdDevAType*>(lmx::choose(k_class, k_items[item_FunctionAverageStdDevA], this)); }
FunctionAverageStdDevAType& sg_Function::assign_FunctionAverageStdDevA(const FunctionAverageStdDevAType& value) { FunctionAverageStdDevAType copy(value); FunctionAverageStdDevAType& target = get_FunctionAverageStdDevA(); target.swap(copy); return target; }
FunctionAverageStdDevBType& sg_Function::get_FunctionAverageStdDevB() { return *static_cast<FunctionAverageStdDevBType*>(lmx::choose(k_class, k_items[item_FunctionAverageStdDevB], this)); }
FunctionAverageStdDevBType& sg_Function::assign_FunctionAverageStdDevB(const FunctionAverageStdDevBType& value) { FunctionAverageStdDevBType copy(value); FunctionAverageStdDevBType& target = get_FunctionAverageStdDevB(); target.swap(copy); return target; }

}  // namespace com_vyrgraph_v2
