// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "zip/exception.h"

#include <system_error>
#include <utility>

#include "lmx/values/unicode.h"

namespace {

constexpr std::pair<int, const char*> k_texts[] = {
    {zip_generic, "the archive's entry is damaged or was not added"},
    {zip_bad_structure, "the archive's structure is damaged"},
    {zip_bad_crc, "the check sum of the archive's entry is wrong"},
    {zip_misuse, "the archive object can not serve this call"},
    {zip_too_long, "a name, comment or extra field is over 65535 bytes"},
    {zip_truncate_failed, "the archive could not be cut"},
    {zip_encrypted, "the archive's entry is encrypted"},
    {zip_inconsistent_entry, "the entry does not fit the archive object"},
    {zip_delete_failed, "the file could not be deleted"},
    {zip_rename_failed, "the file could not be renamed"},
    {zip_unknown_system, "the archive's entry has attributes of an unknown system"},
    {zip_no_end_record, "not a ZIP archive"},
    {zip_records_differ, "two of the archive's records differ"},
    {zip_zip64_unsupported, "Zip64 archives are not supported"},
    {zip_inconsistent_object, "the archive object contradicts itself"},
    {zip_memory_file, "a file in memory could not grow"},
};

std::string text_of(int cause) {
    for (const auto& [known, text] : k_texts) {
        if (known == cause) return text;
    }
    if (cause > 0) return std::generic_category().message(cause);
    return "compressed data are damaged (code " + std::to_string(cause) + ")";
}

std::string make_text(int cause, const std::u16string& file_name) {
    std::string text = text_of(cause);
    if (file_name.empty()) return text;
    std::string narrow_name;
    return lmx::convert(&narrow_name, file_name) + ": " + text;
}

}  // namespace

CZipException::CZipException(int cause, const std::u16string& file_name)
    : m_cause(cause), m_file_name(file_name), m_text(make_text(cause, file_name)) {}

CZipException::CZipException(const CZipException&) = default;
CZipException& CZipException::operator=(const CZipException&) = default;
CZipException::~CZipException() = default;
