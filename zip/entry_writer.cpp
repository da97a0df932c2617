// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "zip/entry_writer.h"

#include <algorithm>
#include <cerrno>

#include "lmx/values/unicode.h"
#include "zip/exception.h"
#include "zip/file.h"
#include "zip/host_system.h"
#include "zip/records.h"
#include "zip/storage.h"

namespace zip {
namespace {

/// Versions are told times ten. The one that wrote is 4.6; the ones needed depend on what an entry uses.
constexpr std::uint16_t k_version_made_by = 46;
constexpr std::uint16_t k_version_of_folders = 10;
constexpr std::uint16_t k_version_of_files = 20;
constexpr std::uint16_t k_version_of_bzip2 = 46;

/// The option bits that tell how hard deflate tried.
std::uint16_t deflate_flags(int level) {
    switch (level) {
        case 1:
            return 6;
        case 2:
            return 4;
        case 8:
        case 9:
            return 2;
        default:
            return 0;
    }
}

/// The path's last part, or all of it without the root; "/" between folders.
std::u16string name_from_path(std::u16string path, bool keep_folders) {
    path = without_drive(path);
    while (path.ends_with(u'/')) path.pop_back();
    const std::size_t root_end = std::min(path.find_first_not_of(u'/'), path.size());
    return path.substr(keep_folders ? root_end : path.rfind(u'/') + 1);
}

}  // namespace

CZipEntryHeader make_header(const CZipAddRequest& request, const s_file_status& status, std::size_t index,
                            std::uint8_t host) {
    CZipEntryHeader header;
    header.version_made_by = static_cast<std::uint16_t>(host << 8U | k_version_made_by);
    set_dos_time(header, status.modified);
    header.external_attributes = external_attributes(host, status.mode, status.is_directory);

    std::u16string source = request.source_path;
    std::replace(source.begin(), source.end(), u'\\', u'/');
    std::u16string name = request.name_in_archive;
    std::replace(name.begin(), name.end(), u'\\', u'/');
    if (name.empty()) name = name_from_path(source, request.keep_full_path);
    lmx::convert(&header.file_name, name);
    if (name.empty()) header.file_name = "file" + std::to_string(index);
    if (status.is_directory && !header.file_name.ends_with('/')) header.file_name += '/';
    return header;
}

c_entry_writer::c_entry_writer(c_storage& storage, const CZipEntryHeader& header)
    : m_storage(storage), m_header(header), m_position(storage.size()), m_block(k_block_size) {
    if (m_header.file_name.size() > k_text_limit) storage.fail(zip_too_long);
    if (static_cast<std::uint64_t>(m_position) > k_size_limit) storage.fail(EFBIG);
    m_header.local_header_offset = static_cast<std::uint32_t>(m_position);
}

void c_entry_writer::start(std::uint16_t method, int level, std::uint16_t version_needed) {
    m_header.method = method;
    m_header.flags = method == method_deflated ? deflate_flags(level) : std::uint16_t{0};
    m_header.version_needed = version_needed;
    m_header.crc32 = m_header.compressed_size = m_header.uncompressed_size = 0;
    m_storage.append(print_local(m_header));
    m_codec = make_compressor(method, level);
    m_crc = 0;
    m_stored_size = m_original_size = 0;
}

void c_entry_writer::add_folder() { start(method_stored, 0, k_version_of_folders); }

void c_entry_writer::add_file(const CZipAddRequest& request, std::uint16_t method, int level) {
    if (level == 0) method = method_stored;
    start(method, level, method == method_bzip2 ? k_version_of_bzip2 : k_version_of_files);
    const bool is_memory_trial = level != 0 && (request.options & zip_try_in_memory) != 0;
    const bool is_trial = is_memory_trial || (level != 0 && (request.options & zip_try_in_file) != 0);
    std::string memory;
    copy(request, is_memory_trial ? &memory : nullptr);
    if (is_trial && m_stored_size >= m_original_size) {
        m_storage.cut(m_position);
        add_file(request, method_stored, 0);
        return;
    }
    m_storage.append(memory);
    finish();
}

void c_entry_writer::copy(const CZipAddRequest& request, std::string* memory) {
    c_file source;
    source.open(request.source_path);
    std::vector<char> buffer(std::max<std::size_t>(request.buffer_size, 1));
    bool is_last = false;
    while (!is_last) {
        const std::size_t count = source.read(buffer.data(), buffer.size());
        is_last = count < buffer.size();
        pump({buffer.data(), count}, is_last, memory);
    }
}

/// Compresses into the archive, or into memory.
void c_entry_writer::pump(std::string_view data, bool is_last, std::string* memory) {
    m_crc = crc32_of(m_crc, data);
    m_original_size += data.size();
    s_flow flow{data.data(), data.size()};
    bool has_ended = false;
    do {
        flow.out = m_block.data();
        flow.out_left = m_block.size();
        has_ended = step(*m_codec, flow, is_last, m_storage.path());
        const std::string_view made(m_block.data(), m_block.size() - flow.out_left);
        m_stored_size += made.size();
        if (std::max(m_original_size, m_stored_size) > k_size_limit) m_storage.fail(EFBIG);
        if (memory != nullptr) {
            memory->append(made);
        } else {
            m_storage.append(made);
        }
    } while (!has_ended && (is_last || flow.in_left > 0 || flow.out_left == 0));
}

void c_entry_writer::finish() {
    m_header.crc32 = m_crc;
    m_header.compressed_size = static_cast<std::uint32_t>(m_stored_size);
    m_header.uncompressed_size = static_cast<std::uint32_t>(m_original_size);
    m_storage.overwrite(m_position + static_cast<std::int64_t>(k_sums_offset), print_sums(m_header));
}

}  // namespace zip
