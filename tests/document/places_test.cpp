// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What a report finds behind the first fault, and where in a line.

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "schema/Vyr.h"
#include "tests/document/report_support.h"

namespace vyr_test {
namespace {

TEST(Report, GoesOnBehindFaultsOfStructure) {
    // Whatever happens to Ink 1, the fault of Ink 2, a copy with another L, is found too.
    const std::size_t ink = k_document.find("<Vyr:Color ");
    const std::size_t end = k_document.find("</Vyr:ColorSet>");
    const std::string other = replaced(replaced(k_document.substr(ink, end - ink), "Ink 1", "Ink 2"), "50", "500");
    const std::string both = k_document.substr(0, end) + other + k_document.substr(end);
    const struct {
        std::string from, to;
        std::vector<elmx_error> codes;
    } rows[] = {
        {"Vyr:L>50</Vyr:L", "Vyr:l>50</Vyr:l", {ELMX_MANDATORY_ELEMENT_MISSING}},
        {"<Vyr:L>50</Vyr:L>", "", {ELMX_MANDATORY_ELEMENT_MISSING}},
        {"<Vyr:L>", "<Vyr:X><Vyr:L/>t</Vyr:X>text<Vyr:L>", {ELMX_MANDATORY_ELEMENT_MISSING, ELMX_BAD_END_OF_ELEMENT}},
        {"</Vyr:B>", "</Vyr:B><Vyr:B/><Vyr:Q>a<b/></Vyr:Q>", {ELMX_BAD_END_OF_ELEMENT, ELMX_BAD_END_OF_ELEMENT}},
        {"</Vyr:L>", "", {ELMX_BAD_END_OF_ELEMENT}},
        {">50<", ">5<b>0</b><c/><", {ELMX_BAD_END_OF_ELEMENT}},
        {">50<", ">5&foo;&bar;<", {ELMX_UNABLE_TO_READ_ELEMENT_VALUE}},
        {"</Vyr:Color>", "</Vyr:Colour>", {ELMX_BAD_END_OF_ELEMENT}},
        {"</Vyr:ColorSpaceCIELab>", "", {ELMX_BAD_END_OF_ELEMENT}},
        {" ColorName=\"Ink 1\"", "", {ELMX_REQUIRED_ATTRIBUTES_MISSING}},
        {" ColorName=\"Ink 1\"", " ColourName=\"Ink 1\"", {ELMX_UNEXPECTED_ATTRIBUTE}},
        {"xsi:nil=\"true\"/>",
         "xsi:nil='1'>a<b/></Vyr:ColorSpaceSpecificationSpectrumTristimulus>",
         {ELMX_BAD_END_OF_ELEMENT}},
        {"xsi:nil=\"true\"/>", "/>", {ELMX_UNEXPECTED_EMPTY_ELEMENT}},
        {"<Vyr:ColorSpaceCIELab>",
         "<Vyr:ColorSpaceCMYK xsi:type='Vyr:Foo'><a/></Vyr:ColorSpaceCMYK><Vyr:ColorSpaceCIELab>",
         {ELMX_UNKNOWN_XSI_TYPE}},
        {"<Vyr:Color ",
         "<Vyr:Foo><a><b></a></Vyr:Foo><Vyr:Color ",
         {ELMX_BAD_END_OF_ELEMENT, ELMX_BAD_END_OF_ELEMENT}},
        {"</Vyr:ColorSpaceCIELab>",
         "</Vyr:ColorSpaceCIELab><Vyr:CustomAttribute><Vyr:Name>n</Vyr:Name><Vyr:ValueChoice><Vyr:Foo/><Vyr:Bar>1</"
         "Vyr:Bar></Vyr:ValueChoice></Vyr:CustomAttribute>",
         {ELMX_BAD_END_OF_ELEMENT}},
        {"<Vyr:Creator>",
         "<Vyr:CustomAttribute><Vyr:Name>n</Vyr:Name><Vyr:ValueChoice><Vyr:Foo/><Vyr:DoubleValue>x</"
         "Vyr:DoubleValue></Vyr:ValueChoice></Vyr:CustomAttribute><Vyr:Creator>",
         {ELMX_UNKNOWN_ELEMENT_IN_COMPLEX_CONTENT, ELMX_VALUE_BAD_FORMAT}},
    };
    for (const auto& [from, to, codes] : rows) {
        SCOPED_TRACE(from + " -> " + to);
        const DocumentReport report = report_of(replaced(both, from, to));
        ASSERT_EQ(report.getFaultCount(), codes.size() + 1) << report.toString();
        for (std::size_t i = 0; i < codes.size(); ++i)
            EXPECT_EQ(report.getFault(i).code, codes[i]) << report.toString();
        EXPECT_EQ(report.getFault(codes.size()).value, "500") << report.toString();
        EXPECT_TRUE(report.isReadToEnd());
    }
}

/// A text in an encoding, with a byte order mark where one is usual.
std::string encoded(const std::string& text, const std::string& encoding) {
    const std::string named = replaced(text, "UTF-8", encoding.substr(0, encoding.find('/')));
    const std::u16string wide = convert_to_wide(named);
    std::string bytes;
    if (encoding == "ISO-8859-1") {
        for (const char16_t unit : wide) bytes += static_cast<char>(unit);
    } else if (encoding.starts_with("UTF-16")) {
        const bool is_big = encoding.ends_with("BE");
        for (const char16_t unit : u"\uFEFF" + wide) {
            const char high = static_cast<char>(unit >> 8U);
            const char low = static_cast<char>(unit & 0xFFU);
            bytes += is_big ? high : low;
            bytes += is_big ? low : high;
        }
    } else {
        bytes = (encoding == "UTF-8/mark" ? "\xEF\xBB\xBF" : "") + named;
    }
    return bytes;
}

std::string all_replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != text.npos; at += to.size())
        text.replace(at, from.size(), to);
    return text;
}

TEST(Report, GivesColumnsAsEditorsCountThem) {
    // The place of each fault is marked by a bar, which is taken out; umlauts stand ahead of it in the same line.
    const struct {
        std::string from, to;
    } rows[] = {
        {"<Vyr:L>50", "<!-- \u00FC -->|<Vyr:L>\u00E4"},
        {"ColorName=\"Ink 1\"", "ColorName='\u00FC' UniqueID = '>=x=' |x='1'"},
        {"ColorName=\"Ink 1\"", "ColorName='\u00FC ColorName=' |ColorName='\u00E4'"},
        {"<Vyr:B>2</Vyr:B>\n", "<!-- \u00FC -->\n|"},
        {"<Vyr:L>", "<!-- \u00FC -->|<Vyr:Q/><Vyr:L>"},
        {"<Vyr:ColorSpaceSpecificationSpectrumTristimulus xsi:nil=\"true\"/>",
         "<!-- \u00FC "
         "-->|<Vyr:ColorSpaceSpecificationSpectrumTristimulus></Vyr:ColorSpaceSpecificationSpectrumTristimulus>"},
        {"<Vyr:ColorSet ", "<!-- \u00FC --> |stray <Vyr:ColorSet "},
        {"<Vyr:Color ColorName=\"Ink 1\"", "<!-- \u00FC --> |<Vyr:Color UniqueID='x'"},
        {"<Vyr:L>50", "<!-- \u00FC -->|<Vyr:L><b>50</b>"},
    };
    for (const auto& [from, to] : rows) {
        const std::string plain = replaced(k_document, from, to);
        for (const std::string& marked : {plain, all_replaced(plain, "\n", "\r\n"), all_replaced(plain, "\n", " "),
                                          all_replaced(plain, "\n", "\r")}) {
            const std::string ahead = marked.substr(0, marked.find('|'));
            std::size_t start = ahead.find_last_of("\r\n");
            start = start == ahead.npos ? 0 : start + 1;
            // White space ahead of the bar isn't part of what is wrong.
            std::size_t place = marked.find_first_not_of(" \t", ahead.size() + 1) - 1;
            const std::string text = all_replaced(marked, "|", "");
            const std::size_t column = convert_to_wide(text.substr(start, place - start)).size() + 1;
            for (const char* const encoding : {"UTF-8", "UTF-8/mark", "UTF-16/LE", "UTF-16/BE", "ISO-8859-1"}) {
                const std::string bytes = encoded(text, encoding);
                // The declaration is as long as in UTF-8 only in the first line.
                const std::size_t longer = start == 0 ? std::string(encoding).find('/') : std::string::npos;
                const std::size_t name = longer != std::string::npos ? longer : std::string(encoding).size();
                const std::size_t expected = column + (start == 0 ? name - 5 : 0);
                SCOPED_TRACE(text + encoding);
                const DocumentReport report = report_of(bytes);
                ASSERT_EQ(report.getFaultCount(), 1U) << report.toString();
                EXPECT_EQ(report.getFault(0).column, static_cast<int>(expected)) << report.toString();
                std::ofstream("columns.vyr", std::ios::binary) << bytes;
                Vyr document;
                EXPECT_EQ(loadFileWithReport(document, "columns.vyr").getFault(0).column, static_cast<int>(expected));
            }
        }
    }
    EXPECT_EQ(report_of(k_document.substr(0, k_document.size() - 11)).getFault(0).column, 1);
    EXPECT_TRUE(report_of(replaced(k_document, "<Vyr:L>50", "<Vyr:L>x")).toString().starts_with("line 14:6: "));
}

}  // namespace
}  // namespace vyr_test
