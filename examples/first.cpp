// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include <iostream>

#include "schema/Vyr.h"

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    com_vyrgraph_v2::Vyr document;
    const auto report = com_vyrgraph_v2::loadFileWithReport(document, std::string(argv[1]));
    if (!report.isOk()) {
        std::cerr << report.toString();
        return 1;
    }
    for (std::size_t i = 0; i < document.size_Palette(); ++i) {
        const com_vyrgraph_v2::PaletteType& palette = document.get_Palette(i);
        std::cout << lmx::convert_to_narrow(palette.get_PaletteName()) << ": ";
        std::cout << palette.size_ColorSet() << " colour set(s)\n";
    }
}
