// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What a failure of a load is described with.

#pragma once

#include <cstdint>
#include <string_view>

#include "lmx/fault_notes.h"
#include "lmx/reader/scanner_fault.h"

namespace lmx {

/// How things stand with a scanner or reader. Lines count as an editor shows them, from 1; texts are good until the
/// next event.
struct s_diagnosis {
    int text_line = 0;                 ///< where reading has come to
    int event_line = 0;                ///< where what was delivered last, or failed to be, begins
    int attribute_line = 0;            ///< of the attribute that was named last; that of the event if none was
    std::uint64_t text_offset = 0;     ///< of `text_line`, in the source, as far as the reader knows it
    std::uint64_t event_offset = 0;    ///< of `event_line`, behind the first character
    std::string_view wrong_end_name;   ///< of an end tag that was taken in place of another
    std::string_view attribute_value;  ///< of the same, with references as they stand there; without data if none was
    bool has_source_ended = false;
    scanner_fault fault = scanner_fault::other;  ///< that of the scanner's last report of an error

    // Of a reader only.
    int scanned_event = 0;        ///< before anything was tokenised
    std::string_view fault_text;  ///< what the scanner said in that report; empty while there was none
    int fault_line = 0;
    s_fault_notes notes;
};

}  // namespace lmx
