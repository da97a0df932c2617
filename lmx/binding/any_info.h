// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// An element of open content, kept as text.

#pragma once

#include <string>

#include "lmx/export.h"

namespace lmx {

/// One element as a document holds it: its namespace, its name as written there, and the whole of its markup.
/// All three are UTF-8.
class VYR_EXPORT c_any_info {
public:
    c_any_info() = default;
    c_any_info(const std::string& ns, const std::string& name, const std::string& value)
        : m_namespace(ns), m_name(name), m_value(value) {}

    const std::string& get_namespace() const { return m_namespace; }
    const std::string& get_name() const { return m_name; }
    const std::string& get_value() const { return m_value; }
    void set_namespace(const std::string& ns) { m_namespace = ns; }
    void set_name(const std::string& name) { m_name = name; }
    void set_value(const std::string& value) { m_value = value; }

private:
    std::string m_namespace;
    std::string m_name;
    std::string m_value;
};

}  // namespace lmx
