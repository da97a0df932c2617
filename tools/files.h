// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Files of the command: documents in, documents out, and what the system says when it refuses.

#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "document/report.h"
#include "schema/Vyr.h"
#include "tools/commands.h"
#include "tools/tree.h"

namespace vyr_tool {

/// Standard input or output, where a file name is asked for.
inline constexpr char k_standard_stream[] = "-";

/// What came of reading a file.
struct s_reading {
    /// Why the file itself could not be read, such as "permission denied"; empty if it could. Then the report counts.
    std::string refusal;
    com_vyrgraph_v2::DocumentReport report;
    std::size_t size = 0;  ///< of the file, in bytes

    bool is_ok() const { return refusal.empty() && report.isOk(); }
};

/// Reads a document: a file, whatever bytes its name is made of, a pipe or "-". A container is known by its name, in
/// a pipe by its first bytes.
s_reading read_document(const std::string& file, com_vyrgraph_v2::Vyr& document,
                        const com_vyrgraph_v2::ReportOptions& options = {});

/// Reads a document for a command that needs a valid one, and says on standard error what is wrong with it. `size`,
/// which may be null, receives that of the file.
exit_code read_or_explain(const std::string& file, com_vyrgraph_v2::Vyr& document, std::size_t* size = nullptr);

/// The same as a tree.
exit_code read_tree(const std::string& file, c_tree& tree, std::size_t* size = nullptr);

/// The same for a document whose bytes, those of a container or of a plain document, are at hand.
s_reading read_document_bytes(const std::string& bytes, com_vyrgraph_v2::Vyr& document);

/// The document in the form that the library writes, in UTF-8, or a container whose one entry is called after `stem`.
/// On failure `*bytes` says why.
exit_code document_bytes(const com_vyrgraph_v2::Vyr& document, std::string* bytes);
exit_code container_bytes(const com_vyrgraph_v2::Vyr& document, const std::string& stem, std::string* bytes);

/// Looks at what was written: at a file that holds it, or, where none does, with an empty name before anything is
/// written. Returns why it must not stay, or nothing.
using written_check = std::function<std::string(const std::string& file)>;

/// Writes a file or "-": either all of it, or nothing that stays. An existing file keeps its permissions, a link
/// stays one. Returns why it could not be done, or nothing.
std::string write_file(const std::string& file, const std::string& bytes, const written_check& check = {});

/// A printable name for messages.
std::string shown_name(const std::string& file);

bool is_container_name(const std::string& file);

/// A fault as the library words it, under the file's printable name.
std::string fault_text(const std::string& file, com_vyrgraph_v2::DocumentFault fault);

/// Complains about a file on standard error.
void complain(const std::string& file, const std::string& text);

}  // namespace vyr_tool
