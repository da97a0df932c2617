// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Saves during which the operating system refuses one call after another: none may look like a success. And loads
/// that a disk ends too early.
///
/// The program has its own forms of the calls that write files; the library's calls come here, since names of the
/// program go before those of the C library.

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "schema/Vyr.h"
#include "zip/container.h"

namespace {

/// Calls of one name still to let through; negative: all of them.
struct s_tap {
    std::string_view call;
    int left = -1;
    bool has_failed = false;

    bool refuses(std::string_view name) {
        if (left < 0 || name != call || left-- > 0) return false;
        has_failed = true;
        errno = ENOSPC;
        return true;
    }
};
s_tap tap;

/// What `fopen` opens while the tap is at "fread": so many bytes of the document, and then no more can be read.
std::string_view disk;

ssize_t read_from_disk(void*, char* buffer, std::size_t size) {
    const auto left = static_cast<std::size_t>(tap.left);
    if (left == 0) {
        errno = EIO;
        return -1;
    }
    const std::size_t count = std::min({size, left, disk.size()});
    disk.copy(buffer, count);
    disk.remove_prefix(count);
    tap.left -= static_cast<int>(count);
    return static_cast<ssize_t>(count);
}

}  // namespace

// Hidden names would stay among the program's own.
#pragma GCC visibility push(default)
extern "C" {
ssize_t write(int file, const void* data, size_t count) {
    return tap.refuses("write") ? -1 : syscall(SYS_write, file, data, count);
}
ssize_t writev(int file, const iovec* pieces, int count) {
    return tap.refuses("write") ? -1 : syscall(SYS_writev, file, pieces, count);
}
ssize_t read(int file, void* data, size_t count) {
    return tap.refuses("read") ? -1 : syscall(SYS_read, file, data, count);
}
off_t lseek(int file, off_t offset, int from) noexcept {
    return tap.refuses("lseek") ? -1 : syscall(SYS_lseek, file, offset, from);
}
int ftruncate(int file, off_t size) noexcept {
    return tap.refuses("ftruncate") ? -1 : static_cast<int>(syscall(SYS_ftruncate, file, size));
}
FILE* fopen(const char* path, const char* mode) {
    if (tap.call == "fread") return fopencookie(nullptr, "r", {read_from_disk, nullptr, nullptr, nullptr});
    static const auto real = reinterpret_cast<FILE* (*)(const char*, const char*)>(dlsym(RTLD_NEXT, "fopen"));
    return real(path, mode);
}
int close(int file) {
    const int result = static_cast<int>(syscall(SYS_close, file));
    return tap.refuses("close") ? -1 : result;
}
}

#pragma GCC visibility pop

namespace vyr_test {
namespace {

namespace fs = std::filesystem;
using com_vyrgraph_v2::Vyr;

/// A document whose text takes several blocks, and doesn't shrink below one.
Vyr large_document() {
    Vyr document;
    auto& header = document.get_Preamble().get_Header();
    header.set_CreatorVersion(u"1");
    header.set_Purpose(u"p");
    header.append_ChangeHistory(lmx::c_datetime("2024-05-01T09:30:00Z"));
    std::u16string noise;
    std::uint32_t state = 1;
    while (noise.size() < 200'000) noise += static_cast<char16_t>(u' ' + ((state = state * 69069 + 1) >> 25));
    for (char16_t& unit : noise) unit = unit == u'\x7F' ? u' ' : unit;
    header.set_Creator(noise);
    return document;
}

/// The result of the save, with an exception's cause as a negative number.
int save(const Vyr& document, const fs::path& path) {
    try {
        return document.writeFile(path.u16string());
    } catch (const CZipException& failure) {
        return -failure.GetCause();
    }
}

TEST(Failures, NoRefusedCallOfASaveGoesUnnoticed) {
    const Vyr document = large_document();
    const fs::path target = "failures.vyrz";
    const fs::path plain = "failures.vyr";
    for (const char* const call : {"write", "lseek", "read", "close"}) {
        int refused = 0;
        for (;; ++refused) {
            fs::remove(target);
            fs::remove(plain);
            tap = {call, refused};
            const int code = save(document, target);
            const bool has_failed = std::exchange(tap, {}).has_failed;
            if (!has_failed) {
                EXPECT_EQ(code, lmx::ELMX_OK) << call;
                EXPECT_FALSE(fs::exists(plain));
                EXPECT_EQ(Vyr().loadFile(target.u16string()), lmx::ELMX_OK) << call;
                break;
            }
            // Whether the source was closed well says nothing of the archive.
            Vyr back;
            const bool is_whole = code == lmx::ELMX_OK && back.loadFile(target.u16string()) == lmx::ELMX_OK &&
                                  back.get_Preamble().get_Header().get_Creator().size() == 200'000;
            EXPECT_TRUE(is_whole || code == lmx::ELMX_USER_DEFINED_1) << call << ' ' << refused << ": " << code;
            EXPECT_EQ(fs::exists(plain), code != lmx::ELMX_OK) << call << ' ' << refused;
        }
        EXPECT_GE(refused, 2) << call;
    }
}

TEST(Failures, ADiskThatFailsIsNoFaultOfTheDocument) {
    std::string text;
    ASSERT_EQ(large_document().marshal(&text), lmx::ELMX_OK);
    for (const std::size_t size : {std::size_t{0}, std::size_t{50}, std::size_t{3000}, text.size() - 9}) {
        SCOPED_TRACE(size);
        const std::string cut = text.substr(0, size);
        Vyr document;
        const auto whole = loadMemoryWithReport(document, cut.data(), cut.size());
        tap = {"fread", static_cast<int>(size)};
        disk = text;
        document.reset();
        const auto report = loadFileWithReport(document, u"disk.vyr", {.collect = true});
        tap = {"fread", static_cast<int>(size)};
        disk = text;
        EXPECT_EQ(Vyr().loadFile(u"disk.vyr"), whole.getCode());
        tap = {};
        EXPECT_EQ(report.getCode(), whole.getCode());
        EXPECT_EQ(report.getFault(0).detail, "the file could not be read to its end: Input/output error");
        EXPECT_EQ(report.getSystemError(), EIO);
        EXPECT_EQ(whole.getSystemError(), 0);
    }
    // A fault that was gathered before keeps its words, also when no more are kept.
    const std::string faulty = text.insert(text.find("<Vyr:Header>") + 11, " a=''");
    tap = {"fread", 3000};
    disk = faulty;
    Vyr document;
    const auto report = loadFileWithReport(document, u"disk.vyr", {.collect = true, .limit = 1});
    tap = {};
    EXPECT_EQ(report.getTotalCount(), 2U);
    EXPECT_EQ(report.getFault(0).code, lmx::ELMX_UNEXPECTED_ATTRIBUTE);
    EXPECT_EQ(report.getFault(0).detail.find("could not be read"), std::string::npos);
    EXPECT_EQ(report.getSystemError(), EIO);

    // And of saves why they failed, also where the plain call passes it over.
    for (const char16_t* const path : {u"full.vyr", u"full.vyrz"}) {
        tap = {"write", 0};
        const auto save = writeFileWithReport(large_document(), path);
        tap = {};
        EXPECT_EQ(save.getSystemError(), ENOSPC);
        EXPECT_NE(save.toString().find("No space left on device"), std::string::npos) << save.toString();
    }
}

TEST(Failures, CausesKeepTheErrnoAndTheFile) {
    std::ofstream("noise.bin") << "no way to make this any smaller: 8ahf93";
    for (const auto& [call, cause] : {std::pair("write", ENOSPC), std::pair("ftruncate", 111)}) {
        CZipContainer archive;
        ASSERT_TRUE(archive.OpenContainer(u"causes.zip", zip_open_create));
        CZipAddRequest request;
        request.source_path = u"noise.bin";
        request.options = zip_try_in_file;
        tap = {call, 0};
        try {
            archive.AddFileEntry(request);
            ADD_FAILURE() << call;
        } catch (const CZipException& failure) {
            EXPECT_EQ(failure.GetCause(), cause) << call;
            EXPECT_EQ(failure.GetFileName(), u"causes.zip");
        }
        tap = {};
        // What failed half-way doesn't become an archive.
        EXPECT_FALSE(archive.SetCompressionMethod(8));
        EXPECT_THROW(archive.CloseContainer(zip_close_normal), CZipException);
        archive.CloseContainer(zip_close_forced);
        EXPECT_EQ(archive.IsOpen(), false);
    }
}

}  // namespace
}  // namespace vyr_test
