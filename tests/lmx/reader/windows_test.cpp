// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Scanning in windows is a short cut and nothing else: the same calls on a source that gives one byte at a time
/// must give the same results, texts, lines and reports, whatever the document and wherever a window ends.

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <vector>

#include "lmx/reader/xml_reader.h"
#include "tests/lmx/reader/support.h"

namespace {

using namespace lmx;
using namespace lmx_test;
using namespace std::string_literals;

/// The trace of a run: what each call gave, and where the scanner stood.
class c_trace {
public:
    explicit c_trace(c_xml& xml) : m_xml(xml) {}
    template <class... Parts>
    void add(const Parts&... parts) {
        (append(parts), ...);
        append(m_xml.get_line_num());
        append(m_xml.at_end_of_input());
        m_text += '\n';
    }
    std::string m_text;

private:
    void append(const std::string& part) { m_text += part + '|'; }
    void append(const char* part) { append(std::string(part)); }
    void append(long long part) { append(std::to_string(part)); }

    c_xml& m_xml;
};

constexpr elmx_whitespace k_modes[] = {ELMX_WS_PRESERVE, ELMX_WS_REPLACE, ELMX_WS_COLLAPSE};

/// The decisions of a script, the same in every run.
class c_script {
public:
    explicit c_script(unsigned number) : m_state(number * 2654435761U + 1) {}
    /// One in `count`.
    bool once_in(unsigned count) { return below(count) == 0; }
    unsigned below(unsigned end) {
        m_state = m_state * 1664525U + 1013904223U;
        return (m_state >> 16) % end;
    }

private:
    std::uint32_t m_state;
};

/// Drives the scanner. `script` chooses what is done with each element; a second pass follows a rewind.
std::string run_scanner(c_read& source, unsigned script) {
    c_recorder reports;
    c_xml xml(source, reports, script % 2 == 0);
    c_trace trace(xml);
    for (int pass = 0; pass < 2; ++pass) {
        std::string name;
        std::string text;
        c_xml_local scope;
        c_script choice(script);
        // A document may give errors for ever without coming to its end, but not more than it has bytes.
        for (int steps = 0; steps < 300; ++steps) {
            scope.clear();
            const int event = xml.get_element_name(script % 3 == 0 ? nullptr : &scope, &name);
            trace.add("element", event, name, scope.find_namespace_id(""), scope.find_namespace_id("p"));
            if (event == ELXP_END_OF_INPUT) break;
            if (event != ELXP_NAME) continue;
            const std::string element = name;
            if (choice.once_in(5)) trace.add("named", xml.get_named_attribute(&scope, 1, "b", &text), text);
            int attribute = ELXP_NAME;
            const bool is_tag_closed = choice.once_in(2);
            while (attribute == ELXP_NAME && (is_tag_closed || !choice.once_in(3))) {
                attribute = xml.get_attribute_name(&name, choice.once_in(19));
                trace.add("attribute", attribute, name);
                if (attribute == ELXP_NAME && !choice.once_in(4)) {
                    trace.add("value", xml.get_attribute_value(&text, k_modes[choice.below(3)]), text);
                } else {
                    xml.skip_attribute_value();
                }
            }
            bool is_empty = false;
            text.clear();
            switch (choice.below(10)) {
                case 0:
                case 1:
                    if (!is_tag_closed) xml.move_to_start_tag_end(&is_empty);
                    trace.add("body", xml.get_element_value(&text, k_modes[choice.below(3)], !choice.once_in(9)),
                              text);
                    trace.add("closed", xml.is_element_end_tag(element));
                    break;
                case 2:
                    trace.add("tag end", xml.move_to_start_tag_end(&is_empty), is_empty);
                    break;
                case 3:
                    trace.add("skip", xml.skip_rest_of_element(element));
                    break;
                case 4:
                    trace.add("any", xml.get_any_element(element, &text, k_modes[choice.below(3)], true), text);
                    break;
                case 5:
                    trace.add("nested", xml.get_nested_element_value(&text, &name, k_modes[choice.below(3)], true),
                              text, name);
                    break;
                case 6:
                    trace.add("empty", xml.skip_rest_of_empty_element(element));
                    break;
                default:
                    break;
            }
            if (choice.once_in(23)) {
                // A caller may read and give back characters of its own.
                const int first = xml.get();
                const int second = xml.get();
                xml.unget(second);
                xml.unget(first);
                trace.add("characters", first, second);
            }
        }
        xml.rewind();
        trace.add("rewound", xml.find_enumerated_namespace("u"), reports.m_log);
    }
    return trace.m_text;
}

class c_swallowing_reader : public c_xml_reader {
public:
    using c_xml_reader::c_xml_reader;
    using c_xml_reader::user_handle_error;
    elmx_error user_handle_error(elmx_error) override { return ELMX_OK; }
};

constexpr s_event_map k_map[] = {{1, "a", 1, 20}, {1000, "a", 1, 21}, {1, "b", 1, 22}, {0, nullptr, 0, 0}};
constexpr s_known_elements k_known[] = {{1, "c", 1}, {0, nullptr, 0}};

/// Drives the reader as a class would.
std::string run_reader(c_read& source, unsigned script) {
    c_swallowing_reader reader(source);
    c_trace trace(reader);
    const c_known_elements_selector known(reader, k_known);
    const auto info = [&] {
        elmx_error_type type = ELMX_TYPE_NONE;
        elmx_error code = ELMX_OK;
        int line = 0;
        reader.get_error_info(&type, &code, &line);
        return std::to_string(type) + '/' + std::to_string(code) + '@' + std::to_string(line);
    };
    trace.add("understood", has_must_understand(reader, "u", "b", bool_must_understand), info());
    c_script choice(script);
    for (int steps = 0; steps < 300; ++steps) {
        elmx_error error = ELMX_OK;
        if (choice.once_in(5)) {
            reader.get_known_element_event(k_map, &error, &reader.m_name);
        } else {
            reader.get_element_event(choice.once_in(3) ? nullptr : k_map, &error, &reader.m_name);
        }
        trace.add("element", reader.get_current_event(), error, reader.m_name, info());
        if (reader.at_end_of_input() && reader.get_current_event() == ELXP_END_OF_INPUT) break;
        if (!reader.is_current_event_tokenisable()) continue;
        const std::string name = reader.m_name;
        while (!choice.once_in(9) && reader.get_attribute_event(k_map, &error, &reader.m_attr_name)) {
            trace.add("attribute", reader.get_current_event(), error, reader.m_attr_name);
            if (error != ELMX_OK && reader.at_end_of_input()) break;
            const bool is_read = reader.get_attribute_value(&reader.m_value, k_modes[choice.below(3)]);
            trace.add("value", is_read, reader.m_value);
            if (!is_read) reader.skip_attribute_value();
        }
        bool is_empty = false;
        error = ELMX_OK;
        const unsigned action = choice.below(4);
        if (action == 0) {
            const bool is_read =
                reader.get_simple_type_value(name, k_modes[choice.below(3)], &reader.m_value, &error, &is_empty);
            trace.add("simple", is_read, reader.m_value, error, is_empty, info());
        } else if (action == 1) {
            const bool is_read = reader.get_element_ur_value(name, &reader.m_value, &error, &is_empty);
            trace.add("any", is_read, reader.m_value, error, is_empty, info());
        }
    }
    return trace.m_text;
}

/// Compares all sources on one document. Returns false at the first difference, which is printed.
bool agree(const std::string& document, unsigned script) {
    for (const auto run : {run_scanner, run_reader}) {
        c_read_string whole(document);
        c_bytes_only bytes(whole);
        const std::string expected = run(bytes, script);
        c_read_string window(document);
        std::string found = run(window, script);
        std::size_t size = 0;
        // Both a window of one byte and one that ends within most constructs.
        for (const std::size_t next : {std::size_t{1}, std::size_t{2 + script % 5}}) {
            if (found != expected) break;
            size = next;
            c_small_windows small(document, size);
            found = run(small, script);
        }
        EXPECT_EQ(found, expected) << testing::PrintToString(document) << "\nwindow " << size << ", script "
                                   << script;
        if (found != expected) return false;
    }
    return true;
}

const std::vector<std::string>& documents() {
    static const std::vector<std::string> all = {
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<V:a xmlns:V=\"u\" b='1'>\n\t<V:c "
        "d=\"400\">0.123</V:c>\n\t<V:c/>\n</V:a>\n",
        "<a\nb\n=\n'1\n2'\n\nc='3'\n>\n<b\n/>\n</a\n>\n",
        "<a\r\nb\r\n=\r\n'1\r\n2'\r\n\r\nc='3'\r\n>\r\n<b\r\n/>\r\n x\r\n</a\r\n>\r\n",
        "<a\rb\r=\r'1\r2'\r\rc='3'\r>\r<b\r/>\r x\r</a\r>\r",
        "<a>\xC2\x85\xE2\x80\xA8<b c='\xC2\x85'\xC2\x85/>\r\xC2\x85\xE2\x80\xA9 "
        "\xC3\xA9\xE4\xBD\xA0\xF0\x9F\x98\x80</a>",
        // A name that ends in a lead takes what is behind it for the rest of a character.
        "<a\xC3>x</a\xC3>",
        "<a\xE2>>x</a\xE2>",
        "<a\xE2>>x</a\xE2>>\xC3\xA9<b/>",
        "<\xE2y>x</\xE2y>\xC2\x85<b/>",
        "<\xF0zz>x</\xF0zz>",
        "<\xC3\xA9long-enough-for-blocks>x</\xC3\xA9long-enough-for-blocks> >",
        "<a>\xC3\xA9 <\xC3\xA9 \xC3\xA9='\xC3\xA9'>\xC3<b>\xE2\x82</b>\xE1\x00z\xFF+++++</\xC3\xA9></a>"s,
        "<a xmlns='u' xmlns:p='&#118;' xmlns:p='w' b='t' p:b='true' xmlnsx='1' xmlns.y='2'><p:b b='' "
        "xmlns=''>&amp;&#65;&#x42 ;</p:b></a>",
        "<!-- c -- > - --->\n<?pi x?>\n<?x?><a>1<!-- - -->2<?p ?\n?>3<![CDATA[]] ]>\r\n]]]>4&lt;5</a><!---->",
        "<!DOCTYPE a [<!ENTITY e \"x<b c='&f;'>y</b>\"> <!ENTITY f 'F&#38;lt;'>\n<!-- -->\n<!ELEMENT a ANY>\n"
        "<!ENTITY % p \"<!ENTITY q 'Q%r;'>\"><!ENTITY % r '\"'> %p; %none;]>\n<a b='1&e;2&q;'>&e;&q;\r\n&e;</a>",
        "<!DOCTYPE a [<!ENTITY e '&f;'><!ENTITY f '&e;'>]><a b='&e;'>1&f;2</a>",
        "<!DOCTYPE a [<!ENTITY e '<a><b>'><!ENTITY x SYSTEM 'f'>]>&e;</b><c>&x;&e;</c></b></a></a>",
        "<!DOCTYPE a [ x ]><a/>",
        "<a b='1&u;2' c='&' d='&#1114112;'>x&u;y</a><b>&#xZ;</b><c>& d</c>",
        "<a></b><a><b></a></b><c /x y><d / >text<e",
        "<a b c='1'/>",
        "<a b=1/>",
        "<1><a *><a/ ><!X 'y>' z><b/><![CDAT[x]]><!DOCX><!-x><c></>",
        "<a>" + repeat(" word", 40) + "<b>" + repeat("v", 80) + "</b>" + repeat("\n\t", 30) + "</a>",
        "\xEF\xBB\xBF<a b='\xC3\xA9'>\xC3\xA9</a>",
        "<?xml version='1.1' encoding='ISO-8859-1' standalone='yes'?><a \xE9='\xE9\x85'>\xE9\x85\r\x85z\x7F</a\x85>",
        "<?xml version='1.0' encoding='ISO-8859-1'?><a><\xE9>x</\xC3\xA9></\xE9><\xE9/></a>",
        "<a>x\0y<b c='\0'/>\0</a>\0"s,
        "text only",
        " <?xml version='1.0' standalone='no'?><a/>",
    };
    return all;
}

TEST(Windows, MakeNoDifferenceWhereverADocumentIsCut) {
    for (const std::string& document : documents()) {
        for (std::size_t size = 0; size <= document.size(); ++size) {
            if (!agree(document.substr(0, size), static_cast<unsigned>(size))) break;
        }
        for (unsigned script = 0; script < 200 && agree(document, script); ++script) {
        }
    }
}

TEST(Windows, MakeNoDifferenceInAnyEncoding) {
    for (const std::string& document : documents()) {
        for (unsigned script = 0; script < 25; ++script) {
            if (!agree(widen(document, false), script) || !agree(widen(document, true), script) ||
                !agree("\xFF\xFE" + widen(document, false), script) ||
                !agree("\xFE\xFF" + widen(document, true), script) || !agree("\xEF\xBB\xBF" + document, script)) {
                break;
            }
        }
    }
    for (const char* const name : {"UTF-16", "ISO-10646-UCS-2", "UTF-8", "unknown"}) {
        const std::string document = "<?xml version='1.0' encoding='" + std::string(name) + "'?><a b='c'>d</a>";
        EXPECT_TRUE(agree(widen(document, true) + "\xD8\x3D\xDE\x00\x00"s, 1));
        EXPECT_TRUE(agree(document, 2));
    }
}

/// Pieces that meet in ways that nobody would write.
// clang-format off
const char* const k_pieces[] = {
    "<a>", "</a>", "<a b='", "\"", "'", "/>", ">", "<b ", "</b>", " c=\"1\"", "=", "&lt;", "&e;", "&f", "&#10;", "&#x41",
    "&", ";", "\n", "\r", "\r\n", "\n\r", " ", "\t", "\xC2\x85", "\xE2\x80\xA8", "\xC3\xA9", "\xC3", "\xFF", "\xE0\x9F\xBF", "\xED\xA0\x80",
    "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "<!--",
    "-->", "--", "-", "<![CDATA[", "]]>", "]", "<?pi ", "?>", "?", "<?xml version='1.0'?>", "<!DOCTYPE a [", "]>",
    "<!ENTITY e 'v'>", "<!ENTITY f \"<a b='&e;'>\">", "%p;", "<!ENTITY % p '<!ENTITY e \"w\">'>", "text", "xmlns='u'",
    "xmlns:p='v'", "p:b='true'", "<p:a ", "<", "/", "!", "&amp;", "0.5", "<a/>", "<a></a>"};
constexpr char k_marks[] = "<>&;'\"=/!-[]? \n\r\0x";
// clang-format on

/// A document as another form would have it: pairs of bytes, one byte a character, other line ends.
std::string transform(std::string document, std::size_t form) {
    std::string found;
    switch (form) {
        case 0:
        case 1:
            return widen(document, form == 0) + (document.size() % 3 == 0 ? "\xD8\x3D\xDE\x00\xD8"s : "");
        case 2:
            return "<?xml version='1.0' encoding='ISO-8859-1'?>" + document;
        case 3:
        case 4:
            for (const char c : document) found += c != '\n' ? std::string(1, c) : form == 3 ? "\r\n" : "\xC2\x85";
            return found;
        case 5:
            return widen("<?xml version='1.0' encoding='ISO-10646-UCS-2'?>\r\n" + document, true);
        default:
            std::replace(document.begin(), document.end(), '\n', '\r');
            return document;
    }
}

TEST(Windows, MakeNoDifferenceOnJumbledPieces) {
    std::mt19937 random(20260101);
    const auto below = [&](std::size_t end) { return static_cast<std::size_t>(random()) % end; };
    for (unsigned round = 0; round < 6000; ++round) {
        std::string document =
            round % 3 == 0 ? "<!DOCTYPE a [<!ENTITY e 'E\xC3\xA9\xFF'><!ENTITY f '<b>&e;'>]>" : "<a>";
        for (std::size_t count = below(24); count > 0; --count) document += k_pieces[below(std::size(k_pieces))];
        if (!agree(document, round) || !agree(transform(document, round % 7), round)) break;
    }
    for (unsigned round = 0; round < 3000; ++round) {
        std::string document = documents()[below(documents().size())];
        for (std::size_t count = 1 + below(4); count > 0; --count) {
            document[below(document.size())] =
                below(4) == 0 ? static_cast<char>(below(256)) : k_marks[below(std::size(k_marks))];
        }
        if (!agree(document, round) || !agree(transform(document, round % 7), round)) break;
    }
}

/// A stretch that is decoded at once ends somewhere: here at every place of a piece of document in turn.
TEST(Windows, MakeNoDifferenceWhereADecodedStretchEnds) {
    constexpr std::size_t stretch = 32768;
    const std::string piece = "<b c='\xC3\xA9'\n\n d='1'\n>\n&#10;\xC3\xA9x</b\n>";
    for (std::size_t place = 0; place < 96; ++place) {
        const std::string head = "<a>\n<!--";
        const std::string padding(stretch - head.size() - place / 2, '-');
        if (!agree(transform(head + padding + "-->" + piece + piece + "</a>", place % 7), 7)) break;
    }
}

TEST(Windows, MakeNoDifferenceInFiles) {
    for (const std::size_t size :
         {0U, 1U, 300U, 505U, 508U, 511U, 512U, 513U, 520U, 1023U, 1024U, 1030U, 65000U, 65520U}) {
        for (const std::string& document : documents()) {
            // The blanks move the document across the border of a block.
            const std::string text = "<r>" + std::string(size, ' ') + document;
            const c_scratch_file scratch(text);
            for (const auto run : {run_scanner, run_reader}) {
                c_read_file file(scratch.k_name);
                c_bytes_only bytes(file);
                const std::string expected = run(bytes, static_cast<unsigned>(size));
                c_read_file windows(scratch.k_name);
                ASSERT_EQ(run(windows, static_cast<unsigned>(size)), expected)
                    << size << testing::PrintToString(document);
            }
        }
    }
}

/// Reads all text and attribute values; gives the reports, and how far the scan came.
std::string run_to_the_limit(c_read& source) {
    c_recorder reports;
    c_xml xml(source, reports, true);
    std::string text;
    std::size_t total = 0;
    for (int event = ELXP_TEXT; event != ELXP_END_OF_INPUT; event = xml.get_element_name(nullptr, &text)) {
        total += text.size();
        while (event == ELXP_NAME && xml.get_attribute_name(&text, false) == ELXP_NAME) {
            xml.get_attribute_value(&text, ELMX_WS_PRESERVE);
            total += text.size();
        }
    }
    return reports.m_log + std::to_string(total);
}

/// The limit on the work of references counts the bytes read so far: it must fall at the same reference.
TEST(Windows, MakeNoDifferenceToTheExpansionLimit) {
    // The padding moves the limit by less than a reference costs, a byte at a time, through all its phases.
    const std::string subset = "<!DOCTYPE a [<!ENTITY e '" + std::string(200, 'x') + "'>]>";
    const std::string items = repeat("<c d='&e;'/>&e; ", 5500);
    for (std::size_t padding = 0; padding < 64; ++padding) {
        std::string document = subset + std::string(padding, padding % 2 == 0 ? ' ' : '\n') + items;
        if (padding % 8 != 0) document = transform(document, padding % 8 - 1);
        c_read_string whole(document);
        c_bytes_only bytes(whole);
        const std::string expected = run_to_the_limit(bytes);
        ASSERT_NE(expected.find("Entity expansion too large"), std::string::npos);
        c_small_windows small(document, 7);
        ASSERT_EQ(run_to_the_limit(small), expected) << padding;
        c_read_string window(document);
        ASSERT_EQ(run_to_the_limit(window), expected) << padding;
    }
}

}  // namespace
