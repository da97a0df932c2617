// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The attributes of a start tag in the order in which they stand there.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace lmx {

/// Where an attribute's name and its raw value lie in a buffer.
struct s_attribute {
    std::size_t name = 0;
    std::size_t name_length = 0;
    std::size_t value = 0;
    std::size_t value_length = 0;
    char quote = 0;
    int line = 0;
};

/// Each is kept as its distance from the one before, in as few bytes as that takes: a tag may hold nothing but
/// attributes, of five bytes each.
class c_attribute_list {
public:
    /// A place in a list, which starts ahead of its first attribute.
    struct s_cursor {
        std::size_t position = 0;
        s_attribute attribute{};  ///< the one ahead of the place; anything at the start
    };

    bool empty() const { return m_bytes.empty(); }
    /// Behind the last one: names and values don't overlap, and a name stands ahead of its value.
    void add(const s_attribute& attribute) {
        char bytes[5 * k_longest];
        char* end = bytes;
        const std::size_t name_end = attribute.name + attribute.name_length;
        put(attribute.name - (m_last.value + m_last.value_length), &end);
        put(attribute.name_length, &end);
        put(2 * (attribute.value - name_end) + static_cast<std::size_t>(attribute.quote == '"'), &end);
        put(attribute.value_length, &end);
        put(static_cast<unsigned>(attribute.line) - static_cast<unsigned>(m_last.line), &end);
        m_bytes.append(bytes, static_cast<std::size_t>(end - bytes));
        m_last = attribute;
    }
    /// Moves behind the next attribute, which the cursor then holds; false at the end.
    bool next(s_cursor* cursor) const {
        if (cursor->position == m_bytes.size()) return false;
        s_attribute& attribute = cursor->attribute;
        if (cursor->position == 0) attribute = {};
        attribute.name = attribute.value + attribute.value_length + get(&cursor->position);
        attribute.name_length = get(&cursor->position);
        const std::size_t gap_and_quote = get(&cursor->position);
        attribute.value = attribute.name + attribute.name_length + gap_and_quote / 2;
        attribute.quote = gap_and_quote % 2 != 0 ? '"' : '\'';
        attribute.value_length = get(&cursor->position);
        attribute.line += static_cast<int>(get(&cursor->position));
        return true;
    }
    void clear() {
        m_bytes.clear();
        m_last = {};
    }

private:
    static constexpr std::size_t k_longest = 10;  ///< bytes of a number, at seven bits each

    static void put(std::size_t number, char** end) {
        for (; number > 127; number >>= 7U) *(*end)++ = static_cast<char>(number | 128U);
        *(*end)++ = static_cast<char>(number);
    }
    std::size_t get(std::size_t* position) const {
        std::size_t number = 0;
        for (unsigned shift = 0;; shift += 7) {
            const auto byte = static_cast<unsigned char>(m_bytes[(*position)++]);
            number |= static_cast<std::size_t>(byte & 127U) << shift;
            if (byte < 128) return number;
        }
    }

    std::string m_bytes;
    s_attribute m_last;
};

}  // namespace lmx
