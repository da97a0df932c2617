// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/tree.h"

#include <algorithm>
#include <limits>
#include <map>
#include <utility>

#include "lmx/reader/xml_reader.h"
#include "tools/text.h"

namespace vyr_tool {

namespace {

constexpr std::string_view k_prefix = "Vyr:";
constexpr std::string_view k_name = "Name";
constexpr std::string_view k_blanks = " \t\r\n";

std::uint64_t mix(std::uint64_t hash, std::uint64_t more) {
    hash = (hash ^ more) * 0x9E3779B97F4A7C15U;
    return hash ^ (hash >> 32U);
}

bool is_blank(const std::string& text) { return text.find_first_not_of(k_blanks) == std::string::npos; }

}  // namespace

std::uint32_t c_tree::number_of(const std::string& qualified_name) {
    const auto [found, is_new] = m_numbers.try_emplace(qualified_name, static_cast<std::uint32_t>(m_names.size()));
    if (is_new) {
        const std::string_view whole = found->first;
        m_names.push_back(whole.starts_with(k_prefix) ? whole.substr(k_prefix.size()) : whole);
    }
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
    std::uint64_t hash = mix(of_text(m_names[element.name]), last - element.first_field);
    for (std::size_t i = element.first_field; i < last; ++i) {
        const std::size_t begin = m_fields[i].begin;
        const std::size_t end = i + 1 < m_fields.size() ? m_fields[i + 1].begin : m_values.size();
        hash = mix(hash, of_text(m_names[m_fields[i].name]));
        hash = mix(hash, of_text(std::string_view(m_values).substr(begin, end - begin)));
    }
    for (index i = node + 1; i < element.end; i = m_nodes[i].end) hash = mix(hash, m_nodes[i].hash);
    element.hash = hash;
}

lmx::elmx_error c_tree::read(const std::string& xml) {
    lmx::c_xml_reader_memory reader(xml.data(), xml.size());
    std::vector<index> open;
    std::string name;
    std::string value;
    const std::uint32_t no_name = number_of({});
    for (;;) {
        lmx::elxp_xml_event event = reader.get_element_name(nullptr, &name);
        if (event == lmx::ELXP_END_OF_INPUT && open.empty() && !m_nodes.empty()) break;
        if (event != lmx::ELXP_NAME && (event != lmx::ELXP_END_TAG || open.empty())) return lmx::ELMX_NOT_WELL_FORMED;
        if (event == lmx::ELXP_NAME) {
            open.push_back(size());
            m_nodes.push_back({0, number_of(name), 0, static_cast<std::uint32_t>(m_fields.size())});
            while ((event = reader.get_attribute_name(&name, false)) == lmx::ELXP_NAME) {
                if (!reader.get_attribute_value(&value, lmx::ELMX_WS_PRESERVE)) return lmx::ELMX_NOT_WELL_FORMED;
                add_field(number_of(name), value);
            }
            if (lmx::c_xml::is_error_event(event)) return lmx::ELMX_NOT_WELL_FORMED;
        }
        if (event == lmx::ELXP_END_TAG) {
            const index node = open.back();
            open.pop_back();
            m_nodes[node].end = size();
            set_hash(node);
        }
        if (open.empty()) continue;
        if (!reader.get_element_value(&value, lmx::ELMX_WS_PRESERVE, true)) return lmx::ELMX_NOT_WELL_FORMED;
        // Blanks are layout. The text behind a child, which only foreign content has, is a child without a name.
        if (is_blank(value)) continue;
        const bool is_behind_child = open.back() + 1 != size();
        if (is_behind_child) m_nodes.push_back({0, no_name, size() + 1, static_cast<std::uint32_t>(m_fields.size())});
        add_field(no_name, value);
        if (is_behind_child) set_hash(size() - 1);
        if (m_values.size() > std::numeric_limits<std::uint32_t>::max() - xml.size())
            return lmx::ELMX_LENGTH_TOO_LONG;
    }
    add_field(no_name, {});
    return lmx::ELMX_OK;
}

c_tree::field c_tree::get_field(index node, std::size_t i) const {
    const std::size_t at = m_nodes[node].first_field + i;
    const std::size_t begin = m_fields[at].begin;
    return {m_names[m_fields[at].name], std::string_view(m_values).substr(begin, m_fields[at + 1].begin - begin)};
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
    if (step.is_titled && !title.empty()) text += " " + quoted(title);
    return step.is_numbered ? text + "[" + std::to_string(step.number) + "]" : text;
}

std::string join(const std::string& path, const std::string& step) {
    return path.empty() ? step : path + " / " + step;
}

}  // namespace vyr_tool
