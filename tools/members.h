// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What may stand in an element, by name: the library's binding tables, with the bases' rows and the members of
/// groups in one list a class.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "lmx/binding/table.h"

namespace vyr_tool {

/// The parts of an element that have no name of their own in a document, as JSON calls them. No name of the format
/// starts with a small letter.
inline constexpr std::string_view k_content_key = "value";
inline constexpr std::string_view k_any_key = "any";
inline constexpr std::string_view k_type_key = "xsi:type";
inline constexpr std::string_view k_nil_key = "xsi:nil";

/// A name without the format's prefix.
std::string_view local_name(std::string_view name);

/// An attribute, a child element, the content or open content of a class.
struct s_member {
    std::string_view key;       ///< local name; of the entries of a repeating group, the group's
    std::string_view name;      ///< as printed
    const lmx::s_item* item;    ///< the row that says what it holds
    const lmx::s_item* holder;  ///< the row of the class: of a group's member, the group's
    std::size_t order;          ///< in the document, among the class's members

    bool is_attribute() const { return item->kind == lmx::item_kind::attribute; }
    bool is_any() const { return item->kind == lmx::item_kind::any; }
    bool is_marker() const { return item->kind == lmx::item_kind::marker; }
    /// Whether it stands in an array.
    bool is_list() const { return lmx::is_repeating(*holder); }
    /// Whether the entries of the array say their names.
    bool is_group_list() const { return holder->kind == lmx::item_kind::group_list; }
};

/// All members of a class.
class c_members {
public:
    /// The list of a class, made when it is first asked for, for each thread its own.
    static const c_members& of(const lmx::s_class& type);

    explicit c_members(const lmx::s_class& type);

    const std::vector<s_member>& all() const { return m_all; }
    /// An attribute or an element; null if there is none.
    const s_member* attribute(std::string_view name) const;
    const s_member* element(std::string_view name) const;
    /// Either of them, or the name of a repeating group: then any of its members. Null if there is none.
    const s_member* by_key(std::string_view key) const;
    /// The text between the tags; null if there is none.
    const s_member* content() const { return m_content; }
    const s_member* any() const { return m_any; }
    /// The member whose text people call the object by; null if there is none.
    const s_member* title() const { return m_title; }
    /// Whether nothing but the text between the tags can stand in the element.
    bool is_content_only() const { return m_content != nullptr && m_all.size() == 1; }

private:
    void add(const lmx::s_class& type);
    void add(const lmx::s_item& item, const lmx::s_item& holder);
    const s_member* find(const std::unordered_map<std::string_view, std::size_t>& places,
                         std::string_view name) const;

    std::vector<s_member> m_all;
    std::unordered_map<std::string_view, std::size_t> m_attributes;
    std::unordered_map<std::string_view, std::size_t> m_elements;
    std::unordered_map<std::string_view, std::size_t> m_groups;
    const s_member* m_content = nullptr;
    const s_member* m_any = nullptr;
    const s_member* m_title = nullptr;
};

/// The kind of the simple value that a row or a class with simple content holds; `none` for others.
lmx::value_kind kind_of(const lmx::s_item* item);

/// The class that an `xsi:type` names in the place of a row's own; null if it names none that may stand there.
const lmx::s_class* specialised(const lmx::s_item& item, std::string_view type_name);

}  // namespace vyr_tool
