// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/read.h"

#include <algorithm>
#include <cerrno>

#include "lmx/file_name.h"
#include "lmx/values/unicode.h"

namespace lmx {
namespace {

constexpr std::size_t k_block = 512;
constexpr std::size_t k_many_blocks = 128 * k_block;

/// A pipe or a terminal gives its bytes when it has them: no more than a block may be waited for.
bool can_seek(std::FILE* file) {
    const int saved = errno;
    const bool result = std::ftell(file) >= 0;
    errno = saved;
    return result;
}

}  // namespace

c_read::~c_read() = default;

void c_read::give_back(std::size_t) {}

c_read_file::c_read_file(const char* path)
    : m_name(path), m_file(open_for_reading(to_path(std::string_view(path)))) {}

c_read_file::c_read_file(const char16_t* path) : m_file(open_for_reading(to_path(std::u16string_view(path)))) {
    char utf8[5];
    for (; *path != 0; ++path) m_name += unicode_char_to_utf8(*path, utf8);
}

c_read_file::~c_read_file() {
    if (m_close_on_delete) close();
}

void c_read_file::close() {
    if (m_file != nullptr) std::fclose(m_file);
    m_file = nullptr;
}

bool c_read_file::refill() {
    if (m_file == nullptr) return false;
    if (m_buffer == nullptr) {
        const std::size_t size = can_seek(m_file) ? k_many_blocks : k_block;
        m_buffer = std::make_unique_for_overwrite<char[]>(size);
        m_buffer_size = size;
    }
    m_buffer_index = 0;
    // Who gets the file back goes on behind the block in use.
    m_buffer_count = std::fread(m_buffer.get(), 1, m_close_on_delete ? m_buffer_size : k_block, m_file);
    if (m_buffer_count == 0 && std::ferror(m_file) != 0) m_read_error = errno;
    return m_buffer_count > 0;
}

int c_read_file::read() {
    if (m_file == nullptr || (m_buffer_index == m_buffer_count && !refill())) return -1;
    return static_cast<unsigned char>(m_buffer[m_buffer_index++]);
}

std::string_view c_read_file::take_window() {
    if (m_file == nullptr || (m_buffer_index == m_buffer_count && !refill())) return {};
    const std::string_view rest(m_buffer.get() + m_buffer_index, m_buffer_count - m_buffer_index);
    m_buffer_index = m_buffer_count;
    return rest;
}

/// Where the block ends that reading byte by byte would have buffered by now.
std::size_t c_read_file::end_of_block() const {
    return std::min(m_buffer_count, (m_buffer_index + k_block - 1) / k_block * k_block);
}

void c_read_file::rewind() {
    if (m_file == nullptr) return;
    m_buffer_count = end_of_block();
    std::fseek(m_file, 0, SEEK_SET);
}

}  // namespace lmx
