// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Names split at their colons.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "lmx/reader/namespaces.h"

namespace lmx {

/// The part of a name ahead of its first colon, and the part behind it.
inline std::string_view prefix_of(std::string_view name) {
    const std::size_t colon = name.find(':');
    return name.substr(0, colon == name.npos ? 0 : colon);
}
inline std::string_view local_part(std::string_view name) { return name.substr(name.find(':') + 1); }

class c_cracked_name {
public:
    /// Splits at the first colon and looks the prefix up; without one, the default namespace.
    void set(const c_xml_local* scope, const std::string& name) {
        m_full_name = name;
        const std::size_t colon = name.find(':');
        m_has_ns_prefix = colon != std::string::npos;
        m_prefix_length = m_has_ns_prefix ? colon : 0;
        m_is_split = false;
        m_ns_id = scope->find_namespace_id(get_prefix_view());
    }

    const std::string& get_full_name() const { return m_full_name; }
    const std::string& get_local_name() const { return split().m_local_name; }
    const std::string& get_ns_prefix() const { return split().m_ns_prefix; }
    /// The same as views into the full name, which cost no copy. The local one is null-terminated.
    std::string_view get_local_view() const {
        return std::string_view(m_full_name).substr(m_has_ns_prefix ? m_prefix_length + 1 : 0);
    }
    std::string_view get_prefix_view() const { return std::string_view(m_full_name).substr(0, m_prefix_length); }
    bool get_has_ns_prefix() const { return m_has_ns_prefix; }
    int get_ns_id() const { return m_ns_id; }
    /// As of an element: 1 without a prefix and a default namespace; an unbound prefix stays 0.
    int get_element_ns_id() const { return m_ns_id == k_unbound_ns && !m_has_ns_prefix ? k_no_ns : m_ns_id; }

private:
    /// The parts are copied when they are first asked for.
    const c_cracked_name& split() const {
        if (!m_is_split) {
            m_local_name = get_local_view();
            m_ns_prefix = get_prefix_view();
            m_is_split = true;
        }
        return *this;
    }

    std::string m_full_name;
    bool m_has_ns_prefix = false;
    int m_ns_id = k_unbound_ns;
    std::size_t m_prefix_length = 0;
    mutable bool m_is_split = false;
    mutable std::string m_local_name;
    mutable std::string m_ns_prefix;
};

}  // namespace lmx
