// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Where a failure is and what is wrong, in words: made from what a reader or a writer has at hand while it passes
/// the failure on, so that a load or a save that doesn't fail pays nothing for it.

#pragma once

#include <cstdint>
#include <string>

#include "lmx/error.h"
#include "lmx/reader/xml_reader.h"
#include "lmx/writer/xml_writer.h"

namespace lmx {

/// All texts are fit to be printed.
struct s_failure {
    int line = 0;  ///< where what is wrong begins; 0 of a save
    /// The same as an offset in the source, behind the first character; of an attribute, that of its start tag.
    /// Beyond all others at the end.
    std::uint64_t offset = 0;
    std::string attribute{};     ///< the full name of an attribute that is wrong
    bool is_repetition = false;  ///< it is the second of that name
    std::string item;            ///< as the handler got it; of a save, what is missing
    std::string path;            ///< "Palette "Inks" / ColorSet[2] / @ColorSetName"
    std::string value;           ///< the offending text
    std::string detail;          ///< what would be right
    std::string meant;           ///< the attribute that is missing, if it is but one, or that a name resembles
};

/// Whether the code says that a value, of an element or an attribute, isn't what its type allows.
bool is_of_value(elmx_error code);

/// To be called from the handler of the reader.
s_failure describe_failure(const c_xml_reader& reader, elmx_error code, const std::string& item_name);
/// To be called from the handler of the writer.
s_failure describe_failure(const c_xml_writer& writer, elmx_error code, const std::string& item_name);

}  // namespace lmx
