// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr json`: whole documents as JSON, one after the other.

#include <algorithm>
#include <iostream>

#include "tools/commands.h"
#include "tools/files.h"
#include "tools/progress.h"
#include "tools/typed_json.h"

namespace vyr_tool {

exit_code print_json(const json_options& options) {
    exit_code result = exit_ok;
    for (const std::string& file : options.files) {
        c_long_text text;
        const exit_code read = read_text(file, text);
        result = std::max(result, read);
        if (read != exit_ok) continue;
        const c_progress_line progress("printing " + shown_name(file));
        c_read_long_text source(std::move(text));
        const lmx::elmx_error code = print_typed_json(source, std::cout);
        if (code == lmx::ELMX_OK) continue;
        complain(file, lmx::get_error_description(code));
        result = std::max(result, exit_document_fails);
    }
    return result;
}

}  // namespace vyr_tool
