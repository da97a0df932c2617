// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/decoded_window.h"

#include <algorithm>
#include <cstring>

#include "lmx/reader/get_as_utf8.h"
#include "lmx/reader/plain_text.h"
#include "lmx/values/unicode.h"
#include "lmx/values/utf8.h"

namespace lmx {
namespace {

constexpr std::size_t k_most = 32768;
constexpr std::size_t k_least = 64;
constexpr std::size_t k_longest_char = 8;

int byte_at(const char* at) { return static_cast<unsigned char>(*at); }

/// A character's text; a line feed for line ends of any form, but not for a carriage return.
int write_char(int code_point, char* out) {
    if (code_point == k_next_line || code_point == k_line_separator) code_point = '\n';
    unicode_char_to_utf8(code_point, out);
    return std::max(1, static_cast<int>(std::strlen(out)));
}

}  // namespace

std::size_t utf8_line_end(std::string_view bytes) {
    if (bytes.starts_with("\xC2\x85")) return 2;
    return bytes.starts_with("\xE2\x80\xA8") ? 3 : 0;
}

std::size_t whole_utf8_char(std::string_view bytes) {
    const std::size_t size = utf8::first_character(bytes).size;
    return size > 1 ? size : 0;
}

c_decoded_window::c_decoded_window() : m_limit(k_most) {}

bool c_decoded_window::is_wide() const { return m_encoding != enc_utf8 && m_encoding != enc_single_byte; }

/// The next character of the source, and its size; 0 if it isn't there whole, or isn't legal.
int c_decoded_window::read_char(const char** at, char* out) const {
    const char* const from = *at;
    const auto left = static_cast<std::size_t>(m_source_end - from);
    if (is_wide()) {
        const bool is_big = m_encoding == enc_utf16_be || m_encoding == enc_ucs2_be;
        const auto unit_at = [&](const char* unit) {
            return static_cast<std::uint32_t>(byte_at(unit + !is_big) << 8 | byte_at(unit + is_big));
        };
        if (left < 2) return 0;
        std::uint32_t unit = unit_at(from);
        *at += 2;
        const bool is_paired = m_encoding == enc_utf16_be || m_encoding == enc_utf16_le;
        if (is_paired && utf8::is_high_surrogate(unit)) {
            const std::uint32_t next = left < 4 ? 0 : unit_at(from + 2);
            if (!utf8::is_low_surrogate(next)) return 0;
            unit = utf8::join_surrogates(unit, next);
            *at += 2;
        }
        return write_char(static_cast<int>(unit), out);
    }
    if (left == 0) return 0;
    if (static_cast<signed char>(*from) >= 0) {
        *out = *from;
        ++*at;
        return 1;
    }
    if (m_encoding == enc_single_byte) {
        ++*at;
        return write_char(byte_at(from), out);
    }
    const std::size_t length = whole_utf8_char({from, left});
    *at += length;
    if (utf8_line_end({from, left}) != 0) {
        *out = '\n';
        return 1;
    }
    std::copy_n(from, length, out);
    return static_cast<int>(length);
}

/// The next character of the text, which it moves the place behind.
int c_decoded_window::decode_char(s_place* place, char* out) const {
    const char* at = place->at;
    int size = read_char(&at, out);
    if (size != 0 && *out == '\n' && place->is_behind_return) size = read_char(&at, out);
    if (size == 0) return 0;
    place->is_behind_return = *out == '\r';
    if (place->is_behind_return) *out = '\n';
    place->at = at;
    place->size += static_cast<std::size_t>(size);
    return size;
}

/// Copies characters of ASCII that are no carriage returns; some may be left. `out` has 16 bytes more than `room`.
std::size_t c_decoded_window::copy_plain(const char* at, char* out, std::size_t room) const {
    std::size_t count = 0;
    const auto left = static_cast<std::size_t>(m_source_end - at);
    if (is_wide()) {
        const std::size_t most = std::min(room, left / 2);
        const bool is_big = m_encoding == enc_utf16_be || m_encoding == enc_ucs2_be;
#if defined(__SSE2__)
        for (; most - count >= 8; count += 8) {
            __m128i units = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + 2 * count));
            if (is_big) units = _mm_or_si128(_mm_slli_epi16(units, 8), _mm_srli_epi16(units, 8));
            const __m128i high = _mm_and_si128(units, _mm_set1_epi16(static_cast<short>(0xFF80)));
            const __m128i is_ascii = _mm_cmpeq_epi16(high, _mm_setzero_si128());
            const __m128i is_return = _mm_cmpeq_epi16(units, _mm_set1_epi16('\r'));
            const __m128i is_plain = _mm_andnot_si128(is_return, is_ascii);
            _mm_storel_epi64(reinterpret_cast<__m128i*>(out + count), _mm_packus_epi16(units, units));
            const auto odd = ~static_cast<unsigned>(_mm_movemask_epi8(is_plain)) & 0xFFFFU;
            if (odd != 0) return count + static_cast<std::size_t>(std::countr_zero(odd)) / 2;
        }
#endif
        for (; count < most; ++count) {
            const char* const unit = at + 2 * count;
            const char low = unit[is_big];
            if (unit[!is_big] != 0 || static_cast<signed char>(low) < 0 || low == '\r') break;
            out[count] = low;
        }
        return count;
    }
    const std::size_t most = std::min(room, left);
#if defined(__SSE2__)
    for (; most - count >= 16; count += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + count));
        const __m128i is_return = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r'));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out + count), bytes);
        const auto odd = static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(bytes, is_return)));
        if (odd != 0) return count + static_cast<std::size_t>(std::countr_zero(odd));
    }
#endif
    for (; count < most; ++count) {
        if (static_cast<signed char>(at[count]) < 0 || at[count] == '\r') break;
        out[count] = at[count];
    }
    return count;
}

bool c_decoded_window::decode(int encoding, std::string_view source, bool is_behind_return) {
    if (m_text == nullptr) m_text = std::make_unique_for_overwrite<char[]>(k_most + 16);
    // A text that was given up ahead of its end must not have cost more than what was read.
    m_limit = m_size > m_place.size ? k_least : std::min(2 * m_limit, k_most);
    m_encoding = encoding;
    m_source_end = source.data() + source.size();
    m_is_changed = is_wide();
    s_place place{source.data(), 0, is_behind_return};
    while (place.size + k_longest_char <= m_limit) {
        if (!place.is_behind_return) {
            const std::size_t count = copy_plain(place.at, m_text.get() + place.size, m_limit - place.size);
            place.at += is_wide() ? 2 * count : count;
            place.size += count;
            if (place.size + k_longest_char > m_limit) break;
        }
        const char* const from = place.at;
        const int size = decode_char(&place, m_text.get() + place.size);
        if (size == 0) break;
        m_is_changed = m_is_changed || place.is_behind_return || place.at != from + size;
    }
    m_size = place.size;
    m_end_place = place;
    m_place = {source.data(), 0, is_behind_return};
    return m_size != 0;
}

bool c_decoded_window::resume(const char* at, bool is_behind_return) {
    if (m_size == 0) return false;
    while (m_place.at < at && m_place.size < m_size) {
        const s_place before = m_place;
        m_char_size = decode_char(&m_place, m_char);
        if (m_place.at <= at) continue;
        // The second half of a pair may have been read by itself.
        m_place = before;
        const char* behind = m_place.at;
        read_char(&behind, m_char);
        if (!before.is_behind_return || behind != at) return false;
        m_place.at = at;
        m_place.is_behind_return = false;
    }
    return m_place.at == at && m_place.is_behind_return == is_behind_return && m_place.size < m_size;
}

const c_decoded_window::s_place& c_decoded_window::seek(const char* to) {
    const auto size = static_cast<std::size_t>(to - m_text.get());
    if (size == m_size) m_place = m_end_place;
    while (m_place.size < size) m_char_size = decode_char(&m_place, m_char);
    return m_place;
}

std::string_view c_decoded_window::rest_of_char(const char* to) const {
    const std::size_t rest = m_place.size - static_cast<std::size_t>(to - m_text.get());
    return {m_char + static_cast<std::size_t>(m_char_size) - rest, rest};
}

}  // namespace lmx
