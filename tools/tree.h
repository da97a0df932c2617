// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A document as a plain tree of elements, in the form in which the library writes it: numbers in one notation,
/// defaults in place. For commands that treat all elements alike.

#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "lmx/error.h"
#include "lmx/reader/read.h"
#include "tools/members.h"

namespace vyr_tool {

/// Elements are numbered in the order of the document, the root is 0. Of names the format's own prefix is left out.
///
/// Compact: a document of 40 MB with spectra takes less than its own size.
class c_tree {
public:
    using index = std::uint32_t;

    /// An attribute, or an element's text, whose name is empty.
    struct field {
        std::string_view name;
        std::string_view value;
        lmx::value_kind kind;  ///< by the schema; `none` for `xsi:` attributes and in open content
    };

    /// Reads a document that the library wrote, once per object. Fails for others, or for 4 GB of values.
    lmx::elmx_error read(lmx::c_read& source);

    index size() const { return static_cast<index>(m_nodes.size()); }
    std::string_view name(index node) const { return m_names[m_nodes[node].name].text; }
    /// What the element is to its parent; null for the root and in open content.
    const s_member* member(index node) const { return m_names[m_nodes[node].name].member; }
    /// The element's class; null for simple elements and in open content.
    const lmx::s_class* type(index node) const { return m_names[m_nodes[node].name].type; }
    /// The number behind the last descendant, which is the next sibling if there is one.
    index end(index node) const { return m_nodes[node].end; }
    bool is_leaf(index node) const { return end(node) == node + 1; }
    /// The same for elements that are alike in all that they hold; by chance, hardly ever, for others.
    std::uint64_t hash(index node) const { return m_nodes[node].hash; }

    std::size_t field_count(index node) const { return last_field(node) - m_nodes[node].first_field; }
    field get_field(index node, std::size_t i) const;
    bool is_nil(index node) const { return !value(node, k_nil_key).empty(); }
    /// The value of a field; empty without one.
    std::string_view value(index node, std::string_view field_name = {}) const;
    /// The first child of that name, 0 if there is none.
    index child(index node, std::string_view child_name) const;
    /// All children of that name.
    std::vector<index> children(index node, std::string_view child_name) const;
    /// What people call this element: the value of its first attribute whose name ends in "Name", or else of its
    /// child `Name`, in an `Axis` of `AxisName`. Empty if there is none.
    std::string_view title(index node) const;
    /// The same from attributes only.
    std::string_view attribute_title(index node) const;

private:
    struct s_node {
        std::uint64_t hash;
        std::uint32_t name;
        index end;
        std::uint32_t first_field;
    };
    struct s_field {
        std::uint32_t name;
        std::uint32_t begin;  ///< in the values; it ends where the next one's begins
    };

    std::size_t last_field(index node) const {
        return node + 1 < m_nodes.size() ? m_nodes[node + 1].first_field : m_fields.size() - 1;
    }
    struct s_name {
        std::string_view text;
        const s_member* member;
        const lmx::s_class* type;
        lmx::value_kind kind;  ///< of the attribute, or of the text of the element
    };

    std::uint32_t number_of(const std::string& qualified_name, const s_member* member, const lmx::s_class* type);
    void add_field(std::uint32_t field_name, std::string_view field_value);
    void set_hash(index node);

    std::vector<s_node> m_nodes;
    std::vector<s_field> m_fields;  ///< closed by one that marks the end
    std::string m_values;
    std::vector<s_name> m_names;
    std::unordered_map<std::string, std::uint32_t> m_foreign;  ///< numbers by name; owns the names
    std::map<std::pair<const s_member*, const lmx::s_class*>, std::uint32_t> m_known;  ///< those that have a row
};

/// Whether two elements are alike in all that they hold.
bool is_same(const c_tree& one, c_tree::index node, const c_tree& other, c_tree::index other_node);

/// Writes the steps of paths. Siblings are counted once, when one of them is first asked for.
class c_steps {
public:
    explicit c_steps(const c_tree& tree) : m_tree(tree) {}

    /// `Color "Ink 17"`, and `ChangeHistory[2]` where several are called the same. A name from inside the element is
    /// only shown where it tells siblings apart.
    std::string step(c_tree::index parent, c_tree::index node);

private:
    struct s_step {
        std::uint32_t number;  ///< among those that are called the same, from 1
        bool is_numbered;
        bool is_titled;
    };

    void count_children(c_tree::index parent);

    const c_tree& m_tree;
    std::unordered_map<c_tree::index, s_step> m_steps;
};

/// The path to a deeper step.
std::string join(const std::string& path, const std::string& step);

}  // namespace vyr_tool
