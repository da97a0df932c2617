// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/failure_path.h"

#include <algorithm>
#include <vector>

#include "lmx/binding/shown_text.h"
#include "lmx/binding/storage.h"
#include "lmx/values/unicode.h"

namespace lmx {
namespace {

/// Where an object stands among those of its name.
struct s_number {
    bool repeats = false;
    std::size_t number = 0;  ///< from 1; 0 if it needs none
};

/// The alternative that a holder holds if it holds that very object, else null.
const s_item* alternative_of(const s_class& holder, const void* storage, const void* object) {
    const s_choice& choice = choice_of(holder, storage);
    const s_item* const chosen = chosen_row(holder, choice);
    return chosen != nullptr && chosen->type != nullptr && choice.object == object ? chosen : nullptr;
}

/// The number of an object in a list, seen from the end, where a load has what it is reading.
s_number number_in_list(const s_item& item, const c_list_base& entries, const void* object) {
    for (std::size_t i = entries.size(); i-- > 0;) {
        if (item.kind == item_kind::child_list) {
            if (entries.entry(i) == object) return {true, i + 1};
            continue;
        }
        const s_item* const alternative = alternative_of(*item.type, entries.entry(i), object);
        if (alternative == nullptr) continue;
        std::size_t number = 1;
        for (std::size_t k = 0; k < i; ++k) {
            number += static_cast<std::size_t>(chosen_row(*item.type, choice_of(*item.type, entries.entry(k))) ==
                                               alternative);
        }
        return {true, number > 1 ? number : 0};
    }
    return {};
}

s_number number_in(const s_class& type, const void* parent, std::string_view name, const void* object) {
    for (const s_item& item : type.elements) {
        const bool is_list = item.kind == item_kind::child_list && local_part(item.name) == name;
        if (!is_list && item.kind != item_kind::group_list) continue;
        const s_number found = number_in_list(item, list_of(item, parent), object);
        if (found.repeats) return found;
    }
    return type.base != nullptr ? number_in(*type.base, parent, name, object) : s_number{};
}

std::string name_of(const s_item& item, const void* object) {
    std::string text;
    if (is_set(item, object)) convert(&text, member<std::u16string>(object, item.offset));
    return text;
}

std::string step_of(const s_open_element& element, std::string_view own_name) {
    const std::string_view local = local_part(element.get_name());
    const s_number number = element.outer == nullptr
                                ? s_number{}
                                : number_in(*element.outer->type, element.outer->object, local, element.object);
    std::string name(own_name);
    // What stands once only needs no name to be told from its like, and may hold one that the document didn't give.
    if (const s_item* const item = name_item(*element.type);
        name.empty() && item != nullptr && (number.repeats || item->kind == item_kind::attribute)) {
        name = name_of(*item, element.object);
    }
    const std::string step = shown(local);
    if (!name.empty()) return joined({step, " ", in_quotes(name)});
    return number.number > 0 ? joined({step, "[", std::to_string(number.number), "]"}) : step;
}

}  // namespace

const s_item* name_item(const s_class& type) {
    for (const auto& items : {type.attributes, type.elements}) {
        const auto found =
            std::find_if(items.begin(), items.end(), [](const s_item& item) { return (item.use & use_name) != 0; });
        if (found != items.end()) return &*found;
    }
    return type.base != nullptr ? name_item(*type.base) : nullptr;
}

std::string step_of(const s_item& item, std::size_t number) {
    const std::string_view name = local_part(item.name);
    switch (item.kind) {
        case item_kind::content:
            return {};
        case item_kind::attribute:
            return joined({"@", name});
        case item_kind::element_list:
            return joined({name, "[", std::to_string(number), "]"});
        default:
            return std::string(name);
    }
}

std::string path_of(const s_open_element* element, std::string_view last_step, std::string_view own_name) {
    std::vector<std::string> steps;
    if (!last_step.empty()) steps.emplace_back(last_step);
    const bool has_element_step = !last_step.empty() && last_step.front() != '@';
    for (; element != nullptr; element = element->outer) {
        const bool is_document = element->outer == nullptr;
        const bool is_needed = steps.empty() || (steps.size() == 1 && !has_element_step && !last_step.empty());
        if (!is_document || is_needed) steps.push_back(step_of(*element, own_name));
        own_name = {};
    }
    std::string path;
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) path += joined({path.empty() ? "" : " / ", *step});
    return path;
}

}  // namespace lmx
