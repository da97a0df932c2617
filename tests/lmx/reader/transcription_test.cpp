// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Calls in any order, on the reader's lower layers and on their transcription.

#include "tests/lmx/reader/transcription.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

#include "lmx/reader/xml.h"
#include "tests/lmx/reader/support.h"

namespace {

using namespace lmx;
using namespace lmx_test;
using namespace std::string_literals;

/// Serves what is unread of a block first when it is rewound, as a file does, which shows how far it was read.
class c_blocks : public c_read {
public:
    c_blocks(const std::string& text, std::size_t block, bool shows_windows)
        : m_text(text), m_block(block), m_shows_windows(shows_windows) {}
    int read() override { return refill() ? static_cast<unsigned char>(m_text[m_at++]) : -1; }
    void rewind() override { m_next = 0; }
    std::string_view take_window() override {
        if (!m_shows_windows || !refill()) return {};
        const std::string_view window = std::string_view(m_text).substr(m_at, m_end - m_at);
        m_at = m_end;
        return window;
    }
    void give_back(std::size_t count) override { m_at -= count; }

private:
    bool refill() {
        if (m_at != m_end) return true;
        m_at = m_next;
        m_next = m_end = std::min(m_at + m_block, m_text.size());
        return m_at != m_end;
    }

    const std::string& m_text;
    std::size_t m_block;
    bool m_shows_windows;
    std::size_t m_at = 0;
    std::size_t m_end = 0;
    std::size_t m_next = 0;
};

constexpr const char* k_texts[] = {"", "a<b\n", "\xC3\xA9\xFF\r\n", "</a>x"};
constexpr const char* k_forms[] = {"UTF-8", "UTF-16", "ISO-8859-1", "ISO-10646-UCS-2"};

/// The same calls for the same number, with what each gave and how things stood behind it.
template <class Reader>
std::string run(c_read& source, unsigned number) {
    c_recorder reports;
    const auto make = [&] {
        if constexpr (std::is_same_v<Reader, c_xml>) {
            return Reader(source, reports, true);
        } else {
            return Reader(source, reports);
        }
    };
    Reader reader = make();
    std::mt19937 random(number);
    const auto below = [&](unsigned end) { return static_cast<unsigned>(random()) % end; };
    std::string trace;
    std::string value;
    std::vector<int> last{0, 0, 0};
    // Nobody gives back more than three; what is left of a text that an entity's covers isn't known here.
    unsigned given_back = 0;
    bool has_texts = false;
    for (int steps = 0; steps < 80; ++steps) {
        const unsigned call = below(40);
        long result = 0;
        bool is_empty = steps % 2 == 0;  // a tag that doesn't end leaves it as it was
        value.clear();
        if (call < 20) {
            last.erase(last.begin());
            last.push_back(reader.get());
            result = last.back();
            if (given_back > 0 && !has_texts) --given_back;
        } else if (call < 26) {
            for (std::size_t i = last.size(); i > 0 && given_back < 3 && below(3) != 0; ++given_back) {
                reader.unget(last[--i]);
            }
        } else if (call == 26) {
            if (given_back++ < 3) reader.unget(below(2) == 0 ? '\n' : static_cast<int>(below(256)) - 1);
        } else if (call == 27) {
            const bool is_pushed = below(3) == 0;
            has_texts |= is_pushed;
            result = is_pushed && reader.set_input_entity_value(k_texts[below(4)]);
        } else if (call == 28) {
            if (below(3) == 0) reader.rewind();
        } else if (call == 29) {
            if (steps < 9 && below(3) == 0) result = reader.set_encoding(k_forms[below(4)]);
        } else if (call < 32) {
            result = reader.get_non_ws();
        } else if (call == 32) {
            result = reader.skip_comment();
        } else if (call == 33) {
            result = reader.skip_PI();
        } else if (call == 34) {
            result = reader.move_to_start_tag_end(&is_empty);
        } else if (call == 35) {
            result = reader.is_element_end_tag("a");
        } else {
            const auto mode = static_cast<elmx_whitespace>(below(3));
            given_back = std::max(given_back, 2U);
            if constexpr (std::is_same_v<Reader, c_xml>) {
                result = reader.get_element_value(&value, mode, false);
            } else {
                result = reader.get_element_value(&value, mode);
            }
        }
        trace += std::to_string(call) + ": " + std::to_string(result) + ' ' + std::to_string(is_empty) + ' ' +
                 testing::PrintToString(value) + " line " + std::to_string(reader.get_line_num()) +
                 (reader.at_end_of_input() ? " at the end " : " ") + std::exchange(reports.m_log, {}) + '\n';
    }
    return trace;
}

constexpr const char* k_fragments[] = {"<a>",  "</a>", "</a",      "<a ",      "/>",   "/",  ">",
                                       "<",    "\n",   "\r",       "\r\n",     "x",    "yz", "some words",
                                       "<!--", "-->",  "<?",       "?>",       "'",    "\"", "  ",
                                       "\xC3", "\xFF", "\xC3\xA9", "\xC2\x85", "\xE2", "-",  "\xE2\x80\xA8"};

std::string document(std::mt19937& random) {
    std::string text = random() % 4 != 0 ? "<" : "";
    for (std::size_t count = random() % 30; count > 0; --count)
        text += k_fragments[random() % std::size(k_fragments)];
    switch (random() % 9) {
        case 0:
            return widen(text, false) + (random() % 2 == 0 ? "\x3D\xD8\x00\xDE\x28\x20"s : "\x3D"s);
        case 1:
            return "\xFE\xFF" + widen(text, true) +
                   (random() % 2 == 0 ? "\xD8\x3D\xDE\x00\x20\x28"s : "\xD8\x3D\x00x"s);
        case 2:
            return "\xEF\xBB\xBF" + text;
        case 3:
            return (random() % 2 == 0 ? "\xFF\xFE"s : "\xFF"s) + widen(text, false);
        case 4:
            return widen(text, true) + "\x00\x85"s;
        case 5:
            return (random() % 2 == 0 ? "\xEF\xBB" : "\xFE\xFF") + text;
        default:
            return text;
    }
}

TEST(Transcription, SaysWhatTheReaderDoes) {
    std::mt19937 random(20261122);
    for (unsigned number = 0; number < 8000; ++number) {
        const std::string text = document(random);
        c_blocks bytes(text, 16, false);
        const std::string expected = run<c_transcription>(bytes, number);
        for (const bool shows_windows : {false, true}) {
            c_blocks source(text, 16, shows_windows);
            ASSERT_EQ(run<c_xml>(source, number), expected)
                << testing::PrintToString(text) << "\nwindows " << shows_windows << ", number " << number;
        }
    }
}

}  // namespace
