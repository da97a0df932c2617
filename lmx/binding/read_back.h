// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Whether a value that is being written could be read again.

#pragma once

#include <string>
#include <string_view>

#include "lmx/binding/table.h"
#include "lmx/error.h"

namespace lmx {

/// The code with which reading would refuse a value; 0 if it would take it. A text that would come back as another is
/// `ELMX_VALUE_BAD_FORMAT`. A value that is in order, as nearly all are, costs a fraction of its printing. `scratch`
/// is an empty work string.
elmx_error code_of_reading(const s_item& item, const void* value, std::string* scratch);

/// Why a text would come back as another, as a sentence; null if it would not.
const char* lost_in_text(const s_item& item, std::u16string_view text);

}  // namespace lmx
