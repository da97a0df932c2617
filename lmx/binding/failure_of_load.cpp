// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <limits>
#include <string_view>
#include <vector>

#include "lmx/binding/failure.h"
#include "lmx/binding/failure_path.h"
#include "lmx/binding/failure_words.h"
#include "lmx/binding/open_element.h"
#include "lmx/binding/place.h"
#include "lmx/binding/shown_text.h"
#include "lmx/binding/storage.h"

namespace lmx {

using namespace words;

namespace {

/// The unresolved reference that ends a text; empty if there's none.
std::string_view trailing_reference(std::string_view text) {
    const std::size_t start = text.rfind('&');
    return start == text.npos ? std::string_view() : text.substr(start);
}

std::string scanner_sentence(const s_diagnosis& diagnosis) {
    const std::string_view sentence = row_of(diagnosis.fault).sentence;
    return sentence.empty() ? shown(diagnosis.fault_text) : std::string(sentence);
}

constexpr char k_unended[] = "the document ends before what begins here does";
constexpr char k_bad_bytes[] = "the bytes that follow are not UTF-8";

/// Describes one failure of a load.
class c_reading {
public:
    c_reading(const c_xml_reader& reader, elmx_error code)
        : m_reader(reader),
          m_code(code),
          m_diagnosis(reader.diagnose()),
          m_site(m_diagnosis.notes.fault_site == nullptr ? s_fault_site{} : *m_diagnosis.notes.fault_site),
          m_open(m_diagnosis.notes.open_element),
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
    bool has_read_bad_bytes() const { return !m_diagnosis.has_source_ended && row_of(m_diagnosis.fault).is_at_end; }

    std::string open_name() const { return shown(local_part(m_open->get_name())); }

    /// The name of the element whose attributes are being read, if it stands in the tag.
    std::string own_name() const {
        const s_item* const item = m_open == nullptr ? nullptr : name_item(*m_open->type);
        if (item == nullptr || item->kind != item_kind::attribute || is_set(*item, m_open->object)) return {};
        return std::string(m_reader.find_raw_attribute_value(item->name));
    }

    std::string wrong_end_tag() const {
        const std::string_view name = m_diagnosis.wrong_end_name;
        return name.empty() ? "" : joined({"; </", shown(name), "> stands here"});
    }

    std::string unresolved(std::string_view text) const {
        const std::string_view reference = trailing_reference(text);
        if (reference.empty()) return "a reference that follows, &# and a number, names no character";
        return joined({shown(reference), " is no known reference; an & in text is written &amp;"});
    }

    s_failure describe_attribute() const {
        const std::string& name = m_reader.m_attr_name;
        s_failure failure;
        failure.line = m_diagnosis.attribute_line;
        failure.offset = m_diagnosis.event_offset;
        failure.attribute = name;
        failure.path = path_of(m_open, joined({"@", shown(name, 60)}), own_name());
        const bool is_read = is_of_value(m_code) || m_code == ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE;
        failure.value = shown(is_read ? m_reader.m_value : m_diagnosis.attribute_value);
        if (m_code == ELMX_ATTRIBUTE_ALREADY_READ) {
            const bool is_repeated =
                m_reader.find_raw_attribute_value(name).data() != m_diagnosis.attribute_value.data();
            failure.is_repetition = is_repeated;
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
            const std::string_view text = m_diagnosis.fault_text;
            failure.meant = name;
            failure.detail = text.empty() ? unresolved(m_reader.m_value) : scanner_sentence(m_diagnosis);
        } else {
            failure.detail = allowed_value(*m_site.item, m_code, m_reader.m_value);
        }
        return failure;
    }

    /// The step to a value; an entry of a list isn't in it yet.
    std::string value_step() const {
        const bool is_entry = m_site.item->kind == item_kind::element_list;
        return step_of(*m_site.item, is_entry ? list_of(*m_site.item, m_site.object).size() + 1 : 1);
    }

    s_failure describe_value() const {
        s_failure failure;
        failure.line = m_diagnosis.event_line;
        failure.offset = m_diagnosis.event_offset;
        failure.path = path_of(m_open, value_step(), {});
        failure.value = shown(m_reader.m_value);
        if (is_of_value(m_code)) {
            failure.detail = allowed_value(*m_site.item, m_code, m_reader.m_value);
            return failure;
        }
        const std::string_view text = m_diagnosis.fault_text;
        const bool has_ended = m_diagnosis.has_source_ended;
        if (m_code == ELMX_UNABLE_TO_READ_ELEMENT_VALUE) {
            if (!has_ended) {
                failure.line = m_diagnosis.text_line;
                failure.offset = m_diagnosis.text_offset;
            }
            failure.detail = text.empty() && !has_ended ? unresolved(m_reader.m_value)
                             : has_read_bad_bytes()     ? std::string(k_bad_bytes)
                             : text.empty()             ? std::string("the document ends within it")
                                                        : scanner_sentence(m_diagnosis);
        } else if (m_code == ELMX_BAD_END_OF_ELEMENT) {
            failure.detail = has_ended ? std::string("the document ends within it")
                                       : joined({"only a value may stand in it, with each < written &lt;, and then "
                                                 "its end tag </",
                                                 shown(m_reader.m_name), ">", wrong_end_tag()});
        } else {
            failure.detail = text.empty() ? k_unended : scanner_sentence(m_diagnosis);
        }
        return failure;
    }

    s_failure describe_broken() const {
        const std::string_view text = m_diagnosis.fault_text;
        const bool has_ended = m_diagnosis.has_source_ended;
        const bool is_end = m_event == ELXP_END_OF_INPUT;
        s_failure failure;
        failure.path = path_of(m_open, {}, {});
        failure.line = m_diagnosis.event_line;
        failure.offset = m_diagnosis.event_offset;
        if (!is_end) failure.value = shown(m_reader.m_name);
        if (is_end && has_ended) failure.offset = std::numeric_limits<std::uint64_t>::max();
        if (!text.empty()) {
            failure.detail = has_read_bad_bytes()   ? k_bad_bytes
                             : !is_end && has_ended ? k_unended
                                                    : scanner_sentence(m_diagnosis);
            if (!has_ended && m_diagnosis.fault_line > failure.line) {
                failure.detail += joined({", as noticed in line ", std::to_string(m_diagnosis.fault_line)});
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
        const auto is_named = [](const s_item* row) { return row->token != 0 || is_group(*row); };
        // What is read over has no names.
        return std::ranges::any_of(all_rows(*m_open->type, &s_class::elements), is_named) &&
               m_open->type->names->elements.ns_id() != m_reader.get_element_ns_id();
    }
    std::string format_namespace(int id) const {
        const char* const uri = m_reader.find_namespace_from_id(id);
        return uri == nullptr ? "of the document" : shown(uri);
    }

    /// ", which is in no namespace": what is to be said of the element at hand where another one is expected.
    std::string found_namespace() const {
        const std::string& name = m_reader.m_name;
        const std::size_t colon = name.find(':');
        std::string uri;
        if (m_reader.get_namespace(name, &uri) == k_namespace_not_found && colon != name.npos) {
            return joined({", whose prefix ", shown(name.substr(0, colon)), " is not declared"});
        }
        if (uri.empty() || uri == k_namespace_not_found) return ", which is in no namespace";
        return joined({", which is in the namespace ", shown(uri)});
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
        return joined({text, found_namespace(), "; the namespace ",
                       format_namespace(m_open->type->names->elements.ns_id()), " is expected"});
    }
    /// All that the open element takes.
    names expected_names() const {
        names all;
        for (const s_item* item : all_rows(*m_open->type, &s_class::elements)) add_names(*item, &all);
        return all;
    }

    s_failure describe_structure() const {
        s_failure failure;
        failure.line = m_diagnosis.event_line;
        failure.offset = m_diagnosis.event_offset;
        failure.value = found_text();
        std::string last_step;
        std::string name;
        switch (m_code) {
            case ELMX_ELEMENT_NOT_FOUND:
                failure.detail = not_the_document();
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
                failure.offset = m_open->offset;
                failure.value.clear();
                failure.detail = missing(absent_attributes());
                if (absent_attributes().size() == 1) failure.meant = local_part(absent_attributes().front()->name);
                break;
            case ELMX_UNKNOWN_ELEMENT_IN_COMPLEX_CONTENT:
                failure.detail = sentence(missing_choice(*m_site.type), found(expected_names()));
                break;
            case ELMX_UNEXPECTED_EMPTY_ELEMENT:
                failure.line = m_open->line;
                failure.offset = m_open->offset;
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

    std::string not_the_document() const {
        const int ns_id = m_site.document->ns_map->ns_id;
        std::string detail = joined({"the document must begin with the element ", m_site.document->local_name,
                                     " in the namespace ", format_namespace(ns_id)});
        if (m_event != ELXP_NAME || m_reader.get_element_ns_id() == ns_id) return detail;
        return joined({detail, "; <", found_text(), "> stands here", found_namespace()});
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
            const std::string begin =
                m_open->line == 0 ? "" : joined({", which begins in line ", std::to_string(m_open->line), ","});
            return joined({"the end tag of ", open_name(), begin, " is expected"});
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
    s_diagnosis m_diagnosis;
    s_fault_site m_site;
    const s_open_element* m_open;
    int m_event;
};

}  // namespace

s_failure describe_failure(const c_xml_reader& reader, elmx_error code, const std::string& item_name) {
    return c_reading(reader, code).describe(item_name);
}

}  // namespace lmx
