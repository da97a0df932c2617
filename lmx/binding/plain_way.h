// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The plain way of a load: a cursor over what lies in the reader's window takes whole elements of the expected rows
/// while they are plain and right, and leaves everything else where it was, for the events.
///
/// It reports nothing and skips nothing that a handler wants to see: whatever the events would do more than store a
/// value makes it decline. Plain is an element of the expected name, with the prefix of the elements around it,
/// attributes of its rows in any order, values without references and carriage returns that pass all their checks,
/// and its end tag; comments, declarations, `xsi:` attributes and stray text are not.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "lmx/binding/place.h"
#include "lmx/binding/plain_value.h"
#include "lmx/binding/table.h"
#include "lmx/error.h"
#include "lmx/reader/string_stack.h"
#include "lmx/reader/xml_reader.h"

namespace lmx {

/// Where an element begins.
struct s_begin {
    int line;
    std::uint64_t offset;  ///< in the source, behind its first character
};

class c_plain_way {
public:
    enum class e_step {
        taken,
        declined,  ///< the next event is read by the reader
        ended,     ///< the element was taken with its end tag
        failed     ///< inside an element that was entered, the handler ended the read
    };

    /// Takes nothing.
    explicit c_plain_way(c_xml_reader& reader) : m_reader(reader), m_values(reader) {}
    /// For the content of an element whose start tag was read as events. `name` is the element's.
    c_plain_way(c_xml_reader& reader, const s_class& type, std::string_view name);
    c_plain_way(const c_plain_way&) = delete;
    c_plain_way& operator=(const c_plain_way&) = delete;

    /// Takes items from the place on. `end` is the element whose end tag may be taken; null if none
    /// may.
    /// Unless the element ended, the reader then is as the events would have left it behind the last item.
    e_step take_items(const s_class& type, void* object, s_place* place, const c_string_stack_node* end,
                      elmx_error* error);

private:
    struct s_attribute;
    struct s_start_tag;
    struct s_leaf;
    /// An element of a class whose start tag was taken.
    struct s_entered {
        void* object;
        s_begin begin;
        bool has_children;
    };
    struct s_step;

    bool begin();
    void leave();

    e_step take_item(const s_class& type, void* object, s_place* place, const c_string_stack_node* end,
                     elmx_error* error);
    std::size_t due_name_size(const s_class& type, const s_place& place, const char* local) const;
    static bool find_row(const s_class& type, const void* object, bool is_begun, std::string_view name,
                         s_due_row* due, const s_item** member);
    static bool is_complete(const s_class& type, const void* object, const s_place& place);
    void commit(void* object, s_step& step, const char* at, int line_feeds);
    e_step take_simple(void* object, s_step& step);
    e_step take_class(const s_class& child, const s_item* member, void* object, s_step& step);
    bool enter_class(const s_class& child, const s_item* member, void* object, s_step& step, s_entered* entered);
    void store_leaf(const s_class& child, void* entry, const s_leaf& leaf, int line);
    void take_alike(const s_class& child, const s_item& row, void* object, std::string_view ahead, int feeds_ahead,
                    s_leaf* leaf);
    static void* make_child(const s_item& row, const s_item* member, void* object);

    const char* take_end_tag(const char* at, std::string_view name) const;
    bool read_start_tag(const s_class& type, const void* object, const char* at, std::size_t name_size,
                        s_start_tag* tag);
    const s_item* find_attribute(const s_class& type, const char* at) const;
    bool has_required(const s_class& type, const void* object, const s_start_tag& tag) const;
    void store_attributes(const s_class& type, void* object, const s_start_tag& tag);

    void note_tag(std::string_view text, int line);
    void note_value(const s_item& row, const s_plain_value& value);

    c_xml_reader& m_reader;
    c_plain_values m_values;
    char m_prefix[24];  ///< with its colon
    std::size_t m_prefix_size = 0;
    bool m_is_possible = false;  ///< elements with the prefix are those of the tables
    bool m_is_open = false;      ///< what follows is valid
    const char* m_start = nullptr;
    const char* m_at = nullptr;  ///< behind what was taken
    const char* m_end = nullptr;
    int m_line_feeds = 0;   ///< in what was taken
    unsigned m_misses = 0;  ///< attempts since an item was taken
    /// The list that last got entries that are alike, and how many it has: the next one mostly gets as many.
    struct {
        const s_item* row = nullptr;
        std::size_t size = 0;
    } m_last_list;
    s_plain_trace m_trace;
};

}  // namespace lmx
