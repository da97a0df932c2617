// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Bytes and their hexadecimal and base64 text.

#include "lmx/values/binary.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iomanip>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "lmx/values/characters.h"

namespace lmx {

namespace {

constexpr std::string_view k_alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t k_no_digit = 64;

/// The value of each byte as a base64 digit.
constexpr std::array<std::uint8_t, 256> make_digits() {
    std::array<std::uint8_t, 256> digits{};
    for (std::uint8_t& digit : digits) digit = k_no_digit;
    for (std::size_t i = 0; i < k_alphabet.size(); ++i) {
        digits[static_cast<unsigned char>(k_alphabet[i])] = static_cast<std::uint8_t>(i);
    }
    return digits;
}

constexpr std::array<std::uint8_t, 256> k_digits = make_digits();

std::uint8_t digit_of(char c) { return k_digits[static_cast<unsigned char>(c)]; }

/// Encodes 1 to 3 bytes as 4 characters.
std::array<char, 4> encode_group(const unsigned char* bytes, std::size_t count) {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < 3; ++i) bits = (bits << 8) | (i < count ? bytes[i] : 0U);
    std::array<char, 4> text{};
    for (std::size_t i = 0; i < 4; ++i) text[i] = i <= count ? k_alphabet[(bits >> (18 - 6 * i)) & 0x3FU] : '=';
    return text;
}

template <class Write>
void encode(const std::vector<unsigned char>& bytes, Write write) {
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::array<char, 4> text = encode_group(bytes.data() + i, std::min<std::size_t>(3, bytes.size() - i));
        write(text.data(), text.size());
    }
}

/// What a digit stands for. Anything else is taken for an upper-case letter; the check keeps it out.
unsigned hex_value(char c) {
    if (xisdigit(c)) return static_cast<unsigned>(c - '0');
    return static_cast<unsigned>(c >= 'a' && c <= 'f' ? c - 'a' + 10 : c - 'A' + 10);
}

std::vector<unsigned char> copy_of(const unsigned char* data, std::size_t size) {
    if (size > std::vector<unsigned char>().max_size()) throw std::length_error("vector<T> too long");
    return {data, data + size};
}

}  // namespace

c_binary::c_binary(const unsigned char* data, std::size_t size) : m_bytes(copy_of(data, size)) {}

c_binary& c_binary::operator=(const c_binary& other) {
    c_binary(other).swap(*this);
    return *this;
}

c_binary& c_binary::set(const unsigned char* data, std::size_t size) {
    m_bytes = copy_of(data, size);
    return *this;
}

unsigned char* c_binary::get(unsigned char* buffer, std::size_t size) const {
    std::copy_n(m_bytes.begin(), std::min(size, m_bytes.size()), buffer);
    return buffer;
}

bool c_binary::equal(const unsigned char* data, std::size_t size) const {
    return size == m_bytes.size() && std::equal(m_bytes.begin(), m_bytes.end(), data);
}

const unsigned char& c_binary::at(std::size_t index) const {
    if (index >= m_bytes.size()) throw std::out_of_range("invalid vector<T> subscript");
    return m_bytes[index];
}

unsigned char& c_binary::at(std::size_t index) {
    return const_cast<unsigned char&>(static_cast<const c_binary&>(*this).at(index));
}

c_binary& c_binary::append(unsigned char byte) {
    m_bytes.push_back(byte);
    return *this;
}

bool c_binary::is_valid_hex(const std::string& text) {
    return text.size() % 2 == 0 && std::all_of(text.begin(), text.end(), [](char c) { return xisxdigit(c); });
}

void c_binary::from_hex(const std::string& text) {
    std::vector<unsigned char> bytes(text.size() / 2);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<unsigned char>((hex_value(text[2 * i]) << 4) | hex_value(text[2 * i + 1]));
    }
    m_bytes = std::move(bytes);
}

void c_binary::out_hex(std::ostream& stream) const {
    constexpr std::string_view k_hex_digits = "0123456789ABCDEF";
    stream.fill('0');  // and it stays, as after any number of two digits
    for (const unsigned char byte : m_bytes) {
        const std::array<char, 2> text{k_hex_digits[byte >> 4], k_hex_digits[byte & 0xFU]};
        stream << std::setw(2) << std::string_view(text.data(), text.size());
    }
}

bool c_binary::is_valid_base64(const std::string& text) {
    if (text.empty()) return true;
    std::size_t stop = 0;
    std::size_t count = 0;
    for (; stop < text.size(); ++stop) {
        if (digit_of(text[stop]) != k_no_digit) {
            ++count;
        } else if (!xisspace(text[stop])) {
            break;
        }
    }
    const std::size_t rest = text.size() - stop;
    if (stop < 2 || rest > 2 || (rest + count) % 4 != 0) return false;
    for (; stop < text.size(); ++stop) {
        if (xisspace(text[stop])) return true;
        if (text[stop] != '=') return false;
    }
    return true;
}

void c_binary::from_base64(const std::string& text) {
    std::vector<unsigned char> bytes;
    bytes.reserve(text.size() / 4 * 3 + 2);
    std::uint32_t bits = 0;
    unsigned digits = 0;
    for (const char c : text) {
        const std::uint8_t digit = digit_of(c);
        if (digit == k_no_digit) continue;
        bits = (bits << 6) | digit;
        if (++digits == 4) {
            for (const unsigned shift : {16U, 8U, 0U}) bytes.push_back(static_cast<unsigned char>(bits >> shift));
            bits = 0;
            digits = 0;
        }
    }
    if (digits > 0) {
        // One byte for a rest of 1 or 2 characters, two for 3.
        bits <<= 6 * (4 - digits);
        bytes.push_back(static_cast<unsigned char>(bits >> 16));
        if (digits == 3) bytes.push_back(static_cast<unsigned char>(bits >> 8));
    }
    m_bytes = std::move(bytes);
}

void c_binary::out_base64(std::ostream& stream) const {
    encode(m_bytes,
           [&](const char* text, std::size_t size) { stream.write(text, static_cast<std::streamsize>(size)); });
}

void c_binary::append_base64(std::string* out) const {
    out->reserve(out->size() + (m_bytes.size() + 2) / 3 * 4);
    encode(m_bytes, [&](const char* text, std::size_t size) { out->append(text, size); });
}

}  // namespace lmx
