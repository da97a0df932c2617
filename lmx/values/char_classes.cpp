// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Look-ups in the tables of character classes.

#include "lmx/values/char_classes.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace lmx {

namespace {

template <class Range>
bool is_in_ranges(std::span<const Range> ranges, unsigned character) {
    const auto behind = std::upper_bound(ranges.begin(), ranges.end(), character,
                                         [](unsigned value, const Range& range) { return value < range.low; });
    return behind != ranges.begin() && character <= std::prev(behind)->high;
}

}  // namespace

int xmlCharInRange(unsigned int character, const xmlChRangeGroup* group) {
    if (group == nullptr) return 0;
    if (character < 0x10000) {
        return is_in_ranges(std::span(group->shortRange, static_cast<std::size_t>(group->nbShortRange)), character);
    }
    return is_in_ranges(std::span(group->longRange, static_cast<std::size_t>(group->nbLongRange)), character);
}

int detail::is_in_category(std::span<const s_category_run> runs, int code, std::uint32_t categories) {
    const auto character = static_cast<std::uint32_t>(code);
    const auto behind =
        std::upper_bound(runs.begin(), runs.end(), character,
                         [](std::uint32_t value, const s_category_run& run) { return value < run.first; });
    return static_cast<int>((categories >> std::prev(behind)->category) & 1U);
}

int detail::ask_by_name(std::span<const s_named_class> classes, int code, const char* name) {
    if (name == nullptr) return -1;
    const auto found =
        std::lower_bound(classes.begin(), classes.end(), std::string_view(name),
                         [](const s_named_class& row, std::string_view wanted) { return row.name < wanted; });
    return found != classes.end() && found->name == std::string_view(name) ? found->is_in(code) : -1;
}

}  // namespace lmx
