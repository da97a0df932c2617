// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/marshal.h"

#include <charconv>
#include <ostream>
#include <string>

#include "lmx/binding/any_info.h"
#include "lmx/binding/object.h"
#include "lmx/binding/open_element.h"
#include "lmx/binding/read_back.h"
#include "lmx/binding/storage.h"
#include "lmx/binding/unmarshal.h"
#include "lmx/writer/as_xml.h"

namespace lmx {
namespace {

constexpr char k_source_file[] = "lmx/binding/marshal.cpp";

void append_value(std::string& line, const std::u16string& value) { append_as_xml(line, value); }
void append_value(std::string& line, bool value) { append_as_xml(line, value); }
void append_value(std::string& line, double value) { append_as_xml(line, value); }
void append_value(std::string& line, const c_datetime& value) { value.append_to(&line); }
void append_value(std::string& line, const c_binary& value) { value.append_base64(&line); }
template <std::integral Integer>
void append_value(std::string& line, Integer value) {
    char digits[12];
    line.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

void append_simple(std::string& line, const s_item& item, const void* value) {
    with_value_type(item.value, [&](auto* type) {
        append_value(line, *static_cast<const std::remove_pointer_t<decltype(type)>*>(value));
    });
}

/// Tells of a value that could not be read back. It is written all the same.
void check_value(c_xml_writer& writer, const s_item& item, const void* storage, std::string_view printed) {
    const elmx_error code = code_of_reading(item, storage, printed);
    if (code != ELMX_OK) report_unhandled(writer, {nullptr, &item, storage}, code, std::string(item.name));
}

/// One piece of output, put together in the writer's work string and printed at once by `print`: in an ordinary call,
/// because a stream may throw.
class c_line {
public:
    c_line(c_xml_writer& writer, bool at_line_start)
        : m_writer(writer), m_stream(writer(at_line_start)), m_text(writer.m_line) {
        m_text.clear();
    }
    c_line(const c_line&) = delete;
    c_line& operator=(const c_line&) = delete;

    void print() { m_stream.write(m_text.data(), static_cast<std::streamsize>(m_text.size())); }

    c_line& operator<<(std::string_view text) {
        m_text += text;
        return *this;
    }
    c_line& value(const s_item& item, const void* storage) {
        const std::size_t start = m_text.size();
        append_simple(m_text, item, storage);
        if (m_writer.is_checking()) check_value(m_writer, item, storage, std::string_view(m_text).substr(start));
        return *this;
    }

private:
    c_xml_writer& m_writer;
    std::ostream& m_stream;
    std::string& m_text;
};

/// `<Vyr:Name>value</Vyr:Name>` on a line of its own.
void print_element(c_xml_writer& writer, const s_item& item, const void* storage) {
    c_line line(writer, true);
    line << "<" << item.name << ">";
    line.value(item, storage) << "</" << item.name << ">" << writer.endl();
    line.print();
}

void print_content(c_xml_writer& writer, const s_class& type, const void* object) {
    const s_item& item = content_owner(type).elements.front();
    // A content that may be missing prints no text then.
    if (is_set(item, object)) c_line(writer, false).value(item, &member<std::byte>(object, item.offset)).print();
}

void print_simple_list(c_xml_writer& writer, const s_item& item, const void* object) {
    const c_list_base& entries = list_of(item, object);
    for (std::size_t i = 0; i < entries.size(); ++i) print_element(writer, item, entries.entry(i));
}

void print_any(c_xml_writer& writer, const s_item& item, const void* object) {
    const auto& entries = member<c_list<c_any_info>>(object, item.offset);
    // The markup is in the value already.
    for (std::size_t i = 0; i < entries.size(); ++i) {
        (c_line(writer, true) << entries[i].get_value() << writer.endl()).print();
    }
}

elmx_error print_list(c_xml_writer& writer, const s_item& item, const void* object) {
    const c_list_base& entries = list_of(item, object);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const elmx_error error = item.type->operations->marshal(entries.entry(i), writer, item.name.data());
        if (error != ELMX_OK) return error;
    }
    return ELMX_OK;
}

elmx_error print_item(c_xml_writer& writer, const s_item& item, const void* object) {
    const bool is_printed = (item.use & use_written) != 0 || is_set(item, object);
    switch (item.kind) {
        case item_kind::element:
            if (is_printed) print_element(writer, item, &member<std::byte>(object, item.offset));
            return ELMX_OK;
        case item_kind::element_list:
            print_simple_list(writer, item, object);
            return ELMX_OK;
        case item_kind::child:
        case item_kind::group:
            if (!is_printed) return ELMX_OK;
            return item.type->operations->marshal(&member<std::byte>(object, item.offset), writer, item.name.data());
        case item_kind::child_list:
        case item_kind::group_list:
            return print_list(writer, item, object);
        case item_kind::marker:
            (c_line(writer, true) << "<" << item.name << "/>" << writer.endl()).print();
            return ELMX_OK;
        case item_kind::any:
            print_any(writer, item, object);
            return ELMX_OK;
        case item_kind::attribute:
        case item_kind::content:
        case item_kind::alternative:
            break;
    }
    return ELMX_OK;
}

elmx_error print_chosen(c_xml_writer& writer, const s_class& type, const void* object) {
    const s_choice& choice = choice_of(type, object);
    const s_item* const alternative = chosen_row(type, choice);
    if (alternative == nullptr) {
        return report_at(writer, {&type}, ELMX_BAD_CHOICE, type.qualified_name, k_source_file, __LINE__);
    }
    if (alternative->type == nullptr) {
        const bool is_text = alternative->value == value_kind::text;
        print_element(writer, *alternative, is_text ? choice.object : &choice.number);
        return ELMX_OK;
    }
    if (choice.object == nullptr) {
        return report_unhandled(writer, {&type, alternative}, ELMX_TYPE_NOT_SET, std::string(alternative->name));
    }
    if (!alternative->factory.empty()) writer.set_expected_class_identity(*alternative->type->id);
    return alternative->type->operations->marshal(choice.object, writer, alternative->name.data());
}

/// A class of a type family says its name if the place where it stands would expect another one.
void print_xsi_type(c_xml_writer& writer, const s_class& type) {
    const char* const expected = writer.get_expected_class_identity();
    if (type.id == nullptr || expected == nullptr || expected == *type.id) return;
    (c_line(writer, false) << " xsi:type=\"" << type.xsi_type << "\"").print();
    writer.clear_expected_class_identity();
}

}  // namespace

elmx_error marshal_element(const s_class& type, const void* object, c_xml_writer& writer, const char* name) {
    const c_open_element open(writer, {writer.get_open_element(), &type, object, nullptr, name, 0});
    // Around the handler: whoever swallowed it would use up the stack.
    if (writer.get_open_element()->depth > k_maximum_nesting) {
        return report_unhandled(writer, {&type, nullptr, object}, ELMX_BADLY_FORMED, name);
    }
    // A choice that holds nothing is found and named where it is printed.
    if (type.content != content_kind::choice && !is_occurs_ok(type, object)) {
        return report_unhandled(writer, {&type, nullptr, object}, ELMX_OCCURS_ERROR_ON_MARSHAL, name);
    }
    (c_line(writer, true) << "<" << name).print();
    if (type.ns_map != nullptr) {
        writer.conditionally_select_ns_map(type.ns_map);
        writer.conditionally_write_ns_attrs(true);
    }
    print_xsi_type(writer, type);
    marshal_attributes(type, object, writer);
    if (is_nil(type, object)) {
        (c_line(writer, false) << " xsi:nil=\"true\"/>" << writer.endl()).print();
        return ELMX_OK;
    }
    switch (type.content) {
        case content_kind::empty:
            (c_line(writer, false) << "/>" << writer.endl()).print();
            return ELMX_OK;
        case content_kind::simple:
            (c_line(writer, false) << ">").print();
            print_content(writer, type, object);
            (c_line(writer, false) << "</" << name << ">" << writer.endl()).print();
            return ELMX_OK;
        default:
            break;
    }
    (c_line(writer, false) << ">" << writer.endl()).print();
    writer.indent();
    const elmx_error error = marshal_child_elements(type, object, writer);
    if (error != ELMX_OK) return error;
    writer.undent();
    (c_line(writer, true) << "</" << name << ">" << writer.endl()).print();
    return ELMX_OK;
}

void marshal_attributes(const s_class& type, const void* object, c_xml_writer& writer) {
    if (type.base != nullptr) marshal_attributes(*type.base, object, writer);
    for (const s_item& item : type.attributes) {
        if ((item.use & use_written) == 0 && !is_set(item, object)) continue;
        c_line line(writer, false);
        line << " " << item.name << "=\"";
        line.value(item, &member<std::byte>(object, item.offset)) << "\"";
        line.print();
    }
}

elmx_error marshal_child_elements(const s_class& type, const void* object, c_xml_writer& writer) {
    if (type.choice != k_no_flag) return print_chosen(writer, type, object);
    if (type.content == content_kind::simple) {
        print_content(writer, type, object);
        return ELMX_OK;
    }
    if (type.base != nullptr) {
        const elmx_error error = marshal_child_elements(*type.base, object, writer);
        if (error != ELMX_OK) return error;
    }
    for (const s_item& item : type.elements) {
        const elmx_error error = print_item(writer, item, object);
        if (error != ELMX_OK) return error;
    }
    return ELMX_OK;
}

elmx_error marshal_group(const s_class& type, const void* object, c_xml_writer& writer) {
    if (!is_occurs_ok(type, object)) {
        return report_unhandled(writer, {&type, nullptr, object}, ELMX_OCCURS_ERROR_ON_MARSHAL, type.name);
    }
    return marshal_child_elements(type, object, writer);
}

}  // namespace lmx
