#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Plots the spectra of a document: spectra.py DOCUMENT PICTURE

The curve of a colour that has an sRGB value too is drawn in it.
"""

import sys

import matplotlib

matplotlib.use("Agg")
from matplotlib import pyplot

import vyr


def main(document_name, picture):
    document = vyr.load(document_name)
    shades = {color.color_name: color.color_spaces.srgb for color in vyr.colors(document)}
    _, axes = pyplot.subplots(figsize=(8, 5), layout="constrained")
    count = 0
    for group in vyr.spectra_groups(document):
        for name, row in zip(group.names, group.values):
            rgb = shades[name]
            shade = None if rgb is None else (rgb.red, rgb.green, rgb.blue)
            axes.plot(group.wavelengths, row, color=shade, label=name if count < 12 else None)
            count += 1
    axes.set(xlabel="Wavelength in nm", ylabel="Reflectance factor", title=f"{count} spectra", ylim=(0, None))
    if count:
        axes.legend(fontsize="small")
    pyplot.savefig(picture, dpi=100)
    print(f"{count} spectra in {picture}")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
