// lvx/controls/combo_box.h
//
// A combo box whose items come as strings, without a buffer to size. Otherwise an owl::TComboBox: its parent
// owns it, and it is used on the thread of its window. Windows only.
#pragma once

#include <string>

#include "lvx/platform/export.h"
#include "owl/combo_box.h"

class LVX_EXPORT LVXComboBox : public owl::TComboBox {
public:
    /// Made in code: `style` is CBS_SIMPLE, CBS_DROPDOWN or CBS_DROPDOWNLIST and more, `h` the height with
    /// the list open. With a `textLimit` not 0 no more than that less one bytes can be typed.
    LVXComboBox(owl::TWindow* parent, int id, int x, int y, int w, int h, unsigned long style,
                unsigned textLimit, owl::TModule* module = nullptr);
    /// The combo box `id` of a dialog's resource.
    LVXComboBox(owl::TWindow* parent, int id, unsigned textLimit = 0, owl::TModule* module = nullptr);
    ~LVXComboBox() override;

    /// As that of owl::TComboBox.
    int GetString(char* text, int index) const override;
    /// The item `index`; empty for a bad index or without a window.
    std::string GetString(int index) const;
    /// The selected item of the list; empty if none is, whatever stands in the field.
    std::string GetSelString() const;
    using TComboBox::GetSelString;
};
