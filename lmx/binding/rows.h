// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What generated tables are written with, so that their rows hold names instead of lengths and positions, and an
/// added row changes no other.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "lmx/reader/event_map.h"

namespace lmx {

constexpr s_event_map attribute_event(std::string_view name, int token) {
    constexpr int k_no_namespace = 1;
    return {k_no_namespace, name.data(), name.size(), token};
}

constexpr s_event_map element_event(std::string_view name, int token) {
    constexpr int k_document_namespace = 1000;
    return {k_document_namespace, name.data(), name.size(), token};
}

/// Where a token stands in a map. A token that isn't there doesn't compile.
template <std::size_t N>
consteval std::uint16_t position_of(const s_event_map (&map)[N], int token) {
    std::uint16_t position = 0;
    while (map[position].token != token || map[position].name == nullptr) ++position;
    return position;
}

}  // namespace lmx
