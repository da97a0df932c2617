// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in sampled_color_values.h.

#include "schema/generated/sampled_color_values.h"
#include "lmx/binding/binding.h"
#include "schema/generated/color_values.h"
#include "schema/generated/conditions.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// ColorSpaceDensityType

constexpr s_item ColorSpaceDensityType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceDensityType, m_Name, attribute, text), LMX_FLAG(ColorSpaceDensityType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(ColorSpaceDensityType, m_ColorSpaceSpecificationSpectrumGeneric, child, none), LMX_FLAG(ColorSpaceDensityType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::child_list, value_kind::none, use_demanded | use_asked, ELMX_WS_PRESERVE, "Vyr:Density", element("Density"), LMX_OFFSET(ColorSpaceDensityType, m_Density, child_list, none), k_no_flag, &DensityType::k_class},
};
constinit const s_class ColorSpaceDensityType::k_class = {
    .name = "ColorSpaceDensityType",
    .qualified_name = "Vyr:ColorSpaceDensityType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceDensityType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceDensityType>,
};

const char k_ColorSpaceDensityType_id[] = "ColorSpaceDensityType";
const char* ColorSpaceDensityType::id = k_ColorSpaceDensityType_id;
ColorSpaceDensityType::ColorSpaceDensityType() = default;
ColorSpaceDensityType::ColorSpaceDensityType(const ColorSpaceDensityType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceDensityType* ColorSpaceDensityType::clone() const { return new ColorSpaceDensityType(*this); }
ColorSpaceDensityType::~ColorSpaceDensityType() = default;
ColorSpaceDensityType& ColorSpaceDensityType::operator=(const ColorSpaceDensityType& other) { ColorSpaceDensityType copy(other); swap(copy); return *this; }
const char* ColorSpaceDensityType::getid() const { return id; }
bool ColorSpaceDensityType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceDensityType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceDensityType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceDensityType::swap(ColorSpaceDensityType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceDensityType::reset() { ColorSpaceDensityType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceDensityType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceDensityType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceDensityType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
DensityType& ColorSpaceDensityType::get_Density(std::size_t index) { return m_Density.grow_to(index); }
DensityType& ColorSpaceDensityType::assign_Density(std::size_t index, const DensityType& value) { return get_Density(index) = value; }
lmx::elmx_error ColorSpaceDensityType::append_Density() { m_Density.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSpaceDensityType::insert_Density(std::size_t index) { m_Density.insert(index); return lmx::ELMX_OK; }
void ColorSpaceDensityType::delete_Density(std::size_t index) { m_Density.erase(index); }
void ColorSpaceDensityType::clear_Density() { m_Density.clear(); }

// ColorSpaceSpectralType

constexpr s_item ColorSpaceSpectralType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceSpectralType, m_Name, attribute, text), LMX_FLAG(ColorSpaceSpectralType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumSpectral", element("ColorSpaceSpecificationSpectrumSpectral"), LMX_OFFSET(ColorSpaceSpectralType, m_ColorSpaceSpecificationSpectrumSpectral, child, none), LMX_FLAG(ColorSpaceSpectralType, m_isset_ColorSpaceSpecificationSpectrumSpectral), &ColorSpaceSpecificationSpectrumSpectral::k_class},
    {item_kind::child_list, value_kind::none, use_demanded | use_asked, ELMX_WS_PRESERVE, "Vyr:ReflectancePoint", element("ReflectancePoint"), LMX_OFFSET(ColorSpaceSpectralType, m_ReflectancePoint, child_list, none), k_no_flag, &ReflectancePointType::k_class},
};
constinit const s_class ColorSpaceSpectralType::k_class = {
    .name = "ColorSpaceSpectralType",
    .qualified_name = "Vyr:ColorSpaceSpectralType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceSpectralType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceSpectralType>,
};

const char k_ColorSpaceSpectralType_id[] = "ColorSpaceSpectralType";
const char* ColorSpaceSpectralType::id = k_ColorSpaceSpectralType_id;
ColorSpaceSpectralType::ColorSpaceSpectralType() = default;
ColorSpaceSpectralType::ColorSpaceSpectralType(const ColorSpaceSpectralType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpectralType* ColorSpaceSpectralType::clone() const { return new ColorSpaceSpectralType(*this); }
ColorSpaceSpectralType::~ColorSpaceSpectralType() = default;
ColorSpaceSpectralType& ColorSpaceSpectralType::operator=(const ColorSpaceSpectralType& other) { ColorSpaceSpectralType copy(other); swap(copy); return *this; }
const char* ColorSpaceSpectralType::getid() const { return id; }
bool ColorSpaceSpectralType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceSpectralType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpectralType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpectralType::swap(ColorSpaceSpectralType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpectralType::reset() { ColorSpaceSpectralType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpectralType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceSpectralType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumSpectral& ColorSpaceSpectralType::assign_ColorSpaceSpecificationSpectrumSpectral(const ColorSpaceSpecificationSpectrumSpectral& value) { return get_ColorSpaceSpecificationSpectrumSpectral() = value; }
ReflectancePointType& ColorSpaceSpectralType::get_ReflectancePoint(std::size_t index) { return m_ReflectancePoint.grow_to(index); }
ReflectancePointType& ColorSpaceSpectralType::assign_ReflectancePoint(std::size_t index, const ReflectancePointType& value) { return get_ReflectancePoint(index) = value; }
lmx::elmx_error ColorSpaceSpectralType::append_ReflectancePoint() { m_ReflectancePoint.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSpaceSpectralType::insert_ReflectancePoint(std::size_t index) { m_ReflectancePoint.insert(index); return lmx::ELMX_OK; }
void ColorSpaceSpectralType::delete_ReflectancePoint(std::size_t index) { m_ReflectancePoint.erase(index); }
void ColorSpaceSpectralType::clear_ReflectancePoint() { m_ReflectancePoint.clear(); }

// ColorSpaceEmissiveSpectralType

constexpr s_item ColorSpaceEmissiveSpectralType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceEmissiveSpectralType, m_Name, attribute, text), LMX_FLAG(ColorSpaceEmissiveSpectralType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationEmissiveSpectral", element("ColorSpaceSpecificationEmissiveSpectral"), LMX_OFFSET(ColorSpaceEmissiveSpectralType, m_ColorSpaceSpecificationEmissiveSpectral, child, none), LMX_FLAG(ColorSpaceEmissiveSpectralType, m_isset_ColorSpaceSpecificationEmissiveSpectral), &ColorSpaceSpecificationEmissiveSpectral::k_class},
    {item_kind::child_list, value_kind::none, use_demanded | use_asked, ELMX_WS_PRESERVE, "Vyr:EmissiveSpectralPoint", element("EmissiveSpectralPoint"), LMX_OFFSET(ColorSpaceEmissiveSpectralType, m_EmissiveSpectralPoint, child_list, none), k_no_flag, &EmissiveSpectralPointType::k_class},
};
constinit const s_class ColorSpaceEmissiveSpectralType::k_class = {
    .name = "ColorSpaceEmissiveSpectralType",
    .qualified_name = "Vyr:ColorSpaceEmissiveSpectralType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceEmissiveSpectralType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceEmissiveSpectralType>,
};

const char k_ColorSpaceEmissiveSpectralType_id[] = "ColorSpaceEmissiveSpectralType";
const char* ColorSpaceEmissiveSpectralType::id = k_ColorSpaceEmissiveSpectralType_id;
ColorSpaceEmissiveSpectralType::ColorSpaceEmissiveSpectralType() = default;
ColorSpaceEmissiveSpectralType::ColorSpaceEmissiveSpectralType(const ColorSpaceEmissiveSpectralType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceEmissiveSpectralType* ColorSpaceEmissiveSpectralType::clone() const { return new ColorSpaceEmissiveSpectralType(*this); }
ColorSpaceEmissiveSpectralType::~ColorSpaceEmissiveSpectralType() = default;
ColorSpaceEmissiveSpectralType& ColorSpaceEmissiveSpectralType::operator=(const ColorSpaceEmissiveSpectralType& other) { ColorSpaceEmissiveSpectralType copy(other); swap(copy); return *this; }
const char* ColorSpaceEmissiveSpectralType::getid() const { return id; }
bool ColorSpaceEmissiveSpectralType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceEmissiveSpectralType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceEmissiveSpectralType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceEmissiveSpectralType::swap(ColorSpaceEmissiveSpectralType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceEmissiveSpectralType::reset() { ColorSpaceEmissiveSpectralType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceEmissiveSpectralType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceEmissiveSpectralType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationEmissiveSpectral& ColorSpaceEmissiveSpectralType::assign_ColorSpaceSpecificationEmissiveSpectral(const ColorSpaceSpecificationEmissiveSpectral& value) { return get_ColorSpaceSpecificationEmissiveSpectral() = value; }
EmissiveSpectralPointType& ColorSpaceEmissiveSpectralType::get_EmissiveSpectralPoint(std::size_t index) { return m_EmissiveSpectralPoint.grow_to(index); }
EmissiveSpectralPointType& ColorSpaceEmissiveSpectralType::assign_EmissiveSpectralPoint(std::size_t index, const EmissiveSpectralPointType& value) { return get_EmissiveSpectralPoint(index) = value; }
lmx::elmx_error ColorSpaceEmissiveSpectralType::append_EmissiveSpectralPoint() { m_EmissiveSpectralPoint.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSpaceEmissiveSpectralType::insert_EmissiveSpectralPoint(std::size_t index) { m_EmissiveSpectralPoint.insert(index); return lmx::ELMX_OK; }
void ColorSpaceEmissiveSpectralType::delete_EmissiveSpectralPoint(std::size_t index) { m_EmissiveSpectralPoint.erase(index); }
void ColorSpaceEmissiveSpectralType::clear_EmissiveSpectralPoint() { m_EmissiveSpectralPoint.clear(); }

// ColorSpaceGenericType

constexpr s_item ColorSpaceGenericType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceGenericType, m_Name, attribute, text), LMX_FLAG(ColorSpaceGenericType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(ColorSpaceGenericType, m_ColorSpaceSpecificationSpectrumGeneric, child, none), LMX_FLAG(ColorSpaceGenericType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::child_list, value_kind::none, use_demanded | use_asked, ELMX_WS_PRESERVE, "Vyr:Axis", element("Axis"), LMX_OFFSET(ColorSpaceGenericType, m_Axis, child_list, none), k_no_flag, &AxisType::k_class},
};
constinit const s_class ColorSpaceGenericType::k_class = {
    .name = "ColorSpaceGenericType",
    .qualified_name = "Vyr:ColorSpaceGenericType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceGenericType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceGenericType>,
};

const char k_ColorSpaceGenericType_id[] = "ColorSpaceGenericType";
const char* ColorSpaceGenericType::id = k_ColorSpaceGenericType_id;
ColorSpaceGenericType::ColorSpaceGenericType() = default;
ColorSpaceGenericType::ColorSpaceGenericType(const ColorSpaceGenericType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceGenericType* ColorSpaceGenericType::clone() const { return new ColorSpaceGenericType(*this); }
ColorSpaceGenericType::~ColorSpaceGenericType() = default;
ColorSpaceGenericType& ColorSpaceGenericType::operator=(const ColorSpaceGenericType& other) { ColorSpaceGenericType copy(other); swap(copy); return *this; }
const char* ColorSpaceGenericType::getid() const { return id; }
bool ColorSpaceGenericType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceGenericType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceGenericType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceGenericType::swap(ColorSpaceGenericType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceGenericType::reset() { ColorSpaceGenericType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceGenericType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceGenericType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceGenericType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
AxisType& ColorSpaceGenericType::get_Axis(std::size_t index) { return m_Axis.grow_to(index); }
AxisType& ColorSpaceGenericType::assign_Axis(std::size_t index, const AxisType& value) { return get_Axis(index) = value; }
lmx::elmx_error ColorSpaceGenericType::append_Axis() { m_Axis.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSpaceGenericType::insert_Axis(std::size_t index) { m_Axis.insert(index); return lmx::ELMX_OK; }
void ColorSpaceGenericType::delete_Axis(std::size_t index) { m_Axis.erase(index); }
void ColorSpaceGenericType::clear_Axis() { m_Axis.clear(); }

// ColorSpaceEmissiveGenericType

constexpr s_item ColorSpaceEmissiveGenericType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceEmissiveGenericType, m_Name, attribute, text), LMX_FLAG(ColorSpaceEmissiveGenericType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationEmissiveGeneric", element("ColorSpaceSpecificationEmissiveGeneric"), LMX_OFFSET(ColorSpaceEmissiveGenericType, m_ColorSpaceSpecificationEmissiveGeneric, child, none), LMX_FLAG(ColorSpaceEmissiveGenericType, m_isset_ColorSpaceSpecificationEmissiveGeneric), &ColorSpaceSpecificationEmissiveGeneric::k_class},
    {item_kind::child_list, value_kind::none, use_demanded | use_asked, ELMX_WS_PRESERVE, "Vyr:Axis", element("Axis"), LMX_OFFSET(ColorSpaceEmissiveGenericType, m_Axis, child_list, none), k_no_flag, &AxisType::k_class},
};
constinit const s_class ColorSpaceEmissiveGenericType::k_class = {
    .name = "ColorSpaceEmissiveGenericType",
    .qualified_name = "Vyr:ColorSpaceEmissiveGenericType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceEmissiveGenericType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceEmissiveGenericType>,
};

const char k_ColorSpaceEmissiveGenericType_id[] = "ColorSpaceEmissiveGenericType";
const char* ColorSpaceEmissiveGenericType::id = k_ColorSpaceEmissiveGenericType_id;
ColorSpaceEmissiveGenericType::ColorSpaceEmissiveGenericType() = default;
ColorSpaceEmissiveGenericType::ColorSpaceEmissiveGenericType(const ColorSpaceEmissiveGenericType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceEmissiveGenericType* ColorSpaceEmissiveGenericType::clone() const { return new ColorSpaceEmissiveGenericType(*this); }
ColorSpaceEmissiveGenericType::~ColorSpaceEmissiveGenericType() = default;
ColorSpaceEmissiveGenericType& ColorSpaceEmissiveGenericType::operator=(const ColorSpaceEmissiveGenericType& other) { ColorSpaceEmissiveGenericType copy(other); swap(copy); return *this; }
const char* ColorSpaceEmissiveGenericType::getid() const { return id; }
bool ColorSpaceEmissiveGenericType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceEmissiveGenericType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceEmissiveGenericType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceEmissiveGenericType::swap(ColorSpaceEmissiveGenericType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceEmissiveGenericType::reset() { ColorSpaceEmissiveGenericType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceEmissiveGenericType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceEmissiveGenericType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationEmissiveGeneric& ColorSpaceEmissiveGenericType::assign_ColorSpaceSpecificationEmissiveGeneric(const ColorSpaceSpecificationEmissiveGeneric& value) { return get_ColorSpaceSpecificationEmissiveGeneric() = value; }
AxisType& ColorSpaceEmissiveGenericType::get_Axis(std::size_t index) { return m_Axis.grow_to(index); }
AxisType& ColorSpaceEmissiveGenericType::assign_Axis(std::size_t index, const AxisType& value) { return get_Axis(index) = value; }
lmx::elmx_error ColorSpaceEmissiveGenericType::append_Axis() { m_Axis.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSpaceEmissiveGenericType::insert_Axis(std::size_t index) { m_Axis.insert(index); return lmx::ELMX_OK; }
void ColorSpaceEmissiveGenericType::delete_Axis(std::size_t index) { m_Axis.erase(index); }
void ColorSpaceEmissiveGenericType::clear_Axis() { m_Axis.clear(); }

// ColorSpaceGeneric

constinit const lmx::s_document ColorSpaceGeneric::k_document = {"Vyr:ColorSpaceGeneric", "ColorSpaceGeneric", k_ns_map, &lmx::k_operations<ColorSpaceGeneric>};
ColorSpaceGeneric::ColorSpaceGeneric(const char* file_name, lmx::elmx_error* error) : ColorSpaceGeneric() { *error = unmarshal(file_name); }
ColorSpaceGeneric::ColorSpaceGeneric(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceGeneric() { *error = unmarshal(data, size); }
ColorSpaceGeneric::ColorSpaceGeneric(const std::string& text, lmx::elmx_error* error) : ColorSpaceGeneric() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceGeneric::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceGeneric::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceGeneric::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceGeneric::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceGeneric::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceGeneric::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceGeneric::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceGeneric::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceGeneric::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceGenericType::marshal(writer, name); }
lmx::elmx_error ColorSpaceGeneric::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceGenericType::unmarshal(reader, name); }

// ColorSpaceEmissiveGeneric

constinit const lmx::s_document ColorSpaceEmissiveGeneric::k_document = {"Vyr:ColorSpaceEmissiveGeneric", "ColorSpaceEmissiveGeneric", k_ns_map, &lmx::k_operations<ColorSpaceEmissiveGeneric>};
ColorSpaceEmissiveGeneric::ColorSpaceEmissiveGeneric(const char* file_name, lmx::elmx_error* error) : ColorSpaceEmissiveGeneric() { *error = unmarshal(file_name); }
ColorSpaceEmissiveGeneric::ColorSpaceEmissiveGeneric(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceEmissiveGeneric() { *error = unmarshal(data, size); }
ColorSpaceEmissiveGeneric::ColorSpaceEmissiveGeneric(const std::string& text, lmx::elmx_error* error) : ColorSpaceEmissiveGeneric() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceEmissiveGeneric::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceEmissiveGeneric::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceEmissiveGeneric::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceEmissiveGeneric::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceEmissiveGeneric::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceEmissiveGeneric::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceEmissiveGeneric::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceEmissiveGeneric::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceEmissiveGeneric::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceEmissiveGenericType::marshal(writer, name); }
lmx::elmx_error ColorSpaceEmissiveGeneric::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceEmissiveGenericType::unmarshal(reader, name); }

// ColorSpaceDensity

constinit const lmx::s_document ColorSpaceDensity::k_document = {"Vyr:ColorSpaceDensity", "ColorSpaceDensity", k_ns_map, &lmx::k_operations<ColorSpaceDensity>};
ColorSpaceDensity::ColorSpaceDensity(const char* file_name, lmx::elmx_error* error) : ColorSpaceDensity() { *error = unmarshal(file_name); }
ColorSpaceDensity::ColorSpaceDensity(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceDensity() { *error = unmarshal(data, size); }
ColorSpaceDensity::ColorSpaceDensity(const std::string& text, lmx::elmx_error* error) : ColorSpaceDensity() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceDensity::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceDensity::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceDensity::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceDensity::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceDensity::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceDensity::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceDensity::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceDensity::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceDensity::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceDensityType::marshal(writer, name); }
lmx::elmx_error ColorSpaceDensity::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceDensityType::unmarshal(reader, name); }

// ColorSpaceSpectral

constinit const lmx::s_document ColorSpaceSpectral::k_document = {"Vyr:ColorSpaceSpectral", "ColorSpaceSpectral", k_ns_map, &lmx::k_operations<ColorSpaceSpectral>};
ColorSpaceSpectral::ColorSpaceSpectral(const char* file_name, lmx::elmx_error* error) : ColorSpaceSpectral() { *error = unmarshal(file_name); }
ColorSpaceSpectral::ColorSpaceSpectral(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceSpectral() { *error = unmarshal(data, size); }
ColorSpaceSpectral::ColorSpaceSpectral(const std::string& text, lmx::elmx_error* error) : ColorSpaceSpectral() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceSpectral::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceSpectral::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpectral::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceSpectral::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceSpectral::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceSpectral::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpectral::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceSpectral::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceSpectral::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceSpectralType::marshal(writer, name); }
lmx::elmx_error ColorSpaceSpectral::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceSpectralType::unmarshal(reader, name); }

// ColorSpaceEmissiveSpectral

constinit const lmx::s_document ColorSpaceEmissiveSpectral::k_document = {"Vyr:ColorSpaceEmissiveSpectral", "ColorSpaceEmissiveSpectral", k_ns_map, &lmx::k_operations<ColorSpaceEmissiveSpectral>};
ColorSpaceEmissiveSpectral::ColorSpaceEmissiveSpectral(const char* file_name, lmx::elmx_error* error) : ColorSpaceEmissiveSpectral() { *error = unmarshal(file_name); }
ColorSpaceEmissiveSpectral::ColorSpaceEmissiveSpectral(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceEmissiveSpectral() { *error = unmarshal(data, size); }
ColorSpaceEmissiveSpectral::ColorSpaceEmissiveSpectral(const std::string& text, lmx::elmx_error* error) : ColorSpaceEmissiveSpectral() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceEmissiveSpectral::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceEmissiveSpectral::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceEmissiveSpectral::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceEmissiveSpectral::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceEmissiveSpectral::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceEmissiveSpectral::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceEmissiveSpectral::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceEmissiveSpectral::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceEmissiveSpectral::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceEmissiveSpectralType::marshal(writer, name); }
lmx::elmx_error ColorSpaceEmissiveSpectral::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceEmissiveSpectralType::unmarshal(reader, name); }

// ReflectancePointType

constexpr s_item ReflectancePointType::k_items[] = {
    {item_kind::attribute, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Wavelength", attribute("Wavelength"), LMX_OFFSET(ReflectancePointType, m_Wavelength, attribute, number), LMX_FLAG(ReflectancePointType, m_isset_Wavelength), nullptr, &facets::Wavelength},
    {item_kind::content, value_kind::number, use_required, ELMX_WS_COLLAPSE, "", 0, LMX_OFFSET(ReflectancePointType, m_ReflectancePointType, content, number), LMX_FLAG(ReflectancePointType, m_isset_ReflectancePointType), nullptr, &facets::Reflectance},
};
constinit const s_class ReflectancePointType::k_class = {
    .name = "ReflectancePointType",
    .qualified_name = "Vyr:ReflectancePointType",
    .content = content_kind::simple,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ReflectancePointType>,
};

ReflectancePointType::ReflectancePointType() = default;
ReflectancePointType::ReflectancePointType(const ReflectancePointType& other) { lmx::copy(k_class, this, &other); }
ReflectancePointType::~ReflectancePointType() = default;
ReflectancePointType& ReflectancePointType::operator=(const ReflectancePointType& other) { ReflectancePointType copy(other); swap(copy); return *this; }
lmx::elmx_error ReflectancePointType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ReflectancePointType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ReflectancePointType::swap(ReflectancePointType& other) { lmx::swap(k_class, this, &other); }
void ReflectancePointType::reset() { ReflectancePointType fresh; lmx::exchange(k_class, this, &fresh); }
bool ReflectancePointType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ReflectancePointType::set_Wavelength(double value) { return lmx::set_item(k_class, k_items[item_Wavelength], this, value); }
lmx::elmx_error ReflectancePointType::set_ReflectancePointType(double value) { return lmx::set_item(k_class, k_items[item_ReflectancePointType], this, value); }

// EmissiveSpectralPointType

constexpr s_item EmissiveSpectralPointType::k_items[] = {
    {item_kind::attribute, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Wavelength", attribute("Wavelength"), LMX_OFFSET(EmissiveSpectralPointType, m_Wavelength, attribute, number), LMX_FLAG(EmissiveSpectralPointType, m_isset_Wavelength), nullptr, &facets::Wavelength},
    {item_kind::content, value_kind::number, use_required, ELMX_WS_COLLAPSE, "", 0, LMX_OFFSET(EmissiveSpectralPointType, m_EmissiveSpectralPointType, content, number), LMX_FLAG(EmissiveSpectralPointType, m_isset_EmissiveSpectralPointType)},
};
constinit const s_class EmissiveSpectralPointType::k_class = {
    .name = "EmissiveSpectralPointType",
    .qualified_name = "Vyr:EmissiveSpectralPointType",
    .content = content_kind::simple,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<EmissiveSpectralPointType>,
};

EmissiveSpectralPointType::EmissiveSpectralPointType() = default;
EmissiveSpectralPointType::EmissiveSpectralPointType(const EmissiveSpectralPointType& other) { lmx::copy(k_class, this, &other); }
EmissiveSpectralPointType::~EmissiveSpectralPointType() = default;
EmissiveSpectralPointType& EmissiveSpectralPointType::operator=(const EmissiveSpectralPointType& other) { EmissiveSpectralPointType copy(other); swap(copy); return *this; }
lmx::elmx_error EmissiveSpectralPointType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error EmissiveSpectralPointType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void EmissiveSpectralPointType::swap(EmissiveSpectralPointType& other) { lmx::swap(k_class, this, &other); }
void EmissiveSpectralPointType::reset() { EmissiveSpectralPointType fresh; lmx::exchange(k_class, this, &fresh); }
bool EmissiveSpectralPointType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error EmissiveSpectralPointType::set_Wavelength(double value) { return lmx::set_item(k_class, k_items[item_Wavelength], this, value); }
lmx::elmx_error EmissiveSpectralPointType::set_EmissiveSpectralPointType(double value) { return lmx::set_item(k_class, k_items[item_EmissiveSpectralPointType], this, value); }

// AxisValueChoice

constexpr s_item AxisValueChoice::k_items[] = {
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:AxisFloatingPointValue", element("AxisFloatingPointValue"), 0, k_no_flag, &FloatingPointValueType::k_class},
    {item_kind::alternative, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:AxisStringValue", element("AxisStringValue"), 0, k_no_flag},
};
constinit const s_class AxisValueChoice::k_class = {
    .name = "AxisValueChoice",
    .qualified_name = "Vyr:AxisValueChoice",
    .content = content_kind::choice,
    .names = &k_names,
    .choice = LMX_CHOICE(AxisValueChoice, m_choice),
    .elements = k_items,
    .operations = &k_operations<AxisValueChoice>,
};

AxisValueChoice::AxisValueChoice() = default;
AxisValueChoice::AxisValueChoice(const AxisValueChoice& other) : AxisValueChoice() { lmx::copy(k_class, this, &other); }
AxisValueChoice::~AxisValueChoice() { lmx::release_choice(k_class, this); }
AxisValueChoice& AxisValueChoice::operator=(const AxisValueChoice& other) { AxisValueChoice copy(other); swap(copy); return *this; }
lmx::elmx_error AxisValueChoice::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error AxisValueChoice::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void AxisValueChoice::swap(AxisValueChoice& other) { lmx::swap(k_class, this, &other); }
void AxisValueChoice::reset() { AxisValueChoice fresh; lmx::exchange(k_class, this, &fresh); }
bool AxisValueChoice::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
FloatingPointValueType& AxisValueChoice::get_AxisFloatingPointValue() { return *static_cast<FloatingPointValueType*>(lmx::choose(k_class, k_items[item_AxisFloatingPointValue], this)); }
FloatingPointValueType& AxisValueChoice::assign_AxisFloatingPointValue(const FloatingPointValueType& value) { FloatingPointValueType copy(value); FloatingPointValueType& target = get_AxisFloatingPointValue(); target.swap(copy); return target; }
const std::u16string& AxisValueChoice::get_AxisStringValue() const { return lmx::chosen_text(k_class, k_items[item_AxisStringValue], this); }
lmx::elmx_error AxisValueChoice::set_AxisStringValue(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_AxisStringValue], this, value); }

// AxisType

constexpr s_item AxisType::k_items[] = {
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Vyr:AxisName", element("AxisName"), LMX_OFFSET(AxisType, m_AxisName, element, text), LMX_FLAG(AxisType, m_isset_AxisName)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:AxisValueChoice", element("AxisValueChoice"), LMX_OFFSET(AxisType, m_AxisValueChoice, child, none), LMX_FLAG(AxisType, m_isset_AxisValueChoice), &AxisValueChoice::k_class},
};
constinit const s_class AxisType::k_class = {
    .name = "AxisType",
    .qualified_name = "Vyr:AxisType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<AxisType>,
};

AxisType::AxisType() = default;
AxisType::AxisType(const AxisType& other) { lmx::copy(k_class, this, &other); }
AxisType::~AxisType() = default;
AxisType& AxisType::operator=(const AxisType& other) { AxisType copy(other); swap(copy); return *this; }
lmx::elmx_error AxisType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error AxisType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void AxisType::swap(AxisType& other) { lmx::swap(k_class, this, &other); }
void AxisType::reset() { AxisType fresh; lmx::exchange(k_class, this, &fresh); }
bool AxisType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error AxisType::set_AxisName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_AxisName], this, value); }
AxisValueChoice& AxisType::assign_AxisValueChoice(const AxisValueChoice& value) { return get_AxisValueChoice() = value; }

// FloatingPointValueType

constexpr s_item FloatingPointValueType::k_items[] = {
    {item_kind::attribute, value_kind::number, use_required, ELMX_WS_COLLAPSE, "AxisNominalMax", attribute("AxisNominalMax"), LMX_OFFSET(FloatingPointValueType, m_AxisNominalMax, attribute, number), LMX_FLAG(FloatingPointValueType, m_isset_AxisNominalMax)},
    {item_kind::attribute, value_kind::number, use_required, ELMX_WS_COLLAPSE, "AxisNominalMin", attribute("AxisNominalMin"), LMX_OFFSET(FloatingPointValueType, m_AxisNominalMin, attribute, number), LMX_FLAG(FloatingPointValueType, m_isset_AxisNominalMin)},
    {item_kind::attribute, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "AxisNominalScale", attribute("AxisNominalScale"), LMX_OFFSET(FloatingPointValueType, m_AxisNominalScale, attribute, enumerated), LMX_FLAG(FloatingPointValueType, m_isset_AxisNominalScale), nullptr, &facets::AxisScaleKind},
    {item_kind::content, value_kind::number, use_required, ELMX_WS_COLLAPSE, "", 0, LMX_OFFSET(FloatingPointValueType, m_FloatingPointValueType, content, number), LMX_FLAG(FloatingPointValueType, m_isset_FloatingPointValueType)},
};
constinit const s_class FloatingPointValueType::k_class = {
    .name = "FloatingPointValueType",
    .qualified_name = "Vyr:FloatingPointValueType",
    .content = content_kind::simple,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<FloatingPointValueType>,
};

FloatingPointValueType::FloatingPointValueType() : m_AxisNominalScale(facets::AxisScaleKind.enumeration->find(1)) {}
FloatingPointValueType::FloatingPointValueType(const FloatingPointValueType& other) : FloatingPointValueType() { lmx::copy(k_class, this, &other); }
FloatingPointValueType::~FloatingPointValueType() = default;
FloatingPointValueType& FloatingPointValueType::operator=(const FloatingPointValueType& other) { FloatingPointValueType copy(other); swap(copy); return *this; }
lmx::elmx_error FloatingPointValueType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error FloatingPointValueType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void FloatingPointValueType::swap(FloatingPointValueType& other) { lmx::swap(k_class, this, &other); }
void FloatingPointValueType::reset() { FloatingPointValueType fresh; lmx::exchange(k_class, this, &fresh); }
bool FloatingPointValueType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error FloatingPointValueType::set_AxisNominalMax(double value) { return lmx::set_item(k_class, k_items[item_AxisNominalMax], this, value); }
lmx::elmx_error FloatingPointValueType::set_AxisNominalMin(double value) { return lmx::set_item(k_class, k_items[item_AxisNominalMin], this, value); }
lmx::elmx_error FloatingPointValueType::set_AxisNominalScale(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_AxisNominalScale], this, value); }
bool FloatingPointValueType::setenum_AxisNominalScale(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_AxisNominalScale], this, number); }
lmx::elmx_error FloatingPointValueType::set_FloatingPointValueType(double value) { return lmx::set_item(k_class, k_items[item_FloatingPointValueType], this, value); }

// DensityType

constexpr s_item DensityType::k_items[] = {
    {item_kind::attribute, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "DensityStatus", attribute("DensityStatus"), LMX_OFFSET(DensityType, m_DensityStatus, attribute, enumerated), LMX_FLAG(DensityType, m_isset_DensityStatus), nullptr, &facets::DensityStatusKind},
    {item_kind::attribute, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "DensityFilter", attribute("DensityFilter"), LMX_OFFSET(DensityType, m_DensityFilter, attribute, enumerated), LMX_FLAG(DensityType, m_isset_DensityFilter), nullptr, &facets::DensityFilterKind},
    {item_kind::content, value_kind::number, use_required, ELMX_WS_COLLAPSE, "", 0, LMX_OFFSET(DensityType, m_DensityType, content, number), LMX_FLAG(DensityType, m_isset_DensityType)},
};
constinit const s_class DensityType::k_class = {
    .name = "DensityType",
    .qualified_name = "Vyr:DensityType",
    .content = content_kind::simple,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<DensityType>,
};

DensityType::DensityType() = default;
DensityType::DensityType(const DensityType& other) { lmx::copy(k_class, this, &other); }
DensityType::~DensityType() = default;
DensityType& DensityType::operator=(const DensityType& other) { DensityType copy(other); swap(copy); return *this; }
lmx::elmx_error DensityType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error DensityType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void DensityType::swap(DensityType& other) { lmx::swap(k_class, this, &other); }
void DensityType::reset() { DensityType fresh; lmx::exchange(k_class, this, &fresh); }
bool DensityType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error DensityType::set_DensityStatus(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_DensityStatus], this, value); }
bool DensityType::setenum_DensityStatus(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_DensityStatus], this, number); }
lmx::elmx_error DensityType::set_DensityFilter(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_DensityFilter], this, value); }
bool DensityType::setenum_DensityFilter(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_DensityFilter], this, number); }
lmx::elmx_error DensityType::set_DensityType(double value) { return lmx::set_item(k_class, k_items[item_DensityType], this, value); }

}  // namespace com_vyrgraph_v2
