// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Turns a table of measured spectra into a document of loose colours, each with its reflectance spectrum.
//
//     spectra <table.csv> <new.vyr or .vyrz>
//
// The first line holds wavelengths in nanometres behind a word, the others a name and reflectance factors: 0.5 for 50
// %.

#include <fstream>

#include "support.h"

namespace vyr = com_vyrgraph_v2;
using example::demand;

namespace {

// What one needs to know to compare a spectrum with another: the geometry and the filter of the instrument.
void set_conditions(vyr::ColorSpaceSpecificationSpectrumSpectral& conditions) {
    demand(conditions.get_DeviceFilter().set_DeviceFilterType(u"Filter_None"), "filter");
    demand(conditions.get_DevicePolarization().set_DevicePolarization(false), "polarisation");
    demand(conditions.append_ChangeHistory(lmx::c_datetime::now()), "time");
    demand(conditions.get_Spectrum().set_SpectrumType(u"Spectrum_Reflectance"), "quantity");
    demand(conditions.get_GeometryChoice().set_Angle(45), "geometry");

    vyr::DeviceType& device = conditions.get_Device();
    demand(device.set_Manufacturer(u"Example Instruments"), "manufacturer");
    demand(device.set_Model(u"Spectro 1"), "model");
    demand(device.set_SerialNumber(u"0001"), "serial number");
}

void add_measurement(vyr::Vyr& document, const std::vector<double>& wavelengths,
                     const std::vector<std::string>& fields) {
    if (fields.size() != wavelengths.size() + 1) throw std::runtime_error("a line has another number of fields");
    demand(document.append_Color(), "colour");
    vyr::ColorType& color = document.back_Color();
    demand(color.set_ColorName(lmx::convert_to_wide(fields[0])), "name");
    demand(color.append_ChangeHistory(lmx::c_datetime::now()), "time");

    demand(color.append_ColorSpace(), "value");
    vyr::ColorSpaceSpectralType& spectrum = color.back_ColorSpace().get_ColorSpaceSpectral();
    demand(spectrum.append_ChangeHistory(lmx::c_datetime::now()), "time");
    set_conditions(spectrum.get_ColorSpaceSpecificationSpectrumSpectral());
    for (std::size_t i = 0; i < wavelengths.size(); ++i) {
        demand(spectrum.append_ReflectancePoint(), "point");
        vyr::ReflectancePointType& point = spectrum.back_ReflectancePoint();
        demand(point.set_Wavelength(wavelengths[i]), "wavelength");
        // The content of an element that has attributes too is named like its type.
        demand(point.set_ReflectancePointType(std::stod(fields[i + 1])), fields[0] + ", reflectance");
    }
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc != 3) {
        std::cerr << "usage: spectra <table.csv> <new.vyr>\n";
        return 2;
    }
    std::ifstream table(argv[1]);
    std::string line;
    if (!std::getline(table, line)) throw std::runtime_error(std::string("can't read ") + argv[1]);
    const std::vector<std::string> head = example::split(line);
    std::vector<double> wavelengths;
    for (std::size_t i = 1; i < head.size(); ++i) wavelengths.push_back(std::stod(head[i]));

    vyr::Vyr document;
    example::fill_header(document, u"Measured spectra");
    while (std::getline(table, line)) add_measurement(document, wavelengths, example::split(line));
    return example::save(document, argv[2]);
} catch (const std::exception& failure) {
    std::cerr << "spectra: " << failure.what() << "\n";
    return 1;
}
