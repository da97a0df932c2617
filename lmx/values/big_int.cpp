// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Parsing and comparison of integers kept as text.

#include "lmx/values/big_int.h"

#include <algorithm>
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

/// The digits that a value is read from.
std::string_view leading_digits(std::string_view text) {
    const std::string_view rest = significant(text);
    return rest.substr(0,
                       static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), xisdigit) - rest.begin()));
}

std::string canonical(std::string_view text) {
    const std::string_view digits = leading_digits(text);
    if (digits.empty()) return "0";
    std::string result;
    result.reserve(digits.size() + 1);
    if (is_negative(text)) result += '-';
    return result += digits;
}

}  // namespace

c_big_int::c_big_int(const char* text) : m_text(canonical(detail::text_of(text))) {}
c_big_int::c_big_int(const std::string& text) : m_text(canonical(text)) {}

std::int32_t c_big_int::get(bool* overflow) const {
    // The bound is that of positive numbers for both signs.
    const std::uint32_t sum = detail::sum_digits(significant(m_text), INT32_MAX, overflow);
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
        return text.starts_with("-0") && m_text == "0" && leading_digits(text.substr(1)).empty();
    }
    return significant(text) == significant(m_text);
}

bool c_big_int::is_greater(std::string_view text) const {
    if (text.empty()) return false;
    const bool negative = is_negative(m_text);
    if (negative != is_negative(text)) return !negative && !is_equal(text);
    std::string_view mine = std::string_view(m_text).substr(negative ? 1 : 0);
    std::string_view theirs = significant(text);
    if (theirs.empty()) return !negative && m_text != "0";
    if (negative) std::swap(mine, theirs);  // the longer one is the lesser
    return mine.size() != theirs.size() ? mine.size() > theirs.size() : mine > theirs;
}

std::ostream& operator<<(std::ostream& stream, const c_big_int& value) { return stream << value.get_as_string(); }

namespace detail {

std::uint32_t sum_digits(std::string_view digits, std::uint32_t maximum, bool* overflow) {
    std::uint32_t sum = 0;
    bool is_over = false;
    for (const char c : digits) {
        const std::uint64_t next = std::uint64_t{sum} * 10 + static_cast<std::uint64_t>(c - '0');
        if (next > maximum) is_over = true;
        sum = static_cast<std::uint32_t>(next);
    }
    if (overflow != nullptr) *overflow = is_over;
    return sum;
}

}  // namespace detail

}  // namespace lmx
