#include <gtest/gtest.h>

#include <string>

#include "drawing/sheet.h"
#include "lvx/drawing/font.h"
#include "owl/font.h"
#include "owl/memory_dc.h"
#include "owl/metafile_dc.h"

using lvx_test::NoMoreObjects;
using lvx_test::OpenPort;

namespace {

constexpr int screen_dpi = 96;

LVXFont plain(const std::string& face, int points) {
    return LVXFont(face, points, false, false, false, false);
}

LOGFONTA asked(const LVXFont& font) {
    LOGFONTA description{};
    EXPECT_TRUE(static_cast<owl::TFont&>(font).GetObject(description));
    return description;
}

/// What a context like the screen's has for a description, without any of the library's classes.
struct Given {
    explicit Given(const LOGFONTA& description) {
        const HDC dc = ::CreateCompatibleDC(nullptr);
        const HFONT font = ::CreateFontIndirectA(&description);
        const HGDIOBJ before = ::SelectObject(dc, font);
        ::GetTextMetricsA(dc, &metrics);
        ::GetTextFaceA(dc, sizeof face, face);
        ::SelectObject(dc, before);
        ::DeleteObject(font);
        ::DeleteDC(dc);
    }

    TEXTMETRICA metrics{};
    char face[128] = "";
};

LOGFONTA description(const char* face, int height, int weight = FW_NORMAL) {
    LOGFONTA description{};
    description.lfHeight = height;
    description.lfWeight = weight;
    description.lfOutPrecision = OUT_TT_PRECIS;
    description.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpyA(description.lfFaceName, face);
    return description;
}

}  // namespace

TEST(FontActual, asks_for_the_height_of_its_points_on_the_device) {
    OpenPort open;
    ASSERT_EQ(screen_dpi, open.sheet.surface.dc.GetDeviceCaps(LOGPIXELSY));
    LVXFont font = plain("Arial", 12);
    open.port.useFont(&font);
    EXPECT_EQ(-16, asked(font).lfHeight);
    font.pointSize(11);
    EXPECT_EQ(-14, asked(font).lfHeight);
    font.pointSize(-12);
    EXPECT_EQ(-16, asked(font).lfHeight);
    open.port.useFont(nullptr);
}

TEST(FontActual, without_a_size_asks_for_any_and_takes_its_points_from_the_device) {
    LVXFont font;
    const int points = font.pointSize();
    EXPECT_EQ(0, asked(font).lfHeight);
    EXPECT_EQ(font.height() * 72 / screen_dpi, points);
    EXPECT_GT(points, 0);
    owl::TMemoryDC dc;
    font.select(dc);
    EXPECT_EQ(-(screen_dpi * points * 20 / 1440), asked(font).lfHeight);
    EXPECT_EQ(points, font.pointSize());
}

TEST(FontActual, tells_what_the_device_has_given) {
    const LVXFont font("Courier New", 18, true, true, false, true);
    const Given given(asked(font));
    EXPECT_EQ(-24, asked(font).lfHeight);
    EXPECT_EQ(given.face, font.face());
    EXPECT_EQ(given.metrics.tmHeight, font.height());
    EXPECT_EQ(given.metrics.tmAveCharWidth, font.width());
    EXPECT_EQ(given.metrics.tmMaxCharWidth, font.maxWidth());
    EXPECT_EQ(given.metrics.tmWeight > 400, font.bold());
    EXPECT_EQ(given.metrics.tmItalic != 0, font.italic());
    EXPECT_FALSE(font.underline());
    EXPECT_TRUE(font.strikeOut());
    EXPECT_TRUE(font.bold());
    EXPECT_TRUE(font.italic());
    EXPECT_EQ(18, font.pointSize());
}

TEST(FontActual, of_a_face_that_is_missing_is_the_one_that_stands_in) {
    const LVXFont font = plain("lvx no such face", 12);
    const Given given(description("lvx no such face", -16));
    ASSERT_STRNE("lvx no such face", given.face);
    EXPECT_EQ(given.face, font.face());
}

// A deliberate oddity: what a device answered is what the next one is asked for.
TEST(FontActual, asks_the_next_device_for_what_the_last_one_has_given) {
    const LVXFont font = plain("lvx no such face", 12);
    EXPECT_STREQ("lvx no such face", asked(font).lfFaceName);
    const Given given(asked(font));
    owl::TMemoryDC dc;
    font.select(dc);
    EXPECT_STREQ(given.face, asked(font).lfFaceName);
    EXPECT_EQ(given.metrics.tmWeight, asked(font).lfWeight);
    EXPECT_EQ(given.metrics.tmCharSet, asked(font).lfCharSet);
    EXPECT_EQ(given.metrics.tmPitchAndFamily, asked(font).lfPitchAndFamily);
    EXPECT_EQ(-16, asked(font).lfHeight);
    EXPECT_EQ(0, asked(font).lfWidth);
}

TEST(FontActual, is_asked_of_the_screen_once) {
    const LVXFont font = plain("Arial", 12);
    EXPECT_GT(font.height(), 0);
    const HGDIOBJ handle = static_cast<owl::TFont&>(font).GetHandle();
    font.face();
    font.width();
    font.maxWidth();
    font.pointSize();
    font.bold();
    EXPECT_EQ(handle, static_cast<owl::TFont&>(font).GetHandle());
}

TEST(FontActual, is_not_asked_for_a_size_that_was_set) {
    const LVXFont font = plain("Arial", 12);
    const NoMoreObjects none;
    EXPECT_EQ(12, font.pointSize());
    EXPECT_EQ(0, font.orientation());
    EXPECT_THROW(font.height(), owl::TXGdi);
}

TEST(FontActual, made_of_a_height_is_the_systems_font_of_that_height) {
    LVXFont font = plain("Arial", 12);
    EXPECT_TRUE(font.make(33));
    EXPECT_EQ(33, asked(font).lfHeight);
    EXPECT_EQ(0, asked(font).lfWidth);
    EXPECT_STREQ("Arial", asked(font).lfFaceName);
    EXPECT_TRUE(font.make());
    EXPECT_EQ(-16, asked(font).lfHeight);
}

TEST(FontActual, selected_writes_in_its_face_and_size) {
    OpenPort open(200, 60);
    const LVXFont font("Arial", 24, true, false, false, false);
    font.select(open.sheet.surface.dc);
    open.sheet.surface.dc.TextOut(5, 5, "Agx");

    owl_test::Surface expected(200, 60);
    const LOGFONTA bold = description("Arial", -32, FW_BOLD);
    const HFONT bare = ::CreateFontIndirectA(&bold);
    const HGDIOBJ before = ::SelectObject(expected.dc, bare);
    ::SetBkMode(expected.dc, TRANSPARENT);
    ::TextOutA(expected.dc, 5, 5, "Agx", 3);
    ::SelectObject(expected.dc, before);
    ::DeleteObject(bare);
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 200; ++x) {
            ASSERT_EQ(expected.At(x, y), open.sheet.surface.At(x, y)) << x << ", " << y;
        }
    }
    open.sheet.surface.dc.RestoreFont();
}

// One device of each resolution; the port that was there first keeps the font that was made for it.
TEST(FontActual, selected_on_a_second_port_stays_on_the_first) {
    OpenPort first(200, 60);
    OpenPort second(200, 60);
    LVXFont font = plain("Arial", 24);
    first.port.useFont(&font);
    const int space = first.port.textLineSpace();
    second.port.useFont(&font);
    EXPECT_EQ(space, first.port.textLineSpace());
    first.port.wrtText("Agx", 5, 5);
    second.port.wrtText("Agx", 5, 5);
    EXPECT_EQ(second.Picture(), first.Picture());
    EXPECT_NE(lvx_test::rows(60, std::string(200, '.')), first.Picture());
    first.port.useFont(nullptr);
    second.port.useFont(nullptr);
}

// It tells neither its resolution nor, on some systems, its map mode.
TEST(FontActual, on_a_metafile_is_measured_in_its_own_units) {
    owl::TMetaFileDC dc;
    ASSERT_EQ(0, dc.GetDeviceCaps(LOGPIXELSY));
    const LVXFont font = plain("Arial", 12);
    font.select(dc);
    EXPECT_EQ(-42, asked(font).lfHeight);  // 254 * 12 * 20 / 1440
    dc.RestoreFont();
    EXPECT_EQ(12, font.pointSize());
    EXPECT_EQ(plain("Arial", 12).height(), font.height());
}
