// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// How elements of the format are read: the order of checks, the item named by each failure, and the places where
/// the format is deliberately lax or odd.

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

#include "tests/schema/support.h"

namespace vyr_test {
namespace {

using namespace lmx;

const std::string k_filter_and_polarization =
    "<Vyr:DeviceFilter>Filter_None</Vyr:DeviceFilter><Vyr:DevicePolarization>false</Vyr:DevicePolarization>";
const std::string k_nil_tristimulus = "<Vyr:ColorSpaceSpecificationSpectrumTristimulus xsi:nil=\"true\"/>";
const std::string k_nil_generic = "<Vyr:ColorSpaceSpecificationSpectrumGeneric xsi:nil=\"true\"/>";
const std::string k_lab = "<Vyr:ColorSpaceCIELab>" + k_change_history + k_nil_tristimulus +
                          "<Vyr:L>50</Vyr:L><Vyr:A>-1.5</Vyr:A><Vyr:B>2</Vyr:B></Vyr:ColorSpaceCIELab>";

std::string element(const std::string& name, const std::string& content, const std::string& attributes = "") {
    return "<Vyr:" + name + attributes + ">" + content + "</Vyr:" + name + ">";
}

TEST(Reading, HandlersGetThePlaceOfTheCheck) {
    class c_placed_reader : public c_xml_reader_memory {
    public:
        explicit c_placed_reader(const std::string& text) : c_xml_reader_memory(text.data(), text.size()) {}
        using c_xml_reader::user_handle_error;
        elmx_error user_handle_error(elmx_error code, const std::string&, const char* file, int line) override {
            m_file = file;
            m_line = line;
            return code;
        }
        std::string m_file;
        int m_line = 0;
    };
    const std::string namespaces = " xmlns:Vyr=\"http://vyrgraph.com/v2\"";
    const std::string texts[] = {"<a/>", "<Vyr:Vyr" + namespaces + "/>", "<Vyr:Vyr a='' " + namespaces + "/>"};
    const char* const files[] = {"lmx/binding/document.cpp", "lmx/binding/unmarshal.cpp",
                                 "lmx/binding/unmarshal.cpp"};
    std::set<std::pair<std::string, int>> places;
    for (std::size_t i = 0; i < std::size(texts); ++i) {
        c_placed_reader reader(texts[i]);
        EXPECT_NE(v2::Vyr().unmarshal(reader), ELMX_OK);
        // Whatever folder the library was built in.
        EXPECT_EQ(reader.m_file, files[i]);
        EXPECT_GT(reader.m_line, 0);
        places.emplace(reader.m_file, reader.m_line);
    }
    EXPECT_EQ(places.size(), std::size(texts));
}

TEST(Reading, TextHasNoName) {
    const s_outcome missing = failure(ELMX_MANDATORY_ELEMENT_MISSING, "Vyr:Version");
    for (const char* const body : {"x", "x<b/>", "x<Vyr:Version>1</Vyr:Version>", "<![CDATA[x]]>/>", "&lt;/>"}) {
        v2::Version version;
        EXPECT_EQ(read(version, element("Version", body)), missing) << body;
        EXPECT_EQ(version.get_Version(), u"") << body;
    }
}

TEST(Reading, AZoneOfZeroMinutesComesBackAsUtc) {
    const std::string date = "2024-05-01T09:30:00";
    const auto read_lab = [&](v2::ColorSpaceCIELabType& lab, const std::string& zone) {
        std::string text = k_lab;
        return read(lab, text.replace(text.find(date), date.size() + 1, date + zone));
    };
    for (const std::string zone : {"+00:00", "-00:00", "Z"}) {
        v2::ColorSpaceCIELabType lab;
        EXPECT_EQ(read_lab(lab, zone), s_outcome{}) << zone;
        EXPECT_EQ(write(lab, "Vyr:ColorSpaceCIELab"), k_lab) << zone;
        const std::string state =
            element("CalibrationState", "CalibrationState_NA", " CalibrationDateTime=\"" + date + zone + "\"");
        v2::CalibrationStateType calibration;
        EXPECT_EQ(read(calibration, state), s_outcome{}) << zone;
        EXPECT_TRUE(calibration.get_CalibrationDateTime().get_is_utc()) << zone;
    }
    v2::ColorSpaceCIELabType lab;
    EXPECT_EQ(read_lab(lab, "+00:01"), s_outcome{});
    EXPECT_FALSE(lab.get_ChangeHistory(0).get_is_utc());
    // What a handler lets in without a zone is not given one.
    const std::pair<std::string, std::vector<elmx_error>> rows[] = {
        {"", {ELMX_NO_PATTERN_MATCHED}},
        {"x", {ELMX_VALUE_BAD_FORMAT, ELMX_NO_PATTERN_MATCHED}},
        {"Zx", {ELMX_VALUE_BAD_FORMAT, ELMX_NO_PATTERN_MATCHED}},
        {"+0:00", {ELMX_VALUE_BAD_FORMAT}},
    };
    for (const auto& [zone, codes] : rows) {
        const std::string without = with_declarations(
            element("CalibrationState", "CalibrationState_NA", " CalibrationDateTime=\"" + date + zone + "\""));
        c_swallowing_reader reader(without);
        v2::CalibrationStateType calibration;
        EXPECT_EQ(read_with(reader, calibration).code, ELMX_OK);
        std::vector<elmx_error> found;
        for (const s_outcome& outcome : reader.swallowed) found.push_back(outcome.code);
        EXPECT_EQ(found, codes) << zone;
        EXPECT_FALSE(calibration.get_CalibrationDateTime().get_is_utc()) << zone;
    }
}

TEST(Reading, AttributesKeepTheirBlanksAndTheFirstOfTwo) {
    v2::Tag tag;
    EXPECT_EQ(read(tag, "<Vyr:Tag xsi:schemaLocation=\"a b\" Name=\" a \" Name=\"b\"><Vyr:Category/></Vyr:Tag>"),
              failure(ELMX_ATTRIBUTE_ALREADY_READ, "Name"));
    EXPECT_EQ(tag.get_Name(), u" a ");
}

TEST(Reading, ValuesAreTakenWithSignsAndBlanksButNotThoseOfEnumerations) {
    v2::ReflectancePointType point;
    EXPECT_EQ(read(point, element("ReflectancePoint", " 9.999 ", " Wavelength=\"400\"")), s_outcome{});
    v2::ReflectancePointType broken;
    EXPECT_EQ(read(broken, element("ReflectancePoint", "&bad;", " Wavelength=\"400\"")),
              failure(ELMX_UNABLE_TO_READ_ELEMENT_VALUE, "Vyr:ReflectancePoint"));
    v2::DeviceSettings settings;
    EXPECT_EQ(read(settings, element("DeviceSettings", element("Aperture", "+2147483647"))), s_outcome{});
    EXPECT_EQ(read(settings, element("DeviceSettings", element("Aperture", "-0"))),
              failure(ELMX_VALUE_BELOW_MIN, "Vyr:Aperture"));
    v2::SpectrumType spectrum;
    EXPECT_EQ(read(spectrum, "<Vyr:Spectrum> Spectrum_Custom</Vyr:Spectrum>"),
              failure(ELMX_VALUE_NOT_ENUMERATED, "Vyr:Spectrum"));
    // A list gets what is good, and no more.
    const std::pair<const char*, elmx_error> dates[] = {
        {" 2009-03-01T12:00:00+01:00\n", ELMX_MANDATORY_ELEMENT_MISSING}, {"2009-03-01", ELMX_VALUE_BAD_FORMAT}};
    for (const auto& [date, code] : dates) {
        v2::ColorType color;
        EXPECT_EQ(read(color, element("Color", element("ChangeHistory", date), " ColorName=\"c\"")).code, code);
        EXPECT_EQ(color.size_ChangeHistory(), code == ELMX_VALUE_BAD_FORMAT ? 0U : 1U) << date;
    }
}

TEST(Reading, AForeignElementInAGroupsPlaceIsSkippedAndCantBeWritten) {
    const auto expect_taken = [](auto& object, const std::string& name, const std::string& content) {
        EXPECT_EQ(read(object, element(name, content)), s_outcome{});
        EXPECT_TRUE(object.is_occurs_ok());
        EXPECT_EQ(write_code(object, ("Vyr:" + name).c_str()), ELMX_OCCURS_ERROR_ON_MARSHAL);
    };
    v2::ToleranceType tolerance;
    expect_taken(tolerance, "Tolerance", "<Vyr:Foreign><a>1</a></Vyr:Foreign><Vyr:UniqueID>7</Vyr:UniqueID>");
    EXPECT_EQ(tolerance.get_UniqueID(), u"7");
    EXPECT_EQ(static_cast<const v2::ToleranceType&>(tolerance).get_Function().getchosen(), 19);
    v2::SampleSpotType sample;
    expect_taken(sample, "SampleSpot",
                 "<Vyr:Foreign/><Vyr:Specification><Vyr:SampleWidth>1</Vyr:SampleWidth>"
                 "<Vyr:SampleHeight>2</Vyr:SampleHeight></Vyr:Specification>");
    v2::ParentColorSpace parent;
    expect_taken(parent, "ParentColorSpace", "<Vyr:Foreign/>");
    EXPECT_EQ(parent.getchosen(), 29);
    v2::PhysicalSampleType physical;
    expect_taken(physical, "PhysicalSample", "<Vyr:Foreign/>");
    EXPECT_EQ(read(physical, element("PhysicalSample", "<xsi:type>1</xsi:type>")), s_outcome{});

    // Neither text nor the owner's end is an element.
    const std::string process = "<Vyr:Process/>";
    for (const std::string& body : {"x<b/>" + std::string(), process + "x<b/>", process}) {
        const std::string more = body == process ? "<b/></Vyr:PhysicalSample>" : "";
        const std::string text = "<Vyr:PhysicalSample>" + body + "</Vyr:PhysicalSample>" + more;
        EXPECT_EQ(read(physical, text).code, ELMX_BAD_END_OF_ELEMENT) << text;
    }
}

TEST(Reading, XsiTypeSpecialisesTwoGroupMembers) {
    const std::string cmyk_start = "<Vyr:ColorSpaceCMYK xsi:type=\"Vyr:";
    const std::string inks = k_change_history + k_nil_generic +
                             "<Vyr:Cyan>1</Vyr:Cyan><Vyr:Magenta>2</Vyr:Magenta><Vyr:Yellow>3</Vyr:Yellow>"
                             "<Vyr:Black>4</Vyr:Black>";
    v2::ColorType color;
    ASSERT_EQ(read(color, element("Color",
                                  k_change_history + cmyk_start + "ColorSpaceCMYKPlusNType\">" + inks +
                                      "<Vyr:Color><Vyr:Name>o</Vyr:Name><Vyr:Value>5</Vyr:Value></Vyr:Color>"
                                      "</Vyr:ColorSpaceCMYK>",
                                  " ColorName=\"c\"")),
              s_outcome{});
    const v2::ColorType copy(color);
    const auto& read_value = copy.get_ColorSpace(0).get_ColorSpaceCMYK();
    EXPECT_STREQ(read_value.getid(), "ColorSpaceCMYKPlusNType");
    EXPECT_NE(write(copy, "Vyr:Color").find("<Vyr:ColorSpaceCMYK xsi:type=\"Vyr:ColorSpaceCMYKPlusNType\">"),
              std::string::npos);

    v2::ColorType unknown;
    const std::string text = with_declarations(
        element("Color", k_change_history + cmyk_start + "ColorSpaceRGBType\">" + inks + "</Vyr:ColorSpaceCMYK>",
                " ColorName=\"c\""));
    c_swallowing_reader reader(text);
    EXPECT_EQ(read_with(reader, unknown).code, ELMX_UNKNOWN_XSI_TYPE);
    EXPECT_TRUE(reader.swallowed.empty());
    ASSERT_EQ(unknown.size_ColorSpace(), 1U);
    EXPECT_EQ(unknown.get_ColorSpace(0).getchosen(), 29);

    v2::ToleranceType tolerance;
    EXPECT_EQ(read(tolerance, element("Tolerance", "<Vyr:Function/>")).code, ELMX_UNKNOWN_XSI_TYPE);
    v2::ToleranceType typed;
    const std::string function =
        "<Vyr:Function xsi:type=\"Vyr:FunctionDE94Type\"><Vyr:Param_l>0.5</Vyr:Param_l>"
        "<Vyr:Param_c>1</Vyr:Param_c><Vyr:Param_h>2</Vyr:Param_h></Vyr:Function>";
    ASSERT_EQ(read(typed, element("Tolerance", function)), s_outcome{});
    EXPECT_EQ(write(typed, "Vyr:Tolerance"), element("Tolerance", function));
}

TEST(Reading, NilElements) {
    v2::SDKVersion version;
    ASSERT_EQ(read(version, "<Vyr:SDKVersion xsi:nil=\" 1 \"/>"), s_outcome{});
    EXPECT_TRUE(version.isnil_SDKVersion());
    EXPECT_EQ(write(version, "Vyr:SDKVersion"), "<Vyr:SDKVersion xsi:nil=\"true\"/>");
    version.set_SDKVersion(u"2");
    EXPECT_EQ(write(version, "Vyr:SDKVersion"), "<Vyr:SDKVersion>2</Vyr:SDKVersion>");

    v2::ColorSpaceSpecificationSpectrumSpectral specification;
    const std::string nil = "<Vyr:ColorSpaceSpecificationSpectrumSpectral UniqueID=\"u\" xsi:nil=\"true\"/>";
    ASSERT_EQ(read(specification, nil), s_outcome{});
    EXPECT_EQ(write(specification, "Vyr:ColorSpaceSpecificationSpectrumSpectral"), nil);
    v2::DeviceFilter filter;
    filter.setnil_DeviceFilter();
    EXPECT_TRUE(filter.is_occurs_ok());
    EXPECT_EQ(filter.set_DeviceFilterType(u"Filter_None"), ELMX_OK);
    EXPECT_FALSE(filter.isnil_DeviceFilter());
}

TEST(Reading, ASpecificationWithoutFilterCantBeWrittenBack) {
    const std::string geometry = element("GeometryChoice", element("Angle", "-45"));
    const std::string rest = element("DevicePolarization", "0") + k_change_history +
                             "<Vyr:Spectrum>Spectrum_Reflectance</Vyr:Spectrum>" + geometry;
    v2::ColorSpaceSpecificationSpectrumSpectralType specification;
    const char* const name = "Vyr:ColorSpaceSpecificationSpectrumSpectral";
    ASSERT_EQ(read(specification, element(name + 4, rest)), s_outcome{});
    EXPECT_TRUE(specification.is_occurs_ok());
    elmx_error code = ELMX_OK;
    EXPECT_EQ(write(specification, name, &code), "<Vyr:ColorSpaceSpecificationSpectrumSpectral>");
    EXPECT_EQ(code, ELMX_OCCURS_ERROR_ON_MARSHAL);
    specification.get_DeviceFilter().setnil_DeviceFilter();
    write(specification, name, &code);
    EXPECT_EQ(code, ELMX_OK);
}

TEST(Reading, AzimuthIsReadWithoutATraceAndAlwaysWritten) {
    const std::string angles = element("IlluminantAngle", "45") + element("Aspecular", "15");
    for (const char* const azimuth : {"", "<Vyr:Azimuth/>", "<Vyr:Azimuth ></Vyr:Azimuth>"}) {
        v2::BSDFAngle angle;
        ASSERT_EQ(read(angle, element("BSDFAngle", angles + azimuth)), s_outcome{}) << azimuth;
        EXPECT_EQ(write(angle, "Vyr:BSDFAngle"), element("BSDFAngle", angles + "<Vyr:Azimuth/>"));
    }
    v2::BSDFAngle angle;
    EXPECT_EQ(read(angle, element("BSDFAngle", angles + "<Vyr:Azimuth>1</Vyr:Azimuth>")),
              failure(ELMX_BAD_END_OF_ELEMENT, "Vyr:Azimuth"));
    v2::Azimuth alone;
    EXPECT_EQ(read(alone, "<Vyr:Azimuth/>"), s_outcome{});
    EXPECT_EQ(write(alone, "Vyr:Azimuth"), "<Vyr:Azimuth/>");
}

TEST(Reading, ChoicesTakeOneAlternative) {
    v2::ValueChoice choice;
    EXPECT_EQ(read(choice, element("ValueChoice", "<Vyr:Other/>")),
              failure(ELMX_UNKNOWN_ELEMENT_IN_COMPLEX_CONTENT, "Vyr:Other"));
    EXPECT_EQ(choice.getchosen(), 2);
    EXPECT_EQ(read(choice, element("ValueChoice", element("Double", "1.5") + element("String", "s"))),
              failure(ELMX_BAD_END_OF_ELEMENT, "Vyr:ValueChoice"));
    EXPECT_EQ(choice.getchosen(), 0);
    EXPECT_EQ(choice.get_Double(), 1.5);
    EXPECT_EQ(read(choice, element("ValueChoice", element("String", " s "))), s_outcome{});
    EXPECT_EQ(choice.get_String(), u" s ");
    v2::TagValue value;
    EXPECT_EQ(read(value, element("TagValues", "<Vyr:Tag><Vyr:Category/></Vyr:Tag><Vyr:Other/>")),
              failure(ELMX_MANDATORY_ELEMENT_MISSING, ""));
    ASSERT_EQ(
        read(value, element("TagValues", "<Vyr:Tag><Vyr:Category/></Vyr:Tag><Vyr:NumberValue>2</Vyr:NumberValue>")),
        s_outcome{});
    EXPECT_EQ(write(value, "Vyr:TagValues"),
              element("TagValues", "<Vyr:Tag><Vyr:Category/></Vyr:Tag><Vyr:NumberValue>2</Vyr:NumberValue>"));
}

TEST(Reading, OpenContentIsKeptAsText) {
    const std::string markup = "<x:foo xmlns:x=\"urn:x\" a='1'>t<x:b/><![CDATA[<]]>u</x:foo>";
    v2::Revision revision;
    ASSERT_EQ(read(revision, element("Revision", markup + "<Vyr:Note>n</Vyr:Note>")), s_outcome{});
    ASSERT_EQ(revision.size_any(), 2U);
    std::string ns, name, value;
    revision.get_any(0, &ns, &name, &value);
    EXPECT_EQ(ns, "urn:x");
    EXPECT_EQ(name, "x:foo");
    EXPECT_EQ(value, markup);
    revision.get_any(1, nullptr, nullptr, &value);
    EXPECT_EQ(value, "<Vyr:Note>n</Vyr:Note>");
    EXPECT_EQ(write(revision, "Vyr:Revision"), element("Revision", markup + "<Vyr:Note>n</Vyr:Note>"));
    v2::Revision text;
    EXPECT_EQ(read(text, element("Revision", "text")), failure(ELMX_MANDATORY_ELEMENT_MISSING, "Vyr:"));
    EXPECT_EQ(read(text, "<Vyr:Revision/>"), s_outcome{});
}

TEST(Reading, SwallowedErrorsGoOn) {
    const std::string text = with_declarations(
        "<Vyr:Color Bogus=\"1\">"
        "<Vyr:ColorSpaceCIELab>" +
        k_nil_tristimulus + "<Vyr:L>151</Vyr:L><Vyr:A>x</Vyr:A><Vyr:B>2</Vyr:B></Vyr:ColorSpaceCIELab></Vyr:Color>");
    v2::ColorType color;
    c_swallowing_reader reader(text);
    EXPECT_EQ(read_with(reader, color).code, ELMX_OK);
    const std::vector<s_outcome> expected = {
        failure(ELMX_UNEXPECTED_ATTRIBUTE, "Vyr:Color"),
        failure(ELMX_REQUIRED_ATTRIBUTES_MISSING, "ColorType"),
        failure(ELMX_MANDATORY_ELEMENT_MISSING, "Vyr:ChangeHistory"),
        failure(ELMX_MANDATORY_ELEMENT_MISSING, "Vyr:ChangeHistory"),
        failure(ELMX_MANDATORY_ELEMENT_MISSING, "Vyr:ColorSpaceType"),
        failure(ELMX_VALUE_EXCEEDS_MAX, "Vyr:L"),
        failure(ELMX_VALUE_BAD_FORMAT, "Vyr:A"),
        failure(ELMX_MANDATORY_ELEMENT_MISSING, "Vyr:ColorType"),
    };
    EXPECT_EQ(reader.swallowed, expected);
    EXPECT_EQ(reader.get_error(), ELMX_OK);
    EXPECT_EQ(reader.get_error_item_name(), "Vyr:ColorType");
    ASSERT_EQ(color.size_ColorSpace(), 1U);
    EXPECT_EQ(color.get_ColorSpace(0).get_ColorSpaceCIELab().get_L(), 151);

    // The pattern is asked even about what is no date, but not about a text that would take it minutes.
    std::string dates;
    for (const std::string& date : {std::string("2009"), std::string("1T2Z"), std::string(1'000'000, 'T')}) {
        dates += element("ChangeHistory", date);
    }
    const std::string dated = with_declarations(element("Color", dates, " ColorName=\"c\""));
    c_swallowing_reader second(dated);
    EXPECT_EQ(read_with(second, color).code, ELMX_OK);
    const s_outcome no_date = failure(ELMX_VALUE_BAD_FORMAT, "Vyr:ChangeHistory");
    const s_outcome no_match = failure(ELMX_NO_PATTERN_MATCHED, "Vyr:ChangeHistory");
    EXPECT_EQ(second.swallowed, (std::vector<s_outcome>{no_date, no_match, no_date, no_date}));
}

TEST(Reading, AHandlerThatSwallowsEverythingStillComesToAnEnd) {
    const std::string whole =
        with_declarations(element("Color",
                                  k_change_history + k_lab +
                                      "<Vyr:SubstratePaper/><Vyr:TagValues><Vyr:Tag><Vyr:Category UniqueID=\"u\"/>"
                                      "</Vyr:Tag><Vyr:TextValue>t</Vyr:TextValue></Vyr:TagValues>",
                                  " ColorName=\"c\""));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string cut = whole.substr(0, length);
        v2::ColorType color;
        c_swallowing_reader reader(cut);
        read_with(reader, color);
        EXPECT_LT(reader.swallowed.size(), 60U) << "cut at " << length;
    }
}

TEST(Reading, NestingIsBounded) {
    // One ColorSpaceYBR and one ParentColorSpace make two levels.
    const auto nested = [](int levels) {
        std::string open, close;
        for (int level = 0; level + 1 < levels; level += 2) {
            open += "<Vyr:ColorSpaceYBR><Vyr:ParentColorSpace>";
            close.insert(0, "</Vyr:ParentColorSpace>" + k_change_history + k_nil_generic +
                                "<Vyr:Y>0</Vyr:Y><Vyr:B>0</Vyr:B><Vyr:R>0</Vyr:R></Vyr:ColorSpaceYBR>");
        }
        return open + "<Vyr:ColorSpaceNCS><Vyr:ParentColorSpace xsi:nil=\"1\"/>" + k_change_history + k_nil_generic +
               "<Vyr:ColorName>n</Vyr:ColorName></Vyr:ColorSpaceNCS>" + close;
    };
    v2::ColorSpaceYBR deep;
    EXPECT_EQ(read(deep, nested(255)), s_outcome{});
    v2::ColorSpaceYBR too_deep;
    EXPECT_EQ(read(too_deep, nested(257)), failure(ELMX_BADLY_FORMED, "Vyr:ColorSpaceNCS"));
    const v2::ColorSpaceYBR copy(too_deep);
}

TEST(Reading, WhatNestsTooDeepToBeReadIsNotWritten) {
    const auto fill = [](v2::ColorSpaceYBRType& value) -> v2::ColorSpaceYBRType* {
        value.append_ChangeHistory(c_datetime("2024-05-01T09:30:00Z"));
        value.get_ColorSpaceSpecificationSpectrumGeneric().setnil_ColorSpaceSpecificationSpectrumGeneric();
        value.set_Y(0);
        value.set_B(0);
        value.set_R(0);
        return &value;
    };
    v2::ColorSpaceYBR tree;
    v2::ColorSpaceYBRType* innermost = fill(tree);
    const auto deepen = [&] {
        innermost = fill(innermost->get_ParentColorSpace().get_ColorSpace().get_ColorSpaceYBR());
    };
    for (int levels = 1; levels < 255; levels += 2) deepen();
    std::string text;
    ASSERT_EQ(tree.marshal(&text), ELMX_OK);
    EXPECT_EQ(v2::ColorSpaceYBR().unmarshal(text), ELMX_OK);
    deepen();
    EXPECT_EQ(tree.marshal(&text), ELMX_BADLY_FORMED);

    // Nobody can let that pass.
    class c_swallowing_writer : public c_xml_writer {
    public:
        using c_xml_writer::c_xml_writer;
        using c_xml_writer::user_handle_error;
        elmx_error user_handle_error(elmx_error, const std::string&, const char*, int) override { return ELMX_OK; }
    };
    std::ostringstream stream;
    c_swallowing_writer writer(stream, "", "");
    for (int levels = 257; levels < 2000; levels += 2) deepen();
    const v2::ColorSpaceYBR copy(tree);
    EXPECT_EQ(copy.marshal(writer, "Vyr:ColorSpaceYBR"), ELMX_BADLY_FORMED);
}

}  // namespace
}  // namespace vyr_test
