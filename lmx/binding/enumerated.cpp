// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/enumerated.h"

#include <algorithm>
#include <memory>

namespace lmx {
namespace {

bool is_same(std::string_view ascii, std::u16string_view text) {
    return std::equal(ascii.begin(), ascii.end(), text.begin(), text.end(),
                      [](char a, char16_t b) { return static_cast<char16_t>(a) == b; });
}

}  // namespace

const s_enumerated_text* c_enumeration::find(std::string_view text) const {
    const auto place = std::find(m_texts.begin(), m_texts.end(), text);
    return place == m_texts.end() ? nullptr : rows() + (place - m_texts.begin());
}

const s_enumerated_text* c_enumeration::find(std::u16string_view text) const {
    const auto place = std::find_if(m_texts.begin(), m_texts.end(),
                                    [text](std::string_view candidate) { return is_same(candidate, text); });
    return place == m_texts.end() ? nullptr : rows() + (place - m_texts.begin());
}

const s_enumerated_text* c_enumeration::find(std::int32_t number) const {
    if (number < 1 || static_cast<std::size_t>(number) > m_texts.size()) return nullptr;
    return rows() + (number - 1);
}

const s_enumerated_text* c_enumeration::make_rows() const {
    auto made = std::make_unique<s_enumerated_text[]>(m_texts.size());
    for (std::size_t i = 0; i < m_texts.size(); ++i) {
        made[i].narrow = m_texts[i];
        made[i].wide.assign(m_texts[i].begin(), m_texts[i].end());
        made[i].number = static_cast<std::int32_t>(i) + 1;
    }
    // Where two threads make them at once, those of the first one stay.
    const s_enumerated_text* first = nullptr;
    if (!m_rows.compare_exchange_strong(first, made.get(), std::memory_order_acq_rel)) return first;
    return made.release();
}

c_enumerated& c_enumerated::operator=(const c_enumerated& other) {
    if (this == &other) return *this;
    if (other.is_owned()) {
        own(*other.m_text);
    } else {
        set(other.m_text);
    }
    return *this;
}

void c_enumerated::set(const s_enumerated_text* text) {
    if (is_owned()) {
        own(text != nullptr ? *text : s_enumerated_text());
    } else {
        m_text = text;
    }
}

void c_enumerated::set_odd(std::u16string text) { own({{}, std::move(text), 0}); }

void c_enumerated::own(s_enumerated_text text) {
    text.is_owned = true;
    if (is_owned()) {
        // Somebody may hold a reference to the text that is owned already.
        *const_cast<s_enumerated_text*>(m_text) = std::move(text);
    } else {
        m_text = new s_enumerated_text(std::move(text));
    }
}

const std::u16string& c_enumerated::no_text() {
    static const std::u16string text;
    return text;
}

}  // namespace lmx
