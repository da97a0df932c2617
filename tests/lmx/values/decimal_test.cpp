// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Decimal numbers kept as text.

#include "lmx/values/decimal.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <sstream>
#include <utility>
#include <vector>

#include "tests/lmx/comma_locale.h"

namespace {

using lmx::c_decimal;

/// What a part gives, and "!" if it overflows.
template <class Value>
std::string shown(Value (c_decimal::*get)(int, bool*) const, const c_decimal& value, int count) {
    bool overflow = false;
    const std::string text = std::to_string((value.*get)(count, &overflow));
    EXPECT_EQ(std::to_string((value.*get)(count, nullptr)), text);
    return overflow ? text + "!" : text;
}

TEST(Decimal, ParsingTakesTheLeadingNumberAndChecksAreStricter) {
    const struct {
        const char* text;
        const char* written;
        bool is_valid;
    } cases[] = {{"0", "0", true},        {"0.50", ".50", true},  {"-1.0", "-1.0", true},  {"+007.", "7", true},
                 {".5", ".5", true},      {"-0.5", "-.5", true},  {"-0", "-0", true},      {"00.00", ".00", true},
                 {"-", "-0", false},      {"", "0", false},       {".", "0", false},       {"+.x", "0", false},
                 {"1e5", "1", false},     {"1.5 ", "1.5", false}, {"1.2.3", "1.2", false}, {"1,5", "1", false},
                 {"--5.5", "--5", false}, {"+-5", "-5", false},   {" 1", "0", false},      {"-.x", "-0", false}};
    for (const auto& row : cases) {
        std::ostringstream stream;
        stream << c_decimal(row.text);
        EXPECT_EQ(stream.str(), row.written) << row.text;
        EXPECT_EQ(c_decimal(std::string(row.text)).get_as_string(), row.written) << row.text;
        EXPECT_EQ(c_decimal::is_valid(row.text), row.is_valid) << row.text;
    }
    EXPECT_FALSE(c_decimal::is_valid(std::string("1\0", 2)));
}

TEST(Decimal, NativeNumbersBecomeText) {
    const c_global_comma_locale comma;
    c_decimal assigned = "-1.25";
    assigned = 0.25;
    c_decimal set = "-1.25";
    set.set_integral(12345678);
    c_decimal cut = set;
    cut.set_fractional(12345, 2);
    cut.set_integral(-3);
    c_decimal padded = cut;
    padded.set_fractional(5, 3);
    c_decimal emptied = cut;
    emptied.set_fractional(5, 0);
    const std::pair<c_decimal, std::string> cases[] = {
        {c_decimal(), "0"},
        {c_decimal(12345, 2), "123.45"},
        {c_decimal(-5, -2), "-500"},
        {c_decimal(5, 3), ".005"},
        {c_decimal(0, 3), ".000"},
        {c_decimal(LONG_MIN, 0), std::to_string(LONG_MIN)},
        {c_decimal(7, -100000), "7" + std::string(100000, '0')},
        {c_decimal(7, 100000), "." + std::string(99999, '0') + "7"},
        {c_decimal(1.5, 3), "1.500"},
        {c_decimal(0.125, 2U), ".12"},
        {c_decimal(-0.1, 20U), "-.100000000000000"},
        {c_decimal(-0x1.8p1023, 15), "-" + std::to_string(0x1.8p1023).substr(0, 309) + "." + std::string(15, '0')},
        {c_decimal(-INFINITY, 15), "-0"},
        {assigned, ".250000000000000"},
        {set, "12345678.25"},
        {cut, "-3.12"},
        {padded, "-3.005"},
        {emptied, "-3"}};
    for (const auto& [value, text] : cases) EXPECT_EQ(value.get_as_string(), text);
}

TEST(Decimal, NoNumberAsksForATextOfItsOwnSize) {
    const std::string zeros(1000000, '0');
    c_decimal value;
    value.set_scaled(-7, INT_MIN);
    EXPECT_TRUE(value.get_as_string() == "-7" + zeros);
    value.set_scaled(7, INT_MAX);
    EXPECT_TRUE(value.get_as_string() == "." + zeros + "7");
    value.set_fractional(12, UINT_MAX);
    EXPECT_TRUE(value.get_as_string() == "." + zeros + "12");
    EXPECT_EQ(value.get_fractional(INT_MAX), 0U);
}

TEST(Decimal, PartsWrapAtThirtyTwoBits) {
    const struct {
        const char* text;
        int count;
        const char* fractional;
        const char* scaled;
    } cases[] = {{"1.2", 2, "20", "120"},
                 {"-1.239", 2, "23", "-123"},
                 {"123", -1, "0", "12"},
                 {"-123", -3, "0", "0"},
                 {"123", INT_MIN, "0", "0"},
                 {"0", INT_MAX, "0", "0"},
                 {"1.5", INT_MAX, "0!", "0!"},
                 {"21474836.47", 2, "47", "2147483647"},
                 {"0.429496729", 10, "4294967290", "-6!"},
                 {"-21474836.48", 2, "48", "-2147483648!"},
                 {"0.42949673", 10, "4!", "4!"},
                 {"0.4294967295", 10, "4294967295", "-1!"},
                 {"--5", 0, "0", "-5"},
                 {"0.4294967296", 10, "0!", "0!"}};
    for (const auto& row : cases) {
        EXPECT_EQ(shown(&c_decimal::get_fractional, row.text, row.count), row.fractional) << row.text;
        EXPECT_EQ(shown(&c_decimal::get_scaled, row.text, row.count), row.scaled) << row.text;
    }
    bool overflow = false;
    EXPECT_EQ(c_decimal("-2147483648.9").get_integral(&overflow), INT_MIN);
    EXPECT_TRUE(overflow);
    EXPECT_EQ(c_decimal("-12.345").get_as_float(), -(12 + 3 * 0.1 + 4 * (0.1 * 0.1) + 5 * (0.1 * 0.1 * 0.1)));
}

TEST(Decimal, LongerFractionsAreLesser) {
    const std::vector<c_decimal> ascending = {"-10", "-9.5", "-0", "-.6", "-.5",  "-.51", "-.512", ".01",
                                              ".51", ".5",   ".6", "0",   "1.51", "1.5",  "1",     "9.0"};
    for (std::size_t i = 0; i < ascending.size(); ++i) {
        for (std::size_t k = 0; k < ascending.size(); ++k) {
            const c_decimal& a = ascending[i];
            const c_decimal& b = ascending[k];
            SCOPED_TRACE(a.get_as_string() + " and " + b.get_as_string());
            EXPECT_TRUE((a == b) == (i == k) && (a != b) == (i != k));
            EXPECT_TRUE((a > b) == (i > k) && (a >= b) == (i >= k));
            EXPECT_TRUE((a < b) == (i < k) && (a <= b) == (i <= k));
        }
    }
    // Zeros behind a fraction make no difference, but they are digits like others: this is no strict order.
    EXPECT_TRUE(c_decimal("+01.5") == "1.500" && c_decimal("-0") == "-0.0" && c_decimal("9") == "9.0");
    EXPECT_TRUE(c_decimal(".50") < ".51" && c_decimal(".51") < ".5" && c_decimal(".5") == ".50");
}

}  // namespace
