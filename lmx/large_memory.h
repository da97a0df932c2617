// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Memory for bytes that are about to be filled.

#pragma once

#include <cstddef>

namespace lmx {

/// Asks for large pages where a system has them. It hands out pages at their first touch, which costs more than what
/// is written there; in large pages it costs a tenth. A wish: nothing depends on whether the system grants it.
void wish_for_large_pages(char* memory, std::size_t size);

}  // namespace lmx
