// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "zip/system_file.h"

static_assert(sizeof(off_t) == 8, "archives over 2 GB need the large form of the file calls");

namespace zip {
namespace system_file {
namespace {

/// Repeats a call that a signal interrupted.
template <typename t_call>
auto without_interruption(t_call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

}  // namespace

int open(const std::filesystem::path& path, open_mode mode) {
    // Without blocking, or a pipe of that name would be waited for; it fails at the first seek instead.
    const int flags = (mode == open_mode::existing ? O_RDONLY : O_RDWR | O_CREAT | O_TRUNC) | O_CLOEXEC | O_NONBLOCK;
    return without_interruption([&] { return ::open(path.c_str(), flags, 0666); });
}

std::int64_t seek(int descriptor, std::int64_t position) { return ::lseek(descriptor, position, SEEK_SET); }

std::int64_t seek_end(int descriptor) { return ::lseek(descriptor, 0, SEEK_END); }

std::int64_t read(int descriptor, char* buffer, std::size_t count) {
    return without_interruption([=] { return ::read(descriptor, buffer, count); });
}

std::int64_t write(int descriptor, const char* data, std::size_t count) {
    return without_interruption([=] { return ::write(descriptor, data, count); });
}

bool truncate(int descriptor, std::int64_t size) {
    return without_interruption([=] { return ::ftruncate(descriptor, size); }) == 0;
}

// Not repeated after an interruption.
int close(int descriptor) { return ::close(descriptor); }

std::optional<s_file_status> get_status(const std::filesystem::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) < 0) return std::nullopt;
    return s_file_status{status.st_mode, status.st_mtime, static_cast<std::uint64_t>(status.st_size),
                         S_ISDIR(status.st_mode)};
}

bool set_status(const std::filesystem::path& path, std::uint32_t permissions, std::time_t modified) {
    const timespec times[2] = {{0, UTIME_OMIT}, {modified, 0}};
    return ::utimensat(AT_FDCWD, path.c_str(), times, 0) == 0 && ::chmod(path.c_str(), permissions & 07777U) == 0;
}

}  // namespace system_file

std::u16string without_drive(const std::u16string& path) { return path; }

}  // namespace zip
