// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What `vyr info` prints: counts of the tree, then each palette as a table of colours.

#pragma once

#include <ostream>

#include "schema/Vyr.h"

namespace vyr_tool {

void print_info(const com_vyrgraph_v2::Vyr& document, std::ostream& stream);

}  // namespace vyr_tool
