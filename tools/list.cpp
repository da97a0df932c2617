// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr list`: the colours of documents with their values and the conditions of each, as tables, JSON or CSV.

#include <algorithm>
#include <iostream>
#include <span>
#include <utility>
#include <vector>

#include "tools/colors.h"
#include "tools/commands.h"
#include "tools/csv.h"
#include "tools/files.h"
#include "tools/json.h"
#include "tools/progress.h"
#include "tools/spectrum.h"
#include "tools/system.h"
#include "tools/text.h"
#include "tools/tree.h"
#include "tools/typed_json.h"

namespace vyr_tool {

namespace {

using index = c_tree::index;

/// What the tables leave out, as it is the same for almost all.
constexpr std::string_view k_not_shown[] = {"ColorDepth"};

bool fits(const std::string& pattern, std::string_view text) {
    return pattern.empty() || system::fits_pattern(pattern, std::string(text));
}

std::vector<s_color> find_wanted(const c_tree& tree, const list_options& options) {
    std::vector<s_color> colors = find_colors(tree);
    std::erase_if(colors, [&](const s_color& color) {
        return !fits(options.name, tree.title(color.node)) ||
               !fits(options.palette, color.palette == 0 ? "" : tree.title(color.palette)) ||
               !fits(options.set, color.set == 0 ? "" : tree.title(color.set));
    });
    return colors;
}

/// A value that is a single text has a column of its own; points, inks and axes don't.
bool is_channel(const c_tree& tree, index node) { return tree.type(node) == nullptr; }

/// The colours of one place as a table: a column for each channel, values under other conditions in other columns.
class c_table {
public:
    c_table(const c_tree& tree, std::span<const s_color> colors, bool has_swatches, bool has_curves)
        : m_tree(tree), m_has_swatches(has_swatches), m_has_curves(has_curves) {
        for (const s_color& color : colors) add(color);
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            m_columns[i].width = std::max(m_columns[i].width, width(title_of(i)));
        }
    }

    void print() const {
        // A very long name pushes its own row aside and no other.
        constexpr std::size_t k_widest_name = 40;
        std::size_t name_width = 0;
        for (const s_row& row : m_rows) name_width = std::max(name_width, std::min(k_widest_name, width(row.name)));
        if (!m_columns.empty()) {
            print_row(m_has_swatches ? "     " : "  ", name_width + (m_has_swatches ? 5 : 2),
                      [&](std::size_t i) { return title_of(i); });
        }
        for (const s_row& row : m_rows) {
            std::cout << "  " << row.swatch;
            print_row(row.name, name_width,
                      [&](std::size_t i) { return i < row.cells.size() ? row.cells[i] : std::string(); });
            for (const std::string& line : row.lines) std::cout << "      " << line << '\n';
        }
        for (std::size_t i = 0; i < m_conditions.size(); ++i) {
            std::cout << "  [" << i + 1 << "] " << m_conditions[i] << '\n';
        }
    }

    bool has_spectra() const { return m_has_spectra; }

private:
    /// Columns of one space under the same conditions stand together; a colour's further value of that kind has a
    /// higher `turn`.
    struct s_column {
        std::string group;
        std::size_t turn;
        std::string_view channel;
        std::size_t width;

        bool is_with(const s_column& other) const { return group == other.group && turn == other.turn; }
    };
    struct s_row {
        std::string name;
        std::string swatch;
        std::vector<std::string> cells;
        std::vector<std::string> lines;
    };

    /// "CIELab[2]", with the number of the value's conditions below the table.
    std::string group_of(const s_color& color, index value) {
        const std::string words = conditions_of(m_tree, color, value).in_words();
        std::string group = printable(space_of(m_tree, value));
        if (words.empty()) return group;
        auto found = std::ranges::find(m_conditions, words);
        if (found == m_conditions.end()) found = m_conditions.insert(found, words);
        return group + "[" + std::to_string(found - m_conditions.begin() + 1) + "]";
    }

    std::size_t column_of(const s_column& wanted) {
        auto place = m_columns.end();
        for (auto at = m_columns.begin(); at != m_columns.end(); ++at) {
            if (!at->is_with(wanted)) continue;
            if (at->channel == wanted.channel) return static_cast<std::size_t>(at - m_columns.begin());
            place = at + 1;
        }
        const auto made = static_cast<std::size_t>(place - m_columns.begin());
        m_columns.insert(place, wanted);
        for (s_row& row : m_rows) {
            if (made < row.cells.size()) row.cells.insert(row.cells.begin() + static_cast<std::ptrdiff_t>(made), "");
        }
        return made;
    }

    void add(const s_color& color) {
        m_rows.push_back({printable(m_tree.title(color.node)), swatch(color.node), {}, {}});
        std::vector<std::string> groups;
        for (const index value : values_of(m_tree, color.node)) {
            groups.push_back(group_of(color, value));
            const auto turn = static_cast<std::size_t>(std::ranges::count(groups, groups.back()));
            for (const index part : parts_of(m_tree, value)) {
                if (!is_channel(m_tree, part) ||
                    std::ranges::find(k_not_shown, m_tree.name(part)) != std::end(k_not_shown))
                    continue;
                const std::size_t column = column_of({groups.back(), turn, m_tree.name(part), 0});
                std::vector<std::string>& cells = m_rows.back().cells;
                cells.resize(std::max(cells.size(), column + 1));
                cells[column] = shown_value(m_tree.value(part), m_tree.member(part)->item->value);
                m_columns[column].width = std::max(m_columns[column].width, width(cells[column]));
            }
            add_records(groups.back(), value);
        }
    }

    /// What has no column, in full; of spectra the outline.
    void add_records(const std::string& group, index value) {
        std::vector<std::string>& lines = m_rows.back().lines;
        if (const std::vector<s_point> points = points_of(m_tree, value); !points.empty()) {
            lines.push_back(group + ": " + summary(points));
            if (m_has_curves) lines.back() += "  " + spark_curve(points);
            m_has_spectra = true;
        }
        for (const index part : parts_of(m_tree, value)) {
            if (is_channel(m_tree, part) || is_spectral_point(m_tree, part)) continue;
            const std::string text = record_text(m_tree, part);
            const char* const gap = text.empty() ? "" : " ";
            lines.push_back(
                std::string(group).append(": ").append(printable(m_tree.name(part))).append(gap).append(text));
        }
    }

    /// Two blanks on the colour's own ground; without an sRGB value, two blanks.
    std::string swatch(index color) const {
        if (!m_has_swatches) return {};
        const std::string channels = srgb_of(m_tree, color, ';');
        return channels.empty() ? "   " : "\x1B[48;2;" + channels + "m  \x1B[0m ";
    }

    bool is_first_of_group(std::size_t column) const {
        return column == 0 || !m_columns[column - 1].is_with(m_columns[column]);
    }

    std::string title_of(std::size_t column) const {
        const std::string channel = printable(m_columns[column].channel);
        return is_first_of_group(column) ? m_columns[column].group + " " + channel : channel;
    }

    template <class CellOf>
    void print_row(const std::string& name, std::size_t name_width, CellOf cell_of) const {
        std::string line = name + std::string(name_width - std::min(name_width, width(name)), ' ');
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const std::string text = cell_of(i);
            line += std::string(m_columns[i].width - width(text) + (is_first_of_group(i) ? 3 : 1), ' ') + text;
        }
        line.erase(line.find_last_not_of(' ') + 1);
        std::cout << line << '\n';
    }

    const c_tree& m_tree;
    bool m_has_swatches;
    bool m_has_curves;
    bool m_has_spectra = false;
    std::vector<std::string> m_conditions;
    std::vector<s_column> m_columns;
    std::vector<s_row> m_rows;
};

/// What stands beside the colours in a record of quality control: devices, results, tolerances, samples.
void print_besides(const c_tree& tree, index node) {
    constexpr std::string_view k_own[] = {"Color",         "Standard",       "Measurement", "StandardAndMeasurement",
                                          "ChangeHistory", "CustomAttribute"};
    for (index i = node + 1; i < tree.end(node); i = tree.end(i)) {
        if (std::ranges::find(k_own, tree.name(i)) != std::end(k_own)) continue;
        const std::string text = record_text(tree, i);
        std::cout << "  " << printable(tree.name(i)) << (text.empty() ? "" : ": ") << text << '\n';
    }
}

void print_text(const c_tree& tree, std::span<const s_color> colors, const color_mode& mode) {
    bool has_spectra = false;
    index record = 0;
    for (std::size_t i = 0; i < colors.size();) {
        std::size_t last = i;
        while (last < colors.size() && colors[last].parent == colors[i].parent) ++last;
        if (i != 0) std::cout << '\n';
        if (colors[i].record != 0 && colors[i].record != record) {
            record = colors[i].record;
            std::cout << "Quality control" << (tree.title(record).empty() ? "" : " " + in_quotes(tree.title(record)))
                      << '\n';
            print_besides(tree, record);
            std::cout << '\n';
        }
        std::cout << (colors[i].path.empty() ? "Outside palettes" : colors[i].path) << '\n';
        if (record != 0 && colors[i].record == record) print_besides(tree, colors[i].parent);
        const c_table table(tree, colors.subspan(i, last - i), use_true_color(mode), use_curves());
        table.print();
        has_spectra = has_spectra || table.has_spectra();
        i = last;
    }
    if (has_spectra) std::cout << "\nOf spectra the outline is shown; --csv and --json give every point.\n";
}

json to_json(const c_tree& tree, const s_color& color) {
    json object = {{"name", tree.title(color.node)}};
    for (const std::string_view name : {"UniqueID", "ColorNumber"}) {
        const std::string_view text = tree.value(color.node, name);
        if (!text.empty()) object[std::string(name)] = text;
    }
    if (color.palette != 0) object["palette"] = tree.title(color.palette);
    if (color.set != 0) object["set"] = tree.title(color.set);
    if (!color.path.empty()) object["in"] = color.path;
    if (color.record != 0) {
        object["record"] = typed_json(tree, color.parent, [&](index child) { return child != color.node; });
    }
    json values = json::array();
    for (const index i : values_of(tree, color.node)) {
        const std::vector<index> parts = parts_of(tree, i);
        json value = {{"space", space_of(tree, i)}};
        value.update(typed_json(tree, i, [&](index child) { return std::ranges::binary_search(parts, child); }));
        const s_conditions conditions = conditions_of(tree, color, i);
        if (!conditions.source.empty()) value["conditions"] = conditions.to_json();
        values.push_back(std::move(value));
    }
    object["values"] = std::move(values);
    return object;
}

}  // namespace

exit_code list(const list_options& options) {
    exit_code result = exit_ok;
    const bool is_one = options.files.size() == 1;
    const char* separator = "\n";
    c_csv_table csv(!is_one);
    if (options.json) std::cout << "[";
    for (const std::string& file : options.files) {
        c_tree tree;
        const exit_code read = read_tree(file, tree);
        result = std::max(result, read);
        if (read != exit_ok) continue;
        const c_progress_line progress("printing " + shown_name(file));
        const std::vector<s_color> colors = find_wanted(tree, options);
        if (options.csv) {
            csv.add(shown_name(file), tree, colors);
        } else if (options.json) {
            // Colour by colour, since spectra make long values.
            for (const s_color& color : colors) {
                json object = to_json(tree, color);
                if (!is_one) object["file"] = file;
                std::cout << std::exchange(separator, ",\n") << to_text(object, true);
            }
        } else {
            if (!is_one) std::cout << std::exchange(separator, "\n\n") + 1 << shown_name(file) << ":\n";
            if (colors.empty()) complain(file, "no such colour");
            print_text(tree, colors, options.color);
        }
    }
    if (options.json) std::cout << "\n]\n";
    if (options.csv) {
        const c_progress_line progress("printing the table");
        csv.print(std::cout);
    }
    return result;
}

}  // namespace vyr_tool
