// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Where the text of a document goes: it is put together in a block and handed to a stream or a string in large
/// pieces.

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "lmx/export.h"

namespace lmx {

/// Collects text for one target, which is borrowed. What was collected reaches the target with `flush`, or earlier.
/// What nobody flushed is dropped.
class VYR_EXPORT c_output {
public:
    explicit c_output(std::ostream& stream);
    /// Appends to the string.
    explicit c_output(std::string& text);
    c_output(const c_output&) = delete;
    c_output& operator=(const c_output&) = delete;
    ~c_output();

    /// Room for that many bytes at the end of what was collected. Those that are written there count after `advance`.
    char* room(std::size_t size) {
        if (static_cast<std::size_t>(m_end - m_at) < size) make_room(size);
        return m_at;
    }
    void advance(char* end) { m_at = end; }

    /// Names and marks, whose lengths are known to be small.
    template <class... Pieces>
    void append(const Pieces&... pieces) {
        char* at = room((size_of(pieces) + ...));
        ((at = copy(at, pieces)), ...);
        m_at = at;
    }
    void append_repeated(char c, std::size_t count) {
        constexpr std::size_t usual = 16;
        char* const at = room((std::max)(count, usual));
        std::memset(at, c, usual);
        if (count > usual) std::memset(at + usual, c, count - usual);
        m_at = at + count;
    }
    /// Text of any length.
    void append_long(std::string_view text);

    /// A work string, empty: for forms that are made in a string.
    std::string& get_scratch() {
        m_scratch.clear();
        return m_scratch;
    }

    /// Hands on what was collected. Throws what the target throws; nothing is handed on twice.
    void flush();
    /// Hands on, and then puts the text on the target in the way of `<<`.
    template <class Text>
    void insert(const Text& text) {
        flush();
        if (m_text != nullptr) {
            *m_text += text;
        } else {
            *m_stream << text;
        }
    }
    /// The stream, after a `flush`. That of a string is made when it is first asked for; it tells of memory that runs
    /// out.
    std::ostream& get_stream();
    /// Whether the next `<<` would pad its text.
    bool is_padding() const { return m_stream != nullptr && m_stream->width() != 0; }

private:
    struct s_string_stream;

    static constexpr std::size_t k_block = std::size_t{1} << 16U;

    template <std::size_t Size>
    static constexpr std::size_t size_of(const char (&)[Size]) {
        return Size - 1;
    }
    static std::size_t size_of(std::string_view text) { return text.size(); }

    template <std::size_t Size>
    static char* copy(char* at, const char (&literal)[Size]) {
        std::memcpy(at, literal, Size - 1);
        return at + Size - 1;
    }
    /// Two copies of a fixed size, which may overlap, take the place of a call.
    static char* copy(char* at, std::string_view text) {
        const std::size_t size = text.size();
        const char* const from = text.data();
        if (size > 32) {
            std::memcpy(at, from, size);
        } else if (size >= 16) {
            copy_ends<16>(at, from, size);
        } else if (size >= 8) {
            copy_ends<8>(at, from, size);
        } else if (size >= 4) {
            copy_ends<4>(at, from, size);
        } else {
            for (std::size_t i = 0; i < size; ++i) at[i] = from[i];
        }
        return at + size;
    }
    template <std::size_t Width>
    static void copy_ends(char* at, const char* from, std::size_t size) {
        char last[Width];
        std::memcpy(last, from + size - Width, Width);
        std::memcpy(at, from, Width);
        std::memcpy(at + size - Width, last, Width);
    }

    void make_room(std::size_t size);
    void hand_on(const char* text, std::size_t size);

    std::ostream* m_stream = nullptr;
    std::string* m_text = nullptr;  ///< null if the target is the stream
    std::unique_ptr<char[]> m_block;
    char* m_at = nullptr;
    char* m_end = nullptr;
    std::string m_scratch;
    std::unique_ptr<s_string_stream> m_string_stream;
};

}  // namespace lmx
