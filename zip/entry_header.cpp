// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "zip/entry_header.h"

#include <algorithm>

#include "lmx/values/unicode.h"

namespace {

/// The conversion stops at the first byte that is no UTF-8, and a text that isn't all there was not UTF-8.
bool is_utf8(const std::string& bytes, const std::u16string& converted) {
    std::string back;
    return lmx::is_well_formed(converted) && lmx::convert(&back, converted) == bytes;
}

}  // namespace

std::u16string CZipEntryHeader::GetFileName() const {
    std::u16string name;
    lmx::convert(&name, file_name);
    if (!is_utf8(file_name, name)) {
        name.clear();
        for (const char byte : file_name) name += static_cast<char16_t>(static_cast<unsigned char>(byte));
    }
    std::replace(name.begin(), name.end(), u'\\', u'/');
    return name;
}
