// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A text as long as a document, in pieces: it grows without being copied, and goes while it is read.

#pragma once

#include <cstddef>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

#include "lmx/reader/read.h"

namespace vyr_tool {

class c_long_text {
public:
    c_long_text& append(std::string_view text);
    /// Leaves the other one empty. A long text is not copied.
    c_long_text& append(c_long_text&& other);
    /// The text in one piece. Leaves this one empty.
    std::string take();
    std::vector<std::string> take_pieces();

private:
    std::size_t m_size = 0;
    std::vector<std::string> m_pieces;
};

/// Adds what is printed to a text, which is borrowed.
class c_long_text_buffer : public std::streambuf {
public:
    explicit c_long_text_buffer(c_long_text& text) : m_text(text) {}

protected:
    std::streamsize xsputn(const char* text, std::streamsize size) override;
    int_type overflow(int_type c) override;

private:
    c_long_text& m_text;
};

/// Gives up the pieces that were read: a rewind leads back to the start only as long as the first one is being read.
class c_read_long_text : public lmx::c_read {
public:
    explicit c_read_long_text(c_long_text&& text) : m_pieces(text.take_pieces()) {}

    int read() override;
    void rewind() override { m_piece = m_at = 0; }
    std::string_view take_window() override;
    void give_back(std::size_t count) override { m_at -= count; }

private:
    bool has_more();

    std::vector<std::string> m_pieces;
    std::size_t m_piece = 0;
    std::size_t m_at = 0;
};

}  // namespace vyr_tool
