// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/tree.h"

#include <algorithm>
#include <limits>
#include <map>
#include <utility>

#include "tools/text.h"
#include "tools/typed_reader.h"

namespace vyr_tool {

namespace {

constexpr std::string_view k_name = "Name";
constexpr std::string_view k_blanks = " \t\r\n";

std::uint64_t mix(std::uint64_t hash, std::uint64_t more) {
    hash = (hash ^ more) * 0x9E3779B97F4A7C15U;
    return hash ^ (hash >> 32U);
}

bool is_blank(const std::string& text) { return text.find_first_not_of(k_blanks) == std::string::npos; }

}  // namespace

std::uint32_t c_tree::number_of(const std::string& qualified_name, const s_member* member, const lmx::s_class* type) {
    const auto next = static_cast<std::uint32_t>(m_names.size());
    if (member != nullptr) {
        const auto [found, is_new] = m_known.try_emplace({member, type}, next);
        if (!is_new) return found->second;
        const s_member* const content = type == nullptr ? nullptr : c_members::of(*type).content();
        const lmx::value_kind kind = (content == nullptr ? member : content)->item->value;
        m_names.push_back({local_name(member->name), member, type, kind});
        return next;
    }
    const auto [found, is_new] = m_foreign.try_emplace(qualified_name, next);
    if (is_new) m_names.push_back({local_name(found->first), nullptr, type, lmx::value_kind::none});
    return found->second;
}

void c_tree::add_field(std::uint32_t field_name, std::string_view field_value) {
    m_fields.push_back({field_name, static_cast<std::uint32_t>(m_values.size())});
    m_values += field_value;
}

/// From names, values and the children's hashes. The closing field isn't there yet while the tree is being read.
void c_tree::set_hash(index node) {
    const std::hash<std::string_view> of_text;
    s_node& element = m_nodes[node];
    const std::size_t last = element.end > node + 1 ? m_nodes[node + 1].first_field : m_fields.size();
    std::uint64_t hash = mix(of_text(m_names[element.name].text), last - element.first_field);
    for (std::size_t i = element.first_field; i < last; ++i) {
        const std::size_t begin = m_fields[i].begin;
        const std::size_t end = i + 1 < m_fields.size() ? m_fields[i + 1].begin : m_values.size();
        hash = mix(hash, of_text(m_names[m_fields[i].name].text));
        hash = mix(hash, of_text(std::string_view(m_values).substr(begin, end - begin)));
    }
    for (index i = node + 1; i < element.end; i = m_nodes[i].end) hash = mix(hash, m_nodes[i].hash);
    element.hash = hash;
}

lmx::elmx_error c_tree::read(lmx::c_read& source) {
    using event = c_typed_reader::event;
    c_typed_reader reader(source, false);
    std::vector<index> open;
    const std::uint32_t no_name = number_of({}, nullptr, nullptr);
    for (;;) {
        if (m_values.size() > std::numeric_limits<std::uint32_t>::max()) return lmx::ELMX_LENGTH_TOO_LONG;
        switch (reader.next()) {
            case event::begin:
                open.push_back(size());
                m_nodes.push_back({0, number_of(reader.name(), reader.member(), reader.type()), 0,
                                   static_cast<std::uint32_t>(m_fields.size())});
                break;
            case event::attribute:
                add_field(number_of(reader.name(), reader.member(), nullptr), reader.value());
                if (const s_member* const place = member(open.back()); place != nullptr) {
                    m_nodes[open.back()].name = number_of({}, place, reader.type());
                }
                break;
            case event::text: {
                // Blanks are layout where no value stands.
                if (m_names[m_nodes[open.back()].name].kind == lmx::value_kind::none && is_blank(reader.value()))
                    break;
                // The text behind a child, which only foreign content has, is a child without a name.
                const bool is_behind_child = open.back() + 1 != size();
                if (is_behind_child)
                    m_nodes.push_back({0, no_name, size() + 1, static_cast<std::uint32_t>(m_fields.size())});
                add_field(no_name, reader.value());
                if (is_behind_child) set_hash(size() - 1);
                break;
            }
            case event::end:
                m_nodes[open.back()].end = size();
                set_hash(open.back());
                open.pop_back();
                break;
            case event::done:
                add_field(no_name, {});
                return lmx::ELMX_OK;
            case event::markup:  // not asked for
            case event::broken:
                return lmx::ELMX_NOT_WELL_FORMED;
        }
    }
}

c_tree::field c_tree::get_field(index node, std::size_t i) const {
    const std::size_t at = m_nodes[node].first_field + i;
    const std::size_t begin = m_fields[at].begin;
    const s_name& field_name = m_names[m_fields[at].name];
    const lmx::value_kind kind = field_name.text.empty() ? m_names[m_nodes[node].name].kind : field_name.kind;
    return {field_name.text, std::string_view(m_values).substr(begin, m_fields[at + 1].begin - begin), kind};
}

std::string_view c_tree::value(index node, std::string_view field_name) const {
    for (std::size_t i = 0; i < field_count(node); ++i) {
        const field found = get_field(node, i);
        if (found.name == field_name) return found.value;
    }
    return {};
}

c_tree::index c_tree::child(index node, std::string_view child_name) const {
    for (index i = node + 1; i < end(node); i = end(i)) {
        if (name(i) == child_name) return i;
    }
    return 0;
}

std::vector<c_tree::index> c_tree::children(index node, std::string_view child_name) const {
    std::vector<index> found;
    for (index i = node + 1; i < end(node); i = end(i)) {
        if (name(i) == child_name) found.push_back(i);
    }
    return found;
}

std::string_view c_tree::attribute_title(index node) const {
    for (std::size_t i = 0; i < field_count(node); ++i) {
        const field found = get_field(node, i);
        if (found.name.ends_with(k_name)) return found.value;
    }
    return {};
}

std::string_view c_tree::title(index node) const {
    if (const std::string_view found = attribute_title(node); !found.empty()) return found;
    for (index i = node + 1; i < end(node); i = end(i)) {
        const std::string_view called = name(i);
        if (called.ends_with(k_name) && (called == k_name || called.starts_with(name(node)))) return value(i);
    }
    return {};
}

bool is_same(const c_tree& one, c_tree::index node, const c_tree& other, c_tree::index other_node) {
    const c_tree::index count = one.end(node) - node;
    if (count != other.end(other_node) - other_node || one.hash(node) != other.hash(other_node)) return false;
    for (c_tree::index i = 0; i < count; ++i) {
        const c_tree::index a = node + i;
        const c_tree::index b = other_node + i;
        const bool is_like = one.name(a) == other.name(b) && one.end(a) - a == other.end(b) - b &&
                             one.field_count(a) == other.field_count(b);
        if (!is_like) return false;
        for (std::size_t j = 0; j < one.field_count(a); ++j) {
            const c_tree::field x = one.get_field(a, j);
            const c_tree::field y = other.get_field(b, j);
            if (x.name != y.name || x.value != y.value) return false;
        }
    }
    return true;
}

void c_steps::count_children(c_tree::index parent) {
    std::map<std::string_view, std::uint32_t> named;
    std::map<std::pair<std::string_view, std::string_view>, std::pair<c_tree::index, std::uint32_t>> alike;
    for (c_tree::index i = parent + 1; i < m_tree.end(parent); i = m_tree.end(i)) {
        ++named[m_tree.name(i)];
        auto& [first, count] = alike.try_emplace({m_tree.name(i), m_tree.title(i)}, i, 0).first->second;
        if (++count == 2) m_steps[first].is_numbered = true;
        m_steps[i] = {count, count > 1, false};
    }
    for (c_tree::index i = parent + 1; i < m_tree.end(parent); i = m_tree.end(i)) {
        m_steps[i].is_titled = named[m_tree.name(i)] > 1 || !m_tree.attribute_title(i).empty();
    }
}

std::string c_steps::step(c_tree::index parent, c_tree::index node) {
    if (!m_steps.contains(node)) count_children(parent);
    const s_step& step = m_steps[node];
    const std::string_view title = m_tree.title(node);
    std::string text = m_tree.name(node).empty() ? "text" : printable(m_tree.name(node));
    if (step.is_titled && !title.empty()) text += " " + in_quotes(title);
    return step.is_numbered ? text + "[" + std::to_string(step.number) + "]" : text;
}

std::string join(const std::string& path, const std::string& step) {
    return path.empty() ? step : path + " / " + step;
}

}  // namespace vyr_tool
