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

/// Repeating simple items hold texts or dates; the other types occur singly.
template <class Action>
void with_entry_type(value_kind kind, Action&& action) {
    if (kind == value_kind::datetime) {
        action(static_cast<c_datetime*>(nullptr));
    } else {
        action(static_cast<std::u16string*>(nullptr));
    }
}

void copy_list(const s_item& item, void* target, const void* source) {
    const c_list_base& entries = list_of(item, source);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        void* const entry = append_default(item, target);
        switch (item.kind) {
            case item_kind::element_list:
                with_entry_type(item.value, [&](auto* type) {
                    using value = std::remove_pointer_t<decltype(type)>;
                    *static_cast<value*>(entry) = *static_cast<const value*>(entries.entry(i));
                });
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
        item.type->operations->assign(&member<std::byte>(target, item.offset),
                                      &member<std::byte>(source, item.offset));
    } else {
        with_value_type(item.value, [&](auto* type) {
            using value = std::remove_pointer_t<decltype(type)>;
            member<value>(target, item.offset) = member<value>(source, item.offset);
        });
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
    void* const object = choose(type, *alternative, target);
    if (alternative->type != nullptr) {
        alternative->type->operations->assign(object, from.object);
    } else if (alternative->value == value_kind::text) {
        *static_cast<std::u16string*>(object) = *static_cast<const std::u16string*>(from.object);
    } else {
        choice_of(type, target) = from;
    }
}

bool has_asked_items(std::span<const s_item> items, const void* object) {
    for (const s_item& item : items) {
        if ((item.use & use_asked) != 0 && !is_set(item, object) && !is_item_there(item, object)) return false;
    }
    return true;
}

/// The number of an enumerated text, from 1; 0 if it is none.
std::int32_t literal_number(const s_facets& facets, const std::u16string& text) {
    const auto& literals = facets.enumeration;
    const auto literal = std::find_if(literals.begin(), literals.end(), [&](std::string_view candidate) {
        return std::equal(candidate.begin(), candidate.end(), text.begin(), text.end(),
                          [](char a, char16_t b) { return static_cast<char16_t>(a) == b; });
    });
    return literal == literals.end() ? 0 : static_cast<std::int32_t>(literal - literals.begin()) + 1;
}

template <class Number>
elmx_error check_value(const s_facets& facets, Number value) requires(std::is_arithmetic_v<Number>) {
    const auto number = static_cast<double>(value);
    if (!facets.setter_skips_minimum && facets.is_below(number)) return ELMX_VALUE_BELOW_MIN;
    if (facets.is_above(number)) return ELMX_VALUE_EXCEEDS_MAX;
    return ELMX_OK;
}

elmx_error check_value(const s_facets& facets, const std::u16string& value) {
    if (!facets.enumeration.empty() && literal_number(facets, value) == 0) return ELMX_VALUE_NOT_ENUMERATED;
    if (facets.minimum_length == 0 && facets.maximum_length == s_facets{}.maximum_length) return ELMX_OK;
    std::string text;
    convert(&text, value);
    if (!is_min_length_ok(text, facets.minimum_length)) return ELMX_LENGTH_TOO_SHORT;
    return is_max_length_ok(text, facets.maximum_length) ? ELMX_OK : ELMX_LENGTH_TOO_LONG;
}

elmx_error check_value(const s_facets&, bool) { return ELMX_OK; }
elmx_error check_value(const s_facets&, const c_datetime&) { return ELMX_OK; }
elmx_error check_value(const s_facets&, const c_binary&) { return ELMX_OK; }

/// The storage of a simple item: in the object, or in the slot of a choice, which then chooses it.
template <class T>
T& simple_storage(const s_class& type, const s_item& item, void* object) {
    if (item.kind != item_kind::alternative) return member<T>(object, item.offset);
    void* const owned = choose(type, item, object);
    s_choice& choice = choice_of(type, object);
    if constexpr (std::is_same_v<T, std::u16string>)
        return *static_cast<std::u16string*>(owned);
    else if constexpr (std::is_same_v<T, double>)
        return choice.number;
    else if constexpr (std::is_same_v<T, std::int32_t>)
        return choice.int32;
    else if constexpr (std::is_same_v<T, std::uint32_t>)
        return choice.uint32;
    else
        return member<T>(object, item.offset);
}

template <class T>
elmx_error set_simple(const s_class& type, const s_item& item, void* object, const T& value) {
    if (item.facets != nullptr) {
        const elmx_error code = check_value(*item.facets, value);
        if (code != ELMX_OK) return code;
    }
    // Choosing an alternative frees the former one, which the value may be a part of.
    if (item.kind == item_kind::alternative) {
        T copy = value;
        simple_storage<T>(type, item, object) = std::move(copy);
    } else {
        simple_storage<T>(type, item, object) = value;
    }
    mark_set(item, object);
    if (item.kind == item_kind::content && type.nil_flag != k_no_flag) {
        member<bool>(object, type.nil_flag) = false;
    }
    return ELMX_OK;
}

template <class T>
elmx_error insert_simple(const s_item& item, void* object, std::size_t index, const T& value) {
    const elmx_error code = item.facets == nullptr ? ELMX_OK : check_value(*item.facets, value);
    if (code == ELMX_OK) member<c_list<T>>(object, item.offset).insert(index) = value;
    return code;
}

template <class T>
elmx_error set_entry_value(const s_item& item, void* object, std::size_t index, const T& value) {
    auto& values = member<c_list<T>>(object, item.offset);
    if (index >= values.size()) return insert_simple(item, object, index, value);
    const elmx_error code = item.facets == nullptr ? ELMX_OK : check_value(*item.facets, value);
    if (code == ELMX_OK) values[index] = value;
    return code;
}

}  // namespace

bool is_item_there(const s_item& item, const void* object) {
    return is_repeating(item) ? list_of(item, object).size() > 0 : is_set(item, object);
}

void* append_default(const s_item& item, void* object) {
    auto& entries = member<c_list_base>(object, item.offset);
    switch (item.kind) {
        case item_kind::element_list: {
            const s_stored_type* stored = nullptr;
            with_entry_type(item.value,
                            [&](auto* type) { stored = &k_stored_type<std::remove_pointer_t<decltype(type)>>; });
            return entries.append(*stored);
        }
        case item_kind::any:
            return entries.append(k_stored_type<c_any_info>);
        default:
            return entries.append(item.type->operations->stored);
    }
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
    if (type.base != nullptr) swap(*type.base, one, other);
    if (type.nil_flag != k_no_flag) std::swap(member<bool>(one, type.nil_flag), member<bool>(other, type.nil_flag));
    const auto swap_item = [&](const s_item& item) {
        if (item.flag != k_no_flag) std::swap(member<bool>(one, item.flag), member<bool>(other, item.flag));
        if (is_repeating(item)) {
            member<c_list_base>(one, item.offset).swap(member<c_list_base>(other, item.offset));
        } else if (item.type != nullptr) {
            item.type->operations->swap(&member<std::byte>(one, item.offset), &member<std::byte>(other, item.offset));
        } else if (item.kind != item_kind::marker) {
            with_value_type(item.value, [&](auto* value) {
                using std::swap;
                using simple = std::remove_pointer_t<decltype(value)>;
                swap(member<simple>(one, item.offset), member<simple>(other, item.offset));
            });
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

std::int32_t enumerated_number(const s_item& item, const std::u16string& text) {
    return literal_number(*item.facets, text);
}

bool set_enumerated(const s_class& type, const s_item& item, void* object, std::int32_t number) {
    const auto& literals = item.facets->enumeration;
    if (number < 1 || static_cast<std::size_t>(number) > literals.size()) return false;
    const std::string_view literal = literals[static_cast<std::size_t>(number - 1)];
    set_simple(type, item, object, std::u16string(literal.begin(), literal.end()));
    return true;
}

void* choose(const s_class& type, const s_item& alternative, void* object) {
    s_choice& choice = choice_of(type, object);
    const std::int32_t number = alternative_number(type, alternative);
    const bool is_owned = alternative.type != nullptr || alternative.value == value_kind::text;
    // An adopted null is no object to hand out.
    if (choice.chosen != number || (is_owned && choice.object == nullptr)) {
        release_choice(type, object);
        if (alternative.type != nullptr) {
            choice.object = alternative.type->operations->create();
        } else if (is_owned) {
            choice.object = new std::u16string();
        }
        choice.chosen = number;
    }
    choice.is_touched = true;
    return is_owned ? choice.object : nullptr;
}

void adopt(const s_class& type, const s_item& alternative, void* object, void* owned) {
    s_choice& choice = choice_of(type, object);
    const std::int32_t number = alternative_number(type, alternative);
    if (choice.chosen != number) release_choice(type, object);
    choice.object = owned;
    choice.chosen = number;
    choice.is_touched = true;
}

void release_choice(const s_class& type, void* object) {
    s_choice& choice = choice_of(type, object);
    if (const s_item* const alternative = chosen_row(type, choice)) {
        if (alternative->type != nullptr) {
            alternative->type->operations->destroy(choice.object);
        } else if (alternative->value == value_kind::text) {
            delete static_cast<std::u16string*>(choice.object);
        }
    }
    choice = {none_chosen(type), choice.is_touched, {}};
}

const std::u16string& chosen_text(const s_class& type, const s_item& alternative, const void* object) {
    static const std::u16string k_empty;
    const s_choice& choice = choice_of(type, object);
    if (choice.chosen != alternative_number(type, alternative)) return k_empty;
    return *static_cast<const std::u16string*>(choice.object);
}

void* create_by_name(std::span<const s_factory_row> rows, int ns_id, const std::string& name) {
    constexpr int k_document_namespace = 1000;
    if (ns_id != k_document_namespace) return nullptr;
    for (const s_factory_row& row : rows) {
        if (row.name == name) return row.type->operations->create();
    }
    return nullptr;
}

}  // namespace lmx
