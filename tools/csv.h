// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Colours as a table of comma-separated values (RFC 4180), and the headers that `vyr list --csv` writes and
/// `vyr import` reads.

#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/colors.h"

namespace vyr_tool {

/// The columns that every table has. The others are conditions by their names, parts of values by theirs, and
/// wavelengths.
namespace csv_header {
inline constexpr char file[] = "File";
inline constexpr char palette[] = "Palette";
inline constexpr char set[] = "ColorSet";
inline constexpr char color[] = "Color";
inline constexpr char color_id[] = "ColorUniqueID";
inline constexpr char color_number[] = "ColorNumber";
inline constexpr char in[] = "In";
inline constexpr char space[] = "Space";
inline constexpr char source[] = "ConditionsFrom";
}  // namespace csv_header

/// "380 nm"
std::string wavelength_header(std::string_view wavelength);
/// The wavelength that a header names, with or without its unit; nothing if it is another header.
std::optional<double> wavelength_of(std::string_view header);

class c_csv_table {
public:
    explicit c_csv_table(bool has_files) : m_has_files(has_files) {}

    /// A row for each value of each colour.
    void add(const std::string& file, const c_tree& tree, std::span<const s_color> colors);
    void print(std::ostream& out) const;

private:
    enum class part { place, condition, value, wavelength };
    struct s_column {
        part what;
        double wavelength;
        std::string name;
    };
    using row = std::vector<std::pair<std::size_t, std::string>>;

    void set(row& cells, part what, const std::string& name, std::string_view text);
    void add_value(row& cells, const std::string& name, const json& value);

    bool m_has_files;
    std::vector<s_column> m_columns;
    std::map<std::pair<part, std::string>, std::size_t> m_numbers;
    std::vector<row> m_rows;
};

/// A row of a table, and the line of the file that it begins on.
struct s_csv_row {
    std::size_t line;
    std::vector<std::string> cells;
};

/// Takes a table apart; rows without any text are left out. Returns what is wrong with it, which begins with
/// the number of a line, or nothing.
std::string read_csv(std::string_view text, std::vector<s_csv_row>& rows);

}  // namespace vyr_tool
