// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The output side of a document: layout, the declaration, namespace attributes, and the errors of a write.
///
/// The writer knows nothing of well-formedness. Schema-bound classes print their markup themselves, straight into
/// the stream that `operator()` hands them.

#pragma once

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "lmx/error.h"
#include "lmx/export.h"
#include "lmx/ns_map.h"

namespace lmx {

struct s_open_element;
struct s_fault_site;

/// One write to one stream. Neither flushes nor closes the stream; a failed stream goes unnoticed.
class VYR_EXPORT c_xml_writer {
public:
    /// Bits of the constructor's `options`; either of them asks for the XML declaration.
    static constexpr int include_xml_decl = 1;
    static constexpr int include_standalone = 2;

    /// `tab` is the text of one indent step, `nl` that of a line end; both are borrowed. The stream gets the
    /// classic locale and keeps it.
    c_xml_writer(std::ostream& os, const char* tab, const char* nl);
    c_xml_writer(std::ostream& os, int options, const char* tab, const char* nl);
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
    void conditionally_write_ns_attrs(bool need_xsi);
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

    // What a failure is described with, by those who print elements: the innermost open one, and while the failure is
    // passed on, what it is about. Both may be null.
    s_open_element* get_open_element() const { return m_open_element; }
    void set_open_element(s_open_element* element) { m_open_element = element; }
    const s_fault_site* get_fault_site() const { return m_fault_site; }
    void set_fault_site(const s_fault_site* site) { m_fault_site = site; }

    /// Work string of whoever prints: a line is put together here, so that printing allocates nothing once the
    /// string has grown.
    std::string m_line;

private:
    using string_pair = std::pair<std::string, std::string>;

    void write_schema_locations();

    std::ostream& m_os;
    int m_indent_level = 0;
    const char* m_tab;
    const char* m_nl;
    bool m_ns_attrs_written = false;
    bool m_is_checking = false;
    c_error m_error;
    elmx_error m_last_error = ELMX_OK;
    std::string m_error_item_name;
    const s_ns_map* m_ns_map = nullptr;
    std::vector<string_pair> m_namespaces;        ///< prefix, uri
    std::vector<string_pair> m_schema_locations;  ///< namespace, location
    const char* m_expected_class_identity = nullptr;
    s_open_element* m_open_element = nullptr;
    const s_fault_site* m_fault_site = nullptr;
};

}  // namespace lmx
