// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Any element of a page, by its fields.

#include <algorithm>
#include <map>

#include "schema/Vyr.h"
#include "tools/html.h"
#include "tools/page.h"

namespace vyr_tool {

namespace {

constexpr std::string_view k_custom = "CustomAttribute";
constexpr std::string_view k_custom_value = "ValueChoice";
constexpr std::string_view k_unknown = "<i>unknown</i>";

bool is_layout(std::string_view field_name) { return field_name.starts_with("xsi:"); }

}  // namespace

void c_page::print_heading(unsigned level, std::string_view kind, std::string_view title) {
    constexpr unsigned k_deepest = 6;
    level = std::min(level, k_deepest);
    m_out << "<h" << level << '>';
    if (title.empty()) {
        m_out << kind;
    } else {
        if (!kind.empty()) m_out << "<span class=\"kind\">" << kind << "</span> ";
        m_out << "<bdi>" << html(title) << "</bdi>";
    }
    m_out << "</h" << level << ">\n";
}

bool c_page::is_flat(index node) const {
    for (index i = node; i < m_tree.end(node); ++i) {
        const bool is_foreign = m_tree.member(i) == nullptr;
        if (is_foreign || m_tree.type(i) == &com_vyrgraph_v2::ColorType::k_class ||
            m_tree.name(i).starts_with(k_space_prefix))
            return false;
    }
    return true;
}

/// The user's own values are fields by their own names.
void c_page::add_leaves(index node, const s_leaf& place, std::vector<s_leaf>& leaves) const {
    if (m_tree.name(node) == k_custom) {
        const index choice = m_tree.child(node, k_custom_value);
        const std::string name = html(m_tree.title(node));
        leaves.push_back({place.path + "/=" + name, name, place.label, choice == 0 ? "" : text_of(choice)});
        return;
    }
    for (std::size_t i = 0; i < m_tree.field_count(node); ++i) {
        const c_tree::field field = m_tree.get_field(node, i);
        if (is_layout(field.name)) continue;
        if (field.name.empty()) {
            leaves.push_back({place.path, place.label, place.parent_label, html_value(field, m_tree.name(node))});
        } else {
            leaves.push_back({place.path + "/@" + std::string(field.name), words_of(field.name), place.label,
                              html_value(field, field.name)});
        }
    }
    if (m_tree.is_nil(node)) leaves.push_back({place.path, place.label, place.parent_label, std::string(k_unknown)});
    for (index i = node + 1; i < m_tree.end(node); i = m_tree.end(i)) {
        const std::string_view name = m_tree.name(i);
        // An element that says no more than that it is there.
        const bool is_mark = m_tree.is_leaf(i) && m_tree.field_count(i) == 0 && m_tree.type(i) != nullptr;
        const s_leaf inner{place.path + "/" + std::string(name), words_of(name), place.label, {}};
        if (is_mark && m_tree.member(i)->is_marker()) leaves.push_back({inner.path, inner.label, place.label, "yes"});
        // Which of a group stands here is a value of its own.
        const bool is_of_group = m_tree.member(i) != nullptr && m_tree.type(i) != nullptr &&
                                 m_tree.member(i)->holder->kind == lmx::item_kind::group;
        if (is_of_group) leaves.push_back({place.path + "/~", "Kind", place.label, inner.label});
        add_leaves(i, inner, leaves);
    }
}

std::string c_page::text_of(index node) const {
    std::vector<s_leaf> leaves;
    add_leaves(node, {}, leaves);
    std::string text;
    for (const s_leaf& leaf : leaves) {
        // Of a choice with one value only the value counts, and so of a value without attributes.
        const bool is_alone = leaves.size() == 1 && m_tree.is_leaf(node) ? leaf.path.empty() : leaves.size() == 1;
        if (!text.empty()) text += ", ";
        if (!leaf.label.empty() && !is_alone) text += "<span class=\"label\">" + leaf.label + "</span> ";
        text += leaf.text;
    }
    return text;
}

void c_page::print_table(std::span<const index> rows) {
    std::vector<std::map<std::string, std::string>> cells;
    std::vector<s_leaf> columns;
    for (const index row : rows) {
        std::vector<s_leaf> leaves;
        add_leaves(row, {{}, words_of(m_tree.name(row)), {}, {}}, leaves);
        std::map<std::string, std::string>& line = cells.emplace_back();
        for (const s_leaf& leaf : leaves) {
            if (std::ranges::find(columns, leaf.path, &s_leaf::path) == columns.end()) columns.push_back(leaf);
            std::string& cell = line[leaf.path];
            cell += (cell.empty() ? "" : ", ") + leaf.text;
        }
    }
    if (columns.empty()) return;
    m_out << "<div class=\"scroll\"><table>\n<caption>" << words_of(m_tree.name(rows.front()))
          << "</caption>\n<thead><tr>";
    for (const s_leaf& column : columns) {
        const bool is_unclear = std::ranges::count(columns, column.label, &s_leaf::label) > 1;
        m_out << "<th scope=\"col\">"
              << (is_unclear && !column.parent_label.empty() ? column.parent_label + ": " : "") << column.label
              << "</th>";
    }
    m_out << "</tr></thead>\n<tbody>\n";
    for (const std::map<std::string, std::string>& line : cells) {
        m_out << "<tr>";
        for (const s_leaf& column : columns) {
            const auto cell = line.find(column.path);
            m_out << "<td>" << (cell == line.end() ? std::string() : cell->second) << "</td>";
        }
        m_out << "</tr>\n";
    }
    m_out << "</tbody>\n</table></div>\n";
}

void c_page::print_fields(index node, unsigned level, const node_test& takes) {
    std::vector<index> blocks;
    const char* begin = "<dl class=\"fields\">\n";
    const auto print_field = [&](const std::string& label, const std::string& text) {
        m_out << begin << "<dt>" << label << "</dt><dd>" << text << "</dd>\n";
        begin = "";
    };
    for (std::size_t i = 0; i < m_tree.field_count(node); ++i) {
        const c_tree::field field = m_tree.get_field(node, i);
        // What the heading says is said.
        const bool is_title =
            !field.name.empty() && field.name.ends_with("Name") && field.value == m_tree.title(node);
        if (is_layout(field.name) || is_title) continue;
        print_field(field.name.empty() ? "Value" : words_of(field.name), html_value(field, field.name));
    }
    for (index i = node + 1; i < m_tree.end(node); i = m_tree.end(i)) {
        if (takes && !takes(i)) continue;
        const s_member* const member = m_tree.member(i);
        if (m_tree.name(i) == k_custom) {
            const index choice = m_tree.child(i, k_custom_value);
            print_field(html(m_tree.title(i)), choice == 0 ? "" : text_of(choice));
        } else if (member == nullptr) {
            // Open content is nobody's to interpret.
            print_field(html(m_tree.name(i)), html(record_text(m_tree, i)));
        } else if (is_flat(i) && (m_tree.type(i) == nullptr || !member->is_list())) {
            print_field(words_of(m_tree.name(i)), text_of(i));
        } else {
            blocks.push_back(i);
        }
    }
    if (*begin == '\0') m_out << "</dl>\n";
    print_blocks(blocks, level);
}

void c_page::print_blocks(std::span<const index> nodes, unsigned level) {
    while (!nodes.empty()) {
        std::size_t count = 0;
        while (count < nodes.size() && m_tree.name(nodes[count]) == m_tree.name(nodes[0]) && is_flat(nodes[count]))
            ++count;
        if (count > 0) {
            print_table(nodes.first(count));
        } else {
            print_element(nodes[0], level);
        }
        nodes = nodes.subspan(std::max<std::size_t>(count, 1));
    }
}

void c_page::print_element(index node, unsigned level) {
    if (m_tree.type(node) == &com_vyrgraph_v2::ColorType::k_class) return print_color(node, level);
    const s_color* const color = color_around(node);
    if (color != nullptr && m_tree.name(node).starts_with(k_space_prefix)) {
        const index values[] = {node};
        return print_values(*color, values, level);
    }
    m_out << "<section class=\"block\">\n";
    print_heading(level, words_of(m_tree.name(node)), m_tree.title(node));
    print_fields(node, level + 1, {});
    m_out << "</section>\n";
}

}  // namespace vyr_tool
