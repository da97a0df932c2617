// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/typed_json.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <utility>

#include "tools/text.h"
#include "tools/typed_reader.h"

namespace vyr_tool {

namespace {

using index = c_tree::index;
using lmx::value_kind;

/// Up to here a double holds every whole number.
constexpr double k_highest_exact = 9007199254740992;

/// An attribute, as far as it is the format's, or what the element says of itself.
void add_attribute(json& object, std::string_view name, std::string_view value, value_kind kind) {
    if (name == k_nil_key) {
        object[std::string(name)] = true;
    } else if (name == k_type_key) {
        object[std::string(name)] = json_string(local_name(value));
    } else if (!name.empty() && kind != value_kind::none) {
        object[std::string(name)] = typed_value(value, kind);
    }
}

void add_attributes(const c_tree& tree, index node, json& object) {
    for (std::size_t i = 0; i < tree.field_count(node); ++i) {
        const c_tree::field field = tree.get_field(node, i);
        add_attribute(object, field.name, field.value, field.kind);
    }
}

/// The name under which a child stands in its parent's object.
std::string key_of(const c_tree& tree, index child) {
    const s_member* const member = tree.member(child);
    return std::string(member == nullptr ? tree.name(child) : member->key);
}

bool is_list(const c_tree& tree, index child) {
    return tree.member(child) != nullptr && tree.member(child)->is_list();
}

bool is_named_entry(const c_tree& tree, index child) {
    return tree.member(child) != nullptr && tree.member(child)->is_group_list();
}

/// The content of an element whose attributes and children may not be.
json content_of(const c_tree& tree, index node) {
    const s_member* const content = c_members::of(*tree.type(node)).content();
    return typed_value(tree.value(node), content->item->value);
}

/// Prints a document as it goes by.
class c_printer {
public:
    c_printer(lmx::c_read& source, std::ostream& out) : m_reader(source, true), m_out(out) {}

    /// False for what the library did not write.
    bool print_document() {
        if (m_reader.next() != event::begin) return false;
        m_is_whole = true;
        print_element(0);
        return m_is_whole && m_reader.next() == event::done;
    }

private:
    using event = c_typed_reader::event;

    /// From behind the start of an element to its end.
    void print_element(std::size_t depth) {
        const s_member* const member = m_reader.member();
        const lmx::s_class* type = m_reader.type();
        json object = json::object();
        event found = m_reader.next();
        for (; found == event::attribute; found = m_reader.next()) {
            type = m_reader.type();
            add_attribute(object, m_reader.name(), m_reader.value(),
                          m_reader.member() == nullptr ? value_kind::none : m_reader.member()->item->value);
        }
        std::string text;
        if (found == event::text) {
            text = m_reader.value();
            found = m_reader.next();
        }
        const c_members* const members = type == nullptr ? nullptr : &c_members::of(*type);
        const bool is_nil = object.contains(k_nil_key);
        if (members == nullptr) {
            object = member != nullptr && member->is_marker()
                         ? json(true)
                         : typed_value(text, kind_of(member == nullptr ? nullptr : member->item));
        } else if (members->is_content_only()) {
            object = is_nil ? json() : typed_value(text, members->content()->item->value);
        } else if (is_nil && object.size() == 1) {
            object = {};
        } else if (members->content() != nullptr && !is_nil) {
            object[std::string(k_content_key)] = typed_value(text, members->content()->item->value);
        }
        if (!object.is_object()) {
            m_out << to_text(object);
            m_is_whole = m_is_whole && found == event::end;
            return;
        }
        m_out << '{';
        const char* separator = "\n";
        for (const auto& [key, value] : object.items()) {
            start_member(std::exchange(separator, ",\n"), depth + 1, key);
            m_out << to_text(value);
        }
        print_children(found, depth + 1, separator);
        if (*separator == ',') m_out << '\n' << indent(depth);
        m_out << '}';
    }

    /// Up to the end of the element that is open.
    void print_children(event found, std::size_t depth, const char*& separator) {
        std::string_view list;
        for (; m_is_whole && found != event::end; found = m_reader.next()) {
            if (found == event::text) continue;
            const s_member* const member = m_reader.member();
            m_is_whole = (found == event::begin || found == event::markup) && member != nullptr;
            if (!m_is_whole) return;
            if (!list.empty() && list == member->key) {
                m_out << ",\n" << indent(depth + 1);
            } else {
                if (!list.empty()) end_list(depth);
                start_member(std::exchange(separator, ",\n"), depth, member->key);
                list = member->is_list() ? member->key : std::string_view();
                if (!list.empty()) m_out << "[\n" << indent(depth + 1);
            }
            const std::size_t own_depth = list.empty() ? depth : depth + 1;
            if (found == event::markup) {
                m_out << to_text(json_string(m_reader.value()));
            } else if (member->is_group_list()) {
                start_member("{\n", own_depth + 1, local_name(member->name));
                print_element(own_depth + 1);
                m_out << '\n' << indent(own_depth) << '}';
            } else {
                print_element(own_depth);
            }
        }
        if (!list.empty()) end_list(depth);
    }

    static std::string indent(std::size_t depth) { return std::string(2 * depth, ' '); }
    void end_list(std::size_t depth) { m_out << '\n' << indent(depth) << ']'; }
    /// Names of the format need no escapes.
    void start_member(const char* separator, std::size_t depth, std::string_view key) {
        m_out << separator << indent(depth) << '"' << key << "\": ";
    }

    c_typed_reader m_reader;
    std::ostream& m_out;
    bool m_is_whole = false;
};

}  // namespace

json typed_value(std::string_view text, value_kind kind) {
    double number = 0;
    std::int64_t integer = 0;
    switch (kind) {
        case value_kind::boolean:
            return text == "true" || text == "1";
        case value_kind::number:
            if (!read_number(text, number) || !std::isfinite(number)) break;
            // A whole number is written as one.
            integer = std::abs(number) < k_highest_exact ? static_cast<std::int64_t>(number) : 0;
            if (static_cast<double>(integer) == number && std::signbit(number) == (integer < 0)) return integer;
            return number;
        case value_kind::int32:
        case value_kind::uint32:
        case value_kind::uint8:
            if (read_number(text, integer)) return integer;
            break;
        default:
            break;
    }
    return json_string(text);
}

json typed_json(const c_tree& tree, index node, const node_filter& takes) {
    if (tree.type(node) == nullptr) {
        if (tree.member(node) != nullptr && tree.member(node)->is_marker()) return true;
        return typed_value(tree.value(node),
                           tree.member(node) == nullptr ? value_kind::text : tree.member(node)->item->value);
    }
    const c_members& members = c_members::of(*tree.type(node));
    const bool is_nil = tree.is_nil(node);
    if (members.is_content_only()) return is_nil ? json() : content_of(tree, node);
    json object = json::object();
    add_attributes(tree, node, object);
    if (is_nil && object.size() == 1) return {};
    if (members.content() != nullptr && !is_nil) object[std::string(k_content_key)] = content_of(tree, node);
    for (index i = node + 1; i < tree.end(node); i = tree.end(i)) {
        if (takes && !takes(i)) continue;
        json value = typed_json(tree, i);
        if (is_named_entry(tree, i)) value = json{{std::string(tree.name(i)), std::move(value)}};
        json& place = object[key_of(tree, i)];
        if (is_list(tree, i)) {
            place.push_back(std::move(value));
        } else {
            place = std::move(value);
        }
    }
    return object;
}

lmx::elmx_error print_typed_json(lmx::c_read& source, std::ostream& out) {
    if (!c_printer(source, out).print_document()) return lmx::ELMX_NOT_WELL_FORMED;
    out << '\n';
    return lmx::ELMX_OK;
}

}  // namespace vyr_tool
