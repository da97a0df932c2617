// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Durations, such as "P1Y2M3DT4H5M6.5S".
///
/// The check is deliberately loose about numbers without a designator: "P1T2H" passes. An assignment never fails; on
/// bad text it stops and keeps what it has stored.

#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>

#include "lmx/export.h"

namespace lmx {

/// A length of time in its fields. Numbers beyond a field wrap.
class VYR_EXPORT c_duration {
public:
    c_duration() = default;
    c_duration(const char* text) { *this = text; }
    c_duration(const std::string& text) { *this = text; }
    /// Clears all fields first. The seconds are read by the host's C locale: where that has a decimal comma, a
    /// fraction behind a point is lost.
    c_duration& operator=(const char* text);
    c_duration& operator=(const std::string& text) { return *this = text.c_str(); }
    c_duration& operator=(std::nullptr_t) = delete;  // which `value = {}` would mean

    static bool is_valid(const std::string& text);
    static bool is_valid(const char* text);

    /// What `operator<<` writes to a new stream in the classic locale, whatever the program's own is.
    std::string get_as_string() const;

    bool get_is_neg() const { return m_is_neg; }
    std::uint32_t get_years() const { return m_years; }
    std::uint32_t get_months() const { return m_months; }
    std::uint32_t get_days() const { return m_days; }
    std::uint32_t get_hours() const { return m_hours; }
    std::uint32_t get_mins() const { return m_mins; }
    float get_secs() const { return m_secs; }
    void set_is_neg(bool is_neg) { m_is_neg = is_neg; }
    void set_years(std::uint32_t years) { m_years = years; }
    void set_months(std::uint32_t months) { m_months = months; }
    void set_days(std::uint32_t days) { m_days = days; }
    void set_hours(std::uint32_t hours) { m_hours = hours; }
    void set_mins(std::uint32_t mins) { m_mins = mins; }
    void set_secs(float secs) { m_secs = secs; }

    /// Carries whole minutes out of the seconds, and so on up to the days, and months to years; days never become
    /// months.
    void normalize();

    /// Compare the normalised durations. A pair that the varying length of months and years can put either way is
    /// unordered: nothing but `!=` holds. Otherwise the order goes by magnitude alone, even where one is negative;
    /// the signs only keep a pair from being equal.
    VYR_EXPORT friend bool operator==(const c_duration& a, const c_duration& b);
    VYR_EXPORT friend std::partial_ordering operator<=>(const c_duration& a, const c_duration& b);

    VYR_EXPORT friend std::ostream& operator<<(std::ostream& stream, const c_duration& value);

private:
    const char* parse(const char* text);

    bool m_is_neg = false;
    std::uint32_t m_years = 0;
    std::uint32_t m_months = 0;
    std::uint32_t m_days = 0;
    std::uint32_t m_hours = 0;
    std::uint32_t m_mins = 0;
    float m_secs = 0.0F;  ///< whole and fraction
};

}  // namespace lmx
