// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr json`: whole documents as JSON, one after the other.

#include <algorithm>
#include <iostream>

#include "tools/commands.h"
#include "tools/files.h"
#include "tools/typed_json.h"

namespace vyr_tool {

exit_code print_json(const json_options& options) {
    exit_code result = exit_ok;
    for (const std::string& file : options.files) {
        c_tree tree(c_tree::open_content::markup);
        const exit_code read = read_tree(file, tree);
        result = std::max(result, read);
        if (read == exit_ok) print_typed_json(tree, 0, std::cout);
    }
    return result;
}

}  // namespace vyr_tool
