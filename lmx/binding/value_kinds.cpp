// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/value_kinds.h"

#include <charconv>
#include <concepts>
#include <iterator>
#include <string>
#include <type_traits>
#include <utility>

#include "lmx/values/big_int.h"
#include "lmx/values/unicode.h"
#include "lmx/writer/as_xml.h"

namespace lmx {
namespace {

template <class T>
void assign_value(void* target, const void* source) {
    *static_cast<T*>(target) = *static_cast<const T*>(source);
}

template <class T>
void swap_values(void* one, void* other) {
    using std::swap;
    if constexpr (requires(T & value) { value.swap(value); }) {
        static_cast<T*>(one)->swap(*static_cast<T*>(other));
    } else {
        swap(*static_cast<T*>(one), *static_cast<T*>(other));
    }
}

template <bool (*IsValid)(const std::string&)>
void look_at_form(s_read_value& value) {
    value.is_valid = IsValid(value.text);
}
void look_at_nothing(s_read_value&) {}
void look_at_number(s_read_value& value) {
    value.is_valid = is_valid_float(value.text);
    value.number = text_to_double(value.text);
}
void look_at_datetime(s_read_value& value) { value.is_valid = c_datetime::is_valid(value.text, &value.has_zone); }
void look_at_enumerated(s_read_value& value) { value.literal = value.facets->enumeration->find(value.text); }

template <class T, T (*Convert)(const std::string&)>
void store_converted(const s_read_value& value, void* target) {
    *static_cast<T*>(target) = Convert(value.text);
}
void store_text(const s_read_value& value, void* target) {
    vtostring(*static_cast<std::u16string*>(target), value.text);
}
void store_number(const s_read_value& value, void* target) { *static_cast<double*>(target) = value.number; }
void store_datetime(const s_read_value& value, void* target) {
    auto& stored = *static_cast<c_datetime*>(target);
    stored = value.text;
    // An offset of zero prints as no zone, unless it is that of "Z": the value could not be read again.
    const bool needs_zone = value.facets != nullptr && value.facets->pattern_takes_zoned;
    if (needs_zone && value.has_zone && stored.get_total_offset_mins() == 0) stored.set_is_utc(true);
}
void store_binary(const s_read_value& value, void* target) {
    static_cast<c_binary*>(target)->from_base64(value.text);
}
void store_enumerated(const s_read_value& value, void* target) {
    auto& stored = *static_cast<c_enumerated*>(target);
    if (value.literal != nullptr || value.text.empty()) {
        stored.set(value.literal);
    } else {
        stored.set_odd(convert_to_wide(value.text));
    }
}

void append(c_output& out, const std::u16string& value) { append_as_xml(out, std::u16string_view(value)); }
void append(c_output& out, const c_enumerated& value) { append_as_xml(out, std::u16string_view(value.get())); }
void append(c_output& out, double value) { append_as_xml(out, value); }
void append(c_output& out, bool value) { out.append(std::string_view(value ? "true" : "false")); }
void append(c_output& out, const c_datetime& value) {
    std::string& text = out.get_scratch();
    value.append_to(&text);
    out.append(std::string_view(text));
}
void append(c_output& out, const c_binary& value) {
    std::string& text = out.get_scratch();
    value.append_base64(&text);
    out.append_long(text);
}
template <std::integral Integer>
void append(c_output& out, Integer value) {
    constexpr std::size_t most_digits = 12;
    char* const at = out.room(most_digits);
    out.advance(std::to_chars(at, at + most_digits, value).ptr);
}

template <class Value>
void print(c_output& out, const void* value) {
    append(out, *static_cast<const Value*>(value));
}

template <class T>
constexpr s_value_kind row(void (*look)(s_read_value&), void (*store)(const s_read_value&, void*)) {
    constexpr bool is_text = std::is_same_v<T, std::u16string> || std::is_same_v<T, c_enumerated>;
    constexpr bool lies_in_slot = std::is_arithmetic_v<T> || std::is_same_v<T, c_enumerated>;
    return {k_stored_type<T>, is_text, lies_in_slot, assign_value<T>, swap_values<T>, look, store, print<T>};
}

/// In the order of `value_kind`.
constexpr s_value_kind k_kinds[] = {
    {},
    row<std::u16string>(look_at_nothing, store_text),
    row<c_enumerated>(look_at_enumerated, store_enumerated),
    row<bool>(look_at_form<is_valid_bool>, store_converted<bool, text_to_bool>),
    row<double>(look_at_number, store_number),
    row<std::int32_t>(look_at_form<is_valid_integer>, store_converted<std::int32_t, text_to_int>),
    row<std::uint32_t>(look_at_form<is_valid_integer>, store_converted<std::uint32_t, text_to_unsigned>),
    row<std::uint8_t>(look_at_form<is_valid_integer>, store_converted<std::uint8_t, text_to_byte>),
    row<c_datetime>(look_at_datetime, store_datetime),
    row<c_binary>(look_at_form<c_binary::is_valid_base64>, store_binary),
};
static_assert(std::size(k_kinds) == static_cast<std::size_t>(value_kind::binary) + 1);

}  // namespace

const s_value_kind& kind_of(value_kind kind) { return k_kinds[static_cast<std::size_t>(kind)]; }

void print_value(const s_item& item, const void* value, std::string* text) {
    c_output out(*text);
    kind_of(item).print(out, value);
    out.flush();
}

bool c_read_checks::is_matched(const s_facets& facets) const {
    // The pattern engine is quadratic on texts of the wrong form. It gives up on long ones, which counts as a match;
    // so do they here, at a length that costs nothing yet.
    constexpr std::size_t longest_odd_text = 128;
    return facets.pattern == nullptr || (m_value.has_zone && facets.pattern_takes_zoned) ||
           (!m_value.is_valid && m_value.text.size() > longest_odd_text) || facets.pattern().is_match(m_value.text);
}

bool c_read_checks::is_too_short(const s_facets& facets) const {
    return !is_min_length_ok(m_value.text, facets.minimum_length);
}

bool c_read_checks::is_too_long(const s_facets& facets) const {
    return !is_max_length_ok(m_value.text, facets.maximum_length);
}

// Integers are compared as text, so that one of any length gets the right verdict.

bool c_read_checks::is_below(const s_facets& facets) const {
    if (m_kind == value_kind::number) return facets.is_below(m_value.number);
    if (facets.minimum_integer == nullptr) return false;
    const c_big_int minimum(facets.minimum_integer);
    return facets.minimum_exclusive ? m_value.text <= minimum : m_value.text < minimum;
}

bool c_read_checks::is_above(const s_facets& facets) const {
    if (m_kind == value_kind::number) return facets.is_above(m_value.number);
    if (facets.maximum_integer == nullptr) return false;
    const c_big_int maximum(facets.maximum_integer);
    return facets.maximum_exclusive ? m_value.text >= maximum : m_value.text > maximum;
}

}  // namespace lmx
