// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The writer: declaration, layout, namespace attributes, errors.

#include "lmx/writer/xml_writer.h"

#include <gtest/gtest.h>

#include <locale>
#include <sstream>

#include "lmx/writer/as_xml.h"
#include "tests/lmx/comma_locale.h"

namespace {

using lmx::c_xml_writer;

constexpr lmx::s_ns_map k_map[] = {{1000, "Vyr", "http://example.com/v2"}, {0, nullptr, nullptr}};
constexpr lmx::s_ns_map k_other_map[] = {{1001, "", "urn:other"}, {1002, "two", "urn:two"}, {0, nullptr, nullptr}};
const std::string k_xsi = " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";

TEST(XmlWriter, OptionsDecideOnTheDeclaration) {
    const struct {
        int options;
        const char* text;
    } cases[] = {{0, ""},
                 {c_xml_writer::include_xml_decl, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>|"},
                 {c_xml_writer::include_standalone, "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>|"},
                 {3, "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>|"},
                 {4, ""}};
    for (const auto& row : cases) {
        std::ostringstream stream;
        const c_xml_writer writer(stream, row.options, "\t", "|");
        EXPECT_EQ(stream.str(), row.text) << row.options;
    }
    std::ostringstream stream;
    const c_xml_writer writer(stream, "\t", "|");
    EXPECT_EQ(stream.str(), "");
}

TEST(XmlWriter, LayoutCanBeOverridden) {
    class c_flat : public c_xml_writer {
    public:
        using c_xml_writer::c_xml_writer;
        const char* endl() override {
            ++line_ends;
            return "";
        }
        void nest() override { (*this)(false) << '.'; }
        int line_ends = 0;
    };
    std::ostringstream stream;
    c_flat w(stream, "\t", "\n");
    w.indent();
    w.indent();
    w(true) << "<a>" << w.endl();
    EXPECT_EQ(stream.str(), "..<a>");
    w.conditionally_write_ns_attrs(false);
    EXPECT_EQ(w.line_ends, 2);  // asked once more, though nothing is printed
    w.conditionally_write_ns_attrs(false);
    EXPECT_EQ(w.line_ends, 2);
}

TEST(XmlWriter, AStringIsAppendedToWithoutAStream) {
    std::string text = "kept ";
    c_xml_writer w(text, c_xml_writer::include_xml_decl, "--", "|");
    const std::string declared = "kept <?xml version=\"1.0\" encoding=\"UTF-8\"?>|";
    EXPECT_EQ(text, declared);
    w.indent();
    w.nest();
    EXPECT_EQ(text, declared + "--");
    w(true) << 1234567 << '<' << lmx::c_as_xml(1.5);
    w.conditionally_select_ns_map(k_map);
    w.conditionally_write_ns_attrs(false);
    w(false) << w.endl();
    EXPECT_EQ(text, declared + "----1234567<1.5 xmlns:Vyr=\"http://example.com/v2\"|");
}

TEST(XmlWriter, NamespacesComeOnceInOrder) {
    std::ostringstream stream;
    c_xml_writer w(stream, "\t", "\n");
    w.add_namespace("p", "urn:p");
    w.add_default_namespace("urn:d&<");
    w.add_namespace("p", "urn:p");
    w.conditionally_select_ns_map(k_map);
    w.conditionally_select_ns_map(k_other_map);
    w.conditionally_write_ns_attrs(false);
    const std::string added = " xmlns:p=\"urn:p\" xmlns=\"urn:d&<\" xmlns:p=\"urn:p\"";
    EXPECT_EQ(stream.str(), " xmlns:Vyr=\"http://example.com/v2\"" + added);
    w.conditionally_write_ns_attrs(true);
    EXPECT_EQ(stream.str(), " xmlns:Vyr=\"http://example.com/v2\"" + added);

    EXPECT_STREQ(w.get_namespace_prefix("http://example.com/v2"), "Vyr");
    EXPECT_STREQ(w.get_namespace_prefix("urn:p"), "p");
    EXPECT_STREQ(w.get_namespace_prefix("urn:d&<"), "");
    EXPECT_EQ(w.get_namespace_prefix("urn:other"), nullptr);

    stream.str("");
    w.reenable_ns_map_output();
    w.conditionally_select_ns_map(k_other_map);
    w.conditionally_write_ns_attrs(true);
    EXPECT_EQ(stream.str(), " xmlns=\"urn:other\" xmlns:two=\"urn:two\"" + added + k_xsi);
}

TEST(XmlWriter, SchemaLocationsBringTheirNamespace) {
    const auto print = [](std::initializer_list<std::pair<const char*, const char*>> locations) {
        std::ostringstream stream;
        c_xml_writer w(stream, "\t", "\n");
        for (const auto& [ns, location] : locations) w.add_schema_location(ns, location);
        w.conditionally_write_ns_attrs(false);
        return stream.str();
    };
    EXPECT_EQ(print({}), "");
    EXPECT_EQ(print({{"a", "b"}, {"c", "d"}}), k_xsi + " xsi:schemaLocation=\"a b c d\"");
    EXPECT_EQ(print({{"", "b"}, {"c", "d"}}), k_xsi + " xsi:noNamespaceSchemaLocation=\"b\"");
    EXPECT_EQ(print({{"a", "b"}, {"", "d"}}), k_xsi + " xsi:schemaLocation=\"a b  d\"");
    std::ostringstream stream;
    c_xml_writer w(stream, "\t", "\n");
    w.add_no_namespace_schema_location("x.xsd");
    w.conditionally_write_ns_attrs(true);
    EXPECT_EQ(stream.str(), k_xsi + " xsi:noNamespaceSchemaLocation=\"x.xsd\"");
}

TEST(XmlWriter, ErrorsAreRecordedWithTheirItem) {
    std::ostringstream stream;
    c_xml_writer w(stream, "\t", "\n");
    std::string message = "old";
    EXPECT_EQ(w.get_error_message(&message), "No Error");
    EXPECT_EQ(w.handle_error(lmx::ELMX_TYPE_NOT_SET, "Vyr:Color", "file", 1), lmx::ELMX_TYPE_NOT_SET);
    EXPECT_EQ(&w.get_error_message(&message), &message);
    EXPECT_EQ(message, "'Vyr:Color'-Type not set");
    EXPECT_EQ(w.get_error_item_name(), "Vyr:Color");
    EXPECT_EQ(w.handle_error(static_cast<lmx::elmx_error>(47), w.get_error_item_name(), "file", 1), 47);
    EXPECT_EQ(w.get_error_message(&message), "'Vyr:Color'-");

    class c_lenient : public c_xml_writer {
    public:
        using c_xml_writer::c_xml_writer;
        lmx::elmx_error user_handle_error(lmx::elmx_error) override { return lmx::ELMX_OK; }
    };
    c_lenient lenient(stream, "\t", "\n");
    EXPECT_EQ(lenient.handle_error(lmx::ELMX_TYPE_NOT_SET, "one", "file", 1), lmx::ELMX_OK);
    EXPECT_EQ(lenient.get_error_message(&message), "No Error");

    lmx::elmx_error_type type = lmx::ELMX_TYPE_NOTE;
    lmx::elmx_error code = lmx::ELMX_NO_FILE;
    int line = 77;
    EXPECT_FALSE(w.get_error_info(&type, &code, &line));
    EXPECT_TRUE(type == lmx::ELMX_TYPE_NOTE && code == lmx::ELMX_NO_FILE && line == 77);
}

}  // namespace
