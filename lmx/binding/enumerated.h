// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The storage of an enumerated item: a pointer to the one text that all items of that value share.

#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "lmx/export.h"

namespace lmx {

/// One text of an enumeration, or an odd one that an item owns.
struct s_enumerated_text {
    std::string_view narrow;  ///< ASCII; empty for an owned text
    std::u16string wide;
    std::int32_t number = 0;  ///< from 1; 0 for a text that is none of the enumeration
    bool is_owned = false;
};

/// The texts of one enumeration. Their wide form is made when it is first asked for and never freed, so that objects
/// may be built before `main` and end behind it in whatever order.
class VYR_EXPORT c_enumeration {
public:
    constexpr explicit c_enumeration(std::span<const std::string_view> texts) : m_texts(texts) {}

    /// In ASCII, numbered from 1.
    std::span<const std::string_view> texts() const { return m_texts; }
    /// Null for a text that is none of them.
    const s_enumerated_text* find(std::string_view text) const;
    const s_enumerated_text* find(std::u16string_view text) const;
    /// The text of a number from 1; null for a number that has none.
    const s_enumerated_text* find(std::int32_t number) const;

private:
    const s_enumerated_text* rows() const {
        const s_enumerated_text* const made = m_rows.load(std::memory_order_acquire);
        return made != nullptr ? made : make_rows();
    }
    const s_enumerated_text* make_rows() const;

    std::span<const std::string_view> m_texts;
    mutable std::atomic<const s_enumerated_text*> m_rows{nullptr};
};

/// An enumerated value: nothing, a text of the enumeration, or an odd text. A reference to its text stays good until
/// the item ends or, for an odd text, is exchanged with another.
class VYR_EXPORT c_enumerated {
public:
    c_enumerated() = default;
    explicit c_enumerated(const s_enumerated_text* text) : m_text(text) {}
    c_enumerated(const c_enumerated& other) { *this = other; }
    c_enumerated& operator=(const c_enumerated& other);
    ~c_enumerated() {
        if (is_owned()) delete m_text;
    }
    void swap(c_enumerated& other) noexcept { std::swap(m_text, other.m_text); }

    /// The empty text while there is nothing.
    const std::u16string& get() const { return m_text != nullptr ? m_text->wide : no_text(); }
    /// From 1; 0 for nothing and for an odd text.
    std::int32_t number() const { return m_text != nullptr ? m_text->number : 0; }
    /// The text in ASCII if it has a number.
    std::string_view narrow() const { return m_text != nullptr ? m_text->narrow : std::string_view(); }

    /// Takes a text of the enumeration, or null for nothing.
    void set(const s_enumerated_text* text);
    /// Takes a copy of a text that is none of the enumeration.
    void set_odd(std::u16string text);

private:
    static const std::u16string& no_text();
    void own(s_enumerated_text text);
    bool is_owned() const { return m_text != nullptr && m_text->is_owned; }

    const s_enumerated_text* m_text = nullptr;
};

}  // namespace lmx
