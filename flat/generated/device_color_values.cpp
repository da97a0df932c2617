// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions of the classes in device_color_values.h.

#include "flat/call.h"
#include "schema/generated/color_values.h"
#include "schema/generated/conditions.h"
#include "schema/generated/device_color_values.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// ColorSpaceRGBType
VYR_FLAT(void*) CSharp_new_ColorSpaceRGBType__SWIG_0() { return make<ColorSpaceRGBType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceRGBType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceRGBType const & type is null", &copy<ColorSpaceRGBType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceRGBType(void* self) { destroy<ColorSpaceRGBType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceRGBTypeUpcast(void* self) { return upcast<ColorSpaceRGBType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceRGBType_id_get() { return ColorSpaceRGBType::id; }
VYR_FLAT(void) CSharp_ColorSpaceRGBType_id_set(const char* identity) { set_identity(&ColorSpaceRGBType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceRGBType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceRGBType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceRGBType_getid(void* self) { return new_string(as<ColorSpaceRGBType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGBType_has_id(void* self, const char* identity) { return as<ColorSpaceRGBType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceRGBType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceRGBType & type is null", +[](void* o, void* s) { return as<ColorSpaceRGBType>(s).swap(as<ColorSpaceRGBType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceRGBType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceRGBType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGBType_is_occurs_ok(void* self) { return as<ColorSpaceRGBType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceRGBType_get_Name(void* self) { return new_string(as<ColorSpaceRGBType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGBType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceRGBType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGBType_isset_Name(void* self) { return as<ColorSpaceRGBType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceRGBType_unset_Name(void* self) { as<ColorSpaceRGBType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceRGBType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self) { return &as<ColorSpaceRGBType>(self).get_ColorSpaceSpecificationSpectrumTristimulus(); }
VYR_FLAT(void*) CSharp_ColorSpaceRGBType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceRGBType>(s).assign_ColorSpaceSpecificationSpectrumTristimulus(as<ColorSpaceSpecificationSpectrumTristimulus>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceRGBType_get_Red(void* self) { return as<ColorSpaceRGBType>(self).get_Red(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGBType_set_Red(void* self, double value) { return as<ColorSpaceRGBType>(self).set_Red(value); }
VYR_FLAT(double) CSharp_ColorSpaceRGBType_get_Green(void* self) { return as<ColorSpaceRGBType>(self).get_Green(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGBType_set_Green(void* self, double value) { return as<ColorSpaceRGBType>(self).set_Green(value); }
VYR_FLAT(double) CSharp_ColorSpaceRGBType_get_Blue(void* self) { return as<ColorSpaceRGBType>(self).get_Blue(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGBType_set_Blue(void* self, double value) { return as<ColorSpaceRGBType>(self).set_Blue(value); }
VYR_FLAT(double) CSharp_ColorSpaceRGBType_get_Alpha(void* self) { return as<ColorSpaceRGBType>(self).get_Alpha(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGBType_set_Alpha(void* self, double value) { return as<ColorSpaceRGBType>(self).set_Alpha(value); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGBType_isset_Alpha(void* self) { return as<ColorSpaceRGBType>(self).isset_Alpha(); }
VYR_FLAT(void) CSharp_ColorSpaceRGBType_unset_Alpha(void* self) { as<ColorSpaceRGBType>(self).unset_Alpha(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceRGBType_get_ColorDepth(void* self) { return new_string(as<ColorSpaceRGBType>(self).get_ColorDepth()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGBType_set_ColorDepth(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceRGBType>(s).set_ColorDepth(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGBType_getenum_ColorDepth(void* self) { return as<ColorSpaceRGBType>(self).getenum_ColorDepth(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGBType_setenum_ColorDepth(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceRGBType>(s).setenum_ColorDepth(n); }, self, number); }

// ColorSpaceSRGBType
VYR_FLAT(void*) CSharp_new_ColorSpaceSRGBType__SWIG_0() { return make<ColorSpaceSRGBType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSRGBType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSRGBType const & type is null", &copy<ColorSpaceSRGBType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSRGBType(void* self) { destroy<ColorSpaceSRGBType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSRGBTypeUpcast(void* self) { return upcast<ColorSpaceSRGBType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceSRGBType_id_get() { return ColorSpaceSRGBType::id; }
VYR_FLAT(void) CSharp_ColorSpaceSRGBType_id_set(const char* identity) { set_identity(&ColorSpaceSRGBType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceSRGBType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceSRGBType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceSRGBType_getid(void* self) { return new_string(as<ColorSpaceSRGBType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGBType_has_id(void* self, const char* identity) { return as<ColorSpaceSRGBType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceSRGBType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceSRGBType & type is null", +[](void* o, void* s) { return as<ColorSpaceSRGBType>(s).swap(as<ColorSpaceSRGBType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceSRGBType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceSRGBType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGBType_is_occurs_ok(void* self) { return as<ColorSpaceSRGBType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSRGBType_get_Name(void* self) { return new_string(as<ColorSpaceSRGBType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGBType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSRGBType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGBType_isset_Name(void* self) { return as<ColorSpaceSRGBType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceSRGBType_unset_Name(void* self) { as<ColorSpaceSRGBType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceSRGBType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self) { return &as<ColorSpaceSRGBType>(self).get_ColorSpaceSpecificationSpectrumTristimulus(); }
VYR_FLAT(void*) CSharp_ColorSpaceSRGBType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceSRGBType>(s).assign_ColorSpaceSpecificationSpectrumTristimulus(as<ColorSpaceSpecificationSpectrumTristimulus>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceSRGBType_get_Red(void* self) { return as<ColorSpaceSRGBType>(self).get_Red(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGBType_set_Red(void* self, double value) { return as<ColorSpaceSRGBType>(self).set_Red(value); }
VYR_FLAT(double) CSharp_ColorSpaceSRGBType_get_Green(void* self) { return as<ColorSpaceSRGBType>(self).get_Green(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGBType_set_Green(void* self, double value) { return as<ColorSpaceSRGBType>(self).set_Green(value); }
VYR_FLAT(double) CSharp_ColorSpaceSRGBType_get_Blue(void* self) { return as<ColorSpaceSRGBType>(self).get_Blue(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGBType_set_Blue(void* self, double value) { return as<ColorSpaceSRGBType>(self).set_Blue(value); }
VYR_FLAT(double) CSharp_ColorSpaceSRGBType_get_Alpha(void* self) { return as<ColorSpaceSRGBType>(self).get_Alpha(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGBType_set_Alpha(void* self, double value) { return as<ColorSpaceSRGBType>(self).set_Alpha(value); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGBType_isset_Alpha(void* self) { return as<ColorSpaceSRGBType>(self).isset_Alpha(); }
VYR_FLAT(void) CSharp_ColorSpaceSRGBType_unset_Alpha(void* self) { as<ColorSpaceSRGBType>(self).unset_Alpha(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceSRGBType_get_ColorDepth(void* self) { return new_string(as<ColorSpaceSRGBType>(self).get_ColorDepth()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGBType_set_ColorDepth(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceSRGBType>(s).set_ColorDepth(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGBType_getenum_ColorDepth(void* self) { return as<ColorSpaceSRGBType>(self).getenum_ColorDepth(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGBType_setenum_ColorDepth(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceSRGBType>(s).setenum_ColorDepth(n); }, self, number); }

// ColorSpaceAdobeRGBType
VYR_FLAT(void*) CSharp_new_ColorSpaceAdobeRGBType__SWIG_0() { return make<ColorSpaceAdobeRGBType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceAdobeRGBType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceAdobeRGBType const & type is null", &copy<ColorSpaceAdobeRGBType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceAdobeRGBType(void* self) { destroy<ColorSpaceAdobeRGBType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceAdobeRGBTypeUpcast(void* self) { return upcast<ColorSpaceAdobeRGBType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceAdobeRGBType_id_get() { return ColorSpaceAdobeRGBType::id; }
VYR_FLAT(void) CSharp_ColorSpaceAdobeRGBType_id_set(const char* identity) { set_identity(&ColorSpaceAdobeRGBType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceAdobeRGBType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceAdobeRGBType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceAdobeRGBType_getid(void* self) { return new_string(as<ColorSpaceAdobeRGBType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGBType_has_id(void* self, const char* identity) { return as<ColorSpaceAdobeRGBType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceAdobeRGBType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceAdobeRGBType & type is null", +[](void* o, void* s) { return as<ColorSpaceAdobeRGBType>(s).swap(as<ColorSpaceAdobeRGBType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceAdobeRGBType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceAdobeRGBType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGBType_is_occurs_ok(void* self) { return as<ColorSpaceAdobeRGBType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceAdobeRGBType_get_Name(void* self) { return new_string(as<ColorSpaceAdobeRGBType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGBType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceAdobeRGBType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGBType_isset_Name(void* self) { return as<ColorSpaceAdobeRGBType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceAdobeRGBType_unset_Name(void* self) { as<ColorSpaceAdobeRGBType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceAdobeRGBType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self) { return &as<ColorSpaceAdobeRGBType>(self).get_ColorSpaceSpecificationSpectrumTristimulus(); }
VYR_FLAT(void*) CSharp_ColorSpaceAdobeRGBType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceAdobeRGBType>(s).assign_ColorSpaceSpecificationSpectrumTristimulus(as<ColorSpaceSpecificationSpectrumTristimulus>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceAdobeRGBType_get_Red(void* self) { return as<ColorSpaceAdobeRGBType>(self).get_Red(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGBType_set_Red(void* self, double value) { return as<ColorSpaceAdobeRGBType>(self).set_Red(value); }
VYR_FLAT(double) CSharp_ColorSpaceAdobeRGBType_get_Green(void* self) { return as<ColorSpaceAdobeRGBType>(self).get_Green(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGBType_set_Green(void* self, double value) { return as<ColorSpaceAdobeRGBType>(self).set_Green(value); }
VYR_FLAT(double) CSharp_ColorSpaceAdobeRGBType_get_Blue(void* self) { return as<ColorSpaceAdobeRGBType>(self).get_Blue(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGBType_set_Blue(void* self, double value) { return as<ColorSpaceAdobeRGBType>(self).set_Blue(value); }
VYR_FLAT(double) CSharp_ColorSpaceAdobeRGBType_get_Alpha(void* self) { return as<ColorSpaceAdobeRGBType>(self).get_Alpha(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGBType_set_Alpha(void* self, double value) { return as<ColorSpaceAdobeRGBType>(self).set_Alpha(value); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGBType_isset_Alpha(void* self) { return as<ColorSpaceAdobeRGBType>(self).isset_Alpha(); }
VYR_FLAT(void) CSharp_ColorSpaceAdobeRGBType_unset_Alpha(void* self) { as<ColorSpaceAdobeRGBType>(self).unset_Alpha(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceAdobeRGBType_get_ColorDepth(void* self) { return new_string(as<ColorSpaceAdobeRGBType>(self).get_ColorDepth()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGBType_set_ColorDepth(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceAdobeRGBType>(s).set_ColorDepth(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGBType_getenum_ColorDepth(void* self) { return as<ColorSpaceAdobeRGBType>(self).getenum_ColorDepth(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGBType_setenum_ColorDepth(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceAdobeRGBType>(s).setenum_ColorDepth(n); }, self, number); }

// ColorSpaceAdobeWideGamutRGBType
VYR_FLAT(void*) CSharp_new_ColorSpaceAdobeWideGamutRGBType__SWIG_0() { return make<ColorSpaceAdobeWideGamutRGBType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceAdobeWideGamutRGBType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceAdobeWideGamutRGBType const & type is null", &copy<ColorSpaceAdobeWideGamutRGBType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceAdobeWideGamutRGBType(void* self) { destroy<ColorSpaceAdobeWideGamutRGBType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceAdobeWideGamutRGBTypeUpcast(void* self) { return upcast<ColorSpaceAdobeWideGamutRGBType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceAdobeWideGamutRGBType_id_get() { return ColorSpaceAdobeWideGamutRGBType::id; }
VYR_FLAT(void) CSharp_ColorSpaceAdobeWideGamutRGBType_id_set(const char* identity) { set_identity(&ColorSpaceAdobeWideGamutRGBType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceAdobeWideGamutRGBType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceAdobeWideGamutRGBType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceAdobeWideGamutRGBType_getid(void* self) { return new_string(as<ColorSpaceAdobeWideGamutRGBType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGBType_has_id(void* self, const char* identity) { return as<ColorSpaceAdobeWideGamutRGBType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceAdobeWideGamutRGBType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceAdobeWideGamutRGBType & type is null", +[](void* o, void* s) { return as<ColorSpaceAdobeWideGamutRGBType>(s).swap(as<ColorSpaceAdobeWideGamutRGBType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceAdobeWideGamutRGBType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceAdobeWideGamutRGBType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGBType_is_occurs_ok(void* self) { return as<ColorSpaceAdobeWideGamutRGBType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceAdobeWideGamutRGBType_get_Name(void* self) { return new_string(as<ColorSpaceAdobeWideGamutRGBType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGBType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceAdobeWideGamutRGBType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGBType_isset_Name(void* self) { return as<ColorSpaceAdobeWideGamutRGBType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceAdobeWideGamutRGBType_unset_Name(void* self) { as<ColorSpaceAdobeWideGamutRGBType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceAdobeWideGamutRGBType_get_ColorSpaceSpecificationSpectrumTristimulus__SWIG_0(void* self) { return &as<ColorSpaceAdobeWideGamutRGBType>(self).get_ColorSpaceSpecificationSpectrumTristimulus(); }
VYR_FLAT(void*) CSharp_ColorSpaceAdobeWideGamutRGBType_assign_ColorSpaceSpecificationSpectrumTristimulus(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumTristimulus const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceAdobeWideGamutRGBType>(s).assign_ColorSpaceSpecificationSpectrumTristimulus(as<ColorSpaceSpecificationSpectrumTristimulus>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceAdobeWideGamutRGBType_get_Red(void* self) { return as<ColorSpaceAdobeWideGamutRGBType>(self).get_Red(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGBType_set_Red(void* self, double value) { return as<ColorSpaceAdobeWideGamutRGBType>(self).set_Red(value); }
VYR_FLAT(double) CSharp_ColorSpaceAdobeWideGamutRGBType_get_Green(void* self) { return as<ColorSpaceAdobeWideGamutRGBType>(self).get_Green(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGBType_set_Green(void* self, double value) { return as<ColorSpaceAdobeWideGamutRGBType>(self).set_Green(value); }
VYR_FLAT(double) CSharp_ColorSpaceAdobeWideGamutRGBType_get_Blue(void* self) { return as<ColorSpaceAdobeWideGamutRGBType>(self).get_Blue(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGBType_set_Blue(void* self, double value) { return as<ColorSpaceAdobeWideGamutRGBType>(self).set_Blue(value); }
VYR_FLAT(double) CSharp_ColorSpaceAdobeWideGamutRGBType_get_Alpha(void* self) { return as<ColorSpaceAdobeWideGamutRGBType>(self).get_Alpha(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGBType_set_Alpha(void* self, double value) { return as<ColorSpaceAdobeWideGamutRGBType>(self).set_Alpha(value); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGBType_isset_Alpha(void* self) { return as<ColorSpaceAdobeWideGamutRGBType>(self).isset_Alpha(); }
VYR_FLAT(void) CSharp_ColorSpaceAdobeWideGamutRGBType_unset_Alpha(void* self) { as<ColorSpaceAdobeWideGamutRGBType>(self).unset_Alpha(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceAdobeWideGamutRGBType_get_ColorDepth(void* self) { return new_string(as<ColorSpaceAdobeWideGamutRGBType>(self).get_ColorDepth()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGBType_set_ColorDepth(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceAdobeWideGamutRGBType>(s).set_ColorDepth(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGBType_getenum_ColorDepth(void* self) { return as<ColorSpaceAdobeWideGamutRGBType>(self).getenum_ColorDepth(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGBType_setenum_ColorDepth(void* self, std::int32_t number) { return guarded(+[](void* s, std::int32_t n) { return as<ColorSpaceAdobeWideGamutRGBType>(s).setenum_ColorDepth(n); }, self, number); }

// ColorSpaceCMYKType
VYR_FLAT(void*) CSharp_new_ColorSpaceCMYKType__SWIG_0() { return make<ColorSpaceCMYKType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCMYKType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCMYKType const & type is null", &copy<ColorSpaceCMYKType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCMYKType(void* self) { destroy<ColorSpaceCMYKType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKTypeUpcast(void* self) { return upcast<ColorSpaceCMYKType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceCMYKType_id_get() { return ColorSpaceCMYKType::id; }
VYR_FLAT(void) CSharp_ColorSpaceCMYKType_id_set(const char* identity) { set_identity(&ColorSpaceCMYKType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKType_factory(std::int32_t ns_id, const char* name) { return checked(k_null_string, +[](const char* n, std::int32_t i) -> void* { return ColorSpaceCMYKType::factory(i, n); }, name, ns_id); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceCMYKType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceCMYKType_getid(void* self) { return new_string(as<ColorSpaceCMYKType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKType_has_id(void* self, const char* identity) { return as<ColorSpaceCMYKType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceCMYKType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceCMYKType & type is null", +[](void* o, void* s) { return as<ColorSpaceCMYKType>(s).swap(as<ColorSpaceCMYKType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceCMYKType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceCMYKType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKType_is_occurs_ok(void* self) { return as<ColorSpaceCMYKType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceCMYKType_get_Name(void* self) { return new_string(as<ColorSpaceCMYKType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceCMYKType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKType_isset_Name(void* self) { return as<ColorSpaceCMYKType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceCMYKType_unset_Name(void* self) { as<ColorSpaceCMYKType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return &as<ColorSpaceCMYKType>(self).get_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceCMYKType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceCMYKType_get_Cyan(void* self) { return as<ColorSpaceCMYKType>(self).get_Cyan(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKType_set_Cyan(void* self, double value) { return as<ColorSpaceCMYKType>(self).set_Cyan(value); }
VYR_FLAT(double) CSharp_ColorSpaceCMYKType_get_Magenta(void* self) { return as<ColorSpaceCMYKType>(self).get_Magenta(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKType_set_Magenta(void* self, double value) { return as<ColorSpaceCMYKType>(self).set_Magenta(value); }
VYR_FLAT(double) CSharp_ColorSpaceCMYKType_get_Yellow(void* self) { return as<ColorSpaceCMYKType>(self).get_Yellow(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKType_set_Yellow(void* self, double value) { return as<ColorSpaceCMYKType>(self).set_Yellow(value); }
VYR_FLAT(double) CSharp_ColorSpaceCMYKType_get_Black(void* self) { return as<ColorSpaceCMYKType>(self).get_Black(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKType_set_Black(void* self, double value) { return as<ColorSpaceCMYKType>(self).set_Black(value); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceCMYKType_size_SpotColor(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceCMYKType>(self).size_SpotColor()); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKType_get_SpotColor__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSpaceCMYKType>(s).get_SpotColor(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKType_assign_SpotColor(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::SpotColorType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSpaceCMYKType>(s).assign_SpotColor(i, as<SpotColorType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKType_append_SpotColor(void* self) { return guarded(+[](void* s) { return as<ColorSpaceCMYKType>(s).append_SpotColor(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKType_insert_SpotColor(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSpaceCMYKType>(s).insert_SpotColor(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKType_back_SpotColor(void* self) { return &as<ColorSpaceCMYKType>(self).back_SpotColor(); }
VYR_FLAT(void) CSharp_ColorSpaceCMYKType_delete_SpotColor(void* self, std::uint32_t index) { as<ColorSpaceCMYKType>(self).delete_SpotColor(index); }
VYR_FLAT(void) CSharp_ColorSpaceCMYKType_clear_SpotColor(void* self) { as<ColorSpaceCMYKType>(self).clear_SpotColor(); }

// ColorSpaceCMYKPlusNType
VYR_FLAT(void*) CSharp_new_ColorSpaceCMYKPlusNType__SWIG_0() { return make<ColorSpaceCMYKPlusNType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCMYKPlusNType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCMYKPlusNType const & type is null", &copy<ColorSpaceCMYKPlusNType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCMYKPlusNType(void* self) { destroy<ColorSpaceCMYKPlusNType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKPlusNTypeUpcast(void* self) { return upcast<ColorSpaceCMYKPlusNType, ColorSpaceCMYKType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceCMYKPlusNType_id_get() { return ColorSpaceCMYKPlusNType::id; }
VYR_FLAT(void) CSharp_ColorSpaceCMYKPlusNType_id_set(const char* identity) { set_identity(&ColorSpaceCMYKPlusNType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKPlusNType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceCMYKPlusNType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceCMYKPlusNType_getid(void* self) { return new_string(as<ColorSpaceCMYKPlusNType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKPlusNType_has_id(void* self, const char* identity) { return as<ColorSpaceCMYKPlusNType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceCMYKPlusNType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceCMYKPlusNType & type is null", +[](void* o, void* s) { return as<ColorSpaceCMYKPlusNType>(s).swap(as<ColorSpaceCMYKPlusNType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceCMYKPlusNType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceCMYKPlusNType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKPlusNType_is_occurs_ok(void* self) { return as<ColorSpaceCMYKPlusNType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceCMYKPlusNType_get_ColorSpaceName(void* self) { return new_string(as<ColorSpaceCMYKPlusNType>(self).get_ColorSpaceName()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKPlusNType_set_ColorSpaceName(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceCMYKPlusNType>(s).set_ColorSpaceName(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKPlusNType_isset_ColorSpaceName(void* self) { return as<ColorSpaceCMYKPlusNType>(self).isset_ColorSpaceName(); }
VYR_FLAT(void) CSharp_ColorSpaceCMYKPlusNType_unset_ColorSpaceName(void* self) { as<ColorSpaceCMYKPlusNType>(self).unset_ColorSpaceName(); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceCMYKPlusNType_size_Color(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceCMYKPlusNType>(self).size_Color()); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKPlusNType_get_Color__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSpaceCMYKPlusNType>(s).get_Color(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKPlusNType_assign_Color(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::Color const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSpaceCMYKPlusNType>(s).assign_Color(i, as<Color>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKPlusNType_append_Color(void* self) { return guarded(+[](void* s) { return as<ColorSpaceCMYKPlusNType>(s).append_Color(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKPlusNType_insert_Color(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSpaceCMYKPlusNType>(s).insert_Color(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKPlusNType_back_Color(void* self) { return &as<ColorSpaceCMYKPlusNType>(self).back_Color(); }
VYR_FLAT(void) CSharp_ColorSpaceCMYKPlusNType_delete_Color(void* self, std::uint32_t index) { as<ColorSpaceCMYKPlusNType>(self).delete_Color(index); }
VYR_FLAT(void) CSharp_ColorSpaceCMYKPlusNType_clear_Color(void* self) { as<ColorSpaceCMYKPlusNType>(self).clear_Color(); }

// Color
VYR_FLAT(void*) CSharp_new_Color__SWIG_0() { return make<Color>(); }
VYR_FLAT(void*) CSharp_new_Color__SWIG_1(void* source) { return checked("com_vyrgraph_v2::Color const & type is null", &copy<Color>, source); }
VYR_FLAT(void) CSharp_delete_Color(void* self) { destroy<Color>(self); }
VYR_FLAT(void) CSharp_Color_swap(void* self, void* other) { checked("com_vyrgraph_v2::Color & type is null", +[](void* o, void* s) { return as<Color>(s).swap(as<Color>(o)); }, other, self); }
VYR_FLAT(void) CSharp_Color_reset(void* self) { guarded(+[](void* s) { return as<Color>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_Color_is_occurs_ok(void* self) { return as<Color>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_Color_get_Name(void* self) { return new_string(as<Color>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_Color_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<Color>(s).set_Name(v); }); }
VYR_FLAT(double) CSharp_Color_get_Value(void* self) { return as<Color>(self).get_Value(); }
VYR_FLAT(std::int32_t) CSharp_Color_set_Value(void* self, double value) { return as<Color>(self).set_Value(value); }

// ColorSpaceTINTORAOctavanticType
VYR_FLAT(void*) CSharp_new_ColorSpaceTINTORAOctavanticType__SWIG_0() { return make<ColorSpaceTINTORAOctavanticType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceTINTORAOctavanticType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceTINTORAOctavanticType const & type is null", &copy<ColorSpaceTINTORAOctavanticType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceTINTORAOctavanticType(void* self) { destroy<ColorSpaceTINTORAOctavanticType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAOctavanticTypeUpcast(void* self) { return upcast<ColorSpaceTINTORAOctavanticType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceTINTORAOctavanticType_id_get() { return ColorSpaceTINTORAOctavanticType::id; }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAOctavanticType_id_set(const char* identity) { set_identity(&ColorSpaceTINTORAOctavanticType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAOctavanticType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceTINTORAOctavanticType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceTINTORAOctavanticType_getid(void* self) { return new_string(as<ColorSpaceTINTORAOctavanticType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavanticType_has_id(void* self, const char* identity) { return as<ColorSpaceTINTORAOctavanticType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAOctavanticType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceTINTORAOctavanticType & type is null", +[](void* o, void* s) { return as<ColorSpaceTINTORAOctavanticType>(s).swap(as<ColorSpaceTINTORAOctavanticType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAOctavanticType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceTINTORAOctavanticType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavanticType_is_occurs_ok(void* self) { return as<ColorSpaceTINTORAOctavanticType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceTINTORAOctavanticType_get_Name(void* self) { return new_string(as<ColorSpaceTINTORAOctavanticType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavanticType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceTINTORAOctavanticType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavanticType_isset_Name(void* self) { return as<ColorSpaceTINTORAOctavanticType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAOctavanticType_unset_Name(void* self) { as<ColorSpaceTINTORAOctavanticType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAOctavanticType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return &as<ColorSpaceTINTORAOctavanticType>(self).get_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAOctavanticType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceTINTORAOctavanticType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceTINTORAOctavanticType_get_Cyan(void* self) { return as<ColorSpaceTINTORAOctavanticType>(self).get_Cyan(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavanticType_set_Cyan(void* self, double value) { return as<ColorSpaceTINTORAOctavanticType>(self).set_Cyan(value); }
VYR_FLAT(double) CSharp_ColorSpaceTINTORAOctavanticType_get_Magenta(void* self) { return as<ColorSpaceTINTORAOctavanticType>(self).get_Magenta(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavanticType_set_Magenta(void* self, double value) { return as<ColorSpaceTINTORAOctavanticType>(self).set_Magenta(value); }
VYR_FLAT(double) CSharp_ColorSpaceTINTORAOctavanticType_get_Yellow(void* self) { return as<ColorSpaceTINTORAOctavanticType>(self).get_Yellow(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavanticType_set_Yellow(void* self, double value) { return as<ColorSpaceTINTORAOctavanticType>(self).set_Yellow(value); }
VYR_FLAT(double) CSharp_ColorSpaceTINTORAOctavanticType_get_Black(void* self) { return as<ColorSpaceTINTORAOctavanticType>(self).get_Black(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavanticType_set_Black(void* self, double value) { return as<ColorSpaceTINTORAOctavanticType>(self).set_Black(value); }
VYR_FLAT(double) CSharp_ColorSpaceTINTORAOctavanticType_get_Orange(void* self) { return as<ColorSpaceTINTORAOctavanticType>(self).get_Orange(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavanticType_set_Orange(void* self, double value) { return as<ColorSpaceTINTORAOctavanticType>(self).set_Orange(value); }
VYR_FLAT(double) CSharp_ColorSpaceTINTORAOctavanticType_get_Green(void* self) { return as<ColorSpaceTINTORAOctavanticType>(self).get_Green(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavanticType_set_Green(void* self, double value) { return as<ColorSpaceTINTORAOctavanticType>(self).set_Green(value); }
VYR_FLAT(std::uint32_t) CSharp_ColorSpaceTINTORAOctavanticType_size_SpotColor(void* self) { return static_cast<std::uint32_t>(as<ColorSpaceTINTORAOctavanticType>(self).size_SpotColor()); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAOctavanticType_get_SpotColor__SWIG_0(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) -> void* { return &as<ColorSpaceTINTORAOctavanticType>(s).get_SpotColor(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAOctavanticType_assign_SpotColor(void* self, std::uint32_t index, void* value) { return checked("com_vyrgraph_v2::SpotColorType const & type is null", +[](void* v, void* s, std::uint32_t i) -> void* { return &as<ColorSpaceTINTORAOctavanticType>(s).assign_SpotColor(i, as<SpotColorType>(v)); }, value, self, index); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavanticType_append_SpotColor(void* self) { return guarded(+[](void* s) { return as<ColorSpaceTINTORAOctavanticType>(s).append_SpotColor(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavanticType_insert_SpotColor(void* self, std::uint32_t index) { return guarded(+[](void* s, std::uint32_t i) { return as<ColorSpaceTINTORAOctavanticType>(s).insert_SpotColor(i); }, self, index); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAOctavanticType_back_SpotColor(void* self) { return &as<ColorSpaceTINTORAOctavanticType>(self).back_SpotColor(); }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAOctavanticType_delete_SpotColor(void* self, std::uint32_t index) { as<ColorSpaceTINTORAOctavanticType>(self).delete_SpotColor(index); }
VYR_FLAT(void) CSharp_ColorSpaceTINTORAOctavanticType_clear_SpotColor(void* self) { as<ColorSpaceTINTORAOctavanticType>(self).clear_SpotColor(); }

// ColorSpaceHSLType
VYR_FLAT(void*) CSharp_new_ColorSpaceHSLType__SWIG_0() { return make<ColorSpaceHSLType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceHSLType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceHSLType const & type is null", &copy<ColorSpaceHSLType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceHSLType(void* self) { destroy<ColorSpaceHSLType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceHSLTypeUpcast(void* self) { return upcast<ColorSpaceHSLType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceHSLType_id_get() { return ColorSpaceHSLType::id; }
VYR_FLAT(void) CSharp_ColorSpaceHSLType_id_set(const char* identity) { set_identity(&ColorSpaceHSLType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceHSLType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceHSLType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceHSLType_getid(void* self) { return new_string(as<ColorSpaceHSLType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSLType_has_id(void* self, const char* identity) { return as<ColorSpaceHSLType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceHSLType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceHSLType & type is null", +[](void* o, void* s) { return as<ColorSpaceHSLType>(s).swap(as<ColorSpaceHSLType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceHSLType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceHSLType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSLType_is_occurs_ok(void* self) { return as<ColorSpaceHSLType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceHSLType_get_Name(void* self) { return new_string(as<ColorSpaceHSLType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSLType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceHSLType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSLType_isset_Name(void* self) { return as<ColorSpaceHSLType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceHSLType_unset_Name(void* self) { as<ColorSpaceHSLType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceHSLType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return &as<ColorSpaceHSLType>(self).get_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceHSLType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceHSLType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceHSLType_get_Hue(void* self) { return as<ColorSpaceHSLType>(self).get_Hue(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSLType_set_Hue(void* self, double value) { return as<ColorSpaceHSLType>(self).set_Hue(value); }
VYR_FLAT(double) CSharp_ColorSpaceHSLType_get_Saturation(void* self) { return as<ColorSpaceHSLType>(self).get_Saturation(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSLType_set_Saturation(void* self, double value) { return as<ColorSpaceHSLType>(self).set_Saturation(value); }
VYR_FLAT(double) CSharp_ColorSpaceHSLType_get_Lightness(void* self) { return as<ColorSpaceHSLType>(self).get_Lightness(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSLType_set_Lightness(void* self, double value) { return as<ColorSpaceHSLType>(self).set_Lightness(value); }

// ColorSpaceHSVType
VYR_FLAT(void*) CSharp_new_ColorSpaceHSVType__SWIG_0() { return make<ColorSpaceHSVType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceHSVType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceHSVType const & type is null", &copy<ColorSpaceHSVType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceHSVType(void* self) { destroy<ColorSpaceHSVType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceHSVTypeUpcast(void* self) { return upcast<ColorSpaceHSVType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceHSVType_id_get() { return ColorSpaceHSVType::id; }
VYR_FLAT(void) CSharp_ColorSpaceHSVType_id_set(const char* identity) { set_identity(&ColorSpaceHSVType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceHSVType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceHSVType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceHSVType_getid(void* self) { return new_string(as<ColorSpaceHSVType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSVType_has_id(void* self, const char* identity) { return as<ColorSpaceHSVType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceHSVType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceHSVType & type is null", +[](void* o, void* s) { return as<ColorSpaceHSVType>(s).swap(as<ColorSpaceHSVType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceHSVType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceHSVType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSVType_is_occurs_ok(void* self) { return as<ColorSpaceHSVType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceHSVType_get_Name(void* self) { return new_string(as<ColorSpaceHSVType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSVType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceHSVType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSVType_isset_Name(void* self) { return as<ColorSpaceHSVType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceHSVType_unset_Name(void* self) { as<ColorSpaceHSVType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceHSVType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return &as<ColorSpaceHSVType>(self).get_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceHSVType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceHSVType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceHSVType_get_Hue(void* self) { return as<ColorSpaceHSVType>(self).get_Hue(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSVType_set_Hue(void* self, double value) { return as<ColorSpaceHSVType>(self).set_Hue(value); }
VYR_FLAT(double) CSharp_ColorSpaceHSVType_get_Saturation(void* self) { return as<ColorSpaceHSVType>(self).get_Saturation(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSVType_set_Saturation(void* self, double value) { return as<ColorSpaceHSVType>(self).set_Saturation(value); }
VYR_FLAT(double) CSharp_ColorSpaceHSVType_get_Value(void* self) { return as<ColorSpaceHSVType>(self).get_Value(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSVType_set_Value(void* self, double value) { return as<ColorSpaceHSVType>(self).set_Value(value); }

// ColorSpaceYUVType
VYR_FLAT(void*) CSharp_new_ColorSpaceYUVType__SWIG_0() { return make<ColorSpaceYUVType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceYUVType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceYUVType const & type is null", &copy<ColorSpaceYUVType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceYUVType(void* self) { destroy<ColorSpaceYUVType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceYUVTypeUpcast(void* self) { return upcast<ColorSpaceYUVType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceYUVType_id_get() { return ColorSpaceYUVType::id; }
VYR_FLAT(void) CSharp_ColorSpaceYUVType_id_set(const char* identity) { set_identity(&ColorSpaceYUVType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceYUVType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceYUVType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceYUVType_getid(void* self) { return new_string(as<ColorSpaceYUVType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYUVType_has_id(void* self, const char* identity) { return as<ColorSpaceYUVType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceYUVType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceYUVType & type is null", +[](void* o, void* s) { return as<ColorSpaceYUVType>(s).swap(as<ColorSpaceYUVType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceYUVType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceYUVType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYUVType_is_occurs_ok(void* self) { return as<ColorSpaceYUVType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceYUVType_get_Name(void* self) { return new_string(as<ColorSpaceYUVType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYUVType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceYUVType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYUVType_isset_Name(void* self) { return as<ColorSpaceYUVType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceYUVType_unset_Name(void* self) { as<ColorSpaceYUVType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceYUVType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return &as<ColorSpaceYUVType>(self).get_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceYUVType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceYUVType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceYUVType_get_Y(void* self) { return as<ColorSpaceYUVType>(self).get_Y(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYUVType_set_Y(void* self, double value) { return as<ColorSpaceYUVType>(self).set_Y(value); }
VYR_FLAT(double) CSharp_ColorSpaceYUVType_get_U(void* self) { return as<ColorSpaceYUVType>(self).get_U(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYUVType_set_U(void* self, double value) { return as<ColorSpaceYUVType>(self).set_U(value); }
VYR_FLAT(double) CSharp_ColorSpaceYUVType_get_V(void* self) { return as<ColorSpaceYUVType>(self).get_V(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYUVType_set_V(void* self, double value) { return as<ColorSpaceYUVType>(self).set_V(value); }

// ColorSpaceYIQType
VYR_FLAT(void*) CSharp_new_ColorSpaceYIQType__SWIG_0() { return make<ColorSpaceYIQType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceYIQType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceYIQType const & type is null", &copy<ColorSpaceYIQType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceYIQType(void* self) { destroy<ColorSpaceYIQType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceYIQTypeUpcast(void* self) { return upcast<ColorSpaceYIQType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceYIQType_id_get() { return ColorSpaceYIQType::id; }
VYR_FLAT(void) CSharp_ColorSpaceYIQType_id_set(const char* identity) { set_identity(&ColorSpaceYIQType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceYIQType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceYIQType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceYIQType_getid(void* self) { return new_string(as<ColorSpaceYIQType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYIQType_has_id(void* self, const char* identity) { return as<ColorSpaceYIQType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceYIQType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceYIQType & type is null", +[](void* o, void* s) { return as<ColorSpaceYIQType>(s).swap(as<ColorSpaceYIQType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceYIQType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceYIQType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYIQType_is_occurs_ok(void* self) { return as<ColorSpaceYIQType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceYIQType_get_Name(void* self) { return new_string(as<ColorSpaceYIQType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYIQType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceYIQType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYIQType_isset_Name(void* self) { return as<ColorSpaceYIQType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceYIQType_unset_Name(void* self) { as<ColorSpaceYIQType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceYIQType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return &as<ColorSpaceYIQType>(self).get_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceYIQType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceYIQType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceYIQType_get_Y(void* self) { return as<ColorSpaceYIQType>(self).get_Y(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYIQType_set_Y(void* self, double value) { return as<ColorSpaceYIQType>(self).set_Y(value); }
VYR_FLAT(double) CSharp_ColorSpaceYIQType_get_I(void* self) { return as<ColorSpaceYIQType>(self).get_I(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYIQType_set_I(void* self, double value) { return as<ColorSpaceYIQType>(self).set_I(value); }
VYR_FLAT(double) CSharp_ColorSpaceYIQType_get_Q(void* self) { return as<ColorSpaceYIQType>(self).get_Q(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYIQType_set_Q(void* self, double value) { return as<ColorSpaceYIQType>(self).set_Q(value); }

// ColorSpaceYBRType
VYR_FLAT(void*) CSharp_new_ColorSpaceYBRType__SWIG_0() { return make<ColorSpaceYBRType>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceYBRType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceYBRType const & type is null", &copy<ColorSpaceYBRType>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceYBRType(void* self) { destroy<ColorSpaceYBRType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceYBRTypeUpcast(void* self) { return upcast<ColorSpaceYBRType, ColorSpaceType>(self); }
VYR_FLAT(const char*) CSharp_ColorSpaceYBRType_id_get() { return ColorSpaceYBRType::id; }
VYR_FLAT(void) CSharp_ColorSpaceYBRType_id_set(const char* identity) { set_identity(&ColorSpaceYBRType::id, identity); }
VYR_FLAT(void*) CSharp_ColorSpaceYBRType_clone(void* self) { return guarded(+[](void* s) -> void* { return as<ColorSpaceYBRType>(s).clone(); }, self); }
VYR_FLAT(char*) CSharp_ColorSpaceYBRType_getid(void* self) { return new_string(as<ColorSpaceYBRType>(self).getid()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYBRType_has_id(void* self, const char* identity) { return as<ColorSpaceYBRType>(self).has_id(identity); }
VYR_FLAT(void) CSharp_ColorSpaceYBRType_swap(void* self, void* other) { checked("com_vyrgraph_v2::ColorSpaceYBRType & type is null", +[](void* o, void* s) { return as<ColorSpaceYBRType>(s).swap(as<ColorSpaceYBRType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_ColorSpaceYBRType_reset(void* self) { guarded(+[](void* s) { return as<ColorSpaceYBRType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYBRType_is_occurs_ok(void* self) { return as<ColorSpaceYBRType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_ColorSpaceYBRType_get_Name(void* self) { return new_string(as<ColorSpaceYBRType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYBRType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<ColorSpaceYBRType>(s).set_Name(v); }); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYBRType_isset_Name(void* self) { return as<ColorSpaceYBRType>(self).isset_Name(); }
VYR_FLAT(void) CSharp_ColorSpaceYBRType_unset_Name(void* self) { as<ColorSpaceYBRType>(self).unset_Name(); }
VYR_FLAT(void*) CSharp_ColorSpaceYBRType_get_ColorSpaceSpecificationSpectrumGeneric__SWIG_0(void* self) { return &as<ColorSpaceYBRType>(self).get_ColorSpaceSpecificationSpectrumGeneric(); }
VYR_FLAT(void*) CSharp_ColorSpaceYBRType_assign_ColorSpaceSpecificationSpectrumGeneric(void* self, void* value) { return checked("com_vyrgraph_v2::ColorSpaceSpecificationSpectrumGeneric const & type is null", +[](void* v, void* s) -> void* { return &as<ColorSpaceYBRType>(s).assign_ColorSpaceSpecificationSpectrumGeneric(as<ColorSpaceSpecificationSpectrumGeneric>(v)); }, value, self); }
VYR_FLAT(double) CSharp_ColorSpaceYBRType_get_Y(void* self) { return as<ColorSpaceYBRType>(self).get_Y(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYBRType_set_Y(void* self, double value) { return as<ColorSpaceYBRType>(self).set_Y(value); }
VYR_FLAT(double) CSharp_ColorSpaceYBRType_get_B(void* self) { return as<ColorSpaceYBRType>(self).get_B(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYBRType_set_B(void* self, double value) { return as<ColorSpaceYBRType>(self).set_B(value); }
VYR_FLAT(double) CSharp_ColorSpaceYBRType_get_R(void* self) { return as<ColorSpaceYBRType>(self).get_R(); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYBRType_set_R(void* self, double value) { return as<ColorSpaceYBRType>(self).set_R(value); }

// ColorSpaceRGB
VYR_FLAT(void*) CSharp_new_ColorSpaceRGB__SWIG_0() { return make<ColorSpaceRGB>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceRGB__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceRGB const & type is null", &copy<ColorSpaceRGB>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceRGB(void* self) { destroy<ColorSpaceRGB>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceRGBUpcast(void* self) { return upcast<ColorSpaceRGB, ColorSpaceRGBType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceRGB_ns_map() { return reference(*ColorSpaceRGB::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGB_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceRGB>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGB_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceRGB>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceRGB_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceRGB>(s).marshal(p); }, self, path); }

// ColorSpaceSRGB
VYR_FLAT(void*) CSharp_new_ColorSpaceSRGB__SWIG_0() { return make<ColorSpaceSRGB>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceSRGB__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceSRGB const & type is null", &copy<ColorSpaceSRGB>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceSRGB(void* self) { destroy<ColorSpaceSRGB>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSRGBUpcast(void* self) { return upcast<ColorSpaceSRGB, ColorSpaceSRGBType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceSRGB_ns_map() { return reference(*ColorSpaceSRGB::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGB_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSRGB>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGB_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceSRGB>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceSRGB_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceSRGB>(s).marshal(p); }, self, path); }

// ColorSpaceAdobeRGB
VYR_FLAT(void*) CSharp_new_ColorSpaceAdobeRGB__SWIG_0() { return make<ColorSpaceAdobeRGB>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceAdobeRGB__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceAdobeRGB const & type is null", &copy<ColorSpaceAdobeRGB>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceAdobeRGB(void* self) { destroy<ColorSpaceAdobeRGB>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceAdobeRGBUpcast(void* self) { return upcast<ColorSpaceAdobeRGB, ColorSpaceAdobeRGBType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceAdobeRGB_ns_map() { return reference(*ColorSpaceAdobeRGB::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGB_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceAdobeRGB>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGB_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceAdobeRGB>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeRGB_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceAdobeRGB>(s).marshal(p); }, self, path); }

// ColorSpaceCMYKPlusN
VYR_FLAT(void*) CSharp_new_ColorSpaceCMYKPlusN__SWIG_0() { return make<ColorSpaceCMYKPlusN>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCMYKPlusN__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCMYKPlusN const & type is null", &copy<ColorSpaceCMYKPlusN>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCMYKPlusN(void* self) { destroy<ColorSpaceCMYKPlusN>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKPlusNUpcast(void* self) { return upcast<ColorSpaceCMYKPlusN, ColorSpaceCMYKPlusNType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKPlusN_ns_map() { return reference(*ColorSpaceCMYKPlusN::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKPlusN_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCMYKPlusN>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKPlusN_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceCMYKPlusN>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYKPlusN_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCMYKPlusN>(s).marshal(p); }, self, path); }

// ColorSpaceAdobeWideGamutRGB
VYR_FLAT(void*) CSharp_new_ColorSpaceAdobeWideGamutRGB__SWIG_0() { return make<ColorSpaceAdobeWideGamutRGB>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceAdobeWideGamutRGB__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceAdobeWideGamutRGB const & type is null", &copy<ColorSpaceAdobeWideGamutRGB>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceAdobeWideGamutRGB(void* self) { destroy<ColorSpaceAdobeWideGamutRGB>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceAdobeWideGamutRGBUpcast(void* self) { return upcast<ColorSpaceAdobeWideGamutRGB, ColorSpaceAdobeWideGamutRGBType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceAdobeWideGamutRGB_ns_map() { return reference(*ColorSpaceAdobeWideGamutRGB::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGB_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceAdobeWideGamutRGB>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGB_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceAdobeWideGamutRGB>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceAdobeWideGamutRGB_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceAdobeWideGamutRGB>(s).marshal(p); }, self, path); }

// ColorSpaceHSL
VYR_FLAT(void*) CSharp_new_ColorSpaceHSL__SWIG_0() { return make<ColorSpaceHSL>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceHSL__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceHSL const & type is null", &copy<ColorSpaceHSL>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceHSL(void* self) { destroy<ColorSpaceHSL>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceHSLUpcast(void* self) { return upcast<ColorSpaceHSL, ColorSpaceHSLType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceHSL_ns_map() { return reference(*ColorSpaceHSL::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSL_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceHSL>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSL_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceHSL>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSL_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceHSL>(s).marshal(p); }, self, path); }

// ColorSpaceHSV
VYR_FLAT(void*) CSharp_new_ColorSpaceHSV__SWIG_0() { return make<ColorSpaceHSV>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceHSV__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceHSV const & type is null", &copy<ColorSpaceHSV>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceHSV(void* self) { destroy<ColorSpaceHSV>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceHSVUpcast(void* self) { return upcast<ColorSpaceHSV, ColorSpaceHSVType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceHSV_ns_map() { return reference(*ColorSpaceHSV::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSV_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceHSV>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSV_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceHSV>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceHSV_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceHSV>(s).marshal(p); }, self, path); }

// ColorSpaceCMYK
VYR_FLAT(void*) CSharp_new_ColorSpaceCMYK__SWIG_0() { return make<ColorSpaceCMYK>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCMYK__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceCMYK const & type is null", &copy<ColorSpaceCMYK>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceCMYK(void* self) { destroy<ColorSpaceCMYK>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYKUpcast(void* self) { return upcast<ColorSpaceCMYK, ColorSpaceCMYKType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceCMYK_ns_map() { return reference(*ColorSpaceCMYK::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYK_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCMYK>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYK_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceCMYK>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceCMYK_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceCMYK>(s).marshal(p); }, self, path); }

// ColorSpaceTINTORAOctavantic
VYR_FLAT(void*) CSharp_new_ColorSpaceTINTORAOctavantic__SWIG_0() { return make<ColorSpaceTINTORAOctavantic>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceTINTORAOctavantic__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceTINTORAOctavantic const & type is null", &copy<ColorSpaceTINTORAOctavantic>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceTINTORAOctavantic(void* self) { destroy<ColorSpaceTINTORAOctavantic>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAOctavanticUpcast(void* self) { return upcast<ColorSpaceTINTORAOctavantic, ColorSpaceTINTORAOctavanticType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceTINTORAOctavantic_ns_map() { return reference(*ColorSpaceTINTORAOctavantic::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavantic_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceTINTORAOctavantic>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavantic_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceTINTORAOctavantic>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceTINTORAOctavantic_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceTINTORAOctavantic>(s).marshal(p); }, self, path); }

// ColorSpaceYUV
VYR_FLAT(void*) CSharp_new_ColorSpaceYUV__SWIG_0() { return make<ColorSpaceYUV>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceYUV__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceYUV const & type is null", &copy<ColorSpaceYUV>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceYUV(void* self) { destroy<ColorSpaceYUV>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceYUVUpcast(void* self) { return upcast<ColorSpaceYUV, ColorSpaceYUVType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceYUV_ns_map() { return reference(*ColorSpaceYUV::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYUV_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceYUV>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYUV_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceYUV>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYUV_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceYUV>(s).marshal(p); }, self, path); }

// ColorSpaceYIQ
VYR_FLAT(void*) CSharp_new_ColorSpaceYIQ__SWIG_0() { return make<ColorSpaceYIQ>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceYIQ__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceYIQ const & type is null", &copy<ColorSpaceYIQ>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceYIQ(void* self) { destroy<ColorSpaceYIQ>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceYIQUpcast(void* self) { return upcast<ColorSpaceYIQ, ColorSpaceYIQType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceYIQ_ns_map() { return reference(*ColorSpaceYIQ::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYIQ_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceYIQ>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYIQ_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceYIQ>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYIQ_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceYIQ>(s).marshal(p); }, self, path); }

// ColorSpaceYBR
VYR_FLAT(void*) CSharp_new_ColorSpaceYBR__SWIG_0() { return make<ColorSpaceYBR>(); }
VYR_FLAT(void*) CSharp_new_ColorSpaceYBR__SWIG_1(void* source) { return checked("com_vyrgraph_v2::ColorSpaceYBR const & type is null", &copy<ColorSpaceYBR>, source); }
VYR_FLAT(void) CSharp_delete_ColorSpaceYBR(void* self) { destroy<ColorSpaceYBR>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceYBRUpcast(void* self) { return upcast<ColorSpaceYBR, ColorSpaceYBRType>(self); }
VYR_FLAT(void*) CSharp_ColorSpaceYBR_ns_map() { return reference(*ColorSpaceYBR::ns_map()); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYBR_unmarshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceYBR>(s).unmarshal(p); }, self, path); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYBR_unmarshal__SWIG_1(void* self, const char* data, std::uint32_t size) { return guarded(+[](void* s, const char* d, std::uint32_t n) { return as<ColorSpaceYBR>(s).unmarshal(d, n); }, self, data, size); }
VYR_FLAT(std::int32_t) CSharp_ColorSpaceYBR_marshal__SWIG_0(void* self, const char* path) { return guarded(+[](void* s, const char* p) { return as<ColorSpaceYBR>(s).marshal(p); }, self, path); }

// SpotColorType
VYR_FLAT(void*) CSharp_new_SpotColorType__SWIG_0() { return make<SpotColorType>(); }
VYR_FLAT(void*) CSharp_new_SpotColorType__SWIG_1(void* source) { return checked("com_vyrgraph_v2::SpotColorType const & type is null", &copy<SpotColorType>, source); }
VYR_FLAT(void) CSharp_delete_SpotColorType(void* self) { destroy<SpotColorType>(self); }
VYR_FLAT(void) CSharp_SpotColorType_swap(void* self, void* other) { checked("com_vyrgraph_v2::SpotColorType & type is null", +[](void* o, void* s) { return as<SpotColorType>(s).swap(as<SpotColorType>(o)); }, other, self); }
VYR_FLAT(void) CSharp_SpotColorType_reset(void* self) { guarded(+[](void* s) { return as<SpotColorType>(s).reset(); }, self); }
VYR_FLAT(std::int32_t) CSharp_SpotColorType_is_occurs_ok(void* self) { return as<SpotColorType>(self).is_occurs_ok(); }
VYR_FLAT(char16_t*) CSharp_SpotColorType_get_Name(void* self) { return new_string(as<SpotColorType>(self).get_Name()); }
VYR_FLAT(std::int32_t) CSharp_SpotColorType_set_Name(void* self, const char16_t* value) { return with_text(self, value, [](void* s, wide_text v) { return as<SpotColorType>(s).set_Name(v); }); }
VYR_FLAT(double) CSharp_SpotColorType_get_Percentage(void* self) { return as<SpotColorType>(self).get_Percentage(); }
VYR_FLAT(std::int32_t) CSharp_SpotColorType_set_Percentage(void* self, double value) { return as<SpotColorType>(self).set_Percentage(value); }

}  // extern "C"

}  // namespace com_vyrgraph_v2
