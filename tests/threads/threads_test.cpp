// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Threads that share nothing but the library each get what they would get alone. A wrong result shows under every
/// preset, an unguarded access to something shared under the thread sanitizer.

#include <array>
#include <functional>
#include <latch>
#include <thread>
#include <vector>

#include "flat/generated/vyr_flat.h"
#include "schema/Vyr.h"
#include "tests/files.h"
#include "zip/container.h"

namespace vyr_test {
namespace {

using com_vyrgraph_v2::Vyr;
namespace fs = std::filesystem;

/// Some of the test's documents, right and wrong ones.
std::vector<fs::path> documents() {
    std::vector<fs::path> files = documents_in({"valid", "invalid"});
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
            char16_t* text = nullptr;
            for (const bool is_load : {true, false}) {
                void* const report = is_load ? VyrModule_LoadFile(document, file.u16string().c_str(), 1, 10)
                                             : VyrModule_WriteString(document, &text);
                seen += take(VyrModule_ReportText(report));
                VyrModule_DeleteReport(report);
            }
            if (text != nullptr) seen += take(text);
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
