// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/file_name.h"

#include <cerrno>
#include <string>

#include "lmx/values/unicode.h"
#include "lmx/values/wide.h"

namespace lmx {

#if defined(_WIN32)

std::optional<std::filesystem::path> to_path(std::u16string_view name) {
    if (!is_well_formed(name) || name.find(u'\0') != name.npos) return std::nullopt;
    return std::filesystem::path(to_wstring(name));
}

std::optional<std::filesystem::path> to_path(std::string_view name) {
    const std::string bytes(name);
    const std::u16string wide = convert_to_wide(bytes);
    // The conversion ends at the first byte that is no UTF-8.
    if (convert_to_narrow(wide) != bytes) return std::nullopt;
    return to_path(std::u16string_view(wide));
}

std::FILE* open_for_reading(const std::optional<std::filesystem::path>& path) {
    if (path) return _wfopen(path->c_str(), L"rbN");
    errno = ENOENT;
    return nullptr;
}

#else

std::optional<std::filesystem::path> to_path(std::u16string_view name) {
    if (!is_well_formed(name) || name.find(u'\0') != name.npos) return std::nullopt;
    return std::filesystem::path(convert_to_narrow(std::u16string(name)));
}

std::optional<std::filesystem::path> to_path(std::string_view name) { return std::filesystem::path(name); }

std::FILE* open_for_reading(const std::optional<std::filesystem::path>& path) {
    if (path) return std::fopen(path->c_str(), "rb");
    errno = ENOENT;
    return nullptr;
}

#endif

}  // namespace lmx
