// What buttons look like on the screen, pixel by pixel, and in other colours of the user's.
#include <gtest/gtest.h>

#include "controls/glyph_oracle.h"
#include "controls/toolbar_desk.h"
#include "owl/dib.h"
#include "owl/memory_dc.h"

namespace {

using lvx_test::ButtonImages;
using lvx_test::Colours;
using lvx_test::Glyph;
using owl::TRect;
using owl::TSize;
using toolbars::Button;

/// The hatch as the process has it at its beginning.
void begin_with_fresh_hatch() {
    const Colours colours = Colours::OfSystem();
    Button::DitherBrush.Reconstruct(owl::THatch8x8Brush::Hatch11F1, owl::TColor(colours.hatchOn),
                                    owl::TColor(colours.hatchOff));
}

Glyph glyph_of(int id) {
    owl::TDib dib(::GetModuleHandleA(nullptr), id);
    dib.MapUIColors(0xF);
    Glyph glyph(dib.Width(), dib.Height());
    glyph.Fill([&](int x, int y) { return dib.GetPixel(x, y); });
    return glyph;
}

struct ButtonLooks : testing::Test {
    ButtonLooks() { begin_with_fresh_hatch(); }

    toolbars::Desk desk;
};

/// What a button of the glyph IDB_COLOURS has to look like on the screen, pixel by pixel.
class Looks {
public:
    Looks(const Button& button, int cel, bool isDown)
        : m_size(button.GetBounds().Size()),
          m_glyph(glyph_of(IDB_COLOURS)),
          m_images(m_glyph, Colours::OfSystem()),
          m_cel(cel),
          m_isDown(isDown) {}

    COLORREF At(int x, int y) const {
        const int right = m_size.cx - 1;
        const int bottom = m_size.cy - 1;
        if (x == right || y == bottom) {
            return Colour(m_isDown ? COLOR_BTNHIGHLIGHT : COLOR_WINDOWFRAME);
        }
        if (x == 0 || y == 0) {
            return Colour(m_isDown ? COLOR_WINDOWFRAME : COLOR_BTNHIGHLIGHT);
        }
        if (x == right - 1 || y == bottom - 1) {
            return Colour(m_isDown ? COLOR_BTNFACE : COLOR_BTNSHADOW);
        }
        if (x == 1 || y == 1) {
            return Colour(m_isDown ? COLOR_BTNSHADOW : COLOR_BTNFACE);
        }
        if (x == right - 2 || y == bottom - 2) {
            return Colour(COLOR_BTNFACE);
        }
        const int shift = m_isDown ? 0 : 1;
        return m_images.At(m_cel * m_glyph.width + x - 2 + shift, y - 2 + shift);
    }

private:
    static COLORREF Colour(int index) { return ::GetSysColor(index); }

    const TSize m_size;
    const Glyph m_glyph;
    const ButtonImages m_images;
    const int m_cel;
    const bool m_isDown;
};

int count_wrong_pixels(const owl::TGadgetWindow& bar, const Button& button, const Looks& looks) {
    const TRect bounds = button.GetBounds();
    const HDC screen = ::GetDC(bar.GetHandle());
    int wrong = 0;
    for (int y = 0; y < bounds.Height(); ++y) {
        for (int x = 0; x < bounds.Width(); ++x) {
            const COLORREF found = ::GetPixel(screen, bounds.left + x, bounds.top + y);
            if (found != looks.At(x, y) && ++wrong <= 3) {
                ADD_FAILURE() << x << "," << y << ": " << std::hex << found << " and not " << looks.At(x, y);
            }
        }
    }
    ::ReleaseDC(bar.GetHandle(), screen);
    return wrong;
}

}  // namespace

TEST_F(ButtonLooks, at_rest_looks_raised) {
    Button* const button = desk.Add(new Button(IDB_COLOURS, 1));
    desk.Show();
    EXPECT_EQ(TSize(21 + 5 - 1, 18 + 5 - 2), button->GetBounds().Size());
    EXPECT_EQ(0, count_wrong_pixels(*desk.bar, *button, Looks(*button, 0, false)));
}

TEST_F(ButtonLooks, that_is_disabled_looks_embossed) {
    Button* const button = desk.Add(new Button(IDB_COLOURS, 1, LVXButtonGadget::Command, false));
    desk.Show();
    button->SetEnabled(false);
    EXPECT_EQ(0, count_wrong_pixels(*desk.bar, *button, Looks(*button, 1, false)));
    button->SetButtonState(LVXButtonGadget::Down);
    button->SetEnabled(false);
    EXPECT_EQ(0, count_wrong_pixels(*desk.bar, *button, Looks(*button, 1, true)));
}

TEST_F(ButtonLooks, that_is_undecided_looks_grey_over_a_hatch) {
    Button* const button = desk.Add(new Button(IDB_COLOURS, 1));
    desk.Show();
    button->SetButtonState(LVXButtonGadget::Indeterminate);
    EXPECT_EQ(0, count_wrong_pixels(*desk.bar, *button, Looks(*button, 2, false)));
}

TEST_F(ButtonLooks, that_is_down_looks_pressed_in_over_a_hatch) {
    Button* const button = desk.Add(new Button(IDB_COLOURS, 1));
    desk.Show();
    button->SetButtonState(LVXButtonGadget::Down);
    EXPECT_EQ(0, count_wrong_pixels(*desk.bar, *button, Looks(*button, 3, true)));
}

TEST_F(ButtonLooks, that_is_held_looks_pressed_in) {
    Button* const button = desk.Add(new Button(IDB_COLOURS, 1));
    desk.Show();
    ASSERT_TRUE(desk.Press(*button));
    EXPECT_EQ(0, count_wrong_pixels(*desk.bar, *button, Looks(*button, 0, true)));
    desk.MoveOff();
    EXPECT_TRUE(desk::PumpUntil([&] { return !button->Pressed; }));
    EXPECT_EQ(0, count_wrong_pixels(*desk.bar, *button, Looks(*button, 0, false)));
    desk.Release(*button);
}

TEST_F(ButtonLooks, that_is_down_and_held_looks_as_any_that_is_held) {
    Button* const button =
        desk.Add(new Button(IDB_COLOURS, 1, LVXButtonGadget::NonExclusive, true, LVXButtonGadget::Down));
    desk.Show();
    button->SetButtonState(LVXButtonGadget::Down);
    ASSERT_TRUE(desk.Press(*button));
    button->SetButtonState(LVXButtonGadget::Down);
    EXPECT_EQ(0, count_wrong_pixels(*desk.bar, *button, Looks(*button, 0, true)));
    desk.Release(*button);
}

namespace {

/// While it lives the user has other colours for buttons. The whole desk has them.
class OtherColours {
public:
    OtherColours() {
        for (int i = 0; i < 3; ++i) {
            m_former[i] = ::GetSysColor(indices[i]);
        }
        ::SetSysColors(3, indices, colours);
    }
    ~OtherColours() { ::SetSysColors(3, indices, m_former); }
    OtherColours(const OtherColours&) = delete;
    OtherColours& operator=(const OtherColours&) = delete;

private:
    static constexpr int indices[3] = {COLOR_BTNFACE, COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW};
    static constexpr COLORREF colours[3] = {RGB(200, 220, 180), RGB(250, 255, 240), RGB(90, 110, 70)};
    COLORREF m_former[3];
};

}  // namespace

TEST_F(ButtonLooks, follows_the_users_colours) {
    Button* const button = desk.Add(new Button(IDB_COLOURS, 1));
    desk.Show();
    owl::TCelArray* const cels = button->GetCels();
    {
        const OtherColours other;
        desk.frame->HandleMessage(WM_SYSCOLORCHANGE);
        EXPECT_EQ(cels, button->GetCels());
        // The hatch is the highlight alone from now on.
        Colours colours = Colours::OfSystem();
        EXPECT_EQ(RGB(200, 220, 180), colours.face);
        colours.hatchOff = colours.highlight;
        const ButtonImages expected(glyph_of(IDB_COLOURS), colours);
        owl::TMemoryDC dc;
        dc.SelectObject(static_cast<const owl::TBitmap&>(*cels));
        int wrong = 0;
        for (int y = 0; y < 18; ++y) {
            for (int x = 0; x < 4 * 21; ++x) {
                wrong += ::GetPixel(dc, x, y) != expected.At(x, y);
            }
        }
        EXPECT_EQ(0, wrong);
    }
    desk.frame->HandleMessage(WM_SYSCOLORCHANGE);
    desk.bar->UpdateWindow();
    EXPECT_EQ(0, count_wrong_pixels(*desk.bar, *button, Looks(*button, 0, false)));
}
