// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The command `vyr`: checks, converts and describes documents. All knowledge of the format is the library's.

#include <algorithm>
#include <iostream>
#include <span>
#include <string>
#include <string_view>

#include "tools/document_file.h"
#include "tools/info.h"

namespace {

using vyr_tool::exit_code;
using arguments = std::span<const char* const>;

exit_code check(arguments files) {
    exit_code result = vyr_tool::exit_ok;
    for (const char* file : files) {
        com_vyrgraph_v2::Vyr document;
        result = std::max(result, vyr_tool::read_document(file, document));
    }
    return result;
}

exit_code convert(arguments files) {
    com_vyrgraph_v2::Vyr document;
    const exit_code result = vyr_tool::read_document(files[0], document);
    return result == vyr_tool::exit_ok ? vyr_tool::write_document(files[1], document) : result;
}

exit_code info(arguments files) {
    com_vyrgraph_v2::Vyr document;
    const exit_code result = vyr_tool::read_document(files[0], document);
    if (result == vyr_tool::exit_ok) vyr_tool::print_info(document, std::cout);
    return result;
}

struct subcommand {
    std::string_view name;
    std::string_view usage;
    std::string_view summary;
    std::size_t least;  ///< number of arguments
    std::size_t most;
    exit_code (*run)(arguments);
};

constexpr std::size_t k_any_number = static_cast<std::size_t>(-1);

constexpr subcommand k_subcommands[] = {
    {"check", "FILE...", "read and validate; print file:line: item: text for each document that fails", 1,
     k_any_number, check},
    {"convert", "IN OUT", "read IN and write it as OUT, in the library's own layout", 2, 2, convert},
    {"info", "FILE", "print what a document holds, and its palettes with their colours", 1, 1, info},
};

void print_usage(std::ostream& stream) {
    stream << "usage: vyr <command> <arguments>\n\n";
    for (const subcommand& row : k_subcommands) {
        const std::string call = std::string(row.name) + " " + std::string(row.usage);
        stream << "  " << call << std::string(call.size() < 16 ? 16 - call.size() : 1, ' ') << row.summary << '\n';
    }
    stream << "  --help          print this text\n"
              "  --version       print the version\n\n"
              "exit codes: 0 all is well; 1 a document fails; 2 wrong usage, or a file that can't be opened or "
              "written\n";
}

}  // namespace

int main(int argc, char** argv) {
    const arguments all(argv, static_cast<std::size_t>(argc));
    const std::string_view name = all.size() > 1 ? all[1] : "";
    if (name == "--help" || name == "-h") {
        print_usage(std::cout);
        return vyr_tool::exit_ok;
    }
    if (name == "--version") {
        std::cout << "vyr " VYR_TOOL_VERSION "\n";
        return vyr_tool::exit_ok;
    }
    const auto* found = std::ranges::find(k_subcommands, name, &subcommand::name);
    if (found != std::end(k_subcommands)) {
        const arguments rest = all.subspan(2);
        if (rest.size() >= found->least && rest.size() <= found->most) return found->run(rest);
    } else if (!name.empty()) {
        std::cerr << "vyr: unknown command '" << name << "'\n";
    }
    print_usage(std::cerr);
    return vyr_tool::exit_usage_or_file;
}
