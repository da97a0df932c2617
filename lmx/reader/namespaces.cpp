// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/namespaces.h"

#include <algorithm>

namespace lmx {

void c_enumerated_namespaces::clear() {
    m_uris.clear();
    m_numbered.clear();
    m_given.clear();
}

void c_enumerated_namespaces::start() {
    clear();
    m_next_id = k_first_free_ns;
    add_namespace(k_xsi_uri, k_xsi_ns);
    add_namespace(k_xml_uri, k_xml_ns);
}

int c_enumerated_namespaces::add_namespace(std::string_view uri) {
    const auto [row, is_new] = m_uris.enter(uri, m_next_id);
    if (!is_new) return m_uris.number(row);
    make_room(&m_numbered, 1);
    m_numbered.push_back(static_cast<std::uint32_t>(row));
    return m_next_id++;
}

void c_enumerated_namespaces::add_namespace(std::string_view uri, int id) {
    const auto [row, is_new] = m_uris.enter(uri, id);
    if (is_new) m_given.emplace(id, row);
    m_next_id = std::max(m_next_id, id + 1);
}

const char* c_enumerated_namespaces::find_namespace_from_id(int id) const {
    const auto numbered = std::lower_bound(m_numbered.begin(), m_numbered.end(), id,
                                           [this](std::uint32_t row, int it) { return m_uris.number(row) < it; });
    const bool is_numbered = numbered != m_numbered.end() && m_uris.number(*numbered) == id;
    const auto given = m_given.find(id);
    // Of several URIs of one number, the first.
    std::size_t row = is_numbered ? *numbered : c_name_table::k_no_row;
    if (given != m_given.end()) row = std::min(row, given->second);
    return row == c_name_table::k_no_row ? nullptr : m_uris.name(row).data();
}

int c_enumerated_namespaces::find_namespace(std::string_view uri) const {
    const std::size_t row = m_uris.find(uri);
    return row == c_name_table::k_no_row ? static_cast<int>(k_unbound_ns) : m_uris.number(row);
}

void c_xml_local::set_parent(c_xml_local* parent) {
    m_parent = parent;
    m_bindings_owner = parent == nullptr ? nullptr : parent->m_bindings_owner;
}

void c_xml_local::add_namespace(std::string_view prefix, int id) {
    m_bindings_owner = this;
    m_bindings.set_number(m_bindings.enter(prefix, id).first, id);
}

const c_xml_local* c_xml_local::outer_owner() const {
    return m_parent == nullptr ? nullptr : m_parent->m_bindings_owner;
}

int c_xml_local::find_namespace_id(std::string_view prefix) const {
    if (prefix == "xml") return k_xml_ns;
    for (const c_xml_local* scope = m_bindings_owner; scope != nullptr; scope = scope->outer_owner()) {
        const std::size_t row = scope->m_bindings.find(prefix);
        if (row != c_name_table::k_no_row) return scope->m_bindings.number(row);
    }
    return k_unbound_ns;
}

const char* c_xml_local::find_namespace_prefix(int id) const {
    if (id == k_xml_ns) return "xml";
    for (const c_xml_local* scope = m_bindings_owner; scope != nullptr; scope = scope->outer_owner()) {
        const std::size_t row = scope->m_bindings.find_number(id);
        if (row != c_name_table::k_no_row) return scope->m_bindings.name(row).data();
    }
    return nullptr;
}

const char* c_xml_local::find_first_namespace_prefix(int id) const {
    if (id == k_xml_ns) return "xml";
    const char* outermost = nullptr;
    for (const c_xml_local* scope = m_bindings_owner; scope != nullptr; scope = scope->outer_owner()) {
        const std::size_t row = scope->m_bindings.find_number(id);
        if (row != c_name_table::k_no_row) outermost = scope->m_bindings.name(row).data();
    }
    return outermost;
}

void c_xml_local::clear() {
    if (m_bindings.size() == 0) return;
    m_bindings.clear();
    m_bindings_owner = m_parent == nullptr ? nullptr : m_parent->m_bindings_owner;
}

}  // namespace lmx
