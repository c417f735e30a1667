#include "owl/separator_gadget.h"

#include <gtest/gtest.h>

#include "tests/owl/gadget_probe.h"

namespace {

using owl::TGadgetWindow;
using owl::TRect;
using owl::TSeparatorGadget;

TEST(SeparatorGadget, is_a_gap_of_six_pixels_that_stands_for_nothing) {
    gadgets::BarDesk<> bars;
    bars.Add(1);
    auto* gap = bars.Add(new TSeparatorGadget);
    auto* next = bars.Add(2);
    bars.Show();
    EXPECT_EQ(0, gap->GetId());
    EXPECT_FALSE(gap->GetEnabled());
    EXPECT_EQ(6, gap->GetBounds().Width());
    EXPECT_EQ(TRect(28, 2, 48, 18), next->GetBounds());
}

TEST(SeparatorGadget, does_not_make_a_bar_thick) {
    gadgets::BarDesk<> bars;
    bars.Add(1);
    bars.Add(new TSeparatorGadget(50));
    bars.Show();
    EXPECT_EQ(20, bars.bar->GetWindowRect().Height());
}

TEST(SeparatorGadget, is_as_high_in_a_bar_that_is_tiled_downward) {
    gadgets::BarDesk<> bars(TGadgetWindow::Vertical);
    bars.Add(1);
    auto* gap = bars.Add(new TSeparatorGadget(9));
    auto* next = bars.Add(2);
    bars.Show();
    EXPECT_EQ(9, gap->GetBounds().Height());
    EXPECT_EQ(TRect(2, 27, 22, 43), next->GetBounds());
    EXPECT_EQ(24, bars.bar->GetWindowRect().Width());
}

TEST(SeparatorGadget, without_a_bar_lies_as_in_one_from_left_to_right) {
    TSeparatorGadget gap(4);
    owl::TSize size;
    gap.GetDesiredSize(size);
    EXPECT_EQ(owl::TSize(4, 0), size);
}

}  // namespace
