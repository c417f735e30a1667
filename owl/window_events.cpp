// What a window does with a message that its class has no function for.
#include "owl/child_walk.h"
#include "owl/window.h"

namespace owl {

DEFINE_RESPONSE_TABLE(TWindow)
    EV_WM_CLOSE, EV_WM_PAINT, EV_WM_SETCURSOR, EV_WM_SYSCOLORCHANGE,
END_RESPONSE_TABLE;

void TWindow::EvActivate(UINT, bool, HWND) {
    DefaultProcessing();
}

void TWindow::EvChar(UINT, UINT, UINT) {
    DefaultProcessing();
}

void TWindow::EvClose() {
    CloseWindow();
}

int TWindow::EvCreate(CREATESTRUCTA&) {
    return static_cast<int>(DefaultProcessing());
}

// A page hands the question on to its dialog, which is handling no message of that kind itself.
HBRUSH TWindow::EvCtlColor(HDC dc, HWND child, UINT type) {
    if (m_handle == nullptr)
        return nullptr;
    return reinterpret_cast<HBRUSH>(DefWindowProc(WM_CTLCOLORMSGBOX + type, reinterpret_cast<WPARAM>(dc),
                                                  reinterpret_cast<LPARAM>(child)));
}

void TWindow::EvDestroy() {
    DefaultProcessing();
}

void TWindow::EvEnable(bool) {
    DefaultProcessing();
}

bool TWindow::EvEraseBkgnd(HDC) {
    return DefaultProcessing() != 0;
}

UINT TWindow::EvGetDlgCode(MSG*) {
    return static_cast<UINT>(DefaultProcessing());
}

void TWindow::EvGetMinMaxInfo(MINMAXINFO&) {
    DefaultProcessing();
}

LRESULT TWindow::EvHelp(HELPINFO*) {
    return DefaultProcessing();
}

void TWindow::EvHScroll(UINT, UINT, HWND) {
    DefaultProcessing();
}

void TWindow::EvInitMenuPopup(HMENU, UINT, bool) {
    DefaultProcessing();
}

void TWindow::EvKeyDown(UINT, UINT, UINT) {
    DefaultProcessing();
}

void TWindow::EvKeyUp(UINT, UINT, UINT) {
    DefaultProcessing();
}

void TWindow::EvKillFocus(HWND) {
    DefaultProcessing();
}

void TWindow::EvLButtonDblClk(UINT, const TPoint&) {
    DefaultProcessing();
}

void TWindow::EvLButtonDown(UINT, const TPoint&) {
    DefaultProcessing();
}

void TWindow::EvLButtonUp(UINT, const TPoint&) {
    DefaultProcessing();
}

void TWindow::EvMButtonDown(UINT, const TPoint&) {
    DefaultProcessing();
}

void TWindow::EvMButtonUp(UINT, const TPoint&) {
    DefaultProcessing();
}

void TWindow::EvMenuSelect(UINT, UINT, HMENU) {
    DefaultProcessing();
}

void TWindow::EvMouseMove(UINT, const TPoint&) {
    DefaultProcessing();
}

void TWindow::EvMove(const TPoint&) {
    DefaultProcessing();
}

void TWindow::EvNCDestroy() {
    DefaultProcessing();
}

void TWindow::EvPaletteChanged(HWND) {
    DefaultProcessing();
}

bool TWindow::EvQueryNewPalette() {
    return DefaultProcessing() != 0;
}

void TWindow::EvRButtonDown(UINT, const TPoint&) {
    DefaultProcessing();
}

void TWindow::EvRButtonUp(UINT, const TPoint&) {
    DefaultProcessing();
}

bool TWindow::EvSetCursor(HWND window, UINT hit, UINT) {
    if (m_cursor == nullptr || window != m_handle || hit != HTCLIENT)
        return DefaultProcessing() != 0;
    ::SetCursor(m_cursor);
    return true;
}

void TWindow::EvSetFocus(HWND) {
    DefaultProcessing();
}

void TWindow::EvShowWindow(bool, UINT) {
    DefaultProcessing();
}

void TWindow::EvSize(UINT, const TSize&) {
    DefaultProcessing();
}

// The system tells top-level windows alone.
void TWindow::EvSysColorChange() {
    const HWND handle = m_handle;
    EachChild(*this, [](TWindow& child) {
        if (child.IsWindow())
            child.HandleMessage(WM_SYSCOLORCHANGE);
    });
    if (FindWindowObject(handle) == this)
        DefaultProcessing();
}

void TWindow::EvSysCommand(UINT, const TPoint&) {
    DefaultProcessing();
}

void TWindow::EvTimer(UINT) {
    DefaultProcessing();
}

void TWindow::EvVScroll(UINT, UINT, HWND) {
    DefaultProcessing();
}

void TWindow::EvWindowPosChanged(WINDOWPOS&) {
    DefaultProcessing();
}

}  // namespace owl
