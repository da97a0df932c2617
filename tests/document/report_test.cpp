// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Reports, as whoever has to mend a document reads them: one line for each fault.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "schema/Vyr.h"
#include "tests/document/report_support.h"
#include "tests/files.h"

namespace vyr_test {
namespace {

using namespace lmx;
using namespace com_vyrgraph_v2;
namespace fs = std::filesystem;

/// The report as it would be if no column were known.
std::string without_columns(const DocumentReport& report) {
    std::string text;
    for (DocumentFault fault : report.getFaults()) {
        EXPECT_EQ(fault.column > 0, fault.line > 0);
        fault.column = 0;
        text += formatFault(fault) + '\n';
    }
    return text;
}

TEST(Report, OfOneChangeToAGoodDocument) {
    const struct {
        std::string from, to, report;
    } rows[] = {
        {"50", "\n\n 500 \n",
         "line 14: " + k_lab + " / L: Value greater than specified maximum (500): it must be at most 150"},
        {"50", "\u00FC\x01\t\xE2\x80\xAE\u180E\U000E0041\u0301",
         "line 14: " + k_lab +
             " / L: Invalid value format for this type (\u00FC\\u0001 \\u202e\\u180e\\U000e0041\u0301): a number is "
             "expected"},
        {"\"Ink 1\"", "\"Ink 1\"\n\n  UniqueId='7'",
         "line 12: " + k_ink +
             " / @UniqueId: Unexpected attribute (7): Color takes ColorName, UniqueID, ColorNumber and Comments (is "
             "UniqueID meant?)"},
        {"Ink 1", "A &amp; \\ &quot;B&quot;\" x=\"",
         "line 10: Palette \"Inks\" / ColorSet \"All\" / Color \"A & \\\\ \\\"B\\\"\" / @x: Unexpected attribute: "
         "Color takes ColorName, UniqueID, ColorNumber and Comments"},
        {"ColorName=", "\n Vyr:ColorName=",
         "line 11: Palette \"Inks\" / ColorSet \"All\" / Color[1] / @Vyr:ColorName: Unexpected attribute (Ink 1): "
         "Color "
         "takes ColorName, UniqueID, ColorNumber and Comments, without a prefix"},
        {"ColorName=\"Ink 1\"", "ColorName",
         "line 10: Palette \"Inks\" / ColorSet \"All\": Not well formed (Vyr:Color): an attribute must have a value, "
         "in quotes behind an equals sign"},
        {"\"Ink 1\"", "\"Ink 1",
         "line 10: Palette \"Inks\" / ColorSet \"All\": Not well formed (Vyr:Color): an attribute must have a value, "
         "in quotes behind an equals sign, as noticed in line 13"},
        {"Ink 1", "Ink & 1",
         "line 10: " + replaced(k_ink, "Ink 1", "Ink & 1") +
             " / @ColorName: Unable to read attribute value (Ink & 1): & 1 is no known reference; an & in text is "
             "written &amp;"},
        {"Ink 1", "Ink \xFF",
         "line 10: Palette \"Inks\" / ColorSet \"All\": Not well formed (Vyr:Color): the bytes that follow are not "
         "UTF-8"},
        {"test", "te\xFFst",
         "line 4: Preamble / Header / Purpose: Unable to read element value (te): the bytes that follow are not "
         "UTF-8"},
        {"<Vyr:L>50", "&x;<Vyr:L>50",
         "line 14: " + k_lab +
             ": Mandatory element missing (&x;): &x; is no known reference; an & in text is written &amp;"},
        {"<Vyr:L>50", "<!-- <Vyr:L>50",
         "line 14: " + k_lab + ": Mandatory element missing: the document ends before what begins here does"},
        {"Vyr:L>50</Vyr:L", "Vyr:l>50</Vyr:l",
         "line 14: " + k_lab +
             ": Mandatory element missing: the element L is missing; <Vyr:l> stands here (is L meant?)"},
        {"<Vyr:L>50</Vyr:L>", "<q:L>50</q:L>",
         "line 14: " + k_lab +
             ": Mandatory element missing: the element L is missing; <q:L> stands here, whose prefix q is not "
             "declared; the namespace http://vyrgraph.com/v2 is expected"},
        {"<Vyr:ColorSpaceCIELab>", "<Vyr:ColorSpaceCMYK xsi:type='Vyr:Foo'/><Vyr:ColorSpaceCIELab>",
         "line 12: " + k_ink +
             " / ColorSpaceCMYK: Unknown xsi:type (Vyr:Foo): one of ColorSpaceCMYKType or ColorSpaceCMYKPlusNType, "
             "with the prefix of the document's namespace, is expected"},
        {"</Vyr:Color>", "</Vyr:ColorSet>",
         "line 18: " + k_ink +
             ": Bad end of element (</Vyr:ColorSet>): the end tag of Color, which begins in line 10, is expected\n"
             "line 19: Palette \"Inks\": Bad end of element (</Vyr:ColorSet>): the end tag of Palette, which begins "
             "in "
             "line 6, is expected\n"
             "line 20: Vyr: Bad end of element (</Vyr:Palette>): the end tag of Vyr, which begins in line 2, is "
             "expected"},
        {"</Vyr:L>", "</Vyr:M>",
         "line 14: " + k_lab +
             " / L: Bad end of element (50): only a value may stand in it, with each < written &lt;, and then its "
             "end tag </Vyr:L>; </Vyr:M> stands here"},
        {"</Vyr:Vyr>", "",
         "line 22: Vyr: Unexpected end of message: the document ends before Vyr does, which begins in line 2"},
        {"UTF-8", "UTF-16",
         "line 1: Mis-match between specified char encoding and read bytes: the XML declaration names another "
         "encoding than the one that the bytes have"},
        {"/v2", "/v1",
         "line 2: Element not found: the document must begin with the element Vyr in the namespace "
         "http://vyrgraph.com/v2; <Vyr:Vyr> stands here, which is in the namespace http://vyrgraph.com/v1"},
        {k_document, "", "line 1: Unexpected end of message: the document holds no element"},
        {k_document, "text",
         "line 1: Unexpected end of message: the text does not begin like XML, or its encoding is none of UTF-8, "
         "UTF-16, ISO-8859-1 and US-ASCII"},
        {"<Vyr:L>50", "< <Vyr:L>50",
         "line 14: " + k_lab +
             ": Not well formed: a tag is broken, or a < stands where no tag begins: in text it is written &lt;"},
        {"\"Ink 1\"", "\"Ink 1\" &",
         "line 10: " + k_ink +
             ": Not well formed (Vyr:Color): the tag holds what is neither an attribute nor its end"},
        {"<Vyr:L>50</Vyr:L>", "<Vyr:L /x>",
         "line 14: " + k_lab +
             " / L: Bad start tag end: a tag is broken, or a < begins none: in text it is written &lt;"},
        {"\"Ink 1\"", "1",
         "line 10: Palette \"Inks\" / ColorSet \"All\": Not well formed (Vyr:Color): an attribute's value must stand "
         "in quotes, and the quotes must end"},
        {"UTF-8", "EBCDIC",
         "line 1: XML character encoding not supported: the XML declaration names an encoding that is none of UTF-8, "
         "UTF-16, ISO-10646-UCS-2, ISO-8859-1 and US-ASCII"},
        {k_document.substr(k_document.find("50</Vyr:L>")), "5",
         "line 14: " + k_lab + " / L: Unable to read element value (5): the document ends within a value"},
        // In the scanner's own words.
        {"1.0", "3.0", "line 1: Unsupported XML version: XML version 3.0 not understood"},
        {"<Vyr:Vyr", "<!DOCTYPE a [] \u202E><Vyr:Vyr",
         "line 2: Badly formed DTD: DTD not Well Formed (expected '>', got \\xe2)"},
        {"<Vyr:Vyr", "<!DOCTYPE a [ <!ENTITY b '&b;'> ]>&b;<Vyr:Vyr",
         "line 2: Unexpected end of message: Recursive entity definition for: &b;"},
    };
    ASSERT_EQ(report_of(k_document).toString(), "");
    for (const auto& [from, to, expected] : rows) {
        const DocumentReport report = report_of(replaced(k_document, from, to));
        EXPECT_EQ(without_columns(report), expected + '\n');
        EXPECT_EQ(report.isOk(), report.getFaultCount() == 0);
    }
}

TEST(Report, GathersFaultsOfValuesAndAttributesUpToALimit) {
    std::string text = replaced(k_document, "<Vyr:L>50", "<Vyr:L>x");  // neither a number nor within bounds
    text = replaced(text, "<Vyr:A>1", "<Vyr:A>");
    text = replaced(text, "2024-05-01T09:30:00Z", "2024-05-01T09:30:00");
    text = replaced(text, "\"Inks\"", "\"Inks\" a='1' PaletteVersion='1' PaletteVersion='2'");
    const DocumentReport all = report_of(text, {.collect = true, .name = "a.xml"});
    std::string codes;
    for (const DocumentFault& fault : all.getFaults()) codes += std::to_string(fault.code) + ' ' + fault.item + ' ';
    EXPECT_EQ(codes, "22 Vyr:ChangeHistory 39 Vyr:Palette 3 PaletteVersion 35 Vyr:L 35 Vyr:A ");
    EXPECT_EQ(all.toString().find("a.xml:4:3: Preamble / Header / ChangeHistory[1]: No pattern matched"), 0U);
    EXPECT_EQ(all.getFault(2).detail, "the attribute is given twice");
    EXPECT_TRUE(all.isReadToEnd() && !all.hasMore() && !all.isOk());
    EXPECT_EQ(all.getFault(5).code, ELMX_OK);

    const DocumentReport some = report_of(text, {.collect = true, .limit = 2});
    EXPECT_EQ(some.getFaultCount(), 2U);
    EXPECT_EQ(some.getTotalCount(), 5U);
    EXPECT_TRUE(some.hasMore() && some.isReadToEnd());
    EXPECT_EQ(report_of(text, {.collect = true, .limit = 0}).getCode(), ELMX_NO_PATTERN_MATCHED);
    const DocumentReport first = report_of(text, {});
    EXPECT_EQ(first.getFaultCount(), 1U);
    EXPECT_FALSE(first.hasMore() || first.isReadToEnd());
    // What ends the load comes last.
    const DocumentReport ended = report_of(replaced(text, "<Vyr:B>", "< Vyr:B>"));
    EXPECT_EQ(ended.getFaultCount(), 6U);
    EXPECT_EQ(ended.getFault(5).code, ELMX_NOT_WELL_FORMED);
    EXPECT_FALSE(ended.isReadToEnd());
}

TEST(Report, StaysSmallWhateverTheDocumentHolds) {
    std::string many = "<Vyr:ChangeHistory>";
    std::string deep;
    for (int i = 0; i < 300; ++i)
        deep += "<Vyr:ColorSpaceRGB Comments=\"" + std::string(1000, '<') + "\"><Vyr:ParentColorSpace>";
    for (int i = 0; i < 100000; ++i) many += "x</Vyr:ChangeHistory><Vyr:ChangeHistory>";
    const DocumentReport faults = report_of(replaced(k_document, "<Vyr:ChangeHistory>", many));
    EXPECT_EQ(faults.getFaultCount(), 100U);
    EXPECT_EQ(faults.getTotalCount(), 100000U);
    EXPECT_EQ(faults.getFault(99).path, "Preamble / Header / ChangeHistory[100]");
    const std::string name(1000000, '"');
    for (const std::string& text : {replaced(k_document, "<Vyr:ColorSpaceCIELab>", deep),
                                    replaced(replaced(k_document, "\"Ink 1\"", "'" + name + "'"), "50", name),
                                    replaced(k_document, "Vyr:L>", name), replaced(k_document, "<Vyr:L", "<" + name),
                                    replaced(k_document, "<Vyr:L", "<L" + std::string(1000000, 'x'))}) {
        const DocumentReport report = report_of(text);
        EXPECT_LT(report.getFaultCount(), 5U);
        EXPECT_LT(report.toString().size(), 20000U);
    }
}

TEST(Report, SaysWhatASaveLacks) {
    const auto complete = [] {
        Vyr document;
        EXPECT_EQ(document.unmarshal(k_document), ELMX_OK);
        return document;
    };
    const struct {
        std::function<void(Vyr&)> change;
        std::string report;
    } rows[] = {
        {[](Vyr&) {}, ""},
        {[](Vyr& document) { document.reset(); },
         "Preamble / Header: min/max occurs error on marshaling: the element Creator, the element CreatorVersion, "
         "the "
         "element ChangeHistory and the element Purpose are missing\n"},
        {[](Vyr& document) { document.append_Palette(); },
         "Palette[2]: min/max occurs error on marshaling: the attribute PaletteName and the element ChangeHistory "
         "are "
         "missing\n"},
        {[](Vyr& document) { document.get_Palette(0).get_ColorSet(0).get_Color(0).append_ColorSpace(); },
         k_ink +
             ": min/max occurs error on marshaling: one of ColorSpaceRecipe, ColorSpaceTINTORA, ColorSpaceGeneric, "
             "ColorSpaceEmissiveGeneric, ColorSpaceDensity, ColorSpaceRGB, ColorSpaceSRGB, ColorSpaceAdobeRGB, "
             "ColorSpaceCMYKPlusN, ColorSpaceAdobeWideGamutRGB or 18 others is missing\n"},
        {[](Vyr& document) {
             auto& color = document.get_Palette(0).get_ColorSet(0).get_Color(0);
             color.append_ColorSpace();
             color.get_ColorSpace(1).get_ColorSpaceCIELab().set_Name(u"D50");
         },
         k_ink + " / ColorSpaceCIELab \"D50\": min/max occurs error on marshaling: the element ChangeHistory, the "
                 "element "
                 "ColorSpaceSpecificationSpectrumTristimulus, the element L, the element A and the element B are "
                 "missing\n"},
        {[](Vyr& document) {
             auto& color = document.get_Palette(0).get_ColorSet(0).get_Color(0);
             color.append_ColorSpace();
             color.get_ColorSpace(1).assign_ColorSpaceCMYK(static_cast<ColorSpaceCMYKType*>(nullptr));
         },
         k_ink + ": Type not set: the element ColorSpaceCMYK is chosen but has no object\n"},
    };
    for (const auto& [change, expected] : rows) {
        Vyr document = complete();
        change(document);
        std::u16string text;
        const DocumentReport report = writeStringWithReport(document, &text);
        EXPECT_EQ(report.toString(), expected);
        EXPECT_EQ(checkWriting(document).toString(), expected);
        EXPECT_EQ(report.getCode(), document.writeString().getElmxError());
        EXPECT_EQ(text, document.writeString().getXmlDocument());
    }
    Vyr lacking;
    EXPECT_EQ(writeFileWithReport(lacking, u"lacking.vyrz").getFault(0).item, "Vyr:Creator");
    EXPECT_FALSE(fs::exists("lacking.vyr") || fs::exists("lacking.vyrz"));
}

TEST(Report, SaysWhichDatesOfASaveCouldNotBeReadAgain) {
    const auto utc = [](std::int32_t year, float secs) {
        c_datetime value("2024-05-01T09:30:00Z");
        value.set_year(year);
        value.set_secs(secs);
        return value;
    };
    const std::string no_zone = "No pattern matched (%): a time zone is missing: Z, or one such as +01:00";
    const std::string no_date =
        "Invalid value format for this type (%): a date and time is expected, such as 2024-05-31T12:30:00Z";
    const struct {
        c_datetime value;
        std::string printed;
        std::string fault;
    } rows[] = {
        {"2024-05-01T09:30:00Z", "2024-05-01T09:30:00Z", ""},
        {utc(-2024, 5.5F), "-2024-05-01T09:30:05.5Z", ""},
        {"2024-05-01T09:30:00", "2024-05-01T09:30:00", no_zone},
        {"2024-05-01T09:30:00+99:99", "2024-05-01T09:30:00+100:39", no_date},
        {utc(-24, 0), "0-24-05-01T09:30:00Z", no_date},
        {utc(2024, 9.9999999F), "2024-05-01T09:30:10Z", ""},
        {utc(2024, 9.999999F), "2024-05-01T09:30:010Z", no_date},
        {utc(2024, 99.0F), "2024-05-01T09:30:99Z", ""},
        {utc(2024, 100.0F), "2024-05-01T09:30:100Z", no_date},
        {"2024-05-01T09:30:00-99:59", "2024-05-01T09:30:00-99:59", ""},
    };
    for (const auto& row : rows) {
        Vyr document;
        ASSERT_EQ(document.unmarshal(k_document), ELMX_OK);
        auto& color = document.get_Palette(0).get_ColorSet(0).get_Color(0);
        EXPECT_EQ(color.append_ChangeHistory(row.value), ELMX_OK);
        EXPECT_EQ(row.value.get_as_string(), row.printed);
        std::u16string text;
        const DocumentReport report = writeStringWithReport(document, &text);
        const std::string expected = row.fault.empty() ? "" : replaced(row.fault, "%", row.printed) + '\n';
        EXPECT_EQ(report.toString(), expected.empty() ? "" : k_ink + " / ChangeHistory[2]: " + expected);
        // The save is that of the plain call, and the fault is what reading gives.
        EXPECT_EQ(document.writeString().getElmxError(), ELMX_OK);
        EXPECT_EQ(text, document.writeString().getXmlDocument());
        Vyr again;
        EXPECT_EQ(again.loadString(text), report.getCode()) << row.printed;
        EXPECT_TRUE(report.isReadToEnd());
    }

    // All of them, in attributes too, until something ends the save.
    Vyr document;
    ASSERT_EQ(document.unmarshal(k_document), ELMX_OK);
    document.get_Preamble().get_Header().set_ChangeHistory(0, "yesterday");
    EXPECT_EQ(writeFileWithReport(document, u"packed-dates.vyrz").getFault(0).value, "0001-00-00T00:00:00");
    EXPECT_TRUE(fs::exists("packed-dates.vyrz"));
    document.append_ColorQualityControl();
    auto& control = document.back_ColorQualityControl();
    control.append_ChangeHistory("2024-05-01T09:30:00Z");
    control.append_StandardAndMeasurement();
    auto& standard = control.get_StandardAndMeasurement(0).get_Standard();
    standard.get_Color();
    for (auto set : {&DeviceType::set_Manufacturer, &DeviceType::set_Model, &DeviceType::set_SerialNumber})
        (standard.get_Device().*set)(u"d");
    auto& state = standard.get_Device().get_CalibrationState();
    state.set_CalibrationStateType(u"CalibrationState_Calibrated");
    state.set_CalibrationDateTime("2024-05-01T09:30:00");
    std::u16string untouched = u"untouched";
    const DocumentReport some = writeStringWithReport(document, &untouched);
    const std::string place = "ColorQualityControl[1] / StandardAndMeasurement[1] / Standard / ";
    EXPECT_EQ(some.getFault(1).path, place + "Device / CalibrationState / @CalibrationDateTime");
    EXPECT_EQ(some.getFault(2).code, ELMX_OCCURS_ERROR_ON_MARSHAL);
    EXPECT_EQ(some.getCode(), ELMX_OCCURS_ERROR_ON_MARSHAL);
    EXPECT_FALSE(some.isReadToEnd());
    EXPECT_EQ(untouched, u"untouched");
    for (int i = 0; i < 200; ++i) control.append_ChangeHistory("2024-05-01T09:30:00");
    const DocumentReport many = writeStringWithReport(document, &untouched);
    EXPECT_EQ(many.getFault(99).path, "ColorQualityControl[1] / ChangeHistory[100]");
    EXPECT_EQ(many.getFaultCount(), 100U);
    EXPECT_EQ(many.getTotalCount(), 203U);
}

/// The faults without their places.
std::string without_lines(const DocumentReport& report) {
    std::string text;
    for (DocumentFault fault : report.getFaults()) {
        fault.line = 0;
        text += formatFault(fault) + '\n';
    }
    return text;
}

TEST(Report, OfASaveNamesWhatCouldNotBeReadBack) {
    Vyr document;
    ASSERT_EQ(document.unmarshal(k_document), ELMX_OK);
    PaletteType& palette = document.get_Palette(0);
    ColorType& color = palette.get_ColorSet(0).get_Color(0);
    ColorSpaceCIELabType& lab = color.get_ColorSpace(0).get_ColorSpaceCIELab();

    // What setters and copies let in, and reading refuses: the report is that of a load of what was written.
    document.get_Preamble().get_Header().append_ChangeHistory(c_datetime("yesterday"));
    palette.append_ChangeHistory(c_datetime("2024-05-01T09:30:00"));
    CustomAttributeType unnamed;
    unnamed.get_ValueChoice().set_StringValue(u"v");
    color.append_CustomAttribute();
    color.assign_CustomAttribute(0, unnamed);
    auto& conditions = lab.get_ColorSpaceSpecificationSpectrumTristimulus();
    conditions.reset();
    conditions.get_DeviceFilter().set_DeviceFilterType(u"Filter_None");
    conditions.get_DevicePolarization().set_DevicePolarization(false);
    conditions.append_ChangeHistory(c_datetime("2024-05-01T09:30:00Z"));
    conditions.get_Spectrum().set_SpectrumType(u"Spectrum_Reflectance");
    ASSERT_EQ(conditions.get_IlluminationOptions().set_ColorTemperature(0), ELMX_OK);
    conditions.set_FieldOfView(u"FieldOfView_2_Degree");
    std::u16string text;
    const DocumentReport report = writeStringWithReport(document, &text);
    EXPECT_EQ(text, document.writeString().getXmlDocument());
    EXPECT_EQ(report.getFaultCount(), 4U);
    EXPECT_TRUE(report.isReadToEnd());
    EXPECT_EQ(without_lines(report), without_lines(report_of(convert_to_narrow(text))));
    EXPECT_EQ(report.getFault(2).path, k_ink + " / CustomAttribute[1] / Name");

    // A text that is read as another one.
    const char* const lines = "only the line feed is read back as a line end";
    const char* const half = "the text ends at half a surrogate pair";
    const struct {
        std::u16string text;
        const char* detail;
    } rows[] = {{u"a plain text of some length", nullptr},
                {u"\xFC\xD83D\xDE00", nullptr},
                {u"abcdefg\r", lines},
                {u"a\x85", lines},
                {u"a\x2028", lines},
                {u"abcd\xD83D", half},
                {u"a\xD83D\xD83D\xDE00", half},
                {u"\xDE00", half},
                {u"a\tb\nc \x0C", nullptr}};
    for (const auto& row : rows) {
        document.reset();
        ASSERT_EQ(document.unmarshal(k_document), ELMX_OK);
        document.get_Palette(0).set_Comments(row.text);
        document.get_Palette(0).get_ColorSet(0).get_Color(0).set_ColorName(row.text);
        const DocumentReport said = writeStringWithReport(document, &text);
        EXPECT_EQ(said.getFaultCount(), row.detail == nullptr ? 0U : 2U);
        EXPECT_EQ(said.getFault(0).detail, row.detail == nullptr ? "" : row.detail);
        EXPECT_EQ(said.getFault(0).path, row.detail == nullptr ? "" : "Palette \"Inks\" / @Comments");
        Vyr back;
        const bool is_back = back.loadString(text) == ELMX_OK && back.get_Palette(0).get_Comments() == row.text &&
                             back.get_Palette(0).get_ColorSet(0).get_Color(0).get_ColorName() == row.text;
        EXPECT_EQ(is_back, row.detail == nullptr) << convert_to_narrow(row.text);
    }
    // The same of a token, of whose white space loads keep single blanks only.
    for (const std::u16string token : {u"1 2", u"", u" 1", u"1 ", u"1  2", u"1\t2", u"1\v2"}) {
        document.reset();
        ASSERT_EQ(document.unmarshal(k_document), ELMX_OK);
        Version& version = document.get_Preamble().get_Version();
        version.set_Version(u"3");
        version.append_Predecessor(token);
        const std::size_t faults = writeStringWithReport(document, &text).getFaultCount();
        Vyr back;
        ASSERT_EQ(back.loadString(text), ELMX_OK);
        const bool is_back = back.get_Preamble().get_Version().get_Predecessor(0) == token;
        EXPECT_EQ(faults, is_back ? 0U : 1U) << convert_to_narrow(token);
    }
}

TEST(Report, NamesFilesAndContainers) {
    Vyr document;
    ASSERT_EQ(document.unmarshal(k_document), ELMX_OK);
    EXPECT_EQ(writeFileWithReport(document, u"good.vyrz").toString(), "");
    EXPECT_EQ(loadFileWithReport(document, u"good.vyrz").toString(), "");
    const std::string bad = replaced(k_document, "50", "500");
    std::ofstream("bad.vyr") << bad;
    std::string bytes = bytes_of("good.vyrz");
    bytes[60] = static_cast<char>(~bytes[60]);
    write_file("damaged.vyrz", bytes);
    std::ofstream("text.vyrz") << "text";
    std::ofstream("empty.vyrz") << "PK\5\6" << std::string(18, '\0');
    fs::create_directories("folder.vyr");
    fs::create_directories("taken.vyrz");
    const auto load = [](const auto& path) {
        Vyr target;
        return loadFileWithReport(target, path).toString();
    };
    EXPECT_EQ(load(u"missing.vyr"), "missing.vyr: Unable to open file: No such file or directory\n");
    EXPECT_EQ(load(u"missing.vyrz"), "missing.vyrz: Unable to open file: No such file or directory\n");
    EXPECT_EQ(load(std::string("\xFF.vyr")), "\\xff.vyr: Unable to open file: No such file or directory\n");
    EXPECT_EQ(load(std::string("\xFF.vyrz")),
              "\\xff.vyrz: Unable to open file: the name of a container must be UTF-8\n");
    EXPECT_EQ(load(u"a\xD800"), "a\\xed\\xa0\\x80: Unable to open file: the name is no text that a file can have\n");
#if defined(_WIN32)  // where folders can't be opened
    const std::string folder = "Permission denied";
    EXPECT_EQ(load(u"folder.vyr"), "folder.vyr: Unable to open file: Permission denied\n");
#else
    const std::string folder = "Is a directory";
    EXPECT_EQ(load(u"folder.vyr"), "folder.vyr:1: Unexpected end of message: it is a directory\n");
#endif
    EXPECT_EQ(load(u"text.vyrz"), "text.vyrz: Container can't be read or written: not a ZIP archive\n");
    EXPECT_EQ(load(u"empty.vyrz"), "empty.vyrz: Container can't be read or written: the archive holds no file\n");
    EXPECT_EQ(load(u"damaged.vyrz").find("damaged.vyrz: Container can't be read or written: "), 0U);
    EXPECT_EQ(loadFileWithReport(document, u"damaged.vyrz").getSystemError(), 0);
    EXPECT_EQ(
        load(std::string("bad.vyr")),
        "bad.vyr:14:6: " + k_lab + " / L: Value greater than specified maximum (500): it must be at most 150\n");
    const auto write = [&](const std::u16string& path) { return writeFileWithReport(document, path).toString(); };
    EXPECT_EQ(write(u"a.xml"), "a.xml: Unknown ending of a file name: the name must end in .vyr or .vyrz\n");
    EXPECT_EQ(write(u"missing/a.vyr"),
              "missing/a.vyr: Unable to open file: not written, or not in full: No such file or directory\n");
    EXPECT_EQ(writeFileWithReport(Vyr(), u"missing/a.vyr").getTotalCount(), 1U);
    EXPECT_EQ(write(u"missing/a.vyrz"), "missing/a.vyrz: Unable to open file: No such file or directory\n");
    EXPECT_EQ(write(u"taken.vyrz"), "taken.vyrz: Unable to open file: " + folder + "\n");
    EXPECT_EQ(write(u"folder.vyrz").find("folder.vyrz: Container can't be read or written: "), 0U);
}

}  // namespace
}  // namespace vyr_test
