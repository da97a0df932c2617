// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/document.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>

#include "lmx/binding/open_element.h"
#include "lmx/binding/part_memory.h"
#include "lmx/file_name.h"
#include "lmx/writer/xml_writer.h"

namespace lmx {
namespace {

template <class Target>
elmx_error marshal_whole(const s_document& document, const void* object, Target& target) {
    c_xml_writer writer(target, c_xml_writer::include_xml_decl, "\t", "\n");
    return document.operations->marshal(object, writer, document.element);
}

}  // namespace

elmx_error unmarshal_document(const s_document& document, void* object, c_xml_reader& reader) {
    reader.set_ns_map(document.ns_map);
    const c_xml_reader_local scope(reader);
    const c_part_chunks chunks;
    elmx_error error = ELMX_OK;
    reader.get_element_event(nullptr, &error, &reader.m_name);
    if (error != ELMX_OK) {
        error = report_at(reader, {}, error, reader.m_name);
        if (error != ELMX_OK) return error;
    }
    const bool is_document =
        reader.get_element_ns_id() == document.ns_map->ns_id && reader.get_local_name() == document.local_name;
    if (!is_document) {
        const s_fault_site site{nullptr, nullptr, nullptr, &document};
        error = report_at(reader, site, ELMX_ELEMENT_NOT_FOUND, reader.m_name);
        if (error != ELMX_OK) return error;
    }
    return document.operations->unmarshal(object, reader, reader.m_name);
}

elmx_error unmarshal_document(const s_document& document, void* object, const char* file_name) {
    c_xml_reader_file reader(file_name);
    if (!reader.is_open()) return ELMX_NO_FILE;
    return unmarshal_document(document, object, reader);
}

elmx_error unmarshal_document(const s_document& document, void* object, const char* data, std::size_t size) {
    c_xml_reader_memory reader(data, size);
    return unmarshal_document(document, object, reader);
}

elmx_error marshal_document(const s_document& document, const void* object, const char* file_name) {
    const std::optional<std::filesystem::path> path = to_path(std::string_view(file_name));
    if (!path) return ELMX_NO_FILE;
    std::ofstream stream(*path, std::ios::binary);
    if (!stream.is_open()) return ELMX_NO_FILE;
    const elmx_error error = marshal_whole(document, object, stream);
    if (error != ELMX_OK) {
        stream.close();
        std::error_code ignored;
        std::filesystem::remove(*path, ignored);
    }
    return error;
}

elmx_error marshal_document(const s_document& document, const void* object, std::string* text) {
    std::string printed;
    const elmx_error error = marshal_whole(document, object, printed);
    if (error == ELMX_OK) *text = std::move(printed);
    return error;
}

elmx_error marshal_document(const s_document& document, const void* object, std::ostream& stream) {
    return marshal_whole(document, object, stream);
}

}  // namespace lmx
