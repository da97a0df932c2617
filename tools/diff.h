// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The comparison behind `vyr diff`, for other commands.

#pragma once

#include <cstddef>
#include <ostream>

#include "tools/tree.h"

namespace vyr_tool {

/// Prints each difference as a line, as `vyr diff` does without colours; those beyond `limit` are only counted.
void print_differences(const c_tree& before, const c_tree& after, std::ostream& out, std::size_t limit);

}  // namespace vyr_tool
