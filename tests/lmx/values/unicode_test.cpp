// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Conversions between UTF-8 and UTF-16: single cases, and random text against a plain reference.

#include "lmx/values/unicode.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "lmx/values/utf8.h"

namespace {

/// UTF-8 to UTF-16 one character at a time, as the conversion is defined.
std::u16string reference_wide(const std::string& source) {
    std::u16string target;
    int pending = 0;
    for (std::size_t i = 0; i < source.size();) {
        const auto lead = static_cast<unsigned char>(source[i]);
        int c = 0;
        if (!lmx::utf8_to_unicode_char(source.c_str() + i, &c)) return target;  // also where the text breaks off
        i += lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        if (pending != 0) {
            if (c < 0xDC00 || c > 0xDFFF) return target;
            target += static_cast<char16_t>(pending);
            target += static_cast<char16_t>(c);
            pending = 0;
        } else if (c >= 0xD800 && c <= 0xDBFF) {
            pending = c;
        } else if (c > 0xFFFF) {
            target += static_cast<char16_t>(0xD800 + ((c - 0x10000) / 1024) % 1024);
            target += static_cast<char16_t>(0xDC00 + (c - 0x10000) % 1024);
        } else {
            target += static_cast<char16_t>(c);
        }
    }
    return target;
}

/// UTF-16 to UTF-8 one unit at a time.
std::string reference_narrow(const std::u16string& source) {
    std::string target;
    for (std::size_t i = 0; i < source.size(); ++i) {
        int c = source[i];
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < source.size()) {
            const int next = source[++i];
            if (next >= 0xDC00 && next <= 0xDFFF) c = 0x10000 + (c - 0xD800) * 1024 + (next - 0xDC00);
        }
        char buffer[5];
        const std::string bytes = lmx::unicode_char_to_utf8(c, buffer);
        target += c == 0 ? std::string(1, '\0') : bytes;
    }
    return target;
}

std::u16string wide(const std::string& source) {
    std::u16string target = u"old";
    return lmx::vtostring(target, source);
}

std::string narrow(const std::u16string& source) {
    std::string target = "old";
    return lmx::convert(&target, source);
}

TEST(Unicode, CharactersDecodeUpToTheFirstBadByte) {
    const struct {
        const char* text;
        bool is_good;
        int c;
    } cases[] = {{"A", true, 'A'},
                 {"", true, 0},
                 {"\xC0\x80", true, 0},           // overlong
                 {"\xED\xA0\x80", true, 0xD800},  // surrogate
                 {"\xF7\xBF\xBF\xBF", true, 0x1FFFFF},
                 {"\x80", false, -1},
                 {"\xF8\x80", false, -1},
                 {"\xFF", false, -1},
                 {"\xE2\x82", false, 0x82},
                 {"\xE2", false, 2},
                 {"\xC3\xC3", false, 3}};
    for (const auto& row : cases) {
        int c = -99;
        EXPECT_EQ(lmx::utf8_to_unicode_char(row.text, &c), row.is_good) << testing::PrintToString(row.text);
        EXPECT_EQ(c, row.c) << testing::PrintToString(row.text);
    }
}

// The round trip of all characters is asked below.
TEST(Unicode, CharactersEncodeWithAClosingNull) {
    const struct {
        int c;
        const char* text;
    } cases[] = {{0, ""}, {-1, "\xFF"}, {-256 + 'A', "A"}};
    for (const auto& row : cases) {
        char buffer[5] = {'#', '#', '#', '#', '#'};
        EXPECT_EQ(lmx::unicode_char_to_utf8(row.c, buffer), buffer);
        EXPECT_STREQ(buffer, row.text) << row.c;
    }
}

TEST(Unicode, SequencesAreJudgedByTheirFirstTwoBytes) {
    // Lead byte, and the range of second bytes that are good behind it.
    const struct {
        int lead, first, last;
    } cases[] = {{0x00, 0, 255},     {0x7F, 0, 255},     {0x80, 1, 0},       {0xC1, 1, 0},   {0xC2, 0, 255},
                 {0xDF, 0, 255},     {0xE0, 0xA0, 0xBF}, {0xE1, 0, 255},     {0xEC, 0, 255}, {0xED, 0x80, 0x9F},
                 {0xEE, 0, 255},     {0xEF, 0, 255},     {0xF0, 0x90, 0xBF}, {0xF1, 0, 255}, {0xF3, 0, 255},
                 {0xF4, 0x80, 0x8F}, {0xF5, 1, 0},       {0xFF, 1, 0}};
    for (const auto& row : cases) {
        for (int second = 0; second < 256; ++second) {
            const char text[] = {static_cast<char>(row.lead), static_cast<char>(second), '\0'};
            EXPECT_EQ(lmx::is_valid_utf8_char_sequence(text), second >= row.first && second <= row.last)
                << row.lead << ' ' << second;
        }
    }
}

TEST(Unicode, OnlyWholeCharactersOfUtf8AreFirstOnes) {
    for (int c = 1; c < 0x110000; ++c) {
        std::array<char, 5> buffer{};
        const std::string text = std::string(lmx::unicode_char_to_utf8(c, buffer.data())) + "\xBF";
        const bool is_surrogate = c >= 0xD800 && c <= 0xDFFF;
        const lmx::utf8::s_character first = lmx::utf8::first_character(text);
        ASSERT_EQ(first.size, is_surrogate ? 0 : text.size() - 1) << c;
        ASSERT_EQ(first.code, is_surrogate ? 0xEDU : static_cast<char32_t>(c));
        int decoded = 0;
        ASSERT_TRUE(lmx::utf8_to_unicode_char(text.c_str(), &decoded) && decoded == c) << c;
        if (text.size() == 2) continue;
        ASSERT_EQ(lmx::utf8::first_character(text.substr(0, text.size() - 2)).size, 0U) << c;
    }
    for (const char* const bad : {"\x80", "\xBF\x80", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF",
                                  "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xFF", "\xE2\x80(", "\xC3\xC3\xA9"}) {
        const lmx::utf8::s_character first = lmx::utf8::first_character(bad);
        EXPECT_EQ(first.size, 0U) << bad;
        EXPECT_EQ(first.code, static_cast<unsigned char>(*bad));
    }
}

TEST(Unicode, RandomTextConvertsAsTheReferenceDoes) {
    std::mt19937 engine(20240229);
    const auto below = [&](unsigned n) { return static_cast<unsigned>(engine() % n); };
    const std::string pieces[] = {
        "ASCII text ",      "0123456789abcdef",         "x",           "\xC3\xA4", "\xE2\x82\xAC",
        "\xF0\x9F\x98\x80", "\xED\xA0\xBD\xED\xB8\x80", "\xED\xB8\x80"};
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (unsigned n = below(9); n > 0; --n) text += pieces[below(8)];
        if (!text.empty() && below(2) == 0)
            text[below(static_cast<unsigned>(text.size()))] = static_cast<char>(below(256));
        if (!text.empty() && below(4) == 0) text.resize(below(static_cast<unsigned>(text.size())));
        ASSERT_EQ(wide(text), reference_wide(text)) << testing::PrintToString(text);

        std::u16string units;
        for (unsigned n = below(60); n > 0; --n) {
            const unsigned kind = below(16);
            units += static_cast<char16_t>(kind == 0   ? 0xD800 + below(0x400)
                                           : kind == 1 ? 0xDC00 + below(0x400)
                                           : kind == 2 ? below(0x10000)
                                                       : below(0x80));
        }
        ASSERT_EQ(narrow(units), reference_narrow(units)) << testing::PrintToString(units);
    }
}

TEST(Unicode, LengthCountsCharacters) {
    const struct {
        const char* text;
        std::size_t length;
    } cases[] = {{"", 0},
                 {"abc", 3},
                 {"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", 3},
                 {"\xED\xA0\xBD\xED\xB8\x80", 1},  // a pair of surrogates
                 {"\xED\x9F\xBFz", 2},             // the same lead, but no surrogate
                 {"\xED\xA0\xBDwxyz", 2},          // the step of six bytes doesn't look at the partner
                 {"\x80zz", 1},
                 {"ab\xFFzz", 3},
                 {"a\xF0", 2}};
    for (const auto& row : cases) EXPECT_EQ(lmx::length(row.text), row.length) << testing::PrintToString(row.text);
}

TEST(Unicode, LengthBoundsDecideByBytesWhereTheyCan) {
    EXPECT_TRUE(lmx::is_max_length_ok("", 0));
    EXPECT_TRUE(lmx::is_max_length_ok("a", 1));
    EXPECT_FALSE(lmx::is_max_length_ok("ab", 1));
    EXPECT_TRUE(lmx::is_max_length_ok("\xF0\x9F\x98\x80", 1));
    EXPECT_FALSE(lmx::is_max_length_ok("abcdef", 1));
    // Counting would stop at the bad byte and allow it; six bytes can't be one character.
    EXPECT_FALSE(lmx::is_max_length_ok("\x80zzzzz", 1));
    EXPECT_TRUE(lmx::is_min_length_ok("", 0));
    EXPECT_FALSE(lmx::is_min_length_ok("", 1));
    EXPECT_TRUE(lmx::is_min_length_ok("\x80zzzzzzz", 2));
    EXPECT_FALSE(lmx::is_min_length_ok("\x80zzzzzz", 2));
    EXPECT_FALSE(lmx::is_min_length_ok("\xC3\xA4", 2));
    EXPECT_FALSE(lmx::is_min_length_ok("abc", std::size_t{1} << (8 * sizeof(std::size_t) - 1)));
    EXPECT_TRUE(lmx::is_max_length_ok("abc", std::size_t{1} << (8 * sizeof(std::size_t) - 1)));
}

TEST(Utf16, IsWellFormedWithoutHalfPairs) {
    for (const char16_t* const text : {u"", u"a\u00E9", u"\U0001F3A8", u"\U0001F3A8\U0001F3A8x"}) {
        EXPECT_TRUE(lmx::is_well_formed(text));
    }
    const std::u16string high(1, 0xD83C), low(1, 0xDFA8);
    for (const std::u16string& text : {high, low, u"x" + high, high + u"x", low + high, high + high + low}) {
        EXPECT_FALSE(lmx::is_well_formed(text));
    }
}

}  // namespace
