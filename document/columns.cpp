// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "document/columns.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "lmx/error.h"
#include "lmx/reader/get_as_utf8.h"
#include "lmx/values/characters.h"

namespace com_vyrgraph_v2 {
namespace {

/// Finds attributes in a start tag, character by character from its `<` on.
class c_attribute_search {
public:
    void start(s_character* wanted) { m_wanted.push_back(wanted); }
    bool is_over() const { return m_wanted.empty(); }
    void take(int c, int column) {
        if (m_quote != 0) {
            if (c == m_quote) m_quote = 0;
            return;
        }
        const bool is_name =
            c != -1 && c != '=' && c != '"' && c != '\'' && c != '>' && c != '/' && !lmx::xisspace(c);
        if (is_name) {
            if (m_name.empty()) m_start = column;
            m_name += static_cast<char>(c);
            return;
        }
        if (!m_name.empty()) end_name();
        if (c == '"' || c == '\'') m_quote = c;
        if (c == '>' || c == -1) stop();
    }

private:
    void end_name() {
        for (s_character*& wanted : m_wanted) {
            if (wanted->attribute != m_name || std::exchange(wanted->is_repetition, false)) continue;
            wanted->column = m_start;
            wanted = nullptr;
        }
        std::erase(m_wanted, nullptr);
        m_name.clear();
        if (is_over()) stop();
    }
    void stop() {
        m_wanted.clear();
        m_name.clear();
        m_quote = 0;
    }

    std::vector<s_character*> m_wanted;
    std::string m_name;
    int m_start = 0;
    int m_quote = 0;
};

bool is_first_byte(int c) { return (static_cast<unsigned>(c) & 0xC0U) != 0x80U; }

/// False if the reader lost count of its place.
bool try_columns(lmx::c_read& source, int encoding, std::vector<s_character>* characters) {
    std::vector<s_character*> pending;
    for (s_character& character : *characters) pending.push_back(&character);
    std::sort(pending.begin(), pending.end(), [](const s_character* one, const s_character* other) {
        return one->offset != other->offset ? one->offset < other->offset : one < other;
    });
    lmx::c_error errors;
    lmx::c_get_as_utf8 text(source, errors);
    c_attribute_search search;
    int column = 0;
    bool is_begun = false;
    for (auto next = pending.begin(); (next != pending.end() || !search.is_over()) && !text.at_end_of_input();) {
        const int c = text.get();
        // What the declaration says of an encoding of single bytes can't be seen in the first of them.
        if (!std::exchange(is_begun, true) && encoding == lmx::enc_single_byte) text.set_encoding("ISO-8859-1");
        if (is_first_byte(c)) ++column;
        if (!search.is_over()) search.take(c, column);
        const bool is_end = c == -1 && text.at_end_of_input();
        for (; next != pending.end() && (is_end || (*next)->offset <= text.get_offset()); ++next) {
            (*next)->column = std::max(column, 1);
            if (!(*next)->attribute.empty()) search.start(*next);
        }
        if (c == '\n') column = 0;
    }
    return !text.has_decoded();
}

}  // namespace

void find_columns(const source_maker& open, int encoding, std::vector<s_character>* characters) {
    std::vector<s_character> tried = *characters;
    const std::unique_ptr<lmx::c_read> source = open();
    if (try_columns(*source, encoding, &tried)) {
        *characters = std::move(tried);
        return;
    }
    const std::unique_ptr<lmx::c_read> again = open();
    c_read_bytes bytes(*again);
    try_columns(bytes, encoding, characters);
}

}  // namespace com_vyrgraph_v2
