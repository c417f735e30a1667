// How a strip of tabs begins and ends, and what it leaves to its layout.
#include "lvx/propdlg/property_tab.h"

#include <utility>

#include "lvx/propdlg/property_page.h"
#include "lvx/propdlg/shared_state.h"
#include "lvx/propdlg/strip_surface.h"
#include "owl/application.h"

namespace {

constexpr int strip_id = 29000;

bool is_modern_shell() {
    const DWORD version = ::GetVersion();
    const int major = LOBYTE(version);
    return major >= 4 || (major == 3 && HIBYTE(version) >= 95);
}

}  // namespace

TPropertyTab::TPropertyTab(owl::TWindow* parent, Tab::Style style, owl::TResId bitmap, bool bitmapsOnRight)
    : TControl(parent, strip_id, "", 0, 0, 0, 0), TabState(style) {
    lvx::propdlg::shared_state().ModernShell = is_modern_shell();
    Attr.Style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN;
    if (!Tab::Has(Style, Tab::WizardFrame))
        Attr.Style |= WS_TABSTOP;
    BitmapsOnRight = bitmapsOnRight;
    if (Tab::Has(Style, Tab::UseTabBitmaps))
        LoadTabBitmaps(bitmap);
    MakeFonts();
    TabColorChange();
    // Behind all that can throw: who is on the list is thought to be there.
    lvx::propdlg::shared_state().LiveTabs.push_back(this);
}

// What cannot be loaded is left out: the tabs are there without it.
void TPropertyTab::LoadTabBitmaps(owl::TResId bitmap) {
    const owl::TModule* const module = GetApplication() != nullptr ? GetApplication() : GetModule();
    const HBITMAP loaded = module != nullptr && !bitmap.IsNull() ? module->LoadBitmap(bitmap) : nullptr;
    if (loaded != nullptr)
        TabBitmaps = new owl::TCelArray(new owl::TBitmap(loaded, owl::AutoDelete));
}

void TPropertyTab::MakeFonts() {
    TabFont = new owl::TFont(static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT)));
    LOGFONT description{};
    TabFont->GetObject(description);
    description.lfWeight = FW_NORMAL;
    SelectedFont = new owl::TFont(description);
    // There is no window yet to measure in.
    owl::TScreenDC dc;
    dc.SelectObject(*SelectedFont);
    owl::TRect rect;
    dc.DrawText("(|&y#", rect, DT_CALCRECT | DT_CENTER);
    TextHeight = rect.Height();
    TabHeight = lvx::propdlg::TabHeightFor(Style, TextHeight);
}

TPropertyTab::~TPropertyTab() {
    ReleasePages();
    lvx::propdlg::forget_strip(this);
    std::erase(lvx::propdlg::shared_state().LiveTabs, this);
    delete TabFont;
    delete SelectedFont;
    delete ScrollLeftBitmap;
    delete ScrollRightBitmap;
    delete TabBitmaps;
}

const char* TPropertyTab::GetClassName() {
    return "tbProperty";
}

void TPropertyTab::GetWindowClass(WNDCLASSA& windowClass) {
    TControl::GetWindowClass(windowClass);
    windowClass.style = CS_VREDRAW | CS_HREDRAW | CS_PARENTDC;
    windowClass.hbrBackground = nullptr;
}

void TPropertyTab::TabColorChange() {
    HilightColor = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    FaceColor = ::GetSysColor(COLOR_BTNFACE);
    ShadowColor = ::GetSysColor(COLOR_BTNSHADOW);
    FrameColor = ::GetSysColor(COLOR_WINDOWFRAME);
    Invalidate(true);
}

void TPropertyTab::SetActiveColor(owl::TColor color) {
    ActiveColor = color;
    owl::TRect rect;
    if (IsWindow() && GetTabRect(rect, SelectedTab, -1))
        InvalidateRect(rect, true);
}

bool TPropertyTab::IsTabVisible(int tab) {
    return Arithmetic(*this)->IsTabVisible(tab);
}

void TPropertyTab::EnableTab(int tab, bool enable) {
    if (IsTabEnabled(tab) == enable)
        return;
    Arithmetic(*this)->EnableTab(tab, enable);
    TellScreenReaders(EVENT_OBJECT_STATECHANGE, tab);
}

void TPropertyTab::SetTabText(int tab, const char* text) {
    Arithmetic(*this)->SetTabText(tab, text);
    TellScreenReaders(EVENT_OBJECT_NAMECHANGE, tab);
}

int TPropertyTab::CalcTabWidth(owl::TDC& dc, int tab) {
    return Arithmetic(*this, dc)->CalcTabWidth(tab);
}

void TPropertyTab::CalculateBasicTabWidths() {
    Arithmetic(*this)->CalculateBasicTabWidths();
}

void TPropertyTab::CalculateTabWidths() {
    Arithmetic(*this)->CalculateTabWidths();
}

void TPropertyTab::ReassessTabWidths() {
    Arithmetic(*this)->ReassessTabWidths();
}

void TPropertyTab::SetRect(owl::TRect& rect, int row) {
    Arithmetic(*this)->SetRect(rect, row);
}

bool TPropertyTab::GetTabRect(owl::TRect& rect, int tab, int start) {
    return Arithmetic(*this)->GetTabRect(rect, tab, start);
}

int TPropertyTab::GetTabRow(int tab) {
    return Arithmetic(*this)->GetTabRow(tab);
}

int TPropertyTab::GetMouseTab(const owl::TPoint& point) {
    return Arithmetic(*this)->GetMouseTab(point);
}

int TPropertyTab::GetLastTab(bool visibleOnly) {
    return Arithmetic(*this)->GetLastTab(visibleOnly);
}

bool TPropertyTab::AssessScroll() {
    return Arithmetic(*this)->AssessScroll();
}

void TPropertyTab::NextOrigin(int direction) {
    Arithmetic(*this)->NextOrigin(direction);
}

void TPropertyTab::GetScrollRect(owl::TRect& rect, int which) {
    Arithmetic(*this)->GetScrollRect(rect, which);
}

bool TPropertyTab::AdjustOrigin(int tab) {
    return Arithmetic(*this)->AdjustOrigin(tab);
}

void TPropertyTab::SetFixedTabWidth(int width) {
    Arithmetic(*this)->SetFixedTabWidth(width);
}

void TPropertyTab::SetWideMarginWidth(int width) {
    Arithmetic(*this)->SetWideMarginWidth(width);
}
