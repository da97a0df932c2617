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
#include "tools/text.h"

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

/// A folder for what must have a name for a while; removed with everything in it.
class c_scratch_folder {
public:
    c_scratch_folder() {
        std::error_code none;
        std::string name = (fs::temp_directory_path(none) / "vyr-XXXXXX").string();
        if (mkdtemp(name.data()) != nullptr) m_path = name;
    }
    c_scratch_folder(const c_scratch_folder&) = delete;
    c_scratch_folder& operator=(const c_scratch_folder&) = delete;
    ~c_scratch_folder() {
        std::error_code ignored;
        if (!m_path.empty()) fs::remove_all(m_path, ignored);
    }
    /// Empty if it could not be made.
    const fs::path& path() const { return m_path; }

private:
    fs::path m_path;
};

/// Lets an interruption wait, so that no file without a master stays behind.
class c_signals_held {
public:
    c_signals_held() {
        sigset_t held;
        sigemptyset(&held);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&held, signal);
        pthread_sigmask(SIG_BLOCK, &held, &m_before);
    }
    c_signals_held(const c_signals_held&) = delete;
    c_signals_held& operator=(const c_signals_held&) = delete;
    ~c_signals_held() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

private:
    sigset_t m_before;
};

/// Everything up to the end. Returns why that failed, or nothing.
std::string read_all(int descriptor, std::string& bytes) {
    for (;;) {
        const std::size_t filled = bytes.size();
        if (filled > k_largest_stream) return k_stream_too_long;
        constexpr std::size_t k_unit = std::size_t{1} << 16U;
        bytes.resize(filled + std::max(k_unit, filled));
        const ssize_t count = read(descriptor, bytes.data() + filled, bytes.size() - filled);
        bytes.resize(filled + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count == 0) return {};
        if (count < 0 && errno != EINTR) return system_text();
    }
}

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

/// Nothing for bytes that are no UTF-8.
std::optional<std::u16string> widen(const std::string& text) {
    std::u16string wide;
    std::string back;
    lmx::convert(&wide, text);
    if (lmx::convert(&back, wide) != text) return std::nullopt;
    return wide;
}

void read_regular(const std::string& file, Vyr& document, const ReportOptions& options, s_reading& reading) {
    // The library takes names of containers as text only.
    if (!is_container_name(file) || widen(file)) {
        reading.report = com_vyrgraph_v2::loadFileWithReport(document, file, options);
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
}

void read_bytes(const std::string& bytes, Vyr& document, const ReportOptions& options, s_reading& reading) {
    reading.size = bytes.size();
    if (!bytes.starts_with(k_archive_signature)) {
        reading.report = com_vyrgraph_v2::loadMemoryWithReport(document, bytes.data(), bytes.size(), options);
        return;
    }
    const c_scratch_folder folder;
    const fs::path copy = folder.path() / "document.vyrz";
    reading.refusal = write_file(copy.string(), bytes);
    if (reading.refusal.empty())
        reading.report = com_vyrgraph_v2::loadFileWithReport(document, copy.string(), options);
}

void read_stream(int descriptor, Vyr& document, const ReportOptions& options, s_reading& reading) {
    std::string bytes;
    reading.refusal = read_all(descriptor, bytes);
    if (reading.refusal.empty()) read_bytes(bytes, document, options, reading);
}

void read_any(const std::string& file, Vyr& document, const ReportOptions& options, s_reading& reading) {
    if (file == k_standard_stream) return read_stream(STDIN_FILENO, document, options, reading);
    const c_descriptor descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat state {};
    if (descriptor.get() < 0 || fstat(descriptor.get(), &state) != 0) {
        reading.refusal = system_text();
    } else if (S_ISDIR(state.st_mode)) {
        reading.refusal = k_is_directory;
    } else if (S_ISREG(state.st_mode)) {
        reading.size = static_cast<std::size_t>(state.st_size);
        read_regular(file, document, options, reading);
        // The system's refusal of a file that it has just opened: of its content. No fault of the document's.
        const int refused = reading.report.getSystemError();
        if (refused != 0) reading.refusal = std::strerror(refused);
    } else {
        read_stream(descriptor.get(), document, options, reading);
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

/// Writes a file of another name beside the target and lets it take the target's place.
std::string replace_file(const fs::path& target, const struct stat* existing, const std::string& bytes,
                         const written_check& check) {
    const c_signals_held held;
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    // Whatever the target is called, the check knows a container by its ending.
    const std::string ending = bytes.starts_with(k_archive_signature) ? ".vyrz" : ".vyr";
    std::string made = (folder / ".vyr-XXXXXX").string() + ending;
    c_descriptor descriptor(mkostemps(made.data(), static_cast<int>(ending.size()), O_CLOEXEC));
    if (descriptor.get() < 0) return system_text();
    const mode_t mask = umask(0);
    umask(mask);
    std::string refusal = write_all(descriptor.get(), bytes);
    // Only the superuser may give files away; for others the new file is their own.
    if (existing != nullptr && fchown(descriptor.get(), existing->st_uid, existing->st_gid) != 0) errno = 0;
    const mode_t mode = existing != nullptr ? existing->st_mode & 07777U : 0666U & ~mask;
    const bool is_written =
        refusal.empty() && fchmod(descriptor.get(), mode) == 0 && fsync(descriptor.get()) == 0 && descriptor.close();
    if (refusal.empty() && !is_written) refusal = system_text();
    if (is_written && check) refusal = check(made);
    if (refusal.empty() && rename(made.c_str(), target.c_str()) == 0) return {};
    if (refusal.empty()) refusal = system_text();
    unlink(made.c_str());
    return refusal;
}

/// A code of the document calls is the system's doing, any other the document's. `*reasons` gets a line for each
/// fault.
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
    std::cerr << "vyr: " << shown_name(file) << ": " << printable(text) << '\n';
}

s_reading read_document(const std::string& file, Vyr& document, const ReportOptions& options) {
    s_reading reading;
    try {
        read_any(file, document, options, reading);
    } catch (const std::bad_alloc&) {
        reading.refusal = k_no_memory;
    }
    return reading;
}

s_reading read_document_bytes(const std::string& bytes, Vyr& document) {
    s_reading reading;
    read_bytes(bytes, document, {}, reading);
    return reading;
}

exit_code read_or_explain(const std::string& file, Vyr& document, std::size_t* size) {
    const s_reading reading = read_document(file, document);
    if (size != nullptr) *size = reading.size;
    if (!reading.refusal.empty()) {
        complain(file, reading.refusal);
        return exit_usage_or_file;
    }
    if (reading.report.isOk()) return exit_ok;
    std::cerr << fault_text(file, reading.report.getFault(0)) << '\n';
    return exit_document_fails;
}

exit_code document_bytes(const Vyr& document, std::string* bytes) {
    std::u16string text;
    const DocumentReport report = com_vyrgraph_v2::writeStringWithReport(document, &text);
    if (!report.isOk()) return explain_failed_write(report, bytes);
    lmx::convert(bytes, text);
    return exit_ok;
}

/// The library makes a container of a plain file of the same stem beside it, which may be anybody's. In a folder of
/// their own the two can harm no other file.
exit_code container_bytes(const Vyr& document, const std::string& stem, std::string* bytes) {
    const c_signals_held held;
    const c_scratch_folder folder;
    *bytes = "no folder for temporary files: " + system_text();
    if (folder.path().empty()) return exit_usage_or_file;
    const std::string made = (folder.path() / (widen(stem) ? stem : "document")).string() + ".vyrz";
    const DocumentReport report = com_vyrgraph_v2::writeFileWithReport(document, widen(made).value_or(u""));
    if (!report.isOk()) return explain_failed_write(report, bytes);
    const c_descriptor descriptor(open(made.c_str(), O_RDONLY | O_CLOEXEC));
    std::string read;
    *bytes = descriptor.get() < 0 ? system_text() : read_all(descriptor.get(), read);
    if (!bytes->empty()) return exit_usage_or_file;
    *bytes = std::move(read);
    return exit_ok;
}

exit_code read_tree(const std::string& file, c_tree& tree, std::size_t* size) {
    std::string xml;
    {
        Vyr document;
        const exit_code result = read_or_explain(file, document, size);
        if (result != exit_ok) return result;
        lmx::c_xml_writer writer(xml, 0, "", "\n");
        if (document.marshal(writer, "Vyr:Vyr") != lmx::ELMX_OK) {
            std::string message;
            complain(file, writer.get_error_message(&message));
            return exit_document_fails;
        }
    }
    const lmx::elmx_error code = tree.read(xml);
    if (code == lmx::ELMX_OK) return exit_ok;
    complain(file, lmx::get_error_description(code));
    return exit_document_fails;
}

std::string write_file(const std::string& file, const std::string& bytes, const written_check& check) {
    const auto check_unwritten = [&] { return check ? check({}) : std::string(); };
    if (file == k_standard_stream) {
        if (std::string refusal = check_unwritten(); !refusal.empty()) return refusal;
        const std::string refusal = write_all(STDOUT_FILENO, bytes);
        // Whoever closes the pipe has read enough.
        return !refusal.empty() && errno == EPIPE ? std::string() : refusal;
    }
    const fs::path target = behind_links(file);
    struct stat state {};
    if (stat(target.c_str(), &state) != 0) return replace_file(target, nullptr, bytes, check);
    if (S_ISDIR(state.st_mode)) return k_is_directory;
    if (S_ISREG(state.st_mode)) {
        // A file may be protected in a folder that isn't.
        if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) return system_text();
        return replace_file(target, &state, bytes, check);
    }
    c_descriptor descriptor(open(target.c_str(), O_WRONLY | O_CLOEXEC));
    if (descriptor.get() < 0) return system_text();
    if (std::string refusal = check_unwritten(); !refusal.empty()) return refusal;
    const std::string refusal = write_all(descriptor.get(), bytes);
    return refusal.empty() && !descriptor.close() ? system_text() : refusal;
}

}  // namespace vyr_tool
