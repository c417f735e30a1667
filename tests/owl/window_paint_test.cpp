#include <gtest/gtest.h>

#include <stdexcept>

#include "owl/button.h"
#include "owl/dialog.h"
#include "owl/window_dc.h"
#include "tests/owl/desk.h"
#include "tests/owl/resource_ids.h"

namespace {

constexpr COLORREF red = RGB(255, 0, 0);

// Fills what it is to paint with red.
void FillRed(owl::TDC& dc, const owl::TRect& rect) {
    const HBRUSH brush = ::CreateSolidBrush(red);
    ::FillRect(dc.GetHDC(), &rect, brush);
    ::DeleteObject(brush);
}

class Painted : public owl::TWindow {
public:
    explicit Painted(owl::TWindow* parent) : TWindow(parent) {
        Attr.W = 40;
        Attr.H = 30;
    }
    void Paint(owl::TDC& dc, bool erase, owl::TRect& rect) override {
        painted.push_back(rect);
        erased = !erase;
        if (throws)
            throw std::range_error("paint");
        FillRed(dc, rect);
    }

    std::vector<owl::TRect> painted;
    bool erased = false;
    bool throws = false;
};

class PaintedDialog : public owl::TDialog {
public:
    explicit PaintedDialog(owl::TWindow* parent) : TDialog(parent, IDD_TEST_DIALOG) {}
    void Paint(owl::TDC& dc, bool, owl::TRect& rect) override { FillRed(dc, rect); }
};

COLORREF PixelOf(const owl::TWindow& window, int x, int y) {
    owl::TClientDC dc(window.GetHandle());
    return ::GetPixel(dc.GetHDC(), x, y);
}

struct WindowPaint : testing::Test {
    WindowPaint() : window(new Painted(desk.frame)) {
        window->Create();
        desk::Activate(*desk.frame);
        window->UpdateWindow();
    }

    desk::Desk desk;
    Painted* window;
};

TEST_F(WindowPaint, puts_on_the_screen_what_Paint_draws) {
    EXPECT_EQ(red, PixelOf(*window, 0, 0));
    EXPECT_EQ(red, PixelOf(*window, 39, 29));
}

TEST_F(WindowPaint, says_what_is_to_be_painted) {
    window->painted.clear();
    window->InvalidateRect(owl::TRect(1, 2, 11, 12));
    window->UpdateWindow();
    EXPECT_EQ((std::vector<owl::TRect>{{1, 2, 11, 12}}), window->painted);
    EXPECT_TRUE(window->erased);
}

TEST_F(WindowPaint, happens_once_for_each_time_that_it_is_asked_for) {
    window->painted.clear();
    window->Invalidate();
    window->UpdateWindow();
    window->UpdateWindow();
    EXPECT_EQ(1U, window->painted.size());
}

// Else the system would ask for painting for ever.
TEST_F(WindowPaint, that_throws_is_not_asked_for_again) {
    window->painted.clear();
    window->throws = true;
    window->Invalidate();
    EXPECT_THROW(desk::PumpUntil([] { return false; }, 500), std::range_error);
    window->throws = false;
    desk::PumpUntil([] { return false; }, 50);
    EXPECT_EQ(1U, window->painted.size());
}

TEST_F(WindowPaint, of_a_control_is_left_to_the_control) {
    auto* button = new owl::TButton(desk.frame, 5, "", 50, 0, 40, 30);
    button->Create();
    button->UpdateWindow();
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), PixelOf(*button, 20, 15));
}

TEST_F(WindowPaint, of_a_dialog_comes_below_its_controls) {
    PaintedDialog dialog(desk.frame);
    dialog.Create();
    desk::Activate(dialog);
    dialog.UpdateWindow();
    EXPECT_EQ(red, PixelOf(dialog, 1, 1));
}

}  // namespace
