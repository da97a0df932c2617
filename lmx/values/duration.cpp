// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Durations: the walk over their text, normal form, partial order, text.

#include "lmx/values/duration.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <locale>
#include <sstream>
#include <type_traits>

#include "lmx/values/characters.h"
#include "lmx/values/numbers.h"

namespace lmx {

static_assert(std::is_trivially_copyable_v<c_duration> && std::is_trivially_destructible_v<c_duration>);

namespace {

/// A place in a text, and the digits read last.
struct s_walk {
    const char* cursor;
    const char* digits = nullptr;
    bool is_pending = false;  ///< digits were read that no designator has claimed yet

    bool read_digits() {
        digits = cursor;
        return skip_digits(&cursor) > 0;
    }

    /// Gives the digits to a field if its designator is next.
    bool claim(const char* designator, std::uint32_t* field) {
        if (!match_literal(&cursor, designator)) return false;
        *field = static_cast<std::uint32_t>(std::strtoll(digits, nullptr, 10));
        is_pending = false;
        return true;
    }

    /// The same, and reads the digits behind the designator.
    bool claim_and_go_on(const char* designator, std::uint32_t* field) {
        if (!claim(designator, field)) return false;
        is_pending = read_digits();
        return true;
    }

    /// Where the text ends, or null if it doesn't end here.
    const char* end() const { return *cursor == '\0' ? cursor : nullptr; }
};

/// The days of the first months of a year, at least and at most, wherever the year starts.
constexpr std::array<std::int64_t, 12> k_least_days{0, 28, 59, 89, 120, 150, 181, 212, 242, 273, 303, 334};
constexpr std::array<std::int64_t, 12> k_most_days{0, 31, 62, 92, 123, 153, 184, 215, 245, 276, 306, 337};

/// Whether `a` can be the longer or the shorter one; both are normalised.
bool is_indeterminate(const c_duration& a, const c_duration& b) {
    if (a.get_is_neg() != b.get_is_neg() || a.get_months() == b.get_months()) return false;
    const std::int64_t years = std::int64_t{a.get_years()} - std::int64_t{b.get_years()};
    const std::int64_t years_a = years > 0 ? years : 0;
    const std::int64_t years_b = years < 0 ? -years : 0;
    const std::int64_t least_a = k_least_days[a.get_months()] + years_a * 365 + a.get_days();
    const std::int64_t most_a = k_most_days[a.get_months()] + years_a * 366 + a.get_days();
    const std::int64_t least_b = k_least_days[b.get_months()] + years_b * 365 + b.get_days();
    const std::int64_t most_b = k_most_days[b.get_months()] + years_b * 366 + b.get_days();
    return most_a > least_b && least_a < most_b;
}

void write_field(std::ostream& stream, std::uint32_t value, char designator) {
    if (value != 0) stream << value << designator;
}

}  // namespace

/// Takes the text as far as it makes a duration; returns its end if that is all of it, else null.
const char* c_duration::parse(const char* text) {
    *this = c_duration();
    m_is_neg = *text == '-';
    skip_sign(&text);
    if (!match_literal(&text, "P")) return nullptr;

    s_walk walk{text};
    if (walk.read_digits()) {
        walk.is_pending = true;
        const bool ends_with_years = walk.claim_and_go_on("Y", &m_years) && !walk.is_pending;
        if (!ends_with_years) {
            walk.claim_and_go_on("M", &m_months);
            if (walk.is_pending) walk.claim("D", &m_days);
        }
    }
    if (walk.end() != nullptr) return walk.is_pending ? nullptr : walk.end();

    // Digits before the "T" stay pending: they let a designator behind it claim nothing.
    if (!match_literal(&walk.cursor, "T") || walk.end() != nullptr) return nullptr;
    if (walk.read_digits()) walk.is_pending = true;
    if (walk.is_pending) walk.claim_and_go_on("H", &m_hours);
    if (walk.is_pending) walk.claim_and_go_on("M", &m_mins);
    bool has_fraction = false;
    if (match_literal(&walk.cursor, ".")) {
        if (walk.end() != nullptr) return nullptr;
        has_fraction = skip_digits(&walk.cursor) > 0;
    }
    if (!has_fraction && !walk.is_pending) return walk.end();
    if (!match_literal(&walk.cursor, "S")) return nullptr;
    m_secs = static_cast<float>(std::atof(walk.digits));
    return walk.end();
}

c_duration& c_duration::operator=(const char* text) {
    parse(text);
    return *this;
}

bool c_duration::is_valid(const std::string& text) {
    return c_duration().parse(text.c_str()) == text.c_str() + text.size();
}

bool c_duration::is_valid(const char* text) { return c_duration().parse(text) != nullptr; }

void c_duration::normalize() {
    const auto minutes = static_cast<double>(m_secs * 0.016666668F);
    if (std::fabs(minutes) < 0x1p63) {  // seconds beyond that, infinite ones too, have no minutes to speak of
        const auto whole = static_cast<std::int64_t>(minutes);
        m_mins += static_cast<std::uint32_t>(whole);
        m_secs -= static_cast<float>(static_cast<double>(whole) * 60.0);
    }
    m_hours += m_mins / 60;
    m_mins %= 60;
    m_days += m_hours / 24;
    m_hours %= 24;
    m_years += m_months / 12;
    m_months %= 12;
}

bool operator==(const c_duration& a, const c_duration& b) { return std::is_eq(a <=> b); }

std::partial_ordering operator<=>(const c_duration& a, const c_duration& b) {
    c_duration one = a;
    c_duration other = b;
    one.normalize();
    other.normalize();
    if (is_indeterminate(one, other)) return std::partial_ordering::unordered;
    if (one.m_years != other.m_years) return one.m_years <=> other.m_years;
    if (one.m_months != other.m_months) return one.m_months <=> other.m_months;
    if (one.m_days != other.m_days) return one.m_days <=> other.m_days;
    if (one.m_hours != other.m_hours) return one.m_hours <=> other.m_hours;
    if (one.m_mins != other.m_mins) return one.m_mins <=> other.m_mins;
    if (one.m_secs > other.m_secs) return std::partial_ordering::greater;
    return one.m_secs == other.m_secs && one.m_is_neg == other.m_is_neg ? std::partial_ordering::equivalent
                                                                        : std::partial_ordering::less;
}

std::string c_duration::get_as_string() const {
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    // Memory that runs out shall be told, not cut the text.
    stream.exceptions(std::ios_base::badbit);
    stream << *this;
    return stream.str();
}

std::ostream& operator<<(std::ostream& stream, const c_duration& value) {
    if (value.m_is_neg) stream << '-';
    stream << 'P';
    write_field(stream, value.m_years, 'Y');
    write_field(stream, value.m_months, 'M');
    write_field(stream, value.m_days, 'D');
    if (value.m_hours == 0 && value.m_mins == 0 && value.m_secs == 0.0F) return stream;
    stream << 'T';
    write_field(stream, value.m_hours, 'H');
    write_field(stream, value.m_mins, 'M');
    if (value.m_secs == 0.0F) return stream;
    write_seconds(stream, value.m_secs);
    return stream << 'S';
}

}  // namespace lmx
