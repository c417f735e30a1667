#include "owl/page_plan.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using owl::PagePlan;
using owl::PageRange;
using owl::PlanPages;
using owl::WholeRange;

constexpr int last = std::numeric_limits<int>::max();

TEST(PagePlan, ranges_run_from_their_lower_to_their_higher_page) {
    struct {
        PageRange told;
        int from, to;
    } const table[] = {
        {{2, 5}, 2, 5},
        {{5, 2}, 2, 5},
        {{3, 3}, 3, 3},
        {{0, 4}, 1, 4},
        {{4, 0}, 1, 4},
        {{1, 0}, 1, 1},
        {{-7, 2}, 1, 2},
        {{2, -7}, 1, 2},
        {{0, 0}, 1, last},
        {{-3, -1}, 1, last},
        {{last, last}, last, last},
    };
    for (const auto& row : table) {
        const PageRange whole = WholeRange(row.told);
        EXPECT_EQ(row.from, whole.from) << row.told.from << " to " << row.told.to;
        EXPECT_EQ(row.to, whole.to) << row.told.from << " to " << row.told.to;
    }
}

TEST(PagePlan, a_range_is_known_if_a_page_of_it_is) {
    EXPECT_FALSE((PageRange{0, 0}).IsKnown());
    EXPECT_FALSE((PageRange{-1, 0}).IsKnown());
    EXPECT_TRUE((PageRange{0, 1}).IsKnown());
    EXPECT_TRUE((PageRange{1, 0}).IsKnown());
}

TEST(PagePlan, goes_through_the_document_again_for_each_collated_copy) {
    const PagePlan plan = PlanPages({1, 9}, 3, true);
    EXPECT_EQ(3, plan.Documents());
    EXPECT_EQ(1, plan.TimesEach());
}

TEST(PagePlan, repeats_each_page_for_copies_that_are_not_collated) {
    const PagePlan plan = PlanPages({1, 9}, 3, false);
    EXPECT_EQ(1, plan.Documents());
    EXPECT_EQ(3, plan.TimesEach());
}

TEST(PagePlan, has_one_copy_at_least) {
    for (const int copies : {1, 0, -5}) {
        EXPECT_EQ(1, PlanPages({1, 1}, copies, false).copies) << copies;
        EXPECT_EQ(1, PlanPages({1, 1}, copies, true).Documents()) << copies;
    }
}

}  // namespace
