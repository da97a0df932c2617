// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr show`: a document as a page for browsers.

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "tools/commands.h"
#include "tools/files.h"
#include "tools/page.h"
#include "tools/progress.h"

namespace vyr_tool {

namespace {

namespace fs = std::filesystem;

/// Writes the page where it can take its place at once. Returns why it could not be done, or nothing.
std::string write_page(const c_tree& tree, const std::string& name, const std::string& target) {
    const c_signals_held held;
    const c_scratch_folder folder(target);
    if (folder.path().empty()) return folder.refusal();
    const fs::path finished = folder.path() / "page.html";
    std::ofstream out(finished, std::ios::binary);
    c_page(tree, out).print(name);
    out.close();
    return out ? deliver(finished, target) : std::string(std::strerror(errno));
}

/// A page in the place of a document would be the end of the document.
bool is_document(const show_options& options) {
    std::error_code none;
    return is_document_name(options.out) || fs::equivalent(path_of(options.file), path_of(options.out), none);
}

}  // namespace

exit_code show(const show_options& options) {
    const bool is_stream = options.out == k_standard_stream;
    if (!is_stream && is_document(options)) {
        complain(options.out, "is a document, and no place for a page");
        return exit_usage_or_file;
    }
    c_tree tree;
    const exit_code read = read_tree(options.file, tree);
    if (read != exit_ok) return read;
    const std::string name =
        options.file == k_standard_stream ? shown_name(options.file) : name_of(path_of(options.file).filename());
    const c_progress_line progress("making the page of " + shown_name(options.file));
    if (is_stream) {
        c_page(tree, std::cout).print(name);
        return exit_ok;
    }
    const std::string refusal = write_page(tree, name, options.out);
    if (refusal.empty()) return exit_ok;
    complain(options.out, refusal);
    return exit_usage_or_file;
}

}  // namespace vyr_tool
