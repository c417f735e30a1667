#include "lvx/controls/list_box.h"

#include <cstring>

LVXListBox::LVXListBox(owl::TWindow* parent, int id, int x, int y, int w, int h, owl::TModule* module)
    : TListBox(parent, id, x, y, w, h, module) {}

LVXListBox::LVXListBox(owl::TWindow* parent, int id, owl::TModule* module) : TListBox(parent, id, module) {}

LVXListBox::~LVXListBox() = default;

std::string LVXListBox::GetSelString() const {
    return GetString(GetSelIndex());
}

int LVXListBox::GetSelString(char* text, int size) const {
    return TListBox::GetSelString(text, size);
}

int LVXListBox::GetString(char* text, int index) const {
    return TListBox::GetString(text, index);
}

std::string LVXListBox::GetString(int index) const {
    return GetListString(this, index);
}

// The length that the system tells first may be too long.
std::string LVXListBox::GetListString(const owl::TListBox* list, int index) {
    const int length = list != nullptr ? list->GetStringLen(index) : -1;
    if (length < 0)
        return {};
    std::string text(static_cast<std::size_t>(length), '\0');
    list->GetString(text.data(), index);
    text.resize(std::strlen(text.c_str()));
    return text;
}
