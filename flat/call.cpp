// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The parts of flat functions that don't depend on a class.

#include "flat/call.h"

#include <cstring>
#include <new>

namespace flat {

lmx::elmx_error with_text(void* self, const char16_t* value, lmx::elmx_error (*set)(void*, wide_text)) {
    try {
        return set(self, wide(value));
    } catch (...) {
        return failed<lmx::elmx_error>();
    }
}

lmx::elmx_error with_text(void* self, std::uint32_t index, const char16_t* value,
                          lmx::elmx_error (*set)(void*, std::size_t, wide_text)) {
    try {
        return set(self, index, wide(value));
    } catch (...) {
        return failed<lmx::elmx_error>();
    }
}

void set_identity(const char** identity, const char* text) {
    char* copy = nullptr;
    if (text != nullptr) {
        const std::size_t size = std::strlen(text) + 1;
        copy = new (std::nothrow) char[size];
        if (copy == nullptr) return;
        std::memcpy(copy, text, size);
    }
    *identity = copy;
}

}  // namespace flat
