// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in devices.h.

#include "schema/generated/devices.h"
#include "lmx/binding/binding.h"
#include "schema/generated/header.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// CalibrationStateType

constexpr s_item CalibrationStateType::k_items[] = {
    {item_kind::attribute, value_kind::datetime, use_optional, ELMX_WS_COLLAPSE, "CalibrationDateTime", attribute("CalibrationDateTime"), LMX_OFFSET(CalibrationStateType, m_CalibrationDateTime, attribute, datetime), LMX_FLAG(CalibrationStateType, m_isset_CalibrationDateTime), nullptr, &facets::DateTimeZone},
    {item_kind::content, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "", 0, LMX_OFFSET(CalibrationStateType, m_CalibrationStateType, content, enumerated), LMX_FLAG(CalibrationStateType, m_isset_CalibrationStateType), nullptr, &facets::CalibrationKind},
};
constinit const s_class CalibrationStateType::k_class = {
    .name = "CalibrationStateType",
    .qualified_name = "Vyr:CalibrationStateType",
    .content = content_kind::simple,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<CalibrationStateType>,
};

CalibrationStateType::CalibrationStateType() = default;
CalibrationStateType::CalibrationStateType(const CalibrationStateType& other) { lmx::copy(k_class, this, &other); }
CalibrationStateType::~CalibrationStateType() = default;
CalibrationStateType& CalibrationStateType::operator=(const CalibrationStateType& other) { CalibrationStateType copy(other); swap(copy); return *this; }
lmx::elmx_error CalibrationStateType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error CalibrationStateType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void CalibrationStateType::swap(CalibrationStateType& other) { lmx::swap(k_class, this, &other); }
void CalibrationStateType::reset() { CalibrationStateType fresh; lmx::exchange(k_class, this, &fresh); }
bool CalibrationStateType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error CalibrationStateType::set_CalibrationDateTime(const lmx::c_datetime& value) { return lmx::set_item(k_class, k_items[item_CalibrationDateTime], this, value); }
lmx::elmx_error CalibrationStateType::set_CalibrationStateType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_CalibrationStateType], this, value); }
bool CalibrationStateType::setenum_CalibrationStateType(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_CalibrationStateType], this, number); }

// GlossCompensation

constexpr s_item GlossCompensation::k_items[] = {
    {item_kind::attribute, value_kind::number, use_required, ELMX_WS_COLLAPSE, "CompensationValue", attribute("CompensationValue"), LMX_OFFSET(GlossCompensation, m_CompensationValue, attribute, number), LMX_FLAG(GlossCompensation, m_isset_CompensationValue)},
    {item_kind::content, value_kind::boolean, use_optional, ELMX_WS_COLLAPSE, "", 0, LMX_OFFSET(GlossCompensation, m_GlossCompensation, content, boolean), LMX_FLAG(GlossCompensation, m_isset_GlossCompensation)},
};
constinit const s_class GlossCompensation::k_class = {
    .name = "GlossCompensation",
    .qualified_name = "Vyr:GlossCompensation",
    .content = content_kind::simple,
    .names = &k_names,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<GlossCompensation>,
};

GlossCompensation::GlossCompensation() = default;
GlossCompensation::GlossCompensation(const GlossCompensation& other) { lmx::copy(k_class, this, &other); }
GlossCompensation::~GlossCompensation() = default;
GlossCompensation& GlossCompensation::operator=(const GlossCompensation& other) { GlossCompensation copy(other); swap(copy); return *this; }
lmx::elmx_error GlossCompensation::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error GlossCompensation::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void GlossCompensation::swap(GlossCompensation& other) { lmx::swap(k_class, this, &other); }
void GlossCompensation::reset() { GlossCompensation fresh; lmx::exchange(k_class, this, &fresh); }
bool GlossCompensation::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error GlossCompensation::set_CompensationValue(double value) { return lmx::set_item(k_class, k_items[item_CompensationValue], this, value); }
lmx::elmx_error GlossCompensation::set_GlossCompensation(bool value) { return lmx::set_item(k_class, k_items[item_GlossCompensation], this, value); }

// Averaging

constexpr s_item Averaging::k_items[] = {
    {item_kind::attribute, value_kind::uint8, use_required, ELMX_WS_COLLAPSE, "AveragingValue", attribute("AveragingValue"), LMX_OFFSET(Averaging, m_AveragingValue, attribute, uint8), LMX_FLAG(Averaging, m_isset_AveragingValue), nullptr, &facets::AveragingCount},
    {item_kind::content, value_kind::boolean, use_optional, ELMX_WS_COLLAPSE, "", 0, LMX_OFFSET(Averaging, m_Averaging, content, boolean), LMX_FLAG(Averaging, m_isset_Averaging)},
};
constinit const s_class Averaging::k_class = {
    .name = "Averaging",
    .qualified_name = "Vyr:Averaging",
    .content = content_kind::simple,
    .names = &k_names,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<Averaging>,
};

Averaging::Averaging() = default;
Averaging::Averaging(const Averaging& other) { lmx::copy(k_class, this, &other); }
Averaging::~Averaging() = default;
Averaging& Averaging::operator=(const Averaging& other) { Averaging copy(other); swap(copy); return *this; }
lmx::elmx_error Averaging::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Averaging::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Averaging::swap(Averaging& other) { lmx::swap(k_class, this, &other); }
void Averaging::reset() { Averaging fresh; lmx::exchange(k_class, this, &fresh); }
bool Averaging::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error Averaging::set_AveragingValue(std::uint8_t value) { return lmx::set_item(k_class, k_items[item_AveragingValue], this, value); }
lmx::elmx_error Averaging::set_Averaging(bool value) { return lmx::set_item(k_class, k_items[item_Averaging], this, value); }

// DeviceSettings

constexpr s_item DeviceSettings::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(DeviceSettings, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element, value_kind::uint32, use_optional, ELMX_WS_COLLAPSE, "Vyr:Aperture", element("Aperture"), LMX_OFFSET(DeviceSettings, m_Aperture, element, uint32), LMX_FLAG(DeviceSettings, m_isset_Aperture), nullptr, &facets::PositiveInt32},
    {item_kind::element, value_kind::int32, use_optional, ELMX_WS_COLLAPSE, "Vyr:LensPosition", element("LensPosition"), LMX_OFFSET(DeviceSettings, m_LensPosition, element, int32), LMX_FLAG(DeviceSettings, m_isset_LensPosition), nullptr, &facets::Int32},
    {item_kind::element, value_kind::boolean, use_optional, ELMX_WS_COLLAPSE, "Vyr:GlassCompensation", element("GlassCompensation"), LMX_OFFSET(DeviceSettings, m_GlassCompensation, element, boolean), LMX_FLAG(DeviceSettings, m_isset_GlassCompensation)},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:GlossCompensation", element("GlossCompensation"), LMX_OFFSET(DeviceSettings, m_GlossCompensation, optional_child, none), LMX_FLAG(DeviceSettings, m_isset_GlossCompensation), &GlossCompensation::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Averaging", element("Averaging"), LMX_OFFSET(DeviceSettings, m_Averaging, optional_child, none), LMX_FLAG(DeviceSettings, m_isset_Averaging), &Averaging::k_class},
    {item_kind::element, value_kind::boolean, use_optional, ELMX_WS_COLLAPSE, "Vyr:LinkTrimmer", element("LinkTrimmer"), LMX_OFFSET(DeviceSettings, m_LinkTrimmer, element, boolean), LMX_FLAG(DeviceSettings, m_isset_LinkTrimmer)},
};
constinit const s_class DeviceSettings::k_class = {
    .name = "DeviceSettings",
    .qualified_name = "Vyr:DeviceSettings",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<DeviceSettings>,
};

DeviceSettings::DeviceSettings() = default;
DeviceSettings::DeviceSettings(const DeviceSettings& other) { lmx::copy(k_class, this, &other); }
DeviceSettings::~DeviceSettings() = default;
DeviceSettings& DeviceSettings::operator=(const DeviceSettings& other) { DeviceSettings copy(other); swap(copy); return *this; }
lmx::elmx_error DeviceSettings::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error DeviceSettings::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void DeviceSettings::swap(DeviceSettings& other) { lmx::swap(k_class, this, &other); }
void DeviceSettings::reset() { DeviceSettings fresh; lmx::exchange(k_class, this, &fresh); }
bool DeviceSettings::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& DeviceSettings::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& DeviceSettings::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error DeviceSettings::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error DeviceSettings::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void DeviceSettings::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void DeviceSettings::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error DeviceSettings::set_Aperture(std::uint32_t value) { return lmx::set_item(k_class, k_items[item_Aperture], this, value); }
lmx::elmx_error DeviceSettings::set_LensPosition(std::int32_t value) { return lmx::set_item(k_class, k_items[item_LensPosition], this, value); }
lmx::elmx_error DeviceSettings::set_GlassCompensation(bool value) { return lmx::set_item(k_class, k_items[item_GlassCompensation], this, value); }
GlossCompensation& DeviceSettings::get_GlossCompensation() { GlossCompensation& child = m_GlossCompensation.touch(); m_isset_GlossCompensation = true; return child; }
const GlossCompensation& DeviceSettings::get_GlossCompensation() const { return m_GlossCompensation.get(); }
GlossCompensation& DeviceSettings::assign_GlossCompensation(const GlossCompensation& value) { return get_GlossCompensation() = value; }
Averaging& DeviceSettings::get_Averaging() { Averaging& child = m_Averaging.touch(); m_isset_Averaging = true; return child; }
const Averaging& DeviceSettings::get_Averaging() const { return m_Averaging.get(); }
Averaging& DeviceSettings::assign_Averaging(const Averaging& value) { return get_Averaging() = value; }
lmx::elmx_error DeviceSettings::set_LinkTrimmer(bool value) { return lmx::set_item(k_class, k_items[item_LinkTrimmer], this, value); }

// DeviceType

constexpr s_item DeviceType::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(DeviceType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:Manufacturer", element("Manufacturer"), LMX_OFFSET(DeviceType, m_Manufacturer, element, text), LMX_FLAG(DeviceType, m_isset_Manufacturer)},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:Model", element("Model"), LMX_OFFSET(DeviceType, m_Model, element, text), LMX_FLAG(DeviceType, m_isset_Model)},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:SerialNumber", element("SerialNumber"), LMX_OFFSET(DeviceType, m_SerialNumber, element, text), LMX_FLAG(DeviceType, m_isset_SerialNumber)},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:DeviceClass", element("DeviceClass"), LMX_OFFSET(DeviceType, m_DeviceClass, element, enumerated), LMX_FLAG(DeviceType, m_isset_DeviceClass), nullptr, &facets::DeviceClassKind},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:FirmwareVersion", element("FirmwareVersion"), LMX_OFFSET(DeviceType, m_FirmwareVersion, element, text), LMX_FLAG(DeviceType, m_isset_FirmwareVersion)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:BootFirmwareVersion", element("BootFirmwareVersion"), LMX_OFFSET(DeviceType, m_BootFirmwareVersion, element, text), LMX_FLAG(DeviceType, m_isset_BootFirmwareVersion)},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CalibrationState", element("CalibrationState"), LMX_OFFSET(DeviceType, m_CalibrationState, optional_child, none), LMX_FLAG(DeviceType, m_isset_CalibrationState), &CalibrationStateType::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:DeviceSettings", element("DeviceSettings"), LMX_OFFSET(DeviceType, m_DeviceSettings, optional_child, none), LMX_FLAG(DeviceType, m_isset_DeviceSettings), &DeviceSettings::k_class},
};
constinit const s_class DeviceType::k_class = {
    .name = "DeviceType",
    .qualified_name = "Vyr:DeviceType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<DeviceType>,
};

DeviceType::DeviceType() = default;
DeviceType::DeviceType(const DeviceType& other) { lmx::copy(k_class, this, &other); }
DeviceType::~DeviceType() = default;
DeviceType& DeviceType::operator=(const DeviceType& other) { DeviceType copy(other); swap(copy); return *this; }
lmx::elmx_error DeviceType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error DeviceType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void DeviceType::swap(DeviceType& other) { lmx::swap(k_class, this, &other); }
void DeviceType::reset() { DeviceType fresh; lmx::exchange(k_class, this, &fresh); }
bool DeviceType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& DeviceType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& DeviceType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error DeviceType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error DeviceType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void DeviceType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void DeviceType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error DeviceType::set_Manufacturer(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Manufacturer], this, value); }
lmx::elmx_error DeviceType::set_Model(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Model], this, value); }
lmx::elmx_error DeviceType::set_SerialNumber(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_SerialNumber], this, value); }
lmx::elmx_error DeviceType::set_DeviceClass(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_DeviceClass], this, value); }
bool DeviceType::setenum_DeviceClass(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_DeviceClass], this, number); }
lmx::elmx_error DeviceType::set_FirmwareVersion(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_FirmwareVersion], this, value); }
lmx::elmx_error DeviceType::set_BootFirmwareVersion(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_BootFirmwareVersion], this, value); }
CalibrationStateType& DeviceType::get_CalibrationState() { CalibrationStateType& child = m_CalibrationState.touch(); m_isset_CalibrationState = true; return child; }
const CalibrationStateType& DeviceType::get_CalibrationState() const { return m_CalibrationState.get(); }
CalibrationStateType& DeviceType::assign_CalibrationState(const CalibrationStateType& value) { return get_CalibrationState() = value; }
DeviceSettings& DeviceType::get_DeviceSettings() { DeviceSettings& child = m_DeviceSettings.touch(); m_isset_DeviceSettings = true; return child; }
const DeviceSettings& DeviceType::get_DeviceSettings() const { return m_DeviceSettings.get(); }
DeviceSettings& DeviceType::assign_DeviceSettings(const DeviceSettings& value) { return get_DeviceSettings() = value; }

// ProfileChoice

constexpr s_item ProfileChoice::k_items[] = {
    {item_kind::alternative, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ProfileFile", element("ProfileFile"), 0, k_no_flag, &ProfileFile::k_class},
    {item_kind::alternative, value_kind::text, use_optional, ELMX_WS_COLLAPSE, "Vyr:ProfileURI", element("ProfileURI"), 0, k_no_flag},
};
constinit const s_class ProfileChoice::k_class = {
    .name = "ProfileChoice",
    .qualified_name = "Vyr:ProfileChoice",
    .content = content_kind::choice,
    .names = &k_names,
    .choice = LMX_CHOICE(ProfileChoice, m_choice),
    .elements = k_items,
    .operations = &k_operations<ProfileChoice>,
};

ProfileChoice::ProfileChoice() = default;
ProfileChoice::ProfileChoice(const ProfileChoice& other) : ProfileChoice() { lmx::copy(k_class, this, &other); }
ProfileChoice::~ProfileChoice() { lmx::release_choice(k_class, this); }
ProfileChoice& ProfileChoice::operator=(const ProfileChoice& other) { ProfileChoice copy(other); swap(copy); return *this; }
lmx::elmx_error ProfileChoice::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ProfileChoice::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ProfileChoice::swap(ProfileChoice& other) { lmx::swap(k_class, this, &other); }
void ProfileChoice::reset() { ProfileChoice fresh; lmx::exchange(k_class, this, &fresh); }
bool ProfileChoice::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
ProfileFile& ProfileChoice::get_ProfileFile() { return *static_cast<ProfileFile*>(lmx::choose(k_class, k_items[item_ProfileFile], this)); }
ProfileFile& ProfileChoice::assign_ProfileFile(const ProfileFile& value) { ProfileFile copy(value); ProfileFile& target = get_ProfileFile(); target.swap(copy); return target; }
const std::u16string& ProfileChoice::get_ProfileURI() const { return lmx::chosen_text(k_class, k_items[item_ProfileURI], this); }
lmx::elmx_error ProfileChoice::set_ProfileURI(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ProfileURI], this, value); }

// ProfileType

constexpr s_item ProfileType::k_items[] = {
    {item_kind::attribute, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Direction", attribute("Direction"), LMX_OFFSET(ProfileType, m_Direction, attribute, enumerated), LMX_FLAG(ProfileType, m_isset_Direction), nullptr, &facets::ProfileDirectionKind},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ProfileChoice", element("ProfileChoice"), LMX_OFFSET(ProfileType, m_ProfileChoice, child, none), LMX_FLAG(ProfileType, m_isset_ProfileChoice), &ProfileChoice::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Parameters", element("Parameters"), LMX_OFFSET(ProfileType, m_Parameters, child_list, none), k_no_flag, &ProfileType_Parameters::k_class},
    {item_kind::element, value_kind::datetime, use_optional, ELMX_WS_COLLAPSE, "Vyr:Created", element("Created"), LMX_OFFSET(ProfileType, m_Created, element, datetime), LMX_FLAG(ProfileType, m_isset_Created), nullptr, &facets::DateTimeZone},
};
constinit const s_class ProfileType::k_class = {
    .name = "ProfileType",
    .qualified_name = "Vyr:ProfileType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ProfileType>,
};

ProfileType::ProfileType() = default;
ProfileType::ProfileType(const ProfileType& other) { lmx::copy(k_class, this, &other); }
ProfileType::~ProfileType() = default;
ProfileType& ProfileType::operator=(const ProfileType& other) { ProfileType copy(other); swap(copy); return *this; }
lmx::elmx_error ProfileType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ProfileType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ProfileType::swap(ProfileType& other) { lmx::swap(k_class, this, &other); }
void ProfileType::reset() { ProfileType fresh; lmx::exchange(k_class, this, &fresh); }
bool ProfileType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ProfileType::set_Direction(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Direction], this, value); }
bool ProfileType::setenum_Direction(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_Direction], this, number); }
ProfileChoice& ProfileType::assign_ProfileChoice(const ProfileChoice& value) { return get_ProfileChoice() = value; }
ProfileType_Parameters& ProfileType::get_Parameters(std::size_t index) { return m_Parameters.grow_to(index); }
ProfileType_Parameters& ProfileType::assign_Parameters(std::size_t index, const ProfileType_Parameters& value) { return get_Parameters(index) = value; }
lmx::elmx_error ProfileType::append_Parameters() { m_Parameters.append(); return lmx::ELMX_OK; }
lmx::elmx_error ProfileType::insert_Parameters(std::size_t index) { m_Parameters.insert(index); return lmx::ELMX_OK; }
void ProfileType::delete_Parameters(std::size_t index) { m_Parameters.erase(index); }
void ProfileType::clear_Parameters() { m_Parameters.clear(); }
lmx::elmx_error ProfileType::set_Created(const lmx::c_datetime& value) { return lmx::set_item(k_class, k_items[item_Created], this, value); }

// ProfileFile

constexpr s_item ProfileFile::k_items[] = {
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "ProfileName", attribute("ProfileName"), LMX_OFFSET(ProfileFile, m_ProfileName, attribute, text), LMX_FLAG(ProfileFile, m_isset_ProfileName)},
    {item_kind::content, value_kind::binary, use_required, ELMX_WS_COLLAPSE, "", 0, LMX_OFFSET(ProfileFile, m_ProfileFile, content, binary), LMX_FLAG(ProfileFile, m_isset_ProfileFile)},
};
constinit const s_class ProfileFile::k_class = {
    .name = "ProfileFile",
    .qualified_name = "Vyr:ProfileFile",
    .content = content_kind::simple,
    .names = &k_names,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ProfileFile>,
};

ProfileFile::ProfileFile() = default;
ProfileFile::ProfileFile(const ProfileFile& other) { lmx::copy(k_class, this, &other); }
ProfileFile::~ProfileFile() = default;
ProfileFile& ProfileFile::operator=(const ProfileFile& other) { ProfileFile copy(other); swap(copy); return *this; }
lmx::elmx_error ProfileFile::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ProfileFile::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ProfileFile::swap(ProfileFile& other) { lmx::swap(k_class, this, &other); }
void ProfileFile::reset() { ProfileFile fresh; lmx::exchange(k_class, this, &fresh); }
bool ProfileFile::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ProfileFile::set_ProfileName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ProfileName], this, value); }
lmx::elmx_error ProfileFile::set_ProfileFile(const lmx::c_binary& value) { return lmx::set_item(k_class, k_items[item_ProfileFile], this, value); }

// ProfileType_Parameters_ValueChoice

constexpr s_item ProfileType_Parameters_ValueChoice::k_items[] = {
    {item_kind::alternative, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:DoubleValue", element("DoubleValue"), 0, k_no_flag},
    {item_kind::alternative, value_kind::int32, use_optional, ELMX_WS_COLLAPSE, "Vyr:IntegerValue", element("IntegerValue"), 0, k_no_flag, nullptr, &facets::Int32},
    {item_kind::alternative, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:StringValue", element("StringValue"), 0, k_no_flag},
};
constinit const s_class ProfileType_Parameters_ValueChoice::k_class = {
    .name = "ProfileType_Parameters_ValueChoice",
    .qualified_name = "Vyr:ValueChoice",
    .content = content_kind::choice,
    .names = &k_names,
    .choice = LMX_CHOICE(ProfileType_Parameters_ValueChoice, m_choice),
    .elements = k_items,
    .operations = &k_operations<ProfileType_Parameters_ValueChoice>,
};

ProfileType_Parameters_ValueChoice::ProfileType_Parameters_ValueChoice() = default;
ProfileType_Parameters_ValueChoice::ProfileType_Parameters_ValueChoice(const ProfileType_Parameters_ValueChoice& other) : ProfileType_Parameters_ValueChoice() { lmx::copy(k_class, this, &other); }
ProfileType_Parameters_ValueChoice::~ProfileType_Parameters_ValueChoice() { lmx::release_choice(k_class, this); }
ProfileType_Parameters_ValueChoice& ProfileType_Parameters_ValueChoice::operator=(const ProfileType_Parameters_ValueChoice& other) { ProfileType_Parameters_ValueChoice copy(other); swap(copy); return *this; }
lmx::elmx_error ProfileType_Parameters_ValueChoice::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ProfileType_Parameters_ValueChoice::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ProfileType_Parameters_ValueChoice::swap(ProfileType_Parameters_ValueChoice& other) { lmx::swap(k_class, this, &other); }
void ProfileType_Parameters_ValueChoice::reset() { ProfileType_Parameters_ValueChoice fresh; lmx::exchange(k_class, this, &fresh); }
bool ProfileType_Parameters_ValueChoice::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ProfileType_Parameters_ValueChoice::set_DoubleValue(double value) { return lmx::set_item(k_class, k_items[item_DoubleValue], this, value); }
lmx::elmx_error ProfileType_Parameters_ValueChoice::set_IntegerValue(std::int32_t value) { return lmx::set_item(k_class, k_items[item_IntegerValue], this, value); }
const std::u16string& ProfileType_Parameters_ValueChoice::get_StringValue() const { return lmx::chosen_text(k_class, k_items[item_StringValue], this); }
lmx::elmx_error ProfileType_Parameters_ValueChoice::set_StringValue(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_StringValue], this, value); }

// ProfileType_Parameters

constexpr s_item ProfileType_Parameters::k_items[] = {
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Vyr:Name", element("Name"), LMX_OFFSET(ProfileType_Parameters, m_Name, element, text), LMX_FLAG(ProfileType_Parameters, m_isset_Name), nullptr, &facets::SingleCharacter},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ValueChoice", element("ValueChoice"), LMX_OFFSET(ProfileType_Parameters, m_ValueChoice, child, none), LMX_FLAG(ProfileType_Parameters, m_isset_ValueChoice), &ProfileType_Parameters_ValueChoice::k_class},
};
constinit const s_class ProfileType_Parameters::k_class = {
    .name = "ProfileType_Parameters",
    .qualified_name = "Vyr:Parameters",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<ProfileType_Parameters>,
};

ProfileType_Parameters::ProfileType_Parameters() = default;
ProfileType_Parameters::ProfileType_Parameters(const ProfileType_Parameters& other) { lmx::copy(k_class, this, &other); }
ProfileType_Parameters::~ProfileType_Parameters() = default;
ProfileType_Parameters& ProfileType_Parameters::operator=(const ProfileType_Parameters& other) { ProfileType_Parameters copy(other); swap(copy); return *this; }
lmx::elmx_error ProfileType_Parameters::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ProfileType_Parameters::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ProfileType_Parameters::swap(ProfileType_Parameters& other) { lmx::swap(k_class, this, &other); }
void ProfileType_Parameters::reset() { ProfileType_Parameters fresh; lmx::exchange(k_class, this, &fresh); }
bool ProfileType_Parameters::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ProfileType_Parameters::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ProfileType_Parameters_ValueChoice& ProfileType_Parameters::assign_ValueChoice(const ProfileType_Parameters_ValueChoice& value) { return get_ValueChoice() = value; }

}  // namespace com_vyrgraph_v2
