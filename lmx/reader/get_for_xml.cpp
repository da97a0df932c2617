// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/get_for_xml.h"

#include "lmx/reader/decoded_window.h"
#include "lmx/reader/plain_text.h"
#include "lmx/values/characters.h"
#include "lmx/values/unicode.h"

namespace lmx {
namespace {

/// Higher code points are refused, the last 65,535 of Unicode among them.
constexpr unsigned k_highest_char_ref = 0x100000;

/// The value of a reference's digits; anything over the highest is as good as the highest and one.
unsigned char_ref_value(const std::string& digits, unsigned base) {
    unsigned value = 0;
    for (const char c : digits) {
        const unsigned digit =
            xisdigit(c) ? static_cast<unsigned>(c - '0') : static_cast<unsigned>((c | 0x20) - 'a') + 10;
        value = value * base + digit;
        if (value > k_highest_char_ref) return k_highest_char_ref + 1;
    }
    return value;
}

}  // namespace

c_entity_name_reader::~c_entity_name_reader() = default;

void c_get_for_xml::rewind() {
    set_ws_mode(ELMX_WS_PRESERVE);
    c_get_with_entities::rewind();
}

void c_get_for_xml::add_char_wsp(std::string* out, int c, bool from_char_ref) {
    const auto byte = static_cast<char>(c);
    const bool is_literal = from_char_ref && !m_normalise_char_refs;
    switch (m_ws_mode) {
        case ELMX_WS_PRESERVE:
            *out += byte;
            break;
        case ELMX_WS_REPLACE:
            *out += !is_literal && xisspace(c) ? ' ' : byte;
            break;
        case ELMX_WS_COLLAPSE:
            if ((!is_literal && xisspace(c)) || c == ' ') {
                m_ws_pending = true;
                break;
            }
            append_verbatim(out, std::string_view(&byte, 1));
            break;
    }
}

void c_get_for_xml::append_verbatim(std::string* out, std::string_view text) {
    if (m_ws_pending && !out->empty()) *out += ' ';
    m_ws_pending = false;
    *out += text;
}

void c_get_for_xml::pay_blank_ahead_of(std::size_t start, std::string* out) {
    if (out->size() == start) return;
    if (m_ws_pending && start > 0) out->insert(start, 1, ' ');
    m_ws_pending = false;
}

void c_get_for_xml::skip_blanks_ahead() {
    const std::string_view text = ahead();
    if (text.empty() || k_stops_of_blanks[static_cast<unsigned char>(text[0])]) return;
    int line_feeds = 0;
    const char* const end = skip_blanks(text.data(), text.data() + text.size(), &line_feeds);
    take_ahead(static_cast<std::size_t>(end - text.data()), line_feeds);
}

int c_get_for_xml::get_non_ws_behind(int c) {
    while (xisspace(c)) {
        skip_blanks_ahead();
        c = get();
    }
    return c;
}

bool c_get_for_xml::read_specified_string_from_input(const char* text) {
    for (; *text != 0; ++text) {
        if (get() != *text) return false;
    }
    return true;
}

bool c_get_for_xml::get_simple_quoted_value(std::string* out) {
    const int quote = get_non_ws();
    if (quote != '"' && quote != '\'') return false;
    out->clear();
    for (int c = get(); c != quote; c = get()) {
        if (c == -1) return false;
        *out += static_cast<char>(c);
    }
    return true;
}

bool c_get_for_xml::read_decl_value(const char* rest_of_name, std::string* value) {
    return read_specified_string_from_input(rest_of_name) && get_non_ws() == '=' && get_simple_quoted_value(value);
}

bool c_get_for_xml::read_xml_decl() {
    std::string value;
    if (get_non_ws() != 'v' || !read_decl_value("ersion", &value)) {
        error(scanner_fault::no_version);
        return false;
    }
    if (value != "1.0" && value != "1.1") {
        error(scanner_fault::unknown_version, {value});
        return false;
    }
    int c = get_non_ws();
    if (c == 'e') {
        if (!read_decl_value("ncoding", &value) || !set_encoding(value.c_str())) return false;
        c = get_non_ws();
    }
    if (c == 's') {
        if (!read_specified_string_from_input("tandalone")) return false;
        c = get_non_ws();
        if (c == '=') {
            if (!get_simple_quoted_value(&value)) return false;
            if (value == "no") {
                error(scanner_fault::not_standalone);
                return false;
            }
            c = get_non_ws();
        }
    }
    return c == '?' && get() == '>';
}

bool c_get_for_xml::skip_comment() {
    int hyphens = 0;
    for (;;) {
        if (hyphens == 0) take_run(k_stops_of_comments, nullptr);
        const int c = get();
        if (c == -1) return false;
        if (c == '-') {
            // Two count like any more, but for the warning; the number stays small whatever the comment holds.
            if (hyphens < 3) ++hyphens;
        } else if (c == '>' && hyphens >= 2) {
            if (hyphens > 2) error(scanner_fault::loose_comment);
            return true;
        } else {
            hyphens = 0;
        }
    }
}

bool c_get_for_xml::skip_PI() {
    int last = 0;
    for (;;) {
        if (last != '?') take_run(k_stops_of_instructions, nullptr);
        const int c = get();
        if (c == -1) return false;
        if (c == '>' && last == '?') return true;
        last = c;
    }
}

bool c_get_for_xml::move_to_start_tag_end(bool* is_empty) {
    if (take_if_ahead(">")) {
        if (is_empty != nullptr) *is_empty = false;
        return true;
    }
    int quote = 0;
    for (int c = get(); c != -1; c = get()) {
        if (quote != 0) {
            if (c == quote) quote = 0;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '>') {
            if (is_empty != nullptr) *is_empty = false;
            return true;
        } else if (c == '/') {
            bool is_well_formed = true;
            for (c = get(); c != '>' && c != -1; c = get()) {
                if (xisspace(c) || !is_well_formed) continue;
                is_well_formed = false;
                const char found = static_cast<char>(c);
                error(scanner_fault::broken_empty_tag, {{&found, 1}});
            }
            if (is_empty != nullptr) *is_empty = true;
            return is_well_formed;
        }
    }
    return false;
}

bool c_get_for_xml::insert_character_entity(c_entity_name_reader& reader, std::string* out) {
    m_char_ref_text.clear();
    // No character takes more bytes than a reference to it: in the document, that has paid for itself.
    const bool is_written = !reader.m_is_entity_text && is_in_document();
    if (!is_written && !charge_reference(1, 0)) return false;
    int c = reader.get();
    const bool is_hexadecimal = c == 'x';
    if (!is_hexadecimal) {
        if (!xisdigit(c)) return false;
        m_char_ref_text += static_cast<char>(c);
    }
    for (c = reader.get(); is_hexadecimal ? xisxdigit(c) : xisdigit(c); c = reader.get()) {
        m_char_ref_text += static_cast<char>(c);
    }
    if (c != ';') reader.unget(c);
    if (m_char_ref_text.empty()) return false;
    const unsigned value = char_ref_value(m_char_ref_text, is_hexadecimal ? 16 : 10);
    if (value > k_highest_char_ref) return false;
    const int code_point = static_cast<int>(value);
    if (code_point == k_next_line || code_point == k_line_separator) {
        if (m_ws_mode == ELMX_WS_COLLAPSE && !m_normalise_char_refs) {
            append_verbatim(out, "\n");
        } else {
            add_char_wsp(out, '\n', true);
        }
    } else if (value > 127) {
        char utf8[5];
        append_verbatim(out, unicode_char_to_utf8(code_point, utf8));
    } else {
        add_char_wsp(out, code_point, true);
    }
    return true;
}

}  // namespace lmx
