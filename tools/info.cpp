// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr info`: what a document says of itself, its palettes, and how many elements of each kind it holds.

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <unordered_map>
#include <utility>
#include <vector>

#include "tools/commands.h"
#include "tools/files.h"
#include "tools/json.h"
#include "tools/text.h"
#include "tools/tree.h"

namespace vyr_tool {

namespace {

using index = c_tree::index;

/// All elements that are reached by the same names from the root, as one.
struct s_kind {
    std::string_view name;
    std::size_t depth;
    std::size_t count = 0;
    std::vector<s_kind> parts = {};
    std::unordered_map<std::string_view, std::size_t> places = {};  ///< of the parts, by name
};

s_kind& part(s_kind& kind, std::string_view name) {
    const auto [place, is_new] = kind.places.try_emplace(name, kind.parts.size());
    return is_new ? kind.parts.emplace_back(s_kind{name, kind.depth + 1}) : kind.parts[place->second];
}

void count_parts(const c_tree& tree, index node, std::size_t depth, s_kind& kind) {
    ++kind.count;
    if (kind.depth == depth) return;
    for (index i = node + 1; i < tree.end(node); i = tree.end(i)) {
        if (!tree.name(i).empty()) count_parts(tree, i, depth, part(kind, tree.name(i)));
    }
}

/// The simple values of the document's header, in its order.
std::vector<std::pair<std::string, std::string>> header_of(const c_tree& tree) {
    std::vector<std::pair<std::string, std::string>> rows;
    const index preamble = tree.child(0, "Preamble");
    const index header = preamble == 0 ? 0 : tree.child(preamble, "Header");
    for (index i = header + 1; header != 0 && i < tree.end(header); i = tree.end(i)) {
        if (tree.is_leaf(i) && !tree.value(i).empty()) rows.emplace_back(tree.name(i), tree.value(i));
    }
    return rows;
}

/// Colours by the kinds of their values: "SRGB", "CIELab".
std::vector<std::pair<std::string_view, std::size_t>> count_spaces(const c_tree& tree, std::size_t& colors) {
    constexpr std::string_view k_prefix = "ColorSpace";
    std::vector<std::pair<std::string_view, std::size_t>> spaces;
    for (index node = 0; node < tree.size(); ++node) {
        if (tree.name(node) != "Color" || tree.value(node, "ColorName").empty()) continue;
        ++colors;
        for (index i = node + 1; i < tree.end(node); i = tree.end(i)) {
            if (!tree.name(i).starts_with(k_prefix)) continue;
            const std::string_view space = tree.name(i).substr(k_prefix.size());
            auto found = std::ranges::find(spaces, space, &std::pair<std::string_view, std::size_t>::first);
            if (found == spaces.end()) found = spaces.insert(found, {space, 0});
            ++found->second;
        }
    }
    return spaces;
}

std::vector<index> children(const c_tree& tree, index node, std::string_view name) {
    std::vector<index> found;
    for (index i = node + 1; i < tree.end(node); i = tree.end(i)) {
        if (tree.name(i) == name) found.push_back(i);
    }
    return found;
}

void print_kind(const s_kind& kind) {
    std::cout << std::setw(9) << kind.count << "  " << std::string(2 * kind.depth, ' ') << printable(kind.name)
              << '\n';
    for (const s_kind& inner : kind.parts) print_kind(inner);
}

void print_palettes(const c_tree& tree) {
    for (const index palette : children(tree, 0, "Palette")) {
        const std::vector<index> sets = children(tree, palette, "ColorSet");
        std::cout << "\nPalette " << quoted(tree.title(palette)) << ": "
                  << counted(sets.size(), "colour set", "colour sets") << '\n';
        for (const index set : sets) {
            std::cout << std::setw(9) << children(tree, set, "Color").size() << "  in ColorSet "
                      << quoted(tree.title(set)) << '\n';
        }
    }
}

json to_json(const s_kind& kind) {
    json object = {{"name", kind.name}, {"count", kind.count}};
    if (!kind.parts.empty()) object["parts"] = json::array();
    for (const s_kind& inner : kind.parts) object["parts"].push_back(to_json(inner));
    return object;
}

json palettes_as_json(const c_tree& tree) {
    json palettes = json::array();
    for (const index palette : children(tree, 0, "Palette")) {
        json sets = json::array();
        for (const index set : children(tree, palette, "ColorSet")) {
            sets.push_back({{"name", tree.title(set)}, {"colors", children(tree, set, "Color").size()}});
        }
        palettes.push_back({{"name", tree.title(palette)}, {"sets", std::move(sets)}});
    }
    return palettes;
}

}  // namespace

exit_code info(const info_options& options) {
    c_tree tree;
    std::size_t size = 0;
    const exit_code result = read_tree(options.file, tree, &size);
    if (result != exit_ok) return result;
    s_kind root{tree.name(0), 0};
    count_parts(tree, 0, options.depth, root);
    std::size_t colors = 0;
    const auto spaces = count_spaces(tree, colors);
    if (options.json) {
        json object = {{"file", options.file}, {"bytes", size}, {"colors", colors}, {"header", json::object()}};
        for (const auto& [name, value] : header_of(tree)) object["header"][name].push_back(value);
        object["spaces"] = json::object();
        for (const auto& [name, count] : spaces) object["spaces"][std::string(name)] = count;
        object["palettes"] = palettes_as_json(tree);
        object["tree"] = to_json(root);
        std::cout << to_text(object) << '\n';
        return exit_ok;
    }
    std::cout << shown_name(options.file) << ": " << counted(size, "byte", "bytes") << ", "
              << counted(tree.size(), "element", "elements") << ", " << counted(colors, "colour", "colours") << '\n';
    for (const auto& [name, value] : header_of(tree)) std::cout << "  " << name << ": " << printable(value) << '\n';
    if (!spaces.empty()) std::cout << "\nColour values\n";
    for (const auto& [name, count] : spaces) std::cout << std::setw(9) << count << "  " << printable(name) << '\n';
    print_palettes(tree);
    std::cout << "\nElements\n";
    print_kind(root);
    return exit_ok;
}

}  // namespace vyr_tool
