// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What a file is added to an archive with.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// Bits of `CZipAddRequest::options`. The first two concern passwords, which aren't used here.
enum EZipAddOption : unsigned {
    zip_no_encryption_of_folders = 1,
    zip_no_encryption_of_empty_files = 2,
    zip_store_tiny = 4,       ///< a source of fewer than 5 bytes is stored: it can't shrink
    zip_try_in_file = 8,      ///< compressed in the archive; stored anew if that made it no smaller
    zip_try_in_memory = 0x10  ///< the same, compressed in memory first
};

/// One file to add.
struct CZipAddRequest {
    std::u16string source_path;
    /// Empty: made from the source's path.
    std::u16string name_in_archive;
    /// Whether that name keeps the folders of the path.
    bool keep_full_path = false;
    /// 0xFFFF adds at the end, which is all that a new archive offers.
    std::uint16_t replace_index = 0xFFFF;
    /// 1 (fast) to 9 (small), 0 stores, -1 is the compression library's own choice.
    int level = -1;
    unsigned options = zip_no_encryption_of_folders | zip_no_encryption_of_empty_files | zip_store_tiny;
    /// The unit in which the source is read, in bytes.
    std::size_t buffer_size = 65536;
};
