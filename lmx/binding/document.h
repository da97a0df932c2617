// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// An element as a whole document: what classes of global elements read from and write to files, memory, strings
/// and streams.

#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

#include "lmx/binding/table.h"
#include "lmx/error.h"
#include "lmx/export.h"
#include "lmx/reader/xml_reader.h"

namespace lmx {

/// The global element of a class.
struct s_document {
    const char* element;     ///< "Vyr:Vyr", as written
    const char* local_name;  ///< "Vyr", as compared on reading
    const s_ns_map* ns_map;
    const s_operations* operations;
};

/// One class of a schema, for code that walks them all.
struct s_named_class {
    std::string_view name;
    const s_class* type;  ///< element classes that add nothing share the table of their type
    const s_operations* operations;
    const s_document* document;  ///< null for classes that are no document of their own
};

/// Reads the document element from a reader. `ELMX_ELEMENT_NOT_FOUND` if it is another one.
VYR_EXPORT elmx_error unmarshal_document(const s_document& document, void* object, c_xml_reader& reader);
/// The same from a file, named in UTF-8; `ELMX_NO_FILE` if it can't be opened.
VYR_EXPORT elmx_error unmarshal_document(const s_document& document, void* object, const char* file_name);
/// The same from memory, which is borrowed for the call.
VYR_EXPORT elmx_error unmarshal_document(const s_document& document, void* object, const char* data,
                                         std::size_t size);

/// Writes a file, named in UTF-8: `ELMX_NO_FILE` if it can't be opened; on any other failure the file is deleted.
VYR_EXPORT elmx_error marshal_document(const s_document& document, const void* object, const char* file_name);
/// Writes into a string, which is assigned only on success.
VYR_EXPORT elmx_error marshal_document(const s_document& document, const void* object, std::string* text);
/// Writes to a stream; what was printed before a failure stays in it.
VYR_EXPORT elmx_error marshal_document(const s_document& document, const void* object, std::ostream& stream);

}  // namespace lmx
