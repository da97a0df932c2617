// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A stranger's text in a page.

#pragma once

#include <string>
#include <string_view>

#include "lmx/binding/table.h"
#include "tools/tree.h"

namespace vyr_tool {

/// Text for an element or for an attribute in double quotes: no markup comes of it, and what prints nothing or turns
/// the writing direction is shown by its number. Line ends and tabs stay.
std::string html(std::string_view text);

/// A name of the format for people: "High tolerance" of "HighTolerance", "SDK name" of "SDKName".
std::string words_of(std::string_view name);

/// A value for people, as `html`: numbers with six digits, yes and no, enumerated texts without what repeats the
/// name of the field, of binary values the size.
std::string html_value(const c_tree::field& field, std::string_view name);

}  // namespace vyr_tool
