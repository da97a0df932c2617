// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in groups.h.

#include "flat/call.h"
#include "schema/generated/color_values.h"
#include "schema/generated/device_color_values.h"
#include "schema/generated/functions.h"
#include "schema/generated/groups.h"
#include "schema/generated/recipes.h"
#include "schema/generated/sampled_color_values.h"
#include "schema/generated/samples.h"
#include "schema/generated/statistics.h"
#include "schema/generated/substrates.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// sg_ColorSpace
VYR_FLAT(void*) CSharp_new_sg_ColorSpace__SWIG_0() { return make<sg_ColorSpace>(); }
VYR_FLAT(void*) CSharp_new_sg_ColorSpace__SWIG_1(void* source) { return checked("com_vyrgraph_v2::sg_ColorSpace const & type is null", &copy<sg_ColorSpace>, source); }
VYR_FLAT(void) CSharp_delete_sg_ColorSpace(void* self) { destroy<sg_ColorSpace>(self); }
VYR_FLAT(void) CSharp_sg_ColorSpace_swap(void* self, void* other) { checked("com_vyrgraph_v2::sg_ColorSpace & type is null", +[](void* o, void* s) { return as<sg_ColorSpace>(s).swap(as<sg_ColorSpace>(o)); }, other, self); }
VYR_FLAT(void) CSharp_sg_ColorSpace_reset(void* self) { guarded(+[](void* s) { return as<sg_ColorSpace>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_sg_ColorSpace_is_occurs_ok(void* self) { return as<sg_ColorSpace>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_sg_ColorSpace_getchosen(void* self) { return as<sg_ColorSpace>(self).getchosen(); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceRecipe__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceRecipe(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceRecipe(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceRecipeType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceRecipe(as<ColorSpaceRecipeType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceTINTORA__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceTINTORA(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceTINTORA(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceTINTORAType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceTINTORA(as<ColorSpaceTINTORAType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceGeneric__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceGeneric(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceGenericType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceGeneric(as<ColorSpaceGenericType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceEmissiveGeneric__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceEmissiveGeneric(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceEmissiveGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceEmissiveGenericType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceEmissiveGeneric(as<ColorSpaceEmissiveGenericType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceDensity__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceDensity(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceDensity(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceDensityType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceDensity(as<ColorSpaceDensityType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceRGB__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceRGB(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceRGB(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceRGBType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceRGB(as<ColorSpaceRGBType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceSRGB__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceSRGB(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceSRGB(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSRGBType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceSRGB(as<ColorSpaceSRGBType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceAdobeRGB__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceAdobeRGB(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceAdobeRGB(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceAdobeRGBType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceAdobeRGB(as<ColorSpaceAdobeRGBType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceCMYKPlusN__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceCMYKPlusN(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceCMYKPlusN(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceCMYKPlusNType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceCMYKPlusN(as<ColorSpaceCMYKPlusNType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceAdobeWideGamutRGB__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceAdobeWideGamutRGB(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceAdobeWideGamutRGB(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceAdobeWideGamutRGBType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceAdobeWideGamutRGB(as<ColorSpaceAdobeWideGamutRGBType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceSpectral__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceSpectral(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceSpectral(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpectralType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceSpectral(as<ColorSpaceSpectralType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceEmissiveSpectral__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceEmissiveSpectral(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceEmissiveSpectral(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceEmissiveSpectralType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceEmissiveSpectral(as<ColorSpaceEmissiveSpectralType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceCIELab__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceCIELab(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceCIELab(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceCIELabType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceCIELab(as<ColorSpaceCIELabType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceCIELCh__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceCIELCh(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceCIELCh(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceCIELChType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceCIELCh(as<ColorSpaceCIELChType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceCIEXYZ__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceCIEXYZ(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceCIEXYZ(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceCIEXYZType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceCIEXYZ(as<ColorSpaceCIEXYZType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceEmissiveCIEXYZ__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceEmissiveCIEXYZ(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceEmissiveCIEXYZ(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceEmissiveCIEXYZType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceEmissiveCIEXYZ(as<ColorSpaceEmissiveCIEXYZType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceCIExyY__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceCIExyY(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceCIExyY(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceCIExyYType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceCIExyY(as<ColorSpaceCIExyYType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceEmissiveCIExyY__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceEmissiveCIExyY(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceEmissiveCIExyY(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceEmissiveCIExyYType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceEmissiveCIExyY(as<ColorSpaceEmissiveCIExyYType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceCIELuv__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceCIELuv(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceCIELuv(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceCIELuvType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceCIELuv(as<ColorSpaceCIELuvType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceHSL__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceHSL(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceHSL(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceHSLType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceHSL(as<ColorSpaceHSLType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceHSV__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceHSV(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceHSV(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceHSVType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceHSV(as<ColorSpaceHSVType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceCMYK__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceCMYK(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceCMYK__SWIG_0(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceCMYKType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceCMYK(as<ColorSpaceCMYKType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceTINTORAOctavantic__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceTINTORAOctavantic(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceTINTORAOctavantic(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceTINTORAOctavanticType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceTINTORAOctavantic(as<ColorSpaceTINTORAOctavanticType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceYUV__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceYUV(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceYUV(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceYUVType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceYUV(as<ColorSpaceYUVType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceYIQ__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceYIQ(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceYIQ(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceYIQType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceYIQ(as<ColorSpaceYIQType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceYBR__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceYBR(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceYBR(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceYBRType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceYBR(as<ColorSpaceYBRType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceNCS__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceNCS(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceNCS(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceNCSType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceNCS(as<ColorSpaceNCSType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_get_ColorSpaceMunsell__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_ColorSpace>(s).get_ColorSpaceMunsell(); }, self); }
VYR_FLAT(void*) CSharp_sg_ColorSpace_assign_ColorSpaceMunsell(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceMunsellType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_ColorSpace>(s).assign_ColorSpaceMunsell(as<ColorSpaceMunsellType>(v)); }, value, self); }

// sg_Substrate
VYR_FLAT(void*) CSharp_new_sg_Substrate__SWIG_0() { return make<sg_Substrate>(); }
VYR_FLAT(void*) CSharp_new_sg_Substrate__SWIG_1(void* source) { return checked("com_vyrgraph_v2::sg_Substrate const & type is null", &copy<sg_Substrate>, source); }
VYR_FLAT(void) CSharp_delete_sg_Substrate(void* self) { destroy<sg_Substrate>(self); }
VYR_FLAT(void) CSharp_sg_Substrate_swap(void* self, void* other) { checked("com_vyrgraph_v2::sg_Substrate & type is null", +[](void* o, void* s) { return as<sg_Substrate>(s).swap(as<sg_Substrate>(o)); }, other, self); }
VYR_FLAT(void) CSharp_sg_Substrate_reset(void* self) { guarded(+[](void* s) { return as<sg_Substrate>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_sg_Substrate_is_occurs_ok(void* self) { return as<sg_Substrate>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_sg_Substrate_getchosen(void* self) { return as<sg_Substrate>(self).getchosen(); }
VYR_FLAT(void*) CSharp_sg_Substrate_get_SubstratePaper__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Substrate>(s).get_SubstratePaper(); }, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_assign_SubstratePaper(void* self, void* value) { return checked("com_vyrgraph_v2::SubstratePaperType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Substrate>(s).assign_SubstratePaper(as<SubstratePaperType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_get_SubstrateGeneric__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Substrate>(s).get_SubstrateGeneric(); }, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_assign_SubstrateGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::SubstrateGenericType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Substrate>(s).assign_SubstrateGeneric(as<SubstrateGenericType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_get_SubstrateMetal__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Substrate>(s).get_SubstrateMetal(); }, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_assign_SubstrateMetal(void* self, void* value) { return checked("com_vyrgraph_v2::SubstrateMetalType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Substrate>(s).assign_SubstrateMetal(as<SubstrateMetalType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_get_SubstratePlastic__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Substrate>(s).get_SubstratePlastic(); }, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_assign_SubstratePlastic(void* self, void* value) { return checked("com_vyrgraph_v2::SubstratePlasticType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Substrate>(s).assign_SubstratePlastic(as<SubstratePlasticType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_get_SubstrateWood__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Substrate>(s).get_SubstrateWood(); }, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_assign_SubstrateWood(void* self, void* value) { return checked("com_vyrgraph_v2::SubstrateWoodType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Substrate>(s).assign_SubstrateWood(as<SubstrateWoodType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_get_SubstrateVinyl__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Substrate>(s).get_SubstrateVinyl(); }, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_assign_SubstrateVinyl(void* self, void* value) { return checked("com_vyrgraph_v2::SubstrateVinylType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Substrate>(s).assign_SubstrateVinyl(as<SubstrateVinylType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_get_SubstrateTile__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Substrate>(s).get_SubstrateTile(); }, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_assign_SubstrateTile(void* self, void* value) { return checked("com_vyrgraph_v2::SubstrateTileType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Substrate>(s).assign_SubstrateTile(as<SubstrateTileType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_get_SubstrateFilm__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Substrate>(s).get_SubstrateFilm(); }, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_assign_SubstrateFilm(void* self, void* value) { return checked("com_vyrgraph_v2::SubstrateFilmType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Substrate>(s).assign_SubstrateFilm(as<SubstrateFilmType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_get_SubstrateTextile__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Substrate>(s).get_SubstrateTextile(); }, self); }
VYR_FLAT(void*) CSharp_sg_Substrate_assign_SubstrateTextile(void* self, void* value) { return checked("com_vyrgraph_v2::SubstrateTextileType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Substrate>(s).assign_SubstrateTextile(as<SubstrateTextileType>(v)); }, value, self); }

// sg_Sample
VYR_FLAT(void*) CSharp_new_sg_Sample__SWIG_0() { return make<sg_Sample>(); }
VYR_FLAT(void*) CSharp_new_sg_Sample__SWIG_1(void* source) { return checked("com_vyrgraph_v2::sg_Sample const & type is null", &copy<sg_Sample>, source); }
VYR_FLAT(void) CSharp_delete_sg_Sample(void* self) { destroy<sg_Sample>(self); }
VYR_FLAT(void) CSharp_sg_Sample_swap(void* self, void* other) { checked("com_vyrgraph_v2::sg_Sample & type is null", +[](void* o, void* s) { return as<sg_Sample>(s).swap(as<sg_Sample>(o)); }, other, self); }
VYR_FLAT(void) CSharp_sg_Sample_reset(void* self) { guarded(+[](void* s) { return as<sg_Sample>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_sg_Sample_is_occurs_ok(void* self) { return as<sg_Sample>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_sg_Sample_getchosen(void* self) { return as<sg_Sample>(self).getchosen(); }
VYR_FLAT(void*) CSharp_sg_Sample_get_SampleSpot__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Sample>(s).get_SampleSpot(); }, self); }
VYR_FLAT(void*) CSharp_sg_Sample_assign_SampleSpot(void* self, void* value) { return checked("com_vyrgraph_v2::SampleSpotType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Sample>(s).assign_SampleSpot(as<SampleSpotType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Sample_get_SampleTarget__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Sample>(s).get_SampleTarget(); }, self); }
VYR_FLAT(void*) CSharp_sg_Sample_assign_SampleTarget(void* self, void* value) { return checked("com_vyrgraph_v2::SampleTargetType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Sample>(s).assign_SampleTarget(as<SampleTargetType>(v)); }, value, self); }

// sg_Function
VYR_FLAT(void*) CSharp_new_sg_Function__SWIG_0() { return make<sg_Function>(); }
VYR_FLAT(void*) CSharp_new_sg_Function__SWIG_1(void* source) { return checked("com_vyrgraph_v2::sg_Function const & type is null", &copy<sg_Function>, source); }
VYR_FLAT(void) CSharp_delete_sg_Function(void* self) { destroy<sg_Function>(self); }
VYR_FLAT(void) CSharp_sg_Function_swap(void* self, void* other) { checked("com_vyrgraph_v2::sg_Function & type is null", +[](void* o, void* s) { return as<sg_Function>(s).swap(as<sg_Function>(o)); }, other, self); }
VYR_FLAT(void) CSharp_sg_Function_reset(void* self) { guarded(+[](void* s) { return as<sg_Function>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_sg_Function_is_occurs_ok(void* self) { return as<sg_Function>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_sg_Function_getchosen(void* self) { return as<sg_Function>(self).getchosen(); }
VYR_FLAT(void*) CSharp_sg_Function_get_Function__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_Function(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_Function__SWIG_0(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_Function(as<FunctionType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionGeneric__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionGeneric(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionGenericType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionGeneric(as<FunctionGenericType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionDE__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionDE(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionDE(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionDEType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionDE(as<FunctionDEType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionMeanDE__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionMeanDE(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionMeanDE(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionMeanDEType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionMeanDE(as<FunctionMeanDEType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionDE94__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionDE94(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionDE94(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionDE94Type const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionDE94(as<FunctionDE94Type>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionDE2000__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionDE2000(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionDE2000(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionDE2000Type const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionDE2000(as<FunctionDE2000Type>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionDECMC__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionDECMC(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionDECMC(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionDEcmcType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionDECMC(as<FunctionDEcmcType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionStdDevX__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionStdDevX(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionStdDevX(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionStdDevXType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionStdDevX(as<FunctionStdDevXType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionStdDevY__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionStdDevY(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionStdDevY(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionStdDevYType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionStdDevY(as<FunctionStdDevYType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionStdDevZ__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionStdDevZ(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionStdDevZ(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionStdDevZType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionStdDevZ(as<FunctionStdDevZType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionStdDevL__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionStdDevL(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionStdDevL(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionStdDevLType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionStdDevL(as<FunctionStdDevLType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionStdDevA__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionStdDevA(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionStdDevA(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionStdDevAType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionStdDevA(as<FunctionStdDevAType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionStdDevB__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionStdDevB(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionStdDevB(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionStdDevBType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionStdDevB(as<FunctionStdDevBType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionStdDevC__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionStdDevC(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionStdDevC(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionStdDevCType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionStdDevC(as<FunctionStdDevCType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionStdDevH__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionStdDevH(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionStdDevH(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionStdDevHType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionStdDevH(as<FunctionStdDevHType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionAverageStdDevL__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionAverageStdDevL(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionAverageStdDevL(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionAverageStdDevLType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionAverageStdDevL(as<FunctionAverageStdDevLType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionAverageStdDevA__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionAverageStdDevA(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionAverageStdDevA(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionAverageStdDevAType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionAverageStdDevA(as<FunctionAverageStdDevAType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_sg_Function_get_FunctionAverageStdDevB__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<sg_Function>(s).get_FunctionAverageStdDevB(); }, self); }
VYR_FLAT(void*) CSharp_sg_Function_assign_FunctionAverageStdDevB(void* self, void* value) { return checked("com_vyrgraph_v2::FunctionAverageStdDevBType const & type is null", +[](void* v, void* s) -> void* { return &as<sg_Function>(s).assign_FunctionAverageStdDevB(as<FunctionAverageStdDevBType>(v)); }, value, self); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
