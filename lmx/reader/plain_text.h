// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Finds the end of text that stands for itself, by blocks of sixteen bytes where the processor has them.

#pragma once

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

}  // namespace lmx
