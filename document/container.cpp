// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "document/container.h"

#include <cstdint>

#include "lmx/large_memory.h"
#include "zip/container.h"

namespace com_vyrgraph_v2 {
namespace {

constexpr std::uint16_t k_deflate = 8;

void require(bool is_met, const std::u16string& path) {
    if (!is_met) throw CZipException(zip_generic, path);
}

std::unique_ptr<char[]> make_buffer(std::size_t size) {
    auto buffer = std::make_unique_for_overwrite<char[]>(size);
    lmx::wish_for_large_pages(buffer.get(), size);
    return buffer;
}

}  // namespace

s_document_bytes read_first_entry(CZipContainer& archive, const std::u16string& path) {
    require(archive.OpenEntry(0) && archive.IsSizePossible(0), path);

    const std::size_t size = archive.GetEntryHeader(0)->uncompressed_size;
    s_document_bytes bytes{make_buffer(size), size};
    require(archive.ReadEntry(bytes.data.get(), size) == size, path);
    char one_more = 0;
    require(archive.ReadEntry(&one_more, 1) == 0, path);
    require(archive.CloseEntry() == 1, path);
    archive.CloseContainer(zip_close_normal);
    return bytes;
}

void write_only_entry(CZipContainer& archive, const std::u16string& path, std::int64_t size) {
    archive.SetCompressionMethod(k_deflate);
    require(archive.AddFileEntry(path), path);
    require(archive.GetEntryHeader(0)->uncompressed_size == size, path);
    archive.CloseContainer(zip_close_normal);
}

}  // namespace com_vyrgraph_v2
