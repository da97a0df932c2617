// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Archives on disk: every byte of what is written, and what becomes of archives that lie, end early or are strange.

#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <utility>

#include "tests/files.h"
#include "zip/container.h"

namespace vyr_test {
namespace {

namespace fs = std::filesystem;

std::string little(std::uint64_t value, int size) {
    std::string bytes;
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
    return bytes;
}

void set_time_zone(const char* zone) {
#if defined(_WIN32)
    _putenv_s("TZ", zone);
    _tzset();
#else
    *zone == 0 ? ::unsetenv("TZ") : ::setenv("TZ", zone, 1);
    ::tzset();
#endif
}

/// Runs a call; 0, or the cause of its exception.
int cause_of(const std::function<void()>& call) {
    try {
        call();
        return 0;
    } catch (const CZipException& failure) {
        EXPECT_FALSE(failure.GetFileName().empty());
        return failure.GetCause();
    }
}

/// The data of the first entry, or "cause N", or "closed N" where the entry didn't end well.
std::string first_entry(const fs::path& path) {
    std::string data;
    int closed = 1;
    const int cause = cause_of([&] {
        CZipContainer archive;
        EXPECT_TRUE(archive.OpenContainer(path.u16string(), zip_open_read));
        archive.OpenEntry(0);
        char buffer[7];
        for (std::size_t got = sizeof buffer; got == sizeof buffer;) {
            got = archive.ReadEntry(buffer, sizeof buffer);
            data.append(buffer, got);
        }
        closed = archive.CloseEntry();
    });
    if (cause != 0) return "cause " + std::to_string(cause);
    return closed == 1 ? data : "closed " + std::to_string(closed);
}

/// Of a file to which 0640 was given.
#if defined(_WIN32)
constexpr std::uint32_t k_mode = 0100644;
#else
constexpr std::uint32_t k_mode = 0100640;
#endif

class Archive : public ScratchFolder {
protected:
    /// An archive of one file, as bytes.
    std::string archive_of(const std::string& data, CZipAddRequest request = {}, std::uint16_t method = 8) {
        write_file(path("a.vyr"), data);
        request.source_path = path("a.vyr").u16string();
        CZipContainer archive;
        EXPECT_TRUE(archive.OpenContainer(path("a.zip").u16string(), zip_open_create));
        EXPECT_TRUE(archive.SetCompressionMethod(method));
        EXPECT_TRUE(archive.AddFileEntry(request));
        archive.CloseContainer(zip_close_normal);
        return bytes_of(path("a.zip"));
    }
    std::string read_back(const std::string& bytes) {
        write_file(path("back.zip"), bytes);
        return first_entry(path("back.zip"));
    }
};

TEST_F(Archive, HoldsOneEntryAndNothingElse) {
    set_time_zone("UTC-2");
    const fs::path source = path("x/\u00E9.vyr");
    fs::create_directories(path("x"));
    write_file(source, "aaaaaaaaaa");
    fs::permissions(source, fs::perms{0640});
    // 2001-09-09 01:46:41 in UTC, two hours later here
    fs::last_write_time(
        source, std::chrono::file_clock::from_sys(std::chrono::sys_seconds(std::chrono::seconds(1'000'000'001))));
    CZipContainer archive;
    ASSERT_TRUE(archive.OpenContainer(path("a.zip").u16string(), zip_open_create));
    EXPECT_FALSE(archive.OpenContainer(path("b.zip").u16string(), zip_open_create));
    ASSERT_TRUE(archive.AddFileEntry(source.u16string()));
    archive.CloseContainer(zip_close_normal);
    EXPECT_FALSE(fs::exists(path("b.zip")));

    const std::string name = "\u00E9.vyr";
    const std::string stored("\x4B\x4C\x84\x01\x00", 5);  // the same in raw deflate
    const std::string shared = little(20, 2) + little(0, 2) + little(8, 2) + little(3 << 11 | 46 << 5 | 20, 2) +
                               little(21 << 9 | 9 << 5 | 9, 2) + little(0x4C11CDF0, 4) + little(stored.size(), 4) +
                               little(10, 4) + little(name.size(), 2) + little(0, 2);
    const std::string local = "PK\3\4" + shared + name + stored;
    const std::string central =
        "PK\1\2" + little(46, 2) + shared + little(0, 6) + little(k_mode << 16U | 0x20, 4) + little(0, 4) + name;
    const std::string end = "PK\5\6" + little(0, 4) + little(1, 2) + little(1, 2) + little(central.size(), 4) +
                            little(local.size(), 4) + little(0, 2);
    EXPECT_EQ(bytes_of(path("a.zip")), local + central + end);

    // Years that the header can't hold: in April of 1975, and in 2109.
    for (const auto& [seconds, date] :
         {std::pair(168'000'000LL, 4 << 5 | 29), std::pair(4'400'000'000LL, 1 << 5 | 1)}) {
        if (!std::in_range<std::time_t>(seconds)) continue;  // what the standard library can't set here
        fs::last_write_time(
            source, std::chrono::file_clock::from_sys(std::chrono::sys_seconds(std::chrono::seconds(seconds))));
        CZipContainer other;
        ASSERT_TRUE(other.OpenContainer(path("b.zip").u16string(), zip_open_create));
        ASSERT_TRUE(other.AddFileEntry(source.u16string()));
        EXPECT_EQ(other.GetEntryHeader(0)->date, date);
    }
    set_time_zone("");
}

TEST_F(Archive, LevelsMethodsAndTrialsDecideTheHeader) {
    const std::string text(100'000, 'x');
    std::string noise;  // nothing that a compressor could use
    for (std::uint32_t i = 0, state = 1; i < 100'000; ++i)
        noise += static_cast<char>((state = state * 69069 + 1) >> 24);
    struct s_row {
        const std::string& data;
        std::uint16_t method;
        int level;
        unsigned options;
        std::string expected;  // version needed, flags, method
    };
    const auto head = [](int version, int flags, int method) {
        return little(static_cast<unsigned>(version), 2) + little(static_cast<unsigned>(flags), 2) +
               little(static_cast<unsigned>(method), 2);
    };
    const std::string tiny = "tiny";
    const std::string empty;
    const std::string five = "five!";
    const s_row rows[] = {
        {text, 8, -1, 7, head(20, 0, 8)},   {text, 8, 1, 7, head(20, 6, 8)},     {text, 8, 2, 7, head(20, 4, 8)},
        {text, 8, 6, 7, head(20, 0, 8)},    {text, 8, 8, 7, head(20, 2, 8)},     {text, 8, 9, 7, head(20, 2, 8)},
        {text, 8, 10, 7, head(20, 0, 8)},   {text, 8, -2, 7, head(20, 0, 8)},    {text, 8, 0, 7, head(20, 0, 0)},
        {text, 12, -1, 7, head(46, 0, 12)}, {text, 12, 0, 7, head(20, 0, 0)},    {tiny, 8, -1, 7, head(20, 0, 0)},
        {tiny, 8, 9, 3, head(20, 2, 8)},    {five, 8, -1, 7, head(20, 0, 8)},    {empty, 8, -1, 7, head(20, 0, 0)},
        {noise, 8, -1, 7, head(20, 0, 8)},  {noise, 8, 9, 8, head(20, 0, 0)},    {noise, 8, 9, 0x10, head(20, 0, 0)},
        {text, 8, 9, 8, head(20, 2, 8)},    {text, 8, 9, 0x10, head(20, 2, 8)},  {noise, 12, 1, 8, head(20, 0, 0)},
        {noise, 12, 1, 0, head(46, 0, 12)}, {text, 12, 1, 0x10, head(46, 0, 12)}};
    for (const s_row& row : rows) {
        for (const std::size_t buffer : {65536U, 5U}) {
            CZipAddRequest request;
            request.level = row.level;
            request.options = row.options;
            request.buffer_size = buffer;
            const std::string bytes = archive_of(row.data, request, row.method);
            const std::string what = std::to_string(&row - rows) + "/" + std::to_string(buffer);
            EXPECT_EQ(bytes.substr(4, 6), row.expected) << what;
            EXPECT_LT(bytes.size(), row.data.size() + row.data.size() / 50 + 200) << what;
            EXPECT_EQ(first_entry(path("a.zip")), row.data) << what;
        }
    }
    CZipAddRequest without_buffer;
    without_buffer.buffer_size = 0;
    EXPECT_EQ(read_back(archive_of(five, without_buffer)), five);
}

TEST_F(Archive, NamesFoldersAndManyEntries) {
    write_file(path("f.txt"), "f");
    // In summer.
    set_time_zone("CET-1CEST");
    fs::last_write_time(path("f.txt"), std::chrono::file_clock::from_sys(
                                           std::chrono::sys_seconds(std::chrono::seconds(1'719'000'000))));
    fs::permissions(path("f.txt"), fs::perms{0600});
    fs::create_directories(path("sub"));
    const std::string folder = m_folder.generic_string();
    const fs::path absolute = fs::absolute(path("f.txt"));
    struct s_row {
        std::string source;
        std::u16string name;
        bool keep_full_path;
        std::string expected;
    };
    const s_row rows[] = {{folder + "/f.txt", u"", false, "f.txt"},
                          {folder + "/f.txt", u"", true, folder + "/f.txt"},
                          {absolute.string(), u"", true, absolute.relative_path().generic_string()},
                          {folder + "/f.txt", u"x\\\u00FC.txt", false, "x/\u00FC.txt"},
                          {folder + "/sub", u"", false, "sub/"},
                          {"/", u"", false, "file5/"}};
    CZipContainer archive;
    EXPECT_FALSE(archive.AddFileEntry(path("f.txt").u16string()));
    ASSERT_TRUE(archive.OpenContainer(path("a.zip").u16string(), zip_open_create));
    EXPECT_FALSE(archive.AddFileEntry(path("missing").u16string()));
    EXPECT_FALSE(archive.OpenEntry(0));
    for (const s_row& row : rows) {
        CZipAddRequest request;
        request.source_path = fs::path(row.source).u16string();
        request.name_in_archive = row.name;
        request.keep_full_path = row.keep_full_path;
        EXPECT_TRUE(archive.AddFileEntry(request)) << row.source;
        request.replace_index = 0;
        EXPECT_FALSE(archive.AddFileEntry(request)) << row.source;
    }
    EXPECT_FALSE(archive.OpenEntry(0));
    CZipAddRequest too_long;
    too_long.source_path = path("f.txt").u16string();
    too_long.name_in_archive.assign(65536, u'x');
    EXPECT_EQ(cause_of([&] { archive.AddFileEntry(too_long); }), 110);
    for (const std::uint16_t method : {std::uint16_t{0}, std::uint16_t{9}}) {
        EXPECT_FALSE(archive.SetCompressionMethod(method));
    }
    archive.CloseContainer(zip_close_normal);

    ASSERT_TRUE(archive.OpenContainer(path("a.zip").u16string(), zip_open_read));
    ASSERT_EQ(archive.GetEntryCount(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(archive.GetEntryHeader(i)->file_name, rows[i].expected);
        EXPECT_TRUE(archive.OpenEntry(i));
        EXPECT_FALSE(archive.OpenEntry(0));
        char data[4];
        EXPECT_EQ(archive.ReadEntry(data, sizeof data), i < 4 ? 1U : 0U);
        EXPECT_EQ(archive.CloseEntry(), 1);
    }
    EXPECT_EQ(archive.GetEntryHeader(4)->version_needed, 10);
    EXPECT_EQ(archive.GetEntryHeader(4)->external_attributes & 0xFFFF, 0x10U);
    EXPECT_EQ(archive.GetEntryHeader(std::size(rows)), nullptr);
    EXPECT_FALSE(archive.OpenEntry(std::size(rows)));
    EXPECT_FALSE(archive.AddFileEntry(path("f.txt").u16string()));

    // The time and the permissions of an entry go to the file that it is said to have become.
    const std::u16string became = path("became").u16string();
    write_file(path("became"), "f");
    ASSERT_TRUE(archive.OpenEntry(0));
    EXPECT_EQ(archive.CloseEntry(&became), -1);
    char byte = 0;
    const std::u16string missing = path("missing").u16string();
    for (const auto& [target, expected] : {std::pair(&missing, -2), std::pair(&became, 1)}) {
        ASSERT_TRUE(archive.OpenEntry(0));
        EXPECT_EQ(archive.ReadEntry(&byte, 1), 1U);
        EXPECT_EQ(archive.CloseEntry(target), expected);
    }
    const auto difference = fs::last_write_time(path("became")) - fs::last_write_time(path("f.txt"));
    EXPECT_LE(std::chrono::abs(difference), std::chrono::seconds(2));
    EXPECT_EQ(fs::status(path("became")).permissions(), fs::status(path("f.txt")).permissions());
    archive.CloseContainer(zip_close_forced);
    EXPECT_EQ(archive.GetEntryHeader(0), nullptr);
    EXPECT_EQ(archive.CloseEntry(), 0);
    set_time_zone("");
}

TEST_F(Archive, HoldsNoMoreEntriesThanItCanCount) {
    CZipContainer archive;
    ASSERT_TRUE(archive.OpenContainer(path("a.zip").u16string(), zip_open_create));
    for (int i = 0; i < 65535; ++i) ASSERT_TRUE(archive.AddFileEntry(m_folder.u16string()));
    EXPECT_FALSE(archive.AddFileEntry(m_folder.u16string()));
    archive.CloseContainer(zip_close_normal);
    ASSERT_TRUE(archive.OpenContainer(path("a.zip").u16string(), zip_open_read));
    EXPECT_EQ(archive.GetEntryCount(), 65535U);
}

/// One change to a good archive: bytes at a place, counted in the local header, the central header or the end record.
struct s_lie {
    const char* what;
    enum e_base { local, central, end, data } base;
    std::size_t offset;
    std::string bytes;
    std::string expected;
};

TEST_F(Archive, EveryLieHasItsCause) {
    const std::string text = "a document, a document, a document";
    const std::string good = archive_of(text);
    const std::size_t name_size = 5;
    const std::size_t end = good.size() - 22;
    const std::size_t central = end - 46 - name_size;
    const std::string damaged = "cause 101";
    const s_lie lies[] = {
        {"nothing", s_lie::local, 0, "P", text},
        {"no end record", s_lie::end, 0, "X", "cause 118"},
        {"a comment that isn't there", s_lie::end, 20, little(1, 2), damaged},
        {"the second of two disks", s_lie::end, 4, little(1, 2), damaged},
        {"a directory on another disk", s_lie::end, 6, little(1, 2), damaged},
        {"two entries", s_lie::end, 8, little(2, 2) + little(2, 2), damaged},
        {"65535 entries", s_lie::end, 10, little(0xFFFF, 2), damaged},
        {"no entries", s_lie::end, 8, little(0, 4), "closed 0"},
        {"a directory beyond the file", s_lie::end, 16, little(0xFFFFFFFF, 4), damaged},
        {"a directory that starts later", s_lie::end, 16, little(central + 1, 4), damaged},
        {"a directory at the start", s_lie::end, 12, little(0, 8), damaged},
        {"a directory of 4 GB", s_lie::end, 12, little(0xFFFFFFFF, 4), text},
        {"a bad central signature", s_lie::central, 0, "X", damaged},
        {"a name up to the end", s_lie::central, 28, little(name_size + 1, 2), damaged},
        {"extra data beyond the end", s_lie::central, 30, little(0xFFFF, 2), damaged},
        {"a comment beyond the end", s_lie::central, 32, little(1, 2), damaged},
        {"an entry on another disk", s_lie::central, 34, little(1, 2), damaged},
        {"a local header beyond the file", s_lie::central, 42, little(0xFFFFFFF0, 4), damaged},
        {"a local header elsewhere", s_lie::central, 42, little(1, 4), damaged},
        {"a bad local signature", s_lie::local, 0, "X", damaged},
        {"another version, local", s_lie::local, 4, little(99, 2), text},
        {"other high flags, local", s_lie::local, 6, little(0x0810, 2), text},
        {"other low flags, local", s_lie::local, 6, little(2, 2), damaged},
        {"encrypted, local", s_lie::local, 6, little(1, 2), damaged},
        {"another method, local", s_lie::local, 8, little(0, 2), damaged},
        {"another check sum, local", s_lie::local, 14, little(0, 4), damaged},
        {"another size, local", s_lie::local, 18, little(1, 4), damaged},
        {"another time, local", s_lie::local, 10, little(0, 4), text},
        {"extra data up to the end, local", s_lie::local, 28, little(0xFFFF, 2), damaged},
        {"a block type that isn't one", s_lie::data, 0, "\x07", "cause -3"},
    };
    for (const s_lie& lie : lies) {
        std::string bytes = good;
        const std::size_t bases[] = {0, central, end, 30 + name_size};
        bytes.replace(bases[lie.base] + lie.offset, lie.bytes.size(), lie.bytes);
        EXPECT_EQ(read_back(bytes), lie.expected) << lie.what;
    }
    // Told by both headers, or the local one would give them away.
    struct s_double_lie {
        const char* what;
        std::size_t offset;  // in the local header; the central one has two bytes more
        std::string bytes;
        std::string expected;
    };
    const s_double_lie double_lies[] = {
        {"encrypted", 6, little(1, 2), "cause 112"},
        {"a method that isn't known", 8, little(9, 2), "closed 0"},
        {"stored", 8, little(0, 2), "closed -1"},
        {"bzip2", 8, little(12, 2), "cause -5"},
        {"another check sum", 14, little(1, 4), "cause 102"},
        {"data up to the file's end and beyond", 18, little(good.size(), 4), damaged},
        {"4 GB of data", 18, little(0xFFFFFFFF, 4), damaged},
        {"less data", 18, little(5, 4), "closed -1"},
        {"no data", 18, little(0, 4), "closed -1"},
        {"a larger document", 22, little(text.size() + 1, 4), "closed -1"},
        {"a smaller document", 22, little(text.size() - 1, 4), text},
        {"a record behind the data", 6, little(8, 2), damaged},
    };
    for (const s_double_lie& lie : double_lies) {
        std::string bytes = good;
        bytes.replace(lie.offset, lie.bytes.size(), lie.bytes);
        bytes.replace(central + lie.offset + 2, lie.bytes.size(), lie.bytes);
        EXPECT_EQ(read_back(bytes), lie.expected) << lie.what;
    }
    // What the stored bytes can become, which is asked before memory is taken for it.
    const std::size_t stored = central - 30 - name_size;
    for (const auto& [method, limit] :
         {std::pair<int, std::size_t>(0, stored), {8, 1032 * stored}, {12, 1032 * stored}, {9, 0}}) {
        for (const std::size_t size : {limit, limit + 1}) {
            std::string bytes = good;
            bytes.replace(central + 10, 2, little(static_cast<unsigned>(method), 2));
            bytes.replace(central + 24, 4, little(size, 4));
            write_file(path("size.zip"), bytes);
            CZipContainer archive;
            ASSERT_TRUE(archive.OpenContainer(path("size.zip").u16string(), zip_open_read));
            EXPECT_EQ(archive.IsSizePossible(0), method != 9 && size == limit) << method << ' ' << size;
        }
    }
    for (std::size_t size = 0; size < good.size(); ++size) {
        EXPECT_EQ(read_back(good.substr(0, size)), size < end + 4 ? "cause 118" : damaged) << size;
    }
}

TEST_F(Archive, StrangeButSound) {
    const std::string text = "a document";
    const std::string good = archive_of(text, {}, 12);
    const std::size_t end = good.size() - 22;
    const std::size_t central = end - 51;
    const auto with_comment = [&](const std::string& comment) {
        return good.substr(0, good.size() - 2) + little(comment.size(), 2) + comment;
    };
    EXPECT_EQ(read_back(with_comment(std::string(65535, 'c'))), text);
    EXPECT_EQ(read_back(with_comment(std::string(65535, 'c')) + "t"), "cause 118");
    // Where blocks of the search meet within the signature.
    EXPECT_EQ(read_back(with_comment(std::string(65516, 'c'))), text);
    EXPECT_EQ(read_back(good + "tail"), text);
    EXPECT_EQ(read_back("#!/bin/sh\n" + good), text);
    EXPECT_EQ(read_back(std::string(200'000, 'P') + good), text);

    const std::string locator = "PK\6\7" + std::string(16, '\0');
    const std::string full = good.substr(0, end) + locator + good.substr(end, 8) + little(0xFFFF, 2) +
                             little(0xFFFF, 2) + good.substr(end + 12);
    EXPECT_EQ(read_back(full), "cause 120");

    // The system that made an entry says what its attributes mean; those of one that isn't known go to no file.
    write_file(path("became"), "f");
    const struct {
        char host;
        std::uint32_t attributes;
        int cause;
        unsigned mode;
    } systems[] = {
        {0, 1, 0, 0444}, {0, 0x20, 0, 0644}, {19, 0600U << 16U, 0, 0600}, {7, 1, zip_unknown_system, 0600}};
    for (const auto& system : systems) {
        std::string bytes = good;
        bytes[central + 5] = system.host;
        bytes.replace(central + 38, 4, little(system.attributes, 4));
        EXPECT_EQ(read_back(bytes), text);
        CZipContainer archive;
        const std::u16string became = path("became").u16string();
        ASSERT_TRUE(archive.OpenContainer(path("back.zip").u16string(), zip_open_read) && archive.OpenEntry(0));
        EXPECT_EQ(cause_of([&] { archive.CloseEntry(&became, true); }), system.cause);
#if !defined(_WIN32)
        EXPECT_EQ(fs::status(path("became")).permissions(), fs::perms{system.mode});
#endif
    }

    // A record behind the data, with and without its signature, as a writer makes it that can't seek.
    const std::string sums = good.substr(14, 12);
    for (const std::string& signature : {std::string(), std::string("PK\7\10")}) {
        for (const bool is_right : {true, false}) {
            std::string head = good.substr(0, central);
            head.replace(6, 2, little(8, 2)).replace(14, 12, std::string(12, '\0'));
            std::string record = signature + sums;
            if (!is_right) record.back() = '\x7F';
            std::string directory = good.substr(central);
            directory.replace(8, 2, little(8, 2));
            directory.replace(51 + 16, 4, little(central + record.size(), 4));
            EXPECT_EQ(read_back(head + record + directory), is_right ? text : "cause 101");
        }
    }
}

TEST_F(Archive, CodePagesInExtraData) {
    const std::string good = archive_of("a document");
    const std::size_t end = good.size() - 22;
    const std::size_t central = end - 51;
    struct s_row {
        std::string field;
        std::u16string name;  // empty if the header is invalid
        std::uint32_t name_page;
        std::uint32_t comment_page;
    };
    const std::string page = little(65001, 4);
    const s_row rows[] = {{"\1\1" + page, u"a.vyr", 65001, 1},
                          {"\1\3" + page + "\u00FC", u"\u00FC", 65001, 1},
                          {"\1\3" + page + "x\\\xFC", u"x/\u00FC", 65001, 1},
                          {"\1\7" + page + "b" + little(437, 4), u"b", 65001, 437},
                          {"\1\4" + little(850, 4), u"a.vyr", 1, 850},
                          {std::string("\1\0", 2), u"a.vyr", 1, 1},
                          {std::string("\2\0", 2), u"", 0, 0},
                          {"\1", u"", 0, 0},
                          {"\1\1\1\1\1", u"", 0, 0},
                          {"\1\5" + page, u"", 0, 0},
                          {"\1\4\1\1\1", u"", 0, 0}};
    for (const s_row& row : rows) {
        // A field of somebody else comes first, and a piece that is none last.
        const std::string extra =
            "\1\1" + little(3, 2) + "abc" + "LZ" + little(row.field.size(), 2) + row.field + "xy";
        std::string bytes = good;
        bytes.replace(central + 30, 2, little(extra.size(), 2));
        bytes.replace(end + 12, 4, little(51 + extra.size(), 4));
        bytes.insert(end, extra);
        write_file(path("b.zip"), bytes);
        CZipContainer archive;
        const int cause = cause_of([&] { archive.OpenContainer(path("b.zip").u16string(), zip_open_read); });
        EXPECT_EQ(cause, row.name.empty() ? 101 : 0) << &row - rows;
        if (row.name.empty() || cause != 0) continue;
        const CZipEntryHeader& header = *archive.GetEntryHeader(0);
        EXPECT_EQ(header.GetFileName(), row.name);
        EXPECT_EQ(header.name_code_page, row.name_page);
        EXPECT_EQ(header.comment_code_page, row.comment_page);
        EXPECT_EQ(header.central_extra.size(), 2U);
    }
}

TEST_F(Archive, FilesThatCantBeOpenedCarryTheirNameAndErrno) {
    const auto open = [](const std::u16string& path, int mode) { CZipContainer().OpenContainer(path, mode); };
    fs::create_directories(path("folder.zip"));
#if defined(_WIN32)
    EXPECT_EQ(cause_of([&] { open(path("folder.zip").u16string(), zip_open_create); }), EACCES);
#else
    ASSERT_EQ(::mkfifo(path("pipe.zip").c_str(), 0600), 0);
    EXPECT_EQ(cause_of([&] { open(path("pipe.zip").u16string(), zip_open_read); }), ESPIPE);
    EXPECT_EQ(cause_of([&] { open(path("folder.zip").u16string(), zip_open_create); }), EISDIR);
#endif
    EXPECT_EQ(cause_of([&] { open(path("missing.zip").u16string(), zip_open_read); }), ENOENT);
    EXPECT_EQ(cause_of([&] { open(u"\xD800.zip", zip_open_create); }), ENOENT);
    EXPECT_EQ(cause_of([&] { open(u"a", 3); }), 105);
    try {
        open(u"missing/\u00E9.zip", zip_open_create);
        FAIL();
    } catch (const std::exception& failure) {
        EXPECT_STREQ(failure.what(), "missing/\u00E9.zip: No such file or directory");
        EXPECT_EQ(dynamic_cast<const CZipException&>(failure).GetFileName(), u"missing/\u00E9.zip");
    }
}

}  // namespace
}  // namespace vyr_test
