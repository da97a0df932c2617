// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A spectrum's points as numbers, and its curve in one line.

#pragma once

#include <string>
#include <vector>

#include "tools/tree.h"

namespace vyr_tool {

struct s_point {
    double wavelength;  ///< in nanometres
    double value;
};

/// The points of a value, or of an element in it, in their order; those that are no numbers are left out.
std::vector<s_point> points_of(const c_tree& tree, c_tree::index value);

/// "36 points, 380 to 730 nm, 0.0512 to 0.871"
std::string summary(const std::vector<s_point>& points);

/// The curve as blocks of eighths, from the lowest value or 0 to the highest, at most 40 of them. In the order of the
/// wavelengths.
std::string spark_curve(std::vector<s_point> points);

}  // namespace vyr_tool
