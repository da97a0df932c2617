// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Reading: what every schema-bound class does with the reader's events, told once for all tables.
///
/// Every failure passes through `c_xml_reader::handle_error`; the first non-zero answer ends the read and travels
/// up unchanged. What was read by then stays in the objects.

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "lmx/binding/class_parts.h"
#include "lmx/binding/table.h"
#include "lmx/error.h"
#include "lmx/export.h"
#include "lmx/reader/xml_reader.h"

namespace lmx {

/// Elements of schema-bound classes may nest this deep. The recursion of a load follows the nesting, and 256
/// levels fit a stack of 512 KiB with room to spare; no sensible document comes near it.
inline constexpr std::size_t k_maximum_nesting = 256;

/// The code of the first check that the text of a value fails when it is read; 0 if it passes.
elmx_error check_as_read(const s_item& item, const std::string& text);

/// Reads an element whose start tag name has just been delivered. `name` may be the reader's own work string.
VYR_EXPORT elmx_error unmarshal_element(const s_class& type, void* object, c_xml_reader& reader,
                                        const std::string& name);

/// Reads the current element as a member of a substitution group. An element that is no member is skipped, and
/// nothing is chosen.
VYR_EXPORT bool unmarshal_group(const s_class& type, void* object, c_xml_reader& reader, std::string* name,
                                elmx_error* error);

/// True if the current element belongs to the group or inline choice; the event then is its token.
/// Otherwise the event stays what it was.
VYR_EXPORT bool is_group_member(const s_class& type, c_xml_reader& reader);

// For the plain way.

class c_plain_way;
struct s_begin;

/// Reads what is behind a start tag that was taken, through the end tag.
elmx_error read_plain_element(const s_class& type, void* object, c_xml_reader& reader, std::string_view name,
                              const s_begin& begin, c_plain_way& plain);

}  // namespace lmx
