// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Writing: how every schema-bound class prints itself, told once for all tables.

#pragma once

#include "lmx/binding/class_parts.h"
#include "lmx/binding/table.h"
#include "lmx/error.h"
#include "lmx/export.h"
#include "lmx/writer/xml_writer.h"

namespace lmx {

/// Prints an element under the qualified name given. An object whose mandatory items are missing prints nothing
/// and gives `ELMX_OCCURS_ERROR_ON_MARSHAL`; a failure further down leaves what was printed before it.
VYR_EXPORT elmx_error marshal_element(const s_class& type, const void* object, c_xml_writer& writer,
                                      const char* name);

/// Prints the member that a holder holds; `ELMX_OCCURS_ERROR_ON_MARSHAL` while nothing is chosen.
VYR_EXPORT elmx_error marshal_group(const s_class& type, const void* object, c_xml_writer& writer);

}  // namespace lmx
