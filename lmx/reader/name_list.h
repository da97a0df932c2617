// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The names of a schema by number: each attribute's and each element's name has one, its token.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <type_traits>

#include "lmx/reader/event_map.h"

namespace lmx {

/// Names are short, and a call would cost more than the comparison.
inline bool is_same(const char* one, const char* other, std::size_t size) {
    const auto differs = [&]<class Block>(Block, std::size_t at) {
        Block a = 0;
        Block b = 0;
        std::memcpy(&a, one + at, sizeof a);
        std::memcpy(&b, other + at, sizeof b);
        return a != b;
    };
    if (size >= 8) {
        for (std::size_t at = 0; at + 8 < size; at += 8) {
            if (differs(std::uint64_t{}, at)) return false;
        }
        return !differs(std::uint64_t{}, size - 8);
    }
    if (size >= 4) return !differs(std::uint32_t{}, 0) && !differs(std::uint32_t{}, size - 4);
    for (std::size_t at = 0; at < size; ++at) {
        if (one[at] != other[at]) return false;
    }
    return true;
}

/// Names of one namespace, numbered in their order and found by a few of their bytes. Built at compile time.
class c_name_list {
public:
    consteval c_name_list(int ns_id, std::size_t first_token, std::span<const std::string_view> names)
        : m_ns_id(ns_id), m_first_token(static_cast<int>(first_token)), m_names(names) {
        for (std::size_t row = 0; row < names.size(); ++row) {
            std::size_t slot = slot_of(names[row]);
            while (m_slots[slot] != 0) slot = (slot + 1) % k_slots;
            m_slots[slot] = static_cast<std::uint16_t>(row + 1);
        }
    }

    int ns_id() const { return m_ns_id; }
    constexpr std::string_view name(int token) const {
        return m_names[static_cast<std::size_t>(token - m_first_token)];
    }
    bool is(int token, std::string_view name) const { return is_same_name(this->name(token), name); }
    /// The token of a name; 0 if it isn't in the list.
    constexpr int find(std::string_view name) const {
        if (name.empty()) return 0;
        for (std::size_t slot = slot_of(name); m_slots[slot] != 0; slot = (slot + 1) % k_slots) {
            const int row = m_slots[slot] - 1;
            if (is_same_name(m_names[static_cast<std::size_t>(row)], name)) return m_first_token + row;
        }
        return 0;
    }

private:
    static constexpr std::size_t k_slots = 1024;  // some times as many as there are names, so that searches end soon

    static constexpr bool is_same_name(std::string_view one, std::string_view other) {
        if (std::is_constant_evaluated()) return one == other;
        return one.size() == other.size() && is_same(one.data(), other.data(), one.size());
    }
    static constexpr std::size_t slot_of(std::string_view name) {
        const auto at = [name](std::size_t i) { return std::size_t{static_cast<unsigned char>(name[i])}; };
        return (name.size() + at(0) * 5 + at(name.size() - 1) * 33 + at(name.size() / 2) * 129) % k_slots;
    }

    int m_ns_id;
    int m_first_token;
    std::span<const std::string_view> m_names;
    std::array<std::uint16_t, k_slots> m_slots{};  ///< rows from 1; 0 ends a search
};

/// All names of a schema, told apart by their tokens.
struct s_name_lists {
    c_name_list attributes;
    c_name_list elements;

    const c_name_list& of(elxp_attr_elem kind) const { return kind == ELXP_ATTRIBUTE ? attributes : elements; }
};

}  // namespace lmx
