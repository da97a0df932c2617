// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The archive's file as the container uses it: reading at a place, writing at the end, patching.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "zip/file.h"

namespace zip {

/// The unit of reading and writing, in bytes.
inline constexpr std::size_t k_block_size = 65536;

/// Writes are collected in a block; reads go to the file, so one storage is used for one of both at a time.
class c_storage {
public:
    void open(const std::u16string& path);
    void create(const std::u16string& path);
    const std::u16string& path() const { return m_file.path(); }
    /// Throws the cause with the file's name.
    [[noreturn]] void fail(int cause) const;

    /// Of a file open for reading: its size when it was opened. For writing: where the next byte goes.
    std::int64_t size() const { return m_size; }

    /// Fewer bytes than asked for only at the end of the file.
    std::size_t read_at(std::int64_t position, char* buffer, std::size_t count);
    /// Reads a record at its full length and returns the place behind it; anything less is a damaged structure.
    std::int64_t read_record(std::int64_t position, char* buffer, std::size_t count);
    /// The last place of the text in [begin, end), or -1; looked for block by block from the end.
    std::int64_t find_last(std::string_view text, std::int64_t begin, std::int64_t end);

    void append(std::string_view data);
    /// Writes over bytes that were appended before, and goes back to the end.
    void overwrite(std::int64_t position, std::string_view data);
    /// Drops what was appended from that place on.
    void cut(std::int64_t position);

    /// Writes what is collected and closes the file; throws if either fails.
    void close();
    /// Closes the file without writing anything more.
    void abandon() noexcept;

private:
    void flush();

    c_file m_file;
    std::vector<char> m_pending;
    std::int64_t m_size = 0;
    bool m_is_writable = false;
};

}  // namespace zip
