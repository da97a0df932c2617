// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The storage of an optional child: nothing until it is touched, then an object that stays where it is for as long
/// as the item does.

#pragma once

namespace lmx {

/// The part that doesn't depend on the child's type, for the functions that walk tables.
class c_optional_child_base {
public:
    /// Null while the child has never been touched.
    void* object() const { return m_object; }
    /// Takes an object made by the child's class; there must be none yet.
    void adopt(void* object) { m_object = object; }
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
    ~c_optional_child() { delete static_cast<T*>(m_object); }

    /// The child, or a default object that all share.
    const T& get() const {
        if (m_object != nullptr) return *static_cast<const T*>(m_object);
        // Never ended: objects that outlive `main` may ask for it.
        static const T* const nothing = new T();
        return *nothing;
    }
    T& touch() {
        if (m_object == nullptr) m_object = new T();
        return *static_cast<T*>(m_object);
    }
};

}  // namespace lmx
