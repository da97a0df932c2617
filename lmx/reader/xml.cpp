// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/xml.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "lmx/values/characters.h"

namespace lmx {
namespace {

struct s_predefined_entity {
    std::string_view name;
    char character;
};
// These names can't be redefined: whatever the document defines for them is never looked at.
constexpr s_predefined_entity k_predefined_entities[] = {
    {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"apos", '\''}, {"quot", '"'}};

const s_predefined_entity* find_predefined(std::string_view name) {
    const auto* const end = std::end(k_predefined_entities);
    const auto* const entity = std::find_if(std::begin(k_predefined_entities), end,
                                            [name](const s_predefined_entity& row) { return row.name == name; });
    return entity == end ? nullptr : entity;
}

std::string_view prefix_of(std::string_view name) {
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? std::string_view() : name.substr(0, colon);
}

std::string_view local_part_of(std::string_view name) {
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

/// What an attribute as documents write it takes at most.
constexpr std::size_t k_usual_attribute = 256;

void append_char(std::string* text, int c) {
    if (c != -1) *text += static_cast<char>(c);
}

}  // namespace

/// References in a text that lies in memory: an attribute's raw value or an entity's text.
class c_xml::c_text_name_reader : public c_entity_name_reader {
public:
    c_text_name_reader(const char* text, std::size_t size, std::size_t* position, bool is_entity_text)
        : c_entity_name_reader(false, is_entity_text), m_text(text), m_size(size), m_position(position) {}

    int get() override {
        if (*m_position == m_size) {
            m_is_behind = true;
            return -1;
        }
        return static_cast<unsigned char>(m_text[(*m_position)++]);
    }
    void unget(int) override {
        if (!m_is_behind) --*m_position;
        m_is_behind = false;
    }

private:
    const char* m_text;
    std::size_t m_size;
    std::size_t* m_position;
    bool m_is_behind = false;
};

/// Entities that are being expanded inside an attribute's value, the innermost last.
class c_texts_in_place {
public:
    struct s_place {
        s_entity_text* text;
        std::size_t position;
    };

    c_texts_in_place() = default;
    c_texts_in_place(const c_texts_in_place&) = delete;
    c_texts_in_place& operator=(const c_texts_in_place&) = delete;
    ~c_texts_in_place() {
        while (!empty()) pop();
    }

    bool empty() const { return m_places.empty(); }
    s_place& top() { return m_places.back(); }
    /// False for a text that is among them.
    bool push(s_entity_text& text) {
        if (text.is_open_in_place) return false;
        make_room(&m_places, 1);
        m_places.push_back({&text, 0});
        text.is_open_in_place = true;
        return true;
    }
    void pop() {
        top().text->is_open_in_place = false;
        m_places.pop_back();
    }

private:
    std::vector<s_place> m_places;
};

std::string& c_xml::get_local_name(const std::string& qname, std::string* out) {
    return *out = std::string(local_part_of(qname));
}

std::string& c_xml::get_namespace_prefix(const std::string& qname, std::string* out) {
    return *out = std::string(prefix_of(qname));
}

void c_xml::rewind() {
    m_namespaces.start();
    m_doctype_read = false;
    m_content_seen = false;
    clear_attributes();
    c_get_for_xml::rewind();
}

bool c_xml::report_not_well_formed(const char* text) {
    error(ELMX_TYPE_ERROR, ELMX_NOT_WELL_FORMED, text);
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
        if (take_start_tag(name)) return deliver(ELXP_NAME);
        if (take_end_tag(name)) return deliver(ELXP_END_TAG);
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
                report_not_well_formed("XML not Well-Formed");
                move_to_start_tag_end(nullptr);
                return ELXP_ERROR;
        }
    }
}

elxp_xml_event c_xml::scan_start_tag(c_xml_local* local, int c, std::string* name) {
    *name += static_cast<char>(c);
    take_run(k_stops_of_names, name);
    for (c = get(); is_name_char(c); c = get()) *name += static_cast<char>(c);
    if (c == -1) {
        report_not_well_formed("XML not Well-Formed");
        return ELXP_ERROR;
    }
    unget(c);
    return read_attributes(local) ? deliver(ELXP_NAME) : ELXP_ERROR;
}

bool c_xml::read_end_tag(std::string* name) {
    take_run(k_stops_of_names, name);
    int c = get();
    for (; is_name_char(c); c = get()) *name += static_cast<char>(c);
    if (name->empty()) return false;
    while (xisspace(c)) c = get();
    return c == '>' || report_not_well_formed("XML not Well-Formed");
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
    error(ELMX_TYPE_FATAL, ELMX_BAD_XML_DECL, "XML declaration not at start of document");
    return false;
}

bool c_xml::scan_doctype() {
    if (m_content_seen || m_doctype_read) {
        error(ELMX_TYPE_ERROR, ELMX_BAD_DTD,
              m_content_seen ? "Document Type Declaration not at start of document"
                             : "Document Type Declaration already read");
        return false;
    }
    if (!m_dtd.read_doctype_decl()) return false;
    m_doctype_read = true;
    return true;
}

/// With the input behind `<![`. At the end of input the section ends without an error.
bool c_xml::read_cdata(std::string* out) {
    if (!read_specified_string_from_input("CDATA[")) return report_not_well_formed("XML not Well-Formed");
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

// Attributes.

void c_xml::clear_attributes() {
    m_attr_buffer.clear();
    m_attributes.clear();
    m_ns_attributes.clear();
    m_named = {};
    m_is_value_due = false;
}

bool c_xml::read_attributes(c_xml_local* local) {
    clear_attributes();
    if (is_ahead(">")) return true;
    for (;;) {
        int c = get_non_ws();
        if (!is_name_start(c)) {
            unget(c);
            return c != -1;
        }
        make_room(&m_attr_buffer, k_usual_attribute);
        s_attribute attribute{m_attr_buffer.size(), 0, 0, 0, 0, get_text_line()};
        m_attr_buffer += static_cast<char>(c);
        take_run(k_stops_of_names, &m_attr_buffer);
        for (c = get(); is_name_char(c); c = get()) m_attr_buffer += static_cast<char>(c);
        unget(c);
        attribute.name_length = m_attr_buffer.size() - attribute.name;
        const std::string_view name = std::string_view(m_attr_buffer).substr(attribute.name);
        const bool is_declaration = local != nullptr && (name == "xmlns" || name.starts_with("xmlns:"));
        if (!read_raw_value(&attribute)) return false;
        if (is_declaration) {
            m_ns_attributes.add(attribute);
            declare_namespace(local, attribute);
        } else {
            m_attributes.add(attribute);
        }
    }
}

bool c_xml::refuse_attribute(const std::string& text) {
    error(ELMX_TYPE_FATAL, ELMX_NOT_WELL_FORMED, text);
    return false;
}

bool c_xml::read_raw_value(s_attribute* attribute) {
    int c = get_non_ws();
    if (c == -1) {
        error(ELMX_TYPE_FATAL, ELMX_UNEXPECTED_END_OF_MESSAGE, "Unexpected end of file");
        return false;
    }
    if (c != '=') {
        return refuse_attribute(std::string("Schema is not Well Formed (expected '=', got '") + static_cast<char>(c) +
                                "')");
    }
    const int quote = get_non_ws();
    const auto refuse_quote = [this](int found) {
        std::string text = "Schema is not Well Formed (expected '\"' or ''', got ";
        append_char(&text, found);
        return refuse_attribute(text + ")");
    };
    if (quote != '"' && quote != '\'') return refuse_quote(quote);
    attribute->quote = static_cast<char>(quote);
    attribute->value = m_attr_buffer.size();
    const byte_set& stops = quote == '"' ? k_stops_of_double_quoted : k_stops_of_single_quoted;
    for (;;) {
        take_run(stops, &m_attr_buffer);
        c = get();
        if (c == quote) break;
        if (c == -1) return refuse_quote(c);
        m_attr_buffer += static_cast<char>(c);
    }
    attribute->value_length = m_attr_buffer.size() - attribute->value;
    return true;
}

void c_xml::declare_namespace(c_xml_local* local, const s_attribute& attribute) {
    const std::string_view name = name_of(attribute);
    std::string_view uri = raw_value_of(attribute);
    if (uri.find('&') != std::string_view::npos) {
        const elmx_whitespace mode = get_ws_mode();
        set_ws_mode(ELMX_WS_PRESERVE);
        m_uri.clear();
        std::size_t position = 0;
        while (position < uri.size() && !expand_raw_text(uri.data(), uri.size(), &position, &m_uri, true)) {
        }
        set_ws_mode(mode);
        uri = m_uri;
    }
    const std::string_view prefix = name.size() > 6 ? name.substr(6) : std::string_view();
    const bool is_undeclared = prefix.empty() && uri.empty();
    local->add_namespace(prefix, is_undeclared ? k_no_ns : m_namespaces.add_namespace(uri));
}

elxp_xml_event c_xml::get_attribute_name(std::string* name, bool in_pi) {
    m_is_value_due = m_attributes.next(&m_named);
    if (m_is_value_due) {
        name->assign(m_attr_buffer, m_named.attribute.name, m_named.attribute.name_length);
        m_value_position = 0;
        return ELXP_NAME;
    }
    int c = get_non_ws();
    if (c == '>') return ELXP_START_TAG_END;
    if (c == (in_pi ? '?' : '/')) {
        c = get_non_ws();
        if (c == '>') return ELXP_END_TAG;
    }
    report_not_well_formed("XML not well-formed");
    return ELXP_ERROR;
}

bool c_xml::get_attribute_value(std::string* value, elmx_whitespace mode) {
    value->clear();
    set_ws_mode(mode);
    if (!m_is_value_due || !read_value_of(m_named.attribute, value)) return false;
    m_is_value_due = false;
    return true;
}

bool c_xml::read_value_of(const s_attribute& attribute, std::string* value) {
    return expand_raw_text(m_attr_buffer.data() + attribute.value, attribute.value_length, &m_value_position, value,
                           false);
}

bool c_xml::skip_attribute_value() {
    m_is_value_due = false;
    return true;
}

/// Takes a raw value from `*position` to its end, with references expanded. False behind a failed reference.
/// `is_plain`: characters are appended as they are.
bool c_xml::expand_raw_text(const char* text, std::size_t size, std::size_t* position, std::string* out,
                            bool is_plain) {
    c_text_name_reader reader(text, size, position, false);
    while (*position < size) {
        const std::string_view rest(text + *position, size - *position);
        std::size_t length = 0;
        if (is_plain || get_ws_mode() == ELMX_WS_PRESERVE) {
            length = std::min(rest.find('&'), rest.size());
        } else if (const byte_set* const stops = stops_of_plain_text()) {
            length = run_length(rest, 0, *stops);
        }
        out->append(rest.substr(0, length));
        *position += length;
        if (*position == size) break;
        const char c = text[(*position)++];
        if (c == '&') {
            if (!read_reference(reader, out)) return false;
        } else {
            add_char_wsp(out, static_cast<unsigned char>(c), false);
        }
    }
    return true;
}

// References.

/// Reads the name of a reference into the work string; true if a semicolon closed it.
bool c_xml::read_entity_name(c_entity_name_reader& reader) {
    int c = reader.get();
    for (; is_name_char(c); c = reader.get()) m_entity_name += static_cast<char>(c);
    if (c == ';') return true;
    reader.unget(c);
    return false;
}

bool c_xml::keep_unresolved(bool has_semicolon, std::string* out) {
    *out += '&';
    *out += m_entity_name;
    if (has_semicolon) *out += ';';
    return false;
}

/// With the reader behind `&`. A missing semicolon passes.
bool c_xml::read_reference(c_entity_name_reader& reader, std::string* out) {
    // Asked before anything is read: the `&` may have been the last of an entity's text.
    const bool is_written = !reader.m_is_entity_text && is_in_document();
    const int c = reader.get();
    if (c == '#') return insert_character_entity(reader, out);
    m_entity_name.clear();
    bool has_semicolon = false;
    if (c == -1) {
        reader.unget(c);
    } else {
        m_entity_name += static_cast<char>(c);
        has_semicolon = read_entity_name(reader);
    }
    const std::size_t written = is_written ? m_entity_name.size() + (has_semicolon ? 2 : 1) : 0;
    if (const s_predefined_entity* const entity = find_predefined(m_entity_name)) {
        append_verbatim(out, std::string_view(&entity->character, 1));
        return charge_reference(1, written);
    }
    s_entity_text* const text = general_entities().find(m_entity_name);
    if (text == nullptr) return keep_unresolved(has_semicolon, out);
    const bool is_paid = charge_reference(text->size, written);
    if (!reader.m_can_push_input) return is_paid && expand_in_place(*text, out);
    // A recursion or an excess is reported, and shows as the end of input.
    if (is_paid) push_entity(*text);
    return true;
}

/// Expands an entity inside an attribute's value, with all that it refers to, without recursion. The reference to
/// it has been paid for.
bool c_xml::expand_in_place(s_entity_text& entity, std::string* out) {
    c_texts_in_place open;
    const auto enter = [&](s_entity_text& text) {
        if (open.push(text)) return true;
        report_recursion(text.view());
        return false;
    };
    if (!enter(entity)) return false;
    while (!open.empty()) {
        const std::string_view text = open.top().text->view();
        std::size_t& position = open.top().position;
        if (position == text.size()) {
            open.pop();
            continue;
        }
        const int c = static_cast<signed char>(text[position++]);
        if (c != '&' && c != '%') {
            add_char_wsp(out, c, false);
            continue;
        }
        c_text_name_reader reader(text.data(), text.size(), &position, true);
        const int next = reader.get();
        reader.unget(next);
        if (next != -1 && next != '#') {
            m_entity_name.clear();
            m_entity_name += static_cast<char>(reader.get());
            const bool has_semicolon = read_entity_name(reader);
            if (const s_predefined_entity* const predefined = find_predefined(m_entity_name)) {
                append_verbatim(out, std::string_view(&predefined->character, 1));
                if (!charge_reference(1, 0)) return false;
            } else if (s_entity_text* const inner = general_entities().find(m_entity_name)) {
                if (!charge_reference(inner->size, 0) || !enter(*inner)) return false;
            } else {
                return keep_unresolved(has_semicolon, out);
            }
        } else if (!read_reference(reader, out)) {
            return false;
        }
    }
    return true;
}

// Values and skipping.

bool c_xml::get_element_value(std::string* value, elmx_whitespace mode, bool expand_entities) {
    value->clear();
    set_ws_mode(mode);
    for (;;) {
        take_plain_text(value);
        if (is_ahead("</")) return true;
        int c = get();
        if (c == -1) {
            error(ELMX_TYPE_ERROR, ELMX_UNEXPECTED_END_OF_MESSAGE, "Premature end of file encountered");
            return false;
        }
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
                    return report_not_well_formed("XML not well-formed");
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
    if (get_non_ws() != '<' || get() != '/') return false;
    for (const char expected : name) {
        const int c = get();
        if (c == -1 || static_cast<char>(c) != expected) return false;
    }
    return get_non_ws() == '>';
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
        if (found != expected) {
            error(ELMX_TYPE_ERROR, ELMX_NOT_WELL_FORMED,
                  std::string("Element start tag (") + expected + ") and end tag (" + found + ") do not match");
            return false;
        }
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
        take_run(k_stops_of_names, name);
        for (c = get(); is_name_char(c); c = get()) *name += static_cast<char>(c);
        unget(c);
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

void c_xml::append_attributes(const c_attribute_list& list, std::string* out) const {
    for (c_attribute_list::s_cursor cursor; list.next(&cursor);) {
        *out += ' ';
        *out += name_of(cursor.attribute);
        *out += '=';
        *out += cursor.attribute.quote;
        *out += raw_value_of(cursor.attribute);
        *out += cursor.attribute.quote;
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

// Attributes by namespace.

int c_xml::get_ns_id(const c_xml_local* local, const std::string& name) const {
    return local->find_namespace_id(prefix_of(name));
}

std::string_view c_xml::get_raw_attribute_value() const {
    return m_named.position == 0 ? std::string_view() : raw_value_of(m_named.attribute);
}

std::string_view c_xml::find_raw_attribute_value(std::string_view name) const {
    for (c_attribute_list::s_cursor cursor; m_attributes.next(&cursor);) {
        if (name_of(cursor.attribute) == name) return raw_value_of(cursor.attribute);
    }
    return {};
}

bool c_xml::is_xsi_attribute(const c_xml_local* local, const std::string& name) const {
    return get_ns_id(local, name) == k_xsi_ns;
}

bool c_xml::get_named_attribute(const c_xml_local* local, int ns_id, const std::string& local_name,
                                std::string* value) {
    // The search goes on behind the attribute that was named last, and starts the walk anew.
    c_attribute_list::s_cursor cursor = m_named;
    m_named.position = 0;
    while (m_attributes.next(&cursor)) {
        const std::string_view name = name_of(cursor.attribute);
        if (local_part_of(name) != local_name) continue;
        const bool has_prefix = name.find(':') != std::string_view::npos;
        const int found_id = has_prefix ? local->find_namespace_id(prefix_of(name)) : k_no_ns;
        if (found_id != ns_id) continue;
        value->clear();
        set_ws_mode(ELMX_WS_PRESERVE);
        m_value_position = 0;
        read_value_of(cursor.attribute, value);
        m_is_value_due = false;
        return true;
    }
    return false;
}

bool c_xml::get_xsi_type(const c_xml_local* local, int* ns_id, std::string* type_name) {
    std::string value;
    if (!get_named_attribute(local, k_xsi_ns, "type", &value)) return false;
    *ns_id = local->find_namespace_id(prefix_of(value));
    if (*ns_id == k_unbound_ns && value.find(':') == std::string::npos) *ns_id = k_no_ns;
    *type_name = std::string(local_part_of(value));
    return true;
}

}  // namespace lmx
