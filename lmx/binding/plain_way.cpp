// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/plain_way.h"

#include <algorithm>
#include <cstring>

#include "lmx/binding/object.h"
#include "lmx/binding/open_element.h"
#include "lmx/binding/storage.h"
#include "lmx/binding/unmarshal.h"
#include "lmx/reader/plain_text.h"

#if defined(_MSC_VER)
#define PLAIN_WAY_APART __declspec(noinline)
#else
#define PLAIN_WAY_APART [[gnu::noinline]]
#endif

namespace lmx {

struct c_plain_way::s_attribute {
    s_attribute() {}

    const s_item* row;
    const char* name;  ///< as it stands in the window
    s_plain_value value;
};

struct c_plain_way::s_start_tag {
    static constexpr std::size_t k_most_attributes = 12;

    std::string_view text;  ///< from the name up to the end
    const char* behind;     ///< what follows the tag
    bool is_closed;         ///< an empty-element tag
    int line_feeds;
    std::size_t count;
    s_attribute attributes[k_most_attributes];
};

/// An element with a value of its own.
struct c_plain_way::s_leaf {
    s_leaf() {}

    s_start_tag tag;
    const s_item* row = nullptr;  ///< of the value; null in other elements
    s_plain_value value;
};

/// One item that may be taken.
struct c_plain_way::s_step {
    s_place* place;
    s_due_row found;        ///< its row
    std::string_view name;  ///< as it stands in the window
    int line_feeds;         ///< ahead of it
    elmx_error* error;
};

// Tags.

c_plain_way::c_plain_way(c_xml_reader& reader, const s_class& type, std::string_view name) : c_plain_way(reader) {
    const std::size_t colon = name.find(':');
    m_prefix_size = colon == name.npos ? 0 : colon + 1;
    if (m_prefix_size > sizeof m_prefix) return;
    name.copy(m_prefix, m_prefix_size);
    m_is_possible = reader.get_reader_local()->find_namespace_id(prefix_of(name)) == type.names->elements.ns_id();
}

bool c_plain_way::begin() {
    if (m_is_open || !m_is_possible) return m_is_open;
    const std::string_view window = m_reader.get_plain_window();
    if (window.empty()) return false;
    // As the next event would, declarations of a former sibling end here.
    m_reader.get_reader_local()->clear();
    m_start = m_at = window.data();
    m_end = m_at + window.size();
    m_line_feeds = 0;
    m_trace = {};
    m_is_open = true;
    return true;
}

void c_plain_way::leave() {
    if (m_is_open && m_at != m_start) {
        m_reader.take_plain(static_cast<std::size_t>(m_at - m_start), m_line_feeds, m_trace);
    }
    m_is_open = false;
}

/// What stands behind the end tag of that name; null if it isn't there.
const char* c_plain_way::take_end_tag(const char* at, std::string_view name) const {
    if (static_cast<std::size_t>(m_end - at) < name.size() + 3 || at[0] != '<' || at[1] != '/' ||
        !is_same(at + 2, name.data(), name.size())) {
        return nullptr;
    }
    at += name.size() + 2;
    while (*at == ' ' && at + 1 != m_end) ++at;
    return *at == '>' ? at + 1 : nullptr;
}

/// The row of the attribute that begins there; null if there is none, or if something stands ahead of the equals
/// sign.
const s_item* c_plain_way::find_attribute(const s_class& type, const char* at) const {
    const auto left = static_cast<std::size_t>(m_end - at);
    for (const s_class* level = &type; level != nullptr; level = level->base) {
        for (const s_item& row : level->attributes) {
            const std::size_t size = row.name.size();
            if (left > size && at[size] == '=' && is_same(row.name.data(), at, size)) return &row;
        }
    }
    return nullptr;
}

/// Reads a start tag from its name on. False if something in it isn't plain or isn't right for the class; `object` is
/// null for one that is still to be made.
bool c_plain_way::read_start_tag(const s_class& type, const void* object, const char* at, std::size_t name_size,
                                 s_start_tag* tag) {
    const char* const start = at;
    at += name_size;
    tag->count = 0;
    tag->line_feeds = 0;
    // A line feed right behind a name is counted twice.
    if (*at == '\n') return false;
    while (at == m_end || *at != '>') {
        at = skip_blanks(at, m_end, &tag->line_feeds);
        if (m_end - at < 2) return false;
        if (*at == '>' || *at == '/') break;
        const s_item* const row = find_attribute(type, at);
        if (row == nullptr || tag->count == s_start_tag::k_most_attributes) return false;
        if (object != nullptr && is_set(*row, object)) return false;
        for (std::size_t i = 0; i < tag->count; ++i) {
            if (tag->attributes[i].row == row) return false;
        }
        s_attribute& attribute = tag->attributes[tag->count++];
        attribute.row = row;
        attribute.name = at;
        at += row->name.size();
        if (m_end - at < 3 || (at[1] != '"' && at[1] != '\'')) return false;
        const char quote = at[1];
        at = m_values.read(*row, at + 2, m_end, quote, &attribute.value, &tag->line_feeds);
        if (at == nullptr) return false;
        ++at;
    }
    tag->text = {start, static_cast<std::size_t>(at - start)};
    tag->is_closed = *at == '/';
    if (tag->is_closed && *++at != '>') return false;
    tag->behind = at + 1;
    return has_required(type, object, *tag);
}

bool c_plain_way::has_required(const s_class& type, const void* object, const s_start_tag& tag) const {
    if (type.base == nullptr && tag.count == type.attributes.size()) return true;
    std::size_t next = 0;  // most stand in the order of their rows
    for (const s_class* level = &type; level != nullptr; level = level->base) {
        for (const s_item& row : level->attributes) {
            if (next < tag.count && tag.attributes[next].row == &row) {
                ++next;
                continue;
            }
            if ((row.use & use_demanded) == 0 || (object != nullptr && is_set(row, object))) continue;
            const auto* const end = tag.attributes + tag.count;
            if (std::find_if(tag.attributes, end, [&](const s_attribute& found) { return found.row == &row; }) ==
                end) {
                return false;
            }
        }
    }
    return true;
}

void c_plain_way::store_attributes(const s_class& type, void* object, const s_start_tag& tag) {
    for (std::size_t i = 0; i < tag.count; ++i) {
        const s_attribute& attribute = tag.attributes[i];
        m_values.store(type, *attribute.row, object, attribute.value);
        m_trace.attribute_name = {attribute.name, attribute.row->name.size()};
        note_value(*attribute.row, attribute.value);
    }
}

void c_plain_way::note_tag(std::string_view text, int line) {
    m_trace.tag = text;
    m_trace.tag_line = line;
}

void c_plain_way::note_value(const s_item& row, const s_plain_value& value) {
    m_trace.has_value = true;
    m_trace.value = value.text();
    m_trace.whitespace = row.whitespace;
}

// Items.

namespace {

/// Whether the row stands for elements of one name, which may be taken.
bool is_named(const s_item& row) {
    switch (row.kind) {
        case item_kind::element:
        case item_kind::element_list:
        case item_kind::child:
        case item_kind::optional_child:
        case item_kind::child_list:
            return true;
        default:
            return false;
    }
}

}  // namespace

c_plain_way::e_step c_plain_way::take_items(const s_class& type, void* object, s_place* place,
                                            const c_string_stack_node* end, elmx_error* error) {
    // Where nothing was plain of late, most attempts are lost.
    constexpr unsigned patience = 4;
    const bool is_due = m_misses < patience || m_misses % patience == 0;
    ++m_misses;
    e_step step = is_due ? e_step::taken : e_step::declined;
    while (step == e_step::taken) {
        step = begin() ? take_item(type, object, place, end, error) : e_step::declined;
    }
    if (step == e_step::declined) leave();
    return step;
}

c_plain_way::e_step c_plain_way::take_item(const s_class& type, void* object, s_place* place,
                                           const c_string_stack_node* end, elmx_error* error) {
    int line_feeds = 0;
    const char* at = skip_blanks(m_at, m_end, &line_feeds);
    if (m_end - at < 4 || *at != '<') return e_step::declined;
    if (at[1] == '/') {
        if (end == nullptr || !is_complete(type, object, *place)) return e_step::declined;
        const char* const behind = take_end_tag(at, end->get_name());
        if (behind == nullptr) return e_step::declined;
        close_group(place, object);
        m_at = behind;
        m_line_feeds += line_feeds;
        m_misses = 0;
        return e_step::ended;
    }
    ++at;
    if (static_cast<std::size_t>(m_end - at) <= m_prefix_size || !is_same(at, m_prefix, m_prefix_size)) {
        return e_step::declined;
    }
    const char* const local = at + m_prefix_size;
    const s_due_row& due = *place;
    s_step step{place, due, {}, line_feeds, error};
    const s_item* member = nullptr;
    std::size_t size = due_name_size(type, *place, local);
    if (size == 0) {
        size = name_size(local, m_end);
        if (local + size == m_end || !find_row(type, object, place->is_begun, {local, size}, &step.found, &member)) {
            return e_step::declined;
        }
    }
    step.name = {at, m_prefix_size + size};
    const s_class* const child = member != nullptr ? member->type : step.found.row().type;
    return child == nullptr ? take_simple(object, step) : take_class(*child, member, object, step);
}

/// The size of the name at `local` if it is that of the row that is due, as most are; else 0.
std::size_t c_plain_way::due_name_size(const s_class& type, const s_place& place, const char* local) const {
    if (type.content == content_kind::choice || place.is_at_end() || !is_named(place.row())) return 0;
    const std::string_view name = type.names->elements.name(place.row().token);
    const bool is_it = static_cast<std::size_t>(m_end - local) > name.size() &&
                       k_stops_of_names[static_cast<unsigned char>(local[name.size()])] &&
                       is_same(local, name.data(), name.size());
    return is_it ? name.size() : 0;
}

/// Finds the row of the element with that local name, from the place on. For a group `*member` is the alternative.
bool c_plain_way::find_row(const s_class& type, const void* object, bool is_begun, std::string_view name,
                           s_due_row* due, const s_item** member) {
    const auto is_it = [&](const s_item& row) {
        const std::string_view own = type.names->elements.name(row.token);
        return own.size() == name.size() && is_same(own.data(), name.data(), name.size());
    };
    const auto find_alternative = [&](std::span<const s_item> rows) {
        const auto row = std::find_if(rows.begin(), rows.end(), is_it);
        if (row != rows.end()) *member = &*row;
        return row != rows.end();
    };
    if (type.content == content_kind::choice) {
        if (is_begun || !find_alternative(type.elements)) return false;
        due->index = static_cast<std::size_t>(alternative_number(type, **member));
        return true;
    }
    for (;;) {
        while (due->is_at_end()) {
            if (find_short_list(*due->level, object) != nullptr || !due->enter_next_level(type)) return false;
        }
        const s_item& row = due->row();
        if (is_named(row)) {
            if (is_it(row)) return true;
            if ((row.use & use_demanded) != 0 && !due->is_entered) return false;
        } else if (is_group(row)) {
            if (row.type->content != content_kind::group || (row.use & use_lax) != 0) return false;
            if (find_alternative(row.type->elements)) return true;
            if (row.kind == item_kind::group && (row.use & use_demanded) != 0) return false;
        } else {
            return false;
        }
        due->pass_over();
    }
}

/// Whether nothing is missing behind the place.
bool c_plain_way::is_complete(const s_class& type, const void* object, const s_place& place) {
    if (type.content == content_kind::choice) return place.is_begun;
    if (!place.is_begun && !type.may_be_empty) return false;
    const s_due_row& start = place;
    for (s_due_row due = start;;) {
        for (; !due.is_at_end(); due.pass_over()) {
            const s_item& row = due.row();
            if (row.kind == item_kind::any || (row.use & use_lax) != 0) return false;
            if ((row.use & use_demanded) != 0 && !due.is_entered && row.kind != item_kind::group_list) return false;
        }
        if (find_short_list(*due.level, object) != nullptr) return false;
        if (!due.enter_next_level(type)) return true;
    }
}

/// Commits to an item: what the events would have done by now that is not about the item itself.
void c_plain_way::commit(void* object, s_step& step, const char* at, int line_feeds) {
    close_group(step.place, object);
    static_cast<s_due_row&>(*step.place) = step.found;
    m_at = at;
    m_line_feeds += line_feeds;
    m_misses = 0;
}

c_plain_way::e_step c_plain_way::take_simple(void* object, s_step& step) {
    const s_class& level = *step.found.level;
    const s_item& row = step.found.row();
    const char* at = step.name.data() + step.name.size();
    if (*at != '>') return e_step::declined;
    s_plain_value value;  // NOLINT(clang-analyzer-optin.cplusplus.UninitializedObject): set where one is read
    int line_feeds = step.line_feeds;
    at = m_values.read(row, at + 1, m_end, '<', &value, &line_feeds);
    if (at != nullptr) at = take_end_tag(at, step.name);
    if (at == nullptr) return e_step::declined;
    const int line = m_reader.get_text_line() + m_line_feeds + step.line_feeds;
    commit(object, step, at, line_feeds);
    m_values.store(level, row, object, value);
    note_tag(step.name, line);
    note_value(row, value);
    note_item(m_reader, row);
    step_behind(step.place);
    return e_step::taken;
}

/// The object that an element's content goes to, made where it isn't there yet.
void* c_plain_way::make_child(const s_item& row, const s_item* member, void* object) {
    void* const holder = is_repeating(row) ? append_default(row, object) : touch_child(row, object);
    if (member == nullptr) return holder;
    release_choice(*row.type, holder);
    return choose(*row.type, *member, holder);
}

/// The stack must hold as many levels of this as elements may nest: what a start tag says lies in `enter_class`,
/// which is over when the children are read.
c_plain_way::e_step c_plain_way::take_class(const s_class& child, const s_item* member, void* object, s_step& step) {
    const s_item& row = step.found.row();
    s_entered entered{};
    if (!enter_class(child, member, object, step, &entered)) return e_step::declined;
    if (entered.has_children) {
        *step.error = read_plain_element(child, entered.object, m_reader, step.name, entered.begin, *this);
        if (*step.error != ELMX_OK) return e_step::failed;
    }
    if (member == nullptr) {
        mark_set(row, object);
        note_item(m_reader, row);
    }
    step_behind(step.place);
    return e_step::taken;
}

/// Takes a start tag with its attributes and, of a class with a value, that and the end tag.
PLAIN_WAY_APART bool c_plain_way::enter_class(const s_class& child, const s_item* member, void* object, s_step& step,
                                              s_entered* entered) {
    const s_item& row = step.found.row();
    // A head that may be specialised is what its name says when no attribute says another.
    if (member != nullptr && !member->factory.empty() && (member->use & use_demanded) != 0) return false;
    if (m_reader.get_element_name_stack().get_depth() >= k_maximum_nesting) return false;
    const bool is_child = row.kind == item_kind::child || row.kind == item_kind::optional_child;
    const void* const present = is_child ? child_of(row, object) : nullptr;
    if (present != nullptr && is_nil(child, present)) return false;
    s_leaf leaf;  // NOLINT(clang-analyzer-optin.cplusplus.UninitializedObject): set where it is read
    s_start_tag& tag = leaf.tag;
    if (!read_start_tag(child, present, step.name.data(), step.name.size(), &tag)) return false;
    entered->begin = {m_reader.get_text_line() + m_line_feeds + step.line_feeds,
                      m_reader.get_offset() + static_cast<std::uint64_t>(step.name.data() - m_start)};
    int line_feeds = step.line_feeds + tag.line_feeds;
    const bool is_simple = child.content == content_kind::simple;
    const char* behind = tag.behind;
    if (is_simple) {
        if (tag.is_closed) return false;
        leaf.row = &content_owner(child).elements.front();
        behind = m_values.read(*leaf.row, behind, m_end, '<', &leaf.value, &line_feeds);
        if (behind != nullptr) behind = take_end_tag(behind, step.name);
        if (behind == nullptr) return false;
    } else if (tag.is_closed) {
        if (!child.may_be_empty && child.content != content_kind::empty) return false;
    } else if (child.content == content_kind::empty) {
        return false;
    }
    entered->has_children = !is_simple && !tag.is_closed;

    const std::string_view text(m_at, static_cast<std::size_t>(behind - m_at));
    commit(object, step, behind, line_feeds);
    if (member != nullptr) note_item(m_reader, row);
    if (step.found.level->content == content_kind::choice) {
        release_choice(*step.found.level, object);
        entered->object = choose(*step.found.level, row, object);
    } else {
        entered->object = make_child(row, member, object);
    }
    store_leaf(child, entered->object, leaf, entered->begin.line);
    if (is_simple && row.kind == item_kind::child_list && line_feeds == step.line_feeds) {
        take_alike(child, row, object, text, line_feeds, &leaf);
    }
    return true;
}

void c_plain_way::store_leaf(const s_class& child, void* entry, const s_leaf& leaf, int line) {
    note_tag(leaf.tag.text, line);
    store_attributes(child, entry, leaf.tag);
    if (leaf.row == nullptr) return;
    m_values.store(content_owner(child), *leaf.row, entry, leaf.value);
    note_value(*leaf.row, leaf.value);
}

/// Takes the entries of a list that differ from the one before in their values only, as the points of a spectrum do.
/// `text` is the one that was taken, with the white space ahead of it, and `leaf` what was found in it.
PLAIN_WAY_APART void c_plain_way::take_alike(const s_class& child, const s_item& row, void* object,
                                             std::string_view text, int feeds_ahead, s_leaf* leaf) {
    s_start_tag& tag = leaf->tag;
    auto& list = member<c_list_base>(object, row.offset);
    const std::size_t ahead = static_cast<std::size_t>(tag.text.data() - text.data());
    // What stands ahead of each value and behind the last.
    std::string_view pieces[s_start_tag::k_most_attributes + 2];
    const char* from = text.data();
    const auto end_piece = [&from](const s_plain_value& value) {
        const std::string_view piece(from, static_cast<std::size_t>(value.begin - from));
        from = value.end;
        return piece;
    };
    for (std::size_t i = 0; i < tag.count; ++i) pieces[i] = end_piece(tag.attributes[i].value);
    pieces[tag.count] = end_piece(leaf->value);
    pieces[tag.count + 1] = {from, static_cast<std::size_t>(text.data() + text.size() - from)};

    for (;;) {
        const char* at = m_at;
        int line_feeds = feeds_ahead;
        const auto take_piece = [&](std::string_view piece) {
            const bool is_there =
                static_cast<std::size_t>(m_end - at) >= piece.size() && is_same(at, piece.data(), piece.size());
            if (is_there) at += piece.size();
            return is_there;
        };
        const auto take = [&](std::size_t i, const s_item& value_row, s_plain_value* value) {
            if (!take_piece(pieces[i])) return false;
            at = m_values.read(value_row, at, m_end, pieces[i + 1].front(), value, &line_feeds);
            return at != nullptr;
        };
        std::size_t taken = 0;
        for (; taken < tag.count; ++taken) {
            s_attribute& attribute = tag.attributes[taken];
            if (!take(taken, *attribute.row, &attribute.value)) break;
            attribute.name = attribute.value.begin - attribute.row->name.size() - 2;
        }
        if (taken < tag.count || !take(taken, *leaf->row, &leaf->value) || !take_piece(pieces[taken + 1])) break;

        const char* const name = m_at + ahead;
        tag.text = {name, static_cast<std::size_t>(leaf->value.begin - 1 - name)};
        const int line = m_reader.get_text_line() + m_line_feeds + feeds_ahead;
        m_at = at;
        m_line_feeds += line_feeds;
        if (m_last_list.row == &row) list.expect(m_last_list.size, child.operations->stored);
        store_leaf(child, list.append(child.operations->stored), *leaf, line);
    }
    m_last_list = {&row, list.size()};
}

}  // namespace lmx
