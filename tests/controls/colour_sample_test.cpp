#include <gtest/gtest.h>

#include "lvx/controls/custom_colour_dialog.h"
#include "owl/palette.h"
#include "owl/static.h"
#include "support/screen_picture.h"
#include "tests/owl/desk.h"

namespace {

constexpr owl::TColor brick(178, 34, 35);
constexpr owl::TColor sea(0, 128, 127);

// Shows what it keeps, and counts how often its ground is painted.
struct OpenSample : ColourSample {
    using ColourSample::Colour;
    using ColourSample::ColourSample;
    using ColourSample::Frame;
    using ColourSample::Palette;

    LRESULT WindowProc(UINT msg, WPARAM wParam, LPARAM lParam) override {
        erasures += msg == WM_ERASEBKGND ? 1 : 0;
        return ColourSample::WindowProc(msg, wParam, lParam);
    }
    int erasures = 0;
};

struct Sample : testing::Test {
    Sample() : frame(new owl::TStatic(desk.frame, 116, "", 20, 30, 40, 25)) {
        frame->Attr.Style &= ~static_cast<DWORD>(WS_VISIBLE);
        frame->Create();
    }

    OpenSample& Show() {
        sample = new OpenSample(frame, 117, brick, nullptr);
        sample->Create();
        EXPECT_TRUE(desk::Activate(*desk.frame));
        desk::PumpUntil([] { return false; }, 50);
        return *sample;
    }
    /// A pixel of the sample, as the screen shows it.
    COLORREF At(int x, int y) const {
        const HDC context = ::GetDC(sample->GetHandle());
        const COLORREF colour = ::GetPixel(context, x, y);
        ::ReleaseDC(sample->GetHandle(), context);
        return colour;
    }

    /// How many pixels of a window have a colour. Not asked of the screen, which may be behind.
    static std::ptrdiff_t Count(const owl::TWindow& window, COLORREF colour) {
        const HDC context = ::GetDC(window.GetHandle());
        const user::ScreenPicture picture(context, window.GetClientRect());
        ::ReleaseDC(window.GetHandle(), context);
        return picture.Count(colour);
    }

    desk::Desk desk;
    owl::TStatic* frame;
    OpenSample* sample = nullptr;
};

}  // namespace

TEST_F(Sample, takes_the_place_of_its_frame) {
    Show();
    EXPECT_EQ(frame->GetWindowRect(), sample->GetWindowRect());
    EXPECT_EQ(frame->Parent, sample->Parent);
    EXPECT_EQ(frame, sample->Frame);
    EXPECT_EQ(117, ::GetDlgCtrlID(sample->GetHandle()));
    EXPECT_EQ("", sample->GetWindowText());
}

TEST_F(Sample, is_passed_over_by_tab) {
    EXPECT_EQ(0U, Show().GetStyle() & WS_TABSTOP);
}

TEST_F(Sample, shows_its_colour_within_an_edge_of_two_pixels) {
    Show();
    const COLORREF highlight = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF dark = ::GetSysColor(COLOR_WINDOWFRAME);
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    const struct {
        int x, y;
        COLORREF colour;
    } cases[] = {
        {0, 0, highlight}, {20, 0, highlight}, {0, 12, highlight}, {39, 12, dark}, {20, 24, dark},
        {39, 24, dark},    {1, 1, face},       {20, 1, face},      {1, 12, face},  {38, 12, shadow},
        {20, 23, shadow},  {38, 23, shadow},   {2, 2, brick},      {37, 2, brick}, {2, 22, brick},
        {37, 22, brick},   {20, 12, brick},
    };
    for (const auto& [x, y, colour] : cases)
        EXPECT_EQ(colour, At(x, y)) << x << ' ' << y;
    EXPECT_EQ(36 * 21, Count(*sample, brick));
}

TEST_F(Sample, shows_another_colour) {
    Show();
    sample->setColour(sea);
    sample->UpdateWindow();
    EXPECT_EQ(sea, At(20, 12));
    EXPECT_EQ(sea, sample->Colour);
}

// No flicker: of many changes between two paintings the last alone is painted, and no ground before it.
TEST_F(Sample, paints_once_for_all_changes) {
    Show();
    sample->erasures = 0;
    for (int i = 0; i < 10; ++i)
        sample->setColour(owl::TColor(i, i, i));
    EXPECT_EQ(0, sample->erasures);
    sample->UpdateWindow();
    EXPECT_EQ(1, sample->erasures);
    EXPECT_EQ(owl::TColor(9, 9, 9), At(20, 12));
}

TEST_F(Sample, paints_at_the_time_of_erasing) {
    Show();
    const HDC memory = ::CreateCompatibleDC(nullptr);
    const HDC screen = ::GetDC(nullptr);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, 40, 25);
    ::ReleaseDC(nullptr, screen);
    const HGDIOBJ former = ::SelectObject(memory, bitmap);
    EXPECT_EQ(TRUE, sample->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(memory)));
    EXPECT_EQ(brick, ::GetPixel(memory, 20, 12));
    ::SelectObject(memory, former);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
}

TEST_F(Sample, has_its_colour_in_a_palette_of_one_entry) {
    Show();
    EXPECT_EQ(1, sample->Palette->GetNumEntries());
    PALETTEENTRY entry{};
    sample->Palette->GetPaletteEntry(0, entry);
    EXPECT_EQ(brick, RGB(entry.peRed, entry.peGreen, entry.peBlue));
    EXPECT_EQ(0, entry.peFlags);
    sample->setColour(sea.PaletteRelative());
    sample->Palette->GetPaletteEntry(0, entry);
    EXPECT_EQ(sea, RGB(entry.peRed, entry.peGreen, entry.peBlue));
    EXPECT_EQ(0, entry.peFlags);
}

TEST_F(Sample, without_a_window_takes_another_colour) {
    sample = new OpenSample(frame, 117, brick, nullptr);
    sample->setColour(sea);
    sample->Create();
    EXPECT_TRUE(desk::Activate(*desk.frame));
    sample->UpdateWindow();
    EXPECT_EQ(sea, At(20, 12));
}

// What is too small for an inside would be drawn inside out.
TEST_F(Sample, draws_nothing_around_itself_however_small) {
    ASSERT_TRUE(desk::Activate(*desk.frame));
    for (int size = 0; size <= 5; ++size) {
        owl::TStatic small(desk.frame, 118, "", 100, 100, size, size);
        small.Attr.Style &= ~static_cast<DWORD>(WS_VISIBLE);
        small.Create();
        OpenSample tiny(&small, 119, brick, nullptr);
        tiny.Create();
        tiny.setColour(brick);
        tiny.UpdateWindow();
        const owl::TRect client = tiny.GetClientRect();
        EXPECT_EQ(size, client.Width());
        const int inside = std::max(0, size - 4);
        EXPECT_EQ(inside * inside, Count(tiny, brick)) << size;
    }
}
