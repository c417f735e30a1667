#include "lvx/propdlg/hot_key.h"

#include <gtest/gtest.h>

namespace {

using lvx::propdlg::marked_letter;
using lvx::propdlg::shown_text;

TEST(HotKey, is_the_letter_behind_the_ampersand) {
    EXPECT_EQ('L', marked_letter("&Line"));
    EXPECT_EQ('n', marked_letter("Li&ne"));
    EXPECT_EQ('e', marked_letter("Lin&e"));
}

TEST(HotKey, is_not_there_without_an_ampersand) {
    EXPECT_EQ(0, marked_letter(""));
    EXPECT_EQ(0, marked_letter("Line"));
}

TEST(HotKey, is_not_made_by_a_pair_of_ampersands) {
    EXPECT_EQ(0, marked_letter("&&x"));
    EXPECT_EQ(0, marked_letter("&&"));
    EXPECT_EQ(0, marked_letter("a&&b&&c"));
}

TEST(HotKey, stands_behind_the_first_ampersand_that_is_alone) {
    EXPECT_EQ('y', marked_letter("&&x&y"));
    EXPECT_EQ('x', marked_letter("&&&x"));
    EXPECT_EQ('a', marked_letter("&a&b"));
    EXPECT_EQ(0, marked_letter("&&&&x"));
}

TEST(HotKey, is_not_there_if_the_caption_ends_with_the_ampersand) {
    EXPECT_EQ(0, marked_letter("&"));
    EXPECT_EQ(0, marked_letter("Line&"));
    EXPECT_EQ(0, marked_letter("&&&"));
}

TEST(HotKey, may_be_any_character) {
    EXPECT_EQ('1', marked_letter("Step &1"));
    EXPECT_EQ(' ', marked_letter("Tom & Jerry"));
    EXPECT_EQ('\xC4', marked_letter("&\xC4ndern"));
}

TEST(HotKey, does_not_show) {
    EXPECT_EQ("Line", shown_text("&Line"));
    EXPECT_EQ("R & D", shown_text("R && D"));
    EXPECT_EQ("two lines", shown_text("two\rlines"));
    EXPECT_EQ("end", shown_text("end&"));
    EXPECT_EQ("", shown_text(""));
}

}  // namespace
