// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Calendar values: points in time as the document writes them, without any calendar arithmetic.
///
/// A check looks at the shape of the text only, never at the calendar: month 13 and second 61 are fine. An
/// assignment never fails; on bad text it stops, keeps what it has stored, and leaves the rest as it was.

#pragma once

#include <concepts>
#include <cstdint>
#include <ostream>
#include <string>

#include "lmx/export.h"

namespace lmx {

/// The fields of all calendar types, and what those types share: the zone, comparison, pieces of text.
class VYR_EXPORT c_datetime_base {
public:
    /// Offset from UTC in minutes, east positive.
    std::int32_t get_total_offset_mins() const { return m_total_offset_mins; }
    void set_total_offset_mins(std::int32_t minutes) { m_total_offset_mins = minutes; }
    /// Whether the value is written with "Z".
    bool get_is_utc() const { return m_is_utc; }
    void set_is_utc(bool is_utc) { m_is_utc = is_utc; }
    /// Sets the offset; the minutes go the way of the hours. A total of 0 makes the value UTC.
    void set_offset(std::int32_t hours, std::uint32_t minutes);
    void set_offset_mins(std::int32_t hours, std::uint32_t minutes) { set_offset(hours, minutes); }

    /// Compare the fields from the year down to the seconds. The zone takes no part: 12:00:00Z equals
    /// 12:00:00+05:00.
    bool is_equal(const c_datetime_base& other) const;
    bool is_greater(const c_datetime_base& other) const;

protected:
    c_datetime_base() = default;

    // The pieces of text that the types are made of. "skip" checks them, "parse" takes them, both stop at the first
    // character that doesn't fit and answer whether all was there; "append" and "write" give the same text.

    /// A sign, a year, "-", month, "-", day.
    static bool skip_date(const char** cursor);
    /// Hours, ":", minutes, ":", seconds with an optional fraction.
    static bool skip_time(const char** cursor);
    /// Whether `[text, end)` is empty or a zone; `*has_zone` tells which.
    static bool is_valid_zone(const char* text, const char* end, bool* has_zone);
    /// Takes the zone from the rest of a text; anything else than a zone or nothing changes nothing.
    void parse_zone(const char* text);
    /// Starts behind the sign.
    bool parse_date(const char** cursor);
    bool parse_time(const char** cursor);
    void append_date(std::string* out) const;
    void append_time(std::string* out) const;
    void append_zone(std::string* out) const;
    void write_date(std::ostream& stream) const;
    void write_time(std::ostream& stream) const;
    void write_zone(std::ostream& stream) const;

    std::int32_t m_year = 1;  ///< negative before the common era
    std::uint32_t m_month = 0;
    std::uint32_t m_day = 0;
    std::uint32_t m_hours = 0;
    std::uint32_t m_mins = 0;
    float m_secs = 0.0F;  ///< whole and fraction
    std::int32_t m_total_offset_mins = 0;
    bool m_is_utc = false;
};

/// The comparison operators of every calendar type, for two operands of the same type.
template <std::derived_from<c_datetime_base> T>
bool operator==(const T& a, const T& b) {
    return a.is_equal(b);
}
template <std::derived_from<c_datetime_base> T>
bool operator!=(const T& a, const T& b) {
    return !a.is_equal(b);
}
template <std::derived_from<c_datetime_base> T>
bool operator>(const T& a, const T& b) {
    return a.is_greater(b);
}
template <std::derived_from<c_datetime_base> T>
bool operator>=(const T& a, const T& b) {
    return a.is_equal(b) || a.is_greater(b);
}
template <std::derived_from<c_datetime_base> T>
bool operator<(const T& a, const T& b) {
    return !(a >= b);
}
template <std::derived_from<c_datetime_base> T>
bool operator<=(const T& a, const T& b) {
    return !a.is_greater(b);
}

/// A date, a time of day and an optional zone, such as "2005-02-28T10:00:00Z".
class VYR_EXPORT c_datetime : public c_datetime_base {
public:
    c_datetime() = default;
    c_datetime(const char* text) { *this = text; }
    c_datetime(const std::string& text) { *this = text; }
    c_datetime& operator=(const char* text);
    c_datetime& operator=(const std::string& text) { return *this = text.c_str(); }

    static bool is_valid(const std::string& text);
    /// The same check, which also tells whether the text names a zone. `*has_zone` is set only for valid text.
    static bool is_valid(const std::string& text, bool* has_zone);

    std::string get_as_string() const;
    /// Appends what `operator<<` writes to a stream in its default state; much faster.
    void append_to(std::string* out) const;

    std::int32_t get_year() const { return m_year; }
    std::uint32_t get_month() const { return m_month; }
    std::uint32_t get_day() const { return m_day; }
    std::uint32_t get_hours() const { return m_hours; }
    std::uint32_t get_mins() const { return m_mins; }
    float get_secs() const { return m_secs; }
    void set_year(std::int32_t year) { m_year = year; }
    void set_month(std::uint32_t month) { m_month = month; }
    void set_day(std::uint32_t day) { m_day = day; }
    void set_hours(std::uint32_t hours) { m_hours = hours; }
    void set_mins(std::uint32_t mins) { m_mins = mins; }
    void set_secs(float secs) { m_secs = secs; }

    /// Leaves the stream's fill character at "0".
    VYR_EXPORT friend std::ostream& operator<<(std::ostream& stream, const c_datetime& value);
};

}  // namespace lmx
