// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/place.h"

#include <algorithm>

namespace lmx {

const s_item* find_short_list(const s_class& level, const void* object) {
    const auto row = std::find_if(level.elements.begin(), level.elements.end(), [&](const s_item& item) {
        return is_repeating(item) && (item.use & use_asked) != 0 && list_of(item, object).size() == 0;
    });
    return row == level.elements.end() ? nullptr : &*row;
}

}  // namespace lmx
