// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Reading and writing a document for the command line: what went wrong is said where a user looks for it.

#pragma once

#include <string>

#include "schema/Vyr.h"

namespace vyr_tool {

/// The command's exit codes; of several documents the highest counts.
enum exit_code : int {
    exit_ok = 0,
    exit_document_fails = 1,
    exit_usage_or_file = 2,
};

/// Reads the file into `document`. A document that fails is reported on standard output as
/// `file:line: item: text`, a file that can't be opened or has a form this build can't read on standard error.
exit_code read_document(const std::string& file_name, com_vyrgraph_v2::Vyr& document);

/// Writes the file, whose name ends in ".vyr", and reports like `read_document`. A file that could not be written in
/// full is an error of the file.
exit_code write_document(const std::string& file_name, const com_vyrgraph_v2::Vyr& document);

/// The text in UTF-8.
std::string narrow(const std::u16string& text);

}  // namespace vyr_tool
