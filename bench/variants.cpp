// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/variants.h"

#include <algorithm>
#include <string_view>

namespace vyr_bench {
namespace {

std::string replaced(const std::string& document, std::string_view from, std::string_view to) {
    std::string result;
    result.reserve(document.size());
    std::size_t start = 0;
    for (std::size_t at = document.find(from); at != document.npos; at = document.find(from, start)) {
        result.append(document, start, at - start).append(to);
        start = at + from.size();
    }
    return result.append(document, start);
}

}  // namespace

std::string in_utf16(const std::string& document) {
    std::string result = "\xFF\xFE";
    for (const char c : replaced(document, "UTF-8", "UTF-16")) {
        result += c;
        result += '\0';
    }
    return result;
}

std::string with_carriage_returns(const std::string& document) { return replaced(document, "\n", "\r\n"); }

std::string in_latin1(const std::string& document) {
    return replaced(replaced(document, "UTF-8", "ISO-8859-1"), "Colour ", "Gr\xFCn ");
}

std::string in_unusual_shape(const std::string& document) {
    std::string text = replaced(replaced(document, "Vyr:", "colors:"), "xmlns:Vyr=", "xmlns:colors=");
    std::replace(text.begin() + static_cast<std::ptrdiff_t>(text.find("?>")), text.end(), '"', '\'');
    std::string result;
    std::size_t line = 0;
    for (std::size_t start = 0; start < text.size(); ++line) {
        const std::size_t end = std::min(text.find('\n', start), text.size() - 1) + 1;
        if (line % 10 == 9) result += "<!-- ten more -->";
        result.append(text, start, end - start);
        start = end;
    }
    return result;
}

std::string with_foreign_text(const std::string& document) { return replaced(document, "Colour ", "\xE7\xB4\x99 "); }

}  // namespace vyr_bench
