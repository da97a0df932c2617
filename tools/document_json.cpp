// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/document_json.h"

#include <algorithm>
#include <functional>
#include <iostream>
#include <set>
#include <utility>

#include "document/report.h"
#include "lmx/binding/unmarshal.h"
#include "tools/files.h"
#include "tools/text.h"
#include "tools/tree.h"
#include "tools/typed_reader.h"

namespace vyr_tool {

namespace {

using lmx::s_class;
using lmx::value_kind;

/// With references for all that layout or an attribute's value would change, so that a value stays on its line.
void append_escaped(std::string& out, std::string_view text) {
    for (const char c : text) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            case '\t':
            case '\n':
            case '\r':
                out += "&#" + std::to_string(static_cast<int>(c)) + ";";
                break;
            default:
                out += c;
        }
    }
}

bool is_number_kind(value_kind kind) {
    return kind == value_kind::number || kind == value_kind::int32 || kind == value_kind::uint32 ||
           kind == value_kind::uint8;
}

bool is_one_element(const std::string& markup) {
    using event = c_typed_reader::event;
    if (!markup.starts_with('<')) return false;
    c_typed_reader reader(markup, false);
    for (;;) {
        const event found = reader.next();
        if (found == event::done || found == event::broken) return found == event::done;
    }
}

/// Prints the XML text of an object, a line for each element, and notes what value each line stands for.
class c_printer {
public:
    explicit c_printer(const s_json_form& form) : m_form(form) {}

    void print_document(const json& object) {
        m_xml =
            "<Vyr:Vyr xmlns:Vyr=\"http://vyrgraph.com/v2\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";
        print_object(object, com_vyrgraph_v2::Vyr::k_class, nullptr, "Vyr:Vyr");
    }

    std::string m_xml;
    std::vector<const json*> m_places;  ///< by line
    std::vector<s_json_fault> m_faults;

private:
    /// A member of an object, in the order of the schema.
    struct s_part {
        const s_member* member;
        const json* value;
        std::size_t number;  ///< in an array, from 1; 0: in none, or alone in it
    };

    void fault(const json& place, const std::string& text) {
        std::string path;
        for (const std::string& step : m_path) path = join(path, step);
        m_faults.push_back({path, text, &place});
    }

    void end_line(const json& place) {
        m_xml += '\n';
        m_places.push_back(&place);
    }

    /// The text of a simple value, checked for its JSON kind alone: all else is the load's business.
    std::string text_of(const json& value, value_kind kind) {
        if (value.is_string()) {
            const std::string& text = value.get_ref<const std::string&>();
            const bool is_odd_number = text == "NaN" || text == "INF" || text == "-INF";
            if (is_number_kind(kind) && !m_form.has_texts_only && !(kind == value_kind::number && is_odd_number))
                fault(value, "a number is expected, not a text");
            if (kind == value_kind::boolean && !m_form.has_texts_only) fault(value, "true or false is expected");
            return text;
        }
        const char* expected = nullptr;
        if (is_number_kind(kind)) {
            if (!value.is_number()) expected = "a number is expected";
        } else if (kind == value_kind::boolean) {
            if (!value.is_boolean()) expected = "true or false is expected";
        } else {
            expected = "a text is expected";
        }
        if (expected == nullptr) return value.dump();
        fault(value, expected);
        return {};
    }

    void print_value(const json& value, const s_member& member) {
        if (m_path.size() > lmx::k_maximum_nesting) return fault(value, "nested too deeply");
        const lmx::s_item& item = *member.item;
        if (item.type != nullptr) {
            m_xml.append("<").append(member.name);
            print_object(value, *item.type, &item, member.name);
        } else if (member.is_marker()) {
            if (value != true) fault(value, "true is expected");
            m_xml.append("<").append(member.name).append("/>");
            end_line(value);
        } else if (member.is_any()) {
            if (!value.is_string() || !is_one_element(value.get_ref<const std::string&>())) {
                fault(value, "a text is expected that is one element of XML");
                return;
            }
            const std::string& markup = value.get_ref<const std::string&>();
            m_xml += markup;
            m_places.insert(m_places.end(), static_cast<std::size_t>(std::ranges::count(markup, '\n')), &value);
            end_line(value);
        } else {
            m_xml.append("<").append(member.name).append(">");
            append_escaped(m_xml, text_of(value, item.value));
            m_xml.append("</").append(member.name).append(">");
            end_line(value);
        }
    }

    /// Sorts an object's members into the schema's order, arrays laid open.
    std::vector<s_part> parts_of(const json& object, const s_class& type) {
        const c_members& members = c_members::of(type);
        std::vector<s_part> parts;
        for (const auto& [key, value] : object.items()) {
            if (key == k_type_key || key == k_nil_key) continue;
            const s_member* const member = members.by_key(key);
            if (member == nullptr) {
                fault(object, "there is no " + vyr_tool::quoted(key) + " here; " + names_of(members));
                continue;
            }
            if (!member->is_list()) {
                parts.push_back({member, &value, 0});
                continue;
            }
            if (!value.is_array()) {
                fault(value, vyr_tool::quoted(key) + " must be an array");
                continue;
            }
            for (std::size_t i = 0; i < value.size(); ++i)
                add_entry(members, *member, value[i], i + 1, value.size(), parts);
        }
        add_missing(members, parts);
        std::ranges::stable_sort(parts, {}, [](const s_part& part) { return part.member->order; });
        return parts;
    }

    void add_entry(const c_members& members, const s_member& list, const json& entry, std::size_t number,
                   std::size_t count, std::vector<s_part>& parts) {
        if (count == 1) number = 0;
        if (!list.is_group_list()) return parts.push_back({&list, &entry, number});
        const s_member* const member =
            entry.is_object() && entry.size() == 1 ? members.element(entry.begin().key()) : nullptr;
        if (member != nullptr && member->holder == list.holder)
            return parts.push_back({member, &entry.front(), number});
        fault(entry, "entry " + std::to_string(number) + " of " + vyr_tool::quoted(list.key) +
                         " must be an object of one member, which is called as an element of this group");
    }

    void add_missing(const c_members& members, std::vector<s_part>& parts) {
        static const json nothing;
        for (const s_member& member : members.all()) {
            const bool is_there =
                std::ranges::any_of(parts, [&](const s_part& part) { return part.member->holder == member.holder; });
            if (is_there || (member.item->use & lmx::use_demanded) == 0) continue;
            const s_class* const type = member.item->type;
            if (m_form.is_nil_where_missing && type != nullptr && type->nil_flag != lmx::k_no_flag) {
                parts.push_back({&member, &nothing, 0});
            } else if (!m_form.history.empty() && member.key == "ChangeHistory") {
                m_history = m_form.history;
                parts.push_back({&member, &m_history, 0});
            }
        }
    }

    static std::string names_of(const c_members& members) {
        std::string names;
        std::string_view last;
        for (const s_member& member : members.all()) {
            if (member.key == last) continue;
            last = member.key;
            names += (names.empty() ? "it may be " : ", ") + std::string(member.key);
        }
        return names.empty() ? "nothing is expected" : names;
    }

    std::string step_of(const s_part& part) {
        std::string step(local_name(part.member->name));
        if (part.value->is_object() && part.member->item->type != nullptr) {
            const s_member* const title = c_members::of(*part.member->item->type).title();
            const auto found = title == nullptr ? part.value->end() : part.value->find(std::string(title->key));
            if (found != part.value->end() && found->is_string()) {
                return step + " " + vyr_tool::quoted(found->get_ref<const std::string&>());
            }
        }
        return part.number == 0 ? step : step + "[" + std::to_string(part.number) + "]";
    }

    /// Whatever follows the name in the start tag, the content and the end tag.
    void print_object(const json& given, const s_class& declared, const lmx::s_item* place, std::string_view name) {
        const s_class* type = &declared;
        json wrapped;
        const json* object = &given;
        if (given.is_null()) {
            wrapped = json{{std::string(k_nil_key), true}};
            object = &wrapped;
        } else if (!given.is_object()) {
            if (!c_members::of(declared).is_content_only()) {
                fault(given, "an object is expected");
                m_xml += "/>";
                return end_line(given);
            }
            m_xml += '>';
            append_escaped(m_xml, text_of(given, c_members::of(declared).content()->item->value));
            m_xml.append("</").append(name).append(">");
            return end_line(given);
        }
        if (const auto found = object->find(std::string(k_type_key)); found != object->end()) {
            const s_class* other = nullptr;
            if (found->is_string() && place != nullptr)
                other = specialised(*place, found->get_ref<const std::string&>());
            if (other == nullptr) fault(*found, "no type that may stand here");
            if (other != nullptr) type = other;
            if (other != nullptr) m_xml += " xsi:type=\"Vyr:" + found->get<std::string>() + '"';
        }
        const auto nil = object->find(std::string(k_nil_key));
        const bool is_nil = nil != object->end() && *nil == true;
        const std::vector<s_part> parts =
            is_nil && object->size() == 1 ? std::vector<s_part>() : parts_of(*object, *type);
        const s_part* content = nullptr;
        for (const s_part& part : parts) {
            if (part.member == c_members::of(*type).content()) content = &part;
            if (!part.member->is_attribute()) continue;
            m_xml.append(" ").append(part.member->name).append("=\"");
            m_path.emplace_back(part.member->name);
            append_escaped(m_xml, text_of(*part.value, part.member->item->value));
            m_path.pop_back();
            m_xml += '"';
        }
        if (is_nil) {
            m_xml += " xsi:nil=\"true\"/>";
            return end_line(given);
        }
        m_xml += '>';
        if (content != nullptr) {
            append_escaped(m_xml, text_of(*content->value, content->member->item->value));
        } else if (type->content != lmx::content_kind::simple) {
            end_line(given);
            for (const s_part& part : parts) {
                if (part.member->is_attribute()) continue;
                m_path.push_back(step_of(part));
                print_value(*part.value, *part.member);
                m_path.pop_back();
            }
        }
        m_xml.append("</").append(name).append(">");
        end_line(given);
    }

    const s_json_form& m_form;
    std::vector<std::string> m_path;
    json m_history;
};

/// A member that is given twice would be lost without a word.
class c_repetitions {
public:
    bool operator()(int, json::parse_event_t event, json& parsed) {
        if (event == json::parse_event_t::object_start) m_open.emplace_back();
        if (event == json::parse_event_t::object_end) m_open.pop_back();
        if (event == json::parse_event_t::key && !m_open.back().insert(parsed.get<std::string>()).second) {
            if (m_found.empty()) m_found = parsed.get<std::string>();
        }
        return true;
    }
    const std::string& found() const { return m_found; }

private:
    std::vector<std::set<std::string>> m_open;
    std::string m_found;
};

/// Returns what is wrong with the text, or nothing.
std::string parse_json(const std::string& text, json& object) {
    c_repetitions repetitions;
    try {
        object = json::parse(text, std::ref(repetitions));
    } catch (const json::parse_error& error) {
        // The library's own number of the error comes first, in brackets.
        const std::string_view what = error.what();
        return printable(what.substr(std::min(what.size(), what.find("] ") + 2)));
    }
    if (!repetitions.found().empty())
        return "the member " + vyr_tool::quoted(repetitions.found()) + " is given twice in an object";
    return {};
}

}  // namespace

std::vector<s_json_fault> read_json(const json& object, com_vyrgraph_v2::Vyr& document, const s_json_form& form,
                                    std::size_t limit) {
    c_printer printer(form);
    printer.print_document(object);
    if (!printer.m_faults.empty()) return std::move(printer.m_faults);
    com_vyrgraph_v2::ReportOptions options;
    options.collect = true;
    options.limit = limit;
    const com_vyrgraph_v2::DocumentReport report =
        com_vyrgraph_v2::loadMemoryWithReport(document, printer.m_xml.data(), printer.m_xml.size(), options);
    std::vector<s_json_fault> faults;
    for (com_vyrgraph_v2::DocumentFault fault : report.getFaults()) {
        const auto line = static_cast<std::size_t>(std::max(fault.line, 0));
        const json* const place = line == 0 || line > printer.m_places.size() ? nullptr : printer.m_places[line - 1];
        std::string path = std::exchange(fault.path, {});
        fault.line = 0;
        faults.push_back({std::move(path), com_vyrgraph_v2::formatFault(fault), place});
    }
    return faults;
}

exit_code read_any_form(const std::string& file, com_vyrgraph_v2::Vyr& document, const text_taker& take_text) {
    const bool is_pipe = file == k_standard_stream;
    if (!is_pipe && !file.ends_with(".json")) return read_or_explain(file, document, nullptr, take_text);
    std::string bytes;
    if (const std::string refusal = read_file(file, bytes); !refusal.empty()) {
        complain(file, refusal);
        return exit_usage_or_file;
    }
    const std::size_t first = bytes.find_first_not_of(" \t\r\n");
    if (is_pipe && (first == bytes.npos || bytes[first] != '{'))
        return explain(file, read_document_bytes(bytes, document, take_text));
    json object;
    if (const std::string fault = parse_json(bytes, object); !fault.empty()) {
        std::cerr << shown_name(file) << ": " << fault << '\n';
        return exit_document_fails;
    }
    bytes = std::string();
    const std::vector<s_json_fault> faults = read_json(object, document);
    for (const s_json_fault& fault : faults) {
        std::cerr << shown_name(file) << ": " << (fault.path.empty() ? "" : fault.path + ": ") << fault.text << '\n';
    }
    return faults.empty() ? exit_ok : exit_document_fails;
}

}  // namespace vyr_tool
