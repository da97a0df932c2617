// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/palette_text.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <string_view>

namespace vyr_bench {

namespace {

/// Writes indented elements into one growing text.
class c_text {
public:
    explicit c_text(std::string& text) : m_text(text) {}

    void open(std::string_view tag, std::string_view attributes = {}) {
        line({"<Vyr:", tag, attributes, ">"});
        ++m_depth;
    }
    void close(std::string_view tag) {
        --m_depth;
        line({"</Vyr:", tag, ">"});
    }
    void value(std::string_view tag, std::string_view content, std::string_view attributes = {}) {
        line({"<Vyr:", tag, attributes, ">", content, "</Vyr:", tag, ">"});
    }
    void change_history() { value("ChangeHistory", "2024-05-01T09:30:00Z"); }

private:
    void line(std::initializer_list<std::string_view> pieces) {
        m_text.append(m_depth, '\t');
        for (const std::string_view piece : pieces) m_text += piece;
        m_text += '\n';
    }

    std::string& m_text;
    std::size_t m_depth = 0;
};

/// Numbers that look measured: a fixed sequence, so that every run has the same bytes.
class c_numbers {
public:
    /// A number in [low, high), printed with five significant digits; never zero.
    std::string next(double low, double high) {
        m_state = m_state * 6364136223846793005U + 1442695040888963407U;
        const double unit = static_cast<double>((m_state >> 40U) + 1) / static_cast<double>((1U << 24U) + 1);
        std::array<char, 32> text{};
        std::snprintf(text.data(), text.size(), "%.5g", low + unit * (high - low));
        return text.data();
    }

private:
    std::uint64_t m_state = 2024;
};

void add_information(c_text& text, std::string_view element) {
    text.open(element);
    text.value("SDKName", "Vyr2-LMX-3.7.6");
    text.value("SDKVersion", "1.0");
    text.close(element);
}

void add_preamble(c_text& text) {
    text.open("Preamble");
    text.open("Header");
    text.value("Creator", "Benchmark");
    text.value("CreatorVersion", "1.0");
    text.change_history();
    text.value("Purpose", "Measuring");
    add_information(text, "ReadSDKInformation");
    add_information(text, "WriteSDKInformation");
    text.close("Header");
    text.close("Preamble");
}

void open_specification(c_text& text, std::string_view element) {
    text.open(element);
    text.value("DeviceFilter", "Filter_None");
    text.value("DevicePolarization", "false");
    text.change_history();
    text.value("Spectrum", "Spectrum_Reflectance");
}

void add_tristimulus(c_text& text) {
    open_specification(text, "ColorSpaceSpecificationSpectrumTristimulus");
    text.open("IlluminationOptions");
    text.value("Illuminant", "Illuminant_D50");
    text.close("IlluminationOptions");
    text.value("FieldOfView", "FieldOfView_2_Degree");
    text.close("ColorSpaceSpecificationSpectrumTristimulus");
}

void add_color(c_text& text, c_numbers& numbers, std::size_t index) {
    text.open("Color", " ColorName=\"Colour " + std::to_string(index) + "\"");
    text.change_history();

    text.open("ColorSpaceSRGB");
    text.change_history();
    add_tristimulus(text);
    for (const char* channel : {"Red", "Green", "Blue"}) text.value(channel, numbers.next(0.001, 1));
    text.value("ColorDepth", "ColorDepth_8");
    text.close("ColorSpaceSRGB");

    text.open("ColorSpaceSpectral");
    text.change_history();
    open_specification(text, "ColorSpaceSpecificationSpectrumSpectral");
    text.open("GeometryChoice");
    text.value("Angle", "45");
    text.close("GeometryChoice");
    text.close("ColorSpaceSpecificationSpectrumSpectral");
    for (int wavelength = 380; wavelength <= 730; wavelength += 10) {
        text.value("ReflectancePoint", numbers.next(0.001, 1), " Wavelength=\"" + std::to_string(wavelength) + "\"");
    }
    text.close("ColorSpaceSpectral");

    text.open("ColorSpaceCIELab");
    text.change_history();
    add_tristimulus(text);
    text.value("L", numbers.next(1, 100));
    text.value("A", numbers.next(1, 100));
    text.value("B", numbers.next(-100, -1));
    text.close("ColorSpaceCIELab");

    text.close("Color");
}

}  // namespace

std::string palette_text(std::size_t colors) {
    std::string result = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    c_text text(result);
    c_numbers numbers;
    text.open("Vyr", " xmlns:Vyr=\"http://vyrgraph.com/v2\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"");
    add_preamble(text);
    text.open("Palette", " PaletteName=\"Measured\"");
    text.change_history();
    text.open("ColorSet", " ColorSetName=\"All\"");
    text.change_history();
    for (std::size_t i = 0; i < colors; ++i) add_color(text, numbers, i);
    text.close("ColorSet");
    text.close("Palette");
    text.close("Vyr");
    return result;
}

}  // namespace vyr_bench
