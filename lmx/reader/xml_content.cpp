// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The values of elements, what is skipped, and wildcard content as text.

#include "lmx/reader/xml.h"

#include "lmx/values/characters.h"

namespace lmx {

bool c_xml::get_element_value(std::string* value, elmx_whitespace mode, bool expand_entities) {
    value->clear();
    set_ws_mode(mode);
    for (;;) {
        take_plain_text(value);
        if (touch_if_ahead("</")) return true;
        int c = get();
        if (c == -1) return refuse(scanner_fault::end_in_value);
        if (c == '&' && expand_entities) {
            c_stream_name_reader stream(*this);
            if (!read_reference(stream, value)) return false;
        } else if (c != '<') {
            add_char_wsp(value, c, false);
        } else {
            c = get();
            if (c == '!') {
                c = get();
                if (c == '[') {
                    if (!read_cdata(value)) return false;
                } else if (c == '-' && get() == '-') {
                    if (!skip_comment() && !at_end_of_input()) return false;
                } else {
                    return refuse(scanner_fault::broken_start_tag);
                }
            } else if (c == '?') {
                if (!skip_PI() && !at_end_of_input()) return false;
            } else {
                unget(c);
                unget('<');
                return true;
            }
        }
    }
}

bool c_xml::is_element_end_tag(const std::string& name) {
    if (take_if_ahead("</", name, ">")) return true;
    if (m_is_recovering) return take_any_end_tag(name);
    if (get_non_ws() != '<' || get() != '/') return false;
    for (const char expected : name) {
        const int c = get();
        if (c == -1 || static_cast<char>(c) != expected) return false;
    }
    return get_non_ws() == '>';
}

bool c_xml::take_any_end_tag(const std::string& name) {
    int c = get_non_ws();
    if (c == '<') {
        c = get();
        if (c == '/') {
            m_wrong_end_name.clear();
            if (!read_end_tag(&m_wrong_end_name) || m_wrong_end_name != name) return false;
            m_wrong_end_name.clear();
            return true;
        }
        unget(c);
        c = '<';
    }
    unget(c);
    return false;
}

bool c_xml::skip_rest_of_empty_element(const std::string& name) {
    bool is_empty = false;
    return move_to_start_tag_end(&is_empty) && (is_empty || is_element_end_tag(name));
}

bool c_xml::skip_rest_of_element(const std::string& name) {
    bool is_empty = false;
    return move_to_start_tag_end(&is_empty) && (is_empty || skip_element_body(name));
}

bool c_xml::skip_element_body(const std::string& name) {
    c_string_stack open;
    open.push(name);
    std::string found;
    for (;;) {
        c_xml_local scope;
        const elxp_xml_event event = get_element_name(&scope, &found);
        if (event == ELXP_TEXT) continue;
        if (event == ELXP_NAME) {
            bool is_empty = false;
            if (!move_to_start_tag_end(&is_empty)) return false;
            if (!is_empty) open.push(found);
            continue;
        }
        if (event != ELXP_END_TAG) return false;
        const char* const expected = open.top();
        if (found != expected) return refuse(scanner_fault::mismatched_tags, {expected, found});
        open.pop();
        if (open.get_depth() == 0) return true;
    }
}

// Wildcard content as text.

/// Appends text and leaves a start tag's or an end tag's name in `name`. Comments and instructions count as empty
/// text.
c_xml::e_piece c_xml::next_piece(std::string* out, std::string* name) {
    take_plain_text(out);
    int c = get();
    if (c == -1) return e_piece::error;
    if (c != '<') {
        add_char_wsp(out, c, false);
        return e_piece::text;
    }
    c = get();
    name->clear();
    if (is_name_start(c)) {
        *name += static_cast<char>(c);
        unget(read_name(name));
        return e_piece::start_tag;
    }
    switch (c) {
        case '/':
            return read_end_tag(name) ? e_piece::end_tag : e_piece::error;
        case '?':
            return skip_PI() ? e_piece::text : e_piece::error;
        case '!':
            break;
        default:
            return e_piece::error;
    }
    c = get();
    if (c == '-' && get() == '-') return skip_comment() ? e_piece::text : e_piece::error;
    if (c != '[') return e_piece::error;
    append_verbatim(out, "<![CDATA[");
    if (!read_cdata(out)) return e_piece::error;
    *out += "]]>";
    return e_piece::text;
}

/// White space between the `/` and the `>` is no part of the copy, which shall be well-formed.
bool c_xml::copy_rest_of_start_tag(std::string* out, bool* is_empty) {
    int quote = 0;
    std::size_t slash_end = k_none;
    for (;;) {
        const int c = get();
        if (c == -1) return false;
        *is_empty = c == '>' && slash_end != k_none;
        if (*is_empty) out->resize(slash_end);
        *out += static_cast<char>(c);
        if (quote != 0) {
            if (c == quote) quote = 0;
            continue;
        }
        if (c == '>') return true;
        if (c == '"' || c == '\'') quote = c;
        if (!xisspace(c)) slash_end = c == '/' ? out->size() : k_none;
    }
}

bool c_xml::copy_content(std::string* out, std::string* end_name) {
    c_string_stack open;
    for (;;) {
        switch (next_piece(out, &m_work_name)) {
            case e_piece::text:
                break;
            case e_piece::error:
                return false;
            case e_piece::start_tag: {
                *out += '<';
                *out += m_work_name;
                bool is_empty = false;
                if (!copy_rest_of_start_tag(out, &is_empty)) return false;
                if (!is_empty) open.push(m_work_name);
                break;
            }
            case e_piece::end_tag:
                if (open.get_depth() == 0) {
                    *end_name = m_work_name;
                    return true;
                }
                if (m_work_name != open.top()) return false;
                *out += "</" + m_work_name + ">";
                open.pop();
                break;
        }
    }
}

bool c_xml::get_any_element(const std::string& name, std::string* xml, elmx_whitespace mode, bool) {
    set_ws_mode(mode);
    *xml = '<' + name;
    append_attributes(m_ns_attributes, xml);
    append_attributes(m_attributes, xml);
    clear_attributes();
    bool is_empty = false;
    if (!copy_rest_of_start_tag(xml, &is_empty)) return false;
    if (is_empty) return true;
    std::string end_name;
    if (!copy_content(xml, &end_name) || end_name != name) return false;
    *xml += "</" + end_name + ">";
    return true;
}

bool c_xml::get_nested_element_value(std::string* value, std::string* end_name, elmx_whitespace mode, bool) {
    set_ws_mode(mode);
    clear_attributes();
    return copy_content(value, end_name);
}

}  // namespace lmx
