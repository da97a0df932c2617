// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in functions.h.

#include "flat/call.h"
#include "schema/generated/functions.h"
#include "schema/generated/header.h"
#include "schema/generated/statistics.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// FunctionType
VYR_FLAT(void*) CSharp_new_FunctionType__SWIG_0() { return make<FunctionType>(); }
VYR_FLAT(void*) CSharp_new_FunctionType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionType const & type is null", &copy<FunctionType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionType(void* self) { destroy<FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionType_id_get() { return FunctionType::id; }
VYR_FLAT(void) CSharp_FunctionType_id_set(const char* identity) { set_identity(&FunctionType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionType_factory(std::int32_t ns_id, const char* name) { return checked(k_null_string, +[](const char* n, std::int32_t i) -> void* { return FunctionType::factory(i, n); }, name, ns_id); }
VYR_FLAT(void*) CSharp_FunctionType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionType_getid(void* self) { return new_string(as<FunctionType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionType_has_id(void* self, const char* identity) { return as<FunctionType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionType & type is null", +[](void* o, void* s) { return as<FunctionType>(s).swap(as<FunctionType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionType_reset(void* self) { guarded(+[](void* s) { return as<FunctionType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionType_is_occurs_ok(void* self) { return as<FunctionType>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_FunctionType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<FunctionType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_FunctionType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<FunctionType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_FunctionType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<FunctionType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_FunctionType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<FunctionType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<FunctionType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_FunctionType_back_CustomAttribute(void* self) { return &as<FunctionType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_FunctionType_delete_CustomAttribute(void* self, std::uint32_t index) { as<FunctionType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_FunctionType_clear_CustomAttribute(void* self) { as<FunctionType>(self).clear_CustomAttribute(); }
VYR_FLAT(double) CSharp_FunctionType_get_Result(void* self) { return as<FunctionType>(self).get_Result(); }
VYR_FLAT(std::int32_t) CSharp_FunctionType_set_Result(void* self, double value) { return as<FunctionType>(self).set_Result(value); }
VYR_FLAT(std::int32_t) CSharp_FunctionType_isset_Result(void* self) { return as<FunctionType>(self).isset_Result(); }
VYR_FLAT(void) CSharp_FunctionType_unset_Result(void* self) { as<FunctionType>(self).unset_Result(); }

// Function
VYR_FLAT(void*) CSharp_new_Function__SWIG_0() { return make<Function>(); }
VYR_FLAT(void*) CSharp_new_Function__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Function const & type is null", &copy<Function>, source); }
VYR_FLAT(void) CSharp_delete_Function(void* self) { destroy<Function>(self); }
VYR_FLAT(void*) CSharp_FunctionUpcast(void* self) { return upcast<Function, FunctionType>(self); }
VYR_FLAT(void*) CSharp_Function_ns_map() { return reference(*Function::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_Function_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<Function>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_Function_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<Function>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_Function_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<Function>(s).marshal(p); }, self, path); }

// FunctionGenericType
VYR_FLAT(void*) CSharp_new_FunctionGenericType__SWIG_0() { return make<FunctionGenericType>(); }
VYR_FLAT(void*) CSharp_new_FunctionGenericType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionGenericType const & type is null", &copy<FunctionGenericType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionGenericType(void* self) { destroy<FunctionGenericType>(self); }
VYR_FLAT(void*) CSharp_FunctionGenericTypeUpcast(void* self) { return upcast<FunctionGenericType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionGenericType_id_get() { return FunctionGenericType::id; }
VYR_FLAT(void) CSharp_FunctionGenericType_id_set(const char* identity) { set_identity(&FunctionGenericType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionGenericType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionGenericType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionGenericType_getid(void* self) { return new_string(as<FunctionGenericType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionGenericType_has_id(void* self, const char* identity) { return as<FunctionGenericType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionGenericType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionGenericType & type is null", +[](void* o, void* s) { return as<FunctionGenericType>(s).swap(as<FunctionGenericType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionGenericType_reset(void* self) { guarded(+[](void* s) { return as<FunctionGenericType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionGenericType_is_occurs_ok(void* self) { return as<FunctionGenericType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_FunctionGenericType_get_Name(void* self) { return new_string(as<FunctionGenericType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_FunctionGenericType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<FunctionGenericType>(s).set_Name(v); }); }
VYR_FLAT(std::uint32_t) CSharp_FunctionGenericType_size_Parameters(void* self) { return static_cast<std::uint32_t>(as<FunctionGenericType>(self).size_Parameters()); }
VYR_FLAT(void*) CSharp_FunctionGenericType_get_Parameters__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<FunctionGenericType>(s).get_Parameters(i); }, self, index); }
VYR_FLAT(void*) CSharp_FunctionGenericType_assign_Parameters(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::Parameters const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<FunctionGenericType>(s).assign_Parameters(i, as<Parameters>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_FunctionGenericType_append_Parameters(void* self) { return guarded(+[](void* s) { return as<FunctionGenericType>(s).append_Parameters(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionGenericType_insert_Parameters(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<FunctionGenericType>(s).insert_Parameters(i); }, self, index); }
VYR_FLAT(void*) CSharp_FunctionGenericType_back_Parameters(void* self) { return &as<FunctionGenericType>(self).back_Parameters(); }
VYR_FLAT(void) CSharp_FunctionGenericType_delete_Parameters(void* self, std::uint32_t index) { as<FunctionGenericType>(self).delete_Parameters(index); }
VYR_FLAT(void) CSharp_FunctionGenericType_clear_Parameters(void* self) { as<FunctionGenericType>(self).clear_Parameters(); }

// ValueChoice
VYR_FLAT(void*) CSharp_new_ValueChoice__SWIG_0() { return make<ValueChoice>(); }
VYR_FLAT(void*) CSharp_new_ValueChoice__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ValueChoice const & type is null", &copy<ValueChoice>, source); }
VYR_FLAT(void) CSharp_delete_ValueChoice(void* self) { destroy<ValueChoice>(self); }
VYR_FLAT(void) CSharp_ValueChoice_swap(void* self, void* other) { checked("com_vyrgraph_v2::ValueChoice & type is null", +[](void* o, void* s) { return as<ValueChoice>(s).swap(as<ValueChoice>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ValueChoice_reset(void* self) { guarded(+[](void* s) { return as<ValueChoice>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ValueChoice_is_occurs_ok(void* self) { return as<ValueChoice>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_ValueChoice_getchosen(void* self) { return as<ValueChoice>(self).getchosen(); }
VYR_FLAT(double) CSharp_ValueChoice_get_Double(void* self) { return as<ValueChoice>(self).get_Double(); }
VYR_FLAT(std::int32_t) CSharp_ValueChoice_set_Double(void* self, double value) { return as<ValueChoice>(self).set_Double(value); }
VYR_FLAT(char16_t*) CSharp_ValueChoice_get_String(void* self) { return new_string(as<ValueChoice>(self).get_String()); }
VYR_FLAT(std::int32_t) CSharp_ValueChoice_set_String(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ValueChoice>(s).set_String(v); }); }

// Parameters
VYR_FLAT(void*) CSharp_new_Parameters__SWIG_0() { return make<Parameters>(); }
VYR_FLAT(void*) CSharp_new_Parameters__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Parameters const & type is null", &copy<Parameters>, source); }
VYR_FLAT(void) CSharp_delete_Parameters(void* self) { destroy<Parameters>(self); }
VYR_FLAT(void) CSharp_Parameters_swap(void* self, void* other) { checked("com_vyrgraph_v2::Parameters & type is null", +[](void* o, void* s) { return as<Parameters>(s).swap(as<Parameters>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Parameters_reset(void* self) { guarded(+[](void* s) { return as<Parameters>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Parameters_is_occurs_ok(void* self) { return as<Parameters>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_Parameters_get_Name(void* self) { return new_string(as<Parameters>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_Parameters_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Parameters>(s).set_Name(v); }); }
VYR_FLAT(void*) CSharp_Parameters_get_ValueChoice__SWIG_0(void* self) { return &as<Parameters>(self).get_ValueChoice(); }
VYR_FLAT(void*) CSharp_Parameters_assign_ValueChoice(void* self, void* value) { return checked("com_vyrgraph_v2::ValueChoice const & type is null", +[](void* v, void* s) -> void* { return &as<Parameters>(s).assign_ValueChoice(as<ValueChoice>(v)); }, value, self); }

// FunctionDEType
VYR_FLAT(void*) CSharp_new_FunctionDEType__SWIG_0() { return make<FunctionDEType>(); }
VYR_FLAT(void*) CSharp_new_FunctionDEType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionDEType const & type is null", &copy<FunctionDEType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionDEType(void* self) { destroy<FunctionDEType>(self); }
VYR_FLAT(void*) CSharp_FunctionDETypeUpcast(void* self) { return upcast<FunctionDEType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionDEType_id_get() { return FunctionDEType::id; }
VYR_FLAT(void) CSharp_FunctionDEType_id_set(const char* identity) { set_identity(&FunctionDEType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionDEType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionDEType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionDEType_getid(void* self) { return new_string(as<FunctionDEType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionDEType_has_id(void* self, const char* identity) { return as<FunctionDEType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionDEType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionDEType & type is null", +[](void* o, void* s) { return as<FunctionDEType>(s).swap(as<FunctionDEType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionDEType_reset(void* self) { guarded(+[](void* s) { return as<FunctionDEType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionDEType_is_occurs_ok(void* self) { return as<FunctionDEType>(self).is_occurs_ok(); }

// FunctionMeanDEType
VYR_FLAT(void*) CSharp_new_FunctionMeanDEType__SWIG_0() { return make<FunctionMeanDEType>(); }
VYR_FLAT(void*) CSharp_new_FunctionMeanDEType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionMeanDEType const & type is null", &copy<FunctionMeanDEType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionMeanDEType(void* self) { destroy<FunctionMeanDEType>(self); }
VYR_FLAT(void*) CSharp_FunctionMeanDETypeUpcast(void* self) { return upcast<FunctionMeanDEType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionMeanDEType_id_get() { return FunctionMeanDEType::id; }
VYR_FLAT(void) CSharp_FunctionMeanDEType_id_set(const char* identity) { set_identity(&FunctionMeanDEType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionMeanDEType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionMeanDEType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionMeanDEType_getid(void* self) { return new_string(as<FunctionMeanDEType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionMeanDEType_has_id(void* self, const char* identity) { return as<FunctionMeanDEType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionMeanDEType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionMeanDEType & type is null", +[](void* o, void* s) { return as<FunctionMeanDEType>(s).swap(as<FunctionMeanDEType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionMeanDEType_reset(void* self) { guarded(+[](void* s) { return as<FunctionMeanDEType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionMeanDEType_is_occurs_ok(void* self) { return as<FunctionMeanDEType>(self).is_occurs_ok(); }

// FunctionDE94Type
VYR_FLAT(void*) CSharp_new_FunctionDE94Type__SWIG_0() { return make<FunctionDE94Type>(); }
VYR_FLAT(void*) CSharp_new_FunctionDE94Type__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionDE94Type const & type is null", &copy<FunctionDE94Type>, source); }
VYR_FLAT(void) CSharp_delete_FunctionDE94Type(void* self) { destroy<FunctionDE94Type>(self); }
VYR_FLAT(void*) CSharp_FunctionDE94TypeUpcast(void* self) { return upcast<FunctionDE94Type, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionDE94Type_id_get() { return FunctionDE94Type::id; }
VYR_FLAT(void) CSharp_FunctionDE94Type_id_set(const char* identity) { set_identity(&FunctionDE94Type::id, identity); }
VYR_FLAT(void*) CSharp_FunctionDE94Type_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionDE94Type>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionDE94Type_getid(void* self) { return new_string(as<FunctionDE94Type>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE94Type_has_id(void* self, const char* identity) { return as<FunctionDE94Type>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionDE94Type_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionDE94Type & type is null", +[](void* o, void* s) { return as<FunctionDE94Type>(s).swap(as<FunctionDE94Type>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionDE94Type_reset(void* self) { guarded(+[](void* s) { return as<FunctionDE94Type>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE94Type_is_occurs_ok(void* self) { return as<FunctionDE94Type>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_FunctionDE94Type_get_Param_l(void* self) { return as<FunctionDE94Type>(self).get_Param_l(); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE94Type_set_Param_l(void* self, double value) { return as<FunctionDE94Type>(self).set_Param_l(value); }
VYR_FLAT(double) CSharp_FunctionDE94Type_get_Param_c(void* self) { return as<FunctionDE94Type>(self).get_Param_c(); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE94Type_set_Param_c(void* self, double value) { return as<FunctionDE94Type>(self).set_Param_c(value); }
VYR_FLAT(double) CSharp_FunctionDE94Type_get_Param_h(void* self) { return as<FunctionDE94Type>(self).get_Param_h(); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE94Type_set_Param_h(void* self, double value) { return as<FunctionDE94Type>(self).set_Param_h(value); }

// FunctionDE2000Type
VYR_FLAT(void*) CSharp_new_FunctionDE2000Type__SWIG_0() { return make<FunctionDE2000Type>(); }
VYR_FLAT(void*) CSharp_new_FunctionDE2000Type__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionDE2000Type const & type is null", &copy<FunctionDE2000Type>, source); }
VYR_FLAT(void) CSharp_delete_FunctionDE2000Type(void* self) { destroy<FunctionDE2000Type>(self); }
VYR_FLAT(void*) CSharp_FunctionDE2000TypeUpcast(void* self) { return upcast<FunctionDE2000Type, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionDE2000Type_id_get() { return FunctionDE2000Type::id; }
VYR_FLAT(void) CSharp_FunctionDE2000Type_id_set(const char* identity) { set_identity(&FunctionDE2000Type::id, identity); }
VYR_FLAT(void*) CSharp_FunctionDE2000Type_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionDE2000Type>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionDE2000Type_getid(void* self) { return new_string(as<FunctionDE2000Type>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE2000Type_has_id(void* self, const char* identity) { return as<FunctionDE2000Type>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionDE2000Type_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionDE2000Type & type is null", +[](void* o, void* s) { return as<FunctionDE2000Type>(s).swap(as<FunctionDE2000Type>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionDE2000Type_reset(void* self) { guarded(+[](void* s) { return as<FunctionDE2000Type>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE2000Type_is_occurs_ok(void* self) { return as<FunctionDE2000Type>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_FunctionDE2000Type_get_Param_l(void* self) { return as<FunctionDE2000Type>(self).get_Param_l(); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE2000Type_set_Param_l(void* self, double value) { return as<FunctionDE2000Type>(self).set_Param_l(value); }
VYR_FLAT(double) CSharp_FunctionDE2000Type_get_Param_c(void* self) { return as<FunctionDE2000Type>(self).get_Param_c(); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE2000Type_set_Param_c(void* self, double value) { return as<FunctionDE2000Type>(self).set_Param_c(value); }
VYR_FLAT(double) CSharp_FunctionDE2000Type_get_Param_h(void* self) { return as<FunctionDE2000Type>(self).get_Param_h(); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE2000Type_set_Param_h(void* self, double value) { return as<FunctionDE2000Type>(self).set_Param_h(value); }

// FunctionDEcmcType
VYR_FLAT(void*) CSharp_new_FunctionDEcmcType__SWIG_0() { return make<FunctionDEcmcType>(); }
VYR_FLAT(void*) CSharp_new_FunctionDEcmcType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionDEcmcType const & type is null", &copy<FunctionDEcmcType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionDEcmcType(void* self) { destroy<FunctionDEcmcType>(self); }
VYR_FLAT(void*) CSharp_FunctionDEcmcTypeUpcast(void* self) { return upcast<FunctionDEcmcType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionDEcmcType_id_get() { return FunctionDEcmcType::id; }
VYR_FLAT(void) CSharp_FunctionDEcmcType_id_set(const char* identity) { set_identity(&FunctionDEcmcType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionDEcmcType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionDEcmcType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionDEcmcType_getid(void* self) { return new_string(as<FunctionDEcmcType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionDEcmcType_has_id(void* self, const char* identity) { return as<FunctionDEcmcType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionDEcmcType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionDEcmcType & type is null", +[](void* o, void* s) { return as<FunctionDEcmcType>(s).swap(as<FunctionDEcmcType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionDEcmcType_reset(void* self) { guarded(+[](void* s) { return as<FunctionDEcmcType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionDEcmcType_is_occurs_ok(void* self) { return as<FunctionDEcmcType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_FunctionDEcmcType_get_Param_l(void* self) { return as<FunctionDEcmcType>(self).get_Param_l(); }
VYR_FLAT(std::int32_t) CSharp_FunctionDEcmcType_set_Param_l(void* self, double value) { return as<FunctionDEcmcType>(self).set_Param_l(value); }
VYR_FLAT(double) CSharp_FunctionDEcmcType_get_Param_c(void* self) { return as<FunctionDEcmcType>(self).get_Param_c(); }
VYR_FLAT(std::int32_t) CSharp_FunctionDEcmcType_set_Param_c(void* self, double value) { return as<FunctionDEcmcType>(self).set_Param_c(value); }

// FunctionGeneric
VYR_FLAT(void*) CSharp_new_FunctionGeneric__SWIG_0() { return make<FunctionGeneric>(); }
VYR_FLAT(void*) CSharp_new_FunctionGeneric__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionGeneric const & type is null", &copy<FunctionGeneric>, source); }
VYR_FLAT(void) CSharp_delete_FunctionGeneric(void* self) { destroy<FunctionGeneric>(self); }
VYR_FLAT(void*) CSharp_FunctionGenericUpcast(void* self) { return upcast<FunctionGeneric, FunctionGenericType>(self); }
VYR_FLAT(void*) CSharp_FunctionGeneric_ns_map() { return reference(*FunctionGeneric::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionGeneric_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionGeneric>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionGeneric_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionGeneric>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionGeneric_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionGeneric>(s).marshal(p); }, self, path); }

// FunctionDE
VYR_FLAT(void*) CSharp_new_FunctionDE__SWIG_0() { return make<FunctionDE>(); }
VYR_FLAT(void*) CSharp_new_FunctionDE__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionDE const & type is null", &copy<FunctionDE>, source); }
VYR_FLAT(void) CSharp_delete_FunctionDE(void* self) { destroy<FunctionDE>(self); }
VYR_FLAT(void*) CSharp_FunctionDEUpcast(void* self) { return upcast<FunctionDE, FunctionDEType>(self); }
VYR_FLAT(void*) CSharp_FunctionDE_ns_map() { return reference(*FunctionDE::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionDE>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionDE>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionDE>(s).marshal(p); }, self, path); }

// FunctionMeanDE
VYR_FLAT(void*) CSharp_new_FunctionMeanDE__SWIG_0() { return make<FunctionMeanDE>(); }
VYR_FLAT(void*) CSharp_new_FunctionMeanDE__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionMeanDE const & type is null", &copy<FunctionMeanDE>, source); }
VYR_FLAT(void) CSharp_delete_FunctionMeanDE(void* self) { destroy<FunctionMeanDE>(self); }
VYR_FLAT(void*) CSharp_FunctionMeanDEUpcast(void* self) { return upcast<FunctionMeanDE, FunctionMeanDEType>(self); }
VYR_FLAT(void*) CSharp_FunctionMeanDE_ns_map() { return reference(*FunctionMeanDE::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionMeanDE_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionMeanDE>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionMeanDE_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionMeanDE>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionMeanDE_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionMeanDE>(s).marshal(p); }, self, path); }

// FunctionDE94
VYR_FLAT(void*) CSharp_new_FunctionDE94__SWIG_0() { return make<FunctionDE94>(); }
VYR_FLAT(void*) CSharp_new_FunctionDE94__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionDE94 const & type is null", &copy<FunctionDE94>, source); }
VYR_FLAT(void) CSharp_delete_FunctionDE94(void* self) { destroy<FunctionDE94>(self); }
VYR_FLAT(void*) CSharp_FunctionDE94Upcast(void* self) { return upcast<FunctionDE94, FunctionDE94Type>(self); }
VYR_FLAT(void*) CSharp_FunctionDE94_ns_map() { return reference(*FunctionDE94::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE94_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionDE94>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE94_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionDE94>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE94_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionDE94>(s).marshal(p); }, self, path); }

// FunctionDE2000
VYR_FLAT(void*) CSharp_new_FunctionDE2000__SWIG_0() { return make<FunctionDE2000>(); }
VYR_FLAT(void*) CSharp_new_FunctionDE2000__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionDE2000 const & type is null", &copy<FunctionDE2000>, source); }
VYR_FLAT(void) CSharp_delete_FunctionDE2000(void* self) { destroy<FunctionDE2000>(self); }
VYR_FLAT(void*) CSharp_FunctionDE2000Upcast(void* self) { return upcast<FunctionDE2000, FunctionDE2000Type>(self); }
VYR_FLAT(void*) CSharp_FunctionDE2000_ns_map() { return reference(*FunctionDE2000::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE2000_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionDE2000>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE2000_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionDE2000>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionDE2000_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionDE2000>(s).marshal(p); }, self, path); }

// FunctionDECMC
VYR_FLAT(void*) CSharp_new_FunctionDECMC__SWIG_0() { return make<FunctionDECMC>(); }
VYR_FLAT(void*) CSharp_new_FunctionDECMC__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionDECMC const & type is null", &copy<FunctionDECMC>, source); }
VYR_FLAT(void) CSharp_delete_FunctionDECMC(void* self) { destroy<FunctionDECMC>(self); }
VYR_FLAT(void*) CSharp_FunctionDECMCUpcast(void* self) { return upcast<FunctionDECMC, FunctionDEcmcType>(self); }
VYR_FLAT(void*) CSharp_FunctionDECMC_ns_map() { return reference(*FunctionDECMC::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionDECMC_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionDECMC>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionDECMC_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionDECMC>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionDECMC_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionDECMC>(s).marshal(p); }, self, path); }

// FunctionTolerance
VYR_FLAT(void*) CSharp_new_FunctionTolerance__SWIG_0() { return make<FunctionTolerance>(); }
VYR_FLAT(void*) CSharp_new_FunctionTolerance__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionTolerance const & type is null", &copy<FunctionTolerance>, source); }
VYR_FLAT(void) CSharp_delete_FunctionTolerance(void* self) { destroy<FunctionTolerance>(self); }
VYR_FLAT(void*) CSharp_FunctionToleranceUpcast(void* self) { return upcast<FunctionTolerance, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionTolerance_id_get() { return FunctionTolerance::id; }
VYR_FLAT(void) CSharp_FunctionTolerance_id_set(const char* identity) { set_identity(&FunctionTolerance::id, identity); }
VYR_FLAT(void*) CSharp_FunctionTolerance_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionTolerance>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionTolerance_getid(void* self) { return new_string(as<FunctionTolerance>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionTolerance_has_id(void* self, const char* identity) { return as<FunctionTolerance>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionTolerance_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionTolerance & type is null", +[](void* o, void* s) { return as<FunctionTolerance>(s).swap(as<FunctionTolerance>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionTolerance_reset(void* self) { guarded(+[](void* s) { return as<FunctionTolerance>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionTolerance_is_occurs_ok(void* self) { return as<FunctionTolerance>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_FunctionTolerance_get_ToleranceType(void* self) { return new_string(as<FunctionTolerance>(self).get_ToleranceType()); }
VYR_FLAT(std::int32_t) CSharp_FunctionTolerance_set_ToleranceType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<FunctionTolerance>(s).set_ToleranceType(v); }); }
VYR_FLAT(std::int32_t) CSharp_FunctionTolerance_getenum_ToleranceType(void* self) { return as<FunctionTolerance>(self).getenum_ToleranceType(); }
VYR_FLAT(std::int32_t) CSharp_FunctionTolerance_setenum_ToleranceType(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<FunctionTolerance>(s).setenum_ToleranceType(n); }, self, number); }
VYR_FLAT(std::uint32_t) CSharp_FunctionTolerance_size_Parameters(void* self) { return static_cast<std::uint32_t>(as<FunctionTolerance>(self).size_Parameters()); }
VYR_FLAT(void*) CSharp_FunctionTolerance_get_Parameters__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<FunctionTolerance>(s).get_Parameters(i); }, self, index); }
VYR_FLAT(void*) CSharp_FunctionTolerance_assign_Parameters(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::ToleranceParameterType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<FunctionTolerance>(s).assign_Parameters(i, as<ToleranceParameterType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_FunctionTolerance_append_Parameters(void* self) { return guarded(+[](void* s) { return as<FunctionTolerance>(s).append_Parameters(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionTolerance_insert_Parameters(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<FunctionTolerance>(s).insert_Parameters(i); }, self, index); }
VYR_FLAT(void*) CSharp_FunctionTolerance_back_Parameters(void* self) { return &as<FunctionTolerance>(self).back_Parameters(); }
VYR_FLAT(void) CSharp_FunctionTolerance_delete_Parameters(void* self, std::uint32_t index) { as<FunctionTolerance>(self).delete_Parameters(index); }
VYR_FLAT(void) CSharp_FunctionTolerance_clear_Parameters(void* self) { as<FunctionTolerance>(self).clear_Parameters(); }

// ToleranceParameterType
VYR_FLAT(void*) CSharp_new_ToleranceParameterType__SWIG_0() { return make<ToleranceParameterType>(); }
VYR_FLAT(void*) CSharp_new_ToleranceParameterType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ToleranceParameterType const & type is null", &copy<ToleranceParameterType>, source); }
VYR_FLAT(void) CSharp_delete_ToleranceParameterType(void* self) { destroy<ToleranceParameterType>(self); }
VYR_FLAT(void) CSharp_ToleranceParameterType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ToleranceParameterType & type is null", +[](void* o, void* s) { return as<ToleranceParameterType>(s).swap(as<ToleranceParameterType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ToleranceParameterType_reset(void* self) { guarded(+[](void* s) { return as<ToleranceParameterType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ToleranceParameterType_is_occurs_ok(void* self) { return as<ToleranceParameterType>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_ToleranceParameterType_get_HighValue(void* self) { return as<ToleranceParameterType>(self).get_HighValue(); }
VYR_FLAT(std::int32_t) CSharp_ToleranceParameterType_set_HighValue(void* self, double value) { return as<ToleranceParameterType>(self).set_HighValue(value); }
VYR_FLAT(std::int32_t) CSharp_ToleranceParameterType_isset_HighValue(void* self) { return as<ToleranceParameterType>(self).isset_HighValue(); }
VYR_FLAT(void) CSharp_ToleranceParameterType_unset_HighValue(void* self) { as<ToleranceParameterType>(self).unset_HighValue(); }
VYR_FLAT(char16_t*) CSharp_ToleranceParameterType_get_ToleranceParameter(void* self) { return new_string(as<ToleranceParameterType>(self).get_ToleranceParameter()); }
VYR_FLAT(std::int32_t) CSharp_ToleranceParameterType_set_ToleranceParameter(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ToleranceParameterType>(s).set_ToleranceParameter(v); }); }
VYR_FLAT(std::int32_t) CSharp_ToleranceParameterType_getenum_ToleranceParameter(void* self) { return as<ToleranceParameterType>(self).getenum_ToleranceParameter(); }
VYR_FLAT(std::int32_t) CSharp_ToleranceParameterType_setenum_ToleranceParameter(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ToleranceParameterType>(s).setenum_ToleranceParameter(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_ToleranceParameterType_isset_ToleranceParameter(void* self) { return as<ToleranceParameterType>(self).isset_ToleranceParameter(); }
VYR_FLAT(void) CSharp_ToleranceParameterType_unset_ToleranceParameter(void* self) { as<ToleranceParameterType>(self).unset_ToleranceParameter(); }
VYR_FLAT(double) CSharp_ToleranceParameterType_get_LowValue(void* self) { return as<ToleranceParameterType>(self).get_LowValue(); }
VYR_FLAT(std::int32_t) CSharp_ToleranceParameterType_set_LowValue(void* self, double value) { return as<ToleranceParameterType>(self).set_LowValue(value); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
