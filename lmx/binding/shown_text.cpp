// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/shown_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <numeric>
#include <utility>
#include <vector>

#include "lmx/values/hidden.h"
#include "lmx/values/utf8.h"

namespace lmx {
namespace {

constexpr std::pair<char, char> k_letters[] = {{'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}};

void append_hexadecimal(std::string* out, const char* start, unsigned value, std::size_t digits) {
    std::array<char, 8> buffer{};
    const char* const end = std::to_chars(buffer.begin(), buffer.end(), value, 16).ptr;
    const auto length = static_cast<std::size_t>(end - buffer.data());
    out->append(start).append(digits > length ? digits - length : 0, '0').append(buffer.data(), length);
}

void append_hidden(std::string* out, char32_t code) {
    for (const auto& [character, letter] : k_letters) {
        if (static_cast<char32_t>(character) == code) {
            *out += '\\';
            *out += letter;
            return;
        }
    }
    if (code > 0xFFFF) {
        append_hexadecimal(out, "\\U", code, 8);
    } else {
        append_hexadecimal(out, "\\u", code, 4);
    }
}

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; }

/// How many letters must be put in, taken out or replaced to make one text of the other, their case apart.
std::size_t distance_of(std::string_view one, std::string_view other) {
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), 0U);
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::size_t diagonal = row[0]++;
        for (std::size_t k = 0; k < other.size(); ++k) {
            const std::size_t replaced = diagonal + static_cast<std::size_t>(lower(one[i]) != lower(other[k]));
            diagonal = row[k + 1];
            row[k + 1] = std::min({replaced, diagonal + 1, row[k] + 1});
        }
    }
    return row.back();
}

std::string make_shown(std::string_view text, std::size_t limit, std::string_view escaped) {
    std::string out;
    for (; !text.empty() && limit > 0; --limit) {
        const utf8::s_character character = utf8::first_character(text);
        if (character.size == 0) {
            append_hexadecimal(&out, "\\x", character.code, 2);
        } else if (is_hidden(character.code)) {
            append_hidden(&out, character.code);
        } else {
            if (escaped.find(text[0]) != escaped.npos) out += '\\';
            out += text.substr(0, character.size);
        }
        text.remove_prefix(std::max<std::size_t>(character.size, 1));
    }
    if (!text.empty()) out += "\u2026";
    return out;
}

}  // namespace

std::string shown(std::string_view text, std::size_t limit) { return make_shown(text, limit, ""); }

std::string in_quotes(std::string_view text, std::size_t limit) {
    return joined({"\"", make_shown(text, limit, "\"\\"), "\""});
}

std::string listed(std::span<const std::string> names, std::string_view conjunction) {
    constexpr std::size_t k_most = 12;
    const std::size_t count = names.size() > k_most ? k_most - 2 : names.size();
    std::string out;
    for (std::size_t i = 0; i < count; ++i) {
        if (i > 0) out += i + 1 == names.size() ? joined({" ", conjunction, " "}) : ", ";
        out += names[i];
    }
    if (count < names.size()) {
        out += joined({" ", conjunction, " ", std::to_string(names.size() - count), " others"});
    }
    return out;
}

std::string nearest(std::string_view text, std::span<const std::string> names) {
    constexpr std::size_t k_longest = 64;
    std::string best;
    std::size_t least = std::clamp<std::size_t>(text.size() / 4, 1, 4) + 1;
    if (text.size() > k_longest || std::find(names.begin(), names.end(), text) != names.end()) return best;
    for (const std::string& name : names) {
        if (const std::size_t distance = distance_of(text, name); distance < least) {
            least = distance;
            best = name;
        }
    }
    return best;
}

std::string joined(std::initializer_list<std::string_view> parts) {
    std::string out;
    for (const std::string_view part : parts) out += part;
    return out;
}

std::string shown(double number) {
    std::array<char, 400> buffer{};
    return {buffer.data(), std::to_chars(buffer.begin(), buffer.end(), number, std::chars_format::fixed).ptr};
}

}  // namespace lmx
