#include "owl/list_box.h"

#include <algorithm>
#include <cstring>

#include "owl/item_message.h"

namespace owl {

TListBox::TListBox(TWindow* parent, int id, int x, int y, int w, int h, TModule* module)
    : TControl(parent, id, nullptr, x, y, w, h, module) {
    Attr.Style |= WS_BORDER | WS_VSCROLL | LBS_NOTIFY | LBS_SORT;
}

TListBox::TListBox(TWindow* parent, int resourceId, TModule* module) : TControl(parent, resourceId, module) {}

TListBox::~TListBox() = default;

const char* TListBox::GetClassName() {
    return "LISTBOX";
}

int TListBox::AddString(const char* text) {
    return SendItemText(*this, LB_ADDSTRING, 0, text);
}

int TListBox::InsertString(const char* text, int index) {
    return SendItemText(*this, LB_INSERTSTRING, index, text);
}

int TListBox::FindString(const char* text, int start) const {
    return SendItemText(*this, LB_FINDSTRING, start, text);
}

int TListBox::DeleteString(int index) {
    return SendItemMessage(*this, LB_DELETESTRING, index);
}

void TListBox::ClearList() {
    SendItemMessage(*this, LB_RESETCONTENT, 0);
}

int TListBox::GetCount() const {
    return SendItemMessage(*this, LB_GETCOUNT, 0);
}

int TListBox::GetString(char* text, int index) const {
    return ReadItemText(*this, LB_GETTEXT, index, text);
}

int TListBox::GetStringLen(int index) const {
    return SendItemMessage(*this, LB_GETTEXTLEN, index);
}

int TListBox::GetSelIndex() const {
    return SendItemMessage(*this, LB_GETCURSEL, 0);
}

// The system's answer to -1 is an error as well.
bool TListBox::SetSelIndex(int index) {
    return SendItemMessage(*this, LB_SETCURSEL, index) != LB_ERR || (index == -1 && IsWindow());
}

int TListBox::SetSelString(const char* text, int start) {
    return SendItemText(*this, LB_SELECTSTRING, start, text);
}

int TListBox::GetSelString(char* text, int size) const {
    if (text == nullptr || size <= 0)
        return 0;
    const std::size_t copied = TextOf(GetSelIndex()).copy(text, static_cast<std::size_t>(size) - 1);
    text[copied] = '\0';
    return static_cast<int>(copied);
}

// The length that the system tells first may be too long.
std::string TListBox::TextOf(int index) const {
    const int length = GetStringLen(index);
    if (length < 0)
        return {};
    std::string text(static_cast<std::size_t>(length), '\0');
    const int copied = GetString(text.data(), index);
    text.resize(static_cast<std::size_t>(std::clamp(copied, 0, length)));
    return text;
}

LPARAM TListBox::GetItemData(int index) const {
    return SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(index));
}

bool TListBox::SetItemData(int index, LPARAM data) {
    return IsWindow() && SendMessage(LB_SETITEMDATA, static_cast<WPARAM>(index), data) != LB_ERR;
}

void TListBox::ReadSelection(TListBoxData& data) const {
    data.SelIndex = GetSelIndex();
    data.SelString = TextOf(data.SelIndex);
}

// A sorted list has the items elsewhere than they stand in the data: the text finds them. Not by the system's
// search, to which "pearl" is as good as "pear".
int TListBox::IndexOf(const TListBoxData& data) const {
    if (data.SelString.empty() || TextOf(data.SelIndex) == data.SelString)
        return data.SelIndex;
    for (int index = 0; index < GetCount(); ++index) {
        if (TextOf(index) == data.SelString)
            return index;
    }
    return data.SelIndex;
}

void TListBox::WriteSelection(const TListBoxData& data) {
    SetSelIndex(IndexOf(data));
}

unsigned TListBox::Transfer(void* buffer, TTransferDirection direction) {
    if (direction != tdSizeData) {
        TListBoxData* data = nullptr;
        std::memcpy(&data, buffer, sizeof(data));
        if (data != nullptr && direction == tdGetData)
            ReadSelection(*data);
        if (data != nullptr && direction == tdSetData) {
            ClearList();
            for (const std::string& text : data->Strings)
                AddString(text.c_str());
            WriteSelection(*data);
        }
    }
    return sizeof(TListBoxData*);
}

}  // namespace owl
