// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The scanner: finds tags, keeps a start tag's attributes, tracks namespace declarations, reads values, and skips
/// or copies what the caller doesn't want. It validates nothing.

#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "lmx/export.h"
#include "lmx/reader/attribute_list.h"
#include "lmx/reader/diagnosis.h"
#include "lmx/reader/get_for_xml.h"
#include "lmx/reader/internal_dtd.h"
#include "lmx/reader/namespaces.h"
#include "lmx/reader/string_stack.h"

namespace lmx {

/// Events of the scanner and the reader; from 12 on, tokens of generated tables.
enum elxp_xml_event : int {
    ELXP_END_OF_INPUT = 0,
    ELXP_UNKNOWN = 1,  ///< a name that no table row matched
    ELXP_FATAL = 2,
    ELXP_ERROR = 3,
    ELXP_START_TAG_END = 4,
    ELXP_TEXT = 5,
    ELXP_END_TAG = 6,  ///< also the end of an empty element
    ELXP_NAME = 7,     ///< of a start tag or an attribute
    ELXP_XSI_TYPE = 8,
    ELXP_XSI_NIL = 9,
    ELXP_XSI_SCHEMA_LOCATION = 10,
    ELXP_XSI_NO_NAMESPACE_SCHEMA_LOCATION = 11
};
inline constexpr int k_first_token = 12;

/// What was taken from the window without events, as far as later events and reports look at it.
struct s_plain_trace {
    std::string_view tag;             ///< the last start tag, from its name to ahead of its end
    int tag_line = 0;                 ///< where its name stands
    std::string_view attribute_name;  ///< the last one; without data if there was none
    bool has_value = false;
    std::string_view value;                         ///< the last one of an attribute or element
    elmx_whitespace whitespace = ELMX_WS_PRESERVE;  ///< how it was read
};

class VYR_EXPORT c_xml : public c_get_for_xml {
public:
    c_xml(c_read& reader, c_error& error, bool normalise_char_refs)
        : c_get_for_xml(reader, error, normalise_char_refs), m_dtd(*this) {}

    /// Advances to the next tag or text, and reads a start tag's attributes. Declarations go to `local`, which may
    /// be null. `name` receives the tag's name or the text.
    elxp_xml_event get_element_name(c_xml_local* local, std::string* name);
    /// The next attribute's name, or the end of the start tag.
    elxp_xml_event get_attribute_name(std::string* name, bool in_pi);
    /// The value of the attribute just named. False for a reference that can't be resolved, and if no attribute
    /// waits for its value to be read.
    bool get_attribute_value(std::string* value, elmx_whitespace mode);
    bool skip_attribute_value();
    /// The text up to the next tag. Comments and processing instructions don't split it.
    bool get_element_value(std::string* value, elmx_whitespace mode, bool expand_entities);
    bool is_element_end_tag(const std::string& name);
    bool skip_start_tag(bool* is_empty) { return move_to_start_tag_end(is_empty); }
    bool skip_rest_of_empty_element(const std::string& name);
    bool skip_rest_of_element(const std::string& name);
    bool skip_element_body(const std::string& name);
    /// The element whose start tag was just read, as text. The last argument has no effect.
    bool get_any_element(const std::string& name, std::string* xml, elmx_whitespace mode, bool);
    /// Appends text and elements up to the first end tag that closes none of them. The last argument has no effect.
    bool get_nested_element_value(std::string* value, std::string* end_name, elmx_whitespace mode, bool);

    /// Looks through the attributes from the current one on; the first attribute is the current one afterwards.
    bool get_named_attribute(const c_xml_local* local, int ns_id, const std::string& local_name, std::string* value);
    bool get_xsi_type(const c_xml_local* local, int* ns_id, std::string* type_name);
    bool is_xsi_attribute(const c_xml_local* local, const std::string& name) const;
    /// The number of a name's prefix, or of the default namespace.
    int get_ns_id(const c_xml_local* local, const std::string& name) const;

    /// The line where the event that `get_element_name` delivered last, or failed to, begins.
    int get_event_line() const { return m_event_line; }
    /// The offset behind its first character.
    std::uint64_t get_event_offset() const { return m_event_offset; }
    /// What a failure here is described with.
    s_diagnosis diagnose() const;
    /// The value of the first attribute of that full name in the last start tag, with references as they stand there;
    /// without data if there's none. Good until the next event.
    std::string_view find_raw_attribute_value(std::string_view name) const;

    int add_namespace(const char* uri) { return m_namespaces.add_namespace(uri); }
    void add_namespace(const char* uri, int id) { m_namespaces.add_namespace(uri, id); }
    int find_enumerated_namespace(const std::string& uri) const { return m_namespaces.find_namespace(uri); }
    const char* find_namespace_from_id(int id) const { return m_namespaces.find_namespace_from_id(id); }

    /// Whether a load goes on behind a fault of structure that its handler lets pass. It then looks at a wrong end
    /// tag as a whole, takes it, and leaves all else that stands in place of an end tag where it is.
    bool is_recovering() const { return m_is_recovering; }
    void set_recovering(bool is_recovering) { m_is_recovering = is_recovering; }
    /// The name of the wrong end tag that `is_element_end_tag` took last; empty if it took none.
    std::string take_wrong_end_name() { return std::exchange(m_wrong_end_name, {}); }

    /// Define entities ahead of a parse.
    void add_general_entity(const std::string& name, const std::string& value) {
        general_entities().add(name, value);
    }
    void add_parameter_entity(const std::string& name, const std::string& value) {
        parameter_entities().add(name, value);
    }

    /// The part of a name behind its first colon, and the part ahead of it.
    static std::string& get_local_name(const std::string& qname, std::string* out);
    static std::string& get_namespace_prefix(const std::string& qname, std::string* out);
    static bool is_error_event(int event) { return event == ELXP_FATAL || event == ELXP_ERROR; }

    void rewind();

protected:
    /// Takes a start tag, which is plain and lies ahead, from its name up to its end, and all its attributes.
    void take_plain_tag(std::size_t name_length);
    bool has_attributes() const { return !m_attributes.empty(); }

private:
    static constexpr std::size_t k_none = static_cast<std::size_t>(-1);

    class c_text_name_reader;
    enum class e_piece { start_tag, text, end_tag, error };

    /// Reports it; false.
    bool refuse(scanner_fault fault, std::initializer_list<std::string_view> parts = {});
    elxp_xml_event deliver(elxp_xml_event event);

    elxp_xml_event scan_start_tag(c_xml_local* local, int c, std::string* name);
    elxp_xml_event scan_end_tag(std::string* name);
    elxp_xml_event scan_text(std::string* name);
    /// Both true if the scan goes on behind them.
    bool scan_instruction();
    bool scan_doctype();

    /// Appends a name or the rest of one; the character behind it.
    int read_name(std::string* out);
    bool take_any_end_tag(const std::string& name);
    bool read_end_tag(std::string* name);
    bool read_cdata(std::string* out);
    void read_cdata_text(std::string* out);
    bool read_attributes(c_xml_local* local);
    bool read_raw_value(s_attribute* attribute);
    void declare_namespace(c_xml_local* local, const s_attribute& attribute);

    bool read_reference(c_entity_name_reader& reader, std::string* out);
    bool read_entity_name(c_entity_name_reader& reader);
    bool keep_unresolved(bool has_semicolon, std::string* out);
    bool expand_in_place(s_entity_text& entity, std::string* out);
    bool expand_raw_text(const char* text, std::size_t size, std::size_t* position, std::string* out, bool is_plain);

    e_piece next_piece(std::string* out, std::string* name);
    bool copy_rest_of_start_tag(std::string* out, bool* is_empty);
    bool copy_content(std::string* out, std::string* end_name);
    std::string_view name_of(const s_attribute& attribute) const {
        return std::string_view(m_attr_buffer).substr(attribute.name, attribute.name_length);
    }
    std::string_view raw_value_of(const s_attribute& attribute) const {
        return std::string_view(m_attr_buffer).substr(attribute.value, attribute.value_length);
    }
    bool read_value_of(const s_attribute& attribute, std::string* value);
    void append_attributes(const c_attribute_list& list, std::string* out) const;
    void clear_attributes();

    std::string m_entity_name;
    c_internal_dtd m_dtd;
    c_enumerated_namespaces m_namespaces;
    bool m_doctype_read = false;
    bool m_content_seen = false;
    int m_event_line = 1;
    std::uint64_t m_event_offset = 0;
    std::string m_attr_buffer;  ///< the start tag's names and raw values
    c_attribute_list m_attributes;
    c_attribute_list m_ns_attributes;
    c_attribute_list::s_cursor m_named;  ///< the attribute that was named last; at the start if none was
    bool m_is_value_due = false;         ///< that of the named one
    std::size_t m_value_position = 0;    ///< how far that was read
    bool m_is_recovering = false;
    std::string m_wrong_end_name;
    std::string m_uri;
    std::string m_work_name;
};

}  // namespace lmx
