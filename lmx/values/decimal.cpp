// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Parsing, parts and comparison of decimal numbers kept as text.

#include "lmx/values/decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

#include "lmx/values/characters.h"
#include "lmx/values/numbers.h"

namespace lmx {

namespace {

/// No more zeros behind a number change it modulo 2^32, or whether it passes 32 bits.
constexpr std::size_t k_telling_zeros = 32;

/// Zeros beyond these are left out of a text, which would otherwise be as long as a number given to a setter says.
constexpr std::size_t k_most_zeros = 1'000'000;

std::string text_of_magnitude(long value) {
    const auto bits = static_cast<unsigned long>(value);
    return std::to_string(value < 0 ? 0UL - bits : bits);
}

void pad_in_front(std::string* digits, std::size_t width) {
    if (digits->size() < width) digits->insert(0, std::min(width - digits->size(), k_most_zeros), '0');
}

/// The first `count` digits, with zeros in place of those that are missing.
std::string first_digits(const std::string& digits, std::size_t count) {
    std::string result = digits.substr(0, count);
    return result.append(std::min(count - result.size(), k_telling_zeros), '0');
}

/// As the C library's "%.*f" in the "C" locale.
std::string fixed_text(double value, unsigned digits) {
    constexpr unsigned most_digits = 15;
    std::array<char, 328> buffer;  // the largest number has 309 digits before the point
    const int precision = static_cast<int>(std::min(digits, most_digits));
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, precision);
    return {buffer.data(), result.ptr};
}

bool has_digit_but_zero(std::string_view digits) { return digits.find_first_not_of('0') != std::string_view::npos; }

/// Negative, zero or positive. The longer of two fractions that begin alike is the lesser: stored orders rest on it.
int compare_fractions(std::string_view one, std::string_view other) {
    const std::size_t common = std::min(one.size(), other.size());
    if (const int order = one.substr(0, common).compare(other.substr(0, common)); order != 0) return order;
    if (has_digit_but_zero(one.substr(common))) return -1;
    return has_digit_but_zero(other.substr(common)) ? 1 : 0;
}

}  // namespace

c_decimal::c_decimal(const char* text) : m_is_neg(text != nullptr && *text == '-') {
    if (text == nullptr) return;
    skip_sign(&text);
    m_integral = text;
    skip_digits(&text);
    if (*text != '.') return;
    const char* const fraction = ++text;
    skip_digits(&text);
    m_fractional.assign(fraction, text);
}

c_decimal::c_decimal(const std::string& text) : c_decimal(text.c_str()) {}

c_decimal::c_decimal(long value, int scale) : m_is_neg(value < 0) {
    std::string digits = text_of_magnitude(value);
    // Unsigned, so that the least of all scales can be negated.
    const auto count =
        static_cast<std::size_t>(scale < 0 ? 0U - static_cast<unsigned>(scale) : static_cast<unsigned>(scale));
    if (scale <= 0) {
        m_integral = digits.append(std::min(count, k_most_zeros), '0');
        return;
    }
    const std::size_t point = digits.size() - std::min(digits.size(), count);
    m_integral = digits.substr(0, point);
    m_fractional = digits.substr(point);
    pad_in_front(&m_fractional, count);
}

c_decimal::c_decimal(double value, unsigned digits) : c_decimal(fixed_text(value, digits)) {}

void c_decimal::swap(c_decimal& other) noexcept {
    std::swap(m_is_neg, other.m_is_neg);
    m_integral.swap(other.m_integral);
    m_fractional.swap(other.m_fractional);
}

bool c_decimal::is_valid(const std::string& text) {
    const char* cursor = text.c_str();
    skip_sign(&cursor);
    return skip_decimal(&cursor) > 0 && cursor == text.c_str() + text.size();
}

std::int32_t c_decimal::get_integral(bool* overflow) const {
    const std::int32_t value = m_integral.get(overflow);
    return m_is_neg ? negated(value) : value;
}

void c_decimal::set_integral(long value) {
    m_integral = text_of_magnitude(value);
    m_is_neg = value < 0;
}

std::uint32_t c_decimal::get_fractional(int digits, bool* overflow) const {
    const auto count = static_cast<std::size_t>(std::max(digits, 0));
    return detail::sum_digits(first_digits(m_fractional, count), UINT32_MAX, overflow);
}

void c_decimal::set_fractional(unsigned long value, unsigned digits) {
    std::string text = std::to_string(value);
    pad_in_front(&text, digits);
    text.resize(std::min<std::size_t>(text.size(), digits));
    m_fractional.swap(text);
}

std::int32_t c_decimal::get_scaled(int scale, bool* overflow) const {
    std::string text = m_integral.get_as_string();
    // Text with two signs leaves one in the integer part.
    const bool is_neg = m_is_neg || text.front() == '-';
    if (text.front() == '-') text.erase(0, 1);
    if (scale > 0) {
        text += first_digits(m_fractional, static_cast<std::size_t>(scale));
    } else {
        // Unsigned, so that the least of all scales can be negated.
        text.resize(text.size() - std::min<std::size_t>(text.size(), 0U - static_cast<unsigned>(scale)));
    }
    const std::int32_t value = c_big_int(text).get(overflow);
    return is_neg ? negated(value) : value;
}

double c_decimal::get_as_float() const {
    double sum = m_integral.get_as_float();
    double unit = 0.1;
    for (const char c : m_fractional) {
        sum += (c - '0') * unit;
        unit *= 0.1;
    }
    return m_is_neg ? -sum : sum;
}

std::string c_decimal::get_as_string() const {
    std::string text = m_is_neg ? "-" : "";
    if (m_fractional.empty()) return text + m_integral.get_as_string();
    if (m_integral != c_big_int()) text += m_integral.get_as_string();
    return text.append(1, '.') + m_fractional;
}

bool c_decimal::is_equal(const c_decimal& other) const {
    return m_is_neg == other.m_is_neg && m_integral == other.m_integral &&
           compare_fractions(m_fractional, other.m_fractional) == 0;
}

bool c_decimal::is_greater(const c_decimal& other) const {
    if (m_is_neg != other.m_is_neg) return !m_is_neg;
    if (m_integral != other.m_integral) return (m_integral > other.m_integral) != m_is_neg;
    const int order = compare_fractions(m_fractional, other.m_fractional);
    return m_is_neg ? order < 0 : order > 0;
}

std::ostream& operator<<(std::ostream& stream, const c_decimal& value) { return stream << value.get_as_string(); }

}  // namespace lmx
