// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What a schema-bound object does without a document: copying, swapping, checking, setting.
///
/// Each function walks the table of a class. `object` points to an object of exactly the class, or of one
/// derived from it; all schema-bound classes have at most one base, at offset zero.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "lmx/binding/table.h"
#include "lmx/error.h"
#include "lmx/export.h"

namespace lmx {

/// Copies into a default-constructed target: optional items only if the source has them, required ones always,
/// and those count as present afterwards.
VYR_EXPORT void copy(const s_class& type, void* target, const void* source);

/// Exchanges the values of two objects of one class, the base's items first. Children stay where they are: an
/// optional one that only one object has is made in the other first, and nothing is exchanged if that fails.
VYR_EXPORT void swap(const s_class& type, void* one, void* other);

/// The same, but optional children change hands. Can't fail.
VYR_EXPORT void exchange(const s_class& type, void* one, void* other);

/// True if everything that this level must have is there, or the element is nil. Doesn't look into children.
VYR_EXPORT bool is_occurs_ok(const s_class& type, const void* object);

/// Stores a value that meets the item's facets and marks the item as present; a nil content becomes non-nil.
/// Otherwise returns the facet's code and changes nothing. Works for alternatives of a choice too, which it
/// then chooses.
VYR_EXPORT elmx_error set_item(const s_class& type, const s_item& item, void* object, const std::u16string& value);
VYR_EXPORT elmx_error set_item(const s_class& type, const s_item& item, void* object, bool value);
VYR_EXPORT elmx_error set_item(const s_class& type, const s_item& item, void* object, double value);
VYR_EXPORT elmx_error set_item(const s_class& type, const s_item& item, void* object, std::int32_t value);
VYR_EXPORT elmx_error set_item(const s_class& type, const s_item& item, void* object, std::uint32_t value);
VYR_EXPORT elmx_error set_item(const s_class& type, const s_item& item, void* object, std::uint8_t value);
VYR_EXPORT elmx_error set_item(const s_class& type, const s_item& item, void* object, const c_datetime& value);
VYR_EXPORT elmx_error set_item(const s_class& type, const s_item& item, void* object, const c_binary& value);
/// What setting this value would return.
elmx_error check_item(const s_item& item, double value);

/// As `set_item`, for an entry of a repeating simple item. An index at or beyond the end appends.
VYR_EXPORT elmx_error set_entry(const s_item& item, void* object, std::size_t index, const std::u16string& value);
VYR_EXPORT elmx_error set_entry(const s_item& item, void* object, std::size_t index, const c_datetime& value);
/// Puts a new entry before `index`, or at the end if `index` is at or beyond it.
VYR_EXPORT elmx_error insert_entry(const s_item& item, void* object, std::size_t index, const std::u16string& value);
VYR_EXPORT elmx_error insert_entry(const s_item& item, void* object, std::size_t index, const c_datetime& value);

/// Stores the text of a number; false, changing nothing, for a number that isn't in the enumeration.
VYR_EXPORT bool set_enumerated(const s_class& type, const s_item& item, void* object, std::int32_t number);

/// Makes an alternative the chosen one: if it isn't yet, frees the former one and starts a default object.
/// Returns where its object or value lies.
VYR_EXPORT void* choose(const s_class& type, const s_item& alternative, void* object);
/// Makes an alternative the chosen one and hands over its object. If it was chosen already, the former object is
/// not deleted: a caller may still hold it.
VYR_EXPORT void adopt(const s_class& type, const s_item& alternative, void* object, void* owned);
/// Frees what is chosen; nothing is chosen afterwards.
VYR_EXPORT void release_choice(const s_class& type, void* object);
/// The text of an alternative; the empty text while another one, or none, is chosen.
VYR_EXPORT const std::u16string& chosen_text(const s_class& type, const s_item& alternative, const void* object);
/// The number of an enumerated alternative's text, from 1; 0 while it is odd, or another one, or none, is chosen.
VYR_EXPORT std::int32_t chosen_number(const s_class& type, const s_item& alternative, const void* object);

/// A new default object of the class that the rows know by that local name in the document's namespace
/// (number 1000); null otherwise. The caller owns it.
VYR_EXPORT void* create_by_name(std::span<const s_factory_row> rows, int ns_id, const std::string& name);

}  // namespace lmx
