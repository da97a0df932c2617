// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Files of the operating system, which `system_file.h` asks; nothing else of the container does.

#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <optional>
#include <string>

namespace zip {

namespace system_file {
enum class open_mode;
}

/// An open file. Calls that fail throw a `CZipException` with the `errno` and the path.
class c_file {
public:
    c_file() = default;
    c_file(const c_file&) = delete;
    c_file& operator=(const c_file&) = delete;
    ~c_file() { abandon(); }

    void open(const std::u16string& path);
    /// Creates the file, or empties it; it can be read as well.
    void create(const std::u16string& path);
    bool is_open() const { return m_descriptor >= 0; }
    const std::u16string& path() const { return m_path; }

    std::int64_t size();
    void seek(std::int64_t position);
    /// Fewer bytes than asked for only at the end of the file.
    std::size_t read(char* buffer, std::size_t count);
    void write(const char* data, std::size_t count);
    void truncate(std::int64_t size);
    /// The file counts as closed also when this throws.
    void close();
    void abandon() noexcept;

private:
    void open_as(const std::u16string& path, system_file::open_mode mode);
    /// The result of a call, if that isn't negative, which says that it failed.
    template <typename t_number>
    t_number checked(t_number result) const;

    std::u16string m_path;
    int m_descriptor = -1;
};

/// What an archive keeps of a file beside its bytes. The mode is a Unix mode with the type of the file.
struct s_file_status {
    std::uint32_t mode = 0;
    std::time_t modified = 0;
    std::uint64_t size = 0;
    bool is_directory = false;
};

std::optional<s_file_status> get_file_status(const std::u16string& path);
/// Sets the permissions and the time of the last change; false if the system refuses.
bool set_file_status(const std::u16string& path, std::uint32_t permissions, std::time_t modified);

/// The path, with "/" between folders, without the drive or the device prefix that the system's paths may begin with.
std::u16string without_drive(const std::u16string& path);

}  // namespace zip
