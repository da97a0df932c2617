# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The examples and the program of the guide, as a user runs them."""

import importlib.util
import shutil
import subprocess
import sys

import pytest
from conftest import ROOT


def run(program, *arguments, folder, code=0):
    done = subprocess.run([sys.executable, str(program), *map(str, arguments)], cwd=folder, text=True, capture_output=True,
                          timeout=300, check=False)
    assert done.returncode == code, done.stderr
    return done.stdout


def need(*modules):
    for module in modules:
        if importlib.util.find_spec(module) is None:
            pytest.skip(f"there is no {module}")


def test_guide(palette, tmp_path):
    numpy = ["numpy"] if importlib.util.find_spec("numpy") else []
    said = run(ROOT / "docs" / "samples" / "guides.py", palette, *numpy, folder=tmp_path)
    assert said.startswith("aliceblue 0.94") and "36 ColorSpaceCIELabType.l: Value greater" in said
    assert "the object was removed from its document Warm red" in said and "ColorName Illuminant_D50" in said
    assert (tmp_path / "inks.vyrz").exists()


def test_table_to_picture(tmp_path):
    need("numpy", "matplotlib")
    examples = ROOT / "examples"
    rows = len((examples / "spectra.csv").read_text().splitlines()) - 1
    assert run(examples / "python" / "palette.py", examples / "spectra.csv", "made.vyr", folder=tmp_path) == \
        f"{rows} colours in made.vyr\n"
    assert run(examples / "python" / "spectra.py", "made.vyr", "made.png", folder=tmp_path) == f"{rows} spectra in made.png\n"
    assert (tmp_path / "made.png").read_bytes().startswith(b"\x89PNG")


def test_two_thousand_documents(palette, tmp_path):
    """A pool over a folder, and dask over the same where it can be had; the counts are known."""
    documents = tmp_path / "documents"
    documents.mkdir()
    inks, broken = (ROOT / "docs" / "samples" / f"{name}.vyr" for name in ("inks", "broken"))
    for i in range(1990):
        shutil.copy(inks, documents / f"{i:04}.vyr")
    for i in range(5):
        shutil.copy(palette, documents / f"palette{i}.vyr")
    inks_count = inks.read_text().count("<Vyr:Color ") + inks.read_text().count("<Color ")
    count = 1990 * inks_count + 5 * 148
    folder = ROOT / "examples" / "python" / "folder.py"
    assert run(folder, documents, folder=tmp_path) == f"1995 documents, 0 with faults, {count} colours\n"
    if importlib.util.find_spec("dask"):
        said = run(ROOT / "examples" / "python" / "many.py", documents, folder=tmp_path)
        assert said.startswith(f"1995 documents, {count} colours, mean L ")
    for i in range(5):
        shutil.copy(broken, documents / f"broken{i}.vyr")
    said = run(folder, documents, 2, folder=tmp_path, code=1)
    assert said.splitlines()[-1].startswith("2000 documents, 5 with faults, ") and said.count(": Color \"Warm red\" / @Shade") == 5
