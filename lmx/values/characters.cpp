// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The text cursor.

#include "lmx/values/characters.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace lmx {

std::size_t skip_digits(const char** cursor) {
    const char* const start = *cursor;
    while (xisdigit(**cursor)) ++*cursor;
    return static_cast<std::size_t>(*cursor - start);
}

std::size_t parse_uint(const char** cursor, std::uint32_t* value) {
    const char* const start = *cursor;
    std::uint32_t sum = 0;  // unsigned: a stranger's digits may wrap it
    for (; xisdigit(**cursor); ++*cursor) sum = sum * 10 + static_cast<std::uint32_t>(**cursor - '0');
    if (*cursor != start) *value = sum;
    return static_cast<std::size_t>(*cursor - start);
}

bool skip_sign(const char** cursor) {
    if (**cursor != '-' && **cursor != '+') return false;
    ++*cursor;
    return true;
}

bool match_literal(const char** cursor, const char* literal) {
    const std::size_t size = std::strlen(literal);
    if (std::strncmp(*cursor, literal, size) != 0) return false;
    *cursor += size;
    return true;
}

std::size_t skip_decimal(const char** cursor) {
    std::size_t digits = skip_digits(cursor);
    if (**cursor != '.') return digits;
    ++*cursor;
    digits += skip_digits(cursor);
    return digits == 0 ? 0 : digits + 1;
}

std::size_t parse_seconds(const char** cursor, float* seconds) {
    const char* const start = *cursor;
    // Single precision at every step: values print as this sum, not as the nearest float.
    float sum = 0.0F;
    for (; xisdigit(**cursor); ++*cursor) sum = sum * 10.0F + static_cast<float>(**cursor - '0');
    if (**cursor == '.') {
        float scale = 0.1F;
        for (++*cursor; xisdigit(**cursor); ++*cursor) {
            sum += static_cast<float>(**cursor - '0') * scale;
            scale *= 0.1F;
        }
    }
    if (*cursor != start) *seconds = sum;
    return static_cast<std::size_t>(*cursor - start);
}

int stringncompare(const std::string& text, const char* other, std::size_t pos, std::size_t count) {
    return std::string_view(text).substr(std::min(pos, text.size()), count).compare(other);
}

}  // namespace lmx
