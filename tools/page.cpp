// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/page.h"

#include <algorithm>

#include "tools/html.h"
#include "tools/page_style.h"
#include "tools/text.h"

namespace vyr_tool {

namespace {

constexpr unsigned k_section_level = 2;
constexpr unsigned k_set_level = 3;

constexpr std::string_view k_head = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
<meta name="generator" content="vyr )" VYR_TOOL_VERSION R"(">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'unsafe-inline'; form-action 'none'; base-uri 'none'">
)";

constexpr std::string_view k_note =
    "<p class=\"note\">A swatch shows an sRGB value that the document holds. No colour is converted: where there is "
    "no "
    "such value, there is no swatch. Numbers have six digits at most; <code>vyr list --json</code> gives all.</p>\n";

std::string link(c_tree::index node, const std::string& text) {
    return "<a href=\"#n" + std::to_string(node) + "\">" + text + "</a>";
}

}  // namespace

c_page::c_page(const c_tree& tree, std::ostream& out) : m_tree(tree), m_out(out), m_colors(find_colors(tree)) {}

void c_page::print(const std::string& name) {
    const std::string title = html(name);
    m_out << k_head << "<title>" << title << "</title>\n<style>\n"
          << k_page_style
          << "</style>\n</head>\n<body>\n<a class=\"skip\" href=\"#content\">Skip to the content</a>\n"
          << "<header>\n<h1><bdi>" << title << "</bdi></h1>\n<p>" << counted(m_colors.size(), "colour", "colours")
          << "</p>\n</header>\n<div class=\"columns\">\n";
    print_contents();
    m_out << "<main id=\"content\" tabindex=\"-1\">\n" << k_note << "<section id=\"document\">\n";
    print_heading(k_section_level, "Document", {});
    const index preamble = m_tree.child(0, "Preamble");
    for (const index header : m_tree.children(preamble, "Header")) print_fields(header, k_set_level, {});
    print_fields(preamble, k_set_level, [this](index child) { return m_tree.name(child) != "Header"; });
    m_out << "</section>\n";
    if (m_tree.child(0, "Color") != 0) {
        m_out << "<section id=\"colors\">\n";
        print_heading(k_section_level, "Colours outside palettes", {});
        print_colors(0, k_set_level);
        m_out << "</section>\n";
    }
    for (const index palette : m_tree.children(0, "Palette")) print_palette(palette);
    for (const index record : m_tree.children(0, "ColorQualityControl")) print_record(record);
    m_out << "</main>\n</div>\n</body>\n</html>\n";
}

void c_page::print_contents() {
    m_out << "<nav aria-labelledby=\"contents\">\n<h2 id=\"contents\">Contents</h2>\n<ul>\n"
          << "<li><a href=\"#document\">Document</a></li>\n";
    if (const std::size_t count = m_tree.children(0, "Color").size(); count > 0) {
        m_out << "<li><a href=\"#colors\">Colours outside palettes</a> <span class=\"count\">" << count
              << "</span></li>\n";
    }
    for (const index palette : m_tree.children(0, "Palette")) {
        m_out << "<li>" << link(palette, "Palette <bdi>" + html(m_tree.title(palette)) + "</bdi>");
        const std::vector<index> sets = m_tree.children(palette, "ColorSet");
        if (!sets.empty()) m_out << "\n<ul>\n";
        for (const index set : sets) {
            m_out << "<li>" << link(set, "<bdi>" + html(m_tree.title(set)) + "</bdi>") << " <span class=\"count\">"
                  << m_tree.children(set, "Color").size() << "</span></li>\n";
        }
        if (!sets.empty()) m_out << "</ul>\n";
        m_out << "</li>\n";
    }
    for (const index record : m_tree.children(0, "ColorQualityControl")) {
        m_out << "<li>" << link(record, "Quality control <bdi>" + html(m_tree.title(record)) + "</bdi>") << "</li>\n";
    }
    m_out << "</ul>\n</nav>\n";
}

void c_page::print_palette(index palette) {
    m_out << "<section id=\"n" << palette << "\">\n";
    print_heading(k_section_level, "Palette", m_tree.title(palette));
    print_fields(palette, k_set_level, [this](index child) {
        return m_tree.name(child) != "ColorSet" && m_tree.name(child) != k_defaults;
    });
    print_defaults(palette, k_set_level);
    for (const index set : m_tree.children(palette, "ColorSet")) print_set(set);
    m_out << "</section>\n";
}

void c_page::print_set(index set) {
    m_out << "<section id=\"n" << set << "\">\n";
    print_heading(k_set_level, "Colour set", m_tree.title(set));
    print_fields(set, k_set_level + 1,
                 [this](index child) { return m_tree.name(child) != "Color" && m_tree.name(child) != k_defaults; });
    print_defaults(set, k_set_level + 1);
    print_colors(set, k_set_level + 1);
    m_out << "</section>\n";
}

/// The conditions of values that state none of their own.
void c_page::print_defaults(index collection, unsigned level) {
    const index defaults = m_tree.child(collection, k_defaults);
    if (defaults == 0 || m_tree.is_leaf(defaults)) return;
    for (index i = defaults + 1; i < m_tree.end(defaults); i = m_tree.end(i)) {
        const std::string words = m_tree.is_nil(i) ? "" : conditions_in(m_tree, i).in_words();
        m_out << "<dl class=\"fields\">\n<dt>Default for "
              << words_of(m_tree.name(i).substr(k_specification_prefix.size())) << "</dt><dd>"
              << (words.empty() ? "unknown" : html(words)) << "</dd>\n</dl>\n";
        print_besides(i, level);
    }
}

void c_page::print_colors(index parent, unsigned level) {
    const std::vector<index> colors = m_tree.children(parent, "Color");
    if (colors.empty()) {
        m_out << "<p>No colours.</p>\n";
        return;
    }
    constexpr std::size_t k_most_without_index = 24;
    if (colors.size() > k_most_without_index) {
        m_out << "<details class=\"index\"><summary>" << counted(colors.size(), "colour", "colours")
              << " by name</summary>\n<ul>\n";
        for (const index color : colors)
            m_out << "<li>" << link(color, "<bdi>" + html(m_tree.title(color)) + "</bdi>") << "</li>\n";
        m_out << "</ul>\n</details>\n";
    }
    m_out << "<div class=\"cards\">\n";
    for (const index color : colors) print_color(color, level);
    m_out << "</div>\n";
}

}  // namespace vyr_tool
