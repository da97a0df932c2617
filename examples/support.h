// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What the examples share: failing with a message, a line of a table, and saving.

#pragma once

#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "schema/Vyr.h"

namespace example {

/// Setters and lists return a code; a program that builds a document has no use for one that isn't 0.
inline void demand(lmx::elmx_error code, const std::string& what) {
    if (code != lmx::ELMX_OK) throw std::runtime_error(what + ": " + lmx::get_error_description(code));
}

/// The header that every document has.
inline void fill_header(com_vyrgraph_v2::Vyr& document, const std::u16string& purpose) {
    com_vyrgraph_v2::Header& header = document.get_Preamble().get_Header();
    demand(header.set_Creator(u"Vyr examples"), "creator");
    demand(header.set_CreatorVersion(u"1.0"), "version");
    demand(header.set_Purpose(purpose), "purpose");
    demand(header.append_ChangeHistory(lmx::c_datetime::now()), "time");
}

/// The fields of a line of a table, separated by commas; there are no quoted fields here.
inline std::vector<std::string> split(const std::string& line) {
    std::vector<std::string> fields;
    std::istringstream stream(line);
    for (std::string field; std::getline(stream, field, ',');) fields.push_back(field);
    return fields;
}

/// Saves, or prints what the document lacks.
inline int save(const com_vyrgraph_v2::Vyr& document, const std::string& path) {
    const auto report = com_vyrgraph_v2::writeFileWithReport(document, path);
    std::cerr << report.toString();
    return report.isOk() ? 0 : 1;
}

}  // namespace example
