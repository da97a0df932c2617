// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in header.h.

#include "schema/generated/header.h"
#include "lmx/binding/binding.h"
#include "schema/generated/palettes.h"
#include "schema/generated/quality_control.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// SDKVersion

constexpr s_item SDKVersion::k_items[] = {
    {item_kind::content, value_kind::text, use_required, ELMX_WS_PRESERVE, "", 0, LMX_OFFSET(SDKVersion, m_SDKVersion, content, text), LMX_FLAG(SDKVersion, m_isset_SDKVersion)},
};
constinit const s_class SDKVersion::k_class = {
    .name = "SDKVersion",
    .qualified_name = "Vyr:SDKVersion",
    .content = content_kind::simple,
    .names = &k_names,
    .nil_flag = LMX_FLAG(SDKVersion, m_isnil),
    .elements = k_items,
    .operations = &k_operations<SDKVersion>,
};

SDKVersion::SDKVersion() = default;
SDKVersion::SDKVersion(const SDKVersion& other) { lmx::copy(k_class, this, &other); }
SDKVersion::~SDKVersion() = default;
SDKVersion& SDKVersion::operator=(const SDKVersion& other) { SDKVersion copy(other); swap(copy); return *this; }
lmx::elmx_error SDKVersion::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SDKVersion::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SDKVersion::swap(SDKVersion& other) { lmx::swap(k_class, this, &other); }
void SDKVersion::reset() { SDKVersion fresh; lmx::exchange(k_class, this, &fresh); }
bool SDKVersion::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SDKVersion::set_SDKVersion(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_SDKVersion], this, value); }

// SDKType

constexpr s_item SDKType::k_items[] = {
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Vyr:SDKName", element("SDKName"), LMX_OFFSET(SDKType, m_SDKName, element, text), LMX_FLAG(SDKType, m_isset_SDKName)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:SDKVersion", element("SDKVersion"), LMX_OFFSET(SDKType, m_SDKVersion, child, none), LMX_FLAG(SDKType, m_isset_SDKVersion), &SDKVersion::k_class},
};
constinit const s_class SDKType::k_class = {
    .name = "SDKType",
    .qualified_name = "Vyr:SDKType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<SDKType>,
};

SDKType::SDKType() = default;
SDKType::SDKType(const SDKType& other) { lmx::copy(k_class, this, &other); }
SDKType::~SDKType() = default;
SDKType& SDKType::operator=(const SDKType& other) { SDKType copy(other); swap(copy); return *this; }
lmx::elmx_error SDKType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SDKType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SDKType::swap(SDKType& other) { lmx::swap(k_class, this, &other); }
void SDKType::reset() { SDKType fresh; lmx::exchange(k_class, this, &fresh); }
bool SDKType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SDKType::set_SDKName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_SDKName], this, value); }
SDKVersion& SDKType::assign_SDKVersion(const SDKVersion& value) { return get_SDKVersion() = value; }

// PlatformType

constexpr s_item PlatformType::k_items[] = {
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:OperatingSystem", element("OperatingSystem"), LMX_OFFSET(PlatformType, m_OperatingSystem, element, text), LMX_FLAG(PlatformType, m_isset_OperatingSystem)},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:OperatingSystemVersion", element("OperatingSystemVersion"), LMX_OFFSET(PlatformType, m_OperatingSystemVersion, element, text), LMX_FLAG(PlatformType, m_isset_OperatingSystemVersion)},
};
constinit const s_class PlatformType::k_class = {
    .name = "PlatformType",
    .qualified_name = "Vyr:PlatformType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<PlatformType>,
};

PlatformType::PlatformType() = default;
PlatformType::PlatformType(const PlatformType& other) { lmx::copy(k_class, this, &other); }
PlatformType::~PlatformType() = default;
PlatformType& PlatformType::operator=(const PlatformType& other) { PlatformType copy(other); swap(copy); return *this; }
lmx::elmx_error PlatformType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error PlatformType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void PlatformType::swap(PlatformType& other) { lmx::swap(k_class, this, &other); }
void PlatformType::reset() { PlatformType fresh; lmx::exchange(k_class, this, &fresh); }
bool PlatformType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error PlatformType::set_OperatingSystem(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_OperatingSystem], this, value); }
lmx::elmx_error PlatformType::set_OperatingSystemVersion(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_OperatingSystemVersion], this, value); }

// Header

constexpr s_item Header::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(Header, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:Creator", element("Creator"), LMX_OFFSET(Header, m_Creator, element, text), LMX_FLAG(Header, m_isset_Creator)},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:CreatorVersion", element("CreatorVersion"), LMX_OFFSET(Header, m_CreatorVersion, element, text), LMX_FLAG(Header, m_isset_CreatorVersion)},
    {item_kind::element_list, value_kind::datetime, use_demanded | use_asked, ELMX_WS_COLLAPSE, "Vyr:ChangeHistory", element("ChangeHistory"), LMX_OFFSET(Header, m_ChangeHistory, element_list, datetime), k_no_flag, nullptr, &facets::DateTimeZone},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:Purpose", element("Purpose"), LMX_OFFSET(Header, m_Purpose, element, text), LMX_FLAG(Header, m_isset_Purpose)},
    {item_kind::element, value_kind::text, use_name, ELMX_WS_PRESERVE, "Vyr:Name", element("Name"), LMX_OFFSET(Header, m_Name, element, text), LMX_FLAG(Header, m_isset_Name)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:Comments", element("Comments"), LMX_OFFSET(Header, m_Comments, element, text), LMX_FLAG(Header, m_isset_Comments)},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ReadSDKInformation", element("ReadSDKInformation"), LMX_OFFSET(Header, m_ReadSDKInformation, optional_child, none), LMX_FLAG(Header, m_isset_ReadSDKInformation), &SDKType::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:WriteSDKInformation", element("WriteSDKInformation"), LMX_OFFSET(Header, m_WriteSDKInformation, optional_child, none), LMX_FLAG(Header, m_isset_WriteSDKInformation), &SDKType::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ReadPlatformInformation", element("ReadPlatformInformation"), LMX_OFFSET(Header, m_ReadPlatformInformation, optional_child, none), LMX_FLAG(Header, m_isset_ReadPlatformInformation), &PlatformType::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:WritePlatformInformation", element("WritePlatformInformation"), LMX_OFFSET(Header, m_WritePlatformInformation, optional_child, none), LMX_FLAG(Header, m_isset_WritePlatformInformation), &PlatformType::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Revision", element("Revision"), LMX_OFFSET(Header, m_Revision, child_list, none), k_no_flag, &Revision::k_class},
};
constinit const s_class Header::k_class = {
    .name = "Header",
    .qualified_name = "Vyr:Header",
    .content = content_kind::children,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<Header>,
};

Header::Header() = default;
Header::Header(const Header& other) { lmx::copy(k_class, this, &other); }
Header::~Header() = default;
Header& Header::operator=(const Header& other) { Header copy(other); swap(copy); return *this; }
lmx::elmx_error Header::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Header::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Header::swap(Header& other) { lmx::swap(k_class, this, &other); }
void Header::reset() { Header fresh; lmx::exchange(k_class, this, &fresh); }
bool Header::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& Header::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& Header::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error Header::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error Header::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void Header::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void Header::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error Header::set_Creator(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Creator], this, value); }
lmx::elmx_error Header::set_CreatorVersion(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_CreatorVersion], this, value); }
lmx::elmx_error Header::set_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::set_entry(k_items[item_ChangeHistory], this, index, value); }
lmx::elmx_error Header::append_ChangeHistory(const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, size_ChangeHistory(), value); }
lmx::elmx_error Header::insert_ChangeHistory(std::size_t index, const lmx::c_datetime& value) { return lmx::insert_entry(k_items[item_ChangeHistory], this, index, value); }
void Header::delete_ChangeHistory(std::size_t index) { m_ChangeHistory.erase(index); }
void Header::clear_ChangeHistory() { m_ChangeHistory.clear(); }
lmx::elmx_error Header::set_Purpose(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Purpose], this, value); }
lmx::elmx_error Header::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
lmx::elmx_error Header::set_Comments(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Comments], this, value); }
SDKType& Header::get_ReadSDKInformation() { SDKType& child = m_ReadSDKInformation.touch(); m_isset_ReadSDKInformation = true; return child; }
const SDKType& Header::get_ReadSDKInformation() const { return m_ReadSDKInformation.get(); }
SDKType& Header::assign_ReadSDKInformation(const SDKType& value) { return get_ReadSDKInformation() = value; }
SDKType& Header::get_WriteSDKInformation() { SDKType& child = m_WriteSDKInformation.touch(); m_isset_WriteSDKInformation = true; return child; }
const SDKType& Header::get_WriteSDKInformation() const { return m_WriteSDKInformation.get(); }
SDKType& Header::assign_WriteSDKInformation(const SDKType& value) { return get_WriteSDKInformation() = value; }
PlatformType& Header::get_ReadPlatformInformation() { PlatformType& child = m_ReadPlatformInformation.touch(); m_isset_ReadPlatformInformation = true; return child; }
const PlatformType& Header::get_ReadPlatformInformation() const { return m_ReadPlatformInformation.get(); }
PlatformType& Header::assign_ReadPlatformInformation(const PlatformType& value) { return get_ReadPlatformInformation() = value; }
PlatformType& Header::get_WritePlatformInformation() { PlatformType& child = m_WritePlatformInformation.touch(); m_isset_WritePlatformInformation = true; return child; }
const PlatformType& Header::get_WritePlatformInformation() const { return m_WritePlatformInformation.get(); }
PlatformType& Header::assign_WritePlatformInformation(const PlatformType& value) { return get_WritePlatformInformation() = value; }
Revision& Header::get_Revision(std::size_t index) { return m_Revision.grow_to(index); }
Revision& Header::assign_Revision(std::size_t index, const Revision& value) { return get_Revision(index) = value; }
lmx::elmx_error Header::append_Revision() { m_Revision.append(); return lmx::ELMX_OK; }
lmx::elmx_error Header::insert_Revision(std::size_t index) { m_Revision.insert(index); return lmx::ELMX_OK; }
void Header::delete_Revision(std::size_t index) { m_Revision.erase(index); }
void Header::clear_Revision() { m_Revision.clear(); }

// OwnerType

constexpr s_item OwnerType::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(OwnerType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Person", element("Person"), LMX_OFFSET(OwnerType, m_Person, child_list, none), k_no_flag, &Person::k_class},
    {item_kind::element_list, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:Copyright", element("Copyright"), LMX_OFFSET(OwnerType, m_Copyright, element_list, text), k_no_flag},
    {item_kind::element_list, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:Company", element("Company"), LMX_OFFSET(OwnerType, m_Company, element_list, text), k_no_flag},
};
constinit const s_class OwnerType::k_class = {
    .name = "OwnerType",
    .qualified_name = "Vyr:OwnerType",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<OwnerType>,
};

OwnerType::OwnerType() = default;
OwnerType::OwnerType(const OwnerType& other) { lmx::copy(k_class, this, &other); }
OwnerType::~OwnerType() = default;
OwnerType& OwnerType::operator=(const OwnerType& other) { OwnerType copy(other); swap(copy); return *this; }
lmx::elmx_error OwnerType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error OwnerType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void OwnerType::swap(OwnerType& other) { lmx::swap(k_class, this, &other); }
void OwnerType::reset() { OwnerType fresh; lmx::exchange(k_class, this, &fresh); }
bool OwnerType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& OwnerType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& OwnerType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error OwnerType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error OwnerType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void OwnerType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void OwnerType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
Person& OwnerType::get_Person(std::size_t index) { return m_Person.grow_to(index); }
Person& OwnerType::assign_Person(std::size_t index, const Person& value) { return get_Person(index) = value; }
lmx::elmx_error OwnerType::append_Person() { m_Person.append(); return lmx::ELMX_OK; }
lmx::elmx_error OwnerType::insert_Person(std::size_t index) { m_Person.insert(index); return lmx::ELMX_OK; }
void OwnerType::delete_Person(std::size_t index) { m_Person.erase(index); }
void OwnerType::clear_Person() { m_Person.clear(); }
lmx::elmx_error OwnerType::set_Copyright(std::size_t index, const std::u16string& value) { return lmx::set_entry(k_items[item_Copyright], this, index, value); }
lmx::elmx_error OwnerType::append_Copyright(const std::u16string& value) { return lmx::insert_entry(k_items[item_Copyright], this, size_Copyright(), value); }
lmx::elmx_error OwnerType::insert_Copyright(std::size_t index, const std::u16string& value) { return lmx::insert_entry(k_items[item_Copyright], this, index, value); }
void OwnerType::delete_Copyright(std::size_t index) { m_Copyright.erase(index); }
void OwnerType::clear_Copyright() { m_Copyright.clear(); }
lmx::elmx_error OwnerType::set_Company(std::size_t index, const std::u16string& value) { return lmx::set_entry(k_items[item_Company], this, index, value); }
lmx::elmx_error OwnerType::append_Company(const std::u16string& value) { return lmx::insert_entry(k_items[item_Company], this, size_Company(), value); }
lmx::elmx_error OwnerType::insert_Company(std::size_t index, const std::u16string& value) { return lmx::insert_entry(k_items[item_Company], this, index, value); }
void OwnerType::delete_Company(std::size_t index) { m_Company.erase(index); }
void OwnerType::clear_Company() { m_Company.clear(); }

// Version

constexpr s_item Version::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(Version, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:Version", element("Version"), LMX_OFFSET(Version, m_Version, element, text), LMX_FLAG(Version, m_isset_Version)},
    {item_kind::element_list, value_kind::text, use_optional, ELMX_WS_COLLAPSE, "Vyr:Predecessor", element("Predecessor"), LMX_OFFSET(Version, m_Predecessor, element_list, text), k_no_flag},
};
constinit const s_class Version::k_class = {
    .name = "Version",
    .qualified_name = "Vyr:Version",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<Version>,
};

Version::Version() = default;
Version::Version(const Version& other) { lmx::copy(k_class, this, &other); }
Version::~Version() = default;
Version& Version::operator=(const Version& other) { Version copy(other); swap(copy); return *this; }
lmx::elmx_error Version::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Version::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Version::swap(Version& other) { lmx::swap(k_class, this, &other); }
void Version::reset() { Version fresh; lmx::exchange(k_class, this, &fresh); }
bool Version::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& Version::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& Version::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error Version::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error Version::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void Version::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void Version::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error Version::set_Version(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Version], this, value); }
lmx::elmx_error Version::set_Predecessor(std::size_t index, const std::u16string& value) { return lmx::set_entry(k_items[item_Predecessor], this, index, value); }
lmx::elmx_error Version::append_Predecessor(const std::u16string& value) { return lmx::insert_entry(k_items[item_Predecessor], this, size_Predecessor(), value); }
lmx::elmx_error Version::insert_Predecessor(std::size_t index, const std::u16string& value) { return lmx::insert_entry(k_items[item_Predecessor], this, index, value); }
void Version::delete_Predecessor(std::size_t index) { m_Predecessor.erase(index); }
void Version::clear_Predecessor() { m_Predecessor.clear(); }

// Preamble

constexpr s_item Preamble::k_items[] = {
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Header", element("Header"), LMX_OFFSET(Preamble, m_Header, child, none), LMX_FLAG(Preamble, m_isset_Header), &Header::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Owner", element("Owner"), LMX_OFFSET(Preamble, m_Owner, optional_child, none), LMX_FLAG(Preamble, m_isset_Owner), &OwnerType::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Version", element("Version"), LMX_OFFSET(Preamble, m_Version, optional_child, none), LMX_FLAG(Preamble, m_isset_Version), &Version::k_class},
};
constinit const s_class Preamble::k_class = {
    .name = "Preamble",
    .qualified_name = "Vyr:Preamble",
    .content = content_kind::children,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<Preamble>,
};

Preamble::Preamble() = default;
Preamble::Preamble(const Preamble& other) { lmx::copy(k_class, this, &other); }
Preamble::~Preamble() = default;
Preamble& Preamble::operator=(const Preamble& other) { Preamble copy(other); swap(copy); return *this; }
lmx::elmx_error Preamble::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Preamble::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Preamble::swap(Preamble& other) { lmx::swap(k_class, this, &other); }
void Preamble::reset() { Preamble fresh; lmx::exchange(k_class, this, &fresh); }
bool Preamble::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
Header& Preamble::assign_Header(const Header& value) { return get_Header() = value; }
OwnerType& Preamble::get_Owner() { OwnerType& child = m_Owner.touch(); m_isset_Owner = true; return child; }
const OwnerType& Preamble::get_Owner() const { return m_Owner.get(); }
OwnerType& Preamble::assign_Owner(const OwnerType& value) { return get_Owner() = value; }
Version& Preamble::get_Version() { Version& child = m_Version.touch(); m_isset_Version = true; return child; }
const Version& Preamble::get_Version() const { return m_Version.get(); }
Version& Preamble::assign_Version(const Version& value) { return get_Version() = value; }

// Vyr

constexpr s_item Vyr::k_items[] = {
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Preamble", element("Preamble"), LMX_OFFSET(Vyr, m_Preamble, child, none), LMX_FLAG(Vyr, m_isset_Preamble), &Preamble::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Color", element("Color"), LMX_OFFSET(Vyr, m_Color, child_list, none), k_no_flag, &ColorType::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Palette", element("Palette"), LMX_OFFSET(Vyr, m_Palette, child_list, none), k_no_flag, &PaletteType::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorQualityControl", element("ColorQualityControl"), LMX_OFFSET(Vyr, m_ColorQualityControl, child_list, none), k_no_flag, &ColorQualityControlType::k_class},
};
constinit const s_class Vyr::k_class = {
    .name = "Vyr",
    .qualified_name = "Vyr:Vyr",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<Vyr>,
};

constinit const lmx::s_document Vyr::k_document = {"Vyr:Vyr", "Vyr", k_ns_map, &lmx::k_operations<Vyr>};
Vyr::Vyr() { init(); }
Vyr::Vyr(const Vyr& other) { lmx::copy(k_class, this, &other); init(); }
Vyr::Vyr(const char* file_name, lmx::elmx_error* error) : Vyr() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(file_name); init(); }
Vyr::Vyr(const char* data, std::size_t size, lmx::elmx_error* error) : Vyr() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(data, size); init(); }
Vyr::Vyr(const std::string& text, lmx::elmx_error* error) : Vyr() { *error = lmx::ELMX_UNDEFINED_ERROR; *error = unmarshal(text.data(), text.size()); init(); }
Vyr::~Vyr() = default;
Vyr& Vyr::operator=(const Vyr& other) { Vyr copy(other); swap(copy); return *this; }
const lmx::s_ns_map* Vyr::ns_map() { return k_ns_map; }
lmx::elmx_error Vyr::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error Vyr::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error Vyr::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error Vyr::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error Vyr::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error Vyr::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error Vyr::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error Vyr::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Vyr::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Vyr::swap(Vyr& other) { lmx::swap(k_class, this, &other); }
void Vyr::reset() { Vyr fresh; lmx::exchange(k_class, this, &fresh); }
bool Vyr::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
Preamble& Vyr::assign_Preamble(const Preamble& value) { return get_Preamble() = value; }
ColorType& Vyr::get_Color(std::size_t index) { return m_Color.grow_to(index); }
ColorType& Vyr::assign_Color(std::size_t index, const ColorType& value) { return get_Color(index) = value; }
lmx::elmx_error Vyr::append_Color() { m_Color.append(); return lmx::ELMX_OK; }
lmx::elmx_error Vyr::insert_Color(std::size_t index) { m_Color.insert(index); return lmx::ELMX_OK; }
void Vyr::delete_Color(std::size_t index) { m_Color.erase(index); }
void Vyr::clear_Color() { m_Color.clear(); }
PaletteType& Vyr::get_Palette(std::size_t index) { return m_Palette.grow_to(index); }
PaletteType& Vyr::assign_Palette(std::size_t index, const PaletteType& value) { return get_Palette(index) = value; }
lmx::elmx_error Vyr::append_Palette() { m_Palette.append(); return lmx::ELMX_OK; }
lmx::elmx_error Vyr::insert_Palette(std::size_t index) { m_Palette.insert(index); return lmx::ELMX_OK; }
void Vyr::delete_Palette(std::size_t index) { m_Palette.erase(index); }
void Vyr::clear_Palette() { m_Palette.clear(); }
ColorQualityControlType& Vyr::get_ColorQualityControl(std::size_t index) { return m_ColorQualityControl.grow_to(index); }
ColorQualityControlType& Vyr::assign_ColorQualityControl(std::size_t index, const ColorQualityControlType& value) { return get_ColorQualityControl(index) = value; }
lmx::elmx_error Vyr::append_ColorQualityControl() { m_ColorQualityControl.append(); return lmx::ELMX_OK; }
lmx::elmx_error Vyr::insert_ColorQualityControl(std::size_t index) { m_ColorQualityControl.insert(index); return lmx::ELMX_OK; }
void Vyr::delete_ColorQualityControl(std::size_t index) { m_ColorQualityControl.erase(index); }
void Vyr::clear_ColorQualityControl() { m_ColorQualityControl.clear(); }

// Revision

constexpr s_item Revision::k_items[] = {
    {item_kind::any, value_kind::none, use_demanded | use_asked, ELMX_WS_PRESERVE, "Vyr:", 0, LMX_OFFSET(Revision, m_any, any, none), k_no_flag},
};
constinit const s_class Revision::k_class = {
    .name = "Revision",
    .qualified_name = "Vyr:Revision",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<Revision>,
};

Revision::Revision() = default;
Revision::Revision(const Revision& other) { lmx::copy(k_class, this, &other); }
Revision::~Revision() = default;
Revision& Revision::operator=(const Revision& other) { Revision copy(other); swap(copy); return *this; }
lmx::elmx_error Revision::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Revision::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Revision::swap(Revision& other) { lmx::swap(k_class, this, &other); }
void Revision::reset() { Revision fresh; lmx::exchange(k_class, this, &fresh); }
bool Revision::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
void Revision::get_any(std::size_t index, std::string* ns, std::string* name, std::string* value) const { if (ns != nullptr) *ns = m_any[index].get_namespace(); if (name != nullptr) *name = m_any[index].get_name(); *value = m_any[index].get_value(); }
lmx::elmx_error Revision::append_any(const std::string& value) { return insert_any(size_any(), value); }
lmx::elmx_error Revision::insert_any(std::size_t index, const std::string& value) { m_any.insert(index).set_value(value); return lmx::ELMX_OK; }
void Revision::delete_any(std::size_t index) { m_any.erase(index); }
void Revision::clear_any() { m_any.clear(); }

// Person

constexpr s_item Person::k_items[] = {
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Vyr:Name", element("Name"), LMX_OFFSET(Person, m_Name, element, text), LMX_FLAG(Person, m_isset_Name)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:ContactInfo", element("ContactInfo"), LMX_OFFSET(Person, m_ContactInfo, element, text), LMX_FLAG(Person, m_isset_ContactInfo)},
};
constinit const s_class Person::k_class = {
    .name = "Person",
    .qualified_name = "Vyr:Person",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<Person>,
};

Person::Person() = default;
Person::Person(const Person& other) { lmx::copy(k_class, this, &other); }
Person::~Person() = default;
Person& Person::operator=(const Person& other) { Person copy(other); swap(copy); return *this; }
lmx::elmx_error Person::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Person::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Person::swap(Person& other) { lmx::swap(k_class, this, &other); }
void Person::reset() { Person fresh; lmx::exchange(k_class, this, &fresh); }
bool Person::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error Person::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
lmx::elmx_error Person::set_ContactInfo(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ContactInfo], this, value); }

// CustomAttributeType_ValueChoice

constexpr s_item CustomAttributeType_ValueChoice::k_items[] = {
    {item_kind::alternative, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:DoubleValue", element("DoubleValue"), 0, k_no_flag},
    {item_kind::alternative, value_kind::int32, use_optional, ELMX_WS_COLLAPSE, "Vyr:IntegerValue", element("IntegerValue"), 0, k_no_flag, nullptr, &facets::Int32},
    {item_kind::alternative, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:StringValue", element("StringValue"), 0, k_no_flag},
};
constinit const s_class CustomAttributeType_ValueChoice::k_class = {
    .name = "CustomAttributeType_ValueChoice",
    .qualified_name = "Vyr:ValueChoice",
    .content = content_kind::choice,
    .names = &k_names,
    .choice = LMX_CHOICE(CustomAttributeType_ValueChoice, m_choice),
    .elements = k_items,
    .operations = &k_operations<CustomAttributeType_ValueChoice>,
};

CustomAttributeType_ValueChoice::CustomAttributeType_ValueChoice() = default;
CustomAttributeType_ValueChoice::CustomAttributeType_ValueChoice(const CustomAttributeType_ValueChoice& other) : CustomAttributeType_ValueChoice() { lmx::copy(k_class, this, &other); }
CustomAttributeType_ValueChoice::~CustomAttributeType_ValueChoice() { lmx::release_choice(k_class, this); }
CustomAttributeType_ValueChoice& CustomAttributeType_ValueChoice::operator=(const CustomAttributeType_ValueChoice& other) { CustomAttributeType_ValueChoice copy(other); swap(copy); return *this; }
lmx::elmx_error CustomAttributeType_ValueChoice::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error CustomAttributeType_ValueChoice::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void CustomAttributeType_ValueChoice::swap(CustomAttributeType_ValueChoice& other) { lmx::swap(k_class, this, &other); }
void CustomAttributeType_ValueChoice::reset() { CustomAttributeType_ValueChoice fresh; lmx::exchange(k_class, this, &fresh); }
bool CustomAttributeType_ValueChoice::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error CustomAttributeType_ValueChoice::set_DoubleValue(double value) { return lmx::set_item(k_class, k_items[item_DoubleValue], this, value); }
lmx::elmx_error CustomAttributeType_ValueChoice::set_IntegerValue(std::int32_t value) { return lmx::set_item(k_class, k_items[item_IntegerValue], this, value); }
const std::u16string& CustomAttributeType_ValueChoice::get_StringValue() const { return lmx::chosen_text(k_class, k_items[item_StringValue], this); }
lmx::elmx_error CustomAttributeType_ValueChoice::set_StringValue(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_StringValue], this, value); }

// CustomAttributeType

constexpr s_item CustomAttributeType::k_items[] = {
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Vyr:Name", element("Name"), LMX_OFFSET(CustomAttributeType, m_Name, element, text), LMX_FLAG(CustomAttributeType, m_isset_Name), nullptr, &facets::NonEmptyString},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ValueChoice", element("ValueChoice"), LMX_OFFSET(CustomAttributeType, m_ValueChoice, child, none), LMX_FLAG(CustomAttributeType, m_isset_ValueChoice), &CustomAttributeType_ValueChoice::k_class},
};
constinit const s_class CustomAttributeType::k_class = {
    .name = "CustomAttributeType",
    .qualified_name = "Vyr:CustomAttributeType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<CustomAttributeType>,
};

CustomAttributeType::CustomAttributeType() = default;
CustomAttributeType::CustomAttributeType(const CustomAttributeType& other) { lmx::copy(k_class, this, &other); }
CustomAttributeType::~CustomAttributeType() = default;
CustomAttributeType& CustomAttributeType::operator=(const CustomAttributeType& other) { CustomAttributeType copy(other); swap(copy); return *this; }
lmx::elmx_error CustomAttributeType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error CustomAttributeType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void CustomAttributeType::swap(CustomAttributeType& other) { lmx::swap(k_class, this, &other); }
void CustomAttributeType::reset() { CustomAttributeType fresh; lmx::exchange(k_class, this, &fresh); }
bool CustomAttributeType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error CustomAttributeType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
CustomAttributeType_ValueChoice& CustomAttributeType::assign_ValueChoice(const CustomAttributeType_ValueChoice& value) { return get_ValueChoice() = value; }

// TagCategory

constexpr s_item TagCategory::k_items[] = {
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "UniqueID", attribute("UniqueID"), LMX_OFFSET(TagCategory, m_UniqueID, attribute, text), LMX_FLAG(TagCategory, m_isset_UniqueID)},
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(TagCategory, m_Name, attribute, text), LMX_FLAG(TagCategory, m_isset_Name)},
};
constinit const s_class TagCategory::k_class = {
    .name = "TagCategory",
    .qualified_name = "Vyr:TagCategory",
    .content = content_kind::empty,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = k_items,
    .operations = &k_operations<TagCategory>,
};

TagCategory::TagCategory() = default;
TagCategory::TagCategory(const TagCategory& other) { lmx::copy(k_class, this, &other); }
TagCategory::~TagCategory() = default;
TagCategory& TagCategory::operator=(const TagCategory& other) { TagCategory copy(other); swap(copy); return *this; }
lmx::elmx_error TagCategory::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error TagCategory::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void TagCategory::swap(TagCategory& other) { lmx::swap(k_class, this, &other); }
void TagCategory::reset() { TagCategory fresh; lmx::exchange(k_class, this, &fresh); }
bool TagCategory::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error TagCategory::set_UniqueID(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_UniqueID], this, value); }
lmx::elmx_error TagCategory::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }

// Tag

constexpr s_item Tag::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(Tag, m_Name, attribute, text), LMX_FLAG(Tag, m_isset_Name)},
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "UniqueID", attribute("UniqueID"), LMX_OFFSET(Tag, m_UniqueID, attribute, text), LMX_FLAG(Tag, m_isset_UniqueID)},
    {item_kind::child, value_kind::none, use_written | use_copied, ELMX_WS_PRESERVE, "Vyr:Category", element("Category"), LMX_OFFSET(Tag, m_Category, child, none), LMX_FLAG(Tag, m_isset_Category), &TagCategory::k_class},
};
constinit const s_class Tag::k_class = {
    .name = "Tag",
    .qualified_name = "Vyr:Tag",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<Tag>,
};

Tag::Tag() = default;
Tag::Tag(const Tag& other) { lmx::copy(k_class, this, &other); }
Tag::~Tag() = default;
Tag& Tag::operator=(const Tag& other) { Tag copy(other); swap(copy); return *this; }
lmx::elmx_error Tag::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Tag::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Tag::swap(Tag& other) { lmx::swap(k_class, this, &other); }
void Tag::reset() { Tag fresh; lmx::exchange(k_class, this, &fresh); }
bool Tag::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error Tag::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
lmx::elmx_error Tag::set_UniqueID(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_UniqueID], this, value); }
TagCategory& Tag::assign_Category(const TagCategory& value) { return get_Category() = value; }

// anon_TextValue

constexpr s_item anon_TextValue::k_items[] = {
    {item_kind::alternative, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:TextValue", element("TextValue"), 0, k_no_flag},
    {item_kind::alternative, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:NumberValue", element("NumberValue"), 0, k_no_flag},
};
constinit const s_class anon_TextValue::k_class = {
    .name = "anon_TextValue",
    .qualified_name = "",
    .content = content_kind::choice,
    .names = &k_names,
    .choice = LMX_CHOICE(anon_TextValue, m_choice),
    .elements = k_items,
    .operations = &k_operations<anon_TextValue>,
};

anon_TextValue::anon_TextValue() = default;
anon_TextValue::anon_TextValue(const anon_TextValue& other) : anon_TextValue() { lmx::copy(k_class, this, &other); }
anon_TextValue::~anon_TextValue() { lmx::release_choice(k_class, this); }
anon_TextValue& anon_TextValue::operator=(const anon_TextValue& other) { anon_TextValue copy(other); swap(copy); return *this; }
bool anon_TextValue::is_member(lmx::c_xml_reader& reader, const std::string&) { return lmx::is_group_member(k_class, reader); }
lmx::elmx_error anon_TextValue::marshal(lmx::c_xml_writer& writer, const char*) const { return lmx::marshal_child_elements(k_class, this, writer); }
bool anon_TextValue::unmarshal(lmx::c_xml_reader& reader, std::string* name, lmx::elmx_error* error) { return lmx::unmarshal_body(k_class, this, reader, name, error); }
void anon_TextValue::swap(anon_TextValue& other) { lmx::swap(k_class, this, &other); }
void anon_TextValue::reset() { anon_TextValue fresh; lmx::exchange(k_class, this, &fresh); }
bool anon_TextValue::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
const std::u16string& anon_TextValue::get_TextValue() const { return lmx::chosen_text(k_class, k_items[item_TextValue], this); }
lmx::elmx_error anon_TextValue::set_TextValue(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_TextValue], this, value); }
lmx::elmx_error anon_TextValue::set_NumberValue(double value) { return lmx::set_item(k_class, k_items[item_NumberValue], this, value); }

// TagValue

constexpr s_item TagValue::k_items[] = {
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "UniqueID", attribute("UniqueID"), LMX_OFFSET(TagValue, m_UniqueID, attribute, text), LMX_FLAG(TagValue, m_isset_UniqueID)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Tag", element("Tag"), LMX_OFFSET(TagValue, m_Tag, child, none), LMX_FLAG(TagValue, m_isset_Tag), &Tag::k_class},
    {item_kind::group, value_kind::none, use_required, ELMX_WS_PRESERVE, "", 0, LMX_OFFSET(TagValue, m_anon_TextValue, group, none), LMX_FLAG(TagValue, m_isset_anon_TextValue), &anon_TextValue::k_class},
};
constinit const s_class TagValue::k_class = {
    .name = "TagValue",
    .qualified_name = "Vyr:TagValue",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<TagValue>,
};

TagValue::TagValue() = default;
TagValue::TagValue(const TagValue& other) { lmx::copy(k_class, this, &other); }
TagValue::~TagValue() = default;
TagValue& TagValue::operator=(const TagValue& other) { TagValue copy(other); swap(copy); return *this; }
lmx::elmx_error TagValue::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error TagValue::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void TagValue::swap(TagValue& other) { lmx::swap(k_class, this, &other); }
void TagValue::reset() { TagValue fresh; lmx::exchange(k_class, this, &fresh); }
bool TagValue::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error TagValue::set_UniqueID(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_UniqueID], this, value); }
Tag& TagValue::assign_Tag(const Tag& value) { return get_Tag() = value; }
anon_TextValue& TagValue::assign_anon_TextValue(const anon_TextValue& value) { return get_anon_TextValue() = value; }

}  // namespace com_vyrgraph_v2
