// lvx/controls/static.h
//
// A label whose text comes as a string, without a buffer to size. Otherwise an owl::TStatic: its parent owns
// it, and it is used on the thread of its window. Windows only.
#pragma once

#include <string>

#include "lvx/platform/export.h"
#include "owl/static.h"

class LVX_EXPORT LVXStatic : public owl::TStatic {
public:
    /// Made in code; a null `text` is an empty one. `textLimit` is the size of the text in a transfer.
    LVXStatic(owl::TWindow* parent, int id, const char* text, int x, int y, int w, int h,
              unsigned textLimit = 0, owl::TModule* module = nullptr);
    /// The label `id` of a dialog's resource.
    LVXStatic(owl::TWindow* parent, int id, unsigned textLimit = 0, owl::TModule* module = nullptr);
    ~LVXStatic() override;

    /// Copies at most `size` - 1 bytes and a NUL; returns how many bytes without it. 0 if there is no window;
    /// a null `text` or a `size` of 0 or less stays untouched.
    int GetText(char* text, int size) const;
    /// The whole text; empty if there is no window.
    std::string GetText() const;
};
