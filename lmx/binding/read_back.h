// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Whether a value that is being written could be read again.

#pragma once

#include <cmath>
#include <string>
#include <string_view>

#include "lmx/binding/enumerated.h"
#include "lmx/binding/table.h"
#include "lmx/error.h"
#include "lmx/values/datetime.h"

namespace lmx {

/// Any number has a form that is read. What is printed may lie on an excluded bound that the number only comes near:
/// it has fourteen digits.
inline bool is_plainly_within(const s_facets& facets, double number) {
    constexpr double k_near = 1e-12;
    const bool is_above = facets.minimum_exclusive ? number > facets.minimum + k_near * std::abs(facets.minimum)
                                                   : number >= facets.minimum;
    const bool is_below = facets.maximum_exclusive ? number < facets.maximum - k_near * std::abs(facets.maximum)
                                                   : number <= facets.maximum;
    return is_above && is_below;
}

/// Whether reading takes a value, as far as a look at the value itself can tell. False says nothing.
inline bool is_plainly_read(const s_item& item, const void* value) {
    switch (item.value) {
        case value_kind::boolean:
            return true;
        case value_kind::enumerated:
            return static_cast<const c_enumerated*>(value)->number() != 0;
        case value_kind::number:
            return item.facets == nullptr || is_plainly_within(*item.facets, *static_cast<const double*>(value));
        case value_kind::datetime:
            return (item.facets == nullptr || item.facets->pattern_takes_zoned) &&
                   static_cast<const c_datetime*>(value)->is_usual();
        default:
            return false;
    }
}

/// The code with which reading would refuse a value; 0 if it would take it. A text that would come back as another is
/// `ELMX_VALUE_BAD_FORMAT`. Prints most kinds of value: `is_plainly_read` is asked first. `scratch` is an empty work
/// string.
elmx_error code_of_reading(const s_item& item, const void* value, std::string* scratch);

/// Why a text would come back as another, as a sentence; null if it would not.
const char* lost_in_text(const s_item& item, std::u16string_view text);

}  // namespace lmx
