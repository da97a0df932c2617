// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The walk of Walk.cs over the same document, in C++: what it is measured against.
///
///     walk make <new.vyr> <colours>
///     walk <palette.vyr>                prints the sum of all numbers and the processor time in milliseconds

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

#include "bench/palette_text.h"
#include "schema/Vyr.h"

namespace vyr = com_vyrgraph_v2;

int main(int argc, char** argv) {
    if (argc == 4 && std::string_view(argv[1]) == "make") {
        std::ofstream(argv[2]) << vyr_bench::palette_text(std::strtoul(argv[3], nullptr, 10));
        return 0;
    }
    if (argc != 2) return 2;
    vyr::Vyr document;
    const auto report = vyr::loadFileWithReport(document, std::string(argv[1]));
    if (!report.isOk()) {
        std::cerr << report.toString();
        return 1;
    }
    const std::clock_t loaded = std::clock();
    const vyr::Vyr& look = document;
    double sum = 0;
    std::size_t units = 0;
    for (std::size_t p = 0; p < look.size_Palette(); ++p) {
        const vyr::PaletteType& palette = look.get_Palette(p);
        for (std::size_t s = 0; s < palette.size_ColorSet(); ++s) {
            const vyr::ColorSetType& set = palette.get_ColorSet(s);
            for (std::size_t c = 0; c < set.size_Color(); ++c) {
                const vyr::ColorType& color = set.get_Color(c);
                units += color.get_ColorName().size();
                for (std::size_t v = 0; v < color.size_ColorSpace(); ++v) {
                    const vyr::sg_ColorSpace& value = color.get_ColorSpace(v);
                    if (value.getchosen() == vyr::sg_ColorSpace::e_ColorSpaceSRGB) {
                        const vyr::ColorSpaceSRGBType& rgb = value.get_ColorSpaceSRGB();
                        sum += rgb.get_Red() + rgb.get_Green() + rgb.get_Blue();
                        sum += static_cast<int>(rgb.getenum_ColorDepth());
                    } else if (value.getchosen() == vyr::sg_ColorSpace::e_ColorSpaceCIELab) {
                        const vyr::ColorSpaceCIELabType& lab = value.get_ColorSpaceCIELab();
                        sum += lab.get_L() + lab.get_A() + lab.get_B();
                        sum += static_cast<int>(
                            lab.get_ColorSpaceSpecificationSpectrumTristimulus().getenum_FieldOfView());
                    } else if (value.getchosen() == vyr::sg_ColorSpace::e_ColorSpaceSpectral) {
                        const vyr::ColorSpaceSpectralType& spectral = value.get_ColorSpaceSpectral();
                        for (std::size_t i = 0; i < spectral.size_ReflectancePoint(); ++i) {
                            const vyr::ReflectancePointType& point = spectral.get_ReflectancePoint(i);
                            sum += point.get_Wavelength() + point.get_ReflectancePointType();
                        }
                    }
                }
            }
        }
    }
    const std::clock_t walked = std::clock();
    const auto milliseconds = [](std::clock_t time) { return static_cast<double>(time) * 1000 / CLOCKS_PER_SEC; };
    std::fprintf(stderr, "C++: load %.0f, walk %.0f\n", milliseconds(loaded), milliseconds(walked - loaded));
    std::printf("%.6g %zu\n%.0f\n", sum, units, milliseconds(walked));
}
