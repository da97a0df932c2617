// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr convert`: a document in the library's own layout, plain or in a container.

#include <unistd.h>

#include <filesystem>
#include <optional>
#include <sstream>
#include <string>

#include "tools/commands.h"
#include "tools/files.h"

namespace vyr_tool {

namespace {

/// "vyr" or "vyrz"; nothing if neither the command line nor the name says which.
std::optional<std::string> format_of(const convert_options& options) {
    if (!options.format.empty()) return options.format;
    if (is_container_name(options.out)) return "vyrz";
    if (options.out.ends_with(".vyr") || options.out == k_standard_stream) return "vyr";
    return std::nullopt;
}

/// Every line of the text is a complaint of its own.
exit_code refuse(const std::string& file, const std::string& text, exit_code result = exit_usage_or_file) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        complain(file == k_standard_stream ? "standard output" : file, line);
    }
    return result;
}

}  // namespace

exit_code convert(const convert_options& options) {
    const std::optional<std::string> format = format_of(options);
    if (!format) return refuse(options.out, "the name of a document ends in .vyr or .vyrz; for others say --to");
    if (*format == "vyrz" && options.out == k_standard_stream && isatty(STDOUT_FILENO) != 0) {
        return refuse(options.out, "a container is no text for a terminal");
    }
    com_vyrgraph_v2::Vyr document;
    const exit_code result = read_or_explain(options.in, document);
    if (result != exit_ok) return result;
    const bool has_name = options.out != k_standard_stream;
    const std::string stem = has_name ? std::filesystem::path(options.out).stem().string() : "document";
    std::string bytes;
    const exit_code made =
        *format == "vyrz" ? container_bytes(document, stem, &bytes) : document_bytes(document, &bytes);
    if (made != exit_ok) return refuse(options.out, bytes, made);
    const std::string refusal = write_file(options.out, bytes);
    return refusal.empty() ? exit_ok : refuse(options.out, refusal);
}

}  // namespace vyr_tool
