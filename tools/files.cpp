// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <new>
#include <optional>
#include <utility>

#include "lmx/lmx.h"
#include "tools/progress.h"
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
    bool close() { return m_descriptor < 0 || ::close(std::exchange(m_descriptor, -1)) == 0; }

private:
    int m_descriptor;
};

std::string write_all(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(descriptor, bytes.data(), bytes.size());
        if (count >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            return system_text();
        }
    }
    return {};
}

constexpr std::size_t k_piece = std::size_t{1} << 16U;

void give_text(int descriptor, const text_taker& take) {
    std::string piece(k_piece, '\0');
    for (off_t at = 0;;) {
        const ssize_t count = pread(descriptor, piece.data(), piece.size(), at);
        if (count == 0 || (count < 0 && errno != EINTR)) return;
        if (count < 0) continue;
        take(std::string_view(piece.data(), static_cast<std::size_t>(count)));
        at += count;
    }
}

/// Of a container that was read: the text of its first entry, as far as that can be read.
void give_entry(const std::string& file, const DocumentReport& report, const text_taker& take) {
    const bool is_read = report.getCode() != lmx::ELMX_NO_FILE && report.getCode() != lmx::ELMX_USER_DEFINED_1;
    if (!take || !is_read) return;
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
    fs::create_symlink(fs::absolute(file, refused), link, refused);
    if (refused) {
        reading.refusal = refused.message();
        return;
    }
    reading.report = com_vyrgraph_v2::loadFileWithReport(document, link.string(), options);
    give_entry(link.string(), reading.report, take_text);
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
    reading.refusal = write_file(copy.string(), bytes);
    if (!reading.refusal.empty()) return;
    reading.report = com_vyrgraph_v2::loadFileWithReport(document, copy.string(), options);
    give_entry(copy.string(), reading.report, take_text);
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
    if (file == k_standard_stream) return read_stream(STDIN_FILENO, document, options, take_text, reading);
    const c_descriptor descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat state {};
    if (descriptor.get() < 0 || fstat(descriptor.get(), &state) != 0) {
        reading.refusal = system_text();
    } else if (S_ISDIR(state.st_mode)) {
        reading.refusal = k_is_directory;
    } else if (S_ISREG(state.st_mode)) {
        reading.size = static_cast<std::size_t>(state.st_size);
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

target_kind kind_of_target(const std::string& target, struct stat* state, bool* exists) {
    *exists = false;
    if (target == k_standard_stream) return target_kind::stream;
    *exists = stat(target.c_str(), state) == 0;
    if (!*exists || S_ISREG(state->st_mode)) return target_kind::file;
    return S_ISDIR(state->st_mode) ? target_kind::folder : target_kind::device;
}

/// Lets a file take the target's place.
std::string replace_file(const fs::path& finished, const fs::path& target, const struct stat* existing) {
    c_descriptor descriptor(open(finished.c_str(), O_WRONLY | O_CLOEXEC));
    if (descriptor.get() < 0) return system_text();
    const mode_t mask = umask(0);
    umask(mask);
    // Only the superuser may give files away; for others the new file is their own.
    if (existing != nullptr && fchown(descriptor.get(), existing->st_uid, existing->st_gid) != 0) errno = 0;
    const mode_t mode = existing != nullptr ? existing->st_mode & 07777U : 0666U & ~mask;
    const bool is_written = fchmod(descriptor.get(), mode) == 0 && fsync(descriptor.get()) == 0 && descriptor.close();
    return is_written && rename(finished.c_str(), target.c_str()) == 0 ? std::string() : system_text();
}

/// Whoever closes a pipe has read enough.
std::string copy_to(int descriptor, const fs::path& finished) {
    constexpr std::size_t k_unit = std::size_t{1} << 20U;
    const c_descriptor from(open(finished.c_str(), O_RDONLY | O_CLOEXEC));
    std::string bytes(k_unit, '\0');
    for (;;) {
        const ssize_t count = from.get() < 0 ? -1 : read(from.get(), bytes.data(), bytes.size());
        if (count == 0) return {};
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return system_text();
        const std::string refusal =
            write_all(descriptor, std::string_view(bytes).substr(0, static_cast<std::size_t>(count)));
        if (!refusal.empty()) return errno == EPIPE ? std::string() : refusal;
    }
}

}  // namespace

bool is_container_name(const std::string& file) { return file.ends_with(".vyrz"); }

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

exit_code read_or_explain(const std::string& file, Vyr& document, std::size_t* size, const text_taker& take_text) {
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
    const bool is_of_system = report.getCode() == lmx::ELMX_NO_FILE || report.getCode() == lmx::ELMX_USER_DEFINED_1;
    return is_of_system ? exit_usage_or_file : exit_document_fails;
}

exit_code read_text(const std::string& file, c_long_text& text, std::size_t* size) {
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

exit_code read_tree(const std::string& file, c_tree& tree, std::size_t* size) {
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

c_input::c_input(const std::string& file) : m_descriptor(STDIN_FILENO) {
    if (file == k_standard_stream) return;
    m_descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC);
    m_is_owned = m_descriptor >= 0;
    if (!m_is_owned) m_refusal = system_text();
}

c_input::~c_input() {
    if (m_is_owned) close(m_descriptor);
}

/// Reads more behind what the buffer holds.
bool c_input::fill() {
    const auto held = static_cast<std::size_t>(egptr() - gptr());
    std::copy(gptr(), egptr(), m_buffer.data());
    ssize_t count = 0;
    do {
        if (!m_refusal.empty()) break;
        count = ::read(m_descriptor, m_buffer.data() + held, m_buffer.size() - held);
        if (count < 0 && errno != EINTR) m_refusal = system_text();
    } while (count < 0);
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
    struct stat state {};
    bool exists = false;
    switch (kind_of_target(target, &state, &exists)) {
        case target_kind::folder:
            m_refusal = k_is_directory;
            return;
        case target_kind::file: {
            const fs::path file = behind_links(target);
            // A file may be protected in a folder that isn't.
            if (exists && faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0) {
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
    std::error_code none;
    make(fs::temp_directory_path(none));
}

void c_scratch_folder::make(const fs::path& parent) {
    std::string name = (parent / ".vyr-XXXXXX").string();
    if (mkdtemp(name.data()) != nullptr) {
        m_path = name;
    } else {
        m_refusal = system_text();
    }
}

c_scratch_folder::~c_scratch_folder() {
    std::error_code ignored;
    if (!m_path.empty()) fs::remove_all(m_path, ignored);
}

c_signals_held::c_signals_held() {
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&held, signal);
    pthread_sigmask(SIG_BLOCK, &held, &m_before);
}

c_signals_held::~c_signals_held() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

std::optional<std::u16string> widen(const std::string& text) {
    std::u16string wide;
    std::string back;
    lmx::convert(&wide, text);
    if (lmx::convert(&back, wide) != text) return std::nullopt;
    return wide;
}

std::string deliver(const fs::path& finished, const std::string& target) {
    struct stat state {};
    bool exists = false;
    switch (kind_of_target(target, &state, &exists)) {
        case target_kind::folder:
            return k_is_directory;
        case target_kind::file:
            return replace_file(finished, behind_links(target), exists ? &state : nullptr);
        case target_kind::stream:
            return copy_to(STDOUT_FILENO, finished);
        case target_kind::device:
            break;
    }
    c_descriptor descriptor(open(target.c_str(), O_WRONLY | O_CLOEXEC));
    if (descriptor.get() < 0) return system_text();
    const std::string refusal = copy_to(descriptor.get(), finished);
    return refusal.empty() && !descriptor.close() ? system_text() : refusal;
}

std::string write_file(const std::string& target, const std::string& bytes) {
    const c_signals_held held;
    const c_scratch_folder folder(target);
    if (folder.path().empty()) return folder.refusal();
    const fs::path finished = folder.path() / "finished";
    c_descriptor descriptor(open(finished.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (descriptor.get() < 0) return system_text();
    std::string refusal = write_all(descriptor.get(), bytes);
    if (!refusal.empty()) return refusal;
    return descriptor.close() ? deliver(finished, target) : system_text();
}

}  // namespace vyr_tool
