// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include <fcntl.h>
#include <fnmatch.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/commands.h"
#include "tools/system.h"

namespace vyr_tool {

std::string name_of(const std::filesystem::path& path) { return path.string(); }

namespace system {

namespace {

/// Repeats a call that a signal interrupted.
template <class Call>
auto without_interruption(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

/// Held by this thread at the moment, and what was held before that.
thread_local int holds = 0;
thread_local sigset_t before;

}  // namespace

int open(const std::filesystem::path& path, open_mode mode) {
    const int flags = mode == open_mode::read    ? O_RDONLY
                      : mode == open_mode::write ? O_WRONLY
                                                 : O_WRONLY | O_CREAT | O_EXCL;
    return ::open(path.c_str(), flags | O_CLOEXEC, 0600);
}

int close(int descriptor) { return ::close(descriptor); }

std::int64_t read(int descriptor, char* buffer, std::size_t count) {
    return without_interruption([=] { return ::read(descriptor, buffer, count); });
}

std::int64_t read_at(int descriptor, std::int64_t position, char* buffer, std::size_t count) {
    return without_interruption([=] { return ::pread(descriptor, buffer, count, position); });
}

std::int64_t write(int descriptor, const char* data, std::size_t count) {
    return without_interruption([=] { return ::write(descriptor, data, count); });
}

std::optional<s_file_state> state_of(int descriptor) {
    struct stat state {};
    if (fstat(descriptor, &state) != 0) return std::nullopt;
    if (S_ISDIR(state.st_mode)) return s_file_state{file_kind::folder};
    if (!S_ISREG(state.st_mode)) return s_file_state{file_kind::stream};
    return s_file_state{file_kind::file, static_cast<std::uint64_t>(state.st_size)};
}

bool is_terminal(int descriptor) { return isatty(descriptor) != 0; }

bool obeys_sequences(int descriptor) {
    const char* const terminal = std::getenv("TERM");
    return is_terminal(descriptor) && std::string_view(terminal == nullptr ? "" : terminal) != "dumb";
}

bool has_utf8_terminal() {
    for (const char* const name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* const value = std::getenv(name);
        const std::string_view locale = value == nullptr ? "" : value;
        if (!locale.empty()) return locale.find("UTF-8") != locale.npos || locale.find("utf8") != locale.npos;
    }
    return false;
}

bool fits_pattern(const std::string& pattern, const std::string& text) {
    return fnmatch(pattern.c_str(), text.c_str(), 0) == 0;
}

bool may_write(const std::filesystem::path& file) { return faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) == 0; }

std::filesystem::path make_scratch_folder(const std::filesystem::path& parent) {
    std::string name = (parent / ".vyr-XXXXXX").string();
    return mkdtemp(name.data()) != nullptr ? std::filesystem::path(name) : std::filesystem::path();
}

std::string replace_file(const std::filesystem::path& finished, const std::filesystem::path& target) {
    const int descriptor = open(finished, open_mode::write);
    if (descriptor < 0) return std::strerror(errno);
    struct stat existing {};
    const bool exists = stat(target.c_str(), &existing) == 0;
    const mode_t mask = umask(0);
    umask(mask);
    // Only the superuser may give files away; for others the new file is their own.
    if (exists && fchown(descriptor, existing.st_uid, existing.st_gid) != 0) errno = 0;
    const mode_t mode = exists ? existing.st_mode & 07777U : 0666U & ~mask;
    const bool is_written = fchmod(descriptor, mode) == 0 && fsync(descriptor) == 0;
    const int refusal = is_written ? 0 : errno;
    if (close(descriptor) != 0 && is_written) return std::strerror(errno);
    if (!is_written) return std::strerror(refusal);
    return ::rename(finished.c_str(), target.c_str()) == 0 ? std::string() : std::strerror(errno);
}

void hold_signals() {
    if (holds++ > 0) return;
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&held, signal);
    pthread_sigmask(SIG_BLOCK, &held, &before);
}

void release_signals() {
    if (--holds == 0) pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

}  // namespace system

}  // namespace vyr_tool

int main(int argc, char** argv) {
    return vyr_tool::run_command(std::vector<std::string>(argv + std::min(argc, 1), argv + argc));
}
