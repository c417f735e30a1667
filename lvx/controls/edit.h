// lvx/controls/edit.h
//
// The field that the library's dialogs have: in the small system font, flat, with all of its text selected
// when it gets the focus, and with its text as a string.
//
//     new LVXEdit(this, IDC_NAME);        // takes over a field of the dialog's resource
//     const std::string name = field->GetText();
//
// A control like any owl::TEdit: its parent owns it, and it is used on the thread of its window. Windows
// only.
#pragma once

#include <string>

#include "lvx/platform/export.h"
#include "owl/edit.h"

class LVX_EXPORT LVXEdit : public owl::TEdit {
public:
    /// The field `id` of a dialog's resource. With a `textLimit` not 0 no more than that less one bytes can
    /// be typed.
    LVXEdit(owl::TWindow* parent, int id, unsigned textLimit = 0, owl::TModule* module = nullptr);
    /// Made in code, with a text; null is an empty one. A multi-line field has scroll bars.
    LVXEdit(owl::TWindow* parent, int id, const char* text, int x, int y, int w, int h,
            unsigned textLimit = 0, bool multiline = false, owl::TModule* module = nullptr);
    LVXEdit(owl::TWindow* parent, int id, const std::string& text, int x, int y, int w, int h,
            unsigned textLimit = 0, bool multiline = false, owl::TModule* module = nullptr);
    ~LVXEdit() override;

    /// Copies at most `size` - 1 bytes and a NUL; returns how many bytes without it. 0 if there is no window;
    /// a null `buffer` or a `size` of 0 or less stays untouched.
    int GetText(char* buffer, int size) const;
    /// The whole text; empty if there is no window.
    void GetText(std::string& text) const;
    std::string GetText() const;

    /// Gives the field the small font and takes its sunken edge away.
    void SetupWindow() override;

    /// Selects all of the text: what is typed now takes its place.
    void EvSetFocus(HWND lost);

    DECLARE_RESPONSE_TABLE(LVXEdit);
};
