#include "owl/list_box.h"

#include <cstring>

namespace owl {

namespace {

int Send(const TWindow& window, UINT msg, int index, const void* text = nullptr) {
    if (!window.IsWindow())
        return LB_ERR;
    return static_cast<int>(
        window.SendMessage(msg, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
}

}  // namespace

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
    return Send(*this, LB_ADDSTRING, 0, text);
}

int TListBox::InsertString(const char* text, int index) {
    return Send(*this, LB_INSERTSTRING, index, text);
}

int TListBox::FindString(const char* text, int start) const {
    return Send(*this, LB_FINDSTRING, start, text);
}

int TListBox::DeleteString(int index) {
    return Send(*this, LB_DELETESTRING, index);
}

void TListBox::ClearList() {
    Send(*this, LB_RESETCONTENT, 0);
}

int TListBox::GetCount() const {
    return Send(*this, LB_GETCOUNT, 0);
}

int TListBox::GetString(char* text, int index) const {
    text[0] = '\0';
    return Send(*this, LB_GETTEXT, index, text);
}

int TListBox::GetStringLen(int index) const {
    return Send(*this, LB_GETTEXTLEN, index);
}

int TListBox::GetSelIndex() const {
    return Send(*this, LB_GETCURSEL, 0);
}

// The system's answer to -1 is an error as well.
bool TListBox::SetSelIndex(int index) {
    return Send(*this, LB_SETCURSEL, index) != LB_ERR || (index == -1 && IsWindow());
}

int TListBox::SetSelString(const char* text, int start) {
    return Send(*this, LB_SELECTSTRING, start, text);
}

int TListBox::GetSelString(char* text, int size) const {
    if (text == nullptr || size <= 0)
        return 0;
    text[0] = '\0';
    const int index = GetSelIndex();
    const int length = GetStringLen(index);
    if (length < 0)
        return 0;
    std::vector<char> item(static_cast<std::size_t>(length) + 1);
    GetString(item.data(), index);
    const int copied = length < size ? length : size - 1;
    std::memcpy(text, item.data(), static_cast<std::size_t>(copied));
    text[copied] = '\0';
    return copied;
}

LPARAM TListBox::GetItemData(int index) const {
    return SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(index));
}

bool TListBox::SetItemData(int index, LPARAM data) {
    return IsWindow() && SendMessage(LB_SETITEMDATA, static_cast<WPARAM>(index), data) != LB_ERR;
}

void TListBox::ReadSelection(TListBoxData& data) const {
    data.SelIndex = GetSelIndex();
    const int length = GetStringLen(data.SelIndex);
    std::vector<char> text(length < 0 ? 1 : static_cast<std::size_t>(length) + 1);
    GetSelString(text.data(), static_cast<int>(text.size()));
    data.SelString = text.data();
}

// A sorted list has the items elsewhere than they stand in the data: the text finds them.
void TListBox::WriteSelection(const TListBoxData& data) {
    if (data.SelString.empty() || SetSelString(data.SelString.c_str()) < 0)
        SetSelIndex(data.SelIndex);
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
