// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A stretch of the source as it reads: UTF-8 with line feeds, made ahead of its use.

#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace lmx {

constexpr int k_next_line = 0x85;
constexpr int k_line_separator = 0x2028;

/// The size of the next line or line separator that stands at the start of the bytes; 0 if none does.
std::size_t utf8_line_end(std::string_view bytes);
/// The size of the well-formed character beyond ASCII that stands at the start of the bytes, of which there are some;
/// 0 if it isn't, or not whole.
std::size_t whole_utf8_char(std::string_view bytes);

/// The text of a part of the source's window. It ends ahead of whatever isn't a whole and legal character.
class c_decoded_window {
public:
    c_decoded_window();

    /// A border of two characters, in the source and in the text.
    struct s_place {
        const char* at = nullptr;
        std::size_t size = 0;
        bool is_behind_return = false;  ///< a line end here is the second half of a pair
    };

    /// Decodes what it can, in the form of `encoding`. False if that is nothing.
    bool decode(int encoding, std::string_view source, bool is_behind_return);
    /// Finds the place again from which the source was read on byte by byte. False if the text doesn't go on there.
    bool resume(const char* at, bool is_behind_return);
    /// Forgets the text.
    void drop() { m_size = 0; }

    const char* current() const { return m_text.get() + m_place.size; }
    const char* end() const { return m_text.get() + m_size; }
    /// Whether the text differs from the source.
    bool is_changed() const { return m_is_changed; }

    /// Where the source stands when the text was read up to `to`, which never goes back: behind a character's last
    /// byte from its first one on, and ahead of the second half of a pair.
    const s_place& seek(const char* to);
    /// What `seek` left of a character.
    std::string_view rest_of_char(const char* to) const;

private:
    int read_char(const char** at, char* out) const;
    int decode_char(s_place* place, char* out) const;
    std::size_t copy_plain(const char* at, char* out, std::size_t room) const;
    bool is_wide() const;

    std::unique_ptr<char[]> m_text;
    std::size_t m_size = 0;
    std::size_t m_limit;
    bool m_is_changed = false;
    int m_encoding = 0;
    const char* m_source_end = nullptr;
    s_place m_place;
    s_place m_end_place;  ///< of the whole text
    char m_char[8] = {};  ///< the one ahead of the place
    int m_char_size = 0;
};

}  // namespace lmx
