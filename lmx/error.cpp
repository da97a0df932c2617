// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/error.h"

#include <algorithm>
#include <array>

#include "lmx/reader/get_as_utf8.h"

namespace lmx {
namespace {

struct s_error_text {
    elmx_error code;
    const char* text;
};

/// In ascending order of codes: looked up by bisection.
constexpr std::array<s_error_text, 56> k_error_texts{{
    {ELMX_OK, "No Error"},
    {ELMX_NO_FILE, "Unable to open file"},
    {ELMX_ALL_CARDINALITY_VIOLATION, "Violation of xs:all cardinality constraints"},
    {ELMX_ATTRIBUTE_ALREADY_READ, "Attribute has already been read"},
    {ELMX_ATTRIBUTES_IN_ANONYMOUS_COMPOSITOR, "Attributes found in anonymous compositor"},
    {ELMX_BADLY_FORMED, "XML badly formed"},
    {ELMX_BAD_CHAR_ENCODING, "XML character encoding not supported"},
    {ELMX_BAD_CHOICE, "Inappropriate choice option selected"},
    {ELMX_BAD_COMMENT, "Badly formed comment"},
    {ELMX_BAD_DTD, "Badly formed DTD"},
    {ELMX_BAD_END_OF_ELEMENT, "Bad end of element"},
    {ELMX_BAD_START_TAG_END, "Bad start tag end"},
    {ELMX_BAD_END_TAG, "Syntax error in end tag"},
    {ELMX_BAD_XML_DECL, "Bad XML Decl spec"},
    {ELMX_BAD_XML_VERSION, "Unsupported XML version"},
    {ELMX_ENCODING_MISMATCH, "Mis-match between specified char encoding and read bytes"},
    {ELMX_ELEMENT_NOT_FOUND, "Element not found"},
    {ELMX_EXTERNAL_ENTITY, "Reference to external entity"},
    {ELMX_FRACTION_DIGITS_EXCEEDED, "Fraction digits exceeded"},
    {ELMX_LENGTH_TOO_LONG, "Length too long"},
    {ELMX_LENGTH_TOO_SHORT, "Length too short"},
    {ELMX_MANDATORY_ELEMENT_MISSING, "Mandatory element missing"},
    {ELMX_NO_PATTERN_MATCHED, "No pattern matched"},
    {ELMX_NOT_WELL_FORMED, "Not well formed"},
    {ELMX_RECURSIVE_ENTITY, "Recursive entity definition"},
    {ELMX_REQUIRED_ATTRIBUTES_MISSING, "Required attribute(s) missing"},
    {ELMX_TOO_MANY_ITEMS, "Element instances exceeds maxOccurs"},
    {ELMX_TOTAL_DIGITS_EXCEEDED, "Total digits exceeded"},
    {ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE, "Unable to read attribute value"},
    {ELMX_UNABLE_TO_READ_ELEMENT_VALUE, "Unable to read element value"},
    {ELMX_UNKNOWN_ELEMENT_IN_ALL, "Unknown element in xs:all"},
    {ELMX_UNKNOWN_ELEMENT_IN_COMPLEX_CONTENT, "Unknown element in complexContent"},
    {ELMX_UNEXPECTED_EMPTY_ELEMENT, "Unexpected empty element"},
    {ELMX_UNEXPECTED_ENTITY, "Unexpected entity"},
    {ELMX_UNEXPECTED_END_OF_MESSAGE, "Unexpected end of message"},
    {ELMX_VALUE_BAD_FORMAT, "Invalid value format for this type"},
    {ELMX_VALUE_EXCEEDS_MAX, "Value greater than specified maximum"},
    {ELMX_VALUE_BELOW_MIN, "Value less than specified minimum"},
    {ELMX_VALUE_NOT_ENUMERATED, "Value does not match enumerations"},
    {ELMX_UNEXPECTED_ATTRIBUTE, "Unexpected attribute"},
    {ELMX_NILLED_BODY_NOT_EMPTY, "Nilled element body not empty"},
    {ELMX_ENTITY_NOT_FOUND, "Entity not found"},
    {ELMX_UNDEFINED_ERROR, "Undefined error"},
    {ELMX_VALUE_NOT_FIXED, "Value does not match specified fixed constraint"},
    {ELMX_UNKNOWN_XSI_TYPE, "Unknown xsi:type"},
    {ELMX_TYPE_NOT_SET, "Type not set"},
    {ELMX_OCCURS_ERROR_ON_MARSHAL, "min/max occurs error on marshaling"},
    {ELMX_USER_DEFINED_1, "User defined error 1"},
    {ELMX_USER_DEFINED_2, "User defined error 2"},
    {ELMX_USER_DEFINED_3, "User defined error 3"},
    {ELMX_USER_DEFINED_4, "User defined error 4"},
    {ELMX_USER_DEFINED_5, "User defined error 5"},
    {ELMX_USER_DEFINED_6, "User defined error 6"},
    {ELMX_USER_DEFINED_7, "User defined error 7"},
    {ELMX_USER_DEFINED_8, "User defined error 8"},
    {ELMX_USER_DEFINED_9, "User defined error 9"},
}};

constexpr bool is_before(const s_error_text& row, elmx_error code) { return row.code < code; }

}  // namespace

const char* get_error_description(elmx_error code) {
    const auto row = std::lower_bound(k_error_texts.begin(), k_error_texts.end(), code, is_before);
    return row != k_error_texts.end() && row->code == code ? row->text : "";
}

c_error::~c_error() = default;

void c_error::error(elmx_error_type type, elmx_error code, const char* source_id, int line, const char* text) {
    if (m_fatal_count > 0) return;
    m_last_line = line;
    m_last_error = code;
    m_last_type = type;
    switch (type) {
        case ELMX_TYPE_FATAL:
            ++m_fatal_count;
            ++m_error_count;
            break;
        case ELMX_TYPE_ERROR:
            ++m_error_count;
            break;
        case ELMX_TYPE_WARNING:
            ++m_warning_count;
            break;
        case ELMX_TYPE_NOTE:
            ++m_warning_count;
            ++m_note_count;
            break;
        case ELMX_TYPE_NONE:
            break;
    }
    report_error(type, code, source_id, line, text);
}

void c_error::error(elmx_error_type type, elmx_error code, const char* text) {
    if (m_getter == nullptr) {
        error(type, code, nullptr, -1, text);
    } else {
        error(type, code, m_getter->get_source_id(), m_getter->get_line_num(), text);
    }
}

void c_error::report_error(elmx_error_type, elmx_error, const char*, int, const char*) {}

bool c_error::get_error_info(elmx_error_type* type, elmx_error* code, int* line) const {
    if (m_last_error == ELMX_OK) return false;
    *type = m_last_type;
    *code = m_last_error;
    *line = m_last_line;
    return true;
}

c_get_as_utf8* c_error::register_getter(c_getter_error_binder* binder) {
    c_get_as_utf8* const old_getter = m_getter;
    m_getter = binder->get_new_getter();
    return old_getter;
}

void c_error::unregister_getter(c_getter_error_binder* binder) { m_getter = binder->get_old_getter(); }

c_getter_error_binder::~c_getter_error_binder() {
    if (m_bound) m_error.unregister_getter(this);
}

void c_getter_error_binder::bind(c_get_as_utf8* getter) {
    if (m_bound) return;
    m_bound = true;
    m_new_getter = getter;
    m_old_getter = m_error.register_getter(this);
}

c_lmx_exception::~c_lmx_exception() = default;

const char* c_lmx_exception::what() const { return get_error_description(m_error); }

c_lmx_reader_exception::~c_lmx_reader_exception() = default;

}  // namespace lmx
