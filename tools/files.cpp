// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/files.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <new>
#include <optional>
#include <utility>

#include "lmx/lmx.h"
#include "tools/progress.h"
#include "tools/system.h"
#include "tools/text.h"
#include "zip/container.h"

namespace vyr_tool {

namespace {

namespace fs = std::filesystem;
using com_vyrgraph_v2::DocumentReport;
using com_vyrgraph_v2::ReportOptions;
using com_vyrgraph_v2::Vyr;

/// A pipe tells no size ahead, and some never end.
constexpr std::size_t k_largest_stream = std::size_t{1} << 30U;
constexpr char k_stream_too_long[] = "longer than 1 GB, which is the limit for pipes";
constexpr char k_is_directory[] = "is a directory";
constexpr char k_no_memory[] = "not enough memory";
constexpr std::string_view k_archive_signature = "PK";

std::string system_text() { return std::strerror(errno); }

/// Closes what it opened.
class c_descriptor {
public:
    explicit c_descriptor(int descriptor) : m_descriptor(descriptor) {}
    c_descriptor(const c_descriptor&) = delete;
    c_descriptor& operator=(const c_descriptor&) = delete;
    ~c_descriptor() { close(); }
    int get() const { return m_descriptor; }
    /// False if the system could not keep what was written.
    bool close() { return m_descriptor < 0 || system::close(std::exchange(m_descriptor, -1)) == 0; }

private:
    int m_descriptor;
};

std::string write_all(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const std::int64_t count = system::write(descriptor, bytes.data(), bytes.size());
        if (count < 0) return system_text();
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return {};
}

constexpr std::size_t k_piece = std::size_t{1} << 16U;

void give_text(int descriptor, const text_taker& take) {
    std::string piece(k_piece, '\0');
    for (std::int64_t at = 0;;) {
        const std::int64_t count = system::read_at(descriptor, at, piece.data(), piece.size());
        if (count <= 0) return;
        take(std::string_view(piece.data(), static_cast<std::size_t>(count)));
        at += count;
    }
}

/// Whether the system refused a file, in place of a document that has a fault.
bool is_of_system(const DocumentReport& report) {
    return report.getCode() == lmx::ELMX_NO_FILE || report.getCode() == lmx::ELMX_USER_DEFINED_1;
}

/// Of a container that was read: the text of its first entry, as far as that can be read.
void give_entry(const std::string& file, const DocumentReport& report, const text_taker& take) {
    if (!take || is_of_system(report)) return;
    try {
        CZipContainer archive;
        archive.OpenContainer(lmx::convert_to_wide(file), zip_open_read);
        if (!archive.IsOpen() || !archive.OpenEntry(0)) return;
        std::string piece(k_piece, '\0');
        while (const std::size_t count = archive.ReadEntry(piece.data(), piece.size())) {
            take(std::string_view(piece.data(), count));
        }
        archive.CloseContainer(zip_close_forced);
    } catch (const CZipException&) {
        // The report said so already.
    }
}

void read_regular(const std::string& file, int descriptor, Vyr& document, const ReportOptions& options,
                  const text_taker& take_text, s_reading& reading) {
    const bool is_container = is_container_name(file);
    // The library takes names of containers as text only.
    if (!is_container || widen(file)) {
        reading.report = com_vyrgraph_v2::loadFileWithReport(document, file, options);
        if (is_container) {
            give_entry(file, reading.report, take_text);
        } else if (take_text) {
            give_text(descriptor, take_text);
        }
        return;
    }
    const c_scratch_folder folder;
    const fs::path link = folder.path() / "document.vyrz";
    std::error_code refused;
    fs::create_symlink(fs::absolute(path_of(file), refused), link, refused);
    if (refused) {
        reading.refusal = reason(refused);
        return;
    }
    reading.report = com_vyrgraph_v2::loadFileWithReport(document, name_of(link), options);
    give_entry(name_of(link), reading.report, take_text);
}

void read_bytes(const std::string& bytes, Vyr& document, const ReportOptions& options, const text_taker& take_text,
                s_reading& reading) {
    reading.size = bytes.size();
    if (!bytes.starts_with(k_archive_signature)) {
        reading.report = com_vyrgraph_v2::loadMemoryWithReport(document, bytes.data(), bytes.size(), options);
        if (take_text) take_text(bytes);
        return;
    }
    const c_scratch_folder folder;
    const fs::path copy = folder.path() / "document.vyrz";
    reading.refusal = write_file(name_of(copy), bytes);
    if (!reading.refusal.empty()) return;
    reading.report = com_vyrgraph_v2::loadFileWithReport(document, name_of(copy), options);
    give_entry(name_of(copy), reading.report, take_text);
}

void read_stream(int descriptor, Vyr& document, const ReportOptions& options, const text_taker& take_text,
                 s_reading& reading) {
    c_input input(descriptor);
    const std::string bytes = input.rest();
    reading.refusal = input.refusal();
    if (reading.refusal.empty()) read_bytes(bytes, document, options, take_text, reading);
}

void read_any(const std::string& file, Vyr& document, const ReportOptions& options, const text_taker& take_text,
              s_reading& reading) {
    if (file == k_standard_stream) return read_stream(system::k_input, document, options, take_text, reading);
    const c_descriptor descriptor(system::open(path_of(file), system::open_mode::read));
    const auto state = descriptor.get() < 0 ? std::nullopt : system::state_of(descriptor.get());
    if (!state) {
        // Some systems open no folders.
        reading.refusal = errno == EISDIR ? k_is_directory : system_text();
    } else if (state->kind == system::file_kind::folder) {
        reading.refusal = k_is_directory;
    } else if (state->kind == system::file_kind::file) {
        reading.size = state->size;
        read_regular(file, descriptor.get(), document, options, take_text, reading);
        // The system's refusal of a file that it has just opened: of its content. No fault of the document's.
        const int refused = reading.report.getSystemError();
        if (refused != 0) reading.refusal = std::strerror(refused);
    } else {
        read_stream(descriptor.get(), document, options, take_text, reading);
    }
}

/// Where a chain of links ends, whether or not there is a file.
fs::path behind_links(fs::path path) {
    constexpr int k_longest_chain = 40;
    std::error_code none;
    for (int i = 0; i < k_longest_chain && fs::is_symlink(path, none); ++i) {
        path = path.parent_path() / fs::read_symlink(path, none);
    }
    return path;
}

enum class target_kind { stream, folder, file, device };

target_kind kind_of_target(const std::string& target) {
    if (target == k_standard_stream) return target_kind::stream;
    std::error_code none;
    const fs::file_status state = fs::status(path_of(target), none);
    if (!fs::exists(state) || fs::is_regular_file(state)) return target_kind::file;
    return fs::is_directory(state) ? target_kind::folder : target_kind::device;
}

/// Whoever closes a pipe has read enough.
std::string copy_to(int descriptor, const fs::path& finished) {
    constexpr std::size_t k_unit = std::size_t{1} << 20U;
    const c_descriptor from(system::open(finished, system::open_mode::read));
    std::string bytes(k_unit, '\0');
    for (;;) {
        const std::int64_t count = from.get() < 0 ? -1 : system::read(from.get(), bytes.data(), bytes.size());
        if (count == 0) return {};
        if (count < 0) return system_text();
        const std::string refusal =
            write_all(descriptor, std::string_view(bytes).substr(0, static_cast<std::size_t>(count)));
        if (!refusal.empty()) return errno == EPIPE ? std::string() : refusal;
    }
}

}  // namespace

bool is_container_name(const std::string& file) { return file.ends_with(".vyrz"); }

bool is_document_name(const std::string& file) { return file.ends_with(".vyr") || is_container_name(file); }

std::string shown_name(const std::string& file) {
    return file == k_standard_stream ? "standard input" : printable(file);
}

std::string fault_text(const std::string& file, com_vyrgraph_v2::DocumentFault fault) {
    fault.file = shown_name(file);
    return com_vyrgraph_v2::formatFault(fault);
}

void complain(const std::string& file, const std::string& text) {
    c_progress_line::make_way();
    std::cerr << "vyr: " << shown_name(file) << ": " << printable(text) << '\n';
}

s_reading read_document(const std::string& file, Vyr& document, const ReportOptions& options,
                        const text_taker& take_text) {
    s_reading reading;
    try {
        read_any(file, document, options, take_text, reading);
    } catch (const std::bad_alloc&) {
        reading.refusal = k_no_memory;
    }
    return reading;
}

exit_code read_or_explain(const std::string& file, Vyr& document, std::uint64_t* size, const text_taker& take_text) {
    const s_reading reading = [&] {
        const c_progress_line progress("reading " + shown_name(file));
        return read_document(file, document, {}, take_text);
    }();
    if (size != nullptr) *size = reading.size;
    return explain(file, reading);
}

s_reading read_document_bytes(const std::string& bytes, Vyr& document, const text_taker& take_text) {
    s_reading reading;
    read_bytes(bytes, document, {}, take_text, reading);
    return reading;
}

exit_code explain(const std::string& file, const s_reading& reading) {
    c_progress_line::make_way();
    if (!reading.refusal.empty()) {
        complain(file, reading.refusal);
        return exit_usage_or_file;
    }
    if (reading.report.isOk()) return exit_ok;
    std::cerr << fault_text(file, reading.report.getFault(0)) << '\n';
    return exit_document_fails;
}

exit_code explain_failed_write(const DocumentReport& report, std::string* reasons) {
    reasons->clear();
    for (com_vyrgraph_v2::DocumentFault fault : report.getFaults()) {
        fault.file.clear();
        if (!reasons->empty()) *reasons += '\n';
        *reasons += com_vyrgraph_v2::formatFault(fault);
    }
    const std::size_t more = report.getTotalCount() - report.getFaultCount();
    if (more > 0) *reasons += '\n' + std::to_string(more) + " more";
    return is_of_system(report) ? exit_usage_or_file : exit_document_fails;
}

exit_code read_text(const std::string& file, c_long_text& text, std::uint64_t* size) {
    Vyr document;
    const exit_code result = read_or_explain(file, document, size);
    if (result != exit_ok) return result;
    c_long_text_buffer buffer(text);
    std::ostream stream(&buffer);
    lmx::c_xml_writer writer(stream, 0, "", "\n");
    if (document.marshal(writer, "Vyr:Vyr") == lmx::ELMX_OK) return exit_ok;
    std::string message;
    complain(file, writer.get_error_message(&message));
    return exit_document_fails;
}

exit_code read_tree(const std::string& file, c_tree& tree, std::uint64_t* size) {
    c_long_text text;
    const exit_code result = read_text(file, text, size);
    if (result != exit_ok) return result;
    const c_progress_line progress("looking through " + shown_name(file));
    c_read_long_text source(std::move(text));
    const lmx::elmx_error code = tree.read(source);
    if (code == lmx::ELMX_OK) return exit_ok;
    complain(file, lmx::get_error_description(code));
    return exit_document_fails;
}

c_input::c_input(const std::string& file) : m_descriptor(system::k_input) {
    if (file == k_standard_stream) return;
    m_descriptor = system::open(path_of(file), system::open_mode::read);
    m_is_owned = m_descriptor >= 0;
    if (!m_is_owned) m_refusal = system_text();
}

c_input::~c_input() {
    if (m_is_owned) system::close(m_descriptor);
}

/// Reads more behind what the buffer holds.
bool c_input::fill() {
    const auto held = static_cast<std::size_t>(egptr() - gptr());
    std::copy(gptr(), egptr(), m_buffer.data());
    std::int64_t count = 0;
    if (m_refusal.empty()) {
        count = system::read(m_descriptor, m_buffer.data() + held, m_buffer.size() - held);
        if (count < 0) m_refusal = system_text();
    }
    const std::size_t more = count > 0 ? static_cast<std::size_t>(count) : 0;
    m_total += more;
    if (m_total > k_largest_stream) m_refusal = k_stream_too_long;
    setg(m_buffer.data(), m_buffer.data(), m_buffer.data() + held + more);
    return more > 0 && m_refusal.empty();
}

c_input::int_type c_input::underflow() { return fill() ? traits_type::to_int_type(*gptr()) : traits_type::eof(); }

char c_input::first_character() {
    for (;;) {
        constexpr std::string_view k_blanks = " \t\r\n";
        const std::string_view held(gptr(), static_cast<std::size_t>(egptr() - gptr()));
        const std::size_t first = held.find_first_not_of(k_blanks);
        if (first != held.npos) return held[first];
        if (held.size() == m_buffer.size() || !fill()) return '\0';
    }
}

std::string c_input::rest() {
    c_long_text text;
    while (sgetc() != traits_type::eof()) {
        text.append(std::string_view(gptr(), static_cast<std::size_t>(egptr() - gptr())));
        setg(m_buffer.data(), m_buffer.data(), m_buffer.data());
    }
    return text.take();
}

std::string read_file(const std::string& file, std::string& bytes) {
    c_input input(file);
    bytes = input.rest();
    return input.refusal();
}

c_scratch_folder::c_scratch_folder() {
    std::error_code none;
    make(fs::temp_directory_path(none));
}

c_scratch_folder::c_scratch_folder(const std::string& target) {
    std::error_code none;
    switch (kind_of_target(target)) {
        case target_kind::folder:
            m_refusal = k_is_directory;
            return;
        case target_kind::file: {
            const fs::path file = behind_links(path_of(target));
            // A file may be protected in a folder that isn't.
            if (fs::exists(file, none) && !system::may_write(file)) {
                m_refusal = system_text();
                return;
            }
            make(file.has_parent_path() ? file.parent_path() : fs::path("."));
            return;
        }
        case target_kind::stream:
        case target_kind::device:
            break;
    }
    make(fs::temp_directory_path(none));
}

void c_scratch_folder::make(const fs::path& parent) {
    m_path = system::make_scratch_folder(parent);
    if (m_path.empty()) m_refusal = system_text();
}

c_scratch_folder::~c_scratch_folder() {
    std::error_code ignored;
    if (!m_path.empty()) fs::remove_all(m_path, ignored);
}

std::optional<std::u16string> widen(const std::string& text) {
    std::u16string wide;
    std::string back;
    lmx::convert(&wide, text);
    if (lmx::convert(&back, wide) != text) return std::nullopt;
    return wide;
}

std::string deliver(const fs::path& finished, const std::string& target) {
    switch (kind_of_target(target)) {
        case target_kind::folder:
            return k_is_directory;
        case target_kind::file:
            return system::replace_file(finished, behind_links(path_of(target)));
        case target_kind::stream:
            return copy_to(system::k_output, finished);
        case target_kind::device:
            break;
    }
    c_descriptor descriptor(system::open(path_of(target), system::open_mode::write));
    if (descriptor.get() < 0) return system_text();
    const std::string refusal = copy_to(descriptor.get(), finished);
    return refusal.empty() && !descriptor.close() ? system_text() : refusal;
}

std::string write_file(const std::string& target, const std::string& bytes) {
    const c_signals_held held;
    const c_scratch_folder folder(target);
    if (folder.path().empty()) return folder.refusal();
    const fs::path finished = folder.path() / "finished";
    c_descriptor descriptor(system::open(finished, system::open_mode::create));
    if (descriptor.get() < 0) return system_text();
    std::string refusal = write_all(descriptor.get(), bytes);
    if (!refusal.empty()) return refusal;
    return descriptor.close() ? deliver(finished, target) : system_text();
}

}  // namespace vyr_tool
