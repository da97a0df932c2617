// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in substrates.h.

#include "schema/generated/substrates.h"
#include "lmx/binding/binding.h"
#include "schema/generated/header.h"
#include "schema/generated/palettes.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// SubstrateType

constexpr s_item SubstrateType::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(SubstrateType, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:PartNumber", element("PartNumber"), LMX_OFFSET(SubstrateType, m_PartNumber, element, text), LMX_FLAG(SubstrateType, m_isset_PartNumber)},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Color", element("Color"), LMX_OFFSET(SubstrateType, m_Color, optional_child, none), LMX_FLAG(SubstrateType, m_isset_Color), &ColorType::k_class},
};
constinit const s_factory_row SubstrateType::k_factory[] = {
    {"SubstratePaperType", &SubstratePaperType::k_class},
    {"SubstrateGenericType", &SubstrateGenericType::k_class},
    {"SubstrateMetalType", &SubstrateMetalType::k_class},
    {"SubstratePlasticType", &SubstratePlasticType::k_class},
    {"SubstrateWoodType", &SubstrateWoodType::k_class},
    {"SubstrateVinylType", &SubstrateVinylType::k_class},
    {"SubstrateTileType", &SubstrateTileType::k_class},
    {"SubstrateFilmType", &SubstrateFilmType::k_class},
    {"SubstrateTextileType", &SubstrateTextileType::k_class},
};
constinit const s_class SubstrateType::k_class = {
    .name = "SubstrateType",
    .qualified_name = "Vyr:SubstrateType",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SubstrateType::id,
    .elements = k_items,
    .operations = &k_operations<SubstrateType>,
};

const char k_SubstrateType_id[] = "SubstrateType";
const char* SubstrateType::id = k_SubstrateType_id;
SubstrateType::SubstrateType() = default;
SubstrateType::SubstrateType(const SubstrateType& other) { lmx::copy(k_class, this, &other); }
SubstrateType* SubstrateType::clone() const { return new SubstrateType(*this); }
SubstrateType::~SubstrateType() = default;
SubstrateType& SubstrateType::operator=(const SubstrateType& other) { SubstrateType copy(other); swap(copy); return *this; }
const char* SubstrateType::getid() const { return id; }
bool SubstrateType::has_id(const char* identity) const { return identity == id; }
lmx::elmx_error SubstrateType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SubstrateType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SubstrateType::swap(SubstrateType& other) { lmx::swap(k_class, this, &other); }
void SubstrateType::reset() { SubstrateType fresh; lmx::exchange(k_class, this, &fresh); }
bool SubstrateType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& SubstrateType::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& SubstrateType::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error SubstrateType::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error SubstrateType::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void SubstrateType::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void SubstrateType::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error SubstrateType::set_PartNumber(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_PartNumber], this, value); }
ColorType& SubstrateType::get_Color() { ColorType& child = m_Color.touch(); m_isset_Color = true; return child; }
const ColorType& SubstrateType::get_Color() const { return m_Color.get(); }
ColorType& SubstrateType::assign_Color(const ColorType& value) { return get_Color() = value; }
SubstrateType* SubstrateType::factory(int ns_id, const std::string& name) { return static_cast<SubstrateType*>(lmx::create_by_name(k_factory, ns_id, name)); }

// Substrate

constinit const lmx::s_document Substrate::k_document = {"Vyr:Substrate", "Substrate", k_ns_map, &lmx::k_operations<Substrate>};
const lmx::s_ns_map* Substrate::ns_map() { return k_ns_map; }
lmx::elmx_error Substrate::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error Substrate::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SubstrateType::marshal(writer, name); }
lmx::elmx_error Substrate::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SubstrateType::unmarshal(reader, name); }

// SubstratePaperType

constexpr s_item SubstratePaperType::k_items[] = {
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:PaperThickness", element("PaperThickness"), LMX_OFFSET(SubstratePaperType, m_PaperThickness, element, number), LMX_FLAG(SubstratePaperType, m_isset_PaperThickness)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:PaperType", element("PaperType"), LMX_OFFSET(SubstratePaperType, m_PaperType, element, text), LMX_FLAG(SubstratePaperType, m_isset_PaperType)},
};
constinit const s_class SubstratePaperType::k_class = {
    .name = "SubstratePaperType",
    .qualified_name = "Vyr:SubstratePaperType",
    .base = &SubstrateType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SubstratePaperType::id,
    .elements = k_items,
    .operations = &k_operations<SubstratePaperType>,
};

const char k_SubstratePaperType_id[] = "SubstratePaperType";
const char* SubstratePaperType::id = k_SubstratePaperType_id;
SubstratePaperType::SubstratePaperType() = default;
SubstratePaperType::SubstratePaperType(const SubstratePaperType& other) : SubstrateType() { lmx::copy(k_class, this, &other); }
SubstratePaperType* SubstratePaperType::clone() const { return new SubstratePaperType(*this); }
SubstratePaperType::~SubstratePaperType() = default;
SubstratePaperType& SubstratePaperType::operator=(const SubstratePaperType& other) { SubstratePaperType copy(other); swap(copy); return *this; }
const char* SubstratePaperType::getid() const { return id; }
bool SubstratePaperType::has_id(const char* identity) const { return identity == id || SubstrateType::has_id(identity); }
lmx::elmx_error SubstratePaperType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SubstratePaperType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SubstratePaperType::swap(SubstratePaperType& other) { lmx::swap(k_class, this, &other); }
void SubstratePaperType::reset() { SubstratePaperType fresh; lmx::exchange(k_class, this, &fresh); }
bool SubstratePaperType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SubstratePaperType::set_PaperThickness(double value) { return lmx::set_item(k_class, k_items[item_PaperThickness], this, value); }
lmx::elmx_error SubstratePaperType::set_PaperType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_PaperType], this, value); }

// SubstrateGenericType

constexpr s_item SubstrateGenericType::k_items[] = {
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:Type", element("Type"), LMX_OFFSET(SubstrateGenericType, m_Type, element, text), LMX_FLAG(SubstrateGenericType, m_isset_Type), nullptr, &facets::NonEmptyString},
};
constinit const s_class SubstrateGenericType::k_class = {
    .name = "SubstrateGenericType",
    .qualified_name = "Vyr:SubstrateGenericType",
    .base = &SubstrateType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SubstrateGenericType::id,
    .elements = k_items,
    .operations = &k_operations<SubstrateGenericType>,
};

const char k_SubstrateGenericType_id[] = "SubstrateGenericType";
const char* SubstrateGenericType::id = k_SubstrateGenericType_id;
SubstrateGenericType::SubstrateGenericType() = default;
SubstrateGenericType::SubstrateGenericType(const SubstrateGenericType& other) : SubstrateType() { lmx::copy(k_class, this, &other); }
SubstrateGenericType* SubstrateGenericType::clone() const { return new SubstrateGenericType(*this); }
SubstrateGenericType::~SubstrateGenericType() = default;
SubstrateGenericType& SubstrateGenericType::operator=(const SubstrateGenericType& other) { SubstrateGenericType copy(other); swap(copy); return *this; }
const char* SubstrateGenericType::getid() const { return id; }
bool SubstrateGenericType::has_id(const char* identity) const { return identity == id || SubstrateType::has_id(identity); }
lmx::elmx_error SubstrateGenericType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SubstrateGenericType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SubstrateGenericType::swap(SubstrateGenericType& other) { lmx::swap(k_class, this, &other); }
void SubstrateGenericType::reset() { SubstrateGenericType fresh; lmx::exchange(k_class, this, &fresh); }
bool SubstrateGenericType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SubstrateGenericType::set_Type(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Type], this, value); }

// SubstrateMetalType

constexpr s_item SubstrateMetalType::k_items[] = {
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:MetalWeight", element("MetalWeight"), LMX_OFFSET(SubstrateMetalType, m_MetalWeight, element, number), LMX_FLAG(SubstrateMetalType, m_isset_MetalWeight)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:MetalType", element("MetalType"), LMX_OFFSET(SubstrateMetalType, m_MetalType, element, text), LMX_FLAG(SubstrateMetalType, m_isset_MetalType)},
};
constinit const s_class SubstrateMetalType::k_class = {
    .name = "SubstrateMetalType",
    .qualified_name = "Vyr:SubstrateMetalType",
    .base = &SubstrateType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SubstrateMetalType::id,
    .elements = k_items,
    .operations = &k_operations<SubstrateMetalType>,
};

const char k_SubstrateMetalType_id[] = "SubstrateMetalType";
const char* SubstrateMetalType::id = k_SubstrateMetalType_id;
SubstrateMetalType::SubstrateMetalType() = default;
SubstrateMetalType::SubstrateMetalType(const SubstrateMetalType& other) : SubstrateType() { lmx::copy(k_class, this, &other); }
SubstrateMetalType* SubstrateMetalType::clone() const { return new SubstrateMetalType(*this); }
SubstrateMetalType::~SubstrateMetalType() = default;
SubstrateMetalType& SubstrateMetalType::operator=(const SubstrateMetalType& other) { SubstrateMetalType copy(other); swap(copy); return *this; }
const char* SubstrateMetalType::getid() const { return id; }
bool SubstrateMetalType::has_id(const char* identity) const { return identity == id || SubstrateType::has_id(identity); }
lmx::elmx_error SubstrateMetalType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SubstrateMetalType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SubstrateMetalType::swap(SubstrateMetalType& other) { lmx::swap(k_class, this, &other); }
void SubstrateMetalType::reset() { SubstrateMetalType fresh; lmx::exchange(k_class, this, &fresh); }
bool SubstrateMetalType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SubstrateMetalType::set_MetalWeight(double value) { return lmx::set_item(k_class, k_items[item_MetalWeight], this, value); }
lmx::elmx_error SubstrateMetalType::set_MetalType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_MetalType], this, value); }

// SubstratePlasticType

constexpr s_item SubstratePlasticType::k_items[] = {
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:PlasticWeight", element("PlasticWeight"), LMX_OFFSET(SubstratePlasticType, m_PlasticWeight, element, number), LMX_FLAG(SubstratePlasticType, m_isset_PlasticWeight)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:PlasticType", element("PlasticType"), LMX_OFFSET(SubstratePlasticType, m_PlasticType, element, text), LMX_FLAG(SubstratePlasticType, m_isset_PlasticType)},
};
constinit const s_class SubstratePlasticType::k_class = {
    .name = "SubstratePlasticType",
    .qualified_name = "Vyr:SubstratePlasticType",
    .base = &SubstrateType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SubstratePlasticType::id,
    .elements = k_items,
    .operations = &k_operations<SubstratePlasticType>,
};

const char k_SubstratePlasticType_id[] = "SubstratePlasticType";
const char* SubstratePlasticType::id = k_SubstratePlasticType_id;
SubstratePlasticType::SubstratePlasticType() = default;
SubstratePlasticType::SubstratePlasticType(const SubstratePlasticType& other) : SubstrateType() { lmx::copy(k_class, this, &other); }
SubstratePlasticType* SubstratePlasticType::clone() const { return new SubstratePlasticType(*this); }
SubstratePlasticType::~SubstratePlasticType() = default;
SubstratePlasticType& SubstratePlasticType::operator=(const SubstratePlasticType& other) { SubstratePlasticType copy(other); swap(copy); return *this; }
const char* SubstratePlasticType::getid() const { return id; }
bool SubstratePlasticType::has_id(const char* identity) const { return identity == id || SubstrateType::has_id(identity); }
lmx::elmx_error SubstratePlasticType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SubstratePlasticType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SubstratePlasticType::swap(SubstratePlasticType& other) { lmx::swap(k_class, this, &other); }
void SubstratePlasticType::reset() { SubstratePlasticType fresh; lmx::exchange(k_class, this, &fresh); }
bool SubstratePlasticType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SubstratePlasticType::set_PlasticWeight(double value) { return lmx::set_item(k_class, k_items[item_PlasticWeight], this, value); }
lmx::elmx_error SubstratePlasticType::set_PlasticType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_PlasticType], this, value); }

// SubstrateWoodType

constexpr s_item SubstrateWoodType::k_items[] = {
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:WoodWeight", element("WoodWeight"), LMX_OFFSET(SubstrateWoodType, m_WoodWeight, element, number), LMX_FLAG(SubstrateWoodType, m_isset_WoodWeight)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:WoodType", element("WoodType"), LMX_OFFSET(SubstrateWoodType, m_WoodType, element, text), LMX_FLAG(SubstrateWoodType, m_isset_WoodType)},
};
constinit const s_class SubstrateWoodType::k_class = {
    .name = "SubstrateWoodType",
    .qualified_name = "Vyr:SubstrateWoodType",
    .base = &SubstrateType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SubstrateWoodType::id,
    .elements = k_items,
    .operations = &k_operations<SubstrateWoodType>,
};

const char k_SubstrateWoodType_id[] = "SubstrateWoodType";
const char* SubstrateWoodType::id = k_SubstrateWoodType_id;
SubstrateWoodType::SubstrateWoodType() = default;
SubstrateWoodType::SubstrateWoodType(const SubstrateWoodType& other) : SubstrateType() { lmx::copy(k_class, this, &other); }
SubstrateWoodType* SubstrateWoodType::clone() const { return new SubstrateWoodType(*this); }
SubstrateWoodType::~SubstrateWoodType() = default;
SubstrateWoodType& SubstrateWoodType::operator=(const SubstrateWoodType& other) { SubstrateWoodType copy(other); swap(copy); return *this; }
const char* SubstrateWoodType::getid() const { return id; }
bool SubstrateWoodType::has_id(const char* identity) const { return identity == id || SubstrateType::has_id(identity); }
lmx::elmx_error SubstrateWoodType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SubstrateWoodType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SubstrateWoodType::swap(SubstrateWoodType& other) { lmx::swap(k_class, this, &other); }
void SubstrateWoodType::reset() { SubstrateWoodType fresh; lmx::exchange(k_class, this, &fresh); }
bool SubstrateWoodType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SubstrateWoodType::set_WoodWeight(double value) { return lmx::set_item(k_class, k_items[item_WoodWeight], this, value); }
lmx::elmx_error SubstrateWoodType::set_WoodType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_WoodType], this, value); }

// SubstrateVinylType

constexpr s_item SubstrateVinylType::k_items[] = {
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:VinylWeight", element("VinylWeight"), LMX_OFFSET(SubstrateVinylType, m_VinylWeight, element, number), LMX_FLAG(SubstrateVinylType, m_isset_VinylWeight)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:VinylType", element("VinylType"), LMX_OFFSET(SubstrateVinylType, m_VinylType, element, text), LMX_FLAG(SubstrateVinylType, m_isset_VinylType)},
};
constinit const s_class SubstrateVinylType::k_class = {
    .name = "SubstrateVinylType",
    .qualified_name = "Vyr:SubstrateVinylType",
    .base = &SubstrateType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SubstrateVinylType::id,
    .elements = k_items,
    .operations = &k_operations<SubstrateVinylType>,
};

const char k_SubstrateVinylType_id[] = "SubstrateVinylType";
const char* SubstrateVinylType::id = k_SubstrateVinylType_id;
SubstrateVinylType::SubstrateVinylType() = default;
SubstrateVinylType::SubstrateVinylType(const SubstrateVinylType& other) : SubstrateType() { lmx::copy(k_class, this, &other); }
SubstrateVinylType* SubstrateVinylType::clone() const { return new SubstrateVinylType(*this); }
SubstrateVinylType::~SubstrateVinylType() = default;
SubstrateVinylType& SubstrateVinylType::operator=(const SubstrateVinylType& other) { SubstrateVinylType copy(other); swap(copy); return *this; }
const char* SubstrateVinylType::getid() const { return id; }
bool SubstrateVinylType::has_id(const char* identity) const { return identity == id || SubstrateType::has_id(identity); }
lmx::elmx_error SubstrateVinylType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SubstrateVinylType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SubstrateVinylType::swap(SubstrateVinylType& other) { lmx::swap(k_class, this, &other); }
void SubstrateVinylType::reset() { SubstrateVinylType fresh; lmx::exchange(k_class, this, &fresh); }
bool SubstrateVinylType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SubstrateVinylType::set_VinylWeight(double value) { return lmx::set_item(k_class, k_items[item_VinylWeight], this, value); }
lmx::elmx_error SubstrateVinylType::set_VinylType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_VinylType], this, value); }

// SubstrateTileType

constexpr s_item SubstrateTileType::k_items[] = {
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:TileWeight", element("TileWeight"), LMX_OFFSET(SubstrateTileType, m_TileWeight, element, number), LMX_FLAG(SubstrateTileType, m_isset_TileWeight)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:TileType", element("TileType"), LMX_OFFSET(SubstrateTileType, m_TileType, element, text), LMX_FLAG(SubstrateTileType, m_isset_TileType)},
};
constinit const s_class SubstrateTileType::k_class = {
    .name = "SubstrateTileType",
    .qualified_name = "Vyr:SubstrateTileType",
    .base = &SubstrateType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SubstrateTileType::id,
    .elements = k_items,
    .operations = &k_operations<SubstrateTileType>,
};

const char k_SubstrateTileType_id[] = "SubstrateTileType";
const char* SubstrateTileType::id = k_SubstrateTileType_id;
SubstrateTileType::SubstrateTileType() = default;
SubstrateTileType::SubstrateTileType(const SubstrateTileType& other) : SubstrateType() { lmx::copy(k_class, this, &other); }
SubstrateTileType* SubstrateTileType::clone() const { return new SubstrateTileType(*this); }
SubstrateTileType::~SubstrateTileType() = default;
SubstrateTileType& SubstrateTileType::operator=(const SubstrateTileType& other) { SubstrateTileType copy(other); swap(copy); return *this; }
const char* SubstrateTileType::getid() const { return id; }
bool SubstrateTileType::has_id(const char* identity) const { return identity == id || SubstrateType::has_id(identity); }
lmx::elmx_error SubstrateTileType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SubstrateTileType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SubstrateTileType::swap(SubstrateTileType& other) { lmx::swap(k_class, this, &other); }
void SubstrateTileType::reset() { SubstrateTileType fresh; lmx::exchange(k_class, this, &fresh); }
bool SubstrateTileType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SubstrateTileType::set_TileWeight(double value) { return lmx::set_item(k_class, k_items[item_TileWeight], this, value); }
lmx::elmx_error SubstrateTileType::set_TileType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_TileType], this, value); }

// SubstrateFilmType

constexpr s_item SubstrateFilmType::k_items[] = {
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:FilmWeight", element("FilmWeight"), LMX_OFFSET(SubstrateFilmType, m_FilmWeight, element, number), LMX_FLAG(SubstrateFilmType, m_isset_FilmWeight)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:FilmType", element("FilmType"), LMX_OFFSET(SubstrateFilmType, m_FilmType, element, text), LMX_FLAG(SubstrateFilmType, m_isset_FilmType)},
};
constinit const s_class SubstrateFilmType::k_class = {
    .name = "SubstrateFilmType",
    .qualified_name = "Vyr:SubstrateFilmType",
    .base = &SubstrateType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SubstrateFilmType::id,
    .elements = k_items,
    .operations = &k_operations<SubstrateFilmType>,
};

const char k_SubstrateFilmType_id[] = "SubstrateFilmType";
const char* SubstrateFilmType::id = k_SubstrateFilmType_id;
SubstrateFilmType::SubstrateFilmType() = default;
SubstrateFilmType::SubstrateFilmType(const SubstrateFilmType& other) : SubstrateType() { lmx::copy(k_class, this, &other); }
SubstrateFilmType* SubstrateFilmType::clone() const { return new SubstrateFilmType(*this); }
SubstrateFilmType::~SubstrateFilmType() = default;
SubstrateFilmType& SubstrateFilmType::operator=(const SubstrateFilmType& other) { SubstrateFilmType copy(other); swap(copy); return *this; }
const char* SubstrateFilmType::getid() const { return id; }
bool SubstrateFilmType::has_id(const char* identity) const { return identity == id || SubstrateType::has_id(identity); }
lmx::elmx_error SubstrateFilmType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SubstrateFilmType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SubstrateFilmType::swap(SubstrateFilmType& other) { lmx::swap(k_class, this, &other); }
void SubstrateFilmType::reset() { SubstrateFilmType fresh; lmx::exchange(k_class, this, &fresh); }
bool SubstrateFilmType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SubstrateFilmType::set_FilmWeight(double value) { return lmx::set_item(k_class, k_items[item_FilmWeight], this, value); }
lmx::elmx_error SubstrateFilmType::set_FilmType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_FilmType], this, value); }

// SubstrateTextileType

constexpr s_item SubstrateTextileType::k_items[] = {
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:TextileWeight", element("TextileWeight"), LMX_OFFSET(SubstrateTextileType, m_TextileWeight, element, number), LMX_FLAG(SubstrateTextileType, m_isset_TextileWeight)},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:TextileType", element("TextileType"), LMX_OFFSET(SubstrateTextileType, m_TextileType, element, text), LMX_FLAG(SubstrateTextileType, m_isset_TextileType)},
};
constinit const s_class SubstrateTextileType::k_class = {
    .name = "SubstrateTextileType",
    .qualified_name = "Vyr:SubstrateTextileType",
    .base = &SubstrateType::k_class,
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &SubstrateTextileType::id,
    .elements = k_items,
    .operations = &k_operations<SubstrateTextileType>,
};

const char k_SubstrateTextileType_id[] = "SubstrateTextileType";
const char* SubstrateTextileType::id = k_SubstrateTextileType_id;
SubstrateTextileType::SubstrateTextileType() = default;
SubstrateTextileType::SubstrateTextileType(const SubstrateTextileType& other) : SubstrateType() { lmx::copy(k_class, this, &other); }
SubstrateTextileType* SubstrateTextileType::clone() const { return new SubstrateTextileType(*this); }
SubstrateTextileType::~SubstrateTextileType() = default;
SubstrateTextileType& SubstrateTextileType::operator=(const SubstrateTextileType& other) { SubstrateTextileType copy(other); swap(copy); return *this; }
const char* SubstrateTextileType::getid() const { return id; }
bool SubstrateTextileType::has_id(const char* identity) const { return identity == id || SubstrateType::has_id(identity); }
lmx::elmx_error SubstrateTextileType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SubstrateTextileType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SubstrateTextileType::swap(SubstrateTextileType& other) { lmx::swap(k_class, this, &other); }
void SubstrateTextileType::reset() { SubstrateTextileType fresh; lmx::exchange(k_class, this, &fresh); }
bool SubstrateTextileType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SubstrateTextileType::set_TextileWeight(double value) { return lmx::set_item(k_class, k_items[item_TextileWeight], this, value); }
lmx::elmx_error SubstrateTextileType::set_TextileType(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_TextileType], this, value); }

// SubstratePaper

constinit const lmx::s_document SubstratePaper::k_document = {"Vyr:SubstratePaper", "SubstratePaper", k_ns_map, &lmx::k_operations<SubstratePaper>};
SubstratePaper::SubstratePaper(const char* file_name, lmx::elmx_error* error) : SubstratePaper() { *error = unmarshal(file_name); }
SubstratePaper::SubstratePaper(const char* data, std::size_t size, lmx::elmx_error* error) : SubstratePaper() { *error = unmarshal(data, size); }
SubstratePaper::SubstratePaper(const std::string& text, lmx::elmx_error* error) : SubstratePaper() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* SubstratePaper::ns_map() { return k_ns_map; }
lmx::elmx_error SubstratePaper::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error SubstratePaper::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error SubstratePaper::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error SubstratePaper::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error SubstratePaper::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error SubstratePaper::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error SubstratePaper::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error SubstratePaper::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SubstratePaperType::marshal(writer, name); }
lmx::elmx_error SubstratePaper::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SubstratePaperType::unmarshal(reader, name); }

// SubstrateGeneric

constinit const lmx::s_document SubstrateGeneric::k_document = {"Vyr:SubstrateGeneric", "SubstrateGeneric", k_ns_map, &lmx::k_operations<SubstrateGeneric>};
SubstrateGeneric::SubstrateGeneric(const char* file_name, lmx::elmx_error* error) : SubstrateGeneric() { *error = unmarshal(file_name); }
SubstrateGeneric::SubstrateGeneric(const char* data, std::size_t size, lmx::elmx_error* error) : SubstrateGeneric() { *error = unmarshal(data, size); }
SubstrateGeneric::SubstrateGeneric(const std::string& text, lmx::elmx_error* error) : SubstrateGeneric() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* SubstrateGeneric::ns_map() { return k_ns_map; }
lmx::elmx_error SubstrateGeneric::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateGeneric::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error SubstrateGeneric::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error SubstrateGeneric::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error SubstrateGeneric::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateGeneric::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error SubstrateGeneric::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error SubstrateGeneric::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SubstrateGenericType::marshal(writer, name); }
lmx::elmx_error SubstrateGeneric::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SubstrateGenericType::unmarshal(reader, name); }

// SubstrateMetal

constinit const lmx::s_document SubstrateMetal::k_document = {"Vyr:SubstrateMetal", "SubstrateMetal", k_ns_map, &lmx::k_operations<SubstrateMetal>};
SubstrateMetal::SubstrateMetal(const char* file_name, lmx::elmx_error* error) : SubstrateMetal() { *error = unmarshal(file_name); }
SubstrateMetal::SubstrateMetal(const char* data, std::size_t size, lmx::elmx_error* error) : SubstrateMetal() { *error = unmarshal(data, size); }
SubstrateMetal::SubstrateMetal(const std::string& text, lmx::elmx_error* error) : SubstrateMetal() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* SubstrateMetal::ns_map() { return k_ns_map; }
lmx::elmx_error SubstrateMetal::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateMetal::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error SubstrateMetal::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error SubstrateMetal::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error SubstrateMetal::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateMetal::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error SubstrateMetal::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error SubstrateMetal::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SubstrateMetalType::marshal(writer, name); }
lmx::elmx_error SubstrateMetal::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SubstrateMetalType::unmarshal(reader, name); }

// SubstratePlastic

constinit const lmx::s_document SubstratePlastic::k_document = {"Vyr:SubstratePlastic", "SubstratePlastic", k_ns_map, &lmx::k_operations<SubstratePlastic>};
SubstratePlastic::SubstratePlastic(const char* file_name, lmx::elmx_error* error) : SubstratePlastic() { *error = unmarshal(file_name); }
SubstratePlastic::SubstratePlastic(const char* data, std::size_t size, lmx::elmx_error* error) : SubstratePlastic() { *error = unmarshal(data, size); }
SubstratePlastic::SubstratePlastic(const std::string& text, lmx::elmx_error* error) : SubstratePlastic() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* SubstratePlastic::ns_map() { return k_ns_map; }
lmx::elmx_error SubstratePlastic::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error SubstratePlastic::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error SubstratePlastic::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error SubstratePlastic::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error SubstratePlastic::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error SubstratePlastic::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error SubstratePlastic::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error SubstratePlastic::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SubstratePlasticType::marshal(writer, name); }
lmx::elmx_error SubstratePlastic::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SubstratePlasticType::unmarshal(reader, name); }

// SubstrateWood

constinit const lmx::s_document SubstrateWood::k_document = {"Vyr:SubstrateWood", "SubstrateWood", k_ns_map, &lmx::k_operations<SubstrateWood>};
SubstrateWood::SubstrateWood(const char* file_name, lmx::elmx_error* error) : SubstrateWood() { *error = unmarshal(file_name); }
SubstrateWood::SubstrateWood(const char* data, std::size_t size, lmx::elmx_error* error) : SubstrateWood() { *error = unmarshal(data, size); }
SubstrateWood::SubstrateWood(const std::string& text, lmx::elmx_error* error) : SubstrateWood() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* SubstrateWood::ns_map() { return k_ns_map; }
lmx::elmx_error SubstrateWood::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateWood::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error SubstrateWood::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error SubstrateWood::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error SubstrateWood::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateWood::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error SubstrateWood::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error SubstrateWood::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SubstrateWoodType::marshal(writer, name); }
lmx::elmx_error SubstrateWood::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SubstrateWoodType::unmarshal(reader, name); }

// SubstrateVinyl

constinit const lmx::s_document SubstrateVinyl::k_document = {"Vyr:SubstrateVinyl", "SubstrateVinyl", k_ns_map, &lmx::k_operations<SubstrateVinyl>};
SubstrateVinyl::SubstrateVinyl(const char* file_name, lmx::elmx_error* error) : SubstrateVinyl() { *error = unmarshal(file_name); }
SubstrateVinyl::SubstrateVinyl(const char* data, std::size_t size, lmx::elmx_error* error) : SubstrateVinyl() { *error = unmarshal(data, size); }
SubstrateVinyl::SubstrateVinyl(const std::string& text, lmx::elmx_error* error) : SubstrateVinyl() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* SubstrateVinyl::ns_map() { return k_ns_map; }
lmx::elmx_error SubstrateVinyl::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateVinyl::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error SubstrateVinyl::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error SubstrateVinyl::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error SubstrateVinyl::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateVinyl::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error SubstrateVinyl::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error SubstrateVinyl::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SubstrateVinylType::marshal(writer, name); }
lmx::elmx_error SubstrateVinyl::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SubstrateVinylType::unmarshal(reader, name); }

// SubstrateTile

constinit const lmx::s_document SubstrateTile::k_document = {"Vyr:SubstrateTile", "SubstrateTile", k_ns_map, &lmx::k_operations<SubstrateTile>};
SubstrateTile::SubstrateTile(const char* file_name, lmx::elmx_error* error) : SubstrateTile() { *error = unmarshal(file_name); }
SubstrateTile::SubstrateTile(const char* data, std::size_t size, lmx::elmx_error* error) : SubstrateTile() { *error = unmarshal(data, size); }
SubstrateTile::SubstrateTile(const std::string& text, lmx::elmx_error* error) : SubstrateTile() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* SubstrateTile::ns_map() { return k_ns_map; }
lmx::elmx_error SubstrateTile::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateTile::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error SubstrateTile::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error SubstrateTile::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error SubstrateTile::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateTile::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error SubstrateTile::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error SubstrateTile::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SubstrateTileType::marshal(writer, name); }
lmx::elmx_error SubstrateTile::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SubstrateTileType::unmarshal(reader, name); }

// SubstrateFilm

constinit const lmx::s_document SubstrateFilm::k_document = {"Vyr:SubstrateFilm", "SubstrateFilm", k_ns_map, &lmx::k_operations<SubstrateFilm>};
SubstrateFilm::SubstrateFilm(const char* file_name, lmx::elmx_error* error) : SubstrateFilm() { *error = unmarshal(file_name); }
SubstrateFilm::SubstrateFilm(const char* data, std::size_t size, lmx::elmx_error* error) : SubstrateFilm() { *error = unmarshal(data, size); }
SubstrateFilm::SubstrateFilm(const std::string& text, lmx::elmx_error* error) : SubstrateFilm() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* SubstrateFilm::ns_map() { return k_ns_map; }
lmx::elmx_error SubstrateFilm::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateFilm::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error SubstrateFilm::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error SubstrateFilm::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error SubstrateFilm::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateFilm::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error SubstrateFilm::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error SubstrateFilm::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SubstrateFilmType::marshal(writer, name); }
lmx::elmx_error SubstrateFilm::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SubstrateFilmType::unmarshal(reader, name); }

// SubstrateTextile

constinit const lmx::s_document SubstrateTextile::k_document = {"Vyr:SubstrateTextile", "SubstrateTextile", k_ns_map, &lmx::k_operations<SubstrateTextile>};
SubstrateTextile::SubstrateTextile(const char* file_name, lmx::elmx_error* error) : SubstrateTextile() { *error = unmarshal(file_name); }
SubstrateTextile::SubstrateTextile(const char* data, std::size_t size, lmx::elmx_error* error) : SubstrateTextile() { *error = unmarshal(data, size); }
SubstrateTextile::SubstrateTextile(const std::string& text, lmx::elmx_error* error) : SubstrateTextile() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* SubstrateTextile::ns_map() { return k_ns_map; }
lmx::elmx_error SubstrateTextile::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateTextile::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error SubstrateTextile::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error SubstrateTextile::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error SubstrateTextile::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error SubstrateTextile::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error SubstrateTextile::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error SubstrateTextile::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return SubstrateTextileType::marshal(writer, name); }
lmx::elmx_error SubstrateTextile::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return SubstrateTextileType::unmarshal(reader, name); }

}  // namespace com_vyrgraph_v2
