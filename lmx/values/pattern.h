// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Patterns that the text of a value must match as a whole, in the syntax of XML Schema.

#pragma once

#include <string>

#include "lmx/export.h"

struct _xmlRegexp;

namespace lmx {

/// A compiled regular expression. Read-only after construction: threads may share one.
class VYR_EXPORT c_regex {
public:
    /// Compiles a pattern given in UTF-8. A pattern that can't be compiled matches nothing.
    explicit c_regex(const std::string& pattern);
    c_regex(const c_regex&) = delete;
    c_regex& operator=(const c_regex&) = delete;
    virtual ~c_regex();

    /// Whether the whole of a UTF-8 text matches. If the engine gives up on a text, that counts as a match.
    bool is_match(const std::string& text) const;

private:
    _xmlRegexp* m_compiled;
};

/// 1 if an expression that libxml2 compiled never leaves a choice of ways through it, 0 if it does; negative on a
/// failure, also for null. libxml2's function of that name.
VYR_EXPORT int xmlRegexpIsDeterminist(_xmlRegexp* compiled);

/// A pattern facet.
class VYR_EXPORT c_pattern {
public:
    explicit c_pattern(const char* pattern) : m_regex(pattern) {}

    bool is_match(const std::string& text) const { return m_regex.is_match(text); }
    bool is_match(const std::u16string& text) const;

private:
    c_regex m_regex;
};

/// Stands where a type has no pattern facet: every text matches.
class c_pattern_null {
public:
    bool is_match(const std::string&) const { return true; }
    bool is_match(const std::u16string&) const { return true; }
};

}  // namespace lmx
