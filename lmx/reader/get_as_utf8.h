// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The lowest layer of the reader: bytes of any supported encoding become UTF-8, line ends become line feeds, and
/// lines are counted.

#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

#include "lmx/error.h"
#include "lmx/export.h"
#include "lmx/reader/byte_set.h"
#include "lmx/reader/read.h"
#include "lmx/reader/scanner_fault.h"

namespace lmx {

class c_decoded_window;

/// Values that were given back, last in, first out. Three is the most that any layer gives back; a fourth would
/// push out the oldest.
class VYR_EXPORT c_unget_buffer {
public:
    bool empty() const { return m_count == 0; }
    std::size_t size() const { return static_cast<std::size_t>(m_count); }
    void clear() { m_count = 0; }
    int get() { return m_values[--m_count]; }
    void unget(int value);

private:
    int m_values[3] = {};
    int m_count = 0;
};

/// Input forms. Detected at the first byte; the XML declaration may change it once more.
enum encoding : int {
    enc_unknown = 0,
    enc_single_byte = 1,  ///< one byte per character, which is its code point
    enc_utf8 = 2,
    enc_utf16_be = 3,
    enc_utf16_le = 4,
    enc_ucs2_be = 5,  ///< two bytes, no surrogates
    enc_ucs2_le = 6
};

class VYR_EXPORT c_get_as_utf8 {
public:
    /// Neither is owned. A source that hands out windows is read ahead of what `get` has delivered: it belongs to
    /// this object until that is gone or rewound. Registers itself in `error` for its lifetime.
    c_get_as_utf8(c_read& reader, c_error& error);
    c_get_as_utf8(const c_get_as_utf8&) = delete;
    c_get_as_utf8& operator=(const c_get_as_utf8&) = delete;
    virtual ~c_get_as_utf8();

    /// The next byte of the document as UTF-8, 0 to 255, with line feeds as line ends; -1 at the end of input,
    /// after a fatal report and for an illegal UTF-8 sequence.
    int get() {
        // Anything from a blank up to 127 stands for itself and is no line end.
        if (m_current != m_end && !is_shut()) {
            const int byte = static_cast<unsigned char>(*m_current);
            if (byte >= ' ' && byte < 128) {
                m_last_char = byte;
                ++m_current;
                return byte;
            }
        }
        return refill();
    }
    void unget(int c) {
        // The last character taken from the window can stay there, unless giving it back counts a line anew.
        if (c < ' ' || c >= 127 || m_current == m_begin || m_current[-1] != c) return give_back(c);
        if (m_furthest < m_current) m_furthest = m_current;
        --m_current;
    }
    void rewind();
    /// Takes the encoding's name from the XML declaration. False, with a fatal report, for an unknown name or one
    /// that contradicts the bytes.
    bool set_encoding(const char* name);

    /// From 1; a line feed that is given back counts again.
    int get_line_num() const { return m_line_num; }
    /// The line as an editor shows it: each line end counts once.
    int get_text_line() const { return m_line_num - m_recounted; }
    /// How many bytes of the source lie ahead of what comes next, or, in the text of an entity, ahead of what follows
    /// the reference. It means nothing once the source had to be decoded in stretches.
    std::uint64_t get_offset() const {
        const std::uint64_t unit = m_encoding >= enc_utf16_be ? 2 : 1;
        return m_bytes_taken - static_cast<std::uint64_t>(m_window_end - m_current) - unit * m_unget.size();
    }
    bool has_decoded() const { return m_decoded != nullptr; }
    /// One of `encoding`.
    int get_encoding() const { return m_encoding; }
    const char* get_source_id() const { return m_reader.get_source_id(); }
    c_error& get_error_handler() const { return m_error; }

    void error(elmx_error_type type, elmx_error code, const char* text) {
        report(scanner_fault::other, type, code, text);
    }
    void error(elmx_error_type type, elmx_error code, const std::string& text) { error(type, code, text.c_str()); }
    /// Reports a fault by its row; the parts stand for the `{}` of its text, of which there are as many.
    void error(scanner_fault fault, std::initializer_list<std::string_view> parts = {});

    /// True once nothing more can come: the source has ended or a fatal report has shut the reader.
    bool at_end_of_input() const;
    /// True once the source had no further byte to give.
    bool has_source_ended() const { return m_is_source_at_end; }

protected:
    /// The next character when the window at hand doesn't simply show it. A layer that puts other text in the
    /// window's place covers the window and overrides this, and what takes back characters of that text.
    virtual int refill();
    virtual void give_back(int c);
    /// Hides the window up to the next character that this layer reads.
    void cover() { m_begin = m_end = m_current; }

    /// The last one that was reported as an error.
    scanner_fault get_fault() const { return m_fault; }

    // Short cuts through the window, which is the source's or one decoded from it. Each does what calls of `get` and
    // `unget` would do, or nothing, when the state or the window's end doesn't let it see enough: callers go on with
    // `get`.

    /// The bytes ahead in the window; empty when the next character may not be what stands there.
    std::string_view ahead() const { return is_shut() || m_last_char == '\r' ? std::string_view() : shown(); }
    /// Takes bytes that lie ahead, at least one: without carriage returns, and with so many line feeds.
    void take_ahead(std::size_t count, int line_feeds) {
        m_current += count;
        m_last_char = static_cast<unsigned char>(m_current[-1]);
        m_line_num += line_feeds;
    }
    /// Takes the run of characters ahead, up to one in `stops`; appends it to `out` unless that is null.
    void take_run(const byte_set& stops, std::string* out);
    /// Whether the text, which holds no line end, lies ahead; false also when that can't be seen.
    bool is_ahead(std::string_view text) const { return !is_shut() && shown().starts_with(text); }
    /// The same, as if the text had been read and given back if it is there.
    bool touch_if_ahead(std::string_view text) {
        if (!is_ahead(text)) return false;
        m_last_char = static_cast<unsigned char>(text.back());
        if (m_furthest < m_current + text.size()) m_furthest = m_current + text.size();
        return true;
    }
    /// Takes the text if it lies ahead.
    bool take_if_ahead(std::string_view text) {
        if (!is_ahead(text)) return false;
        take_ahead(text.size(), 0);
        return true;
    }
    /// The same with a text in three parts. Where `body` isn't ASCII, its last byte may reach into what is behind it.
    bool take_if_ahead(std::string_view head, std::string_view body, std::string_view tail) {
        const std::size_t size = head.size() + body.size() + tail.size();
        if (!is_ahead(head) || shown().size() < size) return false;
        const std::string_view rest = shown().substr(head.size(), size - head.size());
        if (!rest.starts_with(body) || !rest.ends_with(tail) || !is_ascii(body)) return false;
        take_ahead(size, 0);
        return true;
    }

    /// The length of the UTF-8 character that `get` would deliver as it stands; 0 if it wouldn't, or can't be seen
    /// whole.
    std::size_t plain_length(std::string_view bytes) const;

    /// Bytes taken from the source so far, those given back included.
    std::uint64_t get_bytes_read();

    bool is_shut() const { return m_error.is_fatal_errored(); }

private:
    std::string_view shown() const { return {m_current, static_cast<std::size_t>(m_end - m_current)}; }
    std::string_view rest_of_window() const {
        return {m_current, static_cast<std::size_t>(m_window_end - m_current)};
    }
    void set_form(int form);
    bool is_decoding_due() const;
    void enter_decoded();
    void leave_decoded();
    void report(scanner_fault fault, elmx_error_type type, elmx_error code, const char* text);

    int read_byte();
    int read_byte_slowly();
    int raw_step();
    int detect_encoding(int first);
    int refuse_encoding();
    int encode(int code_point);
    int decode_utf8(int lead);
    int read_unit(int first, bool is_big_endian);
    int decode_utf16(int first, bool is_big_endian);

    c_read& m_reader;
    c_error& m_error;
    c_getter_error_binder m_error_binder;
    scanner_fault m_fault = scanner_fault::other;
    int m_encoding = enc_unknown;
    int m_last_char = 0;
    c_unget_buffer m_unget;
    char m_utf8_char[8] = {};
    const char* m_pending = nullptr;
    int m_line_num = 1;
    int m_recounted = 0;       ///< line feeds that `m_line_num` counts a second time
    int m_returned_feeds = 0;  ///< those among what was given back
    // The window, byte by byte as it stands there if it is ASCII; nothing of it while something else comes first.
    const char* m_begin = nullptr;       ///< what was taken from it, as far as it can be given back
    const char* m_current = nullptr;     ///< what comes next
    const char* m_end = nullptr;         ///< the end of what is shown
    const char* m_window_end = nullptr;  ///< its end
    const char* m_furthest = nullptr;    ///< the furthest place read in the window, when behind `m_current`
    std::uint64_t m_bytes_taken = 0;     ///< handed out by the source, the window's unread part included
    // While a decoded window is in use, nothing is given back but what stands in it, and the decoder keeps count of
    // where the source stands.
    std::unique_ptr<c_decoded_window> m_decoded;
    const char* m_source_end = nullptr;  ///< of the source's window
    bool m_is_decoded = false;           ///< the window in use is the decoded one
    bool m_is_decoding = false;          ///< the last stretch decoded wasn't plain: the next may not be either
    bool m_is_source_at_end = false;
};

}  // namespace lmx
