// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in samples.h.

#include "schema/generated/samples.h"
#include "lmx/binding/binding.h"
#include "schema/generated/groups.h"
#include "schema/generated/header.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// SampleType

constexpr s_item SampleType::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(SampleType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::group, value_kind::none, use_asked | use_written | use_copied | use_lax, ELMX_WS_PRESERVE, "Vyr:Substrate", 0, LMX_OFFSET(SampleType, m_Substrate, group, none), LMX_FLAG(SampleType, m_isset_Substrate), &sg_Substrate::k_class},
    {item_kind::element, value_kind::enumerated, use_optional, ELMX_WS_PRESERVE, "Vyr:Backing", element("Backing"), LMX_OFFSET(SampleType, m_Backing, element, enumerated), LMX_FLAG(SampleType, m_isset_Backing), nullptr, &facets::BackingKind},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:Manufacturer", element("Manufacturer"), LMX_OFFSET(SampleType, m_Manufacturer, element, text), LMX_FLAG(SampleType, m_isset_Manufacturer)},
    {item_kind::element, value_kind::datetime, use_optional, ELMX_WS_COLLAPSE, "Vyr:ProductionDate", element("ProductionDate"), LMX_OFFSET(SampleType, m_ProductionDate, element, datetime), LMX_FLAG(SampleType, m_isset_ProductionDate), nullptr, &facets::DateTimeZone},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:SerialNumber", element("SerialNumber"), LMX_OFFSET(SampleType, m_SerialNumber, element, text), LMX_FLAG(SampleType, m_isset_SerialNumber)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:Comment", element("Comment"), LMX_OFFSET(SampleType, m_Comment, element, text), LMX_FLAG(SampleType, m_isset_Comment)},
};
constinit const s_factory_row SampleType::k_factory[] = {
    {"SampleSpotType", &SampleSpotType::k_class},
    {"SampleTargetType", &SampleTargetType::k_class},
};
constinit const s_class SampleType::k_class = {
    .name = "SampleType",
    .qualified_name = "Vyr:SampleType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SampleType::id,
    .elements = k_items,
    .operations = &k_operations<SampleType>,
};

const char k_SampleType_id[] = "SampleType";
const char* SampleType::id = k_SampleType_id;
SampleType::SampleType() = default;
SampleType::SampleType(const SampleType& other) { lmx::copy(k_class, this, &other); }
SampleType* SampleType::clone() const { return new SampleType(*this); }
SampleType::~SampleType() = default;
SampleType& SampleType::operator=(const SampleType& other) { SampleType copy(other); swap(copy); return *this; }
const char* SampleType::getid() const { return id; }
bool SampleType::has_id(const char* identity) const { return identity == id; }
lmx::elmx_error SampleType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SampleType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SampleType::swap(SampleType& other) { lmx::swap(k_class, this, &other); }
void SampleType::reset() { SampleType fresh; lmx::exchange(k_class, this, &fresh); }
bool SampleType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& SampleType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& SampleType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error SampleType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error SampleType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void SampleType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void SampleType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
sg_Substrate& SampleType::assign_Substrate(const sg_Substrate& value) { return get_Substrate() = value; }
lmx::elmx_error SampleType::set_Backing(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Backing], this, value); }
bool SampleType::setenum_Backing(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_Backing], this, number); }
lmx::elmx_error SampleType::set_Manufacturer(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Manufacturer], this, value); }
lmx::elmx_error SampleType::set_ProductionDate(const lmx::c_datetime& value) { return lmx::set_item(k_class, k_items[item_ProductionDate], this, value); }
lmx::elmx_error SampleType::set_SerialNumber(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_SerialNumber], this, value); }
lmx::elmx_error SampleType::set_Comment(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Comment], this, value); }
SampleType* SampleType::factory(int ns_id, const std::string& name) { return static_cast<SampleType*>(lmx::create_by_name(k_factory, ns_id, name)); }

// Sample

constinit const lmx::s_document Sample::k_document = {"Vyr:Sample", "Sample", k_ns_map, &lmx::k_operations<Sample>};
const lmx::s_ns_map* Sample::ns_map() { return k_ns_map; }
lmx::elmx_error Sample::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error Sample::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SampleType::marshal(writer, name); }
lmx::elmx_error Sample::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SampleType::unmarshal(reader, name); }

// Specification

constexpr s_item Specification::k_items[] = {
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:SampleWidth", element("SampleWidth"), LMX_OFFSET(Specification, m_SampleWidth, element, number), LMX_FLAG(Specification, m_isset_SampleWidth)},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:SampleHeight", element("SampleHeight"), LMX_OFFSET(Specification, m_SampleHeight, element, number), LMX_FLAG(Specification, m_isset_SampleHeight)},
};
constinit const s_class Specification::k_class = {
    .name = "Specification",
    .qualified_name = "Vyr:Specification",
    .content = content_kind::children,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<Specification>,
};

Specification::Specification() = default;
Specification::Specification(const Specification& other) { lmx::copy(k_class, this, &other); }
Specification::~Specification() = default;
Specification& Specification::operator=(const Specification& other) { Specification copy(other); swap(copy); return *this; }
lmx::elmx_error Specification::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Specification::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Specification::swap(Specification& other) { lmx::swap(k_class, this, &other); }
void Specification::reset() { Specification fresh; lmx::exchange(k_class, this, &fresh); }
bool Specification::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error Specification::set_SampleWidth(double value) { return lmx::set_item(k_class, k_items[item_SampleWidth], this, value); }
lmx::elmx_error Specification::set_SampleHeight(double value) { return lmx::set_item(k_class, k_items[item_SampleHeight], this, value); }

// SampleSpotType

constexpr s_item SampleSpotType::k_items[] = {
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Specification", element("Specification"), LMX_OFFSET(SampleSpotType, m_Specification, child, none), LMX_FLAG(SampleSpotType, m_isset_Specification), &Specification::k_class},
};
constinit const s_class SampleSpotType::k_class = {
    .name = "SampleSpotType",
    .qualified_name = "Vyr:SampleSpotType",
    .base = &SampleType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SampleSpotType::id,
    .elements = k_items,
    .operations = &k_operations<SampleSpotType>,
};

const char k_SampleSpotType_id[] = "SampleSpotType";
const char* SampleSpotType::id = k_SampleSpotType_id;
SampleSpotType::SampleSpotType() = default;
SampleSpotType::SampleSpotType(const SampleSpotType& other) : SampleType() { lmx::copy(k_class, this, &other); }
SampleSpotType* SampleSpotType::clone() const { return new SampleSpotType(*this); }
SampleSpotType::~SampleSpotType() = default;
SampleSpotType& SampleSpotType::operator=(const SampleSpotType& other) { SampleSpotType copy(other); swap(copy); return *this; }
const char* SampleSpotType::getid() const { return id; }
bool SampleSpotType::has_id(const char* identity) const { return identity == id || SampleType::has_id(identity); }
lmx::elmx_error SampleSpotType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SampleSpotType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SampleSpotType::swap(SampleSpotType& other) { lmx::swap(k_class, this, &other); }
void SampleSpotType::reset() { SampleSpotType fresh; lmx::exchange(k_class, this, &fresh); }
bool SampleSpotType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
Specification& SampleSpotType::assign_Specification(const Specification& value) { return get_Specification() = value; }

// SampleTargetType

constexpr s_item SampleTargetType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_optional, ELMX_WS_PRESERVE, "CustomTarget", attribute("CustomTarget"), LMX_OFFSET(SampleTargetType, m_CustomTarget, attribute, text), LMX_FLAG(SampleTargetType, m_isset_CustomTarget)},
    {item_kind::element, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Vyr:Target", element("Target"), LMX_OFFSET(SampleTargetType, m_Target, element, enumerated), LMX_FLAG(SampleTargetType, m_isset_Target), nullptr, &facets::TargetKind},
};
constinit const s_class SampleTargetType::k_class = {
    .name = "SampleTargetType",
    .qualified_name = "Vyr:SampleTargetType",
    .base = &SampleType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SampleTargetType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<SampleTargetType>,
};

const char k_SampleTargetType_id[] = "SampleTargetType";
const char* SampleTargetType::id = k_SampleTargetType_id;
SampleTargetType::SampleTargetType() = default;
SampleTargetType::SampleTargetType(const SampleTargetType& other) : SampleType() { lmx::copy(k_class, this, &other); }
SampleTargetType* SampleTargetType::clone() const { return new SampleTargetType(*this); }
SampleTargetType::~SampleTargetType() = default;
SampleTargetType& SampleTargetType::operator=(const SampleTargetType& other) { SampleTargetType copy(other); swap(copy); return *this; }
const char* SampleTargetType::getid() const { return id; }
bool SampleTargetType::has_id(const char* identity) const { return identity == id || SampleType::has_id(identity); }
lmx::elmx_error SampleTargetType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SampleTargetType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SampleTargetType::swap(SampleTargetType& other) { lmx::swap(k_class, this, &other); }
void SampleTargetType::reset() { SampleTargetType fresh; lmx::exchange(k_class, this, &fresh); }
bool SampleTargetType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SampleTargetType::set_CustomTarget(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_CustomTarget], this, value); }
lmx::elmx_error SampleTargetType::set_Target(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Target], this, value); }
bool SampleTargetType::setenum_Target(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_Target], this, number); }

// SampleSpot

constinit const lmx::s_document SampleSpot::k_document = {"Vyr:SampleSpot", "SampleSpot", k_ns_map, &lmx::k_operations<SampleSpot>};
SampleSpot::SampleSpot(const char* file_name, lmx::elmx_error* error) : SampleSpot() { *error = unmarshal(file_name); }
SampleSpot::SampleSpot(const char* data, std::size_t size, lmx::elmx_error* error) : SampleSpot() { *error = unmarshal(data, size); }
SampleSpot::SampleSpot(const std::string& text, lmx::elmx_error* error) : SampleSpot() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* SampleSpot::ns_map() { return k_ns_map; }
lmx::elmx_error SampleSpot::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error SampleSpot::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error SampleSpot::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error SampleSpot::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error SampleSpot::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error SampleSpot::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error SampleSpot::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error SampleSpot::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SampleSpotType::marshal(writer, name); }
lmx::elmx_error SampleSpot::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SampleSpotType::unmarshal(reader, name); }

// SampleTarget

constinit const lmx::s_document SampleTarget::k_document = {"Vyr:SampleTarget", "SampleTarget", k_ns_map, &lmx::k_operations<SampleTarget>};
SampleTarget::SampleTarget(const char* file_name, lmx::elmx_error* error) : SampleTarget() { *error = unmarshal(file_name); }
SampleTarget::SampleTarget(const char* data, std::size_t size, lmx::elmx_error* error) : SampleTarget() { *error = unmarshal(data, size); }
SampleTarget::SampleTarget(const std::string& text, lmx::elmx_error* error) : SampleTarget() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* SampleTarget::ns_map() { return k_ns_map; }
lmx::elmx_error SampleTarget::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error SampleTarget::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error SampleTarget::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error SampleTarget::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error SampleTarget::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error SampleTarget::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error SampleTarget::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error SampleTarget::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SampleTargetType::marshal(writer, name); }
lmx::elmx_error SampleTarget::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SampleTargetType::unmarshal(reader, name); }

}  // namespace com_vyrgraph_v2
