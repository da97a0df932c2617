// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/xml_reader.h"

#include <algorithm>
#include <cstring>

#include "lmx/reader/plain_text.h"
#include "lmx/values/characters.h"

namespace lmx {

const std::string k_namespace_not_found = " ";

namespace {

template <class Row>
bool is_row_of(const Row& row, int ns_id, std::string_view name) {
    return row.ns_id == ns_id && row.name[0] == name.data()[0] && row.name_length == name.size() &&
           std::memcmp(row.name, name.data(), name.size()) == 0;
}

int xsi_event(std::string_view local_name) {
    if (local_name == "type") return ELXP_XSI_TYPE;
    if (local_name == "nil") return ELXP_XSI_NIL;
    if (local_name == "noNamespaceSchemaLocation") return ELXP_XSI_NO_NAMESPACE_SCHEMA_LOCATION;
    if (local_name == "schemaLocation") return ELXP_XSI_SCHEMA_LOCATION;
    return ELXP_UNKNOWN;
}

bool is_ncname(std::string_view name) {
    const auto is_start = [](char c) { return xisalpha(c) || c == '_' || c == ':'; };
    const auto is_part = [](char c) { return xisalnum(c) || c == '.' || c == '-' || c == '_'; };
    return !name.empty() && is_start(name.front()) && std::all_of(name.begin() + 1, name.end(), is_part);
}

bool fail(elmx_error code, elmx_error* error) {
    *error = code;
    return false;
}

}  // namespace

void detail::c_scanner_errors::report_error(elmx_error_type type, elmx_error, const char*, int line,
                                            const char* text) {
    if (type != ELMX_TYPE_FATAL && type != ELMX_TYPE_ERROR) return;
    m_text = text;
    m_line = line;
}

c_xml_reader_local::~c_xml_reader_local() {
    if (m_reader != nullptr) m_reader->set_reader_local(m_saved_local);
}

void c_xml_reader_local::set_reader(c_xml_reader& reader) {
    m_reader = &reader;
    m_saved_local = reader.get_reader_local();
    set_parent(m_saved_local);
    reader.set_reader_local(this);
}

c_xml_reader::c_xml_reader(c_read& source) : c_xml(source, m_collector, true) { m_root_local.set_reader(*this); }

c_xml_reader::~c_xml_reader() = default;

elmx_error c_xml_reader::user_handle_error(elmx_error code, const std::string&, const char*, int) {
    return user_handle_error(code);
}

elmx_error c_xml_reader::user_handle_error(elmx_error code) { return code; }

void c_xml_reader::see_unhandled_error(elmx_error, const std::string&) {}

std::string& c_xml_reader::get_error_message(std::string* out) const {
    if (m_last_error == ELMX_OK) return *out = get_error_description(ELMX_OK);
    return *out = "line:" + std::to_string(get_line_no()) + "-'" + m_error_item_name + "'-" +
                  get_error_description(m_last_error);
}

elmx_error c_xml_reader::handle_error(elmx_error code, const std::string& item_name, const char* file, int line) {
    m_last_error = code;
    m_error_item_name = item_name;
    m_last_error = user_handle_error(code, item_name, file, line);
    return m_last_error;
}

s_diagnosis c_xml_reader::diagnose() const {
    s_diagnosis diagnosis = c_xml::diagnose();
    diagnosis.scanned_event = m_scanned_event;
    diagnosis.fault_text = m_collector.m_text;
    diagnosis.fault_line = m_collector.m_line - (get_line_num() - get_text_line());
    diagnosis.notes = m_notes;
    return diagnosis;
}

void c_xml_reader::set_ns_map(const s_ns_map* map) {
    for (; map->uri != nullptr; ++map) add_namespace(map->uri, map->ns_id);
    for (const auto& [prefix, uri] : m_ns_mappings) m_root_local.add_namespace(prefix, add_namespace(uri.c_str()));
}

int c_xml_reader::search_token(const s_name_lists& names, elxp_attr_elem kind) const {
    const int ns_id = name_ns_id(kind);
    const std::string_view name = m_cracked_name.get_local_view();
    if (ns_id == k_xsi_ns) return xsi_event(name);
    const c_name_list& list = names.of(kind);
    const int token = ns_id == list.ns_id() ? list.find(name) : 0;
    return token != 0 ? token : ELXP_UNKNOWN;
}

void c_xml_reader::tokenise(const s_event_map* map, elxp_attr_elem kind) {
    const int ns_id = name_ns_id(kind);
    const std::string_view name = m_cracked_name.get_local_view();
    if (ns_id == k_xsi_ns) {
        m_current_event = xsi_event(name);
        return;
    }
    while (map->name != nullptr && !is_row_of(*map, ns_id, name)) ++map;
    m_current_event = map->name != nullptr ? map->token : ELXP_UNKNOWN;
}

/// The code of the current event: what the scanner last reported for an error, which is 0 if it made no report.
elmx_error c_xml_reader::event_error() const {
    if (is_error_event(m_current_event)) return m_collector.get_last_error();
    return m_current_event == ELXP_END_OF_INPUT ? ELMX_UNEXPECTED_END_OF_MESSAGE : ELMX_OK;
}

void c_xml_reader::take_plain(std::size_t count, int line_feeds, const s_plain_trace& trace) {
    const char* const start = ahead().data();
    const int line = get_line_num() + line_feeds;
    const std::size_t name_length = name_size(trace.tag.data(), trace.tag.data() + trace.tag.size());
    std::size_t tag_end = 0;
    if (trace.tag.data() != nullptr) {
        take_ahead(static_cast<std::size_t>(trace.tag.data() - start), trace.tag_line - get_text_line());
        take_plain_tag(name_length);
        tag_end = static_cast<std::size_t>(ahead().data() - start);
    }
    take_ahead(count - tag_end, line - get_line_num());
    if (trace.attribute_name.data() != nullptr) m_attr_name = trace.attribute_name;
    if (trace.has_value) {
        m_value = trace.value;
        m_notes.is_value_faulty = false;
        set_ws_mode(trace.whitespace);
    }
    if (trace.tag.data() == nullptr) return;
    // An end tag or text behind has no name of its own.
    m_cracked_name.set(m_local, has_attributes() ? m_attr_name : m_name.assign(trace.tag, 0, name_length));
}

void c_xml_reader::get_element_event(const s_event_map* map, elmx_error* error, std::string* name) {
    // The scope serves one sibling after the other: declarations don't outlive their element.
    m_local->clear();
    m_current_event = m_scanned_event = get_element_name(m_local, name);
    if (m_current_event == ELXP_NAME) {
        m_cracked_name.set(m_local, *name);
        if (map != nullptr) tokenise(map, ELXP_ELEMENT);
    } else if (is_error_event(m_current_event) || m_current_event == ELXP_END_OF_INPUT) {
        *error = event_error();
    }
}

bool c_xml_reader::get_attribute_event(const s_event_map* map, elmx_error* error, std::string* name) {
    m_current_event = get_attribute_name(name, false);
    *error = event_error();
    if (m_current_event == ELXP_NAME) {
        m_cracked_name.set(m_local, *name);
        if (map != nullptr) tokenise(map, ELXP_ATTRIBUTE);
        return true;
    }
    return is_error_event(m_current_event) || m_current_event == ELXP_END_OF_INPUT;
}

void c_xml_reader::get_known_element_event(const s_event_map* map, elmx_error* error, std::string* name) {
    for (;;) {
        get_element_event(nullptr, error, name);
        if (m_current_event != ELXP_NAME) return;
        if (map != nullptr) {
            tokenise(map, ELXP_ELEMENT);
            if (m_current_event != ELXP_UNKNOWN) return;
        }
        const int ns_id = get_element_ns_id();
        for (const s_known_elements* known = m_known_elements; known->name != nullptr; ++known) {
            if (is_row_of(*known, ns_id, get_local_name())) return;
        }
        bool is_empty = false;
        if (!move_to_start_tag_end(&is_empty) || (!is_empty && !skip_element_body(*name))) {
            *error = ELMX_BADLY_FORMED;
            return;
        }
    }
}

bool c_xml_reader::get_simple_type_value(const std::string& name, elmx_whitespace mode, std::string* value,
                                         elmx_error* error, bool* is_empty) {
    value->clear();
    if (!move_to_start_tag_end(is_empty)) return fail(ELMX_BAD_START_TAG_END, error);
    if (*is_empty) return true;
    if (!get_element_value(value, mode, true)) return fail(ELMX_UNABLE_TO_READ_ELEMENT_VALUE, error);
    return is_element_end_tag(name) || fail(ELMX_BAD_END_OF_ELEMENT, error);
}

bool c_xml_reader::get_element_ur_value(const std::string& name, std::string* value, elmx_error* error,
                                        bool* is_empty) {
    value->clear();
    std::string end_name;
    if (!move_to_start_tag_end(is_empty)) return fail(ELMX_BAD_START_TAG_END, error);
    if (*is_empty) return true;
    if (!get_nested_element_value(value, &end_name, ELMX_WS_PRESERVE, true)) {
        return fail(ELMX_UNABLE_TO_READ_ELEMENT_VALUE, error);
    }
    return end_name == name || fail(ELMX_BAD_END_OF_ELEMENT, error);
}

bool c_xml_reader::get_nested_element_value(std::string* value, std::string* end_name, elmx_whitespace mode,
                                            bool expand_entities) {
    if (!c_xml::get_nested_element_value(value, end_name, mode, expand_entities)) return false;
    m_current_event = ELXP_END_TAG;
    return true;
}

bool c_xml_reader::is_valid_qname(const std::string& qname) const {
    c_cracked_name name;
    name.set(m_local, qname);
    if (name.get_ns_id() == k_unbound_ns) return false;
    return (!name.get_has_ns_prefix() || is_ncname(name.get_ns_prefix())) && is_ncname(name.get_local_name());
}

std::string& c_xml_reader::get_namespace(const std::string& qname, std::string* out) const {
    const int ns_id = c_xml::get_ns_id(m_local, qname);
    if (ns_id == k_no_ns) return *out = std::string();
    const char* const uri = ns_id == k_unbound_ns ? nullptr : find_namespace_from_id(ns_id);
    return *out = uri == nullptr ? k_namespace_not_found : uri;
}

bool c_xml_list_tokeniser::get(std::string* item) {
    while (m_position < m_text.size() && xisspace(m_text[m_position])) ++m_position;
    const std::size_t start = m_position;
    while (m_position < m_text.size() && !xisspace(m_text[m_position])) ++m_position;
    item->assign(m_text, start, m_position - start);
    return m_position > start;
}

bool get_instance_namespace(c_xml_reader& reader, std::string* ns) {
    const c_xml_reader_local scope(reader);
    elmx_error error = ELMX_OK;
    reader.get_element_event(nullptr, &error, &reader.m_name);
    const bool is_found = reader.get_current_event() == ELXP_NAME;
    if (is_found) reader.get_namespace(reader.m_name, ns);
    reader.rewind();
    return is_found && *ns != k_namespace_not_found;
}

namespace {

/// Looks at the attributes of the start tag at hand and moves to its end. 1 if that fails.
elmx_must_understand evaluate_start_tag(c_xml_reader& reader, const std::string& uri, const std::string& local_name,
                                        elmx_must_understand (*evaluate)(const std::string&)) {
    elmx_error error = ELMX_OK;
    while (reader.get_attribute_event(nullptr, &error, &reader.m_attr_name)) {
        if (error != ELMX_OK || reader.get_current_event() != ELXP_NAME) return ELMX_MUST_UNDERSTAND_UNKNOWN;
        // The document may only just have declared the namespace.
        const int ns_id = uri.empty() ? static_cast<int>(k_no_ns) : reader.find_enumerated_namespace(uri);
        const int found_id = reader.get_has_ns_prefix() ? reader.get_ns_id() : static_cast<int>(k_no_ns);
        if (ns_id == k_unbound_ns || found_id != ns_id || reader.get_local_name() != local_name) {
            reader.skip_attribute_value();
            continue;
        }
        if (!reader.get_attribute_value(&reader.m_value, ELMX_WS_COLLAPSE)) return ELMX_MUST_UNDERSTAND_UNKNOWN;
        const elmx_must_understand answer = evaluate(reader.m_value);
        if (answer != ELMX_MUST_UNDERSTAND_NO) return answer;
    }
    return ELMX_MUST_UNDERSTAND_NO;
}

/// Keeps the bindings that are in force at any depth in one scope, so that a lookup doesn't climb.
class c_visible_bindings {
public:
    explicit c_visible_bindings(c_xml_local& scope) : m_scope(scope) {}

    /// Makes the declarations of an element visible to what is in it.
    void enter(const c_xml_local& declared) {
        const c_name_table& bindings = declared.get_bindings();
        for (std::size_t row = 0; row < bindings.size(); ++row) {
            m_replaced.emplace_back(bindings.name(row), m_scope.find_namespace_id(bindings.name(row)));
            m_scope.add_namespace(bindings.name(row), bindings.number(row));
        }
        m_marks.push_back(m_replaced.size() - bindings.size());
    }
    void leave() {
        for (; m_replaced.size() > m_marks.back(); m_replaced.pop_back()) {
            m_scope.add_namespace(m_replaced.back().first, m_replaced.back().second);
        }
        m_marks.pop_back();
    }

private:
    c_xml_local& m_scope;
    std::vector<std::pair<std::string, int>> m_replaced;
    std::vector<std::size_t> m_marks;
};

/// Looks through the element whose start tag was read. What it declares stands in `scope`.
elmx_must_understand search_element(c_xml_reader& reader, c_xml_local& scope, const std::string& uri,
                                    const std::string& local_name,
                                    elmx_must_understand (*evaluate)(const std::string&)) {
    const c_xml_reader_local current(reader);
    c_visible_bindings visible(scope);
    c_string_stack names;
    for (;;) {
        if (reader.get_current_event() == ELXP_NAME) {
            const elmx_must_understand answer = evaluate_start_tag(reader, uri, local_name, evaluate);
            if (answer != ELMX_MUST_UNDERSTAND_NO) return answer;
            if (reader.get_current_event() != ELXP_END_TAG) {
                names.push(reader.m_name);
                visible.enter(current);
            }
        } else if (reader.get_current_event() == ELXP_END_TAG) {
            if (reader.m_name != names.top()) return ELMX_MUST_UNDERSTAND_UNKNOWN;
            names.pop();
            visible.leave();
        }
        if (names.get_depth() == 0) return ELMX_MUST_UNDERSTAND_NO;
        elmx_error error = ELMX_OK;
        reader.get_element_event(nullptr, &error, &reader.m_name);
        if (error != ELMX_OK || c_xml::is_error_event(reader.get_current_event()))
            return ELMX_MUST_UNDERSTAND_UNKNOWN;
    }
}

}  // namespace

elmx_must_understand has_must_understand(c_xml_reader& reader, const std::string& uri, const std::string& local_name,
                                         elmx_must_understand (*evaluate)(const std::string&)) {
    elmx_must_understand answer = ELMX_MUST_UNDERSTAND_UNKNOWN;
    {
        c_xml_reader_local scope(reader);
        elmx_error error = ELMX_OK;
        reader.get_element_event(nullptr, &error, &reader.m_name);
        if (reader.get_current_event() != ELXP_NAME) return answer;
        answer = search_element(reader, scope, uri, local_name, evaluate);
    }
    reader.rewind();
    return answer;
}

}  // namespace lmx
