// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The lowest layer of the reader: bytes of any supported encoding become UTF-8, line ends become line feeds, and
/// lines are counted.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "lmx/error.h"
#include "lmx/export.h"
#include "lmx/reader/byte_set.h"
#include "lmx/reader/read.h"

namespace lmx {

/// Values that were given back, last in, first out. Three is the most that any layer gives back; a fourth would
/// push out the oldest.
class c_unget_buffer {
public:
    bool empty() const { return m_count == 0; }
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
    /// Neither is owned. Registers itself in `error` for its lifetime.
    c_get_as_utf8(c_read& reader, c_error& error);
    c_get_as_utf8(const c_get_as_utf8&) = delete;
    c_get_as_utf8& operator=(const c_get_as_utf8&) = delete;
    virtual ~c_get_as_utf8();

    /// The next byte of the document as UTF-8, 0 to 255, with line feeds as line ends; -1 at the end of input,
    /// after a fatal report and for an illegal UTF-8 sequence.
    int get();
    void unget(int c) { m_unget.unget(c); }
    void rewind();
    /// Takes the encoding's name from the XML declaration. False, with a fatal report, for an unknown name or one
    /// that contradicts the bytes.
    bool set_encoding(const char* name);

    int get_line_num() const { return m_line_num; }
    const char* get_source_id() const { return m_reader.get_source_id(); }
    c_error& get_error_handler() const { return m_error; }

    void error(elmx_error_type type, elmx_error code, const char* text);
    void error(elmx_error_type type, elmx_error code, const std::string& text) { error(type, code, text.c_str()); }

    /// True once nothing more can come: the source has ended or a fatal report has shut the reader.
    bool at_end_of_input() const;

protected:
    /// Takes the run of characters ahead that `get` would deliver one by one, up to one in `stops`; appends it to
    /// `out` unless that is null. Takes what it can see in a row, which may be nothing: callers go on with `get`.
    void take_run(const byte_set& stops, std::string* out);

    /// Bytes taken from the source so far.
    std::uint64_t get_bytes_read() const { return m_bytes_read; }

private:
    int read_byte();
    int raw_step();
    int detect_encoding(int first);
    int refuse_encoding();
    int encode(int code_point);
    int decode_utf8(int lead);
    int read_unit(int first, bool is_big_endian);
    int decode_utf16(int first, bool is_big_endian);
    std::size_t run_length(std::string_view bytes, const byte_set& stops) const;

    c_read& m_reader;
    c_error& m_error;
    c_getter_error_binder m_error_binder;
    int m_encoding = enc_unknown;
    int m_last_char = 0;
    c_unget_buffer m_unget;
    char m_utf8_char[8] = {};
    const char* m_pending = nullptr;
    int m_line_num = 1;
    std::uint64_t m_bytes_read = 0;
    bool m_is_source_at_end = false;
};

}  // namespace lmx
