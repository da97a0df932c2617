// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in statistics.h.

#include "flat/call.h"
#include "schema/generated/functions.h"
#include "schema/generated/statistics.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// FunctionStdDevXType
VYR_FLAT(void*) CSharp_new_FunctionStdDevXType__SWIG_0() { return make<FunctionStdDevXType>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevXType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevXType const & type is null", &copy<FunctionStdDevXType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevXType(void* self) { destroy<FunctionStdDevXType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevXTypeUpcast(void* self) { return upcast<FunctionStdDevXType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionStdDevXType_id_get() { return FunctionStdDevXType::id; }
VYR_FLAT(void) CSharp_FunctionStdDevXType_id_set(const char* identity) { set_identity(&FunctionStdDevXType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionStdDevXType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionStdDevXType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionStdDevXType_getid(void* self) { return new_string(as<FunctionStdDevXType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevXType_has_id(void* self, const char* identity) { return as<FunctionStdDevXType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionStdDevXType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionStdDevXType & type is null", +[](void* o, void* s) { return as<FunctionStdDevXType>(s).swap(as<FunctionStdDevXType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionStdDevXType_reset(void* self) { guarded(+[](void* s) { return as<FunctionStdDevXType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevXType_is_occurs_ok(void* self) { return as<FunctionStdDevXType>(self).is_occurs_ok(); }

// FunctionStdDevYType
VYR_FLAT(void*) CSharp_new_FunctionStdDevYType__SWIG_0() { return make<FunctionStdDevYType>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevYType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevYType const & type is null", &copy<FunctionStdDevYType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevYType(void* self) { destroy<FunctionStdDevYType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevYTypeUpcast(void* self) { return upcast<FunctionStdDevYType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionStdDevYType_id_get() { return FunctionStdDevYType::id; }
VYR_FLAT(void) CSharp_FunctionStdDevYType_id_set(const char* identity) { set_identity(&FunctionStdDevYType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionStdDevYType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionStdDevYType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionStdDevYType_getid(void* self) { return new_string(as<FunctionStdDevYType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevYType_has_id(void* self, const char* identity) { return as<FunctionStdDevYType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionStdDevYType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionStdDevYType & type is null", +[](void* o, void* s) { return as<FunctionStdDevYType>(s).swap(as<FunctionStdDevYType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionStdDevYType_reset(void* self) { guarded(+[](void* s) { return as<FunctionStdDevYType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevYType_is_occurs_ok(void* self) { return as<FunctionStdDevYType>(self).is_occurs_ok(); }

// FunctionStdDevZType
VYR_FLAT(void*) CSharp_new_FunctionStdDevZType__SWIG_0() { return make<FunctionStdDevZType>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevZType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevZType const & type is null", &copy<FunctionStdDevZType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevZType(void* self) { destroy<FunctionStdDevZType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevZTypeUpcast(void* self) { return upcast<FunctionStdDevZType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionStdDevZType_id_get() { return FunctionStdDevZType::id; }
VYR_FLAT(void) CSharp_FunctionStdDevZType_id_set(const char* identity) { set_identity(&FunctionStdDevZType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionStdDevZType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionStdDevZType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionStdDevZType_getid(void* self) { return new_string(as<FunctionStdDevZType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevZType_has_id(void* self, const char* identity) { return as<FunctionStdDevZType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionStdDevZType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionStdDevZType & type is null", +[](void* o, void* s) { return as<FunctionStdDevZType>(s).swap(as<FunctionStdDevZType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionStdDevZType_reset(void* self) { guarded(+[](void* s) { return as<FunctionStdDevZType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevZType_is_occurs_ok(void* self) { return as<FunctionStdDevZType>(self).is_occurs_ok(); }

// FunctionStdDevLType
VYR_FLAT(void*) CSharp_new_FunctionStdDevLType__SWIG_0() { return make<FunctionStdDevLType>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevLType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevLType const & type is null", &copy<FunctionStdDevLType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevLType(void* self) { destroy<FunctionStdDevLType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevLTypeUpcast(void* self) { return upcast<FunctionStdDevLType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionStdDevLType_id_get() { return FunctionStdDevLType::id; }
VYR_FLAT(void) CSharp_FunctionStdDevLType_id_set(const char* identity) { set_identity(&FunctionStdDevLType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionStdDevLType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionStdDevLType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionStdDevLType_getid(void* self) { return new_string(as<FunctionStdDevLType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevLType_has_id(void* self, const char* identity) { return as<FunctionStdDevLType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionStdDevLType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionStdDevLType & type is null", +[](void* o, void* s) { return as<FunctionStdDevLType>(s).swap(as<FunctionStdDevLType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionStdDevLType_reset(void* self) { guarded(+[](void* s) { return as<FunctionStdDevLType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevLType_is_occurs_ok(void* self) { return as<FunctionStdDevLType>(self).is_occurs_ok(); }

// FunctionStdDevAType
VYR_FLAT(void*) CSharp_new_FunctionStdDevAType__SWIG_0() { return make<FunctionStdDevAType>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevAType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevAType const & type is null", &copy<FunctionStdDevAType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevAType(void* self) { destroy<FunctionStdDevAType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevATypeUpcast(void* self) { return upcast<FunctionStdDevAType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionStdDevAType_id_get() { return FunctionStdDevAType::id; }
VYR_FLAT(void) CSharp_FunctionStdDevAType_id_set(const char* identity) { set_identity(&FunctionStdDevAType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionStdDevAType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionStdDevAType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionStdDevAType_getid(void* self) { return new_string(as<FunctionStdDevAType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevAType_has_id(void* self, const char* identity) { return as<FunctionStdDevAType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionStdDevAType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionStdDevAType & type is null", +[](void* o, void* s) { return as<FunctionStdDevAType>(s).swap(as<FunctionStdDevAType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionStdDevAType_reset(void* self) { guarded(+[](void* s) { return as<FunctionStdDevAType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevAType_is_occurs_ok(void* self) { return as<FunctionStdDevAType>(self).is_occurs_ok(); }

// FunctionStdDevBType
VYR_FLAT(void*) CSharp_new_FunctionStdDevBType__SWIG_0() { return make<FunctionStdDevBType>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevBType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevBType const & type is null", &copy<FunctionStdDevBType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevBType(void* self) { destroy<FunctionStdDevBType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevBTypeUpcast(void* self) { return upcast<FunctionStdDevBType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionStdDevBType_id_get() { return FunctionStdDevBType::id; }
VYR_FLAT(void) CSharp_FunctionStdDevBType_id_set(const char* identity) { set_identity(&FunctionStdDevBType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionStdDevBType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionStdDevBType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionStdDevBType_getid(void* self) { return new_string(as<FunctionStdDevBType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevBType_has_id(void* self, const char* identity) { return as<FunctionStdDevBType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionStdDevBType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionStdDevBType & type is null", +[](void* o, void* s) { return as<FunctionStdDevBType>(s).swap(as<FunctionStdDevBType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionStdDevBType_reset(void* self) { guarded(+[](void* s) { return as<FunctionStdDevBType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevBType_is_occurs_ok(void* self) { return as<FunctionStdDevBType>(self).is_occurs_ok(); }

// FunctionStdDevCType
VYR_FLAT(void*) CSharp_new_FunctionStdDevCType__SWIG_0() { return make<FunctionStdDevCType>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevCType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevCType const & type is null", &copy<FunctionStdDevCType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevCType(void* self) { destroy<FunctionStdDevCType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevCTypeUpcast(void* self) { return upcast<FunctionStdDevCType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionStdDevCType_id_get() { return FunctionStdDevCType::id; }
VYR_FLAT(void) CSharp_FunctionStdDevCType_id_set(const char* identity) { set_identity(&FunctionStdDevCType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionStdDevCType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionStdDevCType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionStdDevCType_getid(void* self) { return new_string(as<FunctionStdDevCType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevCType_has_id(void* self, const char* identity) { return as<FunctionStdDevCType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionStdDevCType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionStdDevCType & type is null", +[](void* o, void* s) { return as<FunctionStdDevCType>(s).swap(as<FunctionStdDevCType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionStdDevCType_reset(void* self) { guarded(+[](void* s) { return as<FunctionStdDevCType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevCType_is_occurs_ok(void* self) { return as<FunctionStdDevCType>(self).is_occurs_ok(); }

// FunctionStdDevHType
VYR_FLAT(void*) CSharp_new_FunctionStdDevHType__SWIG_0() { return make<FunctionStdDevHType>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevHType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevHType const & type is null", &copy<FunctionStdDevHType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevHType(void* self) { destroy<FunctionStdDevHType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevHTypeUpcast(void* self) { return upcast<FunctionStdDevHType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionStdDevHType_id_get() { return FunctionStdDevHType::id; }
VYR_FLAT(void) CSharp_FunctionStdDevHType_id_set(const char* identity) { set_identity(&FunctionStdDevHType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionStdDevHType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionStdDevHType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionStdDevHType_getid(void* self) { return new_string(as<FunctionStdDevHType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevHType_has_id(void* self, const char* identity) { return as<FunctionStdDevHType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionStdDevHType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionStdDevHType & type is null", +[](void* o, void* s) { return as<FunctionStdDevHType>(s).swap(as<FunctionStdDevHType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionStdDevHType_reset(void* self) { guarded(+[](void* s) { return as<FunctionStdDevHType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevHType_is_occurs_ok(void* self) { return as<FunctionStdDevHType>(self).is_occurs_ok(); }

// FunctionAverageStdDevLType
VYR_FLAT(void*) CSharp_new_FunctionAverageStdDevLType__SWIG_0() { return make<FunctionAverageStdDevLType>(); }
VYR_FLAT(void*) CSharp_new_FunctionAverageStdDevLType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionAverageStdDevLType const & type is null", &copy<FunctionAverageStdDevLType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionAverageStdDevLType(void* self) { destroy<FunctionAverageStdDevLType>(self); }
VYR_FLAT(void*) CSharp_FunctionAverageStdDevLTypeUpcast(void* self) { return upcast<FunctionAverageStdDevLType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionAverageStdDevLType_id_get() { return FunctionAverageStdDevLType::id; }
VYR_FLAT(void) CSharp_FunctionAverageStdDevLType_id_set(const char* identity) { set_identity(&FunctionAverageStdDevLType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionAverageStdDevLType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionAverageStdDevLType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionAverageStdDevLType_getid(void* self) { return new_string(as<FunctionAverageStdDevLType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevLType_has_id(void* self, const char* identity) { return as<FunctionAverageStdDevLType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionAverageStdDevLType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionAverageStdDevLType & type is null", +[](void* o, void* s) { return as<FunctionAverageStdDevLType>(s).swap(as<FunctionAverageStdDevLType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionAverageStdDevLType_reset(void* self) { guarded(+[](void* s) { return as<FunctionAverageStdDevLType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevLType_is_occurs_ok(void* self) { return as<FunctionAverageStdDevLType>(self).is_occurs_ok(); }

// FunctionAverageStdDevAType
VYR_FLAT(void*) CSharp_new_FunctionAverageStdDevAType__SWIG_0() { return make<FunctionAverageStdDevAType>(); }
VYR_FLAT(void*) CSharp_new_FunctionAverageStdDevAType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionAverageStdDevAType const & type is null", &copy<FunctionAverageStdDevAType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionAverageStdDevAType(void* self) { destroy<FunctionAverageStdDevAType>(self); }
VYR_FLAT(void*) CSharp_FunctionAverageStdDevATypeUpcast(void* self) { return upcast<FunctionAverageStdDevAType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionAverageStdDevAType_id_get() { return FunctionAverageStdDevAType::id; }
VYR_FLAT(void) CSharp_FunctionAverageStdDevAType_id_set(const char* identity) { set_identity(&FunctionAverageStdDevAType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionAverageStdDevAType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionAverageStdDevAType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionAverageStdDevAType_getid(void* self) { return new_string(as<FunctionAverageStdDevAType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevAType_has_id(void* self, const char* identity) { return as<FunctionAverageStdDevAType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionAverageStdDevAType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionAverageStdDevAType & type is null", +[](void* o, void* s) { return as<FunctionAverageStdDevAType>(s).swap(as<FunctionAverageStdDevAType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionAverageStdDevAType_reset(void* self) { guarded(+[](void* s) { return as<FunctionAverageStdDevAType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevAType_is_occurs_ok(void* self) { return as<FunctionAverageStdDevAType>(self).is_occurs_ok(); }

// FunctionAverageStdDevBType
VYR_FLAT(void*) CSharp_new_FunctionAverageStdDevBType__SWIG_0() { return make<FunctionAverageStdDevBType>(); }
VYR_FLAT(void*) CSharp_new_FunctionAverageStdDevBType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionAverageStdDevBType const & type is null", &copy<FunctionAverageStdDevBType>, source); }
VYR_FLAT(void) CSharp_delete_FunctionAverageStdDevBType(void* self) { destroy<FunctionAverageStdDevBType>(self); }
VYR_FLAT(void*) CSharp_FunctionAverageStdDevBTypeUpcast(void* self) { return upcast<FunctionAverageStdDevBType, FunctionType>(self); }
VYR_FLAT(const char*) CSharp_FunctionAverageStdDevBType_id_get() { return FunctionAverageStdDevBType::id; }
VYR_FLAT(void) CSharp_FunctionAverageStdDevBType_id_set(const char* identity) { set_identity(&FunctionAverageStdDevBType::id, identity); }
VYR_FLAT(void*) CSharp_FunctionAverageStdDevBType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<FunctionAverageStdDevBType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_FunctionAverageStdDevBType_getid(void* self) { return new_string(as<FunctionAverageStdDevBType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevBType_has_id(void* self, const char* identity) { return as<FunctionAverageStdDevBType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_FunctionAverageStdDevBType_swap(void* self, void* other) { checked("com_vyrgraph_v2::FunctionAverageStdDevBType & type is null", +[](void* o, void* s) { return as<FunctionAverageStdDevBType>(s).swap(as<FunctionAverageStdDevBType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_FunctionAverageStdDevBType_reset(void* self) { guarded(+[](void* s) { return as<FunctionAverageStdDevBType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevBType_is_occurs_ok(void* self) { return as<FunctionAverageStdDevBType>(self).is_occurs_ok(); }

// FunctionStdDevX
VYR_FLAT(void*) CSharp_new_FunctionStdDevX__SWIG_0() { return make<FunctionStdDevX>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevX__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevX const & type is null", &copy<FunctionStdDevX>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevX(void* self) { destroy<FunctionStdDevX>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevXUpcast(void* self) { return upcast<FunctionStdDevX, FunctionStdDevXType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevX_ns_map() { return reference(*FunctionStdDevX::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevX_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevX>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevX_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionStdDevX>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevX_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevX>(s).marshal(p); }, self, path); }

// FunctionStdDevY
VYR_FLAT(void*) CSharp_new_FunctionStdDevY__SWIG_0() { return make<FunctionStdDevY>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevY__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevY const & type is null", &copy<FunctionStdDevY>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevY(void* self) { destroy<FunctionStdDevY>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevYUpcast(void* self) { return upcast<FunctionStdDevY, FunctionStdDevYType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevY_ns_map() { return reference(*FunctionStdDevY::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevY_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevY>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevY_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionStdDevY>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevY_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevY>(s).marshal(p); }, self, path); }

// FunctionStdDevZ
VYR_FLAT(void*) CSharp_new_FunctionStdDevZ__SWIG_0() { return make<FunctionStdDevZ>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevZ__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevZ const & type is null", &copy<FunctionStdDevZ>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevZ(void* self) { destroy<FunctionStdDevZ>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevZUpcast(void* self) { return upcast<FunctionStdDevZ, FunctionStdDevZType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevZ_ns_map() { return reference(*FunctionStdDevZ::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevZ_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevZ>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevZ_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionStdDevZ>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevZ_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevZ>(s).marshal(p); }, self, path); }

// FunctionStdDevL
VYR_FLAT(void*) CSharp_new_FunctionStdDevL__SWIG_0() { return make<FunctionStdDevL>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevL__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevL const & type is null", &copy<FunctionStdDevL>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevL(void* self) { destroy<FunctionStdDevL>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevLUpcast(void* self) { return upcast<FunctionStdDevL, FunctionStdDevLType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevL_ns_map() { return reference(*FunctionStdDevL::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevL_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevL>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevL_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionStdDevL>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevL_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevL>(s).marshal(p); }, self, path); }

// FunctionStdDevA
VYR_FLAT(void*) CSharp_new_FunctionStdDevA__SWIG_0() { return make<FunctionStdDevA>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevA__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevA const & type is null", &copy<FunctionStdDevA>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevA(void* self) { destroy<FunctionStdDevA>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevAUpcast(void* self) { return upcast<FunctionStdDevA, FunctionStdDevAType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevA_ns_map() { return reference(*FunctionStdDevA::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevA_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevA>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevA_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionStdDevA>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevA_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevA>(s).marshal(p); }, self, path); }

// FunctionStdDevB
VYR_FLAT(void*) CSharp_new_FunctionStdDevB__SWIG_0() { return make<FunctionStdDevB>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevB__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevB const & type is null", &copy<FunctionStdDevB>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevB(void* self) { destroy<FunctionStdDevB>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevBUpcast(void* self) { return upcast<FunctionStdDevB, FunctionStdDevBType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevB_ns_map() { return reference(*FunctionStdDevB::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevB_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevB>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevB_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionStdDevB>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevB_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevB>(s).marshal(p); }, self, path); }

// FunctionStdDevC
VYR_FLAT(void*) CSharp_new_FunctionStdDevC__SWIG_0() { return make<FunctionStdDevC>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevC__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevC const & type is null", &copy<FunctionStdDevC>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevC(void* self) { destroy<FunctionStdDevC>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevCUpcast(void* self) { return upcast<FunctionStdDevC, FunctionStdDevCType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevC_ns_map() { return reference(*FunctionStdDevC::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevC_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevC>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevC_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionStdDevC>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevC_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevC>(s).marshal(p); }, self, path); }

// FunctionStdDevH
VYR_FLAT(void*) CSharp_new_FunctionStdDevH__SWIG_0() { return make<FunctionStdDevH>(); }
VYR_FLAT(void*) CSharp_new_FunctionStdDevH__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionStdDevH const & type is null", &copy<FunctionStdDevH>, source); }
VYR_FLAT(void) CSharp_delete_FunctionStdDevH(void* self) { destroy<FunctionStdDevH>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevHUpcast(void* self) { return upcast<FunctionStdDevH, FunctionStdDevHType>(self); }
VYR_FLAT(void*) CSharp_FunctionStdDevH_ns_map() { return reference(*FunctionStdDevH::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevH_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevH>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevH_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionStdDevH>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionStdDevH_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionStdDevH>(s).marshal(p); }, self, path); }

// FunctionAverageStdDevL
VYR_FLAT(void*) CSharp_new_FunctionAverageStdDevL__SWIG_0() { return make<FunctionAverageStdDevL>(); }
VYR_FLAT(void*) CSharp_new_FunctionAverageStdDevL__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionAverageStdDevL const & type is null", &copy<FunctionAverageStdDevL>, source); }
VYR_FLAT(void) CSharp_delete_FunctionAverageStdDevL(void* self) { destroy<FunctionAverageStdDevL>(self); }
VYR_FLAT(void*) CSharp_FunctionAverageStdDevLUpcast(void* self) { return upcast<FunctionAverageStdDevL, FunctionAverageStdDevLType>(self); }
VYR_FLAT(void*) CSharp_FunctionAverageStdDevL_ns_map() { return reference(*FunctionAverageStdDevL::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevL_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionAverageStdDevL>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevL_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionAverageStdDevL>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevL_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionAverageStdDevL>(s).marshal(p); }, self, path); }

// FunctionAverageStdDevA
VYR_FLAT(void*) CSharp_new_FunctionAverageStdDevA__SWIG_0() { return make<FunctionAverageStdDevA>(); }
VYR_FLAT(void*) CSharp_new_FunctionAverageStdDevA__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionAverageStdDevA const & type is null", &copy<FunctionAverageStdDevA>, source); }
VYR_FLAT(void) CSharp_delete_FunctionAverageStdDevA(void* self) { destroy<FunctionAverageStdDevA>(self); }
VYR_FLAT(void*) CSharp_FunctionAverageStdDevAUpcast(void* self) { return upcast<FunctionAverageStdDevA, FunctionAverageStdDevAType>(self); }
VYR_FLAT(void*) CSharp_FunctionAverageStdDevA_ns_map() { return reference(*FunctionAverageStdDevA::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevA_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionAverageStdDevA>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevA_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionAverageStdDevA>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevA_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionAverageStdDevA>(s).marshal(p); }, self, path); }

// FunctionAverageStdDevB
VYR_FLAT(void*) CSharp_new_FunctionAverageStdDevB__SWIG_0() { return make<FunctionAverageStdDevB>(); }
VYR_FLAT(void*) CSharp_new_FunctionAverageStdDevB__SWIG_1(void* source) { return checked("com_vyrgraph_v2::FunctionAverageStdDevB const & type is null", &copy<FunctionAverageStdDevB>, source); }
VYR_FLAT(void) CSharp_delete_FunctionAverageStdDevB(void* self) { destroy<FunctionAverageStdDevB>(self); }
VYR_FLAT(void*) CSharp_FunctionAverageStdDevBUpcast(void* self) { return upcast<FunctionAverageStdDevB, FunctionAverageStdDevBType>(self); }
VYR_FLAT(void*) CSharp_FunctionAverageStdDevB_ns_map() { return reference(*FunctionAverageStdDevB::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevB_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionAverageStdDevB>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevB_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<FunctionAverageStdDevB>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_FunctionAverageStdDevB_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<FunctionAverageStdDevB>(s).marshal(p); }, self, path); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
