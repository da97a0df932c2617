// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr list`: the colours of a document with their values in all colour spaces, as tables or as JSON.

#include <fnmatch.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iostream>
#include <map>
#include <optional>
#include <span>
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

constexpr std::string_view k_space_prefix = "ColorSpace";
/// What stands in a colour value beside the value.
constexpr std::string_view k_besides[] = {"ChangeHistory", "ColorDepth", "CustomAttribute", "ParentColorSpace"};
constexpr std::string_view k_specification = "ColorSpaceSpecification";
/// The spaces that a screen shows as they are or nearly so, the best first.
constexpr std::string_view k_screen_spaces[] = {"ColorSpaceSRGB", "ColorSpaceRGB", "ColorSpaceAdobeRGB",
                                                "ColorSpaceAdobeWideGamutRGB"};

/// Where a colour stands.
struct s_color {
    index node;
    index parent;
    index palette;  ///< 0: in none; so is the set
    index set;
};

bool is_value(const c_tree& tree, index node) {
    const std::string_view name = tree.name(node);
    return std::ranges::find(k_besides, name) == std::end(k_besides) && !name.starts_with(k_specification);
}

bool fits(const std::string& pattern, std::string_view text) {
    return pattern.empty() || fnmatch(pattern.c_str(), std::string(text).c_str(), 0) == 0;
}

/// All colours with a name, however deep they stand, in the order of the document. `paths` receives the steps to each
/// place where some stand.
std::vector<s_color> find_colors(const c_tree& tree, const list_options& options,
                                 std::map<index, std::string>& paths) {
    std::vector<s_color> colors;
    std::vector<index> open;
    c_steps steps(tree);
    for (index node = 0; node < tree.size(); ++node) {
        while (!open.empty() && tree.end(open.back()) <= node) open.pop_back();
        if (tree.name(node) == "Color" && !tree.value(node, "ColorName").empty()) {
            s_color color{node, open.back(), 0, 0};
            for (const index outer : open) {
                if (tree.name(outer) == "Palette") color.palette = outer;
                if (tree.name(outer) == "ColorSet") color.set = outer;
            }
            const bool is_wanted = fits(options.name, tree.title(node)) &&
                                   fits(options.palette, color.palette == 0 ? "" : tree.title(color.palette)) &&
                                   fits(options.set, color.set == 0 ? "" : tree.title(color.set));
            if (is_wanted) {
                colors.push_back(color);
                const auto [path, is_new] = paths.try_emplace(color.parent);
                for (std::size_t i = 1; is_new && i < open.size(); ++i) {
                    path->second = join(path->second, steps.step(open[i - 1], open[i]));
                }
            }
        }
        if (!tree.is_leaf(node)) open.push_back(node);
    }
    return colors;
}

std::optional<double> number(std::string_view text) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) return std::nullopt;
    return value;
}

/// Six significant digits are more than any eye tells apart.
std::string short_text(std::string_view text) {
    const std::optional<double> value = number(text);
    if (!value) return printable(text);
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), "%.6g", *value);
    return digits.data();
}

/// A value that is a single text has a column of its own; points, inks and axes don't.
bool is_channel(const c_tree& tree, index node) {
    return tree.is_leaf(node) && (tree.field_count(node) == 0 || tree.get_field(node, 0).name.empty());
}

/// All values of a record in one line.
void append_texts(const c_tree& tree, index node, std::string& out) {
    constexpr std::size_t k_longest = 60;
    for (index i = node; i < tree.end(node); ++i) {
        for (std::size_t j = 0; j < tree.field_count(i) && out.size() < k_longest; ++j) {
            out += " " + short_text(tree.get_field(i, j).value);
        }
    }
}

/// What has no column: "36 ReflectancePoint, Wavelength 380 to 730", or a few records in full.
std::string records_text(const c_tree& tree, index space) {
    constexpr std::size_t k_most_in_full = 4;
    std::vector<std::pair<std::string_view, std::vector<index>>> kinds;
    for (index i = space + 1; i < tree.end(space); i = tree.end(i)) {
        if (!is_value(tree, i) || is_channel(tree, i)) continue;
        if (kinds.empty() || kinds.back().first != tree.name(i)) kinds.push_back({tree.name(i), {}});
        kinds.back().second.push_back(i);
    }
    std::string text;
    for (const auto& [name, nodes] : kinds) {
        if (!text.empty()) text += ", ";
        if (nodes.size() <= k_most_in_full) {
            for (const index node : nodes) {
                text += (node == nodes.front() ? "" : ", ") + printable(name);
                append_texts(tree, node, text);
            }
            continue;
        }
        text += std::to_string(nodes.size()) + " " + printable(name);
        if (tree.field_count(nodes.front()) < 2) continue;
        const c_tree::field first = tree.get_field(nodes.front(), 0);
        text += ", " + printable(first.name) + " " + short_text(first.value) + " to " +
                short_text(tree.value(nodes.back(), first.name));
    }
    return text;
}

struct s_column {
    std::string_view space;
    std::string_view channel;
    std::size_t width;
};

/// The cell of a column, if the row has one: the first value of that space counts.
std::string cell(const c_tree& tree, index color, const s_column& column) {
    const index space = tree.child(color, column.space);
    const index channel = space == 0 ? 0 : tree.child(space, column.channel);
    return channel == 0 ? std::string() : short_text(tree.value(channel));
}

std::string title_of(const s_column& column, bool is_first) {
    const std::string channel = printable(column.channel);
    return is_first ? printable(column.space.substr(k_space_prefix.size())) + " " + channel : channel;
}

/// One column per channel that any of the colours has, those of a space side by side. Their number is bounded by the
/// format, since a document names neither spaces nor channels.
std::vector<s_column> find_columns(const c_tree& tree, std::span<const s_color> colors) {
    std::vector<s_column> columns;
    for (const s_color& color : colors) {
        for (index space = color.node + 1; space < tree.end(color.node); space = tree.end(space)) {
            if (!tree.name(space).starts_with(k_space_prefix)) continue;
            for (index i = space + 1; i < tree.end(space); i = tree.end(i)) {
                if (!is_value(tree, i) || !is_channel(tree, i)) continue;
                auto place = columns.end();
                bool is_known = false;
                for (auto at = columns.begin(); at != columns.end() && !is_known; ++at) {
                    if (at->space != tree.name(space)) continue;
                    place = at + 1;
                    is_known = at->channel == tree.name(i);
                }
                if (!is_known) place = columns.insert(place, {tree.name(space), tree.name(i), 0});
            }
        }
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
        s_column& column = columns[i];
        column.width = width(title_of(column, i == 0 || columns[i - 1].space != column.space));
        for (const s_color& color : colors)
            column.width = std::max(column.width, width(cell(tree, color.node, column)));
    }
    return columns;
}

/// What the columns leave out: a second value of a space, and records.
std::string rest_of(const c_tree& tree, index color) {
    std::string rest;
    for (index space = color + 1; space < tree.end(color); space = tree.end(space)) {
        const std::string_view name = tree.name(space);
        if (!name.starts_with(k_space_prefix)) continue;
        std::string text;
        if (tree.child(color, name) != space) {
            for (index i = space + 1; i < tree.end(space); i = tree.end(i)) {
                if (is_value(tree, i) && is_channel(tree, i)) text += " " + short_text(tree.value(i));
            }
        }
        const std::string records = records_text(tree, space);
        if (!records.empty()) text += (text.empty() ? " " : ", ") + records;
        if (text.empty()) continue;
        rest += (rest.empty() ? "" : "; ") + printable(name.substr(k_space_prefix.size())) + text;
    }
    return rest;
}

/// Two blanks on the colour's own ground; without RGB values, two blanks.
std::string swatch(const c_tree& tree, index color) {
    constexpr double k_highest = 255;
    for (const std::string_view name : k_screen_spaces) {
        const index space = tree.child(color, name);
        if (space == 0) continue;
        std::string sequence = "\x1B[48;2";
        for (const std::string_view channel : {"Red", "Green", "Blue"}) {
            const double value = number(tree.value(tree.child(space, channel))).value_or(0);
            sequence += ";" + std::to_string(std::lround(value * k_highest));
        }
        return sequence + "m  \x1B[0m ";
    }
    return "   ";
}

void print_table(const c_tree& tree, std::span<const s_color> colors, bool has_swatches) {
    const std::vector<s_column> columns = find_columns(tree, colors);
    // A very long name pushes its own row aside and no other.
    constexpr std::size_t k_widest_name = 40;
    std::size_t name_width = 0;
    for (const s_color& color : colors) {
        name_width = std::max(name_width, std::min(k_widest_name, width(printable(tree.title(color.node)))));
    }
    const auto print_row = [&](const std::string& name, auto cell_of, const std::string& rest) {
        std::string line = name + std::string(name_width - std::min(name_width, width(name)), ' ');
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const bool is_first = i == 0 || columns[i - 1].space != columns[i].space;
            const std::string text = cell_of(columns[i], is_first);
            line += std::string(columns[i].width - width(text) + (is_first ? 3 : 1), ' ') + text;
        }
        if (!rest.empty()) line += "   " + rest;
        line.erase(line.find_last_not_of(' ') + 1);
        std::cout << line << '\n';
    };
    if (!columns.empty()) print_row(has_swatches ? "     " : "  ", title_of, {});
    for (const s_color& color : colors) {
        std::cout << "  " << (has_swatches ? swatch(tree, color.node) : "");
        print_row(
            printable(tree.title(color.node)),
            [&](const s_column& column, bool) { return cell(tree, color.node, column); }, rest_of(tree, color.node));
    }
}

json to_json(std::string_view text) {
    const std::optional<double> value = number(text);
    return value ? json(*value) : json(std::string(text));
}

/// Records always stand in an array, also one alone.
json to_json(const c_tree& tree, index node) {
    if (is_channel(tree, node)) return to_json(tree.value(node));
    json object = json::object();
    for (std::size_t i = 0; i < tree.field_count(node); ++i) {
        const c_tree::field field = tree.get_field(node, i);
        object[field.name.empty() ? "value" : std::string(field.name)] = to_json(field.value);
    }
    for (index i = node + 1; i < tree.end(node); i = tree.end(i)) {
        if (!is_value(tree, i)) continue;
        json& member = object[std::string(tree.name(i))];
        if (is_channel(tree, i)) {
            member = to_json(tree, i);
        } else {
            member.push_back(to_json(tree, i));
        }
    }
    return object;
}

json to_json(const c_tree& tree, const s_color& color, const std::string& path) {
    json object = {{"name", tree.title(color.node)}};
    for (std::size_t i = 0; i < tree.field_count(color.node); ++i) {
        const c_tree::field field = tree.get_field(color.node, i);
        if (field.name == "UniqueID" || field.name == "ColorNumber") object[std::string(field.name)] = field.value;
    }
    if (color.palette != 0) object["palette"] = tree.title(color.palette);
    if (color.set != 0) object["set"] = tree.title(color.set);
    if (!path.empty()) object["in"] = path;
    json values = json::array();
    for (index i = color.node + 1; i < tree.end(color.node); i = tree.end(i)) {
        if (!tree.name(i).starts_with(k_space_prefix)) continue;
        json value = {{"space", tree.name(i).substr(k_space_prefix.size())}};
        value.update(to_json(tree, i));
        values.push_back(std::move(value));
    }
    object["values"] = std::move(values);
    return object;
}

}  // namespace

exit_code list(const list_options& options) {
    c_tree tree;
    const exit_code result = read_tree(options.file, tree);
    if (result != exit_ok) return result;
    std::map<index, std::string> paths;
    const std::vector<s_color> colors = find_colors(tree, options, paths);
    if (options.json) {
        // Colour by colour, since spectra make long values.
        const char* separator = "\n";
        std::cout << "[";
        for (const s_color& color : colors) {
            std::cout << std::exchange(separator, ",\n") << to_text(to_json(tree, color, paths[color.parent]), true);
        }
        std::cout << "\n]\n";
        return exit_ok;
    }
    if (colors.empty()) complain(options.file, "no such colour");
    for (std::size_t i = 0; i < colors.size();) {
        std::size_t last = i;
        while (last < colors.size() && colors[last].parent == colors[i].parent) ++last;
        const std::string& path = paths[colors[i].parent];
        std::cout << (i == 0 ? "" : "\n") << (path.empty() ? "Outside palettes" : path) << '\n';
        print_table(tree, std::span(colors).subspan(i, last - i), use_true_color(options.color));
        i = last;
    }
    return exit_ok;
}

}  // namespace vyr_tool
