// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Texts of documents in the form in which reports show them, and the sentences of reports.

#pragma once

#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace lmx {

/// A text from a stranger, fit to be printed: cut behind so many characters, marked by an ellipsis; characters
/// that aren't shown as `\n`, `\t`, `\u202e`, `\U000e0041`; bytes that are no UTF-8 as `\xff`.
std::string shown(std::string_view text, std::size_t limit = 100);

/// The same in double quotes, with quotes and backslashes inside escaped.
std::string in_quotes(std::string_view text, std::size_t limit = 60);

/// "A", "A or B", "A, B or C"; of a long list, how many more there are.
std::string listed(std::span<const std::string> names, std::string_view conjunction);

/// The name that is most like a text, if one is so much like it that it may have been meant; else empty.
std::string nearest(std::string_view text, std::span<const std::string> names);

/// The parts in a row.
std::string joined(std::initializer_list<std::string_view> parts);

/// The shortest decimal form.
std::string shown(double number);

}  // namespace lmx
