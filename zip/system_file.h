// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What each operating system gives to `file.cpp`: calls on descriptors that leave their cause in `errno`, without
/// being ended by a signal, and the status of a file.

#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <optional>

#include "zip/file.h"

namespace zip::system_file {

enum class open_mode {
    existing,  ///< for reading
    emptied    ///< for both, created if there is none
};

// Negative numbers are failures.
int open(const std::filesystem::path& path, open_mode mode);
std::int64_t seek(int descriptor, std::int64_t position);
std::int64_t seek_end(int descriptor);
/// At most `count` bytes, at least one; 0 at the end of the file.
std::int64_t read(int descriptor, char* buffer, std::size_t count);
std::int64_t write(int descriptor, const char* data, std::size_t count);
bool truncate(int descriptor, std::int64_t size);
/// The descriptor is gone also when this fails.
int close(int descriptor);

std::optional<s_file_status> get_status(const std::filesystem::path& path);
bool set_status(const std::filesystem::path& path, std::uint32_t permissions, std::time_t modified);

}  // namespace zip::system_file
