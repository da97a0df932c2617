// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What the scanner can find wrong: for each number the kind, the code and the text of the report, and a sentence
/// that can be followed.

#pragma once

#include <cstdint>
#include <string_view>

#include "lmx/error.h"

namespace lmx {

enum class scanner_fault : std::uint8_t {
    other,  ///< reported by somebody else, in words of their own
    broken_tag,
    broken_start_tag,
    broken_empty_tag,
    mismatched_tags,
    no_equals_sign,
    no_quote,
    no_quote_at_end,
    end_in_start_tag,
    end_in_value,
    unknown_bytes,
    unknown_encoding,
    other_encoding,
    late_declaration,
    no_version,
    unknown_version,
    not_standalone,
    loose_comment,
    late_doctype,
    second_doctype,
    unclosed_doctype,
    unclosed_doctype_at_end,
    stray_in_doctype,
    stray_in_doctype_at_end,
    unknown_parameter_entity,
    odd_entity_value,
    external_entity,
    recursive_entity,
    large_expansion,
};

struct s_scanner_fault {  // NOLINT(clang-analyzer-optin.performance.Padding): in the order in which a row reads
    scanner_fault number;
    elmx_error_type type;
    elmx_error code;
    std::string_view text;           ///< with a `{}` for each part that the document gives
    std::string_view sentence = {};  ///< empty where the text says it
    bool is_at_end = false;          ///< there was no character where one was needed
};

const s_scanner_fault& row_of(scanner_fault fault);

}  // namespace lmx
