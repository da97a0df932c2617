// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// From JSON to a document, through the checks of a load: by way of the XML text that the JSON stands for.

#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "schema/Vyr.h"
#include "tools/commands.h"
#include "tools/files.h"
#include "tools/json.h"
#include "tools/members.h"

namespace vyr_tool {

/// What is wrong with a value, and where: the place is null if the library named only the path.
struct s_json_fault {
    std::string path;
    std::string text;
    const json* place;
};

/// How the values are given.
struct s_json_form {
    bool has_texts_only = false;        ///< all values are texts, also those that JSON has kinds for
    bool is_nil_where_missing = false;  ///< what must stand there and may be nil is nil if it is missing
    std::string history;                ///< the `ChangeHistory` of all that has none; empty: it is missing
};

/// Reads the object that `vyr json` prints. Returns all faults, none if the document is whole.
std::vector<s_json_fault> read_json(const json& object, com_vyrgraph_v2::Vyr& document, const s_json_form& form = {},
                                    std::size_t limit = 100);

/// Reads a document, a container or, by its name or in a pipe by its first character, JSON. Says on standard error
/// what is wrong with it.
exit_code read_any_form(const std::string& file, com_vyrgraph_v2::Vyr& document, const text_taker& take_text = {});

}  // namespace vyr_tool
