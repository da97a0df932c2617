// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The XML text that JSON stands for: members in the schema's order, each value in its place.

#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tools/json.h"
#include "tools/long_text.h"
#include "tools/members.h"

namespace vyr_tool {

/// What is wrong with a value, and where: the place is null if the library named only the path, or if none was asked
/// for.
struct s_json_fault {
    std::string path;
    std::string text;
    const json* place;
};

/// How the values are given.
struct s_json_form {
    bool has_texts_only = false;        ///< all values are texts, also those that JSON has kinds for
    bool is_nil_where_missing = false;  ///< what must stand there and may be nil is nil if it is missing
    bool has_places = false;            ///< faults name the value
    std::string history{};              ///< the `ChangeHistory` of all that has none; empty: it is missing
};

/// Prints an object, a line for each element, and notes what value each line stands for.
class c_json_to_xml {
public:
    /// Entries of an array that were printed ahead of all around it, so that they need not be kept.
    struct s_entries {
        c_long_text text{};
        std::vector<s_json_fault> faults{};  ///< by paths from the entries down
        std::size_t count = 0;
    };

    /// The form is borrowed.
    explicit c_json_to_xml(const s_json_form& form) : m_form(form) {}

    /// Adds an entry of a list to those printed before. `type` is the class that the list belongs to.
    void print_entry(const lmx::s_class& type, const s_member& list, const json& entry, s_entries& entries);
    /// A value that stands for the array in the object around it. No JSON text gives such a value.
    json placeholder(s_entries&& entries);

    void print_document(const json& object);

    c_long_text& xml() { return m_xml; }
    /// By line; empty if none were asked for.
    const std::vector<const json*>& places() const { return m_places; }
    std::vector<s_json_fault>& faults() { return m_faults; }

private:
    /// A member of an object, in the order of the schema.
    struct s_part {
        const s_member* member;
        const json* value;
        std::size_t number;  ///< in an array, from 1; 0: in none, or alone in it
    };

    /// Of what is being printed, from where printing began.
    std::string path() const;
    void fault(const json& place, const std::string& text);
    void end_line(const json& place);
    std::string text_of(const json& value, lmx::value_kind kind);
    void print_part(const s_part& part);
    void print_value(const json& value, const s_member& member);
    void print_entries(std::size_t number);
    std::vector<s_part> parts_of(const json& object, const lmx::s_class& type);
    /// `number` is 0 for an only entry.
    void add_entry(const c_members& members, const s_member& list, const json& entry, std::size_t number,
                   std::vector<s_part>& parts);
    void add_missing(const c_members& members, std::vector<s_part>& parts);
    void print_object(const json& given, const lmx::s_class& declared, const lmx::s_item* place,
                      std::string_view name);

    const s_json_form& m_form;
    c_long_text m_xml;
    std::vector<const json*> m_places;
    std::vector<s_json_fault> m_faults;
    std::vector<std::string> m_path;
    std::map<std::size_t, s_entries> m_entries;  ///< by the numbers of their placeholders
    std::size_t m_next_entries = 0;
    json m_history;
};

}  // namespace vyr_tool
