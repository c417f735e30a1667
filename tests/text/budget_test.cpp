#include "lvx/text/budget.h"

#include <gtest/gtest.h>

namespace {

using lvx::text::Budget;

}  // namespace

TEST(Budget, is_spent_when_nothing_is_left) {
    Budget budget(10);
    EXPECT_FALSE(budget.IsSpent());
    budget.Spend(9);
    EXPECT_EQ(1u, budget.Left());
    EXPECT_FALSE(budget.IsSpent());
    budget.Spend(1);
    EXPECT_TRUE(budget.IsSpent());
    EXPECT_TRUE(Budget(0).IsSpent());
}

TEST(Budget, spends_no_more_than_there_is) {
    Budget budget(10);
    budget.Spend(11);
    EXPECT_EQ(0u, budget.Left());
    budget.Spend(static_cast<std::size_t>(-1));
    EXPECT_EQ(0u, budget.Left());
}

TEST(Budget, of_a_part_is_spent_of_the_whole) {
    Budget whole(10);
    Budget part(3, &whole);
    part.Spend(2);
    EXPECT_EQ(1u, part.Left());
    EXPECT_EQ(8u, whole.Left());
    part.Spend(2);
    EXPECT_TRUE(part.IsSpent());
    EXPECT_FALSE(whole.IsSpent());
    EXPECT_EQ(6u, whole.Left());
}

TEST(Budget, of_a_part_ends_with_the_whole) {
    Budget whole(10);
    Budget part(30, &whole);
    EXPECT_EQ(10u, part.Left());
    whole.Spend(10);
    EXPECT_TRUE(part.IsSpent());
    EXPECT_EQ(0u, part.Left());
}
