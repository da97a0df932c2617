// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// All classes of the format.

#pragma once

#include "schema/generated/color_values.h"
#include "schema/generated/conditions.h"
#include "schema/generated/device_color_values.h"
#include "schema/generated/devices.h"
#include "schema/generated/functions.h"
#include "schema/generated/groups.h"
#include "schema/generated/header.h"
#include "schema/generated/palettes.h"
#include "schema/generated/quality_control.h"
#include "schema/generated/recipes.h"
#include "schema/generated/sampled_color_values.h"
#include "schema/generated/samples.h"
#include "schema/generated/statistics.h"
#include "schema/generated/substrates.h"

namespace com_vyrgraph_v2 {


}  // namespace com_vyrgraph_v2
