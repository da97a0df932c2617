// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "tools/info.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iomanip>
#include <string>
#include <utility>
#include <vector>

#include "tools/document_file.h"

namespace vyr_tool {

namespace {

using namespace com_vyrgraph_v2;

/// A number as a table shows it: six significant digits are more than any eye tells apart.
std::string short_number(double number) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.6g", number);
    return text.data();
}

/// The channels of a value class, in the order of the document. `Get` is the constant accessor of the group.
template <class Value, const Value& (sg_ColorSpace::*Get)() const, auto... Channel>
std::string channels(const sg_ColorSpace& space) {
    const Value& value = (space.*Get)();
    std::string text;
    ((text.append(text.empty() ? "" : " ").append(short_number((value.*Channel)()))), ...);
    return text;
}

template <class Value, const Value& (sg_ColorSpace::*Get)() const>
std::string rgb(const sg_ColorSpace& space) {
    return channels<Value, Get, &Value::get_Red, &Value::get_Green, &Value::get_Blue>(space);
}

template <class Value, const Value& (sg_ColorSpace::*Get)() const>
std::string inks(const sg_ColorSpace& space) {
    return channels<Value, Get, &Value::get_Cyan, &Value::get_Magenta, &Value::get_Yellow, &Value::get_Black>(space);
}

std::string points(std::size_t count) { return std::to_string(count) + (count == 1 ? " point" : " points"); }

std::string reflectance(const sg_ColorSpace& space) {
    return points(space.get_ColorSpaceSpectral().size_ReflectancePoint());
}

std::string emission(const sg_ColorSpace& space) {
    return points(space.get_ColorSpaceEmissiveSpectral().size_EmissiveSpectralPoint());
}

std::string ncs_name(const sg_ColorSpace& space) { return narrow(space.get_ColorSpaceNCS().get_ColorName()); }

std::string munsell_name(const sg_ColorSpace& space) { return narrow(space.get_ColorSpaceMunsell().get_ColorName()); }

std::string name_only(const sg_ColorSpace&) { return {}; }

struct space_row {
    const char* name;
    std::string (*value)(const sg_ColorSpace&);
};

#define VYR_SPACE(X) X##Type, &sg_ColorSpace::get_##X
#define VYR_CHANNELS(X, A, B, C) channels<VYR_SPACE(X), &X##Type::get_##A, &X##Type::get_##B, &X##Type::get_##C>

/// One row per member of the group, at its chosen number.
constexpr space_row k_spaces[] = {
    {"recipe", name_only},
    {"TINTORA", name_only},
    {"generic", name_only},
    {"emissive generic", name_only},
    {"density", name_only},
    {"RGB", rgb<VYR_SPACE(ColorSpaceRGB)>},
    {"sRGB", rgb<VYR_SPACE(ColorSpaceSRGB)>},
    {"Adobe RGB", rgb<VYR_SPACE(ColorSpaceAdobeRGB)>},
    {"CMYK+N", inks<VYR_SPACE(ColorSpaceCMYKPlusN)>},
    {"Adobe Wide Gamut RGB", rgb<VYR_SPACE(ColorSpaceAdobeWideGamutRGB)>},
    {"spectrum", reflectance},
    {"emissive spectrum", emission},
    {"CIELab", VYR_CHANNELS(ColorSpaceCIELab, L, A, B)},
    {"CIELCh", VYR_CHANNELS(ColorSpaceCIELCh, L, C, H)},
    {"CIEXYZ", VYR_CHANNELS(ColorSpaceCIEXYZ, X, Y, Z)},
    {"emissive CIEXYZ", VYR_CHANNELS(ColorSpaceEmissiveCIEXYZ, X, Y, Z)},
    {"CIExyY", VYR_CHANNELS(ColorSpaceCIExyY, X, Y, CapY)},
    {"emissive CIExyY", VYR_CHANNELS(ColorSpaceEmissiveCIExyY, X, Y, CapY)},
    {"CIELuv", VYR_CHANNELS(ColorSpaceCIELuv, L, U, V)},
    {"HSL", VYR_CHANNELS(ColorSpaceHSL, Hue, Saturation, Lightness)},
    {"HSV", VYR_CHANNELS(ColorSpaceHSV, Hue, Saturation, Value)},
    {"CMYK", inks<VYR_SPACE(ColorSpaceCMYK)>},
    {"TINTORA octavantic", inks<VYR_SPACE(ColorSpaceTINTORAOctavantic)>},
    {"YUV", VYR_CHANNELS(ColorSpaceYUV, Y, U, V)},
    {"YIQ", VYR_CHANNELS(ColorSpaceYIQ, Y, I, Q)},
    {"YBR", VYR_CHANNELS(ColorSpaceYBR, Y, B, R)},
    {"NCS", ncs_name},
    {"Munsell", munsell_name},
};

#undef VYR_CHANNELS
#undef VYR_SPACE

constexpr std::size_t k_space_count = std::size(k_spaces);
static_assert(k_space_count == sg_ColorSpace::e_ColorSpaceMunsell + 1 && sg_ColorSpace::e_ColorSpaceSRGB == 6 &&
                  sg_ColorSpace::e_ColorSpaceCIELab == 12 && sg_ColorSpace::e_ColorSpaceCMYK == 21,
              "the rows follow the numbers of the group's members");

struct counts {
    std::size_t color_sets = 0;
    std::size_t palette_colors = 0;
    std::size_t standards_and_measurements = 0;
    std::size_t measurements = 0;
    std::size_t tolerances = 0;
    std::array<std::size_t, k_space_count> values{};
};

void count_values(const ColorType& color, counts& total) {
    for (std::size_t i = 0; i < color.size_ColorSpace(); ++i) {
        const auto chosen = static_cast<std::size_t>(color.get_ColorSpace(i).getchosen());
        // A value may be missing although its holder is there.
        if (chosen < k_space_count) ++total.values[chosen];
    }
}

void count_palette(const PaletteType& palette, counts& total) {
    total.color_sets += palette.size_ColorSet();
    for (std::size_t i = 0; i < palette.size_ColorSet(); ++i) {
        const ColorSetType& set = palette.get_ColorSet(i);
        total.palette_colors += set.size_Color();
        for (std::size_t j = 0; j < set.size_Color(); ++j) count_values(set.get_Color(j), total);
    }
}

void count_quality_control(const ColorQualityControlType& record, counts& total) {
    total.standards_and_measurements += record.size_StandardAndMeasurement();
    total.tolerances += record.size_Tolerance();
    for (std::size_t i = 0; i < record.size_StandardAndMeasurement(); ++i) {
        const StandardAndMeasurementType& pair = record.get_StandardAndMeasurement(i);
        total.measurements += pair.size_Measurement();
        total.tolerances += pair.get_Standard().size_Tolerance();
        count_values(pair.get_Standard().get_Color(), total);
        for (std::size_t j = 0; j < pair.size_Measurement(); ++j) {
            count_values(pair.get_Measurement(j).get_Color(), total);
        }
    }
}

void print_counts(const Vyr& document, std::ostream& stream) {
    counts total;
    for (std::size_t i = 0; i < document.size_Color(); ++i) count_values(document.get_Color(i), total);
    for (std::size_t i = 0; i < document.size_Palette(); ++i) count_palette(document.get_Palette(i), total);
    for (std::size_t i = 0; i < document.size_ColorQualityControl(); ++i) {
        count_quality_control(document.get_ColorQualityControl(i), total);
    }
    const std::pair<const char*, std::size_t> rows[] = {
        {"loose colours", document.size_Color()},
        {"palettes", document.size_Palette()},
        {"colour sets", total.color_sets},
        {"colours in sets", total.palette_colors},
        {"quality-control records", document.size_ColorQualityControl()},
        {"standards", total.standards_and_measurements},
        {"measurements", total.measurements},
        {"tolerances", total.tolerances},
    };
    for (const auto& [name, count] : rows) stream << std::setw(8) << count << "  " << name << '\n';
    for (std::size_t i = 0; i < k_space_count; ++i) {
        if (total.values[i] != 0)
            stream << std::setw(8) << total.values[i] << "  values in " << k_spaces[i].name << '\n';
    }
}

/// Characters of a UTF-8 text; a column is that wide in the scripts that palettes are mostly named in.
std::size_t width(const std::string& text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string values_of(const ColorType& color) {
    std::string text;
    for (std::size_t i = 0; i < color.size_ColorSpace(); ++i) {
        const sg_ColorSpace& space = color.get_ColorSpace(i);
        const auto chosen = static_cast<std::size_t>(space.getchosen());
        if (chosen >= k_space_count) continue;
        const std::string value = k_spaces[chosen].value(space);
        text.append(text.empty() ? "" : "; ").append(k_spaces[chosen].name);
        if (!value.empty()) text.append(" ").append(value);
    }
    return text;
}

void print_colors(const ColorSetType& set, std::ostream& stream) {
    std::vector<std::pair<std::string, std::string>> rows;
    std::size_t widest = 0;
    for (std::size_t i = 0; i < set.size_Color(); ++i) {
        const ColorType& color = set.get_Color(i);
        rows.emplace_back(narrow(color.get_ColorName()), values_of(color));
        widest = std::max(widest, width(rows.back().first));
    }
    for (const auto& [name, values] : rows) {
        stream << "    " << name << std::string(widest - width(name) + 2, ' ') << values << '\n';
    }
}

}  // namespace

void print_info(const Vyr& document, std::ostream& stream) {
    print_counts(document, stream);
    for (std::size_t i = 0; i < document.size_Palette(); ++i) {
        const PaletteType& palette = document.get_Palette(i);
        stream << "\npalette " << narrow(palette.get_PaletteName()) << '\n';
        for (std::size_t j = 0; j < palette.size_ColorSet(); ++j) {
            const ColorSetType& set = palette.get_ColorSet(j);
            stream << "  set " << narrow(set.get_ColorSetName()) << ": " << set.size_Color() << " colours\n";
            print_colors(set, stream);
        }
    }
}

}  // namespace vyr_tool
