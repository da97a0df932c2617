// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Document type declarations made by a grammar. As long as all that is made is tame, the program knows what each
/// entity stands for, and the scanner must say the same in content and in attributes. With raw bytes of the input
/// among it, reading must come to its end, alike whatever the source shows of its bytes.

#include <array>
#include <string>

#include "fuzz/support.h"
#include "lmx/reader/xml.h"
#include "lmx/values/unicode.h"

namespace {

using namespace vyr_fuzz;

/// Beyond it, a text is on its way to the bound on expansion, which is refused and not told here.
constexpr std::size_t k_longest_text = 20000;
constexpr std::size_t k_names = 8;

/// A text as it is written, and what it stands for.
struct s_text {
    std::string written;
    std::string meaning;
};

bool is_tame_character(int c) {
    if (c < 0x80) return lmx::xisalnum(c) || c == ' ' || c == '.' || c == ';' || c == '#' || c == '/' || c == '>';
    // Line ends beyond ASCII are made line feeds in documents, and surrogates and the last two are no characters.
    return c > 0x9F && c <= 0x10FFFF && c != 0x2028 && c != 0x2029 && (c < 0xD800 || c > 0xDFFF) &&
           (c & 0xFFFE) != 0xFFFE;
}

class c_grammar {
public:
    explicit c_grammar(FuzzedDataProvider& input) : m_input(input) {}

    /// A document whose element `a` has an attribute `b` and content.
    std::string make_document() {
        std::string subset;
        for (int count = below(12); count > 0; --count) subset += make_declaration();
        s_text attribute = make_use();
        s_text content = make_use();
        m_attribute = attribute.meaning;
        m_content = content.meaning;
        std::string head = once_in(3) ? "<?xml version='1.0'?>" : "";
        return head + "<!DOCTYPE a " + (once_in(8) ? "SYSTEM 'a.dtd' " : "") + "[" + subset + "]>" + "<a b='" +
               attribute.written + "'>" + content.written + "</a>";
    }

    bool m_is_tame = true;
    std::string m_attribute;
    std::string m_content;

private:
    int below(int end) { return m_input.ConsumeIntegralInRange<int>(0, end - 1); }
    bool once_in(int count) { return below(count) == 1; }
    std::size_t below(std::size_t end) { return m_input.ConsumeIntegralInRange<std::size_t>(0, end - 1); }

    std::string raw_bytes() {
        m_is_tame = false;
        return m_input.ConsumeBytesAsString(m_input.ConsumeIntegralInRange<std::size_t>(0, 24));
    }

    /// Characters that stand for themselves wherever they are, from the front of the input.
    std::string make_literal() {
        const std::string bytes = m_input.ConsumeBytesAsString(m_input.ConsumeIntegralInRange<std::size_t>(0, 40));
        std::string text;
        for (std::size_t i = 0; i < bytes.size();) {
            int c = 0;
            char again[8];
            const bool is_read = lmx::utf8_to_unicode_char(bytes.c_str() + i, &c);
            const std::string written = is_read && c > 0 ? lmx::unicode_char_to_utf8(c, again) : "";
            // A sequence longer than need be is not what it would be written as.
            const bool is_whole = !written.empty() && bytes.compare(i, written.size(), written) == 0;
            if (is_whole && is_tame_character(c)) text += written;
            i += is_whole ? written.size() : 1;
        }
        return text;
    }

    /// A reference to a character that is no markup, or to one of the five that are known without a declaration.
    s_text make_character() {
        static constexpr std::array<std::array<const char*, 2>, 8> k_references{{{"&#65;", "A"},
                                                                                 {"&#x42;", "B"},
                                                                                 {"&#233;", "\xC3\xA9"},
                                                                                 {"&#x100000;", "\xF4\x80\x80\x80"},
                                                                                 {"&#0000000000048;", "0"},
                                                                                 {"&gt;", ">"},
                                                                                 {"&lt;", "<"},
                                                                                 {"&apos;", "'"}}};
        const auto& [written, meaning] = k_references[below(k_references.size())];
        return {written, meaning};
    }

    /// The value of an entity, which may refer to those of lower numbers: none contains itself.
    s_text make_value(std::size_t number) {
        s_text text;
        for (int pieces = below(5); pieces > 0; --pieces) {
            s_text piece;
            switch (below(6)) {
                case 0:
                    piece = make_character();
                    break;
                case 1:
                    if (number > 0) {
                        const std::size_t other = below(number);
                        if (m_entities[other].written.empty()) break;
                        piece = {"&e" + std::to_string(other) + ";", "\1" + std::to_string(other)};
                    }
                    break;
                case 2: {
                    const std::size_t other = below(k_names);
                    if (m_parameters[other].written.empty()) break;
                    piece = {"%p" + std::to_string(other) + ";", m_parameters[other].meaning};
                    break;
                }
                case 3:
                    if (once_in(6)) {
                        piece.written = raw_bytes();
                        break;
                    }
                    [[fallthrough]];
                default:
                    piece.written = piece.meaning = make_literal();
            }
            text.written += piece.written;
            text.meaning += piece.meaning;
        }
        // A parameter entity declared anew by its own text grows as a bomb does, and is refused like one.
        if (text.meaning.size() > k_longest_text) m_is_tame = false;
        return text;
    }

    std::string make_declaration() {
        const std::string gap = once_in(4) ? "\n\t" : " ";
        const std::size_t number = below(k_names);
        const bool is_double = once_in(2);
        const std::string quote = is_double ? "\"" : "'";
        switch (below(10)) {
            case 0:
                return "<!-- " + make_literal() + " ]> -->";
            case 1:
                return "<?pi " + make_literal() + " ]?>";
            case 2:
                return "<!ELEMENT a" + gap + "(#PCDATA)*>";
            case 3:
                return "<!ATTLIST a b CDATA '" + make_literal() + ">'>" + gap;
            case 4: {
                // A value's general references stay as they are, so the text of a parameter entity is one too.
                s_text value = make_value(0);
                m_parameters[number] = {"+", value.meaning};
                return "<!ENTITY % p" + std::to_string(number) + gap + quote + value.written + quote + ">";
            }
            case 5: {
                // A whole declaration in a parameter entity, used once.
                const std::string literal = make_literal();
                m_entities[number] = {"+", literal};
                const std::string name = "e" + std::to_string(number);
                return "<!ENTITY % d \"<!ENTITY " + name + " '" + literal + "'>\">" + gap + "%d;";
            }
            case 6:
                if (!once_in(3)) return gap;
                return raw_bytes();
            case 7:
                if (!once_in(3)) return gap;
                m_is_tame = false;
                return "<!ENTITY e" + std::to_string(number) + " SYSTEM 'f>'>";
            default: {
                s_text value = make_value(number);
                m_entities[number] = {"+", value.meaning};
                return "<!ENTITY" + gap + "e" + std::to_string(number) + gap + quote + value.written + quote + ">";
            }
        }
    }

    /// What a value stands for, now that all declarations are known: the last one of a name counts.
    std::string expand(const std::string& meaning) const {
        std::string text;
        for (std::size_t i = 0; i < meaning.size() && text.size() <= k_longest_text; ++i) {
            if (meaning[i] == '\1') {
                text += expand(m_entities[static_cast<std::size_t>(meaning[++i] - '0')].meaning);
            } else {
                text += meaning[i];
            }
        }
        return text;
    }

    s_text make_use() {
        s_text text;
        for (int pieces = below(6); pieces > 0; --pieces) {
            const std::size_t number = below(k_names);
            s_text piece;
            if (!m_entities[number].written.empty() && !once_in(3)) {
                piece = {"&e" + std::to_string(number) + ";", expand(m_entities[number].meaning)};
            } else if (once_in(2)) {
                piece = make_character();
            } else if (once_in(12)) {
                piece.written = raw_bytes();
            } else {
                piece.written = piece.meaning = make_literal();
            }
            text.written += piece.written;
            text.meaning += piece.meaning;
        }
        if (text.meaning.size() > k_longest_text) m_is_tame = false;
        return text;
    }

    FuzzedDataProvider& m_input;
    std::array<s_text, k_names> m_entities;  ///< `written` isn't empty once there is one of the number
    std::array<s_text, k_names> m_parameters;
};

struct s_seen {
    std::string attribute;
    std::string content;
    std::string all;  ///< each event with its text and line, and the reports
};

s_seen read(const std::string& document, std::size_t window) {
    c_windows source(document, window);
    c_recorder reports;
    lmx::c_xml xml(source, reports, true);
    s_seen seen;
    std::string text;
    for (std::size_t steps = document.size() + 64; steps > 0; --steps) {
        const int event = xml.get_element_name(nullptr, &text);
        seen.all += std::to_string(event) + text + '@' + std::to_string(xml.get_line_num()) + '|';
        if (event == lmx::ELXP_END_OF_INPUT || event == lmx::ELXP_ERROR) break;
        while (event == lmx::ELXP_NAME && xml.get_attribute_name(&text, false) == lmx::ELXP_NAME) {
            const bool is_read = xml.get_attribute_value(&text, lmx::ELMX_WS_PRESERVE);
            seen.attribute += is_read ? text : "(failed)";
            seen.all += text + (is_read ? ';' : '!');
        }
        if (event == lmx::ELXP_NAME) {
            const bool is_read = xml.get_element_value(&text, lmx::ELMX_WS_PRESERVE, true);
            seen.content += is_read ? text : "(failed)";
            seen.all += text + (is_read ? ';' : '!');
        }
    }
    seen.all += reports.m_log;
    return seen;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzedDataProvider input(bytes, size);
    c_grammar grammar(input);
    const std::size_t window = input.ConsumeIntegralInRange<std::size_t>(1, 12);
    const std::string document = grammar.make_document();
    const s_seen seen = read(document, document.size() + 1);
    require(seen.all == read(document, 0).all, "windows make a difference in", document);
    require(seen.all == read(document, window).all, "small windows make a difference in", document);
    if (grammar.m_is_tame) {
        require(seen.attribute == grammar.m_attribute, "another attribute value in",
                document + "\nseen: " + seen.attribute + "\nmade: " + grammar.m_attribute);
        require(seen.content == grammar.m_content, "another content in",
                document + "\nseen: " + seen.content + "\nmade: " + grammar.m_content);
    }
    return 0;
}
