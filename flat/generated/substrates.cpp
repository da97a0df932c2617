// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in substrates.h.

#include "flat/call.h"
#include "schema/generated/header.h"
#include "schema/generated/palettes.h"
#include "schema/generated/substrates.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// SubstrateType
VYR_FLAT(void*) CSharp_new_SubstrateType__SWIG_0() { return make<SubstrateType>(); }
VYR_FLAT(void*) CSharp_new_SubstrateType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateType const & type is null", &copy<SubstrateType>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateType(void* self) { destroy<SubstrateType>(self); }
VYR_FLAT(const char*) CSharp_SubstrateType_id_get() { return SubstrateType::id; }
VYR_FLAT(void) CSharp_SubstrateType_id_set(const char* identity) { set_identity(&SubstrateType::id, identity); }
VYR_FLAT(void*) CSharp_SubstrateType_factory(std::int32_t ns_id, const char* name) { return checked(k_null_string, +[](const char* n, std::int32_t i) -> void* { return SubstrateType::factory(i, n); }, name, ns_id); }
VYR_FLAT(void*) CSharp_SubstrateType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SubstrateType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SubstrateType_getid(void* self) { return new_string(as<SubstrateType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateType_has_id(void* self, const char* identity) { return as<SubstrateType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SubstrateType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SubstrateType & type is null", +[](void* o, void* s) { return as<SubstrateType>(s).swap(as<SubstrateType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SubstrateType_reset(void* self) { guarded(+[](void* s) { return as<SubstrateType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SubstrateType_is_occurs_ok(void* self) { return as<SubstrateType>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_SubstrateType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<SubstrateType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_SubstrateType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<SubstrateType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_SubstrateType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<SubstrateType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_SubstrateType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<SubstrateType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SubstrateType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<SubstrateType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_SubstrateType_back_CustomAttribute(void* self) { return &as<SubstrateType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_SubstrateType_delete_CustomAttribute(void* self, std::uint32_t index) { as<SubstrateType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_SubstrateType_clear_CustomAttribute(void* self) { as<SubstrateType>(self).clear_CustomAttribute(); }
VYR_FLAT(char16_t*) CSharp_SubstrateType_get_PartNumber(void* self) { return new_string(as<SubstrateType>(self).get_PartNumber()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateType_set_PartNumber(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SubstrateType>(s).set_PartNumber(v); }); }
VYR_FLAT(std::int32_t) CSharp_SubstrateType_isset_PartNumber(void* self) { return as<SubstrateType>(self).isset_PartNumber(); }
VYR_FLAT(void) CSharp_SubstrateType_unset_PartNumber(void* self) { as<SubstrateType>(self).unset_PartNumber(); }
VYR_FLAT(void*) CSharp_SubstrateType_get_Color__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<SubstrateType>(s).get_Color(); }, self); }
VYR_FLAT(void*) CSharp_SubstrateType_assign_Color(void* self, void* value) { return checked("com_vyrgraph_v2::ColorType const & type is null", +[](void* v, void* s) -> void* { return &as<SubstrateType>(s).assign_Color(as<ColorType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_SubstrateType_isset_Color(void* self) { return as<SubstrateType>(self).isset_Color(); }
VYR_FLAT(void) CSharp_SubstrateType_unset_Color(void* self) { as<SubstrateType>(self).unset_Color(); }

// Substrate
VYR_FLAT(void) CSharp_delete_Substrate(void* self) { destroy<Substrate>(self); }
VYR_FLAT(void*) CSharp_SubstrateUpcast(void* self) { return upcast<Substrate, SubstrateType>(self); }

// SubstratePaperType
VYR_FLAT(void*) CSharp_new_SubstratePaperType__SWIG_0() { return make<SubstratePaperType>(); }
VYR_FLAT(void*) CSharp_new_SubstratePaperType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstratePaperType const & type is null", &copy<SubstratePaperType>, source); }
VYR_FLAT(void) CSharp_delete_SubstratePaperType(void* self) { destroy<SubstratePaperType>(self); }
VYR_FLAT(void*) CSharp_SubstratePaperTypeUpcast(void* self) { return upcast<SubstratePaperType, SubstrateType>(self); }
VYR_FLAT(const char*) CSharp_SubstratePaperType_id_get() { return SubstratePaperType::id; }
VYR_FLAT(void) CSharp_SubstratePaperType_id_set(const char* identity) { set_identity(&SubstratePaperType::id, identity); }
VYR_FLAT(void*) CSharp_SubstratePaperType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SubstratePaperType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SubstratePaperType_getid(void* self) { return new_string(as<SubstratePaperType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SubstratePaperType_has_id(void* self, const char* identity) { return as<SubstratePaperType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SubstratePaperType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SubstratePaperType & type is null", +[](void* o, void* s) { return as<SubstratePaperType>(s).swap(as<SubstratePaperType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SubstratePaperType_reset(void* self) { guarded(+[](void* s) { return as<SubstratePaperType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SubstratePaperType_is_occurs_ok(void* self) { return as<SubstratePaperType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_SubstratePaperType_get_PaperThickness(void* self) { return as<SubstratePaperType>(self).get_PaperThickness(); }
VYR_FLAT(std::int32_t) CSharp_SubstratePaperType_set_PaperThickness(void* self, double value) { return as<SubstratePaperType>(self).set_PaperThickness(value); }
VYR_FLAT(std::int32_t) CSharp_SubstratePaperType_isset_PaperThickness(void* self) { return as<SubstratePaperType>(self).isset_PaperThickness(); }
VYR_FLAT(void) CSharp_SubstratePaperType_unset_PaperThickness(void* self) { as<SubstratePaperType>(self).unset_PaperThickness(); }
VYR_FLAT(char16_t*) CSharp_SubstratePaperType_get_PaperType(void* self) { return new_string(as<SubstratePaperType>(self).get_PaperType()); }
VYR_FLAT(std::int32_t) CSharp_SubstratePaperType_set_PaperType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SubstratePaperType>(s).set_PaperType(v); }); }
VYR_FLAT(std::int32_t) CSharp_SubstratePaperType_isset_PaperType(void* self) { return as<SubstratePaperType>(self).isset_PaperType(); }
VYR_FLAT(void) CSharp_SubstratePaperType_unset_PaperType(void* self) { as<SubstratePaperType>(self).unset_PaperType(); }

// SubstrateGenericType
VYR_FLAT(void*) CSharp_new_SubstrateGenericType__SWIG_0() { return make<SubstrateGenericType>(); }
VYR_FLAT(void*) CSharp_new_SubstrateGenericType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateGenericType const & type is null", &copy<SubstrateGenericType>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateGenericType(void* self) { destroy<SubstrateGenericType>(self); }
VYR_FLAT(void*) CSharp_SubstrateGenericTypeUpcast(void* self) { return upcast<SubstrateGenericType, SubstrateType>(self); }
VYR_FLAT(const char*) CSharp_SubstrateGenericType_id_get() { return SubstrateGenericType::id; }
VYR_FLAT(void) CSharp_SubstrateGenericType_id_set(const char* identity) { set_identity(&SubstrateGenericType::id, identity); }
VYR_FLAT(void*) CSharp_SubstrateGenericType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SubstrateGenericType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SubstrateGenericType_getid(void* self) { return new_string(as<SubstrateGenericType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateGenericType_has_id(void* self, const char* identity) { return as<SubstrateGenericType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SubstrateGenericType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SubstrateGenericType & type is null", +[](void* o, void* s) { return as<SubstrateGenericType>(s).swap(as<SubstrateGenericType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SubstrateGenericType_reset(void* self) { guarded(+[](void* s) { return as<SubstrateGenericType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SubstrateGenericType_is_occurs_ok(void* self) { return as<SubstrateGenericType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_SubstrateGenericType_get_Type(void* self) { return new_string(as<SubstrateGenericType>(self).get_Type()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateGenericType_set_Type(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SubstrateGenericType>(s).set_Type(v); }); }

// SubstrateMetalType
VYR_FLAT(void*) CSharp_new_SubstrateMetalType__SWIG_0() { return make<SubstrateMetalType>(); }
VYR_FLAT(void*) CSharp_new_SubstrateMetalType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateMetalType const & type is null", &copy<SubstrateMetalType>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateMetalType(void* self) { destroy<SubstrateMetalType>(self); }
VYR_FLAT(void*) CSharp_SubstrateMetalTypeUpcast(void* self) { return upcast<SubstrateMetalType, SubstrateType>(self); }
VYR_FLAT(const char*) CSharp_SubstrateMetalType_id_get() { return SubstrateMetalType::id; }
VYR_FLAT(void) CSharp_SubstrateMetalType_id_set(const char* identity) { set_identity(&SubstrateMetalType::id, identity); }
VYR_FLAT(void*) CSharp_SubstrateMetalType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SubstrateMetalType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SubstrateMetalType_getid(void* self) { return new_string(as<SubstrateMetalType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateMetalType_has_id(void* self, const char* identity) { return as<SubstrateMetalType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SubstrateMetalType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SubstrateMetalType & type is null", +[](void* o, void* s) { return as<SubstrateMetalType>(s).swap(as<SubstrateMetalType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SubstrateMetalType_reset(void* self) { guarded(+[](void* s) { return as<SubstrateMetalType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SubstrateMetalType_is_occurs_ok(void* self) { return as<SubstrateMetalType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_SubstrateMetalType_get_MetalWeight(void* self) { return as<SubstrateMetalType>(self).get_MetalWeight(); }
VYR_FLAT(std::int32_t) CSharp_SubstrateMetalType_set_MetalWeight(void* self, double value) { return as<SubstrateMetalType>(self).set_MetalWeight(value); }
VYR_FLAT(std::int32_t) CSharp_SubstrateMetalType_isset_MetalWeight(void* self) { return as<SubstrateMetalType>(self).isset_MetalWeight(); }
VYR_FLAT(void) CSharp_SubstrateMetalType_unset_MetalWeight(void* self) { as<SubstrateMetalType>(self).unset_MetalWeight(); }
VYR_FLAT(char16_t*) CSharp_SubstrateMetalType_get_MetalType(void* self) { return new_string(as<SubstrateMetalType>(self).get_MetalType()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateMetalType_set_MetalType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SubstrateMetalType>(s).set_MetalType(v); }); }
VYR_FLAT(std::int32_t) CSharp_SubstrateMetalType_isset_MetalType(void* self) { return as<SubstrateMetalType>(self).isset_MetalType(); }
VYR_FLAT(void) CSharp_SubstrateMetalType_unset_MetalType(void* self) { as<SubstrateMetalType>(self).unset_MetalType(); }

// SubstratePlasticType
VYR_FLAT(void*) CSharp_new_SubstratePlasticType__SWIG_0() { return make<SubstratePlasticType>(); }
VYR_FLAT(void*) CSharp_new_SubstratePlasticType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstratePlasticType const & type is null", &copy<SubstratePlasticType>, source); }
VYR_FLAT(void) CSharp_delete_SubstratePlasticType(void* self) { destroy<SubstratePlasticType>(self); }
VYR_FLAT(void*) CSharp_SubstratePlasticTypeUpcast(void* self) { return upcast<SubstratePlasticType, SubstrateType>(self); }
VYR_FLAT(const char*) CSharp_SubstratePlasticType_id_get() { return SubstratePlasticType::id; }
VYR_FLAT(void) CSharp_SubstratePlasticType_id_set(const char* identity) { set_identity(&SubstratePlasticType::id, identity); }
VYR_FLAT(void*) CSharp_SubstratePlasticType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SubstratePlasticType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SubstratePlasticType_getid(void* self) { return new_string(as<SubstratePlasticType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SubstratePlasticType_has_id(void* self, const char* identity) { return as<SubstratePlasticType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SubstratePlasticType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SubstratePlasticType & type is null", +[](void* o, void* s) { return as<SubstratePlasticType>(s).swap(as<SubstratePlasticType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SubstratePlasticType_reset(void* self) { guarded(+[](void* s) { return as<SubstratePlasticType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SubstratePlasticType_is_occurs_ok(void* self) { return as<SubstratePlasticType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_SubstratePlasticType_get_PlasticWeight(void* self) { return as<SubstratePlasticType>(self).get_PlasticWeight(); }
VYR_FLAT(std::int32_t) CSharp_SubstratePlasticType_set_PlasticWeight(void* self, double value) { return as<SubstratePlasticType>(self).set_PlasticWeight(value); }
VYR_FLAT(std::int32_t) CSharp_SubstratePlasticType_isset_PlasticWeight(void* self) { return as<SubstratePlasticType>(self).isset_PlasticWeight(); }
VYR_FLAT(void) CSharp_SubstratePlasticType_unset_PlasticWeight(void* self) { as<SubstratePlasticType>(self).unset_PlasticWeight(); }
VYR_FLAT(char16_t*) CSharp_SubstratePlasticType_get_PlasticType(void* self) { return new_string(as<SubstratePlasticType>(self).get_PlasticType()); }
VYR_FLAT(std::int32_t) CSharp_SubstratePlasticType_set_PlasticType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SubstratePlasticType>(s).set_PlasticType(v); }); }
VYR_FLAT(std::int32_t) CSharp_SubstratePlasticType_isset_PlasticType(void* self) { return as<SubstratePlasticType>(self).isset_PlasticType(); }
VYR_FLAT(void) CSharp_SubstratePlasticType_unset_PlasticType(void* self) { as<SubstratePlasticType>(self).unset_PlasticType(); }

// SubstrateWoodType
VYR_FLAT(void*) CSharp_new_SubstrateWoodType__SWIG_0() { return make<SubstrateWoodType>(); }
VYR_FLAT(void*) CSharp_new_SubstrateWoodType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateWoodType const & type is null", &copy<SubstrateWoodType>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateWoodType(void* self) { destroy<SubstrateWoodType>(self); }
VYR_FLAT(void*) CSharp_SubstrateWoodTypeUpcast(void* self) { return upcast<SubstrateWoodType, SubstrateType>(self); }
VYR_FLAT(const char*) CSharp_SubstrateWoodType_id_get() { return SubstrateWoodType::id; }
VYR_FLAT(void) CSharp_SubstrateWoodType_id_set(const char* identity) { set_identity(&SubstrateWoodType::id, identity); }
VYR_FLAT(void*) CSharp_SubstrateWoodType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SubstrateWoodType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SubstrateWoodType_getid(void* self) { return new_string(as<SubstrateWoodType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateWoodType_has_id(void* self, const char* identity) { return as<SubstrateWoodType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SubstrateWoodType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SubstrateWoodType & type is null", +[](void* o, void* s) { return as<SubstrateWoodType>(s).swap(as<SubstrateWoodType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SubstrateWoodType_reset(void* self) { guarded(+[](void* s) { return as<SubstrateWoodType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SubstrateWoodType_is_occurs_ok(void* self) { return as<SubstrateWoodType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_SubstrateWoodType_get_WoodWeight(void* self) { return as<SubstrateWoodType>(self).get_WoodWeight(); }
VYR_FLAT(std::int32_t) CSharp_SubstrateWoodType_set_WoodWeight(void* self, double value) { return as<SubstrateWoodType>(self).set_WoodWeight(value); }
VYR_FLAT(std::int32_t) CSharp_SubstrateWoodType_isset_WoodWeight(void* self) { return as<SubstrateWoodType>(self).isset_WoodWeight(); }
VYR_FLAT(void) CSharp_SubstrateWoodType_unset_WoodWeight(void* self) { as<SubstrateWoodType>(self).unset_WoodWeight(); }
VYR_FLAT(char16_t*) CSharp_SubstrateWoodType_get_WoodType(void* self) { return new_string(as<SubstrateWoodType>(self).get_WoodType()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateWoodType_set_WoodType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SubstrateWoodType>(s).set_WoodType(v); }); }
VYR_FLAT(std::int32_t) CSharp_SubstrateWoodType_isset_WoodType(void* self) { return as<SubstrateWoodType>(self).isset_WoodType(); }
VYR_FLAT(void) CSharp_SubstrateWoodType_unset_WoodType(void* self) { as<SubstrateWoodType>(self).unset_WoodType(); }

// SubstrateVinylType
VYR_FLAT(void*) CSharp_new_SubstrateVinylType__SWIG_0() { return make<SubstrateVinylType>(); }
VYR_FLAT(void*) CSharp_new_SubstrateVinylType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateVinylType const & type is null", &copy<SubstrateVinylType>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateVinylType(void* self) { destroy<SubstrateVinylType>(self); }
VYR_FLAT(void*) CSharp_SubstrateVinylTypeUpcast(void* self) { return upcast<SubstrateVinylType, SubstrateType>(self); }
VYR_FLAT(const char*) CSharp_SubstrateVinylType_id_get() { return SubstrateVinylType::id; }
VYR_FLAT(void) CSharp_SubstrateVinylType_id_set(const char* identity) { set_identity(&SubstrateVinylType::id, identity); }
VYR_FLAT(void*) CSharp_SubstrateVinylType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SubstrateVinylType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SubstrateVinylType_getid(void* self) { return new_string(as<SubstrateVinylType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateVinylType_has_id(void* self, const char* identity) { return as<SubstrateVinylType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SubstrateVinylType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SubstrateVinylType & type is null", +[](void* o, void* s) { return as<SubstrateVinylType>(s).swap(as<SubstrateVinylType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SubstrateVinylType_reset(void* self) { guarded(+[](void* s) { return as<SubstrateVinylType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SubstrateVinylType_is_occurs_ok(void* self) { return as<SubstrateVinylType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_SubstrateVinylType_get_VinylWeight(void* self) { return as<SubstrateVinylType>(self).get_VinylWeight(); }
VYR_FLAT(std::int32_t) CSharp_SubstrateVinylType_set_VinylWeight(void* self, double value) { return as<SubstrateVinylType>(self).set_VinylWeight(value); }
VYR_FLAT(std::int32_t) CSharp_SubstrateVinylType_isset_VinylWeight(void* self) { return as<SubstrateVinylType>(self).isset_VinylWeight(); }
VYR_FLAT(void) CSharp_SubstrateVinylType_unset_VinylWeight(void* self) { as<SubstrateVinylType>(self).unset_VinylWeight(); }
VYR_FLAT(char16_t*) CSharp_SubstrateVinylType_get_VinylType(void* self) { return new_string(as<SubstrateVinylType>(self).get_VinylType()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateVinylType_set_VinylType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SubstrateVinylType>(s).set_VinylType(v); }); }
VYR_FLAT(std::int32_t) CSharp_SubstrateVinylType_isset_VinylType(void* self) { return as<SubstrateVinylType>(self).isset_VinylType(); }
VYR_FLAT(void) CSharp_SubstrateVinylType_unset_VinylType(void* self) { as<SubstrateVinylType>(self).unset_VinylType(); }

// SubstrateTileType
VYR_FLAT(void*) CSharp_new_SubstrateTileType__SWIG_0() { return make<SubstrateTileType>(); }
VYR_FLAT(void*) CSharp_new_SubstrateTileType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateTileType const & type is null", &copy<SubstrateTileType>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateTileType(void* self) { destroy<SubstrateTileType>(self); }
VYR_FLAT(void*) CSharp_SubstrateTileTypeUpcast(void* self) { return upcast<SubstrateTileType, SubstrateType>(self); }
VYR_FLAT(const char*) CSharp_SubstrateTileType_id_get() { return SubstrateTileType::id; }
VYR_FLAT(void) CSharp_SubstrateTileType_id_set(const char* identity) { set_identity(&SubstrateTileType::id, identity); }
VYR_FLAT(void*) CSharp_SubstrateTileType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SubstrateTileType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SubstrateTileType_getid(void* self) { return new_string(as<SubstrateTileType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTileType_has_id(void* self, const char* identity) { return as<SubstrateTileType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SubstrateTileType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SubstrateTileType & type is null", +[](void* o, void* s) { return as<SubstrateTileType>(s).swap(as<SubstrateTileType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SubstrateTileType_reset(void* self) { guarded(+[](void* s) { return as<SubstrateTileType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTileType_is_occurs_ok(void* self) { return as<SubstrateTileType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_SubstrateTileType_get_TileWeight(void* self) { return as<SubstrateTileType>(self).get_TileWeight(); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTileType_set_TileWeight(void* self, double value) { return as<SubstrateTileType>(self).set_TileWeight(value); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTileType_isset_TileWeight(void* self) { return as<SubstrateTileType>(self).isset_TileWeight(); }
VYR_FLAT(void) CSharp_SubstrateTileType_unset_TileWeight(void* self) { as<SubstrateTileType>(self).unset_TileWeight(); }
VYR_FLAT(char16_t*) CSharp_SubstrateTileType_get_TileType(void* self) { return new_string(as<SubstrateTileType>(self).get_TileType()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTileType_set_TileType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SubstrateTileType>(s).set_TileType(v); }); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTileType_isset_TileType(void* self) { return as<SubstrateTileType>(self).isset_TileType(); }
VYR_FLAT(void) CSharp_SubstrateTileType_unset_TileType(void* self) { as<SubstrateTileType>(self).unset_TileType(); }

// SubstrateFilmType
VYR_FLAT(void*) CSharp_new_SubstrateFilmType__SWIG_0() { return make<SubstrateFilmType>(); }
VYR_FLAT(void*) CSharp_new_SubstrateFilmType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateFilmType const & type is null", &copy<SubstrateFilmType>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateFilmType(void* self) { destroy<SubstrateFilmType>(self); }
VYR_FLAT(void*) CSharp_SubstrateFilmTypeUpcast(void* self) { return upcast<SubstrateFilmType, SubstrateType>(self); }
VYR_FLAT(const char*) CSharp_SubstrateFilmType_id_get() { return SubstrateFilmType::id; }
VYR_FLAT(void) CSharp_SubstrateFilmType_id_set(const char* identity) { set_identity(&SubstrateFilmType::id, identity); }
VYR_FLAT(void*) CSharp_SubstrateFilmType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SubstrateFilmType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SubstrateFilmType_getid(void* self) { return new_string(as<SubstrateFilmType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateFilmType_has_id(void* self, const char* identity) { return as<SubstrateFilmType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SubstrateFilmType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SubstrateFilmType & type is null", +[](void* o, void* s) { return as<SubstrateFilmType>(s).swap(as<SubstrateFilmType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SubstrateFilmType_reset(void* self) { guarded(+[](void* s) { return as<SubstrateFilmType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SubstrateFilmType_is_occurs_ok(void* self) { return as<SubstrateFilmType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_SubstrateFilmType_get_FilmWeight(void* self) { return as<SubstrateFilmType>(self).get_FilmWeight(); }
VYR_FLAT(std::int32_t) CSharp_SubstrateFilmType_set_FilmWeight(void* self, double value) { return as<SubstrateFilmType>(self).set_FilmWeight(value); }
VYR_FLAT(std::int32_t) CSharp_SubstrateFilmType_isset_FilmWeight(void* self) { return as<SubstrateFilmType>(self).isset_FilmWeight(); }
VYR_FLAT(void) CSharp_SubstrateFilmType_unset_FilmWeight(void* self) { as<SubstrateFilmType>(self).unset_FilmWeight(); }
VYR_FLAT(char16_t*) CSharp_SubstrateFilmType_get_FilmType(void* self) { return new_string(as<SubstrateFilmType>(self).get_FilmType()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateFilmType_set_FilmType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SubstrateFilmType>(s).set_FilmType(v); }); }
VYR_FLAT(std::int32_t) CSharp_SubstrateFilmType_isset_FilmType(void* self) { return as<SubstrateFilmType>(self).isset_FilmType(); }
VYR_FLAT(void) CSharp_SubstrateFilmType_unset_FilmType(void* self) { as<SubstrateFilmType>(self).unset_FilmType(); }

// SubstrateTextileType
VYR_FLAT(void*) CSharp_new_SubstrateTextileType__SWIG_0() { return make<SubstrateTextileType>(); }
VYR_FLAT(void*) CSharp_new_SubstrateTextileType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateTextileType const & type is null", &copy<SubstrateTextileType>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateTextileType(void* self) { destroy<SubstrateTextileType>(self); }
VYR_FLAT(void*) CSharp_SubstrateTextileTypeUpcast(void* self) { return upcast<SubstrateTextileType, SubstrateType>(self); }
VYR_FLAT(const char*) CSharp_SubstrateTextileType_id_get() { return SubstrateTextileType::id; }
VYR_FLAT(void) CSharp_SubstrateTextileType_id_set(const char* identity) { set_identity(&SubstrateTextileType::id, identity); }
VYR_FLAT(void*) CSharp_SubstrateTextileType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SubstrateTextileType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SubstrateTextileType_getid(void* self) { return new_string(as<SubstrateTextileType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTextileType_has_id(void* self, const char* identity) { return as<SubstrateTextileType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SubstrateTextileType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SubstrateTextileType & type is null", +[](void* o, void* s) { return as<SubstrateTextileType>(s).swap(as<SubstrateTextileType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SubstrateTextileType_reset(void* self) { guarded(+[](void* s) { return as<SubstrateTextileType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTextileType_is_occurs_ok(void* self) { return as<SubstrateTextileType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_SubstrateTextileType_get_TextileWeight(void* self) { return as<SubstrateTextileType>(self).get_TextileWeight(); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTextileType_set_TextileWeight(void* self, double value) { return as<SubstrateTextileType>(self).set_TextileWeight(value); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTextileType_isset_TextileWeight(void* self) { return as<SubstrateTextileType>(self).isset_TextileWeight(); }
VYR_FLAT(void) CSharp_SubstrateTextileType_unset_TextileWeight(void* self) { as<SubstrateTextileType>(self).unset_TextileWeight(); }
VYR_FLAT(char16_t*) CSharp_SubstrateTextileType_get_TextileType(void* self) { return new_string(as<SubstrateTextileType>(self).get_TextileType()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTextileType_set_TextileType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SubstrateTextileType>(s).set_TextileType(v); }); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTextileType_isset_TextileType(void* self) { return as<SubstrateTextileType>(self).isset_TextileType(); }
VYR_FLAT(void) CSharp_SubstrateTextileType_unset_TextileType(void* self) { as<SubstrateTextileType>(self).unset_TextileType(); }

// SubstratePaper
VYR_FLAT(void*) CSharp_new_SubstratePaper__SWIG_0() { return make<SubstratePaper>(); }
VYR_FLAT(void*) CSharp_new_SubstratePaper__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstratePaper const & type is null", &copy<SubstratePaper>, source); }
VYR_FLAT(void) CSharp_delete_SubstratePaper(void* self) { destroy<SubstratePaper>(self); }
VYR_FLAT(void*) CSharp_SubstratePaperUpcast(void* self) { return upcast<SubstratePaper, SubstratePaperType>(self); }
VYR_FLAT(void*) CSharp_SubstratePaper_ns_map() { return reference(*SubstratePaper::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_SubstratePaper_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstratePaper>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_SubstratePaper_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<SubstratePaper>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_SubstratePaper_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstratePaper>(s).marshal(p); }, self, path); }

// SubstrateGeneric
VYR_FLAT(void*) CSharp_new_SubstrateGeneric__SWIG_0() { return make<SubstrateGeneric>(); }
VYR_FLAT(void*) CSharp_new_SubstrateGeneric__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateGeneric const & type is null", &copy<SubstrateGeneric>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateGeneric(void* self) { destroy<SubstrateGeneric>(self); }
VYR_FLAT(void*) CSharp_SubstrateGenericUpcast(void* self) { return upcast<SubstrateGeneric, SubstrateGenericType>(self); }
VYR_FLAT(void*) CSharp_SubstrateGeneric_ns_map() { return reference(*SubstrateGeneric::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateGeneric_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateGeneric>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_SubstrateGeneric_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<SubstrateGeneric>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_SubstrateGeneric_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateGeneric>(s).marshal(p); }, self, path); }

// SubstrateMetal
VYR_FLAT(void*) CSharp_new_SubstrateMetal__SWIG_0() { return make<SubstrateMetal>(); }
VYR_FLAT(void*) CSharp_new_SubstrateMetal__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateMetal const & type is null", &copy<SubstrateMetal>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateMetal(void* self) { destroy<SubstrateMetal>(self); }
VYR_FLAT(void*) CSharp_SubstrateMetalUpcast(void* self) { return upcast<SubstrateMetal, SubstrateMetalType>(self); }
VYR_FLAT(void*) CSharp_SubstrateMetal_ns_map() { return reference(*SubstrateMetal::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateMetal_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateMetal>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_SubstrateMetal_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<SubstrateMetal>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_SubstrateMetal_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateMetal>(s).marshal(p); }, self, path); }

// SubstratePlastic
VYR_FLAT(void*) CSharp_new_SubstratePlastic__SWIG_0() { return make<SubstratePlastic>(); }
VYR_FLAT(void*) CSharp_new_SubstratePlastic__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstratePlastic const & type is null", &copy<SubstratePlastic>, source); }
VYR_FLAT(void) CSharp_delete_SubstratePlastic(void* self) { destroy<SubstratePlastic>(self); }
VYR_FLAT(void*) CSharp_SubstratePlasticUpcast(void* self) { return upcast<SubstratePlastic, SubstratePlasticType>(self); }
VYR_FLAT(void*) CSharp_SubstratePlastic_ns_map() { return reference(*SubstratePlastic::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_SubstratePlastic_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstratePlastic>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_SubstratePlastic_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<SubstratePlastic>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_SubstratePlastic_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstratePlastic>(s).marshal(p); }, self, path); }

// SubstrateWood
VYR_FLAT(void*) CSharp_new_SubstrateWood__SWIG_0() { return make<SubstrateWood>(); }
VYR_FLAT(void*) CSharp_new_SubstrateWood__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateWood const & type is null", &copy<SubstrateWood>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateWood(void* self) { destroy<SubstrateWood>(self); }
VYR_FLAT(void*) CSharp_SubstrateWoodUpcast(void* self) { return upcast<SubstrateWood, SubstrateWoodType>(self); }
VYR_FLAT(void*) CSharp_SubstrateWood_ns_map() { return reference(*SubstrateWood::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateWood_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateWood>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_SubstrateWood_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<SubstrateWood>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_SubstrateWood_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateWood>(s).marshal(p); }, self, path); }

// SubstrateVinyl
VYR_FLAT(void*) CSharp_new_SubstrateVinyl__SWIG_0() { return make<SubstrateVinyl>(); }
VYR_FLAT(void*) CSharp_new_SubstrateVinyl__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateVinyl const & type is null", &copy<SubstrateVinyl>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateVinyl(void* self) { destroy<SubstrateVinyl>(self); }
VYR_FLAT(void*) CSharp_SubstrateVinylUpcast(void* self) { return upcast<SubstrateVinyl, SubstrateVinylType>(self); }
VYR_FLAT(void*) CSharp_SubstrateVinyl_ns_map() { return reference(*SubstrateVinyl::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateVinyl_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateVinyl>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_SubstrateVinyl_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<SubstrateVinyl>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_SubstrateVinyl_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateVinyl>(s).marshal(p); }, self, path); }

// SubstrateTile
VYR_FLAT(void*) CSharp_new_SubstrateTile__SWIG_0() { return make<SubstrateTile>(); }
VYR_FLAT(void*) CSharp_new_SubstrateTile__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateTile const & type is null", &copy<SubstrateTile>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateTile(void* self) { destroy<SubstrateTile>(self); }
VYR_FLAT(void*) CSharp_SubstrateTileUpcast(void* self) { return upcast<SubstrateTile, SubstrateTileType>(self); }
VYR_FLAT(void*) CSharp_SubstrateTile_ns_map() { return reference(*SubstrateTile::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTile_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateTile>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTile_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<SubstrateTile>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTile_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateTile>(s).marshal(p); }, self, path); }

// SubstrateFilm
VYR_FLAT(void*) CSharp_new_SubstrateFilm__SWIG_0() { return make<SubstrateFilm>(); }
VYR_FLAT(void*) CSharp_new_SubstrateFilm__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateFilm const & type is null", &copy<SubstrateFilm>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateFilm(void* self) { destroy<SubstrateFilm>(self); }
VYR_FLAT(void*) CSharp_SubstrateFilmUpcast(void* self) { return upcast<SubstrateFilm, SubstrateFilmType>(self); }
VYR_FLAT(void*) CSharp_SubstrateFilm_ns_map() { return reference(*SubstrateFilm::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateFilm_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateFilm>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_SubstrateFilm_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<SubstrateFilm>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_SubstrateFilm_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateFilm>(s).marshal(p); }, self, path); }

// SubstrateTextile
VYR_FLAT(void*) CSharp_new_SubstrateTextile__SWIG_0() { return make<SubstrateTextile>(); }
VYR_FLAT(void*) CSharp_new_SubstrateTextile__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SubstrateTextile const & type is null", &copy<SubstrateTextile>, source); }
VYR_FLAT(void) CSharp_delete_SubstrateTextile(void* self) { destroy<SubstrateTextile>(self); }
VYR_FLAT(void*) CSharp_SubstrateTextileUpcast(void* self) { return upcast<SubstrateTextile, SubstrateTextileType>(self); }
VYR_FLAT(void*) CSharp_SubstrateTextile_ns_map() { return reference(*SubstrateTextile::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTextile_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateTextile>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTextile_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<SubstrateTextile>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_SubstrateTextile_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SubstrateTextile>(s).marshal(p); }, self, path); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
