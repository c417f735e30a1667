// What is drawn of pictures: the images of buttons, and the pictures that dialogs share.
#include <array>

#include "controls_ids.h"
#include "drawing.h"
#include "lvx/controls/bitmaps.h"
#include "lvx/controls/button_gadget.h"
#include "owl/bitmap.h"
#include "owl/brush.h"
#include "owl/memory_dc.h"
#include "scenes.h"

namespace gallery {

namespace {

constexpr int magnified = 4;

/// A button that stands for itself: at a place, in a state, painted by nobody else.
class PosedButton : public LVXButtonGadget {
public:
    PosedButton(int glyph, TState state, bool enabled, bool pressed)
        : LVXButtonGadget(glyph, glyph, NonExclusive, enabled, state) {
        Pressed = pressed;
        owl::TSize size;
        GetDesiredSize(size);
        SetBounds(owl::TRect(owl::TPoint(), size));
    }
    void PaintAt(owl::TDC& dc, int x, int y) {
        owl::TBitmap picture(dc, GetBounds().Width(), GetBounds().Height());
        owl::TMemoryDC memory(dc);
        memory.SelectObject(picture);
        memory.FillRect(GetBounds(), owl::TBrush(owl::TColor::FromSystem(COLOR_BTNFACE)));
        Paint(memory);
        dc.BitBlt(x, y, picture.Width(), picture.Height(), memory, 0, 0);
        dc.StretchBlt(
            owl::TRect(x + 40, y, x + 40 + magnified * picture.Width(), y + magnified * picture.Height()),
            memory, owl::TRect(0, 0, picture.Width(), picture.Height()));
    }
};

struct Look {
    const char* name;
    LVXButtonGadget::TState state;
    bool enabled;
    bool pressed;
};

constexpr std::array<Look, 5> looks{{
    {"At rest", LVXButtonGadget::Up, true, false},
    {"Held by the mouse", LVXButtonGadget::Up, true, true},
    {"Down", LVXButtonGadget::Down, true, false},
    {"Undecided", LVXButtonGadget::Indeterminate, true, false},
    {"Disabled", LVXButtonGadget::Up, false, false},
}};

void DrawLooks(owl::TDC& dc) {
    dc.FillRect(owl::TRect(0, 0, 480, 580), owl::TBrush(owl::TColor::FromSystem(COLOR_BTNFACE)));
    int y = 16;
    for (const Look& look : looks) {
        Label(dc, 16, y, look.name);
        int x = 130;
        for (const int glyph : {IDB_LEFT, IDB_PLAIN}) {
            PosedButton(glyph, look.state, look.enabled, look.pressed).PaintAt(dc, x, y);
            x += 170;
        }
        y += 112;
    }
}

void Draw(owl::TDC& dc, int x, int y, const LVXBitmap& bitmap) {
    owl::TMemoryDC memory(dc);
    memory.SelectObject(*static_cast<owl::TBitmap*>(bitmap));
    dc.BitBlt(x, y, bitmap.GetWidth(), bitmap.GetHeight(), memory, 0, 0);
}

void DrawBitmaps(owl::TDC& dc) {
    dc.FillRect(owl::TRect(0, 0, 330, 270), owl::TBrush(owl::TColor::FromSystem(COLOR_BTNFACE)));
    Draw(dc, 16, 12, *bitmaps::question());
    Draw(dc, 60, 12, *bitmaps::exclamation());
    int y = 60;
    for (LVXBitmap** const button :
         {bitmaps::ok(), bitmaps::cn(), bitmaps::ys(), bitmaps::no(), bitmaps::hp(), bitmaps::fn()}) {
        int x = 16;
        for (const int picture : {0, 1, 3}) {
            Draw(dc, x, y, *button[picture]);
            x += 76;
        }
        y += 32;
    }
}

}  // namespace

void ShowButtonLooks() {
    ShowDrawing("The looks of a button", {480, 580}, &DrawLooks);
}

void ShowBitmaps() {
    ShowDrawing("Pictures of a host's", {330, 270}, &DrawBitmaps);
}

}  // namespace gallery
