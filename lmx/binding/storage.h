// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Access to an object's storage through the offsets of its rows: for this folder, and for what serves hosts of other
/// languages by walking the rows.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "lmx/binding/table.h"
#include "lmx/binding/value_kinds.h"

namespace lmx {

template <class T>
T& member(void* object, std::uint32_t offset) {
    return *reinterpret_cast<T*>(static_cast<std::byte*>(object) + offset);
}

template <class T>
const T& member(const void* object, std::uint32_t offset) {
    return *reinterpret_cast<const T*>(static_cast<const std::byte*>(object) + offset);
}

inline bool is_set(const s_item& item, const void* object) {
    return item.flag != k_no_flag && member<bool>(object, item.flag);
}

inline void mark_set(const s_item& item, void* object) {
    if (item.flag != k_no_flag) member<bool>(object, item.flag) = true;
}

inline bool is_nil(const s_class& type, const void* object) {
    return type.nil_flag != k_no_flag && member<bool>(object, type.nil_flag);
}

/// The object of a child. Of an optional one that was never touched, null.
inline const void* child_of(const s_item& item, const void* object) {
    return item.kind == item_kind::optional_child ? member<c_optional_child_base>(object, item.offset).object()
                                                  : &member<std::byte>(object, item.offset);
}
/// The same; makes an optional one if there is none.
inline void* touch_child(const s_item& item, void* object) {
    if (item.kind == item_kind::optional_child) {
        return member<c_optional_child_base>(object, item.offset).touch(item.type->operations->stored);
    }
    return &member<std::byte>(object, item.offset);
}

inline const c_list_base& list_of(const s_item& item, const void* object) {
    return member<c_list_base>(object, item.offset);
}

inline s_choice& choice_of(const s_class& type, void* object) { return member<s_choice>(object, type.choice); }
inline const s_choice& choice_of(const s_class& type, const void* object) {
    return member<s_choice>(object, type.choice);
}

inline std::int32_t alternative_number(const s_class& type, const s_item& alternative) {
    return static_cast<std::int32_t>(&alternative - type.elements.data());
}

/// The row of the chosen alternative, or null when nothing is chosen.
inline const s_item* chosen_row(const s_class& type, const s_choice& choice) {
    const auto number = static_cast<std::size_t>(choice.chosen);
    return number < type.elements.size() ? &type.elements[number] : nullptr;
}

/// What the storage of a text or an enumerated text says.
inline const std::u16string& text_in(const s_item& item, const void* storage) {
    return item.value == value_kind::enumerated ? static_cast<const c_enumerated*>(storage)->get()
                                                : *static_cast<const std::u16string*>(storage);
}

/// Of a class or kind, what a list, a child or a choice needs to hold one.
inline const s_stored_type& stored_type_of(const s_item& item) {
    return item.type != nullptr ? item.type->operations->stored : kind_of(item).stored;
}

/// Whether an alternative lies in the slot of its choice; others are owned through it.
inline bool lies_in_slot(const s_item& alternative) {
    return alternative.type == nullptr && kind_of(alternative).lies_in_slot;
}
/// Where the value or object of the chosen alternative lies.
inline void* alternative_storage(const s_item& alternative, s_choice& choice) {
    return lies_in_slot(alternative) ? &choice.number : choice.object;
}
inline const void* alternative_storage(const s_item& alternative, const s_choice& choice) {
    return alternative_storage(alternative, const_cast<s_choice&>(choice));
}

/// The class whose first row is the element's own content: the class itself, or a base of it.
inline const s_class& content_owner(const s_class& type) {
    const s_class* owner = &type;
    while (owner->elements.empty() && owner->base != nullptr) owner = owner->base;
    return *owner;
}

/// Whether an item that must be there is there.
bool is_item_there(const s_item& item, const void* object);

/// A new entry at the end of a repeating item; a default value or object.
void* append_default(const s_item& item, void* object);

/// Where the value of a list's new entry or of an alternative, which is chosen then, goes.
void* make_place_for_value(const s_class& type, const s_item& item, void* object);

/// Where a value that passed its checks goes: into the object, to the end of a list, or into a choice.
inline void* place_for_value(const s_class& type, const s_item& item, void* object) {
    const bool is_made = item.kind == item_kind::element_list || item.kind == item_kind::alternative;
    return is_made ? make_place_for_value(type, item, object) : &member<std::byte>(object, item.offset);
}

}  // namespace lmx
