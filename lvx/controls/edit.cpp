#include "lvx/controls/edit.h"

DEFINE_RESPONSE_TABLE1(LVXEdit, owl::TEdit)
    EV_WM_SETFOCUS,
END_RESPONSE_TABLE;

namespace {

// The system lays a frame out anew only if it is told.
void RemoveClientEdge(owl::TWindow& window) {
    window.SetExStyle(window.GetExStyle() & ~static_cast<DWORD>(WS_EX_CLIENTEDGE));
    window.SetWindowPos(nullptr, 0, 0, 0, 0,
                        SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

}  // namespace

LVXEdit::LVXEdit(owl::TWindow* parent, int id, unsigned textLimit, owl::TModule* module)
    : TEdit(parent, id, textLimit, module) {}

LVXEdit::LVXEdit(owl::TWindow* parent, int id, const char* text, int x, int y, int w, int h,
                 unsigned textLimit, bool multiline, owl::TModule* module)
    : TEdit(parent, id, text, x, y, w, h, textLimit, multiline, module) {}

LVXEdit::LVXEdit(owl::TWindow* parent, int id, const std::string& text, int x, int y, int w, int h,
                 unsigned textLimit, bool multiline, owl::TModule* module)
    : LVXEdit(parent, id, text.c_str(), x, y, w, h, textLimit, multiline, module) {}

LVXEdit::~LVXEdit() = default;

int LVXEdit::GetText(char* buffer, int size) const {
    return TEdit::GetText(buffer, size);
}

void LVXEdit::GetText(std::string& text) const {
    text = GetWindowText();
}

std::string LVXEdit::GetText() const {
    return GetWindowText();
}

void LVXEdit::SetupWindow() {
    TEdit::SetupWindow();
    SetWindowFont(static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT)), false);
    RemoveClientEdge(*this);
}

void LVXEdit::EvSetFocus(HWND lost) {
    TEdit::EvSetFocus(lost);
    SetSelection(0, GetTextLen());
}
