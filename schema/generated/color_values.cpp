// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in color_values.h.

#include "schema/generated/color_values.h"
#include "lmx/binding/binding.h"
#include "schema/generated/conditions.h"
#include "schema/generated/device_color_values.h"
#include "schema/generated/groups.h"
#include "schema/generated/header.h"
#include "schema/generated/recipes.h"
#include "schema/generated/sampled_color_values.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// ParentColorSpace

constexpr s_item ParentColorSpace::k_items[] = {
    {item_kind::group, value_kind::none, use_asked | use_written | use_lax, ELMX_WS_PRESERVE, "Vyr:ColorSpace", 0, 0, LMX_FLAG(ParentColorSpace, m_choice.is_touched), &sg_ColorSpace::k_class},
};
constinit const s_class ParentColorSpace::k_class = {
    .name = "ParentColorSpace",
    .qualified_name = "Vyr:ParentColorSpace",
    .content = content_kind::children,
    .names = &k_names,
    .nil_flag = LMX_FLAG(ParentColorSpace, m_isnil),
    .elements = k_items,
    .operations = &k_operations<ParentColorSpace>,
};

ParentColorSpace::ParentColorSpace() = default;
ParentColorSpace::ParentColorSpace(const ParentColorSpace& other) : sg_ColorSpace() { lmx::copy(k_class, this, &other); }
ParentColorSpace::~ParentColorSpace() = default;
ParentColorSpace& ParentColorSpace::operator=(const ParentColorSpace& other) { ParentColorSpace copy(other); swap(copy); return *this; }
lmx::elmx_error ParentColorSpace::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ParentColorSpace::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ParentColorSpace::swap(ParentColorSpace& other) { lmx::swap(k_class, this, &other); }
void ParentColorSpace::reset() { ParentColorSpace fresh; lmx::exchange(k_class, this, &fresh); }
bool ParentColorSpace::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
sg_ColorSpace& ParentColorSpace::assign_ColorSpace(const sg_ColorSpace& value) { return get_ColorSpace().sg_ColorSpace::operator=(value); }

// ColorSpaceType

constexpr s_item ColorSpaceType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Comments", attribute("Comments"), LMX_OFFSET(ColorSpaceType, m_Comments, attribute, text), LMX_FLAG(ColorSpaceType, m_isset_Comments)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "UniqueID", attribute("UniqueID"), LMX_OFFSET(ColorSpaceType, m_UniqueID, attribute, text), LMX_FLAG(ColorSpaceType, m_isset_UniqueID)},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(ColorSpaceType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ParentColorSpace", element("ParentColorSpace"), LMX_OFFSET(ColorSpaceType, m_ParentColorSpace, optional_child, none), LMX_FLAG(ColorSpaceType, m_isset_ParentColorSpace), &ParentColorSpace::k_class},
    {item_kind::element_list, value_kind::datetime, use_demanded | use_asked, ELMX_WS_COLLAPSE, "Vyr:ChangeHistory", element("ChangeHistory"), LMX_OFFSET(ColorSpaceType, m_ChangeHistory, element_list, datetime), k_no_flag, nullptr, &facets::DateTimeZone},
};
constinit const s_factory_row ColorSpaceType::k_factory[] = {
    {"ColorSpaceCIELabType", &ColorSpaceCIELabType::k_class},
    {"ColorSpaceCIELChType", &ColorSpaceCIELChType::k_class},
    {"ColorSpaceCIELuvType", &ColorSpaceCIELuvType::k_class},
    {"ColorSpaceCIEXYZType", &ColorSpaceCIEXYZType::k_class},
    {"ColorSpaceCIExyYType", &ColorSpaceCIExyYType::k_class},
    {"ColorSpaceEmissiveCIEXYZType", &ColorSpaceEmissiveCIEXYZType::k_class},
    {"ColorSpaceEmissiveCIExyYType", &ColorSpaceEmissiveCIExyYType::k_class},
    {"ColorSpaceRGBType", &ColorSpaceRGBType::k_class},
    {"ColorSpaceSRGBType", &ColorSpaceSRGBType::k_class},
    {"ColorSpaceAdobeRGBType", &ColorSpaceAdobeRGBType::k_class},
    {"ColorSpaceAdobeWideGamutRGBType", &ColorSpaceAdobeWideGamutRGBType::k_class},
    {"ColorSpaceCMYKType", &ColorSpaceCMYKType::k_class},
    {"ColorSpaceCMYKPlusNType", &ColorSpaceCMYKPlusNType::k_class},
    {"ColorSpaceTINTORAOctavanticType", &ColorSpaceTINTORAOctavanticType::k_class},
    {"ColorSpaceHSLType", &ColorSpaceHSLType::k_class},
    {"ColorSpaceHSVType", &ColorSpaceHSVType::k_class},
    {"ColorSpaceYUVType", &ColorSpaceYUVType::k_class},
    {"ColorSpaceYIQType", &ColorSpaceYIQType::k_class},
    {"ColorSpaceYBRType", &ColorSpaceYBRType::k_class},
    {"ColorSpaceTINTORAType", &ColorSpaceTINTORAType::k_class},
    {"ColorSpaceNCSType", &ColorSpaceNCSType::k_class},
    {"ColorSpaceMunsellType", &ColorSpaceMunsellType::k_class},
    {"ColorSpaceRecipeType", &ColorSpaceRecipeType::k_class},
    {"ColorSpaceDensityType", &ColorSpaceDensityType::k_class},
    {"ColorSpaceSpectralType", &ColorSpaceSpectralType::k_class},
    {"ColorSpaceEmissiveSpectralType", &ColorSpaceEmissiveSpectralType::k_class},
    {"ColorSpaceGenericType", &ColorSpaceGenericType::k_class},
    {"ColorSpaceEmissiveGenericType", &ColorSpaceEmissiveGenericType::k_class},
};
constinit const s_class ColorSpaceType::k_class = {
    .name = "ColorSpaceType",
    .qualified_name = "Vyr:ColorSpaceType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceType>,
};

const char k_ColorSpaceType_id[] = "ColorSpaceType";
const char* ColorSpaceType::id = k_ColorSpaceType_id;
ColorSpaceType::ColorSpaceType() = default;
ColorSpaceType::ColorSpaceType(const ColorSpaceType& other) { lmx::copy(k_class, this, &other); }
ColorSpaceType* ColorSpaceType::clone() const { return new ColorSpaceType(*this); }
ColorSpaceType::~ColorSpaceType() = default;
ColorSpaceType& ColorSpaceType::operator=(const ColorSpaceType& other) { ColorSpaceType copy(other); swap(copy); return *this; }
const char* ColorSpaceType::getid() const { return id; }
bool ColorSpaceType::has_id(const char* identity) const { return identity == id; }
lmx::elmx_error ColorSpaceType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceType::swap(ColorSpaceType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceType::reset() { ColorSpaceType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceType::set_Comments(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Comments], this, value); }
lmx::elmx_error ColorSpaceType::set_UniqueID(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_UniqueID], this, value); }
CustomAttributeType& ColorSpaceType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& ColorSpaceType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error ColorSpaceType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSpaceType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void ColorSpaceType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void ColorSpaceType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
ParentColorSpace& ColorSpaceType::get_ParentColorSpace() { ParentColorSpace& child = m_ParentColorSpace.touch(); m_isset_ParentColorSpace = true; return child; }
const ParentColorSpace& ColorSpaceType::get_ParentColorSpace() const { return m_ParentColorSpace.get(); }
ParentColorSpace& ColorSpaceType::assign_ParentColorSpace(const ParentColorSpace& value) { return get_ParentColorSpace() = value; }
lmx::elmx_error ColorSpaceType::set_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::set_entry(k_items[item_ChangeHistory], this, index, value); }
lmx::elmx_error ColorSpaceType::append_ChangeHistory(const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, size_ChangeHistory(), value); }
lmx::elmx_error ColorSpaceType::insert_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, index, value); }
void ColorSpaceType::delete_ChangeHistory(std::size_t index) { m_ChangeHistory.erase(index); }
void ColorSpaceType::clear_ChangeHistory() { m_ChangeHistory.clear(); }
ColorSpaceType* ColorSpaceType::factory(int ns_id, const std::string& name) { return static_cast<ColorSpaceType*>(lmx::create_by_name(k_factory, ns_id, name)); }

// ColorSpace

constinit const lmx::s_document ColorSpace::k_document = {"Vyr:ColorSpace", "ColorSpace", k_ns_map, &lmx::k_operations<ColorSpace>};
const lmx::s_ns_map* ColorSpace::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpace::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpace::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceType::marshal(writer, name); }
lmx::elmx_error ColorSpace::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceType::unmarshal(reader, name); }

// ColorSpaceCIELabType

constexpr s_item ColorSpaceCIELabType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceCIELabType, m_Name, attribute, text), LMX_FLAG(ColorSpaceCIELabType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumTristimulus", element("ColorSpaceSpecificationSpectrumTristimulus"), LMX_OFFSET(ColorSpaceCIELabType, m_ColorSpaceSpecificationSpectrumTristimulus, child, none), LMX_FLAG(ColorSpaceCIELabType, m_isset_ColorSpaceSpecificationSpectrumTristimulus), &ColorSpaceSpecificationSpectrumTristimulus::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:L", element("L"), LMX_OFFSET(ColorSpaceCIELabType, m_L, element, number), LMX_FLAG(ColorSpaceCIELabType, m_isset_L), nullptr, &facets::LabLightness},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:A", element("A"), LMX_OFFSET(ColorSpaceCIELabType, m_A, element, number), LMX_FLAG(ColorSpaceCIELabType, m_isset_A), nullptr, &facets::LabOpponent},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:B", element("B"), LMX_OFFSET(ColorSpaceCIELabType, m_B, element, number), LMX_FLAG(ColorSpaceCIELabType, m_isset_B), nullptr, &facets::LabOpponent},
};
constinit const s_class ColorSpaceCIELabType::k_class = {
    .name = "ColorSpaceCIELabType",
    .qualified_name = "Vyr:ColorSpaceCIELabType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceCIELabType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceCIELabType>,
};

const char k_ColorSpaceCIELabType_id[] = "ColorSpaceCIELabType";
const char* ColorSpaceCIELabType::id = k_ColorSpaceCIELabType_id;
ColorSpaceCIELabType::ColorSpaceCIELabType() = default;
ColorSpaceCIELabType::ColorSpaceCIELabType(const ColorSpaceCIELabType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceCIELabType* ColorSpaceCIELabType::clone() const { return new ColorSpaceCIELabType(*this); }
ColorSpaceCIELabType::~ColorSpaceCIELabType() = default;
ColorSpaceCIELabType& ColorSpaceCIELabType::operator=(const ColorSpaceCIELabType& other) { ColorSpaceCIELabType copy(other); swap(copy); return *this; }
const char* ColorSpaceCIELabType::getid() const { return id; }
bool ColorSpaceCIELabType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceCIELabType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceCIELabType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceCIELabType::swap(ColorSpaceCIELabType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceCIELabType::reset() { ColorSpaceCIELabType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceCIELabType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceCIELabType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumTristimulus& ColorSpaceCIELabType::assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value) { return get_ColorSpaceSpecificationSpectrumTristimulus() = value; }
lmx::elmx_error ColorSpaceCIELabType::set_L(double value) { return lmx::set_item(k_class, k_items[item_L], this, value); }
lmx::elmx_error ColorSpaceCIELabType::set_A(double value) { return lmx::set_item(k_class, k_items[item_A], this, value); }
lmx::elmx_error ColorSpaceCIELabType::set_B(double value) { return lmx::set_item(k_class, k_items[item_B], this, value); }

// ColorSpaceCIELChType

constexpr s_item ColorSpaceCIELChType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceCIELChType, m_Name, attribute, text), LMX_FLAG(ColorSpaceCIELChType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumTristimulus", element("ColorSpaceSpecificationSpectrumTristimulus"), LMX_OFFSET(ColorSpaceCIELChType, m_ColorSpaceSpecificationSpectrumTristimulus, child, none), LMX_FLAG(ColorSpaceCIELChType, m_isset_ColorSpaceSpecificationSpectrumTristimulus), &ColorSpaceSpecificationSpectrumTristimulus::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:L", element("L"), LMX_OFFSET(ColorSpaceCIELChType, m_L, element, number), LMX_FLAG(ColorSpaceCIELChType, m_isset_L), nullptr, &facets::Lightness},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:C", element("C"), LMX_OFFSET(ColorSpaceCIELChType, m_C, element, number), LMX_FLAG(ColorSpaceCIELChType, m_isset_C), nullptr, &facets::Chroma},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:H", element("H"), LMX_OFFSET(ColorSpaceCIELChType, m_H, element, number), LMX_FLAG(ColorSpaceCIELChType, m_isset_H), nullptr, &facets::HueAngle},
};
constinit const s_class ColorSpaceCIELChType::k_class = {
    .name = "ColorSpaceCIELChType",
    .qualified_name = "Vyr:ColorSpaceCIELChType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceCIELChType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceCIELChType>,
};

const char k_ColorSpaceCIELChType_id[] = "ColorSpaceCIELChType";
const char* ColorSpaceCIELChType::id = k_ColorSpaceCIELChType_id;
ColorSpaceCIELChType::ColorSpaceCIELChType() = default;
ColorSpaceCIELChType::ColorSpaceCIELChType(const ColorSpaceCIELChType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceCIELChType* ColorSpaceCIELChType::clone() const { return new ColorSpaceCIELChType(*this); }
ColorSpaceCIELChType::~ColorSpaceCIELChType() = default;
ColorSpaceCIELChType& ColorSpaceCIELChType::operator=(const ColorSpaceCIELChType& other) { ColorSpaceCIELChType copy(other); swap(copy); return *this; }
const char* ColorSpaceCIELChType::getid() const { return id; }
bool ColorSpaceCIELChType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceCIELChType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceCIELChType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceCIELChType::swap(ColorSpaceCIELChType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceCIELChType::reset() { ColorSpaceCIELChType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceCIELChType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceCIELChType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumTristimulus& ColorSpaceCIELChType::assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value) { return get_ColorSpaceSpecificationSpectrumTristimulus() = value; }
lmx::elmx_error ColorSpaceCIELChType::set_L(double value) { return lmx::set_item(k_class, k_items[item_L], this, value); }
lmx::elmx_error ColorSpaceCIELChType::set_C(double value) { return lmx::set_item(k_class, k_items[item_C], this, value); }
lmx::elmx_error ColorSpaceCIELChType::set_H(double value) { return lmx::set_item(k_class, k_items[item_H], this, value); }

// ColorSpaceCIELuvType

constexpr s_item ColorSpaceCIELuvType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceCIELuvType, m_Name, attribute, text), LMX_FLAG(ColorSpaceCIELuvType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumTristimulus", element("ColorSpaceSpecificationSpectrumTristimulus"), LMX_OFFSET(ColorSpaceCIELuvType, m_ColorSpaceSpecificationSpectrumTristimulus, child, none), LMX_FLAG(ColorSpaceCIELuvType, m_isset_ColorSpaceSpecificationSpectrumTristimulus), &ColorSpaceSpecificationSpectrumTristimulus::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:L", element("L"), LMX_OFFSET(ColorSpaceCIELuvType, m_L, element, number), LMX_FLAG(ColorSpaceCIELuvType, m_isset_L), nullptr, &facets::Lightness},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:U", element("U"), LMX_OFFSET(ColorSpaceCIELuvType, m_U, element, number), LMX_FLAG(ColorSpaceCIELuvType, m_isset_U), nullptr, &facets::LuvU},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:V", element("V"), LMX_OFFSET(ColorSpaceCIELuvType, m_V, element, number), LMX_FLAG(ColorSpaceCIELuvType, m_isset_V), nullptr, &facets::LuvV},
};
constinit const s_class ColorSpaceCIELuvType::k_class = {
    .name = "ColorSpaceCIELuvType",
    .qualified_name = "Vyr:ColorSpaceCIELuvType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceCIELuvType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceCIELuvType>,
};

const char k_ColorSpaceCIELuvType_id[] = "ColorSpaceCIELuvType";
const char* ColorSpaceCIELuvType::id = k_ColorSpaceCIELuvType_id;
ColorSpaceCIELuvType::ColorSpaceCIELuvType() = default;
ColorSpaceCIELuvType::ColorSpaceCIELuvType(const ColorSpaceCIELuvType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceCIELuvType* ColorSpaceCIELuvType::clone() const { return new ColorSpaceCIELuvType(*this); }
ColorSpaceCIELuvType::~ColorSpaceCIELuvType() = default;
ColorSpaceCIELuvType& ColorSpaceCIELuvType::operator=(const ColorSpaceCIELuvType& other) { ColorSpaceCIELuvType copy(other); swap(copy); return *this; }
const char* ColorSpaceCIELuvType::getid() const { return id; }
bool ColorSpaceCIELuvType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceCIELuvType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceCIELuvType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceCIELuvType::swap(ColorSpaceCIELuvType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceCIELuvType::reset() { ColorSpaceCIELuvType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceCIELuvType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceCIELuvType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumTristimulus& ColorSpaceCIELuvType::assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value) { return get_ColorSpaceSpecificationSpectrumTristimulus() = value; }
lmx::elmx_error ColorSpaceCIELuvType::set_L(double value) { return lmx::set_item(k_class, k_items[item_L], this, value); }
lmx::elmx_error ColorSpaceCIELuvType::set_U(double value) { return lmx::set_item(k_class, k_items[item_U], this, value); }
lmx::elmx_error ColorSpaceCIELuvType::set_V(double value) { return lmx::set_item(k_class, k_items[item_V], this, value); }

// ColorSpaceCIEXYZType

constexpr s_item ColorSpaceCIEXYZType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceCIEXYZType, m_Name, attribute, text), LMX_FLAG(ColorSpaceCIEXYZType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumTristimulus", element("ColorSpaceSpecificationSpectrumTristimulus"), LMX_OFFSET(ColorSpaceCIEXYZType, m_ColorSpaceSpecificationSpectrumTristimulus, child, none), LMX_FLAG(ColorSpaceCIEXYZType, m_isset_ColorSpaceSpecificationSpectrumTristimulus), &ColorSpaceSpecificationSpectrumTristimulus::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:X", element("X"), LMX_OFFSET(ColorSpaceCIEXYZType, m_X, element, number), LMX_FLAG(ColorSpaceCIEXYZType, m_isset_X), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Y", element("Y"), LMX_OFFSET(ColorSpaceCIEXYZType, m_Y, element, number), LMX_FLAG(ColorSpaceCIEXYZType, m_isset_Y), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Z", element("Z"), LMX_OFFSET(ColorSpaceCIEXYZType, m_Z, element, number), LMX_FLAG(ColorSpaceCIEXYZType, m_isset_Z), nullptr, &facets::Fraction},
};
constinit const s_class ColorSpaceCIEXYZType::k_class = {
    .name = "ColorSpaceCIEXYZType",
    .qualified_name = "Vyr:ColorSpaceCIEXYZType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceCIEXYZType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceCIEXYZType>,
};

const char k_ColorSpaceCIEXYZType_id[] = "ColorSpaceCIEXYZType";
const char* ColorSpaceCIEXYZType::id = k_ColorSpaceCIEXYZType_id;
ColorSpaceCIEXYZType::ColorSpaceCIEXYZType() = default;
ColorSpaceCIEXYZType::ColorSpaceCIEXYZType(const ColorSpaceCIEXYZType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceCIEXYZType* ColorSpaceCIEXYZType::clone() const { return new ColorSpaceCIEXYZType(*this); }
ColorSpaceCIEXYZType::~ColorSpaceCIEXYZType() = default;
ColorSpaceCIEXYZType& ColorSpaceCIEXYZType::operator=(const ColorSpaceCIEXYZType& other) { ColorSpaceCIEXYZType copy(other); swap(copy); return *this; }
const char* ColorSpaceCIEXYZType::getid() const { return id; }
bool ColorSpaceCIEXYZType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceCIEXYZType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceCIEXYZType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceCIEXYZType::swap(ColorSpaceCIEXYZType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceCIEXYZType::reset() { ColorSpaceCIEXYZType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceCIEXYZType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceCIEXYZType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumTristimulus& ColorSpaceCIEXYZType::assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value) { return get_ColorSpaceSpecificationSpectrumTristimulus() = value; }
lmx::elmx_error ColorSpaceCIEXYZType::set_X(double value) { return lmx::set_item(k_class, k_items[item_X], this, value); }
lmx::elmx_error ColorSpaceCIEXYZType::set_Y(double value) { return lmx::set_item(k_class, k_items[item_Y], this, value); }
lmx::elmx_error ColorSpaceCIEXYZType::set_Z(double value) { return lmx::set_item(k_class, k_items[item_Z], this, value); }

// ColorSpaceCIExyYType

constexpr s_item ColorSpaceCIExyYType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceCIExyYType, m_Name, attribute, text), LMX_FLAG(ColorSpaceCIExyYType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumTristimulus", element("ColorSpaceSpecificationSpectrumTristimulus"), LMX_OFFSET(ColorSpaceCIExyYType, m_ColorSpaceSpecificationSpectrumTristimulus, child, none), LMX_FLAG(ColorSpaceCIExyYType, m_isset_ColorSpaceSpecificationSpectrumTristimulus), &ColorSpaceSpecificationSpectrumTristimulus::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:X", element("X"), LMX_OFFSET(ColorSpaceCIExyYType, m_X, element, number), LMX_FLAG(ColorSpaceCIExyYType, m_isset_X), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Y", element("Y"), LMX_OFFSET(ColorSpaceCIExyYType, m_Y, element, number), LMX_FLAG(ColorSpaceCIExyYType, m_isset_Y), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:CapY", element("CapY"), LMX_OFFSET(ColorSpaceCIExyYType, m_CapY, element, number), LMX_FLAG(ColorSpaceCIExyYType, m_isset_CapY), nullptr, &facets::Fraction},
};
constinit const s_class ColorSpaceCIExyYType::k_class = {
    .name = "ColorSpaceCIExyYType",
    .qualified_name = "Vyr:ColorSpaceCIExyYType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceCIExyYType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceCIExyYType>,
};

const char k_ColorSpaceCIExyYType_id[] = "ColorSpaceCIExyYType";
const char* ColorSpaceCIExyYType::id = k_ColorSpaceCIExyYType_id;
ColorSpaceCIExyYType::ColorSpaceCIExyYType() = default;
ColorSpaceCIExyYType::ColorSpaceCIExyYType(const ColorSpaceCIExyYType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceCIExyYType* ColorSpaceCIExyYType::clone() const { return new ColorSpaceCIExyYType(*this); }
ColorSpaceCIExyYType::~ColorSpaceCIExyYType() = default;
ColorSpaceCIExyYType& ColorSpaceCIExyYType::operator=(const ColorSpaceCIExyYType& other) { ColorSpaceCIExyYType copy(other); swap(copy); return *this; }
const char* ColorSpaceCIExyYType::getid() const { return id; }
bool ColorSpaceCIExyYType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceCIExyYType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceCIExyYType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceCIExyYType::swap(ColorSpaceCIExyYType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceCIExyYType::reset() { ColorSpaceCIExyYType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceCIExyYType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceCIExyYType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumTristimulus& ColorSpaceCIExyYType::assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value) { return get_ColorSpaceSpecificationSpectrumTristimulus() = value; }
lmx::elmx_error ColorSpaceCIExyYType::set_X(double value) { return lmx::set_item(k_class, k_items[item_X], this, value); }
lmx::elmx_error ColorSpaceCIExyYType::set_Y(double value) { return lmx::set_item(k_class, k_items[item_Y], this, value); }
lmx::elmx_error ColorSpaceCIExyYType::set_CapY(double value) { return lmx::set_item(k_class, k_items[item_CapY], this, value); }

// ColorSpaceEmissiveCIEXYZType

constexpr s_item ColorSpaceEmissiveCIEXYZType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceEmissiveCIEXYZType, m_Name, attribute, text), LMX_FLAG(ColorSpaceEmissiveCIEXYZType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationEmissiveTristimulus", element("ColorSpaceSpecificationEmissiveTristimulus"), LMX_OFFSET(ColorSpaceEmissiveCIEXYZType, m_ColorSpaceSpecificationEmissiveTristimulus, child, none), LMX_FLAG(ColorSpaceEmissiveCIEXYZType, m_isset_ColorSpaceSpecificationEmissiveTristimulus), &ColorSpaceSpecificationEmissiveTristimulus::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:X", element("X"), LMX_OFFSET(ColorSpaceEmissiveCIEXYZType, m_X, element, number), LMX_FLAG(ColorSpaceEmissiveCIEXYZType, m_isset_X), nullptr, &facets::NonNegative},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Y", element("Y"), LMX_OFFSET(ColorSpaceEmissiveCIEXYZType, m_Y, element, number), LMX_FLAG(ColorSpaceEmissiveCIEXYZType, m_isset_Y), nullptr, &facets::NonNegative},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Z", element("Z"), LMX_OFFSET(ColorSpaceEmissiveCIEXYZType, m_Z, element, number), LMX_FLAG(ColorSpaceEmissiveCIEXYZType, m_isset_Z), nullptr, &facets::NonNegative},
};
constinit const s_class ColorSpaceEmissiveCIEXYZType::k_class = {
    .name = "ColorSpaceEmissiveCIEXYZType",
    .qualified_name = "Vyr:ColorSpaceEmissiveCIEXYZType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceEmissiveCIEXYZType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceEmissiveCIEXYZType>,
};

const char k_ColorSpaceEmissiveCIEXYZType_id[] = "ColorSpaceEmissiveCIEXYZType";
const char* ColorSpaceEmissiveCIEXYZType::id = k_ColorSpaceEmissiveCIEXYZType_id;
ColorSpaceEmissiveCIEXYZType::ColorSpaceEmissiveCIEXYZType() = default;
ColorSpaceEmissiveCIEXYZType::ColorSpaceEmissiveCIEXYZType(const ColorSpaceEmissiveCIEXYZType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceEmissiveCIEXYZType* ColorSpaceEmissiveCIEXYZType::clone() const { return new ColorSpaceEmissiveCIEXYZType(*this); }
ColorSpaceEmissiveCIEXYZType::~ColorSpaceEmissiveCIEXYZType() = default;
ColorSpaceEmissiveCIEXYZType& ColorSpaceEmissiveCIEXYZType::operator=(const ColorSpaceEmissiveCIEXYZType& other) { ColorSpaceEmissiveCIEXYZType copy(other); swap(copy); return *this; }
const char* ColorSpaceEmissiveCIEXYZType::getid() const { return id; }
bool ColorSpaceEmissiveCIEXYZType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceEmissiveCIEXYZType::swap(ColorSpaceEmissiveCIEXYZType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceEmissiveCIEXYZType::reset() { ColorSpaceEmissiveCIEXYZType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceEmissiveCIEXYZType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationEmissiveTristimulus& ColorSpaceEmissiveCIEXYZType::assign_ColorSpaceSpecificationEmissiveTristimulus(const ColorSpaceSpecificationEmissiveTristimulus& value) { return get_ColorSpaceSpecificationEmissiveTristimulus() = value; }
lmx::elmx_error ColorSpaceEmissiveCIEXYZType::set_X(double value) { return lmx::set_item(k_class, k_items[item_X], this, value); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZType::set_Y(double value) { return lmx::set_item(k_class, k_items[item_Y], this, value); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZType::set_Z(double value) { return lmx::set_item(k_class, k_items[item_Z], this, value); }

// ColorSpaceEmissiveCIExyYType

constexpr s_item ColorSpaceEmissiveCIExyYType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceEmissiveCIExyYType, m_Name, attribute, text), LMX_FLAG(ColorSpaceEmissiveCIExyYType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationEmissiveTristimulus", element("ColorSpaceSpecificationEmissiveTristimulus"), LMX_OFFSET(ColorSpaceEmissiveCIExyYType, m_ColorSpaceSpecificationEmissiveTristimulus, child, none), LMX_FLAG(ColorSpaceEmissiveCIExyYType, m_isset_ColorSpaceSpecificationEmissiveTristimulus), &ColorSpaceSpecificationEmissiveTristimulus::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:X", element("X"), LMX_OFFSET(ColorSpaceEmissiveCIExyYType, m_X, element, number), LMX_FLAG(ColorSpaceEmissiveCIExyYType, m_isset_X), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Y", element("Y"), LMX_OFFSET(ColorSpaceEmissiveCIExyYType, m_Y, element, number), LMX_FLAG(ColorSpaceEmissiveCIExyYType, m_isset_Y), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:CapY", element("CapY"), LMX_OFFSET(ColorSpaceEmissiveCIExyYType, m_CapY, element, number), LMX_FLAG(ColorSpaceEmissiveCIExyYType, m_isset_CapY), nullptr, &facets::NonNegative},
};
constinit const s_class ColorSpaceEmissiveCIExyYType::k_class = {
    .name = "ColorSpaceEmissiveCIExyYType",
    .qualified_name = "Vyr:ColorSpaceEmissiveCIExyYType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceEmissiveCIExyYType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceEmissiveCIExyYType>,
};

const char k_ColorSpaceEmissiveCIExyYType_id[] = "ColorSpaceEmissiveCIExyYType";
const char* ColorSpaceEmissiveCIExyYType::id = k_ColorSpaceEmissiveCIExyYType_id;
ColorSpaceEmissiveCIExyYType::ColorSpaceEmissiveCIExyYType() = default;
ColorSpaceEmissiveCIExyYType::ColorSpaceEmissiveCIExyYType(const ColorSpaceEmissiveCIExyYType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceEmissiveCIExyYType* ColorSpaceEmissiveCIExyYType::clone() const { return new ColorSpaceEmissiveCIExyYType(*this); }
ColorSpaceEmissiveCIExyYType::~ColorSpaceEmissiveCIExyYType() = default;
ColorSpaceEmissiveCIExyYType& ColorSpaceEmissiveCIExyYType::operator=(const ColorSpaceEmissiveCIExyYType& other) { ColorSpaceEmissiveCIExyYType copy(other); swap(copy); return *this; }
const char* ColorSpaceEmissiveCIExyYType::getid() const { return id; }
bool ColorSpaceEmissiveCIExyYType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceEmissiveCIExyYType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceEmissiveCIExyYType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceEmissiveCIExyYType::swap(ColorSpaceEmissiveCIExyYType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceEmissiveCIExyYType::reset() { ColorSpaceEmissiveCIExyYType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceEmissiveCIExyYType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceEmissiveCIExyYType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationEmissiveTristimulus& ColorSpaceEmissiveCIExyYType::assign_ColorSpaceSpecificationEmissiveTristimulus(const ColorSpaceSpecificationEmissiveTristimulus& value) { return get_ColorSpaceSpecificationEmissiveTristimulus() = value; }
lmx::elmx_error ColorSpaceEmissiveCIExyYType::set_X(double value) { return lmx::set_item(k_class, k_items[item_X], this, value); }
lmx::elmx_error ColorSpaceEmissiveCIExyYType::set_Y(double value) { return lmx::set_item(k_class, k_items[item_Y], this, value); }
lmx::elmx_error ColorSpaceEmissiveCIExyYType::set_CapY(double value) { return lmx::set_item(k_class, k_items[item_CapY], this, value); }

// ColorSpaceCIELab

constinit const lmx::s_document ColorSpaceCIELab::k_document = {"Vyr:ColorSpaceCIELab", "ColorSpaceCIELab", k_ns_map, &lmx::k_operations<ColorSpaceCIELab>};
ColorSpaceCIELab::ColorSpaceCIELab(const char* file_name, lmx::elmx_error* error) : ColorSpaceCIELab() { *error = unmarshal(file_name); }
ColorSpaceCIELab::ColorSpaceCIELab(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceCIELab() { *error = unmarshal(data, size); }
ColorSpaceCIELab::ColorSpaceCIELab(const std::string& text, lmx::elmx_error* error) : ColorSpaceCIELab() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceCIELab::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceCIELab::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCIELab::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceCIELab::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceCIELab::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceCIELab::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCIELab::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceCIELab::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceCIELab::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceCIELabType::marshal(writer, name); }
lmx::elmx_error ColorSpaceCIELab::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceCIELabType::unmarshal(reader, name); }

// ColorSpaceCIELCh

constinit const lmx::s_document ColorSpaceCIELCh::k_document = {"Vyr:ColorSpaceCIELCh", "ColorSpaceCIELCh", k_ns_map, &lmx::k_operations<ColorSpaceCIELCh>};
ColorSpaceCIELCh::ColorSpaceCIELCh(const char* file_name, lmx::elmx_error* error) : ColorSpaceCIELCh() { *error = unmarshal(file_name); }
ColorSpaceCIELCh::ColorSpaceCIELCh(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceCIELCh() { *error = unmarshal(data, size); }
ColorSpaceCIELCh::ColorSpaceCIELCh(const std::string& text, lmx::elmx_error* error) : ColorSpaceCIELCh() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceCIELCh::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceCIELCh::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCIELCh::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceCIELCh::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceCIELCh::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceCIELCh::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCIELCh::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceCIELCh::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceCIELCh::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceCIELChType::marshal(writer, name); }
lmx::elmx_error ColorSpaceCIELCh::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceCIELChType::unmarshal(reader, name); }

// ColorSpaceCIEXYZ

constinit const lmx::s_document ColorSpaceCIEXYZ::k_document = {"Vyr:ColorSpaceCIEXYZ", "ColorSpaceCIEXYZ", k_ns_map, &lmx::k_operations<ColorSpaceCIEXYZ>};
ColorSpaceCIEXYZ::ColorSpaceCIEXYZ(const char* file_name, lmx::elmx_error* error) : ColorSpaceCIEXYZ() { *error = unmarshal(file_name); }
ColorSpaceCIEXYZ::ColorSpaceCIEXYZ(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceCIEXYZ() { *error = unmarshal(data, size); }
ColorSpaceCIEXYZ::ColorSpaceCIEXYZ(const std::string& text, lmx::elmx_error* error) : ColorSpaceCIEXYZ() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceCIEXYZ::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceCIEXYZ::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCIEXYZ::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceCIEXYZ::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceCIEXYZ::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceCIEXYZ::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCIEXYZ::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceCIEXYZ::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceCIEXYZ::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceCIEXYZType::marshal(writer, name); }
lmx::elmx_error ColorSpaceCIEXYZ::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceCIEXYZType::unmarshal(reader, name); }

// ColorSpaceEmissiveCIEXYZ

constinit const lmx::s_document ColorSpaceEmissiveCIEXYZ::k_document = {"Vyr:ColorSpaceEmissiveCIEXYZ", "ColorSpaceEmissiveCIEXYZ", k_ns_map, &lmx::k_operations<ColorSpaceEmissiveCIEXYZ>};
ColorSpaceEmissiveCIEXYZ::ColorSpaceEmissiveCIEXYZ(const char* file_name, lmx::elmx_error* error) : ColorSpaceEmissiveCIEXYZ() { *error = unmarshal(file_name); }
ColorSpaceEmissiveCIEXYZ::ColorSpaceEmissiveCIEXYZ(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceEmissiveCIEXYZ() { *error = unmarshal(data, size); }
ColorSpaceEmissiveCIEXYZ::ColorSpaceEmissiveCIEXYZ(const std::string& text, lmx::elmx_error* error) : ColorSpaceEmissiveCIEXYZ() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceEmissiveCIEXYZ::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceEmissiveCIEXYZ::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZ::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZ::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZ::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZ::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZ::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZ::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZ::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceEmissiveCIEXYZType::marshal(writer, name); }
lmx::elmx_error ColorSpaceEmissiveCIEXYZ::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceEmissiveCIEXYZType::unmarshal(reader, name); }

// ColorSpaceCIExyY

constinit const lmx::s_document ColorSpaceCIExyY::k_document = {"Vyr:ColorSpaceCIExyY", "ColorSpaceCIExyY", k_ns_map, &lmx::k_operations<ColorSpaceCIExyY>};
ColorSpaceCIExyY::ColorSpaceCIExyY(const char* file_name, lmx::elmx_error* error) : ColorSpaceCIExyY() { *error = unmarshal(file_name); }
ColorSpaceCIExyY::ColorSpaceCIExyY(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceCIExyY() { *error = unmarshal(data, size); }
ColorSpaceCIExyY::ColorSpaceCIExyY(const std::string& text, lmx::elmx_error* error) : ColorSpaceCIExyY() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceCIExyY::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceCIExyY::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCIExyY::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceCIExyY::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceCIExyY::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceCIExyY::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCIExyY::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceCIExyY::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceCIExyY::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceCIExyYType::marshal(writer, name); }
lmx::elmx_error ColorSpaceCIExyY::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceCIExyYType::unmarshal(reader, name); }

// ColorSpaceEmissiveCIExyY

constinit const lmx::s_document ColorSpaceEmissiveCIExyY::k_document = {"Vyr:ColorSpaceEmissiveCIExyY", "ColorSpaceEmissiveCIExyY", k_ns_map, &lmx::k_operations<ColorSpaceEmissiveCIExyY>};
ColorSpaceEmissiveCIExyY::ColorSpaceEmissiveCIExyY(const char* file_name, lmx::elmx_error* error) : ColorSpaceEmissiveCIExyY() { *error = unmarshal(file_name); }
ColorSpaceEmissiveCIExyY::ColorSpaceEmissiveCIExyY(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceEmissiveCIExyY() { *error = unmarshal(data, size); }
ColorSpaceEmissiveCIExyY::ColorSpaceEmissiveCIExyY(const std::string& text, lmx::elmx_error* error) : ColorSpaceEmissiveCIExyY() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceEmissiveCIExyY::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceEmissiveCIExyY::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceEmissiveCIExyY::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceEmissiveCIExyY::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceEmissiveCIExyY::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceEmissiveCIExyY::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceEmissiveCIExyY::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceEmissiveCIExyY::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceEmissiveCIExyY::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceEmissiveCIExyYType::marshal(writer, name); }
lmx::elmx_error ColorSpaceEmissiveCIExyY::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceEmissiveCIExyYType::unmarshal(reader, name); }

// ColorSpaceCIELuv

constinit const lmx::s_document ColorSpaceCIELuv::k_document = {"Vyr:ColorSpaceCIELuv", "ColorSpaceCIELuv", k_ns_map, &lmx::k_operations<ColorSpaceCIELuv>};
ColorSpaceCIELuv::ColorSpaceCIELuv(const char* file_name, lmx::elmx_error* error) : ColorSpaceCIELuv() { *error = unmarshal(file_name); }
ColorSpaceCIELuv::ColorSpaceCIELuv(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceCIELuv() { *error = unmarshal(data, size); }
ColorSpaceCIELuv::ColorSpaceCIELuv(const std::string& text, lmx::elmx_error* error) : ColorSpaceCIELuv() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceCIELuv::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceCIELuv::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCIELuv::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceCIELuv::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceCIELuv::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceCIELuv::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCIELuv::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceCIELuv::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceCIELuv::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceCIELuvType::marshal(writer, name); }
lmx::elmx_error ColorSpaceCIELuv::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceCIELuvType::unmarshal(reader, name); }

}  // namespace com_vyrgraph_v2
