// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The central directory: the headers of all entries, and the record at the archive's end that leads to them.

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "zip/entry_header.h"

namespace zip {
class c_storage;
struct s_end_record;
}  // namespace zip

/// The entries of an archive in the order of its directory.
class CZipEntrySet {
public:
    /// Reads the directory. An archive that isn't one, that lies about it, or that needs Zip64, is a `CZipException`.
    void Read(zip::c_storage& storage);
    /// Appends the directory and the end record.
    void Write(zip::c_storage& storage) const;
    void Clear() { *this = CZipEntrySet(); }

    std::size_t GetCount() const { return m_headers.size(); }
    /// Null if there is no such entry.
    CZipEntryHeader* Get(std::size_t index) { return index < m_headers.size() ? &m_headers[index] : nullptr; }
    void Add(const CZipEntryHeader& header) { m_headers.push_back(header); }

    /// Where offsets of the archive count from: not 0 if foreign bytes stand ahead of it.
    std::int64_t GetStart() const { return m_start; }

private:
    void ReadHeaders(zip::c_storage& storage, std::int64_t position, std::int64_t end, std::size_t count);

    std::vector<CZipEntryHeader> m_headers;
    std::int64_t m_start = 0;
};
