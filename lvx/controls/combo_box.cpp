#include "lvx/controls/combo_box.h"

#include "lvx/controls/list_box.h"

LVXComboBox::LVXComboBox(owl::TWindow* parent, int id, int x, int y, int w, int h, unsigned long style,
                         unsigned textLimit, owl::TModule* module)
    : TComboBox(parent, id, x, y, w, h, style, textLimit, module) {}

LVXComboBox::LVXComboBox(owl::TWindow* parent, int id, unsigned textLimit, owl::TModule* module)
    : TComboBox(parent, id, textLimit, module) {}

LVXComboBox::~LVXComboBox() = default;

int LVXComboBox::GetString(char* text, int index) const {
    return TComboBox::GetString(text, index);
}

std::string LVXComboBox::GetString(int index) const {
    return LVXListBox::GetListString(this, index);
}

std::string LVXComboBox::GetSelString() const {
    return GetString(GetSelIndex());
}
