// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What the reader's lower layers do, said once more and a byte at a time, without a thought of speed: the referee
/// for windows, marks and all other short cuts.

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "lmx/reader/get_for_xml.h"
#include "lmx/values/characters.h"
#include "lmx/values/unicode.h"

namespace lmx_test {

class c_transcription {
public:
    c_transcription(lmx::c_read& source, lmx::c_error& errors) : m_source(source), m_errors(errors) {}

    int get() {
        while (!m_texts.empty()) {
            s_text& top = m_texts.back();
            if (m_errors.is_fatal_errored()) return -1;
            if (!top.unget.empty()) return pop(&top.unget);
            if (top.text[top.position] != 0) {
                const int byte = static_cast<signed char>(top.text[top.position++]);
                return byte == -1 ? -257 : byte;
            }
            m_texts.pop_back();
        }
        int c = raw_step();
        if (c == '\n' && m_last == '\r') c = raw_step();
        m_last = c;
        if (c == '\r') c = '\n';
        if (c == '\n') ++m_line;
        return c;
    }
    void unget(int c) {
        std::vector<int>& values = m_texts.empty() ? m_unget : m_texts.back().unget;
        values.push_back(c);
        if (values.size() > 3) values.erase(values.begin());
    }
    bool set_input_entity_value(const char* value) {
        for (const s_text& open : m_texts) {
            if (open.text != value) continue;
            fatal(lmx::ELMX_BAD_DTD, "Recursive entity definition for: " + std::string(value));
            return false;
        }
        m_texts.push_back({value, 0, {}});
        return true;
    }
    void rewind() {
        m_form = lmx::enc_unknown;
        m_last = 0;
        m_unget.clear();
        m_pending.clear();
        m_line = 1;
        m_mode = lmx::ELMX_WS_PRESERVE;
        m_is_source_at_end = false;
        m_source.rewind();
    }
    bool set_encoding(const std::string& name) {
        const bool is_wide = m_form == lmx::enc_utf16_be || m_form == lmx::enc_utf16_le;
        bool is_accepted = m_form == lmx::enc_utf8;
        if (name == "ISO-8859-1") {
            m_form = lmx::enc_single_byte;
        } else if (name == "UTF-16") {
            is_accepted = is_wide;
        } else if (name == "ISO-10646-UCS-2") {
            is_accepted = is_wide;
            if (is_wide) m_form = m_form == lmx::enc_utf16_be ? lmx::enc_ucs2_be : lmx::enc_ucs2_le;
        }
        if (!is_accepted) {
            fatal(lmx::ELMX_ENCODING_MISMATCH, "Mis-match between specfied encoding and byte format");
        }
        return is_accepted;
    }
    int get_line_num() const { return m_line; }
    /// Nothing more can come.
    bool at_end_of_input() const {
        if (m_errors.is_fatal_errored()) return true;
        for (const s_text& open : m_texts) {
            if (open.text[open.position] != 0 || !open.unget.empty()) return false;
        }
        return m_is_source_at_end && m_unget.empty() && m_pending.empty();
    }

    int get_non_ws() {
        int c = get();
        while (lmx::xisspace(c)) c = get();
        return c;
    }
    bool skip_comment() {
        for (int hyphens = 0;;) {
            const int c = get();
            if (c == -1) return false;
            if (c == '>' && hyphens >= 2) {
                if (hyphens > 2)
                    report(lmx::ELMX_TYPE_WARNING, lmx::ELMX_BAD_COMMENT, "End of comment not Well-Formed");
                return true;
            }
            hyphens = c == '-' ? hyphens + 1 : 0;
        }
    }
    bool skip_PI() {
        for (int last = 0;;) {
            const int c = get();
            if (c == -1 || (c == '>' && last == '?')) return c != -1;
            last = c;
        }
    }
    bool move_to_start_tag_end(bool* is_empty) {
        int quote = 0;
        for (int c = get(); c != -1; c = get()) {
            if (quote != 0) {
                if (c == quote) quote = 0;
            } else if (c == '"' || c == '\'') {
                quote = c;
            } else if (c == '>') {
                *is_empty = false;
                return true;
            } else if (c == '/') {
                bool is_right = true;
                for (c = get(); c != '>' && c != -1; c = get()) {
                    if (lmx::xisspace(c) || !is_right) continue;
                    is_right = false;
                    report(lmx::ELMX_TYPE_ERROR, lmx::ELMX_BAD_END_TAG,
                           "Illegal character(s) after / at end of tag - " + std::string(1, static_cast<char>(c)));
                }
                *is_empty = true;
                return is_right;
            }
        }
        return false;
    }
    bool is_element_end_tag(const std::string& name) {
        if (get_non_ws() != '<' || get() != '/') return false;
        for (const char expected : name) {
            const int c = get();
            if (c == -1 || static_cast<char>(c) != expected) return false;
        }
        return get_non_ws() == '>';
    }
    /// Without references.
    bool get_element_value(std::string* value, lmx::elmx_whitespace mode) {
        value->clear();
        m_mode = mode;
        for (bool is_blank_due = false;;) {
            int c = get();
            if (c == -1) {
                report(lmx::ELMX_TYPE_ERROR, lmx::ELMX_UNEXPECTED_END_OF_MESSAGE,
                       "Premature end of file encountered");
                return false;
            }
            if (c != '<') {
                add(value, c, &is_blank_due);
                continue;
            }
            c = get();
            if (c == '?') {
                if (!skip_PI() && !at_end_of_input()) return false;
            } else if (c != '!') {
                unget(c);
                unget('<');
                return true;
            } else if (get() != '-' || get() != '-') {
                report(lmx::ELMX_TYPE_ERROR, lmx::ELMX_NOT_WELL_FORMED, "XML not well-formed");
                return false;
            } else if (!skip_comment() && !at_end_of_input()) {
                return false;
            }
        }
    }

private:
    struct s_text {
        const char* text;
        std::size_t position;
        std::vector<int> unget;
    };

    static int pop(std::vector<int>* values) {
        const int value = values->back();
        values->pop_back();
        return value;
    }
    void report(lmx::elmx_error_type type, lmx::elmx_error code, const std::string& text) {
        m_errors.error(type, code, m_source.get_source_id(), m_line, text.c_str());
    }
    void fatal(lmx::elmx_error code, const std::string& text) { report(lmx::ELMX_TYPE_FATAL, code, text); }
    int refuse() {
        fatal(lmx::ELMX_BAD_CHAR_ENCODING, "Unrecognised character encoding");
        return -1;
    }
    void add(std::string* value, int c, bool* is_blank_due) const {
        const bool is_space = lmx::xisspace(c);
        if (m_mode == lmx::ELMX_WS_COLLAPSE) {
            if (is_space) {
                *is_blank_due = true;
                return;
            }
            if (*is_blank_due && !value->empty()) *value += ' ';
            *is_blank_due = false;
        }
        *value += is_space && m_mode == lmx::ELMX_WS_REPLACE ? ' ' : static_cast<char>(c);
    }

    int read() {
        const int byte = m_source.read();
        if (byte < 0) m_is_source_at_end = true;
        return byte;
    }
    int raw_step() {
        if (m_errors.is_fatal_errored()) return -1;
        if (!m_unget.empty()) return pop(&m_unget);
        if (!m_pending.empty()) {
            const int byte = static_cast<unsigned char>(m_pending.front());
            m_pending.erase(0, 1);
            return byte;
        }
        const int byte = read();
        if (byte < 0) return -1;
        switch (m_form) {
            case lmx::enc_unknown:
                return detect(byte);
            case lmx::enc_single_byte:
                return byte > 126 ? encode(byte) : byte;
            case lmx::enc_utf8:
                return byte > 127 ? decode(byte) : byte;
            default: {
                const int unit = join(byte);
                if (m_form > lmx::enc_utf16_le || unit < 0xD800 || unit > 0xDBFF) return unit < 0 ? -1 : encode(unit);
                const int first = read();
                const int low = first < 0 ? -1 : join(first);
                if (low < 0) return -1;
                if (low < 0xDC00 || low > 0xDFFF) return refuse();
                return encode(((unit & 0x3FF) + 0x40) * 1024 + (low & 0x3FF));
            }
        }
    }
    int join(int first) {
        const int second = read();
        if (second < 0) return -1;
        const bool is_big = m_form == lmx::enc_utf16_be || m_form == lmx::enc_ucs2_be;
        return is_big ? first << 8 | second : second << 8 | first;
    }
    /// A null counts as one byte and ends all others.
    int deliver(const std::string& character) {
        m_character = character.c_str();
        m_pending = m_character.empty() ? "" : m_character.substr(1);
        return m_character.empty() ? 0 : static_cast<unsigned char>(m_character[0]);
    }
    int encode(int code_point) {
        if (code_point == 0x85 || code_point == 0x2028) return '\n';
        char utf8[8];
        return deliver(lmx::unicode_char_to_utf8(code_point, utf8));
    }
    int decode(int lead) {
        const int length = lead < 0xC0   ? 1
                           : lead < 0xE0 ? 2
                           : lead < 0xF0 ? 3
                           : lead < 0xF8 ? 4
                           : lead < 0xFC ? 5
                                         : 6;
        std::string character(1, static_cast<char>(lead));
        bool is_void = false;
        for (int i = 1; i < length; ++i) {
            const int byte = read();
            is_void = byte < 0;
            character += static_cast<char>(byte);
        }
        if (character == "\xC2\x85" || character == "\xE2\x80\xA8") character = "\n";
        if (!is_void && lmx::is_valid_utf8_char_sequence(character.c_str())) return deliver(character);
        m_character = '\0' + std::string(character.c_str() + 1);
        return -1;
    }
    int detect(int first) {
        const auto is_start = [](int c) { return lmx::xisspace(c) || c == '<'; };
        if (first == 0xFF || first == 0xFE) {
            const int mark = read();
            if (mark != (first ^ 1)) return refuse();
            const int one = read();
            const int other = read();
            const int high = first == 0xFF ? other : one;
            const int low = first == 0xFF ? one : other;
            if (high != 0 || low < 1 || low > 127) return refuse();
            m_form = first == 0xFF ? lmx::enc_utf16_le : lmx::enc_utf16_be;
            return low;
        }
        if (first == 0xEF) {
            if (read() != 0xBB || read() != 0xBF) return refuse();
            m_form = lmx::enc_utf8;
            return read();
        }
        if (first != 0 && !is_start(first)) return refuse();
        const int second = read();
        if (first == 0) {
            if (!is_start(second)) return refuse();
            m_form = lmx::enc_utf16_be;
            return second;
        }
        m_form = second == 0 ? lmx::enc_utf16_le : lmx::enc_utf8;
        if (second > 0) {
            decode(second);
            m_pending = m_character;
        }
        return first;
    }

    lmx::c_read& m_source;
    lmx::c_error& m_errors;
    int m_form = lmx::enc_unknown;
    int m_last = 0;
    int m_line = 1;
    bool m_is_source_at_end = false;
    lmx::elmx_whitespace m_mode = lmx::ELMX_WS_PRESERVE;
    std::vector<int> m_unget;
    std::string m_character;
    std::string m_pending;
    std::vector<s_text> m_texts;
};

}  // namespace lmx_test
