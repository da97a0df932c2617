// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/unmarshal.h"

#include <algorithm>

#include "lmx/binding/any_info.h"
#include "lmx/binding/object.h"
#include "lmx/binding/open_element.h"
#include "lmx/binding/plain_way.h"
#include "lmx/binding/recovery.h"
#include "lmx/binding/storage.h"

namespace lmx {
namespace {

/// Passes a failure to the reader's handler. True if the handler swallowed it and reading goes on; `*error` is the
/// handler's answer.
bool goes_on(c_xml_reader& reader, const s_fault_site& site, elmx_error code, const std::string& item_name,
             elmx_error* error, s_source_place place = s_source_place::current()) {
    *error = report_at(reader, site, code, item_name, place);
    return *error == ELMX_OK;
}
bool goes_on(c_xml_reader& reader, elmx_error code, const std::string& item_name, elmx_error* error,
             s_source_place place = s_source_place::current()) {
    return goes_on(reader, {}, code, item_name, error, place);
}

/// The same for a failure behind which a load that goes on can't read what it would without: `recover` is what it
/// does instead.
template <class Recover>
bool goes_on_by(c_xml_reader& reader, const s_fault_site& site, elmx_error code, const std::string& item_name,
                elmx_error* error, Recover recover, s_source_place place = s_source_place::current()) {
    if (!goes_on(reader, site, code, item_name, error, place)) return false;
    if (reader.is_recovering()) *error = recover();
    return *error == ELMX_OK;
}

/// Sets the event to the token of the name at hand if one of the rows takes it, else to `ELXP_UNKNOWN`. The row, or
/// null.
const s_item* tokenise(c_xml_reader& reader, const s_class& level, std::span<const s_item> rows,
                       elxp_attr_elem kind) {
    const int likely = rows.empty() ? 0 : rows.front().token;
    const int token = reader.find_token(*level.names, kind, likely);
    const s_item* const row = token == likely ? &rows.front() : find_row(rows, token);
    reader.restore_event(row != nullptr || token < k_first_token ? token : ELXP_UNKNOWN);
    return row;
}

/// The same for the rows of a level from one on. Text and ends have no name: the one at hand is that of an element or
/// attribute before them.
const s_item* tokenise_element(c_xml_reader& reader, const s_class& level, std::size_t first_row = 0) {
    if (!reader.is_current_event_tokenisable()) return nullptr;
    return tokenise(reader, level, level.elements.subspan(first_row), ELXP_ELEMENT);
}

/// Reads the next event; a name is for the rows of `level` from one on, or not tokenised if that is null.
bool next_element(c_xml_reader& reader, const s_class* level, std::size_t first_row, std::string* name,
                  elmx_error* error) {
    *error = ELMX_OK;
    reader.get_element_event(nullptr, error, name);
    if (level != nullptr) tokenise_element(reader, *level, first_row);
    return *error == ELMX_OK || goes_on(reader, *error, *name, error);
}

/// Checks the text, converts it, stores it and raises the flag. A swallowed failure stores all the same.
/// The text is the reader's value work string.
bool store_value(const s_class& type, const s_item& item, void* object, c_xml_reader& reader,
                 const std::string& item_name, elmx_error* error) {
    const s_fault_site site{&type, &item, object};
    const s_value_kind& kind = kind_of(item);
    s_read_value value{reader.m_value, item.facets};
    kind.look(value);
    const auto fault = [&](elmx_error code) {
        if (!goes_on(reader, site, code, item_name, error)) return false;
        kind.look(value);  // the handler may have mended the text
        return true;
    };
    if (!passes_checks(c_read_checks(item.value, value), fault)) return false;
    kind.store(value, place_for_value(type, item, object));
    mark_set(item, object);
    return true;
}

/// Reads a simple child through its end tag and stores it. A swallowed failure to read stores nothing.
bool read_simple_element(const s_class& type, const s_item& item, void* object, c_xml_reader& reader,
                         const std::string& name, elmx_error* error) {
    bool is_empty = false;
    *error = ELMX_OK;
    reader.notes().is_value_faulty = false;
    if (!reader.get_simple_type_value(name, item.whitespace, &reader.m_value, error, &is_empty)) {
        return goes_on_by(reader, {&type, &item, object}, *error, name, error,
                          [&] { return leave_element(reader, name); });
    }
    return store_value(type, item, object, reader, name, error);
}

// Items of a sequence. Each leaves the event of the element behind it, tokenised for the position behind it.

/// `told`: the row that a load that goes on reported as missing last in this element, which it does once.
bool report_missing(c_xml_reader& reader, const s_item& item, const s_fault_site& site, const std::string& name,
                    const s_item** told, elmx_error* error) {
    if (*told == &item) return true;
    if (reader.is_recovering()) *told = &item;
    return goes_on(reader, site, ELMX_MANDATORY_ELEMENT_MISSING, name, error);
}
bool report_missing(c_xml_reader& reader, const s_item& item, const s_item** told, elmx_error* error) {
    if ((item.use & use_demanded) == 0) return true;
    return report_missing(reader, item, {nullptr, &item}, std::string(item.name), told, error);
}

/// Reads the member of a group that the current event names, without the event behind it. `*error` is set if that
/// ends the read.
bool read_member(const s_class& type, const s_item& alternative, void* object, c_xml_reader& reader,
                 const std::string& name, elmx_error* error) {
    void* typed = nullptr;
    if (!alternative.factory.empty()) {
        int ns_id = 0;
        std::string type_name;
        const bool has_type = reader.get_xsi_type(&ns_id, &type_name);
        if (has_type) typed = create_by_name(alternative.factory, ns_id, type_name);
        if (typed == nullptr && (has_type || (alternative.use & use_demanded) != 0)) {
            const s_fault_site site{&type, &alternative};
            if (reader.is_recovering()) {
                return goes_on_by(reader, site, ELMX_UNKNOWN_XSI_TYPE, name, error,
                                  [&] { return skip_element(reader, name); });
            }
            // The one failure that goes around the handler: nothing could be read in its place.
            *error = report_unhandled(reader, site, ELMX_UNKNOWN_XSI_TYPE, name);
            return false;
        }
    }
    release_choice(type, object);
    if (typed != nullptr) {
        adopt(type, alternative, object, typed);
    } else {
        typed = choose(type, alternative, object);
    }
    *error = alternative.type->operations->unmarshal(typed, reader, name);
    return *error == ELMX_OK;
}

/// Reads the current element into a group's holder, without the event behind it. An element that is no member is
/// skipped, and nothing is chosen.
bool read_group(const s_class& type, void* object, c_xml_reader& reader, const std::string& name, elmx_error* error) {
    *error = ELMX_OK;
    const s_item* const alternative = tokenise_element(reader, type);
    if (alternative != nullptr) return read_member(type, *alternative, object, reader, name, error);
    release_choice(type, object);
    if (reader.is_recovering()) {
        if (reader.get_scanned_event() == ELXP_NAME) return (*error = skip_element(reader, name)) == ELMX_OK;
        return goes_on_by(reader, {}, ELMX_BAD_END_OF_ELEMENT, name, error, [&] {
            reader.notes().is_unwinding = reader.get_scanned_event() == ELXP_END_TAG;
            return reader.notes().is_unwinding ? ELMX_BAD_END_OF_ELEMENT : ELMX_OK;
        });
    }
    // Only an element can be passed over.
    const bool is_skipped = reader.get_scanned_event() == ELXP_NAME && reader.skip_rest_of_element(name);
    return is_skipped || goes_on(reader, ELMX_BAD_END_OF_ELEMENT, name, error);
}

/// Whether the current event is that of an item. A group's row may take any event.
bool is_due(const s_item& item, c_xml_reader& reader, bool* is_member) {
    if (!is_group(item)) return *is_member = reader.get_current_event() == item.token;
    *is_member = is_group_member(*item.type, reader);
    return *is_member || (item.use & use_lax) != 0;
}

/// Reads one element into the item that is due. `*has_event`: the event behind it was read too.
bool read_item(const s_class& type, const s_item& item, void* object, c_xml_reader& reader, std::string* name,
               elmx_error* error, bool* has_event) {
    *has_event = false;
    switch (item.kind) {
        case item_kind::element:
        case item_kind::element_list:
            return read_simple_element(type, item, object, reader, *name, error);
        case item_kind::child:
        case item_kind::optional_child:
            *error = item.type->operations->unmarshal(touch_child(item, object), reader, *name);
            if (*error == ELMX_OK) mark_set(item, object);
            return *error == ELMX_OK;
        case item_kind::child_list:
            // In the list before it's read: a child that fails stays there half filled.
            *error = item.type->operations->unmarshal(append_default(item, object), reader, *name);
            return *error == ELMX_OK;
        case item_kind::group:
        case item_kind::group_list: {
            void* const holder = item.kind == item_kind::group ? &member<std::byte>(object, item.offset)
                                                               : append_default(item, object);
            *has_event = item.type->content != content_kind::group;
            return *has_event ? item.type->operations->unmarshal_part(holder, reader, name, error)
                              : read_group(*item.type, holder, reader, *name, error);
        }
        default:
            return reader.skip_rest_of_empty_element(*name) ||
                   goes_on_by(reader, {&type, &item, object}, ELMX_BAD_END_OF_ELEMENT, *name, error,
                              [&] { return leave_element(reader, *name); });
    }
}

/// Reads the event behind the item that was read last. What belongs to a group, its own event included, is done then.
bool read_event_behind(s_place* place, void* object, c_xml_reader& reader, std::string* name, elmx_error* error) {
    const s_item* const group = place->group;
    const s_class* const level = group != nullptr ? group->type : place->level;
    if (!next_element(reader, level, group != nullptr ? 0 : place->index, name, error)) return false;
    close_group(place, object);
    if (group != nullptr) tokenise_element(reader, *place->level, place->index);
    return true;
}

/// A list that stayed too short is reported under the class's name; a plain list was reported at its own turn too.
bool check_lists(const s_class& type, const void* object, c_xml_reader& reader, const s_item** told,
                 elmx_error* error) {
    const s_item* const short_list = find_short_list(type, object);
    if (short_list == nullptr || (reader.is_recovering() && short_list->kind != item_kind::group_list)) return true;
    return report_missing(reader, *short_list, {&type, short_list}, type.qualified_name, told, error);
}

/// What the event at hand turned out to be.
enum class e_due {
    failed,
    item,     ///< of the row that the place now is at
    none,     ///< of no row: the place is at its end
    stranger  ///< of no row either, as was told when a row was reported as missing in its place
};

/// Goes on to the row that takes the current event; what is passed over and must be there is reported.
e_due find_due_row(const s_class& type, void* object, s_place* place, c_xml_reader& reader, elmx_error* error,
                   bool* is_member, const s_item** told) {
    for (;;) {
        if (place->is_at_end()) {
            const s_item* const told_before = *told;
            if (!check_lists(*place->level, object, reader, told, error)) return e_due::failed;
            if (*told != told_before && is_stranger(type, *place, reader)) return e_due::stranger;
            if (!place->enter_next_level(type)) return e_due::none;
            place->group = nullptr;
            tokenise_element(reader, *place->level);
            continue;
        }
        const s_item& item = place->row();
        if (is_due(item, reader, is_member)) return e_due::item;
        if (!place->is_entered && item.kind != item_kind::group_list) {
            const s_item* const told_before = *told;
            if (!report_missing(reader, item, told, error)) return e_due::failed;
            if (*told != told_before && is_stranger(type, *place, reader)) return e_due::stranger;
        }
        place->pass_over();
    }
}

/// Passes over an event that has no place in an element, and reads the one behind it.
bool pass_stranger(const s_place& place, c_xml_reader& reader, std::string* name, elmx_error* error) {
    *error = pass_over_event(reader);
    if (*error != ELMX_OK || !next_element(reader, nullptr, 0, name, error)) return false;
    if (!place.is_at_end()) tokenise_element(reader, *place.level, place.index);
    return true;
}

/// Reads the rows of a sequence from the place on, with an event in hand or not, to the first element that has no
/// place, which is in hand then. `*is_ended`: it was the end tag, taken by the plain way.
bool read_sequence(const s_class& type, void* object, s_place place, bool has_event, c_xml_reader& reader,
                   c_plain_way& plain, const c_string_stack_node* end, std::string* name, elmx_error* error,
                   bool* is_ended) {
    *is_ended = false;
    const s_item* told = nullptr;
    for (;;) {
        if (!has_event && !read_event_behind(&place, object, reader, name, error)) return false;
        const s_place before = place;
        bool is_member = false;
        const bool is_next_stranger = told != nullptr && is_stranger(type, place, reader);
        const e_due due =
            is_next_stranger ? e_due::none : find_due_row(type, object, &place, reader, error, &is_member, &told);
        if (due == e_due::failed) return false;
        if (due != e_due::item) {
            if (!reader.is_recovering() || !is_own_event(object, reader)) return true;
            const char* const own_name = reader.notes().open_element->get_name();
            if (due == e_due::none && !goes_on(reader, ELMX_BAD_END_OF_ELEMENT, own_name, error)) return false;
            place = before;
            if (!pass_stranger(place, reader, name, error)) return false;
            has_event = true;
            continue;
        }
        const s_item& item = place.row();
        if (is_group(item) && is_member) note_item(reader, item);
        if (!read_item(*place.level, item, object, reader, name, error, &has_event)) return false;
        if (!is_group(item)) note_item(reader, item);
        step_behind(&place);
        if (has_event) {
            close_group(&place, object);
            tokenise_element(reader, *place.level, place.index);
            continue;
        }
        const auto step = plain.take_items(type, object, &place, end, error);
        if (step == c_plain_way::e_step::failed) return false;
        *is_ended = step == c_plain_way::e_step::ended;
        if (*is_ended) return true;
    }
}

bool read_any(const s_class& type, const s_item& item, void* object, c_xml_reader& reader, std::string* name,
              elmx_error* error) {
    auto& entries = member<c_list<c_any_info>>(object, item.offset);
    const s_item* told = nullptr;
    if (!reader.is_current_event_tokenisable() && !report_missing(reader, item, &told, error)) return false;
    while (reader.is_current_event_tokenisable()) {
        if (!reader.get_any_element(*name, &reader.m_value, ELMX_WS_PRESERVE, true) &&
            !goes_on_by(reader, {}, ELMX_UNABLE_TO_READ_ELEMENT_VALUE, *name, error,
                        [] { return ELMX_UNABLE_TO_READ_ELEMENT_VALUE; })) {
            return false;
        }
        c_any_info& entry = entries.append();
        std::string ns;
        entry.set_namespace(reader.get_namespace(*name, &ns));
        entry.set_name(*name);
        entry.set_value(reader.m_value);
        if (!next_element(reader, nullptr, 0, name, error)) return false;
    }
    return entries.size() > 0 || told != nullptr ||
           goes_on(reader, ELMX_MANDATORY_ELEMENT_MISSING, type.qualified_name, error);
}

bool read_choice(const s_class& type, void* object, c_xml_reader& reader, std::string* name, elmx_error* error) {
    const s_item* alternative = tokenise_element(reader, type);
    if (alternative == nullptr) {
        if (!goes_on(reader, {&type}, ELMX_UNKNOWN_ELEMENT_IN_COMPLEX_CONTENT, *name, error)) return false;
        if (!reader.is_recovering()) return true;
        while (alternative == nullptr && is_event_passable(reader)) {
            *error = pass_over_event(reader);
            if (*error != ELMX_OK || !next_element(reader, &type, 0, name, error)) return false;
            alternative = find_row(type.elements, reader.get_current_event());
        }
        if (alternative == nullptr) return true;
    }
    note_item(reader, *alternative);
    // Alternatives with storage of their own are chosen before they are read, so that a half-read one stays.
    if (alternative->type != nullptr) {
        release_choice(type, object);
        *error = alternative->type->operations->unmarshal(choose(type, *alternative, object), reader, *name);
        if (*error != ELMX_OK) return false;
    } else {
        if (kind_of(*alternative).is_text) choose(type, *alternative, object);
        if (!read_simple_element(type, *alternative, object, reader, *name, error)) return false;
    }
    return next_element(reader, &type, 0, name, error);
}

bool has_open_content(const s_class& type) {
    return type.base == nullptr && !type.elements.empty() && type.elements.front().kind == item_kind::any;
}

/// Reads content whose first event is in hand.
bool read_body(const s_class& type, void* object, c_xml_reader& reader, c_plain_way& plain,
               const c_string_stack_node* end, std::string* name, elmx_error* error, bool* is_ended) {
    if (type.content == content_kind::choice) return read_choice(type, object, reader, name, error);
    const s_class& first = first_level(type);
    if (has_open_content(first)) return read_any(first, first.elements.front(), object, reader, name, error);
    tokenise_element(reader, first);
    return read_sequence(type, object, s_place(first), true, reader, plain, end, name, error, is_ended);
}

bool read_nil(const s_class& type, void* object, c_xml_reader& reader, const std::string& name, elmx_error* error) {
    if (!reader.get_attribute_value(&reader.m_value, ELMX_WS_COLLAPSE)) {
        return goes_on(reader, ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE, name, error);
    }
    member<bool>(object, type.nil_flag) = text_to_bool(reader.m_value);
    return true;
}

elmx_error read_attributes(const s_class& type, void* object, c_xml_reader& reader, const std::string& name) {
    elmx_error error = ELMX_OK;
    while (reader.get_attribute_event(nullptr, &error, &reader.m_attr_name)) {
        if (error != ELMX_OK) {
            if (!goes_on(reader, error, name, &error)) return error;
            // Nothing more can come: a handler that swallows all errors would be asked for ever.
            if (reader.at_end_of_input()) break;
        }
        if (unmarshal_attribute(type, object, reader, reader.m_attr_name, &error)) continue;
        if (error != ELMX_OK) return error;
        if (!reader.is_xsi_attribute(reader.m_attr_name) &&
            !goes_on(reader, {&type}, ELMX_UNEXPECTED_ATTRIBUTE, reader.m_name, &error)) {
            return error;
        }
        reader.skip_attribute_value();
    }
    return check_required_attributes(type, object, reader);
}

elmx_error refuse_end(c_xml_reader& reader, const c_string_stack_node& node) {
    const elmx_error error = report_at(reader, {}, ELMX_BAD_END_OF_ELEMENT, node.get_str());
    if (error != ELMX_OK || !reader.is_recovering()) return error;
    return leave_element_at_event(reader, node.get_str());
}

/// The element must end here, under the name it began with.
elmx_error check_end(c_xml_reader& reader, const c_string_stack_node& node) {
    const bool is_ended = reader.get_current_event() == ELXP_END_TAG && node == reader.m_name;
    return is_ended ? ELMX_OK : refuse_end(reader, node);
}

/// Reads the next event of an element whose own name is `node`; failures are reported under that name.
elmx_error read_event(c_xml_reader& reader, const c_string_stack_node& node) {
    elmx_error error = ELMX_OK;
    reader.get_element_event(nullptr, &error, &reader.m_name);
    return error == ELMX_OK ? ELMX_OK : report_at(reader, {}, error, node.get_str());
}

elmx_error read_simple_content(const s_class& type, void* object, c_xml_reader& reader,
                               const c_string_stack_node& node) {
    elmx_error error = ELMX_OK;
    reader.m_name = node.get_str();
    const bool has_body = reader.get_current_event() != ELXP_END_TAG;
    if (!is_nil(type, object) && !unmarshal_content(type, object, reader, &reader.m_name, &error, has_body)) {
        return error;
    }
    if (!has_body) return ELMX_OK;
    if (reader.is_recovering() && !is_nil(type, object) && reader.notes().is_value_faulty) {
        return leave_element(reader, node.get_str());
    }
    error = read_event(reader, node);
    return error == ELMX_OK ? check_end(reader, node) : error;
}

/// Reads the content of an element whose start tag was read, and its end. `is_plain`: by the plain way, which then
/// may take the end too.
elmx_error read_children(const s_class& type, void* object, c_xml_reader& reader, const c_string_stack_node& node,
                         c_plain_way& plain, bool is_empty_tag, bool is_plain) {
    elmx_error error = ELMX_OK;
    const c_string_stack_node* const end = is_plain ? &node : nullptr;
    s_place place(first_level(type));
    if (!is_empty_tag && !is_nil(type, object)) {
        const auto step = plain.take_items(type, object, &place, end, &error);
        if (step == c_plain_way::e_step::failed) return error;
        if (step == c_plain_way::e_step::ended) return ELMX_OK;
    }
    if (place.is_begun && type.content == content_kind::choice) {
        if (!next_element(reader, place.level, 0, &reader.m_name, &error)) return error;
        return check_end(reader, node);
    }
    bool is_ended = false;
    if (place.is_begun) {
        if (!read_sequence(type, object, place, false, reader, plain, end, &reader.m_name, &error, &is_ended))
            return error;
        return is_ended ? ELMX_OK : check_end(reader, node);
    }
    if (!is_empty_tag) {
        error = read_event(reader, node);
        if (error != ELMX_OK) return error;
    }
    const bool is_empty = is_empty_tag || reader.get_current_event() == ELXP_END_TAG;
    const bool is_misnamed = is_empty && !is_empty_tag && node != reader.m_name;
    if (is_misnamed || (is_nil(type, object) && !is_empty)) return refuse_end(reader, node);
    if (is_empty) {
        if (is_nil(type, object) || type.may_be_empty || type.content == content_kind::empty) return ELMX_OK;
        return report_at(reader, {}, ELMX_UNEXPECTED_EMPTY_ELEMENT, node.get_str());
    }
    if (!read_body(type, object, reader, plain, end, &reader.m_name, &error, &is_ended)) return error;
    return is_ended ? ELMX_OK : check_end(reader, node);
}

elmx_error refuse_nesting(c_xml_reader& reader, const std::string& name) {
    const std::string own_name = name;  // NOLINT(performance-unnecessary-copy-initialization): a handler may read on
    const elmx_error error = report_at(reader, {}, ELMX_BADLY_FORMED, own_name);
    if (error != ELMX_OK) return error;
    if (reader.is_recovering()) return skip_element(reader, own_name);
    reader.skip_rest_of_element(own_name);
    return ELMX_OK;
}

}  // namespace

elmx_error check_as_read(const s_item& item, const std::string& text) {
    s_read_value value{text, item.facets};
    kind_of(item).look(value);
    return first_fault(c_read_checks(item.value, value));
}

elmx_error unmarshal_element(const s_class& type, void* object, c_xml_reader& reader, const std::string& name) {
    if (reader.get_element_name_stack().get_depth() >= k_maximum_nesting) return refuse_nesting(reader, name);
    // The name argument is the reader's work string, and every event below overwrites it.
    const c_string_stack_node node(reader.get_element_name_stack(), name);
    const c_open_element open(reader, {reader.notes().open_element, &type, object, &node, nullptr,
                                       reader.get_event_line(), reader.get_event_offset()});
    const elmx_error error = read_attributes(type, object, reader, name);
    if (error != ELMX_OK) return error;
    if (type.content == content_kind::simple) {
        return settle_end(reader, node, read_simple_content(type, object, reader, node));
    }
    const c_xml_reader_local scope(reader);
    c_plain_way plain(reader, type, node.get_name());
    const bool is_empty_tag = reader.get_current_event() == ELXP_END_TAG;
    return settle_end(reader, node, read_children(type, object, reader, node, plain, is_empty_tag, false));
}

elmx_error read_plain_element(const s_class& type, void* object, c_xml_reader& reader, std::string_view name,
                              const s_begin& begin, c_plain_way& plain) {
    const c_string_stack_node node(reader.get_element_name_stack(), name);
    const c_open_element open(reader,
                              {reader.notes().open_element, &type, object, &node, nullptr, begin.line, begin.offset});
    const c_xml_reader_local scope(reader);
    return settle_end(reader, node, read_children(type, object, reader, node, plain, false, true));
}

bool unmarshal_attribute(const s_class& type, void* object, c_xml_reader& reader, const std::string& name,
                         elmx_error* error) {
    *error = ELMX_OK;
    reader.notes().is_value_faulty = false;
    const s_item* const item = tokenise(reader, type, type.attributes, ELXP_ATTRIBUTE);
    if (type.nil_flag != k_no_flag && reader.get_current_event() == ELXP_XSI_NIL) {
        return read_nil(type, object, reader, name, error);
    }
    if (item == nullptr) {
        return type.base != nullptr && unmarshal_attribute(*type.base, object, reader, name, error);
    }
    const s_fault_site site{&type, item, object};
    if (is_set(*item, object) && !goes_on(reader, site, ELMX_ATTRIBUTE_ALREADY_READ, name, error)) return false;
    if (!reader.get_attribute_value(&reader.m_value, item->whitespace)) {
        if (!goes_on(reader, site, ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE, name, error)) return false;
        // What is left of it is read by nobody.
        reader.skip_attribute_value();
        return true;
    }
    return store_value(type, *item, object, reader, name, error);
}

elmx_error check_required_attributes(const s_class& type, const void* object, c_xml_reader& reader) {
    if (type.base != nullptr) {
        const elmx_error error = check_required_attributes(*type.base, object, reader);
        if (error != ELMX_OK) return error;
    }
    for (const s_item& item : type.attributes) {
        if ((item.use & use_demanded) != 0 && !is_set(item, object)) {
            return report_at(reader, {&type, &item, object}, ELMX_REQUIRED_ATTRIBUTES_MISSING, type.name);
        }
    }
    return ELMX_OK;
}

bool unmarshal_body(const s_class& type, void* object, c_xml_reader& reader, std::string* name, elmx_error* error) {
    *error = ELMX_OK;
    bool is_ended = false;
    c_plain_way plain(reader);
    return read_body(type, object, reader, plain, nullptr, name, error, &is_ended);
}

bool unmarshal_content(const s_class& type, void* object, c_xml_reader& reader, std::string* name, elmx_error* error,
                       bool has_body) {
    *error = ELMX_OK;
    const s_class& owner = content_owner(type);
    const s_item& item = owner.elements.front();
    reader.notes().is_value_faulty = false;
    if (!has_body) {
        reader.m_value.clear();
    } else if (!reader.get_element_value(&reader.m_value, item.whitespace, true)) {
        return goes_on(reader, {&owner, &item, object}, ELMX_UNABLE_TO_READ_ELEMENT_VALUE, *name, error);
    }
    return store_value(owner, item, object, reader, *name, error);
}

bool unmarshal_group(const s_class& type, void* object, c_xml_reader& reader, std::string* name, elmx_error* error) {
    return read_group(type, object, reader, *name, error) && next_element(reader, &type, 0, name, error);
}

bool is_group_member(const s_class& type, c_xml_reader& reader) {
    if (!reader.is_current_event_tokenisable()) return false;
    const int token = reader.find_token(*type.names, ELXP_ELEMENT);
    const bool is_member = find_row(type.elements, token) != nullptr;
    if (is_member) reader.restore_event(token);
    return is_member;
}

}  // namespace lmx
