// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// How an object of some type is made and ended in storage that somebody else owns, with the type taken away.

#pragma once

#include <cstddef>
#include <new>
#include <type_traits>

namespace lmx {

struct s_stored_type {
    std::size_t size;
    void (*construct)(void* storage);  ///< a default object
    void (*destroy)(void* object);     ///< null if there is nothing to do
};

namespace detail {

template <class T>
void construct(void* storage) {
    ::new (storage) T();
}
template <class T>
void destroy_in_place(void* object) {
    static_cast<T*>(object)->T::~T();
}
template <class T>
constexpr s_stored_type make_stored_type() {
    if constexpr (std::is_trivially_destructible_v<T>) {
        return {sizeof(T), construct<T>, nullptr};
    } else {
        return {sizeof(T), construct<T>, destroy_in_place<T>};
    }
}

}  // namespace detail

template <class T>
inline constexpr s_stored_type k_stored_type = detail::make_stored_type<T>();

}  // namespace lmx
