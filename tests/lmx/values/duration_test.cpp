// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Durations: the loose check, assignment, text, normal form, partial order.

#include "lmx/values/duration.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>
#include <string_view>

namespace {

using lmx::c_duration;

TEST(Duration, TextIsTakenAsFarAsItGoes) {
    const struct {
        const char* text;
        bool is_valid;
        const char* result;
    } rows[] = {{"P1Y2M3DT4H5M6.5S", true, "P1Y2M3DT4H5M6.5S"},
                {"-P1D", true, "-P1D"},
                {"+PT0.0005S", true, "PT0.000500S"},
                {"P", true, "P"},
                {"-P0Y", true, "-P"},
                {"P1D2", false, "P1D"},
                {"P1D2T1H", false, "P1D"},
                {"P1DT", false, "P1D"},
                {"P1T2H", true, "PT2H"},  // nothing claims the 1 ...
                {"P1TH", true, "P"},      // ... but it lets an hour without digits pass
                {"P5TS", true, "P"},
                {"P1Y2T3M", true, "P1YT3M"},
                {"PT.5S", true, "PT0.5S"},
                {"PT1H.5S", true, "PT1H0.5S"},
                {"PT1.S", true, "PT1S"},
                {"PT1H.S", false, "PT1H"},
                {"PT1H.", false, "PT1H"},
                {"PT5Sx", false, "PT5S"},
                {"PT1M2H", false, "PT1M"},
                {"P1Y2", false, "P1Y"},
                {"P1Y2M3W", false, "P1Y2M"},
                {"P1", false, "P"},
                {"PT", false, "P"},
                {"PT5", false, "P"},
                {"PT1e1S", false, "P"},
                {"-1Y", false, "-P"},
                {" P", false, "P"},
                {"P4294967297Y", true, "P1Y"}};
    for (const auto& row : rows) {
        EXPECT_EQ(c_duration::is_valid(row.text), row.is_valid) << row.text;
        EXPECT_EQ(c_duration::is_valid(std::string(row.text)), row.is_valid) << row.text;
        c_duration value("-P9Y9M9DT9H9M9S");
        value = row.text;
        EXPECT_EQ(value.get_as_string(), row.result) << row.text;
    }
    EXPECT_FALSE(c_duration::is_valid(std::string("P1D\0", 4)));
    const std::string digits(5000, '9');
    EXPECT_TRUE(c_duration::is_valid("P" + digits + "YT" + digits + "M" + digits + "." + digits + "S"));
    EXPECT_EQ(c_duration("PT" + digits + "S").get_secs(), std::numeric_limits<float>::infinity());
}

TEST(Duration, NormalFormCarriesMinutesToDaysAndMonthsToYears) {
    const struct {
        const char* text;
        const char* normal;
    } rows[] = {{"PT90M", "PT1H30M"},
                {"PT3661.5S", "PT1H1M1.5S"},
                {"P25MT47H59M60S", "P2Y1M2D"},
                {"P400D", "P400D"},
                {"PT1000000000000000000000S", "PT1e+21S"},  // more minutes than can be counted: nothing is carried
                {"-P12M", "-P1Y"}};
    for (const auto& row : rows) {
        c_duration value(row.text);
        value.normalize();
        EXPECT_EQ(value.get_as_string(), row.normal) << row.text;
    }
    c_duration odd;
    for (const float secs : {-61.0F, 3.4e38F, std::numeric_limits<float>::quiet_NaN()}) {
        odd.set_secs(secs);
        odd.set_mins(4294967295U);
        odd.normalize();  // wraps, but is defined
        EXPECT_LT(odd.get_mins(), 60U);
    }
}

TEST(Duration, OrderIsPartial) {
    const struct {
        const char* a;
        const char* b;
        char order;  ///< "<", "=", ">", or "?" for neither
        char back;
    } rows[] = {{"P1Y", "P12M", '=', '='},    {"PT90M", "PT1H30M", '=', '='},
                {"P1M", "P27D", '>', '<'},    {"P1M", "P30D", '?', '?'},
                {"P1M", "P31D", '>', '<'},   // no month is longer, yet fields are compared from the years down
                {"P1Y", "P365D", '>', '<'},  // the years of one side count only where the months differ too
                {"P1Y1M", "P396D", '?', '?'}, {"P1MT1S", "P1M", '>', '<'},
                {"-P2D", "-P1D", '>', '<'},  // magnitudes alone ...
                {"-P1D", "P1D", '<', '<'}};  // ... so that neither is the greater
    for (const auto& row : rows) {
        const auto expect = [](const c_duration& a, const c_duration& b, char order) {
            EXPECT_EQ(a == b, order == '=') << a << ' ' << b;
            EXPECT_EQ(a != b, order != '=') << a << ' ' << b;
            EXPECT_EQ(a < b, order == '<') << a << ' ' << b;
            EXPECT_EQ(a > b, order == '>') << a << ' ' << b;
            EXPECT_EQ(a <= b, order == '<' || order == '=') << a << ' ' << b;
            EXPECT_EQ(a >= b, order == '>' || order == '=') << a << ' ' << b;
        };
        expect(row.a, row.b, row.order);
        expect(row.b, row.a, row.back);
    }
}

TEST(Duration, SecondsFollowTheCLocale) {
    EXPECT_EQ(c_duration("PT1.5S").get_secs(), 1.5F);
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "no locale with a decimal comma";
    EXPECT_TRUE(c_duration::is_valid("PT1.5S"));
    EXPECT_EQ(c_duration("PT1.5S").get_secs(), 1.0F);
    std::setlocale(LC_ALL, "C");
}

}  // namespace
