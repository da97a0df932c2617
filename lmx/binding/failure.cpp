// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/failure.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "lmx/binding/failure_path.h"
#include "lmx/binding/failure_words.h"
#include "lmx/binding/open_element.h"
#include "lmx/binding/read_back.h"
#include "lmx/binding/shown_text.h"
#include "lmx/binding/storage.h"
#include "lmx/values/unicode.h"

namespace lmx {

using namespace words;

namespace {

/// What a class and its bases ask for and an object doesn't have.
std::vector<const s_item*> absent_items(const s_class& type, const void* object) {
    std::vector<const s_item*> rows = all_rows(type, &s_class::attributes);
    if (type.choice == k_no_flag) {
        const std::vector<const s_item*> elements = all_rows(type, &s_class::elements);
        rows.insert(rows.end(), elements.begin(), elements.end());
    }
    std::erase_if(rows,
                  [&](const s_item* item) { return (item->use & use_asked) == 0 || is_item_there(*item, object); });
    return rows;
}

/// The number of an entry in its list; 1 if it isn't in one.
std::size_t number_of(const s_fault_site& site, const s_open_element* open) {
    if (site.item->kind != item_kind::element_list) return 1;
    const c_list_base& entries = list_of(*site.item, open->object);
    std::size_t number = 1;
    while (number < entries.size() && entries.entry(number - 1) != site.object) ++number;
    return number;
}

/// A value in the form in which it is read.
std::string read_form(const s_item& item, const void* value) {
    std::string text;
    if (kind_of(item).is_text) {
        convert(&text, text_in(item, value));
    } else {
        print_value(item, value, &text);
    }
    return text;
}

}  // namespace

bool is_of_value(elmx_error code) {
    switch (code) {
        case ELMX_LENGTH_TOO_LONG:
        case ELMX_LENGTH_TOO_SHORT:
        case ELMX_NO_PATTERN_MATCHED:
        case ELMX_VALUE_BAD_FORMAT:
        case ELMX_VALUE_EXCEEDS_MAX:
        case ELMX_VALUE_BELOW_MIN:
        case ELMX_VALUE_NOT_ENUMERATED:
            return true;
        default:
            return false;
    }
}

s_failure describe_failure(const c_xml_writer& writer, elmx_error code, const std::string& item_name) {
    s_failure failure;
    failure.item = shown(item_name);
    const s_open_element* const open = writer.notes().open_element;
    failure.path = path_of(open, {}, {});
    const s_fault_site* const site = writer.notes().fault_site;
    if (site == nullptr) return failure;
    if (is_of_value(code)) {
        failure.path = path_of(open, step_of(*site->item, number_of(*site, open)), {});
        const std::string text = read_form(*site->item, site->object);
        failure.value = shown(text);
        const bool is_text = kind_of(*site->item).is_text && code == ELMX_VALUE_BAD_FORMAT;
        failure.detail = is_text ? lost_in_text(*site->item, text_in(*site->item, site->object))
                                 : allowed_value(*site->item, code, text);
        return failure;
    }
    const std::vector<const s_item*> absent =
        code == ELMX_OCCURS_ERROR_ON_MARSHAL ? absent_items(*site->type, site->object) : std::vector<const s_item*>();
    if (!absent.empty()) {
        failure.item = is_group(*absent.front()) ? shown(item_name) : shown(absent.front()->name);
        failure.detail = missing(absent);
    } else if (code == ELMX_BADLY_FORMED) {
        failure.detail = nested_too_deep();
    } else if (code == ELMX_TYPE_NOT_SET) {
        failure.detail = joined({"the element ", local_part(item_name), " is chosen but has no object"});
    } else {
        failure.detail = missing_choice(*site->type);
    }
    return failure;
}

}  // namespace lmx
