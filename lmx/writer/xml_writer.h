// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The output side of a document: layout, the declaration, namespace attributes, and the errors of a write.
///
/// The writer knows nothing of well-formedness. Schema-bound classes print their markup themselves: whole lines into
/// the writer's output, or what a derived writer's layout wants to see line by line.

#pragma once

#include <array>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "lmx/error.h"
#include "lmx/export.h"
#include "lmx/fault_notes.h"
#include "lmx/ns_map.h"
#include "lmx/writer/output.h"

namespace lmx {

/// One write to one stream. Neither flushes nor closes the stream; a failed stream goes unnoticed, but one whose
/// exceptions are enabled throws. Whatever was printed is in the stream when a call returns, and when a handler, an
/// override or an object of the host's own class is called.
class VYR_EXPORT c_xml_writer {
public:
    /// Bits of the constructor's `options`; either of them asks for the XML declaration.
    static constexpr int include_xml_decl = 1;
    static constexpr int include_standalone = 2;

    /// `tab` is the text of one indent step, `nl` that of a line end; both are borrowed. The stream gets the
    /// classic locale and keeps it.
    c_xml_writer(std::ostream& os, const char* tab, const char* nl);
    c_xml_writer(std::ostream& os, int options, const char* tab, const char* nl);
    /// Appends to a string, which is borrowed, without a stream.
    c_xml_writer(std::string& text, int options, const char* tab, const char* nl);
    c_xml_writer(const c_xml_writer&) = delete;
    c_xml_writer& operator=(const c_xml_writer&) = delete;
    virtual ~c_xml_writer();

    /// Decides what becomes of an error: 0 drops it, any other code is reported in its place. The default keeps
    /// the code. `file` and `line` name the place in the source that found it.
    virtual elmx_error user_handle_error(elmx_error code, const std::string& item_name, const char* file, int line);
    virtual elmx_error user_handle_error(elmx_error code);
    /// "'item'-text", or "No Error". Returns `*out`.
    virtual std::string& get_error_message(std::string* out) const;
    /// The text of a line end. Prints nothing.
    virtual const char* endl();
    /// Prints one indent step.
    virtual void nest();
    /// Sees a failure that goes around the handler and ends the write, and of a writer that checks, a value that
    /// reading would refuse. The default does nothing.
    virtual void see_unhandled_error(elmx_error code, const std::string& item_name);
    /// Whether `see_unhandled_error` wants to know of values that are written and could not be read again.
    bool is_checking() const { return m_is_checking; }
    void set_checking(bool is_checking) { m_is_checking = is_checking; }

    /// The stream; at the start of a line indented to the current depth.
    std::ostream& operator()(bool at_line_start);
    void indent() { ++m_indent_level; }
    /// Stays at 0.
    void undent() {
        if (m_indent_level > 0) --m_indent_level;
    }

    /// Add a namespace to the first element's attributes. Duplicates are kept.
    void add_namespace(const std::string& prefix, const std::string& uri);
    void add_default_namespace(const std::string& uri) { add_namespace(std::string(), uri); }
    /// Add a schema hint to them.
    void add_schema_location(const std::string& ns, const std::string& location);
    void add_no_namespace_schema_location(const std::string& location) {
        add_schema_location(std::string(), location);
    }

    /// Selects a namespace table, borrowed, unless one is selected: the outermost element wins.
    void conditionally_select_ns_map(const s_ns_map* map) {
        if (m_ns_map == nullptr) m_ns_map = map;
    }
    /// Prints the namespace attributes, the first time only. Nothing in them is escaped.
    void conditionally_write_ns_attrs(bool need_xsi) {
        if (!m_ns_attrs_written) write_ns_attrs(need_xsi);
    }
    /// Lets the next element select a table and print the attributes again.
    void reenable_ns_map_output();
    /// The prefix of a namespace, or null. A table must be selected.
    const char* get_namespace_prefix(const std::string& uri) const;

    /// The identity of the type that the next element is declared with; a class with another identity prints its
    /// `xsi:type` and clears it.
    void set_expected_class_identity(const char* identity) { m_expected_class_identity = identity; }
    const char* get_expected_class_identity() const { return m_expected_class_identity; }
    void clear_expected_class_identity() { m_expected_class_identity = nullptr; }

    /// Records an error with the item it befell, and returns what `user_handle_error` makes of it.
    elmx_error handle_error(elmx_error code, const std::string& item_name, const char* file, int line);
    const std::string& get_error_item_name() const { return m_error_item_name; }
    /// As that of `c_error`; what `handle_error` records doesn't show here.
    bool get_error_info(elmx_error_type* type, elmx_error* code, int* line) const {
        return m_error.get_error_info(type, code, line);
    }

    /// What those who print elements note for whom describes a failure.
    s_fault_notes& notes() { return m_notes; }
    const s_fault_notes& notes() const { return m_notes; }

    // For those who print elements, within a `c_printing`. A piece is begun by `start_line` or by `get_output`, and
    // asks for its line end before its text is put together.

    c_output& get_output() { return m_output; }
    /// Indents to the current depth.
    c_output& start_line() {
        if (!m_is_collecting) {
            nest_all();
        } else if (m_collected_tab.size() == 1) {
            m_output.append_repeated(m_collected_tab.front(), static_cast<std::size_t>(m_indent_level));
        } else {
            for (int level = 0; level < m_indent_level; ++level) m_output.append(m_collected_tab);
        }
        return m_output;
    }
    std::string_view get_line_end() { return m_is_collecting ? m_collected_nl : std::string_view(endl()); }
    /// An overridden layout sees all that was printed before it is asked.
    void end_piece() {
        if (!m_is_collecting) m_output.flush();
    }

private:
    friend class c_printing;
    friend class c_handed_over;
    using string_pair = std::pair<std::string, std::string>;
    /// Where `endl` and `nest` are to be found; null where that can't be told.
    using layout_functions = std::array<const void*, 2>;

    layout_functions find_layout_functions() const;
    void write_declaration(int options);
    void write_ns_attrs(bool need_xsi);
    void begin_printing();
    void nest_all();
    void put(std::string_view text);
    void put_namespace(std::string_view prefix, std::string_view uri);
    void put_schema_locations();

    c_output m_output;
    int m_indent_level = 0;
    const char* m_tab;
    const char* m_nl;
    layout_functions m_own_layout;
    int m_printing_depth = 0;
    /// While printing: the layout is not overridden, and text may wait in the output.
    bool m_is_collecting = false;
    std::string_view m_collected_tab;
    std::string_view m_collected_nl;
    bool m_ns_attrs_written = false;
    bool m_is_checking = false;
    c_error m_error;
    elmx_error m_last_error = ELMX_OK;
    std::string m_error_item_name;
    const s_ns_map* m_ns_map = nullptr;
    std::vector<string_pair> m_namespaces;        ///< prefix, uri
    std::vector<string_pair> m_schema_locations;  ///< namespace, location
    const char* m_expected_class_identity = nullptr;
    s_fault_notes m_notes;
};

/// A call that prints elements. They may be nested; when the outermost ends, everything is in the stream.
class VYR_EXPORT c_printing {
public:
    explicit c_printing(c_xml_writer& writer) : m_writer(writer) {
        if (writer.m_printing_depth++ == 0) writer.begin_printing();
    }
    c_printing(const c_printing&) = delete;
    c_printing& operator=(const c_printing&) = delete;
    ~c_printing() {
        if (--m_writer.m_printing_depth == 0) leave();
    }

    /// What a stream throws comes from here.
    void end() {
        if (m_writer.m_printing_depth == 1) m_writer.m_output.flush();
    }

private:
    void leave() noexcept;

    c_xml_writer& m_writer;
};

/// A call to code that may be the host's own: it finds everything in the stream, and what it prints is there when it
/// returns.
class VYR_EXPORT c_handed_over {
public:
    explicit c_handed_over(c_xml_writer& writer)
        : m_writer(writer), m_depth(writer.m_printing_depth), m_is_collecting(writer.m_is_collecting) {
        writer.m_output.flush();
        writer.m_printing_depth = 0;
        writer.m_is_collecting = false;
    }
    c_handed_over(const c_handed_over&) = delete;
    c_handed_over& operator=(const c_handed_over&) = delete;
    ~c_handed_over() {
        m_writer.m_printing_depth = m_depth;
        m_writer.m_is_collecting = m_is_collecting;
    }

private:
    c_xml_writer& m_writer;
    int m_depth;
    bool m_is_collecting;
};

}  // namespace lmx
