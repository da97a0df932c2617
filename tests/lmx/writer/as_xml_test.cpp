// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Text forms: numbers against the C library, escapes and transcoding from either encoding.

#include "lmx/writer/as_xml.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <sstream>

#include "lmx/values/unicode.h"
#include "lmx/writer/xml_writer.h"
#include "tests/lmx/comma_locale.h"

namespace {

/// Both roads to the text; they must agree.
template <class T>
std::string as_xml(const T& value) {
    std::string appended = "old ";
    lmx::append_as_xml(appended, value);
    std::ostringstream stream;
    stream.precision(3);
    stream << lmx::c_as_xml<T>(value);
    EXPECT_EQ(stream.precision(), 3);
    EXPECT_EQ(appended, "old " + stream.str());
    return stream.str();
}

TEST(AsXml, SpecialNumbersHaveTheirOwnForms) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const struct {
        double value;
        const char* text;
    } cases[] = {{nan, "NaN"},      {-nan, "NaN"},       {std::numeric_limits<double>::signaling_NaN(), "NaN"},
                 {infinity, "INF"}, {-infinity, "-INF"}, {0.0, "0.0"},
                 {-0.0, "-0.0"}};
    for (const auto& row : cases) {
        EXPECT_EQ(as_xml(row.value), row.text);
        EXPECT_EQ(as_xml(static_cast<float>(row.value)), row.text);
    }
}

TEST(AsXml, NumbersAgreeWithTheCLibrary) {
    std::mt19937_64 random(3);
    const auto check = [](double value) {
        char expected[64];
        std::snprintf(expected, sizeof expected, "%.14g", value);
        char text[lmx::k_number_text_size];
        const std::size_t size = lmx::format_as_xml(text, value);
        ASSERT_EQ(std::string(text, size), expected);
    };
    // Of each way to format, the last numbers that it takes and the first that it doesn't.
    for (const double value : {1.5, 100.0, -0.1, 1.0 / 3, 9999.9999999999, 9999.99999999999, 1e-4, 9e-5, 1e14,
                               99999999999999.0, 99999999999999.96, -9999999999999.996, 1e21, -1e-300, 5e-324}) {
        check(value);
    }
    for (const float value : {0.1F, 16777216.0F, 1e-45F, 1.5F}) {
        char expected[64];
        std::snprintf(expected, sizeof expected, "%.7g", static_cast<double>(value));
        EXPECT_EQ(as_xml(value), expected);
    }
    constexpr double powers[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13};
    for (int round = 0; round < 80000; ++round) {
        // Short decimals and their neighbours, halves of the last digit, borders of the digit counts, any bits at
        // all.
        const double decimal = static_cast<double>(random() % 100'000'000'000'000) /
                               powers[random() % std::size(powers)] / (random() % 2 == 0 ? 1.0 : 1e8);
        const double shorter = static_cast<double>(random() % 100'000'000) / powers[random() % 13];
        const double any = std::bit_cast<double>(random());
        const double computed = std::ldexp(static_cast<double>(random() >> 11), -static_cast<int>(random() % 70));
        const double half = std::ldexp(static_cast<double>(random() % 40'000'000'000'000 + 1), -1);
        const double border =
            powers[random() % std::size(powers)] * (1 - std::ldexp(static_cast<double>(random() % 64), -53));
        for (const double value :
             {decimal, -decimal, std::nextafter(decimal, HUGE_VAL), -shorter, std::nextafter(shorter, 0),
              static_cast<double>(random() % 100000) / 1e4, any, computed, half, border}) {
            if (std::isfinite(value) && value != 0) check(value);
        }
        if (HasFatalFailure()) return;
    }
}

TEST(AsXml, NumbersIgnoreLocaleAndFlagsOfTheStream) {
    for (const char separator : {'.', ' '}) {
        const c_global_comma_locale comma(separator);
        std::ostringstream stream;  // takes the global locale
        stream << std::fixed << std::showpos << lmx::c_as_xml(12345.5) << '|' << lmx::c_as_xml(1.5F) << '|'
               << lmx::c_as_xml(-1234567.0123456789) << '|' << lmx::c_as_xml(1234567e30);
        EXPECT_EQ(stream.str(), "12345.5|1.5|-1234567.0123457|1.234567e+36");
        std::ostringstream document;
        lmx::c_xml_writer writer(document, "", "");
        writer(false) << 1234567 << '|' << 1234.5;
        EXPECT_EQ(document.str(), "1234567|1234.5");
    }
}

TEST(AsXml, BooleansAndBytes) {
    EXPECT_EQ(as_xml(true), "true");
    EXPECT_EQ(as_xml(false), "false");
    std::ostringstream stream;
    stream << lmx::c_as_bool_digit(true) << lmx::c_as_bool_digit(false);
    const lmx::c_binary bytes(reinterpret_cast<const unsigned char*>("Ma"), 2);
    stream << lmx::c_as_base64(bytes) << lmx::c_as_hex(bytes);
    EXPECT_EQ(stream.str(), "10TWE=4D61");
}

TEST(AsXml, FourCharactersAreEscapedAndNoOthers) {
    EXPECT_EQ(as_xml(std::string()), "");
    EXPECT_EQ(as_xml(std::string("&\"'<>\t\r\n\x01")), "&amp;&quot;&apos;&lt;>\t\r\n\x01");
    EXPECT_EQ(as_xml(std::u16string(u"&\"'<>\t\r\n\x01")), "&amp;&quot;&apos;&lt;>\t\r\n\x01");
    EXPECT_EQ(as_xml(std::string("bad \xFF\x80 stays")), "bad \xFF\x80 stays");
    EXPECT_EQ(as_xml(std::string("a\0b", 3)), std::string("a\0b", 3));
    const std::string text = "R&D";
    std::ostringstream stream;
    stream << lmx::c_as_escaped<std::string>(text) << lmx::c_as_ascii<std::string>(text);
    EXPECT_EQ(stream.str(), "R&amp;DR&D");
}

TEST(AsXml, RandomTextIsWrittenAlikeFromBothEncodings) {
    std::mt19937 engine(5);
    const auto random = [&] { return static_cast<unsigned>(engine()); };
    for (int round = 0; round < 4000; ++round) {
        // Mostly plain text, long enough to fill the piece buffer again and again.
        const unsigned odd = 1 + random() % 200;
        std::u16string text;
        for (unsigned n = random() % 2000; n > 0; --n) {
            if (random() % odd != 0) {
                text += static_cast<char16_t>('a' + random() % 26);
            } else if (random() % 40 == 0) {
                text += static_cast<char16_t>(0xD800 + random() % 0x800);
            } else if (random() % 4 == 0) {
                text += u"\U0001F600";
            } else {
                text += static_cast<char16_t>(random() % 2 == 0 ? random() % 0x80 : random() % 0xD800);
            }
        }
        std::u16string kept;  // all before the first half of a pair
        for (std::size_t i = 0; i < text.size(); ++i) {
            if ((text[i] & 0xFC00) == 0xD800) {
                if (i + 1 == text.size() || (text[i + 1] & 0xFC00) != 0xDC00) break;
                kept += text[i++];
            }
            kept += text[i];
        }
        ASSERT_EQ(as_xml(text), as_xml(lmx::convert_to_narrow(kept)));
    }
}

}  // namespace
