// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What reading, copying, setting and printing have to know of a simple value: one row per kind of value, and the one
/// list of the checks that a value has to pass.

#pragma once

#include <string>
#include <string_view>

#include "lmx/binding/stored_type.h"
#include "lmx/binding/table.h"
#include "lmx/error.h"
#include "lmx/writer/output.h"

namespace lmx {

/// A value on its way in: the text, and what its first look found out.
struct s_read_value {
    const std::string& text;
    const s_facets* facets;                      ///< null when there are none
    bool is_valid = true;                        ///< lexically
    bool has_zone = false;                       ///< of a valid dateTime
    double number = 0.0;                         ///< of a number
    const s_enumerated_text* literal = nullptr;  ///< of an enumerated text
};

struct s_value_kind {
    s_stored_type stored;
    bool is_text;       ///< an alternative that is one is chosen before it is read
    bool lies_in_slot;  ///< as an alternative, in the slot of its choice; otherwise on the heap
    void (*assign)(void* target, const void* source);
    void (*swap)(void* one, void* other);
    /// Checks the text's form and fills the record as far as the kind needs it.
    void (*look)(s_read_value& value);
    /// Stores what the text says; an odd text gives a value all the same.
    void (*store)(const s_read_value& value, void* target);
    /// Appends the text form of a value that is stored at `value`.
    void (*print)(c_output& out, const void* value);
};

const s_value_kind& kind_of(value_kind kind);
inline const s_value_kind& kind_of(const s_item& item) { return kind_of(item.value); }

/// Appends the text form of a value to a string.
void print_value(const s_item& item, const void* value, std::string* text);

/// Passes the code of each check that a value fails to `fault`, in the order in which they are told, for as long as
/// that answers true. A `Value` has one predicate per check.
template <class Value, class Fault>
bool passes_checks(const Value& value, Fault&& fault) {
    if (!value.is_valid() && !fault(ELMX_VALUE_BAD_FORMAT)) return false;
    if (value.facets() == nullptr) return true;
    const s_facets& facets = *value.facets();
    return (value.is_matched(facets) || fault(ELMX_NO_PATTERN_MATCHED)) &&
           (value.is_enumerated(facets) || fault(ELMX_VALUE_NOT_ENUMERATED)) &&
           (!value.is_too_short(facets) || fault(ELMX_LENGTH_TOO_SHORT)) &&
           (!value.is_too_long(facets) || fault(ELMX_LENGTH_TOO_LONG)) &&
           (!value.is_below(facets) || fault(ELMX_VALUE_BELOW_MIN)) &&
           (!value.is_above(facets) || fault(ELMX_VALUE_EXCEEDS_MAX));
}

/// The code of the first check that a value fails; 0 if it passes.
template <class Value>
elmx_error first_fault(const Value& value) {
    elmx_error code = ELMX_OK;
    passes_checks(value, [&code](elmx_error fault) {
        code = fault;
        return false;
    });
    return code;
}

/// The checks of a value that was read.
class c_read_checks {
public:
    /// The first look at the value has been taken.
    c_read_checks(value_kind kind, const s_read_value& value) : m_kind(kind), m_value(value) {}

    bool is_valid() const { return m_value.is_valid; }
    const s_facets* facets() const { return m_value.facets; }
    bool is_matched(const s_facets& facets) const;
    bool is_enumerated(const s_facets& facets) const {
        return facets.enumeration == nullptr || m_value.literal != nullptr;
    }
    bool is_too_short(const s_facets& facets) const;
    bool is_too_long(const s_facets& facets) const;
    bool is_below(const s_facets& facets) const;
    bool is_above(const s_facets& facets) const;

private:
    value_kind m_kind;
    const s_read_value& m_value;
};

}  // namespace lmx
