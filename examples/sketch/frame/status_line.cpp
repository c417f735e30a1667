#include "sketch/frame/status_line.h"

#include "owl/dc.h"
#include "owl/font.h"

namespace sketch {
namespace {

constexpr int height = 22;
constexpr int margin = 6;

}  // namespace

StatusLine::StatusLine(owl::TWindow* parent) : TWindow(parent) {
    Attr.H = height;
}

void StatusLine::GetWindowClass(WNDCLASSA& windowClass) {
    TWindow::GetWindowClass(windowClass);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
}

void StatusLine::Show(const std::string& text) {
    if (text != GetWindowText()) {
        SetWindowText(text);
        Invalidate();
    }
}

void StatusLine::Paint(owl::TDC& dc, bool, owl::TRect&) {
    owl::TRect rect = GetClientRect();
    ::DrawEdge(dc, &rect, BDR_SUNKENOUTER, BF_RECT);
    rect.Inflate(-margin, 0);
    const owl::TFont font(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT)));
    dc.SelectObject(font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(owl::TColor::FromSystem(COLOR_BTNTEXT));
    dc.DrawText(GetWindowText(), rect, DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_END_ELLIPSIS | DT_NOPREFIX);
    dc.RestoreObjects();
}

}  // namespace sketch
