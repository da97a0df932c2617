// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What the lines of flat functions are made of. A line hands the call of its member to one of these as a function
/// without state, so that the guard against exceptions and the checks exist once per signature, not once per line.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

#include "flat/callbacks.h"
#include "flat/flat.h"
#include "flat/strings.h"
#include "lmx/error.h"

namespace flat {

template <class T>
T& as(void* object) {
    return *static_cast<T*>(object);
}

/// A part of an object, or a constant table, as the host's opaque pointer.
template <class T>
void* reference(const T& object) {
    return const_cast<T*>(&object);
}

constexpr bool to_bool(std::uint32_t argument) { return (argument & 0xFFU) != 0; }

/// What a function returns in place of an exception.
template <class Result>
Result failed() {
    if constexpr (std::is_same_v<Result, lmx::elmx_error>)
        return lmx::ELMX_USER_DEFINED_1;
    else
        return Result();
}

template <class Result, class... Arguments>
[[gnu::noinline]] Result guarded(Result (*action)(Arguments...), std::type_identity_t<Arguments>... arguments) {
    try {
        return action(arguments...);
    } catch (...) {
        return failed<Result>();
    }
}

/// The same for an action of which the first argument mustn't be null; a null is reported with the text.
template <class Result, class Checked, class... Arguments>
[[gnu::noinline]] Result checked(const char* text, Result (*action)(Checked, Arguments...),
                                 std::type_identity_t<Checked> argument, std::type_identity_t<Arguments>... others) {
    if (is_null(argument, text)) return Result();
    try {
        return action(argument, others...);
    } catch (...) {
        return failed<Result>();
    }
}

using wide_text = const std::u16string&;
/// Calls a setter with a wide argument.
lmx::elmx_error with_text(void* self, const char16_t* value, lmx::elmx_error (*set)(void*, wide_text));
lmx::elmx_error with_text(void* self, std::uint32_t index, const char16_t* value,
                          lmx::elmx_error (*set)(void*, std::size_t, wide_text));

template <class T>
void* make() {
    return guarded(+[]() -> void* { return new T(); });
}

template <class T>
void* copy(void* source) {
    return new T(as<T>(source));
}

template <class T>
void destroy(void* object) {
    delete static_cast<T*>(object);
}

template <class T, class Base>
void* upcast(void* object) {
    return static_cast<Base*>(static_cast<T*>(object));
}

/// Replaces the identity of a class by a copy of the text, or by null. The former text stays: others may hold it.
void set_identity(const char** identity, const char* text);

}  // namespace flat
