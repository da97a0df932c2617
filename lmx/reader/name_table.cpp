// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/name_table.h"

#include <algorithm>
#include <limits>
#include <new>

namespace lmx {

std::string_view c_name_table::name(std::size_t row) const {
    const std::size_t start = row == 0 ? 0 : m_rows[row - 1].name_end;
    return {m_names.data() + start, m_rows[row].name_end - 1 - start};
}

std::size_t c_name_table::find(std::string_view text) const {
    if (m_root == k_none) return find_in_place(text);
    s_path path;
    return find_in_tree(text, &path);
}

std::size_t c_name_table::find_in_place(std::string_view text) const {
    std::size_t row = 0;
    while (row < m_rows.size() && name(row) != text) ++row;
    return row < m_rows.size() ? row : k_no_row;
}

std::size_t c_name_table::find_in_tree(std::string_view text, s_path* path) const {
    for (std::size_t row = m_root; row != k_none;) {
        const int order = text.compare(name(row));
        if (order == 0) return row;
        path->rows[path->depth++] = row;
        path->is_left = order < 0;
        row = path->is_left ? m_rows[row].left : m_rows[row].right;
    }
    return k_no_row;
}

std::size_t c_name_table::find_number(int number) const {
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [=](const s_row& it) { return it.number == number; });
    return row == m_rows.end() ? k_no_row : static_cast<std::size_t>(row - m_rows.begin());
}

std::pair<std::size_t, bool> c_name_table::enter(std::string_view text, int number) {
    s_path path;
    const std::size_t found = m_root == k_none ? find_in_place(text) : find_in_tree(text, &path);
    if (found != k_no_row) return {found, false};
    if (m_rows.size() == k_none || text.size() >= std::numeric_limits<std::uint32_t>::max() - m_names.size()) {
        throw std::bad_alloc();
    }
    make_room(&m_rows, 1);
    make_room(&m_names, text.size() + 1);
    // Also what was left when memory ran out.
    m_names.resize(m_rows.empty() ? 0 : m_rows.back().name_end);
    m_names.append(text);
    m_names += '\0';
    m_rows.push_back({static_cast<std::uint32_t>(m_names.size()), number});
    const std::size_t row = m_rows.size() - 1;
    if (m_root != k_none) {
        attach(path, row);
    } else if (m_rows.size() > k_few) {
        for (std::size_t each = 0; each <= row; ++each) {
            path = {};
            find_in_tree(name(each), &path);
            attach(path, each);
        }
    }
    return {row, true};
}

void c_name_table::clear() {
    m_rows.clear();
    m_names.clear();
    m_root = k_none;
}

// An AA tree: a right child may be of its parent's level, a left one and a right one's right one are below.

void c_name_table::attach(const s_path& path, std::size_t row) {
    std::size_t child = row;
    int kept = 0;
    for (std::size_t i = path.depth; i-- > 0;) {
        const std::size_t parent = path.rows[i];
        const bool is_left = i + 1 == path.depth ? path.is_left : m_rows[parent].left == path.rows[i + 1];
        if (is_left) {
            m_rows[parent].left = child & k_none;
        } else {
            m_rows[parent].right = child & k_none;
        }
        child = split(skew(parent));
        // What one that stays has below it may still be of its parent's level; further up nothing can change.
        kept = child == parent ? kept + 1 : 0;
        if (kept == 2) return;
    }
    m_root = child;
}

std::size_t c_name_table::skew(std::size_t root) {
    const std::size_t left = m_rows[root].left;
    if (left == k_none || m_rows[left].level != m_rows[root].level) return root;
    m_rows[root].left = m_rows[left].right;
    m_rows[left].right = root & k_none;
    return left;
}

std::size_t c_name_table::split(std::size_t root) {
    const std::size_t right = m_rows[root].right;
    if (right == k_none || m_rows[right].right == k_none) return root;
    if (m_rows[m_rows[right].right].level != m_rows[root].level) return root;
    m_rows[root].right = m_rows[right].left;
    m_rows[right].left = root & k_none;
    m_rows[right].level = (m_rows[right].level + 1U) & 63U;
    return right;
}

}  // namespace lmx
