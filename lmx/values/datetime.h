// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Calendar values: dates, times and parts of them as documents write them, without any calendar arithmetic.
///
/// A check looks at the shape of the text only, never at the calendar: month 13 and second 61 are fine. An
/// assignment never fails; on bad text it stops, keeps what it has stored, and leaves the rest as it was. The types
/// differ in nothing but their row of `k_calendar_forms`.

#pragma once

#include <array>
#include <cmath>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

#include "lmx/export.h"

namespace lmx {

enum class calendar_type : std::uint8_t { datetime, date, time, gyearmonth, gyear, gmonthday, gday, gmonth };

/// What a type does with a sign at the start of a text. `checked`: only the check lets it pass, an assignment stops.
enum class calendar_sign : std::uint8_t { none, checked, taken };

/// How the texts of a calendar type are made, but for the zone at their end.
struct s_calendar_form {
    calendar_sign sign;
    /// The letters are fields: "Y" the year (4 digits at least), "M" month, "D" day, "h" hours, "m" minutes (2 digits
    /// each), "s" seconds with their fraction; "d" is a day of which an assignment takes any number of digits. All
    /// else stands for itself, "T" too.
    std::string_view body;
};

/// In the order of `calendar_type`.
inline constexpr std::array<s_calendar_form, 8> k_calendar_forms{{
    {calendar_sign::taken, "Y-M-DTh:m:s"},
    {calendar_sign::taken, "Y-M-D"},
    {calendar_sign::checked, "h:m:s"},
    {calendar_sign::taken, "Y-M"},
    {calendar_sign::taken, "Y"},
    {calendar_sign::none, "--M-d"},
    {calendar_sign::none, "---d"},
    {calendar_sign::none, "--M--"},
}};

constexpr const s_calendar_form& form_of(calendar_type type) {
    return k_calendar_forms[static_cast<std::size_t>(type)];
}

/// Whether texts of the type hold one of the fields, given as letters of `s_calendar_form`.
constexpr bool has_field(calendar_type type, std::string_view letters) {
    return form_of(type).body.find_first_of(letters) != std::string_view::npos;
}

/// The fields of all calendar types, and what works the same on all of them.
class VYR_EXPORT c_datetime_base {
public:
    c_datetime_base() = default;

    /// Offset from UTC in minutes, east positive.
    std::int32_t get_total_offset_mins() const { return m_total_offset_mins; }
    void set_total_offset_mins(std::int32_t minutes) { m_total_offset_mins = minutes; }
    /// Whether the value is written with "Z".
    bool get_is_utc() const { return m_is_utc; }
    void set_is_utc(bool is_utc) { m_is_utc = is_utc; }
    /// Sets the offset; the minutes go the way of the hours. A total of 0 makes the value UTC.
    void set_offset(std::int32_t hours, std::uint32_t minutes);
    void set_offset_mins(std::int32_t hours, std::uint32_t minutes) { set_offset(hours, minutes); }

    /// Whether the fields, printed as a date-time, are a valid one of whole seconds that names its zone. A look at
    /// the fields only: false for some others that are valid.
    bool is_usual() const {
        constexpr std::uint32_t two_digits = 100;
        const bool has_zone =
            m_is_utc || (m_total_offset_mins != 0 && m_total_offset_mins > -6000 && m_total_offset_mins < 6000);
        return has_zone && m_year >= 0 && m_year < 10000 && m_month < two_digits && m_day < two_digits &&
               m_hours < two_digits && m_mins < two_digits && !std::signbit(m_secs) && m_secs < 100.0F &&
               m_secs == static_cast<float>(static_cast<std::int32_t>(m_secs));
    }

protected:
    std::weak_ordering compare(const c_datetime_base& other) const;
    /// Takes a date-time in UTC without a fraction, "2005-02-28T10:00:00Z", from the 20 characters at `text`. False,
    /// with some fields stored, for anything else.
    bool assign_usual_datetime(const char* text);
    void assign_present_time();

    /// `*has_zone` is set only for valid text.
    static bool is_valid(const s_calendar_form& form, const std::string& text, bool* has_zone);
    void assign(const s_calendar_form& form, const char* text);
    void append(const s_calendar_form& form, std::string* out) const;
    void write(const s_calendar_form& form, std::ostream& stream) const;

    std::int32_t m_year = 1;  ///< negative before the common era
    std::uint32_t m_month = 0;
    std::uint32_t m_day = 0;
    std::uint32_t m_hours = 0;
    std::uint32_t m_mins = 0;
    float m_secs = 0.0F;  ///< whole and fraction
    std::int32_t m_total_offset_mins = 0;
    bool m_is_utc = false;

private:
    bool parse_part(char part, const char** cursor);
    void parse_zone(const char* text);
    template <class Sink>
    void print(const s_calendar_form& form, Sink sink) const;
};

/// What the calendar types have besides: the fields that the type writes, and a zone. `T` is the type itself.
template <class T, calendar_type Type>
class c_calendar : public c_datetime_base {
public:
    c_calendar() = default;
    c_calendar(const char* text) { assign(form_of(Type), text); }
    c_calendar(const std::string& text) { assign(form_of(Type), text.c_str()); }
    T& operator=(const char* text) {
        assign(form_of(Type), text);
        return static_cast<T&>(*this);
    }
    T& operator=(const std::string& text) { return *this = text.c_str(); }
    T& operator=(std::nullptr_t) = delete;  // which `value = {}` would mean

    /// The length of the usual form, and a short way to take it; see `assign_usual_datetime`.
    static constexpr std::size_t k_usual_size = 20;
    bool assign_usual(const char* text) requires(Type == calendar_type::datetime) {
        return assign_usual_datetime(text);
    }

    /// The present time in UTC, to the second: what a change history wants, "2026-05-01T12:00:00Z".
    static T now() requires(Type == calendar_type::datetime) {
        T value;
        value.assign_present_time();
        return value;
    }

    static bool is_valid(const std::string& text) {
        bool has_zone = false;
        return is_valid(text, &has_zone);
    }
    /// The same check, which also tells whether the text names a zone. `*has_zone` is set only for valid text.
    static bool is_valid(const std::string& text, bool* has_zone) {
        return c_datetime_base::is_valid(form_of(Type), text, has_zone);
    }

    /// What `operator<<` writes to a new stream in the classic locale, whatever the program's own is.
    std::string get_as_string() const {
        std::string text;
        append_to(&text);
        return text;
    }
    /// Appends the same text.
    void append_to(std::string* out) const { append(form_of(Type), out); }

    /// Leaves the stream's fill character at "0".
    friend std::ostream& operator<<(std::ostream& stream, const T& value) {
        value.write(form_of(Type), stream);
        return stream;
    }

    /// Compare the fields from the year down to the seconds, with another value of the type or a text. The zone takes
    /// no part: 12:00:00Z equals 12:00:00+05:00. Seconds that are no number make a value less than any other, itself
    /// included.
    friend bool operator==(const T& a, const T& b) { return a.compare(b) == 0; }
    friend std::weak_ordering operator<=>(const T& a, const T& b) { return a.compare(b); }

    // Each type has the accessors of its own fields only.
    std::int32_t get_year() const requires(has_field(Type, "Y")) { return m_year; }
    std::uint32_t get_month() const requires(has_field(Type, "M")) { return m_month; }
    std::uint32_t get_day() const requires(has_field(Type, "Dd")) { return m_day; }
    std::uint32_t get_hours() const requires(has_field(Type, "h")) { return m_hours; }
    std::uint32_t get_mins() const requires(has_field(Type, "m")) { return m_mins; }
    float get_secs() const requires(has_field(Type, "s")) { return m_secs; }
    void set_year(std::int32_t year) requires(has_field(Type, "Y")) { m_year = year; }
    void set_month(std::uint32_t month) requires(has_field(Type, "M")) { m_month = month; }
    void set_day(std::uint32_t day) requires(has_field(Type, "Dd")) { m_day = day; }
    void set_hours(std::uint32_t hours) requires(has_field(Type, "h")) { m_hours = hours; }
    void set_mins(std::uint32_t mins) requires(has_field(Type, "m")) { m_mins = mins; }
    void set_secs(float secs) requires(has_field(Type, "s")) { m_secs = secs; }
};

/// "2005-02-28T10:00:00Z"
class VYR_EXPORT c_datetime : public c_calendar<c_datetime, calendar_type::datetime> {
public:
    using c_calendar::c_calendar;
    using c_calendar::operator=;
};

/// "2005-02-28"
class VYR_EXPORT c_date : public c_calendar<c_date, calendar_type::date> {
public:
    using c_calendar::c_calendar;
    using c_calendar::operator=;
};

/// "10:00:00.5"
class VYR_EXPORT c_time : public c_calendar<c_time, calendar_type::time> {
public:
    using c_calendar::c_calendar;
    using c_calendar::operator=;
};

/// "2005-02"
class VYR_EXPORT c_gyearmonth : public c_calendar<c_gyearmonth, calendar_type::gyearmonth> {
public:
    using c_calendar::c_calendar;
    using c_calendar::operator=;
};

/// "2005"
class VYR_EXPORT c_gyear : public c_calendar<c_gyear, calendar_type::gyear> {
public:
    using c_calendar::c_calendar;
    using c_calendar::operator=;
};

/// "--02-28"
class VYR_EXPORT c_gmonthday : public c_calendar<c_gmonthday, calendar_type::gmonthday> {
public:
    using c_calendar::c_calendar;
    using c_calendar::operator=;
};

/// "---28"
class VYR_EXPORT c_gday : public c_calendar<c_gday, calendar_type::gday> {
public:
    using c_calendar::c_calendar;
    using c_calendar::operator=;
};

/// "--02--", the older form with two hyphens behind
class VYR_EXPORT c_gmonth : public c_calendar<c_gmonth, calendar_type::gmonth> {
public:
    using c_calendar::c_calendar;
    using c_calendar::operator=;
};

}  // namespace lmx
