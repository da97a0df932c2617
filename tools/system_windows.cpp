// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <condition_variable>
#include <cstring>
#include <iterator>
#include <mutex>
#include <random>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "tools/commands.h"
#include "tools/system.h"

// The shells of the system leave patterns to the programs.
extern "C" int _dowildcard;
int _dowildcard = -1;

namespace vyr_tool::system {

namespace {

/// A call of the C runtime takes at most so many bytes.
unsigned piece(std::size_t count) { return static_cast<unsigned>(std::min(count, std::size_t{1} << 30U)); }

HANDLE handle_of(int descriptor) { return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor)); }

std::string last_error() { return reason(std::error_code(static_cast<int>(GetLastError()), std::system_category())); }

/// UTF-8; a unit that is no part of a text becomes U+FFFD.
std::string utf8(std::wstring_view text) {
    const auto convert = [&](char* to, int size) {
        return WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), to, size, nullptr,
                                   nullptr);
    };
    std::string narrow(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(narrow.data(), static_cast<int>(narrow.size()));
    return narrow;
}

/// The classes of a bracket, as `[:alpha:]`.
constexpr std::pair<std::string_view, int (*)(int)> k_classes[] = {
    {"alnum", std::isalnum}, {"alpha", std::isalpha}, {"blank", std::isblank}, {"cntrl", std::iscntrl},
    {"digit", std::isdigit}, {"graph", std::isgraph}, {"lower", std::islower}, {"print", std::isprint},
    {"punct", std::ispunct}, {"space", std::isspace}, {"upper", std::isupper}, {"xdigit", std::isxdigit}};

/// The length of the bracket that a pattern begins with, 0 if it isn't closed.
std::size_t length_of_bracket(std::string_view pattern, char character, bool* holds) {
    std::size_t at = 1;
    const bool is_negated = at < pattern.size() && (pattern[at] == '!' || pattern[at] == '^');
    if (is_negated) ++at;
    const auto take = [&] {
        if (pattern[at] == '\\' && at + 1 < pattern.size()) ++at;
        return static_cast<unsigned char>(pattern[at++]);
    };
    *holds = is_negated;
    // A closing one that stands first is one of the characters.
    for (const std::size_t first = at; at < pattern.size();) {
        if (pattern[at] == ']' && at > first) return at + 1;
        const std::string_view rest = pattern.substr(at);
        const auto named = std::ranges::find_if(k_classes, [rest](const auto& known) {
            return rest.starts_with("[:") && rest.substr(2).starts_with(known.first) &&
                   rest.substr(2 + known.first.size()).starts_with(":]");
        });
        if (named != std::end(k_classes)) {
            if (named->second(static_cast<unsigned char>(character)) != 0) *holds = !is_negated;
            at += named->first.size() + 4;
            continue;
        }
        const unsigned char low = take();
        unsigned char high = low;
        if (at + 1 < pattern.size() && pattern[at] == '-' && pattern[at + 1] != ']') {
            ++at;
            high = take();
        }
        const auto code = static_cast<unsigned char>(character);
        if (low <= code && code <= high) *holds = !is_negated;
    }
    return 0;
}

/// The length of the first item of a pattern, which isn't `*`; 0 if it doesn't fit the character.
std::size_t length_of_item(std::string_view pattern, char character) {
    if (pattern.front() == '?') return 1;
    if (pattern.front() == '\\') return pattern.size() > 1 && pattern[1] == character ? 2 : 0;
    if (pattern.front() == '[') {
        bool holds = false;
        const std::size_t length = length_of_bracket(pattern, character, &holds);
        if (length > 0) return holds ? length : 0;
    }
    return pattern.front() == character ? 1 : 0;
}

std::mutex signal_mutex;
std::condition_variable signals_released;
int signal_holds = 0;

/// While it lives, the console takes UTF-8 and the sequences for colours. Other programs will use it again.
class c_console {
public:
    c_console() : m_code_page(GetConsoleOutputCP()) {
        SetConsoleOutputCP(CP_UTF8);
        for (s_screen& screen : m_screens) {
            screen.handle = GetStdHandle(screen.name);
            screen.is_changed = GetConsoleMode(screen.handle, &screen.mode) != 0 &&
                                SetConsoleMode(screen.handle, screen.mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
        }
    }
    c_console(const c_console&) = delete;
    c_console& operator=(const c_console&) = delete;
    ~c_console() { give_back(); }
    void give_back() const {
        // Backwards: both may be one screen.
        for (auto screen = std::rbegin(m_screens); screen != std::rend(m_screens); ++screen) {
            if (screen->is_changed) SetConsoleMode(screen->handle, screen->mode);
        }
        if (m_code_page != 0) SetConsoleOutputCP(m_code_page);
    }

private:
    struct s_screen {
        DWORD name;
        HANDLE handle = nullptr;
        DWORD mode = 0;
        bool is_changed = false;
    };
    UINT m_code_page;
    s_screen m_screens[2] = {{STD_OUTPUT_HANDLE}, {STD_ERROR_HANDLE}};
};

const c_console& console() {
    static const c_console only_one;
    return only_one;
}

/// The system calls it on a thread of its own. It comes back when nothing waits for being finished, and then the
/// system ends the process; until then nothing is begun anew, since the mutex stays held.
BOOL WINAPI wait_for_release(DWORD) {
    std::unique_lock lock(signal_mutex);
    signals_released.wait(lock, [] { return signal_holds == 0; });
    lock.release();
    console().give_back();
    return FALSE;
}

}  // namespace

int open(const std::filesystem::path& path, open_mode mode) {
    const int flags = mode == open_mode::read    ? _O_RDONLY
                      : mode == open_mode::write ? _O_WRONLY
                                                 : _O_WRONLY | _O_CREAT | _O_EXCL;
    const int descriptor = _wopen(path.c_str(), flags | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
    const int refusal = errno;
    // Folders can't be opened, which would be told as a lack of permission.
    std::error_code none;
    if (descriptor < 0) errno = std::filesystem::is_directory(path, none) ? EISDIR : refusal;
    return descriptor;
}

int close(int descriptor) { return _close(descriptor); }

std::int64_t read(int descriptor, char* buffer, std::size_t count) { return _read(descriptor, buffer, piece(count)); }

std::int64_t read_at(int descriptor, std::int64_t position, char* buffer, std::size_t count) {
    return _lseeki64(descriptor, position, SEEK_SET) < 0 ? -1 : read(descriptor, buffer, count);
}

std::int64_t write(int descriptor, const char* data, std::size_t count) {
    const int put = _write(descriptor, data, piece(count));
    // The C runtime has no word of its own for the pipe's end, and takes a full disk for a success.
    if (put < 0 && GetLastError() == ERROR_NO_DATA) errno = EPIPE;
    if (put != 0 || count == 0) return put;
    errno = ENOSPC;
    return -1;
}

std::optional<s_file_state> state_of(int descriptor) {
    if (GetFileType(handle_of(descriptor)) != FILE_TYPE_DISK) return s_file_state{file_kind::stream};
    const std::int64_t size = _filelengthi64(descriptor);
    if (size < 0) return std::nullopt;
    return s_file_state{file_kind::file, static_cast<std::uint64_t>(size)};
}

bool is_terminal(int descriptor) {
    DWORD mode = 0;
    return GetConsoleMode(handle_of(descriptor), &mode) != 0;
}

// Consoles that know sequences say so since the command began.
bool obeys_sequences(int descriptor) {
    DWORD mode = 0;
    return GetConsoleMode(handle_of(descriptor), &mode) != 0 && (mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

bool has_utf8_terminal() { return true; }

// The system's own patterns know no brackets.
bool fits_pattern(const std::string& pattern, const std::string& text) {
    std::size_t item = 0;
    std::size_t at = 0;
    std::optional<std::size_t> behind_star;
    for (std::size_t tried = 0;;) {
        if (item < pattern.size() && pattern[item] == '*') {
            behind_star = ++item;
            tried = at;
            continue;
        }
        if (item == pattern.size() && at == text.size()) return true;
        const bool has_both = item < pattern.size() && at < text.size();
        const std::size_t length = has_both ? length_of_item(std::string_view(pattern).substr(item), text[at]) : 0;
        if (length > 0) {
            item += length;
            ++at;
        } else if (behind_star && tried < text.size()) {
            item = *behind_star;
            at = ++tried;
        } else {
            return false;
        }
    }
}

bool may_write(const std::filesystem::path& file) { return _waccess(file.c_str(), 2) == 0; }

std::filesystem::path make_scratch_folder(const std::filesystem::path& parent) {
    std::random_device random;
    for (int attempts = 0; attempts < 100; ++attempts) {
        std::filesystem::path folder = parent / (".vyr-" + std::to_string(random()));
        if (_wmkdir(folder.c_str()) == 0) return folder;
        if (errno != EEXIST) break;
    }
    return {};
}

std::string replace_file(const std::filesystem::path& finished, const std::filesystem::path& target) {
    const int descriptor = open(finished, open_mode::write);
    if (descriptor < 0) return std::strerror(errno);
    const int refusal = _commit(descriptor) == 0 ? 0 : errno;
    close(descriptor);
    if (refusal != 0) return std::strerror(refusal);
    // The first keeps what others may do with the file; it wants one to be there.
    const bool is_replaced =
        ReplaceFileW(target.c_str(), finished.c_str(), nullptr, 0, nullptr, nullptr) != 0 ||
        MoveFileExW(finished.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    return is_replaced ? std::string() : last_error();
}

void hold_signals() {
    const std::scoped_lock lock(signal_mutex);
    ++signal_holds;
}

void release_signals() {
    const std::scoped_lock lock(signal_mutex);
    if (--signal_holds == 0) signals_released.notify_all();
}

}  // namespace vyr_tool::system

std::string vyr_tool::name_of(const std::filesystem::path& path) { return system::utf8(path.native()); }

int wmain(int argc, wchar_t** argv) {
    using namespace vyr_tool::system;
    for (const int stream : {k_input, k_output, k_errors}) _setmode(stream, _O_BINARY);
    static_cast<void>(console());
    SetConsoleCtrlHandler(&wait_for_release, TRUE);
    std::vector<std::string> words;
    for (int i = 1; i < argc; ++i) words.push_back(utf8(argv[i]));
    return vyr_tool::run_command(std::move(words));
}
