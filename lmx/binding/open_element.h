// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What a load or a save keeps at hand so that a failure can be described: the elements that are open, as a list
/// through its stack, and for the time that a handler is asked, what the failure is about.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "lmx/binding/document.h"
#include "lmx/binding/source_place.h"
#include "lmx/binding/table.h"
#include "lmx/reader/string_stack.h"
#include "lmx/reader/xml_reader.h"
#include "lmx/writer/xml_writer.h"

namespace lmx {

/// One open element of a schema-bound class.
struct s_open_element {
    s_open_element* outer;  ///< null for the outermost
    const s_class* type;
    const void* object;
    const c_string_stack_node* node;    ///< of a load: holds the name
    const char* written_name;           ///< of a save
    int line;                           ///< of a load: where the start tag begins
    std::uint64_t offset;               ///< of a load: that behind the first character of the start tag
    const s_item* last_item = nullptr;  ///< of a load: the item that was read last
    std::size_t depth = outer == nullptr ? 1 : outer->depth + 1;

    const char* get_name() const { return node != nullptr ? node->get_str() : written_name; }
};

/// Notes the item of the innermost open element that was read.
inline void note_item(c_xml_reader& reader, const s_item& item) {
    if (s_open_element* const element = reader.notes().open_element) element->last_item = &item;
}

/// What a failure is about, as far as its code doesn't say it. All may be null.
struct s_fault_site {
    const s_class* type = nullptr;  ///< the class whose item it is, or that lacks something
    const s_item* item = nullptr;   ///< the value, or what is missing
    const void* object = nullptr;   ///< of the class
    const s_document* document = nullptr;
};

/// Makes an element the innermost open one for as long as this lives.
template <class Stream>
class c_open_element {
public:
    c_open_element(Stream& stream, const s_open_element& element) : m_stream(stream), m_element(element) {
        stream.notes().open_element = &m_element;
    }
    c_open_element(const c_open_element&) = delete;
    c_open_element& operator=(const c_open_element&) = delete;
    ~c_open_element() { m_stream.notes().open_element = m_element.outer; }

private:
    Stream& m_stream;
    s_open_element m_element;
};

/// Tells what a failure is about for as long as this lives: a handler may throw.
template <class Stream>
class c_told_site {
public:
    c_told_site(Stream& stream, const s_fault_site& site) : m_stream(stream) { stream.notes().fault_site = &site; }
    c_told_site(const c_told_site&) = delete;
    c_told_site& operator=(const c_told_site&) = delete;
    ~c_told_site() { m_stream.notes().fault_site = nullptr; }

private:
    Stream& m_stream;
};

/// Passes a failure with its site to the handler; the handler's answer.
template <class Stream>
elmx_error report_at(Stream& stream, const s_fault_site& site, elmx_error code, const std::string& item_name,
                     s_source_place place = s_source_place::current()) {
    const c_told_site told(stream, site);
    return stream.handle_error(code, item_name, place.file, place.line);
}

/// The same for a failure that goes around the handler; the code.
template <class Stream>
elmx_error report_unhandled(Stream& stream, const s_fault_site& site, elmx_error code, const std::string& item_name) {
    const c_told_site told(stream, site);
    stream.see_unhandled_error(code, item_name);
    return code;
}

}  // namespace lmx
