// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/failure_words.h"

#include "lmx/binding/shown_text.h"
#include "lmx/binding/storage.h"
#include "lmx/binding/unmarshal.h"
#include "lmx/values/unicode.h"

namespace lmx::words {
namespace {

std::string expected_form(const s_item& item) {
    switch (item.value) {
        case value_kind::boolean:
            return "true, false, 1 or 0 is expected";
        case value_kind::number:
            return "a number is expected";
        case value_kind::int32:
        case value_kind::uint32:
        case value_kind::uint8:
            return "a whole number is expected";
        case value_kind::datetime:
            return "a date and time is expected, such as 2024-05-31T12:30:00Z";
        case value_kind::binary:
            return "Base64 is expected";
        case value_kind::text:
        case value_kind::enumerated:
        case value_kind::none:
            break;
    }
    return {};
}

std::string length_limit(const char* start, std::size_t limit, const std::string& text) {
    return joined({start, std::to_string(limit), limit == 1 ? " character" : " characters", " may stand here, not ",
                   std::to_string(length(text))});
}

}  // namespace

void add_names(const s_item& item, names* out) {
    if (item.kind == item_kind::any) {
        out->emplace_back("any element");
    } else if (is_group(item)) {
        for (const s_item& member : item.type->elements) add_names(member, out);
    } else {
        out->emplace_back(local_part(item.name));
    }
}

std::string one_of(std::span<const s_item> items) {
    names all;
    for (const s_item& item : items) add_names(item, &all);
    return joined({all.size() > 1 ? "one of " : "", listed(all, "or")});
}

std::vector<const s_item*> all_rows(const s_class& type, std::span<const s_item> s_class::*part) {
    std::vector<const s_item*> rows;
    if (type.base != nullptr) rows = all_rows(*type.base, part);
    for (const s_item& item : type.*part) rows.push_back(&item);
    return rows;
}

std::string missing(std::span<const s_item* const> items) {
    names parts;
    for (const s_item* item : items) {
        const char* const kind = item->kind == item_kind::attribute ? "the attribute " : "the element ";
        parts.push_back(is_group(*item) ? one_of({item, 1}) : joined({kind, local_part(item->name)}));
    }
    return joined({listed(parts, "and"), parts.size() > 1 ? " are missing" : " is missing"});
}

std::string missing_choice(const s_class& type) { return one_of(type.elements) + " is missing"; }

std::string nested_too_deep() {
    return joined({"elements nest more than ", std::to_string(k_maximum_nesting), " deep"});
}

std::string sentence(const std::string& start, const std::string& rest) {
    return joined({start, start.empty() || rest.empty() ? "" : "; ", rest});
}

std::string meant(std::string_view text, const names& all) {
    const std::string name = nearest(text, all);
    return name.empty() ? name : joined({" (is ", name, " meant?)"});
}

std::string allowed_value(const s_item& item, elmx_error code, const std::string& text) {
    const char* const ending = text.empty() ? "; nothing stands here" : "";
    if (code == ELMX_VALUE_BAD_FORMAT) {
        const bool has_comma = item.value == value_kind::number && text.find(',') != text.npos;
        return joined({expected_form(item), has_comma ? ", with a point and no comma" : ending});
    }
    if (item.facets == nullptr) return {};
    const s_facets& facets = *item.facets;
    switch (code) {
        case ELMX_NO_PATTERN_MATCHED:
            return facets.pattern_takes_zoned ? "a time zone is missing: Z, or one such as +01:00"
                                              : std::string("the text does not have the form that is asked for");
        case ELMX_VALUE_NOT_ENUMERATED: {
            const names all(facets.enumeration->texts().begin(), facets.enumeration->texts().end());
            return joined({"one of ", listed(all, "or"), " is expected", ending, meant(text, all)});
        }
        case ELMX_LENGTH_TOO_SHORT:
            if (text.empty()) return "it must not be empty";
            return length_limit("at least ", facets.minimum_length, text);
        case ELMX_LENGTH_TOO_LONG:
            return length_limit("at most ", facets.maximum_length, text);
        case ELMX_VALUE_BELOW_MIN:
            return joined(
                {facets.minimum_exclusive ? "it must be more than " : "it must be at least ", shown(facets.minimum)});
        case ELMX_VALUE_EXCEEDS_MAX:
            return joined(
                {facets.maximum_exclusive ? "it must be less than " : "it must be at most ", shown(facets.maximum)});
        default:
            return {};
    }
}

}  // namespace lmx::words
