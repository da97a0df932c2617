// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in color_values.h.

#include "flat/call.h"
#include "schema/generated/color_values.h"
#include "schema/generated/conditions.h"
#include "schema/generated/device_color_values.h"
#include "schema/generated/groups.h"
#include "schema/generated/header.h"
#include "schema/generated/recipes.h"
#include "schema/generated/sampled_color_values.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// ParentColorSpace
VYR_FLAT(void*) CSharp_new_ParentColorSpace__SWIG_0() { return make<ParentColorSpace>(); }
VYR_FLAT(void*) CSharp_new_ParentColorSpace__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ParentColorSpace const & type is null", &copy<ParentColorSpace>, source); }
VYR_FLAT(void) CSharp_delete_ParentColorSpace(void* self) { destroy<ParentColorSpace>(self); }
VYR_FLAT(void*) CSharp_ParentColorSpaceUpcast(void* self) { return upcast<ParentColorSpace, sg_ColorSpace>(self); }
VYR_FLAT(void) CSharp_ParentColorSpace_swap(void* self, void* other) { checked("com_vyrgraph_v2::ParentColorSpace & type is null", +[](void* o, void* s) { return as<ParentColorSpace>(s).swap(as<ParentColorSpace>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ParentColorSpace_reset(void* self) { guarded(+[](void* s) { return as<ParentColorSpace>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ParentColorSpace_is_occurs_ok(void* self) { return as<ParentColorSpace>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_ParentColorSpace_get_ColorSpace__SWIG_0(void* self) { return &as<ParentColorSpace>(self).get_ColorSpace(); }
VYR_FLAT(void*) CSharp_ParentColorSpace_assign_ColorSpace(void* self, void* value) { return checked("com_vyrgraph_v2::sg_ColorSpace const & type is null", +[](void* v, void* s) -> void* { return &as<ParentColorSpace>(s).assign_ColorSpace(as<sg_ColorSpace>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ParentColorSpace_isset_ColorSpace(void* self) { return as<ParentColorSpace>(self).isset_ColorSpace(); }
VYR_FLAT(void) CSharp_ParentColorSpace_unset_ColorSpace(void* self) { as<ParentColorSpace>(self).unset_ColorSpace(); }
VYR_FLAT(std::int32_t) CSharp_ParentColorSpace_isnil_ParentColorSpace(void* self) { return as<ParentColorSpace>(self).isnil_ParentColorSpace(); }
VYR_FLAT(void) CSharp_ParentColorSpace_setnil_ParentColorSpace(void* self) { as<ParentColorSpace>(self).setnil_ParentColorSpace(); }

// ColorSpaceType
VYR_FLAT(void*) CSharp_new_ColorSpaceType__SWIG_0() { return make<ColorSpaceType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceType const & type is null", &copy<ColorSpaceType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceType(void* self) { destroy<ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceType_id_get() { return ColorSpaceType::id; }
VYR_FLAT(void) CSharp_ColorSpaceType_id_set(const char* identity) { set_identity(&ColorSpaceType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceType_factory(std::int32_t ns_id, const char* name) { return checked(k_null_string, +[](const char* n, std::int32_t i) -> void* { return ColorSpaceType::factory(i, n); }, name, ns_id); }
VYR_FLAT(void*) CSharp_ColorSpaceType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceType_getid(void* self) { return new_string(as<ColorSpaceType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceType_has_id(void* self, const char* identity) { return as<ColorSpaceType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceType & type is null", +[](void* o, void* s) { return as<ColorSpaceType>(s).swap(as<ColorSpaceType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceType_is_occurs_ok(void* self) { return as<ColorSpaceType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceType_get_Comments(void* self) { return new_string(as<ColorSpaceType>(self).get_Comments()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceType_set_Comments(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceType>(s).set_Comments(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceType_isset_Comments(void* self) { return as<ColorSpaceType>(self).isset_Comments(); }
VYR_FLAT(void) CSharp_ColorSpaceType_unset_Comments(void* self) { as<ColorSpaceType>(self).unset_Comments(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceType_get_UniqueID(void* self) { return new_string(as<ColorSpaceType>(self).get_UniqueID()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceType_set_UniqueID(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceType>(s).set_UniqueID(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceType_isset_UniqueID(void* self) { return as<ColorSpaceType>(self).isset_UniqueID(); }
VYR_FLAT(void) CSharp_ColorSpaceType_unset_UniqueID(void* self) { as<ColorSpaceType>(self).unset_UniqueID(); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_ColorSpaceType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSpaceType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSpaceType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<ColorSpaceType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSpaceType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceType_back_CustomAttribute(void* self) { return &as<ColorSpaceType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_ColorSpaceType_delete_CustomAttribute(void* self, std::uint32_t index) { as<ColorSpaceType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_ColorSpaceType_clear_CustomAttribute(void* self) { as<ColorSpaceType>(self).clear_CustomAttribute(); }
VYR_FLAT(void*) CSharp_ColorSpaceType_get_ParentColorSpace__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorSpaceType>(s).get_ParentColorSpace(); }, self); }
VYR_FLAT(void*) CSharp_ColorSpaceType_assign_ParentColorSpace(void* self, void* value) { return checked("com_vyrgraph_v2::ParentColorSpace const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceType>(s).assign_ParentColorSpace(as<ParentColorSpace>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceType_isset_ParentColorSpace(void* self) { return as<ColorSpaceType>(self).isset_ParentColorSpace(); }
VYR_FLAT(void) CSharp_ColorSpaceType_unset_ParentColorSpace(void* self) { as<ColorSpaceType>(self).unset_ParentColorSpace(); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceType_size_ChangeHistory(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceType>(self).size_ChangeHistory()); }
VYR_FLAT(void*) CSharp_ColorSpaceType_get_ChangeHistory(void* self, std::uint32_t index) { return reference(as<ColorSpaceType>(self).get_ChangeHistory(index)); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceType_set_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<ColorSpaceType>(s).set_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceType_append_ChangeHistory(void* self, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s) { return as<ColorSpaceType>(s).append_ChangeHistory(as<lmx::c_datetime>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceType_insert_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<ColorSpaceType>(s).insert_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(void) CSharp_ColorSpaceType_delete_ChangeHistory(void* self, std::uint32_t index) { as<ColorSpaceType>(self).delete_ChangeHistory(index); }
VYR_FLAT(void) CSharp_ColorSpaceType_clear_ChangeHistory(void* self) { as<ColorSpaceType>(self).clear_ChangeHistory(); }

// ColorSpace
VYR_FLAT(void) CSharp_delete_ColorSpace(void* self) { destroy<ColorSpace>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceUpcast(void* self) { return upcast<ColorSpace, ColorSpaceType>(self); }

// ColorSpaceCIELabType
VYR_FLAT(void*) CSharp_new_ColorSpaceCIELabType__SWIG_0() { return make<ColorSpaceCIELabType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCIELabType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCIELabType const & type is null", &copy<ColorSpaceCIELabType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCIELabType(void* self) { destroy<ColorSpaceCIELabType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELabTypeUpcast(void* self) { return upcast<ColorSpaceCIELabType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceCIELabType_id_get() { return ColorSpaceCIELabType::id; }
VYR_FLAT(void) CSharp_ColorSpaceCIELabType_id_set(const char* identity) { set_identity(&ColorSpaceCIELabType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELabType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceCIELabType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceCIELabType_getid(void* self) { return new_string(as<ColorSpaceCIELabType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELabType_has_id(void* self, const char* identity) { return as<ColorSpaceCIELabType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceCIELabType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceCIELabType & type is null", +[](void* o, void* s) { return as<ColorSpaceCIELabType>(s).swap(as<ColorSpaceCIELabType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceCIELabType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceCIELabType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELabType_is_occurs_ok(void* self) { return as<ColorSpaceCIELabType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceCIELabType_get_Name(void* self) { return new_string(as<ColorSpaceCIELabType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELabType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceCIELabType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELabType_isset_Name(void* self) { return as<ColorSpaceCIELabType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceCIELabType_unset_Name(void* self) { as<ColorSpaceCIELabType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELabType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self) { return &as<ColorSpaceCIELabType>(self).get_ColorSpaceSpecificationSpectrumTristimulus(); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELabType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceCIELabType>(s).assign_ColorSpaceSpecificationSpectrumTristimulus(as<ColorSpaceSpecificationSpectrumTristimulus>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceCIELabType_get_L(void* self) { return as<ColorSpaceCIELabType>(self).get_L(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELabType_set_L(void* self, double value) { return as<ColorSpaceCIELabType>(self).set_L(value); }
VYR_FLAT(double) CSharp_ColorSpaceCIELabType_get_A(void* self) { return as<ColorSpaceCIELabType>(self).get_A(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELabType_set_A(void* self, double value) { return as<ColorSpaceCIELabType>(self).set_A(value); }
VYR_FLAT(double) CSharp_ColorSpaceCIELabType_get_B(void* self) { return as<ColorSpaceCIELabType>(self).get_B(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELabType_set_B(void* self, double value) { return as<ColorSpaceCIELabType>(self).set_B(value); }

// ColorSpaceCIELChType
VYR_FLAT(void*) CSharp_new_ColorSpaceCIELChType__SWIG_0() { return make<ColorSpaceCIELChType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCIELChType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCIELChType const & type is null", &copy<ColorSpaceCIELChType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCIELChType(void* self) { destroy<ColorSpaceCIELChType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELChTypeUpcast(void* self) { return upcast<ColorSpaceCIELChType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceCIELChType_id_get() { return ColorSpaceCIELChType::id; }
VYR_FLAT(void) CSharp_ColorSpaceCIELChType_id_set(const char* identity) { set_identity(&ColorSpaceCIELChType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELChType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceCIELChType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceCIELChType_getid(void* self) { return new_string(as<ColorSpaceCIELChType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELChType_has_id(void* self, const char* identity) { return as<ColorSpaceCIELChType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceCIELChType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceCIELChType & type is null", +[](void* o, void* s) { return as<ColorSpaceCIELChType>(s).swap(as<ColorSpaceCIELChType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceCIELChType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceCIELChType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELChType_is_occurs_ok(void* self) { return as<ColorSpaceCIELChType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceCIELChType_get_Name(void* self) { return new_string(as<ColorSpaceCIELChType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELChType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceCIELChType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELChType_isset_Name(void* self) { return as<ColorSpaceCIELChType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceCIELChType_unset_Name(void* self) { as<ColorSpaceCIELChType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELChType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self) { return &as<ColorSpaceCIELChType>(self).get_ColorSpaceSpecificationSpectrumTristimulus(); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELChType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceCIELChType>(s).assign_ColorSpaceSpecificationSpectrumTristimulus(as<ColorSpaceSpecificationSpectrumTristimulus>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceCIELChType_get_L(void* self) { return as<ColorSpaceCIELChType>(self).get_L(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELChType_set_L(void* self, double value) { return as<ColorSpaceCIELChType>(self).set_L(value); }
VYR_FLAT(double) CSharp_ColorSpaceCIELChType_get_C(void* self) { return as<ColorSpaceCIELChType>(self).get_C(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELChType_set_C(void* self, double value) { return as<ColorSpaceCIELChType>(self).set_C(value); }
VYR_FLAT(double) CSharp_ColorSpaceCIELChType_get_H(void* self) { return as<ColorSpaceCIELChType>(self).get_H(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELChType_set_H(void* self, double value) { return as<ColorSpaceCIELChType>(self).set_H(value); }

// ColorSpaceCIELuvType
VYR_FLAT(void*) CSharp_new_ColorSpaceCIELuvType__SWIG_0() { return make<ColorSpaceCIELuvType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCIELuvType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCIELuvType const & type is null", &copy<ColorSpaceCIELuvType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCIELuvType(void* self) { destroy<ColorSpaceCIELuvType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELuvTypeUpcast(void* self) { return upcast<ColorSpaceCIELuvType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceCIELuvType_id_get() { return ColorSpaceCIELuvType::id; }
VYR_FLAT(void) CSharp_ColorSpaceCIELuvType_id_set(const char* identity) { set_identity(&ColorSpaceCIELuvType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELuvType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceCIELuvType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceCIELuvType_getid(void* self) { return new_string(as<ColorSpaceCIELuvType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELuvType_has_id(void* self, const char* identity) { return as<ColorSpaceCIELuvType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceCIELuvType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceCIELuvType & type is null", +[](void* o, void* s) { return as<ColorSpaceCIELuvType>(s).swap(as<ColorSpaceCIELuvType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceCIELuvType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceCIELuvType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELuvType_is_occurs_ok(void* self) { return as<ColorSpaceCIELuvType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceCIELuvType_get_Name(void* self) { return new_string(as<ColorSpaceCIELuvType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELuvType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceCIELuvType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELuvType_isset_Name(void* self) { return as<ColorSpaceCIELuvType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceCIELuvType_unset_Name(void* self) { as<ColorSpaceCIELuvType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELuvType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self) { return &as<ColorSpaceCIELuvType>(self).get_ColorSpaceSpecificationSpectrumTristimulus(); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELuvType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceCIELuvType>(s).assign_ColorSpaceSpecificationSpectrumTristimulus(as<ColorSpaceSpecificationSpectrumTristimulus>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceCIELuvType_get_L(void* self) { return as<ColorSpaceCIELuvType>(self).get_L(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELuvType_set_L(void* self, double value) { return as<ColorSpaceCIELuvType>(self).set_L(value); }
VYR_FLAT(double) CSharp_ColorSpaceCIELuvType_get_U(void* self) { return as<ColorSpaceCIELuvType>(self).get_U(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELuvType_set_U(void* self, double value) { return as<ColorSpaceCIELuvType>(self).set_U(value); }
VYR_FLAT(double) CSharp_ColorSpaceCIELuvType_get_V(void* self) { return as<ColorSpaceCIELuvType>(self).get_V(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELuvType_set_V(void* self, double value) { return as<ColorSpaceCIELuvType>(self).set_V(value); }

// ColorSpaceCIEXYZType
VYR_FLAT(void*) CSharp_new_ColorSpaceCIEXYZType__SWIG_0() { return make<ColorSpaceCIEXYZType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCIEXYZType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCIEXYZType const & type is null", &copy<ColorSpaceCIEXYZType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCIEXYZType(void* self) { destroy<ColorSpaceCIEXYZType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIEXYZTypeUpcast(void* self) { return upcast<ColorSpaceCIEXYZType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceCIEXYZType_id_get() { return ColorSpaceCIEXYZType::id; }
VYR_FLAT(void) CSharp_ColorSpaceCIEXYZType_id_set(const char* identity) { set_identity(&ColorSpaceCIEXYZType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceCIEXYZType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceCIEXYZType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceCIEXYZType_getid(void* self) { return new_string(as<ColorSpaceCIEXYZType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIEXYZType_has_id(void* self, const char* identity) { return as<ColorSpaceCIEXYZType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceCIEXYZType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceCIEXYZType & type is null", +[](void* o, void* s) { return as<ColorSpaceCIEXYZType>(s).swap(as<ColorSpaceCIEXYZType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceCIEXYZType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceCIEXYZType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIEXYZType_is_occurs_ok(void* self) { return as<ColorSpaceCIEXYZType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceCIEXYZType_get_Name(void* self) { return new_string(as<ColorSpaceCIEXYZType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIEXYZType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceCIEXYZType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIEXYZType_isset_Name(void* self) { return as<ColorSpaceCIEXYZType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceCIEXYZType_unset_Name(void* self) { as<ColorSpaceCIEXYZType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceCIEXYZType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self) { return &as<ColorSpaceCIEXYZType>(self).get_ColorSpaceSpecificationSpectrumTristimulus(); }
VYR_FLAT(void*) CSharp_ColorSpaceCIEXYZType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceCIEXYZType>(s).assign_ColorSpaceSpecificationSpectrumTristimulus(as<ColorSpaceSpecificationSpectrumTristimulus>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceCIEXYZType_get_X(void* self) { return as<ColorSpaceCIEXYZType>(self).get_X(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIEXYZType_set_X(void* self, double value) { return as<ColorSpaceCIEXYZType>(self).set_X(value); }
VYR_FLAT(double) CSharp_ColorSpaceCIEXYZType_get_Y(void* self) { return as<ColorSpaceCIEXYZType>(self).get_Y(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIEXYZType_set_Y(void* self, double value) { return as<ColorSpaceCIEXYZType>(self).set_Y(value); }
VYR_FLAT(double) CSharp_ColorSpaceCIEXYZType_get_Z(void* self) { return as<ColorSpaceCIEXYZType>(self).get_Z(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIEXYZType_set_Z(void* self, double value) { return as<ColorSpaceCIEXYZType>(self).set_Z(value); }

// ColorSpaceCIExyYType
VYR_FLAT(void*) CSharp_new_ColorSpaceCIExyYType__SWIG_0() { return make<ColorSpaceCIExyYType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCIExyYType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCIExyYType const & type is null", &copy<ColorSpaceCIExyYType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCIExyYType(void* self) { destroy<ColorSpaceCIExyYType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIExyYTypeUpcast(void* self) { return upcast<ColorSpaceCIExyYType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceCIExyYType_id_get() { return ColorSpaceCIExyYType::id; }
VYR_FLAT(void) CSharp_ColorSpaceCIExyYType_id_set(const char* identity) { set_identity(&ColorSpaceCIExyYType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceCIExyYType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceCIExyYType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceCIExyYType_getid(void* self) { return new_string(as<ColorSpaceCIExyYType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIExyYType_has_id(void* self, const char* identity) { return as<ColorSpaceCIExyYType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceCIExyYType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceCIExyYType & type is null", +[](void* o, void* s) { return as<ColorSpaceCIExyYType>(s).swap(as<ColorSpaceCIExyYType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceCIExyYType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceCIExyYType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIExyYType_is_occurs_ok(void* self) { return as<ColorSpaceCIExyYType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceCIExyYType_get_Name(void* self) { return new_string(as<ColorSpaceCIExyYType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIExyYType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceCIExyYType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIExyYType_isset_Name(void* self) { return as<ColorSpaceCIExyYType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceCIExyYType_unset_Name(void* self) { as<ColorSpaceCIExyYType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceCIExyYType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self) { return &as<ColorSpaceCIExyYType>(self).get_ColorSpaceSpecificationSpectrumTristimulus(); }
VYR_FLAT(void*) CSharp_ColorSpaceCIExyYType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceCIExyYType>(s).assign_ColorSpaceSpecificationSpectrumTristimulus(as<ColorSpaceSpecificationSpectrumTristimulus>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceCIExyYType_get_X(void* self) { return as<ColorSpaceCIExyYType>(self).get_X(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIExyYType_set_X(void* self, double value) { return as<ColorSpaceCIExyYType>(self).set_X(value); }
VYR_FLAT(double) CSharp_ColorSpaceCIExyYType_get_Y(void* self) { return as<ColorSpaceCIExyYType>(self).get_Y(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIExyYType_set_Y(void* self, double value) { return as<ColorSpaceCIExyYType>(self).set_Y(value); }
VYR_FLAT(double) CSharp_ColorSpaceCIExyYType_get_CapY(void* self) { return as<ColorSpaceCIExyYType>(self).get_CapY(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIExyYType_set_CapY(void* self, double value) { return as<ColorSpaceCIExyYType>(self).set_CapY(value); }

// ColorSpaceEmissiveCIEXYZType
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveCIEXYZType__SWIG_0() { return make<ColorSpaceEmissiveCIEXYZType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveCIEXYZType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceEmissiveCIEXYZType const & type is null", &copy<ColorSpaceEmissiveCIEXYZType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceEmissiveCIEXYZType(void* self) { destroy<ColorSpaceEmissiveCIEXYZType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveCIEXYZTypeUpcast(void* self) { return upcast<ColorSpaceEmissiveCIEXYZType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceEmissiveCIEXYZType_id_get() { return ColorSpaceEmissiveCIEXYZType::id; }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveCIEXYZType_id_set(const char* identity) { set_identity(&ColorSpaceEmissiveCIEXYZType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveCIEXYZType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceEmissiveCIEXYZType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceEmissiveCIEXYZType_getid(void* self) { return new_string(as<ColorSpaceEmissiveCIEXYZType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIEXYZType_has_id(void* self, const char* identity) { return as<ColorSpaceEmissiveCIEXYZType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveCIEXYZType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceEmissiveCIEXYZType & type is null", +[](void* o, void* s) { return as<ColorSpaceEmissiveCIEXYZType>(s).swap(as<ColorSpaceEmissiveCIEXYZType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveCIEXYZType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceEmissiveCIEXYZType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIEXYZType_is_occurs_ok(void* self) { return as<ColorSpaceEmissiveCIEXYZType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceEmissiveCIEXYZType_get_Name(void* self) { return new_string(as<ColorSpaceEmissiveCIEXYZType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIEXYZType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceEmissiveCIEXYZType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIEXYZType_isset_Name(void* self) { return as<ColorSpaceEmissiveCIEXYZType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveCIEXYZType_unset_Name(void* self) { as<ColorSpaceEmissiveCIEXYZType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveCIEXYZType_get_ColorSpaceSpecificationEmissiveTristimulus__SWIG_0(void* self) { return &as<ColorSpaceEmissiveCIEXYZType>(self).get_ColorSpaceSpecificationEmissiveTristimulus(); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveCIEXYZType_assign_ColorSpaceSpecificationEmissiveTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceEmissiveCIEXYZType>(s).assign_ColorSpaceSpecificationEmissiveTristimulus(as<ColorSpaceSpecificationEmissiveTristimulus>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceEmissiveCIEXYZType_get_X(void* self) { return as<ColorSpaceEmissiveCIEXYZType>(self).get_X(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIEXYZType_set_X(void* self, double value) { return as<ColorSpaceEmissiveCIEXYZType>(self).set_X(value); }
VYR_FLAT(double) CSharp_ColorSpaceEmissiveCIEXYZType_get_Y(void* self) { return as<ColorSpaceEmissiveCIEXYZType>(self).get_Y(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIEXYZType_set_Y(void* self, double value) { return as<ColorSpaceEmissiveCIEXYZType>(self).set_Y(value); }
VYR_FLAT(double) CSharp_ColorSpaceEmissiveCIEXYZType_get_Z(void* self) { return as<ColorSpaceEmissiveCIEXYZType>(self).get_Z(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIEXYZType_set_Z(void* self, double value) { return as<ColorSpaceEmissiveCIEXYZType>(self).set_Z(value); }

// ColorSpaceEmissiveCIExyYType
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveCIExyYType__SWIG_0() { return make<ColorSpaceEmissiveCIExyYType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveCIExyYType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceEmissiveCIExyYType const & type is null", &copy<ColorSpaceEmissiveCIExyYType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceEmissiveCIExyYType(void* self) { destroy<ColorSpaceEmissiveCIExyYType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveCIExyYTypeUpcast(void* self) { return upcast<ColorSpaceEmissiveCIExyYType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceEmissiveCIExyYType_id_get() { return ColorSpaceEmissiveCIExyYType::id; }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveCIExyYType_id_set(const char* identity) { set_identity(&ColorSpaceEmissiveCIExyYType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveCIExyYType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceEmissiveCIExyYType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceEmissiveCIExyYType_getid(void* self) { return new_string(as<ColorSpaceEmissiveCIExyYType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIExyYType_has_id(void* self, const char* identity) { return as<ColorSpaceEmissiveCIExyYType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveCIExyYType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceEmissiveCIExyYType & type is null", +[](void* o, void* s) { return as<ColorSpaceEmissiveCIExyYType>(s).swap(as<ColorSpaceEmissiveCIExyYType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveCIExyYType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceEmissiveCIExyYType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIExyYType_is_occurs_ok(void* self) { return as<ColorSpaceEmissiveCIExyYType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceEmissiveCIExyYType_get_Name(void* self) { return new_string(as<ColorSpaceEmissiveCIExyYType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIExyYType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceEmissiveCIExyYType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIExyYType_isset_Name(void* self) { return as<ColorSpaceEmissiveCIExyYType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveCIExyYType_unset_Name(void* self) { as<ColorSpaceEmissiveCIExyYType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveCIExyYType_get_ColorSpaceSpecificationEmissiveTristimulus__SWIG_0(void* self) { return &as<ColorSpaceEmissiveCIExyYType>(self).get_ColorSpaceSpecificationEmissiveTristimulus(); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveCIExyYType_assign_ColorSpaceSpecificationEmissiveTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceEmissiveCIExyYType>(s).assign_ColorSpaceSpecificationEmissiveTristimulus(as<ColorSpaceSpecificationEmissiveTristimulus>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceEmissiveCIExyYType_get_X(void* self) { return as<ColorSpaceEmissiveCIExyYType>(self).get_X(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIExyYType_set_X(void* self, double value) { return as<ColorSpaceEmissiveCIExyYType>(self).set_X(value); }
VYR_FLAT(double) CSharp_ColorSpaceEmissiveCIExyYType_get_Y(void* self) { return as<ColorSpaceEmissiveCIExyYType>(self).get_Y(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIExyYType_set_Y(void* self, double value) { return as<ColorSpaceEmissiveCIExyYType>(self).set_Y(value); }
VYR_FLAT(double) CSharp_ColorSpaceEmissiveCIExyYType_get_CapY(void* self) { return as<ColorSpaceEmissiveCIExyYType>(self).get_CapY(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIExyYType_set_CapY(void* self, double value) { return as<ColorSpaceEmissiveCIExyYType>(self).set_CapY(value); }

// ColorSpaceCIELab
VYR_FLAT(void*) CSharp_new_ColorSpaceCIELab__SWIG_0() { return make<ColorSpaceCIELab>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCIELab__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCIELab const & type is null", &copy<ColorSpaceCIELab>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCIELab(void* self) { destroy<ColorSpaceCIELab>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELabUpcast(void* self) { return upcast<ColorSpaceCIELab, ColorSpaceCIELabType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELab_ns_map() { return reference(*ColorSpaceCIELab::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELab_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCIELab>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELab_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceCIELab>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELab_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCIELab>(s).marshal(p); }, self, path); }

// ColorSpaceCIELCh
VYR_FLAT(void*) CSharp_new_ColorSpaceCIELCh__SWIG_0() { return make<ColorSpaceCIELCh>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCIELCh__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCIELCh const & type is null", &copy<ColorSpaceCIELCh>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCIELCh(void* self) { destroy<ColorSpaceCIELCh>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELChUpcast(void* self) { return upcast<ColorSpaceCIELCh, ColorSpaceCIELChType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELCh_ns_map() { return reference(*ColorSpaceCIELCh::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELCh_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCIELCh>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELCh_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceCIELCh>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELCh_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCIELCh>(s).marshal(p); }, self, path); }

// ColorSpaceCIEXYZ
VYR_FLAT(void*) CSharp_new_ColorSpaceCIEXYZ__SWIG_0() { return make<ColorSpaceCIEXYZ>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCIEXYZ__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCIEXYZ const & type is null", &copy<ColorSpaceCIEXYZ>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCIEXYZ(void* self) { destroy<ColorSpaceCIEXYZ>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIEXYZUpcast(void* self) { return upcast<ColorSpaceCIEXYZ, ColorSpaceCIEXYZType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIEXYZ_ns_map() { return reference(*ColorSpaceCIEXYZ::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIEXYZ_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCIEXYZ>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIEXYZ_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceCIEXYZ>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIEXYZ_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCIEXYZ>(s).marshal(p); }, self, path); }

// ColorSpaceEmissiveCIEXYZ
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveCIEXYZ__SWIG_0() { return make<ColorSpaceEmissiveCIEXYZ>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveCIEXYZ__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceEmissiveCIEXYZ const & type is null", &copy<ColorSpaceEmissiveCIEXYZ>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceEmissiveCIEXYZ(void* self) { destroy<ColorSpaceEmissiveCIEXYZ>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveCIEXYZUpcast(void* self) { return upcast<ColorSpaceEmissiveCIEXYZ, ColorSpaceEmissiveCIEXYZType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveCIEXYZ_ns_map() { return reference(*ColorSpaceEmissiveCIEXYZ::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIEXYZ_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceEmissiveCIEXYZ>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIEXYZ_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceEmissiveCIEXYZ>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIEXYZ_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceEmissiveCIEXYZ>(s).marshal(p); }, self, path); }

// ColorSpaceCIExyY
VYR_FLAT(void*) CSharp_new_ColorSpaceCIExyY__SWIG_0() { return make<ColorSpaceCIExyY>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCIExyY__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCIExyY const & type is null", &copy<ColorSpaceCIExyY>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCIExyY(void* self) { destroy<ColorSpaceCIExyY>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIExyYUpcast(void* self) { return upcast<ColorSpaceCIExyY, ColorSpaceCIExyYType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIExyY_ns_map() { return reference(*ColorSpaceCIExyY::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIExyY_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCIExyY>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIExyY_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceCIExyY>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIExyY_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCIExyY>(s).marshal(p); }, self, path); }

// ColorSpaceEmissiveCIExyY
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveCIExyY__SWIG_0() { return make<ColorSpaceEmissiveCIExyY>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveCIExyY__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceEmissiveCIExyY const & type is null", &copy<ColorSpaceEmissiveCIExyY>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceEmissiveCIExyY(void* self) { destroy<ColorSpaceEmissiveCIExyY>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveCIExyYUpcast(void* self) { return upcast<ColorSpaceEmissiveCIExyY, ColorSpaceEmissiveCIExyYType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveCIExyY_ns_map() { return reference(*ColorSpaceEmissiveCIExyY::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIExyY_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceEmissiveCIExyY>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIExyY_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceEmissiveCIExyY>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveCIExyY_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceEmissiveCIExyY>(s).marshal(p); }, self, path); }

// ColorSpaceCIELuv
VYR_FLAT(void*) CSharp_new_ColorSpaceCIELuv__SWIG_0() { return make<ColorSpaceCIELuv>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCIELuv__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCIELuv const & type is null", &copy<ColorSpaceCIELuv>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCIELuv(void* self) { destroy<ColorSpaceCIELuv>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELuvUpcast(void* self) { return upcast<ColorSpaceCIELuv, ColorSpaceCIELuvType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCIELuv_ns_map() { return reference(*ColorSpaceCIELuv::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELuv_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCIELuv>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELuv_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceCIELuv>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCIELuv_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCIELuv>(s).marshal(p); }, self, path); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
