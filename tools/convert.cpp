// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr convert`: a document in the library's own layout, plain or in a container, or as JSON, and back.

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "tools/commands.h"
#include "tools/document_json.h"
#include "tools/save.h"

namespace vyr_tool {

exit_code convert(const convert_options& options) {
    const std::optional<std::string> format = format_of(options.out, options.format);
    if (!format) {
        return refuse_output(options.out, "the name of a document ends in .vyr, .vyrz or .json; for others say --to");
    }
    auto document = std::make_unique<com_vyrgraph_v2::Vyr>();
    const exit_code read = read_any_form(options.in, *document);
    return read != exit_ok ? read : save_document(std::move(document), options.out, *format);
}

}  // namespace vyr_tool
