// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/large_memory.h"

#if defined(__linux__)
#include <sys/mman.h>
#endif

#include <cstdint>

namespace lmx {

void wish_for_large_pages([[maybe_unused]] char* memory, [[maybe_unused]] std::size_t size) {
#if defined(__linux__)
    constexpr std::size_t large_page = std::size_t{2} << 20U;
    const auto begin = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t aligned = (begin + large_page - 1) / large_page * large_page;
    const std::size_t skipped = aligned - begin;
    if (size >= skipped + large_page) madvise(memory + skipped, size - skipped, MADV_HUGEPAGE);
#endif
}

}  // namespace lmx
