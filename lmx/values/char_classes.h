// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// The character classes of XML Schema's regular expressions, under the names that libxml2 gives them.
///
/// libxml2 stops exporting these with version 2.14, so they stand here on tables of their own and answer as 2.9 does,
/// which knows Unicode 4.0.1. Being C++ names of this namespace they can't stand in for libxml2's, and headers of
/// both may be included together.

#pragma once

#include <cstdint>
#include <span>

#include "lmx/export.h"
#include "lmx/values/generated/char_class_functions.h"

namespace lmx {

/// Characters below 0x10000, both ends included.
struct xmlChSRange {
    unsigned short low;
    unsigned short high;
};

/// Characters from 0x10000 on, both ends included.
struct xmlChLRange {
    unsigned int low;
    unsigned int high;
};

/// A set of characters. Both lists are in rising order, borrowed, and null if their count is 0.
struct xmlChRangeGroup {
    int nbShortRange;
    int nbLongRange;
    const xmlChSRange* shortRange;
    const xmlChLRange* longRange;
};

/// 1 if the character is in the group, else 0; also for a null group.
VYR_EXPORT int xmlCharInRange(unsigned int character, const xmlChRangeGroup* group);

/// The classes of XML 1.0 from 0x100 on.
extern VYR_EXPORT const xmlChRangeGroup xmlIsBaseCharGroup;
extern VYR_EXPORT const xmlChRangeGroup xmlIsCharGroup;
extern VYR_EXPORT const xmlChRangeGroup xmlIsCombiningGroup;
extern VYR_EXPORT const xmlChRangeGroup xmlIsDigitGroup;
extern VYR_EXPORT const xmlChRangeGroup xmlIsExtenderGroup;
extern VYR_EXPORT const xmlChRangeGroup xmlIsIdeographicGroup;

/// Whether a character is in the block ("Latin-1Supplement") or the general category ("Lu", "L") of that name; -1 for
/// a name that is none, or null.
VYR_EXPORT int xmlUCSIsBlock(int code, const char* block);
VYR_EXPORT int xmlUCSIsCat(int code, const char* category);

namespace detail {

/// The general category of the characters from `first` up to the next row.
struct s_category_run {
    std::uint32_t first;
    std::uint8_t category;
};

struct s_named_class {
    const char* name;
    int (*is_in)(int code);
};

/// Whether the category of `code` is one of the bits of `categories`. The first run starts at 0.
int is_in_category(std::span<const s_category_run> runs, int code, std::uint32_t categories);

/// What the class of that name answers, -1 if there is none. The classes are in the order of `strcmp`.
int ask_by_name(std::span<const s_named_class> classes, int code, const char* name);

}  // namespace detail

}  // namespace lmx
