// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/internal_dtd.h"

#include "lmx/reader/get_for_xml.h"

namespace lmx {

int c_dtd_util::get() { return m_getter.get(); }
void c_dtd_util::unget(int c) { m_getter.unget(c); }

bool c_dtd_util::select_parameter_entity() {
    // Asked before anything is read: the `%` may have been the last of an entity's text.
    const bool is_written = m_getter.is_in_document();
    std::string name;
    int c = get();
    for (; is_name_char(c); c = get()) name += static_cast<char>(c);
    if (c != ';') unget(c);
    s_entity_text* const text = m_getter.parameter_entities().find(name);
    if (text == nullptr) {
        m_getter.error(scanner_fault::unknown_parameter_entity, {name});
        return true;
    }
    const std::size_t written = is_written ? name.size() + (c == ';' ? 2 : 1) : 0;
    return m_getter.charge_reference(text->size, written) && m_getter.push_entity(*text);
}

bool c_dtd_util::get_entity_value(std::string* out) {
    out->clear();
    int c = m_getter.get_non_ws();
    if (c == -1) return false;
    for (; c != -1 && c != '>' && !xisspace(c); c = get()) {
        if (c != '%') {
            *out += static_cast<char>(c);
        } else if (!select_parameter_entity()) {
            return false;
        }
    }
    unget(c);
    return true;
}

bool c_dtd_util::get_quoted_entity_value(std::string* out) {
    const int quote = m_getter.get_non_ws();
    if (quote != '"' && quote != '\'') return false;
    out->clear();
    c_stream_name_reader stream(m_getter);
    const std::size_t depth = m_getter.get_entity_stack_depth();
    for (int c = get(); c != -1; c = get()) {
        // The same quote inside the text of a parameter entity is content.
        if (c == quote && m_getter.get_entity_stack_depth() == depth) return true;
        if (c == '%') {
            if (!select_parameter_entity()) return false;
        } else if (c == '&') {
            const int next = get();
            if (next == '#') {
                if (!m_getter.insert_character_entity(stream, out)) return false;
            } else if (next != -1) {
                *out += '&';
                *out += static_cast<char>(next);
            }
        } else {
            *out += static_cast<char>(c);
        }
    }
    return true;
}

void c_dtd_util::skip_declaration() {
    int quote = 0;
    for (int c = get(); c != -1; c = get()) {
        if (quote != 0) {
            if (c == quote) quote = 0;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '>') {
            return;
        }
    }
}

void c_dtd_util::define_entity(bool is_parameter, const std::string& name, const std::string& value) {
    (is_parameter ? m_getter.parameter_entities() : m_getter.general_entities()).add(name, value);
}

bool c_internal_dtd::read_doctype_decl() {
    int c = get();
    while (c != '[' && c != '>' && c != -1) c = get();
    if (c != '[') return c == '>';
    if (!read_subset()) return false;
    c = getter().get_non_ws();
    return c == '>' || refuse(scanner_fault::unclosed_doctype, scanner_fault::unclosed_doctype_at_end, c);
}

bool c_internal_dtd::refuse(scanner_fault fault, scanner_fault at_end, int c) {
    const char found = static_cast<char>(c);
    if (c == -1) {
        getter().error(at_end);
    } else {
        getter().error(fault, {{&found, 1}});
    }
    return false;
}

bool c_internal_dtd::read_subset() {
    for (;;) {
        const int c = getter().get_non_ws();
        switch (c) {
            case '<':
                if (!read_markup()) return false;
                break;
            case '%':
                if (!select_parameter_entity()) return false;
                break;
            case ']':
                return true;
            default:
                return refuse(scanner_fault::stray_in_doctype, scanner_fault::stray_in_doctype_at_end, c);
        }
    }
}

bool c_internal_dtd::read_markup() {
    std::string keyword;
    int c = get();
    for (; c != -1 && c != '[' && c != '>' && !xisspace(c); c = get()) {
        keyword += static_cast<char>(c);
        if (keyword == "!--") return getter().skip_comment();
    }
    // An instruction without data ends with its target.
    if (c == '>' && keyword.size() > 2 && keyword.starts_with('?') && keyword.ends_with('?')) return true;
    unget(c);
    if (keyword == "!ENTITY") return read_entity_decl();
    if (keyword.starts_with('?')) return getter().skip_PI();
    skip_declaration();
    return true;
}

bool c_internal_dtd::read_entity_decl() {
    bool is_parameter = false;
    std::string name;
    std::string value;
    const bool is_read = read_entity_definition(&is_parameter, &name, &value);
    if (is_read) define_entity(is_parameter, name, value);
    skip_declaration();
    return is_read;
}

bool c_internal_dtd::read_entity_definition(bool* is_parameter, std::string* name, std::string* value) {
    int c = getter().get_non_ws();
    *is_parameter = c == '%';
    if (!*is_parameter) unget(c);
    if (!get_entity_value(name)) return false;
    c = getter().get_non_ws();
    unget(c);
    if (c == '"' || c == '\'') return get_quoted_entity_value(value);
    if (!get_entity_value(value)) return false;
    // An external entity is never fetched; the word that announces it becomes its value.
    if (*value == "SYSTEM" || *value == "PUBLIC") {
        getter().error(scanner_fault::external_entity);
    } else {
        getter().error(scanner_fault::odd_entity_value, {*value});
    }
    return true;
}

}  // namespace lmx
