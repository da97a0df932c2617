// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Reads a document and prints what is in it: palettes, colour sets, colours with the values that this program knows,
// and quality-control records.
//
//     print <document.vyr or .vyrz>

#include <iostream>

#include "schema/Vyr.h"

namespace vyr = com_vyrgraph_v2;

namespace {

std::string narrow(const std::u16string& text) { return lmx::convert_to_narrow(text); }

// A colour has one value or more, each in a colour space of its own. All parameters are constant references: the
// constant accessors look, the others make.
void print_value(const vyr::sg_ColorSpace& value) {
    switch (value.getchosen()) {
        case vyr::sg_ColorSpace::e_ColorSpaceSRGB: {
            const vyr::ColorSpaceSRGBType& rgb = value.get_ColorSpaceSRGB();
            std::cout << " sRGB(" << rgb.get_Red() << ", " << rgb.get_Green() << ", " << rgb.get_Blue() << ")";
            break;
        }
        case vyr::sg_ColorSpace::e_ColorSpaceCIELab: {
            const vyr::ColorSpaceCIELabType& lab = value.get_ColorSpaceCIELab();
            std::cout << " Lab(" << lab.get_L() << ", " << lab.get_A() << ", " << lab.get_B() << ")";
            break;
        }
        case vyr::sg_ColorSpace::e_ColorSpaceSpectral: {
            const vyr::ColorSpaceSpectralType& spectrum = value.get_ColorSpaceSpectral();
            const std::size_t count = spectrum.size_ReflectancePoint();
            std::cout << " spectrum of " << count << " points, ";
            std::cout << spectrum.get_ReflectancePoint(0).get_Wavelength() << " to ";
            std::cout << spectrum.get_ReflectancePoint(count - 1).get_Wavelength() << " nm";
            break;
        }
        default:
            std::cout << " value of kind " << value.getchosen();
    }
}

void print_color(const vyr::ColorType& color, const char* indent) {
    std::cout << indent << narrow(color.get_ColorName()) << ":";
    for (std::size_t i = 0; i < color.size_ColorSpace(); ++i) print_value(color.get_ColorSpace(i));
    std::cout << "\n";
}

void print_palette(const vyr::PaletteType& palette) {
    std::cout << "palette " << narrow(palette.get_PaletteName()) << "\n";
    for (std::size_t i = 0; i < palette.size_ColorSet(); ++i) {
        const vyr::ColorSetType& set = palette.get_ColorSet(i);
        std::cout << "  set " << narrow(set.get_ColorSetName()) << "\n";
        for (std::size_t k = 0; k < set.size_Color(); ++k) print_color(set.get_Color(k), "    ");
    }
}

void print_record(const vyr::ColorQualityControlType& record) {
    std::cout << "record " << narrow(record.get_Name()) << "\n";
    for (std::size_t i = 0; i < record.size_StandardAndMeasurement(); ++i) {
        const vyr::StandardAndMeasurementType& pair = record.get_StandardAndMeasurement(i);
        print_color(pair.get_Standard().get_Color(), "  standard ");
        for (std::size_t k = 0; k < pair.size_Measurement(); ++k) {
            const vyr::Measurement& measurement = pair.get_Measurement(k);
            print_color(measurement.get_Color(), "  measured ");
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: print <document>\n";
        return 2;
    }
    vyr::Vyr document;
    const vyr::DocumentReport report = vyr::loadFileWithReport(document, std::string(argv[1]));
    if (!report.isOk()) {
        std::cerr << report.toString();
        return 1;
    }
    const vyr::Vyr& loaded = document;
    std::cout << "made by " << narrow(loaded.get_Preamble().get_Header().get_Creator()) << "\n";
    for (std::size_t i = 0; i < loaded.size_Color(); ++i) print_color(loaded.get_Color(i), "");
    for (std::size_t i = 0; i < loaded.size_Palette(); ++i) print_palette(loaded.get_Palette(i));
    for (std::size_t i = 0; i < loaded.size_ColorQualityControl(); ++i)
        print_record(loaded.get_ColorQualityControl(i));
}
