// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Character classes against those of libxml2 2.9: each name of its headers, each character.

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <libxml/chvalid.h>
#include <libxml/xmlregexp.h>
#include <libxml/xmlunicode.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "lmx/lmx.h"

namespace {

constexpr int k_end = 0x110000;
constexpr int k_outside[] = {INT_MIN, -1, k_end, INT_MAX};

/// The names in libxml2's header that begin like those of the classes.
std::set<std::string> class_names() {
    std::ifstream file(VYR_LIBXML2_HEADERS "/libxml/xmlunicode.h");
    const std::string text(std::istreambuf_iterator<char>(file), {});
    std::set<std::string> names;
    for (std::size_t at = text.find("xmlUCSIs"); at != std::string::npos; at = text.find("xmlUCSIs", at + 1)) {
        const auto end = std::find_if(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(),
                                      [](char c) { return !lmx::xisalnum(c); });
        names.emplace(text.begin() + static_cast<std::ptrdiff_t>(at), end);
    }
    return names;
}

template <class Function>
Function find(const std::string& symbol) {
    return reinterpret_cast<Function>(dlsym(RTLD_DEFAULT, symbol.c_str()));
}

/// The name of the function in namespace lmx, as the linker sees it.
std::string mangled(const std::string& name) { return "_ZN3lmx" + std::to_string(name.size()) + name + "Ei"; }

TEST(CharClasses, FunctionsAnswerAsThoseOfLibxml2) {
    std::set<std::string> names = class_names();
    EXPECT_EQ(names.erase("xmlUCSIsBlock") + names.erase("xmlUCSIsCat"), 2U);
    ASSERT_GT(names.size(), 150U);
    for (const std::string& name : names) {
        using function = int (*)(int);
        const auto theirs = find<function>(name);
        const auto ours = find<function>(mangled(name));
        ASSERT_TRUE(theirs != nullptr && ours != nullptr && ours != theirs) << name;
        for (int code = 0; code < k_end; ++code) ASSERT_EQ(ours(code), theirs(code)) << name << ' ' << code;
        for (const int code : k_outside) EXPECT_EQ(ours(code), theirs(code)) << name << ' ' << code;
    }
}

TEST(CharClasses, LookUpsByNameAnswerAsThoseOfLibxml2) {
    std::set<std::string> names{"", "Nope", "Cn", "basicLatin", "Lu ", "Latin-1Supplement", "PrivateUse"};
    for (const std::string& function : class_names()) {
        const std::string name = function.substr(std::string("xmlUCSIs").size());
        names.insert({name, name.substr(name.starts_with("Cat") ? 3 : 0)});
        if (name.ends_with('A') || name.ends_with('B')) {
            names.insert(name.substr(0, name.size() - 1) + '-' + name.back());
        }
    }
    for (const std::string& name : names) {
        for (int code = 0; code < k_end; code += 0x55) {
            ASSERT_EQ(lmx::xmlUCSIsBlock(code, name.c_str()), ::xmlUCSIsBlock(code, name.c_str())) << name << code;
            ASSERT_EQ(lmx::xmlUCSIsCat(code, name.c_str()), ::xmlUCSIsCat(code, name.c_str())) << name << code;
        }
    }
    EXPECT_EQ(lmx::xmlUCSIsBlock('a', nullptr), -1);
    EXPECT_EQ(lmx::xmlUCSIsCat('a', nullptr), -1);
}

TEST(CharClasses, GroupsHoldTheCharactersOfThoseOfLibxml2) {
    const struct {
        const lmx::xmlChRangeGroup* ours;
        const ::xmlChRangeGroup* theirs;
    } groups[] = {
        {&lmx::xmlIsBaseCharGroup, &::xmlIsBaseCharGroup},   {&lmx::xmlIsCharGroup, &::xmlIsCharGroup},
        {&lmx::xmlIsCombiningGroup, &::xmlIsCombiningGroup}, {&lmx::xmlIsDigitGroup, &::xmlIsDigitGroup},
        {&lmx::xmlIsExtenderGroup, &::xmlIsExtenderGroup},   {&lmx::xmlIsIdeographicGroup, &::xmlIsIdeographicGroup}};
    for (const auto& [ours, theirs] : groups) {
        for (unsigned code = 0; code < k_end; ++code) {
            ASSERT_EQ(lmx::xmlCharInRange(code, ours), ::xmlCharInRange(code, theirs)) << code;
        }
        EXPECT_EQ(lmx::xmlCharInRange(UINT_MAX, ours), 0);
    }
    EXPECT_EQ(lmx::xmlCharInRange('a', nullptr), 0);
}

TEST(CharClasses, DeterminismIsThatOfLibxml2) {
    for (const auto& [pattern, answer] : {std::pair{"a(b|c)d*", 1}, std::pair{"(ab|ac)", 0}}) {
        xmlRegexp* const compiled = xmlRegexpCompile(reinterpret_cast<const xmlChar*>(pattern));
        EXPECT_EQ(lmx::xmlRegexpIsDeterminist(compiled), answer) << pattern;
        xmlRegFreeRegexp(compiled);
    }
    EXPECT_LT(lmx::xmlRegexpIsDeterminist(nullptr), 0);
}

}  // namespace
