// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A locale with a decimal comma that every machine has.

#pragma once

#include <locale>
#include <string>

/// The classic locale but for numbers such as "1.234,5", or with a blank in place of the point.
inline std::locale make_comma_locale(char separator = '.') {
    class c_comma : public std::numpunct<char> {
    public:
        explicit c_comma(char separator) : m_separator(separator) {}

    private:
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return m_separator; }
        std::string do_grouping() const override { return "\3"; }

        char m_separator;
    };
    return std::locale(std::locale::classic(), new c_comma(separator));
}

/// Makes it the program's C++ locale for a scope.
class c_global_comma_locale {
public:
    explicit c_global_comma_locale(char separator = '.')
        : m_before(std::locale::global(make_comma_locale(separator))) {}
    c_global_comma_locale(const c_global_comma_locale&) = delete;
    c_global_comma_locale& operator=(const c_global_comma_locale&) = delete;
    ~c_global_comma_locale() { std::locale::global(m_before); }

private:
    std::locale m_before;
};
