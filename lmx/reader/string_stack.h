// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Names of open elements, one behind the other in one buffer.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "lmx/export.h"

namespace lmx {

class c_string_stack {
public:
    /// In bytes.
    std::size_t get_stack_size() const { return m_bytes.size(); }
    /// In names.
    std::size_t get_depth() const { return m_depth; }

    void push(std::string_view name) {
        m_bytes.append(name);
        m_bytes += '\0';
        ++m_depth;
    }
    void cut(std::size_t size) {
        m_bytes.resize(size);
        --m_depth;
    }
    const char* get_str(std::size_t offset) const { return m_bytes.data() + offset; }

    /// The last name, which holds no null. There must be one.
    const char* top() const { return get_str(top_offset()); }
    void pop() { cut(top_offset()); }

private:
    /// Behind the null of the name before; the numbers would be larger than most names.
    std::size_t top_offset() const { return m_bytes.size() == 1 ? 0 : m_bytes.rfind('\0', m_bytes.size() - 2) + 1; }

    std::string m_bytes;
    std::size_t m_depth = 0;
};

/// One name on the stack, for as long as this object lives.
class c_string_stack_node {
public:
    c_string_stack_node(c_string_stack& stack, std::string_view name)
        : m_stack(stack), m_offset(stack.get_stack_size()), m_length(name.size()) {
        stack.push(name);
    }
    c_string_stack_node(const c_string_stack_node&) = delete;
    c_string_stack_node& operator=(const c_string_stack_node&) = delete;
    ~c_string_stack_node() { m_stack.cut(m_offset); }

    /// Good until another name is pushed.
    const char* get_str() const { return m_stack.get_str(m_offset); }
    std::string_view get_name() const { return {get_str(), m_length}; }

    bool operator==(const std::string& name) const { return name == get_name(); }
    bool operator!=(const std::string& name) const { return !(*this == name); }

private:
    c_string_stack& m_stack;
    std::size_t m_offset;
    std::size_t m_length;
};

}  // namespace lmx
