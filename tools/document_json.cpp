// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/document_json.h"

#include <algorithm>
#include <iostream>
#include <istream>
#include <set>
#include <utility>

#include "document/report.h"
#include "lmx/binding/unmarshal.h"
#include "tools/files.h"
#include "tools/progress.h"
#include "tools/text.h"

namespace vyr_tool {

namespace {

using lmx::s_class;

constexpr std::size_t k_most_faults = 100;

/// Puts a document's object together from the parser's events. Entries of arrays become XML one by one as soon as
/// they are whole, where their classes are known from the names above them, so that the object is never whole in
/// memory.
class c_builder : public json::json_sax_t {
public:
    explicit c_builder(c_json_to_xml& printer) : m_printer(printer) {}

    const json& whole() const { return m_whole; }
    /// What is wrong with the text; empty if it is JSON.
    std::string fault() const {
        if (!m_fault.empty() || m_repeated.empty()) return m_fault;
        return "the member " + in_quotes(m_repeated) + " is given twice in an object";
    }

    bool null() override { return add({}); }
    bool boolean(bool value) override { return add(value); }
    bool number_integer(json::number_integer_t value) override { return add(value); }
    bool number_unsigned(json::number_unsigned_t value) override { return add(value); }
    bool number_float(json::number_float_t value, const std::string&) override { return add(value); }
    bool string(std::string& value) override { return add(std::move(value)); }
    bool binary(json::binary_t&) override { return false; }

    bool start_object(std::size_t) override {
        s_open object{json::object()};
        if (m_open.empty()) {
            object.type = &com_vyrgraph_v2::Vyr::k_class;
        } else if (const s_open& above = m_open.back(); above.list == nullptr) {
            const s_member* const member = above.named();
            if (member != nullptr && (above.group != nullptr || !member->is_list())) object.type = class_of(*member);
        } else if (above.list->is_group_list()) {
            object.type = above.type;
            object.group = above.list;
        } else {
            object.type = class_of(*above.list);
        }
        return open(std::move(object));
    }
    bool start_array(std::size_t) override {
        s_open array{json::array()};
        const s_member* const member =
            m_open.empty() || m_open.back().group != nullptr ? nullptr : m_open.back().named();
        if (member != nullptr && member->is_list()) {
            array.type = m_open.back().type;
            array.list = member;
        }
        return open(std::move(array));
    }
    bool key(std::string& name) override {
        s_open& object = m_open.back();
        // A member that is given twice would be lost without a word.
        if (!object.names.insert(name).second && m_repeated.empty()) m_repeated = name;
        object.name = std::move(name);
        return true;
    }
    bool end_object() override { return close(); }
    bool end_array() override {
        s_open& array = m_open.back();
        if (array.entries.count != 0) array.value = m_printer.placeholder(std::move(array.entries));
        return close();
    }
    bool parse_error(std::size_t, const std::string&, const json::exception& error) override {
        // The library's own number of the error comes first, in brackets.
        const std::string_view what = error.what();
        m_fault = printable(what.substr(std::min(what.size(), what.find("] ") + 2)));
        return false;
    }

private:
    /// An object or array that has not ended yet.
    struct s_open {
        json value;
        const s_class* type = nullptr;    ///< of an object, its class; of an array, that of the object around it
        const s_member* list = nullptr;   ///< of an array, what its entries are
        const s_member* group = nullptr;  ///< of an object that is an entry: the group whose element it names
        std::string name{};               ///< of the member that is being read
        std::set<std::string> names{};
        c_json_to_xml::s_entries entries{};  ///< of an array of several entries: those so far

        const s_member* named() const {
            if (type == nullptr || !value.is_object()) return nullptr;
            const c_members& members = c_members::of(*type);
            return group == nullptr ? members.by_key(name) : members.element(name);
        }
    };

    /// Null where the document itself may say another.
    static const s_class* class_of(const s_member& member) {
        return member.item->factory.empty() ? member.item->type : nullptr;
    }

    bool open(s_open&& value) {
        // An element is an object of one member in an entry of an array, at most.
        constexpr std::size_t k_deepest = 3 * (lmx::k_maximum_nesting + 1);
        if (m_open.size() == k_deepest) m_fault = "nested too deeply";
        m_open.push_back(std::move(value));
        return m_fault.empty();
    }

    bool close() {
        json value = std::move(m_open.back().value);
        m_open.pop_back();
        return add(std::move(value));
    }

    bool add(json&& value) {
        if (m_open.empty()) {
            m_whole = std::move(value);
        } else if (s_open& above = m_open.back(); above.value.is_object()) {
            above.value.get_ref<json::object_t&>().emplace_back(std::move(above.name), std::move(value));
        } else if (above.list == nullptr || (above.value.empty() && above.entries.count == 0)) {
            above.value.push_back(std::move(value));
        } else {
            // Of several entries each has a number in the paths of faults; an only one has none.
            if (above.entries.count == 0) print(above, above.value.front());
            above.value.clear();
            print(above, value);
        }
        return true;
    }

    void print(s_open& array, const json& entry) {
        m_printer.print_entry(*array.type, *array.list, entry, array.entries);
    }

    c_json_to_xml& m_printer;
    std::vector<s_open> m_open;
    json m_whole;
    std::string m_fault;
    std::string m_repeated;
};

/// Loads what was printed, if it was printed without faults.
std::vector<s_json_fault> load(c_json_to_xml& printer, com_vyrgraph_v2::Vyr& document) {
    if (!printer.faults().empty()) return std::move(printer.faults());
    com_vyrgraph_v2::ReportOptions options;
    options.collect = true;
    options.limit = k_most_faults;
    const std::string xml = printer.xml().take();
    const com_vyrgraph_v2::DocumentReport report =
        com_vyrgraph_v2::loadMemoryWithReport(document, xml.data(), xml.size(), options);
    const std::vector<const json*>& places = printer.places();
    std::vector<s_json_fault> faults;
    for (com_vyrgraph_v2::DocumentFault fault : report.getFaults()) {
        const auto line = static_cast<std::size_t>(std::max(fault.line, 0));
        const json* const place = line == 0 || line > places.size() ? nullptr : places[line - 1];
        std::string path = std::exchange(fault.path, {});
        fault.line = 0;
        faults.push_back({std::move(path), com_vyrgraph_v2::formatFault(fault), place});
    }
    return faults;
}

}  // namespace

std::vector<s_json_fault> read_json(const json& object, com_vyrgraph_v2::Vyr& document, const s_json_form& form) {
    c_json_to_xml printer(form);
    printer.print_document(object);
    return load(printer, document);
}

exit_code read_any_form(const std::string& file, com_vyrgraph_v2::Vyr& document, const text_taker& take_text) {
    const bool is_pipe = file == k_standard_stream;
    if (!is_pipe && !file.ends_with(".json")) return read_or_explain(file, document, nullptr, take_text);
    const c_progress_line progress("reading " + shown_name(file));
    c_input input(file);
    if (is_pipe && input.first_character() != '{' && input.refusal().empty()) {
        const std::string bytes = input.rest();
        if (input.refusal().empty()) return explain(file, read_document_bytes(bytes, document, take_text));
    }
    const s_json_form form;
    c_json_to_xml printer(form);
    std::string fault;
    if (input.refusal().empty()) {
        c_builder builder(printer);
        std::istream stream(&input);
        json::sax_parse(stream, &builder);
        fault = builder.fault();
        if (fault.empty()) printer.print_document(builder.whole());
    }
    if (!input.refusal().empty()) {
        complain(file, input.refusal());
        return exit_usage_or_file;
    }
    if (!fault.empty()) {
        c_progress_line::make_way();
        std::cerr << shown_name(file) << ": " << fault << '\n';
        return exit_document_fails;
    }
    const std::vector<s_json_fault> faults = load(printer, document);
    if (!faults.empty()) c_progress_line::make_way();
    for (const s_json_fault& found : faults) {
        std::cerr << shown_name(file) << ": " << (found.path.empty() ? "" : found.path + ": ") << found.text << '\n';
    }
    return faults.empty() ? exit_ok : exit_document_fails;
}

}  // namespace vyr_tool
