// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The storage of an optional child: nothing until it is touched, then an object that stays where it is for as long
/// as the item does.

#pragma once

#include "lmx/binding/part_memory.h"
#include "lmx/binding/stored_type.h"

namespace lmx {

/// The part that doesn't depend on the child's type, for the functions that walk tables.
class c_optional_child_base {
public:
    /// Null while the child has never been touched.
    void* object() const { return m_object; }
    void* touch(const s_stored_type& type) {
        if (m_object == nullptr) m_object = make_part(type);
        return m_object;
    }
    /// The objects change hands.
    void swap(c_optional_child_base& other) noexcept {
        void* const object = m_object;
        m_object = other.m_object;
        other.m_object = object;
    }

protected:
    c_optional_child_base() = default;
    ~c_optional_child_base() = default;
    c_optional_child_base(const c_optional_child_base&) = delete;
    c_optional_child_base& operator=(const c_optional_child_base&) = delete;

    void* m_object = nullptr;
};

template <class T>
class c_optional_child : public c_optional_child_base {
public:
    c_optional_child() = default;
    ~c_optional_child() { end_part(m_object, k_stored_type<T>); }

    /// The child, or a default object that all share.
    const T& get() const {
        if (m_object != nullptr) return *static_cast<const T*>(m_object);
        // Never ended: objects that outlive `main` may ask for it.
        static const T* const nothing = new T();
        return *nothing;
    }
    T& touch() { return *static_cast<T*>(c_optional_child_base::touch(k_stored_type<T>)); }
};

}  // namespace lmx
