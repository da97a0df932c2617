// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in statistics.h.

#include "schema/generated/statistics.h"
#include "lmx/binding/binding.h"
#include "lmx/binding/rows.h"
#include "schema/generated/functions.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 3, "run schema/generator/generate.py");

// FunctionStdDevXType

constinit const s_class FunctionStdDevXType::k_class = {
    .name = "FunctionStdDevXType",
    .qualified_name = "Vyr:FunctionStdDevXType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .ns_map = k_ns_map,
    .nil_flag = k_no_flag,
    .choice = k_no_flag,
    .id = &FunctionStdDevXType::id,
    .xsi_type = "Vyr:FunctionStdDevXType",
    .attributes = {},
    .elements = {},
    .attribute_map = k_no_events,
    .element_map = k_no_events,
    .operations = &k_operations<FunctionStdDevXType>,
};

FunctionStdDevXType::FunctionStdDevXType() = default;
FunctionStdDevXType::FunctionStdDevXType(const FunctionStdDevXType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevXType::~FunctionStdDevXType() = default;
FunctionStdDevXType& FunctionStdDevXType::operator=(const FunctionStdDevXType& other) { FunctionStdDevXType copy(other); swap(copy); return *this; }
void FunctionStdDevXType::swap(FunctionStdDevXType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevXType::reset() { FunctionStdDevXType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevXType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionStdDevXType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevXType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevXType::marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
lmx::elmx_error FunctionStdDevXType::marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
bool FunctionStdDevXType::unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
lmx::elmx_error FunctionStdDevXType::unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
bool FunctionStdDevXType::unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
namespace { const char k_FunctionStdDevXType_id[] = "FunctionStdDevXType"; }
const char* FunctionStdDevXType::id = k_FunctionStdDevXType_id;
FunctionStdDevXType* FunctionStdDevXType::clone() const { return new FunctionStdDevXType(*this); }
const char* FunctionStdDevXType::getid() const { return id; }
bool FunctionStdDevXType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }

// FunctionStdDevYType

constinit const s_class FunctionStdDevYType::k_class = {
    .name = "FunctionStdDevYType",
    .qualified_name = "Vyr:FunctionStdDevYType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .ns_map = k_ns_map,
    .nil_flag = k_no_flag,
    .choice = k_no_flag,
    .id = &FunctionStdDevYType::id,
    .xsi_type = "Vyr:FunctionStdDevYType",
    .attributes = {},
    .elements = {},
    .attribute_map = k_no_events,
    .element_map = k_no_events,
    .operations = &k_operations<FunctionStdDevYType>,
};

FunctionStdDevYType::FunctionStdDevYType() = default;
FunctionStdDevYType::FunctionStdDevYType(const FunctionStdDevYType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevYType::~FunctionStdDevYType() = default;
FunctionStdDevYType& FunctionStdDevYType::operator=(const FunctionStdDevYType& other) { FunctionStdDevYType copy(other); swap(copy); return *this; }
void FunctionStdDevYType::swap(FunctionStdDevYType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevYType::reset() { FunctionStdDevYType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevYType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionStdDevYType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevYType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevYType::marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
lmx::elmx_error FunctionStdDevYType::marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
bool FunctionStdDevYType::unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
lmx::elmx_error FunctionStdDevYType::unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
bool FunctionStdDevYType::unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
namespace { const char k_FunctionStdDevYType_id[] = "FunctionStdDevYType"; }
const char* FunctionStdDevYType::id = k_FunctionStdDevYType_id;
FunctionStdDevYType* FunctionStdDevYType::clone() const { return new FunctionStdDevYType(*this); }
const char* FunctionStdDevYType::getid() const { return id; }
bool FunctionStdDevYType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }

// FunctionStdDevZType

constinit const s_class FunctionStdDevZType::k_class = {
    .name = "FunctionStdDevZType",
    .qualified_name = "Vyr:FunctionStdDevZType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .ns_map = k_ns_map,
    .nil_flag = k_no_flag,
    .choice = k_no_flag,
    .id = &FunctionStdDevZType::id,
    .xsi_type = "Vyr:FunctionStdDevZType",
    .attributes = {},
    .elements = {},
    .attribute_map = k_no_events,
    .element_map = k_no_events,
    .operations = &k_operations<FunctionStdDevZType>,
};

FunctionStdDevZType::FunctionStdDevZType() = default;
FunctionStdDevZType::FunctionStdDevZType(const FunctionStdDevZType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevZType::~FunctionStdDevZType() = default;
FunctionStdDevZType& FunctionStdDevZType::operator=(const FunctionStdDevZType& other) { FunctionStdDevZType copy(other); swap(copy); return *this; }
void FunctionStdDevZType::swap(FunctionStdDevZType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevZType::reset() { FunctionStdDevZType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevZType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionStdDevZType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevZType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevZType::marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
lmx::elmx_error FunctionStdDevZType::marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
bool FunctionStdDevZType::unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
lmx::elmx_error FunctionStdDevZType::unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
bool FunctionStdDevZType::unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
namespace { const char k_FunctionStdDevZType_id[] = "FunctionStdDevZType"; }
const char* FunctionStdDevZType::id = k_FunctionStdDevZType_id;
FunctionStdDevZType* FunctionStdDevZType::clone() const { return new FunctionStdDevZType(*this); }
const char* FunctionStdDevZType::getid() const { return id; }
bool FunctionStdDevZType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }

// FunctionStdDevLType

constinit const s_class FunctionStdDevLType::k_class = {
    .name = "FunctionStdDevLType",
    .qualified_name = "Vyr:FunctionStdDevLType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .ns_map = k_ns_map,
    .nil_flag = k_no_flag,
    .choice = k_no_flag,
    .id = &FunctionStdDevLType::id,
    .xsi_type = "Vyr:FunctionStdDevLType",
    .attributes = {},
    .elements = {},
    .attribute_map = k_no_events,
    .element_map = k_no_events,
    .operations = &k_operations<FunctionStdDevLType>,
};

FunctionStdDevLType::FunctionStdDevLType() = default;
FunctionStdDevLType::FunctionStdDevLType(const FunctionStdDevLType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevLType::~FunctionStdDevLType() = default;
FunctionStdDevLType& FunctionStdDevLType::operator=(const FunctionStdDevLType& other) { FunctionStdDevLType copy(other); swap(copy); return *this; }
void FunctionStdDevLType::swap(FunctionStdDevLType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevLType::reset() { FunctionStdDevLType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevLType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionStdDevLType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevLType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevLType::marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
lmx::elmx_error FunctionStdDevLType::marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
bool FunctionStdDevLType::unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
lmx::elmx_error FunctionStdDevLType::unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
bool FunctionStdDevLType::unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
namespace { const char k_FunctionStdDevLType_id[] = "FunctionStdDevLType"; }
const char* FunctionStdDevLType::id = k_FunctionStdDevLType_id;
FunctionStdDevLType* FunctionStdDevLType::clone() const { return new FunctionStdDevLType(*this); }
const char* FunctionStdDevLType::getid() const { return id; }
bool FunctionStdDevLType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }

// FunctionStdDevAType

constinit const s_class FunctionStdDevAType::k_class = {
    .name = "FunctionStdDevAType",
    .qualified_name = "Vyr:FunctionStdDevAType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .ns_map = k_ns_map,
    .nil_flag = k_no_flag,
    .choice = k_no_flag,
    .id = &FunctionStdDevAType::id,
    .xsi_type = "Vyr:FunctionStdDevAType",
    .attributes = {},
    .elements = {},
    .attribute_map = k_no_events,
    .element_map = k_no_events,
    .operations = &k_operations<FunctionStdDevAType>,
};

FunctionStdDevAType::FunctionStdDevAType() = default;
FunctionStdDevAType::FunctionStdDevAType(const FunctionStdDevAType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevAType::~FunctionStdDevAType() = default;
FunctionStdDevAType& FunctionStdDevAType::operator=(const FunctionStdDevAType& other) { FunctionStdDevAType copy(other); swap(copy); return *this; }
void FunctionStdDevAType::swap(FunctionStdDevAType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevAType::reset() { FunctionStdDevAType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevAType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionStdDevAType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevAType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevAType::marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
lmx::elmx_error FunctionStdDevAType::marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
bool FunctionStdDevAType::unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
lmx::elmx_error FunctionStdDevAType::unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
bool FunctionStdDevAType::unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
namespace { const char k_FunctionStdDevAType_id[] = "FunctionStdDevAType"; }
const char* FunctionStdDevAType::id = k_FunctionStdDevAType_id;
FunctionStdDevAType* FunctionStdDevAType::clone() const { return new FunctionStdDevAType(*this); }
const char* FunctionStdDevAType::getid() const { return id; }
bool FunctionStdDevAType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }

// FunctionStdDevBType

constinit const s_class FunctionStdDevBType::k_class = {
    .name = "FunctionStdDevBType",
    .qualified_name = "Vyr:FunctionStdDevBType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .ns_map = k_ns_map,
    .nil_flag = k_no_flag,
    .choice = k_no_flag,
    .id = &FunctionStdDevBType::id,
    .xsi_type = "Vyr:FunctionStdDevBType",
    .attributes = {},
    .elements = {},
    .attribute_map = k_no_events,
    .element_map = k_no_events,
    .operations = &k_operations<FunctionStdDevBType>,
};

FunctionStdDevBType::FunctionStdDevBType() = default;
FunctionStdDevBType::FunctionStdDevBType(const FunctionStdDevBType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevBType::~FunctionStdDevBType() = default;
FunctionStdDevBType& FunctionStdDevBType::operator=(const FunctionStdDevBType& other) { FunctionStdDevBType copy(other); swap(copy); return *this; }
void FunctionStdDevBType::swap(FunctionStdDevBType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevBType::reset() { FunctionStdDevBType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevBType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionStdDevBType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevBType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevBType::marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
lmx::elmx_error FunctionStdDevBType::marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
bool FunctionStdDevBType::unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
lmx::elmx_error FunctionStdDevBType::unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
bool FunctionStdDevBType::unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
namespace { const char k_FunctionStdDevBType_id[] = "FunctionStdDevBType"; }
const char* FunctionStdDevBType::id = k_FunctionStdDevBType_id;
FunctionStdDevBType* FunctionStdDevBType::clone() const { return new FunctionStdDevBType(*this); }
const char* FunctionStdDevBType::getid() const { return id; }
bool FunctionStdDevBType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }

// FunctionStdDevCType

constinit const s_class FunctionStdDevCType::k_class = {
    .name = "FunctionStdDevCType",
    .qualified_name = "Vyr:FunctionStdDevCType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .ns_map = k_ns_map,
    .nil_flag = k_no_flag,
    .choice = k_no_flag,
    .id = &FunctionStdDevCType::id,
    .xsi_type = "Vyr:FunctionStdDevCType",
    .attributes = {},
    .elements = {},
    .attribute_map = k_no_events,
    .element_map = k_no_events,
    .operations = &k_operations<FunctionStdDevCType>,
};

FunctionStdDevCType::FunctionStdDevCType() = default;
FunctionStdDevCType::FunctionStdDevCType(const FunctionStdDevCType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevCType::~FunctionStdDevCType() = default;
FunctionStdDevCType& FunctionStdDevCType::operator=(const FunctionStdDevCType& other) { FunctionStdDevCType copy(other); swap(copy); return *this; }
void FunctionStdDevCType::swap(FunctionStdDevCType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevCType::reset() { FunctionStdDevCType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevCType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionStdDevCType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevCType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevCType::marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
lmx::elmx_error FunctionStdDevCType::marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
bool FunctionStdDevCType::unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
lmx::elmx_error FunctionStdDevCType::unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
bool FunctionStdDevCType::unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
namespace { const char k_FunctionStdDevCType_id[] = "FunctionStdDevCType"; }
const char* FunctionStdDevCType::id = k_FunctionStdDevCType_id;
FunctionStdDevCType* FunctionStdDevCType::clone() const { return new FunctionStdDevCType(*this); }
const char* FunctionStdDevCType::getid() const { return id; }
bool FunctionStdDevCType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }

// FunctionStdDevHType

constinit const s_class FunctionStdDevHType::k_class = {
    .name = "FunctionStdDevHType",
    .qualified_name = "Vyr:FunctionStdDevHType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .ns_map = k_ns_map,
    .nil_flag = k_no_flag,
    .choice = k_no_flag,
    .id = &FunctionStdDevHType::id,
    .xsi_type = "Vyr:FunctionStdDevHType",
    .attributes = {},
    .elements = {},
    .attribute_map = k_no_events,
    .element_map = k_no_events,
    .operations = &k_operations<FunctionStdDevHType>,
};

FunctionStdDevHType::FunctionStdDevHType() = default;
FunctionStdDevHType::FunctionStdDevHType(const FunctionStdDevHType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevHType::~FunctionStdDevHType() = default;
FunctionStdDevHType& FunctionStdDevHType::operator=(const FunctionStdDevHType& other) { FunctionStdDevHType copy(other); swap(copy); return *this; }
void FunctionStdDevHType::swap(FunctionStdDevHType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevHType::reset() { FunctionStdDevHType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevHType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionStdDevHType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevHType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevHType::marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
lmx::elmx_error FunctionStdDevHType::marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
bool FunctionStdDevHType::unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
lmx::elmx_error FunctionStdDevHType::unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
bool FunctionStdDevHType::unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
namespace { const char k_FunctionStdDevHType_id[] = "FunctionStdDevHType"; }
const char* FunctionStdDevHType::id = k_FunctionStdDevHType_id;
FunctionStdDevHType* FunctionStdDevHType::clone() const { return new FunctionStdDevHType(*this); }
const char* FunctionStdDevHType::getid() const { return id; }
bool FunctionStdDevHType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }

// FunctionAverageStdDevLType

constinit const s_class FunctionAverageStdDevLType::k_class = {
    .name = "FunctionAverageStdDevLType",
    .qualified_name = "Vyr:FunctionAverageStdDevLType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .ns_map = k_ns_map,
    .nil_flag = k_no_flag,
    .choice = k_no_flag,
    .id = &FunctionAverageStdDevLType::id,
    .xsi_type = "Vyr:FunctionAverageStdDevLType",
    .attributes = {},
    .elements = {},
    .attribute_map = k_no_events,
    .element_map = k_no_events,
    .operations = &k_operations<FunctionAverageStdDevLType>,
};

FunctionAverageStdDevLType::FunctionAverageStdDevLType() = default;
FunctionAverageStdDevLType::FunctionAverageStdDevLType(const FunctionAverageStdDevLType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionAverageStdDevLType::~FunctionAverageStdDevLType() = default;
FunctionAverageStdDevLType& FunctionAverageStdDevLType::operator=(const FunctionAverageStdDevLType& other) { FunctionAverageStdDevLType copy(other); swap(copy); return *this; }
void FunctionAverageStdDevLType::swap(FunctionAverageStdDevLType& other) { lmx::swap(k_class, this, &other); }
void FunctionAverageStdDevLType::reset() { FunctionAverageStdDevLType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionAverageStdDevLType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionAverageStdDevLType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionAverageStdDevLType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionAverageStdDevLType::marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
lmx::elmx_error FunctionAverageStdDevLType::marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
bool FunctionAverageStdDevLType::unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
lmx::elmx_error FunctionAverageStdDevLType::unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
bool FunctionAverageStdDevLType::unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
namespace { const char k_FunctionAverageStdDevLType_id[] = "FunctionAverageStdDevLType"; }
const char* FunctionAverageStdDevLType::id = k_FunctionAverageStdDevLType_id;
FunctionAverageStdDevLType* FunctionAverageStdDevLType::clone() const { return new FunctionAverageStdDevLType(*this); }
const char* FunctionAverageStdDevLType::getid() const { return id; }
bool FunctionAverageStdDevLType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }

// FunctionAverageStdDevAType

constinit const s_class FunctionAverageStdDevAType::k_class = {
    .name = "FunctionAverageStdDevAType",
    .qualified_name = "Vyr:FunctionAverageStdDevAType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .ns_map = k_ns_map,
    .nil_flag = k_no_flag,
    .choice = k_no_flag,
    .id = &FunctionAverageStdDevAType::id,
    .xsi_type = "Vyr:FunctionAverageStdDevAType",
    .attributes = {},
    .elements = {},
    .attribute_map = k_no_events,
    .element_map = k_no_events,
    .operations = &k_operations<FunctionAverageStdDevAType>,
};

FunctionAverageStdDevAType::FunctionAverageStdDevAType() = default;
FunctionAverageStdDevAType::FunctionAverageStdDevAType(const FunctionAverageStdDevAType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionAverageStdDevAType::~FunctionAverageStdDevAType() = default;
FunctionAverageStdDevAType& FunctionAverageStdDevAType::operator=(const FunctionAverageStdDevAType& other) { FunctionAverageStdDevAType copy(other); swap(copy); return *this; }
void FunctionAverageStdDevAType::swap(FunctionAverageStdDevAType& other) { lmx::swap(k_class, this, &other); }
void FunctionAverageStdDevAType::reset() { FunctionAverageStdDevAType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionAverageStdDevAType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionAverageStdDevAType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionAverageStdDevAType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionAverageStdDevAType::marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
lmx::elmx_error FunctionAverageStdDevAType::marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
bool FunctionAverageStdDevAType::unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
lmx::elmx_error FunctionAverageStdDevAType::unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
bool FunctionAverageStdDevAType::unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
namespace { const char k_FunctionAverageStdDevAType_id[] = "FunctionAverageStdDevAType"; }
const char* FunctionAverageStdDevAType::id = k_FunctionAverageStdDevAType_id;
FunctionAverageStdDevAType* FunctionAverageStdDevAType::clone() const { return new FunctionAverageStdDevAType(*this); }
const char* FunctionAverageStdDevAType::getid() const { return id; }
bool FunctionAverageStdDevAType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }

// FunctionAverageStdDevBType

constinit const s_class FunctionAverageStdDevBType::k_class = {
    .name = "FunctionAverageStdDevBType",
    .qualified_name = "Vyr:FunctionAverageStdDevBType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .ns_map = k_ns_map,
    .nil_flag = k_no_flag,
    .choice = k_no_flag,
    .id = &FunctionAverageStdDevBType::id,
    .xsi_type = "Vyr:FunctionAverageStdDevBType",
    .attributes = {},
    .elements = {},
    .attribute_map = k_no_events,
    .element_map = k_no_events,
    .operations = &k_operations<FunctionAverageStdDevBType>,
};

FunctionAverageStdDevBType::FunctionAverageStdDevBType() = default;
FunctionAverageStdDevBType::FunctionAverageStdDevBType(const FunctionAverageStdDevBType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionAverageStdDevBType::~FunctionAverageStdDevBType() = default;
FunctionAverageStdDevBType& FunctionAverageStdDevBType::operator=(const FunctionAverageStdDevBType& other) { FunctionAverageStdDevBType copy(other); swap(copy); return *this; }
void FunctionAverageStdDevBType::swap(FunctionAverageStdDevBType& other) { lmx::swap(k_class, this, &other); }
void FunctionAverageStdDevBType::reset() { FunctionAverageStdDevBType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionAverageStdDevBType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionAverageStdDevBType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionAverageStdDevBType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionAverageStdDevBType::marshal_attributes(lmx::c_xml_writer& writer) const { lmx::marshal_attributes(k_class, this, writer); }
lmx::elmx_error FunctionAverageStdDevBType::marshal_child_elements(lmx::c_xml_writer& writer) const { return lmx::marshal_child_elements(k_class, this, writer); }
bool FunctionAverageStdDevBType::unmarshal_attributes(lmx::c_xml_reader& reader, const std::string& name, lmx::elmx_error* error) { return lmx::unmarshal_attribute(k_class, this, reader, name, error); }
lmx::elmx_error FunctionAverageStdDevBType::unmarshal_attributes_check(lmx::c_xml_reader& reader) { return lmx::check_required_attributes(k_class, this, reader); }
bool FunctionAverageStdDevBType::unmarshal_body(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
namespace { const char k_FunctionAverageStdDevBType_id[] = "FunctionAverageStdDevBType"; }
const char* FunctionAverageStdDevBType::id = k_FunctionAverageStdDevBType_id;
FunctionAverageStdDevBType* FunctionAverageStdDevBType::clone() const { return new FunctionAverageStdDevBType(*this); }
const char* FunctionAverageStdDevBType::getid() const { return id; }
bool FunctionAverageStdDevBType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }

// FunctionStdDevX

lmx::elmx_error FunctionStdDevX::marshal(lmx::c_xml_writer& writer, const char* name) const {
    writer.conditionally_select_ns_map(k_ns_map);
    return FunctionStdDevXType::marshal(writer, name);
}
lmx::elmx_error FunctionStdDevX::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevXType::unmarshal(reader, name); }
constinit const lmx::s_document FunctionStdDevX::k_document = {"Vyr:FunctionStdDevX", "FunctionStdDevX", k_ns_map, &lmx::k_operations<FunctionStdDevX>};
const lmx::s_ns_map* FunctionStdDevX::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevX::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
FunctionStdDevX::FunctionStdDevX(const char* file_name, lmx::elmx_error* error) : FunctionStdDevX() { *error = unmarshal(file_name); }
lmx::elmx_error FunctionStdDevX::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
FunctionStdDevX::FunctionStdDevX(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevX() { *error = unmarshal(data, size); }
lmx::elmx_error FunctionStdDevX::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
FunctionStdDevX::FunctionStdDevX(const std::string& text, lmx::elmx_error* error) : FunctionStdDevX() { *error = unmarshal(text.data(), text.size()); }
lmx::elmx_error FunctionStdDevX::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevX::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevX::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevX::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }

// FunctionStdDevY

lmx::elmx_error FunctionStdDevY::marshal(lmx::c_xml_writer& writer, const char* name) const {
    writer.conditionally_select_ns_map(k_ns_map);
    return FunctionStdDevYType::marshal(writer, name);
}
lmx::elmx_error FunctionStdDevY::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevYType::unmarshal(reader, name); }
constinit const lmx::s_document FunctionStdDevY::k_document = {"Vyr:FunctionStdDevY", "FunctionStdDevY", k_ns_map, &lmx::k_operations<FunctionStdDevY>};
const lmx::s_ns_map* FunctionStdDevY::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevY::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
FunctionStdDevY::FunctionStdDevY(const char* file_name, lmx::elmx_error* error) : FunctionStdDevY() { *error = unmarshal(file_name); }
lmx::elmx_error FunctionStdDevY::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
FunctionStdDevY::FunctionStdDevY(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevY() { *error = unmarshal(data, size); }
lmx::elmx_error FunctionStdDevY::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
FunctionStdDevY::FunctionStdDevY(const std::string& text, lmx::elmx_error* error) : FunctionStdDevY() { *error = unmarshal(text.data(), text.size()); }
lmx::elmx_error FunctionStdDevY::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevY::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevY::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevY::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }

// FunctionStdDevZ

lmx::elmx_error FunctionStdDevZ::marshal(lmx::c_xml_writer& writer, const char* name) const {
    writer.conditionally_select_ns_map(k_ns_map);
    return FunctionStdDevZType::marshal(writer, name);
}
lmx::elmx_error FunctionStdDevZ::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevZType::unmarshal(reader, name); }
constinit const lmx::s_document FunctionStdDevZ::k_document = {"Vyr:FunctionStdDevZ", "FunctionStdDevZ", k_ns_map, &lmx::k_operations<FunctionStdDevZ>};
const lmx::s_ns_map* FunctionStdDevZ::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevZ::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
FunctionStdDevZ::FunctionStdDevZ(const char* file_name, lmx::elmx_error* error) : FunctionStdDevZ() { *error = unmarshal(file_name); }
lmx::elmx_error FunctionStdDevZ::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
FunctionStdDevZ::FunctionStdDevZ(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevZ() { *error = unmarshal(data, size); }
lmx::elmx_error FunctionStdDevZ::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
FunctionStdDevZ::FunctionStdDevZ(const std::string& text, lmx::elmx_error* error) : FunctionStdDevZ() { *error = unmarshal(text.data(), text.size()); }
lmx::elmx_error FunctionStdDevZ::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevZ::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevZ::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevZ::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }

// FunctionStdDevL

lmx::elmx_error FunctionStdDevL::marshal(lmx::c_xml_writer& writer, const char* name) const {
    writer.conditionally_select_ns_map(k_ns_map);
    return FunctionStdDevLType::marshal(writer, name);
}
lmx::elmx_error FunctionStdDevL::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevLType::unmarshal(reader, name); }
constinit const lmx::s_document FunctionStdDevL::k_document = {"Vyr:FunctionStdDevL", "FunctionStdDevL", k_ns_map, &lmx::k_operations<FunctionStdDevL>};
const lmx::s_ns_map* FunctionStdDevL::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevL::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
FunctionStdDevL::FunctionStdDevL(const char* file_name, lmx::elmx_error* error) : FunctionStdDevL() { *error = unmarshal(file_name); }
lmx::elmx_error FunctionStdDevL::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
FunctionStdDevL::FunctionStdDevL(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevL() { *error = unmarshal(data, size); }
lmx::elmx_error FunctionStdDevL::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
FunctionStdDevL::FunctionStdDevL(const std::string& text, lmx::elmx_error* error) : FunctionStdDevL() { *error = unmarshal(text.data(), text.size()); }
lmx::elmx_error FunctionStdDevL::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevL::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevL::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevL::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }

// FunctionStdDevA

lmx::elmx_error FunctionStdDevA::marshal(lmx::c_xml_writer& writer, const char* name) const {
    writer.conditionally_select_ns_map(k_ns_map);
    return FunctionStdDevAType::marshal(writer, name);
}
lmx::elmx_error FunctionStdDevA::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevAType::unmarshal(reader, name); }
constinit const lmx::s_document FunctionStdDevA::k_document = {"Vyr:FunctionStdDevA", "FunctionStdDevA", k_ns_map, &lmx::k_operations<FunctionStdDevA>};
const lmx::s_ns_map* FunctionStdDevA::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevA::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
FunctionStdDevA::FunctionStdDevA(const char* file_name, lmx::elmx_error* error) : FunctionStdDevA() { *error = unmarshal(file_name); }
lmx::elmx_error FunctionStdDevA::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
FunctionStdDevA::FunctionStdDevA(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevA() { *error = unmarshal(data, size); }
lmx::elmx_error FunctionStdDevA::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
FunctionStdDevA::FunctionStdDevA(const std::string& text, lmx::elmx_error* error) : FunctionStdDevA() { *error = unmarshal(text.data(), text.size()); }
lmx::elmx_error FunctionStdDevA::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevA::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevA::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevA::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }

// FunctionStdDevB

lmx::elmx_error FunctionStdDevB::marshal(lmx::c_xml_writer& writer, const char* name) const {
    writer.conditionally_select_ns_map(k_ns_map);
    return FunctionStdDevBType::marshal(writer, name);
}
lmx::elmx_error FunctionStdDevB::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevBType::unmarshal(reader, name); }
constinit const lmx::s_document FunctionStdDevB::k_document = {"Vyr:FunctionStdDevB", "FunctionStdDevB", k_ns_map, &lmx::k_operations<FunctionStdDevB>};
const lmx::s_ns_map* FunctionStdDevB::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevB::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
FunctionStdDevB::FunctionStdDevB(const char* file_name, lmx::elmx_error* error) : FunctionStdDevB() { *error = unmarshal(file_name); }
lmx::elmx_error FunctionStdDevB::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
FunctionStdDevB::FunctionStdDevB(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevB() { *error = unmarshal(data, size); }
lmx::elmx_error FunctionStdDevB::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
FunctionStdDevB::FunctionStdDevB(const std::string& text, lmx::elmx_error* error) : FunctionStdDevB() { *error = unmarshal(text.data(), text.size()); }
lmx::elmx_error FunctionStdDevB::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevB::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevB::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevB::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }

// FunctionStdDevC

lmx::elmx_error FunctionStdDevC::marshal(lmx::c_xml_writer& writer, const char* name) const {
    writer.conditionally_select_ns_map(k_ns_map);
    return FunctionStdDevCType::marshal(writer, name);
}
lmx::elmx_error FunctionStdDevC::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevCType::unmarshal(reader, name); }
constinit const lmx::s_document FunctionStdDevC::k_document = {"Vyr:FunctionStdDevC", "FunctionStdDevC", k_ns_map, &lmx::k_operations<FunctionStdDevC>};
const lmx::s_ns_map* FunctionStdDevC::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevC::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
FunctionStdDevC::FunctionStdDevC(const char* file_name, lmx::elmx_error* error) : FunctionStdDevC() { *error = unmarshal(file_name); }
lmx::elmx_error FunctionStdDevC::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
FunctionStdDevC::FunctionStdDevC(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevC() { *error = unmarshal(data, size); }
lmx::elmx_error FunctionStdDevC::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
FunctionStdDevC::FunctionStdDevC(const std::string& text, lmx::elmx_error* error) : FunctionStdDevC() { *error = unmarshal(text.data(), text.size()); }
lmx::elmx_error FunctionStdDevC::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevC::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevC::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevC::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }

// FunctionStdDevH

lmx::elmx_error FunctionStdDevH::marshal(lmx::c_xml_writer& writer, const char* name) const {
    writer.conditionally_select_ns_map(k_ns_map);
    return FunctionStdDevHType::marshal(writer, name);
}
lmx::elmx_error FunctionStdDevH::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevHType::unmarshal(reader, name); }
constinit const lmx::s_document FunctionStdDevH::k_document = {"Vyr:FunctionStdDevH", "FunctionStdDevH", k_ns_map, &lmx::k_operations<FunctionStdDevH>};
const lmx::s_ns_map* FunctionStdDevH::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevH::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
FunctionStdDevH::FunctionStdDevH(const char* file_name, lmx::elmx_error* error) : FunctionStdDevH() { *error = unmarshal(file_name); }
lmx::elmx_error FunctionStdDevH::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
FunctionStdDevH::FunctionStdDevH(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevH() { *error = unmarshal(data, size); }
lmx::elmx_error FunctionStdDevH::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
FunctionStdDevH::FunctionStdDevH(const std::string& text, lmx::elmx_error* error) : FunctionStdDevH() { *error = unmarshal(text.data(), text.size()); }
lmx::elmx_error FunctionStdDevH::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevH::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevH::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevH::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }

// FunctionAverageStdDevL

lmx::elmx_error FunctionAverageStdDevL::marshal(lmx::c_xml_writer& writer, const char* name) const {
    writer.conditionally_select_ns_map(k_ns_map);
    return FunctionAverageStdDevLType::marshal(writer, name);
}
lmx::elmx_error FunctionAverageStdDevL::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionAverageStdDevLType::unmarshal(reader, name); }
constinit const lmx::s_document FunctionAverageStdDevL::k_document = {"Vyr:FunctionAverageStdDevL", "FunctionAverageStdDevL", k_ns_map, &lmx::k_operations<FunctionAverageStdDevL>};
const lmx::s_ns_map* FunctionAverageStdDevL::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionAverageStdDevL::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
FunctionAverageStdDevL::FunctionAverageStdDevL(const char* file_name, lmx::elmx_error* error) : FunctionAverageStdDevL() { *error = unmarshal(file_name); }
lmx::elmx_error FunctionAverageStdDevL::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
FunctionAverageStdDevL::FunctionAverageStdDevL(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionAverageStdDevL() { *error = unmarshal(data, size); }
lmx::elmx_error FunctionAverageStdDevL::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
FunctionAverageStdDevL::FunctionAverageStdDevL(const std::string& text, lmx::elmx_error* error) : FunctionAverageStdDevL() { *error = unmarshal(text.data(), text.size()); }
lmx::elmx_error FunctionAverageStdDevL::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionAverageStdDevL::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionAverageStdDevL::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionAverageStdDevL::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }

// FunctionAverageStdDevA

lmx::elmx_error FunctionAverageStdDevA::marshal(lmx::c_xml_writer& writer, const char* name) const {
    writer.conditionally_select_ns_map(k_ns_map);
    return FunctionAverageStdDevAType::marshal(writer, name);
}
lmx::elmx_error FunctionAverageStdDevA::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionAverageStdDevAType::unmarshal(reader, name); }
constinit const lmx::s_document FunctionAverageStdDevA::k_document = {"Vyr:FunctionAverageStdDevA", "FunctionAverageStdDevA", k_ns_map, &lmx::k_operations<FunctionAverageStdDevA>};
const lmx::s_ns_map* FunctionAverageStdDevA::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionAverageStdDevA::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
FunctionAverageStdDevA::FunctionAverageStdDevA(const char* file_name, lmx::elmx_error* error) : FunctionAverageStdDevA() { *error = unmarshal(file_name); }
lmx::elmx_error FunctionAverageStdDevA::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
FunctionAverageStdDevA::FunctionAverageStdDevA(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionAverageStdDevA() { *error = unmarshal(data, size); }
lmx::elmx_error FunctionAverageStdDevA::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
FunctionAverageStdDevA::FunctionAverageStdDevA(const std::string& text, lmx::elmx_error* error) : FunctionAverageStdDevA() { *error = unmarshal(text.data(), text.size()); }
lmx::elmx_error FunctionAverageStdDevA::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionAverageStdDevA::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionAverageStdDevA::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionAverageStdDevA::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }

// FunctionAverageStdDevB

lmx::elmx_error FunctionAverageStdDevB::marshal(lmx::c_xml_writer& writer, const char* name) const {
    writer.conditionally_select_ns_map(k_ns_map);
    return FunctionAverageStdDevBType::marshal(writer, name);
}
lmx::elmx_error FunctionAverageStdDevB::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionAverageStdDevBType::unmarshal(reader, name); }
constinit const lmx::s_document FunctionAverageStdDevB::k_document = {"Vyr:FunctionAverageStdDevB", "FunctionAverageStdDevB", k_ns_map, &lmx::k_operations<FunctionAverageStdDevB>};
const lmx::s_ns_map* FunctionAverageStdDevB::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionAverageStdDevB::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
FunctionAverageStdDevB::FunctionAverageStdDevB(const char* file_name, lmx::elmx_error* error) : FunctionAverageStdDevB() { *error = unmarshal(file_name); }
lmx::elmx_error FunctionAverageStdDevB::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
FunctionAverageStdDevB::FunctionAverageStdDevB(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionAverageStdDevB() { *error = unmarshal(data, size); }
lmx::elmx_error FunctionAverageStdDevB::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
FunctionAverageStdDevB::FunctionAverageStdDevB(const std::string& text, lmx::elmx_error* error) : FunctionAverageStdDevB() { *error = unmarshal(text.data(), text.size()); }
lmx::elmx_error FunctionAverageStdDevB::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionAverageStdDevB::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionAverageStdDevB::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionAverageStdDevB::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }

}  // namespace com_vyrgraph_v2
