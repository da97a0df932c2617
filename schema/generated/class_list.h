// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.
// clang-format off

/// All classes by name, for tools and tests that walk them.

#pragma once

#include <span>

#include "lmx/binding/document.h"
#include "lmx/export.h"

namespace com_vyrgraph_v2 {

/// The 216 classes of the format, in schema order.
VYR_EXPORT std::span<const lmx::s_named_class> all_classes();

}  // namespace com_vyrgraph_v2
