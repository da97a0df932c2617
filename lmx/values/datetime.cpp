// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Calendar values: checks, parsing, comparison, text.

#include "lmx/values/datetime.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <iomanip>

#include "lmx/values/characters.h"

namespace lmx {

namespace {

/// The general format might print seconds below a thousandth with an exponent.
bool needs_fixed(float secs) { return secs != 0.0F && secs < 0.001F; }

bool skip_two_digits(const char** cursor) { return skip_digits(cursor) == 2; }
bool parse_two_digits(const char** cursor, std::uint32_t* value) { return parse_uint(cursor, value) == 2; }

std::uint32_t magnitude(std::int32_t value) {
    const auto bits = static_cast<std::uint32_t>(value);
    return value < 0 ? 0U - bits : bits;
}

/// Appends a number with zeros to its left, ahead of a sign too.
template <class Number>
void append_padded(std::string* out, Number value, std::size_t width) {
    std::array<char, 16> text;
    const char* const end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    const auto size = static_cast<std::size_t>(end - text.data());
    if (size < width) out->append(width - size, '0');
    out->append(text.data(), size);
}

void append_seconds(std::string* out, float secs) {
    if (secs < 10.0F) *out += '0';
    std::array<char, 64> text;  // the longest: a sign, the 39 digits of the greatest float, a point, 6 digits
    const auto format = needs_fixed(secs) ? std::chars_format::fixed : std::chars_format::general;
    // As a double, which is what a stream formats.
    char* const end = std::to_chars(text.data(), text.data() + text.size(), static_cast<double>(secs), format, 6).ptr;
    out->append(text.data(), end);
}

}  // namespace

void c_datetime_base::set_offset(std::int32_t hours, std::uint32_t minutes) {
    const std::uint32_t whole_hours = static_cast<std::uint32_t>(hours) * 60U;
    m_total_offset_mins = static_cast<std::int32_t>(hours < 0 ? whole_hours - minutes : whole_hours + minutes);
    m_is_utc = m_total_offset_mins == 0;
}

bool c_datetime_base::is_equal(const c_datetime_base& other) const {
    return m_year == other.m_year && m_month == other.m_month && m_day == other.m_day && m_hours == other.m_hours &&
           m_mins == other.m_mins && m_secs == other.m_secs;
}

bool c_datetime_base::is_greater(const c_datetime_base& other) const {
    if (m_year != other.m_year) return m_year > other.m_year;
    if (m_month != other.m_month) return m_month > other.m_month;
    if (m_day != other.m_day) return m_day > other.m_day;
    if (m_hours != other.m_hours) return m_hours > other.m_hours;
    if (m_mins != other.m_mins) return m_mins > other.m_mins;
    return m_secs > other.m_secs;
}

bool c_datetime_base::is_valid_zone(const char* text, const char* end, bool* has_zone) {
    *has_zone = text != end;
    if (text == end) return true;
    if (match_literal(&text, "Z")) return text == end;
    return skip_sign(&text) && skip_two_digits(&text) && match_literal(&text, ":") && skip_two_digits(&text) &&
           text == end;
}

void c_datetime_base::parse_zone(const char* text) {
    if (*text == '\0') {
        m_total_offset_mins = 0;
        m_is_utc = false;
        return;
    }
    if (text[0] == 'Z' && text[1] == '\0') {
        m_total_offset_mins = 0;
        m_is_utc = true;
        return;
    }
    const bool is_west = *text == '-';
    std::uint32_t hours = 0;
    std::uint32_t minutes = 0;
    if (skip_sign(&text) && parse_two_digits(&text, &hours) && match_literal(&text, ":") &&
        parse_two_digits(&text, &minutes) && *text == '\0') {
        const auto total = static_cast<std::int32_t>(hours * 60 + minutes);
        m_total_offset_mins = is_west ? -total : total;
        m_is_utc = false;
    }
}

bool c_datetime_base::parse_date(const char** cursor) {
    auto year = static_cast<std::uint32_t>(m_year);
    const std::size_t digits = parse_uint(cursor, &year);
    m_year = static_cast<std::int32_t>(year);
    return digits >= 4 && match_literal(cursor, "-") && parse_two_digits(cursor, &m_month) &&
           match_literal(cursor, "-") && parse_two_digits(cursor, &m_day);
}

bool c_datetime_base::parse_time(const char** cursor) {
    return parse_two_digits(cursor, &m_hours) && match_literal(cursor, ":") && parse_two_digits(cursor, &m_mins) &&
           match_literal(cursor, ":") && parse_seconds(cursor, &m_secs) >= 2;
}

void c_datetime_base::append_date(std::string* out) const {
    append_padded(out, m_year, 4);
    *out += '-';
    append_padded(out, m_month, 2);
    *out += '-';
    append_padded(out, m_day, 2);
}

void c_datetime_base::append_time(std::string* out) const {
    append_padded(out, m_hours, 2);
    *out += ':';
    append_padded(out, m_mins, 2);
    *out += ':';
    append_seconds(out, m_secs);
}

void c_datetime_base::append_zone(std::string* out) const {
    if (m_is_utc) {
        *out += 'Z';
    } else if (m_total_offset_mins != 0) {
        *out += m_total_offset_mins < 0 ? '-' : '+';
        append_padded(out, magnitude(m_total_offset_mins) / 60, 2);
        *out += ':';
        append_padded(out, magnitude(m_total_offset_mins) % 60, 2);
    }
}

bool c_datetime_base::skip_date(const char** cursor) {
    skip_sign(cursor);
    return skip_digits(cursor) >= 4 && match_literal(cursor, "-") && skip_two_digits(cursor) &&
           match_literal(cursor, "-") && skip_two_digits(cursor);
}

bool c_datetime_base::skip_time(const char** cursor) {
    if (!skip_two_digits(cursor) || !match_literal(cursor, ":") || !skip_two_digits(cursor) ||
        !match_literal(cursor, ":") || !skip_two_digits(cursor)) {
        return false;
    }
    if (match_literal(cursor, ".")) skip_digits(cursor);
    return true;
}

c_datetime& c_datetime::operator=(const char* text) {
    const bool is_negative = *text == '-';
    skip_sign(&text);
    if (!parse_date(&text) || !match_literal(&text, "T") || !parse_time(&text)) return *this;
    if (is_negative) m_year = static_cast<std::int32_t>(0U - static_cast<std::uint32_t>(m_year));
    parse_zone(text);
    return *this;
}

bool c_datetime::is_valid(const std::string& text) {
    bool has_zone = false;
    return is_valid(text, &has_zone);
}

bool c_datetime::is_valid(const std::string& text, bool* has_zone) {
    const char* cursor = text.c_str();
    return skip_date(&cursor) && match_literal(&cursor, "T") && skip_time(&cursor) &&
           is_valid_zone(cursor, text.c_str() + text.size(), has_zone);
}

std::string c_datetime::get_as_string() const {
    std::string text;
    append_to(&text);
    return text;
}

void c_datetime::append_to(std::string* out) const {
    append_date(out);
    *out += 'T';
    append_time(out);
    append_zone(out);
}

void c_datetime_base::write_date(std::ostream& stream) const {
    stream << std::setw(4) << m_year << '-' << std::setw(2) << m_month << '-' << std::setw(2) << m_day;
}

void c_datetime_base::write_time(std::ostream& stream) const {
    stream << std::setw(2) << m_hours << ':' << std::setw(2) << m_mins << ':';
    if (m_secs < 10.0F) stream << '0';
    if (needs_fixed(m_secs)) stream.setf(std::ios_base::fixed, std::ios_base::floatfield);
    stream << m_secs;
    stream.unsetf(std::ios_base::fixed);
}

void c_datetime_base::write_zone(std::ostream& stream) const {
    if (m_is_utc) {
        stream << 'Z';
    } else if (m_total_offset_mins != 0) {
        const std::uint32_t minutes = magnitude(m_total_offset_mins);
        stream << (m_total_offset_mins < 0 ? '-' : '+') << std::setw(2) << minutes / 60 << ':' << std::setw(2)
               << minutes % 60;
    }
}

std::ostream& operator<<(std::ostream& stream, const c_datetime& value) {
    stream.fill('0');
    value.write_date(stream);
    stream << 'T';
    value.write_time(stream);
    value.write_zone(stream);
    return stream;
}

}  // namespace lmx
