// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/recovery.h"

#include "lmx/binding/open_element.h"
#include "lmx/binding/unmarshal.h"

namespace lmx {
namespace {

/// The class of what is read over.
constinit const s_class k_skipped_class = {
    .name = "",
    .qualified_name = "",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = nullptr,
};

bool is_open_further_out(const c_xml_reader& reader, const std::string& name) {
    const s_open_element* element = reader.notes().open_element;
    while (element != nullptr && name != element->get_name()) element = element->outer;
    return element != nullptr;
}

/// Ends an element at the wrong end tag `reader.m_name`: that of an element further out ends all between; any other
/// one is taken for a slip of the pen.
elmx_error end_at_wrong_tag(c_xml_reader& reader) {
    if (!is_open_further_out(reader, reader.m_name)) return ELMX_OK;
    reader.notes().is_unwinding = true;
    return ELMX_BAD_END_OF_ELEMENT;
}

/// The document ends, or can't be followed.
elmx_error give_up(c_xml_reader& reader, elmx_error code) {
    if (!c_xml::is_error_event(reader.get_current_event())) reader.restore_event(ELXP_END_OF_INPUT);
    report_at(reader, {}, code, reader.m_name);
    return code;
}

/// Reads over what is left of a start tag.
elmx_error skip_start_tag(c_xml_reader& reader, bool* is_empty) {
    if (reader.skip_start_tag(is_empty)) return ELMX_OK;
    reader.restore_event(ELXP_ERROR);
    return give_up(reader, ELMX_NOT_WELL_FORMED);
}

elmx_error report_wrong_end(c_xml_reader& reader, const char* name) {
    const c_string_stack_node node(reader.get_element_name_stack(), name);
    // Where it begins isn't kept.
    const c_open_element open(reader, {reader.notes().open_element, &k_skipped_class, nullptr, &node, nullptr, 0, 0});
    return report_at(reader, {}, ELMX_BAD_END_OF_ELEMENT, node.get_str());
}

/// Reads through the end of an element whose start tag was read.
elmx_error skip_content(c_xml_reader& reader, const std::string& name) {
    // A copy, since `name` may be the reader's own, which what follows changes.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const std::string first = name;
    c_string_stack open;  // names of start tags that were read
    open.push(first);
    while (open.get_depth() > 0) {
        elmx_error error = ELMX_OK;
        reader.get_element_event(nullptr, &error, &reader.m_name);
        switch (reader.get_scanned_event()) {
            case ELXP_NAME: {
                bool is_empty = false;
                error = skip_start_tag(reader, &is_empty);
                if (error != ELMX_OK) return error;
                if (!is_empty) open.push(reader.m_name);
                break;
            }
            case ELXP_END_TAG:
                if (reader.m_name == open.top()) {
                    open.pop();
                    break;
                }
                // Of the first one, it was told.
                if (open.get_depth() > 1) {
                    error = report_wrong_end(reader, open.top());
                    if (error != ELMX_OK) return error;
                }
                if (reader.m_name == first) return ELMX_OK;
                error = end_at_wrong_tag(reader);
                if (error != ELMX_OK) return error;
                // Its own end tag is missing, or this one is misspelt.
                open.pop();
                if (open.get_depth() > 0 && reader.m_name == open.top()) open.pop();
                break;
            case ELXP_TEXT:
                break;
            default:
                // References without a meaning and bytes that are no text are read over.
                if (reader.at_end_of_input()) {
                    return give_up(reader, error != ELMX_OK ? error : ELMX_UNEXPECTED_END_OF_MESSAGE);
                }
                break;
        }
    }
    return ELMX_OK;
}

}  // namespace

elmx_error skip_element(c_xml_reader& reader, const std::string& name) {
    bool is_empty = false;
    const elmx_error error = skip_start_tag(reader, &is_empty);
    return error != ELMX_OK || is_empty ? error : skip_content(reader, name);
}

elmx_error leave_element(c_xml_reader& reader, const std::string& name) {
    std::string wrong_name = reader.take_wrong_end_name();
    if (!wrong_name.empty()) {
        reader.m_name = std::move(wrong_name);
        return end_at_wrong_tag(reader);
    }
    return skip_content(reader, name);
}

elmx_error leave_element_at_event(c_xml_reader& reader, const std::string& name) {
    if (reader.get_scanned_event() == ELXP_END_TAG) return reader.m_name == name ? ELMX_OK : end_at_wrong_tag(reader);
    // A copy, since `name` may be the reader's own, which what follows changes.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const std::string own_name = name;
    const elmx_error error = pass_over_event(reader);
    return error == ELMX_OK ? leave_element(reader, own_name) : error;
}

elmx_error pass_over_event(c_xml_reader& reader) {
    return reader.get_scanned_event() == ELXP_NAME ? skip_element(reader, reader.m_name) : ELMX_OK;
}

bool is_stranger(const s_class& type, const s_place& place, c_xml_reader& reader) {
    if (!is_event_passable(reader)) return false;
    if (!reader.is_current_event_tokenisable()) return true;
    const int token = reader.find_token(*type.names, ELXP_ELEMENT);
    const s_due_row& start = place;
    for (s_due_row due = start; find_row(due.level->elements.subspan(due.index), token) == nullptr;) {
        if (!due.enter_next_level(type)) return true;
    }
    return false;
}

bool is_own_event(const void* object, const c_xml_reader& reader) {
    const s_open_element* const open = reader.notes().open_element;
    return open != nullptr && open->object == object && is_event_passable(reader);
}

bool is_event_passable(const c_xml_reader& reader) {
    return reader.get_scanned_event() == ELXP_NAME || reader.get_scanned_event() == ELXP_TEXT;
}

elmx_error settle_end(c_xml_reader& reader, const c_string_stack_node& node, elmx_error error) {
    if (error == ELMX_OK || !reader.notes().is_unwinding || node != reader.m_name) return error;
    reader.notes().is_unwinding = false;
    return ELMX_OK;
}

}  // namespace lmx
