#include "owl/combo_box.h"

#include "owl/item_message.h"

namespace owl {

TComboBox::TComboBox(TWindow* parent, int id, int x, int y, int w, int h, unsigned long style,
                     unsigned textLimit, TModule* module)
    : TListBox(parent, id, x, y, w, h, module), m_textLimit(textLimit) {
    Attr.Style = WS_CHILD | WS_VISIBLE | WS_GROUP | WS_TABSTOP | WS_VSCROLL | CBS_SORT | CBS_AUTOHSCROLL |
                 static_cast<DWORD>(style);
}

TComboBox::TComboBox(TWindow* parent, int resourceId, unsigned textLimit, TModule* module)
    : TListBox(parent, resourceId, module), m_textLimit(textLimit) {}

TComboBox::~TComboBox() = default;

const char* TComboBox::GetClassName() {
    return "COMBOBOX";
}

void TComboBox::SetupWindow() {
    TListBox::SetupWindow();
    if (m_textLimit != 0)
        SendMessage(CB_LIMITTEXT, m_textLimit - 1);
}

int TComboBox::AddString(const char* text) {
    return SendItemText(*this, CB_ADDSTRING, 0, text);
}

int TComboBox::InsertString(const char* text, int index) {
    return SendItemText(*this, CB_INSERTSTRING, index, text);
}

int TComboBox::FindString(const char* text, int start) const {
    return SendItemText(*this, CB_FINDSTRING, start, text);
}

int TComboBox::DeleteString(int index) {
    return SendItemMessage(*this, CB_DELETESTRING, index);
}

void TComboBox::ClearList() {
    SendItemMessage(*this, CB_RESETCONTENT, 0);
}

int TComboBox::GetCount() const {
    return SendItemMessage(*this, CB_GETCOUNT, 0);
}

int TComboBox::GetString(char* text, int index) const {
    return ReadItemText(*this, CB_GETLBTEXT, index, text);
}

int TComboBox::GetStringLen(int index) const {
    return SendItemMessage(*this, CB_GETLBTEXTLEN, index);
}

int TComboBox::GetSelIndex() const {
    return SendItemMessage(*this, CB_GETCURSEL, 0);
}

bool TComboBox::SetSelIndex(int index) {
    return SendItemMessage(*this, CB_SETCURSEL, index) != CB_ERR || (index == -1 && IsWindow());
}

int TComboBox::SetSelString(const char* text, int start) {
    return SendItemText(*this, CB_SELECTSTRING, start, text);
}

LPARAM TComboBox::GetItemData(int index) const {
    return SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(index));
}

bool TComboBox::SetItemData(int index, LPARAM data) {
    return IsWindow() && SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(index), data) != CB_ERR;
}

void TComboBox::SetText(const char* text) {
    SetWindowText(text != nullptr ? text : "");
}

void TComboBox::ShowList(bool show) {
    SendItemMessage(*this, CB_SHOWDROPDOWN, show);
}

void TComboBox::ReadSelection(TListBoxData& data) const {
    data.SelIndex = GetSelIndex();
    data.SelString = GetWindowText();
}

// What is in the field need not be in the list.
void TComboBox::WriteSelection(const TListBoxData& data) {
    TListBox::WriteSelection(data);
    if (GetSelIndex() < 0)
        SetText(data.SelString.c_str());
}

}  // namespace owl
