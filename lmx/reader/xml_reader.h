// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The pull reader that schema-bound classes drive: numbered events, namespace scopes, the current name, and the
/// policy for errors.

#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "lmx/error.h"
#include "lmx/export.h"
#include "lmx/ns_map.h"
#include "lmx/reader/cracked_name.h"
#include "lmx/reader/event_map.h"
#include "lmx/reader/name_list.h"
#include "lmx/reader/string_stack.h"
#include "lmx/reader/xml.h"

namespace lmx {

class c_xml_reader;

/// What `c_xml_reader::get_namespace` gives for an unbound prefix: a blank, which no URI is.
VYR_EXPORT extern const std::string k_namespace_not_found;

/// A scope that is the reader's current one for as long as it lives.
class VYR_EXPORT c_xml_reader_local : public c_xml_local {
public:
    c_xml_reader_local() = default;
    explicit c_xml_reader_local(c_xml_reader& reader) { set_reader(reader); }
    ~c_xml_reader_local();
    void set_reader(c_xml_reader& reader);

private:
    c_xml_local* m_saved_local = nullptr;
    c_xml_reader* m_reader = nullptr;
};

namespace detail {

/// The collector of the scanner's reports, which keeps the text of the last error.
class VYR_EXPORT c_scanner_errors : public c_error {
public:
    void report_error(elmx_error_type type, elmx_error code, const char* source_id, int line,
                      const char* text) override;

    std::string m_text;  ///< empty while there was none
    int m_line = 0;
};

/// Holds the collector ahead of the scanner, which registers with it when it is built.
struct s_error_holder {
    c_scanner_errors m_collector;
};

}  // namespace detail

/// Serves one document. Belongs to one thread at a time.
class VYR_EXPORT c_xml_reader : private detail::s_error_holder, public c_xml {
public:
    /// The source is borrowed, and first used when something is read.
    explicit c_xml_reader(c_read& source);
    ~c_xml_reader() override;

    /// Decides what becomes of a failure: `ELMX_OK` swallows it and reading goes on, any other code ends the read
    /// with that code. The default keeps the code. `item_name` is the element or attribute, `file` and `line` the
    /// place of the check in the library's source.
    virtual elmx_error user_handle_error(elmx_error code, const std::string& item_name, const char* file, int line);
    virtual elmx_error user_handle_error(elmx_error code);
    /// Line, item and text of the last failure, such as "line:12-'Vyr:Color'-Mandatory element missing", or
    /// "No Error". Returns `*out`.
    virtual std::string& get_error_message(std::string* out) const;
    /// Sees a failure that goes around the handler and ends the read. The default does nothing.
    virtual void see_unhandled_error(elmx_error code, const std::string& item_name);

    /// Records a failure and asks the handler.
    elmx_error handle_error(elmx_error code, const std::string& item_name, const char* file, int line);
    elmx_error get_error() const { return m_last_error; }
    const std::string& get_error_item_name() const { return m_error_item_name; }
    /// The scanner's last report; false while there has been none.
    bool get_error_info(elmx_error_type* type, elmx_error* code, int* line) const {
        return m_collector.get_error_info(type, code, line);
    }
    /// The current line, from 1.
    int get_line_no() const { return get_line_num(); }

    /// Gives the table's numbers to its URIs, and binds the mappings asked for.
    void set_ns_map(const s_ns_map* map);
    /// Asks for a prefix to be bound in the outermost scope by the next `set_ns_map`.
    void add_namespace_mapping(const std::string& prefix, const std::string& uri) {
        m_ns_mappings.emplace_back(prefix, uri);
    }
    void add_default_namespace_mapping(const std::string& uri) { add_namespace_mapping(std::string(), uri); }

    /// Sets the event from the current name: the token of the row that matches, or `ELXP_UNKNOWN`.
    void tokenise(const s_event_map* map, elxp_attr_elem kind);
    /// What the current name is among all names of a schema: its token, one of the events of the instance namespace,
    /// or `ELXP_UNKNOWN`. Doesn't touch the event. `likely` is a token that it may well be, 0 for none.
    int find_token(const s_name_lists& names, elxp_attr_elem kind, int likely = 0) const {
        const c_name_list& list = names.of(kind);
        const bool is_likely =
            likely != 0 && name_ns_id(kind) == list.ns_id() && list.is(likely, m_cracked_name.get_local_view());
        return is_likely ? likely : search_token(names, kind);
    }
    /// The next event between tags; a name is tokenised if `map` isn't null. `*error` is set on failure only.
    void get_element_event(const s_event_map* map, elmx_error* error, std::string* name);
    /// The next attribute; false at the end of the start tag. `*error` is 0 or the failure.
    bool get_attribute_event(const s_event_map* map, elmx_error* error, std::string* name);
    /// As `get_element_event`, skipping elements that neither `map` nor the known elements name.
    void get_known_element_event(const s_event_map* map, elmx_error* error, std::string* name);
    /// The value of a simple element, through its end tag.
    bool get_simple_type_value(const std::string& name, elmx_whitespace mode, std::string* value, elmx_error* error,
                               bool* is_empty);
    /// Any content as text, through the end tag.
    bool get_element_ur_value(const std::string& name, std::string* value, elmx_error* error, bool* is_empty);
    bool get_nested_element_value(std::string* value, std::string* end_name, elmx_whitespace mode, bool);

    using c_xml::get_named_attribute;
    using c_xml::get_xsi_type;
    using c_xml::is_xsi_attribute;
    bool get_xsi_type(int* ns_id, std::string* type_name) { return c_xml::get_xsi_type(m_local, ns_id, type_name); }
    bool get_named_attribute(int ns_id, const std::string& local_name, std::string* value) {
        return c_xml::get_named_attribute(m_local, ns_id, local_name, value);
    }
    bool is_xsi_attribute(const std::string& name) const { return c_xml::is_xsi_attribute(m_local, name); }
    /// Whether a name is a qualified name in the current scope. Only ASCII letters count.
    bool is_valid_qname(const std::string& qname) const;
    /// The URI of a name's prefix; empty for no namespace, `k_namespace_not_found` for an unbound prefix.
    std::string& get_namespace(const std::string& qname, std::string* out) const;

    int get_current_event() const { return m_current_event; }
    /// What `get_element_event` last delivered, before anything was tokenised.
    int get_scanned_event() const { return m_scanned_event; }
    void restore_event(int event) { m_current_event = event; }
    bool is_current_event_tokenisable() const {
        return m_current_event == ELXP_NAME || m_current_event == ELXP_UNKNOWN || m_current_event >= k_first_token;
    }

    using c_xml::get_local_name;
    using c_xml::get_ns_id;
    const std::string& get_full_name() const { return m_cracked_name.get_full_name(); }
    const std::string& get_local_name() const { return m_cracked_name.get_local_name(); }
    bool get_has_ns_prefix() const { return m_cracked_name.get_has_ns_prefix(); }
    int get_ns_id() const { return m_cracked_name.get_ns_id(); }
    int get_element_ns_id() const { return m_cracked_name.get_element_ns_id(); }

    c_string_stack& get_element_name_stack() { return m_element_name_stack; }
    c_xml_local* get_reader_local() const { return m_local; }
    void set_reader_local(c_xml_local* local) { m_local = local; }
    const s_known_elements* get_known_elements() const { return m_known_elements; }
    void set_known_elements(const s_known_elements* known) { m_known_elements = known; }

    /// What those who read elements note for whom describes a failure.
    s_fault_notes& notes() { return m_notes; }
    const s_fault_notes& notes() const { return m_notes; }
    /// What a failure is described with.
    s_diagnosis diagnose() const;

    // For those who take elements from the window without events.

    /// The bytes that come next, as they stand in the document and in UTF-8; empty if the next character may be
    /// another one.
    std::string_view get_plain_window() const { return ahead(); }
    /// The size of the character at the start of the bytes; 0 if it isn't plain, or not whole.
    std::size_t get_plain_length(std::string_view bytes) const { return plain_length(bytes); }
    /// Takes bytes of the window, whole elements without carriage returns and with so many line feeds. All is left as
    /// if events had been read up to there, but for what the next event replaces in any case.
    void take_plain(std::size_t count, int line_feeds, const s_plain_trace& trace);

private:
    elmx_error event_error() const;
    /// The number of the current name's namespace, as that of an attribute or of an element.
    int name_ns_id(elxp_attr_elem kind) const {
        const bool is_plain_attribute = kind == ELXP_ATTRIBUTE && !m_cracked_name.get_has_ns_prefix();
        return is_plain_attribute ? static_cast<int>(k_no_ns) : m_cracked_name.get_element_ns_id();
    }
    int search_token(const s_name_lists& names, elxp_attr_elem kind) const;

    c_xml_local* m_local = nullptr;
    c_xml_reader_local m_root_local;
    elmx_error m_last_error = ELMX_OK;
    std::string m_error_item_name;
    c_string_stack m_element_name_stack;
    c_cracked_name m_cracked_name;
    int m_current_event = ELXP_END_OF_INPUT;
    int m_scanned_event = ELXP_END_OF_INPUT;
    std::vector<std::pair<std::string, std::string>> m_ns_mappings;  ///< prefix, uri
    const s_known_elements* m_known_elements = nullptr;
    s_fault_notes m_notes;

public:
    // Work strings of whoever reads: the element's name, a value's text, the attribute's name.
    std::string m_name;
    std::string m_value;
    std::string m_attr_name;
};

/// A reader on a file.
class VYR_EXPORT c_xml_reader_file : public c_xml_reader {
public:
    /// Named in UTF-8.
    explicit c_xml_reader_file(const char* path) : c_xml_reader(m_source), m_source(path) {}
    explicit c_xml_reader_file(const char16_t* path) : c_xml_reader(m_source), m_source(path) {}
    /// Takes the open file and closes it.
    explicit c_xml_reader_file(std::FILE* file) : c_xml_reader(m_source), m_source(file) {}

    bool is_open() const { return m_source.is_open(); }
    /// The `errno` of a read that the system refused: the document was cut short there. 0 if none was.
    int get_read_error() const { return m_source.get_read_error(); }

private:
    c_read_file m_source;
};

/// A reader on bytes in memory, borrowed.
class VYR_EXPORT c_xml_reader_memory : public c_xml_reader {
public:
    c_xml_reader_memory(const char* data, std::size_t length) : c_xml_reader(m_source), m_source(data, length) {}

    bool is_open() const { return m_source.is_open(); }

private:
    c_read_memory m_source;
};

/// Sets the elements that `get_known_element_event` doesn't skip, for as long as it lives.
class c_known_elements_selector {
public:
    c_known_elements_selector(c_xml_reader& reader, const s_known_elements* known)
        : m_reader(reader), m_saved(reader.get_known_elements()) {
        reader.set_known_elements(known);
    }
    c_known_elements_selector(const c_known_elements_selector&) = delete;
    c_known_elements_selector& operator=(const c_known_elements_selector&) = delete;
    ~c_known_elements_selector() { m_reader.set_known_elements(m_saved); }

private:
    c_xml_reader& m_reader;
    const s_known_elements* m_saved;
};

/// Splits a list value at white space.
class VYR_EXPORT c_xml_list_tokeniser {
public:
    explicit c_xml_list_tokeniser(const std::string& text) { set(text); }
    void set(const std::string& text) {
        m_text = text;
        m_position = 0;
    }
    /// False when nothing is left.
    bool get(std::string* item);

private:
    std::string m_text;
    std::size_t m_position = 0;
};

/// The namespace of the document element. False if there is none or its prefix isn't bound. Rewinds.
VYR_EXPORT bool get_instance_namespace(c_xml_reader& reader, std::string* ns);

/// Looks through a whole document for attributes of that name and hands their values to `evaluate`: the first
/// answer other than 0, 1 if the document can't be read, 0 if nothing was found. Rewinds.
VYR_EXPORT elmx_must_understand has_must_understand(c_xml_reader& reader, const std::string& uri,
                                                    const std::string& local_name,
                                                    elmx_must_understand (*evaluate)(const std::string&));

}  // namespace lmx
