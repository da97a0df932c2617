// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "zip/container.h"

#include <optional>

#include "zip/codec.h"
#include "zip/entry_reader.h"
#include "zip/entry_set.h"
#include "zip/entry_writer.h"
#include "zip/file.h"
#include "zip/host_system.h"
#include "zip/storage.h"

namespace {

constexpr std::size_t k_entry_limit = 0xFFFF;
constexpr std::uint64_t k_tiny_size = 5;
constexpr std::uint16_t k_at_end = 0xFFFF;

}  // namespace

/// The archive and its open entry; closed if the mode is 0.
struct CZipContainer::s_state {
    zip::c_storage storage;
    CZipEntrySet entries;
    int mode = 0;
    std::uint16_t method = zip::method_deflated;
    std::uint8_t host = zip::host_dos;
    /// At most one of the two stands. A writer that is left over is one that failed.
    std::optional<zip::c_entry_reader> reader;
    std::optional<zip::c_entry_writer> writer;
    std::size_t open_index = 0;

    bool is_entry_open() const { return reader || writer; }
    void abandon() noexcept {
        reader.reset();
        writer.reset();
        storage.abandon();
        entries.Clear();
        mode = 0;
    }
};

CZipContainer::CZipContainer() : m_state(std::make_unique<s_state>()) {}

CZipContainer::~CZipContainer() { m_state->abandon(); }

bool CZipContainer::IsOpen() const { return m_state->mode != 0; }

bool CZipContainer::OpenContainer(const std::u16string& path, int mode, std::uint64_t volume_size) {
    s_state& state = *m_state;
    if (IsOpen()) return false;
    if (volume_size != 0) throw CZipException(zip_misuse, path);
    state.host = zip::host_dos;
    try {
        switch (mode) {
            case zip_open_read:
                state.storage.open(path);
                state.entries.Read(state.storage);
                break;
            case zip_open_create:
                state.storage.create(path);
                break;
            default:
                throw CZipException(zip_misuse, path);
        }
    } catch (...) {
        state.abandon();
        throw;
    }
    state.mode = mode;
    const CZipEntryHeader* const first = GetEntryHeader(0);
    if (first != nullptr && zip::is_known_host(first->GetHostSystem())) state.host = first->GetHostSystem();
    return true;
}

void CZipContainer::CloseContainer(int mode, bool) {
    s_state& state = *m_state;
    if (mode == zip_close_normal && IsOpen()) {
        // An entry that failed half-way must not make a whole-looking archive.
        if (state.writer) state.storage.fail(zip_inconsistent_entry);
        if (state.mode == zip_open_create) state.entries.Write(state.storage);
        state.storage.close();
    }
    state.abandon();
}

std::size_t CZipContainer::GetEntryCount() const { return m_state->entries.GetCount(); }

const CZipEntryHeader* CZipContainer::GetEntryHeader(std::size_t index) const {
    return IsOpen() ? m_state->entries.Get(index) : nullptr;
}

bool CZipContainer::OpenEntry(std::size_t index) {
    s_state& state = *m_state;
    CZipEntryHeader* const header = state.entries.Get(index);
    if (state.mode != zip_open_read || header == nullptr || state.is_entry_open()) return false;
    state.reader.emplace(state.storage, *header, state.entries.GetStart());
    state.open_index = index;
    if (!state.reader->has_known_method()) state.reader.reset();
    return state.reader.has_value();
}

std::size_t CZipContainer::ReadEntry(void* buffer, std::size_t count) {
    if (!m_state->reader || buffer == nullptr) return 0;
    return m_state->reader->read(static_cast<char*>(buffer), count);
}

bool CZipContainer::IsSizePossible(std::size_t index) const {
    const CZipEntryHeader* const header = GetEntryHeader(index);
    return header != nullptr &&
           zip::can_inflate_to(header->method, header->compressed_size, header->uncompressed_size);
}

int CZipContainer::CloseEntry(const std::u16string* path, bool after_exception) {
    s_state& state = *m_state;
    if (!state.reader) return 0;
    const bool is_unread = !after_exception && !state.reader->is_complete();
    if (!after_exception) state.reader->verify();
    state.reader.reset();
    if (is_unread) return -1;
    if (path == nullptr) return 1;
    const CZipEntryHeader& header = *state.entries.Get(state.open_index);
    if (!zip::is_known_host(header.GetHostSystem())) state.storage.fail(zip_unknown_system);
    return zip::set_file_status(*path, zip::permissions_of(header), zip::time_of(header)) ? 1 : -2;
}

bool CZipContainer::SetCompressionMethod(std::uint16_t method) {
    if (m_state->writer || (method != zip::method_deflated && method != zip::method_bzip2)) return false;
    m_state->method = method;
    return true;
}

bool CZipContainer::AddFileEntry(const CZipAddRequest& request) {
    s_state& state = *m_state;
    const std::size_t index = state.entries.GetCount();
    if (state.mode != zip_open_create || state.is_entry_open()) return false;
    if (index >= k_entry_limit || request.replace_index != k_at_end) return false;
    const std::optional<zip::s_file_status> status = zip::get_file_status(request.source_path);
    if (!status) return false;

    state.writer.emplace(state.storage, zip::make_header(request, *status, index, state.host));
    int level = request.level;
    if (level < -1 || level > 9) level = -1;
    if ((request.options & zip_store_tiny) != 0 && status->size < k_tiny_size) level = 0;
    if (status->is_directory) {
        state.writer->add_folder();
    } else {
        state.writer->add_file(request, state.method, level);
    }
    state.entries.Add(state.writer->header());
    state.writer.reset();
    return true;
}

bool CZipContainer::AddFileEntry(const std::u16string& path, int level, bool keep_full_path, unsigned options,
                                 std::size_t buffer_size) {
    CZipAddRequest request;
    request.source_path = path;
    request.level = level;
    request.keep_full_path = keep_full_path;
    request.options = options;
    request.buffer_size = buffer_size;
    return AddFileEntry(request);
}
