// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/json.h"

#include "tools/text.h"

namespace vyr_tool {

json json_string(std::string_view text) { return json(std::string(text)); }

std::string to_text(const json& value, bool in_one_line) {
    return printable_json(value.dump(in_one_line ? -1 : 2, ' ', false, json::error_handler_t::replace));
}

}  // namespace vyr_tool
