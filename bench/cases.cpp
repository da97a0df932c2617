// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/cases.h"

#include <zlib.h>
#include <pugixml.hpp>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "bench/variants.h"
#include "lmx/lmx.h"
#include "schema/Vyr.h"
#include "zip/container.h"

namespace vyr_bench {

namespace {

using com_vyrgraph_v2::Vyr;
using result = std::shared_ptr<void>;
using operation = std::function<result()>;

result load_from_memory(const std::string& bytes) {
    auto document = std::make_shared<Vyr>();
    lmx::c_xml_reader_memory reader(bytes.data(), bytes.size());
    return document->unmarshal(reader) == lmx::ELMX_OK ? document : nullptr;
}

operation vyr_load_memory(const s_input& input) {
    return [&input] { return load_from_memory(input.bytes); };
}

std::u16string wide(const std::string& text) {
    std::u16string utf16;
    return lmx::convert(&utf16, text);
}

operation vyr_load_file(const s_input& input) {
    return [path = wide(input.path)]() -> result {
        auto document = std::make_shared<Vyr>();
        return document->loadFile(path) == lmx::ELMX_OK ? document : nullptr;
    };
}

/// What a load from a file can't do without: reading it.
operation read_and_load(const s_input& input) {
    return [path = input.path]() -> result {
        std::ifstream file(path, std::ios::binary);
        const auto size = static_cast<std::size_t>(std::filesystem::file_size(path));
        const auto bytes = std::make_unique_for_overwrite<char[]>(size);
        file.read(bytes.get(), static_cast<std::streamsize>(size));
        auto document = std::make_shared<Vyr>();
        lmx::c_xml_reader_memory reader(bytes.get(), size);
        return file && document->unmarshal(reader) == lmx::ELMX_OK ? document : nullptr;
    };
}

/// A load of the same document in another form.
template <std::string (*Change)(const std::string&)>
operation vyr_load_changed(const s_input& input) {
    return [bytes = Change(input.bytes)] { return load_from_memory(bytes); };
}

/// Loads of many short documents, one after the other.
operation vyr_load_short(const s_input& input) {
    return [&input]() -> result {
        result last;
        for (const std::string& document : input.short_documents) {
            last = load_from_memory(document);
            if (!last) return nullptr;
        }
        return last;
    };
}

operation pugixml_load_short(const s_input& input) {
    return [&input]() -> result {
        auto last = std::make_shared<pugi::xml_document>();
        for (const std::string& document : input.short_documents) {
            if (!last->load_buffer(document.data(), document.size(), pugi::parse_default)) return nullptr;
        }
        return last;
    };
}

operation vyr_load_report(const s_input& input) {
    return [&input]() -> result {
        auto document = std::make_shared<Vyr>();
        const auto report =
            loadMemoryWithReport(*document, input.bytes.data(), input.bytes.size(), {.collect = true});
        return report.isOk() ? document : nullptr;
    };
}

operation vyr_load_container(const s_input& input) {
    return [path = wide(input.container_path)]() -> result {
        auto document = std::make_shared<Vyr>();
        return document->loadFile(path) == lmx::ELMX_OK ? document : nullptr;
    };
}

/// The least that a load from a container has to do: inflating all data in one step, and parsing.
operation inflate_and_load(const s_input& input) {
    CZipContainer archive;
    archive.OpenContainer(wide(input.container_path), zip_open_read);
    const CZipEntryHeader header = *archive.GetEntryHeader(0);
    return [header, path = input.container_path]() -> result {
        std::ifstream file(path, std::ios::binary);
        file.seekg(30 + static_cast<std::streamoff>(header.file_name.size()));
        std::string stored(header.compressed_size, '\0');
        file.read(stored.data(), header.compressed_size);
        const auto bytes = std::make_unique_for_overwrite<char[]>(header.uncompressed_size);
        z_stream stream{};
        stream.next_in = reinterpret_cast<Bytef*>(stored.data());
        stream.avail_in = header.compressed_size;
        stream.next_out = reinterpret_cast<Bytef*>(bytes.get());
        stream.avail_out = header.uncompressed_size;
        inflateInit2(&stream, -15);
        const int code = inflate(&stream, Z_FINISH);
        inflateEnd(&stream);
        auto document = std::make_shared<Vyr>();
        lmx::c_xml_reader_memory reader(bytes.get(), header.uncompressed_size);
        return code == Z_STREAM_END && document->unmarshal(reader) == lmx::ELMX_OK ? document : nullptr;
    };
}

operation vyr_save(const s_input& input) {
    auto document = load_from_memory(input.bytes);
    if (!document) return [] { return nullptr; };
    return [document]() -> result {
        auto text = std::make_shared<std::string>();
        return static_cast<const Vyr*>(document.get())->marshal(text.get()) == lmx::ELMX_OK ? text : nullptr;
    };
}

operation pugixml_load_memory(const s_input& input) {
    return [&input]() -> result {
        auto document = std::make_shared<pugi::xml_document>();
        return document->load_buffer(input.bytes.data(), input.bytes.size(), pugi::parse_default) ? document
                                                                                                  : nullptr;
    };
}

operation pugixml_load_file(const s_input& input) {
    return [&input]() -> result {
        auto document = std::make_shared<pugi::xml_document>();
        return document->load_file(input.path.c_str(), pugi::parse_default) ? document : nullptr;
    };
}

struct s_string_writer : pugi::xml_writer {
    std::string text;
    void write(const void* data, std::size_t size) override { text.append(static_cast<const char*>(data), size); }
};

operation pugixml_save(const s_input& input) {
    auto document = std::make_shared<pugi::xml_document>();
    if (!document->load_buffer(input.bytes.data(), input.bytes.size())) return [] { return nullptr; };
    return [document]() -> result {
        auto writer = std::make_shared<s_string_writer>();
        document->save(*writer, "\t");
        return writer;
    };
}

}  // namespace

const std::vector<s_case>& cases() {
    static const std::vector<s_case> rows = {
        {"vyr load memory", vyr_load_memory},
        {"pugixml load memory", pugixml_load_memory},
        {"vyr load file", vyr_load_file},
        {"pugixml load file", pugixml_load_file},
        {"vyr load a file", vyr_load_file},
        {"read load", read_and_load},
        {"vyr load UTF-16", vyr_load_changed<in_utf16>},
        {"UTF-8 load", vyr_load_memory},
        {"vyr load CR LF", vyr_load_changed<with_carriage_returns>},
        {"LF load", vyr_load_memory},
        {"vyr load Latin-1", vyr_load_changed<in_latin1>},
        {"UTF-8 load", vyr_load_memory},
        {"vyr load unusual", vyr_load_changed<in_unusual_shape>},
        {"plain load", vyr_load_memory},
        {"vyr load foreign", vyr_load_changed<with_foreign_text>},
        {"plain load", vyr_load_memory},
        {"vyr load short", vyr_load_short, true},
        {"pugixml load short", pugixml_load_short, true},
        {"vyr load report", vyr_load_report},
        {"plain load", vyr_load_memory},
        {"vyr load container", vyr_load_container},
        {"zlib + load", inflate_and_load},
        {"vyr save string", vyr_save},
        {"pugixml save string", pugixml_save},
    };
    return rows;
}

bool is_sound(const std::string& text, const std::string& container_path) {
    const auto document = load_from_memory(text);
    std::string written;
    const auto* const loaded = static_cast<const Vyr*>(document.get());
    return loaded != nullptr && loaded->marshal(&written) == lmx::ELMX_OK && written == text &&
           loaded->writeFile(wide(container_path)) == lmx::ELMX_OK;
}

}  // namespace vyr_bench
