// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// One row per kind of simple value: what depends on the kind, and on nothing else.

#pragma once

#include <array>
#include <cstddef>

#include "lmx/binding/table.h"
#include "lmx/writer/output.h"

namespace lmx {

struct s_value_kind {
    value_kind kind;
    /// Appends the text form of a value that is stored at `value`.
    void (*print)(c_output& out, const void* value);
};

/// In the order of `value_kind`.
extern const std::array<s_value_kind, 9> k_value_kinds;

inline const s_value_kind& row_of(value_kind kind) { return k_value_kinds[static_cast<std::size_t>(kind)]; }

}  // namespace lmx
