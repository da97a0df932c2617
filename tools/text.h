// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Text on its way to a person: what a stranger's file or name may not do to a terminal, and how wide it is there.

#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

#include "tools/commands.h"

namespace vyr_tool {

/// The text with everything that could steer a terminal or turn the writing direction as `\u{9B}`, and each byte that
/// is no UTF-8 as `\xFF`.
std::string printable(std::string_view text);

/// JSON text with the same characters as `\u009b`. They stand in its strings only.
std::string printable_json(std::string_view json);

/// The text in double quotes, printable.
std::string in_quotes(std::string_view text);

/// The columns that printable text takes.
std::size_t width(std::string_view text);

/// The beginning of a printable text that takes no more columns.
std::string_view narrowed(std::string_view text, std::size_t columns);

/// "1 colour", "2 colours"
std::string counted(std::uint64_t count, std::string_view one, std::string_view many);

/// A number for people: six digits, which are more than any eye tells apart.
std::string short_number(double number);

/// Reads a text that is a number in full. False for others, which may leave anything in `number`.
template <class Number>
bool read_number(std::string_view text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

/// Whether to send colours to standard output: asked for, or left open and it is a terminal that can, and nobody set
/// NO_COLOR.
bool use_color(const color_mode& mode);

/// Colours of the terminal, for all that the command prints in them.
namespace terminal_color {
inline constexpr char red[] = "\x1B[31m";
inline constexpr char green[] = "\x1B[32m";
inline constexpr char yellow[] = "\x1B[33m";
inline constexpr char cyan[] = "\x1B[36m";
}  // namespace terminal_color

/// The text, which is printable, in a colour.
std::string colored(std::string_view text, const char* color);

/// The same for colours of 24 bits, which a terminal announces.
bool use_true_color(const color_mode& mode);

/// Whether to draw curves: standard output is a terminal for UTF-8, by the variables of the locale.
bool use_curves();

}  // namespace vyr_tool
