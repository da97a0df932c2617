// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Integers of any length, kept as text: exact parsing and comparison, no arithmetic.

#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

#include "lmx/export.h"

namespace lmx {

namespace detail {

template <class T>
concept big_int_text = std::convertible_to<const T&, const char*> || std::same_as<T, std::string>;

/// A null pointer counts as zero.
inline std::string_view text_of(const char* text) { return text == nullptr ? "0" : text; }
inline std::string_view text_of(const std::string& text) { return text; }

/// The value of digits modulo 2^32. `*overflow`, if given, tells whether it passes `maximum`.
std::uint32_t sum_digits(std::string_view digits, std::uint32_t maximum, bool* overflow);

}  // namespace detail

/// An integer in canonical form: an optional "-" and digits without leading zeros; zero is "0".
///
/// Parsing never fails: it takes the longest leading integer, and 0 if there is none. Comparison with text doesn't
/// convert the text, so that a bound can be compared with a number of any length; the text must be an integer.
class VYR_EXPORT c_big_int {
public:
    c_big_int() : m_text("0") {}
    c_big_int(const char* text);
    c_big_int(const std::string& text);
    c_big_int(std::integral auto value) : m_text(std::to_string(value)) {}
    /// There is no move, which would leave an empty text behind.
    c_big_int(const c_big_int&) = default;
    /// Takes whatever a constructor takes. Leaves the target alone if the value can't be made.
    c_big_int& operator=(c_big_int value) noexcept {
        swap(value);
        return *this;
    }
    ~c_big_int() = default;

    void swap(c_big_int& other) noexcept { m_text.swap(other.m_text); }

    std::string get_as_string() const { return m_text; }
    /// The low 32 bits, signed. `*overflow`, if given, tells whether the magnitude passes 2147483647; it does so
    /// for -2147483648 too.
    std::int32_t get(bool* overflow = nullptr) const;
    double get_as_float() const;

    /// The two comparisons that the operators are made of. An empty text equals nothing, and nothing exceeds it.
    bool is_equal(std::string_view text) const;
    bool is_greater(std::string_view text) const;

    /// Compare with another value or a text, on either side. Found only where one side is a `c_big_int`: elsewhere
    /// they would compete for texts.
    friend bool operator==(const c_big_int& a, const c_big_int& b) { return a.m_text == b.m_text; }
    friend std::weak_ordering operator<=>(const c_big_int& a, const c_big_int& b) { return a.order(b.m_text); }
    template <detail::big_int_text T>
    friend bool operator==(const c_big_int& value, const T& text) {
        return value.is_equal(detail::text_of(text));
    }
    template <detail::big_int_text T>
    friend std::weak_ordering operator<=>(const c_big_int& value, const T& text) {
        return value.order(detail::text_of(text));
    }

private:
    /// What is neither equal nor greater is less.
    std::weak_ordering order(std::string_view text) const {
        if (is_equal(text)) return std::weak_ordering::equivalent;
        return is_greater(text) ? std::weak_ordering::greater : std::weak_ordering::less;
    }

    std::string m_text;
};

VYR_EXPORT std::ostream& operator<<(std::ostream& stream, const c_big_int& value);

}  // namespace lmx
