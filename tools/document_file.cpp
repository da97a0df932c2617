// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/document_file.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <system_error>

#include "lmx/lmx.h"

namespace vyr_tool {

namespace {

namespace fs = std::filesystem;

constexpr char k_not_whole[] = "not written in full";

bool is_container_name(const std::string& file_name) { return file_name.ends_with(".vyrz"); }

exit_code report_file(const std::string& file_name, const char* text) {
    std::cerr << "vyr: " << file_name << ": " << text << '\n';
    return exit_usage_or_file;
}

/// A failure without a place in the text: of writing, or inside a container.
exit_code report_document(const std::string& file_name, lmx::elmx_error code) {
    const bool is_of_container = code == lmx::ELMX_USER_DEFINED_1;
    std::cout << file_name << ": "
              << (is_of_container ? "the container is damaged" : lmx::get_error_description(code)) << '\n';
    return exit_document_fails;
}

/// A file that the system refuses is one thing, an archive that is none or is damaged another.
exit_code report_container(const std::string& file_name, const CZipException& failure) {
    const bool is_of_system = failure.GetCause() > 0 && failure.GetCause() < zip_generic;
    if (is_of_system) return report_file(file_name, lmx::get_error_description(lmx::ELMX_NO_FILE));
    std::cout << failure.what() << '\n';
    return exit_document_fails;
}

/// Document calls take names as UTF-16; one that isn't UTF-8 has no such form.
std::optional<std::u16string> widen(const std::string& text) {
    std::u16string wide;
    lmx::convert(&wide, text);
    if (narrow(wide) != text) return std::nullopt;
    return wide;
}

constexpr char k_not_utf8[] = "the name of a container must be UTF-8";

exit_code read_container(const std::string& file_name, com_vyrgraph_v2::Vyr& document) {
    const std::optional<std::u16string> path = widen(file_name);
    if (!path) return report_file(file_name, k_not_utf8);
    try {
        const lmx::elmx_error code = document.loadFile(*path);
        return code == lmx::ELMX_OK ? exit_ok : report_document(file_name, code);
    } catch (const CZipException& failure) {
        return report_container(file_name, failure);
    }
}

/// A folder that is removed with everything in it; its name is empty if it couldn't be made.
class c_scratch_folder {
public:
    explicit c_scratch_folder(const fs::path& parent) {
        std::string name = (parent / ".vyr-XXXXXX").string();
        if (mkdtemp(name.data()) != nullptr) m_path = name;
    }
    c_scratch_folder(const c_scratch_folder&) = delete;
    c_scratch_folder& operator=(const c_scratch_folder&) = delete;
    ~c_scratch_folder() {
        std::error_code ignored;
        if (!m_path.empty()) fs::remove_all(m_path, ignored);
    }
    const fs::path& path() const { return m_path; }

private:
    fs::path m_path;
};

/// The library makes a container of a plain file of the same stem beside it, which may be the very input. In a folder
/// of their own the two can harm no other file, and the target changes only once the container is whole.
exit_code write_container(const std::string& file_name, const com_vyrgraph_v2::Vyr& document) {
    const fs::path target(file_name);
    const c_scratch_folder folder(target.has_parent_path() ? target.parent_path() : fs::path("."));
    if (folder.path().empty()) return report_file(file_name, lmx::get_error_description(lmx::ELMX_NO_FILE));
    const fs::path made = folder.path() / target.filename();
    const std::optional<std::u16string> path = widen(made.string());
    if (!path) return report_file(file_name, k_not_utf8);
    try {
        const lmx::elmx_error code = document.writeFile(*path);
        if (code == lmx::ELMX_USER_DEFINED_1) return report_file(file_name, k_not_whole);
        if (code != lmx::ELMX_OK) return report_document(file_name, code);
    } catch (const CZipException& failure) {
        return report_file(file_name, failure.what());
    }
    std::error_code refused;
    fs::rename(made, target, refused);
    return refused ? report_file(file_name, refused.message().c_str()) : exit_ok;
}

}  // namespace

exit_code read_document(const std::string& file_name, com_vyrgraph_v2::Vyr& document) {
    if (is_container_name(file_name)) return read_container(file_name, document);
    // Which opens like a file, and would then look like an empty document.
    std::error_code ignored;
    if (fs::is_directory(file_name, ignored)) return report_file(file_name, "is a directory");
    // The document calls keep no message, so the command has a reader of its own and asks it.
    lmx::c_xml_reader_file reader(file_name.c_str());
    if (!reader.is_open()) return report_file(file_name, lmx::get_error_description(lmx::ELMX_NO_FILE));
    const lmx::elmx_error code = document.unmarshal(reader);
    if (code == lmx::ELMX_OK) return exit_ok;
    std::cout << file_name << ':' << reader.get_line_no() << ": " << reader.get_error_item_name() << ": "
              << lmx::get_error_description(code) << '\n';
    return exit_document_fails;
}

exit_code write_document(const std::string& file_name, const com_vyrgraph_v2::Vyr& document) {
    if (is_container_name(file_name)) return write_container(file_name, document);
    if (!file_name.ends_with(".vyr")) return report_file(file_name, "the name of a document ends in .vyr or .vyrz");
    // Not writeFile: it does not tell a file that can't be opened or a full disk from success.
    const com_vyrgraph_v2::XMLDocumentResult result = document.writeString();
    if (result.getElmxError() != lmx::ELMX_OK) return report_document(file_name, result.getElmxError());
    std::ofstream file(file_name, std::ios::binary);
    if (!file.is_open()) return report_file(file_name, lmx::get_error_description(lmx::ELMX_NO_FILE));
    file << narrow(result.getXmlDocument());
    file.close();
    return file ? exit_ok : report_file(file_name, k_not_whole);
}

std::string narrow(const std::u16string& text) {
    std::string bytes;
    lmx::convert(&bytes, text);
    return bytes;
}

}  // namespace vyr_tool
