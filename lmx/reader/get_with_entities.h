// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Lets an entity's text stand in for document text: a reference pushes it on an input stack, and the next bytes
/// come from there.

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "lmx/export.h"
#include "lmx/reader/get_as_utf8.h"
#include "lmx/reader/name_table.h"

namespace lmx {

/// What an entity stands for.
struct s_entity_text {
    const char* data;  ///< null-terminated
    std::size_t size;
    // Where it is being read; it must not be met again there.
    bool is_open_as_input = false;
    bool is_open_in_place = false;

    std::string_view view() const { return {data, size}; }
};

/// Entities by name; the last definition of a name wins.
///
/// A text keeps its address for as long as the table lives, also when it is replaced or cleared: an entity can be
/// defined anew while its text is being read.
class VYR_EXPORT c_entity_table {
public:
    c_entity_table() = default;
    c_entity_table(const c_entity_table&) = delete;
    c_entity_table& operator=(const c_entity_table&) = delete;
    virtual ~c_entity_table();

    void add(std::string_view name, std::string_view value);
    /// Null for a name that isn't defined.
    s_entity_text* find(std::string_view name) const;
    /// Forgets all names.
    virtual void clear();

private:
    char* allocate(std::size_t size);

    c_name_table m_names;  ///< numbered by their texts
    std::vector<s_entity_text*> m_texts;
    std::vector<std::unique_ptr<char[]>> m_chunks;  ///< texts, each behind its `s_entity_text`
    char* m_free = nullptr;                         ///< what is left of a chunk
    std::size_t m_free_size = 0;
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

    // `get` and `unget` are those of the layer below, with entity text on top. Bytes of entity text over 127 come as
    // negative values; 0xFF, which would be -1, comes as -257. Neither lines nor line ends count in entity text.

    /// Pushes a text, borrowed and null-terminated. False, with a fatal report, if that very text is open already.
    bool set_input_entity_value(const char* value);

    void add_general_entity(const char* name, const char* value) { m_general_entities.add(name, value); }
    void add_parameter_entity(const char* name, const char* value) { m_parameter_entities.add(name, value); }
    bool get_general_entity(const char* name, const char** value) const;
    bool get_parameter_entity(const char* name, const char** value) const;
    std::size_t get_entity_stack_depth() const { return m_entity_stack.size(); }

    /// Forgets all entities and goes back to the start of the input. Open entities stay open.
    void rewind();

    bool at_end_of_input() const;

protected:
    int refill() override;
    void give_back(int value) override;
    /// The same for a text of a table.
    bool push_entity(s_entity_text& text);
    /// Whether no entity's text is open: what was read last came from the document itself.
    bool is_in_document() const { return m_entity_stack.empty(); }
    /// Accounts for one reference to a text of that size. `written` is its own length where it stands in the
    /// document, 0 in an entity's text. False, with a fatal report, past the limit.
    bool charge_reference(std::size_t size, std::size_t written);
    void report_recursion(std::string_view value);

    c_entity_table& general_entities() { return m_general_entities; }
    c_entity_table& parameter_entities() { return m_parameter_entities; }

private:
    struct s_entity_input {
        s_entity_text* text;
        std::size_t position;
    };
    struct s_given_back {
        std::size_t depth;  ///< of the text that it belongs to
        int value;
    };

    void open_entity(s_entity_text& text);
    void close_entity();

    std::vector<s_entity_input> m_entity_stack;
    std::vector<s_given_back> m_given_back;                  ///< to texts on the stack
    std::vector<std::unique_ptr<s_entity_text>> m_borrowed;  ///< those on the stack that no table owns
    c_entity_table m_general_entities;
    c_entity_table m_parameter_entities;
    std::uint64_t m_expansion_work = 0;
};

}  // namespace lmx
