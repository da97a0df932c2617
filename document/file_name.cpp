// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "document/file_name.h"

#include "lmx/values/unicode.h"

namespace com_vyrgraph_v2 {

std::optional<std::string> to_system_path(std::u16string_view path) {
    if (!lmx::is_well_formed(path) || path.find(u'\0') != path.npos) return std::nullopt;
    std::string system_path;
    lmx::convert(&system_path, std::u16string(path));
    return system_path;
}

}  // namespace com_vyrgraph_v2
