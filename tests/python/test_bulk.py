# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Numbers of many colours at once, and what a notebook shows."""

import pytest

import vyr

numpy = pytest.importorskip("numpy")


def document_of(*spectra):
    """A document with a colour for each spectrum: (name, wavelengths, values)."""
    document = vyr.Document()
    colors = document.palettes.add(palette_name="P").color_sets.add(color_set_name="S").colors
    for name, wavelengths, values in spectra:
        colors.add(color_name=name).color_spaces.add().choose_spectral().set_arrays(wavelengths, values)
    return document


def test_spectra_of_one_grid():
    document = document_of(("A", [400, 500], [0.1, 0.2]), ("B", [400, 500], [0.3, 0.4]))
    document.colors.add(color_name="loose").color_spaces.add().choose_spectral().set_arrays([400, 500], [0.5, 0.6])
    document.colors.add(color_name="none")
    names, wavelengths, values = vyr.spectra(document)
    assert names == ["loose", "A", "B"] and wavelengths.tolist() == [400, 500]
    assert values.tolist() == [[0.5, 0.6], [0.1, 0.2], [0.3, 0.4]] and values.dtype == numpy.float64
    assert vyr.spectra(document.palettes[0]).names == ["A", "B"]
    assert vyr.spectra(document.colors[1:]).values.shape == (0, 0)


def test_spectra_of_several_grids():
    document = document_of(("A", [400, 500], [0.1, 0.2]), ("B", [400, 510], [0.3, 0.4]), ("C", [400], [0.5]),
                           ("D", [400, 500], [0.6, 0.7]), ("E", [], []))
    with pytest.raises(ValueError, match="4 different"):
        vyr.spectra(document)
    groups = vyr.spectra_groups(document)
    assert [(g.names, g.wavelengths.tolist(), g.values.tolist()) for g in groups] == [
        (["A", "D"], [400, 500], [[0.1, 0.2], [0.6, 0.7]]), (["B"], [400, 510], [[0.3, 0.4]]), (["C"], [400], [[0.5]]),
        (["E"], [], [[]])]
    assert len(vyr.spectra_groups(document.palettes[0].color_sets[0].colors[:2])) == 2
    with pytest.raises(ValueError, match="no kind"):
        vyr.spectra(document, "lab")


def test_values_and_setting_them(palette):
    document = vyr.load(palette)
    names, columns, values = vyr.values(document, "srgb")
    assert columns == ("red", "green", "blue") and values.shape == (148, 3)
    assert values[names.index("aquamarine")].tolist() == [0.49803921568627, 1.0, 0.83137254901961]
    vyr.set_values(document, "srgb", 1 - values)
    assert numpy.array_equal(vyr.values(document, "srgb").values, 1 - values)
    wrong = values.copy()
    wrong[147, 2] = 1.5
    with pytest.raises(vyr.FormatError):
        vyr.set_values(document, "srgb", wrong)
    for rows in (values[:100], values[:, :2]):
        with pytest.raises(ValueError):
            vyr.set_values(document, "srgb", rows)
    assert numpy.array_equal(vyr.values(document, "srgb").values, 1 - values)
    vyr.set_values(document, "lab", 50 * values)
    assert vyr.values(document, "lab").values.max() == 50 and len(next(vyr.colors(document)).color_spaces) == 2
    vyr.set_spectra(document, numpy.array([400, 700]), values[:, :2])
    assert numpy.array_equal(vyr.spectra(document).values, values[:, :2])
    _, row = next(vyr.colors(document)).color_spaces.spectral.arrays()
    row *= 2  # of the caller's own
    with pytest.raises(vyr.FormatError):
        vyr.set_spectra(document, [400, 700], [[0.5, 0.5]] * 147 + [[0.5, 11]])
    assert numpy.array_equal(vyr.spectra(document).values, values[:, :2])
    for wrong in (lambda: vyr.values(document, "munsell"), lambda: vyr.set_values(document, "spectral", values),
                  lambda: vyr.set_spectra(document, [400], values, "lab")):
        with pytest.raises(ValueError, match="no kind"):
            wrong()


@pytest.mark.parametrize("kind", ["lab", "lch", "luv", "xyz", "xyy", "rgb", "srgb", "adobe_rgb", "cmyk", "hsl", "hsv"])
def test_every_kind_of_number(kind):
    color = vyr.ColorType(color_name="A")
    space = getattr(color.color_spaces.add(), f"choose_{kind}")()
    made = vyr.values([color], kind)
    assert made.values.shape == (1, 4 if kind == "cmyk" else 3)
    for i, name in enumerate(made.columns):
        setattr(space, name, (i + 1) / 8)
    assert vyr.values([color], kind).values.tolist() == [[(i + 1) / 8 for i in range(len(made.columns))]]


def test_conditions_and_frames(inks):
    pandas = pytest.importorskip("pandas")
    frame = vyr.frame(vyr.load(inks), "lab")
    assert isinstance(frame, pandas.DataFrame) and frame.loc["Warm red", ["l", "a", "b"]].tolist() == [58.1, 72.5, 51.3]
    assert frame.loc["Warm red", "illuminant"] == "Illuminant_D50"
    assert frame.loc["Warm red", "field_of_view"] == "FieldOfView_2_Degree"
    spectra = vyr.frame(document_of(("A", [400, 500], [0.1, 0.2])), "spectral")
    assert spectra.columns.tolist() == [400, 500] and spectra.loc["A", 500] == 0.2
    assert list(vyr.frame([], "lab").columns) == ["l", "a", "b"]
    with pytest.raises(ValueError, match="no kind"):
        vyr.frame([], "hue")
    ragged = vyr.frame(document_of(("A", [510, 400], [0.3, 0.1]), ("A", [400, 500], [0.5, 0.2])), "spectral")
    assert ragged.columns.tolist() == [400, 500, 510] and ragged.index.tolist() == ["A", "A"]
    assert ragged.fillna(-1).values.tolist() == [[0.1, -1, 0.3], [0.5, 0.2, -1]]


def test_conditions_of_many_values(inks):
    """Each row has the conditions of its own value, also where one colour has several of a kind."""
    pytest.importorskip("pandas")
    document = vyr.load(inks)
    color_set = document.palettes[0].color_sets[0]
    color_set.colors.append(color_set.colors[0])
    first, second = color_set.colors
    first.color_spaces.append(first.color_spaces.lab)
    first.color_spaces[-1].lab.l = 7
    specification = first.color_spaces[-1].lab.color_space_specification_spectrum_tristimulus
    specification.illumination_options.illuminant.value = "Illuminant_A"
    second.color_spaces.lab.color_space_specification_spectrum_tristimulus.set_nil()
    frame = vyr.frame(document, "lab")
    assert frame["l"].tolist() == [58.1, 7, 58.1] and frame.index.tolist() == ["Warm red"] * 3
    assert frame["illuminant"].fillna("").tolist() == ["Illuminant_D50", "Illuminant_A", ""]


def test_defaults_of_collections():
    document = document_of(("A", [400, 500], [0.1, 0.2]))
    palette = document.palettes[0]
    color_set = palette.color_sets[0]
    value = color_set.colors[0].color_spaces.spectral
    name = "color_space_specification_spectrum_spectral"
    getattr(value, f"create_{name}")().set_nil()
    assert vyr.conditions(value, color_set, palette) == {}
    for collection, word in ((palette, "E308_Table5"), (color_set, "E308_Table6")):
        defaults = getattr(collection.create_collection_color_space_specification(), f"create_{name}")()
        defaults.astm_table = word
        assert vyr.conditions(value, color_set, palette) == {"astm_table": word}
        for where in (document, palette, color_set)[: 3 if collection is color_set else 2]:
            assert vyr.frame(where, "spectral")["astm_table"].tolist() == [word]
    value.reset()
    getattr(value, f"create_{name}")()
    assert vyr.conditions(value, color_set, palette) == {}


def test_what_a_notebook_shows(palette):
    document = vyr.load(palette)
    colors = document.palettes[0].color_sets[0].colors
    colors[0].color_name = "<script>"
    html = document.palettes[0].color_sets[0]._repr_html_()
    assert "rgb(127, 255, 212)" in html and "98 more" in html and "<script>" not in html
    spectral = document_of(("A", [400, 500, 600], [0.1, 0.2, 0.1]))
    shown = spectral.palettes[0].color_sets[0].colors[0]._repr_html_()
    assert shown.count("<svg") == 1 and "rgb(" not in shown and "400 to 600 nm" in shown
    assert "palette_name" in spectral.palettes[0]._repr_html_()
    del colors[50:]
    assert " more" not in document.palettes[0].color_sets[0]._repr_html_()
    colors[1].color_spaces.srgb.comments = document.palettes[0].palette_name = "<script>"
    assert "<script>" not in colors[1]._repr_html_() + document.palettes[0]._repr_html_()
    same_place = document_of(("A", [400, 400], [0.1, 0.2])).palettes[0].color_sets[0]
    assert "<svg" not in same_place._repr_html_()
    kept = colors[0]
    colors.clear()
    assert "removed" in kept._repr_html_()
