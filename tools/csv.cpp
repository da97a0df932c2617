// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/csv.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "tools/text.h"
#include "tools/typed_json.h"

namespace vyr_tool {

namespace {

constexpr std::string_view k_unit = " nm";
constexpr std::string_view k_line_end = "\r\n";

std::string quoted_cell(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos && !text.starts_with(' ') && !text.ends_with(' '))
        return text;
    std::string cell = "\"";
    for (const char c : text) cell += c == '"' ? std::string("\"\"") : std::string(1, c);
    return cell + '"';
}

/// "12: column 3: ", for the cell behind so many others.
std::string place(std::size_t line, std::size_t cells) {
    return std::to_string(line) + ": column " + std::to_string(cells + 1) + ": ";
}

}  // namespace

std::string wavelength_header(std::string_view wavelength) { return std::string(wavelength).append(k_unit); }

std::optional<double> wavelength_of(std::string_view header) {
    if (header.ends_with(k_unit)) header.remove_suffix(k_unit.size());
    double number = 0;
    if (!read_number(header, number) || !std::isfinite(number) || number <= 0) return std::nullopt;
    return number;
}

void c_csv_table::set(row& cells, part what, const std::string& name, std::string_view text) {
    const auto [found, is_new] = m_numbers.try_emplace({what, name}, m_columns.size());
    if (is_new) {
        const std::optional<double> wavelength = what == part::wavelength ? wavelength_of(name) : std::nullopt;
        m_columns.push_back({what, wavelength.value_or(0), name});
    }
    cells.emplace_back(found->second, text);
}

/// Parts of parts are named by their path: "ColorantElement[1].Colorant.Name".
void c_csv_table::add_value(row& cells, const std::string& name, const json& value) {
    if (value.is_array()) {
        for (std::size_t i = 0; i < value.size(); ++i)
            add_value(cells, name + "[" + std::to_string(i + 1) + "]", value[i]);
    } else if (value.is_object()) {
        for (const auto& [key, inner] : value.items()) {
            add_value(cells, name.empty() ? key : std::string(name).append(".").append(key), inner);
        }
    } else if (value.is_string()) {
        set(cells, part::value, name, value.get_ref<const std::string&>());
    } else if (!value.is_null()) {
        set(cells, part::value, name, value.dump());
    }
}

void c_csv_table::add(const std::string& file, const c_tree& tree, std::span<const s_color> colors) {
    const auto title = [&tree](c_tree::index node) { return node == 0 ? std::string_view() : tree.title(node); };
    for (const s_color& color : colors) {
        for (const c_tree::index value : values_of(tree, color.node)) {
            row cells;
            if (m_has_files) set(cells, part::place, csv_header::file, file);
            set(cells, part::place, csv_header::palette, title(color.palette));
            set(cells, part::place, csv_header::set, title(color.set));
            set(cells, part::place, csv_header::color, title(color.node));
            set(cells, part::place, csv_header::color_id, tree.value(color.node, "UniqueID"));
            set(cells, part::place, csv_header::color_number, tree.value(color.node, "ColorNumber"));
            set(cells, part::place, csv_header::in, color.path);
            set(cells, part::place, csv_header::space, space_of(tree, value));
            const s_conditions conditions = conditions_of(tree, color, value);
            set(cells, part::place, csv_header::source, conditions.source);
            for (const s_conditions::s_value& one : conditions.values)
                set(cells, part::condition, one.name, one.text);
            const std::vector<c_tree::index> parts = parts_of(tree, value);
            add_value(cells, {}, typed_json(tree, value, [&](c_tree::index child) {
                          return std::ranges::binary_search(parts, child) && !is_spectral_point(tree, child);
                      }));
            std::map<std::string_view, std::size_t> counts;
            for (const c_tree::index point : parts) {
                if (!is_spectral_point(tree, point)) continue;
                const std::string_view wavelength = tree.value(point, "Wavelength");
                // A repeated wavelength loses nothing, but is no wavelength's column.
                const std::size_t count = ++counts[wavelength];
                const std::string name = wavelength_header(wavelength);
                set(cells, part::wavelength, count == 1 ? name : name + "[" + std::to_string(count) + "]",
                    tree.value(point));
            }
            m_rows.push_back(std::move(cells));
        }
    }
}

void c_csv_table::print(std::ostream& out) const {
    std::vector<std::size_t> order(m_columns.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [this](std::size_t a, std::size_t b) {
        return std::pair(m_columns[a].what, m_columns[a].wavelength) <
               std::pair(m_columns[b].what, m_columns[b].wavelength);
    });
    const auto print_line = [&](auto cell_of) {
        for (std::size_t i = 0; i < order.size(); ++i) out << (i == 0 ? "" : ",") << quoted_cell(cell_of(order[i]));
        out << k_line_end;
    };
    if (!order.empty()) print_line([this](std::size_t column) { return m_columns[column].name; });
    for (const row& cells : m_rows) {
        std::vector<std::string> line(m_columns.size());
        for (const auto& [column, text] : cells) line[column] = text;
        print_line([&](std::size_t column) { return line[column]; });
    }
}

std::string read_csv(std::string_view text, std::vector<s_csv_row>& rows) {
    constexpr std::string_view k_mark = "\xEF\xBB\xBF";
    if (text.starts_with(k_mark)) text.remove_prefix(k_mark.size());
    std::size_t line = 1;
    std::size_t at = 0;
    while (at < text.size()) {
        s_csv_row row{line, {}};
        for (bool is_end = false; !is_end;) {
            std::string cell;
            if (at < text.size() && text[at] == '"') {
                const std::size_t first_line = line;
                for (++at;; ++at) {
                    if (at >= text.size()) {
                        return place(first_line, row.cells.size()) +
                               "the quotation mark that begins the cell has no end";
                    }
                    if (text[at] == '"' && !text.substr(at + 1).starts_with('"')) break;
                    if (text[at] == '"') ++at;
                    if (text[at] == '\n') ++line;
                    // Within cells, too, a line ends in either way.
                    if (!text.substr(at).starts_with(k_line_end)) cell += text[at];
                }
                ++at;
                if (at < text.size() && std::string_view(",\r\n").find(text[at]) == std::string_view::npos) {
                    return place(line, row.cells.size()) + "text behind the quotation mark that ends the cell";
                }
            }
            const std::size_t end = std::min(text.find_first_of(",\r\n", at), text.size());
            cell += text.substr(at, end - at);
            at = end;
            row.cells.push_back(std::move(cell));
            is_end = at == text.size() || text[at] != ',';
            if (!is_end) ++at;
        }
        if (text.substr(at).starts_with(k_line_end)) ++at;
        if (at < text.size()) ++at;
        ++line;
        const bool is_blank = std::ranges::all_of(row.cells, [](const std::string& cell) { return cell.empty(); });
        if (!is_blank) rows.push_back(std::move(row));
    }
    return {};
}

}  // namespace vyr_tool
