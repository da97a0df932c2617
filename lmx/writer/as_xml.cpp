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

#include "lmx/values/utf8.h"

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

/// Whether a block of units can be printed as it is: no escapes, and for UTF-16 nothing but ASCII. One loop without
/// an early exit, which the compiler turns into vector code.
template <std::size_t Size, class Unit>
bool is_plain(const Unit* units) {
    bool is_plain = true;
    for (std::size_t i = 0; i < Size; ++i) {
        const Unit c = units[i];
        is_plain &= (sizeof(Unit) == 1 || static_cast<std::make_unsigned_t<Unit>>(c) < 0x80) & (c != '"') &
                    (c != '\'') & (c != '&') & (c != '<');
    }
    return is_plain;
}

/// Hands the escaped text on in pieces.
template <class Write>
void escape(std::string_view text, Write write) {
    constexpr std::size_t block = 16;
    const char* start = text.data();
    const char* const end = start + text.size();
    const char* at = start;
    while (at != end) {
        if (static_cast<std::size_t>(end - at) >= block && is_plain<block>(at)) {
            at += block;
            continue;
        }
        // Where one block isn't plain, the next ones on its units mostly aren't.
        for (const char* const stop = at + std::min(block, static_cast<std::size_t>(end - at)); at != stop; ++at) {
            const std::string_view escaped = escape_of(static_cast<unsigned char>(*at));
            if (escaped.empty()) continue;
            write(start, static_cast<std::size_t>(at - start));
            write(escaped.data(), escaped.size());
            start = at + 1;
        }
    }
    write(start, static_cast<std::size_t>(end - start));
}

constexpr std::size_t k_most_bytes = 6;  // of a unit: "&quot;"

template <std::size_t Size>
void narrow(const char16_t* units, char* out) {
    for (std::size_t i = 0; i < Size; ++i) out[i] = static_cast<char>(units[i]);
}

/// Writes the UTF-8 of the unit at `*at`, or of the pair, with the escapes; returns its end. What can't be told moves
/// `*at` to the end, and is dropped.
char* escape_unit(const char16_t** at, const char16_t* end, char* out) {
    std::uint32_t c = *(*at)++;
    if (c < 0x80) {
        const std::string_view escaped = escape_of(c);
        if (escaped.empty()) {
            *out = static_cast<char>(c);
            return out + 1;
        }
        return out + escaped.copy(out, escaped.size());
    }
    if (utf8::is_high_surrogate(c)) {
        if (*at == end || !utf8::is_low_surrogate(**at)) {
            *at = end;
            return out;
        }
        c = utf8::join_surrogates(c, *(*at)++);
    }
    return utf8::write(c, out);
}

/// Writes the units from `*start` on up to about `count` of them, for which there must be room, and a pair's other
/// half; moves `*start` on and returns the end of what was written.
char* escape_units(const char16_t** start, const char16_t* end, std::size_t count, char* out) {
    constexpr std::ptrdiff_t large = 16;
    constexpr std::ptrdiff_t small = 8;
    const char16_t* at = *start;
    const char16_t* const stop = at + std::min(count, static_cast<std::size_t>(end - at));
    while (at < stop) {
        const std::ptrdiff_t rest = stop - at;
        if (rest >= large && is_plain<large>(at)) {
            narrow<large>(at, out);
            at += large;
            out += large;
        } else if (rest >= small && is_plain<small>(at)) {
            narrow<small>(at, out);
            at += small;
            out += small;
        } else if (rest < small && stop - *start >= small && is_plain<small>(stop - small)) {
            // The units before the rest, being plain, are written once more to the same places.
            narrow<small>(stop - small, out - (small - rest));
            at = stop;
            out += rest;
        } else {
            for (const char16_t* const next = at + std::min(small, rest); at < next;)
                out = escape_unit(&at, end, out);
        }
    }
    *start = at;
    return out;
}

template <class Write>
void escape(std::u16string_view text, Write write) {
    std::array<char, 512> buffer;
    const char16_t* at = text.data();
    const char16_t* const end = at + text.size();
    while (at != end) {
        char* const stop = escape_units(&at, end, buffer.size() / k_most_bytes, buffer.data());
        write(buffer.data(), static_cast<std::size_t>(stop - buffer.data()));
    }
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

void append_as_xml(c_output& out, double value) {
    char* const at = out.room(k_number_text_size);
    out.advance(at + format_as_xml(at, value));
}

void append_as_xml(c_output& out, std::u16string_view value) {
    constexpr std::size_t piece = 1024;
    const char16_t* at = value.data();
    const char16_t* const end = at + value.size();
    while (at != end) {
        const std::size_t count = std::min(piece, static_cast<std::size_t>(end - at));
        out.advance(escape_units(&at, end, count, out.room(count * k_most_bytes)));
    }
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
