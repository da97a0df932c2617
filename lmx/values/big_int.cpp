// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Parsing and comparison of integers kept as text.

#include "lmx/values/big_int.h"

#include <utility>

#include "lmx/values/characters.h"

namespace lmx {

namespace {

bool is_negative(std::string_view text) { return !text.empty() && text.front() == '-'; }

/// The text behind its sign and leading zeros.
std::string_view significant(std::string_view text) {
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
    const std::size_t start = text.find_first_not_of('0');
    return start == std::string_view::npos ? std::string_view() : text.substr(start);
}

std::string canonical(std::string_view text) {
    const std::string_view rest = significant(text);
    std::size_t digits = 0;
    while (digits < rest.size() && xisdigit(rest[digits])) ++digits;
    if (digits == 0) return "0";
    std::string result;
    result.reserve(digits + 1);
    if (is_negative(text)) result += '-';
    return result += rest.substr(0, digits);
}

}  // namespace

c_big_int::c_big_int(const char* text) : m_text(canonical(detail::text_of(text))) {}
c_big_int::c_big_int(const std::string& text) : m_text(canonical(text)) {}
c_big_int::c_big_int(long value) : m_text(std::to_string(value)) {}

std::int32_t c_big_int::get(bool* overflow) const {
    // Unsigned, so that a value out of range wraps; the bound is that of positive numbers for both signs.
    constexpr std::uint32_t maximum = 0x7FFFFFFF;
    std::uint32_t sum = 0;
    bool is_over = false;
    for (const char c : significant(m_text)) {
        const auto digit = static_cast<std::uint32_t>(c - '0');
        if (sum > maximum / 10) is_over = true;
        sum *= 10;
        if (sum > maximum || maximum - sum < digit) is_over = true;
        sum += digit;
    }
    if (overflow != nullptr) *overflow = is_over;
    return static_cast<std::int32_t>(is_negative(m_text) ? 0U - sum : sum);
}

double c_big_int::get_as_float() const {
    double sum = 0.0;
    for (const char c : significant(m_text)) sum = sum * 10.0 + (c - '0');
    return is_negative(m_text) ? -sum : sum;
}

bool c_big_int::is_equal(std::string_view text) const {
    if (text.empty()) return false;
    if (is_negative(m_text) != is_negative(text)) {
        return text.starts_with("-0") && m_text == "0" && canonical(text.substr(1)) == "0";
    }
    return significant(text) == significant(m_text);
}

bool c_big_int::is_greater(std::string_view text) const {
    if (text.empty()) return false;
    const bool negative = is_negative(m_text);
    if (negative != is_negative(text)) return !negative && !is_equal(text);
    std::string_view mine = significant(m_text);
    std::string_view theirs = significant(text);
    if (negative) std::swap(mine, theirs);  // the longer one is the lesser
    return mine.size() != theirs.size() ? mine.size() > theirs.size() : mine > theirs;
}

std::ostream& operator<<(std::ostream& stream, const c_big_int& value) { return stream << value.get_as_string(); }

}  // namespace lmx
