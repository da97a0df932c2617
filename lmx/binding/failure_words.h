// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The words in which reports name items and say what would be right.

#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "lmx/binding/table.h"
#include "lmx/error.h"

namespace lmx::words {

using names = std::vector<std::string>;

/// Adds the name of an item, or those of a group's members.
void add_names(const s_item& item, names* out);

/// "A", "one of A or B".
std::string one_of(std::span<const s_item> items);

/// The rows of a class with those of its bases, the base's first.
std::vector<const s_item*> all_rows(const s_class& type, std::span<const s_item> s_class::*part);

/// "the attribute A and the element B are missing", "one of C or D is missing".
std::string missing(std::span<const s_item* const> items);
std::string missing_choice(const s_class& type);

std::string nested_too_deep();

/// Two parts with a semicolon between them, if both say something.
std::string sentence(const std::string& start, const std::string& rest);

/// " (is A meant?)" if one of the names is much like the text, else nothing.
std::string meant(std::string_view text, const names& all);

/// What would be right in place of a value that failed a check.
std::string allowed_value(const s_item& item, elmx_error code, const std::string& text);

}  // namespace lmx::words
