# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Documents of measured and specified colours: read, checked, changed and written.

    import vyr
    document = vyr.load("inks.vyr")
    for color in document.palettes[0].color_sets[0].colors:
        print(color.color_name, color.color_spaces.lab)
"""

from __future__ import annotations

from typing import Any

from . import _vyr
from ._documents import check as check, load as load, load_partly as load_partly, loads as loads
from ._enumeration import Enumeration as Enumeration
from ._errors import DocumentError as DocumentError, Fault as Fault, FormatError as FormatError
from ._errors import RemovedError as RemovedError, Report as Report
from ._objects import Choice as Choice, ChoiceList as ChoiceList, List as List, Object as Object, TimeList as TimeList
from .generated import *
from ._bulk import Spectra as Spectra, Values as Values, colors as colors, conditions as conditions, frame as frame
from ._bulk import set_spectra as set_spectra, set_values as set_values, spectra as spectra
from ._bulk import spectra_groups as spectra_groups, values as values

__version__ = _vyr.version


def schema_name(what: Any) -> str:
    """What the format calls a class, an object's class, a property (`vyr.ColorType.color_name`) or an enumerated
    value."""
    if isinstance(what, Enumeration):
        return what.text
    name = what.schema_name
    assert isinstance(name, str)
    return name
