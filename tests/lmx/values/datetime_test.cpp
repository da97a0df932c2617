// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Dates with times: shapes, assignment, text, comparison.

#include "lmx/values/datetime.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <sstream>

#include "tests/lmx/comma_locale.h"

namespace {

using lmx::c_datetime;

std::string streamed(const c_datetime& value) {
    std::ostringstream stream;
    stream << value;
    EXPECT_EQ(stream.fill(), '0');
    return stream.str();
}

TEST(Datetime, CheckLooksAtTheShapeOnly) {
    for (const char* text :
         {"2005-02-30T10:00:00Z", "2005-13-45T25:61:61Z", "2005-01-01T10:00:00", "-0005-01-01T10:00:00.5+01:00",
          "+12005-01-01T10:00:00.", "2005-01-01T10:00:00.-99:99", "123456789012345678901234567890-01-01T00:00:00"}) {
        EXPECT_TRUE(c_datetime::is_valid(text)) << text;
    }
    for (const char* text : {"",
                             "x",
                             "2005-01-01",
                             "205-01-01T10:00:00",
                             "2005-1-01T10:00:00",
                             "2005-01-011T10:00:00",
                             "2005-01-01t10:00:00",
                             "2005-01-01T10:00",
                             "2005-01-01T1:00:00",
                             "2005-01-01T10:00:0",
                             "2005-01-01T10:00:000",
                             "2005-01-01T10:00:00Z ",
                             "2005-01-01T10:00:00ZZ",
                             "2005-01-01T10:00:00+1:00",
                             "2005-01-01T10:00:00+01:0",
                             "2005-01-01T10:00:00+01:00Z",
                             "2005-01-01T10:00:00+0100",
                             "--2005-01-01T10:00:00",
                             " 2005-01-01T10:00:00Z",
                             "2005-01-01T10:00:00,5"}) {
        EXPECT_FALSE(c_datetime::is_valid(text)) << text;
    }
    EXPECT_FALSE(c_datetime::is_valid(std::string("2005-01-01T10:00:00Z\0", 21)));
}

TEST(Datetime, CheckTellsWhetherThereIsAZone) {
    const struct {
        const char* text;
        bool has_zone;
    } cases[] = {{"2005-01-01T10:00:00", false},
                 {"-2005-01-01T10:00:00.5", false},
                 {"2005-01-01T10:00:00Z", true},
                 {"2005-01-01T10:00:00.+01:00", true},
                 {"2005-01-01T10:00:00-00:00", true}};
    for (const auto& row : cases) {
        bool has_zone = !row.has_zone;
        EXPECT_TRUE(c_datetime::is_valid(row.text, &has_zone)) << row.text;
        EXPECT_EQ(has_zone, row.has_zone) << row.text;
    }
}

TEST(Datetime, TextComesBackFromItsFields) {
    const struct {
        const char* text;
        const char* canonical;
    } cases[] = {{"2005-02-30T10:00:00Z", "2005-02-30T10:00:00Z"},
                 {"2005-01-01T10:20:30", "2005-01-01T10:20:30"},
                 {"2005-01-01T10:20:05.50+01:00", "2005-01-01T10:20:05.5+01:00"},
                 {"2005-01-01T10:20:30.-09:05", "2005-01-01T10:20:30-09:05"},
                 {"2005-01-01T10:20:30+99:99", "2005-01-01T10:20:30+100:39"},
                 {"2005-01-01T10:20:30+00:00", "2005-01-01T10:20:30"},
                 {"2005-01-01T10:20:00.0005Z", "2005-01-01T10:20:00.000500Z"},
                 {"2005-01-01T10:20:00.0015Z", "2005-01-01T10:20:00.0015Z"},
                 {"-2005-01-01T00:00:00Z", "-2005-01-01T00:00:00Z"},
                 {"-0005-01-01T00:00:00Z", "00-5-01-01T00:00:00Z"},
                 {"+12005-01-01T00:00:00Z", "12005-01-01T00:00:00Z"},
                 {"4294967301-01-01T00:00:00Z", "0005-01-01T00:00:00Z"},
                 {"-2147483648-01-01T00:00:00Z", "-2147483648-01-01T00:00:00Z"}};
    for (const auto& row : cases) {
        const c_datetime value(row.text);
        EXPECT_EQ(value.get_as_string(), row.canonical) << row.text;
        EXPECT_EQ(streamed(value), row.canonical) << row.text;
    }
    EXPECT_EQ(c_datetime().get_as_string(), "0001-00-00T00:00:00");
}

TEST(Datetime, AssignmentStopsAtTheFirstMismatch) {
    const c_datetime before("-2001-02-03T04:05:06+01:00");
    const struct {
        const char* text;
        const char* result;
    } cases[] = {{"", "-2001-02-03T04:05:06+01:00"},
                 {"x", "-2001-02-03T04:05:06+01:00"},
                 {"2010", "2010-02-03T04:05:06+01:00"},
                 {"201-10-11T12:13:14Z", "0201-02-03T04:05:06+01:00"},
                 {"-2010-10", "2010-10-03T04:05:06+01:00"},  // the sign comes last, and is never reached
                 {"2010-10-11 12", "2010-10-11T04:05:06+01:00"},
                 {"2010-10-11T12:13:1", "2010-10-11T12:13:01+01:00"},
                 {"2010-10-11T12:13:14Z ", "2010-10-11T12:13:14+01:00"},
                 {"2010-10-11T12:13:14+5:00", "2010-10-11T12:13:14+01:00"},
                 {"2010-10-11T12:13:14", "2010-10-11T12:13:14"},
                 {"2010-10-11T12:13:14Z", "2010-10-11T12:13:14Z"}};
    for (const auto& row : cases) {
        c_datetime value = before;
        value = row.text;
        EXPECT_EQ(value.get_as_string(), row.result) << row.text;
    }
    c_datetime utc("2010-10-11T12:13:14Z");
    utc = "2010-10-11T12:13:14+01:00";
    EXPECT_EQ(utc.get_as_string(), "2010-10-11T12:13:14+01:00");
}

TEST(Datetime, OffsetsFollowTheSignOfTheHours) {
    c_datetime value;
    value.set_offset(-5, 30);
    EXPECT_EQ(value.get_total_offset_mins(), -330);
    EXPECT_FALSE(value.get_is_utc());
    value.set_offset_mins(5, 30);
    EXPECT_EQ(value.get_total_offset_mins(), 330);
    value.set_offset(0, 0);
    EXPECT_TRUE(value.get_is_utc());
    value.set_is_utc(false);
    value.set_total_offset_mins(0);
    EXPECT_FALSE(value.get_is_utc());
    value.set_offset(std::numeric_limits<std::int32_t>::min(), 4294967295U);  // wraps, but is defined
    value.set_total_offset_mins(std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(value.get_as_string(), "0001-00-00T00:00:00-35791394:08");
}

TEST(Datetime, OrderIgnoresTheZone) {
    const char* const ascending[] = {"-0002-01-01T00:00:00Z", "2005-01-01T10:00:00Z", "2005-01-01T10:00:00.5Z",
                                     "2005-01-01T10:01:00Z",  "2005-01-01T11:00:00Z", "2005-01-02T00:00:00Z",
                                     "2005-02-01T00:00:00Z",  "2006-01-01T00:00:00Z"};
    for (std::size_t i = 0; i + 1 < std::size(ascending); ++i) {
        const c_datetime a(ascending[i]);
        const c_datetime b(ascending[i + 1]);
        EXPECT_TRUE(a < b && a <= b && a != b && b > a && b >= a) << ascending[i];
        EXPECT_FALSE(a == b || a > b || a >= b || b < a || b <= a) << ascending[i];
    }
    const c_datetime utc("2005-01-01T12:00:00Z");
    const c_datetime east("2005-01-01T12:00:00+05:00");
    EXPECT_TRUE(utc == east && utc <= east && utc >= east);
    EXPECT_FALSE(utc != east || utc < east || utc > east);
}

TEST(Datetime, BothTextFormsAgreeOnRandomFields) {
    std::mt19937 engine(11);
    const auto random = [&] { return static_cast<unsigned>(engine()); };
    const float seconds[] = {0.0F,
                             -0.0F,
                             0.001F,
                             0.00099999F,
                             1e-38F,
                             9.9999999F,
                             10.0F,
                             59.999F,
                             1e30F,
                             -5.0F,
                             -3.4e38F,
                             123456.7F,
                             std::numeric_limits<float>::infinity(),
                             std::numeric_limits<float>::quiet_NaN()};
    for (int round = 0; round < 20000; ++round) {
        c_datetime value;
        const unsigned shift = random() % 32;
        value.set_year(static_cast<std::int32_t>(random()) >> shift);
        value.set_month(random() >> shift);
        value.set_day(random() % 100);
        value.set_hours(random() % 100);
        value.set_mins(random() % 100);
        value.set_secs(random() % 2 == 0 ? seconds[random() % std::size(seconds)]
                                         : static_cast<float>(random() % 60000) / 1000.0F);
        value.set_total_offset_mins(static_cast<std::int32_t>(random()) >> shift);
        value.set_is_utc(random() % 4 == 0);
        ASSERT_EQ(value.get_as_string(), streamed(value));
    }
}

TEST(Datetime, TextDoesNotDependOnTheGlobalLocale) {
    const c_global_comma_locale comma;
    EXPECT_EQ(c_datetime("2005-01-01T10:00:01.5Z").get_as_string(), "2005-01-01T10:00:01.5Z");
}

}  // namespace
