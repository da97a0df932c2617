// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Layout, declaration, namespace attributes and errors of the writer.

#include "lmx/writer/xml_writer.h"

#include <algorithm>
#include <locale>
#include <string_view>

namespace lmx {

namespace {

void write_namespace(std::ostream& os, std::string_view prefix, std::string_view uri) {
    os << " xmlns";
    if (!prefix.empty()) os << ':' << prefix;
    os << "=\"" << uri << '"';
}

}  // namespace

c_xml_writer::c_xml_writer(std::ostream& os, const char* tab, const char* nl) : c_xml_writer(os, 0, tab, nl) {}

c_xml_writer::c_xml_writer(std::ostream& os, int options, const char* tab, const char* nl)
    : m_os(os), m_tab(tab), m_nl(nl) {
    m_os.imbue(std::locale::classic());
    if ((options & (include_xml_decl | include_standalone)) == 0) return;
    m_os << "<?xml version=\"1.0\" encoding=\"UTF-8\"";
    if ((options & include_standalone) != 0) m_os << " standalone=\"yes\"";
    m_os << "?>" << m_nl;
}

c_xml_writer::~c_xml_writer() = default;

elmx_error c_xml_writer::user_handle_error(elmx_error code, const std::string&, const char*, int) {
    return user_handle_error(code);
}

elmx_error c_xml_writer::user_handle_error(elmx_error code) { return code; }

void c_xml_writer::see_unhandled_error(elmx_error, const std::string&) {}

std::string& c_xml_writer::get_error_message(std::string* out) const {
    const char* const text = get_error_description(m_last_error);
    if (m_last_error == ELMX_OK) return *out = text;
    return *out = "'" + m_error_item_name + "'-" + text;
}

const char* c_xml_writer::endl() { return m_nl; }

void c_xml_writer::nest() { m_os << m_tab; }

std::ostream& c_xml_writer::operator()(bool at_line_start) {
    if (at_line_start) {
        for (int level = 0; level < m_indent_level; ++level) nest();
    }
    return m_os;
}

void c_xml_writer::add_namespace(const std::string& prefix, const std::string& uri) {
    m_namespaces.emplace_back(prefix, uri);
}

void c_xml_writer::add_schema_location(const std::string& ns, const std::string& location) {
    m_schema_locations.emplace_back(ns, location);
}

void c_xml_writer::conditionally_write_ns_attrs(bool need_xsi) {
    if (m_ns_attrs_written) return;
    if (m_ns_map != nullptr) {
        for (const s_ns_map* row = m_ns_map; row->uri != nullptr; ++row) write_namespace(m_os, row->prefix, row->uri);
    }
    for (const auto& [prefix, uri] : m_namespaces) write_namespace(m_os, prefix, uri);
    if (need_xsi || !m_schema_locations.empty()) write_namespace(m_os, "xsi", k_xsi_uri);
    if (!m_schema_locations.empty()) write_schema_locations();
    m_ns_attrs_written = true;
    // Nothing is printed here: an override learns in this way that the attributes are through.
    endl();
}

void c_xml_writer::write_schema_locations() {
    const auto& [first_ns, first_location] = m_schema_locations.front();
    if (first_ns.empty()) {
        // One hint without a namespace excludes all others.
        m_os << " xsi:noNamespaceSchemaLocation=\"" << first_location << '"';
        return;
    }
    m_os << " xsi:schemaLocation=\"";
    const char* separator = "";
    for (const auto& [ns, location] : m_schema_locations) {
        m_os << separator << ns << ' ' << location;
        separator = " ";
    }
    m_os << '"';
}

void c_xml_writer::reenable_ns_map_output() {
    m_ns_map = nullptr;
    m_ns_attrs_written = false;
}

const char* c_xml_writer::get_namespace_prefix(const std::string& uri) const {
    for (const s_ns_map* row = m_ns_map; row->uri != nullptr; ++row) {
        if (uri == row->uri) return row->prefix;
    }
    const auto added = std::find_if(m_namespaces.begin(), m_namespaces.end(),
                                    [&](const string_pair& entry) { return entry.second == uri; });
    return added != m_namespaces.end() ? added->first.c_str() : nullptr;
}

elmx_error c_xml_writer::handle_error(elmx_error code, const std::string& item_name, const char* file, int line) {
    m_last_error = code;
    m_error_item_name = item_name;
    m_last_error = user_handle_error(code, item_name, file, line);
    return m_last_error;
}

}  // namespace lmx
