// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Builds a palette from a table of names and sRGB values and saves it.
//
//     palette <table.csv> <new.vyr or .vyrz>
//
// Each line of the table is a name and three channels from 0 to 255.

#include <fstream>

#include "support.h"

namespace vyr = com_vyrgraph_v2;
using example::demand;

namespace {

// sRGB is defined for D65 and the 2 degree observer; a value says so itself.
void set_conditions(vyr::ColorSpaceSpecificationSpectrumTristimulus& conditions) {
    demand(conditions.get_DeviceFilter().set_DeviceFilterType(u"Filter_None"), "filter");
    demand(conditions.get_DevicePolarization().set_DevicePolarization(false), "polarisation");
    demand(conditions.append_ChangeHistory(lmx::c_datetime::now()), "time");
    demand(conditions.get_Spectrum().set_SpectrumType(u"Spectrum_Reflectance"), "quantity");
    demand(conditions.get_IlluminationOptions().get_Illuminant().set_Illuminant(u"Illuminant_D65"), "illuminant");
    demand(conditions.set_FieldOfView(u"FieldOfView_2_Degree"), "observer");
}

void add_color(vyr::ColorSetType& set, const std::vector<std::string>& fields) {
    if (fields.size() != 4) throw std::runtime_error("a line has a name and three channels");
    demand(set.append_Color(), "colour");
    vyr::ColorType& color = set.back_Color();
    demand(color.set_ColorName(lmx::convert_to_wide(fields[0])), "name");
    demand(color.append_ChangeHistory(lmx::c_datetime::now()), "time");

    demand(color.append_ColorSpace(), "value");
    vyr::ColorSpaceSRGBType& rgb = color.back_ColorSpace().get_ColorSpaceSRGB();
    demand(rgb.append_ChangeHistory(lmx::c_datetime::now()), "time");
    set_conditions(rgb.get_ColorSpaceSpecificationSpectrumTristimulus());
    // A channel over 255 is over 1 here, and the setter refuses it.
    demand(rgb.set_Red(std::stod(fields[1]) / 255), fields[0] + ", red");
    demand(rgb.set_Green(std::stod(fields[2]) / 255), fields[0] + ", green");
    demand(rgb.set_Blue(std::stod(fields[3]) / 255), fields[0] + ", blue");
    demand(rgb.set_ColorDepth(u"ColorDepth_8"), "depth");
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc != 3) {
        std::cerr << "usage: palette <table.csv> <new.vyr>\n";
        return 2;
    }
    std::ifstream table(argv[1]);
    if (!table) throw std::runtime_error(std::string("can't open ") + argv[1]);

    vyr::Vyr document;
    example::fill_header(document, u"A palette made from a table");
    demand(document.append_Palette(), "palette");
    vyr::PaletteType& palette = document.back_Palette();
    demand(palette.set_PaletteName(u"Inks"), "name");
    demand(palette.append_ChangeHistory(lmx::c_datetime::now()), "time");
    demand(palette.append_ColorSet(), "set");
    vyr::ColorSetType& set = palette.back_ColorSet();
    demand(set.set_ColorSetName(u"All"), "name");
    demand(set.append_ChangeHistory(lmx::c_datetime::now()), "time");

    for (std::string line; std::getline(table, line);) add_color(set, example::split(line));
    return example::save(document, argv[2]);
} catch (const std::exception& failure) {
    std::cerr << "palette: " << failure.what() << "\n";
    return 1;
}
