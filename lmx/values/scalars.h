// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Lexical checks of the simple types, conversion of checked text to native values, and the runtime's fixed
/// settings.
///
/// Check and conversion are separate: a check says whether the text is legal, a conversion never fails and makes
/// the best of any text. Both expect text with its white space already collapsed.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "lmx/export.h"

namespace lmx {

inline constexpr int LMXNULL = 0;
inline constexpr int LMX_ATOFLOAT_MODE_DEFAULT = 0;
inline constexpr int LMX_ATOFLOAT_MODE_USE_FACET = 1;
inline constexpr int LMX_ATOFLOAT_MODE_IOSTREAM = 2;
inline constexpr int LMX_ATOFLOAT_MODE_SIMPLE = 3;
inline constexpr int LMX_ATOFLOAT_MODE = LMX_ATOFLOAT_MODE_DEFAULT;
inline constexpr int LMX_NARROW_UNICODE_STRINGS = 0;
inline constexpr int LMX_USE_EXCEPTIONS = 0;
inline constexpr int LMX_VALIDATE_PATTERNS = 1;
inline constexpr int LMX_WANT_DECIMAL_FLOAT_SET = 1;
inline constexpr int LMX_WANT_DLL = 0;
inline constexpr int LMX_WANT_GEN_IMPORT_DLL = 0;
inline constexpr int LMX_XML_STRICT = 1;

/// What the reader does with white space in a value.
enum elmx_whitespace : std::int32_t {
    ELMX_WS_PRESERVE = 0,
    ELMX_WS_REPLACE = 1,  ///< each white-space character becomes a blank
    ELMX_WS_COLLAPSE = 2  ///< runs become one blank, and none stays at either end
};

/// What a must-understand attribute demands.
enum elmx_must_understand : std::int32_t {
    ELMX_MUST_UNDERSTAND_NO = 0,
    ELMX_MUST_UNDERSTAND_UNKNOWN = 1,  ///< no boolean, or the search failed
    ELMX_MUST_UNDERSTAND_YES = 2
};

/// "true", "1", "false" or "0".
VYR_EXPORT bool is_valid_bool(const std::string& text);
/// "INF", "-INF", "NaN", or a decimal number with an optional exponent.
VYR_EXPORT bool is_valid_float(const std::string& text);
/// An optional sign and at least one digit.
VYR_EXPORT bool is_valid_integer(const std::string& text);

/// All digits of the text, leading and trailing zeros included.
VYR_EXPORT int total_digits(const std::string& text);
/// The digits behind the first point, trailing zeros included.
VYR_EXPORT int fraction_digits(const std::string& text);

/// The nearest double. A number out of range gives an infinity or what is left near zero; text that is no number
/// gives what its longest leading number gives, or 0. Never depends on the host's locale.
VYR_EXPORT double text_to_double(const std::string& text);
/// Takes an optional minus sign and up to 15 digits with at most one point among them, as almost all numbers in
/// documents are, into the nearest double. Returns what is behind them, or null for any other text; a number that
/// goes on with an exponent ends at it.
VYR_EXPORT const char* take_short_decimal(const char* text, const char* end, double* value);

/// The leading integer, cut to the low bits of the result: 32 signed, 8 unsigned. 0 without one.
VYR_EXPORT std::int32_t text_to_int(const std::string& text);
VYR_EXPORT std::uint8_t text_to_byte(const std::string& text);
/// The leading integer, modulo 2^32 if it is negative; 4294967295 if its magnitude passes that. 0 without one.
VYR_EXPORT std::uint32_t text_to_unsigned(const std::string& text);
/// True for "true" and "1" only.
VYR_EXPORT bool text_to_bool(const std::string& text);

VYR_EXPORT elmx_must_understand bool_must_understand(const std::string& text);

/// 0.0, but not to the compiler: dividing by it makes infinities and NaNs at run time.
VYR_EXPORT double float_zero();

/// Exchanges `size` bytes of two buffers that don't overlap.
VYR_EXPORT void bswap(void* one, void* other, std::size_t size);

/// A qualified name as a value.
template <class T>
struct ct_qname {
    std::string m_namespace;
    T m_name;
};

/// Store a name read from a document: strings keep the text as written, pairs the namespace and the local name.
/// Return the target.
VYR_EXPORT std::string& make_qname(std::string& target, const std::string& text, const std::string& ns,
                                   const std::string& name);
VYR_EXPORT std::u16string& make_qname(std::u16string& target, const std::string& text, const std::string& ns,
                                      const std::string& name);
VYR_EXPORT ct_qname<std::string>& make_qname(ct_qname<std::string>& target, const std::string& text,
                                             const std::string& ns, const std::string& name);
VYR_EXPORT ct_qname<std::u16string>& make_qname(ct_qname<std::u16string>& target, const std::string& text,
                                                const std::string& ns, const std::string& name);

}  // namespace lmx
