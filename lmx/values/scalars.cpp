// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Checks and conversions of booleans, numbers and names.

#include "lmx/values/scalars.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string_view>
#include <system_error>

#include "lmx/values/characters.h"
#include "lmx/values/unicode.h"

namespace lmx {

namespace {

/// The end of a text as the cursor sees it: a null inside the text is no end.
const char* end_of(const std::string& text) { return text.c_str() + text.size(); }

int count_digits(std::string_view text) {
    return static_cast<int>(std::count_if(text.begin(), text.end(), [](char c) { return xisdigit(c); }));
}

/// Whether a number that no double holds, as from_chars takes it, is too large for one rather than too small.
bool is_too_large(std::string_view number, bool is_hexadecimal) {
    const std::size_t end = std::min(number.find_first_of(is_hexadecimal ? "pP" : "eE"), number.size());
    const std::size_t point = std::min(number.find('.'), end);
    std::int64_t exponent = 0;
    std::string_view written = number.substr(end).substr(end < number.size() ? 1 : 0);
    if (written.starts_with('+')) written.remove_prefix(1);
    const auto error = std::from_chars(written.data(), written.data() + written.size(), exponent).ec;
    if (error == std::errc::result_out_of_range) return written[0] != '-';
    const auto places = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(number.find_first_not_of("0."));
    return exponent > -places * (is_hexadecimal ? 4 : 1);
}

/// The NaN with the number that its brackets hold, if they do, in its lowest bits.
double nan_of(std::string_view word) {
    std::uint64_t payload = 0;
    if (word.ends_with(')')) {
        std::string_view digits = word.substr(4, word.size() - 5);
        int base = 10;
        if (digits.starts_with('0')) base = digits.starts_with("0x") || digits.starts_with("0X") ? 16 : 8;
        if (base == 16) digits.remove_prefix(2);
        const char* const last = digits.data() + digits.size();
        const auto [end, error] = std::from_chars(digits.data(), last, payload, base);
        if (error == std::errc::result_out_of_range) payload = UINT64_MAX;
        if (end != last) payload = 0;
    }
    return std::bit_cast<double>(0x7FF8000000000000 | (payload & 0x7FFFFFFFFFFFF));
}

/// What strtod of glibc makes of the text in the "C" locale, bit for bit and on every system: the last word on odd
/// text and on numbers out of range.
double leading_number(const std::string& text) {
    const char* at = text.c_str();
    while (xisspace(*at)) ++at;
    const bool is_negative = *at == '-';
    skip_sign(&at);
    if (*at == '-') return 0.0;  // which from_chars would take
    const bool is_hexadecimal =
        *at == '0' && (at[1] == 'x' || at[1] == 'X') && xisxdigit(at[2] == '.' ? at[3] : at[2]);
    if (is_hexadecimal) at += 2;
    const auto format = is_hexadecimal ? std::chars_format::hex : std::chars_format::general;
    std::string_view number(at, static_cast<std::size_t>(end_of(text) - at));
    number = number.substr(0, number.find("+-"));  // which from_chars takes before a hexadecimal number's exponent
    double size = 0.0;
    const auto [end, error] = std::from_chars(at, at + number.size(), size, format);
    if (error == std::errc::invalid_argument) return 0.0;
    number = std::string_view(at, static_cast<std::size_t>(end - at));
    if (error == std::errc::result_out_of_range) size = is_too_large(number, is_hexadecimal) ? HUGE_VAL : 0.0;
    if (std::isnan(size)) size = nan_of(number);
    return is_negative ? -size : size;
}

constexpr double k_powers[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// The digits without their point and the power of ten are doubles exactly, so that their quotient, rounded once, is
/// the nearest double.
double to_decimal(bool is_negative, std::uint64_t digits, std::ptrdiff_t places) {
    const double size = static_cast<double>(digits) / k_powers[places];
    return is_negative ? -size : size;
}

/// A number that ends within the eight bytes at `at`, in which it stands as in a register: null if it doesn't.
const char* take_decimal_of_eight(const char* at, std::uint64_t* digits, std::ptrdiff_t* places) {
    constexpr std::uint64_t ones = 0x0101010101010101;
    std::uint64_t bytes = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&bytes, at, sizeof bytes);
    } else {
        for (int i = 0; i < 8; ++i) bytes |= std::uint64_t{static_cast<unsigned char>(at[i])} << 8 * i;
    }
    // Digits are below ten now, and what isn't one has its highest bit set in the sum or had it before.
    bytes ^= '0' * ones;
    std::uint64_t others = (((bytes & 0x7F * ones) + 0x76 * ones) | bytes) & 0x80 * ones;
    if (others == 0) return nullptr;
    int size = std::countr_zero(others) / 8;
    int count = size;
    if (at[size] == '.') {
        others &= others - 1;
        if (others == 0) return nullptr;
        const std::uint64_t ahead = (std::uint64_t{1} << 8 * size) - 1;
        bytes = (bytes & ahead) | (bytes >> 8 & ~ahead);
        const int point = size;
        size = std::countr_zero(others) / 8;
        count = size - 1;
        *places = count - point;
    }
    if (count == 0) return nullptr;
    // Zeros ahead of them make them eight; then pairs, fours and all are put together.
    bytes <<= 8 * (8 - count);
    bytes = bytes * 10 + (bytes >> 8);
    constexpr std::uint64_t pairs = 0x000000FF000000FF;
    *digits = ((bytes & pairs) * (100 + (1000000ULL << 32)) + (bytes >> 16 & pairs) * (1 + (10000ULL << 32))) >> 32;
    return at + size;
}

}  // namespace

const char* take_short_decimal(const char* text, const char* end, double* value) {
    constexpr std::ptrdiff_t most_digits = 15;
    static_assert(std::size(k_powers) == most_digits + 1);
    const bool is_negative = text != end && *text == '-';
    const char* at = is_negative ? text + 1 : text;
    std::uint64_t digits = 0;
    std::ptrdiff_t places = 0;
    if (end - at >= 8) {
        if (const char* const behind = take_decimal_of_eight(at, &digits, &places)) {
            *value = to_decimal(is_negative, digits, places);
            return behind;
        }
        places = 0;
    }
    // One more than there may be, and the point, so that a longer number is seen.
    const char* const last = end - at > most_digits + 2 ? at + most_digits + 2 : end;
    const char* const start = at;
    const auto take_digits = [&] {
        for (; at != last; ++at) {
            const auto digit = static_cast<unsigned char>(*at - '0');
            if (digit > 9) break;
            digits = digits * 10 + digit;
        }
    };
    take_digits();
    std::ptrdiff_t count = at - start;
    if (at != last && *at == '.') {
        const char* const point = at++;
        take_digits();
        places = at - point - 1;
        count += places;
    }
    if (count == 0 || count > most_digits) return nullptr;
    *value = to_decimal(is_negative, digits, places);
    return at;
}

bool is_valid_bool(const std::string& text) {
    return text == "true" || text == "1" || text == "false" || text == "0";
}

bool is_valid_float(const std::string& text) {
    const char* cursor = text.c_str();
    skip_sign(&cursor);
    if (skip_decimal(&cursor) == 0) return text == "INF" || text == "-INF" || text == "NaN";
    if (*cursor == 'e' || *cursor == 'E') {
        ++cursor;
        skip_sign(&cursor);
        if (skip_digits(&cursor) == 0) return false;
    }
    return cursor == end_of(text);
}

bool is_valid_integer(const std::string& text) {
    const char* cursor = text.c_str();
    skip_sign(&cursor);
    return skip_digits(&cursor) > 0 && cursor == end_of(text);
}

int total_digits(const std::string& text) { return count_digits(text); }

int fraction_digits(const std::string& text) {
    const std::size_t point = text.find('.');
    return point == std::string::npos ? 0 : count_digits(std::string_view(text).substr(point));
}

double text_to_double(const std::string& text) {
    const char* first = text.data();
    const char* const last = first + text.size();
    if (double value = 0.0; take_short_decimal(first, last, &value) == last) return value;
    if (text.size() > 1 && *first == '+') ++first;  // which from_chars refuses
    // A number that from_chars takes whole is the C library's, bit for bit. It would take words too: not those.
    const char* const digits = first != last && *first == '-' && first == text.data() ? first + 1 : first;
    if (digits != last && (xisdigit(*digits) || *digits == '.')) {
        double value = 0.0;
        const auto [end, error] = std::from_chars(first, last, value);
        if (end == last && error == std::errc()) return value;
    }
    if (text == "NaN") return 0.0 / float_zero();
    if (text == "INF") return 1.0 / float_zero();
    if (text == "-INF") return -1.0 / float_zero();
    return leading_number(text);
}

std::int32_t text_to_int(const std::string& text) {
    return static_cast<std::int32_t>(std::strtoll(text.c_str(), nullptr, 10));
}

std::uint8_t text_to_byte(const std::string& text) { return static_cast<std::uint8_t>(text_to_int(text)); }

std::uint32_t text_to_unsigned(const std::string& text) {
    // As where an unsigned long has 32 bits: what passes them is held at the greatest number, whatever its sign.
    const char* start = text.c_str();
    while (xisspace(*start)) ++start;
    const bool is_negative = *start == '-';
    const std::uint64_t value = std::strtoull(start, nullptr, 10);
    const std::uint64_t magnitude = is_negative ? 0 - value : value;
    return magnitude > UINT32_MAX ? UINT32_MAX : static_cast<std::uint32_t>(value);
}

bool text_to_bool(const std::string& text) { return text == "true" || text == "1"; }

elmx_must_understand bool_must_understand(const std::string& text) {
    if (!is_valid_bool(text)) return ELMX_MUST_UNDERSTAND_UNKNOWN;
    return text_to_bool(text) ? ELMX_MUST_UNDERSTAND_YES : ELMX_MUST_UNDERSTAND_NO;
}

double float_zero() {
    static volatile double zero = 0.0;
    return zero;
}

void bswap(void* one, void* other, std::size_t size) {
    auto* const bytes = static_cast<unsigned char*>(one);
    std::swap_ranges(bytes, bytes + size, static_cast<unsigned char*>(other));
}

std::string& make_qname(std::string& target, const std::string& text, const std::string&, const std::string&) {
    return target = text;
}

std::u16string& make_qname(std::u16string& target, const std::string& text, const std::string&, const std::string&) {
    return vtostring(target, text);
}

ct_qname<std::string>& make_qname(ct_qname<std::string>& target, const std::string&, const std::string& ns,
                                  const std::string& name) {
    target.m_namespace = ns;
    target.m_name = name;
    return target;
}

ct_qname<std::u16string>& make_qname(ct_qname<std::u16string>& target, const std::string&, const std::string& ns,
                                     const std::string& name) {
    target.m_namespace = ns;
    vtostring(target.m_name, name);
    return target;
}

}  // namespace lmx
