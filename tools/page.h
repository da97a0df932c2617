// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A document as one page of HTML that needs no other file, no network and no script.

#pragma once

#include <functional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/colors.h"
#include "tools/tree.h"

namespace vyr_tool {

/// Writes a page as it walks the tree: nothing of the page is kept.
class c_page {
public:
    c_page(const c_tree& tree, std::ostream& out);

    /// `name` is the document's.
    void print(const std::string& name);

private:
    using index = c_tree::index;
    using node_test = std::function<bool(index child)>;

    /// A text of an element and what it is called there.
    struct s_leaf {
        std::string path;
        std::string label;
        std::string parent_label;
        std::string text;
    };

    // The frame: page.cpp
    void print_contents();
    void print_palette(index palette);
    void print_set(index set);
    void print_defaults(index collection, unsigned level);
    void print_colors(index parent, unsigned level);

    // Colours and their values: page_colors.cpp
    void print_color(index color, unsigned level);
    void print_swatch(index color);
    void print_values(const s_color& color, std::span<const index> values, unsigned level);
    void print_value(const s_color& color, index value, unsigned level);
    /// What a specification says beside the conditions: comments, a profile.
    void print_besides(index specification, unsigned level);
    void print_spectrum(const s_color& color, index value, const s_conditions& conditions);
    const s_color* color_around(index node) const;

    // Quality control: page_quality.cpp
    void print_record(index record);
    void print_pair(index record, index pair, const std::string& title);
    void print_tolerances(std::span<const index> tolerances, std::string_view caption);
    void print_results(index measurement, std::span<const index> tolerances);

    // Anything else: page_fields.cpp
    void print_heading(unsigned level, std::string_view kind, std::string_view title);
    /// Attributes, values and children that pass the test: single ones as a list, repeating ones as tables.
    void print_fields(index node, unsigned level, const node_test& takes);
    void print_blocks(std::span<const index> nodes, unsigned level);
    void print_table(std::span<const index> rows);
    void print_element(index node, unsigned level);
    /// Whether an element can be a row of a table.
    bool is_flat(index node) const;
    void add_leaves(index node, const s_leaf& place, std::vector<s_leaf>& leaves) const;
    std::string text_of(index node) const;

    const c_tree& m_tree;
    std::ostream& m_out;
    std::vector<s_color> m_colors;
};

}  // namespace vyr_tool
