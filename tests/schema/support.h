// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Reading and writing one element of the format in a test, without a document around it.

#pragma once

#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "schema/Vyr.h"

namespace vyr_test {

namespace v2 = com_vyrgraph_v2;

inline const std::string k_declarations =
    " xmlns:Vyr=\"http://vyrgraph.com/v2\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";

inline const std::string k_change_history = "<Vyr:ChangeHistory>2024-05-01T09:30:00Z</Vyr:ChangeHistory>";

/// What a read ended with.
struct s_outcome {
    lmx::elmx_error code = lmx::ELMX_OK;
    std::string item;
    int line = 0;
    friend bool operator==(const s_outcome& one, const s_outcome& other) {
        return one.code == other.code && one.item == other.item;
    }
    friend std::ostream& operator<<(std::ostream& os, const s_outcome& outcome) {
        return os << outcome.code << " '" << outcome.item << "' line " << outcome.line;
    }
};

inline s_outcome failure(lmx::elmx_error code, const std::string& item) { return {code, item, 0}; }

/// Puts the namespace declarations into the first start tag of a fragment.
inline std::string with_declarations(std::string xml) {
    const std::size_t end_of_name = xml.find_first_of(" />");
    return xml.insert(end_of_name, k_declarations);
}

/// Reads an element into an object of its class, through a reader that the caller may have made.
template <class T>
s_outcome read_with(lmx::c_xml_reader& reader, T& object) {
    reader.set_ns_map(v2::Vyr::ns_map());
    const lmx::c_xml_reader_local scope(reader);
    lmx::elmx_error error = lmx::ELMX_OK;
    reader.get_element_event(nullptr, &error, &reader.m_name);
    if (error == lmx::ELMX_OK) error = object.unmarshal(reader, reader.m_name);
    return {error, error == lmx::ELMX_OK ? std::string() : reader.get_error_item_name(), reader.get_line_no()};
}

template <class T>
s_outcome read(T& object, const std::string& xml) {
    const std::string text = with_declarations(xml);
    lmx::c_xml_reader_memory reader(text.data(), text.size());
    return read_with(reader, object);
}

/// A reader whose handler swallows every error and remembers it.
class c_swallowing_reader : public lmx::c_xml_reader_memory {
public:
    explicit c_swallowing_reader(const std::string& text) : c_xml_reader_memory(text.data(), text.size()) {}
    using c_xml_reader_memory::user_handle_error;
    lmx::elmx_error user_handle_error(lmx::elmx_error code, const std::string& item, const char*, int) override {
        swallowed.push_back({code, item, get_line_no()});
        return lmx::ELMX_OK;
    }
    std::vector<s_outcome> swallowed;
};

/// The text of an element without declarations and indentation; `*code` receives the result.
template <class T>
std::string write(const T& object, const char* name, lmx::elmx_error* code) {
    std::ostringstream stream;
    lmx::c_xml_writer writer(stream, "", "");
    *code = object.marshal(writer, name);
    std::string text = std::move(stream).str();
    const std::size_t declarations = text.find(k_declarations);
    if (declarations != std::string::npos) text.erase(declarations, k_declarations.size());
    return text;
}

template <class T>
lmx::elmx_error write_code(const T& object, const char* name) {
    lmx::elmx_error code = lmx::ELMX_OK;
    write(object, name, &code);
    return code;
}

template <class T>
std::string write(const T& object, const char* name) {
    lmx::elmx_error code = lmx::ELMX_OK;
    const std::string text = write(object, name, &code);
    return code == lmx::ELMX_OK ? text : "failed with " + std::to_string(code) + " behind " + text;
}

}  // namespace vyr_test
