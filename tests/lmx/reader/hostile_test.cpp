// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Documents made to hurt: everything costs time in proportion to its size, and nothing recurses.

#include <gtest/gtest.h>
#include <time.h>

#include <cstdint>

#include "lmx/reader/xml_reader.h"
#include "tests/lmx/reader/support.h"

namespace {

using namespace lmx;
using namespace lmx_test;

/// Quadratic cost at these sizes takes minutes of the processor's time, whatever else it is busy with; a slow one
/// under a sanitizer stays well below this.
class Hostile : public testing::Test {
protected:
    void TearDown() override { EXPECT_LT(processor_seconds() - m_start, 20); }

private:
    /// std::clock counts all that goes by on some systems.
    static std::int64_t processor_seconds() {
        timespec now{};
        EXPECT_EQ(clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now), 0);
        return now.tv_sec;
    }
    std::int64_t m_start = processor_seconds();
};

constexpr std::size_t k_levels = 1000000;

TEST_F(Hostile, DeepContentIsHandledWithoutRecursion) {
    const std::string document = repeat("<a>", k_levels) + repeat("</a>", k_levels);
    s_scanner skipped(document);
    skipped.element();
    EXPECT_TRUE(skipped.xml.skip_rest_of_element("a"));
    s_scanner copied(document);
    copied.element();
    EXPECT_TRUE(copied.any("a") && copied.text == document);
    c_xml_reader_memory reader(document.data(), document.size());
    EXPECT_EQ(has_must_understand(reader, "u", "must", bool_must_understand), ELMX_MUST_UNDERSTAND_NO);
    elmx_error error = ELMX_OK;
    bool is_empty = false;
    reader.get_element_event(nullptr, &error, &reader.m_name);
    EXPECT_TRUE(reader.get_element_ur_value("a", &reader.m_value, &error, &is_empty));
    EXPECT_EQ(reader.m_value.size(), document.size() - 7);
}

TEST_F(Hostile, DeepScopesAreSearchedOnce) {
    std::string document = "<a xmlns:p='u'>";
    constexpr std::size_t levels = 60000;
    for (std::size_t i = 0; i < levels; ++i) document += "<a xmlns:q='v' p:x='1' z:x='1'>";
    document += repeat("</a>", levels + 1);
    c_xml_reader_memory reader(document.data(), document.size());
    EXPECT_EQ(has_must_understand(reader, "u", "must", bool_must_understand), ELMX_MUST_UNDERSTAND_NO);
}

TEST_F(Hostile, ManyAttributesAndDeclarations) {
    std::string document = "<a";
    for (int i = 0; i < 100000; ++i) {
        const std::string number = std::to_string(i);
        document += " b" + number + "='" + number + "' xmlns:p" + number + "='u" + number + "' p" + number + ":c=''";
    }
    document += "/>";
    c_xml_reader_memory reader(document.data(), document.size());
    elmx_error error = ELMX_OK;
    reader.get_element_event(nullptr, &error, &reader.m_name);
    int count = 0;
    while (reader.get_attribute_event(nullptr, &error, &reader.m_attr_name)) {
        EXPECT_TRUE(reader.get_attribute_value(&reader.m_value, ELMX_WS_COLLAPSE));
        ++count;
    }
    EXPECT_EQ(count, 200000);
    EXPECT_EQ(reader.get_ns_id(), 1000 + 99999);
}

TEST_F(Hostile, ManyEntitiesEachInsideTheNext) {
    constexpr int levels = 50000;
    std::string document = "<!DOCTYPE a [<!ENTITY e0 'x'>";
    for (int i = 1; i < levels; ++i) {
        document += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i - 1) + ";'>";
    }
    const std::string last = "&e" + std::to_string(levels - 1) + ";";
    document += "]><a b='" + last + "'>" + last + "</a>";
    s_scanner scanner(document);
    EXPECT_EQ(scanner.element(), ELXP_NAME);
    scanner.attribute();
    EXPECT_TRUE(scanner.attribute_value(ELMX_WS_COLLAPSE) && scanner.text == "x");
    scanner.xml.move_to_start_tag_end(nullptr);
    EXPECT_TRUE(scanner.value(ELMX_WS_COLLAPSE) && scanner.text == "x");
    EXPECT_EQ(scanner.reports.m_log, "");
}

TEST_F(Hostile, ManyUnknownNamespaces) {
    std::string document = "<a>";
    for (int i = 0; i < 50000; ++i) document += "<p:b xmlns:p='u" + std::to_string(i) + "'/>";
    c_xml_reader_memory reader(document.data(), document.size());
    std::string ns;
    elmx_error error = ELMX_OK;
    reader.get_element_event(nullptr, &error, &reader.m_name);
    reader.get_attribute_event(nullptr, &error, &reader.m_attr_name);
    for (int i = 0; i < 50000; ++i) {
        reader.get_element_event(nullptr, &error, &reader.m_name);
        ASSERT_EQ(reader.get_namespace(reader.m_name, &ns), "u" + std::to_string(i));
        reader.get_attribute_event(nullptr, &error, &reader.m_attr_name);
    }
}

TEST_F(Hostile, LongValuesNamesAndDigits) {
    constexpr std::size_t size = 50000000;
    const std::string run(size, 'x');
    for (const elmx_whitespace mode : {ELMX_WS_PRESERVE, ELMX_WS_COLLAPSE}) {
        s_scanner scanner("<a b='" + run + "'>" + run + "</a>");
        scanner.element();
        scanner.attribute();
        EXPECT_TRUE(scanner.attribute_value(mode) && scanner.text.size() == size);
        scanner.xml.move_to_start_tag_end(nullptr);
        EXPECT_TRUE(scanner.value(mode) && scanner.text.size() == size);
    }
    for (const std::string& piece : {std::string("&#x") + std::string(5000000, 'f') + ";",
                                     "&#" + std::string(5000000, '9') + ";", '&' + std::string(5000000, 'n') + ';'}) {
        s_scanner scanner("<a>" + piece + "</a>");
        scanner.enter();
        EXPECT_FALSE(scanner.value());
    }
    for (const std::string& document : {"<!--" + repeat("--", 5000000), "<![CDATA[" + repeat("]>", 5000000),
                                        "<?" + repeat("?", 10000000), repeat("\r\n", 5000000), repeat("<", 1000000),
                                        "<a b='" + repeat("\r\xC2\x85", 3000000), repeat("&#;", 1000000)}) {
        s_scanner scanner(document);
        std::size_t calls = 0;
        while (scanner.element() != ELXP_END_OF_INPUT) ++calls;
        EXPECT_LE(calls, document.size());
        EXPECT_TRUE(scanner.xml.at_end_of_input());
    }
}

}  // namespace
