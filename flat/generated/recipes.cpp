// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in recipes.h.

#include "flat/call.h"
#include "schema/generated/color_values.h"
#include "schema/generated/conditions.h"
#include "schema/generated/header.h"
#include "schema/generated/recipes.h"
#include "schema/generated/sampled_color_values.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// ColorName
VYR_FLAT(void*) CSharp_new_ColorName__SWIG_0() { return make<ColorName>(); }
VYR_FLAT(void*) CSharp_new_ColorName__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorName const & type is null", &copy<ColorName>, source); }
VYR_FLAT(void) CSharp_delete_ColorName(void* self) { destroy<ColorName>(self); }
VYR_FLAT(void) CSharp_ColorName_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorName & type is null", +[](void* o, void* s) { return as<ColorName>(s).swap(as<ColorName>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorName_reset(void* self) { guarded(+[](void* s) { return as<ColorName>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorName_is_occurs_ok(void* self) { return as<ColorName>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorName_get_PrefixName(void* self) { return new_string(as<ColorName>(self).get_PrefixName()); }
VYR_FLAT(std::int32_t) CSharp_ColorName_set_PrefixName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorName>(s).set_PrefixName(v); }); }
VYR_FLAT(char16_t*) CSharp_ColorName_get_BaseName(void* self) { return new_string(as<ColorName>(self).get_BaseName()); }
VYR_FLAT(std::int32_t) CSharp_ColorName_set_BaseName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorName>(s).set_BaseName(v); }); }
VYR_FLAT(char16_t*) CSharp_ColorName_get_SuffixName(void* self) { return new_string(as<ColorName>(self).get_SuffixName()); }
VYR_FLAT(std::int32_t) CSharp_ColorName_set_SuffixName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorName>(s).set_SuffixName(v); }); }

// Recipe
VYR_FLAT(void*) CSharp_new_Recipe__SWIG_0() { return make<Recipe>(); }
VYR_FLAT(void*) CSharp_new_Recipe__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Recipe const & type is null", &copy<Recipe>, source); }
VYR_FLAT(void) CSharp_delete_Recipe(void* self) { destroy<Recipe>(self); }
VYR_FLAT(void) CSharp_Recipe_swap(void* self, void* other) { checked("com_vyrgraph_v2::Recipe & type is null", +[](void* o, void* s) { return as<Recipe>(s).swap(as<Recipe>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Recipe_reset(void* self) { guarded(+[](void* s) { return as<Recipe>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Recipe_is_occurs_ok(void* self) { return as<Recipe>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_Recipe_size_ColorantElement(void* self) { return static_cast<std::uint32_t>(as<Recipe>(self).size_ColorantElement()); }
VYR_FLAT(void*) CSharp_Recipe_get_ColorantElement__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Recipe>(s).get_ColorantElement(i); }, self, index); }
VYR_FLAT(void*) CSharp_Recipe_assign_ColorantElement(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::ColorantElement const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Recipe>(s).assign_ColorantElement(i, as<ColorantElement>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Recipe_append_ColorantElement(void* self) { return guarded(+[](void* s) { return as<Recipe>(s).append_ColorantElement(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Recipe_insert_ColorantElement(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Recipe>(s).insert_ColorantElement(i); }, self, index); }
VYR_FLAT(void*) CSharp_Recipe_back_ColorantElement(void* self) { return &as<Recipe>(self).back_ColorantElement(); }
VYR_FLAT(void) CSharp_Recipe_delete_ColorantElement(void* self, std::uint32_t index) { as<Recipe>(self).delete_ColorantElement(index); }
VYR_FLAT(void) CSharp_Recipe_clear_ColorantElement(void* self) { as<Recipe>(self).clear_ColorantElement(); }

// ColorSpaceTINTORAType
VYR_FLAT(void*) CSharp_new_ColorSpaceTINTORAType__SWIG_0() { return make<ColorSpaceTINTORAType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceTINTORAType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceTINTORAType const & type is null", &copy<ColorSpaceTINTORAType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceTINTORAType(void* self) { destroy<ColorSpaceTINTORAType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORATypeUpcast(void* self) { return upcast<ColorSpaceTINTORAType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceTINTORAType_id_get() { return ColorSpaceTINTORAType::id; }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAType_id_set(const char* identity) { set_identity(&ColorSpaceTINTORAType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceTINTORAType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceTINTORAType_getid(void* self) { return new_string(as<ColorSpaceTINTORAType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAType_has_id(void* self, const char* identity) { return as<ColorSpaceTINTORAType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceTINTORAType & type is null", +[](void* o, void* s) { return as<ColorSpaceTINTORAType>(s).swap(as<ColorSpaceTINTORAType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceTINTORAType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAType_is_occurs_ok(void* self) { return as<ColorSpaceTINTORAType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceTINTORAType_get_Name(void* self) { return new_string(as<ColorSpaceTINTORAType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceTINTORAType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAType_isset_Name(void* self) { return as<ColorSpaceTINTORAType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAType_unset_Name(void* self) { as<ColorSpaceTINTORAType>(self).unset_Name(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceTINTORAType_get_FamilyName(void* self) { return new_string(as<ColorSpaceTINTORAType>(self).get_FamilyName()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAType_set_FamilyName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceTINTORAType>(s).set_FamilyName(v); }); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAType_get_ColorName__SWIG_0(void* self) { return &as<ColorSpaceTINTORAType>(self).get_ColorName(); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAType_assign_ColorName(void* self, void* value) { return checked("com_vyrgraph_v2::ColorName const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceTINTORAType>(s).assign_ColorName(as<ColorName>(v)); }, value, self); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceTINTORAType_get_Page(void* self) { return new_string(as<ColorSpaceTINTORAType>(self).get_Page()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAType_set_Page(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceTINTORAType>(s).set_Page(v); }); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceTINTORAType_get_Gamut(void* self) { return new_string(as<ColorSpaceTINTORAType>(self).get_Gamut()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAType_set_Gamut(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceTINTORAType>(s).set_Gamut(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAType_getenum_Gamut(void* self) { return as<ColorSpaceTINTORAType>(self).getenum_Gamut(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAType_setenum_Gamut(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceTINTORAType>(s).setenum_Gamut(n); }, self, number); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAType_get_Recipe__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSpaceTINTORAType>(s).get_Recipe(); }, self); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAType_assign_Recipe(void* self, void* value) { return checked("com_vyrgraph_v2::Recipe const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceTINTORAType>(s).assign_Recipe(as<Recipe>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAType_isset_Recipe(void* self) { return as<ColorSpaceTINTORAType>(self).isset_Recipe(); }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAType_unset_Recipe(void* self) { as<ColorSpaceTINTORAType>(self).unset_Recipe(); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceTINTORAType_size_ColorAndFinish(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceTINTORAType>(self).size_ColorAndFinish()); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAType_get_ColorAndFinish__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSpaceTINTORAType>(s).get_ColorAndFinish(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAType_assign_ColorAndFinish(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::ColorAndFinish const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSpaceTINTORAType>(s).assign_ColorAndFinish(i, as<ColorAndFinish>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAType_append_ColorAndFinish(void* self) { return guarded(+[](void* s) { return as<ColorSpaceTINTORAType>(s).append_ColorAndFinish(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAType_insert_ColorAndFinish(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSpaceTINTORAType>(s).insert_ColorAndFinish(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAType_back_ColorAndFinish(void* self) { return &as<ColorSpaceTINTORAType>(self).back_ColorAndFinish(); }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAType_delete_ColorAndFinish(void* self, std::uint32_t index) { as<ColorSpaceTINTORAType>(self).delete_ColorAndFinish(index); }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAType_clear_ColorAndFinish(void* self) { as<ColorSpaceTINTORAType>(self).clear_ColorAndFinish(); }

// Colorant
VYR_FLAT(void*) CSharp_new_Colorant__SWIG_0() { return make<Colorant>(); }
VYR_FLAT(void*) CSharp_new_Colorant__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Colorant const & type is null", &copy<Colorant>, source); }
VYR_FLAT(void) CSharp_delete_Colorant(void* self) { destroy<Colorant>(self); }
VYR_FLAT(void) CSharp_Colorant_swap(void* self, void* other) { checked("com_vyrgraph_v2::Colorant & type is null", +[](void* o, void* s) { return as<Colorant>(s).swap(as<Colorant>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Colorant_reset(void* self) { guarded(+[](void* s) { return as<Colorant>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Colorant_is_occurs_ok(void* self) { return as<Colorant>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_Colorant_size_CustomAttributes(void* self) { return static_cast<std::uint32_t>(as<Colorant>(self).size_CustomAttributes()); }
VYR_FLAT(void*) CSharp_Colorant_get_CustomAttributes__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Colorant>(s).get_CustomAttributes(i); }, self, index); }
VYR_FLAT(void*) CSharp_Colorant_assign_CustomAttributes(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributes const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Colorant>(s).assign_CustomAttributes(i, as<CustomAttributes>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Colorant_append_CustomAttributes(void* self) { return guarded(+[](void* s) { return as<Colorant>(s).append_CustomAttributes(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Colorant_insert_CustomAttributes(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Colorant>(s).insert_CustomAttributes(i); }, self, index); }
VYR_FLAT(void*) CSharp_Colorant_back_CustomAttributes(void* self) { return &as<Colorant>(self).back_CustomAttributes(); }
VYR_FLAT(void) CSharp_Colorant_delete_CustomAttributes(void* self, std::uint32_t index) { as<Colorant>(self).delete_CustomAttributes(index); }
VYR_FLAT(void) CSharp_Colorant_clear_CustomAttributes(void* self) { as<Colorant>(self).clear_CustomAttributes(); }
VYR_FLAT(char16_t*) CSharp_Colorant_get_Name(void* self) { return new_string(as<Colorant>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_Colorant_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Colorant>(s).set_Name(v); }); }
VYR_FLAT(char16_t*) CSharp_Colorant_get_Manufacturer(void* self) { return new_string(as<Colorant>(self).get_Manufacturer()); }
VYR_FLAT(std::int32_t) CSharp_Colorant_set_Manufacturer(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Colorant>(s).set_Manufacturer(v); }); }
VYR_FLAT(std::int32_t) CSharp_Colorant_isset_Manufacturer(void* self) { return as<Colorant>(self).isset_Manufacturer(); }
VYR_FLAT(void) CSharp_Colorant_unset_Manufacturer(void* self) { as<Colorant>(self).unset_Manufacturer(); }
VYR_FLAT(char16_t*) CSharp_Colorant_get_PartNumber(void* self) { return new_string(as<Colorant>(self).get_PartNumber()); }
VYR_FLAT(std::int32_t) CSharp_Colorant_set_PartNumber(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Colorant>(s).set_PartNumber(v); }); }
VYR_FLAT(std::int32_t) CSharp_Colorant_isset_PartNumber(void* self) { return as<Colorant>(self).isset_PartNumber(); }
VYR_FLAT(void) CSharp_Colorant_unset_PartNumber(void* self) { as<Colorant>(self).unset_PartNumber(); }
VYR_FLAT(double) CSharp_Colorant_get_Density(void* self) { return as<Colorant>(self).get_Density(); }
VYR_FLAT(std::int32_t) CSharp_Colorant_set_Density(void* self, double value) { return as<Colorant>(self).set_Density(value); }
VYR_FLAT(std::int32_t) CSharp_Colorant_isset_Density(void* self) { return as<Colorant>(self).isset_Density(); }
VYR_FLAT(void) CSharp_Colorant_unset_Density(void* self) { as<Colorant>(self).unset_Density(); }

// ColorantElement
VYR_FLAT(void*) CSharp_new_ColorantElement__SWIG_0() { return make<ColorantElement>(); }
VYR_FLAT(void*) CSharp_new_ColorantElement__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorantElement const & type is null", &copy<ColorantElement>, source); }
VYR_FLAT(void) CSharp_delete_ColorantElement(void* self) { destroy<ColorantElement>(self); }
VYR_FLAT(void) CSharp_ColorantElement_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorantElement & type is null", +[](void* o, void* s) { return as<ColorantElement>(s).swap(as<ColorantElement>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorantElement_reset(void* self) { guarded(+[](void* s) { return as<ColorantElement>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorantElement_is_occurs_ok(void* self) { return as<ColorantElement>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_ColorantElement_get_Colorant__SWIG_0(void* self) { return &as<ColorantElement>(self).get_Colorant(); }
VYR_FLAT(void*) CSharp_ColorantElement_assign_Colorant(void* self, void* value) { return checked("com_vyrgraph_v2::Colorant const & type is null", +[](void* v, void* s) -> void* { return &as<ColorantElement>(s).assign_Colorant(as<Colorant>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorantElement_get_Contribution(void* self) { return as<ColorantElement>(self).get_Contribution(); }
VYR_FLAT(std::int32_t) CSharp_ColorantElement_set_Contribution(void* self, double value) { return as<ColorantElement>(self).set_Contribution(value); }

// CustomAttributes
VYR_FLAT(void*) CSharp_new_CustomAttributes__SWIG_0() { return make<CustomAttributes>(); }
VYR_FLAT(void*) CSharp_new_CustomAttributes__SWIG_1(void* source) { return checked("com_vyrgraph_v2::CustomAttributes const & type is null", &copy<CustomAttributes>, source); }
VYR_FLAT(void) CSharp_delete_CustomAttributes(void* self) { destroy<CustomAttributes>(self); }
VYR_FLAT(void) CSharp_CustomAttributes_swap(void* self, void* other) { checked("com_vyrgraph_v2::CustomAttributes & type is null", +[](void* o, void* s) { return as<CustomAttributes>(s).swap(as<CustomAttributes>(o)); }, other, self); }
VYR_FLAT(void) CSharp_CustomAttributes_reset(void* self) { guarded(+[](void* s) { return as<CustomAttributes>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_CustomAttributes_is_occurs_ok(void* self) { return as<CustomAttributes>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_CustomAttributes_get_CustomAttribute__SWIG_0(void* self) { return &as<CustomAttributes>(self).get_CustomAttribute(); }
VYR_FLAT(void*) CSharp_CustomAttributes_assign_CustomAttribute(void* self, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s) -> void* { return &as<CustomAttributes>(s).assign_CustomAttribute(as<CustomAttributeType>(v)); }, value, self); }

// ColorAndFinish
VYR_FLAT(void*) CSharp_new_ColorAndFinish__SWIG_0() { return make<ColorAndFinish>(); }
VYR_FLAT(void*) CSharp_new_ColorAndFinish__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorAndFinish const & type is null", &copy<ColorAndFinish>, source); }
VYR_FLAT(void) CSharp_delete_ColorAndFinish(void* self) { destroy<ColorAndFinish>(self); }
VYR_FLAT(void) CSharp_ColorAndFinish_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorAndFinish & type is null", +[](void* o, void* s) { return as<ColorAndFinish>(s).swap(as<ColorAndFinish>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorAndFinish_reset(void* self) { guarded(+[](void* s) { return as<ColorAndFinish>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorAndFinish_is_occurs_ok(void* self) { return as<ColorAndFinish>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorAndFinish_get_Finish(void* self) { return new_string(as<ColorAndFinish>(self).get_Finish()); }
VYR_FLAT(std::int32_t) CSharp_ColorAndFinish_set_Finish(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorAndFinish>(s).set_Finish(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorAndFinish_getenum_Finish(void* self) { return as<ColorAndFinish>(self).getenum_Finish(); }
VYR_FLAT(std::int32_t) CSharp_ColorAndFinish_setenum_Finish(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorAndFinish>(s).setenum_Finish(n); }, self, number); }
VYR_FLAT(void*) CSharp_ColorAndFinish_get_ColorSpaceSpectral__SWIG_0(void* self) { return &as<ColorAndFinish>(self).get_ColorSpaceSpectral(); }
VYR_FLAT(void*) CSharp_ColorAndFinish_assign_ColorSpaceSpectral(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpectralType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorAndFinish>(s).assign_ColorSpaceSpectral(as<ColorSpaceSpectralType>(v)); }, value, self); }

// ColorSpaceNCSType
VYR_FLAT(void*) CSharp_new_ColorSpaceNCSType__SWIG_0() { return make<ColorSpaceNCSType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceNCSType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceNCSType const & type is null", &copy<ColorSpaceNCSType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceNCSType(void* self) { destroy<ColorSpaceNCSType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceNCSTypeUpcast(void* self) { return upcast<ColorSpaceNCSType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceNCSType_id_get() { return ColorSpaceNCSType::id; }
VYR_FLAT(void) CSharp_ColorSpaceNCSType_id_set(const char* identity) { set_identity(&ColorSpaceNCSType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceNCSType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceNCSType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceNCSType_getid(void* self) { return new_string(as<ColorSpaceNCSType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceNCSType_has_id(void* self, const char* identity) { return as<ColorSpaceNCSType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceNCSType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceNCSType & type is null", +[](void* o, void* s) { return as<ColorSpaceNCSType>(s).swap(as<ColorSpaceNCSType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceNCSType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceNCSType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceNCSType_is_occurs_ok(void* self) { return as<ColorSpaceNCSType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceNCSType_get_Name(void* self) { return new_string(as<ColorSpaceNCSType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceNCSType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceNCSType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceNCSType_isset_Name(void* self) { return as<ColorSpaceNCSType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceNCSType_unset_Name(void* self) { as<ColorSpaceNCSType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceNCSType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return &as<ColorSpaceNCSType>(self).get_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceNCSType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceNCSType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceNCSType_get_ColorName(void* self) { return new_string(as<ColorSpaceNCSType>(self).get_ColorName()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceNCSType_set_ColorName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceNCSType>(s).set_ColorName(v); }); }

// ColorSpaceMunsellType
VYR_FLAT(void*) CSharp_new_ColorSpaceMunsellType__SWIG_0() { return make<ColorSpaceMunsellType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceMunsellType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceMunsellType const & type is null", &copy<ColorSpaceMunsellType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceMunsellType(void* self) { destroy<ColorSpaceMunsellType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceMunsellTypeUpcast(void* self) { return upcast<ColorSpaceMunsellType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceMunsellType_id_get() { return ColorSpaceMunsellType::id; }
VYR_FLAT(void) CSharp_ColorSpaceMunsellType_id_set(const char* identity) { set_identity(&ColorSpaceMunsellType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceMunsellType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceMunsellType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceMunsellType_getid(void* self) { return new_string(as<ColorSpaceMunsellType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceMunsellType_has_id(void* self, const char* identity) { return as<ColorSpaceMunsellType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceMunsellType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceMunsellType & type is null", +[](void* o, void* s) { return as<ColorSpaceMunsellType>(s).swap(as<ColorSpaceMunsellType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceMunsellType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceMunsellType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceMunsellType_is_occurs_ok(void* self) { return as<ColorSpaceMunsellType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceMunsellType_get_Name(void* self) { return new_string(as<ColorSpaceMunsellType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceMunsellType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceMunsellType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceMunsellType_isset_Name(void* self) { return as<ColorSpaceMunsellType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceMunsellType_unset_Name(void* self) { as<ColorSpaceMunsellType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceMunsellType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return &as<ColorSpaceMunsellType>(self).get_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceMunsellType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceMunsellType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceMunsellType_get_CollectionName(void* self) { return new_string(as<ColorSpaceMunsellType>(self).get_CollectionName()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceMunsellType_set_CollectionName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceMunsellType>(s).set_CollectionName(v); }); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceMunsellType_get_ColorName(void* self) { return new_string(as<ColorSpaceMunsellType>(self).get_ColorName()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceMunsellType_set_ColorName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceMunsellType>(s).set_ColorName(v); }); }

// Base
VYR_FLAT(void*) CSharp_new_Base__SWIG_0() { return make<Base>(); }
VYR_FLAT(void*) CSharp_new_Base__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Base const & type is null", &copy<Base>, source); }
VYR_FLAT(void) CSharp_delete_Base(void* self) { destroy<Base>(self); }
VYR_FLAT(void) CSharp_Base_swap(void* self, void* other) { checked("com_vyrgraph_v2::Base & type is null", +[](void* o, void* s) { return as<Base>(s).swap(as<Base>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Base_reset(void* self) { guarded(+[](void* s) { return as<Base>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Base_is_occurs_ok(void* self) { return as<Base>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_Base_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<Base>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_Base_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Base>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_Base_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Base>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Base_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<Base>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Base_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Base>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_Base_back_CustomAttribute(void* self) { return &as<Base>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_Base_delete_CustomAttribute(void* self, std::uint32_t index) { as<Base>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_Base_clear_CustomAttribute(void* self) { as<Base>(self).clear_CustomAttribute(); }
VYR_FLAT(char16_t*) CSharp_Base_get_Name(void* self) { return new_string(as<Base>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_Base_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Base>(s).set_Name(v); }); }
VYR_FLAT(char16_t*) CSharp_Base_get_Manufacturer(void* self) { return new_string(as<Base>(self).get_Manufacturer()); }
VYR_FLAT(std::int32_t) CSharp_Base_set_Manufacturer(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Base>(s).set_Manufacturer(v); }); }
VYR_FLAT(char16_t*) CSharp_Base_get_PartNumber(void* self) { return new_string(as<Base>(self).get_PartNumber()); }
VYR_FLAT(std::int32_t) CSharp_Base_set_PartNumber(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Base>(s).set_PartNumber(v); }); }
VYR_FLAT(double) CSharp_Base_get_Density(void* self) { return as<Base>(self).get_Density(); }
VYR_FLAT(std::int32_t) CSharp_Base_set_Density(void* self, double value) { return as<Base>(self).set_Density(value); }
VYR_FLAT(std::int32_t) CSharp_Base_isset_Density(void* self) { return as<Base>(self).isset_Density(); }
VYR_FLAT(void) CSharp_Base_unset_Density(void* self) { as<Base>(self).unset_Density(); }

// BaseElementType
VYR_FLAT(void*) CSharp_new_BaseElementType__SWIG_0() { return make<BaseElementType>(); }
VYR_FLAT(void*) CSharp_new_BaseElementType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::BaseElementType const & type is null", &copy<BaseElementType>, source); }
VYR_FLAT(void) CSharp_delete_BaseElementType(void* self) { destroy<BaseElementType>(self); }
VYR_FLAT(void) CSharp_BaseElementType_swap(void* self, void* other) { checked("com_vyrgraph_v2::BaseElementType & type is null", +[](void* o, void* s) { return as<BaseElementType>(s).swap(as<BaseElementType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_BaseElementType_reset(void* self) { guarded(+[](void* s) { return as<BaseElementType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_BaseElementType_is_occurs_ok(void* self) { return as<BaseElementType>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_BaseElementType_get_Base__SWIG_0(void* self) { return &as<BaseElementType>(self).get_Base(); }
VYR_FLAT(void*) CSharp_BaseElementType_assign_Base(void* self, void* value) { return checked("com_vyrgraph_v2::Base const & type is null", +[](void* v, void* s) -> void* { return &as<BaseElementType>(s).assign_Base(as<Base>(v)); }, value, self); }
VYR_FLAT(double) CSharp_BaseElementType_get_Contribution(void* self) { return as<BaseElementType>(self).get_Contribution(); }
VYR_FLAT(std::int32_t) CSharp_BaseElementType_set_Contribution(void* self, double value) { return as<BaseElementType>(self).set_Contribution(value); }

// ColorSpaceRecipeType
VYR_FLAT(void*) CSharp_new_ColorSpaceRecipeType__SWIG_0() { return make<ColorSpaceRecipeType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceRecipeType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceRecipeType const & type is null", &copy<ColorSpaceRecipeType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceRecipeType(void* self) { destroy<ColorSpaceRecipeType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceRecipeTypeUpcast(void* self) { return upcast<ColorSpaceRecipeType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceRecipeType_id_get() { return ColorSpaceRecipeType::id; }
VYR_FLAT(void) CSharp_ColorSpaceRecipeType_id_set(const char* identity) { set_identity(&ColorSpaceRecipeType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceRecipeType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceRecipeType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceRecipeType_getid(void* self) { return new_string(as<ColorSpaceRecipeType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRecipeType_has_id(void* self, const char* identity) { return as<ColorSpaceRecipeType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceRecipeType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceRecipeType & type is null", +[](void* o, void* s) { return as<ColorSpaceRecipeType>(s).swap(as<ColorSpaceRecipeType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceRecipeType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceRecipeType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRecipeType_is_occurs_ok(void* self) { return as<ColorSpaceRecipeType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceRecipeType_get_Name(void* self) { return new_string(as<ColorSpaceRecipeType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRecipeType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceRecipeType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRecipeType_isset_Name(void* self) { return as<ColorSpaceRecipeType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceRecipeType_unset_Name(void* self) { as<ColorSpaceRecipeType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceRecipeType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return &as<ColorSpaceRecipeType>(self).get_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceRecipeType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceRecipeType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceRecipeType_size_ColorantElement(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceRecipeType>(self).size_ColorantElement()); }
VYR_FLAT(void*) CSharp_ColorSpaceRecipeType_get_ColorantElement__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSpaceRecipeType>(s).get_ColorantElement(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceRecipeType_assign_ColorantElement(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::ColorantElementType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSpaceRecipeType>(s).assign_ColorantElement(i, as<ColorantElementType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRecipeType_append_ColorantElement(void* self) { return guarded(+[](void* s) { return as<ColorSpaceRecipeType>(s).append_ColorantElement(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRecipeType_insert_ColorantElement(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSpaceRecipeType>(s).insert_ColorantElement(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceRecipeType_back_ColorantElement(void* self) { return &as<ColorSpaceRecipeType>(self).back_ColorantElement(); }
VYR_FLAT(void) CSharp_ColorSpaceRecipeType_delete_ColorantElement(void* self, std::uint32_t index) { as<ColorSpaceRecipeType>(self).delete_ColorantElement(index); }
VYR_FLAT(void) CSharp_ColorSpaceRecipeType_clear_ColorantElement(void* self) { as<ColorSpaceRecipeType>(self).clear_ColorantElement(); }
VYR_FLAT(void*) CSharp_ColorSpaceRecipeType_get_BaseElement__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSpaceRecipeType>(s).get_BaseElement(); }, self); }
VYR_FLAT(void*) CSharp_ColorSpaceRecipeType_assign_BaseElement(void* self, void* value) { return checked("com_vyrgraph_v2::BaseElementType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceRecipeType>(s).assign_BaseElement(as<BaseElementType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRecipeType_isset_BaseElement(void* self) { return as<ColorSpaceRecipeType>(self).isset_BaseElement(); }
VYR_FLAT(void) CSharp_ColorSpaceRecipeType_unset_BaseElement(void* self) { as<ColorSpaceRecipeType>(self).unset_BaseElement(); }

// ColorSpaceRecipe
VYR_FLAT(void*) CSharp_new_ColorSpaceRecipe__SWIG_0() { return make<ColorSpaceRecipe>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceRecipe__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceRecipe const & type is null", &copy<ColorSpaceRecipe>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceRecipe(void* self) { destroy<ColorSpaceRecipe>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceRecipeUpcast(void* self) { return upcast<ColorSpaceRecipe, ColorSpaceRecipeType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceRecipe_ns_map() { return reference(*ColorSpaceRecipe::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRecipe_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceRecipe>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRecipe_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceRecipe>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRecipe_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceRecipe>(s).marshal(p); }, self, path); }

// ColorSpaceTINTORA
VYR_FLAT(void*) CSharp_new_ColorSpaceTINTORA__SWIG_0() { return make<ColorSpaceTINTORA>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceTINTORA__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceTINTORA const & type is null", &copy<ColorSpaceTINTORA>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceTINTORA(void* self) { destroy<ColorSpaceTINTORA>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAUpcast(void* self) { return upcast<ColorSpaceTINTORA, ColorSpaceTINTORAType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORA_ns_map() { return reference(*ColorSpaceTINTORA::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORA_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceTINTORA>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORA_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceTINTORA>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORA_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceTINTORA>(s).marshal(p); }, self, path); }

// ColorSpaceNCS
VYR_FLAT(void*) CSharp_new_ColorSpaceNCS__SWIG_0() { return make<ColorSpaceNCS>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceNCS__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceNCS const & type is null", &copy<ColorSpaceNCS>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceNCS(void* self) { destroy<ColorSpaceNCS>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceNCSUpcast(void* self) { return upcast<ColorSpaceNCS, ColorSpaceNCSType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceNCS_ns_map() { return reference(*ColorSpaceNCS::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceNCS_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceNCS>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceNCS_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceNCS>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceNCS_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceNCS>(s).marshal(p); }, self, path); }

// ColorSpaceMunsell
VYR_FLAT(void*) CSharp_new_ColorSpaceMunsell__SWIG_0() { return make<ColorSpaceMunsell>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceMunsell__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceMunsell const & type is null", &copy<ColorSpaceMunsell>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceMunsell(void* self) { destroy<ColorSpaceMunsell>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceMunsellUpcast(void* self) { return upcast<ColorSpaceMunsell, ColorSpaceMunsellType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceMunsell_ns_map() { return reference(*ColorSpaceMunsell::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceMunsell_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceMunsell>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceMunsell_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceMunsell>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceMunsell_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceMunsell>(s).marshal(p); }, self, path); }

// Density
VYR_FLAT(void*) CSharp_new_Density__SWIG_0() { return make<Density>(); }
VYR_FLAT(void*) CSharp_new_Density__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Density const & type is null", &copy<Density>, source); }
VYR_FLAT(void) CSharp_delete_Density(void* self) { destroy<Density>(self); }
VYR_FLAT(void) CSharp_Density_swap(void* self, void* other) { checked("com_vyrgraph_v2::Density & type is null", +[](void* o, void* s) { return as<Density>(s).swap(as<Density>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Density_reset(void* self) { guarded(+[](void* s) { return as<Density>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Density_is_occurs_ok(void* self) { return as<Density>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_Density_get_Density(void* self) { return as<Density>(self).get_Density(); }
VYR_FLAT(std::int32_t) CSharp_Density_set_Density(void* self, double value) { return as<Density>(self).set_Density(value); }
VYR_FLAT(std::int32_t) CSharp_Density_isnil_Density(void* self) { return as<Density>(self).isnil_Density(); }
VYR_FLAT(void) CSharp_Density_setnil_Density(void* self) { as<Density>(self).setnil_Density(); }

// ColorantElementType_Colorant
VYR_FLAT(void*) CSharp_new_ColorantElementType_Colorant__SWIG_0() { return make<ColorantElementType_Colorant>(); }
VYR_FLAT(void*) CSharp_new_ColorantElementType_Colorant__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorantElementType_Colorant const & type is null", &copy<ColorantElementType_Colorant>, source); }
VYR_FLAT(void) CSharp_delete_ColorantElementType_Colorant(void* self) { destroy<ColorantElementType_Colorant>(self); }
VYR_FLAT(void) CSharp_ColorantElementType_Colorant_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorantElementType_Colorant & type is null", +[](void* o, void* s) { return as<ColorantElementType_Colorant>(s).swap(as<ColorantElementType_Colorant>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorantElementType_Colorant_reset(void* self) { guarded(+[](void* s) { return as<ColorantElementType_Colorant>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorantElementType_Colorant_is_occurs_ok(void* self) { return as<ColorantElementType_Colorant>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_ColorantElementType_Colorant_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<ColorantElementType_Colorant>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_ColorantElementType_Colorant_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorantElementType_Colorant>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorantElementType_Colorant_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorantElementType_Colorant>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorantElementType_Colorant_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<ColorantElementType_Colorant>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorantElementType_Colorant_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorantElementType_Colorant>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorantElementType_Colorant_back_CustomAttribute(void* self) { return &as<ColorantElementType_Colorant>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_ColorantElementType_Colorant_delete_CustomAttribute(void* self, std::uint32_t index) { as<ColorantElementType_Colorant>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_ColorantElementType_Colorant_clear_CustomAttribute(void* self) { as<ColorantElementType_Colorant>(self).clear_CustomAttribute(); }
VYR_FLAT(char16_t*) CSharp_ColorantElementType_Colorant_get_Name(void* self) { return new_string(as<ColorantElementType_Colorant>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorantElementType_Colorant_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorantElementType_Colorant>(s).set_Name(v); }); }
VYR_FLAT(char16_t*) CSharp_ColorantElementType_Colorant_get_Manufacturer(void* self) { return new_string(as<ColorantElementType_Colorant>(self).get_Manufacturer()); }
VYR_FLAT(std::int32_t) CSharp_ColorantElementType_Colorant_set_Manufacturer(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorantElementType_Colorant>(s).set_Manufacturer(v); }); }
VYR_FLAT(char16_t*) CSharp_ColorantElementType_Colorant_get_PartNumber(void* self) { return new_string(as<ColorantElementType_Colorant>(self).get_PartNumber()); }
VYR_FLAT(std::int32_t) CSharp_ColorantElementType_Colorant_set_PartNumber(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorantElementType_Colorant>(s).set_PartNumber(v); }); }
VYR_FLAT(void*) CSharp_ColorantElementType_Colorant_get_Density__SWIG_0(void* self) { return &as<ColorantElementType_Colorant>(self).get_Density(); }
VYR_FLAT(void*) CSharp_ColorantElementType_Colorant_assign_Density(void* self, void* value) { return checked("com_vyrgraph_v2::Density const & type is null", +[](void* v, void* s) -> void* { return &as<ColorantElementType_Colorant>(s).assign_Density(as<Density>(v)); }, value, self); }

// ColorantElementType
VYR_FLAT(void*) CSharp_new_ColorantElementType__SWIG_0() { return make<ColorantElementType>(); }
VYR_FLAT(void*) CSharp_new_ColorantElementType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorantElementType const & type is null", &copy<ColorantElementType>, source); }
VYR_FLAT(void) CSharp_delete_ColorantElementType(void* self) { destroy<ColorantElementType>(self); }
VYR_FLAT(void) CSharp_ColorantElementType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorantElementType & type is null", +[](void* o, void* s) { return as<ColorantElementType>(s).swap(as<ColorantElementType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorantElementType_reset(void* self) { guarded(+[](void* s) { return as<ColorantElementType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorantElementType_is_occurs_ok(void* self) { return as<ColorantElementType>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_ColorantElementType_get_Colorant__SWIG_0(void* self) { return &as<ColorantElementType>(self).get_Colorant(); }
VYR_FLAT(void*) CSharp_ColorantElementType_assign_Colorant(void* self, void* value) { return checked("com_vyrgraph_v2::ColorantElementType_Colorant const & type is null", +[](void* v, void* s) -> void* { return &as<ColorantElementType>(s).assign_Colorant(as<ColorantElementType_Colorant>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorantElementType_get_Contribution(void* self) { return as<ColorantElementType>(self).get_Contribution(); }
VYR_FLAT(std::int32_t) CSharp_ColorantElementType_set_Contribution(void* self, double value) { return as<ColorantElementType>(self).set_Contribution(value); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
