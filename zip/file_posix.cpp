// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

#include "lmx/file_name.h"
#include "zip/exception.h"
#include "zip/file.h"

static_assert(sizeof(off_t) == 8, "archives over 2 GB need the large form of the file calls");

namespace zip {
namespace {

/// Repeats a call that a signal interrupted.
template <typename t_call>
auto without_interruption(t_call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

}  // namespace

void c_file::fail() const { throw CZipException(errno, m_path); }

void c_file::open_as(const std::u16string& path, int flags) {
    // A name that is no text can't be a file's.
    const std::optional<std::filesystem::path> system_path = lmx::to_path(path);
    if (!system_path) throw CZipException(ENOENT, path);
    m_path = path;
    // Without blocking, or a pipe of that name would be waited for; it fails at the first seek instead.
    flags |= O_CLOEXEC | O_NONBLOCK;
    m_descriptor = without_interruption([&] { return ::open(system_path->c_str(), flags, 0666); });
    if (m_descriptor < 0) fail();
}

void c_file::open(const std::u16string& path) { open_as(path, O_RDONLY); }

void c_file::create(const std::u16string& path) { open_as(path, O_RDWR | O_CREAT | O_TRUNC); }

std::int64_t c_file::size() {
    const off_t end = ::lseek(m_descriptor, 0, SEEK_END);
    if (end < 0) fail();
    return end;
}

void c_file::seek(std::int64_t position) {
    if (::lseek(m_descriptor, position, SEEK_SET) < 0) fail();
}

std::size_t c_file::read(char* buffer, std::size_t count) {
    std::size_t done = 0;
    while (done < count) {
        const ssize_t got = without_interruption([&] { return ::read(m_descriptor, buffer + done, count - done); });
        if (got < 0) fail();
        if (got == 0) break;
        done += static_cast<std::size_t>(got);
    }
    return done;
}

void c_file::write(const char* data, std::size_t count) {
    while (count > 0) {
        const ssize_t put = without_interruption([&] { return ::write(m_descriptor, data, count); });
        if (put < 0) fail();
        data += put;
        count -= static_cast<std::size_t>(put);
    }
}

void c_file::truncate(std::int64_t size) {
    if (without_interruption([&] { return ::ftruncate(m_descriptor, size); }) < 0) {
        throw CZipException(zip_truncate_failed, m_path);
    }
}

void c_file::close() {
    // Not repeated after an interruption: the descriptor is gone either way.
    if (::close(std::exchange(m_descriptor, -1)) < 0) fail();
}

void c_file::abandon() noexcept {
    if (is_open()) ::close(std::exchange(m_descriptor, -1));
}

std::optional<s_file_status> get_file_status(const std::u16string& path) {
    const std::optional<std::filesystem::path> system_path = lmx::to_path(path);
    struct stat status {};
    if (!system_path || ::stat(system_path->c_str(), &status) < 0) return std::nullopt;
    return s_file_status{status.st_mode, status.st_mtime, static_cast<std::uint64_t>(status.st_size),
                         S_ISDIR(status.st_mode)};
}

bool set_file_status(const std::u16string& path, std::uint32_t permissions, std::time_t modified) {
    const std::optional<std::filesystem::path> system_path = lmx::to_path(path);
    if (!system_path) return false;
    const timespec times[2] = {{0, UTIME_OMIT}, {modified, 0}};
    return ::utimensat(AT_FDCWD, system_path->c_str(), times, 0) == 0 &&
           ::chmod(system_path->c_str(), permissions & 07777U) == 0;
}

std::u16string without_drive(const std::u16string& path) { return path; }

}  // namespace zip
