// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The characters that may not be printed as they are, for a terminal, a report and whoever reads them.

#pragma once

#include <algorithm>
#include <iterator>

namespace lmx {

struct s_code_range {
    char32_t first;
    char32_t last;
};

template <class Ranges>
constexpr bool is_in(const Ranges& ranges, char32_t c) {
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [c](const s_code_range& range) { return c >= range.first && c <= range.last; });
}

/// Control characters, ends of lines, marks of direction, and what prints nothing: names that look alike would not be
/// the same. Selectors of a variant form are not among them where scripts and emoji need them.
inline constexpr s_code_range k_hidden[] = {
    {0x00, 0x1F},     {0x7F, 0x9F},     {0xAD, 0xAD},     {0x34F, 0x34F},     {0x61C, 0x61C},     {0x115F, 0x1160},
    {0x17B4, 0x17B5}, {0x180E, 0x180E}, {0x200B, 0x200F}, {0x2028, 0x202E},   {0x2060, 0x206F},   {0x3164, 0x3164},
    {0xFEFF, 0xFEFF}, {0xFFA0, 0xFFA0}, {0xFFF0, 0xFFFB}, {0x1BCA0, 0x1BCA3}, {0x1D173, 0x1D17A}, {0xE0000, 0xE0FFF}};

constexpr bool is_hidden(char32_t c) { return is_in(k_hidden, c); }

}  // namespace lmx
