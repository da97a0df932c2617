// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Reading one entry: its local header against the central one, its data, and what has to fit at the end.

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "zip/codec.h"
#include "zip/entry_header.h"

namespace zip {

class c_storage;

/// An entry open for reading. The storage and the header outlive it.
class c_entry_reader {
public:
    /// Reads the local header of an entry of the archive that starts at `archive_start`, and leaves its extra fields
    /// in the header. Headers that differ, data that pass the file's end and encrypted data are a `CZipException`.
    c_entry_reader(c_storage& storage, CZipEntryHeader& header, std::int64_t archive_start);

    /// Without it there is nothing to read with.
    bool has_known_method() const { return m_codec != nullptr; }
    std::size_t read(char* buffer, std::size_t count);
    /// Whether as many bytes were delivered as the header says, or more.
    bool is_complete() const { return m_original_left == 0; }
    /// Compares the check sum, if all was read, and the record behind the data, if there is one.
    void verify();

private:
    void refill();

    c_storage& m_storage;
    const CZipEntryHeader& m_header;
    std::unique_ptr<c_codec> m_codec;
    std::vector<char> m_block;
    s_flow m_flow;
    std::int64_t m_position = 0;
    std::int64_t m_data_end = 0;
    std::uint64_t m_original_left;
    std::uint32_t m_crc = 0;
    bool m_has_ended = false;
};

}  // namespace zip
