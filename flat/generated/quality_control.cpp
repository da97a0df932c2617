// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in quality_control.h.

#include "flat/call.h"
#include "schema/generated/conditions.h"
#include "schema/generated/devices.h"
#include "schema/generated/groups.h"
#include "schema/generated/header.h"
#include "schema/generated/palettes.h"
#include "schema/generated/quality_control.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// LimitsType
VYR_FLAT(void*) CSharp_new_LimitsType__SWIG_0() { return make<LimitsType>(); }
VYR_FLAT(void*) CSharp_new_LimitsType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::LimitsType const & type is null", &copy<LimitsType>, source); }
VYR_FLAT(void) CSharp_delete_LimitsType(void* self) { destroy<LimitsType>(self); }
VYR_FLAT(void) CSharp_LimitsType_swap(void* self, void* other) { checked("com_vyrgraph_v2::LimitsType & type is null", +[](void* o, void* s) { return as<LimitsType>(s).swap(as<LimitsType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_LimitsType_reset(void* self) { guarded(+[](void* s) { return as<LimitsType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_LimitsType_is_occurs_ok(void* self) { return as<LimitsType>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_LimitsType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<LimitsType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_LimitsType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<LimitsType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_LimitsType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<LimitsType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_LimitsType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<LimitsType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_LimitsType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<LimitsType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_LimitsType_back_CustomAttribute(void* self) { return &as<LimitsType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_LimitsType_delete_CustomAttribute(void* self, std::uint32_t index) { as<LimitsType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_LimitsType_clear_CustomAttribute(void* self) { as<LimitsType>(self).clear_CustomAttribute(); }
VYR_FLAT(double) CSharp_LimitsType_get_HighTolerance(void* self) { return as<LimitsType>(self).get_HighTolerance(); }
VYR_FLAT(std::int32_t) CSharp_LimitsType_set_HighTolerance(void* self, double value) { return as<LimitsType>(self).set_HighTolerance(value); }
VYR_FLAT(double) CSharp_LimitsType_get_LowTolerance(void* self) { return as<LimitsType>(self).get_LowTolerance(); }
VYR_FLAT(std::int32_t) CSharp_LimitsType_set_LowTolerance(void* self, double value) { return as<LimitsType>(self).set_LowTolerance(value); }
VYR_FLAT(std::int32_t) CSharp_LimitsType_isset_LowTolerance(void* self) { return as<LimitsType>(self).isset_LowTolerance(); }
VYR_FLAT(void) CSharp_LimitsType_unset_LowTolerance(void* self) { as<LimitsType>(self).unset_LowTolerance(); }

// ToleranceType
VYR_FLAT(void*) CSharp_new_ToleranceType__SWIG_0() { return make<ToleranceType>(); }
VYR_FLAT(void*) CSharp_new_ToleranceType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ToleranceType const & type is null", &copy<ToleranceType>, source); }
VYR_FLAT(void) CSharp_delete_ToleranceType(void* self) { destroy<ToleranceType>(self); }
VYR_FLAT(void) CSharp_ToleranceType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ToleranceType & type is null", +[](void* o, void* s) { return as<ToleranceType>(s).swap(as<ToleranceType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ToleranceType_reset(void* self) { guarded(+[](void* s) { return as<ToleranceType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_is_occurs_ok(void* self) { return as<ToleranceType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ToleranceType_get_Name(void* self) { return new_string(as<ToleranceType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ToleranceType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_isset_Name(void* self) { return as<ToleranceType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ToleranceType_unset_Name(void* self) { as<ToleranceType>(self).unset_Name(); }
VYR_FLAT(std::uint32_t) CSharp_ToleranceType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<ToleranceType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_ToleranceType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ToleranceType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ToleranceType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ToleranceType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<ToleranceType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ToleranceType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ToleranceType_back_CustomAttribute(void* self) { return &as<ToleranceType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_ToleranceType_delete_CustomAttribute(void* self, std::uint32_t index) { as<ToleranceType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_ToleranceType_clear_CustomAttribute(void* self) { as<ToleranceType>(self).clear_CustomAttribute(); }
VYR_FLAT(void*) CSharp_ToleranceType_get_Function__SWIG_0(void* self) { return &as<ToleranceType>(self).get_Function(); }
VYR_FLAT(void*) CSharp_ToleranceType_assign_Function(void* self, void* value) { return checked("com_vyrgraph_v2::sg_Function const & type is null", +[](void* v, void* s) -> void* { return &as<ToleranceType>(s).assign_Function(as<sg_Function>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_ToleranceType_get_Limits__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ToleranceType>(s).get_Limits(); }, self); }
VYR_FLAT(void*) CSharp_ToleranceType_assign_Limits(void* self, void* value) { return checked("com_vyrgraph_v2::LimitsType const & type is null", +[](void* v, void* s) -> void* { return &as<ToleranceType>(s).assign_Limits(as<LimitsType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_isset_Limits(void* self) { return as<ToleranceType>(self).isset_Limits(); }
VYR_FLAT(void) CSharp_ToleranceType_unset_Limits(void* self) { as<ToleranceType>(self).unset_Limits(); }
VYR_FLAT(char16_t*) CSharp_ToleranceType_get_PrimaryIlluminant(void* self) { return new_string(as<ToleranceType>(self).get_PrimaryIlluminant()); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_set_PrimaryIlluminant(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ToleranceType>(s).set_PrimaryIlluminant(v); }); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_getenum_PrimaryIlluminant(void* self) { return as<ToleranceType>(self).getenum_PrimaryIlluminant(); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_setenum_PrimaryIlluminant(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ToleranceType>(s).setenum_PrimaryIlluminant(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_isset_PrimaryIlluminant(void* self) { return as<ToleranceType>(self).isset_PrimaryIlluminant(); }
VYR_FLAT(void) CSharp_ToleranceType_unset_PrimaryIlluminant(void* self) { as<ToleranceType>(self).unset_PrimaryIlluminant(); }
VYR_FLAT(char16_t*) CSharp_ToleranceType_get_SecondaryIlluminant(void* self) { return new_string(as<ToleranceType>(self).get_SecondaryIlluminant()); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_set_SecondaryIlluminant(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ToleranceType>(s).set_SecondaryIlluminant(v); }); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_getenum_SecondaryIlluminant(void* self) { return as<ToleranceType>(self).getenum_SecondaryIlluminant(); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_setenum_SecondaryIlluminant(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ToleranceType>(s).setenum_SecondaryIlluminant(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_isset_SecondaryIlluminant(void* self) { return as<ToleranceType>(self).isset_SecondaryIlluminant(); }
VYR_FLAT(void) CSharp_ToleranceType_unset_SecondaryIlluminant(void* self) { as<ToleranceType>(self).unset_SecondaryIlluminant(); }
VYR_FLAT(char16_t*) CSharp_ToleranceType_get_TertiaryIlluminant(void* self) { return new_string(as<ToleranceType>(self).get_TertiaryIlluminant()); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_set_TertiaryIlluminant(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ToleranceType>(s).set_TertiaryIlluminant(v); }); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_getenum_TertiaryIlluminant(void* self) { return as<ToleranceType>(self).getenum_TertiaryIlluminant(); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_setenum_TertiaryIlluminant(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ToleranceType>(s).setenum_TertiaryIlluminant(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_isset_TertiaryIlluminant(void* self) { return as<ToleranceType>(self).isset_TertiaryIlluminant(); }
VYR_FLAT(void) CSharp_ToleranceType_unset_TertiaryIlluminant(void* self) { as<ToleranceType>(self).unset_TertiaryIlluminant(); }
VYR_FLAT(char16_t*) CSharp_ToleranceType_get_FieldOfView(void* self) { return new_string(as<ToleranceType>(self).get_FieldOfView()); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_set_FieldOfView(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ToleranceType>(s).set_FieldOfView(v); }); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_getenum_FieldOfView(void* self) { return as<ToleranceType>(self).getenum_FieldOfView(); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_setenum_FieldOfView(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ToleranceType>(s).setenum_FieldOfView(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_isset_FieldOfView(void* self) { return as<ToleranceType>(self).isset_FieldOfView(); }
VYR_FLAT(void) CSharp_ToleranceType_unset_FieldOfView(void* self) { as<ToleranceType>(self).unset_FieldOfView(); }
VYR_FLAT(double) CSharp_ToleranceType_get_WarningLevel(void* self) { return as<ToleranceType>(self).get_WarningLevel(); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_set_WarningLevel(void* self, double value) { return as<ToleranceType>(self).set_WarningLevel(value); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_isset_WarningLevel(void* self) { return as<ToleranceType>(self).isset_WarningLevel(); }
VYR_FLAT(void) CSharp_ToleranceType_unset_WarningLevel(void* self) { as<ToleranceType>(self).unset_WarningLevel(); }
VYR_FLAT(char16_t*) CSharp_ToleranceType_get_UniqueID(void* self) { return new_string(as<ToleranceType>(self).get_UniqueID()); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_set_UniqueID(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ToleranceType>(s).set_UniqueID(v); }); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_isset_UniqueID(void* self) { return as<ToleranceType>(self).isset_UniqueID(); }
VYR_FLAT(void) CSharp_ToleranceType_unset_UniqueID(void* self) { as<ToleranceType>(self).unset_UniqueID(); }
VYR_FLAT(std::uint32_t) CSharp_ToleranceType_get_Global(void* self) { return as<ToleranceType>(self).get_Global(); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_set_Global(void* self, std::uint32_t value) { return as<ToleranceType>(self).set_Global(to_bool(value)); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_isset_Global(void* self) { return as<ToleranceType>(self).isset_Global(); }
VYR_FLAT(void) CSharp_ToleranceType_unset_Global(void* self) { as<ToleranceType>(self).unset_Global(); }
VYR_FLAT(void*) CSharp_ToleranceType_get_Geometry__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ToleranceType>(s).get_Geometry(); }, self); }
VYR_FLAT(void*) CSharp_ToleranceType_assign_Geometry(void* self, void* value) { return checked("com_vyrgraph_v2::GeometryChoiceType const & type is null", +[](void* v, void* s) -> void* { return &as<ToleranceType>(s).assign_Geometry(as<GeometryChoiceType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ToleranceType_isset_Geometry(void* self) { return as<ToleranceType>(self).isset_Geometry(); }
VYR_FLAT(void) CSharp_ToleranceType_unset_Geometry(void* self) { as<ToleranceType>(self).unset_Geometry(); }

// Process
VYR_FLAT(void*) CSharp_new_Process__SWIG_0() { return make<Process>(); }
VYR_FLAT(void*) CSharp_new_Process__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Process const & type is null", &copy<Process>, source); }
VYR_FLAT(void) CSharp_delete_Process(void* self) { destroy<Process>(self); }
VYR_FLAT(void) CSharp_Process_swap(void* self, void* other) { checked("com_vyrgraph_v2::Process & type is null", +[](void* o, void* s) { return as<Process>(s).swap(as<Process>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Process_reset(void* self) { guarded(+[](void* s) { return as<Process>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Process_is_occurs_ok(void* self) { return as<Process>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_Process_get_Name(void* self) { return new_string(as<Process>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_Process_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Process>(s).set_Name(v); }); }
VYR_FLAT(double) CSharp_Process_get_Thickness(void* self) { return as<Process>(self).get_Thickness(); }
VYR_FLAT(std::int32_t) CSharp_Process_set_Thickness(void* self, double value) { return as<Process>(self).set_Thickness(value); }
VYR_FLAT(std::int32_t) CSharp_Process_isset_Thickness(void* self) { return as<Process>(self).isset_Thickness(); }
VYR_FLAT(void) CSharp_Process_unset_Thickness(void* self) { as<Process>(self).unset_Thickness(); }

// PhysicalSampleType
VYR_FLAT(void*) CSharp_new_PhysicalSampleType__SWIG_0() { return make<PhysicalSampleType>(); }
VYR_FLAT(void*) CSharp_new_PhysicalSampleType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::PhysicalSampleType const & type is null", &copy<PhysicalSampleType>, source); }
VYR_FLAT(void) CSharp_delete_PhysicalSampleType(void* self) { destroy<PhysicalSampleType>(self); }
VYR_FLAT(void) CSharp_PhysicalSampleType_swap(void* self, void* other) { checked("com_vyrgraph_v2::PhysicalSampleType & type is null", +[](void* o, void* s) { return as<PhysicalSampleType>(s).swap(as<PhysicalSampleType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_PhysicalSampleType_reset(void* self) { guarded(+[](void* s) { return as<PhysicalSampleType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_PhysicalSampleType_is_occurs_ok(void* self) { return as<PhysicalSampleType>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_PhysicalSampleType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<PhysicalSampleType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_PhysicalSampleType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<PhysicalSampleType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_PhysicalSampleType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<PhysicalSampleType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_PhysicalSampleType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<PhysicalSampleType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_PhysicalSampleType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<PhysicalSampleType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_PhysicalSampleType_back_CustomAttribute(void* self) { return &as<PhysicalSampleType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_PhysicalSampleType_delete_CustomAttribute(void* self, std::uint32_t index) { as<PhysicalSampleType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_PhysicalSampleType_clear_CustomAttribute(void* self) { as<PhysicalSampleType>(self).clear_CustomAttribute(); }
VYR_FLAT(char16_t*) CSharp_PhysicalSampleType_get_Coating(void* self) { return new_string(as<PhysicalSampleType>(self).get_Coating()); }
VYR_FLAT(std::int32_t) CSharp_PhysicalSampleType_set_Coating(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<PhysicalSampleType>(s).set_Coating(v); }); }
VYR_FLAT(std::int32_t) CSharp_PhysicalSampleType_isset_Coating(void* self) { return as<PhysicalSampleType>(self).isset_Coating(); }
VYR_FLAT(void) CSharp_PhysicalSampleType_unset_Coating(void* self) { as<PhysicalSampleType>(self).unset_Coating(); }
VYR_FLAT(void*) CSharp_PhysicalSampleType_get_Process__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<PhysicalSampleType>(s).get_Process(); }, self); }
VYR_FLAT(void*) CSharp_PhysicalSampleType_assign_Process(void* self, void* value) { return checked("com_vyrgraph_v2::Process const & type is null", +[](void* v, void* s) -> void* { return &as<PhysicalSampleType>(s).assign_Process(as<Process>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_PhysicalSampleType_isset_Process(void* self) { return as<PhysicalSampleType>(self).isset_Process(); }
VYR_FLAT(void) CSharp_PhysicalSampleType_unset_Process(void* self) { as<PhysicalSampleType>(self).unset_Process(); }
VYR_FLAT(void*) CSharp_PhysicalSampleType_get_Sample__SWIG_0(void* self) { return &as<PhysicalSampleType>(self).get_Sample(); }
VYR_FLAT(void*) CSharp_PhysicalSampleType_assign_Sample(void* self, void* value) { return checked("com_vyrgraph_v2::sg_Sample const & type is null", +[](void* v, void* s) -> void* { return &as<PhysicalSampleType>(s).assign_Sample(as<sg_Sample>(v)); }, value, self); }

// ColorQualityControlType
VYR_FLAT(void*) CSharp_new_ColorQualityControlType__SWIG_0() { return make<ColorQualityControlType>(); }
VYR_FLAT(void*) CSharp_new_ColorQualityControlType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorQualityControlType const & type is null", &copy<ColorQualityControlType>, source); }
VYR_FLAT(void) CSharp_delete_ColorQualityControlType(void* self) { destroy<ColorQualityControlType>(self); }
VYR_FLAT(void) CSharp_ColorQualityControlType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorQualityControlType & type is null", +[](void* o, void* s) { return as<ColorQualityControlType>(s).swap(as<ColorQualityControlType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorQualityControlType_reset(void* self) { guarded(+[](void* s) { return as<ColorQualityControlType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_is_occurs_ok(void* self) { return as<ColorQualityControlType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorQualityControlType_get_Name(void* self) { return new_string(as<ColorQualityControlType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorQualityControlType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_isset_Name(void* self) { return as<ColorQualityControlType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorQualityControlType_unset_Name(void* self) { as<ColorQualityControlType>(self).unset_Name(); }
VYR_FLAT(char16_t*) CSharp_ColorQualityControlType_get_Description(void* self) { return new_string(as<ColorQualityControlType>(self).get_Description()); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_set_Description(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorQualityControlType>(s).set_Description(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_isset_Description(void* self) { return as<ColorQualityControlType>(self).isset_Description(); }
VYR_FLAT(void) CSharp_ColorQualityControlType_unset_Description(void* self) { as<ColorQualityControlType>(self).unset_Description(); }
VYR_FLAT(char16_t*) CSharp_ColorQualityControlType_get_UniqueID(void* self) { return new_string(as<ColorQualityControlType>(self).get_UniqueID()); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_set_UniqueID(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorQualityControlType>(s).set_UniqueID(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_isset_UniqueID(void* self) { return as<ColorQualityControlType>(self).isset_UniqueID(); }
VYR_FLAT(void) CSharp_ColorQualityControlType_unset_UniqueID(void* self) { as<ColorQualityControlType>(self).unset_UniqueID(); }
VYR_FLAT(char16_t*) CSharp_ColorQualityControlType_get_Comments(void* self) { return new_string(as<ColorQualityControlType>(self).get_Comments()); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_set_Comments(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorQualityControlType>(s).set_Comments(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_isset_Comments(void* self) { return as<ColorQualityControlType>(self).isset_Comments(); }
VYR_FLAT(void) CSharp_ColorQualityControlType_unset_Comments(void* self) { as<ColorQualityControlType>(self).unset_Comments(); }
VYR_FLAT(std::uint32_t) CSharp_ColorQualityControlType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<ColorQualityControlType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_ColorQualityControlType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorQualityControlType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorQualityControlType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorQualityControlType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<ColorQualityControlType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorQualityControlType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorQualityControlType_back_CustomAttribute(void* self) { return &as<ColorQualityControlType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_ColorQualityControlType_delete_CustomAttribute(void* self, std::uint32_t index) { as<ColorQualityControlType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_ColorQualityControlType_clear_CustomAttribute(void* self) { as<ColorQualityControlType>(self).clear_CustomAttribute(); }
VYR_FLAT(std::uint32_t) CSharp_ColorQualityControlType_size_ChangeHistory(void* self) { return static_cast<std::uint32_t>(as<ColorQualityControlType>(self).size_ChangeHistory()); }
VYR_FLAT(void*) CSharp_ColorQualityControlType_get_ChangeHistory(void* self, std::uint32_t index) { return reference(as<ColorQualityControlType>(self).get_ChangeHistory(index)); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_set_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<ColorQualityControlType>(s).set_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_append_ChangeHistory(void* self, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s) { return as<ColorQualityControlType>(s).append_ChangeHistory(as<lmx::c_datetime>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_insert_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<ColorQualityControlType>(s).insert_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(void) CSharp_ColorQualityControlType_delete_ChangeHistory(void* self, std::uint32_t index) { as<ColorQualityControlType>(self).delete_ChangeHistory(index); }
VYR_FLAT(void) CSharp_ColorQualityControlType_clear_ChangeHistory(void* self) { as<ColorQualityControlType>(self).clear_ChangeHistory(); }
VYR_FLAT(std::uint32_t) CSharp_ColorQualityControlType_size_StandardAndMeasurement(void* self) { return static_cast<std::uint32_t>(as<ColorQualityControlType>(self).size_StandardAndMeasurement()); }
VYR_FLAT(void*) CSharp_ColorQualityControlType_get_StandardAndMeasurement__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorQualityControlType>(s).get_StandardAndMeasurement(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorQualityControlType_assign_StandardAndMeasurement(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::StandardAndMeasurementType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorQualityControlType>(s).assign_StandardAndMeasurement(i, as<StandardAndMeasurementType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_append_StandardAndMeasurement(void* self) { return guarded(+[](void* s) { return as<ColorQualityControlType>(s).append_StandardAndMeasurement(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_insert_StandardAndMeasurement(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorQualityControlType>(s).insert_StandardAndMeasurement(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorQualityControlType_back_StandardAndMeasurement(void* self) { return &as<ColorQualityControlType>(self).back_StandardAndMeasurement(); }
VYR_FLAT(void) CSharp_ColorQualityControlType_delete_StandardAndMeasurement(void* self, std::uint32_t index) { as<ColorQualityControlType>(self).delete_StandardAndMeasurement(index); }
VYR_FLAT(void) CSharp_ColorQualityControlType_clear_StandardAndMeasurement(void* self) { as<ColorQualityControlType>(self).clear_StandardAndMeasurement(); }
VYR_FLAT(void*) CSharp_ColorQualityControlType_get_PhysicalSample__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ColorQualityControlType>(s).get_PhysicalSample(); }, self); }
VYR_FLAT(void*) CSharp_ColorQualityControlType_assign_PhysicalSample(void* self, void* value) { return checked("com_vyrgraph_v2::PhysicalSampleType const & type is null", +[](void* v, void* s) -> void* { return &as<ColorQualityControlType>(s).assign_PhysicalSample(as<PhysicalSampleType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_isset_PhysicalSample(void* self) { return as<ColorQualityControlType>(self).isset_PhysicalSample(); }
VYR_FLAT(void) CSharp_ColorQualityControlType_unset_PhysicalSample(void* self) { as<ColorQualityControlType>(self).unset_PhysicalSample(); }
VYR_FLAT(std::uint32_t) CSharp_ColorQualityControlType_size_Tolerance(void* self) { return static_cast<std::uint32_t>(as<ColorQualityControlType>(self).size_Tolerance()); }
VYR_FLAT(void*) CSharp_ColorQualityControlType_get_Tolerance__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorQualityControlType>(s).get_Tolerance(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorQualityControlType_assign_Tolerance(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::ToleranceType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorQualityControlType>(s).assign_Tolerance(i, as<ToleranceType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_append_Tolerance(void* self) { return guarded(+[](void* s) { return as<ColorQualityControlType>(s).append_Tolerance(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorQualityControlType_insert_Tolerance(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorQualityControlType>(s).insert_Tolerance(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorQualityControlType_back_Tolerance(void* self) { return &as<ColorQualityControlType>(self).back_Tolerance(); }
VYR_FLAT(void) CSharp_ColorQualityControlType_delete_Tolerance(void* self, std::uint32_t index) { as<ColorQualityControlType>(self).delete_Tolerance(index); }
VYR_FLAT(void) CSharp_ColorQualityControlType_clear_Tolerance(void* self) { as<ColorQualityControlType>(self).clear_Tolerance(); }

// Measurement
VYR_FLAT(void*) CSharp_new_Measurement__SWIG_0() { return make<Measurement>(); }
VYR_FLAT(void*) CSharp_new_Measurement__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Measurement const & type is null", &copy<Measurement>, source); }
VYR_FLAT(void) CSharp_delete_Measurement(void* self) { destroy<Measurement>(self); }
VYR_FLAT(void*) CSharp_Measurement_ns_map() { return reference(*Measurement::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_Measurement_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<Measurement>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_Measurement_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<Measurement>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_Measurement_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<Measurement>(s).marshal(p); }, self, path); }
VYR_FLAT(void) CSharp_Measurement_swap(void* self, void* other) { checked("com_vyrgraph_v2::Measurement & type is null", +[](void* o, void* s) { return as<Measurement>(s).swap(as<Measurement>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Measurement_reset(void* self) { guarded(+[](void* s) { return as<Measurement>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Measurement_is_occurs_ok(void* self) { return as<Measurement>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_Measurement_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<Measurement>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_Measurement_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Measurement>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_Measurement_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Measurement>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Measurement_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<Measurement>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Measurement_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Measurement>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_Measurement_back_CustomAttribute(void* self) { return &as<Measurement>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_Measurement_delete_CustomAttribute(void* self, std::uint32_t index) { as<Measurement>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_Measurement_clear_CustomAttribute(void* self) { as<Measurement>(self).clear_CustomAttribute(); }
VYR_FLAT(void*) CSharp_Measurement_get_Device__SWIG_0(void* self) { return &as<Measurement>(self).get_Device(); }
VYR_FLAT(void*) CSharp_Measurement_assign_Device(void* self, void* value) { return checked("com_vyrgraph_v2::DeviceType const & type is null", +[](void* v, void* s) -> void* { return &as<Measurement>(s).assign_Device(as<DeviceType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_Measurement_get_Color__SWIG_0(void* self) { return &as<Measurement>(self).get_Color(); }
VYR_FLAT(void*) CSharp_Measurement_assign_Color(void* self, void* value) { return checked("com_vyrgraph_v2::ColorType const & type is null", +[](void* v, void* s) -> void* { return &as<Measurement>(s).assign_Color(as<ColorType>(v)); }, value, self); }
VYR_FLAT(std::uint32_t) CSharp_Measurement_size_Function(void* self) { return static_cast<std::uint32_t>(as<Measurement>(self).size_Function()); }
VYR_FLAT(void*) CSharp_Measurement_get_Function__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Measurement>(s).get_Function(i); }, self, index); }
VYR_FLAT(void*) CSharp_Measurement_assign_Function(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::sg_Function const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Measurement>(s).assign_Function(i, as<sg_Function>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Measurement_append_Function(void* self) { return guarded(+[](void* s) { return as<Measurement>(s).append_Function(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Measurement_insert_Function(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Measurement>(s).insert_Function(i); }, self, index); }
VYR_FLAT(void*) CSharp_Measurement_back_Function(void* self) { return &as<Measurement>(self).back_Function(); }
VYR_FLAT(void) CSharp_Measurement_delete_Function(void* self, std::uint32_t index) { as<Measurement>(self).delete_Function(index); }
VYR_FLAT(void) CSharp_Measurement_clear_Function(void* self) { as<Measurement>(self).clear_Function(); }

// Standard
VYR_FLAT(void*) CSharp_new_Standard__SWIG_0() { return make<Standard>(); }
VYR_FLAT(void*) CSharp_new_Standard__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Standard const & type is null", &copy<Standard>, source); }
VYR_FLAT(void) CSharp_delete_Standard(void* self) { destroy<Standard>(self); }
VYR_FLAT(void*) CSharp_Standard_ns_map() { return reference(*Standard::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_Standard_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<Standard>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_Standard_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<Standard>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_Standard_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<Standard>(s).marshal(p); }, self, path); }
VYR_FLAT(void) CSharp_Standard_swap(void* self, void* other) { checked("com_vyrgraph_v2::Standard & type is null", +[](void* o, void* s) { return as<Standard>(s).swap(as<Standard>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Standard_reset(void* self) { guarded(+[](void* s) { return as<Standard>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Standard_is_occurs_ok(void* self) { return as<Standard>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_Standard_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<Standard>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_Standard_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Standard>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_Standard_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Standard>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Standard_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<Standard>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Standard_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Standard>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_Standard_back_CustomAttribute(void* self) { return &as<Standard>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_Standard_delete_CustomAttribute(void* self, std::uint32_t index) { as<Standard>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_Standard_clear_CustomAttribute(void* self) { as<Standard>(self).clear_CustomAttribute(); }
VYR_FLAT(void*) CSharp_Standard_get_Device__SWIG_0(void* self) { return &as<Standard>(self).get_Device(); }
VYR_FLAT(void*) CSharp_Standard_assign_Device(void* self, void* value) { return checked("com_vyrgraph_v2::DeviceType const & type is null", +[](void* v, void* s) -> void* { return &as<Standard>(s).assign_Device(as<DeviceType>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_Standard_get_Color__SWIG_0(void* self) { return &as<Standard>(self).get_Color(); }
VYR_FLAT(void*) CSharp_Standard_assign_Color(void* self, void* value) { return checked("com_vyrgraph_v2::ColorType const & type is null", +[](void* v, void* s) -> void* { return &as<Standard>(s).assign_Color(as<ColorType>(v)); }, value, self); }
VYR_FLAT(std::uint32_t) CSharp_Standard_size_Tolerance(void* self) { return static_cast<std::uint32_t>(as<Standard>(self).size_Tolerance()); }
VYR_FLAT(void*) CSharp_Standard_get_Tolerance__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Standard>(s).get_Tolerance(i); }, self, index); }
VYR_FLAT(void*) CSharp_Standard_assign_Tolerance(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::ToleranceType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Standard>(s).assign_Tolerance(i, as<ToleranceType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Standard_append_Tolerance(void* self) { return guarded(+[](void* s) { return as<Standard>(s).append_Tolerance(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Standard_insert_Tolerance(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Standard>(s).insert_Tolerance(i); }, self, index); }
VYR_FLAT(void*) CSharp_Standard_back_Tolerance(void* self) { return &as<Standard>(self).back_Tolerance(); }
VYR_FLAT(void) CSharp_Standard_delete_Tolerance(void* self, std::uint32_t index) { as<Standard>(self).delete_Tolerance(index); }
VYR_FLAT(void) CSharp_Standard_clear_Tolerance(void* self) { as<Standard>(self).clear_Tolerance(); }
VYR_FLAT(std::int32_t) CSharp_Standard_isnil_Standard(void* self) { return as<Standard>(self).isnil_Standard(); }
VYR_FLAT(void) CSharp_Standard_setnil_Standard(void* self) { as<Standard>(self).setnil_Standard(); }

// StandardAndMeasurementType
VYR_FLAT(void*) CSharp_new_StandardAndMeasurementType__SWIG_0() { return make<StandardAndMeasurementType>(); }
VYR_FLAT(void*) CSharp_new_StandardAndMeasurementType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::StandardAndMeasurementType const & type is null", &copy<StandardAndMeasurementType>, source); }
VYR_FLAT(void) CSharp_delete_StandardAndMeasurementType(void* self) { destroy<StandardAndMeasurementType>(self); }
VYR_FLAT(void) CSharp_StandardAndMeasurementType_swap(void* self, void* other) { checked("com_vyrgraph_v2::StandardAndMeasurementType & type is null", +[](void* o, void* s) { return as<StandardAndMeasurementType>(s).swap(as<StandardAndMeasurementType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_StandardAndMeasurementType_reset(void* self) { guarded(+[](void* s) { return as<StandardAndMeasurementType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_StandardAndMeasurementType_is_occurs_ok(void* self) { return as<StandardAndMeasurementType>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_StandardAndMeasurementType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<StandardAndMeasurementType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_StandardAndMeasurementType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<StandardAndMeasurementType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_StandardAndMeasurementType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<StandardAndMeasurementType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_StandardAndMeasurementType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<StandardAndMeasurementType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_StandardAndMeasurementType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<StandardAndMeasurementType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_StandardAndMeasurementType_back_CustomAttribute(void* self) { return &as<StandardAndMeasurementType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_StandardAndMeasurementType_delete_CustomAttribute(void* self, std::uint32_t index) { as<StandardAndMeasurementType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_StandardAndMeasurementType_clear_CustomAttribute(void* self) { as<StandardAndMeasurementType>(self).clear_CustomAttribute(); }
VYR_FLAT(std::uint32_t) CSharp_StandardAndMeasurementType_size_Measurement(void* self) { return static_cast<std::uint32_t>(as<StandardAndMeasurementType>(self).size_Measurement()); }
VYR_FLAT(void*) CSharp_StandardAndMeasurementType_get_Measurement__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<StandardAndMeasurementType>(s).get_Measurement(i); }, self, index); }
VYR_FLAT(void*) CSharp_StandardAndMeasurementType_assign_Measurement(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::Measurement const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<StandardAndMeasurementType>(s).assign_Measurement(i, as<Measurement>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_StandardAndMeasurementType_append_Measurement(void* self) { return guarded(+[](void* s) { return as<StandardAndMeasurementType>(s).append_Measurement(); }, self); }
VYR_FLAT(std::int32_t) CSharp_StandardAndMeasurementType_insert_Measurement(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<StandardAndMeasurementType>(s).insert_Measurement(i); }, self, index); }
VYR_FLAT(void*) CSharp_StandardAndMeasurementType_back_Measurement(void* self) { return &as<StandardAndMeasurementType>(self).back_Measurement(); }
VYR_FLAT(void) CSharp_StandardAndMeasurementType_delete_Measurement(void* self, std::uint32_t index) { as<StandardAndMeasurementType>(self).delete_Measurement(index); }
VYR_FLAT(void) CSharp_StandardAndMeasurementType_clear_Measurement(void* self) { as<StandardAndMeasurementType>(self).clear_Measurement(); }
VYR_FLAT(void*) CSharp_StandardAndMeasurementType_get_Standard__SWIG_0(void* self) { return &as<StandardAndMeasurementType>(self).get_Standard(); }
VYR_FLAT(void*) CSharp_StandardAndMeasurementType_assign_Standard(void* self, void* value) { return checked("com_vyrgraph_v2::Standard const & type is null", +[](void* v, void* s) -> void* { return &as<StandardAndMeasurementType>(s).assign_Standard(as<Standard>(v)); }, value, self); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
