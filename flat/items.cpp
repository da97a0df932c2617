// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What a typed package needs beyond one call per member: looking at a part without raising its flag, the numbers of
/// a whole list in one call, and members that the plain forms leave out. An item is looked up once by the names of
/// its class and itself; the functions then work for that item of any object of the class.

#include <algorithm>
#include <map>
#include <string>
#include <string_view>

#include "flat/call.h"
#include "flat/generated/vyr_flat.h"
#include "lmx/binding/any_info.h"
#include "lmx/binding/object.h"
#include "lmx/binding/storage.h"
#include "lmx/values/unicode.h"
#include "schema/generated/class_list.h"

namespace flat {
namespace {

using lmx::item_kind;
using lmx::s_item;

/// What hosts hold of an item: its row, and the class that a choice needs besides.
struct s_known_item {
    const s_item* row;
    const lmx::s_class* owner;
};

/// The name that stands behind `get_` in the names of an item's functions.
std::string_view accessor(const lmx::s_class& owner, const s_item& item) {
    constexpr std::string_view k_prefix = "Vyr:";
    std::string_view name = item.name;
    if (name.starts_with(k_prefix)) name.remove_prefix(k_prefix.size());
    if (item.kind == item_kind::any) return "any";
    if (item.kind == item_kind::content) return owner.name;
    return name.empty() && item.type != nullptr ? item.type->name : name;
}

using known_items = std::map<std::string, s_known_item, std::less<>>;

known_items make_known_items() {
    known_items made;
    for (const lmx::s_named_class& known : com_vyrgraph_v2::all_classes()) {
        if (known.name != known.type->name) continue;  // a wrapper, whose items are its type's
        for (const auto& items : {known.type->attributes, known.type->elements}) {
            for (const s_item& item : items) {
                const std::string name = std::string(known.name) + "." + std::string(accessor(*known.type, item));
                made.emplace(name, s_known_item{&item, known.type});
            }
        }
    }
    return made;
}

const s_item& row_of(void* item) { return *as<s_known_item>(item).row; }

/// A column is one number of each entry of a list.
bool is_column(const s_item& list, const s_item& item) {
    return list.kind == item_kind::child_list && item.value == lmx::value_kind::number &&
           (item.kind == item_kind::attribute || item.kind == item_kind::element || item.kind == item_kind::content);
}

/// Appends or removes entries at the end; what can't be appended leaves the list as it was.
void resize(lmx::c_list_base* list, const lmx::s_stored_type& type, std::size_t count) {
    const std::size_t before = list->size();
    const auto shrink = [&](std::size_t size) {
        while (list->size() > size) list->remove(list->size() - 1, type);
    };
    try {
        while (list->size() < count) list->append(type);
    } catch (...) {
        shrink(before);
        throw;
    }
    shrink(count);
}

}  // namespace

extern "C" {

VYR_FLAT(void*) VyrModule_FindItem(const char* class_name, const char* item) {
    return guarded(
        +[](const char* c, const char* i) -> void* {
            static known_items all = make_known_items();
            const auto found = all.find(std::string(c) + "." + i);
            return found == all.end() ? nullptr : &found->second;
        },
        class_name, item);
}

VYR_FLAT(void*) VyrModule_GetPart(void* self, void* item) {
    const s_item& row = row_of(item);
    if (row.type == nullptr || !is_set(row, self)) return nullptr;
    return const_cast<void*>(child_of(row, self));
}

VYR_FLAT(std::uint32_t)
VyrModule_GetDoubles(void* self, void* list, void* item, double* values, std::uint32_t capacity) {
    const s_item &rows = row_of(list), &row = row_of(item);
    if (!is_column(rows, row)) return 0;
    const auto& entries = list_of(rows, self);
    const std::size_t count = std::min<std::size_t>(entries.size(), capacity);
    for (std::size_t i = 0; i < count; ++i) values[i] = lmx::member<double>(entries.entry(i), row.offset);
    return static_cast<std::uint32_t>(entries.size());
}

VYR_FLAT(std::int32_t)
VyrModule_SetDoubles(void* self, void* list, void* item, const double* values, std::uint32_t count) {
    return guarded(
        +[](void* s, void* l, void* i, const double* v, std::uint32_t n) -> lmx::elmx_error {
            const s_item &rows = row_of(l), &row = row_of(i);
            if (!is_column(rows, row)) return lmx::ELMX_USER_DEFINED_1;
            for (std::uint32_t k = 0; k < n; ++k) {
                if (const lmx::elmx_error code = check_item(row, v[k]); code != lmx::ELMX_OK) return code;
            }
            auto& entries = lmx::member<lmx::c_list_base>(s, rows.offset);
            resize(&entries, rows.type->operations->stored, n);
            for (std::uint32_t k = 0; k < n; ++k)
                lmx::set_item(*as<s_known_item>(i).owner, row, entries.entry(k), v[k]);
            return lmx::ELMX_OK;
        },
        self, list, item, values, count);
}

VYR_FLAT(char16_t*) VyrModule_GetMarkup(void* self, void* item, std::uint32_t index) {
    return guarded(
        +[](void* s, void* i, std::uint32_t n) -> char16_t* {
            if (row_of(i).kind != item_kind::any) return nullptr;
            const auto& entries = list_of(row_of(i), s);
            if (n >= entries.size()) return nullptr;
            return new_string(lmx::convert_to_wide(as<lmx::c_any_info>(entries.entry(n)).get_value()));
        },
        self, item, index);
}

VYR_FLAT(void*) VyrModule_AssignAlternative(void* self, void* item, void* value) {
    return guarded(
        +[](void* s, void* i, void* v) -> void* {
            const auto& [row, owner] = as<s_known_item>(i);
            if (row->kind != item_kind::alternative || row->type == nullptr ||
                row->type->operations->clone == nullptr)
                return nullptr;
            void* const copy = row->type->operations->clone(v);
            // The former object, of which the value may have been a part, is deleted even if it was of this kind.
            lmx::release_choice(*owner, s);
            lmx::adopt(*owner, *row, s, copy);
            return copy;
        },
        self, item, value);
}

}  // extern "C"
}  // namespace flat
