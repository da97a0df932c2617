// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The text form of values in a document: numbers, booleans, and strings with the characters escaped that markup
/// needs. Every form is the same whatever the locale of the host or of a stream.
///
/// Each form comes twice: appended to a string, and as a wrapper to put on a stream. What documents are full of can
/// be appended to an output too.

#pragma once

#include <concepts>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

#include "lmx/export.h"
#include "lmx/values/binary.h"
#include "lmx/writer/output.h"

namespace lmx {

/// Enough for every number.
inline constexpr std::size_t k_number_text_size = 32;

/// Write the text form, without a closing null, to `buffer` (`k_number_text_size` bytes); return its length.
/// Zeros are "0.0" and "-0.0"; "NaN", "INF", "-INF"; others have at most 14 (`float`: 7) significant digits.
VYR_EXPORT std::size_t format_as_xml(char* buffer, double value);
VYR_EXPORT std::size_t format_as_xml(char* buffer, float value);

VYR_EXPORT void append_as_xml(std::string& out, double value);
VYR_EXPORT void append_as_xml(std::string& out, float value);
/// UTF-8, as it stands but for the escapes of the two quotes, "&" and "<".
VYR_EXPORT void append_as_xml(std::string& out, std::string_view value);
/// UTF-16, written as UTF-8 with the same escapes. A high surrogate without its partner drops the rest of the text.
VYR_EXPORT void append_as_xml(std::string& out, std::u16string_view value);
/// "true" or "false". Takes nothing that would first have to become a `bool`.
inline void append_as_xml(std::string& out, std::same_as<bool> auto value) { out += value ? "true" : "false"; }

/// The same forms at the end of an output.
void append_as_xml(c_output& out, double value);
void append_as_xml(c_output& out, std::u16string_view value);

/// Puts the text form of a value on a stream: `stream << c_as_xml(value)`. Borrows the value.
template <class T>
class c_as_xml {
public:
    explicit c_as_xml(const T& value) : m_value(&value) {}
    const T& get() const { return *m_value; }

private:
    const T* m_value;
};

VYR_EXPORT std::ostream& operator<<(std::ostream& stream, const c_as_xml<double>& value);
VYR_EXPORT std::ostream& operator<<(std::ostream& stream, const c_as_xml<float>& value);
VYR_EXPORT std::ostream& operator<<(std::ostream& stream, const c_as_xml<bool>& value);
VYR_EXPORT std::ostream& operator<<(std::ostream& stream, const c_as_xml<std::string>& value);
VYR_EXPORT std::ostream& operator<<(std::ostream& stream, const c_as_xml<std::u16string>& value);

/// The same text form as `c_as_xml`. Borrows the value.
template <class T>
class c_as_escaped {
public:
    explicit c_as_escaped(const T& value) : m_value(&value) {}
    const T& get() const { return *m_value; }

private:
    const T* m_value;
};

VYR_EXPORT std::ostream& operator<<(std::ostream& stream, const c_as_escaped<std::string>& value);

/// Text that is known to hold nothing to escape: it goes out as it stands. Borrows the value.
template <class T>
class c_as_ascii {
public:
    explicit c_as_ascii(const T& value) : m_value(&value) {}
    const T& get() const { return *m_value; }

private:
    const T* m_value;
};

VYR_EXPORT std::ostream& operator<<(std::ostream& stream, const c_as_ascii<std::string>& value);

/// A boolean as "1" or "0".
class c_as_bool_digit {
public:
    explicit c_as_bool_digit(bool value) : m_value(value) {}
    bool get() const { return m_value; }

private:
    bool m_value;
};

VYR_EXPORT std::ostream& operator<<(std::ostream& stream, const c_as_bool_digit& value);

/// Bytes as hexadecimal digits in upper case. Borrows the value.
template <class T>
class c_as_hex {
public:
    explicit c_as_hex(const T& value) : m_value(&value) {}
    const T& get() const { return *m_value; }

private:
    const T* m_value;
};

VYR_EXPORT std::ostream& operator<<(std::ostream& stream, const c_as_hex<c_binary>& value);

/// Bytes as base64. Borrows the value.
template <class T>
class c_as_base64 {
public:
    explicit c_as_base64(const T& value) : m_value(&value) {}
    const T& get() const { return *m_value; }

private:
    const T* m_value;
};

VYR_EXPORT std::ostream& operator<<(std::ostream& stream, const c_as_base64<c_binary>& value);

}  // namespace lmx
