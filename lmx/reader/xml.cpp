// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/xml.h"

#include <string_view>

#include "lmx/reader/plain_text.h"
#include "lmx/values/characters.h"

namespace lmx {

s_diagnosis c_xml::diagnose() const {
    s_diagnosis diagnosis;
    diagnosis.text_line = get_text_line();
    diagnosis.event_line = diagnosis.attribute_line = m_event_line;
    diagnosis.event_offset = m_event_offset;
    diagnosis.text_offset = get_offset();
    diagnosis.wrong_end_name = m_wrong_end_name;
    if (m_named.position != 0) {
        diagnosis.attribute_line = m_named.attribute.line;
        diagnosis.attribute_value = raw_value_of(m_named.attribute);
    }
    diagnosis.has_source_ended = has_source_ended();
    diagnosis.fault = get_fault();
    return diagnosis;
}

void c_xml::rewind() {
    m_namespaces.start();
    m_doctype_read = false;
    m_content_seen = false;
    clear_attributes();
    c_get_for_xml::rewind();
}

bool c_xml::refuse(scanner_fault fault, std::initializer_list<std::string_view> parts) {
    error(fault, parts);
    return false;
}

elxp_xml_event c_xml::deliver(elxp_xml_event event) {
    m_content_seen = true;
    return event;
}

// The main scan.

elxp_xml_event c_xml::get_element_name(c_xml_local* local, std::string* name) {
    for (;;) {
        name->clear();
        int c = get_non_ws();
        m_event_line = get_text_line();
        m_event_offset = get_offset();
        if (c == -1) return deliver(ELXP_END_OF_INPUT);
        if (c == '&') {
            c_stream_name_reader stream(*this);
            if (!read_reference(stream, name)) return ELXP_ERROR;
            if (name->empty()) continue;
            return scan_text(name);
        }
        if (c != '<') {
            *name += static_cast<char>(c);
            return scan_text(name);
        }
        c = get();
        if (is_name_start(c)) return scan_start_tag(local, c, name);
        switch (c) {
            case '/':
                return scan_end_tag(name);
            case '?':
                if (!scan_instruction()) return ELXP_ERROR;
                break;
            case '!':
                c = get();
                if (c == '[') {
                    if (!read_cdata(name)) return ELXP_ERROR;
                    return deliver(ELXP_TEXT);
                }
                if (c == '-' && get() == '-') {
                    if (!skip_comment()) return ELXP_ERROR;
                } else if (c == 'D' && read_specified_string_from_input("OCTYPE")) {
                    if (!scan_doctype()) return ELXP_ERROR;
                } else {
                    move_to_start_tag_end(nullptr);
                    return ELXP_ERROR;
                }
                break;
            default:
                refuse(scanner_fault::broken_tag);
                move_to_start_tag_end(nullptr);
                return ELXP_ERROR;
        }
    }
}

elxp_xml_event c_xml::scan_start_tag(c_xml_local* local, int c, std::string* name) {
    *name += static_cast<char>(c);
    c = read_name(name);
    if (c == -1) {
        refuse(scanner_fault::broken_tag);
        return ELXP_ERROR;
    }
    unget(c);
    return read_attributes(local) ? deliver(ELXP_NAME) : ELXP_ERROR;
}

int c_xml::read_name(std::string* out) {
    const std::string_view text = ahead();
    if (const std::size_t size = name_size(text.data(), text.data() + text.size())) {
        out->append(text, 0, size);
        take_ahead(size, 0);
    }
    int c = get();
    for (; is_name_char(c); c = get()) *out += static_cast<char>(c);
    return c;
}

bool c_xml::read_end_tag(std::string* name) {
    int c = read_name(name);
    if (name->empty()) return false;
    while (xisspace(c)) c = get();
    return c == '>' || refuse(scanner_fault::broken_tag);
}

elxp_xml_event c_xml::scan_end_tag(std::string* name) {
    return read_end_tag(name) ? deliver(ELXP_END_TAG) : ELXP_ERROR;
}

elxp_xml_event c_xml::scan_text(std::string* name) {
    reset_ws_mode();
    for (;;) {
        take_plain_text(name);
        const int c = get();
        if (c == '<' || c == -1) {
            unget(c);
            return deliver(ELXP_TEXT);
        }
        if (c != '&') {
            add_char_wsp(name, c, false);
            continue;
        }
        c_stream_name_reader stream(*this);
        if (!read_reference(stream, name)) return deliver(ELXP_ERROR);
    }
}

/// Any target that begins with "xml" is taken for the declaration.
bool c_xml::scan_instruction() {
    constexpr std::string_view declaration = "xml";
    for (std::size_t matched = 0; matched < declaration.size(); ++matched) {
        const int c = get();
        if (c == declaration[matched]) continue;
        // It may be the first half of the end, behind a target.
        if (c == '?' && matched > 0) unget(c);
        return skip_PI();
    }
    if (!m_content_seen) return read_xml_decl();
    return refuse(scanner_fault::late_declaration);
}

bool c_xml::scan_doctype() {
    if (m_content_seen) return refuse(scanner_fault::late_doctype);
    if (m_doctype_read) return refuse(scanner_fault::second_doctype);
    if (!m_dtd.read_doctype_decl()) return false;
    m_doctype_read = true;
    return true;
}

/// With the input behind `<![`. At the end of input the section ends without an error.
bool c_xml::read_cdata(std::string* out) {
    if (!read_specified_string_from_input("CDATA[")) return refuse(scanner_fault::broken_tag);
    const std::size_t start = out->size();
    read_cdata_text(out);
    pay_blank_ahead_of(start, out);
    return true;
}

void c_xml::read_cdata_text(std::string* out) {
    std::size_t brackets = 0;
    for (;;) {
        if (brackets == 0) take_run(k_stops_of_cdata, out);
        const int c = get();
        if (c == ']') {
            ++brackets;
            continue;
        }
        if (c == -1) {
            if (brackets > 2) out->append(brackets - 2, ']');
            return;
        }
        if (c == '>' && brackets >= 2) {
            out->append(brackets - 2, ']');
            return;
        }
        out->append(brackets, ']');
        brackets = 0;
        *out += static_cast<char>(c);
    }
}

}  // namespace lmx
