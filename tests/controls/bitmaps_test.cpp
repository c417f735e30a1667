// The pictures lie in the resources of this program, each with a width of its own (dialogs.rc).
#include "lvx/controls/bitmaps.h"

#include <gtest/gtest.h>

#include <array>

#include "owl/error.h"
#include "support/peer_process.h"

namespace {

/// Where a button's pictures are got, where they are kept, and how wide the first of its three is.
struct Button {
    LVXBitmap** (*get)();
    LVXBitmap* (&kept)[4];
    int width;
};

const Button buttons[] = {
    {&bitmaps::ok, bitmaps::okbmps, 3},  {&bitmaps::cn, bitmaps::cnbmps, 6},
    {&bitmaps::ys, bitmaps::ysbmps, 9},  {&bitmaps::no, bitmaps::nobmps, 12},
    {&bitmaps::fn, bitmaps::fnbmps, 18},
};

}  // namespace

TEST(Bitmaps, are_two_icons) {
    EXPECT_EQ(1, bitmaps::question()->GetWidth());
    EXPECT_EQ(2, bitmaps::exclamation()->GetWidth());
    EXPECT_EQ(bitmaps::ques, bitmaps::question());
    EXPECT_EQ(bitmaps::excl, bitmaps::exclamation());
}

TEST(Bitmaps, are_three_of_a_button_with_a_hole) {
    for (const Button& button : buttons) {
        LVXBitmap** const pictures = button.get();
        EXPECT_EQ(button.width, pictures[0]->GetWidth());
        EXPECT_EQ(button.width + 1, pictures[1]->GetWidth());
        EXPECT_EQ(nullptr, pictures[2]);
        EXPECT_EQ(button.width + 2, pictures[3]->GetWidth());
        EXPECT_EQ(button.kept, pictures);
    }
}

TEST(Bitmaps, are_made_once) {
    EXPECT_EQ(bitmaps::question(), bitmaps::question());
    for (const Button& button : buttons) {
        LVXBitmap** const pictures = button.get();
        const std::array<LVXBitmap*, 4> first{pictures[0], pictures[1], pictures[2], pictures[3]};
        EXPECT_EQ(pictures, button.get());
        EXPECT_EQ(first, (std::array<LVXBitmap*, 4>{pictures[0], pictures[1], pictures[2], pictures[3]}));
    }
}

TEST(Bitmaps, that_are_missing_are_told_and_the_others_kept) {
    // The third picture of the help button is missing.
    EXPECT_THROW(bitmaps::hp(), owl::TXGdi);
    LVXBitmap* const up = bitmaps::hpbmps[0];
    LVXBitmap* const down = bitmaps::hpbmps[1];
    ASSERT_NE(nullptr, up);
    EXPECT_EQ(15, up->GetWidth());
    ASSERT_NE(nullptr, down);
    EXPECT_EQ(nullptr, bitmaps::hpbmps[3]);
    EXPECT_THROW(bitmaps::hp(), owl::TXGdi);
    EXPECT_EQ(up, bitmaps::hpbmps[0]);
}

TEST(Bitmaps, go_with_the_library) {
    lvx_test::PeerProcess peer("lvx_bitmaps_peer.exe", {});
    EXPECT_EQ(0, peer.Result());
}
