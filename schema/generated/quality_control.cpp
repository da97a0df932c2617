// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in quality_control.h.

#include "schema/generated/quality_control.h"
#include "lmx/binding/binding.h"
#include "schema/generated/conditions.h"
#include "schema/generated/devices.h"
#include "schema/generated/groups.h"
#include "schema/generated/header.h"
#include "schema/generated/palettes.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// LimitsType

constexpr s_item LimitsType::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(LimitsType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:HighTolerance", element("HighTolerance"), LMX_OFFSET(LimitsType, m_HighTolerance, element, number), LMX_FLAG(LimitsType, m_isset_HighTolerance)},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:LowTolerance", element("LowTolerance"), LMX_OFFSET(LimitsType, m_LowTolerance, element, number), LMX_FLAG(LimitsType, m_isset_LowTolerance)},
};
constinit const s_class LimitsType::k_class = {
    .name = "LimitsType",
    .qualified_name = "Vyr:LimitsType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<LimitsType>,
};

LimitsType::LimitsType() = default;
LimitsType::LimitsType(const LimitsType& other) { lmx::copy(k_class, this, &other); }
LimitsType::~LimitsType() = default;
LimitsType& LimitsType::operator=(const LimitsType& other) { LimitsType copy(other); swap(copy); return *this; }
lmx::elmx_error LimitsType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error LimitsType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void LimitsType::swap(LimitsType& other) { lmx::swap(k_class, this, &other); }
void LimitsType::reset() { LimitsType fresh; lmx::exchange(k_class, this, &fresh); }
bool LimitsType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& LimitsType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& LimitsType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error LimitsType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error LimitsType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void LimitsType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void LimitsType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error LimitsType::set_HighTolerance(double value) { return lmx::set_item(k_class, k_items[item_HighTolerance], this, value); }
lmx::elmx_error LimitsType::set_LowTolerance(double value) { return lmx::set_item(k_class, k_items[item_LowTolerance], this, value); }

// ToleranceType

constexpr s_item ToleranceType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ToleranceType, m_Name, attribute, text), LMX_FLAG(ToleranceType, m_isset_Name)},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(ToleranceType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::group, value_kind::none, use_asked | use_written | use_copied | use_lax, ELMX_WS_PRESERVE, "Vyr:Function", 0, LMX_OFFSET(ToleranceType, m_Function, group, none), LMX_FLAG(ToleranceType, m_isset_Function), &sg_Function::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Limits", element("Limits"), LMX_OFFSET(ToleranceType, m_Limits, optional_child, none), LMX_FLAG(ToleranceType, m_isset_Limits), &LimitsType::k_class},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:PrimaryIlluminant", element("PrimaryIlluminant"), LMX_OFFSET(ToleranceType, m_PrimaryIlluminant, element, enumerated), LMX_FLAG(ToleranceType, m_isset_PrimaryIlluminant), nullptr, &facets::IlluminantKind},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:SecondaryIlluminant", element("SecondaryIlluminant"), LMX_OFFSET(ToleranceType, m_SecondaryIlluminant, element, enumerated), LMX_FLAG(ToleranceType, m_isset_SecondaryIlluminant), nullptr, &facets::IlluminantKind},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:TertiaryIlluminant", element("TertiaryIlluminant"), LMX_OFFSET(ToleranceType, m_TertiaryIlluminant, element, enumerated), LMX_FLAG(ToleranceType, m_isset_TertiaryIlluminant), nullptr, &facets::IlluminantKind},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:FieldOfView", element("FieldOfView"), LMX_OFFSET(ToleranceType, m_FieldOfView, element, enumerated), LMX_FLAG(ToleranceType, m_isset_FieldOfView), nullptr, &facets::ObserverKind},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:WarningLevel", element("WarningLevel"), LMX_OFFSET(ToleranceType, m_WarningLevel, element, number), LMX_FLAG(ToleranceType, m_isset_WarningLevel)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:UniqueID", element("UniqueID"), LMX_OFFSET(ToleranceType, m_UniqueID, element, text), LMX_FLAG(ToleranceType, m_isset_UniqueID)},
    {item_kind::element, value_kind::boolean, use_optional, ELMX_WS_COLLAPSE, "Vyr:Global", element("Global"), LMX_OFFSET(ToleranceType, m_Global, element, boolean), LMX_FLAG(ToleranceType, m_isset_Global)},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Geometry", element("Geometry"), LMX_OFFSET(ToleranceType, m_Geometry, optional_child, none), LMX_FLAG(ToleranceType, m_isset_Geometry), &GeometryChoiceType::k_class},
};
constinit const s_class ToleranceType::k_class = {
    .name = "ToleranceType",
    .qualified_name = "Vyr:ToleranceType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ToleranceType>,
};

ToleranceType::ToleranceType() = default;
ToleranceType::ToleranceType(const ToleranceType& other) { lmx::copy(k_class, this, &other); }
ToleranceType::~ToleranceType() = default;
ToleranceType& ToleranceType::operator=(const ToleranceType& other) { ToleranceType copy(other); swap(copy); return *this; }
lmx::elmx_error ToleranceType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ToleranceType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ToleranceType::swap(ToleranceType& other) { lmx::swap(k_class, this, &other); }
void ToleranceType::reset() { ToleranceType fresh; lmx::exchange(k_class, this, &fresh); }
bool ToleranceType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ToleranceType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
CustomAttributeType& ToleranceType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& ToleranceType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error ToleranceType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error ToleranceType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void ToleranceType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void ToleranceType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
sg_Function& ToleranceType::assign_Function(const sg_Function& value) { return get_Function() = value; }
LimitsType& ToleranceType::get_Limits() { LimitsType& child = m_Limits.touch(); m_isset_Limits = true; return child; }
const LimitsType& ToleranceType::get_Limits() const { return m_Limits.get(); }
LimitsType& ToleranceType::assign_Limits(const LimitsType& value) { return get_Limits() = value; }
lmx::elmx_error ToleranceType::set_PrimaryIlluminant(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_PrimaryIlluminant], this, value); }
bool ToleranceType::setenum_PrimaryIlluminant(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_PrimaryIlluminant], this, number); }
lmx::elmx_error ToleranceType::set_SecondaryIlluminant(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_SecondaryIlluminant], this, value); }
bool ToleranceType::setenum_SecondaryIlluminant(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_SecondaryIlluminant], this, number); }
lmx::elmx_error ToleranceType::set_TertiaryIlluminant(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_TertiaryIlluminant], this, value); }
bool ToleranceType::setenum_TertiaryIlluminant(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_TertiaryIlluminant], this, number); }
lmx::elmx_error ToleranceType::set_FieldOfView(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_FieldOfView], this, value); }
bool ToleranceType::setenum_FieldOfView(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_FieldOfView], this, number); }
lmx::elmx_error ToleranceType::set_WarningLevel(double value) { return lmx::set_item(k_class, k_items[item_WarningLevel], this, value); }
lmx::elmx_error ToleranceType::set_UniqueID(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_UniqueID], this, value); }
lmx::elmx_error ToleranceType::set_Global(bool value) { return lmx::set_item(k_class, k_items[item_Global], this, value); }
GeometryChoiceType& ToleranceType::get_Geometry() { GeometryChoiceType& child = m_Geometry.touch(); m_isset_Geometry = true; return child; }
const GeometryChoiceType& ToleranceType::get_Geometry() const { return m_Geometry.get(); }
GeometryChoiceType& ToleranceType::assign_Geometry(const GeometryChoiceType& value) { return get_Geometry() = value; }

// Process

constexpr s_item Process::k_items[] = {
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Vyr:Name", element("Name"), LMX_OFFSET(Process, m_Name, element, text), LMX_FLAG(Process, m_isset_Name), nullptr, &facets::NonEmptyString},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Thickness", element("Thickness"), LMX_OFFSET(Process, m_Thickness, element, number), LMX_FLAG(Process, m_isset_Thickness), nullptr, &facets::NonNegative},
};
constinit const s_class Process::k_class = {
    .name = "Process",
    .qualified_name = "Vyr:Process",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<Process>,
};

Process::Process() = default;
Process::Process(const Process& other) { lmx::copy(k_class, this, &other); }
Process::~Process() = default;
Process& Process::operator=(const Process& other) { Process copy(other); swap(copy); return *this; }
lmx::elmx_error Process::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Process::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Process::swap(Process& other) { lmx::swap(k_class, this, &other); }
void Process::reset() { Process fresh; lmx::exchange(k_class, this, &fresh); }
bool Process::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error Process::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
lmx::elmx_error Process::set_Thickness(double value) { return lmx::set_item(k_class, k_items[item_Thickness], this, value); }

// PhysicalSampleType

constexpr s_item PhysicalSampleType::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(PhysicalSampleType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:Coating", element("Coating"), LMX_OFFSET(PhysicalSampleType, m_Coating, element, text), LMX_FLAG(PhysicalSampleType, m_isset_Coating)},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Process", element("Process"), LMX_OFFSET(PhysicalSampleType, m_Process, optional_child, none), LMX_FLAG(PhysicalSampleType, m_isset_Process), &Process::k_class},
    {item_kind::group, value_kind::none, use_asked | use_written | use_copied | use_lax, ELMX_WS_PRESERVE, "Vyr:Sample", 0, LMX_OFFSET(PhysicalSampleType, m_Sample, group, none), LMX_FLAG(PhysicalSampleType, m_isset_Sample), &sg_Sample::k_class},
};
constinit const s_class PhysicalSampleType::k_class = {
    .name = "PhysicalSampleType",
    .qualified_name = "Vyr:PhysicalSampleType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<PhysicalSampleType>,
};

PhysicalSampleType::PhysicalSampleType() = default;
PhysicalSampleType::PhysicalSampleType(const PhysicalSampleType& other) { lmx::copy(k_class, this, &other); }
PhysicalSampleType::~PhysicalSampleType() = default;
PhysicalSampleType& PhysicalSampleType::operator=(const PhysicalSampleType& other) { PhysicalSampleType copy(other); swap(copy); return *this; }
lmx::elmx_error PhysicalSampleType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error PhysicalSampleType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void PhysicalSampleType::swap(PhysicalSampleType& other) { lmx::swap(k_class, this, &other); }
void PhysicalSampleType::reset() { PhysicalSampleType fresh; lmx::exchange(k_class, this, &fresh); }
bool PhysicalSampleType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& PhysicalSampleType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& PhysicalSampleType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error PhysicalSampleType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error PhysicalSampleType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void PhysicalSampleType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void PhysicalSampleType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error PhysicalSampleType::set_Coating(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Coating], this, value); }
Process& PhysicalSampleType::get_Process() { Process& child = m_Process.touch(); m_isset_Process = true; return child; }
const Process& PhysicalSampleType::get_Process() const { return m_Process.get(); }
Process& PhysicalSampleType::assign_Process(const Process& value) { return get_Process() = value; }
sg_Sample& PhysicalSampleType::assign_Sample(const sg_Sample& value) { return get_Sample() = value; }

// ColorQualityControlType

constexpr s_item ColorQualityControlType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorQualityControlType, m_Name, attribute, text), LMX_FLAG(ColorQualityControlType, m_isset_Name)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Description", attribute("Description"), LMX_OFFSET(ColorQualityControlType, m_Description, attribute, text), LMX_FLAG(ColorQualityControlType, m_isset_Description)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "UniqueID", attribute("UniqueID"), LMX_OFFSET(ColorQualityControlType, m_UniqueID, attribute, text), LMX_FLAG(ColorQualityControlType, m_isset_UniqueID)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Comments", attribute("Comments"), LMX_OFFSET(ColorQualityControlType, m_Comments, attribute, text), LMX_FLAG(ColorQualityControlType, m_isset_Comments)},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(ColorQualityControlType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element_list, value_kind::datetime, use_demanded | use_asked, ELMX_WS_COLLAPSE, "Vyr:ChangeHistory", element("ChangeHistory"), LMX_OFFSET(ColorQualityControlType, m_ChangeHistory, element_list, datetime), k_no_flag, nullptr, &facets::DateTimeZone},
    {item_kind::child_list, value_kind::none, use_demanded | use_asked, ELMX_WS_PRESERVE, "Vyr:StandardAndMeasurement", element("StandardAndMeasurement"), LMX_OFFSET(ColorQualityControlType, m_StandardAndMeasurement, child_list, none), k_no_flag, &StandardAndMeasurementType::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:PhysicalSample", element("PhysicalSample"), LMX_OFFSET(ColorQualityControlType, m_PhysicalSample, optional_child, none), LMX_FLAG(ColorQualityControlType, m_isset_PhysicalSample), &PhysicalSampleType::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Tolerance", element("Tolerance"), LMX_OFFSET(ColorQualityControlType, m_Tolerance, child_list, none), k_no_flag, &ToleranceType::k_class},
};
constinit const s_class ColorQualityControlType::k_class = {
    .name = "ColorQualityControlType",
    .qualified_name = "Vyr:ColorQualityControlType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorQualityControlType>,
};

ColorQualityControlType::ColorQualityControlType() = default;
ColorQualityControlType::ColorQualityControlType(const ColorQualityControlType& other) { lmx::copy(k_class, this, &other); }
ColorQualityControlType::~ColorQualityControlType() = default;
ColorQualityControlType& ColorQualityControlType::operator=(const ColorQualityControlType& other) { ColorQualityControlType copy(other); swap(copy); return *this; }
lmx::elmx_error ColorQualityControlType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorQualityControlType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorQualityControlType::swap(ColorQualityControlType& other) { lmx::swap(k_class, this, &other); }
void ColorQualityControlType::reset() { ColorQualityControlType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorQualityControlType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorQualityControlType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
lmx::elmx_error ColorQualityControlType::set_Description(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Description], this, value); }
lmx::elmx_error ColorQualityControlType::set_UniqueID(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_UniqueID], this, value); }
lmx::elmx_error ColorQualityControlType::set_Comments(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Comments], this, value); }
CustomAttributeType& ColorQualityControlType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& ColorQualityControlType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error ColorQualityControlType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorQualityControlType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void ColorQualityControlType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void ColorQualityControlType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error ColorQualityControlType::set_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::set_entry(k_items[item_ChangeHistory], this, index, value); }
lmx::elmx_error ColorQualityControlType::append_ChangeHistory(const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, size_ChangeHistory(), value); }
lmx::elmx_error ColorQualityControlType::insert_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, index, value); }
void ColorQualityControlType::delete_ChangeHistory(std::size_t index) { m_ChangeHistory.erase(index); }
void ColorQualityControlType::clear_ChangeHistory() { m_ChangeHistory.clear(); }
StandardAndMeasurementType& ColorQualityControlType::get_StandardAndMeasurement(std::size_t index) { return m_StandardAndMeasurement.grow_to(index); }
StandardAndMeasurementType& ColorQualityControlType::assign_StandardAndMeasurement(std::size_t index, const StandardAndMeasurementType& value) { return get_StandardAndMeasurement(index) = value; }
lmx::elmx_error ColorQualityControlType::append_StandardAndMeasurement() { m_StandardAndMeasurement.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorQualityControlType::insert_StandardAndMeasurement(std::size_t index) { m_StandardAndMeasurement.insert(index); return lmx::ELMX_OK; }
void ColorQualityControlType::delete_StandardAndMeasurement(std::size_t index) { m_StandardAndMeasurement.erase(index); }
void ColorQualityControlType::clear_StandardAndMeasurement() { m_StandardAndMeasurement.clear(); }
PhysicalSampleType& ColorQualityControlType::get_PhysicalSample() { PhysicalSampleType& child = m_PhysicalSample.touch(); m_isset_PhysicalSample = true; return child; }
const PhysicalSampleType& ColorQualityControlType::get_PhysicalSample() const { return m_PhysicalSample.get(); }
PhysicalSampleType& ColorQualityControlType::assign_PhysicalSample(const PhysicalSampleType& value) { return get_PhysicalSample() = value; }
ToleranceType& ColorQualityControlType::get_Tolerance(std::size_t index) { return m_Tolerance.grow_to(index); }
ToleranceType& ColorQualityControlType::assign_Tolerance(std::size_t index, const ToleranceType& value) { return get_Tolerance(index) = value; }
lmx::elmx_error ColorQualityControlType::append_Tolerance() { m_Tolerance.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorQualityControlType::insert_Tolerance(std::size_t index) { m_Tolerance.insert(index); return lmx::ELMX_OK; }
void ColorQualityControlType::delete_Tolerance(std::size_t index) { m_Tolerance.erase(index); }
void ColorQualityControlType::clear_Tolerance() { m_Tolerance.clear(); }

// Measurement

constexpr s_item Measurement::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(Measurement, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Device", element("Device"), LMX_OFFSET(Measurement, m_Device, child, none), LMX_FLAG(Measurement, m_isset_Device), &DeviceType::k_class},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Color", element("Color"), LMX_OFFSET(Measurement, m_Color, child, none), LMX_FLAG(Measurement, m_isset_Color), &ColorType::k_class},
    {item_kind::group_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Function", 0, LMX_OFFSET(Measurement, m_Function, group_list, none), k_no_flag, &sg_Function::k_class},
};
constinit const s_class Measurement::k_class = {
    .name = "Measurement",
    .qualified_name = "Vyr:Measurement",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<Measurement>,
};

constinit const lmx::s_document Measurement::k_document = {"Vyr:Measurement", "Measurement", k_ns_map, &lmx::k_operations<Measurement>};
Measurement::Measurement() = default;
Measurement::Measurement(const Measurement& other) { lmx::copy(k_class, this, &other); }
Measurement::Measurement(const char* file_name, lmx::elmx_error* error) : Measurement() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(file_name); }
Measurement::Measurement(const char* data, std::size_t size, lmx::elmx_error* error) : Measurement() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(data, size); }
Measurement::Measurement(const std::string& text, lmx::elmx_error* error) : Measurement() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(text.data(), text.size()); }
Measurement::~Measurement() = default;
Measurement& Measurement::operator=(const Measurement& other) { Measurement copy(other); swap(copy); return *this; }
const lmx::s_ns_map* Measurement::ns_map() { return k_ns_map; }
lmx::elmx_error Measurement::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error Measurement::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error Measurement::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error Measurement::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error Measurement::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error Measurement::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error Measurement::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error Measurement::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Measurement::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Measurement::swap(Measurement& other) { lmx::swap(k_class, this, &other); }
void Measurement::reset() { Measurement fresh; lmx::exchange(k_class, this, &fresh); }
bool Measurement::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& Measurement::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& Measurement::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error Measurement::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error Measurement::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void Measurement::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void Measurement::clear_CustomAttribute() { m_CustomAttribute.clear(); }
DeviceType& Measurement::assign_Device(const DeviceType& value) { return get_Device() = value; }
ColorType& Measurement::assign_Color(const ColorType& value) { return get_Color() = value; }
sg_Function& Measurement::get_Function(std::size_t index) { return m_Function.grow_to(index); }
sg_Function& Measurement::assign_Function(std::size_t index, const sg_Function& value) { return get_Function(index) = value; }
lmx::elmx_error Measurement::append_Function() { m_Function.append(); return lmx::ELMX_OK; }
lmx::elmx_error Measurement::insert_Function(std::size_t index) { m_Function.insert(index); return lmx::ELMX_OK; }
void Measurement::delete_Function(std::size_t index) { m_Function.erase(index); }
void Measurement::clear_Function() { m_Function.clear(); }

// Standard

constexpr s_item Standard::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(Standard, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Device", element("Device"), LMX_OFFSET(Standard, m_Device, child, none), LMX_FLAG(Standard, m_isset_Device), &DeviceType::k_class},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Color", element("Color"), LMX_OFFSET(Standard, m_Color, child, none), LMX_FLAG(Standard, m_isset_Color), &ColorType::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Tolerance", element("Tolerance"), LMX_OFFSET(Standard, m_Tolerance, child_list, none), k_no_flag, &ToleranceType::k_class},
};
constinit const s_class Standard::k_class = {
    .name = "Standard",
    .qualified_name = "Vyr:Standard",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .nil_flag = LMX_FLAG(Standard, m_isnil),
    .elements = k_items,
    .operations = &k_operations<Standard>,
};

constinit const lmx::s_document Standard::k_document = {"Vyr:Standard", "Standard", k_ns_map, &lmx::k_operations<Standard>};
Standard::Standard() = default;
Standard::Standard(const Standard& other) { lmx::copy(k_class, this, &other); }
Standard::Standard(const char* file_name, lmx::elmx_error* error) : Standard() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(file_name); }
Standard::Standard(const char* data, std::size_t size, lmx::elmx_error* error) : Standard() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(data, size); }
Standard::Standard(const std::string& text, lmx::elmx_error* error) : Standard() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(text.data(), text.size()); }
Standard::~Standard() = default;
Standard& Standard::operator=(const Standard& other) { Standard copy(other); swap(copy); return *this; }
const lmx::s_ns_map* Standard::ns_map() { return k_ns_map; }
lmx::elmx_error Standard::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error Standard::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error Standard::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error Standard::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error Standard::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error Standard::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error Standard::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error Standard::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Standard::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Standard::swap(Standard& other) { lmx::swap(k_class, this, &other); }
void Standard::reset() { Standard fresh; lmx::exchange(k_class, this, &fresh); }
bool Standard::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& Standard::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& Standard::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error Standard::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error Standard::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void Standard::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void Standard::clear_CustomAttribute() { m_CustomAttribute.clear(); }
DeviceType& Standard::assign_Device(const DeviceType& value) { return get_Device() = value; }
ColorType& Standard::assign_Color(const ColorType& value) { return get_Color() = value; }
ToleranceType& Standard::get_Tolerance(std::size_t index) { return m_Tolerance.grow_to(index); }
ToleranceType& Standard::assign_Tolerance(std::size_t index, const ToleranceType& value) { return get_Tolerance(index) = value; }
lmx::elmx_error Standard::append_Tolerance() { m_Tolerance.append(); return lmx::ELMX_OK; }
lmx::elmx_error Standard::insert_Tolerance(std::size_t index) { m_Tolerance.insert(index); return lmx::ELMX_OK; }
void Standard::delete_Tolerance(std::size_t index) { m_Tolerance.erase(index); }
void Standard::clear_Tolerance() { m_Tolerance.clear(); }

// StandardAndMeasurementType

constexpr s_item StandardAndMeasurementType::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(StandardAndMeasurementType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Measurement", element("Measurement"), LMX_OFFSET(StandardAndMeasurementType, m_Measurement, child_list, none), k_no_flag, &Measurement::k_class},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Standard", element("Standard"), LMX_OFFSET(StandardAndMeasurementType, m_Standard, child, none), LMX_FLAG(StandardAndMeasurementType, m_isset_Standard), &Standard::k_class},
};
constinit const s_class StandardAndMeasurementType::k_class = {
    .name = "StandardAndMeasurementType",
    .qualified_name = "Vyr:StandardAndMeasurementType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<StandardAndMeasurementType>,
};

StandardAndMeasurementType::StandardAndMeasurementType() = default;
StandardAndMeasurementType::StandardAndMeasurementType(const StandardAndMeasurementType& other) { lmx::copy(k_class, this, &other); }
StandardAndMeasurementType::~StandardAndMeasurementType() = default;
StandardAndMeasurementType& StandardAndMeasurementType::operator=(const StandardAndMeasurementType& other) { StandardAndMeasurementType copy(other); swap(copy); return *this; }
lmx::elmx_error StandardAndMeasurementType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error StandardAndMeasurementType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void StandardAndMeasurementType::swap(StandardAndMeasurementType& other) { lmx::swap(k_class, this, &other); }
void StandardAndMeasurementType::reset() { StandardAndMeasurementType fresh; lmx::exchange(k_class, this, &fresh); }
bool StandardAndMeasurementType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& StandardAndMeasurementType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& StandardAndMeasurementType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error StandardAndMeasurementType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error StandardAndMeasurementType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void StandardAndMeasurementType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void StandardAndMeasurementType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
Measurement& StandardAndMeasurementType::get_Measurement(std::size_t index) { return m_Measurement.grow_to(index); }
Measurement& StandardAndMeasurementType::assign_Measurement(std::size_t index, const Measurement& value) { return get_Measurement(index) = value; }
lmx::elmx_error StandardAndMeasurementType::append_Measurement() { m_Measurement.append(); return lmx::ELMX_OK; }
lmx::elmx_error StandardAndMeasurementType::insert_Measurement(std::size_t index) { m_Measurement.insert(index); return lmx::ELMX_OK; }
void StandardAndMeasurementType::delete_Measurement(std::size_t index) { m_Measurement.erase(index); }
void StandardAndMeasurementType::clear_Measurement() { m_Measurement.clear(); }
Standard& StandardAndMeasurementType::assign_Standard(const Standard& value) { return get_Standard() = value; }

}  // namespace com_vyrgraph_v2
