// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The path of open elements, with their names or numbers.

#pragma once

#include <string>
#include <string_view>

#include "lmx/binding/open_element.h"

namespace lmx {

/// Steps from the outermost element in, without prefixes: `Palette "Inks" / ColorSet[2] / Color "Red"`. The
/// document's own element is left out unless it is the only one. An element is numbered if its item repeats and it
/// has no name yet, and those of a group if another of the same name came before. `last_step` is a further step,
/// empty for none. `own_name` is a name for the innermost element if it holds none yet.
std::string path_of(const s_open_element* element, std::string_view last_step, std::string_view own_name);

/// The step for an item without a class of its own: "@Name", "L", "ChangeHistory[3]"; empty for content. `number` is
/// that of a list's entry.
std::string step_of(const s_item& item, std::size_t number);

/// The item whose text names objects of a class; null if there's none.
const s_item* name_item(const s_class& type);

}  // namespace lmx
