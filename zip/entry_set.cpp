// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "zip/entry_set.h"

#include <algorithm>
#include <cerrno>

#include "zip/exception.h"
#include "zip/records.h"
#include "zip/storage.h"

namespace {

using namespace zip;

bool has_at(c_storage& storage, std::int64_t position, std::string_view signature) {
    char bytes[k_central_signature.size()];
    return position >= 0 && storage.read_at(position, bytes, sizeof bytes) == sizeof bytes &&
           std::string_view(bytes, sizeof bytes) == signature;
}

std::string read_text(c_storage& storage, std::int64_t position, std::size_t length) {
    std::string text(length, '\0');
    storage.read_record(position, text.data(), length);
    return text;
}

std::int64_t find_end_record(c_storage& storage) {
    const std::int64_t begin =
        std::max<std::int64_t>(0, storage.size() - static_cast<std::int64_t>(k_end_size + k_text_limit));
    const std::int64_t position = storage.find_last(k_end_signature, begin, storage.size());
    if (position < 0) storage.fail(zip_no_end_record);
    return position;
}

/// Numbers with all bits set stand for greater ones elsewhere, if the locator of that place stands ahead.
void refuse_zip64(c_storage& storage, const s_end_record& end, std::int64_t end_position) {
    const bool is_full = end.disk == 0xFFFF || end.directory_disk == 0xFFFF || end.entries_on_disk == 0xFFFF ||
                         end.entries == 0xFFFF || end.directory_size == 0xFFFFFFFF ||
                         end.directory_offset == 0xFFFFFFFF;
    if (!is_full) return;
    const std::int64_t begin = std::max<std::int64_t>(0, end_position - static_cast<std::int64_t>(k_block_size));
    if (storage.find_last(k_zip64_locator_signature, begin, end_position) >= 0) storage.fail(zip_zip64_unsupported);
}

/// What writers that know of code pages add to a central header.
constexpr std::uint16_t k_code_page_field = 0x5A4C;
enum e_code_page_flag : std::uint8_t { has_name_page = 1, has_name = 2, has_comment_page = 4 };

/// False if the field is too short for what it announces, or of a version that isn't known.
bool take_code_pages(const std::string& data, CZipEntryHeader& header) {
    constexpr std::size_t head_size = 2;
    constexpr std::size_t page_size = 4;
    if (data.size() < head_size || static_cast<unsigned char>(data[0]) >= 2) return false;
    const auto flags = static_cast<unsigned char>(data[1]);
    std::size_t begin = head_size;
    std::size_t end = data.size();
    if ((flags & has_comment_page) != 0) {
        if (end < begin + page_size) return false;
        end -= page_size;
        header.comment_code_page = number_at(data, end);
    }
    if ((flags & has_name_page) != 0) {
        if (end < begin + page_size) return false;
        header.name_code_page = number_at(data, begin);
        begin += page_size;
        if ((flags & has_name) != 0) header.file_name = data.substr(begin, end - begin);
    }
    return true;
}

}  // namespace

void CZipEntrySet::Read(c_storage& storage) {
    Clear();
    const std::int64_t end_position = find_end_record(storage);
    char bytes[k_end_size];
    const std::int64_t comment_position = storage.read_record(end_position, bytes, sizeof bytes);
    s_end_record end;
    parse(bytes, end);
    // The comment means nothing here, but it has to be there.
    read_text(storage, comment_position, end.comment_length);
    refuse_zip64(storage, end, end_position);
    // One file is one disk: the others of a split archive can't be asked for.
    if (end.disk != 0 || end.directory_disk != 0) storage.fail(zip_bad_structure);
    if (end.entries == 0) return;

    // The directory ends where the end record starts, so foreign bytes ahead of the archive show as a difference.
    const std::int64_t offset = end.directory_offset;
    m_start = end_position - end.directory_size - offset;
    if (m_start < 0 || !has_at(storage, m_start + offset, k_central_signature)) m_start = 0;
    ReadHeaders(storage, m_start + offset, end_position, end.entries);
}

void CZipEntrySet::ReadHeaders(c_storage& storage, std::int64_t position, std::int64_t end, std::size_t count) {
    if (static_cast<std::int64_t>(count * k_central_size) > end - position) storage.fail(zip_bad_structure);
    m_headers.reserve(count);
    while (m_headers.size() < count) {
        char bytes[k_central_size];
        position = storage.read_record(position, bytes, sizeof bytes);
        if (!std::string_view(bytes, sizeof bytes).starts_with(k_central_signature)) storage.fail(zip_bad_structure);
        CZipEntryHeader header;
        s_text_lengths lengths;
        parse(bytes, header, lengths);
        const std::size_t length = std::size_t{lengths.name} + lengths.extra + lengths.comment;
        if (position + static_cast<std::int64_t>(length) > end) storage.fail(zip_bad_structure);
        const std::string texts = read_text(storage, position, length);
        position += static_cast<std::int64_t>(length);

        header.file_name = texts.substr(0, lengths.name);
        header.central_extra = parse_extra(std::string_view(texts).substr(lengths.name, lengths.extra));
        header.comment = texts.substr(std::size_t{lengths.name} + lengths.extra);
        header.encryption_method = header.IsEncrypted() ? 0 : 255;
        header.name_code_page = header.comment_code_page = header.GetHostSystem() == 0 ? 1 : 0;
        for (const CZipExtraField& field : header.central_extra) {
            if (field.id == k_code_page_field && !take_code_pages(field.data, header))
                storage.fail(zip_bad_structure);
        }
        m_headers.push_back(std::move(header));
    }
}

void CZipEntrySet::Write(c_storage& storage) const {
    const std::int64_t offset = storage.size();
    for (const CZipEntryHeader& header : m_headers) storage.append(print_central(header));
    const std::int64_t size = storage.size() - offset;
    if (static_cast<std::uint64_t>(std::max(offset, size)) > k_size_limit) storage.fail(EFBIG);
    s_end_record end;
    end.entries = end.entries_on_disk = static_cast<std::uint16_t>(m_headers.size());
    end.directory_offset = static_cast<std::uint32_t>(offset);
    end.directory_size = static_cast<std::uint32_t>(size);
    storage.append(print(end));
}
