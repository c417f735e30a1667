#include "owl/edit.h"

namespace owl {

namespace {

constexpr DWORD multiline_style =
    ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL | ES_WANTRETURN | WS_HSCROLL | WS_VSCROLL;

}  // namespace

TEdit::TEdit(TWindow* parent, int id, const char* text, int x, int y, int w, int h, unsigned textLimit,
             bool multiline, TModule* module)
    : TStatic(parent, id, text, x, y, w, h, textLimit, module) {
    Attr.Style |= WS_TABSTOP | WS_BORDER | ES_LEFT | ES_AUTOHSCROLL;
    if (multiline)
        Attr.Style |= multiline_style;
}

TEdit::TEdit(TWindow* parent, int resourceId, unsigned textLimit, TModule* module)
    : TStatic(parent, resourceId, textLimit, module) {}

TEdit::~TEdit() = default;

const char* TEdit::GetClassName() {
    return "EDIT";
}

void TEdit::SetupWindow() {
    TStatic::SetupWindow();
    if (GetTextLimit() != 0)
        SendMessage(EM_LIMITTEXT, GetTextLimit() - 1);
}

void TEdit::GetSelection(int& start, int& end) const {
    DWORD from = 0;
    DWORD to = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    start = static_cast<int>(from);
    end = static_cast<int>(to);
}

bool TEdit::SetSelection(int start, int end) {
    SendMessage(EM_SETSEL, static_cast<WPARAM>(start), end);
    return IsWindow();
}

void TEdit::Insert(const char* text) {
    SendMessage(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
}

void TEdit::DeleteSelection() {
    SendMessage(WM_CLEAR);
}

void TEdit::Cut() {
    SendMessage(WM_CUT);
}

void TEdit::Copy() {
    SendMessage(WM_COPY);
}

void TEdit::Paste() {
    SendMessage(WM_PASTE);
}

void TEdit::Undo() {
    SendMessage(EM_UNDO);
}

bool TEdit::CanUndo() const {
    return SendMessage(EM_CANUNDO) != 0;
}

bool TEdit::IsModified() const {
    return SendMessage(EM_GETMODIFY) != 0;
}

void TEdit::ClearModify() {
    SendMessage(EM_SETMODIFY, FALSE);
}

int TEdit::GetNumLines() const {
    return static_cast<int>(SendMessage(EM_GETLINECOUNT));
}

}  // namespace owl
