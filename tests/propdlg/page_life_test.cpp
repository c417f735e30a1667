#include "lvx/propdlg/page_life.h"

#include <gtest/gtest.h>

namespace {

using lvx::propdlg::is_made_on_demand;
using lvx::propdlg::Leaving;
using lvx::propdlg::leaving_under;

constexpr Leaving hidden{false, false};
constexpr Leaving saved_and_hidden{true, false};
constexpr Leaving saved_and_destroyed{true, true};

TEST(PageLife, begins_with_the_strip_unless_the_style_has_it_on_demand) {
    EXPECT_FALSE(is_made_on_demand(Tab::SingleHeight));
    EXPECT_FALSE(is_made_on_demand(Tab::SaveOnClosePage));
    EXPECT_TRUE(is_made_on_demand(Tab::CreateOnDemand));
    EXPECT_TRUE(is_made_on_demand(Tab::CreateOnDemandAndKeepIt));
    EXPECT_TRUE(is_made_on_demand(Tab::CreateOnDemand | Tab::CreateOnDemandAndKeepIt));
}

TEST(PageLife, goes_on_hidden_when_the_tab_is_left) {
    EXPECT_EQ(hidden, leaving_under(Tab::SingleHeight));
    EXPECT_EQ(hidden, leaving_under(Tab::CreateOnDemandAndKeepIt));
}

TEST(PageLife, goes_on_hidden_and_saved_if_the_style_asks_for_that) {
    EXPECT_EQ(saved_and_hidden, leaving_under(Tab::SaveOnClosePage));
    EXPECT_EQ(saved_and_hidden, leaving_under(Tab::SaveOnClosePage | Tab::CreateOnDemandAndKeepIt));
}

TEST(PageLife, ends_saved_when_the_tab_is_left_if_it_exists_on_demand_alone) {
    EXPECT_EQ(saved_and_destroyed, leaving_under(Tab::CreateOnDemand));
    EXPECT_EQ(saved_and_destroyed, leaving_under(Tab::CreateOnDemand | Tab::SaveOnClosePage));
    EXPECT_EQ(saved_and_destroyed, leaving_under(Tab::CreateOnDemand | Tab::CreateOnDemandAndKeepIt));
}

}  // namespace
