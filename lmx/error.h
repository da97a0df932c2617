// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Result codes, the collector of scanner reports, and the two exception classes that hosts may use.
///
/// Every operation that can fail returns an `elmx_error`; nothing in the runtime throws of its own.

#pragma once

#include <cstdint>
#include <string>

#include "lmx/export.h"

namespace lmx {

class c_get_as_utf8;

/// Flat result code. 0 is the only success; 1 to 46 are the library's own; 1000 to 1008 are free for hosts
/// (the document calls use the first two).
enum elmx_error : std::int32_t {
    ELMX_OK = 0,
    ELMX_NO_FILE,
    ELMX_ALL_CARDINALITY_VIOLATION,
    ELMX_ATTRIBUTE_ALREADY_READ,
    ELMX_ATTRIBUTES_IN_ANONYMOUS_COMPOSITOR,
    ELMX_BADLY_FORMED,
    ELMX_BAD_CHAR_ENCODING,
    ELMX_BAD_CHOICE,
    ELMX_BAD_COMMENT,
    ELMX_BAD_DTD,
    ELMX_BAD_END_OF_ELEMENT,
    ELMX_BAD_START_TAG_END,
    ELMX_BAD_END_TAG,
    ELMX_BAD_XML_DECL,
    ELMX_BAD_XML_VERSION,
    ELMX_ENCODING_MISMATCH,
    ELMX_ELEMENT_NOT_FOUND,
    ELMX_EXTERNAL_ENTITY,
    ELMX_FRACTION_DIGITS_EXCEEDED,
    ELMX_LENGTH_TOO_LONG,
    ELMX_LENGTH_TOO_SHORT,
    ELMX_MANDATORY_ELEMENT_MISSING,
    ELMX_NO_PATTERN_MATCHED,
    ELMX_NOT_WELL_FORMED,
    ELMX_RECURSIVE_ENTITY,
    ELMX_REQUIRED_ATTRIBUTES_MISSING,
    ELMX_TOO_MANY_ITEMS,
    ELMX_TOTAL_DIGITS_EXCEEDED,
    ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE,
    ELMX_UNABLE_TO_READ_ELEMENT_VALUE,
    ELMX_UNKNOWN_ELEMENT_IN_ALL,
    ELMX_UNKNOWN_ELEMENT_IN_COMPLEX_CONTENT,
    ELMX_UNEXPECTED_EMPTY_ELEMENT,
    ELMX_UNEXPECTED_ENTITY,
    ELMX_UNEXPECTED_END_OF_MESSAGE,
    ELMX_VALUE_BAD_FORMAT,
    ELMX_VALUE_EXCEEDS_MAX,
    ELMX_VALUE_BELOW_MIN,
    ELMX_VALUE_NOT_ENUMERATED,
    ELMX_UNEXPECTED_ATTRIBUTE,
    ELMX_NILLED_BODY_NOT_EMPTY,
    ELMX_ENTITY_NOT_FOUND,
    ELMX_UNDEFINED_ERROR,
    ELMX_VALUE_NOT_FIXED,
    ELMX_UNKNOWN_XSI_TYPE,
    ELMX_TYPE_NOT_SET,
    ELMX_OCCURS_ERROR_ON_MARSHAL,
    ELMX_USER_DEFINED_1 = 1000,
    ELMX_USER_DEFINED_2,
    ELMX_USER_DEFINED_3,
    ELMX_USER_DEFINED_4,
    ELMX_USER_DEFINED_5,
    ELMX_USER_DEFINED_6,
    ELMX_USER_DEFINED_7,
    ELMX_USER_DEFINED_8,
    ELMX_USER_DEFINED_9
};

/// Severity of a scanner report. Only a fatal report changes anything: it shuts the `c_error` it reaches.
enum elmx_error_type : std::int32_t {
    ELMX_TYPE_FATAL = 0,
    ELMX_TYPE_ERROR = 1,
    ELMX_TYPE_WARNING = 2,
    ELMX_TYPE_NOTE = 3,
    ELMX_TYPE_NONE = 4
};

/// The text of a code, such as "Mandatory element missing"; the empty string for a value that is no code.
/// Never null.
VYR_EXPORT const char* get_error_description(elmx_error code);

class c_getter_error_binder;

/// Collects the scanner's reports: counts them, keeps the last one, and closes at the first fatal one.
///
/// Override `report_error` to see the free text of each report. Copies by fields; belongs to one thread at a time.
class VYR_EXPORT c_error {
public:
    c_error() = default;
    c_error(const c_error&) = default;
    c_error& operator=(const c_error&) = default;
    virtual ~c_error();

    /// Takes a report: stores it as the last one, counts it and hands it to `report_error`.
    /// Does nothing at all after the first fatal report. `source_id` may be null.
    void error(elmx_error_type type, elmx_error code, const char* source_id, int line, const char* text);

    /// The same, with source and line taken from the registered input; null and -1 when there is none.
    void error(elmx_error_type type, elmx_error code, const char* text);

    /// Sees every accepted report with its free text. The default does nothing.
    virtual void report_error(elmx_error_type type, elmx_error code, const char* source_id, int line,
                              const char* text);

    /// The last report. False, leaving the arguments alone, while there has been none.
    bool get_error_info(elmx_error_type* type, elmx_error* code, int* line) const;

    elmx_error get_last_error() const { return m_last_error; }
    elmx_error_type get_last_error_type() const { return m_last_type; }
    /// True after a fatal or an ordinary error; warnings and notes don't count.
    bool is_errored() const { return m_fatal_count + m_error_count != 0; }
    bool is_fatal_errored() const { return m_fatal_count != 0; }

    /// Makes the binder's input the one that gives positions; returns the one that did before.
    c_get_as_utf8* register_getter(c_getter_error_binder* binder);
    /// Puts back the input that the binder replaced.
    void unregister_getter(c_getter_error_binder* binder);

private:
    c_get_as_utf8* m_getter = nullptr;
    std::int32_t m_fatal_count = 0;
    std::int32_t m_error_count = 0;
    std::int32_t m_warning_count = 0;
    std::int32_t m_note_count = 0;
    elmx_error_type m_last_type = ELMX_TYPE_NONE;
    elmx_error m_last_error = ELMX_OK;
    std::int32_t m_last_line = -1;
};

/// Ties an input to a `c_error` for the binder's lifetime, so that the innermost open input gives positions.
class VYR_EXPORT c_getter_error_binder {
public:
    explicit c_getter_error_binder(c_error& error) : m_error(error) {}
    c_getter_error_binder(const c_getter_error_binder&) = delete;
    c_getter_error_binder& operator=(const c_getter_error_binder&) = delete;
    ~c_getter_error_binder();

    /// Registers `getter`. A second call does nothing.
    void bind(c_get_as_utf8* getter);

    c_get_as_utf8* get_new_getter() const { return m_new_getter; }
    c_get_as_utf8* get_old_getter() const { return m_old_getter; }

private:
    bool m_bound = false;
    c_error& m_error;
    c_get_as_utf8* m_new_getter = nullptr;
    c_get_as_utf8* m_old_getter = nullptr;
};

/// For hosts that prefer exceptions: carries one code. The library itself never throws it.
class VYR_EXPORT c_lmx_exception {
public:
    explicit c_lmx_exception(elmx_error code) : m_error(code) {}
    c_lmx_exception(const c_lmx_exception&) = default;
    c_lmx_exception& operator=(const c_lmx_exception&) = default;
    virtual ~c_lmx_exception();

    elmx_error get_error() const { return m_error; }
    /// The text of the code; the empty string for a value that is no code.
    virtual const char* what() const;

private:
    elmx_error m_error;
};

/// The same with the line of the document, counted from 1.
class VYR_EXPORT c_lmx_reader_exception : public c_lmx_exception {
public:
    c_lmx_reader_exception(elmx_error code, int line) : c_lmx_exception(code), m_line(line) {}
    c_lmx_reader_exception(const c_lmx_reader_exception&) = default;
    c_lmx_reader_exception& operator=(const c_lmx_reader_exception&) = default;
    ~c_lmx_reader_exception() override;

    int get_line() const { return m_line; }

private:
    std::int32_t m_line;
};

}  // namespace lmx
