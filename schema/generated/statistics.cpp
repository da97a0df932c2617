// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in statistics.h.

#include "schema/generated/statistics.h"
#include "lmx/binding/binding.h"
#include "schema/generated/functions.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// FunctionStdDevXType

constinit const s_class FunctionStdDevXType::k_class = {
    .name = "FunctionStdDevXType",
    .qualified_name = "Vyr:FunctionStdDevXType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionStdDevXType::id,
    .operations = &k_operations<FunctionStdDevXType>,
};

const char k_FunctionStdDevXType_id[] = "FunctionStdDevXType";
const char* FunctionStdDevXType::id = k_FunctionStdDevXType_id;
FunctionStdDevXType::FunctionStdDevXType() = default;
FunctionStdDevXType::FunctionStdDevXType(const FunctionStdDevXType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevXType* FunctionStdDevXType::clone() const { return new FunctionStdDevXType(*this); }
FunctionStdDevXType::~FunctionStdDevXType() = default;
FunctionStdDevXType& FunctionStdDevXType::operator=(const FunctionStdDevXType& other) { FunctionStdDevXType copy(other); swap(copy); return *this; }
const char* FunctionStdDevXType::getid() const { return id; }
bool FunctionStdDevXType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionStdDevXType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevXType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevXType::swap(FunctionStdDevXType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevXType::reset() { FunctionStdDevXType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevXType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionStdDevYType

constinit const s_class FunctionStdDevYType::k_class = {
    .name = "FunctionStdDevYType",
    .qualified_name = "Vyr:FunctionStdDevYType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionStdDevYType::id,
    .operations = &k_operations<FunctionStdDevYType>,
};

const char k_FunctionStdDevYType_id[] = "FunctionStdDevYType";
const char* FunctionStdDevYType::id = k_FunctionStdDevYType_id;
FunctionStdDevYType::FunctionStdDevYType() = default;
FunctionStdDevYType::FunctionStdDevYType(const FunctionStdDevYType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevYType* FunctionStdDevYType::clone() const { return new FunctionStdDevYType(*this); }
FunctionStdDevYType::~FunctionStdDevYType() = default;
FunctionStdDevYType& FunctionStdDevYType::operator=(const FunctionStdDevYType& other) { FunctionStdDevYType copy(other); swap(copy); return *this; }
const char* FunctionStdDevYType::getid() const { return id; }
bool FunctionStdDevYType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionStdDevYType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevYType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevYType::swap(FunctionStdDevYType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevYType::reset() { FunctionStdDevYType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevYType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionStdDevZType

constinit const s_class FunctionStdDevZType::k_class = {
    .name = "FunctionStdDevZType",
    .qualified_name = "Vyr:FunctionStdDevZType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionStdDevZType::id,
    .operations = &k_operations<FunctionStdDevZType>,
};

const char k_FunctionStdDevZType_id[] = "FunctionStdDevZType";
const char* FunctionStdDevZType::id = k_FunctionStdDevZType_id;
FunctionStdDevZType::FunctionStdDevZType() = default;
FunctionStdDevZType::FunctionStdDevZType(const FunctionStdDevZType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevZType* FunctionStdDevZType::clone() const { return new FunctionStdDevZType(*this); }
FunctionStdDevZType::~FunctionStdDevZType() = default;
FunctionStdDevZType& FunctionStdDevZType::operator=(const FunctionStdDevZType& other) { FunctionStdDevZType copy(other); swap(copy); return *this; }
const char* FunctionStdDevZType::getid() const { return id; }
bool FunctionStdDevZType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionStdDevZType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevZType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevZType::swap(FunctionStdDevZType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevZType::reset() { FunctionStdDevZType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevZType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionStdDevLType

constinit const s_class FunctionStdDevLType::k_class = {
    .name = "FunctionStdDevLType",
    .qualified_name = "Vyr:FunctionStdDevLType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionStdDevLType::id,
    .operations = &k_operations<FunctionStdDevLType>,
};

const char k_FunctionStdDevLType_id[] = "FunctionStdDevLType";
const char* FunctionStdDevLType::id = k_FunctionStdDevLType_id;
FunctionStdDevLType::FunctionStdDevLType() = default;
FunctionStdDevLType::FunctionStdDevLType(const FunctionStdDevLType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevLType* FunctionStdDevLType::clone() const { return new FunctionStdDevLType(*this); }
FunctionStdDevLType::~FunctionStdDevLType() = default;
FunctionStdDevLType& FunctionStdDevLType::operator=(const FunctionStdDevLType& other) { FunctionStdDevLType copy(other); swap(copy); return *this; }
const char* FunctionStdDevLType::getid() const { return id; }
bool FunctionStdDevLType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionStdDevLType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevLType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevLType::swap(FunctionStdDevLType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevLType::reset() { FunctionStdDevLType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevLType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionStdDevAType

constinit const s_class FunctionStdDevAType::k_class = {
    .name = "FunctionStdDevAType",
    .qualified_name = "Vyr:FunctionStdDevAType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionStdDevAType::id,
    .operations = &k_operations<FunctionStdDevAType>,
};

const char k_FunctionStdDevAType_id[] = "FunctionStdDevAType";
const char* FunctionStdDevAType::id = k_FunctionStdDevAType_id;
FunctionStdDevAType::FunctionStdDevAType() = default;
FunctionStdDevAType::FunctionStdDevAType(const FunctionStdDevAType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevAType* FunctionStdDevAType::clone() const { return new FunctionStdDevAType(*this); }
FunctionStdDevAType::~FunctionStdDevAType() = default;
FunctionStdDevAType& FunctionStdDevAType::operator=(const FunctionStdDevAType& other) { FunctionStdDevAType copy(other); swap(copy); return *this; }
const char* FunctionStdDevAType::getid() const { return id; }
bool FunctionStdDevAType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionStdDevAType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevAType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevAType::swap(FunctionStdDevAType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevAType::reset() { FunctionStdDevAType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevAType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionStdDevBType

constinit const s_class FunctionStdDevBType::k_class = {
    .name = "FunctionStdDevBType",
    .qualified_name = "Vyr:FunctionStdDevBType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionStdDevBType::id,
    .operations = &k_operations<FunctionStdDevBType>,
};

const char k_FunctionStdDevBType_id[] = "FunctionStdDevBType";
const char* FunctionStdDevBType::id = k_FunctionStdDevBType_id;
FunctionStdDevBType::FunctionStdDevBType() = default;
FunctionStdDevBType::FunctionStdDevBType(const FunctionStdDevBType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevBType* FunctionStdDevBType::clone() const { return new FunctionStdDevBType(*this); }
FunctionStdDevBType::~FunctionStdDevBType() = default;
FunctionStdDevBType& FunctionStdDevBType::operator=(const FunctionStdDevBType& other) { FunctionStdDevBType copy(other); swap(copy); return *this; }
const char* FunctionStdDevBType::getid() const { return id; }
bool FunctionStdDevBType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionStdDevBType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevBType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevBType::swap(FunctionStdDevBType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevBType::reset() { FunctionStdDevBType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevBType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionStdDevCType

constinit const s_class FunctionStdDevCType::k_class = {
    .name = "FunctionStdDevCType",
    .qualified_name = "Vyr:FunctionStdDevCType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionStdDevCType::id,
    .operations = &k_operations<FunctionStdDevCType>,
};

const char k_FunctionStdDevCType_id[] = "FunctionStdDevCType";
const char* FunctionStdDevCType::id = k_FunctionStdDevCType_id;
FunctionStdDevCType::FunctionStdDevCType() = default;
FunctionStdDevCType::FunctionStdDevCType(const FunctionStdDevCType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevCType* FunctionStdDevCType::clone() const { return new FunctionStdDevCType(*this); }
FunctionStdDevCType::~FunctionStdDevCType() = default;
FunctionStdDevCType& FunctionStdDevCType::operator=(const FunctionStdDevCType& other) { FunctionStdDevCType copy(other); swap(copy); return *this; }
const char* FunctionStdDevCType::getid() const { return id; }
bool FunctionStdDevCType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionStdDevCType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevCType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevCType::swap(FunctionStdDevCType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevCType::reset() { FunctionStdDevCType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevCType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionStdDevHType

constinit const s_class FunctionStdDevHType::k_class = {
    .name = "FunctionStdDevHType",
    .qualified_name = "Vyr:FunctionStdDevHType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionStdDevHType::id,
    .operations = &k_operations<FunctionStdDevHType>,
};

const char k_FunctionStdDevHType_id[] = "FunctionStdDevHType";
const char* FunctionStdDevHType::id = k_FunctionStdDevHType_id;
FunctionStdDevHType::FunctionStdDevHType() = default;
FunctionStdDevHType::FunctionStdDevHType(const FunctionStdDevHType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionStdDevHType* FunctionStdDevHType::clone() const { return new FunctionStdDevHType(*this); }
FunctionStdDevHType::~FunctionStdDevHType() = default;
FunctionStdDevHType& FunctionStdDevHType::operator=(const FunctionStdDevHType& other) { FunctionStdDevHType copy(other); swap(copy); return *this; }
const char* FunctionStdDevHType::getid() const { return id; }
bool FunctionStdDevHType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionStdDevHType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionStdDevHType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionStdDevHType::swap(FunctionStdDevHType& other) { lmx::swap(k_class, this, &other); }
void FunctionStdDevHType::reset() { FunctionStdDevHType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionStdDevHType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionAverageStdDevLType

constinit const s_class FunctionAverageStdDevLType::k_class = {
    .name = "FunctionAverageStdDevLType",
    .qualified_name = "Vyr:FunctionAverageStdDevLType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionAverageStdDevLType::id,
    .operations = &k_operations<FunctionAverageStdDevLType>,
};

const char k_FunctionAverageStdDevLType_id[] = "FunctionAverageStdDevLType";
const char* FunctionAverageStdDevLType::id = k_FunctionAverageStdDevLType_id;
FunctionAverageStdDevLType::FunctionAverageStdDevLType() = default;
FunctionAverageStdDevLType::FunctionAverageStdDevLType(const FunctionAverageStdDevLType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionAverageStdDevLType* FunctionAverageStdDevLType::clone() const { return new FunctionAverageStdDevLType(*this); }
FunctionAverageStdDevLType::~FunctionAverageStdDevLType() = default;
FunctionAverageStdDevLType& FunctionAverageStdDevLType::operator=(const FunctionAverageStdDevLType& other) { FunctionAverageStdDevLType copy(other); swap(copy); return *this; }
const char* FunctionAverageStdDevLType::getid() const { return id; }
bool FunctionAverageStdDevLType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionAverageStdDevLType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionAverageStdDevLType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionAverageStdDevLType::swap(FunctionAverageStdDevLType& other) { lmx::swap(k_class, this, &other); }
void FunctionAverageStdDevLType::reset() { FunctionAverageStdDevLType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionAverageStdDevLType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionAverageStdDevAType

constinit const s_class FunctionAverageStdDevAType::k_class = {
    .name = "FunctionAverageStdDevAType",
    .qualified_name = "Vyr:FunctionAverageStdDevAType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionAverageStdDevAType::id,
    .operations = &k_operations<FunctionAverageStdDevAType>,
};

const char k_FunctionAverageStdDevAType_id[] = "FunctionAverageStdDevAType";
const char* FunctionAverageStdDevAType::id = k_FunctionAverageStdDevAType_id;
FunctionAverageStdDevAType::FunctionAverageStdDevAType() = default;
FunctionAverageStdDevAType::FunctionAverageStdDevAType(const FunctionAverageStdDevAType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionAverageStdDevAType* FunctionAverageStdDevAType::clone() const { return new FunctionAverageStdDevAType(*this); }
FunctionAverageStdDevAType::~FunctionAverageStdDevAType() = default;
FunctionAverageStdDevAType& FunctionAverageStdDevAType::operator=(const FunctionAverageStdDevAType& other) { FunctionAverageStdDevAType copy(other); swap(copy); return *this; }
const char* FunctionAverageStdDevAType::getid() const { return id; }
bool FunctionAverageStdDevAType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionAverageStdDevAType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionAverageStdDevAType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionAverageStdDevAType::swap(FunctionAverageStdDevAType& other) { lmx::swap(k_class, this, &other); }
void FunctionAverageStdDevAType::reset() { FunctionAverageStdDevAType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionAverageStdDevAType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionAverageStdDevBType

constinit const s_class FunctionAverageStdDevBType::k_class = {
    .name = "FunctionAverageStdDevBType",
    .qualified_name = "Vyr:FunctionAverageStdDevBType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionAverageStdDevBType::id,
    .operations = &k_operations<FunctionAverageStdDevBType>,
};

const char k_FunctionAverageStdDevBType_id[] = "FunctionAverageStdDevBType";
const char* FunctionAverageStdDevBType::id = k_FunctionAverageStdDevBType_id;
FunctionAverageStdDevBType::FunctionAverageStdDevBType() = default;
FunctionAverageStdDevBType::FunctionAverageStdDevBType(const FunctionAverageStdDevBType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionAverageStdDevBType* FunctionAverageStdDevBType::clone() const { return new FunctionAverageStdDevBType(*this); }
FunctionAverageStdDevBType::~FunctionAverageStdDevBType() = default;
FunctionAverageStdDevBType& FunctionAverageStdDevBType::operator=(const FunctionAverageStdDevBType& other) { FunctionAverageStdDevBType copy(other); swap(copy); return *this; }
const char* FunctionAverageStdDevBType::getid() const { return id; }
bool FunctionAverageStdDevBType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionAverageStdDevBType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionAverageStdDevBType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionAverageStdDevBType::swap(FunctionAverageStdDevBType& other) { lmx::swap(k_class, this, &other); }
void FunctionAverageStdDevBType::reset() { FunctionAverageStdDevBType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionAverageStdDevBType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionStdDevX

constinit const lmx::s_document FunctionStdDevX::k_document = {"Vyr:FunctionStdDevX", "FunctionStdDevX", k_ns_map, &lmx::k_operations<FunctionStdDevX>};
FunctionStdDevX::FunctionStdDevX(const char* file_name, lmx::elmx_error* error) : FunctionStdDevX() { *error = unmarshal(file_name); }
FunctionStdDevX::FunctionStdDevX(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevX() { *error = unmarshal(data, size); }
FunctionStdDevX::FunctionStdDevX(const std::string& text, lmx::elmx_error* error) : FunctionStdDevX() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionStdDevX::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevX::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevX::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionStdDevX::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevX::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionStdDevX::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevX::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevX::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionStdDevX::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionStdDevXType::marshal(writer, name); }
lmx::elmx_error FunctionStdDevX::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevXType::unmarshal(reader, name); }

// FunctionStdDevY

constinit const lmx::s_document FunctionStdDevY::k_document = {"Vyr:FunctionStdDevY", "FunctionStdDevY", k_ns_map, &lmx::k_operations<FunctionStdDevY>};
FunctionStdDevY::FunctionStdDevY(const char* file_name, lmx::elmx_error* error) : FunctionStdDevY() { *error = unmarshal(file_name); }
FunctionStdDevY::FunctionStdDevY(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevY() { *error = unmarshal(data, size); }
FunctionStdDevY::FunctionStdDevY(const std::string& text, lmx::elmx_error* error) : FunctionStdDevY() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionStdDevY::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevY::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevY::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionStdDevY::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevY::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionStdDevY::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevY::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevY::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionStdDevY::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionStdDevYType::marshal(writer, name); }
lmx::elmx_error FunctionStdDevY::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevYType::unmarshal(reader, name); }

// FunctionStdDevZ

constinit const lmx::s_document FunctionStdDevZ::k_document = {"Vyr:FunctionStdDevZ", "FunctionStdDevZ", k_ns_map, &lmx::k_operations<FunctionStdDevZ>};
FunctionStdDevZ::FunctionStdDevZ(const char* file_name, lmx::elmx_error* error) : FunctionStdDevZ() { *error = unmarshal(file_name); }
FunctionStdDevZ::FunctionStdDevZ(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevZ() { *error = unmarshal(data, size); }
FunctionStdDevZ::FunctionStdDevZ(const std::string& text, lmx::elmx_error* error) : FunctionStdDevZ() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionStdDevZ::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevZ::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevZ::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionStdDevZ::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevZ::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionStdDevZ::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevZ::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevZ::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionStdDevZ::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionStdDevZType::marshal(writer, name); }
lmx::elmx_error FunctionStdDevZ::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevZType::unmarshal(reader, name); }

// FunctionStdDevL

constinit const lmx::s_document FunctionStdDevL::k_document = {"Vyr:FunctionStdDevL", "FunctionStdDevL", k_ns_map, &lmx::k_operations<FunctionStdDevL>};
FunctionStdDevL::FunctionStdDevL(const char* file_name, lmx::elmx_error* error) : FunctionStdDevL() { *error = unmarshal(file_name); }
FunctionStdDevL::FunctionStdDevL(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevL() { *error = unmarshal(data, size); }
FunctionStdDevL::FunctionStdDevL(const std::string& text, lmx::elmx_error* error) : FunctionStdDevL() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionStdDevL::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevL::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevL::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionStdDevL::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevL::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionStdDevL::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevL::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevL::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionStdDevL::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionStdDevLType::marshal(writer, name); }
lmx::elmx_error FunctionStdDevL::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevLType::unmarshal(reader, name); }

// FunctionStdDevA

constinit const lmx::s_document FunctionStdDevA::k_document = {"Vyr:FunctionStdDevA", "FunctionStdDevA", k_ns_map, &lmx::k_operations<FunctionStdDevA>};
FunctionStdDevA::FunctionStdDevA(const char* file_name, lmx::elmx_error* error) : FunctionStdDevA() { *error = unmarshal(file_name); }
FunctionStdDevA::FunctionStdDevA(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevA() { *error = unmarshal(data, size); }
FunctionStdDevA::FunctionStdDevA(const std::string& text, lmx::elmx_error* error) : FunctionStdDevA() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionStdDevA::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevA::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevA::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionStdDevA::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevA::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionStdDevA::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevA::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevA::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionStdDevA::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionStdDevAType::marshal(writer, name); }
lmx::elmx_error FunctionStdDevA::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevAType::unmarshal(reader, name); }

// FunctionStdDevB

constinit const lmx::s_document FunctionStdDevB::k_document = {"Vyr:FunctionStdDevB", "FunctionStdDevB", k_ns_map, &lmx::k_operations<FunctionStdDevB>};
FunctionStdDevB::FunctionStdDevB(const char* file_name, lmx::elmx_error* error) : FunctionStdDevB() { *error = unmarshal(file_name); }
FunctionStdDevB::FunctionStdDevB(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevB() { *error = unmarshal(data, size); }
FunctionStdDevB::FunctionStdDevB(const std::string& text, lmx::elmx_error* error) : FunctionStdDevB() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionStdDevB::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevB::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevB::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionStdDevB::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevB::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionStdDevB::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevB::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevB::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionStdDevB::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionStdDevBType::marshal(writer, name); }
lmx::elmx_error FunctionStdDevB::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevBType::unmarshal(reader, name); }

// FunctionStdDevC

constinit const lmx::s_document FunctionStdDevC::k_document = {"Vyr:FunctionStdDevC", "FunctionStdDevC", k_ns_map, &lmx::k_operations<FunctionStdDevC>};
FunctionStdDevC::FunctionStdDevC(const char* file_name, lmx::elmx_error* error) : FunctionStdDevC() { *error = unmarshal(file_name); }
FunctionStdDevC::FunctionStdDevC(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevC() { *error = unmarshal(data, size); }
FunctionStdDevC::FunctionStdDevC(const std::string& text, lmx::elmx_error* error) : FunctionStdDevC() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionStdDevC::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevC::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevC::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionStdDevC::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevC::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionStdDevC::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevC::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevC::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionStdDevC::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionStdDevCType::marshal(writer, name); }
lmx::elmx_error FunctionStdDevC::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevCType::unmarshal(reader, name); }

// FunctionStdDevH

constinit const lmx::s_document FunctionStdDevH::k_document = {"Vyr:FunctionStdDevH", "FunctionStdDevH", k_ns_map, &lmx::k_operations<FunctionStdDevH>};
FunctionStdDevH::FunctionStdDevH(const char* file_name, lmx::elmx_error* error) : FunctionStdDevH() { *error = unmarshal(file_name); }
FunctionStdDevH::FunctionStdDevH(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionStdDevH() { *error = unmarshal(data, size); }
FunctionStdDevH::FunctionStdDevH(const std::string& text, lmx::elmx_error* error) : FunctionStdDevH() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionStdDevH::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionStdDevH::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevH::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionStdDevH::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionStdDevH::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionStdDevH::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionStdDevH::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionStdDevH::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionStdDevH::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionStdDevHType::marshal(writer, name); }
lmx::elmx_error FunctionStdDevH::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionStdDevHType::unmarshal(reader, name); }

// FunctionAverageStdDevL

constinit const lmx::s_document FunctionAverageStdDevL::k_document = {"Vyr:FunctionAverageStdDevL", "FunctionAverageStdDevL", k_ns_map, &lmx::k_operations<FunctionAverageStdDevL>};
FunctionAverageStdDevL::FunctionAverageStdDevL(const char* file_name, lmx::elmx_error* error) : FunctionAverageStdDevL() { *error = unmarshal(file_name); }
FunctionAverageStdDevL::FunctionAverageStdDevL(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionAverageStdDevL() { *error = unmarshal(data, size); }
FunctionAverageStdDevL::FunctionAverageStdDevL(const std::string& text, lmx::elmx_error* error) : FunctionAverageStdDevL() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionAverageStdDevL::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionAverageStdDevL::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionAverageStdDevL::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionAverageStdDevL::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionAverageStdDevL::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionAverageStdDevL::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionAverageStdDevL::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionAverageStdDevL::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionAverageStdDevL::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionAverageStdDevLType::marshal(writer, name); }
lmx::elmx_error FunctionAverageStdDevL::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionAverageStdDevLType::unmarshal(reader, name); }

// FunctionAverageStdDevA

constinit const lmx::s_document FunctionAverageStdDevA::k_document = {"Vyr:FunctionAverageStdDevA", "FunctionAverageStdDevA", k_ns_map, &lmx::k_operations<FunctionAverageStdDevA>};
FunctionAverageStdDevA::FunctionAverageStdDevA(const char* file_name, lmx::elmx_error* error) : FunctionAverageStdDevA() { *error = unmarshal(file_name); }
FunctionAverageStdDevA::FunctionAverageStdDevA(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionAverageStdDevA() { *error = unmarshal(data, size); }
FunctionAverageStdDevA::FunctionAverageStdDevA(const std::string& text, lmx::elmx_error* error) : FunctionAverageStdDevA() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionAverageStdDevA::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionAverageStdDevA::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionAverageStdDevA::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionAverageStdDevA::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionAverageStdDevA::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionAverageStdDevA::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionAverageStdDevA::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionAverageStdDevA::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionAverageStdDevA::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionAverageStdDevAType::marshal(writer, name); }
lmx::elmx_error FunctionAverageStdDevA::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionAverageStdDevAType::unmarshal(reader, name); }

// FunctionAverageStdDevB

constinit const lmx::s_document FunctionAverageStdDevB::k_document = {"Vyr:FunctionAverageStdDevB", "FunctionAverageStdDevB", k_ns_map, &lmx::k_operations<FunctionAverageStdDevB>};
FunctionAverageStdDevB::FunctionAverageStdDevB(const char* file_name, lmx::elmx_error* error) : FunctionAverageStdDevB() { *error = unmarshal(file_name); }
FunctionAverageStdDevB::FunctionAverageStdDevB(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionAverageStdDevB() { *error = unmarshal(data, size); }
FunctionAverageStdDevB::FunctionAverageStdDevB(const std::string& text, lmx::elmx_error* error) : FunctionAverageStdDevB() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionAverageStdDevB::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionAverageStdDevB::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionAverageStdDevB::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionAverageStdDevB::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionAverageStdDevB::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionAverageStdDevB::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionAverageStdDevB::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionAverageStdDevB::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionAverageStdDevB::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionAverageStdDevBType::marshal(writer, name); }
lmx::elmx_error FunctionAverageStdDevB::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionAverageStdDevBType::unmarshal(reader, name); }

}  // namespace com_vyrgraph_v2
