// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Events and tokens, the two value readers, the policy for errors, and what surrounds them.

#include "lmx/reader/xml_reader.h"

#include <gtest/gtest.h>

#include "tests/lmx/reader/support.h"

namespace {

using namespace lmx;
using namespace lmx_test;

constexpr char k_uri[] = "http://example.com/v1";
constexpr s_ns_map k_ns_map[] = {{1000, "V", k_uri}, {5, "xsi", k_xsi_uri}, {0, nullptr, nullptr}};
constexpr s_event_map k_elements[] = {
    {1000, "Color", 5, 14}, {1000, "Colour", 6, 15}, {1, "Plain", 5, 16}, {0, nullptr, 0, 0}};
constexpr s_event_map k_attributes[] = {{1, "Name", 4, 20}, {1, "type", 4, 21}, {0, nullptr, 0, 0}};
constexpr std::string_view k_element_names[] = {"Color", "Colour", "a1-1z", "a2-2z", "a3-3z"};
constexpr std::string_view k_attribute_names[] = {"Name", "type"};
constexpr s_name_lists k_names = {{1, 20, k_attribute_names}, {1000, 14, k_element_names}};
constexpr s_event_map k_nothing[] = {{0, nullptr, 0, 0}};

struct s_reader {
    explicit s_reader(const std::string& text) : document(text), reader(document.data(), document.size()) {
        reader.set_ns_map(k_ns_map);
    }
    int element(const s_event_map* map) {
        error = ELMX_OK;
        reader.get_element_event(map, &error, &reader.m_name);
        return reader.get_current_event();
    }
    int attribute(const s_event_map* map) {
        return reader.get_attribute_event(map, &error, &reader.m_attr_name) ? reader.get_current_event() : -1;
    }
    std::string document;
    c_xml_reader_memory reader;
    elmx_error error = ELMX_OK;
};

TEST(Tokens, GoByNamespaceAndName) {
    const std::string uri = std::string("'") + k_uri + "'";
    const struct {
        std::string document;
        int token;
        int ns_id;
    } cases[] = {
        {"<x:Color xmlns:x=" + uri + "/>", 14, 1000},
        {"<Colour xmlns=" + uri + "/>", 15, 1000},
        {"<x:Colou xmlns:x=" + uri + "/>", ELXP_UNKNOWN, 1000},
        {"<Color/>", ELXP_UNKNOWN, 1},
        {"<Plain/>", 16, 1},
        {"<Plain xmlns='other'/>", ELXP_UNKNOWN, 1001},
        {"<x:Color/>", ELXP_UNKNOWN, 0},
        {"<x:type xmlns:x='http://www.w3.org/2001/XMLSchema-instance'/>", ELXP_XSI_TYPE, 5},
    };
    for (const auto& row : cases) {
        s_reader run(row.document);
        EXPECT_EQ(run.element(k_elements), row.token) << row.document;
        const int token = run.reader.find_token(k_names, ELXP_ELEMENT);
        EXPECT_EQ(token, row.token == 16 ? ELXP_UNKNOWN : row.token) << row.document;
        EXPECT_EQ(run.reader.get_element_ns_id(), row.ns_id) << row.document;
        EXPECT_EQ(run.error, ELMX_OK);
    }
    s_reader run("<x:Color xmlns:x=" + uri + " xmlns=" + uri +
                 " Name='1' x:Name='2' Names='3' u:Name='4' "
                 "xmlns:i='http://www.w3.org/2001/XMLSchema-instance' i:type='5' i:nil='6' i:schemaLocation='7' "
                 "i:noNamespaceSchemaLocation='8' i:other='9' type='10' xml:lang='11'/>");
    EXPECT_EQ(run.element(nullptr), ELXP_NAME);
    EXPECT_TRUE(run.reader.is_current_event_tokenisable());
    EXPECT_EQ(run.reader.get_full_name(), "x:Color");
    EXPECT_EQ(run.reader.get_local_name(), "Color");
    EXPECT_TRUE(run.reader.get_has_ns_prefix());
    run.reader.tokenise(k_nothing, ELXP_ELEMENT);
    EXPECT_EQ(run.reader.get_current_event(), ELXP_UNKNOWN);
    for (const int token : {20, 1, 1, 1, 8, 9, 10, 11, 1, 21, 1}) {
        EXPECT_EQ(run.attribute(k_attributes), token) << run.reader.m_attr_name;
        EXPECT_EQ(run.reader.find_token(k_names, ELXP_ATTRIBUTE), token) << run.reader.m_attr_name;
        EXPECT_EQ(run.reader.is_xsi_attribute(run.reader.m_attr_name), run.reader.m_attr_name[0] == 'i');
        run.reader.skip_attribute_value();
    }
    EXPECT_EQ(run.attribute(k_attributes), -1);
    EXPECT_EQ(run.reader.get_current_event(), ELXP_END_TAG);
    EXPECT_FALSE(run.reader.is_current_event_tokenisable());
    // Names that are searched for in one place, and what would be.
    for (std::size_t i = 0; i < std::size(k_element_names); ++i) {
        EXPECT_EQ(k_names.elements.find(k_element_names[i]), static_cast<int>(i) + 14);
    }
    for (const char* const other : {"", "a4-4z", "a1-1", "a1-1zz", "Name"})
        EXPECT_EQ(k_names.elements.find(other), 0);
}

TEST(Events, EndTagsAndInput) {
    s_reader run("<a><b/>x</a>");
    EXPECT_EQ(run.element(nullptr), ELXP_NAME);
    EXPECT_EQ(run.attribute(nullptr), -1);
    EXPECT_EQ(run.reader.get_current_event(), ELXP_START_TAG_END);
    EXPECT_EQ(run.element(nullptr), ELXP_NAME);
    EXPECT_EQ(run.attribute(nullptr), -1);
    EXPECT_EQ(run.reader.get_current_event(), ELXP_END_TAG);
    EXPECT_EQ(run.element(nullptr), ELXP_TEXT);
    EXPECT_EQ(run.reader.get_full_name(), "b");  // text and end tags leave the name alone
    EXPECT_EQ(run.element(nullptr), ELXP_END_TAG);
    EXPECT_EQ(run.element(nullptr), ELXP_END_OF_INPUT);
    EXPECT_EQ(run.error, ELMX_UNEXPECTED_END_OF_MESSAGE);
    EXPECT_TRUE(run.reader.at_end_of_input());

    s_reader silent("<a></>");
    silent.element(nullptr);
    silent.attribute(nullptr);
    EXPECT_EQ(silent.element(nullptr), ELXP_ERROR);
    EXPECT_EQ(silent.error, ELMX_OK);  // the scanner made no report

    s_reader fatal("<a b></a>");
    EXPECT_EQ(fatal.element(nullptr), ELXP_ERROR);
    EXPECT_EQ(fatal.error, ELMX_NOT_WELL_FORMED);
    EXPECT_EQ(fatal.element(nullptr), ELXP_END_OF_INPUT);
    EXPECT_EQ(fatal.error, ELMX_UNEXPECTED_END_OF_MESSAGE);
    EXPECT_EQ(fatal.attribute(nullptr), ELXP_ERROR);
    EXPECT_EQ(fatal.error, ELMX_NOT_WELL_FORMED);  // the first fatal code stands
    EXPECT_TRUE(fatal.reader.at_end_of_input());
}

TEST(Events, SkipWhatNobodyKnows) {
    constexpr s_known_elements known[] = {{1, "Known", 5}, {0, nullptr, 0}};
    s_reader run("<r><x><Plain/></x><Known/><y a='1'/>text<Plain/><z></w>");
    const c_known_elements_selector selector(run.reader, known);
    run.element(nullptr);
    run.attribute(nullptr);
    const auto next = [&] {
        run.error = ELMX_OK;
        run.reader.get_known_element_event(k_elements, &run.error, &run.reader.m_name);
        return run.reader.get_current_event();
    };
    EXPECT_EQ(next(), ELXP_UNKNOWN);
    EXPECT_EQ(run.reader.m_name, "Known");
    run.attribute(nullptr);
    EXPECT_EQ(next(), ELXP_TEXT);
    EXPECT_EQ(next(), 16);
    run.attribute(nullptr);
    next();
    EXPECT_EQ(run.error, ELMX_BADLY_FORMED);
    {
        const c_known_elements_selector inner(run.reader, nullptr);
        EXPECT_EQ(run.reader.get_known_elements(), nullptr);
    }
    EXPECT_EQ(run.reader.get_known_elements(), known);
}

TEST(Values, AreReadThroughTheEndTag) {
    const struct {
        const char* document;
        bool result;
        bool is_empty;
        const char* value;
        elmx_error error;
    } cases[] = {
        {"<a/>", true, true, "", ELMX_OK},
        {"<a></a>", true, false, "", ELMX_OK},
        {"<a b='c'> 1 <!-- --> 2 </a >", true, false, "1 2", ELMX_OK},
        {"<a>1<b/></a>", false, false, "1", ELMX_BAD_END_OF_ELEMENT},
        {"<a>1</b>", false, false, "1", ELMX_BAD_END_OF_ELEMENT},
        {"<a>1", false, false, "1", ELMX_UNABLE_TO_READ_ELEMENT_VALUE},
        {"<a>1&u;</a>", false, false, "1&u;", ELMX_UNABLE_TO_READ_ELEMENT_VALUE},
        {"<a /x>", false, true, "", ELMX_BAD_START_TAG_END},
    };
    for (const auto& row : cases) {
        s_reader run(row.document);
        run.element(nullptr);
        std::string value = "old";
        bool is_empty = false;
        EXPECT_EQ(run.reader.get_simple_type_value("a", ELMX_WS_COLLAPSE, &value, &run.error, &is_empty), row.result);
        EXPECT_EQ(is_empty, row.is_empty) << row.document;
        EXPECT_EQ(value, row.value) << row.document;
        EXPECT_EQ(run.error, row.error) << row.document;
        EXPECT_EQ(run.reader.get_current_event(), ELXP_NAME);
    }
    const struct {
        const char* document;
        const char* value;
        elmx_error error;
        int event;
    } mixed[] = {
        {"<a/>", "", ELMX_OK, ELXP_NAME},
        {"<a> x<b c='1'/> </a>", " x<b c='1'/> ", ELMX_OK, ELXP_END_TAG},
        {"<a>x</b>", "x", ELMX_BAD_END_OF_ELEMENT, ELXP_END_TAG},
        {"<a>x<b></c></a>", "x<b>", ELMX_UNABLE_TO_READ_ELEMENT_VALUE, ELXP_NAME},
        {"<a /x>", "", ELMX_BAD_START_TAG_END, ELXP_NAME},
    };
    for (const auto& row : mixed) {
        s_reader run(row.document);
        run.element(nullptr);
        std::string value = "old";
        bool is_empty = false;
        const bool is_read = run.reader.get_element_ur_value("a", &value, &run.error, &is_empty);
        EXPECT_EQ(is_read, row.error == ELMX_OK);
        EXPECT_EQ(value, row.value) << row.document;
        EXPECT_EQ(run.error, row.error) << row.document;
        EXPECT_EQ(run.reader.get_current_event(), row.event) << row.document;
    }
}

TEST(Scopes, FollowTheElements) {
    s_reader run("<a xmlns:p='u'><b xmlns:q='v'/><q:c/><p:d/></a>");
    const c_xml_reader_local document(run.reader);
    run.element(nullptr);
    run.attribute(nullptr);
    std::string ns;
    {
        const c_xml_reader_local children(run.reader);
        run.element(nullptr);
        EXPECT_EQ(run.reader.get_namespace("q:x", &ns), "v");
        run.attribute(nullptr);
        run.element(nullptr);
        EXPECT_EQ(run.reader.get_ns_id(), 0);  // the sibling's declaration went with it
        EXPECT_EQ(run.reader.get_namespace("q:x", &ns), k_namespace_not_found);
        run.attribute(nullptr);
        run.element(nullptr);
        EXPECT_EQ(run.reader.get_ns_id(), 1001);
    }
    EXPECT_EQ(run.reader.get_reader_local(), &document);
    EXPECT_EQ(run.reader.get_namespace("p:x", &ns), "u");
    EXPECT_EQ(run.reader.get_namespace("x", &ns), k_namespace_not_found);
    EXPECT_FALSE(run.reader.is_valid_qname("x"));
    for (const char* const name : {"p:x", "p:_1.-a", "xml:a"}) EXPECT_TRUE(run.reader.is_valid_qname(name)) << name;
    for (const char* const name : {"p:", "p:1", "z:a", "p:a b", "p:\xC3\xA9", "p:a:b"}) {
        EXPECT_FALSE(run.reader.is_valid_qname(name)) << name;
    }
    s_reader undeclared("<a xmlns=''/>");
    undeclared.element(nullptr);
    EXPECT_EQ(undeclared.reader.get_namespace("a", &ns), "");

    s_reader mapped("<p:Color/>");
    mapped.reader.add_namespace_mapping("p", k_uri);
    mapped.reader.add_default_namespace_mapping("w");
    mapped.reader.set_ns_map(k_ns_map);
    const c_xml_reader_local below(mapped.reader);
    EXPECT_EQ(mapped.element(k_elements), 14);
    EXPECT_EQ(mapped.reader.get_namespace("x", &ns), "w");
}

TEST(Errors, GoThroughTheHandler) {
    class c_handler : public c_xml_reader_memory {
    public:
        using c_xml_reader_memory::c_xml_reader_memory;
        elmx_error user_handle_error(elmx_error code, const std::string& item, const char* file, int line) override {
            m_log += item + '@' + file + ':' + std::to_string(line);
            return c_xml_reader_memory::user_handle_error(code, item, file, line);
        }
        elmx_error user_handle_error(elmx_error code) override {
            return code == ELMX_UNEXPECTED_ATTRIBUTE ? ELMX_OK : ELMX_USER_DEFINED_1;
        }
        std::string m_log;
    };
    const std::string document = "<a>\n";
    c_handler reader(document.data(), document.size());
    std::string message;
    EXPECT_EQ(reader.get_error_message(&message), "No Error");
    EXPECT_EQ(reader.handle_error(ELMX_UNEXPECTED_ATTRIBUTE, "item", "file", 7), ELMX_OK);
    EXPECT_EQ(reader.m_log, "item@file:7");
    EXPECT_EQ(reader.get_error(), ELMX_OK);
    EXPECT_EQ(reader.get_error_item_name(), "item");
    EXPECT_EQ(reader.get_error_message(&message), "No Error");
    EXPECT_EQ(reader.handle_error(ELMX_BAD_CHOICE, "other", "file", 8), ELMX_USER_DEFINED_1);
    elmx_error error = ELMX_OK;
    reader.get_element_event(nullptr, &error, &reader.m_name);
    reader.move_to_start_tag_end(nullptr);
    reader.get_element_event(nullptr, &error, &reader.m_name);
    EXPECT_EQ(reader.get_error_message(&message), "line:2-'other'-User defined error 1");
    elmx_error_type type = ELMX_TYPE_NONE;
    int line = 0;
    EXPECT_FALSE(reader.get_error_info(&type, &error, &line));

    s_reader plain("<a b>");
    plain.element(nullptr);
    EXPECT_TRUE(plain.reader.get_error_info(&type, &error, &line));
    EXPECT_EQ(error, ELMX_NOT_WELL_FORMED);
    EXPECT_EQ(plain.reader.get_error(), ELMX_OK);  // reports are not failures until they are handled
    EXPECT_EQ(plain.reader.handle_error(error, "a", "file", 1), ELMX_NOT_WELL_FORMED);
    EXPECT_EQ(plain.reader.get_error_message(&message), "line:1-'a'-Not well formed");
}

TEST(Probes, LookAndRewind) {
    const struct {
        std::string document;
        bool is_found;
        std::string ns;
    } namespaces[] = {
        {"<!-- --><p:a xmlns:p='u'/>", true, "u"},
        {"<a xmlns='u'/>", true, "u"},
        {"<a xmlns=''/>", true, ""},
        {"<a/>", false, " "},
        {"<p:a/>", false, " "},
        {"text", false, "old"},
    };
    for (const auto& row : namespaces) {
        s_reader run(row.document);
        std::string ns = "old";
        EXPECT_EQ(get_instance_namespace(run.reader, &ns), row.is_found) << row.document;
        EXPECT_EQ(ns, row.ns) << row.document;
        if (row.is_found) {
            EXPECT_EQ(run.element(nullptr), ELXP_NAME) << row.document;
        }
    }
    const struct {
        std::string document;
        int answer;
    } cases[] = {
        {"<a xmlns:p='u' p:must='1'/>", 2},
        {"<a xmlns:p='u'><b p:must='false'>x</b><c><d p:must='true'/></c></a>", 2},
        {"<a xmlns:p='u'><b xmlns:p='v' p:must='true'><c p:must='true'/></b><q:b xmlns:q='u' q:must='maybe'/></a>",
         1},
        {"<a xmlns:p='u' must='1'><b xmlns:q='v' q:must='1'/></a>", 0},
        {"<a xmlns='u' must='1' other='&undefined;'/>", 0},
        {"<a xmlns:p='u'><b></a>", 1},
        {"<a xmlns:p='u'>", 1},
        {"<a xmlns:p='u' p:must='&undefined;'/>", 1},
        {"text", 1},
        {"", 1},
    };
    for (const auto& row : cases) {
        s_reader run(row.document);
        const c_xml_local* const scope = run.reader.get_reader_local();
        EXPECT_EQ(has_must_understand(run.reader, "u", "must", bool_must_understand), row.answer) << row.document;
        EXPECT_EQ(run.reader.get_reader_local(), scope);
        if (row.document[0] == '<') {
            EXPECT_EQ(run.element(nullptr), ELXP_NAME) << row.document;
        }
    }
}

TEST(Lists, AreSplitAtWhiteSpace) {
    c_xml_list_tokeniser list("  a\tbc\n\r\xC3\xA9 ");
    std::string item;
    for (const char* const expected : {"a", "bc", "\xC3\xA9"}) {
        EXPECT_TRUE(list.get(&item));
        EXPECT_EQ(item, expected);
    }
    EXPECT_FALSE(list.get(&item));
    list.set("x");
    EXPECT_TRUE(list.get(&item));
    EXPECT_EQ(item, "x");
}

}  // namespace
