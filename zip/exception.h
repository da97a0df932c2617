// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The one exception of the container, with its causes.

#pragma once

#include <exception>
#include <string>

#include "lmx/export.h"

/// Causes of the container's own. Beside them a cause is an `errno` value, when a call of the operating system
/// failed, or the code of a compression library, which is negative. Not every one can arise on every system.
enum EZipCause : int {
    zip_generic = 100,              ///< an entry that isn't what its header says, or an add that was refused
    zip_bad_structure = 101,        ///< records that can't be read whole, or that contradict each other or the file
    zip_bad_crc = 102,              ///< an entry's data doesn't match its check sum
    zip_misuse = 105,               ///< a call that the archive object can't serve
    zip_too_long = 110,             ///< a name, comment or extra field over 65,535 bytes
    zip_truncate_failed = 111,      ///< the file couldn't be cut
    zip_encrypted = 112,            ///< an encrypted entry; there are no passwords here
    zip_inconsistent_entry = 114,   ///< an entry and the archive object contradict each other
    zip_delete_failed = 115,        ///< a file couldn't be deleted
    zip_rename_failed = 116,        ///< a file couldn't be renamed
    zip_unknown_system = 117,       ///< file attributes of a host system that isn't known
    zip_no_end_record = 118,        ///< no end of a central directory: no ZIP archive
    zip_records_differ = 119,       ///< two records of the file that ought to be alike aren't
    zip_zip64_unsupported = 120,    ///< a Zip64 archive
    zip_inconsistent_object = 122,  ///< the archive object contradicts itself
    zip_memory_file = 505,          ///< a file in memory couldn't grow or be sought in
};

/// A failure of the container: a cause and the file that it concerns.
class VYR_EXPORT CZipException : public std::exception {
public:
    /// The file name in UTF-16, empty if no file is concerned.
    explicit CZipException(int cause, const std::u16string& file_name = {});
    CZipException(const CZipException&);
    CZipException& operator=(const CZipException&);
    ~CZipException() override;

    int GetCause() const noexcept { return m_cause; }
    const std::u16string& GetFileName() const noexcept { return m_file_name; }
    /// The cause in words, with the file name in UTF-8.
    const char* what() const noexcept override { return m_text.c_str(); }

private:
    int m_cause;
    std::u16string m_file_name;
    std::string m_text;
};
