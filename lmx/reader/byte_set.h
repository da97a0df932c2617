// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Sets of bytes at which a scan of plain text stops.

#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "lmx/values/characters.h"

namespace lmx {

/// A set of bytes; what is not in it may be taken over unchanged.
using byte_set = std::array<bool, 256>;

namespace detail {

/// Carriage returns need the line-end filter and bytes over 127 the decoder: every scan stops there.
constexpr byte_set stops_at(std::string_view bytes) {
    byte_set set{};
    for (std::size_t i = 128; i < set.size(); ++i) set[i] = true;
    set[static_cast<unsigned char>('\r')] = true;
    for (const char c : bytes) set[static_cast<unsigned char>(c)] = true;
    return set;
}

constexpr byte_set stops_outside(std::string_view bytes) {
    byte_set set{};
    set.fill(true);
    for (const char c : bytes) set[static_cast<unsigned char>(c)] = false;
    return set;
}

}  // namespace detail

/// The end of the run from `from` on: the first byte in `stops`, or the size.
inline std::size_t run_length(std::string_view bytes, std::size_t from, const byte_set& stops) {
    while (from < bytes.size() && !stops[static_cast<unsigned char>(bytes[from])]) ++from;
    return from;
}

inline bool is_ascii(std::string_view bytes) {
    std::uint64_t all = 0;
    for (std::uint64_t block = 0; bytes.size() >= sizeof block; bytes.remove_prefix(sizeof block)) {
        std::memcpy(&block, bytes.data(), sizeof block);
        all |= block;
    }
    for (const char c : bytes) all |= static_cast<unsigned char>(c);
    return (all & 0x8080808080808080) == 0;
}

inline constexpr std::string_view k_name_bytes = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789.-_:";

inline constexpr byte_set k_stops_of_text = detail::stops_at("<&");
inline constexpr byte_set k_stops_of_words = detail::stops_at("<& \t\n\v\f");
inline constexpr byte_set k_stops_of_names = detail::stops_outside(k_name_bytes);
inline constexpr byte_set k_stops_of_blanks = detail::stops_outside(" \t\n\v\f");
inline constexpr byte_set k_stops_of_double_quoted = detail::stops_at("\"");
inline constexpr byte_set k_stops_of_single_quoted = detail::stops_at("'");
inline constexpr byte_set k_stops_of_comments = detail::stops_at("->");
inline constexpr byte_set k_stops_of_cdata = detail::stops_at("]");
inline constexpr byte_set k_stops_of_instructions = detail::stops_at("?");

}  // namespace lmx
