// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The command `vyr`: its command line. The one source that takes the parser of command lines in.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <exception>
#include <iostream>
#include <memory>
#include <new>
#include <numeric>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/commands.h"
#include "tools/progress.h"
#include "tools/system.h"
#include "tools/text.h"

namespace {

using namespace vyr_tool;

constexpr char k_exit_codes[] =
    "Exit codes:\n"
    "  0  all is well\n"
    "  1  a document fails; diff: the documents differ\n"
    "  2  wrong usage, or a file that can't be read or written; diff: or a document that fails\n";

constexpr char k_limits[] =
    "Limits: a pipe, a table or a JSON text holds at most 1 GB, a document whose lists are printed 4 GB of\n"
    "values; elements nest 256 deep; of an archive, entries grow to at most 1,032 times their size.\n\n";

void add_file(CLI::App& command, const char* name, std::string& file, const char* text) {
    command.add_option(name, file, text)->required()->option_text(" ");
}

void add_files(CLI::App& command, std::vector<std::string>& files) {
    command.add_option("FILE", files, "Documents, or - for standard input")->required()->option_text("...");
}

void add_json(CLI::App& command, bool& json) { command.add_flag("--json", json, "Print JSON"); }

void add_color(CLI::App& command, color_mode& mode) {
    command.add_option("--color", mode, "Colours in the output: auto, always or never")
        ->check(CLI::IsMember({"auto", "always", "never"}))
        ->option_text("WHEN");
}

void add_warnings(CLI::App& command, warning_set& warnings) {
    const auto leave_out_named = [&warnings](const std::vector<std::string>& names) {
        if (!leave_out(names, &warnings)) throw CLI::ValidationError("--ignore", "there is no such warning");
    };
    command
        .add_option_function<std::vector<std::string>>("--ignore", leave_out_named,
                                                       "Leave out warnings of that name, or all")
        ->option_text("NAME");
}

void add_check(CLI::App& command, check_options& options) {
    command
        .add_option("FILE", options.files, "Documents, folders that are searched for them, or - for standard input")
        ->required()
        ->option_text("...");
    command.add_option("-j,--jobs", options.jobs, "Check N files at a time, by default one per processor (0)")
        ->check(CLI::Range(0, 256))
        ->option_text("N");
    command.add_option("--limit", options.limit, "Report at most N faults of a file (100)")->option_text("N");
    add_warnings(command, options.warnings);
    command.add_flag("--strict", options.strict, "Warnings are failures");
    add_color(command, options.color);
    add_json(command, options.json);
    command.add_flag("-q,--quiet", options.quiet, "Print nothing; the exit code tells");
    command.footer(
        "Each fault is a line: file:line: path: what is wrong. All faults of a file are\n"
        "reported together; only what is no XML ends its check.\n\n"
        "Examples:\n"
        "  vyr check inks.vyr\n"
        "  vyr check palettes/                all .vyr and .vyrz files below a folder\n"
        "  curl -s $URL | vyr check -\n"
        "  vyr check --json *.vyr | jq '.files[] | select(.status != \"valid\") | .file'\n");
}

void add_info(CLI::App& command, info_options& options) {
    add_files(command, options.files);
    command.add_option("--depth", options.depth, "Count elements down to this level below the root (4)")
        ->check(CLI::Range(0, 100))
        ->option_text("N");
    add_json(command, options.json);
    command.footer(
        "Examples:\n"
        "  vyr info inks.vyr\n"
        "  vyr info --depth 2 *.vyrz\n"
        "  vyr info --json inks.vyr | jq .colors\n");
}

void add_list(CLI::App& command, list_options& options) {
    add_files(command, options.files);
    const auto add_pattern = [&](const char* name, std::string& pattern, const char* text) {
        command.add_option(name, pattern, text)->option_text("PATTERN");
    };
    add_pattern("--palette", options.palette, "Only colours of palettes with such a name");
    add_pattern("--set", options.set, "Only colours of colour sets with such a name");
    add_pattern("--name", options.name, "Only colours with such a name");
    add_color(command, options.color);
    CLI::Option* const json = command.add_flag("--json", options.json, "Print JSON");
    command.add_flag("--csv", options.csv, "Print a table for spreadsheets, a row for each value")->excludes(json);
    command.footer(
        "A pattern is one as of the shell and fits the whole name: 'Ink*' fits \"Ink 17\".\n"
        "Each value's conditions stand below its table, by number. On a terminal a spectrum has a curve and,\n"
        "with 24-bit colours, each colour that has an sRGB value a swatch.\n\n"
        "Examples:\n"
        "  vyr list inks.vyr\n"
        "  vyr list --palette Spot --name '*blue*' inks.vyr\n"
        "  vyr list --color always inks.vyr | less -R\n"
        "  vyr list --csv inks.vyr > inks.csv\n"
        "  vyr list --json *.vyr | jq -r '.[].name'\n");
}

void add_convert(CLI::App& command, convert_options& options) {
    add_file(command, "IN", options.in, "A document, also as JSON, or - for standard input");
    add_file(command, "OUT", options.out, "A name that ends in .vyr, .vyrz or .json, or - for standard output");
    command.add_option("--to", options.format, "Write this format, whatever OUT is called: vyr, vyrz or json")
        ->check(CLI::IsMember({"vyr", "vyrz", "json"}))
        ->option_text("FORMAT");
    add_warnings(command, options.warnings);
    command.footer(
        "The output takes its place only when it is complete and was read back as the same document; until\n"
        "then an existing file stays as it is. What would be lost is said, and nothing is written.\n\n"
        "Examples:\n"
        "  vyr convert inks.vyr inks.vyrz\n"
        "  vyr convert inks.vyr inks.vyr      lay a document out anew\n"
        "  vyr convert inks.vyr inks.json     and back: vyr convert inks.json inks.vyr\n"
        "  vyr convert inks.vyrz - | less\n"
        "  vyr convert --to vyrz - - < inks.vyr > inks.vyrz\n");
}

void add_out(CLI::App& command, std::string& out, const char* text) {
    command.add_option("-o,--output", out, text)->required()->option_text("OUT");
}

void add_import(CLI::App& command, import_options& options) {
    add_file(command, "TABLE", options.table, "Comma-separated values in UTF-8, or - for standard input");
    add_out(command, options.out, "The document to write: .vyr, .vyrz or .json");
    command.add_option("--palette", options.palette, "Name of the palette, where the table has no such column")
        ->option_text("NAME");
    command.footer(
        "The first row names the columns, as 'vyr list --csv' writes them: Palette, ColorSet, Color, Space, the\n"
        "conditions (Illuminant, Observer ...), the parts of values (L, A, B, Cyan, Red ...), and wavelengths\n"
        "(380 nm). A row without a Space holds Lab, CMYK, sRGB and spectral values, each that is whole.\n\n"
        "Examples:\n"
        "  vyr import inks.csv -o inks.vyr\n"
        "  vyr list --csv inks.vyr > inks.csv && vyr import inks.csv -o new.vyr\n");
}

void add_print_json(CLI::App& command, json_options& options) {
    add_files(command, options.files);
    command.footer(
        "Nothing of a document is left out: 'vyr convert' makes the same document of what is printed. The schema\n"
        "of the JSON is installed as vyr.schema.json.\n\n"
        "Examples:\n"
        "  vyr json inks.vyr | jq -r '.Palette[].ColorSet[].Color[].ColorName'\n"
        "  vyr json inks.vyr | jq '.Palette[0].PaletteName = \"New\"' | vyr convert - new.vyr\n");
}

void add_codes(CLI::App& command, codes_options& options) {
    command.add_option("CODE", options.codes, "Numbers or names of codes; all by default")->option_text("...");
    add_json(command, options.json);
    command.footer(
        "Examples:\n"
        "  vyr codes\n"
        "  vyr codes 36 ELMX_NO_FILE\n");
}

void add_diff(CLI::App& command, diff_options& options) {
    add_file(command, "BEFORE", options.before, "A document, or - for standard input");
    add_file(command, "AFTER", options.after, "Another");
    add_color(command, options.color);
    add_json(command, options.json);
    command.add_flag("-q,--quiet", options.quiet, "Print nothing; the exit code tells");
    command.footer(
        "Each difference is a line: - removed, + added, ~ changed, > moved. Elements are matched by their\n"
        "identities, names and contents. Layout and notation make no difference.\n\n"
        "Examples:\n"
        "  vyr diff inks-2023.vyr inks-2024.vyr\n"
        "  vyr diff old.vyr new.vyrz | grep '^[-+] .*Color '\n"
        "  vyr diff --quiet a.vyr b.vyr && echo the same\n");
}

void add_show(CLI::App& command, show_options& options) {
    add_file(command, "FILE", options.file, "A document, or - for standard input");
    command.add_option("-o,--output", options.out, "The page; standard output without")->option_text("PAGE");
    command.footer(
        "The page is one file of HTML: it needs no network and no script, and can be printed.\n\n"
        "Examples:\n"
        "  vyr show inks.vyr -o inks.html\n"
        "  vyr show inks.vyrz > inks.html\n");
}

/// Standard output that remembers why it failed, which a stream does not.
class c_output : public std::streambuf {
public:
    c_output() { setp(m_buffer.data(), m_buffer.data() + m_buffer.size()); }
    int error() const { return m_error; }

protected:
    int_type overflow(int_type c) override {
        if (sync() != 0) return traits_type::eof();
        if (!traits_type::eq_int_type(c, traits_type::eof())) sputc(traits_type::to_char_type(c));
        return traits_type::not_eof(c);
    }
    int sync() override {
        // On the same terminal, and in a pipe's pager, results are a sign of life themselves.
        if (!m_is_file) c_progress_line::make_way();
        for (const char* next = pbase(); next < pptr() && m_error == 0;) {
            const std::int64_t count = system::write(system::k_output, next, static_cast<std::size_t>(pptr() - next));
            if (count < 0) {
                m_error = errno;
            } else {
                next += count;
            }
        }
        setp(m_buffer.data(), m_buffer.data() + m_buffer.size());
        return m_error == 0 ? 0 : -1;
    }

private:
    static bool is_regular(int descriptor) {
        const auto state = system::state_of(descriptor);
        return state && state->kind == system::file_kind::file;
    }

    std::array<char, 65536> m_buffer{};
    bool m_is_file = is_regular(system::k_output);
    int m_error = 0;
};

/// How many letters must be changed, added or taken away to make one word of the other.
std::size_t distance(std::string_view one, std::string_view other) {
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::size_t corner = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < other.size(); ++j) {
            const std::size_t changed = corner + (one[i] == other[j] ? 0 : 1);
            corner = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, corner + 1});
        }
    }
    return row.back();
}

/// "; did you mean 'check'?" for the word that is most like it, if any is.
std::string suggestion(std::string_view word, const std::vector<std::string>& words) {
    constexpr std::size_t k_most_like = 2;
    std::string best;
    std::size_t least = k_most_like + 1;
    for (const std::string& one : words) {
        const std::size_t far = distance(word, one);
        if (far >= least || far >= one.size()) continue;
        least = far;
        best = one;
    }
    return best.empty() ? best : "; did you mean '" + best + "'?";
}

std::vector<std::string> command_names(const CLI::App& app) {
    std::vector<std::string> names;
    for (const CLI::App* const command : app.get_subcommands({})) names.push_back(command->get_name());
    return names;
}

bool is_command(const CLI::App& app, const std::string& word) {
    const std::vector<std::string> names = command_names(app);
    return std::ranges::find(names, word) != names.end();
}

/// For an option that is none: the one that it resembles.
std::string option_suggestion(const CLI::App& command, const std::string& what) {
    const std::size_t begin = what.find("--");
    if (begin == what.npos) return {};
    const std::string word = what.substr(begin, what.find_first_of(" =,", begin) - begin);
    std::vector<std::string> names;
    for (const CLI::Option* const option : command.get_options()) {
        for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
    }
    return std::ranges::find(names, word) == names.end() ? suggestion(word, names) : std::string();
}

void explain_usage(const CLI::App& app, const CLI::ParseError& error, const std::string& first) {
    const std::vector<CLI::App*> chosen = app.get_subcommands();
    if (first.empty()) {
        std::cerr << app.help();
    } else if (chosen.empty() && !first.starts_with('-')) {
        std::cerr << "vyr: there is no command " << in_quotes(first) << suggestion(first, command_names(app))
                  << "; 'vyr --help' lists them\n";
    } else {
        const std::string command = chosen.empty() ? "vyr" : "vyr " + chosen.front()->get_name();
        std::cerr << command << ": " << printable(error.what())
                  << option_suggestion(chosen.empty() ? app : *chosen.front(), error.what()) << "; '" << command
                  << " --help' says more\n";
    }
}

exit_code run(std::vector<std::string> words) {
    CLI::App app("Checks, describes, compares and converts colour-data documents (.vyr, .vyrz).", "vyr");
    app.require_subcommand(1);
    app.set_version_flag("--version", "vyr " VYR_TOOL_VERSION, "Print the version");
    app.set_help_flag("-h,--help", "Print this text");
    app.footer(std::string("'vyr help COMMAND' says more of each command, with examples.\n\n") + k_limits +
               k_exit_codes);

    exit_code result = exit_ok;
    const auto add = [&]<class Options>(const char* name, const char* text, exit_code (*call)(const Options&),
                                        void (*declare)(CLI::App&, Options&)) {
        const auto options = std::make_shared<Options>();
        CLI::App& command = *app.add_subcommand(name, text);
        declare(command, *options);
        command.callback([&result, options, call] { result = call(*options); });
    };
    add("check", "Validate documents and say what is wrong with them, and where", &check, &add_check);
    add("info", "Say what a document holds", &info, &add_info);
    add("list", "List the colours of a document with their values", &list, &add_list);
    add("convert", "Write a document as a plain one or as a container, in the library's layout", &convert,
        &add_convert);
    add("import", "Make a document of a table", &import, &add_import);
    add("json", "Print documents as JSON, whole", &print_json, &add_print_json);
    add("diff", "Say in what two documents differ", &diff, &add_diff);
    add("codes", "List the result codes of the library", &codes, &add_codes);
    add("show", "Make a page of a document, to look at in a browser", &show, &add_show);
    // "vyr help check" is "vyr check --help".
    const std::string given = words.empty() ? "" : words.front();
    if (!words.empty() && words.front() == "help") {
        words.erase(words.begin());
        words.emplace_back("--help");
    }
    std::ranges::reverse(words);
    try {
        const std::string first = words.empty() ? "" : words.back();
        if (words.size() > 1 && words.front() == "--help" && !first.starts_with('-') && !is_command(app, first)) {
            explain_usage(app, CLI::ExtrasError({first}), first);
            return exit_usage_or_file;
        }
        app.parse(std::move(words));
    } catch (const CLI::ParseError& error) {
        // Asking for help or for the version ends here as well.
        if (error.get_exit_code() == 0) return app.exit(error), exit_ok;
        explain_usage(app, error, given);
        return exit_usage_or_file;
    }
    return result;
}

}  // namespace

int vyr_tool::run_command(std::vector<std::string> words) {
    c_output output;
    std::streambuf* const before = std::cout.rdbuf(&output);
    exit_code result = exit_usage_or_file;
    try {
        result = run(std::move(words));
    } catch (const std::bad_alloc&) {
        std::cerr << "vyr: not enough memory\n";
    } catch (const std::exception& error) {
        std::cerr << "vyr: " << error.what() << '\n';
    }
    std::cout.flush();
    std::cout.rdbuf(before);
    // A reader that has gone away has read enough.
    if (output.error() == 0 || output.error() == EPIPE) return result;
    std::cerr << "vyr: standard output: " << std::strerror(output.error()) << '\n';
    return exit_usage_or_file;
}
