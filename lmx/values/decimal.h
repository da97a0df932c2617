// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Decimal numbers of any length, kept as text: exact parsing, comparison and native parts, no arithmetic.

#pragma once

#include <concepts>
#include <cstdint>
#include <ostream>
#include <string>

#include "lmx/export.h"
#include "lmx/values/big_int.h"

namespace lmx {

/// A sign, an integer part and the digits behind the point, trailing zeros included.
///
/// Parsing never fails: it takes the longest leading decimal number, and 0 if there is none. Native results of 32
/// bits wrap; `*overflow`, if given, tells whether they did. Nothing here depends on the host's locale.
class VYR_EXPORT c_decimal {
public:
    c_decimal() = default;
    c_decimal(const c_decimal&) = default;
    /// A null pointer gives 0.
    c_decimal(const char* text);
    c_decimal(const std::string& text);
    /// `value` times ten to the power of minus `scale`. Of zeros, at most a million are put behind its digits, or
    /// between the point and them.
    c_decimal(long value, int scale);
    /// `value` rounded to `digits` digits behind the point, but to 15 at most.
    c_decimal(double value, unsigned digits);
    /// The same, for a plain number as count.
    c_decimal(std::floating_point auto value, std::same_as<int> auto digits)
        : c_decimal(static_cast<double>(value), static_cast<unsigned>(digits)) {}
    /// Takes a value or a text. Leaves the target alone if the value can't be made.
    c_decimal& operator=(c_decimal value) noexcept {
        swap(value);
        return *this;
    }
    /// With 15 digits behind the point.
    c_decimal& operator=(double value) { return *this = c_decimal(value, 15U); }
    ~c_decimal() = default;

    void swap(c_decimal& other) noexcept;

    /// An optional sign and digits with an optional point among, before or behind them.
    static bool is_valid(const std::string& text);

    /// The part before the point, with the sign.
    std::int32_t get_integral(bool* overflow = nullptr) const;
    /// Replaces the sign and the part before the point.
    void set_integral(long value);

    /// The first `digits` digits behind the point as a number, missing ones taken for 0.
    std::uint32_t get_fractional(int digits, bool* overflow = nullptr) const;
    /// Replaces the digits behind the point by those of `value`: by its first `digits` if it has more, with zeros
    /// put before them if it has fewer, but at most a million.
    void set_fractional(unsigned long value, unsigned digits);

    /// The value times ten to the power of `scale`, without what is then behind the point.
    std::int32_t get_scaled(int scale, bool* overflow = nullptr) const;
    /// As the constructor of the same arguments.
    void set_scaled(long value, int scale) { *this = c_decimal(value, scale); }

    void set(double value, unsigned digits) { *this = c_decimal(value, digits); }
    double get_as_float() const;

    /// No zero stands before the point: ".5".
    std::string get_as_string() const;

    /// The two comparisons that the operators are made of.
    ///
    /// Where one fraction is the beginning of the other and the rest isn't all zeros, the longer one is the lesser:
    /// ".51" is less than ".5", though ".6" is greater than ".51", and ".5" is less than "0". Negative zero is less
    /// than zero.
    bool is_equal(const c_decimal& other) const;
    bool is_greater(const c_decimal& other) const;

private:
    bool m_is_neg = false;
    c_big_int m_integral;
    std::string m_fractional;
};

inline bool operator==(const c_decimal& a, const c_decimal& b) { return a.is_equal(b); }
inline bool operator!=(const c_decimal& a, const c_decimal& b) { return !(a == b); }
inline bool operator>(const c_decimal& a, const c_decimal& b) { return a.is_greater(b); }
inline bool operator>=(const c_decimal& a, const c_decimal& b) { return a == b || a > b; }
inline bool operator<(const c_decimal& a, const c_decimal& b) { return !(a >= b); }
inline bool operator<=(const c_decimal& a, const c_decimal& b) { return !(a > b); }

VYR_EXPORT std::ostream& operator<<(std::ostream& stream, const c_decimal& value);

}  // namespace lmx
