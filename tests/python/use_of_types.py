# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""What a type checker makes of a program; never run. A line with `type: ignore` must be an error."""

from datetime import datetime
from typing import Optional

import vyr

document = vyr.load("inks.vyr")
for color in document.palettes[0].color_sets[0].colors:
    name: str = color.color_name
    lab: Optional[vyr.ColorSpaceCIELabType] = color.color_spaces.lab
    light: float = color.color_spaces.lab.l  # type: ignore[union-attr]
    if lab is not None:
        light = lab.l
        lab.l = "much"  # type: ignore[assignment]
    color.comments = None
    color.color_name = None  # type: ignore[assignment]
    color.colour_name  # type: ignore[attr-defined]
    color.change_history = ["2024-05-01T09:30:00Z", datetime.now()]
    if color.color_spaces.spectral:
        wavelengths, values = color.color_spaces.spectral.arrays()
        color.color_spaces.spectral.set_arrays(wavelengths, values * 0.5)
    for space in color.color_spaces:
        if space.chosen == "srgb" and space.srgb is not None:
            depth: Optional[vyr.ColorDepthKind] = space.srgb.color_depth
            depth_text: str = space.srgb.color_depth.text  # type: ignore[union-attr]
            space.srgb.color_depth = None  # type: ignore[assignment]
            space.srgb.color_depth = "ColorDepth_8"
made = vyr.ColorType(color_name="Red", comments="warm", color_spaces=[vyr.ColorSpaceCIELabType(l=50, a=60, b=40)])
vyr.ColorType(color_name=1)  # type: ignore[arg-type]
made.create_owner(companies=["Ink & Co"]).companies.append("More")
described: str = vyr.schema_name(vyr.ColorType.color_name)
