// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The records of an archive in their stored form: numbers with the low byte first, without gaps.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "zip/entry_header.h"

namespace zip {

inline constexpr std::string_view k_local_signature = "PK\3\4";
inline constexpr std::string_view k_central_signature = "PK\1\2";
inline constexpr std::string_view k_end_signature = "PK\5\6";
inline constexpr std::string_view k_descriptor_signature = "PK\7\10";
inline constexpr std::string_view k_zip64_locator_signature = "PK\6\7";

/// Lengths of the records with their signatures, without the texts that follow them.
inline constexpr std::size_t k_local_size = 30;
inline constexpr std::size_t k_central_size = 46;
inline constexpr std::size_t k_end_size = 22;
/// The check sum and the two sizes: in a local header from this place on, and in a data descriptor.
inline constexpr std::size_t k_sums_offset = 14;
inline constexpr std::size_t k_sums_size = 12;

/// Sizes and offsets have 32 bits, and the highest number says that a greater one stands elsewhere.
inline constexpr std::uint64_t k_size_limit = 0xFFFFFFFE;

/// The longest text that a record's length can announce.
inline constexpr std::size_t k_text_limit = 0xFFFF;

/// A record that says what follows it.
struct s_text_lengths {
    std::uint16_t name = 0;
    std::uint16_t extra = 0;
    std::uint16_t comment = 0;
};

/// The end of the central directory, which is where an archive is read from.
struct s_end_record {
    std::uint16_t disk = 0;
    std::uint16_t directory_disk = 0;
    std::uint16_t entries_on_disk = 0;
    std::uint16_t entries = 0;
    std::uint32_t directory_size = 0;
    std::uint32_t directory_offset = 0;
    std::uint16_t comment_length = 0;
};

/// Take the bytes of a whole record; its signature was looked at before.
void parse(const char* bytes, CZipEntryHeader& header, s_text_lengths& lengths);
void parse_local(const char* bytes, CZipEntryHeader& header, s_text_lengths& lengths);
void parse(const char* bytes, s_end_record& end);
/// A field that passes the end of the data ends the list.
std::vector<CZipExtraField> parse_extra(std::string_view data);

/// With the name behind the record; entries are written without extra data and comments.
std::string print_central(const CZipEntryHeader& header);
std::string print_local(const CZipEntryHeader& header);
std::string print_sums(const CZipEntryHeader& header);
std::string print(const s_end_record& end);

/// A 32-bit number of a field's data.
std::uint32_t number_at(std::string_view data, std::size_t position);

}  // namespace zip
