// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/members.h"

#include <memory>
#include <mutex>

namespace vyr_tool {

using lmx::item_kind;
using lmx::s_class;
using lmx::s_item;
using lmx::value_kind;

std::string_view local_name(std::string_view name) {
    constexpr std::string_view k_prefix = "Vyr:";
    return name.starts_with(k_prefix) ? name.substr(k_prefix.size()) : name;
}

const c_members& c_members::of(const s_class& type) {
    using known_members = std::unordered_map<const s_class*, std::unique_ptr<c_members>>;
    // Each thread has its own, which the process keeps: when a thread ends, some systems give the memory of its
    // variables back before these are destroyed.
    static std::mutex mutex;
    static std::vector<std::unique_ptr<known_members>> of_all_threads;
    static thread_local known_members* known = nullptr;
    if (known == nullptr) {
        const std::scoped_lock lock(mutex);
        known = of_all_threads.emplace_back(std::make_unique<known_members>()).get();
    }
    std::unique_ptr<c_members>& members = (*known)[&type];
    if (!members) members = std::make_unique<c_members>(type);
    return *members;
}

c_members::c_members(const s_class& type) {
    add(type);
    // The list is complete, so its entries have found their places.
    for (const s_member& member : m_all) {
        if (member.item->kind == item_kind::content) m_content = &member;
        if (member.is_any()) m_any = &member;
        if ((member.item->use & lmx::use_name) != 0 && m_title == nullptr) m_title = &member;
    }
}

/// Attributes come first, the base's before the class's own; so do elements.
void c_members::add(const s_class& type) {
    std::vector<const s_class*> line;
    for (const s_class* base = &type; base != nullptr; base = base->base) line.insert(line.begin(), base);
    for (const s_class* one : line) {
        for (const s_item& item : one->attributes) add(item, item);
    }
    for (const s_class* one : line) {
        for (const s_item& item : one->elements) add(item, item);
    }
}

void c_members::add(const s_item& item, const s_item& holder) {
    if (lmx::is_group(item)) {
        if (item.kind == item_kind::group_list) m_groups.try_emplace(local_name(item.name), m_all.size());
        const std::size_t order = m_all.size();
        for (const s_item& alternative : item.type->elements) {
            add(alternative, item);
            m_all.back().order = order;
            if (item.kind == item_kind::group_list) m_all.back().key = local_name(item.name);
        }
        return;
    }
    s_member member{local_name(item.name), item.name, &item, &holder, m_all.size()};
    if (item.kind == item_kind::content) member.key = k_content_key;
    if (item.kind == item_kind::any) member.key = k_any_key;
    if (item.kind == item_kind::attribute) {
        m_attributes.try_emplace(member.key, m_all.size());
    } else if (item.kind != item_kind::content && item.kind != item_kind::any) {
        m_elements.try_emplace(member.key, m_all.size());
    }
    m_all.push_back(member);
}

const s_member* c_members::find(const std::unordered_map<std::string_view, std::size_t>& places,
                                std::string_view name) const {
    const auto found = places.find(name);
    return found == places.end() ? nullptr : &m_all[found->second];
}

const s_member* c_members::attribute(std::string_view name) const { return find(m_attributes, name); }

const s_member* c_members::element(std::string_view name) const { return find(m_elements, local_name(name)); }

const s_member* c_members::by_key(std::string_view key) const {
    if (key == k_content_key) return m_content;
    if (key == k_any_key) return m_any;
    if (const s_member* const found = find(m_groups, key)) return found;
    if (const s_member* const found = find(m_attributes, key)) return found;
    const s_member* const found = find(m_elements, key);
    return found == nullptr || found->is_group_list() ? nullptr : found;
}

value_kind kind_of(const s_item* item) {
    if (item == nullptr) return value_kind::none;
    if (item->type == nullptr || item->value != value_kind::none) return item->value;
    const s_member* const content = c_members::of(*item->type).content();
    return content == nullptr ? value_kind::none : content->item->value;
}

const s_class* specialised(const s_item& item, std::string_view type_name) {
    for (const lmx::s_factory_row& row : item.factory) {
        if (row.name == local_name(type_name)) return row.type;
    }
    // A document may also name the type that stands there anyway.
    const bool is_own = item.type != nullptr && item.type->id != nullptr &&
                        lmx::family_member(*item.type).name == local_name(type_name);
    return is_own ? item.type : nullptr;
}

}  // namespace vyr_tool
