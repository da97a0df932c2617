// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Gathers the faults of one load or save, and the reader and the writer that hand them over.

#pragma once

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "document/columns.h"
#include "document/report.h"
#include "lmx/binding/document.h"
#include "lmx/reader/xml_reader.h"
#include "lmx/writer/xml_writer.h"

namespace com_vyrgraph_v2 {

class c_report_builder {
public:
    /// `file` as the faults shall name it.
    c_report_builder(ReportOptions options, const std::string& file);

    /// Takes a failure of the reader; the handler's answer.
    lmx::elmx_error see(lmx::c_xml_reader& reader, lmx::elmx_error code, const std::string& item_name);
    /// Takes what the load of a document came to, which it returns.
    lmx::elmx_error end_load(lmx::elmx_error error);
    /// Whether there are faults whose columns aren't known yet.
    bool lacks_columns() const { return !m_characters.empty(); }
    /// Finds them in the document, which is of that element.
    void find_columns(const source_maker& open, const lmx::s_document& element);
    lmx::elmx_error see(lmx::c_xml_writer& writer, lmx::elmx_error code, const std::string& item_name);
    /// Takes a failure without a place in a document. It ends the load or save.
    void add(lmx::elmx_error code, const std::string& detail);
    /// The same for a refusal of the system's. `what` it refused may be empty, and `system_error` 0 if it isn't
    /// known.
    void add(lmx::elmx_error code, const std::string& what, int system_error);
    /// Says more of the fault that was taken last.
    void explain_last(const std::string& detail);
    /// The same where the system is to blame: what it refused, and why.
    void explain_last(const std::string& what, int system_error);
    /// The same as `add` for the exception that is being handled.
    void add_exception(lmx::elmx_error code);

    DocumentReport take() { return std::move(m_report); }

private:
    bool count(lmx::elmx_error code, bool is_passed_over = false);

    ReportOptions m_options;
    std::string m_file;
    /// Of the attribute that was taken last with an unknown name or without a value: its element, and the name that
    /// it resembles or has.
    struct {
        const void* object = nullptr;
        int line = 0;
        std::string meant{};
    } m_mistyped;
    std::vector<s_character> m_characters;  ///< where the faults are that were kept
    int m_encoding = 0;                     ///< of the document
    bool m_has_places = true;               ///< false if the reader lost count of where it was
    bool m_is_last_kept = false;
    bool m_is_passed_over = false;  ///< what gave the code is no failure of the plain call
    DocumentReport m_report;
};

/// A reader or a writer whose failures go to a report, if there is one.
template <class Stream>
class c_reporting : public Stream {
public:
    template <class... Arguments>
    explicit c_reporting(c_report_builder* report, Arguments&&... arguments)
        : Stream(std::forward<Arguments>(arguments)...), m_report(report) {
        if constexpr (std::is_base_of_v<lmx::c_xml_reader, Stream>) this->set_recovering(report != nullptr);
    }

    lmx::elmx_error user_handle_error(lmx::elmx_error code, const std::string& item_name, const char*, int) override {
        return m_report == nullptr ? code : m_report->see(*this, code, item_name);
    }
    void see_unhandled_error(lmx::elmx_error code, const std::string& item_name) override {
        if (m_report != nullptr) m_report->see(*this, code, item_name);
    }

private:
    c_report_builder* m_report;
};

}  // namespace com_vyrgraph_v2
