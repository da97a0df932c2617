// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What a program takes of the heap, the library's share included. It replaces the allocation functions, so that one
/// source of a program may include it.

#pragma once

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace vyr_test {

inline std::atomic<std::size_t> heap_in_use = 0;
inline std::atomic<std::size_t> heap_peak = 0;

/// Of a block, with what the allocator keeps beside it.
inline std::size_t heap_size(void* block) { return malloc_usable_size(block) + sizeof(std::size_t); }

/// What a call takes at the most at one time.
template <class Call>
std::size_t heap_of(Call call) {
    const std::size_t before = heap_in_use;
    heap_peak = before;
    call();
    return heap_peak - before;
}

}  // namespace vyr_test

// Hidden names would stay among the program's own.
#pragma GCC visibility push(default)
void* operator new(std::size_t size) {
    void* const block = std::malloc(size);
    if (block == nullptr) throw std::bad_alloc();
    vyr_test::heap_in_use += vyr_test::heap_size(block);
    vyr_test::heap_peak = std::max(vyr_test::heap_peak.load(), vyr_test::heap_in_use.load());
    return block;
}
void operator delete(void* block) noexcept {
    if (block != nullptr) vyr_test::heap_in_use -= vyr_test::heap_size(block);
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }
#pragma GCC visibility pop
