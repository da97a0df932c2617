// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/get_with_entities.h"

#include <algorithm>

namespace lmx {

c_entity_table::~c_entity_table() = default;

void c_entity_table::add(std::string_view name, std::string_view value) {
    m_storage.push_back(std::make_unique<const std::string>(value));
    m_values.insert_or_assign(std::string(name), m_storage.back().get());
}

const std::string* c_entity_table::find(std::string_view name) const {
    const auto row = m_values.find(name);
    return row == m_values.end() ? nullptr : row->second;
}

void c_entity_table::clear() { m_values.clear(); }

int c_get_with_entities::get_from_entity() {
    while (!m_entity_stack.empty()) {
        s_entity_input& top = m_entity_stack.back();
        if (is_shut()) return -1;
        if (!top.m_unget.empty()) return top.m_unget.get();
        if (top.m_next != top.m_end) {
            const int byte = static_cast<signed char>(*top.m_next++);
            return byte == -1 ? -257 : byte;
        }
        m_open_texts.erase(top.m_start);
        m_entity_stack.pop_back();
    }
    return c_get_as_utf8::get();
}

bool c_get_with_entities::at_end_of_input() const {
    // An entity that was read to its end leaves the stack at the next character only.
    const auto is_used_up = [](const s_entity_input& input) {
        return input.m_next == input.m_end && input.m_unget.empty();
    };
    return is_shut() || (std::all_of(m_entity_stack.begin(), m_entity_stack.end(), is_used_up) &&
                         c_get_as_utf8::at_end_of_input());
}

bool c_get_with_entities::push_entity(const char* value, std::size_t size) {
    if (!m_open_texts.insert(value).second) {
        report_recursion({value, size});
        return false;
    }
    m_entity_stack.push_back({value, value + size, value, {}});
    return true;
}

void c_get_with_entities::report_recursion(std::string_view value) {
    error(ELMX_TYPE_FATAL, ELMX_BAD_DTD, "Recursive entity definition for: " + std::string(value));
}

bool c_get_with_entities::charge_reference(std::size_t size, std::size_t written) {
    if (written > 0 && size <= written) return true;
    m_expansion_work += std::max<std::uint64_t>(k_least_reference_cost, size);
    if (m_expansion_work <= k_expansion_base + k_expansion_per_byte * get_bytes_read()) return true;
    error(ELMX_TYPE_FATAL, ELMX_BAD_DTD, "Entity expansion too large");
    return false;
}

bool c_get_with_entities::get_general_entity(const char* name, const char** value) const {
    const std::string* const found = m_general_entities.find(name);
    if (found != nullptr) *value = found->c_str();
    return found != nullptr;
}

bool c_get_with_entities::get_parameter_entity(const char* name, const char** value) const {
    const std::string* const found = m_parameter_entities.find(name);
    if (found != nullptr) *value = found->c_str();
    return found != nullptr;
}

void c_get_with_entities::rewind() {
    m_general_entities.clear();
    m_parameter_entities.clear();
    c_get_as_utf8::rewind();
}

}  // namespace lmx
