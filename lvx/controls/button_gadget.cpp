#include "lvx/controls/button_gadget.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "lvx/controls/glyph_cels.h"
#include "lvx/text/error.h"
#include "owl/brush.h"
#include "owl/dib.h"
#include "owl/gadget_window.h"
#include "owl/memory_dc.h"
#include "owl/module.h"
#include "owl/window_dc.h"

namespace {

constexpr int mask_width = 128;
constexpr int mask_height = 512;

owl::TResId copy_of(owl::TResId name) {
    if (!name.IsString()) {
        return name;
    }
    const char* const text = name;
    const std::size_t size = std::strlen(text) + 1;
    auto* const copy = new char[size];
    std::memcpy(copy, text, size);
    return copy;
}

HINSTANCE module_of(const owl::TGadgetWindow* bar) {
    const owl::TModule* const module = bar != nullptr ? bar->GetModule() : nullptr;
    return module != nullptr ? module->GetInstance() : ::GetModuleHandleA(nullptr);
}

owl::TSize size_of_cels(const owl::TCelArray* cels) {
    return cels != nullptr ? cels->CelSize() : owl::TSize();
}

std::unique_ptr<owl::TCelArray> make_cels(const owl::TSize& size) {
    const owl::TScreenDC screen;
    return std::make_unique<owl::TCelArray>(
        new owl::TBitmap(screen, size.cx * LVXButtonGadget::NumCels, size.cy), LVXButtonGadget::NumCels);
}

void draw_line(owl::TDC& dc, const owl::TRect& line, int color) {
    const owl::TBrush brush(::GetSysColorBrush(color));
    dc.SelectObject(brush);
    dc.PatBlt(line);
    dc.RestoreBrush();
}

/// Draws lines from corner to corner: `rect` names the pixels of the corners themselves.
void draw_edges(owl::TDC& dc, const owl::TRect& rect, int topLeft, int bottomRight) {
    draw_line(dc, owl::TRect(rect.left, rect.top, rect.right, rect.top + 1), topLeft);
    draw_line(dc, owl::TRect(rect.left, rect.top, rect.left + 1, rect.bottom), topLeft);
    draw_line(dc, owl::TRect(rect.right, rect.top, rect.right + 1, rect.bottom + 1), bottomRight);
    draw_line(dc, owl::TRect(rect.left, rect.bottom, rect.right + 1, rect.bottom + 1), bottomRight);
}

LVXButtonGadget* exclusive(owl::TGadget* gadget) {
    auto* const button = dynamic_cast<LVXButtonGadget*>(gadget);
    return button != nullptr && button->GetButtonType() == LVXButtonGadget::Exclusive ? button : nullptr;
}

}  // namespace

owl::THatch8x8Brush LVXButtonGadget::DitherBrush(owl::THatch8x8Brush::Hatch11F1,
                                                 owl::TColor::FromSystem(COLOR_BTNHIGHLIGHT),
                                                 owl::TColor::FromSystem(COLOR_BTNFACE));
owl::TBitmap LVXButtonGadget::GlyphMask(mask_width, mask_height, 1, 1, nullptr);

LVXButtonGadget::LVXButtonGadget(owl::TResId glyph, int id, TType type, bool enabled, TState state,
                                 bool repeat)
    : TGadget(id), ResId(copy_of(glyph)), State(state), Type(type), Repeat(repeat) {
    TGadget::SetEnabled(enabled);
    SetShadowStyle(DoubleShadow);
}

LVXButtonGadget::LVXButtonGadget(owl::TCelArray* cels, int celRow, int id, TType type, bool enabled,
                                 TState state, bool repeat)
    : TGadget(id), CelArray(cels), State(state), Type(type), Repeat(repeat), CelRow(celRow) {
    TGadget::SetEnabled(enabled);
    SetShadowStyle(DoubleShadow);
}

LVXButtonGadget::~LVXButtonGadget() {
    if (ResId.IsNull()) {
        return;
    }
    delete CelArray;
    if (ResId.IsString()) {
        delete[] static_cast<const char*>(ResId);
    }
}

void LVXButtonGadget::SetShadowStyle(TShadowStyle style) {
    ShadowStyle = style;
    SetBorders({2, 2, style + 1, style + 1});
}

// Images and size

void LVXButtonGadget::GetDesiredSize(owl::TSize& size) {
    TGadget::GetDesiredSize(size);
    size += size_of_cels(GetCels()) - owl::TSize(1, 2);
}

void LVXButtonGadget::SetBounds(const owl::TRect& bounds) {
    TGadget::SetBounds(bounds);
    const owl::TRect inner = GetInnerRect();
    const owl::TSize cel = size_of_cels(CelArray);
    BitmapOrigin = inner.TopLeft().OffsetBy((inner.Width() - cel.cx) / 2, (inner.Height() - cel.cy) / 2);
}

owl::TCelArray* LVXButtonGadget::GetCels() {
    if (CelArray == nullptr) {
        BuildCelArray();
    }
    return CelArray;
}

owl::TDib* LVXButtonGadget::GetGlyphDib() {
    if (ResId.IsNull()) {
        return nullptr;
    }
    auto glyph = std::make_unique<owl::TDib>(module_of(GetGadgetWindow()), ResId);
    glyph->MapUIColors(owl::TDib::MapText | owl::TDib::MapShadow | owl::TDib::MapFace |
                       owl::TDib::MapHighlight);
    return glyph.release();
}

void LVXButtonGadget::ReleaseGlyphDib(owl::TDib* glyph) {
    if (!ResId.IsNull()) {
        delete glyph;
    }
}

void LVXButtonGadget::BuildCelArray() {
    if (ResId.IsNull()) {
        return;
    }
    const std::unique_ptr<owl::TDib> glyph(GetGlyphDib());
    if (glyph->Width() > mask_width || glyph->Height() > mask_height) {
        throw lvx::runtime_error("The picture of a button is larger than 128 by 512 pixels.");
    }
    std::unique_ptr<owl::TCelArray> made;
    if (CelArray == nullptr) {
        made = make_cels(glyph->Size());
    }
    lvx::controls::GlyphCels(made ? *made : *CelArray, GlyphMask).Draw(*glyph, DitherBrush);
    if (made) {
        CelArray = made.release();
    }
}

// Both colours are the highlight's: from the first change of colours on, the hatch is one plain light.
void LVXButtonGadget::SysColorChange() {
    const owl::TColor highlight = owl::TColor::FromSystem(COLOR_BTNHIGHLIGHT);
    DitherBrush.Reconstruct(owl::THatch8x8Brush::Hatch11F1, highlight, highlight);
    BuildCelArray();
}

// Painting

void LVXButtonGadget::PaintBorder(owl::TDC& dc) {
    const owl::TSize size = GetBounds().Size();
    const owl::TRect outer(0, 0, size.cx - 1, size.cy - 1);
    const owl::TRect inner(1, 1, size.cx - 2, size.cy - 2);
    if (IsDown()) {
        draw_edges(dc, outer, COLOR_WINDOWFRAME, COLOR_BTNHIGHLIGHT);
        draw_edges(dc, inner, COLOR_BTNSHADOW, COLOR_BTNFACE);
    } else {
        draw_edges(dc, outer, COLOR_BTNHIGHLIGHT, COLOR_WINDOWFRAME);
        draw_edges(dc, inner, COLOR_BTNFACE, COLOR_BTNSHADOW);
    }
}

LVXButtonGadget::TCel LVXButtonGadget::CelToPaint() const {
    if (!GetEnabled()) {
        return DisabledCel;
    }
    if (State == Indeterminate) {
        return IndeterminateCel;
    }
    return State == Down && !Pressed ? DownCel : NormalCel;
}

void LVXButtonGadget::Paint(owl::TDC& dc) {
    PaintBorder(dc);
    const owl::TCelArray* const cels = GetCels();
    if (cels == nullptr) {
        return;
    }
    // An image at rest stands a pixel further up and left than one that is pushed.
    const int shift = IsDown() ? 0 : 1;
    const owl::TSize size = GetBounds().Size();
    const owl::TRect target(2, 2, size.cx - 3, size.cy - 3);
    // In a gadget that is larger than its image there would be parts of others to be seen.
    const owl::TSize rest = cels->CelSize() - owl::TSize(shift, shift);
    const owl::TSize shown(std::min<int>(target.Width(), rest.cx), std::min<int>(target.Height(), rest.cy));
    const owl::TPoint source(cels->CelOffset(CelToPaint()).x + shift, CelRow + shift);
    owl::TMemoryDC images(dc);
    images.SelectObject(static_cast<const owl::TBitmap&>(*cels));
    dc.BitBlt(owl::TRect(target.TopLeft(), shown), images, source);
}

void LVXButtonGadget::Repaint() {
    Invalidate();
    Update();
}

// Mouse

void LVXButtonGadget::ShowHint(int mode, int command) {
    owl::TGadgetWindow* const bar = GetGadgetWindow();
    if (bar != nullptr && bar->GetHintMode() == mode) {
        bar->SetHintCommand(command);
    }
}

void LVXButtonGadget::MouseEnter(UINT modifiers, const owl::TPoint& point) {
    TGadget::MouseEnter(modifiers, point);
    ShowHint(owl::TGadgetWindow::EnterHints, GetId());
}

void LVXButtonGadget::MouseLeave(UINT modifiers, const owl::TPoint& point) {
    TGadget::MouseLeave(modifiers, point);
    ShowHint(owl::TGadgetWindow::EnterHints, -1);
}

void LVXButtonGadget::MouseMove(UINT modifiers, const owl::TPoint& point) {
    TGadget::MouseMove(modifiers, point);
    const bool isInside = PtIn(point);
    if (Pressed && !isInside) {
        CancelPressed(point);
    } else if (!Pressed && isInside) {
        BeginPressed(point);
    }
}

void LVXButtonGadget::LButtonDown(UINT modifiers, const owl::TPoint& point) {
    TGadget::LButtonDown(modifiers, point);
    BeginPressed(point);
}

void LVXButtonGadget::LButtonUp(UINT modifiers, const owl::TPoint& point) {
    TGadget::LButtonUp(modifiers, point);
    if (Pressed) {
        Activate(point);
    }
}

void LVXButtonGadget::BeginPressed(const owl::TPoint&) {
    Pressed = true;
    Repaint();
    ShowHint(owl::TGadgetWindow::PressHints, GetId());
}

void LVXButtonGadget::CancelPressed(const owl::TPoint&) {
    Pressed = false;
    Repaint();
    ShowHint(owl::TGadgetWindow::PressHints, -1);
}

// State and command

void LVXButtonGadget::Activate(const owl::TPoint& point) {
    if (Type == Exclusive && State != Down) {
        CheckExclusively();
    } else if (Type == NonExclusive) {
        State = State == Up ? Down : Up;
    }
    CancelPressed(point);
    if (Type == Exclusive && State != Down) {
        return;
    }
    if (GetEnabled() && GetGadgetWindow() != nullptr) {
        GetGadgetWindow()->PostMessage(WM_COMMAND, static_cast<WPARAM>(GetId()));
    }
}

void LVXButtonGadget::SetButtonState(TState state) {
    if (state == State) {
        return;
    }
    if (Type == Exclusive && state == Down) {
        CheckExclusively();
    }
    State = state;
    Repaint();
}

/// From this gadget to the front, as long as there are exclusive buttons.
LVXButtonGadget* LVXButtonGadget::FirstOfGroup() {
    LVXButtonGadget* first = nullptr;
    for (owl::TGadget* gadget = GetGadgetWindow()->FirstGadget(); gadget != nullptr && gadget != this;
         gadget = gadget->NextGadget()) {
        LVXButtonGadget* const button = exclusive(gadget);
        first = button != nullptr && first != nullptr ? first : button;
    }
    return first != nullptr ? first : this;
}

LVXButtonGadget* LVXButtonGadget::NextOfGroup() const {
    return exclusive(NextGadget());
}

void LVXButtonGadget::CheckExclusively() {
    if (State == Down) {
        return;
    }
    if (GetGadgetWindow() != nullptr) {
        for (LVXButtonGadget* button = FirstOfGroup(); button != nullptr; button = button->NextOfGroup()) {
            if (button->State == Down) {
                button->State = Up;
                button->Repaint();
            }
        }
    }
    State = Down;
}

void LVXButtonGadget::CommandEnable() {
    owl::TGadgetWindow* const bar = GetGadgetWindow();
    if (bar == nullptr) {
        return;
    }
    LVXButtonGadgetEnabler enabler(bar->GetHandle(), this);
    bar->AskWhetherEnabled(enabler);
}

LVXButtonGadgetEnabler::LVXButtonGadgetEnabler(HWND receiver, LVXButtonGadget* gadget)
    : TCommandEnabler(static_cast<UINT>(gadget->GetId()), receiver), m_gadget(gadget) {}

LVXButtonGadgetEnabler::~LVXButtonGadgetEnabler() = default;

void LVXButtonGadgetEnabler::Enable(bool enable) {
    TCommandEnabler::Enable(enable);
    m_gadget->SetEnabled(enable);
}

void LVXButtonGadgetEnabler::SetText(const char*) {}

void LVXButtonGadgetEnabler::SetCheck(int check) {
    m_gadget->SetButtonState(static_cast<LVXButtonGadget::TState>(check));
}
