# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Documents as a program meets them: loads and saves, parts that are removed, threads."""

import copy
import gc
import io
import pickle
import random
import threading
from concurrent.futures import ProcessPoolExecutor
from multiprocessing import get_context

import pytest

import vyr
from vyr._objects import read


def colors_of(document):
    return document.palettes[0].color_sets[0].colors


def test_reading_changes_nothing(documents):
    def look(value, depth=0):
        repr(value)
        for name, item in value.properties().items():
            found = read(value, name)  # some times can't be held
            if isinstance(found, vyr.TimeList):
                assert len(found.texts) == len(found)
            elif item.shape == "list":
                for entry in found:
                    if isinstance(entry, vyr.Object):
                        look(entry, depth + 1)
            elif isinstance(found, vyr.Object):
                look(found, depth + 1)

    files = sorted((documents / "valid").glob("*.vyr"))
    assert len(files) > 20
    for file in files:
        before = vyr.load(file).to_bytes()
        document = vyr.load(file)
        look(document)
        assert document.to_bytes() == before, file


def test_files_bytes_and_texts(palette, tmp_path):
    document = vyr.load(palette)
    for name in ("new.vyr", "new.vyrz"):
        document.save(tmp_path / name)
        assert len(colors_of(vyr.load(tmp_path / name))) == 148
    # The plain document beside a container isn't lost.
    (tmp_path / "new.vyr").write_text("mine")
    document.save(str(tmp_path / "new.vyrz"))
    with pytest.raises(vyr.DocumentError):
        vyr.Document().save(tmp_path / "new.vyrz")
    data = document.to_bytes()
    assert vyr.load(tmp_path / "new.vyrz").to_bytes() == data
    # What would be read back as something else is written all the same.
    document.palettes[0].palette_name = "two\rlines"
    with pytest.raises(vyr.DocumentError):
        document.save(tmp_path / "new.vyrz")
    document = vyr.load(tmp_path / "new.vyrz")
    assert document.palettes[0].palette_name == "two\nlines"
    assert (tmp_path / "new.vyr").read_text() == "mine" and len(list(tmp_path.iterdir())) == 2
    data = document.to_bytes()
    assert vyr.loads(data).to_bytes() == vyr.loads(data.decode()).to_bytes() == data
    with open(palette, "rb") as file:
        assert len(colors_of(vyr.load(file))) == 148
    assert len(colors_of(vyr.load(io.BytesIO(data)))) == 148
    assert pickle.loads(pickle.dumps(document)).to_bytes() == data
    rgb = vyr.ColorSpaceSRGB(red=0.5, green=0.25, blue=1, color_depth="ColorDepth_8")
    rgb.change_history.append("2024-05-01T09:30:00Z")
    rgb.create_color_space_specification_spectrum_tristimulus().set_nil()
    rgb.save(tmp_path / "one.xml")
    assert vyr.ColorSpaceSRGB.load(tmp_path / "one.xml").green == 0.25
    with pytest.raises(vyr.DocumentError):
        vyr.ColorSpaceSRGB.load(palette)
    for refused in (tmp_path / "none" / "one.xml", "/dev/full"):
        with pytest.raises(OSError):
            rgb.save(refused)


def test_what_fails_says_where(documents, palette, tmp_path):
    for load in (vyr.load, vyr.load_partly):
        with pytest.raises(FileNotFoundError) as caught:
            load(tmp_path / "none.vyr")
        assert caught.value.filename == str(tmp_path / "none.vyr")
    with pytest.raises(OSError):
        vyr.load(palette).save(tmp_path / "no folder" / "new.vyr")
    text = palette.read_text(encoding="utf-8").replace(":Red>1<", ":Red>7<")
    with pytest.raises(vyr.DocumentError) as caught:
        vyr.loads(text)
    faults, report = caught.value.faults, caught.value.report
    assert len(faults) > 2 and report.total == len(faults)
    assert all(fault.code == 36 and fault.path.endswith("ColorSpaceSRGB / Red") for fault in faults)
    lines = text.splitlines()
    assert all("7" in lines[fault.line - 1] for fault in faults)
    assert "at most 1" in faults[0].detail and faults[0].text in str(caught.value)
    assert len(str(caught.value).split("\n")) == len(faults)
    (tmp_path / "wrong.vyr").write_text(text, encoding="utf-8")
    with open(tmp_path / "wrong.vyr", "rb") as file:
        assert vyr.check(file) == vyr.check(tmp_path / "wrong.vyr")
    assert vyr.check(tmp_path / "wrong.vyr").total == len(faults) and not vyr.check(tmp_path / "wrong.vyr", limit=0)
    document, report = vyr.load_partly(io.BytesIO(text.encode()), limit=2)
    assert not report and len(report.faults) == 2 and report.total > 2 and len(colors_of(document)) == 148
    for file in sorted((documents / "invalid").glob("*.vyr")):
        assert not vyr.check(file), file
    with pytest.raises(vyr.DocumentError) as caught:
        vyr.Document().to_bytes()
    assert caught.value.faults[0].text


def test_parts_that_are_removed(palette):
    document = vyr.load(palette)
    colors = colors_of(document)
    kept = list(colors)
    rgb = [color.color_spaces.srgb for color in colors]
    assert kept[7] is colors[7] and rgb[7] is colors[7].color_spaces.srgb
    del colors[5:10]
    assert [color.is_alive for color in kept[4:11]] == [True] + [False] * 5 + [True]
    for use in (lambda: kept[5].color_name, lambda: rgb[5].red, lambda: kept[5].color_spaces.append(rgb[0]),
                lambda: setattr(rgb[5], "red", 0.5), lambda: kept[5].copy(), lambda: colors.append(kept[5])):
        with pytest.raises(vyr.RemovedError):
            use()
    assert "removed" in repr(rgb[5])
    choice = colors[0].color_spaces[0]
    choice.choose_cmyk(cyan=20, magenta=0, yellow=0, black=0)
    assert not rgb[0].is_alive and choice.srgb is None and choice.chosen == "cmyk"
    spaces = colors[1].color_spaces
    colors[1].reset()
    assert len(spaces) == 0 and not rgb[1].is_alive and colors[1] is kept[1]
    # Parts keep their document alive, whatever else is gone.
    last = kept[-1]
    del document, colors, kept, rgb, choice, spaces
    gc.collect()
    assert last.color_name and last.color_spaces.srgb.red >= 0


def test_values_that_are_parts_of_what_they_replace():
    sets = vyr.PaletteType(palette_name="A").color_sets
    colors = sets.add(color_set_name="One").colors
    colors.add(color_name="Red")
    colors.append(colors[0])
    colors[:] = colors[::-1] + list(colors)
    assert [color.color_name for color in colors] == ["Red"] * 4
    sets[0] = sets[0]
    assert len(sets[0].colors) == 4
    color = sets[0].colors[0]
    color.owner = vyr.OwnerType(companies=["Ink & Co"])
    color.owner = color.owner
    assert color.owner.companies == ["Ink & Co"]


def test_code_that_removes_what_is_being_set():
    colors = vyr.ColorSetType().colors

    class Mean:
        def __float__(self):
            colors.clear()
            return 1.0

    lab = colors.add().color_spaces.add().choose_lab()
    with pytest.raises(vyr.RemovedError):
        lab.l = Mean()

    def mean():
        yield vyr.ColorSpaceCIELabType()
        colors.clear()

    color = colors.add()
    with pytest.raises(vyr.RemovedError):
        color.color_spaces = mean()


def test_what_is_refused_changes_nothing():
    colors = vyr.ColorSetType(colors=[vyr.ColorType(color_name=name) for name in "abcdef"]).colors
    kept = list(colors)
    new = [vyr.ColorType(color_name=name) for name in "xyz"]
    for change in (lambda: colors.add(comments=1), lambda: colors.extend([new[0], 1]),
                   lambda: colors.__setitem__(slice(None, None, 2), [new[0], 1, new[2]]),
                   lambda: colors.__setitem__(slice(None, None, -2), [new[0], 1, new[2]])):
        with pytest.raises(TypeError):
            change()
        assert list(colors) == kept
    colors[::2] = new
    colors[5:1:-2] = new[:2]
    assert "".join(color.color_name for color in colors) == "xbyyzx" and colors[1] is kept[1]
    del colors[1::3]
    assert "".join(color.color_name for color in colors) == "xyyx"

    def other_colors():
        colors.clear()
        yield from new

    colors[1:] = other_colors()
    assert [color.color_name for color in colors] == ["x", "y", "z"]


def test_any_order_of_changes(palette):
    """Random changes with handles held in all places: each lives or raises, and the document can be written."""
    rng = random.Random(7)
    document = vyr.load(palette)
    held = []
    for _ in range(3000):
        colors = colors_of(document)
        if len(colors) < 5:
            colors.extend(colors_of(vyr.load(palette)))
        index = rng.randrange(len(colors))
        held += [colors[index], *colors[index].color_spaces, colors[index].color_spaces.srgb]
        action = rng.randrange(6)
        if action == 0:
            del colors[index]
        elif action == 1:
            colors.insert(index, colors[rng.randrange(len(colors))])
        elif action == 2:
            colors[index] = colors[rng.randrange(len(colors))]
        elif action == 3 and colors[index].color_spaces:
            colors[index].color_spaces[0].srgb = vyr.ColorSpaceSRGBType(red=1, green=0, blue=0)
        elif action == 4:
            colors[index].color_spaces.add().choose_srgb(red=0.5)
        else:
            rng.shuffle(held)
            del held[200:]
    for value in held:
        if value is not None and value.is_alive:
            repr(value)
    again = copy.deepcopy(document)
    assert len(colors_of(again)) == len(colors_of(document))


def test_times():
    color = vyr.ColorType(change_history=["2016-12-31T23:59:60Z", "2024-05-01T09:30:00.25+02:00"])
    assert color.change_history.texts == ["2016-12-31T23:59:60Z", "2024-05-01T09:30:00.25+02:00"]
    assert color.change_history[1].utcoffset().seconds == 7200 and color.change_history[1].microsecond == 250000
    with pytest.raises(ValueError, match="can't be held"):
        color.change_history[0]
    calibration = vyr.CalibrationStateType(calibration_date_time="2016-12-31T23:59:60Z")
    assert "23:59:60" in repr(color.change_history) and "23:59:60" in repr(calibration)
    color.change_history[0] = color.change_history[1].replace(second=59, microsecond=999999)
    assert color.change_history.texts[0] == "2024-05-01T09:30:59.9999+02:00"
    color.change_history[0] = color.change_history[1].replace(second=1, microsecond=1)
    assert color.change_history.texts[0] == "2024-05-01T09:30:01+02:00"
    with pytest.raises(vyr.FormatError):
        color.change_history.append(color.change_history[1].replace(tzinfo=None))


def test_names_that_are_wrong():
    for wrong in (lambda: vyr.ColorType(colour_name="x"), lambda: setattr(vyr.ColorType(), "colour_name", "x"),
                  lambda: vyr.ColorType().color_spaces.add().choose_lab(lightness=1)):
        with pytest.raises((TypeError, AttributeError)):
            wrong()
    with pytest.raises(UnicodeEncodeError):
        vyr.ColorType(color_name="\ud800")
    with pytest.raises(TypeError):
        vyr.ColorType.color_name.__get__(vyr.PaletteType())
    with pytest.raises(ValueError):
        vyr.load("a\0b.vyr")


def test_classes_of_a_program():
    """They come and go; one can lie where one of another kind lay before."""
    for base, name in ((vyr.ColorType, "color_name"), (vyr.PaletteType, "palette_name")) * 10:
        mine = type("Mine", (base,), {})(**{name: "a"})
        assert getattr(mine, name) == "a" and type(mine.copy()) is type(mine)
        del mine
        gc.collect()
    assert type(vyr.ColorSetType(colors=[type("Mine", (vyr.ColorType,), {})()]).colors[0]) is vyr.ColorType


def test_processes(palette, documents):
    """What goes to other processes and comes back: documents, and what is wrong with them; parts of one don't."""
    broken = min((documents / "invalid").glob("*.vyr"))
    with ProcessPoolExecutor(2, get_context("spawn")) as pool:
        for document in pool.map(vyr.load, [palette] * 3):
            assert len(list(vyr.colors(document))) == 148
        assert pool.submit(vyr.check, broken).result() == vyr.check(broken)
        with pytest.raises(vyr.DocumentError) as caught:
            pool.submit(vyr.load, broken).result()
        assert caught.value.report == vyr.check(broken)
        with pytest.raises(TypeError, match="pickle"):
            pool.submit(repr, colors_of(document)[0]).result()


def test_threads(palette, tmp_path):
    """Loads and saves run beside each other, and a document that is being saved can't be touched meanwhile."""
    document = vyr.load(palette)
    for _ in range(5):
        colors_of(document).extend(list(colors_of(document)))
    outcomes = []
    is_done = threading.Event()

    def save():
        for i in range(5):
            document.save(tmp_path / f"{i}.vyrz")
        is_done.set()

    def look():
        while not is_done.is_set():
            try:
                outcomes.append(len(colors_of(document)))
            except RuntimeError as error:
                outcomes.append(str(error))

    threads = [threading.Thread(target=save), threading.Thread(target=look),
               threading.Thread(target=lambda: [vyr.load(palette) for _ in range(20)])]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert set(outcomes) <= {148 * 32, "the document is being saved by another thread"}
    assert "the document is being saved by another thread" in outcomes
    assert len(colors_of(vyr.load(tmp_path / "4.vyrz"))) == 148 * 32
