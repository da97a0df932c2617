// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The document calls of the root class: load from and write to a file or a string, and the stamps that say
/// which library read and wrote a document.

#include "schema/Vyr.h"

#include <cstdio>
#include <fstream>
#include <sstream>

#include "document/container.h"
#include "document/result.h"
#include "lmx/file_name.h"
#include "lmx/reader/xml_reader.h"
#include "lmx/values/unicode.h"
#include "lmx/writer/xml_writer.h"
#include "zip/container.h"

namespace com_vyrgraph_v2 {
namespace {

constexpr char16_t k_sdk_name[] = u"Vyr2-LMX-3.7.6";
constexpr char16_t k_sdk_version[] = u"1.0";
constexpr char k_root_element[] = "Vyr:Vyr";
constexpr std::u16string_view k_plain_ending = u".vyr";
constexpr std::u16string_view k_container_ending = u".vyrz";

SDKType make_stamp() {
    SDKVersion version;
    version.set_SDKVersion(k_sdk_version);
    SDKType stamp;
    stamp.set_SDKName(k_sdk_name);
    stamp.assign_SDKVersion(version);
    return stamp;
}

/// Writing is constant to its caller; the stamp in the preamble is the one thing that it leaves behind.
lmx::elmx_error marshal_stamped(const Vyr& document, Preamble& preamble, std::ostream& stream) {
    lmx::c_xml_writer writer(stream, lmx::c_xml_writer::include_xml_decl, "\t", "\n");
    preamble.get_Header().assign_WriteSDKInformation(make_stamp());
    return document.marshal(writer, k_root_element);
}

struct s_plain_file {
    lmx::elmx_error error;
    /// In bytes; -1 for a file that couldn't be opened or written in full, which is no failure of a plain document.
    std::streamoff size;
};

s_plain_file write_plain_file(const Vyr& document, Preamble& preamble, const std::string& system_path) {
    std::ofstream stream(system_path);
    const lmx::elmx_error error = marshal_stamped(document, preamble, stream);
    const std::streamoff size = stream.tellp();
    stream.close();
    if (error != lmx::ELMX_OK) std::remove(system_path.c_str());
    return {error, stream.good() ? size : -1};
}

/// Everything but the opening of the archive: whatever is thrown here becomes one code, and its cause is lost.
lmx::elmx_error load_from_container(Vyr& document, CZipContainer& archive, const std::u16string& path) {
    try {
        const s_document_bytes bytes = read_first_entry(archive, path);
        lmx::c_xml_reader_memory reader(bytes.data.get(), bytes.size);
        return document.unmarshal(reader);
    } catch (...) {
        archive.CloseContainer(zip_close_forced);
        return lmx::ELMX_USER_DEFINED_1;
    }
}

lmx::elmx_error write_to_container(CZipContainer& archive, const std::u16string& plain_path, std::streamoff size) {
    try {
        write_only_entry(archive, plain_path, size);
        return lmx::ELMX_OK;
    } catch (...) {
        archive.CloseContainer(zip_close_forced);
        return lmx::ELMX_USER_DEFINED_1;
    }
}

}  // namespace

void Vyr::init() { get_Preamble().get_Header().assign_ReadSDKInformation(make_stamp()); }

lmx::elmx_error Vyr::loadString(const std::u16string& text) {
    std::string bytes;
    lmx::convert(&bytes, text);
    lmx::c_xml_reader_memory reader(bytes.data(), bytes.size());
    return unmarshal(reader);
}

lmx::elmx_error Vyr::loadFile(const std::u16string& path) {
    if (path.ends_with(k_container_ending)) {
        CZipContainer archive;
        if (archive.OpenContainer(path, zip_open_read)) return load_from_container(*this, archive, path);
    }
    const std::optional<std::string> system_path = lmx::to_system_path(path);
    if (!system_path) return lmx::ELMX_NO_FILE;
    lmx::c_xml_reader_file reader(system_path->c_str());
    if (!reader.is_open()) return lmx::ELMX_NO_FILE;
    return unmarshal(reader);
}

XMLDocumentResult Vyr::writeString() const {
    std::ostringstream stream;
    const lmx::elmx_error error = marshal_stamped(*this, m_Preamble, stream);
    std::u16string text;
    if (error == lmx::ELMX_OK) lmx::convert(&text, std::move(stream).str());
    return XMLDocumentResult(text, error);
}

lmx::elmx_error Vyr::writeFile(const std::u16string& path) const {
    const bool is_container = path.ends_with(k_container_ending);
    if (!is_container && !path.ends_with(k_plain_ending)) return lmx::ELMX_USER_DEFINED_2;
    const std::size_t ending_length = is_container ? k_container_ending.size() : k_plain_ending.size();
    const std::u16string plain_path = path.substr(0, path.size() - ending_length).append(k_plain_ending);
    const std::string system_path = lmx::to_system_path(plain_path).value_or(std::string());
    const s_plain_file plain = write_plain_file(*this, m_Preamble, system_path);
    if (!is_container || plain.error != lmx::ELMX_OK) return plain.error;

    CZipContainer archive;
    if (archive.OpenContainer(path, zip_open_create)) {
        const lmx::elmx_error error = write_to_container(archive, plain_path, plain.size);
        if (error != lmx::ELMX_OK) return error;
    }
    std::remove(system_path.c_str());
    return lmx::ELMX_OK;
}

}  // namespace com_vyrgraph_v2
