// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Files of tests: their bytes, the documents that tests share, and a scratch folder for each case.

#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <vector>

namespace vyr_test {

/// Names in UTF-8, as what is tested takes them and literals hold them; the system's own narrow names may be others.
inline std::filesystem::path path_of(const std::string& name) { return std::u8string(name.begin(), name.end()); }
inline std::string name_of(const std::filesystem::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

inline std::string bytes_of(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void write_file(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

/// Those of `tests/documents` in the folders, in a fixed order.
inline std::vector<std::filesystem::path> documents_in(std::initializer_list<const char*> folders) {
    std::vector<std::filesystem::path> files;
    for (const char* const folder : folders) {
        for (const auto& file : std::filesystem::directory_iterator(std::string(VYR_TEST_DOCUMENTS "/") + folder)) {
            if (file.path().extension() == ".vyr") files.push_back(file);
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// A folder that is empty when the case begins.
class ScratchFolder : public testing::Test {
protected:
    void SetUp() override {
        std::filesystem::remove_all(m_folder);
        std::filesystem::create_directories(m_folder);
    }
    std::filesystem::path path(const char* name) const { return m_folder / path_of(name); }

    const std::filesystem::path m_folder =
        std::filesystem::path("scratch") / testing::UnitTest::GetInstance()->current_test_info()->name();
};

}  // namespace vyr_test
