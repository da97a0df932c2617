// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/colors.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

#include "schema/Vyr.h"
#include "tools/text.h"
#include "tools/typed_json.h"

namespace vyr_tool {

namespace {

using index = c_tree::index;
using lmx::value_kind;

/// What stands in a colour value beside the value.
constexpr std::string_view k_besides[] = {"ChangeHistory", "CustomAttribute", "ParentColorSpace"};

constexpr std::string_view k_spectrum[] = {"Spectrum"};
constexpr std::string_view k_spectrum_name[] = {"Spectrum", "@CustomTypeName"};
constexpr std::string_view k_emissive_type[] = {"EmissiveType"};
constexpr std::string_view k_emissive_mode[] = {"EmissiveMode"};
constexpr std::string_view k_illuminant[] = {"IlluminationOptions", "Illuminant"};
constexpr std::string_view k_illuminant_name[] = {"IlluminationOptions", "Illuminant", "@CustomName"};
constexpr std::string_view k_white_x[] = {"IlluminationOptions", "WhitePointChromaticity", "CoordinateX"};
constexpr std::string_view k_white_y[] = {"IlluminationOptions", "WhitePointChromaticity", "CoordinateY"};
constexpr std::string_view k_temperature[] = {"IlluminationOptions", "ColorTemperature"};
constexpr std::string_view k_illumination[] = {"IlluminationOptions", "@Description"};
constexpr std::string_view k_observer[] = {"FieldOfView"};
constexpr std::string_view k_sphere[] = {"GeometryChoice", "SphereGeometry"};
constexpr std::string_view k_angle[] = {"GeometryChoice", "Angle"};
constexpr std::string_view k_geometry[] = {"GeometryChoice", "UnknownGeometry"};
constexpr std::string_view k_bsdf_angle[] = {"GeometryChoice", "BSDFAngle", "IlluminantAngle"};
constexpr std::string_view k_bsdf_aspecular[] = {"GeometryChoice", "BSDFAngle", "Aspecular"};
constexpr std::string_view k_filter[] = {"DeviceFilter"};
constexpr std::string_view k_filter_name[] = {"DeviceFilter", "@CustomOrPartial"};
constexpr std::string_view k_polarization[] = {"DevicePolarization"};
constexpr std::string_view k_table[] = {"ASTM_Table"};
constexpr std::string_view k_gamma[] = {"Gamma"};
constexpr std::string_view k_status[] = {"DensityStatus"};
constexpr std::string_view k_manufacturer[] = {"Device", "Manufacturer"};
constexpr std::string_view k_model[] = {"Device", "Model"};
constexpr std::string_view k_serial[] = {"Device", "SerialNumber"};

constexpr s_condition k_conditions[] = {
    {"Illuminant", k_illuminant, "Illuminant_", "", "{}"},
    {"IlluminantName", k_illuminant_name, "", "", "{}"},
    {"WhitePointX", k_white_x, "", "", "white point x {}"},
    {"WhitePointY", k_white_y, "", "", "y {}"},
    {"ColorTemperature", k_temperature, "", "", "{} K"},
    {"Illumination", k_illumination, "", "", "{}"},
    {"Observer", k_observer, "FieldOfView_", "_Degree", "{} degrees"},
    {"Spectrum", k_spectrum, "Spectrum_", "", "{}"},
    {"SpectrumName", k_spectrum_name, "", "", "{}"},
    {"EmissiveType", k_emissive_type, "Emissive_", "", "emissive {}"},
    {"EmissiveMode", k_emissive_mode, "EmissiveMode_", "", "mode {}"},
    {"Sphere", k_sphere, "Sphere_", "", "sphere, specular {}"},
    {"Angle", k_angle, "", "", "angle {} degrees"},
    {"Geometry", k_geometry, "", "", "geometry {}"},
    {"BSDFIlluminantAngle", k_bsdf_angle, "", "", "illuminated at {} degrees"},
    {"BSDFAspecular", k_bsdf_aspecular, "", "", "aspecular {} degrees"},
    {"Filter", k_filter, "Filter_", "", "filter {}"},
    {"FilterName", k_filter_name, "", "", "{}"},
    {"Polarization", k_polarization, "", "", "polarized"},
    {"ASTM_Table", k_table, "", "", "{}"},
    {"Gamma", k_gamma, "", "", "gamma {}"},
    {"DensityStatus", k_status, "Status_", "", "density status {}"},
    {"DeviceManufacturer", k_manufacturer, "", "", "measured with {}"},
    {"DeviceModel", k_model, "", "", "{}"},
    {"DeviceSerialNumber", k_serial, "", "", "number {}"},
};
constexpr std::string_view k_backing_prefix = "Backing_";

bool is_class(const c_tree& tree, index node, const lmx::s_class& type) { return tree.type(node) == &type; }

/// The field that a condition's path leads to, if the specification has it.
std::optional<c_tree::field> find_field(const c_tree& tree, index node, std::span<const std::string_view> path) {
    for (const std::string_view step : path) {
        if (step.starts_with('@')) {
            for (std::size_t i = 0; i < tree.field_count(node); ++i) {
                const c_tree::field field = tree.get_field(node, i);
                if (field.name == step.substr(1)) return field;
            }
            return std::nullopt;
        }
        node = tree.child(node, step);
        if (node == 0) return std::nullopt;
    }
    for (std::size_t i = 0; i < tree.field_count(node); ++i) {
        const c_tree::field field = tree.get_field(node, i);
        if (field.name.empty()) return field;
    }
    return std::nullopt;
}

std::string without(std::string_view text, std::string_view prefix, std::string_view suffix) {
    if (text.starts_with(prefix)) text.remove_prefix(prefix.size());
    if (text.ends_with(suffix)) text.remove_suffix(suffix.size());
    return std::string(text);
}

std::string fill(std::string_view words, const std::string& value) {
    std::string text(words);
    constexpr std::string_view k_place = "{}";
    return text.replace(text.find(k_place), k_place.size(), value);
}

/// Of a colour in a quality-control record: the sample's backing.
void add_backing(const c_tree& tree, const s_color& color, s_conditions& conditions) {
    const index physical = color.record == 0 ? 0 : tree.child(color.record, "PhysicalSample");
    for (index i = physical + 1; physical != 0 && i < tree.end(physical); i = tree.end(i)) {
        const index backing = tree.child(i, k_backing);
        if (backing == 0) continue;
        const std::string text = without(tree.value(backing), k_backing_prefix, {});
        conditions.values.push_back({std::string(k_backing), text, "backing " + printable(text), value_kind::text});
    }
}

/// A measurement says with what device; its specifications need not repeat it.
void add_device(const c_tree& tree, const s_color& color, s_conditions& conditions) {
    constexpr std::string_view k_device = "Device";
    const index device = color.record == 0 ? 0 : tree.child(color.parent, k_device);
    const bool is_said = std::ranges::any_of(
        conditions.values, [](const s_conditions::s_value& value) { return value.name == "DeviceModel"; });
    if (device == 0 || is_said) return;
    for (const s_condition& condition : k_conditions) {
        if (condition.path.front() != k_device) continue;
        const std::string text(tree.value(tree.child(device, condition.path.back())));
        conditions.values.push_back(
            {std::string(condition.name), text, fill(condition.words, printable(text)), value_kind::text});
    }
}

}  // namespace

std::span<const s_condition> all_conditions() { return k_conditions; }

c_tree::index specification_of(const c_tree& tree, index value) {
    for (index i = value + 1; i < tree.end(value); i = tree.end(i)) {
        if (tree.name(i).starts_with(k_specification_prefix)) return i;
    }
    return 0;
}

bool is_condition(const c_tree& tree, index part) {
    const std::string_view name = tree.name(part);
    if (std::ranges::none_of(k_conditions, [&](const s_condition& one) { return one.path.front() == name; }))
        return false;
    // Of a device the conditions name three things.
    for (index i = part + 1; tree.type(part) == &com_vyrgraph_v2::DeviceType::k_class && i < tree.end(part);
         i = tree.end(i)) {
        const auto is_this = [&](const s_condition& one) {
            return one.path.front() == name && one.path.back() == tree.name(i);
        };
        if (std::ranges::none_of(k_conditions, is_this)) return false;
    }
    return true;
}

std::vector<s_color> find_colors(const c_tree& tree) {
    std::vector<s_color> colors;
    std::vector<index> open;
    c_steps steps(tree);
    for (index node = 0; node < tree.size(); ++node) {
        while (!open.empty() && tree.end(open.back()) <= node) open.pop_back();
        if (is_class(tree, node, com_vyrgraph_v2::ColorType::k_class)) {
            s_color color{node, open.back(), 0, 0, 0, {}};
            for (const index outer : open) {
                if (is_class(tree, outer, com_vyrgraph_v2::PaletteType::k_class)) color.palette = outer;
                if (is_class(tree, outer, com_vyrgraph_v2::ColorSetType::k_class)) color.set = outer;
                if (is_class(tree, outer, com_vyrgraph_v2::ColorQualityControlType::k_class)) color.record = outer;
            }
            if (!colors.empty() && colors.back().parent == color.parent) {
                color.path = colors.back().path;
            } else {
                for (std::size_t i = 1; i < open.size(); ++i) {
                    color.path = join(color.path, steps.step(open[i - 1], open[i]));
                }
            }
            colors.push_back(std::move(color));
        }
        if (!tree.is_leaf(node)) open.push_back(node);
    }
    return colors;
}

std::vector<index> values_of(const c_tree& tree, index color) {
    std::vector<index> values;
    for (index i = color + 1; i < tree.end(color); i = tree.end(i)) {
        if (tree.member(i) != nullptr && tree.member(i)->is_group_list()) values.push_back(i);
    }
    return values;
}

std::string_view space_of(const c_tree& tree, index value) { return tree.name(value).substr(k_space_prefix.size()); }

std::vector<index> parts_of(const c_tree& tree, index value) {
    std::vector<index> parts;
    for (index i = value + 1; i < tree.end(value); i = tree.end(i)) {
        const std::string_view name = tree.name(i);
        const bool is_beside = std::ranges::find(k_besides, name) != std::end(k_besides);
        if (!is_beside && !name.starts_with(k_specification_prefix)) parts.push_back(i);
    }
    return parts;
}

bool is_spectral_point(const c_tree& tree, index node) {
    if (tree.type(node) == nullptr) return false;
    const c_members& members = c_members::of(*tree.type(node));
    return members.content() != nullptr && members.attribute("Wavelength") != nullptr;
}

std::string s_conditions::in_words() const {
    std::string text;
    for (const s_value& value : values) text += (text.empty() ? "" : ", ") + value.words;
    if (source == "unknown") text = text.empty() ? "conditions unknown" : "conditions unknown, " + text;
    if (source == "ColorSet") text += " (default of the colour set)";
    if (source == "Palette") text += " (default of the palette)";
    return text;
}

json s_conditions::to_json() const {
    json object = {{"source", source}};
    for (const s_value& value : values) object[value.name] = typed_value(value.text, value.kind);
    return object;
}

s_conditions conditions_in(const c_tree& tree, index specification) {
    s_conditions conditions;
    for (const s_condition& condition : k_conditions) {
        const std::optional<c_tree::field> field = find_field(tree, specification, condition.path);
        if (!field) continue;
        const std::string text = without(field->value, condition.prefix, condition.suffix);
        const bool is_said = field->kind == value_kind::boolean;
        conditions.values.push_back({std::string(condition.name), text,
                                     is_said ? (text == "true" ? "" : "not ") + std::string(condition.words)
                                             : fill(condition.words, shown_value(text, field->kind)),
                                     field->kind});
    }
    return conditions;
}

s_conditions conditions_of(const c_tree& tree, const s_color& color, index value) {
    const index own = specification_of(tree, value);
    if (own == 0) return {};
    s_conditions conditions;
    if (!tree.is_nil(own)) {
        conditions = conditions_in(tree, own);
        conditions.source = "value";
    }
    for (const index collection : {color.set, color.palette}) {
        if (collection == 0 || !conditions.source.empty()) continue;
        const index defaults = tree.child(collection, k_defaults);
        const index specification = defaults == 0 ? 0 : tree.child(defaults, tree.name(own));
        if (specification == 0 || tree.is_nil(specification)) continue;
        conditions = conditions_in(tree, specification);
        conditions.source = tree.name(collection);
    }
    if (conditions.source.empty()) conditions.source = "unknown";
    add_device(tree, color, conditions);
    add_backing(tree, color, conditions);
    return conditions;
}

std::string srgb_of(const c_tree& tree, index color, char separator) {
    constexpr double k_highest = 255;
    const index value = tree.child(color, "ColorSpaceSRGB");
    if (value == 0) return {};
    std::string text;
    for (const std::string_view channel : {"Red", "Green", "Blue"}) {
        const json number = typed_value(tree.value(tree.child(value, channel)), value_kind::number);
        const double share = number.is_number() ? number.get<double>() : 0;
        if (!text.empty()) text += separator;
        text += std::to_string(std::lround(share * k_highest));
    }
    return text;
}

std::string record_text(const c_tree& tree, index node) {
    std::string text;
    const auto add = [&](const std::string& label, const std::string& value) {
        text += (text.empty() ? "" : ", ") + label + (label.empty() || value.empty() ? "" : " ") + value;
    };
    for (std::size_t i = 0; i < tree.field_count(node); ++i) {
        const c_tree::field field = tree.get_field(node, i);
        if (field.name.starts_with("xsi:")) continue;
        add(printable(field.name), shown_value(field.value, field.kind));
    }
    if (tree.is_nil(node)) add("", "unknown");
    for (index i = node + 1; i < tree.end(node); i = tree.end(i)) {
        if (tree.name(i) == "ChangeHistory" || tree.name(i) == "CustomAttribute") continue;
        const std::string inner = record_text(tree, i);
        const bool is_list_of_one = tree.is_leaf(i);
        add(printable(tree.name(i)), is_list_of_one || inner.empty() ? inner : "(" + inner + ")");
    }
    return text;
}

std::string shown_value(std::string_view text, value_kind kind) {
    double number = 0;
    return kind == value_kind::number && read_number(text, number) ? short_number(number) : printable(text);
}

}  // namespace vyr_tool
