// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A document in forms that are read more slowly than the library's own.

#pragma once

#include <string>

namespace vyr_bench {

/// Little-endian, with a byte order mark.
std::string in_utf16(const std::string& document);
/// Two bytes for each line end.
std::string with_carriage_returns(const std::string& document);
/// ISO-8859-1, as the declaration says.
std::string in_latin1(const std::string& document);
/// Another prefix, attributes in single quotes, and ahead of every tenth line a comment.
std::string in_unusual_shape(const std::string& document);
/// Texts of attributes in letters beyond ASCII.
std::string with_foreign_text(const std::string& document);

}  // namespace vyr_bench
