// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Reading and writing the parts of an element, for protected members of the classes that forward to these.

#pragma once

#include <string>

#include "lmx/binding/table.h"
#include "lmx/error.h"
#include "lmx/export.h"

namespace lmx {

/// Prints ` name="value"` for each attribute, the base's first.
VYR_EXPORT void marshal_attributes(const s_class& type, const void* object, c_xml_writer& writer);

/// Prints what stands between the tags, the base's items first.
VYR_EXPORT elmx_error marshal_child_elements(const s_class& type, const void* object, c_xml_writer& writer);

/// Reads the attribute just named if it belongs to the class or a base of it. False if it doesn't, or with
/// `*error` set if reading it failed.
VYR_EXPORT bool unmarshal_attribute(const s_class& type, void* object, c_xml_reader& reader, const std::string& name,
                                    elmx_error* error);

/// Reports the first required attribute that is missing.
VYR_EXPORT elmx_error check_required_attributes(const s_class& type, const void* object, c_xml_reader& reader);

/// Reads the children, the chosen alternative or the open content, up to the first element that has no place.
/// `name` is the reader's element-name work string. False with `*error` set on failure.
VYR_EXPORT bool unmarshal_body(const s_class& type, void* object, c_xml_reader& reader, std::string* name,
                               elmx_error* error);

/// Reads simple content; without a body the value is the empty text.
VYR_EXPORT bool unmarshal_content(const s_class& type, void* object, c_xml_reader& reader, std::string* name,
                                  elmx_error* error, bool has_body);

}  // namespace lmx
