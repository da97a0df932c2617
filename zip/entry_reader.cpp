// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "zip/entry_reader.h"

#include <algorithm>
#include <string_view>

#include "zip/exception.h"
#include "zip/records.h"
#include "zip/storage.h"

namespace zip {
namespace {

/// Check sums are taken of pieces that are still in the cache.
constexpr std::size_t k_piece_size = 16 * k_block_size;

bool agree(const CZipEntryHeader& local, const CZipEntryHeader& central) {
    constexpr unsigned compared_flags = 0x0F;
    if ((local.flags & compared_flags) != (central.flags & compared_flags)) return false;
    if (local.method != central.method) return false;
    return local.HasDataDescriptor() || print_sums(local) == print_sums(central);
}

}  // namespace

c_entry_reader::c_entry_reader(c_storage& storage, CZipEntryHeader& header, std::int64_t archive_start)
    : m_storage(storage), m_header(header), m_original_left(header.uncompressed_size) {
    m_position = archive_start + header.local_header_offset;
    char bytes[k_local_size];
    m_position = storage.read_record(m_position, bytes, sizeof bytes);
    if (!std::string_view(bytes, sizeof bytes).starts_with(k_local_signature)) storage.fail(zip_bad_structure);
    CZipEntryHeader local;
    s_text_lengths lengths;
    parse_local(bytes, local, lengths);
    if (header.disk_number_start != 0 || !agree(local, header)) storage.fail(zip_bad_structure);

    std::string extra(lengths.extra, '\0');
    m_position = storage.read_record(m_position + lengths.name, extra.data(), extra.size());
    header.local_extra = parse_extra(extra);
    m_data_end = m_position + header.compressed_size;
    if (m_data_end > storage.size()) storage.fail(zip_bad_structure);
    if (header.IsEncrypted()) storage.fail(zip_encrypted);
    m_codec = make_decompressor(header.method);
    m_block.resize(k_block_size);
}

void c_entry_reader::refill() {
    const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(m_data_end - m_position, k_block_size));
    m_flow.in = m_block.data();
    m_flow.in_left = m_storage.read_at(m_position, m_block.data(), wanted);
    // A file that has become shorter meanwhile has no more bytes than these.
    m_position = m_flow.in_left < wanted ? m_data_end : m_position + static_cast<std::int64_t>(wanted);
}

std::size_t c_entry_reader::read(char* buffer, std::size_t count) {
    std::size_t done = 0;
    while (done < count && !m_has_ended) {
        if (m_flow.in_left == 0 && m_position < m_data_end) refill();
        const std::size_t input = m_flow.in_left;
        m_flow.out = buffer + done;
        m_flow.out_left = std::min(count - done, k_piece_size);
        m_has_ended = step(*m_codec, m_flow, m_position == m_data_end, m_storage.path());
        const std::string_view made(buffer + done, static_cast<std::size_t>(m_flow.out - (buffer + done)));
        m_crc = crc32_of(m_crc, made);
        done += made.size();
        // The data stop before their stream does.
        if (made.empty() && m_flow.in_left == input && m_position == m_data_end) break;
    }
    m_original_left -= std::min<std::uint64_t>(m_original_left, done);
    return done;
}

void c_entry_reader::verify() {
    if (is_complete() && m_crc != m_header.crc32) m_storage.fail(zip_bad_crc);
    if (!m_header.HasDataDescriptor()) return;
    char sums[k_sums_size];
    std::int64_t position = m_storage.read_record(m_data_end, sums, k_descriptor_signature.size());
    // The signature is a custom, not a rule.
    if (!std::string_view(sums, sizeof sums).starts_with(k_descriptor_signature)) position = m_data_end;
    m_storage.read_record(position, sums, sizeof sums);
    if (std::string_view(sums, sizeof sums) != print_sums(m_header)) m_storage.fail(zip_bad_structure);
}

}  // namespace zip
