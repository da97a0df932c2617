// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "lmx/binding/marshal.h"

#include <string>
#include <string_view>

#include "lmx/binding/any_info.h"
#include "lmx/binding/object.h"
#include "lmx/binding/open_element.h"
#include "lmx/binding/read_back.h"
#include "lmx/binding/storage.h"
#include "lmx/binding/unmarshal.h"
#include "lmx/binding/value_kinds.h"

namespace lmx {
namespace {

void tell_unless_read(c_xml_writer& writer, const s_item& item, const void* storage) {
    const elmx_error code = code_of_reading(item, storage, &writer.get_output().get_scratch());
    if (code == ELMX_OK) return;
    const c_handed_over handed_over(writer);
    report_unhandled(writer, {nullptr, &item, storage}, code, std::string(item.name));
}

/// Tells of a value that could not be read back. It is written all the same.
inline void check_value(c_xml_writer& writer, const s_item& item, const void* storage) {
    if (writer.is_checking() && !is_plainly_read(item, storage)) tell_unless_read(writer, item, storage);
}

/// `<Vyr:Name>value</Vyr:Name>` on a line of its own.
void print_element(c_xml_writer& writer, const s_item& item, const void* storage) {
    c_output& out = writer.start_line();
    check_value(writer, item, storage);
    const std::string_view line_end = writer.get_line_end();
    out.append("<", item.name, ">");
    kind_of(item).print(out, storage);
    out.append("</", item.name, ">", line_end);
    writer.end_piece();
}

void print_content(c_xml_writer& writer, const s_class& type, const void* object) {
    const s_item& item = content_owner(type).elements.front();
    // A content that may be missing prints no text then.
    if (!is_set(item, object)) return;
    const void* const storage = &member<std::byte>(object, item.offset);
    check_value(writer, item, storage);
    kind_of(item).print(writer.get_output(), storage);
    writer.end_piece();
}

void print_simple_list(c_xml_writer& writer, const s_item& item, const void* object) {
    const c_list_base& entries = list_of(item, object);
    for (std::size_t i = 0; i < entries.size(); ++i) print_element(writer, item, entries.entry(i));
}

void print_any(c_xml_writer& writer, const s_item& item, const void* object) {
    const auto& entries = member<c_list<c_any_info>>(object, item.offset);
    // The markup is in the value already.
    for (std::size_t i = 0; i < entries.size(); ++i) {
        c_output& out = writer.start_line();
        const std::string_view line_end = writer.get_line_end();
        out.append_long(entries[i].get_value());
        out.append(line_end);
        writer.end_piece();
    }
}

void print_marker(c_xml_writer& writer, const s_item& item) {
    c_output& out = writer.start_line();
    out.append("<", item.name, "/>", writer.get_line_end());
    writer.end_piece();
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
        case item_kind::optional_child:
        case item_kind::group:
            if (!is_printed) return ELMX_OK;
            return item.type->operations->marshal(child_of(item, object), writer, item.name.data());
        case item_kind::child_list:
        case item_kind::group_list:
            return print_list(writer, item, object);
        case item_kind::marker:
            print_marker(writer, item);
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
        const c_handed_over handed_over(writer);
        return report_at(writer, {&type}, ELMX_BAD_CHOICE, type.qualified_name);
    }
    if (alternative->type == nullptr) {
        print_element(writer, *alternative, alternative_storage(*alternative, choice));
        return ELMX_OK;
    }
    if (choice.object == nullptr) {
        const c_handed_over handed_over(writer);
        return report_unhandled(writer, {&type, alternative}, ELMX_TYPE_NOT_SET, std::string(alternative->name));
    }
    const auto marshal = alternative->type->operations->marshal;
    if (alternative->factory.empty()) return marshal(choice.object, writer, alternative->name.data());
    writer.set_expected_class_identity(*alternative->type->id);
    // The object may be of a class of the host's.
    const c_handed_over handed_over(writer);
    return marshal(choice.object, writer, alternative->name.data());
}

/// A class of a type family says its name if the place where it stands would expect another one.
void print_xsi_type(c_xml_writer& writer, const s_class& type) {
    const char* const expected = writer.get_expected_class_identity();
    if (type.id == nullptr || expected == nullptr || expected == *type.id) return;
    writer.get_output().append(" xsi:type=\"", std::string_view(family_member(type).qualified_name), "\"");
    writer.end_piece();
    writer.clear_expected_class_identity();
}

void print_attributes(c_xml_writer& writer, const s_class& type, const void* object) {
    if (type.base != nullptr) print_attributes(writer, *type.base, object);
    for (const s_item& item : type.attributes) {
        if ((item.use & use_written) == 0 && !is_set(item, object)) continue;
        const void* const storage = &member<std::byte>(object, item.offset);
        check_value(writer, item, storage);
        c_output& out = writer.get_output();
        out.append(" ", item.name, "=\"");
        kind_of(item).print(out, storage);
        out.append("\"");
        writer.end_piece();
    }
}

elmx_error print_child_elements(c_xml_writer& writer, const s_class& type, const void* object) {
    if (type.choice != k_no_flag) return print_chosen(writer, type, object);
    if (type.content == content_kind::simple) {
        print_content(writer, type, object);
        return ELMX_OK;
    }
    if (type.base != nullptr) {
        const elmx_error error = print_child_elements(writer, *type.base, object);
        if (error != ELMX_OK) return error;
    }
    for (const s_item& item : type.elements) {
        const elmx_error error = print_item(writer, item, object);
        if (error != ELMX_OK) return error;
    }
    return ELMX_OK;
}

elmx_error report_unprinted(c_xml_writer& writer, const s_class& type, const void* object, elmx_error code,
                            const char* name) {
    const c_handed_over handed_over(writer);
    return report_unhandled(writer, {&type, nullptr, object}, code, name);
}

elmx_error print_object(c_xml_writer& writer, const s_class& type, const void* object, const char* name) {
    const c_open_element open(writer, {writer.notes().open_element, &type, object, nullptr, name, 0, 0});
    // Around the handler: whoever swallowed it would use up the stack.
    if (writer.notes().open_element->depth > k_maximum_nesting) {
        return report_unprinted(writer, type, object, ELMX_BADLY_FORMED, name);
    }
    // A choice that holds nothing is found and named where it is printed.
    if (type.content != content_kind::choice && !is_occurs_ok(type, object)) {
        return report_unprinted(writer, type, object, ELMX_OCCURS_ERROR_ON_MARSHAL, name);
    }
    const std::string_view tag = name;
    c_output& out = writer.start_line();
    out.append("<", tag);
    writer.end_piece();
    if (type.ns_map != nullptr) {
        writer.conditionally_select_ns_map(type.ns_map);
        writer.conditionally_write_ns_attrs(true);
    }
    print_xsi_type(writer, type);
    print_attributes(writer, type, object);
    if (is_nil(type, object)) {
        out.append(" xsi:nil=\"true\"/>", writer.get_line_end());
        writer.end_piece();
        return ELMX_OK;
    }
    switch (type.content) {
        case content_kind::empty:
            out.append("/>", writer.get_line_end());
            writer.end_piece();
            return ELMX_OK;
        case content_kind::simple:
            out.append(">");
            writer.end_piece();
            print_content(writer, type, object);
            out.append("</", tag, ">", writer.get_line_end());
            writer.end_piece();
            return ELMX_OK;
        default:
            break;
    }
    out.append(">", writer.get_line_end());
    writer.end_piece();
    writer.indent();
    const elmx_error error = print_child_elements(writer, type, object);
    if (error != ELMX_OK) return error;
    writer.undent();
    writer.start_line();
    out.append("</", tag, ">", writer.get_line_end());
    writer.end_piece();
    return ELMX_OK;
}

}  // namespace

elmx_error marshal_element(const s_class& type, const void* object, c_xml_writer& writer, const char* name) {
    c_printing printing(writer);
    const elmx_error error = print_object(writer, type, object, name);
    printing.end();
    return error;
}

void marshal_attributes(const s_class& type, const void* object, c_xml_writer& writer) {
    c_printing printing(writer);
    print_attributes(writer, type, object);
    printing.end();
}

elmx_error marshal_child_elements(const s_class& type, const void* object, c_xml_writer& writer) {
    c_printing printing(writer);
    const elmx_error error = print_child_elements(writer, type, object);
    printing.end();
    return error;
}

elmx_error marshal_group(const s_class& type, const void* object, c_xml_writer& writer) {
    if (!is_occurs_ok(type, object))
        return report_unprinted(writer, type, object, ELMX_OCCURS_ERROR_ON_MARSHAL, type.name);
    return marshal_child_elements(type, object, writer);
}

}  // namespace lmx
