// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The values of the plain way: read from the window and checked first, stored when the whole element is known to be
/// good.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "lmx/binding/storage.h"
#include "lmx/binding/table.h"
#include "lmx/reader/xml_reader.h"

namespace lmx {

/// A value that passed its checks, not stored yet.
struct s_plain_value {
    s_plain_value() {}  // nothing is set before a value is read, which is most of the room for attributes

    const char* begin;
    const char* end;
    enum class e_form : std::uint8_t { ascii, utf8, number, datetime, enumerated } form;
    union {
        double number;
        c_datetime datetime;
        const s_enumerated_text* literal;
    };

    std::string_view text() const { return {begin, static_cast<std::size_t>(end - begin)}; }
};

class c_plain_values {
public:
    explicit c_plain_values(c_xml_reader& reader) : m_reader(reader) {}

    /// Reads and checks a value up to `stop` in a window up to `end`. Returns where it ends, and adds the line feeds
    /// in it; null if it isn't plain or isn't right.
    const char* read(const s_item& row, const char* at, const char* end, char stop, s_plain_value* value,
                     int* line_feeds) {
        const s_facets* const facets = row.facets;
        if (row.value != value_kind::number || (facets != nullptr && facets->pattern != nullptr)) {
            return read_other(row, at, end, stop, value, line_feeds);
        }
        const char* const behind = take_short_decimal(at, end, &value->number);
        if (behind == nullptr || behind == end || *behind != stop) {
            return read_other(row, at, end, stop, value, line_feeds);
        }
        value->begin = at;
        value->end = behind;
        value->form = s_plain_value::e_form::number;
        const bool is_right =
            facets == nullptr || (!facets->is_below(value->number) && !facets->is_above(value->number));
        return is_right ? behind : nullptr;
    }

    void store(const s_class& type, const s_item& row, void* object, const s_plain_value& value) {
        void* const storage = place_for_value(type, row, object);
        if (value.form == s_plain_value::e_form::number) {
            *static_cast<double*>(storage) = value.number;
        } else {
            store_other(row, storage, value);
        }
        mark_set(row, object);
    }

private:
    // The same for all but short decimals.
    const char* read_other(const s_item& row, const char* at, const char* end, char stop, s_plain_value* value,
                           int* line_feeds);
    void store_other(const s_item& row, void* storage, const s_plain_value& value);

    const char* find_stop(const char* at, const char* end, char stop, bool* is_ascii, int* line_feeds) const;
    bool is_right(const s_item& row, std::string_view text);

    c_xml_reader& m_reader;
    std::string m_text;  ///< of a value that is checked or converted the long way
};

}  // namespace lmx
