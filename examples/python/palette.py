#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Makes a palette of a table with a column for each wavelength: palette.py TABLE.csv DOCUMENT

The first column has the names of the colours, the head of each other one its wavelength in nanometres.
"""

import csv
import sys
from datetime import datetime, timezone

import vyr


def read_table(name):
    with open(name, newline="", encoding="utf-8") as file:
        head, *rows = csv.reader(file)
    return [float(text) for text in head[1:]], {row[0]: [float(text) for text in row[1:]] for row in rows}


def make_document(wavelengths, rows):
    now = datetime.now(timezone.utc).replace(microsecond=0)
    document = vyr.Document()
    header = document.create_preamble().create_header()
    header.creator = "palette.py"
    header.creator_version = "1.0"
    header.purpose = "Spectra of a table"
    header.change_history.append(now)
    palette = document.palettes.add(palette_name="Table", change_history=[now])
    colors = palette.color_sets.add(color_set_name="All", change_history=[now]).colors
    for name, values in rows.items():
        color = colors.add(color_name=name, change_history=[now])
        spectral = color.color_spaces.add().choose_spectral(change_history=[now])
        # That nobody knows how it was measured.
        spectral.create_color_space_specification_spectrum_spectral().set_nil()
        spectral.set_arrays(wavelengths, values)
    return document


def main(table, name):
    document = make_document(*read_table(table))
    document.save(name)
    print(f"{sum(1 for _ in vyr.colors(vyr.load(name)))} colours in {name}")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
