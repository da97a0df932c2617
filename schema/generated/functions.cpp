// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in functions.h.

#include "schema/generated/functions.h"
#include "lmx/binding/binding.h"
#include "schema/generated/header.h"
#include "schema/generated/statistics.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// FunctionType

constexpr s_item FunctionType::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(FunctionType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Result", element("Result"), LMX_OFFSET(FunctionType, m_Result, element, number), LMX_FLAG(FunctionType, m_isset_Result)},
};
constinit const s_factory_row FunctionType::k_factory[] = {
    {"FunctionGenericType", &FunctionGenericType::k_class},
    {"FunctionDEType", &FunctionDEType::k_class},
    {"FunctionMeanDEType", &FunctionMeanDEType::k_class},
    {"FunctionDE94Type", &FunctionDE94Type::k_class},
    {"FunctionDE2000Type", &FunctionDE2000Type::k_class},
    {"FunctionDEcmcType", &FunctionDEcmcType::k_class},
    {"FunctionStdDevXType", &FunctionStdDevXType::k_class},
    {"FunctionStdDevYType", &FunctionStdDevYType::k_class},
    {"FunctionStdDevZType", &FunctionStdDevZType::k_class},
    {"FunctionStdDevLType", &FunctionStdDevLType::k_class},
    {"FunctionStdDevAType", &FunctionStdDevAType::k_class},
    {"FunctionStdDevBType", &FunctionStdDevBType::k_class},
    {"FunctionStdDevCType", &FunctionStdDevCType::k_class},
    {"FunctionStdDevHType", &FunctionStdDevHType::k_class},
    {"FunctionAverageStdDevLType", &FunctionAverageStdDevLType::k_class},
    {"FunctionAverageStdDevAType", &FunctionAverageStdDevAType::k_class},
    {"FunctionAverageStdDevBType", &FunctionAverageStdDevBType::k_class},
    {"FunctionTolerance", &FunctionTolerance::k_class},
};
constinit const s_class FunctionType::k_class = {
    .name = "FunctionType",
    .qualified_name = "Vyr:FunctionType",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionType::id,
    .elements = k_items,
    .operations = &k_operations<FunctionType>,
};

const char k_FunctionType_id[] = "FunctionType";
const char* FunctionType::id = k_FunctionType_id;
FunctionType::FunctionType() = default;
FunctionType::FunctionType(const FunctionType& other) { lmx::copy(k_class, this, &other); }
FunctionType* FunctionType::clone() const { return new FunctionType(*this); }
FunctionType::~FunctionType() = default;
FunctionType& FunctionType::operator=(const FunctionType& other) { FunctionType copy(other); swap(copy); return *this; }
const char* FunctionType::getid() const { return id; }
bool FunctionType::has_id(const char* identity) const { return identity == id; }
lmx::elmx_error FunctionType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionType::swap(FunctionType& other) { lmx::swap(k_class, this, &other); }
void FunctionType::reset() { FunctionType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& FunctionType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& FunctionType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error FunctionType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error FunctionType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void FunctionType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void FunctionType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error FunctionType::set_Result(double value) { return lmx::set_item(k_class, k_items[item_Result], this, value); }
FunctionType* FunctionType::factory(int ns_id, const std::string& name) { return static_cast<FunctionType*>(lmx::create_by_name(k_factory, ns_id, name)); }

// Function

constinit const lmx::s_document Function::k_document = {"Vyr:Function", "Function", k_ns_map, &lmx::k_operations<Function>};
Function::Function(const char* file_name, lmx::elmx_error* error) : Function() { *error = unmarshal(file_name); }
Function::Function(const char* data, std::size_t size, lmx::elmx_error* error) : Function() { *error = unmarshal(data, size); }
Function::Function(const std::string& text, lmx::elmx_error* error) : Function() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* Function::ns_map() { return k_ns_map; }
lmx::elmx_error Function::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error Function::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error Function::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error Function::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error Function::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error Function::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error Function::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error Function::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionType::marshal(writer, name); }
lmx::elmx_error Function::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionType::unmarshal(reader, name); }

// FunctionGenericType

constexpr s_item FunctionGenericType::k_items[] = {
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_COLLAPSE, "Vyr:Name", element("Name"), LMX_OFFSET(FunctionGenericType, m_Name, element, text), LMX_FLAG(FunctionGenericType, m_isset_Name), nullptr, &facets::NonEmptyToken},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Parameters", element("Parameters"), LMX_OFFSET(FunctionGenericType, m_Parameters, child_list, none), k_no_flag, &Parameters::k_class},
};
constinit const s_class FunctionGenericType::k_class = {
    .name = "FunctionGenericType",
    .qualified_name = "Vyr:FunctionGenericType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionGenericType::id,
    .elements = k_items,
    .operations = &k_operations<FunctionGenericType>,
};

const char k_FunctionGenericType_id[] = "FunctionGenericType";
const char* FunctionGenericType::id = k_FunctionGenericType_id;
FunctionGenericType::FunctionGenericType() = default;
FunctionGenericType::FunctionGenericType(const FunctionGenericType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionGenericType* FunctionGenericType::clone() const { return new FunctionGenericType(*this); }
FunctionGenericType::~FunctionGenericType() = default;
FunctionGenericType& FunctionGenericType::operator=(const FunctionGenericType& other) { FunctionGenericType copy(other); swap(copy); return *this; }
const char* FunctionGenericType::getid() const { return id; }
bool FunctionGenericType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionGenericType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionGenericType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionGenericType::swap(FunctionGenericType& other) { lmx::swap(k_class, this, &other); }
void FunctionGenericType::reset() { FunctionGenericType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionGenericType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionGenericType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
Parameters& FunctionGenericType::get_Parameters(std::size_t index) { return m_Parameters.grow_to(index); }
Parameters& FunctionGenericType::assign_Parameters(std::size_t index, const Parameters& value) { return get_Parameters(index) = value; }
lmx::elmx_error FunctionGenericType::append_Parameters() { m_Parameters.append(); return lmx::ELMX_OK; }
lmx::elmx_error FunctionGenericType::insert_Parameters(std::size_t index) { m_Parameters.insert(index); return lmx::ELMX_OK; }
void FunctionGenericType::delete_Parameters(std::size_t index) { m_Parameters.erase(index); }
void FunctionGenericType::clear_Parameters() { m_Parameters.clear(); }

// ValueChoice

constexpr s_item ValueChoice::k_items[] = {
    {item_kind::alternative, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Double", element("Double"), 0, k_no_flag},
    {item_kind::alternative, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:String", element("String"), 0, k_no_flag},
};
constinit const s_class ValueChoice::k_class = {
    .name = "ValueChoice",
    .qualified_name = "Vyr:ValueChoice",
    .content = content_kind::choice,
    .names = &k_names,
    .choice = LMX_CHOICE(ValueChoice, m_choice),
    .elements = k_items,
    .operations = &k_operations<ValueChoice>,
};

ValueChoice::ValueChoice() = default;
ValueChoice::ValueChoice(const ValueChoice& other) : ValueChoice() { lmx::copy(k_class, this, &other); }
ValueChoice::~ValueChoice() { lmx::release_choice(k_class, this); }
ValueChoice& ValueChoice::operator=(const ValueChoice& other) { ValueChoice copy(other); swap(copy); return *this; }
lmx::elmx_error ValueChoice::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ValueChoice::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ValueChoice::swap(ValueChoice& other) { lmx::swap(k_class, this, &other); }
void ValueChoice::reset() { ValueChoice fresh; lmx::exchange(k_class, this, &fresh); }
bool ValueChoice::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ValueChoice::set_Double(double value) { return lmx::set_item(k_class, k_items[item_Double], this, value); }
const std::u16string& ValueChoice::get_String() const { return lmx::chosen_text(k_class, k_items[item_String], this); }
lmx::elmx_error ValueChoice::set_String(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_String], this, value); }

// Parameters

constexpr s_item Parameters::k_items[] = {
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Vyr:Name", element("Name"), LMX_OFFSET(Parameters, m_Name, element, text), LMX_FLAG(Parameters, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ValueChoice", element("ValueChoice"), LMX_OFFSET(Parameters, m_ValueChoice, child, none), LMX_FLAG(Parameters, m_isset_ValueChoice), &ValueChoice::k_class},
};
constinit const s_class Parameters::k_class = {
    .name = "Parameters",
    .qualified_name = "Vyr:Parameters",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<Parameters>,
};

Parameters::Parameters() = default;
Parameters::Parameters(const Parameters& other) { lmx::copy(k_class, this, &other); }
Parameters::~Parameters() = default;
Parameters& Parameters::operator=(const Parameters& other) { Parameters copy(other); swap(copy); return *this; }
lmx::elmx_error Parameters::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Parameters::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Parameters::swap(Parameters& other) { lmx::swap(k_class, this, &other); }
void Parameters::reset() { Parameters fresh; lmx::exchange(k_class, this, &fresh); }
bool Parameters::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error Parameters::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ValueChoice& Parameters::assign_ValueChoice(const ValueChoice& value) { return get_ValueChoice() = value; }

// FunctionDEType

constinit const s_class FunctionDEType::k_class = {
    .name = "FunctionDEType",
    .qualified_name = "Vyr:FunctionDEType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionDEType::id,
    .operations = &k_operations<FunctionDEType>,
};

const char k_FunctionDEType_id[] = "FunctionDEType";
const char* FunctionDEType::id = k_FunctionDEType_id;
FunctionDEType::FunctionDEType() = default;
FunctionDEType::FunctionDEType(const FunctionDEType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionDEType* FunctionDEType::clone() const { return new FunctionDEType(*this); }
FunctionDEType::~FunctionDEType() = default;
FunctionDEType& FunctionDEType::operator=(const FunctionDEType& other) { FunctionDEType copy(other); swap(copy); return *this; }
const char* FunctionDEType::getid() const { return id; }
bool FunctionDEType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionDEType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionDEType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionDEType::swap(FunctionDEType& other) { lmx::swap(k_class, this, &other); }
void FunctionDEType::reset() { FunctionDEType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionDEType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionMeanDEType

constinit const s_class FunctionMeanDEType::k_class = {
    .name = "FunctionMeanDEType",
    .qualified_name = "Vyr:FunctionMeanDEType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionMeanDEType::id,
    .operations = &k_operations<FunctionMeanDEType>,
};

const char k_FunctionMeanDEType_id[] = "FunctionMeanDEType";
const char* FunctionMeanDEType::id = k_FunctionMeanDEType_id;
FunctionMeanDEType::FunctionMeanDEType() = default;
FunctionMeanDEType::FunctionMeanDEType(const FunctionMeanDEType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionMeanDEType* FunctionMeanDEType::clone() const { return new FunctionMeanDEType(*this); }
FunctionMeanDEType::~FunctionMeanDEType() = default;
FunctionMeanDEType& FunctionMeanDEType::operator=(const FunctionMeanDEType& other) { FunctionMeanDEType copy(other); swap(copy); return *this; }
const char* FunctionMeanDEType::getid() const { return id; }
bool FunctionMeanDEType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionMeanDEType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionMeanDEType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionMeanDEType::swap(FunctionMeanDEType& other) { lmx::swap(k_class, this, &other); }
void FunctionMeanDEType::reset() { FunctionMeanDEType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionMeanDEType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// FunctionDE94Type

constexpr s_item FunctionDE94Type::k_items[] = {
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Param_l", element("Param_l"), LMX_OFFSET(FunctionDE94Type, m_Param_l, element, number), LMX_FLAG(FunctionDE94Type, m_isset_Param_l), nullptr, &facets::NonNegative},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Param_c", element("Param_c"), LMX_OFFSET(FunctionDE94Type, m_Param_c, element, number), LMX_FLAG(FunctionDE94Type, m_isset_Param_c), nullptr, &facets::NonNegative},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Param_h", element("Param_h"), LMX_OFFSET(FunctionDE94Type, m_Param_h, element, number), LMX_FLAG(FunctionDE94Type, m_isset_Param_h), nullptr, &facets::NonNegative},
};
constinit const s_class FunctionDE94Type::k_class = {
    .name = "FunctionDE94Type",
    .qualified_name = "Vyr:FunctionDE94Type",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionDE94Type::id,
    .elements = k_items,
    .operations = &k_operations<FunctionDE94Type>,
};

const char k_FunctionDE94Type_id[] = "FunctionDE94Type";
const char* FunctionDE94Type::id = k_FunctionDE94Type_id;
FunctionDE94Type::FunctionDE94Type() = default;
FunctionDE94Type::FunctionDE94Type(const FunctionDE94Type& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionDE94Type* FunctionDE94Type::clone() const { return new FunctionDE94Type(*this); }
FunctionDE94Type::~FunctionDE94Type() = default;
FunctionDE94Type& FunctionDE94Type::operator=(const FunctionDE94Type& other) { FunctionDE94Type copy(other); swap(copy); return *this; }
const char* FunctionDE94Type::getid() const { return id; }
bool FunctionDE94Type::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionDE94Type::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionDE94Type::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionDE94Type::swap(FunctionDE94Type& other) { lmx::swap(k_class, this, &other); }
void FunctionDE94Type::reset() { FunctionDE94Type fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionDE94Type::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionDE94Type::set_Param_l(double value) { return lmx::set_item(k_class, k_items[item_Param_l], this, value); }
lmx::elmx_error FunctionDE94Type::set_Param_c(double value) { return lmx::set_item(k_class, k_items[item_Param_c], this, value); }
lmx::elmx_error FunctionDE94Type::set_Param_h(double value) { return lmx::set_item(k_class, k_items[item_Param_h], this, value); }

// FunctionDE2000Type

constexpr s_item FunctionDE2000Type::k_items[] = {
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Param_l", element("Param_l"), LMX_OFFSET(FunctionDE2000Type, m_Param_l, element, number), LMX_FLAG(FunctionDE2000Type, m_isset_Param_l), nullptr, &facets::NonNegative},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Param_c", element("Param_c"), LMX_OFFSET(FunctionDE2000Type, m_Param_c, element, number), LMX_FLAG(FunctionDE2000Type, m_isset_Param_c), nullptr, &facets::NonNegative},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Param_h", element("Param_h"), LMX_OFFSET(FunctionDE2000Type, m_Param_h, element, number), LMX_FLAG(FunctionDE2000Type, m_isset_Param_h), nullptr, &facets::NonNegative},
};
constinit const s_class FunctionDE2000Type::k_class = {
    .name = "FunctionDE2000Type",
    .qualified_name = "Vyr:FunctionDE2000Type",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionDE2000Type::id,
    .elements = k_items,
    .operations = &k_operations<FunctionDE2000Type>,
};

const char k_FunctionDE2000Type_id[] = "FunctionDE2000Type";
const char* FunctionDE2000Type::id = k_FunctionDE2000Type_id;
FunctionDE2000Type::FunctionDE2000Type() = default;
FunctionDE2000Type::FunctionDE2000Type(const FunctionDE2000Type& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionDE2000Type* FunctionDE2000Type::clone() const { return new FunctionDE2000Type(*this); }
FunctionDE2000Type::~FunctionDE2000Type() = default;
FunctionDE2000Type& FunctionDE2000Type::operator=(const FunctionDE2000Type& other) { FunctionDE2000Type copy(other); swap(copy); return *this; }
const char* FunctionDE2000Type::getid() const { return id; }
bool FunctionDE2000Type::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionDE2000Type::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionDE2000Type::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionDE2000Type::swap(FunctionDE2000Type& other) { lmx::swap(k_class, this, &other); }
void FunctionDE2000Type::reset() { FunctionDE2000Type fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionDE2000Type::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionDE2000Type::set_Param_l(double value) { return lmx::set_item(k_class, k_items[item_Param_l], this, value); }
lmx::elmx_error FunctionDE2000Type::set_Param_c(double value) { return lmx::set_item(k_class, k_items[item_Param_c], this, value); }
lmx::elmx_error FunctionDE2000Type::set_Param_h(double value) { return lmx::set_item(k_class, k_items[item_Param_h], this, value); }

// FunctionDEcmcType

constexpr s_item FunctionDEcmcType::k_items[] = {
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Param_l", element("Param_l"), LMX_OFFSET(FunctionDEcmcType, m_Param_l, element, number), LMX_FLAG(FunctionDEcmcType, m_isset_Param_l), nullptr, &facets::NonNegative},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Param_c", element("Param_c"), LMX_OFFSET(FunctionDEcmcType, m_Param_c, element, number), LMX_FLAG(FunctionDEcmcType, m_isset_Param_c), nullptr, &facets::NonNegative},
};
constinit const s_class FunctionDEcmcType::k_class = {
    .name = "FunctionDEcmcType",
    .qualified_name = "Vyr:FunctionDEcmcType",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionDEcmcType::id,
    .elements = k_items,
    .operations = &k_operations<FunctionDEcmcType>,
};

const char k_FunctionDEcmcType_id[] = "FunctionDEcmcType";
const char* FunctionDEcmcType::id = k_FunctionDEcmcType_id;
FunctionDEcmcType::FunctionDEcmcType() = default;
FunctionDEcmcType::FunctionDEcmcType(const FunctionDEcmcType& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionDEcmcType* FunctionDEcmcType::clone() const { return new FunctionDEcmcType(*this); }
FunctionDEcmcType::~FunctionDEcmcType() = default;
FunctionDEcmcType& FunctionDEcmcType::operator=(const FunctionDEcmcType& other) { FunctionDEcmcType copy(other); swap(copy); return *this; }
const char* FunctionDEcmcType::getid() const { return id; }
bool FunctionDEcmcType::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionDEcmcType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionDEcmcType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionDEcmcType::swap(FunctionDEcmcType& other) { lmx::swap(k_class, this, &other); }
void FunctionDEcmcType::reset() { FunctionDEcmcType fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionDEcmcType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionDEcmcType::set_Param_l(double value) { return lmx::set_item(k_class, k_items[item_Param_l], this, value); }
lmx::elmx_error FunctionDEcmcType::set_Param_c(double value) { return lmx::set_item(k_class, k_items[item_Param_c], this, value); }

// FunctionGeneric

constinit const lmx::s_document FunctionGeneric::k_document = {"Vyr:FunctionGeneric", "FunctionGeneric", k_ns_map, &lmx::k_operations<FunctionGeneric>};
FunctionGeneric::FunctionGeneric(const char* file_name, lmx::elmx_error* error) : FunctionGeneric() { *error = unmarshal(file_name); }
FunctionGeneric::FunctionGeneric(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionGeneric() { *error = unmarshal(data, size); }
FunctionGeneric::FunctionGeneric(const std::string& text, lmx::elmx_error* error) : FunctionGeneric() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionGeneric::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionGeneric::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionGeneric::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionGeneric::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionGeneric::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionGeneric::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionGeneric::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionGeneric::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionGeneric::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionGenericType::marshal(writer, name); }
lmx::elmx_error FunctionGeneric::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionGenericType::unmarshal(reader, name); }

// FunctionDE

constinit const lmx::s_document FunctionDE::k_document = {"Vyr:FunctionDE", "FunctionDE", k_ns_map, &lmx::k_operations<FunctionDE>};
FunctionDE::FunctionDE(const char* file_name, lmx::elmx_error* error) : FunctionDE() { *error = unmarshal(file_name); }
FunctionDE::FunctionDE(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionDE() { *error = unmarshal(data, size); }
FunctionDE::FunctionDE(const std::string& text, lmx::elmx_error* error) : FunctionDE() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionDE::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionDE::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionDE::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionDE::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionDE::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionDE::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionDE::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionDE::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionDE::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionDEType::marshal(writer, name); }
lmx::elmx_error FunctionDE::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionDEType::unmarshal(reader, name); }

// FunctionMeanDE

constinit const lmx::s_document FunctionMeanDE::k_document = {"Vyr:FunctionMeanDE", "FunctionMeanDE", k_ns_map, &lmx::k_operations<FunctionMeanDE>};
FunctionMeanDE::FunctionMeanDE(const char* file_name, lmx::elmx_error* error) : FunctionMeanDE() { *error = unmarshal(file_name); }
FunctionMeanDE::FunctionMeanDE(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionMeanDE() { *error = unmarshal(data, size); }
FunctionMeanDE::FunctionMeanDE(const std::string& text, lmx::elmx_error* error) : FunctionMeanDE() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionMeanDE::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionMeanDE::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionMeanDE::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionMeanDE::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionMeanDE::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionMeanDE::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionMeanDE::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionMeanDE::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionMeanDE::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionMeanDEType::marshal(writer, name); }
lmx::elmx_error FunctionMeanDE::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionMeanDEType::unmarshal(reader, name); }

// FunctionDE94

constinit const lmx::s_document FunctionDE94::k_document = {"Vyr:FunctionDE94", "FunctionDE94", k_ns_map, &lmx::k_operations<FunctionDE94>};
FunctionDE94::FunctionDE94(const char* file_name, lmx::elmx_error* error) : FunctionDE94() { *error = unmarshal(file_name); }
FunctionDE94::FunctionDE94(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionDE94() { *error = unmarshal(data, size); }
FunctionDE94::FunctionDE94(const std::string& text, lmx::elmx_error* error) : FunctionDE94() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionDE94::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionDE94::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionDE94::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionDE94::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionDE94::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionDE94::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionDE94::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionDE94::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionDE94::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionDE94Type::marshal(writer, name); }
lmx::elmx_error FunctionDE94::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionDE94Type::unmarshal(reader, name); }

// FunctionDE2000

constinit const lmx::s_document FunctionDE2000::k_document = {"Vyr:FunctionDE2000", "FunctionDE2000", k_ns_map, &lmx::k_operations<FunctionDE2000>};
FunctionDE2000::FunctionDE2000(const char* file_name, lmx::elmx_error* error) : FunctionDE2000() { *error = unmarshal(file_name); }
FunctionDE2000::FunctionDE2000(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionDE2000() { *error = unmarshal(data, size); }
FunctionDE2000::FunctionDE2000(const std::string& text, lmx::elmx_error* error) : FunctionDE2000() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionDE2000::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionDE2000::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionDE2000::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionDE2000::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionDE2000::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionDE2000::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionDE2000::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionDE2000::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionDE2000::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionDE2000Type::marshal(writer, name); }
lmx::elmx_error FunctionDE2000::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionDE2000Type::unmarshal(reader, name); }

// FunctionDECMC

constinit const lmx::s_document FunctionDECMC::k_document = {"Vyr:FunctionDECMC", "FunctionDECMC", k_ns_map, &lmx::k_operations<FunctionDECMC>};
FunctionDECMC::FunctionDECMC(const char* file_name, lmx::elmx_error* error) : FunctionDECMC() { *error = unmarshal(file_name); }
FunctionDECMC::FunctionDECMC(const char* data, std::size_t size, lmx::elmx_error* error) : FunctionDECMC() { *error = unmarshal(data, size); }
FunctionDECMC::FunctionDECMC(const std::string& text, lmx::elmx_error* error) : FunctionDECMC() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* FunctionDECMC::ns_map() { return k_ns_map; }
lmx::elmx_error FunctionDECMC::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionDECMC::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error FunctionDECMC::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error FunctionDECMC::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error FunctionDECMC::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error FunctionDECMC::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error FunctionDECMC::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error FunctionDECMC::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return FunctionDEcmcType::marshal(writer, name); }
lmx::elmx_error FunctionDECMC::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return FunctionDEcmcType::unmarshal(reader, name); }

// FunctionTolerance

constexpr s_item FunctionTolerance::k_items[] = {
    {item_kind::element, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Vyr:ToleranceType", element("ToleranceType"), LMX_OFFSET(FunctionTolerance, m_ToleranceType, element, enumerated), LMX_FLAG(FunctionTolerance, m_isset_ToleranceType), nullptr, &facets::ToleranceFormulaKind},
    {item_kind::child_list, value_kind::none, use_demanded | use_asked, ELMX_WS_PRESERVE, "Vyr:Parameters", element("Parameters"), LMX_OFFSET(FunctionTolerance, m_Parameters, child_list, none), k_no_flag, &ToleranceParameterType::k_class},
};
constinit const s_class FunctionTolerance::k_class = {
    .name = "FunctionTolerance",
    .qualified_name = "Vyr:FunctionTolerance",
    .base = &FunctionType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &FunctionTolerance::id,
    .elements = k_items,
    .operations = &k_operations<FunctionTolerance>,
};

const char k_FunctionTolerance_id[] = "FunctionTolerance";
const char* FunctionTolerance::id = k_FunctionTolerance_id;
FunctionTolerance::FunctionTolerance() = default;
FunctionTolerance::FunctionTolerance(const FunctionTolerance& other) : FunctionType() { lmx::copy(k_class, this, &other); }
FunctionTolerance* FunctionTolerance::clone() const { return new FunctionTolerance(*this); }
FunctionTolerance::~FunctionTolerance() = default;
FunctionTolerance& FunctionTolerance::operator=(const FunctionTolerance& other) { FunctionTolerance copy(other); swap(copy); return *this; }
const char* FunctionTolerance::getid() const { return id; }
bool FunctionTolerance::has_id(const char* identity) const { return identity == id || FunctionType::has_id(identity); }
lmx::elmx_error FunctionTolerance::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FunctionTolerance::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FunctionTolerance::swap(FunctionTolerance& other) { lmx::swap(k_class, this, &other); }
void FunctionTolerance::reset() { FunctionTolerance fresh; lmx::exchange(k_class, this, &fresh); }
bool FunctionTolerance::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FunctionTolerance::set_ToleranceType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ToleranceType], this, value); }
bool FunctionTolerance::setenum_ToleranceType(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_ToleranceType], this, number); }
ToleranceParameterType& FunctionTolerance::get_Parameters(std::size_t index) { return m_Parameters.grow_to(index); }
ToleranceParameterType& FunctionTolerance::assign_Parameters(std::size_t index, const ToleranceParameterType& value) { return get_Parameters(index) = value; }
lmx::elmx_error FunctionTolerance::append_Parameters() { m_Parameters.append(); return lmx::ELMX_OK; }
lmx::elmx_error FunctionTolerance::insert_Parameters(std::size_t index) { m_Parameters.insert(index); return lmx::ELMX_OK; }
void FunctionTolerance::delete_Parameters(std::size_t index) { m_Parameters.erase(index); }
void FunctionTolerance::clear_Parameters() { m_Parameters.clear(); }

// ToleranceParameterType

constexpr s_item ToleranceParameterType::k_items[] = {
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:HighValue", element("HighValue"), LMX_OFFSET(ToleranceParameterType, m_HighValue, element, number), LMX_FLAG(ToleranceParameterType, m_isset_HighValue)},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:ToleranceParameter", element("ToleranceParameter"), LMX_OFFSET(ToleranceParameterType, m_ToleranceParameter, element, enumerated), LMX_FLAG(ToleranceParameterType, m_isset_ToleranceParameter), nullptr, &facets::ToleranceParameterKind},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:LowValue", element("LowValue"), LMX_OFFSET(ToleranceParameterType, m_LowValue, element, number), LMX_FLAG(ToleranceParameterType, m_isset_LowValue)},
};
constinit const s_class ToleranceParameterType::k_class = {
    .name = "ToleranceParameterType",
    .qualified_name = "Vyr:ToleranceParameterType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<ToleranceParameterType>,
};

ToleranceParameterType::ToleranceParameterType() = default;
ToleranceParameterType::ToleranceParameterType(const ToleranceParameterType& other) { lmx::copy(k_class, this, &other); }
ToleranceParameterType::~ToleranceParameterType() = default;
ToleranceParameterType& ToleranceParameterType::operator=(const ToleranceParameterType& other) { ToleranceParameterType copy(other); swap(copy); return *this; }
lmx::elmx_error ToleranceParameterType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ToleranceParameterType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ToleranceParameterType::swap(ToleranceParameterType& other) { lmx::swap(k_class, this, &other); }
void ToleranceParameterType::reset() { ToleranceParameterType fresh; lmx::exchange(k_class, this, &fresh); }
bool ToleranceParameterType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ToleranceParameterType::set_HighValue(double value) { return lmx::set_item(k_class, k_items[item_HighValue], this, value); }
lmx::elmx_error ToleranceParameterType::set_ToleranceParameter(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ToleranceParameter], this, value); }
bool ToleranceParameterType::setenum_ToleranceParameter(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_ToleranceParameter], this, number); }
lmx::elmx_error ToleranceParameterType::set_LowValue(double value) { return lmx::set_item(k_class, k_items[item_LowValue], this, value); }

}  // namespace com_vyrgraph_v2
