// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/namespaces.h"

#include <algorithm>

namespace lmx {

int* c_name_table::find(std::string_view name) {
    if (m_index == nullptr) {
        const auto row =
            std::find_if(m_rows.begin(), m_rows.end(), [name](const auto& pair) { return pair.first == name; });
        return row == m_rows.end() ? nullptr : &row->second;
    }
    const auto entry = m_index->find(name);
    return entry == m_index->end() ? nullptr : &m_rows[entry->second].second;
}

void c_name_table::add(std::string_view name, int id) {
    m_rows.emplace_back(name, id);
    if (m_rows.size() <= k_few) return;
    if (m_index == nullptr) {
        m_index = std::make_unique<std::map<std::string, std::size_t, std::less<>>>();
        for (std::size_t i = 0; i < m_rows.size(); ++i) m_index->emplace(m_rows[i].first, i);
    } else {
        m_index->emplace(name, m_rows.size() - 1);
    }
}

void c_name_table::clear() {
    m_rows.clear();
    m_index.reset();
}

const char* c_name_table::find_name(int id) const {
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [id](const auto& pair) { return pair.second == id; });
    return row == m_rows.end() ? nullptr : row->first.c_str();
}

void c_enumerated_namespaces::clear() {
    m_uris.clear();
    m_rows_by_id.clear();
}

void c_enumerated_namespaces::start() {
    clear();
    m_next_id = k_first_free_ns;
    add_namespace(k_xsi_uri, k_xsi_ns);
    add_namespace(k_xml_uri, k_xml_ns);
}

int c_enumerated_namespaces::add_namespace(std::string_view uri) {
    if (const int* const id = m_uris.find(uri)) return *id;
    record(uri, m_next_id);
    return m_next_id++;
}

void c_enumerated_namespaces::add_namespace(std::string_view uri, int id) {
    if (m_uris.find(uri) == nullptr) record(uri, id);
    m_next_id = std::max(m_next_id, id + 1);
}

void c_enumerated_namespaces::record(std::string_view uri, int id) {
    m_rows_by_id.emplace(id, m_uris.rows().size());
    m_uris.add(uri, id);
}

const char* c_enumerated_namespaces::find_namespace_from_id(int id) const {
    const auto row = m_rows_by_id.find(id);
    return row == m_rows_by_id.end() ? nullptr : m_uris.rows()[row->second].first.c_str();
}

int c_enumerated_namespaces::find_namespace(std::string_view uri) const {
    const int* const id = m_uris.find(uri);
    return id == nullptr ? k_unbound_ns : *id;
}

void c_xml_local::set_parent(c_xml_local* parent) {
    m_parent = parent;
    m_bindings_owner = parent == nullptr ? nullptr : parent->m_bindings_owner;
}

void c_xml_local::add_namespace(std::string_view prefix, int id) {
    m_bindings_owner = this;
    if (int* const bound = m_bindings.find(prefix)) {
        *bound = id;
    } else {
        m_bindings.add(prefix, id);
    }
}

const c_xml_local* c_xml_local::outer_owner() const {
    return m_parent == nullptr ? nullptr : m_parent->m_bindings_owner;
}

int c_xml_local::find_namespace_id(std::string_view prefix) const {
    if (prefix == "xml") return k_xml_ns;
    for (const c_xml_local* scope = m_bindings_owner; scope != nullptr; scope = scope->outer_owner()) {
        if (const int* const id = scope->m_bindings.find(prefix)) return *id;
    }
    return k_unbound_ns;
}

const char* c_xml_local::find_namespace_prefix(int id) const {
    if (id == k_xml_ns) return "xml";
    for (const c_xml_local* scope = m_bindings_owner; scope != nullptr; scope = scope->outer_owner()) {
        if (const char* const prefix = scope->m_bindings.find_name(id)) return prefix;
    }
    return nullptr;
}

const char* c_xml_local::find_first_namespace_prefix(int id) const {
    if (id == k_xml_ns) return "xml";
    const char* outermost = nullptr;
    for (const c_xml_local* scope = m_bindings_owner; scope != nullptr; scope = scope->outer_owner()) {
        if (const char* const prefix = scope->m_bindings.find_name(id)) outermost = prefix;
    }
    return outermost;
}

void c_xml_local::clear() {
    if (m_bindings.rows().empty()) return;
    m_bindings.clear();
    m_bindings_owner = m_parent == nullptr ? nullptr : m_parent->m_bindings_owner;
}

}  // namespace lmx
