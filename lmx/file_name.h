// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// File names: from the two forms of the interface to the operating system's. Whatever opens, removes or asks after a
/// file takes its name from here.

#pragma once

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string_view>

namespace lmx {

/// A name in UTF-16; nothing if it is no valid text (a lone surrogate, a null inside).
std::optional<std::filesystem::path> to_path(std::u16string_view name);
/// A name in UTF-8. Where the system's names are bytes it is taken as it is; elsewhere nothing if it is no valid
/// text.
std::optional<std::filesystem::path> to_path(std::string_view name);

/// Opens a file for reading its bytes as they are; null, with an `errno`, if it can't be.
std::FILE* open_for_reading(const std::optional<std::filesystem::path>& path);

}  // namespace lmx
