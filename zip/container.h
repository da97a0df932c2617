// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// ZIP archives: a new one is written entry by entry, an existing one is read entry by entry.
///
/// One file holds the whole archive, entries are not encrypted, and sizes have 32 bits. What a header says is checked
/// against the file before anything is read or sought for it.

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "lmx/export.h"
#include "zip/add_request.h"
#include "zip/entry_header.h"
#include "zip/exception.h"

/// Modes of `OpenContainer` and of `CloseContainer`.
enum EZipOpenMode : int { zip_open_read = 1, zip_open_create = 2 };
enum EZipCloseMode : int { zip_close_normal = 0, zip_close_forced = 1 };

/// An archive, open or closed. One entry is open at a time. Failures are a `CZipException`; after one the archive is
/// given up by a forced close or by destroying the object.
class VYR_EXPORT CZipContainer {
public:
    CZipContainer();
    CZipContainer(const CZipContainer&) = delete;
    CZipContainer& operator=(const CZipContainer&) = delete;
    /// Closes by force what is open.
    ~CZipContainer();

    /// Opens an existing archive, or creates the file and empties it. False if an archive is open already. The volume
    /// size is 0: archives aren't split.
    bool OpenContainer(const std::u16string& path, int mode, std::uint64_t volume_size = 0);
    /// The normal close ends an open entry and, of a new archive, writes the directory; the forced one, after a
    /// failure, writes and checks nothing and never throws. The flag is without effect.
    void CloseContainer(int mode, bool flag = false);
    bool IsOpen() const;

    std::size_t GetEntryCount() const;
    /// Null if no archive is open or there is no such entry. Good until the archive is closed.
    const CZipEntryHeader* GetEntryHeader(std::size_t index) const;

    /// Opens an entry for reading. False if there is no such entry, another is open, or its method isn't known.
    bool OpenEntry(std::size_t index);
    /// The next bytes of the entry, fewer than asked for only at its end; 0 if no entry is open for reading.
    std::size_t ReadEntry(void* buffer, std::size_t count);
    /// Whether the stored bytes of an entry may become as many as its header says: 1,032 for each at most, which is
    /// the best of deflate and bounds bzip2 too. A method that isn't known makes nothing possible.
    bool IsSizePossible(std::size_t index) const;
    /// Ends reading: 1, or 0 if no entry is open for reading, -1 if data remain unread, -2 if the file of that path
    /// didn't take the entry's time and permissions. After an exception nothing is checked.
    int CloseEntry(const std::u16string* path = nullptr, bool after_exception = false);

    /// The method of entries added from now on: 8 or 12. False for others, and while an entry is being written.
    bool SetCompressionMethod(std::uint16_t method);
    /// Adds a file or an empty folder. False if it isn't there, or the archive can't take it: not new, an entry is
    /// open, it is full. A name that isn't ASCII is stored as UTF-8.
    bool AddFileEntry(const CZipAddRequest& request);
    bool AddFileEntry(const std::u16string& path, int level = -1, bool keep_full_path = false,
                      unsigned options = CZipAddRequest().options, std::size_t buffer_size = 65536);

private:
    struct s_state;
    std::unique_ptr<s_state> m_state;
};
