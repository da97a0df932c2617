// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Saving a document: verified before it takes its place.

#pragma once

#include <memory>
#include <optional>
#include <string>

#include "schema/Vyr.h"
#include "tools/commands.h"

namespace vyr_tool {

/// "vyr", "vyrz" or "json": what was asked for, or else what the name says; nothing if neither does.
std::optional<std::string> format_of(const std::string& out, const std::string& asked);

/// Writes a document in a format, and reads it back before it takes the place of the target or goes to standard
/// output. What would be lost is said on standard error, and nothing is written. The document is gone afterwards:
/// only one at a time is held.
exit_code save_document(std::unique_ptr<com_vyrgraph_v2::Vyr> document, const std::string& out,
                        const std::string& format);

/// Complains about an output, each line of the text for itself.
exit_code refuse_output(const std::string& out, const std::string& text, exit_code result = exit_usage_or_file);

}  // namespace vyr_tool
