// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The table of the namespaces that a document declares on its root element; the reader and the writer share it.

#pragma once

namespace lmx {

/// One namespace. Tables are constants; a row whose `uri` is null ends them.
struct s_ns_map {
    int ns_id;           ///< the number by which the reader's tables name it
    const char* prefix;  ///< empty for the default namespace
    const char* uri;
};

/// The namespace of `xsi:type`, `xsi:nil` and the schema locations.
inline constexpr char k_xsi_uri[] = "http://www.w3.org/2001/XMLSchema-instance";

}  // namespace lmx
