// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// Tables and members of the classes in device_color_values.h.

#include "schema/generated/device_color_values.h"
#include "lmx/binding/binding.h"
#include "schema/generated/color_values.h"
#include "schema/generated/conditions.h"
#include "schema/generated/tables.h"

// Offsets of members of classes with virtual functions: both compilers define them, and the macros check them.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace com_vyrgraph_v2 {

using namespace lmx;  // for the tables' sake

static_assert(k_binding_version == 7, "run schema/generator/generate.py");

// ColorSpaceRGBType

constexpr s_item ColorSpaceRGBType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceRGBType, m_Name, attribute, text), LMX_FLAG(ColorSpaceRGBType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumTristimulus", element("ColorSpaceSpecificationSpectrumTristimulus"), LMX_OFFSET(ColorSpaceRGBType, m_ColorSpaceSpecificationSpectrumTristimulus, child, none), LMX_FLAG(ColorSpaceRGBType, m_isset_ColorSpaceSpecificationSpectrumTristimulus), &ColorSpaceSpecificationSpectrumTristimulus::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Red", element("Red"), LMX_OFFSET(ColorSpaceRGBType, m_Red, element, number), LMX_FLAG(ColorSpaceRGBType, m_isset_Red), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Green", element("Green"), LMX_OFFSET(ColorSpaceRGBType, m_Green, element, number), LMX_FLAG(ColorSpaceRGBType, m_isset_Green), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Blue", element("Blue"), LMX_OFFSET(ColorSpaceRGBType, m_Blue, element, number), LMX_FLAG(ColorSpaceRGBType, m_isset_Blue), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Alpha", element("Alpha"), LMX_OFFSET(ColorSpaceRGBType, m_Alpha, element, number), LMX_FLAG(ColorSpaceRGBType, m_isset_Alpha), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Vyr:ColorDepth", element("ColorDepth"), LMX_OFFSET(ColorSpaceRGBType, m_ColorDepth, element, enumerated), LMX_FLAG(ColorSpaceRGBType, m_isset_ColorDepth), nullptr, &facets::ColorDepthKind},
};
constinit const s_class ColorSpaceRGBType::k_class = {
    .name = "ColorSpaceRGBType",
    .qualified_name = "Vyr:ColorSpaceRGBType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceRGBType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceRGBType>,
};

const char k_ColorSpaceRGBType_id[] = "ColorSpaceRGBType";
const char* ColorSpaceRGBType::id = k_ColorSpaceRGBType_id;
ColorSpaceRGBType::ColorSpaceRGBType() = default;
ColorSpaceRGBType::ColorSpaceRGBType(const ColorSpaceRGBType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceRGBType* ColorSpaceRGBType::clone() const { return new ColorSpaceRGBType(*this); }
ColorSpaceRGBType::~ColorSpaceRGBType() = default;
ColorSpaceRGBType& ColorSpaceRGBType::operator=(const ColorSpaceRGBType& other) { ColorSpaceRGBType copy(other); swap(copy); return *this; }
const char* ColorSpaceRGBType::getid() const { return id; }
bool ColorSpaceRGBType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceRGBType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceRGBType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceRGBType::swap(ColorSpaceRGBType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceRGBType::reset() { ColorSpaceRGBType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceRGBType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceRGBType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumTristimulus& ColorSpaceRGBType::assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value) { return get_ColorSpaceSpecificationSpectrumTristimulus() = value; }
lmx::elmx_error ColorSpaceRGBType::set_Red(double value) { return lmx::set_item(k_class, k_items[item_Red], this, value); }
lmx::elmx_error ColorSpaceRGBType::set_Green(double value) { return lmx::set_item(k_class, k_items[item_Green], this, value); }
lmx::elmx_error ColorSpaceRGBType::set_Blue(double value) { return lmx::set_item(k_class, k_items[item_Blue], this, value); }
lmx::elmx_error ColorSpaceRGBType::set_Alpha(double value) { return lmx::set_item(k_class, k_items[item_Alpha], this, value); }
lmx::elmx_error ColorSpaceRGBType::set_ColorDepth(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ColorDepth], this, value); }
bool ColorSpaceRGBType::setenum_ColorDepth(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_ColorDepth], this, number); }

// ColorSpaceSRGBType

constexpr s_item ColorSpaceSRGBType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceSRGBType, m_Name, attribute, text), LMX_FLAG(ColorSpaceSRGBType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumTristimulus", element("ColorSpaceSpecificationSpectrumTristimulus"), LMX_OFFSET(ColorSpaceSRGBType, m_ColorSpaceSpecificationSpectrumTristimulus, child, none), LMX_FLAG(ColorSpaceSRGBType, m_isset_ColorSpaceSpecificationSpectrumTristimulus), &ColorSpaceSpecificationSpectrumTristimulus::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Red", element("Red"), LMX_OFFSET(ColorSpaceSRGBType, m_Red, element, number), LMX_FLAG(ColorSpaceSRGBType, m_isset_Red), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Green", element("Green"), LMX_OFFSET(ColorSpaceSRGBType, m_Green, element, number), LMX_FLAG(ColorSpaceSRGBType, m_isset_Green), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Blue", element("Blue"), LMX_OFFSET(ColorSpaceSRGBType, m_Blue, element, number), LMX_FLAG(ColorSpaceSRGBType, m_isset_Blue), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Alpha", element("Alpha"), LMX_OFFSET(ColorSpaceSRGBType, m_Alpha, element, number), LMX_FLAG(ColorSpaceSRGBType, m_isset_Alpha), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Vyr:ColorDepth", element("ColorDepth"), LMX_OFFSET(ColorSpaceSRGBType, m_ColorDepth, element, enumerated), LMX_FLAG(ColorSpaceSRGBType, m_isset_ColorDepth), nullptr, &facets::ColorDepthKind},
};
constinit const s_class ColorSpaceSRGBType::k_class = {
    .name = "ColorSpaceSRGBType",
    .qualified_name = "Vyr:ColorSpaceSRGBType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceSRGBType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceSRGBType>,
};

const char k_ColorSpaceSRGBType_id[] = "ColorSpaceSRGBType";
const char* ColorSpaceSRGBType::id = k_ColorSpaceSRGBType_id;
ColorSpaceSRGBType::ColorSpaceSRGBType() = default;
ColorSpaceSRGBType::ColorSpaceSRGBType(const ColorSpaceSRGBType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceSRGBType* ColorSpaceSRGBType::clone() const { return new ColorSpaceSRGBType(*this); }
ColorSpaceSRGBType::~ColorSpaceSRGBType() = default;
ColorSpaceSRGBType& ColorSpaceSRGBType::operator=(const ColorSpaceSRGBType& other) { ColorSpaceSRGBType copy(other); swap(copy); return *this; }
const char* ColorSpaceSRGBType::getid() const { return id; }
bool ColorSpaceSRGBType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceSRGBType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceSRGBType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceSRGBType::swap(ColorSpaceSRGBType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceSRGBType::reset() { ColorSpaceSRGBType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceSRGBType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceSRGBType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumTristimulus& ColorSpaceSRGBType::assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value) { return get_ColorSpaceSpecificationSpectrumTristimulus() = value; }
lmx::elmx_error ColorSpaceSRGBType::set_Red(double value) { return lmx::set_item(k_class, k_items[item_Red], this, value); }
lmx::elmx_error ColorSpaceSRGBType::set_Green(double value) { return lmx::set_item(k_class, k_items[item_Green], this, value); }
lmx::elmx_error ColorSpaceSRGBType::set_Blue(double value) { return lmx::set_item(k_class, k_items[item_Blue], this, value); }
lmx::elmx_error ColorSpaceSRGBType::set_Alpha(double value) { return lmx::set_item(k_class, k_items[item_Alpha], this, value); }
lmx::elmx_error ColorSpaceSRGBType::set_ColorDepth(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ColorDepth], this, value); }
bool ColorSpaceSRGBType::setenum_ColorDepth(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_ColorDepth], this, number); }

// ColorSpaceAdobeRGBType

constexpr s_item ColorSpaceAdobeRGBType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceAdobeRGBType, m_Name, attribute, text), LMX_FLAG(ColorSpaceAdobeRGBType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumTristimulus", element("ColorSpaceSpecificationSpectrumTristimulus"), LMX_OFFSET(ColorSpaceAdobeRGBType, m_ColorSpaceSpecificationSpectrumTristimulus, child, none), LMX_FLAG(ColorSpaceAdobeRGBType, m_isset_ColorSpaceSpecificationSpectrumTristimulus), &ColorSpaceSpecificationSpectrumTristimulus::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Red", element("Red"), LMX_OFFSET(ColorSpaceAdobeRGBType, m_Red, element, number), LMX_FLAG(ColorSpaceAdobeRGBType, m_isset_Red), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Green", element("Green"), LMX_OFFSET(ColorSpaceAdobeRGBType, m_Green, element, number), LMX_FLAG(ColorSpaceAdobeRGBType, m_isset_Green), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Blue", element("Blue"), LMX_OFFSET(ColorSpaceAdobeRGBType, m_Blue, element, number), LMX_FLAG(ColorSpaceAdobeRGBType, m_isset_Blue), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Alpha", element("Alpha"), LMX_OFFSET(ColorSpaceAdobeRGBType, m_Alpha, element, number), LMX_FLAG(ColorSpaceAdobeRGBType, m_isset_Alpha), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Vyr:ColorDepth", element("ColorDepth"), LMX_OFFSET(ColorSpaceAdobeRGBType, m_ColorDepth, element, enumerated), LMX_FLAG(ColorSpaceAdobeRGBType, m_isset_ColorDepth), nullptr, &facets::ColorDepthKind},
};
constinit const s_class ColorSpaceAdobeRGBType::k_class = {
    .name = "ColorSpaceAdobeRGBType",
    .qualified_name = "Vyr:ColorSpaceAdobeRGBType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceAdobeRGBType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceAdobeRGBType>,
};

const char k_ColorSpaceAdobeRGBType_id[] = "ColorSpaceAdobeRGBType";
const char* ColorSpaceAdobeRGBType::id = k_ColorSpaceAdobeRGBType_id;
ColorSpaceAdobeRGBType::ColorSpaceAdobeRGBType() = default;
ColorSpaceAdobeRGBType::ColorSpaceAdobeRGBType(const ColorSpaceAdobeRGBType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceAdobeRGBType* ColorSpaceAdobeRGBType::clone() const { return new ColorSpaceAdobeRGBType(*this); }
ColorSpaceAdobeRGBType::~ColorSpaceAdobeRGBType() = default;
ColorSpaceAdobeRGBType& ColorSpaceAdobeRGBType::operator=(const ColorSpaceAdobeRGBType& other) { ColorSpaceAdobeRGBType copy(other); swap(copy); return *this; }
const char* ColorSpaceAdobeRGBType::getid() const { return id; }
bool ColorSpaceAdobeRGBType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceAdobeRGBType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceAdobeRGBType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceAdobeRGBType::swap(ColorSpaceAdobeRGBType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceAdobeRGBType::reset() { ColorSpaceAdobeRGBType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceAdobeRGBType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceAdobeRGBType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumTristimulus& ColorSpaceAdobeRGBType::assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value) { return get_ColorSpaceSpecificationSpectrumTristimulus() = value; }
lmx::elmx_error ColorSpaceAdobeRGBType::set_Red(double value) { return lmx::set_item(k_class, k_items[item_Red], this, value); }
lmx::elmx_error ColorSpaceAdobeRGBType::set_Green(double value) { return lmx::set_item(k_class, k_items[item_Green], this, value); }
lmx::elmx_error ColorSpaceAdobeRGBType::set_Blue(double value) { return lmx::set_item(k_class, k_items[item_Blue], this, value); }
lmx::elmx_error ColorSpaceAdobeRGBType::set_Alpha(double value) { return lmx::set_item(k_class, k_items[item_Alpha], this, value); }
lmx::elmx_error ColorSpaceAdobeRGBType::set_ColorDepth(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ColorDepth], this, value); }
bool ColorSpaceAdobeRGBType::setenum_ColorDepth(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_ColorDepth], this, number); }

// ColorSpaceAdobeWideGamutRGBType

constexpr s_item ColorSpaceAdobeWideGamutRGBType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceAdobeWideGamutRGBType, m_Name, attribute, text), LMX_FLAG(ColorSpaceAdobeWideGamutRGBType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumTristimulus", element("ColorSpaceSpecificationSpectrumTristimulus"), LMX_OFFSET(ColorSpaceAdobeWideGamutRGBType, m_ColorSpaceSpecificationSpectrumTristimulus, child, none), LMX_FLAG(ColorSpaceAdobeWideGamutRGBType, m_isset_ColorSpaceSpecificationSpectrumTristimulus), &ColorSpaceSpecificationSpectrumTristimulus::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Red", element("Red"), LMX_OFFSET(ColorSpaceAdobeWideGamutRGBType, m_Red, element, number), LMX_FLAG(ColorSpaceAdobeWideGamutRGBType, m_isset_Red), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Green", element("Green"), LMX_OFFSET(ColorSpaceAdobeWideGamutRGBType, m_Green, element, number), LMX_FLAG(ColorSpaceAdobeWideGamutRGBType, m_isset_Green), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Blue", element("Blue"), LMX_OFFSET(ColorSpaceAdobeWideGamutRGBType, m_Blue, element, number), LMX_FLAG(ColorSpaceAdobeWideGamutRGBType, m_isset_Blue), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_optional, ELMX_WS_COLLAPSE, "Vyr:Alpha", element("Alpha"), LMX_OFFSET(ColorSpaceAdobeWideGamutRGBType, m_Alpha, element, number), LMX_FLAG(ColorSpaceAdobeWideGamutRGBType, m_isset_Alpha), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::enumerated, use_required, ELMX_WS_PRESERVE, "Vyr:ColorDepth", element("ColorDepth"), LMX_OFFSET(ColorSpaceAdobeWideGamutRGBType, m_ColorDepth, element, enumerated), LMX_FLAG(ColorSpaceAdobeWideGamutRGBType, m_isset_ColorDepth), nullptr, &facets::ColorDepthKind},
};
constinit const s_class ColorSpaceAdobeWideGamutRGBType::k_class = {
    .name = "ColorSpaceAdobeWideGamutRGBType",
    .qualified_name = "Vyr:ColorSpaceAdobeWideGamutRGBType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceAdobeWideGamutRGBType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceAdobeWideGamutRGBType>,
};

const char k_ColorSpaceAdobeWideGamutRGBType_id[] = "ColorSpaceAdobeWideGamutRGBType";
const char* ColorSpaceAdobeWideGamutRGBType::id = k_ColorSpaceAdobeWideGamutRGBType_id;
ColorSpaceAdobeWideGamutRGBType::ColorSpaceAdobeWideGamutRGBType() = default;
ColorSpaceAdobeWideGamutRGBType::ColorSpaceAdobeWideGamutRGBType(const ColorSpaceAdobeWideGamutRGBType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceAdobeWideGamutRGBType* ColorSpaceAdobeWideGamutRGBType::clone() const { return new ColorSpaceAdobeWideGamutRGBType(*this); }
ColorSpaceAdobeWideGamutRGBType::~ColorSpaceAdobeWideGamutRGBType() = default;
ColorSpaceAdobeWideGamutRGBType& ColorSpaceAdobeWideGamutRGBType::operator=(const ColorSpaceAdobeWideGamutRGBType& other) { ColorSpaceAdobeWideGamutRGBType copy(other); swap(copy); return *this; }
const char* ColorSpaceAdobeWideGamutRGBType::getid() const { return id; }
bool ColorSpaceAdobeWideGamutRGBType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGBType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGBType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceAdobeWideGamutRGBType::swap(ColorSpaceAdobeWideGamutRGBType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceAdobeWideGamutRGBType::reset() { ColorSpaceAdobeWideGamutRGBType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceAdobeWideGamutRGBType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGBType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumTristimulus& ColorSpaceAdobeWideGamutRGBType::assign_ColorSpaceSpecificationSpectrumTristimulus(const ColorSpaceSpecificationSpectrumTristimulus& value) { return get_ColorSpaceSpecificationSpectrumTristimulus() = value; }
lmx::elmx_error ColorSpaceAdobeWideGamutRGBType::set_Red(double value) { return lmx::set_item(k_class, k_items[item_Red], this, value); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGBType::set_Green(double value) { return lmx::set_item(k_class, k_items[item_Green], this, value); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGBType::set_Blue(double value) { return lmx::set_item(k_class, k_items[item_Blue], this, value); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGBType::set_Alpha(double value) { return lmx::set_item(k_class, k_items[item_Alpha], this, value); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGBType::set_ColorDepth(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ColorDepth], this, value); }
bool ColorSpaceAdobeWideGamutRGBType::setenum_ColorDepth(std::int32_t number) { return lmx::set_enumerated(k_class, k_items[item_ColorDepth], this, number); }

// ColorSpaceCMYKType

constexpr s_item ColorSpaceCMYKType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceCMYKType, m_Name, attribute, text), LMX_FLAG(ColorSpaceCMYKType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(ColorSpaceCMYKType, m_ColorSpaceSpecificationSpectrumGeneric, child, none), LMX_FLAG(ColorSpaceCMYKType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Cyan", element("Cyan"), LMX_OFFSET(ColorSpaceCMYKType, m_Cyan, element, number), LMX_FLAG(ColorSpaceCMYKType, m_isset_Cyan), nullptr, &facets::Percentage},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Magenta", element("Magenta"), LMX_OFFSET(ColorSpaceCMYKType, m_Magenta, element, number), LMX_FLAG(ColorSpaceCMYKType, m_isset_Magenta), nullptr, &facets::Percentage},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Yellow", element("Yellow"), LMX_OFFSET(ColorSpaceCMYKType, m_Yellow, element, number), LMX_FLAG(ColorSpaceCMYKType, m_isset_Yellow), nullptr, &facets::Percentage},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Black", element("Black"), LMX_OFFSET(ColorSpaceCMYKType, m_Black, element, number), LMX_FLAG(ColorSpaceCMYKType, m_isset_Black), nullptr, &facets::Percentage},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SpotColor", element("SpotColor"), LMX_OFFSET(ColorSpaceCMYKType, m_SpotColor, child_list, none), k_no_flag, &SpotColorType::k_class},
};
constinit const s_factory_row ColorSpaceCMYKType::k_factory[] = {
    {"ColorSpaceCMYKType", &ColorSpaceCMYKType::k_class},
    {"ColorSpaceCMYKPlusNType", &ColorSpaceCMYKPlusNType::k_class},
};
constinit const s_class ColorSpaceCMYKType::k_class = {
    .name = "ColorSpaceCMYKType",
    .qualified_name = "Vyr:ColorSpaceCMYKType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceCMYKType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceCMYKType>,
};

const char k_ColorSpaceCMYKType_id[] = "ColorSpaceCMYKType";
const char* ColorSpaceCMYKType::id = k_ColorSpaceCMYKType_id;
ColorSpaceCMYKType::ColorSpaceCMYKType() = default;
ColorSpaceCMYKType::ColorSpaceCMYKType(const ColorSpaceCMYKType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceCMYKType* ColorSpaceCMYKType::clone() const { return new ColorSpaceCMYKType(*this); }
ColorSpaceCMYKType::~ColorSpaceCMYKType() = default;
ColorSpaceCMYKType& ColorSpaceCMYKType::operator=(const ColorSpaceCMYKType& other) { ColorSpaceCMYKType copy(other); swap(copy); return *this; }
const char* ColorSpaceCMYKType::getid() const { return id; }
bool ColorSpaceCMYKType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceCMYKType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceCMYKType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceCMYKType::swap(ColorSpaceCMYKType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceCMYKType::reset() { ColorSpaceCMYKType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceCMYKType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceCMYKType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceCMYKType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
lmx::elmx_error ColorSpaceCMYKType::set_Cyan(double value) { return lmx::set_item(k_class, k_items[item_Cyan], this, value); }
lmx::elmx_error ColorSpaceCMYKType::set_Magenta(double value) { return lmx::set_item(k_class, k_items[item_Magenta], this, value); }
lmx::elmx_error ColorSpaceCMYKType::set_Yellow(double value) { return lmx::set_item(k_class, k_items[item_Yellow], this, value); }
lmx::elmx_error ColorSpaceCMYKType::set_Black(double value) { return lmx::set_item(k_class, k_items[item_Black], this, value); }
SpotColorType& ColorSpaceCMYKType::get_SpotColor(std::size_t index) { return m_SpotColor.grow_to(index); }
SpotColorType& ColorSpaceCMYKType::assign_SpotColor(std::size_t index, const SpotColorType& value) { return get_SpotColor(index) = value; }
lmx::elmx_error ColorSpaceCMYKType::append_SpotColor() { m_SpotColor.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSpaceCMYKType::insert_SpotColor(std::size_t index) { m_SpotColor.insert(index); return lmx::ELMX_OK; }
void ColorSpaceCMYKType::delete_SpotColor(std::size_t index) { m_SpotColor.erase(index); }
void ColorSpaceCMYKType::clear_SpotColor() { m_SpotColor.clear(); }
ColorSpaceCMYKType* ColorSpaceCMYKType::factory(int ns_id, const std::string& name) { return static_cast<ColorSpaceCMYKType*>(lmx::create_by_name(k_factory, ns_id, name)); }

// ColorSpaceCMYKPlusNType

constexpr s_item ColorSpaceCMYKPlusNType::k_items[] = {
    {item_kind::element, value_kind::text, use_optional, ELMX_WS_PRESERVE, "Vyr:ColorSpaceName", element("ColorSpaceName"), LMX_OFFSET(ColorSpaceCMYKPlusNType, m_ColorSpaceName, element, text), LMX_FLAG(ColorSpaceCMYKPlusNType, m_isset_ColorSpaceName)},
    {item_kind::child_list, value_kind::none, use_demanded | use_asked, ELMX_WS_PRESERVE, "Vyr:Color", element("Color"), LMX_OFFSET(ColorSpaceCMYKPlusNType, m_Color, child_list, none), k_no_flag, &Color::k_class},
};
constinit const s_class ColorSpaceCMYKPlusNType::k_class = {
    .name = "ColorSpaceCMYKPlusNType",
    .qualified_name = "Vyr:ColorSpaceCMYKPlusNType",
    .base = &ColorSpaceCMYKType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceCMYKPlusNType::id,
    .elements = k_items,
    .operations = &k_operations<ColorSpaceCMYKPlusNType>,
};

const char k_ColorSpaceCMYKPlusNType_id[] = "ColorSpaceCMYKPlusNType";
const char* ColorSpaceCMYKPlusNType::id = k_ColorSpaceCMYKPlusNType_id;
ColorSpaceCMYKPlusNType::ColorSpaceCMYKPlusNType() = default;
ColorSpaceCMYKPlusNType::ColorSpaceCMYKPlusNType(const ColorSpaceCMYKPlusNType& other) : ColorSpaceCMYKType() { lmx::copy(k_class, this, &other); }
ColorSpaceCMYKPlusNType* ColorSpaceCMYKPlusNType::clone() const { return new ColorSpaceCMYKPlusNType(*this); }
ColorSpaceCMYKPlusNType::~ColorSpaceCMYKPlusNType() = default;
ColorSpaceCMYKPlusNType& ColorSpaceCMYKPlusNType::operator=(const ColorSpaceCMYKPlusNType& other) { ColorSpaceCMYKPlusNType copy(other); swap(copy); return *this; }
const char* ColorSpaceCMYKPlusNType::getid() const { return id; }
bool ColorSpaceCMYKPlusNType::has_id(const char* identity) const { return identity == id || ColorSpaceCMYKType::has_id(identity); }
lmx::elmx_error ColorSpaceCMYKPlusNType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceCMYKPlusNType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceCMYKPlusNType::swap(ColorSpaceCMYKPlusNType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceCMYKPlusNType::reset() { ColorSpaceCMYKPlusNType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceCMYKPlusNType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceCMYKPlusNType::set_ColorSpaceName(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_ColorSpaceName], this, value); }
Color& ColorSpaceCMYKPlusNType::get_Color(std::size_t index) { return m_Color.grow_to(index); }
Color& ColorSpaceCMYKPlusNType::assign_Color(std::size_t index, const Color& value) { return get_Color(index) = value; }
lmx::elmx_error ColorSpaceCMYKPlusNType::append_Color() { m_Color.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSpaceCMYKPlusNType::insert_Color(std::size_t index) { m_Color.insert(index); return lmx::ELMX_OK; }
void ColorSpaceCMYKPlusNType::delete_Color(std::size_t index) { m_Color.erase(index); }
void ColorSpaceCMYKPlusNType::clear_Color() { m_Color.clear(); }

// Color

constexpr s_item Color::k_items[] = {
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Vyr:Name", element("Name"), LMX_OFFSET(Color, m_Name, element, text), LMX_FLAG(Color, m_isset_Name)},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Value", element("Value"), LMX_OFFSET(Color, m_Value, element, number), LMX_FLAG(Color, m_isset_Value)},
};
constinit const s_class Color::k_class = {
    .name = "Color",
    .qualified_name = "Vyr:Color",
    .content = content_kind::children,
    .names = &k_names,
    .elements = k_items,
    .operations = &k_operations<Color>,
};

Color::Color() = default;
Color::Color(const Color& other) { lmx::copy(k_class, this, &other); }
Color::~Color() = default;
Color& Color::operator=(const Color& other) { Color copy(other); swap(copy); return *this; }
lmx::elmx_error Color::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error Color::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void Color::swap(Color& other) { lmx::swap(k_class, this, &other); }
void Color::reset() { Color fresh; lmx::exchange(k_class, this, &fresh); }
bool Color::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error Color::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
lmx::elmx_error Color::set_Value(double value) { return lmx::set_item(k_class, k_items[item_Value], this, value); }

// ColorSpaceTINTORAOctavanticType

constexpr s_item ColorSpaceTINTORAOctavanticType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceTINTORAOctavanticType, m_Name, attribute, text), LMX_FLAG(ColorSpaceTINTORAOctavanticType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(ColorSpaceTINTORAOctavanticType, m_ColorSpaceSpecificationSpectrumGeneric, child, none), LMX_FLAG(ColorSpaceTINTORAOctavanticType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Cyan", element("Cyan"), LMX_OFFSET(ColorSpaceTINTORAOctavanticType, m_Cyan, element, number), LMX_FLAG(ColorSpaceTINTORAOctavanticType, m_isset_Cyan), nullptr, &facets::Percentage},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Magenta", element("Magenta"), LMX_OFFSET(ColorSpaceTINTORAOctavanticType, m_Magenta, element, number), LMX_FLAG(ColorSpaceTINTORAOctavanticType, m_isset_Magenta), nullptr, &facets::Percentage},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Yellow", element("Yellow"), LMX_OFFSET(ColorSpaceTINTORAOctavanticType, m_Yellow, element, number), LMX_FLAG(ColorSpaceTINTORAOctavanticType, m_isset_Yellow), nullptr, &facets::Percentage},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Black", element("Black"), LMX_OFFSET(ColorSpaceTINTORAOctavanticType, m_Black, element, number), LMX_FLAG(ColorSpaceTINTORAOctavanticType, m_isset_Black), nullptr, &facets::Percentage},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Orange", element("Orange"), LMX_OFFSET(ColorSpaceTINTORAOctavanticType, m_Orange, element, number), LMX_FLAG(ColorSpaceTINTORAOctavanticType, m_isset_Orange), nullptr, &facets::Percentage},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Green", element("Green"), LMX_OFFSET(ColorSpaceTINTORAOctavanticType, m_Green, element, number), LMX_FLAG(ColorSpaceTINTORAOctavanticType, m_isset_Green), nullptr, &facets::Percentage},
    {item_kind::child_list, value_kind::none, use_optional, ELMX_WS_PRESERVE, "Vyr:SpotColor", element("SpotColor"), LMX_OFFSET(ColorSpaceTINTORAOctavanticType, m_SpotColor, child_list, none), k_no_flag, &SpotColorType::k_class},
};
constinit const s_class ColorSpaceTINTORAOctavanticType::k_class = {
    .name = "ColorSpaceTINTORAOctavanticType",
    .qualified_name = "Vyr:ColorSpaceTINTORAOctavanticType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceTINTORAOctavanticType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceTINTORAOctavanticType>,
};

const char k_ColorSpaceTINTORAOctavanticType_id[] = "ColorSpaceTINTORAOctavanticType";
const char* ColorSpaceTINTORAOctavanticType::id = k_ColorSpaceTINTORAOctavanticType_id;
ColorSpaceTINTORAOctavanticType::ColorSpaceTINTORAOctavanticType() = default;
ColorSpaceTINTORAOctavanticType::ColorSpaceTINTORAOctavanticType(const ColorSpaceTINTORAOctavanticType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceTINTORAOctavanticType* ColorSpaceTINTORAOctavanticType::clone() const { return new ColorSpaceTINTORAOctavanticType(*this); }
ColorSpaceTINTORAOctavanticType::~ColorSpaceTINTORAOctavanticType() = default;
ColorSpaceTINTORAOctavanticType& ColorSpaceTINTORAOctavanticType::operator=(const ColorSpaceTINTORAOctavanticType& other) { ColorSpaceTINTORAOctavanticType copy(other); swap(copy); return *this; }
const char* ColorSpaceTINTORAOctavanticType::getid() const { return id; }
bool ColorSpaceTINTORAOctavanticType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceTINTORAOctavanticType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceTINTORAOctavanticType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceTINTORAOctavanticType::swap(ColorSpaceTINTORAOctavanticType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceTINTORAOctavanticType::reset() { ColorSpaceTINTORAOctavanticType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceTINTORAOctavanticType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceTINTORAOctavanticType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceTINTORAOctavanticType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
lmx::elmx_error ColorSpaceTINTORAOctavanticType::set_Cyan(double value) { return lmx::set_item(k_class, k_items[item_Cyan], this, value); }
lmx::elmx_error ColorSpaceTINTORAOctavanticType::set_Magenta(double value) { return lmx::set_item(k_class, k_items[item_Magenta], this, value); }
lmx::elmx_error ColorSpaceTINTORAOctavanticType::set_Yellow(double value) { return lmx::set_item(k_class, k_items[item_Yellow], this, value); }
lmx::elmx_error ColorSpaceTINTORAOctavanticType::set_Black(double value) { return lmx::set_item(k_class, k_items[item_Black], this, value); }
lmx::elmx_error ColorSpaceTINTORAOctavanticType::set_Orange(double value) { return lmx::set_item(k_class, k_items[item_Orange], this, value); }
lmx::elmx_error ColorSpaceTINTORAOctavanticType::set_Green(double value) { return lmx::set_item(k_class, k_items[item_Green], this, value); }
SpotColorType& ColorSpaceTINTORAOctavanticType::get_SpotColor(std::size_t index) { return m_SpotColor.grow_to(index); }
SpotColorType& ColorSpaceTINTORAOctavanticType::assign_SpotColor(std::size_t index, const SpotColorType& value) { return get_SpotColor(index) = value; }
lmx::elmx_error ColorSpaceTINTORAOctavanticType::append_SpotColor() { m_SpotColor.append(); return lmx::ELMX_OK; }
lmx::elmx_error ColorSpaceTINTORAOctavanticType::insert_SpotColor(std::size_t index) { m_SpotColor.insert(index); return lmx::ELMX_OK; }
void ColorSpaceTINTORAOctavanticType::delete_SpotColor(std::size_t index) { m_SpotColor.erase(index); }
void ColorSpaceTINTORAOctavanticType::clear_SpotColor() { m_SpotColor.clear(); }

// ColorSpaceHSLType

constexpr s_item ColorSpaceHSLType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceHSLType, m_Name, attribute, text), LMX_FLAG(ColorSpaceHSLType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(ColorSpaceHSLType, m_ColorSpaceSpecificationSpectrumGeneric, child, none), LMX_FLAG(ColorSpaceHSLType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Hue", element("Hue"), LMX_OFFSET(ColorSpaceHSLType, m_Hue, element, number), LMX_FLAG(ColorSpaceHSLType, m_isset_Hue), nullptr, &facets::HueAngle},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Saturation", element("Saturation"), LMX_OFFSET(ColorSpaceHSLType, m_Saturation, element, number), LMX_FLAG(ColorSpaceHSLType, m_isset_Saturation), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Lightness", element("Lightness"), LMX_OFFSET(ColorSpaceHSLType, m_Lightness, element, number), LMX_FLAG(ColorSpaceHSLType, m_isset_Lightness), nullptr, &facets::Fraction},
};
constinit const s_class ColorSpaceHSLType::k_class = {
    .name = "ColorSpaceHSLType",
    .qualified_name = "Vyr:ColorSpaceHSLType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceHSLType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceHSLType>,
};

const char k_ColorSpaceHSLType_id[] = "ColorSpaceHSLType";
const char* ColorSpaceHSLType::id = k_ColorSpaceHSLType_id;
ColorSpaceHSLType::ColorSpaceHSLType() = default;
ColorSpaceHSLType::ColorSpaceHSLType(const ColorSpaceHSLType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceHSLType* ColorSpaceHSLType::clone() const { return new ColorSpaceHSLType(*this); }
ColorSpaceHSLType::~ColorSpaceHSLType() = default;
ColorSpaceHSLType& ColorSpaceHSLType::operator=(const ColorSpaceHSLType& other) { ColorSpaceHSLType copy(other); swap(copy); return *this; }
const char* ColorSpaceHSLType::getid() const { return id; }
bool ColorSpaceHSLType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceHSLType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceHSLType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceHSLType::swap(ColorSpaceHSLType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceHSLType::reset() { ColorSpaceHSLType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceHSLType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceHSLType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceHSLType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
lmx::elmx_error ColorSpaceHSLType::set_Hue(double value) { return lmx::set_item(k_class, k_items[item_Hue], this, value); }
lmx::elmx_error ColorSpaceHSLType::set_Saturation(double value) { return lmx::set_item(k_class, k_items[item_Saturation], this, value); }
lmx::elmx_error ColorSpaceHSLType::set_Lightness(double value) { return lmx::set_item(k_class, k_items[item_Lightness], this, value); }

// ColorSpaceHSVType

constexpr s_item ColorSpaceHSVType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceHSVType, m_Name, attribute, text), LMX_FLAG(ColorSpaceHSVType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(ColorSpaceHSVType, m_ColorSpaceSpecificationSpectrumGeneric, child, none), LMX_FLAG(ColorSpaceHSVType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Hue", element("Hue"), LMX_OFFSET(ColorSpaceHSVType, m_Hue, element, number), LMX_FLAG(ColorSpaceHSVType, m_isset_Hue), nullptr, &facets::HueAngle},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Saturation", element("Saturation"), LMX_OFFSET(ColorSpaceHSVType, m_Saturation, element, number), LMX_FLAG(ColorSpaceHSVType, m_isset_Saturation), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Value", element("Value"), LMX_OFFSET(ColorSpaceHSVType, m_Value, element, number), LMX_FLAG(ColorSpaceHSVType, m_isset_Value), nullptr, &facets::Fraction},
};
constinit const s_class ColorSpaceHSVType::k_class = {
    .name = "ColorSpaceHSVType",
    .qualified_name = "Vyr:ColorSpaceHSVType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceHSVType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceHSVType>,
};

const char k_ColorSpaceHSVType_id[] = "ColorSpaceHSVType";
const char* ColorSpaceHSVType::id = k_ColorSpaceHSVType_id;
ColorSpaceHSVType::ColorSpaceHSVType() = default;
ColorSpaceHSVType::ColorSpaceHSVType(const ColorSpaceHSVType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceHSVType* ColorSpaceHSVType::clone() const { return new ColorSpaceHSVType(*this); }
ColorSpaceHSVType::~ColorSpaceHSVType() = default;
ColorSpaceHSVType& ColorSpaceHSVType::operator=(const ColorSpaceHSVType& other) { ColorSpaceHSVType copy(other); swap(copy); return *this; }
const char* ColorSpaceHSVType::getid() const { return id; }
bool ColorSpaceHSVType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceHSVType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceHSVType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceHSVType::swap(ColorSpaceHSVType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceHSVType::reset() { ColorSpaceHSVType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceHSVType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceHSVType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceHSVType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
lmx::elmx_error ColorSpaceHSVType::set_Hue(double value) { return lmx::set_item(k_class, k_items[item_Hue], this, value); }
lmx::elmx_error ColorSpaceHSVType::set_Saturation(double value) { return lmx::set_item(k_class, k_items[item_Saturation], this, value); }
lmx::elmx_error ColorSpaceHSVType::set_Value(double value) { return lmx::set_item(k_class, k_items[item_Value], this, value); }

// ColorSpaceYUVType

constexpr s_item ColorSpaceYUVType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceYUVType, m_Name, attribute, text), LMX_FLAG(ColorSpaceYUVType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(ColorSpaceYUVType, m_ColorSpaceSpecificationSpectrumGeneric, child, none), LMX_FLAG(ColorSpaceYUVType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Y", element("Y"), LMX_OFFSET(ColorSpaceYUVType, m_Y, element, number), LMX_FLAG(ColorSpaceYUVType, m_isset_Y), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:U", element("U"), LMX_OFFSET(ColorSpaceYUVType, m_U, element, number), LMX_FLAG(ColorSpaceYUVType, m_isset_U), nullptr, &facets::YUVChromaU},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:V", element("V"), LMX_OFFSET(ColorSpaceYUVType, m_V, element, number), LMX_FLAG(ColorSpaceYUVType, m_isset_V), nullptr, &facets::YUVChromaV},
};
constinit const s_class ColorSpaceYUVType::k_class = {
    .name = "ColorSpaceYUVType",
    .qualified_name = "Vyr:ColorSpaceYUVType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceYUVType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceYUVType>,
};

const char k_ColorSpaceYUVType_id[] = "ColorSpaceYUVType";
const char* ColorSpaceYUVType::id = k_ColorSpaceYUVType_id;
ColorSpaceYUVType::ColorSpaceYUVType() = default;
ColorSpaceYUVType::ColorSpaceYUVType(const ColorSpaceYUVType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceYUVType* ColorSpaceYUVType::clone() const { return new ColorSpaceYUVType(*this); }
ColorSpaceYUVType::~ColorSpaceYUVType() = default;
ColorSpaceYUVType& ColorSpaceYUVType::operator=(const ColorSpaceYUVType& other) { ColorSpaceYUVType copy(other); swap(copy); return *this; }
const char* ColorSpaceYUVType::getid() const { return id; }
bool ColorSpaceYUVType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceYUVType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceYUVType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceYUVType::swap(ColorSpaceYUVType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceYUVType::reset() { ColorSpaceYUVType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceYUVType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceYUVType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceYUVType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
lmx::elmx_error ColorSpaceYUVType::set_Y(double value) { return lmx::set_item(k_class, k_items[item_Y], this, value); }
lmx::elmx_error ColorSpaceYUVType::set_U(double value) { return lmx::set_item(k_class, k_items[item_U], this, value); }
lmx::elmx_error ColorSpaceYUVType::set_V(double value) { return lmx::set_item(k_class, k_items[item_V], this, value); }

// ColorSpaceYIQType

constexpr s_item ColorSpaceYIQType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceYIQType, m_Name, attribute, text), LMX_FLAG(ColorSpaceYIQType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(ColorSpaceYIQType, m_ColorSpaceSpecificationSpectrumGeneric, child, none), LMX_FLAG(ColorSpaceYIQType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Y", element("Y"), LMX_OFFSET(ColorSpaceYIQType, m_Y, element, number), LMX_FLAG(ColorSpaceYIQType, m_isset_Y), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:I", element("I"), LMX_OFFSET(ColorSpaceYIQType, m_I, element, number), LMX_FLAG(ColorSpaceYIQType, m_isset_I), nullptr, &facets::YIQInPhase},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Q", element("Q"), LMX_OFFSET(ColorSpaceYIQType, m_Q, element, number), LMX_FLAG(ColorSpaceYIQType, m_isset_Q), nullptr, &facets::YIQQuadrature},
};
constinit const s_class ColorSpaceYIQType::k_class = {
    .name = "ColorSpaceYIQType",
    .qualified_name = "Vyr:ColorSpaceYIQType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceYIQType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceYIQType>,
};

const char k_ColorSpaceYIQType_id[] = "ColorSpaceYIQType";
const char* ColorSpaceYIQType::id = k_ColorSpaceYIQType_id;
ColorSpaceYIQType::ColorSpaceYIQType() = default;
ColorSpaceYIQType::ColorSpaceYIQType(const ColorSpaceYIQType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceYIQType* ColorSpaceYIQType::clone() const { return new ColorSpaceYIQType(*this); }
ColorSpaceYIQType::~ColorSpaceYIQType() = default;
ColorSpaceYIQType& ColorSpaceYIQType::operator=(const ColorSpaceYIQType& other) { ColorSpaceYIQType copy(other); swap(copy); return *this; }
const char* ColorSpaceYIQType::getid() const { return id; }
bool ColorSpaceYIQType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceYIQType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceYIQType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceYIQType::swap(ColorSpaceYIQType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceYIQType::reset() { ColorSpaceYIQType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceYIQType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceYIQType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceYIQType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
lmx::elmx_error ColorSpaceYIQType::set_Y(double value) { return lmx::set_item(k_class, k_items[item_Y], this, value); }
lmx::elmx_error ColorSpaceYIQType::set_I(double value) { return lmx::set_item(k_class, k_items[item_I], this, value); }
lmx::elmx_error ColorSpaceYIQType::set_Q(double value) { return lmx::set_item(k_class, k_items[item_Q], this, value); }

// ColorSpaceYBRType

constexpr s_item ColorSpaceYBRType::k_items[] = {
    {item_kind::attribute, value_kind::text, use_name, ELMX_WS_PRESERVE, "Name", attribute("Name"), LMX_OFFSET(ColorSpaceYBRType, m_Name, attribute, text), LMX_FLAG(ColorSpaceYBRType, m_isset_Name)},
    {item_kind::child, value_kind::none, use_required, ELMX_WS_PRESERVE, "Vyr:ColorSpaceSpecificationSpectrumGeneric", element("ColorSpaceSpecificationSpectrumGeneric"), LMX_OFFSET(ColorSpaceYBRType, m_ColorSpaceSpecificationSpectrumGeneric, child, none), LMX_FLAG(ColorSpaceYBRType, m_isset_ColorSpaceSpecificationSpectrumGeneric), &ColorSpaceSpecificationSpectrumGeneric::k_class},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Y", element("Y"), LMX_OFFSET(ColorSpaceYBRType, m_Y, element, number), LMX_FLAG(ColorSpaceYBRType, m_isset_Y), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:B", element("B"), LMX_OFFSET(ColorSpaceYBRType, m_B, element, number), LMX_FLAG(ColorSpaceYBRType, m_isset_B), nullptr, &facets::Fraction},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:R", element("R"), LMX_OFFSET(ColorSpaceYBRType, m_R, element, number), LMX_FLAG(ColorSpaceYBRType, m_isset_R), nullptr, &facets::Fraction},
};
constinit const s_class ColorSpaceYBRType::k_class = {
    .name = "ColorSpaceYBRType",
    .qualified_name = "Vyr:ColorSpaceYBRType",
    .base = &ColorSpaceType::k_class,
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .id = &ColorSpaceYBRType::id,
    .attributes = std::span(k_items).first(attribute_count(k_items)),
    .elements = std::span(k_items).subspan(attribute_count(k_items)),
    .operations = &k_operations<ColorSpaceYBRType>,
};

const char k_ColorSpaceYBRType_id[] = "ColorSpaceYBRType";
const char* ColorSpaceYBRType::id = k_ColorSpaceYBRType_id;
ColorSpaceYBRType::ColorSpaceYBRType() = default;
ColorSpaceYBRType::ColorSpaceYBRType(const ColorSpaceYBRType& other) : ColorSpaceType() { lmx::copy(k_class, this, &other); }
ColorSpaceYBRType* ColorSpaceYBRType::clone() const { return new ColorSpaceYBRType(*this); }
ColorSpaceYBRType::~ColorSpaceYBRType() = default;
ColorSpaceYBRType& ColorSpaceYBRType::operator=(const ColorSpaceYBRType& other) { ColorSpaceYBRType copy(other); swap(copy); return *this; }
const char* ColorSpaceYBRType::getid() const { return id; }
bool ColorSpaceYBRType::has_id(const char* identity) const { return identity == id || ColorSpaceType::has_id(identity); }
lmx::elmx_error ColorSpaceYBRType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error ColorSpaceYBRType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void ColorSpaceYBRType::swap(ColorSpaceYBRType& other) { lmx::swap(k_class, this, &other); }
void ColorSpaceYBRType::reset() { ColorSpaceYBRType fresh; lmx::exchange(k_class, this, &fresh); }
bool ColorSpaceYBRType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error ColorSpaceYBRType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
ColorSpaceSpecificationSpectrumGeneric& ColorSpaceYBRType::assign_ColorSpaceSpecificationSpectrumGeneric(const ColorSpaceSpecificationSpectrumGeneric& value) { return get_ColorSpaceSpecificationSpectrumGeneric() = value; }
lmx::elmx_error ColorSpaceYBRType::set_Y(double value) { return lmx::set_item(k_class, k_items[item_Y], this, value); }
lmx::elmx_error ColorSpaceYBRType::set_B(double value) { return lmx::set_item(k_class, k_items[item_B], this, value); }
lmx::elmx_error ColorSpaceYBRType::set_R(double value) { return lmx::set_item(k_class, k_items[item_R], this, value); }

// ColorSpaceRGB

constinit const lmx::s_document ColorSpaceRGB::k_document = {"Vyr:ColorSpaceRGB", "ColorSpaceRGB", k_ns_map, &lmx::k_operations<ColorSpaceRGB>};
ColorSpaceRGB::ColorSpaceRGB(const char* file_name, lmx::elmx_error* error) : ColorSpaceRGB() { *error = unmarshal(file_name); }
ColorSpaceRGB::ColorSpaceRGB(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceRGB() { *error = unmarshal(data, size); }
ColorSpaceRGB::ColorSpaceRGB(const std::string& text, lmx::elmx_error* error) : ColorSpaceRGB() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceRGB::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceRGB::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceRGB::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceRGB::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceRGB::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceRGB::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceRGB::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceRGB::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceRGB::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceRGBType::marshal(writer, name); }
lmx::elmx_error ColorSpaceRGB::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceRGBType::unmarshal(reader, name); }

// ColorSpaceSRGB

constinit const lmx::s_document ColorSpaceSRGB::k_document = {"Vyr:ColorSpaceSRGB", "ColorSpaceSRGB", k_ns_map, &lmx::k_operations<ColorSpaceSRGB>};
ColorSpaceSRGB::ColorSpaceSRGB(const char* file_name, lmx::elmx_error* error) : ColorSpaceSRGB() { *error = unmarshal(file_name); }
ColorSpaceSRGB::ColorSpaceSRGB(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceSRGB() { *error = unmarshal(data, size); }
ColorSpaceSRGB::ColorSpaceSRGB(const std::string& text, lmx::elmx_error* error) : ColorSpaceSRGB() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceSRGB::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceSRGB::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSRGB::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceSRGB::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceSRGB::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceSRGB::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceSRGB::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceSRGB::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceSRGB::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceSRGBType::marshal(writer, name); }
lmx::elmx_error ColorSpaceSRGB::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceSRGBType::unmarshal(reader, name); }

// ColorSpaceAdobeRGB

constinit const lmx::s_document ColorSpaceAdobeRGB::k_document = {"Vyr:ColorSpaceAdobeRGB", "ColorSpaceAdobeRGB", k_ns_map, &lmx::k_operations<ColorSpaceAdobeRGB>};
ColorSpaceAdobeRGB::ColorSpaceAdobeRGB(const char* file_name, lmx::elmx_error* error) : ColorSpaceAdobeRGB() { *error = unmarshal(file_name); }
ColorSpaceAdobeRGB::ColorSpaceAdobeRGB(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceAdobeRGB() { *error = unmarshal(data, size); }
ColorSpaceAdobeRGB::ColorSpaceAdobeRGB(const std::string& text, lmx::elmx_error* error) : ColorSpaceAdobeRGB() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceAdobeRGB::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceAdobeRGB::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceAdobeRGB::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceAdobeRGB::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceAdobeRGB::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceAdobeRGB::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceAdobeRGB::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceAdobeRGB::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceAdobeRGB::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceAdobeRGBType::marshal(writer, name); }
lmx::elmx_error ColorSpaceAdobeRGB::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceAdobeRGBType::unmarshal(reader, name); }

// ColorSpaceCMYKPlusN

constinit const lmx::s_document ColorSpaceCMYKPlusN::k_document = {"Vyr:ColorSpaceCMYKPlusN", "ColorSpaceCMYKPlusN", k_ns_map, &lmx::k_operations<ColorSpaceCMYKPlusN>};
ColorSpaceCMYKPlusN::ColorSpaceCMYKPlusN(const char* file_name, lmx::elmx_error* error) : ColorSpaceCMYKPlusN() { *error = unmarshal(file_name); }
ColorSpaceCMYKPlusN::ColorSpaceCMYKPlusN(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceCMYKPlusN() { *error = unmarshal(data, size); }
ColorSpaceCMYKPlusN::ColorSpaceCMYKPlusN(const std::string& text, lmx::elmx_error* error) : ColorSpaceCMYKPlusN() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceCMYKPlusN::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceCMYKPlusN::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCMYKPlusN::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceCMYKPlusN::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceCMYKPlusN::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceCMYKPlusN::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCMYKPlusN::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceCMYKPlusN::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceCMYKPlusN::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceCMYKPlusNType::marshal(writer, name); }
lmx::elmx_error ColorSpaceCMYKPlusN::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceCMYKPlusNType::unmarshal(reader, name); }

// ColorSpaceAdobeWideGamutRGB

constinit const lmx::s_document ColorSpaceAdobeWideGamutRGB::k_document = {"Vyr:ColorSpaceAdobeWideGamutRGB", "ColorSpaceAdobeWideGamutRGB", k_ns_map, &lmx::k_operations<ColorSpaceAdobeWideGamutRGB>};
ColorSpaceAdobeWideGamutRGB::ColorSpaceAdobeWideGamutRGB(const char* file_name, lmx::elmx_error* error) : ColorSpaceAdobeWideGamutRGB() { *error = unmarshal(file_name); }
ColorSpaceAdobeWideGamutRGB::ColorSpaceAdobeWideGamutRGB(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceAdobeWideGamutRGB() { *error = unmarshal(data, size); }
ColorSpaceAdobeWideGamutRGB::ColorSpaceAdobeWideGamutRGB(const std::string& text, lmx::elmx_error* error) : ColorSpaceAdobeWideGamutRGB() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceAdobeWideGamutRGB::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceAdobeWideGamutRGB::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGB::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGB::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGB::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGB::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGB::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGB::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGB::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceAdobeWideGamutRGBType::marshal(writer, name); }
lmx::elmx_error ColorSpaceAdobeWideGamutRGB::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceAdobeWideGamutRGBType::unmarshal(reader, name); }

// ColorSpaceHSL

constinit const lmx::s_document ColorSpaceHSL::k_document = {"Vyr:ColorSpaceHSL", "ColorSpaceHSL", k_ns_map, &lmx::k_operations<ColorSpaceHSL>};
ColorSpaceHSL::ColorSpaceHSL(const char* file_name, lmx::elmx_error* error) : ColorSpaceHSL() { *error = unmarshal(file_name); }
ColorSpaceHSL::ColorSpaceHSL(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceHSL() { *error = unmarshal(data, size); }
ColorSpaceHSL::ColorSpaceHSL(const std::string& text, lmx::elmx_error* error) : ColorSpaceHSL() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceHSL::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceHSL::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceHSL::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceHSL::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceHSL::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceHSL::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceHSL::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceHSL::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceHSL::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceHSLType::marshal(writer, name); }
lmx::elmx_error ColorSpaceHSL::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceHSLType::unmarshal(reader, name); }

// ColorSpaceHSV

constinit const lmx::s_document ColorSpaceHSV::k_document = {"Vyr:ColorSpaceHSV", "ColorSpaceHSV", k_ns_map, &lmx::k_operations<ColorSpaceHSV>};
ColorSpaceHSV::ColorSpaceHSV(const char* file_name, lmx::elmx_error* error) : ColorSpaceHSV() { *error = unmarshal(file_name); }
ColorSpaceHSV::ColorSpaceHSV(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceHSV() { *error = unmarshal(data, size); }
ColorSpaceHSV::ColorSpaceHSV(const std::string& text, lmx::elmx_error* error) : ColorSpaceHSV() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceHSV::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceHSV::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceHSV::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceHSV::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceHSV::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceHSV::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceHSV::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceHSV::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceHSV::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceHSVType::marshal(writer, name); }
lmx::elmx_error ColorSpaceHSV::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceHSVType::unmarshal(reader, name); }

// ColorSpaceCMYK

constinit const lmx::s_document ColorSpaceCMYK::k_document = {"Vyr:ColorSpaceCMYK", "ColorSpaceCMYK", k_ns_map, &lmx::k_operations<ColorSpaceCMYK>};
ColorSpaceCMYK::ColorSpaceCMYK(const char* file_name, lmx::elmx_error* error) : ColorSpaceCMYK() { *error = unmarshal(file_name); }
ColorSpaceCMYK::ColorSpaceCMYK(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceCMYK() { *error = unmarshal(data, size); }
ColorSpaceCMYK::ColorSpaceCMYK(const std::string& text, lmx::elmx_error* error) : ColorSpaceCMYK() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceCMYK::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceCMYK::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCMYK::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceCMYK::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceCMYK::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceCMYK::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceCMYK::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceCMYK::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceCMYK::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceCMYKType::marshal(writer, name); }
lmx::elmx_error ColorSpaceCMYK::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceCMYKType::unmarshal(reader, name); }

// ColorSpaceTINTORAOctavantic

constinit const lmx::s_document ColorSpaceTINTORAOctavantic::k_document = {"Vyr:ColorSpaceTINTORAOctavantic", "ColorSpaceTINTORAOctavantic", k_ns_map, &lmx::k_operations<ColorSpaceTINTORAOctavantic>};
ColorSpaceTINTORAOctavantic::ColorSpaceTINTORAOctavantic(const char* file_name, lmx::elmx_error* error) : ColorSpaceTINTORAOctavantic() { *error = unmarshal(file_name); }
ColorSpaceTINTORAOctavantic::ColorSpaceTINTORAOctavantic(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceTINTORAOctavantic() { *error = unmarshal(data, size); }
ColorSpaceTINTORAOctavantic::ColorSpaceTINTORAOctavantic(const std::string& text, lmx::elmx_error* error) : ColorSpaceTINTORAOctavantic() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceTINTORAOctavantic::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceTINTORAOctavantic::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceTINTORAOctavantic::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceTINTORAOctavantic::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceTINTORAOctavantic::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceTINTORAOctavantic::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceTINTORAOctavantic::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceTINTORAOctavantic::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceTINTORAOctavantic::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceTINTORAOctavanticType::marshal(writer, name); }
lmx::elmx_error ColorSpaceTINTORAOctavantic::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceTINTORAOctavanticType::unmarshal(reader, name); }

// ColorSpaceYUV

constinit const lmx::s_document ColorSpaceYUV::k_document = {"Vyr:ColorSpaceYUV", "ColorSpaceYUV", k_ns_map, &lmx::k_operations<ColorSpaceYUV>};
ColorSpaceYUV::ColorSpaceYUV(const char* file_name, lmx::elmx_error* error) : ColorSpaceYUV() { *error = unmarshal(file_name); }
ColorSpaceYUV::ColorSpaceYUV(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceYUV() { *error = unmarshal(data, size); }
ColorSpaceYUV::ColorSpaceYUV(const std::string& text, lmx::elmx_error* error) : ColorSpaceYUV() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceYUV::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceYUV::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceYUV::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceYUV::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceYUV::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceYUV::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceYUV::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceYUV::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceYUV::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceYUVType::marshal(writer, name); }
lmx::elmx_error ColorSpaceYUV::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceYUVType::unmarshal(reader, name); }

// ColorSpaceYIQ

constinit const lmx::s_document ColorSpaceYIQ::k_document = {"Vyr:ColorSpaceYIQ", "ColorSpaceYIQ", k_ns_map, &lmx::k_operations<ColorSpaceYIQ>};
ColorSpaceYIQ::ColorSpaceYIQ(const char* file_name, lmx::elmx_error* error) : ColorSpaceYIQ() { *error = unmarshal(file_name); }
ColorSpaceYIQ::ColorSpaceYIQ(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceYIQ() { *error = unmarshal(data, size); }
ColorSpaceYIQ::ColorSpaceYIQ(const std::string& text, lmx::elmx_error* error) : ColorSpaceYIQ() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceYIQ::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceYIQ::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceYIQ::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceYIQ::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceYIQ::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceYIQ::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceYIQ::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceYIQ::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceYIQ::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceYIQType::marshal(writer, name); }
lmx::elmx_error ColorSpaceYIQ::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceYIQType::unmarshal(reader, name); }

// ColorSpaceYBR

constinit const lmx::s_document ColorSpaceYBR::k_document = {"Vyr:ColorSpaceYBR", "ColorSpaceYBR", k_ns_map, &lmx::k_operations<ColorSpaceYBR>};
ColorSpaceYBR::ColorSpaceYBR(const char* file_name, lmx::elmx_error* error) : ColorSpaceYBR() { *error = unmarshal(file_name); }
ColorSpaceYBR::ColorSpaceYBR(const char* data, std::size_t size, lmx::elmx_error* error) : ColorSpaceYBR() { *error = unmarshal(data, size); }
ColorSpaceYBR::ColorSpaceYBR(const std::string& text, lmx::elmx_error* error) : ColorSpaceYBR() { *error = unmarshal(text.data(), text.size()); }
const lmx::s_ns_map* ColorSpaceYBR::ns_map() { return k_ns_map; }
lmx::elmx_error ColorSpaceYBR::unmarshal(const char* file_name) { return lmx::unmarshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceYBR::unmarshal(const char* data, std::size_t size) { return lmx::unmarshal_document(k_document, this, data, size); }
lmx::elmx_error ColorSpaceYBR::unmarshal(const std::string& text) { return lmx::unmarshal_document(k_document, this, text.data(), text.size()); }
lmx::elmx_error ColorSpaceYBR::unmarshal(lmx::c_xml_reader& reader) { return lmx::unmarshal_document(k_document, this, reader); }
lmx::elmx_error ColorSpaceYBR::marshal(const char* file_name) const { return lmx::marshal_document(k_document, this, file_name); }
lmx::elmx_error ColorSpaceYBR::marshal(std::string* text) const { return lmx::marshal_document(k_document, this, text); }
lmx::elmx_error ColorSpaceYBR::marshal(std::ostream& stream) const { return lmx::marshal_document(k_document, this, stream); }
lmx::elmx_error ColorSpaceYBR::marshal(lmx::c_xml_writer& writer, const char* name) const { writer.conditionally_select_ns_map(k_ns_map); return ColorSpaceYBRType::marshal(writer, name); }
lmx::elmx_error ColorSpaceYBR::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return ColorSpaceYBRType::unmarshal(reader, name); }

// SpotColorType

constexpr s_item SpotColorType::k_items[] = {
    {item_kind::element, value_kind::text, use_required | use_name, ELMX_WS_PRESERVE, "Vyr:Name", element("Name"), LMX_OFFSET(SpotColorType, m_Name, element, text), LMX_FLAG(SpotColorType, m_isset_Name), nullptr, &facets::NonEmptyString},
    {item_kind::element, value_kind::number, use_required, ELMX_WS_COLLAPSE, "Vyr:Percentage", element("Percentage"), LMX_OFFSET(SpotColorType, m_Percentage, element, number), LMX_FLAG(SpotColorType, m_isset_Percentage), nullptr, &facets::Percentage},
};
constinit const s_class SpotColorType::k_class = {
    .name = "SpotColorType",
    .qualified_name = "Vyr:SpotColorType",
    .content = content_kind::children,
    .names = &k_names,
    .ns_map = k_ns_map,
    .elements = k_items,
    .operations = &k_operations<SpotColorType>,
};

SpotColorType::SpotColorType() = default;
SpotColorType::SpotColorType(const SpotColorType& other) { lmx::copy(k_class, this, &other); }
SpotColorType::~SpotColorType() = default;
SpotColorType& SpotColorType::operator=(const SpotColorType& other) { SpotColorType copy(other); swap(copy); return *this; }
lmx::elmx_error SpotColorType::marshal(lmx::c_xml_writer& writer, const char* name) const { return lmx::marshal_element(k_class, this, writer, name); }
lmx::elmx_error SpotColorType::unmarshal(lmx::c_xml_reader& reader, const std::string& name) { return lmx::unmarshal_element(k_class, this, reader, name); }
void SpotColorType::swap(SpotColorType& other) { lmx::swap(k_class, this, &other); }
void SpotColorType::reset() { SpotColorType fresh; lmx::exchange(k_class, this, &fresh); }
bool SpotColorType::is_occurs_ok() const { return lmx::is_occurs_ok(k_class, this); }
lmx::elmx_error SpotColorType::set_Name(const std::u16string& value) { return lmx::set_item(k_class, k_items[item_Name], this, value); }
lmx::elmx_error SpotColorType::set_Percentage(double value) { return lmx::set_item(k_class, k_items[item_Percentage], this, value); }

}  // namespace com_vyrgraph_v2
