// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/read_back.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>

#include "lmx/binding/storage.h"
#include "lmx/binding/unmarshal.h"
#include "lmx/binding/value_kinds.h"
#include "lmx/values/characters.h"
#include "lmx/values/unicode.h"
#include "lmx/values/utf8.h"

namespace lmx {
namespace {

constexpr bool is_line_end(char16_t unit) { return unit == u'\r' || unit == 0x85 || unit == 0x2028; }
constexpr bool is_plain(char16_t unit) {
    return !is_line_end(unit) && !utf8::is_high_surrogate(unit) && !utf8::is_low_surrogate(unit);
}

/// Whether a text has neither a line end that reading replaces nor any surrogate: four units at a time, since this is
/// asked of nearly all that is saved.
bool is_plain(std::u16string_view text) {
    constexpr std::size_t k_units = 4;
    constexpr std::uint64_t k_ones = 0x0001000100010001;
    // The top bit of each unit that is 0, and maybe of others behind such a one.
    const auto zeros = [](std::uint64_t units) { return (units - k_ones) & ~units & (k_ones << 15U); };
    const auto is_plain_at = [&](const char16_t* at) {
        std::uint64_t units = 0;
        std::memcpy(&units, at, sizeof units);
        const std::uint64_t returns = zeros(units ^ (k_ones * u'\r'));
        if (((units & (k_ones * 0xFF80)) | returns) == 0) return true;
        return (returns | zeros(units ^ (k_ones * 0x85)) | zeros(units ^ (k_ones * 0x2028)) |
                zeros((units & (k_ones * 0xF800)) ^ (k_ones * 0xD800))) == 0;
    };
    if (text.size() < k_units) {
        return std::all_of(text.begin(), text.end(), [](char16_t unit) { return is_plain(unit); });
    }
    const char16_t* const last = text.data() + text.size() - k_units;
    for (const char16_t* at = text.data(); at < last; at += k_units) {
        if (!is_plain_at(at)) return false;
    }
    return is_plain_at(last);
}

std::string collapsed(const std::string& text) {
    std::string result;
    for (const char c : text) {
        if (!xisspace(c)) {
            result += c;
        } else if (!result.empty() && result.back() != ' ') {
            result += ' ';
        }
    }
    if (!result.empty() && result.back() == ' ') result.pop_back();
    return result;
}

/// Whether nothing but the length is bounded, and the text is within the bounds however its characters are counted.
bool has_plain_length(const s_facets& facets, const std::u16string& text) {
    return facets.pattern == nullptr && facets.enumeration == nullptr && facets.minimum_length <= 1 &&
           !text.empty() && text.size() <= facets.maximum_length;
}

elmx_error check_text(const s_item& item, const std::u16string& value) {
    const s_facets* const facets = item.facets;
    if (facets == nullptr && item.whitespace == ELMX_WS_PRESERVE && is_plain(value)) return ELMX_OK;
    const bool is_lost = lost_in_text(item, value) != nullptr;
    const bool is_right = facets == nullptr || (!is_lost && has_plain_length(*facets, value));
    if (!is_right) {
        std::string text;
        convert(&text, value);
        const elmx_error code = check_as_read(item, item.whitespace == ELMX_WS_COLLAPSE ? collapsed(text) : text);
        if (code != ELMX_OK) return code;
    }
    return is_lost ? ELMX_VALUE_BAD_FORMAT : ELMX_OK;
}

}  // namespace

const char* lost_in_text(const s_item& item, std::u16string_view text) {
    if (item.whitespace == ELMX_WS_COLLAPSE && !is_collapsed(text)) {
        return "of white space only single blanks between words are read back";
    }
    if (is_plain(text)) return nullptr;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (is_line_end(unit)) return "only the line feed is read back as a line end";
        if (utf8::is_high_surrogate(unit) && i + 1 < text.size() && utf8::is_low_surrogate(text[i + 1])) {
            ++i;
        } else if (utf8::is_high_surrogate(unit) || utf8::is_low_surrogate(unit)) {
            return "the text ends at half a surrogate pair";
        }
    }
    return nullptr;
}

elmx_error code_of_reading(const s_item& item, const void* value, std::string* scratch) {
    if (kind_of(item).is_text) return check_text(item, text_in(item, value));
    print_value(item, value, scratch);
    return check_as_read(item, *scratch);
}

}  // namespace lmx
