// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Markup to events, attributes and values, with the words and lines of every report.

#include <gtest/gtest.h>

#include <functional>

#include "tests/lmx/reader/support.h"

namespace {

using namespace lmx;
using namespace lmx_test;

TEST(Scanning, FindsTagsTextAndAttributes) {
    check_scans({
        {"<a b='1' c=\"2\"/>", "<a b=1 c=2/>$", ""},
        {"<a b = '1'\n\tc='>/\"'  / >", "<a b=1 c=>/\"/>$", ""},
        {"<a xmlns='u' xmlns:p='v' xmlnsfoo='1' xmlns.x='2' xml='3'/>", "<a xmlnsfoo=1 xmlns.x=2 xml=3/>$", ""},
        {"<p:a-1._>x</p:a-1._ >", "<p:a-1._>'x'</p:a-1._>$", ""},
        {"<\xC3\xA9 \xC3\xA9='\xC3\xA9'>\xC3\xA9</\xC3\xA9>", "<\xC3\xA9 \xC3\xA9=\xC3\xA9>'\xC3\xA9'</\xC3\xA9>$",
         ""},
        {"<a>  x <b/> y </a>", "<a>'x '<b/>'y '</a>$", ""},
        {"<a>x<!-- y -->z<?p?>w</a>", "<a>'x''z''w'</a>$", ""},
        {"<a>&lt;&gt;&amp;&apos;&quot;x</a>", "<a>'<>&'\"x'</a>$", ""},
        {"<a><![CDATA[<&]]>]]>x</a>", "<a>'<&'']]>x'</a>$", ""},
        {"<a><![CDATA[a]]]></a>", "<a>'a]'</a>$", ""},
        {"<a><![CDATA[]]]]]]><![CDATA[]]></a>", "<a>']]]]'''</a>$", ""},
        {"<a><![CDATA[x]]", "<a>'x'$", ""},
        {"<a><![CDATA[x]]]]", "<a>'x]]'$", ""},
        {"", "$", ""},
        {"<!---->  ", "$", ""},
        {"<!-- a -- b - > -->", "$", ""},
        {"<!-- x --->", "$", "2/8@1:End of comment not Well-Formed;"},
    });
}

TEST(Scanning, RefusesBrokenMarkup) {
    const char* const bad = "1/23@1:XML not Well-Formed;";
    check_scans({
        {"<a></>", "<a>!", ""},
        {"<a></a b>", "<a>!", bad},
        {"<a></a", "<a>!", bad},
        {"<a", "!", bad},
        {"<a ", "!", ""},
        {"<a b", "!", "0/34@1:Unexpected end of file;"},
        {"<a b c='1'/>", "!", "0/23@1:Schema is not Well Formed (expected '=', got 'c');"},
        {"<a b=1/>", "!", "0/23@1:Schema is not Well Formed (expected '\"' or ''', got 1);"},
        {"<a b='1/>", "!", "0/23@1:Schema is not Well Formed (expected '\"' or ''', got );"},
        {"<a b='1' */>", "<a b=1!", "1/23@1:XML not well-formed;"},
        {"<a b='1' /x>", "<a b=1!", "1/23@1:XML not well-formed;"},
        {"<1a>", "!", bad},
        {"<  a>", "!", bad},
        {"<a><![CDAT[x]]></a>", "<a>!", bad},
        {"<!-", "!", ""},
        {"<!-- x", "!", ""},
        {"<?pi", "!", ""},
        {"<a>&undefined;</a>", "<a>!", ""},
        {"<a><?\?><b/></a>", "<a>!", ""},
        {"<a><?\?><b/>?></a>", "<a></a>$", ""},
        {"<a>x & y</a>", "<a>!", ""},
    });
    // The scan goes on behind the tag that was refused.
    for (const char* const document : {"<1 '>' ><b/>", "<!X '>' ><b/>", "<!DOCX '>' ><b/>", "<!-x><b/>"}) {
        s_scanner scanner(document);
        EXPECT_EQ(scan(scanner), "!") << document;
        EXPECT_EQ(scan(scanner), "<b/>$") << document;
    }
}

TEST(Scanning, TakesDeclarationsOnlyAheadOfContent) {
    const char* const version = "1/13@1:Version not present in XML Decl;";
    const char* const late_type = "1/9@1:Document Type Declaration not at start of document;";
    check_scans({
        {"<?xml version='1.0'?><a/>", "<a/>$", ""},
        {"  <!-- c --><?pi ?><?xml version = \"1.1\" encoding='UTF-8' standalone='yes' ?><a/>", "<a/>$", ""},
        {"<?xml version='1.0' standalone='maybe'?><a/>", "<a/>$", ""},
        {"<?x?><?xm?><a><?x?>1</a>", "<a>'1'</a>$", ""},  // short of the declaration's name
        {"<?xml version='1.0' standalone='no'?>", "!", "1/13@1:XML Document is not standalone;"},
        {"<?xml version='1.0' standalone='yes' encoding='UTF-8'?>", "!", ""},
        {"<?xml version='1.0' standalone?><a/>", "<a/>$", ""},
        {"<?xml version='1.0' standalone x?>", "!", ""},
        {"<?xml version='1.0' encoding?>", "!", ""},
        {"<?xml version='2.0'?>", "!", "1/14@1:XML version 2.0 not understood;"},
        {"<?xml ?>", "!", version},
        {"<?xml version?>", "!", version},
        {"<?xml-stylesheet version='1.0'?>", "!", version},
        {"<?xml version='1.0' encoding='x'?>", "!", "0/6@1:Unknown character encoding specified;"},
        {"<?xml version='1.0' ?", "!", ""},
        {"<a/><?xml version='1.0'?>", "<a/>!", "0/13@1:XML declaration not at start of document;"},
        {"<!DOCTYPE a><a/>", "<a/>$", ""},
        {"<!DOCTYPE a SYSTEM 'a.dtd'><a/>", "<a/>$", ""},
        {"<!DOCTYPE a><!DOCTYPE a>", "!", "1/9@1:Document Type Declaration already read;"},
        {"<a/><!DOCTYPE a>", "<a/>!", late_type},
    });
}

TEST(Scanning, ExpandsCharacterReferences) {
    check_scans({
        {"<a>x&#65;&#x4a;&#x41 ;</a>", "<a>'xAJA ;'</a>$", ""},
        {"<a b='&#65;&#65 &#10;&#233;'/>", "<a b=AA \n\xC3\xA9/>$", ""},
        {"<a>x&#1048576;</a>", "<a>'x\xF4\x80\x80\x80'</a>$", ""},
        {"<a>x&#133;&#8232;&#x2029;</a>", "<a>'x\n\n\xE2\x80\xA9'</a>$", ""},
        {"<a>x&#X41;</a>", "<a>!", ""},
        {"<a>x&#;</a>", "<a>!", ""},
        {"<a>x&#x;</a>", "<a>!", ""},
        {"<a>x&#1048577;</a>", "<a>!", ""},
        {"<a>x&#1114111;</a>", "<a>!", ""},
        {"<a>x&#4294967361;</a>", "<a>!", ""},
        {"<a>x&#x10000000000000041;</a>", "<a>!", ""},
        {"<a>x&#00000000000000000000000000065;</a>", "<a>'xA'</a>$", ""},
        {"<a b='1&u;2' c='3'/>", "<a b=1&u;? c=3/>$", ""},
        {"<a b='1&u' c='3&' d='&;'/>", "<a b=1&u? c=3&? d=&;?/>$", ""},
    });
    s_scanner scanner("<a b='x&#0;y'>x&#0;y</a>");
    const std::string with_null("x\0y", 3);
    EXPECT_EQ(scan(scanner), "<a b=" + with_null + ">'" + with_null + "'</a>$");
}

TEST(Scanning, CountsTheLinesOfTags) {
    // A line feed that ends a name is given back and counts twice; others count once.
    for (const auto& [document, line] :
         std::vector<std::pair<std::string, int>>{{"<a\n\n/>", 4},
                                                  {"<a b\n=\n'\n'\n/>", 6},
                                                  {"<a\r\nb='1'/>", 3},
                                                  {"<a\rb='1'/>", 2},
                                                  {"<a></a\n\n>", 3},
                                                  {"\n<!-- \n\r\n -->\n<?p \n?><a>\n<![CDATA[\n]]>\n</a>", 9}}) {
        s_scanner scanner(document);
        scan(scanner);
        EXPECT_EQ(scanner.xml.get_line_num(), line) << testing::PrintToString(document);
    }
}

std::string value_of(const std::string& document, elmx_whitespace mode, bool expand = true) {
    s_scanner scanner(document);
    scanner.enter();
    std::string value;
    const bool is_read = scanner.xml.get_element_value(&value, mode, expand);
    if (is_read) value += scanner.xml.is_element_end_tag("a") ? "|" : "+";
    return value + (is_read ? "" : "!") + scanner.reports.m_log;
}

TEST(Values, FollowTheWhiteSpaceMode) {
    const std::string text = "<a>  a \n\t&lt;b&#32;&#32;c&#x9;&#233; &#133;d  </a>";
    EXPECT_EQ(value_of(text, ELMX_WS_PRESERVE), "  a \n\t<b  c\t\xC3\xA9 \nd  |");
    EXPECT_EQ(value_of(text, ELMX_WS_REPLACE), "  a   <b  c \xC3\xA9  d  |");
    // A blank ahead of an escaped character is part of the value: it must come back as it was written.
    EXPECT_EQ(value_of(text, ELMX_WS_COLLAPSE), "a <b c \xC3\xA9 d|");
    EXPECT_EQ(value_of("<a>  a \n b  </a>", ELMX_WS_COLLAPSE), "a b|");
    EXPECT_EQ(value_of("<a>a<![CDATA[ \t ]]> b</a>", ELMX_WS_COLLAPSE), "a \t  b|");
    for (const auto& [document, value] : std::vector<std::pair<std::string, std::string>>{
             {"<a>x <![CDATA[c]]> y</a>", "x c y|"},
             {"<a>x &lt;<![CDATA[c]]>y</a>", "x <cy|"},
             {"<a> <![CDATA[c]]> </a>", "c|"},
             {"<a>x <![CDATA[]]> </a>", "x|"},
             {"<a>x <![CDATA[]]>y</a>", "x y|"},
             {"<a>x <![CDATA[]]>&#233;</a>", "x \xC3\xA9|"},
             {"<a>x <![CDATA[ ]]></a>", "x  |"},
             {"<a>x <!-- --><![CDATA[]]]]><![CDATA[>]]></a>", "x ]]>|"}}) {
        EXPECT_EQ(value_of(document, ELMX_WS_COLLAPSE), value) << document;
    }

    // Without normalisation, white space from a reference is a character like any other, but for the blank.
    const std::string document = "<a>&#32;x&#9;&#32;&#10;&#133;y</a>";
    for (const auto& [mode, value] : std::vector<std::pair<elmx_whitespace, std::string>>{
             {ELMX_WS_REPLACE, " x\t \n\ny"}, {ELMX_WS_COLLAPSE, "x\t \n\ny"}}) {
        c_read_string source(document);
        c_error reports;
        c_xml xml(source, reports, false);
        std::string found;
        xml.get_element_name(nullptr, &found);
        xml.move_to_start_tag_end(nullptr);
        EXPECT_TRUE(xml.get_element_value(&found, mode, true));
        EXPECT_EQ(found, value);
    }
}

TEST(Values, EndAtTheNextTag) {
    EXPECT_EQ(value_of("<a>x<!-- y --><?p?>z</a>", ELMX_WS_PRESERVE), "xz|");
    EXPECT_EQ(value_of("<a>x<b/></a>", ELMX_WS_PRESERVE), "x+");
    EXPECT_EQ(value_of("<a>x</b>", ELMX_WS_PRESERVE), "x+");
    EXPECT_EQ(value_of("<a>x</a x>", ELMX_WS_PRESERVE), "x+");
    EXPECT_EQ(value_of("<a>&#65;&x;</a>", ELMX_WS_PRESERVE, false), "&#65;&x;|");
    EXPECT_EQ(value_of("<a>1&x;</a>", ELMX_WS_PRESERVE), "1&x;!");
    EXPECT_EQ(value_of("<a>x", ELMX_WS_PRESERVE), "x!1/34@1:Premature end of file encountered;");
    EXPECT_EQ(value_of("<a>x<!d></a>", ELMX_WS_PRESERVE), "x!1/23@1:XML not well-formed;");
    EXPECT_EQ(value_of("<a>x<!-d></a>", ELMX_WS_PRESERVE), "x!1/23@1:XML not well-formed;");
    EXPECT_EQ(value_of("<a>x<![X[]]></a>", ELMX_WS_PRESERVE), "x!1/23@1:XML not Well-Formed;");
}

TEST(Attributes, WaitForTheirValueOnceTheyAreNamed) {
    s_scanner scanner("<a b='1&u;2&#65;' c='3' d='4'>");
    EXPECT_EQ(scanner.element(), ELXP_NAME);
    EXPECT_FALSE(scanner.attribute_value());
    scanner.xml.skip_attribute_value();
    EXPECT_TRUE(scanner.attribute() == ELXP_NAME && scanner.text == "b");
    EXPECT_FALSE(scanner.attribute_value());
    EXPECT_EQ(scanner.text, "1&u;");
    scanner.xml.skip_attribute_value();
    EXPECT_TRUE(scanner.attribute() == ELXP_NAME && scanner.text == "c");
    EXPECT_TRUE(scanner.attribute() == ELXP_NAME && scanner.text == "d");
    EXPECT_TRUE(scanner.attribute_value());
    EXPECT_FALSE(scanner.attribute_value());
    scanner.xml.skip_attribute_value();
    EXPECT_EQ(scanner.attribute(), ELXP_START_TAG_END);
    EXPECT_EQ(scanner.attribute(), ELXP_ERROR);
}

TEST(Attributes, MayBeOfAnyLength) {
    const std::string tag = "<a xmlns:x='" + std::string(20000, 'u') + "' " + std::string(127, 'b') + "='1'" +
                            std::string(300, '\n') + std::string(128, 'c') + " = \"" + std::string(16384, 'v') +
                            "\" xmlns:y='w' d='" + std::string(3000000, '\n') + "'\ne=''";
    s_scanner scanner(tag + "/>");
    std::string& text = scanner.text;
    EXPECT_EQ(scanner.element(), ELXP_NAME);
    for (const auto& [name, value, line] :
         std::vector<std::tuple<std::string, std::string, int>>{{std::string(127, 'b'), "1", 1},
                                                                {std::string(128, 'c'), std::string(16384, 'v'), 301},
                                                                {"d", std::string(3000000, '\n'), 301},
                                                                {"e", "", 3000302}}) {
        EXPECT_TRUE(scanner.attribute() == ELXP_NAME && text == name);
        EXPECT_EQ(scanner.xml.diagnose().attribute_line, line);
        EXPECT_TRUE(scanner.xml.diagnose().attribute_value == value);
        EXPECT_TRUE(scanner.xml.find_raw_attribute_value(name) == value);
        // A search that fails leaves the value to be read.
        EXPECT_FALSE(name == "d" && scanner.xml.get_named_attribute(&scanner.scope, 1, "none", &text));
        EXPECT_TRUE(scanner.attribute_value() && text == value);
        if (name != "d") continue;
        for (int skipped = 0; skipped < 3; ++skipped) scanner.attribute();
    }
    EXPECT_TRUE(scanner.any("a"));
    EXPECT_TRUE(text == "<a xmlns:x='" + std::string(20000, 'u') + "' xmlns:y='w' " + std::string(127, 'b') +
                            "='1' " + std::string(128, 'c') + "=\"" + std::string(16384, 'v') + "\" d='" +
                            std::string(3000000, '\n') + "' e=''/>");
}

TEST(Attributes, AreFoundByNamespace) {
    s_scanner scanner(
        "<a xmlns:x='http://www.w3.org/2001/XMLSchema-instance' xmlns:p='u' p:type='n' type='m' x:type='p:T' "
        "p:n='1'/>");
    std::string& text = scanner.text;
    scanner.element();
    int ns_id = 0;
    EXPECT_TRUE(scanner.xml.get_xsi_type(&scanner.scope, &ns_id, &text));
    EXPECT_EQ(ns_id, 1000);
    EXPECT_EQ(text, "T");
    EXPECT_TRUE(scanner.xml.get_named_attribute(&scanner.scope, 1, "type", &text));
    EXPECT_EQ(text, "m");
    EXPECT_FALSE(scanner.xml.get_named_attribute(&scanner.scope, 5, "nil", &text));
    // Only what lies behind the current position is seen, and the search starts the walk anew.
    for (const char* const name : {"p:type", "type"}) {
        EXPECT_TRUE(scanner.attribute() == ELXP_NAME && text == name) << name;
        scanner.xml.skip_attribute_value();
    }
    EXPECT_FALSE(scanner.xml.get_named_attribute(&scanner.scope, 1, "type", &text));
    EXPECT_TRUE(scanner.xml.get_named_attribute(&scanner.scope, 1, "type", &text));
    EXPECT_TRUE(scanner.xml.is_xsi_attribute(&scanner.scope, "x:any"));
    EXPECT_FALSE(scanner.xml.is_xsi_attribute(&scanner.scope, "p:type"));
    EXPECT_FALSE(scanner.xml.is_xsi_attribute(&scanner.scope, "unbound:type"));
}

TEST(Namespaces, AreNumberedInOrderOfAppearance) {
    s_scanner scanner("<a xmlns='&#117;' xmlns:p='v' xmlns:q='u' xmlns:p='w' xmlns:e=''><b xmlns=''/>");
    scanner.element();
    for (const auto& [prefix, id] : std::vector<std::pair<std::string, int>>{
             {"", 1000}, {"q", 1000}, {"p", 1002}, {"e", 1003}, {"xml", 2}, {"z", 0}}) {
        EXPECT_EQ(scanner.scope.find_namespace_id(prefix), id) << prefix;
    }
    EXPECT_STREQ(scanner.xml.find_namespace_from_id(1002), "w");
    EXPECT_EQ(scanner.xml.find_enumerated_namespace("http://www.w3.org/XML/1998/namespace"), 2);
    EXPECT_EQ(scanner.xml.find_namespace_from_id(1004), nullptr);
    scanner.xml.move_to_start_tag_end(nullptr);
    c_xml_local inner(&scanner.scope);
    scanner.xml.get_element_name(&inner, &scanner.text);
    EXPECT_EQ(inner.find_namespace_id(""), 1);
    EXPECT_EQ(inner.find_namespace_id("p"), 1002);
    EXPECT_STREQ(inner.find_namespace_prefix(1002), "p");
    inner.add_namespace("r", 1002);
    EXPECT_STREQ(inner.find_namespace_prefix(1002), "r");
    EXPECT_STREQ(inner.find_first_namespace_prefix(1002), "p");
    EXPECT_EQ(inner.find_first_namespace_prefix(77), nullptr);
    inner.clear();
    EXPECT_EQ(inner.find_namespace_id("r"), 0);

    scanner.xml.add_namespace("x", 2000);
    EXPECT_EQ(scanner.xml.add_namespace("y"), 2001);
    scanner.xml.add_namespace("y", 3000);
    EXPECT_EQ(scanner.xml.add_namespace("y"), 2001);
    EXPECT_EQ(scanner.xml.add_namespace("z"), 3001);
    scanner.xml.rewind();
    EXPECT_EQ(scanner.xml.find_enumerated_namespace("y"), 0);
    EXPECT_EQ(scanner.xml.add_namespace("y"), 1000);
}

TEST(Namespaces, AreFoundHoweverManyThereAre) {
    constexpr int count = 3000;
    const auto name = [](int number) { return "p" + std::to_string(number); };
    for (const auto& order : std::vector<std::function<int(int)>>{
             [](int i) { return i; }, [](int i) { return count - 1 - i; }, [](int i) { return i * 1777 % count; },
             [](int i) { return i % 2 == 0 ? i / 2 : count - 1 - i / 2; }}) {
        c_xml_local scope;
        c_enumerated_namespaces uris;
        uris.add_namespace("given", 1500);
        for (int i = 0; i < count; ++i) {
            scope.add_namespace(name(order(i)), i + 10);
            EXPECT_EQ(uris.add_namespace(name(order(i))), 1501 + i);
            EXPECT_EQ(scope.find_namespace_id(name(order(i))), i + 10);
            EXPECT_EQ(scope.find_namespace_id(name(count)), 0);
        }
        uris.add_namespace("late", 1600);
        scope.add_namespace(name(order(7)), 5);
        for (int i = 0; i < count; ++i) {
            EXPECT_EQ(scope.find_namespace_id(name(order(i))), i == 7 ? 5 : i + 10);
            EXPECT_EQ(uris.find_namespace(name(order(i))), 1501 + i);
            EXPECT_EQ(uris.find_namespace_from_id(1501 + i), name(order(i)));
        }
        EXPECT_STREQ(uris.find_namespace_from_id(1500), "given");
        EXPECT_EQ(uris.find_namespace("late"), 1600);
        EXPECT_EQ(uris.find_namespace_from_id(1501 + count), nullptr);
        EXPECT_EQ(uris.find_namespace("p"), 0);
    }
}

TEST(Skipping, MatchesTags) {
    const struct {
        const char* document;
        bool result;
        const char* reports;
    } cases[] = {
        {"<a b='1'/>", true, ""},
        {"<a><b>x<a></a></b><!-- --><c/>&lt;</a>", true, ""},
        {"<a></b>", false, "1/23@1:Element start tag (a) and end tag (b) do not match;"},
        {"<a><b></a></b>", false, "1/23@1:Element start tag (b) and end tag (a) do not match;"},
        {"<a><b>", false, ""},
        {"<a>&u;</a>", false, ""},
        {"<a /x>", false, "1/12@1:Illegal character(s) after / at end of tag - x;"},
    };
    for (const auto& row : cases) {
        s_scanner scanner(row.document);
        scanner.element();
        EXPECT_EQ(scanner.xml.skip_rest_of_element("a"), row.result) << row.document;
        EXPECT_EQ(scanner.reports.m_log, row.reports) << row.document;
    }
    for (const auto& [document, result] : std::vector<std::pair<std::string, bool>>{
             {"<a/>", true}, {"<a></a>", true}, {"<a> </a>", true}, {"<a>x</a>", false}, {"<a></b>", false}}) {
        s_scanner scanner(document);
        scanner.element();
        EXPECT_EQ(scanner.xml.skip_rest_of_empty_element("a"), result) << document;
    }
}

TEST(Wildcards, AreCopiedAsText) {
    const struct {
        std::string document;
        std::string xml;  // "!" for a failure
    } cases[] = {
        {"<a/>", "<a/>"},
        {"<a c=\"'\" xmlns:p='u' b='&lt;&u;\"' />", "<a xmlns:p='u' c=\"'\" b='&lt;&u;\"'/>"},
        {"<a><a x='>' y=\"/>\"  >1</a><b/> &amp;&u;<a/></a>", "<a><a x='>' y=\"/>\"  >1</a><b/> &amp;&u;<a/></a>"},
        {"<a>x<!-- <b> --><?p <b>?>y</a>", "<a>xy</a>"},
        {"<a><b/ ><b c='/'>/</b><b c='1' /\n></a / >", "!"},
        {"<a><b/ ><b c='/'>/</b><b c='1' /\n><b / c=/ ></b / c=/ ></a>", "!"},
        {"<a><b/ ><b c='/'>/</b><b c='1' /\r\n><b c='>'/ ></a>", "<a><b/><b c='/'>/</b><b c='1' /><b c='>'/></a>"},
        {"<a><b /x></b></a>", "<a><b /x></b></a>"},
        {"<a / >", "<a/>"},
        {"<a><![CDATA[</a>]]]></a >", "<a><![CDATA[</a>]]]></a>"},
        {"<a>\r\n \xC3\xA9</a>", "<a>\n \xC3\xA9</a>"},
        {"<a><b></a></b>", "!"},
        {"<a></b>", "!"},
        {"<a><b>", "!"},
        {"<a>< b/></a>", "!"},
        {"<a><!X></a>", "!"},
        {"<a></ a>", "!"},
        {"<a", "!"},
    };
    for (const auto& row : cases) {
        s_scanner scanner(row.document);
        const bool is_copied = scanner.element() == ELXP_NAME && scanner.any("a");
        EXPECT_EQ(is_copied ? scanner.text : "!", row.xml) << row.document;
    }
    s_scanner scanner("<a>  1 <b c='2  3'> 4 </b></d>");
    scanner.enter();
    std::string name;
    std::string value;
    EXPECT_TRUE(scanner.xml.get_nested_element_value(&value, &name, ELMX_WS_PRESERVE, true));
    EXPECT_EQ(value, "  1 <b c='2  3'> 4 </b>");
    EXPECT_EQ(name, "d");
}

}  // namespace
