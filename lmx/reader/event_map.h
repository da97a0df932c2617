// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Rows of the static tables that turn names into tokens.

#pragma once

#include <cstddef>

namespace lmx {

/// One name that is valid at a position of a content model. A row with a null name closes a table.
struct s_event_map {
    int ns_id;
    const char* name;
    std::size_t name_length;
    int token;
};

/// One element that a reader shall not skip. A row with a null name closes a table.
struct s_known_elements {
    int ns_id;
    const char* name;
    std::size_t name_length;
};

/// Whether a name is that of an attribute or of an element: without a prefix they differ in namespace.
enum elxp_attr_elem : int { ELXP_ATTRIBUTE = 0, ELXP_ELEMENT = 1 };

}  // namespace lmx
