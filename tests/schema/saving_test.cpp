// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Saving where something gives way: memory that runs out, streams that stop or throw, handlers that throw. What a
/// host's own code finds in the stream when it is called in the course of a save. And memory that runs out while
/// objects change.

#include <cstdlib>
#include <functional>
#include <new>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "lmx/lmx.h"
#include "schema/Vyr.h"
#include "tests/files.h"

namespace {

/// Requests for memory until one is refused; negative while none shall be.
int requests_left = -1;

}  // namespace

// Not inlined, or the compiler sees memory of one kind given back as another.
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (requests_left >= 0 && requests_left-- == 0) throw std::bad_alloc();
    if (void* const memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

using com_vyrgraph_v2::Vyr;
using lmx::c_xml_writer;

const Vyr& sample() {
    static const Vyr document = [] {
        Vyr loaded;
        EXPECT_EQ(loaded.unmarshal(vyr_test::bytes_of(VYR_TEST_DOCUMENTS "/valid/all-01.vyr")), lmx::ELMX_OK);
        return loaded;
    }();
    return document;
}

std::string whole_text() {
    std::string text;
    EXPECT_EQ(sample().marshal(&text), lmx::ELMX_OK);
    return text;
}

/// A DLL keeps to its own allocation functions.
#if defined(_WIN32)
constexpr bool k_reaches_the_library = false;
#else
constexpr bool k_reaches_the_library = true;
#endif

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
    if (!k_reaches_the_library) GTEST_SKIP() << "memory of a DLL can't be refused from here";
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

TEST(Changing, MemoryThatRunsOutLeavesObjectsAsTheyWere) {
    if (!k_reaches_the_library) GTEST_SKIP() << "memory of a DLL can't be refused from here";
    using com_vyrgraph_v2::ColorSetType;
    const auto text_of = [](const ColorSetType& object) {
        std::ostringstream stream;
        c_xml_writer writer(stream, "", "");
        EXPECT_EQ(object.marshal(writer, "Vyr:ColorSet"), lmx::ELMX_OK);
        return std::move(stream).str();
    };
    // Each has children that the other one lacks, at several levels.
    const auto make = [](bool is_first) {
        ColorSetType object;
        object.set_ColorSetName(is_first ? u"a name that takes memory of its own"
                                         : u"another name that takes memory");
        auto& specification = object.get_CollectionColorSpaceSpecification();
        if (is_first) {
            object.get_Owner().append_Company(u"a company that takes memory of its own");
            specification.get_ColorSpaceSpecificationSpectrumGeneric().get_Device();
        } else {
            specification.get_ColorSpaceSpecificationEmissiveSpectral().get_Profile();
        }
        for (int i = 0; i < 5; ++i) object.append_ChangeHistory("2024-05-01T09:30:00Z");
        object.unset_CollectionColorSpaceSpecification();
        return object;
    };
    using action = std::function<void(ColorSetType&, ColorSetType&)>;
    const action actions[] = {
        [](auto& one, auto& other) { one.swap(other); },
        [](auto& one, auto& other) { one = other; },
        [](auto&, auto& other) { other.get_Owner(); },
        [](auto& one, auto&) { one.append_Color(); },
        [](auto& one, auto&) { one.append_SemanticAssociation(u"an association that takes memory of its own"); },
        [](auto& one, auto&) { one.insert_ChangeHistory(1, "2024-05-01T09:30:00Z"); },
    };
    for (const action& change : actions) {
        ColorSetType one = make(true);
        ColorSetType other = make(false);
        const std::string first = text_of(one);
        const std::string second = text_of(other);
        const int count = refuse_each_request([&] { change(one, other); },
                                              [&] {
                                                  EXPECT_EQ(text_of(one), first);
                                                  EXPECT_EQ(text_of(other), second);
                                              });
        EXPECT_EQ(count > 0, &change != &actions[5]) << "change " << &change - actions;
    }
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
            EXPECT_EQ(writer.notes().open_element, nullptr);

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
    EXPECT_EQ(writer.notes().fault_site, nullptr);
    EXPECT_EQ(writer.notes().open_element, nullptr);
}

/// Takes pieces whole and counts them.
class c_counting_buffer : public std::stringbuf {
public:
    int pieces = 0;

private:
    std::streamsize xsputn(const char* text, std::streamsize size) override {
        ++pieces;
        return std::stringbuf::xsputn(text, size);
    }
};

struct s_written {
    std::string text;
    int pieces;
};

template <class Writer>
s_written write_with(const Vyr& document) {
    c_counting_buffer buffer;
    std::ostream stream(&buffer);
    Writer writer(stream, c_xml_writer::include_xml_decl, "\t", "\n");
    EXPECT_EQ(document.marshal(writer, "Vyr:Vyr"), lmx::ELMX_OK);
    return {buffer.str(), buffer.pieces};
}

class c_own_handler : public c_xml_writer {
public:
    using c_xml_writer::c_xml_writer;
    lmx::elmx_error user_handle_error(lmx::elmx_error code) override { return code; }
    void see_unhandled_error(lmx::elmx_error, const std::string&) override {}
    std::string& get_error_message(std::string* out) const override { return *out; }
};

class c_own_line_end : public c_xml_writer {
public:
    using c_xml_writer::c_xml_writer;
    const char* endl() override { return "\n"; }
};

class c_own_nest : public c_xml_writer {
public:
    using c_xml_writer::c_xml_writer;
    void nest() override { (*this)(false) << '\t'; }
};

TEST(Saving, OnlyAnOverriddenLayoutIsWrittenLineByLine) {
    const std::string whole = whole_text();
    const auto expect = [&](const s_written& written, bool is_piecemeal) {
        EXPECT_EQ(written.text, whole);
        EXPECT_EQ(written.pieces > 100, is_piecemeal) << written.pieces;
    };
    expect(write_with<c_xml_writer>(sample()), false);
    expect(write_with<c_own_handler>(sample()), false);
    expect(write_with<c_own_line_end>(sample()), true);
    expect(write_with<c_own_nest>(sample()), true);
}

/// Keeps what the stream held at each call of its layout and its handler.
class c_watching : public c_xml_writer {
public:
    explicit c_watching(std::ostringstream& stream) : c_xml_writer(stream, "\t", "|"), m_stream(stream) {}
    const char* endl() override {
        seen.push_back("E" + m_stream.str());
        return c_xml_writer::endl();
    }
    void nest() override {
        seen.push_back("N" + m_stream.str());
        c_xml_writer::nest();
        m_stream << '.';
    }
    std::vector<std::string> seen;

private:
    std::ostringstream& m_stream;
};

TEST(Saving, AnOverriddenLayoutSeesTheLinesBeforeIt) {
    com_vyrgraph_v2::SDKType stamp;
    com_vyrgraph_v2::SDKVersion version;
    version.set_SDKVersion(u"1");
    stamp.set_SDKName(u"n");
    stamp.assign_SDKVersion(version);
    std::ostringstream stream;
    c_watching writer(stream);
    writer.conditionally_write_ns_attrs(false);
    stream.str("");
    writer.seen.clear();
    EXPECT_EQ(stamp.marshal(writer, "a"), lmx::ELMX_OK);
    const std::string name = "<a>|\t.<Vyr:SDKName>n</Vyr:SDKName>|";
    const std::string more = name + "\t.<Vyr:SDKVersion>1</Vyr:SDKVersion>|";
    EXPECT_EQ(stream.str(), more + "</a>|");
    const std::vector<std::string> expected = {
        "E<a", "N<a>|", "E<a>|\t.", "N" + name, "E" + name + "\t.<Vyr:SDKVersion>1", "E" + more};
    EXPECT_EQ(writer.seen, expected);
}

TEST(Saving, AHandlerSeesWhatWasPrintedBeforeAndPrintsBehindIt) {
    class c_printing_handler : public c_xml_writer {
    public:
        explicit c_printing_handler(std::ostringstream& stream) : c_xml_writer(stream, " ", "|"), m_stream(stream) {}
        lmx::elmx_error user_handle_error(lmx::elmx_error) override {
            seen = m_stream.str();
            nest();
            m_stream << "<!--1-->";
            (*this)(true) << "<!--2-->" << endl();
            return lmx::ELMX_OK;
        }
        std::string seen;

    private:
        std::ostringstream& m_stream;
    };
    com_vyrgraph_v2::CustomAttributeType attribute;
    attribute.set_Name(u"n");
    attribute.get_ValueChoice();
    std::ostringstream stream;
    c_printing_handler writer(stream);
    writer.conditionally_write_ns_attrs(false);
    EXPECT_EQ(attribute.marshal(writer, "a"), lmx::ELMX_OK);
    const std::string before = "<a>| <Vyr:Name>n</Vyr:Name>| <Vyr:ValueChoice>|";
    EXPECT_EQ(writer.seen, before);
    EXPECT_EQ(stream.str(), before + " <!--1-->  <!--2-->| </Vyr:ValueChoice>|</a>|");
}

/// Prints with the writer's stream and with one that was kept from before.
class c_own_color : public com_vyrgraph_v2::ColorSpaceCMYKType {
public:
    explicit c_own_color(std::ostream& kept) : m_kept(kept) {}
    lmx::elmx_error marshal(c_xml_writer& writer, const char*) const override {
        m_kept << "[";
        writer(true) << "<b";
        marshal_attributes(writer);
        m_kept << "*";
        const lmx::elmx_error error = ColorSpaceCMYKType::marshal(writer, "c");
        m_kept << "]";
        return error;
    }

private:
    std::ostream& m_kept;
};

TEST(Saving, AnObjectOfTheHostsClassFindsEverythingInTheStream) {
    std::ostringstream stream;
    com_vyrgraph_v2::sg_ColorSpace holder;
    auto* const color = new c_own_color(stream);
    color->append_ChangeHistory(lmx::c_datetime("2024-05-01T09:30:00Z"));
    color->get_ColorSpaceSpecificationSpectrumGeneric().setnil_ColorSpaceSpecificationSpectrumGeneric();
    for (const auto set :
         {&c_own_color::set_Cyan, &c_own_color::set_Magenta, &c_own_color::set_Yellow, &c_own_color::set_Black}) {
        (color->*set)(0);
    }
    color->set_UniqueID(u"u");
    holder.assign_ColorSpaceCMYK(color);
    com_vyrgraph_v2::ColorType parent;
    parent.set_ColorName(u"n");
    parent.append_ChangeHistory(lmx::c_datetime("2024-05-01T09:30:00Z"));
    parent.append_ColorSpace();
    parent.get_ColorSpace(0).swap(holder);
    c_xml_writer writer(stream, "", "");
    EXPECT_EQ(parent.marshal(writer, "a"), lmx::ELMX_OK);
    const std::string text = stream.str();
    EXPECT_NE(text.find("Z</Vyr:ChangeHistory>[<b UniqueID=\"u\"*<c UniqueID=\"u\">"), text.npos) << text;
    EXPECT_NE(text.find("</c>]</a>"), text.npos) << text;
}

TEST(Saving, LinesOfAnyLengthComeThrough) {
    // Longer and shorter than the pieces in which text is handed on, and at their borders.
    for (const std::size_t size : {0U, 1U, 7U, 8U, 16U, 1023U, 65500U, 65510U, 65520U, 65530U, 65540U, 200000U}) {
        const std::u16string value = std::u16string(size, u'x') + u"\U0001F600&" + std::u16string(size % 100, u'y');
        com_vyrgraph_v2::OwnerType owner;
        owner.append_Company(value);
        owner.append_Company(u"z");
        const std::string tab(size % 70000, '-');
        std::string text;
        c_xml_writer writer(text, 0, tab.c_str(), "|");
        writer.conditionally_write_ns_attrs(false);
        EXPECT_EQ(owner.marshal(writer, "a"), lmx::ELMX_OK);
        const std::string lines = std::string(size, 'x') + "\xF0\x9F\x98\x80&amp;" + std::string(size % 100, 'y');
        ASSERT_TRUE(text == "<a>|" + tab + "<Vyr:Company>" + lines + "</Vyr:Company>|" + tab +
                                "<Vyr:Company>z</Vyr:Company>|</a>|")
            << size;
    }
}

}  // namespace
