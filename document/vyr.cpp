// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The document calls of the root class: load from and write to a file or a string, and the stamps that say
/// which library read and wrote a document.

#include "schema/Vyr.h"

#include <cstdio>
#include <fstream>
#include <sstream>

#include "document/file_name.h"
#include "document/result.h"
#include "lmx/reader/xml_reader.h"
#include "lmx/values/unicode.h"
#include "lmx/writer/xml_writer.h"

namespace com_vyrgraph_v2 {
namespace {

constexpr char16_t k_sdk_name[] = u"Vyr2-LMX-3.7.6";
constexpr char16_t k_sdk_version[] = u"1.0";
constexpr char k_root_element[] = "Vyr:Vyr";

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

/// The state of the stream isn't looked at: a file that can't be opened stays unwritten, and the write succeeds.
lmx::elmx_error write_plain_file(const Vyr& document, Preamble& preamble, std::u16string_view path) {
    const std::string system_path = to_system_path(path).value_or(std::string());
    std::ofstream stream(system_path);
    const lmx::elmx_error error = marshal_stamped(document, preamble, stream);
    stream.close();
    if (error != lmx::ELMX_OK) std::remove(system_path.c_str());
    return error;
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
    // Containers aren't built in yet.
    if (path.ends_with(k_container_ending)) return lmx::ELMX_USER_DEFINED_1;
    const std::optional<std::string> system_path = to_system_path(path);
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
    if (path.ends_with(k_container_ending)) return lmx::ELMX_USER_DEFINED_1;
    if (!path.ends_with(k_plain_ending)) return lmx::ELMX_USER_DEFINED_2;
    return write_plain_file(*this, m_Preamble, path);
}

}  // namespace com_vyrgraph_v2
