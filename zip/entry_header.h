// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What an archive says of one entry.

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "lmx/export.h"

/// A field of an entry's extra data: an identifier and the bytes that belong to it.
struct CZipExtraField {
    std::uint16_t id = 0;
    std::string data;
};

/// The header of one entry, as the central directory holds it. Numbers stand as they were read: they are the words of
/// whoever made the archive.
struct VYR_EXPORT CZipEntryHeader {
    /// Low byte: version times ten; high byte: the host system whose attributes these are.
    std::uint16_t version_made_by = 0;
    std::uint16_t version_needed = 0;
    /// Bit 0: encrypted; bit 3: check sum and sizes follow the data; bits 1 and 2: the deflate option.
    std::uint16_t flags = 0;
    /// 0: stored, 8: deflate, 12: bzip2.
    std::uint16_t method = 0;
    /// Hours from bit 11, minutes from bit 5, seconds divided by two.
    std::uint16_t time = 0;
    /// Years since 1980 from bit 9, the month from bit 5, the day.
    std::uint16_t date = 0;
    /// CRC-32 of the uncompressed data.
    std::uint32_t crc32 = 0;
    std::uint32_t compressed_size = 0;
    std::uint32_t uncompressed_size = 0;
    std::uint16_t disk_number_start = 0;
    std::uint16_t internal_attributes = 0;
    /// Low byte: DOS attributes; high half: the Unix mode.
    std::uint32_t external_attributes = 0;
    /// Where the local header stands, counted from the start of the archive.
    std::uint32_t local_header_offset = 0;
    /// As stored; see `GetFileName`.
    std::string file_name;
    std::vector<CZipExtraField> central_extra;
    /// Known once the entry has been opened.
    std::vector<CZipExtraField> local_extra;
    std::string comment;
    /// 0: the standard method; 255: none.
    std::uint8_t encryption_method = 255;
    /// 1: the code page of DOS; 0: that of the system; others by their number.
    std::uint32_t name_code_page = 0;
    std::uint32_t comment_code_page = 0;

    /// 0: DOS and Windows, 3: Unix; the high byte of `version_made_by`.
    std::uint8_t GetHostSystem() const { return static_cast<std::uint8_t>(version_made_by >> 8U); }
    bool IsEncrypted() const { return (flags & 1U) != 0; }
    bool HasDataDescriptor() const { return (flags & 8U) != 0; }
    /// The name with "/" between folders. Whatever code page is named, bytes that are valid UTF-8 are taken for that,
    /// others for ISO-8859-1, byte by byte.
    std::u16string GetFileName() const;
};
