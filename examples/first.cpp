// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#include <iostream>

#include "schema/Vyr.h"

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    lmx::c_xml_reader_file reader(argv[1]);
    com_vyrgraph_v2::Vyr document;
    std::string text;
    if (!reader.is_open() || document.unmarshal(reader) != lmx::ELMX_OK) {
        std::cerr << reader.get_error_message(&text) << '\n';
        return 1;
    }
    for (std::size_t i = 0; i < document.size_Palette(); ++i) {
        const com_vyrgraph_v2::PaletteType& palette = document.get_Palette(i);
        std::cout << lmx::convert(&text, palette.get_PaletteName()) << ": ";
        std::cout << palette.size_ColorSet() << " colour set(s)\n";
    }
}
