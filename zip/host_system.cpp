// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "zip/host_system.h"

#include <algorithm>
#include <iterator>

namespace zip {
namespace {

enum e_attribute : std::uint32_t { read_only = 0x01, directory = 0x10, archive = 0x20 };

// Windows (10 and 14) keeps attributes like DOS, macOS (19) like Unix.
constexpr std::uint8_t k_like_dos[] = {host_dos, 10, 14};
constexpr std::uint8_t k_like_unix[] = {host_unix, 19};

template <typename t_hosts>
bool is_one_of(const t_hosts& hosts, std::uint8_t host) {
    return std::find(std::begin(hosts), std::end(hosts), host) != std::end(hosts);
}

constexpr int k_first_year = 1980;
constexpr int k_last_year = k_first_year + 127;

bool to_local(std::time_t time, std::tm& local) {
#if defined(_WIN32)
    return localtime_s(&local, &time) == 0;
#else
    return localtime_r(&time, &local) != nullptr;
#endif
}

std::uint16_t word(int value) { return static_cast<std::uint16_t>(value); }

}  // namespace

bool is_known_host(std::uint8_t host) { return is_one_of(k_like_dos, host) || is_one_of(k_like_unix, host); }

std::uint32_t external_attributes(std::uint8_t host, std::uint32_t mode, bool is_directory) {
    const std::uint32_t high = mode << 16U;
    if (host == host_unix) return high | (is_directory ? directory : 0U);
    return high | (is_directory ? directory : archive);
}

std::uint32_t permissions_of(const CZipEntryHeader& header) {
    const std::uint32_t mode = header.external_attributes >> 16U & 07777U;
    if (mode != 0 || is_one_of(k_like_unix, header.GetHostSystem())) return mode;
    return (header.external_attributes & read_only) != 0 ? 0444 : 0644;
}

void set_dos_time(CZipEntryHeader& header, std::time_t time) {
    header.date = 1 << 5 | 1;
    header.time = 0;
    std::tm local{};
    if (!to_local(time, local)) return;
    const int year = local.tm_year + 1900;
    if (year > k_last_year) return;
    header.date = word(std::max(year - k_first_year, 0) << 9 | (local.tm_mon + 1) << 5 | local.tm_mday);
    header.time = word(local.tm_hour << 11 | local.tm_min << 5 | local.tm_sec / 2);
}

std::time_t time_of(const CZipEntryHeader& header) {
    std::tm local{};
    local.tm_year = (header.date >> 9) + k_first_year - 1900;
    local.tm_mon = (header.date >> 5 & 15) - 1;
    local.tm_mday = header.date & 31;
    local.tm_hour = header.time >> 11;
    local.tm_min = header.time >> 5 & 63;
    local.tm_sec = (header.time & 31) * 2;
    local.tm_isdst = -1;
    return std::mktime(&local);
}

}  // namespace zip
