// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A locale with a decimal comma that every machine has.

#pragma once

#include <locale>
#include <string>

/// The classic locale but for numbers such as "1.234,5".
inline std::locale make_comma_locale() {
    class c_comma : public std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    return std::locale(std::locale::classic(), new c_comma);
}

/// Makes it the program's C++ locale for a scope.
class c_global_comma_locale {
public:
    c_global_comma_locale() : m_before(std::locale::global(make_comma_locale())) {}
    c_global_comma_locale(const c_global_comma_locale&) = delete;
    c_global_comma_locale& operator=(const c_global_comma_locale&) = delete;
    ~c_global_comma_locale() { std::locale::global(m_before); }

private:
    std::locale m_before;
};
