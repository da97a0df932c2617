// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// How a load goes on behind a fault of structure that its handler let pass, if it is to
/// (`c_xml::is_recovering`): what is left of the faulty element is read over, without a look at what it means.
///
/// All of these return 0 or what ends the read: the document ends or can't be followed, which was reported then, or
/// an end tag was met that ends an element further out (`s_fault_notes::is_unwinding`).

#pragma once

#include <string>

#include "lmx/binding/place.h"
#include "lmx/binding/table.h"
#include "lmx/error.h"
#include "lmx/reader/xml_reader.h"

namespace lmx {

/// Reads over the element whose start tag is at hand.
elmx_error skip_element(c_xml_reader& reader, const std::string& name);
/// Reads through the end of an element that was begun, from wherever the reader is in it. A wrong end tag that was
/// taken is its end.
elmx_error leave_element(c_xml_reader& reader, const std::string& name);
/// The same with an event at hand that has no place in the element.
elmx_error leave_element_at_event(c_xml_reader& reader, const std::string& name);
/// Reads over the event at hand, which has no place: an element, or a text.
elmx_error pass_over_event(c_xml_reader& reader);
/// Whether that can be done.
bool is_event_passable(const c_xml_reader& reader);

/// The same for one that lies directly in the innermost open element, which is that of the object.
bool is_own_event(const void* object, const c_xml_reader& reader);
/// The same for one that no row from the place on takes.
bool is_stranger(const s_class& type, const s_place& place, c_xml_reader& reader);

/// What reading the element of that name came to: nothing, if the end tag that is on its way is its own.
elmx_error settle_end(c_xml_reader& reader, const c_string_stack_node& node, elmx_error error);

}  // namespace lmx
