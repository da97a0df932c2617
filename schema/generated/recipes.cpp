// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in recipes.h.

#include "schema/generated/recipes.h"
#include "lmx/binding/binding.h"
#include "schema/generated/color_values.h"
#include "schema/generated/conditions.h"
#include "schema/generated/header.h"
#include "schema/generated/sampled_color_values.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// ColorName

constexpr s_item ColorName::k_items[] = {
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:PrefixName", element("PrefixName"), LMX_OFFSET(ColorName, m_PrefixName, element, text), LMX_FLAG(ColorName, m_isset_PrefixName)},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:BaseName", element("BaseName"), LMX_OFFSET(ColorName, m_BaseName, element, text), LMX_FLAG(ColorName, m_isset_BaseName)},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:SuffixName", element("SuffixName"), LMX_OFFSET(ColorName, m_SuffixName, element, text), LMX_FLAG(ColorName, m_isset_SuffixName)},
};
constinit const s_class ColorName::k_class = {
    .name = "ColorName",
    .qualified_name = "Vyr:ColorName",
    .content = content_kind::children,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<ColorName>,
};

ColorName::ColorName() = default;
ColorName::ColorName(const ColorName& other) { lmx::copy(k_class, this, &other); }
ColorName::~ColorName() = default;
ColorName& ColorName::operator=(const ColorName& other) { ColorName copy(other); swap(copy); return *this; }
lmx::elmx_error ColorName::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorName::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorName::swap(ColorName& other) { lmx::swap(k_class, this, &other); }
void ColorName::reset() { ColorName fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorName::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorName::set_PrefixName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_PrefixName], this, value); }
lmx::elmx_error ColorName::set_BaseName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_BaseName], this, value); }
lmx::elmx_error ColorName::set_SuffixName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_SuffixName], this, value); }

// Recipe

constexpr s_item Recipe::k_items[] = {
    {item_kind::child_list, value_kind::none, use_demanded | use_asked, ELMX_WS_PRESERVE, "Vyr:ColorantElement", element("ColorantElement"), LMX_OFFSET(Recipe, m_ColorantElement, child_list, none), k_no_flag, &ColorantElement::k_class},
};
constinit const s_class Recipe::k_class = {
    .name = "Recipe",
    .qualified_name = "Vyr:Recipe",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<Recipe>,
};

Recipe::Recipe() = default;
Recipe::Recipe(const Recipe& other) { lmx::copy(k_class, this, &other); }
Recipe::~Recipe() = default;
Recipe& Recipe::operator=(const Recipe& other) { Recipe copy(other); swap(copy); return *this; }
lmx::elmx_error Recipe::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Recipe::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Recipe::swap(Recipe& other) { lmx::swap(k_class, this, &other); }
void Recipe::reset() { Recipe fresh; lmx::exchange(k_class, this, &fresh); }
bool Recipe::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
ColorantElement& Recipe::get_ColorantElement(std::size_t index) { return m_ColorantElement.grow_to(index); }
ColorantElement& Recipe::assign_ColorantElement(std::size_t index, const ColorantElement& value) { return get_ColorantElement(index) = value; }
lmx::elmx_error Recipe::append_ColorantElement() { m_ColorantElement.append(); return lmx::ELMX_OK; }
lmx::elmx_error Recipe::insert_ColorantElement(std::size_t index) { m_ColorantElement.insert(index); return lmx::ELMX_OK; }
void Recipe::delete_ColorantElement(std::size_t index) { m_ColorantElement.erase(index); }
void Recipe::clear_ColorantElement() { m_ColorantElement.clear(); }

// ColorSpaceTINTORAType

constexpr s_item ColorSpaceTINTORAType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceTINTORAType, m_Name, attribute, text), LMX_FLAG(ColorSpaceTINTORAType, m_isset_Name)},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:FamilyName", element("FamilyName"), LMX_OFFSET(ColorSpaceTINTORAType, m_FamilyName, element, text), LMX_FLAG(ColorSpaceTINTORAType, m_isset_FamilyName)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorName", element("ColorName"), LMX_OFFSET(ColorSpaceTINTORAType, m_ColorName, child, none), LMX_FLAG(ColorSpaceTINTORAType, m_isset_ColorName), &ColorName::k_class},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:Page", element("Page"), LMX_OFFSET(ColorSpaceTINTORAType, m_Page, element, text), LMX_FLAG(ColorSpaceTINTORAType, m_isset_Page)},
    {item_kind::element, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Vyr:Gamut", element("Gamut"), LMX_OFFSET(ColorSpaceTINTORAType, m_Gamut, element, enumerated), LMX_FLAG(ColorSpaceTINTORAType, m_isset_Gamut), nullptr, &facets::GamutKind},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:Recipe", element("Recipe"), LMX_OFFSET(ColorSpaceTINTORAType, m_Recipe, optional_child, none), LMX_FLAG(ColorSpaceTINTORAType, m_isset_Recipe), &Recipe::k_class},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorAndFinish", element("ColorAndFinish"), LMX_OFFSET(ColorSpaceTINTORAType, m_ColorAndFinish, child_list, none), k_no_flag, &ColorAndFinish::k_class},
};
constinit const s_class ColorSpaceTINTORAType::k_class = {
    .name = "ColorSpaceTINTORAType",
    .qualified_name = "Vyr:ColorSpaceTINTORAType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceTINTORAType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceTINTORAType>,
};

const char k_ColorSpaceTINTORAType_id[] = "ColorSpaceTINTORAType";
const char* ColorSpaceTINTORAType::id = k_ColorSpaceTINTORAType_id;
ColorSpaceTINTORAType::ColorSpaceTINTORAType() = default;
ColorSpaceTINTORAType::ColorSpaceTINTORAType(const ColorSpaceTINTORAType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceTINTORAType* ColorSpaceTINTORAType::clone() const { return new ColorSpaceTINTORAType(*this); }
ColorSpaceTINTORAType::~ColorSpaceTINTORAType() = default;
ColorSpaceTINTORAType& ColorSpaceTINTORAType::operator=(const ColorSpaceTINTORAType& other) { ColorSpaceTINTORAType copy(other); swap(copy); return *this; }
const char* ColorSpaceTINTORAType::getid() const { return id; }
bool ColorSpaceTINTORAType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceTINTORAType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceTINTORAType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceTINTORAType::swap(ColorSpaceTINTORAType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceTINTORAType::reset() { ColorSpaceTINTORAType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceTINTORAType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceTINTORAType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
lmx::elmx_error ColorSpaceTINTORAType::set_FamilyName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_FamilyName], this, value); }
ColorName& ColorSpaceTINTORAType::assign_ColorName(const ColorName& value) { return get_ColorName() = value; }
lmx::elmx_error ColorSpaceTINTORAType::set_Page(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Page], this, value); }
lmx::elmx_error ColorSpaceTINTORAType::set_Gamut(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Gamut], this, value); }
bool ColorSpaceTINTORAType::setenum_Gamut(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_Gamut], this, number); }
Recipe& ColorSpaceTINTORAType::get_Recipe() { Recipe& child = m_Recipe.touch(); m_isset_Recipe = true; return child; }
const Recipe& ColorSpaceTINTORAType::get_Recipe() const { return m_Recipe.get(); }
Recipe& ColorSpaceTINTORAType::assign_Recipe(const Recipe& value) { return get_Recipe() = value; }
ColorAndFinish& ColorSpaceTINTORAType::get_ColorAndFinish(std::size_t index) { return m_ColorAndFinish.grow_to(index); }
ColorAndFinish& ColorSpaceTINTORAType::assign_ColorAndFinish(std::size_t index, const ColorAndFinish& value) { return get_ColorAndFinish(index) = value; }
lmx::elmx_error ColorSpaceTINTORAType::append_ColorAndFinish() { m_ColorAndFinish.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSpaceTINTORAType::insert_ColorAndFinish(std::size_t index) { m_ColorAndFinish.insert(index); return lmx::ELMX_OK; }
void ColorSpaceTINTORAType::delete_ColorAndFinish(std::size_t index) { m_ColorAndFinish.erase(index); }
void ColorSpaceTINTORAType::clear_ColorAndFinish() { m_ColorAndFinish.clear(); }

// Colorant

constexpr s_item Colorant::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttributes", element("CustomAttributes"), LMX_OFFSET(Colorant, m_CustomAttributes, child_list, none), k_no_flag, &CustomAttributes::k_class},
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Vyr:Name", element("Name"), LMX_OFFSET(Colorant, m_Name, element, text), LMX_FLAG(Colorant, m_isset_Name), nullptr, &facets::NonEmptyString},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:Manufacturer", element("Manufacturer"), LMX_OFFSET(Colorant, m_Manufacturer, element, text), LMX_FLAG(Colorant, m_isset_Manufacturer), nullptr, &facets::NonEmptyString},
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:PartNumber", element("PartNumber"), LMX_OFFSET(Colorant, m_PartNumber, element, text), LMX_FLAG(Colorant, m_isset_PartNumber), nullptr, &facets::NonEmptyString},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Density", element("Density"), LMX_OFFSET(Colorant, m_Density, element, number), LMX_FLAG(Colorant, m_isset_Density), nullptr, &facets::Positive},
};
constinit const s_class Colorant::k_class = {
    .name = "Colorant",
    .qualified_name = "Vyr:Colorant",
    .content = content_kind::children,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<Colorant>,
};

Colorant::Colorant() = default;
Colorant::Colorant(const Colorant& other) { lmx::copy(k_class, this, &other); }
Colorant::~Colorant() = default;
Colorant& Colorant::operator=(const Colorant& other) { Colorant copy(other); swap(copy); return *this; }
lmx::elmx_error Colorant::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Colorant::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Colorant::swap(Colorant& other) { lmx::swap(k_class, this, &other); }
void Colorant::reset() { Colorant fresh; lmx::exchange(k_class, this, &fresh); }
bool Colorant::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributes& Colorant::get_CustomAttributes(std::size_t index) { return m_CustomAttributes.grow_to(index); }
CustomAttributes& Colorant::assign_CustomAttributes(std::size_t index, const CustomAttributes& value) { return get_CustomAttributes(index) = value; }
lmx::elmx_error Colorant::append_CustomAttributes() { m_CustomAttributes.append(); return lmx::ELMX_OK; }
lmx::elmx_error Colorant::insert_CustomAttributes(std::size_t index) { m_CustomAttributes.insert(index); return lmx::ELMX_OK; }
void Colorant::delete_CustomAttributes(std::size_t index) { m_CustomAttributes.erase(index); }
void Colorant::clear_CustomAttributes() { m_CustomAttributes.clear(); }
lmx::elmx_error Colorant::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
lmx::elmx_error Colorant::set_Manufacturer(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Manufacturer], this, value); }
lmx::elmx_error Colorant::set_PartNumber(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_PartNumber], this, value); }
lmx::elmx_error Colorant::set_Density(double value) { return lmx::set_item(k_class, k_items[item_Density], this, value); }

// ColorantElement

constexpr s_item ColorantElement::k_items[] = {
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Colorant", element("Colorant"), LMX_OFFSET(ColorantElement, m_Colorant, child, none), LMX_FLAG(ColorantElement, m_isset_Colorant), &Colorant::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Contribution", element("Contribution"), LMX_OFFSET(ColorantElement, m_Contribution, element, number), LMX_FLAG(ColorantElement, m_isset_Contribution), nullptr, &facets::NonNegative},
};
constinit const s_class ColorantElement::k_class = {
    .name = "ColorantElement",
    .qualified_name = "Vyr:ColorantElement",
    .content = content_kind::children,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<ColorantElement>,
};

ColorantElement::ColorantElement() = default;
ColorantElement::ColorantElement(const ColorantElement& other) { lmx::copy(k_class, this, &other); }
ColorantElement::~ColorantElement() = default;
ColorantElement& ColorantElement::operator=(const ColorantElement& other) { ColorantElement copy(other); swap(copy); return *this; }
lmx::elmx_error ColorantElement::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorantElement::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorantElement::swap(ColorantElement& other) { lmx::swap(k_class, this, &other); }
void ColorantElement::reset() { ColorantElement fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorantElement::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
Colorant& ColorantElement::assign_Colorant(const Colorant& value) { return get_Colorant() = value; }
lmx::elmx_error ColorantElement::set_Contribution(double value) { return lmx::set_item(k_class, k_items[item_Contribution], this, value); }

// CustomAttributes

constexpr s_item CustomAttributes::k_items[] = {
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(CustomAttributes, m_CustomAttribute, child, none), LMX_FLAG(CustomAttributes, m_isset_CustomAttribute), &CustomAttributeType::k_class},
};
constinit const s_class CustomAttributes::k_class = {
    .name = "CustomAttributes",
    .qualified_name = "Vyr:CustomAttributes",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<CustomAttributes>,
};

CustomAttributes::CustomAttributes() = default;
CustomAttributes::CustomAttributes(const CustomAttributes& other) { lmx::copy(k_class, this, &other); }
CustomAttributes::~CustomAttributes() = default;
CustomAttributes& CustomAttributes::operator=(const CustomAttributes& other) { CustomAttributes copy(other); swap(copy); return *this; }
lmx::elmx_error CustomAttributes::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error CustomAttributes::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void CustomAttributes::swap(CustomAttributes& other) { lmx::swap(k_class, this, &other); }
void CustomAttributes::reset() { CustomAttributes fresh; lmx::exchange(k_class, this, &fresh); }
bool CustomAttributes::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& CustomAttributes::assign_CustomAttribute(const CustomAttributeType& value) { return get_CustomAttribute() = value; }

// ColorAndFinish

constexpr s_item ColorAndFinish::k_items[] = {
    {item_kind::element, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Vyr:Finish", element("Finish"), LMX_OFFSET(ColorAndFinish, m_Finish, element, enumerated), LMX_FLAG(ColorAndFinish, m_isset_Finish), nullptr, &facets::FinishKind},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpectral", element("ColorSpaceSpectral"), LMX_OFFSET(ColorAndFinish, m_ColorSpaceSpectral, child, none), LMX_FLAG(ColorAndFinish, m_isset_ColorSpaceSpectral), &ColorSpaceSpectralType::k_class},
};
constinit const s_class ColorAndFinish::k_class = {
    .name = "ColorAndFinish",
    .qualified_name = "Vyr:ColorAndFinish",
    .content = content_kind::children,
    .may_be_empty = true,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<ColorAndFinish>,
};

ColorAndFinish::ColorAndFinish() = default;
ColorAndFinish::ColorAndFinish(const ColorAndFinish& other) { lmx::copy(k_class, this, &other); }
ColorAndFinish::~ColorAndFinish() = default;
ColorAndFinish& ColorAndFinish::operator=(const ColorAndFinish& other) { ColorAndFinish copy(other); swap(copy); return *this; }
lmx::elmx_error ColorAndFinish::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorAndFinish::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorAndFinish::swap(ColorAndFinish& other) { lmx::swap(k_class, this, &other); }
void ColorAndFinish::reset() { ColorAndFinish fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorAndFinish::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorAndFinish::set_Finish(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Finish], this, value); }
bool ColorAndFinish::setenum_Finish(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_Finish], this, number); }
ColorSpaceSpectralType& ColorAndFinish::assign_ColorSpaceSpectral(const ColorSpaceSpectralType& value) { return get_ColorSpaceSpectral() = value; }

// ColorSpaceNCSType

constexpr s_item ColorSpaceNCSType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceNCSType, m_Name, attribute, text), LMX_FLAG(ColorSpaceNCSType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(ColorSpaceNCSType, m_ColorSpaceSpecificationSpectrumGeneric, child, none), LMX_FLAG(ColorSpaceNCSType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:ColorName", element("ColorName"), LMX_OFFSET(ColorSpaceNCSType, m_ColorName, element, text), LMX_FLAG(ColorSpaceNCSType, m_isset_ColorName)},
};
constinit const s_class ColorSpaceNCSType::k_class = {
    .name = "ColorSpaceNCSType",
    .qualified_name = "Vyr:ColorSpaceNCSType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceNCSType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceNCSType>,
};

const char k_ColorSpaceNCSType_id[] = "ColorSpaceNCSType";
const char* ColorSpaceNCSType::id = k_ColorSpaceNCSType_id;
ColorSpaceNCSType::ColorSpaceNCSType() = default;
ColorSpaceNCSType::ColorSpaceNCSType(const ColorSpaceNCSType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceNCSType* ColorSpaceNCSType::clone() const { return new ColorSpaceNCSType(*this); }
ColorSpaceNCSType::~ColorSpaceNCSType() = default;
ColorSpaceNCSType& ColorSpaceNCSType::operator=(const ColorSpaceNCSType& other) { ColorSpaceNCSType copy(other); swap(copy); return *this; }
const char* ColorSpaceNCSType::getid() const { return id; }
bool ColorSpaceNCSType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceNCSType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceNCSType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceNCSType::swap(ColorSpaceNCSType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceNCSType::reset() { ColorSpaceNCSType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceNCSType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceNCSType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceNCSType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
lmx::elmx_error ColorSpaceNCSType::set_ColorName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ColorName], this, value); }

// ColorSpaceMunsellType

constexpr s_item ColorSpaceMunsellType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceMunsellType, m_Name, attribute, text), LMX_FLAG(ColorSpaceMunsellType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(ColorSpaceMunsellType, m_ColorSpaceSpecificationSpectrumGeneric, child, none), LMX_FLAG(ColorSpaceMunsellType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:CollectionName", element("CollectionName"), LMX_OFFSET(ColorSpaceMunsellType, m_CollectionName, element, text), LMX_FLAG(ColorSpaceMunsellType, m_isset_CollectionName), nullptr, &facets::NonEmptyString},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:ColorName", element("ColorName"), LMX_OFFSET(ColorSpaceMunsellType, m_ColorName, element, text), LMX_FLAG(ColorSpaceMunsellType, m_isset_ColorName), nullptr, &facets::NonEmptyString},
};
constinit const s_class ColorSpaceMunsellType::k_class = {
    .name = "ColorSpaceMunsellType",
    .qualified_name = "Vyr:ColorSpaceMunsellType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceMunsellType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceMunsellType>,
};

const char k_ColorSpaceMunsellType_id[] = "ColorSpaceMunsellType";
const char* ColorSpaceMunsellType::id = k_ColorSpaceMunsellType_id;
ColorSpaceMunsellType::ColorSpaceMunsellType() = default;
ColorSpaceMunsellType::ColorSpaceMunsellType(const ColorSpaceMunsellType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceMunsellType* ColorSpaceMunsellType::clone() const { return new ColorSpaceMunsellType(*this); }
ColorSpaceMunsellType::~ColorSpaceMunsellType() = default;
ColorSpaceMunsellType& ColorSpaceMunsellType::operator=(const ColorSpaceMunsellType& other) { ColorSpaceMunsellType copy(other); swap(copy); return *this; }
const char* ColorSpaceMunsellType::getid() const { return id; }
bool ColorSpaceMunsellType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceMunsellType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceMunsellType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceMunsellType::swap(ColorSpaceMunsellType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceMunsellType::reset() { ColorSpaceMunsellType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceMunsellType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceMunsellType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceMunsellType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
lmx::elmx_error ColorSpaceMunsellType::set_CollectionName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_CollectionName], this, value); }
lmx::elmx_error ColorSpaceMunsellType::set_ColorName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ColorName], this, value); }

// Base

constexpr s_item Base::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(Base, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Vyr:Name", element("Name"), LMX_OFFSET(Base, m_Name, element, text), LMX_FLAG(Base, m_isset_Name), nullptr, &facets::NonEmptyString},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:Manufacturer", element("Manufacturer"), LMX_OFFSET(Base, m_Manufacturer, element, text), LMX_FLAG(Base, m_isset_Manufacturer), nullptr, &facets::NonEmptyString},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:PartNumber", element("PartNumber"), LMX_OFFSET(Base, m_PartNumber, element, text), LMX_FLAG(Base, m_isset_PartNumber), nullptr, &facets::NonEmptyString},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Density", element("Density"), LMX_OFFSET(Base, m_Density, element, number), LMX_FLAG(Base, m_isset_Density), nullptr, &facets::Positive},
};
constinit const s_class Base::k_class = {
    .name = "Base",
    .qualified_name = "Vyr:Base",
    .content = content_kind::children,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<Base>,
};

Base::Base() = default;
Base::Base(const Base& other) { lmx::copy(k_class, this, &other); }
Base::~Base() = default;
Base& Base::operator=(const Base& other) { Base copy(other); swap(copy); return *this; }
lmx::elmx_error Base::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Base::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Base::swap(Base& other) { lmx::swap(k_class, this, &other); }
void Base::reset() { Base fresh; lmx::exchange(k_class, this, &fresh); }
bool Base::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& Base::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& Base::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error Base::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error Base::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void Base::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void Base::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error Base::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
lmx::elmx_error Base::set_Manufacturer(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Manufacturer], this, value); }
lmx::elmx_error Base::set_PartNumber(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_PartNumber], this, value); }
lmx::elmx_error Base::set_Density(double value) { return lmx::set_item(k_class, k_items[item_Density], this, value); }

// BaseElementType

constexpr s_item BaseElementType::k_items[] = {
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Base", element("Base"), LMX_OFFSET(BaseElementType, m_Base, child, none), LMX_FLAG(BaseElementType, m_isset_Base), &Base::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Contribution", element("Contribution"), LMX_OFFSET(BaseElementType, m_Contribution, element, number), LMX_FLAG(BaseElementType, m_isset_Contribution), nullptr, &facets::NonNegative},
};
constinit const s_class BaseElementType::k_class = {
    .name = "BaseElementType",
    .qualified_name = "Vyr:BaseElementType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<BaseElementType>,
};

BaseElementType::BaseElementType() = default;
BaseElementType::BaseElementType(const BaseElementType& other) { lmx::copy(k_class, this, &other); }
BaseElementType::~BaseElementType() = default;
BaseElementType& BaseElementType::operator=(const BaseElementType& other) { BaseElementType copy(other); swap(copy); return *this; }
lmx::elmx_error BaseElementType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error BaseElementType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void BaseElementType::swap(BaseElementType& other) { lmx::swap(k_class, this, &other); }
void BaseElementType::reset() { BaseElementType fresh; lmx::exchange(k_class, this, &fresh); }
bool BaseElementType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
Base& BaseElementType::assign_Base(const Base& value) { return get_Base() = value; }
lmx::elmx_error BaseElementType::set_Contribution(double value) { return lmx::set_item(k_class, k_items[item_Contribution], this, value); }

// ColorSpaceRecipeType

constexpr s_item ColorSpaceRecipeType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceRecipeType, m_Name, attribute, text), LMX_FLAG(ColorSpaceRecipeType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(ColorSpaceRecipeType, m_ColorSpaceSpecificationSpectrumGeneric, child, none), LMX_FLAG(ColorSpaceRecipeType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::child_list, value_kind::none, use_demanded | use_asked, ELMX_WS_PRESERVE, "Vyr:ColorantElement", element("ColorantElement"), LMX_OFFSET(ColorSpaceRecipeType, m_ColorantElement, child_list, none), k_no_flag, &ColorantElementType::k_class},
    {item_kind::optional_child, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:BaseElement", element("BaseElement"), LMX_OFFSET(ColorSpaceRecipeType, m_BaseElement, optional_child, none), LMX_FLAG(ColorSpaceRecipeType, m_isset_BaseElement), &BaseElementType::k_class},
};
constinit const s_class ColorSpaceRecipeType::k_class = {
    .name = "ColorSpaceRecipeType",
    .qualified_name = "Vyr:ColorSpaceRecipeType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceRecipeType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceRecipeType>,
};

const char k_ColorSpaceRecipeType_id[] = "ColorSpaceRecipeType";
const char* ColorSpaceRecipeType::id = k_ColorSpaceRecipeType_id;
ColorSpaceRecipeType::ColorSpaceRecipeType() = default;
ColorSpaceRecipeType::ColorSpaceRecipeType(const ColorSpaceRecipeType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceRecipeType* ColorSpaceRecipeType::clone() const { return new ColorSpaceRecipeType(*this); }
ColorSpaceRecipeType::~ColorSpaceRecipeType() = default;
ColorSpaceRecipeType& ColorSpaceRecipeType::operator=(const ColorSpaceRecipeType& other) { ColorSpaceRecipeType copy(other); swap(copy); return *this; }
const char* ColorSpaceRecipeType::getid() const { return id; }
bool ColorSpaceRecipeType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceRecipeType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceRecipeType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceRecipeType::swap(ColorSpaceRecipeType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceRecipeType::reset() { ColorSpaceRecipeType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceRecipeType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceRecipeType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceRecipeType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
ColorantElementType& ColorSpaceRecipeType::get_ColorantElement(std::size_t index) { return m_ColorantElement.grow_to(index); }
ColorantElementType& ColorSpaceRecipeType::assign_ColorantElement(std::size_t index, const ColorantElementType& value) { return get_ColorantElement(index) = value; }
lmx::elmx_error ColorSpaceRecipeType::append_ColorantElement() { m_ColorantElement.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSpaceRecipeType::insert_ColorantElement(std::size_t index) { m_ColorantElement.insert(index); return lmx::ELMX_OK; }
void ColorSpaceRecipeType::delete_ColorantElement(std::size_t index) { m_ColorantElement.erase(index); }
void ColorSpaceRecipeType::clear_ColorantElement() { m_ColorantElement.clear(); }
BaseElementType& ColorSpaceRecipeType::get_BaseElement() { BaseElementType& child = m_BaseElement.touch(); m_isset_BaseElement = true; return child; }
const BaseElementType& ColorSpaceRecipeType::get_BaseElement() const { return m_BaseElement.get(); }
BaseElementType& ColorSpaceRecipeType::assign_BaseElement(const BaseElementType& value) { return get_BaseElement() = value; }

// ColorSpaceRecipe

constinit const lmx::s_document ColorSpaceRecipe::k_document = {"Vyr:ColorSpaceRecipe", "ColorSpaceRecipe", k_ns_map, &lmx::k_operations<ColorSpaceRecipe>};
ColorSpaceRecipe::ColorSpaceRecipe(const char* file_name, lmx::elmx_error* error) : ColorSpaceRecipe() { *error = unmarshal(file_name); }
ColorSpaceRecipe::ColorSpaceRecipe(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceRecipe() { *error = unmarshal(data, size); }
ColorSpaceRecipe::ColorSpaceRecipe(const std::string& text, lmx::elmx_error* error) : ColorSpaceRecipe() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceRecipe::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceRecipe::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceRecipe::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceRecipe::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceRecipe::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceRecipe::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceRecipe::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceRecipe::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceRecipe::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceRecipeType::marshal(writer, name); }
lmx::elmx_error ColorSpaceRecipe::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceRecipeType::unmarshal(reader, name); }

// ColorSpaceTINTORA

constinit const lmx::s_document ColorSpaceTINTORA::k_document = {"Vyr:ColorSpaceTINTORA", "ColorSpaceTINTORA", k_ns_map, &lmx::k_operations<ColorSpaceTINTORA>};
ColorSpaceTINTORA::ColorSpaceTINTORA(const char* file_name, lmx::elmx_error* error) : ColorSpaceTINTORA() { *error = unmarshal(file_name); }
ColorSpaceTINTORA::ColorSpaceTINTORA(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceTINTORA() { *error = unmarshal(data, size); }
ColorSpaceTINTORA::ColorSpaceTINTORA(const std::string& text, lmx::elmx_error* error) : ColorSpaceTINTORA() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceTINTORA::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceTINTORA::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceTINTORA::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceTINTORA::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceTINTORA::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceTINTORA::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceTINTORA::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceTINTORA::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceTINTORA::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceTINTORAType::marshal(writer, name); }
lmx::elmx_error ColorSpaceTINTORA::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceTINTORAType::unmarshal(reader, name); }

// ColorSpaceNCS

constinit const lmx::s_document ColorSpaceNCS::k_document = {"Vyr:ColorSpaceNCS", "ColorSpaceNCS", k_ns_map, &lmx::k_operations<ColorSpaceNCS>};
ColorSpaceNCS::ColorSpaceNCS(const char* file_name, lmx::elmx_error* error) : ColorSpaceNCS() { *error = unmarshal(file_name); }
ColorSpaceNCS::ColorSpaceNCS(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceNCS() { *error = unmarshal(data, size); }
ColorSpaceNCS::ColorSpaceNCS(const std::string& text, lmx::elmx_error* error) : ColorSpaceNCS() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceNCS::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceNCS::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceNCS::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceNCS::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceNCS::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceNCS::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceNCS::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceNCS::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceNCS::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceNCSType::marshal(writer, name); }
lmx::elmx_error ColorSpaceNCS::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceNCSType::unmarshal(reader, name); }

// ColorSpaceMunsell

constinit const lmx::s_document ColorSpaceMunsell::k_document = {"Vyr:ColorSpaceMunsell", "ColorSpaceMunsell", k_ns_map, &lmx::k_operations<ColorSpaceMunsell>};
ColorSpaceMunsell::ColorSpaceMunsell(const char* file_name, lmx::elmx_error* error) : ColorSpaceMunsell() { *error = unmarshal(file_name); }
ColorSpaceMunsell::ColorSpaceMunsell(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceMunsell() { *error = unmarshal(data, size); }
ColorSpaceMunsell::ColorSpaceMunsell(const std::string& text, lmx::elmx_error* error) : ColorSpaceMunsell() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceMunsell::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceMunsell::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceMunsell::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceMunsell::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceMunsell::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceMunsell::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceMunsell::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceMunsell::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceMunsell::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceMunsellType::marshal(writer, name); }
lmx::elmx_error ColorSpaceMunsell::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceMunsellType::unmarshal(reader, name); }

// Density

constexpr s_item Density::k_items[] = {
    {item_kind::content, value_kind::number, use_required, ELMX_WS_COLLAPSE, "", 0, LMX_OFFSET(Density, m_Density, content, number), LMX_FLAG(Density, m_isset_Density), nullptr, &facets::Positive},
};
constinit const s_class Density::k_class = {
    .name = "Density",
    .qualified_name = "Vyr:Density",
    .content = content_kind::simple,
    .names = &k_names,
    .nil_flag = LMX_FLAG(Density, m_isnil),
    .elements = k_items,
    .operations = &k_operations<Density>,
};

Density::Density() = default;
Density::Density(const Density& other) { lmx::copy(k_class, this, &other); }
Density::~Density() = default;
Density& Density::operator=(const Density& other) { Density copy(other); swap(copy); return *this; }
lmx::elmx_error Density::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Density::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Density::swap(Density& other) { lmx::swap(k_class, this, &other); }
void Density::reset() { Density fresh; lmx::exchange(k_class, this, &fresh); }
bool Density::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error Density::set_Density(double value) { return lmx::set_item(k_class, k_items[item_Density], this, value); }

// ColorantElementType_Colorant

constexpr s_item ColorantElementType_Colorant::k_items[] = {
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:CustomAttribute", element("CustomAttribute"), LMX_OFFSET(ColorantElementType_Colorant, m_CustomAttribute, child_list, none), k_no_flag, &CustomAttributeType::k_class},
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Vyr:Name", element("Name"), LMX_OFFSET(ColorantElementType_Colorant, m_Name, element, text), LMX_FLAG(ColorantElementType_Colorant, m_isset_Name), nullptr, &facets::NonEmptyString},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:Manufacturer", element("Manufacturer"), LMX_OFFSET(ColorantElementType_Colorant, m_Manufacturer, element, text), LMX_FLAG(ColorantElementType_Colorant, m_isset_Manufacturer), nullptr, &facets::NonEmptyString},
    {item_kind::element, value_kind::text, use_required, ELMX_WS_PRESERVE, "Vyr:PartNumber", element("PartNumber"), LMX_OFFSET(ColorantElementType_Colorant, m_PartNumber, element, text), LMX_FLAG(ColorantElementType_Colorant, m_isset_PartNumber), nullptr, &facets::NonEmptyString},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Density", element("Density"), LMX_OFFSET(ColorantElementType_Colorant, m_Density, child, none), LMX_FLAG(ColorantElementType_Colorant, m_isset_Density), &Density::k_class},
};
constinit const s_class ColorantElementType_Colorant::k_class = {
    .name = "ColorantElementType_Colorant",
    .qualified_name = "Vyr:Colorant",
    .content = content_kind::children,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<ColorantElementType_Colorant>,
};

ColorantElementType_Colorant::ColorantElementType_Colorant() = default;
ColorantElementType_Colorant::ColorantElementType_Colorant(const ColorantElementType_Colorant& other) { lmx::copy(k_class, this, &other); }
ColorantElementType_Colorant::~ColorantElementType_Colorant() = default;
ColorantElementType_Colorant& ColorantElementType_Colorant::operator=(const ColorantElementType_Colorant& other) { ColorantElementType_Colorant copy(other); swap(copy); return *this; }
lmx::elmx_error ColorantElementType_Colorant::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorantElementType_Colorant::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorantElementType_Colorant::swap(ColorantElementType_Colorant& other) { lmx::swap(k_class, this, &other); }
void ColorantElementType_Colorant::reset() { ColorantElementType_Colorant fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorantElementType_Colorant::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
CustomAttributeType& ColorantElementType_Colorant::get_CustomAttribute(std::size_t index) { return m_CustomAttribute.grow_to(index); }
CustomAttributeType& ColorantElementType_Colorant::assign_CustomAttribute(std::size_t index, const CustomAttributeType& value) { return get_CustomAttribute(index) = value; }
lmx::elmx_error ColorantElementType_Colorant::append_CustomAttribute() { m_CustomAttribute.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorantElementType_Colorant::insert_CustomAttribute(std::size_t index) { m_CustomAttribute.insert(index); return lmx::ELMX_OK; }
void ColorantElementType_Colorant::delete_CustomAttribute(std::size_t index) { m_CustomAttribute.erase(index); }
void ColorantElementType_Colorant::clear_CustomAttribute() { m_CustomAttribute.clear(); }
lmx::elmx_error ColorantElementType_Colorant::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
lmx::elmx_error ColorantElementType_Colorant::set_Manufacturer(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Manufacturer], this, value); }
lmx::elmx_error ColorantElementType_Colorant::set_PartNumber(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_PartNumber], this, value); }
Density& ColorantElementType_Colorant::assign_Density(const Density& value) { return get_Density() = value; }

// ColorantElementType

constexpr s_item ColorantElementType::k_items[] = {
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:Colorant", element("Colorant"), LMX_OFFSET(ColorantElementType, m_Colorant, child, none), LMX_FLAG(ColorantElementType, m_isset_Colorant), &ColorantElementType_Colorant::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Contribution", element("Contribution"), LMX_OFFSET(ColorantElementType, m_Contribution, element, number), LMX_FLAG(ColorantElementType, m_isset_Contribution), nullptr, &facets::Fraction},
};
constinit const s_class ColorantElementType::k_class = {
    .name = "ColorantElementType",
    .qualified_name = "Vyr:ColorantElementType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<ColorantElementType>,
};

ColorantElementType::ColorantElementType() = default;
ColorantElementType::ColorantElementType(const ColorantElementType& other) { lmx::copy(k_class, this, &other); }
ColorantElementType::~ColorantElementType() = default;
ColorantElementType& ColorantElementType::operator=(const ColorantElementType& other) { ColorantElementType copy(other); swap(copy); return *this; }
lmx::elmx_error ColorantElementType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorantElementType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorantElementType::swap(ColorantElementType& other) { lmx::swap(k_class, this, &other); }
void ColorantElementType::reset() { ColorantElementType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorantElementType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
ColorantElementType_Colorant& ColorantElementType::assign_Colorant(const ColorantElementType_Colorant& value) { return get_Colorant() = value; }
lmx::elmx_error ColorantElementType::set_Contribution(double value) { return lmx::set_item(k_class, k_items[item_Contribution], this, value); }

}  // namespace com_vyrgraph_v2
