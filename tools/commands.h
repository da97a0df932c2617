// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The subcommands, each with what its command line can ask for. Each prints its result on standard output, says on
/// standard error what stood in its way, and lives in the source of its name.

#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tools/warnings.h"

namespace vyr_tool {

/// The command's exit codes; of several documents the highest counts.
enum exit_code : int {
    exit_ok = 0,
    exit_document_fails = 1,  ///< of `diff`: the documents differ
    exit_usage_or_file = 2,   ///< of `diff`: also a document that fails
};

/// The whole command: takes the words behind its name, in UTF-8 or as the system's bytes, and returns the exit code.
int run_command(std::vector<std::string> words);

/// Whether to send colours to the terminal: "auto", "always" or "never".
using color_mode = std::string;

struct check_options {
    std::vector<std::string> files;
    std::size_t jobs = 0;  ///< 0: one per processor
    std::size_t limit = 100;
    warning_set warnings = check_warnings();
    bool strict = false;  ///< warnings are failures
    color_mode color = "auto";
    bool json = false;
    bool quiet = false;
};

struct info_options {
    std::vector<std::string> files;
    std::size_t depth = 4;
    bool json = false;
};

/// Patterns as the shell's, matched with the whole name; empty ones match everything.
struct list_options {
    std::vector<std::string> files;
    std::string palette;
    std::string set;
    std::string name;
    color_mode color = "auto";
    bool json = false;
    bool csv = false;
};

struct convert_options {
    std::string in;
    std::string out;
    warning_set warnings = convert_warnings();
    std::string format;  ///< "vyr", "vyrz" or "json"; empty: what the name of the output says
};

struct import_options {
    std::string table;
    std::string out;
    std::string palette;  ///< for tables that name none; empty: called as the table
};

struct json_options {
    std::vector<std::string> files;
};

struct codes_options {
    std::vector<std::string> codes;  ///< numbers or names; none: all
    bool json = false;
};

struct diff_options {
    std::string before;
    std::string after;
    color_mode color = "auto";
    bool json = false;
    bool quiet = false;
};

struct show_options {
    std::string file;
    std::string out = "-";
};

exit_code check(const check_options& options);
exit_code info(const info_options& options);
exit_code list(const list_options& options);
exit_code convert(const convert_options& options);
exit_code import(const import_options& options);
exit_code print_json(const json_options& options);
exit_code codes(const codes_options& options);
exit_code diff(const diff_options& options);
exit_code show(const show_options& options);

}  // namespace vyr_tool
