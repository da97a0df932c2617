// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/get_with_entities.h"

#include <algorithm>
#include <limits>
#include <new>
#include <string>
#include <utility>

namespace lmx {

c_entity_table::~c_entity_table() = default;

void c_entity_table::add(std::string_view name, std::string_view value) {
    if (m_texts.size() == static_cast<std::size_t>(std::numeric_limits<int>::max())) throw std::bad_alloc();
    make_room(&m_texts, 1);
    char* const memory = allocate(sizeof(s_entity_text) + value.size() + 1);
    char* const data = memory + sizeof(s_entity_text);
    *std::copy(value.begin(), value.end(), data) = 0;
    m_texts.push_back(new (memory) s_entity_text{data, value.size()});
    const int number = static_cast<int>(m_texts.size() - 1);
    m_names.set_number(m_names.enter(name, number).first, number);
}

char* c_entity_table::allocate(std::size_t size) {
    constexpr std::size_t chunk_size = 4096;
    constexpr std::size_t unit = alignof(s_entity_text);
    size = (size + unit - 1) / unit * unit;
    if (size > m_free_size) {
        // What is left stays of use when a long text gets a chunk to itself.
        const bool is_long = size > chunk_size / 8;
        const std::size_t taken = is_long ? size : chunk_size;
        m_chunks.push_back(std::make_unique_for_overwrite<char[]>(taken));
        if (is_long) return m_chunks.back().get();
        m_free = m_chunks.back().get();
        m_free_size = taken;
    }
    char* const memory = m_free;
    m_free += size;
    m_free_size -= size;
    return memory;
}

s_entity_text* c_entity_table::find(std::string_view name) const {
    const std::size_t row = m_names.find(name);
    return row == c_name_table::k_no_row ? nullptr : m_texts[static_cast<std::size_t>(m_names.number(row))];
}

void c_entity_table::clear() { m_names.clear(); }

int c_get_with_entities::refill() {
    while (!m_entity_stack.empty()) {
        s_entity_input& top = m_entity_stack.back();
        if (is_shut()) return -1;
        if (!m_given_back.empty() && m_given_back.back().depth == m_entity_stack.size()) {
            const int value = m_given_back.back().value;
            m_given_back.pop_back();
            return value;
        }
        if (top.position != top.text->size) {
            const int byte = static_cast<signed char>(top.text->data[top.position++]);
            return byte == -1 ? -257 : byte;
        }
        close_entity();
    }
    return c_get_as_utf8::refill();
}

void c_get_with_entities::give_back(int value) {
    const std::size_t depth = m_entity_stack.size();
    if (depth == 0) return c_get_as_utf8::give_back(value);
    // As everywhere, a fourth pushes out the oldest.
    const auto is_own = [depth](const s_given_back& row) { return row.depth == depth; };
    if (m_given_back.size() >= 3 && std::all_of(m_given_back.end() - 3, m_given_back.end(), is_own)) {
        m_given_back.erase(m_given_back.end() - 3);
    }
    m_given_back.push_back({depth, value});
}

bool c_get_with_entities::at_end_of_input() const {
    // An entity that was read to its end leaves the stack at the next character only.
    const auto is_used_up = [](const s_entity_input& input) { return input.position == input.text->size; };
    return is_shut() || (m_given_back.empty() && c_get_as_utf8::at_end_of_input() &&
                         std::all_of(m_entity_stack.begin(), m_entity_stack.end(), is_used_up));
}

void c_get_with_entities::open_entity(s_entity_text& text) {
    make_room(&m_entity_stack, 1);
    m_entity_stack.push_back({&text, 0});
    text.is_open_as_input = true;
    cover();
}

void c_get_with_entities::close_entity() {
    s_entity_text* const text = m_entity_stack.back().text;
    text->is_open_as_input = false;
    m_entity_stack.pop_back();
    if (!m_borrowed.empty() && m_borrowed.back().get() == text) m_borrowed.pop_back();
}

bool c_get_with_entities::push_entity(s_entity_text& text) {
    const auto is_it = [&text](const auto& borrowed) { return borrowed->data == text.data; };
    if (text.is_open_as_input || std::any_of(m_borrowed.begin(), m_borrowed.end(), is_it)) {
        report_recursion(text.view());
        return false;
    }
    open_entity(text);
    return true;
}

bool c_get_with_entities::set_input_entity_value(const char* value) {
    auto text = std::make_unique<s_entity_text>(s_entity_text{value, std::char_traits<char>::length(value)});
    const auto is_it = [value](const s_entity_input& input) { return input.text->data == value; };
    if (std::any_of(m_entity_stack.begin(), m_entity_stack.end(), is_it)) {
        report_recursion(text->view());
        return false;
    }
    m_borrowed.push_back(std::move(text));
    open_entity(*m_borrowed.back());
    return true;
}

void c_get_with_entities::report_recursion(std::string_view value) {
    error(scanner_fault::recursive_entity, {value});
}

bool c_get_with_entities::charge_reference(std::size_t size, std::size_t written) {
    if (written > 0 && size <= written) return true;
    m_expansion_work += std::max<std::uint64_t>(k_least_reference_cost, size);
    if (m_expansion_work <= k_expansion_base + k_expansion_per_byte * get_bytes_read()) return true;
    error(scanner_fault::large_expansion);
    return false;
}

bool c_get_with_entities::get_general_entity(const char* name, const char** value) const {
    const s_entity_text* const found = m_general_entities.find(name);
    if (found != nullptr) *value = found->data;
    return found != nullptr;
}

bool c_get_with_entities::get_parameter_entity(const char* name, const char** value) const {
    const s_entity_text* const found = m_parameter_entities.find(name);
    if (found != nullptr) *value = found->data;
    return found != nullptr;
}

void c_get_with_entities::rewind() {
    m_general_entities.clear();
    m_parameter_entities.clear();
    c_get_as_utf8::rewind();
}

}  // namespace lmx
