#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The blocks of docs/python.md as a program: guides.py PALETTE. Run by the tests, in a folder of their own."""

import sys
from datetime import datetime, timezone

import vyr

path = sys.argv[1]

# First

document = vyr.load(path)
for color in document.palettes[0].color_sets[0].colors[:2]:
    print(color.color_name, color.color_spaces.srgb.red)

# Making

now = datetime.now(timezone.utc).replace(microsecond=0)
made = vyr.Document()
header = made.create_preamble().create_header()
header.creator = "My program"
header.creator_version = "1.0"
header.purpose = "Inks of the house"
header.change_history.append(now)
palette = made.palettes.add(palette_name="Inks", change_history=[now])
colors = palette.color_sets.add(color_set_name="All", change_history=[now]).colors
color = colors.add(color_name="Warm red", change_history=[now])
lab = vyr.ColorSpaceCIELabType(l=58.1, a=72.5, b=51.3, change_history=[now])
lab.create_color_space_specification_spectrum_tristimulus().set_nil()
color.color_spaces.append(lab)

# Changing

color.comments = "Seen at noon"
color.comments = None  # not set any more
if color.owner is None:  # looking makes nothing
    color.create_owner().companies.append("Ink & Co")
color.owner = None

# Choices

for space in color.color_spaces:
    print(space.chosen, space.held)
second = color.color_spaces.add()
second.choose_cmyk(cyan=0, magenta=87, yellow=80, black=0)
second.choose_srgb(red=0.976, green=0.259, blue=0.227, color_depth="ColorDepth_8")
print(second.cmyk, second.srgb.color_depth.text)
color.color_spaces.pop()  # a document would need more of it

# Spectra

if len(sys.argv) > 2:  # there is numpy
    spectral = color.color_spaces.add().choose_spectral(change_history=[now])
    spectral.create_color_space_specification_spectrum_spectral().set_nil()
    spectral.set_arrays([400, 500, 600, 700], [0.05, 0.06, 0.47, 0.77])
    wavelengths, values = color.color_spaces.spectral.arrays()
    names, wavelengths, matrix = vyr.spectra(made)
    names, columns, numbers = vyr.values(made, "lab")
    for group in vyr.spectra_groups(made):
        print(group.wavelengths, group.values.shape)
    vyr.set_values(made, "lab", numbers * [1, 0.5, 0.5])

# Files

made.save("inks.vyr")
made.save("inks.vyrz")
data = made.to_bytes()
again = vyr.loads(data)

# Failures

try:
    lab.l = 500
except vyr.FormatError as error:
    print(error.code, error)
report = vyr.check(path)
for fault in report.faults:
    print(fault.line, fault.column, fault.path, fault.text, fault.detail)
try:
    vyr.loads(data.replace(b"72.5", b"far"))
except vyr.DocumentError as error:
    print(error.faults[0].path)

# What is removed

first = colors[0]
kept = first.copy()
del colors[0]
try:
    print(first.color_name)
except vyr.RemovedError as error:
    print(error, kept.color_name)

# Names

print(vyr.schema_name(vyr.ColorType.color_name), vyr.schema_name(vyr.IlluminantKind.Illuminant_D50))
print(kept.change_history.texts[0])
