// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Names with a number each, as a document makes them: few as a rule, and as many as it likes.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "lmx/export.h"

namespace lmx {

/// Makes room by a quarter, where a container's own growth would take twice what a hostile document has filled.
template <class Container>
void make_room(Container* items, std::size_t count) {
    constexpr std::size_t small = 4096;
    if (items->capacity() - items->size() >= count || items->capacity() < small) return;
    // A string's own `reserve` at least doubles.
    Container larger;
    larger.reserve(items->size() + items->size() / 4 + count);
    larger.insert(larger.end(), items->begin(), items->end());
    *items = std::move(larger);
}

/// Rows of a name and a number in order of entry: searched in place while few, by a balanced tree when there are
/// many (the author of a document could choose names of one hash). Each name is stored once, all in one text.
class VYR_EXPORT c_name_table {
public:
    static constexpr std::size_t k_no_row = static_cast<std::size_t>(-1);

    std::size_t size() const { return m_rows.size(); }
    /// Good until the next name is added; null-terminated.
    std::string_view name(std::size_t row) const;
    int number(std::size_t row) const { return m_rows[row].number; }
    void set_number(std::size_t row, int number) { m_rows[row].number = number; }

    std::size_t find(std::string_view name) const;
    /// The row of the first name with that number.
    std::size_t find_number(int number) const;
    /// The row of a name, and whether it is a new one, which gets the number. The name must be no part of this table.
    /// A table of more than 4 GB is `std::bad_alloc`.
    std::pair<std::size_t, bool> enter(std::string_view name, int number);
    void clear();

private:
    static constexpr std::size_t k_few = 12;
    static constexpr std::size_t k_none = (1U << 29U) - 1;

    struct s_row {
        std::uint32_t name_end;  ///< in the names, behind its null
        int number;
        // The tree; rows that aren't in it yet are leaves.
        std::uint64_t left : 29 = k_none;
        std::uint64_t right : 29 = k_none;
        std::uint64_t level : 6 = 1;
    };

    /// The way from the root to where a name is or would be.
    struct s_path {
        static constexpr std::size_t k_deepest = 64;  ///< twice the logarithm of the most rows and some
        std::size_t rows[k_deepest];
        std::size_t depth = 0;
        bool is_left = false;  ///< of the last row
    };

    std::size_t find_in_place(std::string_view name) const;
    std::size_t find_in_tree(std::string_view name, s_path* path) const;
    void attach(const s_path& path, std::size_t row);
    std::size_t skew(std::size_t root);
    std::size_t split(std::size_t root);

    std::vector<s_row> m_rows;
    std::string m_names;
    std::size_t m_root = k_none;  ///< of all rows once they are more than a few
};

}  // namespace lmx
