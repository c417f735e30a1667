#include <gtest/gtest.h>

#include <memory>

#include "drawing/sheet.h"
#include "lvx/drawing/my_font.h"
#include "lvx/drawing/stock_tools.h"
#include "owl/font.h"

namespace {

struct Free {
    void operator()(LVXFont* font) const { font->free(); }
};
using OwnedFont = std::unique_ptr<LVXFont, Free>;

OwnedFont made(const myFont& description) {
    return OwnedFont(description.make_font());
}

LOGFONTA asked(const LVXFont& font) {
    LOGFONTA description{};
    EXPECT_TRUE(static_cast<owl::TFont&>(font).GetObject(description));
    return description;
}

}  // namespace

TEST(MyFontTools, describe_a_font_as_it_tells_of_itself) {
    const LVXFont font("Courier New", 18, true, false, true, false);
    const myFont description(font);
    EXPECT_EQ(font.face(), description.Face());
    EXPECT_EQ(18, description.Size());
    EXPECT_TRUE(description.Bold());
    EXPECT_FALSE(description.Italic());
    EXPECT_TRUE(description.Underline());
    EXPECT_FALSE(description.Strikeout());
    EXPECT_TRUE(myFont(&font) == description);
    const myFont other(LVXFont("Courier New", 18, false, true, false, true));
    EXPECT_FALSE(other.Bold());
    EXPECT_TRUE(other.Italic());
    EXPECT_FALSE(other.Underline());
    EXPECT_TRUE(other.Strikeout());
}

TEST(MyFontTools, describe_a_face_that_is_missing_by_the_one_that_stands_in) {
    const LVXFont font("lvx no such face", 12, false, false, false, false);
    const myFont description(font);
    EXPECT_EQ(font.face(), description.Face());
    EXPECT_NE("lvx no such face", description.Face());
}

TEST(MyFontTools, describe_a_font_without_a_size_by_the_size_it_has) {
    const LVXFont font(true);
    EXPECT_EQ(font.pointSize(), myFont(font).Size());
    EXPECT_LT(0, myFont(font).Size());
}

TEST(MyFontTools, describe_no_font_as_the_systems_own) {
    const myFont none(static_cast<const LVXFont*>(nullptr));
    EXPECT_TRUE(none == myFont());
    EXPECT_TRUE(none == myFont(brushes_etc::GetSysFont()));
    EXPECT_TRUE(none == myFont(LVXFont()));
}

TEST(MyFontTools, make_a_font_of_the_described_values) {
    const OwnedFont font = made(myFont("Courier New", 24, true, false, true, false));
    const LOGFONTA description = asked(*font);
    EXPECT_STREQ("Courier New", description.lfFaceName);
    EXPECT_EQ(-32, description.lfHeight);
    EXPECT_EQ(700, description.lfWeight);
    EXPECT_FALSE(description.lfItalic);
    EXPECT_TRUE(description.lfUnderline);
    EXPECT_FALSE(description.lfStrikeOut);
    const LOGFONTA other = asked(*made(myFont("Courier New", 24, false, true, false, true)));
    EXPECT_EQ(400, other.lfWeight);
    EXPECT_TRUE(other.lfItalic);
    EXPECT_FALSE(other.lfUnderline);
    EXPECT_TRUE(other.lfStrikeOut);
}

TEST(MyFontTools, make_a_font_of_whole_points) {
    EXPECT_EQ(10, made(myFont("Arial", 10.5, false, false, false, false))->pointSize());
    EXPECT_EQ(10, made(myFont("Arial", 10.999, false, false, false, false))->pointSize());
    EXPECT_EQ(-10, made(myFont("Arial", -10.5, false, false, false, false))->pointSize());
    EXPECT_EQ(2147483647, made(myFont("Arial", 1e300, false, false, false, false))->pointSize());
}

TEST(MyFontTools, make_a_font_of_a_long_face_by_its_first_31_bytes) {
    const std::string name(1000, 'x');
    const OwnedFont font = made(myFont(name.c_str(), 10, false, false, false, false));
    EXPECT_EQ(name.substr(0, 31), asked(*font).lfFaceName);
}

TEST(MyFontTools, make_fonts_that_are_the_callers) {
    const myFont description("Arial", 36, false, false, false, false);
    const OwnedFont first = made(description);
    const OwnedFont second = made(description);
    EXPECT_NE(first.get(), second.get());
    lvx_test::OpenPort open;
    const LVXFont* const own = open.port.currentFont();
    {
        const OwnedFont third = made(description);
        open.port.useFont(third.get());
        EXPECT_GT(open.port.textLineSpace(), 40);
    }
    EXPECT_EQ(own, open.port.currentFont());
}

TEST(MyFontTools, lead_from_a_font_to_its_like) {
    const LVXFont font("Arial", 14, true, true, false, false);
    const OwnedFont like = made(myFont(font));
    EXPECT_EQ(font.face(), like->face());
    EXPECT_EQ(font.pointSize(), like->pointSize());
    EXPECT_EQ(font.height(), like->height());
    EXPECT_EQ(font.bold(), like->bold());
    EXPECT_EQ(font.italic(), like->italic());
}

TEST(MyFontTools, that_the_system_refuses_are_told) {
    const LVXFont font("Arial", 14, true, true, false, false);
    const lvx_test::NoMoreObjects none;
    EXPECT_THROW(static_cast<void>(myFont(font)), owl::TXGdi);
    EXPECT_NO_THROW(made(myFont("Arial", 3, false, false, false, false)));
}
