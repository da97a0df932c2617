// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Text that crosses the flat interface.

#pragma once

#include <string>
#include <string_view>

namespace flat {

/// A new string that the host owns and its marshaller frees; null if there's no memory for it or its length passes
/// what 32 bits can say.
char16_t* new_string(std::u16string_view text);
char* new_string(std::string_view text);
/// Null stays null.
inline char* new_string(const char* text) { return text == nullptr ? nullptr : new_string(std::string_view(text)); }

/// The text of a wide argument: null is empty.
std::u16string wide(const char16_t* text);

}  // namespace flat
