// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Elements as JSON, typed by the schema: the form that `vyr json` prints and `vyr convert` reads.

#pragma once

#include <functional>
#include <ostream>
#include <string_view>

#include "tools/json.h"
#include "tools/tree.h"

namespace vyr_tool {

/// A simple value: a number, true or false, or a text. Numbers that JSON doesn't have are texts: "NaN", "INF",
/// "-INF".
json typed_value(std::string_view text, lmx::value_kind kind);

/// Which children to take in.
using node_filter = std::function<bool(c_tree::index child)>;

/// An element: a simple value; null if it is nil and has no attribute; otherwise an object with a member for each
/// attribute and child. Repeating children stand in an array, also one alone, the entries of a repeating group as
/// objects of one member, which is their name.
json typed_json(const c_tree& tree, c_tree::index node, const node_filter& takes = {});

/// A document that the library wrote, as indented text, printed while it is read: nothing of it is kept. Ends with a
/// line end.
lmx::elmx_error print_typed_json(lmx::c_read& source, std::ostream& out);

}  // namespace vyr_tool
