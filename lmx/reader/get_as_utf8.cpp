// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/get_as_utf8.h"

#include <algorithm>
#include <functional>

#include "lmx/reader/decoded_window.h"
#include "lmx/values/characters.h"
#include "lmx/values/unicode.h"
#include "lmx/values/utf8.h"

namespace lmx {
namespace {

int sequence_length(int lead) {
    if (lead < 0xC0) return 1;
    if (lead < 0xE0) return 2;
    if (lead < 0xF0) return 3;
    if (lead < 0xF8) return 4;
    return lead < 0xFC ? 5 : 6;
}

bool is_line_end(std::string_view sequence) { return utf8_line_end(sequence) == sequence.size(); }

bool is_within(int value, int low, int high) { return value >= low && value <= high; }

bool equals_ignoring_case(const char* name, const char* upper) {
    for (; *name != 0 && *upper != 0; ++name, ++upper) {
        const char c = is_within(*name, 'a', 'z') ? static_cast<char>(*name - 'a' + 'A') : *name;
        if (c != *upper) return false;
    }
    return *name == *upper;
}

}  // namespace

void c_unget_buffer::unget(int value) {
    if (m_count == 3) {
        std::copy(m_values + 1, m_values + 3, m_values);
        --m_count;
    }
    m_values[m_count++] = value;
}

c_get_as_utf8::c_get_as_utf8(c_read& reader, c_error& error)
    : m_reader(reader), m_error(error), m_error_binder(error) {
    m_error_binder.bind(this);
}

c_get_as_utf8::~c_get_as_utf8() = default;

void c_get_as_utf8::report(scanner_fault fault, elmx_error_type type, elmx_error code, const char* text) {
    if (!is_shut() && (type == ELMX_TYPE_FATAL || type == ELMX_TYPE_ERROR)) m_fault = fault;
    m_error.error(type, code, get_source_id(), m_line_num, text);
}

void c_get_as_utf8::error(scanner_fault fault, std::initializer_list<std::string_view> parts) {
    const s_scanner_fault& row = row_of(fault);
    std::string text;
    std::string_view rest = row.text;
    for (const std::string_view part : parts) {
        const std::size_t place = rest.find("{}");
        text.append(rest.substr(0, place)).append(part);
        rest.remove_prefix(place + 2);
    }
    text += rest;
    report(fault, row.type, row.code, text.c_str());
}

bool c_get_as_utf8::at_end_of_input() const {
    return m_error.is_fatal_errored() || (m_is_source_at_end && m_unget.empty() && m_pending == nullptr);
}

void c_get_as_utf8::rewind() {
    set_form(enc_unknown);
    m_last_char = 0;
    m_unget.clear();
    m_utf8_char[0] = 0;
    m_pending = nullptr;
    m_line_num = 1;
    m_recounted = 0;
    m_returned_feeds = 0;
    m_is_source_at_end = false;
    // A source may serve what is left of its buffer first: it must know what that is.
    const std::uint64_t bytes_read = get_bytes_read();
    if (bytes_read != m_bytes_taken) m_reader.give_back(static_cast<std::size_t>(m_bytes_taken - bytes_read));
    m_bytes_taken = bytes_read;
    m_begin = m_current = m_end = m_window_end = m_furthest = nullptr;
    if (m_decoded != nullptr) m_decoded->drop();
    m_reader.rewind();
}

void c_get_as_utf8::set_form(int form) {
    leave_decoded();
    if (m_decoded != nullptr) m_decoded->drop();
    m_is_decoding = false;
    m_encoding = form;
    cover();
}

/// Whether what stands ahead in the source's window, which isn't empty, should be decoded.
bool c_get_as_utf8::is_decoding_due() const {
    if (m_encoding == enc_unknown) return false;
    if (m_is_decoding || *m_current == '\r') return true;
    if (m_encoding == enc_single_byte) return static_cast<signed char>(*m_current) < 0;
    return m_encoding != enc_utf8 || utf8_line_end(rest_of_window()) != 0;
}

void c_get_as_utf8::enter_decoded() {
    if (m_is_decoded) leave_decoded();
    if (m_current == m_window_end || !is_decoding_due()) return;
    if (m_decoded == nullptr) m_decoded = std::make_unique<c_decoded_window>();
    const bool is_behind_return = m_last_char == '\r';
    if (!m_decoded->resume(m_current, is_behind_return) &&
        !m_decoded->decode(m_encoding, rest_of_window(), is_behind_return)) {
        return;
    }
    m_is_decoding = m_decoded->is_changed();
    m_source_end = m_window_end;
    m_begin = m_current = m_decoded->current();
    m_window_end = m_decoded->end();
    m_furthest = nullptr;
    m_is_decoded = true;
    // The decoder has seen to the pair.
    if (is_behind_return) m_last_char = 0;
}

/// Back to the source, as if it had been read byte by byte.
void c_get_as_utf8::leave_decoded() {
    if (!m_is_decoded) return;
    const char* read_to = std::max(m_furthest, m_current, std::less<>());
    const c_decoded_window::s_place& place = m_decoded->seek(read_to);
    const std::string_view rest = m_decoded->rest_of_char(read_to);
    if (!rest.empty()) {
        *std::copy(rest.begin(), rest.end(), m_utf8_char) = 0;
        m_pending = m_utf8_char;
    }
    if (read_to == m_current && place.is_behind_return) m_last_char = '\r';
    while (read_to != m_current) m_unget.unget(static_cast<unsigned char>(*--read_to));
    m_begin = m_current = place.at;
    m_window_end = m_source_end;
    m_furthest = nullptr;
    m_is_decoded = false;
}

void c_get_as_utf8::give_back(int c) {
    leave_decoded();
    m_returned_feeds += static_cast<int>(c == '\n');
    m_unget.unget(c);
    cover();
}

int c_get_as_utf8::refill() {
    if (m_is_decoded ? m_current == m_window_end
                     : m_current != m_window_end && m_unget.empty() && m_pending == nullptr) {
        enter_decoded();
    }
    int c = raw_step();
    if (c == '\n' && m_last_char == '\r') c = raw_step();
    m_last_char = c;
    if (c == '\n' && m_returned_feeds > 0) {
        --m_returned_feeds;
        ++m_recounted;
    }
    // One that came from a lone carriage return never comes back.
    if (m_unget.empty()) m_returned_feeds = 0;
    // In these, ASCII stands as it reads.
    const bool is_plain = m_is_decoded || m_encoding == enc_utf8 || m_encoding == enc_single_byte;
    if (is_plain && m_unget.empty() && m_pending == nullptr) {
        m_end = m_window_end;
    } else {
        cover();
    }
    if (c == '\r') {
        ++m_line_num;
        return '\n';
    }
    if (c == '\n') ++m_line_num;
    return c;
}

std::uint64_t c_get_as_utf8::get_bytes_read() {
    const char* const read_to = std::max(m_furthest, m_current, std::less<>());
    const char* const unread = m_is_decoded ? m_decoded->seek(read_to).at : read_to;
    return m_bytes_taken - static_cast<std::uint64_t>((m_is_decoded ? m_source_end : m_window_end) - unread);
}

int c_get_as_utf8::read_byte() {
    return m_current != m_window_end ? static_cast<unsigned char>(*m_current++) : read_byte_slowly();
}

int c_get_as_utf8::read_byte_slowly() {
    const std::string_view window = m_reader.take_window();
    m_furthest = nullptr;
    if (m_decoded != nullptr) m_decoded->drop();
    if (!window.empty()) {
        m_begin = m_current = window.data();
        m_window_end = m_current + window.size();
        m_bytes_taken += window.size();
        return static_cast<unsigned char>(*m_current++);
    }
    m_begin = m_current = m_window_end = nullptr;
    const int byte = m_reader.read();
    if (byte < 0) {
        m_is_source_at_end = true;
        return -1;
    }
    ++m_bytes_taken;
    return byte;
}

int c_get_as_utf8::raw_step() {
    if (m_error.is_fatal_errored()) return -1;
    if (!m_unget.empty()) return m_unget.get();
    if (m_pending != nullptr) {
        const int byte = static_cast<unsigned char>(*m_pending++);
        if (*m_pending == 0) m_pending = nullptr;
        return byte;
    }
    if (m_is_decoded) return static_cast<unsigned char>(*m_current++);
    const int byte = read_byte();
    if (byte < 0) return -1;
    switch (m_encoding) {
        case enc_single_byte:
            return byte > 126 ? encode(byte) : byte;
        case enc_utf8:
            return byte > 127 ? decode_utf8(byte) : byte;
        case enc_utf16_be:
        case enc_utf16_le:
            return decode_utf16(byte, m_encoding == enc_utf16_be);
        case enc_ucs2_be:
        case enc_ucs2_le: {
            const int unit = read_unit(byte, m_encoding == enc_ucs2_be);
            return unit < 0 ? -1 : encode(unit);
        }
        default:
            return detect_encoding(byte);
    }
}

int c_get_as_utf8::encode(int code_point) {
    if (code_point == k_next_line || code_point == k_line_separator) return '\n';
    unicode_char_to_utf8(code_point, m_utf8_char);
    m_pending = m_utf8_char[0] != 0 && m_utf8_char[1] != 0 ? m_utf8_char + 1 : nullptr;
    return static_cast<unsigned char>(m_utf8_char[0]);
}

/// The further bytes of a sequence are taken as they come: the check looks at the first two only.
int c_get_as_utf8::decode_utf8(int lead) {
    const int length = sequence_length(lead);
    m_utf8_char[0] = static_cast<char>(lead);
    bool is_void = false;
    for (int i = 1; i < length; ++i) {
        const int byte = read_byte();
        is_void = byte < 0;
        m_utf8_char[i] = static_cast<char>(byte);
    }
    m_utf8_char[length] = 0;
    if (!is_void && is_line_end(m_utf8_char)) {
        m_utf8_char[0] = '\n';
        m_utf8_char[1] = 0;
    }
    if (is_void || !is_valid_utf8_char_sequence(m_utf8_char)) {
        m_utf8_char[0] = 0;
        return -1;
    }
    m_pending = m_utf8_char[0] != 0 && m_utf8_char[1] != 0 ? m_utf8_char + 1 : nullptr;
    return static_cast<unsigned char>(m_utf8_char[0]);
}

int c_get_as_utf8::read_unit(int first, bool is_big_endian) {
    const int second = read_byte();
    if (second < 0) return -1;
    return is_big_endian ? (first << 8) | second : (second << 8) | first;
}

int c_get_as_utf8::decode_utf16(int first, bool is_big_endian) {
    const int unit = read_unit(first, is_big_endian);
    if (unit < 0) return -1;
    const auto high = static_cast<std::uint32_t>(unit);
    if (!utf8::is_high_surrogate(high)) return encode(unit);
    const int next_first = read_byte();
    if (next_first < 0) return -1;
    const int next = read_unit(next_first, is_big_endian);
    if (next < 0) return -1;
    const auto low = static_cast<std::uint32_t>(next);
    if (!utf8::is_low_surrogate(low)) return refuse_encoding();
    return encode(static_cast<int>(utf8::join_surrogates(high, low)));
}

int c_get_as_utf8::refuse_encoding() {
    error(scanner_fault::unknown_bytes);
    return -1;
}

int c_get_as_utf8::detect_encoding(int first) {
    const auto is_start = [](int c) { return xisspace(c) || c == '<'; };
    if (first == 0xFF && read_byte() == 0xFE) {
        const int low = read_byte();
        const int high = read_byte();
        if (is_within(low, 1, 127) && high == 0) {
            set_form(enc_utf16_le);
            return low;
        }
    } else if (first == 0xFE && read_byte() == 0xFF) {
        const int high = read_byte();
        const int low = read_byte();
        if (high == 0 && is_within(low, 1, 127)) {
            set_form(enc_utf16_be);
            return low;
        }
    } else if (first == 0xEF && read_byte() == 0xBB && read_byte() == 0xBF) {
        set_form(enc_utf8);
        return read_byte();
    } else if (is_start(first)) {
        const int second = read_byte();
        set_form(second == 0 ? enc_utf16_le : enc_utf8);
        if (second > 0) {
            decode_utf8(second);
            m_pending = m_utf8_char;
        }
        return first;
    } else if (first == 0) {
        const int second = read_byte();
        if (is_start(second)) {
            set_form(enc_utf16_be);
            return second;
        }
    }
    return refuse_encoding();
}

bool c_get_as_utf8::set_encoding(const char* name) {
    const bool is_utf16 = m_encoding == enc_utf16_be || m_encoding == enc_utf16_le;
    bool is_accepted = false;
    if (equals_ignoring_case(name, "ISO-10646-UCS-2")) {
        is_accepted = is_utf16;
        if (is_utf16) set_form(m_encoding == enc_utf16_be ? enc_ucs2_be : enc_ucs2_le);
    } else if (equals_ignoring_case(name, "ISO-8859-1") || equals_ignoring_case(name, "US-ASCII")) {
        is_accepted = m_encoding == enc_utf8;
        set_form(enc_single_byte);
    } else if (equals_ignoring_case(name, "UTF-8")) {
        is_accepted = m_encoding == enc_utf8;
    } else if (equals_ignoring_case(name, "UTF-16")) {
        is_accepted = is_utf16;
    } else {
        error(scanner_fault::unknown_encoding);
        return false;
    }
    if (!is_accepted) error(scanner_fault::other_encoding);
    return is_accepted;
}

std::size_t c_get_as_utf8::plain_length(std::string_view bytes) const {
    if ((m_encoding != enc_utf8 && !m_is_decoded) || utf8_line_end(bytes) != 0) return 0;
    return whole_utf8_char(bytes);
}

void c_get_as_utf8::take_run(const byte_set& stops, std::string* out) {
    const std::string_view bytes = ahead();
    // A set that stops at all bytes over 127 but takes ASCII punctuation is one of text, which may go on.
    const bool is_text = !stops[';'];
    std::size_t size = run_length(bytes, 0, stops);
    while (size < bytes.size() && is_text && static_cast<signed char>(bytes[size]) < 0) {
        const std::size_t length = plain_length(bytes.substr(size));
        if (length == 0) break;
        size = run_length(bytes, size + length, stops);
    }
    if (size == 0) return;
    const std::string_view run = bytes.substr(0, size);
    if (out != nullptr) out->append(run);
    take_ahead(size, stops['\n'] ? 0 : static_cast<int>(std::count(run.begin(), run.end(), '\n')));
}

}  // namespace lmx
