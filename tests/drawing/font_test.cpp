#include "lvx/drawing/font.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "drawing/sheet.h"
#include "owl/font.h"

using lvx_test::NoMoreObjects;
using lvx_test::OpenPort;
using lvx_test::Sheet;

namespace {

/// What the system was asked for by the font that it has now, before any device answered.
LOGFONTA asked(const LVXFont& font) {
    LOGFONTA description{};
    EXPECT_TRUE(static_cast<owl::TFont&>(font).GetObject(description));
    return description;
}

LVXFont plain(const std::string& face, int points = 12) {
    return LVXFont(face, points, false, false, false, false);
}

}  // namespace

TEST(Font, asks_the_system_for_what_it_was_made_of) {
    const LVXFont font("Arial", 12, true, false, true, false);
    const LOGFONTA description = asked(font);
    EXPECT_STREQ("Arial", description.lfFaceName);
    EXPECT_EQ(700, description.lfWeight);
    EXPECT_FALSE(description.lfItalic);
    EXPECT_TRUE(description.lfUnderline);
    EXPECT_FALSE(description.lfStrikeOut);
    EXPECT_EQ(0, description.lfWidth);
    EXPECT_EQ(0, description.lfEscapement);
    EXPECT_EQ(0, description.lfOrientation);
    EXPECT_EQ(OUT_TT_PRECIS, description.lfOutPrecision);
    EXPECT_EQ(0, description.lfClipPrecision);
    EXPECT_EQ(0, description.lfQuality);
    EXPECT_EQ(0, description.lfPitchAndFamily);
    EXPECT_EQ(1, description.lfCharSet);
    const LVXFont other(std::string("Arial"), 12, false, true, false, true);
    EXPECT_EQ(400, asked(other).lfWeight);
    EXPECT_TRUE(asked(other).lfItalic);
    EXPECT_FALSE(asked(other).lfUnderline);
    EXPECT_TRUE(asked(other).lfStrikeOut);
}

TEST(Font, of_an_old_face_asks_for_its_character_set) {
    const struct {
        const char* face;
        int pitchAndFamily, charSet;
    } cases[] = {{"Modern", 0x32, 255}, {"Roman", 0x12, 255}, {"Script", 0x42, 255},
                 {"8514oem", 1, 255},   {"Terminal", 1, 255}, {"Arial", 0, 1}};
    for (const auto& [face, pitchAndFamily, charSet] : cases) {
        const LVXFont made = plain(face);
        LVXFont set = plain("Courier New");
        set.face(face);
        for (const LVXFont* font : {&made, static_cast<const LVXFont*>(&set)}) {
            EXPECT_EQ(pitchAndFamily, asked(*font).lfPitchAndFamily) << face;
            EXPECT_EQ(charSet, asked(*font).lfCharSet) << face;
            EXPECT_STREQ(face, asked(*font).lfFaceName);
        }
    }
}

TEST(Font, takes_31_bytes_of_a_face) {
    const std::string letters = "abcdefghijklmnopqrstuvwxyzABCDEF";  // 32
    EXPECT_EQ(letters.substr(0, 30), asked(plain(letters.substr(0, 30))).lfFaceName);
    EXPECT_EQ(letters.substr(0, 31), asked(plain(letters.substr(0, 31))).lfFaceName);
    EXPECT_EQ(letters.substr(0, 31), asked(plain(letters)).lfFaceName);
    EXPECT_EQ(letters.substr(0, 31), asked(plain(letters + std::string(1000, 'x'))).lfFaceName);
    LVXFont used = plain("Arial");
    used.height();
    used.face(letters);
    EXPECT_EQ(letters.substr(0, 31), asked(used).lfFaceName);
    used.face("ab");
    EXPECT_STREQ("ab", asked(used).lfFaceName);
}

TEST(Font, without_a_name_leaves_the_choice_to_the_system) {
    const char* const none = nullptr;
    LVXFont font(none, 12, false, false, false, false);
    EXPECT_STREQ("", asked(font).lfFaceName);
    EXPECT_NE("", font.face());
    font.face("Arial");
    font.face(none);
    EXPECT_STREQ("", asked(font).lfFaceName);
}

TEST(Font, copies_a_face_for_the_next_time_that_it_is_made) {
    LVXFont font = plain("Arial");
    EXPECT_STREQ("Arial", asked(font).lfFaceName);
    font.copyFace("Terminal");
    EXPECT_STREQ("Arial", asked(font).lfFaceName);
    EXPECT_TRUE(font.make());
    EXPECT_STREQ("Terminal", asked(font).lfFaceName);
    EXPECT_EQ(255, asked(font).lfCharSet);
}

TEST(Font, is_the_systems_own_at_first) {
    const struct {
        LVXFont font;
        int stock;
    } cases[] = {{LVXFont(), SYSTEM_FONT}, {LVXFont(false), SYSTEM_FONT}, {LVXFont(true), SYSTEM_FIXED_FONT}};
    for (const auto& [font, stock] : cases) {
        LOGFONTA expected;
        ::GetObjectA(::GetStockObject(stock), sizeof expected, &expected);
        EXPECT_STREQ(expected.lfFaceName, asked(font).lfFaceName);
        EXPECT_EQ(expected.lfHeight, asked(font).lfHeight);
        EXPECT_EQ(expected.lfCharSet, asked(font).lfCharSet);
    }
}

TEST(Font, of_the_system_is_borrowed) {
    const HGDIOBJ stock = ::GetStockObject(SYSTEM_FONT);
    {
        LVXFont font;
        EXPECT_EQ(stock, static_cast<owl::TFont&>(font).GetHandle());
    }
    EXPECT_EQ(DWORD{OBJ_FONT}, ::GetObjectType(stock));
}

TEST(Font, copied_asks_anew) {
    const LVXFont font("Arial", 24, true, false, false, false);
    const int height = font.height();
    const LVXFont copy(font);
    EXPECT_EQ(-32, asked(copy).lfHeight);
    EXPECT_EQ(height, copy.height());
    EXPECT_EQ(24, copy.pointSize());
    EXPECT_TRUE(copy.bold());
    EXPECT_EQ(font.face(), copy.face());
    EXPECT_NE(static_cast<owl::TFont&>(font).GetHandle(), static_cast<owl::TFont&>(copy).GetHandle());
}

TEST(Font, copied_makes_no_font_of_the_system_before_it_is_needed) {
    const LVXFont font = plain("Arial", 24);
    const LVXFont system;
    LVXFont other = plain("Courier New");
    EXPECT_GT(font.height(), 24);
    const NoMoreObjects none;
    EXPECT_NO_THROW(LVXFont{font});
    EXPECT_NO_THROW(other = font);
    EXPECT_THROW(LVXFont{system}, owl::TXGdi);
    EXPECT_THROW(other = system, owl::TXGdi);
    EXPECT_EQ(24, other.pointSize());
}

TEST(Font, of_the_system_copied_has_a_font_of_its_own) {
    LVXFont font(true);
    LVXFont copy(font);
    EXPECT_NE(static_cast<owl::TFont&>(font).GetHandle(), static_cast<owl::TFont&>(copy).GetHandle());
    EXPECT_STREQ(asked(font).lfFaceName, asked(copy).lfFaceName);
    font.make();
    const LVXFont without(font);
    EXPECT_EQ(font.face(), without.face());
}

TEST(Font, assigned_keeps_its_ports_and_takes_the_values) {
    OpenPort open;
    LVXFont font = plain("Arial", 10);
    open.port.useFont(&font);
    const LVXFont source("Courier New", 30, false, true, false, false);
    font = source;
    EXPECT_EQ(&font, open.port.currentFont());
    EXPECT_EQ(static_cast<owl::TFont&>(font).GetHandle(), open.sheet.Selected(OBJ_FONT));
    EXPECT_EQ(-40, asked(font).lfHeight);
    EXPECT_EQ(source.face(), font.face());
    EXPECT_TRUE(font.italic());
    open.port.useFont(nullptr);
}

TEST(Font, assigned_to_itself_stays_what_it_is) {
    OpenPort open;
    LVXFont font = plain("Arial", 30);
    LVXFont system;
    open.port.useFont(&font);
    for (LVXFont* each : {&font, &system}) {
        const std::string face = each->face();
        const int points = each->pointSize();
        const LVXFont& same = *each;
        *each = same;
        EXPECT_EQ(face, each->face());
        EXPECT_EQ(points, each->pointSize());
    }
    EXPECT_EQ(static_cast<owl::TFont&>(font).GetHandle(), open.sheet.Selected(OBJ_FONT));
    open.port.useFont(nullptr);
}

TEST(Font, setters_ask_for_something_else) {
    LVXFont font = plain("Arial", 12);
    font.pointSize(24);
    EXPECT_EQ(-32, asked(font).lfHeight);
    EXPECT_EQ(24, font.pointSize());
    font.bold(true);
    EXPECT_EQ(700, asked(font).lfWeight);
    EXPECT_TRUE(font.bold());
    font.bold(false);
    EXPECT_EQ(400, asked(font).lfWeight);
    EXPECT_FALSE(font.bold());
    font.italic(true);
    EXPECT_TRUE(asked(font).lfItalic);
    EXPECT_TRUE(font.italic());
    font.underline(true);
    EXPECT_TRUE(asked(font).lfUnderline);
    EXPECT_TRUE(font.underline());
    font.strikeOut(true);
    EXPECT_TRUE(asked(font).lfStrikeOut);
    EXPECT_TRUE(font.strikeOut());
    font.orientation(900);
    EXPECT_EQ(900, asked(font).lfEscapement);
    EXPECT_EQ(0, asked(font).lfOrientation);
    EXPECT_EQ(900, font.orientation());
    font.face("Courier New");
    EXPECT_STREQ("Courier New", asked(font).lfFaceName);
    font.face(std::string("Arial"));
    EXPECT_STREQ("Arial", asked(font).lfFaceName);
    EXPECT_EQ(24, font.pointSize());
}

TEST(Font, changed_while_two_ports_use_it_changes_in_both) {
    OpenPort first;
    OpenPort second;
    LVXFont font = plain("Arial", 12);
    first.port.useFont(&font);
    second.port.useFont(&font);
    font.pointSize(36);
    for (OpenPort* open : {&first, &second}) {
        LOGFONTA selected{};
        ::GetObjectA(open->sheet.Selected(OBJ_FONT), sizeof selected, &selected);
        EXPECT_EQ(-48, selected.lfHeight);
        open->port.useFont(nullptr);
    }
}

TEST(Font, that_goes_leaves_its_ports_with_their_own) {
    OpenPort open;
    const LVXFont* const own = open.port.currentFont();
    const int space = open.port.textLineSpace();
    {
        LVXFont font = plain("Arial", 36);
        open.port.useFont(&font);
        EXPECT_GT(open.port.textLineSpace(), 40);
    }
    EXPECT_EQ(own, open.port.currentFont());
    EXPECT_EQ(space, open.port.textLineSpace());
}

TEST(Font, bound_twice_is_bound_once) {
    OpenPort open;
    LVXFont font = plain("Arial");
    const LVXFont* const own = open.port.currentFont();
    font.bind(&open.port, true);
    font.bind(&open.port, true);
    font.bind(&open.port, false);
    font.bind(nullptr, true);
    font.pointSize(36);
    EXPECT_EQ(own, open.port.currentFont());
}

TEST(Font, is_freed_also_when_it_is_null) {
    OpenPort open;
    const LVXFont* const own = open.port.currentFont();
    auto* font = new LVXFont("Arial", 36, false, false, false, false);
    open.port.useFont(font);
    font->free();
    EXPECT_EQ(own, open.port.currentFont());
    LVXFont* const volatile none = nullptr;
    font = none;
    font->free();
}

TEST(Font, is_not_made_of_a_name_alone) {
    EXPECT_FALSE((std::is_constructible_v<LVXFont, const char*>));
    EXPECT_TRUE((std::is_constructible_v<LVXFont, bool>));
}

// What the second port needs is more than the first one gives back.
TEST(Font, that_the_system_refuses_has_its_values_of_before) {
    OpenPort first;
    OpenPort second;
    LVXFont font = plain("Arial", 12);
    first.port.useFont(&font);
    font.bind(&second.port, true);
    const std::string face = font.face();
    {
        const NoMoreObjects none;
        EXPECT_THROW(font.pointSize(36), owl::TXGdi);
        EXPECT_THROW(font.face("Courier New"), owl::TXGdi);
        EXPECT_THROW(font.getActual(), owl::TXGdi);
    }
    EXPECT_EQ(12, font.pointSize());
    EXPECT_EQ(face, font.face());
    EXPECT_EQ(&font, first.port.currentFont());
    first.port.useFont(&font);
    EXPECT_EQ(-16, asked(font).lfHeight);
    EXPECT_EQ(static_cast<owl::TFont&>(font).GetHandle(), first.sheet.Selected(OBJ_FONT));
    first.port.useFont(nullptr);
    second.port.useFont(nullptr);
}

// An assignment left the values of the other font behind.
TEST(Font, that_the_system_refuses_to_be_assigned_has_its_values_of_before) {
    OpenPort first;
    OpenPort second;
    LVXFont font = plain("Arial", 12);
    first.port.useFont(&font);
    font.bind(&second.port, true);
    const std::string face = font.face();
    const LVXFont source("Courier New", 36, true, true, false, false);
    {
        const NoMoreObjects none;
        EXPECT_THROW(font = source, owl::TXGdi);
    }
    EXPECT_EQ(12, font.pointSize());
    EXPECT_EQ(face, font.face());
    EXPECT_FALSE(font.italic());
    first.port.useFont(&font);
    EXPECT_EQ(-16, asked(font).lfHeight);
    EXPECT_EQ(static_cast<owl::TFont&>(font).GetHandle(), first.sheet.Selected(OBJ_FONT));
    first.port.useFont(nullptr);
    second.port.useFont(nullptr);
}

// Its end cannot fail.
TEST(Font, that_goes_while_the_system_refuses_fonts_leaves_its_port_with_the_first_one) {
    OpenPort open;
    auto font = std::make_unique<LVXFont>("Arial", 36, false, false, false, false);
    const LVXFont* const own = open.port.currentFont();
    open.port.useFont(font.get());
    {
        const NoMoreObjects none;
        font.reset();
    }
    EXPECT_EQ(own, open.port.currentFont());
    EXPECT_EQ(::GetStockObject(SYSTEM_FONT), open.sheet.Selected(OBJ_FONT));
}
