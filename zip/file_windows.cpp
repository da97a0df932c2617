// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Descriptors are those of the C runtime, so that causes are `errno` values as elsewhere; names are wide throughout.

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <utility>

#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "lmx/file_name.h"
#include "zip/exception.h"
#include "zip/file.h"

static_assert(sizeof(std::time_t) == 8, "the times of files must not end in 2038");

namespace zip {
namespace {

/// A call of the C runtime takes at most so many bytes.
unsigned piece(std::size_t count) { return static_cast<unsigned>(std::min(count, std::size_t{1} << 30U)); }

// The system counts tenths of microseconds from 1601 on.
constexpr std::int64_t k_ticks_per_second = 10'000'000;
constexpr std::int64_t k_seconds_to_1970 = 11'644'473'600;

std::time_t to_time(const FILETIME& time) {
    const auto ticks = static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32U | time.dwLowDateTime);
    return ticks / k_ticks_per_second - k_seconds_to_1970;
}

FILETIME to_file_time(std::time_t time) {
    const auto ticks = static_cast<std::uint64_t>((time + k_seconds_to_1970) * k_ticks_per_second);
    return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32U)};
}

bool set_modified(const wchar_t* path, std::time_t modified) {
    // With this flag folders can be opened as well.
    const HANDLE file =
        CreateFileW(path, FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    const FILETIME time = to_file_time(modified);
    const bool is_set = SetFileTime(file, nullptr, nullptr, &time) != 0;
    CloseHandle(file);
    return is_set;
}

}  // namespace

void c_file::fail() const { throw CZipException(errno, m_path); }

void c_file::open_as(const std::u16string& path, int flags) {
    // A name that is no text can't be a file's.
    const std::optional<std::filesystem::path> system_path = lmx::to_path(path);
    if (!system_path) throw CZipException(ENOENT, path);
    m_path = path;
    m_descriptor = _wopen(system_path->c_str(), flags | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
    if (m_descriptor < 0) fail();
}

void c_file::open(const std::u16string& path) { open_as(path, _O_RDONLY); }

void c_file::create(const std::u16string& path) { open_as(path, _O_RDWR | _O_CREAT | _O_TRUNC); }

std::int64_t c_file::size() {
    const std::int64_t end = _lseeki64(m_descriptor, 0, SEEK_END);
    if (end < 0) fail();
    return end;
}

void c_file::seek(std::int64_t position) {
    if (_lseeki64(m_descriptor, position, SEEK_SET) < 0) fail();
}

std::size_t c_file::read(char* buffer, std::size_t count) {
    std::size_t done = 0;
    while (done < count) {
        const int got = _read(m_descriptor, buffer + done, piece(count - done));
        if (got < 0) fail();
        if (got == 0) break;
        done += static_cast<std::size_t>(got);
    }
    return done;
}

void c_file::write(const char* data, std::size_t count) {
    while (count > 0) {
        const int put = _write(m_descriptor, data, piece(count));
        if (put < 0) fail();
        if (put == 0) throw CZipException(ENOSPC, m_path);
        data += put;
        count -= static_cast<std::size_t>(put);
    }
}

void c_file::truncate(std::int64_t size) {
    if (_chsize_s(m_descriptor, size) != 0) throw CZipException(zip_truncate_failed, m_path);
}

void c_file::close() {
    if (_close(std::exchange(m_descriptor, -1)) < 0) fail();
}

void c_file::abandon() noexcept {
    if (is_open()) _close(std::exchange(m_descriptor, -1));
}

std::optional<s_file_status> get_file_status(const std::u16string& path) {
    const std::optional<std::filesystem::path> system_path = lmx::to_path(path);
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!system_path || GetFileAttributesExW(system_path->c_str(), GetFileExInfoStandard, &data) == 0) {
        return std::nullopt;
    }
    s_file_status status;
    status.is_directory = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    // What files and folders have on systems with modes, where nobody asks for more.
    status.mode = status.is_directory ? 040755 : 0100644;
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0) status.mode &= ~0222U;
    status.modified = to_time(data.ftLastWriteTime);
    status.size = std::uint64_t{data.nFileSizeHigh} << 32U | data.nFileSizeLow;
    return status;
}

bool set_file_status(const std::u16string& path, std::uint32_t permissions, std::time_t modified) {
    const std::optional<std::filesystem::path> system_path = lmx::to_path(path);
    if (!system_path || !set_modified(system_path->c_str(), modified)) return false;
    const DWORD before = GetFileAttributesW(system_path->c_str());
    if (before == INVALID_FILE_ATTRIBUTES) return false;
    const bool is_writable = (permissions & 0200U) != 0;
    const DWORD after = is_writable ? before & ~DWORD{FILE_ATTRIBUTE_READONLY} : before | FILE_ATTRIBUTE_READONLY;
    return SetFileAttributesW(system_path->c_str(), after) != 0;
}

std::u16string without_drive(const std::u16string& path) {
    std::size_t begin = path.starts_with(u"//?/") || path.starts_with(u"//./") ? 4 : 0;
    if (path.size() >= begin + 2 && path[begin + 1] == u':') begin += 2;
    return path.substr(begin);
}

}  // namespace zip
