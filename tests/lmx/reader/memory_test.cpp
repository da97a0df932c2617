// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What the reader itself takes of the heap for documents made of nothing but names: no more than one mebibyte and
/// four times the document, however it goes on. Counts all that is allocated in this process.

#include <gtest/gtest.h>

#include <functional>

#include "lmx/reader/xml_reader.h"
#include "tests/heap.h"
#include "tests/lmx/reader/support.h"

namespace {

using namespace lmx;
using namespace lmx_test;

/// Reads all events, attributes and values, in nested scopes as classes would have them.
void read_to_the_end(c_xml_reader& reader) {
    const c_xml_reader_local scope(reader);
    elmx_error error = ELMX_OK;
    while (!reader.at_end_of_input()) {
        reader.get_element_event(nullptr, &error, &reader.m_name);
        if (reader.get_current_event() != ELXP_NAME) continue;
        while (reader.get_attribute_event(nullptr, &error, &reader.m_attr_name) &&
               reader.get_current_event() == ELXP_NAME) {
            reader.get_attribute_value(&reader.m_value, ELMX_WS_COLLAPSE);
        }
    }
}

std::size_t heap_of(const std::string& document, const std::function<void(c_xml_reader&)>& run) {
    const std::size_t before = vyr_test::heap_in_use;
    const std::size_t most = vyr_test::heap_of([&] {
        c_xml_reader_memory reader(document.data(), document.size());
        run(reader);
    });
    EXPECT_EQ(vyr_test::heap_in_use, before);
    return most;
}

/// `head`, so many pieces with the number of each in place of `#` and that of the one before in place of `$`, `tail`
/// with the last number in place of `#`.
std::string compose(const std::string& head, const std::string& piece, const std::string& tail, int count) {
    const auto fill = [](std::string text, int number) {
        for (const auto& [mark, value] : {std::pair{'#', number}, {'$', number - 1}}) {
            for (std::size_t at = 0; (at = text.find(mark)) != std::string::npos;) {
                text.replace(at, 1, std::to_string(value));
            }
        }
        return text;
    };
    std::string document = head;
    for (int number = 1; number <= count; ++number) document += fill(piece, number);
    return document + fill(tail, count);
}

TEST(Heap, IsBoundedByTheDocument) {
    const struct {
        const char* what;
        const char* head;
        const char* piece;
        const char* tail;
    } shapes[] = {
        {"declarations", "<a", " xmlns:p#='u#'", "/>"},
        {"declarations of one URI", "<a", " xmlns:p#=''", "/>"},
        {"declarations of one prefix", "<a", " xmlns:p='#'", "/>"},
        {"declarations of elements", "<a>", "<b xmlns='#'/>", "</a>"},
        {"attributes", "<a", " b#=''", "/>"},
        {"short attributes", "<a", " b=''", "/>"},
        {"attributes that aren't ASCII", "<a", " \xC3\xA9=''", "/>"},
        {"entities", "<!DOCTYPE a [", "<!ENTITY e# ''>", "]><a/>"},
        {"entities with a text", "<!DOCTYPE a [", "<!ENTITY e# 'text #'>", "]><a b='&e#;'/>"},
        {"an entity, defined anew", "<!DOCTYPE a [", "<!ENTITY e '#'>", "]><a>&e;</a>"},
        {"a chain in content", "<!DOCTYPE a [<!ENTITY e0 ''>", "<!ENTITY e# '&e$;'>", "]><a>&e#;</a>"},
        {"a chain in a value", "<!DOCTYPE a [<!ENTITY e0 ''>", "<!ENTITY e# '&e$;'>", "]><a b='&e#;'/>"},
        {"a chain in the subset", "<!DOCTYPE a [<!ENTITY % e0 ''>", "<!ENTITY % e# '&#37;e$;'>", "%e#;]><a/>"},
        {"parameter entities", "<!DOCTYPE a [<!ENTITY % e0 ''>", "<!ENTITY % e# '%e$;'>", "]><a/>"},
    };
    for (const auto& shape : shapes) {
        // Containers grow by leaps: somewhere between a size and its double is the worst of them.
        for (const int count : {30000, 36000, 43000, 51000, 65000}) {
            const std::string document = compose(shape.head, shape.piece, shape.tail, count);
            EXPECT_LE(heap_of(document, read_to_the_end), 4 * document.size() + (1U << 20U))
                << shape.what << ' ' << count;
        }
    }
}

TEST(Heap, IsBoundedForWhatIsSkippedOrCopied) {
    for (const std::size_t levels : {500000U, 600000U, 720000U, 860000U}) {
        const std::string document = "<a>" + repeat("<b>", levels);
        const std::size_t bound = 4 * document.size() + (1U << 20U);
        const std::size_t skipped = heap_of(document, [](c_xml_reader& reader) {
            reader.get_element_name(reader.get_reader_local(), &reader.m_name);
            EXPECT_FALSE(reader.skip_rest_of_element("a"));
        });
        EXPECT_LE(skipped, bound);
        const std::size_t copied = heap_of(document, [](c_xml_reader& reader) {
            reader.get_element_name(reader.get_reader_local(), &reader.m_name);
            EXPECT_FALSE(reader.get_any_element("a", &reader.m_value, ELMX_WS_PRESERVE, true));
        });
        EXPECT_LE(copied, bound);
        // Where the library's share isn't counted, nothing here says anything.
        EXPECT_GE(copied, document.size());
    }
}

}  // namespace
