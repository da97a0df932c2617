// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

/// Lists against a plain vector of what they should hold, over random sequences of calls.

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <stdexcept>
#include <vector>

#include "lmx/binding/list.h"

namespace vyr_test {
namespace {

using lmx::c_list;

/// Counts those that live; refuses to be made while `is_full`.
template <std::size_t Size>
struct s_entry {
    s_entry() {
        if (is_full) throw std::runtime_error("full");
        ++living;
    }
    s_entry(const s_entry&) = delete;
    s_entry& operator=(const s_entry&) = delete;
    ~s_entry() {
        --living;
        ended.push_back(number);
    }

    int number = 0;
    std::array<std::byte, Size> rest{};
    s_entry* self = this;  ///< another address than this one means that the entry was moved

    static inline int living = 0;
    static inline bool is_full = false;
    static inline std::vector<int> ended;
};

template <class T>
class Lists : public testing::Test {
protected:
    struct s_expected {
        T* place;
        int number;
    };

    void TearDown() override {
        EXPECT_EQ(T::living, 0);
        T::ended.clear();
    }

    static void expect_same(const c_list<T>& list, const std::vector<s_expected>& expected) {
        ASSERT_EQ(list.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i) {
            ASSERT_EQ(&list[i], expected[i].place);
            ASSERT_EQ(list[i].self, expected[i].place);
            ASSERT_EQ(list[i].number, expected[i].number);
        }
        ASSERT_EQ(T::living, static_cast<int>(expected.size()));
    }
};

using entry_types = testing::Types<s_entry<1>, s_entry<24>, s_entry<700>, s_entry<3000>>;
TYPED_TEST_SUITE(Lists, entry_types);

TYPED_TEST(Lists, KeepTheirEntriesWhereTheyAre) {
    for (unsigned seed = 0; seed < 40; ++seed) {
        std::mt19937 random(seed);
        c_list<TypeParam> list;
        std::vector<typename TestFixture::s_expected> expected;
        // Short lists and long ones, at times emptied one by one.
        const std::size_t most = seed % 4 == 0 ? 3 : 150;
        int number = 0;
        for (int step = 0; step < 400; ++step) {
            const bool is_shrinking = expected.size() >= most || (step / 100) % 2 == 1;
            const std::size_t index = random() % (expected.size() + 1);
            if (is_shrinking ? random() % 4 != 0 && !expected.empty() : random() % 4 == 0 && !expected.empty()) {
                const std::size_t victim = index % expected.size();
                list.erase(victim);
                expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(victim));
            } else {
                list.expect(random() % 200, lmx::k_stored_type<TypeParam>);
                const std::size_t place = random() % 2 == 0 ? expected.size() : index;
                // At or beyond the end means the same.
                TypeParam& entry = place < expected.size() ? list.insert(place) : list.insert(place + random() % 3);
                entry.number = ++number;
                expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(place), {&entry, number});
            }
            ASSERT_NO_FATAL_FAILURE(this->expect_same(list, expected)) << "seed " << seed << ", step " << step;
        }
    }
}

TYPED_TEST(Lists, EndTheirEntriesFromTheBack) {
    for (const int size : {0, 1, 2, 4, 5, 40}) {
        c_list<TypeParam> list;
        for (int i = 0; i < size; ++i) list.append().number = i;
        TypeParam::ended.clear();
        list.clear();
        EXPECT_EQ(list.size(), 0U);
        ASSERT_EQ(TypeParam::ended.size(), static_cast<std::size_t>(size));
        for (int i = 0; i < size; ++i) EXPECT_EQ(TypeParam::ended[static_cast<std::size_t>(i)], size - 1 - i);
        list.append().number = 1;
        EXPECT_EQ(list.back().number, 1);
    }
}

TYPED_TEST(Lists, StayAsTheyWereIfAnEntryCantBeMade) {
    for (const std::size_t size : {0U, 1U, 2U, 4U, 12U, 13U}) {
        for (const bool has_gap : {false, true}) {
            c_list<TypeParam> list;
            std::vector<typename TestFixture::s_expected> expected;
            list.grow_to(size);
            list.erase(has_gap ? 0 : size);
            for (std::size_t i = 0; i < size; ++i) expected.push_back({&list[i], 0});
            TypeParam::is_full = true;
            EXPECT_THROW(list.append(), std::runtime_error);
            EXPECT_THROW(list.insert(0), std::runtime_error);
            TypeParam::is_full = false;
            this->expect_same(list, expected);
            c_list<TypeParam> other;
            other.swap(list);
            EXPECT_EQ(list.size(), 0U);
            expected.push_back({&other.append(), 0});
            this->expect_same(other, expected);
        }
    }
}

TEST(ListStorage, AnEmptyListIsAPointer) { EXPECT_EQ(sizeof(c_list<s_entry<1>>), sizeof(void*)); }

}  // namespace
}  // namespace vyr_test
