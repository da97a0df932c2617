// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/document_file.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>

#include "lmx/lmx.h"

namespace vyr_tool {

namespace {

bool is_container_name(const std::string& file_name) { return file_name.ends_with(".vyrz"); }

exit_code report_file(const std::string& file_name, const char* text) {
    std::cerr << "vyr: " << file_name << ": " << text << '\n';
    return exit_usage_or_file;
}

/// A failure without a place in the text: of writing, or inside a container.
exit_code report_document(const std::string& file_name, lmx::elmx_error code) {
    std::cout << file_name << ": " << lmx::get_error_description(code) << '\n';
    return exit_document_fails;
}

/// A failed call on a container: the first code of the user's range stands for the container itself.
exit_code report_container(const std::string& file_name, lmx::elmx_error code) {
    if (code == lmx::ELMX_USER_DEFINED_1) {
        return report_file(file_name, "containers (.vyrz) are not supported by this build");
    }
    return report_document(file_name, code);
}

std::u16string widen(const std::string& text) {
    std::u16string wide;
    lmx::convert(&wide, text);
    return wide;
}

}  // namespace

exit_code read_document(const std::string& file_name, com_vyrgraph_v2::Vyr& document) {
    if (is_container_name(file_name)) {
        const lmx::elmx_error code = document.loadFile(widen(file_name));
        return code == lmx::ELMX_OK ? exit_ok : report_container(file_name, code);
    }
    // Which opens like a file, and would then look like an empty document.
    std::error_code ignored;
    if (std::filesystem::is_directory(file_name, ignored)) return report_file(file_name, "is a directory");
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
    if (is_container_name(file_name)) {
        const lmx::elmx_error code = document.writeFile(widen(file_name));
        return code == lmx::ELMX_OK ? exit_ok : report_container(file_name, code);
    }
    if (!file_name.ends_with(".vyr")) return report_file(file_name, "the name of a document ends in .vyr");
    // Not writeFile: it does not tell a file that can't be opened or a full disk from success.
    const com_vyrgraph_v2::XMLDocumentResult result = document.writeString();
    if (result.getElmxError() != lmx::ELMX_OK) return report_document(file_name, result.getElmxError());
    std::ofstream file(file_name, std::ios::binary);
    if (!file.is_open()) return report_file(file_name, lmx::get_error_description(lmx::ELMX_NO_FILE));
    file << narrow(result.getXmlDocument());
    file.close();
    return file ? exit_ok : report_file(file_name, "not written in full");
}

std::string narrow(const std::u16string& text) {
    std::string bytes;
    lmx::convert(&bytes, text);
    return bytes;
}

}  // namespace vyr_tool
