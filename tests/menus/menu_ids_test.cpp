#include "lvx/menus/menu_ids.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace {

using Ids = std::vector<unsigned int>;

struct Item {};

class MenuIds : public ::testing::Test {
protected:
    unsigned int Take() { return lvx::take_menu_id(m_free, m_next); }
    void Return(unsigned int id) { lvx::return_menu_id(m_free, id); }

    Ids m_free;
    unsigned int m_next = lvx::first_menu_id;
};

class MenuMap : public ::testing::Test {
protected:
    Item m_one;
    Item m_two;
    std::map<unsigned int, Item*> m_items;
};

}  // namespace

TEST_F(MenuIds, begin_at_20000_and_count_up) {
    EXPECT_EQ(20000U, Take());
    EXPECT_EQ(20001U, Take());
    EXPECT_EQ(20002U, Take());
}

TEST_F(MenuIds, that_were_freed_last_are_taken_first) {
    Take();
    Take();
    Return(20000);
    Return(20001);
    EXPECT_EQ((Ids{20000, 20001}), m_free);
    EXPECT_EQ(20001U, Take());
    EXPECT_EQ(20000U, Take());
    EXPECT_EQ(20002U, Take());
    EXPECT_EQ(Ids{}, m_free);
}

TEST_F(MenuIds, of_the_range_return_and_others_do_not) {
    for (const unsigned int id : {0U, 1U, 19999U, 21000U, ~0U}) {
        Return(id);
        EXPECT_EQ(Ids{}, m_free) << id;
    }
    Return(20000);
    Return(20999);
    EXPECT_EQ((Ids{20000, 20999}), m_free);
}

TEST_F(MenuIds, go_on_behind_the_range_and_do_not_return_there) {
    for (unsigned int id = 20000; id <= 20999; ++id) {
        ASSERT_EQ(id, Take());
    }
    EXPECT_EQ(21000U, Take());
    Return(21000);
    EXPECT_EQ(21001U, Take());
    Return(20500);
    EXPECT_EQ(20500U, Take());
    EXPECT_EQ(21002U, Take());
}

// A second literal coding of both rules, in a long row of calls of no particular order.
TEST_F(MenuIds, are_what_a_stack_on_top_of_a_counter_gives) {
    Ids stack;
    Ids out;
    unsigned int counter = 20000;
    unsigned int random = 1;
    for (int call = 0; call < 20000; ++call) {
        random = random * 1664525 + 1013904223;
        const bool take = out.empty() || (random >> 16) % 5 < 3;
        if (take) {
            unsigned int expected = counter;
            if (stack.empty()) {
                ++counter;
            } else {
                expected = stack.back();
                stack.pop_back();
            }
            ASSERT_EQ(expected, Take());
            out.push_back(expected);
        } else {
            const auto which = out.begin() + static_cast<std::ptrdiff_t>((random >> 16) % out.size());
            Return(*which);
            if (*which < 21000) {
                stack.push_back(*which);
            }
            out.erase(which);
        }
        ASSERT_EQ(stack, m_free);
    }
    EXPECT_LT(21000U, counter) << "the calls should have left the range";
}

TEST_F(MenuIds, that_are_free_are_known) {
    EXPECT_FALSE(lvx::is_free_menu_id(m_free, 20000));
    Return(20000);
    EXPECT_TRUE(lvx::is_free_menu_id(m_free, 20000));
    EXPECT_FALSE(lvx::is_free_menu_id(m_free, 20001));
}

TEST_F(MenuMap, has_one_item_for_an_id) {
    EXPECT_TRUE(lvx::enter_menu_item(m_items, 20000, &m_one));
    EXPECT_FALSE(lvx::enter_menu_item(m_items, 20000, &m_two));
    EXPECT_EQ(&m_one, lvx::find_menu_item(m_items, 20000));
    EXPECT_EQ(nullptr, lvx::find_menu_item(m_items, 20001));
}

TEST_F(MenuMap, has_none_for_id_0) {
    EXPECT_FALSE(lvx::enter_menu_item(m_items, 0, &m_one));
    EXPECT_EQ(nullptr, lvx::find_menu_item(m_items, 0));
    EXPECT_TRUE(m_items.empty());
}

TEST_F(MenuMap, forgets_an_item_under_all_its_ids_and_no_other) {
    lvx::enter_menu_item(m_items, 1, &m_one);
    lvx::enter_menu_item(m_items, 2, &m_two);
    lvx::enter_menu_item(m_items, 3, &m_one);
    lvx::erase_menu_item(m_items, &m_one);
    EXPECT_EQ(1U, m_items.size());
    EXPECT_EQ(&m_two, lvx::find_menu_item(m_items, 2));
    lvx::erase_menu_item(m_items, &m_one);
    EXPECT_EQ(1U, m_items.size());
}
