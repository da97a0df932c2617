// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/text.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace vyr_tool {

namespace {

struct s_range {
    char32_t first;
    char32_t last;
};

/// Control characters, marks of direction, line ends of Unicode, and what can't be seen.
constexpr s_range k_hostile[] = {{0, 0x1F},        {0x7F, 0x9F},     {0xAD, 0xAD},     {0x61C, 0x61C},
                                 {0x180E, 0x180E}, {0x200B, 0x200B}, {0x200E, 0x200F}, {0x2028, 0x202E},
                                 {0x2060, 0x206F}, {0xFEFF, 0xFEFF}, {0xFFF9, 0xFFFB}, {0xE0000, 0xE0FFF}};
constexpr s_range k_zero_width[] = {{0x300, 0x36F},   {0x483, 0x489},   {0x591, 0x5BD},   {0x610, 0x61A},
                                    {0x64B, 0x65F},   {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x200C, 0x200D},
                                    {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}};
constexpr s_range k_double_width[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0xA4CF},  {0xAC00, 0xD7A3},
                                      {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},  {0xFFE0, 0xFFE6},
                                      {0x1F300, 0x1F64F}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};

template <std::size_t N>
bool is_in(const s_range (&ranges)[N], char32_t c) {
    return std::ranges::any_of(ranges, [c](const s_range& range) { return c >= range.first && c <= range.last; });
}

constexpr char32_t k_no_character = 0xFFFFFFFF;

/// Takes one character from the front; of what is no UTF-8 one byte.
char32_t take_character(std::string_view& text) {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    char32_t c = length < 2 ? lead : lead & (0x7FU >> length);
    bool is_valid = length != 0 && length <= text.size();
    for (std::size_t i = 1; is_valid && i < length; ++i) {
        is_valid = (byte(i) & 0xC0U) == 0x80U;
        c = (c << 6U) | (byte(i) & 0x3FU);
    }
    is_valid = is_valid && !(length == 3 && (c < 0x800 || (c >= 0xD800 && c <= 0xDFFF))) &&
               !(length == 4 && (c < 0x10000 || c > 0x10FFFF));
    text.remove_prefix(is_valid ? length : 1);
    return is_valid ? c : k_no_character;
}

std::string format(const char* form, unsigned number) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), form, number);
    return text.data();
}

bool has_environment(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr && *value != '\0';
}

}  // namespace

std::string printable(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const std::string_view before = text;
        const char32_t c = take_character(text);
        if (c == k_no_character) {
            out += format("\\x%02X", static_cast<unsigned char>(before[0]));
        } else if (is_in(k_hostile, c)) {
            out += format("\\u{%X}", static_cast<unsigned>(c));
        } else {
            out += before.substr(0, before.size() - text.size());
        }
    }
    return out;
}

std::string printable_json(std::string_view json) {
    std::string out;
    while (!json.empty()) {
        const std::string_view before = json;
        const char32_t c = take_character(json);
        if (c == '\n' || !is_in(k_hostile, c)) {
            out += before.substr(0, before.size() - json.size());
        } else if (c > 0xFFFF) {
            const auto rest = static_cast<unsigned>(c) - 0x10000U;
            out += format("\\u%04x", 0xD800U + (rest >> 10U)) + format("\\u%04x", 0xDC00U + (rest & 0x3FFU));
        } else {
            out += format("\\u%04x", static_cast<unsigned>(c));
        }
    }
    return out;
}

std::string quoted(std::string_view text) { return '"' + printable(text) + '"'; }

std::size_t width(std::string_view text) {
    std::size_t columns = 0;
    while (!text.empty()) {
        const char32_t c = take_character(text);
        columns += is_in(k_zero_width, c) ? 0 : is_in(k_double_width, c) ? 2 : 1;
    }
    return columns;
}

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

bool use_color(const color_mode& mode) {
    if (mode != "auto") return mode == "always";
    const char* const terminal = std::getenv("TERM");
    return isatty(STDOUT_FILENO) != 0 && !has_environment("NO_COLOR") &&
           std::string_view(terminal == nullptr ? "" : terminal) != "dumb";
}

bool use_true_color(const color_mode& mode) {
    if (mode != "auto") return mode == "always";
    const char* const announced = std::getenv("COLORTERM");
    const std::string_view kind = announced == nullptr ? "" : announced;
    return use_color(mode) && (kind == "truecolor" || kind == "24bit");
}

}  // namespace vyr_tool
