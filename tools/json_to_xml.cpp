// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/json_to_xml.h"

#include <algorithm>
#include <utility>

#include "lmx/binding/unmarshal.h"
#include "schema/Vyr.h"
#include "tools/text.h"
#include "tools/tree.h"
#include "tools/typed_reader.h"

namespace vyr_tool {

namespace {

using lmx::s_class;
using lmx::value_kind;

constexpr char k_boolean_expected[] = "true or false is expected";

/// With references for all that layout or an attribute's value would change, so that a value stays on its line.
std::string escaped(std::string_view text) {
    std::string out;
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
    return out;
}

bool is_number_kind(value_kind kind) {
    return kind == value_kind::number || kind == value_kind::int32 || kind == value_kind::uint32 ||
           kind == value_kind::uint8;
}

bool is_one_element(const std::string& markup) {
    using event = c_typed_reader::event;
    if (!markup.starts_with('<')) return false;
    lmx::c_read_string source(markup);
    c_typed_reader reader(source, false);
    for (;;) {
        const event found = reader.next();
        if (found == event::done || found == event::broken) return found == event::done;
    }
}

std::string names_of(const c_members& members) {
    std::string names;
    std::string_view last;
    for (const s_member& member : members.all()) {
        if (member.key == last) continue;
        last = member.key;
        names += (names.empty() ? "it may be " : ", ") + std::string(member.key);
    }
    return names.empty() ? "nothing is expected" : names;
}

std::string step_of(const s_member& member, const json& value, std::size_t number) {
    std::string step(local_name(member.name));
    if (value.is_object() && member.item->type != nullptr) {
        const s_member* const title = c_members::of(*member.item->type).title();
        const auto found = title == nullptr ? value.end() : value.find(std::string(title->key));
        if (found != value.end() && found->is_string()) {
            return step + " " + in_quotes(found->get_ref<const std::string&>());
        }
    }
    return number == 0 ? step : step + "[" + std::to_string(number) + "]";
}

}  // namespace

void c_json_to_xml::print_document(const json& object) {
    m_xml.append(
        "<Vyr:Vyr xmlns:Vyr=\"http://vyrgraph.com/v2\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"");
    print_object(object, com_vyrgraph_v2::Vyr::k_class, nullptr, "Vyr:Vyr");
}

void c_json_to_xml::print_entry(const s_class& type, const s_member& list, const json& entry, s_entries& entries) {
    std::swap(m_xml, entries.text);
    std::swap(m_faults, entries.faults);
    std::vector<s_part> parts;
    add_entry(c_members::of(type), list, entry, ++entries.count, parts);
    for (const s_part& part : parts) print_part(part);
    std::swap(m_xml, entries.text);
    std::swap(m_faults, entries.faults);
}

json c_json_to_xml::placeholder(s_entries&& entries) {
    m_entries.emplace(m_next_entries, std::move(entries));
    return json::binary({}, m_next_entries++);
}

void c_json_to_xml::print_entries(std::size_t number) {
    const auto node = m_entries.extract(number);
    s_entries& entries = node.mapped();
    m_xml.append(std::move(entries.text));
    const std::string above = path();
    for (s_json_fault& found : entries.faults) {
        found.path = found.path.empty() ? above : join(above, found.path);
        m_faults.push_back(std::move(found));
    }
}

void c_json_to_xml::print_part(const s_part& part) {
    if (part.value->is_binary()) return print_entries(static_cast<std::size_t>(part.value->get_binary().subtype()));
    m_path.push_back(step_of(*part.member, *part.value, part.number));
    print_value(*part.value, *part.member);
    m_path.pop_back();
}

std::string c_json_to_xml::path() const {
    std::string path;
    for (const std::string& step : m_path) path = join(path, step);
    return path;
}

void c_json_to_xml::fault(const json& place, const std::string& text) {
    m_faults.push_back({path(), text, m_form.has_places ? &place : nullptr});
}

void c_json_to_xml::end_line(const json& place) {
    m_xml.append("\n");
    if (m_form.has_places) m_places.push_back(&place);
}

/// The text of a simple value, checked for its JSON kind alone: all else is the load's business.
std::string c_json_to_xml::text_of(const json& value, value_kind kind) {
    const bool is_number = is_number_kind(kind);
    const bool is_boolean = kind == value_kind::boolean;
    if (value.is_string()) {
        const std::string& text = value.get_ref<const std::string&>();
        const bool is_odd_number = kind == value_kind::number && (text == "NaN" || text == "INF" || text == "-INF");
        if (is_number && !is_odd_number && !m_form.has_texts_only) fault(value, "a number is expected, not a text");
        if (is_boolean && !m_form.has_texts_only) fault(value, k_boolean_expected);
        return text;
    }
    if ((is_number && value.is_number()) || (is_boolean && value.is_boolean())) return value.dump();
    fault(value, is_number ? "a number is expected" : is_boolean ? k_boolean_expected : "a text is expected");
    return {};
}

void c_json_to_xml::print_value(const json& value, const s_member& member) {
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
        m_xml.append(markup);
        if (m_form.has_places)
            m_places.insert(m_places.end(), static_cast<std::size_t>(std::ranges::count(markup, '\n')), &value);
        end_line(value);
    } else {
        m_xml.append("<").append(member.name).append(">");
        m_xml.append(escaped(text_of(value, item.value))).append("</").append(member.name).append(">");
        end_line(value);
    }
}

/// Sorts an object's members into the schema's order, arrays laid open.
std::vector<c_json_to_xml::s_part> c_json_to_xml::parts_of(const json& object, const s_class& type) {
    const c_members& members = c_members::of(type);
    std::vector<s_part> parts;
    for (const auto& [key, value] : object.items()) {
        if (key == k_type_key || key == k_nil_key) continue;
        const s_member* const member = members.by_key(key);
        if (member == nullptr) {
            fault(object, "there is no " + in_quotes(key) + " here; " + names_of(members));
            continue;
        }
        if (!member->is_list() || value.is_binary()) {
            parts.push_back({member, &value, 0});
            continue;
        }
        if (!value.is_array()) {
            fault(value, in_quotes(key) + " must be an array");
            continue;
        }
        for (std::size_t i = 0; i < value.size(); ++i)
            add_entry(members, *member, value[i], value.size() == 1 ? 0 : i + 1, parts);
    }
    add_missing(members, parts);
    std::ranges::stable_sort(parts, {}, [](const s_part& part) { return part.member->order; });
    return parts;
}

void c_json_to_xml::add_entry(const c_members& members, const s_member& list, const json& entry, std::size_t number,
                              std::vector<s_part>& parts) {
    if (!list.is_group_list()) return parts.push_back({&list, &entry, number});
    const s_member* const member =
        entry.is_object() && entry.size() == 1 ? members.element(entry.begin().key()) : nullptr;
    if (member != nullptr && member->holder == list.holder) return parts.push_back({member, &entry.front(), number});
    fault(entry, "entry " + std::to_string(std::max<std::size_t>(number, 1)) + " of " + in_quotes(list.key) +
                     " must be an object of one member, which is called as an element of this group");
}

void c_json_to_xml::add_missing(const c_members& members, std::vector<s_part>& parts) {
    static const json nothing;
    for (const s_member& member : members.all()) {
        const bool is_there =
            std::ranges::any_of(parts, [&](const s_part& part) { return part.member->holder == member.holder; });
        // What is written may be absent to a reader and still not to the writer.
        if (is_there || (member.item->use & (lmx::use_demanded | lmx::use_written)) == 0) continue;
        const s_class* const type = member.item->type;
        if (m_form.is_nil_where_missing && type != nullptr && type->nil_flag != lmx::k_no_flag) {
            parts.push_back({&member, &nothing, 0});
        } else if (!m_form.history.empty() && member.key == "ChangeHistory") {
            m_history = m_form.history;
            parts.push_back({&member, &m_history, 0});
        }
    }
}

/// Whatever follows the name in the start tag, the content and the end tag.
void c_json_to_xml::print_object(const json& given, const s_class& declared, const lmx::s_item* place,
                                 std::string_view name) {
    const s_class* type = &declared;
    json wrapped;
    const json* object = &given;
    if (given.is_null()) {
        wrapped = json{{std::string(k_nil_key), true}};
        object = &wrapped;
    } else if (!given.is_object()) {
        if (!c_members::of(declared).is_content_only()) {
            fault(given, "an object is expected");
            m_xml.append("/>");
            return end_line(given);
        }
        m_xml.append(">").append(escaped(text_of(given, c_members::of(declared).content()->item->value)));
        m_xml.append("</").append(name).append(">");
        return end_line(given);
    }
    if (const auto found = object->find(std::string(k_type_key)); found != object->end()) {
        const s_class* other = nullptr;
        if (found->is_string() && place != nullptr) other = specialised(*place, found->get_ref<const std::string&>());
        if (other == nullptr) {
            fault(*found, "no type that may stand here");
        } else {
            type = other;
            m_xml.append(" xsi:type=\"Vyr:" + found->get<std::string>() + '"');
        }
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
        m_xml.append(escaped(text_of(*part.value, part.member->item->value))).append("\"");
        m_path.pop_back();
    }
    if (is_nil) {
        m_xml.append(" xsi:nil=\"true\"/>");
        return end_line(given);
    }
    m_xml.append(">");
    if (content != nullptr) {
        m_xml.append(escaped(text_of(*content->value, content->member->item->value)));
    } else if (type->content != lmx::content_kind::simple) {
        end_line(given);
        for (const s_part& part : parts) {
            if (!part.member->is_attribute()) print_part(part);
        }
    }
    m_xml.append("</").append(name).append(">");
    end_line(given);
}

}  // namespace vyr_tool
