// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Conversions between UTF-8 and UTF-16.
///
/// Documents are mostly ASCII, so both conversions take runs of it in blocks that the compiler turns into vector
/// code, and fall back to single characters in between.

#include "lmx/values/unicode.h"

#include <cstdint>
#include <type_traits>

#include "lmx/values/utf8.h"

namespace lmx {

using utf8::is_continuation;
using utf8::is_high_surrogate;
using utf8::is_low_surrogate;
using utf8::sequence_size;

namespace {

constexpr std::size_t k_block = 16;

constexpr bool is_ascii(char c) { return static_cast<unsigned char>(c) < 0x80; }

template <class Unit>
bool is_ascii_block(const Unit* units) {
    unsigned all = 0;
    for (std::size_t i = 0; i < k_block; ++i) all |= static_cast<std::make_unsigned_t<Unit>>(units[i]);
    return all < 0x80;
}

/// Copies blocks of ASCII for as long as they last. Returns where to look for them again: where one block isn't
/// ASCII, the next ones on its units mostly aren't.
template <class From, class To>
const From* copy_ascii_blocks(const From** from, const From* end, To** to) {
    while (static_cast<std::size_t>(end - *from) >= k_block) {
        if (!is_ascii_block(*from)) return *from + k_block;
        for (std::size_t i = 0; i < k_block; ++i) (*to)[i] = static_cast<To>((*from)[i]);
        *from += k_block;
        *to += k_block;
    }
    return end;
}

/// Decodes `[from, end)` into `out` up to the first fault; returns the place behind the last unit.
char16_t* decode_utf8(const char* from, const char* end, char16_t* out) {
    std::uint32_t pending = 0;  // a high surrogate that waits for its partner
    const char* next_block = from;
    while (from != end) {
        if (pending == 0) {
            if (from >= next_block) {
                next_block = copy_ascii_blocks(&from, end, &out);
                if (from == end) break;
            }
            if (is_ascii(*from)) {
                *out++ = static_cast<char16_t>(*from++);
                continue;
            }
        }
        const utf8::s_sequence sequence = utf8::read_sequence(from, static_cast<std::size_t>(end - from));
        if (!sequence.is_whole()) break;
        const std::uint32_t c = sequence.code;
        from += sequence.size;
        if (pending != 0) {
            if (!is_low_surrogate(c)) break;
            *out++ = static_cast<char16_t>(pending);
            *out++ = static_cast<char16_t>(c);
            pending = 0;
        } else if (is_high_surrogate(c)) {
            pending = c;
        } else if (c > 0xFFFF) {
            *out++ = static_cast<char16_t>(0xD800U + (((c - 0x10000U) >> 10) & 0x3FFU));
            *out++ = static_cast<char16_t>(0xDC00U + (c & 0x3FFU));
        } else {
            *out++ = static_cast<char16_t>(c);
        }
    }
    return out;
}

}  // namespace

bool utf8_to_unicode_char(const char* text, int* c) {
    // The null that ends the text is no part of a sequence.
    const utf8::s_sequence sequence = utf8::read_sequence(text, 4);
    *c = sequence.size == 0 ? -1 : static_cast<int>(sequence.code);
    return sequence.is_whole();
}

char* unicode_char_to_utf8(int c, char* buffer) {
    char* end = buffer;
    if (c < 0) {
        *end++ = static_cast<char>(c);
    } else {
        end = utf8::write(static_cast<std::uint32_t>(c), end);
    }
    *end = '\0';
    return buffer;
}

bool is_valid_utf8_char_sequence(const char* text) {
    const auto first = static_cast<unsigned char>(text[0]);
    if (first <= 0x7F) return true;
    if (first < 0xC2 || first > 0xF4) return false;
    // Only these four leads leave part of the second byte's range to overlong forms, surrogates or beyond Unicode.
    const auto second = static_cast<unsigned char>(text[1]);
    switch (first) {
        case 0xE0:
            return second >= 0xA0 && second <= 0xBF;
        case 0xED:
            return second >= 0x80 && second <= 0x9F;
        case 0xF0:
            return second >= 0x90 && second <= 0xBF;
        case 0xF4:
            return second >= 0x80 && second <= 0x8F;
        default:
            return true;
    }
}

std::u16string& vtostring(std::u16string& target, const std::string& source) {
    // One unit for each lead byte, two for those of four-byte forms: exact for well-formed text, never too few.
    std::size_t units = 0;
    for (const char c : source) {
        units += static_cast<std::size_t>(!is_continuation(c)) +
                 static_cast<std::size_t>(static_cast<unsigned char>(c) >= 0xF0);
    }
    target.clear();
    target.resize(units);
    const char* const from = source.data();
    const char16_t* const end = decode_utf8(from, from + source.size(), target.data());
    target.resize(static_cast<std::size_t>(end - target.data()));
    return target;
}

std::string& vtostring(std::string& target, const std::string& source) { return target = source; }

std::string& convert(std::string* target, const std::u16string& source) {
    // Three bytes for a surrogate are too many for half a pair, and right for a lone one.
    std::size_t bytes = source.size();
    for (const char16_t c : source)
        bytes += static_cast<std::size_t>(c >= 0x80) + static_cast<std::size_t>(c >= 0x800);
    target->clear();
    target->resize(bytes);
    char* out = target->data();
    const char16_t* from = source.data();
    const char16_t* const end = from + source.size();
    const char16_t* next_block = from;
    while (from != end) {
        if (from >= next_block) {
            next_block = copy_ascii_blocks(&from, end, &out);
            if (from == end) break;
        }
        std::uint32_t c = *from++;
        if (is_high_surrogate(c) && from != end) {
            // The unit behind a high surrogate is consumed whether or not it's the partner.
            const std::uint32_t next = *from++;
            if (is_low_surrogate(next)) c = utf8::join_surrogates(c, next);
        }
        out = utf8::write(c, out);
    }
    target->resize(static_cast<std::size_t>(out - target->data()));
    return *target;
}

std::u16string& convert(std::u16string* target, const std::string& source) { return vtostring(*target, source); }

std::size_t length(const std::string& text) {
    std::size_t count = 0;
    std::size_t i = 0;
    while (i < text.size()) {
        ++count;
        std::size_t step = sequence_size(text[i]);
        if (step == 0) break;
        // A high surrogate in three bytes brings its partner along.
        if (static_cast<unsigned char>(text[i]) == 0xED && i + 1 < text.size() &&
            (static_cast<unsigned char>(text[i + 1]) & 0xE0) == 0xA0) {
            step = 6;
        }
        i += step;
    }
    return count;
}

bool is_min_length_ok(const std::string& text, std::size_t minimum) {
    return text.size() / 4 >= minimum || length(text) >= minimum;
}

bool is_max_length_ok(const std::string& text, std::size_t maximum) {
    if (text.size() <= maximum) return true;
    if (text.size() / 4 > maximum || (text.size() / 4 == maximum && text.size() % 4 != 0)) return false;
    return length(text) <= maximum;
}

bool is_well_formed(std::u16string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (is_low_surrogate(text[i])) return false;
        if (!is_high_surrogate(text[i])) continue;
        ++i;
        if (i == text.size() || !is_low_surrogate(text[i])) return false;
    }
    return true;
}

}  // namespace lmx
