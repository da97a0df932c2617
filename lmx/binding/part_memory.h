// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The memory of what an object is made of: entries of lists, optional children, chosen alternatives.
///
/// What a thread makes while it loads a document lies side by side in chunks, each of which is freed with the last
/// part in it, by whatever thread and whenever that goes. At other times each part has memory of its own.

#pragma once

#include <cstddef>
#include <memory>

#include "lmx/binding/stored_type.h"
#include "lmx/export.h"

namespace lmx {

inline constexpr std::size_t k_part_alignment = 8;

/// Throws `std::bad_alloc`.
VYR_EXPORT void* allocate_part(std::size_t size);
/// Takes null too.
VYR_EXPORT void free_part(void* part) noexcept;

struct s_part_deleter {
    void operator()(void* part) const noexcept { free_part(part); }
};
/// Memory of a part that holds no object yet.
using part_memory = std::unique_ptr<void, s_part_deleter>;

/// A default object.
inline void* make_part(const s_stored_type& type) {
    part_memory memory(allocate_part(type.size));
    type.construct(memory.get());
    return memory.release();
}
/// Takes null too.
inline void end_part(void* object, const s_stored_type& type) noexcept {
    if (object != nullptr && type.destroy != nullptr) type.destroy(object);
    free_part(object);
}

/// For as long as this lives, parts that this thread makes lie in chunks.
class c_part_chunks {
public:
    c_part_chunks();
    c_part_chunks(const c_part_chunks&) = delete;
    c_part_chunks& operator=(const c_part_chunks&) = delete;
    ~c_part_chunks();

    /// Room for a part and its head, or null if that is too large to share a chunk. Throws `std::bad_alloc`.
    void* take(std::size_t size);

    struct s_chunk;

private:
    void open_chunk();
    void close_chunk() noexcept;

    s_chunk* m_chunk = nullptr;
    std::byte* m_next = nullptr;
    std::byte* m_end = nullptr;
    std::size_t m_count = 0;  ///< of the parts in the chunk, ended ones included
    std::size_t m_next_size;
    c_part_chunks* const m_outer;
};

}  // namespace lmx
