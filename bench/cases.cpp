// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/cases.h"

#include <pugixml.hpp>

#include "lmx/lmx.h"
#include "schema/Vyr.h"

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

operation vyr_load_file(const s_input& input) {
    std::u16string path;
    lmx::convert(&path, input.path);
    return [path]() -> result {
        auto document = std::make_shared<Vyr>();
        return document->loadFile(path) == lmx::ELMX_OK ? document : nullptr;
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
        {"vyr save", vyr_save},
        {"pugixml save", pugixml_save},
    };
    return rows;
}

bool is_sound(const std::string& text) {
    const auto document = load_from_memory(text);
    std::string written;
    return document && static_cast<const Vyr*>(document.get())->marshal(&written) == lmx::ELMX_OK && written == text;
}

}  // namespace vyr_bench
