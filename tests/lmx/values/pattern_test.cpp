// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Pattern facets.

#include "lmx/values/pattern.h"

#include <gtest/gtest.h>

#include "lmx/values/datetime.h"

namespace {

const char* const k_zone = ".+T.+(Z|[+\\-].+)";

TEST(Pattern, MatchesTheWholeText) {
    const lmx::c_pattern digits("[0-9]{2}");
    EXPECT_TRUE(digits.is_match(std::string("12")));
    for (const char* text : {"", "1", "123", "12 ", "x12"}) EXPECT_FALSE(digits.is_match(std::string(text))) << text;
}

TEST(Pattern, ZoneIsDemandedExactlyWhereTheCheckSeesNone) {
    const lmx::c_pattern zone(k_zone);
    for (const char* text :
         {"2005-01-01T10:00:00Z", "2005-01-01T10:00:00+01:00", "2005-01-01T10:00:00-01:00", "2005-01-01T10:00:00",
          "-2005-01-01T10:00:00", "+2005-01-01T10:00:00.", "2005-01-01T10:00:00.5Z", "2005-01-01T10:00:00.-00:00"}) {
        bool has_zone = false;
        ASSERT_TRUE(lmx::c_datetime::is_valid(text, &has_zone)) << text;
        EXPECT_EQ(zone.is_match(std::string(text)), has_zone) << text;
    }
}

TEST(Pattern, WideTextIsSeenInCharacters) {
    const lmx::c_pattern one(".");
    EXPECT_TRUE(one.is_match(std::u16string(u"\U0001F600")));
    EXPECT_FALSE(one.is_match(std::u16string(u"\U0001F600a")));
}

TEST(Pattern, NullPatternLetsEverythingPass) {
    const lmx::c_pattern_null none;
    EXPECT_TRUE(none.is_match(std::string()) && none.is_match(std::u16string(u"x")));
}

TEST(Pattern, BadPatternMatchesNothingAndKeepsQuiet) {
    testing::internal::CaptureStderr();
    const lmx::c_regex bad("[a-");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    for (const char* text : {"", "a", "[a-"}) EXPECT_FALSE(bad.is_match(text)) << text;
}

}  // namespace
