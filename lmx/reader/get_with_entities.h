// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Lets an entity's text stand in for document text: a reference pushes it on an input stack, and the next bytes
/// come from there.

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "lmx/export.h"
#include "lmx/reader/get_as_utf8.h"

namespace lmx {

/// Entities by name; the last definition of a name wins.
///
/// A value keeps its address for as long as the table lives, also when it is replaced or cleared: an entity can be
/// defined anew while its text is being read.
class VYR_EXPORT c_entity_table {
public:
    virtual ~c_entity_table();

    void add(std::string_view name, std::string_view value);
    /// Null for a name that isn't defined.
    const std::string* find(std::string_view name) const;
    /// Forgets all names.
    virtual void clear();

private:
    // A tree, because a document's author chooses the names and could choose those of one hash.
    std::map<std::string, const std::string*, std::less<>> m_values;
    std::vector<std::unique_ptr<const std::string>> m_storage;
};

/// The total work that references may cause: a base for small documents, and so much for each byte of input that no
/// document without nested definitions comes near it. A reference that stands in the document and gives no more than
/// it took to write costs nothing. In an entity's text each one counts: a chain of short ones is work without growth.
inline constexpr std::uint64_t k_expansion_base = 1000000;
inline constexpr std::uint64_t k_expansion_per_byte = 5;
inline constexpr std::uint64_t k_least_reference_cost = 20;

class VYR_EXPORT c_get_with_entities : public c_get_as_utf8 {
public:
    c_get_with_entities(c_read& reader, c_error& error) : c_get_as_utf8(reader, error) {}

    /// As in the layer below, with entity text on top. Bytes of entity text over 127 come as negative values; 0xFF,
    /// which would be -1, comes as -257. Neither lines nor line ends count in entity text.
    int get() { return m_entity_stack.empty() ? c_get_as_utf8::get() : get_from_entity(); }
    void unget(int c) {
        if (m_entity_stack.empty()) {
            c_get_as_utf8::unget(c);
        } else {
            m_entity_stack.back().m_unget.unget(c);
        }
    }

    /// Pushes a text, borrowed and null-terminated. False, with a fatal report, if that very text is open already.
    bool set_input_entity_value(const char* value) {
        return push_entity(value, std::char_traits<char>::length(value));
    }

    void add_general_entity(const char* name, const char* value) { m_general_entities.add(name, value); }
    void add_parameter_entity(const char* name, const char* value) { m_parameter_entities.add(name, value); }
    bool get_general_entity(const char* name, const char** value) const;
    bool get_parameter_entity(const char* name, const char** value) const;
    std::size_t get_entity_stack_depth() const { return m_entity_stack.size(); }

    /// Forgets all entities and goes back to the start of the input. Open entities stay open.
    void rewind();

    bool at_end_of_input() const;

protected:
    void take_run(const byte_set& stops, std::string* out) {
        if (m_entity_stack.empty()) c_get_as_utf8::take_run(stops, out);
    }
    std::string_view ahead() const { return m_entity_stack.empty() ? c_get_as_utf8::ahead() : std::string_view(); }
    bool is_ahead(std::string_view text) const { return m_entity_stack.empty() && c_get_as_utf8::is_ahead(text); }
    bool take_if_ahead(std::string_view text) { return m_entity_stack.empty() && c_get_as_utf8::take_if_ahead(text); }
    bool take_if_ahead(std::string_view head, std::string_view body, std::string_view tail) {
        return m_entity_stack.empty() && c_get_as_utf8::take_if_ahead(head, body, tail);
    }
    bool push_entity(const std::string& value) { return push_entity(value.data(), value.size()); }
    /// Whether no entity's text is open: what was read last came from the document itself.
    bool is_in_document() const { return m_entity_stack.empty(); }
    /// Accounts for one reference to a text of that size. `written` is its own length where it stands in the
    /// document, 0 in an entity's text. False, with a fatal report, past the limit.
    bool charge_reference(std::size_t size, std::size_t written);
    void report_recursion(std::string_view value);

    c_entity_table& general_entities() { return m_general_entities; }
    c_entity_table& parameter_entities() { return m_parameter_entities; }

private:
    int get_from_entity();

    struct s_entity_input {
        const char* m_next;
        const char* m_end;
        const char* m_start;
        c_unget_buffer m_unget;
    };

    bool push_entity(const char* value, std::size_t size);
    bool is_shut() const { return get_error_handler().is_fatal_errored(); }

    std::vector<s_entity_input> m_entity_stack;
    std::unordered_set<const char*> m_open_texts;
    c_entity_table m_general_entities;
    c_entity_table m_parameter_entities;
    std::uint64_t m_expansion_work = 0;
};

}  // namespace lmx
