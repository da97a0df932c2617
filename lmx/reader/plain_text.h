// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Steps through text that stands for itself, by blocks of sixteen bytes where the processor has them.

#pragma once

#include <cstddef>

#include "lmx/reader/byte_set.h"

#if defined(__SSE2__)
#include <emmintrin.h>

#include <bit>
#endif

namespace lmx {

/// Whether a byte isn't plain text: the stop, a reference, a line end, a null, or part of a longer character.
constexpr bool is_special(char c, char stop) {
    return c == stop || c == '&' || c == '\n' || c == '\r' || static_cast<signed char>(c) <= 0;
}

/// The first byte that isn't plain text, or the end.
inline const char* find_special(const char* at, const char* end, char stop) {
#if defined(__SSE2__)
    const __m128i stops = _mm_set1_epi8(stop);
    for (; end - at >= 16; at += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const __m128i is_stop = _mm_or_si128(_mm_cmpeq_epi8(bytes, stops), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('&')));
        const __m128i is_end =
            _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r')));
        const __m128i is_odd = _mm_cmplt_epi8(bytes, _mm_set1_epi8(1));
        const int found = _mm_movemask_epi8(_mm_or_si128(_mm_or_si128(is_stop, is_end), is_odd));
        if (found != 0) return at + std::countr_zero(static_cast<unsigned>(found));
    }
#endif
    while (at != end && !is_special(*at, stop)) ++at;
    return at;
}

/// The first byte that isn't white space, or the end; counts the line feeds ahead of it.
inline const char* skip_blanks(const char* at, const char* end, int* line_feeds) {
#if defined(__SSE2__)
    while (end - at >= 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const __m128i is_blank = _mm_cmpeq_epi8(bytes, _mm_set1_epi8(' '));
        // From a tab to a form feed they follow one another.
        const __m128i above_tab = _mm_sub_epi8(bytes, _mm_set1_epi8('\t'));
        const __m128i is_control = _mm_cmpeq_epi8(_mm_min_epu8(above_tab, _mm_set1_epi8('\f' - '\t')), above_tab);
        const auto others = ~static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(is_blank, is_control)));
        auto feeds = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n'))));
        const int count = std::countr_zero(others);  // never more than the 16 bits of the mask
        for (feeds &= (1U << count) - 1; feeds != 0; feeds &= feeds - 1) ++*line_feeds;
        at += count;
        if (count < 16) return at;
    }
#endif
    for (; at != end && !k_stops_of_blanks[static_cast<unsigned char>(*at)]; ++at) {
        *line_feeds += static_cast<int>(*at == '\n');
    }
    return at;
}

/// The size of what stands ahead of the first byte that no name of ASCII holds; all if there is none.
inline std::size_t name_size(const char* at, const char* end) {
    const char* const start = at;
#if defined(__SSE2__)
    for (; end - at >= 16; at += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const __m128i above_a = _mm_sub_epi8(_mm_or_si128(bytes, _mm_set1_epi8(' ')), _mm_set1_epi8('a'));
        const __m128i is_letter = _mm_cmpeq_epi8(_mm_min_epu8(above_a, _mm_set1_epi8('z' - 'a')), above_a);
        // From a hyphen to a colon all follow one another, but for the slash.
        const __m128i above_hyphen = _mm_sub_epi8(bytes, _mm_set1_epi8('-'));
        const __m128i is_other = _mm_cmpeq_epi8(_mm_min_epu8(above_hyphen, _mm_set1_epi8(':' - '-')), above_hyphen);
        const __m128i is_mark = _mm_or_si128(_mm_andnot_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('/')), is_other),
                                             _mm_cmpeq_epi8(bytes, _mm_set1_epi8('_')));
        const auto stops = ~static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(is_letter, is_mark))) & 0xFFFFU;
        if (stops != 0) return static_cast<std::size_t>(at - start + std::countr_zero(stops));
    }
#endif
    while (at != end && !k_stops_of_names[static_cast<unsigned char>(*at)]) ++at;
    return static_cast<std::size_t>(at - start);
}

}  // namespace lmx
