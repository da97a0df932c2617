// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Namespaces: URIs to numbers, and the scopes in which prefixes stand for numbers.

#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "lmx/export.h"
#include "lmx/ns_map.h"

namespace lmx {

inline constexpr char k_xml_uri[] = "http://www.w3.org/XML/1998/namespace";

/// Numbers with a meaning of their own; documents' own URIs get 1000 and up.
enum namespace_id : int { k_unbound_ns = 0, k_no_ns = 1, k_xml_ns = 2, k_xsi_ns = 5, k_first_free_ns = 1000 };

/// Pairs of a text and a number in order of entry: searched in place while few, by tree when there are many
/// (the author of a document could choose names of one hash).
class VYR_EXPORT c_name_table {
public:
    /// The number, or null.
    int* find(std::string_view name);
    const int* find(std::string_view name) const { return const_cast<c_name_table*>(this)->find(name); }
    /// The name must be new.
    void add(std::string_view name, int id);
    void clear();
    const std::vector<std::pair<std::string, int>>& rows() const { return m_rows; }
    /// The first name with that number, or null.
    const char* find_name(int id) const;

private:
    static constexpr std::size_t k_few = 12;

    std::vector<std::pair<std::string, int>> m_rows;
    std::unique_ptr<std::map<std::string, std::size_t, std::less<>>> m_index;  ///< beyond a few rows
};

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
    void record(std::string_view uri, int id);

    int m_next_id = k_first_free_ns;
    c_name_table m_uris;
    std::unordered_map<int, std::size_t> m_rows_by_id;
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
    const std::vector<std::pair<std::string, int>>& get_bindings() const { return m_bindings.rows(); }

protected:
    void set_parent(c_xml_local* parent);

private:
    const c_xml_local* outer_owner() const;

    c_xml_local* m_parent = nullptr;
    c_xml_local* m_bindings_owner = nullptr;
    c_name_table m_bindings;
};

}  // namespace lmx
