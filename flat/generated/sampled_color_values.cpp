// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in sampled_color_values.h.

#include "flat/call.h"
#include "schema/generated/color_values.h"
#include "schema/generated/conditions.h"
#include "schema/generated/sampled_color_values.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// ColorSpaceDensityType
VYR_FLAT(void*) CSharp_new_ColorSpaceDensityType__SWIG_0() { return make<ColorSpaceDensityType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceDensityType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceDensityType const & type is null", &copy<ColorSpaceDensityType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceDensityType(void* self) { destroy<ColorSpaceDensityType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceDensityTypeUpcast(void* self) { return upcast<ColorSpaceDensityType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceDensityType_id_get() { return ColorSpaceDensityType::id; }
VYR_FLAT(void) CSharp_ColorSpaceDensityType_id_set(const char* identity) { set_identity(&ColorSpaceDensityType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceDensityType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceDensityType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceDensityType_getid(void* self) { return new_string(as<ColorSpaceDensityType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceDensityType_has_id(void* self, const char* identity) { return as<ColorSpaceDensityType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceDensityType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceDensityType & type is null", +[](void* o, void* s) { return as<ColorSpaceDensityType>(s).swap(as<ColorSpaceDensityType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceDensityType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceDensityType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceDensityType_is_occurs_ok(void* self) { return as<ColorSpaceDensityType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceDensityType_get_Name(void* self) { return new_string(as<ColorSpaceDensityType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceDensityType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceDensityType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceDensityType_isset_Name(void* self) { return as<ColorSpaceDensityType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceDensityType_unset_Name(void* self) { as<ColorSpaceDensityType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceDensityType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return &as<ColorSpaceDensityType>(self).get_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceDensityType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceDensityType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceDensityType_size_Density(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceDensityType>(self).size_Density()); }
VYR_FLAT(void*) CSharp_ColorSpaceDensityType_get_Density__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSpaceDensityType>(s).get_Density(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceDensityType_assign_Density(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::DensityType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSpaceDensityType>(s).assign_Density(i, as<DensityType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceDensityType_append_Density(void* self) { return guarded(+[](void* s) { return as<ColorSpaceDensityType>(s).append_Density(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceDensityType_insert_Density(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSpaceDensityType>(s).insert_Density(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceDensityType_back_Density(void* self) { return &as<ColorSpaceDensityType>(self).back_Density(); }
VYR_FLAT(void) CSharp_ColorSpaceDensityType_delete_Density(void* self, std::uint32_t index) { as<ColorSpaceDensityType>(self).delete_Density(index); }
VYR_FLAT(void) CSharp_ColorSpaceDensityType_clear_Density(void* self) { as<ColorSpaceDensityType>(self).clear_Density(); }

// ColorSpaceSpectralType
VYR_FLAT(void*) CSharp_new_ColorSpaceSpectralType__SWIG_0() { return make<ColorSpaceSpectralType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpectralType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpectralType const & type is null", &copy<ColorSpaceSpectralType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpectralType(void* self) { destroy<ColorSpaceSpectralType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpectralTypeUpcast(void* self) { return upcast<ColorSpaceSpectralType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceSpectralType_id_get() { return ColorSpaceSpectralType::id; }
VYR_FLAT(void) CSharp_ColorSpaceSpectralType_id_set(const char* identity) { set_identity(&ColorSpaceSpectralType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceSpectralType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceSpectralType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceSpectralType_getid(void* self) { return new_string(as<ColorSpaceSpectralType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpectralType_has_id(void* self, const char* identity) { return as<ColorSpaceSpectralType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceSpectralType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSpectralType & type is null", +[](void* o, void* s) { return as<ColorSpaceSpectralType>(s).swap(as<ColorSpaceSpectralType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSpectralType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSpectralType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpectralType_is_occurs_ok(void* self) { return as<ColorSpaceSpectralType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSpectralType_get_Name(void* self) { return new_string(as<ColorSpaceSpectralType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpectralType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSpectralType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpectralType_isset_Name(void* self) { return as<ColorSpaceSpectralType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceSpectralType_unset_Name(void* self) { as<ColorSpaceSpectralType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpectralType_get_ColorSpaceSpecificationSpectrumSpectral__SWIG_0(void* self) { return &as<ColorSpaceSpectralType>(self).get_ColorSpaceSpecificationSpectrumSpectral(); }
VYR_FLAT(void*) CSharp_ColorSpaceSpectralType_assign_ColorSpaceSpecificationSpectrumSpectral(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumSpectral const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSpectralType>(s).assign_ColorSpaceSpecificationSpectrumSpectral(as<ColorSpaceSpecificationSpectrumSpectral>(v)); }, value, self); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceSpectralType_size_ReflectancePoint(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceSpectralType>(self).size_ReflectancePoint()); }
VYR_FLAT(void*) CSharp_ColorSpaceSpectralType_get_ReflectancePoint__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSpaceSpectralType>(s).get_ReflectancePoint(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceSpectralType_assign_ReflectancePoint(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::ReflectancePointType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSpaceSpectralType>(s).assign_ReflectancePoint(i, as<ReflectancePointType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpectralType_append_ReflectancePoint(void* self) { return guarded(+[](void* s) { return as<ColorSpaceSpectralType>(s).append_ReflectancePoint(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpectralType_insert_ReflectancePoint(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSpaceSpectralType>(s).insert_ReflectancePoint(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceSpectralType_back_ReflectancePoint(void* self) { return &as<ColorSpaceSpectralType>(self).back_ReflectancePoint(); }
VYR_FLAT(void) CSharp_ColorSpaceSpectralType_delete_ReflectancePoint(void* self, std::uint32_t index) { as<ColorSpaceSpectralType>(self).delete_ReflectancePoint(index); }
VYR_FLAT(void) CSharp_ColorSpaceSpectralType_clear_ReflectancePoint(void* self) { as<ColorSpaceSpectralType>(self).clear_ReflectancePoint(); }

// ColorSpaceEmissiveSpectralType
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveSpectralType__SWIG_0() { return make<ColorSpaceEmissiveSpectralType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveSpectralType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceEmissiveSpectralType const & type is null", &copy<ColorSpaceEmissiveSpectralType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceEmissiveSpectralType(void* self) { destroy<ColorSpaceEmissiveSpectralType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveSpectralTypeUpcast(void* self) { return upcast<ColorSpaceEmissiveSpectralType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceEmissiveSpectralType_id_get() { return ColorSpaceEmissiveSpectralType::id; }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveSpectralType_id_set(const char* identity) { set_identity(&ColorSpaceEmissiveSpectralType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveSpectralType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceEmissiveSpectralType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceEmissiveSpectralType_getid(void* self) { return new_string(as<ColorSpaceEmissiveSpectralType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveSpectralType_has_id(void* self, const char* identity) { return as<ColorSpaceEmissiveSpectralType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveSpectralType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceEmissiveSpectralType & type is null", +[](void* o, void* s) { return as<ColorSpaceEmissiveSpectralType>(s).swap(as<ColorSpaceEmissiveSpectralType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveSpectralType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceEmissiveSpectralType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveSpectralType_is_occurs_ok(void* self) { return as<ColorSpaceEmissiveSpectralType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceEmissiveSpectralType_get_Name(void* self) { return new_string(as<ColorSpaceEmissiveSpectralType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveSpectralType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceEmissiveSpectralType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveSpectralType_isset_Name(void* self) { return as<ColorSpaceEmissiveSpectralType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveSpectralType_unset_Name(void* self) { as<ColorSpaceEmissiveSpectralType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveSpectralType_get_ColorSpaceSpecificationEmissiveSpectral__SWIG_0(void* self) { return &as<ColorSpaceEmissiveSpectralType>(self).get_ColorSpaceSpecificationEmissiveSpectral(); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveSpectralType_assign_ColorSpaceSpecificationEmissiveSpectral(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveSpectral const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceEmissiveSpectralType>(s).assign_ColorSpaceSpecificationEmissiveSpectral(as<ColorSpaceSpecificationEmissiveSpectral>(v)); }, value, self); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceEmissiveSpectralType_size_EmissiveSpectralPoint(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceEmissiveSpectralType>(self).size_EmissiveSpectralPoint()); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveSpectralType_get_EmissiveSpectralPoint__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSpaceEmissiveSpectralType>(s).get_EmissiveSpectralPoint(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveSpectralType_assign_EmissiveSpectralPoint(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::EmissiveSpectralPointType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSpaceEmissiveSpectralType>(s).assign_EmissiveSpectralPoint(i, as<EmissiveSpectralPointType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveSpectralType_append_EmissiveSpectralPoint(void* self) { return guarded(+[](void* s) { return as<ColorSpaceEmissiveSpectralType>(s).append_EmissiveSpectralPoint(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveSpectralType_insert_EmissiveSpectralPoint(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSpaceEmissiveSpectralType>(s).insert_EmissiveSpectralPoint(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveSpectralType_back_EmissiveSpectralPoint(void* self) { return &as<ColorSpaceEmissiveSpectralType>(self).back_EmissiveSpectralPoint(); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveSpectralType_delete_EmissiveSpectralPoint(void* self, std::uint32_t index) { as<ColorSpaceEmissiveSpectralType>(self).delete_EmissiveSpectralPoint(index); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveSpectralType_clear_EmissiveSpectralPoint(void* self) { as<ColorSpaceEmissiveSpectralType>(self).clear_EmissiveSpectralPoint(); }

// ColorSpaceGenericType
VYR_FLAT(void*) CSharp_new_ColorSpaceGenericType__SWIG_0() { return make<ColorSpaceGenericType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceGenericType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceGenericType const & type is null", &copy<ColorSpaceGenericType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceGenericType(void* self) { destroy<ColorSpaceGenericType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceGenericTypeUpcast(void* self) { return upcast<ColorSpaceGenericType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceGenericType_id_get() { return ColorSpaceGenericType::id; }
VYR_FLAT(void) CSharp_ColorSpaceGenericType_id_set(const char* identity) { set_identity(&ColorSpaceGenericType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceGenericType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceGenericType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceGenericType_getid(void* self) { return new_string(as<ColorSpaceGenericType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceGenericType_has_id(void* self, const char* identity) { return as<ColorSpaceGenericType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceGenericType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceGenericType & type is null", +[](void* o, void* s) { return as<ColorSpaceGenericType>(s).swap(as<ColorSpaceGenericType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceGenericType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceGenericType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceGenericType_is_occurs_ok(void* self) { return as<ColorSpaceGenericType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceGenericType_get_Name(void* self) { return new_string(as<ColorSpaceGenericType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceGenericType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceGenericType>(s).set_Name(v); }); }
VYR_FLAT(void*) CSharp_ColorSpaceGenericType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return &as<ColorSpaceGenericType>(self).get_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceGenericType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceGenericType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceGenericType_size_Axis(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceGenericType>(self).size_Axis()); }
VYR_FLAT(void*) CSharp_ColorSpaceGenericType_get_Axis__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSpaceGenericType>(s).get_Axis(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceGenericType_assign_Axis(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::AxisType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSpaceGenericType>(s).assign_Axis(i, as<AxisType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceGenericType_append_Axis(void* self) { return guarded(+[](void* s) { return as<ColorSpaceGenericType>(s).append_Axis(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceGenericType_insert_Axis(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSpaceGenericType>(s).insert_Axis(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceGenericType_back_Axis(void* self) { return &as<ColorSpaceGenericType>(self).back_Axis(); }
VYR_FLAT(void) CSharp_ColorSpaceGenericType_delete_Axis(void* self, std::uint32_t index) { as<ColorSpaceGenericType>(self).delete_Axis(index); }
VYR_FLAT(void) CSharp_ColorSpaceGenericType_clear_Axis(void* self) { as<ColorSpaceGenericType>(self).clear_Axis(); }

// ColorSpaceEmissiveGenericType
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveGenericType__SWIG_0() { return make<ColorSpaceEmissiveGenericType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveGenericType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceEmissiveGenericType const & type is null", &copy<ColorSpaceEmissiveGenericType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceEmissiveGenericType(void* self) { destroy<ColorSpaceEmissiveGenericType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveGenericTypeUpcast(void* self) { return upcast<ColorSpaceEmissiveGenericType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceEmissiveGenericType_id_get() { return ColorSpaceEmissiveGenericType::id; }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveGenericType_id_set(const char* identity) { set_identity(&ColorSpaceEmissiveGenericType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveGenericType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceEmissiveGenericType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceEmissiveGenericType_getid(void* self) { return new_string(as<ColorSpaceEmissiveGenericType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveGenericType_has_id(void* self, const char* identity) { return as<ColorSpaceEmissiveGenericType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveGenericType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceEmissiveGenericType & type is null", +[](void* o, void* s) { return as<ColorSpaceEmissiveGenericType>(s).swap(as<ColorSpaceEmissiveGenericType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveGenericType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceEmissiveGenericType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveGenericType_is_occurs_ok(void* self) { return as<ColorSpaceEmissiveGenericType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceEmissiveGenericType_get_Name(void* self) { return new_string(as<ColorSpaceEmissiveGenericType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveGenericType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceEmissiveGenericType>(s).set_Name(v); }); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveGenericType_get_ColorSpaceSpecificationEmissiveGeneric__SWIG_0(void* self) { return &as<ColorSpaceEmissiveGenericType>(self).get_ColorSpaceSpecificationEmissiveGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveGenericType_assign_ColorSpaceSpecificationEmissiveGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationEmissiveGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceEmissiveGenericType>(s).assign_ColorSpaceSpecificationEmissiveGeneric(as<ColorSpaceSpecificationEmissiveGeneric>(v)); }, value, self); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceEmissiveGenericType_size_Axis(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceEmissiveGenericType>(self).size_Axis()); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveGenericType_get_Axis__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSpaceEmissiveGenericType>(s).get_Axis(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveGenericType_assign_Axis(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::AxisType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSpaceEmissiveGenericType>(s).assign_Axis(i, as<AxisType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveGenericType_append_Axis(void* self) { return guarded(+[](void* s) { return as<ColorSpaceEmissiveGenericType>(s).append_Axis(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveGenericType_insert_Axis(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSpaceEmissiveGenericType>(s).insert_Axis(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveGenericType_back_Axis(void* self) { return &as<ColorSpaceEmissiveGenericType>(self).back_Axis(); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveGenericType_delete_Axis(void* self, std::uint32_t index) { as<ColorSpaceEmissiveGenericType>(self).delete_Axis(index); }
VYR_FLAT(void) CSharp_ColorSpaceEmissiveGenericType_clear_Axis(void* self) { as<ColorSpaceEmissiveGenericType>(self).clear_Axis(); }

// ColorSpaceGeneric
VYR_FLAT(void*) CSharp_new_ColorSpaceGeneric__SWIG_0() { return make<ColorSpaceGeneric>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceGeneric__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceGeneric const & type is null", &copy<ColorSpaceGeneric>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceGeneric(void* self) { destroy<ColorSpaceGeneric>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceGenericUpcast(void* self) { return upcast<ColorSpaceGeneric, ColorSpaceGenericType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceGeneric_ns_map() { return reference(*ColorSpaceGeneric::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceGeneric_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceGeneric>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceGeneric_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceGeneric>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceGeneric_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceGeneric>(s).marshal(p); }, self, path); }

// ColorSpaceEmissiveGeneric
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveGeneric__SWIG_0() { return make<ColorSpaceEmissiveGeneric>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveGeneric__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceEmissiveGeneric const & type is null", &copy<ColorSpaceEmissiveGeneric>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceEmissiveGeneric(void* self) { destroy<ColorSpaceEmissiveGeneric>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveGenericUpcast(void* self) { return upcast<ColorSpaceEmissiveGeneric, ColorSpaceEmissiveGenericType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveGeneric_ns_map() { return reference(*ColorSpaceEmissiveGeneric::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveGeneric_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceEmissiveGeneric>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveGeneric_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceEmissiveGeneric>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveGeneric_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceEmissiveGeneric>(s).marshal(p); }, self, path); }

// ColorSpaceDensity
VYR_FLAT(void*) CSharp_new_ColorSpaceDensity__SWIG_0() { return make<ColorSpaceDensity>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceDensity__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceDensity const & type is null", &copy<ColorSpaceDensity>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceDensity(void* self) { destroy<ColorSpaceDensity>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceDensityUpcast(void* self) { return upcast<ColorSpaceDensity, ColorSpaceDensityType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceDensity_ns_map() { return reference(*ColorSpaceDensity::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceDensity_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceDensity>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceDensity_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceDensity>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceDensity_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceDensity>(s).marshal(p); }, self, path); }

// ColorSpaceSpectral
VYR_FLAT(void*) CSharp_new_ColorSpaceSpectral__SWIG_0() { return make<ColorSpaceSpectral>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSpectral__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSpectral const & type is null", &copy<ColorSpaceSpectral>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSpectral(void* self) { destroy<ColorSpaceSpectral>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpectralUpcast(void* self) { return upcast<ColorSpaceSpectral, ColorSpaceSpectralType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSpectral_ns_map() { return reference(*ColorSpaceSpectral::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpectral_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpectral>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpectral_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceSpectral>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSpectral_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSpectral>(s).marshal(p); }, self, path); }

// ColorSpaceEmissiveSpectral
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveSpectral__SWIG_0() { return make<ColorSpaceEmissiveSpectral>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceEmissiveSpectral__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceEmissiveSpectral const & type is null", &copy<ColorSpaceEmissiveSpectral>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceEmissiveSpectral(void* self) { destroy<ColorSpaceEmissiveSpectral>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveSpectralUpcast(void* self) { return upcast<ColorSpaceEmissiveSpectral, ColorSpaceEmissiveSpectralType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceEmissiveSpectral_ns_map() { return reference(*ColorSpaceEmissiveSpectral::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveSpectral_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceEmissiveSpectral>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveSpectral_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceEmissiveSpectral>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceEmissiveSpectral_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceEmissiveSpectral>(s).marshal(p); }, self, path); }

// ReflectancePointType
VYR_FLAT(void*) CSharp_new_ReflectancePointType__SWIG_0() { return make<ReflectancePointType>(); }
VYR_FLAT(void*) CSharp_new_ReflectancePointType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ReflectancePointType const & type is null", &copy<ReflectancePointType>, source); }
VYR_FLAT(void) CSharp_delete_ReflectancePointType(void* self) { destroy<ReflectancePointType>(self); }
VYR_FLAT(void) CSharp_ReflectancePointType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ReflectancePointType & type is null", +[](void* o, void* s) { return as<ReflectancePointType>(s).swap(as<ReflectancePointType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ReflectancePointType_reset(void* self) { guarded(+[](void* s) { return as<ReflectancePointType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ReflectancePointType_is_occurs_ok(void* self) { return as<ReflectancePointType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_ReflectancePointType_get_Wavelength(void* self) { return as<ReflectancePointType>(self).get_Wavelength(); }
VYR_FLAT(std::int32_t) CSharp_ReflectancePointType_set_Wavelength(void* self, double value) { return as<ReflectancePointType>(self).set_Wavelength(value); }
VYR_FLAT(double) CSharp_ReflectancePointType_get_ReflectancePointType(void* self) { return as<ReflectancePointType>(self).get_ReflectancePointType(); }
VYR_FLAT(std::int32_t) CSharp_ReflectancePointType_set_ReflectancePointType(void* self, double value) { return as<ReflectancePointType>(self).set_ReflectancePointType(value); }

// EmissiveSpectralPointType
VYR_FLAT(void*) CSharp_new_EmissiveSpectralPointType__SWIG_0() { return make<EmissiveSpectralPointType>(); }
VYR_FLAT(void*) CSharp_new_EmissiveSpectralPointType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::EmissiveSpectralPointType const & type is null", &copy<EmissiveSpectralPointType>, source); }
VYR_FLAT(void) CSharp_delete_EmissiveSpectralPointType(void* self) { destroy<EmissiveSpectralPointType>(self); }
VYR_FLAT(void) CSharp_EmissiveSpectralPointType_swap(void* self, void* other) { checked("com_vyrgraph_v2::EmissiveSpectralPointType & type is null", +[](void* o, void* s) { return as<EmissiveSpectralPointType>(s).swap(as<EmissiveSpectralPointType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_EmissiveSpectralPointType_reset(void* self) { guarded(+[](void* s) { return as<EmissiveSpectralPointType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_EmissiveSpectralPointType_is_occurs_ok(void* self) { return as<EmissiveSpectralPointType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_EmissiveSpectralPointType_get_Wavelength(void* self) { return as<EmissiveSpectralPointType>(self).get_Wavelength(); }
VYR_FLAT(std::int32_t) CSharp_EmissiveSpectralPointType_set_Wavelength(void* self, double value) { return as<EmissiveSpectralPointType>(self).set_Wavelength(value); }
VYR_FLAT(double) CSharp_EmissiveSpectralPointType_get_EmissiveSpectralPointType(void* self) { return as<EmissiveSpectralPointType>(self).get_EmissiveSpectralPointType(); }
VYR_FLAT(std::int32_t) CSharp_EmissiveSpectralPointType_set_EmissiveSpectralPointType(void* self, double value) { return as<EmissiveSpectralPointType>(self).set_EmissiveSpectralPointType(value); }

// AxisValueChoice
VYR_FLAT(void*) CSharp_new_AxisValueChoice__SWIG_0() { return make<AxisValueChoice>(); }
VYR_FLAT(void*) CSharp_new_AxisValueChoice__SWIG_1(void* source) { return checked("com_vyrgraph_v2::AxisValueChoice const & type is null", &copy<AxisValueChoice>, source); }
VYR_FLAT(void) CSharp_delete_AxisValueChoice(void* self) { destroy<AxisValueChoice>(self); }
VYR_FLAT(void) CSharp_AxisValueChoice_swap(void* self, void* other) { checked("com_vyrgraph_v2::AxisValueChoice & type is null", +[](void* o, void* s) { return as<AxisValueChoice>(s).swap(as<AxisValueChoice>(o)); }, other, self); }
VYR_FLAT(void) CSharp_AxisValueChoice_reset(void* self) { guarded(+[](void* s) { return as<AxisValueChoice>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_AxisValueChoice_is_occurs_ok(void* self) { return as<AxisValueChoice>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_AxisValueChoice_getchosen(void* self) { return as<AxisValueChoice>(self).getchosen(); }
VYR_FLAT(void*) CSharp_AxisValueChoice_get_AxisFloatingPointValue__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<AxisValueChoice>(s).get_AxisFloatingPointValue(); }, self); }
VYR_FLAT(void*) CSharp_AxisValueChoice_assign_AxisFloatingPointValue(void* self, void* value) { return checked("com_vyrgraph_v2::FloatingPointValueType const & type is null", +[](void* v, void* s) -> void* { return &as<AxisValueChoice>(s).assign_AxisFloatingPointValue(as<FloatingPointValueType>(v)); }, value, self); }
VYR_FLAT(char16_t*) CSharp_AxisValueChoice_get_AxisStringValue(void* self) { return new_string(as<AxisValueChoice>(self).get_AxisStringValue()); }
VYR_FLAT(std::int32_t) CSharp_AxisValueChoice_set_AxisStringValue(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<AxisValueChoice>(s).set_AxisStringValue(v); }); }

// AxisType
VYR_FLAT(void*) CSharp_new_AxisType__SWIG_0() { return make<AxisType>(); }
VYR_FLAT(void*) CSharp_new_AxisType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::AxisType const & type is null", &copy<AxisType>, source); }
VYR_FLAT(void) CSharp_delete_AxisType(void* self) { destroy<AxisType>(self); }
VYR_FLAT(void) CSharp_AxisType_swap(void* self, void* other) { checked("com_vyrgraph_v2::AxisType & type is null", +[](void* o, void* s) { return as<AxisType>(s).swap(as<AxisType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_AxisType_reset(void* self) { guarded(+[](void* s) { return as<AxisType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_AxisType_is_occurs_ok(void* self) { return as<AxisType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_AxisType_get_AxisName(void* self) { return new_string(as<AxisType>(self).get_AxisName()); }
VYR_FLAT(std::int32_t) CSharp_AxisType_set_AxisName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<AxisType>(s).set_AxisName(v); }); }
VYR_FLAT(void*) CSharp_AxisType_get_AxisValueChoice__SWIG_0(void* self) { return &as<AxisType>(self).get_AxisValueChoice(); }
VYR_FLAT(void*) CSharp_AxisType_assign_AxisValueChoice(void* self, void* value) { return checked("com_vyrgraph_v2::AxisValueChoice const & type is null", +[](void* v, void* s) -> void* { return &as<AxisType>(s).assign_AxisValueChoice(as<AxisValueChoice>(v)); }, value, self); }

// FloatingPointValueType
VYR_FLAT(void*) CSharp_new_FloatingPointValueType__SWIG_0() { return make<FloatingPointValueType>(); }
VYR_FLAT(void*) CSharp_new_FloatingPointValueType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FloatingPointValueType const & type is null", &copy<FloatingPointValueType>, source); }
VYR_FLAT(void) CSharp_delete_FloatingPointValueType(void* self) { destroy<FloatingPointValueType>(self); }
VYR_FLAT(void) CSharp_FloatingPointValueType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FloatingPointValueType & type is null", +[](void* o, void* s) { return as<FloatingPointValueType>(s).swap(as<FloatingPointValueType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FloatingPointValueType_reset(void* self) { guarded(+[](void* s) { return as<FloatingPointValueType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FloatingPointValueType_is_occurs_ok(void* self) { return as<FloatingPointValueType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_FloatingPointValueType_get_AxisNominalMax(void* self) { return as<FloatingPointValueType>(self).get_AxisNominalMax(); }
VYR_FLAT(std::int32_t) CSharp_FloatingPointValueType_set_AxisNominalMax(void* self, double value) { return as<FloatingPointValueType>(self).set_AxisNominalMax(value); }
VYR_FLAT(double) CSharp_FloatingPointValueType_get_AxisNominalMin(void* self) { return as<FloatingPointValueType>(self).get_AxisNominalMin(); }
VYR_FLAT(std::int32_t) CSharp_FloatingPointValueType_set_AxisNominalMin(void* self, double value) { return as<FloatingPointValueType>(self).set_AxisNominalMin(value); }
VYR_FLAT(char16_t*) CSharp_FloatingPointValueType_get_AxisNominalScale(void* self) { return new_string(as<FloatingPointValueType>(self).get_AxisNominalScale()); }
VYR_FLAT(std::int32_t) CSharp_FloatingPointValueType_set_AxisNominalScale(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<FloatingPointValueType>(s).set_AxisNominalScale(v); }); }
VYR_FLAT(std::int32_t) CSharp_FloatingPointValueType_getenum_AxisNominalScale(void* self) { return as<FloatingPointValueType>(self).getenum_AxisNominalScale(); }
VYR_FLAT(std::int32_t) CSharp_FloatingPointValueType_setenum_AxisNominalScale(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<FloatingPointValueType>(s).setenum_AxisNominalScale(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_FloatingPointValueType_isset_AxisNominalScale(void* self) { return as<FloatingPointValueType>(self).isset_AxisNominalScale(); }
VYR_FLAT(void) CSharp_FloatingPointValueType_unset_AxisNominalScale(void* self) { as<FloatingPointValueType>(self).unset_AxisNominalScale(); }
VYR_FLAT(double) CSharp_FloatingPointValueType_get_FloatingPointValueType(void* self) { return as<FloatingPointValueType>(self).get_FloatingPointValueType(); }
VYR_FLAT(std::int32_t) CSharp_FloatingPointValueType_set_FloatingPointValueType(void* self, double value) { return as<FloatingPointValueType>(self).set_FloatingPointValueType(value); }

// DensityType
VYR_FLAT(void*) CSharp_new_DensityType__SWIG_0() { return make<DensityType>(); }
VYR_FLAT(void*) CSharp_new_DensityType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::DensityType const & type is null", &copy<DensityType>, source); }
VYR_FLAT(void) CSharp_delete_DensityType(void* self) { destroy<DensityType>(self); }
VYR_FLAT(void) CSharp_DensityType_swap(void* self, void* other) { checked("com_vyrgraph_v2::DensityType & type is null", +[](void* o, void* s) { return as<DensityType>(s).swap(as<DensityType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_DensityType_reset(void* self) { guarded(+[](void* s) { return as<DensityType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_DensityType_is_occurs_ok(void* self) { return as<DensityType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_DensityType_get_DensityStatus(void* self) { return new_string(as<DensityType>(self).get_DensityStatus()); }
VYR_FLAT(std::int32_t) CSharp_DensityType_set_DensityStatus(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<DensityType>(s).set_DensityStatus(v); }); }
VYR_FLAT(std::int32_t) CSharp_DensityType_getenum_DensityStatus(void* self) { return as<DensityType>(self).getenum_DensityStatus(); }
VYR_FLAT(std::int32_t) CSharp_DensityType_setenum_DensityStatus(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<DensityType>(s).setenum_DensityStatus(n); }, self, number); }
VYR_FLAT(char16_t*) CSharp_DensityType_get_DensityFilter(void* self) { return new_string(as<DensityType>(self).get_DensityFilter()); }
VYR_FLAT(std::int32_t) CSharp_DensityType_set_DensityFilter(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<DensityType>(s).set_DensityFilter(v); }); }
VYR_FLAT(std::int32_t) CSharp_DensityType_getenum_DensityFilter(void* self) { return as<DensityType>(self).getenum_DensityFilter(); }
VYR_FLAT(std::int32_t) CSharp_DensityType_setenum_DensityFilter(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<DensityType>(s).setenum_DensityFilter(n); }, self, number); }
VYR_FLAT(double) CSharp_DensityType_get_DensityType(void* self) { return as<DensityType>(self).get_DensityType(); }
VYR_FLAT(std::int32_t) CSharp_DensityType_set_DensityType(void* self, double value) { return as<DensityType>(self).set_DensityType(value); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
