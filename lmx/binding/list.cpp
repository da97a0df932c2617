// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/list.h"

#include <algorithm>
#include <new>

namespace lmx {
namespace {

/// How many places a full list gets: spectra of 36 points fill theirs, and large entries are not kept waiting.
std::size_t places_to_add(std::size_t size, std::size_t entry_size) {
    constexpr std::size_t most_places = 32;
    constexpr std::size_t most_bytes = 1024;
    const std::size_t wanted = size == 1 ? 3 : std::min(2 * size, most_places);
    return std::max<std::size_t>(1, std::min(wanted, most_bytes / entry_size));
}

}  // namespace

/// Followed in memory by places for entries.
struct c_list_base::s_block {
    alignas(k_part_alignment) s_block* next;
};

void* c_list_base::emplace(std::size_t index, const s_stored_type& type) {
    if (m_storage == nullptr) {
        m_storage = static_cast<std::byte*>(make_part(type));
        return m_storage;
    }
    if (!has_head() || (head()->freed == nullptr && head()->unused_count == 0)) {
        reserve_places(places_to_add(size(), type.size), type.size);
    }
    s_head& list = *head();
    void* const place = list.freed != nullptr ? list.freed : list.unused;
    void* const next_freed = list.freed != nullptr ? *static_cast<void**>(place) : nullptr;
    try {
        type.construct(place);
    } catch (...) {
        if (list.freed != nullptr) *static_cast<void**>(place) = next_freed;
        throw;
    }
    if (list.freed != nullptr) {
        list.freed = next_freed;
    } else {
        list.unused += type.size;
        --list.unused_count;
    }
    void** const entries = list.entries();
    void** const at = entries + std::min(index, list.size);
    if (index < list.size) std::copy_backward(at, entries + list.size, entries + list.size + 1);
    *at = place;
    ++list.size;
    return place;
}

void c_list_base::expect(std::size_t count, const s_stored_type& type) {
    constexpr std::size_t most_bytes = 4096;
    if (m_storage == nullptr || has_head() || count < 3) return;
    reserve_places(std::max<std::size_t>(1, std::min(count - 1, most_bytes / type.size)), type.size);
}

void c_list_base::remove(std::size_t index, const s_stored_type& type) noexcept {
    void* const place = entry(index);
    if (type.destroy != nullptr) type.destroy(place);
    if (size() == 1) {
        free_storage();
        return;
    }
    s_head& list = *head();
    void** const entries = list.entries();
    std::copy(entries + index + 1, entries + list.size, entries + index);
    --list.size;
    *static_cast<void**>(place) = list.freed;
    list.freed = place;
}

void c_list_base::clear(const s_stored_type& type) noexcept {
    if (m_storage == nullptr) return;
    if (type.destroy != nullptr) {
        for (std::size_t i = size(); i-- > 0;) type.destroy(entry(i));
    }
    free_storage();
}

/// The index is a part of the head, so a larger one is another head.
void c_list_base::reserve_index(std::size_t capacity) {
    const std::size_t bytes = sizeof(s_head) + capacity * sizeof(void*);
    auto* const larger = ::new (allocate_part(bytes)) s_head{};
    if (has_head()) {
        s_head* const old = head();
        *larger = *old;
        std::copy(old->entries(), old->entries() + old->size, larger->entries());
        free_part(old);
    } else {
        larger->size = 1;
        larger->first = m_storage;
        larger->entries()[0] = larger->first;
    }
    larger->capacity = capacity;
    m_storage = reinterpret_cast<std::byte*>(larger) + 1;
}

/// Makes room for more entries, in places and in the index.
void c_list_base::reserve_places(std::size_t added, std::size_t entry_size) {
    const std::size_t count = size();
    const std::size_t capacity = has_head() ? head()->capacity : 0;
    if (count + added > capacity) reserve_index(std::max(count + added, capacity + capacity / 2));
    s_head& list = *head();
    auto* const block = ::new (allocate_part(sizeof(s_block) + added * entry_size)) s_block{list.blocks};
    list.blocks = block;
    list.unused = reinterpret_cast<std::byte*>(block + 1);
    list.unused_count = added;
}

void c_list_base::free_storage() noexcept {
    if (has_head()) {
        s_head* const list = head();
        while (list->blocks != nullptr) {
            s_block* const block = list->blocks;
            list->blocks = block->next;
            free_part(block);
        }
        free_part(list->first);
        free_part(list);
    } else {
        free_part(m_storage);
    }
    m_storage = nullptr;
}

}  // namespace lmx
