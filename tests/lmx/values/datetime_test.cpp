// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The eight calendar types: shapes, assignment, text, comparison.

// What a host may write in a header of its own.
namespace lmx {
class c_datetime;
class c_date;
class c_time;
class c_gyearmonth;
class c_gyear;
class c_gmonthday;
class c_gday;
class c_gmonth;
class c_duration;
}  // namespace lmx

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <limits>
#include <sstream>
#include <type_traits>

#include "lmx/values/datetime.h"
#include "lmx/values/duration.h"
#include "tests/lmx/comma_locale.h"

namespace {

using lmx::c_datetime;

/// One calendar type behind plain functions, so that a table's rows can name it.
struct s_type {
    bool (*is_valid)(const std::string& text);
    /// The text of a value that was assigned `before`, then `text`.
    std::string (*reassign)(const char* before, const char* text);
};

template <class T>
constexpr s_type k_type{[](const std::string& text) { return T::is_valid(text); },
                        [](const char* before, const char* text) {
                            T value(before);
                            value = text;
                            std::ostringstream stream;
                            stream << value;
                            EXPECT_EQ(stream.fill(), '0');
                            std::string appended;
                            value.append_to(&appended);
                            EXPECT_EQ(stream.str(), appended);
                            EXPECT_EQ(value.get_as_string(), appended);
                            return appended;
                        }};

constexpr const s_type* datetime = &k_type<c_datetime>;
constexpr const s_type* date = &k_type<lmx::c_date>;
constexpr const s_type* time = &k_type<lmx::c_time>;
constexpr const s_type* gyearmonth = &k_type<lmx::c_gyearmonth>;
constexpr const s_type* gyear = &k_type<lmx::c_gyear>;
constexpr const s_type* gmonthday = &k_type<lmx::c_gmonthday>;
constexpr const s_type* gday = &k_type<lmx::c_gday>;
constexpr const s_type* gmonth = &k_type<lmx::c_gmonth>;

TEST(Calendar, ValidTextComesBackFromItsFields) {
    const struct {
        const s_type* type;
        const char* text;
        const char* canonical;
    } rows[] = {{datetime, "2005-02-30T10:00:00Z", "2005-02-30T10:00:00Z"},
                {datetime, "2005-13-45T25:61:61", "2005-13-45T25:61:61"},
                {datetime, "2005-01-01T10:20:05.50+01:00", "2005-01-01T10:20:05.5+01:00"},
                {datetime, "2005-01-01T10:20:30.-09:05", "2005-01-01T10:20:30-09:05"},
                {datetime, "2005-01-01T10:20:30+99:99", "2005-01-01T10:20:30+100:39"},
                {datetime, "2005-01-01T10:20:30+00:00", "2005-01-01T10:20:30"},
                {datetime, "2005-01-01T10:20:00.0005Z", "2005-01-01T10:20:00.000500Z"},
                {datetime, "-0005-01-01T00:00:00Z", "00-5-01-01T00:00:00Z"},
                {datetime, "4294967301-01-01T00:00:00Z", "0005-01-01T00:00:00Z"},
                {datetime, "-2147483648-01-01T00:00:00Z", "-2147483648-01-01T00:00:00Z"},
                {date, "-2005-00-99-05:30", "-2005-00-99-05:30"},
                {date, "+12005-01-02Z", "12005-01-02Z"},
                {time, "10:00:00.", "10:00:00"},
                {time, "25:61:09.9999999+05:00", "25:61:010+05:00"},  // the seconds round up behind their zero
                {time, "+12:00:00", "00:00:00"},                      // the check alone knows the sign
                {gyearmonth, "-0012-13", "0-12-13"},
                {gyear, "+0000-14:00", "0000-14:00"},
                {gmonthday, "--02-30+00:01", "--02-30+00:01"},
                {gday, "---99Z", "---99Z"},
                {gmonth, "--13--", "--13--"},
                {gmonth, "--02---05:00", "--02---05:00"}};
    for (const auto& row : rows) {
        EXPECT_TRUE(row.type->is_valid(row.text)) << row.text;
        EXPECT_EQ(row.type->reassign("", row.text), row.canonical) << row.text;
    }
}

TEST(Calendar, CheckRefusesOtherShapes) {
    const struct {
        const s_type* type;
        std::initializer_list<const char*> texts;
    } rows[] = {
        {datetime, {"", "2005-01-01", "205-01-01T10:00:00", "2005-1-01T10:00:00", "2005-01-011T10:00:00"}},
        {datetime, {"2005-01-01t10:00:00", "2005-01-01T10:00", "2005-01-01T10:00:000", "2005-01-01T10:00:00,5"}},
        {datetime, {"2005-01-01T10:00:00Z ", "2005-01-01T10:00:00ZZ", "2005-01-01T10:00:00+1:00"}},
        {datetime, {"2005-01-01T10:00:00+01:0", "2005-01-01T10:00:00+01:00Z", " 2005-01-01T10:00:00Z"}},
        {date, {"2005-01-01T", "2005-0101", "+-2005-01-01"}},
        {time, {"1:00:00", "10:00:5", "++10:00:00", "10:00:00.5.5"}},
        {gyearmonth, {"2005", "2005-01-", "205-01"}},
        {gyear, {"205", "-", "2005-"}},
        {gmonthday, {"-02-28", "--02-2", "+--02-28", "---02-28"}},
        {gday, {"---1", "--28", "---028"}},
        {gmonth, {"--02", "--02-", "--02-Z", "--2--"}}};
    for (const auto& row : rows) {
        for (const char* text : row.texts) EXPECT_FALSE(row.type->is_valid(text)) << text;
    }
    EXPECT_FALSE(c_datetime::is_valid(std::string("2005-01-01T10:00:00Z\0", 21)));
}

TEST(Calendar, AssignmentStopsAtTheFirstMismatch) {
    const char* const point = "-2001-02-03T04:05:06+01:00";
    const struct {
        const s_type* type;
        const char* before;
        const char* text;
        const char* result;
    } rows[] = {{datetime, point, "", point},
                {datetime, point, "2010", "2010-02-03T04:05:06+01:00"},
                {datetime, point, "201-10-11T12:13:14Z", "0201-02-03T04:05:06+01:00"},
                {datetime, point, "-2010-10", "2010-10-03T04:05:06+01:00"},  // the sign comes last, never reached
                {datetime, point, "2010-10-11 12", "2010-10-11T04:05:06+01:00"},
                {datetime, point, "2010-10-11T12:13:1", "2010-10-11T12:13:01+01:00"},
                {datetime, point, "2010-10-11T12:13:1.", "2010-10-11T12:13:01"},
                {datetime, point, "2010-10-11T12:13:123.5Z", "2010-10-11T12:13:123.5Z"},
                {datetime, point, "2010-10-11T12:13:14Z ", "2010-10-11T12:13:14+01:00"},
                {datetime, point, "2010-10-11T12:13:14+5:00", "2010-10-11T12:13:14+01:00"},
                {datetime, "2010-10-11T12:13:14Z", "2010-10-11T12:13:14-01:00", "2010-10-11T12:13:14-01:00"},
                {date, "2001-02-03Z", "-2010-10-113", "2010-10-113Z"},
                {time, "04:05:06Z", "-12:13:14", "04:05:06Z"},
                {time, "04:05:06Z", "12:133:14", "12:133:06Z"},
                {gyear, "2001Z", "-2010x", "-2010Z"},
                {gmonthday, "--02-03Z", "--10-123", "--10-123"},
                {gmonthday, "--02-03Z", "--10-", "--10-03Z"},
                {gday, "---03Z", "---1+01:00", "---01+01:00"},
                {gday, "---03Z", "--1", "---03Z"},
                {gmonth, "--02--Z", "--10", "--10--Z"},
                {gmonth, "--02--Z", "--1--", "--01--Z"}};
    for (const auto& row : rows) EXPECT_EQ(row.type->reassign(row.before, row.text), row.result) << row.text;
}

TEST(Calendar, OffsetsFollowTheSignOfTheHours) {
    c_datetime value;
    value.set_offset(-5, 30);
    EXPECT_EQ(value.get_total_offset_mins(), -330);
    value.set_offset_mins(5, 30);
    EXPECT_FALSE(value.get_is_utc());
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

TEST(Calendar, OrderIgnoresTheZone) {
    const char* const ascending[] = {"-0002-01-01T00:00:00Z", "2005-01-01T10:00:00Z", "2005-01-01T10:00:00.5Z",
                                     "2005-01-01T10:01:00Z",  "2005-01-01T11:00:00Z", "2005-01-02T00:00:00Z",
                                     "2005-02-01T00:00:00Z",  "2006-01-01T00:00:00Z"};
    for (std::size_t i = 0; i + 1 < std::size(ascending); ++i) {
        EXPECT_TRUE(c_datetime(ascending[i]) < c_datetime(ascending[i + 1])) << ascending[i];
        EXPECT_TRUE(c_datetime(ascending[i + 1]) > c_datetime(ascending[i])) << ascending[i];
    }
    const lmx::c_time utc("12:00:00Z");
    const lmx::c_time east("12:00:00+05:00");
    EXPECT_TRUE(utc == east && utc <= east && utc >= east);
    EXPECT_FALSE(utc != east || utc < east || utc > east);
}

template <class One, class Other>
concept comparable = requires(const One& a, const Other& b) {
    a == b;
    a != b;
    a < b;
    a <= b;
    a > b;
    a >= b;
};

template <class T, class... Others>
constexpr bool k_takes = ((comparable<T, Others> && comparable<Others, T>)&&...);

// A text is as good as the value it makes; another type is not.
template <class T>
constexpr bool compares_as_told() {
    return k_takes<T, T, const char*, std::string> && !k_takes<T, int> && !k_takes<T, lmx::c_datetime_base>;
}
static_assert(compares_as_told<c_datetime>() && compares_as_told<lmx::c_date>() && compares_as_told<lmx::c_time>());
static_assert(compares_as_told<lmx::c_gyearmonth>() && compares_as_told<lmx::c_gyear>());
static_assert(compares_as_told<lmx::c_gmonthday>() && compares_as_told<lmx::c_gday>());
static_assert(compares_as_told<lmx::c_gmonth>() && compares_as_told<lmx::c_duration>());
static_assert(!comparable<lmx::c_date, lmx::c_time> && !comparable<c_datetime, lmx::c_date>);
static_assert(!comparable<lmx::c_gday, lmx::c_gmonth> && !comparable<lmx::c_time, lmx::c_duration>);
static_assert(!std::is_assignable_v<lmx::c_date&, lmx::c_time> && !std::is_constructible_v<lmx::c_date, lmx::c_time>);
static_assert(std::is_same_v<decltype(std::declval<lmx::c_date&>() = "2005-02-28"), lmx::c_date&>);

TEST(Calendar, ComparesWithTexts) {
    const c_datetime value("2005-01-01T10:00:00+01:00");
    const std::string later = "2005-01-01T10:00:00.5Z";
    EXPECT_TRUE(value == "2005-01-01T10:00:00Z" && "2005-01-01T10:00:00Z" == value && value != later);
    EXPECT_TRUE(value < later && later > value && value >= "2005-01-01T10:00:00" && "2005" <= value);
    EXPECT_TRUE(lmx::c_duration("PT90M") == "PT1H30M" && "P1M" != lmx::c_duration("P30D"));
}

TEST(Calendar, OddSecondsKeepTheTextFormsAlike) {
    for (const float secs : {-0.0F, 0.001F, 0.00099999F, 1e-38F, 1e30F, -5.0F, -3.4e38F, 123456.7F,
                             std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
        c_datetime value;
        value.set_secs(secs);
        std::string appended;
        value.append_to(&appended);
        EXPECT_EQ(value.get_as_string(), appended);
        EXPECT_EQ(value == value, secs == secs);
    }
}

TEST(Calendar, TellsThePresentTime) {
    // By the same clock: that of std::time may be some milliseconds behind it, and so a second.
    const auto present = [] {
        const std::time_t instant = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
        char text[32];
        std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", std::gmtime(&instant));
        return c_datetime(text);
    };
    const c_datetime before = present();
    const c_datetime now = c_datetime::now();
    EXPECT_TRUE(before <= now && now <= present());
    bool has_zone = false;
    EXPECT_TRUE(c_datetime::is_valid(now.get_as_string(), &has_zone) && has_zone);
    EXPECT_EQ(now.get_as_string().size(), 20U);
}

TEST(Calendar, OnlyAStreamHasALocale) {
    const c_global_comma_locale comma;
    const c_datetime value("12005-01-01T10:00:01.5Z");
    EXPECT_EQ(value.get_as_string(), "12005-01-01T10:00:01.5Z");
    EXPECT_EQ(lmx::c_duration("P12005YT1M").get_as_string(), "P12005YT1M");
    std::ostringstream stream;
    stream << value;
    EXPECT_EQ(stream.str(), "12.005-01-01T10:00:01,5Z");
}

}  // namespace
