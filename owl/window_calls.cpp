// The system's calls about a window, for window objects. Without a window they do nothing and answer false,
// null or 0: where the system would take a null handle for the screen or the thread, it is not asked.
#include "owl/application.h"
#include "owl/window.h"
#include "owl/window_text.h"

namespace owl {

std::string TWindow::GetWindowText() const {
    return TextOfWindow(m_handle);
}

int TWindow::GetWindowText(char* text, int size) const {
    if (text == nullptr || size <= 0)
        return 0;
    text[0] = '\0';
    // Wine writes what it has not read if there is no window.
    return m_handle != nullptr ? ::GetWindowTextA(m_handle, text, size) : 0;
}

int TWindow::GetWindowTextLength() const {
    return ::GetWindowTextLengthA(m_handle);
}

void TWindow::SetWindowText(const std::string& text) {
    m_title = text;
    if (m_handle != nullptr)
        ::SetWindowTextA(m_handle, text.c_str());
}

bool TWindow::ShowWindow(int how) {
    return ::ShowWindow(m_handle, how) != 0;
}

void TWindow::UpdateWindow() {
    if (m_handle != nullptr)
        ::UpdateWindow(m_handle);
}

// A null handle would mean all windows of the screen.
void TWindow::InvalidateRect(const TRect& rect, bool erase) {
    if (m_handle != nullptr)
        ::InvalidateRect(m_handle, &rect, erase);
}

void TWindow::Invalidate(bool erase) {
    if (m_handle != nullptr)
        ::InvalidateRect(m_handle, nullptr, erase);
}

void TWindow::InvalidateRgn(HRGN region, bool erase) {
    if (m_handle != nullptr)
        ::InvalidateRgn(m_handle, region, erase);
}

bool TWindow::GetUpdateRgn(HRGN region, bool erase) const {
    const int kind = ::GetUpdateRgn(m_handle, region, erase);
    return kind == SIMPLEREGION || kind == COMPLEXREGION;
}

bool TWindow::RedrawWindow(const TRect* rect, HRGN region, UINT flags) {
    return m_handle != nullptr && ::RedrawWindow(m_handle, rect, region, flags);
}

TRect TWindow::GetClientRect() const {
    TRect rect;
    ::GetClientRect(m_handle, &rect);
    return rect;
}

TRect TWindow::GetWindowRect() const {
    TRect rect;
    ::GetWindowRect(m_handle, &rect);
    return rect;
}

bool TWindow::MoveWindow(int x, int y, int w, int h, bool repaint) {
    return ::MoveWindow(m_handle, x, y, w, h, repaint) != 0;
}

bool TWindow::MoveWindow(const TRect& rect, bool repaint) {
    return MoveWindow(rect.X(), rect.Y(), rect.Width(), rect.Height(), repaint);
}

bool TWindow::SetWindowPos(HWND after, const TRect& rect, UINT flags) {
    return SetWindowPos(after, rect.X(), rect.Y(), rect.Width(), rect.Height(), flags);
}

bool TWindow::SetWindowPos(HWND after, int x, int y, int w, int h, UINT flags) {
    return ::SetWindowPos(m_handle, after, x, y, w, h, flags) != 0;
}

void TWindow::ScreenToClient(TPoint& point) const {
    ::ScreenToClient(m_handle, &point);
}

void TWindow::ClientToScreen(TPoint& point) const {
    ::ClientToScreen(m_handle, &point);
}

bool TWindow::IsWindowVisible() const {
    return ::IsWindowVisible(m_handle) != 0;
}

bool TWindow::IsWindowEnabled() const {
    return ::IsWindowEnabled(m_handle) != 0;
}

bool TWindow::IsIconic() const {
    return ::IsIconic(m_handle) != 0;
}

bool TWindow::IsZoomed() const {
    return ::IsZoomed(m_handle) != 0;
}

bool TWindow::EnableWindow(bool enable) {
    return ::EnableWindow(m_handle, enable) != 0;
}

bool TWindow::IsChild(HWND window) const {
    return ::IsChild(m_handle, window) != 0;
}

DWORD TWindow::GetStyle() const {
    return m_handle == nullptr ? Attr.Style : static_cast<DWORD>(::GetWindowLongA(m_handle, GWL_STYLE));
}

DWORD TWindow::SetStyle(DWORD style) {
    Attr.Style = style;
    return static_cast<DWORD>(::SetWindowLongA(m_handle, GWL_STYLE, static_cast<LONG>(style)));
}

DWORD TWindow::GetExStyle() const {
    return m_handle == nullptr ? Attr.ExStyle : static_cast<DWORD>(::GetWindowLongA(m_handle, GWL_EXSTYLE));
}

DWORD TWindow::SetExStyle(DWORD style) {
    Attr.ExStyle = style;
    return static_cast<DWORD>(::SetWindowLongA(m_handle, GWL_EXSTYLE, static_cast<LONG>(style)));
}

void TWindow::SetRedraw(bool redraw) {
    SendMessage(WM_SETREDRAW, redraw);
}

HFONT TWindow::GetWindowFont() const {
    return reinterpret_cast<HFONT>(SendMessage(WM_GETFONT));
}

void TWindow::SetWindowFont(HFONT font, bool redraw) {
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), redraw);
}

HWND TWindow::GetWindow(UINT which) const {
    return ::GetWindow(m_handle, which);
}

HWND TWindow::GetDlgItem(int id) const {
    return ::GetDlgItem(m_handle, id);
}

HWND TWindow::GetNextDlgTabItem(HWND control, bool previous) const {
    return ::GetNextDlgTabItem(m_handle, control, previous);
}

HWND TWindow::SetFocus() {
    return m_handle == nullptr ? nullptr : ::SetFocus(m_handle);
}

HWND TWindow::GetFocus() {
    return ::GetFocus();
}

HWND TWindow::SetCapture() {
    return m_handle == nullptr ? nullptr : ::SetCapture(m_handle);
}

void TWindow::ReleaseCapture() {
    ::ReleaseCapture();
}

HWND TWindow::GetCapture() {
    return ::GetCapture();
}

void TWindow::GetCursorPos(TPoint& point) {
    ::GetCursorPos(&point);
}

HWND TWindow::WindowFromPoint(const TPoint& point) {
    return ::WindowFromPoint(point);
}

bool TWindow::SetCursor(TModule* module, TResId id) {
    const HCURSOR cursor = module != nullptr ? module->LoadCursor(id) : ::LoadCursorA(nullptr, id);
    if (cursor == nullptr)
        return false;
    m_cursor = cursor;
    return true;
}

UINT TWindow::SetTimer(UINT id, UINT milliseconds) {
    return m_handle == nullptr ? 0 : static_cast<UINT>(::SetTimer(m_handle, id, milliseconds, nullptr));
}

bool TWindow::KillTimer(UINT id) {
    return m_handle != nullptr && ::KillTimer(m_handle, id);
}

int TWindow::MessageBox(const char* text, const char* caption, UINT type) {
    return ::MessageBoxExA(m_handle, text, caption, type, 0);
}

HMENU TWindow::GetMenu() const {
    return (GetStyle() & WS_CHILD) != 0 ? nullptr : ::GetMenu(m_handle);
}

bool TWindow::SetMenu(HMENU menu) {
    return ::SetMenu(m_handle, menu) != 0;
}

HMENU TWindow::GetSystemMenu(bool revert) const {
    return ::GetSystemMenu(m_handle, revert);
}

void TWindow::DrawMenuBar() {
    ::DrawMenuBar(m_handle);
}

HANDLE TWindow::GetProp(const char* name) const {
    return ::GetPropA(m_handle, name);
}

bool TWindow::SetProp(const char* name, HANDLE data) {
    return ::SetPropA(m_handle, name, data) != 0;
}

HANDLE TWindow::RemoveProp(const char* name) {
    return ::RemovePropA(m_handle, name);
}

}  // namespace owl
