// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// From JSON to a document, through the checks of a load: by way of the XML text that the JSON stands for.

#pragma once

#include <string>
#include <vector>

#include "schema/Vyr.h"
#include "tools/commands.h"
#include "tools/files.h"
#include "tools/json_to_xml.h"

namespace vyr_tool {

/// Reads the object that `vyr json` prints. Returns all faults, none if the document is whole.
std::vector<s_json_fault> read_json(const json& object, com_vyrgraph_v2::Vyr& document, const s_json_form& form = {});

/// Reads a document, a container or, by its name or in a pipe by its first character, JSON. Says on standard error
/// what is wrong with it.
exit_code read_any_form(const std::string& file, com_vyrgraph_v2::Vyr& document, const text_taker& take_text = {});

}  // namespace vyr_tool
