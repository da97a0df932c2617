// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A spectrum as a drawing with axes.

#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "tools/spectrum.h"

namespace vyr_tool {

/// An `svg` element: the points in the order of their wavelengths, on axes from round numbers to round numbers, the
/// vertical one with 0. `quantity` names the vertical axis, `label` says all to whoever doesn't see it; both are
/// taken as `html` gives them. Without points there is no drawing.
void print_curve(std::ostream& out, std::vector<s_point> points, std::string_view quantity, std::string_view label);

}  // namespace vyr_tool
