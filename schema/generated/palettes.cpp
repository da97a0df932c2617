// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in palettes.h.

#include "schema/generated/palettes.h"
#include "lmx/binding/binding.h"
#include "schema/generated/conditions.h"
#include "schema/generated/groups.h"
#include "schema/generated/header.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// CollectionColorSpaceSpecificationType

constexpr s_item CollectionColorSpaceSpecificationType::k_items[] = {
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(CollectionColorSpaceSpecificationType, m_ColorSpaceSpecificationSpectrumGeneric, optional_child, none), LMX_FLAG(CollectionColorSpaceSpecificationType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumSpectral", element("ColorSpaceSpecificationSpectrumSpectral"), LMX_OFFSET(CollectionColorSpaceSpecificationType, m_ColorSpaceSpecificationSpectrumSpectral, optional_child, none), LMX_FLAG(CollectionColorSpaceSpecificationType, m_isset_ColorSpaceSpecificationSpectrumSpectral), &ColorSpaceSpecificationSpectrumSpectral::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumTristimulus", element("ColorSpaceSpecificationSpectrumTristimulus"), LMX_OFFSET(CollectionColorSpaceSpecificationType, m_ColorSpaceSpecificationSpectrumTristimulus, optional_child, none), LMX_FLAG(CollectionColorSpaceSpecificationType, m_isset_ColorSpaceSpecificationSpectrumTristimulus), &ColorSpaceSpecificationSpectrumTristimulus::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationEmissiveGeneric", element("ColorSpaceSpecificationEmissiveGeneric"), LMX_OFFSET(CollectionColorSpaceSpecificationType, m_ColorSpaceSpecificationEmissiveGeneric, optional_child, none), LMX_FLAG(CollectionColorSpaceSpecificationType, m_isset_ColorSpaceSpecificationEmissiveGeneric), &ColorSpaceSpecificationEmissiveGeneric::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationEmissiveSpectral", element("ColorSpaceSpecificationEmissiveSpectral"), LMX_OFFSET(CollectionColorSpaceSpecificationType, m_ColorSpaceSpecificationEmissiveSpectral, optional_child, none), LMX_FLAG(CollectionColorSpaceSpecificationType, m_isset_ColorSpaceSpecificationEmissiveSpectral), &ColorSpaceSpecificationEmissiveSpectral::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationEmissiveTristimulus", element("ColorSpaceSpecificationEmissiveTristimulus"), LMX_OFFSET(CollectionColorSpaceSpecificationType, m_ColorSpaceSpecificationEmissiveTristimulus, optional_child, none), LMX_FLAG(CollectionColorSpaceSpecificationType, m_isset_ColorSpaceSpecificationEmissiveTristimulus), &ColorSpaceSpecificationEmissiveTristimulus::k_class},
};
constinit const s_class CollectionColorSpaceSpecificationType::k_class = {
    .name = "CollectionColorSpaceSpecificationType",
    .qualified_name = "Vyr:CollectionColorSpaceSpecificationType",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<CollectionColorSpaceSpecificationType>,
};

CollectionColorSpaceSpecificationType::CollectionColorSpaceSpecificationType() = default;
CollectionColorSpaceSpecificationType::CollectionColorSpaceSpecificationType(const CollectionColorSpaceSpecificationType& other) { lmx::copy(k_class, this, &other); }
CollectionColorSpaceSpecificationType::~CollectionColorSpaceSpecificationType() = default;
CollectionColorSpaceSpecificationType& CollectionColorSpaceSpecificationType::operator=(const CollectionColorSpaceSpecificationType& other) { CollectionColorSpaceSpecificationType copy(other); swap(copy); return *this; }
lmx::elmx_error CollectionColorSpaceSpecificationType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error CollectionColorSpaceSpecificationType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void CollectionColorSpaceSpecificationType::swap(CollectionColorSpaceSpecificationType& other) { lmx::swap(k_class, this, &other); }
void CollectionColorSpaceSpecificationType::reset() { CollectionColorSpaceSpecificationType fresh; lmx::exchange(k_class, this, &fresh); }
bool CollectionColorSpaceSpecificationType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
ColorSpaceSpecificationSpectrumGeneric& CollectionColorSpaceSpecificationType::get_ColorSpaceSpecificationSpectrumGeneric() { ColorSpaceSpecificationSpectrumGeneric& child = m_ColorSpaceSpecificationSpectrumGeneric.touch(); m_isset_ColorSpaceSpecificationSpectrumGeneric = true; return child; }
const ColorSpaceSpecificationSpectrumGeneric& CollectionColorSpaceSpecificationType::get_ColorSpaceSpecificationSpectrumGeneric() const { return m_ColorSpaceSpecificationSpectrumGeneric.get(); }
ColorSpaceSpecificationSpectrumGeneric& CollectionColorSpaceSpecificationType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
ColorSpaceSpecificationSpectrumSpectral& CollectionColorSpaceSpecificationType::get_ColorSpaceSpecificationSpectrumSpectral() { ColorSpaceSpecificationSpectrumSpectral& child = m_ColorSpaceSpecificationSpectrumSpectral.touch(); m_isset_ColorSpaceSpecificationSpectrumSpectral = true; return child; }
const ColorSpaceSpecificationSpectrumSpectral& CollectionColorSpaceSpecificationType::get_ColorSpaceSpecificationSpectrumSpectral() const { return m_ColorSpaceSpecificationSpectrumSpectral.get(); }
ColorSpaceSpecificationSpectrumSpectral& CollectionColorSpaceSpecificationType::assign_ColorSpaceSpecificationSpectrumSpectral(const ColorSpaceSpecificationSpectrumSpectral& value) { return get_ColorSpaceSpecificationSpectrumSpectral() = value; }
ColorSpaceSpecificationSpectrumTristimulus& CollectionColorSpaceSpecificationType::get_ColorSpaceSpecificationSpectrumTristimulus() { ColorSpaceSpecificationSpectrumTristimulus& child = m_ColorSpaceSpecificationSpectrumTristimulus.touch(); m_isset_ColorSpaceSpecificationSpectrumTristimulus = true; return child; }
const ColorSpaceSpecificationSpectrumTristimulus& CollectionColorSpaceSpecificationType::get_ColorSpaceSpecificationSpectrumTristimulus() const { return m_ColorSpaceSpecificationSpectrumTristimulus.get(); }
ColorSpaceSpecificationSpectrumTristimulus& CollectionColorSpaceSpecificationType::assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value) { return get_ColorSpaceSpecificationSpectrumTristimulus() = value; }
ColorSpaceSpecificationEmissiveGeneric& CollectionColorSpaceSpecificationType::get_ColorSpaceSpecificationEmissiveGeneric() { ColorSpaceSpecificationEmissiveGeneric& child = m_ColorSpaceSpecificationEmissiveGeneric.touch(); m_isset_ColorSpaceSpecificationEmissiveGeneric = true; return child; }
const ColorSpaceSpecificationEmissiveGeneric& CollectionColorSpaceSpecificationType::get_ColorSpaceSpecificationEmissiveGeneric() const { return m_ColorSpaceSpecificationEmissiveGeneric.get(); }
ColorSpaceSpecificationEmissiveGeneric& CollectionColorSpaceSpecificationType::assign_ColorSpaceSpecificationEmissiveGeneric(const ColorSpaceSpecificationEmissiveGeneric& value) { return get_ColorSpaceSpecificationEmissiveGeneric() = value; }
ColorSpaceSpecificationEmissiveSpectral& CollectionColorSpaceSpecificationType::get_ColorSpaceSpecificationEmissiveSpectral() { ColorSpaceSpecificationEmissiveSpectral& child = m_ColorSpaceSpecificationEmissiveSpectral.touch(); m_isset_ColorSpaceSpecificationEmissiveSpectral = true; return child; }
const ColorSpaceSpecificationEmissiveSpectral& CollectionColorSpaceSpecificationType::get_ColorSpaceSpecificationEmissiveSpectral() const { return m_ColorSpaceSpecificationEmissiveSpectral.get(); }
ColorSpaceSpecificationEmissiveSpectral& CollectionColorSpaceSpecificationType::assign_ColorSpaceSpecificationEmissiveSpectral(const ColorSpaceSpecificationEmissiveSpectral& value) { return get_ColorSpaceSpecificationEmissiveSpectral() = value; }
ColorSpaceSpecificationEmissiveTristimulus& CollectionColorSpaceSpecificationType::get_ColorSpaceSpecificationEmissiveTristimulus() { ColorSpaceSpecificationEmissiveTristimulus& child = m_ColorSpaceSpecificationEmissiveTristimulus.touch(); m_isset_ColorSpaceSpecificationEmissiveTristimulus = true; return child; }
const ColorSpaceSpecificationEmissiveTristimulus& CollectionColorSpaceSpecificationType::get_ColorSpaceSpecificationEmissiveTristimulus() const { return m_ColorSpaceSpecificationEmissiveTristimulus.get(); }
ColorSpaceSpecificationEmissiveTristimulus& CollectionColorSpaceSpecificationType::assign_ColorSpaceSpecificationEmissiveTristimulus(const ColorSpaceSpecificationEmissiveTristimulus& value) { return get_ColorSpaceSpecificationEmissiveTristimulus() = value; }

// PaletteType

constexpr s_item PaletteType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "PaletteName", attribute("PaletteName"), LMX_OFFSET(PaletteType, m_PaletteName, attribute, text), LMX_FLAG(PaletteType, m_isset_PaletteName)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "PalettePartNumber", attribute("PalettePartNumber"), LMX_OFFSET(PaletteType, m_PalettePartNumber, attribute, text), LMX_FLAG(PaletteType, m_isset_PalettePartNumber)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "PaletteVersion", attribute("PaletteVersion"), LMX_OFFSET(PaletteType, m_PaletteVersion, attribute, text), LMX_FLAG(PaletteType, m_isset_PaletteVersion)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "UniqueID", attribute("UniqueID"), LMX_OFFSET(PaletteType, m_UniqueID, attribute, text), LMX_FLAG(PaletteType, m_isset_UniqueID)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Comments", attribute("Comments"), LMX_OFFSET(PaletteType, m_Comments, attribute, text), LMX_FLAG(PaletteType, m_isset_Comments)},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(PaletteType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element_list, value_kind::datetime, use_demanded | use_asked, ELMX_WS_COLLAPSE, "Vyr:ChangeHistory", element("ChangeHistory"), LMX_OFFSET(PaletteType, m_ChangeHistory, element_list, datetime), k_no_flag, nullptr, &facets::DateTimeZone},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Owner", element("Owner"), LMX_OFFSET(PaletteType, m_Owner, optional_child, none), LMX_FLAG(PaletteType, m_isset_Owner), &OwnerType::k_class},
    {item_kind::element_list, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:SemanticAssociation", element("SemanticAssociation"), LMX_OFFSET(PaletteType, m_SemanticAssociation, element_list, text), k_no_flag},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CollectionColorSpaceSpecification", element("CollectionColorSpaceSpecification"), LMX_OFFSET(PaletteType, m_CollectionColorSpaceSpecification, optional_child, none), LMX_FLAG(PaletteType, m_isset_CollectionColorSpaceSpecification), &CollectionColorSpaceSpecificationType::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSet", element("ColorSet"), LMX_OFFSET(PaletteType, m_ColorSet, child_list, none), k_no_flag, &ColorSetType::k_class},
};
constinit const s_class PaletteType::k_class = {
    .name = "PaletteType",
    .qualified_name = "Vyr:PaletteType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<PaletteType>,
};

PaletteType::PaletteType() = default;
PaletteType::PaletteType(const PaletteType& other) { lmx::copy(k_class, this, &other); }
PaletteType::~PaletteType() = default;
PaletteType& PaletteType::operator=(const PaletteType& other) { PaletteType copy(other); swap(copy); return *this; }
lmx::elmx_error PaletteType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error PaletteType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void PaletteType::swap(PaletteType& other) { lmx::swap(k_class, this, &other); }
void PaletteType::reset() { PaletteType fresh; lmx::exchange(k_class, this, &fresh); }
bool PaletteType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error PaletteType::set_PaletteName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_PaletteName], this, value); }
lmx::elmx_error PaletteType::set_PalettePartNumber(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_PalettePartNumber], this, value); }
lmx::elmx_error PaletteType::set_PaletteVersion(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_PaletteVersion], this, value); }
lmx::elmx_error PaletteType::set_UniqueID(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_UniqueID], this, value); }
lmx::elmx_error PaletteType::set_Comments(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Comments], this, value); }
CustomAttributeType& PaletteType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& PaletteType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error PaletteType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error PaletteType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void PaletteType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void PaletteType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error PaletteType::set_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::set_entry(k_items[item_ChangeHistory], this, index, value); }
lmx::elmx_error PaletteType::append_ChangeHistory(const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, size_ChangeHistory(), value); }
lmx::elmx_error PaletteType::insert_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, index, value); }
void PaletteType::delete_ChangeHistory(std::size_t index) { m_ChangeHistory.erase(index); }
void PaletteType::clear_ChangeHistory() { m_ChangeHistory.clear(); }
OwnerType& PaletteType::get_Owner() { OwnerType& child = m_Owner.touch(); m_isset_Owner = true; return child; }
const OwnerType& PaletteType::get_Owner() const { return m_Owner.get(); }
OwnerType& PaletteType::assign_Owner(const OwnerType& value) { return get_Owner() = value; }
lmx::elmx_error PaletteType::set_SemanticAssociation(std::size_t index, const std::u16string& value) { return lmx::set_entry(k_items[item_SemanticAssociation], this, index, value); }
lmx::elmx_error PaletteType::append_SemanticAssociation(const std::u16string& value) { return lmx::insert_entry(k_items[item_SemanticAssociation], this, size_SemanticAssociation(), value); }
lmx::elmx_error PaletteType::insert_SemanticAssociation(std::size_t index, const std::u16string& value) { return lmx::insert_entry(k_items[item_SemanticAssociation], this, index, value); }
void PaletteType::delete_SemanticAssociation(std::size_t index) { m_SemanticAssociation.erase(index); }
void PaletteType::clear_SemanticAssociation() { m_SemanticAssociation.clear(); }
CollectionColorSpaceSpecificationType& PaletteType::get_CollectionColorSpaceSpecification() { CollectionColorSpaceSpecificationType& child = m_CollectionColorSpaceSpecification.touch(); m_isset_CollectionColorSpaceSpecification = true; return child; }
const CollectionColorSpaceSpecificationType& PaletteType::get_CollectionColorSpaceSpecification() const { return m_CollectionColorSpaceSpecification.get(); }
CollectionColorSpaceSpecificationType& PaletteType::assign_CollectionColorSpaceSpecification(const CollectionColorSpaceSpecificationType& value) { return get_CollectionColorSpaceSpecification() = value; }
ColorSetType& PaletteType::get_ColorSet(std::size_t index) { return m_ColorSet.grow_to(index); }
ColorSetType& PaletteType::assign_ColorSet(std::size_t index, const ColorSetType& value) { return get_ColorSet(index) = value; }
lmx::elmx_error PaletteType::append_ColorSet() { m_ColorSet.append(); return lmx::ELMX_OK; }
lmx::elmx_error PaletteType::insert_ColorSet(std::size_t index) { m_ColorSet.insert(index); return lmx::ELMX_OK; }
void PaletteType::delete_ColorSet(std::size_t index) { m_ColorSet.erase(index); }
void PaletteType::clear_ColorSet() { m_ColorSet.clear(); }

// ColorSetType

constexpr s_item ColorSetType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "ColorSetName", attribute("ColorSetName"), LMX_OFFSET(ColorSetType, m_ColorSetName, attribute, text), LMX_FLAG(ColorSetType, m_isset_ColorSetName)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "UniqueID", attribute("UniqueID"), LMX_OFFSET(ColorSetType, m_UniqueID, attribute, text), LMX_FLAG(ColorSetType, m_isset_UniqueID)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "PartNumber", attribute("PartNumber"), LMX_OFFSET(ColorSetType, m_PartNumber, attribute, text), LMX_FLAG(ColorSetType, m_isset_PartNumber)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Comments", attribute("Comments"), LMX_OFFSET(ColorSetType, m_Comments, attribute, text), LMX_FLAG(ColorSetType, m_isset_Comments)},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(ColorSetType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element_list, value_kind::datetime, use_demanded | use_asked, ELMX_WS_COLLAPSE, "Vyr:ChangeHistory", element("ChangeHistory"), LMX_OFFSET(ColorSetType, m_ChangeHistory, element_list, datetime), k_no_flag, nullptr, &facets::DateTimeZone},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Owner", element("Owner"), LMX_OFFSET(ColorSetType, m_Owner, optional_child, none), LMX_FLAG(ColorSetType, m_isset_Owner), &OwnerType::k_class},
    {item_kind::element_list, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:SemanticAssociation", element("SemanticAssociation"), LMX_OFFSET(ColorSetType, m_SemanticAssociation, element_list, text), k_no_flag},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CollectionColorSpaceSpecification", element("CollectionColorSpaceSpecification"), LMX_OFFSET(ColorSetType, m_CollectionColorSpaceSpecification, optional_child, none), LMX_FLAG(ColorSetType, m_isset_CollectionColorSpaceSpecification), &CollectionColorSpaceSpecificationType::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Color", element("Color"), LMX_OFFSET(ColorSetType, m_Color, child_list, none), k_no_flag, &ColorType::k_class},
    {item_kind::group, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Substrate", 0, LMX_OFFSET(ColorSetType, m_Substrate, group, none), LMX_FLAG(ColorSetType, m_isset_Substrate), &sg_Substrate::k_class},
};
constinit const s_class ColorSetType::k_class = {
    .name = "ColorSetType",
    .qualified_name = "Vyr:ColorSetType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSetType>,
};

ColorSetType::ColorSetType() = default;
ColorSetType::ColorSetType(const ColorSetType& other) { lmx::copy(k_class, this, &other); }
ColorSetType::~ColorSetType() = default;
ColorSetType& ColorSetType::operator=(const ColorSetType& other) { ColorSetType copy(other); swap(copy); return *this; }
lmx::elmx_error ColorSetType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSetType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSetType::swap(ColorSetType& other) { lmx::swap(k_class, this, &other); }
void ColorSetType::reset() { ColorSetType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSetType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSetType::set_ColorSetName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ColorSetName], this, value); }
lmx::elmx_error ColorSetType::set_UniqueID(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_UniqueID], this, value); }
lmx::elmx_error ColorSetType::set_PartNumber(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_PartNumber], this, value); }
lmx::elmx_error ColorSetType::set_Comments(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Comments], this, value); }
CustomAttributeType& ColorSetType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& ColorSetType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error ColorSetType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSetType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void ColorSetType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void ColorSetType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error ColorSetType::set_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::set_entry(k_items[item_ChangeHistory], this, index, value); }
lmx::elmx_error ColorSetType::append_ChangeHistory(const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, size_ChangeHistory(), value); }
lmx::elmx_error ColorSetType::insert_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, index, value); }
void ColorSetType::delete_ChangeHistory(std::size_t index) { m_ChangeHistory.erase(index); }
void ColorSetType::clear_ChangeHistory() { m_ChangeHistory.clear(); }
OwnerType& ColorSetType::get_Owner() { OwnerType& child = m_Owner.touch(); m_isset_Owner = true; return child; }
const OwnerType& ColorSetType::get_Owner() const { return m_Owner.get(); }
OwnerType& ColorSetType::assign_Owner(const OwnerType& value) { return get_Owner() = value; }
lmx::elmx_error ColorSetType::set_SemanticAssociation(std::size_t index, const std::u16string& value) { return lmx::set_entry(k_items[item_SemanticAssociation], this, index, value); }
lmx::elmx_error ColorSetType::append_SemanticAssociation(const std::u16string& value) { return lmx::insert_entry(k_items[item_SemanticAssociation], this, size_SemanticAssociation(), value); }
lmx::elmx_error ColorSetType::insert_SemanticAssociation(std::size_t index, const std::u16string& value) { return lmx::insert_entry(k_items[item_SemanticAssociation], this, index, value); }
void ColorSetType::delete_SemanticAssociation(std::size_t index) { m_SemanticAssociation.erase(index); }
void ColorSetType::clear_SemanticAssociation() { m_SemanticAssociation.clear(); }
CollectionColorSpaceSpecificationType& ColorSetType::get_CollectionColorSpaceSpecification() { CollectionColorSpaceSpecificationType& child = m_CollectionColorSpaceSpecification.touch(); m_isset_CollectionColorSpaceSpecification = true; return child; }
const CollectionColorSpaceSpecificationType& ColorSetType::get_CollectionColorSpaceSpecification() const { return m_CollectionColorSpaceSpecification.get(); }
CollectionColorSpaceSpecificationType& ColorSetType::assign_CollectionColorSpaceSpecification(const CollectionColorSpaceSpecificationType& value) { return get_CollectionColorSpaceSpecification() = value; }
ColorType& ColorSetType::get_Color(std::size_t index) { return m_Color.grow_to(index); }
ColorType& ColorSetType::assign_Color(std::size_t index, const ColorType& value) { return get_Color(index) = value; }
lmx::elmx_error ColorSetType::append_Color() { m_Color.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSetType::insert_Color(std::size_t index) { m_Color.insert(index); return lmx::ELMX_OK; }
void ColorSetType::delete_Color(std::size_t index) { m_Color.erase(index); }
void ColorSetType::clear_Color() { m_Color.clear(); }
sg_Substrate& ColorSetType::assign_Substrate(const sg_Substrate& value) { return get_Substrate() = value; }

// ColorType

constexpr s_item ColorType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "ColorName", attribute("ColorName"), LMX_OFFSET(ColorType, m_ColorName, attribute, text), LMX_FLAG(ColorType, m_isset_ColorName)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "UniqueID", attribute("UniqueID"), LMX_OFFSET(ColorType, m_UniqueID, attribute, text), LMX_FLAG(ColorType, m_isset_UniqueID)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "ColorNumber", attribute("ColorNumber"), LMX_OFFSET(ColorType, m_ColorNumber, attribute, text), LMX_FLAG(ColorType, m_isset_ColorNumber)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Comments", attribute("Comments"), LMX_OFFSET(ColorType, m_Comments, attribute, text), LMX_FLAG(ColorType, m_isset_Comments)},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(ColorType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element_list, value_kind::datetime, use_demanded | use_asked, ELMX_WS_COLLAPSE, "Vyr:ChangeHistory", element("ChangeHistory"), LMX_OFFSET(ColorType, m_ChangeHistory, element_list, datetime), k_no_flag, nullptr, &facets::DateTimeZone},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Owner", element("Owner"), LMX_OFFSET(ColorType, m_Owner, optional_child, none), LMX_FLAG(ColorType, m_isset_Owner), &OwnerType::k_class},
    {item_kind::element_list, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:SemanticAssociation", element("SemanticAssociation"), LMX_OFFSET(ColorType, m_SemanticAssociation, element_list, text), k_no_flag},
    {item_kind::group_list, value_kind::none, use_demanded | use_asked, ELMX_WS_PRESERVE, "Vyr:ColorSpace", 0, LMX_OFFSET(ColorType, m_ColorSpace, group_list, none), k_no_flag, &sg_ColorSpace::k_class},
    {item_kind::group, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Substrate", 0, LMX_OFFSET(ColorType, m_Substrate, group, none), LMX_FLAG(ColorType, m_isset_Substrate), &sg_Substrate::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:TagValues", element("TagValues"), LMX_OFFSET(ColorType, m_TagValues, child_list, none), k_no_flag, &TagValue::k_class},
};
constinit const s_class ColorType::k_class = {
    .name = "ColorType",
    .qualified_name = "Vyr:ColorType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorType>,
};

ColorType::ColorType() = default;
ColorType::ColorType(const ColorType& other) { lmx::copy(k_class, this, &other); }
ColorType::~ColorType() = default;
ColorType& ColorType::operator=(const ColorType& other) { ColorType copy(other); swap(copy); return *this; }
lmx::elmx_error ColorType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorType::swap(ColorType& other) { lmx::swap(k_class, this, &other); }
void ColorType::reset() { ColorType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorType::set_ColorName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ColorName], this, value); }
lmx::elmx_error ColorType::set_UniqueID(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_UniqueID], this, value); }
lmx::elmx_error ColorType::set_ColorNumber(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ColorNumber], this, value); }
lmx::elmx_error ColorType::set_Comments(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Comments], this, value); }
CustomAttributeType& ColorType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& ColorType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error ColorType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void ColorType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void ColorType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error ColorType::set_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::set_entry(k_items[item_ChangeHistory], this, index, value); }
lmx::elmx_error ColorType::append_ChangeHistory(const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, size_ChangeHistory(), value); }
lmx::elmx_error ColorType::insert_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, index, value); }
void ColorType::delete_ChangeHistory(std::size_t index) { m_ChangeHistory.erase(index); }
void ColorType::clear_ChangeHistory() { m_ChangeHistory.clear(); }
OwnerType& ColorType::get_Owner() { OwnerType& child = m_Owner.touch(); m_isset_Owner = true; return child; }
const OwnerType& ColorType::get_Owner() const { return m_Owner.get(); }
OwnerType& ColorType::assign_Owner(const OwnerType& value) { return get_Owner() = value; }
lmx::elmx_error ColorType::set_SemanticAssociation(std::size_t index, const std::u16string& value) { return lmx::set_entry(k_items[item_SemanticAssociation], this, index, value); }
lmx::elmx_error ColorType::append_SemanticAssociation(const std::u16string& value) { return lmx::insert_entry(k_items[item_SemanticAssociation], this, size_SemanticAssociation(), value); }
lmx::elmx_error ColorType::insert_SemanticAssociation(std::size_t index, const std::u16string& value) { return lmx::insert_entry(k_items[item_SemanticAssociation], this, index, value); }
void ColorType::delete_SemanticAssociation(std::size_t index) { m_SemanticAssociation.erase(index); }
void ColorType::clear_SemanticAssociation() { m_SemanticAssociation.clear(); }
sg_ColorSpace& ColorType::get_ColorSpace(std::size_t index) { return m_ColorSpace.grow_to(index); }
sg_ColorSpace& ColorType::assign_ColorSpace(std::size_t index, const sg_ColorSpace& value) { return get_ColorSpace(index) = value; }
lmx::elmx_error ColorType::append_ColorSpace() { m_ColorSpace.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorType::insert_ColorSpace(std::size_t index) { m_ColorSpace.insert(index); return lmx::ELMX_OK; }
void ColorType::delete_ColorSpace(std::size_t index) { m_ColorSpace.erase(index); }
void ColorType::clear_ColorSpace() { m_ColorSpace.clear(); }
sg_Substrate& ColorType::assign_Substrate(const sg_Substrate& value) { return get_Substrate() = value; }
TagValue& ColorType::get_TagValues(std::size_t index) { return m_TagValues.grow_to(index); }
TagValue& ColorType::assign_TagValues(std::size_t index, const TagValue& value) { return get_TagValues(index) = value; }
lmx::elmx_error ColorType::append_TagValues() { m_TagValues.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorType::insert_TagValues(std::size_t index) { m_TagValues.insert(index); return lmx::ELMX_OK; }
void ColorType::delete_TagValues(std::size_t index) { m_TagValues.erase(index); }
void ColorType::clear_TagValues() { m_TagValues.clear(); }

// CollectionColorSpaceSpecification

constinit const lmx::s_document CollectionColorSpaceSpecification::k_document = {"Vyr:CollectionColorSpaceSpecification", "CollectionColorSpaceSpecification", k_ns_map, &lmx::k_operations<CollectionColorSpaceSpecification>};
CollectionColorSpaceSpecification::CollectionColorSpaceSpecification(const char* file_name, lmx::elmx_error* error) : CollectionColorSpaceSpecification() { *error = unmarshal(file_name); }
CollectionColorSpaceSpecification::CollectionColorSpaceSpecification(const char* data, std::size_t size, lmx::elmx_error* error) : CollectionColorSpaceSpecification() { *error = unmarshal(data, size); }
CollectionColorSpaceSpecification::CollectionColorSpaceSpecification(const std::string& text, lmx::elmx_error* error) : CollectionColorSpaceSpecification() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* CollectionColorSpaceSpecification::ns_map() { return k_ns_map; }
lmx::elmx_error CollectionColorSpaceSpecification::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error CollectionColorSpaceSpecification::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error CollectionColorSpaceSpecification::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error CollectionColorSpaceSpecification::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error CollectionColorSpaceSpecification::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error CollectionColorSpaceSpecification::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error CollectionColorSpaceSpecification::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error CollectionColorSpaceSpecification::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return CollectionColorSpaceSpecificationType::marshal(writer, name); }
lmx::elmx_error CollectionColorSpaceSpecification::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return CollectionColorSpaceSpecificationType::unmarshal(reader, name); }

}  // namespace com_vyrgraph_v2
