// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/failure.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <vector>

#include "lmx/binding/failure_path.h"
#include "lmx/binding/open_element.h"
#include "lmx/binding/read_back.h"
#include "lmx/binding/shown_text.h"
#include "lmx/binding/storage.h"
#include "lmx/binding/unmarshal.h"
#include "lmx/values/unicode.h"
#include "lmx/writer/as_xml.h"

namespace lmx {
namespace {

using names = std::vector<std::string>;

// Names of items.

bool is_group(const s_item& item) { return item.kind == item_kind::group || item.kind == item_kind::group_list; }

void add_names(const s_item& item, names* out) {
    if (item.kind == item_kind::any) {
        out->emplace_back("any element");
    } else if (is_group(item)) {
        for (const s_item& member : item.type->elements) add_names(member, out);
    } else {
        out->emplace_back(local_part(item.name));
    }
}

std::string one_of(std::span<const s_item> items) {
    names all;
    for (const s_item& item : items) add_names(item, &all);
    return joined({all.size() > 1 ? "one of " : "", listed(all, "or")});
}

/// The rows of a class with those of its bases, the base's first.
std::vector<const s_item*> all_rows(const s_class& type, std::span<const s_item> s_class::*part) {
    std::vector<const s_item*> rows;
    if (type.base != nullptr) rows = all_rows(*type.base, part);
    for (const s_item& item : type.*part) rows.push_back(&item);
    return rows;
}

/// "the attribute A and the element B are missing", "one of C or D is missing".
std::string missing(std::span<const s_item* const> items) {
    names parts;
    for (const s_item* item : items) {
        const char* const kind = item->kind == item_kind::attribute ? "the attribute " : "the element ";
        parts.push_back(is_group(*item) ? one_of({item, 1}) : joined({kind, local_part(item->name)}));
    }
    return joined({listed(parts, "and"), parts.size() > 1 ? " are missing" : " is missing"});
}

std::string missing_choice(const s_class& type) { return one_of(type.elements) + " is missing"; }

std::string nested_too_deep() {
    return joined({"elements nest more than ", std::to_string(k_maximum_nesting), " deep"});
}

std::string sentence(const std::string& start, const std::string& rest) {
    return joined({start, start.empty() || rest.empty() ? "" : "; ", rest});
}

std::string meant(std::string_view text, const names& all) {
    const std::string name = nearest(text, all);
    return name.empty() ? name : joined({" (is ", name, " meant?)"});
}

// Values.

std::string expected_form(const s_item& item) {
    switch (item.value) {
        case value_kind::boolean:
            return "true, false, 1 or 0 is expected";
        case value_kind::number:
            return "a number is expected";
        case value_kind::int32:
        case value_kind::uint32:
        case value_kind::uint8:
            return "a whole number is expected";
        case value_kind::datetime:
            return "a date and time is expected, such as 2024-05-31T12:30:00Z";
        case value_kind::binary:
            return "Base64 is expected";
        case value_kind::text:
        case value_kind::enumerated:
        case value_kind::none:
            break;
    }
    return {};
}

std::string length_limit(const char* start, std::size_t limit, const std::string& text) {
    return joined({start, std::to_string(limit), limit == 1 ? " character" : " characters", " may stand here, not ",
                   std::to_string(length(text))});
}

/// What would be right in place of a value that failed a check.
std::string allowed_value(const s_item& item, elmx_error code, const std::string& text) {
    const char* const ending = text.empty() ? "; nothing stands here" : "";
    if (code == ELMX_VALUE_BAD_FORMAT) {
        const bool has_comma = item.value == value_kind::number && text.find(',') != text.npos;
        return joined({expected_form(item), has_comma ? ", with a point and no comma" : ending});
    }
    if (item.facets == nullptr) return {};
    const s_facets& facets = *item.facets;
    switch (code) {
        case ELMX_NO_PATTERN_MATCHED:
            return facets.pattern_takes_zoned ? "a time zone is missing: Z, or one such as +01:00"
                                              : std::string("the text does not have the form that is asked for");
        case ELMX_VALUE_NOT_ENUMERATED: {
            const names all(facets.enumeration.begin(), facets.enumeration.end());
            return joined({"one of ", listed(all, "or"), " is expected", ending, meant(text, all)});
        }
        case ELMX_LENGTH_TOO_SHORT:
            if (text.empty()) return "it must not be empty";
            return length_limit("at least ", facets.minimum_length, text);
        case ELMX_LENGTH_TOO_LONG:
            return length_limit("at most ", facets.maximum_length, text);
        case ELMX_VALUE_BELOW_MIN:
            return joined(
                {facets.minimum_exclusive ? "it must be more than " : "it must be at least ", shown(facets.minimum)});
        case ELMX_VALUE_EXCEEDS_MAX:
            return joined(
                {facets.maximum_exclusive ? "it must be less than " : "it must be at most ", shown(facets.maximum)});
        default:
            return {};
    }
}

// The scanner's words, put so that they can be followed.

struct s_scanner_sentence {
    std::string_view start;  ///< of the scanner's text
    std::string_view sentence;
};
constexpr s_scanner_sentence k_scanner_sentences[] = {
    {"XML not Well-Formed", "a tag is broken, or a < stands where no tag begins: in text it is written &lt;"},
    {"XML not well-formed", "the tag holds what is neither an attribute nor its end"},
    {"Unrecognised character encoding",
     "the text does not begin like XML, or its encoding is none of UTF-8, UTF-16, ISO-8859-1 and US-ASCII"},
    {"Unknown character encoding specified",
     "the XML declaration names an encoding that is none of UTF-8, UTF-16, ISO-10646-UCS-2, ISO-8859-1 and US-ASCII"},
    {"Mis-match between", "the XML declaration names another encoding than the one that the bytes have"},
    {"Schema is not Well Formed (expected '=", "an attribute must have a value, in quotes behind an equals sign"},
    {"Schema is not Well Formed (expected '\"'",
     "an attribute's value must stand in quotes, and the quotes must end"},
    {"Unexpected end of file", "the document ends within a start tag"},
    {"Premature end of file", "the document ends within a value"},
    {"Illegal character(s) after /", "a tag is broken, or a < begins none: in text it is written &lt;"},
};

std::string scanner_sentence(std::string_view text) {
    for (const auto& [start, sentence] : k_scanner_sentences) {
        if (text.starts_with(start)) return std::string(sentence);
    }
    return shown(text);
}

/// The unresolved reference that ends a text; empty if there's none.
std::string_view trailing_reference(std::string_view text) {
    const std::size_t start = text.rfind('&');
    return start == text.npos ? std::string_view() : text.substr(start);
}

constexpr char k_unended[] = "the document ends before what begins here does";
constexpr char k_bad_bytes[] = "the bytes that follow are not UTF-8";

/// Describes one failure of a load.
class c_reading {
public:
    c_reading(const c_xml_reader& reader, elmx_error code)
        : m_reader(reader),
          m_code(code),
          m_site(reader.get_fault_site() == nullptr ? s_fault_site{} : *reader.get_fault_site()),
          m_open(reader.get_open_element()),
          m_event(event_of(reader)) {}

    s_failure describe(const std::string& item_name) const {
        s_failure failure;
        if (is_of_attribute()) {
            failure = describe_attribute();
        } else if (m_site.item != nullptr && m_code != ELMX_MANDATORY_ELEMENT_MISSING &&
                   m_code != ELMX_REQUIRED_ATTRIBUTES_MISSING && m_code != ELMX_UNKNOWN_XSI_TYPE) {
            failure = describe_value();
        } else if (is_broken()) {
            failure = describe_broken();
        } else {
            failure = describe_structure();
        }
        failure.item = shown(item_name);
        return failure;
    }

private:
    /// What tokenising made of an event that isn't a name says nothing.
    static int event_of(const c_xml_reader& reader) {
        const int current = reader.get_current_event();
        const bool is_current = reader.get_scanned_event() == ELXP_NAME || c_xml::is_error_event(current);
        return is_current ? current : reader.get_scanned_event();
    }
    bool is_of_attribute() const {
        switch (m_code) {
            case ELMX_ATTRIBUTE_ALREADY_READ:
            case ELMX_UNEXPECTED_ATTRIBUTE:
            case ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE:
                return true;
            default:
                return is_of_value(m_code) && m_site.item != nullptr && m_site.item->kind == item_kind::attribute;
        }
    }
    /// The event is no event: what stands here isn't XML, or nothing does.
    bool is_broken() const { return c_xml::is_error_event(m_event) || m_event == ELXP_END_OF_INPUT; }
    bool has_read_bad_bytes() const {
        const std::string& text = m_reader.get_scanner_text();
        return !m_reader.has_source_ended() && (text.starts_with("Premature") || text.ends_with("got )"));
    }

    std::string open_name() const { return shown(local_part(m_open->get_name())); }

    /// The name of the element whose attributes are being read, if it stands in the tag.
    std::string own_name() const {
        const s_item* const item = m_open == nullptr ? nullptr : name_item(*m_open->type);
        if (item == nullptr || item->kind != item_kind::attribute || is_set(*item, m_open->object)) return {};
        return std::string(m_reader.find_raw_attribute_value(item->name));
    }

    std::string unresolved(std::string_view text) const {
        const std::string_view reference = trailing_reference(text);
        if (reference.empty()) return "a reference that follows, &# and a number, names no character";
        return joined({shown(reference), " is no known reference; an & in text is written &amp;"});
    }

    s_failure describe_attribute() const {
        const std::string& name = m_reader.m_attr_name;
        s_failure failure;
        failure.line = m_reader.get_attribute_line();
        failure.path = path_of(m_open, joined({"@", shown(name, 60)}), own_name());
        const bool is_read = is_of_value(m_code) || m_code == ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE;
        failure.value = shown(is_read ? m_reader.m_value : m_reader.get_raw_attribute_value());
        if (m_code == ELMX_ATTRIBUTE_ALREADY_READ) {
            const bool is_repeated =
                m_reader.find_raw_attribute_value(name).data() != m_reader.get_raw_attribute_value().data();
            failure.detail =
                is_repeated ? "the attribute is given twice" : "the object holds it from an earlier load";
        } else if (m_code == ELMX_UNEXPECTED_ATTRIBUTE) {
            names all;
            for (const s_item* item : all_rows(*m_site.type, &s_class::attributes)) add_names(*item, &all);
            const std::string local(local_part(name));
            const bool is_known = std::find(all.begin(), all.end(), local) != all.end();
            failure.meant = is_known ? local : nearest(local, all);
            failure.detail = joined({open_name(), " takes ", all.empty() ? "no attributes" : listed(all, "and"),
                                     is_known ? ", without a prefix" : meant(local, all)});
        } else if (m_code == ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE) {
            const std::string& text = m_reader.get_scanner_text();
            failure.detail = text.empty() ? unresolved(m_reader.m_value) : scanner_sentence(text);
        } else {
            failure.detail = allowed_value(*m_site.item, m_code, m_reader.m_value);
        }
        return failure;
    }

    s_failure describe_value() const {
        s_failure failure;
        failure.line = m_reader.get_event_line();
        failure.path = path_of(m_open, step_of(m_site), {});
        failure.value = shown(m_reader.m_value);
        if (is_of_value(m_code)) {
            failure.detail = allowed_value(*m_site.item, m_code, m_reader.m_value);
            return failure;
        }
        const std::string& text = m_reader.get_scanner_text();
        const bool has_ended = m_reader.has_source_ended();
        if (m_code == ELMX_UNABLE_TO_READ_ELEMENT_VALUE) {
            if (!has_ended) failure.line = m_reader.get_text_line();
            failure.detail = text.empty() && !has_ended ? unresolved(m_reader.m_value)
                             : has_read_bad_bytes()     ? std::string(k_bad_bytes)
                             : text.empty()             ? std::string("the document ends within it")
                                                        : scanner_sentence(text);
        } else if (m_code == ELMX_BAD_END_OF_ELEMENT) {
            failure.detail = has_ended ? std::string("the document ends within it")
                                       : joined({"only a value may stand in it, with each < written &lt;, and then "
                                                 "its end tag </",
                                                 shown(m_reader.m_name), ">"});
        } else {
            failure.detail = text.empty() ? k_unended : scanner_sentence(text);
        }
        return failure;
    }

    s_failure describe_broken() const {
        const std::string& text = m_reader.get_scanner_text();
        const bool has_ended = m_reader.has_source_ended();
        const bool is_end = m_event == ELXP_END_OF_INPUT;
        s_failure failure;
        failure.path = path_of(m_open, {}, {});
        failure.line = m_reader.get_event_line();
        if (!is_end) failure.value = shown(m_reader.m_name);
        if (!text.empty()) {
            failure.detail = has_read_bad_bytes()   ? k_bad_bytes
                             : !is_end && has_ended ? k_unended
                                                    : scanner_sentence(text);
            if (!has_ended && m_reader.get_scanner_line() > failure.line) {
                failure.detail += joined({", as noticed in line ", std::to_string(m_reader.get_scanner_line())});
            }
        } else if (is_end && !has_ended) {
            failure.detail = k_bad_bytes;
        } else if (is_end && m_open == nullptr) {
            failure.detail = "the document holds no element";
        } else if (is_end) {
            failure.detail = joined({"the document ends before ", open_name(), " does, which begins in line ",
                                     std::to_string(m_open->line)});
        } else if (has_ended) {
            failure.detail = k_unended;
        } else if (m_reader.m_name.starts_with('&')) {
            failure.detail = unresolved(m_reader.m_name);
        } else {
            failure.detail = "what stands here is not well-formed XML";
        }
        return failure;
    }

    // Structure: something is missing, unknown or misplaced.

    /// Whether the element that was found has another namespace than those of the class, or none.
    bool is_foreign() const {
        if (!m_reader.is_current_event_tokenisable() || m_open == nullptr) return false;
        const s_class* type = m_open->type;
        while (type->element_map->name == nullptr && type->base != nullptr) type = type->base;
        return type->element_map->name != nullptr && type->element_map->ns_id != m_reader.get_element_ns_id();
    }
    std::string format_namespace(int id) const {
        const char* const uri = m_reader.find_namespace_from_id(id);
        return uri == nullptr ? "of the document" : shown(uri);
    }

    /// What stands where something else is expected; as text and in words.
    std::string found_text() const {
        if (m_event != ELXP_END_TAG) return shown(m_reader.m_name);
        const bool is_own = m_open != nullptr && m_reader.m_name == m_open->get_name();
        return is_own ? "" : joined({"</", shown(m_reader.m_name), ">"});
    }
    /// What should stand once has just been read.
    bool is_repeated() const {
        const s_item* const last = m_open == nullptr ? nullptr : m_open->last_item;
        return last != nullptr && !last->name.empty() && !is_foreign() &&
               local_part(m_reader.m_name) == local_part(last->name);
    }
    /// `all` may have been meant.
    std::string found(const names& all = {}) const {
        if (m_event == ELXP_TEXT) return "text stands here";
        if (m_event == ELXP_END_TAG) {
            const std::string text = found_text();
            return text.empty() ? joined({open_name(), " ends here"}) : joined({text, " stands here"});
        }
        const std::string text = joined({"<", found_text(), "> stands here", is_repeated() ? " again" : ""});
        if (!is_foreign()) return joined({text, meant(local_part(m_reader.m_name), all)});
        return joined({text, ", which is not in the namespace ", format_namespace(namespace_of_open())});
    }
    /// All that the open element takes.
    names expected_names() const {
        names all;
        for (const s_item* item : all_rows(*m_open->type, &s_class::elements)) add_names(*item, &all);
        return all;
    }
    int namespace_of_open() const {
        const s_class* type = m_open->type;
        while (type->element_map->name == nullptr && type->base != nullptr) type = type->base;
        return type->element_map->ns_id;
    }

    s_failure describe_structure() const {
        s_failure failure;
        failure.line = m_reader.get_event_line();
        failure.value = found_text();
        std::string last_step;
        std::string name;
        switch (m_code) {
            case ELMX_ELEMENT_NOT_FOUND:
                failure.detail = joined({"the document must begin with the element ", m_site.document->local_name,
                                         " in the namespace ", format_namespace(m_site.document->ns_map->ns_id)});
                break;
            case ELMX_MANDATORY_ELEMENT_MISSING: {
                // Of names that are equally near the one that is missing comes first.
                names all;
                if (m_site.item != nullptr) add_names(*m_site.item, &all);
                for (std::string& other : expected_names()) all.push_back(std::move(other));
                failure.detail = sentence(m_site.item != nullptr ? missing({&m_site.item, 1}) : "", found(all));
                break;
            }
            case ELMX_REQUIRED_ATTRIBUTES_MISSING:
                failure.line = m_open->line;
                failure.value.clear();
                failure.detail = missing(absent_attributes());
                if (absent_attributes().size() == 1) failure.meant = local_part(absent_attributes().front()->name);
                break;
            case ELMX_UNKNOWN_ELEMENT_IN_COMPLEX_CONTENT:
                failure.detail = sentence(missing_choice(*m_site.type), found(expected_names()));
                break;
            case ELMX_UNEXPECTED_EMPTY_ELEMENT:
                failure.line = m_open->line;
                failure.value.clear();
                failure.detail = absent_content();
                break;
            case ELMX_UNKNOWN_XSI_TYPE:
                last_step = local_part(m_site.item->name);  // NOLINT(clang-analyzer-core.*): every such site has one
                failure.value = shown(m_reader.find_raw_attribute_value("xsi:type"));
                failure.detail = known_types();
                break;
            case ELMX_BADLY_FORMED:
                failure.detail = nested_too_deep();
                break;
            default:
                failure.detail = misplaced();
                if (is_nil(*m_open->type, m_open->object)) failure.value.clear();
                break;
        }
        failure.path = path_of(m_open, last_step, m_code == ELMX_REQUIRED_ATTRIBUTES_MISSING ? own_name() : "");
        return failure;
    }

    std::vector<const s_item*> absent_attributes() const {
        std::vector<const s_item*> rows = all_rows(*m_open->type, &s_class::attributes);
        std::erase_if(rows, [this](const s_item* item) {
            return (item->use & use_demanded) == 0 || is_set(*item, m_open->object);
        });
        return rows;
    }

    std::string absent_content() const {
        if (m_open->type->content == content_kind::choice) return missing_choice(*m_open->type);
        std::vector<const s_item*> rows = all_rows(*m_open->type, &s_class::elements);
        std::erase_if(rows, [](const s_item* item) { return (item->use & (use_demanded | use_asked)) == 0; });
        return missing(rows);
    }

    std::string known_types() const {
        names all;
        for (const s_factory_row& row : m_site.item->factory) all.emplace_back(row.name);
        return joined({"one of ", listed(all, "or"), ", with the prefix of the document's namespace, is expected"});
    }

    /// An element, a text or an end tag where the open element should end.
    std::string misplaced() const {
        const s_class& type = *m_open->type;
        // Behind what stands in it the reader went on.
        if (is_nil(type, m_open->object)) return "the element is nil and must be empty";
        if (type.content == content_kind::simple) return sentence("only a value may stand in it", found());
        if (m_event == ELXP_END_TAG && m_reader.m_name != m_open->get_name()) {
            return joined({"the end tag of ", open_name(), ", which begins in line ", std::to_string(m_open->line),
                           ", is expected"});
        }
        if (type.content == content_kind::empty) return sentence("it must be empty", found());
        if (type.content == content_kind::choice) {
            return sentence(joined({"only ", one_of(type.elements), " may stand in it"}), found());
        }
        if (m_event == ELXP_TEXT) return "no text may stand between elements";
        if (is_foreign()) return found();
        const std::vector<const s_item*> rows = all_rows(type, &s_class::elements);
        return sentence(misplacement(rows), expected_next(rows));
    }

    std::string misplacement(const std::vector<const s_item*>& rows) const {
        const std::string local(local_part(m_reader.m_name));
        const auto row = std::find_if(rows.begin(), rows.end(), [&](const s_item* item) {
            names all;
            add_names(*item, &all);
            return std::find(all.begin(), all.end(), local) != all.end();
        });
        if (row == rows.end()) {
            return joined({open_name(), " has no element ", shown(local), meant(local, expected_names())});
        }
        const s_item* const last = m_open->last_item;
        if (last == nullptr || *row == last) return joined({local, " may stand here only once"});
        if (is_group(*last)) return joined({local, " must stand before what precedes it"});
        return joined({local, " must stand before ", local_part(last->name)});
    }

    std::string expected_next(const std::vector<const s_item*>& rows) const {
        names all;
        auto row = std::find(rows.begin(), rows.end(), m_open->last_item);
        if (row == rows.end()) {
            row = rows.begin();
        } else if (!is_repeating(**row)) {
            ++row;
        }
        for (; row != rows.end(); ++row) add_names(**row, &all);
        all.push_back(joined({"the end of ", open_name()}));
        return joined({listed(all, "or"), " is expected"});
    }

    const c_xml_reader& m_reader;
    elmx_error m_code;
    s_fault_site m_site;
    const s_open_element* m_open;
    int m_event;
};

/// What a class and its bases ask for and an object doesn't have.
std::vector<const s_item*> absent_items(const s_class& type, const void* object) {
    std::vector<const s_item*> rows = all_rows(type, &s_class::attributes);
    if (type.choice == k_no_flag) {
        const std::vector<const s_item*> elements = all_rows(type, &s_class::elements);
        rows.insert(rows.end(), elements.begin(), elements.end());
    }
    std::erase_if(rows,
                  [&](const s_item* item) { return (item->use & use_asked) == 0 || is_item_there(*item, object); });
    return rows;
}

/// The last step to a value of the open element that is being written.
std::string written_step(const s_fault_site& site, const s_open_element* open) {
    const s_item& item = *site.item;
    if (item.kind == item_kind::content) return {};
    const std::string_view name = local_part(item.name);
    if (item.kind == item_kind::attribute) return joined({"@", name});
    if (item.kind != item_kind::element_list) return std::string(name);
    const c_list_base& entries = list_of(item, open->object);
    std::size_t number = 1;
    while (number < entries.size() && entries.entry(number - 1) != site.object) ++number;
    return joined({name, "[", std::to_string(number), "]"});
}

/// A value in the form in which it is read.
std::string written_text(const s_item& item, const void* value) {
    std::string text;
    with_value_type(item.value, [&](auto* type) {
        using type_of_value = std::remove_pointer_t<decltype(type)>;
        const auto& typed = *static_cast<const type_of_value*>(value);
        if constexpr (std::is_same_v<type_of_value, std::u16string>) {
            convert(&text, typed);
        } else if constexpr (std::is_same_v<type_of_value, c_enumerated>) {
            convert(&text, typed.get());
        } else if constexpr (std::is_same_v<type_of_value, c_datetime>) {
            typed.append_to(&text);
        } else if constexpr (std::is_same_v<type_of_value, c_binary>) {
            typed.append_base64(&text);
        } else if constexpr (std::is_same_v<type_of_value, double>) {
            append_as_xml(text, typed);
        } else {
            text = std::to_string(typed);
        }
    });
    return text;
}

}  // namespace

bool is_of_value(elmx_error code) {
    switch (code) {
        case ELMX_LENGTH_TOO_LONG:
        case ELMX_LENGTH_TOO_SHORT:
        case ELMX_NO_PATTERN_MATCHED:
        case ELMX_VALUE_BAD_FORMAT:
        case ELMX_VALUE_EXCEEDS_MAX:
        case ELMX_VALUE_BELOW_MIN:
        case ELMX_VALUE_NOT_ENUMERATED:
            return true;
        default:
            return false;
    }
}

s_failure describe_failure(const c_xml_reader& reader, elmx_error code, const std::string& item_name) {
    return c_reading(reader, code).describe(item_name);
}

s_failure describe_failure(const c_xml_writer& writer, elmx_error code, const std::string& item_name) {
    s_failure failure;
    failure.item = shown(item_name);
    failure.path = path_of(writer.get_open_element(), {}, {});
    const s_fault_site* const site = writer.get_fault_site();
    if (site == nullptr) return failure;
    if (is_of_value(code)) {
        failure.path = path_of(writer.get_open_element(), written_step(*site, writer.get_open_element()), {});
        const std::string text = written_text(*site->item, site->object);
        failure.value = shown(text);
        const bool is_text = kind_of(*site->item).is_text && code == ELMX_VALUE_BAD_FORMAT;
        failure.detail = is_text ? lost_in_text(*site->item, text_in(*site->item, site->object))
                                 : allowed_value(*site->item, code, text);
        return failure;
    }
    const std::vector<const s_item*> absent =
        code == ELMX_OCCURS_ERROR_ON_MARSHAL ? absent_items(*site->type, site->object) : std::vector<const s_item*>();
    if (!absent.empty()) {
        failure.item = is_group(*absent.front()) ? shown(item_name) : shown(absent.front()->name);
        failure.detail = missing(absent);
    } else if (code == ELMX_BADLY_FORMED) {
        failure.detail = nested_too_deep();
    } else if (code == ELMX_TYPE_NOT_SET) {
        failure.detail = joined({"the element ", local_part(item_name), " is chosen but has no object"});
    } else {
        failure.detail = missing_choice(*site->type);
    }
    return failure;
}

}  // namespace lmx
