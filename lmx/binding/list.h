// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The storage of a repeating item: entries in blocks and an index of them in order, so that no entry is ever moved:
/// references stay good while the list grows, shrinks or is reordered.

#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "lmx/binding/part_memory.h"
#include "lmx/binding/stored_type.h"
#include "lmx/export.h"

namespace lmx {

/// The part of a list that doesn't depend on the entries' type, for the functions that walk tables.
///
/// Most lists hold one entry: that one is allocated alone and is all that the list points to. A second entry brings
/// a head with the index, and blocks of room for entries.
class VYR_EXPORT c_list_base {
public:
    std::size_t size() const {
        if (m_storage == nullptr) return 0;
        return has_head() ? head()->size : 1;
    }
    /// No bounds check.
    void* entry(std::size_t index) const { return has_head() ? head()->entries()[index] : m_storage; }
    void swap(c_list_base& other) noexcept { std::swap(m_storage, other.m_storage); }

    // All entries of a list are made and ended with the same type.

    /// Puts a default entry before `index`, or at the end if `index` is at or beyond it. Leaves the list as it was
    /// if that fails.
    void* emplace(std::size_t index, const s_stored_type& type);
    void* append(const s_stored_type& type) { return emplace(size(), type); }
    /// Makes room at once where one entry is expected to be followed by others, up to `count` in all. Of other lists
    /// nothing changes.
    void expect(std::size_t count, const s_stored_type& type);
    /// Ends an entry and closes the gap. No bounds check.
    void remove(std::size_t index, const s_stored_type& type) noexcept;
    /// Ends all entries, from the back, and frees their storage.
    void clear(const s_stored_type& type) noexcept;

protected:
    c_list_base() = default;
    ~c_list_base() = default;
    c_list_base(const c_list_base&) = delete;
    c_list_base& operator=(const c_list_base&) = delete;

private:
    struct s_block;
    /// Followed in memory by the index, which has an element for each place at least.
    struct s_head {
        std::size_t size;
        std::size_t capacity;      ///< of the index
        std::size_t unused_count;  ///< places at the end of the last block that never held an entry
        std::byte* unused;
        void* freed;      ///< a place that held one; it begins with a pointer to the next
        s_block* blocks;  ///< the last one first
        void* first;      ///< the place that was allocated alone

        void** entries() { return reinterpret_cast<void**>(this + 1); }
    };

    bool has_head() const { return (reinterpret_cast<std::uintptr_t>(m_storage) & 1) != 0; }
    s_head* head() const { return reinterpret_cast<s_head*>(m_storage - 1); }

    void reserve_index(std::size_t capacity);
    void reserve_places(std::size_t added, std::size_t entry_size);
    void free_storage() noexcept;

    std::byte* m_storage = nullptr;  ///< null, the only entry, or one byte behind the head's start
};

/// A list that owns objects of type `T`. `T` may be incomplete where only `size` and const access are used.
template <class T>
class c_list : public c_list_base {
public:
    c_list() = default;
    ~c_list() { clear(); }

    /// No bounds check.
    const T& operator[](std::size_t index) const { return *static_cast<const T*>(entry(index)); }
    T& operator[](std::size_t index) { return *static_cast<T*>(entry(index)); }
    /// Undefined on an empty list.
    T& back() { return (*this)[size() - 1]; }

    /// Appends default objects until `index` exists.
    T& grow_to(std::size_t index) {
        while (size() <= index) append();
        return (*this)[index];
    }
    T& append() { return insert(size()); }
    T& insert(std::size_t index) {
        static_assert(alignof(T) <= k_part_alignment && sizeof(T) >= sizeof(void*));
        return *static_cast<T*>(emplace(index, k_stored_type<T>));
    }
    /// No bounds check.
    void erase(std::size_t index) { remove(index, k_stored_type<T>); }
    /// Deletes from the back.
    void clear() { c_list_base::clear(k_stored_type<T>); }
};

}  // namespace lmx
