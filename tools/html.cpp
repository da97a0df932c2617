// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/html.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "tools/colors.h"
#include "tools/text.h"

namespace vyr_tool {

namespace {

using lmx::value_kind;

constexpr std::pair<char, std::string_view> k_entities[] = {
    {'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&#39;"}};
constexpr std::string_view k_layout = "\n\t";

void add_escaped(std::string& out, std::string_view text) {
    for (const char c : printable(text)) {
        const auto* const entity = std::ranges::find(k_entities, c, &std::pair<char, std::string_view>::first);
        if (entity == std::end(k_entities)) {
            out += c;
        } else {
            out += entity->second;
        }
    }
}

bool is_upper(char c) { return std::isupper(static_cast<unsigned char>(c)) != 0; }
bool is_lower(char c) { return std::islower(static_cast<unsigned char>(c)) != 0; }

/// "D65" of "Illuminant_D65" in a field whose name holds "Illuminant".
std::string enumerated(std::string_view text, std::string_view name) {
    const std::size_t prefix = text.find('_');
    if (prefix != std::string_view::npos && name.find(text.substr(0, prefix)) != std::string_view::npos) {
        text.remove_prefix(prefix + 1);
    }
    std::string words(text);
    std::ranges::replace(words, '_', ' ');
    return words;
}

std::string binary_size(std::string_view base64) {
    constexpr std::size_t k_bytes_of_group = 3;
    constexpr std::size_t k_characters_of_group = 4;
    const auto characters = static_cast<std::size_t>(std::ranges::count_if(
        base64, [](char c) { return std::isspace(static_cast<unsigned char>(c)) == 0 && c != '='; }));
    return counted(characters * k_bytes_of_group / k_characters_of_group, "byte", "bytes");
}

}  // namespace

std::string html(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(k_layout), text.size());
        add_escaped(out, text.substr(0, end));
        if (end < text.size()) out += text[end];
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return out;
}

std::string words_of(std::string_view name) {
    std::string words;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const char c = name[i] == '_' ? ' ' : name[i];
        const bool is_before_small = i + 1 < name.size() && is_lower(name[i + 1]);
        const bool is_begin =
            i > 0 && is_upper(c) && (is_lower(name[i - 1]) || (is_upper(name[i - 1]) && is_before_small));
        if (is_begin) words += ' ';
        // Abbreviations stay as they are.
        words += is_begin && is_before_small ? static_cast<char>(std::tolower(static_cast<unsigned char>(c))) : c;
    }
    return html(words);
}

std::string html_value(const c_tree::field& field, std::string_view name) {
    switch (field.kind) {
        case value_kind::boolean:
            return field.value == "true" ? "yes" : "no";
        case value_kind::enumerated:
            return html(enumerated(field.value, name));
        case value_kind::binary:
            return binary_size(field.value);
        case value_kind::number:
            return html(shown_value(field.value, field.kind));
        default:
            return html(field.value);
    }
}

}  // namespace vyr_tool
