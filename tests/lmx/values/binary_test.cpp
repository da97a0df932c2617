// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Bytes and their hexadecimal and base64 text.

#include "lmx/values/binary.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace {

using lmx::c_binary;

c_binary bytes(const std::string& text) {
    return c_binary(reinterpret_cast<const unsigned char*>(text.data()), text.size());
}

std::string base64(const c_binary& value) {
    std::string appended = "old ";
    value.append_base64(&appended);
    std::ostringstream stream;
    value.out_base64(stream);
    EXPECT_EQ(appended, "old " + stream.str());
    return stream.str();
}

TEST(Binary, HexDigitsMakeBytes) {
    const struct {
        const char* text;
        const char* written;
        bool is_valid;
    } cases[] = {{"", "", true},          {"ABcd", "ABCD", true}, {"0009afAF", "0009AFAF", true},
                 {"abc", "AB", false},    {"a", "", false},       {"0g", "30", false},
                 {" 0A ", "90E9", false}, {"0A\n", "0A", false},  {"\xC3\xA9", "F2", false}};
    for (const auto& row : cases) {
        EXPECT_EQ(c_binary::is_valid_hex(row.text), row.is_valid) << row.text;
        c_binary value = bytes("old");
        value.from_hex(row.text);
        std::ostringstream stream;
        stream << std::showbase << std::left << std::scientific;
        const auto flags = stream.flags();
        value.out_hex(stream);
        EXPECT_EQ(stream.str(), row.written) << row.text;
        EXPECT_TRUE(stream.flags() == flags && stream.fill() == '0');
    }
}

TEST(Binary, CheckOfBase64CountsCharacters) {
    // White space counts for nothing up to the first "="; behind it two characters may follow, and white space there
    // ends the check at once.
    for (const char* text :
         {"", "TWFu", "TQ==", "TWE=", "TWFu\n", "TW\nFu", " TWFu ", "    ", "  ", "TWFuT Q=\n", "TW= "}) {
        EXPECT_TRUE(c_binary::is_valid_base64(text)) << text;
    }
    for (const char* text : {"A", "AB", "ABC", " ", "=", "==", "A===", "TQ==\n", "AB  ", "TQ=x", "TWFu=", "T-Fu",
                             "TW\xC3\xA4", "TQ==TWFu", "TWE=TQ"}) {
        EXPECT_FALSE(c_binary::is_valid_base64(text)) << text;
    }
}

TEST(Binary, Base64DecodesAndEncodes) {
    const struct {
        const char* text;
        const char* bytes;
        const char* canonical;
    } cases[] = {{"", "", ""},
                 {"TWFu", "Man", "TWFu"},
                 {"TWE=", "Ma", "TWE="},
                 {"TQ==", "M", "TQ=="},
                 {"T W\nF\tu", "Man", "TWFu"},
                 {"-_TWFu!", "Man", "TWFu"},
                 {"TWFuT", "ManL", "TWFuTA=="},
                 {"++//", "\xFB\xEF\xFF", "++//"}};
    for (const auto& row : cases) {
        c_binary value = bytes("old");
        value.from_base64(row.text);
        EXPECT_EQ(value, bytes(row.bytes)) << row.text;
        EXPECT_EQ(base64(value), row.canonical) << row.text;
    }
}

TEST(Binary, LongValuesRoundTripOnOneLine) {
    c_binary value;
    for (unsigned i = 0; i < 1000; ++i) value += static_cast<unsigned char>(i * 7);
    const std::string text = base64(value);
    EXPECT_EQ(text.size(), 1336U);
    EXPECT_EQ(text.find('\n'), std::string::npos);
    EXPECT_TRUE(c_binary::is_valid_base64(text));
    c_binary back;
    back.from_base64(text);
    EXPECT_TRUE(back == value);
}

TEST(Binary, CopiesAreDeepAndAccessIsChecked) {
    c_binary one = bytes("abc");
    c_binary other = one;
    other.at(0) = 'x';
    other.append('d');
    EXPECT_TRUE(one == bytes("abc") && other == bytes("xbcd") && one != other);
    one.swap(other);
    EXPECT_EQ(one[3], 'd');
    one = *&one;
    EXPECT_EQ(one.size(), 4U);
    const auto words_of = [](const auto& call) {
        try {
            call();
            return std::string();
        } catch (const std::logic_error& error) {
            return std::string(error.what());
        }
    };
    EXPECT_EQ(words_of([&] { static_cast<void>(std::as_const(one).at(4)); }), "invalid vector<T> subscript");
    EXPECT_EQ(words_of([&] { one.set(one.data(), SIZE_MAX); }), "vector<T> too long");
    EXPECT_TRUE(c_binary(nullptr, 0) == c_binary() && c_binary().equal(nullptr, 0));

    one.set(one.data() + 1, 3);
    EXPECT_TRUE(one == bytes("bcd"));
    std::array<unsigned char, 4> buffer{'1', '2', '3', '4'};
    EXPECT_EQ(one.get(buffer.data(), 2), buffer.data());
    EXPECT_EQ(buffer, (std::array<unsigned char, 4>{'b', 'c', '3', '4'}));
    one.get(buffer.data(), 4);
    EXPECT_TRUE(one.equal(buffer.data(), 3) && buffer[3] == '4');
    EXPECT_FALSE(one.equal(buffer.data(), 4) || one.equal(buffer.data() + 1, 3));
}

}  // namespace
