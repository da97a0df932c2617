// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "document/container.h"

#if defined(__linux__)
#include <sys/mman.h>
#endif

#include <cstdint>

#include "zip/container.h"

namespace com_vyrgraph_v2 {
namespace {

constexpr std::uint16_t k_deflate = 8;

void require(bool is_met, const std::u16string& path) {
    if (!is_met) throw CZipException(zip_generic, path);
}

/// Memory for bytes that are about to be filled. The system hands out pages at their first touch, which costs more
/// than the check sum of what is written there; in large pages it costs a tenth.
std::unique_ptr<char[]> make_buffer(std::size_t size) {
    auto buffer = std::make_unique_for_overwrite<char[]>(size);
#if defined(__linux__)
    constexpr std::size_t large_page = std::size_t{2} << 20U;
    const auto begin = reinterpret_cast<std::uintptr_t>(buffer.get());
    const std::uintptr_t aligned = (begin + large_page - 1) / large_page * large_page;
    const std::size_t skipped = aligned - begin;
    // A wish: nothing depends on whether the system grants it.
    if (size >= skipped + large_page) madvise(buffer.get() + skipped, size - skipped, MADV_HUGEPAGE);
#endif
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
