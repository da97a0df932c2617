// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in conditions.h.

#include "schema/generated/conditions.h"
#include "lmx/binding/binding.h"
#include "schema/generated/devices.h"
#include "schema/generated/header.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// DeviceFilterType

constexpr s_item DeviceFilterType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "CustomOrPartial", attribute("CustomOrPartial"), LMX_OFFSET(DeviceFilterType, m_CustomOrPartial, attribute, text), LMX_FLAG(DeviceFilterType, m_isset_CustomOrPartial)},
    {item_kind::content, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "", 0, LMX_OFFSET(DeviceFilterType, m_DeviceFilterType, content, enumerated), LMX_FLAG(DeviceFilterType, m_isset_DeviceFilterType), nullptr, &facets::DeviceFilterKind},
};
constinit const s_class DeviceFilterType::k_class = {
    .name = "DeviceFilterType",
    .qualified_name = "Vyr:DeviceFilterType",
    .content = content_kind::simple,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<DeviceFilterType>,
};

DeviceFilterType::DeviceFilterType() = default;
DeviceFilterType::DeviceFilterType(const DeviceFilterType& other) { lmx::copy(k_class, this, &other); }
DeviceFilterType::~DeviceFilterType() = default;
DeviceFilterType& DeviceFilterType::operator=(const DeviceFilterType& other) { DeviceFilterType copy(other); swap(copy); return *this; }
lmx::elmx_error DeviceFilterType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error DeviceFilterType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void DeviceFilterType::swap(DeviceFilterType& other) { lmx::swap(k_class, this, &other); }
void DeviceFilterType::reset() { DeviceFilterType fresh; lmx::exchange(k_class, this, &fresh); }
bool DeviceFilterType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error DeviceFilterType::set_CustomOrPartial(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_CustomOrPartial], this, value); }
lmx::elmx_error DeviceFilterType::set_DeviceFilterType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_DeviceFilterType], this, value); }
bool DeviceFilterType::setenum_DeviceFilterType(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_DeviceFilterType], this, number); }

// DeviceFilter

constinit const s_class DeviceFilter::k_class = {
    .name = "DeviceFilter",
    .qualified_name = "Vyr:DeviceFilter",
    .base = &DeviceFilterType::k_class,
    .content = content_kind::simple,
    .names = &k_names,
    .nil_flag = LMX_FLAG(DeviceFilter, m_isnil),
    .operations = &k_operations<DeviceFilter>,
};

DeviceFilter::DeviceFilter() = default;
DeviceFilter::DeviceFilter(const DeviceFilter& other) : DeviceFilterType() { lmx::copy(k_class, this, &other); }
DeviceFilter::~DeviceFilter() = default;
DeviceFilter& DeviceFilter::operator=(const DeviceFilter& other) { DeviceFilter copy(other); swap(copy); return *this; }
lmx::elmx_error DeviceFilter::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error DeviceFilter::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void DeviceFilter::swap(DeviceFilter& other) { lmx::swap(k_class, this, &other); }
void DeviceFilter::reset() { DeviceFilter fresh; lmx::exchange(k_class, this, &fresh); }
bool DeviceFilter::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error DeviceFilter::set_DeviceFilterType(const std::u16string& value) { const lmx::elmx_error error = DeviceFilterType::set_DeviceFilterType(value); if (error == lmx::ELMX_OK) m_isnil = false; return error; }
bool DeviceFilter::setenum_DeviceFilterType(std::int32_t number) { const bool is_set = DeviceFilterType::setenum_DeviceFilterType(number); if (is_set) m_isnil = false; return is_set; }

// DevicePolarization

constexpr s_item DevicePolarization::k_items[] = {
    {item_kind::content, value_kind::boolean, use_required, ELMX_WS_COLLAPSE, "", 0, LMX_OFFSET(DevicePolarization, m_DevicePolarization, content, boolean), LMX_FLAG(DevicePolarization, m_isset_DevicePolarization)},
};
constinit const s_class DevicePolarization::k_class = {
    .name = "DevicePolarization",
    .qualified_name = "Vyr:DevicePolarization",
    .content = content_kind::simple,
    .names = &k_names,
    .nil_flag = LMX_FLAG(DevicePolarization, m_isnil),
    .elements = k_items,
    .operations = &k_operations<DevicePolarization>,
};

DevicePolarization::DevicePolarization() = default;
DevicePolarization::DevicePolarization(const DevicePolarization& other) { lmx::copy(k_class, this, &other); }
DevicePolarization::~DevicePolarization() = default;
DevicePolarization& DevicePolarization::operator=(const DevicePolarization& other) { DevicePolarization copy(other); swap(copy); return *this; }
lmx::elmx_error DevicePolarization::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error DevicePolarization::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void DevicePolarization::swap(DevicePolarization& other) { lmx::swap(k_class, this, &other); }
void DevicePolarization::reset() { DevicePolarization fresh; lmx::exchange(k_class, this, &fresh); }
bool DevicePolarization::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error DevicePolarization::set_DevicePolarization(bool value) { return lmx::set_item(k_class, k_items[item_DevicePolarization], this, value); }

// ColorSpaceSpecificationType

constexpr s_item ColorSpaceSpecificationType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Comments", attribute("Comments"), LMX_OFFSET(ColorSpaceSpecificationType, m_Comments, attribute, text), LMX_FLAG(ColorSpaceSpecificationType, m_isset_Comments)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "UniqueID", attribute("UniqueID"), LMX_OFFSET(ColorSpaceSpecificationType, m_UniqueID, attribute, text), LMX_FLAG(ColorSpaceSpecificationType, m_isset_UniqueID)},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(ColorSpaceSpecificationType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Profile", element("Profile"), LMX_OFFSET(ColorSpaceSpecificationType, m_Profile, optional_child, none), LMX_FLAG(ColorSpaceSpecificationType, m_isset_Profile), &ProfileType::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Device", element("Device"), LMX_OFFSET(ColorSpaceSpecificationType, m_Device, optional_child, none), LMX_FLAG(ColorSpaceSpecificationType, m_isset_Device), &DeviceType::k_class},
    {item_kind::child, value_kind::none, use_written, ELMX_WS_PRESERVE, "Vyr:DeviceFilter", element("DeviceFilter"), LMX_OFFSET(ColorSpaceSpecificationType, m_DeviceFilter, child, none), LMX_FLAG(ColorSpaceSpecificationType, m_isset_DeviceFilter), &DeviceFilter::k_class},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:DevicePolarization", element("DevicePolarization"), LMX_OFFSET(ColorSpaceSpecificationType, m_DevicePolarization, child, none), LMX_FLAG(ColorSpaceSpecificationType, m_isset_DevicePolarization), &DevicePolarization::k_class},
    {item_kind::element_list, value_kind::datetime, use_demanded | use_asked, ELMX_WS_COLLAPSE, "Vyr:ChangeHistory", element("ChangeHistory"), LMX_OFFSET(ColorSpaceSpecificationType, m_ChangeHistory, element_list, datetime), k_no_flag, nullptr, &facets::DateTimeZone},
};
constinit const s_factory_row ColorSpaceSpecificationType::k_factory[] = {
    {"ColorSpaceSpecificationSpectrumType", &ColorSpaceSpecificationSpectrumType::k_class},
    {"ColorSpaceSpecificationSpectrumGenericType", &ColorSpaceSpecificationSpectrumGenericType::k_class},
    {"ColorSpaceSpecificationSpectrumTristimulusType", &ColorSpaceSpecificationSpectrumTristimulusType::k_class},
    {"ColorSpaceSpecificationSpectrumSpectralType", &ColorSpaceSpecificationSpectrumSpectralType::k_class},
    {"ColorSpaceSpecificationEmissiveType", &ColorSpaceSpecificationEmissiveType::k_class},
    {"ColorSpaceSpecificationEmissiveGenericType", &ColorSpaceSpecificationEmissiveGenericType::k_class},
    {"ColorSpaceSpecificationEmissiveTristimulusType", &ColorSpaceSpecificationEmissiveTristimulusType::k_class},
    {"ColorSpaceSpecificationEmissiveSpectralType", &ColorSpaceSpecificationEmissiveSpectralType::k_class},
};
constinit const s_class ColorSpaceSpecificationType::k_class = {
    .name = "ColorSpaceSpecificationType",
    .qualified_name = "Vyr:ColorSpaceSpecificationType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceSpecificationType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceSpecificationType>,
};

const char k_ColorSpaceSpecificationType_id[] = "ColorSpaceSpecificationType";
const char* ColorSpaceSpecificationType::id = k_ColorSpaceSpecificationType_id;
ColorSpaceSpecificationType::ColorSpaceSpecificationType() = default;
ColorSpaceSpecificationType::ColorSpaceSpecificationType(const ColorSpaceSpecificationType& other) { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationType* ColorSpaceSpecificationType::clone() const { return new ColorSpaceSpecificationType(*this); }
ColorSpaceSpecificationType::~ColorSpaceSpecificationType() = default;
ColorSpaceSpecificationType& ColorSpaceSpecificationType::operator=(const ColorSpaceSpecificationType& other) { ColorSpaceSpecificationType copy(other); swap(copy); return *this; }
const char* ColorSpaceSpecificationType::getid() const { return id; }
bool ColorSpaceSpecificationType::has_id(const char* identity) const { return identity == id; }
lmx::elmx_error ColorSpaceSpecificationType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationType::swap(ColorSpaceSpecificationType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationType::reset() { ColorSpaceSpecificationType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceSpecificationType::set_Comments(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Comments], this, value); }
lmx::elmx_error ColorSpaceSpecificationType::set_UniqueID(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_UniqueID], this, value); }
CustomAttributeType& ColorSpaceSpecificationType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& ColorSpaceSpecificationType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error ColorSpaceSpecificationType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSpaceSpecificationType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void ColorSpaceSpecificationType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void ColorSpaceSpecificationType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
ProfileType& ColorSpaceSpecificationType::get_Profile() { ProfileType& child = m_Profile.touch(); m_isset_Profile = true; return child; }
const ProfileType& ColorSpaceSpecificationType::get_Profile() const { return m_Profile.get(); }
ProfileType& ColorSpaceSpecificationType::assign_Profile(const ProfileType& value) { return get_Profile() = value; }
DeviceType& ColorSpaceSpecificationType::get_Device() { DeviceType& child = m_Device.touch(); m_isset_Device = true; return child; }
const DeviceType& ColorSpaceSpecificationType::get_Device() const { return m_Device.get(); }
DeviceType& ColorSpaceSpecificationType::assign_Device(const DeviceType& value) { return get_Device() = value; }
DeviceFilter& ColorSpaceSpecificationType::assign_DeviceFilter(const DeviceFilter& value) { return get_DeviceFilter() = value; }
DevicePolarization& ColorSpaceSpecificationType::assign_DevicePolarization(const DevicePolarization& value) { return get_DevicePolarization() = value; }
lmx::elmx_error ColorSpaceSpecificationType::set_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::set_entry(k_items[item_ChangeHistory], this, index, value); }
lmx::elmx_error ColorSpaceSpecificationType::append_ChangeHistory(const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, size_ChangeHistory(), value); }
lmx::elmx_error ColorSpaceSpecificationType::insert_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, index, value); }
void ColorSpaceSpecificationType::delete_ChangeHistory(std::size_t index) { m_ChangeHistory.erase(index); }
void ColorSpaceSpecificationType::clear_ChangeHistory() { m_ChangeHistory.clear(); }
ColorSpaceSpecificationType* ColorSpaceSpecificationType::factory(int ns_id, const std::string& name) { return static_cast<ColorSpaceSpecificationType*>(lmx::create_by_name(k_factory, ns_id, name)); }

// SpectrumType

constexpr s_item SpectrumType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "CustomTypeName", attribute("CustomTypeName"), LMX_OFFSET(SpectrumType, m_CustomTypeName, attribute, text), LMX_FLAG(SpectrumType, m_isset_CustomTypeName)},
    {item_kind::content, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "", 0, LMX_OFFSET(SpectrumType, m_SpectrumType, content, enumerated), LMX_FLAG(SpectrumType, m_isset_SpectrumType), nullptr, &facets::SpectrumKind},
};
constinit const s_class SpectrumType::k_class = {
    .name = "SpectrumType",
    .qualified_name = "Vyr:SpectrumType",
    .content = content_kind::simple,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<SpectrumType>,
};

SpectrumType::SpectrumType() = default;
SpectrumType::SpectrumType(const SpectrumType& other) { lmx::copy(k_class, this, &other); }
SpectrumType::~SpectrumType() = default;
SpectrumType& SpectrumType::operator=(const SpectrumType& other) { SpectrumType copy(other); swap(copy); return *this; }
lmx::elmx_error SpectrumType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SpectrumType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SpectrumType::swap(SpectrumType& other) { lmx::swap(k_class, this, &other); }
void SpectrumType::reset() { SpectrumType fresh; lmx::exchange(k_class, this, &fresh); }
bool SpectrumType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SpectrumType::set_CustomTypeName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_CustomTypeName], this, value); }
lmx::elmx_error SpectrumType::set_SpectrumType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_SpectrumType], this, value); }
bool SpectrumType::setenum_SpectrumType(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_SpectrumType], this, number); }

// ColorSpaceSpecificationSpectrumType

constexpr s_item ColorSpaceSpecificationSpectrumType::k_items[] = {
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Spectrum", element("Spectrum"), LMX_OFFSET(ColorSpaceSpecificationSpectrumType, m_Spectrum, child, none), LMX_FLAG(ColorSpaceSpecificationSpectrumType, m_isset_Spectrum), &SpectrumType::k_class},
};
constinit const s_factory_row ColorSpaceSpecificationSpectrumType::k_factory[] = {
    {"ColorSpaceSpecificationSpectrumType", &ColorSpaceSpecificationSpectrumType::k_class},
    {"ColorSpaceSpecificationSpectrumGenericType", &ColorSpaceSpecificationSpectrumGenericType::k_class},
    {"ColorSpaceSpecificationSpectrumTristimulusType", &ColorSpaceSpecificationSpectrumTristimulusType::k_class},
    {"ColorSpaceSpecificationSpectrumSpectralType", &ColorSpaceSpecificationSpectrumSpectralType::k_class},
};
constinit const s_class ColorSpaceSpecificationSpectrumType::k_class = {
    .name = "ColorSpaceSpecificationSpectrumType",
    .qualified_name = "Vyr:ColorSpaceSpecificationSpectrumType",
    .base = &ColorSpaceSpecificationType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceSpecificationSpectrumType::id,
    .elements = k_items,
    .operations = &k_operations<ColorSpaceSpecificationSpectrumType>,
};

const char k_ColorSpaceSpecificationSpectrumType_id[] = "ColorSpaceSpecificationSpectrumType";
const char* ColorSpaceSpecificationSpectrumType::id = k_ColorSpaceSpecificationSpectrumType_id;
ColorSpaceSpecificationSpectrumType::ColorSpaceSpecificationSpectrumType() = default;
ColorSpaceSpecificationSpectrumType::ColorSpaceSpecificationSpectrumType(const ColorSpaceSpecificationSpectrumType& other) : ColorSpaceSpecificationType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationSpectrumType* ColorSpaceSpecificationSpectrumType::clone() const { return new ColorSpaceSpecificationSpectrumType(*this); }
ColorSpaceSpecificationSpectrumType::~ColorSpaceSpecificationSpectrumType() = default;
ColorSpaceSpecificationSpectrumType& ColorSpaceSpecificationSpectrumType::operator=(const ColorSpaceSpecificationSpectrumType& other) { ColorSpaceSpecificationSpectrumType copy(other); swap(copy); return *this; }
const char* ColorSpaceSpecificationSpectrumType::getid() const { return id; }
bool ColorSpaceSpecificationSpectrumType::has_id(const char* identity) const { return identity == id || ColorSpaceSpecificationType::has_id(identity); }
lmx::elmx_error ColorSpaceSpecificationSpectrumType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationSpectrumType::swap(ColorSpaceSpecificationSpectrumType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationSpectrumType::reset() { ColorSpaceSpecificationSpectrumType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationSpectrumType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
SpectrumType& ColorSpaceSpecificationSpectrumType::assign_Spectrum(const SpectrumType& value) { return get_Spectrum() = value; }
ColorSpaceSpecificationSpectrumType* ColorSpaceSpecificationSpectrumType::factory(int ns_id, const std::string& name) { return static_cast<ColorSpaceSpecificationSpectrumType*>(lmx::create_by_name(k_factory, ns_id, name)); }

// ColorSpaceSpecificationEmissiveType

constexpr s_item ColorSpaceSpecificationEmissiveType::k_items[] = {
    {item_kind::element, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Vyr:EmissiveType", element("EmissiveType"), LMX_OFFSET(ColorSpaceSpecificationEmissiveType, m_EmissiveType, element, enumerated), LMX_FLAG(ColorSpaceSpecificationEmissiveType, m_isset_EmissiveType), nullptr, &facets::EmissiveKind},
    {item_kind::element, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Vyr:EmissiveMode", element("EmissiveMode"), LMX_OFFSET(ColorSpaceSpecificationEmissiveType, m_EmissiveMode, element, enumerated), LMX_FLAG(ColorSpaceSpecificationEmissiveType, m_isset_EmissiveMode), nullptr, &facets::EmissiveModeKind},
};
constinit const s_factory_row ColorSpaceSpecificationEmissiveType::k_factory[] = {
    {"ColorSpaceSpecificationEmissiveType", &ColorSpaceSpecificationEmissiveType::k_class},
    {"ColorSpaceSpecificationEmissiveGenericType", &ColorSpaceSpecificationEmissiveGenericType::k_class},
    {"ColorSpaceSpecificationEmissiveTristimulusType", &ColorSpaceSpecificationEmissiveTristimulusType::k_class},
    {"ColorSpaceSpecificationEmissiveSpectralType", &ColorSpaceSpecificationEmissiveSpectralType::k_class},
};
constinit const s_class ColorSpaceSpecificationEmissiveType::k_class = {
    .name = "ColorSpaceSpecificationEmissiveType",
    .qualified_name = "Vyr:ColorSpaceSpecificationEmissiveType",
    .base = &ColorSpaceSpecificationType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceSpecificationEmissiveType::id,
    .elements = k_items,
    .operations = &k_operations<ColorSpaceSpecificationEmissiveType>,
};

const char k_ColorSpaceSpecificationEmissiveType_id[] = "ColorSpaceSpecificationEmissiveType";
const char* ColorSpaceSpecificationEmissiveType::id = k_ColorSpaceSpecificationEmissiveType_id;
ColorSpaceSpecificationEmissiveType::ColorSpaceSpecificationEmissiveType() = default;
ColorSpaceSpecificationEmissiveType::ColorSpaceSpecificationEmissiveType(const ColorSpaceSpecificationEmissiveType& other) : ColorSpaceSpecificationType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationEmissiveType* ColorSpaceSpecificationEmissiveType::clone() const { return new ColorSpaceSpecificationEmissiveType(*this); }
ColorSpaceSpecificationEmissiveType::~ColorSpaceSpecificationEmissiveType() = default;
ColorSpaceSpecificationEmissiveType& ColorSpaceSpecificationEmissiveType::operator=(const ColorSpaceSpecificationEmissiveType& other) { ColorSpaceSpecificationEmissiveType copy(other); swap(copy); return *this; }
const char* ColorSpaceSpecificationEmissiveType::getid() const { return id; }
bool ColorSpaceSpecificationEmissiveType::has_id(const char* identity) const { return identity == id || ColorSpaceSpecificationType::has_id(identity); }
lmx::elmx_error ColorSpaceSpecificationEmissiveType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationEmissiveType::swap(ColorSpaceSpecificationEmissiveType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationEmissiveType::reset() { ColorSpaceSpecificationEmissiveType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationEmissiveType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceSpecificationEmissiveType::set_EmissiveType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_EmissiveType], this, value); }
bool ColorSpaceSpecificationEmissiveType::setenum_EmissiveType(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_EmissiveType], this, number); }
lmx::elmx_error ColorSpaceSpecificationEmissiveType::set_EmissiveMode(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_EmissiveMode], this, value); }
bool ColorSpaceSpecificationEmissiveType::setenum_EmissiveMode(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_EmissiveMode], this, number); }
ColorSpaceSpecificationEmissiveType* ColorSpaceSpecificationEmissiveType::factory(int ns_id, const std::string& name) { return static_cast<ColorSpaceSpecificationEmissiveType*>(lmx::create_by_name(k_factory, ns_id, name)); }

// GeometryChoiceType

constexpr s_item GeometryChoiceType::k_items[] = {
    {item_kind::alternative, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:SphereGeometry", element("SphereGeometry"), 0, k_no_flag, nullptr, &facets::SphereGeometryKind},
    {item_kind::alternative, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Angle", element("Angle"), 0, k_no_flag},
    {item_kind::alternative, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:UnknownGeometry", element("UnknownGeometry"), 0, k_no_flag, nullptr, &facets::NonEmptyString},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:BSDFAngle", element("BSDFAngle"), 0, k_no_flag, &BSDFAngle::k_class},
};
constinit const s_class GeometryChoiceType::k_class = {
    .name = "GeometryChoiceType",
    .qualified_name = "Vyr:GeometryChoiceType",
    .content = content_kind::choice,
    .names = &k_names,
    .ns_map = k_ns_map,
    .choice = LMX_CHOICE(GeometryChoiceType, m_choice),
    .elements = k_items,
    .operations = &k_operations<GeometryChoiceType>,
};

GeometryChoiceType::GeometryChoiceType() = default;
GeometryChoiceType::GeometryChoiceType(const GeometryChoiceType& other) : GeometryChoiceType() { lmx::copy(k_class, this, &other); }
GeometryChoiceType::~GeometryChoiceType() { lmx::release_choice(k_class, this); }
GeometryChoiceType& GeometryChoiceType::operator=(const GeometryChoiceType& other) { GeometryChoiceType copy(other); swap(copy); return *this; }
lmx::elmx_error GeometryChoiceType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error GeometryChoiceType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void GeometryChoiceType::swap(GeometryChoiceType& other) { lmx::swap(k_class, this, &other); }
void GeometryChoiceType::reset() { GeometryChoiceType fresh; lmx::exchange(k_class, this, &fresh); }
bool GeometryChoiceType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
const std::u16string& GeometryChoiceType::get_SphereGeometry() const { return lmx::chosen_text(k_class, k_items[item_SphereGeometry], this); }
lmx::elmx_error GeometryChoiceType::set_SphereGeometry(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_SphereGeometry], this, value); }
Eenum_SphereGeometry GeometryChoiceType::getenum_SphereGeometry() const { return static_cast<Eenum_SphereGeometry>(lmx::chosen_number(k_class, k_items[item_SphereGeometry], this)); }
bool GeometryChoiceType::setenum_SphereGeometry(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_SphereGeometry], this, number); }
lmx::elmx_error GeometryChoiceType::set_Angle(double value) { return lmx::set_item(k_class, k_items[item_Angle], this, value); }
const std::u16string& GeometryChoiceType::get_UnknownGeometry() const { return lmx::chosen_text(k_class, k_items[item_UnknownGeometry], this); }
lmx::elmx_error GeometryChoiceType::set_UnknownGeometry(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_UnknownGeometry], this, value); }
BSDFAngle& GeometryChoiceType::get_BSDFAngle() { return *static_cast<BSDFAngle*>(lmx::choose(k_class, k_items[item_BSDFAngle], this)); }
BSDFAngle& GeometryChoiceType::assign_BSDFAngle(const BSDFAngle& value) { BSDFAngle copy(value); BSDFAngle& target = get_BSDFAngle(); target.swap(copy); return target; }

// IlluminationOptionsType

constexpr s_item IlluminationOptionsType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Description", attribute("Description"), LMX_OFFSET(IlluminationOptionsType, m_Description, attribute, text), LMX_FLAG(IlluminationOptionsType, m_isset_Description)},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Illuminant", element("Illuminant"), 0, k_no_flag, &Illuminant::k_class},
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:WhitePointChromaticity", element("WhitePointChromaticity"), 0, k_no_flag, &WhitePointChromaticity::k_class},
    {item_kind::alternative, value_kind::uint32, use_optional, ELMX_WS_COLLAPSE, "Vyr:ColorTemperature", element("ColorTemperature"), 0, k_no_flag, nullptr, &facets::PositiveInt32},
};
constinit const s_class IlluminationOptionsType::k_class = {
    .name = "IlluminationOptionsType",
    .qualified_name = "Vyr:IlluminationOptionsType",
    .content = content_kind::choice,
    .names = &k_names,
    .ns_map = k_ns_map,
    .choice = LMX_CHOICE(IlluminationOptionsType, m_choice),
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<IlluminationOptionsType>,
};

IlluminationOptionsType::IlluminationOptionsType() = default;
IlluminationOptionsType::IlluminationOptionsType(const IlluminationOptionsType& other) : IlluminationOptionsType() { lmx::copy(k_class, this, &other); }
IlluminationOptionsType::~IlluminationOptionsType() { lmx::release_choice(k_class, this); }
IlluminationOptionsType& IlluminationOptionsType::operator=(const IlluminationOptionsType& other) { IlluminationOptionsType copy(other); swap(copy); return *this; }
lmx::elmx_error IlluminationOptionsType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error IlluminationOptionsType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void IlluminationOptionsType::swap(IlluminationOptionsType& other) { lmx::swap(k_class, this, &other); }
void IlluminationOptionsType::reset() { IlluminationOptionsType fresh; lmx::exchange(k_class, this, &fresh); }
bool IlluminationOptionsType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error IlluminationOptionsType::set_Description(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Description], this, value); }
Illuminant& IlluminationOptionsType::get_Illuminant() { return *static_cast<Illuminant*>(lmx::choose(k_class, k_items[item_Illuminant], this)); }
Illuminant& IlluminationOptionsType::assign_Illuminant(const Illuminant& value) { Illuminant copy(value); Illuminant& target = get_Illuminant(); target.swap(copy); return target; }
WhitePointChromaticity& IlluminationOptionsType::get_WhitePointChromaticity() { return *static_cast<WhitePointChromaticity*>(lmx::choose(k_class, k_items[item_WhitePointChromaticity], this)); }
WhitePointChromaticity& IlluminationOptionsType::assign_WhitePointChromaticity(const WhitePointChromaticity& value) { WhitePointChromaticity copy(value); WhitePointChromaticity& target = get_WhitePointChromaticity(); target.swap(copy); return target; }
lmx::elmx_error IlluminationOptionsType::set_ColorTemperature(std::uint32_t value) { return lmx::set_item(k_class, k_items[item_ColorTemperature], this, value); }

// ColorSpaceSpecificationSpectrumGenericType

constexpr s_item ColorSpaceSpecificationSpectrumGenericType::k_items[] = {
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:GeometryChoice", element("GeometryChoice"), LMX_OFFSET(ColorSpaceSpecificationSpectrumGenericType, m_GeometryChoice, optional_child, none), LMX_FLAG(ColorSpaceSpecificationSpectrumGenericType, m_isset_GeometryChoice), &GeometryChoiceType::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:IlluminationOptions", element("IlluminationOptions"), LMX_OFFSET(ColorSpaceSpecificationSpectrumGenericType, m_IlluminationOptions, optional_child, none), LMX_FLAG(ColorSpaceSpecificationSpectrumGenericType, m_isset_IlluminationOptions), &IlluminationOptionsType::k_class},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:FieldOfView", element("FieldOfView"), LMX_OFFSET(ColorSpaceSpecificationSpectrumGenericType, m_FieldOfView, element, enumerated), LMX_FLAG(ColorSpaceSpecificationSpectrumGenericType, m_isset_FieldOfView), nullptr, &facets::ObserverKind},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:ASTM_Table", element("ASTM_Table"), LMX_OFFSET(ColorSpaceSpecificationSpectrumGenericType, m_ASTM_Table, element, enumerated), LMX_FLAG(ColorSpaceSpecificationSpectrumGenericType, m_isset_ASTM_Table), nullptr, &facets::AstmTableKind},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Gamma", element("Gamma"), LMX_OFFSET(ColorSpaceSpecificationSpectrumGenericType, m_Gamma, element, number), LMX_FLAG(ColorSpaceSpecificationSpectrumGenericType, m_isset_Gamma)},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:DensityStatus", element("DensityStatus"), LMX_OFFSET(ColorSpaceSpecificationSpectrumGenericType, m_DensityStatus, element, enumerated), LMX_FLAG(ColorSpaceSpecificationSpectrumGenericType, m_isset_DensityStatus), nullptr, &facets::DensityStatusKind},
};
constinit const s_class ColorSpaceSpecificationSpectrumGenericType::k_class = {
    .name = "ColorSpaceSpecificationSpectrumGenericType",
    .qualified_name = "Vyr:ColorSpaceSpecificationSpectrumGenericType",
    .base = &ColorSpaceSpecificationSpectrumType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceSpecificationSpectrumGenericType::id,
    .elements = k_items,
    .operations = &k_operations<ColorSpaceSpecificationSpectrumGenericType>,
};

const char k_ColorSpaceSpecificationSpectrumGenericType_id[] = "ColorSpaceSpecificationSpectrumGenericType";
const char* ColorSpaceSpecificationSpectrumGenericType::id = k_ColorSpaceSpecificationSpectrumGenericType_id;
ColorSpaceSpecificationSpectrumGenericType::ColorSpaceSpecificationSpectrumGenericType() = default;
ColorSpaceSpecificationSpectrumGenericType::ColorSpaceSpecificationSpectrumGenericType(const ColorSpaceSpecificationSpectrumGenericType& other) : ColorSpaceSpecificationSpectrumType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationSpectrumGenericType* ColorSpaceSpecificationSpectrumGenericType::clone() const { return new ColorSpaceSpecificationSpectrumGenericType(*this); }
ColorSpaceSpecificationSpectrumGenericType::~ColorSpaceSpecificationSpectrumGenericType() = default;
ColorSpaceSpecificationSpectrumGenericType& ColorSpaceSpecificationSpectrumGenericType::operator=(const ColorSpaceSpecificationSpectrumGenericType& other) { ColorSpaceSpecificationSpectrumGenericType copy(other); swap(copy); return *this; }
const char* ColorSpaceSpecificationSpectrumGenericType::getid() const { return id; }
bool ColorSpaceSpecificationSpectrumGenericType::has_id(const char* identity) const { return identity == id || ColorSpaceSpecificationSpectrumType::has_id(identity); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGenericType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGenericType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationSpectrumGenericType::swap(ColorSpaceSpecificationSpectrumGenericType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationSpectrumGenericType::reset() { ColorSpaceSpecificationSpectrumGenericType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationSpectrumGenericType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
GeometryChoiceType& ColorSpaceSpecificationSpectrumGenericType::get_GeometryChoice() { GeometryChoiceType& child = m_GeometryChoice.touch(); m_isset_GeometryChoice = true; return child; }
const GeometryChoiceType& ColorSpaceSpecificationSpectrumGenericType::get_GeometryChoice() const { return m_GeometryChoice.get(); }
GeometryChoiceType& ColorSpaceSpecificationSpectrumGenericType::assign_GeometryChoice(const GeometryChoiceType& value) { return get_GeometryChoice() = value; }
IlluminationOptionsType& ColorSpaceSpecificationSpectrumGenericType::get_IlluminationOptions() { IlluminationOptionsType& child = m_IlluminationOptions.touch(); m_isset_IlluminationOptions = true; return child; }
const IlluminationOptionsType& ColorSpaceSpecificationSpectrumGenericType::get_IlluminationOptions() const { return m_IlluminationOptions.get(); }
IlluminationOptionsType& ColorSpaceSpecificationSpectrumGenericType::assign_IlluminationOptions(const IlluminationOptionsType& value) { return get_IlluminationOptions() = value; }
lmx::elmx_error ColorSpaceSpecificationSpectrumGenericType::set_FieldOfView(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_FieldOfView], this, value); }
bool ColorSpaceSpecificationSpectrumGenericType::setenum_FieldOfView(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_FieldOfView], this, number); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGenericType::set_ASTM_Table(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ASTM_Table], this, value); }
bool ColorSpaceSpecificationSpectrumGenericType::setenum_ASTM_Table(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_ASTM_Table], this, number); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGenericType::set_Gamma(double value) { return lmx::set_item(k_class, k_items[item_Gamma], this, value); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGenericType::set_DensityStatus(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_DensityStatus], this, value); }
bool ColorSpaceSpecificationSpectrumGenericType::setenum_DensityStatus(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_DensityStatus], this, number); }

// ColorSpaceSpecificationSpectrumTristimulusType

constexpr s_item ColorSpaceSpecificationSpectrumTristimulusType::k_items[] = {
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:IlluminationOptions", element("IlluminationOptions"), LMX_OFFSET(ColorSpaceSpecificationSpectrumTristimulusType, m_IlluminationOptions, child, none), LMX_FLAG(ColorSpaceSpecificationSpectrumTristimulusType, m_isset_IlluminationOptions), &IlluminationOptionsType::k_class},
    {item_kind::element, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Vyr:FieldOfView", element("FieldOfView"), LMX_OFFSET(ColorSpaceSpecificationSpectrumTristimulusType, m_FieldOfView, element, enumerated), LMX_FLAG(ColorSpaceSpecificationSpectrumTristimulusType, m_isset_FieldOfView), nullptr, &facets::ObserverKind},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:GeometryChoice", element("GeometryChoice"), LMX_OFFSET(ColorSpaceSpecificationSpectrumTristimulusType, m_GeometryChoice, optional_child, none), LMX_FLAG(ColorSpaceSpecificationSpectrumTristimulusType, m_isset_GeometryChoice), &GeometryChoiceType::k_class},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:ASTM_Table", element("ASTM_Table"), LMX_OFFSET(ColorSpaceSpecificationSpectrumTristimulusType, m_ASTM_Table, element, enumerated), LMX_FLAG(ColorSpaceSpecificationSpectrumTristimulusType, m_isset_ASTM_Table), nullptr, &facets::AstmTableKind},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Gamma", element("Gamma"), LMX_OFFSET(ColorSpaceSpecificationSpectrumTristimulusType, m_Gamma, element, number), LMX_FLAG(ColorSpaceSpecificationSpectrumTristimulusType, m_isset_Gamma)},
};
constinit const s_class ColorSpaceSpecificationSpectrumTristimulusType::k_class = {
    .name = "ColorSpaceSpecificationSpectrumTristimulusType",
    .qualified_name = "Vyr:ColorSpaceSpecificationSpectrumTristimulusType",
    .base = &ColorSpaceSpecificationSpectrumType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceSpecificationSpectrumTristimulusType::id,
    .elements = k_items,
    .operations = &k_operations<ColorSpaceSpecificationSpectrumTristimulusType>,
};

const char k_ColorSpaceSpecificationSpectrumTristimulusType_id[] = "ColorSpaceSpecificationSpectrumTristimulusType";
const char* ColorSpaceSpecificationSpectrumTristimulusType::id = k_ColorSpaceSpecificationSpectrumTristimulusType_id;
ColorSpaceSpecificationSpectrumTristimulusType::ColorSpaceSpecificationSpectrumTristimulusType() = default;
ColorSpaceSpecificationSpectrumTristimulusType::ColorSpaceSpecificationSpectrumTristimulusType(const ColorSpaceSpecificationSpectrumTristimulusType& other) : ColorSpaceSpecificationSpectrumType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationSpectrumTristimulusType* ColorSpaceSpecificationSpectrumTristimulusType::clone() const { return new ColorSpaceSpecificationSpectrumTristimulusType(*this); }
ColorSpaceSpecificationSpectrumTristimulusType::~ColorSpaceSpecificationSpectrumTristimulusType() = default;
ColorSpaceSpecificationSpectrumTristimulusType& ColorSpaceSpecificationSpectrumTristimulusType::operator=(const ColorSpaceSpecificationSpectrumTristimulusType& other) { ColorSpaceSpecificationSpectrumTristimulusType copy(other); swap(copy); return *this; }
const char* ColorSpaceSpecificationSpectrumTristimulusType::getid() const { return id; }
bool ColorSpaceSpecificationSpectrumTristimulusType::has_id(const char* identity) const { return identity == id || ColorSpaceSpecificationSpectrumType::has_id(identity); }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulusType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulusType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationSpectrumTristimulusType::swap(ColorSpaceSpecificationSpectrumTristimulusType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationSpectrumTristimulusType::reset() { ColorSpaceSpecificationSpectrumTristimulusType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationSpectrumTristimulusType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
IlluminationOptionsType& ColorSpaceSpecificationSpectrumTristimulusType::assign_IlluminationOptions(const IlluminationOptionsType& value) { return get_IlluminationOptions() = value; }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulusType::set_FieldOfView(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_FieldOfView], this, value); }
bool ColorSpaceSpecificationSpectrumTristimulusType::setenum_FieldOfView(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_FieldOfView], this, number); }
GeometryChoiceType& ColorSpaceSpecificationSpectrumTristimulusType::get_GeometryChoice() { GeometryChoiceType& child = m_GeometryChoice.touch(); m_isset_GeometryChoice = true; return child; }
const GeometryChoiceType& ColorSpaceSpecificationSpectrumTristimulusType::get_GeometryChoice() const { return m_GeometryChoice.get(); }
GeometryChoiceType& ColorSpaceSpecificationSpectrumTristimulusType::assign_GeometryChoice(const GeometryChoiceType& value) { return get_GeometryChoice() = value; }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulusType::set_ASTM_Table(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ASTM_Table], this, value); }
bool ColorSpaceSpecificationSpectrumTristimulusType::setenum_ASTM_Table(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_ASTM_Table], this, number); }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulusType::set_Gamma(double value) { return lmx::set_item(k_class, k_items[item_Gamma], this, value); }

// ColorSpaceSpecificationSpectrumSpectralType

constexpr s_item ColorSpaceSpecificationSpectrumSpectralType::k_items[] = {
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:GeometryChoice", element("GeometryChoice"), LMX_OFFSET(ColorSpaceSpecificationSpectrumSpectralType, m_GeometryChoice, child, none), LMX_FLAG(ColorSpaceSpecificationSpectrumSpectralType, m_isset_GeometryChoice), &GeometryChoiceType::k_class},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:ASTM_Table", element("ASTM_Table"), LMX_OFFSET(ColorSpaceSpecificationSpectrumSpectralType, m_ASTM_Table, element, enumerated), LMX_FLAG(ColorSpaceSpecificationSpectrumSpectralType, m_isset_ASTM_Table), nullptr, &facets::AstmTableKind},
};
constinit const s_class ColorSpaceSpecificationSpectrumSpectralType::k_class = {
    .name = "ColorSpaceSpecificationSpectrumSpectralType",
    .qualified_name = "Vyr:ColorSpaceSpecificationSpectrumSpectralType",
    .base = &ColorSpaceSpecificationSpectrumType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceSpecificationSpectrumSpectralType::id,
    .elements = k_items,
    .operations = &k_operations<ColorSpaceSpecificationSpectrumSpectralType>,
};

const char k_ColorSpaceSpecificationSpectrumSpectralType_id[] = "ColorSpaceSpecificationSpectrumSpectralType";
const char* ColorSpaceSpecificationSpectrumSpectralType::id = k_ColorSpaceSpecificationSpectrumSpectralType_id;
ColorSpaceSpecificationSpectrumSpectralType::ColorSpaceSpecificationSpectrumSpectralType() = default;
ColorSpaceSpecificationSpectrumSpectralType::ColorSpaceSpecificationSpectrumSpectralType(const ColorSpaceSpecificationSpectrumSpectralType& other) : ColorSpaceSpecificationSpectrumType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationSpectrumSpectralType* ColorSpaceSpecificationSpectrumSpectralType::clone() const { return new ColorSpaceSpecificationSpectrumSpectralType(*this); }
ColorSpaceSpecificationSpectrumSpectralType::~ColorSpaceSpecificationSpectrumSpectralType() = default;
ColorSpaceSpecificationSpectrumSpectralType& ColorSpaceSpecificationSpectrumSpectralType::operator=(const ColorSpaceSpecificationSpectrumSpectralType& other) { ColorSpaceSpecificationSpectrumSpectralType copy(other); swap(copy); return *this; }
const char* ColorSpaceSpecificationSpectrumSpectralType::getid() const { return id; }
bool ColorSpaceSpecificationSpectrumSpectralType::has_id(const char* identity) const { return identity == id || ColorSpaceSpecificationSpectrumType::has_id(identity); }
lmx::elmx_error ColorSpaceSpecificationSpectrumSpectralType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumSpectralType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationSpectrumSpectralType::swap(ColorSpaceSpecificationSpectrumSpectralType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationSpectrumSpectralType::reset() { ColorSpaceSpecificationSpectrumSpectralType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationSpectrumSpectralType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
GeometryChoiceType& ColorSpaceSpecificationSpectrumSpectralType::assign_GeometryChoice(const GeometryChoiceType& value) { return get_GeometryChoice() = value; }
lmx::elmx_error ColorSpaceSpecificationSpectrumSpectralType::set_ASTM_Table(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ASTM_Table], this, value); }
bool ColorSpaceSpecificationSpectrumSpectralType::setenum_ASTM_Table(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_ASTM_Table], this, number); }

// ColorSpaceSpecificationEmissiveGenericType

constexpr s_item ColorSpaceSpecificationEmissiveGenericType::k_items[] = {
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:GeometryChoice", element("GeometryChoice"), LMX_OFFSET(ColorSpaceSpecificationEmissiveGenericType, m_GeometryChoice, optional_child, none), LMX_FLAG(ColorSpaceSpecificationEmissiveGenericType, m_isset_GeometryChoice), &GeometryChoiceType::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:IlluminationOptions", element("IlluminationOptions"), LMX_OFFSET(ColorSpaceSpecificationEmissiveGenericType, m_IlluminationOptions, optional_child, none), LMX_FLAG(ColorSpaceSpecificationEmissiveGenericType, m_isset_IlluminationOptions), &IlluminationOptionsType::k_class},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:FieldOfView", element("FieldOfView"), LMX_OFFSET(ColorSpaceSpecificationEmissiveGenericType, m_FieldOfView, element, enumerated), LMX_FLAG(ColorSpaceSpecificationEmissiveGenericType, m_isset_FieldOfView), nullptr, &facets::ObserverKind},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:ASTM_Table", element("ASTM_Table"), LMX_OFFSET(ColorSpaceSpecificationEmissiveGenericType, m_ASTM_Table, element, enumerated), LMX_FLAG(ColorSpaceSpecificationEmissiveGenericType, m_isset_ASTM_Table), nullptr, &facets::AstmTableKind},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Gamma", element("Gamma"), LMX_OFFSET(ColorSpaceSpecificationEmissiveGenericType, m_Gamma, element, number), LMX_FLAG(ColorSpaceSpecificationEmissiveGenericType, m_isset_Gamma)},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:DensityStatus", element("DensityStatus"), LMX_OFFSET(ColorSpaceSpecificationEmissiveGenericType, m_DensityStatus, element, enumerated), LMX_FLAG(ColorSpaceSpecificationEmissiveGenericType, m_isset_DensityStatus), nullptr, &facets::DensityStatusKind},
};
constinit const s_class ColorSpaceSpecificationEmissiveGenericType::k_class = {
    .name = "ColorSpaceSpecificationEmissiveGenericType",
    .qualified_name = "Vyr:ColorSpaceSpecificationEmissiveGenericType",
    .base = &ColorSpaceSpecificationEmissiveType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceSpecificationEmissiveGenericType::id,
    .elements = k_items,
    .operations = &k_operations<ColorSpaceSpecificationEmissiveGenericType>,
};

const char k_ColorSpaceSpecificationEmissiveGenericType_id[] = "ColorSpaceSpecificationEmissiveGenericType";
const char* ColorSpaceSpecificationEmissiveGenericType::id = k_ColorSpaceSpecificationEmissiveGenericType_id;
ColorSpaceSpecificationEmissiveGenericType::ColorSpaceSpecificationEmissiveGenericType() = default;
ColorSpaceSpecificationEmissiveGenericType::ColorSpaceSpecificationEmissiveGenericType(const ColorSpaceSpecificationEmissiveGenericType& other) : ColorSpaceSpecificationEmissiveType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationEmissiveGenericType* ColorSpaceSpecificationEmissiveGenericType::clone() const { return new ColorSpaceSpecificationEmissiveGenericType(*this); }
ColorSpaceSpecificationEmissiveGenericType::~ColorSpaceSpecificationEmissiveGenericType() = default;
ColorSpaceSpecificationEmissiveGenericType& ColorSpaceSpecificationEmissiveGenericType::operator=(const ColorSpaceSpecificationEmissiveGenericType& other) { ColorSpaceSpecificationEmissiveGenericType copy(other); swap(copy); return *this; }
const char* ColorSpaceSpecificationEmissiveGenericType::getid() const { return id; }
bool ColorSpaceSpecificationEmissiveGenericType::has_id(const char* identity) const { return identity == id || ColorSpaceSpecificationEmissiveType::has_id(identity); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGenericType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGenericType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationEmissiveGenericType::swap(ColorSpaceSpecificationEmissiveGenericType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationEmissiveGenericType::reset() { ColorSpaceSpecificationEmissiveGenericType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationEmissiveGenericType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
GeometryChoiceType& ColorSpaceSpecificationEmissiveGenericType::get_GeometryChoice() { GeometryChoiceType& child = m_GeometryChoice.touch(); m_isset_GeometryChoice = true; return child; }
const GeometryChoiceType& ColorSpaceSpecificationEmissiveGenericType::get_GeometryChoice() const { return m_GeometryChoice.get(); }
GeometryChoiceType& ColorSpaceSpecificationEmissiveGenericType::assign_GeometryChoice(const GeometryChoiceType& value) { return get_GeometryChoice() = value; }
IlluminationOptionsType& ColorSpaceSpecificationEmissiveGenericType::get_IlluminationOptions() { IlluminationOptionsType& child = m_IlluminationOptions.touch(); m_isset_IlluminationOptions = true; return child; }
const IlluminationOptionsType& ColorSpaceSpecificationEmissiveGenericType::get_IlluminationOptions() const { return m_IlluminationOptions.get(); }
IlluminationOptionsType& ColorSpaceSpecificationEmissiveGenericType::assign_IlluminationOptions(const IlluminationOptionsType& value) { return get_IlluminationOptions() = value; }
lmx::elmx_error ColorSpaceSpecificationEmissiveGenericType::set_FieldOfView(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_FieldOfView], this, value); }
bool ColorSpaceSpecificationEmissiveGenericType::setenum_FieldOfView(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_FieldOfView], this, number); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGenericType::set_ASTM_Table(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ASTM_Table], this, value); }
bool ColorSpaceSpecificationEmissiveGenericType::setenum_ASTM_Table(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_ASTM_Table], this, number); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGenericType::set_Gamma(double value) { return lmx::set_item(k_class, k_items[item_Gamma], this, value); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGenericType::set_DensityStatus(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_DensityStatus], this, value); }
bool ColorSpaceSpecificationEmissiveGenericType::setenum_DensityStatus(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_DensityStatus], this, number); }

// ColorSpaceSpecificationEmissiveTristimulusType

constexpr s_item ColorSpaceSpecificationEmissiveTristimulusType::k_items[] = {
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:IlluminationOptions", element("IlluminationOptions"), LMX_OFFSET(ColorSpaceSpecificationEmissiveTristimulusType, m_IlluminationOptions, child, none), LMX_FLAG(ColorSpaceSpecificationEmissiveTristimulusType, m_isset_IlluminationOptions), &IlluminationOptionsType::k_class},
    {item_kind::element, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Vyr:FieldOfView", element("FieldOfView"), LMX_OFFSET(ColorSpaceSpecificationEmissiveTristimulusType, m_FieldOfView, element, enumerated), LMX_FLAG(ColorSpaceSpecificationEmissiveTristimulusType, m_isset_FieldOfView), nullptr, &facets::ObserverKind},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:GeometryChoice", element("GeometryChoice"), LMX_OFFSET(ColorSpaceSpecificationEmissiveTristimulusType, m_GeometryChoice, optional_child, none), LMX_FLAG(ColorSpaceSpecificationEmissiveTristimulusType, m_isset_GeometryChoice), &GeometryChoiceType::k_class},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:ASTM_Table", element("ASTM_Table"), LMX_OFFSET(ColorSpaceSpecificationEmissiveTristimulusType, m_ASTM_Table, element, enumerated), LMX_FLAG(ColorSpaceSpecificationEmissiveTristimulusType, m_isset_ASTM_Table), nullptr, &facets::AstmTableKind},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Gamma", element("Gamma"), LMX_OFFSET(ColorSpaceSpecificationEmissiveTristimulusType, m_Gamma, element, number), LMX_FLAG(ColorSpaceSpecificationEmissiveTristimulusType, m_isset_Gamma)},
};
constinit const s_class ColorSpaceSpecificationEmissiveTristimulusType::k_class = {
    .name = "ColorSpaceSpecificationEmissiveTristimulusType",
    .qualified_name = "Vyr:ColorSpaceSpecificationEmissiveTristimulusType",
    .base = &ColorSpaceSpecificationEmissiveType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceSpecificationEmissiveTristimulusType::id,
    .elements = k_items,
    .operations = &k_operations<ColorSpaceSpecificationEmissiveTristimulusType>,
};

const char k_ColorSpaceSpecificationEmissiveTristimulusType_id[] = "ColorSpaceSpecificationEmissiveTristimulusType";
const char* ColorSpaceSpecificationEmissiveTristimulusType::id = k_ColorSpaceSpecificationEmissiveTristimulusType_id;
ColorSpaceSpecificationEmissiveTristimulusType::ColorSpaceSpecificationEmissiveTristimulusType() = default;
ColorSpaceSpecificationEmissiveTristimulusType::ColorSpaceSpecificationEmissiveTristimulusType(const ColorSpaceSpecificationEmissiveTristimulusType& other) : ColorSpaceSpecificationEmissiveType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationEmissiveTristimulusType* ColorSpaceSpecificationEmissiveTristimulusType::clone() const { return new ColorSpaceSpecificationEmissiveTristimulusType(*this); }
ColorSpaceSpecificationEmissiveTristimulusType::~ColorSpaceSpecificationEmissiveTristimulusType() = default;
ColorSpaceSpecificationEmissiveTristimulusType& ColorSpaceSpecificationEmissiveTristimulusType::operator=(const ColorSpaceSpecificationEmissiveTristimulusType& other) { ColorSpaceSpecificationEmissiveTristimulusType copy(other); swap(copy); return *this; }
const char* ColorSpaceSpecificationEmissiveTristimulusType::getid() const { return id; }
bool ColorSpaceSpecificationEmissiveTristimulusType::has_id(const char* identity) const { return identity == id || ColorSpaceSpecificationEmissiveType::has_id(identity); }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulusType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulusType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationEmissiveTristimulusType::swap(ColorSpaceSpecificationEmissiveTristimulusType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationEmissiveTristimulusType::reset() { ColorSpaceSpecificationEmissiveTristimulusType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationEmissiveTristimulusType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
IlluminationOptionsType& ColorSpaceSpecificationEmissiveTristimulusType::assign_IlluminationOptions(const IlluminationOptionsType& value) { return get_IlluminationOptions() = value; }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulusType::set_FieldOfView(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_FieldOfView], this, value); }
bool ColorSpaceSpecificationEmissiveTristimulusType::setenum_FieldOfView(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_FieldOfView], this, number); }
GeometryChoiceType& ColorSpaceSpecificationEmissiveTristimulusType::get_GeometryChoice() { GeometryChoiceType& child = m_GeometryChoice.touch(); m_isset_GeometryChoice = true; return child; }
const GeometryChoiceType& ColorSpaceSpecificationEmissiveTristimulusType::get_GeometryChoice() const { return m_GeometryChoice.get(); }
GeometryChoiceType& ColorSpaceSpecificationEmissiveTristimulusType::assign_GeometryChoice(const GeometryChoiceType& value) { return get_GeometryChoice() = value; }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulusType::set_ASTM_Table(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ASTM_Table], this, value); }
bool ColorSpaceSpecificationEmissiveTristimulusType::setenum_ASTM_Table(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_ASTM_Table], this, number); }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulusType::set_Gamma(double value) { return lmx::set_item(k_class, k_items[item_Gamma], this, value); }

// ColorSpaceSpecificationEmissiveSpectralType

constexpr s_item ColorSpaceSpecificationEmissiveSpectralType::k_items[] = {
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:GeometryChoice", element("GeometryChoice"), LMX_OFFSET(ColorSpaceSpecificationEmissiveSpectralType, m_GeometryChoice, child, none), LMX_FLAG(ColorSpaceSpecificationEmissiveSpectralType, m_isset_GeometryChoice), &GeometryChoiceType::k_class},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:ASTM_Table", element("ASTM_Table"), LMX_OFFSET(ColorSpaceSpecificationEmissiveSpectralType, m_ASTM_Table, element, enumerated), LMX_FLAG(ColorSpaceSpecificationEmissiveSpectralType, m_isset_ASTM_Table), nullptr, &facets::AstmTableKind},
};
constinit const s_class ColorSpaceSpecificationEmissiveSpectralType::k_class = {
    .name = "ColorSpaceSpecificationEmissiveSpectralType",
    .qualified_name = "Vyr:ColorSpaceSpecificationEmissiveSpectralType",
    .base = &ColorSpaceSpecificationEmissiveType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceSpecificationEmissiveSpectralType::id,
    .elements = k_items,
    .operations = &k_operations<ColorSpaceSpecificationEmissiveSpectralType>,
};

const char k_ColorSpaceSpecificationEmissiveSpectralType_id[] = "ColorSpaceSpecificationEmissiveSpectralType";
const char* ColorSpaceSpecificationEmissiveSpectralType::id = k_ColorSpaceSpecificationEmissiveSpectralType_id;
ColorSpaceSpecificationEmissiveSpectralType::ColorSpaceSpecificationEmissiveSpectralType() = default;
ColorSpaceSpecificationEmissiveSpectralType::ColorSpaceSpecificationEmissiveSpectralType(const ColorSpaceSpecificationEmissiveSpectralType& other) : ColorSpaceSpecificationEmissiveType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationEmissiveSpectralType* ColorSpaceSpecificationEmissiveSpectralType::clone() const { return new ColorSpaceSpecificationEmissiveSpectralType(*this); }
ColorSpaceSpecificationEmissiveSpectralType::~ColorSpaceSpecificationEmissiveSpectralType() = default;
ColorSpaceSpecificationEmissiveSpectralType& ColorSpaceSpecificationEmissiveSpectralType::operator=(const ColorSpaceSpecificationEmissiveSpectralType& other) { ColorSpaceSpecificationEmissiveSpectralType copy(other); swap(copy); return *this; }
const char* ColorSpaceSpecificationEmissiveSpectralType::getid() const { return id; }
bool ColorSpaceSpecificationEmissiveSpectralType::has_id(const char* identity) const { return identity == id || ColorSpaceSpecificationEmissiveType::has_id(identity); }
lmx::elmx_error ColorSpaceSpecificationEmissiveSpectralType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveSpectralType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationEmissiveSpectralType::swap(ColorSpaceSpecificationEmissiveSpectralType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationEmissiveSpectralType::reset() { ColorSpaceSpecificationEmissiveSpectralType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationEmissiveSpectralType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
GeometryChoiceType& ColorSpaceSpecificationEmissiveSpectralType::assign_GeometryChoice(const GeometryChoiceType& value) { return get_GeometryChoice() = value; }
lmx::elmx_error ColorSpaceSpecificationEmissiveSpectralType::set_ASTM_Table(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ASTM_Table], this, value); }
bool ColorSpaceSpecificationEmissiveSpectralType::setenum_ASTM_Table(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_ASTM_Table], this, number); }

// ColorSpaceSpecification

constinit const lmx::s_document ColorSpaceSpecification::k_document = {"Vyr:ColorSpaceSpecification", "ColorSpaceSpecification", k_ns_map, &lmx::k_operations<ColorSpaceSpecification>};
const lmx::s_ns_map* ColorSpaceSpecification::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceSpecification::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceSpecification::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceSpecificationType::marshal(writer, name); }
lmx::elmx_error ColorSpaceSpecification::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceSpecificationType::unmarshal(reader, name); }

// ColorSpaceSpecificationSpectrum

constinit const lmx::s_document ColorSpaceSpecificationSpectrum::k_document = {"Vyr:ColorSpaceSpecificationSpectrum", "ColorSpaceSpecificationSpectrum", k_ns_map, &lmx::k_operations<ColorSpaceSpecificationSpectrum>};
ColorSpaceSpecificationSpectrum::ColorSpaceSpecificationSpectrum(const char* file_name, lmx::elmx_error* error) : ColorSpaceSpecificationSpectrum() { *error = unmarshal(file_name); }
ColorSpaceSpecificationSpectrum::ColorSpaceSpecificationSpectrum(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceSpecificationSpectrum() { *error = unmarshal(data, size); }
ColorSpaceSpecificationSpectrum::ColorSpaceSpecificationSpectrum(const std::string& text, lmx::elmx_error* error) : ColorSpaceSpecificationSpectrum() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceSpecificationSpectrum::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceSpecificationSpectrum::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationSpectrum::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceSpecificationSpectrum::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceSpecificationSpectrum::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceSpecificationSpectrum::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationSpectrum::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceSpecificationSpectrum::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceSpecificationSpectrum::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceSpecificationSpectrumType::marshal(writer, name); }
lmx::elmx_error ColorSpaceSpecificationSpectrum::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceSpecificationSpectrumType::unmarshal(reader, name); }

// ColorSpaceSpecificationSpectrumGeneric

constinit const s_class ColorSpaceSpecificationSpectrumGeneric::k_class = {
    .name = "ColorSpaceSpecificationSpectrumGeneric",
    .qualified_name = "Vyr:ColorSpaceSpecificationSpectrumGeneric",
    .base = &ColorSpaceSpecificationSpectrumGenericType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .nil_flag = LMX_FLAG(ColorSpaceSpecificationSpectrumGeneric, m_isnil),
    .id = &ColorSpaceSpecificationSpectrumGenericType::id,
    .operations = &k_operations<ColorSpaceSpecificationSpectrumGeneric>,
};

constinit const lmx::s_document ColorSpaceSpecificationSpectrumGeneric::k_document = {"Vyr:ColorSpaceSpecificationSpectrumGeneric", "ColorSpaceSpecificationSpectrumGeneric", k_ns_map, &lmx::k_operations<ColorSpaceSpecificationSpectrumGeneric>};
ColorSpaceSpecificationSpectrumGeneric::ColorSpaceSpecificationSpectrumGeneric() = default;
ColorSpaceSpecificationSpectrumGeneric::ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& other) : ColorSpaceSpecificationSpectrumGenericType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationSpectrumGeneric::ColorSpaceSpecificationSpectrumGeneric(const char* file_name, lmx::elmx_error* error) : ColorSpaceSpecificationSpectrumGeneric() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(file_name); }
ColorSpaceSpecificationSpectrumGeneric::ColorSpaceSpecificationSpectrumGeneric(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceSpecificationSpectrumGeneric() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(data, size); }
ColorSpaceSpecificationSpectrumGeneric::ColorSpaceSpecificationSpectrumGeneric(const std::string& text, lmx::elmx_error* error) : ColorSpaceSpecificationSpectrumGeneric() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(text.data(), text.size()); }
ColorSpaceSpecificationSpectrumGeneric::~ColorSpaceSpecificationSpectrumGeneric() = default;
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceSpecificationSpectrumGeneric::operator=(const ColorSpaceSpecificationSpectrumGeneric& other) { ColorSpaceSpecificationSpectrumGeneric copy(other); swap(copy); return *this; }
const lmx::s_ns_map* ColorSpaceSpecificationSpectrumGeneric::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceSpecificationSpectrumGeneric::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGeneric::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGeneric::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGeneric::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGeneric::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGeneric::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGeneric::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGeneric::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumGeneric::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationSpectrumGeneric::swap(ColorSpaceSpecificationSpectrumGeneric& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationSpectrumGeneric::reset() { ColorSpaceSpecificationSpectrumGeneric fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationSpectrumGeneric::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// ColorSpaceSpecificationSpectrumTristimulus

constinit const s_class ColorSpaceSpecificationSpectrumTristimulus::k_class = {
    .name = "ColorSpaceSpecificationSpectrumTristimulus",
    .qualified_name = "Vyr:ColorSpaceSpecificationSpectrumTristimulus",
    .base = &ColorSpaceSpecificationSpectrumTristimulusType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .nil_flag = LMX_FLAG(ColorSpaceSpecificationSpectrumTristimulus, m_isnil),
    .id = &ColorSpaceSpecificationSpectrumTristimulusType::id,
    .operations = &k_operations<ColorSpaceSpecificationSpectrumTristimulus>,
};

constinit const lmx::s_document ColorSpaceSpecificationSpectrumTristimulus::k_document = {"Vyr:ColorSpaceSpecificationSpectrumTristimulus", "ColorSpaceSpecificationSpectrumTristimulus", k_ns_map, &lmx::k_operations<ColorSpaceSpecificationSpectrumTristimulus>};
ColorSpaceSpecificationSpectrumTristimulus::ColorSpaceSpecificationSpectrumTristimulus() = default;
ColorSpaceSpecificationSpectrumTristimulus::ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& other) : ColorSpaceSpecificationSpectrumTristimulusType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationSpectrumTristimulus::ColorSpaceSpecificationSpectrumTristimulus(const char* file_name, lmx::elmx_error* error) : ColorSpaceSpecificationSpectrumTristimulus() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(file_name); }
ColorSpaceSpecificationSpectrumTristimulus::ColorSpaceSpecificationSpectrumTristimulus(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceSpecificationSpectrumTristimulus() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(data, size); }
ColorSpaceSpecificationSpectrumTristimulus::ColorSpaceSpecificationSpectrumTristimulus(const std::string& text, lmx::elmx_error* error) : ColorSpaceSpecificationSpectrumTristimulus() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(text.data(), text.size()); }
ColorSpaceSpecificationSpectrumTristimulus::~ColorSpaceSpecificationSpectrumTristimulus() = default;
ColorSpaceSpecificationSpectrumTristimulus& ColorSpaceSpecificationSpectrumTristimulus::operator=(const ColorSpaceSpecificationSpectrumTristimulus& other) { ColorSpaceSpecificationSpectrumTristimulus copy(other); swap(copy); return *this; }
const lmx::s_ns_map* ColorSpaceSpecificationSpectrumTristimulus::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulus::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulus::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulus::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulus::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulus::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulus::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulus::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulus::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumTristimulus::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationSpectrumTristimulus::swap(ColorSpaceSpecificationSpectrumTristimulus& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationSpectrumTristimulus::reset() { ColorSpaceSpecificationSpectrumTristimulus fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationSpectrumTristimulus::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// ColorSpaceSpecificationSpectrumSpectral

constinit const s_class ColorSpaceSpecificationSpectrumSpectral::k_class = {
    .name = "ColorSpaceSpecificationSpectrumSpectral",
    .qualified_name = "Vyr:ColorSpaceSpecificationSpectrumSpectral",
    .base = &ColorSpaceSpecificationSpectrumSpectralType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .nil_flag = LMX_FLAG(ColorSpaceSpecificationSpectrumSpectral, m_isnil),
    .id = &ColorSpaceSpecificationSpectrumSpectralType::id,
    .operations = &k_operations<ColorSpaceSpecificationSpectrumSpectral>,
};

constinit const lmx::s_document ColorSpaceSpecificationSpectrumSpectral::k_document = {"Vyr:ColorSpaceSpecificationSpectrumSpectral", "ColorSpaceSpecificationSpectrumSpectral", k_ns_map, &lmx::k_operations<ColorSpaceSpecificationSpectrumSpectral>};
ColorSpaceSpecificationSpectrumSpectral::ColorSpaceSpecificationSpectrumSpectral() = default;
ColorSpaceSpecificationSpectrumSpectral::ColorSpaceSpecificationSpectrumSpectral(const ColorSpaceSpecificationSpectrumSpectral& other) : ColorSpaceSpecificationSpectrumSpectralType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationSpectrumSpectral::ColorSpaceSpecificationSpectrumSpectral(const char* file_name, lmx::elmx_error* error) : ColorSpaceSpecificationSpectrumSpectral() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(file_name); }
ColorSpaceSpecificationSpectrumSpectral::ColorSpaceSpecificationSpectrumSpectral(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceSpecificationSpectrumSpectral() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(data, size); }
ColorSpaceSpecificationSpectrumSpectral::ColorSpaceSpecificationSpectrumSpectral(const std::string& text, lmx::elmx_error* error) : ColorSpaceSpecificationSpectrumSpectral() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(text.data(), text.size()); }
ColorSpaceSpecificationSpectrumSpectral::~ColorSpaceSpecificationSpectrumSpectral() = default;
ColorSpaceSpecificationSpectrumSpectral& ColorSpaceSpecificationSpectrumSpectral::operator=(const ColorSpaceSpecificationSpectrumSpectral& other) { ColorSpaceSpecificationSpectrumSpectral copy(other); swap(copy); return *this; }
const lmx::s_ns_map* ColorSpaceSpecificationSpectrumSpectral::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceSpecificationSpectrumSpectral::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumSpectral::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceSpecificationSpectrumSpectral::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceSpecificationSpectrumSpectral::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceSpecificationSpectrumSpectral::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumSpectral::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceSpecificationSpectrumSpectral::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceSpecificationSpectrumSpectral::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationSpectrumSpectral::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationSpectrumSpectral::swap(ColorSpaceSpecificationSpectrumSpectral& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationSpectrumSpectral::reset() { ColorSpaceSpecificationSpectrumSpectral fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationSpectrumSpectral::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// ColorSpaceSpecificationEmissive

constinit const lmx::s_document ColorSpaceSpecificationEmissive::k_document = {"Vyr:ColorSpaceSpecificationEmissive", "ColorSpaceSpecificationEmissive", k_ns_map, &lmx::k_operations<ColorSpaceSpecificationEmissive>};
ColorSpaceSpecificationEmissive::ColorSpaceSpecificationEmissive(const char* file_name, lmx::elmx_error* error) : ColorSpaceSpecificationEmissive() { *error = unmarshal(file_name); }
ColorSpaceSpecificationEmissive::ColorSpaceSpecificationEmissive(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceSpecificationEmissive() { *error = unmarshal(data, size); }
ColorSpaceSpecificationEmissive::ColorSpaceSpecificationEmissive(const std::string& text, lmx::elmx_error* error) : ColorSpaceSpecificationEmissive() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceSpecificationEmissive::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceSpecificationEmissive::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationEmissive::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceSpecificationEmissive::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceSpecificationEmissive::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceSpecificationEmissive::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationEmissive::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceSpecificationEmissive::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceSpecificationEmissive::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceSpecificationEmissiveType::marshal(writer, name); }
lmx::elmx_error ColorSpaceSpecificationEmissive::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceSpecificationEmissiveType::unmarshal(reader, name); }

// ColorSpaceSpecificationEmissiveGeneric

constinit const s_class ColorSpaceSpecificationEmissiveGeneric::k_class = {
    .name = "ColorSpaceSpecificationEmissiveGeneric",
    .qualified_name = "Vyr:ColorSpaceSpecificationEmissiveGeneric",
    .base = &ColorSpaceSpecificationEmissiveGenericType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .nil_flag = LMX_FLAG(ColorSpaceSpecificationEmissiveGeneric, m_isnil),
    .id = &ColorSpaceSpecificationEmissiveGenericType::id,
    .operations = &k_operations<ColorSpaceSpecificationEmissiveGeneric>,
};

constinit const lmx::s_document ColorSpaceSpecificationEmissiveGeneric::k_document = {"Vyr:ColorSpaceSpecificationEmissiveGeneric", "ColorSpaceSpecificationEmissiveGeneric", k_ns_map, &lmx::k_operations<ColorSpaceSpecificationEmissiveGeneric>};
ColorSpaceSpecificationEmissiveGeneric::ColorSpaceSpecificationEmissiveGeneric() = default;
ColorSpaceSpecificationEmissiveGeneric::ColorSpaceSpecificationEmissiveGeneric(const ColorSpaceSpecificationEmissiveGeneric& other) : ColorSpaceSpecificationEmissiveGenericType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationEmissiveGeneric::ColorSpaceSpecificationEmissiveGeneric(const char* file_name, lmx::elmx_error* error) : ColorSpaceSpecificationEmissiveGeneric() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(file_name); }
ColorSpaceSpecificationEmissiveGeneric::ColorSpaceSpecificationEmissiveGeneric(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceSpecificationEmissiveGeneric() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(data, size); }
ColorSpaceSpecificationEmissiveGeneric::ColorSpaceSpecificationEmissiveGeneric(const std::string& text, lmx::elmx_error* error) : ColorSpaceSpecificationEmissiveGeneric() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(text.data(), text.size()); }
ColorSpaceSpecificationEmissiveGeneric::~ColorSpaceSpecificationEmissiveGeneric() = default;
ColorSpaceSpecificationEmissiveGeneric& ColorSpaceSpecificationEmissiveGeneric::operator=(const ColorSpaceSpecificationEmissiveGeneric& other) { ColorSpaceSpecificationEmissiveGeneric copy(other); swap(copy); return *this; }
const lmx::s_ns_map* ColorSpaceSpecificationEmissiveGeneric::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceSpecificationEmissiveGeneric::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGeneric::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGeneric::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGeneric::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGeneric::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGeneric::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGeneric::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGeneric::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveGeneric::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationEmissiveGeneric::swap(ColorSpaceSpecificationEmissiveGeneric& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationEmissiveGeneric::reset() { ColorSpaceSpecificationEmissiveGeneric fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationEmissiveGeneric::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// ColorSpaceSpecificationEmissiveTristimulus

constinit const s_class ColorSpaceSpecificationEmissiveTristimulus::k_class = {
    .name = "ColorSpaceSpecificationEmissiveTristimulus",
    .qualified_name = "Vyr:ColorSpaceSpecificationEmissiveTristimulus",
    .base = &ColorSpaceSpecificationEmissiveTristimulusType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .nil_flag = LMX_FLAG(ColorSpaceSpecificationEmissiveTristimulus, m_isnil),
    .id = &ColorSpaceSpecificationEmissiveTristimulusType::id,
    .operations = &k_operations<ColorSpaceSpecificationEmissiveTristimulus>,
};

constinit const lmx::s_document ColorSpaceSpecificationEmissiveTristimulus::k_document = {"Vyr:ColorSpaceSpecificationEmissiveTristimulus", "ColorSpaceSpecificationEmissiveTristimulus", k_ns_map, &lmx::k_operations<ColorSpaceSpecificationEmissiveTristimulus>};
ColorSpaceSpecificationEmissiveTristimulus::ColorSpaceSpecificationEmissiveTristimulus() = default;
ColorSpaceSpecificationEmissiveTristimulus::ColorSpaceSpecificationEmissiveTristimulus(const ColorSpaceSpecificationEmissiveTristimulus& other) : ColorSpaceSpecificationEmissiveTristimulusType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationEmissiveTristimulus::ColorSpaceSpecificationEmissiveTristimulus(const char* file_name, lmx::elmx_error* error) : ColorSpaceSpecificationEmissiveTristimulus() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(file_name); }
ColorSpaceSpecificationEmissiveTristimulus::ColorSpaceSpecificationEmissiveTristimulus(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceSpecificationEmissiveTristimulus() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(data, size); }
ColorSpaceSpecificationEmissiveTristimulus::ColorSpaceSpecificationEmissiveTristimulus(const std::string& text, lmx::elmx_error* error) : ColorSpaceSpecificationEmissiveTristimulus() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(text.data(), text.size()); }
ColorSpaceSpecificationEmissiveTristimulus::~ColorSpaceSpecificationEmissiveTristimulus() = default;
ColorSpaceSpecificationEmissiveTristimulus& ColorSpaceSpecificationEmissiveTristimulus::operator=(const ColorSpaceSpecificationEmissiveTristimulus& other) { ColorSpaceSpecificationEmissiveTristimulus copy(other); swap(copy); return *this; }
const lmx::s_ns_map* ColorSpaceSpecificationEmissiveTristimulus::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulus::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulus::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulus::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulus::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulus::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulus::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulus::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulus::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveTristimulus::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationEmissiveTristimulus::swap(ColorSpaceSpecificationEmissiveTristimulus& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationEmissiveTristimulus::reset() { ColorSpaceSpecificationEmissiveTristimulus fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationEmissiveTristimulus::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// ColorSpaceSpecificationEmissiveSpectral

constinit const s_class ColorSpaceSpecificationEmissiveSpectral::k_class = {
    .name = "ColorSpaceSpecificationEmissiveSpectral",
    .qualified_name = "Vyr:ColorSpaceSpecificationEmissiveSpectral",
    .base = &ColorSpaceSpecificationEmissiveSpectralType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .nil_flag = LMX_FLAG(ColorSpaceSpecificationEmissiveSpectral, m_isnil),
    .id = &ColorSpaceSpecificationEmissiveSpectralType::id,
    .operations = &k_operations<ColorSpaceSpecificationEmissiveSpectral>,
};

constinit const lmx::s_document ColorSpaceSpecificationEmissiveSpectral::k_document = {"Vyr:ColorSpaceSpecificationEmissiveSpectral", "ColorSpaceSpecificationEmissiveSpectral", k_ns_map, &lmx::k_operations<ColorSpaceSpecificationEmissiveSpectral>};
ColorSpaceSpecificationEmissiveSpectral::ColorSpaceSpecificationEmissiveSpectral() = default;
ColorSpaceSpecificationEmissiveSpectral::ColorSpaceSpecificationEmissiveSpectral(const ColorSpaceSpecificationEmissiveSpectral& other) : ColorSpaceSpecificationEmissiveSpectralType() { lmx::copy(k_class, this, &other); }
ColorSpaceSpecificationEmissiveSpectral::ColorSpaceSpecificationEmissiveSpectral(const char* file_name, lmx::elmx_error* error) : ColorSpaceSpecificationEmissiveSpectral() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(file_name); }
ColorSpaceSpecificationEmissiveSpectral::ColorSpaceSpecificationEmissiveSpectral(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceSpecificationEmissiveSpectral() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(data, size); }
ColorSpaceSpecificationEmissiveSpectral::ColorSpaceSpecificationEmissiveSpectral(const std::string& text, lmx::elmx_error* error) : ColorSpaceSpecificationEmissiveSpectral() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(text.data(), text.size()); }
ColorSpaceSpecificationEmissiveSpectral::~ColorSpaceSpecificationEmissiveSpectral() = default;
ColorSpaceSpecificationEmissiveSpectral& ColorSpaceSpecificationEmissiveSpectral::operator=(const ColorSpaceSpecificationEmissiveSpectral& other) { ColorSpaceSpecificationEmissiveSpectral copy(other); swap(copy); return *this; }
const lmx::s_ns_map* ColorSpaceSpecificationEmissiveSpectral::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceSpecificationEmissiveSpectral::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveSpectral::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceSpecificationEmissiveSpectral::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceSpecificationEmissiveSpectral::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceSpecificationEmissiveSpectral::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveSpectral::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceSpecificationEmissiveSpectral::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceSpecificationEmissiveSpectral::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSpecificationEmissiveSpectral::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSpecificationEmissiveSpectral::swap(ColorSpaceSpecificationEmissiveSpectral& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSpecificationEmissiveSpectral::reset() { ColorSpaceSpecificationEmissiveSpectral fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSpecificationEmissiveSpectral::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

// Illuminant

constexpr s_item Illuminant::k_items[] = {
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "CustomName", attribute("CustomName"), LMX_OFFSET(Illuminant, m_CustomName, attribute, text), LMX_FLAG(Illuminant, m_isset_CustomName)},
    {item_kind::content, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "", 0, LMX_OFFSET(Illuminant, m_Illuminant, content, enumerated), LMX_FLAG(Illuminant, m_isset_Illuminant), nullptr, &facets::IlluminantKind},
};
constinit const s_class Illuminant::k_class = {
    .name = "Illuminant",
    .qualified_name = "Vyr:Illuminant",
    .content = content_kind::simple,
    .names = &k_names,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<Illuminant>,
};

Illuminant::Illuminant() = default;
Illuminant::Illuminant(const Illuminant& other) { lmx::copy(k_class, this, &other); }
Illuminant::~Illuminant() = default;
Illuminant& Illuminant::operator=(const Illuminant& other) { Illuminant copy(other); swap(copy); return *this; }
lmx::elmx_error Illuminant::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Illuminant::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Illuminant::swap(Illuminant& other) { lmx::swap(k_class, this, &other); }
void Illuminant::reset() { Illuminant fresh; lmx::exchange(k_class, this, &fresh); }
bool Illuminant::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error Illuminant::set_CustomName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_CustomName], this, value); }
lmx::elmx_error Illuminant::set_Illuminant(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Illuminant], this, value); }
bool Illuminant::setenum_Illuminant(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_Illuminant], this, number); }

// WhitePointChromaticity

constexpr s_item WhitePointChromaticity::k_items[] = {
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:CoordinateX", element("CoordinateX"), LMX_OFFSET(WhitePointChromaticity, m_CoordinateX, element, number), LMX_FLAG(WhitePointChromaticity, m_isset_CoordinateX), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:CoordinateY", element("CoordinateY"), LMX_OFFSET(WhitePointChromaticity, m_CoordinateY, element, number), LMX_FLAG(WhitePointChromaticity, m_isset_CoordinateY), nullptr, &facets::Fraction},
};
constinit const s_class WhitePointChromaticity::k_class = {
    .name = "WhitePointChromaticity",
    .qualified_name = "Vyr:WhitePointChromaticity",
    .content = content_kind::children,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<WhitePointChromaticity>,
};

WhitePointChromaticity::WhitePointChromaticity() = default;
WhitePointChromaticity::WhitePointChromaticity(const WhitePointChromaticity& other) { lmx::copy(k_class, this, &other); }
WhitePointChromaticity::~WhitePointChromaticity() = default;
WhitePointChromaticity& WhitePointChromaticity::operator=(const WhitePointChromaticity& other) { WhitePointChromaticity copy(other); swap(copy); return *this; }
lmx::elmx_error WhitePointChromaticity::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error WhitePointChromaticity::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void WhitePointChromaticity::swap(WhitePointChromaticity& other) { lmx::swap(k_class, this, &other); }
void WhitePointChromaticity::reset() { WhitePointChromaticity fresh; lmx::exchange(k_class, this, &fresh); }
bool WhitePointChromaticity::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error WhitePointChromaticity::set_CoordinateX(double value) { return lmx::set_item(k_class, k_items[item_CoordinateX], this, value); }
lmx::elmx_error WhitePointChromaticity::set_CoordinateY(double value) { return lmx::set_item(k_class, k_items[item_CoordinateY], this, value); }

// BSDFAngle

constexpr s_item BSDFAngle::k_items[] = {
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:IlluminantAngle", element("IlluminantAngle"), LMX_OFFSET(BSDFAngle, m_IlluminantAngle, element, number), LMX_FLAG(BSDFAngle, m_isset_IlluminantAngle)},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Aspecular", element("Aspecular"), LMX_OFFSET(BSDFAngle, m_Aspecular, element, number), LMX_FLAG(BSDFAngle, m_isset_Aspecular)},
    {item_kind::marker, value_kind::none, use_written, ELMX_WS_PRESERVE, "Vyr:Azimuth", element("Azimuth"), 0, k_no_flag},
};
constinit const s_class BSDFAngle::k_class = {
    .name = "BSDFAngle",
    .qualified_name = "Vyr:BSDFAngle",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<BSDFAngle>,
};

BSDFAngle::BSDFAngle() = default;
BSDFAngle::BSDFAngle(const BSDFAngle& other) { lmx::copy(k_class, this, &other); }
BSDFAngle::~BSDFAngle() = default;
BSDFAngle& BSDFAngle::operator=(const BSDFAngle& other) { BSDFAngle copy(other); swap(copy); return *this; }
lmx::elmx_error BSDFAngle::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error BSDFAngle::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void BSDFAngle::swap(BSDFAngle& other) { lmx::swap(k_class, this, &other); }
void BSDFAngle::reset() { BSDFAngle fresh; lmx::exchange(k_class, this, &fresh); }
bool BSDFAngle::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error BSDFAngle::set_IlluminantAngle(double value) { return lmx::set_item(k_class, k_items[item_IlluminantAngle], this, value); }
lmx::elmx_error BSDFAngle::set_Aspecular(double value) { return lmx::set_item(k_class, k_items[item_Aspecular], this, value); }

// Azimuth

constinit const s_class Azimuth::k_class = {
    .name = "Azimuth",
    .qualified_name = "Vyr:Azimuth",
    .content = content_kind::empty,
    .names = &k_names,
    .operations = &k_operations<Azimuth>,
};

Azimuth::Azimuth() = default;
Azimuth::Azimuth(const Azimuth& other) { lmx::copy(k_class, this, &other); }
Azimuth::~Azimuth() = default;
Azimuth& Azimuth::operator=(const Azimuth& other) { Azimuth copy(other); swap(copy); return *this; }
lmx::elmx_error Azimuth::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Azimuth::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Azimuth::swap(Azimuth& other) { lmx::swap(k_class, this, &other); }
void Azimuth::reset() { Azimuth fresh; lmx::exchange(k_class, this, &fresh); }
bool Azimuth::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }

}  // namespace com_vyrgraph_v2
