// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/typed_json.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>

namespace vyr_tool {

namespace {

using index = c_tree::index;
using lmx::value_kind;

/// Up to here a double holds every whole number.
constexpr double k_highest_exact = 9007199254740992;

/// The library prints numbers in a form that this reads to the end.
template <class Number>
bool read_number(std::string_view text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

/// The attributes, as far as they are the format's, and what the element says of itself.
void add_attributes(const c_tree& tree, index node, json& object) {
    for (std::size_t i = 0; i < tree.field_count(node); ++i) {
        const c_tree::field field = tree.get_field(node, i);
        if (field.name == k_nil_key) {
            object[std::string(k_nil_key)] = true;
        } else if (field.name == k_type_key) {
            object[std::string(k_type_key)] = json_string(local_name(field.value));
        } else if (!field.name.empty() && field.kind != value_kind::none) {
            object[std::string(field.name)] = typed_value(field.value, field.kind);
        }
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

bool is_simple(const c_tree& tree, index node) {
    return tree.type(node) == nullptr || c_members::of(*tree.type(node)).is_content_only();
}

class c_printer {
public:
    c_printer(const c_tree& tree, std::ostream& out) : m_tree(tree), m_out(out) {}

    void print(index node, std::size_t depth) {
        constexpr index k_small = 1000;
        if (m_tree.end(node) - node < k_small || is_simple(m_tree, node)) {
            print_small(typed_json(m_tree, node), depth);
            return;
        }
        json attributes = json::object();
        add_attributes(m_tree, node, attributes);
        m_out << '{';
        const char* separator = "\n";
        for (const auto& [key, value] : attributes.items()) {
            start_member(std::exchange(separator, ",\n"), depth + 1, key);
            m_out << to_text(value);
        }
        for (index i = node + 1; i < m_tree.end(node);) {
            start_member(std::exchange(separator, ",\n"), depth + 1, key_of(m_tree, i));
            if (!is_list(m_tree, i)) {
                print(i, depth + 1);
                i = m_tree.end(i);
                continue;
            }
            const std::string_view key = m_tree.member(i)->key;
            const char* comma = "[\n";
            for (; i < m_tree.end(node) && m_tree.member(i) != nullptr && m_tree.member(i)->key == key;
                 i = m_tree.end(i)) {
                m_out << std::exchange(comma, ",\n") << indent(depth + 2);
                print_entry(i, depth + 2);
            }
            m_out << '\n' << indent(depth + 1) << ']';
        }
        m_out << '\n' << indent(depth) << '}';
    }

private:
    static std::string indent(std::size_t depth) { return std::string(2 * depth, ' '); }

    void start_member(const char* separator, std::size_t depth, const std::string& key) {
        m_out << separator << indent(depth) << to_text(json(key)) << ": ";
    }

    void print_entry(index node, std::size_t depth) {
        if (!is_named_entry(m_tree, node)) return print(node, depth);
        m_out << "{\n" << indent(depth + 1) << to_text(json(std::string(m_tree.name(node)))) << ": ";
        print(node, depth + 1);
        m_out << '\n' << indent(depth) << '}';
    }

    /// Strings hold no line end, so that all of them are of the layout.
    void print_small(const json& value, std::size_t depth) {
        const std::string text = to_text(value);
        std::size_t begin = 0;
        for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', begin)) {
            m_out << std::string_view(text).substr(begin, end + 1 - begin) << indent(depth);
            begin = end + 1;
        }
        m_out << std::string_view(text).substr(begin);
    }

    const c_tree& m_tree;
    std::ostream& m_out;
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

void print_typed_json(const c_tree& tree, index node, std::ostream& out) {
    c_printer(tree, out).print(node, 0);
    out << '\n';
}

}  // namespace vyr_tool
