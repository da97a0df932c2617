// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// What the library passes and others stumble over: documents seen by libxml2's own parser and by the schema that is
/// shipped, and what only this format knows. One pass over the text, without the network and without external
/// entities.

#pragma once

#include <bitset>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "document/report.h"

namespace vyr_tool {

/// In the order of the table in the manual page.
enum class warning : std::size_t {
    not_well_formed,
    schema,
    unsavable,
    duplicate_id,
    wavelengths,
    limits,
    date,
    // Of `convert`: what it can't keep.
    comments,
    instructions,
    doctype,
    hints,
    digits,
};
inline constexpr std::size_t k_warning_count = 12;

using warning_set = std::bitset<k_warning_count>;

struct s_warning_row {
    const char* name;
    const char* meaning;
};
/// By number.
const s_warning_row& row_of(warning kind);
/// The set without those of the names, of which "all" is one. False for a name that there isn't.
bool leave_out(const std::vector<std::string>& names, warning_set* set);

/// Those of `check`, and those of `convert`.
warning_set check_warnings();
warning_set convert_warnings();

struct s_warning {
    warning kind{};
    int line = 0;    ///< 0 where only the path is known
    int column = 0;  ///< in characters, from 1
    std::string path{};
    std::string text{};
};

/// "file:12:5: warning: path: text [name]", printable.
std::string warning_text(const std::string& file, const s_warning& found);

/// Looks at one document.
class c_warnings {
public:
    /// Keeps so many warnings; those beyond are counted.
    c_warnings(warning_set wanted, std::size_t limit);
    c_warnings(c_warnings&&) noexcept;
    c_warnings& operator=(c_warnings&&) noexcept;
    ~c_warnings();

    /// Takes the next bytes of the document.
    void take(std::string_view piece);
    /// The document has ended. What is a fault in a line already isn't warned of there, and of a document whose
    /// structure is at fault other parsers aren't quoted.
    void finish(const com_vyrgraph_v2::DocumentReport& report);
    /// Takes what a save of the document, which is valid, would say.
    void take_saving(const com_vyrgraph_v2::DocumentReport& report);

    const std::vector<s_warning>& found() const;
    std::size_t total() const;

private:
    class c_pass;
    std::unique_ptr<c_pass> m_pass;
};

}  // namespace vyr_tool
