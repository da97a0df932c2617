// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The attributes of a start tag.

#include "lmx/reader/cracked_name.h"
#include "lmx/reader/xml.h"

namespace lmx {
namespace {

/// What an attribute as documents write it takes at most.
constexpr std::size_t k_usual_attribute = 256;

}  // namespace

void c_xml::clear_attributes() {
    if (m_attr_buffer.empty()) return;
    m_attr_buffer.clear();
    m_attributes.clear();
    m_ns_attributes.clear();
    m_named = {};
    m_is_value_due = false;
}

bool c_xml::read_attributes(c_xml_local* local) {
    clear_attributes();
    if (touch_if_ahead(">")) return true;
    for (;;) {
        const int c = get_non_ws();
        if (!is_name_start(c)) {
            unget(c);
            return c != -1;
        }
        make_room(&m_attr_buffer, k_usual_attribute);
        s_attribute attribute{m_attr_buffer.size(), 0, 0, 0, 0, get_text_line()};
        m_attr_buffer += static_cast<char>(c);
        unget(read_name(&m_attr_buffer));
        attribute.name_length = m_attr_buffer.size() - attribute.name;
        const std::string_view name = std::string_view(m_attr_buffer).substr(attribute.name);
        const bool is_declaration = local != nullptr && (name == "xmlns" || name.starts_with("xmlns:"));
        if (!read_raw_value(&attribute)) return false;
        if (is_declaration) {
            m_ns_attributes.add(attribute);
            declare_namespace(local, attribute);
        } else {
            m_attributes.add(attribute);
        }
    }
}

void c_xml::take_plain_tag(std::size_t name_length) {
    m_event_line = get_text_line();
    m_event_offset = get_offset();
    take_ahead(name_length, 0);
    read_attributes(nullptr);
    while (m_attributes.next(&m_named)) {
    }
}

bool c_xml::read_raw_value(s_attribute* attribute) {
    int c = get_non_ws();
    if (c == -1) return refuse(scanner_fault::end_in_start_tag);
    const auto refuse_found = [this](scanner_fault fault, int found) {
        const char text = static_cast<char>(found);
        return refuse(fault, {{&text, 1}});
    };
    if (c != '=') return refuse_found(scanner_fault::no_equals_sign, c);
    const int quote = get_non_ws();
    if (quote == -1) return refuse(scanner_fault::no_quote_at_end);
    if (quote != '"' && quote != '\'') return refuse_found(scanner_fault::no_quote, quote);
    attribute->quote = static_cast<char>(quote);
    attribute->value = m_attr_buffer.size();
    const byte_set& stops = quote == '"' ? k_stops_of_double_quoted : k_stops_of_single_quoted;
    for (;;) {
        take_run(stops, &m_attr_buffer);
        c = get();
        if (c == quote) break;
        if (c == -1) return refuse(scanner_fault::no_quote_at_end);
        m_attr_buffer += static_cast<char>(c);
    }
    attribute->value_length = m_attr_buffer.size() - attribute->value;
    return true;
}

void c_xml::declare_namespace(c_xml_local* local, const s_attribute& attribute) {
    const std::string_view name = name_of(attribute);
    std::string_view uri = raw_value_of(attribute);
    if (uri.find('&') != std::string_view::npos) {
        const elmx_whitespace mode = get_ws_mode();
        set_ws_mode(ELMX_WS_PRESERVE);
        m_uri.clear();
        std::size_t position = 0;
        while (position < uri.size() && !expand_raw_text(uri.data(), uri.size(), &position, &m_uri, true)) {
        }
        set_ws_mode(mode);
        uri = m_uri;
    }
    const std::string_view prefix = name.size() > 6 ? name.substr(6) : std::string_view();
    const bool is_undeclared = prefix.empty() && uri.empty();
    local->add_namespace(prefix, is_undeclared ? k_no_ns : m_namespaces.add_namespace(uri));
}

elxp_xml_event c_xml::get_attribute_name(std::string* name, bool in_pi) {
    m_is_value_due = m_attributes.next(&m_named);
    if (m_is_value_due) {
        name->assign(m_attr_buffer, m_named.attribute.name, m_named.attribute.name_length);
        m_value_position = 0;
        return ELXP_NAME;
    }
    int c = get_non_ws();
    if (c == '>') return ELXP_START_TAG_END;
    if (c == (in_pi ? '?' : '/')) {
        c = get_non_ws();
        if (c == '>') return ELXP_END_TAG;
    }
    refuse(scanner_fault::broken_start_tag);
    return ELXP_ERROR;
}

bool c_xml::get_attribute_value(std::string* value, elmx_whitespace mode) {
    value->clear();
    set_ws_mode(mode);
    if (!m_is_value_due || !read_value_of(m_named.attribute, value)) return false;
    m_is_value_due = false;
    return true;
}

bool c_xml::read_value_of(const s_attribute& attribute, std::string* value) {
    return expand_raw_text(m_attr_buffer.data() + attribute.value, attribute.value_length, &m_value_position, value,
                           false);
}

bool c_xml::skip_attribute_value() {
    m_is_value_due = false;
    return true;
}

void c_xml::append_attributes(const c_attribute_list& list, std::string* out) const {
    for (c_attribute_list::s_cursor cursor; list.next(&cursor);) {
        *out += ' ';
        *out += name_of(cursor.attribute);
        *out += '=';
        *out += cursor.attribute.quote;
        *out += raw_value_of(cursor.attribute);
        *out += cursor.attribute.quote;
    }
}

// By namespace.

int c_xml::get_ns_id(const c_xml_local* local, const std::string& name) const {
    return local->find_namespace_id(prefix_of(name));
}

std::string& c_xml::get_local_name(const std::string& qname, std::string* out) {
    return *out = std::string(local_part(qname));
}

std::string& c_xml::get_namespace_prefix(const std::string& qname, std::string* out) {
    return *out = std::string(prefix_of(qname));
}

std::string_view c_xml::find_raw_attribute_value(std::string_view name) const {
    for (c_attribute_list::s_cursor cursor; m_attributes.next(&cursor);) {
        if (name_of(cursor.attribute) == name) return raw_value_of(cursor.attribute);
    }
    return {};
}

bool c_xml::is_xsi_attribute(const c_xml_local* local, const std::string& name) const {
    return get_ns_id(local, name) == k_xsi_ns;
}

bool c_xml::get_named_attribute(const c_xml_local* local, int ns_id, const std::string& local_name,
                                std::string* value) {
    // The search goes on behind the attribute that was named last, and starts the walk anew.
    c_attribute_list::s_cursor cursor = m_named;
    m_named.position = 0;
    while (m_attributes.next(&cursor)) {
        const std::string_view name = name_of(cursor.attribute);
        if (local_part(name) != local_name) continue;
        const bool has_prefix = name.find(':') != std::string_view::npos;
        const int found_id = has_prefix ? local->find_namespace_id(prefix_of(name)) : k_no_ns;
        if (found_id != ns_id) continue;
        value->clear();
        set_ws_mode(ELMX_WS_PRESERVE);
        m_value_position = 0;
        read_value_of(cursor.attribute, value);
        m_is_value_due = false;
        return true;
    }
    return false;
}

bool c_xml::get_xsi_type(const c_xml_local* local, int* ns_id, std::string* type_name) {
    std::string value;
    if (!get_named_attribute(local, k_xsi_ns, "type", &value)) return false;
    *ns_id = local->find_namespace_id(prefix_of(value));
    if (*ns_id == k_unbound_ns && value.find(':') == std::string::npos) *ns_id = k_no_ns;
    *type_name = std::string(local_part(value));
    return true;
}

}  // namespace lmx
