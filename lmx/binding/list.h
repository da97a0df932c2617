// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The storage of a repeating item: a vector of owned objects, so that references to entries stay good while
/// the list grows, shrinks or is reordered.

#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "lmx/export.h"

namespace lmx {

/// The part of a list that doesn't depend on the entries' type, for the functions that walk tables.
/// Owns nothing: the typed list or the caller disposes of entries.
class VYR_EXPORT c_list_base {
public:
    std::size_t size() const { return m_entries.size(); }
    void* entry(std::size_t index) const { return m_entries[index]; }
    /// Makes room for one more entry; after it, `push` can't fail.
    void reserve_one();
    /// Takes an entry that the list will own.
    void push(void* entry) { m_entries.push_back(entry); }
    void swap(c_list_base& other) noexcept { m_entries.swap(other.m_entries); }

protected:
    c_list_base() = default;
    ~c_list_base() = default;
    c_list_base(const c_list_base&) = delete;
    c_list_base& operator=(const c_list_base&) = delete;

    /// Puts an entry before `index`, or at the end if `index` is at or beyond it.
    void insert(std::size_t index, void* entry);
    /// Takes an entry out and closes the gap; the caller disposes of it.
    void* take(std::size_t index);

private:
    std::vector<void*> m_entries;
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
    T& append() {
        reserve_one();
        push(new T());
        return back();
    }
    T& insert(std::size_t index) {
        reserve_one();
        T* const entry = new T();
        c_list_base::insert(index, entry);
        return *entry;
    }
    /// No bounds check.
    void erase(std::size_t index) { delete static_cast<T*>(take(index)); }
    /// Deletes from the back.
    void clear() {
        while (size() > 0) erase(size() - 1);
    }
};

}  // namespace lmx
