// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "zip/file.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <utility>

#include "lmx/file_name.h"
#include "zip/exception.h"
#include "zip/system_file.h"

namespace zip {

template <typename t_number>
t_number c_file::checked(t_number result) const {
    if (result < 0) throw CZipException(errno, m_path);
    return result;
}

void c_file::open_as(const std::u16string& path, system_file::open_mode mode) {
    // A name that is no text can't be a file's.
    const std::optional<std::filesystem::path> system_path = lmx::to_path(path);
    if (!system_path) throw CZipException(ENOENT, path);
    m_path = path;
    m_descriptor = checked(system_file::open(*system_path, mode));
}

void c_file::open(const std::u16string& path) { open_as(path, system_file::open_mode::existing); }

void c_file::create(const std::u16string& path) { open_as(path, system_file::open_mode::emptied); }

std::int64_t c_file::size() { return checked(system_file::seek_end(m_descriptor)); }

void c_file::seek(std::int64_t position) { checked(system_file::seek(m_descriptor, position)); }

std::size_t c_file::read(char* buffer, std::size_t count) {
    std::size_t done = 0;
    while (done < count) {
        const auto got =
            static_cast<std::size_t>(checked(system_file::read(m_descriptor, buffer + done, count - done)));
        if (got == 0) break;
        done += got;
    }
    return done;
}

void c_file::write(const char* data, std::size_t count) {
    while (count > 0) {
        const auto put = static_cast<std::size_t>(checked(system_file::write(m_descriptor, data, count)));
        data += put;
        count -= put;
    }
}

void c_file::truncate(std::int64_t size) {
    if (!system_file::truncate(m_descriptor, size)) throw CZipException(zip_truncate_failed, m_path);
}

void c_file::close() { checked(system_file::close(std::exchange(m_descriptor, -1))); }

void c_file::abandon() noexcept {
    if (is_open()) system_file::close(std::exchange(m_descriptor, -1));
}

std::optional<s_file_status> get_file_status(const std::u16string& path) {
    const std::optional<std::filesystem::path> system_path = lmx::to_path(path);
    return system_path ? system_file::get_status(*system_path) : std::nullopt;
}

bool set_file_status(const std::u16string& path, std::uint32_t permissions, std::time_t modified) {
    const std::optional<std::filesystem::path> system_path = lmx::to_path(path);
    return system_path && system_file::set_status(*system_path, permissions, modified);
}

}  // namespace zip
