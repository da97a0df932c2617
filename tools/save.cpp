// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/save.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <streambuf>
#include <string_view>

#include "lmx/lmx.h"
#include "tools/diff.h"
#include "tools/files.h"
#include "tools/progress.h"
#include "tools/tree.h"
#include "tools/typed_json.h"

namespace vyr_tool {

namespace {

namespace fs = std::filesystem;
using com_vyrgraph_v2::DocumentReport;
using com_vyrgraph_v2::Vyr;

/// Takes a text and remembers whether it was that of a file.
class c_comparing_buffer : public std::streambuf {
public:
    explicit c_comparing_buffer(const fs::path& file) : m_file(file, std::ios::binary) {}
    bool is_same() { return m_is_same && m_file.peek() == std::ifstream::traits_type::eof(); }

protected:
    std::streamsize xsputn(const char* text, std::streamsize size) override {
        for (std::streamsize done = 0; m_is_same && done < size;) {
            const std::streamsize count = std::min(size - done, static_cast<std::streamsize>(m_expected.size()));
            m_file.read(m_expected.data(), count);
            m_is_same = m_file.gcount() == count && std::equal(text + done, text + done + count, m_expected.data());
            done += count;
        }
        return size;
    }
    int_type overflow(int_type c) override {
        const char byte = traits_type::to_char_type(c);
        xsputn(&byte, 1);
        return traits_type::not_eof(c);
    }

private:
    std::ifstream m_file;
    std::array<char, 65536> m_expected{};
    bool m_is_same = true;
};

lmx::elmx_error print(const Vyr& document, std::streambuf& buffer) {
    std::ostream stream(&buffer);
    lmx::c_xml_writer writer(stream, lmx::c_xml_writer::include_xml_decl, "\t", "\n");
    return document.marshal(writer, "Vyr:Vyr");
}

lmx::elmx_error read_written(const fs::path& plain, c_tree& tree) {
    lmx::c_read_file source(name_of(plain).c_str());
    return source.is_open() ? tree.read(source) : lmx::ELMX_NO_FILE;
}

void explain_difference(const fs::path& plain, const Vyr& back) {
    constexpr std::size_t k_most_differences = 20;
    c_long_text written;
    c_long_text_buffer buffer(written);
    c_tree before;
    c_tree after;
    if (print(back, buffer) != lmx::ELMX_OK) return;
    c_read_long_text again(std::move(written));
    if (read_written(plain, before) == lmx::ELMX_OK && after.read(again) == lmx::ELMX_OK) {
        c_progress_line::make_way();
        print_differences(before, after, std::cerr, k_most_differences);
    }
}

/// Whether what was written loads as the document whose plain form is at hand. If not, says on standard error what is
/// lost, returns that something is, and sets the exit code if that is no fault of the file's.
std::string compare(const fs::path& written, const fs::path& plain, exit_code* result) {
    Vyr back;
    const s_reading reading = read_document(name_of(written), back);
    if (!reading.refusal.empty()) return "can't be read back: " + reading.refusal;
    c_comparing_buffer comparison(plain);
    const bool is_same = reading.report.isOk() && print(back, comparison) == lmx::ELMX_OK && comparison.is_same();
    if (is_same) return {};
    *result = exit_document_fails;
    if (!reading.report.isOk()) {
        com_vyrgraph_v2::DocumentFault fault = reading.report.getFault(0);
        fault.file.clear();
        return "not written, as it would not load again: " + com_vyrgraph_v2::formatFault(fault);
    }
    explain_difference(plain, back);
    return "not written, as it would load with the differences above";
}

exit_code write(const Vyr& document, const fs::path& file, std::string* reasons) {
    const DocumentReport report = com_vyrgraph_v2::writeFileWithReport(document, widen(name_of(file)).value_or(u""));
    return report.isOk() ? exit_ok : explain_failed_write(report, reasons);
}

/// Returns why it could not be done, or nothing.
std::string write_json(const fs::path& plain, const fs::path& file) {
    lmx::c_read_file source(name_of(plain).c_str());
    std::ofstream stream(file, std::ios::binary);
    const lmx::elmx_error code = print_typed_json(source, stream);
    if (code != lmx::ELMX_OK) return lmx::get_error_description(code);
    stream.close();
    return stream ? std::string() : "could not be written in full";
}

}  // namespace

std::optional<std::string> format_of(const std::string& out, const std::string& asked) {
    if (!asked.empty()) return asked;
    if (is_container_name(out)) return "vyrz";
    if (out.ends_with(".json")) return "json";
    if (is_document_name(out) || out == k_standard_stream) return "vyr";
    return std::nullopt;
}

exit_code refuse_output(const std::string& out, const std::string& text, exit_code result) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        complain(out == k_standard_stream ? "standard output" : out, line);
    }
    return result;
}

exit_code save_document(std::unique_ptr<Vyr> document, const std::string& out, const std::string& format) {
    const bool is_container = format == "vyrz";
    if (is_container && out == k_standard_stream && system::is_terminal(system::k_output)) {
        return refuse_output(out, "a container is no text for a terminal");
    }
    const c_signals_held held;
    const c_progress_line progress("writing " + (out == k_standard_stream ? "standard output" : shown_name(out)));
    // The library makes a container of a plain file beside it, which may be anybody's: here they harm no other file.
    const c_scratch_folder folder(out);
    std::error_code none;
    if (folder.path().empty() || !fs::create_directory(folder.path() / "container", none)) {
        return refuse_output(out, folder.refusal());
    }
    const fs::path plain = folder.path() / "document.vyr";
    fs::path finished = plain;
    std::string reasons;
    exit_code result = write(*document, plain, &reasons);
    if (result == exit_ok && is_container) {
        // The entry in the container is called as the target is.
        const std::string stem = out == k_standard_stream ? "document" : name_of(path_of(out).stem());
        finished = folder.path() / "container" / path_of((widen(stem) ? stem : "document") + ".vyrz");
        result = write(*document, finished, &reasons);
    }
    if (result != exit_ok) return refuse_output(out, reasons, result);
    document.reset();
    result = exit_usage_or_file;
    std::string refusal = compare(finished, plain, &result);
    if (refusal.empty() && format == "json") {
        finished = folder.path() / "document.json";
        refusal = write_json(plain, finished);
    }
    if (refusal.empty()) refusal = deliver(finished, out);
    return refusal.empty() ? exit_ok : refuse_output(out, refusal, result);
}

}  // namespace vyr_tool
