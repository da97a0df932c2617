// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Taking whole elements from the source's window is a short cut and nothing else: a source without windows, whose
/// elements all go through the reader's events, must give the same reports, lines and objects.

#include <algorithm>
#include <functional>
#include <memory>
#include <random>
#include <sstream>
#include <string_view>

#include "schema/generated/class_list.h"
#include "tests/files.h"
#include "tests/schema/support.h"

namespace vyr_test {
namespace {

using namespace lmx;

constexpr std::size_t k_all = 1U << 30U;

/// Shows windows of at most so many bytes, each in memory of its own that is gone with the next; of none, it gives
/// its bytes one by one.
class c_windows : public c_read_string {
public:
    c_windows(const std::string& text, std::size_t size) : c_read_string(text), m_size(size) {}
    std::string_view take_window() override {
        if (m_size == 0) return {};
        const std::string_view rest = c_read_string::take_window();
        const std::size_t size = std::min(rest.size(), m_size);
        give_back(rest.size() - size);
        m_window = std::make_unique<char[]>(size);
        std::copy_n(rest.data(), size, m_window.get());
        return {m_window.get(), size};
    }

private:
    std::size_t m_size;
    std::unique_ptr<char[]> m_window;
};

enum class e_answer { keeps, swallows, varies };

/// Writes down whatever a handler can see.
class c_logging_reader : public c_xml_reader {
public:
    c_logging_reader(c_read& source, e_answer answer) : c_xml_reader(source), m_answer(answer) {}
    using c_xml_reader::user_handle_error;
    elmx_error user_handle_error(elmx_error code, const std::string& item, const char*, int) override {
        note("report", code, item);
        // Reports without end are the same ones from some point on.
        if (m_answer == e_answer::keeps || ++m_count > 2000) return code;
        return m_answer == e_answer::varies && m_count % 3 == 0 ? code : ELMX_OK;
    }
    void see_unhandled_error(elmx_error code, const std::string& item) override { note("unhandled", code, item); }
    void note(const char* what, elmx_error code, const std::string& item) {
        elmx_error_type type = ELMX_TYPE_NONE;
        elmx_error scanned = ELMX_OK;
        int line = 0;
        get_error_info(&type, &scanned, &line);
        std::ostringstream out;
        out << what << ' ' << code << " '" << item << "' lines " << get_line_no() << ' ' << get_text_line() << ' '
            << get_event_line() << ' ' << diagnose().attribute_line << " events " << get_current_event() << ' '
            << get_scanned_event() << " names '" << m_name << "' '" << m_attr_name << "' '" << get_full_name() << "' "
            << get_ns_id() << " value '" << m_value << "' " << notes().is_value_faulty << " depth "
            << get_element_name_stack().get_depth() << " attributes '" << diagnose().attribute_value << "' '"
            << find_raw_attribute_value("Name") << "' '" << find_raw_attribute_value("UniqueID") << "' scanner "
            << type << ' ' << scanned << ' ' << line << ' ' << diagnose().fault_text << '\n';
        log += out.str();
    }
    std::string log;

private:
    e_answer m_answer;
    int m_count = 0;
};

/// Loads the texts one after the other into one object: the reports, the reader's last state and what the object then
/// writes.
std::string run(const s_operations& operations, const std::vector<std::string>& texts, std::size_t window,
                e_answer answer) {
    const std::unique_ptr<void, void (*)(void*)> object(operations.create(), operations.destroy);
    std::string log;
    for (const std::string& text : texts) {
        c_windows source(text, window);
        c_logging_reader reader(source, answer);
        reader.set_ns_map(v2::Vyr::ns_map());
        const c_xml_reader_local scope(reader);
        elmx_error error = ELMX_OK;
        reader.get_element_event(nullptr, &error, &reader.m_name);
        const std::string name = reader.m_name;
        if (error == ELMX_OK) error = operations.unmarshal(object.get(), reader, reader.m_name);
        reader.note("end", error, {});
        std::ostringstream written;
        c_xml_writer writer(written, "\t", "\n");
        const elmx_error code = operations.marshal(object.get(), writer, name.c_str());
        log += reader.log + std::to_string(code) + written.str() + '\n';
    }
    return log;
}

/// Compares the windows of those sizes with none; at the first difference false, which is printed.
bool agree(const s_operations& operations, const std::vector<std::string>& texts, e_answer answer,
           const std::vector<std::size_t>& sizes) {
    const std::string expected = run(operations, texts, 0, answer);
    for (const std::size_t size : sizes) {
        const std::string found = run(operations, texts, size, answer);
        if (found == expected) continue;
        const auto differs = std::mismatch(found.begin(), found.end(), expected.begin(), expected.end());
        const auto at = static_cast<std::size_t>(differs.first - found.begin());
        const std::size_t line = at == 0 ? 0 : expected.rfind('\n', at - 1) + 1;
        ADD_FAILURE() << "window " << size << ", answer " << static_cast<int>(answer) << "\nfound    "
                      << found.substr(line, 600) << "\nexpected " << expected.substr(line, 600) << "\nin "
                      << texts.back();
        return false;
    }
    return true;
}

const s_operations& operations_of(std::string_view name) {
    const auto all = v2::all_classes();
    return *std::find_if(all.begin(), all.end(), [&](const s_named_class& row) {
                return row.name == name;
            })->operations;
}

const std::vector<std::size_t> k_sizes = {k_all, 512, 61};
constexpr e_answer k_answers[] = {e_answer::keeps, e_answer::swallows, e_answer::varies};

/// The test's documents up to a size, in a fixed order.
std::vector<std::string> documents(std::size_t most) {
    std::vector<std::string> texts;
    for (const std::filesystem::path& file : documents_in({"valid", "invalid"})) {
        if (std::filesystem::file_size(file) <= most) texts.push_back(bytes_of(file));
    }
    return texts;
}

struct s_case {
    const char* name;                 ///< of the class and, with "Vyr:" ahead, of its element
    std::vector<std::string> bodies;  ///< of the loads, one after the other
};

const std::string k_nil = "<Vyr:ColorSpaceSpecificationSpectrumTristimulus xsi:nil=\"true\"/>";
const std::string k_lab_end = k_change_history + k_nil + "<Vyr:L>50</Vyr:L><Vyr:A>1</Vyr:A><Vyr:B>2</Vyr:B>";
const std::string k_parent =
    "<Vyr:ParentColorSpace><Vyr:ColorSpaceCIELab>" + k_lab_end + "</Vyr:ColorSpaceCIELab></Vyr:ParentColorSpace>";
const std::string k_averaging = "<Vyr:Averaging AveragingValue=\"3\">true</Vyr:Averaging>";
const std::string k_text = "<Vyr:TextValue>x</Vyr:TextValue>";

/// A spectrum with one point that differs from the others.
std::string spectrum(const std::string& odd) {
    const auto point = [](int wavelength) {
        return "\n\t<Vyr:ReflectancePoint Wavelength=\"" + std::to_string(wavelength) +
               "\">0.25</Vyr:ReflectancePoint>";
    };
    return k_change_history + "<Vyr:ColorSpaceSpecificationSpectrumSpectral xsi:nil=\"true\"/>" + point(400) +
           point(410) + odd + point(420) + point(430);
}
const std::string k_point = "\n\t<Vyr:ReflectancePoint Wavelength=";

const std::vector<s_case>& cases() {
    static const std::vector<s_case> all = {
        // What is empty, with an end tag of its own.
        {"TagValue", {"<Vyr:Tag></Vyr:Tag>" + k_text}},
        {"TagValue", {"<Vyr:Tag Name=\"a\">\n</Vyr:Tag>" + k_text, "<Vyr:Tag><Vyr:Category/></Vyr:Tag>" + k_text}},
        {"TagValue", {"<Vyr:Tag><Vyr:Category></Vyr:Category></Vyr:Tag>" + k_text}},
        {"ColorSpaceCIELab", {"<Vyr:CustomAttribute></Vyr:CustomAttribute>"}},
        // The name of a start tag is at hand for what has none.
        {"TagValue", {"<Vyr:Tag >text</Vyr:Tag>"}},
        {"TagValue", {"<Vyr:Tag\t \t><![CDATA[text]]></Vyr:Tag>"}},
        {"TagValue", {"<Vyr:Tag Name='a' \n >text</Vyr:Tag>", "<Vyr:Tag Name='a'\n\n>&e;</Vyr:Tag>"}},
        // What an earlier load left in a child is met by the next.
        {"ColorSpaceCIELab",
         {"<Vyr:ParentColorSpace xsi:nil=\"true\"/>" + k_lab_end, k_parent + k_lab_end, k_parent + k_lab_end}},
        {"DeviceSettings", {k_averaging, k_averaging}},
        // Declarations hold for their element only.
        {"TagValue", {"<Vyr:Tag xmlns:Vyr=\"u\"><Vyr:Category/></Vyr:Tag>" + k_text}},
        {"ColorSpaceCIELab",
         {"<q:ParentColorSpace xmlns:q=\"http://vyrgraph.com/v2\"/>" + k_lab_end,
          "<Vyr:ChangeHistory xmlns:Vyr=\"u\">2024-05-01T09:30:00Z</Vyr:ChangeHistory>" + k_lab_end,
          "<Vyr:ChangeHistory xmlns:Vyr=\"http://vyrgraph.com/v2\" xmlns:q='u'>2024-05-01T09:30:00Z"
          "</Vyr:ChangeHistory><q:x/>" +
              k_lab_end}},
        // Values at the border of what is plain.
        {"ColorSpaceCIELab",
         {k_change_history + k_nil + "<Vyr:L>5.</Vyr:L><Vyr:A>.5</Vyr:A><Vyr:B>-.5</Vyr:B>",
          k_change_history + k_nil + "<Vyr:L>-</Vyr:L><Vyr:A>.</Vyr:A><Vyr:B>-.</Vyr:B>",
          k_change_history + k_nil + "<Vyr:L>100.00000000000001</Vyr:L><Vyr:A>1e1</Vyr:A><Vyr:B>+1</Vyr:B>",
          k_change_history + k_nil + "<Vyr:L>-0</Vyr:L><Vyr:A>NaN</Vyr:A><Vyr:B> 1 </Vyr:B>",
          "<Vyr:ChangeHistory>9999-99-99T99:99:99Z</Vyr:ChangeHistory>"
          "<Vyr:ChangeHistory>-2024-05-01T09:30:00Z</Vyr:ChangeHistory>"
          "<Vyr:ChangeHistory>2024-05-01T09:30:00z</Vyr:ChangeHistory>"
          "<Vyr:ChangeHistory>2024-05-01T09:30:00</Vyr:ChangeHistory>"
          "<Vyr:ChangeHistory>2024-05-01T09:30:00+00:00</Vyr:ChangeHistory>" +
              k_nil + "<Vyr:L>1\n</Vyr:L><Vyr:A>1\r\n</Vyr:A><Vyr:B\n>1</Vyr:B\n>"}},
        // Where a name or a tag ends, and one plain element behind several that aren't.
        {"ColorSpaceCIELab",
         {k_change_history + k_nil + "<Vyr:L>1</Vyr:L ><Vyr:A>1</Vyr:A   ><Vyr:B>1</Vyr:B\t>",
          k_change_history + k_nil + "<Vyr:L>1</Vyr:L x><Vyr:A>1</Vyr:A/><Vyr:B>1</Vyr:B",
          k_change_history + k_nil + "<Vyr:L<Vyr:A>1</Vyr:A><Vyr:Bb>1</Vyr:Bb>",
          k_change_history + k_nil + "<Vyr:L\x01>1</Vyr:L><Vyr:",
          "<Vyr:ChangeHistory>&#50;024-05-01T09:30:00Z</Vyr:ChangeHistory><!-- -->" + k_nil +
              "<!-- --><Vyr:L>&#53;</Vyr:L><Vyr:A>&#53;</Vyr:A><Vyr:B>&#53;</Vyr:B><Vyr:Hue>&#53;</Vyr:Hue>" +
              k_text + k_lab_end}},
        // Entries that are alike but for their values, and one that isn't.
        {"ColorSpaceSpectral",
         {spectrum(k_point + "\"x\">1</Vyr:ReflectancePoint>"), spectrum(k_point + "\"5\">-1</Vyr:ReflectancePoint>"),
          spectrum(k_point + "\"5&#48;\">\n1\n</Vyr:ReflectancePoint>"),
          spectrum(k_point + "' 5\n'>1 </Vyr:ReflectancePoint>"),
          spectrum(k_point + "\"5\" >1</Vyr:ReflectancePoint >"),
          spectrum(k_point + "\"5\"\n>1</Vyr:ReflectancePoint\n>"),
          spectrum(k_point + "\"5\" Wavelength=\"6\">1</Vyr:ReflectancePoint>"), spectrum(k_point + "\"5\"/>"),
          spectrum(k_point + "\"5\">1</Vyr:Reflectance>"),
          spectrum("<!-- -->" + k_point + "\"5\">1<!-- --></Vyr:ReflectancePoint>\r\n\t"),
          spectrum("\n\t<Vyr:ReflectancePoint>1</Vyr:ReflectancePoint>x"), spectrum("\n\t<Vyr:ReflectancePoints/>"),
          spectrum("</Vyr:ColorSpaceSpectral>"), spectrum("")}},
        {"TagValue",
         {"<Vyr:Tag Name='\xC3\xA9\xE2\x80\xA8\n' UniqueID=\"<>'\"/>", "<Vyr:Tag Name='\xC3' UniqueID='\t'/>",
          "<Vyr:Tag Name='a' Name='b'/>", "<Vyr:Tag Name='a'UniqueID='b'><Vyr:Category/></Vyr:Tag>" + k_text}},
    };
    return all;
}

TEST(PlainWay, MakesNoDifferenceAtItsBorders) {
    for (const auto& [name, bodies] : cases()) {
        std::vector<std::string> texts;
        for (const std::string& body : bodies) {
            const std::string element = std::string("Vyr:") + name;
            texts.push_back(with_declarations("<" + element + ">\n" + body + "\n</" + element + ">"));
        }
        for (const e_answer answer : k_answers) agree(operations_of(name), texts, answer, {k_all, 512, 61, 7});
    }
}

TEST(PlainWay, MakesNoDifferenceToWholeDocuments) {
    for (const std::string& document : documents(1U << 20U)) {
        for (const e_answer answer : k_answers) agree(operations_of("Vyr"), {document, document}, answer, k_sizes);
    }
}

// clang-format off
const char* const k_pieces[] = {
    "<!-- c -->", "<?p x?>", "&amp;", "&#65;", "&e;", "&", "\r\n", "\r", "\n", "\t", " ", "  ", "<![CDATA[x]]>", "<", "</", "/>", ">", "'", "\"",
    "x", "Vyr:", "<Vyr:Color/>", "<b/>", " xmlns:q=\"u\"", "xmlns:Vyr=\"http://vyrgraph.com/v2\"", " xsi:nil=\"true\"", " Name=\"n\"", " UniqueID='u'",
    "0", "-1", "1e5", "NaN", "1.5", "2024-05-01T09:30:00+01:00", "2024-05-01T09:30:00", "\xC3\xA9", "\xE6\x97\xA5", "\xC2\x85", "\xC3", "\x01"};
// clang-format on

/// A document with a few faults, most of them at a tag or a quote.
std::string mutant(std::string text, std::mt19937& random) {
    const auto below = [&](std::size_t end) {
        return static_cast<std::size_t>(random()) % std::max<std::size_t>(end, 1);
    };
    for (std::size_t count = 1 + below(4); count > 0; --count) {
        const std::size_t at = below(text.size());
        const std::size_t line = std::min(text.rfind('\n', at) + 1, text.size());
        const std::size_t next = std::min(text.find('\n', at), text.size() - 1) + 1;
        const std::string copy = next > line ? text.substr(line, next - line) : std::string();
        switch (below(10)) {
            case 0:
                text[at] = static_cast<char>(' ' + static_cast<char>(below(95)));
                break;
            case 1:
                text.erase(at, 1 + below(3));
                break;
            case 2:
                text.insert(line, copy);
                break;
            case 3:
                text.erase(line, copy.size());
                break;
            case 4:
                text.erase(line, copy.size()).insert(std::min(text.find('\n', line), text.size()), "\n" + copy);
                break;
            default: {
                constexpr std::string_view marks[] = {"", ">", "\"", "<", "</"};
                const std::size_t mark = below(std::size(marks));
                const std::size_t found = std::min(text.find(marks[mark], at), text.size());
                const std::size_t behind = found < text.size() && (mark == 1 || mark == 2) ? 1 : 0;
                text.insert(found + behind, k_pieces[below(std::size(k_pieces))]);
            }
        }
        if (text.empty()) return text;
    }
    if (below(40) == 0) text.resize(below(text.size()));
    return text;
}

TEST(PlainWay, MakesNoDifferenceToMutants) {
    const std::vector<std::string> sources = documents(5000);
    std::mt19937 random(20260101);
    std::size_t differences = 0;
    for (std::size_t round = 0; round < 3000 && differences < 3; ++round) {
        const std::string text = mutant(sources[random() % sources.size()], random);
        std::vector<std::string> texts = {text};
        if (round % 4 == 0) texts.push_back(text);
        const bool is_same = agree(operations_of("Vyr"), texts, k_answers[round % std::size(k_answers)],
                                   {k_sizes[round / 3 % k_sizes.size()]});
        differences += is_same ? 0 : 1;
    }
}

}  // namespace
}  // namespace vyr_test
