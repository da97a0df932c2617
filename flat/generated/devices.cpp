// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in devices.h.

#include "flat/call.h"
#include "schema/generated/devices.h"
#include "schema/generated/header.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// CalibrationStateType
VYR_FLAT(void*) CSharp_new_CalibrationStateType__SWIG_0() { return make<CalibrationStateType>(); }
VYR_FLAT(void*) CSharp_new_CalibrationStateType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::CalibrationStateType const & type is null", &copy<CalibrationStateType>, source); }
VYR_FLAT(void) CSharp_delete_CalibrationStateType(void* self) { destroy<CalibrationStateType>(self); }
VYR_FLAT(void) CSharp_CalibrationStateType_swap(void* self, void* other) { checked("com_vyrgraph_v2::CalibrationStateType & type is null", +[](void* o, void* s) { return as<CalibrationStateType>(s).swap(as<CalibrationStateType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_CalibrationStateType_reset(void* self) { guarded(+[](void* s) { return as<CalibrationStateType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_CalibrationStateType_is_occurs_ok(void* self) { return as<CalibrationStateType>(self).is_occurs_ok(); }
VYR_FLAT(void*) CSharp_CalibrationStateType_get_CalibrationDateTime(void* self) { return reference(as<CalibrationStateType>(self).get_CalibrationDateTime()); }
VYR_FLAT(std::int32_t) CSharp_CalibrationStateType_set_CalibrationDateTime(void* self, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s) { return as<CalibrationStateType>(s).set_CalibrationDateTime(as<lmx::c_datetime>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_CalibrationStateType_isset_CalibrationDateTime(void* self) { return as<CalibrationStateType>(self).isset_CalibrationDateTime(); }
VYR_FLAT(void) CSharp_CalibrationStateType_unset_CalibrationDateTime(void* self) { as<CalibrationStateType>(self).unset_CalibrationDateTime(); }
VYR_FLAT(char16_t*) CSharp_CalibrationStateType_get_CalibrationStateType(void* self) { return new_string(as<CalibrationStateType>(self).get_CalibrationStateType()); }
VYR_FLAT(std::int32_t) CSharp_CalibrationStateType_set_CalibrationStateType(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<CalibrationStateType>(s).set_CalibrationStateType(v); }); }
VYR_FLAT(std::int32_t) CSharp_CalibrationStateType_getenum_CalibrationStateType(void* self) { return as<CalibrationStateType>(self).getenum_CalibrationStateType(); }
VYR_FLAT(std::int32_t) CSharp_CalibrationStateType_setenum_CalibrationStateType(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<CalibrationStateType>(s).setenum_CalibrationStateType(n); }, self, number); }

// GlossCompensation
VYR_FLAT(void*) CSharp_new_GlossCompensation__SWIG_0() { return make<GlossCompensation>(); }
VYR_FLAT(void*) CSharp_new_GlossCompensation__SWIG_1(void* source) { return checked("com_vyrgraph_v2::GlossCompensation const & type is null", &copy<GlossCompensation>, source); }
VYR_FLAT(void) CSharp_delete_GlossCompensation(void* self) { destroy<GlossCompensation>(self); }
VYR_FLAT(void) CSharp_GlossCompensation_swap(void* self, void* other) { checked("com_vyrgraph_v2::GlossCompensation & type is null", +[](void* o, void* s) { return as<GlossCompensation>(s).swap(as<GlossCompensation>(o)); }, other, self); }
VYR_FLAT(void) CSharp_GlossCompensation_reset(void* self) { guarded(+[](void* s) { return as<GlossCompensation>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_GlossCompensation_is_occurs_ok(void* self) { return as<GlossCompensation>(self).is_occurs_ok(); }
VYR_FLAT(double) CSharp_GlossCompensation_get_CompensationValue(void* self) { return as<GlossCompensation>(self).get_CompensationValue(); }
VYR_FLAT(std::int32_t) CSharp_GlossCompensation_set_CompensationValue(void* self, double value) { return as<GlossCompensation>(self).set_CompensationValue(value); }
VYR_FLAT(std::uint32_t) CSharp_GlossCompensation_get_GlossCompensation(void* self) { return as<GlossCompensation>(self).get_GlossCompensation(); }
VYR_FLAT(std::int32_t) CSharp_GlossCompensation_set_GlossCompensation(void* self, std::uint32_t value) { return as<GlossCompensation>(self).set_GlossCompensation(to_bool(value)); }
VYR_FLAT(std::int32_t) CSharp_GlossCompensation_isset_GlossCompensation(void* self) { return as<GlossCompensation>(self).isset_GlossCompensation(); }
VYR_FLAT(void) CSharp_GlossCompensation_unset_GlossCompensation(void* self) { as<GlossCompensation>(self).unset_GlossCompensation(); }

// Averaging
VYR_FLAT(void*) CSharp_new_Averaging__SWIG_0() { return make<Averaging>(); }
VYR_FLAT(void*) CSharp_new_Averaging__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Averaging const & type is null", &copy<Averaging>, source); }
VYR_FLAT(void) CSharp_delete_Averaging(void* self) { destroy<Averaging>(self); }
VYR_FLAT(void) CSharp_Averaging_swap(void* self, void* other) { checked("com_vyrgraph_v2::Averaging & type is null", +[](void* o, void* s) { return as<Averaging>(s).swap(as<Averaging>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Averaging_reset(void* self) { guarded(+[](void* s) { return as<Averaging>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Averaging_is_occurs_ok(void* self) { return as<Averaging>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_Averaging_get_AveragingValue(void* self) { return as<Averaging>(self).get_AveragingValue(); }
VYR_FLAT(std::int32_t) CSharp_Averaging_set_AveragingValue(void* self, std::uint32_t value) { return as<Averaging>(self).set_AveragingValue(static_cast<std::uint8_t>(value)); }
VYR_FLAT(std::uint32_t) CSharp_Averaging_get_Averaging(void* self) { return as<Averaging>(self).get_Averaging(); }
VYR_FLAT(std::int32_t) CSharp_Averaging_set_Averaging(void* self, std::uint32_t value) { return as<Averaging>(self).set_Averaging(to_bool(value)); }
VYR_FLAT(std::int32_t) CSharp_Averaging_isset_Averaging(void* self) { return as<Averaging>(self).isset_Averaging(); }
VYR_FLAT(void) CSharp_Averaging_unset_Averaging(void* self) { as<Averaging>(self).unset_Averaging(); }

// DeviceSettings
VYR_FLAT(void*) CSharp_new_DeviceSettings__SWIG_0() { return make<DeviceSettings>(); }
VYR_FLAT(void*) CSharp_new_DeviceSettings__SWIG_1(void* source) { return checked("com_vyrgraph_v2::DeviceSettings const & type is null", &copy<DeviceSettings>, source); }
VYR_FLAT(void) CSharp_delete_DeviceSettings(void* self) { destroy<DeviceSettings>(self); }
VYR_FLAT(void) CSharp_DeviceSettings_swap(void* self, void* other) { checked("com_vyrgraph_v2::DeviceSettings & type is null", +[](void* o, void* s) { return as<DeviceSettings>(s).swap(as<DeviceSettings>(o)); }, other, self); }
VYR_FLAT(void) CSharp_DeviceSettings_reset(void* self) { guarded(+[](void* s) { return as<DeviceSettings>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_is_occurs_ok(void* self) { return as<DeviceSettings>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_DeviceSettings_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<DeviceSettings>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_DeviceSettings_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<DeviceSettings>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_DeviceSettings_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<DeviceSettings>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<DeviceSettings>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<DeviceSettings>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_DeviceSettings_back_CustomAttribute(void* self) { return &as<DeviceSettings>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_DeviceSettings_delete_CustomAttribute(void* self, std::uint32_t index) { as<DeviceSettings>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_DeviceSettings_clear_CustomAttribute(void* self) { as<DeviceSettings>(self).clear_CustomAttribute(); }
VYR_FLAT(std::uint32_t) CSharp_DeviceSettings_get_Aperture(void* self) { return as<DeviceSettings>(self).get_Aperture(); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_set_Aperture(void* self, std::uint32_t value) { return as<DeviceSettings>(self).set_Aperture(value); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_isset_Aperture(void* self) { return as<DeviceSettings>(self).isset_Aperture(); }
VYR_FLAT(void) CSharp_DeviceSettings_unset_Aperture(void* self) { as<DeviceSettings>(self).unset_Aperture(); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_get_LensPosition(void* self) { return as<DeviceSettings>(self).get_LensPosition(); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_set_LensPosition(void* self, std::int32_t value) { return as<DeviceSettings>(self).set_LensPosition(value); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_isset_LensPosition(void* self) { return as<DeviceSettings>(self).isset_LensPosition(); }
VYR_FLAT(void) CSharp_DeviceSettings_unset_LensPosition(void* self) { as<DeviceSettings>(self).unset_LensPosition(); }
VYR_FLAT(std::uint32_t) CSharp_DeviceSettings_get_GlassCompensation(void* self) { return as<DeviceSettings>(self).get_GlassCompensation(); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_set_GlassCompensation(void* self, std::uint32_t value) { return as<DeviceSettings>(self).set_GlassCompensation(to_bool(value)); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_isset_GlassCompensation(void* self) { return as<DeviceSettings>(self).isset_GlassCompensation(); }
VYR_FLAT(void) CSharp_DeviceSettings_unset_GlassCompensation(void* self) { as<DeviceSettings>(self).unset_GlassCompensation(); }
VYR_FLAT(void*) CSharp_DeviceSettings_get_GlossCompensation__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<DeviceSettings>(s).get_GlossCompensation(); }, self); }
VYR_FLAT(void*) CSharp_DeviceSettings_assign_GlossCompensation(void* self, void* value) { return checked("com_vyrgraph_v2::GlossCompensation const & type is null", +[](void* v, void* s) -> void* { return &as<DeviceSettings>(s).assign_GlossCompensation(as<GlossCompensation>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_isset_GlossCompensation(void* self) { return as<DeviceSettings>(self).isset_GlossCompensation(); }
VYR_FLAT(void) CSharp_DeviceSettings_unset_GlossCompensation(void* self) { as<DeviceSettings>(self).unset_GlossCompensation(); }
VYR_FLAT(void*) CSharp_DeviceSettings_get_Averaging__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<DeviceSettings>(s).get_Averaging(); }, self); }
VYR_FLAT(void*) CSharp_DeviceSettings_assign_Averaging(void* self, void* value) { return checked("com_vyrgraph_v2::Averaging const & type is null", +[](void* v, void* s) -> void* { return &as<DeviceSettings>(s).assign_Averaging(as<Averaging>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_isset_Averaging(void* self) { return as<DeviceSettings>(self).isset_Averaging(); }
VYR_FLAT(void) CSharp_DeviceSettings_unset_Averaging(void* self) { as<DeviceSettings>(self).unset_Averaging(); }
VYR_FLAT(std::uint32_t) CSharp_DeviceSettings_get_LinkTrimmer(void* self) { return as<DeviceSettings>(self).get_LinkTrimmer(); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_set_LinkTrimmer(void* self, std::uint32_t value) { return as<DeviceSettings>(self).set_LinkTrimmer(to_bool(value)); }
VYR_FLAT(std::int32_t) CSharp_DeviceSettings_isset_LinkTrimmer(void* self) { return as<DeviceSettings>(self).isset_LinkTrimmer(); }
VYR_FLAT(void) CSharp_DeviceSettings_unset_LinkTrimmer(void* self) { as<DeviceSettings>(self).unset_LinkTrimmer(); }

// DeviceType
VYR_FLAT(void*) CSharp_new_DeviceType__SWIG_0() { return make<DeviceType>(); }
VYR_FLAT(void*) CSharp_new_DeviceType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::DeviceType const & type is null", &copy<DeviceType>, source); }
VYR_FLAT(void) CSharp_delete_DeviceType(void* self) { destroy<DeviceType>(self); }
VYR_FLAT(void) CSharp_DeviceType_swap(void* self, void* other) { checked("com_vyrgraph_v2::DeviceType & type is null", +[](void* o, void* s) { return as<DeviceType>(s).swap(as<DeviceType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_DeviceType_reset(void* self) { guarded(+[](void* s) { return as<DeviceType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_is_occurs_ok(void* self) { return as<DeviceType>(self).is_occurs_ok(); }
VYR_FLAT(std::uint32_t) CSharp_DeviceType_size_CustomAttribute(void* self) { return static_cast<std::uint32_t>(as<DeviceType>(self).size_CustomAttribute()); }
VYR_FLAT(void*) CSharp_DeviceType_get_CustomAttribute__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<DeviceType>(s).get_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_DeviceType_assign_CustomAttribute(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::CustomAttributeType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<DeviceType>(s).assign_CustomAttribute(i, as<CustomAttributeType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_append_CustomAttribute(void* self) { return guarded(+[](void* s) { return as<DeviceType>(s).append_CustomAttribute(); }, self); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_insert_CustomAttribute(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<DeviceType>(s).insert_CustomAttribute(i); }, self, index); }
VYR_FLAT(void*) CSharp_DeviceType_back_CustomAttribute(void* self) { return &as<DeviceType>(self).back_CustomAttribute(); }
VYR_FLAT(void) CSharp_DeviceType_delete_CustomAttribute(void* self, std::uint32_t index) { as<DeviceType>(self).delete_CustomAttribute(index); }
VYR_FLAT(void) CSharp_DeviceType_clear_CustomAttribute(void* self) { as<DeviceType>(self).clear_CustomAttribute(); }
VYR_FLAT(char16_t*) CSharp_DeviceType_get_Manufacturer(void* self) { return new_string(as<DeviceType>(self).get_Manufacturer()); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_set_Manufacturer(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<DeviceType>(s).set_Manufacturer(v); }); }
VYR_FLAT(char16_t*) CSharp_DeviceType_get_Model(void* self) { return new_string(as<DeviceType>(self).get_Model()); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_set_Model(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<DeviceType>(s).set_Model(v); }); }
VYR_FLAT(char16_t*) CSharp_DeviceType_get_SerialNumber(void* self) { return new_string(as<DeviceType>(self).get_SerialNumber()); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_set_SerialNumber(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<DeviceType>(s).set_SerialNumber(v); }); }
VYR_FLAT(char16_t*) CSharp_DeviceType_get_DeviceClass(void* self) { return new_string(as<DeviceType>(self).get_DeviceClass()); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_set_DeviceClass(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<DeviceType>(s).set_DeviceClass(v); }); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_getenum_DeviceClass(void* self) { return as<DeviceType>(self).getenum_DeviceClass(); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_setenum_DeviceClass(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<DeviceType>(s).setenum_DeviceClass(n); }, self, number); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_isset_DeviceClass(void* self) { return as<DeviceType>(self).isset_DeviceClass(); }
VYR_FLAT(void) CSharp_DeviceType_unset_DeviceClass(void* self) { as<DeviceType>(self).unset_DeviceClass(); }
VYR_FLAT(char16_t*) CSharp_DeviceType_get_FirmwareVersion(void* self) { return new_string(as<DeviceType>(self).get_FirmwareVersion()); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_set_FirmwareVersion(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<DeviceType>(s).set_FirmwareVersion(v); }); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_isset_FirmwareVersion(void* self) { return as<DeviceType>(self).isset_FirmwareVersion(); }
VYR_FLAT(void) CSharp_DeviceType_unset_FirmwareVersion(void* self) { as<DeviceType>(self).unset_FirmwareVersion(); }
VYR_FLAT(char16_t*) CSharp_DeviceType_get_BootFirmwareVersion(void* self) { return new_string(as<DeviceType>(self).get_BootFirmwareVersion()); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_set_BootFirmwareVersion(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<DeviceType>(s).set_BootFirmwareVersion(v); }); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_isset_BootFirmwareVersion(void* self) { return as<DeviceType>(self).isset_BootFirmwareVersion(); }
VYR_FLAT(void) CSharp_DeviceType_unset_BootFirmwareVersion(void* self) { as<DeviceType>(self).unset_BootFirmwareVersion(); }
VYR_FLAT(void*) CSharp_DeviceType_get_CalibrationState__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<DeviceType>(s).get_CalibrationState(); }, self); }
VYR_FLAT(void*) CSharp_DeviceType_assign_CalibrationState(void* self, void* value) { return checked("com_vyrgraph_v2::CalibrationStateType const & type is null", +[](void* v, void* s) -> void* { return &as<DeviceType>(s).assign_CalibrationState(as<CalibrationStateType>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_isset_CalibrationState(void* self) { return as<DeviceType>(self).isset_CalibrationState(); }
VYR_FLAT(void) CSharp_DeviceType_unset_CalibrationState(void* self) { as<DeviceType>(self).unset_CalibrationState(); }
VYR_FLAT(void*) CSharp_DeviceType_get_DeviceSettings__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<DeviceType>(s).get_DeviceSettings(); }, self); }
VYR_FLAT(void*) CSharp_DeviceType_assign_DeviceSettings(void* self, void* value) { return checked("com_vyrgraph_v2::DeviceSettings const & type is null", +[](void* v, void* s) -> void* { return &as<DeviceType>(s).assign_DeviceSettings(as<DeviceSettings>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_DeviceType_isset_DeviceSettings(void* self) { return as<DeviceType>(self).isset_DeviceSettings(); }
VYR_FLAT(void) CSharp_DeviceType_unset_DeviceSettings(void* self) { as<DeviceType>(self).unset_DeviceSettings(); }

// ProfileChoice
VYR_FLAT(void*) CSharp_new_ProfileChoice__SWIG_0() { return make<ProfileChoice>(); }
VYR_FLAT(void*) CSharp_new_ProfileChoice__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ProfileChoice const & type is null", &copy<ProfileChoice>, source); }
VYR_FLAT(void) CSharp_delete_ProfileChoice(void* self) { destroy<ProfileChoice>(self); }
VYR_FLAT(void) CSharp_ProfileChoice_swap(void* self, void* other) { checked("com_vyrgraph_v2::ProfileChoice & type is null", +[](void* o, void* s) { return as<ProfileChoice>(s).swap(as<ProfileChoice>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ProfileChoice_reset(void* self) { guarded(+[](void* s) { return as<ProfileChoice>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ProfileChoice_is_occurs_ok(void* self) { return as<ProfileChoice>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_ProfileChoice_getchosen(void* self) { return as<ProfileChoice>(self).getchosen(); }
VYR_FLAT(void*) CSharp_ProfileChoice_get_ProfileFile__SWIG_0(void* self) { return guarded(+[](void* s) -> void* { return &as<ProfileChoice>(s).get_ProfileFile(); }, self); }
VYR_FLAT(void*) CSharp_ProfileChoice_assign_ProfileFile(void* self, void* value) { return checked("com_vyrgraph_v2::ProfileFile const & type is null", +[](void* v, void* s) -> void* { return &as<ProfileChoice>(s).assign_ProfileFile(as<ProfileFile>(v)); }, value, self); }
VYR_FLAT(char16_t*) CSharp_ProfileChoice_get_ProfileURI(void* self) { return new_string(as<ProfileChoice>(self).get_ProfileURI()); }
VYR_FLAT(std::int32_t) CSharp_ProfileChoice_set_ProfileURI(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ProfileChoice>(s).set_ProfileURI(v); }); }

// ProfileType
VYR_FLAT(void*) CSharp_new_ProfileType__SWIG_0() { return make<ProfileType>(); }
VYR_FLAT(void*) CSharp_new_ProfileType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ProfileType const & type is null", &copy<ProfileType>, source); }
VYR_FLAT(void) CSharp_delete_ProfileType(void* self) { destroy<ProfileType>(self); }
VYR_FLAT(void) CSharp_ProfileType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ProfileType & type is null", +[](void* o, void* s) { return as<ProfileType>(s).swap(as<ProfileType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ProfileType_reset(void* self) { guarded(+[](void* s) { return as<ProfileType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_is_occurs_ok(void* self) { return as<ProfileType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ProfileType_get_Direction(void* self) { return new_string(as<ProfileType>(self).get_Direction()); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_set_Direction(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ProfileType>(s).set_Direction(v); }); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_getenum_Direction(void* self) { return as<ProfileType>(self).getenum_Direction(); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_setenum_Direction(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ProfileType>(s).setenum_Direction(n); }, self, number); }
VYR_FLAT(void*) CSharp_ProfileType_get_ProfileChoice__SWIG_0(void* self) { return &as<ProfileType>(self).get_ProfileChoice(); }
VYR_FLAT(void*) CSharp_ProfileType_assign_ProfileChoice(void* self, void* value) { return checked("com_vyrgraph_v2::ProfileChoice const & type is null", +[](void* v, void* s) -> void* { return &as<ProfileType>(s).assign_ProfileChoice(as<ProfileChoice>(v)); }, value, self); }
VYR_FLAT(std::uint32_t) CSharp_ProfileType_size_Parameters(void* self) { return static_cast<std::uint32_t>(as<ProfileType>(self).size_Parameters()); }
VYR_FLAT(void*) CSharp_ProfileType_get_Parameters__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ProfileType>(s).get_Parameters(i); }, self, index); }
VYR_FLAT(void*) CSharp_ProfileType_assign_Parameters(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::ProfileType_Parameters const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ProfileType>(s).assign_Parameters(i, as<ProfileType_Parameters>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_append_Parameters(void* self) { return guarded(+[](void* s) { return as<ProfileType>(s).append_Parameters(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_insert_Parameters(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ProfileType>(s).insert_Parameters(i); }, self, index); }
VYR_FLAT(void*) CSharp_ProfileType_back_Parameters(void* self) { return &as<ProfileType>(self).back_Parameters(); }
VYR_FLAT(void) CSharp_ProfileType_delete_Parameters(void* self, std::uint32_t index) { as<ProfileType>(self).delete_Parameters(index); }
VYR_FLAT(void) CSharp_ProfileType_clear_Parameters(void* self) { as<ProfileType>(self).clear_Parameters(); }
VYR_FLAT(void*) CSharp_ProfileType_get_Created(void* self) { return reference(as<ProfileType>(self).get_Created()); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_set_Created(void* self, void* value) { return checked("lmx::tc_datetime const & type is null", +[](void* v, void* s) { return as<ProfileType>(s).set_Created(as<lmx::c_datetime>(v)); }, value, self); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_isset_Created(void* self) { return as<ProfileType>(self).isset_Created(); }
VYR_FLAT(void) CSharp_ProfileType_unset_Created(void* self) { as<ProfileType>(self).unset_Created(); }

// ProfileFile
VYR_FLAT(void*) CSharp_new_ProfileFile__SWIG_0() { return make<ProfileFile>(); }
VYR_FLAT(void*) CSharp_new_ProfileFile__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ProfileFile const & type is null", &copy<ProfileFile>, source); }
VYR_FLAT(void) CSharp_delete_ProfileFile(void* self) { destroy<ProfileFile>(self); }
VYR_FLAT(void) CSharp_ProfileFile_swap(void* self, void* other) { checked("com_vyrgraph_v2::ProfileFile & type is null", +[](void* o, void* s) { return as<ProfileFile>(s).swap(as<ProfileFile>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ProfileFile_reset(void* self) { guarded(+[](void* s) { return as<ProfileFile>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ProfileFile_is_occurs_ok(void* self) { return as<ProfileFile>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ProfileFile_get_ProfileName(void* self) { return new_string(as<ProfileFile>(self).get_ProfileName()); }
VYR_FLAT(std::int32_t) CSharp_ProfileFile_set_ProfileName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ProfileFile>(s).set_ProfileName(v); }); }
VYR_FLAT(std::int32_t) CSharp_ProfileFile_isset_ProfileName(void* self) { return as<ProfileFile>(self).isset_ProfileName(); }
VYR_FLAT(void) CSharp_ProfileFile_unset_ProfileName(void* self) { as<ProfileFile>(self).unset_ProfileName(); }
VYR_FLAT(void*) CSharp_ProfileFile_get_ProfileFile(void* self) { return reference(as<ProfileFile>(self).get_ProfileFile()); }
VYR_FLAT(std::int32_t) CSharp_ProfileFile_set_ProfileFile(void* self, void* value) { return checked("lmx::tc_binary const & type is null", +[](void* v, void* s) { return as<ProfileFile>(s).set_ProfileFile(as<lmx::c_binary>(v)); }, value, self); }

// ProfileType_Parameters_ValueChoice
VYR_FLAT(void*) CSharp_new_ProfileType_Parameters_ValueChoice__SWIG_0() { return make<ProfileType_Parameters_ValueChoice>(); }
VYR_FLAT(void*) CSharp_new_ProfileType_Parameters_ValueChoice__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ProfileType_Parameters_ValueChoice const & type is null", &copy<ProfileType_Parameters_ValueChoice>, source); }
VYR_FLAT(void) CSharp_delete_ProfileType_Parameters_ValueChoice(void* self) { destroy<ProfileType_Parameters_ValueChoice>(self); }
VYR_FLAT(void) CSharp_ProfileType_Parameters_ValueChoice_swap(void* self, void* other) { checked("com_vyrgraph_v2::ProfileType_Parameters_ValueChoice & type is null", +[](void* o, void* s) { return as<ProfileType_Parameters_ValueChoice>(s).swap(as<ProfileType_Parameters_ValueChoice>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ProfileType_Parameters_ValueChoice_reset(void* self) { guarded(+[](void* s) { return as<ProfileType_Parameters_ValueChoice>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_Parameters_ValueChoice_is_occurs_ok(void* self) { return as<ProfileType_Parameters_ValueChoice>(self).is_occurs_ok(); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_Parameters_ValueChoice_getchosen(void* self) { return as<ProfileType_Parameters_ValueChoice>(self).getchosen(); }
VYR_FLAT(double) CSharp_ProfileType_Parameters_ValueChoice_get_DoubleValue(void* self) { return as<ProfileType_Parameters_ValueChoice>(self).get_DoubleValue(); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_Parameters_ValueChoice_set_DoubleValue(void* self, double value) { return as<ProfileType_Parameters_ValueChoice>(self).set_DoubleValue(value); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_Parameters_ValueChoice_get_IntegerValue(void* self) { return as<ProfileType_Parameters_ValueChoice>(self).get_IntegerValue(); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_Parameters_ValueChoice_set_IntegerValue(void* self, std::int32_t value) { return as<ProfileType_Parameters_ValueChoice>(self).set_IntegerValue(value); }
VYR_FLAT(char16_t*) CSharp_ProfileType_Parameters_ValueChoice_get_StringValue(void* self) { return new_string(as<ProfileType_Parameters_ValueChoice>(self).get_StringValue()); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_Parameters_ValueChoice_set_StringValue(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ProfileType_Parameters_ValueChoice>(s).set_StringValue(v); }); }

// ProfileType_Parameters
VYR_FLAT(void*) CSharp_new_ProfileType_Parameters__SWIG_0() { return make<ProfileType_Parameters>(); }
VYR_FLAT(void*) CSharp_new_ProfileType_Parameters__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ProfileType_Parameters const & type is null", &copy<ProfileType_Parameters>, source); }
VYR_FLAT(void) CSharp_delete_ProfileType_Parameters(void* self) { destroy<ProfileType_Parameters>(self); }
VYR_FLAT(void) CSharp_ProfileType_Parameters_swap(void* self, void* other) { checked("com_vyrgraph_v2::ProfileType_Parameters & type is null", +[](void* o, void* s) { return as<ProfileType_Parameters>(s).swap(as<ProfileType_Parameters>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ProfileType_Parameters_reset(void* self) { guarded(+[](void* s) { return as<ProfileType_Parameters>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_Parameters_is_occurs_ok(void* self) { return as<ProfileType_Parameters>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ProfileType_Parameters_get_Name(void* self) { return new_string(as<ProfileType_Parameters>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ProfileType_Parameters_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ProfileType_Parameters>(s).set_Name(v); }); }
VYR_FLAT(void*) CSharp_ProfileType_Parameters_get_ValueChoice__SWIG_0(void* self) { return &as<ProfileType_Parameters>(self).get_ValueChoice(); }
VYR_FLAT(void*) CSharp_ProfileType_Parameters_assign_ValueChoice(void* self, void* value) { return checked("com_vyrgraph_v2::ProfileType_Parameters_ValueChoice const & type is null", +[](void* v, void* s) -> void* { return &as<ProfileType_Parameters>(s).assign_ValueChoice(as<ProfileType_Parameters_ValueChoice>(v)); }, value, self); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
