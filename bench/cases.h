// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The operations that are measured. Each exists for the library and for the bare DOM parser beside it.

#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vyr_bench {

/// The document: as bytes, as a file with the same bytes, and in a container. And short ones.
struct s_input {
    std::string bytes;
    std::string path;
    std::string container_path;
    std::vector<std::string> short_documents;
};

/// One measured operation: `prepare` is not timed and returns what is. What that call returns keeps its result alive,
/// so that taking it down is not timed either; null means that the operation failed.
struct s_case {
    std::string name;
    std::function<std::function<std::shared_ptr<void>()>(const s_input&)> prepare;
    bool takes_short_documents = false;
};

/// Pairs: each operation of the library is followed by what it is measured against: the bare parser's, or the parts
/// that it is made of.
const std::vector<s_case>& cases();

/// Writes the text's document into a container; true if it loads without an error and is written back byte for byte.
bool is_sound(const std::string& text, const std::string& container_path);

}  // namespace vyr_bench
