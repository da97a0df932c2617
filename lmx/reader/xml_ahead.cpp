// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The scanner's short cut for tags as most documents write them. Whatever is out of the ordinary (bytes over 127,
/// carriage returns, declarations of namespaces, the window's end) is left to the long way.

#include "lmx/reader/xml.h"

#include <algorithm>
#include <string_view>

namespace lmx {
namespace {

bool is_in(const byte_set& set, char c) { return set[static_cast<unsigned char>(c)]; }

bool is_plain_name_start(char c) { return is_name_start(static_cast<signed char>(c)); }

/// Steps over blanks and counts the line feeds among them.
std::size_t skip_blanks(std::string_view text, std::size_t at, int* line_feeds) {
    for (; at < text.size() && !is_in(k_stops_of_blanks, text[at]); ++at) {
        *line_feeds += static_cast<int>(text[at] == '\n');
    }
    return at;
}

}  // namespace

bool c_xml::take_start_tag(std::string* name) {
    const std::string_view text = ahead();
    if (text.empty() || !is_plain_name_start(text[0])) return false;
    const std::size_t name_length = run_length(text, 0, k_stops_of_names);
    // A line feed right behind a name is read twice.
    if (name_length == text.size() || text[name_length] == '\n') return false;
    m_attributes_ahead.clear();
    int line_feeds = 0;
    std::size_t at = name_length;
    for (;;) {
        at = skip_blanks(text, at, &line_feeds);
        if (at == text.size()) return false;
        if (text[at] == '>' || text[at] == '/') break;
        if (!is_plain_name_start(text[at])) return false;
        const std::size_t start = at;
        const int line = get_text_line() + line_feeds;
        at = run_length(text, at, k_stops_of_names);
        if (text.size() - at < 2 || text[at] != '=' || text.substr(start, 5) == "xmlns") return false;
        const std::size_t length = at - start;
        const char quote = text[at + 1];
        if (quote != '"' && quote != '\'') return false;
        const byte_set& stops = quote == '"' ? k_stops_of_double_quoted : k_stops_of_single_quoted;
        const std::size_t value = at + 2;
        at = run_length(text, value, stops);
        if (at == text.size() || text[at] != quote) return false;
        line_feeds += static_cast<int>(std::count(text.begin() + value, text.begin() + at, '\n'));
        // Both lie in the buffer as they do in the tag.
        m_attributes_ahead.add({start - name_length, length, value - name_length, at - value, quote, line});
        ++at;
    }
    name->assign(text, 0, name_length);
    clear_attributes();
    m_attributes.swap(m_attributes_ahead);
    if (!m_attributes.empty()) m_attr_buffer.assign(text, name_length, at - name_length);
    take_ahead(at, line_feeds);
    touch_ahead(1);
    return true;
}

void c_xml::set_start_tag(std::string_view tag, int line, std::uint64_t offset) {
    clear_attributes();
    m_event_line = line;
    m_event_offset = offset;
    std::size_t at = run_length(tag, 0, k_stops_of_names);
    m_attr_buffer.assign(tag.substr(at));
    const std::string_view text = m_attr_buffer;
    int line_feeds = 0;
    for (at = skip_blanks(text, 0, &line_feeds); at < text.size(); at = skip_blanks(text, at, &line_feeds)) {
        const std::size_t equals = text.find('=', at);
        const std::size_t value = equals + 2;
        const char quote = text[equals + 1];
        const std::size_t end = text.find(quote, value);
        m_attributes.add({at, equals - at, value, end - value, quote, line + line_feeds});
        line_feeds += static_cast<int>(std::count(text.begin() + value, text.begin() + end, '\n'));
        at = end + 1;
    }
    while (m_attributes.next(&m_named)) {
    }
}

bool c_xml::take_end_tag(std::string* name) {
    const std::string_view text = ahead();
    if (text.empty() || text[0] != '/') return false;
    const std::size_t end = run_length(text, 1, k_stops_of_names);
    if (end == 1 || end == text.size() || text[end] != '>') return false;
    name->assign(text, 1, end - 1);
    take_ahead(end + 1, 0);
    return true;
}

}  // namespace lmx
