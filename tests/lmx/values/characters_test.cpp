// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Character classes against the C library's, and the text cursor.

#include "lmx/values/characters.h"

#include <gtest/gtest.h>

#include <cctype>
#include <climits>

namespace {

TEST(Characters, ClassesAnswerAsTheCLibraryDoesAndNeverOutsideAscii) {
    for (int c = 1; c < 128; ++c) {
        EXPECT_EQ(lmx::xisspace(c), std::isspace(c) != 0) << c;
        EXPECT_EQ(lmx::xisalpha(c), std::isalpha(c) != 0) << c;
        EXPECT_EQ(lmx::xisalnum(c), std::isalnum(c) != 0) << c;
        EXPECT_EQ(lmx::xisdigit(c), std::isdigit(c) != 0) << c;
        EXPECT_EQ(lmx::xisxdigit(c), std::isxdigit(c) != 0) << c;
        EXPECT_EQ(lmx::xisprint(c), std::isprint(c) != 0) << c;
    }
    for (const int c : {INT_MIN, -128, -1, 0, 128, 160, 255, 256 + '0', INT_MAX}) {
        EXPECT_FALSE(lmx::xisspace(c) || lmx::xisalnum(c) || lmx::xisxdigit(c) || lmx::xisprint(c)) << c;
    }
}

TEST(Cursor, SecondsAddUpInSinglePrecision) {
    float seconds = -1.0F;
    const char* cursor = "x";
    EXPECT_EQ(lmx::parse_seconds(&cursor, &seconds), 0U);
    EXPECT_EQ(seconds, -1.0F);
    cursor = "59.999Z";
    EXPECT_EQ(lmx::parse_seconds(&cursor, &seconds), 6U);
    EXPECT_STREQ(cursor, "Z");
    float expected = 59.0F;
    float scale = 0.1F;
    for (int i = 0; i < 3; ++i) {
        expected += 9.0F * scale;
        scale *= 0.1F;
    }
    EXPECT_EQ(seconds, expected);
    cursor = "05.";
    EXPECT_EQ(lmx::parse_seconds(&cursor, &seconds), 3U);
    EXPECT_EQ(seconds, 5.0F);
}

TEST(Cursor, StringncompareTakesAPieceAgainstAWholeText) {
    EXPECT_EQ(lmx::stringncompare("Vyr:Name", "Name", 4, 4), 0);
    EXPECT_EQ(lmx::stringncompare("Vyr:Name", "Name", 4, 100), 0);
    EXPECT_LT(lmx::stringncompare("Vyr:Name", "Name", 4, 3), 0);
    EXPECT_GT(lmx::stringncompare("Vyr:Name", "Na", 4, 4), 0);
    EXPECT_LT(lmx::stringncompare("Vyr", "x", 100, 1), 0);
}

}  // namespace
