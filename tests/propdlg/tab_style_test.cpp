#include "lvx/propdlg/tab_style.h"

#include <gtest/gtest.h>

namespace {

struct Flag {
    Tab::Style style;
    unsigned long value;
};

// Another unit's object may be made of them before anything else of this program runs.
const unsigned long made_early = Tab::Stacked | Tab::DoubleHeight;

TEST(tab_style, each_flag_has_its_published_value) {
    const Flag flags[] = {{Tab::SingleHeight, 0x00000},       {Tab::VariableWidth, 0x00000},
                          {Tab::DoubleHeight, 0x00001},       {Tab::FixedWidth, 0x00002},
                          {Tab::ColorActive, 0x00004},        {Tab::Collapsing, 0x00008},
                          {Tab::Justified, 0x00010},          {Tab::Stacked, 0x00020},
                          {Tab::AllowDupPages, 0x00040},      {Tab::CreateOnDemand, 0x00080},
                          {Tab::WideMargins, 0x00100},        {Tab::AutoTabResize, 0x00200},
                          {Tab::ButtonsOnRight, 0x00400},     {Tab::UseSmallFont, 0x00800},
                          {Tab::SaveOnClosePage, 0x01000},    {Tab::NoMDIClose, 0x02000},
                          {Tab::WizardFrame, 0x04000},        {Tab::UseTabBitmaps, 0x08000},
                          {Tab::CenterDialog, 0x10000},       {Tab::CreateOnDemandAndKeepIt, 0x20000},
                          {Tab::FocusOnFirstControl, 0x40000}};
    for (const Flag& flag : flags)
        EXPECT_EQ(flag.value, static_cast<unsigned long>(flag.style));
}

TEST(tab_style, a_style_without_flags_is_zero) {
    EXPECT_EQ(0ul, static_cast<unsigned long>(Tab::Style()));
}

TEST(tab_style, flags_are_put_together_and_taken_apart) {
    const Tab::Style style = Tab::Stacked | Tab::WideMargins;
    EXPECT_EQ(0x120ul, static_cast<unsigned long>(style));
    EXPECT_TRUE(Tab::Has(style, Tab::Stacked));
    EXPECT_TRUE(Tab::Has(style, Tab::Stacked | Tab::WideMargins));
    EXPECT_FALSE(Tab::Has(style, Tab::Stacked | Tab::DoubleHeight));
    EXPECT_FALSE(Tab::Has(style, Tab::Justified));
}

TEST(tab_style, unknown_bits_are_kept) {
    EXPECT_EQ(0x80000000ul, static_cast<unsigned long>(Tab::Style(0x80000000ul)));
}

TEST(tab_style, flags_have_their_values_while_static_objects_are_made) {
    EXPECT_EQ(0x21ul, made_early);
}

}  // namespace
