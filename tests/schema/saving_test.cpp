// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Saving where something gives way: memory that runs out, streams that stop or throw, handlers that throw.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <new>
#include <sstream>
#include <stdexcept>

#include "lmx/lmx.h"
#include "schema/Vyr.h"

namespace {

/// Requests for memory until one is refused; negative while none shall be.
int requests_left = -1;

}  // namespace

void* operator new(std::size_t size) {
    if (requests_left >= 0 && requests_left-- == 0) throw std::bad_alloc();
    if (void* const memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

using com_vyrgraph_v2::Vyr;
using lmx::c_xml_writer;

const Vyr& sample() {
    static const Vyr document = [] {
        std::ifstream file(VYR_TEST_DOCUMENTS "/valid/all-01.vyr", std::ios::binary);
        const std::string text(std::istreambuf_iterator<char>(file), {});
        Vyr loaded;
        EXPECT_EQ(loaded.unmarshal(text), lmx::ELMX_OK);
        return loaded;
    }();
    return document;
}

std::string whole_text() {
    std::string text;
    EXPECT_EQ(sample().marshal(&text), lmx::ELMX_OK);
    return text;
}

/// Refuses the first request for memory, then the second, and so on, until the action needs no more than it gets.
/// Each refusal must be heard of, and leave what `check` looks at. Returns how many there were.
int refuse_each_request(const std::function<void()>& action, const std::function<void()>& check) {
    for (int count = 0;; ++count) {
        requests_left = count;
        try {
            action();
        } catch (const std::bad_alloc&) {
            requests_left = -1;
            check();
            continue;
        }
        const bool is_refused = requests_left < 0;
        requests_left = -1;
        EXPECT_FALSE(is_refused) << "request " << count << " was refused, and nobody heard of it";
        if (!is_refused) return count;
    }
}

TEST(Saving, MemoryThatRunsOutIsToldAndCutsNoText) {
    const std::string whole = whole_text();
    ASSERT_GT(whole.size(), 5000U);
    std::string text = "untouched";
    const auto expect_untouched = [&text] { EXPECT_EQ(text, "untouched"); };
    EXPECT_GT(refuse_each_request([&] { sample().marshal(&text); }, expect_untouched), 0);
    EXPECT_EQ(text, whole);
    EXPECT_GT(refuse_each_request([] { sample().writeString(); }, [] {}), 0);

    lmx::c_duration duration;
    duration.set_years(4000000000U);
    duration.set_days(4000000000U);
    text = "untouched";
    EXPECT_GT(refuse_each_request([&] { text = duration.get_as_string(); }, expect_untouched), 0);
    EXPECT_EQ(text, "P4000000000Y4000000000D");
}

/// Takes a number of bytes. After them it refuses, or throws what its host would throw.
class c_narrow_buffer : public std::streambuf {
public:
    explicit c_narrow_buffer(std::size_t room, bool throws = false) : m_room(room), m_throws(throws) {}
    std::string text;
    void widen() { m_room = std::string::npos; }

private:
    int_type overflow(int_type c) override {
        if (text.size() >= m_room) {
            if (m_throws) throw std::domain_error("disk");
            return traits_type::eof();
        }
        text += traits_type::to_char_type(c);
        return c;
    }
    std::size_t m_room;
    bool m_throws;
};

/// The failing save may have left the writer at any depth.
void start_afresh(c_xml_writer& writer) {
    for (int level = 0; level < 100; ++level) writer.undent();
    writer.clear_expected_class_identity();
    writer.reenable_ns_map_output();
}

TEST(Saving, AStreamThatThrowsIsTheCallersToHear) {
    const std::string whole = whole_text();
    for (const bool throws : {false, true}) {
        for (std::size_t room = 60; room < whole.size(); room += 97) {
            c_narrow_buffer buffer(room, throws);
            std::ostream stream(&buffer);
            stream.exceptions(std::ios::badbit | std::ios::failbit);
            c_xml_writer writer(stream, c_xml_writer::include_xml_decl, "\t", "\n");
            const auto save = [&] { sample().marshal(writer, "Vyr:Vyr"); };
            if (throws) {
                EXPECT_THROW(save(), std::domain_error);
            } else {
                EXPECT_THROW(save(), std::ios_base::failure);
            }
            ASSERT_EQ(buffer.text, whole.substr(0, room));
            EXPECT_EQ(writer.get_open_element(), nullptr);

            stream.clear();
            buffer.widen();
            buffer.text.clear();
            start_afresh(writer);
            save();
            ASSERT_EQ(buffer.text, whole.substr(whole.find('\n') + 1)) << room;
        }
    }
}

TEST(Saving, AStreamThatStopsKeepsWhatItTook) {
    const std::string whole = whole_text();
    for (std::size_t room = 0; room < whole.size(); room += 89) {
        c_narrow_buffer buffer(room);
        std::ostream stream(&buffer);
        EXPECT_EQ(sample().marshal(stream), lmx::ELMX_OK);
        EXPECT_TRUE(stream.bad());
        ASSERT_EQ(buffer.text, whole.substr(0, room));
    }
}

TEST(Saving, AHandlerMayThrow) {
    class c_throwing : public c_xml_writer {
    public:
        using c_xml_writer::c_xml_writer;
        lmx::elmx_error user_handle_error(lmx::elmx_error) override { throw std::domain_error("no"); }
        void see_unhandled_error(lmx::elmx_error, const std::string&) override { throw std::domain_error("no"); }
    };
    std::ostringstream stream;
    c_throwing writer(stream, "", "");
    EXPECT_THROW(com_vyrgraph_v2::AxisValueChoice().marshal(writer, "a"), std::domain_error);
    EXPECT_THROW(com_vyrgraph_v2::Person().marshal(writer, "a"), std::domain_error);
    EXPECT_EQ(writer.get_fault_site(), nullptr);
    EXPECT_EQ(writer.get_open_element(), nullptr);
}

}  // namespace
