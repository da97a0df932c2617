// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Threads that share nothing but the library each get what they would get alone. A wrong result shows under every
/// preset, an unguarded access to something shared under the thread sanitizer.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <functional>
#include <latch>
#include <sstream>
#include <thread>
#include <vector>

#include "schema/Vyr.h"
#include "zip/container.h"

extern "C" {
void* CSharp_new_Vyr__SWIG_0();
void CSharp_delete_Vyr(void* self);
void* CSharp_Vyr_writeString(void* self);
char16_t* CSharp_XMLDocumentResult_getXmlDocument(void* self);
void CSharp_delete_XMLDocumentResult(void* self);
void* VyrModule_LoadFile(void* self, const char16_t* path, std::uint32_t collect, std::uint32_t limit);
char16_t* VyrModule_ReportText(void* report);
void VyrModule_DeleteReport(void* report);
void VyrModule_FreeString(void* text);
}

namespace vyr_test {
namespace {

using com_vyrgraph_v2::ReportOptions;
using com_vyrgraph_v2::Vyr;
namespace fs = std::filesystem;

std::string bytes_of(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << stream.rdbuf();
    return std::move(bytes).str();
}

/// Some of the test's documents, right and wrong ones, in a fixed order.
std::vector<fs::path> documents() {
    std::vector<fs::path> files;
    for (const char* const folder : {"valid", "invalid"}) {
        for (const fs::path& file : fs::directory_iterator(fs::path(VYR_TEST_DOCUMENTS) / folder)) {
            if (file.extension() == ".vyr") files.push_back(file);
        }
    }
    std::sort(files.begin(), files.end());
    for (std::size_t i = 0; i < files.size() / 4; ++i) files.erase(files.begin() + static_cast<std::ptrdiff_t>(i));
    return files;
}

/// Does the work in several threads at once and by itself. `work` gets a folder of its own and says all that it saw.
void expect_same_in_threads(const std::function<std::string(const fs::path& folder)>& work) {
    constexpr std::size_t k_threads = 4;
    std::array<std::string, k_threads> seen;
    std::latch start(k_threads);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < k_threads; ++i) {
        // Tests run side by side too.
        const std::string test = testing::UnitTest::GetInstance()->current_test_info()->name();
        const fs::path folder = test + "-" + std::to_string(i);
        fs::create_directories(folder);
        threads.emplace_back([&, i, folder] {
            start.arrive_and_wait();
            seen[i] = work(folder);
        });
    }
    for (std::thread& thread : threads) thread.join();
    const fs::path alone = testing::UnitTest::GetInstance()->current_test_info()->name();
    fs::create_directories(alone);
    const std::string expected = work(alone);
    EXPECT_GT(expected.size(), 10'000U);
    for (const std::string& found : seen) EXPECT_EQ(found, expected);
}

TEST(Threads, LoadAndSaveDocumentsOfTheirOwn) {
    expect_same_in_threads([files = documents()](const fs::path& folder) {
        std::string seen;
        for (const fs::path& file : files) {
            Vyr document;
            seen += std::to_string(document.loadFile(file.u16string())) + ' ';
            seen += std::to_string(document.writeFile((folder / "a.vyr").u16string())) + ' ';
            seen += bytes_of(folder / "a.vyr");
            const Vyr copy(document);
            std::string text;
            seen += std::to_string(copy.marshal(&text)) + ' ' + text;
        }
        return seen;
    });
}

TEST(Threads, LoadAndSaveContainersOfTheirOwn) {
    expect_same_in_threads([files = documents()](const fs::path& folder) {
        std::string seen;
        for (const fs::path& file : files) {
            Vyr document;
            if (document.loadFile(file.u16string()) != lmx::ELMX_OK) continue;
            const std::u16string container = (folder / "a.vyrz").u16string();
            seen += std::to_string(document.writeFile(container)) + ' ';
            Vyr again;
            seen += std::to_string(again.loadFile(container)) + ' ';
            CZipContainer archive;
            archive.OpenContainer(container, zip_open_read);
            std::string data(1000, '\0');
            for (archive.OpenEntry(0); data.size() == 1000; seen += data) {
                data.resize(archive.ReadEntry(data.data(), data.size()));
            }
        }
        return seen;
    });
}

TEST(Threads, GetReportsOfTheirOwn) {
    expect_same_in_threads([files = documents()](const fs::path&) {
        std::string seen;
        for (const fs::path& file : files) {
            Vyr document;
            seen += loadFileWithReport(document, file.u16string(), ReportOptions{.collect = true}).toString();
            std::u16string text;
            seen += writeStringWithReport(document, &text).toString() + std::to_string(text.size());
        }
        return seen;
    });
}

TEST(Threads, CallTheFlatFunctions) {
    const auto take = [](char16_t* text) {
        const std::string taken = lmx::convert_to_narrow(text);
        VyrModule_FreeString(text);
        return taken;
    };
    expect_same_in_threads([&take, files = documents()](const fs::path&) {
        std::string seen;
        for (const fs::path& file : files) {
            void* const document = CSharp_new_Vyr__SWIG_0();
            void* const report = VyrModule_LoadFile(document, file.u16string().c_str(), 1, 10);
            seen += take(VyrModule_ReportText(report));
            VyrModule_DeleteReport(report);
            void* const result = CSharp_Vyr_writeString(document);
            seen += take(CSharp_XMLDocumentResult_getXmlDocument(result));
            CSharp_delete_XMLDocumentResult(result);
            CSharp_delete_Vyr(document);
        }
        return seen;
    });
}

TEST(Threads, LookAtOneDocumentTogether) {
    std::vector<Vyr> shared;
    for (const fs::path& file : documents()) {
        Vyr document;
        if (document.loadFile(file.u16string()) == lmx::ELMX_OK) shared.push_back(document);
    }
    expect_same_in_threads([&shared](const fs::path&) {
        std::string seen;
        for (const Vyr& document : shared) {
            std::string text;
            seen += std::to_string(document.marshal(&text)) + text;
            const Vyr copy(document);
            for (std::size_t i = 0; i < document.size_Palette(); ++i) {
                seen += lmx::convert_to_narrow(document.get_Palette(i).get_PaletteName());
            }
        }
        return seen;
    });
}

}  // namespace
}  // namespace vyr_test
