// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Layout, declaration, namespace attributes and errors of the writer.

#include "lmx/writer/xml_writer.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <locale>

namespace lmx {

c_xml_writer::c_xml_writer(std::ostream& os, const char* tab, const char* nl) : c_xml_writer(os, 0, tab, nl) {}

c_xml_writer::c_xml_writer(std::ostream& os, int options, const char* tab, const char* nl)
    : m_output(os), m_tab(tab), m_nl(nl), m_own_layout(find_layout_functions()) {
    os.imbue(std::locale::classic());
    write_declaration(options);
}

c_xml_writer::c_xml_writer(std::string& text, int options, const char* tab, const char* nl)
    : m_output(text), m_tab(tab), m_nl(nl), m_own_layout(find_layout_functions()) {
    write_declaration(options);
}

void c_xml_writer::write_declaration(int options) {
    if ((options & (include_xml_decl | include_standalone)) == 0) return;
    m_output.insert("<?xml version=\"1.0\" encoding=\"UTF-8\"");
    if ((options & include_standalone) != 0) m_output.insert(" standalone=\"yes\"");
    m_output.insert("?>");
    m_output.insert(m_nl);
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

void c_xml_writer::nest() { m_output.insert(m_tab); }

std::ostream& c_xml_writer::operator()(bool at_line_start) {
    if (at_line_start) nest_all();
    return m_output.get_stream();
}

void c_xml_writer::nest_all() {
    for (int level = 0; level < m_indent_level; ++level) nest();
}

namespace {

/// On Windows a table in a host's module has jumps over that module's imports in place of this one's functions.
const void* behind_import(const void* function) {
#if defined(_WIN32) && (defined(__i386__) || defined(__x86_64__))
    const auto* const code = static_cast<const unsigned char*>(function);
    if (code[0] != 0xFF || code[1] != 0x25) return function;
    std::uint32_t place = 0;
    std::memcpy(&place, code + 2, sizeof place);
#if defined(__x86_64__)
    const auto* const import = code + 6 + static_cast<std::int32_t>(place);
#else
    const auto* const import = reinterpret_cast<const unsigned char*>(place);
#endif
    std::memcpy(&function, import, sizeof function);
#endif
    return function;
}

}  // namespace

/// A host that derives for the sake of the errors shall not be slower than one that doesn't derive, so the functions
/// themselves are compared. They stand in this order, behind two destructors and three functions; a writer under
/// construction has those of this class.
c_xml_writer::layout_functions c_xml_writer::find_layout_functions() const {
#if defined(__GXX_ABI_VERSION)
    constexpr std::size_t endl_slot = 5;
    const void* const* functions = nullptr;
    std::memcpy(&functions, static_cast<const void*>(this), sizeof functions);
    return {behind_import(functions[endl_slot]), behind_import(functions[endl_slot + 1])};
#else
    return {};
#endif
}

void c_xml_writer::begin_printing() {
    const bool is_own = m_own_layout.front() != nullptr && find_layout_functions() == m_own_layout;
    m_is_collecting = is_own && m_tab != nullptr && m_nl != nullptr && !m_output.is_padding();
    if (!m_is_collecting) return;
    m_collected_tab = m_tab;
    m_collected_nl = m_nl;
}

void c_xml_writer::put(std::string_view text) {
    if (m_is_collecting) {
        m_output.append_long(text);
    } else {
        m_output.insert(text);
    }
}

void c_xml_writer::put_namespace(std::string_view prefix, std::string_view uri) {
    put(" xmlns");
    if (!prefix.empty()) {
        put(":");
        put(prefix);
    }
    put("=\"");
    put(uri);
    put("\"");
}

void c_xml_writer::add_namespace(const std::string& prefix, const std::string& uri) {
    m_namespaces.emplace_back(prefix, uri);
}

void c_xml_writer::add_schema_location(const std::string& ns, const std::string& location) {
    m_schema_locations.emplace_back(ns, location);
}

void c_xml_writer::write_ns_attrs(bool need_xsi) {
    if (m_ns_map != nullptr) {
        for (const s_ns_map* row = m_ns_map; row->uri != nullptr; ++row) put_namespace(row->prefix, row->uri);
    }
    for (const auto& [prefix, uri] : m_namespaces) put_namespace(prefix, uri);
    if (need_xsi || !m_schema_locations.empty()) put_namespace("xsi", k_xsi_uri);
    if (!m_schema_locations.empty()) put_schema_locations();
    m_ns_attrs_written = true;
    // Nothing is printed here: an override learns in this way that the attributes are through.
    endl();
}

void c_xml_writer::put_schema_locations() {
    const auto& [first_ns, first_location] = m_schema_locations.front();
    if (first_ns.empty()) {
        // One hint without a namespace excludes all others.
        put(" xsi:noNamespaceSchemaLocation=\"");
        put(first_location);
        put("\"");
        return;
    }
    put(" xsi:schemaLocation=\"");
    std::string_view separator;
    for (const auto& [ns, location] : m_schema_locations) {
        put(separator);
        put(ns);
        put(" ");
        put(location);
        separator = " ";
    }
    put("\"");
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

/// Behind an exception: what was printed before it stays printed, unless the stream itself threw.
void c_printing::leave() noexcept {
    m_writer.m_is_collecting = false;
    try {
        m_writer.m_output.flush();
    } catch (...) {
        // The one that is on its way is the caller's to hear.
    }
}

}  // namespace lmx
