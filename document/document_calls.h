// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The roads of a load and of a save, which the calls with a report take as well as the plain ones.

#pragma once

#include <cstddef>
#include <string>

#include "document/report.h"
#include "lmx/error.h"

namespace lmx {
struct s_document;
}

namespace com_vyrgraph_v2 {

class Vyr;
class c_report_builder;

// Without a report the builder is null. Everything but the report is the same.

lmx::elmx_error load_file(Vyr& document, const std::u16string& path, c_report_builder* report);
/// The path in UTF-8, or of a plain document that is loaded, of whatever bytes the system's names are made of.
lmx::elmx_error load_file(Vyr& document, const std::string& path, c_report_builder* report);
lmx::elmx_error write_file(const Vyr& document, const std::string& path, c_report_builder* report);
/// A plain document; the name in UTF-8, or of whatever bytes the system's names are made of.
lmx::elmx_error load_plain_file(Vyr& document, const std::string& name, c_report_builder* report);
lmx::elmx_error load_memory(Vyr& document, const char* data, std::size_t size, c_report_builder* report);
lmx::elmx_error load_string(Vyr& document, const std::u16string& text, c_report_builder* report);
lmx::elmx_error write_file(const Vyr& document, const std::u16string& path, c_report_builder* report);
/// Writes to nowhere.
lmx::elmx_error check_writing(const Vyr& document, c_report_builder* report);
/// Assigns the text on success only.
lmx::elmx_error write_string(const Vyr& document, std::u16string* text, c_report_builder* report);

/// A plain file with another element as its root. What can't be opened for writing isn't touched.
lmx::elmx_error load_element(const lmx::s_document& element, void* object, const std::u16string& path,
                             c_report_builder* report);
lmx::elmx_error write_element(const lmx::s_document& element, const void* object, const std::u16string& path,
                              c_report_builder* report);
/// The same with a report, for hosts that have an object of any class.
DocumentReport load_element_with_report(const lmx::s_document& element, void* object, const std::u16string& path,
                                        const ReportOptions& options);
DocumentReport write_element_with_report(const lmx::s_document& element, const void* object,
                                         const std::u16string& path);

}  // namespace com_vyrgraph_v2
