// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Descriptors are those of the C runtime, so that causes are `errno` values as elsewhere; names are wide throughout.

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "zip/system_file.h"

static_assert(sizeof(std::time_t) == 8, "the times of files must not end in 2038");

namespace zip {
namespace system_file {
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

/// Opens a file or folder, or what a link leads to, for its attributes, and hands it to a call. False if either
/// fails.
template <class t_call>
bool with_attributes(const wchar_t* path, DWORD access, t_call call) {
    // With this flag folders can be opened as well.
    const HANDLE file = CreateFileW(path, access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    const bool is_done = call(file) != 0;
    CloseHandle(file);
    return is_done;
}

}  // namespace

int open(const std::filesystem::path& path, open_mode mode) {
    const int flags = mode == open_mode::existing ? _O_RDONLY : _O_RDWR | _O_CREAT | _O_TRUNC;
    return _wopen(path.c_str(), flags | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}

std::int64_t seek(int descriptor, std::int64_t position) { return _lseeki64(descriptor, position, SEEK_SET); }

std::int64_t seek_end(int descriptor) { return _lseeki64(descriptor, 0, SEEK_END); }

std::int64_t read(int descriptor, char* buffer, std::size_t count) { return _read(descriptor, buffer, piece(count)); }

std::int64_t write(int descriptor, const char* data, std::size_t count) {
    const int put = _write(descriptor, data, piece(count));
    if (put != 0) return put;
    errno = ENOSPC;
    return -1;
}

bool truncate(int descriptor, std::int64_t size) { return _chsize_s(descriptor, size) == 0; }

int close(int descriptor) { return _close(descriptor); }

std::optional<s_file_status> get_status(const std::filesystem::path& path) {
    BY_HANDLE_FILE_INFORMATION data{};
    const auto ask = [&](HANDLE file) { return GetFileInformationByHandle(file, &data); };
    if (!with_attributes(path.c_str(), FILE_READ_ATTRIBUTES, ask)) return std::nullopt;
    s_file_status status;
    status.is_directory = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    // What files and folders have on systems with modes, where nobody asks for more.
    status.mode = status.is_directory ? 040755 : 0100644;
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0) status.mode &= ~0222U;
    status.modified = to_time(data.ftLastWriteTime);
    status.size = std::uint64_t{data.nFileSizeHigh} << 32U | data.nFileSizeLow;
    return status;
}

bool set_status(const std::filesystem::path& path, std::uint32_t permissions, std::time_t modified) {
    const FILETIME time = to_file_time(modified);
    const auto stamp = [&](HANDLE file) { return SetFileTime(file, nullptr, nullptr, &time); };
    if (!with_attributes(path.c_str(), FILE_WRITE_ATTRIBUTES, stamp)) return false;
    const DWORD before = GetFileAttributesW(path.c_str());
    if (before == INVALID_FILE_ATTRIBUTES) return false;
    const bool is_writable = (permissions & 0200U) != 0;
    const DWORD after = is_writable ? before & ~DWORD{FILE_ATTRIBUTE_READONLY} : before | FILE_ATTRIBUTE_READONLY;
    return SetFileAttributesW(path.c_str(), after) != 0;
}

}  // namespace system_file

std::u16string without_drive(const std::u16string& path) {
    std::size_t begin = path.starts_with(u"//?/") || path.starts_with(u"//./") ? 4 : 0;
    if (path.size() >= begin + 2 && path[begin + 1] == u':') begin += 2;
    return path.substr(begin);
}

}  // namespace zip
