// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

#include "lmx/values/hidden.h"
#include "lmx/values/utf8.h"
#include "tools/system.h"

namespace vyr_tool {

namespace {

constexpr lmx::s_code_range k_zero_width[] = {{0x300, 0x36F},   {0x483, 0x489},   {0x591, 0x5BD},
                                              {0x610, 0x61A},   {0x64B, 0x65F},   {0x1AB0, 0x1AFF},
                                              {0x1DC0, 0x1DFF}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}};
constexpr lmx::s_code_range k_double_width[] = {
    {0x1100, 0x115F}, {0x2E80, 0x303E}, {0x3041, 0xA4CF},   {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},  {0xFE30, 0xFE6F},
    {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1F64F}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};

constexpr char32_t k_no_character = 0xFFFFFFFF;

/// Takes one character from the front; of what is no UTF-8 one byte.
char32_t take_character(std::string_view& text) {
    const lmx::utf8::s_character character = lmx::utf8::first_character(text);
    text.remove_prefix(std::max<std::size_t>(character.size, 1));
    return character.size == 0 ? k_no_character : character.code;
}

std::size_t columns_of(char32_t c) { return lmx::is_in(k_zero_width, c) ? 0 : lmx::is_in(k_double_width, c) ? 2 : 1; }

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
        } else if (lmx::is_hidden(c)) {
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
        if (c == '\n' || !lmx::is_hidden(c)) {
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

std::string in_quotes(std::string_view text) { return '"' + printable(text) + '"'; }

std::size_t width(std::string_view text) {
    std::size_t columns = 0;
    while (!text.empty()) columns += columns_of(take_character(text));
    return columns;
}

std::string_view narrowed(std::string_view text, std::size_t columns) {
    std::string_view rest = text;
    for (std::size_t end = 0;; end = text.size() - rest.size()) {
        if (rest.empty()) return text;
        const std::size_t next = columns_of(take_character(rest));
        if (next > columns) return text.substr(0, end);
        columns -= next;
    }
}

std::string counted(std::uint64_t count, std::string_view one, std::string_view many) {
    return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

std::string short_number(double number) {
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), "%.6g", number);
    return digits.data();
}

bool use_color(const color_mode& mode) {
    if (mode != "auto") return mode == "always";
    return system::obeys_sequences(system::k_output) && !has_environment("NO_COLOR");
}

std::string colored(std::string_view text, const char* color) { return std::string(color).append(text) + "\x1B[0m"; }

bool use_curves() { return system::has_utf8_terminal() && system::is_terminal(system::k_output); }

bool use_true_color(const color_mode& mode) {
    if (mode != "auto") return mode == "always";
    const char* const announced = std::getenv("COLORTERM");
    const std::string_view kind = announced == nullptr ? "" : announced;
    return use_color(mode) && (kind == "truecolor" || kind == "24bit");
}

}  // namespace vyr_tool
