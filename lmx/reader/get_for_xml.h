// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What is common to all XML text: the declaration, comments, processing instructions, character references and
/// the treatment of white space.

#pragma once

#include <string>
#include <string_view>

#include "lmx/export.h"
#include "lmx/reader/get_with_entities.h"
#include "lmx/values/scalars.h"

namespace lmx {

/// Where the characters of a reference come from.
class VYR_EXPORT c_entity_name_reader {
public:
    explicit c_entity_name_reader(bool can_push_input, bool is_entity_text = false)
        : m_can_push_input(can_push_input), m_is_entity_text(is_entity_text) {}
    virtual ~c_entity_name_reader();
    virtual int get() = 0;
    virtual void unget(int c) = 0;

    /// Whether an entity's text may be pushed on the input and be scanned like the document.
    const bool m_can_push_input;
    /// Whether they are known to come from an entity's text; the input tells of itself.
    const bool m_is_entity_text;
};

/// References in text: read from the input; what they name may be pushed there.
class c_stream_name_reader : public c_entity_name_reader {
public:
    explicit c_stream_name_reader(c_get_with_entities& input) : c_entity_name_reader(true), m_input(input) {}
    int get() override { return m_input.get(); }
    void unget(int c) override { m_input.unget(c); }

private:
    c_get_with_entities& m_input;
};

class VYR_EXPORT c_get_for_xml : public c_get_with_entities {
public:
    /// With `normalise_char_refs`, white space from character references is treated like any other.
    c_get_for_xml(c_read& reader, c_error& error, bool normalise_char_refs)
        : c_get_with_entities(reader, error), m_normalise_char_refs(normalise_char_refs) {}

    void set_ws_mode(elmx_whitespace mode) {
        m_ws_mode = mode;
        m_ws_pending = false;
    }
    void reset_ws_mode() { m_ws_pending = false; }
    /// Appends a character by the mode in force.
    void add_char_wsp(std::string* out, int c, bool from_char_ref);

    /// Appends what a reference stands for, white space or not: only a blank that is owed comes first. Collapsed
    /// values must come back as they were written, and a blank ahead of an escaped character is part of them.
    void append_verbatim(std::string* out, std::string_view text);
    /// The same for text that stands at the end of `out` already, from `start` on; nothing is owed to an empty one.
    void pay_blank_ahead_of(std::size_t start, std::string* out);

    /// The next character that is no white space.
    int get_non_ws() {
        skip_blanks_ahead();
        const int c = get();
        return c > ' ' ? c : get_non_ws_behind(c);
    }
    /// Reads and compares, up to the first difference.
    bool read_specified_string_from_input(const char* text);
    bool get_simple_quoted_value(std::string* out);
    /// With the input behind `<?xml`.
    bool read_xml_decl();
    /// With the input behind `<!--`.
    bool skip_comment();
    /// To behind the first `?>`.
    bool skip_PI();
    /// To behind the end of a tag, from anywhere inside it. `is_empty` may be null.
    bool move_to_start_tag_end(bool* is_empty);
    /// With the reader behind `&#`.
    bool insert_character_entity(c_entity_name_reader& reader, std::string* out);
    void rewind();

protected:
    /// Where text that needs no treatment ends, in the mode in force; null when every character needs some.
    const byte_set* stops_of_plain_text() const {
        if (m_ws_mode == ELMX_WS_PRESERVE) return &k_stops_of_text;
        return m_ws_pending ? nullptr : &k_stops_of_words;
    }
    /// Takes what lies ahead and needs no treatment in the mode in force.
    void take_plain_text(std::string* out) {
        if (const byte_set* const stops = stops_of_plain_text()) take_run(*stops, out);
    }

    elmx_whitespace get_ws_mode() const { return m_ws_mode; }

private:
    friend class c_dtd_util;

    int get_non_ws_behind(int c);
    void skip_blanks_ahead();

    bool read_decl_value(const char* rest_of_name, std::string* value);

    std::string m_char_ref_text;
    elmx_whitespace m_ws_mode = ELMX_WS_PRESERVE;
    bool m_ws_pending = false;
    bool m_normalise_char_refs;
};

/// Characters of names. Bytes over 127 count, but not those of entity text, which are negative.
inline bool is_name_start(int c) { return c > 127 || xisalpha(c) || c == '_' || c == ':'; }
inline bool is_name_char(int c) { return c >= 128 || xisalnum(c) || c == '.' || c == '-' || c == '_' || c == ':'; }

}  // namespace lmx
