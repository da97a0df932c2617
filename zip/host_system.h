// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What depends on the system that an archive was made on: file attributes and times.

#pragma once

#include <cstdint>
#include <ctime>

#include "zip/entry_header.h"

namespace zip {

/// Systems by the numbers that archives give them.
enum e_host : std::uint8_t { host_dos = 0, host_unix = 3 };

/// Whether attributes of that system can be read.
bool is_known_host(std::uint8_t host);

/// The attributes of an entry made for DOS or for Unix: the Unix mode in the high half, and below it what DOS knows.
std::uint32_t external_attributes(std::uint8_t host, std::uint32_t mode, bool is_directory);
/// The Unix permissions of an entry of a known host.
std::uint32_t permissions_of(const CZipEntryHeader& header);

/// Local time in steps of two seconds; a time that can't be told so becomes the start of 1980.
void set_dos_time(CZipEntryHeader& header, std::time_t time);
std::time_t time_of(const CZipEntryHeader& header);

}  // namespace zip
