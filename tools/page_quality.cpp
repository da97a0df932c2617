// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Records of quality control on a page: tolerances, and results against their limits.

#include <algorithm>
#include <cmath>
#include <optional>

#include "tools/html.h"
#include "tools/page.h"
#include "tools/text.h"
#include "tools/typed_json.h"

namespace vyr_tool {

namespace {

using index = c_tree::index;

constexpr unsigned k_record_level = 2;
constexpr std::string_view k_function = "Function";
constexpr std::string_view k_result = "Result";
constexpr std::string_view k_not_of_function[] = {k_result, "CustomAttribute"};

std::optional<double> number_in(const c_tree& tree, index node, std::string_view name) {
    const index child = node == 0 ? 0 : tree.child(node, name);
    if (child == 0) return std::nullopt;
    const json number = typed_value(tree.value(child), lmx::value_kind::number);
    if (number.is_number()) return number.get<double>();
    const std::string_view text = tree.value(child);
    if (text == "INF") return HUGE_VAL;
    if (text == "-INF") return -HUGE_VAL;
    return std::nan("");
}

index function_of(const c_tree& tree, index node) {
    for (index i = node + 1; i < tree.end(node); i = tree.end(i)) {
        if (tree.name(i).starts_with(k_function)) return i;
    }
    return 0;
}

/// "DE2000" of the element `FunctionDE2000` or of the type `FunctionDE2000Type`.
std::string function_name(const c_tree& tree, index function) {
    constexpr std::string_view k_type = "Type";
    std::string_view name = tree.type(function) == nullptr ? tree.name(function) : tree.type(function)->name;
    if (name.starts_with(k_function) && name.size() > k_function.size()) name.remove_prefix(k_function.size());
    if (name.ends_with(k_type) && name.size() > k_type.size()) name.remove_suffix(k_type.size());
    return std::string(name);
}

/// What a result is a result of: the function with its parameters.
std::string function_words(const c_tree& tree, index function) {
    std::string words = function_name(tree, function);
    std::string parameters;
    for (index i = function + 1; i < tree.end(function); i = tree.end(i)) {
        if (std::ranges::find(k_not_of_function, tree.name(i)) != std::end(k_not_of_function)) continue;
        parameters += (parameters.empty() ? "" : ", ") + printable(tree.name(i)) + " " + record_text(tree, i);
    }
    return parameters.empty() ? words : words + " (" + parameters + ")";
}

struct s_limits {
    std::optional<double> low;
    std::optional<double> high;
    std::optional<double> warning;

    std::string in_words() const;
};

std::string shown_number(double number) {
    if (std::isnan(number)) return "NaN";
    if (std::isinf(number)) return number > 0 ? "INF" : "-INF";
    return short_number(number);
}

std::string s_limits::in_words() const {
    if (low && high) return shown_number(*low) + " to " + shown_number(*high);
    if (high) return "at most " + shown_number(*high);
    return low ? "at least " + shown_number(*low) : "";
}

s_limits limits_of(const c_tree& tree, index tolerance) {
    const index limits = tree.child(tolerance, "Limits");
    return {number_in(tree, limits, "LowTolerance"), number_in(tree, limits, "HighTolerance"),
            number_in(tree, tolerance, "WarningLevel")};
}

/// A table's cell: what comes of a result under limits, in words and, by its class, in colour.
std::string verdict(double result, const s_limits& limits) {
    const auto cell = [](const char* kind, const std::string& text) {
        return std::string("<td class=\"verdict ") + kind + "\">" + html(text) + "</td>";
    };
    if (std::isnan(result)) return cell("open", "no number");
    if (limits.high && result > *limits.high) {
        return cell("fail", "\u2717 above the limit by " + shown_number(result - *limits.high));
    }
    if (limits.low && result < *limits.low) {
        return cell("fail", "\u2717 below the limit by " + shown_number(*limits.low - result));
    }
    if (limits.warning && result >= *limits.warning) {
        return cell("warn", limits.high || limits.low ? "! within the limits, at the warning level"
                                                      : "! at the warning level");
    }
    return limits.high || limits.low ? cell("pass", "\u2713 within the limits") : cell("open", "no limit stated");
}

/// Illuminants, observer and geometry that a tolerance holds for.
std::string conditions_text(const c_tree& tree, index tolerance) {
    std::string text;
    for (const std::string_view name :
         {"PrimaryIlluminant", "SecondaryIlluminant", "TertiaryIlluminant", "FieldOfView", "Geometry"}) {
        const index i = tree.child(tolerance, name);
        if (i == 0) continue;
        const bool is_simple = tree.type(i) == nullptr;
        const std::string value = is_simple ? html_value({{}, tree.value(i), lmx::value_kind::enumerated}, name)
                                            : html(record_text(tree, i));
        text += (text.empty() ? "" : ", ") + words_of(name) + " " + value;
    }
    return text;
}

}  // namespace

void c_page::print_record(index record) {
    m_out << "<section class=\"record\" id=\"n" << record << "\">\n";
    const std::string_view title = m_tree.title(record);
    print_heading(k_record_level, "Quality control", title);
    print_fields(record, k_record_level + 1, [this](index child) {
        return m_tree.name(child) != "StandardAndMeasurement" && m_tree.name(child) != "Tolerance";
    });
    print_tolerances(m_tree.children(record, "Tolerance"), "Tolerances of all comparisons");
    std::size_t number = 0;
    for (const index pair : m_tree.children(record, "StandardAndMeasurement"))
        print_pair(record, pair, "Comparison " + std::to_string(++number));
    m_out << "</section>\n";
}

void c_page::print_pair(index record, index pair, const std::string& title) {
    const index standard = m_tree.child(pair, "Standard");
    m_out << "<section>\n";
    print_heading(k_record_level + 1, title, {});
    std::vector<index> tolerances = standard == 0 ? std::vector<index>() : m_tree.children(standard, "Tolerance");
    const auto is_beside = [this](index child) {
        return m_tree.name(child) != "Standard" && m_tree.name(child) != "Measurement";
    };
    print_fields(pair, k_record_level + 2, is_beside);
    print_tolerances(tolerances, "Tolerances of this comparison");
    for (const index more : m_tree.children(record, "Tolerance")) tolerances.push_back(more);
    const std::vector<index> measurements = m_tree.children(pair, "Measurement");
    for (const index measurement : measurements) print_results(measurement, tolerances);
    m_out << "<div class=\"cards\">\n";
    const auto print_sample = [this](index sample, const std::string& called) {
        m_out << "<section class=\"sample\">\n";
        print_heading(k_record_level + 2, called, {});
        for (const index color : m_tree.children(sample, "Color")) print_color(color, k_record_level + 3);
        print_fields(sample, k_record_level + 3, [this](index child) {
            const std::string_view name = m_tree.name(child);
            return name != "Color" && name != "Tolerance" && !name.starts_with(k_function);
        });
        m_out << "</section>\n";
    };
    if (standard != 0) print_sample(standard, "Standard");
    std::size_t number = 0;
    for (const index measurement : measurements) print_sample(measurement, "Measurement " + std::to_string(++number));
    m_out << "</div>\n</section>\n";
}

void c_page::print_tolerances(std::span<const index> tolerances, std::string_view caption) {
    if (tolerances.empty()) return;
    // A function may come with a result of its own.
    const bool has_results = std::ranges::any_of(tolerances, [this](index tolerance) {
        const index function = function_of(m_tree, tolerance);
        return function != 0 && m_tree.child(function, k_result) != 0;
    });
    m_out << "<div class=\"scroll\"><table class=\"tolerances\">\n<caption>" << caption
          << "</caption>\n<thead><tr><th scope=\"col\">Name</th><th scope=\"col\">Function</th>"
             "<th scope=\"col\">Limits</th><th scope=\"col\">Warning from</th><th scope=\"col\">For</th>"
          << (has_results ? "<th scope=\"col\">Result</th><th scope=\"col\">Comparison</th>" : "")
          << "</tr></thead>\n<tbody>\n";
    const auto print_row = [&](const std::string& name, const std::string& function, const s_limits& limits,
                               const std::string& conditions, const std::optional<double>& result) {
        const std::string words = limits.in_words();
        m_out << "<tr><th scope=\"row\"><bdi>" << name << "</bdi></th><td>" << html(function)
              << "</td><td class=\"limit" << (words.empty() ? " none\">none" : "\">" + html(words)) << "</td><td>"
              << (limits.warning ? html(shown_number(*limits.warning)) : "") << "</td><td>" << conditions << "</td>";
        if (has_results) m_out << "<td>" << (result ? html(shown_number(*result)) : "") << "</td>";
        if (has_results) m_out << (result ? verdict(*result, limits) : "<td></td>");
        m_out << "</tr>\n";
    };
    for (const index tolerance : tolerances) {
        const std::string name = html(m_tree.title(tolerance));
        const std::string conditions = conditions_text(m_tree, tolerance);
        const index function = function_of(m_tree, tolerance);
        const std::vector<index> parameters = function == 0 || m_tree.child(function, "ToleranceType") == 0
                                                  ? std::vector<index>()
                                                  : m_tree.children(function, "Parameters");
        const std::string words = function == 0 ? ""
                                  : parameters.empty()
                                      ? function_words(m_tree, function)
                                      : std::string(m_tree.value(m_tree.child(function, "ToleranceType")));
        print_row(name, words, limits_of(m_tree, tolerance), conditions,
                  function == 0 ? std::nullopt : number_in(m_tree, function, k_result));
        for (const index parameter : parameters) {
            const index kind = m_tree.child(parameter, "ToleranceParameter");
            const s_limits limits{
                number_in(m_tree, parameter, "LowValue"), number_in(m_tree, parameter, "HighValue"), {}};
            print_row(name, words + ", " + (kind == 0 ? "a parameter" : std::string(m_tree.value(kind))), limits,
                      conditions, std::nullopt);
        }
    }
    m_out << "</tbody>\n</table></div>\n";
}

/// Each result beside every tolerance of the same function with the same parameters.
void c_page::print_results(index measurement, std::span<const index> tolerances) {
    std::vector<index> functions;
    for (index i = measurement + 1; i < m_tree.end(measurement); i = m_tree.end(i)) {
        if (m_tree.name(i).starts_with(k_function)) functions.push_back(i);
    }
    if (functions.empty()) return;
    const index color = m_tree.child(measurement, "Color");
    m_out << "<div class=\"scroll\"><table class=\"results\">\n<caption>Results of <bdi>"
          << (color == 0 ? "" : html(m_tree.title(color)))
          << "</bdi></caption>\n<thead><tr><th scope=\"col\">Function</th><th scope=\"col\">Result</th>"
             "<th scope=\"col\">Limits</th><th scope=\"col\">Tolerance</th><th "
             "scope=\"col\">Comparison</th></tr></thead>\n"
             "<tbody>\n";
    for (const index function : functions) {
        const std::string words = function_words(m_tree, function);
        const std::optional<double> result = number_in(m_tree, function, k_result);
        const auto print_row = [&](const s_limits& limits, const std::string& tolerance) {
            const std::string between = limits.in_words();
            m_out << "<tr><th scope=\"row\">" << html(words) << "</th><td>"
                  << (result ? html(shown_number(*result)) : "none") << "</td><td>" << html(between)
                  << "</td><td><bdi>" << tolerance << "</bdi></td>"
                  << (result ? verdict(*result, limits) : "<td class=\"verdict open\">no result</td>") << "</tr>\n";
        };
        bool is_limited = false;
        for (const index tolerance : tolerances) {
            const index limited = function_of(m_tree, tolerance);
            if (limited == 0 || function_words(m_tree, limited) != words) continue;
            print_row(limits_of(m_tree, tolerance), html(m_tree.title(tolerance)));
            is_limited = true;
        }
        if (!is_limited) print_row({}, "<i>none</i>");
    }
    m_out << "</tbody>\n</table></div>\n";
}

}  // namespace vyr_tool
