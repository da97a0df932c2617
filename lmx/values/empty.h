// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The value of content that has none.

#pragma once

#include "lmx/export.h"

namespace lmx {

class VYR_EXPORT c_empty {
public:
    friend bool operator==(const c_empty&, const c_empty&) = default;
};

}  // namespace lmx
