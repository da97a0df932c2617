// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The place of a read among the rows of a class: what is due next, on the plain way and by events.

#pragma once

#include <algorithm>
#include <cstddef>
#include <span>

#include "lmx/binding/storage.h"
#include "lmx/binding/table.h"

namespace lmx {

/// The level with which the reading of a class begins: its outermost base.
inline const s_class& first_level(const s_class& type) {
    const s_class* level = &type;
    while (level->base != nullptr) level = level->base;
    return *level;
}
/// The row that takes a name, by its token; null if none does.
inline const s_item* find_row(std::span<const s_item> rows, int token) {
    const auto row = std::find_if(rows.begin(), rows.end(), [token](const s_item& it) {
        return is_group(it) ? find_row(it.type->elements, token) != nullptr : it.token == token;
    });
    return row == rows.end() ? nullptr : &*row;
}

/// The row that is due.
struct s_due_row {
    explicit s_due_row(const s_class& first) : level(&first) {}

    const s_class* level;     ///< the class, or the base of it, whose rows are due
    std::size_t index = 0;    ///< the row
    bool is_entered = false;  ///< the row repeats, and this element has an entry of it already

    const s_item& row() const { return level->elements[index]; }
    bool is_at_end() const { return index == level->elements.size(); }
    void pass_over() {
        ++index;
        is_entered = false;
    }
    /// To the first row of the level behind; false if this was the level of the class itself.
    bool enter_next_level(const s_class& type) {
        if (&type == level) return false;
        const s_class* next = &type;
        while (next->base != level) next = next->base;
        *this = s_due_row(*next);
        return true;
    }
};

/// Where the reading of a class's content stands.
struct s_place : s_due_row {
    explicit s_place(const s_class& first) : s_due_row(first) {}

    bool is_begun = false;          ///< something was read
    const s_item* group = nullptr;  ///< a group that was read last: the event behind it is still part of it
};

/// What has to be done when the row that is due was read: to the row behind it, or to its next entry.
inline void step_behind(s_place* place) {
    const s_item& row = place->row();
    place->is_begun = true;
    place->group = is_group(row) ? &row : nullptr;
    place->is_entered = is_repeating(row);
    if (!place->is_entered) ++place->index;
}
/// The event behind a group has come: its flag rises.
inline void close_group(s_place* place, void* object) {
    if (place->group != nullptr) mark_set(*place->group, object);
    place->group = nullptr;
}
/// The first list of a level that is too short, or null.
const s_item* find_short_list(const s_class& level, const void* object);

}  // namespace lmx
