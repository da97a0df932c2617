// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The document calls of the root class: load from and write to a file or a string, and the stamps that say
/// which library read and wrote a document.

#include "schema/Vyr.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "document/container.h"
#include "document/document_calls.h"
#include "document/report_builder.h"
#include "document/result.h"
#include "lmx/binding/document.h"
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
constexpr char k_not_written[] = "not written, or not in full";
constexpr char k_no_name[] = "the name is no text that a file can have";
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

template <class Target, class Marshal>
lmx::elmx_error marshal_checked(c_report_builder* report, Target& target, Marshal&& marshal) {
    c_reporting<lmx::c_xml_writer> writer(report, target, lmx::c_xml_writer::include_xml_decl, "\t", "\n");
    writer.set_checking(report != nullptr);
    return marshal(writer);
}

/// Writing is constant to its caller; the stamp in the preamble, a mutable member, is the one thing that it leaves
/// behind.
template <class Target>
lmx::elmx_error marshal_stamped(const Vyr& document, Target& target, c_report_builder* report) {
    const_cast<Preamble&>(document.get_Preamble()).get_Header().assign_WriteSDKInformation(make_stamp());
    return marshal_checked(report, target,
                           [&](lmx::c_xml_writer& writer) { return document.marshal(writer, k_root_element); });
}

struct s_plain_file {
    lmx::elmx_error error;
    /// In bytes; -1 for a file that couldn't be opened or written in full, which is no failure of a plain document.
    std::streamoff size;
    int system_error;  ///< the `errno` of such a file
};

void remove_file(const std::filesystem::path& path) {
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
}

/// Ends a file after its last byte, or after the failure that the document has.
s_plain_file close_plain_file(std::ofstream& stream, const std::filesystem::path& path, lmx::elmx_error error) {
    const std::streamoff size = stream.tellp();
    stream.close();
    const int system_error = errno;
    if (error != lmx::ELMX_OK) remove_file(path);
    if (stream.good()) return {error, size, 0};
    return {error, -1, system_error};
}

s_plain_file write_plain_file(const Vyr& document, const std::filesystem::path& path, c_report_builder* report) {
    errno = 0;
    std::ofstream stream(path, std::ios::binary);
    return close_plain_file(stream, path, marshal_stamped(document, stream, report));
}

/// Whatever is thrown at a container that is open becomes one code. Only a report keeps its cause.
lmx::elmx_error give_up(CZipContainer& archive, c_report_builder* report) {
    if (report != nullptr) report->add_exception(lmx::ELMX_USER_DEFINED_1);
    archive.CloseContainer(zip_close_forced);
    return lmx::ELMX_USER_DEFINED_1;
}

lmx::elmx_error load_from_container(Vyr& document, CZipContainer& archive, const std::u16string& path,
                                    c_report_builder* report) {
    try {
        const s_document_bytes bytes = read_first_entry(archive, path);
        return load_memory(document, bytes.data.get(), bytes.size, report);
    } catch (...) {
        const bool is_empty = archive.GetEntryCount() == 0;
        const lmx::elmx_error error = give_up(archive, report);
        if (is_empty && report != nullptr) report->explain_last("the archive holds no file");
        return error;
    }
}

lmx::elmx_error write_to_container(CZipContainer& archive, const std::u16string& plain_path, std::streamoff size,
                                   c_report_builder* report) {
    try {
        write_only_entry(archive, plain_path, size);
        return lmx::ELMX_OK;
    } catch (...) {
        return give_up(archive, report);
    }
}

bool is_archive(const std::filesystem::path& path) {
    constexpr std::string_view k_signature = "PK\x03\x04";
    std::string start(k_signature.size(), '\0');
    return std::ifstream(path, std::ios::binary).read(start.data(), 4) && start == k_signature;
}

lmx::elmx_error refuse_file(c_report_builder* report, const std::string& detail, int system_error = 0) {
    if (report != nullptr) report->add(lmx::ELMX_NO_FILE, detail, system_error);
    return lmx::ELMX_NO_FILE;
}

/// Nothing for a name that is no UTF-8.
std::optional<std::u16string> wide_name(const std::string& path) {
    std::u16string wide = lmx::convert_to_wide(path);
    if (lmx::convert_to_narrow(wide) != path) return std::nullopt;
    return wide;
}

/// Reads a plain file that has the element as its root.
lmx::elmx_error load_root(const lmx::s_document& element, void* object, const std::string& name,
                          c_report_builder* report) {
    c_reporting<lmx::c_xml_reader_file> reader(report, name.c_str());
    if (!reader.is_open()) return refuse_file(report, {}, errno);
    const lmx::elmx_error error = lmx::unmarshal_document(element, object, reader);
    if (report == nullptr) return error;
    const std::filesystem::path path = lmx::to_path(name).value_or(std::filesystem::path());
    std::error_code ignored;
    // A pipe gives its bytes once.
    if (report->lacks_columns() && std::filesystem::is_regular_file(path, ignored)) {
        report->find_columns([&] { return std::make_unique<lmx::c_read_file>(name.c_str()); }, element);
    }
    if (report->end_load(error) == lmx::ELMX_OK) return error;
    // Which opens like a file, and then can't be read.
    if (std::filesystem::is_directory(path, ignored)) {
        report->explain_last("it is a directory");
    } else if (reader.get_read_error() != 0) {
        report->explain_last("the file could not be read to its end", reader.get_read_error());
    } else if (is_archive(path)) {
        report->explain_last("it is a ZIP archive; the name of a container must end in .vyrz");
    }
    return error;
}

}  // namespace

lmx::elmx_error load_memory(Vyr& document, const char* data, std::size_t size, c_report_builder* report) {
    c_reporting<lmx::c_xml_reader_memory> reader(report, data, size);
    const lmx::elmx_error error = document.unmarshal(reader);
    if (report == nullptr) return error;
    if (report->lacks_columns()) {
        report->find_columns([&] { return std::make_unique<lmx::c_read_memory>(data, size); }, Vyr::k_document);
    }
    return report->end_load(error);
}

lmx::elmx_error load_string(Vyr& document, const std::u16string& text, c_report_builder* report) {
    std::string bytes;
    lmx::convert(&bytes, text);
    return load_memory(document, bytes.data(), bytes.size(), report);
}

lmx::elmx_error load_plain_file(Vyr& document, const std::string& name, c_report_builder* report) {
    return load_root(Vyr::k_document, &document, name, report);
}

lmx::elmx_error load_file(Vyr& document, const std::u16string& path, c_report_builder* report) {
    if (path.ends_with(k_container_ending)) {
        CZipContainer archive;
        if (archive.OpenContainer(path, zip_open_read)) return load_from_container(document, archive, path, report);
    }
    if (!lmx::to_path(path)) return refuse_file(report, k_no_name);
    return load_plain_file(document, lmx::convert_to_narrow(path), report);
}

lmx::elmx_error load_file(Vyr& document, const std::string& path, c_report_builder* report) {
    if (const std::optional<std::u16string> wide = wide_name(path)) return load_file(document, *wide, report);
    if (path.ends_with(".vyrz")) return refuse_file(report, "the name of a container must be UTF-8");
    return load_plain_file(document, path, report);
}

lmx::elmx_error load_element(const lmx::s_document& element, void* object, const std::u16string& path,
                             c_report_builder* report) {
    if (!lmx::to_path(path)) return refuse_file(report, k_no_name);
    return load_root(element, object, lmx::convert_to_narrow(path), report);
}

lmx::elmx_error check_writing(const Vyr& document, c_report_builder* report) {
    // A stream without a buffer takes nothing.
    std::ostream nowhere(nullptr);
    return marshal_stamped(document, nowhere, report);
}

lmx::elmx_error write_string(const Vyr& document, std::u16string* text, c_report_builder* report) {
    std::string printed;
    const lmx::elmx_error error = marshal_stamped(document, printed, report);
    if (error == lmx::ELMX_OK) lmx::convert(text, printed);
    return error;
}

lmx::elmx_error write_file(const Vyr& document, const std::u16string& path, c_report_builder* report) {
    const bool is_container = path.ends_with(k_container_ending);
    if (!is_container && !path.ends_with(k_plain_ending)) {
        if (report != nullptr) report->add(lmx::ELMX_USER_DEFINED_2, "the name must end in .vyr or .vyrz");
        return lmx::ELMX_USER_DEFINED_2;
    }
    const std::size_t ending_length = is_container ? k_container_ending.size() : k_plain_ending.size();
    const std::u16string plain_path = path.substr(0, path.size() - ending_length).append(k_plain_ending);
    const std::filesystem::path plain_file = lmx::to_path(plain_path).value_or(std::filesystem::path());
    const s_plain_file plain = write_plain_file(document, plain_file, report);
    if (!is_container || plain.error != lmx::ELMX_OK) {
        // For the plain call this is no failure.
        if (plain.error == lmx::ELMX_OK && plain.size < 0 && report != nullptr) {
            report->add(lmx::ELMX_NO_FILE, k_not_written, plain.system_error);
        }
        return plain.error;
    }

    CZipContainer archive;
    if (archive.OpenContainer(path, zip_open_create)) {
        const lmx::elmx_error error = write_to_container(archive, plain_path, plain.size, report);
        if (error != lmx::ELMX_OK) {
            if (plain.size < 0 && report != nullptr) report->explain_last(k_not_written, plain.system_error);
            return error;
        }
    }
    remove_file(plain_file);
    return lmx::ELMX_OK;
}

lmx::elmx_error write_file(const Vyr& document, const std::string& path, c_report_builder* report) {
    const std::optional<std::u16string> wide = wide_name(path);
    return wide ? write_file(document, *wide, report) : refuse_file(report, "the name must be UTF-8");
}

lmx::elmx_error write_element(const lmx::s_document& element, const void* object, const std::u16string& path,
                              c_report_builder* report) {
    const std::optional<std::filesystem::path> file_path = lmx::to_path(path);
    if (!file_path) return refuse_file(report, k_no_name);
    errno = 0;
    std::ofstream stream(*file_path, std::ios::binary);
    if (!stream.is_open()) return refuse_file(report, {}, errno);
    const lmx::elmx_error error = marshal_checked(report, stream, [&](lmx::c_xml_writer& writer) {
        return element.operations->marshal(object, writer, element.element);
    });
    const s_plain_file file = close_plain_file(stream, *file_path, error);
    return error == lmx::ELMX_OK && file.size < 0 ? refuse_file(report, k_not_written, file.system_error) : error;
}

void Vyr::init() { get_Preamble().get_Header().assign_ReadSDKInformation(make_stamp()); }

lmx::elmx_error Vyr::loadString(const std::u16string& text) { return load_string(*this, text, nullptr); }

lmx::elmx_error Vyr::loadFile(const std::u16string& path) { return load_file(*this, path, nullptr); }

lmx::elmx_error Vyr::loadFile(const std::string& path) { return load_file(*this, path, nullptr); }

XMLDocumentResult Vyr::writeString() const {
    std::u16string text;
    const lmx::elmx_error error = write_string(*this, &text, nullptr);
    return XMLDocumentResult(text, error);
}

lmx::elmx_error Vyr::writeFile(const std::u16string& path) const { return write_file(*this, path, nullptr); }

lmx::elmx_error Vyr::writeFile(const std::string& path) const { return write_file(*this, path, nullptr); }

}  // namespace com_vyrgraph_v2
