// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Any bytes as a document: reading must come to an end without a fault, and what was read must hold together, also
/// when it was read only half.

#include <algorithm>
#include <string>

#include "fuzz/support.h"
#include "lmx/lmx.h"
#include "schema/Vyr.h"

namespace {

/// Lets every failure pass, so that the roads behind the first one are tried as well.
class c_lenient_reader : public lmx::c_xml_reader_memory {
public:
    using c_xml_reader_memory::c_xml_reader_memory;
    using c_xml_reader_memory::user_handle_error;
    lmx::elmx_error user_handle_error(lmx::elmx_error) override { return lmx::ELMX_OK; }
};

/// What a report says must be fit to be shown, whatever stood in the document.
void check_report(const char* text, std::size_t size, lmx::elmx_error expected) {
    com_vyrgraph_v2::Vyr document;
    const auto report = com_vyrgraph_v2::loadMemoryWithReport(document, text, size);
    vyr_fuzz::require(report.getCode() == expected, "a report has another code than the plain call");
    com_vyrgraph_v2::Vyr collected;
    const auto all = com_vyrgraph_v2::loadMemoryWithReport(collected, text, size, {.collect = true});
    // A line ends at most at every byte.
    for (const auto* const told : {&report, &all}) {
        vyr_fuzz::require(told->isOk() == (told->getFaultCount() == 0), "a report contradicts itself");
        for (const auto& fault : told->getFaults()) {
            const std::string shown = formatFault(fault);
            vyr_fuzz::require(std::none_of(shown.begin(), shown.end(),
                                           [](unsigned char byte) { return byte < 0x20 || byte == 0x7F; }),
                              "control characters in a report:", shown);
            vyr_fuzz::require(lmx::convert_to_narrow(lmx::convert_to_wide(shown)) == shown,
                              "a report that is no UTF-8:", shown);
            vyr_fuzz::require(fault.line >= 0 && static_cast<std::size_t>(fault.line) <= size + 1,
                              "a line behind the end:", shown);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const char* text = reinterpret_cast<const char*>(bytes);
    std::string first;
    {
        com_vyrgraph_v2::Vyr document;
        lmx::c_xml_reader_memory reader(text, size);
        const lmx::elmx_error error = document.unmarshal(reader);
        com_vyrgraph_v2::Vyr copy(document);
        if (error == lmx::ELMX_OK && document.marshal(&first) != lmx::ELMX_OK) first.clear();
        check_report(text, size, error);
    }
    if (!first.empty()) {
        // Written text is stable: read again, it is written as the same bytes. That it reads again is not certain,
        // since writing rounds numbers, even onto a bound that is not allowed.
        com_vyrgraph_v2::Vyr document;
        std::string second;
        if (document.unmarshal(first) == lmx::ELMX_OK &&
            (document.marshal(&second) != lmx::ELMX_OK || first != second)) {
            vyr_fuzz::fail("written differently a second time:", first);
        }
    }
    com_vyrgraph_v2::Vyr document;
    c_lenient_reader reader(text, size);
    static_cast<void>(document.unmarshal(reader));
    return 0;
}
