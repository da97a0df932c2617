// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Byte sources and their decoding: encodings, line ends, line numbers, characters given back.

#include <gtest/gtest.h>

#include "tests/lmx/reader/support.h"

namespace {

using namespace lmx;
using namespace lmx_test;
using namespace std::string_literals;

/// The text and the reports. With `encoding`, that name is declared behind the first character.
std::pair<std::string, std::string> decode(const std::string& bytes, const char* encoding = nullptr) {
    c_read_string source(bytes);
    c_recorder reports;
    c_get_as_utf8 input(source, reports);
    std::string text;
    int c = input.get();
    if (encoding != nullptr) {
        const bool is_accepted = input.set_encoding(encoding);
        EXPECT_EQ(is_accepted, !reports.is_errored());
    }
    for (; c != -1; c = input.get()) text += static_cast<char>(c);
    EXPECT_TRUE(input.at_end_of_input());
    return {text, reports.m_log};
}

TEST(Encodings, CanBeDeclared) {
    const std::string mismatch = "0/15@1:Mis-match between specfied encoding and byte format;";
    const std::string wide = widen("<", true);
    const struct {
        std::string bytes;
        const char* name;
        std::string text;
        std::string reports;
    } cases[] = {
        {"<a\xE9", "iso-8859-1", "<a\xC3\xA9", ""},
        {"<a\xE9\x7F", "US-ASCII", "<a\xC3\xA9\x7F", ""},
        {"<a\xC3\xA9", "utf-8", "<a\xC3\xA9", ""},
        {wide + "\xD8\x3D\xDE\x00"s, "ISO-10646-UCS-2", "<\xED\xA0\xBD\xED\xB8\x80", ""},
        {wide + "\xD8\x3D\xDE\x00"s, "Utf-16", "<\xF0\x9F\x98\x80", ""},
        {"<a", "UTF-16", "<", mismatch},
        {wide, "UTF-8", "<", mismatch},
        {"<a", "UTF-7", "<", "0/6@1:Unknown character encoding specified;"},
        {"<a", "UTF-88", "<", "0/6@1:Unknown character encoding specified;"},
    };
    for (const auto& row : cases) {
        const auto [text, reports] = decode(row.bytes, row.name);
        EXPECT_EQ(text, row.text) << row.name;
        EXPECT_EQ(reports, row.reports) << row.name;
    }
}

TEST(Lines, CountAgainWhenGivenBack) {
    const struct {
        const char* bytes;
        std::string rest;
        int line;
        int text_line;
    } cases[] = {
        {"<\nb", "\nb", 3, 2},
        {"<\rb", "b", 2, 2},      // dropped as the second half of a pair
        {"<\r\nb", "\nb", 3, 2},  // ... whose place the true second half takes
        {"<\r\rb", "\nb", 3, 3},
        {"<\rb\nc", "b\nc", 3, 3},  // and one that was dropped takes no part in a later count
    };
    for (const auto& row : cases) {
        const std::string bytes = row.bytes;
        c_read_string source(bytes);
        c_error reports;
        c_get_as_utf8 input(source, reports);
        input.get();
        EXPECT_EQ(input.get(), '\n');
        input.unget('\n');
        std::string rest;
        for (int c = input.get(); c != -1; c = input.get()) rest += static_cast<char>(c);
        EXPECT_EQ(rest, row.rest) << testing::PrintToString(bytes);
        EXPECT_EQ(input.get_line_num(), row.line) << testing::PrintToString(bytes);
        EXPECT_EQ(input.get_text_line(), row.text_line) << testing::PrintToString(bytes);
    }
}

TEST(GivingBack, IsAStackOfThree) {
    c_unget_buffer buffer;
    for (const int c : {1, 2, 3, 4}) buffer.unget(c);
    EXPECT_EQ(buffer.get(), 4);
    EXPECT_EQ(buffer.get(), 3);
    buffer.clear();
    EXPECT_TRUE(buffer.empty());
}

TEST(Files, ServeWhatIsBufferedAheadOfARewind) {
    const c_scratch_file scratch("<abc");
    c_read_file file(scratch.k_name);
    EXPECT_EQ(file.read(), '<');
    file.rewind();
    std::string found;
    for (int c = file.read(); c != -1; c = file.read()) found += static_cast<char>(c);
    EXPECT_EQ(found, "abc<abc");

    // That ends with the block of 512 bytes in use, however much was taken at once.
    std::string bytes;
    for (int i = 0; i < 100000; ++i) bytes += static_cast<char>(i % 251);
    const c_scratch_file large(bytes);
    for (const std::size_t read : {1U, 511U, 512U, 513U, 5000U, 65535U, 65536U, 65537U, 99900U}) {
        for (const bool is_window : {false, true}) {
            c_read_file blocks(large.k_name);
            if (is_window) {
                for (std::size_t taken = 0; taken < read;) {
                    const std::size_t size = blocks.take_window().size();
                    taken += size;
                    if (taken > read) blocks.give_back(taken - read);
                }
            } else {
                for (std::size_t i = 0; i < read; ++i) blocks.read();
            }
            blocks.rewind();
            const std::size_t end = std::min(bytes.size(), (read + 511) / 512 * 512);
            std::string rest;
            for (int c = blocks.read(); c != -1; c = blocks.read()) rest += static_cast<char>(c);
            EXPECT_TRUE(rest == bytes.substr(read, end - read) + bytes) << read;
        }
    }
}

TEST(Files, HaveNamesAndMayBeMissing) {
    c_read_file missing("no such file");
    EXPECT_FALSE(missing.is_open());
    EXPECT_EQ(missing.read(), -1);
    missing.rewind();
    EXPECT_STREQ(missing.get_source_id(), "no such file");
    c_read_file wide(u"no \u00E9 \U0001F600");
    EXPECT_FALSE(wide.is_open());
    EXPECT_STREQ(wide.get_source_id(), "no \xC3\xA9 \xED\xA0\xBD\xED\xB8\x80");

    // One that is left open is read by blocks.
    const c_scratch_file scratch(std::string(2000, 'x'));
    std::FILE* const handle = std::fopen(scratch.k_name, "rb");
    {
        c_read_file kept(handle);
        kept.leave_file_open_on_delete(true);
        EXPECT_STREQ(kept.get_source_id(), "");
        EXPECT_EQ(kept.read(), 'x');
    }
    EXPECT_EQ(std::ftell(handle), 512);
    EXPECT_EQ(std::fclose(handle), 0);
    c_read_file closed(scratch.k_name);
    closed.close();
    EXPECT_FALSE(closed.is_open());
    EXPECT_EQ(closed.read(), -1);
}

}  // namespace
