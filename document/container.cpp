// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "document/container.h"

#include <algorithm>

#include "zip/container.h"

namespace com_vyrgraph_v2 {
namespace {

constexpr std::uint16_t k_deflate = 8;
constexpr std::uint16_t k_bzip2 = 12;
/// Bzip2 makes a gigabyte of a thousand bytes, so its data, not its header, decides how far the memory grows from
/// here.
constexpr std::size_t k_first_capacity = std::size_t{1} << 20U;

void require(bool is_met, const std::u16string& path) {
    if (!is_met) throw CZipException(zip_generic, path);
}

}  // namespace

s_document_bytes read_first_entry(CZipContainer& archive, const std::u16string& path) {
    archive.OpenEntry(0);
    const CZipEntryHeader* const header = archive.GetEntryHeader(0);
    require(header != nullptr && archive.IsSizePossible(0), path);

    const std::size_t size = header->uncompressed_size;
    std::size_t capacity = header->method == k_bzip2 ? std::min(size, k_first_capacity) : size;
    s_document_bytes bytes{std::make_unique_for_overwrite<char[]>(capacity), 0};
    bytes.size = archive.ReadEntry(bytes.data.get(), capacity);
    while (bytes.size == capacity && capacity < size) {
        capacity = std::min(size, 2 * capacity);
        auto larger = std::make_unique_for_overwrite<char[]>(capacity);
        std::copy_n(bytes.data.get(), bytes.size, larger.get());
        bytes.data = std::move(larger);
        bytes.size += archive.ReadEntry(bytes.data.get() + bytes.size, capacity - bytes.size);
    }
    require(bytes.size == size, path);
    char one_more = 0;
    require(archive.ReadEntry(&one_more, 1) == 0, path);
    require(archive.CloseEntry() == 1, path);
    archive.CloseContainer(zip_close_normal);
    return bytes;
}

void write_only_entry(CZipContainer& archive, const std::u16string& path) {
    archive.SetCompressionMethod(k_deflate);
    require(archive.AddFileEntry(path), path);
    archive.CloseContainer(zip_close_normal);
}

}  // namespace com_vyrgraph_v2
