// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Text forms of values, with the escapes.

#include "lmx/writer/as_xml.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace lmx {

namespace {

/// The escape of a character, or an empty text.
constexpr std::string_view escape_of(unsigned c) {
    switch (c) {
        case '"':
            return "&quot;";
        case '\'':
            return "&apos;";
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        default:
            return {};
    }
}

constexpr std::size_t k_block = 16;

/// Whether a block can be printed as it is: no escapes, and for UTF-16 nothing but ASCII. One loop without an early
/// exit, which the compiler turns into vector code.
template <class Unit>
bool is_plain_block(const Unit* units) {
    bool is_plain = true;
    for (std::size_t i = 0; i < k_block; ++i) {
        const Unit c = units[i];
        is_plain &= (sizeof(Unit) == 1 || static_cast<std::make_unsigned_t<Unit>>(c) < 0x80) & (c != '"') &
                    (c != '\'') & (c != '&') & (c != '<');
    }
    return is_plain;
}

/// The units up to the next test of a block: where one block isn't plain, the next ones on its units mostly aren't.
template <class Unit>
std::size_t block_at(const Unit* at, const Unit* end) {
    return std::min(k_block, static_cast<std::size_t>(end - at));
}

/// Hands the escaped text on in pieces.
template <class Write>
void escape(std::string_view text, Write write) {
    const char* start = text.data();
    const char* const end = start + text.size();
    const char* at = start;
    while (at != end) {
        if (static_cast<std::size_t>(end - at) >= k_block && is_plain_block(at)) {
            at += k_block;
            continue;
        }
        for (const char* const stop = at + block_at(at, end); at != stop; ++at) {
            const std::string_view escaped = escape_of(static_cast<unsigned char>(*at));
            if (escaped.empty()) continue;
            write(start, static_cast<std::size_t>(at - start));
            write(escaped.data(), escaped.size());
            start = at + 1;
        }
    }
    write(start, static_cast<std::size_t>(end - start));
}

template <class Write>
void escape(std::u16string_view text, Write write) {
    constexpr std::size_t most_bytes = 6;  // of a unit: "&quot;"
    std::array<char, 512> buffer;
    std::size_t size = 0;
    const auto put = [&](std::uint32_t byte) { buffer[size++] = static_cast<char>(byte); };
    const char16_t* at = text.data();
    const char16_t* const end = at + text.size();
    const char16_t* next_block = at;
    while (at != end) {
        if (at >= next_block) {
            if (buffer.size() - size < k_block * most_bytes) {
                write(buffer.data(), size);
                size = 0;
            }
            if (static_cast<std::size_t>(end - at) >= k_block && is_plain_block(at)) {
                for (std::size_t i = 0; i < k_block; ++i) buffer[size + i] = static_cast<char>(at[i]);
                size += k_block;
                at += k_block;
                next_block = at;
                continue;
            }
            next_block = at + block_at(at, end);
        }
        std::uint32_t c = *at++;
        if (c < 0x80) {
            const std::string_view escaped = escape_of(c);
            if (escaped.empty()) {
                put(c);
            } else {
                escaped.copy(buffer.data() + size, escaped.size());
                size += escaped.size();
            }
            continue;
        }
        if (c >= 0xD800 && c <= 0xDBFF) {
            if (at == end || *at < 0xDC00 || *at > 0xDFFF) break;  // the rest can't be told: it is dropped
            c = (((c & 0x3FFU) + 0x40U) << 10) + (*at++ & 0x3FFU);
        }
        if (c < 0x800) {
            put(0xC0U | (c >> 6));
            put(0x80U | (c & 0x3FU));
        } else if (c < 0x10000) {
            put(0xE0U | (c >> 12));
            put(0x80U | ((c >> 6) & 0x3FU));
            put(0x80U | (c & 0x3FU));
        } else {
            put(0xF0U | (c >> 18));
            put(0x80U | ((c >> 12) & 0x3FU));
            put(0x80U | ((c >> 6) & 0x3FU));
            put(0x80U | (c & 0x3FU));
        }
    }
    write(buffer.data(), size);
}

template <class Text>
std::ostream& write_escaped(std::ostream& stream, const Text& text) {
    escape(text,
           [&](const char* piece, std::size_t size) { stream.write(piece, static_cast<std::streamsize>(size)); });
    return stream;
}

template <class Number>
std::ostream& write_number(std::ostream& stream, Number value) {
    std::array<char, k_number_text_size> buffer;
    return stream << std::string_view(buffer.data(), format_as_xml(buffer.data(), value));
}

}  // namespace

void append_as_xml(std::string& out, double value) {
    std::array<char, k_number_text_size> buffer;
    out.append(buffer.data(), format_as_xml(buffer.data(), value));
}

void append_as_xml(std::string& out, float value) {
    std::array<char, k_number_text_size> buffer;
    out.append(buffer.data(), format_as_xml(buffer.data(), value));
}

void append_as_xml(std::string& out, std::string_view value) {
    escape(value, [&](const char* piece, std::size_t size) { out.append(piece, size); });
}

void append_as_xml(std::string& out, std::u16string_view value) {
    escape(value, [&](const char* piece, std::size_t size) { out.append(piece, size); });
}

std::ostream& operator<<(std::ostream& stream, const c_as_xml<double>& value) {
    return write_number(stream, value.get());
}
std::ostream& operator<<(std::ostream& stream, const c_as_xml<float>& value) {
    return write_number(stream, value.get());
}
std::ostream& operator<<(std::ostream& stream, const c_as_xml<bool>& value) {
    return stream << (value.get() ? "true" : "false");
}
std::ostream& operator<<(std::ostream& stream, const c_as_xml<std::string>& value) {
    return write_escaped(stream, std::string_view(value.get()));
}
std::ostream& operator<<(std::ostream& stream, const c_as_xml<std::u16string>& value) {
    return write_escaped(stream, std::u16string_view(value.get()));
}

std::ostream& operator<<(std::ostream& stream, const c_as_escaped<std::string>& value) {
    return stream << c_as_xml(value.get());
}

std::ostream& operator<<(std::ostream& stream, const c_as_ascii<std::string>& value) {
    return stream.write(value.get().data(), static_cast<std::streamsize>(value.get().size()));
}

std::ostream& operator<<(std::ostream& stream, const c_as_bool_digit& value) {
    return stream << (value.get() ? '1' : '0');
}

std::ostream& operator<<(std::ostream& stream, const c_as_hex<c_binary>& value) {
    value.get().out_hex(stream);
    return stream;
}

std::ostream& operator<<(std::ostream& stream, const c_as_base64<c_binary>& value) {
    value.get().out_base64(stream);
    return stream;
}

}  // namespace lmx
