// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Wide strings of a Windows host, which are UTF-16 like those of the interface but of another type.

#pragma once

#if defined(_WIN32)

#include <string>
#include <string_view>

namespace lmx {

/// The same units in the host's type, and in the interface's.
inline std::wstring to_wstring(std::u16string_view text) { return {text.begin(), text.end()}; }
inline std::u16string from_wstring(std::wstring_view text) { return {text.begin(), text.end()}; }

}  // namespace lmx

#endif
