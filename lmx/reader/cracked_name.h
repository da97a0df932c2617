// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A name split at its colon.

#pragma once

#include <string>

#include "lmx/reader/namespaces.h"

namespace lmx {

class c_cracked_name {
public:
    /// Splits at the first colon and looks the prefix up; without one, the default namespace.
    void set(const c_xml_local* scope, const std::string& name) {
        m_full_name = name;
        const std::size_t colon = name.find(':');
        m_has_ns_prefix = colon != std::string::npos;
        m_ns_prefix.assign(name, 0, m_has_ns_prefix ? colon : 0);
        m_local_name.assign(name, m_has_ns_prefix ? colon + 1 : 0, std::string::npos);
        m_ns_id = scope->find_namespace_id(m_ns_prefix);
    }

    const std::string& get_full_name() const { return m_full_name; }
    const std::string& get_local_name() const { return m_local_name; }
    const std::string& get_ns_prefix() const { return m_ns_prefix; }
    bool get_has_ns_prefix() const { return m_has_ns_prefix; }
    int get_ns_id() const { return m_ns_id; }
    /// As of an element: 1 without a prefix and a default namespace; an unbound prefix stays 0.
    int get_element_ns_id() const { return m_ns_id == k_unbound_ns && !m_has_ns_prefix ? k_no_ns : m_ns_id; }

private:
    std::string m_full_name;
    bool m_has_ns_prefix = false;
    int m_ns_id = k_unbound_ns;
    std::string m_local_name;
    std::string m_ns_prefix;
};

}  // namespace lmx
