// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The place of a check in the library's source, which handlers get.

#pragma once

#include <cstddef>
#include <string_view>

namespace lmx {

/// The caller's place where it is a default argument. As `std::source_location`, which clang 14 lacks, but named from
/// the root of the sources on, whatever folder they are built in.
struct s_source_place {
    const char* file;
    int line;

    static constexpr s_source_place current(const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
        const std::size_t root = std::string_view(file).rfind("lmx/");
        return {root == std::string_view::npos ? file : file + root, line};
    }
};

}  // namespace lmx
