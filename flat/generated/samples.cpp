// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in samples.h.

#include "flat/call.h"
#include "schema/generated/groups.h"
#include "schema/generated/header.h"
#include "schema/generated/samples.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// SampleType
VYR_FLAT(void*) CSharp_new_SampleType__SWIG_0() { return make<SampleType>(); }
VYR_FLAT(void*) CSharp_new_SampleType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SampleType const & type is null", &copy<SampleType>, source); }
VYR_FLAT(void) CSharp_delete_SampleType(void* self) { destroy<SampleType>(self); }
VYR_FLAT(const char*) CSharp_SampleType_id_get() { return SampleType::id; }
VYR_FLAT(void) CSharp_SampleType_id_set(const char* identity) { set_identity(&SampleType::id, identity); }
VYR_FLAT(void*) CSharp_SampleType_factory(std::int32_t ns_id, const char* name) { return checked(k_null_string, +[](const char* n, std::int32_t i) -> void* { return SampleType::factory(i, n); }, name, ns_id); }
VYR_FLAT(void*) CSharp_SampleType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SampleType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SampleType_getid(void* self) { return new_string(as<SampleType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SampleType_has_id(void* self, const char* identity) { return as<SampleType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SampleType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SampleType & type is null", +[](void* o, void* s) { return as<SampleType>(s).swap(as<SampleType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SampleType_reset(void* self) { guarded(+[](void* s) { return as<SampleType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SampleType_is_occurs_ok(void* self) { return as<SampleType>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_SampleType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<SampleType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_SampleType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<SampleType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_SampleType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<SampleType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_SampleType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<SampleType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SampleType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<SampleType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_SampleType_back_CustomAttribute(void* self) { return &as<SampleType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_SampleType_delete_CustomAttribute(void* self, std::uint32_t index) { as<SampleType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_SampleType_clear_CustomAttribute(void* self) { as<SampleType>(self).clear_CustomAttribute(); }
VYR_FLAT(void*) CSharp_SampleType_get_Substrate__SWIG_0(void* self) { return &as<SampleType>(self).get_Substrate(); }
VYR_FLAT(void*) CSharp_SampleType_assign_Substrate(void* self, void* value) { return checked("com_vyrgraph_v2::sg_Substrate const & type is null", +[](void* v, void* s) -> void* { return &as<SampleType>(s).assign_Substrate(as<sg_Substrate>(v)); }, value, self); }
VYR_FLAT(char16_t*) CSharp_SampleType_get_Backing(void* self) { return new_string(as<SampleType>(self).get_Backing()); }
VYR_FLAT(std::int32_t) CSharp_SampleType_set_Backing(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SampleType>(s).set_Backing(v); }); }
VYR_FLAT(std::int32_t) CSharp_SampleType_getenum_Backing(void* self) { return as<SampleType>(self).getenum_Backing(); }
VYR_FLAT(std::int32_t) CSharp_SampleType_setenum_Backing(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<SampleType>(s).setenum_Backing(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_SampleType_isset_Backing(void* self) { return as<SampleType>(self).isset_Backing(); }
VYR_FLAT(void) CSharp_SampleType_unset_Backing(void* self) { as<SampleType>(self).unset_Backing(); }
VYR_FLAT(char16_t*) CSharp_SampleType_get_Manufacturer(void* self) { return new_string(as<SampleType>(self).get_Manufacturer()); }
VYR_FLAT(std::int32_t) CSharp_SampleType_set_Manufacturer(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SampleType>(s).set_Manufacturer(v); }); }
VYR_FLAT(std::int32_t) CSharp_SampleType_isset_Manufacturer(void* self) { return as<SampleType>(self).isset_Manufacturer(); }
VYR_FLAT(void) CSharp_SampleType_unset_Manufacturer(void* self) { as<SampleType>(self).unset_Manufacturer(); }
VYR_FLAT(void*) CSharp_SampleType_get_ProductionDate(void* self) { return reference(as<SampleType>(self).get_ProductionDate()); }
VYR_FLAT(std::int32_t) CSharp_SampleType_set_ProductionDate(void* self, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s) { return as<SampleType>(s).set_ProductionDate(as<lmx::c_datetime>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_SampleType_isset_ProductionDate(void* self) { return as<SampleType>(self).isset_ProductionDate(); }
VYR_FLAT(void) CSharp_SampleType_unset_ProductionDate(void* self) { as<SampleType>(self).unset_ProductionDate(); }
VYR_FLAT(char16_t*) CSharp_SampleType_get_SerialNumber(void* self) { return new_string(as<SampleType>(self).get_SerialNumber()); }
VYR_FLAT(std::int32_t) CSharp_SampleType_set_SerialNumber(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SampleType>(s).set_SerialNumber(v); }); }
VYR_FLAT(std::int32_t) CSharp_SampleType_isset_SerialNumber(void* self) { return as<SampleType>(self).isset_SerialNumber(); }
VYR_FLAT(void) CSharp_SampleType_unset_SerialNumber(void* self) { as<SampleType>(self).unset_SerialNumber(); }
VYR_FLAT(char16_t*) CSharp_SampleType_get_Comment(void* self) { return new_string(as<SampleType>(self).get_Comment()); }
VYR_FLAT(std::int32_t) CSharp_SampleType_set_Comment(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SampleType>(s).set_Comment(v); }); }
VYR_FLAT(std::int32_t) CSharp_SampleType_isset_Comment(void* self) { return as<SampleType>(self).isset_Comment(); }
VYR_FLAT(void) CSharp_SampleType_unset_Comment(void* self) { as<SampleType>(self).unset_Comment(); }

// Sample
VYR_FLAT(void) CSharp_delete_Sample(void* self) { destroy<Sample>(self); }
VYR_FLAT(void*) CSharp_SampleUpcast(void* self) { return upcast<Sample, SampleType>(self); }

// Specification
VYR_FLAT(void*) CSharp_new_Specification__SWIG_0() { return make<Specification>(); }
VYR_FLAT(void*) CSharp_new_Specification__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Specification const & type is null", &copy<Specification>, source); }
VYR_FLAT(void) CSharp_delete_Specification(void* self) { destroy<Specification>(self); }
VYR_FLAT(void) CSharp_Specification_swap(void* self, void* other) { checked("com_vyrgraph_v2::Specification & type is null", +[](void* o, void* s) { return as<Specification>(s).swap(as<Specification>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Specification_reset(void* self) { guarded(+[](void* s) { return as<Specification>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Specification_is_occurs_ok(void* self) { return as<Specification>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_Specification_get_SampleWidth(void* self) { return as<Specification>(self).get_SampleWidth(); }
VYR_FLAT(std::int32_t) CSharp_Specification_set_SampleWidth(void* self, double value) { return as<Specification>(self).set_SampleWidth(value); }
VYR_FLAT(double) CSharp_Specification_get_SampleHeight(void* self) { return as<Specification>(self).get_SampleHeight(); }
VYR_FLAT(std::int32_t) CSharp_Specification_set_SampleHeight(void* self, double value) { return as<Specification>(self).set_SampleHeight(value); }

// SampleSpotType
VYR_FLAT(void*) CSharp_new_SampleSpotType__SWIG_0() { return make<SampleSpotType>(); }
VYR_FLAT(void*) CSharp_new_SampleSpotType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SampleSpotType const & type is null", &copy<SampleSpotType>, source); }
VYR_FLAT(void) CSharp_delete_SampleSpotType(void* self) { destroy<SampleSpotType>(self); }
VYR_FLAT(void*) CSharp_SampleSpotTypeUpcast(void* self) { return upcast<SampleSpotType, SampleType>(self); }
VYR_FLAT(const char*) CSharp_SampleSpotType_id_get() { return SampleSpotType::id; }
VYR_FLAT(void) CSharp_SampleSpotType_id_set(const char* identity) { set_identity(&SampleSpotType::id, identity); }
VYR_FLAT(void*) CSharp_SampleSpotType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SampleSpotType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SampleSpotType_getid(void* self) { return new_string(as<SampleSpotType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SampleSpotType_has_id(void* self, const char* identity) { return as<SampleSpotType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SampleSpotType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SampleSpotType & type is null", +[](void* o, void* s) { return as<SampleSpotType>(s).swap(as<SampleSpotType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SampleSpotType_reset(void* self) { guarded(+[](void* s) { return as<SampleSpotType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SampleSpotType_is_occurs_ok(void* self) { return as<SampleSpotType>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_SampleSpotType_get_Specification__SWIG_0(void* self) { return &as<SampleSpotType>(self).get_Specification(); }
VYR_FLAT(void*) CSharp_SampleSpotType_assign_Specification(void* self, void* value) { return checked("com_vyrgraph_v2::Specification const & type is null", +[](void* v, void* s) -> void* { return &as<SampleSpotType>(s).assign_Specification(as<Specification>(v)); }, value, self); }

// SampleTargetType
VYR_FLAT(void*) CSharp_new_SampleTargetType__SWIG_0() { return make<SampleTargetType>(); }
VYR_FLAT(void*) CSharp_new_SampleTargetType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SampleTargetType const & type is null", &copy<SampleTargetType>, source); }
VYR_FLAT(void) CSharp_delete_SampleTargetType(void* self) { destroy<SampleTargetType>(self); }
VYR_FLAT(void*) CSharp_SampleTargetTypeUpcast(void* self) { return upcast<SampleTargetType, SampleType>(self); }
VYR_FLAT(const char*) CSharp_SampleTargetType_id_get() { return SampleTargetType::id; }
VYR_FLAT(void) CSharp_SampleTargetType_id_set(const char* identity) { set_identity(&SampleTargetType::id, identity); }
VYR_FLAT(void*) CSharp_SampleTargetType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<SampleTargetType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_SampleTargetType_getid(void* self) { return new_string(as<SampleTargetType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_SampleTargetType_has_id(void* self, const char* identity) { return as<SampleTargetType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_SampleTargetType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SampleTargetType & type is null", +[](void* o, void* s) { return as<SampleTargetType>(s).swap(as<SampleTargetType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SampleTargetType_reset(void* self) { guarded(+[](void* s) { return as<SampleTargetType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SampleTargetType_is_occurs_ok(void* self) { return as<SampleTargetType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_SampleTargetType_get_CustomTarget(void* self) { return new_string(as<SampleTargetType>(self).get_CustomTarget()); }
VYR_FLAT(std::int32_t) CSharp_SampleTargetType_set_CustomTarget(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SampleTargetType>(s).set_CustomTarget(v); }); }
VYR_FLAT(std::int32_t) CSharp_SampleTargetType_isset_CustomTarget(void* self) { return as<SampleTargetType>(self).isset_CustomTarget(); }
VYR_FLAT(void) CSharp_SampleTargetType_unset_CustomTarget(void* self) { as<SampleTargetType>(self).unset_CustomTarget(); }
VYR_FLAT(char16_t*) CSharp_SampleTargetType_get_Target(void* self) { return new_string(as<SampleTargetType>(self).get_Target()); }
VYR_FLAT(std::int32_t) CSharp_SampleTargetType_set_Target(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SampleTargetType>(s).set_Target(v); }); }
VYR_FLAT(std::int32_t) CSharp_SampleTargetType_getenum_Target(void* self) { return as<SampleTargetType>(self).getenum_Target(); }
VYR_FLAT(std::int32_t) CSharp_SampleTargetType_setenum_Target(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<SampleTargetType>(s).setenum_Target(n); }, self, number); }

// SampleSpot
VYR_FLAT(void*) CSharp_new_SampleSpot__SWIG_0() { return make<SampleSpot>(); }
VYR_FLAT(void*) CSharp_new_SampleSpot__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SampleSpot const & type is null", &copy<SampleSpot>, source); }
VYR_FLAT(void) CSharp_delete_SampleSpot(void* self) { destroy<SampleSpot>(self); }
VYR_FLAT(void*) CSharp_SampleSpotUpcast(void* self) { return upcast<SampleSpot, SampleSpotType>(self); }
VYR_FLAT(void*) CSharp_SampleSpot_ns_map() { return reference(*SampleSpot::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_SampleSpot_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SampleSpot>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_SampleSpot_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<SampleSpot>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_SampleSpot_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SampleSpot>(s).marshal(p); }, self, path); }

// SampleTarget
VYR_FLAT(void*) CSharp_new_SampleTarget__SWIG_0() { return make<SampleTarget>(); }
VYR_FLAT(void*) CSharp_new_SampleTarget__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SampleTarget const & type is null", &copy<SampleTarget>, source); }
VYR_FLAT(void) CSharp_delete_SampleTarget(void* self) { destroy<SampleTarget>(self); }
VYR_FLAT(void*) CSharp_SampleTargetUpcast(void* self) { return upcast<SampleTarget, SampleTargetType>(self); }
VYR_FLAT(void*) CSharp_SampleTarget_ns_map() { return reference(*SampleTarget::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_SampleTarget_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SampleTarget>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_SampleTarget_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<SampleTarget>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_SampleTarget_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<SampleTarget>(s).marshal(p); }, self, path); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
