// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Namespaces: URIs to numbers, and the scopes in which prefixes stand for numbers.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "lmx/export.h"
#include "lmx/ns_map.h"
#include "lmx/reader/name_table.h"

namespace lmx {

inline constexpr char k_xml_uri[] = "http://www.w3.org/XML/1998/namespace";

/// Numbers with a meaning of their own; documents' own URIs get 1000 and up.
enum namespace_id : int { k_unbound_ns = 0, k_no_ns = 1, k_xml_ns = 2, k_xsi_ns = 5, k_first_free_ns = 1000 };

/// URIs of a document and of the generated tables, by number.
class VYR_EXPORT c_enumerated_namespaces {
public:
    c_enumerated_namespaces() { start(); }

    /// The number of a URI; the next free one if it is new.
    int add_namespace(std::string_view uri);
    /// Records the number if the URI is new; numbers up to it are no longer free in any case.
    void add_namespace(std::string_view uri, int id);
    /// 0 when unknown.
    int find_namespace(std::string_view uri) const;
    /// Null when unknown.
    const char* find_namespace_from_id(int id) const;
    /// Empties the table only.
    void clear();
    /// Back to what a new table holds.
    void start();

private:
    int m_next_id = k_first_free_ns;
    c_name_table m_uris;
    std::vector<std::uint32_t> m_numbered;         ///< rows that got the next free number, which grows with them
    std::unordered_map<int, std::size_t> m_given;  ///< rows by the number that they were given
};

/// One namespace scope. Scopes without declarations are skipped by lookups.
class VYR_EXPORT c_xml_local {
public:
    c_xml_local() = default;
    explicit c_xml_local(c_xml_local* parent) { set_parent(parent); }
    c_xml_local(const c_xml_local&) = delete;
    c_xml_local& operator=(const c_xml_local&) = delete;

    /// Binds a prefix; the empty one is the default namespace. A prefix that is bound here gets the new number.
    void add_namespace(std::string_view prefix, int id);
    /// 0 when nothing binds the prefix.
    int find_namespace_id(std::string_view prefix) const;
    /// The nearest prefix of a number, and the outermost one; null if there is none.
    const char* find_namespace_prefix(int id) const;
    const char* find_first_namespace_prefix(int id) const;
    /// Drops this scope's bindings.
    void clear();
    /// This scope's prefixes and their numbers.
    const c_name_table& get_bindings() const { return m_bindings; }

protected:
    void set_parent(c_xml_local* parent);

private:
    const c_xml_local* outer_owner() const;

    c_xml_local* m_parent = nullptr;
    c_xml_local* m_bindings_owner = nullptr;
    c_name_table m_bindings;
};

}  // namespace lmx
