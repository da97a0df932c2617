// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Flat functions that don't follow from the schema.

#include "flat/call.h"
#include "document/result.h"
#include "lmx/binding/any_info.h"
#include "lmx/values/big_int.h"
#include "lmx/values/binary.h"
#include "lmx/values/characters.h"
#include "lmx/values/datetime.h"
#include "lmx/values/decimal.h"
#include "lmx/values/duration.h"
#include "lmx/values/empty.h"
#include "lmx/values/pattern.h"
#include "lmx/values/scalars.h"
#include "lmx/values/unicode.h"
#include "schema/generated/device_color_values.h"
#include "schema/generated/header.h"

namespace com_vyrgraph_v2 {

using namespace flat;

extern "C" {

// lmx::c_any_info
VYR_FLAT(void*) CSharp_new_c_any_info__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_any_info(); }); }
VYR_FLAT(void*) CSharp_new_c_any_info__SWIG_1(void* a) { if (is_null(a, "lmx::c_any_info const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_any_info(as<lmx::c_any_info>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_any_info(void* self) { destroy<lmx::c_any_info>(self); }
VYR_FLAT(void*) CSharp_new_c_any_info__SWIG_2(const char* a, const char* b, const char* c) { if (is_null(a, k_null_string)) return {}; if (is_null(b, k_null_string)) return {}; if (is_null(c, k_null_string)) return {}; return guarded(+[](const char* u, const char* v, const char* w) -> void* { return new lmx::c_any_info(u, v, w); }, a, b, c); }
VYR_FLAT(char*) CSharp_c_any_info_get_namespace(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_any_info>(s).get_namespace()); }, self); }
VYR_FLAT(void) CSharp_c_any_info_set_namespace(void* self, const char* a) { if (is_null(a, k_null_string)) return; guarded(+[](void* s, const char* u) { as<lmx::c_any_info>(s).set_namespace(u); }, self, a); }
VYR_FLAT(char*) CSharp_c_any_info_get_name(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_any_info>(s).get_name()); }, self); }
VYR_FLAT(void) CSharp_c_any_info_set_name(void* self, const char* a) { if (is_null(a, k_null_string)) return; guarded(+[](void* s, const char* u) { as<lmx::c_any_info>(s).set_name(u); }, self, a); }
VYR_FLAT(char*) CSharp_c_any_info_get_value(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_any_info>(s).get_value()); }, self); }
VYR_FLAT(void) CSharp_c_any_info_set_value(void* self, const char* a) { if (is_null(a, k_null_string)) return; guarded(+[](void* s, const char* u) { as<lmx::c_any_info>(s).set_value(u); }, self, a); }

// lmx::c_big_int
VYR_FLAT(void*) CSharp_new_c_big_int__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_big_int(); }); }
VYR_FLAT(void*) CSharp_new_c_big_int__SWIG_1(void* a) { if (is_null(a, "lmx::c_big_int const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_big_int(as<lmx::c_big_int>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_big_int(void* self) { destroy<lmx::c_big_int>(self); }
VYR_FLAT(void*) CSharp_new_c_big_int__SWIG_2(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_big_int(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_big_int__SWIG_3(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_big_int(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_big_int__SWIG_4(std::int32_t a) { return guarded(+[](std::int32_t u) -> void* { return new lmx::c_big_int(u); }, a); }
VYR_FLAT(void) CSharp_c_big_int_swap(void* self, void* a) { if (is_null(a, "lmx::c_big_int & type is null")) return; guarded(+[](void* s, void* u) { as<lmx::c_big_int>(s).swap(as<lmx::c_big_int>(u)); }, self, a); }
VYR_FLAT(char*) CSharp_c_big_int_get_as_string(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_big_int>(s).get_as_string()); }, self); }
VYR_FLAT(std::int32_t) CSharp_c_big_int_get(void* self, void* a) { return guarded(+[](void* s, void* u) { return as<lmx::c_big_int>(s).get(static_cast<bool*>(u)); }, self, a); }
VYR_FLAT(double) CSharp_c_big_int_get_as_float(void* self) { return guarded(+[](void* s) { return as<lmx::c_big_int>(s).get_as_float(); }, self); }

// lmx::c_binary
VYR_FLAT(void*) CSharp_new_c_binary__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_binary(); }); }
VYR_FLAT(void*) CSharp_new_c_binary__SWIG_1(void* a) { if (is_null(a, "lmx::c_binary const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_binary(as<lmx::c_binary>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_binary(void* self) { destroy<lmx::c_binary>(self); }
VYR_FLAT(void*) CSharp_new_c_binary__SWIG_2(void* a, std::uint32_t b) { return guarded(+[](void* u, std::uint32_t v) -> void* { return new lmx::c_binary(static_cast<unsigned char*>(u), v); }, a, b); }
VYR_FLAT(void) CSharp_c_binary_swap(void* self, void* a) { if (is_null(a, "lmx::c_binary & type is null")) return; guarded(+[](void* s, void* u) { as<lmx::c_binary>(s).swap(as<lmx::c_binary>(u)); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_binary_size(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_binary>(s).size()); }, self); }
VYR_FLAT(void*) CSharp_c_binary_set(void* self, void* a, std::uint32_t b) { return guarded(+[](void* s, void* u, std::uint32_t v) -> void* { return &as<lmx::c_binary>(s).set(static_cast<unsigned char*>(u), v); }, self, a, b); }
VYR_FLAT(void*) CSharp_c_binary_get(void* self, void* a, std::uint32_t b) { return guarded(+[](void* s, void* u, std::uint32_t v) -> void* { return as<lmx::c_binary>(s).get(static_cast<unsigned char*>(u), v); }, self, a, b); }
VYR_FLAT(std::int32_t) CSharp_c_binary_equal(void* self, void* a, std::uint32_t b) { return guarded(+[](void* s, void* u, std::uint32_t v) { return as<lmx::c_binary>(s).equal(static_cast<unsigned char*>(u), v); }, self, a, b); }
VYR_FLAT(void*) CSharp_c_binary_at__SWIG_0(void* self, std::uint32_t a) { return guarded(+[](void* s, std::uint32_t u) -> void* { return &as<lmx::c_binary>(s).at(u); }, self, a); }
VYR_FLAT(void*) CSharp_c_binary_append(void* self, std::uint32_t a) { return guarded(+[](void* s, std::uint32_t u) -> void* { return &as<lmx::c_binary>(s).append(static_cast<std::uint8_t>(u)); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_c_binary_is_valid_hex(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::c_binary::is_valid_hex(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_c_binary_is_valid_base64(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::c_binary::is_valid_base64(u); }, a); }
VYR_FLAT(void) CSharp_c_binary_from_hex(void* self, const char* a) { if (is_null(a, k_null_string)) return; guarded(+[](void* s, const char* u) { as<lmx::c_binary>(s).from_hex(u); }, self, a); }
VYR_FLAT(void) CSharp_c_binary_from_base64(void* self, const char* a) { if (is_null(a, k_null_string)) return; guarded(+[](void* s, const char* u) { as<lmx::c_binary>(s).from_base64(u); }, self, a); }

// lmx::c_date
VYR_FLAT(void*) CSharp_new_c_date__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_date(); }); }
VYR_FLAT(void*) CSharp_new_c_date__SWIG_1(void* a) { if (is_null(a, "lmx::c_date const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_date(as<lmx::c_date>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_date(void* self) { destroy<lmx::c_date>(self); }
VYR_FLAT(void*) CSharp_new_c_date__SWIG_2(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_date(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_date__SWIG_3(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_date(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_c_date_is_valid(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::c_date::is_valid(u); }, a); }
VYR_FLAT(char*) CSharp_c_date_get_as_string(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_date>(s).get_as_string()); }, self); }
VYR_FLAT(std::int32_t) CSharp_c_date_get_total_offset_mins(void* self) { return guarded(+[](void* s) { return as<lmx::c_date>(s).get_total_offset_mins(); }, self); }
VYR_FLAT(void) CSharp_c_date_set_total_offset_mins(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_date>(s).set_total_offset_mins(u); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_c_date_get_is_utc(void* self) { return guarded(+[](void* s) { return as<lmx::c_date>(s).get_is_utc(); }, self); }
VYR_FLAT(void) CSharp_c_date_set_is_utc(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_date>(s).set_is_utc(to_bool(u)); }, self, a); }
VYR_FLAT(void) CSharp_c_date_set_offset(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_date>(s).set_offset(u, v); }, self, a, b); }
VYR_FLAT(void) CSharp_c_date_set_offset_mins(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_date>(s).set_offset_mins(u, v); }, self, a, b); }
VYR_FLAT(std::int32_t) CSharp_c_date_get_year(void* self) { return guarded(+[](void* s) { return as<lmx::c_date>(s).get_year(); }, self); }
VYR_FLAT(void) CSharp_c_date_set_year(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_date>(s).set_year(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_date_get_month(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_date>(s).get_month()); }, self); }
VYR_FLAT(void) CSharp_c_date_set_month(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_date>(s).set_month(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_date_get_day(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_date>(s).get_day()); }, self); }
VYR_FLAT(void) CSharp_c_date_set_day(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_date>(s).set_day(u); }, self, a); }

// lmx::c_datetime
VYR_FLAT(void*) CSharp_new_c_datetime__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_datetime(); }); }
VYR_FLAT(void*) CSharp_new_c_datetime__SWIG_1(void* a) { if (is_null(a, "lmx::c_datetime const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_datetime(as<lmx::c_datetime>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_datetime(void* self) { destroy<lmx::c_datetime>(self); }
VYR_FLAT(void*) CSharp_new_c_datetime__SWIG_2(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_datetime(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_datetime__SWIG_3(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_datetime(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_c_datetime_is_valid(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::c_datetime::is_valid(u); }, a); }
VYR_FLAT(char*) CSharp_c_datetime_get_as_string(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_datetime>(s).get_as_string()); }, self); }
VYR_FLAT(std::int32_t) CSharp_c_datetime_get_total_offset_mins(void* self) { return guarded(+[](void* s) { return as<lmx::c_datetime>(s).get_total_offset_mins(); }, self); }
VYR_FLAT(void) CSharp_c_datetime_set_total_offset_mins(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_datetime>(s).set_total_offset_mins(u); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_c_datetime_get_is_utc(void* self) { return guarded(+[](void* s) { return as<lmx::c_datetime>(s).get_is_utc(); }, self); }
VYR_FLAT(void) CSharp_c_datetime_set_is_utc(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_datetime>(s).set_is_utc(to_bool(u)); }, self, a); }
VYR_FLAT(void) CSharp_c_datetime_set_offset(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_datetime>(s).set_offset(u, v); }, self, a, b); }
VYR_FLAT(void) CSharp_c_datetime_set_offset_mins(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_datetime>(s).set_offset_mins(u, v); }, self, a, b); }
VYR_FLAT(std::int32_t) CSharp_c_datetime_get_year(void* self) { return guarded(+[](void* s) { return as<lmx::c_datetime>(s).get_year(); }, self); }
VYR_FLAT(void) CSharp_c_datetime_set_year(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_datetime>(s).set_year(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_datetime_get_month(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_datetime>(s).get_month()); }, self); }
VYR_FLAT(void) CSharp_c_datetime_set_month(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_datetime>(s).set_month(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_datetime_get_day(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_datetime>(s).get_day()); }, self); }
VYR_FLAT(void) CSharp_c_datetime_set_day(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_datetime>(s).set_day(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_datetime_get_hours(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_datetime>(s).get_hours()); }, self); }
VYR_FLAT(void) CSharp_c_datetime_set_hours(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_datetime>(s).set_hours(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_datetime_get_mins(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_datetime>(s).get_mins()); }, self); }
VYR_FLAT(void) CSharp_c_datetime_set_mins(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_datetime>(s).set_mins(u); }, self, a); }
VYR_FLAT(float) CSharp_c_datetime_get_secs(void* self) { return guarded(+[](void* s) { return as<lmx::c_datetime>(s).get_secs(); }, self); }
VYR_FLAT(void) CSharp_c_datetime_set_secs(void* self, float a) { guarded(+[](void* s, float u) { as<lmx::c_datetime>(s).set_secs(u); }, self, a); }

// lmx::c_datetime_base
VYR_FLAT(void*) CSharp_new_c_datetime_base__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_datetime_base(); }); }
VYR_FLAT(void*) CSharp_new_c_datetime_base__SWIG_1(void* a) { if (is_null(a, "lmx::c_datetime_base const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_datetime_base(as<lmx::c_datetime_base>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_datetime_base(void* self) { destroy<lmx::c_datetime_base>(self); }

// lmx::c_decimal
VYR_FLAT(void*) CSharp_new_c_decimal__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_decimal(); }); }
VYR_FLAT(void*) CSharp_new_c_decimal__SWIG_1(void* a) { if (is_null(a, "lmx::c_decimal const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_decimal(as<lmx::c_decimal>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_decimal(void* self) { destroy<lmx::c_decimal>(self); }
VYR_FLAT(void*) CSharp_new_c_decimal__SWIG_2(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_decimal(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_decimal__SWIG_3(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_decimal(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_decimal__SWIG_4(std::int32_t a, std::int32_t b) { return guarded(+[](std::int32_t u, std::int32_t v) -> void* { return new lmx::c_decimal(u, v); }, a, b); }
VYR_FLAT(void*) CSharp_new_c_decimal__SWIG_5(double a, std::uint32_t b) { return guarded(+[](double u, std::uint32_t v) -> void* { return new lmx::c_decimal(u, v); }, a, b); }
VYR_FLAT(std::int32_t) CSharp_c_decimal_is_valid(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::c_decimal::is_valid(u); }, a); }
VYR_FLAT(void) CSharp_c_decimal_swap(void* self, void* a) { if (is_null(a, "lmx::c_decimal & type is null")) return; guarded(+[](void* s, void* u) { as<lmx::c_decimal>(s).swap(as<lmx::c_decimal>(u)); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_c_decimal_get_integral(void* self, void* a) { return guarded(+[](void* s, void* u) { return as<lmx::c_decimal>(s).get_integral(static_cast<bool*>(u)); }, self, a); }
VYR_FLAT(void) CSharp_c_decimal_set_integral(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_decimal>(s).set_integral(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_decimal_get_fractional(void* self, std::int32_t a, void* b) { return guarded(+[](void* s, std::int32_t u, void* v) { return static_cast<std::uint32_t>(as<lmx::c_decimal>(s).get_fractional(u, static_cast<bool*>(v))); }, self, a, b); }
VYR_FLAT(void) CSharp_c_decimal_set_fractional(void* self, std::uint32_t a, std::uint32_t b) { guarded(+[](void* s, std::uint32_t u, std::uint32_t v) { as<lmx::c_decimal>(s).set_fractional(u, v); }, self, a, b); }
VYR_FLAT(std::int32_t) CSharp_c_decimal_get_scaled(void* self, std::int32_t a, void* b) { return guarded(+[](void* s, std::int32_t u, void* v) { return as<lmx::c_decimal>(s).get_scaled(u, static_cast<bool*>(v)); }, self, a, b); }
VYR_FLAT(void) CSharp_c_decimal_set_scaled(void* self, std::int32_t a, std::int32_t b) { guarded(+[](void* s, std::int32_t u, std::int32_t v) { as<lmx::c_decimal>(s).set_scaled(u, v); }, self, a, b); }
VYR_FLAT(void) CSharp_c_decimal_set(void* self, double a, std::uint32_t b) { guarded(+[](void* s, double u, std::uint32_t v) { as<lmx::c_decimal>(s).set(u, v); }, self, a, b); }
VYR_FLAT(double) CSharp_c_decimal_get_as_float(void* self) { return guarded(+[](void* s) { return as<lmx::c_decimal>(s).get_as_float(); }, self); }
VYR_FLAT(char*) CSharp_c_decimal_get_as_string(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_decimal>(s).get_as_string()); }, self); }

// lmx::c_duration
VYR_FLAT(void*) CSharp_new_c_duration__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_duration(); }); }
VYR_FLAT(void*) CSharp_new_c_duration__SWIG_1(void* a) { if (is_null(a, "lmx::c_duration const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_duration(as<lmx::c_duration>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_duration(void* self) { destroy<lmx::c_duration>(self); }
VYR_FLAT(void*) CSharp_new_c_duration__SWIG_2(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_duration(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_duration__SWIG_3(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_duration(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_c_duration_is_valid__SWIG_0(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::c_duration::is_valid(u); }, a); }
VYR_FLAT(char*) CSharp_c_duration_get_as_string(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_duration>(s).get_as_string()); }, self); }
VYR_FLAT(std::int32_t) CSharp_c_duration_get_is_neg(void* self) { return guarded(+[](void* s) { return as<lmx::c_duration>(s).get_is_neg(); }, self); }
VYR_FLAT(void) CSharp_c_duration_set_is_neg(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_duration>(s).set_is_neg(to_bool(u)); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_duration_get_years(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_duration>(s).get_years()); }, self); }
VYR_FLAT(void) CSharp_c_duration_set_years(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_duration>(s).set_years(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_duration_get_months(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_duration>(s).get_months()); }, self); }
VYR_FLAT(void) CSharp_c_duration_set_months(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_duration>(s).set_months(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_duration_get_days(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_duration>(s).get_days()); }, self); }
VYR_FLAT(void) CSharp_c_duration_set_days(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_duration>(s).set_days(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_duration_get_hours(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_duration>(s).get_hours()); }, self); }
VYR_FLAT(void) CSharp_c_duration_set_hours(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_duration>(s).set_hours(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_duration_get_mins(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_duration>(s).get_mins()); }, self); }
VYR_FLAT(void) CSharp_c_duration_set_mins(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_duration>(s).set_mins(u); }, self, a); }
VYR_FLAT(float) CSharp_c_duration_get_secs(void* self) { return guarded(+[](void* s) { return as<lmx::c_duration>(s).get_secs(); }, self); }
VYR_FLAT(void) CSharp_c_duration_set_secs(void* self, float a) { guarded(+[](void* s, float u) { as<lmx::c_duration>(s).set_secs(u); }, self, a); }
VYR_FLAT(void) CSharp_c_duration_normalize(void* self) { guarded(+[](void* s) { as<lmx::c_duration>(s).normalize(); }, self); }

// lmx::c_empty
VYR_FLAT(void*) CSharp_new_c_empty__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_empty(); }); }
VYR_FLAT(void*) CSharp_new_c_empty__SWIG_1(void* a) { if (is_null(a, "lmx::c_empty const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_empty(as<lmx::c_empty>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_empty(void* self) { destroy<lmx::c_empty>(self); }

// lmx::c_gday
VYR_FLAT(void*) CSharp_new_c_gday__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_gday(); }); }
VYR_FLAT(void*) CSharp_new_c_gday__SWIG_1(void* a) { if (is_null(a, "lmx::c_gday const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_gday(as<lmx::c_gday>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_gday(void* self) { destroy<lmx::c_gday>(self); }
VYR_FLAT(void*) CSharp_new_c_gday__SWIG_2(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_gday(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_gday__SWIG_3(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_gday(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_c_gday_is_valid(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::c_gday::is_valid(u); }, a); }
VYR_FLAT(char*) CSharp_c_gday_get_as_string(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_gday>(s).get_as_string()); }, self); }
VYR_FLAT(std::int32_t) CSharp_c_gday_get_total_offset_mins(void* self) { return guarded(+[](void* s) { return as<lmx::c_gday>(s).get_total_offset_mins(); }, self); }
VYR_FLAT(void) CSharp_c_gday_set_total_offset_mins(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_gday>(s).set_total_offset_mins(u); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_c_gday_get_is_utc(void* self) { return guarded(+[](void* s) { return as<lmx::c_gday>(s).get_is_utc(); }, self); }
VYR_FLAT(void) CSharp_c_gday_set_is_utc(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_gday>(s).set_is_utc(to_bool(u)); }, self, a); }
VYR_FLAT(void) CSharp_c_gday_set_offset(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_gday>(s).set_offset(u, v); }, self, a, b); }
VYR_FLAT(void) CSharp_c_gday_set_offset_mins(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_gday>(s).set_offset_mins(u, v); }, self, a, b); }
VYR_FLAT(std::uint32_t) CSharp_c_gday_get_day(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_gday>(s).get_day()); }, self); }
VYR_FLAT(void) CSharp_c_gday_set_day(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_gday>(s).set_day(u); }, self, a); }

// lmx::c_gmonth
VYR_FLAT(void*) CSharp_new_c_gmonth__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_gmonth(); }); }
VYR_FLAT(void*) CSharp_new_c_gmonth__SWIG_1(void* a) { if (is_null(a, "lmx::c_gmonth const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_gmonth(as<lmx::c_gmonth>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_gmonth(void* self) { destroy<lmx::c_gmonth>(self); }
VYR_FLAT(void*) CSharp_new_c_gmonth__SWIG_2(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_gmonth(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_gmonth__SWIG_3(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_gmonth(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_c_gmonth_is_valid(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::c_gmonth::is_valid(u); }, a); }
VYR_FLAT(char*) CSharp_c_gmonth_get_as_string(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_gmonth>(s).get_as_string()); }, self); }
VYR_FLAT(std::int32_t) CSharp_c_gmonth_get_total_offset_mins(void* self) { return guarded(+[](void* s) { return as<lmx::c_gmonth>(s).get_total_offset_mins(); }, self); }
VYR_FLAT(void) CSharp_c_gmonth_set_total_offset_mins(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_gmonth>(s).set_total_offset_mins(u); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_c_gmonth_get_is_utc(void* self) { return guarded(+[](void* s) { return as<lmx::c_gmonth>(s).get_is_utc(); }, self); }
VYR_FLAT(void) CSharp_c_gmonth_set_is_utc(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_gmonth>(s).set_is_utc(to_bool(u)); }, self, a); }
VYR_FLAT(void) CSharp_c_gmonth_set_offset(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_gmonth>(s).set_offset(u, v); }, self, a, b); }
VYR_FLAT(void) CSharp_c_gmonth_set_offset_mins(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_gmonth>(s).set_offset_mins(u, v); }, self, a, b); }
VYR_FLAT(std::uint32_t) CSharp_c_gmonth_get_month(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_gmonth>(s).get_month()); }, self); }
VYR_FLAT(void) CSharp_c_gmonth_set_month(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_gmonth>(s).set_month(u); }, self, a); }

// lmx::c_gmonthday
VYR_FLAT(void*) CSharp_new_c_gmonthday__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_gmonthday(); }); }
VYR_FLAT(void*) CSharp_new_c_gmonthday__SWIG_1(void* a) { if (is_null(a, "lmx::c_gmonthday const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_gmonthday(as<lmx::c_gmonthday>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_gmonthday(void* self) { destroy<lmx::c_gmonthday>(self); }
VYR_FLAT(void*) CSharp_new_c_gmonthday__SWIG_2(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_gmonthday(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_gmonthday__SWIG_3(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_gmonthday(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_c_gmonthday_is_valid(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::c_gmonthday::is_valid(u); }, a); }
VYR_FLAT(char*) CSharp_c_gmonthday_get_as_string(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_gmonthday>(s).get_as_string()); }, self); }
VYR_FLAT(std::int32_t) CSharp_c_gmonthday_get_total_offset_mins(void* self) { return guarded(+[](void* s) { return as<lmx::c_gmonthday>(s).get_total_offset_mins(); }, self); }
VYR_FLAT(void) CSharp_c_gmonthday_set_total_offset_mins(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_gmonthday>(s).set_total_offset_mins(u); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_c_gmonthday_get_is_utc(void* self) { return guarded(+[](void* s) { return as<lmx::c_gmonthday>(s).get_is_utc(); }, self); }
VYR_FLAT(void) CSharp_c_gmonthday_set_is_utc(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_gmonthday>(s).set_is_utc(to_bool(u)); }, self, a); }
VYR_FLAT(void) CSharp_c_gmonthday_set_offset(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_gmonthday>(s).set_offset(u, v); }, self, a, b); }
VYR_FLAT(void) CSharp_c_gmonthday_set_offset_mins(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_gmonthday>(s).set_offset_mins(u, v); }, self, a, b); }
VYR_FLAT(std::uint32_t) CSharp_c_gmonthday_get_month(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_gmonthday>(s).get_month()); }, self); }
VYR_FLAT(void) CSharp_c_gmonthday_set_month(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_gmonthday>(s).set_month(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_gmonthday_get_day(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_gmonthday>(s).get_day()); }, self); }
VYR_FLAT(void) CSharp_c_gmonthday_set_day(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_gmonthday>(s).set_day(u); }, self, a); }

// lmx::c_gyear
VYR_FLAT(void*) CSharp_new_c_gyear__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_gyear(); }); }
VYR_FLAT(void*) CSharp_new_c_gyear__SWIG_1(void* a) { if (is_null(a, "lmx::c_gyear const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_gyear(as<lmx::c_gyear>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_gyear(void* self) { destroy<lmx::c_gyear>(self); }
VYR_FLAT(void*) CSharp_new_c_gyear__SWIG_2(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_gyear(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_gyear__SWIG_3(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_gyear(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_c_gyear_is_valid(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::c_gyear::is_valid(u); }, a); }
VYR_FLAT(char*) CSharp_c_gyear_get_as_string(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_gyear>(s).get_as_string()); }, self); }
VYR_FLAT(std::int32_t) CSharp_c_gyear_get_total_offset_mins(void* self) { return guarded(+[](void* s) { return as<lmx::c_gyear>(s).get_total_offset_mins(); }, self); }
VYR_FLAT(void) CSharp_c_gyear_set_total_offset_mins(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_gyear>(s).set_total_offset_mins(u); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_c_gyear_get_is_utc(void* self) { return guarded(+[](void* s) { return as<lmx::c_gyear>(s).get_is_utc(); }, self); }
VYR_FLAT(void) CSharp_c_gyear_set_is_utc(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_gyear>(s).set_is_utc(to_bool(u)); }, self, a); }
VYR_FLAT(void) CSharp_c_gyear_set_offset(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_gyear>(s).set_offset(u, v); }, self, a, b); }
VYR_FLAT(void) CSharp_c_gyear_set_offset_mins(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_gyear>(s).set_offset_mins(u, v); }, self, a, b); }
VYR_FLAT(std::int32_t) CSharp_c_gyear_get_year(void* self) { return guarded(+[](void* s) { return as<lmx::c_gyear>(s).get_year(); }, self); }
VYR_FLAT(void) CSharp_c_gyear_set_year(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_gyear>(s).set_year(u); }, self, a); }

// lmx::c_gyearmonth
VYR_FLAT(void*) CSharp_new_c_gyearmonth__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_gyearmonth(); }); }
VYR_FLAT(void*) CSharp_new_c_gyearmonth__SWIG_1(void* a) { if (is_null(a, "lmx::c_gyearmonth const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_gyearmonth(as<lmx::c_gyearmonth>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_gyearmonth(void* self) { destroy<lmx::c_gyearmonth>(self); }
VYR_FLAT(void*) CSharp_new_c_gyearmonth__SWIG_2(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_gyearmonth(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_gyearmonth__SWIG_3(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_gyearmonth(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_c_gyearmonth_is_valid(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::c_gyearmonth::is_valid(u); }, a); }
VYR_FLAT(char*) CSharp_c_gyearmonth_get_as_string(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_gyearmonth>(s).get_as_string()); }, self); }
VYR_FLAT(std::int32_t) CSharp_c_gyearmonth_get_total_offset_mins(void* self) { return guarded(+[](void* s) { return as<lmx::c_gyearmonth>(s).get_total_offset_mins(); }, self); }
VYR_FLAT(void) CSharp_c_gyearmonth_set_total_offset_mins(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_gyearmonth>(s).set_total_offset_mins(u); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_c_gyearmonth_get_is_utc(void* self) { return guarded(+[](void* s) { return as<lmx::c_gyearmonth>(s).get_is_utc(); }, self); }
VYR_FLAT(void) CSharp_c_gyearmonth_set_is_utc(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_gyearmonth>(s).set_is_utc(to_bool(u)); }, self, a); }
VYR_FLAT(void) CSharp_c_gyearmonth_set_offset(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_gyearmonth>(s).set_offset(u, v); }, self, a, b); }
VYR_FLAT(void) CSharp_c_gyearmonth_set_offset_mins(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_gyearmonth>(s).set_offset_mins(u, v); }, self, a, b); }
VYR_FLAT(std::int32_t) CSharp_c_gyearmonth_get_year(void* self) { return guarded(+[](void* s) { return as<lmx::c_gyearmonth>(s).get_year(); }, self); }
VYR_FLAT(void) CSharp_c_gyearmonth_set_year(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_gyearmonth>(s).set_year(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_gyearmonth_get_month(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_gyearmonth>(s).get_month()); }, self); }
VYR_FLAT(void) CSharp_c_gyearmonth_set_month(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_gyearmonth>(s).set_month(u); }, self, a); }

// lmx::c_pattern
VYR_FLAT(void*) CSharp_new_c_pattern(const char* a) { return guarded(+[](const char* u) -> void* { return new lmx::c_pattern(u); }, a); }
VYR_FLAT(void) CSharp_delete_c_pattern(void* self) { destroy<lmx::c_pattern>(self); }
VYR_FLAT(std::int32_t) CSharp_c_pattern_is_match__SWIG_0(void* self, const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](void* s, const char* u) { return as<lmx::c_pattern>(s).is_match(u); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_c_pattern_is_match__SWIG_1(void* self, const char16_t* a) { return guarded(+[](void* s, const char16_t* u) { return as<lmx::c_pattern>(s).is_match(wide(u)); }, self, a); }

// lmx::c_pattern_null
VYR_FLAT(void*) CSharp_new_c_pattern_null__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_pattern_null(); }); }
VYR_FLAT(void*) CSharp_new_c_pattern_null__SWIG_1(void* a) { if (is_null(a, "lmx::c_pattern_null const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_pattern_null(as<lmx::c_pattern_null>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_pattern_null(void* self) { destroy<lmx::c_pattern_null>(self); }
VYR_FLAT(std::int32_t) CSharp_c_pattern_null_is_match__SWIG_0(void* self, const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](void* s, const char* u) { return as<lmx::c_pattern_null>(s).is_match(u); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_c_pattern_null_is_match__SWIG_1(void* self, const char16_t* a) { return guarded(+[](void* s, const char16_t* u) { return as<lmx::c_pattern_null>(s).is_match(wide(u)); }, self, a); }

// lmx::c_time
VYR_FLAT(void*) CSharp_new_c_time__SWIG_0() { return guarded(+[]() -> void* { return new lmx::c_time(); }); }
VYR_FLAT(void*) CSharp_new_c_time__SWIG_1(void* a) { if (is_null(a, "lmx::c_time const & type is null")) return {}; return guarded(+[](void* u) -> void* { return new lmx::c_time(as<lmx::c_time>(u)); }, a); }
VYR_FLAT(void) CSharp_delete_c_time(void* self) { destroy<lmx::c_time>(self); }
VYR_FLAT(void*) CSharp_new_c_time__SWIG_2(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_time(u); }, a); }
VYR_FLAT(void*) CSharp_new_c_time__SWIG_3(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) -> void* { return new lmx::c_time(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_c_time_is_valid(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::c_time::is_valid(u); }, a); }
VYR_FLAT(char*) CSharp_c_time_get_as_string(void* self) { return guarded(+[](void* s) { return new_string(as<lmx::c_time>(s).get_as_string()); }, self); }
VYR_FLAT(std::int32_t) CSharp_c_time_get_total_offset_mins(void* self) { return guarded(+[](void* s) { return as<lmx::c_time>(s).get_total_offset_mins(); }, self); }
VYR_FLAT(void) CSharp_c_time_set_total_offset_mins(void* self, std::int32_t a) { guarded(+[](void* s, std::int32_t u) { as<lmx::c_time>(s).set_total_offset_mins(u); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_c_time_get_is_utc(void* self) { return guarded(+[](void* s) { return as<lmx::c_time>(s).get_is_utc(); }, self); }
VYR_FLAT(void) CSharp_c_time_set_is_utc(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_time>(s).set_is_utc(to_bool(u)); }, self, a); }
VYR_FLAT(void) CSharp_c_time_set_offset(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_time>(s).set_offset(u, v); }, self, a, b); }
VYR_FLAT(void) CSharp_c_time_set_offset_mins(void* self, std::int32_t a, std::uint32_t b) { guarded(+[](void* s, std::int32_t u, std::uint32_t v) { as<lmx::c_time>(s).set_offset_mins(u, v); }, self, a, b); }
VYR_FLAT(std::uint32_t) CSharp_c_time_get_hours(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_time>(s).get_hours()); }, self); }
VYR_FLAT(void) CSharp_c_time_set_hours(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_time>(s).set_hours(u); }, self, a); }
VYR_FLAT(std::uint32_t) CSharp_c_time_get_mins(void* self) { return guarded(+[](void* s) { return static_cast<std::uint32_t>(as<lmx::c_time>(s).get_mins()); }, self); }
VYR_FLAT(void) CSharp_c_time_set_mins(void* self, std::uint32_t a) { guarded(+[](void* s, std::uint32_t u) { as<lmx::c_time>(s).set_mins(u); }, self, a); }
VYR_FLAT(float) CSharp_c_time_get_secs(void* self) { return guarded(+[](void* s) { return as<lmx::c_time>(s).get_secs(); }, self); }
VYR_FLAT(void) CSharp_c_time_set_secs(void* self, float a) { guarded(+[](void* s, float u) { as<lmx::c_time>(s).set_secs(u); }, self, a); }

// com_vyrgraph_v2::XMLDocumentResult
VYR_FLAT(void*) CSharp_new_XMLDocumentResult(const char16_t* a, std::int32_t b) { return guarded(+[](const char16_t* u, std::int32_t v) -> void* { return new com_vyrgraph_v2::XMLDocumentResult(wide(u), static_cast<lmx::elmx_error>(v)); }, a, b); }
VYR_FLAT(void) CSharp_delete_XMLDocumentResult(void* self) { destroy<com_vyrgraph_v2::XMLDocumentResult>(self); }
VYR_FLAT(char16_t*) CSharp_XMLDocumentResult_getXmlDocument(void* self) { return guarded(+[](void* s) { return new_string(as<com_vyrgraph_v2::XMLDocumentResult>(s).getXmlDocument()); }, self); }
VYR_FLAT(std::int32_t) CSharp_XMLDocumentResult_getElmxError(void* self) { return guarded(+[](void* s) { return as<com_vyrgraph_v2::XMLDocumentResult>(s).getElmxError(); }, self); }

// com_vyrgraph_v2::Vyr
VYR_FLAT(std::int32_t) CSharp_Vyr_loadFile(void* self, const char16_t* a) { return guarded(+[](void* s, const char16_t* u) { return as<com_vyrgraph_v2::Vyr>(s).loadFile(wide(u)); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_Vyr_loadString(void* self, const char16_t* a) { return guarded(+[](void* s, const char16_t* u) { return as<com_vyrgraph_v2::Vyr>(s).loadString(wide(u)); }, self, a); }
VYR_FLAT(std::int32_t) CSharp_Vyr_writeFile(void* self, const char16_t* a) { return guarded(+[](void* s, const char16_t* u) { return as<com_vyrgraph_v2::Vyr>(s).writeFile(wide(u)); }, self, a); }

// com_vyrgraph_v2::ColorSpaceCMYKPlusN
VYR_FLAT(void*) CSharp_new_ColorSpaceCMYKPlusN__SWIG_2(const char* a, void* b) { return guarded(+[](const char* u, void* v) -> void* { return new com_vyrgraph_v2::ColorSpaceCMYKPlusN(u, static_cast<lmx::elmx_error*>(v)); }, a, b); }
VYR_FLAT(void*) CSharp_new_ColorSpaceCMYKPlusN__SWIG_3(const char* a, std::uint32_t b, void* c) { return guarded(+[](const char* u, std::uint32_t v, void* w) -> void* { return new com_vyrgraph_v2::ColorSpaceCMYKPlusN(u, v, static_cast<lmx::elmx_error*>(w)); }, a, b, c); }

// lmx
VYR_FLAT(char*) CSharp_convert_to_narrow__SWIG_0(const char16_t* a) { return guarded(+[](const char16_t* u) { return new_string(lmx::convert_to_narrow(wide(u))); }, a); }
VYR_FLAT(char16_t*) CSharp_convert_to_wide__SWIG_0(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return new_string(lmx::convert_to_wide(u)); }, a); }
VYR_FLAT(std::int32_t) CSharp_fraction_digits(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::fraction_digits(u); }, a); }
VYR_FLAT(const char*) CSharp_get_error_description(std::int32_t a) { return guarded(+[](std::int32_t u) { return lmx::get_error_description(static_cast<lmx::elmx_error>(u)); }, a); }
VYR_FLAT(std::int32_t) CSharp_is_max_length_ok(const char* a, std::uint32_t b) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u, std::uint32_t v) { return lmx::is_max_length_ok(u, v); }, a, b); }
VYR_FLAT(std::int32_t) CSharp_is_min_length_ok(const char* a, std::uint32_t b) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u, std::uint32_t v) { return lmx::is_min_length_ok(u, v); }, a, b); }
VYR_FLAT(std::int32_t) CSharp_is_valid_bool(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::is_valid_bool(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_is_valid_float(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::is_valid_float(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_is_valid_integer(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::is_valid_integer(u); }, a); }
VYR_FLAT(std::uint32_t) CSharp_length(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return static_cast<std::uint32_t>(lmx::length(u)); }, a); }
VYR_FLAT(std::int32_t) CSharp_stringncompare(const char* a, const char* b, std::uint32_t c, std::uint32_t d) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u, const char* v, std::uint32_t w, std::uint32_t x) { return lmx::stringncompare(u, v, w, x); }, a, b, c, d); }
VYR_FLAT(std::int32_t) CSharp_total_digits(const char* a) { if (is_null(a, k_null_string)) return {}; return guarded(+[](const char* u) { return lmx::total_digits(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_xisalnum(std::int32_t a) { return guarded(+[](std::int32_t u) { return lmx::xisalnum(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_xisalpha(std::int32_t a) { return guarded(+[](std::int32_t u) { return lmx::xisalpha(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_xisdigit(std::int32_t a) { return guarded(+[](std::int32_t u) { return lmx::xisdigit(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_xisprint(std::int32_t a) { return guarded(+[](std::int32_t u) { return lmx::xisprint(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_xisspace(std::int32_t a) { return guarded(+[](std::int32_t u) { return lmx::xisspace(u); }, a); }
VYR_FLAT(std::int32_t) CSharp_xisxdigit(std::int32_t a) { return guarded(+[](std::int32_t u) { return lmx::xisxdigit(u); }, a); }

// constants
VYR_FLAT(std::int32_t) CSharp_LMXNULL_get() { return lmx::LMXNULL; }
VYR_FLAT(std::int32_t) CSharp_LMX_ATOFLOAT_MODE_get() { return lmx::LMX_ATOFLOAT_MODE; }
VYR_FLAT(std::int32_t) CSharp_LMX_ATOFLOAT_MODE_DEFAULT_get() { return lmx::LMX_ATOFLOAT_MODE_DEFAULT; }
VYR_FLAT(std::int32_t) CSharp_LMX_ATOFLOAT_MODE_USE_FACET_get() { return lmx::LMX_ATOFLOAT_MODE_USE_FACET; }
VYR_FLAT(std::int32_t) CSharp_LMX_ATOFLOAT_MODE_IOSTREAM_get() { return lmx::LMX_ATOFLOAT_MODE_IOSTREAM; }
VYR_FLAT(std::int32_t) CSharp_LMX_ATOFLOAT_MODE_SIMPLE_get() { return lmx::LMX_ATOFLOAT_MODE_SIMPLE; }
VYR_FLAT(std::int32_t) CSharp_LMX_NARROW_UNICODE_STRINGS_get() { return lmx::LMX_NARROW_UNICODE_STRINGS; }
VYR_FLAT(std::int32_t) CSharp_LMX_USE_EXCEPTIONS_get() { return lmx::LMX_USE_EXCEPTIONS; }
VYR_FLAT(std::int32_t) CSharp_LMX_VALIDATE_PATTERNS_get() { return lmx::LMX_VALIDATE_PATTERNS; }
VYR_FLAT(std::int32_t) CSharp_LMX_WANT_DECIMAL_FLOAT_SET_get() { return lmx::LMX_WANT_DECIMAL_FLOAT_SET; }
VYR_FLAT(std::int32_t) CSharp_LMX_WANT_DLL_get() { return lmx::LMX_WANT_DLL; }
VYR_FLAT(std::int32_t) CSharp_LMX_WANT_GEN_IMPORT_DLL_get() { return lmx::LMX_WANT_GEN_IMPORT_DLL; }
VYR_FLAT(std::int32_t) CSharp_LMX_XML_STRICT_get() { return lmx::LMX_XML_STRICT; }

}  // extern "C"

}  // namespace com_vyrgraph_v2
