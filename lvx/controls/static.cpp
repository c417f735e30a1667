#include "lvx/controls/static.h"

LVXStatic::LVXStatic(owl::TWindow* parent, int id, const char* text, int x, int y, int w, int h,
                     unsigned textLimit, owl::TModule* module)
    : TStatic(parent, id, text, x, y, w, h, textLimit, module) {}

LVXStatic::LVXStatic(owl::TWindow* parent, int id, unsigned textLimit, owl::TModule* module)
    : TStatic(parent, id, textLimit, module) {}

LVXStatic::~LVXStatic() = default;

int LVXStatic::GetText(char* text, int size) const {
    return TStatic::GetText(text, size);
}

std::string LVXStatic::GetText() const {
    return GetWindowText();
}
