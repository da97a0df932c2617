// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr diff`: what was added, removed, changed or moved between two documents, by path.
///
/// Documents are compared as the library writes them, so notation and layout make no difference.

#include <algorithm>
#include <cstdint>
#include <deque>
#include <iostream>
#include <limits>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "tools/commands.h"
#include "tools/diff.h"
#include "tools/files.h"
#include "tools/json.h"
#include "tools/progress.h"
#include "tools/text.h"
#include "tools/tree.h"

namespace vyr_tool {

namespace {

using index = c_tree::index;

enum class e_change { removed, added, changed, moved };

/// How each kind of change is written and coloured.
struct s_change_form {
    char sign;
    const char* name;
    const char* color;
};
constexpr s_change_form k_forms[] = {{'-', "removed", terminal_color::red},
                                     {'+', "added", terminal_color::green},
                                     {'~', "changed", terminal_color::yellow},
                                     {'>', "moved", terminal_color::cyan}};

/// Prints changes as they are found.
class c_changes {
public:
    c_changes(const diff_options& options, std::ostream& out, std::size_t limit)
        : m_options(options), m_out(out), m_limit(limit), m_has_color(use_color(options.color)) {
        if (m_options.json) m_out << "[";
    }
    /// `before` and `after` are a simple value on each side, `note` is for people only.
    void add(e_change kind, const std::string& path, std::optional<std::string_view> before,
             std::optional<std::string_view> after, const std::string& note = {});
    void finish() const {
        if (m_options.json) m_out << "\n]\n";
        if (m_count > m_limit) m_out << m_count - m_limit << " more\n";
    }
    bool is_any() const { return m_count > 0; }

private:
    const diff_options& m_options;
    std::ostream& m_out;
    std::size_t m_limit;
    bool m_has_color;
    std::size_t m_count = 0;
};

void c_changes::add(e_change kind, const std::string& path, std::optional<std::string_view> before,
                    std::optional<std::string_view> after, const std::string& note) {
    const bool is_first = m_count++ == 0;
    const s_change_form& form = k_forms[static_cast<std::size_t>(kind)];
    if (m_options.quiet || m_count > m_limit) return;
    if (m_options.json) {
        json object = {{"change", form.name}, {"path", path}};
        if (before) object["before"] = *before;
        if (after) object["after"] = *after;
        m_out << (is_first ? "\n" : ",\n") << to_text(object, true);
        return;
    }
    std::string line = form.sign + (" " + path);
    if (before || after) line += ":";
    if (before) line += " " + in_quotes(*before);
    if (before && after) line += " ->";
    if (after) line += " " + in_quotes(*after);
    line += note;
    m_out << (m_has_color ? colored(line, form.color) : line) << '\n';
}

/// Elements nest no deeper in the format itself; foreign content below is compared as a whole.
constexpr std::size_t k_deepest = 300;

/// The children of one element, and what became of each on the other side.
struct s_side {
    static constexpr std::size_t k_none = static_cast<std::size_t>(-1);

    s_side(const c_tree& all, index node) : tree(all) {
        std::map<std::string_view, std::size_t> named;
        for (index i = node + 1; i < all.end(node); i = all.end(i)) {
            nodes.push_back(i);
            titles.push_back(all.title(i));
            places.push_back(++named[all.name(i)]);
        }
        for (const index i : nodes) is_only.push_back(named[all.name(i)] == 1);
        partners.resize(nodes.size(), k_none);
    }

    const c_tree& tree;
    std::vector<index> nodes;
    std::vector<std::string_view> titles;
    std::vector<std::size_t> places;  ///< among those of the same name, from 1
    std::vector<bool> is_only;        ///< with its name
    std::vector<std::size_t> partners;
};

/// Pairs children without a partner that have the same key, the first with the first. A key that is empty pairs
/// nothing.
template <class Key, class Fits>
void pair_by(s_side& before, s_side& after, Key key_of, Fits fits) {
    std::map<std::pair<std::string_view, decltype(key_of(before, 0))>, std::vector<std::size_t>> waiting;
    for (std::size_t i = after.nodes.size(); i-- > 0;) {
        const auto key = key_of(after, i);
        if (after.partners[i] == s_side::k_none && key != decltype(key){}) {
            waiting[{after.tree.name(after.nodes[i]), key}].push_back(i);
        }
    }
    for (std::size_t i = 0; i < before.nodes.size(); ++i) {
        if (before.partners[i] != s_side::k_none) continue;
        const auto found = waiting.find({before.tree.name(before.nodes[i]), key_of(before, i)});
        if (found == waiting.end() || found->second.empty() || !fits(i, found->second.back())) continue;
        before.partners[i] = found->second.back();
        after.partners[found->second.back()] = i;
        found->second.pop_back();
    }
}

/// Of the pairs, the most that stand in the same order on both sides: their numbers before.
std::vector<std::size_t> in_order(const s_side& before) {
    std::vector<std::size_t> ends;  // the last pair of the best sequence of each length
    std::vector<std::size_t> previous(before.nodes.size(), s_side::k_none);
    for (std::size_t i = 0; i < before.nodes.size(); ++i) {
        if (before.partners[i] == s_side::k_none) continue;
        const auto place = std::ranges::lower_bound(ends, before.partners[i], {},
                                                    [&](std::size_t end) { return before.partners[end]; });
        if (place != ends.begin()) previous[i] = *std::prev(place);
        if (place == ends.end()) {
            ends.push_back(i);
        } else {
            *place = i;
        }
    }
    std::vector<std::size_t> sequence;
    for (std::size_t i = ends.empty() ? s_side::k_none : ends.back(); i != s_side::k_none; i = previous[i]) {
        sequence.push_back(i);
    }
    std::ranges::reverse(sequence);
    return sequence;
}

/// Pairs what has neither a title nor an identity and stands between the same neighbours, in order.
void pair_in_gaps(s_side& before, s_side& after) {
    const auto is_open = [](const s_side& side, std::size_t i) {
        return side.partners[i] == s_side::k_none && side.titles[i].empty() &&
               side.tree.value(side.nodes[i], "UniqueID").empty();
    };
    std::vector<std::size_t> anchors = in_order(before);
    anchors.push_back(before.nodes.size());
    std::size_t i = 0;
    std::size_t j = 0;
    for (const std::size_t anchor : anchors) {
        const std::size_t other = anchor < before.nodes.size() ? before.partners[anchor] : after.nodes.size();
        std::map<std::string_view, std::deque<std::size_t>> waiting;
        for (; j < other; ++j) {
            if (is_open(after, j)) waiting[after.tree.name(after.nodes[j])].push_back(j);
        }
        for (; i < anchor; ++i) {
            const auto found = waiting.find(before.tree.name(before.nodes[i]));
            if (!is_open(before, i) || found == waiting.end() || found->second.empty()) continue;
            before.partners[i] = found->second.front();
            after.partners[found->second.front()] = i;
            found->second.pop_front();
        }
        i = anchor + 1;
        j = other + 1;
    }
}

/// Of the children alone; 0 if there are none.
std::uint64_t body_hash(const c_tree& tree, index node) {
    std::uint64_t hash = 0;
    for (index i = node + 1; i < tree.end(node); i = tree.end(i)) hash = hash * 31 + tree.hash(i);
    return hash;
}

/// Pairs what is the same from the front and from the back, so that of many like elements those get partners that
/// stand where they stood.
void pair_ends(s_side& before, s_side& after) {
    const auto pair = [&](std::size_t i, std::size_t j) {
        if (!is_same(before.tree, before.nodes[i], after.tree, after.nodes[j])) return false;
        before.partners[i] = j;
        after.partners[j] = i;
        return true;
    };
    std::size_t front = 0;
    const std::size_t shorter = std::min(before.nodes.size(), after.nodes.size());
    while (front < shorter && pair(front, front)) ++front;
    for (std::size_t back = 1; back <= shorter - front; ++back) {
        if (!pair(before.nodes.size() - back, after.nodes.size() - back)) break;
    }
}

void pair_children(s_side& before, s_side& after) {
    pair_ends(before, after);
    const auto always = [](std::size_t, std::size_t) { return true; };
    pair_by(
        before, after, [](const s_side& side, std::size_t i) { return side.tree.hash(side.nodes[i]); },
        [&](std::size_t i, std::size_t j) {
            return is_same(before.tree, before.nodes[i], after.tree, after.nodes[j]);
        });
    pair_by(
        before, after, [](const s_side& side, std::size_t i) { return side.tree.value(side.nodes[i], "UniqueID"); },
        always);
    pair_by(
        before, after, [](const s_side& side, std::size_t i) { return side.titles[i]; }, always);
    // What holds the same under another title was renamed; an only child is the same one whatever it holds.
    pair_by(
        before, after, [](const s_side& side, std::size_t i) { return body_hash(side.tree, side.nodes[i]); }, always);
    pair_by(
        before, after, [](const s_side& side, std::size_t i) { return static_cast<int>(side.is_only[i]); }, always);
    pair_in_gaps(before, after);
}

bool is_simple(const c_tree& tree, index node) {
    return tree.is_leaf(node) && (tree.field_count(node) == 0 || tree.get_field(node, 0).name.empty());
}

/// Walks both trees from a pair of elements down.
class c_comparison {
public:
    c_comparison(const c_tree& before, const c_tree& after, c_changes& changes)
        : m_before(before), m_after(after), m_old_steps(before), m_new_steps(after), m_changes(changes) {}

    void compare(index node, index other, const std::string& path, std::size_t depth) {
        if (is_same(m_before, node, m_after, other)) return;
        if (depth == k_deepest) return m_changes.add(e_change::changed, path, {}, {});
        compare_fields(node, other, path);
        compare_children(node, other, path, depth);
    }

private:
    void compare_fields(index node, index other, const std::string& path) {
        std::map<std::string_view, std::pair<std::optional<std::string_view>, std::optional<std::string_view>>>
            fields;
        for (std::size_t i = 0; i < m_before.field_count(node); ++i) {
            fields[m_before.get_field(node, i).name].first = m_before.get_field(node, i).value;
        }
        for (std::size_t i = 0; i < m_after.field_count(other); ++i) {
            fields[m_after.get_field(other, i).name].second = m_after.get_field(other, i).value;
        }
        for (const auto& [name, values] : fields) {
            const auto& [old_value, new_value] = values;
            if (old_value == new_value) continue;
            const e_change kind = !old_value ? e_change::added : !new_value ? e_change::removed : e_change::changed;
            m_changes.add(kind, name.empty() ? path : join(path, "@" + printable(name)), old_value, new_value);
        }
    }

    void compare_children(index node, index other, const std::string& path, std::size_t depth) {
        s_side before(m_before, node);
        s_side after(m_after, other);
        pair_children(before, after);
        const std::vector<std::size_t> anchors = in_order(before);
        std::size_t next = 0;
        const auto add_removed = [&](std::size_t last) {
            for (; next < last; ++next) {
                if (before.partners[next] != s_side::k_none) continue;
                const index lost = before.nodes[next];
                add_whole(e_change::removed, m_before, lost, join(path, m_old_steps.step(node, lost)));
            }
        };
        auto anchor = anchors.begin();
        for (std::size_t j = 0; j < after.nodes.size(); ++j) {
            const std::size_t i = after.partners[j];
            // Between two neighbours that stayed, what is gone comes first.
            add_removed(anchor == anchors.end() ? before.nodes.size() : *anchor);
            if (i == s_side::k_none) {
                const index gained = after.nodes[j];
                add_whole(e_change::added, m_after, gained, join(path, m_new_steps.step(other, gained)));
                continue;
            }
            const bool is_in_order = anchor != anchors.end() && *anchor == i;
            if (is_in_order) ++anchor;
            if (is_in_order && is_same(m_before, before.nodes[i], m_after, after.nodes[j])) continue;
            const std::string inner = join(path, m_old_steps.step(node, before.nodes[i]));
            if (!is_in_order) {
                m_changes.add(
                    e_change::moved, inner, {}, {},
                    ": from place " + std::to_string(before.places[i]) + " to " + std::to_string(after.places[j]));
            }
            compare(before.nodes[i], after.nodes[j], inner, depth + 1);
        }
        add_removed(before.nodes.size());
    }

    /// An element that stands on one side only, with its value or its size.
    void add_whole(e_change kind, const c_tree& tree, index node, const std::string& path) {
        std::optional<std::string_view> value;
        if (is_simple(tree, node) && !tree.value(node).empty()) value = tree.value(node);
        const std::size_t inner = tree.end(node) - node - 1;
        const std::string note = inner == 0 ? "" : " (" + counted(inner, "element", "elements") + " in it)";
        const bool is_lost = kind == e_change::removed;
        m_changes.add(kind, path, is_lost ? value : std::nullopt, is_lost ? std::nullopt : value, note);
    }

    const c_tree& m_before;
    const c_tree& m_after;
    c_steps m_old_steps;
    c_steps m_new_steps;
    c_changes& m_changes;
};

}  // namespace

void print_differences(const c_tree& before, const c_tree& after, std::ostream& out, std::size_t limit) {
    diff_options options;
    options.color = "never";
    c_changes changes(options, out, limit);
    c_comparison(before, after, changes).compare(0, 0, {}, 0);
    changes.finish();
}

exit_code diff(const diff_options& options) {
    c_tree before;
    c_tree after;
    // What can't be compared is trouble and no difference.
    if (read_tree(options.before, before) != exit_ok || read_tree(options.after, after) != exit_ok) {
        return exit_usage_or_file;
    }
    const c_progress_line progress("comparing");
    c_changes changes(options, std::cout, std::numeric_limits<std::size_t>::max());
    c_comparison(before, after, changes).compare(0, 0, {}, 0);
    changes.finish();
    return changes.is_any() ? exit_document_fails : exit_ok;
}

}  // namespace vyr_tool
