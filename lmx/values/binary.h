// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Bytes that documents hold as hexadecimal or base64 text.

#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "lmx/export.h"

namespace lmx {

/// A sequence of bytes.
class VYR_EXPORT c_binary {
public:
    c_binary() = default;
    /// Copies `size` bytes. Throws `std::length_error` for more than a vector can hold.
    c_binary(const unsigned char* data, std::size_t size);
    c_binary(const c_binary&) = default;
    c_binary(c_binary&&) noexcept = default;
    /// Leaves the target alone if the copy can't be made.
    c_binary& operator=(const c_binary& other);
    c_binary& operator=(c_binary&&) noexcept = default;
    ~c_binary() = default;

    void swap(c_binary& other) noexcept { m_bytes.swap(other.m_bytes); }

    std::size_t size() const { return m_bytes.size(); }
    /// All bytes in a row; null or not while empty.
    const unsigned char* data() const { return m_bytes.data(); }

    /// Replaces the bytes, of which `data` may be a part. Throws as the constructor does.
    c_binary& set(const unsigned char* data, std::size_t size);
    /// Copies the bytes, but at most `size`, to `buffer`, and returns `buffer`.
    unsigned char* get(unsigned char* buffer, std::size_t size) const;
    /// Whether the bytes are these.
    bool equal(const unsigned char* data, std::size_t size) const;

    /// Throws `std::out_of_range` at or beyond the end.
    unsigned char& at(std::size_t index);
    const unsigned char& at(std::size_t index) const;
    /// No bounds check.
    unsigned char& operator[](std::size_t index) { return m_bytes[index]; }
    const unsigned char& operator[](std::size_t index) const { return m_bytes[index]; }

    c_binary& append(unsigned char byte);
    c_binary& operator+=(unsigned char byte) { return append(byte); }

    /// An even number of hexadecimal digits of either case, and nothing else.
    static bool is_valid_hex(const std::string& text);
    /// Replaces the bytes by what the digits, two for each byte, stand for. An odd last digit is passed over.
    void from_hex(const std::string& text);
    /// Writes two upper-case digits for each byte. Leaves the stream's flags alone and its fill at "0".
    void out_hex(std::ostream& stream) const;

    /// Whether the text may be read. Looser than the published grammar: it counts characters, allows white space
    /// in and behind the payload, and none behind a "=".
    static bool is_valid_base64(const std::string& text);
    /// Replaces the bytes by what the text encodes; characters outside the alphabet are passed over.
    void from_base64(const std::string& text);
    /// Writes the text form, in one line whatever its length.
    void out_base64(std::ostream& stream) const;
    /// Appends the same text to a string.
    void append_base64(std::string* out) const;

    friend bool operator==(const c_binary& a, const c_binary& b) { return a.m_bytes == b.m_bytes; }
    friend bool operator!=(const c_binary& a, const c_binary& b) { return a.m_bytes != b.m_bytes; }

private:
    std::vector<unsigned char> m_bytes;
};

}  // namespace lmx
