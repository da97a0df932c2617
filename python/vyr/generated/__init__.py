# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
#
# Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
"""The classes of the format, as the schema has them."""

from .enumerations import *
from .header import *
from .groups import *
from .palettes import *
from .color_values import *
from .device_color_values import *
from .sampled_color_values import *
from .recipes import *
from .conditions import *
from .substrates import *
from .samples import *
from .functions import *
from .statistics import *
from .devices import *
from .quality_control import *
