// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/plain_value.h"

#include "lmx/binding/unmarshal.h"
#include "lmx/reader/plain_text.h"
#include "lmx/values/characters.h"

namespace lmx {

/// The end of a value that ends with `stop`; null if something in it isn't plain.
const char* c_plain_values::find_stop(const char* at, const char* end, char stop, bool* is_ascii,
                                      int* line_feeds) const {
    for (;;) {
        at = find_special(at, end, stop);
        if (at == end) return nullptr;
        if (*at == stop) return at;
        if (*at == '\n') {
            ++*line_feeds;
            ++at;
        } else {
            const std::size_t length = m_reader.get_plain_length({at, static_cast<std::size_t>(end - at)});
            if (static_cast<signed char>(*at) >= 0 || length == 0) return nullptr;
            *is_ascii = false;
            at += length;
        }
    }
}

const char* c_plain_values::read_other(const s_item& row, const char* at, const char* end, char stop,
                                       s_plain_value* value, int* line_feeds) {
    const s_facets* const facets = row.facets;
    value->begin = at;
    if (row.value == value_kind::datetime && (facets == nullptr || facets->pattern_takes_zoned) &&
        end - at > static_cast<std::ptrdiff_t>(c_datetime::k_usual_size) && at[c_datetime::k_usual_size] == stop &&
        value->datetime.assign_usual(at)) {
        value->form = s_plain_value::e_form::datetime;
        return value->end = at + c_datetime::k_usual_size;
    }
    bool is_ascii = true;
    value->end = find_stop(at, end, stop, &is_ascii, line_feeds);
    if (value->end == nullptr) return nullptr;
    value->form = is_ascii ? s_plain_value::e_form::ascii : s_plain_value::e_form::utf8;
    if (row.value == value_kind::enumerated) {
        value->form = s_plain_value::e_form::enumerated;
        value->literal = facets->enumeration->find(value->text());
        return value->literal != nullptr ? value->end : nullptr;
    }
    const bool is_kept = row.whitespace == ELMX_WS_PRESERVE || is_collapsed(value->text());
    return is_kept && is_right(row, value->text()) ? value->end : nullptr;
}

/// The checks of a value that the short cuts don't know.
bool c_plain_values::is_right(const s_item& row, std::string_view text) {
    if (row.value == value_kind::text && row.facets == nullptr) return true;
    m_text.assign(text);
    return check_as_read(row, m_text) == ELMX_OK;
}

void c_plain_values::store_other(const s_item& row, void* storage, const s_plain_value& value) {
    switch (value.form) {
        case s_plain_value::e_form::number:
            break;
        case s_plain_value::e_form::datetime:
            *static_cast<c_datetime*>(storage) = value.datetime;
            break;
        case s_plain_value::e_form::enumerated:
            static_cast<c_enumerated*>(storage)->set(value.literal);
            break;
        case s_plain_value::e_form::ascii:
            if (row.value == value_kind::text) {
                static_cast<std::u16string*>(storage)->assign(value.begin, value.end);
                break;
            }
            [[fallthrough]];
        case s_plain_value::e_form::utf8: {
            m_text.assign(value.text());
            s_read_value read{m_text, row.facets};
            kind_of(row).look(read);
            kind_of(row).store(read, storage);
            break;
        }
    }
}

}  // namespace lmx
