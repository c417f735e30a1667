// lvx/controls/list_box.h
//
// A list box whose items come as strings, without a buffer to size. Otherwise an owl::TListBox: its parent
// owns it, and it is used on the thread of its window. Windows only.
#pragma once

#include <string>

#include "lvx/platform/export.h"
#include "owl/list_box.h"

class LVX_EXPORT LVXListBox : public owl::TListBox {
public:
    /// Made in code: sorted, with a border and a scroll bar.
    LVXListBox(owl::TWindow* parent, int id, int x, int y, int w, int h, owl::TModule* module = nullptr);
    /// The list `id` of a dialog's resource.
    LVXListBox(owl::TWindow* parent, int id, owl::TModule* module = nullptr);
    ~LVXListBox() override;

    /// The selected item; empty if none is.
    std::string GetSelString() const;
    /// As those of owl::TListBox.
    int GetSelString(char* text, int size) const;
    int GetString(char* text, int index) const override;
    /// The item `index`; empty for a bad index or without a window.
    std::string GetString(int index) const;

    /// The item `index` of any list, a combo box's too; empty for a bad index, and for a null `list` or one
    /// without a window. An item is cut at its first NUL.
    static std::string GetListString(const owl::TListBox* list, int index);
};
