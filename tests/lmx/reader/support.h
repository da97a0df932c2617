// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Sources and recorders that the reader's tests share.

#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "lmx/reader/xml.h"

namespace lmx_test {

/// Hands on a source's bytes one by one: what any subclass with only `read` and `rewind` gives.
class c_bytes_only : public lmx::c_read {
public:
    explicit c_bytes_only(lmx::c_read& source) : m_source(source) {}
    int read() override { return m_source.read(); }
    void rewind() override { m_source.rewind(); }

private:
    lmx::c_read& m_source;
};

/// Shows windows of a few bytes, so that every construct meets a border at every place.
class c_small_windows : public lmx::c_read_memory {
public:
    c_small_windows(const std::string& text, std::size_t size)
        : c_read_memory(text.data(), text.size()), m_size(size) {}
    std::string_view take_window() override {
        const std::string_view rest = c_read_memory::take_window();
        if (rest.size() <= m_size) return rest;
        c_read_memory::give_back(rest.size() - m_size);
        return rest.substr(0, m_size);
    }

private:
    std::size_t m_size;
};

/// Writes every report down as "type/code@line:text;".
class c_recorder : public lmx::c_error {
public:
    void report_error(lmx::elmx_error_type type, lmx::elmx_error code, const char*, int line,
                      const char* text) override {
        m_log += std::to_string(type) + '/' + std::to_string(code) + '@' + std::to_string(line) + ':' + text + ';';
    }
    std::string m_log;
};

/// A scanner on a document, with its reports. The short forms of its calls put what they read into `text`.
struct s_scanner {
    explicit s_scanner(std::string bytes)
        : document(std::move(bytes)), source(document), xml(source, reports, true) {}
    lmx::elxp_xml_event element() { return xml.get_element_name(&scope, &text); }
    lmx::elxp_xml_event attribute() { return xml.get_attribute_name(&text, false); }
    bool attribute_value(lmx::elmx_whitespace mode = lmx::ELMX_WS_PRESERVE) {
        return xml.get_attribute_value(&text, mode);
    }
    bool value(lmx::elmx_whitespace mode = lmx::ELMX_WS_PRESERVE) { return xml.get_element_value(&text, mode, true); }
    bool any(const std::string& name) { return xml.get_any_element(name, &text, lmx::ELMX_WS_PRESERVE, true); }
    /// Up to the content of the first element.
    void enter() {
        element();
        xml.move_to_start_tag_end(nullptr);
    }
    std::string document;
    lmx::c_read_string source;
    c_recorder reports;
    lmx::c_xml xml;
    lmx::c_xml_local scope;
    std::string text;
};

/// Scans up to the end of input or the first error: `<a b=v >`, `'text'`, `</a>`, `$` for the end, `!` for an error.
inline std::string scan(s_scanner& scanner) {
    std::string trace;
    const std::string& text = scanner.text;
    for (;;) {
        switch (scanner.element()) {
            case lmx::ELXP_END_OF_INPUT:
                return trace + '$';
            case lmx::ELXP_TEXT:
                trace += '\'' + text + '\'';
                break;
            case lmx::ELXP_END_TAG:
                trace += "</" + text + '>';
                break;
            case lmx::ELXP_NAME: {
                trace += '<' + text;
                int event = scanner.attribute();
                for (; event == lmx::ELXP_NAME; event = scanner.attribute()) {
                    trace += ' ' + text + '=';
                    const bool is_read = scanner.attribute_value();
                    trace += text + (is_read ? "" : "?");
                }
                if (event == lmx::ELXP_ERROR) return trace + '!';
                trace += event == lmx::ELXP_END_TAG ? "/>" : ">";
                break;
            }
            default:
                return trace + '!';
        }
    }
}

struct s_scan_case {
    std::string document;
    std::string trace;
    std::string reports;
};

/// Scans each document with `head` ahead.
inline void check_scans(const std::vector<s_scan_case>& cases, const std::string& head = "") {
    for (const s_scan_case& row : cases) {
        s_scanner scanner(head + row.document);
        EXPECT_EQ(scan(scanner), row.trace) << row.document;
        EXPECT_EQ(scanner.reports.m_log, row.reports) << row.document;
    }
}

/// A file that is removed again. Its name is unique in the test's working directory.
class c_scratch_file {
public:
    explicit c_scratch_file(std::string_view bytes) {
        std::FILE* const file = std::fopen(k_name, "wb");
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
    }
    ~c_scratch_file() { std::remove(k_name); }
    c_scratch_file(const c_scratch_file&) = delete;
    c_scratch_file& operator=(const c_scratch_file&) = delete;

    static constexpr char k_name[] = "reader_scratch.xml";
};

/// ASCII text as pairs of bytes.
inline std::string widen(std::string_view text, bool is_big_endian) {
    std::string bytes;
    for (const char c : text) {
        if (is_big_endian) bytes += '\0';
        bytes += c;
        if (!is_big_endian) bytes += '\0';
    }
    return bytes;
}

inline std::string repeat(std::string_view text, std::size_t count) {
    std::string all;
    all.reserve(text.size() * count);
    while (count-- > 0) all += text;
    return all;
}

}  // namespace lmx_test
