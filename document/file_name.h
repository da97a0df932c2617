// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// File names of the document calls: which kind of file they ask for, and their form for the operating system.

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace com_vyrgraph_v2 {

inline constexpr std::u16string_view k_plain_ending = u".vyr";
inline constexpr std::u16string_view k_container_ending = u".vyrz";

/// The UTF-8 form of a path; nothing if the path is no valid text (a lone surrogate, a null inside).
std::optional<std::string> to_system_path(std::u16string_view path);

}  // namespace com_vyrgraph_v2
