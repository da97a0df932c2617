// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/warnings.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlschemas.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <optional>
#include <set>
#include <unordered_set>
#include <utility>

#include "lmx/ns_map.h"
#include "lmx/reader/cracked_name.h"
#include "schema/Vyr.h"
#include "tools/files.h"
#include "tools/members.h"
#include "tools/schema_text.h"
#include "tools/text.h"

namespace vyr_tool {

namespace {

constexpr s_warning_row k_rows[k_warning_count] = {
    {"not-well-formed", "other XML parsers refuse the document"},
    {"schema", "a validator with the schema file refuses it"},
    {"unsavable", "it can't be saved, or a value would be read back as another"},
    {"duplicate-id", "two elements beside each other have the same UniqueID"},
    {"wavelengths", "the wavelengths of a spectrum are not in rising order, or one is there twice"},
    {"limits", "a lower limit is above the upper one"},
    {"date", "a date or time that no calendar has"},
    {"comments", "a comment, which is not kept"},
    {"instructions", "a processing instruction, which is not kept"},
    {"doctype", "a document type declaration, which is not kept"},
    {"hints", "where to find a schema, which is not kept"},
    {"digits", "digits beyond the fourteenth, which are not kept"},
};
constexpr std::size_t k_first_of_convert = static_cast<std::size_t>(warning::comments);

constexpr std::string_view k_uri = "http://vyrgraph.com/v2";
/// The digits of a number that are written.
constexpr int k_digits = 14;
constexpr std::size_t k_longest_value = 200;
constexpr std::size_t k_longest_text = 400;

std::string_view view(const xmlChar* text) {
    return text == nullptr ? std::string_view() : std::string_view(reinterpret_cast<const char*>(text));
}

std::string shortened(std::string text) {
    if (text.size() <= k_longest_text) return text;
    std::size_t end = k_longest_text;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) --end;
    return text.substr(0, end) + "...";
}

// The schema.

xmlParserInputPtr refuse_external(const char*, const char*, xmlParserCtxtPtr) { return nullptr; }

void ignore_message(void*, const char*, ...) {}

/// Parsed once; null if memory ran out. With this, the process reads no external entity from anywhere.
xmlSchemaPtr get_schema() {
    static std::once_flag once;
    static xmlSchemaPtr schema = nullptr;
    std::call_once(once, [] {
        xmlInitParser();
        xmlSetExternalEntityLoader(refuse_external);
        const std::string_view text = schema_text();
        xmlSchemaParserCtxtPtr parser = xmlSchemaNewMemParserCtxt(text.data(), static_cast<int>(text.size()));
        xmlSchemaSetParserErrors(parser, ignore_message, ignore_message, nullptr);
        schema = xmlSchemaParse(parser);
        xmlSchemaFreeParserCtxt(parser);
    });
    return schema;
}

// Values.

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && std::strchr(" \t\r\n", text.front()) != nullptr) text.remove_prefix(1);
    while (!text.empty() && std::strchr(" \t\r\n", text.back()) != nullptr) text.remove_suffix(1);
    return text;
}

std::optional<double> number_of(std::string_view text) {
    text = trimmed(text);
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    double number = 0;
    return read_number(text, number) ? std::optional(number) : std::nullopt;
}

/// The digits of a number that say something: without zeros at either end and without the exponent.
int count_digits(std::string_view text) {
    std::string digits;
    for (const char c : text.substr(0, text.find_first_of("eE"))) {
        if (c >= '0' && c <= '9') digits += c;
    }
    const std::size_t first = digits.find_first_not_of('0');
    return first == digits.npos ? 0 : static_cast<int>(digits.find_last_not_of('0') - first + 1);
}

/// Two digits of a date or time at a place.
int two_digits(std::string_view text, std::size_t at) {
    const auto digit = [&](std::size_t i) { return i < text.size() && text[i] >= '0' && text[i] <= '9'; };
    return digit(at) && digit(at + 1) ? (text[at] - '0') * 10 + (text[at + 1] - '0') : -1;
}

/// Whether a text that has the form of a date and time names one that there is.
bool is_possible_date(std::string_view text) {
    text = trimmed(text);
    const std::size_t month_at = text.find('-', 1);
    if (month_at == text.npos) return true;
    int year = 0;
    std::from_chars(text.data(), text.data() + month_at, year);
    const int month = two_digits(text, month_at + 1);
    const int day = two_digits(text, month_at + 4);
    const int hours = two_digits(text, month_at + 7);
    const int minutes = two_digits(text, month_at + 10);
    const int seconds = two_digits(text, month_at + 13);
    if (std::min({month, day, hours, minutes, seconds}) < 0) return true;
    const std::chrono::year_month_day date(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day)));
    const bool is_midnight = hours == 24 && minutes == 0 && seconds == 0;
    return date.ok() && (hours < 24 || is_midnight) && minutes < 60 && seconds < 60;
}

/// Whether the fault is one of a value or an attribute: others mislead whoever reads on.
bool is_of_value(lmx::elmx_error code) {
    switch (code) {
        case lmx::ELMX_ATTRIBUTE_ALREADY_READ:
        case lmx::ELMX_UNEXPECTED_ATTRIBUTE:
        case lmx::ELMX_REQUIRED_ATTRIBUTES_MISSING:
        case lmx::ELMX_LENGTH_TOO_LONG:
        case lmx::ELMX_LENGTH_TOO_SHORT:
        case lmx::ELMX_NO_PATTERN_MATCHED:
        case lmx::ELMX_VALUE_BAD_FORMAT:
        case lmx::ELMX_VALUE_EXCEEDS_MAX:
        case lmx::ELMX_VALUE_BELOW_MIN:
        case lmx::ELMX_VALUE_NOT_ENUMERATED:
            return true;
        default:
            return false;
    }
}

struct s_limit_names {
    std::string_view low;
    std::string_view high;
};
constexpr s_limit_names k_limits[] = {
    {"LowValue", "HighValue"}, {"LowTolerance", "HighTolerance"}, {"AxisNominalMin", "AxisNominalMax"}};

}  // namespace

const s_warning_row& row_of(warning kind) { return k_rows[static_cast<std::size_t>(kind)]; }

bool leave_out(const std::vector<std::string>& names, warning_set* set) {
    for (const std::string& name : names) {
        if (name == "all") {
            set->reset();
            continue;
        }
        const auto* const row = std::find_if(std::begin(k_rows), std::end(k_rows),
                                             [&](const s_warning_row& r) { return name == r.name; });
        if (row == std::end(k_rows)) return false;
        set->reset(static_cast<std::size_t>(row - std::begin(k_rows)));
    }
    return true;
}

warning_set check_warnings() { return warning_set((1U << k_first_of_convert) - 1); }

warning_set convert_warnings() { return ~check_warnings(); }

std::string warning_text(const std::string& file, const s_warning& found) {
    std::string line = shown_name(file) + ":";
    if (found.line > 0) line += std::to_string(found.line) + ":" + std::to_string(found.column) + ":";
    line += " warning: ";
    if (!found.path.empty()) line += found.path + ": ";
    return printable(line + found.text + " [" + row_of(found.kind).name + "]");
}

/// libxml2's parser on one document, the validator behind it, and an own look at the elements that go by.
class c_warnings::c_pass {
public:
    c_pass(warning_set wanted, std::size_t limit) : m_wanted(wanted), m_limit(limit) {
        xmlSchemaPtr const schema = get_schema();
        xmlSAXHandler handler{};
        xmlSAXVersion(&handler, 2);
        handler.startElementNs = &start_element;
        handler.endElementNs = &end_element;
        handler.characters = handler.ignorableWhitespace = handler.cdataBlock = &characters;
        handler.comment = &comment;
        handler.processingInstruction = &instruction;
        handler.internalSubset = &doctype;
        handler.externalSubset = nullptr;
        handler.entityDecl = &entity;
        handler.reference = nullptr;
        m_parser = xmlCreatePushParserCtxt(&handler, nullptr, nullptr, 0, nullptr);
        if (m_parser == nullptr) return;
        m_parser->userData = m_parser;
        m_parser->_private = this;
        // Entities of the document are put in, within the parser's bounds; nothing comes from outside.
        xmlCtxtUseOptions(m_parser, XML_PARSE_NONET | XML_PARSE_NOENT | XML_PARSE_RECOVER);
        if (is_wanted(warning::schema) && schema != nullptr) m_validator = xmlSchemaNewValidCtxt(schema);
        if (m_validator != nullptr) {
            xmlSchemaSetValidStructuredErrors(m_validator, &schema_error, this);
            m_plug = xmlSchemaSAXPlug(m_validator, &m_parser->sax, &m_parser->userData);
        }
        // The handlers are the validator's now, which doesn't pass this one on.
        m_parser->sax->serror = &parser_error;
    }
    c_pass(const c_pass&) = delete;
    c_pass& operator=(const c_pass&) = delete;
    ~c_pass() { close(); }

    void take(std::string_view piece) {
        constexpr std::size_t k_most = std::size_t{1} << 20U;
        for (; m_parser != nullptr && !piece.empty(); piece.remove_prefix(std::min(piece.size(), k_most))) {
            const std::string_view part = piece.substr(0, k_most);
            xmlParseChunk(m_parser, part.data(), static_cast<int>(part.size()), 0);
        }
    }
    void finish(const com_vyrgraph_v2::DocumentReport& report) {
        if (m_parser != nullptr) xmlParseChunk(m_parser, nullptr, 0, 1);
        close();
        std::set<int> faulty;
        // Of faults beyond the limit nobody knows the lines.
        bool is_structure_faulty = !report.isReadToEnd() || report.hasMore();
        for (const auto& fault : report.getFaults()) {
            faulty.insert(fault.line);
            is_structure_faulty = is_structure_faulty || !is_of_value(fault.code);
        }
        const auto is_fault = [&](const s_warning& found) {
            return found.kind <= warning::schema && (is_structure_faulty || faulty.count(found.line) != 0);
        };
        const auto left_out = static_cast<std::size_t>(std::erase_if(m_found, is_fault));
        // With those beyond the limit.
        m_total -= is_structure_faulty ? m_quoted : left_out;
    }
    void add(warning kind, int line, int column, std::string path, std::string text) {
        if (!is_wanted(kind)) return;
        if (m_total > 0 && kind == m_last_kind && line == m_last_line && column == m_last_column && line > 0) return;
        m_last_kind = kind;
        m_last_line = line;
        m_last_column = column;
        ++m_total;
        if (kind <= warning::schema) ++m_quoted;
        if (m_found.size() < m_limit)
            m_found.push_back({kind, line, column, std::move(path), shortened(std::move(text))});
    }

    const std::vector<s_warning>& found() const { return m_found; }
    std::size_t total() const { return m_total; }

private:
    /// An open element.
    struct s_element {
        const lmx::s_class* type = nullptr;
        lmx::value_kind value = lmx::value_kind::none;
        int line = 0;
        int column = 0;
        std::string step{};
        std::string name{};
        std::string text{};  ///< of a number or a date
        std::unordered_set<std::string> ids{};
        std::optional<double> wavelength{};  ///< of the child before
        bool is_wavelength_told = false;
        std::optional<double> lows[std::size(k_limits)]{};
        std::optional<double> highs[std::size(k_limits)]{};
    };

    static c_pass& of(void* context) {
        return *static_cast<c_pass*>(static_cast<xmlParserCtxtPtr>(context)->_private);
    }
    bool is_wanted(warning kind) const { return m_wanted.test(static_cast<std::size_t>(kind)); }

    void close() {
        if (m_plug != nullptr) xmlSchemaSAXUnplug(m_plug);
        if (m_validator != nullptr) xmlSchemaFreeValidCtxt(m_validator);
        if (m_parser != nullptr) {
            if (m_parser->myDoc != nullptr) xmlFreeDoc(m_parser->myDoc);
            m_parser->myDoc = nullptr;
            xmlFreeParserCtxt(m_parser);
        }
        m_plug = nullptr;
        m_validator = nullptr;
        m_parser = nullptr;
    }

    /// The place where what has just been read begins: its last `<`.
    void set_place() {
        const xmlParserInputPtr input = m_parser->input;
        if (input == nullptr || input->cur == nullptr) return;
        const xmlChar* at = input->cur;
        while (at > input->base && (at == input->cur || *at != '<')) --at;
        m_line = input->line - static_cast<int>(std::count(at, input->cur, '\n'));
        const auto is_first_byte = [](xmlChar c) { return (c & 0xC0U) != 0x80U; };
        const auto characters_in = [&](const xmlChar* from, const xmlChar* to) {
            return static_cast<int>(std::count_if(from, to, is_first_byte));
        };
        if (m_line == input->line) {
            m_column = std::max(1, input->col - characters_in(at, input->cur));
            return;
        }
        const xmlChar* line_start = at;
        while (line_start > input->base && line_start[-1] != '\n') --line_start;
        m_column = characters_in(line_start, at) + 1;
    }

    std::string path() const {
        std::string path;
        // The document's own element is left out where anything stands in it.
        for (std::size_t i = m_open.size() > 1 ? 1 : 0; i < m_open.size(); ++i) {
            path = join(path, m_open[i].step);
        }
        return path;
    }
    void add_here(warning kind, std::string text) { add(kind, m_line, m_column, path(), std::move(text)); }

    void start(std::string_view name, std::string_view uri, const xmlChar** attributes, int count);
    void look_at_attribute(std::string_view name, std::string_view value, s_element* parent);
    void look_at_value(const char* what, lmx::value_kind kind, std::string_view value);
    void look_at_wavelength(double wavelength, s_element* parent);
    static void note_limit(s_element* element, std::string_view name, std::string_view value);
    void end();

    static void start_element(void* context, const xmlChar* name, const xmlChar*, const xmlChar* uri, int,
                              const xmlChar**, int count, int, const xmlChar** attributes) {
        c_pass& pass = of(context);
        pass.set_place();
        pass.start(view(name), view(uri), attributes, count);
    }
    static void end_element(void* context, const xmlChar*, const xmlChar*, const xmlChar*) { of(context).end(); }
    static void characters(void* context, const xmlChar* text, int length) {
        c_pass& pass = of(context);
        if (pass.m_open.empty() || pass.m_open.back().value == lmx::value_kind::none) return;
        std::string& kept = pass.m_open.back().text;
        kept.append(
            reinterpret_cast<const char*>(text),
            std::min(static_cast<std::size_t>(length), k_longest_value - std::min(kept.size(), k_longest_value)));
    }
    static void comment(void* context, const xmlChar* text) {
        c_pass& pass = of(context);
        pass.set_place();
        pass.add_here(warning::comments, "the comment is not kept: " + std::string(trimmed(view(text))));
    }
    static void instruction(void* context, const xmlChar* target, const xmlChar*) {
        c_pass& pass = of(context);
        pass.set_place();
        pass.add_here(warning::instructions, "the instruction is not kept: " + std::string(view(target)));
    }
    static void doctype(void* context, const xmlChar* name, const xmlChar* public_id, const xmlChar* system_id) {
        c_pass& pass = of(context);
        pass.set_place();
        pass.add_here(warning::doctype, "the document type declaration is not kept");
        xmlSAX2InternalSubset(context, name, public_id, system_id);
    }
    /// Entities from outside are as good as not declared.
    static void entity(void* context, const xmlChar* name, int type, const xmlChar* public_id,
                       const xmlChar* system_id, xmlChar* content) {
        if (type != XML_INTERNAL_GENERAL_ENTITY && type != XML_INTERNAL_PARAMETER_ENTITY) return;
        xmlSAX2EntityDecl(context, name, type, public_id, system_id, content);
    }
    static void parser_error(void*, xmlErrorPtr error) {
        if (error->level < XML_ERR_ERROR || error->ctxt == nullptr) return;
        c_pass& pass = of(error->ctxt);
        pass.m_is_well_formed = false;
        const xmlParserInputPtr input = pass.m_parser->input;
        std::string text(trimmed(error->message == nullptr ? "" : error->message));
        pass.add(warning::not_well_formed, error->line, std::max(1, input == nullptr ? error->int2 : input->col),
                 pass.path(), "other parsers refuse this: " + text);
    }
    static void schema_error(void* self, xmlErrorPtr error) {
        c_pass& pass = *static_cast<c_pass*>(self);
        // Behind what isn't XML, everything looks wrong.
        if (error->level < XML_ERR_ERROR || !pass.m_is_well_formed) return;
        std::string text(trimmed(error->message == nullptr ? "" : error->message));
        const std::string qualifier = "{" + std::string(k_uri) + "}";
        for (std::size_t at; (at = text.find(qualifier)) != text.npos;) text.erase(at, qualifier.size());
        pass.add_here(warning::schema, "the schema refuses this: " + text);
    }

    warning_set m_wanted;
    std::size_t m_limit;
    std::vector<s_warning> m_found;
    std::size_t m_total = 0;
    std::size_t m_quoted = 0;  ///< those of them that other parsers say
    warning m_last_kind{};
    int m_last_line = 0;
    int m_last_column = 0;
    xmlParserCtxtPtr m_parser = nullptr;
    xmlSchemaValidCtxtPtr m_validator = nullptr;
    xmlSchemaSAXPlugPtr m_plug = nullptr;
    std::vector<s_element> m_open;
    bool m_is_well_formed = true;
    int m_line = 1;  ///< of the tag that was read, or that the element began with that has ended
    int m_column = 1;
};

void c_warnings::c_pass::note_limit(s_element* element, std::string_view name, std::string_view value) {
    for (std::size_t i = 0; i < std::size(k_limits); ++i) {
        if (name == k_limits[i].low) element->lows[i] = number_of(value);
        if (name == k_limits[i].high) element->highs[i] = number_of(value);
    }
}

void c_warnings::c_pass::look_at_value(const char* what, lmx::value_kind kind, std::string_view value) {
    if (kind == lmx::value_kind::datetime && !is_possible_date(value)) {
        add_here(warning::date, std::string(what) + " is no date that there is: " + std::string(value));
    }
    if (kind == lmx::value_kind::number && count_digits(value) > k_digits && number_of(value)) {
        add_here(warning::digits, "of " + std::string(value) + " only fourteen digits are kept");
    }
}

void c_warnings::c_pass::look_at_wavelength(double wavelength, s_element* parent) {
    if (parent->wavelength && wavelength <= *parent->wavelength && !parent->is_wavelength_told) {
        parent->is_wavelength_told = true;
        const auto text = [](double number) {
            char digits[32];
            return std::string(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
        };
        add_here(warning::wavelengths,
                 wavelength == *parent->wavelength
                     ? "the wavelength " + text(wavelength) + " stands here again"
                     : "the wavelength " + text(wavelength) + " stands behind " + text(*parent->wavelength));
    }
    parent->wavelength = wavelength;
}

void c_warnings::c_pass::look_at_attribute(std::string_view name, std::string_view value, s_element* parent) {
    s_element& element = m_open.back();
    const s_member* const member = element.type == nullptr ? nullptr : c_members::of(*element.type).attribute(name);
    if (member == nullptr) return;
    if ((member->item->use & lmx::use_name) != 0) element.step += " " + in_quotes(value.substr(0, k_longest_value));
    look_at_value(element.name.c_str(), member->item->value, value);
    note_limit(&element, name, value);
    if (parent == nullptr) return;
    if (name == "UniqueID" && is_wanted(warning::duplicate_id) && !parent->ids.emplace(value).second) {
        add_here(warning::duplicate_id,
                 "UniqueID " + in_quotes(value.substr(0, k_longest_value)) + " stands here again");
    }
    if (name == "Wavelength") {
        if (const std::optional<double> wavelength = number_of(value)) look_at_wavelength(*wavelength, parent);
    }
}

void c_warnings::c_pass::start(std::string_view name, std::string_view uri, const xmlChar** attributes, int count) {
    const lmx::s_item* row = nullptr;
    const lmx::s_class* type = nullptr;
    if (uri == k_uri) {
        if (m_open.empty()) type = name == "Vyr" ? &com_vyrgraph_v2::Vyr::k_class : nullptr;
        const lmx::s_class* const outer = m_open.empty() ? nullptr : m_open.back().type;
        const s_member* const member = outer == nullptr ? nullptr : c_members::of(*outer).element(name);
        if (member != nullptr) row = member->item;
        if (row != nullptr) type = row->type;
    }
    // Five texts for each: the name, its prefix and its namespace, and the ends of its value.
    const auto attribute = [&](int i) { return attributes + std::ptrdiff_t{5} * i; };
    const auto value_of = [&](int i) {
        const xmlChar** const parts = attribute(i);
        return std::string_view(reinterpret_cast<const char*>(parts[3]),
                                static_cast<std::size_t>(parts[4] - parts[3]));
    };
    bool has_hint = false;
    for (int i = 0; i < count; ++i) {
        if (view(attribute(i)[2]) != lmx::k_xsi_uri) continue;
        const std::string_view xsi_name = view(attribute(i)[0]);
        has_hint = has_hint || xsi_name == "schemaLocation" || xsi_name == "noNamespaceSchemaLocation";
        if (xsi_name != "type" || row == nullptr) continue;
        if (const lmx::s_class* const other = specialised(*row, lmx::local_part(value_of(i)))) type = other;
    }
    s_element& element = m_open.emplace_back();
    s_element* const parent = m_open.size() > 1 ? &m_open[m_open.size() - 2] : nullptr;
    element.type = type;
    element.value = kind_of(row);
    const bool is_looked_at = element.value == lmx::value_kind::number || element.value == lmx::value_kind::datetime;
    if (!is_looked_at) element.value = lmx::value_kind::none;
    element.line = m_line;
    element.column = m_column;
    element.name = name.substr(0, k_longest_value);
    element.step = element.name;
    for (int i = 0; i < count; ++i) {
        if (attribute(i)[2] == nullptr) look_at_attribute(view(attribute(i)[0]), value_of(i), parent);
    }
    if (has_hint) add_here(warning::hints, "the place of a schema is not kept");
}

void c_warnings::c_pass::end() {
    if (m_open.empty()) return;
    s_element& element = m_open.back();
    m_line = element.line;
    m_column = element.column;
    if (element.value != lmx::value_kind::none) {
        look_at_value(element.name.c_str(), element.value, trimmed(element.text));
        if (m_open.size() > 1) note_limit(&m_open[m_open.size() - 2], element.name, element.text);
    }
    for (std::size_t i = 0; i < std::size(k_limits); ++i) {
        if (!element.lows[i] || !element.highs[i] || *element.lows[i] <= *element.highs[i]) continue;
        add_here(warning::limits, std::string(k_limits[i].low) + " is above " + std::string(k_limits[i].high));
    }
    m_open.pop_back();
}

c_warnings::c_warnings(warning_set wanted, std::size_t limit) : m_pass(std::make_unique<c_pass>(wanted, limit)) {}
c_warnings::c_warnings(c_warnings&&) noexcept = default;
c_warnings& c_warnings::operator=(c_warnings&&) noexcept = default;
c_warnings::~c_warnings() = default;

void c_warnings::take(std::string_view piece) { m_pass->take(piece); }
void c_warnings::finish(const com_vyrgraph_v2::DocumentReport& report) { m_pass->finish(report); }

void c_warnings::take_saving(const com_vyrgraph_v2::DocumentReport& report) {
    for (const com_vyrgraph_v2::DocumentFault& fault : report.getFaults()) {
        com_vyrgraph_v2::DocumentFault without_place = fault;
        without_place.path.clear();
        const char* const start =
            report.isReadToEnd() ? "it would not be read back as it is: " : "it can't be saved: ";
        m_pass->add(warning::unsavable, 0, 0, fault.path, start + com_vyrgraph_v2::formatFault(without_place));
    }
}

const std::vector<s_warning>& c_warnings::found() const { return m_pass->found(); }
std::size_t c_warnings::total() const { return m_pass->total(); }

}  // namespace vyr_tool
