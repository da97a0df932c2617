// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "document/report.h"

#include <exception>
#include <system_error>
#include <utility>

#include "document/document_calls.h"
#include "document/report_builder.h"
#include "lmx/binding/document.h"
#include "lmx/binding/failure.h"
#include "lmx/binding/open_element.h"
#include "lmx/binding/shown_text.h"
#include "lmx/values/unicode.h"
#include "zip/exception.h"

namespace com_vyrgraph_v2 {
namespace {

using namespace lmx;

constexpr std::size_t k_longest_path = 4096;

/// Whether the code is that of one attribute or of one value, and says nothing of what is around it.
bool is_of_one_value(elmx_error code) {
    switch (code) {
        case ELMX_ATTRIBUTE_ALREADY_READ:
        case ELMX_UNEXPECTED_ATTRIBUTE:
        case ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE:
        case ELMX_UNABLE_TO_READ_ELEMENT_VALUE:
            return true;
        default:
            return is_of_value(code);
    }
}

/// Whether an attribute that is missing may be there, as this fault says.
bool is_of_attribute(elmx_error code) {
    return code == ELMX_UNEXPECTED_ATTRIBUTE || code == ELMX_UNABLE_TO_READ_ATTRIBUTE_VALUE;
}

/// What a load may pass over and go on.
bool is_passable(const c_xml_reader& reader, elmx_error code) {
    switch (code) {
        case ELMX_REQUIRED_ATTRIBUTES_MISSING:
        case ELMX_UNEXPECTED_EMPTY_ELEMENT:
        case ELMX_UNKNOWN_XSI_TYPE:
            return true;
        case ELMX_UNABLE_TO_READ_ELEMENT_VALUE:
            return !reader.at_end_of_input();
        case ELMX_BADLY_FORMED:
        case ELMX_BAD_END_OF_ELEMENT:
        case ELMX_MANDATORY_ELEMENT_MISSING:
        case ELMX_UNKNOWN_ELEMENT_IN_COMPLEX_CONTENT:
            // Where nothing stands that could be followed, there is nothing to go on with.
            return !c_xml::is_error_event(reader.get_current_event()) &&
                   reader.get_scanned_event() != ELXP_END_OF_INPUT &&
                   !c_xml::is_error_event(reader.get_scanned_event());
        default:
            return is_of_one_value(code);
    }
}

/// A code in words: of those that are free for hosts, what the document calls mean by them.
const char* text_of(elmx_error code) {
    switch (code) {
        case ELMX_USER_DEFINED_1:
            return "Container can't be read or written";
        case ELMX_USER_DEFINED_2:
            return "Unknown ending of a file name";
        default:
            return get_error_description(code);
    }
}

std::string narrow(const std::u16string& text) {
    std::string bytes;
    return convert(&bytes, text);
}

DocumentFault make_fault(elmx_error code, const std::string& file, s_failure&& failure) {
    DocumentFault fault;
    fault.code = code;
    fault.text = text_of(code);
    fault.file = file;
    fault.line = failure.line;
    fault.item = std::move(failure.item);
    fault.path = std::move(failure.path);
    fault.value = std::move(failure.value);
    fault.detail = std::move(failure.detail);
    return fault;
}

/// Whether the cause is an `errno`.
bool is_of_system(const CZipException& failure) { return failure.GetCause() > 0 && failure.GetCause() < zip_generic; }

std::string with_reason(const std::string& what, int system_error) {
    if (system_error == 0) return what;
    return (what.empty() ? what : what + ": ") + std::generic_category().message(system_error);
}

/// Runs a load or a save. What is thrown by a container becomes a fault.
template <class Call>
DocumentReport report_on(const ReportOptions& options, const std::string& file, Call&& call) {
    c_report_builder builder(options, file);
    try {
        call(&builder);
    } catch (const CZipException& failure) {
        builder.add_exception(is_of_system(failure) ? ELMX_NO_FILE : ELMX_USER_DEFINED_1);
    }
    return builder.take();
}

}  // namespace

c_report_builder::c_report_builder(ReportOptions options, const std::string& file)
    : m_options(std::move(options)), m_file(shown(file, k_longest_path)) {}

/// Whether a fault is to be kept. The first that the plain call doesn't pass over, or else the first, gives the code.
bool c_report_builder::count(elmx_error code, bool is_passed_over) {
    if (m_report.m_total++ == 0 || (m_is_passed_over && !is_passed_over)) {
        m_report.m_code = code;
        m_is_passed_over = is_passed_over;
    }
    m_is_last_kept = m_report.m_faults.size() < m_options.limit;
    return m_is_last_kept;
}

elmx_error c_report_builder::see(c_xml_reader& reader, elmx_error code, const std::string& item_name) {
    const bool goes_on = m_options.collect && is_passable(reader, code);
    // A value that is wrong in one way is wrong in another as well; the first says it.
    const bool is_of_one = is_of_one_value(code);
    if (goes_on && is_of_one && reader.notes().is_value_faulty) return ELMX_OK;
    const s_open_element* const open = reader.notes().open_element;
    if (code == ELMX_REQUIRED_ATTRIBUTES_MISSING && open->object == m_mistyped.object &&
        open->line == m_mistyped.line && describe_failure(reader, code, item_name).meant == m_mistyped.meant) {
        // It is there, with a name or a value that was reported already.
        return goes_on ? ELMX_OK : code;
    }
    if (count(code)) {
        s_failure failure = describe_failure(reader, code, item_name);
        if (is_of_attribute(code)) m_mistyped = {open->object, open->line, failure.meant};
        m_characters.push_back({failure.offset, std::move(failure.attribute), failure.is_repetition});
        m_encoding = reader.get_encoding();
        m_has_places = !reader.has_decoded();
        m_report.m_faults.push_back(make_fault(code, m_file, std::move(failure)));
    }
    if (is_of_one) reader.notes().is_value_faulty = true;
    return goes_on ? ELMX_OK : code;
}

elmx_error c_report_builder::end_load(elmx_error error) {
    if (error != ELMX_OK) m_report.m_is_read_to_end = false;
    return error;
}

void c_report_builder::find_columns(const source_maker& open, const s_document& element) {
    if (!m_has_places) {
        // Reading byte by byte, it doesn't; and finds the same faults.
        c_report_builder again(m_options, {});
        const std::unique_ptr<c_read> source = open();
        c_read_bytes bytes(*source);
        c_reporting<c_xml_reader> reader(&again, bytes);
        void* const scratch = element.operations->create();
        unmarshal_document(element, scratch, reader);
        element.operations->destroy(scratch);
        if (again.m_characters.size() == m_characters.size()) m_characters = std::move(again.m_characters);
    }
    com_vyrgraph_v2::find_columns(open, m_encoding, &m_characters);
    for (std::size_t i = 0; i < m_characters.size(); ++i) m_report.m_faults[i].column = m_characters[i].column;
    m_characters.clear();
}

elmx_error c_report_builder::see(c_xml_writer& writer, elmx_error code, const std::string& item_name) {
    // A value that could not be read back is written all the same.
    const bool is_written = is_of_value(code);
    if (count(code, is_written)) {
        m_report.m_faults.push_back(make_fault(code, m_file, describe_failure(writer, code, item_name)));
    }
    if (!is_written) m_report.m_is_read_to_end = false;
    return code;
}

void c_report_builder::add(elmx_error code, const std::string& detail) {
    if (count(code)) {
        DocumentFault fault;
        fault.code = code;
        fault.text = text_of(code);
        fault.detail = shown(detail, k_longest_path);
        fault.file = m_file;
        m_report.m_faults.push_back(std::move(fault));
    }
    m_report.m_is_read_to_end = false;
}

void c_report_builder::add(elmx_error code, const std::string& what, int system_error) {
    m_report.m_system_error = system_error;
    add(code, with_reason(what, system_error));
}

void c_report_builder::explain_last(const std::string& detail) {
    if (m_is_last_kept) m_report.m_faults.back().detail = detail;
}

void c_report_builder::explain_last(const std::string& what, int system_error) {
    m_report.m_system_error = system_error;
    explain_last(with_reason(what, system_error));
}

void c_report_builder::add_exception(elmx_error code) {
    try {
        throw;
    } catch (const CZipException& failure) {
        // Its words begin with the name of a file, which is told already if it is that of the report.
        if (is_of_system(failure)) m_report.m_system_error = failure.GetCause();
        const std::string words = failure.what();
        const std::string name = narrow(failure.GetFileName());
        add(code, shown(name, k_longest_path) == m_file ? words.substr(name.size() + 2) : words);
    } catch (const std::exception& failure) {
        add(code, failure.what());
    }
}

const DocumentFault& DocumentReport::getFault(std::size_t index) const {
    static const DocumentFault k_none;
    return index < m_faults.size() ? m_faults[index] : k_none;
}

std::string DocumentReport::toString() const {
    std::string lines;
    for (const DocumentFault& fault : m_faults) lines += formatFault(fault) + '\n';
    return lines;
}

std::string formatFault(const DocumentFault& fault) {
    std::string line;
    const std::string place = fault.line == 0     ? ""
                              : fault.column == 0 ? std::to_string(fault.line)
                                                  : std::to_string(fault.line) + ':' + std::to_string(fault.column);
    if (!fault.file.empty()) line = fault.file + (place.empty() ? "" : ":") + place + ": ";
    if (fault.file.empty() && !place.empty()) line = "line " + place + ": ";
    if (!fault.path.empty()) line += fault.path + ": ";
    line += fault.text;
    // Where the sentence names it, it would only be said twice.
    const bool is_said = fault.detail.find('<' + fault.value + '>') != fault.detail.npos;
    if (!fault.value.empty() && !is_said) line += " (" + fault.value + ")";
    if (!fault.detail.empty()) line += ": " + fault.detail;
    return line;
}

DocumentReport loadFileWithReport(Vyr& document, const std::u16string& path, const ReportOptions& options) {
    return report_on(options, narrow(path), [&](c_report_builder* report) { load_file(document, path, report); });
}

DocumentReport loadFileWithReport(Vyr& document, const std::string& path, const ReportOptions& options) {
    return report_on(options, path, [&](c_report_builder* report) { load_file(document, path, report); });
}

DocumentReport loadStringWithReport(Vyr& document, const std::u16string& text, const ReportOptions& options) {
    return report_on(options, options.name, [&](c_report_builder* report) { load_string(document, text, report); });
}

DocumentReport loadMemoryWithReport(Vyr& document, const char* data, std::size_t size, const ReportOptions& options) {
    return report_on(options, options.name,
                     [&](c_report_builder* report) { load_memory(document, data, size, report); });
}

DocumentReport writeFileWithReport(const Vyr& document, const std::u16string& path) {
    return report_on({}, narrow(path), [&](c_report_builder* report) { write_file(document, path, report); });
}

DocumentReport writeFileWithReport(const Vyr& document, const std::string& path) {
    return report_on({}, path, [&](c_report_builder* report) { write_file(document, path, report); });
}

DocumentReport writeStringWithReport(const Vyr& document, std::u16string* text) {
    return report_on({}, {}, [&](c_report_builder* report) { write_string(document, text, report); });
}

DocumentReport load_element_with_report(const s_document& element, void* object, const std::u16string& path,
                                        const ReportOptions& options) {
    return report_on(options, narrow(path),
                     [&](c_report_builder* report) { load_element(element, object, path, report); });
}

DocumentReport write_element_with_report(const s_document& element, const void* object, const std::u16string& path) {
    return report_on({}, narrow(path),
                     [&](c_report_builder* report) { write_element(element, object, path, report); });
}

DocumentReport checkWriting(const Vyr& document) {
    return report_on({}, {}, [&](c_report_builder* report) { check_writing(document, report); });
}

}  // namespace com_vyrgraph_v2
