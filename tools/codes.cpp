// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr codes`: the library's result codes, by number and by name.

#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>
#include <string_view>

#include "lmx/error.h"
#include "tools/commands.h"
#include "tools/json.h"
#include "tools/text.h"

namespace vyr_tool {

namespace {

struct s_code {
    lmx::elmx_error value;
    std::string_view name;
};

#define VYR_CODE(NAME) \
    { lmx::NAME, #NAME }

constexpr s_code k_codes[] = {
    VYR_CODE(ELMX_OK),
    VYR_CODE(ELMX_NO_FILE),
    VYR_CODE(ELMX_ALL_CARDINALITY_VIOLATION),
    VYR_CODE(ELMX_ATTRIBUTE_ALREADY_READ),
    VYR_CODE(ELMX_ATTRIBUTES_IN_ANONYMOUS_COMPOSITOR),
    VYR_CODE(ELMX_BADLY_FORMED),
    VYR_CODE(ELMX_BAD_CHAR_ENCODING),
    VYR_CODE(ELMX_BAD_CHOICE),
    VYR_CODE(ELMX_BAD_COMMENT),
    VYR_CODE(ELMX_BAD_DTD),
    VYR_CODE(ELMX_BAD_END_OF_ELEMENT),
    VYR_CODE(ELMX_BAD_START_TAG_END),
    VYR_CODE(ELMX_BAD_END_TAG),
    VYR_CODE(ELMX_BAD_XML_DECL),
    VYR_CODE(ELMX_BAD_XML_VERSION),
    VYR_CODE(ELMX_ENCODING_MISMATCH),
    VYR_CODE(ELMX_ELEMENT_NOT_FOUND),
    VYR_CODE(ELMX_EXTERNAL_ENTITY),
    VYR_CODE(ELMX_FRACTION_DIGITS_EXCEEDED),
    VYR_CODE(ELMX_LENGTH_TOO_LONG),
    VYR_CODE(ELMX_LENGTH_TOO_SHORT),
    VYR_CODE(ELMX_MANDATORY_ELEMENT_MISSING),
    VYR_CODE(ELMX_NO_PATTERN_MATCHED),
    VYR_CODE(ELMX_NOT_WELL_FORMED),
    VYR_CODE(ELMX_RECURSIVE_ENTITY),
    VYR_CODE(ELMX_REQUIRED_ATTRIBUTES_MISSING),
    VYR_CODE(ELMX_TOO_MANY_ITEMS),
    VYR_CODE(ELMX_TOTAL_DIGITS_EXCEEDED),
    VYR_CODE(ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE),
    VYR_CODE(ELMX_UNABLE_TO_READ_ELEMENT_VALUE),
    VYR_CODE(ELMX_UNKNOWN_ELEMENT_IN_ALL),
    VYR_CODE(ELMX_UNKNOWN_ELEMENT_IN_COMPLEX_CONTENT),
    VYR_CODE(ELMX_UNEXPECTED_EMPTY_ELEMENT),
    VYR_CODE(ELMX_UNEXPECTED_ENTITY),
    VYR_CODE(ELMX_UNEXPECTED_END_OF_MESSAGE),
    VYR_CODE(ELMX_VALUE_BAD_FORMAT),
    VYR_CODE(ELMX_VALUE_EXCEEDS_MAX),
    VYR_CODE(ELMX_VALUE_BELOW_MIN),
    VYR_CODE(ELMX_VALUE_NOT_ENUMERATED),
    VYR_CODE(ELMX_UNEXPECTED_ATTRIBUTE),
    VYR_CODE(ELMX_NILLED_BODY_NOT_EMPTY),
    VYR_CODE(ELMX_ENTITY_NOT_FOUND),
    VYR_CODE(ELMX_UNDEFINED_ERROR),
    VYR_CODE(ELMX_VALUE_NOT_FIXED),
    VYR_CODE(ELMX_UNKNOWN_XSI_TYPE),
    VYR_CODE(ELMX_TYPE_NOT_SET),
    VYR_CODE(ELMX_OCCURS_ERROR_ON_MARSHAL),
    VYR_CODE(ELMX_USER_DEFINED_1),
    VYR_CODE(ELMX_USER_DEFINED_2),
    VYR_CODE(ELMX_USER_DEFINED_3),
    VYR_CODE(ELMX_USER_DEFINED_4),
    VYR_CODE(ELMX_USER_DEFINED_5),
    VYR_CODE(ELMX_USER_DEFINED_6),
    VYR_CODE(ELMX_USER_DEFINED_7),
    VYR_CODE(ELMX_USER_DEFINED_8),
    VYR_CODE(ELMX_USER_DEFINED_9),
};

#undef VYR_CODE

bool is_meant(const s_code& row, const std::string& text) {
    return text == row.name || text == std::to_string(row.value);
}

}  // namespace

exit_code codes(const codes_options& options) {
    const std::vector<std::string>& wanted = options.codes;
    for (const std::string& text : wanted) {
        if (std::ranges::any_of(k_codes, [&](const s_code& row) { return is_meant(row, text); })) continue;
        std::cerr << "vyr: there is no result code " << in_quotes(text) << "; 'vyr codes' lists them all\n";
        return exit_usage_or_file;
    }
    json rows = json::array();
    for (const s_code& row : k_codes) {
        const auto is_this = [&](const std::string& text) { return is_meant(row, text); };
        if (!wanted.empty() && std::ranges::none_of(wanted, is_this)) continue;
        const char* const text = lmx::get_error_description(row.value);
        if (options.json) {
            rows.push_back({{"code", row.value}, {"name", row.name}, {"text", text}});
        } else {
            std::array<char, 160> line{};
            std::snprintf(line.data(), line.size(), "%4d  %-40s %s\n", row.value, row.name.data(), text);
            std::cout << line.data();
        }
    }
    if (options.json) std::cout << to_text(rows) << '\n';
    return exit_ok;
}

}  // namespace vyr_tool
