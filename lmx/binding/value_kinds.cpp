// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/value_kinds.h"

#include <charconv>
#include <concepts>
#include <string>

#include "lmx/writer/as_xml.h"

namespace lmx {
namespace {

void append(c_output& out, const std::u16string& value) { append_as_xml(out, std::u16string_view(value)); }
void append(c_output& out, double value) { append_as_xml(out, value); }
void append(c_output& out, bool value) { out.append(std::string_view(value ? "true" : "false")); }
void append(c_output& out, const c_datetime& value) {
    std::string& text = out.get_scratch();
    value.append_to(&text);
    out.append(std::string_view(text));
}
void append(c_output& out, const c_binary& value) {
    std::string& text = out.get_scratch();
    value.append_base64(&text);
    out.append_long(text);
}
template <std::integral Integer>
void append(c_output& out, Integer value) {
    constexpr std::size_t most_digits = 12;
    char* const at = out.room(most_digits);
    out.advance(std::to_chars(at, at + most_digits, value).ptr);
}

template <class Value>
void print(c_output& out, const void* value) {
    append(out, *static_cast<const Value*>(value));
}

}  // namespace

constexpr std::array<s_value_kind, 9> k_value_kinds = {{
    {value_kind::none, print<std::u16string>},
    {value_kind::text, print<std::u16string>},
    {value_kind::boolean, print<bool>},
    {value_kind::number, print<double>},
    {value_kind::int32, print<std::int32_t>},
    {value_kind::uint32, print<std::uint32_t>},
    {value_kind::uint8, print<std::uint8_t>},
    {value_kind::datetime, print<c_datetime>},
    {value_kind::binary, print<c_binary>},
}};

static_assert([] {
    for (std::size_t i = 0; i < k_value_kinds.size(); ++i) {
        if (k_value_kinds[i].kind != static_cast<value_kind>(i)) return false;
    }
    return true;
}());

}  // namespace lmx
