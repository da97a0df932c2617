// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Writing one entry: the header, the compressed bytes of a file, and the header's sums once they are known.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "zip/add_request.h"
#include "zip/codec.h"
#include "zip/entry_header.h"

namespace zip {

class c_storage;
struct s_file_status;

/// The header of the entry that a request asks for, apart from what the compression decides. `index` is the entry's
/// number, `host` the system whose attributes the archive keeps.
CZipEntryHeader make_header(const CZipAddRequest& request, const s_file_status& status, std::size_t index,
                            std::uint8_t host);

/// An entry being written at the end of an archive.
class c_entry_writer {
public:
    c_entry_writer(c_storage& storage, const CZipEntryHeader& header);

    /// Writes the entry of a file, deflated or by bzip2; level 0 stores it.
    void add_file(const CZipAddRequest& request, std::uint16_t method, int level);
    /// Writes the entry of a folder, which has no data.
    void add_folder();
    const CZipEntryHeader& header() const { return m_header; }

private:
    void start(std::uint16_t method, int level, std::uint16_t version_needed);
    void copy(const CZipAddRequest& request, std::string* memory);
    void pump(std::string_view data, bool is_last, std::string* memory);
    void finish();

    c_storage& m_storage;
    CZipEntryHeader m_header;
    std::int64_t m_position;
    std::unique_ptr<c_codec> m_codec;
    std::vector<char> m_block;
    std::uint32_t m_crc = 0;
    std::uint64_t m_stored_size = 0;
    std::uint64_t m_original_size = 0;
};

}  // namespace zip
