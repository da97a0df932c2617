// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/long_text.h"

#include <utility>

namespace vyr_tool {

namespace {

/// Allocators hand pieces of this size back to the system one by one.
constexpr std::size_t k_longest_piece = std::size_t{1} << 19U;
/// What is moved instead of being copied.
constexpr std::size_t k_long = std::size_t{1} << 15U;

void release(std::string& piece) { std::string().swap(piece); }

}  // namespace

c_long_text& c_long_text::append(std::string_view text) {
    m_size += text.size();
    if (m_pieces.empty()) m_pieces.emplace_back();
    if (m_pieces.back().size() + text.size() > k_longest_piece) m_pieces.emplace_back().reserve(k_longest_piece);
    m_pieces.back() += text;
    return *this;
}

c_long_text& c_long_text::append(c_long_text&& other) {
    const bool is_long = other.m_size > k_long;
    std::vector<std::string> pieces = other.take_pieces();
    for (std::string& piece : pieces) {
        if (is_long) {
            m_size += piece.size();
            m_pieces.push_back(std::move(piece));
        } else {
            append(piece);
        }
    }
    return *this;
}

std::string c_long_text::take() {
    std::string text;
    text.reserve(m_size);
    for (std::string& piece : take_pieces()) {
        text += piece;
        release(piece);
    }
    return text;
}

std::vector<std::string> c_long_text::take_pieces() {
    m_size = 0;
    return std::exchange(m_pieces, {});
}

std::streamsize c_long_text_buffer::xsputn(const char* text, std::streamsize size) {
    m_text.append(std::string_view(text, static_cast<std::size_t>(size)));
    return size;
}

c_long_text_buffer::int_type c_long_text_buffer::overflow(int_type c) {
    const char byte = traits_type::to_char_type(c);
    m_text.append(std::string_view(&byte, 1));
    return traits_type::not_eof(c);
}

bool c_read_long_text::has_more() {
    for (; m_piece < m_pieces.size() && m_at == m_pieces[m_piece].size(); ++m_piece) {
        if (m_piece > 0) release(m_pieces[m_piece]);
        m_at = 0;
    }
    return m_piece < m_pieces.size();
}

int c_read_long_text::read() { return has_more() ? static_cast<unsigned char>(m_pieces[m_piece][m_at++]) : -1; }

std::string_view c_read_long_text::take_window() {
    if (!has_more()) return {};
    const std::string_view window = std::string_view(m_pieces[m_piece]).substr(m_at);
    m_at = m_pieces[m_piece].size();
    return window;
}

}  // namespace vyr_tool
