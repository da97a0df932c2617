// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Lexical checks and conversions of booleans and numbers.

#include "lmx/values/scalars.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ios>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/lmx/comma_locale.h"

namespace {

TEST(Scalars, Booleans) {
    for (const char* text : {"true", "1"}) {
        EXPECT_TRUE(lmx::is_valid_bool(text) && lmx::text_to_bool(text)) << text;
        EXPECT_EQ(lmx::bool_must_understand(text), lmx::ELMX_MUST_UNDERSTAND_YES);
    }
    for (const char* text : {"false", "0"}) {
        EXPECT_TRUE(lmx::is_valid_bool(text) && !lmx::text_to_bool(text)) << text;
        EXPECT_EQ(lmx::bool_must_understand(text), lmx::ELMX_MUST_UNDERSTAND_NO);
    }
    for (const char* text : {"", " true", "True", "TRUE", "00", "10", "true "}) {
        EXPECT_FALSE(lmx::is_valid_bool(text) || lmx::text_to_bool(text)) << text;
        EXPECT_EQ(lmx::bool_must_understand(text), lmx::ELMX_MUST_UNDERSTAND_UNKNOWN);
    }
}

TEST(Scalars, FloatForms) {
    for (const char* text : {"0", "5", "5.", ".5", "5.5", "-5", "+5", "1E5", "-1.5e-3", "1e+007", "INF", "-INF",
                             "NaN", "00.00", "99999999999999999999999999999999999999999999.5"}) {
        EXPECT_TRUE(lmx::is_valid_float(text)) << text;
    }
    for (const char* text : {"",    ".",    "-",   "+.",   "1e",   "1e+",  "e5",   ".e5",   "+INF", "-NaN",    "inf",
                             "nan", "INF ", "1,5", "1.5 ", " 1.5", "1.5f", "0x10", "1.2.3", "--1",  "infinity"}) {
        EXPECT_FALSE(lmx::is_valid_float(text)) << text;
    }
    EXPECT_FALSE(lmx::is_valid_float(std::string("1\0", 2)));
}

TEST(Scalars, IntegerForms) {
    for (const char* text : {"0", "-0", "+7", "007", "123456789012345678901234567890"}) {
        EXPECT_TRUE(lmx::is_valid_integer(text)) << text;
    }
    for (const char* text : {"", "-", "+", "1.", "1e5", " 1", "1 ", "+-1", "0x1", "\xD9\xA1"}) {
        EXPECT_FALSE(lmx::is_valid_integer(text)) << text;
    }
    EXPECT_FALSE(lmx::is_valid_integer(std::string("1\0+", 3)));
}

TEST(Scalars, DigitCountsStripNothing) {
    EXPECT_EQ(lmx::total_digits("007.50"), 5);
    EXPECT_EQ(lmx::fraction_digits("007.50"), 2);
    EXPECT_EQ(lmx::total_digits(""), 0);
    EXPECT_EQ(lmx::fraction_digits("75"), 0);
    EXPECT_EQ(lmx::fraction_digits("75."), 0);
    EXPECT_EQ(lmx::fraction_digits("1.2.34"), 3);
}

TEST(Scalars, IntegersKeepTheirLowBitsOrAreHeldAtTheGreatest) {
    EXPECT_EQ(lmx::text_to_int("-2147483648"), INT32_MIN);
    EXPECT_EQ(lmx::text_to_int("2147483647"), INT32_MAX);
    EXPECT_EQ(lmx::text_to_int("4294967297"), 1);
    EXPECT_EQ(lmx::text_to_int(" +12x"), 12);
    EXPECT_EQ(lmx::text_to_int("x"), 0);
    EXPECT_EQ(lmx::text_to_int(""), 0);
    EXPECT_EQ(lmx::text_to_int("99999999999999999999"), -1);  // held at the greatest 64-bit number first
    EXPECT_EQ(lmx::text_to_byte("99"), 99);
    EXPECT_EQ(lmx::text_to_byte("257"), 1);
    EXPECT_EQ(lmx::text_to_unsigned("4294967295"), UINT32_MAX);
    EXPECT_EQ(lmx::text_to_unsigned("-1"), UINT32_MAX);
    EXPECT_EQ(lmx::text_to_unsigned(" -4294967295x"), 1U);
    for (const char* text :
         {"4294967296", "+4294967301", "-4294967296", "18446744073709551615", "-18446744073709551615",
          "18446744073709551617", "-99999999999999999999", "99999999999999999999"}) {
        EXPECT_EQ(lmx::text_to_unsigned(text), UINT32_MAX) << text;
    }
}

bool same_bits(double a, double b) { return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b); }

struct s_number {
    const char* text;
    double value;
};

void expect_number(const std::string& text, double value) {
    EXPECT_TRUE(same_bits(lmx::text_to_double(text), value))
        << '"' << text << "\" " << std::hexfloat << lmx::text_to_double(text) << " instead of " << value;
}

TEST(TextToDouble, WordsAreThoseOfTheSchema) {
    EXPECT_TRUE(std::isnan(lmx::text_to_double("NaN")));
    EXPECT_EQ(lmx::text_to_double("INF"), HUGE_VAL);
    EXPECT_EQ(lmx::text_to_double("-INF"), -HUGE_VAL);
    EXPECT_TRUE(same_bits(lmx::text_to_double("-0"), -0.0));
}

TEST(TextToDouble, IsTheNearestNumber) {
    constexpr s_number rows[] = {
        {"1", 1},
        {"+1.5", 1.5},
        {"5.", 5},
        {".5", 0.5},
        {"-.5e1", -5},
        {"1e22", 1e22},
        {"1e23", 0x1.52d02c7e14af6p+76},
        {"0.1", 0x1.999999999999ap-4},
        {"999999999999999", 999999999999999},
        {"-.999999999999999", -0x1.ffffffffffff7p-1},
        {"0.0000000000000001", 0x1.cd2b297d889bcp-54},
        {"9007199254740993", 9007199254740992},  // halfway, then not
        {"9007199254740993.00000000000000000000000000000000000001", 9007199254740994},
        {"1.00000000000000011102230246251565404236316680908203125", 1},
        {"1.00000000000000011102230246251565404236316680908203126", 0x1.0000000000001p0},
        {"2.2250738585072014e-308", 0x1p-1022},
        {"2.2250738585072011e-308", 0x0.fffffffffffffp-1022},
        {"4.9e-324", 0x1p-1074},
        {"-2.5e-324", -0x1p-1074},
        {"2.4e-324", 0},
        {"1.7976931348623158e308", 0x1.fffffffffffffp1023},
        {"1.7976931348623159e308", HUGE_VAL},
        {"-1e309", -HUGE_VAL},
        {"-1e-400", -0.0},
        {"1e99999999999999999999", HUGE_VAL},
        {"-1e-99999999999999999999", -0.0},
        {"0e99999999999999999999", 0},
    };
    for (const auto& [text, value] : rows) expect_number(text, value);
    for (const std::size_t size : {400U, 800U, 100000U}) {
        const std::string zeros(size, '0');
        const std::string places = std::to_string(size);
        expect_number("0." + std::string(size, '3'), 0x1.5555555555555p-2);
        expect_number(zeros + "1.5e-3", 0x1.89374bc6a7efap-10);
        expect_number('1' + zeros + "e-" + places, 1);
        expect_number("0." + zeros + "1e+" + places, 0x1.999999999999ap-4);
        // Too large or too small, whatever the exponent's sign.
        expect_number('-' + std::string(size, '7') + ".5", -HUGE_VAL);
        expect_number('1' + zeros + "e-9", HUGE_VAL);
        expect_number("-0." + zeros + "1e9", -0.0);
    }
    std::mt19937_64 random(7);
    char text[64];
    for (int round = 0; round < 50000; ++round) {
        const auto value = std::bit_cast<double>(random());
        if (std::isfinite(value)) {
            std::snprintf(text, sizeof text, "%.*g", 17 + static_cast<int>(random() % 6), value);
            expect_number(text, value);
        }
        const auto whole = static_cast<unsigned>(random() % 1000);
        const auto millionths = static_cast<unsigned>(random() % 1000000);
        std::snprintf(text, sizeof text, "%u.%06u", whole, millionths);
        expect_number(text, (whole * 1e6 + millionths) / 1e6);
    }
}

TEST(TextToDouble, IsTheSameOfOddTextOnAllSystems) {
    const auto nan_of = [](std::uint64_t bits) { return std::bit_cast<double>(bits); };
    const std::pair<double, std::vector<const char*>> numbers[] = {
        {0,
         {"", " ", "x", "+", "-", ".", ".e5", "--5", "+-5", "-+5", "+ 5", "\2401", "0x", "0x-1", "0xinf",
          "0x1p-99999999999999999999", "0x0p99999999999999999999", "in"}},
        {-1.5, {" \t\n\v\f\r-1.5"}},
        {1.5, {"1.5x", "1.5 2", "1.5D2"}},
        {1, {"1,5", "1e", "1e+", "1e+-5", "0x1p", "0x1p+", "0x1p+-3", "0x1.00000000000008"}},
        {1.2, {"1.2.3"}},
        {1e5, {"1e5e5"}},
        {2.5, {"2.5d3"}},
        {HUGE_VAL, {"1e999x", "0x1.fffffffffffff8p1023", "inf"}},
        {16, {"0x10"}},
        {-31, {"-0X1F"}},
        {8, {"0x1p3"}},
        {0.5, {"0x.8", "0x1.p-1"}},
        {-0.0, {"-0x", "-0x.p1", "-0x1p-1075"}},
        {0x1.0000000000002p0, {"0x1.00000000000018"}},
        {0x1.0000000000001p0, {"0x1.0000000000000800000000000000000000001"}},
        {0x0.de2ec7ef6611fp-1022, {"0x1.bc5d8fdecc23d8p-1023"}},
        {0x1p-1074, {"0x1p-1074", "0x1.8p-1075"}},
        {0x1.fffffffffffffp1023, {"0x1.fffffffffffff7p1023"}},
        {-HUGE_VAL, {"-0x1p99999999999999999999", "-InFiNiTyx"}},
        {nan_of(0x7FF8000000000000), {"nan", "+NaN(", "nan()", "nan(08)", "nan(12_)", "nan(0x)"}},
        {nan_of(0xFFF8000000000000), {"-nan"}},
        {nan_of(0xFFF800000000007B), {"-nan(123)"}},
        {nan_of(0x7FF800000000001F), {"nan(0X1f)"}},
        {nan_of(0x7FF800000000000F), {"nan(017)"}},
        {nan_of(0x7FFFFFFFFFFFFFFF), {"nan(99999999999999999999)"}},
    };
    for (const auto& [value, texts] : numbers) {
        for (const char* const text : texts) expect_number(text, value);
    }
    expect_number(std::string("1\0.5", 4), 1);
    const std::string zeros(1000, '0');
    expect_number("0x1" + zeros + "p-4000", 1);
    expect_number("0x" + std::string(1000, 'f') + "p-9", HUGE_VAL);
    expect_number("-0x." + zeros + "1p9", -0.0);
}

TEST(TextToDouble, TakesShortDecimalsOutOfALongerText) {
    std::mt19937 random(11);
    const auto digits = [&random](std::size_t count) {
        std::string text;
        while (text.size() < count) text += static_cast<char>('0' + random() % 10);
        return text;
    };
    for (int round = 0; round < 50000; ++round) {
        const std::size_t whole = random() % 10;
        const std::size_t places = random() % 10;
        const std::string number = (random() % 2 == 0 ? "-" : "") + digits(whole) + '.' + digits(places);
        for (const char* const tail :
             {"", "<", "</Vyr:L>", "\" Y='1'", ".5", "-1", "e1", "\xB1\xB2\xB3\xB4\xB5\xB6", ":;/"}) {
            const std::string text = number + tail;
            double value = 0.5;
            const char* const end = lmx::take_short_decimal(text.data(), text.data() + text.size(), &value);
            if (whole + places == 0 || whole + places > 15) {
                EXPECT_EQ(end, nullptr) << text;
            } else {
                ASSERT_EQ(end, text.data() + number.size()) << text;
                EXPECT_TRUE(same_bits(value, std::atof(number.c_str()))) << text;
            }
        }
    }
}

TEST(TextToDouble, KeepsTheDecimalPointUnderADecimalComma) {
    const auto check = [] {
        EXPECT_EQ(lmx::text_to_double("1.5"), 1.5);
        EXPECT_EQ(lmx::text_to_double(" 1.5x"), 1.5);
        EXPECT_EQ(lmx::text_to_double("1,5"), 1.0);
        for (const std::size_t size : {28U, 29U, 30U, 31U, 32U, 1000U}) {
            const std::string text = "1." + std::string(size, '5');
            EXPECT_EQ(lmx::text_to_double(text), 14.0 / 9) << size;
            EXPECT_EQ(lmx::text_to_double(text + 'x'), 14.0 / 9) << size;
        }
        EXPECT_EQ(lmx::text_to_double("1.5e999"), HUGE_VAL);
        EXPECT_TRUE(lmx::is_valid_float("1.5") && !lmx::is_valid_float("1,5"));
    };
    {
        const c_global_comma_locale comma;
        check();
    }

    // The C library's side needs a locale of the machine; many have none.
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8", "de_DE"}) {
        if (std::setlocale(LC_ALL, name) == nullptr) continue;
        EXPECT_EQ(std::atof("1,5"), 1.5);
        check();
        std::setlocale(LC_ALL, "C");
        return;
    }
    GTEST_SKIP() << "no locale with a decimal comma here: only the C++ side was tested";
}

}  // namespace
