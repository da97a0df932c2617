// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/list.h"

#include <algorithm>

namespace lmx {

void c_list_base::reserve_one() {
    if (m_entries.size() == m_entries.capacity()) {
        m_entries.reserve(std::max<std::size_t>(4, m_entries.capacity() * 2));
    }
}

void c_list_base::insert(std::size_t index, void* entry) {
    const std::size_t place = std::min(index, m_entries.size());
    m_entries.insert(m_entries.begin() + static_cast<std::ptrdiff_t>(place), entry);
}

void* c_list_base::take(std::size_t index) {
    void* const entry = m_entries[index];
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(index));
    return entry;
}

}  // namespace lmx
