// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// For the library's own sources only.

#pragma once

#if defined(__MINGW32__)
#include <pthread.h>

#include <memory>
#include <new>
#endif

namespace lmx {

/// The calling thread's own object of a type, which ends with the thread.
template <class T>
T& thread_object() {
#if defined(__MINGW32__)
    // There, the memory of a thread's variables goes before they are destroyed.
    struct s_key {
        s_key() {
            if (pthread_key_create(&key, [](void* object) { delete static_cast<T*>(object); }) != 0)
                throw std::bad_alloc();
        }
        // Threads may outlive the library; what ends their objects goes with it.
        ~s_key() { pthread_key_delete(key); }
        pthread_key_t key{};
    };
    static const s_key own;
    if (void* const held = pthread_getspecific(own.key)) return *static_cast<T*>(held);
    auto made = std::make_unique<T>();
    if (pthread_setspecific(own.key, made.get()) != 0) throw std::bad_alloc();
    return *made.release();
#else
    static thread_local T object;
    return object;
#endif
}

}  // namespace lmx
