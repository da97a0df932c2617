// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/curve.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

namespace vyr_tool {

namespace {

// In the units of the drawing.
constexpr double k_width = 340;
constexpr double k_height = 190;
constexpr double k_left = 44;
constexpr double k_right = 12;
constexpr double k_top = 26;
constexpr double k_bottom = 40;
constexpr double k_text_drop = 4;

std::string fixed(double number) {
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), "%.1f", number);
    return digits.data();
}

std::string label_of(double number) {
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), "%.4g", number);
    return digits.data();
}

/// From `low` to `high` in round steps of `step`.
struct s_axis {
    double low;
    double high;
    double step;

    /// Where a number lies, from 0 to 1. The halves don't overflow where the numbers are near a double's bounds.
    double share(double number) const { return (number / 2 - low / 2) / (high / 2 - low / 2); }
};

/// The step is 1, 2 or 5 times a power of ten, and passes the range at most `most` times.
s_axis axis_of(double low, double high, double most, bool is_rounded) {
    constexpr double k_least_range = 1e-300;
    constexpr double k_highest = std::numeric_limits<double>::max();
    if (!(high - low > k_least_range)) {
        const double margin = std::max(std::abs(low) / 2, 1.0);
        if (!is_rounded) low -= margin;
        high += margin;
    }
    const double least = high / most - low / most;
    const double power = std::pow(10, std::floor(std::log10(least)));
    double step = power * 10;
    for (const double factor : {5.0, 2.0, 1.0}) {
        if (power * factor >= least) step = power * factor;
    }
    if (!is_rounded) return {low, high, step};
    return {std::max(std::floor(low / step) * step, -k_highest), std::min(std::ceil(high / step) * step, k_highest),
            step};
}

class c_drawing {
public:
    c_drawing(std::ostream& out, const s_axis& x, const s_axis& y) : m_out(out), m_x(x), m_y(y) {}

    void print_axes(std::string_view quantity) {
        m_out << "<g class=\"grid\">";
        for_ticks(m_y, [&](double number) {
            m_out << "<path d=\"M" << fixed(k_left) << ' ' << fixed(y(number)) << 'H' << fixed(k_width - k_right)
                  << "\"/>";
        });
        m_out << "</g><g class=\"axis\"><path d=\"M" << fixed(k_left) << ' ' << fixed(k_top) << 'V'
              << fixed(k_height - k_bottom) << 'H' << fixed(k_width - k_right) << "\"/>";
        for_ticks(m_y,
                  [&](double number) { print_text(k_left - 6, y(number) + k_text_drop, "end", label_of(number)); });
        for_ticks(m_x, [&](double number) {
            m_out << "<path d=\"M" << fixed(x(number)) << ' ' << fixed(k_height - k_bottom) << "v4\"/>";
            print_text(x(number), k_height - k_bottom + 16, "middle", label_of(number));
        });
        print_text((k_left + k_width - k_right) / 2, k_height - 6, "middle", "Wavelength (nm)");
        print_text(0, 12, "start", quantity);
        m_out << "</g>";
    }

    void print_points(const std::vector<s_point>& points) {
        if (points.size() == 1) {
            m_out << "<circle class=\"line\" r=\"3\" cx=\"" << fixed(x(points[0].wavelength)) << "\" cy=\""
                  << fixed(y(points[0].value)) << "\"/>";
            return;
        }
        const char* separator = "M";
        m_out << "<path class=\"line\" d=\"";
        for (const s_point& point : points) {
            m_out << separator << fixed(x(point.wavelength)) << ' ' << fixed(y(point.value));
            separator = " ";
        }
        m_out << "\"/>";
    }

private:
    template <class Call>
    static void for_ticks(const s_axis& axis, Call call) {
        const double first = std::ceil(axis.low / axis.step - 1e-9);
        const double last = std::floor(axis.high / axis.step + 1e-9);
        // Without an end of their own if the numbers are too high to count.
        constexpr int k_most = 12;
        for (int i = 0; i < k_most && first + i <= last; ++i) call((first + i) * axis.step);
    }

    void print_text(double at_x, double at_y, const char* anchor, std::string_view text) {
        m_out << "<text x=\"" << fixed(at_x) << "\" y=\"" << fixed(at_y) << "\" text-anchor=\"" << anchor << "\">"
              << text << "</text>";
    }

    double x(double wavelength) const { return k_left + m_x.share(wavelength) * (k_width - k_left - k_right); }
    double y(double value) const { return k_height - k_bottom - m_y.share(value) * (k_height - k_top - k_bottom); }

    std::ostream& m_out;
    s_axis m_x;
    s_axis m_y;
};

}  // namespace

void print_curve(std::ostream& out, std::vector<s_point> points, std::string_view quantity, std::string_view label) {
    if (points.empty()) return;
    std::ranges::stable_sort(points, {}, &s_point::wavelength);
    const auto [least, most] = std::ranges::minmax(points, {}, &s_point::value);
    constexpr double k_most_x = 7;
    constexpr double k_most_y = 5;
    const s_axis x = axis_of(points.front().wavelength, points.back().wavelength, k_most_x, false);
    const s_axis y = axis_of(std::min(0.0, least.value), std::max(0.0, most.value), k_most_y, true);
    out << "<svg class=\"curve\" role=\"img\" viewBox=\"0 0 " << k_width << ' ' << k_height << "\" aria-label=\""
        << label << "\">";
    c_drawing drawing(out, x, y);
    drawing.print_axes(quantity);
    drawing.print_points(points);
    out << "</svg>\n";
}

}  // namespace vyr_tool
