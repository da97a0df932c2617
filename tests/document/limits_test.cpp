// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The memory that a document can make a load take, as `docs/limits.md` gives it. The program counts what is
/// allocated.

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <string>
#include <thread>

#include "schema/Vyr.h"
#include "tests/files.h"
#include "tests/heap.h"
#include "tests/schema/support.h"

namespace vyr_test {
namespace {

using namespace lmx;

/// So many times the size of the text is what the load takes at most.
template <class Load>
double growth(const std::string& text, Load load) {
    return static_cast<double>(heap_of([&] { load(text); })) / static_cast<double>(text.size());
}

/// The figure ahead of a phrase of the guide.
double figure(const std::string& phrase) {
    std::ifstream file(std::string(VYR_TEST_DOCUMENTS) + "/../../docs/limits.md");
    std::string text;
    for (std::string word; file >> word;) text += word + ' ';
    const std::size_t end = text.find(' ' + phrase);
    EXPECT_NE(end, text.npos) << phrase;
    return end == text.npos ? 0 : std::stod(text.substr(text.rfind(' ', end - 1) + 1));
}

TEST(Limits, MemoryIsWhatTheGuideSays) {
    std::string many;
    for (int i = 0; i < 20'000; ++i) many += "<Vyr:ColorAndFinish/>";
    const std::string accepted = with_declarations(
        "<Vyr:ColorSpaceTINTORA><Vyr:ChangeHistory>2024-05-01T09:30:00Z</Vyr:ChangeHistory><Vyr:FamilyName/>"
        "<Vyr:ColorName><Vyr:PrefixName/><Vyr:BaseName/><Vyr:SuffixName/></Vyr:ColorName><Vyr:Page/>"
        "<Vyr:Gamut>Gamut_CMYK</Vyr:Gamut>" +
        many + "</Vyr:ColorSpaceTINTORA>");
    const double largest = growth(
        accepted, [](const std::string& text) { EXPECT_EQ(v2::ColorSpaceTINTORA().unmarshal(text), ELMX_OK); });
    EXPECT_LE(largest, figure("times the size of a document that is accepted"));
    EXPECT_GE(largest, 0.7 * figure("times the size of a document that is accepted"));

    many.clear();
    for (int i = 0; i < 20'000; ++i) many += "<Vyr:Palette/>";
    const std::string lacking = with_declarations("<Vyr:Vyr>" + many + "</Vyr:Vyr>");
    const double let_pass = growth(lacking, [](const std::string& text) {
        c_swallowing_reader reader(text);
        v2::Vyr document;
        EXPECT_EQ(document.unmarshal(reader), ELMX_OK);
        EXPECT_EQ(document.size_Palette(), 20'000U);
    });
    EXPECT_LE(let_pass, figure("times with all failures let pass"));
    EXPECT_GE(let_pass, 0.7 * figure("times with all failures let pass"));
}

TEST(Limits, AContainerThatClaimsMuchGetsLittle) {
    v2::Vyr document;
    ASSERT_EQ(document.unmarshal(VYR_TEST_DOCUMENTS "/valid/all-01.vyr"), ELMX_OK);
    ASSERT_EQ(document.writeFile("claims.vyrz"), ELMX_OK);
    std::string bytes = bytes_of("claims.vyrz");
    // Both headers say that the document has a quarter of a gigabyte.
    for (const std::size_t size_in_header : {std::size_t{22}, bytes.size() - 22 - 10 - 22})
        bytes.replace(size_in_header, 4, "\xFF\xFF\xFF\x0F");
    write_file("claims.vyrz", bytes);
    EXPECT_LT(heap_of([] { EXPECT_EQ(v2::Vyr().loadFile("claims.vyrz"), ELMX_USER_DEFINED_1); }), 1U << 20U);
}

TEST(Limits, APartThatIsKeptKeepsLittleElse) {
    const char* const palette = VYR_TEST_DOCUMENTS "/../../examples/css-colors.vyr";
    ASSERT_EQ(v2::Vyr().unmarshal(palette), ELMX_OK);  // makes what the library makes once
    const std::size_t before = heap_in_use;
    auto kept = std::make_unique<v2::ColorType>();
    {
        v2::Vyr document;
        ASSERT_EQ(document.unmarshal(palette), ELMX_OK);
        v2::ColorSetType& colors = document.get_Palette(0).get_ColorSet(0);
        kept->swap(colors.get_Color(colors.size_Color() / 2));
        EXPECT_GT(heap_in_use - before, 128U << 10U);
    }
    EXPECT_FALSE(kept->get_ColorName().empty());
    EXPECT_LE(heap_in_use - before, 80U << 10U);
    std::thread([&kept] { kept.reset(); }).join();
    EXPECT_EQ(heap_in_use, before);
}

}  // namespace
}  // namespace vyr_test
