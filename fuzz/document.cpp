// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Any bytes as a document: reading must come to an end without a fault, and what was read must hold together, also
/// when it was read only half.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const char* text = reinterpret_cast<const char*>(bytes);
    std::string first;
    {
        com_vyrgraph_v2::Vyr document;
        lmx::c_xml_reader_memory reader(text, size);
        const bool is_read = document.unmarshal(reader) == lmx::ELMX_OK;
        com_vyrgraph_v2::Vyr copy(document);
        if (is_read && document.marshal(&first) != lmx::ELMX_OK) first.clear();
    }
    if (!first.empty()) {
        // Written text is stable: read again, it is written as the same bytes. That it reads again is not certain,
        // since writing rounds numbers and drops a zone of +00:00.
        com_vyrgraph_v2::Vyr document;
        std::string second;
        if (document.unmarshal(first) == lmx::ELMX_OK &&
            (document.marshal(&second) != lmx::ELMX_OK || first != second)) {
            std::abort();
        }
    }
    com_vyrgraph_v2::Vyr document;
    c_lenient_reader reader(text, size);
    static_cast<void>(document.unmarshal(reader));
    return 0;
}
