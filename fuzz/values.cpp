// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Any text as a value of every type, and any bytes as a native value: no text may harm, what a check lets pass must
/// come back from its printed form, and comparisons must agree with each other.

#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <sstream>
#include <string>

#include "fuzz/support.h"
#include "lmx/lmx.h"

namespace {

using namespace vyr_fuzz;

template <class T>
std::string streamed(const T& value) {
    std::ostringstream stream;
    stream << value;
    return std::move(stream).str();
}

/// `T` holds what its text says: assigning takes what constructing takes, and what is printed is printed again.
template <class T>
void check_calendar(const std::string& text, const std::string& other) {
    T value(text);
    T assigned;
    assigned = text;
    require(value.get_as_string() == streamed(value), "two printed forms of", text);
    require(T(value) == value || value != value, "a copy differs from", text);  // seconds may be no number
    bool has_zone = false;
    if (!T::is_valid(text, &has_zone)) return;
    require(T::is_valid(text), "two checks of", text);
    require(assigned.get_as_string() == value.get_as_string(), "another value when assigned:", text);
    const std::string printed = value.get_as_string();
    if (T::is_valid(printed)) {
        require(T(printed).get_as_string() == printed, "printed otherwise a second time:", text);
    }
    const T second(other);
    require((value < second) == (second > value), "an order that turns:", text);
    require(!(value < second && second < value), "less both ways:", text);
    value.set_offset(5, 30);
    require(value.get_total_offset_mins() == 330, "another offset:", text);
}

void check_duration(const std::string& text, const std::string& other) {
    lmx::c_duration value(text);
    require(value.get_as_string() == streamed(value), "two printed forms of", text);
    require(lmx::c_duration::is_valid(text) == lmx::c_duration::is_valid(text.c_str()) ||
                text.find('\0') != std::string::npos,
            "two checks of", text);
    if (!lmx::c_duration::is_valid(text)) return;
    const std::string printed = value.get_as_string();
    if (lmx::c_duration::is_valid(printed)) {
        require(lmx::c_duration(printed).get_as_string() == printed, "printed otherwise a second time:", text);
    }
    const lmx::c_duration second(other);
    // Magnitudes alone are ordered: of two that differ in their signs only each is the lesser.
    if (value.get_is_neg() == second.get_is_neg()) {
        require((value < second) == (second > value), "an order that turns:", text);
    }
    value.normalize();
    const std::string normal = value.get_as_string();
    value.normalize();
    require(value.get_as_string() == normal, "normal only at the second time:", text);
}

void check_decimal(const std::string& text, const std::string& other, int scale) {
    const lmx::c_decimal value(text);
    const lmx::c_decimal second(other);
    require(value == value && value >= value && !(value > value), "not equal to itself:", text);
    require(!(value > second && second > value), "greater both ways:", text);
    bool overflow = false;
    static_cast<void>(value.get_integral(&overflow));
    static_cast<void>(value.get_fractional(scale, &overflow));
    static_cast<void>(value.get_scaled(scale, &overflow));
    lmx::c_decimal scaled;
    scaled.set_scaled(-1234567, scale);
    require(scaled == lmx::c_decimal(scaled.get_as_string()), "a scaled number is printed as another:", text);
    if (std::abs(scale) <= 4) {
        require(scaled.get_scaled(scale) == -1234567, "another number comes back from its scale");
    }
    lmx::c_decimal parts(value);
    parts.set_integral(-17);
    require(parts.get_integral() == -17, "another part before the point:", text);
    // Text with two signs leaves one of them in the part before the point, and isn't printed as it was read.
    if (!lmx::c_decimal::is_valid(text)) return;
    require(lmx::c_decimal(value.get_as_string()) == value, "printed as another number:", text);
    const double number = value.get_as_float();
    const double expected = lmx::text_to_double(text);
    require(number == expected || std::fabs(number - expected) <= std::fabs(expected) * 1e-12 ||
                std::fabs(expected) < 1e-300,
            "another number than its text:", text);
}

void check_big_int(const std::string& text, const std::string& other) {
    const lmx::c_big_int value(text);
    const lmx::c_big_int second(other);
    const std::string canonical = value.get_as_string();
    require(lmx::is_valid_integer(canonical), "no integer is printed for", text);
    require(lmx::c_big_int(canonical) == value, "printed as another number:", text);
    require((value < second) == (second > value) && (value == second) == (second == value),
            "an order that turns:", text);
    if (lmx::is_valid_integer(other)) {
        // The other text may have zeros ahead and a sign, which only its number hasn't.
        require((value == other) == (value == second), "a text compares otherwise than its number:", other);
        require((value > other) == (value > second), "a text is passed otherwise than its number:", other);
    }
    bool overflow = false;
    const std::int32_t native = value.get(&overflow);
    if (!overflow) require(lmx::c_big_int(native) == value, "another native number:", text);
}

void check_binary(const std::string& text) {
    lmx::c_binary bytes(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    std::ostringstream stream;
    bytes.out_hex(stream);
    const std::string hex = std::move(stream).str();
    lmx::c_binary back;
    back.from_hex(hex);
    require(lmx::c_binary::is_valid_hex(hex) && back == bytes, "bytes don't come back from hexadecimal digits");
    std::string base64;
    bytes.append_base64(&base64);
    back.from_base64(base64);
    require(lmx::c_binary::is_valid_base64(base64) && back == bytes, "bytes don't come back from base64");
    require(bytes.equal(reinterpret_cast<const unsigned char*>(text.data()), text.size()), "other bytes than given");
    // The text as digits, right or wrong.
    back.from_hex(text);
    if (lmx::c_binary::is_valid_hex(text)) require(back.size() * 2 == text.size(), "bytes are missing of", text);
    back.from_base64(text);
    if (lmx::c_binary::is_valid_base64(text)) {
        base64.clear();
        back.append_base64(&base64);
        lmx::c_binary again;
        again.from_base64(base64);
        require(again == back, "other bytes at the second time:", text);
    }
}

template <class Number>
void check_printed(Number number) {
    std::string text;
    lmx::append_as_xml(text, number);
    require(lmx::is_valid_float(text) && text.size() <= lmx::k_number_text_size, "no number is printed:", text);
    const auto back = static_cast<Number>(lmx::text_to_double(text));
    std::string again;
    lmx::append_as_xml(again, back);
    require(again == text, "printed otherwise a second time:", text);
    if (std::isnan(number)) return;
    const Number bound = std::is_same_v<Number, double> ? Number(1e-13) : Number(1e-6);
    require(number == back || !std::isfinite(back) || std::fabs(number) < std::numeric_limits<Number>::min() ||
                std::fabs(number - back) <= std::fabs(number) * bound,
            "far from its text:", text);
}

/// What the integers of a text must be, digit by digit; a number of more than 18 digits stays too great for any.
void check_integers(const std::string& text) {
    static_cast<void>(lmx::text_to_int(text));
    static_cast<void>(lmx::text_to_byte(text));
    static_cast<void>(lmx::text_to_unsigned(text));
    if (!lmx::is_valid_integer(text)) return;
    constexpr std::uint64_t k_enough = 100'000'000'000'000'000;
    std::uint64_t magnitude = 0;
    for (const char c : text) {
        if (lmx::xisdigit(c) && magnitude < k_enough)
            magnitude = magnitude * 10 + static_cast<std::uint64_t>(c - '0');
    }
    const std::uint64_t value = text[0] == '-' ? 0 - magnitude : magnitude;
    const bool is_great = magnitude > std::numeric_limits<std::uint32_t>::max();
    const auto low = static_cast<std::uint32_t>(value);
    require(lmx::text_to_unsigned(text) == (is_great ? std::numeric_limits<std::uint32_t>::max() : low),
            "another unsigned number:", text);
    if (magnitude >= k_enough) return;
    require(lmx::text_to_int(text) == static_cast<std::int32_t>(low), "another signed number:", text);
    require(lmx::text_to_byte(text) == static_cast<std::uint8_t>(low), "another byte:", text);
}

void check_scalars(const std::string& text) {
    static_cast<void>(lmx::is_valid_bool(text));
    require(lmx::total_digits(text) >= lmx::fraction_digits(text), "more digits behind the point than in all:", text);
    if (!lmx::is_valid_float(text) || text == "INF" || text == "-INF" || text == "NaN") return;
    // No locale is ever set here, so that the C library reads points.
    const double expected = std::strtod(text.c_str(), nullptr);
    require(std::bit_cast<std::uint64_t>(lmx::text_to_double(text)) == std::bit_cast<std::uint64_t>(expected),
            "another number than the C library's:", text);
}

void check_unicode(const std::string& text, const std::u16string& wide) {
    const std::u16string widened = lmx::convert_to_wide(text);
    static_cast<void>(lmx::length(text));
    const std::string narrow = lmx::convert_to_narrow(wide);
    if (lmx::is_well_formed(wide)) {
        require(lmx::convert_to_wide(narrow) == wide, "well-formed text doesn't come back");
        const std::size_t count = lmx::length(narrow);
        require(lmx::is_min_length_ok(narrow, count) && lmx::is_max_length_ok(narrow, count) &&
                    !lmx::is_min_length_ok(narrow, count + 1) &&
                    (count == 0 || !lmx::is_max_length_ok(narrow, count - 1)),
                "two lengths of", narrow);
    }
    std::string escaped;
    std::string same;
    lmx::append_as_xml(escaped, std::u16string_view(wide));
    lmx::append_as_xml(same, std::string_view(narrow));
    if (lmx::is_well_formed(wide)) require(escaped == same, "narrow and wide text are escaped differently:", narrow);
    require(escaped.find_first_of("<\"'") == std::string::npos, "markup is left in", escaped);
}

/// A pattern is the schema's, its texts are strangers'.
void check_pattern(const std::string& text) {
    static const lmx::c_pattern pattern(".+T.+(Z|[+\\-].+)");
    const std::u16string wide = lmx::convert_to_wide(text);
    if (lmx::convert_to_narrow(wide) != text) return;
    require(pattern.is_match(text) == pattern.is_match(wide), "narrow and wide text match differently:", text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzedDataProvider input(bytes, size);
    const auto bits = input.ConsumeIntegral<std::uint64_t>();
    const int scale = input.ConsumeIntegralInRange(-40, 40);
    const std::string other = input.ConsumeRandomLengthString(64);
    const std::string text = input.ConsumeRemainingBytesAsString();
    // What a document holds has no zero, which would end a text here and not there.
    if (text.find('\0') != std::string::npos || other.find('\0') != std::string::npos) return 0;
    std::u16string wide(text.size() / 2, u'\0');
    std::memcpy(wide.data(), text.data(), wide.size() * 2);

    check_calendar<lmx::c_datetime>(text, other);
    check_calendar<lmx::c_date>(text, other);
    check_calendar<lmx::c_time>(text, other);
    check_calendar<lmx::c_gyearmonth>(text, other);
    check_calendar<lmx::c_gyear>(text, other);
    check_calendar<lmx::c_gmonthday>(text, other);
    check_calendar<lmx::c_gday>(text, other);
    check_calendar<lmx::c_gmonth>(text, other);
    check_duration(text, other);
    check_decimal(text, other, scale);
    check_big_int(text, other);
    check_binary(text);
    check_printed(std::bit_cast<double>(bits));
    check_printed(std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
    check_integers(text);
    check_scalars(text);
    check_unicode(text, wide);
    check_pattern(text);
    return 0;
}
