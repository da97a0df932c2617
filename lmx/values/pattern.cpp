// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Pattern facets, on libxml2's regular expressions.

#include "lmx/values/pattern.h"

#include <libxml/xmlerror.h>
#include <libxml/xmlregexp.h>

#include "lmx/values/unicode.h"

namespace lmx {

namespace {

const xmlChar* as_xml_chars(const std::string& text) { return reinterpret_cast<const xmlChar*>(text.c_str()); }

/// Keeps libxml2 from printing its complaints for the guard's lifetime. The setting is per thread.
class c_silence {
public:
    c_silence() : m_handler(xmlStructuredError), m_context(xmlStructuredErrorContext) {
        xmlSetStructuredErrorFunc(nullptr, [](void*, auto) {});
    }
    c_silence(const c_silence&) = delete;
    c_silence& operator=(const c_silence&) = delete;
    ~c_silence() { xmlSetStructuredErrorFunc(m_context, m_handler); }

private:
    xmlStructuredErrorFunc m_handler;
    void* m_context;
};

_xmlRegexp* compile(const std::string& pattern) {
    const c_silence silence;
    return xmlRegexpCompile(as_xml_chars(pattern));
}

}  // namespace

c_regex::c_regex(const std::string& pattern) : m_compiled(compile(pattern)) {}

c_regex::~c_regex() { xmlRegFreeRegexp(m_compiled); }

bool c_regex::is_match(const std::string& text) const {
    return m_compiled != nullptr && xmlRegexpExec(m_compiled, as_xml_chars(text)) != 0;
}

int xmlRegexpIsDeterminist(_xmlRegexp* compiled) { return ::xmlRegexpIsDeterminist(compiled); }

bool c_pattern::is_match(const std::u16string& text) const {
    std::string narrow;
    return is_match(convert(&narrow, text));
}

}  // namespace lmx
