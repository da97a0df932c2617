// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/spectrum.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "tools/colors.h"
#include "tools/text.h"
#include "tools/typed_json.h"

namespace vyr_tool {

std::vector<s_point> points_of(const c_tree& tree, c_tree::index value) {
    std::vector<s_point> points;
    for (c_tree::index i = value + 1; i < tree.end(value); i = tree.end(i)) {
        if (!is_spectral_point(tree, i)) continue;
        const json wavelength = typed_value(tree.value(i, "Wavelength"), lmx::value_kind::number);
        const json number = typed_value(tree.value(i), lmx::value_kind::number);
        if (wavelength.is_number() && number.is_number()) {
            points.push_back({wavelength.get<double>(), number.get<double>()});
        }
    }
    return points;
}

std::string summary(const std::vector<s_point>& points) {
    const auto [first, last] = std::ranges::minmax(points, {}, &s_point::wavelength);
    const auto [low, high] = std::ranges::minmax(points, {}, &s_point::value);
    return counted(points.size(), "point, ", "points, ") + short_number(first.wavelength) + " to " +
           short_number(last.wavelength) + " nm, " + short_number(low.value) + " to " + short_number(high.value);
}

std::string spark_curve(std::vector<s_point> points) {
    constexpr std::array<std::string_view, 8> k_blocks = {"▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};
    constexpr std::size_t k_most_blocks = 40;
    std::ranges::stable_sort(points, {}, &s_point::wavelength);
    const auto [least, most] = std::ranges::minmax(points, {}, &s_point::value);
    const double low = std::min(0.0, least.value);
    const double range = most.value - low;
    const std::size_t count = std::min(points.size(), k_most_blocks);
    std::string curve;
    for (std::size_t i = 0; i < count; ++i) {
        const double share = range > 0 ? (points[i * points.size() / count].value - low) / range : 0;
        curve += k_blocks[std::min(k_blocks.size() - 1, static_cast<std::size_t>(share * k_blocks.size()))];
    }
    return curve;
}

}  // namespace vyr_tool
