// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in conditions.h.

#include "flat/call.h"
#include "schema/generated/conditions.h"
#include "schema/generated/devices.h"
#include "schema/generated/header.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// DeviceFilterType
VYR_FLAT(void*) CSharp_new_DeviceFilterType__SWIG_0() { return make<DeviceFilterType>(); }
VYR_FLAT(void*) CSharp_new_DeviceFilterType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::DeviceFilterType const & type is null", &copy<DeviceFilterType>, source); }
VYR_FLAT(void) CSharp_delete_DeviceFilterType(void* self) { destroy<DeviceFilterType>(self); }
VYR_FLAT(void) CSharp_DeviceFilterType_swap(void* self, void* other) { checked("com_vyrgraph_v2::DeviceFilterType & type is null", +[](void* o, void* s) { return as<DeviceFilterType>(s).swap(as<DeviceFilterType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_DeviceFilterType_reset(void* self) { guarded(+[](void* s) { return as<DeviceFilterType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_DeviceFilterType_is_occurs_ok(void* self) { return as<DeviceFilterType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_DeviceFilterType_get_CustomOrPartial(void* self) { return new_string(as<DeviceFilterType>(self).get_CustomOrPartial()); }
VYR_FLAT(std::int32_t) CSharp_DeviceFilterType_set_CustomOrPartial(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<DeviceFilterType>(s).set_CustomOrPartial(v); }); }
VYR_FLAT(std::int32_t) CSharp_DeviceFilterType_isset_CustomOrPartial(void* self) { return as<DeviceFilterType>(self).isset_CustomOrPartial(); }
VYR_FLAT(void) CSharp_DeviceFilterType_unset_CustomOrPartial(void* self) { as<DeviceFilterType>(self).unset_CustomOrPartial(); }
VYR_FLAT(char16_t*) CSharp_DeviceFilterType_get_DeviceFilterType(void* self) { return new_string(as<DeviceFilterType>(self).get_DeviceFilterType()); }
VYR_FLAT(std::int32_t) CSharp_DeviceFilterType_set_DeviceFilterType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<DeviceFilterType>(s).set_DeviceFilterType(v); }); }
VYR_FLAT(std::int32_t) CSharp_DeviceFilterType_getenum_DeviceFilterType(void* self) { return as<DeviceFilterType>(self).getenum_DeviceFilterType(); }
VYR_FLAT(std::int32_t) CSharp_DeviceFilterType_setenum_DeviceFilterType(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<DeviceFilterType>(s).setenum_DeviceFilterType(n); }, self, number); }

// DeviceFilter
VYR_FLAT(void*) CSharp_new_DeviceFilter__SWIG_0() { return make<DeviceFilter>(); }
VYR_FLAT(void*) CSharp_new_DeviceFilter__SWIG_1(void* source) { return checked("com_vyrgraph_v2::DeviceFilter const & type is null", &copy<DeviceFilter>, source); }
VYR_FLAT(void) CSharp_delete_DeviceFilter(void* self) { destroy<DeviceFilter>(self); }
VYR_FLAT(void*) CSharp_DeviceFilterUpcast(void* self) { return upcast<DeviceFilter, DeviceFilterType>(self); }
VYR_FLAT(void) CSharp_DeviceFilter_swap(void* self, void* other) { checked("com_vyrgraph_v2::DeviceFilter & type is null", +[](void* o, void* s) { return as<DeviceFilter>(s).swap(as<DeviceFilter>(o)); }, other, self); }
VYR_FLAT(void) CSharp_DeviceFilter_reset(void* self) { guarded(+[](void* s) { return as<DeviceFilter>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_DeviceFilter_is_occurs_ok(void* self) { return as<DeviceFilter>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_DeviceFilter_set_DeviceFilterType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<DeviceFilter>(s).set_DeviceFilterType(v); }); }
VYR_FLAT(std::int32_t) CSharp_DeviceFilter_setenum_DeviceFilterType(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<DeviceFilter>(s).setenum_DeviceFilterType(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_DeviceFilter_isnil_DeviceFilter(void* self) { return as<DeviceFilter>(self).isnil_DeviceFilter(); }
VYR_FLAT(void) CSharp_DeviceFilter_setnil_DeviceFilter(void* self) { as<DeviceFilter>(self).setnil_DeviceFilter(); }

// DevicePolarization
VYR_FLAT(void*) CSharp_new_DevicePolarization__SWIG_0() { return make<DevicePolarization>(); }
VYR_FLAT(void*) CSharp_new_DevicePolarization__SWIG_1(void* source) { return checked("com_vyrgraph_v2::DevicePolarization const & type is null", &copy<DevicePolarization>, source); }
VYR_FLAT(void) CSharp_delete_DevicePolarization(void* self) { destroy<DevicePolarization>(self); }
VYR_FLAT(void) CSharp_DevicePolarization_swap(void* self, void* other) { checked("com_vyrgraph_v2::DevicePolarization & type is null", +[](void* o, void* s) { return as<DevicePolarization>(s).swap(as<DevicePolarization>(o)); }, other, self); }
VYR_FLAT(void) CSharp_DevicePolarization_reset(void* self) { guarded(+[](void* s) { return as<DevicePolarization>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_DevicePolarization_is_occurs_ok(void* self) { return as<DevicePolarization>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_DevicePolarization_get_DevicePolarization(void* self) { return as<DevicePolarization>(self).get_DevicePolarization(); }
VYR_FLAT(std::int32_t) CSharp_DevicePolarization_set_DevicePolarization(void* self, std::uint32_t value) { return as<DevicePolarization>(self).set_DevicePolarization(to_bool(value)); }
VYR_FLAT(std::int32_t) CSharp_DevicePolarization_isnil_DevicePolarization(void* self) { return as<DevicePolarization>(self).isnil_DevicePolarization(); }
VYR_FLAT(void) CSharp_DevicePolarization_setnil_DevicePolarization(void* self) { as<DevicePolarization>(self).setnil_DevicePolarization(); }

// ColorSpaceSpecificationType
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationType__SWIG_0() { return make<ColorSpaceSpecificationType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationType const & type is null", &copy<ColorSpaceSpecificationType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationType(void* self) { destroy<ColorSpaceSpecificationType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceSpecificationType_id_get() { return ColorSpaceSpecificationType::id; }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationType_id_set(const char* identity) { set_identity(&ColorSpaceSpecificationType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_factory(std::int32_t ns_id, const char* name) { return checked(k_null_string, +[](const char* n, std::int32_t i) -> void* { return ColorSpaceSpecificationType::factory(i, n); }, name, ns_id); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceSpecificationType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceSpecificationType_getid(void* self) { return new_string(as<ColorSpaceSpecificationType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_has_id(void* self, const char* identity) { return as<ColorSpaceSpecificationType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationType & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationType>(s).swap(as<ColorSpaceSpecificationType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationType_get_Comments(void* self) { return new_string(as<ColorSpaceSpecificationType>(self).get_Comments()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_set_Comments(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationType>(s).set_Comments(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_isset_Comments(void* self) { return as<ColorSpaceSpecificationType>(self).isset_Comments(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationType_unset_Comments(void* self) { as<ColorSpaceSpecificationType>(self).unset_Comments(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationType_get_UniqueID(void* self) { return new_string(as<ColorSpaceSpecificationType>(self).get_UniqueID()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_set_UniqueID(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationType>(s).set_UniqueID(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_isset_UniqueID(void* self) { return as<ColorSpaceSpecificationType>(self).isset_UniqueID(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationType_unset_UniqueID(void* self) { as<ColorSpaceSpecificationType>(self).unset_UniqueID(); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceSpecificationType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceSpecificationType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSpaceSpecificationType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSpaceSpecificationType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<ColorSpaceSpecificationType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSpaceSpecificationType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_back_CustomAttribute(void* self) { return &as<ColorSpaceSpecificationType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationType_delete_CustomAttribute(void* self, std::uint32_t index) { as<ColorSpaceSpecificationType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationType_clear_CustomAttribute(void* self) { as<ColorSpaceSpecificationType>(self).clear_CustomAttribute(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_get_Profile__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSpaceSpecificationType>(s).get_Profile(); }, self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_assign_Profile(void* self, void* value) { return checked("com_vyrgraph_v2::ProfileType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationType>(s).assign_Profile(as<ProfileType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_isset_Profile(void* self) { return as<ColorSpaceSpecificationType>(self).isset_Profile(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationType_unset_Profile(void* self) { as<ColorSpaceSpecificationType>(self).unset_Profile(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_get_Device__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSpaceSpecificationType>(s).get_Device(); }, self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_assign_Device(void* self, void* value) { return checked("com_vyrgraph_v2::DeviceType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationType>(s).assign_Device(as<DeviceType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_isset_Device(void* self) { return as<ColorSpaceSpecificationType>(self).isset_Device(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationType_unset_Device(void* self) { as<ColorSpaceSpecificationType>(self).unset_Device(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_get_DeviceFilter__SWIG_0(void* self) { return &as<ColorSpaceSpecificationType>(self).get_DeviceFilter(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_assign_DeviceFilter(void* self, void* value) { return checked("com_vyrgraph_v2::DeviceFilter const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationType>(s).assign_DeviceFilter(as<DeviceFilter>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_isset_DeviceFilter(void* self) { return as<ColorSpaceSpecificationType>(self).isset_DeviceFilter(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationType_unset_DeviceFilter(void* self) { as<ColorSpaceSpecificationType>(self).unset_DeviceFilter(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_get_DevicePolarization__SWIG_0(void* self) { return &as<ColorSpaceSpecificationType>(self).get_DevicePolarization(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_assign_DevicePolarization(void* self, void* value) { return checked("com_vyrgraph_v2::DevicePolarization const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationType>(s).assign_DevicePolarization(as<DevicePolarization>(v)); }, value, self); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceSpecificationType_size_ChangeHistory(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceSpecificationType>(self).size_ChangeHistory()); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationType_get_ChangeHistory(void* self, std::uint32_t index) { return reference(as<ColorSpaceSpecificationType>(self).get_ChangeHistory(index)); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_set_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<ColorSpaceSpecificationType>(s).set_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_append_ChangeHistory(void* self, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s) { return as<ColorSpaceSpecificationType>(s).append_ChangeHistory(as<lmx::c_datetime>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationType_insert_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<ColorSpaceSpecificationType>(s).insert_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationType_delete_ChangeHistory(void* self, std::uint32_t index) { as<ColorSpaceSpecificationType>(self).delete_ChangeHistory(index); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationType_clear_ChangeHistory(void* self) { as<ColorSpaceSpecificationType>(self).clear_ChangeHistory(); }

// SpectrumType
VYR_FLAT(void*) CSharp_new_SpectrumType__SWIG_0() { return make<SpectrumType>(); }
VYR_FLAT(void*) CSharp_new_SpectrumType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SpectrumType const & type is null", &copy<SpectrumType>, source); }
VYR_FLAT(void) CSharp_delete_SpectrumType(void* self) { destroy<SpectrumType>(self); }
VYR_FLAT(void) CSharp_SpectrumType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SpectrumType & type is null", +[](void* o, void* s) { return as<SpectrumType>(s).swap(as<SpectrumType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SpectrumType_reset(void* self) { guarded(+[](void* s) { return as<SpectrumType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SpectrumType_is_occurs_ok(void* self) { return as<SpectrumType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_SpectrumType_get_CustomTypeName(void* self) { return new_string(as<SpectrumType>(self).get_CustomTypeName()); }
VYR_FLAT(std::int32_t) CSharp_SpectrumType_set_CustomTypeName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SpectrumType>(s).set_CustomTypeName(v); }); }
VYR_FLAT(std::int32_t) CSharp_SpectrumType_isset_CustomTypeName(void* self) { return as<SpectrumType>(self).isset_CustomTypeName(); }
VYR_FLAT(void) CSharp_SpectrumType_unset_CustomTypeName(void* self) { as<SpectrumType>(self).unset_CustomTypeName(); }
VYR_FLAT(char16_t*) CSharp_SpectrumType_get_SpectrumType(void* self) { return new_string(as<SpectrumType>(self).get_SpectrumType()); }
VYR_FLAT(std::int32_t) CSharp_SpectrumType_set_SpectrumType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SpectrumType>(s).set_SpectrumType(v); }); }
VYR_FLAT(std::int32_t) CSharp_SpectrumType_getenum_SpectrumType(void* self) { return as<SpectrumType>(self).getenum_SpectrumType(); }
VYR_FLAT(std::int32_t) CSharp_SpectrumType_setenum_SpectrumType(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<SpectrumType>(s).setenum_SpectrumType(n); }, self, number); }

// ColorSpaceSpecificationSpectrumType
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumType__SWIG_0() { return make<ColorSpaceSpecificationSpectrumType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumType const & type is null", &copy<ColorSpaceSpecificationSpectrumType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationSpectrumType(void* self) { destroy<ColorSpaceSpecificationSpectrumType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumTypeUpcast(void* self) { return upcast<ColorSpaceSpecificationSpectrumType, ColorSpaceSpecificationType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceSpecificationSpectrumType_id_get() { return ColorSpaceSpecificationSpectrumType::id; }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumType_id_set(const char* identity) { set_identity(&ColorSpaceSpecificationSpectrumType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumType_factory(std::int32_t ns_id, const char* name) { return checked(k_null_string, +[](const char* n, std::int32_t i) -> void* { return ColorSpaceSpecificationSpectrumType::factory(i, n); }, name, ns_id); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceSpecificationSpectrumType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceSpecificationSpectrumType_getid(void* self) { return new_string(as<ColorSpaceSpecificationSpectrumType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumType_has_id(void* self, const char* identity) { return as<ColorSpaceSpecificationSpectrumType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumType & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationSpectrumType>(s).swap(as<ColorSpaceSpecificationSpectrumType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationSpectrumType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumType_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationSpectrumType>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumType_get_Spectrum__SWIG_0(void* self) { return &as<ColorSpaceSpecificationSpectrumType>(self).get_Spectrum(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumType_assign_Spectrum(void* self, void* value) { return checked("com_vyrgraph_v2::SpectrumType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationSpectrumType>(s).assign_Spectrum(as<SpectrumType>(v)); }, value, self); }

// ColorSpaceSpecificationEmissiveType
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveType__SWIG_0() { return make<ColorSpaceSpecificationEmissiveType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveType const & type is null", &copy<ColorSpaceSpecificationEmissiveType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationEmissiveType(void* self) { destroy<ColorSpaceSpecificationEmissiveType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveTypeUpcast(void* self) { return upcast<ColorSpaceSpecificationEmissiveType, ColorSpaceSpecificationType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceSpecificationEmissiveType_id_get() { return ColorSpaceSpecificationEmissiveType::id; }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveType_id_set(const char* identity) { set_identity(&ColorSpaceSpecificationEmissiveType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveType_factory(std::int32_t ns_id, const char* name) { return checked(k_null_string, +[](const char* n, std::int32_t i) -> void* { return ColorSpaceSpecificationEmissiveType::factory(i, n); }, name, ns_id); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceSpecificationEmissiveType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceSpecificationEmissiveType_getid(void* self) { return new_string(as<ColorSpaceSpecificationEmissiveType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveType_has_id(void* self, const char* identity) { return as<ColorSpaceSpecificationEmissiveType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveType & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationEmissiveType>(s).swap(as<ColorSpaceSpecificationEmissiveType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationEmissiveType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveType_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationEmissiveType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationEmissiveType_get_EmissiveType(void* self) { return new_string(as<ColorSpaceSpecificationEmissiveType>(self).get_EmissiveType()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveType_set_EmissiveType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationEmissiveType>(s).set_EmissiveType(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveType_getenum_EmissiveType(void* self) { return as<ColorSpaceSpecificationEmissiveType>(self).getenum_EmissiveType(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveType_setenum_EmissiveType(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationEmissiveType>(s).setenum_EmissiveType(n); }, self, number); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationEmissiveType_get_EmissiveMode(void* self) { return new_string(as<ColorSpaceSpecificationEmissiveType>(self).get_EmissiveMode()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveType_set_EmissiveMode(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationEmissiveType>(s).set_EmissiveMode(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveType_getenum_EmissiveMode(void* self) { return as<ColorSpaceSpecificationEmissiveType>(self).getenum_EmissiveMode(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveType_setenum_EmissiveMode(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationEmissiveType>(s).setenum_EmissiveMode(n); }, self, number); }

// GeometryChoiceType
VYR_FLAT(void*) CSharp_new_GeometryChoiceType__SWIG_0() { return make<GeometryChoiceType>(); }
VYR_FLAT(void*) CSharp_new_GeometryChoiceType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::GeometryChoiceType const & type is null", &copy<GeometryChoiceType>, source); }
VYR_FLAT(void) CSharp_delete_GeometryChoiceType(void* self) { destroy<GeometryChoiceType>(self); }
VYR_FLAT(void) CSharp_GeometryChoiceType_swap(void* self, void* other) { checked("com_vyrgraph_v2::GeometryChoiceType & type is null", +[](void* o, void* s) { return as<GeometryChoiceType>(s).swap(as<GeometryChoiceType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_GeometryChoiceType_reset(void* self) { guarded(+[](void* s) { return as<GeometryChoiceType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_GeometryChoiceType_is_occurs_ok(void* self) { return as<GeometryChoiceType>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_GeometryChoiceType_getchosen(void* self) { return as<GeometryChoiceType>(self).getchosen(); }
VYR_FLAT(char16_t*) CSharp_GeometryChoiceType_get_SphereGeometry(void* self) { return new_string(as<GeometryChoiceType>(self).get_SphereGeometry()); }
VYR_FLAT(std::int32_t) CSharp_GeometryChoiceType_set_SphereGeometry(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<GeometryChoiceType>(s).set_SphereGeometry(v); }); }
VYR_FLAT(std::int32_t) CSharp_GeometryChoiceType_getenum_SphereGeometry(void* self) { return as<GeometryChoiceType>(self).getenum_SphereGeometry(); }
VYR_FLAT(std::int32_t) CSharp_GeometryChoiceType_setenum_SphereGeometry(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<GeometryChoiceType>(s).setenum_SphereGeometry(n); }, self, number); }
VYR_FLAT(double) CSharp_GeometryChoiceType_get_Angle(void* self) { return as<GeometryChoiceType>(self).get_Angle(); }
VYR_FLAT(std::int32_t) CSharp_GeometryChoiceType_set_Angle(void* self, double value) { return as<GeometryChoiceType>(self).set_Angle(value); }
VYR_FLAT(char16_t*) CSharp_GeometryChoiceType_get_UnknownGeometry(void* self) { return new_string(as<GeometryChoiceType>(self).get_UnknownGeometry()); }
VYR_FLAT(std::int32_t) CSharp_GeometryChoiceType_set_UnknownGeometry(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<GeometryChoiceType>(s).set_UnknownGeometry(v); }); }
VYR_FLAT(void*) CSharp_GeometryChoiceType_get_BSDFAngle__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<GeometryChoiceType>(s).get_BSDFAngle(); }, self); }
VYR_FLAT(void*) CSharp_GeometryChoiceType_assign_BSDFAngle(void* self, void* value) { return checked("com_vyrgraph_v2::BSDFAngle const & type is null", +[](void* v, void* s) -> void* { return &as<GeometryChoiceType>(s).assign_BSDFAngle(as<BSDFAngle>(v)); }, value, self); }

// IlluminationOptionsType
VYR_FLAT(void*) CSharp_new_IlluminationOptionsType__SWIG_0() { return make<IlluminationOptionsType>(); }
VYR_FLAT(void*) CSharp_new_IlluminationOptionsType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::IlluminationOptionsType const & type is null", &copy<IlluminationOptionsType>, source); }
VYR_FLAT(void) CSharp_delete_IlluminationOptionsType(void* self) { destroy<IlluminationOptionsType>(self); }
VYR_FLAT(void) CSharp_IlluminationOptionsType_swap(void* self, void* other) { checked("com_vyrgraph_v2::IlluminationOptionsType & type is null", +[](void* o, void* s) { return as<IlluminationOptionsType>(s).swap(as<IlluminationOptionsType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_IlluminationOptionsType_reset(void* self) { guarded(+[](void* s) { return as<IlluminationOptionsType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_IlluminationOptionsType_is_occurs_ok(void* self) { return as<IlluminationOptionsType>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_IlluminationOptionsType_getchosen(void* self) { return as<IlluminationOptionsType>(self).getchosen(); }
VYR_FLAT(char16_t*) CSharp_IlluminationOptionsType_get_Description(void* self) { return new_string(as<IlluminationOptionsType>(self).get_Description()); }
VYR_FLAT(std::int32_t) CSharp_IlluminationOptionsType_set_Description(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<IlluminationOptionsType>(s).set_Description(v); }); }
VYR_FLAT(std::int32_t) CSharp_IlluminationOptionsType_isset_Description(void* self) { return as<IlluminationOptionsType>(self).isset_Description(); }
VYR_FLAT(void) CSharp_IlluminationOptionsType_unset_Description(void* self) { as<IlluminationOptionsType>(self).unset_Description(); }
VYR_FLAT(void*) CSharp_IlluminationOptionsType_get_Illuminant__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<IlluminationOptionsType>(s).get_Illuminant(); }, self); }
VYR_FLAT(void*) CSharp_IlluminationOptionsType_assign_Illuminant(void* self, void* value) { return checked("com_vyrgraph_v2::Illuminant const & type is null", +[](void* v, void* s) -> void* { return &as<IlluminationOptionsType>(s).assign_Illuminant(as<Illuminant>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_IlluminationOptionsType_get_WhitePointChromaticity__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<IlluminationOptionsType>(s).get_WhitePointChromaticity(); }, self); }
VYR_FLAT(void*) CSharp_IlluminationOptionsType_assign_WhitePointChromaticity(void* self, void* value) { return checked("com_vyrgraph_v2::WhitePointChromaticity const & type is null", +[](void* v, void* s) -> void* { return &as<IlluminationOptionsType>(s).assign_WhitePointChromaticity(as<WhitePointChromaticity>(v)); }, value, self); }
VYR_FLAT(std::uint32_t) CSharp_IlluminationOptionsType_get_ColorTemperature(void* self) { return as<IlluminationOptionsType>(self).get_ColorTemperature(); }
VYR_FLAT(std::int32_t) CSharp_IlluminationOptionsType_set_ColorTemperature(void* self, std::uint32_t value) { return as<IlluminationOptionsType>(self).set_ColorTemperature(value); }

// ColorSpaceSpecificationSpectrumGenericType
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumGenericType__SWIG_0() { return make<ColorSpaceSpecificationSpectrumGenericType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumGenericType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGenericType const & type is null", &copy<ColorSpaceSpecificationSpectrumGenericType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationSpectrumGenericType(void* self) { destroy<ColorSpaceSpecificationSpectrumGenericType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumGenericTypeUpcast(void* self) { return upcast<ColorSpaceSpecificationSpectrumGenericType, ColorSpaceSpecificationSpectrumType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceSpecificationSpectrumGenericType_id_get() { return ColorSpaceSpecificationSpectrumGenericType::id; }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumGenericType_id_set(const char* identity) { set_identity(&ColorSpaceSpecificationSpectrumGenericType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumGenericType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceSpecificationSpectrumGenericType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceSpecificationSpectrumGenericType_getid(void* self) { return new_string(as<ColorSpaceSpecificationSpectrumGenericType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_has_id(void* self, const char* identity) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumGenericType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGenericType & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationSpectrumGenericType>(s).swap(as<ColorSpaceSpecificationSpectrumGenericType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumGenericType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationSpectrumGenericType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumGenericType_get_GeometryChoice__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSpaceSpecificationSpectrumGenericType>(s).get_GeometryChoice(); }, self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumGenericType_assign_GeometryChoice(void* self, void* value) { return checked("com_vyrgraph_v2::GeometryChoiceType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationSpectrumGenericType>(s).assign_GeometryChoice(as<GeometryChoiceType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_GeometryChoice(void* self) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).isset_GeometryChoice(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_GeometryChoice(void* self) { as<ColorSpaceSpecificationSpectrumGenericType>(self).unset_GeometryChoice(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumGenericType_get_IlluminationOptions__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSpaceSpecificationSpectrumGenericType>(s).get_IlluminationOptions(); }, self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumGenericType_assign_IlluminationOptions(void* self, void* value) { return checked("com_vyrgraph_v2::IlluminationOptionsType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationSpectrumGenericType>(s).assign_IlluminationOptions(as<IlluminationOptionsType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_IlluminationOptions(void* self) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).isset_IlluminationOptions(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_IlluminationOptions(void* self) { as<ColorSpaceSpecificationSpectrumGenericType>(self).unset_IlluminationOptions(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationSpectrumGenericType_get_FieldOfView(void* self) { return new_string(as<ColorSpaceSpecificationSpectrumGenericType>(self).get_FieldOfView()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_set_FieldOfView(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationSpectrumGenericType>(s).set_FieldOfView(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_getenum_FieldOfView(void* self) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).getenum_FieldOfView(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_setenum_FieldOfView(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationSpectrumGenericType>(s).setenum_FieldOfView(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_FieldOfView(void* self) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).isset_FieldOfView(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_FieldOfView(void* self) { as<ColorSpaceSpecificationSpectrumGenericType>(self).unset_FieldOfView(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationSpectrumGenericType_get_ASTM_Table(void* self) { return new_string(as<ColorSpaceSpecificationSpectrumGenericType>(self).get_ASTM_Table()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_set_ASTM_Table(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationSpectrumGenericType>(s).set_ASTM_Table(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_getenum_ASTM_Table(void* self) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).getenum_ASTM_Table(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_setenum_ASTM_Table(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationSpectrumGenericType>(s).setenum_ASTM_Table(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_ASTM_Table(void* self) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).isset_ASTM_Table(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_ASTM_Table(void* self) { as<ColorSpaceSpecificationSpectrumGenericType>(self).unset_ASTM_Table(); }
VYR_FLAT(double) CSharp_ColorSpaceSpecificationSpectrumGenericType_get_Gamma(void* self) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).get_Gamma(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_set_Gamma(void* self, double value) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).set_Gamma(value); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_Gamma(void* self) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).isset_Gamma(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_Gamma(void* self) { as<ColorSpaceSpecificationSpectrumGenericType>(self).unset_Gamma(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationSpectrumGenericType_get_DensityStatus(void* self) { return new_string(as<ColorSpaceSpecificationSpectrumGenericType>(self).get_DensityStatus()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_set_DensityStatus(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationSpectrumGenericType>(s).set_DensityStatus(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_getenum_DensityStatus(void* self) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).getenum_DensityStatus(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_setenum_DensityStatus(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationSpectrumGenericType>(s).setenum_DensityStatus(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGenericType_isset_DensityStatus(void* self) { return as<ColorSpaceSpecificationSpectrumGenericType>(self).isset_DensityStatus(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumGenericType_unset_DensityStatus(void* self) { as<ColorSpaceSpecificationSpectrumGenericType>(self).unset_DensityStatus(); }

// ColorSpaceSpecificationSpectrumTristimulusType
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumTristimulusType__SWIG_0() { return make<ColorSpaceSpecificationSpectrumTristimulusType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumTristimulusType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulusType const & type is null", &copy<ColorSpaceSpecificationSpectrumTristimulusType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationSpectrumTristimulusType(void* self) { destroy<ColorSpaceSpecificationSpectrumTristimulusType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumTristimulusTypeUpcast(void* self) { return upcast<ColorSpaceSpecificationSpectrumTristimulusType, ColorSpaceSpecificationSpectrumType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_id_get() { return ColorSpaceSpecificationSpectrumTristimulusType::id; }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_id_set(const char* identity) { set_identity(&ColorSpaceSpecificationSpectrumTristimulusType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceSpecificationSpectrumTristimulusType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_getid(void* self) { return new_string(as<ColorSpaceSpecificationSpectrumTristimulusType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_has_id(void* self, const char* identity) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulusType & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(s).swap(as<ColorSpaceSpecificationSpectrumTristimulusType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_IlluminationOptions__SWIG_0(void* self) { return &as<ColorSpaceSpecificationSpectrumTristimulusType>(self).get_IlluminationOptions(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_assign_IlluminationOptions(void* self, void* value) { return checked("com_vyrgraph_v2::IlluminationOptionsType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationSpectrumTristimulusType>(s).assign_IlluminationOptions(as<IlluminationOptionsType>(v)); }, value, self); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_FieldOfView(void* self) { return new_string(as<ColorSpaceSpecificationSpectrumTristimulusType>(self).get_FieldOfView()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_set_FieldOfView(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(s).set_FieldOfView(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_getenum_FieldOfView(void* self) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(self).getenum_FieldOfView(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_setenum_FieldOfView(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(s).setenum_FieldOfView(n); }, self, number); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_GeometryChoice__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSpaceSpecificationSpectrumTristimulusType>(s).get_GeometryChoice(); }, self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_assign_GeometryChoice(void* self, void* value) { return checked("com_vyrgraph_v2::GeometryChoiceType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationSpectrumTristimulusType>(s).assign_GeometryChoice(as<GeometryChoiceType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_isset_GeometryChoice(void* self) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(self).isset_GeometryChoice(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_unset_GeometryChoice(void* self) { as<ColorSpaceSpecificationSpectrumTristimulusType>(self).unset_GeometryChoice(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_ASTM_Table(void* self) { return new_string(as<ColorSpaceSpecificationSpectrumTristimulusType>(self).get_ASTM_Table()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_set_ASTM_Table(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(s).set_ASTM_Table(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_getenum_ASTM_Table(void* self) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(self).getenum_ASTM_Table(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_setenum_ASTM_Table(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(s).setenum_ASTM_Table(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_isset_ASTM_Table(void* self) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(self).isset_ASTM_Table(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_unset_ASTM_Table(void* self) { as<ColorSpaceSpecificationSpectrumTristimulusType>(self).unset_ASTM_Table(); }
VYR_FLAT(double) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_get_Gamma(void* self) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(self).get_Gamma(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_set_Gamma(void* self, double value) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(self).set_Gamma(value); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_isset_Gamma(void* self) { return as<ColorSpaceSpecificationSpectrumTristimulusType>(self).isset_Gamma(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumTristimulusType_unset_Gamma(void* self) { as<ColorSpaceSpecificationSpectrumTristimulusType>(self).unset_Gamma(); }

// ColorSpaceSpecificationSpectrumSpectralType
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumSpectralType__SWIG_0() { return make<ColorSpaceSpecificationSpectrumSpectralType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumSpectralType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumSpectralType const & type is null", &copy<ColorSpaceSpecificationSpectrumSpectralType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationSpectrumSpectralType(void* self) { destroy<ColorSpaceSpecificationSpectrumSpectralType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumSpectralTypeUpcast(void* self) { return upcast<ColorSpaceSpecificationSpectrumSpectralType, ColorSpaceSpecificationSpectrumType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceSpecificationSpectrumSpectralType_id_get() { return ColorSpaceSpecificationSpectrumSpectralType::id; }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumSpectralType_id_set(const char* identity) { set_identity(&ColorSpaceSpecificationSpectrumSpectralType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumSpectralType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceSpecificationSpectrumSpectralType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceSpecificationSpectrumSpectralType_getid(void* self) { return new_string(as<ColorSpaceSpecificationSpectrumSpectralType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumSpectralType_has_id(void* self, const char* identity) { return as<ColorSpaceSpecificationSpectrumSpectralType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumSpectralType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumSpectralType & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationSpectrumSpectralType>(s).swap(as<ColorSpaceSpecificationSpectrumSpectralType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumSpectralType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationSpectrumSpectralType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumSpectralType_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationSpectrumSpectralType>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumSpectralType_get_GeometryChoice__SWIG_0(void* self) { return &as<ColorSpaceSpecificationSpectrumSpectralType>(self).get_GeometryChoice(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumSpectralType_assign_GeometryChoice(void* self, void* value) { return checked("com_vyrgraph_v2::GeometryChoiceType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationSpectrumSpectralType>(s).assign_GeometryChoice(as<GeometryChoiceType>(v)); }, value, self); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationSpectrumSpectralType_get_ASTM_Table(void* self) { return new_string(as<ColorSpaceSpecificationSpectrumSpectralType>(self).get_ASTM_Table()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumSpectralType_set_ASTM_Table(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationSpectrumSpectralType>(s).set_ASTM_Table(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumSpectralType_getenum_ASTM_Table(void* self) { return as<ColorSpaceSpecificationSpectrumSpectralType>(self).getenum_ASTM_Table(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumSpectralType_setenum_ASTM_Table(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationSpectrumSpectralType>(s).setenum_ASTM_Table(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumSpectralType_isset_ASTM_Table(void* self) { return as<ColorSpaceSpecificationSpectrumSpectralType>(self).isset_ASTM_Table(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumSpectralType_unset_ASTM_Table(void* self) { as<ColorSpaceSpecificationSpectrumSpectralType>(self).unset_ASTM_Table(); }

// ColorSpaceSpecificationEmissiveGenericType
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveGenericType__SWIG_0() { return make<ColorSpaceSpecificationEmissiveGenericType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveGenericType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveGenericType const & type is null", &copy<ColorSpaceSpecificationEmissiveGenericType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationEmissiveGenericType(void* self) { destroy<ColorSpaceSpecificationEmissiveGenericType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveGenericTypeUpcast(void* self) { return upcast<ColorSpaceSpecificationEmissiveGenericType, ColorSpaceSpecificationEmissiveType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceSpecificationEmissiveGenericType_id_get() { return ColorSpaceSpecificationEmissiveGenericType::id; }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveGenericType_id_set(const char* identity) { set_identity(&ColorSpaceSpecificationEmissiveGenericType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveGenericType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceSpecificationEmissiveGenericType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceSpecificationEmissiveGenericType_getid(void* self) { return new_string(as<ColorSpaceSpecificationEmissiveGenericType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_has_id(void* self, const char* identity) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveGenericType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveGenericType & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationEmissiveGenericType>(s).swap(as<ColorSpaceSpecificationEmissiveGenericType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveGenericType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationEmissiveGenericType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveGenericType_get_GeometryChoice__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSpaceSpecificationEmissiveGenericType>(s).get_GeometryChoice(); }, self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveGenericType_assign_GeometryChoice(void* self, void* value) { return checked("com_vyrgraph_v2::GeometryChoiceType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationEmissiveGenericType>(s).assign_GeometryChoice(as<GeometryChoiceType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_GeometryChoice(void* self) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).isset_GeometryChoice(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_GeometryChoice(void* self) { as<ColorSpaceSpecificationEmissiveGenericType>(self).unset_GeometryChoice(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveGenericType_get_IlluminationOptions__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSpaceSpecificationEmissiveGenericType>(s).get_IlluminationOptions(); }, self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveGenericType_assign_IlluminationOptions(void* self, void* value) { return checked("com_vyrgraph_v2::IlluminationOptionsType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationEmissiveGenericType>(s).assign_IlluminationOptions(as<IlluminationOptionsType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_IlluminationOptions(void* self) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).isset_IlluminationOptions(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_IlluminationOptions(void* self) { as<ColorSpaceSpecificationEmissiveGenericType>(self).unset_IlluminationOptions(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationEmissiveGenericType_get_FieldOfView(void* self) { return new_string(as<ColorSpaceSpecificationEmissiveGenericType>(self).get_FieldOfView()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_set_FieldOfView(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationEmissiveGenericType>(s).set_FieldOfView(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_getenum_FieldOfView(void* self) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).getenum_FieldOfView(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_setenum_FieldOfView(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationEmissiveGenericType>(s).setenum_FieldOfView(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_FieldOfView(void* self) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).isset_FieldOfView(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_FieldOfView(void* self) { as<ColorSpaceSpecificationEmissiveGenericType>(self).unset_FieldOfView(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationEmissiveGenericType_get_ASTM_Table(void* self) { return new_string(as<ColorSpaceSpecificationEmissiveGenericType>(self).get_ASTM_Table()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_set_ASTM_Table(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationEmissiveGenericType>(s).set_ASTM_Table(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_getenum_ASTM_Table(void* self) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).getenum_ASTM_Table(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_setenum_ASTM_Table(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationEmissiveGenericType>(s).setenum_ASTM_Table(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_ASTM_Table(void* self) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).isset_ASTM_Table(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_ASTM_Table(void* self) { as<ColorSpaceSpecificationEmissiveGenericType>(self).unset_ASTM_Table(); }
VYR_FLAT(double) CSharp_ColorSpaceSpecificationEmissiveGenericType_get_Gamma(void* self) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).get_Gamma(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_set_Gamma(void* self, double value) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).set_Gamma(value); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_Gamma(void* self) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).isset_Gamma(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_Gamma(void* self) { as<ColorSpaceSpecificationEmissiveGenericType>(self).unset_Gamma(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationEmissiveGenericType_get_DensityStatus(void* self) { return new_string(as<ColorSpaceSpecificationEmissiveGenericType>(self).get_DensityStatus()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_set_DensityStatus(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationEmissiveGenericType>(s).set_DensityStatus(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_getenum_DensityStatus(void* self) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).getenum_DensityStatus(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_setenum_DensityStatus(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationEmissiveGenericType>(s).setenum_DensityStatus(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGenericType_isset_DensityStatus(void* self) { return as<ColorSpaceSpecificationEmissiveGenericType>(self).isset_DensityStatus(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveGenericType_unset_DensityStatus(void* self) { as<ColorSpaceSpecificationEmissiveGenericType>(self).unset_DensityStatus(); }

// ColorSpaceSpecificationEmissiveTristimulusType
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveTristimulusType__SWIG_0() { return make<ColorSpaceSpecificationEmissiveTristimulusType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveTristimulusType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveTristimulusType const & type is null", &copy<ColorSpaceSpecificationEmissiveTristimulusType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationEmissiveTristimulusType(void* self) { destroy<ColorSpaceSpecificationEmissiveTristimulusType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveTristimulusTypeUpcast(void* self) { return upcast<ColorSpaceSpecificationEmissiveTristimulusType, ColorSpaceSpecificationEmissiveType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_id_get() { return ColorSpaceSpecificationEmissiveTristimulusType::id; }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_id_set(const char* identity) { set_identity(&ColorSpaceSpecificationEmissiveTristimulusType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceSpecificationEmissiveTristimulusType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_getid(void* self) { return new_string(as<ColorSpaceSpecificationEmissiveTristimulusType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_has_id(void* self, const char* identity) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveTristimulusType & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(s).swap(as<ColorSpaceSpecificationEmissiveTristimulusType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_IlluminationOptions__SWIG_0(void* self) { return &as<ColorSpaceSpecificationEmissiveTristimulusType>(self).get_IlluminationOptions(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_assign_IlluminationOptions(void* self, void* value) { return checked("com_vyrgraph_v2::IlluminationOptionsType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationEmissiveTristimulusType>(s).assign_IlluminationOptions(as<IlluminationOptionsType>(v)); }, value, self); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_FieldOfView(void* self) { return new_string(as<ColorSpaceSpecificationEmissiveTristimulusType>(self).get_FieldOfView()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_set_FieldOfView(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(s).set_FieldOfView(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_getenum_FieldOfView(void* self) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(self).getenum_FieldOfView(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_setenum_FieldOfView(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(s).setenum_FieldOfView(n); }, self, number); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_GeometryChoice__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSpaceSpecificationEmissiveTristimulusType>(s).get_GeometryChoice(); }, self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_assign_GeometryChoice(void* self, void* value) { return checked("com_vyrgraph_v2::GeometryChoiceType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationEmissiveTristimulusType>(s).assign_GeometryChoice(as<GeometryChoiceType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_isset_GeometryChoice(void* self) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(self).isset_GeometryChoice(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_unset_GeometryChoice(void* self) { as<ColorSpaceSpecificationEmissiveTristimulusType>(self).unset_GeometryChoice(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_ASTM_Table(void* self) { return new_string(as<ColorSpaceSpecificationEmissiveTristimulusType>(self).get_ASTM_Table()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_set_ASTM_Table(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(s).set_ASTM_Table(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_getenum_ASTM_Table(void* self) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(self).getenum_ASTM_Table(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_setenum_ASTM_Table(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(s).setenum_ASTM_Table(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_isset_ASTM_Table(void* self) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(self).isset_ASTM_Table(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_unset_ASTM_Table(void* self) { as<ColorSpaceSpecificationEmissiveTristimulusType>(self).unset_ASTM_Table(); }
VYR_FLAT(double) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_get_Gamma(void* self) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(self).get_Gamma(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_set_Gamma(void* self, double value) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(self).set_Gamma(value); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_isset_Gamma(void* self) { return as<ColorSpaceSpecificationEmissiveTristimulusType>(self).isset_Gamma(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveTristimulusType_unset_Gamma(void* self) { as<ColorSpaceSpecificationEmissiveTristimulusType>(self).unset_Gamma(); }

// ColorSpaceSpecificationEmissiveSpectralType
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveSpectralType__SWIG_0() { return make<ColorSpaceSpecificationEmissiveSpectralType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveSpectralType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveSpectralType const & type is null", &copy<ColorSpaceSpecificationEmissiveSpectralType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationEmissiveSpectralType(void* self) { destroy<ColorSpaceSpecificationEmissiveSpectralType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveSpectralTypeUpcast(void* self) { return upcast<ColorSpaceSpecificationEmissiveSpectralType, ColorSpaceSpecificationEmissiveType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceSpecificationEmissiveSpectralType_id_get() { return ColorSpaceSpecificationEmissiveSpectralType::id; }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveSpectralType_id_set(const char* identity) { set_identity(&ColorSpaceSpecificationEmissiveSpectralType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveSpectralType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceSpecificationEmissiveSpectralType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceSpecificationEmissiveSpectralType_getid(void* self) { return new_string(as<ColorSpaceSpecificationEmissiveSpectralType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveSpectralType_has_id(void* self, const char* identity) { return as<ColorSpaceSpecificationEmissiveSpectralType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveSpectralType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveSpectralType & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationEmissiveSpectralType>(s).swap(as<ColorSpaceSpecificationEmissiveSpectralType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveSpectralType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationEmissiveSpectralType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveSpectralType_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationEmissiveSpectralType>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveSpectralType_get_GeometryChoice__SWIG_0(void* self) { return &as<ColorSpaceSpecificationEmissiveSpectralType>(self).get_GeometryChoice(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveSpectralType_assign_GeometryChoice(void* self, void* value) { return checked("com_vyrgraph_v2::GeometryChoiceType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpecificationEmissiveSpectralType>(s).assign_GeometryChoice(as<GeometryChoiceType>(v)); }, value, self); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpecificationEmissiveSpectralType_get_ASTM_Table(void* self) { return new_string(as<ColorSpaceSpecificationEmissiveSpectralType>(self).get_ASTM_Table()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveSpectralType_set_ASTM_Table(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpecificationEmissiveSpectralType>(s).set_ASTM_Table(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveSpectralType_getenum_ASTM_Table(void* self) { return as<ColorSpaceSpecificationEmissiveSpectralType>(self).getenum_ASTM_Table(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveSpectralType_setenum_ASTM_Table(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSpecificationEmissiveSpectralType>(s).setenum_ASTM_Table(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveSpectralType_isset_ASTM_Table(void* self) { return as<ColorSpaceSpecificationEmissiveSpectralType>(self).isset_ASTM_Table(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveSpectralType_unset_ASTM_Table(void* self) { as<ColorSpaceSpecificationEmissiveSpectralType>(self).unset_ASTM_Table(); }

// ColorSpaceSpecification
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecification(void* self) { destroy<ColorSpaceSpecification>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationUpcast(void* self) { return upcast<ColorSpaceSpecification, ColorSpaceSpecificationType>(self); }

// ColorSpaceSpecificationSpectrum
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrum__SWIG_0() { return make<ColorSpaceSpecificationSpectrum>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrum__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrum const & type is null", &copy<ColorSpaceSpecificationSpectrum>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationSpectrum(void* self) { destroy<ColorSpaceSpecificationSpectrum>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumUpcast(void* self) { return upcast<ColorSpaceSpecificationSpectrum, ColorSpaceSpecificationSpectrumType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrum_ns_map() { return reference(*ColorSpaceSpecificationSpectrum::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrum_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationSpectrum>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrum_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceSpecificationSpectrum>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrum_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationSpectrum>(s).marshal(p); }, self, path); }

// ColorSpaceSpecificationSpectrumGeneric
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumGeneric__SWIG_0() { return make<ColorSpaceSpecificationSpectrumGeneric>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumGeneric__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", &copy<ColorSpaceSpecificationSpectrumGeneric>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationSpectrumGeneric(void* self) { destroy<ColorSpaceSpecificationSpectrumGeneric>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumGenericUpcast(void* self) { return upcast<ColorSpaceSpecificationSpectrumGeneric, ColorSpaceSpecificationSpectrumGenericType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumGeneric_ns_map() { return reference(*ColorSpaceSpecificationSpectrumGeneric::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGeneric_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationSpectrumGeneric>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGeneric_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceSpecificationSpectrumGeneric>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGeneric_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationSpectrumGeneric>(s).marshal(p); }, self, path); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumGeneric_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationSpectrumGeneric>(s).swap(as<ColorSpaceSpecificationSpectrumGeneric>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumGeneric_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationSpectrumGeneric>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGeneric_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationSpectrumGeneric>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumGeneric_isnil_ColorSpaceSpecificationSpectrumGeneric(void* self) { return as<ColorSpaceSpecificationSpectrumGeneric>(self).isnil_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumGeneric_setnil_ColorSpaceSpecificationSpectrumGeneric(void* self) { as<ColorSpaceSpecificationSpectrumGeneric>(self).setnil_ColorSpaceSpecificationSpectrumGeneric(); }

// ColorSpaceSpecificationSpectrumTristimulus
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0() { return make<ColorSpaceSpecificationSpectrumTristimulus>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumTristimulus__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulus const & type is null", &copy<ColorSpaceSpecificationSpectrumTristimulus>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationSpectrumTristimulus(void* self) { destroy<ColorSpaceSpecificationSpectrumTristimulus>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumTristimulusUpcast(void* self) { return upcast<ColorSpaceSpecificationSpectrumTristimulus, ColorSpaceSpecificationSpectrumTristimulusType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumTristimulus_ns_map() { return reference(*ColorSpaceSpecificationSpectrumTristimulus::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulus_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationSpectrumTristimulus>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulus_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceSpecificationSpectrumTristimulus>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulus_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationSpectrumTristimulus>(s).marshal(p); }, self, path); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumTristimulus_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulus & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationSpectrumTristimulus>(s).swap(as<ColorSpaceSpecificationSpectrumTristimulus>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumTristimulus_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationSpectrumTristimulus>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulus_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationSpectrumTristimulus>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumTristimulus_isnil_ColorSpaceSpecificationSpectrumTristimulus(void* self) { return as<ColorSpaceSpecificationSpectrumTristimulus>(self).isnil_ColorSpaceSpecificationSpectrumTristimulus(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumTristimulus_setnil_ColorSpaceSpecificationSpectrumTristimulus(void* self) { as<ColorSpaceSpecificationSpectrumTristimulus>(self).setnil_ColorSpaceSpecificationSpectrumTristimulus(); }

// ColorSpaceSpecificationSpectrumSpectral
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumSpectral__SWIG_0() { return make<ColorSpaceSpecificationSpectrumSpectral>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationSpectrumSpectral__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumSpectral const & type is null", &copy<ColorSpaceSpecificationSpectrumSpectral>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationSpectrumSpectral(void* self) { destroy<ColorSpaceSpecificationSpectrumSpectral>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumSpectralUpcast(void* self) { return upcast<ColorSpaceSpecificationSpectrumSpectral, ColorSpaceSpecificationSpectrumSpectralType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationSpectrumSpectral_ns_map() { return reference(*ColorSpaceSpecificationSpectrumSpectral::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumSpectral_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationSpectrumSpectral>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumSpectral_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceSpecificationSpectrumSpectral>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumSpectral_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationSpectrumSpectral>(s).marshal(p); }, self, path); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumSpectral_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumSpectral & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationSpectrumSpectral>(s).swap(as<ColorSpaceSpecificationSpectrumSpectral>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumSpectral_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationSpectrumSpectral>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumSpectral_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationSpectrumSpectral>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationSpectrumSpectral_isnil_ColorSpaceSpecificationSpectrumSpectral(void* self) { return as<ColorSpaceSpecificationSpectrumSpectral>(self).isnil_ColorSpaceSpecificationSpectrumSpectral(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationSpectrumSpectral_setnil_ColorSpaceSpecificationSpectrumSpectral(void* self) { as<ColorSpaceSpecificationSpectrumSpectral>(self).setnil_ColorSpaceSpecificationSpectrumSpectral(); }

// ColorSpaceSpecificationEmissive
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissive__SWIG_0() { return make<ColorSpaceSpecificationEmissive>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissive__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissive const & type is null", &copy<ColorSpaceSpecificationEmissive>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationEmissive(void* self) { destroy<ColorSpaceSpecificationEmissive>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveUpcast(void* self) { return upcast<ColorSpaceSpecificationEmissive, ColorSpaceSpecificationEmissiveType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissive_ns_map() { return reference(*ColorSpaceSpecificationEmissive::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissive_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationEmissive>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissive_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceSpecificationEmissive>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissive_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationEmissive>(s).marshal(p); }, self, path); }

// ColorSpaceSpecificationEmissiveGeneric
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveGeneric__SWIG_0() { return make<ColorSpaceSpecificationEmissiveGeneric>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveGeneric__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveGeneric const & type is null", &copy<ColorSpaceSpecificationEmissiveGeneric>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationEmissiveGeneric(void* self) { destroy<ColorSpaceSpecificationEmissiveGeneric>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveGenericUpcast(void* self) { return upcast<ColorSpaceSpecificationEmissiveGeneric, ColorSpaceSpecificationEmissiveGenericType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveGeneric_ns_map() { return reference(*ColorSpaceSpecificationEmissiveGeneric::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGeneric_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationEmissiveGeneric>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGeneric_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceSpecificationEmissiveGeneric>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGeneric_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationEmissiveGeneric>(s).marshal(p); }, self, path); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveGeneric_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveGeneric & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationEmissiveGeneric>(s).swap(as<ColorSpaceSpecificationEmissiveGeneric>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveGeneric_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationEmissiveGeneric>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGeneric_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationEmissiveGeneric>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveGeneric_isnil_ColorSpaceSpecificationEmissiveGeneric(void* self) { return as<ColorSpaceSpecificationEmissiveGeneric>(self).isnil_ColorSpaceSpecificationEmissiveGeneric(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveGeneric_setnil_ColorSpaceSpecificationEmissiveGeneric(void* self) { as<ColorSpaceSpecificationEmissiveGeneric>(self).setnil_ColorSpaceSpecificationEmissiveGeneric(); }

// ColorSpaceSpecificationEmissiveTristimulus
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveTristimulus__SWIG_0() { return make<ColorSpaceSpecificationEmissiveTristimulus>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveTristimulus__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveTristimulus const & type is null", &copy<ColorSpaceSpecificationEmissiveTristimulus>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationEmissiveTristimulus(void* self) { destroy<ColorSpaceSpecificationEmissiveTristimulus>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveTristimulusUpcast(void* self) { return upcast<ColorSpaceSpecificationEmissiveTristimulus, ColorSpaceSpecificationEmissiveTristimulusType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveTristimulus_ns_map() { return reference(*ColorSpaceSpecificationEmissiveTristimulus::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulus_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationEmissiveTristimulus>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulus_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceSpecificationEmissiveTristimulus>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulus_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationEmissiveTristimulus>(s).marshal(p); }, self, path); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveTristimulus_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveTristimulus & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationEmissiveTristimulus>(s).swap(as<ColorSpaceSpecificationEmissiveTristimulus>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveTristimulus_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationEmissiveTristimulus>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulus_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationEmissiveTristimulus>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveTristimulus_isnil_ColorSpaceSpecificationEmissiveTristimulus(void* self) { return as<ColorSpaceSpecificationEmissiveTristimulus>(self).isnil_ColorSpaceSpecificationEmissiveTristimulus(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveTristimulus_setnil_ColorSpaceSpecificationEmissiveTristimulus(void* self) { as<ColorSpaceSpecificationEmissiveTristimulus>(self).setnil_ColorSpaceSpecificationEmissiveTristimulus(); }

// ColorSpaceSpecificationEmissiveSpectral
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveSpectral__SWIG_0() { return make<ColorSpaceSpecificationEmissiveSpectral>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpecificationEmissiveSpectral__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveSpectral const & type is null", &copy<ColorSpaceSpecificationEmissiveSpectral>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpecificationEmissiveSpectral(void* self) { destroy<ColorSpaceSpecificationEmissiveSpectral>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveSpectralUpcast(void* self) { return upcast<ColorSpaceSpecificationEmissiveSpectral, ColorSpaceSpecificationEmissiveSpectralType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpecificationEmissiveSpectral_ns_map() { return reference(*ColorSpaceSpecificationEmissiveSpectral::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveSpectral_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationEmissiveSpectral>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveSpectral_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceSpecificationEmissiveSpectral>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveSpectral_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpecificationEmissiveSpectral>(s).marshal(p); }, self, path); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveSpectral_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveSpectral & type is null", +[](void* o, void* s) { return as<ColorSpaceSpecificationEmissiveSpectral>(s).swap(as<ColorSpaceSpecificationEmissiveSpectral>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveSpectral_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpecificationEmissiveSpectral>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveSpectral_is_occurs_ok(void* self) { return as<ColorSpaceSpecificationEmissiveSpectral>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpecificationEmissiveSpectral_isnil_ColorSpaceSpecificationEmissiveSpectral(void* self) { return as<ColorSpaceSpecificationEmissiveSpectral>(self).isnil_ColorSpaceSpecificationEmissiveSpectral(); }
VYR_FLAT(void) CSharp_ColorSpaceSpecificationEmissiveSpectral_setnil_ColorSpaceSpecificationEmissiveSpectral(void* self) { as<ColorSpaceSpecificationEmissiveSpectral>(self).setnil_ColorSpaceSpecificationEmissiveSpectral(); }

// Illuminant
VYR_FLAT(void*) CSharp_new_Illuminant__SWIG_0() { return make<Illuminant>(); }
VYR_FLAT(void*) CSharp_new_Illuminant__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Illuminant const & type is null", &copy<Illuminant>, source); }
VYR_FLAT(void) CSharp_delete_Illuminant(void* self) { destroy<Illuminant>(self); }
VYR_FLAT(void) CSharp_Illuminant_swap(void* self, void* other) { checked("com_vyrgraph_v2::Illuminant & type is null", +[](void* o, void* s) { return as<Illuminant>(s).swap(as<Illuminant>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Illuminant_reset(void* self) { guarded(+[](void* s) { return as<Illuminant>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Illuminant_is_occurs_ok(void* self) { return as<Illuminant>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_Illuminant_get_CustomName(void* self) { return new_string(as<Illuminant>(self).get_CustomName()); }
VYR_FLAT(std::int32_t) CSharp_Illuminant_set_CustomName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Illuminant>(s).set_CustomName(v); }); }
VYR_FLAT(std::int32_t) CSharp_Illuminant_isset_CustomName(void* self) { return as<Illuminant>(self).isset_CustomName(); }
VYR_FLAT(void) CSharp_Illuminant_unset_CustomName(void* self) { as<Illuminant>(self).unset_CustomName(); }
VYR_FLAT(char16_t*) CSharp_Illuminant_get_Illuminant(void* self) { return new_string(as<Illuminant>(self).get_Illuminant()); }
VYR_FLAT(std::int32_t) CSharp_Illuminant_set_Illuminant(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Illuminant>(s).set_Illuminant(v); }); }
VYR_FLAT(std::int32_t) CSharp_Illuminant_getenum_Illuminant(void* self) { return as<Illuminant>(self).getenum_Illuminant(); }
VYR_FLAT(std::int32_t) CSharp_Illuminant_setenum_Illuminant(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<Illuminant>(s).setenum_Illuminant(n); }, self, number); }

// WhitePointChromaticity
VYR_FLAT(void*) CSharp_new_WhitePointChromaticity__SWIG_0() { return make<WhitePointChromaticity>(); }
VYR_FLAT(void*) CSharp_new_WhitePointChromaticity__SWIG_1(void* source) { return checked("com_vyrgraph_v2::WhitePointChromaticity const & type is null", &copy<WhitePointChromaticity>, source); }
VYR_FLAT(void) CSharp_delete_WhitePointChromaticity(void* self) { destroy<WhitePointChromaticity>(self); }
VYR_FLAT(void) CSharp_WhitePointChromaticity_swap(void* self, void* other) { checked("com_vyrgraph_v2::WhitePointChromaticity & type is null", +[](void* o, void* s) { return as<WhitePointChromaticity>(s).swap(as<WhitePointChromaticity>(o)); }, other, self); }
VYR_FLAT(void) CSharp_WhitePointChromaticity_reset(void* self) { guarded(+[](void* s) { return as<WhitePointChromaticity>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_WhitePointChromaticity_is_occurs_ok(void* self) { return as<WhitePointChromaticity>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_WhitePointChromaticity_get_CoordinateX(void* self) { return as<WhitePointChromaticity>(self).get_CoordinateX(); }
VYR_FLAT(std::int32_t) CSharp_WhitePointChromaticity_set_CoordinateX(void* self, double value) { return as<WhitePointChromaticity>(self).set_CoordinateX(value); }
VYR_FLAT(double) CSharp_WhitePointChromaticity_get_CoordinateY(void* self) { return as<WhitePointChromaticity>(self).get_CoordinateY(); }
VYR_FLAT(std::int32_t) CSharp_WhitePointChromaticity_set_CoordinateY(void* self, double value) { return as<WhitePointChromaticity>(self).set_CoordinateY(value); }

// BSDFAngle
VYR_FLAT(void*) CSharp_new_BSDFAngle__SWIG_0() { return make<BSDFAngle>(); }
VYR_FLAT(void*) CSharp_new_BSDFAngle__SWIG_1(void* source) { return checked("com_vyrgraph_v2::BSDFAngle const & type is null", &copy<BSDFAngle>, source); }
VYR_FLAT(void) CSharp_delete_BSDFAngle(void* self) { destroy<BSDFAngle>(self); }
VYR_FLAT(void) CSharp_BSDFAngle_swap(void* self, void* other) { checked("com_vyrgraph_v2::BSDFAngle & type is null", +[](void* o, void* s) { return as<BSDFAngle>(s).swap(as<BSDFAngle>(o)); }, other, self); }
VYR_FLAT(void) CSharp_BSDFAngle_reset(void* self) { guarded(+[](void* s) { return as<BSDFAngle>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_BSDFAngle_is_occurs_ok(void* self) { return as<BSDFAngle>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_BSDFAngle_get_IlluminantAngle(void* self) { return as<BSDFAngle>(self).get_IlluminantAngle(); }
VYR_FLAT(std::int32_t) CSharp_BSDFAngle_set_IlluminantAngle(void* self, double value) { return as<BSDFAngle>(self).set_IlluminantAngle(value); }
VYR_FLAT(double) CSharp_BSDFAngle_get_Aspecular(void* self) { return as<BSDFAngle>(self).get_Aspecular(); }
VYR_FLAT(std::int32_t) CSharp_BSDFAngle_set_Aspecular(void* self, double value) { return as<BSDFAngle>(self).set_Aspecular(value); }

// Azimuth
VYR_FLAT(void*) CSharp_new_Azimuth__SWIG_0() { return make<Azimuth>(); }
VYR_FLAT(void*) CSharp_new_Azimuth__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Azimuth const & type is null", &copy<Azimuth>, source); }
VYR_FLAT(void) CSharp_delete_Azimuth(void* self) { destroy<Azimuth>(self); }
VYR_FLAT(void) CSharp_Azimuth_swap(void* self, void* other) { checked("com_vyrgraph_v2::Azimuth & type is null", +[](void* o, void* s) { return as<Azimuth>(s).swap(as<Azimuth>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Azimuth_reset(void* self) { guarded(+[](void* s) { return as<Azimuth>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Azimuth_is_occurs_ok(void* self) { return as<Azimuth>(self).is_occurs_ok(); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
