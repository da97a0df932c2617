// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Validates a document with a policy of one's own: attributes that aren't known are none of our business, wrong
// values are gathered, and everything else ends the read.
//
//     validate <document.vyr>

#include <iostream>
#include <vector>

#include "schema/Vyr.h"

namespace {

struct s_finding {
    int line;
    std::string item;
    lmx::elmx_error code;
};

class c_policy : public lmx::c_xml_reader_file {
public:
    using lmx::c_xml_reader_file::c_xml_reader_file;
    using lmx::c_xml_reader_file::user_handle_error;

    // Sees every failure and returns what counts: 0 lets it pass, and reading goes on.
    lmx::elmx_error user_handle_error(lmx::elmx_error code, const std::string& item, const char*, int) override {
        switch (code) {
            case lmx::ELMX_UNEXPECTED_ATTRIBUTE:
                return lmx::ELMX_OK;
            case lmx::ELMX_VALUE_BAD_FORMAT:
            case lmx::ELMX_VALUE_EXCEEDS_MAX:
            case lmx::ELMX_VALUE_BELOW_MIN:
            case lmx::ELMX_VALUE_NOT_ENUMERATED:
                m_findings.push_back({get_line_no(), item, code});
                return lmx::ELMX_OK;
            default:
                m_findings.push_back({get_line_no(), item, code});
                return code;
        }
    }

    const std::vector<s_finding>& findings() const { return m_findings; }

private:
    std::vector<s_finding> m_findings;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: validate <document.vyr>\n";
        return 2;
    }
    c_policy reader(argv[1]);
    if (!reader.is_open()) {
        std::cerr << "can't open " << argv[1] << "\n";
        return 2;
    }
    com_vyrgraph_v2::Vyr document;
    const lmx::elmx_error code = document.unmarshal(reader);
    for (const s_finding& finding : reader.findings()) {
        std::cout << finding.line << ": " << finding.item << ": " << lmx::get_error_description(finding.code) << "\n";
    }
    std::cout << (code == lmx::ELMX_OK ? "read to the end\n" : "not read to the end\n");
    return reader.findings().empty() && code == lmx::ELMX_OK ? 0 : 1;
}
