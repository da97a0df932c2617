// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// A palette of any size as document text.

#pragma once

#include <cstddef>
#include <string>

namespace vyr_bench {

/// One palette with one set of `colors` colours; each has an sRGB value, a CIELab value and a reflectance spectrum of
/// 36 points, about 5 KB together. The text is laid out as the library itself writes it, so that writing the loaded
/// document gives the same bytes. The same number gives the same text.
std::string palette_text(std::size_t colors);

}  // namespace vyr_bench
