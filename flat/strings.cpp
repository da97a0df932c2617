// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Strings for managed hosts. On Windows they are the system's; elsewhere each is a block of `malloc` that holds,
/// ahead of the text, a prefix with the length in bytes in its last four bytes. The two families of hosts free the
/// block themselves and differ on how long the prefix is, so the rule of the host that runs is found out once.

#include "flat/strings.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "flat/flat.h"
#include "flat/generated/vyr_flat.h"

#if defined(_WIN32)
#include <windows.h>
//
#include <oleauto.h>
#else
#include <dlfcn.h>

#include <atomic>
#endif

namespace flat {

std::u16string wide(const char16_t* text) { return text == nullptr ? std::u16string() : text; }

namespace {

/// What a string's length has room for; a longer text gives none.
constexpr std::size_t k_longest = std::numeric_limits<std::uint32_t>::max();

}  // namespace

#if defined(_WIN32)

char16_t* new_string(std::u16string_view text) {
    if (text.size() > k_longest) return nullptr;
    const auto* const units = reinterpret_cast<const OLECHAR*>(text.data());
    return reinterpret_cast<char16_t*>(SysAllocStringLen(units, static_cast<UINT>(text.size())));
}

char* new_string(std::string_view text) {
    if (text.size() > k_longest) return nullptr;
    return reinterpret_cast<char*>(SysAllocStringByteLen(text.data(), static_cast<UINT>(text.size())));
}

extern "C" {

VYR_FLAT(void) VyrModule_SetBstrPrefix(std::int32_t) {}
VYR_FLAT(void) VyrModule_FreeString(void* text) { SysFreeString(static_cast<BSTR>(text)); }

}  // extern "C"

#else

namespace {

std::atomic<std::size_t> prefix_in_force = 0;

std::size_t prefix() {
    std::size_t bytes = prefix_in_force.load(std::memory_order_relaxed);
    if (bytes == 0) {
        const bool has_mono = dlsym(RTLD_DEFAULT, "mono_free_bstr") != nullptr;
        const bool has_dotnet = dlsym(RTLD_DEFAULT, "monovm_initialize") != nullptr;
        bytes = has_mono && !has_dotnet ? sizeof(std::uint32_t) : sizeof(void*);
        prefix_in_force.store(bytes, std::memory_order_relaxed);
    }
    return bytes;
}

char* new_bytes(const void* text, std::size_t size) {
    constexpr std::size_t k_terminator = 2;
    if (size > k_longest) return nullptr;
    const std::size_t ahead = prefix();
    char* const block = static_cast<char*>(std::malloc(ahead + size + k_terminator));
    if (block == nullptr) return nullptr;
    const auto length = static_cast<std::uint32_t>(size);
    std::memset(block, 0, ahead);
    std::memcpy(block + ahead - sizeof length, &length, sizeof length);
    if (size != 0) std::memcpy(block + ahead, text, size);
    std::memset(block + ahead + size, 0, k_terminator);
    return block + ahead;
}

}  // namespace

char16_t* new_string(std::u16string_view text) {
    return reinterpret_cast<char16_t*>(new_bytes(text.data(), text.size() * sizeof(char16_t)));
}

char* new_string(std::string_view text) { return new_bytes(text.data(), text.size()); }

extern "C" {

/// Sets how many bytes lie ahead of a returned string in its block, for a host that the library can't tell: 4 or
/// more. Strings must be freed under the rule that they were made under.
VYR_FLAT(void) VyrModule_SetBstrPrefix(std::int32_t bytes) {
    if (bytes >= static_cast<std::int32_t>(sizeof(std::uint32_t))) prefix_in_force = static_cast<std::size_t>(bytes);
}

VYR_FLAT(void) VyrModule_FreeString(void* text) {
    if (text != nullptr) std::free(static_cast<char*>(text) - prefix());
}

}  // extern "C"

#endif

}  // namespace flat
