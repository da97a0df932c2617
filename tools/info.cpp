// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr info`: what documents say of themselves, their palettes, records and devices, and how many elements of each
/// kind they hold.

#include <algorithm>
#include <cstdint>
#include <iomanip>
#include <iostream>
#include <unordered_map>
#include <utility>
#include <vector>

#include "schema/Vyr.h"
#include "tools/colors.h"
#include "tools/commands.h"
#include "tools/files.h"
#include "tools/json.h"
#include "tools/progress.h"
#include "tools/text.h"
#include "tools/tree.h"
#include "tools/typed_json.h"

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

/// The simple values of the document's header, in its order, and its owner and version in full.
std::vector<std::pair<std::string, std::string>> header_of(const c_tree& tree) {
    std::vector<std::pair<std::string, std::string>> rows;
    const index preamble = tree.child(0, "Preamble");
    for (index i = preamble + 1; i < tree.end(preamble); i = tree.end(i)) {
        if (tree.name(i) != "Header") {
            rows.emplace_back(tree.name(i), record_text(tree, i));
            continue;
        }
        for (index j = i + 1; j < tree.end(i); j = tree.end(j)) {
            if (tree.is_leaf(j) && !tree.value(j).empty()) {
                rows.emplace_back(tree.name(j), shown_value(tree.value(j), kind_of(tree.member(j)->item)));
            }
        }
    }
    return rows;
}

/// Each device once, with the number of places that name it.
std::vector<std::pair<index, std::size_t>> devices_of(const c_tree& tree) {
    std::vector<std::pair<index, std::size_t>> devices;
    std::unordered_map<std::uint64_t, std::size_t> places;
    for (index node = 0; node < tree.size(); ++node) {
        if (tree.type(node) != &com_vyrgraph_v2::DeviceType::k_class) continue;
        const auto [place, is_new] = places.try_emplace(tree.hash(node), devices.size());
        if (is_new) devices.emplace_back(node, 0);
        ++devices[place->second].second;
    }
    return devices;
}

/// What is counted of a document.
struct s_counts {
    s_kind root;
    std::size_t colors = 0;
    std::vector<std::pair<std::string_view, std::size_t>> spaces{};  ///< values by their kinds: "SRGB", "CIELab"
};

s_counts count(const c_tree& tree, std::size_t depth) {
    s_counts counts{{tree.name(0), 0}};
    count_parts(tree, 0, depth, counts.root);
    auto& spaces = counts.spaces;
    for (index node = 0; node < tree.size(); ++node) {
        if (tree.type(node) != &com_vyrgraph_v2::ColorType::k_class) continue;
        ++counts.colors;
        for (const index value : values_of(tree, node)) {
            const std::string_view space = space_of(tree, value);
            auto found = std::ranges::find(spaces, space, &std::pair<std::string_view, std::size_t>::first);
            if (found == spaces.end()) found = spaces.insert(found, {space, 0});
            ++found->second;
        }
    }
    return counts;
}

void print_kind(const s_kind& kind) {
    std::cout << std::setw(9) << kind.count << "  " << std::string(2 * kind.depth, ' ') << printable(kind.name)
              << '\n';
    for (const s_kind& inner : kind.parts) print_kind(inner);
}

void print_besides(const c_tree& tree, index node, std::string_view name, const char* indent) {
    for (const index i : tree.children(node, name)) {
        std::cout << indent << printable(name) << ": " << record_text(tree, i) << '\n';
    }
}

void print_palettes(const c_tree& tree) {
    for (const index palette : tree.children(0, "Palette")) {
        const std::vector<index> sets = tree.children(palette, "ColorSet");
        std::cout << "\nPalette " << in_quotes(tree.title(palette)) << ": "
                  << counted(sets.size(), "colour set", "colour sets") << '\n';
        print_besides(tree, palette, "Owner", "  ");
        for (const index set : sets) {
            std::cout << std::setw(9) << tree.children(set, "Color").size() << "  in ColorSet "
                      << in_quotes(tree.title(set)) << '\n';
            print_besides(tree, set, "Owner", "           ");
        }
    }
}

/// Standards with their tolerances, measurements with their results; the colours are `list`'s.
void print_records(const c_tree& tree) {
    for (const index record : tree.children(0, "ColorQualityControl")) {
        std::cout << "\nQuality control" << (tree.title(record).empty() ? "" : " " + in_quotes(tree.title(record)))
                  << '\n';
        print_besides(tree, record, "Tolerance", "  ");
        print_besides(tree, record, "PhysicalSample", "  ");
        for (const index pair : tree.children(record, "StandardAndMeasurement")) {
            for (const std::string_view part : {"Standard", "Measurement"}) {
                for (const index i : tree.children(pair, part)) {
                    const index color = tree.child(i, "Color");
                    std::cout << "  " << part << ' ' << (color == 0 ? "unknown" : in_quotes(tree.title(color)))
                              << '\n';
                    for (index j = i + 1; j < tree.end(i); j = tree.end(j)) {
                        if (tree.name(j) != "Color") {
                            std::cout << "    " << printable(tree.name(j)) << ": " << record_text(tree, j) << '\n';
                        }
                    }
                }
            }
        }
    }
}

void print_devices(const c_tree& tree) {
    const auto devices = devices_of(tree);
    if (!devices.empty()) std::cout << "\nDevices\n";
    for (const auto& [device, count] : devices) {
        std::cout << std::setw(9) << count << "  " << record_text(tree, device) << '\n';
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
    for (const index palette : tree.children(0, "Palette")) {
        json sets = json::array();
        for (const index set : tree.children(palette, "ColorSet")) {
            sets.push_back({{"name", tree.title(set)}, {"colors", tree.children(set, "Color").size()}});
        }
        palettes.push_back({{"name", tree.title(palette)}, {"sets", std::move(sets)}});
    }
    return palettes;
}

/// Records as typed objects, with the colours by name.
json records_as_json(const c_tree& tree) {
    json records = json::array();
    const auto takes = [&](index i) { return tree.name(i) != "Color" && tree.name(i) != "StandardAndMeasurement"; };
    for (const index record : tree.children(0, "ColorQualityControl")) {
        json object = typed_json(tree, record, takes);
        json pairs = json::array();
        for (const index pair : tree.children(record, "StandardAndMeasurement")) {
            json members = json::object();
            for (index i = pair + 1; i < tree.end(pair); i = tree.end(i)) {
                if (tree.name(i) != "Standard" && tree.name(i) != "Measurement") continue;
                json part = typed_json(tree, i, takes);
                const index color = tree.child(i, "Color");
                if (color != 0) part["color"] = tree.title(color);
                members[tree.name(i) == "Standard" ? "standard" : "measurements"].push_back(std::move(part));
            }
            if (members.contains("standard")) members["standard"] = json(members["standard"].front());
            pairs.push_back(std::move(members));
        }
        object["pairs"] = std::move(pairs);
        records.push_back(std::move(object));
    }
    return records;
}

json describe(const std::string& file, std::uint64_t size, const c_tree& tree, std::size_t depth) {
    const s_counts counts = count(tree, depth);
    json object = {{"file", file}, {"bytes", size}, {"colors", counts.colors}};
    json preamble = typed_json(tree, tree.child(0, "Preamble"));
    object["header"] = std::move(preamble["Header"]);
    if (preamble.contains("Owner")) object["owner"] = std::move(preamble["Owner"]);
    if (preamble.contains("Version")) object["version"] = std::move(preamble["Version"]);
    object["spaces"] = json::object();
    for (const auto& [name, count] : counts.spaces) object["spaces"][std::string(name)] = count;
    object["palettes"] = palettes_as_json(tree);
    object["quality_control"] = records_as_json(tree);
    object["devices"] = json::array();
    for (const auto& [device, count] : devices_of(tree)) {
        object["devices"].push_back({{"count", count}, {"device", typed_json(tree, device)}});
    }
    object["tree"] = to_json(counts.root);
    return object;
}

void print_text(const std::string& file, std::uint64_t size, const c_tree& tree, std::size_t depth) {
    const s_counts counts = count(tree, depth);
    std::cout << shown_name(file) << ": " << counted(size, "byte", "bytes") << ", "
              << counted(tree.size(), "element", "elements") << ", " << counted(counts.colors, "colour", "colours")
              << '\n';
    for (const auto& [name, value] : header_of(tree)) std::cout << "  " << name << ": " << value << '\n';
    if (!counts.spaces.empty()) std::cout << "\nColour values\n";
    for (const auto& [name, count] : counts.spaces)
        std::cout << std::setw(9) << count << "  " << printable(name) << '\n';
    print_palettes(tree);
    print_records(tree);
    print_devices(tree);
    std::cout << "\nElements\n";
    print_kind(counts.root);
}

}  // namespace

exit_code info(const info_options& options) {
    exit_code result = exit_ok;
    const bool is_one = options.files.size() == 1;
    const char* separator = "";
    if (options.json && !is_one) std::cout << "[";
    for (const std::string& file : options.files) {
        c_tree tree;
        std::uint64_t size = 0;
        const exit_code read = read_tree(file, tree, &size);
        result = std::max(result, read);
        if (read != exit_ok) continue;
        const c_progress_line progress("printing " + shown_name(file));
        if (options.json) {
            std::cout << std::exchange(separator, ",\n") << to_text(describe(file, size, tree, options.depth));
        } else {
            std::cout << std::exchange(separator, "\n");
            print_text(file, size, tree, options.depth);
        }
    }
    if (options.json && (is_one ? result == exit_ok : true)) std::cout << (is_one ? "\n" : "]\n");
    return result;
}

}  // namespace vyr_tool
