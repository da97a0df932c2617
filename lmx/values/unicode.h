// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// UTF-8 and UTF-16: single characters, whole strings, lengths in characters.
///
/// Narrow strings hold UTF-8, wide ones UTF-16. No function here fails: malformed text ends a conversion early
/// and silently, and the target keeps what came before.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "lmx/export.h"

namespace lmx {

/// Decodes the character at `text`, which a null ends. False on a byte that can't stand there: then `*c` is -1 for
/// a bad first byte, and what was decoded so far for a bad later one. Overlong forms and surrogates pass.
VYR_EXPORT bool utf8_to_unicode_char(const char* text, int* c);

/// Writes the character and a null into `buffer` (5 bytes or more) and returns it. A negative value is written as
/// its low byte.
VYR_EXPORT char* unicode_char_to_utf8(int c, char* buffer);

/// Whether the first two bytes of a sequence are a legal start: no overlong form, no surrogate, nothing past
/// U+10FFFF.
VYR_EXPORT bool is_valid_utf8_char_sequence(const char* text);

/// Replaces the target by the text in UTF-16; returns the target. A surrogate pair written as two sequences of
/// three bytes arrives as that pair.
VYR_EXPORT std::u16string& vtostring(std::u16string& target, const std::string& source);
/// Replaces the target by a copy; returns the target.
VYR_EXPORT std::string& vtostring(std::string& target, const std::string& source);

/// Replaces the target by the text in UTF-8; returns the target. A high surrogate without its partner is written
/// by itself, and the unit behind it is lost.
VYR_EXPORT std::string& convert(std::string* target, const std::u16string& source);
/// The same as `vtostring`.
VYR_EXPORT std::u16string& convert(std::u16string* target, const std::string& source);

/// The same by value.
inline std::string convert_to_narrow(const std::u16string& source) {
    std::string target;
    return convert(&target, source);
}
inline std::u16string convert_to_wide(const std::string& source) {
    std::u16string target;
    return convert(&target, source);
}

/// The number of characters. A surrogate pair written as two sequences counts once; a byte that can't start a
/// character counts once and ends the count.
VYR_EXPORT std::size_t length(const std::string& text);

/// Whether the text has at least, or at most, so many characters; most texts need no counting.
VYR_EXPORT bool is_min_length_ok(const std::string& text, std::size_t minimum);
VYR_EXPORT bool is_max_length_ok(const std::string& text, std::size_t maximum);

/// Whether each surrogate of a UTF-16 text is half of a pair.
VYR_EXPORT bool is_well_formed(std::u16string_view text);

}  // namespace lmx
