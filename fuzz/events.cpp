// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Any bytes as XML, pulled event by event from the scanner and from the reader, with any calls between the events:
/// whether the source shows all its bytes, few or none must make no difference to what is seen.

#include <string>

#include "fuzz/support.h"
#include "lmx/reader/xml_reader.h"

namespace {

using namespace vyr_fuzz;
using lmx::c_xml_local;

constexpr lmx::elmx_whitespace k_modes[] = {lmx::ELMX_WS_PRESERVE, lmx::ELMX_WS_REPLACE, lmx::ELMX_WS_COLLAPSE};
constexpr int k_document_ns = 1;
constexpr lmx::s_event_map k_map[] = {{k_document_ns, "Color", 5, 20},
                                      {lmx::k_first_free_ns, "a", 1, 21},
                                      {k_document_ns, "a", 1, 22},
                                      {lmx::k_no_ns, "b", 1, 23},
                                      {0, nullptr, 0, 0}};
constexpr lmx::s_known_elements k_known[] = {{k_document_ns, "Palette", 7}, {lmx::k_no_ns, "c", 1}, {0, nullptr, 0}};

/// What each call gave, and where the scanner stood then.
class c_trace {
public:
    explicit c_trace(lmx::c_xml& xml) : m_xml(xml) {}
    template <class... Parts>
    void add(const Parts&... parts) {
        (append(parts), ...);
        append(m_xml.get_line_num());
        append(m_xml.get_text_line());
        append(m_xml.at_end_of_input());
        m_text += '\n';
    }
    std::string m_text;

private:
    void append(const std::string& part) { m_text += part + '|'; }
    void append(std::string_view part) { append(std::string(part)); }
    void append(const char* part) { append(std::string(part)); }
    void append(long long part) { append(std::to_string(part)); }

    lmx::c_xml& m_xml;
};

lmx::elmx_whitespace any_mode(c_script& script) { return k_modes[script.below(3)]; }

/// A document may give errors for ever without coming to its end, but it has no more events than bytes.
std::size_t most_steps(std::size_t size) { return size < 2000 ? size + 8 : 2000; }

void pull_attributes(lmx::c_xml& xml, c_script& script, c_trace& trace) {
    std::string name;
    std::string text;
    while (!script.once_in(8) && xml.get_attribute_name(&name, script.once_in(20)) == lmx::ELXP_NAME) {
        trace.add("attribute", name, xml.diagnose().attribute_line, xml.diagnose().attribute_value,
                  xml.find_raw_attribute_value("b"));
        if (script.once_in(4)) {
            xml.skip_attribute_value();
        } else {
            trace.add("value", xml.get_attribute_value(&text, any_mode(script)), text);
        }
    }
}

void pull_body(lmx::c_xml& xml, const std::string& element, c_script& script, c_trace& trace) {
    bool is_empty = false;
    std::string text;
    std::string name;
    switch (script.below(12)) {
        case 0:
        case 1:
            if (script.once_in(2)) xml.move_to_start_tag_end(&is_empty);
            trace.add("body", xml.get_element_value(&text, any_mode(script), !script.once_in(8)), text, is_empty);
            trace.add("closed", xml.is_element_end_tag(element));
            break;
        case 2:
            trace.add("start tag", xml.skip_start_tag(&is_empty), is_empty);
            break;
        case 3:
            trace.add("rest", xml.skip_rest_of_element(element));
            break;
        case 4:
            trace.add("any", xml.get_any_element(element, &text, any_mode(script), true), text);
            break;
        case 5:
            trace.add("nested", xml.get_nested_element_value(&text, &name, any_mode(script), true), text, name);
            break;
        case 6:
            trace.add("empty", xml.skip_rest_of_empty_element(element));
            break;
        case 7:
            trace.add("skipped", xml.skip_element_body(element));
            break;
        default:
            break;
    }
}

std::string run_scanner(lmx::c_read& source, std::size_t size, c_script script) {
    c_recorder reports;
    lmx::c_xml xml(source, reports, script.once_in(2));
    c_trace trace(xml);
    for (int pass = 0; pass < 2; ++pass) {
        c_xml_local scope;
        std::string name;
        std::string text;
        for (std::size_t steps = most_steps(size); steps > 0; --steps) {
            scope.clear();
            const int event = xml.get_element_name(script.once_in(4) ? nullptr : &scope, &name);
            trace.add("event", event, name, xml.get_event_line(), scope.find_namespace_id(""),
                      scope.find_namespace_id("Vyr"));
            if (event == lmx::ELXP_END_OF_INPUT) break;
            if (event != lmx::ELXP_NAME) continue;
            const std::string element = name;
            int ns_id = 0;
            if (script.once_in(6)) trace.add("named", xml.get_named_attribute(&scope, 0, "b", &text), text);
            if (script.once_in(6)) trace.add("type", xml.get_xsi_type(&scope, &ns_id, &text), ns_id, text);
            pull_attributes(xml, script, trace);
            pull_body(xml, element, script, trace);
            if (script.once_in(30)) {
                // A caller may read and give back characters of its own.
                const int first = xml.get();
                const int second = xml.get();
                xml.unget(second);
                xml.unget(first);
                trace.add("characters", first, second);
            }
        }
        trace.add("reports", reports.m_log);
        xml.rewind();
    }
    return trace.m_text;
}

class c_swallowing_reader : public lmx::c_xml_reader {
public:
    using c_xml_reader::c_xml_reader;
    using c_xml_reader::user_handle_error;
    lmx::elmx_error user_handle_error(lmx::elmx_error) override { return lmx::ELMX_OK; }
};

std::string run_reader(lmx::c_read& source, std::size_t size, c_script script) {
    c_swallowing_reader reader(source);
    c_trace trace(reader);
    reader.add_namespace("http://vyrgraph.com/v2", k_document_ns);
    const lmx::c_known_elements_selector known(reader, k_known);
    const auto told = [&] {
        return std::string(reader.diagnose().fault_text) + '@' + std::to_string(reader.diagnose().fault_line);
    };
    if (script.once_in(3)) {
        std::string ns;
        trace.add("instance", lmx::get_instance_namespace(reader, &ns), ns);
        trace.add("understood", lmx::has_must_understand(reader, "u", "b", lmx::bool_must_understand));
    }
    for (std::size_t steps = most_steps(size); steps > 0; --steps) {
        lmx::elmx_error error = lmx::ELMX_OK;
        const lmx::s_event_map* const map = script.once_in(3) ? nullptr : k_map;
        if (script.once_in(5)) {
            reader.get_known_element_event(k_map, &error, &reader.m_name);
        } else {
            reader.get_element_event(map, &error, &reader.m_name);
        }
        trace.add("event", reader.get_current_event(), reader.get_scanned_event(), error, reader.m_name, told());
        if (reader.at_end_of_input() && reader.get_current_event() == lmx::ELXP_END_OF_INPUT) break;
        if (!reader.is_current_event_tokenisable()) continue;
        const std::string name = reader.m_name;
        const lmx::c_xml_reader_local scope(reader);
        if (script.once_in(5)) {
            reader.tokenise(k_map, script.once_in(2) ? lmx::ELXP_ELEMENT : lmx::ELXP_ATTRIBUTE);
            trace.add("token", reader.get_current_event(), reader.get_ns_id(), reader.is_valid_qname(name),
                      reader.get_namespace(name, &reader.m_value));
        }
        while (!script.once_in(9) && reader.get_attribute_event(k_map, &error, &reader.m_attr_name)) {
            trace.add("attribute", reader.get_current_event(), error, reader.m_attr_name, reader.get_local_name());
            if (error != lmx::ELMX_OK && reader.at_end_of_input()) break;
            const bool is_read = reader.get_attribute_value(&reader.m_value, any_mode(script));
            trace.add("value", is_read, reader.m_value);
            if (!is_read) reader.skip_attribute_value();
        }
        bool is_empty = false;
        bool is_read = false;
        error = lmx::ELMX_OK;
        switch (script.below(5)) {
            case 0:
                is_read = reader.get_simple_type_value(name, any_mode(script), &reader.m_value, &error, &is_empty);
                trace.add("simple", is_read, reader.m_value, error, is_empty, told());
                break;
            case 1:
                is_read = reader.get_element_ur_value(name, &reader.m_value, &error, &is_empty);
                trace.add("any", is_read, reader.m_value, error, is_empty, told());
                break;
            default:
                break;
        }
    }
    return trace.m_text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzedDataProvider input(bytes, size);
    const c_script script = take_script(input);
    const std::size_t window = input.ConsumeIntegralInRange<std::size_t>(1, 12);
    const auto run = input.ConsumeBool() ? run_scanner : run_reader;
    const std::string text = input.ConsumeRemainingBytesAsString();
    c_windows single_bytes(text, 0);
    const std::string expected = run(single_bytes, text.size(), script);
    for (const std::size_t shown : {text.size() + 1, window}) {
        c_windows source(text, shown);
        require(run(source, text.size(), script) == expected, "windows make a difference");
    }
    return 0;
}
