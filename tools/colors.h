// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The colours of a document, their values, and the conditions that each value holds under.

#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/json.h"
#include "tools/tree.h"

namespace vyr_tool {

/// How the names of all kinds of value begin, and of the elements that hold their conditions.
inline constexpr std::string_view k_space_prefix = "ColorSpace";
inline constexpr std::string_view k_specification_prefix = "ColorSpaceSpecification";
/// In a palette or a colour set: the conditions of values that state none of their own.
inline constexpr std::string_view k_defaults = "CollectionColorSpaceSpecification";

/// Where a colour stands.
struct s_color {
    c_tree::index node;
    c_tree::index parent;
    c_tree::index palette;  ///< 0: in none; so are the others
    c_tree::index set;
    c_tree::index record;  ///< of quality control
    std::string path;      ///< of the parent; empty for colours outside palettes
};

/// All colours, however deep they stand, in the order of the document.
std::vector<s_color> find_colors(const c_tree& tree);

/// The values of a colour, in their order.
std::vector<c_tree::index> values_of(const c_tree& tree, c_tree::index color);

/// "CIELab"
std::string_view space_of(const c_tree& tree, c_tree::index value);

/// What of a value is the value itself: neither its conditions nor its history nor what it was made from.
std::vector<c_tree::index> parts_of(const c_tree& tree, c_tree::index value);

/// Whether an element is one wavelength's part of a spectrum.
bool is_spectral_point(const c_tree& tree, c_tree::index node);

/// How a condition is called and where it stands below a specification: the names of elements, and of an attribute
/// with "@" before it. Of a text of an enumeration `prefix` and `suffix` repeat its name.
struct s_condition {
    std::string_view name;
    std::span<const std::string_view> path;
    std::string_view prefix;
    std::string_view suffix;
    std::string_view words;  ///< with "{}" for the value; of what is true or false, for true
};

/// All conditions but the backing, in the order in which they are listed.
std::span<const s_condition> all_conditions();

/// The name of the one condition that stands with the sample, and the prefix of its texts.
inline constexpr std::string_view k_backing = "Backing";

/// The conditions of one value.
struct s_conditions {
    struct s_value {
        std::string name;
        std::string text;
        std::string words;
        lmx::value_kind kind;
    };
    /// "value", "ColorSet" or "Palette", whose defaults hold where the value says nothing; "unknown" if none says
    /// any; empty for kinds of value that have no conditions.
    std::string source;
    std::vector<s_value> values;

    /// "D50, 2 degrees, Reflectance"
    std::string in_words() const;
    json to_json() const;
};

s_conditions conditions_of(const c_tree& tree, const s_color& color, c_tree::index value);

/// The specification that a value has of its own, also one that is nil; 0 if there is none.
c_tree::index specification_of(const c_tree& tree, c_tree::index value);

/// Whether a part of a specification is all said by its conditions.
bool is_condition(const c_tree& tree, c_tree::index part);

/// The same for a specification itself.
s_conditions conditions_in(const c_tree& tree, c_tree::index specification);

/// The red, green and blue of a colour's sRGB value from 0 to 255, as "r;g;b" with the separator given; empty if the
/// document holds none.
std::string srgb_of(const c_tree& tree, c_tree::index color, char separator);

/// All that an element holds but for its history and the user's own values, in one line: "Colorant (Name Red 3),
/// Contribution 0.42".
std::string record_text(const c_tree& tree, c_tree::index node);

/// A value for people: numbers in their short form.
std::string shown_value(std::string_view text, lmx::value_kind kind);

}  // namespace vyr_tool
