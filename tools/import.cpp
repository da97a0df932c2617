// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr import`: a document of a table whose headers are those that `vyr list --csv` writes.

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "lmx/values/datetime.h"
#include "tools/commands.h"
#include "tools/csv.h"
#include "tools/document_json.h"
#include "tools/files.h"
#include "tools/progress.h"
#include "tools/save.h"
#include "tools/text.h"

namespace vyr_tool {

namespace {

using com_vyrgraph_v2::ColorType;
using lmx::s_class;

/// What a row without a space may hold, each where all that it demands is there.
constexpr std::string_view k_usual_spaces[] = {"CIELab", "CMYK", "SRGB", "Spectral"};
/// What the format demands and hardly any table says.
constexpr std::pair<std::string_view, const char*> k_usual[] = {{"ColorDepth", "ColorDepth_Infinite"}};
/// Columns that say where a value came from and are nothing that a new document could hold.
constexpr std::string_view k_ignored[] = {csv_header::file, csv_header::in, k_backing};

/// "ColorSpaceCIELab", and "/ColorSpace/" ahead of its place among a colour's values.
std::string space_name(std::string_view space) { return std::string(k_space_prefix).append(space); }
std::string values_pointer() { return std::string("/").append(k_space_prefix).append("/"); }

/// Where a column's cells go.
struct s_column {
    enum class target { place, condition, part, wavelength, ignored } what = target::part;
    const s_condition* condition = nullptr;
    std::string key;      ///< of a part: the member
    std::string pointer;  ///< of a part: its place in the value's object
};

class c_import {
public:
    c_import(const import_options& options, std::vector<s_csv_row> rows)
        : m_options(options), m_rows(std::move(rows)), m_now(lmx::c_datetime::now().get_as_string()) {}

    exit_code run(com_vyrgraph_v2::Vyr& document) {
        if (m_rows.empty()) return complain_of(1, "column 1: a row of headers is expected"), exit_document_fails;
        read_headers();
        if (m_headers.contains(csv_header::color)) {
            for (std::size_t i = 1; i < m_rows.size(); ++i) add_row(i);
        } else {
            complain_of(m_rows[0].line, column_name(csv_header::color) + "there is no such column");
        }
        if (m_count != 0) return finish();
        const json object = whole();
        std::map<const json*, std::pair<std::size_t, std::size_t>> cells;
        for (const s_origin& origin : m_origins) find_cells(object, origin, cells);
        s_json_form form;
        form.has_texts_only = true;
        form.is_nil_where_missing = true;
        form.has_places = true;
        form.history = m_now;
        for (const s_json_fault& fault : read_json(object, document, form)) {
            const auto found = cells.find(fault.place);
            const auto [row, column] = found == cells.end() ? std::pair<std::size_t, std::size_t>() : found->second;
            const std::string where = fault.path.empty() ? "" : fault.path + ": ";
            const std::string text = column != 0 ? cell_name(column - 1) : column_of(fault.path) + where;
            complain_of(m_rows[row].line, text + fault.text);
        }
        return m_count == 0 ? exit_ok : finish();
    }

private:
    using target = s_column::target;

    /// Which row a value of the document came from, and which column each part of it.
    struct s_origin {
        std::size_t row;
        std::string pointer;  ///< of the value, from the document down
        std::vector<std::pair<std::string, std::size_t>> parts;
    };

    void complain_of(std::size_t line, const std::string& text) {
        constexpr std::size_t k_most = 100;
        if (++m_count > k_most) return;
        c_progress_line::make_way();
        std::cerr << shown_name(m_options.table) << ':' << line << ": " << text << '\n';
    }

    exit_code finish() const {
        std::cerr << shown_name(m_options.table) << ": " << counted(m_count, "fault", "faults")
                  << ", nothing is written\n";
        return exit_document_fails;
    }

    static std::string column_name(std::string_view header) { return "column " + in_quotes(header) + ": "; }
    std::string cell_name(std::size_t column) const { return column_name(m_rows[0].cells[column]); }

    void read_headers() {
        std::set<std::string> parts;
        for (const s_class* type : all_values()) {
            for (const s_member& member : c_members::of(*type).all()) parts.insert(std::string(member.key));
        }
        for (std::size_t i = 0; i < m_rows[0].cells.size(); ++i) {
            const std::string& header = m_rows[0].cells[i];
            if (!header.empty() && !m_headers.emplace(header, i).second) {
                complain_of(m_rows[0].line, cell_name(i) + "there is another one of this name");
            }
            s_column column;
            const auto condition = std::ranges::find(all_conditions(), header, &s_condition::name);
            if (is_place(header)) {
                column.what = target::place;
            } else if (header.empty() || std::ranges::find(k_ignored, header) != std::end(k_ignored)) {
                column.what = target::ignored;
            } else if (condition != all_conditions().end()) {
                column = {target::condition, &*condition, {}, {}};
            } else if (wavelength_of(header)) {
                column.what = target::wavelength;
            } else {
                column.pointer = pointer_of(header);
                column.key = column.pointer.substr(1, column.pointer.find('/', 1) - 1);
                if (!parts.contains(column.key))
                    complain_of(m_rows[0].line, cell_name(i) + "no such column is known");
            }
            m_columns.push_back(std::move(column));
        }
    }

    static bool is_place(const std::string& header) {
        constexpr std::string_view k_places[] = {csv_header::palette,  csv_header::set,          csv_header::color,
                                                 csv_header::color_id, csv_header::color_number, csv_header::space,
                                                 csv_header::source};
        return std::ranges::find(k_places, header) != std::end(k_places);
    }

    /// "SpotColor[2].Name" as "/SpotColor/1/Name"
    static std::string pointer_of(const std::string& header) {
        std::string pointer = "/";
        for (std::size_t i = 0; i < header.size(); ++i) {
            const std::size_t end = header[i] == '[' ? header.find(']', i) : header.npos;
            const std::string number = end == header.npos ? "" : header.substr(i + 1, end - i - 1);
            constexpr std::size_t k_most_digits = 3;
            const bool is_number = !number.empty() && number.size() <= k_most_digits && number[0] != '0' &&
                                   number.find_first_not_of("0123456789") == number.npos;
            if (is_number) {
                pointer += "/" + std::to_string(std::stoul(number) - 1);
                i = end;
            } else if (header[i] == '.') {
                pointer += '/';
            } else {
                pointer += header[i] == '~' ? "~0" : header[i] == '/' ? "~1" : std::string(1, header[i]);
            }
        }
        return pointer;
    }

    /// For a fault of no cell alone, the column that says most of what is at fault.
    std::string column_of(const std::string& path) const {
        constexpr std::pair<std::string_view, const char*> k_attributes[] = {
            {"@PaletteName", csv_header::palette},
            {"@ColorSetName", csv_header::set},
            {"@UniqueID", csv_header::color_id},
            {"@ColorNumber", csv_header::color_number}};
        for (const auto& [step, header] : k_attributes) {
            if (path.ends_with(step)) return column_name(header);
        }
        return column_name(m_headers.contains(csv_header::space) ? csv_header::space : csv_header::color);
    }

    /// The classes of all kinds of value.
    static std::vector<const s_class*> all_values() {
        std::vector<const s_class*> types;
        for (const s_member& member : c_members::of(ColorType::k_class).all()) {
            if (member.is_group_list()) types.push_back(member.item->type);
        }
        return types;
    }

    const std::string& cell(std::size_t row, const char* header) const {
        static const std::string none;
        const auto found = m_headers.find(header);
        const std::vector<std::string>& cells = m_rows[row].cells;
        return found == m_headers.end() || found->second >= cells.size() ? none : cells[found->second];
    }

    void add_row(std::size_t row) {
        const std::size_t line = m_rows[row].line;
        if (m_rows[row].cells.size() > m_columns.size()) {
            return complain_of(line, "column " + std::to_string(m_columns.size() + 1) + ": it has no header");
        }
        for (std::size_t i = 0; i < m_rows[row].cells.size(); ++i) {
            const auto is_control = [](char c) { return c >= 0 && c < ' ' && c != '\n' && c != '\t'; };
            if (std::ranges::none_of(m_rows[row].cells[i], is_control)) continue;
            return complain_of(line, cell_name(i) + "there is a character that a document can't hold: " +
                                         in_quotes(m_rows[row].cells[i]));
        }
        if (cell(row, csv_header::color).empty()) {
            return complain_of(line, column_name(csv_header::color) + "the colour has no name");
        }
        const std::string& space = cell(row, csv_header::space);
        std::vector<std::string_view> spaces;
        if (!space.empty()) {
            if (c_members::of(ColorType::k_class).element(space_name(space)) == nullptr) {
                return complain_of(
                    line, cell_name(m_headers.at(csv_header::space)) + in_quotes(space) + " is no kind of value");
            }
            spaces = {space};
        } else {
            for (const std::string_view usual : k_usual_spaces) {
                if (first_missing(row, usual).empty()) spaces.push_back(usual);
            }
        }
        if (spaces.empty()) return complain_of_no_value(row);
        for (const std::string_view one : spaces) {
            if (!first_missing(row, one).empty()) complain_of_missing(row, one);
            add_value(row, one, !space.empty());
        }
    }

    void complain_of_missing(std::size_t row, std::string_view space) {
        complain_of(m_rows[row].line, column_name(first_missing(row, space)) + std::string(space) + " needs it");
    }

    void complain_of_no_value(std::size_t row) {
        for (const std::string_view usual : k_usual_spaces) {
            const s_class& type = class_of(usual);
            const auto is_there = [&](const s_member& member) { return has_part(row, type, member); };
            if (std::ranges::any_of(c_members::of(type).all(), is_there)) return complain_of_missing(row, usual);
        }
        complain_of(m_rows[row].line, cell_name(m_headers.at(csv_header::color)) + "the colour has no value");
    }

    static const s_class& class_of(std::string_view space) {
        return *c_members::of(ColorType::k_class).element(space_name(space))->item->type;
    }

    static const s_member* points_of(const s_class& type) {
        for (const s_member& member : c_members::of(type).all()) {
            if (member.item->type != nullptr &&
                c_members::of(*member.item->type).attribute("Wavelength") != nullptr) {
                return &member;
            }
        }
        return nullptr;
    }

    bool is_filled(std::size_t row, std::size_t column) const {
        return column < m_rows[row].cells.size() && !m_rows[row].cells[column].empty();
    }

    /// Whether a cell must say what a member holds: nothing else does.
    static bool is_asked_of_table(const s_member& member) {
        const s_class* const type = member.item->type;
        const bool is_usual =
            std::ranges::find(k_usual, member.key, &std::pair<std::string_view, const char*>::first) !=
            std::end(k_usual);
        return (member.item->use & lmx::use_demanded) != 0 && member.holder == member.item && !is_usual &&
               (type == nullptr || type->nil_flag == lmx::k_no_flag) && member.key != "ChangeHistory";
    }

    /// Whether any cell of the row holds a part of a kind of value.
    bool has_part(std::size_t row, const s_class& type, const s_member& member) const {
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const bool is_for_it = &member == points_of(type)
                                       ? m_columns[i].what == target::wavelength
                                       : m_columns[i].what == target::part && m_columns[i].key == member.key;
            if (is_for_it && is_filled(row, i)) return true;
        }
        return false;
    }

    /// The column that a kind of value can't be without and that the row leaves empty; empty if there is none.
    std::string first_missing(std::size_t row, std::string_view space) const {
        const s_class& type = class_of(space);
        for (const s_member& member : c_members::of(type).all()) {
            if (!is_asked_of_table(member) || has_part(row, type, member)) continue;
            return &member == points_of(type) ? wavelength_header("400") : std::string(member.key);
        }
        return {};
    }

    /// The same for the conditions that were found, where there are any.
    static std::string first_missing_condition(const s_class& specification, const json& conditions) {
        for (const s_member& member : c_members::of(specification).all()) {
            if (!is_asked_of_table(member) || conditions.contains(member.key)) continue;
            const auto is_of_it = [&](const s_condition& condition) { return condition.path.front() == member.key; };
            const auto condition = std::ranges::find_if(all_conditions(), is_of_it);
            return std::string(condition == all_conditions().end() ? member.key : condition->name);
        }
        return {};
    }

    /// `is_asked` tells that the row is for this kind of value alone, so that all its cells must have a place there.
    void add_value(std::size_t row, std::string_view space, bool is_asked) {
        const s_class& type = class_of(space);
        const c_members& members = c_members::of(type);
        const s_member* specification = nullptr;
        for (const s_member& member : members.all()) {
            if (member.key.starts_with(k_specification_prefix)) specification = &member;
        }
        s_origin origin{row, {}, {}};
        json value = json::object();
        json conditions;
        const bool is_unknown = cell(row, csv_header::source) == "unknown";
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            if (!is_filled(row, i)) continue;
            const std::string& text = m_rows[row].cells[i];
            const s_column& column = m_columns[i];
            if (column.what == target::condition && !is_unknown) {
                const std::string pointer = specification == nullptr
                                                ? std::string()
                                                : condition_pointer(*specification->item->type, *column.condition);
                if (!pointer.empty()) {
                    const std::string full =
                        std::string(column.condition->prefix).append(text).append(column.condition->suffix);
                    conditions[json::json_pointer(pointer)] = full;
                    origin.parts.emplace_back("/" + std::string(specification->key) + pointer, i);
                } else if (is_asked) {
                    complain_of(m_rows[row].line, cell_name(i) + std::string(space) + " has no such condition");
                }
            } else if (column.what == target::wavelength) {
                add_point(row, i, type, is_asked, value, origin);
            } else if (column.what == target::part && members.by_key(column.key) != nullptr) {
                try {
                    value[json::json_pointer(column.pointer)] = text;
                    origin.parts.emplace_back(column.pointer, i);
                } catch (const json::exception&) {
                    complain_of(m_rows[row].line, cell_name(i) + "no such part can be here");
                }
            } else if (column.what == target::part && is_asked) {
                complain_of(m_rows[row].line, cell_name(i) + std::string(space) + " has no such part");
            }
        }
        if (!conditions.is_null()) {
            if (c_members::of(*specification->item->type).element("Spectrum") != nullptr &&
                !conditions.contains("Spectrum")) {
                conditions["Spectrum"] = {{std::string(k_content_key), "Spectrum_Reflectance"}};
            }
            const std::string missing = first_missing_condition(*specification->item->type, conditions);
            if (!missing.empty()) {
                complain_of(m_rows[row].line,
                            column_name(missing) + "the conditions of " + std::string(space) + " need it");
            }
            value[std::string(specification->key)] = std::move(conditions);
        }
        for (const auto& [key, text] : k_usual) {
            if (members.element(key) != nullptr && !value.contains(key)) value[std::string(key)] = text;
        }
        json& colors = collection_of(row, &origin.pointer);
        json& color = color_of(row, colors, &origin.pointer);
        json& values = color[std::string(k_space_prefix)];
        values.push_back({{space_name(space), std::move(value)}});
        origin.pointer += values_pointer() + std::to_string(values.size() - 1) + "/" + space_name(space);
        m_origins.push_back(std::move(origin));
    }

    void add_point(std::size_t row, std::size_t column, const s_class& type, bool is_asked, json& value,
                   s_origin& origin) {
        const s_member* const points = points_of(type);
        if (points == nullptr) {
            if (is_asked) complain_of(m_rows[row].line, cell_name(column) + "the value has no wavelengths");
            return;
        }
        json& list = value[std::string(points->key)];
        std::string wavelength = m_rows[0].cells[column];
        wavelength = wavelength.substr(0, wavelength.find(' '));
        list.push_back({{"Wavelength", wavelength}, {std::string(k_content_key), m_rows[row].cells[column]}});
        origin.parts.emplace_back("/" + std::string(points->key) + "/" + std::to_string(list.size() - 1), column);
    }

    /// Where a condition stands in a specification's object; empty if it has none of that name.
    static std::string condition_pointer(const s_class& specification, const s_condition& condition) {
        const s_class* type = &specification;
        std::string pointer;
        for (const std::string_view step : condition.path) {
            const bool is_attribute = step.starts_with('@');
            const c_members& members = c_members::of(*type);
            const s_member* const member = is_attribute ? members.attribute(step.substr(1)) : members.element(step);
            if (member == nullptr) return {};
            pointer.append("/").append(member->key);
            if (member->item->type == nullptr) return pointer;
            type = member->item->type;
        }
        const c_members& members = c_members::of(*type);
        if (members.content() == nullptr) return {};
        return members.is_content_only() ? pointer : pointer.append("/").append(k_content_key);
    }

    /// The colours of the row's colour set; loose ones where the table has places and the row none.
    json& collection_of(std::size_t row, std::string* pointer) {
        std::string palette = cell(row, csv_header::palette);
        std::string set = cell(row, csv_header::set);
        const bool has_places = m_headers.contains(csv_header::palette) || m_headers.contains(csv_header::set);
        if (has_places && palette.empty() && set.empty()) {
            *pointer = "/Color";
            return m_loose;
        }
        const std::string stem =
            m_options.table == k_standard_stream ? "Imported" : printable(name_of(path_of(m_options.table).stem()));
        if (palette.empty()) palette = m_options.palette.empty() ? stem : m_options.palette;
        if (set.empty()) set = palette;
        json& found = entry_of(m_palettes, "PaletteName", palette, pointer, "/Palette");
        json& sets = found["ColorSet"];
        json& one = entry_of(sets, "ColorSetName", set, pointer, *pointer + "/ColorSet");
        *pointer += "/Color";
        return one["Color"];
    }

    /// The entry of a name, made if there is none yet. The last one is looked at first: rows mostly stand together.
    json& entry_of(json& list, const char* key, const std::string& name, std::string* pointer,
                   const std::string& above) {
        if (list.is_null()) list = json::array();
        std::size_t i = list.size();
        while (i > 0 && list[i - 1][key] != name) --i;
        if (i == 0) {
            list.push_back({{key, name}});
            i = list.size();
        }
        *pointer = above + "/" + std::to_string(i - 1);
        return list[i - 1];
    }

    /// Rows of one name and one identity that follow each other are one colour.
    json& color_of(std::size_t row, json& colors, std::string* pointer) {
        json color = {{"ColorName", cell(row, csv_header::color)}};
        if (const std::string& id = cell(row, csv_header::color_id); !id.empty()) color["UniqueID"] = id;
        if (const std::string& number = cell(row, csv_header::color_number); !number.empty())
            color["ColorNumber"] = number;
        if (colors.is_null()) colors = json::array();
        bool is_last = !colors.empty();
        for (const char* const key : {"ColorName", "UniqueID", "ColorNumber"}) {
            is_last = is_last && colors.back().value(key, "") == color.value(key, "");
        }
        if (!is_last) colors.push_back(std::move(color));
        *pointer += "/" + std::to_string(colors.size() - 1);
        return colors.back();
    }

    json whole() {
        json object = {{"Preamble",
                        {{"Header",
                          {{"Creator", "vyr import"},
                           {"CreatorVersion", VYR_TOOL_VERSION},
                           {"Purpose", "Imported from a table"}}}}}};
        if (!m_loose.is_null()) object["Color"] = std::move(m_loose);
        if (!m_palettes.is_null()) object["Palette"] = std::move(m_palettes);
        return object;
    }

    /// Rows by number; columns by number from 1, so that 0 is none.
    static void find_cells(const json& object, const s_origin& origin,
                           std::map<const json*, std::pair<std::size_t, std::size_t>>& cells) {
        const json& value = object.at(json::json_pointer(origin.pointer));
        mark(value, origin.row, cells);
        // The colour, its set and its palette, as far as no row before has made them.
        for (std::string above = origin.pointer.substr(0, origin.pointer.rfind(values_pointer())); !above.empty();
             above.erase(above.rfind('/')), above.erase(above.rfind('/'))) {
            cells.emplace(&object.at(json::json_pointer(above)), std::pair(origin.row, std::size_t{0}));
        }
        for (const auto& [pointer, column] : origin.parts) {
            cells[&value.at(json::json_pointer(pointer))] = {origin.row, column + 1};
        }
        // The element that holds one condition stands for it.
        for (const auto& [pointer, column] : origin.parts) {
            const std::size_t end = pointer.rfind('/');
            if (end == 0 || pointer.substr(end + 1) != k_content_key) continue;
            cells[&value.at(json::json_pointer(pointer.substr(0, end)))] = {origin.row, column + 1};
        }
    }

    static void mark(const json& value, std::size_t row,
                     std::map<const json*, std::pair<std::size_t, std::size_t>>& cells) {
        cells.emplace(&value, std::pair(row, std::size_t{0}));
        if (value.is_structured()) {
            for (const json& inner : value) mark(inner, row, cells);
        }
    }

    const import_options& m_options;
    std::vector<s_csv_row> m_rows;
    std::string m_now;
    std::map<std::string, std::size_t> m_headers;
    std::vector<s_column> m_columns;
    std::vector<s_origin> m_origins;
    json m_loose;
    json m_palettes;
    std::size_t m_count = 0;
};

}  // namespace

exit_code import(const import_options& options) {
    const std::optional<std::string> format = format_of(options.out, {});
    if (!format) {
        return refuse_output(options.out, "the name of a document ends in .vyr, .vyrz or .json");
    }
    std::string text;
    if (const std::string refusal = read_file(options.table, text); !refusal.empty()) {
        complain(options.table, refusal);
        return exit_usage_or_file;
    }
    std::vector<s_csv_row> rows;
    if (const std::string fault = read_csv(text, rows); !fault.empty()) {
        std::cerr << shown_name(options.table) << ':' << fault << '\n';
        return exit_document_fails;
    }
    c_import imported(options, std::move(rows));
    auto document = std::make_unique<com_vyrgraph_v2::Vyr>();
    {
        const c_progress_line progress("importing " + shown_name(options.table));
        const exit_code result = imported.run(*document);
        if (result != exit_ok) return result;
    }
    return save_document(std::move(document), options.out, *format);
}

}  // namespace vyr_tool
