// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The host's callbacks, as far as the library calls them.

#pragma once

namespace flat {

inline constexpr char k_null_string[] = "null string";

/// Reports a null argument to the host, which must have registered its callbacks.
void report_null(const char* text);

/// True for a null argument, after reporting it.
inline bool is_null(const void* argument, const char* text) {
    if (argument == nullptr) report_null(text);
    return argument == nullptr;
}

}  // namespace flat
