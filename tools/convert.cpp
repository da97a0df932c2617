// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr convert`: a document in the library's own layout, plain or in a container, or as JSON, and back.

#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "tools/commands.h"
#include "tools/document_json.h"
#include "tools/files.h"
#include "tools/save.h"
#include "tools/warnings.h"

namespace vyr_tool {

namespace {

constexpr std::size_t k_most_warnings = 20;

void print_warnings(const std::string& file, c_warnings& warnings) {
    warnings.finish({});
    for (const s_warning& found : warnings.found()) std::cerr << warning_text(file, found) << '\n';
    if (warnings.total() <= k_most_warnings) return;
    std::cerr << shown_name(file) << ": " << warnings.total() - k_most_warnings << " more warnings\n";
}

}  // namespace

exit_code convert(const convert_options& options) {
    const std::optional<std::string> format = format_of(options.out, options.format);
    if (!format) {
        return refuse_output(options.out, "the name of a document ends in .vyr, .vyrz or .json; for others say --to");
    }
    auto document = std::make_unique<com_vyrgraph_v2::Vyr>();
    {
        c_warnings warnings(options.warnings, k_most_warnings);
        bool is_text = false;
        const text_taker take = [&](std::string_view piece) {
            is_text = true;
            warnings.take(piece);
        };
        const exit_code read = read_any_form(options.in, *document, options.warnings.none() ? text_taker() : take);
        if (read != exit_ok) return read;
        if (is_text) print_warnings(options.in, warnings);
    }
    return save_document(std::move(document), options.out, *format);
}

}  // namespace vyr_tool
