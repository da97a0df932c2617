// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/reader/scanner_fault.h"

#include <cstddef>
#include <iterator>

namespace lmx {
namespace {

using enum scanner_fault;

constexpr std::string_view k_no_value = "an attribute must have a value, in quotes behind an equals sign";
constexpr std::string_view k_no_quotes = "an attribute's value must stand in quotes, and the quotes must end";

/// In the order of their numbers.
constexpr s_scanner_fault k_scanner_faults[] = {
    {other, ELMX_TYPE_ERROR, ELMX_OK, ""},
    {broken_tag, ELMX_TYPE_ERROR, ELMX_NOT_WELL_FORMED, "XML not Well-Formed",
     "a tag is broken, or a < stands where no tag begins: in text it is written &lt;"},
    {broken_start_tag, ELMX_TYPE_ERROR, ELMX_NOT_WELL_FORMED, "XML not well-formed",
     "the tag holds what is neither an attribute nor its end"},
    {broken_empty_tag, ELMX_TYPE_ERROR, ELMX_BAD_END_TAG, "Illegal character(s) after / at end of tag - {}",
     "a tag is broken, or a < begins none: in text it is written &lt;"},
    {mismatched_tags, ELMX_TYPE_ERROR, ELMX_NOT_WELL_FORMED, "Element start tag ({}) and end tag ({}) do not match"},
    {no_equals_sign, ELMX_TYPE_FATAL, ELMX_NOT_WELL_FORMED, "Schema is not Well Formed (expected '=', got '{}')",
     k_no_value},
    {no_quote, ELMX_TYPE_FATAL, ELMX_NOT_WELL_FORMED, "Schema is not Well Formed (expected '\"' or ''', got {})",
     k_no_quotes},
    {no_quote_at_end, ELMX_TYPE_FATAL, ELMX_NOT_WELL_FORMED, "Schema is not Well Formed (expected '\"' or ''', got )",
     k_no_quotes, true},
    {end_in_start_tag, ELMX_TYPE_FATAL, ELMX_UNEXPECTED_END_OF_MESSAGE, "Unexpected end of file",
     "the document ends within a start tag"},
    {end_in_value, ELMX_TYPE_ERROR, ELMX_UNEXPECTED_END_OF_MESSAGE, "Premature end of file encountered",
     "the document ends within a value", true},
    {unknown_bytes, ELMX_TYPE_FATAL, ELMX_BAD_CHAR_ENCODING, "Unrecognised character encoding",
     "the text does not begin like XML, or its encoding is none of UTF-8, UTF-16, ISO-8859-1 and US-ASCII"},
    {unknown_encoding, ELMX_TYPE_FATAL, ELMX_BAD_CHAR_ENCODING, "Unknown character encoding specified",
     "the XML declaration names an encoding that is none of UTF-8, UTF-16, ISO-10646-UCS-2, ISO-8859-1 and US-ASCII"},
    {other_encoding, ELMX_TYPE_FATAL, ELMX_ENCODING_MISMATCH, "Mis-match between specfied encoding and byte format",
     "the XML declaration names another encoding than the one that the bytes have"},
    {late_declaration, ELMX_TYPE_FATAL, ELMX_BAD_XML_DECL, "XML declaration not at start of document"},
    {no_version, ELMX_TYPE_ERROR, ELMX_BAD_XML_DECL, "Version not present in XML Decl"},
    {unknown_version, ELMX_TYPE_ERROR, ELMX_BAD_XML_VERSION, "XML version {} not understood"},
    {not_standalone, ELMX_TYPE_ERROR, ELMX_BAD_XML_DECL, "XML Document is not standalone"},
    {loose_comment, ELMX_TYPE_WARNING, ELMX_BAD_COMMENT, "End of comment not Well-Formed"},
    {late_doctype, ELMX_TYPE_ERROR, ELMX_BAD_DTD, "Document Type Declaration not at start of document"},
    {second_doctype, ELMX_TYPE_ERROR, ELMX_BAD_DTD, "Document Type Declaration already read"},
    {unclosed_doctype, ELMX_TYPE_FATAL, ELMX_BAD_DTD, "DTD not Well Formed (expected '>', got {})"},
    {unclosed_doctype_at_end, ELMX_TYPE_FATAL, ELMX_BAD_DTD, "DTD not Well Formed (expected '>', got )", {}, true},
    {stray_in_doctype, ELMX_TYPE_FATAL, ELMX_BAD_DTD, "DTD not Well Formed (got {})"},
    {stray_in_doctype_at_end, ELMX_TYPE_FATAL, ELMX_BAD_DTD, "DTD not Well Formed (got )", {}, true},
    {unknown_parameter_entity, ELMX_TYPE_ERROR, ELMX_ENTITY_NOT_FOUND, "Entity '%{}' not found"},
    {odd_entity_value, ELMX_TYPE_ERROR, ELMX_UNEXPECTED_ENTITY, "Unexpected value in Entity definition: {}"},
    {external_entity, ELMX_TYPE_WARNING, ELMX_EXTERNAL_ENTITY, "External Entity definitions not supported"},
    {recursive_entity, ELMX_TYPE_FATAL, ELMX_BAD_DTD, "Recursive entity definition for: {}"},
    {large_expansion, ELMX_TYPE_FATAL, ELMX_BAD_DTD, "Entity expansion too large"},
};

constexpr bool is_in_order() {
    for (std::size_t i = 0; i < std::size(k_scanner_faults); ++i) {
        if (static_cast<std::size_t>(k_scanner_faults[i].number) != i) return false;
    }
    return k_scanner_faults[std::size(k_scanner_faults) - 1].number == large_expansion;
}
static_assert(is_in_order());

}  // namespace

const s_scanner_fault& row_of(scanner_fault fault) { return k_scanner_faults[static_cast<std::size_t>(fault)]; }

}  // namespace lmx
