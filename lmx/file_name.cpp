// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/file_name.h"

#include "lmx/values/unicode.h"

namespace lmx {

std::optional<std::string> to_system_path(std::u16string_view path) {
    if (!is_well_formed(path) || path.find(u'\0') != path.npos) return std::nullopt;
    std::string system_path;
    convert(&system_path, std::u16string(path));
    return system_path;
}

}  // namespace lmx
