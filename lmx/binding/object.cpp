// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/object.h"

#include <algorithm>
#include <utility>

#include "lmx/binding/any_info.h"
#include "lmx/binding/storage.h"
#include "lmx/values/unicode.h"

namespace lmx {
namespace {

void copy_list(const s_item& item, void* target, const void* source) {
    const c_list_base& entries = list_of(item, source);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        void* const entry = append_default(item, target);
        switch (item.kind) {
            case item_kind::element_list:
                kind_of(item).assign(entry, entries.entry(i));
                break;
            case item_kind::any:
                *static_cast<c_any_info*>(entry) = *static_cast<const c_any_info*>(entries.entry(i));
                break;
            default:
                item.type->operations->assign(entry, entries.entry(i));
        }
    }
}

void copy_single(const s_item& item, void* target, const void* source) {
    if (item.kind == item_kind::marker) return;
    if ((item.use & use_copied) == 0 && !is_set(item, source)) return;
    if (item.type != nullptr) {
        item.type->operations->assign(touch_child(item, target), child_of(item, source));
    } else {
        kind_of(item).assign(&member<std::byte>(target, item.offset), &member<std::byte>(source, item.offset));
    }
    mark_set(item, target);
}

void copy_choice(const s_class& type, void* target, const void* source) {
    const s_choice& from = choice_of(type, source);
    const s_item* const alternative = chosen_row(type, from);
    if (alternative == nullptr) return;
    if (!alternative->factory.empty()) {
        // The object may be of a derived class: only its own clone knows.
        void* const object = from.object == nullptr ? nullptr : alternative->type->operations->clone(from.object);
        adopt(type, *alternative, target, object);
        return;
    }
    const auto assign =
        alternative->type != nullptr ? alternative->type->operations->assign : kind_of(*alternative).assign;
    assign(choose(type, *alternative, target), alternative_storage(*alternative, from));
}

bool has_asked_items(std::span<const s_item> items, const void* object) {
    for (const s_item& item : items) {
        if ((item.use & use_asked) != 0 && !is_set(item, object) && !is_item_there(item, object)) return false;
    }
    return true;
}

/// The checks that a value passes when it is set, but for those that its type adds.
class c_no_checks {
public:
    explicit c_no_checks(const s_facets* facets) : m_facets(facets) {}

    bool is_valid() const { return true; }
    const s_facets* facets() const { return m_facets; }
    bool is_matched(const s_facets&) const { return true; }
    bool is_enumerated(const s_facets&) const { return true; }
    bool is_too_short(const s_facets&) const { return false; }
    bool is_too_long(const s_facets&) const { return false; }
    bool is_below(const s_facets&) const { return false; }
    bool is_above(const s_facets&) const { return false; }

private:
    const s_facets* m_facets;
};

template <class T>
class c_set_checks : public c_no_checks {
public:
    c_set_checks(const s_facets* facets, const T& value) : c_no_checks(facets), m_value(value) {}

    bool is_below(const s_facets& facets) const {
        if constexpr (!k_is_number)
            return false;
        else
            return !facets.setter_skips_minimum && facets.is_below(static_cast<double>(m_value));
    }
    bool is_above(const s_facets& facets) const {
        if constexpr (!k_is_number)
            return false;
        else
            return facets.is_above(static_cast<double>(m_value));
    }

    void store(void* target) const { *static_cast<T*>(target) = m_value; }

private:
    static constexpr bool k_is_number = std::is_arithmetic_v<T> && !std::is_same_v<T, bool>;

    const T& m_value;
};

template <>
class c_set_checks<std::u16string> : public c_no_checks {
public:
    c_set_checks(const s_facets* facets, const std::u16string& value) : c_no_checks(facets), m_value(value) {
        if (facets == nullptr) return;
        if (facets->enumeration != nullptr) m_literal = facets->enumeration->find(std::u16string_view(value));
        const bool has_limits = facets->minimum_length > 0 || facets->maximum_length < s_facets{}.maximum_length;
        if (has_limits) convert(&m_narrow, value);
    }

    bool is_enumerated(const s_facets& facets) const { return facets.enumeration == nullptr || m_literal != nullptr; }
    bool is_too_short(const s_facets& facets) const { return !is_min_length_ok(m_narrow, facets.minimum_length); }
    bool is_too_long(const s_facets& facets) const { return !is_max_length_ok(m_narrow, facets.maximum_length); }

    void store(void* target) const {
        if (m_literal != nullptr) {
            static_cast<c_enumerated*>(target)->set(m_literal);
        } else {
            *static_cast<std::u16string*>(target) = m_value;
        }
    }

private:
    const std::u16string& m_value;
    const s_enumerated_text* m_literal = nullptr;
    std::string m_narrow;
};

void mark_value_set(const s_class& type, const s_item& item, void* object) {
    mark_set(item, object);
    if (item.kind == item_kind::content && type.nil_flag != k_no_flag) member<bool>(object, type.nil_flag) = false;
}

template <class T>
elmx_error set_simple(const s_class& type, const s_item& item, void* object, const T& value) {
    const c_set_checks<T> checked(item.facets, value);
    const elmx_error code = first_fault(checked);
    if (code != ELMX_OK) return code;
    if (item.kind == item_kind::alternative) {
        // Choosing an alternative frees the former one, which the value may be a part of.
        const T copy = value;  // NOLINT(performance-unnecessary-copy-initialization): outlives the former one
        c_set_checks<T>(item.facets, copy).store(place_for_value(type, item, object));
    } else {
        checked.store(place_for_value(type, item, object));
    }
    mark_value_set(type, item, object);
    return ELMX_OK;
}

template <class T>
elmx_error insert_simple(const s_item& item, void* object, std::size_t index, const T& value) {
    const elmx_error code = first_fault(c_set_checks<T>(item.facets, value));
    if (code != ELMX_OK) return code;
    T copy = value;
    member<c_list<T>>(object, item.offset).insert(index) = std::move(copy);
    return ELMX_OK;
}

template <class T>
elmx_error set_entry_value(const s_item& item, void* object, std::size_t index, const T& value) {
    auto& values = member<c_list<T>>(object, item.offset);
    if (index >= values.size()) return insert_simple(item, object, index, value);
    const elmx_error code = first_fault(c_set_checks<T>(item.facets, value));
    if (code == ELMX_OK) values[index] = value;
    return code;
}

/// What one of two objects has of optional children, the other gets too, down to the last level.
void touch_children_of_either(const s_class& type, void* one, void* other) {
    if (type.base != nullptr) touch_children_of_either(*type.base, one, other);
    for (const s_item& item : type.elements) {
        if (item.kind != item_kind::child && item.kind != item_kind::optional_child) continue;
        if (child_of(item, one) == nullptr && child_of(item, other) == nullptr) continue;
        touch_children_of_either(*item.type, touch_child(item, one), touch_child(item, other));
    }
}

/// Exchanges the values of two objects. Optional children change hands, or if not, exchange values too: then both
/// objects must have the same ones.
void exchange_values(const s_class& type, void* one, void* other, bool children_change_hands) {
    if (type.base != nullptr) exchange_values(*type.base, one, other, children_change_hands);
    if (type.nil_flag != k_no_flag) std::swap(member<bool>(one, type.nil_flag), member<bool>(other, type.nil_flag));
    const auto swap_item = [&](const s_item& item) {
        if (item.flag != k_no_flag) std::swap(member<bool>(one, item.flag), member<bool>(other, item.flag));
        void* const place = &member<std::byte>(one, item.offset);
        void* const other_place = &member<std::byte>(other, item.offset);
        if (is_repeating(item)) {
            static_cast<c_list_base*>(place)->swap(*static_cast<c_list_base*>(other_place));
        } else if (item.kind == item_kind::optional_child && children_change_hands) {
            static_cast<c_optional_child_base*>(place)->swap(*static_cast<c_optional_child_base*>(other_place));
        } else if (item.type != nullptr) {
            if (child_of(item, one) == nullptr) return;
            exchange_values(*item.type, touch_child(item, one), touch_child(item, other), children_change_hands);
        } else if (item.kind != item_kind::marker) {
            kind_of(item).swap(place, other_place);
        }
    };
    std::for_each(type.attributes.begin(), type.attributes.end(), swap_item);
    if (type.choice != k_no_flag) {
        s_choice& choice = choice_of(type, one);
        s_choice& other_choice = choice_of(type, other);
        std::swap(choice, other_choice);
        // The flag goes with the item that it is of.
        std::swap(choice.is_touched, other_choice.is_touched);
    } else {
        std::for_each(type.elements.begin(), type.elements.end(), swap_item);
    }
}

}  // namespace

bool is_item_there(const s_item& item, const void* object) {
    return is_repeating(item) ? list_of(item, object).size() > 0 : is_set(item, object);
}

void* append_default(const s_item& item, void* object) {
    auto& entries = member<c_list_base>(object, item.offset);
    return entries.append(item.kind == item_kind::any ? k_stored_type<c_any_info> : stored_type_of(item));
}

void* make_place_for_value(const s_class& type, const s_item& item, void* object) {
    return item.kind == item_kind::element_list ? append_default(item, object) : choose(type, item, object);
}

void copy(const s_class& type, void* target, const void* source) {
    if (type.base != nullptr) copy(*type.base, target, source);
    if (type.nil_flag != k_no_flag) member<bool>(target, type.nil_flag) = member<bool>(source, type.nil_flag);
    for (const s_item& item : type.attributes) copy_single(item, target, source);
    if (type.choice != k_no_flag) {
        copy_choice(type, target, source);
        return;
    }
    for (const s_item& item : type.elements) {
        if (is_repeating(item)) {
            copy_list(item, target, source);
        } else {
            copy_single(item, target, source);
        }
    }
}

void swap(const s_class& type, void* one, void* other) {
    touch_children_of_either(type, one, other);
    exchange_values(type, one, other, false);
}

void exchange(const s_class& type, void* one, void* other) { exchange_values(type, one, other, true); }

bool is_occurs_ok(const s_class& type, const void* object) {
    if (is_nil(type, object)) return true;
    if (type.base != nullptr && !is_occurs_ok(*type.base, object)) return false;
    if (!has_asked_items(type.attributes, object)) return false;
    if (type.choice != k_no_flag) return choice_of(type, object).chosen != none_chosen(type);
    return has_asked_items(type.elements, object);
}

elmx_error set_item(const s_class& type, const s_item& item, void* object, const std::u16string& value) {
    return set_simple(type, item, object, value);
}
elmx_error set_item(const s_class& type, const s_item& item, void* object, bool value) {
    return set_simple(type, item, object, value);
}
elmx_error set_item(const s_class& type, const s_item& item, void* object, double value) {
    return set_simple(type, item, object, value);
}
elmx_error set_item(const s_class& type, const s_item& item, void* object, std::int32_t value) {
    return set_simple(type, item, object, value);
}
elmx_error set_item(const s_class& type, const s_item& item, void* object, std::uint32_t value) {
    return set_simple(type, item, object, value);
}
elmx_error set_item(const s_class& type, const s_item& item, void* object, std::uint8_t value) {
    return set_simple(type, item, object, value);
}
elmx_error set_item(const s_class& type, const s_item& item, void* object, const c_datetime& value) {
    return set_simple(type, item, object, value);
}
elmx_error set_item(const s_class& type, const s_item& item, void* object, const c_binary& value) {
    return set_simple(type, item, object, value);
}
elmx_error check_item(const s_item& item, double value) {
    return first_fault(c_set_checks<double>(item.facets, value));
}

elmx_error set_entry(const s_item& item, void* object, std::size_t index, const std::u16string& value) {
    return set_entry_value(item, object, index, value);
}
elmx_error set_entry(const s_item& item, void* object, std::size_t index, const c_datetime& value) {
    return set_entry_value(item, object, index, value);
}
elmx_error insert_entry(const s_item& item, void* object, std::size_t index, const std::u16string& value) {
    return insert_simple(item, object, index, value);
}
elmx_error insert_entry(const s_item& item, void* object, std::size_t index, const c_datetime& value) {
    return insert_simple(item, object, index, value);
}

bool set_enumerated(const s_class& type, const s_item& item, void* object, std::int32_t number) {
    const s_enumerated_text* const text = item.facets->enumeration->find(number);
    if (text == nullptr) return false;
    static_cast<c_enumerated*>(place_for_value(type, item, object))->set(text);
    mark_value_set(type, item, object);
    return true;
}

void* choose(const s_class& type, const s_item& alternative, void* object) {
    s_choice& choice = choice_of(type, object);
    const std::int32_t number = alternative_number(type, alternative);
    // An adopted null is no object to hand out.
    if (choice.chosen != number || (alternative.type != nullptr && choice.object == nullptr)) {
        release_choice(type, object);
        // What a caller may have another object take the place of, he deletes himself.
        choice.is_adopted = alternative.type != nullptr && !alternative.factory.empty();
        if (choice.is_adopted) {
            choice.object = alternative.type->operations->create();
        } else if (lies_in_slot(alternative)) {
            stored_type_of(alternative).construct(&choice.number);
        } else {
            choice.object = make_part(stored_type_of(alternative));
        }
        choice.chosen = number;
    }
    choice.is_touched = true;
    return alternative_storage(alternative, choice);
}

void adopt(const s_class& type, const s_item& alternative, void* object, void* owned) {
    s_choice& choice = choice_of(type, object);
    const std::int32_t number = alternative_number(type, alternative);
    if (choice.chosen != number) release_choice(type, object);
    choice.object = owned;
    choice.chosen = number;
    choice.is_touched = true;
    choice.is_adopted = true;
}

void release_choice(const s_class& type, void* object) {
    s_choice& choice = choice_of(type, object);
    if (const s_item* const alternative = chosen_row(type, choice)) {
        const s_stored_type& stored = stored_type_of(*alternative);
        if (choice.is_adopted) {
            alternative->type->operations->destroy(choice.object);
        } else if (!lies_in_slot(*alternative)) {
            end_part(choice.object, stored);
        } else if (stored.destroy != nullptr) {
            stored.destroy(&choice.number);
        }
    }
    choice = s_choice(none_chosen(type), choice.is_touched);
}

const std::u16string& chosen_text(const s_class& type, const s_item& alternative, const void* object) {
    static const std::u16string k_empty;
    const s_choice& choice = choice_of(type, object);
    if (choice.chosen != alternative_number(type, alternative)) return k_empty;
    return text_in(alternative, alternative_storage(alternative, choice));
}

std::int32_t chosen_number(const s_class& type, const s_item& alternative, const void* object) {
    const s_choice& choice = choice_of(type, object);
    if (choice.chosen != alternative_number(type, alternative)) return 0;
    return static_cast<const c_enumerated*>(alternative_storage(alternative, choice))->number();
}

void* create_by_name(std::span<const s_factory_row> rows, int ns_id, const std::string& name) {
    for (const s_factory_row& row : rows) {
        if (ns_id == row.type->names->elements.ns_id() && row.name == name) return row.type->operations->create();
    }
    return nullptr;
}

}  // namespace lmx
