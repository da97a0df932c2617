// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// File names: from the wide form of the interface to the operating system's.

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lmx {

/// The UTF-8 form of a path; nothing if the path is no valid text (a lone surrogate, a null inside).
std::optional<std::string> to_system_path(std::u16string_view path);

}  // namespace lmx
