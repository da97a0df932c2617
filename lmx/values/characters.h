// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Character classes and the text cursor on which all lexical checks stand.
///
/// The classes answer as the C library does in the "C" locale, whatever the host's locale is. A byte of a
/// multi-byte character, negative or above 127, belongs to none of them.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "lmx/export.h"

namespace lmx {

namespace detail {

enum character_class : std::uint8_t {
    class_space = 1,
    class_upper = 2,
    class_lower = 4,
    class_digit = 8,
    class_hex_letter = 16,
    class_punctuation = 32,
    class_blank = 64,

    class_alpha = class_upper | class_lower,
    class_alnum = class_alpha | class_digit,
    class_hex = class_digit | class_hex_letter,
    class_print = class_alnum | class_punctuation | class_blank,
};

constexpr std::array<std::uint8_t, 128> make_character_classes() {
    std::array<std::uint8_t, 128> classes{};
    for (std::size_t c = 1; c < classes.size(); ++c) {
        unsigned mask = 0;
        if (c == ' ' || (c >= '\t' && c <= '\r')) mask |= class_space;
        if (c == ' ') mask |= class_blank;
        if (c >= 'A' && c <= 'Z') mask |= class_upper;
        if (c >= 'a' && c <= 'z') mask |= class_lower;
        if (c >= '0' && c <= '9') mask |= class_digit;
        if ((c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f')) mask |= class_hex_letter;
        if (c > ' ' && c < 127 && (mask & class_alnum) == 0) mask |= class_punctuation;
        classes[c] = static_cast<std::uint8_t>(mask);
    }
    return classes;
}

inline constexpr std::array<std::uint8_t, 128> k_character_classes = make_character_classes();

constexpr bool is_of_class(int c, character_class mask) {
    return static_cast<unsigned>(c) < k_character_classes.size() &&
           (k_character_classes[static_cast<std::size_t>(c)] & mask) != 0;
}

}  // namespace detail

constexpr bool xisspace(int c) { return detail::is_of_class(c, detail::class_space); }
constexpr bool xisalpha(int c) { return detail::is_of_class(c, detail::class_alpha); }
constexpr bool xisalnum(int c) { return detail::is_of_class(c, detail::class_alnum); }
constexpr bool xisdigit(int c) { return detail::is_of_class(c, detail::class_digit); }
constexpr bool xisxdigit(int c) { return detail::is_of_class(c, detail::class_hex); }
constexpr bool xisprint(int c) { return detail::is_of_class(c, detail::class_print); }

/// Whether collapsing its white space leaves a text as it is.
template <class Unit>
constexpr bool is_collapsed(std::basic_string_view<Unit> text) {
    bool is_behind_blank = true;
    for (const Unit c : text) {
        if (c == ' ' ? is_behind_blank : xisspace(c)) return false;
        is_behind_blank = c == ' ';
    }
    return text.empty() || !is_behind_blank;
}

// The cursor functions advance a pointer into null-terminated text; the null ends every run.

/// Steps over digits; returns how many.
VYR_EXPORT std::size_t skip_digits(const char** cursor);

/// Steps over digits and stores their value modulo 2^32; returns how many. Without a digit `*value` stays.
VYR_EXPORT std::size_t parse_uint(const char** cursor, std::uint32_t* value);

/// Steps over one "-" or "+"; returns whether there was one.
VYR_EXPORT bool skip_sign(const char** cursor);

/// Steps over `literal` if it is next; returns whether it was.
VYR_EXPORT bool match_literal(const char** cursor, const char* literal);

/// Steps over digits, an optional point and further digits; returns the number of characters, the point included,
/// but 0 for a point with no digit on either side.
VYR_EXPORT std::size_t skip_decimal(const char** cursor);

/// Reads digits, an optional point and further digits into a single-precision number; returns the number of
/// characters, the point included. Without any `*seconds` stays.
VYR_EXPORT std::size_t parse_seconds(const char** cursor, float* seconds);

/// Compares `count` characters of `text` from `pos` (fewer at its end) with the whole of `other`: negative, zero
/// or positive.
VYR_EXPORT int stringncompare(const std::string& text, const char* other, std::size_t pos, std::size_t count);

}  // namespace lmx
