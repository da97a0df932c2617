// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <string_view>

namespace vyr_tool {

/// `schema/vyr.xsd`, built in: the command needs no file beside itself.
std::string_view schema_text();

}  // namespace vyr_tool
