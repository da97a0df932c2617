// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Colours on a page, and their values.

#include <algorithm>

#include "tools/curve.h"
#include "tools/html.h"
#include "tools/page.h"
#include "tools/spectrum.h"

namespace vyr_tool {

namespace {

constexpr std::string_view k_parent = "ParentColorSpace";

/// What the vertical axis of a spectrum shows: by its conditions, or else by the kind of its points.
std::string quantity_of(const s_conditions& conditions, bool is_emissive) {
    if (is_emissive) return "Spectral power (unit of the measurement)";
    std::string quantity = "Reflectance factor";
    for (const s_conditions::s_value& condition : conditions.values) {
        if (condition.name == "Spectrum" && condition.text != "Reflectance") quantity = words_of(condition.text);
        if (condition.name == "SpectrumName") quantity = html(condition.text);
    }
    return quantity + " (fraction)";
}

}  // namespace

/// The colour whose part an element is; null if it is none's.
const s_color* c_page::color_around(index node) const {
    auto found = std::ranges::upper_bound(m_colors, node, {}, &s_color::node);
    while (found != m_colors.begin()) {
        --found;
        if (m_tree.end(found->node) > node) return &*found;
    }
    return nullptr;
}

void c_page::print_color(index color, unsigned level) {
    const s_color& place = *color_around(color);
    m_out << "<article class=\"color\" id=\"n" << color << "\">\n";
    print_swatch(color);
    print_heading(level, {}, m_tree.title(color));
    const std::vector<index> values = values_of(m_tree, color);
    print_values(place, values, level + 1);
    print_fields(color, level + 1, [&](index child) {
        return m_tree.name(child) != "ChangeHistory" && !std::ranges::binary_search(values, child);
    });
    m_out << "</article>\n";
}

void c_page::print_swatch(index color) {
    const std::string channels = srgb_of(m_tree, color, ',');
    if (channels.empty()) {
        m_out << "<p class=\"swatch none\">No sRGB value in the document</p>\n";
        return;
    }
    m_out << "<svg class=\"swatch\" role=\"img\" aria-label=\"sRGB " << channels
          << "\"><rect width=\"100%\" height=\"100%\" fill=\"rgb(" << channels << ")\"/></svg>\n";
}

void c_page::print_values(const s_color& color, std::span<const index> values, unsigned level) {
    m_out << "<dl class=\"values\">\n";
    for (const index value : values) print_value(color, value, level);
    m_out << "</dl>\n";
}

void c_page::print_value(const s_color& color, index value, unsigned level) {
    const std::vector<index> parts = parts_of(m_tree, value);
    const s_conditions conditions = conditions_of(m_tree, color, value);
    m_out << "<dt>" << html(space_of(m_tree, value));
    const std::string_view title = m_tree.value(value, "Name");
    if (!title.empty()) m_out << " <bdi>" << html(title) << "</bdi>";
    m_out << "</dt>\n<dd>";
    std::vector<index> blocks;
    const char* separator = "<p class=\"channels\">";
    for (const index part : parts) {
        if (is_spectral_point(m_tree, part)) continue;
        if (m_tree.type(part) != nullptr) {
            blocks.push_back(part);
            continue;
        }
        m_out << separator << "<span class=\"channel\"><span class=\"label\">" << words_of(m_tree.name(part))
              << "</span> " << text_of(part) << "</span>";
        separator = " ";
    }
    if (*separator == ' ') m_out << "</p>\n";
    print_spectrum(color, value, conditions);
    print_blocks(blocks, level);
    const auto is_beside = [this](index child) { return m_tree.name(child) == "CustomAttribute"; };
    if (const std::string words = conditions.in_words(); !words.empty())
        m_out << "<p class=\"conditions\">" << html(words) << "</p>\n";
    if (const index specification = specification_of(m_tree, value); specification != 0)
        print_besides(specification, level);
    print_fields(value, level, is_beside);
    if (const index parent = m_tree.child(value, k_parent); parent != 0 && !m_tree.is_leaf(parent)) {
        m_out << "<p class=\"origin\">Made from:</p>\n";
        const index values[] = {parent + 1};
        print_values(color, values, level);
    }
    m_out << "</dd>\n";
}

void c_page::print_besides(index specification, unsigned level) {
    print_fields(specification, level, [this](index child) {
        return m_tree.name(child) != "ChangeHistory" && !is_condition(m_tree, child);
    });
}

void c_page::print_spectrum(const s_color& color, index value, const s_conditions& conditions) {
    std::vector<index> rows;
    for (index i = value + 1; i < m_tree.end(value); i = m_tree.end(i)) {
        if (is_spectral_point(m_tree, i)) rows.push_back(i);
    }
    if (rows.empty()) return;
    const std::vector<s_point> points = points_of(m_tree, value);
    const std::string quantity = quantity_of(conditions, m_tree.name(rows[0]) == "EmissiveSpectralPoint");
    if (!points.empty()) {
        print_curve(m_out, points, quantity,
                    "Spectrum of " + html(m_tree.title(color.node)) + ": " + html(summary(points)));
    }
    m_out << "<details class=\"points\"><summary>" << (points.empty() ? "No number" : html(summary(points)))
          << "</summary><div><table>\n<thead><tr><th scope=\"col\">nm</th><th scope=\"col\">" << quantity
          << "</th></tr></thead>\n<tbody>";
    for (const index row : rows) {
        m_out << "<tr><th scope=\"row\">"
              << html(shown_value(m_tree.value(row, "Wavelength"), lmx::value_kind::number)) << "</th><td>"
              << html(shown_value(m_tree.value(row), lmx::value_kind::number)) << "</td></tr>";
    }
    m_out << "</tbody></table></div></details>\n";
}

}  // namespace vyr_tool
