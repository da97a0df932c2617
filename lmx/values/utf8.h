// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The bits of UTF-8 and UTF-16, on which all that reads, converts, writes and shows text stands.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lmx::utf8 {

constexpr bool is_high_surrogate(std::uint32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
constexpr bool is_low_surrogate(std::uint32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }
constexpr std::uint32_t join_surrogates(std::uint32_t high, std::uint32_t low) {
    return (((high & 0x3FFU) + 0x40U) << 10U) + (low & 0x3FFU);
}

constexpr bool is_continuation(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; }

/// The number of bytes that a lead byte announces, up to 4; 0 for a byte that is none.
constexpr std::size_t sequence_size(char lead) {
    const auto byte = static_cast<unsigned char>(lead);
    if (byte < 0x80) return 1;
    if ((byte & 0xE0U) == 0xC0) return 2;
    if ((byte & 0xF0U) == 0xE0) return 3;
    return (byte & 0xF8U) == 0xF0 ? 4 : 0;
}

/// A sequence as its lead byte announces it, decoded as far as it goes on. Overlong forms and surrogates pass.
struct s_sequence {
    std::uint32_t code;
    std::size_t size;  ///< as announced; 0 for a byte that begins none
    std::size_t read;

    constexpr bool is_whole() const { return size != 0 && read == size; }
};

/// Looks at `room` bytes at most, which is at least 1.
constexpr s_sequence read_sequence(const char* text, std::size_t room) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t size = sequence_size(text[0]);
    std::uint32_t code = size < 2 ? lead : lead & (0x7FU >> size);
    std::size_t read = 1;
    for (; read < size && read < room && is_continuation(text[read]); ++read) {
        code = (code << 6U) | (static_cast<unsigned char>(text[read]) & 0x3FU);
    }
    return {code, size, read};
}

struct s_character {
    char32_t code;     ///< a byte that begins no character as it is
    std::size_t size;  ///< 0 for such a byte
};

/// The character at the start of a text, which isn't empty, if it stands there by all rules of UTF-8.
constexpr s_character first_character(std::string_view text) {
    constexpr std::uint32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
    const s_sequence sequence = read_sequence(text.data(), text.size());
    const std::uint32_t code = sequence.code;
    const bool is_surrogate = is_high_surrogate(code) || is_low_surrogate(code);
    if (!sequence.is_whole() || code < least[sequence.size] || is_surrogate || code > 0x10FFFF) {
        return {static_cast<unsigned char>(text[0]), 0};
    }
    return {code, sequence.size};
}

/// Writes a character, of 4 bytes at most, and returns the place behind it. A value above the range of Unicode keeps
/// its low bits.
constexpr char* write(std::uint32_t c, char* out) {
    const auto tail = [c](unsigned shift) { return static_cast<char>(0x80U | ((c >> shift) & 0x3FU)); };
    if (c < 0x80) {
        *out++ = static_cast<char>(c);
    } else if (c < 0x800) {
        *out++ = static_cast<char>(0xC0U | (c >> 6U));
        *out++ = tail(0);
    } else if (c < 0x10000) {
        *out++ = static_cast<char>(0xE0U | (c >> 12U));
        *out++ = tail(6);
        *out++ = tail(0);
    } else {
        *out++ = static_cast<char>(0xF0U | (c >> 18U));
        *out++ = tail(12);
        *out++ = tail(6);
        *out++ = tail(0);
    }
    return out;
}

}  // namespace lmx::utf8
