// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The document type declaration, entities in content and in attributes, and the bounds on their expansion.

#include <gtest/gtest.h>

#include "tests/lmx/reader/support.h"

namespace {

using namespace lmx;
using namespace lmx_test;

std::string trace_of(const std::string& document) {
    s_scanner scanner(document);
    return scan(scanner);
}

std::string reports_of(const std::string& document) {
    s_scanner scanner(document);
    scan(scanner);
    return scanner.reports.m_log;
}

/// Scans documents that begin within their subset.
void check_subsets(const std::vector<s_scan_case>& cases) { check_scans(cases, "<!DOCTYPE a ["); }

TEST(Entities, StandInForDocumentText) {
    const std::string external = "2/17@1:External Entity definitions not supported;";
    check_subsets({
        {"<!ENTITY e \"x\">]><a b='&e;&e'>&e;y&e</a>", "<a b=xx>'xyx'</a>$", ""},
        {"<!ENTITY e '<b/>'>]><a b='&e;'>&e;</a>", "<a b=<b/>><b/></a>$", ""},
        {"<!ENTITY e '1'><!ENTITY e \"2\">]><a b='&e;'>&e;</a>", "<a b=2>'2'</a>$", ""},
        {"<!ENTITY e '&#65;&f;'><!ENTITY f '&lt;B&#38;gt;'>]><a b='&e;'>&e;</a>", "<a b=A<B>>'A<B>'</a>$", ""},
        {"<!ENTITY lt 'x'><!ENTITY amp 'y'>]><a b='&lt;&amp;'>&lt;&amp;</a>", "<a b=<&>'<&'</a>$", ""},
        {"<!ENTITY % p '<!ENTITY q \"y\">'> %p;]><a>&q;</a>", "<a>'y'</a>$", ""},
        {"<!ENTITY % p '1\"2'><!ENTITY q \"<%p;>\">]><a b='&q;'/>", "<a b=<1\"2>/>$", ""},
        {"<!ENTITY % p 'x'>%p]>", "!", "0/9@1:DTD not Well Formed (got x);"},
        {"<!ENTITY e SYSTEM 'f>'><!ENTITY f PUBLIC 'g' \"h\" NDATA i>]><a>&e;&f;</a>", "<a>'SYSTEMPUBLIC'</a>$",
         external + external},
        {"<!ENTITY e other>]><a>&e;</a>", "<a>'other'</a>$", "1/33@1:Unexpected value in Entity definition: other;"},
        {"%none;<!ENTITY e '%none;x'>]><a>&e;</a>", "<a>'x'</a>$",
         "1/41@1:Entity '%none' not found;1/41@1:Entity '%none' not found;"},
        {"<!-- ]> --><?pi ]> ?><?pi?><!ELEMENT a ANY><!ATTLIST a b CDATA '>'><![IGNORE[>]><a/>", "<a/>$", ""},
        {"<!ENTITY e 'a%'>]><a b='&e;'/>", "<a b=a/>$", "1/41@1:Entity '%' not found;"},
        // At use, a per cent sign begins a reference inside an attribute and is plain text in content.
        {"<!ENTITY e '1&#37;lt;2'>]><a b='&e;'>&e;</a>", "<a b=1<2>'1%lt;2'</a>$", ""},
    });
}

TEST(Entities, ThatAreNotFoundStayInTheText) {
    check_subsets({
        {"<!ENTITY e 'x&u;y'>]><a b='&e;' c='1'/>", "<a b=x&u;? c=1/>$", ""},
        {"<!ENTITY e 'x'>]><a>1&u;2</a>", "<a>!", ""},
    });
}

TEST(Entities, MustNotContainThemselves) {
    const auto recursive = [](const std::string& value) {
        return "0/9@1:Recursive entity definition for: " + value + ";";
    };
    check_subsets({
        {"<!ENTITY e '&e;'>]><a>&e;</a>", "<a>$", recursive("&e;")},
        {"<!ENTITY e '1&f;'><!ENTITY f '2&e;'>]><a>&e;</a>", "<a>'12'$", recursive("1&f;")},
        {"<!ENTITY e '1&f;'><!ENTITY f '2&e;'>]><a b='&e;'/>", "<a b=12?!", recursive("1&f;")},
        {"<!ENTITY e '<b c=\"&e;\"/>'>]><a>&e;</a>", "<a><b c=<b c=\"?!", recursive("<b c=\"&e;\"/>")},
        {"<!ENTITY e '1'><!ENTITY f '&e;&e;'>]><a b='&f;&f;'>&f;&f;</a>", "<a b=1111>'1111'</a>$", ""},
    });
    const std::string cycle = "<!DOCTYPE a [<!ENTITY % p '&#37;p;'>%p;]><a/>";
    EXPECT_EQ(reports_of(cycle), recursive("%p;"));
    const std::string namespaces = "<!DOCTYPE a [<!ENTITY e '&f;'><!ENTITY f '&e;'>]><a xmlns='&e;'/>";
    EXPECT_EQ(reports_of(namespaces), recursive("&f;"));
}

TEST(Entities, MayBeReplacedWhileTheyAreRead) {
    const std::string document = "<!DOCTYPE a [<!ENTITY % p '<!ENTITY &#37; p \"\"><!ENTITY e \"kept " +
                                 std::string(200, 'x') + "\">'>%p;%p;]><a>&e;</a>";
    EXPECT_EQ(trace_of(document), "<a>'kept " + std::string(200, 'x') + "'</a>$");
    EXPECT_EQ(reports_of(document), "");

    s_scanner scanner("<a>&e;</a>");
    scanner.xml.add_general_entity("e", std::string(300, 'y') + "<b/>");
    scanner.enter();
    EXPECT_EQ(scanner.element(), ELXP_TEXT);
    EXPECT_EQ(scanner.xml.get_entity_stack_depth(), 1U);
    scanner.xml.add_general_entity("e", "new");
    scanner.xml.rewind();  // leaves what is open
    EXPECT_TRUE(scanner.element() == ELXP_NAME && scanner.text == "b");
    const char* value = nullptr;
    EXPECT_FALSE(scanner.xml.get_general_entity("e", &value));
}

TEST(Entities, OfACallerAreToldApartByTheirAddress) {
    const std::string borrowed = "xy";
    s_scanner scanner("<a>");
    scanner.xml.add_general_entity("e", "12");
    const char* own = nullptr;
    ASSERT_TRUE(scanner.xml.get_general_entity("e", &own));
    EXPECT_STREQ(own, "12");
    EXPECT_EQ(scanner.xml.get(), '<');
    // What is given back to a text comes from there, before what is given back to those below.
    EXPECT_TRUE(scanner.xml.set_input_entity_value(own));
    EXPECT_EQ(scanner.xml.get(), '1');
    for (const int value : {7, 8, 9, 10}) scanner.xml.unget(value);
    EXPECT_TRUE(scanner.xml.set_input_entity_value(borrowed.c_str()));
    scanner.xml.unget(11);
    for (const int value : {11, int{'x'}, int{'y'}, 10, 9, 8}) EXPECT_EQ(scanner.xml.get(), value);
    EXPECT_FALSE(scanner.xml.at_end_of_input());
    for (const int value : {'2', 'a'}) EXPECT_EQ(scanner.xml.get(), value);
    EXPECT_EQ(scanner.xml.get_entity_stack_depth(), 0U);
    // The same texts may come again, but not while they are open.
    EXPECT_TRUE(scanner.xml.set_input_entity_value(borrowed.c_str()));
    EXPECT_TRUE(scanner.xml.set_input_entity_value(own));
    EXPECT_EQ(scanner.reports.m_log, "");
    EXPECT_FALSE(scanner.xml.set_input_entity_value(borrowed.c_str()));
    EXPECT_EQ(scanner.reports.m_log, "0/9@1:Recursive entity definition for: xy;");

    for (const bool is_own_first : {true, false}) {
        s_scanner second("<a>&e;</a>");
        second.xml.add_general_entity("e", "&e;");
        second.xml.get_general_entity("e", &own);
        second.enter();
        EXPECT_TRUE(is_own_first || second.xml.set_input_entity_value(own));
        second.value();
        EXPECT_EQ(second.reports.m_log, "0/9@1:Recursive entity definition for: &e;;");
        EXPECT_EQ(second.xml.get_entity_stack_depth(), 1U);
    }
}

TEST(Entities, HoldAnyByte) {
    const std::string value("1\xFF\0\xC3\xA9z", 6);
    s_scanner scanner("<a b='&e;'>&e;</a>");
    scanner.xml.add_general_entity("e", value);
    scanner.element();
    scanner.attribute();
    EXPECT_TRUE(scanner.attribute_value(ELMX_WS_COLLAPSE) && scanner.text == value);
    scanner.xml.move_to_start_tag_end(nullptr);
    EXPECT_TRUE(scanner.value(ELMX_WS_COLLAPSE) && scanner.text == value);
    EXPECT_TRUE(scanner.xml.is_element_end_tag("a"));
    // A byte over 127 of an entity's text is no character of a name; in the document it is.
    EXPECT_EQ(trace_of("<!DOCTYPE a [<!ENTITY e '<\xC3\xA9/>'>]><a>&e;</a>"), "<a>!");
}

TEST(Entities, CountNoLines) {
    s_scanner scanner("<!DOCTYPE a [<!ENTITY e 'x\n\ny'>]>\n<a>&e;&e;\n</a>");
    scan(scanner);
    EXPECT_EQ(scanner.xml.get_line_num(), 5);
}

TEST(Subsets, MustBeWellFormed) {
    const std::string got = "0/9@1:DTD not Well Formed (got ";
    check_scans(
        {
            {"[ x ]>", "!", got + "x);"},
            {"[ ", "!", got + ");"},
            {"[ <!ELEMENT a", "!", got + ");"},
            {"[ ] x>", "!", "0/9@1:DTD not Well Formed (expected '>', got x);"},
            {"[ ]", "!", "0/9@1:DTD not Well Formed (expected '>', got );"},
            {"", "!", ""},
            {"[<!-- ", "!", ""},
            {"[<!ENTITY ", "!", ""},
            {"[<!ENTITY e ", "!", ""},
            {"[<!ENTITY e '&#x;'>]>", "!", ""},
            {"[<!ENTITY e 'x", "!", got + ");"},
            {"[<?\?>]><a/>", "!", ""},
        },
        "<!DOCTYPE a ");
}

TEST(Expansion, IsBounded) {
    const std::string excess = "0/9@1:Entity expansion too large;";
    // Ten levels of ten references each: a thousand millions of characters, were it let.
    std::string bomb = "<!ENTITY e0 'ha'>";
    for (int i = 1; i < 10; ++i) {
        bomb += "<!ENTITY e" + std::to_string(i) + " '" + repeat("&e" + std::to_string(i - 1) + ";", 10) + "'>";
    }
    // The same in parameter entities, which expand where they are defined.
    std::string parameters = "<!ENTITY % p0 'hahahahahahahahahaha'>";
    for (int i = 1; i < 10; ++i) {
        parameters +=
            "<!ENTITY % p" + std::to_string(i) + " '" + repeat("%p" + std::to_string(i - 1) + ";", 10) + "'>";
    }
    for (const std::string& document :
         {"<!DOCTYPE a [" + bomb + "]><a>&e9;</a>", "<!DOCTYPE a [" + bomb + "]><a b='&e9;'/>",
          "<!DOCTYPE a [" + bomb + "]><a xmlns='&e9;'/>", "<!DOCTYPE a [" + parameters + "]><a/>",
          "<!DOCTYPE a [<!ENTITY % p '&#37;q;&#37;q;'><!ENTITY % q '" + repeat("&#37;r;", 1000) + "'><!ENTITY % r '" +
              std::string(1000, ' ') + "'>%p;]><a/>",
          "<!DOCTYPE a [<!ENTITY e '" + std::string(100000, 'x') + "'>]><a>" + repeat("&e;", 30) + "</a>"}) {
        EXPECT_EQ(reports_of(document), excess) << document.substr(0, 200);
    }
    // What a document spells out itself pays for the references that it takes to say so.
    const std::string honest = "<!DOCTYPE a [<!ENTITY e 'x'>]><a>" + repeat("&lt;&e; ", 300000) + "</a>";
    EXPECT_EQ(reports_of(honest), "");
    const std::string escaped = "<a>" + repeat("&amp;&#65;", 300000) + "</a>";
    EXPECT_EQ(reports_of(escaped), "");
}

TEST(Expansion, CostsNothingWhereTheDocumentGainsNothing) {
    constexpr std::size_t count = 500000;
    const std::string subset =
        "<!DOCTYPE a [<!ENTITY o ''><!ENTITY p 'xyz'><!ENTITY long ' 23456 '><!ENTITY % q ' '>";
    for (const char* const piece : {"&o;", "&p;", "&o ", "&lt", "&#9", "&long;"}) {
        const std::string run = repeat(piece, count);
        EXPECT_EQ(reports_of(subset + "]><a>" + run + "</a>"), "") << piece;
        EXPECT_EQ(reports_of(subset + "]><a b='" + run + "'/>"), "") << piece;
    }
    EXPECT_EQ(reports_of(subset + repeat("%q;", count) + "]><a/>"), "");
    EXPECT_EQ(reports_of(subset + "<!ENTITY r '" + repeat("&#9", count) + "'>]><a/>"), "");

    // A text that is longer counts, however little; so does any reference in an entity's text, also one whose `&` or
    // name is the last of it.
    const std::string excess = "0/9@1:Entity expansion too large;";
    EXPECT_EQ(reports_of("<!DOCTYPE a [<!ENTITY o 'wxyz'>]><a>" + repeat("&o;", count) + "</a>"), excess);
    for (const char* const end : {";", ""}) {
        std::string chain = "<!ENTITY e100 ''>";
        for (int i = 101; i < 300; ++i) {
            chain += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i - 1) + end + "'>";
        }
        const std::string run = repeat("&e299; ", 30000);
        EXPECT_EQ(reports_of("<!DOCTYPE a [" + chain + "]><a>" + run + "</a>"), excess) << end;
        EXPECT_EQ(reports_of("<!DOCTYPE a [" + chain + "]><a b='" + run + "'/>"), excess) << end;
    }
    const std::string split =
        "<!DOCTYPE a [<!ENTITY p '&#38;'><!ENTITY o '&p;'>]><a>" + repeat("&o;amp;", 30) + "</a>";
    EXPECT_EQ(trace_of(split), "<a>'" + std::string(30, '&') + "'</a>$");
}

}  // namespace
