# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""What a notebook shows: a table of an object's values, swatches and small curves."""

from __future__ import annotations

from html import escape
from typing import TYPE_CHECKING, Any

from . import _vyr
from ._objects import Choice, Object, read

if TYPE_CHECKING:
    from .generated import ColorType

MOST = 50  # rows
WIDTH, HEIGHT = 80, 20


def swatch(color: ColorType) -> str:
    """Of the sRGB value in the document; nothing is converted."""
    rgb = color.color_spaces.srgb
    if rgb is None:
        return ""
    channels = ", ".join(f"{round(255 * value)}" for value in (rgb.red, rgb.green, rgb.blue))
    style = f"display:inline-block;width:2em;height:1em;background:rgb({channels})"
    return f'<span style="{style}" title="sRGB {channels}"></span>'


def curve(color: ColorType) -> str:
    spectral = color.color_spaces.spectral
    points = sorted((p.wavelength, p.value) for p in spectral.reflectance_points) if spectral is not None else []
    if len(points) < 2 or points[0][0] == points[-1][0]:
        return ""
    first, last = points[0][0], points[-1][0]
    low, high = min(0.0, *(v for _, v in points)), max(1.0, *(v for _, v in points))
    scale, height = WIDTH / (last - first), HEIGHT / (high - low)
    line = " ".join(f"{(w - first) * scale:.1f},{(high - v) * height:.1f}" for w, v in points)
    return (f'<svg width="{WIDTH}" height="{HEIGHT}" viewBox="0 0 {WIDTH} {HEIGHT}">'
            f'<title>{first:g} to {last:g} nm</title>'
            f'<polyline points="{line}" fill="none" stroke="currentColor"/></svg>')


def numbers(instance: Object) -> str:
    """The simple values of an object in a line."""
    found = []
    for name, item in instance.properties().items():
        value = read(instance, name) if item.shape == "value" and item.kind is not str else None
        if value not in (None, ""):
            found.append(f"{name} {value:.6g}" if isinstance(value, float) else f"{name} {value}")
    return escape(", ".join(found))


def color_row(color: ColorType) -> str:
    spaces = "<br>".join(f"{space.chosen}: {numbers(space.held)}" for space in color.color_spaces if space.chosen)
    cells = (swatch(color), escape(color.color_name), spaces, curve(color))
    return f"<tr>{''.join(f'<td>{cell}</td>' for cell in cells)}</tr>"


def table(rows: list[str], left_out: int = 0) -> str:
    more = [f"<tr><td colspan=4>... {left_out} more</td></tr>"] if left_out > 0 else []
    return f"<table>{''.join(rows + more)}</table>"


def value_row(instance: Object, name: str, item: _vyr.Property[Any, Any]) -> str:
    value = read(instance, name)
    if value is None or value == "" or (item.shape == "list" and not len(value)):
        return ""
    text = str(len(value) if item.shape == "list" and len(value) > 3 else value)
    left = "style='text-align:left'"
    return f"<tr><th {left}>{escape(name)}</th><td {left}>{escape(text)}</td></tr>"


def to_html(instance: Object) -> str:
    from .generated import ColorSetType, ColorType

    title = f"<b>{escape(type(instance).__name__)}</b>"
    if not instance.is_alive:
        return f"{title}, removed"
    if isinstance(instance, ColorType):
        return title + table([color_row(instance)])
    if isinstance(instance, ColorSetType):
        rows = [color_row(color) for color in instance.colors[:MOST]]
        return f"{title} {escape(instance.color_set_name or '')}" + table(rows, len(instance.colors) - MOST)
    if isinstance(instance, Choice):
        return f"{title} {escape(str(instance.chosen))}"
    rows = [value_row(instance, name, item) for name, item in instance.properties().items() if item.kind is not str]
    return title + table([row for row in rows if row])
