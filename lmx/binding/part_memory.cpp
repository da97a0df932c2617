// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/part_memory.h"

#include <algorithm>
#include <atomic>
#include <limits>
#include <new>

namespace lmx {

/// Followed in memory by parts.
struct alignas(k_part_alignment) c_part_chunks::s_chunk {
    std::atomic<std::size_t> count;  ///< of the parts that are there
};

namespace {

/// Stands ahead of each part.
struct alignas(k_part_alignment) s_part_head {
    c_part_chunks::s_chunk* chunk;  ///< null for a part with memory of its own
};

constexpr std::size_t k_smallest_chunk = std::size_t{8} << 10U;
constexpr std::size_t k_largest_chunk = std::size_t{64} << 10U;
constexpr std::size_t k_largest_part = k_smallest_chunk / 2;

/// What an open chunk counts beside its parts, so that it doesn't come to nothing while parts are still added: that
/// needs no counting in step with the threads that may end some of them.
constexpr std::size_t k_open = std::numeric_limits<std::size_t>::max() / 2;

void leave_chunk(c_part_chunks::s_chunk* chunk, std::size_t count) noexcept {
    if (chunk->count.fetch_sub(count, std::memory_order_acq_rel) == count) ::operator delete(chunk);
}

#if defined(__SANITIZE_ADDRESS__)
#define LMX_PARTS_ALONE
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define LMX_PARTS_ALONE
#endif
#endif
constinit thread_local c_part_chunks* t_chunks = nullptr;

}  // namespace

void* allocate_part(std::size_t size) {
    const std::size_t whole =
        sizeof(s_part_head) + (size + k_part_alignment - 1) / k_part_alignment * k_part_alignment;
    if (t_chunks != nullptr) {
        if (void* const part = t_chunks->take(whole)) return part;
    }
    return ::new (::operator new(whole)) s_part_head{nullptr} + 1;
}

void free_part(void* part) noexcept {
    if (part == nullptr) return;
    s_part_head* const head = static_cast<s_part_head*>(part) - 1;
    if (head->chunk == nullptr) {
        ::operator delete(head);
    } else {
        leave_chunk(head->chunk, 1);
    }
}

c_part_chunks::c_part_chunks() : m_next_size(k_smallest_chunk), m_outer(t_chunks) {
#if !defined(LMX_PARTS_ALONE)  // which tells apart what has memory of its own
    t_chunks = this;
#endif
}

c_part_chunks::~c_part_chunks() {
    t_chunks = m_outer;
    close_chunk();
}

void* c_part_chunks::take(std::size_t size) {
    if (size > static_cast<std::size_t>(m_end - m_next)) {
        if (size > k_largest_part) return nullptr;
        open_chunk();
    }
    auto* const head = ::new (m_next) s_part_head{m_chunk};
    m_next += size;
    ++m_count;
    return head + 1;
}

void c_part_chunks::open_chunk() {
    void* const memory = ::operator new(m_next_size);
    close_chunk();
    m_chunk = ::new (memory) s_chunk{k_open};
    m_next = reinterpret_cast<std::byte*>(m_chunk + 1);
    m_end = static_cast<std::byte*>(memory) + m_next_size;
    m_next_size = std::min(2 * m_next_size, k_largest_chunk);
}

void c_part_chunks::close_chunk() noexcept {
    if (m_chunk != nullptr) leave_chunk(m_chunk, k_open - m_count);
    m_chunk = nullptr;
    m_count = 0;
}

}  // namespace lmx
