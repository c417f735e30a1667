#include "lvx/controls/custom_colour_dialog.h"
#include "lvx/controls/sample_accessible.h"
#include "owl/brush.h"
#include "owl/dc.h"
#include "owl/palette.h"

DEFINE_RESPONSE_TABLE1(ColourSample, owl::TControl)
    EV_WM_ERASEBKGND, EV_MESSAGE(WM_GETOBJECT, EvGetObject),
END_RESPONSE_TABLE;

namespace {

PALETTEENTRY EntryOf(owl::TColor colour) {
    return {static_cast<BYTE>(colour.Red()), static_cast<BYTE>(colour.Green()),
            static_cast<BYTE>(colour.Blue()), 0};
}

std::unique_ptr<owl::TPalette> PaletteOf(owl::TColor colour) {
    const PALETTEENTRY entry = EntryOf(colour);
    return std::make_unique<owl::TPalette>(&entry, 1);
}

// Of a rectangle that is too small for its inside the system would fill what lies around.
void Fill(owl::TDC& dc, const owl::TRect& rect, owl::TColor colour) {
    if (rect.IsEmpty())
        return;
    const owl::TBrush brush(colour);
    dc.SelectObject(brush);
    dc.PatBlt(rect);
    dc.RestoreBrush();
}

// One pixel wide: one colour at the top and on the left, another at the bottom and on the right.
void DrawEdges(owl::TDC& dc, const owl::TRect& rect, int light, int dark) {
    if (rect.IsEmpty())
        return;
    const owl::TColor lightColour = owl::TColor::FromSystem(light);
    const owl::TColor darkColour = owl::TColor::FromSystem(dark);
    Fill(dc, {rect.left, rect.top, rect.right, rect.top + 1}, lightColour);
    Fill(dc, {rect.left, rect.top, rect.left + 1, rect.bottom}, lightColour);
    Fill(dc, {rect.left, rect.bottom - 1, rect.right, rect.bottom}, darkColour);
    Fill(dc, {rect.right - 1, rect.top, rect.right, rect.bottom}, darkColour);
}

}  // namespace

ColourSample::ColourSample(owl::TWindow* frame, int id, owl::TColor colour, owl::TModule* module)
    : TControl(frame->Parent, id, "", 0, 0, 0, 0, module),
      Frame(frame),
      Colour(colour),
      Palette(PaletteOf(colour)) {
    Attr.Style &= ~static_cast<DWORD>(WS_TABSTOP);
}

ColourSample::~ColourSample() = default;

void ColourSample::setColour(owl::TColor colour) {
    Colour = colour;
    const PALETTEENTRY entry = EntryOf(colour);
    Palette->SetPaletteEntries(0, 1, &entry);
    Invalidate(true);
}

void ColourSample::SetupWindow() {
    TControl::SetupWindow();
    const owl::TRect place = Frame->GetWindowRect();
    owl::TPoint corner = place.TopLeft();
    Parent->ScreenToClient(corner);
    MoveWindow(owl::TRect(corner, place.Size()), false);
}

bool ColourSample::EvEraseBkgnd(HDC handle) {
    owl::TDC dc(handle);
    owl::TRect rect = GetClientRect();
    Paint(dc, true, rect);
    return true;
}

// Of the object's number the low half counts: a program of the other word size fills the rest in its way.
LRESULT ColourSample::EvGetObject(WPARAM flags, LPARAM object) {
    const bool isClient = static_cast<LONG>(object) == static_cast<LONG>(OBJID_CLIENT);
    const LRESULT answer = isClient ? lvx::controls::answer_get_object_of_sample(GetHandle(), flags) : 0;
    return answer != 0 ? answer : DefaultProcessing();
}

void ColourSample::Paint(owl::TDC& dc, bool, owl::TRect&) {
    dc.SelectObject(*Palette);
    dc.RealizePalette();
    const owl::TRect all = GetClientRect();
    DrawEdges(dc, all, COLOR_BTNHIGHLIGHT, COLOR_WINDOWFRAME);
    DrawEdges(dc, all.InflatedBy(-1, -1), COLOR_BTNFACE, COLOR_BTNSHADOW);
    Fill(dc, all.InflatedBy(-2, -2), Colour.PaletteRelative());
    dc.RestorePalette();
}
