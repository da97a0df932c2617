// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "zip/storage.h"

#include <algorithm>

#include "zip/exception.h"

namespace zip {

void c_storage::fail(int cause) const { throw CZipException(cause, path()); }

void c_storage::open(const std::u16string& path) {
    m_file.open(path);
    m_is_writable = false;
    m_size = m_file.size();
}

void c_storage::create(const std::u16string& path) {
    m_file.create(path);
    m_is_writable = true;
    m_size = 0;
    m_pending.clear();
    m_pending.reserve(k_block_size);
}

std::size_t c_storage::read_at(std::int64_t position, char* buffer, std::size_t count) {
    m_file.seek(position);
    return m_file.read(buffer, count);
}

std::int64_t c_storage::read_record(std::int64_t position, char* buffer, std::size_t count) {
    // A position beyond the file would be a legal seek.
    const bool is_inside = position >= 0 && position <= m_size;
    if (!is_inside || read_at(position, buffer, count) != count) fail(zip_bad_structure);
    return position + static_cast<std::int64_t>(count);
}

std::int64_t c_storage::find_last(std::string_view text, std::int64_t begin, std::int64_t end) {
    std::vector<char> block(k_block_size);
    while (end - begin >= static_cast<std::int64_t>(text.size())) {
        const auto count = static_cast<std::size_t>(std::min<std::int64_t>(end - begin, k_block_size));
        const std::int64_t start = end - static_cast<std::int64_t>(count);
        const std::string_view bytes(block.data(), read_at(start, block.data(), count));
        const std::size_t found = bytes.rfind(text);
        if (found != bytes.npos) return start + static_cast<std::int64_t>(found);
        if (start == begin) break;
        // A text across the border lies in the next block as a whole.
        end = start + static_cast<std::int64_t>(text.size()) - 1;
    }
    return -1;
}

void c_storage::append(std::string_view data) {
    m_size += static_cast<std::int64_t>(data.size());
    while (!data.empty()) {
        const std::size_t count = std::min(data.size(), k_block_size - m_pending.size());
        m_pending.insert(m_pending.end(), data.begin(), data.begin() + static_cast<std::ptrdiff_t>(count));
        data.remove_prefix(count);
        if (m_pending.size() == k_block_size) flush();
    }
}

void c_storage::flush() {
    m_file.write(m_pending.data(), m_pending.size());
    m_pending.clear();
}

void c_storage::overwrite(std::int64_t position, std::string_view data) {
    flush();
    m_file.seek(position);
    m_file.write(data.data(), data.size());
    m_file.seek(m_size);
}

void c_storage::cut(std::int64_t position) {
    flush();
    m_file.truncate(position);
    m_file.seek(position);
    m_size = position;
}

void c_storage::close() {
    if (m_is_writable) flush();
    m_file.close();
}

void c_storage::abandon() noexcept { m_file.abandon(); }

}  // namespace zip
