// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The columns of faults, found by reading the document once more: a load that has none pays nothing for them.

#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "lmx/reader/read.h"

namespace com_vyrgraph_v2 {

/// A character of a document, or an attribute of the tag that begins with it.
struct s_character {
    std::uint64_t offset = 0;    ///< in bytes, behind it; more than there are: the end
    std::string attribute{};     ///< its name as it stands there; empty if the character itself is meant
    bool is_repetition = false;  ///< the second attribute of that name is meant
    int column = 0;              ///< in characters from 1; 0 while it isn't known
};

/// Opens the document from its start.
using source_maker = std::function<std::unique_ptr<lmx::c_read>()>;

/// Finds the columns. `encoding` is that in which the document was read.
void find_columns(const source_maker& open, int encoding, std::vector<s_character>* characters);

/// A source byte by byte, which a reader knows its place in whatever the encoding is.
class c_read_bytes : public lmx::c_read {
public:
    explicit c_read_bytes(lmx::c_read& source) : m_source(source) {}

    int read() override { return m_source.read(); }
    void rewind() override { m_source.rewind(); }

private:
    lmx::c_read& m_source;
};

}  // namespace com_vyrgraph_v2
