// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Results as JSON.

#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace vyr_tool {

/// Keeps the members in the order in which they are given.
using json = nlohmann::ordered_json;

/// A stranger's text as a JSON string: bytes that are no UTF-8 become U+FFFD.
json json_string(std::string_view text);

/// The value as text that no terminal minds, indented by two; `in_one_line` without.
std::string to_text(const json& value, bool in_one_line = false);

}  // namespace vyr_tool
