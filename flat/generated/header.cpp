// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in header.h.

#include "flat/call.h"
#include "schema/generated/header.h"
#include "schema/generated/palettes.h"
#include "schema/generated/quality_control.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// SDKVersion
VYR_FLAT(void*) CSharp_new_SDKVersion__SWIG_0() { return make<SDKVersion>(); }
VYR_FLAT(void*) CSharp_new_SDKVersion__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SDKVersion const & type is null", &copy<SDKVersion>, source); }
VYR_FLAT(void) CSharp_delete_SDKVersion(void* self) { destroy<SDKVersion>(self); }
VYR_FLAT(void) CSharp_SDKVersion_swap(void* self, void* other) { checked("com_vyrgraph_v2::SDKVersion & type is null", +[](void* o, void* s) { return as<SDKVersion>(s).swap(as<SDKVersion>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SDKVersion_reset(void* self) { guarded(+[](void* s) { return as<SDKVersion>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SDKVersion_is_occurs_ok(void* self) { return as<SDKVersion>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_SDKVersion_get_SDKVersion(void* self) { return new_string(as<SDKVersion>(self).get_SDKVersion()); }
VYR_FLAT(std::int32_t) CSharp_SDKVersion_set_SDKVersion(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SDKVersion>(s).set_SDKVersion(v); }); }
VYR_FLAT(std::int32_t) CSharp_SDKVersion_isnil_SDKVersion(void* self) { return as<SDKVersion>(self).isnil_SDKVersion(); }
VYR_FLAT(void) CSharp_SDKVersion_setnil_SDKVersion(void* self) { as<SDKVersion>(self).setnil_SDKVersion(); }

// SDKType
VYR_FLAT(void*) CSharp_new_SDKType__SWIG_0() { return make<SDKType>(); }
VYR_FLAT(void*) CSharp_new_SDKType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SDKType const & type is null", &copy<SDKType>, source); }
VYR_FLAT(void) CSharp_delete_SDKType(void* self) { destroy<SDKType>(self); }
VYR_FLAT(void) CSharp_SDKType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SDKType & type is null", +[](void* o, void* s) { return as<SDKType>(s).swap(as<SDKType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SDKType_reset(void* self) { guarded(+[](void* s) { return as<SDKType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SDKType_is_occurs_ok(void* self) { return as<SDKType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_SDKType_get_SDKName(void* self) { return new_string(as<SDKType>(self).get_SDKName()); }
VYR_FLAT(std::int32_t) CSharp_SDKType_set_SDKName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SDKType>(s).set_SDKName(v); }); }
VYR_FLAT(void*) CSharp_SDKType_get_SDKVersion__SWIG_0(void* self) { return &as<SDKType>(self).get_SDKVersion(); }
VYR_FLAT(void*) CSharp_SDKType_assign_SDKVersion(void* self, void* value) { return checked("com_vyrgraph_v2::SDKVersion const & type is null", +[](void* v, void* s) -> void* { return &as<SDKType>(s).assign_SDKVersion(as<SDKVersion>(v)); }, value, self); }

// PlatformType
VYR_FLAT(void*) CSharp_new_PlatformType__SWIG_0() { return make<PlatformType>(); }
VYR_FLAT(void*) CSharp_new_PlatformType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::PlatformType const & type is null", &copy<PlatformType>, source); }
VYR_FLAT(void) CSharp_delete_PlatformType(void* self) { destroy<PlatformType>(self); }
VYR_FLAT(void) CSharp_PlatformType_swap(void* self, void* other) { checked("com_vyrgraph_v2::PlatformType & type is null", +[](void* o, void* s) { return as<PlatformType>(s).swap(as<PlatformType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_PlatformType_reset(void* self) { guarded(+[](void* s) { return as<PlatformType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_PlatformType_is_occurs_ok(void* self) { return as<PlatformType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_PlatformType_get_OperatingSystem(void* self) { return new_string(as<PlatformType>(self).get_OperatingSystem()); }
VYR_FLAT(std::int32_t) CSharp_PlatformType_set_OperatingSystem(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<PlatformType>(s).set_OperatingSystem(v); }); }
VYR_FLAT(char16_t*) CSharp_PlatformType_get_OperatingSystemVersion(void* self) { return new_string(as<PlatformType>(self).get_OperatingSystemVersion()); }
VYR_FLAT(std::int32_t) CSharp_PlatformType_set_OperatingSystemVersion(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<PlatformType>(s).set_OperatingSystemVersion(v); }); }

// Header
VYR_FLAT(void*) CSharp_new_Header__SWIG_0() { return make<Header>(); }
VYR_FLAT(void*) CSharp_new_Header__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Header const & type is null", &copy<Header>, source); }
VYR_FLAT(void) CSharp_delete_Header(void* self) { destroy<Header>(self); }
VYR_FLAT(void) CSharp_Header_swap(void* self, void* other) { checked("com_vyrgraph_v2::Header & type is null", +[](void* o, void* s) { return as<Header>(s).swap(as<Header>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Header_reset(void* self) { guarded(+[](void* s) { return as<Header>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Header_is_occurs_ok(void* self) { return as<Header>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_Header_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<Header>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_Header_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Header>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_Header_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Header>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Header_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<Header>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Header_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Header>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_Header_back_CustomAttribute(void* self) { return &as<Header>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_Header_delete_CustomAttribute(void* self, std::uint32_t index) { as<Header>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_Header_clear_CustomAttribute(void* self) { as<Header>(self).clear_CustomAttribute(); }
VYR_FLAT(char16_t*) CSharp_Header_get_Creator(void* self) { return new_string(as<Header>(self).get_Creator()); }
VYR_FLAT(std::int32_t) CSharp_Header_set_Creator(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Header>(s).set_Creator(v); }); }
VYR_FLAT(char16_t*) CSharp_Header_get_CreatorVersion(void* self) { return new_string(as<Header>(self).get_CreatorVersion()); }
VYR_FLAT(std::int32_t) CSharp_Header_set_CreatorVersion(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Header>(s).set_CreatorVersion(v); }); }
VYR_FLAT(std::uint32_t) CSharp_Header_size_ChangeHistory(void* self) { return static_cast<std::uint32_t>(as<Header>(self).size_ChangeHistory()); }
VYR_FLAT(void*) CSharp_Header_get_ChangeHistory(void* self, std::uint32_t index) { return reference(as<Header>(self).get_ChangeHistory(index)); }
VYR_FLAT(std::int32_t) CSharp_Header_set_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<Header>(s).set_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Header_append_ChangeHistory(void* self, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s) { return as<Header>(s).append_ChangeHistory(as<lmx::c_datetime>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_Header_insert_ChangeHistory(void* self, std::uint32_t index, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s, std::uint32_t i) { return as<Header>(s).insert_ChangeHistory(i, as<lmx::c_datetime>(v)); }, value, self, index); }
VYR_FLAT(void) CSharp_Header_delete_ChangeHistory(void* self, std::uint32_t index) { as<Header>(self).delete_ChangeHistory(index); }
VYR_FLAT(void) CSharp_Header_clear_ChangeHistory(void* self) { as<Header>(self).clear_ChangeHistory(); }
VYR_FLAT(char16_t*) CSharp_Header_get_Purpose(void* self) { return new_string(as<Header>(self).get_Purpose()); }
VYR_FLAT(std::int32_t) CSharp_Header_set_Purpose(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Header>(s).set_Purpose(v); }); }
VYR_FLAT(char16_t*) CSharp_Header_get_Name(void* self) { return new_string(as<Header>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_Header_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Header>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_Header_isset_Name(void* self) { return as<Header>(self).isset_Name(); }
VYR_FLAT(void) CSharp_Header_unset_Name(void* self) { as<Header>(self).unset_Name(); }
VYR_FLAT(char16_t*) CSharp_Header_get_Comments(void* self) { return new_string(as<Header>(self).get_Comments()); }
VYR_FLAT(std::int32_t) CSharp_Header_set_Comments(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Header>(s).set_Comments(v); }); }
VYR_FLAT(std::int32_t) CSharp_Header_isset_Comments(void* self) { return as<Header>(self).isset_Comments(); }
VYR_FLAT(void) CSharp_Header_unset_Comments(void* self) { as<Header>(self).unset_Comments(); }
VYR_FLAT(void*) CSharp_Header_get_ReadSDKInformation__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<Header>(s).get_ReadSDKInformation(); }, self); }
VYR_FLAT(void*) CSharp_Header_assign_ReadSDKInformation(void* self, void* value) { return checked("com_vyrgraph_v2::SDKType const & type is null", +[](void* v, void* s) -> void* { return &as<Header>(s).assign_ReadSDKInformation(as<SDKType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_Header_isset_ReadSDKInformation(void* self) { return as<Header>(self).isset_ReadSDKInformation(); }
VYR_FLAT(void) CSharp_Header_unset_ReadSDKInformation(void* self) { as<Header>(self).unset_ReadSDKInformation(); }
VYR_FLAT(void*) CSharp_Header_get_WriteSDKInformation__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<Header>(s).get_WriteSDKInformation(); }, self); }
VYR_FLAT(void*) CSharp_Header_assign_WriteSDKInformation(void* self, void* value) { return checked("com_vyrgraph_v2::SDKType const & type is null", +[](void* v, void* s) -> void* { return &as<Header>(s).assign_WriteSDKInformation(as<SDKType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_Header_isset_WriteSDKInformation(void* self) { return as<Header>(self).isset_WriteSDKInformation(); }
VYR_FLAT(void) CSharp_Header_unset_WriteSDKInformation(void* self) { as<Header>(self).unset_WriteSDKInformation(); }
VYR_FLAT(void*) CSharp_Header_get_ReadPlatformInformation__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<Header>(s).get_ReadPlatformInformation(); }, self); }
VYR_FLAT(void*) CSharp_Header_assign_ReadPlatformInformation(void* self, void* value) { return checked("com_vyrgraph_v2::PlatformType const & type is null", +[](void* v, void* s) -> void* { return &as<Header>(s).assign_ReadPlatformInformation(as<PlatformType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_Header_isset_ReadPlatformInformation(void* self) { return as<Header>(self).isset_ReadPlatformInformation(); }
VYR_FLAT(void) CSharp_Header_unset_ReadPlatformInformation(void* self) { as<Header>(self).unset_ReadPlatformInformation(); }
VYR_FLAT(void*) CSharp_Header_get_WritePlatformInformation__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<Header>(s).get_WritePlatformInformation(); }, self); }
VYR_FLAT(void*) CSharp_Header_assign_WritePlatformInformation(void* self, void* value) { return checked("com_vyrgraph_v2::PlatformType const & type is null", +[](void* v, void* s) -> void* { return &as<Header>(s).assign_WritePlatformInformation(as<PlatformType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_Header_isset_WritePlatformInformation(void* self) { return as<Header>(self).isset_WritePlatformInformation(); }
VYR_FLAT(void) CSharp_Header_unset_WritePlatformInformation(void* self) { as<Header>(self).unset_WritePlatformInformation(); }
VYR_FLAT(std::uint32_t) CSharp_Header_size_Revision(void* self) { return static_cast<std::uint32_t>(as<Header>(self).size_Revision()); }
VYR_FLAT(void*) CSharp_Header_get_Revision__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Header>(s).get_Revision(i); }, self, index); }
VYR_FLAT(void*) CSharp_Header_assign_Revision(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::Revision const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Header>(s).assign_Revision(i, as<Revision>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Header_append_Revision(void* self) { return guarded(+[](void* s) { return as<Header>(s).append_Revision(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Header_insert_Revision(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Header>(s).insert_Revision(i); }, self, index); }
VYR_FLAT(void*) CSharp_Header_back_Revision(void* self) { return &as<Header>(self).back_Revision(); }
VYR_FLAT(void) CSharp_Header_delete_Revision(void* self, std::uint32_t index) { as<Header>(self).delete_Revision(index); }
VYR_FLAT(void) CSharp_Header_clear_Revision(void* self) { as<Header>(self).clear_Revision(); }

// OwnerType
VYR_FLAT(void*) CSharp_new_OwnerType__SWIG_0() { return make<OwnerType>(); }
VYR_FLAT(void*) CSharp_new_OwnerType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::OwnerType const & type is null", &copy<OwnerType>, source); }
VYR_FLAT(void) CSharp_delete_OwnerType(void* self) { destroy<OwnerType>(self); }
VYR_FLAT(void) CSharp_OwnerType_swap(void* self, void* other) { checked("com_vyrgraph_v2::OwnerType & type is null", +[](void* o, void* s) { return as<OwnerType>(s).swap(as<OwnerType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_OwnerType_reset(void* self) { guarded(+[](void* s) { return as<OwnerType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_OwnerType_is_occurs_ok(void* self) { return as<OwnerType>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_OwnerType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<OwnerType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_OwnerType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<OwnerType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_OwnerType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<OwnerType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_OwnerType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<OwnerType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_OwnerType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<OwnerType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_OwnerType_back_CustomAttribute(void* self) { return &as<OwnerType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_OwnerType_delete_CustomAttribute(void* self, std::uint32_t index) { as<OwnerType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_OwnerType_clear_CustomAttribute(void* self) { as<OwnerType>(self).clear_CustomAttribute(); }
VYR_FLAT(std::uint32_t) CSharp_OwnerType_size_Person(void* self) { return static_cast<std::uint32_t>(as<OwnerType>(self).size_Person()); }
VYR_FLAT(void*) CSharp_OwnerType_get_Person__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<OwnerType>(s).get_Person(i); }, self, index); }
VYR_FLAT(void*) CSharp_OwnerType_assign_Person(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::Person const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<OwnerType>(s).assign_Person(i, as<Person>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_OwnerType_append_Person(void* self) { return guarded(+[](void* s) { return as<OwnerType>(s).append_Person(); }, self); }
VYR_FLAT(std::int32_t) CSharp_OwnerType_insert_Person(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<OwnerType>(s).insert_Person(i); }, self, index); }
VYR_FLAT(void*) CSharp_OwnerType_back_Person(void* self) { return &as<OwnerType>(self).back_Person(); }
VYR_FLAT(void) CSharp_OwnerType_delete_Person(void* self, std::uint32_t index) { as<OwnerType>(self).delete_Person(index); }
VYR_FLAT(void) CSharp_OwnerType_clear_Person(void* self) { as<OwnerType>(self).clear_Person(); }
VYR_FLAT(std::uint32_t) CSharp_OwnerType_size_Copyright(void* self) { return static_cast<std::uint32_t>(as<OwnerType>(self).size_Copyright()); }
VYR_FLAT(char16_t*) CSharp_OwnerType_get_Copyright(void* self, std::uint32_t index) { return new_string(as<OwnerType>(self).get_Copyright(index)); }
VYR_FLAT(std::int32_t) CSharp_OwnerType_set_Copyright(void* self, std::uint32_t index, const char16_t* value) { return with_text(self, index, value, [](void* s, std::size_t i, wide_text v) { return as<OwnerType>(s).set_Copyright(i, v); }); }
VYR_FLAT(std::int32_t) CSharp_OwnerType_append_Copyright(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<OwnerType>(s).append_Copyright(v); }); }
VYR_FLAT(std::int32_t) CSharp_OwnerType_insert_Copyright(void* self, std::uint32_t index, const char16_t* value) { return with_text(self, index, value, [](void* s, std::size_t i, wide_text v) { return as<OwnerType>(s).insert_Copyright(i, v); }); }
VYR_FLAT(void) CSharp_OwnerType_delete_Copyright(void* self, std::uint32_t index) { as<OwnerType>(self).delete_Copyright(index); }
VYR_FLAT(void) CSharp_OwnerType_clear_Copyright(void* self) { as<OwnerType>(self).clear_Copyright(); }
VYR_FLAT(std::uint32_t) CSharp_OwnerType_size_Company(void* self) { return static_cast<std::uint32_t>(as<OwnerType>(self).size_Company()); }
VYR_FLAT(char16_t*) CSharp_OwnerType_get_Company(void* self, std::uint32_t index) { return new_string(as<OwnerType>(self).get_Company(index)); }
VYR_FLAT(std::int32_t) CSharp_OwnerType_set_Company(void* self, std::uint32_t index, const char16_t* value) { return with_text(self, index, value, [](void* s, std::size_t i, wide_text v) { return as<OwnerType>(s).set_Company(i, v); }); }
VYR_FLAT(std::int32_t) CSharp_OwnerType_append_Company(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<OwnerType>(s).append_Company(v); }); }
VYR_FLAT(std::int32_t) CSharp_OwnerType_insert_Company(void* self, std::uint32_t index, const char16_t* value) { return with_text(self, index, value, [](void* s, std::size_t i, wide_text v) { return as<OwnerType>(s).insert_Company(i, v); }); }
VYR_FLAT(void) CSharp_OwnerType_delete_Company(void* self, std::uint32_t index) { as<OwnerType>(self).delete_Company(index); }
VYR_FLAT(void) CSharp_OwnerType_clear_Company(void* self) { as<OwnerType>(self).clear_Company(); }

// Version
VYR_FLAT(void*) CSharp_new_Version__SWIG_0() { return make<Version>(); }
VYR_FLAT(void*) CSharp_new_Version__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Version const & type is null", &copy<Version>, source); }
VYR_FLAT(void) CSharp_delete_Version(void* self) { destroy<Version>(self); }
VYR_FLAT(void) CSharp_Version_swap(void* self, void* other) { checked("com_vyrgraph_v2::Version & type is null", +[](void* o, void* s) { return as<Version>(s).swap(as<Version>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Version_reset(void* self) { guarded(+[](void* s) { return as<Version>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Version_is_occurs_ok(void* self) { return as<Version>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_Version_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<Version>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_Version_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Version>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_Version_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Version>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Version_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<Version>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Version_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Version>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_Version_back_CustomAttribute(void* self) { return &as<Version>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_Version_delete_CustomAttribute(void* self, std::uint32_t index) { as<Version>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_Version_clear_CustomAttribute(void* self) { as<Version>(self).clear_CustomAttribute(); }
VYR_FLAT(char16_t*) CSharp_Version_get_Version(void* self) { return new_string(as<Version>(self).get_Version()); }
VYR_FLAT(std::int32_t) CSharp_Version_set_Version(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Version>(s).set_Version(v); }); }
VYR_FLAT(std::uint32_t) CSharp_Version_size_Predecessor(void* self) { return static_cast<std::uint32_t>(as<Version>(self).size_Predecessor()); }
VYR_FLAT(char16_t*) CSharp_Version_get_Predecessor(void* self, std::uint32_t index) { return new_string(as<Version>(self).get_Predecessor(index)); }
VYR_FLAT(std::int32_t) CSharp_Version_set_Predecessor(void* self, std::uint32_t index, const char16_t* value) { return with_text(self, index, value, [](void* s, std::size_t i, wide_text v) { return as<Version>(s).set_Predecessor(i, v); }); }
VYR_FLAT(std::int32_t) CSharp_Version_append_Predecessor(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Version>(s).append_Predecessor(v); }); }
VYR_FLAT(std::int32_t) CSharp_Version_insert_Predecessor(void* self, std::uint32_t index, const char16_t* value) { return with_text(self, index, value, [](void* s, std::size_t i, wide_text v) { return as<Version>(s).insert_Predecessor(i, v); }); }
VYR_FLAT(void) CSharp_Version_delete_Predecessor(void* self, std::uint32_t index) { as<Version>(self).delete_Predecessor(index); }
VYR_FLAT(void) CSharp_Version_clear_Predecessor(void* self) { as<Version>(self).clear_Predecessor(); }

// Preamble
VYR_FLAT(void*) CSharp_new_Preamble__SWIG_0() { return make<Preamble>(); }
VYR_FLAT(void*) CSharp_new_Preamble__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Preamble const & type is null", &copy<Preamble>, source); }
VYR_FLAT(void) CSharp_delete_Preamble(void* self) { destroy<Preamble>(self); }
VYR_FLAT(void) CSharp_Preamble_swap(void* self, void* other) { checked("com_vyrgraph_v2::Preamble & type is null", +[](void* o, void* s) { return as<Preamble>(s).swap(as<Preamble>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Preamble_reset(void* self) { guarded(+[](void* s) { return as<Preamble>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Preamble_is_occurs_ok(void* self) { return as<Preamble>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_Preamble_get_Header__SWIG_0(void* self) { return &as<Preamble>(self).get_Header(); }
VYR_FLAT(void*) CSharp_Preamble_assign_Header(void* self, void* value) { return checked("com_vyrgraph_v2::Header const & type is null", +[](void* v, void* s) -> void* { return &as<Preamble>(s).assign_Header(as<Header>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_Preamble_get_Owner__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<Preamble>(s).get_Owner(); }, self); }
VYR_FLAT(void*) CSharp_Preamble_assign_Owner(void* self, void* value) { return checked("com_vyrgraph_v2::OwnerType const & type is null", +[](void* v, void* s) -> void* { return &as<Preamble>(s).assign_Owner(as<OwnerType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_Preamble_isset_Owner(void* self) { return as<Preamble>(self).isset_Owner(); }
VYR_FLAT(void) CSharp_Preamble_unset_Owner(void* self) { as<Preamble>(self).unset_Owner(); }
VYR_FLAT(void*) CSharp_Preamble_get_Version__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<Preamble>(s).get_Version(); }, self); }
VYR_FLAT(void*) CSharp_Preamble_assign_Version(void* self, void* value) { return checked("com_vyrgraph_v2::Version const & type is null", +[](void* v, void* s) -> void* { return &as<Preamble>(s).assign_Version(as<Version>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_Preamble_isset_Version(void* self) { return as<Preamble>(self).isset_Version(); }
VYR_FLAT(void) CSharp_Preamble_unset_Version(void* self) { as<Preamble>(self).unset_Version(); }

// Vyr
VYR_FLAT(void*) CSharp_new_Vyr__SWIG_0() { return make<Vyr>(); }
VYR_FLAT(void*) CSharp_new_Vyr__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Vyr const & type is null", &copy<Vyr>, source); }
VYR_FLAT(void) CSharp_delete_Vyr(void* self) { destroy<Vyr>(self); }
VYR_FLAT(void*) CSharp_Vyr_ns_map() { return reference(*Vyr::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_Vyr_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<Vyr>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_Vyr_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<Vyr>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_Vyr_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<Vyr>(s).marshal(p); }, self, path); }
VYR_FLAT(void) CSharp_Vyr_swap(void* self, void* other) { checked("com_vyrgraph_v2::Vyr & type is null", +[](void* o, void* s) { return as<Vyr>(s).swap(as<Vyr>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Vyr_reset(void* self) { guarded(+[](void* s) { return as<Vyr>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Vyr_is_occurs_ok(void* self) { return as<Vyr>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_Vyr_get_Preamble__SWIG_0(void* self) { return &as<Vyr>(self).get_Preamble(); }
VYR_FLAT(void*) CSharp_Vyr_assign_Preamble(void* self, void* value) { return checked("com_vyrgraph_v2::Preamble const & type is null", +[](void* v, void* s) -> void* { return &as<Vyr>(s).assign_Preamble(as<Preamble>(v)); }, value, self); }
VYR_FLAT(std::uint32_t) CSharp_Vyr_size_Color(void* self) { return static_cast<std::uint32_t>(as<Vyr>(self).size_Color()); }
VYR_FLAT(void*) CSharp_Vyr_get_Color__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Vyr>(s).get_Color(i); }, self, index); }
VYR_FLAT(void*) CSharp_Vyr_assign_Color(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::ColorType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Vyr>(s).assign_Color(i, as<ColorType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Vyr_append_Color(void* self) { return guarded(+[](void* s) { return as<Vyr>(s).append_Color(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Vyr_insert_Color(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Vyr>(s).insert_Color(i); }, self, index); }
VYR_FLAT(void*) CSharp_Vyr_back_Color(void* self) { return &as<Vyr>(self).back_Color(); }
VYR_FLAT(void) CSharp_Vyr_delete_Color(void* self, std::uint32_t index) { as<Vyr>(self).delete_Color(index); }
VYR_FLAT(void) CSharp_Vyr_clear_Color(void* self) { as<Vyr>(self).clear_Color(); }
VYR_FLAT(std::uint32_t) CSharp_Vyr_size_Palette(void* self) { return static_cast<std::uint32_t>(as<Vyr>(self).size_Palette()); }
VYR_FLAT(void*) CSharp_Vyr_get_Palette__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Vyr>(s).get_Palette(i); }, self, index); }
VYR_FLAT(void*) CSharp_Vyr_assign_Palette(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::PaletteType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Vyr>(s).assign_Palette(i, as<PaletteType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Vyr_append_Palette(void* self) { return guarded(+[](void* s) { return as<Vyr>(s).append_Palette(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Vyr_insert_Palette(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Vyr>(s).insert_Palette(i); }, self, index); }
VYR_FLAT(void*) CSharp_Vyr_back_Palette(void* self) { return &as<Vyr>(self).back_Palette(); }
VYR_FLAT(void) CSharp_Vyr_delete_Palette(void* self, std::uint32_t index) { as<Vyr>(self).delete_Palette(index); }
VYR_FLAT(void) CSharp_Vyr_clear_Palette(void* self) { as<Vyr>(self).clear_Palette(); }
VYR_FLAT(std::uint32_t) CSharp_Vyr_size_ColorQualityControl(void* self) { return static_cast<std::uint32_t>(as<Vyr>(self).size_ColorQualityControl()); }
VYR_FLAT(void*) CSharp_Vyr_get_ColorQualityControl__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<Vyr>(s).get_ColorQualityControl(i); }, self, index); }
VYR_FLAT(void*) CSharp_Vyr_assign_ColorQualityControl(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::ColorQualityControlType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<Vyr>(s).assign_ColorQualityControl(i, as<ColorQualityControlType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_Vyr_append_ColorQualityControl(void* self) { return guarded(+[](void* s) { return as<Vyr>(s).append_ColorQualityControl(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Vyr_insert_ColorQualityControl(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<Vyr>(s).insert_ColorQualityControl(i); }, self, index); }
VYR_FLAT(void*) CSharp_Vyr_back_ColorQualityControl(void* self) { return &as<Vyr>(self).back_ColorQualityControl(); }
VYR_FLAT(void) CSharp_Vyr_delete_ColorQualityControl(void* self, std::uint32_t index) { as<Vyr>(self).delete_ColorQualityControl(index); }
VYR_FLAT(void) CSharp_Vyr_clear_ColorQualityControl(void* self) { as<Vyr>(self).clear_ColorQualityControl(); }

// Revision
VYR_FLAT(void*) CSharp_new_Revision__SWIG_0() { return make<Revision>(); }
VYR_FLAT(void*) CSharp_new_Revision__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Revision const & type is null", &copy<Revision>, source); }
VYR_FLAT(void) CSharp_delete_Revision(void* self) { destroy<Revision>(self); }
VYR_FLAT(void) CSharp_Revision_swap(void* self, void* other) { checked("com_vyrgraph_v2::Revision & type is null", +[](void* o, void* s) { return as<Revision>(s).swap(as<Revision>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Revision_reset(void* self) { guarded(+[](void* s) { return as<Revision>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Revision_is_occurs_ok(void* self) { return as<Revision>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_Revision_size_any(void* self) { return static_cast<std::uint32_t>(as<Revision>(self).size_any()); }
VYR_FLAT(std::int32_t) CSharp_Revision_append_any(void* self, const char* value) { return checked(k_null_string, +[](const char* v, void* s) { return as<Revision>(s).append_any(v); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_Revision_insert_any(void* self, std::uint32_t index, const char* value) { return checked(k_null_string, +[](const char* v, void* s, std::uint32_t i) { return as<Revision>(s).insert_any(i, v); }, value, self, index); }
VYR_FLAT(void) CSharp_Revision_delete_any(void* self, std::uint32_t index) { as<Revision>(self).delete_any(index); }
VYR_FLAT(void) CSharp_Revision_clear_any(void* self) { as<Revision>(self).clear_any(); }

// Person
VYR_FLAT(void*) CSharp_new_Person__SWIG_0() { return make<Person>(); }
VYR_FLAT(void*) CSharp_new_Person__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Person const & type is null", &copy<Person>, source); }
VYR_FLAT(void) CSharp_delete_Person(void* self) { destroy<Person>(self); }
VYR_FLAT(void) CSharp_Person_swap(void* self, void* other) { checked("com_vyrgraph_v2::Person & type is null", +[](void* o, void* s) { return as<Person>(s).swap(as<Person>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Person_reset(void* self) { guarded(+[](void* s) { return as<Person>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Person_is_occurs_ok(void* self) { return as<Person>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_Person_get_Name(void* self) { return new_string(as<Person>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_Person_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Person>(s).set_Name(v); }); }
VYR_FLAT(char16_t*) CSharp_Person_get_ContactInfo(void* self) { return new_string(as<Person>(self).get_ContactInfo()); }
VYR_FLAT(std::int32_t) CSharp_Person_set_ContactInfo(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Person>(s).set_ContactInfo(v); }); }
VYR_FLAT(std::int32_t) CSharp_Person_isset_ContactInfo(void* self) { return as<Person>(self).isset_ContactInfo(); }
VYR_FLAT(void) CSharp_Person_unset_ContactInfo(void* self) { as<Person>(self).unset_ContactInfo(); }

// CustomAttributeType_ValueChoice
VYR_FLAT(void*) CSharp_new_CustomAttributeType_ValueChoice__SWIG_0() { return make<CustomAttributeType_ValueChoice>(); }
VYR_FLAT(void*) CSharp_new_CustomAttributeType_ValueChoice__SWIG_1(void* source) { return checked("com_vyrgraph_v2::CustomAttributeType_ValueChoice const & type is null", &copy<CustomAttributeType_ValueChoice>, source); }
VYR_FLAT(void) CSharp_delete_CustomAttributeType_ValueChoice(void* self) { destroy<CustomAttributeType_ValueChoice>(self); }
VYR_FLAT(void) CSharp_CustomAttributeType_ValueChoice_swap(void* self, void* other) { checked("com_vyrgraph_v2::CustomAttributeType_ValueChoice & type is null", +[](void* o, void* s) { return as<CustomAttributeType_ValueChoice>(s).swap(as<CustomAttributeType_ValueChoice>(o)); }, other, self); }
VYR_FLAT(void) CSharp_CustomAttributeType_ValueChoice_reset(void* self) { guarded(+[](void* s) { return as<CustomAttributeType_ValueChoice>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_CustomAttributeType_ValueChoice_is_occurs_ok(void* self) { return as<CustomAttributeType_ValueChoice>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_CustomAttributeType_ValueChoice_getchosen(void* self) { return as<CustomAttributeType_ValueChoice>(self).getchosen(); }
VYR_FLAT(double) CSharp_CustomAttributeType_ValueChoice_get_DoubleValue(void* self) { return as<CustomAttributeType_ValueChoice>(self).get_DoubleValue(); }
VYR_FLAT(std::int32_t) CSharp_CustomAttributeType_ValueChoice_set_DoubleValue(void* self, double value) { return as<CustomAttributeType_ValueChoice>(self).set_DoubleValue(value); }
VYR_FLAT(std::int32_t) CSharp_CustomAttributeType_ValueChoice_get_IntegerValue(void* self) { return as<CustomAttributeType_ValueChoice>(self).get_IntegerValue(); }
VYR_FLAT(std::int32_t) CSharp_CustomAttributeType_ValueChoice_set_IntegerValue(void* self, std::int32_t value) { return as<CustomAttributeType_ValueChoice>(self).set_IntegerValue(value); }
VYR_FLAT(char16_t*) CSharp_CustomAttributeType_ValueChoice_get_StringValue(void* self) { return new_string(as<CustomAttributeType_ValueChoice>(self).get_StringValue()); }
VYR_FLAT(std::int32_t) CSharp_CustomAttributeType_ValueChoice_set_StringValue(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<CustomAttributeType_ValueChoice>(s).set_StringValue(v); }); }

// CustomAttributeType
VYR_FLAT(void*) CSharp_new_CustomAttributeType__SWIG_0() { return make<CustomAttributeType>(); }
VYR_FLAT(void*) CSharp_new_CustomAttributeType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", &copy<CustomAttributeType>, source); }
VYR_FLAT(void) CSharp_delete_CustomAttributeType(void* self) { destroy<CustomAttributeType>(self); }
VYR_FLAT(void) CSharp_CustomAttributeType_swap(void* self, void* other) { checked("com_vyrgraph_v2::CustomAttributeType & type is null", +[](void* o, void* s) { return as<CustomAttributeType>(s).swap(as<CustomAttributeType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_CustomAttributeType_reset(void* self) { guarded(+[](void* s) { return as<CustomAttributeType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_CustomAttributeType_is_occurs_ok(void* self) { return as<CustomAttributeType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_CustomAttributeType_get_Name(void* self) { return new_string(as<CustomAttributeType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_CustomAttributeType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<CustomAttributeType>(s).set_Name(v); }); }
VYR_FLAT(void*) CSharp_CustomAttributeType_get_ValueChoice__SWIG_0(void* self) { return &as<CustomAttributeType>(self).get_ValueChoice(); }
VYR_FLAT(void*) CSharp_CustomAttributeType_assign_ValueChoice(void* self, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType_ValueChoice const & type is null", +[](void* v, void* s) -> void* { return &as<CustomAttributeType>(s).assign_ValueChoice(as<CustomAttributeType_ValueChoice>(v)); }, value, self); }

// TagCategory
VYR_FLAT(void*) CSharp_new_TagCategory__SWIG_0() { return make<TagCategory>(); }
VYR_FLAT(void*) CSharp_new_TagCategory__SWIG_1(void* source) { return checked("com_vyrgraph_v2::TagCategory const & type is null", &copy<TagCategory>, source); }
VYR_FLAT(void) CSharp_delete_TagCategory(void* self) { destroy<TagCategory>(self); }
VYR_FLAT(void) CSharp_TagCategory_swap(void* self, void* other) { checked("com_vyrgraph_v2::TagCategory & type is null", +[](void* o, void* s) { return as<TagCategory>(s).swap(as<TagCategory>(o)); }, other, self); }
VYR_FLAT(void) CSharp_TagCategory_reset(void* self) { guarded(+[](void* s) { return as<TagCategory>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_TagCategory_is_occurs_ok(void* self) { return as<TagCategory>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_TagCategory_get_UniqueID(void* self) { return new_string(as<TagCategory>(self).get_UniqueID()); }
VYR_FLAT(std::int32_t) CSharp_TagCategory_set_UniqueID(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<TagCategory>(s).set_UniqueID(v); }); }
VYR_FLAT(std::int32_t) CSharp_TagCategory_isset_UniqueID(void* self) { return as<TagCategory>(self).isset_UniqueID(); }
VYR_FLAT(void) CSharp_TagCategory_unset_UniqueID(void* self) { as<TagCategory>(self).unset_UniqueID(); }
VYR_FLAT(char16_t*) CSharp_TagCategory_get_Name(void* self) { return new_string(as<TagCategory>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_TagCategory_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<TagCategory>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_TagCategory_isset_Name(void* self) { return as<TagCategory>(self).isset_Name(); }
VYR_FLAT(void) CSharp_TagCategory_unset_Name(void* self) { as<TagCategory>(self).unset_Name(); }

// Tag
VYR_FLAT(void*) CSharp_new_Tag__SWIG_0() { return make<Tag>(); }
VYR_FLAT(void*) CSharp_new_Tag__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Tag const & type is null", &copy<Tag>, source); }
VYR_FLAT(void) CSharp_delete_Tag(void* self) { destroy<Tag>(self); }
VYR_FLAT(void) CSharp_Tag_swap(void* self, void* other) { checked("com_vyrgraph_v2::Tag & type is null", +[](void* o, void* s) { return as<Tag>(s).swap(as<Tag>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Tag_reset(void* self) { guarded(+[](void* s) { return as<Tag>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Tag_is_occurs_ok(void* self) { return as<Tag>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_Tag_get_Name(void* self) { return new_string(as<Tag>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_Tag_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Tag>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_Tag_isset_Name(void* self) { return as<Tag>(self).isset_Name(); }
VYR_FLAT(void) CSharp_Tag_unset_Name(void* self) { as<Tag>(self).unset_Name(); }
VYR_FLAT(char16_t*) CSharp_Tag_get_UniqueID(void* self) { return new_string(as<Tag>(self).get_UniqueID()); }
VYR_FLAT(std::int32_t) CSharp_Tag_set_UniqueID(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Tag>(s).set_UniqueID(v); }); }
VYR_FLAT(std::int32_t) CSharp_Tag_isset_UniqueID(void* self) { return as<Tag>(self).isset_UniqueID(); }
VYR_FLAT(void) CSharp_Tag_unset_UniqueID(void* self) { as<Tag>(self).unset_UniqueID(); }
VYR_FLAT(void*) CSharp_Tag_get_Category__SWIG_0(void* self) { return &as<Tag>(self).get_Category(); }
VYR_FLAT(void*) CSharp_Tag_assign_Category(void* self, void* value) { return checked("com_vyrgraph_v2::TagCategory const & type is null", +[](void* v, void* s) -> void* { return &as<Tag>(s).assign_Category(as<TagCategory>(v)); }, value, self); }

// anon_TextValue
VYR_FLAT(void*) CSharp_new_anon_TextValue__SWIG_0() { return make<anon_TextValue>(); }
VYR_FLAT(void*) CSharp_new_anon_TextValue__SWIG_1(void* source) { return checked("com_vyrgraph_v2::anon_TextValue const & type is null", &copy<anon_TextValue>, source); }
VYR_FLAT(void) CSharp_delete_anon_TextValue(void* self) { destroy<anon_TextValue>(self); }
VYR_FLAT(void) CSharp_anon_TextValue_swap(void* self, void* other) { checked("com_vyrgraph_v2::anon_TextValue & type is null", +[](void* o, void* s) { return as<anon_TextValue>(s).swap(as<anon_TextValue>(o)); }, other, self); }
VYR_FLAT(void) CSharp_anon_TextValue_reset(void* self) { guarded(+[](void* s) { return as<anon_TextValue>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_anon_TextValue_is_occurs_ok(void* self) { return as<anon_TextValue>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_anon_TextValue_getchosen(void* self) { return as<anon_TextValue>(self).getchosen(); }
VYR_FLAT(char16_t*) CSharp_anon_TextValue_get_TextValue(void* self) { return new_string(as<anon_TextValue>(self).get_TextValue()); }
VYR_FLAT(std::int32_t) CSharp_anon_TextValue_set_TextValue(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<anon_TextValue>(s).set_TextValue(v); }); }
VYR_FLAT(double) CSharp_anon_TextValue_get_NumberValue(void* self) { return as<anon_TextValue>(self).get_NumberValue(); }
VYR_FLAT(std::int32_t) CSharp_anon_TextValue_set_NumberValue(void* self, double value) { return as<anon_TextValue>(self).set_NumberValue(value); }

// TagValue
VYR_FLAT(void*) CSharp_new_TagValue__SWIG_0() { return make<TagValue>(); }
VYR_FLAT(void*) CSharp_new_TagValue__SWIG_1(void* source) { return checked("com_vyrgraph_v2::TagValue const & type is null", &copy<TagValue>, source); }
VYR_FLAT(void) CSharp_delete_TagValue(void* self) { destroy<TagValue>(self); }
VYR_FLAT(void) CSharp_TagValue_swap(void* self, void* other) { checked("com_vyrgraph_v2::TagValue & type is null", +[](void* o, void* s) { return as<TagValue>(s).swap(as<TagValue>(o)); }, other, self); }
VYR_FLAT(void) CSharp_TagValue_reset(void* self) { guarded(+[](void* s) { return as<TagValue>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_TagValue_is_occurs_ok(void* self) { return as<TagValue>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_TagValue_get_UniqueID(void* self) { return new_string(as<TagValue>(self).get_UniqueID()); }
VYR_FLAT(std::int32_t) CSharp_TagValue_set_UniqueID(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<TagValue>(s).set_UniqueID(v); }); }
VYR_FLAT(std::int32_t) CSharp_TagValue_isset_UniqueID(void* self) { return as<TagValue>(self).isset_UniqueID(); }
VYR_FLAT(void) CSharp_TagValue_unset_UniqueID(void* self) { as<TagValue>(self).unset_UniqueID(); }
VYR_FLAT(void*) CSharp_TagValue_get_Tag__SWIG_0(void* self) { return &as<TagValue>(self).get_Tag(); }
VYR_FLAT(void*) CSharp_TagValue_assign_Tag(void* self, void* value) { return checked("com_vyrgraph_v2::Tag const & type is null", +[](void* v, void* s) -> void* { return &as<TagValue>(s).assign_Tag(as<Tag>(v)); }, value, self); }
VYR_FLAT(void*) CSharp_TagValue_get_anon_TextValue__SWIG_0(void* self) { return &as<TagValue>(self).get_anon_TextValue(); }
VYR_FLAT(void*) CSharp_TagValue_assign_anon_TextValue(void* self, void* value) { return checked("com_vyrgraph_v2::anon_TextValue const & type is null", +[](void* v, void* s) -> void* { return &as<TagValue>(s).assign_anon_TextValue(as<anon_TextValue>(v)); }, value, self); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
