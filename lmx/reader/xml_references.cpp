// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// References, and the values of attributes, in which they are expanded.

#include "lmx/reader/xml.h"

#include <algorithm>
#include <iterator>
#include <vector>

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

}  // namespace lmx
