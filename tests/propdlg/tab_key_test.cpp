#include "lvx/propdlg/tab_key.h"

#include <gtest/gtest.h>

namespace {

using lvx::propdlg::KeyOwner;
using lvx::propdlg::move_by_tab_key;
using lvx::propdlg::TabKeyMove;
using lvx::propdlg::TabKeyPlace;

constexpr bool forward = true;
constexpr bool backward = false;

TabKeyPlace in_dialog(bool direction) {
    return {.owner = KeyOwner::Dialog, .forward = direction, .hasStrip = true};
}

TabKeyPlace on_strip(bool direction) {
    TabKeyPlace place = in_dialog(direction);
    place.onStrip = true;
    return place;
}

TabKeyPlace in_page(bool direction, bool onEdge) {
    return {.owner = KeyOwner::Page, .forward = direction, .onEdge = onEdge};
}

TEST(TabKey, leads_from_the_strip_into_the_page) {
    EXPECT_EQ(TabKeyMove::IntoPageFirst, move_by_tab_key(on_strip(forward)));
}

TEST(TabKey, leads_into_the_page_also_from_a_strip_that_is_alone) {
    TabKeyPlace place = on_strip(forward);
    place.nextIsStrip = place.nextIsFocus = true;
    EXPECT_EQ(TabKeyMove::IntoPageFirst, move_by_tab_key(place));
}

TEST(TabKey, leads_backward_from_the_strip_to_the_other_controls) {
    EXPECT_EQ(TabKeyMove::Nothing, move_by_tab_key(on_strip(backward)));
}

TEST(TabKey, leads_backward_into_the_page_from_a_strip_that_is_alone) {
    TabKeyPlace place = on_strip(backward);
    place.nextIsStrip = place.nextIsFocus = true;
    EXPECT_EQ(TabKeyMove::IntoPageLast, move_by_tab_key(place));
}

TEST(TabKey, leads_backward_into_the_page_from_the_control_behind_the_strip) {
    TabKeyPlace place = in_dialog(backward);
    place.nextIsStrip = true;
    EXPECT_EQ(TabKeyMove::IntoPageLast, move_by_tab_key(place));
}

TEST(TabKey, leads_to_the_strip_and_not_past_it_from_the_control_before_it) {
    TabKeyPlace place = in_dialog(forward);
    place.nextIsStrip = true;
    EXPECT_EQ(TabKeyMove::Nothing, move_by_tab_key(place));
}

TEST(TabKey, is_the_dialog_managers_between_controls_of_the_dialog) {
    EXPECT_EQ(TabKeyMove::Nothing, move_by_tab_key(in_dialog(forward)));
    EXPECT_EQ(TabKeyMove::Nothing, move_by_tab_key(in_dialog(backward)));
}

TEST(TabKey, is_the_dialog_managers_without_a_strip) {
    for (const bool direction : {forward, backward}) {
        TabKeyPlace place = in_dialog(direction);
        place.hasStrip = false;
        place.nextIsFocus = true;
        EXPECT_EQ(TabKeyMove::Nothing, move_by_tab_key(place));
    }
}

TEST(TabKey, leads_out_of_the_page_at_its_edges) {
    EXPECT_EQ(TabKeyMove::BehindStrip, move_by_tab_key(in_page(forward, true)));
    EXPECT_EQ(TabKeyMove::ToStrip, move_by_tab_key(in_page(backward, true)));
}

TEST(TabKey, is_the_dialog_managers_within_the_page) {
    EXPECT_EQ(TabKeyMove::Nothing, move_by_tab_key(in_page(forward, false)));
    EXPECT_EQ(TabKeyMove::Nothing, move_by_tab_key(in_page(backward, false)));
}

TEST(TabKey, is_left_alone_elsewhere) {
    TabKeyPlace place = on_strip(forward);
    place.owner = KeyOwner::Other;
    place.onEdge = true;
    EXPECT_EQ(TabKeyMove::Nothing, move_by_tab_key(place));
}

}  // namespace
