// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// `vyr convert`: a document in the library's own layout, plain or in a container, which is read back before it takes
/// its place.

#include <unistd.h>

#include <filesystem>
#include <iostream>
#include <optional>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>

#include "lmx/lmx.h"
#include "tools/commands.h"
#include "tools/diff.h"
#include "tools/files.h"
#include "tools/tree.h"

namespace vyr_tool {

namespace {

/// "vyr" or "vyrz"; nothing if neither the command line nor the name says which.
std::optional<std::string> format_of(const convert_options& options) {
    if (!options.format.empty()) return options.format;
    if (is_container_name(options.out)) return "vyrz";
    if (options.out.ends_with(".vyr") || options.out == k_standard_stream) return "vyr";
    return std::nullopt;
}

/// Every line of the text is a complaint of its own.
exit_code refuse(const std::string& file, const std::string& text, exit_code result = exit_usage_or_file) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        complain(file == k_standard_stream ? "standard output" : file, line);
    }
    return result;
}

/// Takes a text and remembers whether it was the expected one.
class c_comparing_buffer : public std::streambuf {
public:
    explicit c_comparing_buffer(std::string_view expected) : m_rest(expected) {}
    bool is_same() const { return m_is_same && m_rest.empty(); }

protected:
    std::streamsize xsputn(const char* text, std::streamsize size) override {
        const std::string_view piece(text, static_cast<std::size_t>(size));
        m_is_same = m_is_same && m_rest.starts_with(piece);
        if (m_is_same) m_rest.remove_prefix(piece.size());
        return size;
    }
    int_type overflow(int_type c) override {
        const char byte = traits_type::to_char_type(c);
        xsputn(&byte, 1);
        return traits_type::not_eof(c);
    }

private:
    std::string_view m_rest;
    bool m_is_same = true;
};

lmx::elmx_error print(const com_vyrgraph_v2::Vyr& document, std::streambuf& buffer) {
    std::ostream stream(&buffer);
    lmx::c_xml_writer writer(stream, lmx::c_xml_writer::include_xml_decl, "\t", "\n");
    return document.marshal(writer, "Vyr:Vyr");
}

void explain_difference(const std::string& text, const com_vyrgraph_v2::Vyr& back) {
    constexpr std::size_t k_most_differences = 20;
    std::stringbuf written;
    c_tree before;
    c_tree after;
    if (print(back, written) == lmx::ELMX_OK && before.read(text) == lmx::ELMX_OK &&
        after.read(written.str()) == lmx::ELMX_OK) {
        print_differences(before, after, std::cerr, k_most_differences);
    }
}

/// Whether what was written loads as the document whose text that is. If not, says on standard error what is lost,
/// returns that something is, and sets the exit code if that is no fault of the file's.
std::string compare(const s_reading& reading, const com_vyrgraph_v2::Vyr& back, const std::string& text,
                    exit_code* result) {
    if (!reading.refusal.empty()) return "can't be read back: " + reading.refusal;
    c_comparing_buffer comparison(text);
    const bool is_same = reading.report.isOk() && print(back, comparison) == lmx::ELMX_OK && comparison.is_same();
    if (is_same) return {};
    *result = exit_document_fails;
    if (!reading.report.isOk()) {
        com_vyrgraph_v2::DocumentFault fault = reading.report.getFault(0);
        fault.file.clear();
        return "not written, as it would not load again: " + com_vyrgraph_v2::formatFault(fault);
    }
    explain_difference(text, back);
    return "not written, as it would load with the differences above";
}

}  // namespace

exit_code convert(const convert_options& options) {
    const std::optional<std::string> format = format_of(options);
    if (!format) return refuse(options.out, "the name of a document ends in .vyr or .vyrz; for others say --to");
    const bool is_container = *format == "vyrz";
    if (is_container && options.out == k_standard_stream && isatty(STDOUT_FILENO) != 0) {
        return refuse(options.out, "a container is no text for a terminal");
    }
    std::string text;
    std::string container;
    {
        com_vyrgraph_v2::Vyr document;
        const exit_code read = read_or_explain(options.in, document);
        if (read != exit_ok) return read;
        const exit_code made = document_bytes(document, &text);
        if (made != exit_ok) return refuse(options.out, text, made);
        const bool has_name = options.out != k_standard_stream;
        const std::string stem = has_name ? std::filesystem::path(options.out).stem().string() : "document";
        const exit_code packed = is_container ? container_bytes(document, stem, &container) : exit_ok;
        if (packed != exit_ok) return refuse(options.out, container, packed);
    }
    const std::string& bytes = is_container ? container : text;
    exit_code result = exit_usage_or_file;
    const std::string refusal = write_file(options.out, bytes, [&](const std::string& made) {
        com_vyrgraph_v2::Vyr back;
        const s_reading reading = made.empty() ? read_document_bytes(bytes, back) : read_document(made, back);
        return compare(reading, back, text, &result);
    });
    return refusal.empty() ? exit_ok : refuse(options.out, refusal, result);
}

}  // namespace vyr_tool
