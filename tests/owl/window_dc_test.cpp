#include "owl/window_dc.h"

#include <gtest/gtest.h>

#include "letter_picture.h"
#include "message_window.h"
#include "owl/brush.h"
#include "owl/error.h"
#include "owl/pen.h"
#include "surface.h"

namespace {

using owl::TClientDC;
using owl::TColor;
using owl::TPaintDC;
using owl::TRect;
using owl::TScreenDC;
using owl::TWindowDC;
using owl_test::MessageWindow;

/// A window with a frame, shown at (20, 20), 100 by 80.
class Framed : public MessageWindow {
public:
    Framed() : MessageWindow(WS_POPUP | WS_BORDER, 100, 80) { Show(); }
};

TEST(WindowDc, begins_at_the_frame_and_a_client_context_inside_of_it) {
    const Framed window;
    POINT client = {0, 0};
    ::ClientToScreen(window, &client);
    RECT frame;
    ::GetWindowRect(window, &frame);
    ASSERT_GT(client.x, frame.left);
    POINT origin = {-1, -1};
    ::GetDCOrgEx(TWindowDC(window), &origin);
    EXPECT_EQ(frame.left, origin.x);
    ::GetDCOrgEx(TClientDC(window), &origin);
    EXPECT_EQ(client.x, origin.x);
    EXPECT_EQ(client.y, origin.y);
}

TEST(WindowDc, draws_on_the_window) {
    const Framed window;
    {
        TClientDC dc(window);
        dc.SetPixel(3, 4, TColor(9, 8, 7));
    }
    EXPECT_EQ(TColor(9, 8, 7), TClientDC(window).GetPixel(3, 4));
}

/// A picture and a rectangle under a turn, on a ground of one colour.
void DrawTurned(owl::TDC& dc) {
    const owl_test::LetterPicture picture({"RG", "BY"}, 24);
    const owl::TBrush cyan(TColor::LtCyan);
    dc.PatBlt(0, 0, 90, 70, WHITENESS);
    dc.SetGraphicsMode(GM_ADVANCED);
    dc.SetWorldTransform({0.8f, 0.6f, -0.6f, 0.8f, 40, 30});
    EXPECT_TRUE(dc.StretchDIBits(TRect(-15, -15, 5, 5), TRect(0, 0, 2, 2), picture.Bits(), picture.Info()));
    EXPECT_TRUE(dc.FillRect(TRect(8, -10, 20, 10), cyan));
    dc.ModifyWorldTransform({}, MWT_IDENTITY);
    dc.SetGraphicsMode(GM_COMPATIBLE);
}

TEST(WindowDc, shows_what_is_turned_as_memory_does) {
    const Framed window;
    TClientDC dc(window);
    DrawTurned(dc);
    owl_test::Surface surface(90, 70);
    DrawTurned(surface.dc);
    // The middle of the red quarter, (-10, -10), and a place in the rectangle, (14, 0).
    EXPECT_EQ(TColor::LtRed, TColor(surface.At(38, 16)));
    EXPECT_EQ(TColor::LtCyan, TColor(surface.At(51, 38)));
    for (int y = 0; y < 70; ++y) {
        for (int x = 0; x < 90; ++x)
            ASSERT_EQ(TColor(surface.At(x, y)), dc.GetPixel(x, y)) << x << "," << y;
    }
}

TEST(WindowDc, of_no_window_throws) {
    EXPECT_THROW(TWindowDC(nullptr), owl::TXGdi);
    EXPECT_THROW(TClientDC(nullptr), owl::TXGdi);
    EXPECT_THROW(TClientDC(HWND(0x7fff0)), owl::TXGdi);
    EXPECT_THROW(TWindowDC(HWND(0x7fff0)), owl::TXGdi);
    EXPECT_THROW(TPaintDC(HWND(0x7fff0)), owl::TXGdi);
}

TEST(WindowDc, of_the_screen_is_as_large_as_the_screen) {
    const TScreenDC screen;
    EXPECT_EQ(::GetSystemMetrics(SM_CXSCREEN), screen.GetDeviceCaps(HORZRES));
    TRect box;
    EXPECT_NE(ERROR, screen.GetClipBox(box));
}

/// Paints within WM_PAINT and notes what it was told.
struct Painter {
    TRect rect;
    bool erase = false;
    int count = 0;
};

LRESULT CALLBACK PaintProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message != WM_PAINT)
        return ::DefWindowProcA(window, message, wparam, lparam);
    auto* painter = reinterpret_cast<Painter*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
    TPaintDC dc(window);
    painter->rect = dc.GetPaintRect();
    painter->erase = dc.MustErase();
    ++painter->count;
    dc.SetPixel(dc.GetPaintRect().TopLeft(), TColor(1, 2, 3));
    return 0;
}

TEST(PaintDc, tells_what_is_to_be_painted_and_has_it_painted_at_its_end) {
    const Framed window;
    Painter painter;
    ::SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&painter));
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&PaintProcedure));
    ::ValidateRect(window, nullptr);
    const RECT invalid = {10, 11, 30, 31};
    ::InvalidateRect(window, &invalid, FALSE);
    ::UpdateWindow(window);
    EXPECT_EQ(TRect(10, 11, 30, 31), painter.rect);
    EXPECT_FALSE(painter.erase);
    EXPECT_EQ(1, painter.count);
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
    EXPECT_EQ(TColor(1, 2, 3), TClientDC(window).GetPixel(10, 11));
}

// The original tools were not restored, and the next who got the context drew with a deleted pen.
TEST(WindowDc, gives_its_context_back_with_the_original_tools) {
    const Framed window;
    const HGDIOBJ original = ::GetCurrentObject(TClientDC(window), OBJ_PEN);
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        const owl::TPen pen(TColor::LtRed);
        TClientDC dc(window);
        ASSERT_EQ(original, ::GetCurrentObject(dc, OBJ_PEN)) << i;
        dc.SelectObject(pen);
        const TScreenDC screen;
        const TWindowDC whole(window);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
