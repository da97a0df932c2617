// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What the command asks of the operating system beyond the standard library. Each system's source has `main` as
/// well: what it does before and after the command is its own.

#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace vyr_tool {

/// A file name in the words of the command line, which are UTF-8 or, where the system's names are bytes, these.
inline std::filesystem::path path_of(const std::string& name) {
    return std::filesystem::path(std::u8string(name.begin(), name.end()));
}
/// The words for a file name. Of one that is no text they are another file's, which can't be opened.
std::string name_of(const std::filesystem::path& path);

/// Why the system refused something, in the words of `strerror` on every system.
inline std::string reason(const std::error_code& code) {
    const std::error_condition known = code.default_error_condition();
    if (known.category() == std::generic_category()) return known.message();
    return "error " + std::to_string(code.value()) + " of the system";
}

namespace system {

inline constexpr int k_input = 0;
inline constexpr int k_output = 1;
inline constexpr int k_errors = 2;

enum class open_mode {
    read,
    write,  ///< what is there
    create  ///< for writing what must not be there yet
};

// Calls on descriptors, which no signal ends. Negative results are failures with an `errno`.

int open(const std::filesystem::path& path, open_mode mode);
int close(int descriptor);
/// At most `count` bytes; 0 at the end.
std::int64_t read(int descriptor, char* buffer, std::size_t count);
std::int64_t read_at(int descriptor, std::int64_t position, char* buffer, std::size_t count);
/// A pipe that nobody reads any more is `EPIPE`.
std::int64_t write(int descriptor, const char* data, std::size_t count);

enum class file_kind { file, folder, stream };
struct s_file_state {
    file_kind kind = file_kind::file;
    std::uint64_t size = 0;  ///< of files
};
/// Nothing, with an `errno`, if the system doesn't say.
std::optional<s_file_state> state_of(int descriptor);

bool is_terminal(int descriptor);
/// Whether it is a terminal that obeys sequences: for colours, and for taking a line away.
bool obeys_sequences(int descriptor);
/// Whether terminals are known to show the characters that curves are made of.
bool has_utf8_terminal();

/// Whether a text as a whole fits a pattern as of the shell.
bool fits_pattern(const std::string& pattern, const std::string& text);

/// False, with an `errno`, if a file that is there is protected.
bool may_write(const std::filesystem::path& file);
/// A new folder, which others can't look into where folders have modes; an empty path, with an `errno`, if there can
/// be none.
std::filesystem::path make_scratch_folder(const std::filesystem::path& parent);
/// Lets a file take the place of another, with the permissions that this one has, or of none. Returns why it could
/// not be done, or nothing.
std::string replace_file(const std::filesystem::path& finished, const std::filesystem::path& target);

void hold_signals();
void release_signals();

}  // namespace system

/// Lets an interruption wait, so that no file without a master stays behind.
class c_signals_held {
public:
    c_signals_held() { system::hold_signals(); }
    c_signals_held(const c_signals_held&) = delete;
    c_signals_held& operator=(const c_signals_held&) = delete;
    ~c_signals_held() { system::release_signals(); }
};

}  // namespace vyr_tool
