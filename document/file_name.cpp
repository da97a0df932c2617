// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "document/file_name.h"

#include "lmx/values/unicode.h"

namespace com_vyrgraph_v2 {
namespace {

constexpr bool is_high_surrogate(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool is_low_surrogate(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

bool is_text(std::u16string_view path) {
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (path[i] == 0 || is_low_surrogate(path[i])) return false;
        if (!is_high_surrogate(path[i])) continue;
        ++i;
        if (i == path.size() || !is_low_surrogate(path[i])) return false;
    }
    return true;
}

}  // namespace

std::optional<std::string> to_system_path(std::u16string_view path) {
    if (!is_text(path)) return std::nullopt;
    std::string system_path;
    lmx::convert(&system_path, std::u16string(path));
    return system_path;
}

}  // namespace com_vyrgraph_v2
