// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Integers kept as text.

#include "lmx/values/big_int.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <sstream>

namespace {

using lmx::c_big_int;

TEST(BigInt, ParsingTakesTheLeadingInteger) {
    const struct {
        const char* text;
        const char* canonical;
    } cases[] = {{"+007", "7"}, {"-007", "-7"}, {"-0", "0"},  {"", "0"},    {"x", "0"},
                 {"-x", "0"},   {"12x", "12"},  {"000", "0"}, {"--5", "0"}, {"-12.5", "-12"}};
    for (const auto& row : cases) {
        EXPECT_EQ(c_big_int(row.text).get_as_string(), row.canonical) << row.text;
        EXPECT_EQ(c_big_int(std::string(row.text)).get_as_string(), row.canonical) << row.text;
    }
    EXPECT_EQ(c_big_int().get_as_string(), "0");
    EXPECT_EQ(c_big_int(LONG_MIN).get_as_string(), std::to_string(LONG_MIN));
    EXPECT_EQ(c_big_int(ULLONG_MAX).get_as_string(), std::to_string(ULLONG_MAX));
    c_big_int value = 5U;
    EXPECT_TRUE(value == 5ULL && value == std::int8_t{5} && value < std::size_t{6});
    value = 0;
    value = "99999999999999999999";
    std::ostringstream stream;
    stream << value;
    EXPECT_EQ(stream.str(), "99999999999999999999");
}

TEST(BigInt, GetFlagsEveryMagnitudeBeyondThePositiveRange) {
    const struct {
        const char* text;
        std::int32_t value;
        bool overflow;
    } cases[] = {{"0", 0, false},
                 {"-7", -7, false},
                 {"2147483647", INT32_MAX, false},
                 {"-2147483647", -INT32_MAX, false},
                 {"-2147483648", INT32_MIN, true},
                 {"2147483648", INT32_MIN, true},
                 {"2147483650", INT32_MIN + 2, true},
                 {"4294967296", 0, true},
                 {"4294967301", 5, true},
                 {"99999999999999999999", 1661992959, true}};
    for (const auto& row : cases) {
        bool overflow = !row.overflow;
        EXPECT_EQ(c_big_int(row.text).get(&overflow), row.value) << row.text;
        EXPECT_EQ(overflow, row.overflow) << row.text;
        EXPECT_EQ(c_big_int(row.text).get(nullptr), row.value);
        EXPECT_DOUBLE_EQ(c_big_int(row.text).get_as_float(), std::atof(row.text));
    }
}

/// Holds all forms of all operators against one sign: of `value` less `text`.
void expect_order(const c_big_int& value, const std::string& text, int sign) {
    SCOPED_TRACE(value.get_as_string() + " and " + text);
    const auto check = [](const auto& a, const auto& b, int order) {
        EXPECT_TRUE((a == b) == (order == 0) && (a != b) == (order != 0));
        EXPECT_TRUE((a > b) == (order > 0) && (a >= b) == (order >= 0));
        EXPECT_TRUE((a < b) == (order < 0) && (a <= b) == (order <= 0));
    };
    check(value, text, sign);
    check(text, value, -sign);
    check(value, text.c_str(), sign);
    check(text.c_str(), value, -sign);
    check(value, c_big_int(text), sign);
}

TEST(BigInt, ComparesWithTextOfAnyLength) {
    const char* const ascending[] = {"-99999999999999999999",
                                     "-2147483649",
                                     "-2147483648",
                                     "-10",
                                     "-8",
                                     "-7",
                                     "-6",
                                     "0",
                                     "2",
                                     "7",
                                     "99",
                                     "100",
                                     "2147483647",
                                     "99999999999999999999"};
    for (std::size_t i = 0; i < std::size(ascending); ++i) {
        for (std::size_t k = 0; k < std::size(ascending); ++k) {
            expect_order(c_big_int(ascending[i]), ascending[k], static_cast<int>(i) - static_cast<int>(k));
        }
    }
    for (const char* const zero : {"-0", "-000", "+0"}) {
        for (const int value : {-7, 0, 7}) expect_order(value, zero, value);
    }
    expect_order(7, "+007", 0);
    expect_order(-7, "-007", 0);
}

TEST(BigInt, NullIsZeroAndNothingEqualsTheEmptyText) {
    const char* const null = nullptr;
    EXPECT_TRUE(c_big_int(0) == null);
    EXPECT_TRUE(c_big_int(1) > null);
    EXPECT_FALSE(c_big_int(0) == "");
    EXPECT_FALSE(c_big_int(5) > "");
    EXPECT_TRUE(c_big_int(5) < "");
    EXPECT_TRUE(c_big_int(5) != std::string());
    // Text that is no integer is taken as it stands.
    EXPECT_TRUE(c_big_int(0) == "+" && c_big_int(0) > "+." && c_big_int(0) < "+:" && c_big_int(0) == "-0x");
    EXPECT_TRUE(c_big_int(5) < "5 " && c_big_int(-5) > "-5 " && c_big_int(-5) < "-");
}

TEST(BigInt, LeavesTheComparisonOfTextsAlone) {
    using namespace lmx;  // as a host may
    char text[] = "text";
    EXPECT_TRUE(std::string("text") == text && std::string("other") < text);
}

}  // namespace
